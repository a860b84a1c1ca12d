// a_pc: the page code object. It only forwards, when set, to the page's own two functions.
#pragma once
#include "types.h"

struct PC_TBL {
    int (*proc_func)(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx) = nullptr;
    int (*create_func)(int on, uint32_t var) = nullptr; // on 1: the page opens, 0: it is left
};

// Null: the page is left; create_func(0, var) is called, both functions are cleared, returns 1.
int PC_Create(const PC_TBL* table, uint32_t var);
int PC_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
