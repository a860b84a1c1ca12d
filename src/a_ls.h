// a_ls: the lists of a page.
#pragma once
#include "types.h"

struct LS_TBL;

// A null table empties the object and returns 1.
int LS_Create(const LS_TBL* table, uint32_t var);
int LS_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
// As DW_ConvPosForWheel.
int LS_ConvPosForWheel(int* x, int* y, int button);
// The text of one cell. -1 when the page has no such list.
int LS_SetData(int id, int row, int col, const char* text);
