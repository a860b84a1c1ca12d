// file_xport: the Import/Export pages of the frame memory and the clip store.
#pragma once
#include "a_fl.h"
#include "file_dual.h"
#include "file_tabs.h"
#include "pc_file_xport.h"
#include "rows.h"

#define FILE_XPORT(word) {"LOCAL@File@XPort@" word}
#define FILE_XPORT_BUTTONS                                                                                             \
    FileChoice(405, {.id = BTN_XPORT_DEVICE_B, .caption = "", .cmd = FILE_XPORT("Device B")}),                           \
    FileChoice(509, {.id = BTN_XPORT_DIR_B, .caption = "", .cmd = FILE_XPORT("Dir B")}),                                 \
    FileMove(BT_TRANSFER_RIGHT, 240, {.id = BTN_XPORT_EXPORT, .caption = "Export", .cmd = FILE_XPORT("Export")}),           \
    FileMove(BT_TRANSFER_LEFT, 355, {.id = BTN_XPORT_IMPORT, .caption = "Import", .cmd = FILE_XPORT("Import")}),            \
    FileMove(BT_PULLDOWN, 509, {.id = BTN_XPORT_TYPE, .caption = "", .cmd = FILE_XPORT("File Type")})

inline constexpr BT_TBL bt_file_xport[] = {
    FILE_XPORT_BUTTONS,
    BT_END,
};
static_assert(ButtonsAreSound(bt_file_xport));

inline constexpr BT_TBL bt_file2_xport[] = {
    FileChoice(100, {.id = BTN_XPORT_FOLDER_A, .caption = "", .cmd = FILE_XPORT("Fol A")}),
    FILE_XPORT_BUTTONS,
    BT_END,
};
static_assert(ButtonsAreSound(bt_file2_xport));

inline constexpr BT_TBL bt_file2_xport_clip[] = {
    FileChoice(100, {.id = BTN_XPORT_FOLDER_A, .caption = "", .cmd = FILE_XPORT("Fol A")}),
    FILE_XPORT_BUTTONS,
    Typed({.id = BTN_XPORT_FIND, .caption = "Find", .x1 = 112, .y1 = 453, .x2 = 196, .y2 = 518, .cmd = FILE_XPORT("Find")}, BT_FIND),
    BT_END,
};
static_assert(ButtonsAreSound(bt_file2_xport_clip));
#undef FILE_XPORT_BUTTONS
#undef FILE_XPORT

inline constexpr LS_TBL ls_file_xport[] = {
    {.id = 1, .hn = 2, .vn = 11, .x = 100, .y = 124, .head = {"No", "Name"}, .width = {48, 200},
     .group = {1, 999}, .sb_top = 124, .sb_bottom = 388},
    {.id = 2, .hn = 2, .vn = 11, .x = 405, .y = 124, .head = {"Name", "Date"}, .width = {126, 122},
     .group = {1, 999}, .sb_top = 124, .sb_bottom = 388},
    LS_END,
};
static_assert(ListsAreSound(ls_file_xport));

// Clips, as a_fl fills them; at the right also pictures.
inline constexpr LS_TBL ls_file2_xport[] = {
    {.id = 1, .hn = 4, .vn = 11, .x = 100, .y = 124, .head = {"", "Name", "Frames", "Pair"}, .width = {24, 136, 52, 36},
     .group = {2, 999}, .sb_top = 124, .sb_bottom = 388},
    {.id = 2, .hn = 4, .vn = 11, .x = 405, .y = 124, .head = {"", "Name", "Frames", "Pair"}, .width = {24, 136, 52, 36},
     .group = {2, 999}, .sb_top = 124, .sb_bottom = 388},
    LS_END,
};
static_assert(ListsAreSound(ls_file2_xport));
inline constexpr FL_TBL fl_file2_xport = {{{.device = FL_DIRDATA_STORAGE_ROOT}, {}}};

inline constexpr PAGE file_xport_pages[] = {
    {.id = 0x71610000, .tree = {"File", "Import/Export"},
     .obj = {Base(base_file_main), LeftTabs(vf_file, 6), BottomTabs(hf_file_xport, 1), Buttons(bt_file2_xport), Lists(ls_file_xport), Code(pc_file_xport, XPORTPAGE_FMEM_V6)}},
    {.id = 0x71610100, .tree = {"File", "Import/Export"},
     .obj = {Base(base_file_main), LeftTabs(vf_file, 6), BottomTabs(hf_file_xport, 1), Buttons(bt_file_xport), Lists(ls_file_xport), Code(pc_file_xport, XPORTPAGE_FMEM)}},
    {.id = 0x71620000, .tree = {"File", "Import/Export", "Clip Store"},
     .obj = {Base(base_main), LeftTabs(vf_file, 6), BottomTabs(hf_file_xport, 2), Buttons(bt_file2_xport_clip), Lists(ls_file2_xport), Files(fl_file2_xport), Code(pc_file_xport, XPORTPAGE_CLIP)}},
};
