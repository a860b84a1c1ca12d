// me_key_process: the pages of a key whose picture goes through channels of an effects unit. Written for M/E-1, Key1.
#pragma once
#include "me_key_mask.h"

#define DME_SELECT(n) "~@DME Select@DME" n "#*"
inline constexpr BT_TBL bt_me_key_prockey[] = {
    Toggle({.id = 17, .caption = "Processed\nKey", .group = "Proc Key", .cmd = {"~@Processed Key#*"}}),
    Jump  ({.id = 19, .caption = "Monitor", .group = "DME", .cmd = {"#+11160001"}}),
    Toggle({.id = 33, .caption = "DME1", .group = "DME Select", .cmd = {DME_SELECT("1")}}),
    Toggle({.id = 34, .caption = "DME2", .group = "DME Select", .cmd = {DME_SELECT("2")}}),
    Toggle({.id = 35, .caption = "DME3", .group = "DME Select", .cmd = {DME_SELECT("3")}}),
    Toggle({.id = 36, .caption = "DME4", .group = "DME Select", .cmd = {DME_SELECT("4")}}),
    Toggle({.id = 49, .caption = "DME5", .group = "DME Select", .cmd = {DME_SELECT("5")}}),
    Toggle({.id = 50, .caption = "DME6", .group = "DME Select", .cmd = {DME_SELECT("6")}}),
    Toggle({.id = 51, .caption = "DME7", .group = "DME Select", .cmd = {DME_SELECT("7")}}),
    Toggle({.id = 52, .caption = "DME8", .group = "DME Select", .cmd = {DME_SELECT("8")}}),
    BT_END,
};
#undef DME_SELECT
static_assert(ButtonsAreSound(bt_me_key_prockey));

// The system has one monitor output for all effects channels, and its setting one path for all banks and keys.
#define DME_MONITOR(n) "M/E-1@Key1@Processed Key@Monitor#" n
inline constexpr BT_TBL bt_me_key_prockey_mon[] = {
    Radio({.id = 17, .caption = "DME1", .group = "Monitor", .cmd = {DME_MONITOR("1")}}),
    Radio({.id = 18, .caption = "DME2", .group = "Monitor", .cmd = {DME_MONITOR("2")}}),
    Radio({.id = 19, .caption = "DME3", .group = "Monitor", .cmd = {DME_MONITOR("3")}}),
    Radio({.id = 20, .caption = "DME4", .group = "Monitor", .cmd = {DME_MONITOR("4")}}),
    Radio({.id = 33, .caption = "DME5", .group = "Monitor", .cmd = {DME_MONITOR("5")}}),
    Radio({.id = 34, .caption = "DME6", .group = "Monitor", .cmd = {DME_MONITOR("6")}}),
    Radio({.id = 35, .caption = "DME7", .group = "Monitor", .cmd = {DME_MONITOR("7")}}),
    Radio({.id = 36, .caption = "DME8", .group = "Monitor", .cmd = {DME_MONITOR("8")}}),
    BT_END,
};
#undef DME_MONITOR
static_assert(ButtonsAreSound(bt_me_key_prockey_mon));

inline constexpr MePage me_key_process_pages[] = {
    {.page = {.id = 0x11160000, .tree = {"M/E-1", "Key1", "Processed Key"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 6), Buttons(bt_me_key_prockey), Cells(st_me_key)}}},
    {.page = {.id = 0x11160001, .tree = {"M/E-1", "Key1", "Processed Key", "Monitor"},
              .obj = {Base(base_sub, 0x11160000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 6), Buttons(bt_me_key_prockey_mon), Cells(st_me_key)}}},
    {.page = {.id = 0x11160003, .tree = {"M/E-1", "Key1", "Processed Key", "Border/Crop"},
              .obj = {Base(base_sub, 0x11160000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 6), Boxes(NB_Non), Cells(st_me_key)}}},
};
