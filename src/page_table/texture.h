// texture: a pattern of the effects unit's memory as a fill: which one, and how it lies.
#pragma once
#include "dme.h"
#include "nb_rows.h"
#include "pc_texture_select.h"
#include "rows.h"

inline constexpr LS_TBL ls_texture[] = {
    {.id = 1, .hn = 2, .vn = 14, .x = 100, .y = 76, .head = {"No", "Texture"}, .width = {60, 490}, .sb_top = 76,
     .sb_bottom = 76 + LS_ROW_PX * 15, .block = 1}, // one at a time
    LS_END,
};
static_assert(ListsAreSound(ls_texture));

inline constexpr auto nb_texture_size = Column(
    Percent(1, "Size", "~@Size@Size", 400),
    Span(2, "Aspect", "~@Size@Aspect", 100));
inline constexpr auto nb_texture_position = Column(
    Span(1, "H", "~@Position@H", 200),
    Span(2, "V", "~@Position@V", 200));
inline constexpr auto nb_texture_angle = Column(Degrees(1, "Angle\ndeg", "~@Angle@Angle"));
inline constexpr auto nb_texture_density = Column(Percent(1, "Density", "~@Density@Density"));
inline constexpr BT_TBL bt_texture[] = {
    Toggle({.id = 49, .caption = "Size",     .group = "Texture", .cmd = {"~@Size#*"}, .nb = nb_texture_size.row}),
    Toggle({.id = 50, .caption = "Position", .group = "Texture", .cmd = {"~@Position#*"}, .nb = nb_texture_position.row}),
    Toggle({.id = 51, .caption = "Angle",    .group = "Texture", .cmd = {"~@Angle#*"}, .nb = nb_texture_angle.row}),
    Toggle({.id = 52, .caption = "Density",  .group = "Texture", .cmd = {"~@Density#*"}, .nb = nb_texture_density.row}),
    Toggle({.id = 53, .caption = "Repeat",   .group = "Lay", .cmd = {"~@Repeat#*"}}),
    Toggle({.id = 54, .caption = "Mirror",   .group = "Lay", .cmd = {"~@Mirror#*", "~@Repeat#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_texture));

inline constexpr PAGE texture_pages[] = {
    {.id = 0x41560001, .tree = {"DME", "Light", "Bkgd", "Texture"},
     .obj = {Base(base_sub, 0x41560000), LeftTabs(vf_dme, DmeLeftTab(0x41560000)),
             BottomTabs(hf_dme_light, DmeBottomTab(0x41560000, hf_dme_light)), Lists(ls_texture), Buttons(bt_texture), Boxes(NB_Non),
             Code(pc_texture_select)}},
};
