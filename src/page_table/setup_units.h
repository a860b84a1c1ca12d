// setup_units: the groups of engineering setup for the units beside the switcher: effects units (DME), device controllers
// (DCU), multi-program engines (MPE). All pages are sheets: a list of what a unit has, and for each column its choices.
#pragma once
#include "pc_setup_gpi.h"
#include "rows.h"
#include "setup_sheet.h"
#include "setup_switcher.h"
#include "setup_switcher_io.h"
#include "setup_tabs.h"

// A sheet with a row for each name.
template <size_t N, size_t K>
constexpr SETUPSHEET SheetOfNames(const SETUPCOLUMN (&columns)[N], const char* const (&names)[K], SETUPSHEET rest)
{
    rest.names = names;
    return SheetOf(columns, int(K), rest);
}

// --- DME: what the units are ---

#define DME "Engineering Setup@DME@"
// An installation has two effects units, or four of a pair of switchers.
inline constexpr const char* dme_pair[] = {"DME1", "DME2"};
// Channels by unit: four each; two each of four units; two each where a channel takes the room of two.
inline constexpr const char* dme_channels[] = {"DME1 Ch1", "DME1 Ch2", "DME1 Ch3", "DME1 Ch4", "DME2 Ch1", "DME2 Ch2", "DME2 Ch3", "DME2 Ch4"};
inline constexpr const char* dme_channels_dual[] = {"DME1 Ch1", "DME1 Ch2", "DME2 Ch1", "DME2 Ch2", "DME3 Ch1", "DME3 Ch2", "DME4 Ch1", "DME4 Ch2"};
inline constexpr const char* dme_channels_half[] = {"DME1 Ch1", "DME1 Ch2", "DME2 Ch1", "DME2 Ch2"};

inline constexpr SETUPWORD words_dme_model[] = {{"1", "FXU40"}, {"2", "HLDB7"}, {"3", "FXU50"}, {"4", "FXU40A"}, {"5", "QRD51"}, {"6", "QRD52E"}, {"7", "QRD53X"},
                                                {"8", "ZRD52"}, {}};
inline constexpr SETUPWORD words_processing[] = {{"Field", "Field"}, {"Frame", "Frame"}, {}};
inline constexpr SETUPWORD words_filter[] = {{"Normal", "Normal"}, {"Fine", "Fine"}, {}};
inline constexpr SETUPCOLUMN dme_config_columns[] = {
    SheetFollowed(SheetAsked("Model", 190, DME "Model@$", words_dme_model)),
    SheetWord("Processing", 150, "~@Processing@$", words_processing),
    SheetWord("Filter", 150, "~@Filter@$", words_filter),
};
inline constexpr BT_TBL dme_config_more[] = {SheetJump(49, "Channel\nConfig", "#73410001"), SheetJump(50, "Freeze", "#73410002")};
inline constexpr SETUPSHEET engsetup_dme_config =
    SheetMore(SheetOfNames(dme_config_columns, effects_units, {.key_head = "DME", .question = setup_reboot_question}), dme_config_more);

inline constexpr SETUPWORD words_dme_memory[] = {{"None", "None"}, {"Trail", "Trail"}, {"Shadow", "Shadow"}, {}};
inline constexpr SETUPCOLUMN dme_channel_columns[] = {
    SheetWord("Use", 120, "~@Use@$", words_enable),
    SheetAsked("Assign", 150, "~@Assign@$", board_users),
    SheetWord("Memory", 170, "~@Memory@$", words_dme_memory),
};
inline constexpr BT_TBL to_dme_config[] = {SetupBack("DME\nConfig", "#73410000")};
template <const auto& names>
inline constexpr SETUPSHEET engsetup_dme_channel = SheetMore(SheetOfNames(dme_channel_columns, names, {.key_head = "Channel", .key_width = 110}), to_dme_config);

inline constexpr SETUPWORD words_signal_loss[] = {{"Freeze", "Freeze"}, {"Black", "Black"}, {"Through", "Through"}, {}};
inline constexpr SETUPCOLUMN dme_freeze_columns[] = {
    SheetWord("Freeze", 150, "~@Freeze@$", words_processing),
    SheetWord("Signal Loss", 150, "~@Signal Loss@$", words_signal_loss),
    SheetNumber("Delay", 160, "~@Delay@$", 0, 60),
};
inline constexpr SETUPSHEET engsetup_dme_freeze =
    SheetMore(SheetOfNames(dme_freeze_columns, board_channels, {.key_head = "Channel", .key_width = 90, .title = "Freeze Delay"}), to_dme_config);

// --- DME: inputs and outputs ---

inline constexpr SETUPCOLUMN dme_input_columns[] = {
    SheetWord("Key Input", 110, "~@Key Input@$", words_enable),
    SheetWord("Key Invert", 110, "~@Key Invert@$", words_on),
    SheetNumber("Key H Pos", 120, "~@Key H Pos@$", -16, 16), SheetNumber("Key V Pos", 120, "~@Key V Pos@$", -8, 8),
};
inline constexpr BT_TBL dme_input_more[] = {SheetJump(49, "Output", "#73420001"), SheetJump(50, "Key\nLevel", "#73420002")};
inline constexpr SETUPSHEET engsetup_dme_input = SheetMore(SheetOfNames(dme_input_columns, board_channels, {.key_head = "Channel", .key_width = 90}), dme_input_more);

inline constexpr const char* dme_outputs[] = {"Out1", "Out2", "Out3", "Out4", "Out5", "Out6", "Out7", "Out8"};
inline constexpr SETUPWORD words_dme_signal[] = {WORD("None"), WORD("Ch1"), WORD("Ch2"), WORD("Ch3"), WORD("Ch4"), WORD("Ch5"), WORD("Ch6"), WORD("Ch7"), WORD("Ch8"),
                                                 WORD("Combine 1-4"), WORD("Combine 5-8"), WORD("Monitor"), {}};
inline constexpr SETUPWORD words_content[] = {{"Video", "Video"}, {"Key", "Key"}, {}};
inline constexpr SETUPCOLUMN dme_output_columns[] = {
    SheetAsked("Signal", 190, "~@Signal@$", words_dme_signal),
    SheetWord("Content", 140, "~@Content@$", words_content),
    SheetWord("Clip", 140, "~@Clip@$", words_on),
};
inline constexpr BT_TBL to_dme_input[] = {SetupBack("Input/\nOutput", "#73420000")};
inline constexpr SETUPSHEET engsetup_dme_output = SheetMore(SheetOfNames(dme_output_columns, dme_outputs, {.key_head = "Output", .key_width = 80}), to_dme_input);

// Seen on the air as it is turned: nothing waits for Execute.
inline constexpr SETUPCOLUMN dme_keylevel_columns[] = {
    SheetWord("Process", 140, "~@Process@$", words_on),
    SheetNumber("Key Clip", 160, "~@Key Clip@$", -100, 100), SheetNumber("Key Gain", 160, "~@Key Gain@$", 0, 200),
};
inline constexpr SETUPSHEET engsetup_dme_keylevel =
    SheetMore(SheetOfNames(dme_keylevel_columns, board_channels, {.key_head = "Channel", .key_width = 90, .is_direct = 1}), to_dme_input);

// --- DME: timing ---

inline constexpr SETUPWORD words_timing[] = {{"Auto", "Auto"}, {"Manual", "Manual"}, {}};
inline constexpr SETUPWORD words_3g_level[] = {{"A", "Level A"}, {"B", "Level B"}, {}};
inline constexpr SETUPCOLUMN dme_video_columns[] = {
    SheetWord("Timing", 120, "~@Timing@$", words_timing),
    SheetNumber("H Phase", 125, "~@H Phase@$", -1100, 1100), SheetNumber("V Phase", 125, "~@V Phase@$", -512, 512),
    SheetWord("3G Level", 120, "~@3G Level@$", words_3g_level),
};
inline constexpr BT_TBL dme_video_more[] = {SheetJump(49, "TBC", "#73430001")};
template <const auto& units>
inline constexpr SETUPSHEET engsetup_dme_video = SheetMore(SheetOfNames(dme_video_columns, units, {.key_head = "DME"}), dme_video_more);

inline constexpr SETUPWORD words_tbc_window[] = {{"1/2 Line", "1/2 Line"}, {"1 Line", "1 Line"}, {"8 Lines", "8 Lines"}, {"1 Frame", "1 Frame"}, {}};
inline constexpr SETUPCOLUMN dme_tbc_columns[] = {
    SheetWord("TBC", 110, "~@TBC@$", words_on),
    SheetAsked("Window", 140, "~@Window@$", words_tbc_window),
    SheetNumber("Center", 120, "~@Center@$", -100, 100), SheetNumber("Fine", 120, "~@Fine@$", -32, 31),
};
inline constexpr BT_TBL to_dme_video[] = {SetupBack("Video\nInterface", "#73430000")};
template <const auto& units>
inline constexpr SETUPSHEET engsetup_dme_tbc = SheetMore(SheetOfNames(dme_tbc_columns, units, {.key_head = "DME", .title = "Phase"}), to_dme_video);

// --- DME: devices ---

inline constexpr SETUPCOLUMN dme_devinterface_columns[] = {
    SheetWord("GPI Input", 245, DME "Device Interface@$ GPI Input@GPI Enable", words_enable),
    SheetWord("GPI Output", 245, DME "Device Interface@$ GPI Output@GPI Enable", words_enable),
};
inline constexpr BT_TBL dme_devinterface_more[] = {
    SheetJump(37, "DME1\nGPI\nInput", "#73440003", "GPI Ports"), SheetJump(38, "DME2\nGPI\nInput", "#73440004", "GPI Ports"), SheetJump(49, "SDI I/F", "#73440001"),
};
inline constexpr BT_TBL dme_devinterface_more_dual[] = {
    SheetJump(37, "DME1\nGPI\nInput", "#73440003", "GPI Ports"), SheetJump(38, "DME2\nGPI\nInput", "#73440004", "GPI Ports"), SheetJump(49, "SDI I/F", "#73440001"),
    SheetJump(51, "DME3\nGPI\nInput", "#73440007", "@GPI Ports"), SheetJump(52, "DME4\nGPI\nInput", "#73440008", "@GPI Ports"),
};
inline constexpr SETUPSHEET engsetup_dme_devinterface = SheetMore(SheetOfNames(dme_devinterface_columns, dme_pair, {.key_head = "DME"}), dme_devinterface_more);
inline constexpr SETUPSHEET engsetup_dme_devinterface_dual = SheetMore(SheetOfNames(dme_devinterface_columns, effects_units, {.key_head = "DME"}), dme_devinterface_more_dual);

inline constexpr SETUPCOLUMN dme_sdiif_columns[] = {
    SheetWord("Input", 220, "~@Input@$", words_sdi),
    SheetWord("Output", 220, "~@Output@$", words_sdi),
};
inline constexpr BT_TBL to_dme_devinterface[] = {SetupBack("Device\nInterface", "#73440000")};
template <const auto& names>
inline constexpr SETUPSHEET engsetup_dme_sdiif =
    SheetMore(SheetOfNames(dme_sdiif_columns, names, {.key_head = "Channel", .key_width = 110, .question = setup_reboot_question}), to_dme_devinterface);

// The ports of a unit, numbered from 0: its inputs lead to its outputs and back.
constexpr int DME_GPI_PORTS = 8;
struct DMEGPI {
    const char* input = "";
    const char* output = "";
};
inline constexpr DMEGPI dme_gpi_ways[] = {{"#73440003", "#73440005"}, {"#73440004", "#73440006"}, {"#73440007", "#73440009"}, {"#73440008", "#73440010"}};
inline constexpr BT_TBL gpi_enable = Toggle({.id = 36, .caption = "GPI\nEnable", .group = "Port", .cmd = {"~@GPI Enable#*"}});
template <int unit> inline constexpr BT_TBL dme_gpiinput_more[] = {gpi_enable, SheetJump(49, "GPI\nOutput", dme_gpi_ways[unit].output), SetupBack("Device\nInterface", "#73440000")};
template <int unit>
inline constexpr BT_TBL dme_gpioutput_more[] = {gpi_enable, gpi_test_fire, SheetJump(49, "GPI\nInput", dme_gpi_ways[unit].input), SetupBack("Device\nInterface", "#73440000")};
template <int unit> inline constexpr SETUPSHEET engsetup_dme_gpiinput = SheetMore(SetupGpi_Input(DME_GPI_PORTS), dme_gpiinput_more<unit>);
template <int unit> inline constexpr SETUPSHEET engsetup_dme_gpioutput = SheetMore(SetupGpi_Output(DME_GPI_PORTS), dme_gpioutput_more<unit>);
#undef DME

#define TABS(n) Base(base_main), LeftTabs(vf_setup, 4), BottomTabs(hf_setup_dme, n)
#define TREE(...) {"Engineering Setup", "DME", __VA_ARGS__}
#define SHEET(n, ...) {TABS(n), SHEET_OBJECTS(engsetup_dme_##__VA_ARGS__), Code(SetupSheet_Code<engsetup_dme_##__VA_ARGS__>)}
#define GPI(name) {TABS(4), SHEET_OBJECTS(engsetup_dme_##name), Code(SetupGpi_Code<engsetup_dme_##name>)}
inline constexpr PAGE setup_dme_pages[] = {
    {.id = 0x73410000, .tree = TREE("Config"), .obj = SHEET(1, config)},
    {.id = 0x73410001, .tree = TREE("Config", "Channel Config"), .obj = SHEET(1, channel<dme_channels>)},
    {.id = 0x73410101, .tree = TREE("Config", "Channel Config"), .obj = SHEET(1, channel<dme_channels_dual>)},
    {.id = 0x73410201, .tree = TREE("Config", "Channel Config"), .obj = SHEET(1, channel<dme_channels_half>)},
    {.id = 0x73410002, .tree = TREE("Config", "Freeze"), .obj = SHEET(1, freeze)},

    {.id = 0x73420000, .tree = TREE("Input"), .obj = SHEET(2, input)},
    {.id = 0x73420001, .tree = TREE("Output"), .obj = SHEET(2, output)},
    {.id = 0x73420002, .tree = TREE("Input", "Key Level"), .obj = SHEET(2, keylevel)},

    {.id = 0x73430000, .tree = TREE("Video Interface"), .obj = SHEET(3, video<dme_pair>)},
    {.id = 0x73430100, .tree = TREE("Video Interface"), .obj = SHEET(3, video<effects_units>)},
    {.id = 0x73430001, .tree = TREE("Video Interface", "TBC"), .obj = SHEET(3, tbc<dme_pair>)},
    {.id = 0x73430101, .tree = TREE("Video Interface", "TBC"), .obj = SHEET(3, tbc<effects_units>)},

    {.id = 0x73440000, .tree = TREE("Device Interface"), .obj = SHEET(4, devinterface)},
    {.id = 0x73440100, .tree = TREE("Device Interface"), .obj = SHEET(4, devinterface_dual)},
    {.id = 0x73440001, .tree = TREE("Device Interface", "SDI I/F"), .obj = SHEET(4, sdiif<dme_channels>)},
    {.id = 0x73440101, .tree = TREE("Device Interface", "SDI I/F"), .obj = SHEET(4, sdiif<dme_channels_dual>)},
    {.id = 0x73440201, .tree = TREE("Device Interface", "SDI I/F"), .obj = SHEET(4, sdiif<dme_channels_half>)},
    {.id = 0x73440003, .tree = TREE("Device Interface", "DME1 GPI Input"), .obj = GPI(gpiinput<0>)},
    {.id = 0x73440103, .tree = TREE("Device Interface", "DME1 GPI Input"), .obj = GPI(gpiinput<0>)},
    {.id = 0x73440004, .tree = TREE("Device Interface", "DME2 GPI Input"), .obj = GPI(gpiinput<1>)},
    {.id = 0x73440104, .tree = TREE("Device Interface", "DME2 GPI Input"), .obj = GPI(gpiinput<1>)},
    {.id = 0x73440005, .tree = TREE("Device Interface", "DME1 GPI Output"), .obj = GPI(gpioutput<0>)},
    {.id = 0x73440006, .tree = TREE("Device Interface", "DME2 GPI Output"), .obj = GPI(gpioutput<1>)},
    {.id = 0x73440106, .tree = TREE("Device Interface", "DME2 GPI Output"), .obj = GPI(gpioutput<1>)},
    {.id = 0x73440007, .tree = TREE("Device Interface", "DME3 GPI Input"), .obj = GPI(gpiinput<2>)},
    {.id = 0x73440008, .tree = TREE("Device Interface", "DME4 GPI Input"), .obj = GPI(gpiinput<3>)},
    {.id = 0x73440009, .tree = TREE("Device Interface", "DME3 GPI Output"), .obj = GPI(gpioutput<2>)},
    {.id = 0x73440010, .tree = TREE("Device Interface", "DME4 GPI Output"), .obj = GPI(gpioutput<3>)},
};
#undef TABS
#undef TREE
#undef SHEET
#undef GPI

// --- DCU: contacts ---

// Two units, numbered from 0; the pages of each lead to the other's.
constexpr int DCU_GPI_PORTS = 32;
template <int unit>
inline constexpr BT_TBL dcu_gpiinput_more[] = {SheetJump(49, unit == 0 ? "DCU2\nGPI\nInput" : "DCU1\nGPI\nInput", unit == 0 ? "#73510001" : "#73510000")};
template <int unit>
inline constexpr BT_TBL dcu_gpioutput_more[] = {gpi_test_fire, SheetJump(49, unit == 0 ? "DCU2\nGPI\nOutput" : "DCU1\nGPI\nOutput", unit == 0 ? "#73520001" : "#73520000")};
template <int unit> inline constexpr SETUPSHEET engsetup_dcu_gpiinput = SheetMore(SetupGpi_Input(DCU_GPI_PORTS), dcu_gpiinput_more<unit>);
template <int unit> inline constexpr SETUPSHEET engsetup_dcu_gpioutput = SheetMore(SetupGpi_Output(DCU_GPI_PORTS), dcu_gpioutput_more<unit>);

inline constexpr SETUPWORD words_parallel[] = {{"None", "None"}, {"Tally", "Tally"}, {"Xpt", "Xpt"}, {}};
inline constexpr SETUPCOLUMN dcu_parallel_columns[] = {
    SheetWord("Function", 170, "~@Function@$", words_parallel),
    SheetNumberOr("Source", 160, "~@Source@$", words_none_number, SWITCHER_INPUTS),
    SheetAsked("Group", 150, "~@Group@$", words_group, "Tally\nGroup"),
};
template <int unit>
inline constexpr BT_TBL dcu_parallel_more[] = {SheetJump(49, unit == 0 ? "DCU2\nParallel\nPort" : "DCU1\nParallel\nPort", unit == 0 ? "#73540001" : "#73540000")};
template <int unit>
inline constexpr SETUPSHEET engsetup_dcu_parallel = SheetMore(SheetOf(dcu_parallel_columns, 32, {.key_head = "Port", .key_width = 70}), dcu_parallel_more<unit>);

// --- DCU: serial ports and their protocols ---

inline constexpr SETUPWORD words_machine[] = {WORD("None"), WORD("VTR"), {"Extended VTR", "Ext VTR"}, {"Disk Recorder", "Disk Rec"}, WORD("DDR"), WORD("P-Bus"), {}};
inline constexpr SETUPWORD words_device[] = {WORD("None"), WORD("Dev1"), WORD("Dev2"), WORD("Dev3"), WORD("Dev4"), WORD("Dev5"), WORD("Dev6"), WORD("Dev7"), WORD("Dev8"),
                                             WORD("Dev9"), WORD("Dev10"), WORD("Dev11"), WORD("Dev12"), {}};
inline constexpr SETUPCOLUMN dcu_serial_columns[] = {
    SheetAsked("Protocol", 160, "~@Protocol@$", words_machine, "Protocol", "Port"),
    SheetAsked("Device", 100, "~@Device@$", words_device, "Device", "Port"),
    SheetAsked("Baud Rate", 120, "~@Baud Rate@$", words_baud, "Baud\nRate", "Port"),
    SheetAsked("Parity", 100, "~@Parity@$", words_parity, "Parity", "Port"),
};
template <int unit>
inline constexpr BT_TBL dcu_serial_more[] = {
    SheetJump(38, unit == 0 ? "DCU2\nSerial\nPort" : "DCU1\nSerial\nPort", unit == 0 ? "#73530001" : "#73530000"),
    SheetJump(37, "VTR", "#73530002", "Protocol"),
    SheetJump(49, "Extended\nVTR", "#73530003", "@Protocol"), SheetJump(50, "Disk\nRecorder", "#73530004", "@Protocol"),
    SheetJump(51, "DDR", "#73530006", "@Protocol"), SheetJump(52, "P-Bus", "#73530005", "@Protocol"),
};
template <int unit>
inline constexpr SETUPSHEET engsetup_dcu_serial = SheetMore(SheetOf(dcu_serial_columns, 8, {.key_head = "Port", .key_width = 70}), dcu_serial_more<unit>);

inline constexpr const char* dcu_devices[] = {"Dev1", "Dev2", "Dev3", "Dev4", "Dev5", "Dev6", "Dev7", "Dev8", "Dev9", "Dev10", "Dev11", "Dev12"};
inline constexpr BT_TBL to_serial[] = {SetupBack("Serial\nPort", "#73530000")};
#define DEVICE_SHEET(name) inline constexpr SETUPSHEET engsetup_dcu_##name = \
    SheetMore(SheetOfNames(name##_columns, dcu_devices, {.key_head = "Device", .key_width = 80}), to_serial)

inline constexpr SETUPWORD words_timecode[] = {{"LTC", "LTC"}, {"VITC", "VITC"}, {"Auto", "Auto"}, {}};
inline constexpr SETUPWORD words_stop[] = {{"Still", "Still"}, {"E-E", "E-E"}, {}};
inline constexpr SETUPCOLUMN vtr_columns[] = {
    SheetWord("Time Code", 130, "~@Time Code@$", words_timecode),
    SheetWord("Stop", 120, "~@Stop@$", words_stop),
    SheetNumber("Preroll", 110, "~@Preroll@$", 0, 30), SheetNumber("Delay", 110, "~@Edit Delay@$", 0, 30),
};
DEVICE_SHEET(vtr);
inline constexpr SETUPWORD words_cueup[] = {{"Auto", "Auto"}, {"Manual", "Manual"}, {}};
inline constexpr SETUPCOLUMN extvtr_columns[] = {
    SheetWord("Var Speed", 150, "~@Var Speed@$", words_enable),
    SheetWord("Cue Up", 160, "~@Cue Up@$", words_cueup),
    SheetNumber("Lead Time", 160, "~@Lead Time@$", 0, 255),
};
DEVICE_SHEET(extvtr);
inline constexpr SETUPCOLUMN diskrec_columns[] = {
    SheetWord("File List", 120, "~@File List@$", words_enable),
    SheetWord("Loop", 110, "~@Loop@$", words_on),
    SheetNumber("Port", 120, "~@Port@$", 1, 127), SheetNumber("Lead Time", 120, "~@Lead Time@$", 0, 255),
};
DEVICE_SHEET(diskrec);
inline constexpr SETUPCOLUMN ddr_columns[] = {
    SheetWord("Loop", 150, "~@Loop@$", words_on),
    SheetNumber("Channel", 160, "~@Channel@$", 1, 8), SheetNumber("Preroll", 160, "~@Preroll@$", 0, 30),
};
DEVICE_SHEET(ddr);
#undef DEVICE_SHEET

inline constexpr SETUPWORD words_pbus[] = {{"Pulse", "Pulse"}, {"Latch", "Latch"}, {}};
inline constexpr SETUPCOLUMN pbus_columns[] = {
    SheetWord("Trigger", 150, "~@Trigger@$", words_pbus),
    SheetWord("Store/Recall", 160, "~@Store Recall@$", words_enable),
    SheetNumber("Address", 160, "~@Address@$", 0, 255),
};
inline constexpr SETUPSHEET engsetup_dcu_pbus = SheetMore(SheetOf(pbus_columns, 24, {.key_head = "P-Bus", .key_width = 80}), to_serial);

#define TABS(n) Base(base_main), LeftTabs(vf_setup, 5), BottomTabs(hf_setup_dcu, n)
#define TREE(...) {"Engineering Setup", "DCU", __VA_ARGS__}
#define SHEET(n, name) {TABS(n), SHEET_OBJECTS(engsetup_dcu_##name), Code(SetupSheet_Code<engsetup_dcu_##name>)}
#define GPI(n, name) {TABS(n), SHEET_OBJECTS(engsetup_dcu_##name), Code(SetupGpi_Code<engsetup_dcu_##name>)}
inline constexpr PAGE setup_dcu_pages[] = {
    {.id = 0x73510000, .tree = TREE("GPI Input", "DCU1"), .obj = GPI(1, gpiinput<0>)},
    {.id = 0x73510001, .tree = TREE("GPI Input", "DCU2"), .obj = GPI(1, gpiinput<1>)},
    {.id = 0x73520000, .tree = TREE("GPI Output", "DCU1"), .obj = GPI(2, gpioutput<0>)},
    {.id = 0x73520001, .tree = TREE("GPI Output", "DCU2"), .obj = GPI(2, gpioutput<1>)},
    {.id = 0x73530000, .tree = TREE("Serial Port", "DCU1"), .obj = SHEET(3, serial<0>)},
    {.id = 0x73530001, .tree = TREE("Serial Port", "DCU2"), .obj = SHEET(3, serial<1>)},
    {.id = 0x73530002, .tree = TREE("Serial Port", "VTR"), .obj = SHEET(3, vtr)},
    {.id = 0x73530003, .tree = TREE("Serial Port", "Extended VTR"), .obj = SHEET(3, extvtr)},
    {.id = 0x73530004, .tree = TREE("Serial Port", "Disk Recorder"), .obj = SHEET(3, diskrec)},
    {.id = 0x73530005, .tree = TREE("Serial Port", "P-Bus"), .obj = SHEET(3, pbus)},
    {.id = 0x73530006, .tree = TREE("Serial Port", "DDR"), .obj = SHEET(3, ddr)},
    {.id = 0x73540000, .tree = TREE("Parallel Port", "DCU1"), .obj = SHEET(4, parallel<0>)},
    {.id = 0x73540001, .tree = TREE("Parallel Port", "DCU2"), .obj = SHEET(4, parallel<1>)},
};
#undef TABS
#undef TREE
#undef SHEET
#undef GPI

// --- MPE ---

#define FOUR(unit, word) unit " " word "1", unit " " word "2", unit " " word "3", unit " " word "4"
#define OF_UNITS(word) FOUR("MPE1", word), FOUR("MPE2", word), FOUR("MPE3", word), FOUR("MPE4", word)
inline constexpr const char* mpe_units[] = {"MPE1", "MPE2", "MPE3", "MPE4"};
inline constexpr const char* mpe_inputs[] = {OF_UNITS("In")};
inline constexpr const char* mpe_outputs[] = {OF_UNITS("Out")};
inline constexpr const char* mpe_slots[] = {OF_UNITS("Slot")};
#undef OF_UNITS
#undef FOUR

inline constexpr SETUPWORD words_mpe_model[] = {{"1", "TPE20"}, {}};
inline constexpr SETUPWORD words_scu[] = {{"1", "SCU1"}, {"2", "SCU2"}, {}};
inline constexpr SETUPWORD words_swr[] = {{"1", "SWR1"}, {"2", "SWR2"}, {}};
inline constexpr SETUPCOLUMN mpe_config_columns[] = {
    {.head = "Model", .width = 160, .path = "Engineering Setup@MPE@Model@$", .words = words_mpe_model, .is_fixed = 1},
    SheetFollowed(SheetWord("SCU Select", 160, "~@SCU Select@$", words_scu)),
    SheetFollowed(SheetWord("SWR Select", 160, "~@SWR Select@$", words_swr)),
};
inline constexpr SETUPSHEET engsetup_mpe_config =
    SheetOfNames(mpe_config_columns, mpe_units, {.key_head = "MPE", .key_width = 70, .question = setup_reboot_question});
inline constexpr SETUPCOLUMN mpe_input_columns[] = {
    SheetName("Name", 170, "~@Name@$", 16),
    SheetWord("Auto Timing", 130, "~@Auto Timing@$", words_on),
    SheetNumberOr("Source", 140, "~@Source@$", words_none_number, SWITCHER_INPUTS),
};
inline constexpr SETUPSHEET engsetup_mpe_input = SheetOfNames(mpe_input_columns, mpe_inputs, {.key_head = "Input", .key_width = 110});
inline constexpr SETUPWORD words_mpe_signal[] = {{"Video", "Video"}, {"Key", "Key"}, {"Monitor", "Monitor"}, {}};
inline constexpr SETUPCOLUMN mpe_output_columns[] = {
    SheetWord("Signal", 220, "~@Signal@$", words_mpe_signal),
    SheetNumber("H Phase", 220, "~@H Phase@$", -1100, 1100),
};
inline constexpr SETUPSHEET engsetup_mpe_output = SheetOfNames(mpe_output_columns, mpe_outputs, {.key_head = "Output", .key_width = 110});
inline constexpr SETUPCOLUMN mpe_boards_columns[] = {
    SheetShown("Board", 220, "~@Board@$"),
    SheetWord("Use", 220, "~@Use@$", words_enable),
};
inline constexpr SETUPSHEET engsetup_mpe_boards =
    SheetOfNames(mpe_boards_columns, mpe_slots, {.key_head = "Slot", .key_width = 110, .question = setup_reboot_question});

#define SHEET(n, name) {Base(base_main), LeftTabs(vf_setup, 7), BottomTabs(hf_setup_mpe, n), SHEET_OBJECTS(engsetup_mpe_##name), Code(SetupSheet_Code<engsetup_mpe_##name>)}
inline constexpr PAGE setup_mpe_pages[] = {
    {.id = 0x73710000, .tree = {"Engineering Setup", "MPE", "Config"}, .obj = SHEET(1, config)},
    {.id = 0x73720000, .tree = {"Engineering Setup", "MPE", "Input"}, .obj = SHEET(2, input)},
    {.id = 0x73730000, .tree = {"Engineering Setup", "MPE", "Output"}, .obj = SHEET(3, output)},
    {.id = 0x73740000, .tree = {"Engineering Setup", "MPE", "Boards"}, .obj = SHEET(4, boards)},
};
#undef SHEET
