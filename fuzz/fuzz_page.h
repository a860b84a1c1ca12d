// fuzz_page: what targets share that open pages and touch them.
#pragma once
#include "a_bt.h"
#include "bus.h"
#include "command.h"
#include "device.h"
#include "message.h"
#include "pane.h"
#include "tdl.h"
#include "window.h"
#include <SDL.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

inline void Check(bool ok, const std::string& what)
{
    if (ok)
        return;
    fprintf(stderr, "must not be: %s\n", what.c_str());
    abort();
}

// A screen that nobody sees, and the units of a process that has just begun.
inline void BeginPages()
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    SDL_Surface* surface =
        SDL_Init(SDL_INIT_VIDEO) == 0 ? SDL_SetVideoMode(SCREEN_W, SCREEN_H, 32, 0) : nullptr;
    Check(surface, "no screen");
    (void)TDL_Init(surface); // there are no fonts here, and nothing is drawn
    Device_Init();
    DeviceStructure();
}

// "X,Y", a finger on the screen, through the pass in which a pane acts.
inline void Press(const char* text)
{
    const int x = atoi(text);
    const int y = strchr(text, ',') ? atoi(strchr(text, ',') + 1) : 0;
    SendMessage(MSG_PRESS, x, y, 0, 0);
    SendMessage(MSG_RELEASE, x, y, 0, 0);
    SendMessage(MSG_REDRAW, 200, 0, 0, 0);
}

// Close the pane on top as if it had been answered with result.
inline void Answer(int result)
{
    const int pane = Pane_GetActiveID();
    if (pane == 0)
        return;
    (void)Pane_Quit(pane);
    SendMessage(LMSG_PANEQUIT, pane, result, 0, 0);
}

// The n-th button from 1, or the last: what page code hears of a touch on it.
inline void Touch(int n)
{
    BT_MEM* b = bt_first();
    for (int i = 1; i < n && b->id >= 1; i++)
        b++;
    if (b->id >= 1 && b->visible == BT_ENABLED && IsLocal(b->cmd[0]))
        SendMessage(LMSG_BTNSEL, Arg(b->cmd[0]), Arg(b->cmd_var[0]), 0, 0);
    Window_ReserveQuit(0); // what it has opened is answered
}
