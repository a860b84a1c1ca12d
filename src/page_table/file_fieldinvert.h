// file_fieldinvert: the Field Invert page, what of its keys page code names.
#pragma once
#include "file_dual.h"
#include "file_tabs.h"
#include "pc_file_fieldinvert.h"
#include "rows.h"

inline constexpr BT_TBL bt_file_fieldinvert[] = {
    FileChoice(100, {.id = BTN_INVERT_DEVICE, .caption = "", .cmd = {"LOCAL@File@Field Invert@Device"}}),
    FileChoice(204, {.id = BTN_INVERT_DIR,    .caption = "", .cmd = {"LOCAL@File@Field Invert@Dir"}}),
    Action(         {.id = BTN_INVERT_EXEC,   .caption = "Field\nInvert", .group = "File", .cmd = {"LOCAL@File@Field Invert@Execute"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_file_fieldinvert));

inline constexpr LS_TBL ls_file_fieldinvert[] = {
    {.id = 1, .hn = 8, .vn = 11, .x = 100, .y = 124,
     .head = {"No", "Name", "Date", "Ver", "Format", "Mode", "Mod", "Inv"}, .width = {44, 126, 128, 40, 79, 46, 43, 43},
     .group = {3, 999}, .sb_top = 124, .sb_bottom = 388},
    LS_END,
};
static_assert(ListsAreSound(ls_file_fieldinvert));

inline constexpr PAGE file_fieldinvert_pages[] = {
    {.id = 0x71540000, .tree = {"File", "Field Invert"},
     .obj = {Base(base_main), LeftTabs(vf_file, 5), BottomTabs(hf_file_frame, 4), Buttons(bt_file_fieldinvert),
             Lists(ls_file_fieldinvert), Code(pc_file_fieldinvert)}},
};
