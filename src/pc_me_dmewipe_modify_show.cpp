// What the keys of the modify page show. They are bound to local paths, whose tallies are played
// from here for the leading channel.
#include "a_bt.h"
#include "command.h"
#include "pc_me.h"
#include "pc_me_dmewipe_modify_private.h"
#include "text.h"
#include "safeguards.h"

void modify_mirror(const char* path, int on)
{
    ME_Mirror(LOCAL_MODIFY "%s#%s", path, Bool(on));
}

void modify_mirror_switches()
{
    for (const ModifyFunction& f : modify_functions)
        modify_mirror(f.path, (dm.*f.active)[dm.modify_ch]);
}

void modify_mirror_corners()
{
    for (const ModifyCorner& c : modify_corners)
        modify_mirror(c.path, modify_leading().*c.is_there);
}

void modify_clear_buttons(bool keep_knobs)
{
    for (const ModifyFunction& f : modify_functions)
        if (!keep_knobs || f.button != BT_GetKnobAssign())
            modify_mirror(f.path, 0);
    for (const ModifyCorner& c : modify_corners)
        modify_mirror(c.path, 0);
    modify_mirror("Position@Relative", dm.modify_relative);
}

void modify_mirror_channels()
{
    for (int ch = 0; ch < PATTERN_CHANNELS; ch++)
        modify_mirror(modify_channel_keys[ch].path, dm.modify_chsel[ch]);
}

void modify_show_channels()
{
    modify_mirror_channels();
    if (dm.off)
        return;
    for (int ch = 0; ch < PATTERN_CHANNELS; ch++)
        if (ch != 2 || !modify_is_small_panel()) // that one is hidden
            BT_SetDisable(modify_channel_keys[ch].button, dm.modify_ptn < 2 || ch >= dm.modify_ptn);
    BT_SetDisable(BTN_RELATIVE, dm.modify_ptn < 2);
}
