#include "pc_dme.h"
#include "netio.h"
#include "safeguards.h"

constexpr char REFERENCE[] = "DME@Status@3D Param@Mode Status@Reference";

// The cells forget the reference with their page: each page asks for it anew.
static int pc_dme_create(int on, uint32_t)
{
    Net_SendCommandFormat("%s %s", on ? "add" : "remove", REFERENCE);
    return on ? 0 : 1;
}

static int pc_dme_proc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

const PC_TBL pc_dme = {.proc_func = pc_dme_proc, .create_func = pc_dme_create};
