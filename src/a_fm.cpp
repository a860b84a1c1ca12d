#include "a_fm.h"
#include "safeguards.h"

// No page brings a table of this kind yet: the object stays empty and lets every message pass.

int FM_Create(const FM_TBL*, uint32_t)
{
    return 1;
}

int FM_Proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}
