// fmctrl: the catalogue of stills and clips in frame memory.
#pragma once
#include "types.h"

int FMCtrlProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx); // returns 0
void FMCtrl_InitClipStillList();
void FMCtrl_GetWaitThumbnailAll(); // a transfer has ended: fetch the thumbnails that waited
void FMCtrl_Quit();
int framememory_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
