// top: the top menu, a key for every menu key of the panel, and the operator's favourites.
#pragma once
#include "rows.h"

// 27 keys need a fifth row above the standard grid: row 0 here is at y 96, the pitch is the standard one.
constexpr Rect TopRect(int row, int column)
{
    const Rect r = GridRect(column + 1);
    return {r.x1, r.y1 - 88 + 88 * row, r.x2, r.y2 - 88 + 88 * row};
}
constexpr BT_TBL TopKey(int row, int column, const char* caption, const char* group, const char* page)
{
    const Rect r = TopRect(row, column);
    BT_TBL key{.id = (row << 4) + column + 1, .caption = caption, .group = group,
               .x1 = r.x1, .y1 = r.y1, .x2 = r.x2, .y2 = r.y2, .cmd = {page}};
    return Jump(key);
}

inline constexpr BT_TBL bt_top[] = {
    TopKey(0, 0, "M/E-1",           "Mix/Effect",   "#11110000"),
    TopKey(0, 1, "M/E-2",           "Mix/Effect",   "#12110000"),
    TopKey(0, 2, "M/E-3",           "Mix/Effect",   "#13110000"),
    TopKey(0, 3, "M/E-4",           "Mix/Effect",   "#81110000"),
    TopKey(0, 4, "M/E-5",           "Mix/Effect",   "#82110000"),
    TopKey(0, 5, "PGM/PST",         "Mix/Effect",   "#14110000"),
    TopKey(1, 0, "Frame\nMemory",   "Sources",      "#21110000"),
    TopKey(1, 1, "Color\nBkgd",     "Sources",      "#22100000"),
    TopKey(1, 2, "Aux/Mon",         "Sources",      "#23110000"),
    TopKey(1, 3, "CCR",             "Sources",      "#24110000"),
    TopKey(1, 4, "DME",             "Effects",      "#41110000"),
    TopKey(1, 5, "Global\nEffect",  "Effects",      "#42110000"),
    TopKey(2, 0, "Key\nFrame",      "Registers",    "#61110000"),
    TopKey(2, 1, "Effect",          "Registers",    "#62110000"),
    TopKey(2, 2, "Snapshot",        "Registers",    "#63110000"),
    TopKey(2, 3, "Shotbox",         "Registers",    "#64110000"),
    TopKey(2, 4, "Macro",           "Registers",    "#54100000"),
    TopKey(2, 5, "File",            "Registers",    "#71110000"),
    TopKey(3, 0, "Router",          "Devices",      "#51110000"),
    TopKey(3, 1, "Device",          "Devices",      "#53210000"),
    TopKey(3, 2, "SP",              "Devices",      "#52100000"),
    TopKey(3, 3, "Copy/\nSwap",     "Operation",    "#31110000"),
    TopKey(3, 4, "Misc",            "Operation",    "#32110000"),
    TopKey(3, 5, "Status",          "Operation",    "#33110000"),
    TopKey(4, 0, "Engineer-\ning Setup", "System",  "#73110000"),
    TopKey(4, 1, "Diag",            "System",       "#74110000"),
    TopKey(4, 3, "Favorites",       "Own Pages",    "#00220000"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_top));

// Ten keys in two rows of five; captions, targets and colours come from the operator's setup (favorites).
constexpr BT_TBL FavoriteKey(int id, const char* cmd)
{
    BT_TBL key{.id = id, .caption = "", .draw_func = bt_drw_color_select, .cmd = {cmd}};
    return Action(key);
}
inline constexpr BT_TBL bt_top_favorites[] = {
    FavoriteKey(1,  "LOCAL@Favorites@Open#1"),
    FavoriteKey(2,  "LOCAL@Favorites@Open#2"),
    FavoriteKey(3,  "LOCAL@Favorites@Open#3"),
    FavoriteKey(4,  "LOCAL@Favorites@Open#4"),
    FavoriteKey(5,  "LOCAL@Favorites@Open#5"),
    FavoriteKey(33, "LOCAL@Favorites@Open#6"),
    FavoriteKey(34, "LOCAL@Favorites@Open#7"),
    FavoriteKey(35, "LOCAL@Favorites@Open#8"),
    FavoriteKey(36, "LOCAL@Favorites@Open#9"),
    FavoriteKey(37, "LOCAL@Favorites@Open#10"),
    Toggle({.id = 52, .caption = "Next\nColor", .group = "Edit", .cmd = {"LOCAL@Favorites@Color#*"}}),
    Toggle({.id = 53, .caption = "Clear",       .group = "Edit", .cmd = {"LOCAL@Favorites@Clear#*"}}),
    Toggle({.id = 54, .caption = "Store\nPage", .group = "Edit", .cmd = {"LOCAL@Favorites@Store#*"}}),
    Jump  ({.id = 6,  .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_top_favorites));

extern const PC_TBL pc_favorites; // favorites.cpp

inline constexpr PAGE top_pages[] = {
    {.id = 0x00110000, .tree = {"Home"},              .obj = {Base(base_main), Buttons(bt_top)}},
    {.id = 0x00220000, .tree = {"Home", "Favorites"}, .obj = {Base(base_main), Buttons(bt_top_favorites), Code(pc_favorites)}},
};
