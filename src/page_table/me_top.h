// me_top: the first page of a bank, from which its keys are reached. Written for M/E-1.
#pragma once
#include "me_key.h"

// One row a key, one column a tab: four keys of the bank's side, whose relative targets are shifted by bank alone.
constexpr BT_TBL KeyTab(int row, int column, const char* caption, const char* group, const char* page)
{
    return Jump({.id = (row << 4) + column, .caption = caption, .group = group, .cmd = {page}});
}
#define KEY_TAB_ROW(row, title, key) \
    KeyTab(row, 1, "Type",        title, "#+11" key "10000"), \
    KeyTab(row, 2, "Edge",        title, "#+11" key "20000"), \
    KeyTab(row, 3, "Main\nMask",  title, "#+11" key "30000"), \
    KeyTab(row, 4, "Sub\nMask",   title, "#+11" key "40000")
#define KEY_TAB_ROW_SUB(row, title, key) \
    KeyTab(row, 1, "Type",        title, "#+15" key "10000"), \
    KeyTab(row, 2, "Edge",        title, "#+15" key "20000"), \
    KeyTab(row, 3, "Main\nMask",  title, "#+15" key "30000"), \
    KeyTab(row, 4, "Sub\nMask",   title, "#+15" key "40000")

inline constexpr BT_TBL bt_me_top[] = {
    KEY_TAB_ROW(0, "Key1", "1"), KEY_TAB_ROW(1, "Key2", "2"), KEY_TAB_ROW(2, "Key3", "3"), KEY_TAB_ROW(3, "Key4", "4"),
    Jump({.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
inline constexpr BT_TBL bt_me_top_sub[] = {
    KEY_TAB_ROW_SUB(0, "Key5", "1"), KEY_TAB_ROW_SUB(1, "Key6", "2"), KEY_TAB_ROW_SUB(2, "Key7", "3"), KEY_TAB_ROW_SUB(3, "Key8", "4"),
    Jump({.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
#undef KEY_TAB_ROW
#undef KEY_TAB_ROW_SUB
static_assert(ButtonsAreSound(bt_me_top) && ButtonsAreSound(bt_me_top_sub));

inline constexpr MePage me_top_pages[] = {
    {.page = {.id = 0x11000000, .tree = {"M/E-1"}, .obj = {Base(base_main), Buttons(bt_me_top)}}, .where = MAIN},
    {.page = {.id = 0x11000000, .tree = {"M/E-1"}, .obj = {Base(base_main), Buttons(bt_me_top_sub)}}, .where = SUB},
};
