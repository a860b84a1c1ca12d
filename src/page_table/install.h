// install: the pages of Install/Unit Config that work with packages on the stick, what of their keys page code names.
#pragma once
#include "rows.h"

enum : int {
    BTN_INSTALL_REFRESH = 49,
    BTN_INSTALL = 50,
};

inline constexpr BT_TBL bt_install_top[] = {
    Jump(       {.id = 17, .caption = "New\nInstall", .group = "Package", .cmd = {"#73160010"}}),
    Jump(       {.id = 6, .caption = "Setup", .cmd = {"#73110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_install_top));

inline constexpr BT_TBL bt_newinstall[] = {
    Action(     {.id = BTN_INSTALL_REFRESH, .caption = "Refresh", .group = "Package", .cmd = {"LOCAL@New Install@Refresh"}}),
    ActionState({.id = BTN_INSTALL,         .caption = "Install", .group = "Package", .cmd = {"LOCAL@New Install@Install"}}),
    Jump(       {.id = 52, .caption = "Error\nList", .cmd = {"#99000000"}}),
    Jump(       {.id = 54, .caption = "Unit\nConfig", .cmd = {"#73160000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_newinstall));

// The units, and below them the packages for the one that was touched last.
inline constexpr LS_TBL ls_newinstall[] = {
    {.id = 1, .hn = 5, .vn = 6, .x = 100, .y = 78, .head = {"Unit", "Model", "Version", "New Version", "Result"},
     .width = {80, 80, 165, 145, 80}, .group = {2, 2, 999}, .sb_top = 78, .sb_bottom = 232},
    {.id = 2, .hn = 4, .vn = 5, .x = 100, .y = 284, .head = {"Package", "Kind", "Version", "Target"},
     .width = {250, 75, 145, 80}, .group = {2, 1, 999}, .mono = 1, .sb_top = 284, .sb_bottom = 416, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_newinstall));

extern const PC_TBL pc_engsetup_system_install_newinstall; // pc_install.cpp

inline constexpr PAGE install_pages[] = {
    {.id = 0x73160000, .tree = {"Engineering Setup", "System", "Install"}, .obj = {Base(base_main), Buttons(bt_install_top)}},
    {.id = 0x73160010, .tree = {"Engineering Setup", "System", "New Install"},
     .obj = {Base(base_main), Buttons(bt_newinstall), Lists(ls_newinstall), Code(pc_engsetup_system_install_newinstall)}},
};
