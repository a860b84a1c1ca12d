// shotbox_pages: the pages of the Shotbox menu.
#pragma once
#include "pc_shotbox.h"
#include "register_pages.h"

inline constexpr VF_TBL vf_shotbox[] = {
    {.id = 1, .caption = "Register", .page = 0x64110000},
    {.id = 7, .caption = "Status",   .page = 0x64000000},
    VF_END,
};

#define SB "LOCAL@Shotbox@"
REG_PLAIN_KEY_TABLES(SB, shotbox)

inline constexpr BT_TBL bt_shotbox_store[] = {
    Toggle(   {.id = BTN_SHOTBOX_AUTO_RUN, .caption = "Auto\nRun", .cmd = {SB "Store/Recall@Auto Run#*"}}),
    Action(   {.id = 49, .caption = "Recall", .cmd = {SB "Store/Recall@Recall"}}),
    Action(   {.id = 50, .caption = "Store", .cmd = {SB "Store/Recall@Store"}}),
    Jump(     {.id = 51, .caption = "Edit",  .cmd = {"#64110001"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_shotbox_store));

inline constexpr HF_TBL hf_shotbox[] = REG_BOTTOM_TABS(0x64100000, "Store/\nRecall", "Copy");
inline constexpr RegisterLists ls_shotbox = ListsOf(shotbox_columns, name_dual_columns);
static_assert(RegisterListsAreSound(ls_shotbox));

inline constexpr RegisterGroup shotbox_groups_of_pages[] = {
    {0x64100000, REGKIND_SHOTBOX, "Shotbox", "Register", "Store/Recall", vf_shotbox, 1, hf_shotbox, &ls_shotbox,
     REG_KEYS(bt_shotbox_store, shotbox)},
};
inline constexpr auto shotbox_register_pages = RegisterRows(shotbox_groups_of_pages);

inline constexpr BT_TBL bt_shotbox_status[] = REG_STATUS_KEYS(SB);
#define SB_EDIT SB "Store/Recall@Edit@"
inline constexpr BT_TBL bt_shotbox_edit[] = REG_EDIT_KEYS_WITH(
    Toggle({.id = BTN_REGISTER_EDIT_SNAPSHOT, .caption = "Snapshot", .cmd = {SB_EDIT "Snapshot#*"}}), SB_EDIT);
#undef SB_EDIT
static_assert(ButtonsAreSound(bt_shotbox_status) && ButtonsAreSound(bt_shotbox_edit));
inline constexpr PAGE shotbox_sub_pages[] = {
    RegisterEditPage(shotbox_groups_of_pages[0], bt_shotbox_edit, nb_register_edit_effect),
    RegisterStatusPage(0x64000000, "Shotbox", REGKIND_SHOTBOX, vf_shotbox, 7, bt_shotbox_status),
};
#undef SB
