// me_key_mask: the two masks of a key. Written for M/E-1, Key1.
#pragma once
#include "me_banks.h"
#include "patterns.h"
#include "pc_me.h"
#include "pulldowns.h"
#include "st_me_key.h"

inline constexpr NB_TBL nb_me_key_mask_box[] = {
    {.id = 1,  .caption = "Left",   .type = NB_2, .min = -100, .max = 100, .cmd = "~@Box@Left"},
    {.id = 2,  .caption = "Right",  .type = NB_2, .min = -100, .max = 100, .cmd = "~@Box@Right"},
    {.id = 3,  .caption = "Top",    .type = NB_2, .min = -100, .max = 100, .cmd = "~@Box@Top"},
    {.id = 4,  .caption = "Bottom", .type = NB_2, .min = -100, .max = 100, .cmd = "~@Box@Bottom"},
    {.id = 5,  .caption = "Soft",   .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Box@Soft"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_mask_pattern[] = {
    {.id = 1,  .caption = "Size",   .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Pattern Mask@Size"},
    {.id = 2,  .caption = "Soft",   .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Pattern Mask@Soft"},
    {.id = 3,  .caption = "H Pos",  .type = NB_2, .min = -100, .max = 100, .cmd = "~@Pattern Mask@H Position"},
    {.id = 4,  .caption = "V Pos",  .type = NB_2, .min = -100, .max = 100, .cmd = "~@Pattern Mask@V Position"},
    {.id = 17, .caption = "Aspect", .type = NB_2, .min = -100, .max = 100, .cmd = "~@Pattern Mask@Aspect"},
    {.id = 18, .caption = "Angle",  .type = NB_2, .min = -360, .max = 360, .cmd = "~@Pattern Mask@Angle"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_mask_box) && BoxesAreSound(nb_me_key_mask_pattern));

inline constexpr BT_TBL bt_me_key_mainmask[] = {
    Toggle({.id = 17, .caption = "Main\nMask",    .group = "Mask", .cmd = {"~@Main Mask#*"}}),
    Toggle({.id = 18, .caption = "Mask\nInvert",  .group = "Mask", .cmd = {"~@Mask Invert#*", "~@Main Mask#false"}}),
    Radio ({.id = 33, .caption = "Box",           .group = "Mask Source", .cmd = {"~@Mask Source#Box", "~@Main Mask#false"}, .nb = nb_me_key_mask_box}),
    Radio ({.id = 34, .caption = "Pattern",       .group = "Mask Source", .cmd = {"~@Mask Source#Pattern", "~@Main Mask#false"}, .nb = nb_me_key_mask_pattern}),
    Radio ({.id = 35, .caption = "Utility 1\nBus", .group = "Mask Source", .cmd = {"~@Mask Source#Utility 1", "~@Main Mask#false"}}),
    Radio ({.id = 36, .caption = "Utility 2\nBus", .group = "Mask Source", .cmd = {"~@Mask Source#Utility 2", "~@Main Mask#false"}}),
    Jump  ({.id = 37, .caption = "Pattern\nSelect", .group = "Mask Source", .cmd = {"#+11130001", "~@Mask Source#!Pattern"}}),
    Tab   ({.id = 38, .caption = "Source",        .group = "Mask Source", .cmd = {"LOCAL@Mask Source", "~@Main Mask#false"}}),
    RadioRelease({.id = 49, .caption = "Force\nForegnd", .group = "Force", .cmd = {"~@Force#Foreground", "~@Main Mask#false"}}),
    RadioRelease({.id = 50, .caption = "Force\nBkgd", .group = "Force", .cmd = {"~@Force#Background", "~@Main Mask#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_mainmask));

inline constexpr BT_TBL bt_me_key_submask[] = {
    Toggle({.id = 17, .caption = "Sub\nMask",     .group = "Mask", .cmd = {"~@Sub Mask#*"}}),
    Toggle({.id = 18, .caption = "Mask\nInvert",  .group = "Mask", .cmd = {"~@Mask Invert#*", "~@Sub Mask#false"}}),
    Radio ({.id = 33, .caption = "Box",           .group = "Mask Source", .cmd = {"~@Mask Source#Box", "~@Sub Mask#false"}, .nb = nb_me_key_mask_box}),
    Radio ({.id = 34, .caption = "Pattern",       .group = "Mask Source", .cmd = {"~@Mask Source#Pattern", "~@Sub Mask#false"}, .nb = nb_me_key_mask_pattern}),
    RadioRelease({.id = 49, .caption = "Force\nForegnd", .group = "Force", .cmd = {"~@Force#Foreground", "~@Sub Mask#false"}}),
    RadioRelease({.id = 50, .caption = "Force\nBkgd", .group = "Force", .cmd = {"~@Force#Background", "~@Sub Mask#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_submask));

// --- The pages ---

inline constexpr MePage me_key_mask_pages[] = {
    {.page = {.id = 0x11130000, .tree = {"M/E-1", "Key1", "Main Mask"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 3), Buttons(bt_me_key_mainmask), Boxes(NB_Non), Cells(st_me_key), Code(pc_pulldown)}}},
    {.page = {.id = 0x11130001, .tree = {"M/E-1", "Key1", "Main Mask", "Ptn Select"},
              .obj = {Base(base_sub, 0x11130000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 3), Boxes(NB_Non), Patterns(ps_me_key_mainmask_maskptnsel)}}},
    {.page = {.id = 0x11140000, .tree = {"M/E-1", "Key1", "Sub Mask"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 4), Buttons(bt_me_key_submask), Boxes(NB_Non), Cells(st_me_key)}}},
};
