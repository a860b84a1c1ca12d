#include "fmctrl.h"
#include "safeguards.h"

// The catalogue of stills and clips is empty yet.

int FMCtrlProc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

void FMCtrl_InitClipStillList() {}

void FMCtrl_GetWaitThumbnailAll() {}

void FMCtrl_Quit() {}

int framememory_proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}
