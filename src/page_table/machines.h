// machines: the first page of the macros.
#pragma once
#include "rows.h"

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
    {.id = 0x54000000, .tree = {"Macro"}, .obj = {Base(base_main), Buttons(bt_macro_top)}},
};
