// me_key_trans: how a key comes and goes, and its video process. The tab has two forms: on and off share a setting, or
// each has its own; which of them opens is a matter of the installation. Written for M/E-1, Key1.
#pragma once
#include "me_key_mask.h"

inline constexpr NB_TBL nb_me_key_trans_on[] = { // frames
    {.id = 1, .caption = "ON Rate", .type = NB_INT, .min = 0, .max = 999, .cmd = "~@ON Transition Rate"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_trans_off[] = {
    {.id = 1, .caption = "OFF Rate", .type = NB_INT, .min = 0, .max = 999, .cmd = "~@OFF Transition Rate"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_trans_same[] = {
    {.id = 1, .caption = "Rate", .type = NB_INT, .min = 0, .max = 999, .cmd = "~@ON Transition Rate"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_videoproc[] = { // gain in percent, hue in degrees
    {.id = 1, .caption = "Lum Gain", .type = NB_2, .min = 0,    .max = 200, .cmd = "~2@Video Process@Luminance"},
    {.id = 2, .caption = "Chr Gain", .type = NB_2, .min = 0,    .max = 200, .cmd = "~2@Video Process@Chroma"},
    {.id = 3, .caption = "Hue",      .type = NB_2, .min = -180, .max = 180, .cmd = "~2@Video Process@Hue"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_trans_on) && BoxesAreSound(nb_me_key_trans_off));
static_assert(BoxesAreSound(nb_me_key_trans_same) && BoxesAreSound(nb_me_key_videoproc));

constexpr BT_TBL VideoProcess(int id)
{
    return Toggle({.id = id, .caption = "Video\nProcess", .group = "Video Proc",
                   .cmd = {"~2@Video Process@Video Process#*"}, .nb = nb_me_key_videoproc});
}

// A setting that on and off share is kept as that of on.
inline constexpr BT_TBL bt_me_key_trans_same[] = {
    Radio({.id = 17, .caption = "Cut",       .group = "Transition Type", .cmd = {"~@ON Transition Type#Cut"}}),
    Radio({.id = 18, .caption = "Mix",       .group = "Transition Type", .cmd = {"~@ON Transition Type#Mix"}, .nb = nb_me_key_trans_same}),
    Radio({.id = 19, .caption = "Wipe",      .group = "Transition Type", .cmd = {"~@ON Transition Type#Wipe"}, .nb = nb_me_key_trans_same}),
    Radio({.id = 20, .caption = "DME Wipe",  .group = "Transition Type", .cmd = {"~@ON Transition Type#DME Wipe"}, .nb = nb_me_key_trans_same}),
    Radio({.id = 21, .caption = "Stinger",   .group = "Transition Type", .cmd = {"~@ON Transition Type#Stinger"}}),
    Radio({.id = 33, .caption = "Normal",    .group = "Direction", .cmd = {"~@Direction#Normal", "~@ON Transition Type#Cut,Mix,Stinger"}}),
    Radio({.id = 34, .caption = "Normal/\nReverse", .group = "Direction", .cmd = {"~@Direction#Normal/Reverse", "~@ON Transition Type#Cut,Mix,Stinger"}}),
    Radio({.id = 35, .caption = "Reverse",   .group = "Direction", .cmd = {"~@Direction#Reverse", "~@ON Transition Type#Cut,Mix,Stinger"}}),
    Jump ({.id = 37, .caption = "Pattern\nSelect", .group = "Wipe", .cmd = {"#+11170004", "~@ON Transition Type#!Wipe"}}),
    VideoProcess(49),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_trans_same));

inline constexpr BT_TBL bt_me_key_trans_independ[] = {
    Radio({.id = 17, .caption = "Cut",       .group = "ON Transition", .cmd = {"~@ON Transition Type#Cut"}}),
    Radio({.id = 18, .caption = "Mix",       .group = "ON Transition", .cmd = {"~@ON Transition Type#Mix"}, .nb = nb_me_key_trans_on}),
    Radio({.id = 19, .caption = "Wipe",      .group = "ON Transition", .cmd = {"~@ON Transition Type#Wipe"}, .nb = nb_me_key_trans_on}),
    Radio({.id = 20, .caption = "DME Wipe",  .group = "ON Transition", .cmd = {"~@ON Transition Type#DME Wipe"}, .nb = nb_me_key_trans_on}),
    Radio({.id = 21, .caption = "Stinger",   .group = "ON Transition", .cmd = {"~@ON Transition Type#Stinger"}}),
    Jump ({.id = 22, .caption = "Pattern\nSelect", .group = "ON Wipe", .cmd = {"#+11170004", "~@ON Transition Type#!Wipe"}}),
    Radio({.id = 33, .caption = "Cut",       .group = "OFF Transition", .cmd = {"~@OFF Transition Type#Cut"}}),
    Radio({.id = 34, .caption = "Mix",       .group = "OFF Transition", .cmd = {"~@OFF Transition Type#Mix"}, .nb = nb_me_key_trans_off}),
    Radio({.id = 35, .caption = "Wipe",      .group = "OFF Transition", .cmd = {"~@OFF Transition Type#Wipe"}, .nb = nb_me_key_trans_off}),
    Radio({.id = 36, .caption = "DME Wipe",  .group = "OFF Transition", .cmd = {"~@OFF Transition Type#DME Wipe"}, .nb = nb_me_key_trans_off}),
    Radio({.id = 37, .caption = "Stinger",   .group = "OFF Transition", .cmd = {"~@OFF Transition Type#Stinger"}}),
    Jump ({.id = 38, .caption = "Pattern\nSelect", .group = "OFF Wipe", .cmd = {"#+11170005", "~@OFF Transition Type#!Wipe"}}),
    VideoProcess(49),
    Radio({.id = 51, .caption = "Normal",    .group = "Direction", .cmd = {"~@Direction#Normal"}}),
    Radio({.id = 52, .caption = "Normal/\nReverse", .group = "Direction", .cmd = {"~@Direction#Normal/Reverse"}}),
    Radio({.id = 53, .caption = "Reverse",   .group = "Direction", .cmd = {"~@Direction#Reverse"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_trans_independ));

// --- Patterns: of a key that is itself a wipe, of its coming and of its going ---

inline constexpr PS_TBL ps_me_key_trans_keywipe = {
    .cmd = "~2@Type@Key Wipe Pattern@Pattern", .init_nb = NB_Non, .init_nb_caption = "Key Wipe"};
inline constexpr PS_TBL ps_me_key_trans_on = {.cmd = "~3@ON Wipe Pattern", .init_nb = NB_Non, .init_nb_caption = "ON Wipe"};
inline constexpr PS_TBL ps_me_key_trans_off = {.cmd = "~3@OFF Wipe Pattern", .init_nb = NB_Non, .init_nb_caption = "OFF Wipe"};

inline constexpr MePage me_key_trans_pages[] = {
    {.page = {.id = 0x11170100, .tree = {"M/E-1", "Key1", "Transition"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Buttons(bt_me_key_trans_same), Boxes(NB_Non), Cells(st_me_key)}}},
    {.page = {.id = 0x11170200, .tree = {"M/E-1", "Key1", "Transition"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Buttons(bt_me_key_trans_independ), Boxes(NB_Non), Cells(st_me_key)}}},
    {.page = {.id = 0x11170002, .tree = {"M/E-1", "Key1", "Transition", "Key Wipe Ptn"},
              .obj = {Base(base_sub, 0x11110000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Boxes(NB_Non), Patterns(ps_me_key_trans_keywipe)}}},
    {.page = {.id = 0x11170004, .tree = {"M/E-1", "Key1", "Transition", "ON Wipe Ptn"},
              .obj = {Base(base_sub, 0x11170000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Boxes(NB_Non), Patterns(ps_me_key_trans_on)}}},
    {.page = {.id = 0x11170005, .tree = {"M/E-1", "Key1", "Transition", "OFF Wipe Ptn"},
              .obj = {Base(base_sub, 0x11170000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Boxes(NB_Non), Patterns(ps_me_key_trans_off)}}},
};
