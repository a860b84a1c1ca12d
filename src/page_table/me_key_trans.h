// me_key_trans: how a key comes and goes, and its video process. The tab has two forms: on and off share a setting, or
// each has its own; which of them opens is a matter of the installation. Written for M/E-1, Key1.
#pragma once
#include "me_banks.h"
#include "patterns.h"
#include "pc_me_key_lower.h"
#include "st_me_key.h"

inline constexpr NB_TBL nb_me_key_trans_on[] = { // frames
    {.id = 1, .caption = "ON Rate\nframes", .type = NB_INT, .min = 0, .max = 999, .cmd = "~@ON Transition Rate"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_trans_off[] = {
    {.id = 1, .caption = "OFF Rate\nframes", .type = NB_INT, .min = 0, .max = 999, .cmd = "~@OFF Transition Rate"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_trans_same[] = {
    {.id = 1, .caption = "Rate\nframes", .type = NB_INT, .min = 0, .max = 999, .cmd = "~@ON Transition Rate"},
    NB_END,
};
// A stinger is a clip of the frame memory that runs over the picture; the key changes under it, so many frames from the
// start. Its rate is the time that it takes. Clip and cut serve both ways.
#define NB_STINGER(caption_, rate) { \
    {.id = 1, .caption = caption_ "\nframes",  .type = NB_INT, .min = 0, .max = 999, .cmd = rate}, \
    {.id = 2, .caption = "Clip FM",            .type = NB_INT, .min = 1, .max = 8,   .cmd = "~@Stinger@FM"}, \
    {.id = 3, .caption = "Cut Point\nframes", .type = NB_INT, .min = 0, .max = 999, .cmd = "~@Stinger@Cut Point"}, \
    NB_END}
inline constexpr NB_TBL nb_me_key_trans_stinger[]     = NB_STINGER("Rate",     "~@ON Transition Rate");
inline constexpr NB_TBL nb_me_key_trans_on_stinger[]  = NB_STINGER("ON Rate",  "~@ON Transition Rate");
inline constexpr NB_TBL nb_me_key_trans_off_stinger[] = NB_STINGER("OFF Rate", "~@OFF Transition Rate");
#undef NB_STINGER
static_assert(BoxesAreSound(nb_me_key_trans_stinger) && BoxesAreSound(nb_me_key_trans_on_stinger));
static_assert(BoxesAreSound(nb_me_key_trans_off_stinger));
inline constexpr NB_TBL nb_me_key_videoproc[] = { // gain in percent, hue in degrees
    {.id = 1, .caption = "Lum Gain", .type = NB_2, .min = 0,    .max = 200, .cmd = "~2@Video Process@Luminance"},
    {.id = 2, .caption = "Chr Gain", .type = NB_2, .min = 0,    .max = 200, .cmd = "~2@Video Process@Chroma"},
    {.id = 3, .caption = "Hue",      .type = NB_2, .min = -180, .max = 180, .cmd = "~2@Video Process@Hue"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_trans_on) && BoxesAreSound(nb_me_key_trans_off));
static_assert(BoxesAreSound(nb_me_key_trans_same) && BoxesAreSound(nb_me_key_videoproc));

// What both forms have. A key is cut on or off by its state, and comes or goes by the transition with "Auto Trans".
#define KEY_ON(place)        ActionState({.id = place, .caption = "Key ON", .group = "Key ON/OFF", .cmd = {"~2@Status@Key ON#*"}})
#define AUTO_TRANS(place)    Action({.id = place, .caption = "Auto\nTrans", .group = "Key ON/OFF", .cmd = {"~@Auto Trans#*"}})
#define DIRECTION(id_, word, caption_) Radio({.id = id_, .caption = caption_, .group = "Direction", .cmd = {"~@Direction#" word}})
#define DIRECTIONS(place) \
    DIRECTION(place, "Normal", "Normal"), DIRECTION((place) + 1, "Reverse", "Reverse"), \
    DIRECTION((place) + 2, "Normal/Reverse", "Norm/Rev")
#define VIDEO_PROCESS(place) Toggle({.id = place, .caption = "Video\nProcess", .group = "Video Proc", \
                                     .cmd = {"~2@Video Process@Video Process#*"}, .nb = nb_me_key_videoproc})
#define UNITY(place)         Action({.id = place, .caption = "Unity", .group = "Video Proc", \
                                     .cmd = {"~2@Video Process@Unity#*", "~2@Video Process@Video Process#false"}})

// A setting that on and off share is kept as that of on.
inline constexpr BT_TBL bt_me_key_trans_same[] = {
    Radio({.id = 17, .caption = "Cut",       .group = "Transition Type", .cmd = {"~@ON Transition Type#Cut"}}),
    Radio({.id = 18, .caption = "Mix",       .group = "Transition Type", .cmd = {"~@ON Transition Type#Mix"}, .nb = nb_me_key_trans_same}),
    Radio({.id = 19, .caption = "Wipe",      .group = "Transition Type", .cmd = {"~@ON Transition Type#Wipe"}, .nb = nb_me_key_trans_same}),
    Radio({.id = 20, .caption = "DME Wipe",  .group = "Transition Type", .cmd = {"~@ON Transition Type#DME Wipe"}, .nb = nb_me_key_trans_same}),
    Radio({.id = 21, .caption = "Stinger",   .group = "Transition Type", .cmd = {"~@ON Transition Type#Stinger"}, .nb = nb_me_key_trans_stinger}),
    DIRECTIONS(33),
    Jump ({.id = 36, .caption = "Pattern\nSelect", .group = "Wipe/DME Wipe", .cmd = {"LOCAL@M/E@Key@Transition@ON Pattern"}}),
    Jump ({.id = 37, .caption = "DME Wipe\nAdjust", .group = "Wipe/DME Wipe", .cmd = {"#+11170003"}}),
    Jump ({.id = 38, .caption = "Fill/\nSource", .group = "Signal", .cmd = {"#+11100000"}}),
    KEY_ON(49),
    AUTO_TRANS(50),
    Knobs({.id = 51, .caption = "Rate",      .group = "Key ON/OFF", .nb = nb_me_key_trans_same}),
    VIDEO_PROCESS(53),
    UNITY(54),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_trans_same));

inline constexpr BT_TBL bt_me_key_trans_independ[] = {
    Radio({.id = 17, .caption = "Cut",       .group = "ON Transition", .cmd = {"~@ON Transition Type#Cut"}}),
    Radio({.id = 18, .caption = "Mix",       .group = "ON Transition", .cmd = {"~@ON Transition Type#Mix"}, .nb = nb_me_key_trans_on}),
    Radio({.id = 19, .caption = "Wipe",      .group = "ON Transition", .cmd = {"~@ON Transition Type#Wipe"}, .nb = nb_me_key_trans_on}),
    Radio({.id = 20, .caption = "DME Wipe",  .group = "ON Transition", .cmd = {"~@ON Transition Type#DME Wipe"}, .nb = nb_me_key_trans_on}),
    Radio({.id = 21, .caption = "Stinger",   .group = "ON Transition", .cmd = {"~@ON Transition Type#Stinger"}, .nb = nb_me_key_trans_on_stinger}),
    Jump ({.id = 22, .caption = "Pattern\nSelect", .group = "ON Transition", .cmd = {"LOCAL@M/E@Key@Transition@ON Pattern"}}),
    Radio({.id = 33, .caption = "Cut",       .group = "OFF Transition", .cmd = {"~@OFF Transition Type#Cut"}}),
    Radio({.id = 34, .caption = "Mix",       .group = "OFF Transition", .cmd = {"~@OFF Transition Type#Mix"}, .nb = nb_me_key_trans_off}),
    Radio({.id = 35, .caption = "Wipe",      .group = "OFF Transition", .cmd = {"~@OFF Transition Type#Wipe"}, .nb = nb_me_key_trans_off}),
    Radio({.id = 36, .caption = "DME Wipe",  .group = "OFF Transition", .cmd = {"~@OFF Transition Type#DME Wipe"}, .nb = nb_me_key_trans_off}),
    Radio({.id = 37, .caption = "Stinger",   .group = "OFF Transition", .cmd = {"~@OFF Transition Type#Stinger"}, .nb = nb_me_key_trans_off_stinger}),
    Jump ({.id = 38, .caption = "Pattern\nSelect", .group = "OFF Transition", .cmd = {"LOCAL@M/E@Key@Transition@OFF Pattern"}}),
    KEY_ON(49),
    AUTO_TRANS(50),
    VIDEO_PROCESS(51),
    UNITY(52),
    Jump ({.id = 53, .caption = "DME Wipe\nAdjust", .group = "Wipe/DME Wipe", .cmd = {"#+11170003"}}),
    // In a row that is full, one key shows the direction and opens the choice, which stands at the right.
    PullDownKey({.id = 54, .caption = "Direction", .group = "Wipe/DME Wipe", .cmd = {"LOCAL@M/E@Key@Transition@Direction", "~@Direction#"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_trans_independ));
#undef KEY_ON
#undef AUTO_TRANS
#undef DIRECTIONS
#undef DIRECTION
#undef VIDEO_PROCESS
#undef UNITY

// --- Patterns: of a key that is itself a wipe, of its coming and of its going ---

inline constexpr NB_TBL nb_me_key_trans_keywipe[] = {
    {.id = 1, .caption = "Size",    .type = NB_2, .min = 0, .max = 100, .cmd = "~2@Type@Key Type@Key Wipe Pattern@Size"},
    {.id = 2, .caption = "Soft",    .type = NB_2, .min = 0, .max = 100, .cmd = "~2@Type@Key Type@Key Wipe Pattern@Soft"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "~2@Type@Key Type@Key Wipe Pattern@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_trans_onwipe[] = {
    {.id = 1, .caption = "ON Rate\nframes", .type = NB_INT, .min = 0, .max = 999, .cmd = "~3@ON Transition Rate"},
    {.id = 2, .caption = "Soft",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~3@ON Wipe@Soft"},
    {.id = 3, .caption = "H Pos",   .type = NB_2, .min = -200, .max = 200, .cmd = "~3@ON Wipe@H Position"},
    {.id = 4, .caption = "V Pos",   .type = NB_2, .min = -200, .max = 200, .cmd = "~3@ON Wipe@V Position"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_trans_offwipe[] = {
    {.id = 1, .caption = "OFF Rate\nframes", .type = NB_INT, .min = 0, .max = 999, .cmd = "~3@OFF Transition Rate"},
    {.id = 2, .caption = "Soft",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~3@OFF Wipe@Soft"},
    {.id = 3, .caption = "H Pos",   .type = NB_2, .min = -200, .max = 200, .cmd = "~3@OFF Wipe@H Position"},
    {.id = 4, .caption = "V Pos",   .type = NB_2, .min = -200, .max = 200, .cmd = "~3@OFF Wipe@V Position"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_trans_keywipe));
static_assert(BoxesAreSound(nb_me_key_trans_onwipe) && BoxesAreSound(nb_me_key_trans_offwipe));

inline constexpr PS_TBL ps_me_key_trans_keywipe = {
    .cmd = "~2@Type@Key Wipe Pattern@Pattern", .init_nb = nb_me_key_trans_keywipe, .init_nb_caption = "Key Wipe"};
inline constexpr PS_TBL ps_me_key_trans_on = {.cmd = "~3@ON Wipe Pattern", .init_nb = nb_me_key_trans_onwipe, .init_nb_caption = "ON Wipe"};
inline constexpr PS_TBL ps_me_key_trans_off = {.cmd = "~3@OFF Wipe Pattern", .init_nb = nb_me_key_trans_offwipe, .init_nb_caption = "OFF Wipe"};

inline constexpr MePage me_key_trans_pages[] = {
    {.page = {.id = 0x11170100, .tree = {"M/E-1", "Key1", "Transition"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Buttons(bt_me_key_trans_same), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_trans_same)}}},
    {.page = {.id = 0x11170200, .tree = {"M/E-1", "Key1", "Transition"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Buttons(bt_me_key_trans_independ), Boxes(NB_Non), Cells(st_me_key), Code(pc_me_key_trans_independ)}}},
    {.page = {.id = 0x11170002, .tree = {"M/E-1", "Key1", "Transition", "Key Wipe Ptn"},
              .obj = {Base(base_sub, 0x11110000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Boxes(NB_Non), Patterns(ps_me_key_trans_keywipe)}}},
    {.page = {.id = 0x11170004, .tree = {"M/E-1", "Key1", "Transition", "ON Wipe Ptn"},
              .obj = {Base(base_sub, 0x11170000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Boxes(NB_Non), Patterns(ps_me_key_trans_on)}}},
    {.page = {.id = 0x11170005, .tree = {"M/E-1", "Key1", "Transition", "OFF Wipe Ptn"},
              .obj = {Base(base_sub, 0x11170000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Boxes(NB_Non), Patterns(ps_me_key_trans_off)}}},
};
