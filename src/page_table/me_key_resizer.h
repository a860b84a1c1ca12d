// me_key_resizer: the pages of a key's resizer: place and size, its filters, border and crop, effects, mask. Written for
// M/E-1, Key1.
#pragma once
#include "me_key_mask.h"

// --- Place and size ---

inline constexpr NB_TBL nb_me_key_resizer[] = {
    {.id = 1, .caption = "Size",   .type = NB_2, .min = 0,    .max = 200, .cmd = "~@Size"},
    {.id = 2, .caption = "H",      .type = NB_2, .min = -200, .max = 200, .cmd = "~@H"},
    {.id = 3, .caption = "V",      .type = NB_2, .min = -200, .max = 200, .cmd = "~@V"},
    {.id = 4, .caption = "Aspect", .type = NB_2, .min = -100, .max = 100, .cmd = "~@Aspect@Aspect"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_resizer_aspect[] = {
    {.id = 1, .caption = "H Size", .type = NB_2, .min = 0, .max = 200, .cmd = "~@Aspect@H Size"},
    {.id = 2, .caption = "V Size", .type = NB_2, .min = 0, .max = 200, .cmd = "~@Aspect@V Size"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_resizer) && BoxesAreSound(nb_me_key_resizer_aspect));

inline constexpr BT_TBL bt_me_key_resizer[] = {
    Toggle({.id = 17, .caption = "Resizer",      .group = "Resizer", .cmd = {"~@Resizer#*"}, .nb = nb_me_key_resizer}),
    Toggle({.id = 18, .caption = "Combine",      .group = "Resizer", .cmd = {"~@Combine#*", "~@Resizer#false"}}),
    Action({.id = 20, .caption = "Center",       .group = "Position", .cmd = {"~@Center#*", "~@Resizer#false"}}),
    Action({.id = 21, .caption = "Full Size",    .group = "Position", .cmd = {"~@Full Size#*", "~@Resizer#false"}}),
    Toggle({.id = 33, .caption = "Separate\nH/V", .group = "Aspect", .cmd = {"~@Aspect#*", "~@Resizer#false"}, .nb = nb_me_key_resizer_aspect}),
    Jump  ({.id = 49, .caption = "Process",      .group = "Adjust", .cmd = {"#+11150001", "~@Resizer#false"}}),
    Jump  ({.id = 50, .caption = "Border/\nCrop", .group = "Adjust", .cmd = {"#+11150002", "~@Resizer#false"}}),
    Jump  ({.id = 51, .caption = "Enhanced\nEffect", .group = "Adjust", .cmd = {"#+11150003", "~@Resizer#false"}}),
    Jump  ({.id = 52, .caption = "Mask",         .group = "Adjust", .cmd = {"#+11150004", "~@Resizer#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_resizer));

// --- Process: how the picture is made of the lines of the source ---

inline constexpr NB_TBL nb_me_key_resizer_filter[] = {
    {.id = 1, .caption = "H Filter", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Filter@H"},
    {.id = 2, .caption = "V Filter", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Filter@V"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_resizer_detail[] = {
    {.id = 1, .caption = "Level", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Detail@Level"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_resizer_filter) && BoxesAreSound(nb_me_key_resizer_detail));

inline constexpr BT_TBL bt_me_key_resizer_resproc[] = {
    Radio ({.id = 17, .caption = "Field",   .group = "Mode", .cmd = {"~@Mode#Field"}}),
    Radio ({.id = 18, .caption = "Frame",   .group = "Mode", .cmd = {"~@Mode#Frame"}}),
    Radio ({.id = 19, .caption = "Auto",    .group = "Mode", .cmd = {"~@Mode#Auto"}}),
    Toggle({.id = 33, .caption = "Filter",  .group = "Sharpness", .cmd = {"~@Filter#*"}, .nb = nb_me_key_resizer_filter}),
    Toggle({.id = 34, .caption = "Detail",  .group = "Sharpness", .cmd = {"~@Detail#*"}, .nb = nb_me_key_resizer_detail}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_resizer_resproc));

// --- Border and crop: an edge lies on its own side of the centre ---

inline constexpr NB_TBL nb_me_key_resizer_border[] = {
    {.id = 1, .caption = "Width",   .type = NB_2, .min = 0, .max = 100, .cmd = "~@Border@Width"},
    {.id = 2, .caption = "Soft",    .type = NB_2, .min = 0, .max = 100, .cmd = "~@Border@Soft"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Border@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_resizer_matte[] = {
    {.id = 1, .caption = "Luminance",  .type = NB_2, .min = 0, .max = 100,    .cmd = "~@Matte@Luminance"},
    {.id = 2, .caption = "Saturat'n",  .type = NB_2, .min = 0, .max = 100,    .cmd = "~@Matte@Saturation"},
    {.id = 3, .caption = "Hue",        .type = NB_2, .min = 0, .max = 359.99, .cmd = "~@Matte@Hue"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_resizer_crop[] = {
    {.id = 1, .caption = "Top",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Crop@Top"},
    {.id = 2, .caption = "Left",   .type = NB_2, .min = -100, .max = 0,   .cmd = "~@Crop@Left"},
    {.id = 3, .caption = "Right",  .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Crop@Right"},
    {.id = 4, .caption = "Bottom", .type = NB_2, .min = -100, .max = 0,   .cmd = "~@Crop@Bottom"},
    {.id = 5, .caption = "Soft",   .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Crop@Soft"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_resizer_border) && BoxesAreSound(nb_me_key_resizer_matte));
static_assert(BoxesAreSound(nb_me_key_resizer_crop));

// The border of a character generator comes with its picture: the resizer's own is then out of use.
inline constexpr BT_TBL bt_me_key_resizer_bordercrop[] = {
    Toggle({.id = 17, .caption = "Border",     .group = "Border", .cmd = {"~@Border#*", "~@CG Border#true"}, .nb = nb_me_key_resizer_border}),
    Toggle({.id = 18, .caption = "CG Border",  .group = "Border", .cmd = {"~@CG Border#*"}}),
    Toggle({.id = 20, .caption = "Matte",      .group = "Border Fill", .cmd = {"~@Matte#*", "~@CG Border#true"}, .nb = nb_me_key_resizer_matte}),
    Toggle({.id = 33, .caption = "Crop",       .group = "Crop", .cmd = {"~@Crop#*"}, .nb = nb_me_key_resizer_crop}),
    Action({.id = 34, .caption = "4:3 Crop",   .group = "Crop", .cmd = {"~@4:3 Crop#*", "~@Crop#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_resizer_bordercrop));

// --- Enhanced effects: one generator makes the mosaic or the defocus ---

inline constexpr NB_TBL nb_me_key_resizer_mosaic[] = {
    {.id = 1, .caption = "Size",   .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Mosaic@Size"},
    {.id = 2, .caption = "Aspect", .type = NB_2, .min = -100, .max = 100, .cmd = "~@Mosaic@Aspect"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_resizer_defocus[] = {
    {.id = 1, .caption = "H", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Defocus@H"},
    {.id = 2, .caption = "V", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Defocus@V"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_resizer_mosaic) && BoxesAreSound(nb_me_key_resizer_defocus));

inline constexpr BT_TBL bt_me_key_resizer_enhancedeffect[] = {
    Toggle({.id = 17, .caption = "Mosaic",   .group = "Effect", .cmd = {"~@Mosaic#*", "~@Defocus#true"}, .nb = nb_me_key_resizer_mosaic}),
    Toggle({.id = 18, .caption = "Defocus",  .group = "Effect", .cmd = {"~@Defocus#*", "~@Mosaic#true"}, .nb = nb_me_key_resizer_defocus}),
    Toggle({.id = 33, .caption = "Mono",     .group = "Video", .cmd = {"~@Mono#*"}}),
    Toggle({.id = 34, .caption = "Nega",     .group = "Video", .cmd = {"~@Nega#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_resizer_enhancedeffect));

// --- Mask ---

inline constexpr BT_TBL bt_me_key_resizer_mask[] = {
    Toggle({.id = 17, .caption = "Resizer\nMask", .group = "Mask", .cmd = {"~@Mask#*"}, .nb = nb_me_key_mask_box}),
    Toggle({.id = 18, .caption = "Mask\nInvert",  .group = "Mask", .cmd = {"~@Mask Invert#*", "~@Mask#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_resizer_mask));

// --- The pages ---

inline constexpr MePage me_key_resizer_pages[] = {
    {.page = {.id = 0x11150000, .tree = {"M/E-1", "Key1", "Resizer"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 5), Buttons(bt_me_key_resizer), Boxes(NB_Non), Cells(st_me_key)}}},
    {.page = {.id = 0x11150001, .tree = {"M/E-1", "Key1", "Resizer", "Process"},
              .obj = {Base(base_sub, 0x11150000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 5), Buttons(bt_me_key_resizer_resproc), Boxes(NB_Non), Cells(st_me_key)}}},
    {.page = {.id = 0x11150002, .tree = {"M/E-1", "Key1", "Resizer", "Border/Crop"},
              .obj = {Base(base_sub, 0x11150000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 5), Buttons(bt_me_key_resizer_bordercrop), Boxes(NB_Non), Cells(st_me_key)}}},
    {.page = {.id = 0x11150003, .tree = {"M/E-1", "Key1", "Resizer", "Enhanced Effect"},
              .obj = {Base(base_sub, 0x11150000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 5), Buttons(bt_me_key_resizer_enhancedeffect), Boxes(NB_Non), Cells(st_me_key)}}},
    {.page = {.id = 0x11150004, .tree = {"M/E-1", "Key1", "Resizer", "Mask"},
              .obj = {Base(base_sub, 0x11150000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 5), Buttons(bt_me_key_resizer_mask), Boxes(NB_Non), Cells(st_me_key)}}},
    {.page = {.id = 0x11150005, .tree = {"M/E-1", "Key1", "Resizer", "Rotation"},
              .obj = {Base(base_sub, 0x11150000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 5), Boxes(NB_Non), Cells(st_me_key)}}},
};
