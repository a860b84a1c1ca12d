// register: the mirror of the registers that the server stores.
#pragma once
#include "types.h"

int RegisterProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // returns 0
void Register_RefreshDME();
// Subscribe the register lists, and end those subscriptions.
void Register_InitCommand();
void Register_DeathCommand();
void Register_InitCommand_MP2();
