// a_vf: the tabs down the left edge; they change the second-level tab of the page.
#pragma once
#include "types.h"

struct VF_TBL {
    int id = 0; // 1..7 from the top; below 1 ends the table
    const char* caption = "";
    uint32_t page = 0;
    const char* statcmd = nullptr;
};
constexpr VF_TBL VF_END = {.id = -1};
constexpr int VF_MAX = 15; // entries of one table

// selected: the id of the tab that is shown as chosen. A null table empties the object and returns 1.
int VF_Create(const VF_TBL* table, uint32_t selected);
int VF_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
