// What a tally does to a button. Index 0 is the button's own command and gives its state; the
// others are what it depends on, and decide whether it can be used.
#include "a_bt.h"
#include "a_dw.h"
#include "device.h"
#include "global.h"
#include "tally_value.h"
#include <cstring>
#include "safeguards.h"

static int own_tally(BT_MEM* b, const char* value)
{
    b->redraw = 1;
    bool on;
    switch (b->type) {
    case BT_ACTION_STATE:
    case BT_PULLDOWN:
    case BT_PULLDOWN_LONG:
    case BT_TRANSFER_RIGHT:
    case BT_TRANSFER_LEFT: b->status = IsTrue(value) ? BT_ON : BT_OFF; return 0;
    case BT_TOGGLE: on = IsTrue(value); break;
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

// What page code has put out stays out, whatever the rule says.
static void show_by_rule(BT_MEM* b, bool (*is_disabled)(const BT_MEM* b))
{
    bt_show_enabled(b, is_disabled(b) || b->disable[BT_COMMANDS - 1]);
}

// The tally function of all families but their rule. Dependencies behind the last one that has a
// part in the rule only reach the knobs.
static int follow_rule(BT_MEM* b, int i, const char* value, bool (*is_disabled)(const BT_MEM* b),
                       int last = BT_COMMANDS - 1)
{
    if (i == 0)
        return own_tally(b, value);
    if (i <= last)
        show_by_rule(b, is_disabled);
    bt_follow_knobs(b, i);
    return 1;
}

int bt_tly_normal(BT_MEM* b, int i, const char*, const char* value)
{
    return follow_rule(b, i, value, any_condition);
}

int bt_tly_tab(BT_MEM*, int, const char*, const char*)
{
    return 0;
}

// --- The others differ in how they combine what they depend on ---

static bool both_conditions(const BT_MEM* b)
{
    return b->disable[1] && b->disable[2];
}

int bt_tly_trans_dmewipeadj(BT_MEM* b, int i, const char*, const char* value)
{
    return follow_rule(b, i, value, both_conditions);
}

int bt_tly_graphic(BT_MEM* b, int i, const char*, const char* value)
{
    return follow_rule(b, i, value, both_conditions);
}

static bool is_not_lit_alone(const BT_MEM* b)
{
    return b->tally[1][0] != 't' || strcmp(b->tally[2], "null") != 0;
}

int bt_tly_lightptnbar(BT_MEM* b, int i, const char*, const char* value)
{
    return follow_rule(b, i, value, is_not_lit_alone);
}

static bool has_no_shadow_source(const BT_MEM* b)
{
    const bool four_channels = SYS_CombineCh[1] && SYS_CombineCh[2] && SYS_CombineCh[3];
    return b->disable[1] && (!four_channels || b->disable[2]);
}

int bt_tly_globaleffect_shadow_source(BT_MEM* b, int i, const char*, const char* value)
{
    return follow_rule(b, i, value, has_no_shadow_source, 2);
}

// --- By the number of the effects-unit wipe ---

static int wipe_number(const char* value)
{
    return DW_BaseNumber(Decimal(value));
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

static bool has_no_size(const BT_MEM* b)
{
    return !wipe_has_size(wipe_number(b->tally[1]));
}

static bool has_no_transparency(const BT_MEM* b)
{
    return !wipe_has_transparency(wipe_number(b->tally[1]));
}

int bt_tly_dmewipe_size(BT_MEM* b, int i, const char*, const char* value)
{
    return follow_rule(b, i, value, has_no_size);
}

int bt_tly_dmewipe_trans(BT_MEM* b, int i, const char*, const char* value)
{
    return follow_rule(b, i, value, has_no_transparency);
}

// --- Keys ---

// A chroma key with fine key on has no edge.
static bool has_no_edge(const BT_MEM* b)
{
    return b->tally[1][0] == 't' && strcmp(b->tally[2], "Chroma") == 0;
}

static bool has_no_edge_fill(const BT_MEM* b)
{
    const int* d = b->disable;
    return d[1] && (d[2] || d[3]) && (d[4] || d[5]);
}

static bool has_no_drop(const BT_MEM* b)
{
    const int* d = b->disable;
    return d[1] || (d[2] && d[3]) || d[4];
}

int bt_tly_edge(BT_MEM* b, int i, const char*, const char* value)
{
    return follow_rule(b, i, value, has_no_edge, 2);
}

int bt_tly_edgeadj(BT_MEM* b, int i, const char*, const char* value)
{
    return follow_rule(b, i, value, has_no_edge_fill);
}

int bt_tly_keydrop(BT_MEM* b, int i, const char*, const char* value)
{
    return follow_rule(b, i, value, has_no_drop);
}

// A progressive picture of 1080 lines is too large for the frame store of all units but the
// largest.
static bool cannot_freeze(const BT_MEM* b)
{
    constexpr int LINES_1080P = 6;
    const bool too_large =
        SYS_RefSwrActiveLine == LINES_1080P && getDmeReferenceModel() != DEVTYPE_ZRD52;
    return too_large || any_condition(b);
}

// No tally tells that the reference unit is another one now: its own comes whenever it may be.
int bt_tly_freeze(BT_MEM* b, int i, const char*, const char* value)
{
    if (i == 0)
        show_by_rule(b, cannot_freeze);
    return follow_rule(b, i, value, cannot_freeze);
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
