// debug: the engineering menu.
#pragma once
#include "types.h"

void Debug_Create();
int Debug_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
// A press at (x, y) in the walk through all pages.
void allpagedisp_select(int x, int y);
