// me_key_edge: the edge of a key: its kinds, what fills it, and the plate behind the key. Written for M/E-1, Key1.
#pragma once
#include "me_banks.h"
#include "me_key_matte.h"
#include "nb_rows.h"
#include "pc_me.h"
#include "pc_me_key.h"
#include "st_me_key.h"

// --- Boxes ---

// What fills the edge is adjusted on a page of its own; its first colour is at hand beside the choice.
inline constexpr NB_TBL nb_me_key_edge_matte[] = {NB_COLOR("~3@Matte Adjust@Color 1"), NB_END};
// The plate behind the key: a pattern with a soft edge.
inline constexpr NB_TBL nb_me_key_edge_zabton[] = {
    {.id = 1, .caption = "Size",    .type = NB_2, .min = 0, .max = 100, .cmd = "~3@Zabton@Size"},
    {.id = 2, .caption = "Soft",    .type = NB_2, .min = 0, .max = 100, .cmd = "~3@Zabton@Soft"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "~3@Zabton@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_zabton_position[] = {
    {.id = 1, .caption = "H", .type = NB_2, .min = -200, .max = 200, .cmd = "~3@Zabton@Position@H"},
    {.id = 2, .caption = "V", .type = NB_2, .min = -200, .max = 200, .cmd = "~3@Zabton@Position@V"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_zabton_aspect[] = {
    {.id = 1, .caption = "Aspect", .type = NB_2, .min = -100, .max = 100, .cmd = "~3@Zabton@Aspect@Aspect"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_zabton_angle[] = {
    {.id = 1, .caption = "Angle\ndeg", .type = NB_2, .min = -360, .max = 360, .cmd = "~3@Zabton@Angle@Angle"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_edge_matte) && BoxesAreSound(nb_me_key_edge_zabton));
static_assert(BoxesAreSound(nb_me_key_edge_zabton_position) && BoxesAreSound(nb_me_key_edge_zabton_aspect));
static_assert(BoxesAreSound(nb_me_key_edge_zabton_angle));

// --- Buttons ---

// A fine key of a chroma key has no edge: the two dependencies of bt_tly_edge.
#define LOST_IN_CHROMA "~@Fine Key#", "~2@Type@Key Type#"
// Those of bt_tly_edgeadj. The plate has a fill whatever the key; an edge of these kinds has none, nor has one that is
// lost.
#define NO_FILL(kinds) "~3@Edge#!Zabton", "~3@Edge#" kinds, "~3@Fine Key#true", "~3@Edge#" kinds, "~2@Type@Key Type#Chroma"
inline constexpr BT_TBL bt_me_key_edge[] = {
    Radio ({.id = 17, .caption = "Normal",       .group = "Edge Type", .cmd = {"~@Edge#Normal"}}),
    // Its knobs look at the first four dependencies by their place, which leaves no room for bt_tly_edge.
    Radio ({.id = 18, .caption = "Border",       .group = "Edge Type",
            .cmd = {"~@Edge#Border", "~2@Type@Key Type#", "~@Separate Edge#", "~@Fine Key#", "~@Key Drop#", "LOCAL@M/E@Key@Edge@Edge#false"},
            .nb = SpecialKnob(1)}),
    Radio ({.id = 19, .caption = "Drop\nBorder", .group = "Edge Type", .tally_func = bt_tly_edge,
            .cmd = {"~@Edge#Drop Border", LOST_IN_CHROMA, "~@Separate Edge#"}, .nb = SpecialKnob(2)}),
    Radio ({.id = 20, .caption = "Shadow",       .group = "Edge Type", .tally_func = bt_tly_edge,
            .cmd = {"~@Edge#Shadow", LOST_IN_CHROMA, "~@Separate Edge#"}, .nb = SpecialKnob(3)}),
    Radio ({.id = 33, .caption = "Outline",      .group = "Edge Type", .tally_func = bt_tly_edge,
            .cmd = {"~@Edge#Outline", LOST_IN_CHROMA, "~@Separate Edge#"}, .nb = SpecialKnob(4)}),
    Radio ({.id = 34, .caption = "Emboss",       .group = "Edge Type", .tally_func = bt_tly_edge,
            .cmd = {"~@Edge#Emboss", LOST_IN_CHROMA}, .nb = SpecialKnob(6)}),
    Radio ({.id = 35, .caption = "Zabton",       .group = "Edge Type", .cmd = {"~@Edge#Zabton"}, .nb = nb_me_key_edge_zabton}),
    Jump  ({.id = 36, .caption = "Zabton\nAdjust", .group = "Edge Type", .cmd = {"#+11120003", "~@Edge#!Zabton"}}),
    Toggle({.id = 21, .caption = "Separate\nEdge", .group = "Edge Modify", .cmd = {"~@Separate Edge#*", "LOCAL@M/E@Key@Edge@Sides#false"}}),
    Toggle({.id = 22, .caption = "Fine Key",     .group = "Edge Modify", .cmd = {"~@Fine Key#*"}}),
    Toggle({.id = 37, .caption = "Soft Edge",    .group = "Edge Modify", .tally_func = bt_tly_edge,
            .cmd = {"~@Soft Edge#*", LOST_IN_CHROMA, "~@Separate Edge#"}, .nb = SpecialKnob(7)}),
    // It makes room above the key for an edge; a pattern fills its place as it is.
    Toggle({.id = 38, .caption = "Key Drop",     .group = "Edge Modify", .tally_func = bt_tly_keydrop,
            .cmd = {"~@Key Drop#*", "~@Edge#Normal,Emboss,Zabton", "~@Fine Key#true", "~2@Type@Key Type#Chroma",
                    "~2@Type@Key Type#Wipe Pattern,Key Wipe Pattern"}, .nb = SpecialKnob(8)}),
    Radio ({.id = 49, .caption = "Utility 1\nBus", .group = "Edge Fill", .tally_func = bt_tly_edgeadj,
            .cmd = {"~@Edge Fill#Utility 1", NO_FILL("Normal,Outline,Emboss")}}),
    Radio ({.id = 50, .caption = "Utility 2\nBus", .group = "Edge Fill", .tally_func = bt_tly_edgeadj,
            .cmd = {"~@Edge Fill#Utility 2", NO_FILL("Normal,Outline,Emboss")}}),
    Radio ({.id = 51, .caption = "Matte",        .group = "Edge Fill", .tally_func = bt_tly_edgeadj,
            .cmd = {"~@Edge Fill#Matte", NO_FILL("Normal,Outline")}, .nb = nb_me_key_edge_matte}),
    Jump  ({.id = 52, .caption = "Matte\nAdjust", .group = "Edge Fill", .cmd = {"#+11120001", "LOCAL@M/E@Key@Edge@Matte#false"}}),
    Jump  ({.id = 54, .caption = "Key\nSnapshot", .group = "Register", .cmd = {"#+11110005"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_edge));
#undef LOST_IN_CHROMA
#undef NO_FILL

inline constexpr MatteButtons bt_me_key_edge_matteadj = MatteButtonsOf("#+11120002");
static_assert(ButtonsAreSound(bt_me_key_edge_matteadj.row));

#define IF_ZABTON "~3@Edge#!Zabton"
inline constexpr BT_TBL bt_me_key_edge_zabtonadj[] = {
    Radio ({.id = 17, .caption = "Zabton",       .group = "Zabton",    .cmd = {"~3@Edge#Zabton"}, .nb = nb_me_key_edge_zabton}),
    Toggle({.id = 18, .caption = "Position",     .group = "Zabton",    .cmd = {"~@Position#*", IF_ZABTON}, .nb = nb_me_key_edge_zabton_position}),
    Toggle({.id = 19, .caption = "Aspect",       .group = "Zabton",    .cmd = {"~@Aspect#*", IF_ZABTON}, .nb = nb_me_key_edge_zabton_aspect}),
    Toggle({.id = 20, .caption = "Angle",        .group = "Zabton",    .cmd = {"~@Angle#*", IF_ZABTON}, .nb = nb_me_key_edge_zabton_angle}),
    Jump  ({.id = 21, .caption = "Pattern\nSelect", .group = "Zabton", .cmd = {"#+11120004", IF_ZABTON}}),
    Radio ({.id = 33, .caption = "Utility 1\nBus", .group = "Edge Fill", .cmd = {"~3@Edge Fill#Utility 1", IF_ZABTON}}),
    Radio ({.id = 34, .caption = "Utility 2\nBus", .group = "Edge Fill", .cmd = {"~3@Edge Fill#Utility 2", IF_ZABTON}}),
    Radio ({.id = 35, .caption = "Matte",        .group = "Edge Fill", .cmd = {"~3@Edge Fill#Matte", IF_ZABTON}, .nb = nb_me_key_edge_matte}),
    Jump  ({.id = 36, .caption = "Matte\nAdjust", .group = "Edge Fill", .cmd = {"#+11120001", IF_ZABTON, "~3@Edge Fill#!Matte"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_edge_zabtonadj));
#undef IF_ZABTON

// --- Patterns ---

inline constexpr PS_TBL ps_me_key_edge_zabtonptn = {
    .cmd = "~4@Pattern", .init_nb = nb_me_key_edge_zabton, .init_nb_caption = "Zabton"};

// --- The pages ---

inline constexpr MePage me_key_edge_pages[] = {
    {.page = {.id = 0x11120000, .tree = {"M/E-1", "Key1", "Edge"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 2), Buttons(bt_me_key_edge), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_edge)}}},
    {.page = {.id = 0x11120001, .tree = {"M/E-1", "Key1", "Edge", "Matte Adjust"},
              .obj = {Base(base_sub, 0x11120000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 2), Buttons(bt_me_key_edge_matteadj.row), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_edge_matteadj)}}},
    {.page = {.id = 0x11120002, .tree = {"M/E-1", "Key1", "Edge", "Matte Adjust", "Mix Pattern"},
              .obj = {Base(base_sub, 0x11120001), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 2), Boxes(NB_Non), Patterns(ps_me_key_matte_mixptn)}}},
    {.page = {.id = 0x11120003, .tree = {"M/E-1", "Key1", "Edge", "Zabton"},
              .obj = {Base(base_sub, 0x11120000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 2), Buttons(bt_me_key_edge_zabtonadj), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_edge_zabtonadj)}}},
    {.page = {.id = 0x11120004, .tree = {"M/E-1", "Key1", "Edge", "Zabton", "Ptn Select"},
              .obj = {Base(base_sub, 0x11120003), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 2), Boxes(NB_Non), Patterns(ps_me_key_edge_zabtonptn)}}},
};
