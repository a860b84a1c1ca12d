// system: the first pages of files, engineering setup and diagnosis, and the error page.
#pragma once
#include "rows.h"

inline constexpr BT_TBL bt_error[] = {
    Jump(       {.id = 49, .caption = "Diag", .cmd = {"#74110000"}}),
    Jump(       {.id = 54, .caption = "Top\nMenu", .cmd = {"#00110000"}}), // the list takes the rows above
    BT_END,
};
static_assert(ButtonsAreSound(bt_error));

// One line at a time: it is read, and a selected row keeps the eye on it while the list is scrolled.
inline constexpr LS_TBL ls_error[] = {
    {.id = 1, .hn = 2, .vn = 15, .x = 100, .y = 78, .head = {"Time", "Error"}, .width = {80, 470}, .group = {1, 999},
     .mono = 1, .sb_top = 78, .sb_bottom = 430, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_error));

inline constexpr BT_TBL bt_file_top[] = {
    Jump(       {.id = 17, .caption = "All", .group = "Show", .cmd = {"#71110000"}}),
    Jump(       {.id = 18, .caption = "Effect", .group = "Show", .cmd = {"#71210000"}}),
    Jump(       {.id = 19, .caption = "Snapshot", .group = "Show", .cmd = {"#71310000"}}),
    Jump(       {.id = 20, .caption = "Shotbox\nMacro", .group = "Show", .cmd = {"#71410000"}}),
    Jump(       {.id = 21, .caption = "Frame\nMemory", .group = "Show", .cmd = {"#71510000"}}),
    Jump(       {.id = 33, .caption = "Import\nExport", .group = "Drive", .cmd = {"#71610000"}}),
    Jump(       {.id = 34, .caption = "Directory\nNames", .group = "Drive", .cmd = {"#71710000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_file_top));

inline constexpr BT_TBL bt_engineering_setup_top[] = {
    Jump(       {.id = 17, .caption = "System", .group = "Installation", .cmd = {"#73110000"}}),
    Jump(       {.id = 33, .caption = "Panel", .group = "Unit", .cmd = {"#73200000"}}),
    Jump(       {.id = 34, .caption = "Switcher", .group = "Unit", .cmd = {"#73300000"}}),
    Jump(       {.id = 35, .caption = "DME", .group = "Unit", .cmd = {"#73400000"}}),
    Jump(       {.id = 36, .caption = "DCU", .group = "Unit", .cmd = {"#73500000"}}),
    Jump(       {.id = 37, .caption = "Router/\nTally", .group = "Unit", .cmd = {"#73600000"}}),
    Jump(       {.id = 38, .caption = "MPE", .group = "Unit", .cmd = {"#73710000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engineering_setup_top));

inline constexpr BT_TBL bt_diag_top[] = {
    Jump(       {.id = 17, .caption = "Status", .group = "Diag", .cmd = {"#74110000"}}),
    Jump(       {.id = 18, .caption = "History", .group = "Diag", .cmd = {"#74120000"}}),
    Jump(       {.id = 19, .caption = "By Kind", .group = "Diag", .cmd = {"#74210000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_diag_top));

inline constexpr PAGE system_pages[] = {
    {.id = 0x71000000, .tree = {"File"}, .obj = {Base(base_main), Buttons(bt_file_top)}},
    {.id = 0x73000000, .tree = {"Engineering Setup"}, .obj = {Base(base_main), Buttons(bt_engineering_setup_top)}},
    {.id = 0x74000000, .tree = {"Diag"}, .obj = {Base(base_main), Buttons(bt_diag_top)}},
    {.id = 0x99000000, .tree = {"Error"}, .obj = {Base(base_main), Buttons(bt_error), Lists(ls_error), ErrorList()}},
};
