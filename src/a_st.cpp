#include "a_st.h"
#include "safeguards.h"

// No page brings a table of this kind yet: the object stays empty and lets every message pass.

int ST_Create(const ST_TBL*, uint32_t)
{
    return 1;
}

int ST_Proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

void GL_ST_area_update_draw() {}
