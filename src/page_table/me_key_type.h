// me_key_type: what a key is cut by, and what fills it. Written for M/E-1, Key1.
#pragma once
#include "me_banks.h"
#include "me_key_matte.h"
#include "me_snapshot.h"
#include "pc_me.h"
#include "pc_me_key.h"
#include "st_me_key.h"

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
// A chroma key is tuned on the page of its adjustments, too. "path" is that of the type page.
#define NB_KEY_CHROMA(path) { \
    {.id = 1,  .caption = "Clip",     .type = NB_2, .min = 0,    .max = 100, .cmd = path "@Key Type@Chroma@Clip"}, \
    {.id = 2,  .caption = "Gain",     .type = NB_2, .min = -100, .max = 100, .cmd = path "@Key Type@Chroma@Gain"}, \
    {.id = 3,  .caption = "Hue",      .type = NB_2, .min = 0,    .max = 359.99, .cmd = path "@Key Type@Chroma@Hue"}, \
    {.id = 4,  .caption = "Density",  .type = NB_2, .min = 0,    .max = 100, .cmd = path "@Key Type@Chroma@Density"}, \
    {.id = 5,  .caption = "Filter",   .type = NB_INT, .min = 1,  .max = 9,   .cmd = path "@Key Type@Chroma@Filter"}, \
    {.id = 17, .caption = "Angle",    .type = NB_2, .min = 0,    .max = 180, .cmd = path "@Key Type@Chroma@Angle"}, \
    {.id = 18, .caption = "Position", .type = NB_2, .min = 0,    .max = 100, .cmd = path "@Key Type@Chroma@Position"}, \
    NB_END}
inline constexpr NB_TBL nb_me_key_type_chroma[] = NB_KEY_CHROMA("~");
inline constexpr NB_TBL nb_me_key_chroma_key[] = NB_KEY_CHROMA("~3");
#undef NB_KEY_CHROMA
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

inline constexpr BT_TBL bt_me_key_type[] = {
    Radio ({.id = 17, .caption = "Luminance",    .group = "Key Type", .cmd = {"~@Key Type#Luminance"},    .nb = nb_me_key_type_luminance}),
    Radio ({.id = 18, .caption = "Linear",       .group = "Key Type", .cmd = {"~@Key Type#Linear"},       .nb = nb_me_key_type_linear}),
    Radio ({.id = 19, .caption = "Chroma",       .group = "Key Type", .cmd = {"~@Key Type#Chroma"},       .nb = nb_me_key_type_chroma}),
    Radio ({.id = 20, .caption = "Color\nVector", .group = "Key Type", .cmd = {"~@Key Type#Color Vector"}, .nb = nb_me_key_type_colorvector}),
    Radio ({.id = 21, .caption = "Wipe\nPattern", .group = "Key Type", .cmd = {"~@Key Type#Wipe Pattern"}, .nb = nb_me_key_type_wipe}),
    Radio ({.id = 22, .caption = "Key Wipe\nPattern", .group = "Key Type", .cmd = {"~@Key Type#Key Wipe Pattern"}, .nb = nb_me_key_type_keywipe}),
    Toggle({.id = 33, .caption = "Key\nInvert",  .group = "Key Modify", .cmd = {"~@Key Invert#*"}}),
    Toggle({.id = 34, .caption = "Clean\nMode",  .group = "Key Modify", .cmd = {"LOCAL@M/E@Key@Type@Clean Mode#*", "~@Key Type#Chroma,Wipe Pattern,Key Wipe Pattern"}}),
    Toggle({.id = 35, .caption = "Key\nPosition", .group = "Position", .cmd = {"LOCAL@M/E@Key@Type@Key Position#*", "~@Key Type#Wipe Pattern,Key Wipe Pattern"}, .nb = SpecialKnob(26)}),
    Action({.id = 36, .caption = "Auto\nChroma", .group = "Chroma",   .cmd = {"~@Auto Chroma#*", "~@Key Type#!Chroma"}}),
    Jump  ({.id = 37, .caption = "Chroma\nAdjust", .group = "Chroma", .cmd = {"#+11110001", "~@Key Type#!Chroma"}}),
    Jump  ({.id = 38, .caption = "Signal\nSelect", .group = "Key Signal", .cmd = {"LOCAL@M/E@Key@Type@Pattern Select"}}),
    Radio ({.id = 49, .caption = "Key Bus",      .group = "Key Fill", .cmd = {"~@Key Fill#Key Bus"}}),
    Radio ({.id = 50, .caption = "Matte",        .group = "Key Fill", .cmd = {"~@Key Fill#Matte"}}),
    Jump  ({.id = 51, .caption = "Signal\nSelect", .group = "Key Fill", .cmd = {"LOCAL@M/E@Key@Key Fill@Adjust"}}),
    Radio ({.id = 52, .caption = "Self",         .group = "Key Source", .cmd = {"~@Key Source#Self"}}),
    Radio ({.id = 53, .caption = "Split",        .group = "Key Source", .cmd = {"~@Key Source#Split"}}),
    Action({.id = 54, .caption = "Store\nKey",   .cmd = {"~@Store Key#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_type));

// Of a chroma key: the colour of the background is taken out of the foreground, by the key itself or by a key of its own.
inline constexpr NB_TBL nb_me_key_chroma_cancelkey[] = {
    {.id = 1, .caption = "Clip",  .type = NB_2, .min = 0,    .max = 100,    .cmd = "~@Cancel Key@Clip"},
    {.id = 2, .caption = "Gain",  .type = NB_2, .min = -100, .max = 100,    .cmd = "~@Cancel Key@Gain"},
    {.id = 3, .caption = "Hue",   .type = NB_2, .min = 0,    .max = 359.99, .cmd = "~@Cancel Key@Hue"},
    {.id = 4, .caption = "Angle", .type = NB_2, .min = 0,    .max = 180,    .cmd = "~@Cancel Key@Angle"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_chroma_plane[] = {
    {.id = 1, .caption = "Luminance", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Plane@Luminance"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_chroma_video[] = {
    {.id = 1, .caption = "Lum Gain", .type = NB_2, .min = 0,    .max = 200, .cmd = "~@Video Adjust@Luminance"},
    {.id = 2, .caption = "Chr Gain", .type = NB_2, .min = 0,    .max = 200, .cmd = "~@Video Adjust@Chroma"},
    {.id = 3, .caption = "Hue",      .type = NB_2, .min = -180, .max = 180, .cmd = "~@Video Adjust@Hue"},
    {.id = 4, .caption = "H Delay",  .type = NB_2, .min = -8,   .max = 8,   .cmd = "~@Video Adjust@H Delay"},
    NB_END,
};
// The mark lies in the picture, which is 200 to each side of its middle.
inline constexpr NB_TBL nb_me_key_chroma_mark[] = {
    {.id = 1, .caption = "H",    .type = NB_2, .min = -200, .max = 200, .cmd = "~@Sample Mark@H"},
    {.id = 2, .caption = "V",    .type = NB_2, .min = -200, .max = 200, .cmd = "~@Sample Mark@V"},
    {.id = 3, .caption = "Size", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Sample Mark@Size"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_chroma_cancelkey) && BoxesAreSound(nb_me_key_chroma_plane));
static_assert(BoxesAreSound(nb_me_key_chroma_video) && BoxesAreSound(nb_me_key_chroma_mark));

#define IF_CHROMA "~3@Key Type#!Chroma"
inline constexpr BT_TBL bt_me_key_chroma_adjust[] = {
    Toggle({.id = 17, .caption = "Color\nCancel",   .group = "Color Cancel", .cmd = {"~@Color Cancel#*", IF_CHROMA, "~@Y Balance#"}, .nb = SpecialKnob(30)}),
    Toggle({.id = 18, .caption = "Cancel\nKey",     .group = "Color Cancel", .cmd = {"~@Cancel Key#*", IF_CHROMA, "~@Color Cancel#false"}, .nb = nb_me_key_chroma_cancelkey}),
    Toggle({.id = 19, .caption = "Y Balance",       .group = "Color Cancel", .cmd = {"~@Y Balance#*", IF_CHROMA, "~@Color Cancel#false"}}),
    Radio ({.id = 20, .caption = "Normal\nMix",     .group = "Mix Mode",     .cmd = {"~3@Chroma@Mix Mode#Normal Mix", IF_CHROMA}}),
    Radio ({.id = 21, .caption = "Additive\nMix",   .group = "Mix Mode",     .cmd = {"~3@Chroma@Mix Mode#Additive Mix", IF_CHROMA}}),
    Toggle({.id = 33, .caption = "Plane",           .group = "Key Plane",    .cmd = {"~@Plane#*", IF_CHROMA}, .nb = nb_me_key_chroma_plane}),
    Toggle({.id = 34, .caption = "Key\nActive",     .group = "Key Plane",    .cmd = {"~@Key Active#*", IF_CHROMA}}),
    Toggle({.id = 35, .caption = "Video\nAdjust",   .group = "Foreground",   .cmd = {"~@Video Adjust#*", IF_CHROMA}, .nb = nb_me_key_chroma_video}),
    Knobs ({.id = 36, .caption = "Adjust",          .group = "Chroma Key",   .cmd = {"", IF_CHROMA}, .nb = nb_me_key_chroma_key}),
    Toggle({.id = 49, .caption = "Sample\nMark",    .group = "Auto Chroma",  .cmd = {"~@Sample Mark#*", IF_CHROMA}, .nb = nb_me_key_chroma_mark}),
    Action({.id = 50, .caption = "Auto\nStart",     .group = "Auto Chroma",  .cmd = {"~3@Auto Chroma#*", IF_CHROMA, "~@Sample Mark#false"}}),
    Action({.id = 51, .caption = "Undo",            .group = "Auto Chroma",  .cmd = {"~@Undo#*", IF_CHROMA}}),
    // The colour behind the foreground, from which Auto Start sets out; the code shows the choice as the caption.
    PullDownKey({.id = 54, .caption = "Backing",    .group = "Backing",      .cmd = {"LOCAL@M/E@Key@Chroma Adjust@Backing", IF_CHROMA, "~@Backing#"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_chroma_adjust));
#undef IF_CHROMA

inline constexpr MatteButtons bt_me_key_matte_adjust = MatteButtonsOf("#+11110004");
static_assert(ButtonsAreSound(bt_me_key_matte_adjust.row));

// --- Signals: a touch in the list is an assignment, so that the arrows must not select ---

inline constexpr BT_TBL bt_me_key_signal_select[] = {
    Radio({.id = 22, .caption = "Key\nFill",   .group = "Assign", .cmd = {"LOCAL@M/E@Key@Signal@Assign#Fill"}}),
    Radio({.id = 38, .caption = "Key\nSource", .group = "Assign", .cmd = {"LOCAL@M/E@Key@Signal@Assign#Source"}}),
    Jump ({.id = 54, .caption = "Key\nSnapshot", .group = "Register", .cmd = {"#+11110005"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_signal_select));

inline constexpr LS_TBL ls_me_key_signal_select[] = {
    {.id = 1, .hn = 4, .vn = 10, .x = 100, .y = 266, .head = {"No", "Source Name", "Fill", "Source"},
     .width = {48, 250, 70, 70}, .group = {2, 1, 999}, .view = 1, .sb_top = 266, .sb_bottom = 508},
    LS_END,
};
static_assert(ListsAreSound(ls_me_key_signal_select));

// --- The pages ---

inline constexpr MePage me_key_type_pages[] = {
    {.page = {.id = 0x11100000, .tree = {"M/E-1", "Key1", "Fill/Source"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 1), Buttons(bt_me_key_signal_select), Lists(ls_me_key_signal_select), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_fillsource)}}},
    {.page = {.id = 0x11110000, .tree = {"M/E-1", "Key1", "Type"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 1), Buttons(bt_me_key_type), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_type)}}},
    {.page = {.id = 0x11110001, .tree = {"M/E-1", "Key1", "Type", "Chroma Adjust"},
              .obj = {Base(base_sub, 0x11110000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 1), Buttons(bt_me_key_chroma_adjust), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_type_crkadj)}}},
    {.page = {.id = 0x11110002, .tree = {"M/E-1", "Key1", "Type", "Matte Adjust"},
              .obj = {Base(base_sub, 0x11110000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 1), Buttons(bt_me_key_matte_adjust.row), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_type_matteadj)}}},
    {.page = {.id = 0x11110003, .tree = {"M/E-1", "Key1", "Type", "Signal Select"},
              .obj = {Base(base_sub, 0x11110000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 1), Buttons(bt_me_key_signal_select), Lists(ls_me_key_signal_select), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_fillsource_new)}}},
    {.page = {.id = 0x11110004, .tree = {"M/E-1", "Key1", "Type", "Matte Adjust", "Mix Pattern"},
              .obj = {Base(base_sub, 0x11110002), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 1), Boxes(NB_Non), Patterns(ps_me_key_matte_mixptn)}}},
    {.page = {.id = 0x11110005, .tree = {"M/E-1", "Key1", "Type", "Key Snapshot"},
              .obj = {Base(base_sub, 0x11110000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 1), Buttons(bt_me_key_snapshot), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_snapshot)}}},
};

static_assert(ForBankAndKey(me_key_type_pages[1].page, me_banks[1], me_keys[1]).id == 0x12210000);
static_assert(ForBankAndKey(me_key_type_pages[1].page, me_banks[10], me_keys[7]).id == 0x85410000);
