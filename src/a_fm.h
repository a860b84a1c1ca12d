// a_fm: the frame-memory object.
#pragma once
#include "types.h"

struct FM_TBL;

// A null table empties the object and returns 1.
int FM_Create(const FM_TBL* table, uint32_t var);
int FM_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
