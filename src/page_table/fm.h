// fm: the first pages of frame memory.
#pragma once
#include "rows.h"

inline constexpr BT_TBL bt_fm_still[] = {
    Radio(      {.id = 17, .caption = "FM1", .group = "Output", .cmd = {"~@Output#FM1"}}),
    Radio(      {.id = 18, .caption = "FM2", .group = "Output", .cmd = {"~@Output#FM2"}}),
    Radio(      {.id = 19, .caption = "FM3", .group = "Output", .cmd = {"~@Output#FM3"}}),
    Radio(      {.id = 20, .caption = "FM4", .group = "Output", .cmd = {"~@Output#FM4"}}),
    Toggle(     {.id = 33, .caption = "Frame", .group = "Freeze", .cmd = {"~@Frame#*"}}),
    Toggle(     {.id = 34, .caption = "Field", .group = "Freeze", .cmd = {"~@Field#*"}}),
    Action(     {.id = 35, .caption = "Store", .group = "Store", .cmd = {"~@Store#*"}}),
    Action(     {.id = 36, .caption = "Auto\nStore", .group = "Store", .cmd = {"~@Auto Store#*"}}),
    Toggle(     {.id = 49, .caption = "Lock", .group = "Output Mode", .cmd = {"~@Lock#*"}}),
    Toggle(     {.id = 50, .caption = "Black", .group = "Output Mode", .cmd = {"~@Black#*"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_fm_still));

enum : int { BTN_FM_TOP_CLIP = 18, BTN_FM_TOP_FILE = 19 }; // of the clip store

inline constexpr BT_TBL bt_frame_memory_top[] = {
    Jump(       {.id = 17, .caption = "Still", .group = "Memory", .cmd = {"#21110000"}}),
    Jump(       {.id = BTN_FM_TOP_CLIP, .caption = "Clip/Still", .group = "Memory", .cmd = {"#21420000"}}),
    Jump(       {.id = BTN_FM_TOP_FILE, .caption = "File", .group = "Memory", .cmd = {"#21610000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_frame_memory_top));

extern const PC_TBL pc_fmem_top; // pc_fmem_load.cpp

inline constexpr PAGE fm_pages[] = {
    {.id = 0x21000000, .tree = {"Frame Memory"}, .obj = {Base(base_main), Buttons(bt_frame_memory_top), Code(pc_fmem_top)}},
    {.id = 0x21110000, .tree = {"Frame Memory", "Still"}, .obj = {Base(base_main), Buttons(bt_fm_still)}},
};
