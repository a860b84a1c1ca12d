// menu_macro_pages: the register pages of the menu macros and the page of their editor. They are a group of register
// pages without move and swap.
#pragma once
#include "macro_pages.h"
#include "pc_menu_macro.h"
#include "pc_menu_macro_edit.h"
#include "register_pages.h"

inline constexpr HF_TBL hf_menu_macro[] = {
    {.id = 1, .caption = "Exec",   .page = 0x54310000}, {.id = 2, .caption = "Lock",   .page = 0x54320000},
    {.id = 3, .caption = "Copy",   .page = 0x54330000}, {.id = 6, .caption = "Delete", .page = 0x54360000},
    {.id = 7, .caption = "Rename", .page = 0x54370000}, HF_END,
};

#define MM "LOCAL@Menu Macro@Register@"
#define MM_TRANSPORT(place, word) Action({.id = place, .caption = word, .draw_func = bt_drw_menu_macro_playrec, .cmd = {MM "Exec@" word}})
inline constexpr BT_TBL bt_menu_macro_exec[] = {
    MM_TRANSPORT(49, "Rewind"),
    MM_TRANSPORT(50, "Run"),
    MM_TRANSPORT(51, "Stop"),
    Action({.id = 52, .caption = "Recall", .cmd = {MM "Exec@Recall"}}),
    Action({.id = 53, .caption = "Recall\nRun", .cmd = {MM "Exec@Recall_Run"}}),
    Jump(  {.id = 38, .caption = "Setup", .cmd = {"#54310099"}}),
    Jump(  {.id = 54, .caption = "Menu\nMacro\nEdit", .cmd = {"#71440102"}}),
    BT_END,
};
inline constexpr BT_TBL bt_menu_macro_lock[] = {Action({.id = 49, .caption = "Lock", .cmd = {MM "Lock@Lock"}}), BT_END};
inline constexpr BT_TBL bt_menu_macro_copy[] = {
    Action({.id = 49, .caption = "Copy", .cmd = {MM "Copy@Copy"}}),
    Toggle({.id = BTN_REGISTER_WO_NAME, .caption = "W/o\nName", .cmd = {MM "Copy@W/o Name#*"}}), BT_END};
inline constexpr BT_TBL bt_menu_macro_delete[] = {Action({.id = 49, .caption = "Delete", .cmd = {MM "Delete@Delete"}}), BT_END};
inline constexpr BT_TBL bt_menu_macro_rename[] = {Action({.id = 49, .caption = "Rename", .cmd = {MM "Rename@Rename"}}), BT_END};
#undef MM_TRANSPORT
#undef MM
static_assert(ButtonsAreSound(bt_menu_macro_exec) && ButtonsAreSound(bt_menu_macro_copy));

inline constexpr RegisterLists ls_menu_macro = ListsOf(menu_macro_columns, name_dual_columns);
static_assert(RegisterListsAreSound(ls_menu_macro));

inline constexpr RegisterGroup menu_macro_group = {
    0x54300000, REGKIND_MENU_MACRO, "Macro", "Menu Macro", "Exec", vf_macro, 3, hf_menu_macro, &ls_menu_macro,
    {{bt_menu_macro_exec, bt_menu_macro_lock, bt_menu_macro_copy, nullptr, nullptr, bt_menu_macro_delete, bt_menu_macro_rename}}};
inline constexpr REGSHAPE menu_macro_shapes[] = {REGSHAPE_ATTRIBUTE, REGSHAPE_LOCK, REGSHAPE_COPY, REGSHAPE_DELETE, REGSHAPE_RENAME};
inline constexpr auto menu_macro_pages = RegisterRows(menu_macro_group, menu_macro_shapes);

// --- The interval ---
inline constexpr NB_TBL nb_menu_macro_setup[] = {
    {.id = 1, .caption = "Interval\nseconds", .type = NB_1, .min = 0, .max = MENU_MACRO_INTERVAL_MAX / 1000.0, .cmd = "Panel@Common@Knob0",
     .scale = 10},
    NB_END,
};
static_assert(BoxesAreSound(nb_menu_macro_setup));

// --- The editor: two rows of keys below a list and its strip, closer than the grid's ---
constexpr BT_TBL EditorKey(int id, BT_TBL row)
{
    row.id = id;
    row.x1 = GridRect(id).x1;
    row.x2 = GridRect(id).x2;
    row.y1 = 372 + 75 * ((id >> 4) - 1);
    row.y2 = row.y1 + 65;
    return row;
}
#define MM "LOCAL@Menu Macro@Reg@"
inline constexpr BT_TBL bt_menu_macro_edit[] = {
    Toggle(EditorKey(BTN_MENU_MACRO_AUTO_INSERT, {.caption = "Auto\nInsert", .cmd = {MM "Auto Insert#*"}})),
    Toggle(EditorKey(BTN_MENU_MACRO_PAUSE_AUTO, {.caption = "Pause Auto\nInsert", .cmd = {MM "Pause Auto Insert#*"}})),
    Toggle(EditorKey(BTN_MENU_MACRO_RECYCLE, {.caption = "Recycle", .cmd = {MM "Recycle#*"}})),
    Action(EditorKey(21, {.caption = "Pause\nSet", .cmd = {MM "Pause Set"}})),
    Action(EditorKey(22, {.caption = "Pause\nTime", .cmd = {MM "Pause Time"}})),
    Action(EditorKey(33, {.caption = "Before", .cmd = {MM "Before"}})),
    Action(EditorKey(34, {.caption = "After", .cmd = {MM "After"}})),
    Action(EditorKey(35, {.caption = "Modify", .cmd = {MM "Modify"}})),
    Action(EditorKey(36, {.caption = "Delete", .cmd = {MM "Delete"}})),
    Toggle(EditorKey(BTN_MENU_MACRO_EVENT, {.caption = "Event", .cmd = {MM "Event#*"}})),
    Toggle(EditorKey(BTN_MENU_MACRO_ALL, {.caption = "All Event\nSelect", .cmd = {MM "All Event Select#*"}})),
    Action(EditorKey(20, {.caption = "Store", .cmd = {MM "Store"}})),
    Action({.id = 54, .caption = "Exit", .x1 = 602, .y1 = 531, .x2 = 686, .y2 = 596, .cmd = {MM "Exit"}}), // where others have tabs
    BT_END,
};
#undef MM
static_assert(ButtonsAreSound(bt_menu_macro_edit));
inline constexpr LS_TBL ls_menu_macro_edit[] = {
    {.id = 1, .hn = 4, .vn = 9, .x = 100, .y = 78, .head = {"No", "Evt", "Contents", "Data"}, .width = {42, 38, 74, 398},
     .group = {1, 1, 1, 1}, .sb_top = 78, .sb_bottom = 298},
    LS_END,
};
static_assert(ListsAreSound(ls_menu_macro_edit));
inline constexpr NB_TBL nb_menu_macro_edit[] = {
    {.id = 1, .caption = "Register", .type = NB_INT, .min = 1, .max = MENU_MACRO_REGISTERS, .cmd = "Panel@Common@Knob0", .scale = 1},
    {.id = 2, .caption = "Pause\nTime", .type = NB_1, .min = 0.1, .max = MENU_MACRO_INTERVAL_MAX / 1000.0,
     .cmd = "Panel@Common@Knob1", .scale = 10},
    NB_END,
};
static_assert(BoxesAreSound(nb_menu_macro_edit));

inline constexpr PAGE menu_macro_sub_pages[] = {
    {.id = 0x54310099, .tree = {"Macro", "Menu Macro", "Exec", "Setup"},
     .obj = {Base(base_sub, 0x54310000), LeftTabs(vf_macro, 3), Lists(ls_menu_macro.attribute), Boxes(nb_menu_macro_setup), Code(pc_menu_macro_register_setup)}},
    {.id = 0x71440002, .tree = {"File", "Menu Macro", "Edit"},
     .obj = {Base(base_sub, 0x71440001), Buttons(bt_menu_macro_edit), Lists(ls_menu_macro_edit), Boxes(nb_menu_macro_edit),
             Code(pc_file_menu_macro_edit)}},
};
