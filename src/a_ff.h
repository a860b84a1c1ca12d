// a_ff: the file folder.
#pragma once
#include "types.h"

struct FF_TBL;

// A null table empties the object and returns 1.
int FF_Create(const FF_TBL* table, uint32_t var);
int FF_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
