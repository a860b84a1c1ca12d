// effect_pages: the pages of the Effect menu.
#pragma once
#include "pc_effect.h"
#include "register_pages.h"

inline constexpr VF_TBL vf_effect[] = {
    {.id = 1, .caption = "Master\nTimeline",               .page = 0x62110000},
    {.id = 2, .caption = "Effect\n1-99",                   .page = 0x62210000},
    {.id = 3, .caption = "User DME\nWipe Effect\n101-199", .page = 0x62310000},
    {.id = 4, .caption = "User DME\nWipe Effect\n201-299", .page = 0x62410000},
    {.id = 5, .caption = "User DME\nWipe Effect\n301-399", .page = 0x62510000},
    {.id = 6, .caption = "DEV/PBUS\nEffect 1-250",         .page = 0x62610000},
    {.id = 7, .caption = "Status",                         .page = 0x62000000},
    VF_END,
};

#define EF "LOCAL@Effect@"
REG_KEY_TABLES(EF, effect)
REG_PLAIN_KEY_TABLES(EF, effect_master)

inline constexpr BT_TBL bt_effect_copy_merge[] = {
    REG_TWO_REGIONS(EF, "Copy"), Action({.id = 49, .caption = "Copy", .cmd = {EF "Copy@Copy"}}),
    REG_WO_NAME(EF, "Copy"), REG_CORRECT(EF, "Copy"),
    Action({.id = 52, .caption = "Merge", .cmd = {EF "Copy@Merge"}}), BT_END,
};
inline constexpr BT_TBL bt_effect_move_mp2[] = {
    REG_TWO_REGIONS(EF, "Move"), Action({.id = 49, .caption = "Move", .cmd = {EF "Move@Move"}}),
    REG_WO_NAME(EF, "Move"), REG_CORRECT(EF, "Move"), BT_END,
};
inline constexpr BT_TBL bt_effect_swap_mp2[] = {
    REG_TWO_REGIONS(EF, "Swap"), Action({.id = 49, .caption = "Swap", .cmd = {EF "Swap@Swap"}}),
    REG_WO_NAME(EF, "Swap"), REG_CORRECT(EF, "Swap"), BT_END,
};

// --- The first pages ---

inline constexpr BT_TBL bt_effect_attribute[] = {
    Toggle(   {.id = BTN_EFFECT_DISSOLVE, .caption = "Effect\nDissolve", .cmd = {EF "Attribute@Effect Dissolve#*"}}),
    REG_REGION(EF, "Attribute"), REG_RECALL(EF, "Attribute"),
    BT_END,
};
#define EF_MASTER(word) {EF "Master Timeline@Store@" word}
inline constexpr BT_TBL bt_master_timeline[] = {
    Action(   {.id = 49, .caption = "Recall", .cmd = EF_MASTER("Recall")}),
    Action(   {.id = 50, .caption = "Store", .cmd = EF_MASTER("Store")}),
    Jump(     {.id = 51, .caption = "Edit",  .cmd = {"#62110001"}}),
    BT_END,
};
#undef EF_MASTER
static_assert(ButtonsAreSound(bt_effect_copy_merge) && ButtonsAreSound(bt_effect_move_mp2) && ButtonsAreSound(bt_effect_swap_mp2) &&
              ButtonsAreSound(bt_effect_attribute) && ButtonsAreSound(bt_master_timeline));

// --- Groups ---

inline constexpr HF_TBL hf_effect_master[] = REG_BOTTOM_TABS(0x62100000, "Store/\nRecall", "Copy");
inline constexpr HF_TBL hf_effect_effect[] = REG_BOTTOM_TABS(0x62200000, "Attribute", "Copy/\nMerge");
inline constexpr HF_TBL hf_effect_eff100[] = REG_BOTTOM_TABS(0x62300000, "Attribute", "Copy/\nMerge");
inline constexpr HF_TBL hf_effect_eff200[] = REG_BOTTOM_TABS(0x62400000, "Attribute", "Copy/\nMerge");
inline constexpr HF_TBL hf_effect_eff300[] = REG_BOTTOM_TABS(0x62500000, "Attribute", "Copy/\nMerge");
inline constexpr HF_TBL hf_effect_ex[] = REG_BOTTOM_TABS(0x62600000, "Attribute", "Copy/\nMerge");

inline constexpr RegisterLists ls_master_tl = ListsOf(master_tl_columns, name_dual_columns);
inline constexpr RegisterLists ls_effect = ListsOf(effect_columns, effect_dual_columns);
inline constexpr RegisterLists ls_effect_dme = ListsOf(effect_dme_columns, effect_dual_columns);
inline constexpr RegisterLists ls_effect_ex = ListsOf(effect_ex_columns, effect_dual_columns);
static_assert(RegisterListsAreSound(ls_master_tl) && RegisterListsAreSound(ls_effect) && RegisterListsAreSound(ls_effect_dme) &&
              RegisterListsAreSound(ls_effect_ex));

constexpr RegisterKeys EffectKeys()
{
    RegisterKeys keys = REG_KEYS(bt_effect_attribute, effect);
    keys.shape[REGSHAPE_COPY] = bt_effect_copy_merge;
    keys.shape[REGSHAPE_MOVE] = bt_effect_move_mp2;
    keys.shape[REGSHAPE_SWAP] = bt_effect_swap_mp2;
    return keys;
}
inline constexpr RegisterGroup effect_groups_of_pages[] = {
    {0x62100000, REGKIND_MASTER_TL, "Effect", "Master Timeline", "Store/Recall", vf_effect, 1, hf_effect_master,
     &ls_master_tl, REG_KEYS(bt_master_timeline, effect_master)},
    {0x62200000, REGKIND_EFFECT, "Effect", "Effect 1-99", "Attribute", vf_effect, 2, hf_effect_effect, &ls_effect, EffectKeys(), nb_register_duration},
    {0x62300000, REGKIND_EFF100, "Effect", "User DME Wipe 101-199", "Attribute", vf_effect, 3, hf_effect_eff100, &ls_effect_dme, EffectKeys(), nb_register_duration},
    {0x62400000, REGKIND_EFF200, "Effect", "User DME Wipe 201-299", "Attribute", vf_effect, 4, hf_effect_eff200, &ls_effect_dme, EffectKeys(), nb_register_duration},
    {0x62500000, REGKIND_EFF300, "Effect", "User DME Wipe 301-399", "Attribute", vf_effect, 5, hf_effect_eff300, &ls_effect_dme, EffectKeys(), nb_register_duration},
    {0x62600000, REGKIND_EFFECT_EX, "Effect", "DEV/PBUS 1-250", "Attribute", vf_effect, 6, hf_effect_ex, &ls_effect_ex, EffectKeys(), nb_register_duration},
};
inline constexpr auto effect_register_pages = RegisterRows(effect_groups_of_pages);

inline constexpr BT_TBL bt_effect_status[] = REG_STATUS_KEYS(EF);
inline constexpr BT_TBL bt_master_timeline_edit[] = REG_EDIT_KEYS(EF "Master Timeline@Store/Recall@Edit@");
static_assert(ButtonsAreSound(bt_effect_status) && ButtonsAreSound(bt_master_timeline_edit));
inline constexpr PAGE effect_sub_pages[] = {
    RegisterEditPage(effect_groups_of_pages[0], bt_master_timeline_edit, nb_register_edit_effect),
    RegisterStatusPage(0x62000000, "Effect", REGKIND_EFFECT, vf_effect, 7, bt_effect_status),
};
#undef EF
