// operation: the first pages of miscellaneous and status.
#pragma once
#include "pulldowns.h"
#include "rows.h"

inline constexpr BT_TBL bt_misc_port[] = {
    Toggle(     {.id = 17, .caption = "K-PVW\nConfig", .group = "Preview", .cmd = {"~@K-PVW Config#*"}}),
    Toggle(     {.id = 18, .caption = "Wipe\nPreview", .group = "Preview", .cmd = {"~@Wipe Preview#*"}}),
    Toggle(     {.id = 19, .caption = "Key\nTrans", .group = "Independent", .cmd = {"~@Key Trans#*"}}),
    Toggle(     {.id = 20, .caption = "Bkgd\nTrans", .group = "Independent", .cmd = {"~@Bkgd Trans#*"}}),
    Radio(      {.id = 33, .caption = "4:3", .group = "Side Flags", .cmd = {"~@Side Flags#4:3"}}),
    Radio(      {.id = 34, .caption = "16:9", .group = "Side Flags", .cmd = {"~@Side Flags#16:9"}}),
    Radio(      {.id = 35, .caption = "Auto", .group = "Side Flags", .cmd = {"~@Side Flags#Auto"}}),
    Tab(        {.id = 36, .caption = "Select", .group = "Side Flags", .cmd = {"LOCAL@Side Flags"}}),
    Action(     {.id = 49, .caption = "Lamp\nTest", .group = "Panel", .cmd = {"~@Lamp Test#*"}}),
    Action(     {.id = 50, .caption = "All\nClear", .group = "Panel", .cmd = {"~@All Clear#*"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_misc_port));

inline constexpr BT_TBL bt_status_me[] = {
    Jump(       {.id = 17, .caption = "M/E-1", .group = "Bank", .cmd = {"#11000000"}}),
    Jump(       {.id = 18, .caption = "M/E-2", .group = "Bank", .cmd = {"#12000000"}}),
    Jump(       {.id = 19, .caption = "M/E-3", .group = "Bank", .cmd = {"#13000000"}}),
    Jump(       {.id = 20, .caption = "M/E-4", .group = "Bank", .cmd = {"#81000000"}}),
    Jump(       {.id = 21, .caption = "M/E-5", .group = "Bank", .cmd = {"#82000000"}}),
    Jump(       {.id = 22, .caption = "PGM/PST", .group = "Bank", .cmd = {"#14000000"}}),
    Jump(       {.id = 33, .caption = "Diag", .group = "System", .cmd = {"#74110000"}}),
    Jump(       {.id = 34, .caption = "Error\nList", .group = "System", .cmd = {"#99000000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_status_me));

inline constexpr BT_TBL bt_misc_top[] = {
    Jump(       {.id = 17, .caption = "Port", .group = "Misc", .cmd = {"#32110000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_misc_top));

inline constexpr BT_TBL bt_status_top[] = {
    Jump(       {.id = 17, .caption = "M/E", .group = "Status", .cmd = {"#33110000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_status_top));

inline constexpr PAGE operation_pages[] = {
    {.id = 0x32000000, .tree = {"Misc"}, .obj = {Base(base_main), Buttons(bt_misc_top)}},
    {.id = 0x33000000, .tree = {"Status"}, .obj = {Base(base_main), Buttons(bt_status_top)}},
    {.id = 0x32110000, .tree = {"Misc", "Port"}, .obj = {Base(base_main), Buttons(bt_misc_port), Code(pc_pulldown)}},
    {.id = 0x32110100, .tree = {"Misc", "Port"}, .obj = {Base(base_main), Buttons(bt_misc_port), Code(pc_pulldown)}},
    {.id = 0x33110100, .tree = {"Status", "M/E"}, .obj = {Base(base_main), Buttons(bt_status_me)}},
    {.id = 0x33110200, .tree = {"Status", "M/E"}, .obj = {Base(base_main), Buttons(bt_status_me)}},
};
