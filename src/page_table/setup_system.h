// setup_system: the System group of engineering setup.
#pragma once
#include "pc_engsetup_sys.h"
#include "rows.h"
#include "setup_tabs.h"

inline constexpr HF_TBL hf_setup_system[] = {
    {.id = 1, .caption = "Format", .page = 0x73130000},
    HF_END,
};

// Above two rows of keys.
constexpr LS_TBL SetupList(LS_TBL row)
{
    row.id = 1;
    row.x = 100;
    row.y = 76;
    row.vn = 11;
    row.sb_top = 76;
    row.sb_bottom = 340;
    return row;
}

constexpr BT_TBL SetupClear(const char* cmd)   { return Action({.id = BTN_SETUP_CLEAR, .caption = "Clear", .cmd = {cmd}}); }
constexpr BT_TBL SetupExecute(const char* cmd) { return Action({.id = BTN_SETUP_EXECUTE, .caption = "Execute", .cmd = {cmd}}); }

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

#define TABS(n) Base(base_main), LeftTabs(vf_setup, 1), BottomTabs(hf_setup_system, n)
#define TREE(...) {"Engineering Setup", "System", __VA_ARGS__}
inline constexpr PAGE setup_system_pages[] = {
    {.id = 0x73130000, .tree = TREE("Format"), .obj = {TABS(1), Buttons(bt_engsetup_system_format), Lists(ls_engsetup_system_format), Code(pc_engsetup_system_format)}},
    {.id = 0x73130005, .tree = TREE("Format", "AUX Signal Format"), .obj = {TABS(1), Buttons(bt_engsetup_system_format_auxsignal), Lists(ls_engsetup_system_format_auxsignal), Code(pc_engsetup_system_format_auxsignal)}},
    {.id = 0x73130099, .tree = TREE("Format", "Level A/B"), .obj = {TABS(1), Buttons(bt_engsetup_system_format_level), Lists(ls_engsetup_system_format_level), Code(pc_engsetup_system_format_level)}},
};
#undef TABS
#undef TREE
