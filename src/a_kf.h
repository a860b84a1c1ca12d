// a_kf: the mirror of what every effect region does: which ones are selected, the register that
// each holds, its keyframes, its run cursor; and what shows it: the timeline page and the strip at
// top right. The server's binary frames fill the mirror, nothing else does: a press starts no
// timeline here. Stored registers belong to register, the pages that choose regions to pc_kf.
#pragma once
#include "types.h"

constexpr int KF_REGIONS = 64;
constexpr int KF_KEYFRAMES = 1000; // entry 0 is never used
constexpr int KF_NO_REGION = 255;  // an empty place in a list of regions
constexpr int KF_NO_CODE = 240;    // codes from here on are no region
constexpr int KF_DME_FIRST = 14;   // the effects channels
constexpr int KF_DME_LAST = 21;
constexpr int KF_DME_TO_GLOBAL = 8; // from a channel to its global twin

enum : int { KF_SHOWN = 0, KF_HIDDEN = 1, KF_REMOVED = 2 }; // KF_REGION::display

struct _keyframe {
    int duration = 0; // frames to the next keyframe
    int pause = 0;
};

// Times are frames at SYS_FrameRate.
struct KF_REGION {
    const char* name = "";
    int code = 0;   // on the wire
    int regnum = 0; // the effect register that is loaded
    char regname[9] = "";
    int multi = 0; // its keyframes belong to several registers
    int lock = 0;
    int diss = 0;
    int selected = 0; // for keyframe operation
    int assigned = 0; // some ten-key button of this system has it
    int display = KF_SHOWN;
    int stime = 0; // where it begins on the axis, its delay included
    int dtime = 0; // the delay
    int etime = 0;
    int duration = 0;
    int freekf = 0; // keyframes that its store still takes
    int kfnum = 0;  // as the server counts: may be more than the list holds
    int loopstart = 0;
    int loopend = 0;
    int loopnum = 0; // passes, 0 endless
    int loopon = 0;
    int loopremain = 0;
    int ctime = 0;
    int ckfnum = 0;
    int runstat = 0; // 1 forward, -1 in reverse, 0 stopped
    _keyframe kf[KF_KEYFRAMES];
    int redraw = 0;    // the whole row
    int redraw_tl = 0; // its bar only
};

struct KF_TBL {
    int (*proc_func)(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx) = nullptr;
    int (*create_func)(int on, uint32_t var) = nullptr; // on 1: the page opens, 0: it is left
};
extern const KF_TBL kf_tl; // the timeline, of the one page that has it

// --- Life ---
void KF_Init(); // everything as at start; also by an engineer's key
// Null: create_func(0, var) is called, the row is cleared, returns 1.
int KF_Create(const KF_TBL* table, uint32_t var);
// MSG_BINTALLY: id, data, length; it comes straight from the drain of the binary link, not over the
// bus.
int KF_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
// Ask for the streams of the regions: all but the sub sides, and those where banks have sub sides.
void KF_InitCommand();
void KF_InitCommand_MP2();

// --- For the base area ---
// The strip at top right of a normal page, painted when there is something new. pushed: ms left of
// its pushed look; KF_DRAW_ANEW paints it whatever it shows.
void KF_DrawTopArea(int pushed);
constexpr int KF_DRAW_ANEW = 777;
bool KF_HasTopArea(); // false where the page has something else there

// --- The regions, by index; out of bounds gives what the comment says ---
int KF_IsRegionSelected(int region);             // 0
int KF_IsRegionAssigned(int region);             // 0
int KF_SetRegionAssigned(int region, int v);     // -1
int KF_GetRegionDisplay(int region);             // KF_REMOVED
int KF_SetRegionDisplay(int region, int v);      // -1
const char* KF_GetRegionName(int region);        // null
const KF_REGION* KF_GetRegionStatus(int region); // null
int KF_RegionOfCode(int code);                   // the index, -1
int KF_RefRegionCode();                          // KF_NO_REGION until the server says one
// Row row (from 1) of the ten-key assignment: four regions as "P/P,M/E-1,..." parts of value.
// Regions that some button has are those of this system.
void KF_RegionAssignTally(int row, const char* value);

// --- The order in which regions are listed: places 0 to 63 of region indices ---
int KF_GetRegionPriority(int place); // as listed; KF_NO_REGION
// As the server has it; listed by the next KF_InitPriority. -1; what is no region empties the
// place.
int KF_SetRegionPriority(int place, int region);
// List the regions that are assigned and not removed, and bring what is shown in line with that.
// The order itself loses nothing by it: a region that is assigned later comes to its place.
void KF_InitPriority();
int KF_IsOrderStale();  // the last KF_InitPriority is out of date
int KF_IsAnyAssigned(); // the server has told which regions there are
// Put a region at a place; it leaves its old one and is shown. -1 when either is out of bounds.
int KF_InsertRegionPriority(int place, int region);
void KF_DefaultRegionPriority();
extern const int TlAssign_TBL_List[KF_REGIONS]; // the default order

extern int GL_TimelineDrawInterval; // ms between two repaints of the timeline
