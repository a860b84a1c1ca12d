// The run control of the timelines: keys that start, stop and turn round the selected regions. What
// they show comes from the server's tallies, as everywhere.
#include "command.h"
#include "message.h"
#include "netio.h"
#include "pane_private.h"
#include <cstring>

#include "safeguards.h"

#define TIMELINE "Key Frame@Timeline@"

namespace
{
struct RunKey {
    BUTTON button;
    const char* path =
        nullptr;            // of the value that the key sets and shows; null: it closes the pane
    bool is_toggle = false; // otherwise it only ever sets "true"
};

constexpr int X1 = 15, X2 = 113, X3 = 211, X4 = 309;
constexpr int Y1 = 45, Y2 = 127;

constexpr BUTTON Key(int id, const char* caption, int x, int y)
{
    return {.id = id, .caption = caption, .type = LOOK_RUN, .x1 = x, .y1 = y};
}

constexpr RunKey run_keys[] = {
    {Key(1, "Rewind", X1, Y1), TIMELINE "Rewind"},
    {Key(2, "Run", X2, Y1), TIMELINE "Run"},
    {Key(3, "Stop", X3, Y1), TIMELINE "Stop"},
    {Key(4, "Reverse", X4, Y1), TIMELINE "Reverse"},
    {Key(5, "Loop", X1, Y2), TIMELINE "Loop", true},
    {Key(6, "Ping-Pong", X2, Y2), TIMELINE "Ping-Pong", true},
    {Key(7, "Close", X4, Y2)},
};
constexpr int RUN_KEYS = sizeof run_keys / sizeof *run_keys;
} // namespace

static void for_each_path(const char* verb)
{
    for (const RunKey& key : run_keys)
        if (key.path)
            Net_SendCommandFormat("%s %s", verb, key.path);
}

int KeyFrameRunCtrl_Create()
{
    PANE* pane = pane_create(TYPE_FRAME, "Run Control", {195, 195, 604, 404}, RUN_KEYS);
    if (!pane)
        return 0;
    for (const RunKey& key : run_keys)
        (void)pane_add(pane, key.button); // there is room
    for_each_path("add");
    for_each_path("read");
    return pane->id;
}

void frame_closed()
{
    for_each_path("remove");
}

void frame_select(PANE* pane, int id)
{
    for (int i = 0; i < RUN_KEYS; i++) {
        const RunKey& key = run_keys[i];
        if (key.button.id != id)
            continue;
        if (!key.path)
            pane->quitmem = QUIT_SILENT;
        else
            Net_SendCommandFormat("put %s#%s", key.path,
                                  Bool(!key.is_toggle || !pane->button[i].onoff));
    }
}

static int run_tally(const char* path, const char* value)
{
    PANE* pane = pane_find_type(TYPE_FRAME);
    const int onoff = strcmp(value, "true") == 0;
    for (int i = 0; pane && i < RUN_KEYS; i++) {
        const RunKey& key = run_keys[i];
        BUTTON* b = &pane->button[i];
        if (!key.path || b->onoff == onoff || strcmp(key.path, path) != 0)
            continue;
        b->onoff = onoff;
        b->redraw = 1;
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
