// a_dw: the list of effects-unit wipes with its scroll bar.
#pragma once
#include "types.h"

struct DW_TBL;

// A null table empties the object and returns 1.
int DW_Create(const DW_TBL* table, uint32_t var);
int DW_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
// Turn a wheel step at (x, y) into a press on the up or down control under it. Non-zero when x and y were rewritten;
// button is 4 or 5.
int DW_ConvPosForWheel(int* x, int* y, int button);
