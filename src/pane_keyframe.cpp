// The run control of the timelines: keys that start, stop and turn round the selected regions. What
// they show comes from the server's tallies, as everywhere.
#include "command.h"
#include "graphics.h"
#include "message.h"
#include "netio.h"
#include "pane_private.h"
#include <cstring>

#include "safeguards.h"

#define RUN_CONTROL "Key Frame@Run Control@"

namespace
{
enum : int { RUN_CLOSE = 9 };

struct RunKey {
    BUTTON button;
    const char* path = nullptr;  // of the value that the key sets; null: it closes the pane
    const char* value = nullptr; // which lights the key when it is tallied
};

constexpr int X1 = 15, X2 = 113, X3 = 211, X4 = 309;
constexpr int Y1 = 45, Y2 = 127;

constexpr RunKey run_keys[] = {
    {{.id = 1, .caption = "Rewind", .type = LOOK_RUN, .x1 = X1, .y1 = Y1},
     RUN_CONTROL "Rewind",
     "true"},
    {{.id = 2, .caption = "Run", .type = LOOK_RUN, .x1 = X2, .y1 = Y1}, RUN_CONTROL "Run", "true"},
    {{.id = 3, .caption = "Stop", .type = LOOK_RUN, .x1 = X3, .y1 = Y1},
     RUN_CONTROL "Run",
     "false"},
    {{.id = 4, .caption = "Fast\nForward", .type = LOOK_RUN, .x1 = X4, .y1 = Y1},
     RUN_CONTROL "FF",
     "true"},
    {{.id = 5, .caption = "Normal", .type = LOOK_RUN, .x1 = X1, .y1 = Y2},
     RUN_CONTROL "Direction",
     "Normal"},
    {{.id = 6, .caption = "Reverse", .type = LOOK_RUN, .x1 = X2, .y1 = Y2},
     RUN_CONTROL "Direction",
     "Reverse"},
    {{.id = 7, .caption = "Normal/\nReverse", .type = LOOK_RUN, .x1 = X3, .y1 = Y2},
     RUN_CONTROL "Direction",
     "Normal/Reverse"},
    {{.id = RUN_CLOSE, .caption = "Close", .type = LOOK_RUN, .x1 = X4, .y1 = Y2}},
};
constexpr int RUN_KEYS = sizeof run_keys / sizeof *run_keys;

// Values that the keys show.
constexpr const char* run_paths[] = {RUN_CONTROL "Run", RUN_CONTROL "Rewind", RUN_CONTROL "FF",
                                     RUN_CONTROL "Direction"};
} // namespace

int KeyFrameRunCtrl_Create()
{
    PANE* pane = pane_create(TYPE_FRAME, "Run Control", {195, 195, 604, 404}, RUN_KEYS);
    if (!pane)
        return 0;
    for (const RunKey& key : run_keys)
        (void)pane_add(pane, key.button); // there is room
    for (const char* path : run_paths)
        Net_SendCommandFormat("add %s", path);
    for (const char* path : run_paths)
        Net_SendCommandFormat("read %s", path);
    return pane->id;
}

void frame_closed()
{
    for (const char* path : run_paths)
        Net_SendCommandFormat("remove %s", path);
}

void frame_select(PANE* pane, int id)
{
    for (const RunKey& key : run_keys) {
        if (key.button.id != id)
            continue;
        if (!key.path)
            pane->quitmem = QUIT_SILENT;
        else
            Net_SendCommandFormat("put %s#%s", key.path, key.value);
    }
}

static int run_tally(const char* path, const char* value)
{
    PANE* pane = pane_find_type(TYPE_FRAME);
    for (int i = 0; pane && i < pane->button_num; i++) {
        const RunKey& key = run_keys[i];
        if (!key.path || strcmp(key.path, path) != 0)
            continue;
        const int onoff = strcmp(key.value, value) == 0;
        if (pane->button[i].onoff == onoff)
            continue;
        pane->button[i].onoff = onoff;
        pane->button[i].redraw = 1;
    }
    return 0;
}

int keyframerunctrl_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return run_tally(Text(ax), Text(bx));
    default: return 0;
    }
}
