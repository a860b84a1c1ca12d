// a_hf: the tabs along the bottom edge.
#pragma once
#include "types.h"

constexpr int HF_STATUS = 32; // paths that light the bar of one tab
struct HF_TBL {
    int id = 0; // 1..6 from the left; below 1 ends the table
    const char* caption = "";
    uint32_t page = 0;
    const char* statcmd[HF_STATUS] = {}; // "path#value": the tab is active while one has its value
};
constexpr HF_TBL HF_END = {.id = -1};

// selected: the id of the tab that is shown as chosen. A null table empties the object and returns 1.
int HF_Create(const HF_TBL* table, uint32_t selected);
int HF_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
