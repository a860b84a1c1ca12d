// window: the modal windows: keyboard, ten keys, page jump, pull-downs and selections. Only one
// exists at a time. While it is up all input is its own; the page beneath hears tallies but neither
// paints nor is pressed, and catches up when the window has gone. A pane that opens closes it; one
// that opens while a pane stands lies above it, and the pane goes on afterwards. The knob window
// alone leaves the number boxes beside it alive: a press on another box moves it there.
#pragma once
#include "types.h"
#include <cmath>

enum : int {
    WINDOW_NONE = 0,
    WINDOW_PAGE_JUMP = 1,
    WINDOW_KNOB = 2,
    WINDOW_KEYBOARD = 3,
    WINDOW_MESSAGE = 4,
    WINDOW_BANK = 5,
    WINDOW_PULLDOWN = 6,
    WINDOW_PROGRESS = 7,
    WINDOW_SELECT = 8,
    WINDOW_PATH = 9,
    WINDOW_HEX = 10,
    WINDOW_PAGE_GET = 11,
    WINDOW_PAGE_INITIAL = 12,
    WINDOW_KNOB_TRIM = 13, // a knob window whose Trim key adds to the value
};

// What a path select is about, and the choice that it sends; each step of the curves offers one way
// less.
enum : int {
    PATHSEL_XPT = 0,
    PATHSEL_HUE = 1,
    PATHSEL_CURVE0 = 2, // all
    PATHSEL_CURVE1,     // no spline
    PATHSEL_CURVE2,     // no S
    PATHSEL_CURVE3,     // off and step
};
enum : int { PATH_XPT_HOLD, PATH_XPT_CHANGE };
enum : int { PATH_HUE_SHORT, PATH_HUE_LONG, PATH_HUE_CW, PATH_HUE_CCW };
enum : int { PATH_CURVE_OFF, PATH_CURVE_LINEAR, PATH_CURVE_S, PATH_CURVE_SPLINE, PATH_CURVE_STEP };

// What a window needs besides its caption; each type reads its own fields and ignores the rest.
// Texts are copied, but captions of cells live as long as the window.
struct WindowArgs {
    int x = -1; // top left, moved onto the screen; -1: the type's own place
    int y = -1;
    const char* value = "";    // number windows: shown until the first key; keyboard: to be edited
    const char* min_text = ""; // knob, hex: limits, as text; both empty: none
    const char* max_text = "";
    double current = NAN;     // knob: the number behind value, which Enter alone leaves; NAN none
    bool is_timecode = false; // knob
    int input_max = 32;       // keyboard: characters, at most 63
    // pull-down, select
    int columns = 1;
    int rows = 1;
    const char* const* captions = nullptr; // columns * rows texts; null or "" leaves a cell out
    int selected = -1;                     // also path select: the choice that stands
    int path_type = PATHSEL_XPT;           // path select
    // message, progress
    const char* message = "";
    bool is_yes_no = false;
    bool no_button = false; // message: code closes it
    // How the answer comes back, once the window has gone. Message: ok_var; progress: ok_var when
    // it was cancelled (without ok there is no key for it); bank, hex, page get, page initial: what
    // was entered, a page as an id. Hex without ok goes to the selected number box.
    int (*ok)(int value) = nullptr;
    int ok_var = 0;
    int (*ok_text)(const char* text) = nullptr; // keyboard
};

// Open a window over the page and its panes, closing one that is open as by cancel. 0; -1 with a
// log line for an unknown type, and for a knob window while a pane stands.
int CreateWindow(int type, const char* caption, const WindowArgs& args = {});
// The open knob window moves on to another box, without restoring the screen, and becomes the type
// that suits it: a time code has no Trim key. -1 when none is open.
int ChangeWindow(const char* caption, const WindowArgs& args);
int CloseWindow(); // as by cancel. -1 when there is none
int GetWindow();   // the open window's type, 0 none
// For panes: what lies beneath the window has been painted. Paint it again, on a ground of its own
// when the last pane has gone. Nothing without a window.
void Window_RedrawAll();
// Close at the next pass, as one of the window's own keys does. Ten keys of all kinds: 0 cancel, 2
// enter. Keyboard, message, progress: 0 the answer, 1 cancel. Pull-down, select, path: 0 cancel,
// n the choice n - 1.
void Window_ReserveQuit(int var);
int WindowProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // non-zero consumes
// 1 for a name that some file systems reserve ("CON", "lpt1"), otherwise 0.
int InvalidFileNameCheck(const char* name);
// At once, also from within a long job; without such a window nothing.
void MBox_RedrawMessage(const char* message); // message and progress
void ProgBox_RedrawProgress(int percent);

// The named pull-downs of tab buttons.
struct PULLDOWN {
    const char* name = nullptr; // the button's cmd[0] path
    const char* cmd = nullptr;  // where pc_pulldown puts the choice
    int columns = 1;
    int rows = 1;
    const char* captions[32] = {};
};
const PULLDOWN* PullDown_Find(const char* name); // null when there is none of that name

// Page code for a page whose tabs have no code of their own: puts the caption that was chosen.
struct PC_TBL;
extern const PC_TBL pc_pulldown;
