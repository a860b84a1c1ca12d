// file_idcopy: the pages that copy the files of a unit or a group to another. They stand once, as a template.
#pragma once
#include "file_dual.h"
#include "file_tabs.h"
#include "pc_file_idcopy.h"
#include "rows.h"
#include <array>
#include <iterator>

#define FILE_IDCOPY(word) {"LOCAL@File@ID Copy@" word}
inline constexpr BT_TBL bt_file_idcopy[] = {
    FileChoice(100, {.id = BTN_IDCOPY_DEVICE_A, .caption = "", .cmd = FILE_IDCOPY("Device A")}),
    FileChoice(204, {.id = BTN_IDCOPY_DIR_A,    .caption = "", .cmd = FILE_IDCOPY("Dir A")}),
    FileChoice(405, {.id = BTN_IDCOPY_DEVICE_B, .caption = "", .cmd = FILE_IDCOPY("Device B")}),
    FileChoice(509, {.id = BTN_IDCOPY_DIR_B,    .caption = "", .cmd = FILE_IDCOPY("Dir B")}),
    PullDownKey({.id = BTN_IDCOPY_FROM, .caption = "", .group = "Source", .cmd = FILE_IDCOPY("From")}),
    FileMove(BT_TRANSFER_RIGHT, 297, {.id = BTN_IDCOPY_COPY, .caption = "Copy", .cmd = FILE_IDCOPY("Copy")}),
    PullDownKey({.id = BTN_IDCOPY_TO, .caption = "", .group = "Target", .cmd = FILE_IDCOPY("To")}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_file_idcopy));
#undef FILE_IDCOPY

inline constexpr LS_TBL ls_file_idcopy[] = {
    {.id = 1, .hn = 3, .vn = 12, .x = 100, .y = 124, .head = {"Unit", "Category", "Files"}, .width = {110, 96, 42},
     .group = {999}, .mono = 1, .sb_top = 124, .sb_bottom = 410, .block = 1},
    {.id = 2, .hn = 3, .vn = 12, .x = 405, .y = 124, .head = {"Unit", "Category", "Files"}, .width = {110, 96, 42},
     .group = {999}, .mono = 1, .sb_top = 124, .sb_bottom = 410, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_file_idcopy));

constexpr PAGE FileIdCopyPage(uint32_t id, const char* word, uint32_t tab, const PC_TBL& code)
{
    return {.id = id, .tree = {"File", word},
            .obj = {Base(base_main), LeftTabs(vf_file, 7), BottomTabs(hf_file_names, tab), Buttons(bt_file_idcopy),
                    Lists(ls_file_idcopy), Code(code)}};
}
inline constexpr PAGE file_idcopy_pages[] = {
    FileIdCopyPage(0x71720000, "Unit ID Copy", 2, pc_file_unitcp),
    FileIdCopyPage(0x71730000, "Group ID Copy", 3, pc_file_groupcp),
};
