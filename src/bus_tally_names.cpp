// Names and assignment of the buses.
#include "bus_tally.h"
#include "global.h"
#include "memory.h"
#include "message.h"

#include "safeguards.h"

// "index,name" into a table of allocated names. Returns the index when the name is another one than
// before, else -1.
static int replace_name(char** names, int count, const char* value)
{
    Parts p;
    if (SplitValue(p, value, 2) < 2)
        return -1;
    const int i = Index(p.v[0], count);
    if (i < 0 || (names[i] && Same(names[i], p.v[1])))
        return -1;
    char* fresh = GDL_StrDup(p.v[1]);
    if (!fresh)
        return -1;
    GDL_Free(names[i]);
    names[i] = fresh;
    return i;
}

TallyRoute tally_external_bus(const Tally& t)
{
    replace_name(BUS_ExtMaster, BUS_EXT_MASTER, t.value);
    return TallyRoute::Pass;
}

TallyRoute tally_internal_bus(const Tally& t)
{
    replace_name(BUS_IntMaster, BUS_INT_MASTER, t.value);
    return TallyRoute::Pass;
}

TallyRoute tally_sbus_source(const Tally& t)
{
    replace_name(BUS_SBusSrc, BUS_SBUS, t.value);
    return TallyRoute::Pass;
}

TallyRoute tally_sbus_destination(const Tally& t)
{
    replace_name(BUS_SBusDst, BUS_SBUS, t.value);
    return TallyRoute::Pass;
}

TallyRoute tally_xpt_source(const Tally& t)
{
    const int i = replace_name(BUS_XptSrc, BUS_XPT_SRC, t.value);
    if (i >= 0)
        SendMessage(LMSG_XPTSRCCHANGE, i, 0, Arg(BUS_XptSrc[i]), Arg(BUS_XptSrc[i]));
    return TallyRoute::Pass;
}

TallyRoute tally_xpt_assign(const Tally& t)
{
    Parts p;
    if (SplitValue(p, t.value, 3) < 3)
        return TallyRoute::Pass;
    const int i = Index(p.v[0], BUS_XPT_SRC);
    if (i < 0)
        return TallyRoute::Pass;
    const int video = Decimal(p.v[1]);
    const int key = Decimal(p.v[2]);
    if (SYS_XptAssignV[i] == video && SYS_XptAssignK[i] == key)
        return TallyRoute::Pass;
    SYS_XptAssignV[i] = video;
    SYS_XptAssignK[i] = key;
    SendMessage(LMSG_XPTASSIGNCHANGE, i, 0, video, key);
    return TallyRoute::Pass;
}
