// a_fl: the file list, a browser with two sides for the pages that copy clips.
// Each side shows a folder of the clip store, of the local drive or of the memory stick: its
// folders and below them its clips. A drive's folder is read through the work engine, the first
// bytes of each clip from the file itself; each file becomes an element as the clip store has them,
// and the frames of a clip one element together. The sides stand in the page's lists 1 and 2 when
// it has them: column 0 the icon, 1 the name below the folder's path, 2 frames, 3 pair, 4 time.
// What is done with an element, and which key leads where, is the page code's.
#pragma once
#include "a_ff.h"
#include "fmctrl3.h"
#include "types.h"

enum : int { // what a side shows
    FL_DIRDATA_DEV_NON = 0,
    FL_DIRDATA_STORAGE_ROOT = 1,
    FL_DIRDATA_LOCAL_DRIVE = 2,
    FL_DIRDATA_REMOVABLE_DRIVE = 3,
};
enum : int { // the object's lists; the last two hold what a search found
    FL_L_LIST = 0,
    FL_R_LIST = 1,
    FL_L_FIND_LIST = 2,
    FL_R_FIND_LIST = 3,
    FL_LISTS = 4,
};
constexpr int FL_SIDES = 2;
constexpr int FL_PATH_SIZE = 102;

struct FL_AREA {
    int device = FL_DIRDATA_DEV_NON;
    char current_path[FL_PATH_SIZE] = "/";
};
struct FL_TBL {
    FL_AREA area[FL_SIDES];
};

// --- Opening and closing a page ---

// Show both sides as they were left; a side that was left at the store where this page has a drive,
// or the other way round, as the table says. A null table empties the object and returns 1.
int FL_Create(const FL_TBL* table, uint32_t var);
int FL_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
void FL_Init_File(); // forget where the sides were left

// --- For page code: id is FL_L_LIST or FL_R_LIST ---
// Where a side stands is told as LMSG_FLCURDIRCHANGE (id, 0, and 0, or 4 when that folder is not
// there), what it holds as LMSG_FLLISTCHANGE (id, a count, and 1 when its folders have been read, 2
// its clips, 3 when an element came or went, 4 when the list was emptied).

// Show another device, from its top. -1 for an unknown one.
int FL_list_init(int id, int dev);
void FL_list_all_init(); // read both sides anew where they are
void FL_list_free_all(); // empty all lists; nothing is read
// "/" the top, an absolute path, "..", or the name of a folder that is shown. 0; -1 when there is
// no such folder, or none above, and the side stays.
int FL_ChangeDirectory(int id, const char* directory);
const char* FL_GetCurrentPath(int id); // "/NEWS"; "" for an unknown id
int FL_GetDevice(int id);              // FL_DIRDATA_

// Search for a text in the names of a side, from behind the last one found, dir 1 forward or -1
// backward, once around. Its place in the list, which is also its row on the page; -1 when none has
// it or the text is empty.
int FL_Find(int id, const char* text, int dir);
// The element with this full path ("/NEWS/OPENING") and OBJECT_TYPE_ in any of the four lists. 0 or
// -1.
int FL_GetFoundObject(int index, const char* path, int type, FF_OBJECT* object);

// A folder of a side; it must be the one that the side shows.
struct FM_FILEPATH {
    int storage = FL_L_LIST; // which side
    int devType = FL_DIRDATA_DEV_NON;
    char dirPath[FL_PATH_SIZE] = "";
    int yobi = 0;
};
struct FL_DIRFILE_NAMES {
    int type = OBJECT_TYPE_FOLDER;
    int index = 0;
    int pair = 0;
    int duration = 0;
    char DirName[ELEMENT_FOLDER_SIZE] = ""; // of a folder
    char FileName[ELEMENT_NAME_SIZE] = "";  // of a clip
};
// The element at a place of the folder. 0; -1 with a log line for a folder that is not shown.
int FL_GetDirectoryName(const FM_FILEPATH* where, int index, FL_DIRFILE_NAMES* names);
int FL_GetDirectoryAndFileCount(const FM_FILEPATH* where, int* folders, int* files);
// Frames of the clip with this full path on a side that shows the device; -1 for none.
int FL_GutClipFrameCount(int activeStorage, int device, const char* path);
// 1 when the clip with this full path is a folder of frames on the side's drive, not one file.
int FL_IsClipFolder(int id, const char* path);
