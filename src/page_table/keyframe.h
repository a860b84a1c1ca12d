// keyframe: the pages of the timelines.
#pragma once
#include "a_kf.h"
#include "rows.h"

constexpr _pageobject Timeline(const KF_TBL& table) { return {OBJ_KF, &table, 0}; }

inline constexpr HF_TBL hf_kf[] = {
    {.id = 1, .caption = "Time Line",        .page = 0x61110000},
    {.id = 2, .caption = "Path",             .page = 0x61130000},
    {.id = 3, .caption = "DME User\nPGM",    .page = 0x61140000},
    {.id = 4, .caption = "Timeline\nAssign", .page = 0x61150000},
    {.id = 5, .caption = "Region\nSelect",   .page = 0x61170000},
    HF_END,
};
constexpr uint32_t LOW_TABS = 0x100; // with the tab's number: tabs below the labels of the time axis

inline constexpr NB_TBL nb_kf_tl[] = {
    {.id = 1, .caption = "Region\nScroll", .type = NB_INT, .min = 0, .max = 0, .cmd = "Panel@Common@Knob0", .scale = 7},
    NB_END,
};
static_assert(BoxesAreSound(nb_kf_tl));

inline constexpr BT_TBL bt_key_frame_top[] = {
    Jump(       {.id = 17, .caption = "Time Line", .group = "Key Frame", .cmd = {"#61110000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_key_frame_top));

// On the timeline the knob is there before the rows, which tell it how far they scroll.
inline constexpr PAGE keyframe_pages[] = {
    {.id = 0x61000000, .tree = {"Key Frame"}, .obj = {Base(base_main), Buttons(bt_key_frame_top)}},
    {.id = 0x61110000, .tree = {"Key Frame", "Time Line"},
     .obj = {Base(base_kf_tl), BottomTabs(hf_kf, LOW_TABS + 1), Boxes(nb_kf_tl), Timeline(kf_tl)}},
};
