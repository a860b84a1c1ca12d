// window_private: what the files of the window module share. window owns the one window, its input
// and its end; window_keys has the ten keys of all kinds, window_keyboard the keyboard,
// window_boxes messages, pull-downs and selections, window_favorites the operator's own keys beside
// the page jump.
#pragma once
#include "types.h"
#include "window.h"

enum WINLOOK : int {
    LOOK_DIGIT,
    LOOK_SIGN,
    LOOK_CLEAR, // and every key that does something to the entry
    LOOK_CANCEL,
    LOOK_ENTER,
    LOOK_LETTER,
    LOOK_TWO_LINES, // shifted over plain
    LOOK_WORD,
    LOOK_LEFT,
    LOOK_RIGHT,
    LOOK_BACKSPACE,
    LOOK_CAPS,
    LOOK_SHIFT,
    LOOK_KYB_ENTER,
    LOOK_KYB_CANCEL,
    LOOK_SPACE,
    LOOK_BOX,
    LOOK_LIST_TOP,
    LOOK_LIST_MID,
    LOOK_LIST_END,
    LOOK_CELL,
    LOOK_PATH,     // the picture of its id
    LOOK_FAVORITE, // the colours of its record
    LOOK_COUNT,
};

// Ids of the windows of keys: the high nibble is the kind, a digit's low nibble its value.
enum : int {
    KEY_DIGIT = 0x10,
    KEY_POINT = 0x1A, // where A is no digit
    KEY_CANCEL = 0x20,
    KEY_ENTER = 0x30,
    KEY_CLEAR = 0x40,
    KEY_SIGN = 0x50,
    KEY_COLON = 0x51,
    KEY_TRIM = 0x60,
    KEY_BACKSPACE = 0x70,
    KEY_CHARACTER = 0x100, // and the plain character of the key
    KEY_LEFT = 0x180,
    KEY_RIGHT,
    KEY_CAPS,
    KEY_SHIFT,
    KEY_DELETE,
    KEY_HOME, // of a keyboard only
    KEY_END,
    KEY_CHOICE = 0x200,   // and the number of the cell
    KEY_FAVORITE = 0x300, // and the number of the record
    KEY_SET = 0x400,
    KEY_STORE,
    KEY_COLOR,
};
constexpr int KEY_KIND = 0xF0; // the high nibble of an id below KEY_CHARACTER

constexpr int WINOBJ_END = -1;
constexpr int WINOBJ_MAX = 128; // with the end
constexpr int INPUT_MAX = 63;   // the longest text that any keyboard is asked for

struct WINOBJ {
    int id = WINOBJ_END;
    const char* caption = ""; // lives as long as the window
    int type = LOOK_DIGIT;
    int x1 = 0; // from the window's corner
    int y1 = 0;
    int visible = 0; // 0 is seen and pressed
    int x2 = 0;      // from the bitmap
    int y2 = 0;
    int status = 0; // 1 on
    int pushed = 0; // ms left
    int redraw = 0;
};

// One type of window. What is sent at its end is sent when the window has gone: the receiver may
// open the next one.
struct WindowKind {
    int type;
    void (*open)(const WindowArgs& args); // sizes it, places it, brings its keys and its entry
    void (*draw)();                       // all but the keys, without a flush
    void (*select)(int id);               // SelectFunc; the window may be gone afterwards
    void (*quit)(int v);                  // QuitFunc
    int (*key_id)(int sym, int mod);      // of a keyboard's key, 0 none
    int cancel;                           // what quit takes for a cancel
    bool beside_cancels;                  // a press beside it
};

struct WindowState {
    int Window = WINDOW_NONE;
    const WindowKind* kind = nullptr; // null exactly when Window is 0
    WINOBJ Key[WINOBJ_MAX];
    int keys = 0;
    int WinX = 0;
    int WinY = 0;
    int w = 0;
    int h = 0;
    char Caption[256] = "";
    int ReserveQuit = 0;
    int ReserveQuitVar = 0;

    char Input[INPUT_MAX + 1] = "";
    int InputPos = 0;
    int InputMax = 0;
    int FirstInput = 0; // the next key replaces the shown value
    int Minus = 0;
    int TimeCode = 0;
    int field_open = 0; // digits that the last field of a time code still takes
    char min_text[32] = "";
    char max_text[32] = "";
    bool has_limits = false;
    double MinValue = 0;
    double MaxValue = 0;
    double CurrentValue = NAN; // knob: as it was at the opening
    bool is_refused = false;   // the entry was no time code; until the next key
    int CapsLock = 0;
    int Shift = 0;

    char message[1024] = "";
    int percent = 0;
    int PathSelType = 0;
    int (*OKFunc)(int) = nullptr;
    int OKVar = 0;
    int (*OKText)(const char*) = nullptr;
};
extern WindowState win;

// --- window ---
void window_size(const WindowArgs& args, int w, int h, int x = -1, int y = -1); // -1: centred
WINOBJ* window_add(int id, const char* caption, int look, int x, int y);        // null when full
WINOBJ* window_key(int id);         // null when there is none
void window_light(int id, bool on); // at the next repaint
void window_redraw_look(int look);  // its keys, at the next repaint
// Restore the screen and give the page its messages back; what the window held is returned, for
// whoever has yet to act on it.
WindowState window_end();
void window_dark_frame(unsigned ground); // with the shadow
void window_light_frame();
void window_draw_well(Rect well); // relative to the window, as all of these
void window_draw_title(int x, int y, unsigned col);
void window_flush(Rect part);
int window_ascii(int sym); // the character of a key, number pad included; 0 none

// --- The types ---
extern const WindowKind pagejump_kind;
extern const WindowKind knobinput_kind;
extern const WindowKind knobinput_trim_kind;
extern const WindowKind kyb_kind;
extern const WindowKind mbox_kind;
extern const WindowKind banksel_kind;
extern const WindowKind pulldown_kind;
extern const WindowKind progress_kind;
extern const WindowKind select_kind;
extern const WindowKind pathsel_kind;
extern const WindowKind hexkey_kind;
extern const WindowKind page_get_kind;
extern const WindowKind pageini_kind;

// --- window_keys ---
void knobinput_change(const WindowArgs& args);

// --- window_keyboard ---
const char* kyb_caption(const WINOBJ& key, char (&letter)[2]); // by caps lock and shift

// --- window_boxes ---
struct SDL_Surface;
SDL_Surface* pathsel_face(int id, bool on);

// --- window_favorites: five sets of 29 keys, one file a set ---
void favorites_open();     // read the files, bring the keys
void pagejump_draw_user(); // the keys of the set in view
void pagejump_draw_user_key(const WINOBJ& key);
// A press on one of its keys. The page that it opens, 0 none.
uint32_t favorites_select(int id);
