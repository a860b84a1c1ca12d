// setup_panel_config: the Panel group of engineering setup: links of the panel, its modules and faders, what may not be
// operated, and its device interfaces. Each page is a sheet: a list of what there is, and for each column its choices.
#pragma once
#include "pc_engsetup_pnl.h"
#include "pc_setup_gpi.h"
#include "pc_setup_link.h"
#include "rows.h"
#include "setup_sheet.h"
#include "setup_switcher.h"
#include "setup_switcher_io.h"
#include "setup_tabs.h"

#define PNL "Engineering Setup@Panel@"
#define SAME(text) {text, text}
#define PNL_KEYS(keys) .more = keys, .more_count = int(std::size(keys))

// --- Words that several pages share ---

inline constexpr SETUPWORD pnl_on_off[] = {{"true", "On"}, {"false", "Off"}, {}};
inline constexpr SETUPWORD pnl_enable[] = {{"true", "Enable"}, {"false", "Inhibit"}, {}};
inline constexpr SETUPWORD pnl_banks[] = {SAME("M/E-1"), SAME("M/E-2"), SAME("M/E-3"), SAME("M/E-4"), SAME("M/E-5"), SAME("P/P"), SAME("None"), {}};
inline constexpr const char* pnl_rows[] = {"1st Row", "2nd Row", "3rd Row", "4th Row", "5th Row", "6th Row", "7th Row",
                                           "8th Row", "9th Row", "10th Row", "11th Row", "12th Row", "13th Row", "14th Row"};
static_assert(std::size(pnl_rows) == PANEL_ROWS);
inline constexpr const char* pnl_bus_rows[] = {"M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5", "P/P", "1st AUX", "2nd AUX"};

inline constexpr BT_TBL to_pnl_config[] = {SetupBack("Config", "#73210000")};

// --- Links ---

inline constexpr SETUPCOLUMN pnl_keytranslink_columns[] = {
    {.head = "Master", .width = 150, .path = "~", .part = 1, .words = link_none, .is_asked = 1},
    {.head = "Linked", .width = 150, .path = "~", .part = 2, .words = link_none, .is_asked = 1},
    {.head = "Link", .width = 150, .path = "~", .part = 3, .words = pnl_on_off},
};
#define PNL_DELETE_LINK Action({.id = BTN_LINK_DELETE, .caption = "Delete", .cmd = {SETUP_LINK_LOCAL "Delete"}})
inline constexpr BT_TBL pnl_keytranslink_more[] = {PNL_DELETE_LINK, SetupBack("Config", "#73210000")};
inline constexpr SETUPSHEET pnl_keytranslink =
    SheetOf(pnl_keytranslink_columns, 24, {.key_head = "Link No", .key_width = 100, PNL_KEYS(pnl_keytranslink_more),
                                           .offer = SetupLink_Keys, .is_sound = SetupLink_IsSound, .changed = SetupLink_Changed});

// A bus of the switcher takes a destination of the router along; the matrix says how its sources become the router's.
#define EXT_LINK PNL "Config@External Bus Link@"
inline constexpr SETUPCOLUMN pnl_extbuslink_columns[] = {
    {.head = "Master", .width = 150, .path = EXT_LINK "Link", .part = 1},
    {.head = "Linked", .width = 150, .path = EXT_LINK "Link", .part = 2},
    {.head = "Matrix", .width = 75, .path = EXT_LINK "Link", .part = 3, .min = 1, .max = LINK_TABLES},
    {.head = "Link", .width = 75, .path = EXT_LINK "Link", .part = 4, .words = pnl_on_off},
};
inline constexpr BT_TBL pnl_extbuslink_more[] = {
    Jump({.id = 35, .caption = "Master", .group = "Link Bus Adjust", .cmd = {SETUP_LINK_LOCAL "External Master"}}),
    Jump({.id = 36, .caption = "Linked", .group = "Link Bus Adjust", .cmd = {SETUP_LINK_LOCAL "External Linked"}}),
    PNL_DELETE_LINK,
    Jump({.id = 49, .caption = "Link\nMatrix\nAdjust", .cmd = {"#73210006"}}),
    SetupBack("Config", "#73210000"),
};
#undef PNL_DELETE_LINK
inline constexpr SETUPSHEET pnl_extbuslink =
    SheetOf(pnl_extbuslink_columns, 32, {.key_head = "Link No", .key_width = 100, .title = "Ext Bus Link", PNL_KEYS(pnl_extbuslink_more), .is_sound = SetupLink_IsSound, .changed = SetupLink_Changed});

inline constexpr BT_TBL bt_engsetup_panel_linkbusadj[] = {
    Action({.id = 33, .caption = "Set\nMaster", .cmd = {SETUP_LINK_LOCAL "Internal Bus Link@Bus Sel@Set"}}),
    Action({.id = 34, .caption = "Set\nNone", .cmd = {SETUP_LINK_LOCAL "Internal Bus Link@Bus Sel@None"}}),
    SetupBack("External\nBus Link", "#73210004"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_panel_linkbusadj));

inline constexpr SETUPWORD pnl_matrix_levels[] = {SAME("1"), SAME("2"), SAME("3"), SAME("4"), SAME("5"), SAME("6"), SAME("7"), SAME("8"), SAME("All"), {}};
inline constexpr SETUPCOLUMN pnl_linkmatrixadj_columns[] = {
    SheetName("Name", 190, "~@Name@$", 16),
    SheetWord("Level", 100, "~@Level@$", pnl_matrix_levels),
    SheetNumber("Offset", 160, "~@Offset@$", 0, BUS_SBUS - 1),
};
inline constexpr BT_TBL pnl_linkmatrixadj_more[] = {
    Jump({.id = 49, .caption = "Link\nTable\nAdjust", .cmd = {"#73210007"}}),
    SetupBack("External\nBus Link", "#73210004"),
};
inline constexpr SETUPSHEET pnl_linkmatrixadj =
    SheetOf(pnl_linkmatrixadj_columns, LINK_TABLES, {.key_head = "Matrix", .key_width = 100, .title = "Link Matrix", PNL_KEYS(pnl_linkmatrixadj_more)});

inline constexpr BT_TBL bt_engsetup_panel_linktableadj[] = {
    Knobs( {.id = 33, .caption = "Router\nSource", .cmd = {SETUP_LINK_LOCAL "Internal Bus Link@Table Sel@Source"}, .nb = nb_engsetup_switcher_tablesel}),
    Action({.id = 34, .caption = "Straight", .cmd = {SETUP_LINK_LOCAL "Internal Bus Link@Table Sel@Straight"}}),
    SetupBack("Link\nMatrix\nAdjust", "#73210006"),
    SetupClear(LOCAL_SWR "Clear"), SetupExecute(LOCAL_SWR "Execute"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_panel_linktableadj));
inline constexpr LS_TBL ls_engsetup_panel_linktableadj[] = {
    SwrList({.hn = 9, .vn = 11, .head = {"Source", "Matrix1", "Matrix2", "Matrix3", "Matrix4", "Matrix5", "Matrix6", "Matrix7", "Matrix8"},
             .width = {78, 59, 59, 59, 59, 59, 59, 59, 59}, .group = {1, 1, 1, 1, 1, 1, 1, 1, 1, 999}, .split = 1, .block = 1}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_panel_linktableadj));

// --- Rows, faders, modules ---

inline constexpr SETUPWORD pnl_row_works[] = {SAME("M/E-1"), SAME("M/E-2"), SAME("M/E-3"), SAME("M/E-4"), SAME("M/E-5"), SAME("P/P"), SAME("1st AUX"), SAME("2nd AUX"), SAME("None"), {}};
inline constexpr SETUPWORD pnl_sides[] = {SAME("Main"), SAME("Sub"), SAME("Main/Sub"), {}};
// Both are followed all the time: the page must not end that.
inline constexpr SETUPCOLUMN pnl_mainsubassign_columns[] = {
    {.head = "M/E Assign", .width = 220, .path = PNL "Config@M/E Assign@$", .words = pnl_row_works, .ask = SETUP_READ, .caption = "M/E\nAssign"},
    {.head = "Main/Sub Assign", .width = 220, .path = PNL "Config@MP2 Main/Sub Assign@Main/Sub Assign@$", .words = pnl_sides, .ask = SETUP_READ},
};
inline constexpr SETUPSHEET pnl_mainsubassign =
    SheetOf(pnl_mainsubassign_columns, int(std::size(pnl_rows)), {.names = pnl_rows, .key_head = "Row", .key_width = 110, .title = "Main/Sub", PNL_KEYS(to_pnl_config)});

inline constexpr SETUPWORD pnl_keys[] = {SAME("Key1"), SAME("Key2"), SAME("Key3"), SAME("Key4"), SAME("Key5"), SAME("Key6"), SAME("Key7"), SAME("Key8"), {}};
inline constexpr SETUPWORD pnl_dsk_modes[] = {SAME("Key"), SAME("Key Pri"), SAME("FTB"), {}};
inline constexpr SETUPCOLUMN pnl_dskfaderassign_columns[] = {
    SheetWord("M/E", 150, "~@Bank@$", pnl_banks), SheetWord("Key", 150, "~@Key@$", pnl_keys), SheetWord("Mode", 150, "~@Mode@$", pnl_dsk_modes),
};
inline constexpr BT_TBL pnl_dskfaderassign_more[] = {
    Jump({.id = 51, .caption = "Fader\nAssign", .cmd = {"#73210010"}}),
    SetupBack("Config", "#73210000"),
};
inline constexpr SETUPSHEET pnl_dskfaderassign = SheetOf(pnl_dskfaderassign_columns, 4, {.key_head = "DSK Fader", .key_width = 100, .title = "DSK Fader", PNL_KEYS(pnl_dskfaderassign_more)});
inline constexpr SETUPWORD pnl_faders[] = {SAME("Transition"), SAME("Key Trans"), SAME("Effect"), SAME("None"), {}};
inline constexpr SETUPCOLUMN pnl_faderassign_columns[] = {SheetWord("Fader", 220, "~@Fader@$", pnl_faders), SheetWord("Side", 220, "~@Side@$", pnl_sides)};
inline constexpr BT_TBL to_pnl_dskfader[] = {SetupBack("DSK Fader\nAssign", "#73210009")};
inline constexpr SETUPSHEET pnl_faderassign =
    SheetOf(pnl_faderassign_columns, int(std::size(pnl_rows)), {.names = pnl_rows, .key_head = "Row", .key_width = 110, PNL_KEYS(to_pnl_dskfader)});

// Rows are known by their numbers; a column of the page's own names them.
inline constexpr const char* pnl_unit_numbers[] = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13"};
inline constexpr SETUPWORD pnl_modules[] = {SAME("FP"), SAME("KT"), SAME("TR"), SAME("--"), {}};
#define SLOT(n) {.head = "Slot" #n, .width = 55, .path = PNL "Config@Compact Key Module Assign@KY Unit Config@$", .part = n, .words = pnl_modules, .ask = SETUP_READ, \
                 .is_asked = 1}
inline constexpr SETUPCOLUMN pnl_compactkey_columns[] = {
    {.head = "Row", .width = 76, .is_fixed = 1}, SLOT(1), SLOT(2), SLOT(3), SLOT(4), SLOT(5), SLOT(6), SLOT(7), SLOT(8),
};
#undef SLOT
inline constexpr BT_TBL pnl_compactkey_more[] = {
    Jump({.id = 51, .caption = "Extension\nPort", .cmd = {"#73210013"}}),
    SetupBack("Config", "#73210000"),
};
inline constexpr SETUPSHEET pnl_compactkey = SheetOf(
    pnl_compactkey_columns, int(std::size(pnl_unit_numbers)), {.names = pnl_unit_numbers, .key_width = 34, .question = setup_reboot_question, .title = "Compact Key", PNL_KEYS(pnl_compactkey_more)});

inline constexpr SETUPWORD pnl_port_modules[] = {SAME("None"), SAME("Flexi Pad"), SAME("Key Trans"), SAME("Transition"), SAME("Xpt"), SAME("Joystick"), SAME("Device Ctrl"), {}};
inline constexpr SETUPCOLUMN pnl_extensionport_columns[] = {
    SheetWord("Module", 220, "~@Module@$", pnl_port_modules), SheetNumber("Panel Row", 220, "~@Panel Row@$", 1, PANEL_ROWS),
};
inline constexpr BT_TBL to_pnl_compactkey[] = {SetupBack("Compact\nKey\nModule", "#73210011")};
inline constexpr SETUPSHEET pnl_extensionport =
    SheetOf(pnl_extensionport_columns, 8, {.key_head = "Port", .key_width = 110, .question = setup_reboot_question, PNL_KEYS(to_pnl_compactkey)});

// Where several modules of a kind are fitted: which of them the others go by.
inline constexpr const char* pnl_module_kinds[] = {"Transition", "Key Trans", "Flexi Pad", "Xpt", "Device Control", "Joystick", "Shotbox", "Multi Module"};
inline constexpr SETUPWORD pnl_row_words[] = {SAME("1st Row"), SAME("2nd Row"), SAME("3rd Row"), SAME("4th Row"), SAME("5th Row"), SAME("6th Row"), SAME("7th Row"), SAME("8th Row"), {}};
inline constexpr SETUPCOLUMN pnl_referencemodule_columns[] = {
    SheetWord("Reference", 210, "~@Reference@$", pnl_row_words), SheetWord("Follow", 210, "~@Follow@$", pnl_on_off),
};
inline constexpr SETUPSHEET pnl_referencemodule = SheetOf(pnl_referencemodule_columns, int(std::size(pnl_module_kinds)),
                                                          {.names = pnl_module_kinds, .key_head = "Module", .key_width = 130, .title = "Reference", PNL_KEYS(to_pnl_config)});

// --- What may not be operated ---

inline constexpr SETUPWORD pnl_me_operation[] = {SAME("Enable"), SAME("Disable"), SAME("Inhibit"), {}};
inline constexpr SETUPCOLUMN pnl_meoperation_columns[] = {
    {.head = "M/E Operation", .width = 420, .path = PNL "Config@M/E Operation@$", .words = pnl_me_operation, .ask = SETUP_READ},
};
inline constexpr SETUPSHEET pnl_meoperation =
    SheetOf(pnl_meoperation_columns, 6, {.names = swr_banks, .key_head = "M/E", .key_width = 130,
            .question = "A bank that is disabled or inhibited can no\nlonger be operated from this panel.\n\nContinue?", PNL_KEYS(to_pnl_config)});
inline constexpr const char* pnl_controls[] = {"Joystick X", "Joystick Y", "Joystick Z", "Trackball X", "Trackball Y", "Z Ring"};
inline constexpr SETUPCOLUMN pnl_joystick_columns[] = {SheetWord("Operation", 420, "~@$", pnl_enable)};
inline constexpr SETUPSHEET pnl_joystickinhibit = SheetOf(pnl_joystick_columns, 6, {.names = pnl_controls, .key_head = "Control", .key_width = 130, .title = "Controls", PNL_KEYS(to_pnl_config)});

// --- Device interface ---

inline constexpr const char* pnl_remotes[] = {"Remote1", "Remote2", "Remote3", "Remote4"};
inline constexpr SETUPCOLUMN pnl_devinterface_columns[] = {
    SheetAsked("Protocol", 150, "~@Protocol@$", words_protocol),
    SheetAsked("Baud Rate", 150, "~@Baud Rate@$", words_baud, "Baud\nRate"),
    SheetAsked("Parity", 150, "~@Parity@$", words_parity),
};
inline constexpr BT_TBL pnl_devinterface_more[] = {
    Jump({.id = 49, .caption = "GPI\nInput", .cmd = {"#73250001"}}),
    Jump({.id = 50, .caption = "GPI\nOutput", .cmd = {"#73250004"}}),
    Jump({.id = 51, .caption = "DCU Serial\nPort\nAssign", .cmd = {"#73250005"}}),
};
inline constexpr SETUPSHEET pnl_devinterface =
    SheetOf(pnl_devinterface_columns, 4, {.names = pnl_remotes, .key_head = "Port", .key_width = 100, PNL_KEYS(pnl_devinterface_more)});

constexpr int PANEL_GPI_PORTS = 8;
#define TO_PANEL_DEVICE SetupBack("Device\nInterface", "#73250000")
inline constexpr BT_TBL pnl_gpiinput_more[] = {Jump({.id = 36, .caption = "H/L Set", .group = "Level", .cmd = {"#73250002"}}), TO_PANEL_DEVICE};
inline constexpr BT_TBL pnl_hlset_more[] = {Jump({.id = 50, .caption = "FC\nInput/\nOutput", .cmd = {"#73250003"}}), SetupBack("GPI\nInput", "#73250001")};
inline constexpr BT_TBL pnl_hlset_fc_more[] = {SetupBack("H/L Set", "#73250002")};
inline constexpr BT_TBL pnl_gpioutput_more[] = {gpi_test_fire, TO_PANEL_DEVICE};
inline constexpr SETUPSHEET pnl_gpiinput = SheetMore(SetupGpi_Input(PANEL_GPI_PORTS), pnl_gpiinput_more);
inline constexpr SETUPSHEET pnl_hlset = SheetMore(SetupGpi_HLSet(PANEL_GPI_PORTS), pnl_hlset_more);
inline constexpr SETUPSHEET pnl_hlset_fc = SheetMore(SetupGpi_HLSetFC(PANEL_GPI_PORTS), pnl_hlset_fc_more);
inline constexpr SETUPSHEET pnl_gpioutput = SheetMore(SetupGpi_Output(PANEL_GPI_PORTS), pnl_gpioutput_more);

inline constexpr SETUPWORD pnl_serial_devices[] = {SAME("None"), SAME("VTR"), SAME("Disk Recorder"), SAME("Extended VTR"), SAME("Still Store"), SAME("Audio Mixer"), {}};
inline constexpr SETUPCOLUMN pnl_dcuserial_columns[] = {
    SheetWord("Device", 190, "~@Device@$", pnl_serial_devices), SheetNumber("DCU", 120, "~@DCU@$", 1, 2), SheetNumber("Port", 120, "~@Port@$", 1, 18),
};
inline constexpr BT_TBL to_pnl_devinterface[] = {TO_PANEL_DEVICE};
#undef TO_PANEL_DEVICE
inline constexpr const char* pnl_machines[] = {"Dev1", "Dev2", "Dev3", "Dev4", "Dev5", "Dev6", "Dev7", "Dev8", "Dev9", "Dev10", "Dev11", "Dev12"};
inline constexpr SETUPSHEET pnl_dcuserial =
    SheetOf(pnl_dcuserial_columns, 12, {.names = pnl_machines, .key_head = "Machine", .key_width = 120, .title = "DCU Serial", PNL_KEYS(to_pnl_devinterface)});

// --- The pages ---

#define TABS(n) Base(base_main), LeftTabs(vf_setup, 2), BottomTabs(hf_setup_panel, n)
#define TREE(...) {"Engineering Setup", "Panel", __VA_ARGS__}
#define SHEET(n, name) {TABS(n), SHEET_OBJECTS(pnl_##name), Code(SetupSheet_Code<pnl_##name>)}
#define LINK_SHEET(name) {TABS(1), SHEET_OBJECTS(pnl_##name), Code(SetupLink_Code<pnl_##name>)}
#define GPI(name) {TABS(5), SHEET_OBJECTS(pnl_##name), Code(SetupGpi_Code<pnl_##name>)}
inline constexpr PAGE setup_panel_config_pages[] = {
    {.id = 0x73210003, .tree = TREE("Config", "Key Trans Link"), .obj = LINK_SHEET(keytranslink)},
    {.id = 0x73210004, .tree = TREE("Config", "External Bus Link"), .obj = LINK_SHEET(extbuslink)},
    {.id = 0x73210005, .tree = TREE("Config", "External Bus Link", "Link Bus Adjust"),
     .obj = {TABS(1), Buttons(bt_engsetup_panel_linkbusadj), Lists(ls_engsetup_switcher_link_ibuslink_bussel), Code(pc_engsetup_panel_linkbusadj)}},
    {.id = 0x73210006, .tree = TREE("Config", "External Bus Link", "Link Matrix Adjust"), .obj = SHEET(1, linkmatrixadj)},
    {.id = 0x73210007, .tree = TREE("Config", "External Bus Link", "Link Matrix Adjust", "Link Table"),
     .obj = {TABS(1), Buttons(bt_engsetup_panel_linktableadj), Boxes(NB_Non), Lists(ls_engsetup_panel_linktableadj), Code(pc_engsetup_panel_linktableadj)}, .knobassign = 33},
    {.id = 0x73210008, .tree = TREE("Config", "Main/Sub Assign"), .obj = SHEET(1, mainsubassign)},
    {.id = 0x73210009, .tree = TREE("Config", "DSK Fader Assign"), .obj = SHEET(1, dskfaderassign)},
    {.id = 0x73210010, .tree = TREE("Config", "DSK Fader Assign", "Fader Assign"), .obj = SHEET(1, faderassign)},
    {.id = 0x73210011, .tree = TREE("Config", "Compact Key Module Assign"),
     .obj = {TABS(1), SHEET_OBJECTS(pnl_compactkey), Code(SetupPanelRows_Code<pnl_compactkey>)}},
    {.id = 0x73210013, .tree = TREE("Config", "Compact Key Module Assign", "Extension Port"), .obj = SHEET(1, extensionport)},
    {.id = 0x73210014, .tree = TREE("Config", "Reference Module"), .obj = SHEET(1, referencemodule)},
    {.id = 0x73210015, .tree = TREE("Config", "M/E Operation"), .obj = SHEET(1, meoperation)},
    {.id = 0x73210016, .tree = TREE("Config", "Operation Inhibit", "Joystick/Trackball"), .obj = SHEET(1, joystickinhibit)},
    {.id = 0x73250000, .tree = TREE("Device Interface"), .obj = SHEET(5, devinterface)},
    {.id = 0x73250001, .tree = TREE("Device Interface", "GPI Input"), .obj = GPI(gpiinput)},
    {.id = 0x73250002, .tree = TREE("Device Interface", "GPI Input", "H/L Set"), .obj = SHEET(5, hlset)},
    {.id = 0x73250003, .tree = TREE("Device Interface", "GPI Input", "H/L Set", "FC Input/Output"), .obj = SHEET(5, hlset_fc)},
    {.id = 0x73250004, .tree = TREE("Device Interface", "GPI Output"), .obj = GPI(gpioutput)},
    {.id = 0x73250005, .tree = TREE("Device Interface", "DCU Serial Port Assign"), .obj = SHEET(5, dcuserial)},
};
#undef TABS
#undef TREE
#undef SHEET
#undef LINK_SHEET
#undef GPI
#undef EXT_LINK
