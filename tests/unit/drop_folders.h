#pragma once
#include "bus.h"
#include "fmctrl_private.h"
#include "message.h"
#include <unistd.h>

// The drop folders are made beside the passes, at the first test of the process.
inline void AwaitDropFolders()
{
    for (int i = 0; i < 5000 && !fm_drop_is_set_up(); i++) {
        SendMessage(MSG_REDRAW, 1, 0, 0, 0);
        usleep(1000);
    }
}
