#include "pane.h"
#include "safeguards.h"

// No pane can be opened yet: every request answers 0, the id of no pane.

int PaneMessage_Create(const char*, int, const char*)
{
    return 0;
}

int PaneYesNo_Create(const char*, int, const char*)
{
    return 0;
}

int PaneProgress_Create(const char*, const char*, int)
{
    return 0;
}

int PaneProgress_SetProg(int, int, const char*)
{
    return -1;
}

int PaneRegion_InitID(int)
{
    return 0;
}

int PaneRegion_Create(int, int)
{
    return 0;
}

void Pane_SetButtonStyle(int, int) {}

int Pane_Quit(int)
{
    return -1;
}

int Pane_GetActiveID()
{
    return 0;
}

int Pane_Exist(int)
{
    return 0;
}

int PaneProc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

// No group has a region yet.

int PaneRegion_GetMainMax(int)
{
    return 0;
}

int PaneRegion_GetGrpID(int, int, int)
{
    return 0;
}

const char* PaneRegion_GetGrpName(int, int)
{
    return "";
}

int PaneRegion_GetGrpPos(int, int)
{
    return 0;
}

int PaneRegion_IsSelected(int, int)
{
    return 0;
}

int PaneRegion_GetRef(int)
{
    return 0;
}
