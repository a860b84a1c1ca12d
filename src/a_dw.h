// a_dw: the list of effects-unit wipes: one group of patterns below the other, with a scroll bar.
// The window moves by lines of six cells; which cell is chosen is a matter of the tally, which
// brings it into view, and so is the set of channels that the numbers of all cells stand for.
#pragma once
#include "a_nb.h"
#include "types.h"

constexpr int DW_GROUPS = 18; // of one list

// --- Pattern numbers ---
// 1001 to 1999 take one channel, 2001 to 2999 two, 3001 to 3999 three. The same wipes on the second
// set of channels have 6000 added, from 7001 on; they have no pictures of their own.
constexpr int DW_SECOND_SET = 6000;
constexpr int DW_SetOf(int number)
{
    return number > 7000 ? DW_SECOND_SET : 0;
}
constexpr int DW_BaseNumber(int number)
{
    return number - DW_SetOf(number);
}
// The channels that a pattern takes, 0 for a number that is none.
constexpr int DW_ChannelsOf(int number)
{
    const int base = DW_BaseNumber(number);
    return base > 1000 && base < 4000 && base % 1000 != 0 ? base / 1000 : 0;
}

struct DMEWIPEPTN {
    int num = 0; // pattern number; 0 ends a group
    const NB_TBL* nb = nullptr;
};
struct DMEWIPEGRP {
    int id = 0;
    const char* caption = "";
    const DMEWIPEPTN* ptn = nullptr;
    // Each keyer has patterns of its own here: the numbers are those of Key1 in P/P, and move with
    // key and bank.
    bool is_per_key = false;
};
struct DW_TBL {
    const char* cmd = "";
    int grpid[DW_GROUPS] = {}; // in the order shown; 0 is a group that this list leaves out
};

// Has the scroll bar 0 from here on. knob_row: non-zero when a row of keys stands below the list. A
// null table empties the object and returns 1.
int DW_Create(const DW_TBL* table, uint32_t knob_row);
// Move the window to the first group whose patterns take that many channels; -1 when the list has
// none.
int DW_ShowChannels(int channels);
// The list can be read but takes no press until the page is left: the bank has no such wipe now.
int DW_SetDead(int on);
int DW_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
int DW_Follows(const char* path); // 1 while the list is subscribed to it
// Turn a wheel step at (x, y) into a press on the up or down control under it. Non-zero when x and
// y were rewritten; button is 4 or 5.
int DW_ConvPosForWheel(int* x, int* y, int button);
