// setup_unit: Unit Config: what boards and options a unit is fitted with, as its installer tells the system. Which of the
// three pages opens goes by the unit that was touched last in the list of New Install.
#pragma once
#include "rows.h"
#include "setup_sheet.h"
#include "setup_system.h"
#include "setup_tabs.h"

#define UNIT_CONFIG "Engineering Setup@System@Install@Unit Config@"
inline constexpr SETUPWORD words_fitted[] = {{"true", "Fitted"}, {"false", "None"}, {}};
#define TO_INSTALL SetupBack("Install", "#73160000")
inline constexpr BT_TBL to_install[] = {TO_INSTALL};
inline constexpr BT_TBL to_install_and_split[] = {TO_INSTALL, Jump({.id = 49, .caption = "M/E Split", .cmd = {"#73160011"}})};
#undef TO_INSTALL
#define UNIT_QUESTION .question = setup_reboot_question

// --- Switchers: their option boards ---

// The value is a set of bits: ancillary data in the frame memory, the second kind of effects interface.
inline constexpr SETUPWORD words_options[] = {
    {"0", "None"}, {"4", "Ancillary"}, {"8", "DME I/F 2"}, {"12", "Anc, DME I/F 2"}, {}};
inline constexpr const char* switcher_options[] = {"CCR Config"};
inline constexpr SETUPCOLUMN switcher_option_columns[] = {
    {.head = "SWR1", .width = 185, .path = "16@" UNIT_CONFIG "$", .words = words_options, .ask = SETUP_READ, .is_asked = 1, .group = "Options", .is_reread = 1},
    {.head = "SWR2", .width = 185, .path = "32@" UNIT_CONFIG "$", .words = words_options, .ask = SETUP_READ, .is_asked = 1, .group = "Options", .is_reread = 1},
};
inline constexpr SETUPSHEET unitconfig_switcher = SheetMore(
    SheetOf(switcher_option_columns, 1, {.names = switcher_options, .key_head = "Option", .key_width = 180, UNIT_QUESTION}), to_install_and_split);

// Only the largest switcher has boards that can be split.
inline int unitconfig_switcher_create(int on, uint32_t var)
{
    const int result = SetupSheet_CreateOf<unitconfig_switcher>(on, var);
    if (on) BT_SetDisable(49, !Page_Exists(0x73160011));
    return result;
}
inline constexpr PC_TBL pc_unitconfig_switcher = {.proc_func = SetupSheet_ProcOf<unitconfig_switcher>, .create_func = unitconfig_switcher_create};

// A board is one bank, or is split into up to four of four keys.
inline constexpr SETUPWORD words_me_split[] = {{"1", "Full"}, {"2", "2 Banks"}, {"4", "4 Banks"}, {}};
inline constexpr const char* me_boards[] = {"M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5"};
inline constexpr SETUPCOLUMN me_split_columns[] = {
    {.head = "M/E Split", .width = 400, .path = UNIT_CONFIG "M/E Split", .part = SETUP_EACH_ROW, .words = words_me_split, .ask = SETUP_READ, .is_reread = 1},
};
inline constexpr SETUPSHEET unitconfig_me_split = SheetMore(
    SheetOf(me_split_columns, 5, {.names = me_boards, .key_head = "Board", .key_width = 150, UNIT_QUESTION}), to_install);

// --- The menu of an older switcher: the controller itself ---

inline constexpr const char* menu_parts[] = {"Touch Panel", "Hard Drive", "USB Port", "Network Drive"};
inline constexpr SETUPCOLUMN menu_columns[] = {
    {.head = "Part", .width = 370, .path = UNIT_CONFIG "Menu@$", .words = words_fitted},
};
inline constexpr SETUPSHEET unitconfig_menu = SheetMore(
    SheetOf(menu_columns, 4, {.names = menu_parts, .key_head = "Menu", .key_width = 180, UNIT_QUESTION}), to_install);

// --- All other units ---

inline constexpr SETUPWORD words_power[] = {{"Single", "Single"}, {"Redundant", "Redundant"}, {}};
inline constexpr const char* other_units[] = {
    "PNL1", "PNL2", "PNL3", "PNL4", "DME1", "DME2", "DME3", "DME4", "DCU1", "DCU2", "DCU3", "DCU4", "MPE1", "MPE2", "MPE3", "MPE4"};
inline constexpr SETUPCOLUMN other_columns[] = {
    {.head = "Power", .width = 200, .path = UNIT_CONFIG "Power@$", .words = words_power},
    {.head = "Option", .width = 200, .path = UNIT_CONFIG "Option@$", .words = words_fitted, .caption = "Option\nBoard"},
};
inline constexpr SETUPSHEET unitconfig_other = SheetMore(
    SheetOf(other_columns, 16, {.names = other_units, .key_head = "Unit", .key_width = 150, UNIT_QUESTION}), to_install);
#undef UNIT_QUESTION
#undef UNIT_CONFIG

#define UNIT_PAGE(number, last, sheet, code) \
    {.id = number, .tree = {"Engineering Setup", "System", "Unit Config", last}, \
     .obj = {Base(base_main), LeftTabs(vf_setup, 1), BottomTabs(hf_setup_system, 6), SHEET_OBJECTS(sheet), Code(code)}}
inline constexpr PAGE setup_unit_pages[] = {
    UNIT_PAGE(0x73160308, nullptr, unitconfig_switcher, pc_unitconfig_switcher),
    UNIT_PAGE(0x73160208, nullptr, unitconfig_menu, SetupSheet_Code<unitconfig_menu>),
    UNIT_PAGE(0x73160908, nullptr, unitconfig_other, SetupSheet_Code<unitconfig_other>),
    UNIT_PAGE(0x73160011, "M/E Split", unitconfig_me_split, SetupSheet_Code<unitconfig_me_split>),
};
#undef UNIT_PAGE
