// a_hf: the tabs along the bottom edge: the pages of one group. A tab lights its orange bar while a
// path of its row has the row's value: something behind it is active.
#pragma once
#include "types.h"

constexpr int HF_STATUS = 32; // paths that light the bar of one tab
struct HF_TBL {
    int id = 0; // 1..7 from the left; below 1 ends the table
    const char* caption = "";
    uint32_t page = 0;
    const char* statcmd[HF_STATUS] = {}; // "path#value": the tab is active while one has its value
};
constexpr HF_TBL HF_END = {.id = -1};
constexpr int HF_MAX = 7;          // tabs of one page
constexpr uint32_t HF_LOW = 0x100; // with the selected id: the low form, below a taller work area

// selected: the id of the tab that is shown as chosen. Entries past HF_MAX are left out with a log
// line. A null table empties the object and returns 1.
int HF_Create(const HF_TBL* table, uint32_t selected);
int HF_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);

int HF_Follows(const char* path); // 1 while a tab is subscribed to it

// --- For page code; -1 for an id that no tab has ---
int HF_SetDisplay(int id, int on); // off: the cell is blank and takes no press
