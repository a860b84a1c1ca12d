// registers: the first pages of the stored registers.
#pragma once
#include "rows.h"

inline constexpr BT_TBL bt_effect[] = {
    Action(     {.id = 17, .caption = "Recall", .group = "Register", .cmd = {"~@Recall#*"}}),
    Action(     {.id = 18, .caption = "Store", .group = "Register", .cmd = {"~@Store#*"}}),
    Action(     {.id = 19, .caption = "Delete", .group = "Register", .cmd = {"~@Delete#*"}}),
    Action(     {.id = 20, .caption = "Rename", .group = "Register", .cmd = {"~@Rename#*"}}),
    Toggle(     {.id = 33, .caption = "Auto\nRun", .group = "Attribute", .cmd = {"~@Auto Run#*"}}),
    Toggle(     {.id = 34, .caption = "Eff Diss", .group = "Attribute", .cmd = {"~@Eff Diss#*"}}),
    Toggle(     {.id = 35, .caption = "Rewind", .group = "Attribute", .cmd = {"~@Rewind#*"}}),
    Toggle(     {.id = 49, .caption = "Lock", .group = "Lock", .cmd = {"~@Lock#*"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_effect));

inline constexpr BT_TBL bt_shotbox[] = {
    Action(     {.id = 17, .caption = "Recall", .group = "Register", .cmd = {"~@Recall#*"}}),
    Action(     {.id = 18, .caption = "Store", .group = "Register", .cmd = {"~@Store#*"}}),
    Action(     {.id = 19, .caption = "Delete", .group = "Register", .cmd = {"~@Delete#*"}}),
    Toggle(     {.id = 33, .caption = "Auto\nRun", .group = "Execute", .cmd = {"~@Auto Run#*"}}),
    Toggle(     {.id = 34, .caption = "Rewind", .group = "Execute", .cmd = {"~@Rewind#*"}}),
    Toggle(     {.id = 49, .caption = "Lock", .group = "Lock", .cmd = {"~@Lock#*"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_shotbox));

inline constexpr BT_TBL bt_effect_top[] = {
    Jump(       {.id = 17, .caption = "Register", .group = "Effect", .cmd = {"#62110000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_effect_top));

inline constexpr BT_TBL bt_shotbox_top[] = {
    Jump(       {.id = 17, .caption = "Register", .group = "Shotbox", .cmd = {"#64110000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_shotbox_top));

inline constexpr PAGE registers_pages[] = {
    {.id = 0x62000000, .tree = {"Effect"}, .obj = {Base(base_main), Buttons(bt_effect_top)}},
    {.id = 0x64000000, .tree = {"Shotbox"}, .obj = {Base(base_main), Buttons(bt_shotbox_top)}},
    {.id = 0x62110000, .tree = {"Effect", "Register"}, .obj = {Base(base_main), Buttons(bt_effect)}},
    {.id = 0x64110000, .tree = {"Shotbox", "Register"}, .obj = {Base(base_main), Buttons(bt_shotbox)}},
};
