#include "held.h"
#include "global.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include "window.h"
#include "safeguards.h"

namespace
{
// What decides to whom a release goes.
struct Receiver {
    int pane = 0;
    int window = WINDOW_NONE;
    int find = 0;
    const PAGE* page = nullptr;
    bool operator==(const Receiver&) const = default;
};
} // namespace

static struct {
    bool is_down = false; // the page has got a press, and not yet its release
    Receiver at_press;
} held;

void Held_Reset()
{
    held = {};
}

static Receiver receiver()
{
    return {.pane = Pane_GetActiveID(),
            .window = GetWindow(),
            .find = GL_FM_Find_Window != 0 || Pane_Exist(GL_FM_Find_PaneID) != 0,
            .page = Page};
}

// Beside a knob window the number boxes stay alive.
static bool is_page(const Receiver& r)
{
    const bool is_open =
        r.window == WINDOW_NONE || r.window == WINDOW_KNOB || r.window == WINDOW_KNOB_TRIM;
    return r.pane == 0 && is_open && !r.find;
}

static bool is_watched(int msg)
{
    return msg == MSG_PRESS || msg == MSG_RELEASE || msg == MSG_DRAG || msg == MSG_REDRAW;
}

bool Held_IsLost(int msg)
{
    if (!is_watched(msg) || (!held.is_down && msg != MSG_PRESS))
        return false;
    const Receiver now = receiver();
    const bool is_lost = held.is_down && (msg == MSG_PRESS || now != held.at_press);
    if (is_lost || msg == MSG_RELEASE)
        held.is_down = false;
    if (msg == MSG_PRESS)
        held = {.is_down = is_page(now), .at_press = now};
    return is_lost;
}
