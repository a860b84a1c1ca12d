// file_folder: the Folder page of the newer frame memory, what of its keys page code names.
#pragma once
#include "file_dual.h"
#include "rows.h"

enum : int {
    BTN_FOLDER_NEW = 49,
    BTN_FOLDER_RENAME = 50,
    BTN_FOLDER_DELETE = 51,
};

inline constexpr BT_TBL bt_file_folder[] = {
    Action({.id = BTN_FOLDER_NEW,    .caption = "New", .group = "Folder", .cmd = {"LOCAL@File@Folder@New"}}),
    Action({.id = BTN_FOLDER_RENAME, .caption = "Rename", .group = "Folder", .cmd = {"LOCAL@File@Folder@Rename"}}),
    Action({.id = BTN_FOLDER_DELETE, .caption = "Delete", .group = "Folder", .cmd = {"LOCAL@File@Folder@Delete"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_file_folder));

// One folder at a time.
inline constexpr LS_TBL ls_file_folder[] = {
    {.id = 1, .hn = 3, .vn = 15, .x = 100, .y = 78, .head = {"Folder", "Stills", "Clips"}, .width = {350, 100, 100},
     .group = {1, 1, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 430, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_file_folder));

extern const PC_TBL pc_file2_folder; // pc_file_folder.cpp

inline constexpr PAGE file_folder_pages[] = {
    {.id = 0x71520000, .tree = {"File", "Folder"},
     .obj = {Base(base_main), LeftTabs(vf_file, 5), BottomTabs(hf_file_frame, 2), Buttons(bt_file_folder), Lists(ls_file_folder), Code(pc_file2_folder)}},
};
