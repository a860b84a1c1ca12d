// fmem_clip: the frame-memory pages of systems with a clip store, what of their keys page code names.
#pragma once
#include "rows.h"

enum : int {
    BTN_FMEM_LOAD = 66,
    BTN_FMEM_UNLOAD = 67,
};

constexpr BT_TBL FmemKey(int x, BT_TBL row)
{
    row.x1 = x;
    row.y1 = 461;
    row.x2 = x + 83;
    row.y2 = 461 + 64;
    return Typed(row, BT_ACTION);
}

inline constexpr BT_TBL bt_fmem_load[] = {
    FmemKey(440, {.id = BTN_FMEM_LOAD,   .caption = "Load to\nMemory", .cmd = {"LOCAL@LoadToMemory"}}),
    FmemKey(538, {.id = BTN_FMEM_UNLOAD, .caption = "Unload", .cmd = {"LOCAL@Unload"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_fmem_load));

inline constexpr FF_TBL ff_fmem_load = {{
    {.enable = 1, .loaded_mark = 1, .selected_mark = 1, .h_num = 4, .v_num = 3, .pos = {104, 116},
     .name_status = {.enable = 1, .type = 1, .pos = {104, 436}},
     .find_button = {.enable = 1, .pos = {104, 470}},
     .select_button = {.enable = 1, .pos_select = {200, 470}, .pos_all = {290, 470}}},
    {},
}};

extern const PC_TBL pc_fmem_clipstill_load; // pc_fmem_load.cpp

inline constexpr PAGE fmem_clip_pages[] = {
    {.id = 0x21410000, .tree = {"Frame Memory", "Load"},
     .obj = {Base(base_main), Buttons(bt_fmem_load), Folder(ff_fmem_load), Code(pc_fmem_clipstill_load)}},
};
