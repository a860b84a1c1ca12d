// me_key_resizer: the pages of a key's resizer: place and size, its filters, border and crop, effects, mask. Written for
// M/E-1, Key1.
#pragma once
#include "me_banks.h"
#include "nb_rows.h"
#include "patterns.h"
#include "pc_me_key_lower.h"
#include "st_me_key.h"

// Lets a shown column follow the rotation of the key. That is subscribed for good: a row only reads it (no_add).
inline constexpr char KEY_ROTATION[] = "~2@Processed Key@Rotation#";

// --- Place and size ---

// Nothing of the resizer has a condition in its row: what is grey is worked out by the page code.
inline constexpr BT_TBL bt_me_key_resizer[] = {
    Toggle({.id = 17, .caption = "Resizer",      .group = "Resizer", .cmd = {"~2@Processed Key@Resizer#*", KEY_ROTATION}, .nb = SpecialKnob(14), .no_add = 2}),
    Toggle({.id = 18, .caption = "Combine",      .group = "Resizer", .cmd = {"~@Combine#*"}}),
    Action({.id = 20, .caption = "Center",       .group = "Position", .cmd = {"~@Center#*"}}),
    Action({.id = 21, .caption = "Full Size",    .group = "Position", .cmd = {"~@Full Size#*"}}),
    Knobs ({.id = 33, .caption = "Aspect",       .group = "Aspect", .cmd = {"", "~@Aspect#"}, .nb = SpecialKnob(17)}),
    Toggle({.id = 34, .caption = "Separate\nH/V", .group = "Aspect", .cmd = {"~@Aspect#*"}}),
    Action({.id = 35, .caption = "Unity",        .group = "Aspect", .cmd = {"~@Aspect@Unity#*"}}),
    Jump  ({.id = 49, .caption = "Process",      .group = "Adjust", .cmd = {"#+11150001"}}),
    Jump  ({.id = 50, .caption = "Border/\nCrop", .group = "Adjust", .cmd = {"#+11150002"}}),
    Jump  ({.id = 51, .caption = "Enhanced\nEffect", .group = "Adjust", .cmd = {"#+11150003"}}),
    Jump  ({.id = 52, .caption = "Mask",         .group = "Adjust", .cmd = {"#+11150004"}}),
    Jump  ({.id = 53, .caption = "Rotation",     .group = "Adjust", .cmd = {"#+11150005"}}),
    Jump  ({.id = 54, .caption = "Fill/\nSource", .group = "Signal", .cmd = {"#+11100000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_resizer));

// --- Process: how the picture is made of the lines of the source ---

inline constexpr NB_TBL nb_me_key_resizer_filter[] = {
    {.id = 1, .caption = "H Filter", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Filter@H"},
    {.id = 2, .caption = "V Filter", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Filter@V"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_resizer_detail[] = { // coring leaves noise below it alone
    {.id = 1, .caption = "Level",  .type = NB_2, .min = 0, .max = 100, .cmd = "~@Detail@Level"},
    {.id = 2, .caption = "Coring", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Detail@Coring"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_resizer_moire[] = {
    {.id = 1, .caption = "Level", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Anti Moire@Level"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_resizer_motion[] = { // from here on a picture counts as moving
    {.id = 1, .caption = "Motion", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Mode@Motion"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_resizer_filter) && BoxesAreSound(nb_me_key_resizer_detail));
static_assert(BoxesAreSound(nb_me_key_resizer_moire) && BoxesAreSound(nb_me_key_resizer_motion));

inline constexpr BT_TBL bt_me_key_resizer_resproc[] = {
    Radio ({.id = 17, .caption = "Auto",    .group = "Video Process", .cmd = {"~@Mode#Auto"}, .nb = nb_me_key_resizer_motion}),
    Radio ({.id = 18, .caption = "Field",   .group = "Video Process", .cmd = {"~@Mode#Field"}}),
    Radio ({.id = 19, .caption = "Frame",   .group = "Video Process", .cmd = {"~@Mode#Frame"}}),
    Radio ({.id = 20, .caption = "As\nVideo", .group = "Key Process", .cmd = {"~@Key Mode#Video"}}),
    Radio ({.id = 21, .caption = "Field",   .group = "Key Process", .cmd = {"~@Key Mode#Field"}}),
    Radio ({.id = 22, .caption = "Frame",   .group = "Key Process", .cmd = {"~@Key Mode#Frame"}}),
    Toggle({.id = 33, .caption = "Filter",  .group = "Sharpness", .cmd = {"~@Filter#*"}, .nb = nb_me_key_resizer_filter}),
    Toggle({.id = 34, .caption = "Auto\nFilter", .group = "Sharpness", .cmd = {"~@Filter@Auto#*"}}),
    Toggle({.id = 35, .caption = "Detail",  .group = "Sharpness", .cmd = {"~@Detail#*"}, .nb = nb_me_key_resizer_detail}),
    Toggle({.id = 36, .caption = "Anti\nMoire", .group = "Sharpness", .cmd = {"~@Anti Moire#*"}, .nb = nb_me_key_resizer_moire}),
    Action({.id = 38, .caption = "Unity",   .group = "Process", .cmd = {"~@Unity#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_resizer_resproc));

// --- Border and crop ---

// The matte of a border, also that of a processed key.
inline constexpr NB_TBL nb_me_key_border_color1[] = {NB_COLOR("~@Border Fill@Color 1"), NB_END};
inline constexpr NB_TBL nb_me_key_border_color2[] = {NB_COLOR("~@Border Fill@Color 2"), NB_END};
inline constexpr NB_TBL nb_me_key_border_mix[] = {
    {.id = 1, .caption = "Pattern", .type = NB_INT, .min = 1, .max = 304, .cmd = "~@Border Fill@Mix Pattern@Pattern"},
    {.id = 2, .caption = "Size",    .type = NB_2,   .min = 0, .max = 100, .cmd = "~@Border Fill@Mix Pattern@Size"},
    {.id = 3, .caption = "Soft",    .type = NB_2,   .min = 0, .max = 100, .cmd = "~@Border Fill@Mix Pattern@Soft"},
    NB_END,
};
static_assert(LayerName[std::size(LayerName) - 1].last == 304);
// An edge lies on its own side of the centre. On the second layer two edges or all four go together: H and All give the
// left one, V gives the top one, the others are their mirror images.
inline constexpr NB_TBL nb_me_key_resizer_crop[] = {
    {.id = 1,  .caption = "Top",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Crop@Top"},
    {.id = 2,  .caption = "Left",   .type = NB_2, .min = -100, .max = 0,   .cmd = "~@Crop@Left"},
    {.id = 3,  .caption = "Right",  .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Crop@Right"},
    {.id = 4,  .caption = "Bottom", .type = NB_2, .min = -100, .max = 0,   .cmd = "~@Crop@Bottom"},
    {.id = 5,  .caption = "Soft",   .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Crop@Soft"},
    {.id = 17, .caption = "H",      .type = NB_2, .min = -100, .max = 0,   .cmd = "~@Crop@H"},
    {.id = 18, .caption = "V",      .type = NB_2, .min = 100,  .max = 0,   .cmd = "~@Crop@V"},
    {.id = 19, .caption = "All",    .type = NB_2, .min = -100, .max = 0,   .cmd = "~@Crop@All"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_resizer_crop) && BoxesAreSound(nb_me_key_border_mix));
static_assert(BoxesAreSound(nb_me_key_border_color1) && BoxesAreSound(nb_me_key_border_color2));

#define BORDER_FILL \
    Radio ({.id = 20, .caption = "Flat",         .group = "Border Fill", .cmd = {"~@Border Fill#Flat"}}), \
    Radio ({.id = 21, .caption = "Mix",          .group = "Border Fill", .cmd = {"~@Border Fill#Mix"}}), \
    Knobs ({.id = 22, .caption = "Mix\nPattern", .group = "Border Fill", .nb = nb_me_key_border_mix}), \
    Knobs ({.id = 36, .caption = "Color 1",      .group = "Border Fill", .nb = nb_me_key_border_color1}), \
    Knobs ({.id = 37, .caption = "Color 2",      .group = "Border Fill", .nb = nb_me_key_border_color2}), \
    Action({.id = 38, .caption = "Copy\n1 to 2", .group = "Border Fill", .cmd = {"~@Border Fill@Copy#*"}})
inline constexpr BT_TBL bt_me_key_resizer_bordercrop[] = {
    Toggle({.id = 17, .caption = "Border",     .group = "Border", .cmd = {"~@Border#*", "~@Border@Separate#"}, .nb = SpecialKnob(16)}),
    Toggle({.id = 18, .caption = "Separate\nH/V", .group = "Border", .cmd = {"~@Border@Separate#*"}}),
    Toggle({.id = 19, .caption = "CG Border",  .group = "Border", .select_func = bt_sel_cgborder, .cmd = {"~@CG Border#*"}}),
    BORDER_FILL,
    Toggle({.id = 33, .caption = "Crop",       .group = "Crop", .cmd = {"~@Crop#*"}, .nb = nb_me_key_resizer_crop}),
    Action({.id = 34, .caption = "4:3 Crop",   .group = "Crop", .cmd = {"~@4:3 Crop#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_resizer_bordercrop));

// --- Enhanced effects: one generator makes the mosaic or the defocus ---

inline constexpr NB_TBL nb_me_key_resizer_mono[] = { // the colour that is left
    {.id = 1, .caption = "Saturation", .type = NB_2, .min = 0, .max = 100,    .cmd = "~@Mono@Saturation"},
    {.id = 2, .caption = "Hue",       .type = NB_2, .min = 0, .max = 359.99, .cmd = "~@Mono@Hue"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_resizer_posterize[] = {
    {.id = 1, .caption = "Level", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Posterization@Level"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_resizer_mono) && BoxesAreSound(nb_me_key_resizer_posterize));

inline constexpr BT_TBL bt_me_key_resizer_enhancedeffect[] = {
    Toggle({.id = 17, .caption = "Mosaic",   .group = "Effect", .cmd = {"~@Mosaic#*"}, .nb = SpecialKnob(19)}),
    Toggle({.id = 18, .caption = "Defocus",  .group = "Effect", .cmd = {"~@Defocus#*", "~@Defocus@Separate#"}, .nb = SpecialKnob(20)}),
    Toggle({.id = 19, .caption = "Defocus\nSep. H/V", .group = "Effect", .cmd = {"~@Defocus@Separate#*"}}),
    Toggle({.id = 33, .caption = "Mono",     .group = "Video", .cmd = {"~@Mono#*"}, .nb = nb_me_key_resizer_mono}),
    Toggle({.id = 34, .caption = "Poster-\nization", .group = "Video", .cmd = {"~@Posterization#*"}, .nb = nb_me_key_resizer_posterize}),
    Toggle({.id = 35, .caption = "Nega Y",   .group = "Video", .cmd = {"~@Nega@Y#*"}}),
    Toggle({.id = 36, .caption = "Nega C",   .group = "Video", .cmd = {"~@Nega@C#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_resizer_enhancedeffect));

// --- Mask ---

inline constexpr BT_TBL bt_me_key_resizer_mask[] = {
    Toggle({.id = 17, .caption = "Mask",         .group = "Mask", .cmd = {"~@Mask#*", KEY_ROTATION}, .nb = SpecialKnob(21), .no_add = 2}),
    Toggle({.id = 18, .caption = "Mask\nInvert",  .group = "Mask", .cmd = {"~@Mask Invert#*"}}),
    RadioRelease({.id = 19, .caption = "Force\nForegnd", .group = "Force", .cmd = {"~@Force#Foreground"}}),
    RadioRelease({.id = 20, .caption = "Force\nBkgd", .group = "Force", .cmd = {"~@Force#Background"}}),
    Action({.id = 33, .caption = "Full\nPicture", .group = "Box", .cmd = {"~@Box@Full Picture#*"}}),
    Action({.id = 34, .caption = "4:3 Box",    .group = "Box", .cmd = {"~@Box@4:3 Box#*"}}),
    Jump  ({.id = 35, .caption = "Main\nMask", .group = "Key Masks", .cmd = {"#+11130000"}}),
    Jump  ({.id = 36, .caption = "Sub\nMask",  .group = "Key Masks", .cmd = {"#+11140000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_resizer_mask));

// --- Rotation: the page code takes the range from the box of an axis that doesn't turn ---

inline constexpr NB_TBL nb_me_key_resizer_angles[] = { // degrees
    {.id = 1, .caption = "X\ndeg", .type = NB_2, .min = -360, .max = 360, .cmd = "~@X"},
    {.id = 2, .caption = "Y\ndeg", .type = NB_2, .min = -360, .max = 360, .cmd = "~@Y"},
    {.id = 3, .caption = "Z\ndeg", .type = NB_2, .min = -360, .max = 360, .cmd = "~@Z"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_resizer_angles));

inline constexpr BT_TBL bt_me_key_resizer_rotation[] = {
    Toggle({.id = 17, .caption = "Rotation",     .group = "Rotation", .cmd = {"LOCAL@Processed Key@Rotation@Enable#*"}, .nb = nb_me_key_resizer_angles}),
    Toggle({.id = 19, .caption = "X\nRotation",  .group = "Axis", .cmd = {"LOCAL@Processed Key@X Rotation#*"}, .nb = nb_me_key_resizer_angles}),
    Toggle({.id = 20, .caption = "Y\nRotation",  .group = "Axis", .cmd = {"LOCAL@Processed Key@Y Rotation#*"}, .nb = nb_me_key_resizer_angles}),
    Action({.id = 22, .caption = "Reset",        .group = "Angles", .cmd = {"~@Reset#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_resizer_rotation));

// --- The pages ---

inline constexpr MePage me_key_resizer_pages[] = {
    {.page = {.id = 0x11150000, .tree = {"M/E-1", "Key1", "Resizer"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 5), Buttons(bt_me_key_resizer), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_resizer)}}},
    {.page = {.id = 0x11150001, .tree = {"M/E-1", "Key1", "Resizer", "Process"},
              .obj = {Base(base_sub, 0x11150000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 5), Buttons(bt_me_key_resizer_resproc), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_resizer_resproc)}}},
    {.page = {.id = 0x11150002, .tree = {"M/E-1", "Key1", "Resizer", "Border/Crop"},
              .obj = {Base(base_sub, 0x11150000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 5), Buttons(bt_me_key_resizer_bordercrop), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_resizer_bordercrop)}}},
    {.page = {.id = 0x11150003, .tree = {"M/E-1", "Key1", "Resizer", "Enhanced Effect"},
              .obj = {Base(base_sub, 0x11150000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 5), Buttons(bt_me_key_resizer_enhancedeffect), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_resizer_enhancedeffect)}}},
    {.page = {.id = 0x11150004, .tree = {"M/E-1", "Key1", "Resizer", "Mask"},
              .obj = {Base(base_sub, 0x11150000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 5), Buttons(bt_me_key_resizer_mask), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_resizer_mask)}}},
    {.page = {.id = 0x11150005, .tree = {"M/E-1", "Key1", "Resizer", "Rotation"},
              .obj = {Base(base_sub, 0x11150000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 5), Buttons(bt_me_key_resizer_rotation), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_resizer_rotation)}}},
};
