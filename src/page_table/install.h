// install: the pages of Install/Unit Config that work with packages on the stick, what of their keys page code names.
#pragma once
#include "rows.h"
#include "setup_tabs.h"

enum : int {
    BTN_INSTALL_REFRESH = 49,
    BTN_INSTALL = 50,
    BTN_TEXTURE_ADD = 36,
    BTN_TEXTURE_REMOVE = 37,
    BTN_TEXTURE_REFRESH = 38,
    BTN_TEXTURE_LOAD = 52,
    BTN_TEXTURE_SAVE = 53,
};

inline constexpr BT_TBL bt_install_top[] = {
    Jump(       {.id = 17, .caption = "New\nInstall", .group = "Package", .cmd = {"#73160010"}}),
    Jump(       {.id = 18, .caption = "Texture\nPackage", .group = "Package", .cmd = {"#73160005"}}),
    Jump(       {.id = 20, .caption = "Unit\nConfig", .group = "Unit", .cmd = {"#73160008"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_install_top));

inline constexpr BT_TBL bt_newinstall[] = {
    Action(     {.id = BTN_INSTALL_REFRESH, .caption = "Refresh", .group = "Package", .cmd = {"LOCAL@New Install@Refresh"}}),
    ActionState({.id = BTN_INSTALL,         .caption = "Install", .group = "Package", .cmd = {"LOCAL@New Install@Install"}}),
    Jump(       {.id = 52, .caption = "Error\nList", .cmd = {"#99000000"}}),
    Jump(       {.id = 54, .caption = "Unit\nConfig", .cmd = {"#73160008"}}),
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

inline constexpr BT_TBL bt_texture_package[] = {
    Action(     {.id = BTN_TEXTURE_ADD,     .caption = "Add", .group = "Pattern", .cmd = {"LOCAL@Texture Package@Add"}}),
    Action(     {.id = BTN_TEXTURE_REMOVE,  .caption = "Remove", .group = "Pattern", .cmd = {"LOCAL@Texture Package@Remove"}}),
    Action(     {.id = BTN_TEXTURE_REFRESH, .caption = "Refresh", .cmd = {"LOCAL@Texture Package@Refresh"}}),
    Action(     {.id = BTN_TEXTURE_LOAD,    .caption = "Load", .group = "Package", .cmd = {"LOCAL@Texture Package@Load"}}),
    Action(     {.id = BTN_TEXTURE_SAVE,    .caption = "Save", .group = "Package", .cmd = {"LOCAL@Texture Package@Save"}}),
    Jump(       {.id = 54, .caption = "Unit\nConfig", .cmd = {"#73160000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_texture_package));

// The bitmaps of the drive, and the patterns of the package; below them the picture of the memory.
inline constexpr LS_TBL ls_texture_package[] = {
    {.id = 1, .hn = 2, .vn = 8, .x = 100, .y = 78, .head = {"Bitmap", "Size"}, .width = {140, 95}, .group = {1, 999},
     .mono = 1, .sb_top = 78, .sb_bottom = 276, .block = 1},
    {.id = 2, .hn = 3, .vn = 8, .x = 395, .y = 78, .head = {"Pattern", "Size", "Place"}, .width = {150, 55, 50},
     .group = {1, 1, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 276, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_texture_package));

extern const PC_TBL pc_texture_package;                    // pc_texture.cpp
extern const PC_TBL pc_engsetup_system_install_newinstall; // pc_install.cpp

inline constexpr PAGE install_pages[] = {
    {.id = 0x73160000, .tree = {"Engineering Setup", "System", "Install"}, .obj = {Base(base_main), LeftTabs(vf_setup, 1), BottomTabs(hf_setup_system, 6), Buttons(bt_install_top)}},
    {.id = 0x73160010, .tree = {"Engineering Setup", "System", "New Install"},
     .obj = {Base(base_main), LeftTabs(vf_setup, 1), BottomTabs(hf_setup_system, 6), Buttons(bt_newinstall), Lists(ls_newinstall), Code(pc_engsetup_system_install_newinstall)}},
    {.id = 0x73160005, .tree = {"Engineering Setup", "System", "Texture Package"},
     .obj = {Base(base_main), LeftTabs(vf_setup, 1), BottomTabs(hf_setup_system, 6), Buttons(bt_texture_package), Lists(ls_texture_package), Code(pc_texture_package)}},
};
