// setup_switcher_io: the Switcher group of engineering setup: Input, Output, Device Interface.
#pragma once
#include "pc_setup_gpi.h"
#include "rows.h"
#include "setup_tabs.h"

// --- Device Interface: GPI ---

constexpr int SWITCHER_GPI_PORTS = 8;
inline constexpr BT_TBL gpi_input_more[] = {
    Jump({.id = 36, .caption = "H/L Set", .group = "Level", .cmd = {"#73370005"}}),
};
inline constexpr BT_TBL gpi_hlset_more[] = {
    Jump({.id = 51, .caption = "FC\nInput/\nOutput", .group = "Level", .cmd = {"#73370006"}}),
    Jump({.id = 52, .caption = "GPI\nInput", .cmd = {"#73370004"}}),
};
inline constexpr BT_TBL gpi_hlset_fc_more[] = {
    Jump({.id = 52, .caption = "H/L Set", .cmd = {"#73370005"}}),
};
inline constexpr SETUPSHEET engsetup_switcher_deviceinterface_gpiinput = SetupGpi_Input(SWITCHER_GPI_PORTS, gpi_input_more, 1);
inline constexpr SETUPSHEET engsetup_switcher_deviceinterface_gpiinput_hlset = SetupGpi_HLSet(SWITCHER_GPI_PORTS, gpi_hlset_more, 2);
inline constexpr SETUPSHEET engsetup_switcher_deviceinterface_gpiinput_hlset_fc = SetupGpi_HLSetFC(SWITCHER_GPI_PORTS, gpi_hlset_fc_more, 1);
inline constexpr SETUPSHEET engsetup_switcher_deviceinterface_gpioutput = SetupGpi_Output(SWITCHER_GPI_PORTS);

#define TABS Base(base_main), LeftTabs(vf_setup, 3), BottomTabs(hf_setup_switcher, 7)
#define TREE(...) {"Engineering Setup", "Switcher", "Device Interface", __VA_ARGS__}
#define SHEET(s) SHEET_OBJECTS(s), Code(SetupSheet_Code<s>)
inline constexpr PAGE setup_switcher_io_pages[] = {
    {.id = 0x73370004, .tree = TREE("GPI Input"), .obj = {TABS, SHEET_OBJECTS(engsetup_switcher_deviceinterface_gpiinput), Code(SetupGpi_Code<engsetup_switcher_deviceinterface_gpiinput>)}},
    {.id = 0x73370005, .tree = TREE("GPI Input", "H/L Set"), .obj = {TABS, SHEET(engsetup_switcher_deviceinterface_gpiinput_hlset)}},
    {.id = 0x73370006, .tree = TREE("GPI Input", "H/L Set", "FC Input/Output"), .obj = {TABS, SHEET(engsetup_switcher_deviceinterface_gpiinput_hlset_fc)}},
    {.id = 0x73370007, .tree = TREE("GPI Output"), .obj = {TABS, SHEET_OBJECTS(engsetup_switcher_deviceinterface_gpioutput), Code(SetupGpi_Code<engsetup_switcher_deviceinterface_gpioutput>)}},
};
#undef TABS
#undef TREE
