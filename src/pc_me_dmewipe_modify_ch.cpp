// The pattern of the modify page and the choice among its channels. The switches of all channels
// are subscribed while the pattern stands, the values only of the channels that are chosen.
#include "a_bt.h"
#include "a_dw.h"
#include "pc_me_dmewipe_modify_private.h"
#include "tally_value.h"
#include <algorithm>
#include "safeguards.h"

// --- Subscriptions ---

static void send_switches(const char* verb, int ch)
{
    for (const ModifyFunction& f : modify_functions)
        modify_send(verb, f.path, ch);
}

static void add_values(int ch)
{
    dm.added[ch] = 1;
    for (const ModifyValue& value : modify_values)
        modify_send("add", value.path, ch);
}

// The values of the previous choice.
static void modify_remove_btn()
{
    for (int ch = 0; ch < MODIFY_CHANNELS; ch++) {
        if (!dm.added[ch])
            continue;
        dm.added[ch] = 0;
        for (const ModifyValue& value : modify_values)
            modify_send("remove", value.path, ch);
    }
}

// A channel that is chosen has all three switched on, so that each of its knobs takes effect.
static void modify_ch_assign()
{
    modify_for_chosen([](int ch) {
        for (const ModifyFunction& f : modify_functions)
            modify_send("put", f.path, ch, "#true");
        add_values(ch);
    });
}

void modify_leave_pattern()
{
    for (int ch = 0; ch < dm.modify_ptn; ch++)
        send_switches("remove", ch);
    modify_remove_btn();
}

// --- The pattern ---

static void forget_channels()
{
    dm.modify_ch = 0;
    dm.crop = {};
    std::fill(dm.Modify, dm.Modify + MODIFY_CHANNELS, _modify{});
    for (const ModifyFunction& f : modify_functions)
        std::fill(dm.*f.active, dm.*f.active + MODIFY_CHANNELS, 0);
    std::fill(dm.modify_chsel, dm.modify_chsel + MODIFY_CHANNELS, 0);
    dm.modify_relative = 0;
}

void modify_pattern_tly(const char* value)
{
    const int number = Decimal(value);
    if (number == dm.number)
        return;
    const bool is_first = dm.number < 0;
    modify_leave_pattern();
    forget_channels();
    dm.number = number;
    dm.modify_ptn = std::min(DW_ChannelsOf(number), dm.max_channels);
    dm.modify_chsel[0] = dm.modify_ptn > 0;
    modify_clear_buttons(is_first);
    modify_show_channels();
    for (int ch = 0; ch < dm.modify_ptn; ch++) {
        send_switches("add", ch);
        modify_send_position("read", 0, ch);
        modify_send_position("read", 1, ch);
    }
    modify_for_chosen(add_values);
    (void)modify_crop_mask();
}

// --- The choice ---

// The last one can't be let go: the choice moves on to the first that it isn't.
static void toggle_channel(int n)
{
    int* const chsel = dm.modify_chsel;
    chsel[n] = !chsel[n];
    if (modify_chosen_channels() == 0)
        chsel[n == 0 ? 1 : 0] = 1;
    dm.crop = {};
    dm.modify_ch = int(std::find(chsel, chsel + dm.modify_ptn, 1) - chsel);
}

// The place of the leading channel: its boxes and the corner that it is in.
static void modify_position_select()
{
    modify_mirror_corners();
    modify_show_boxes();
}

void modify_chselect_sel(int n)
{
    if (dm.modify_ptn < 2 || n >= dm.modify_ptn)
        return;
    toggle_channel(n);
    modify_mirror_channels();
    if (BT_GetKnobAssign() > 0)
        dm.knobs_of = BT_GetKnobAssign();
    modify_remove_btn();
    send_switches("add", dm.modify_ch); // subscribed already: added once more, they are told anew
    modify_mirror_switches();
    modify_position_select(); // also with its position off: what was on show is another channel's
    modify_ch_assign();
    (void)modify_crop_mask();
}
