// What a tally does to a button. Index 0 is the button's own command and gives its state; the
// others are what it depends on, and decide whether it can be used.
#include "a_bt.h"
#include "device.h"
#include "global.h"
#include <cstdlib>
#include <cstring>
#include "safeguards.h"

static bool is_true(const char* value)
{
    return strcmp(value, "true") == 0;
}

static int own_tally(BT_MEM* b, const char* value)
{
    b->redraw = 1;
    bool on;
    switch (b->type) {
    case BT_ACTION_STATE:
    case BT_PULLDOWN:
    case BT_PULLDOWN_LONG:
    case BT_TRANSFER_RIGHT:
    case BT_TRANSFER_LEFT: b->status = is_true(value) ? BT_ON : BT_OFF; return 0;
    case BT_TOGGLE: on = is_true(value); break;
    case BT_RADIO:
    case BT_RADIO_RELEASE: on = strcmp(value, b->cmd_var[0]) == 0; break;
    default: return 0; // keys without a state
    }
    b->status = on ? BT_ON : BT_OFF;
    if (!on)
        bt_drop_knobs(b);
    else if (b->nb && bt_was_pushed_last(b) && BT_GetKnobAssign() == -1)
        bt_take_knobs(b);
    return 0;
}

static bool any_condition(const BT_MEM* b)
{
    for (int i = 1; i < BT_COMMANDS; i++)
        if (b->disable[i])
            return true;
    return false;
}

int bt_tly_normal(BT_MEM* b, int i, const char*, const char* value)
{
    if (i == 0)
        return own_tally(b, value);
    bt_show_enabled(b, any_condition(b));
    bt_follow_knobs(b, i);
    return 1;
}

int bt_tly_tab(BT_MEM*, int, const char*, const char*)
{
    return 0;
}

// --- The others differ in how they combine what they depend on ---

// What page code has put out stays out, whatever the rule says.
static int depend(BT_MEM* b, int i, bool disabled)
{
    bt_show_enabled(b, disabled || b->disable[BT_COMMANDS - 1]);
    bt_follow_knobs(b, i);
    return 1;
}

// A dependency that has no part in the rule only reaches the knobs.
static int depend_no_part(BT_MEM* b, int i)
{
    bt_follow_knobs(b, i);
    return 1;
}

int bt_tly_trans_dmewipeadj(BT_MEM* b, int i, const char*, const char* value)
{
    if (i == 0)
        return own_tally(b, value);
    return depend(b, i, b->disable[1] && b->disable[2]);
}

int bt_tly_graphic(BT_MEM* b, int i, const char* path, const char* value)
{
    return bt_tly_trans_dmewipeadj(b, i, path, value);
}

int bt_tly_lightptnbar(BT_MEM* b, int i, const char*, const char* value)
{
    if (i == 0)
        return own_tally(b, value);
    const bool usable = b->tally[1][0] == 't' && strcmp(b->tally[2], "null") == 0;
    return depend(b, i, !usable);
}

int bt_tly_globaleffect_shadow_source(BT_MEM* b, int i, const char*, const char* value)
{
    if (i == 0)
        return own_tally(b, value);
    if (i > 2)
        return depend_no_part(b, i);
    const bool four_channels = SYS_CombineCh[1] && SYS_CombineCh[2] && SYS_CombineCh[3];
    return depend(b, i, b->disable[1] && (!four_channels || b->disable[2]));
}

// --- By the number of the effects-unit wipe ---

// The same wipe on other channels has 6000 added.
static int wipe_number(const char* value)
{
    const int n = int(strtol(value, nullptr, 10));
    return n > 7000 ? n - 6000 : n;
}

static bool wipe_has_size(int n)
{
    return (n >= 1201 && n <= 1208) || (n >= 1221 && n <= 1224) || n == 1251 ||
           (n >= 1901 && n <= 1999);
}

static bool wipe_has_transparency(int n)
{
    switch (n) {
    case 1031:
    case 1381:
    case 1391:
    case 1393:
    case 1394:
    case 1396: return true;
    default: return wipe_has_size(n);
    }
}

int bt_tly_dmewipe_size(BT_MEM* b, int i, const char*, const char* value)
{
    if (i == 0)
        return own_tally(b, value);
    return depend(b, i, !wipe_has_size(wipe_number(b->tally[1])));
}

int bt_tly_dmewipe_trans(BT_MEM* b, int i, const char*, const char* value)
{
    if (i == 0)
        return own_tally(b, value);
    return depend(b, i, !wipe_has_transparency(wipe_number(b->tally[1])));
}

// --- Keys ---

// A chroma key with fine key on has no edge.
int bt_tly_edge(BT_MEM* b, int i, const char*, const char* value)
{
    if (i == 0)
        return own_tally(b, value);
    if (i > 2)
        return depend_no_part(b, i);
    return depend(b, i, b->tally[1][0] == 't' && strcmp(b->tally[2], "Chroma") == 0);
}

int bt_tly_edgeadj(BT_MEM* b, int i, const char*, const char* value)
{
    if (i == 0)
        return own_tally(b, value);
    const int* d = b->disable;
    return depend(b, i, d[1] && (d[2] || d[3]) && (d[4] || d[5]));
}

int bt_tly_keydrop(BT_MEM* b, int i, const char*, const char* value)
{
    if (i == 0)
        return own_tally(b, value);
    const int* d = b->disable;
    return depend(b, i, d[1] || (d[2] && d[3]) || d[4]);
}

// A progressive picture of 1080 lines is too large for the frame store of all units but the
// largest.
int bt_tly_freeze(BT_MEM* b, int i, const char*, const char* value)
{
    constexpr int LINES_1080P = 6;
    if (i == 0)
        own_tally(b, value);
    const bool too_large =
        SYS_RefSwrActiveLine == LINES_1080P && getDmeReferenceModel() != DEVTYPE_ZRD52;
    depend(b, i, too_large || any_condition(b));
    return i != 0;
}

// --- Corner pinning ---

// The mode changes how far a corner may go. Its boxes are the same in all modes: a shown column
// keeps its values, also those that the operator is turning, and gets the limits of its new table.
static void follow_limits(BT_MEM* b)
{
    const NB_TBL* nb = special_knob_table(b);
    for (; nb && nb->id >= 1; nb++)
        if (NB_AddMinMax(nb->id, nb->min, nb->max) < 0) {
            special_knob(b);
            return;
        }
}

int bt_tly_corner_pinning(BT_MEM* b, int i, const char*, const char* value)
{
    if (i == 0)
        return own_tally(b, value);
    bt_show_enabled(b, any_condition(b));
    if (bt_owns_knobs(b))
        follow_limits(b);
    return 1;
}
