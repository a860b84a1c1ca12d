// setup_panel_operation: the Panel group of engineering setup: how its keys, pads and dials work, and its maintenance. Most
// pages are sheets.
#pragma once
#include "setup_panel_assign.h"
#include "setup_panel_config.h"

#define OPERATION PNL "Operation@"
inline constexpr BT_TBL to_pnl_operation[] = {SetupBack("Operation", "#73260000")};

#define SETTING(word) {OPERATION word "#*"}
inline constexpr BT_TBL bt_engsetup_panel_operation[] = {
    Jump({.id = 1,  .caption = "Effect\nMode", .group = "Register", .cmd = {"#73260001"}}),
    Jump({.id = 2,  .caption = "Flexi Pad\nMode", .group = "Register", .cmd = {"#73260002"}}),
    Jump({.id = 3,  .caption = "Macro", .group = "Register", .cmd = {"#73260006"}}),
    Jump({.id = 5,  .caption = "Sensitivity", .group = "Dial", .cmd = {"#73260004"}}),
    Jump({.id = 6,  .caption = "Search\nDial", .group = "Dial", .cmd = {"#73260005"}}),
    Jump({.id = 17, .caption = "Custom\nButton", .group = "Button", .cmd = {"#73260003"}}),
    Jump({.id = 18, .caption = "Button\nTally", .group = "Button", .cmd = {"#73260010"}}),
    Jump({.id = 19, .caption = "Region\nPriority", .group = "Button", .cmd = {"#73260011"}}),
    Jump({.id = 20, .caption = "Key Row\nOperation", .group = "Button", .cmd = {"#73260012"}}),
    Jump({.id = 33, .caption = "Flexi Pad\nButton\nAssign", .group = "Xpt Module", .cmd = {"#73260014"}}),
    Jump({.id = 34, .caption = "Util Bus\nAssign", .group = "Xpt Module", .cmd = {"#73260015"}}),
    Jump({.id = 35, .caption = "Display\nMode", .group = "Xpt Module", .cmd = {"#73260016"}}),
    Toggle({.id = 49, .caption = "Menu\nFollow", .group = "Panel", .cmd = SETTING("Menu Follow")}),
    Toggle({.id = 50, .caption = "Xpt Hold\nFollow", .group = "Panel", .cmd = SETTING("Xpt Hold Follow")}),
    Toggle({.id = 51, .caption = "Next\nTrans\nReset", .group = "Panel", .cmd = SETTING("Next Trans Reset")}),
    Toggle({.id = 52, .caption = "Double\nPress", .group = "Panel", .cmd = SETTING("Double Press")}),
    BT_END,
};
#undef SETTING
static_assert(ButtonsAreSound(bt_engsetup_panel_operation));

// --- Registers ---

inline constexpr const char* pnl_regions[] = {"M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5", "P/P", "User1", "User2", "User3", "User4", "User5", "User6", "User7", "User8", "DME1", "DME2", "DME3", "DME4", "DME5", "DME6", "DME7", "DME8"};
inline constexpr SETUPWORD pnl_region_words[] = {SAME("M/E-1"), SAME("M/E-2"), SAME("M/E-3"), SAME("M/E-4"), SAME("M/E-5"), SAME("P/P"), SAME("User1"), SAME("User2"), SAME("User3"), SAME("User4"), SAME("User5"), SAME("User6"), SAME("User7"), SAME("User8"), SAME("DME1"), SAME("DME2"), SAME("DME3"), SAME("DME4"), SAME("DME5"), SAME("DME6"), SAME("DME7"), SAME("DME8"), {}};
inline constexpr SETUPWORD pnl_recall_modes[] = {SAME("Stop"), SAME("Auto Run"), {}};
inline constexpr SETUPWORD pnl_end_modes[] = {SAME("Stay"), SAME("Rewind"), {}};
inline constexpr SETUPCOLUMN pnl_effectmode_columns[] = {
    SheetWord("Recall", 150, "~@Recall@$", pnl_recall_modes), SheetWord("At End", 150, "~@At End@$", pnl_end_modes),
    SheetToggle("Loop", 140, "~@Loop@$", pnl_on_off),
};
inline constexpr SETUPSHEET pnl_effectmode =
    SheetOf(pnl_effectmode_columns, int(std::size(pnl_regions)), {.names = pnl_regions, .key_head = "Region", .key_width = 110, PNL_KEYS(to_pnl_operation)});

inline constexpr SETUPWORD pnl_pad_modes[] = {SAME("Standard"), SAME("Snapshot"), SAME("Effect"), SAME("Wipe"), SAME("Macro"), SAME("Shotbox"), {}};
inline constexpr SETUPWORD pnl_pad_recalls[] = {SAME("Direct"), SAME("2 Digits"), {}};
inline constexpr SETUPWORD pnl_pad_banks[] = {SAME("Common"), SAME("Each"), {}};
inline constexpr SETUPCOLUMN pnl_flexipadmode_columns[] = {
    SheetWord("Mode", 160, "~@Mode@$", pnl_pad_modes), SheetWord("Recall", 140, "~@Recall@$", pnl_pad_recalls), SheetWord("Bank", 140, "~@Bank@$", pnl_pad_banks),
};
inline constexpr SETUPSHEET pnl_flexipadmode = SheetOf(pnl_flexipadmode_columns, 8, {.names = pnl_rows, .key_head = "Row", .key_width = 110, PNL_KEYS(to_pnl_operation)});

inline constexpr const char* pnl_macro_settings[] = {"Auto Insert", "Event Merge", "Attach Enable", "Take by Pause", "Recall Confirm", "Menu Macro Link"};
inline constexpr SETUPCOLUMN pnl_macro_columns[] = {SheetWord("State", 370, "~@$", pnl_on_off)};
inline constexpr SETUPSHEET pnl_macro =
    SheetOf(pnl_macro_columns, 6, {.names = pnl_macro_settings, .key_head = "Setting", .key_width = 180, .is_direct = 1, PNL_KEYS(to_pnl_operation)});

// --- Dials: felt as they are turned, nothing waits for Execute ---

inline constexpr const char* pnl_dials[] = {"Joystick X", "Joystick Y", "Joystick Z", "Trackball X", "Trackball Y", "Z Ring", "Rotary Encoder", "Fader", "Search Dial"};
inline constexpr SETUPWORD pnl_directions[] = {SAME("Normal"), SAME("Reverse"), {}};
inline constexpr SETUPCOLUMN pnl_sensitivity_columns[] = {
    SheetNumber("Sensitivity", 190, "~@Sensitivity@$", 1, 100), SheetWord("Direction", 190, "~@Direction@$", pnl_directions),
};
inline constexpr BT_TBL pnl_sensitivity_more[] = {
    Jump({.id = 49, .caption = "Search\nDial", .cmd = {"#73260005"}}), SetupBack("Operation", "#73260000"),
};
inline constexpr SETUPSHEET pnl_sensitivity = SheetOf(
    pnl_sensitivity_columns, int(std::size(pnl_dials)), {.names = pnl_dials, .key_head = "Control", .key_width = 170, .is_direct = 1, PNL_KEYS(pnl_sensitivity_more)});
inline constexpr const char* pnl_search_modes[] = {"Jog", "Shuttle", "Variable"};
inline constexpr SETUPCOLUMN pnl_search_columns[] = {
    SheetNumber("Sensitivity", 190, "~@Sensitivity@$", 1, 100), SheetNumber("Max Speed", 190, "~@Max Speed@$", 1, 60),
};
inline constexpr BT_TBL pnl_search_more[] = {SetupBack("Sensitivity", "#73260004")};
inline constexpr SETUPSHEET pnl_search =
    SheetOf(pnl_search_columns, 3, {.names = pnl_search_modes, .key_head = "Mode", .key_width = 170, .is_direct = 1, .title = "Search Dial", PNL_KEYS(pnl_search_more)});

// --- Custom buttons: how many there are is the panel's model ---

inline constexpr SETUPWORD pnl_custom_words[] = {
    SAME("NO ASSIGN"), SAME("Next Trans All"), SAME("Bkgd Only"), SAME("Trans Preview"), SAME("Key Preview"), SAME("Split"), SAME("Xpt Hold"), SAME("Clip Trans"),
    SAME("Macro Take"), SAME("Undo"), SAME("Menu Page Jump"), SAME("Region Select"), SAME("Panel Lock"), {}};
inline constexpr SETUPWORD pnl_button_modes[] = {SAME("Hold"), SAME("Latch"), {}};
inline constexpr SETUPCOLUMN pnl_custom_columns[] = {
    SheetAsked("Function", 250, OPERATION "Custom Button@Function@$", pnl_custom_words), SheetWord("Mode", 200, OPERATION "Custom Button@Mode@$", pnl_button_modes),
};
inline constexpr BT_TBL to_pnl_custom[] = {SetupBack("Custom\nButton", "#73260003")};
inline constexpr SETUPSHEET pnl_custom_pcx40 = SheetOf(pnl_custom_columns, 8, {.key_head = "Button", .key_width = 100, .title = "Custom", PNL_KEYS(to_pnl_custom)});
inline constexpr SETUPSHEET pnl_custom_pcx50 = SheetOf(pnl_custom_columns, 16, {.key_head = "Button", .key_width = 100, .title = "Custom", PNL_KEYS(to_pnl_custom)});
inline constexpr BT_TBL bt_engsetup_panel_custombutton[] = {
    Jump({.id = 1, .caption = "8\nButtons", .group = "Custom Button", .cmd = {"#73260007"}}),
    Jump({.id = 2, .caption = "16\nButtons", .group = "Custom Button", .cmd = {"#73260008"}}),
    Jump({.id = 3, .caption = "Next\nTrans All", .group = "Custom Button", .cmd = {"#73260009"}}),
    SetupBack("Operation", "#73260000"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_panel_custombutton));

// What the key for all next transitions takes along.
#define NEXT(word) {.head = word, .width = 48, .path = "~@" word "@$", .words = pnl_on_off, .is_asked = 1}
inline constexpr SETUPCOLUMN pnl_nexttransall_columns[] = {NEXT("Bkgd"), NEXT("Key1"), NEXT("Key2"), NEXT("Key3"), NEXT("Key4"), NEXT("Key5"), NEXT("Key6"), NEXT("Key7"), NEXT("Key8")};
#undef NEXT
inline constexpr SETUPSHEET pnl_nexttransall = SheetOf(pnl_nexttransall_columns, 6, {.names = swr_banks, .key_head = "M/E", .key_width = 118, PNL_KEYS(to_pnl_custom)});

// --- Buttons ---

inline constexpr const char* pnl_tallies[] = {"Xpt On Air", "Xpt Preset", "Key On", "Next Trans", "Delegation", "Aux", "Register", "Macro", "Utility"};
inline constexpr SETUPWORD pnl_lamp_colors[] = {SAME("Red"), SAME("Amber"), SAME("Yellow"), SAME("Green"), SAME("Blue"), SAME("White"), {}};
inline constexpr SETUPCOLUMN pnl_buttontally_columns[] = {
    SheetWord("On", 140, "~@On@$", pnl_lamp_colors), SheetWord("Off", 140, "~@Off@$", pnl_lamp_colors), SheetNumber("Dim", 110, "~@Dim@$", 0, 100),
};
inline constexpr SETUPSHEET pnl_buttontally = SheetOf(
    pnl_buttontally_columns, int(std::size(pnl_tallies)), {.names = pnl_tallies, .key_head = "Button", .key_width = 160, PNL_KEYS(to_pnl_operation)});

// Which region a key is for where several are delegated to it: the first of them. Every region has one place.
inline constexpr SETUPCOLUMN pnl_regionpriority_columns[] = {{.head = "Region", .width = 440, .path = "~@$", .words = pnl_region_words, .is_swapped = 1}};
inline constexpr SETUPSHEET pnl_regionpriority =
    SheetOf(pnl_regionpriority_columns, int(std::size(pnl_regions)), {.key_head = "Priority", .key_width = 110, PNL_KEYS(to_pnl_operation)});

inline constexpr SETUPWORD pnl_key_row_words[] = {SAME("Key Bus"), SAME("Aux Bus"), SAME("Utility Bus"), SAME("Macro"), {}};
inline constexpr SETUPCOLUMN pnl_keyrow_columns[] = {
    SheetWord("Key Row", 220, "~@Key Row@$", pnl_key_row_words), SheetWord("Follow", 220, "~@Follow@$", pnl_on_off),
};
inline constexpr BT_TBL pnl_keyrow_more[] = {
    Jump({.id = 51, .caption = "Key Deleg\nAux\nAssign", .cmd = {"#73260013"}}), SetupBack("Operation", "#73260000"),
};
inline constexpr SETUPSHEET pnl_keyrow = SheetOf(pnl_keyrow_columns, 8, {.names = pnl_rows, .key_head = "Row", .key_width = 110, .title = "Key Row", PNL_KEYS(pnl_keyrow_more)});
inline constexpr const char* pnl_deleg_keys[] = {"Key1", "Key2", "Key3", "Key4", "Key5", "Key6", "Key7", "Key8"};
inline constexpr SETUPCOLUMN pnl_keydeleg_columns[] = {
    SheetWord("Aux Assign", 220, "~@Aux Assign@$", pnl_on_off), SheetNumber("Aux Bus", 220, "~@Aux Bus@$", 1, SWITCHER_OUTPUTS),
};
inline constexpr BT_TBL to_pnl_keyrow[] = {SetupBack("Key Row\nOperation", "#73260012")};
inline constexpr SETUPSHEET pnl_keydeleg = SheetOf(pnl_keydeleg_columns, 8, {.names = pnl_deleg_keys, .key_head = "Button", .key_width = 110, .title = "Key Deleg", PNL_KEYS(to_pnl_keyrow)});

// --- The crosspoint modules ---

// A bus has pages of a pad; a row is one of them.
#define PAD_PATH OPERATION "Xpt Module Operation@Flexi Pad Button@"
inline constexpr const char* pnl_pad_pages[] = {
    "P/P@1", "P/P@2", "P/P@3", "P/P@4",
    "M/E-1@1", "M/E-1@2", "M/E-1@3", "M/E-1@4",
    "M/E-2@1", "M/E-2@2", "M/E-2@3", "M/E-2@4",
    "M/E-3@1", "M/E-3@2", "M/E-3@3", "M/E-3@4",
    "M/E-4@1", "M/E-4@2", "M/E-4@3", "M/E-4@4",
    "M/E-5@1", "M/E-5@2", "M/E-5@3", "M/E-5@4",
    "P/P SUB@1", "P/P SUB@2", "P/P SUB@3", "P/P SUB@4",
    "M/E-1 SUB@1", "M/E-1 SUB@2", "M/E-1 SUB@3", "M/E-1 SUB@4",
    "M/E-2 SUB@1", "M/E-2 SUB@2", "M/E-2 SUB@3", "M/E-2 SUB@4",
    "M/E-3 SUB@1", "M/E-3 SUB@2", "M/E-3 SUB@3", "M/E-3 SUB@4",
    "M/E-4 SUB@1", "M/E-4 SUB@2", "M/E-4 SUB@3", "M/E-4 SUB@4",
    "M/E-5 SUB@1", "M/E-5 SUB@2", "M/E-5 SUB@3", "M/E-5 SUB@4",
    "1st AUX@1", "1st AUX@2", "1st AUX@3", "1st AUX@4",
    "2nd AUX@1", "2nd AUX@2", "2nd AUX@3", "2nd AUX@4",
};
// As on the pads; what is longer than a button is shortened.
inline constexpr SETUPWORD pnl_pad_words[] = {
    {"NO ASSIGN", "---"}, {"Key", "Key"}, {"Wipe", "Wipe"}, {"DME Wipe", "DME Wp"}, {"Snapshot", "Snap"}, {"Master Effect", "M Effect"},
    {"Shotbox", "Shotbox"}, {"Macro", "Macro"}, {"Transition Rate", "T Rate"}, {"Undo", "Undo"}, {"Delete", "Delete"}, {"Bank0", "Bank0"},
    {"Bank1", "Bank1"}, {"Bank2", "Bank2"}, {"Bank3", "Bank3"}, {"Bank4", "Bank4"}, {"Bank5", "Bank5"}, {"Bank6", "Bank6"},
    {"Bank7", "Bank7"}, {"Bank8", "Bank8"}, {"Bank9", "Bank9"}, {"Bank10", "Bank10"}, {"Bank11", "Bank11"}, {"Bank12", "Bank12"},
    {"Bank13", "Bank13"}, {"Bank14", "Bank14"}, {"Recall", "Recall"}, {"Store", "Store"}, {"Edit", "Edit"}, {"Copy", "Copy"},
    {"Swap", "Swap"}, {"Lock", "Lock"}, {"Name", "Name"}, {"All Regions", "All Rgn"}, {"Recall Hold", "R Hold"}, {"Auto Store", "A Store"},
    {"Home", "Home"}, {"Menu", "Menu"}, {"Enter", "Enter"},
    {},
};
static_assert(std::size(pnl_pad_words) == std::size(words_FlexiPadmod) + 1);
#define PAD_BUTTON(n) {.head = "Btn" #n, .width = 57, .path = PAD_PATH "Assign@$@" #n, .words = pnl_pad_words}
inline constexpr SETUPCOLUMN pnl_padassign_columns[] = {PAD_BUTTON(1), PAD_BUTTON(2), PAD_BUTTON(3), PAD_BUTTON(4), PAD_BUTTON(5), PAD_BUTTON(6), PAD_BUTTON(7), PAD_BUTTON(8)};
#undef PAD_BUTTON
inline constexpr BT_TBL pnl_padassign_more[] = {
    Action({.id = 51, .caption = "Default\nAll Pages", .cmd = {PAD_DEFAULT}}), Jump({.id = 52, .caption = "Page Name/\nJump", .cmd = {"#73260017"}}),
};
inline constexpr SETUPSHEET pnl_padassign = SheetOf(
    pnl_padassign_columns, int(std::size(pnl_pad_pages)), {.names = pnl_pad_pages, .key_head = "Bus@Page", .key_width = 94, .title = "Flexi Pad", PNL_KEYS(pnl_padassign_more)});
inline constexpr SETUPWORD pnl_page_jumps[] = {SAME("None"), SAME("Page 1"), SAME("Page 2"), SAME("Page 3"), SAME("Page 4"), {}};
inline constexpr SETUPCOLUMN pnl_padpage_columns[] = {
    SheetName("Page Name", 220, PAD_PATH "Page Name@$", 8, "Page\nName"), SheetAsked("Page Jump", 220, PAD_PATH "Page Jump@$", pnl_page_jumps, "Page\nJump"),
};
inline constexpr BT_TBL to_pnl_padassign[] = {SetupBack("Flexi Pad\nButton\nAssign", "#73260014")};
inline constexpr SETUPSHEET pnl_padpage =
    SheetOf(pnl_padpage_columns, int(std::size(pnl_pad_pages)), {.names = pnl_pad_pages, .key_head = "Bus@Page", .key_width = 110, PNL_KEYS(to_pnl_padassign)});
#undef PAD_PATH

inline constexpr SETUPWORD pnl_util_buses[] = {SAME("None"), SAME("Key1"), SAME("Key2"), SAME("Key3"), SAME("Key4"), SAME("Utility 1"), SAME("Utility 2"), SAME("DME Video"), SAME("DME Ext"), {}};
inline constexpr SETUPCOLUMN pnl_utilbus_columns[] = {
    SheetWord("Util 1", 220, "~@Util 1@$", pnl_util_buses), SheetWord("Util 2", 220, "~@Util 2@$", pnl_util_buses),
};
inline constexpr SETUPSHEET pnl_utilbus = SheetOf(pnl_utilbus_columns, 8, {.names = pnl_bus_rows, .key_head = "Row", .key_width = 110, .title = "Util Bus", PNL_KEYS(to_pnl_operation)});
inline constexpr SETUPWORD pnl_display_modes[] = {SAME("Source Name"), SAME("Button No"), SAME("Name/No"), SAME("Off"), {}};
inline constexpr SETUPCOLUMN pnl_display_columns[] = {
    SheetWord("Display", 170, "~@Display@$", pnl_display_modes), SheetWord("Color", 130, "~@Color@$", pnl_on_off), SheetNumber("Bright", 140, "~@Bright@$", 0, 100),
};
inline constexpr SETUPSHEET pnl_display = SheetOf(pnl_display_columns, 8, {.names = pnl_bus_rows, .key_head = "Row", .key_width = 110, PNL_KEYS(to_pnl_operation)});

// --- Maintenance ---

inline constexpr const char* pnl_lights[] = {"Xpt Buttons", "Other Buttons", "Source Names", "Indicators", "Goose Light"};
inline constexpr SETUPCOLUMN pnl_maintenance_columns[] = {SheetNumber("Brightness", 370, "~@Brightness@$", 0, 100)};
inline constexpr BT_TBL pnl_maintenance_more[] = {
    Toggle({.id = 33, .caption = "Lamp\nTest", .group = "Panel", .cmd = {PNL "Maintenance@Lamp Test#*"}}),
    Jump({.id = 54, .caption = "Calibrate\nTouch\nPanel", .cmd = {"#73270001"}}),
};
inline constexpr SETUPSHEET pnl_maintenance = SheetOf(
    pnl_maintenance_columns, int(std::size(pnl_lights)), {.names = pnl_lights, .key_head = "Light", .key_width = 180, .is_direct = 1, PNL_KEYS(pnl_maintenance_more)});

inline constexpr BT_TBL bt_engsetup_panel_maintenance_calibration[] = {
    Action({.id = BTN_CALIBRATION_OK, .caption = "OK", .cmd = {"LOCAL@Calibration@OK"}}),
    Jump({.id = BTN_CALIBRATION_CANCEL, .caption = "Cancel", .cmd = {"#73270000"}}), // also where the page is locked
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_panel_maintenance_calibration));

// --- The pages ---

#define TABS(n) Base(base_main), LeftTabs(vf_setup, 2), BottomTabs(hf_setup_panel, n)
#define TREE(...) {"Engineering Setup", "Panel", __VA_ARGS__}
#define SHEET(n, name) {TABS(n), SHEET_OBJECTS(pnl_##name), Code(SetupSheet_Code<pnl_##name>)}
inline constexpr PAGE setup_panel_operation_pages[] = {
    {.id = 0x73260000, .tree = TREE("Operation"), .obj = {TABS(6), Buttons(bt_engsetup_panel_operation), Code(pc_engsetup_panel_jumps)}},
    {.id = 0x73260001, .tree = TREE("Operation", "Effect Mode"), .obj = SHEET(6, effectmode)},
    {.id = 0x73260002, .tree = TREE("Operation", "Flexi Pad Mode"), .obj = SHEET(6, flexipadmode)},
    {.id = 0x73260003, .tree = TREE("Operation", "Custom Button"), .obj = {TABS(6), Buttons(bt_engsetup_panel_custombutton), Code(pc_engsetup_panel_jumps)}},
    {.id = 0x73260004, .tree = TREE("Operation", "Sensitivity"), .obj = SHEET(6, sensitivity)},
    {.id = 0x73260005, .tree = TREE("Operation", "Sensitivity", "Search Dial"), .obj = SHEET(6, search)},
    {.id = 0x73260006, .tree = TREE("Operation", "Macro"), .obj = SHEET(6, macro)},
    {.id = 0x73260007, .tree = TREE("Operation", "Custom Button", "Function"), .obj = SHEET(6, custom_pcx40)},
    {.id = 0x73260008, .tree = TREE("Operation", "Custom Button", "Function"), .obj = SHEET(6, custom_pcx50)},
    {.id = 0x73260009, .tree = TREE("Operation", "Custom Button", "Next Trans All"), .obj = SHEET(6, nexttransall)},
    {.id = 0x73260010, .tree = TREE("Operation", "Button Tally"), .obj = SHEET(6, buttontally)},
    {.id = 0x73260011, .tree = TREE("Operation", "Region Priority"), .obj = SHEET(6, regionpriority)},
    {.id = 0x73260012, .tree = TREE("Operation", "Key Row Operation"), .obj = SHEET(6, keyrow)},
    {.id = 0x73260013, .tree = TREE("Operation", "Key Row Operation", "Key Deleg Aux Assign"), .obj = SHEET(6, keydeleg)},
    {.id = 0x73260014, .tree = TREE("Operation", "Xpt Module Operation", "Flexi Pad Button"),
     .obj = {TABS(6), SHEET_OBJECTS(pnl_padassign), Code(SetupPanelPad_Code<pnl_padassign>)}},
    {.id = 0x73260015, .tree = TREE("Operation", "Xpt Module Operation", "Util Button Bus Assign"), .obj = SHEET(6, utilbus)},
    {.id = 0x73260016, .tree = TREE("Operation", "Display Mode"), .obj = SHEET(6, display)},
    {.id = 0x73260017, .tree = TREE("Operation", "Xpt Module Operation", "Flexi Pad Button", "Page Name"), .obj = SHEET(6, padpage)},
    {.id = 0x73270000, .tree = TREE("Maintenance"), .obj = SHEET(7, maintenance)},
    // The whole screen is the touch panel's.
    {.id = 0x73270001, .tree = TREE("Maintenance", "Touch Panel Calibration"),
     .obj = {Buttons(bt_engsetup_panel_maintenance_calibration), Code(pc_engsetup_panel_maintenance_calibration)}},
};
#undef TABS
#undef TREE
#undef SHEET
#undef OPERATION
#undef PNL
#undef SAME
#undef PNL_KEYS
