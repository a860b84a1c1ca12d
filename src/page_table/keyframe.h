// keyframe: the pages of the timelines.
#pragma once
#include "a_kf.h"
#include "pc_kf.h"
#include "rows.h"

constexpr _pageobject Timeline(const KF_TBL& table) { return {OBJ_KF, &table, 0}; }

inline constexpr HF_TBL hf_kf[] = {
    {.id = 1, .caption = "Time Line",        .page = 0x61110000},
    {.id = 2, .caption = "Path",             .page = 0x61130000},
    {.id = 3, .caption = "DME User\nPGM",    .page = 0x61140000},
    {.id = 4, .caption = "Timeline\nAssign", .page = 0x61150000},
    {.id = 5, .caption = "Region\nSelect",   .page = 0x61170000},
    {.id = 6, .caption = "Edit",             .page = 0x61120000},
    {.id = 7, .caption = "Run Mode",         .page = 0x61160000},
    HF_END,
};

// --- Edit and Run Mode: the values of the timeline, acting on the selected regions ---

inline constexpr BT_TBL bt_keyframe_edit[] = {
    Action({.id = 17, .caption = "Insert", .group = "Key Frame", .cmd = {"Key Frame@Timeline@Insert#*"}}),
    Action({.id = 18, .caption = "Modify", .group = "Key Frame", .cmd = {"Key Frame@Timeline@Modify#*"}}),
    Action({.id = 19, .caption = "Delete", .group = "Key Frame", .cmd = {"Key Frame@Timeline@Delete#*"}}),
    Action({.id = 21, .caption = "Copy",   .group = "Clipboard", .cmd = {"Key Frame@Timeline@Copy#*"}}),
    Action({.id = 22, .caption = "Paste",  .group = "Clipboard", .cmd = {"Key Frame@Timeline@Paste#*"}}),
    Action({.id = 33, .caption = "Undo",   .group = "Undo",      .cmd = {"Key Frame@Timeline@Undo#*"}}),
    BT_END,
};
inline constexpr BT_TBL bt_keyframe_runmode[] = {
    Action({.id = 17, .caption = "Run",       .group = "Run",  .cmd = {"Key Frame@Timeline@Run#*"}}),
    Action({.id = 18, .caption = "Rewind",    .group = "Run",  .cmd = {"Key Frame@Timeline@Rewind#*"}}),
    Action({.id = 19, .caption = "Stop",      .group = "Run",  .cmd = {"Key Frame@Timeline@Stop#*"}}),
    Toggle({.id = 33, .caption = "Reverse",   .group = "Mode", .cmd = {"Key Frame@Timeline@Reverse#*"}}),
    Toggle({.id = 34, .caption = "Loop",      .group = "Mode", .cmd = {"Key Frame@Timeline@Loop#*"}}),
    Toggle({.id = 35, .caption = "Ping-Pong", .group = "Mode", .cmd = {"Key Frame@Timeline@Ping-Pong#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_keyframe_edit) && ButtonsAreSound(bt_keyframe_runmode));

inline constexpr NB_TBL nb_kf_tl[] = {
    {.id = 1, .caption = "Region\nScroll", .type = NB_INT, .min = 0, .max = 0, .cmd = "Panel@Common@Knob0", .scale = 7},
    NB_END,
};
static_assert(BoxesAreSound(nb_kf_tl));

inline constexpr BT_TBL bt_key_frame_top[] = {
    Jump(  {.id = 17, .caption = "Time Line",        .group = "Key Frame", .cmd = {"#61110000"}}),
    Jump(  {.id = 18, .caption = "Path",             .group = "Key Frame", .cmd = {"#61130000"}}),
    Jump(  {.id = 19, .caption = "DME User\nPGM",    .group = "Key Frame", .cmd = {"#61140000"}}),
    Jump(  {.id = 20, .caption = "Timeline\nAssign", .group = "Key Frame", .cmd = {"#61150000"}}),
    Jump(  {.id = 21, .caption = "Region\nSelect",   .group = "Key Frame", .cmd = {"#61170000"}}),
    Jump(  {.id = 33, .caption = "Edit",             .group = "Timeline",  .cmd = {"#61120000"}}),
    Jump(  {.id = 34, .caption = "Run Mode",         .group = "Timeline",  .cmd = {"#61160000"}}),
    Jump(  {.id = 6,  .caption = "Top\nMenu",        .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_key_frame_top));

// --- DME User PGM: the values are those of the transition mode ---

#define MODE "LOCAL@Key Frame@DME User PGM@Transition Mode#"
inline constexpr BT_TBL bt_keyframe_dmeuserpgm[] = {
    Radio( {.id = 17, .caption = "Single",       .group = "Transition Mode", .cmd = {MODE "0"}}),
    Radio( {.id = 18, .caption = "Flip\nTumble", .group = "Transition Mode", .cmd = {MODE "8"}}),
    Radio( {.id = 19, .caption = "Dual",         .group = "Transition Mode", .cmd = {MODE "1"}}),
    Radio( {.id = 20, .caption = "P In P",       .group = "Transition Mode", .cmd = {MODE "4"}}),
    Radio( {.id = 33, .caption = "Compress",     .group = "Transition Mode", .cmd = {MODE "3"}}),
    Radio( {.id = 34, .caption = "Frame I/O",    .group = "Transition Mode", .cmd = {MODE "2"}}),
    Radio( {.id = 35, .caption = "Frame I/O\nH", .group = "Transition Mode", .cmd = {MODE "6"}}),
    Radio( {.id = 36, .caption = "Frame I/O\nV", .group = "Transition Mode", .cmd = {MODE "7"}}),
    BT_END,
};
#undef MODE
static_assert(ButtonsAreSound(bt_keyframe_dmeuserpgm));

// --- Timeline Assign: the order at the left, the regions of the system at the right ---

inline constexpr LS_TBL ls_keyframe_tlassign[] = {
    {.id = 1, .hn = 3, .vn = 15, .x = 104, .y = 78, .head = {"Priority", "Region", "Display"}, .width = {70, 120, 70},
     .group = {1, 1, 999}, .sb_top = 78, .sb_bottom = 430, .block = 1},
    {.id = 2, .hn = 2, .vn = 15, .x = 436, .y = 78, .head = {"No", "Region"}, .width = {50, 150},
     .group = {1, 999}, .sb_top = 78, .sb_bottom = 430, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_keyframe_tlassign));

#define ASSIGN "LOCAL@Key Frame@Timeline Assign@"
inline constexpr BT_TBL bt_keyframe_tlassign[] = {
    Toggle({.id = 49, .caption = "Active\nRegion", .group = "Timeline", .cmd = {ASSIGN "Active Region#*"}}),
    Toggle({.id = 50, .caption = "Display",        .group = "Timeline", .cmd = {ASSIGN "Display#*"}}),
    Action({.id = 52, .caption = "Insert",         .group = "Priority", .cmd = {ASSIGN "Priority@Insert#*"}}),
    Action({.id = 53, .caption = "Delete",         .group = "Priority", .cmd = {ASSIGN "Priority@Delete#*"}}),
    Action({.id = 54, .caption = "Default",        .group = "Priority", .cmd = {ASSIGN "Priority@Default#*"}}),
    BT_END,
};
#undef ASSIGN
static_assert(ButtonsAreSound(bt_keyframe_tlassign));

// --- Region Select: on panels whose region keys lie on two modules, which of them is shown ---

#define PAD "LOCAL@Key Frame@Region Select@FlexiPadSel#"
inline constexpr BT_TBL bt_keyframe_region_select[] = {
    Radio( {.id = 53, .caption = "Region",    .group = "Panel Module", .cmd = {PAD "Region"}}),
    Radio( {.id = 54, .caption = "Flexi Pad", .group = "Panel Module", .cmd = {PAD "Flexi Pad"}}),
    BT_END,
};
#undef PAD
static_assert(ButtonsAreSound(bt_keyframe_region_select));

// On the timeline the knob is there before the rows, which tell it how far they scroll; page code
// comes last, when the lists and buttons that it fills are there.
inline constexpr PAGE keyframe_pages[] = {
    {.id = 0x61000000, .tree = {"Key Frame"}, .obj = {Base(base_main), Buttons(bt_key_frame_top)}},
    {.id = 0x61110000, .tree = {"Key Frame", "Time Line"},
     .obj = {Base(base_kf_tl), LowBottomTabs(hf_kf, 1), Boxes(nb_kf_tl), Timeline(kf_tl)}},
    {.id = 0x61120000, .tree = {"Key Frame", "Edit"},
     .obj = {Base(base_main), BottomTabs(hf_kf, 6), Buttons(bt_keyframe_edit), Boxes(NB_Non)}},
    {.id = 0x61160000, .tree = {"Key Frame", "Run Mode"},
     .obj = {Base(base_main), BottomTabs(hf_kf, 7), Buttons(bt_keyframe_runmode), Boxes(NB_Non)}},
    {.id = 0x61140000, .tree = {"Key Frame", "DME User PGM"},
     .obj = {Base(base_main), BottomTabs(hf_kf, 3), Buttons(bt_keyframe_dmeuserpgm), Code(pc_keyframe_dmeuserpgm)}},
    {.id = 0x61150000, .tree = {"Key Frame", "Timeline Assign"},
     .obj = {Base(base_main), BottomTabs(hf_kf, 4), Buttons(bt_keyframe_tlassign), Lists(ls_keyframe_tlassign),
             Code(pc_keyframe_tlassign)}},
    {.id = 0x61170000, .tree = {"Key Frame", "Region Select"},
     .obj = {Base(base_main), BottomTabs(hf_kf, 5), Buttons(bt_keyframe_region_select), Code(pc_keyframe_region_select)}},
};
