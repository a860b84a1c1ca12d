#include "fmctrl3.h"
#include "safeguards.h"

// The catalogue of the clip store is empty yet.

int FMCtrl3_Proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

void FMCtrl3_Init() {}

void FMCtrl3_Clear(int) {}

void FMCtrl3_Quit() {}

int clipstore_proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}
