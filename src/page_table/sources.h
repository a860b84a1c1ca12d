// sources: the aux buses.
#pragma once
#include "rows.h"

inline constexpr BT_TBL bt_aux[] = {
    Radio(      {.id = 17, .caption = "Aux 1", .group = "Bus", .cmd = {"~@Bus#Aux 1"}}),
    Radio(      {.id = 18, .caption = "Aux 2", .group = "Bus", .cmd = {"~@Bus#Aux 2"}}),
    Radio(      {.id = 19, .caption = "Aux 3", .group = "Bus", .cmd = {"~@Bus#Aux 3"}}),
    Radio(      {.id = 20, .caption = "Aux 4", .group = "Bus", .cmd = {"~@Bus#Aux 4"}}),
    Radio(      {.id = 21, .caption = "Aux 5", .group = "Bus", .cmd = {"~@Bus#Aux 5"}}),
    Radio(      {.id = 22, .caption = "Aux 6", .group = "Bus", .cmd = {"~@Bus#Aux 6"}}),
    Toggle(     {.id = 33, .caption = "Mix", .group = "Transition", .cmd = {"~@Mix#*"}}),
    Toggle(     {.id = 34, .caption = "Bus Link", .group = "Transition", .cmd = {"~@Bus Link#*"}}),
    Action(     {.id = 36, .caption = "Auto\nTrans", .group = "Transition", .cmd = {"~@Auto Trans#*"}}),
    Action(     {.id = 37, .caption = "Cut", .group = "Transition", .cmd = {"~@Cut#*"}}),
    Toggle(     {.id = 49, .caption = "Safe Area", .group = "Monitor", .cmd = {"~@Safe Area#*"}}),
    Toggle(     {.id = 50, .caption = "Key Disable", .group = "Monitor", .cmd = {"~@Key Disable#*"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_aux));

inline constexpr BT_TBL bt_auxmon_top[] = {
    Jump(       {.id = 17, .caption = "Aux Bus", .group = "Aux/Mon", .cmd = {"#23110000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_auxmon_top));

inline constexpr PAGE sources_pages[] = {
    {.id = 0x23000000, .tree = {"Aux/Mon"}, .obj = {Base(base_main), Buttons(bt_auxmon_top)}},
    {.id = 0x23110000, .tree = {"Aux/Mon", "Aux Bus"}, .obj = {Base(base_main), Buttons(bt_aux)}},
};
