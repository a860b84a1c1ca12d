// me_key_process: the pages of a key whose picture goes through channels of an effects unit. Written for M/E-1, Key1.
#pragma once
#include "me_key_resizer.h"

// --- Which channels, and where they put the picture: a key that turns has a depth ---

// A channel is free, ours or somebody else's: the page code decides what its button may do and who is named on it.
#define DME_SELECT(place, n) Toggle({.id = place, .caption = "DME" n, .group = "DME Select", .cmd = {"LOCAL@Processed Key@DME Select@DME" n "#*"}})
inline constexpr BT_TBL bt_me_key_prockey[] = {
    Toggle({.id = 17, .caption = "Processed\nKey", .group = "Proc Key", .cmd = {"~@Processed Key#*"}}),
    Knobs ({.id = 18, .caption = "Location",     .group = "Transform", .cmd = {"", "~@Processed Key#false", KEY_ROTATION}, .nb = SpecialKnob(24), .no_add = 3}),
    Knobs ({.id = 19, .caption = "Rotation",     .group = "Transform", .cmd = {"", "~@Processed Key#false", KEY_ROTATION}, .nb = SpecialKnob(23), .no_add = 3}),
    Knobs ({.id = 20, .caption = "Size",         .group = "Transform", .cmd = {"", "~@Processed Key#false", "~@Aspect#"}, .nb = SpecialKnob(25)}),
    Toggle({.id = 21, .caption = "Separate\nH/V", .group = "Transform", .cmd = {"~@Aspect#*", "~@Processed Key#false"}}),
    Action({.id = 22, .caption = "Center",       .group = "Transform", .cmd = {"~@Center#*", "~@Processed Key#false"}}),
    DME_SELECT(33, "1"),
    DME_SELECT(34, "2"),
    DME_SELECT(35, "3"),
    DME_SELECT(36, "4"),
    DME_SELECT(49, "5"),
    DME_SELECT(50, "6"),
    DME_SELECT(51, "7"),
    DME_SELECT(52, "8"),
    Toggle({.id = 37, .caption = "Override",     .group = "DME Select", .cmd = {"LOCAL@Processed Key@Override#*"}}),
    Jump  ({.id = 38, .caption = "Border/\nCrop", .group = "Adjust", .cmd = {"#+11160003", "~@Processed Key#false"}}),
    Jump  ({.id = 54, .caption = "Monitor",      .group = "Adjust", .cmd = {"#+11160001"}}),
    BT_END,
};
#undef DME_SELECT
static_assert(ButtonsAreSound(bt_me_key_prockey));

// --- Monitor: the system has one such output for all channels ---

#define DME_MONITOR(place, n) Radio({.id = place, .caption = "DME" n, .group = "Monitor", .cmd = {"LOCAL@Processed Key@Monitor#" n}})
inline constexpr BT_TBL bt_me_key_prockey_mon[] = {
    DME_MONITOR(17, "1"),
    DME_MONITOR(18, "2"),
    DME_MONITOR(19, "3"),
    DME_MONITOR(20, "4"),
    DME_MONITOR(33, "5"),
    DME_MONITOR(34, "6"),
    DME_MONITOR(35, "7"),
    DME_MONITOR(36, "8"),
    BT_END,
};
#undef DME_MONITOR
static_assert(ButtonsAreSound(bt_me_key_prockey_mon));

// --- Border and crop ---

// On the second layer two edges or all four go together. Such a value exists only here: the page code turns it into
// edges, and takes the bare counts of the knobs. V runs backwards, so that every bar is empty where nothing is cropped.
inline constexpr NB_TBL nb_me_key_prockey_edges[] = {
    {.id = 1,  .caption = "Top",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Crop@Top"},
    {.id = 2,  .caption = "Left",   .type = NB_2, .min = -100, .max = 0,   .cmd = "~@Crop@Left"},
    {.id = 3,  .caption = "Right",  .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Crop@Right"},
    {.id = 4,  .caption = "Bottom", .type = NB_2, .min = -100, .max = 0,   .cmd = "~@Crop@Bottom"},
    {.id = 5,  .caption = "Soft",   .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Crop@Soft"},
    {.id = 17, .caption = "H",      .type = NB_2, .min = -100, .max = 0,   .cmd = "LOCAL@Panel@Common@Knob0", .scale = 0.5},
    {.id = 18, .caption = "V",      .type = NB_2, .min = 100,  .max = 0,   .cmd = "LOCAL@Panel@Common@Knob1", .scale = -0.5},
    {.id = 19, .caption = "All",    .type = NB_2, .min = -100, .max = 0,   .cmd = "LOCAL@Panel@Common@Knob2", .scale = 0.5},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_prockey_edges));

inline constexpr BT_TBL bt_me_key_prockey_bordercrop[] = {
    Toggle({.id = 17, .caption = "Border",     .group = "Border", .cmd = {"~@Border#*"}, .nb = SpecialKnob(5)}),
    BORDER_FILL,
    Toggle({.id = 33, .caption = "Crop",       .group = "Crop", .cmd = {"~@Crop#*"}, .nb = nb_me_key_prockey_edges}),
    Action({.id = 34, .caption = "4:3 Crop",   .group = "Crop", .cmd = {"~@4:3 Crop#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_prockey_bordercrop));

// --- The pages ---

inline constexpr MePage me_key_process_pages[] = {
    {.page = {.id = 0x11160000, .tree = {"M/E-1", "Key1", "Processed Key"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 6), Buttons(bt_me_key_prockey), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_prockey)}}},
    {.page = {.id = 0x11160001, .tree = {"M/E-1", "Key1", "Processed Key", "Monitor"},
              .obj = {Base(base_sub, 0x11160000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 6), Buttons(bt_me_key_prockey_mon), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_prockey_mon)}}},
    {.page = {.id = 0x11160003, .tree = {"M/E-1", "Key1", "Processed Key", "Border/Crop"},
              .obj = {Base(base_sub, 0x11160000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 6), Buttons(bt_me_key_prockey_bordercrop), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_prockey_bordercrop)}}},
};
