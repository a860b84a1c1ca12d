// setup_panel: the Panel group of engineering setup: the modules of buttons, ten keys, crosspoints, aux buses, utilities.
#pragma once
#include "pc_engsetup_pnl.h"
#include "pc_engsetup_sys.h"
#include "rows.h"
#include "setup_system.h"
#include "setup_tabs.h"

#define PANEL(word) {"LOCAL@Engineering Setup@Panel@" word}

// --- What the buttons of a module do ---

inline constexpr LS_TBL ls_engsetup_panel_button[] = {
    {.id = 1, .hn = 2, .vn = 15, .x = 446, .y = 76, .head = {"Function", "Button"}, .width = {134, 70}, .group = {1, 999},
     .sb_top = 76, .sb_bottom = 428, .block = 1},
    LS_END,
};
inline constexpr LS_TBL ls_engsetup_panel_action[] = {
    {.id = 1, .hn = 2, .vn = 10, .x = 446, .y = 76, .head = {"Action", "Button"}, .width = {134, 70}, .group = {1, 999},
     .sb_top = 76, .sb_bottom = 318, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_panel_button) && ListsAreSound(ls_engsetup_panel_action));

constexpr BT_TBL AssignSet(const char* cmd)     { return Action({.id = BTN_ASSIGN_SET, .caption = "Set", .group = "Assign", .cmd = {cmd}}); }
constexpr BT_TBL AssignClear(const char* cmd)   { return Action({.id = BTN_ASSIGN_CLEAR, .caption = "Clear", .group = "Assign", .cmd = {cmd}}); }
constexpr BT_TBL AssignDefault(const char* cmd) { return Action({.id = BTN_ASSIGN_DEFAULT, .caption = "Default", .group = "Assign", .cmd = {cmd}}); }

#define LOCAL_PANEL(word) "LOCAL@Engineering Setup@Panel@" word
#define SET_CLEAR_DEFAULT(words) AssignSet(LOCAL_PANEL(words "@Set")), AssignClear(LOCAL_PANEL(words "@Clear")), AssignDefault(LOCAL_PANEL(words "@Default"))
#define TO_PROGRAM_BUTTON Jump({.id = BTN_ASSIGN_BACK, .caption = "Program\nButton", .cmd = {"#73210002"}})
#define MODULE_KEYS(name, words) inline constexpr BT_TBL bt_engsetup_panel_##name[] = {TO_PROGRAM_BUTTON, SET_CLEAR_DEFAULT(words), BT_END}; \
    static_assert(ButtonsAreSound(bt_engsetup_panel_##name))
#define BANK_MODULE_KEYS(name, words) inline constexpr BT_TBL bt_engsetup_panel_##name[] = { \
        Radio({.id = BTN_ASSIGN_MAIN, .caption = "Main", .group = "Side", .cmd = PANEL(words "@Main/Sub#Main")}), \
        Radio({.id = BTN_ASSIGN_SUB,  .caption = "Sub",  .group = "Side", .cmd = PANEL(words "@Main/Sub#Sub")}), \
        TO_PROGRAM_BUTTON, SET_CLEAR_DEFAULT(words), BT_END}; \
    static_assert(ButtonsAreSound(bt_engsetup_panel_##name))
#define PROGRAM_BUTTON "Config@Program Button@"
MODULE_KEYS(transitionmodule,  PROGRAM_BUTTON "Transition Module");
MODULE_KEYS(transitionmodule2, PROGRAM_BUTTON "Simple Transition Module");
MODULE_KEYS(keytransmodule,    PROGRAM_BUTTON "Key Transition Module");
BANK_MODULE_KEYS(flexipadmodule, PROGRAM_BUTTON "Flexi Pad Module");
MODULE_KEYS(xptmodule,         PROGRAM_BUTTON "Xpt Module");
MODULE_KEYS(menupanel,         PROGRAM_BUTTON "Menu Panel");
MODULE_KEYS(devicecontrol,     PROGRAM_BUTTON "Device Control Module");
MODULE_KEYS(joytrack,          PROGRAM_BUTTON "Joystick/Trackball");
MODULE_KEYS(shotboxmodule,     PROGRAM_BUTTON "Shotbox Module");
MODULE_KEYS(dskftbmodule,      PROGRAM_BUTTON "DSK/FTB Module");
MODULE_KEYS(ftbmodule,         PROGRAM_BUTTON "FTB Module");
BANK_MODULE_KEYS(compactkeytrans, PROGRAM_BUTTON "Compact Key Trans Module");
MODULE_KEYS(pcx50keydeleg,     PROGRAM_BUTTON "Key Delegation Module");
MODULE_KEYS(extensionpanel,    PROGRAM_BUTTON "Extension Panel");
MODULE_KEYS(multimodule_macroeditassign, PROGRAM_BUTTON "Multi Module@Macro Edit Assign");
MODULE_KEYS(multimodule_effeditassign,   PROGRAM_BUTTON "Multi Module@Effect Edit Assign");
MODULE_KEYS(multimodule_modeselassign,   PROGRAM_BUTTON "Multi Module@Mode Select Assign");
#undef MODULE_KEYS
#undef BANK_MODULE_KEYS

inline constexpr BT_TBL bt_engsetup_panel_keycontrolmodule[] = {
    Jump({.id = 49, .caption = "Key\nControl\nButton", .cmd = {"#73210036"}}),
    TO_PROGRAM_BUTTON, SET_CLEAR_DEFAULT(PROGRAM_BUTTON "Key Control Module"),
    BT_END,
};
inline constexpr BT_TBL bt_engsetup_panel_keycontrolmodule_buttonassign[] = {
    Jump({.id = BTN_ASSIGN_BACK, .caption = "Key\nControl", .cmd = {"#73210035"}}),
    SET_CLEAR_DEFAULT(PROGRAM_BUTTON "Key Control Module@Key Control Button Assign"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_panel_keycontrolmodule) && ButtonsAreSound(bt_engsetup_panel_keycontrolmodule_buttonassign));
#undef TO_PROGRAM_BUTTON

inline constexpr BT_TBL bt_engsetup_panel_config_programbutton[] = {
    Jump({.id = 1,  .caption = "Transition", .group = "Transition", .cmd = {"#73210031"}}),
    Jump({.id = 2,  .caption = "Simple\nTransition", .group = "Transition", .cmd = {"#73210032"}}),
    Jump({.id = 3,  .caption = "DSK/FTB", .group = "Transition", .cmd = {"#73210042"}}),
    Jump({.id = 4,  .caption = "FTB", .group = "Transition", .cmd = {"#73210043"}}),
    Jump({.id = 17, .caption = "Key\nTransition", .group = "Key", .cmd = {"#73210033"}}),
    Jump({.id = 18, .caption = "Compact\nKey Trans", .group = "Key", .cmd = {"#73210044"}}),
    Jump({.id = 19, .caption = "Key\nControl", .group = "Key", .cmd = {"#73210035"}}),
    Jump({.id = BTN_MODULE_PCX50, .caption = "Key\nDelegation", .group = "Module", .cmd = {"#73210045"}}),
    Jump({.id = 33, .caption = "Flexi Pad", .group = "Module", .cmd = {"#73210034"}}),
    Jump({.id = 34, .caption = "Xpt", .group = "Module", .cmd = {"#73210037"}}),
    Jump({.id = BTN_MODULE_EXTENSION, .caption = "Extension\nPanel", .group = "Module", .cmd = {"#73210012"}}),
    Jump({.id = 37, .caption = "Shotbox", .group = "Module", .cmd = {"#73210041"}}),
    Jump({.id = 38, .caption = "Menu Panel", .group = "Module", .cmd = {"#73210038"}}),
    Jump({.id = 5,  .caption = "Device\nControl", .group = "Control", .cmd = {"#73210039"}}),
    Jump({.id = 6,  .caption = "Joystick/\nTrackball", .group = "Control", .cmd = {"#73210040"}}),
    Jump({.id = 49, .caption = "Macro\nEdit", .group = "Multi Module", .cmd = {"#73210046"}}),
    Jump({.id = 50, .caption = "Effect\nEdit", .group = "Multi Module", .cmd = {"#73210047"}}),
    Jump({.id = 51, .caption = "Mode\nSelect", .group = "Multi Module", .cmd = {"#73210048"}}),
    SetupBack("Config", "#73210000"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_panel_config_programbutton));

inline constexpr BT_TBL bt_engsetup_panel_config[] = {
    Jump({.id = 1, .caption = "Program\nButton", .group = "Button", .cmd = {"#73210002"}}),
    Jump({.id = 2, .caption = "10 Key\nRegion\nAssign", .group = "Button", .cmd = {"#73210001"}}),
    Jump({.id = 3, .caption = "Compact\nKey\nModule", .group = "Module", .cmd = {"#73210011"}}),
    Jump({.id = 4, .caption = "Extension\nPort", .group = "Module", .cmd = {"#73210013"}}),
    Jump({.id = 5, .caption = "Reference\nModule", .group = "Module", .cmd = {"#73210014"}}),
    Jump({.id = 17, .caption = "Main/Sub\nAssign", .group = "Row/Fader", .cmd = {"#73210008"}}),
    Jump({.id = 18, .caption = "DSK Fader\nAssign", .group = "Row/Fader", .cmd = {"#73210009"}}),
    Jump({.id = 19, .caption = "Fader\nAssign", .group = "Row/Fader", .cmd = {"#73210010"}}),
    Jump({.id = 21, .caption = "Key Trans\nLink", .group = "Link", .cmd = {"#73210003"}}),
    Jump({.id = 22, .caption = "External\nBus Link", .group = "Link", .cmd = {"#73210004"}}),
    Jump({.id = 33, .caption = "M/E\nOperation", .group = "Operation Inhibit", .cmd = {"#73210015"}}),
    Jump({.id = 34, .caption = "Joystick/\nTrackball", .group = "Operation Inhibit", .cmd = {"#73210016"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_panel_config));

// --- The regions on the ten keys ---

#define TENKEY(word) {"LOCAL@10 Key Region Assign@" word}
inline constexpr BT_TBL bt_engsetup_panel_config_10keybutton[] = {
    Toggle({.id = BTN_TENKEY_ALL,     .caption = "All\nSelect", .group = "Button", .cmd = {"LOCAL@All Select#false"}}),
    Action({.id = BTN_TENKEY_RECALL,  .caption = "Default\nRecall", .group = "All Buttons", .cmd = TENKEY("Default Recall")}),
    Action({.id = BTN_ASSIGN_SET,     .caption = "Set", .group = "Assign", .cmd = TENKEY("Set")}),
    Action({.id = BTN_ASSIGN_CLEAR,   .caption = "Clear", .group = "Assign", .cmd = TENKEY("Clear")}),
    Action({.id = BTN_ASSIGN_DEFAULT, .caption = "Default", .group = "Assign", .cmd = TENKEY("Default")}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_panel_config_10keybutton));
#undef TENKEY

inline constexpr LS_TBL ls_engsetup_panel_config_10keybutton[] = {
    {.id = 1, .hn = 1, .vn = 11, .x = 456, .y = 154, .head = {"Region"}, .width = {194}, .sb_top = 154, .sb_bottom = 418, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_panel_config_10keybutton));

// --- Tables of what lies on a button ---

inline constexpr LS_TBL ls_engsetup_panel_xpt[] = {
    {.id = 1, .hn = 5, .vn = 10, .x = 100, .y = 76, .head = {"Btn", "Video", "Key", "Inh", "SF"}, .width = {36, 78, 78, 34, 30},
     .group = {1, 2, 999}, .sb_top = 76, .sb_bottom = 318, .block = 1},
    {.id = 2, .hn = 2, .vn = 10, .x = 450, .y = 76, .head = {"No", "Source"}, .width = {46, 154}, .group = {1, 999},
     .sb_top = 76, .sb_bottom = 318, .block = 1},
    LS_END,
};
inline constexpr LS_TBL ls_engsetup_panel_table[] = {
    {.id = 1, .hn = 2, .vn = 10, .x = 100, .y = 76, .head = {"Button", "Assign"}, .width = {60, 196}, .group = {1, 999},
     .sb_top = 76, .sb_bottom = 318, .block = 1},
    {.id = 2, .hn = 2, .vn = 10, .x = 450, .y = 76, .head = {"No", "Name"}, .width = {46, 154}, .group = {1, 999},
     .sb_top = 76, .sb_bottom = 318, .block = 1},
    LS_END,
};
inline constexpr LS_TBL ls_engsetup_panel_xptassign_copy[] = {
    {.id = 1, .hn = 5, .vn = 12, .x = 100, .y = 76, .head = {"Button", "Main Video", "Main Key", "Sub Video", "Sub Key"},
     .width = {70, 120, 120, 120, 120}, .group = {1, 2, 2, 999}, .sb_top = 76, .sb_bottom = 362, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_panel_xpt) && ListsAreSound(ls_engsetup_panel_table));
static_assert(ListsAreSound(ls_engsetup_panel_xptassign_copy));

#define EDITING(word, title) \
    Action({.id = BTN_XPT_INSERT,    .caption = "Insert", .group = title, .cmd = {"LOCAL@" word "@Editing Xpt Assign@Insert"}}), \
    Action({.id = BTN_XPT_OVERWRITE, .caption = "Over-\nwrite", .group = title, .cmd = {"LOCAL@" word "@Editing Xpt Assign@Overwrite"}}), \
    Action({.id = BTN_XPT_DELETE,    .caption = "Delete", .group = title, .cmd = {"LOCAL@" word "@Editing Xpt Assign@Delete"}}), \
    Action({.id = BTN_XPT_DEFAULT,   .caption = "Default", .group = title, .cmd = {"LOCAL@" word "@Editing Xpt Assign@Default"}})
#define SIDE_KEYS(name, word) inline constexpr BT_TBL bt_engsetup_panel_xptassign_##name[] = { \
        Toggle({.id = BTN_XPT_VIDEO,   .caption = "Video", .group = "Assign", .cmd = {"LOCAL@" word "@Assign@Video"}}), \
        Toggle({.id = BTN_XPT_KEY,     .caption = "Key", .group = "Assign", .cmd = {"LOCAL@" word "@Assign@Key"}}), \
        Action({.id = BTN_XPT_INHIBIT, .caption = "Inhibit", .group = "Button", .cmd = {"LOCAL@" word "@Inhibit"}}), \
        Toggle({.id = BTN_XPT_PAIR,    .caption = "V/K Pair\nAssign", .group = "Assign", .cmd = {"LOCAL@" word "@V/K Pair Assign"}}), \
        Jump(  {.id = BTN_XPT_SHIFT,   .caption = "Shift\nMode\nSetting", .group = "Button", .cmd = {"LOCAL@" word "@Shift Mode Setting"}}), \
        EDITING(word, "Editing Xpt Assign"), BT_END}; \
    static_assert(ButtonsAreSound(bt_engsetup_panel_xptassign_##name))
SIDE_KEYS(main, "Main");
SIDE_KEYS(sub, "Sub");
#undef SIDE_KEYS

inline constexpr BT_TBL bt_engsetup_panel_xptassign_mixerxptassign[] = {EDITING("Mixer", "Editing Xpt Assign"), BT_END};
inline constexpr BT_TBL bt_engsetup_panel_auxassign[] = {
    Jump({.id = 33, .caption = "RTR Mode\nSet", .group = "Router", .cmd = {"#73230001"}}),
    EDITING("Aux", "Editing Table"),
    BT_END,
};
inline constexpr BT_TBL bt_engsetup_panel_auxassign_lvlbtnassign[] = {EDITING("Level", "Editing Table"), BT_END};
#define TABLE(n) {"LOCAL@Router@Table#" n}
inline constexpr BT_TBL bt_engsetup_panel_auxassign_tableassign[] = {
    Radio({.id = 33, .caption = "Table 1", .group = "Source Table", .cmd = TABLE("1")}),
    Radio({.id = 34, .caption = "Table 2", .group = "Source Table", .cmd = TABLE("2")}),
    Radio({.id = 49, .caption = "Table 3", .group = "Source Table", .cmd = TABLE("3")}),
    Radio({.id = 50, .caption = "Table 4", .group = "Source Table", .cmd = TABLE("4")}),
    EDITING("Router", "Editing Table"),
    BT_END,
};
#undef TABLE
#undef EDITING
static_assert(ButtonsAreSound(bt_engsetup_panel_xptassign_mixerxptassign) && ButtonsAreSound(bt_engsetup_panel_auxassign));
static_assert(ButtonsAreSound(bt_engsetup_panel_auxassign_lvlbtnassign) && ButtonsAreSound(bt_engsetup_panel_auxassign_tableassign));

inline constexpr BT_TBL bt_engsetup_panel_xptassign_copy[] = {
    Action({.id = 49, .caption = "Main\nto Sub", .group = "Copy", .cmd = {"LOCAL@Xpt Assign@Copy#Main to Sub"}}),
    Action({.id = 50, .caption = "Sub\nto Main", .group = "Copy", .cmd = {"LOCAL@Xpt Assign@Copy#Sub to Main"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_panel_xptassign_copy));

inline constexpr BT_TBL bt_engsetup_panel_xptassign[] = {
    Jump({.id = 1,  .caption = "Main", .group = "Button Table", .cmd = {"#73220001"}}),
    Jump({.id = 2,  .caption = "Sub", .group = "Button Table", .cmd = {"#73220002"}}),
    Jump({.id = 3,  .caption = "Copy", .group = "Button Table", .cmd = {"#73220003"}}),
    Jump({.id = 4,  .caption = "Shift\nMode", .group = "Button Table", .cmd = {"#73220008"}}),
    Jump({.id = 5,  .caption = "Side Flags\nAssign", .group = "Button Table", .cmd = {"#73220007"}}),
    Jump({.id = 17, .caption = "Source\nName/\nColor", .group = "Source", .cmd = {"#73220004"}}),
    Jump({.id = 18, .caption = "User\nColor\nSelect", .group = "Source", .cmd = {"#73220005"}}),
    Jump({.id = 19, .caption = "Name\nExport", .group = "Source", .cmd = {"#73220006"}}),
    Jump({.id = 21, .caption = "Mixer Xpt\nAssign", .group = "Audio", .cmd = {"#73220010"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_panel_xptassign));

// --- Configurations that are prepared and executed ---

#define SETUP(word) {"LOCAL@Panel Setup@" word}
#define CLEAR_EXECUTE SetupClear("LOCAL@Panel Setup@Clear"), SetupExecute("LOCAL@Panel Setup@Execute")
inline constexpr BT_TBL bt_engsetup_panel_xptassign_namecolor[] = {
    Typed(    {.id = 33, .caption = "Name", .group = "Source", .cmd = SETUP("Name")}, BT_JUMP_KEYBOARD),
    JumpPopUp({.id = 34, .caption = "Color", .group = "Source", .cmd = SETUP("Select Color")}),
    Action(   {.id = 35, .caption = "No Color", .group = "Source", .cmd = SETUP("Color#None")}),
    Jump(     {.id = 49, .caption = "User\nColor\nSelect", .cmd = {"#73220005"}}),
    Jump(     {.id = 50, .caption = "Name\nExport", .cmd = {"#73220006"}}),
    CLEAR_EXECUTE,
    BT_END,
};
inline constexpr BT_TBL bt_engsetup_panel_xptassign_usercolorselect[] = {
    JumpPopUp({.id = 33, .caption = "Color", .group = "User Color", .cmd = SETUP("Select Color")}),
    Radio(    {.id = 35, .caption = "High", .group = "Brightness", .cmd = SETUP("Brightness#High")}),
    Radio(    {.id = 36, .caption = "Middle", .group = "Brightness", .cmd = SETUP("Brightness#Middle")}),
    Radio(    {.id = 37, .caption = "Low", .group = "Brightness", .cmd = SETUP("Brightness#Low")}),
    CLEAR_EXECUTE,
    BT_END,
};
inline constexpr BT_TBL bt_engsetup_panel_xptassign_nameexport[] = {
    Radio( {.id = 33, .caption = "On", .group = "Export to", .cmd = SETUP("Export#On")}),
    Radio( {.id = 34, .caption = "Off", .group = "Export to", .cmd = SETUP("Export#Off")}),
    Action({.id = 49, .caption = "Name\nExport", .group = "All Names", .cmd = SETUP("Name Export")}),
    CLEAR_EXECUTE,
    BT_END,
};
inline constexpr BT_TBL bt_engsetup_panel_xptassign_sideflagsassign[] = {
    Radio({.id = 33, .caption = "On", .group = "Side Flags", .cmd = SETUP("Side Flags#On")}),
    Radio({.id = 34, .caption = "Off", .group = "Side Flags", .cmd = SETUP("Side Flags#Off")}),
    CLEAR_EXECUTE,
    BT_END,
};
inline constexpr BT_TBL bt_engsetup_panel_xptassign_shiftmode[] = {
    Radio({.id = 33, .caption = "Hold", .group = "Shift Mode", .cmd = SETUP("Shift Mode#Hold")}),
    Radio({.id = 34, .caption = "Lock", .group = "Shift Mode", .cmd = SETUP("Shift Mode#Lock")}),
    Radio({.id = 35, .caption = "All Rows", .group = "Shift Mode", .cmd = SETUP("Shift Mode#All Rows")}),
    Radio({.id = 36, .caption = "Off", .group = "Shift Mode", .cmd = SETUP("Shift Mode#Off")}),
    CLEAR_EXECUTE,
    BT_END,
};
inline constexpr BT_TBL bt_engsetup_panel_auxassign_rtrmodeset[] = {
    Radio({.id = 33, .caption = "Aux", .group = "Mode", .cmd = SETUP("Mode#Aux")}),
    Radio({.id = 34, .caption = "Router", .group = "Mode", .cmd = SETUP("Mode#Router")}),
    Radio({.id = 35, .caption = "Aux/\nRouter", .group = "Mode", .cmd = SETUP("Mode#Aux/Router")}),
    Radio({.id = 36, .caption = "All", .group = "Level", .cmd = SETUP("Level#All")}),
    Radio({.id = 37, .caption = "Each", .group = "Level", .cmd = SETUP("Level#Each")}),
    Jump( {.id = 49, .caption = "Source\nTable\nAssign", .cmd = {"#73230002"}}),
    Jump( {.id = 50, .caption = "Table\nAssign", .cmd = {"#73230003"}}),
    Jump( {.id = 51, .caption = "Level\nButton\nAssign", .cmd = {"#73230004"}}),
    CLEAR_EXECUTE,
    BT_END,
};
inline constexpr BT_TBL bt_engsetup_panel_auxassign_sourcetableassign[] = {
    Radio({.id = 33, .caption = "Table 1", .group = "Source Table", .cmd = SETUP("Source Table#Table 1")}),
    Radio({.id = 34, .caption = "Table 2", .group = "Source Table", .cmd = SETUP("Source Table#Table 2")}),
    Radio({.id = 35, .caption = "Table 3", .group = "Source Table", .cmd = SETUP("Source Table#Table 3")}),
    Radio({.id = 36, .caption = "Table 4", .group = "Source Table", .cmd = SETUP("Source Table#Table 4")}),
    Jump( {.id = 49, .caption = "Table\nAssign", .cmd = {"#73230003"}}),
    CLEAR_EXECUTE,
    BT_END,
};
#undef CLEAR_EXECUTE
#undef SETUP
static_assert(ButtonsAreSound(bt_engsetup_panel_xptassign_namecolor) && ButtonsAreSound(bt_engsetup_panel_xptassign_usercolorselect));
static_assert(ButtonsAreSound(bt_engsetup_panel_xptassign_nameexport) && ButtonsAreSound(bt_engsetup_panel_xptassign_sideflagsassign));
static_assert(ButtonsAreSound(bt_engsetup_panel_xptassign_shiftmode) && ButtonsAreSound(bt_engsetup_panel_auxassign_rtrmodeset));
static_assert(ButtonsAreSound(bt_engsetup_panel_auxassign_sourcetableassign));

#define PANEL_LIST(name, ...) inline constexpr LS_TBL ls_engsetup_panel_##name[] = {SetupList({__VA_ARGS__}), LS_END}; \
    static_assert(ListsAreSound(ls_engsetup_panel_##name))
PANEL_LIST(xptassign_namecolor,       .hn = 3, .head = {"Source", "Name", "Color"}, .width = {100, 260, 190}, .group = {1, 999});
PANEL_LIST(xptassign_usercolorselect, .hn = 3, .head = {"User Color", "Color", "Brightness"}, .width = {150, 200, 200}, .group = {1, 999});
PANEL_LIST(xptassign_nameexport,      .hn = 2, .head = {"Unit", "Export"}, .width = {350, 200}, .group = {1, 999});
PANEL_LIST(xptassign_sideflagsassign, .hn = 2, .head = {"Xpt Button", "Side Flags"}, .width = {250, 300}, .group = {1, 999});
PANEL_LIST(xptassign_shiftmode,       .hn = 2, .head = {"Row", "Shift Mode"}, .width = {250, 300}, .group = {1, 999});
PANEL_LIST(auxassign_rtrmodeset,      .hn = 3, .head = {"Row", "Mode", "Level"}, .width = {150, 200, 200}, .group = {1, 999});
PANEL_LIST(auxassign_sourcetable,     .hn = 2, .head = {"Destination", "Source Table"}, .width = {250, 300}, .group = {1, 999});
#undef PANEL_LIST

// --- Actions ---

#define ACTIONS(words) \
    Radio({.id = BTN_ACTION_FUNCTION, .caption = "Function", .group = "Action", .cmd = PANEL(words "@Kind#Function")}), \
    Radio({.id = BTN_ACTION_MACRO,    .caption = "Macro", .group = "Action", .cmd = PANEL(words "@Kind#Macro")}), \
    Radio({.id = BTN_ACTION_SHOTBOX,  .caption = "Shotbox", .group = "Action", .cmd = PANEL(words "@Kind#Shotbox")}), \
    Toggle({.id = 49, .caption = "Reg Name\nDisplay", .group = "Name", .cmd = {"Engineering Setup@Panel@" words "@Reg Name Display#*"}}), \
    Typed({.id = BTN_ACTION_NAME, .caption = "Name", .group = "Name", .cmd = PANEL(words "@Name")}, BT_JUMP_KEYBOARD), \
    SET_CLEAR_DEFAULT(words)
inline constexpr BT_TBL bt_engsetup_panel_prefsutility[] = {
    Jump({.id = 33, .caption = "Utility\nModule\nAssign", .cmd = {"#73240001"}}),
    Jump({.id = 34, .caption = "Key2 Bus\nButton\nAssign", .cmd = {"#73240002"}}),
    Jump({.id = 35, .caption = "Trans\nRate Mode\nAssign", .cmd = {"#73240003"}}),
    ACTIONS("Prefs/Utility"),
    BT_END,
};
inline constexpr BT_TBL bt_engsetup_panel_utilitymoduleassign[] = {ACTIONS("Prefs/Utility@Utility Module Assign"), BT_END};
inline constexpr BT_TBL bt_engsetup_panel_key2busbuttonassign[] = {
    ACTIONS("Prefs/Utility@Key2 Bus Button Assign"),
    Action({.id = BTN_ACTION_RANGE, .caption = "Button", .cmd = PANEL("Prefs/Utility@Key2 Bus Button Assign@Range")}),
    BT_END,
};
inline constexpr BT_TBL bt_engsetup_panel_transratemodeassign[] = {ACTIONS("Prefs/Utility@Trans Rate Mode Assign"), BT_END};
static_assert(ButtonsAreSound(bt_engsetup_panel_prefsutility) && ButtonsAreSound(bt_engsetup_panel_utilitymoduleassign));
static_assert(ButtonsAreSound(bt_engsetup_panel_key2busbuttonassign) && ButtonsAreSound(bt_engsetup_panel_transratemodeassign));
#undef ACTIONS
#undef SET_CLEAR_DEFAULT
#undef LOCAL_PANEL
#undef PANEL

// --- The pages ---

#define TABS(n) Base(base_main), LeftTabs(vf_setup, 2), BottomTabs(hf_setup_panel, n)
#define TREE(...) {"Engineering Setup", "Panel", __VA_ARGS__}
#define MODULE(page, module, buttons, ...) {.id = page, .tree = TREE("Config", "Program Button", __VA_ARGS__), \
    .obj = {TABS(1), Buttons(bt_engsetup_panel_##buttons), Lists(ls_engsetup_panel_button), Code(pc_engsetup_panel_button, module)}}
#define ACTION(page, module, buttons, ...) {.id = page, .tree = TREE(__VA_ARGS__), \
    .obj = {TABS(4), Buttons(bt_engsetup_panel_##buttons), Lists(ls_engsetup_panel_action), Code(pc_engsetup_panel_button, module)}}
#define ON_BUTTONS(page, tab, table, list, buttons, ...) {.id = page, .tree = TREE(__VA_ARGS__), \
    .obj = {TABS(tab), Buttons(bt_engsetup_panel_##buttons), Lists(ls_engsetup_panel_##list), Code(pc_engsetup_panel_xpttable, table)}}
#define PREPARED(page, tab, list, name, ...) {.id = page, .tree = TREE(__VA_ARGS__), \
    .obj = {TABS(tab), Buttons(bt_engsetup_panel_##name), Lists(ls_engsetup_panel_##list), Code(pc_engsetup_panel_##name)}}
inline constexpr PAGE setup_panel_pages[] = {
    {.id = 0x73210000, .tree = TREE("Config"), .obj = {TABS(1), Buttons(bt_engsetup_panel_config), Code(pc_engsetup_panel_jumps)}},
    PREPARED(0x73210001, 1, config_10keybutton, config_10keybutton, "Config", "10 Key Region Assign"),
    {.id = 0x73210002, .tree = TREE("Config", "Program Button"), .obj = {TABS(1), Buttons(bt_engsetup_panel_config_programbutton), Code(pc_engsetup_panel_config_programbutton)}},
    MODULE(0x73210012, MODULE_EXTENSION,          extensionpanel, "Extension Panel"),
    MODULE(0x73210031, MODULE_TRANSITION,         transitionmodule, "Transition Module"),
    MODULE(0x73210032, MODULE_TRANSITION2,        transitionmodule2, "Simple Transition Module"),
    MODULE(0x73210033, MODULE_KEY_TRANS,          keytransmodule, "Key Transition Module"),
    MODULE(0x73210034, MODULE_FLEXI_PAD,          flexipadmodule, "Flexi Pad Module"),
    MODULE(0x73210035, MODULE_KEY_CONTROL,        keycontrolmodule, "Key Control Module"),
    MODULE(0x73210036, MODULE_KEY_CONTROL_ASSIGN, keycontrolmodule_buttonassign, "Key Control Module", "Key Control Button Assign"),
    MODULE(0x73210037, MODULE_XPT,                xptmodule, "Xpt Module"),
    MODULE(0x73210038, MODULE_MENU_PANEL,         menupanel, "Menu Panel"),
    MODULE(0x73210039, MODULE_DEVICE_CONTROL,     devicecontrol, "Device Control Module"),
    MODULE(0x73210040, MODULE_JOY_TRACK,          joytrack, "Joystick/Trackball"),
    MODULE(0x73210041, MODULE_SHOTBOX,            shotboxmodule, "Shotbox Module"),
    MODULE(0x73210042, MODULE_DSK_FTB,            dskftbmodule, "DSK/FTB Module"),
    MODULE(0x73210043, MODULE_FTB,                ftbmodule, "FTB Module"),
    MODULE(0x73210044, MODULE_COMPACT_KEY_TRANS,  compactkeytrans, "Compact Key Trans Module"),
    MODULE(0x73210045, MODULE_PCX50_KEY_DELEG,    pcx50keydeleg, "Key Delegation Module"),
    MODULE(0x73210046, MODULE_MACRO_EDIT,         multimodule_macroeditassign, "Multi Module", "Macro Edit Assign"),
    MODULE(0x73210047, MODULE_EFFECT_EDIT,        multimodule_effeditassign, "Multi Module", "Effect Edit Assign"),
    MODULE(0x73210048, MODULE_MODE_SELECT,        multimodule_modeselassign, "Multi Module", "Mode Select Assign"),
    {.id = 0x73220000, .tree = TREE("Xpt Assign"), .obj = {TABS(2), Buttons(bt_engsetup_panel_xptassign), Code(pc_engsetup_panel_jumps)}},
    ON_BUTTONS(0x73220001, 2, XPTTABLE_MAIN, xpt, xptassign_main, "Xpt Assign", "Main"),
    ON_BUTTONS(0x73220002, 2, XPTTABLE_SUB, xpt, xptassign_sub, "Xpt Assign", "Sub"),
    PREPARED(0x73220003, 2, xptassign_copy, xptassign_copy, "Xpt Assign", "Copy"),
    PREPARED(0x73220004, 2, xptassign_namecolor, xptassign_namecolor, "Xpt Assign", "Source Name/Color"),
    PREPARED(0x73220005, 2, xptassign_usercolorselect, xptassign_usercolorselect, "Xpt Assign", "User Color Select"),
    PREPARED(0x73220006, 2, xptassign_nameexport, xptassign_nameexport, "Xpt Assign", "Name Export"),
    PREPARED(0x73220007, 2, xptassign_sideflagsassign, xptassign_sideflagsassign, "Xpt Assign", "Side Flags Assign"),
    PREPARED(0x73220008, 2, xptassign_shiftmode, xptassign_shiftmode, "Xpt Assign", "Shift Mode"),
    ON_BUTTONS(0x73220010, 2, XPTTABLE_MIXER, table, xptassign_mixerxptassign, "Xpt Assign", "Mixer Xpt Assign"),
    ON_BUTTONS(0x73230000, 3, XPTTABLE_AUX, table, auxassign, "Aux Assign"),
    PREPARED(0x73230001, 3, auxassign_rtrmodeset, auxassign_rtrmodeset, "Aux Assign", "RTR Mode Set"),
    PREPARED(0x73230002, 3, auxassign_sourcetable, auxassign_sourcetableassign, "Aux Assign", "RTR Mode Set", "Source Table Assign"),
    ON_BUTTONS(0x73230003, 3, XPTTABLE_ROUTER, table, auxassign_tableassign, "Aux Assign", "RTR Mode Set", "Source Table"),
    ON_BUTTONS(0x73230004, 3, XPTTABLE_LEVEL, table, auxassign_lvlbtnassign, "Aux Assign", "RTR Mode Set", "Level Button Assign"),
    ACTION(0x73240000, MODULE_SHORTCUT,   prefsutility, "Prefs/Utility"),
    ACTION(0x73240001, MODULE_UTILITY,    utilitymoduleassign, "Prefs/Utility", "Utility Module Assign"),
    ACTION(0x73240002, MODULE_KEY2_BUS,   key2busbuttonassign, "Prefs/Utility", "Key2 Bus Button Assign"),
    ACTION(0x73240003, MODULE_TRANS_RATE, transratemodeassign, "Prefs/Utility", "Trans Rate Mode Assign"),
};
#undef TABS
#undef TREE
#undef MODULE
#undef ACTION
#undef ON_BUTTONS
#undef PREPARED
