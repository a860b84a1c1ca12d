// me_dmewipe: the effects-unit wipe of a bank: its pattern and modifiers, edge and direction, place, size and crop of its
// channels, snapshots. Written for M/E-1.
#pragma once
#include "dmewipe_modify.h"
#include "me_banks.h"
#include "pc_me_dmewipe.h"
#include "st_me_dmewipe.h"

// --- Boxes ---

inline constexpr NB_TBL nb_me_dmewipe_direction[] = { // of the whole transition, in percent
    {.id = 1, .caption = "Limit", .type = NB_2, .min = 0, .max = 100, .cmd = "~2@Edge/Direction@Pattern Limit@Limit"},
    NB_END,
};
inline constexpr NB_TBL nb_me_dmewipe_size[] = {
    {.id = 1, .caption = "Size", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Size@Size"},
    NB_END,
};
inline constexpr NB_TBL nb_me_dmewipe_trans[] = {
    {.id = 1, .caption = "Start", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Transparency@Start"},
    {.id = 2, .caption = "End",   .type = NB_2, .min = 0, .max = 100, .cmd = "~@Transparency@End"},
    NB_END,
};
inline constexpr NB_TBL nb_me_dmewipe_axis[] = {
    {.id = 1, .caption = "X", .type = NB_2, .min = -200, .max = 200, .cmd = "~@Axis Location@X"},
    {.id = 2, .caption = "Y", .type = NB_2, .min = -200, .max = 200, .cmd = "~@Axis Location@Y"},
    {.id = 3, .caption = "Z", .type = NB_2, .min = -200, .max = 200, .cmd = "~@Axis Location@Z"},
    NB_END,
};
inline constexpr NB_TBL nb_me_dmewipe_turns[] = {
    {.id = 1, .caption = "Turns", .type = NB_2, .min = -8, .max = 8, .cmd = "~@Turns"},
    NB_END,
};
inline constexpr NB_TBL nb_me_dmewipe_curl[] = { // percent of the picture's height, degrees
    {.id = 1, .caption = "Radius", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Curl@Radius"},
    {.id = 2, .caption = "Angle",  .type = NB_2, .min = -180, .max = 180, .cmd = "~@Curl@Angle"},
    NB_END,
};
inline constexpr NB_TBL nb_me_dmewipe_perspective[] = {
    {.id = 1, .caption = "Perspectv", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Perspective@Perspective"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_dmewipe_direction) && BoxesAreSound(nb_me_dmewipe_size) && BoxesAreSound(nb_me_dmewipe_trans));
static_assert(BoxesAreSound(nb_me_dmewipe_axis) && BoxesAreSound(nb_me_dmewipe_turns) && BoxesAreSound(nb_me_dmewipe_curl));

// A colour as everywhere: percent, percent, degrees.
#define NB_MATTE(name, path) \
    inline constexpr NB_TBL name[] = { \
        {.id = 1, .caption = "Luminance",  .type = NB_2, .min = 0, .max = 100,    .cmd = path "@Luminance"}, \
        {.id = 2, .caption = "Saturation", .type = NB_2, .min = 0, .max = 100,    .cmd = path "@Saturation"}, \
        {.id = 3, .caption = "Hue",        .type = NB_2, .min = 0, .max = 359.99, .cmd = path "@Hue"}, \
        NB_END, \
    }; \
    static_assert(BoxesAreSound(name));
NB_MATTE(nb_me_dmewipe_bkgd_matte, "~@Background@Matte")
NB_MATTE(nb_me_dmewipe_border_color1, "~@Border Matte@Color 1")
NB_MATTE(nb_me_dmewipe_border_color2, "~@Border Matte@Color 2")
NB_MATTE(nb_me_dmewipe_shadow_matte, "~@Drop Shadow@Matte")
#undef NB_MATTE

inline constexpr NB_TBL nb_me_dmewipe_border[] = {
    {.id = 1, .caption = "Width", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Border@Width"},
    NB_END,
};
inline constexpr NB_TBL nb_me_dmewipe_softedge[] = {
    {.id = 1, .caption = "Soft", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Soft@Soft"},
    NB_END,
};
inline constexpr NB_TBL nb_me_dmewipe_border_mix[] = { // how the two colours meet
    {.id = 1, .caption = "Size", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Border Matte@Mix@Size"},
    {.id = 2, .caption = "Soft", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Border Matte@Mix@Soft"},
    NB_END,
};
inline constexpr NB_TBL nb_me_dmewipe_shadow[] = {
    {.id = 1, .caption = "H Pos",   .type = NB_2, .min = -100, .max = 100, .cmd = "~@Drop Shadow@H Position"},
    {.id = 2, .caption = "V Pos",   .type = NB_2, .min = -100, .max = 100, .cmd = "~@Drop Shadow@V Position"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Drop Shadow@Density"},
    {.id = 4, .caption = "Soft",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Drop Shadow@Soft"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_dmewipe_border) && BoxesAreSound(nb_me_dmewipe_softedge));
static_assert(BoxesAreSound(nb_me_dmewipe_border_mix) && BoxesAreSound(nb_me_dmewipe_shadow));

inline constexpr NB_TBL nb_me_dmewipe_remove1[] = { // of the whole transition, in percent
    {.id = 1, .caption = "Start", .type = NB_2, .min = 0, .max = 100, .cmd = "~3@Remove From Begin@Start@1"},
    {.id = 2, .caption = "Limit", .type = NB_2, .min = 0, .max = 100, .cmd = "~3@Remove From Begin@Limit@1"},
    NB_END,
};
inline constexpr NB_TBL nb_me_dmewipe_remove2[] = {
    {.id = 1, .caption = "Start", .type = NB_2, .min = 0, .max = 100, .cmd = "~3@Remove From Begin@Start@2"},
    {.id = 2, .caption = "Limit", .type = NB_2, .min = 0, .max = 100, .cmd = "~3@Remove From Begin@Limit@2"},
    NB_END,
};
inline constexpr NB_TBL nb_me_dmewipe_remove3[] = {
    {.id = 1, .caption = "Start", .type = NB_2, .min = 0, .max = 100, .cmd = "~3@Remove From Begin@Start@3"},
    {.id = 2, .caption = "Limit", .type = NB_2, .min = 0, .max = 100, .cmd = "~3@Remove From Begin@Limit@3"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_dmewipe_remove1) && BoxesAreSound(nb_me_dmewipe_remove2) && BoxesAreSound(nb_me_dmewipe_remove3));

// --- Buttons ---

constexpr BT_TBL DmeWipeDirection(int id, const char* caption, const char* cmd)
{
    return Radio({.id = id, .caption = caption, .group = "Direction", .cmd = {cmd}});
}

// Two rows below the short list.
inline constexpr BT_TBL bt_me_dmewipe_pattern[] = {
    Action({.id = 33, .caption = "1 Channel",   .group = "Show Patterns", .cmd = {"LOCAL@Pattern Select@1 Channel"}}),
    Action({.id = 34, .caption = "2 Channels",  .group = "Show Patterns", .cmd = {"LOCAL@Pattern Select@2 Channels"}}),
    Action({.id = 35, .caption = "3 Channels",  .group = "Show Patterns", .cmd = {"LOCAL@Pattern Select@3 Channels"}}),
    Radio ({.id = 37, .caption = "DME",         .group = "Channel Set", .cmd = {"~@Channel Set#DME"}}),
    Radio ({.id = 38, .caption = "Internal",    .group = "Channel Set", .cmd = {"~@Channel Set#Internal"}}),
    DmeWipeDirection(49, "Normal",              "~2@Edge/Direction@Direction#Normal"),
    DmeWipeDirection(50, "Normal/\nReverse",    "~2@Edge/Direction@Direction#Normal/Reverse"),
    DmeWipeDirection(51, "Reverse",             "~2@Edge/Direction@Direction#Reverse"),
    Toggle({.id = 53, .caption = "Pattern\nLimit", .group = "Pattern Limit", .cmd = {"~2@Edge/Direction@Pattern Limit#*"}, .nb = nb_me_dmewipe_direction}),
    Action({.id = 54, .caption = "Set\nLimit",  .group = "Pattern Limit", .cmd = {"~2@Edge/Direction@Pattern Limit@Set#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_dmewipe_pattern));

inline constexpr BT_TBL bt_me_dmewipe_ptnmodifier[] = {
    Toggle({.id = 17, .caption = "Size",          .group = "Pattern", .tally_func = bt_tly_dmewipe_size,
            .cmd = {"~@Size#*", "~2@Pattern Select@Pattern#"}, .nb = nb_me_dmewipe_size}),
    Toggle({.id = 18, .caption = "Trans-\nparency", .group = "Pattern", .tally_func = bt_tly_dmewipe_trans,
            .cmd = {"~@Transparency#*", "~2@Pattern Select@Pattern#"}, .nb = nb_me_dmewipe_trans}),
    Toggle({.id = 19, .caption = "Axis\nLocation", .group = "Motion", .cmd = {"~@Axis Location#*"}, .nb = nb_me_dmewipe_axis}),
    Knobs ({.id = 20, .caption = "Number\nof Turns", .group = "Motion", .nb = nb_me_dmewipe_turns}),
    Knobs ({.id = 21, .caption = "Radius/\nAngle", .group = "Motion", .nb = nb_me_dmewipe_curl}),
    Toggle({.id = 22, .caption = "Perspective",   .group = "Motion", .cmd = {"~@Perspective#*"}, .nb = nb_me_dmewipe_perspective}),
    Toggle({.id = 33, .caption = "Invert",        .group = "Picture", .cmd = {"~@Invert#*"}}),
    Toggle({.id = 34, .caption = "Flip",          .group = "Picture", .cmd = {"~@Flip#*"}}),
    Toggle({.id = 35, .caption = "Tumble",        .group = "Picture", .cmd = {"~@Tumble#*"}}),
    Radio ({.id = 36, .caption = "Still",         .group = "Background", .cmd = {"~@Background#Still"}}),
    Radio ({.id = 37, .caption = "Fade",          .group = "Background", .cmd = {"~@Background#Fade"}}),
    Radio ({.id = 38, .caption = "Matte",         .group = "Background", .cmd = {"~@Background#Matte"}, .nb = nb_me_dmewipe_bkgd_matte}),
    Radio ({.id = 49, .caption = "Auto",          .group = "Priority", .cmd = {"~@Priority#Auto"}}),
    Radio ({.id = 50, .caption = "1st Ch\nTop",   .group = "Priority", .cmd = {"~@Priority#1st Ch"}}),
    Radio ({.id = 51, .caption = "2nd Ch\nTop",   .group = "Priority", .cmd = {"~@Priority#2nd Ch"}}),
    Radio ({.id = 52, .caption = "3rd Ch\nTop",   .group = "Priority", .cmd = {"~@Priority#3rd Ch"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_dmewipe_ptnmodifier));

inline constexpr BT_TBL bt_me_dmewipe_edgedirection[] = {
    Toggle({.id = 17, .caption = "Border",        .group = "Edge", .cmd = {"~@Border#*"}, .nb = nb_me_dmewipe_border}),
    Toggle({.id = 18, .caption = "Soft",          .group = "Edge", .cmd = {"~@Soft#*"}, .nb = nb_me_dmewipe_softedge}),
    Radio ({.id = 19, .caption = "Flat",          .group = "Border Matte", .cmd = {"~@Border Matte#Flat", "~@Border#false"}}),
    Radio ({.id = 20, .caption = "Mix",           .group = "Border Matte", .cmd = {"~@Border Matte#Mix", "~@Border#false"}, .nb = nb_me_dmewipe_border_mix}),
    Knobs ({.id = 21, .caption = "Color 1",       .group = "Border Matte", .cmd = {nullptr, "~@Border#false"}, .nb = nb_me_dmewipe_border_color1}),
    Knobs ({.id = 22, .caption = "Color 2",       .group = "Border Matte", .cmd = {nullptr, "~@Border#false", "~@Border Matte#Flat"}, .nb = nb_me_dmewipe_border_color2}),
    Toggle({.id = 33, .caption = "Drop\nShadow",  .group = "Shadow", .cmd = {"~@Drop Shadow#*"}, .nb = nb_me_dmewipe_shadow}),
    Knobs ({.id = 34, .caption = "Shadow\nColor", .group = "Shadow", .cmd = {nullptr, "~@Drop Shadow#false"}, .nb = nb_me_dmewipe_shadow_matte}),
    Toggle({.id = 37, .caption = "Pattern\nLimit", .group = "Pattern Limit", .cmd = {"~@Pattern Limit#*"}, .nb = nb_me_dmewipe_direction}),
    Action({.id = 38, .caption = "Set\nLimit",    .group = "Pattern Limit", .cmd = {"~@Pattern Limit@Set#*"}}),
    DmeWipeDirection(49, "Normal",              "~@Direction#Normal"),
    DmeWipeDirection(50, "Normal/\nReverse",    "~@Direction#Normal/Reverse"),
    DmeWipeDirection(51, "Reverse",             "~@Direction#Reverse"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_dmewipe_edgedirection));

inline constexpr BT_TBL bt_me_dmewipe_removefrombigin[] = {
    Toggle({.id = 17, .caption = "1st Ch", .group = "Remove From Begin", .cmd = {"~3@Remove From Begin@1#*"}, .nb = nb_me_dmewipe_remove1}),
    Toggle({.id = 18, .caption = "2nd Ch", .group = "Remove From Begin", .cmd = {"~3@Remove From Begin@2#*"}, .nb = nb_me_dmewipe_remove2}),
    Toggle({.id = 19, .caption = "3rd Ch", .group = "Remove From Begin", .cmd = {"~3@Remove From Begin@3#*"}, .nb = nb_me_dmewipe_remove3}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_dmewipe_removefrombigin));

inline constexpr BT_TBL bt_me_dmewipe_modify[] = {
    dmewipe_position, dmewipe_center, dmewipe_relative, dmewipe_crop, dmewipe_crop_4_3, dmewipe_size,
    dmewipe_top_left, dmewipe_top_right, dmewipe_ch1, dmewipe_ch2, dmewipe_ch3,
    dmewipe_bottom_left, dmewipe_bottom_right,
    Jump({.id = 54, .caption = "Remove\nBegin", .group = "Adjust", .cmd = {"#+11600007"}}),
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
    {.page = {.id = 0x11600007, .tree = {"M/E-1", "DME Wipe", "Modify", "Remove Begin"},
              .obj = {Base(base_sub, 0x11650000), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 0), Buttons(bt_me_dmewipe_removefrombigin), Boxes(NB_Non), Cells(st_me_dmewipe), Code(pc_me_dmewipe_modify_removefrombigin)}}, .where = MAIN},
    {.page = {.id = 0x11670000, .tree = {"M/E-1", "DME Wipe", "DME Wipe Snapshot"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 5), Boxes(NB_Non)}}},
};
