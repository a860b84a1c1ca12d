#include "a_kp.h"
#include "safeguards.h"

// No page brings a table of this kind yet: the object stays empty and lets every message pass.

int KP_Create(const KP_TBL*, uint32_t)
{
    return 1;
}

int KP_Proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

int KP_ConvPosForWheel(int*, int*, int)
{
    return 0;
}
