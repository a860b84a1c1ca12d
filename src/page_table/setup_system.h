// setup_system: the System group of engineering setup.
#pragma once
#include "pc_engsetup_sys.h"
#include "rows.h"
#include "setup_tabs.h"

// Above two rows of keys; the keys of a list in which several rows are chosen need two lines.
constexpr LS_TBL SetupList(LS_TBL row)
{
    row.id = 1;
    row.x = 100;
    row.y = 76;
    row.vn = row.block ? 11 : 9;
    row.sb_top = row.y;
    row.sb_bottom = row.y + LS_ROW_PX * (row.vn + 1);
    return row;
}

constexpr BT_TBL SetupClear(const char* cmd)   { return Action({.id = BTN_SETUP_CLEAR, .caption = "Clear", .cmd = {cmd}}); }
constexpr BT_TBL SetupExecute(const char* cmd) { return Action({.id = BTN_SETUP_EXECUTE, .caption = "Execute", .cmd = {cmd}}); }

// --- Network Config ---

#define NETWORK(word) {"LOCAL@Engineering Setup@System@Network Config@" word}
inline constexpr BT_TBL bt_engsetup_system_networkconfig[] = {
    JumpTenKey({.id = 33, .caption = "Group ID", .group = "Address", .cmd = NETWORK("Group ID")}),
    JumpTenKey({.id = 34, .caption = "Unit ID",  .group = "Address", .cmd = NETWORK("Unit ID")}),
    Typed(     {.id = 36, .caption = "NFS\nServer", .group = "Network Drive", .cmd = NETWORK("NFS Server")}, BT_JUMP_KEYBOARD),
    Jump(      {.id = 37, .caption = "NFS\nConfig", .group = "Network Drive", .cmd = {"#73110098"}}),
    Action(    {.id = 49, .caption = "Auto\nConfig", .group = "Network", .cmd = NETWORK("Auto Config")}),
    Action(    {.id = 50, .caption = "Define", .group = "Network", .cmd = NETWORK("Define")}),
    Jump(      {.id = 52, .caption = "NMI\nConfig", .cmd = {"#73110097"}}),
    SetupClear("LOCAL@Engineering Setup@System@Network Config@Clear"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_system_networkconfig));

inline constexpr LS_TBL ls_engsetup_system_networkconfig[] = {
    SetupList({.hn = 5, .head = {"Device ID", "Name", "Control LAN", "Data LAN", "Peripheral LAN"}, .width = {110, 65, 125, 125, 125},
               .group = {2, 999}, .block = 1}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_system_networkconfig));

inline constexpr BT_TBL bt_engsetup_system_nfsconfig[] = {
    Typed( {.id = 33, .caption = "NFS\nServer", .group = "Network Drive", .cmd = NETWORK("NFS Server")}, BT_JUMP_KEYBOARD),
    Typed( {.id = 34, .caption = "Mount\nPoint", .group = "Network Drive", .cmd = NETWORK("NFS Config@Mount Point")}, BT_JUMP_KEYBOARD),
    Typed( {.id = 35, .caption = "Mount\nOption", .group = "Network Drive", .cmd = NETWORK("NFS Config@Mount Option")}, BT_JUMP_KEYBOARD),
    Toggle({.id = 37, .caption = "Mount", .cmd = NETWORK("NFS Mount#true")}),
    SetupBack("Network\nConfig", "#73110000"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_system_nfsconfig));

inline constexpr LS_TBL ls_engsetup_system_nfsconfig[] = {
    SetupList({.hn = 2, .head = {"Item", "Value"}, .width = {200, 350}, .group = {1, 999}, .view = 1, .block = 1}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_system_nfsconfig));

inline constexpr BT_TBL bt_engsetup_system_nmiconfig[] = {
    Radio({.id = 33, .caption = "Enable", .group = "Reset", .cmd = NETWORK("NMI Config@Reset#Enable")}),
    Radio({.id = 34, .caption = "Disable", .group = "Reset", .cmd = NETWORK("NMI Config@Reset#Disable")}),
    SetupBack("Network\nConfig", "#73110000"),
    SetupClear("LOCAL@Engineering Setup@System@Network Config@NMI Config@Clear"),
    SetupExecute("LOCAL@Engineering Setup@System@Network Config@NMI Config@Execute"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_system_nmiconfig));
#undef NETWORK

inline constexpr LS_TBL ls_engsetup_system_nmiconfig[] = {
    SetupList({.hn = 2, .head = {"Slot", "Reset by NMI"}, .width = {200, 350}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_system_nmiconfig));

// --- System Config ---

#define CONFIG(word) {"LOCAL@Engineering Setup@System@System Config@" word}
inline constexpr BT_TBL bt_engsetup_system_systemconfig[] = {
    Radio(    {.id = 33, .caption = "Single\nProc", .group = "Operation Mode", .cmd = CONFIG("System Operation Mode#" SYSCONF_OPEMODE_SINGLE)}),
    Radio(    {.id = 34, .caption = "Dual\nSimul", .group = "Operation Mode", .cmd = CONFIG("System Operation Mode#" SYSCONF_OPEMODE_DUALSIMUL)}),
    JumpPopUp({.id = 35, .caption = "1st\nSwitcher", .group = "Panel Assign", .cmd = CONFIG("Panel Assign@SWR1")}),
    JumpPopUp({.id = 36, .caption = "2nd\nSwitcher", .group = "Panel Assign", .cmd = CONFIG("Panel Assign@SWR2")}),
    Action(   {.id = BTN_SYSCONF_SYSTEM1, .caption = "System1", .group = "Setup Target", .cmd = CONFIG("Setup Target@System1")}),
    Action(   {.id = BTN_SYSCONF_SYSTEM2, .caption = "System2", .group = "Setup Target", .cmd = CONFIG("Setup Target@System2")}),
    Action(   {.id = 49, .caption = "Tally\nMaster", .cmd = CONFIG("Tally Master")}),
    Jump(     {.id = 51, .caption = "Switcher\nAssign", .cmd = {"#73120001"}}),
    SetupClear("LOCAL@Engineering Setup@System@System Config@Clear"),
    SetupExecute("LOCAL@Engineering Setup@System@System Config@Execute"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_system_systemconfig));

inline constexpr LS_TBL ls_engsetup_system_systemconfig[] = {
    SetupList({.hn = 5, .head = {"Panel", "Operation Mode", "1st SWR", "2nd SWR", "Tally"}, .width = {100, 170, 95, 95, 90},
               .group = {1, 1, 2, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_system_systemconfig));

inline constexpr BT_TBL bt_engsetup_system_switcherassign[] = {
    JumpPopUp({.id = 33, .caption = "1st DME", .group = "Switcher Assign", .cmd = CONFIG("Switcher Assign@DME1")}),
    JumpPopUp({.id = 34, .caption = "2nd DME", .group = "Switcher Assign", .cmd = CONFIG("Switcher Assign@DME2")}),
    JumpPopUp({.id = 35, .caption = "3rd DME", .group = "Switcher Assign", .cmd = CONFIG("Switcher Assign@DME3")}),
    JumpPopUp({.id = 36, .caption = "4th DME", .group = "Switcher Assign", .cmd = CONFIG("Switcher Assign@DME4")}),
    SetupBack("System\nConfig", "#73120000"),
    SetupClear("LOCAL@Engineering Setup@System@System Config@Switcher Assign@Clear"),
    SetupExecute("LOCAL@Engineering Setup@System@System Config@Switcher Assign@Execute"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_system_switcherassign));
#undef CONFIG

inline constexpr LS_TBL ls_engsetup_system_switcherassign[] = {
    SetupList({.hn = 5, .head = {"Switcher", "1st DME", "2nd DME", "3rd DME", "4th DME"}, .width = {150, 100, 100, 100, 100},
               .group = {1, 999}, .block = 1}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_system_switcherassign));

// --- Start Up, Initialize ---

#define START_UP(word) {"LOCAL@Engineering Setup@System@Start Up@" word}
inline constexpr BT_TBL bt_engsetup_system_startup[] = {
    Radio({.id = 33, .caption = "Resume", .group = "Mode", .cmd = START_UP("Resume#Resume")}),
    Radio({.id = 34, .caption = "Custom", .group = "Mode", .cmd = START_UP("Resume#Custom")}),
    Radio({.id = 35, .caption = "User", .group = "Setup", .cmd = START_UP("Setup#User")}),
    Radio({.id = 36, .caption = "Factory", .group = "Setup", .cmd = START_UP("Setup#Factory")}),
    Radio({.id = 37, .caption = "User", .group = "Initial Status", .cmd = START_UP("Init Status#User")}),
    Radio({.id = 38, .caption = "Factory", .group = "Initial Status", .cmd = START_UP("Init Status#Factory")}),
    SetupClear("LOCAL@Engineering Setup@System@Start Up@Clear"),
    SetupExecute("LOCAL@Engineering Setup@System@Start Up@Execute"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_system_startup));
#undef START_UP

inline constexpr LS_TBL ls_engsetup_system_startup[] = {
    SetupList({.hn = 4, .head = {"Unit", "Mode", "Setup", "Initial Status"}, .width = {140, 130, 130, 150}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_system_startup));

#define INITIALIZE(word) {"LOCAL@Engineering Setup@System@Initialize@" word}
inline constexpr BT_TBL bt_engsetup_system_initialize[] = {
    Radio({.id = 33, .caption = "All Clear", .group = "Initialize", .cmd = INITIALIZE("Initialize#All Clear")}),
    Radio({.id = 34, .caption = "Reset", .group = "Initialize", .cmd = INITIALIZE("Initialize#Reset")}),
    SetupClear("LOCAL@Engineering Setup@System@Initialize@Clear"),
    SetupExecute("LOCAL@Engineering Setup@System@Initialize@Execute"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_system_initialize));
#undef INITIALIZE

inline constexpr LS_TBL ls_engsetup_system_initialize[] = {
    SetupList({.hn = 5, .head = {"Unit", "Mode", "Setup", "Initial Status", "Initialize"}, .width = {100, 100, 100, 120, 130},
               .group = {1, 3, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_system_initialize));

// --- Maintenance ---

inline constexpr NB_TBL nb_engsetup_system_maintenance[] = {
    {.id = 1, .caption = "Year",   .type = NB_INT, .min = 2000, .max = 2037, .cmd = "Panel@Common@Knob0", .scale = 4},
    {.id = 2, .caption = "Month",  .type = NB_INT, .min = 1,    .max = 12,   .cmd = "Panel@Common@Knob1", .scale = 4},
    {.id = 3, .caption = "Day",    .type = NB_INT, .min = 1,    .max = 31,   .cmd = "Panel@Common@Knob2", .scale = 4},
    {.id = 4, .caption = "Hour",   .type = NB_INT, .min = 0,    .max = 23,   .cmd = "Panel@Common@Knob3", .scale = 4},
    {.id = 5, .caption = "Minute", .type = NB_INT, .min = 0,    .max = 59,   .cmd = "Panel@Common@Knob4", .scale = 4},
    NB_END,
};
static_assert(BoxesAreSound(nb_engsetup_system_maintenance));

#define MAINTENANCE(word) {"LOCAL@Engineering Setup@System@Maintenance@" word}
inline constexpr BT_TBL bt_engsetup_system_maintenance[] = {
    Knobs( {.id = BTN_MAINTENANCE_TIME,    .caption = "", .group = "Time/Date (UTC)", .cmd = MAINTENANCE("Time"), .nb = nb_engsetup_system_maintenance}),
    Action({.id = 34, .caption = "Set\nTime/Date", .group = "Time/Date (UTC)", .cmd = MAINTENANCE("Set Time/Date")}),
    Action({.id = 35, .caption = "Refresh", .group = "Drives", .cmd = MAINTENANCE("Refresh")}),
    Action({.id = BTN_MAINTENANCE_PRIMARY, .caption = "Primary", .group = "Drives", .cmd = MAINTENANCE("Primary")}),
    Action({.id = BTN_MAINTENANCE_FORMAT,  .caption = "Format", .group = "Drives", .cmd = MAINTENANCE("Format")}),
    Action({.id = 38, .caption = "Reload\nUSB\nDriver", .group = "Drives", .cmd = MAINTENANCE("Reload USB Driver")}),
    Action({.id = 49, .caption = "Current\nTime", .cmd = MAINTENANCE("Clear Time/Date")}),
    Action({.id = 51, .caption = "Local Drv\nFormat", .cmd = MAINTENANCE("HDD Format")}),
    Jump(  {.id = 53, .caption = "Setup\nLock", .group = "Lock", .cmd = {"#73170001"}}),
    Jump(  {.id = 54, .caption = "File Load\nLock", .group = "Lock", .cmd = {"#73170002"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_system_maintenance));
#undef MAINTENANCE

inline constexpr LS_TBL ls_engsetup_system_maintenance[] = {
    {.id = 1, .hn = 5, .vn = 3, .x = 100, .y = 76, .head = {"Drive", "Path", "Total MB", "Used MB", "Free MB"}, .width = {236, 112, 68, 67, 67},
     .group = {2, 999}, .view = 1, .sb_top = 76, .sb_bottom = 164, .block = 1},
    {.id = 2, .hn = 5, .vn = 6, .x = 100, .y = 172, .head = {"Removable Drive", "Path", "Total MB", "Used MB", "Free MB"}, .width = {236, 112, 68, 67, 67},
     .group = {2, 999}, .sb_top = 172, .sb_bottom = 326, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_system_maintenance));

// --- Format ---

#define FORMAT(word) {"LOCAL@Engineering Setup@System@Format@" word}
inline constexpr BT_TBL bt_engsetup_system_format[] = {
    JumpPopUp({.id = BTN_FORMAT_SIGNAL,         .caption = "Signal\nFormat", .group = "Format", .cmd = FORMAT("Signal Format")}),
    Radio(    {.id = BTN_FORMAT_TRI,            .caption = "Tri Sync", .group = "Ref Input Format", .cmd = FORMAT("Ref Input Format#Tri Sync")}),
    Radio(    {.id = BTN_FORMAT_BB,             .caption = "BB", .group = "Ref Input Format", .cmd = FORMAT("Ref Input Format#BB")}),
    Radio(    {.id = BTN_FORMAT_WIDE,           .caption = "16:9", .group = "Screen Aspect", .cmd = FORMAT("Screen Aspect#16:9")}),
    Radio(    {.id = BTN_FORMAT_NARROW,         .caption = "4:3", .group = "Screen Aspect", .cmd = FORMAT("Screen Aspect#4:3")}),
    Action(   {.id = BTN_FORMAT_ASPECT_CLEAR,   .caption = "Aspect\nClear", .group = "Aspect", .cmd = FORMAT("Screen Aspect@Clear")}),
    Action(   {.id = BTN_FORMAT_ASPECT_EXECUTE, .caption = "Aspect\nExecute", .group = "Aspect", .cmd = FORMAT("Screen Aspect@Aspect Execute")}),
    Jump(     {.id = 51, .caption = "AUX\nSignal\nFormat", .group = "Outputs", .cmd = {"#73130005"}}),
    Jump(     {.id = 52, .caption = "Level A/B", .group = "Outputs", .cmd = {"#73130099"}}),
    SetupClear("LOCAL@Engineering Setup@System@Format@Clear"),
    SetupExecute("LOCAL@Engineering Setup@System@Format@Execute"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_system_format));

inline constexpr LS_TBL ls_engsetup_system_format[] = {
    SetupList({.hn = 4, .head = {"Unit", "Signal Format", "Aspect", "Ref Input"}, .width = {120, 190, 110, 130},
               .group = {1, 999}, .block = 1}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_system_format));

inline constexpr BT_TBL bt_engsetup_system_format_auxsignal[] = {
    Radio({.id = 33, .caption = "Normal", .group = "Signal Format", .cmd = FORMAT("AUX Signal Forma@Signal Format#Normal")}),
    Radio({.id = 34, .caption = "1080i", .group = "Signal Format", .cmd = FORMAT("AUX Signal Forma@Signal Format#1080i")}),
    Radio({.id = 35, .caption = "59.94Hz\n(2x)", .group = "Signal Format", .cmd = FORMAT("AUX Signal Forma@Signal Format#59.94Hz(2x)")}),
    SetupClear("LOCAL@Engineering Setup@System@Format@AUX Signal Forma@Clear"),
    SetupExecute("LOCAL@Engineering Setup@System@Format@AUX Signal Forma@Execute"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_system_format_auxsignal));

inline constexpr LS_TBL ls_engsetup_system_format_auxsignal[] = {
    SetupList({.hn = 4, .head = {"Output", "Assign", "Source", "Signal Format"}, .width = {140, 130, 130, 150}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_system_format_auxsignal));

inline constexpr BT_TBL bt_engsetup_system_format_level[] = {
    Radio({.id = 33, .caption = "Level A", .group = "3G-SDI", .cmd = FORMAT("Level A/B#Level A")}),
    Radio({.id = 34, .caption = "Level B", .group = "3G-SDI", .cmd = FORMAT("Level A/B#Level B")}),
    SetupClear("LOCAL@Engineering Setup@System@Format@Level A/B@Clear"),
    SetupExecute("LOCAL@Engineering Setup@System@Format@Level A/B@Execute"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_system_format_level));
#undef FORMAT

inline constexpr LS_TBL ls_engsetup_system_format_level[] = {
    SetupList({.hn = 2, .head = {"Unit", "3G-SDI Level"}, .width = {200, 350}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_system_format_level));

inline constexpr BT_TBL bt_engsetup_system_maintenance_setupopelock[] = {
    Radio( {.id = 33, .caption = "System", .group = "Group", .cmd = {"LOCAL@SetupOpeLock@VF Group#0"}}),
    Radio( {.id = 34, .caption = "Panel", .group = "Group", .cmd = {"LOCAL@SetupOpeLock@VF Group#1"}}),
    Radio( {.id = 35, .caption = "Switcher", .group = "Group", .cmd = {"LOCAL@SetupOpeLock@VF Group#2"}}),
    Radio( {.id = 49, .caption = "DME", .group = "Group", .cmd = {"LOCAL@SetupOpeLock@VF Group#3"}}),
    Radio( {.id = 50, .caption = "DCU", .group = "Group", .cmd = {"LOCAL@SetupOpeLock@VF Group#4"}}),
    Radio( {.id = 51, .caption = "Router\nTally", .group = "Group", .cmd = {"LOCAL@SetupOpeLock@VF Group#5"}}),
    Radio( {.id = 52, .caption = "MPE", .group = "Group", .cmd = {"LOCAL@SetupOpeLock@VF Group#6"}}),
    Action({.id = BTN_LOCK_ITEM,       .caption = "Lock Item\nSelect", .group = "Lock Item", .cmd = {"LOCAL@SetupOpeLock@Lock Item Select"}}),
    Action({.id = BTN_LOCK_ITEM_CLEAR, .caption = "Lock Item\nAll Clear", .group = "Lock Item", .cmd = {"LOCAL@SetupOpeLock@Lock Item All Clear"}}),
    Toggle({.id = BTN_LOCK,            .caption = "Lock", .group = "Password", .cmd = {"LOCAL@SetupOpeLock@Lock#true"}}),
    Action({.id = 54, .caption = "Change\nPassword", .group = "Password", .cmd = {"LOCAL@SetupOpeLock@Change Password"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_system_maintenance_setupopelock));

inline constexpr LS_TBL ls_engsetup_system_maintenance_setupopelock[] = {
    SetupList({.hn = 4, .head = {"Menu", "Group", "Name", "Lock"}, .width = {80, 120, 270, 80}, .group = {3, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_system_maintenance_setupopelock));

inline constexpr BT_TBL bt_engsetup_system_maintenance_fileloadlock[] = {
    Action({.id = 33, .caption = "Lock", .group = "Lock Item", .cmd = {"LOCAL@FileLoadLock@Lock"}}),
    Action({.id = 49, .caption = "Change\nPassword", .group = "Password", .cmd = {"LOCAL@FileLoadLock@Change Password"}}),
    SetupClear("LOCAL@FileLoadLock@Clear"),
    SetupExecute("LOCAL@FileLoadLock@Execute"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_system_maintenance_fileloadlock));

inline constexpr LS_TBL ls_engsetup_system_maintenance_fileloadlock[] = {
    SetupList({.hn = 2, .head = {"Category", "Load"}, .width = {400, 150}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_system_maintenance_fileloadlock));

#define TABS(n) Base(base_main), LeftTabs(vf_setup, 1), BottomTabs(hf_setup_system, n)
#define TREE(...) {"Engineering Setup", "System", __VA_ARGS__}
inline constexpr PAGE setup_system_pages[] = {
    {.id = 0x73110000, .tree = TREE("Network Config"), .obj = {TABS(1), Buttons(bt_engsetup_system_networkconfig), Lists(ls_engsetup_system_networkconfig), Code(pc_engsetup_system_networkconfig)}},
    {.id = 0x73110097, .tree = TREE("Network Config", "NMI Config"), .obj = {TABS(1), Buttons(bt_engsetup_system_nmiconfig), Lists(ls_engsetup_system_nmiconfig), Code(pc_engsetup_system_nmiconfig)}},
    {.id = 0x73110098, .tree = TREE("Network Config", "NFS Config"), .obj = {TABS(1), Buttons(bt_engsetup_system_nfsconfig), Lists(ls_engsetup_system_nfsconfig), Code(pc_engsetup_system_nfsconfig)}},
    {.id = 0x73120000, .tree = TREE("System Config"), .obj = {TABS(2), Buttons(bt_engsetup_system_systemconfig), Lists(ls_engsetup_system_systemconfig), Code(pc_engsetup_system_systemconfig)}},
    {.id = 0x73120001, .tree = TREE("System Config", "Switcher Assign"), .obj = {TABS(2), Buttons(bt_engsetup_system_switcherassign), Lists(ls_engsetup_system_switcherassign), Code(pc_engsetup_system_switcherassign)}},
    {.id = 0x73130000, .tree = TREE("Format"), .obj = {TABS(3), Buttons(bt_engsetup_system_format), Lists(ls_engsetup_system_format), Code(pc_engsetup_system_format)}},
    {.id = 0x73130005, .tree = TREE("Format", "AUX Signal Format"), .obj = {TABS(3), Buttons(bt_engsetup_system_format_auxsignal), Lists(ls_engsetup_system_format_auxsignal), Code(pc_engsetup_system_format_auxsignal)}},
    {.id = 0x73130099, .tree = TREE("Format", "Level A/B"), .obj = {TABS(3), Buttons(bt_engsetup_system_format_level), Lists(ls_engsetup_system_format_level), Code(pc_engsetup_system_format_level)}},
    {.id = 0x73140000, .tree = TREE("Start Up"), .obj = {TABS(4), Buttons(bt_engsetup_system_startup), Lists(ls_engsetup_system_startup), Code(pc_engsetup_system_startup)}},
    {.id = 0x73150000, .tree = TREE("Initialize"), .obj = {TABS(5), Buttons(bt_engsetup_system_initialize), Lists(ls_engsetup_system_initialize), Code(pc_engsetup_system_initialize)}},
    {.id = 0x73170000, .tree = TREE("Maintenance"), .obj = {TABS(7), Buttons(bt_engsetup_system_maintenance), Boxes(NB_Non), Lists(ls_engsetup_system_maintenance), Code(pc_engsetup_system_maintenance)}},
    {.id = 0x73170001, .tree = TREE("Maintenance", "Setup Lock"), .obj = {TABS(7), Buttons(bt_engsetup_system_maintenance_setupopelock), Lists(ls_engsetup_system_maintenance_setupopelock), Code(pc_engsetup_system_maintenance_setupopelock)}},
    {.id = 0x73170002, .tree = TREE("Maintenance", "File Load Lock"), .obj = {TABS(7), Buttons(bt_engsetup_system_maintenance_fileloadlock), Lists(ls_engsetup_system_maintenance_fileloadlock), Code(pc_engsetup_system_maintenance_fileloadlock)}},
};
#undef TABS
#undef TREE
