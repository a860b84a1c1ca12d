#include "a_pc.h"

#include "safeguards.h"

static PC_TBL pc; // the functions of the page that is up

int PC_Create(const PC_TBL* table, uint32_t var)
{
    if (!table) {
        // Cleared last: what the page sends while it closes still reaches its own procedure.
        if (pc.create_func)
            pc.create_func(0, var);
        pc = {};
        return 1;
    }
    pc = *table;
    if (pc.create_func)
        pc.create_func(1, var);
    return 0;
}

int PC_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    return pc.proc_func ? pc.proc_func(msg, ax, bx, cx, dx) : 0;
}
