#include "a_ps.h"
#include "safeguards.h"

// No page brings a table of this kind yet: the object stays empty and lets every message pass.

int PS_Create(const PS_TBL*, uint32_t)
{
    return 1;
}

int PS_Proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}
