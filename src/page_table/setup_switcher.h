// setup_switcher: the Switcher group of engineering setup: Config, Transition, Key/Wipe/FM/CCR and Link.
#pragma once
#include "pc_engsetup_swr.h"
#include "pc_setup_curve.h"
#include "rows.h"
#include "setup_system.h"
#include "setup_tabs.h"

// A list above two rows of keys or, with as few rows as it says, above three.
constexpr LS_TBL SwrList(LS_TBL row)
{
    const int vn = row.vn;
    row = SetupList(row);
    if (vn) row.vn = vn;
    row.sb_bottom = row.sb_top + LS_ROW_PX * (row.vn + 1);
    return row;
}
#define SWR_LOCAL(word) {LOCAL_SWR word}
#define SWR_CLEAR_EXECUTE SetupClear(LOCAL_SWR "Clear"), SetupExecute(LOCAL_SWR "Execute")

// --- Config ---

#define CONFIG(word) SWR_LOCAL("Config@" word)
#define TO_CONFIG Jump({.id = 49, .caption = "M/E\nConfig", .cmd = {"#73310000"}})

inline constexpr BT_TBL bt_engsetup_switcher_config[] = {
    Radio({.id = 17, .caption = "Standard", .group = "M/E Config", .cmd = CONFIG("M/E Config#Standard")}),
    Radio({.id = 18, .caption = "Multi\nProgram", .group = "M/E Config", .cmd = CONFIG("M/E Config#Multi Program")}),
    Radio({.id = 19, .caption = "Multi\nProgram 2", .group = "M/E Config", .cmd = CONFIG("M/E Config#Multi Program 2")}),
    Radio({.id = 20, .caption = "DSK", .group = "M/E Config", .cmd = CONFIG("M/E Config#DSK")}),
    Jump( {.id = 21, .caption = "User1-8\nConfig", .cmd = {"#73310001"}}),
    Jump( {.id = 22, .caption = "PGM\nConfig", .cmd = {"#73310002"}}),
    Jump( {.id = 33, .caption = "Logical\nM/E", .cmd = {"#73310003"}}),
    Jump( {.id = 34, .caption = "Side\nFlags", .cmd = {"#73310004"}}),
    Jump( {.id = 35, .caption = "Key\nConfig", .cmd = {"#73310005"}}),
    Jump( {.id = 36, .caption = "Out\nConfig", .cmd = {"#73310006"}}),
    Jump( {.id = 37, .caption = "Switcher\nTiming", .cmd = {"#73310007"}}),
    Jump( {.id = 38, .caption = "CG\nBorder", .cmd = {"#73310008"}}),
    Jump( {.id = 49, .caption = "Key PVW", .cmd = {"#73310009"}}),
    Jump( {.id = 50, .caption = "3D\nConfig", .cmd = {"#73310010"}}),
    Jump( {.id = BTN_SWR_DMECONFIG, .caption = "DME\nConfig", .cmd = {"#73310015"}}),
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_config));

inline constexpr LS_TBL ls_engsetup_switcher_config[] = {
    SwrList({.hn = 4, .vn = 6, .head = {"M/E", "M/E Config", "Key Config", "Logical M/E"}, .width = {100, 150, 150, 150}, .group = {1, 1, 999}, .block = 1}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config));

inline constexpr BT_TBL bt_engsetup_switcher_config_user[] = {
    JumpPopUp({.id = 33, .caption = "User", .cmd = CONFIG("User1-8 Config@User")}),
    TO_CONFIG,
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_user));

inline constexpr LS_TBL ls_engsetup_switcher_config_user[] = {
    SwrList({.hn = 2, .head = {"Function", "User Region"}, .width = {275, 275}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config_user));

#define PGM_KEY(n) Toggle({.id = 16 + (n), .caption = "Key" #n, .group = "Keys on Output", .cmd = CONFIG("PGM Config@Key" #n "#true")})
#define PGM_KEY2(n, place) Toggle({.id = place, .caption = "Key" #n, .group = "@Keys on Output", .cmd = CONFIG("PGM Config@Key" #n "#true")})
inline constexpr BT_TBL bt_engsetup_switcher_config_pgm[] = {
    PGM_KEY(1), PGM_KEY(2), PGM_KEY(3), PGM_KEY(4), PGM_KEY(5), PGM_KEY(6),
    PGM_KEY2(7, 33), PGM_KEY2(8, 34),
    Radio( {.id = 36, .caption = "Main", .group = "Output", .cmd = CONFIG("M/E Output Assign#Main")}),
    Radio( {.id = 37, .caption = "Sub", .group = "Output", .cmd = CONFIG("M/E Output Assign#Sub")}),
    Radio( {.id = 38, .caption = "None", .group = "Output", .cmd = CONFIG("M/E Output Assign#None")}),
    TO_CONFIG,
    // Followed all the time: the page must not end that.
    Toggle({.id = 50, .caption = "MP2\nRe-Entry", .cmd = {SWR "Config@MP2 Re-Entry#*"}, .no_add = 1}),
    Toggle({.id = 51, .caption = "DME Wipe\nSub\nEnable", .cmd = {SWR "Config@DME Wipe Sub Enable#*"}, .no_add = 1}),
    SWR_CLEAR_EXECUTE,
    BT_END,
};
#undef PGM_KEY
#undef PGM_KEY2
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_pgm));

inline constexpr LS_TBL ls_engsetup_switcher_config_pgm[] = {
    SwrList({.hn = 10, .vn = 6, .head = {"M/E,Out", "Side", "K1", "K2", "K3", "K4", "K5", "K6", "K7", "K8"},
             .width = {90, 76, 48, 48, 48, 48, 48, 48, 48, 48}, .group = {1, 1, 999}, .block = 1}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config_pgm));

inline constexpr BT_TBL bt_engsetup_switcher_config_logicalme[] = {
    JumpPopUp({.id = 33, .caption = "Logical\nM/E", .cmd = CONFIG("Logical M/E")}),
    TO_CONFIG,
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_logicalme));

inline constexpr LS_TBL ls_engsetup_switcher_config_logicalme[] = {
    SwrList({.hn = 2, .head = {"Physical M/E", "Logical M/E"}, .width = {275, 275}, .group = {1, 999}, .block = 1}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config_logicalme));

inline constexpr BT_TBL bt_engsetup_switcher_config_sideflags[] = {
    Toggle(   {.id = 33, .caption = "Side\nFlags", .cmd = CONFIG("Side Flags@Side Flags#Enable")}),
    Radio(    {.id = 34, .caption = "Auto", .group = "Mode", .cmd = CONFIG("Side Flags@Mode#Auto")}),
    Radio(    {.id = 35, .caption = "Manual", .group = "Mode", .cmd = CONFIG("Side Flags@Mode#Manual")}),
    JumpPopUp({.id = 36, .caption = "Fill", .cmd = CONFIG("Side Flags@Fill")}),
    TO_CONFIG,
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_sideflags));

inline constexpr LS_TBL ls_engsetup_switcher_config_sideflags[] = {
    SwrList({.hn = 4, .head = {"M/E", "Side Flags", "Mode", "Fill"}, .width = {100, 150, 150, 150}, .group = {1, 2, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config_sideflags));

inline constexpr BT_TBL bt_engsetup_switcher_config_keyconfig[] = {
    Radio({.id = 33, .caption = "Key3\nKey4", .group = "Key Config", .cmd = CONFIG("Key Config#Key3 Key4")}),
    Radio({.id = 34, .caption = "Key3\nKey PVW", .group = "Key Config", .cmd = CONFIG("Key Config#Key3 Key PVW")}),
    TO_CONFIG,
    Jump( {.id = 50, .caption = "Sub Key\nMode", .cmd = {"#73310011"}}),
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_keyconfig));

inline constexpr LS_TBL ls_engsetup_switcher_config_keyconfig[] = {
    SwrList({.hn = 3, .head = {"M/E", "Key Config", "Sub Key Mode"}, .width = {110, 220, 220}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config_keyconfig));

inline constexpr BT_TBL bt_engsetup_switcher_config_keyconfig_subkeymode[] = {
    Radio({.id = 33, .caption = "Main\nLink", .group = "Sub Key Mode", .cmd = CONFIG("Key Config@Sub Key Mode#Main Link")}),
    Radio({.id = 34, .caption = "Indepen-\ndent", .group = "Sub Key Mode", .cmd = CONFIG("Key Config@Sub Key Mode#Independent")}),
    Jump( {.id = 49, .caption = "Key\nConfig", .cmd = {"#73310005"}}),
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_keyconfig_subkeymode));

inline constexpr LS_TBL ls_engsetup_switcher_config_keyconfig_subkeymode[] = {
    SwrList({.hn = 3, .head = {"M/E", "Sub Key Mode", "M/E Config"}, .width = {110, 220, 220}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config_keyconfig_subkeymode));

inline constexpr BT_TBL bt_engsetup_switcher_config_dmeconfig[] = {
    Toggle(   {.id = 33, .caption = "Use", .cmd = CONFIG("DME Config@Use#Enable")}),
    JumpPopUp({.id = 34, .caption = "Assign", .cmd = CONFIG("DME Config@Assign")}),
    TO_CONFIG,
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_dmeconfig));

inline constexpr LS_TBL ls_engsetup_switcher_config_dmeconfig[] = {
    SwrList({.hn = 3, .head = {"Channel", "Use", "Assign"}, .width = {110, 220, 220}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config_dmeconfig));

inline constexpr BT_TBL bt_engsetup_switcher_config_cgborder[] = {
    Toggle({.id = 33, .caption = "CG\nBorder", .cmd = CONFIG("CG Border@CG Border#Enable")}),
    Radio( {.id = 34, .caption = "Normal", .group = "Quality", .cmd = CONFIG("CG Border@Quality#Normal")}),
    Radio( {.id = 35, .caption = "Fine", .group = "Quality", .cmd = CONFIG("CG Border@Quality#Fine")}),
    TO_CONFIG,
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_cgborder));

inline constexpr LS_TBL ls_engsetup_switcher_config_cgborder[] = {
    SwrList({.hn = 3, .head = {"M/E", "CG Border", "Quality"}, .width = {110, 220, 220}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config_cgborder));

inline constexpr BT_TBL bt_engsetup_switcher_config_kpvw[] = {
    Radio({.id = 33, .caption = "Key", .group = "Mode", .cmd = CONFIG("Key PVW@Mode#Key")}),
    Radio({.id = 34, .caption = "Key Fill", .group = "Mode", .cmd = CONFIG("Key PVW@Mode#Key Fill")}),
    Radio({.id = 35, .caption = "Keyed\nPicture", .group = "Mode", .cmd = CONFIG("Key PVW@Mode#Keyed Picture")}),
    Radio({.id = 36, .caption = "Bkgd A", .group = "Background", .cmd = CONFIG("Key PVW@Bkgd#Bkgd A")}),
    Radio({.id = 37, .caption = "Bkgd B", .group = "Background", .cmd = CONFIG("Key PVW@Bkgd#Bkgd B")}),
    Radio({.id = 38, .caption = "Black", .group = "Background", .cmd = CONFIG("Key PVW@Bkgd#Black")}),
    TO_CONFIG,
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_kpvw));

inline constexpr LS_TBL ls_engsetup_switcher_config_kpvw[] = {
    SwrList({.hn = 4, .head = {"M/E", "Key Config", "Mode", "Background"}, .width = {100, 150, 150, 150}, .group = {1, 1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config_kpvw));

inline constexpr BT_TBL bt_engsetup_switcher_config_out[] = {
    JumpPopUp({.id = 33, .caption = "Output\nSignal", .cmd = CONFIG("Out Config")}),
    TO_CONFIG,
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_out));

inline constexpr LS_TBL ls_engsetup_switcher_config_out[] = {
    SwrList({.hn = 2, .head = {"Output", "Signal"}, .width = {275, 275}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config_out));

inline constexpr NB_TBL nb_engsetup_switcher_config_swrtiming[] = {
    {.id = 1, .caption = "H Phase", .type = NB_INT, .min = -1100, .max = 1100, .cmd = "LOCAL@Panel@Common@Knob0", .scale = 4},
    {.id = 2, .caption = "V Phase", .type = NB_INT, .min = -512,  .max = 512,  .cmd = "LOCAL@Panel@Common@Knob1", .scale = 4},
    NB_END,
};
static_assert(BoxesAreSound(nb_engsetup_switcher_config_swrtiming));

inline constexpr BT_TBL bt_engsetup_switcher_config_swrtiming[] = {
    Knobs( {.id = 33, .caption = "Phase", .cmd = CONFIG("Switcher Timing@Phase"), .nb = nb_engsetup_switcher_config_swrtiming}),
    Toggle({.id = 34, .caption = "Auto\nTiming", .cmd = CONFIG("Switcher Timing@Auto Timing#On")}),
    TO_CONFIG,
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_swrtiming));

inline constexpr LS_TBL ls_engsetup_switcher_config_swrtiming[] = {
    SwrList({.hn = 4, .head = {"Switcher", "H Phase", "V Phase", "Auto Timing"}, .width = {100, 150, 150, 150}, .group = {1, 2, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config_swrtiming));

inline constexpr BT_TBL bt_engsetup_switcher_config_3D[] = {
    Radio({.id = 33, .caption = "2D", .group = "Mode", .cmd = CONFIG("3D Config@Mode#2D")}),
    Radio({.id = 34, .caption = "3D", .group = "Mode", .cmd = CONFIG("3D Config@Mode#3D")}),
    Radio({.id = 35, .caption = "L", .group = "Output", .cmd = CONFIG("3D Config@Output#L")}),
    Radio({.id = 36, .caption = "R", .group = "Output", .cmd = CONFIG("3D Config@Output#R")}),
    Radio({.id = 37, .caption = "L/R", .group = "Output", .cmd = CONFIG("3D Config@Output#L/R")}),
    TO_CONFIG,
    Jump( {.id = 50, .caption = "Input\nLink", .cmd = {"#73310012"}}),
    Jump( {.id = 51, .caption = "FM Output\nLink", .cmd = {"#73310013"}}),
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_3D));

inline constexpr LS_TBL ls_engsetup_switcher_config_3D[] = {
    SwrList({.hn = 3, .head = {"M/E", "Mode", "Output"}, .width = {110, 220, 220}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config_3D));

// Which input or output carries the right eye of each. Word is that of the path.
#define EYES(side, word) \
    JumpPopUp({.id = 33, .caption = "R " side, .cmd = CONFIG("3D Config@" word "@R " side)}), \
    Toggle(   {.id = 34, .caption = "L/R\nLink", .cmd = CONFIG("3D Config@" word "@Link#On")}), \
    Jump(     {.id = 49, .caption = "3D\nConfig", .cmd = {"#73310010"}}), \
    SWR_CLEAR_EXECUTE, \
    BT_END
inline constexpr BT_TBL bt_engsetup_switcher_config_3dconfig_inputlink[] = {EYES("Input", "Input Link")};
inline constexpr BT_TBL bt_engsetup_switcher_config_3dconfig_fmoutputlink[] = {EYES("Output", "FM Output Link")};
#undef EYES
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_3dconfig_inputlink));
static_assert(ButtonsAreSound(bt_engsetup_switcher_config_3dconfig_fmoutputlink));

inline constexpr LS_TBL ls_engsetup_switcher_config_3dconfig_inputlink[] = {
    SwrList({.hn = 3, .head = {"L Input", "R Input", "L/R Link"}, .width = {110, 220, 220}, .group = {1, 999}}),
    LS_END,
};
inline constexpr LS_TBL ls_engsetup_switcher_config_3dconfig_fmoutputlink[] = {
    SwrList({.hn = 3, .head = {"L Output", "R Output", "L/R Link"}, .width = {110, 220, 220}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config_3dconfig_inputlink));
static_assert(ListsAreSound(ls_engsetup_switcher_config_3dconfig_fmoutputlink));
#undef CONFIG
#undef TO_CONFIG

// --- Transition ---

#define TRANSITION(word) SWR_LOCAL("Transition@" word)
#define TO_TRANSITION Jump({.id = 49, .caption = "Transition", .cmd = {"#73340000"}})

inline constexpr NB_TBL nb_engsetup_switcher_transition[] = {
    {.id = 1, .caption = "Rate", .type = NB_INT, .min = 0, .max = 999, .cmd = "LOCAL@Panel@Common@Knob0", .scale = 4},
    NB_END,
};
static_assert(BoxesAreSound(nb_engsetup_switcher_transition));

inline constexpr BT_TBL bt_engsetup_switcher_transition[] = {
    Radio( {.id = 33, .caption = "Common", .group = "Key Transition", .cmd = TRANSITION("Key Transition#Common")}),
    Radio( {.id = 34, .caption = "Indepen-\ndent", .group = "Key Transition", .cmd = TRANSITION("Key Transition#Independent")}),
    Toggle({.id = 35, .caption = "Bus\nToggle", .cmd = TRANSITION("Bus Toggle#On")}),
    Toggle({.id = 36, .caption = "Split\nFader", .cmd = TRANSITION("Split Fader#On")}),
    Knobs( {.id = 37, .caption = "Default\nRate", .cmd = TRANSITION("Default Rate"), .nb = nb_engsetup_switcher_transition}),
    Jump(  {.id = 49, .caption = "Preset\nColor Mix", .cmd = {"#73340001"}}),
    Jump(  {.id = 50, .caption = "Transition\nCurve", .cmd = {"#73340002"}}),
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_transition));

inline constexpr LS_TBL ls_engsetup_switcher_transition[] = {
    SwrList({.hn = 5, .head = {"M/E", "Key Transition", "Bus Toggle", "Split Fader", "Default Rate"}, .width = {90, 130, 110, 110, 110}, .group = {1, 1, 2, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_transition));

inline constexpr BT_TBL bt_engsetup_switcher_transition_presetcolormix[] = {
    Radio(    {.id = 33, .caption = "1 Stroke", .group = "Stroke", .cmd = TRANSITION("Preset Color Mix@Stroke#1 Stroke")}),
    Radio(    {.id = 34, .caption = "2 Strokes", .group = "Stroke", .cmd = TRANSITION("Preset Color Mix@Stroke#2 Strokes")}),
    Radio(    {.id = 35, .caption = "Mix", .group = "Pattern", .cmd = TRANSITION("Preset Color Mix@Pattern#Mix")}),
    Radio(    {.id = 36, .caption = "Wipe", .group = "Pattern", .cmd = TRANSITION("Preset Color Mix@Pattern#Wipe")}),
    JumpPopUp({.id = 37, .caption = "Fill", .cmd = TRANSITION("Preset Color Mix@Fill")}),
    TO_TRANSITION,
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_transition_presetcolormix));

inline constexpr LS_TBL ls_engsetup_switcher_transition_presetcolormix[] = {
    SwrList({.hn = 4, .head = {"M/E", "Stroke", "Pattern", "Fill"}, .width = {100, 150, 150, 150}, .group = {1, 2, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_transition_presetcolormix));

inline constexpr BT_TBL bt_engsetup_switcher_transition_transitioncurve[] = {
    JumpPopUp({.id = 33, .caption = "Mix", .group = "Curve", .cmd = TRANSITION("Transition Curve@Mix")}),
    JumpPopUp({.id = 34, .caption = "Wipe", .group = "Curve", .cmd = TRANSITION("Transition Curve@Wipe")}),
    JumpPopUp({.id = 35, .caption = "DME Wipe", .group = "Curve", .cmd = TRANSITION("Transition Curve@DME Wipe")}),
    TO_TRANSITION,
    Jump(     {.id = 50, .caption = "Fader\nCurve", .cmd = {"#73340003"}}),
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_transition_transitioncurve));

inline constexpr LS_TBL ls_engsetup_switcher_transition_transitioncurve[] = {
    SwrList({.hn = 4, .head = {"M/E", "Mix", "Wipe", "DME Wipe"}, .width = {100, 150, 150, 150}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_transition_transitioncurve));

// What the transition shows at a place of the fader, both in per cent.
#define CURVE_POINT(n, at, knob) {.id = n, .caption = at, .type = NB_INT, .min = 0, .max = 100, .cmd = "LOCAL@Panel@Common@Knob" knob, .scale = 4}
inline constexpr NB_TBL nb_engsetup_switcher_fadercurve[] = {
    CURVE_POINT(1, "At 10%", "0"), CURVE_POINT(2, "At 25%", "1"), CURVE_POINT(3, "At 50%", "2"), CURVE_POINT(4, "At 75%", "3"), CURVE_POINT(5, "At 90%", "4"),
    NB_END,
};
#undef CURVE_POINT
static_assert(BoxesAreSound(nb_engsetup_switcher_fadercurve));

inline constexpr BT_TBL bt_engsetup_switcher_transition_transitioncurve_fadercurve[] = {
    Knobs( {.id = BTN_CURVE_POINTS, .caption = "Points", .cmd = TRANSITION("Transition Curve@Fader Curve@Points"), .nb = nb_engsetup_switcher_fadercurve}),
    Action({.id = 34, .caption = "Linear", .group = "Preset", .cmd = TRANSITION("Transition Curve@Fader Curve@Preset#Linear")}),
    Action({.id = 35, .caption = "S Curve", .group = "Preset", .cmd = TRANSITION("Transition Curve@Fader Curve@Preset#S Curve")}),
    Action({.id = 36, .caption = "Slow\nStart", .group = "Preset", .cmd = TRANSITION("Transition Curve@Fader Curve@Preset#Slow Start")}),
    Action({.id = 37, .caption = "Slow\nEnd", .group = "Preset", .cmd = TRANSITION("Transition Curve@Fader Curve@Preset#Slow End")}),
    Jump(  {.id = 49, .caption = "Transition\nCurve", .cmd = {"#73340002"}}),
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_transition_transitioncurve_fadercurve));

// The plot stands at its right.
inline constexpr LS_TBL ls_engsetup_switcher_transition_transitioncurve_fadercurve[] = {
    SwrList({.hn = 6, .vn = 8, .head = {"Curve", "10%", "25%", "50%", "75%", "90%"}, .width = {70, 42, 42, 42, 42, 42}, .group = {1, 999}, .block = 1}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_transition_transitioncurve_fadercurve));
#undef TRANSITION
#undef TO_TRANSITION

// --- Key/Wipe/FM/CCR ---

#define KEY(word) SWR_LOCAL("Key/Wipe/FM/CCR@" word)
#define TO_KEY Jump({.id = 49, .caption = "Key/Wipe\nFM/CCR", .cmd = {"#73350000"}})

inline constexpr NB_TBL nb_engsetup_switcher_keywipe[] = {
    {.id = 1, .caption = "Delay", .type = NB_INT, .min = -8, .max = 8, .cmd = "LOCAL@Panel@Common@Knob0", .scale = 4},
    NB_END,
};
static_assert(BoxesAreSound(nb_engsetup_switcher_keywipe));

inline constexpr BT_TBL bt_engsetup_switcher_keywipe[] = {
    Radio( {.id = 33, .caption = "16:9", .group = "Wipe Aspect", .cmd = KEY("Wipe Aspect#16:9")}),
    Radio( {.id = 34, .caption = "4:3", .group = "Wipe Aspect", .cmd = KEY("Wipe Aspect#4:3")}),
    Knobs( {.id = 35, .caption = "Key\nDelay", .cmd = KEY("Key Delay"), .nb = nb_engsetup_switcher_keywipe}),
    // Followed all the time: the page must not end that.
    Toggle({.id = 37, .caption = "FM Auto\nStore", .cmd = {SWR "Key/Wipe@FM Auto Store#*"}, .no_add = 1}),
    Toggle({.id = 38, .caption = "CCR\nInternal\nSignal", .cmd = {SWR "Key/Wipe/FM/CCR@CCR Intrnl Signl Enbl#*"}, .no_add = 1}),
    Jump(  {.id = 49, .caption = "CCR\nV Proc", .cmd = {"#73350001"}}),
    Jump(  {.id = 50, .caption = "DSK\nAuto Drop", .cmd = {"#73350002"}}),
    Jump(  {.id = 51, .caption = "Show Key", .cmd = {"#73350003"}}),
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_keywipe));

inline constexpr LS_TBL ls_engsetup_switcher_keywipe[] = {
    SwrList({.hn = 3, .head = {"M/E", "Wipe Aspect", "Key Delay"}, .width = {110, 220, 220}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_keywipe));

inline constexpr NB_TBL nb_engsetup_switcher_keywipe_ccrvproc[] = {
    {.id = 1, .caption = "Luminance", .type = NB_INT, .min = 0, .max = 200, .cmd = "LOCAL@Panel@Common@Knob0", .scale = 4},
    {.id = 2, .caption = "Chroma",    .type = NB_INT, .min = 0, .max = 200, .cmd = "LOCAL@Panel@Common@Knob1", .scale = 4},
    {.id = 3, .caption = "Hue",       .type = NB_INT, .min = -180, .max = 180, .cmd = "LOCAL@Panel@Common@Knob2", .scale = 4},
    {.id = 4, .caption = "Black",     .type = NB_INT, .min = -50, .max = 50, .cmd = "LOCAL@Panel@Common@Knob3", .scale = 4},
    NB_END,
};
static_assert(BoxesAreSound(nb_engsetup_switcher_keywipe_ccrvproc));

inline constexpr BT_TBL bt_engsetup_switcher_keywipe_ccrvproc[] = {
    Knobs( {.id = 33, .caption = "Adjust", .cmd = KEY("CCR V Proc@Adjust"), .nb = nb_engsetup_switcher_keywipe_ccrvproc}),
    Toggle({.id = 34, .caption = "V Proc", .cmd = KEY("CCR V Proc@V Proc#On")}),
    TO_KEY,
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_keywipe_ccrvproc));

inline constexpr LS_TBL ls_engsetup_switcher_keywipe_ccrvproc[] = {
    SwrList({.hn = 6, .head = {"CCR", "V Proc", "Luminance", "Chroma", "Hue", "Black"}, .width = {75, 95, 95, 95, 95, 95}, .group = {1, 1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_keywipe_ccrvproc));

inline constexpr BT_TBL bt_engsetup_switcher_keywipefm_dskautodrop[] = {
    Toggle({.id = 33, .caption = "Auto Drop", .cmd = KEY("DSK Auto Drop@Auto Drop#On")}),
    Radio( {.id = 34, .caption = "Cut", .group = "Mode", .cmd = KEY("DSK Auto Drop@Mode#Cut")}),
    Radio( {.id = 35, .caption = "Auto\nTrans", .group = "Mode", .cmd = KEY("DSK Auto Drop@Mode#Auto Trans")}),
    TO_KEY,
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_keywipefm_dskautodrop));

inline constexpr LS_TBL ls_engsetup_switcher_keywipefm_dskautodrop[] = {
    SwrList({.hn = 3, .head = {"DSK", "Auto Drop", "Mode"}, .width = {110, 220, 220}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_keywipefm_dskautodrop));

inline constexpr BT_TBL bt_engsetup_switcher_keywipefm_showkey[] = {
    JumpPopUp({.id = 33, .caption = "Output", .cmd = KEY("Show Key@Output")}),
    Radio(    {.id = 34, .caption = "Hold", .group = "Mode", .cmd = KEY("Show Key@Mode#Hold")}),
    Radio(    {.id = 35, .caption = "Latch", .group = "Mode", .cmd = KEY("Show Key@Mode#Latch")}),
    TO_KEY,
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_keywipefm_showkey));

inline constexpr LS_TBL ls_engsetup_switcher_keywipefm_showkey[] = {
    SwrList({.hn = 3, .head = {"M/E", "Output", "Mode"}, .width = {110, 220, 220}, .group = {1, 999}}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_keywipefm_showkey));
#undef KEY
#undef TO_KEY

#define TABS(n) Base(base_main), LeftTabs(vf_setup, 3), BottomTabs(hf_setup_switcher, n)
#define TREE(...) {"Engineering Setup", "Switcher", __VA_ARGS__}
// What makes a page: keys, list and code by one name.
#define OBJECTS(n, name) {TABS(n), Buttons(bt_engsetup_switcher_##name), Lists(ls_engsetup_switcher_##name), Code(pc_engsetup_switcher_##name)}
#define OBJECTS_KNOBS(n, name) {TABS(n), Buttons(bt_engsetup_switcher_##name), Boxes(NB_Non), Lists(ls_engsetup_switcher_##name), Code(pc_engsetup_switcher_##name)}
inline constexpr PAGE setup_switcher_pages[] = {
    {.id = 0x73310000, .tree = TREE("Config"), .obj = OBJECTS(1, config)},
    {.id = 0x73310001, .tree = TREE("Config", "User1-8 Config"), .obj = OBJECTS(1, config_user)},
    {.id = 0x73310102, .tree = TREE("Config", "PGM Config"), .obj = OBJECTS(1, config_pgm)},
    {.id = 0x73310003, .tree = TREE("Config", "Logical M/E"), .obj = OBJECTS(1, config_logicalme)},
    {.id = 0x73310004, .tree = TREE("Config", "Side Flags"), .obj = OBJECTS(1, config_sideflags)},
    {.id = 0x73310005, .tree = TREE("Config", "Key Config"), .obj = OBJECTS(1, config_keyconfig)},
    {.id = 0x73310006, .tree = TREE("Config", "Out Config"), .obj = OBJECTS(1, config_out)},
    {.id = 0x73310106, .tree = TREE("Config", "Out Config"),
     .obj = {TABS(1), Buttons(bt_engsetup_switcher_config_out), Lists(ls_engsetup_switcher_config_out), Code(pc_engsetup_switcher_config_out6)}},
    {.id = 0x73310007, .tree = TREE("Config", "Switcher Timing"), .obj = OBJECTS_KNOBS(1, config_swrtiming), .knobassign = 33},
    {.id = 0x73310008, .tree = TREE("Config", "CG Border"), .obj = OBJECTS(1, config_cgborder)},
    {.id = 0x73310009, .tree = TREE("Config", "Key PVW"), .obj = OBJECTS(1, config_kpvw)},
    {.id = 0x73310010, .tree = TREE("Config", "3D Config"), .obj = OBJECTS(1, config_3D)},
    {.id = 0x73310011, .tree = TREE("Config", "Key Config", "Sub Key Mode"), .obj = OBJECTS(1, config_keyconfig_subkeymode)},
    {.id = 0x73310012, .tree = TREE("Config", "3D Config", "Input Link"), .obj = OBJECTS(1, config_3dconfig_inputlink)},
    {.id = 0x73310013, .tree = TREE("Config", "3D Config", "FM Output Link"), .obj = OBJECTS(1, config_3dconfig_fmoutputlink)},
    {.id = 0x73310015, .tree = TREE("Config", "DME Config"), .obj = OBJECTS(1, config_dmeconfig)},
    {.id = 0x73340000, .tree = TREE("Transition"), .obj = OBJECTS_KNOBS(4, transition), .knobassign = 37},
    {.id = 0x73340001, .tree = TREE("Transition", "Preset Color Mix"), .obj = OBJECTS(4, transition_presetcolormix)},
    {.id = 0x73340002, .tree = TREE("Transition", "Transition Curve"), .obj = OBJECTS(4, transition_transitioncurve)},
    {.id = 0x73340003, .tree = TREE("Transition", "Transition Curve", "Fader Curve"), .obj = OBJECTS_KNOBS(4, transition_transitioncurve_fadercurve), .knobassign = BTN_CURVE_POINTS},
    {.id = 0x73350000, .tree = TREE("Key/Wipe/FM/CCR"), .obj = OBJECTS_KNOBS(5, keywipe), .knobassign = 35},
    {.id = 0x73350001, .tree = TREE("Key/Wipe/FM/CCR", "CCR V Proc"), .obj = OBJECTS_KNOBS(5, keywipe_ccrvproc), .knobassign = 33},
    {.id = 0x73350002, .tree = TREE("Key/Wipe/FM/CCR", "DSK Auto Drop"), .obj = OBJECTS(5, keywipefm_dskautodrop)},
    {.id = 0x73350003, .tree = TREE("Key/Wipe/FM/CCR", "Show Key"), .obj = OBJECTS(5, keywipefm_showkey)},
};
#undef TABS
#undef TREE
#undef OBJECTS
#undef OBJECTS_KNOBS
