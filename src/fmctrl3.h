// fmctrl3: the catalogue of the clip store, fed by the status hub.
// The clip store is a file system on the switcher: folders, at most four deep, and clips, which are
// known by their paths. This module says what an element is and reads the hub's rows; the tree of
// all elements is not kept yet, so nothing is told of changes. Registers of the frame memory are
// another thing (fmctrl).
#pragma once
#include "types.h"
#include <cstddef>

// --- Elements ---

enum : int { // of ELEMENT.type
    ELEMENT_TYPE_NONE = 0,
    ELEMENT_TYPE_FOLDER = 1,
    ELEMENT_TYPE_FILE = 2,
    ELEMENT_TYPE_ALL = 3, // of searches
};
constexpr int ELEMENT_DEPTH = 4;        // folders above an element, the root aside
constexpr int ELEMENT_FOLDER_SIZE = 17; // a folder's name with its terminator
constexpr int ELEMENT_NAME_SIZE = 33;
constexpr int ELEMENT_PATH_SIZE = 102;
constexpr char ELEMENT_ROOT[] = "root";

// One folder or clip.
struct ELEMENT {
    int type = ELEMENT_TYPE_NONE;
    char path[ELEMENT_DEPTH][ELEMENT_FOLDER_SIZE] = {}; // the folders above, without the root
    char name[ELEMENT_NAME_SIZE] = "";
    char full_path[ELEMENT_PATH_SIZE] = ""; // "/root/NEWS"
    char full_name[ELEMENT_PATH_SIZE] = ""; // "/root/NEWS/OPENING"
    int layer = 0;                          // folders above, the root aside
    int exist = 0;                          // 1: on storage
    int duration = 0;                       // frames
    int is_pair = 0;
    char create_time[32] = ""; // "2026 Nov.25 09:20"
    int format4k = 0;
    int format = 0;
    int thumbnail = 0; // 1: the switcher has thumbnails of it
    int label = 0;
};

// Where a view of the tree stands.
struct CURRENT_INFO {
    char path[ELEMENT_PATH_SIZE] = ""; // full_name of the folder that is shown
};

enum : int { // ax of LMSG_FMCTRL3CHANGE, whose bx is the element
    FMCTRL_MSG_NONE = 0,
    FMCTRL_MSG_ELEMENT_INSERT = 1,
    FMCTRL_MSG_ELEMENT_NOTIFY = 2,
    FMCTRL_MSG_ELEMENT_DELETE = 3,
    FMCTRL_MSG_THUMBNAIL_RECV = 4,
    FMCTRL_MSG_THUMBNAIL_CHANGE = 5,
    FMCTRL_MSG_TALBE_CLEAR = 6,
};

// --- Rows (fmctrl3_row.cpp) ---

// Read "root/<folders>/<name>:<values>". A clip has seven values (frames, pair, 4K, format, time,
// on storage, thumbnail), a folder one. 0; -1 for anything else, also for a name that does not fit,
// and the element is as it was.
int FMCtrl3_ReadRow(const char* row, int type, ELEMENT* element);
// Copy a path without an ".SFH" at its end. n is the size of s1.
void FMCtrl3_CopyPath(char* s1, const char* s2, int n);
// "2026-11-25 09:20:31" as people read it, "2026 Nov.25 09:20"; empty when it is no such time.
void convert_create_time_format(const char* text, char* dst, size_t size);

// --- For the bus and the main loop ---
int FMCtrl3_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // returns 0
void FMCtrl3_Init();
void FMCtrl3_Clear(int what); // 0 all, 1 folders, 2 files
void FMCtrl3_Quit();
int clipstore_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
