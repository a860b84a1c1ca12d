// me_key: the pages of one key: what it is cut by, its edge, its two masks. Written for M/E-1, Key1.
#pragma once
#include "me_banks.h"
#include "patterns.h"
#include "pc_me.h"
#include "pulldowns.h"
#include "st_me_key.h"

// --- Type ---

inline constexpr NB_TBL nb_me_key_type_luminance[] = {
    {.id = 1, .caption = "Clip",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Key Type@Luminance@Clip"},
    {.id = 2, .caption = "Gain",    .type = NB_2, .min = -100, .max = 100, .cmd = "~@Key Type@Luminance@Gain"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Key Type@Luminance@Density"},
    {.id = 4, .caption = "Filter",  .type = NB_INT, .min = 1,  .max = 9,   .cmd = "~@Key Type@Luminance@Filter"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_type_linear[] = {
    {.id = 1, .caption = "Clip",    .type = NB_2, .min = -50,  .max = 100, .cmd = "~@Key Type@Linear@Clip"},
    {.id = 2, .caption = "Gain",    .type = NB_2, .min = -100, .max = 100, .cmd = "~@Key Type@Linear@Gain"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Key Type@Linear@Density"},
    {.id = 4, .caption = "Filter",  .type = NB_INT, .min = 1,  .max = 9,   .cmd = "~@Key Type@Linear@Filter"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_type_chroma[] = {
    {.id = 1,  .caption = "Clip",     .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Key Type@Chroma@Clip"},
    {.id = 2,  .caption = "Gain",     .type = NB_2, .min = -100, .max = 100, .cmd = "~@Key Type@Chroma@Gain"},
    {.id = 3,  .caption = "Hue",      .type = NB_2, .min = 0,    .max = 359.99, .cmd = "~@Key Type@Chroma@Hue"},
    {.id = 4,  .caption = "Density",  .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Key Type@Chroma@Density"},
    {.id = 5,  .caption = "Filter",   .type = NB_INT, .min = 1,  .max = 9,   .cmd = "~@Key Type@Chroma@Filter"},
    {.id = 17, .caption = "Angle",    .type = NB_2, .min = 0,    .max = 180, .cmd = "~@Key Type@Chroma@Angle"},
    {.id = 18, .caption = "Position", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Key Type@Chroma@Position"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_type_colorvector[] = {
    {.id = 1,  .caption = "Clip",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Key Type@Color Vector@Clip"},
    {.id = 2,  .caption = "Gain",    .type = NB_2, .min = -100, .max = 100, .cmd = "~@Key Type@Color Vector@Gain"},
    {.id = 3,  .caption = "Hue",     .type = NB_2, .min = 0,    .max = 359.99, .cmd = "~@Key Type@Color Vector@Hue"},
    {.id = 4,  .caption = "Density", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Key Type@Color Vector@Density"},
    {.id = 17, .caption = "Y Balance",  .type = NB_2, .min = 0, .max = 100, .cmd = "~@Key Type@Color Vector@Y Balance"},
    {.id = 18, .caption = "Pb Balance", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Key Type@Color Vector@Pb Balance"},
    {.id = 19, .caption = "Pr Balance", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Key Type@Color Vector@Pr Balance"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_type_wipe[] = {
    {.id = 1, .caption = "Size",    .type = NB_2, .min = 0, .max = 100, .cmd = "~@Key Type@Wipe Pattern@Size"},
    {.id = 2, .caption = "Soft",    .type = NB_2, .min = 0, .max = 100, .cmd = "~@Key Type@Wipe Pattern@Soft"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Key Type@Wipe Pattern@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_type_keywipe[] = {
    {.id = 1, .caption = "Size",    .type = NB_2, .min = 0, .max = 100, .cmd = "~@Key Type@Key Wipe Pattern@Size"},
    {.id = 2, .caption = "Soft",    .type = NB_2, .min = 0, .max = 100, .cmd = "~@Key Type@Key Wipe Pattern@Soft"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Key Type@Key Wipe Pattern@Density"},
    NB_END,
};
// The page code names the paths: they follow the key type.
inline constexpr NB_TBL nb_me_key_type_position[] = {
    {.id = 1, .caption = "H Phase", .type = NB_2, .min = -8,  .max = 8, .cmd = ""},
    {.id = 2, .caption = "Left",    .type = NB_2, .min = -8,  .max = 8, .cmd = ""},
    {.id = 3, .caption = "Right",   .type = NB_2, .min = -8,  .max = 8, .cmd = ""},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_type_luminance) && BoxesAreSound(nb_me_key_type_linear));
static_assert(BoxesAreSound(nb_me_key_type_chroma) && BoxesAreSound(nb_me_key_type_colorvector));
static_assert(BoxesAreSound(nb_me_key_type_wipe) && BoxesAreSound(nb_me_key_type_keywipe));
static_assert(BoxesAreSound(nb_me_key_type_position));

inline constexpr BT_TBL bt_me_key_type[] = {
    Radio ({.id = 17, .caption = "Luminance",    .group = "Key Type", .cmd = {"~@Key Type#Luminance"},    .nb = nb_me_key_type_luminance}),
    Radio ({.id = 18, .caption = "Linear",       .group = "Key Type", .cmd = {"~@Key Type#Linear"},       .nb = nb_me_key_type_linear}),
    Radio ({.id = 19, .caption = "Chroma",       .group = "Key Type", .cmd = {"~@Key Type#Chroma"},       .nb = nb_me_key_type_chroma}),
    Radio ({.id = 20, .caption = "Color\nVector", .group = "Key Type", .cmd = {"~@Key Type#Color Vector"}, .nb = nb_me_key_type_colorvector}),
    Radio ({.id = 21, .caption = "Wipe\nPattern", .group = "Key Type", .cmd = {"~@Key Type#Wipe Pattern"}, .nb = nb_me_key_type_wipe}),
    Radio ({.id = 22, .caption = "Key Wipe\nPattern", .group = "Key Type", .cmd = {"~@Key Type#Key Wipe Pattern"}, .nb = nb_me_key_type_keywipe}),
    Toggle({.id = 33, .caption = "Key\nInvert",  .group = "Key Modify", .cmd = {"~@Key Invert#*"}}),
    Toggle({.id = 34, .caption = "Clean\nMode",  .group = "Key Modify", .cmd = {"LOCAL@M/E@Key@Type@Clean Mode#*", "~@Key Type#Wipe Pattern,Key Wipe Pattern"}}),
    Toggle({.id = 35, .caption = "Key\nPosition", .group = "Position", .cmd = {"LOCAL@M/E@Key@Type@Key Position#*", "~@Key Type#Wipe Pattern,Key Wipe Pattern"}, .nb = nb_me_key_type_position}),
    Action({.id = 36, .caption = "Auto\nChroma", .group = "Chroma",   .cmd = {"~@Auto Chroma#*", "~@Key Type#!Chroma"}}),
    Jump  ({.id = 37, .caption = "Chroma\nAdjust", .group = "Chroma", .cmd = {"#+11110001", "~@Key Type#!Chroma"}}),
    Action({.id = 38, .caption = "Signal\nSelect", .group = "Source", .cmd = {"LOCAL@M/E@Key@Type@Pattern Select"}}),
    Radio ({.id = 49, .caption = "Key Bus",      .group = "Key Fill", .cmd = {"~@Key Fill#Key Bus"}}),
    Radio ({.id = 50, .caption = "Matte",        .group = "Key Fill", .cmd = {"~@Key Fill#Matte"}}),
    Action({.id = 51, .caption = "Signal\nSelect", .group = "Key Fill", .cmd = {"LOCAL@M/E@Key@Key Fill@Adjust"}}),
    Radio ({.id = 52, .caption = "Self",         .group = "Key Source", .cmd = {"~@Key Source#Self"}}),
    Radio ({.id = 53, .caption = "Split",        .group = "Key Source", .cmd = {"~@Key Source#Split"}}),
    Action({.id = 54, .caption = "Store\nKey",   .cmd = {"~@Store Key#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_type));

inline constexpr BT_TBL bt_me_key_chroma_adjust[] = {
    Toggle({.id = 17, .caption = "Color\nCancel",   .group = "Color Cancel", .cmd = {"~@Color Cancel#*"}}),
    Toggle({.id = 18, .caption = "Cancel\nKey",     .group = "Color Cancel", .cmd = {"~@Cancel Key#*", "~@Color Cancel#false"}}),
    Toggle({.id = 19, .caption = "Y Balance",       .group = "Color Cancel", .cmd = {"~@Y Balance#*", "~@Color Cancel#false"}}),
    Toggle({.id = 33, .caption = "Plane",           .group = "Key Plane", .cmd = {"~@Plane#*"}}),
    Toggle({.id = 34, .caption = "Key\nActive",     .group = "Key Plane", .cmd = {"~@Key Active#*"}}),
    Action({.id = 36, .caption = "Sample\nMark",    .group = "Auto Chroma", .cmd = {"~@Sample Mark#*"}}),
    Action({.id = 37, .caption = "Auto\nStart",     .group = "Auto Chroma", .cmd = {"~@Auto Start#*"}}),
    Action({.id = 38, .caption = "Undo",            .group = "Auto Chroma", .cmd = {"~@Undo#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_chroma_adjust));

inline constexpr BT_TBL bt_me_key_matte_adjust[] = {
    Radio ({.id = 17, .caption = "Flat",        .group = "Matte", .cmd = {"~@Mode#Flat"}}),
    Radio ({.id = 18, .caption = "Gradation",   .group = "Matte", .cmd = {"~@Mode#Gradation"}}),
    Radio ({.id = 33, .caption = "Color 1",     .group = "Color", .cmd = {"~@Color#Color 1"}}),
    Radio ({.id = 34, .caption = "Color 2",     .group = "Color", .cmd = {"~@Color#Color 2", "~@Mode#Flat"}}),
    Action({.id = 35, .caption = "Copy\n1 to 2", .group = "Color", .cmd = {"~@Copy#*", "~@Mode#Flat"}}),
    Action({.id = 36, .caption = "Swap",        .group = "Color", .cmd = {"~@Swap#*", "~@Mode#Flat"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_matte_adjust));

inline constexpr BT_TBL bt_me_key_signal_select[] = {
    Radio ({.id = 17, .caption = "Key Bus",   .group = "Key Fill Signal", .cmd = {"~@Fill#Key Bus"}}),
    Radio ({.id = 18, .caption = "Color\nBkgd 1", .group = "Key Fill Signal", .cmd = {"~@Fill#Color Bkgd 1"}}),
    Radio ({.id = 19, .caption = "Color\nBkgd 2", .group = "Key Fill Signal", .cmd = {"~@Fill#Color Bkgd 2"}}),
    Radio ({.id = 20, .caption = "Utility 1", .group = "Key Fill Signal", .cmd = {"~@Fill#Utility 1"}}),
    Radio ({.id = 21, .caption = "Utility 2", .group = "Key Fill Signal", .cmd = {"~@Fill#Utility 2"}}),
    Radio ({.id = 33, .caption = "Key Bus",   .group = "Key Source Signal", .cmd = {"~@Source#Key Bus"}}),
    Radio ({.id = 34, .caption = "Utility 1", .group = "Key Source Signal", .cmd = {"~@Source#Utility 1"}}),
    Radio ({.id = 35, .caption = "Utility 2", .group = "Key Source Signal", .cmd = {"~@Source#Utility 2"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_signal_select));

// --- Edge ---

inline constexpr NB_TBL nb_me_key_edge_border[] = {
    {.id = 1, .caption = "Width",   .type = NB_2, .min = 0, .max = 8,   .cmd = "~@Edge Type@Border@Width"},
    {.id = 2, .caption = "Soft",    .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Soft"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_drop[] = {
    {.id = 1, .caption = "Width",    .type = NB_2, .min = 0,    .max = 8,   .cmd = "~@Edge Type@Drop Border@Width"},
    {.id = 2, .caption = "Position", .type = NB_2, .min = 0,    .max = 360, .cmd = "~@Edge Type@Drop Border@Position"},
    {.id = 3, .caption = "Soft",     .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Edge Type@Drop Border@Soft"},
    {.id = 4, .caption = "Density",  .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Edge Type@Drop Border@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_shadow[] = {
    {.id = 1, .caption = "H",       .type = NB_2, .min = -16, .max = 16,  .cmd = "~@Edge Type@Shadow@H"},
    {.id = 2, .caption = "V",       .type = NB_2, .min = -16, .max = 16,  .cmd = "~@Edge Type@Shadow@V"},
    {.id = 3, .caption = "Soft",    .type = NB_2, .min = 0,   .max = 100, .cmd = "~@Edge Type@Shadow@Soft"},
    {.id = 4, .caption = "Density", .type = NB_2, .min = 0,   .max = 100, .cmd = "~@Edge Type@Shadow@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_outline[] = {
    {.id = 1, .caption = "Width",   .type = NB_2, .min = 0, .max = 8,   .cmd = "~@Edge Type@Outline@Width"},
    {.id = 2, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Outline@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_emboss[] = {
    {.id = 1, .caption = "Width",    .type = NB_2, .min = 0, .max = 8,   .cmd = "~@Edge Type@Emboss@Width"},
    {.id = 2, .caption = "Position", .type = NB_2, .min = 0, .max = 360, .cmd = "~@Edge Type@Emboss@Position"},
    {.id = 3, .caption = "Light",    .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Emboss@Light"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_soft[] = {
    {.id = 1, .caption = "Soft", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Soft Edge@Soft"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_keydrop[] = {
    {.id = 1, .caption = "Position", .type = NB_2, .min = -16, .max = 16, .cmd = "~@Key Drop@Position"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_edge_border) && BoxesAreSound(nb_me_key_edge_drop));
static_assert(BoxesAreSound(nb_me_key_edge_shadow) && BoxesAreSound(nb_me_key_edge_outline));
static_assert(BoxesAreSound(nb_me_key_edge_emboss) && BoxesAreSound(nb_me_key_edge_soft));
static_assert(BoxesAreSound(nb_me_key_edge_keydrop));

inline constexpr BT_TBL bt_me_key_edge[] = {
    Radio ({.id = 17, .caption = "Normal",       .group = "Edge Type", .cmd = {"~@Edge Type#Normal"}}),
    Radio ({.id = 18, .caption = "Border",       .group = "Edge Type", .cmd = {"~@Edge Type#Border"},      .nb = nb_me_key_edge_border}),
    Radio ({.id = 19, .caption = "Drop\nBorder", .group = "Edge Type", .cmd = {"~@Edge Type#Drop Border"}, .nb = nb_me_key_edge_drop}),
    Radio ({.id = 20, .caption = "Shadow",       .group = "Edge Type", .cmd = {"~@Edge Type#Shadow"},      .nb = nb_me_key_edge_shadow}),
    Radio ({.id = 21, .caption = "Outline",      .group = "Edge Type", .cmd = {"~@Edge Type#Outline"},     .nb = nb_me_key_edge_outline}),
    Radio ({.id = 22, .caption = "Emboss",       .group = "Edge Type", .cmd = {"~@Edge Type#Emboss"},      .nb = nb_me_key_edge_emboss}),
    Radio ({.id = 33, .caption = "Utility 1\nBus", .group = "Edge Fill", .cmd = {"~@Edge Fill#Utility 1", "~@Edge Type#Normal"}}),
    Radio ({.id = 34, .caption = "Utility 2\nBus", .group = "Edge Fill", .cmd = {"~@Edge Fill#Utility 2", "~@Edge Type#Normal"}}),
    Radio ({.id = 35, .caption = "Matte",        .group = "Edge Fill", .cmd = {"~@Edge Fill#Matte", "~@Edge Type#Normal"}}),
    Toggle({.id = 37, .caption = "Separate\nEdge", .group = "Edge Modify", .cmd = {"~@Separate Edge#*", "~@Edge Type#Normal,Outline,Emboss"}}),
    Toggle({.id = 38, .caption = "Fine Key",     .group = "Edge Modify", .cmd = {"~@Fine Key#*"}}),
    Toggle({.id = 49, .caption = "Soft Edge",    .group = "Softness", .cmd = {"~@Soft Edge#*"}, .nb = nb_me_key_edge_soft}),
    Toggle({.id = 50, .caption = "Key Drop",     .group = "Drop", .cmd = {"~@Key Drop#*"}, .nb = nb_me_key_edge_keydrop}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_edge));

// --- Masks ---

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

inline constexpr MePage me_key_pages[] = {
    {.page = {.id = 0x11110000, .tree = {"M/E-1", "Key1", "Type"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 1), Buttons(bt_me_key_type), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_type)}}},
    {.page = {.id = 0x11110001, .tree = {"M/E-1", "Key1", "Type", "Chroma Adjust"},
              .obj = {Base(base_sub, 0x11110000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 1), Buttons(bt_me_key_chroma_adjust), Cells(st_me_key)}}},
    {.page = {.id = 0x11110002, .tree = {"M/E-1", "Key1", "Type", "Matte Adjust"},
              .obj = {Base(base_sub, 0x11110000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 1), Buttons(bt_me_key_matte_adjust), Cells(st_me_key)}}},
    {.page = {.id = 0x11110003, .tree = {"M/E-1", "Key1", "Type", "Signal Select"},
              .obj = {Base(base_sub, 0x11110000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 1), Buttons(bt_me_key_signal_select), Cells(st_me_key)}}},
    {.page = {.id = 0x11120000, .tree = {"M/E-1", "Key1", "Edge"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 2), Buttons(bt_me_key_edge), Boxes(NB_Non), Cells(st_me_key)}}},
    {.page = {.id = 0x11130000, .tree = {"M/E-1", "Key1", "Main Mask"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 3), Buttons(bt_me_key_mainmask), Boxes(NB_Non), Cells(st_me_key), Code(pc_pulldown)}}},
    {.page = {.id = 0x11130001, .tree = {"M/E-1", "Key1", "Main Mask", "Ptn Select"},
              .obj = {Base(base_sub, 0x11130000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 3), Boxes(NB_Non), Patterns(ps_me_key_mainmask_maskptnsel)}}},
    {.page = {.id = 0x11140000, .tree = {"M/E-1", "Key1", "Sub Mask"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 4), Buttons(bt_me_key_submask), Boxes(NB_Non), Cells(st_me_key)}}},
};

static_assert(ForBankAndKey(me_key_pages[0].page, me_banks[1], me_keys[1]).id == 0x12210000);
static_assert(ForBankAndKey(me_key_pages[0].page, me_banks[10], me_keys[7]).id == 0x85410000);
