// setup_router: the group of engineering setup for the router and the tallies: what the router has and how it is named, which
// buses light which lamps, and how router, switcher and lamps are wired.
#pragma once
#include "rows.h"
#include "setup_units.h"

constexpr int ROUTER_NAMES = 128; // sources, and as many destinations
constexpr int TALLY_LAMPS = 64;   // contacts of the parallel tally
constexpr int TALLY_ADDRESSES = 128;

// --- Router ---

inline constexpr const char* router_levels[] = {"Level 1", "Level 2", "Level 3", "Level 4", "Level 5", "Level 6", "Level 7", "Level 8"};
inline constexpr SETUPWORD words_level[] = {WORD("Level 1"), WORD("Level 2"), WORD("Level 3"), WORD("Level 4"), WORD("Level 5"), WORD("Level 6"), WORD("Level 7"),
                                            WORD("Level 8"), {}};
inline constexpr SETUPWORD words_level_or_all[] = {WORD("All"), WORD("Level 1"), WORD("Level 2"), WORD("Level 3"), WORD("Level 4"), WORD("Level 5"), WORD("Level 6"),
                                                   WORD("Level 7"), WORD("Level 8"), {}};
inline constexpr SETUPCOLUMN router_config_columns[] = {
    SheetName("Name", 130, "~@Level Name@$", 8, "Level\nName"),
    SheetAsked("Area", 80, "~@Area@$", words_group),
    SheetNumber("Sources", 125, "~@Sources@$", 0, ROUTER_NAMES), SheetNumber("Dests", 125, "~@Destinations@$", 0, ROUTER_NAMES),
};
inline constexpr BT_TBL router_config_more[] = {
    SheetJump(36, "Source\nTable", "#73610002", "Tables"), SheetJump(37, "Dest\nTable", "#73610003", "Tables"), SheetJump(38, "Inhibit", "#73610004", "Tables"),
    SheetJump(49, "Area\nSetting", "#73610001"), SheetJump(50, "External\nBox\nAssign", "#73610005"),
};
inline constexpr SETUPSHEET engsetup_router_config =
    SheetMore(SheetOfNames(router_config_columns, router_levels, {.key_head = "Level", .key_width = 90, .title = "Matrix Size"}), router_config_more);

// The part of the matrix that a control panel of an area reaches.
inline constexpr BT_TBL to_router[] = {SetupBack("Router", "#73610000")};
inline constexpr SETUPCOLUMN router_area_columns[] = {
    SheetWord("Use", 90, "~@Use@$", words_enable),
    SheetNumber("First Src", 98, "~@First Source@$", 1, ROUTER_NAMES), SheetLast("Last Src", 98, "~@Last Source@$", 1, ROUTER_NAMES),
    SheetNumber("First Dest", 98, "~@First Destination@$", 1, ROUTER_NAMES), SheetLast("Last Dest", 98, "~@Last Destination@$", 1, ROUTER_NAMES),
};
inline constexpr SETUPSHEET engsetup_router_area = SheetMore(SheetOf(router_area_columns, 8, {.key_head = "Area", .key_width = 68, .is_sound = SetupSheet_RangesAreSound}), to_router);

inline constexpr SETUPCOLUMN router_source_columns[] = {
    SheetName("Name", 190, "~@Name@$", 16, "Source\nName"),
    SheetAsked("Level", 140, "~@Level@$", words_level_or_all),
    SheetNumber("Input", 160, "~@Input@$", 1, ROUTER_NAMES),
};
inline constexpr BT_TBL router_source_more[] = {to_router[0], SheetJump(49, "Dest\nTable", "#73610003")};
inline constexpr SETUPSHEET engsetup_router_source = SheetMore(SheetOf(router_source_columns, ROUTER_NAMES, {.key_head = "Source"}), router_source_more);

inline constexpr SETUPCOLUMN router_dest_columns[] = {
    SheetName("Name", 190, "~@Name@$", 16, "Dest\nName"),
    SheetAsked("Level", 140, "~@Level@$", words_level_or_all),
    SheetNumber("Output", 160, "~@Output@$", 1, ROUTER_NAMES),
};
inline constexpr BT_TBL router_dest_more[] = {to_router[0], SheetJump(49, "Source\nTable", "#73610002"), SheetJump(50, "Inhibit", "#73610004")};
inline constexpr SETUPSHEET engsetup_router_dest = SheetMore(SheetOf(router_dest_columns, ROUTER_NAMES, {.key_head = "Dest", .title = "Dest Table"}), router_dest_more);

inline constexpr SETUPWORD words_router_inhibit[] = {{"true", "Inhibit"}, {"false", "Allow"}, {}};
inline constexpr SETUPCOLUMN router_inhibit_columns[] = {
    SheetShown("Name", 240, "Engineering Setup@Router@Destination Table@Name@$"),
    SheetWord("Inhibit", 250, "~@$", words_router_inhibit),
};
inline constexpr SETUPSHEET engsetup_router_inhibit = SheetMore(SheetOf(router_inhibit_columns, ROUTER_NAMES, {.key_head = "Dest"}), to_router);

inline constexpr SETUPWORD words_box[] = {{"None", "None"}, {"Aux Panel", "Aux Panel"}, {"Router Panel", "Router Panel"}, {"Tally Box", "Tally Box"}, {}};
inline constexpr SETUPCOLUMN router_box_columns[] = {
    SheetAsked("Type", 160, "~@Type@$", words_box),
    SheetAsked("Level", 150, "~@Level@$", words_level_or_all),
    SheetNumber("Address", 160, "~@Address@$", 0, 127),
};
inline constexpr SETUPSHEET engsetup_router_box = SheetMore(SheetOf(router_box_columns, 16, {.key_head = "Box", .key_width = 80, .title = "External Box"}), to_router);

// --- Tally groups ---

inline constexpr const char* tally_groups[] = {"Group 1", "Group 2", "Group 3", "Group 4", "Group 5", "Group 6", "Group 7", "Group 8"};
inline constexpr SETUPWORD words_tally_color[] = {WORD("Red"), WORD("Green"), WORD("Yellow"), WORD("Blue"), WORD("White"), {}};
inline constexpr SETUPWORD words_tally_mode[] = {WORD("On Air"), WORD("Preview"), WORD("Record"), WORD("Iso"), {}};
inline constexpr SETUPCOLUMN tally_group_columns[] = {
    SheetName("Name", 130, "~@Name@$", 8, "Group\nName"),
    SheetAsked("Color", 110, "~@Color@$", words_tally_color),
    SheetAsked("Mode", 110, "~@Mode@$", words_tally_mode),
    SheetNumber("Priority", 110, "~@Priority@$", 1, 8),
};
inline constexpr BT_TBL tally_group_more[] = {SheetJump(49, "Tally\nEnable", "#73620001"), SheetJump(50, "Tally\nCopy", "#73620002")};
inline constexpr SETUPSHEET engsetup_tally_group =
    SheetMore(SheetOfNames(tally_group_columns, tally_groups, {.key_head = "Group", .key_width = 90}), tally_group_more);

// Which buses count for a group: a line of all groups for each bus.
#define AUX8(t, a, b, c, d, e, f, g, h) "Aux" t #a, "Aux" t #b, "Aux" t #c, "Aux" t #d, "Aux" t #e, "Aux" t #f, "Aux" t #g, "Aux" t #h
inline constexpr const char* tally_buses[] = {
    "M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5", "P/P",
    AUX8("", 1, 2, 3, 4, 5, 6, 7, 8), "Aux9", "Aux10", "Aux11", "Aux12", "Aux13", "Aux14", "Aux15", "Aux16", "Aux17", "Aux18", "Aux19", "Aux20",
    AUX8("2", 1, 2, 3, 4, 5, 6, 7, 8), "Aux29", "Aux30", AUX8("3", 1, 2, 3, 4, 5, 6, 7, 8), "Aux39", "Aux40", AUX8("4", 1, 2, 3, 4, 5, 6, 7, 8),
};
#undef AUX8
inline constexpr SETUPWORD words_tally_enable[] = {{"true", "On"}, {"false", "---"}, {}};
#define ENABLED(n, frame) SheetPart(SheetToggle("G" #n, 58, "~@$", words_tally_enable, "Group " #n, frame), n)
inline constexpr SETUPCOLUMN tally_enable_columns[] = {
    ENABLED(1, "Groups"), ENABLED(2, "Groups"), ENABLED(3, "Groups"), ENABLED(4, "Groups"), ENABLED(5, "Groups"), ENABLED(6, "Groups"),
    ENABLED(7, "@Groups"), ENABLED(8, "@Groups"),
};
#undef ENABLED
inline constexpr BT_TBL to_tally_group[] = {SetupBack("Tally\nGroup", "#73620000")};
inline constexpr SETUPSHEET engsetup_tally_enable = SheetMore(SheetOfNames(tally_enable_columns, tally_buses, {.key_head = "Bus", .key_width = 86}), to_tally_group);

// A copy is done once: the server tells None again.
inline constexpr SETUPWORD words_tally_from[] = {WORD("None"), WORD("Group 1"), WORD("Group 2"), WORD("Group 3"), WORD("Group 4"), WORD("Group 5"), WORD("Group 6"),
                                                 WORD("Group 7"), WORD("Group 8"), {}};
inline constexpr SETUPCOLUMN tally_copy_columns[] = {SheetAsked("Copy From", 440, "~@$", words_tally_from, "Copy\nFrom")};
inline constexpr SETUPSHEET engsetup_tally_copy =
    SheetMore(SheetOfNames(tally_copy_columns, tally_groups,
                           {.key_head = "To", .key_width = 110, .question = "The enabled buses of the group will be\noverwritten.\n\nContinue?"}),
              to_tally_group);

// --- Wiring ---

// Which output of the router feeds an input of the switcher: its source gets the tally.
inline constexpr SETUPCOLUMN tally_wiring_columns[] = {
    SheetShown("Source Name", 170, "Engineering Setup@Switcher@Input@Source Name@$"),
    SheetAsked("Level", 150, "~@Level@$", words_level),
    SheetNumberOr("Dest", 160, "~@Destination@$", words_none_number, ROUTER_NAMES),
};
inline constexpr SETUPSHEET engsetup_tally_wiring =
    SheetOf(tally_wiring_columns, SWITCHER_INPUTS, {.key_head = "Input", .key_width = 70, .title = "Router Dest"});

// --- Lamps ---

inline constexpr SETUPWORD words_tally_protocol[] = {WORD("None"), WORD("Tally"), WORD("Name"), WORD("Tally+Name"), {}};
inline constexpr SETUPWORD words_dcu[] = {WORD("DCU1"), WORD("DCU2"), {}};
inline constexpr const char* tally_ports[] = {"Port1", "Port2", "Port3", "Port4"};
inline constexpr SETUPCOLUMN tally_serial_columns[] = {
    SheetAsked("Protocol", 140, "~@Protocol@$", words_tally_protocol, "Protocol", "Port"),
    SheetWord("Unit", 100, "~@Unit@$", words_dcu),
    SheetAsked("Baud Rate", 130, "~@Baud Rate@$", words_baud, "Baud\nRate", "Line"),
    SheetAsked("Parity", 100, "~@Parity@$", words_parity, "Parity", "Line"),
};
inline constexpr BT_TBL tally_serial_more[] = {SheetJump(49, "Source\nAssign", "#73640001")};
inline constexpr SETUPSHEET engsetup_tally_serial = SheetMore(SheetOfNames(tally_serial_columns, tally_ports, {.key_head = "Port", .key_width = 80}), tally_serial_more);

inline constexpr SETUPCOLUMN tally_address_columns[] = {
    SheetAsked("Group", 140, "~@Group@$", words_group, "Tally\nGroup"),
    SheetNumberOr("Source", 160, "~@Source@$", words_none_number, SWITCHER_INPUTS), SheetNumber("Port", 160, "~@Port@$", 1, 4),
};
inline constexpr BT_TBL to_tally_serial[] = {SetupBack("Serial\nTally", "#73640000")};
inline constexpr SETUPSHEET engsetup_tally_address = SheetMore(SheetOf(tally_address_columns, TALLY_ADDRESSES, {.key_head = "Address", .key_width = 90}), to_tally_serial);

inline constexpr SETUPWORD words_contact[] = {{"Make", "Make"}, {"Break", "Break"}, {}};
inline constexpr SETUPCOLUMN tally_parallel_columns[] = {
    SheetAsked("Group", 140, "~@Group@$", words_group, "Tally\nGroup"),
    SheetWord("Contact", 160, "~@Contact@$", words_contact),
    SheetNumberOr("Source", 160, "~@Source@$", words_none_number, SWITCHER_INPUTS),
};
inline constexpr SETUPSHEET engsetup_tally_parallel = SheetOf(tally_parallel_columns, TALLY_LAMPS, {.key_head = "Output", .key_width = 90});

#define TREE(...) {"Engineering Setup", __VA_ARGS__}
#define SHEET(n, name) {Base(base_main), LeftTabs(vf_setup, 6), BottomTabs(hf_setup_router, n), SHEET_OBJECTS(engsetup_##name), Code(SetupSheet_Code<engsetup_##name>)}
inline constexpr PAGE setup_router_pages[] = {
    {.id = 0x73610000, .tree = TREE("Router", "Config"), .obj = SHEET(1, router_config)},
    {.id = 0x73610001, .tree = TREE("Router", "Area"), .obj = SHEET(1, router_area)},
    {.id = 0x73610002, .tree = TREE("Router", "Source Table"), .obj = SHEET(1, router_source)},
    {.id = 0x73610003, .tree = TREE("Router", "Destination Table"), .obj = SHEET(1, router_dest)},
    {.id = 0x73610004, .tree = TREE("Router", "Inhibit"), .obj = SHEET(1, router_inhibit)},
    {.id = 0x73610005, .tree = TREE("Router", "External Box Assign"), .obj = SHEET(1, router_box)},
    {.id = 0x73620000, .tree = TREE("Tally", "Tally Group"), .obj = SHEET(2, tally_group)},
    {.id = 0x73620001, .tree = TREE("Tally", "Tally Enable"), .obj = SHEET(2, tally_enable)},
    {.id = 0x73620002, .tree = TREE("Tally", "Tally Copy"), .obj = SHEET(2, tally_copy)},
    {.id = 0x73630000, .tree = TREE("Tally", "Wiring"), .obj = SHEET(3, tally_wiring)},
    {.id = 0x73640000, .tree = TREE("Tally", "Serial Tally"), .obj = SHEET(4, tally_serial)},
    {.id = 0x73640001, .tree = TREE("Tally", "Serial Tally", "Source Assign"), .obj = SHEET(4, tally_address)},
    {.id = 0x73650000, .tree = TREE("Tally", "Parallel Tally"), .obj = SHEET(5, tally_parallel)},
};
#undef TREE
#undef SHEET
