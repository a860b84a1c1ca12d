// pane_private: what the files of the pane module share. pane owns the stack, the input and the end
// of a pane; pane_types has a row for each type; pane_draw paints boxes and buttons; pane_message,
// pane_choice, pane_directory and pane_find open the dialogs and say what their buttons do;
// pane_region has the region selector over the tables of pane_region_tables; pane_restore keeps
// progress beyond a pane; pane_keyframe is the run control of the timelines.
#pragma once
#include "pane.h"
#include "types.h"
#include <SDL.h>

enum TYPE : int {
    TYPE_MESSAGE = 0,
    TYPE_YESNO = 1,
    TYPE_PROGRESS = 2,
    TYPE_PULLDOWN = 3,
    TYPE_SELECT = 4,
    TYPE_REGION = 5,
    TYPE_RTRLVL = 6,
    TYPE_POPUP = 7,
    TYPE_FIND = 8,
    TYPE_COLOR = 9,
    TYPE_FRAME = 10, // the run control of the timelines
    TYPE_DIRECTORY = 11,
    TYPE_FMOUT = 12,
    TYPE_FMFOLDER = 13,
    TYPE_COUNT,
};

// The look of a button says also how it answers a press.
enum PANELOOK : int {
    LOOK_KEY = 0,
    LOOK_UP = 1, // scroll arrows act at once and repeat while they are held
    LOOK_DOWN = 2,
    LOOK_ITEM = 3, // lights while it is pushed
    LOOK_CELL = 4,
    LOOK_ENTER = 5,
    LOOK_POPUP = 6, // a radio: the choice that stands says nothing when it is pressed again
    LOOK_TEXT = 7,
    LOOK_COLOUR = 8,    // the colour of its id, 1 to 9
    LOOK_DIRECTORY = 9, // an entry of a directory
    LOOK_FOLDER = 10,
    LOOK_PREV_PAGE = 11, // turn the pages of the pane itself and report nothing
    LOOK_NEXT_PAGE = 12,
    LOOK_RUN = 13,
    LOOK_FMOUT = 14,     // a radio, too
    LOOK_LONG_ITEM = 15, // as LOOK_ITEM
    LOOK_COUNT,
};

// Ids of buttons that no BTNSEL names.
enum : int {
    BTN_CANCEL = 32768,
    BTN_ENTER = 32769,
    BTN_ALL = 32770,
    BTN_UNIT_SWR_ALL = 32771, // the switchers among units
    BTN_UNIT_DME_ALL = 32772,
    BTN_SWR_ALL = 32773, // the switcher's banks
    BTN_PREV_PAGE = 32774,
    BTN_NEXT_PAGE = 32775,
};

constexpr int BUTTON_END = -1; // id behind the last button

struct BUTTON {
    int id = 0;
    const char* caption = ""; // lives at least as long as the pane
    int type = LOOK_KEY;
    int x1 = 0; // from the pane's corner
    int y1 = 0;
    int x2 = 0; // from the bitmap
    int y2 = 0;
    SDL_Surface* bmp_p0o0 = nullptr;
    SDL_Surface* bmp_p0o1 = nullptr;
    SDL_Surface* bmp_p1o0 = nullptr;
    SDL_Surface* bmp_p1o1 = nullptr;
    SDL_Surface* bmp_p0o2 = nullptr; // the reference
    SDL_Surface* bmp_p1o2 = nullptr;
    SDL_Surface* bmp_dis = nullptr;
    int pushed = 0; // ms left
    int onoff = 0;  // 0 off, 1 on, 2 the reference
    int disable = 0;
    int hidden = 0; // neither painted nor pressed
    int silent = 0; // what this press would report is known already
    int redraw = 0;
};

// A text that is appended to, at a cost that does not grow with what is there. All zero is empty.
struct GROWTEXT {
    char* mes; // owned; null while empty
    size_t length;
    size_t room; // bytes that mes has
};

// A text that scrolls. Where its lines start is kept, so that neither an append nor a repaint walks
// what lies before.
struct SCROLLTEXT {
    GROWTEXT grown;
    size_t* start; // of each line, the empty one behind the last break included; owned
    int starts;
    size_t start_room;
    int topline;
};

// Lies in allocated memory: all bits zero is the start state of every field.
struct PANE {
    int id;
    int type;
    char* caption; // owned
    int x;
    int y;
    int w;
    int h;
    BUTTON* button; // owned; ends with BUTTON_END
    int button_num;
    int button_max;
    int quitmem;       // 0 stays open, a QUIT_ value, or the result
    int redraw;        // everything with its shadow
    int text_redraw;   // the inside of the text well
    int inside_redraw; // all between the edges: other buttons are in view
    union {
        struct {
            SCROLLTEXT text;
            int icon;
        } message; // and yes/no
        struct {
            SCROLLTEXT text;
            int prog;      // percent
            char* progmes; // owned
            int prog_redraw;
            int lamp; // ROUTE_LAMP_
        } progress;
        struct {
            int all_page;
            int now_page; // from 0
            int reserved;
        } directory; // and the folder popup
        struct {
            int indicator;
        } find;
        struct {
            int single; // the first cell closes it
            int grp;    // of a region selector
        } choice;       // and router levels
    } each;
    PANE* next;
};

enum : int {
    QUIT_SILENT = -1049,  // closed without an answer: the result is 0, of a message -1
    QUIT_BY_CODE = -1050, // no result at all
};

// --- pane: the stack ---
extern int PaneID; // the last id that was given

// A new pane on top, to be painted at the next repaint, with room for that many buttons. Closes any
// window and wakes the screen. Null when memory is out; the creators then answer 0.
PANE* pane_create(TYPE type, const char* caption, const Rect& place, int button_max);
BUTTON* pane_add(PANE* pane, const BUTTON& row); // the row's id, caption, look, corner and states
PANE* pane_find(int id);
PANE* pane_find_type(TYPE type); // the topmost of that type
PANE* pane_top();
PANE* pane_bottom(); // the first of the list; null when there is none
bool pane_has_input(const PANE* pane, const BUTTON& b); // it is shown, on the page in view

// --- pane_types ---
constexpr int TEXT_LINES = 10; // in view in a message
constexpr int PROGRESS_LINES = 6;
constexpr int DIRECTORY_PAGE = 40; // entries
constexpr int FOLDER_PAGE = 30;

struct PaneKind {
    TYPE type;
    void (*draw)(PANE* pane);                               // all but the buttons
    void (*select)(PANE* pane, int id);                     // the push of a button is over
    void (*press_beside)(PANE*, bool is_outside) = nullptr; // a press on no button; null: nothing
    int (*result)(const PANE*) = nullptr; // null: quitmem itself, 0 without an answer
    void (*release)(PANE*) = nullptr;     // frees what the type owns
    int lines = 0;                        // of text in view, 0: it has none
    int page_size = 0;                    // entries, 0: it has no pages
};
const PaneKind& pane_kind(const PANE* pane);
void pane_select(PANE* pane, int id);
// is_outside: not even on the pane.
void pane_press_beside(PANE* pane, bool is_outside);
int pane_result(const PANE* pane); // what quitmem means to whoever asked
void pane_release(PANE* pane);

// --- pane_draw ---
void button_create(BUTTON* b); // bitmaps and size of its look
void button_draw(const PANE* pane, BUTTON* b);
void pane_draw_all(PANE* pane); // with the shadow; flushes
void pane_draw_text(PANE* pane);
void pane_draw_progress(const PANE* pane);
void pane_draw_inside(PANE* pane);
void pane_draw_indicator(const PANE* pane);
void pane_draw_message(PANE* pane); // of these none flushes
void pane_draw_progress_box(PANE* pane);
void pane_draw_grid(PANE* pane);
void pane_draw_region(PANE* pane);
void pane_draw_find(PANE* pane);
void pane_draw_directory(PANE* pane);
void pane_draw_run_control(PANE* pane);
constexpr int TEXT_WIDTH = 290;
constexpr int TEXT_FONT = 4;

// --- pane_message ---
bool grow_text(GROWTEXT* text, const char* more); // false when memory is out: it is as before
void free_text(GROWTEXT* text);
SCROLLTEXT* pane_text(PANE* pane);         // null for a type without a text
const char* pane_text_in_view(PANE* pane); // from its top line; "" when there is none
void message_select(PANE* pane, int id);
int message_result(const PANE* pane);
void message_release(PANE* pane);
void progress_release(PANE* pane);

// --- pane_choice ---
void choice_select(PANE* pane, int id);
void level_select(PANE* pane, int id);
// A grid of cells; an empty cell gets no button, or with keep_empty a hidden one.
struct PaneGrid {
    int columns;
    int rows;
    int x;
    int y;
    int dx;
    int dy;
    int look;
    bool keep_empty = false;
};
void pane_add_grid(PANE* pane, const PaneGrid& grid, const BTNSEL* cells, int count);
void pane_add_bottom_key(PANE* pane, int id, const char* caption, int look, int x);
// A box in the middle of the screen.
constexpr Rect pane_centred(int w, int h)
{
    return {400 - w / 2, 300 - h / 2, 400 - w / 2 + w - 1, 300 - h / 2 + h - 1};
}
constexpr Rect pane_box(int x, int y, int w, int h)
{
    return {x, y, x + w - 1, y + h - 1};
}

// --- pane_directory, pane_find ---
void pane_turn_page(PANE* pane, int step);
void find_select(PANE* pane, int id);

// --- pane_region ---
void region_select(PANE* pane, int id);
bool region_has_margin(const PANE* pane); // room for names at the left

// --- pane_keyframe ---
void frame_select(PANE* pane, int id);
void frame_closed();

// --- pane_region_tables: 47 groups of regions ---

enum : int { REGION_GRP_ROWS = 8, REGION_GRP_IDS = 12 };

// One name in the region area: which regions it stands for, and how their files are called. Ids end
// at the first 0.
struct REGIONGRP {
    const char* name = nullptr; // null: an unused row
    int pos = 0;                // cell in the area's grid of 5 columns
    int id[REGION_GRP_IDS] = {};
    const char* fi_region[REGION_GRP_IDS] = {};
    const char* fi_ext[REGION_GRP_IDS] = {};
};

// How the cells of a group follow the units of this system.
enum REGIONUNITS : int {
    UNITS_FIXED,    // not at all
    UNITS_SWR,      // one cell a switcher
    UNITS_SETUP,    // three a switcher, one a DME
    UNITS_INITSTAT, // one a switcher, one a DME
    UNITS_USRSETUP, // three a switcher
};

// Peculiarities of a selector.
enum : int {
    REGION_PLAIN = 0,
    REGION_SWR_ALL = 1,   // has "SWR\nALL" for the banks
    REGION_UNIT_COPY = 2, // units, none of them a reference; has an ALL for each class
    REGION_ONE = 4,       // exactly one cell can be on
    REGION_KEEP_REF = 8,  // the reference stays when it is pressed
};

struct REGIONBTN {
    int no = -1;
    BTNSEL* btnsel = nullptr;       // row by row; groups may share a set, and with it the selection
    int cells = 0;                  // hn * vn
    REGIONGRP* regiongrp = nullptr; // REGION_GRP_ROWS rows
    const char* category = "";
    int hn = 0;
    int vn = 0;
    int units = UNITS_FIXED;
    int kind = REGION_PLAIN;
    int all_ref = 0; // cell that is the reference after ALL
};

extern const REGIONBTN RegionBtn[REGION_GROUPS];

enum : int {
    REGION_ID_SWR = REGION_ID_SWITCHER, // three ids a switcher in the setup groups, one elsewhere
    REGION_ID_DME = 1152,               // one a unit
    REGION_ID_LAST_SWR_UNIT = 1295,     // of the copy groups; DMEs are above
    REGION_SWR_MAX = 2,
    REGION_DME_MAX = 8,
};
