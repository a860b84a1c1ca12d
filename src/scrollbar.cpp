#include "scrollbar.h"
#include "safeguards.h"

// No list has a scroll bar yet.

int ScrollBarProc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

void CloseScrollBarAll() {}

void SB_IgnoreRedraw(int) {}
