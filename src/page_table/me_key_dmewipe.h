// me_key_dmewipe: the effects-unit wipe with which a key comes and goes: its pattern, and how far and large its channels
// are. Written for M/E-1, Key1.
#pragma once
#include "dmewipe_modify.h"
#include "me_banks.h"
#include "pc_me_dmewipe.h"
#include "st_me_key.h"

// --- Boxes ---

inline constexpr NB_TBL nb_me_key_dmewipe_remove[] = { // of the whole transition, in percent
    {.id = 1, .caption = "Start", .type = NB_2, .min = 0, .max = 100, .cmd = "~4@Modify@Remove From Begin@Start@1"},
    {.id = 2, .caption = "Limit", .type = NB_2, .min = 0, .max = 100, .cmd = "~4@Modify@Remove From Begin@Limit@1"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_dmewipe_remove));

// --- Buttons ---

// Of use while the key comes or goes by such a wipe.
constexpr BT_TBL OfKeyWipe(BT_TBL row)
{
    row.tally_func = bt_tly_trans_dmewipeadj;
    row.cmd[1] = "~3@ON Transition Type#!DME Wipe";
    row.cmd[2] = "~3@OFF Transition Type#!DME Wipe";
    return row;
}

inline constexpr BT_TBL bt_me_key_trans_dmewipead[] = {
    OfKeyWipe(dmewipe_position), OfKeyWipe(dmewipe_center),
    OfKeyWipe(dmewipe_crop), OfKeyWipe(dmewipe_crop_4_3), OfKeyWipe(dmewipe_size),
    OfKeyWipe(dmewipe_top_left), OfKeyWipe(dmewipe_top_right),
    OfKeyWipe(dmewipe_bottom_left), OfKeyWipe(dmewipe_bottom_right),
    dmewipe_ptnsize(51, "Pattern\nSize", "~4@Pattern Select@Pattern#"), dmewipe_transparency(52, "~4@Pattern Select@Pattern#"), dmewipe_fade(53),
    Jump({.id = 54, .caption = "Pattern\nSelect", .group = "Pattern", .cmd = {"#+11170006"}}),
    Jump({.id = 38, .caption = "Remove\nFrom\nBegin", .group = "Adjust", .cmd = {"#+11170007"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_trans_dmewipead));

inline constexpr BT_TBL bt_me_key_trans_dmewipeptn[] = { // below the long list
    Jump({.id = 54, .caption = "DME Wipe\nAdjust", .cmd = {"#+11170003"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_trans_dmewipeptn));

inline constexpr BT_TBL bt_me_key_trans_removefrombigin[] = {
    OfKeyWipe(Toggle({.id = 17, .caption = "Remove\nFrom\nBegin", .group = "Transition",
                      .cmd = {"~4@Modify@Remove From Begin@1#*"}, .nb = nb_me_key_dmewipe_remove})),
    // To see what it does.
    ActionState({.id = 49, .caption = "Key ON",   .group = "Key ON/OFF", .cmd = {"~2@Status@Key ON#*"}}),
    Action({.id = 50, .caption = "Auto\nTrans",   .group = "Key ON/OFF", .cmd = {"~3@Auto Trans#*"}}),
    Jump({.id = 53, .caption = "Pattern\nSelect", .group = "Adjust", .cmd = {"#+11170006"}}),
    Jump({.id = 54, .caption = "DME Wipe\nAdjust", .group = "Adjust", .cmd = {"#+11170003"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_trans_removefrombigin));

// --- The pages ---

inline constexpr MePage me_key_dmewipe_pages[] = {
    {.page = {.id = 0x11170003, .tree = {"M/E-1", "Key1", "Transition", "DME Wipe", "Adjust"},
              .obj = {Base(base_sub, 0x11170000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Buttons(bt_me_key_trans_dmewipead), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_trans_dmewipead)}}},
    {.page = {.id = 0x11170006, .tree = {"M/E-1", "Key1", "Transition", "DME Wipe", "Pattern Select"},
              .obj = {Base(base_sub, 0x11170000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Buttons(bt_me_key_trans_dmewipeptn), Boxes(NB_Non), WipeList(dw_me_key_trans_dmewipeadj_1ch)}}},
    {.page = {.id = 0x11170007, .tree = {"M/E-1", "Key1", "Transition", "DME Wipe", "Remove From Begin"},
              .obj = {Base(base_sub, 0x11170003), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Buttons(bt_me_key_trans_removefrombigin), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_trans_removefrombigin)}}},
};
