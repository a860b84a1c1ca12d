// window: the modal windows: keyboard, ten keys, page jump, pull-downs and selections. Only one exists at a time.
// While it is up all input is its own and the page beneath gets nothing but repaints; a pane that opens closes it.
#pragma once
#include "types.h"

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

enum : int { PATHSEL_XPT = 0, PATHSEL_HUE = 1, PATHSEL_CURVE0 = 2, PATHSEL_CURVE1, PATHSEL_CURVE2, PATHSEL_CURVE3 };

// What a window needs besides its caption; each type reads its own fields and ignores the rest.
struct WindowArgs {
    int x = -1; // top left; -1: the type's own place
    int y = -1;
    // knob, hex
    const char* value = "";    // shown until the first key
    const char* min_text = ""; // limits, as text
    const char* max_text = "";
    bool is_timecode = false;
    // keyboard
    int input_max = 32; // characters
    // pull-down, select
    int columns = 1;
    int rows = 1;
    const char* const* captions = nullptr; // columns * rows texts; null or "" leaves a cell out
    int selected = -1;
    // path select
    int path_type = PATHSEL_XPT;
    // message, progress
    const char* message = "";
    bool is_yes_no = false;
    // how the answer comes back
    int (*ok)(int value) = nullptr;             // message (ok_var), bank, page get, page initial
    int ok_var = 0;
    int (*ok_text)(const char* text) = nullptr; // keyboard
};

// Open a window. 0, or -1 with a log line for an unknown type.
int CreateWindow(int type, const char* caption, const WindowArgs& args = {});
// The open knob window moves on to another box, without restoring the screen. -1 when none is open.
int ChangeWindow(const char* caption, const char* value, const char* min_text, const char* max_text);
int CloseWindow(); // as by cancel. -1 when there is none
int GetWindow();   // the open window's type, 0 none
// Close at the next pass with this quit argument (0 cancel, 2 enter).
void Window_ReserveQuit(int var);
int WindowProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // non-zero consumes
// 1 for a name that some file systems reserve ("CON", "lpt1"), otherwise 0.
int InvalidFileNameCheck(const char* name);
void MBox_RedrawMessage(const char* message);
void ProgBox_RedrawProgress(int percent);

// The named pull-downs of tab buttons.
struct PULLDOWN {
    const char* name = nullptr; // the button's cmd[0] path
    int columns = 1;
    int rows = 1;
    const char* captions[32] = {};
};
const PULLDOWN* PullDown_Find(const char* name); // null when there is none of that name
