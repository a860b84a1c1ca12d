// register: the mirror of the registers that the server stores.
#pragma once
#include "types.h"

int RegisterProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // returns 0
void Register_RefreshDME();
void Register_InitCommand_MP2();
