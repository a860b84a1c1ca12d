// fm: the first page of the frame memory of a system with a clip store; others have a bank of their own.
#pragma once
#include "rows.h"

inline constexpr BT_TBL bt_frame_memory_top[] = {
    Jump(       {.id = 17, .caption = "Clip/Still", .group = "Memory", .cmd = {"#21110000"}}),
    Jump(       {.id = 18, .caption = "File",       .group = "Memory", .cmd = {"#21210000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_frame_memory_top));

inline constexpr PAGE fm_pages[] = {
    {.id = 0x21000000, .tree = {"Frame Memory"}, .obj = {Base(base_main), Buttons(bt_frame_memory_top)}},
};
