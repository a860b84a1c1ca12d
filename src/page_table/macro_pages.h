// macro_pages: the pages of the Macro menu.
#pragma once
#include "macro_attach.h"
#include "pc_macro.h"
#include "pc_macro_attach.h"
#include "pc_macro_offline.h"
#include "pc_macro_online_edit.h"
#include "pc_macro_timeline.h"
#include "register_pages.h"

inline constexpr VF_TBL vf_macro[] = {
    {.id = 1, .caption = "Register", .page = 0x54120000},
    {.id = 2, .caption = "Attach-\nment", .page = 0x54210000},
    {.id = 3, .caption = "Menu\nMacro\nRegister", .page = 0x54310000},
    {.id = 4, .caption = "Timeline", .page = 0x54410000},
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

// --- The offline editor ---

// Below the register and its name the events; below them the values at the left, at the right the keys that choose
// what is set, as many as the event has.
inline constexpr LS_TBL ls_macro_offline[] = {
    {.id = LIST_MACRO_EVENTS, .hn = MACRO_COL_SLOT + MACRO_SHOWN_SLOTS, .vn = 6, .x = 100, .y = 98,
     .head = {"Contents", "Event", "", "", "", ""}, .width = {76, 152, 81, 81, 81, 81}, .group = {1, 1, 4}, .split = 1,
     .sb_top = 98, .sb_bottom = 252, .block = 1},
    {.id = LIST_MACRO_VALUES, .hn = 1, .vn = 6, .x = 100, .y = 266, .head = {""}, .width = {148}, .group = {1}, .view = 1,
     .sb_top = 266, .sb_bottom = 420}, // its arrows choose nothing
    LS_END,
};
static_assert(ListsAreSound(ls_macro_offline));

#define OFFLINE "LOCAL@Macro@Reg@Off Line Edit@"
constexpr BT_TBL MacroGroup(int id, const char* cmd)
{
    return Toggle({.id = id, .caption = "", .cmd = {cmd}}); // the code lights the one in focus
}
inline constexpr BT_TBL bt_macro_offline[] = {
    MacroGroup(BTN_MACRO_GROUP_3,     OFFLINE "Group#3"), MacroGroup(BTN_MACRO_GROUP_3 + 1, OFFLINE "Group#4"),
    MacroGroup(BTN_MACRO_GROUP_3 + 2, OFFLINE "Group#5"), MacroGroup(BTN_MACRO_GROUP_3 + 3, OFFLINE "Group#6"),
    MacroGroup(BTN_MACRO_GROUP_7,     OFFLINE "Group#7"), MacroGroup(BTN_MACRO_GROUP_7 + 1, OFFLINE "Group#8"),
    MacroGroup(BTN_MACRO_GROUP_7 + 2, OFFLINE "Group#9"), MacroGroup(BTN_MACRO_GROUP_7 + 3, OFFLINE "Group#10"),
    MacroGroup(BTN_MACRO_GROUP_1,     OFFLINE "Group#1"), MacroGroup(BTN_MACRO_GROUP_2,     OFFLINE "Group#2"),
    Action({.id = BTN_MACRO_INSERT_BEFORE, .caption = "Insert\nBefore", .cmd = {OFFLINE "Before"}}),
    Action({.id = BTN_MACRO_INSERT_AFTER,  .caption = "Insert\nAfter",  .cmd = {OFFLINE "After"}}),
    Action({.id = BTN_MACRO_DELETE,        .caption = "Delete",         .cmd = {OFFLINE "Delete"}}),
    Action({.id = BTN_MACRO_STORE,         .caption = "Store",          .cmd = {OFFLINE "Store"}}),
    BT_END,
};
#undef OFFLINE
static_assert(ButtonsAreSound(bt_macro_offline));

inline constexpr NB_TBL nb_macro_offline[] = {
    {.id = NB_MACRO_REGISTER, .caption = "Register", .type = NB_INT, .min = 1, .max = REGISTERS_MACRO,
     .cmd = "Panel@Common@Knob0", .scale = 1},
    NB_END,
};
static_assert(BoxesAreSound(nb_macro_offline));

// --- The online editor ---

inline constexpr LS_TBL ls_macro_online[] = {
    {.id = LIST_MACRO_ONLINE, .hn = ONLINE_COLUMNS, .vn = 8, .x = 100, .y = 98, .head = {"Contents", "Event", "Data", ""},
     .width = {82, 152, 298, 20}, .group = {1, 1, 1, 1}, .sb_top = 98, .sb_bottom = 296},
    LS_END,
};
static_assert(ListsAreSound(ls_macro_online));

#define ONLINE "Macro@Reg@On Line Edit@"
inline constexpr BT_TBL bt_macro_online[] = {
    Radio( {.id = BTN_ONLINE_AUTO_INSERT, .caption = "Auto\nInsert", .group = "Insert", .cmd = {ONLINE "Macro Insert Mode#Auto Insert"}}),
    Radio( {.id = BTN_ONLINE_EDIT_INSERT, .caption = "Edit\nInsert", .group = "Insert", .cmd = {ONLINE "Macro Insert Mode#Edit Insert"}}),
    Action({.id = BTN_ONLINE_PREVIOUS, .caption = "Previous",       .cmd = {"LOCAL@" ONLINE "Previous"}}),
    Action({.id = BTN_ONLINE_NEXT,     .caption = "Next",           .cmd = {"LOCAL@" ONLINE "Next"}}),
    Action({.id = BTN_ONLINE_BEFORE,   .caption = "Insert\nBefore", .cmd = {"LOCAL@" ONLINE "Before"}}),
    Action({.id = BTN_ONLINE_AFTER,    .caption = "Insert\nAfter",  .cmd = {"LOCAL@" ONLINE "After"}}),
    Action({.id = BTN_ONLINE_MODIFY,   .caption = "Modify",         .cmd = {"LOCAL@" ONLINE "Modify"}}),
    Action({.id = BTN_ONLINE_DELETE,   .caption = "Delete",         .cmd = {"LOCAL@" ONLINE "Delete"}}),
    Toggle({.id = BTN_ONLINE_RUN,      .caption = "Run",            .cmd = {ONLINE "Run#*"}}),
    BT_END,
};
#undef ONLINE
static_assert(ButtonsAreSound(bt_macro_online));

// --- Attachment ---

inline constexpr LS_TBL ls_macro_attach[] = {
    {.id = LIST_MACRO_ATTACH, .hn = 5, .vn = 8, .x = 100, .y = 78, .head = {"Block", "Button", "Mode", "No", "Macro"},
     .width = {130, 216, 52, 36, 118}, .group = {1, 1, 1, 2}, .sb_top = 78, .sb_bottom = 276},
    LS_END,
};
static_assert(ListsAreSound(ls_macro_attach));

#define ATTACH "LOCAL@Macro@Attach@Attach@"
constexpr BT_TBL AttachBlock(int id, int group, const char* cmd)
{
    return Action({.id = id, .caption = BlockSelect[group], .group = group < ATTACHGROUP_AUX ? "Go to Block" : nullptr, .cmd = {cmd}});
}
inline constexpr BT_TBL bt_macro_attach[] = {
    AttachBlock(BTN_ATTACH_BLOCK,     ATTACHGROUP_PP,  ATTACH "Block#1"), AttachBlock(BTN_ATTACH_BLOCK + 1, ATTACHGROUP_ME1, ATTACH "Block#2"),
    AttachBlock(BTN_ATTACH_BLOCK + 2, ATTACHGROUP_ME2, ATTACH "Block#3"), AttachBlock(BTN_ATTACH_BLOCK + 3, ATTACHGROUP_ME3, ATTACH "Block#4"),
    AttachBlock(BTN_ATTACH_BLOCK + 4, ATTACHGROUP_ME4, ATTACH "Block#5"), AttachBlock(BTN_ATTACH_BLOCK + 5, ATTACHGROUP_ME5, ATTACH "Block#6"),
    AttachBlock(BTN_ATTACH_BLOCK_7,     ATTACHGROUP_AUX,    ATTACH "Block#7"),
    AttachBlock(BTN_ATTACH_BLOCK_7 + 1, ATTACHGROUP_OTHERS, ATTACH "Block#8"),
    Radio( {.id = BTN_ATTACH_BUTTON_MODE, .caption = "Button\nMode", .group = "Xpt", .cmd = {ATTACH "Mode#Button Mode"}}),
    Radio( {.id = BTN_ATTACH_PAIR_MODE,   .caption = "Pair\nMode",   .group = "Xpt", .cmd = {ATTACH "Mode#Pair Mode"}}),
    Action({.id = BTN_ATTACH_DELETE,      .caption = "Delete",        .cmd = {ATTACH "Delete"}}),
    Action({.id = BTN_ATTACH_ALL_CLEAR,   .caption = "All\nClear",    .cmd = {ATTACH "All Clear"}}),
    BT_END,
};
#undef ATTACH
static_assert(ButtonsAreSound(bt_macro_attach));

// --- Timeline ---

#define TIMELINE "LOCAL@Macro@Timeline@"
#define TIMELINE_KEYS                                                                                                   \
    Action({.id = 49, .caption = "Set", .group = "Action", .cmd = {TIMELINE "Set"}}),                                   \
    Action({.id = 50, .caption = "Clear", .group = "Action", .cmd = {TIMELINE "Clear"}})
inline constexpr BT_TBL bt_macro_timeline[] = {
    TIMELINE_KEYS, Jump({.id = 52, .caption = "Rewind\nAction", .cmd = {"#54410001"}}), BT_END,
};
inline constexpr BT_TBL bt_macro_tl_rewind_action[] = {TIMELINE_KEYS, BT_END};
static_assert(ButtonsAreSound(bt_macro_timeline) && ButtonsAreSound(bt_macro_tl_rewind_action));
#undef TIMELINE_KEYS
#undef TIMELINE
// One macro at a time.
inline constexpr LS_TBL ls_macro_timeline[] = {RegisterList(1, 100, 78, 12, keyss_columns, 0, 1), LS_END};
static_assert(ListsAreSound(ls_macro_timeline));

inline constexpr PAGE macro_sub_pages[] = {
    {.id = 0x54410000, .tree = {"Macro", "Timeline"},
     .obj = {Base(base_main), LeftTabs(vf_macro, 4), Buttons(bt_macro_timeline), Lists(ls_macro_timeline),
             Code(pc_macro_timeline, MACROACTION_KEYFRAME)}},
    {.id = 0x54410001, .tree = {"Macro", "Timeline", "Rewind Action"},
     .obj = {Base(base_sub, 0x54410000), LeftTabs(vf_macro, 4), Buttons(bt_macro_tl_rewind_action), Lists(ls_macro_timeline),
             Code(pc_macro_timeline, MACROACTION_REWIND)}},
    {.id = 0x54210000, .tree = {"Macro", "Attachment"},
     .obj = {Base(base_main), LeftTabs(vf_macro, 2), Buttons(bt_macro_attach), Lists(ls_macro_attach), Code(pc_macro_attach)}},
    {.id = PAGE_MACRO_ONLINE, .tree = {"Macro", "Register", "Online Edit"},
     .obj = {Base(base_sub, PAGE_MACRO_REGISTERS), Buttons(bt_macro_online), Lists(ls_macro_online), Code(pc_macro_online_edit)}},
    {.id = PAGE_MACRO_OFFLINE, .tree = {"Macro", "Register", "Offline Edit"},
     .obj = {Base(base_sub, PAGE_MACRO_REGISTERS), Buttons(bt_macro_offline), Lists(ls_macro_offline),
             Boxes(nb_macro_offline), Code(pc_macro_offline)}},
};
