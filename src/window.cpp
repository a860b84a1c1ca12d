#include "window.h"
#include "safeguards.h"

// No window can be opened yet.

int GetWindow()
{
    return 0;
}

int CreateWindow(int, const char*, const WindowArgs&)
{
    return -1;
}

int ChangeWindow(const char*, const char*, const char*, const char*)
{
    return -1;
}

int CloseWindow()
{
    return 0;
}

int WindowProc(int, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return 0;
}

const PULLDOWN* PullDown_Find(const char*)
{
    return nullptr;
}
