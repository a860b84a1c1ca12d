// machines: the first pages of router and external devices.
#pragma once
#include "rows.h"

inline constexpr BT_TBL bt_sp[] = {
    Toggle(     {.id = 17, .caption = "Func 1", .group = "Function", .cmd = {"~@Func 1#*"}}),
    Toggle(     {.id = 18, .caption = "Func 2", .group = "Function", .cmd = {"~@Func 2#*"}}),
    Toggle(     {.id = 19, .caption = "Func 3", .group = "Function", .cmd = {"~@Func 3#*"}}),
    Toggle(     {.id = 20, .caption = "Func 4", .group = "Function", .cmd = {"~@Func 4#*"}}),
    Toggle(     {.id = 21, .caption = "Func 5", .group = "Function", .cmd = {"~@Func 5#*"}}),
    Toggle(     {.id = 22, .caption = "Func 6", .group = "Function", .cmd = {"~@Func 6#*"}}),
    Action(     {.id = 33, .caption = "Connect", .group = "Link", .cmd = {"~@Connect#*"}}),
    Action(     {.id = 34, .caption = "Release", .group = "Link", .cmd = {"~@Release#*"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_sp));

inline constexpr BT_TBL bt_sp_top[] = {
    Jump(       {.id = 17, .caption = "SP", .group = "SP", .cmd = {"#52100000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_sp_top));

inline constexpr BT_TBL bt_macro_top[] = {
    Jump(       {.id = 17, .caption = "Macro", .group = "Macro", .cmd = {"#54100000"}}),
    Jump(       {.id = 18, .caption = "Attach-\nment", .group = "Macro", .cmd = {"#54210000"}}),
    Jump(       {.id = 19, .caption = "Timeline", .group = "Macro", .cmd = {"#54410000"}}),
    Jump(       {.id = 33, .caption = "Menu\nMacro", .group = "Menu Macro", .cmd = {"#54310000"}}),
    Action(     {.id = 34, .caption = "Menu Mcr\nStop", .group = "Menu Macro", .cmd = {"LOCAL@MenuMacro@Stop"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_macro_top));

inline constexpr PAGE machines_pages[] = {
    {.id = 0x52000000, .tree = {"SP"}, .obj = {Base(base_main), Buttons(bt_sp_top)}},
    {.id = 0x54000000, .tree = {"Macro"}, .obj = {Base(base_main), Buttons(bt_macro_top)}},
    {.id = 0x52100000, .tree = {"SP"}, .obj = {Base(base_main), Buttons(bt_sp)}},
};
