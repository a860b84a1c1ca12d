// register: the mirror of the registers that the server stores. Of each register it keeps the
// headline: whether there is data, whether it is locked, its name and the line that said so. The
// registers themselves stay on the server; recall, store and the like are commands of the pages,
// and what they changed comes back as a list line. The numbers of the regions are in
// snapshot_region.
#pragma once
#include "types.h"

struct REGISTER {
    int exist = 0; // it holds data
    int lock = 0;
    char name[12] = "";
    char* tally = nullptr; // the whole value of the last line; null before the first one
};

struct CLIP_EVENT_DT {
    int event = 0; // 1 for "ON", so are the next two
    int autoplay = 0;
    int loop = 0;
    char name[32] = "";
    int start_tc = 0; // frames, as the server counts
    int stop_tc = 0;
};

// The kinds, as ax of LMSG_REGISTER. bx is the row and cx the index; a clip event has its user
// region, its frame-memory region and in dx its index.
enum : int {
    REGISTER_EFFECT,
    REGISTER_EFF100,
    REGISTER_EFF200,
    REGISTER_EFF300,
    REGISTER_SNAPSHOT,
    REGISTER_WIPESS,
    REGISTER_DMESS,
    REGISTER_KEYSS,
    REGISTER_SHOTBOX,
    REGISTER_MACRO,
    REGISTER_CLIP_EVENT,
    REGISTER_MENU_MACRO, // of this unit, not mirrored: see menu_macro
};

constexpr int REGISTERS = 99; // of a row, where nothing else is said
constexpr int REGISTERS_EFFECT = 250;
constexpr int REGISTERS_WIPESS = 10; // and DMESS
constexpr int REGISTERS_KEYSS = 4;
constexpr int REGISTERS_MACRO = 250;
constexpr int REGISTER_DME_GROUPS = 4;

// --- For the bus ---
// Digests the list lines; a line that is malformed or out of bounds changes nothing. Returns 0.
int RegisterProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);

// --- For the initial read ---
void Register_InitCommand();     // subscribe the lists of the main sides
void Register_InitCommand_MP2(); // and those of the sub sides, once a bank has one
void Register_DeathCommand();    // end both

// --- For info: an effects unit has come back ---
// Forget its registers and ask for its lists again. Nothing is told: what is still there follows
// as lines.
void Register_RefreshDME();

// --- For pages and windows that show registers ---
// Non-zero: from now on a line that changes a register is told with LMSG_REGISTER. 0 when closed.
void Register_StatusReport(int x);

// The numbers that a user sees (1..99, 101..199, 201..299, 301..399) as one run of indices 0..395,
// and back; -1 for a number that no register has.
int Reg2Index(int reg);
int Index2Reg(int index);
// Group of an effects channel, SS_REGION_DME1 to SS_REGION_DME8: the row of Eff100 to Eff300.
int Register_DMEGroup(int region);

// Row and index from 0 are the caller's to check. A text lives until the next message.
int Register_Exist_Effect(int region, int no);
int Register_Exist_Eff100(int region, int no);
int Register_Exist_Eff200(int region, int no);
int Register_Exist_Eff300(int region, int no);
int Register_Exist_Snapshot(int region, int no);
int Register_Exist_WipeSS(int region, int no);
int Register_Exist_DMESS(int region, int no);
int Register_Exist_KeySS(int region, int no);
int Register_Exist_Shotbox(int region, int no);
int Register_Exist_Macro(int region, int no);
int Register_Lock_Effect(int region, int no);
int Register_Lock_Eff100(int region, int no);
int Register_Lock_Eff200(int region, int no);
int Register_Lock_Eff300(int region, int no);
int Register_Lock_Snapshot(int region, int no);
int Register_Lock_WipeSS(int region, int no);
int Register_Lock_DMESS(int region, int no);
int Register_Lock_KeySS(int region, int no);
int Register_Lock_Shotbox(int region, int no);
int Register_Lock_Macro(int region, int no);
const char* Register_Name_Effect(int region, int no);
const char* Register_Name_Eff100(int region, int no);
const char* Register_Name_Eff200(int region, int no);
const char* Register_Name_Eff300(int region, int no);
const char* Register_Name_Snapshot(int region, int no);
const char* Register_Name_WipeSS(int region, int no);
const char* Register_Name_DMESS(int region, int no);
const char* Register_Name_KeySS(int region, int no);
const char* Register_Name_Shotbox(int region, int no);
const char* Register_Name_Macro(int region, int no);
// Null before the first line; empty after Register_RefreshDME.
const char* Register_Tally_Effect(int region, int no);
const char* Register_Tally_Eff100(int region, int no);
const char* Register_Tally_Eff200(int region, int no);
const char* Register_Tally_Eff300(int region, int no);
const char* Register_Tally_Snapshot(int region, int no);
const char* Register_Tally_WipeSS(int region, int no);
const char* Register_Tally_DMESS(int region, int no);
const char* Register_Tally_KeySS(int region, int no);
const char* Register_Tally_Shotbox(int region, int no);
const char* Register_Tally_Macro(int region, int no);

// Which regions hold register no, one bit each; non-zero when any does. Bytes of the first: main
// sides and two subs, the other subs, users, channels, Dev1-8, Dev9-12, P-Bus, GPI, MACRO.
constexpr int REGION_MAP_BYTES = 9;
int Register_Exist_Effect_AllRegion(int no, unsigned char* map);    // writes 9 bytes
int Register_Exist_Effect_EX_AllRegion(int no, unsigned char* map); // 8; devices and P-Bus only
// 7 bytes; in the first a bit for each group of channels that is in use.
int Register_Exist_Eff100_AllRegion(int no, unsigned char* map);
int Register_Exist_Eff200_AllRegion(int no, unsigned char* map);
int Register_Exist_Eff300_AllRegion(int no, unsigned char* map);

// --- Clip events: user region, frame-memory region, index, all from 0 ---
int ClipEvent_Tally_Event(int region, int sub_region, int no);
int ClipEvent_Tally_AutoPlay(int region, int sub_region, int no);
int ClipEvent_Tally_Loop(int region, int sub_region, int no);
const char* ClipEvent_Tally_Name(int region, int sub_region, int no);
// Frames as they run: half of the server's count where isClipSkip.
int ClipEvent_Tally_Start_TC(int region, int sub_region, int no);
int ClipEvent_Tally_Stop_TC(int region, int sub_region, int no);
// 1 in a progressive HD format of 50 frames a second or more: clips take every second frame.
int isClipSkip();

// --- For the end of the process and for tests ---
void Register_Free(); // the mirror as before the first line
