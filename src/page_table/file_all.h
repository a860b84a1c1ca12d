// file_all: the All page of the File menu: the categories on the grid, between the sides above and the transfer below.
#pragma once
#include "file_dual.h"
#include "pc_file_all.h"

#define FILE_ALL(word) {"LOCAL@File@All@" word}
// The group's frame is around all categories; the key that selects them all stands at its end.
#define FILE_CATEGORY(row, words, word) \
    Toggle({.id = BtnOfAllCategory(row), .caption = words, .group = "Category", .cmd = FILE_ALL("Category@" word)})

inline constexpr BT_TBL bt_file_all[] = {
    FileChoice(100, {.id = BTN_ALL_DEVICE_A, .caption = "", .cmd = FILE_ALL("Device A")}),
    FileChoice(204, {.id = BTN_ALL_DIR_A, .caption = "", .cmd = FILE_ALL("Dir A")}),
    FileChoice(405, {.id = BTN_ALL_DEVICE_B, .caption = "", .cmd = FILE_ALL("Device B")}),
    FileChoice(509, {.id = BTN_ALL_DIR_B, .caption = "", .cmd = FILE_ALL("Dir B")}),
    FILE_CATEGORY(0, "Setup", "SETUP"),
    FILE_CATEGORY(1, "Initial\nStatus", "INITSTAT"),
    FILE_CATEGORY(2, "Key\nMemory", "KEYMEM"),
    FILE_CATEGORY(3, "Video\nProcess\nMemory", "VPROCMEM"),
    FILE_CATEGORY(4, "Effect", "EFFECT"),
    FILE_CATEGORY(5, "Snapshot", "SNAPSHOT"),
    FILE_CATEGORY(6, "Wipe\nSnapshot", "WSNAP"),
    FILE_CATEGORY(7, "DME Wipe\nSnapshot", "DSNAP"),
    FILE_CATEGORY(8, "Key\nSnapshot", "KSNAP"),
    FILE_CATEGORY(9, "Shotbox", "SHOTBOX"),
    FILE_CATEGORY(10, "Macro", "MACRO"),
    FILE_CATEGORY(11, "Macro\nAttach-\nment", "MACROATC"),
    FILE_CATEGORY(12, "Menu\nMacro", "MENUMACRO"),
    FILE_CATEGORY(13, "Frame\nMemory", "FRAMEMEM"),
    Action({.id = BTN_ALL_SELECT, .caption = "All Select", .group = "Category", .cmd = FILE_ALL("All Select")}),
    FileMove(BT_TRANSFER_RIGHT, 240, {.id = BTN_ALL_L_TO_R, .caption = "L to R", .cmd = FILE_ALL("L to R")}),
    FileMove(BT_TRANSFER_LEFT, 355, {.id = BTN_ALL_R_TO_L, .caption = "R to L", .cmd = FILE_ALL("R to L")}),
    Toggle({.id = BTN_ALL_CLEAR, .caption = "CLR Before\nLoad", .cmd = FILE_ALL("CLR Before Load")}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_file_all));
#undef FILE_CATEGORY
#undef FILE_ALL

inline constexpr PAGE file_all_pages[] = {
    {.id = 0x71110000, .tree = {"File", "All"},
     .obj = {Base(base_main), LeftTabs(vf_file, 1), BottomTabs(hf_file_setup, 1), Buttons(bt_file_all), Code(pc_file_all)}},
};
