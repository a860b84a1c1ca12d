// a_st: status cells: what other pages are set to, each cell a way to that page.
#pragma once
#include "types.h"

struct ST_TBL;

// The status cells of the page are drawn anew: their ground has changed.
void GL_ST_area_update_draw();

// A null table empties the object and returns 1.
int ST_Create(const ST_TBL* table, uint32_t var);
int ST_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
