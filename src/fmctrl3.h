// fmctrl3: the catalogue of the clip store, fed by the status hub.
// The clip store is a file system on the switcher: folders, at most four deep, and clips, which are
// known by their paths. This module keeps one list of all elements in the order of the tree, tells
// the frame-memory pages what changes, and fetches thumbnails to the local drive. It orders nothing
// of the hub but its tables: who copies or deletes sends the request himself. Registers of the
// frame memory are another thing (fmctrl).
#pragma once
#include "types.h"
#include <cstddef>

struct SDL_Surface;

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
constexpr int ELEMENT_FRAMES_MAX = 999999; // six digits in a thumbnail's name
constexpr char ELEMENT_ROOT[] = "root";

// One folder or clip.
struct ELEMENT {
    int type = ELEMENT_TYPE_NONE;
    char path[ELEMENT_DEPTH][ELEMENT_FOLDER_SIZE] = {}; // the folders above, without the root
    char name[ELEMENT_NAME_SIZE] = "";
    char full_path[ELEMENT_PATH_SIZE] = ""; // "/root/NEWS"
    char full_name[ELEMENT_PATH_SIZE] = ""; // "/root/NEWS/OPENING"
    int layer = 0;                          // folders above, the root aside
    int exist = 0;                          // where it is, as bits: 1 storage, 2 memory
    int duration = 0;                       // frames, at most ELEMENT_FRAMES_MAX
    int is_pair = 0;
    char create_time[32] = ""; // "2026 Nov.25 09:20"
    int format4k = 0;
    int format = 0;
    int thumbnail = 0; // 1: the switcher has thumbnails of it
    int label = 0;
};

// All elements, in the order of the tree: a folder, what is in it, the next folder; folders before
// files, each by name. A pointer is good until the catalogue changes: keep paths, or look for it
// again at LMSG_FMCTRL3CHANGE.
struct ELEMENT_LIST {
    ELEMENT element;
    ELEMENT_LIST* next = nullptr;
    ELEMENT_LIST* prev = nullptr;
};

// Where a view of the tree stands. A text: the folder may go, and come again.
struct CURRENT_INFO {
    char path[ELEMENT_PATH_SIZE] = ""; // full_name of the folder that is shown
};

enum SEARCH_DIR : int {
    SEARCH_DIR_NEXT = 0,
    SEARCH_DIR_PREV = 1,
};
struct SEARCH_CONFIG {
    const ELEMENT_LIST* start = nullptr; // the search begins beside it; null: the root
    int type = ELEMENT_TYPE_ALL;
    char text[ELEMENT_NAME_SIZE] = ""; // part of the name, in any case; an empty one matches all
    int place = 0;                     // files only: a bit of exist; 0 any
    bool is_pair = false;              // files only: pairs
};

// ax of LMSG_FMCTRL3CHANGE. bx is the ELEMENT, null for a clear; of a delete it is the last look at
// it, out of the list already. cx is a FMCTRL_MSG_COLUMN of a notify, dx the frame of a thumbnail.
enum : int {
    FMCTRL_MSG_NONE = 0,
    FMCTRL_MSG_ELEMENT_INSERT = 1,
    FMCTRL_MSG_ELEMENT_NOTIFY = 2,
    FMCTRL_MSG_ELEMENT_DELETE = 3,
    FMCTRL_MSG_THUMBNAIL_RECV = 4,
    FMCTRL_MSG_THUMBNAIL_CHANGE = 5,
    FMCTRL_MSG_TALBE_CLEAR = 6,
};

enum : int {                    // cx of a notify
    FMCTRL_MSG_COLUMN_NONE = 0, // all of it
    FMCTRL_MSG_COLUMN_FRAMES = 1,
    FMCTRL_MSG_COLUMN_PAIRFILE = 2,
    FMCTRL_MSG_COLUMN_FORMAT4K = 3,
    FMCTRL_MSG_COLUMN_FORMAT = 4,
    FMCTRL_MSG_COLUMN_TIMESTAMP = 5,
    FMCTRL_MSG_COLUMN_STATUS = 6,
    FMCTRL_MSG_COLUMN_THUMBNAIL = 7,
    FMCTRL_MSG_COLUMN_NUM = 8,
};

// --- The tree (fmctrl3_tree.cpp) ---

extern ELEMENT_LIST ElementListTop;     // its next is the root; holds nothing itself
extern ELEMENT_LIST* ElementListBottom; // the last element, the root when there is no other

// The element of a path, in a time that does not grow with the catalogue: "/" the root; with "/" in
// front from the root down, "/NEWS/OPENING" and "/root/NEWS/OPENING" alike; otherwise from the
// folder of current (null: the root). type ELEMENT_TYPE_ALL takes both, a folder first. Null when
// there is none.
ELEMENT_LIST* FMCtrl3_FindPath(const CURRENT_INFO* current, int type, const char* path);
// The next element that fits, round the ends of the list; the start itself comes last. Null when
// none does, then also the start does not fit. Elements whose folder is not known are left out.
ELEMENT_LIST* FMCtrl3_FindName(SEARCH_DIR dir, const SEARCH_CONFIG* config);
// The folder that it lies in; null for the root, and while the folder is not known.
ELEMENT_LIST* FMCtrl3_GetParent(const ELEMENT_LIST* element);
// What lies in the folder itself: the first one for a null after, then the one behind after; null
// at the end. A folder with all that is in it is passed in one step.
ELEMENT_LIST* FMCtrl3_GetChild(const ELEMENT_LIST* folder, const ELEMENT_LIST* after);

void FMCtrl3_InitCurrentInfo(CURRENT_INFO* info); // at the root
// The folder where the view stands; null when it has gone.
ELEMENT_LIST* FMCtrl3_GetCurrent(const CURRENT_INFO* info);
// "/", a path with "/" in front, "..", "../..", "../../..", or the name of a folder in this one, at
// most 16 characters. 0; -1 when there is no such folder, and the view stays where it is.
int FMCtrl3_ChangeDirectory(CURRENT_INFO* info, const char* directory);
void FMCtrl3_PrintElementListAll(); // to the log

// --- Thumbnails (fmctrl3_thumb.cpp) ---

// The frame that stands for a clip.
int FMCtrl3_MidFrame(const ELEMENT& element);
// The thumbnail of a frame, 64 x 36 or 112 x 63, in display format; the caller frees it. Null while
// it is not on the local drive: LMSG_FMCTRL3CHANGE tells when it comes.
SDL_Surface* FMCtrl3_GetThumbnail(const ELEMENT* element, int frame);

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
// The hub's rows; the passing of time. Returns 0.
int FMCtrl3_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
void FMCtrl3_Init();     // the root alone
void FMCtrl3_Finalize(); // all memory is given back
// Forget the elements of a type, an ELEMENT_TYPE_; 0 counts as all. The root stays, and thumbnails
// on the drive do.
void FMCtrl3_Clear(int type);
void FMCtrl3_HubLost(); // nothing is known of the store any more
// Capacity and coming and going of the followed store's tables.
void clipstore_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
