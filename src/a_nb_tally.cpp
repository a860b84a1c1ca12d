// What the server says: values of parameters, and the turns of knobs whose value lives here.
#include "a_nb_private.h"
#include "bus.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "pane.h"
#include "window.h"
#include <cmath>
#include <cstdlib>
#include <cstring>
#include "safeguards.h"

namespace
{
// A limit that a turn has run into: the message, 0 for none, and the limit that it names.
struct Hit {
    int msg = 0;
    double limit = 0;
};
} // namespace

static void take_parameter(NB_MEM& b, double v)
{
    const double shown = nb_shown_var(b);
    // While the operator turns, his own value goes on from where he has brought it: a tally that
    // is late only moves what is shown.
    double& to = b.dispvar_enable ? b.dispvar : b.var;
    to = v;
    if (b.var_valid && v == shown)
        return;
    b.var_valid = 1;
    b.redraw = 1;
}

static void tell_difference(const NB_MEM& b, double counts)
{
    if (!nb_is_shown(b) || nb_refuses())
        return;
    const double difference = counts * b.scale;
    SendMessage(LMSG_KNOBDIFF, b.id, Arg(&difference), 0, 0);
}

// In a box that runs backwards the message names the limit at the other end of the range than the
// one that was hit. That is meant: page code goes by which of the two messages came.
static Hit clamp_turn(NB_MEM& b)
{
    const double wanted = b.var;
    b.var = nb_clamp(b, wanted);
    if (wanted < b.var)
        return {LMSG_KNOBLOWER, b.min};
    if (wanted > b.var)
        return {LMSG_KNOBUPPER, b.max};
    return {};
}

// The page code may set the value, or show another table, on each of these messages.
static void tell_turn(int id, int before, const Hit& hit)
{
    if (hit.msg)
        SendMessage(hit.msg, id, nb_round(hit.limit), 0, 0);
    GL_MM_Knob_Protcol = 1;
    const NB_MEM* b = nb_find(id);
    if (b && nb_round(b->var) != before)
        SendMessage(LMSG_KNOBVAR, id, nb_round(b->var), 0, 0);
    b = nb_find(id);
    if (b) {
        const double now = b->var;
        SendMessage(LMSG_KNOBFVAR, id, Arg(&now), 0, 0);
    }
    GL_MM_Knob_Protcol = 0;
}

static void turn(NB_MEM& b, double counts)
{
    if (!nb_is_shown(b) || GetWindow() || Pane_GetActiveID() || nb_refuses())
        return;
    if (b.scale == 0) {
        Log_Output(LOG_LINK, MOD_PAGE, "NB Object without scale: id=%d", b.id);
        return;
    }
    const int before = nb_round(b.var);
    b.var += counts / b.scale;
    const Hit hit = clamp_turn(b);
    b.var_valid = 1;
    b.redraw = 1;
    if (b.dispvar_enable)
        b.dispvar_time = NB_FRESH_MS;
    tell_turn(b.id, before, hit);
}

static void take(NB_MEM& b, const char* value)
{
    const double number = strtod(value, nullptr);
    if (!std::isfinite(number)) {
        Log_Output(LOG_LINK, MOD_PAGE, "No number for NB Object: %s#%s", b.cmd, value);
        return;
    }
    switch (nb_path(b)) {
    case NbPath::Diff: tell_difference(b, number); break;
    case NbPath::Knob: turn(b, number); break;
    case NbPath::Server: take_parameter(b, number); break;
    default: break;
    }
}

int nb_tally(const char* path, const char* value, uint32_t hash)
{
    // A turn may make the page code show another table, whose boxes have no part in this tally.
    const unsigned generation = nb.generation;
    for (int i = 0; i < nb.count && nb.generation == generation; i++) {
        NB_MEM& b = nb.Knob[i];
        if (b.cmd_hash == hash && strcmp(nb_wire_path(b), path) == 0)
            take(b, value);
    }
    return 0;
}
