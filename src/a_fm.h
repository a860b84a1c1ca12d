// a_fm: the outputs of the frame memory.
// It follows the twenty outputs and shows the two of one pair: what each of them has, with its
// thumbnail, and the keys that choose the output, the pair and the ancillary data. Everybody else
// asks here what an output does and which one is selected. It orders no recall and no playback:
// that is the page code's. Outputs, pairs and processors count from 0; only their names count
// from 1.
#pragma once
#include "a_ff.h"
#include "types.h"

struct SDL_Surface;

constexpr int FM_OUTPUTS = 20;
constexpr int FM_PAIRS = FM_OUTPUTS / 2;
constexpr int FM_PROCESSORS = 2;
constexpr char FM_TREE[] = "Frame Mem 2@Clip/Still@"; // what all its paths begin with

enum : int {               // what an output does
    FMOUT_STATUS_NONE = 0, // nothing has been heard of it
    FMOUT_STATUS_BLACK = 1,
    FMOUT_STATUS_THROUGH = 2,
    FMOUT_STATUS_FREEZE_RECALL = 3, // a still or clip stands
    FMOUT_STATUS_REC = 4,
    FMOUT_STATUS_PLAY = 5,
};

struct FM_FMOUT_BUTTON { // the box of the first output of the pair; the second one is below it
    int enable = 0;
    POSITION pos;
};
struct FM_OUTSELECT_BUTTON {
    int enable = 0;
    POSITION pos;
};
struct FM_PAIR_BUTTON {
    int enable = 0;
    POSITION pos;
    int disable = 0; // seen, not pressed
};
struct FM_ANCILLARY_BUTTON {
    int enable = 0;
    POSITION pos;
};
struct FM_NAME_STATUS { // name and status below the thumbnails
    int enable = 0;
};
struct FM_WAKU { // the frame of the selected output
    int enable = 0;
};
struct FM_TBL {
    int enable = 0;
    FM_FMOUT_BUTTON fmout_button;
    FM_OUTSELECT_BUTTON outselect_button;
    FM_PAIR_BUTTON pair_button;
    FM_ANCILLARY_BUTTON ancillary_button;
    FM_NAME_STATUS name_status;
    FM_WAKU waku;
};
constexpr int FM_BOX_W = 132;
constexpr int FM_BOX_H = 148;

// What is told of an output.
struct FM_OBJECT {
    int pair = 0;                      // the clip is a pair
    int frame = 0;                     // frames that it has
    int format = 0;                    // of ELEMENT
    char name[ELEMENT_PATH_SIZE] = ""; // "/root/NEWS/OPENING"; "" when nothing is recalled
    int fmout_status = FMOUT_STATUS_NONE;
    SDL_Surface* thumbnail_small = nullptr; // 64 x 36, of a clip; both belong to this module and
    SDL_Surface* thumbnail_full = nullptr;  // live until the next message. Null: there is none
};
// Of a playback, as the server tells it.
struct FM_PLAY {
    int is_running = 0;
    int frame = 0;
    int start = 0; // first and last frame that play
    int stop = 0;
};
// Of a processor that records.
struct FM_RECORD {
    int is_running = 0;
    int frame = 0;
    int length = 0;  // frames, 0 unknown
    int output = -1; // -1 when it is not told
};

// --- Opening and closing a page ---

// Subscribe all outputs and show the pair that is selected. A null table empties the object, ends
// the subscriptions and returns 1; what was heard last is kept.
int FM_Create(const FM_TBL* table, uint32_t reserved);
int FM_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);

// --- Names; "" for a number that is none. In static buffers, overwritten by the next call ---
const char* FM_GetFMOutStr(int fmout_num);    // "FM1"
const char* FM_GetFMNumberStr(int fmout_num); // "1"
const char* FM_GetFMOutPairStr(int pair_num); // "FM1&2"
const char* FM_GetFMProcStr(int proc_num);    // "PROC1"

// --- For page code. What changes of the selected output is told: LMSG_FMCLIPCHANGE another output
// or another clip in it, LMSG_FMCLIPPLAY playback or recording begins or ends, LMSG_FMFRAMECHANGE
// (and the frame); LMSG_FMPAIRCHANGE any pair ---
int FM_GetSelect();               // the output that is worked on; of a pair the even one
int FM_GetSelectEven();           // the first one of its pair
int FM_IsPair();                  // 1: the selected output works together with its neighbour
int FM_GetPairMode(int pair_num); // the same of a pair; 0 for a number that is none
// 0; -1 for a number that is none.
int FM_GetRecalledObject(int fmout_num, FM_OBJECT* object);
const FM_PLAY* FM_GetPlay(int fmout_num);    // null for a number that is none
const FM_RECORD* FM_GetRecord(int proc_num); // the same
// The first output that shows this element, or for a folder one in it, playing or recording where
// that is asked for; -1 for none. full_name as of ELEMENT.
int FM_FindUser(const char* full_name, bool busy_only);
// The next one behind after.
int FM_FindNextUser(const char* full_name, bool busy_only, int after);
