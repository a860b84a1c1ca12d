// me_key_mask: the two masks of a key. Written for M/E-1, Key1.
#pragma once
#include "me_banks.h"
#include "patterns.h"
#include "pc_me_key_lower.h"
#include "pulldowns.h"
#include "st_me_key.h"

// The boxes of box and pattern follow the aspect of the bank.
inline constexpr NB_TBL nb_me_key_mask_bus1[] = {
    {.id = 1, .caption = "Clip",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Utility 1@Clip"},
    {.id = 2, .caption = "Gain",    .type = NB_2, .min = -100, .max = 100, .cmd = "~@Utility 1@Gain"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Utility 1@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_mask_bus2[] = {
    {.id = 1, .caption = "Clip",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Utility 2@Clip"},
    {.id = 2, .caption = "Gain",    .type = NB_2, .min = -100, .max = 100, .cmd = "~@Utility 2@Gain"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Utility 2@Density"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_mask_bus1) && BoxesAreSound(nb_me_key_mask_bus2));

// A utility bus belongs to the bank; what it carries is the last dependency of its button.
inline constexpr BT_TBL bt_me_key_mainmask[] = {
    Toggle({.id = 17, .caption = "Main\nMask",    .group = "Mask", .cmd = {"~@Main Mask#*"}}),
    Toggle({.id = 18, .caption = "Mask\nInvert",  .group = "Mask", .cmd = {"~@Mask Invert#*", "~@Main Mask#false"}}),
    Radio ({.id = 33, .caption = "Box",           .group = "Mask Source", .cmd = {"~@Mask Source#Box", "~@Main Mask#false"}, .nb = SpecialKnob(11)}),
    Radio ({.id = 34, .caption = "Pattern",       .group = "Mask Source", .cmd = {"~@Mask Source#Pattern", "~@Main Mask#false"}, .nb = SpecialKnob(12)}),
    Radio ({.id = 35, .caption = "Utility 1\nBus", .group = "Mask Source", .cmd = {"~@Mask Source#Utility 1", "~@Main Mask#false", "~1@Status@Xpt Assign@UTIL1#"}, .nb = nb_me_key_mask_bus1}),
    Radio ({.id = 36, .caption = "Utility 2\nBus", .group = "Mask Source", .cmd = {"~@Mask Source#Utility 2", "~@Main Mask#false", "~1@Status@Xpt Assign@UTIL2#"}, .nb = nb_me_key_mask_bus2}),
    Jump  ({.id = 37, .caption = "Pattern\nSelect", .group = "Mask Source", .cmd = {"#+11130001"}}),
    Tab   ({.id = 38, .caption = "Source",        .group = "Mask Source", .cmd = {"LOCAL@Mask Source"}}),
    RadioRelease({.id = 49, .caption = "Force\nForegnd", .group = "Force", .cmd = {"~@Force#Foreground", "~@Main Mask#false"}}),
    RadioRelease({.id = 50, .caption = "Force\nBkgd", .group = "Force", .cmd = {"~@Force#Background", "~@Main Mask#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_mainmask));

// The pattern of a sub mask is the second pattern of the bank's wipe, so it is chosen there.
inline constexpr BT_TBL bt_me_key_submask[] = {
    Toggle({.id = 17, .caption = "Sub\nMask",     .group = "Mask", .cmd = {"~@Sub Mask#*"}}),
    Toggle({.id = 18, .caption = "Mask\nInvert",  .group = "Mask", .cmd = {"~@Mask Invert#*", "~@Sub Mask#false"}}),
    Radio ({.id = 33, .caption = "Box",           .group = "Mask Source", .cmd = {"~@Mask Source#Box", "~@Sub Mask#false"}, .nb = SpecialKnob(11)}),
    Radio ({.id = 34, .caption = "Pattern",       .group = "Mask Source", .cmd = {"~@Mask Source#Pattern", "~@Sub Mask#false"}, .nb = SpecialKnob(12)}),
    Radio ({.id = 35, .caption = "Utility 1\nBus", .group = "Mask Source", .cmd = {"~@Mask Source#Utility 1", "~@Sub Mask#false", "~1@Status@Xpt Assign@UTIL1#"}, .nb = nb_me_key_mask_bus1}),
    Radio ({.id = 36, .caption = "Utility 2\nBus", .group = "Mask Source", .cmd = {"~@Mask Source#Utility 2", "~@Sub Mask#false", "~1@Status@Xpt Assign@UTIL2#"}, .nb = nb_me_key_mask_bus2}),
    Jump  ({.id = 37, .caption = "Pattern\nSelect", .group = "Mask Source", .select_func = bt_sel_submask_ptnsel, .cmd = {"#11520000"}}),
    RadioRelease({.id = 49, .caption = "Force\nForegnd", .group = "Force", .cmd = {"~@Force#Foreground", "~@Sub Mask#false"}}),
    RadioRelease({.id = 50, .caption = "Force\nBkgd", .group = "Force", .cmd = {"~@Force#Background", "~@Sub Mask#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_submask));

// --- The pages ---

inline constexpr MePage me_key_mask_pages[] = {
    {.page = {.id = 0x11130000, .tree = {"M/E-1", "Key1", "Main Mask"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 3), Buttons(bt_me_key_mainmask), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_mainmask)}}},
    {.page = {.id = 0x11130001, .tree = {"M/E-1", "Key1", "Main Mask", "Ptn Select"},
              .obj = {Base(base_sub, 0x11130000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 3), Boxes(NB_Non), Patterns(ps_me_key_mainmask_maskptnsel), Code(pc_me_mainmask_ptnsel)}}},
    {.page = {.id = 0x11140000, .tree = {"M/E-1", "Key1", "Sub Mask"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 4), Buttons(bt_me_key_submask), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_submask)}}},
};
