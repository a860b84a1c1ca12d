// me_dmewipe: the effects-unit wipe of a bank: its pattern and modifiers, edge and direction, place, size and crop of its
// channels, snapshots. Written for M/E-1.
#pragma once
#include "dmewipe_modify.h"
#include "me_banks.h"
#include "me_snapshot.h"
#include "nb_rows.h"
#include "pc_me_dmewipe.h"
#include "st_me_dmewipe.h"

// --- Boxes; percent, degrees, turns ---

inline constexpr NB_TBL nb_me_dmewipe_limit[] = { // of the whole transition
    {.id = 1, .caption = "Limit", .type = NB_2, .min = 0, .max = 100, .cmd = "~2@Direction@Pattern Limit@Limit"},
    NB_END,
};
inline constexpr NB_TBL nb_me_dmewipe_ptnmodifier_curl[] = { // of the picture's height
    {.id = 1, .caption = "Radius", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Curl@Radius"},
    {.id = 2, .caption = "Angle\ndeg",  .type = NB_2, .min = -180, .max = 180, .cmd = "~@Curl@Angle"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_dmewipe_limit) && BoxesAreSound(nb_me_dmewipe_ptnmodifier_curl));

inline constexpr NB_TBL nb_me_dmewipe_ptnmodifier_bkgd[] = {NB_COLOR("~@Background@Matte"), NB_END};
inline constexpr NB_TBL nb_me_dmewipe_edgedir_color1[] = {NB_COLOR("~@Border Matte@Color 1"), NB_END};
inline constexpr NB_TBL nb_me_dmewipe_edgedir_color2[] = {NB_COLOR("~@Border Matte@Color 2"), NB_END};
inline constexpr NB_TBL nb_me_dmewipe_edgedir_shadow[] = {NB_COLOR("~@Shadow@Color"), NB_END};
static_assert(BoxesAreSound(nb_me_dmewipe_ptnmodifier_bkgd) && BoxesAreSound(nb_me_dmewipe_edgedir_shadow));
static_assert(BoxesAreSound(nb_me_dmewipe_edgedir_color1) && BoxesAreSound(nb_me_dmewipe_edgedir_color2));

inline constexpr NB_TBL nb_me_dmewipe_edgedir_mix[] = { // how the two colours meet
    {.id = 1, .caption = "Size", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Border Matte@Mix@Size"},
    {.id = 2, .caption = "Soft", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Border Matte@Mix@Soft"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_dmewipe_edgedir_mix));

#define NB_REMOVE(ch) /* of the whole transition */ \
    inline constexpr NB_TBL nb_me_dmewipe_remove##ch[] = { \
        {.id = 1, .caption = "Start", .type = NB_2, .min = 0, .max = 100, .cmd = "~3@Remove From Begin@Start@" #ch}, \
        {.id = 2, .caption = "Limit", .type = NB_2, .min = 0, .max = 100, .cmd = "~3@Remove From Begin@Limit@" #ch}, \
        NB_END, \
    }; \
    static_assert(BoxesAreSound(nb_me_dmewipe_remove##ch));
NB_REMOVE(1)
NB_REMOVE(2)
NB_REMOVE(3)
#undef NB_REMOVE

// --- Buttons ---

constexpr BT_TBL dmewipe_normal(int id) { return Radio({.id = id, .caption = "Normal", .group = "Direction", .cmd = {"~2@Direction#Normal"}}); }
constexpr BT_TBL dmewipe_reverse(int id) { return Radio({.id = id, .caption = "Reverse", .group = "Direction", .cmd = {"~2@Direction#Reverse"}}); }
constexpr BT_TBL dmewipe_norm_rev(int id) { return Toggle({.id = id, .caption = "Norm/Rev", .group = "Direction", .cmd = {"~2@Direction@Norm/Rev#*"}}); }
constexpr BT_TBL dmewipe_limit(int id)
{
    return Toggle({.id = id, .caption = "Pattern\nLimit", .group = "Pattern Limit", .cmd = {"~2@Direction@Pattern Limit#*"}, .nb = nb_me_dmewipe_limit});
}
constexpr BT_TBL dmewipe_set_limit(int id)
{
    return Action({.id = id, .caption = "Set\nLimit", .group = "Pattern Limit", .cmd = {"~2@Direction@Pattern Limit@Set#*"}});
}

// Two rows below the short list.
inline constexpr BT_TBL bt_me_dmewipe_pattern[] = {
    Action({.id = 33, .caption = "1 Channel",   .group = "Show Patterns", .cmd = {"LOCAL@Pattern Select@1 Channel"}}),
    Action({.id = 34, .caption = "2 Channels",  .group = "Show Patterns", .cmd = {"LOCAL@Pattern Select@2 Channels"}}),
    Action({.id = 35, .caption = "3 Channels",  .group = "Show Patterns", .cmd = {"LOCAL@Pattern Select@3 Channels"}}),
    Radio ({.id = 37, .caption = "DME",         .group = "Channel Set", .cmd = {"~@Channel Set#DME"}}),
    Radio ({.id = 38, .caption = "Internal",    .group = "Channel Set", .cmd = {"~@Channel Set#Internal"}}),
    dmewipe_normal(49), dmewipe_reverse(50), dmewipe_norm_rev(51),
    dmewipe_limit(53), dmewipe_set_limit(54),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_dmewipe_pattern));

inline constexpr BT_TBL bt_me_dmewipe_ptnmodifier[] = {
    dmewipe_ptnsize(17, "Size", "~2@Pattern Select@Pattern#"), dmewipe_transparency(18, "~2@Pattern Select@Pattern#"), dmewipe_fade(19),
    Knobs ({.id = 20, .caption = "Number\nof Turns", .group = "Motion", .cmd = {nullptr, "~@Rotation@Axis#"}, .nb = SpecialKnob(46)}),
    Knobs ({.id = 21, .caption = "Radius/\nAngle", .group = "Motion", .nb = nb_me_dmewipe_ptnmodifier_curl}),
    Toggle({.id = 22, .caption = "Perspective",   .group = "Motion", .cmd = {"~@Perspective#*"}, .nb = SpecialKnob(48)}),
    Toggle({.id = 33, .caption = "Invert",        .group = "Picture", .cmd = {"~@Invert#*"}}),
    Toggle({.id = 34, .caption = "Flip",          .group = "Picture", .cmd = {"~@Flip#*"}}),
    Toggle({.id = 35, .caption = "Tumble",        .group = "Picture", .cmd = {"~@Tumble#*"}}),
    Radio ({.id = 36, .caption = "Still",         .group = "Background", .cmd = {"~@Background#Still"}}),
    Radio ({.id = 37, .caption = "Fade\nOut",     .group = "Background", .cmd = {"~@Background#Fade Out"}}),
    Radio ({.id = 38, .caption = "Matte",         .group = "Background", .cmd = {"~@Background#Matte"}, .nb = nb_me_dmewipe_ptnmodifier_bkgd}),
    Radio ({.id = 49, .caption = "Auto",          .group = "Priority", .cmd = {"~@Priority#Auto"}}),
    Radio ({.id = 50, .caption = "1st Ch\nTop",   .group = "Priority", .cmd = {"~@Priority#1st Ch"}}),
    Radio ({.id = 51, .caption = "2nd Ch\nTop",   .group = "Priority", .cmd = {"~@Priority#2nd Ch"}}),
    Radio ({.id = 52, .caption = "3rd Ch\nTop",   .group = "Priority", .cmd = {"~@Priority#3rd Ch"}}),
    Toggle({.id = 54, .caption = "Axis\nLocation", .group = "Axis", .cmd = {"~@Rotation@Axis#*"}}), // two knobs more for the turns
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_dmewipe_ptnmodifier));

inline constexpr BT_TBL bt_me_dmewipe_edgedirection[] = {
    Toggle({.id = 17, .caption = "Border",        .group = "Edge", .cmd = {"~2@Edge@Border#*", "~2@Edge@Soft#"}, .nb = SpecialKnob(50)}),
    Toggle({.id = 18, .caption = "Soft",          .group = "Edge", .cmd = {"~2@Edge@Soft#*", "~2@Edge@Separate#"}, .nb = SpecialKnob(51)}),
    Toggle({.id = 19, .caption = "Separate\nSoft", .group = "Edge", .cmd = {"~2@Edge@Separate#*", "~2@Edge@Soft#false"}}),
    dmewipe_normal(20), dmewipe_reverse(21), dmewipe_norm_rev(22),
    Radio ({.id = 33, .caption = "Flat",          .group = "Border Matte", .cmd = {"~@Border Matte#Flat", "~2@Edge@Border#false"}}),
    Radio ({.id = 34, .caption = "Mix",           .group = "Border Matte", .cmd = {"~@Border Matte#Mix", "~2@Edge@Border#false"}, .nb = nb_me_dmewipe_edgedir_mix}),
    Knobs ({.id = 35, .caption = "Color 1",       .group = "Border Matte", .cmd = {nullptr, "~2@Edge@Border#false"}, .nb = nb_me_dmewipe_edgedir_color1}),
    Knobs ({.id = 36, .caption = "Color 2",       .group = "Border Matte", .cmd = {nullptr, "~2@Edge@Border#false", "~@Border Matte#Flat"}, .nb = nb_me_dmewipe_edgedir_color2}),
    Action({.id = 52, .caption = "Copy\n1 to 2",  .group = "Color", .cmd = {"~@Border Matte@Copy#*", "~2@Edge@Border#false", "~@Border Matte#Flat"}}),
    Action({.id = 53, .caption = "Swap",          .group = "Color", .cmd = {"~@Border Matte@Swap#*", "~2@Edge@Border#false", "~@Border Matte#Flat"}}),
    dmewipe_limit(37), dmewipe_set_limit(38),
    Toggle({.id = 49, .caption = "Drop\nShadow",  .group = "Shadow", .cmd = {"~@Shadow#*"}, .nb = SpecialKnob(53)}),
    Knobs ({.id = 50, .caption = "Shadow\nColor", .group = "Shadow", .cmd = {nullptr, "~@Shadow#false"}, .nb = nb_me_dmewipe_edgedir_shadow}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_dmewipe_edgedirection));

inline constexpr BT_TBL bt_me_dmewipe_removefrombigin[] = {
    Toggle({.id = 17, .caption = "1st Ch", .group = "Remove From Begin", .cmd = {"~3@Remove From Begin@1#*"}, .nb = nb_me_dmewipe_remove1}),
    Toggle({.id = 18, .caption = "2nd Ch", .group = "Remove From Begin", .cmd = {"~3@Remove From Begin@2#*"}, .nb = nb_me_dmewipe_remove2}),
    Toggle({.id = 19, .caption = "3rd Ch", .group = "Remove From Begin", .cmd = {"~3@Remove From Begin@3#*"}, .nb = nb_me_dmewipe_remove3}),
    // To see what it does.
    Action({.id = 49, .caption = "Cut",        .group = "Transition", .cmd = {"~1@Misc@Transition@Cut#*"}}),
    Action({.id = 50, .caption = "Auto\nTrans", .group = "Transition", .cmd = {"~1@Misc@Transition@Auto Trans#*"}}),
    Jump  ({.id = 53, .caption = "Pattern\nSelect", .group = "Adjust", .cmd = {"#+11610000"}}),
    Jump  ({.id = 54, .caption = "Modify",     .group = "Adjust", .cmd = {"#+11650000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_dmewipe_removefrombigin));

inline constexpr BT_TBL bt_me_dmewipe_modify[] = {
    dmewipe_position, dmewipe_center, dmewipe_relative, dmewipe_crop, dmewipe_crop_4_3, dmewipe_size,
    dmewipe_top_left, dmewipe_top_right, dmewipe_ch1, dmewipe_ch2, dmewipe_ch3,
    dmewipe_bottom_left, dmewipe_bottom_right,
    Jump({.id = 54, .caption = "Remove\nFrom\nBegin", .group = "Adjust", .cmd = {"#+11600007"}}),
    BT_END,
};
// The sub side has nothing to remove.
inline constexpr BT_TBL bt_me_dmewipe_modify_sub[] = {
    dmewipe_position, dmewipe_center, dmewipe_relative, dmewipe_crop, dmewipe_crop_4_3, dmewipe_size,
    dmewipe_top_left, dmewipe_top_right, dmewipe_ch1, dmewipe_ch2, dmewipe_ch3,
    dmewipe_bottom_left, dmewipe_bottom_right,
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_dmewipe_modify) && ButtonsAreSound(bt_me_dmewipe_modify_sub));

// --- The pages ---

inline constexpr MePage me_dmewipe_pages[] = {
    {.page = {.id = 0x11610000, .tree = {"M/E-1", "DME Wipe", "Pattern Select"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 1), Buttons(bt_me_dmewipe_pattern), Boxes(NB_Non), WipeList(dw_me_dmewipe, 1), Code(pc_me_dmewipe_pattern)}}},
    {.page = {.id = 0x11630000, .tree = {"M/E-1", "DME Wipe", "Pattern Modifier"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 2), Buttons(bt_me_dmewipe_ptnmodifier), Boxes(NB_Non), Cells(st_me_dmewipe), Code(pc_me_dmewipe_ptnmodifier)}}},
    {.page = {.id = 0x11640000, .tree = {"M/E-1", "DME Wipe", "Edge/Direction"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 3), Buttons(bt_me_dmewipe_edgedirection), Boxes(NB_Non), Cells(st_me_dmewipe), Code(pc_me_dmewipe_edgedirection)}}},
    {.page = {.id = 0x11650000, .tree = {"M/E-1", "DME Wipe", "Modify"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 4), Buttons(bt_me_dmewipe_modify), Boxes(NB_Non), Cells(st_me_dmewipe), Code(pc_me_dmewipe_modify)}}, .where = MAIN},
    {.page = {.id = 0x11650000, .tree = {"M/E-1", "DME Wipe", "Modify"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 4), Buttons(bt_me_dmewipe_modify_sub), Boxes(NB_Non), Cells(st_me_dmewipe), Code(pc_me_dmewipe_modify)}}, .where = SUB},
    {.page = {.id = 0x11600007, .tree = {"M/E-1", "DME Wipe", "Modify", "Remove From Begin"},
              .obj = {Base(base_sub, 0x11650000), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 4), Buttons(bt_me_dmewipe_removefrombigin), Boxes(NB_Non), Cells(st_me_dmewipe), Code(pc_me_dmewipe_modify_removefrombigin)}}, .where = MAIN},
    {.page = {.id = 0x11670000, .tree = {"M/E-1", "DME Wipe", "DME Wipe Snapshot"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 5), Buttons(bt_me_snapshot), Boxes(NB_Non), Cells(st_me_dmewipe), Code(pc_me_dmewipe_dmewipesnapshot)}}},
};
