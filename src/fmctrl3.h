// fmctrl3: the catalogue of the clip store, fed by the status hub.
#pragma once
#include "types.h"

int FMCtrl3_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // returns 0
void FMCtrl3_Init();
void FMCtrl3_Clear(int what); // 0 all, 1 folders, 2 files
void FMCtrl3_Quit();
int clipstore_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
