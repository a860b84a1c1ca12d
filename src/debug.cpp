#include "debug.h"
#include "safeguards.h"

// The engineering menu has no entries yet.

void Debug_Create() {}

int Debug_Proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

void allpagedisp_select(int, int) {}
