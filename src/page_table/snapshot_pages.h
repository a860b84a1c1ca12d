// snapshot_pages: the pages of the Snapshot menu.
#pragma once
#include "pc_snapshot.h"
#include "register_pages.h"

inline constexpr VF_TBL vf_snapshot[] = {
    {.id = 1, .caption = "Master\nSnapshot", .page = 0x63110000},
    {.id = 2, .caption = "Snapshot",         .page = 0x63210000},
    {.id = 3, .caption = "Wipe\nSnapshot",   .page = 0x63310000},
    {.id = 4, .caption = "DME Wipe\nSnapshot", .page = 0x63410000},
    {.id = 5, .caption = "Key\nSnapshot",    .page = 0x63510000},
    {.id = 7, .caption = "Status",           .page = 0x63000000},
    VF_END,
};

#define SS "LOCAL@Snapshot@"
REG_KEY_TABLES(SS, snapshot)
REG_PLAIN_KEY_TABLES(SS, snapshot_master)

inline constexpr BT_TBL bt_snapshot_copy_mp2[] = {
    REG_TWO_REGIONS(SS, "Copy"), Action({.id = 49, .caption = "Copy", .cmd = {SS "Copy@Copy"}}),
    REG_WO_NAME(SS, "Copy"), REG_CORRECT(SS, "Copy"), BT_END,
};

// --- The first pages ---

#define SS_ATTRIBUTE(word) {SS "Attribute@" word}
inline constexpr BT_TBL bt_snapshot_attribute[] = {
    Toggle(   {.id = BTN_SNAPSHOT_EFFDISS,   .caption = "Effect\nDissolve",    .cmd = SS_ATTRIBUTE("Effect Dissolve#*")}),
    Toggle(   {.id = BTN_SNAPSHOT_AUTOTRANS, .caption = "Auto\nTransition",    .cmd = SS_ATTRIBUTE("Auto Transition#*")}),
    Toggle(   {.id = BTN_SNAPSHOT_GPI,       .caption = "GPI\nOutput",         .cmd = SS_ATTRIBUTE("GPI Output#*")}),
    Action(   {.id = BTN_SNAPSHOT_DURATION,  .caption = "Set\nDuration",       .cmd = SS_ATTRIBUTE("Duration")}),
    Jump(     {.id = BTN_SNAPSHOT_XPTHOLD,   .caption = "Xpt Hold",            .cmd = SS_ATTRIBUTE("Xpt Hold")}),
    Jump(     {.id = BTN_SNAPSHOT_CLIP,      .caption = "Clip\nAuto Play",     .cmd = SS_ATTRIBUTE("Frame Memory")}),
    REG_REGION(SS, "Attribute"), REG_RECALL(SS, "Attribute"),
    Action(   {.id = 51, .caption = "Store", .cmd = SS_ATTRIBUTE("Store")}),
    BT_END,
};
inline constexpr BT_TBL bt_wipess_attribute[] = {
    REG_REGION(SS, "Attribute"), REG_RECALL(SS, "Attribute"),
    Action(   {.id = 51, .caption = "Store", .cmd = SS_ATTRIBUTE("Store")}),
    BT_END,
};
#define KEY_MODE(word) {"LOCAL@Key Snapshot@Attribute@Recall Mode@" word "#*"}
inline constexpr BT_TBL bt_keyss_attribute[] = {
    Toggle(   {.id = BTN_KEYSS_MODIFIER,     .caption = "Modifier",   .group = "Recall Mode", .cmd = KEY_MODE("Modifier")}),
    Toggle(   {.id = BTN_KEYSS_MODIFIER + 1, .caption = "Transition", .group = "Recall Mode", .cmd = KEY_MODE("Transition")}),
    Toggle(   {.id = BTN_KEYSS_MODIFIER + 2, .caption = "XPT",        .group = "Recall Mode", .cmd = KEY_MODE("XPT")}),
    REG_REGION(SS, "Attribute"), REG_RECALL(SS, "Attribute"),
    Action(   {.id = 51, .caption = "Store", .cmd = SS_ATTRIBUTE("Store")}),
    BT_END,
};
#define SS_MASTER(word) {SS "Master Snapshot@Store/Recall@" word}
inline constexpr BT_TBL bt_master_snapshot[] = {
    Action(   {.id = 49, .caption = "Recall", .cmd = SS_MASTER("Recall")}),
    Action(   {.id = 50, .caption = "Store", .cmd = SS_MASTER("Store")}),
    Jump(     {.id = 51, .caption = "Edit",  .cmd = {"#63110001"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_snapshot_copy_mp2) && ButtonsAreSound(bt_snapshot_attribute) &&
              ButtonsAreSound(bt_wipess_attribute) && ButtonsAreSound(bt_keyss_attribute) && ButtonsAreSound(bt_master_snapshot));
#undef KEY_MODE
#undef SS_MASTER
#undef SS_ATTRIBUTE

// --- Groups ---

inline constexpr HF_TBL hf_snapshot_master[] = REG_BOTTOM_TABS(0x63100000, "Store/\nRecall", "Copy");
inline constexpr HF_TBL hf_snapshot_snapshot[] = REG_BOTTOM_TABS(0x63200000, "Attribute", "Copy");
inline constexpr HF_TBL hf_snapshot_wipess[] = REG_BOTTOM_TABS(0x63300000, "Store/\nRecall", "Copy");
inline constexpr HF_TBL hf_snapshot_dmess[] = REG_BOTTOM_TABS(0x63400000, "Store/\nRecall", "Copy");
inline constexpr HF_TBL hf_snapshot_keyss[] = REG_BOTTOM_TABS(0x63500000, "Attribute", "Copy");

inline constexpr RegisterLists ls_master_ss = ListsOf(master_ss_columns, name_dual_columns);
inline constexpr RegisterLists ls_snapshot = ListsOf(snapshot_columns, snapshot_dual_columns);
inline constexpr RegisterLists ls_wipess = ListsOf(wipess_columns, wipess_dual_columns);
inline constexpr RegisterLists ls_keyss = ListsOf(keyss_columns, name_dual_columns);
static_assert(RegisterListsAreSound(ls_master_ss) && RegisterListsAreSound(ls_snapshot) &&
              RegisterListsAreSound(ls_wipess) && RegisterListsAreSound(ls_keyss));

constexpr RegisterKeys SnapshotKeys()
{
    RegisterKeys keys = REG_KEYS(bt_snapshot_attribute, snapshot);
    keys.shape[REGSHAPE_COPY] = bt_snapshot_copy_mp2;
    return keys;
}
inline constexpr RegisterGroup snapshot_groups_of_pages[] = {
    {0x63100000, REGKIND_MASTER_SS, "Snapshot", "Master Snapshot", "Store/Recall", vf_snapshot, 1, hf_snapshot_master,
     &ls_master_ss, REG_KEYS(bt_master_snapshot, snapshot_master)},
    {0x63200000, REGKIND_SNAPSHOT, "Snapshot", "Snapshot", "Attribute", vf_snapshot, 2, hf_snapshot_snapshot,
     &ls_snapshot, SnapshotKeys(), nb_register_duration},
    {0x63300000, REGKIND_WIPESS, "Snapshot", "Wipe Snapshot", "Store/Recall", vf_snapshot, 3, hf_snapshot_wipess,
     &ls_wipess, REG_KEYS(bt_wipess_attribute, snapshot)},
    {0x63400000, REGKIND_DMESS, "Snapshot", "DME Snapshot", "Store/Recall", vf_snapshot, 4, hf_snapshot_dmess,
     &ls_wipess, REG_KEYS(bt_wipess_attribute, snapshot)},
    {0x63500000, REGKIND_KEYSS, "Snapshot", "Key Snapshot", "Attribute", vf_snapshot, 5, hf_snapshot_keyss,
     &ls_keyss, REG_KEYS(bt_keyss_attribute, snapshot)},
};
inline constexpr auto snapshot_register_pages = RegisterRows(snapshot_groups_of_pages);

inline constexpr BT_TBL bt_snapshot_status[] = REG_STATUS_KEYS(SS);
static_assert(ButtonsAreSound(bt_snapshot_status));
inline constexpr BT_TBL bt_master_snapshot_edit[] = REG_EDIT_KEYS(SS "Master Snapshot@Store/Recall@Edit@");
static_assert(ButtonsAreSound(bt_master_snapshot_edit));

// --- The pages of a register ---

#define XPT_HOLD(word) {SS "Attribute@Xpt Hold@" word}
#define XPT_HOLD_KEYS                                                                                                  \
    Radio({.id = 49, .caption = "Hold", .group = "Xpt Hold", .cmd = XPT_HOLD("Xpt Hold#ON")}),                         \
    Radio({.id = 50, .caption = "Release", .group = "Xpt Hold", .cmd = XPT_HOLD("Xpt Hold#OFF")})
inline constexpr BT_TBL bt_snapshot_xpthold[] = {XPT_HOLD_KEYS, BT_END};
inline constexpr BT_TBL bt_snapshot_xpthold_rtr[] = {
    XPT_HOLD_KEYS,
    JumpPopUp({.id = 52, .caption = "Level", .cmd = XPT_HOLD("Level")}),
    BT_END,
};
#undef XPT_HOLD_KEYS
#undef XPT_HOLD
inline constexpr BT_TBL bt_snapshot_clip[] = {
    Toggle({.id = BTN_CLIP_AUTO_PLAY, .caption = "Auto Play", .group = "Clip", .cmd = {SS "Attribute@Frame Memory@Auto Play#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_snapshot_xpthold) && ButtonsAreSound(bt_snapshot_xpthold_rtr) && ButtonsAreSound(bt_snapshot_clip));

inline constexpr LS_TBL ls_snapshot_xpthold[] = {
    {.id = 1, .hn = 2, .vn = 12, .x = 100, .y = 78, .head = {"Bus", "Xpt Hold"}, .width = {352, 200}, .group = {1, 1},
     .sb_top = 78, .sb_bottom = 364},
    LS_END,
};
inline constexpr LS_TBL ls_snapshot_xpthold_rtr[] = {
    {.id = 1, .hn = 9, .vn = 12, .x = 100, .y = 78,
     .head = {"Destination", "Level 1", "2", "3", "4", "5", "6", "7", "8"},
     .width = {137, 58, 51, 51, 51, 51, 51, 51, 51}, .group = {1, 1, 1, 1, 1, 1, 1, 1, 1}, .sb_top = 78, .sb_bottom = 364},
    LS_END,
};
inline constexpr LS_TBL ls_snapshot_clip[] = {
    {.id = 1, .hn = 7, .vn = 12, .x = 100, .y = 78, .head = {"FM", "Auto Play", "Name", "Loop", "Start", "Stop", "Output"},
     .width = {45, 72, 151, 42, 84, 84, 74}, .group = {1, 1, 1, 1, 1, 1, 1}, .sb_top = 78, .sb_bottom = 364},
    LS_END,
};
static_assert(ListsAreSound(ls_snapshot_xpthold) && ListsAreSound(ls_snapshot_xpthold_rtr) && ListsAreSound(ls_snapshot_clip));

constexpr PAGE SnapshotSubPage(uint32_t id, const char* word, const BT_TBL* keys, const LS_TBL* list, _pageobject code)
{
    return {.id = id, .tree = {"Snapshot", "Snapshot", "Attribute", word},
            .obj = {Base(base_sub, PAGE_SNAPSHOT_ATTRIBUTE), LeftTabs(vf_snapshot, 2), BottomTabs(hf_snapshot_snapshot, 1),
                    Buttons(keys), Lists(list), code}};
}

inline constexpr PAGE snapshot_sub_pages[] = {
    SnapshotSubPage(PAGE_SNAPSHOT_XPTHOLD, "Xpt Hold", bt_snapshot_xpthold, ls_snapshot_xpthold, Code(pc_snapshot_xpthold, 0)),
    SnapshotSubPage(PAGE_SNAPSHOT_XPTHOLD_RTR, "Xpt Hold", bt_snapshot_xpthold_rtr, ls_snapshot_xpthold_rtr, Code(pc_snapshot_xpthold, 1)),
    SnapshotSubPage(PAGE_SNAPSHOT_CLIP, "Clip Auto Play", bt_snapshot_clip, ls_snapshot_clip, Code(pc_snapshot_clip)),
    RegisterEditPage(snapshot_groups_of_pages[0], bt_master_snapshot_edit),
    RegisterStatusPage(0x63000000, "Snapshot", REGKIND_SNAPSHOT, vf_snapshot, 7, bt_snapshot_status),
};
#undef SS
