// file_directory: the Directory page, what of its keys page code names.
#pragma once
#include "file_tabs.h"
#include "rows.h"

enum : int {
    BTN_DIRECTORY_DEVICE = 49,
    BTN_DIRECTORY_NEW = 51,
    BTN_DIRECTORY_DELETE = 52,
    BTN_DIRECTORY_PROTECT = 53,
};

inline constexpr BT_TBL bt_file_directory[] = {
    PullDownKey({.id = BTN_DIRECTORY_DEVICE,  .caption = "", .group = "Device", .cmd = {"LOCAL@File@Directory@Device"}}),
    Action(     {.id = BTN_DIRECTORY_NEW,     .caption = "New", .group = "Directory", .cmd = {"LOCAL@File@Directory@New"}}),
    Action(     {.id = BTN_DIRECTORY_DELETE,  .caption = "Delete", .group = "Directory", .cmd = {"LOCAL@File@Directory@Delete"}}),
    ActionState({.id = BTN_DIRECTORY_PROTECT, .caption = "Protect", .group = "Directory", .cmd = {"LOCAL@File@Directory@Protect"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_file_directory));

// One directory at a time.
inline constexpr LS_TBL ls_file_directory[] = {
    {.id = 1, .hn = 3, .vn = 15, .x = 100, .y = 78, .head = {"Directory", "Date", "Lock"}, .width = {230, 270, 50},
     .group = {1, 1, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 430, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_file_directory));

extern const PC_TBL pc_file_directory; // pc_file_directory.cpp

inline constexpr PAGE file_directory_pages[] = {
    {.id = 0x71710000, .tree = {"File", "Directory"},
     .obj = {Base(base_main), LeftTabs(vf_file, 7), BottomTabs(hf_file_names, 1), Buttons(bt_file_directory), Lists(ls_file_directory), Code(pc_file_directory)}},
};
