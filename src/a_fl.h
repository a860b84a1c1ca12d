// a_fl: the file list.
#pragma once
#include "types.h"

struct FL_TBL;

// A null table empties the object and returns 1.
int FL_Create(const FL_TBL* table, uint32_t var);
int FL_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
