// fmctrl: the catalogue of the switcher's frame memory.
// The frame memory holds numbered registers of one image each, in a main and an extended store.
// This module mirrors them from tallies, folds them by their names into stills (an "M" and an "S"
// register of one name) and clips (frames, numbered by the last four digits), keeps the folders,
// and fetches a thumbnail of each register, the most useful ones first. It also watches the drop
// folders, whose images go into the frame memory, and the folder of command files for automation.
// It stores nothing in the frame memory itself: a deletion or a new name is known when its tally
// comes. The clip store is another thing (fmctrl3).
#pragma once
#include "types.h"
#include <SDL.h>

// --- Registers ---

// A register is addressed by one number: 0..SYS_FmemRegMax - 1 in the main store, this and more in
// the extended one. On the wire numbers begin with 1.
constexpr int FMEM_EXTENDED = 16384;
constexpr int FMEM_NAME_SIZE = 12; // "M" or "S", 8 characters, the terminator

struct STILL;
struct CLIP;
struct DEVICE;

struct FMEMREG {
    int store = 0; // 1 stored
    char name[FMEM_NAME_SIZE] = "";
    SDL_Surface* thumb = nullptr; // small under SYS_FmemV6, otherwise full
    uint32_t filelabel = 0;       // of the thumbnail's fetch in flight, 0 none
    int thumbwait = 0;            // a fetch is due
    int retry = 0;
    int folder_id = 0;
    int buff_flug = 0; // mark of the priority pass: the register has its class

    // The catalogue's own.
    bool is_doomed = false;  // told to be empty, not yet taken out of everything
    bool is_listed = false;  // stands in the name chain; the name must not change meanwhile
    int chain_next = -1;     // registers of one hash of the name without its prefix,
    int chain_prev = -1;     // by index
    CLIP* clip = nullptr;    // its frames are in there, shown or not
    bool holds_slot = false; // a still has it; another register of the same name may have
};

extern int SYS_FmemRegMax;    // registers of each store
extern FMEMREG* FmemReg;      // SYS_FmemRegMax records, null for 0
extern FMEMREG* FmemReg2;     // the same of the extended store
extern int Extended_Capacity; // 0: there is no extended store
extern int GL_FMRec;          // processors that record, a bit each

// --- Stills and clips: both sorted by name, both over the two stores ---

struct STILL {
    int main_reg_id = -1; // -1: that side is missing
    int sub_reg_id = -1;
    int folder_id = 0;
};

// Every frame of a clip is also a still of its own.
struct STILL_LIST {
    STILL** rec = nullptr;
    int rec_num = 0;
};
extern STILL_LIST StillList;

constexpr int ANCILLARY_UNKNOWN = 255;
struct CLIP {
    int* main_reg_id = nullptr; // by frame number
    int main_num = 0;
    int main_thumb_id = 0; // place of the frame that is shown: the middle, until it is moved
    int* sub_reg_id = nullptr;
    int sub_num = 0;
    int sub_thumb_id = 0;
    int folder_id = 0;
    int ancillary = ANCILLARY_UNKNOWN;

    // The catalogue's own.
    int main_room = 0;
    int sub_room = 0;
    bool is_shown = false; // in ClipList: one side has two frames or more
};

struct CLIP_LIST {
    CLIP** rec = nullptr;
    int rec_num = 0;
};
extern CLIP_LIST ClipList;

// --- Folders ---

constexpr int FOLDER_MAX = 12; // ids 0..11
enum : int { FOLDER_TYPE_SYSTEM = 0, FOLDER_TYPE_USER = 1 };
struct FOLDER {
    char name[9] = ""; // empty: not in use
    int folder_id = 0;
    int type = FOLDER_TYPE_USER;
};

// Row 0 is the default folder; the others by name, the unused last.
struct FOLDER_LIST {
    FOLDER rec[FOLDER_MAX];
    int rec_num = 0; // named folders
};
extern FOLDER_LIST FolderList;

// --- Names ---

// Cut a frame's name, "Mabc0012", into its clip, "abc", and its frame, "0012". 0; -1 and both empty
// for any other name.
int FMCtrl_DivClipName(const char* reg_name, char* clip_name, char* frame_name, int clip_size,
                       int fname_size);
// A register's name as lists and file names show it: prefix and all, ended at the first control
// character, without blanks at its end, what no name may hold replaced.
void fname2dispname(const char* fname, char* dispname, int size);

// --- Questions. Out of range: -1, 0, null or an empty text. A text lives until the next message
// ---

// Registers. A name here has its prefix.
int FMCtrl_IsRegStore(int n);  // main store
int FMCtrl2_IsRegStore(int n); // record n of the extended store
int FMCtrl2_IsRegStoreMulti(int index);
const char* FMCtrl_GetRegName(int n);
const char* FMCtrl2_GetRegName(int n);
const char* FMCtrl2_GetRegNameMulti(int index);
int FMCtrl_GetRegIndex(const char* name);  // in the main store
int FMCtrl2_GetRegIndex(const char* name); // in both; of two the lower number, main before extended
int FMCtrl_ExistRegName(const char* name);
int FMCtrl2_ExistRegName(const char* name);
// The first empty register from start on, in the store that start lies in.
int FMCtrl2_EmptyRegNo(int start);
int FMCtrl_GetRegFolderId(int index);
int FMCtrl2_IsExtendedCapacity(); // 1 with an extended store
// 1 to 999: the next n for which "Mimage%03d" and "Simage%03d" are both free, in one store at
// least. Rises from call to call, 1 after 999; 0 when none is free.
int FMCtrl_GetDefaultImageNum();

// Stills, by their place in the list. A still's name has no prefix.
int FMCtrl_GetStillNum();
const char* FMCtrl_GetStillName(int idx);
int FMCtrl_IsStillPair(int idx);
int FMCtrl_IsStillMain(int idx); // has that side
int FMCtrl_IsStillSub(int idx);
int FMCtrl_GetStillRegId(int idx, int is_sub);
int FMCtrl_GetStillIdx(const char* reg_name);
int FMCtrl_IsStillExtended(int idx); // a register of it is in the extended store
const char* FMCtrl_GetStillFolderName(int idx);
int FMCtrl_GetStillAncillary(int idx); // of the clip that it is a frame of; 0 for any other still
int FMCtrl_IsStillFrame(int idx);      // it is a frame of a clip in the list

// Clips, by their place in the list. A clip's name has neither prefix nor frame.
int FMCtrl_GetClipNum2();
const char* FMCtrl_GetClipName(int idx);
int FMCtrl_IsClipMain(int idx);
int FMCtrl_IsClipSub(int idx);
int FMCtrl_GetClipFrameNum(int idx, int is_sub);
// The register d frames from the one that is shown; -1 past either end.
int FMCtrl_GetClipRegId(int idx, int is_sub, int d);
// Show the frame d further on, at most the first or the last. Returns 0.
int FMCtrl_MoveClipFrame(int idx, int is_sub, int d);
int FMCtrl_GetClipFrameIdx(int idx, int is_sub); // place of the frame that is shown, from 0
int FMCtrl_GetClipMidRegId(int idx, int is_sub); // the frame at half the count, moved or not
int FMCtrl_GetClipMidRegId2(int index);          // the same of the register's clip and side
int FMCtrl_GetClipFirstRegId(int idx, int is_sub);
int FMCtrl_IsExistClip(const char* clip_name);
int FMCtrl_GetClipIdx(const char* reg_name); // of the clip that a register's name belongs to
int FMCtrl_IsClipExtended(int idx);
int FMCtrl_GetClipAncillary(int idx); // ANCILLARY_UNKNOWN until it was told
int FMCtrl_GetClipFolderId(int idx);

// Folders. A row is a place in FolderList.
int FMCtrl_GetFolderNum();
const FOLDER* FMCtrl_GetFolder(int row);
int FMCtrl_GetFolderId(int row);
int FMCtrl_GetIsFolderIdx(int folder_id); // its row
int FMCtrl_ExistFolderName(const char* name);
int FMCtrl_GetFolderStillNum(int folder_id);    // stills that are no frame of a clip
int FMCtrl_GetFolderAllStillNum(int folder_id); // with the frames
int FMCtrl_GetFolderClipNum(int folder_id);
int FMCtrl_GetFolderExtClipNum(int folder_id); // those with frames in the extended store

// Ask for a register of that name, prefix and all, to be put into a folder; without an own switcher
// nothing. The tally tells when it is there.
void FMCtrl_MoveStill(const DEVICE* switcher, const char* name, int folder_id);

// --- Thumbnails ---

enum : int { THUMBSIZE_FULL = 0, THUMBSIZE_SMALL = 1 };
// Null when the register has none. The size that the record does not hold is made for the call, in
// one shared place: use it before you ask again.
SDL_Surface* FMCtrl_GetThumbnail(int n, int size);
SDL_Surface* FMCtrl2_GetThumbnail(int n, int size); // record n of the extended store
SDL_Surface* FMCtrl2_GetThumbnailMulti(int index, int size);
// Forget it, and the fetch of it.
void FMCtrl_DeleteThumbnail(int n);
void FMCtrl2_DeleteThumbnail(int n);
// Forget all and fetch them anew. It takes some passes.
void FMCtrl_RefreshThumbnailAll();
// Fetch what waits, if it may be fetched: for who ends what held the thumbnails back.
void FMCtrl_GetWaitThumbnailAll();

// --- For the bus ---
// Changes are told as LMSG_FMCTRLCHANGE: the register, 0, 1 for the extended store; with 1 as
// second argument a thumbnail came, with 2 the first is a clip whose ancillary flag changed. After
// "Max Register" all has changed. LMSG_FOLDERNAMESENSE: the folders.
int FMCtrlProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // returns 0
// Leave the answer to a command of the automation's folder there, "OK" or "Error", as the file
// name.
void FMCtrl_FtpAnswer(const char* name, int is_good);
void framememory_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
void FMCtrl_InitClipStillList(); // at start-up
void FMCtrl_Quit();              // all as before the first line
