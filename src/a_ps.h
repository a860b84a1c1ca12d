// a_ps: pattern select: the pictures of wipe patterns of which one is chosen.
#pragma once
#include "types.h"

struct PS_TBL;

// A null table empties the object and returns 1.
int PS_Create(const PS_TBL* table, uint32_t var);
int PS_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
