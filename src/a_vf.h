// a_vf: the tabs down the left edge: the groups of a bank, its keys first. A press asks for the
// tab's page; with default recall armed it recalls the group's defaults instead. The tab of a key
// says whether the key is on the main or the sub side of its bank, which me_config knows.
#pragma once
#include "types.h"

struct VF_TBL {
    int id = 0; // 1..7 from the top; below 1 ends the table
    const char* caption = "";
    uint32_t page = 0;
    const char* statcmd = nullptr; // "path#value"
};
constexpr VF_TBL VF_END = {.id = -1};
constexpr int VF_MAX = 15; // entries of one table; those above slot 7 have no place on the screen
constexpr int VF_SLOTS = 7;

// selected: the id of the tab that is shown as chosen. Entries past VF_MAX are left out with a log
// line. A null table empties the object and returns 1.
int VF_Create(const VF_TBL* table, uint32_t selected);
int VF_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);

int VF_Follows(const char* path); // 1 while a tab is subscribed to it

// --- For page code; -1 for an id that no tab has ---
int VF_SetDisplay(int id, int on); // off: the slot is blank and takes no press
int VF_GetStatus(int id);          // 1 while the last tally had the row's value
