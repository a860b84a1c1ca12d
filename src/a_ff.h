// a_ff: the file folder, the browser of the clip store.
// A page has one area or two. Each shows the folder of the store where it stands, as a grid of
// thumbnails that follows the catalogue, folders first: the way back above it, a scroll bar beside
// it, the keys "Find", "Select" and "ALL" where the page wants them. A touch selects; a second one
// on a selected folder opens it. While "Select" is on a touch checks instead. What is done with the
// selected or checked elements is the page code's.
#pragma once
#include "fmctrl3.h"
#include "types.h"

enum : int { // PARTS_FILE_AREA::exist_place, which clips an area has: bits of ELEMENT.exist
    ELEMENT_PLACE_NONE = 0, // all
    ELEMENT_PLACE_STORAGE = 1,
    ELEMENT_PLACE_MEMORY = 2,
};
enum : int { SELECT_MODE_OFF = 0, SELECT_MODE_SELECT = 1, SELECT_MODE_ALL = 2 };
constexpr int FF_AREAS = 2;

struct POSITION {
    int x = 0;
    int y = 0;
};
struct FF_NAME_STATUS { // the whole name of what is selected, in one line
    int enable = 0;
    int type = 0; // 1: also frames and time
    POSITION pos;
};
struct FF_FIND_BUTTON {
    int enable = 0;
    POSITION pos;
};
struct FF_SELECT_BUTTON {
    int enable = 0;
    POSITION pos_select;
    POSITION pos_all;
};
struct PARTS_FILE_AREA {
    int enable = 0;
    int exist_place = ELEMENT_PLACE_NONE;
    int pair_mode = 0;     // 1: pairs only
    int loaded_mark = 0;   // 1: what is in memory is marked
    int selected_mark = 0; // 1: what is selected has a frame
    int h_num = 0;         // columns
    int v_num = 0;         // rows of FF_CELL_H
    POSITION pos;          // of the grid; the way back is FF_PATH_H above it
    int h_gap = 132;       // from column to column, at least FF_CELL_MIN
    FF_NAME_STATUS name_status;
    FF_FIND_BUTTON find_button;
    FF_SELECT_BUTTON select_button;
};
struct FF_TBL {
    PARTS_FILE_AREA area[FF_AREAS];
};
constexpr int FF_CELL_MIN = 120; // a thumbnail with its frame
constexpr int FF_CELL_H = 104;
constexpr int FF_PATH_H = 36;
// "Find" is a key of the usual size, "Select" and "ALL" are small ones.
constexpr int FF_FIND_W = 85;
constexpr int FF_FIND_H = 66;
constexpr int FF_KEY_W = 62;
constexpr int FF_KEY_H = 40;

// What the pages of the clip store are told of a folder or clip.
enum : int { OBJECT_TYPE_FOLDER = 0, OBJECT_TYPE_FILE = 1, OBJECT_TYPE_ALL = 2 };
enum : int { OBJECT_PAIR_SINGLE = 0, OBJECT_PAIR_PAIR = 1 };
enum : int { OBJECT_MODE_VIDEO = 0, OBJECT_MODE_KEY = 1 };
enum : int {
    OBJECT_STATUS_NONE = 0,
    OBJECT_STATUS_SSD = 1,
    OBJECT_STATUS_MEMOY = 2,
    OBJECT_STATUS_SSDMEMOY = 3,
};
struct FF_OBJECT {
    int type = OBJECT_TYPE_FOLDER;
    int pair = OBJECT_PAIR_SINGLE;
    int mode = OBJECT_MODE_VIDEO;
    int status = OBJECT_STATUS_NONE;
    int frame = 0;
    int format = 0;
    char create_time[32] = "";
    char name[33] = "";
};

// --- Opening and closing a page ---

// Area n has the scroll bar n. Each stands where this page was left; what was selected is selected
// again when it is still there. A null table empties the object and returns 1.
int FF_Create(const FF_TBL* table, uint32_t var);
int FF_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
// As KP_ConvPosForWheel.
int FF_ConvPosForWheel(int* x, int* y, int button);

// --- For page code: index is the number of an area, from 0 ---
// What changes is told with that number: LMSG_FFCRNTCHANGE another folder, LMSG_FFSELCHANGE another
// selection, LMSG_FFCHKCHNAGE a check, LMSG_FFLISTCHANGE (and the count) an element came, or went
// with its check.

const char* FF_GetCurrentPath(int index); // "/root/NEWS"; "" for an area that the page has not
int FF_GetNBMax(int index);               // rows that the grid can be moved by, for a knob
int FF_GetNBVar(int index);               // the first row shown
int FF_SetScrollBarPosition(int index, int row); // cut to the range. -1 unknown area
int FF_MoveFileArea(int index, int x, int y);    // the grid with its way back. -1 unknown area
// "/", an absolute path, "..", "../..", "../../.." or the name of a folder that is shown. 0 or -1.
int FF_ChangeDirectory(int index, const char* directory);

// How many elements a folder has of an OBJECT_TYPE_, only those in an ELEMENT_PLACE_ (NONE: all)
// and pairs when pair is 1; recursive: with all folders below. -1 when there is no such folder.
int FF_GetChildObjectNum(const char* path, int type, int place, int pair, bool recursive);
// The same into list, at most max; returns how many were written.
int FF_GetChildObjectList(const char* path, int type, int place, int pair, bool recursive,
                          FF_OBJECT* list, int max);
int FF_GetCheckedObjectNum(int index);
int FF_GetCheckedClipNum(int index);                              // without the folders
int FF_GetCheckedObjectList(int index, FF_OBJECT* list, int max); // returns how many were written
int FF_GetSelectedObject(int index, FF_OBJECT* object);           // 0; -1 for none
// The element of that path ("NAME" in the area's folder, or "/root/NEWS/NAME"). 0; -1 for none.
int FF_GetFoundObject(int index, const char* path, int type, FF_OBJECT* object);
void FF_ClearCheckedObjectList(int index);
int FF_SetSelectMode(int index, int mode); // SELECT_MODE_; off takes all checks back. -1 unknown

// Search the whole store for a text in the names, from behind the last one found, round its ends.
// Shows the folder of what is found and selects it there. 0; -1 for none or an empty text.
int FF_Find(int index, const char* text, SEARCH_DIR dir);
