// macro_pages: the pages of the Macro menu.
#pragma once
#include "pc_macro.h"
#include "register_pages.h"

inline constexpr VF_TBL vf_macro[] = {
    {.id = 1, .caption = "Register", .page = 0x54120000},
    {.id = 3, .caption = "Menu\nMacro\nRegister", .page = 0x54310000},
    VF_END,
};

// --- Registers ---

// The tabs stand where the other menus of registers have them.
inline constexpr HF_TBL hf_macro_register[] = {
    {.id = 2, .caption = "Lock",   .page = 0x54120000}, {.id = 3, .caption = "Copy",   .page = 0x54130000},
    {.id = 6, .caption = "Delete", .page = 0x54160000}, {.id = 7, .caption = "Rename", .page = 0x54170000}, HF_END,
};

#define MACRO "LOCAL@Macro@"
#define MACRO_KEYS(caption_, shape) {                                                                                   \
    Action({.id = 49, .caption = caption_, .cmd = {MACRO shape "@" shape}}),                                            \
    Action({.id = BTN_MACRO_OFFLINE, .caption = "Offline\nEdit", .group = "Editor", .cmd = {"LOCAL@File@Single@OfflineEdit"}}), \
    Action({.id = BTN_MACRO_ONLINE,  .caption = "Online\nEdit",  .group = "Editor", .cmd = {"LOCAL@File@Single@OnlineEdit"}}), \
    BT_END}
inline constexpr BT_TBL bt_macro_lock[] = MACRO_KEYS("Lock", "Lock");
inline constexpr BT_TBL bt_macro_delete[] = MACRO_KEYS("Delete", "Delete");
inline constexpr BT_TBL bt_macro_rename[] = MACRO_KEYS("Rename", "Rename");
inline constexpr BT_TBL bt_macro_copy[] = {
    Action({.id = 49, .caption = "Copy", .cmd = {MACRO "Copy@Copy"}}), REG_WO_NAME(MACRO, "Copy"), BT_END,
};
static_assert(ButtonsAreSound(bt_macro_lock) && ButtonsAreSound(bt_macro_delete) && ButtonsAreSound(bt_macro_rename) &&
              ButtonsAreSound(bt_macro_copy));
#undef MACRO_KEYS
#undef MACRO

inline constexpr RegisterLists ls_macro = ListsOf(keyss_columns, name_dual_columns);
inline constexpr RegisterGroup macro_group_of_pages = {
    0x54100000, REGKIND_MACRO, "Macro", "Register", "Register", vf_macro, 1, hf_macro_register, &ls_macro,
    {{nullptr, bt_macro_lock, bt_macro_copy, nullptr, nullptr, bt_macro_delete, bt_macro_rename}},
};
inline constexpr REGSHAPE macro_shapes[] = {REGSHAPE_LOCK, REGSHAPE_COPY, REGSHAPE_DELETE, REGSHAPE_RENAME};
inline constexpr auto macro_register_pages = RegisterRows(macro_group_of_pages, macro_shapes);
