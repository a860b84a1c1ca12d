// setup_switcher: the Switcher group of engineering setup: Config, Transition, Key/Wipe/FM/CCR and Link.
#pragma once
#include "pc_engsetup_swr.h"
#include "pc_setup_curve.h"
#include "pc_setup_link.h"
#include "rows.h"
#include "setup_sheet.h"
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

// --- What the sheets of the group share ---

inline constexpr SETUPWORD words_enable[] = {{"true", "Enable"}, {"false", "Disable"}, {}};
inline constexpr SETUPWORD words_on[] = {{"true", "On"}, {"false", "Off"}, {}};
#define WORD(text) {text, text}

// A sheet of the banks; another number of rows, with their names or without, for the rest.
#define SHEET_OF(name, rows_, names_, key, width, col, ...) \
    inline constexpr SETUPSHEET engsetup_switcher_##name = {.columns = col, .column_count = int(std::size(col)), .rows = int(rows_), .names = names_, \
                                                            .key_head = key, .key_width = width, __VA_ARGS__}
#define BANK_SHEET(name, width, col, ...) SHEET_OF(name, std::size(swr_banks), swr_banks, "M/E", width, col, __VA_ARGS__)
#define ON_AIR .question = swr_on_air_question
#define MORE(keys) .more = keys, .more_count = int(std::size(keys))
#define SWR_LOCAL(word) {LOCAL_SWR word}
#define SWR_CLEAR_EXECUTE SetupClear(LOCAL_SWR "Clear"), SetupExecute(LOCAL_SWR "Execute")

// --- Config ---

#define CONFIG(word) SWR_LOCAL("Config@" word)
#define TO_CONFIG SetupBack("M/E\nConfig", "#73310000")
inline constexpr BT_TBL to_config[] = {TO_CONFIG};

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
    Jump( {.id = 51, .caption = "DME\nConfig", .cmd = {"#73310015"}}),
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_config));

inline constexpr LS_TBL ls_engsetup_switcher_config[] = {
    SwrList({.hn = 4, .vn = 6, .head = {"M/E", "M/E Config", "Key Config", "Logical M/E"}, .width = {100, 150, 150, 150}, .group = {1, 1, 999}, .block = 1}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_config));

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
    Toggle({.id = 49, .caption = "MP2\nRe-Entry", .cmd = {SWR "Config@MP2 Re-Entry#*"}, .no_add = 1}),
    Toggle({.id = 50, .caption = "DME Wipe\nSub\nEnable", .cmd = {SWR "Config@DME Wipe Sub Enable#*"}, .no_add = 1}),
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

// What belongs to the user regions.
inline constexpr BT_TBL bt_engsetup_switcher_config_user[] = {
    JumpPopUp({.id = 33, .caption = "User\nRegion", .cmd = CONFIG("User1-8 Config@User")}),
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

inline constexpr SETUPWORD bank_words[] = {WORD("M/E-1"), WORD("M/E-2"), WORD("M/E-3"), WORD("M/E-4"), WORD("M/E-5"), WORD("P/P"), {}};
inline constexpr SETUPCOLUMN logicalme_columns[] = {{.head = "Logical M/E", .width = 275, .path = SWR "Config@Logical M/E", .part = SETUP_EACH_ROW, .words = bank_words, .is_swapped = 1, .caption = "Logical\nM/E"}};
SHEET_OF(config_logicalme, std::size(swr_banks), swr_banks, "Physical M/E", 275, logicalme_columns, ON_AIR, MORE(to_config));

// What stands beside a 4:3 picture.
inline constexpr SETUPWORD flags_modes[] = {WORD("Auto"), WORD("Manual"), {}};
inline constexpr SETUPWORD flags_fills[] = {WORD("Black"), WORD("Color Bkgd 1"), WORD("Color Bkgd 2"), WORD("FM1"), WORD("FM2"), WORD("FM3"), WORD("FM4"), {}};
inline constexpr SETUPCOLUMN sideflags_columns[] = {
    {.head = "Side Flags", .width = 150, .path = SWR "Config@Side Flags@Side Flags@$", .words = words_enable},
    {.head = "Mode", .width = 150, .path = SWR "Config@Side Flags@Mode@$", .words = flags_modes},
    {.head = "Fill", .width = 150, .path = SWR "Config@Side Flags@Fill@$", .words = flags_fills},
};
BANK_SHEET(config_sideflags, 100, sideflags_columns, ON_AIR, MORE(to_config));

inline constexpr SETUPWORD keyconfig_words[] = {WORD("Key3 Key4"), WORD("Key3 Key PVW"), {}};
inline constexpr SETUPWORD subkey_words[] = {WORD("Main Link"), {"Independent", "Indep."}, {}};
inline constexpr SETUPCOLUMN keyconfig_columns[] = {
    {.head = "Key Config", .width = 220, .path = SWR "Config@Key Config", .part = 1, .words = keyconfig_words, .is_asked = 1, .caption = "Key\nConfig"},
    {.head = "Sub Key Mode", .width = 220, .path = SWR "Config@Key Config@Sub Key Mode@$", .words = subkey_words, .is_fixed = 1},
};
inline constexpr BT_TBL keyconfig_more[] = {TO_CONFIG, Jump({.id = 49, .caption = "Sub Key\nMode", .cmd = {"#73310011"}})};
BANK_SHEET(config_keyconfig, 110, keyconfig_columns, ON_AIR, MORE(keyconfig_more));

inline constexpr SETUPCOLUMN subkey_columns[] = {
    {.head = "Sub Key Mode", .width = 220, .path = SWR "Config@Key Config@Sub Key Mode@$", .words = subkey_words},
    {.head = "M/E Config", .width = 220, .path = SWR "Config@M/E Config@$", .is_fixed = 1, .ask = SETUP_READ},
};
inline constexpr BT_TBL subkey_more[] = {SetupBack("Key\nConfig", "#73310005")};
BANK_SHEET(config_keyconfig_subkeymode, 110, subkey_columns, ON_AIR, MORE(subkey_more));

// The effects board of the switcher.
inline constexpr const char* board_channels[] = {"Ch1", "Ch2", "Ch3", "Ch4", "Ch5", "Ch6", "Ch7", "Ch8"};
inline constexpr SETUPWORD board_users[] = {WORD("Common"), WORD("M/E-1"), WORD("M/E-2"), WORD("M/E-3"), WORD("M/E-4"), WORD("M/E-5"), WORD("P/P"), {}};
inline constexpr SETUPCOLUMN dmeconfig_columns[] = {
    {.head = "Use", .width = 220, .path = SWR "Config@DME Config@Use@$", .words = words_enable},
    {.head = "Assign", .width = 220, .path = SWR "Config@DME Config@Assign@$", .words = board_users},
};
SHEET_OF(config_dmeconfig, std::size(board_channels), board_channels, "Channel", 110, dmeconfig_columns, ON_AIR, MORE(to_config));

inline constexpr SETUPWORD border_qualities[] = {WORD("Normal"), WORD("Fine"), {}};
inline constexpr SETUPCOLUMN cgborder_columns[] = {
    {.head = "CG Border", .width = 220, .path = SWR "Config@CG Border@CG Border@$", .words = words_enable},
    {.head = "Quality", .width = 220, .path = SWR "Config@CG Border@Quality@$", .words = border_qualities},
};
BANK_SHEET(config_cgborder, 110, cgborder_columns, ON_AIR, MORE(to_config));

inline constexpr SETUPWORD kpvw_modes[] = {WORD("Key"), WORD("Key Fill"), WORD("Keyed"), {}};
inline constexpr SETUPWORD kpvw_grounds[] = {WORD("Bkgd A"), WORD("Bkgd B"), WORD("Black"), {}};
inline constexpr SETUPCOLUMN kpvw_columns[] = {
    {.head = "Key Config", .width = 150, .path = SWR "Config@Key Config", .part = 1, .is_fixed = 1},
    {.head = "Mode", .width = 150, .path = SWR "Config@Key PVW@Mode@$", .words = kpvw_modes},
    {.head = "Background", .width = 150, .path = SWR "Config@Key PVW@Bkgd@$", .words = kpvw_grounds},
};
BANK_SHEET(config_kpvw, 100, kpvw_columns, MORE(to_config));

// What the outputs of the banks carry; some switchers have six of each bank.
#define OUTS4(bank) bank " Out1", bank " Out2", bank " Out3", bank " Out4"
#define OUTS6(bank) OUTS4(bank), bank " Out5", bank " Out6"
inline constexpr const char* bank_outs4[] = {OUTS4("M/E-1"), OUTS4("M/E-2"), OUTS4("M/E-3"), OUTS4("M/E-4"), OUTS4("M/E-5"), OUTS4("P/P")};
inline constexpr const char* bank_outs6[] = {OUTS6("M/E-1"), OUTS6("M/E-2"), OUTS6("M/E-3"), OUTS6("M/E-4"), OUTS6("M/E-5"), OUTS6("P/P")};
inline constexpr SETUPWORD out_words[] = {WORD("PGM"), WORD("PVW"), WORD("Clean"), WORD("Key PVW"), WORD("Sub PGM"), WORD("Sub PVW"), WORD("Sub Clean"), WORD("None"), {}};
inline constexpr SETUPCOLUMN out_columns[] = {{.head = "Signal", .width = 275, .path = SWR "Config@Out Config@$", .words = out_words}};
SHEET_OF(config_out, std::size(bank_outs4), bank_outs4, "Output", 275, out_columns, ON_AIR, MORE(to_config));
SHEET_OF(config_out6, std::size(bank_outs6), bank_outs6, "Output", 275, out_columns, ON_AIR, MORE(to_config));
#undef OUTS4
#undef OUTS6

inline constexpr const char* swr_units[] = {"SWR1", "SWR2"};
inline constexpr SETUPCOLUMN swrtiming_columns[] = {
    {.head = "H Phase", .width = 150, .path = SWR "Config@Switcher Timing@H Phase@$", .min = -1100, .max = 1100},
    {.head = "V Phase", .width = 150, .path = SWR "Config@Switcher Timing@V Phase@$", .min = -512, .max = 512},
    {.head = "Auto Timing", .width = 150, .path = SWR "Config@Switcher Timing@Auto Timing@$", .words = words_on},
};
SHEET_OF(config_swrtiming, std::size(swr_units), swr_units, "Switcher", 100, swrtiming_columns, ON_AIR, MORE(to_config));

// The second eye.
inline constexpr SETUPWORD eyes_modes[] = {WORD("2D"), WORD("3D"), {}};
inline constexpr SETUPWORD eyes_outputs[] = {WORD("L"), WORD("R"), WORD("L/R"), {}};
inline constexpr SETUPCOLUMN eyes_columns[] = {
    {.head = "Mode", .width = 220, .path = SWR "Config@3D Config@Mode@$", .words = eyes_modes},
    {.head = "Output", .width = 220, .path = SWR "Config@3D Config@Output@$", .words = eyes_outputs},
};
inline constexpr BT_TBL eyes_more[] = {TO_CONFIG, Jump({.id = 49, .caption = "Input\nLink", .cmd = {"#73310012"}}), Jump({.id = 50, .caption = "FM Output\nLink", .cmd = {"#73310013"}})};
BANK_SHEET(config_3D, 110, eyes_columns, ON_AIR, MORE(eyes_more));

inline constexpr BT_TBL to_eyes[] = {SetupBack("3D\nConfig", "#73310010")};
inline constexpr SETUPCOLUMN inputlink_columns[] = {
    {.head = "R Input", .width = 220, .path = SWR "Config@3D Config@Input Link", .part = 1, .min = 1, .max = 64},
    {.head = "L/R Link", .width = 220, .path = SWR "Config@3D Config@Input Link", .part = 2, .words = words_on},
};
SHEET_OF(config_3dconfig_inputlink, 64, nullptr, "L Input", 110, inputlink_columns, MORE(to_eyes));

inline constexpr const char* fm_outputs[] = {"FM1", "FM2", "FM3", "FM4", "FM5", "FM6", "FM7", "FM8"};
inline constexpr SETUPWORD fm_words[] = {WORD("FM1"), WORD("FM2"), WORD("FM3"), WORD("FM4"), WORD("FM5"), WORD("FM6"), WORD("FM7"), WORD("FM8"), {}};
inline constexpr SETUPCOLUMN fmoutputlink_columns[] = {
    {.head = "R Output", .width = 220, .path = SWR "Config@3D Config@FM Output Link", .part = 1, .words = fm_words},
    {.head = "L/R Link", .width = 220, .path = SWR "Config@3D Config@FM Output Link", .part = 2, .words = words_on},
};
SHEET_OF(config_3dconfig_fmoutputlink, std::size(fm_outputs), fm_outputs, "L Output", 110, fmoutputlink_columns, MORE(to_eyes));
#undef CONFIG
#undef TO_CONFIG

// --- Transition ---

#define TRANSITION(word) SWR_LOCAL("Transition@" word)
inline constexpr BT_TBL to_transition[] = {SetupBack("Transition", "#73340000")};
inline constexpr SETUPWORD keytrans_words[] = {WORD("Common"), {"Independent", "Indep."}, {}};
inline constexpr SETUPCOLUMN transition_columns[] = {
    {.head = "Key Transition", .width = 130, .path = SWR "Transition@Key Transition@$", .words = keytrans_words, .ask = SETUP_READ},
    {.head = "Bus Toggle", .width = 110, .path = SWR "Transition@Bus Toggle@$", .words = words_on},
    {.head = "Split Fader", .width = 110, .path = SWR "Transition@Split Fader@$", .words = words_on},
    {.head = "Default Rate", .width = 110, .path = SWR "Transition@Default Rate@$", .min = 0, .max = 999, .caption = "Rate"},
};
inline constexpr BT_TBL transition_more[] = {Jump({.id = 49, .caption = "Preset\nColor Mix", .cmd = {"#73340001"}}), Jump({.id = 50, .caption = "Transition\nCurve", .cmd = {"#73340002"}})};
BANK_SHEET(transition, 90, transition_columns, ON_AIR, MORE(transition_more));

inline constexpr SETUPWORD preset_strokes[] = {WORD("1 Stroke"), WORD("2 Strokes"), {}};
inline constexpr SETUPWORD preset_patterns[] = {WORD("Mix"), WORD("Wipe"), {}};
inline constexpr SETUPWORD preset_fills[] = {WORD("Matte"), WORD("Color Bkgd 1"), WORD("Color Bkgd 2"), WORD("FM1"), WORD("FM2"), WORD("Black"), {}};
inline constexpr SETUPCOLUMN presetcolormix_columns[] = {
    {.head = "Stroke", .width = 150, .path = SWR "Transition@Preset Color Mix@Stroke@$", .words = preset_strokes},
    {.head = "Pattern", .width = 150, .path = SWR "Transition@Preset Color Mix@Pattern@$", .words = preset_patterns},
    {.head = "Fill", .width = 150, .path = SWR "Transition@Preset Color Mix@Fill@$", .words = preset_fills},
};
BANK_SHEET(transition_presetcolormix, 100, presetcolormix_columns, MORE(to_transition));

inline constexpr SETUPWORD curve_words[] = {WORD("Linear"), WORD("S Curve"), WORD("Curve1"), WORD("Curve2"), WORD("Curve3"), WORD("Curve4"), {}};
inline constexpr SETUPCOLUMN transitioncurve_columns[] = {
    {.head = "Mix", .width = 150, .path = SWR "Transition@Transition Curve@Mix@$", .words = curve_words, .group = "Curve"},
    {.head = "Wipe", .width = 150, .path = SWR "Transition@Transition Curve@Wipe@$", .words = curve_words, .group = "Curve"},
    {.head = "DME Wipe", .width = 150, .path = SWR "Transition@Transition Curve@DME Wipe@$", .words = curve_words, .group = "Curve"},
};
inline constexpr BT_TBL transitioncurve_more[] = {to_transition[0], Jump({.id = 49, .caption = "Fader\nCurve", .cmd = {"#73340003"}})};
BANK_SHEET(transition_transitioncurve, 100, transitioncurve_columns, MORE(transitioncurve_more));

// What the transition shows at a place of the fader, both in per cent.
#define CURVE_POINT(n, at, knob) {.id = n, .caption = at, .type = NB_INT, .min = 0, .max = 100, .cmd = "Panel@Common@Knob" knob, .scale = 4}
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
    SetupBack("Transition\nCurve", "#73340002"),
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

// --- Key/Wipe/FM/CCR ---

inline constexpr SETUPWORD aspect_words[] = {WORD("16:9"), WORD("4:3"), {}};
inline constexpr SETUPCOLUMN keywipe_columns[] = {
    {.head = "Wipe Aspect", .width = 220, .path = SWR "Key/Wipe/FM/CCR@Wipe Aspect@$", .words = aspect_words},
    {.head = "Key Delay", .width = 220, .path = SWR "Key/Wipe/FM/CCR@Key Delay@$", .min = -8, .max = 8},
};
inline constexpr BT_TBL keywipe_more[] = {
    // Followed all the time: the page must not end that.
    Toggle({.id = 37, .caption = "FM Auto\nStore", .cmd = {SWR "Key/Wipe@FM Auto Store#*"}, .no_add = 1}),
    Toggle({.id = 38, .caption = "CCR\nInternal\nSignal", .cmd = {SWR "Key/Wipe/FM/CCR@CCR Intrnl Signl Enbl#*"}, .no_add = 1}),
    Jump(  {.id = 49, .caption = "CCR\nV Proc", .cmd = {"#73350001"}}),
    Jump(  {.id = 50, .caption = "DSK\nAuto Drop", .cmd = {"#73350002"}}),
    Jump(  {.id = 51, .caption = "Show Key", .cmd = {"#73350003"}}),
};
BANK_SHEET(keywipe, 110, keywipe_columns, ON_AIR, .title = "Key Delay", MORE(keywipe_more));

inline constexpr BT_TBL to_key[] = {SetupBack("Key/Wipe\nFM/CCR", "#73350000")};
inline constexpr const char* correctors[] = {"CCR1", "CCR2", "CCR3", "CCR4"};
inline constexpr SETUPCOLUMN ccrvproc_columns[] = {
    {.head = "V Proc", .width = 95, .path = SWR "Key/Wipe/FM/CCR@CCR V Proc@V Proc@$", .words = words_on},
    {.head = "Luminance", .width = 95, .path = SWR "Key/Wipe/FM/CCR@CCR V Proc@Luminance@$", .min = 0, .max = 200},
    {.head = "Chroma", .width = 95, .path = SWR "Key/Wipe/FM/CCR@CCR V Proc@Chroma@$", .min = 0, .max = 200},
    {.head = "Hue", .width = 95, .path = SWR "Key/Wipe/FM/CCR@CCR V Proc@Hue@$", .min = -180, .max = 180},
    {.head = "Black", .width = 95, .path = SWR "Key/Wipe/FM/CCR@CCR V Proc@Black@$", .min = -50, .max = 50},
};
SHEET_OF(keywipe_ccrvproc, std::size(correctors), correctors, "CCR", 75, ccrvproc_columns, ON_AIR, MORE(to_key));

inline constexpr const char* downstream_keys[] = {"DSK1", "DSK2", "DSK3", "DSK4", "DSK5", "DSK6", "DSK7", "DSK8"};
inline constexpr SETUPWORD drop_modes[] = {WORD("Cut"), WORD("Auto Trans"), {}};
inline constexpr SETUPCOLUMN dskautodrop_columns[] = {
    {.head = "Auto Drop", .width = 220, .path = SWR "Key/Wipe/FM/CCR@DSK Auto Drop@Auto Drop@$", .words = words_on},
    {.head = "Mode", .width = 220, .path = SWR "Key/Wipe/FM/CCR@DSK Auto Drop@Mode@$", .words = drop_modes},
};
SHEET_OF(keywipefm_dskautodrop, std::size(downstream_keys), downstream_keys, "DSK", 110, dskautodrop_columns, MORE(to_key));

inline constexpr SETUPWORD show_outputs[] = {WORD("PVW"), WORD("Key PVW"), WORD("Aux 1"), WORD("Aux 2"), WORD("Aux 3"), WORD("Aux 4"), WORD("Mon 1"), WORD("Mon 2"), {}};
inline constexpr SETUPWORD show_modes[] = {WORD("Hold"), WORD("Latch"), {}};
inline constexpr SETUPCOLUMN showkey_columns[] = {
    {.head = "Output", .width = 220, .path = SWR "Key/Wipe/FM/CCR@Show Key@Output@$", .words = show_outputs},
    {.head = "Mode", .width = 220, .path = SWR "Key/Wipe/FM/CCR@Show Key@Mode@$", .words = show_modes},
};
BANK_SHEET(keywipefm_showkey, 110, showkey_columns, MORE(to_key));

// --- Link ---

#define LINK(word) {SETUP_LINK_LOCAL word}
inline constexpr const char* link_kinds[] = {"Key Link", "M/E Link", "Internal Bus Link", "GPI Link"};
inline constexpr SETUPCOLUMN link_columns[] = {{.head = "Links", .width = 275, .path = SETUP_LINK_PATH "Enable@$", .words = words_enable}};
inline constexpr BT_TBL link_more[] = {
    Jump({.id = 49, .caption = "Key Link", .cmd = {"#73360001"}}),
    Jump({.id = 50, .caption = "M/E Link", .cmd = {"#73360002"}}),
    Jump({.id = 51, .caption = "Internal\nBus Link", .cmd = {"#73360003"}}),
    Jump({.id = 52, .caption = "GPI Link", .cmd = {"#73360006"}}),
};
SHEET_OF(link, std::size(link_kinds), link_kinds, "Kind", 275, link_columns, ON_AIR, MORE(link_more));

#define TO_LINK SetupBack("Link", "#73360000")
#define DELETE_LINK Action({.id = BTN_LINK_DELETE, .caption = "Delete", .cmd = LINK("Delete")})
inline constexpr BT_TBL plain_link_more[] = {DELETE_LINK, TO_LINK};
#define LINKS(offer_) .offer = offer_, .is_sound = SetupLink_IsSound, .changed = SetupLink_Changed

inline constexpr SETUPCOLUMN keylink_columns[] = {
    {.head = "Master", .width = 150, .path = SETUP_LINK_PATH "Key Link", .part = 1, .words = link_none, .is_asked = 1},
    {.head = "Linked", .width = 150, .path = SETUP_LINK_PATH "Key Link", .part = 2, .words = link_none, .is_asked = 1},
    {.head = "Link", .width = 150, .path = SETUP_LINK_PATH "Key Link", .part = 3, .words = words_on},
};
SHEET_OF(link_keylink, 24, nullptr, "Link No", 100, keylink_columns, ON_AIR, MORE(plain_link_more), LINKS(SetupLink_Keys));

inline constexpr SETUPWORD melink_modes[] = {WORD("Off"), WORD("Transition"), WORD("Xpt"), WORD("All"), {}};
inline constexpr SETUPCOLUMN melink_columns[] = {
    {.head = "Master", .width = 150, .path = SETUP_LINK_PATH "M/E Link", .part = 1, .words = link_none, .is_asked = 1},
    {.head = "Linked", .width = 150, .path = SETUP_LINK_PATH "M/E Link", .part = 2, .words = link_none, .is_asked = 1},
    {.head = "Mode", .width = 150, .path = SETUP_LINK_PATH "M/E Link", .part = 3, .words = melink_modes},
};
SHEET_OF(link_melink, 8, nullptr, "Link No", 100, melink_columns, ON_AIR, MORE(plain_link_more), LINKS(SetupLink_Banks));

// Buses are chosen on a page of their own.
#define CHOOSE_BUS(place, caption_) Jump({.id = place, .caption = caption_, .cmd = LINK(caption_)})
inline constexpr SETUPCOLUMN ibuslink_columns[] = {
    {.head = "Master", .width = 150, .path = SETUP_LINK_PATH "Internal Bus Link@Link", .part = 1},
    {.head = "Linked", .width = 150, .path = SETUP_LINK_PATH "Internal Bus Link@Link", .part = 2},
    {.head = "Table", .width = 75, .path = SETUP_LINK_PATH "Internal Bus Link@Link", .part = 3, .min = 1, .max = LINK_TABLES},
    {.head = "Link", .width = 75, .path = SETUP_LINK_PATH "Internal Bus Link@Link", .part = 4, .words = words_on},
};
inline constexpr BT_TBL ibuslink_more[] = {CHOOSE_BUS(35, "Master"), CHOOSE_BUS(36, "Linked"), CHOOSE_BUS(37, "Table"), DELETE_LINK, TO_LINK};
SHEET_OF(link_ibuslink, 32, nullptr, "Link No", 100, ibuslink_columns, ON_AIR, MORE(ibuslink_more), LINKS(nullptr));

inline constexpr BT_TBL bt_engsetup_switcher_link_ibuslink_bussel[] = {
    Action({.id = 33, .caption = "Set\nMaster", .cmd = LINK("Internal Bus Link@Bus Sel@Set")}),
    Action({.id = 34, .caption = "Set\nNone", .cmd = LINK("Internal Bus Link@Bus Sel@None")}),
    SetupBack("Internal\nBus Link", "#73360003"),
    Jump(  {.id = 49, .caption = "GPI Link", .cmd = {"#73360006"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_link_ibuslink_bussel));
inline constexpr LS_TBL ls_engsetup_switcher_link_ibuslink_bussel[] = {
    SwrList({.hn = 2, .vn = 11, .head = {"No", "Bus"}, .width = {110, 440}, .group = {1, 999}, .block = 1}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_link_ibuslink_bussel));

inline constexpr NB_TBL nb_engsetup_switcher_tablesel[] = {
    {.id = 1, .caption = "Source", .type = NB_INT, .min = 1, .max = LINK_SOURCES, .cmd = "Panel@Common@Knob0", .scale = 4},
    NB_END,
};
static_assert(BoxesAreSound(nb_engsetup_switcher_tablesel));
inline constexpr BT_TBL bt_engsetup_switcher_link_ibuslink_tablesel[] = {
    Knobs( {.id = 33, .caption = "Linked\nSource", .cmd = LINK("Internal Bus Link@Table Sel@Source"), .nb = nb_engsetup_switcher_tablesel}),
    Action({.id = 34, .caption = "Straight", .cmd = LINK("Internal Bus Link@Table Sel@Straight")}),
    Action({.id = 35, .caption = "Set to\nLink", .cmd = LINK("Internal Bus Link@Table Sel@Set")}),
    SetupBack("Internal\nBus Link", "#73360003"),
    SWR_CLEAR_EXECUTE,
    BT_END,
};
static_assert(ButtonsAreSound(bt_engsetup_switcher_link_ibuslink_tablesel));
inline constexpr LS_TBL ls_engsetup_switcher_link_ibuslink_tablesel[] = {
    SwrList({.hn = 9, .vn = 11, .head = {"Source", "Table1", "Table2", "Table3", "Table4", "Table5", "Table6", "Table7", "Table8"},
             .width = {78, 59, 59, 59, 59, 59, 59, 59, 59}, .group = {1, 1, 1, 1, 1, 1, 1, 1, 1, 999}, .split = 1, .block = 1}),
    LS_END,
};
static_assert(ListsAreSound(ls_engsetup_switcher_link_ibuslink_tablesel));

// A source on a bus fires a contact, when it has been there for the delay.
#define GPI_LINK(part_) .path = SETUP_LINK_PATH "GPI Link", .part = part_
inline constexpr SETUPCOLUMN gpilink_columns[] = {
    {.head = "Bus", .width = 130, GPI_LINK(1)},
    {.head = "Source", .width = 80, GPI_LINK(2), .min = 1, .max = LINK_SOURCES},
    {.head = "GPI Out", .width = 70, GPI_LINK(3), .min = 1, .max = 8},
    {.head = "Link", .width = 60, GPI_LINK(4), .words = words_on},
    {.head = "Delay", .width = 75, GPI_LINK(5), .is_fixed = 1},
    {.head = "Width", .width = 75, GPI_LINK(6), .is_fixed = 1},
};
inline constexpr BT_TBL gpilink_more[] = {Jump({.id = 35, .caption = "Bus", .cmd = LINK("Master")}), TO_LINK, Jump({.id = 49, .caption = "Adjust", .cmd = {"#73360007"}})};
SHEET_OF(link_gpilink, 16, nullptr, "No", 60, gpilink_columns, MORE(gpilink_more));

inline constexpr SETUPCOLUMN gpilink_adjust_columns[] = {
    {.head = "Bus", .width = 130, GPI_LINK(1), .is_fixed = 1},
    {.head = "Source", .width = 80, GPI_LINK(2), .is_fixed = 1},
    {.head = "GPI Out", .width = 70, GPI_LINK(3), .is_fixed = 1},
    {.head = "Link", .width = 60, GPI_LINK(4), .words = words_on, .is_fixed = 1},
    {.head = "Delay", .width = 75, GPI_LINK(5), .min = 0, .max = 255},
    {.head = "Width", .width = 75, GPI_LINK(6), .min = 1, .max = 255},
};
#undef GPI_LINK
inline constexpr BT_TBL gpilink_adjust_more[] = {SetupBack("GPI Link", "#73360006")};
SHEET_OF(link_gpilink_adjust, 16, nullptr, "No", 60, gpilink_adjust_columns, MORE(gpilink_adjust_more));
#undef LINK
#undef LINKS
#undef TO_LINK
#undef DELETE_LINK
#undef CHOOSE_BUS

#define TABS(n) Base(base_main), LeftTabs(vf_setup, 3), BottomTabs(hf_setup_switcher, n)
#define TREE(...) {"Engineering Setup", "Switcher", __VA_ARGS__}
#define OBJECTS(n, name) {TABS(n), Buttons(bt_engsetup_switcher_##name), Lists(ls_engsetup_switcher_##name), Code(pc_engsetup_switcher_##name)}
#define OBJECTS_KNOBS(n, name) {TABS(n), Buttons(bt_engsetup_switcher_##name), Boxes(NB_Non), Lists(ls_engsetup_switcher_##name), Code(pc_engsetup_switcher_##name)}
#define SHEET(n, name) {TABS(n), SHEET_OBJECTS(engsetup_switcher_##name), Code(SetupSheet_Code<engsetup_switcher_##name>)}
#define LINK_SHEET(name) {TABS(6), SHEET_OBJECTS(engsetup_switcher_##name), Code(SetupLink_Code<engsetup_switcher_##name>)}
inline constexpr PAGE setup_switcher_pages[] = {
    {.id = 0x73310000, .tree = TREE("Config"), .obj = OBJECTS(1, config)},
    {.id = 0x73310001, .tree = TREE("Config", "User1-8 Config"), .obj = OBJECTS(1, config_user)},
    {.id = 0x73310102, .tree = TREE("Config", "PGM Config"), .obj = OBJECTS(1, config_pgm)},
    {.id = 0x73310003, .tree = TREE("Config", "Logical M/E"), .obj = SHEET(1, config_logicalme)},
    {.id = 0x73310004, .tree = TREE("Config", "Side Flags"), .obj = SHEET(1, config_sideflags)},
    {.id = 0x73310005, .tree = TREE("Config", "Key Config"), .obj = SHEET(1, config_keyconfig)},
    {.id = 0x73310006, .tree = TREE("Config", "Out Config"), .obj = SHEET(1, config_out)},
    {.id = 0x73310106, .tree = TREE("Config", "Out Config"), .obj = SHEET(1, config_out6)},
    {.id = 0x73310007, .tree = TREE("Config", "Switcher Timing"), .obj = SHEET(1, config_swrtiming)},
    {.id = 0x73310008, .tree = TREE("Config", "CG Border"), .obj = SHEET(1, config_cgborder)},
    {.id = 0x73310009, .tree = TREE("Config", "Key PVW"), .obj = SHEET(1, config_kpvw)},
    {.id = 0x73310010, .tree = TREE("Config", "3D Config"), .obj = SHEET(1, config_3D)},
    {.id = 0x73310011, .tree = TREE("Config", "Key Config", "Sub Key Mode"), .obj = SHEET(1, config_keyconfig_subkeymode)},
    {.id = 0x73310012, .tree = TREE("Config", "3D Config", "Input Link"), .obj = SHEET(1, config_3dconfig_inputlink)},
    {.id = 0x73310013, .tree = TREE("Config", "3D Config", "FM Output Link"), .obj = SHEET(1, config_3dconfig_fmoutputlink)},
    {.id = 0x73310015, .tree = TREE("Config", "DME Config"), .obj = SHEET(1, config_dmeconfig)},
    {.id = 0x73340000, .tree = TREE("Transition"), .obj = SHEET(4, transition)},
    {.id = 0x73340001, .tree = TREE("Transition", "Preset Color Mix"), .obj = SHEET(4, transition_presetcolormix)},
    {.id = 0x73340002, .tree = TREE("Transition", "Transition Curve"), .obj = SHEET(4, transition_transitioncurve)},
    {.id = 0x73340003, .tree = TREE("Transition", "Transition Curve", "Fader Curve"), .obj = OBJECTS_KNOBS(4, transition_transitioncurve_fadercurve), .knobassign = BTN_CURVE_POINTS},
    {.id = 0x73350000, .tree = TREE("Key/Wipe/FM/CCR"), .obj = SHEET(5, keywipe)},
    {.id = 0x73350001, .tree = TREE("Key/Wipe/FM/CCR", "CCR V Proc"), .obj = SHEET(5, keywipe_ccrvproc)},
    {.id = 0x73350002, .tree = TREE("Key/Wipe/FM/CCR", "DSK Auto Drop"), .obj = SHEET(5, keywipefm_dskautodrop)},
    {.id = 0x73350003, .tree = TREE("Key/Wipe/FM/CCR", "Show Key"), .obj = SHEET(5, keywipefm_showkey)},
    {.id = 0x73360000, .tree = TREE("Link"), .obj = SHEET(6, link)},
    {.id = 0x73360001, .tree = TREE("Link", "Key Link"), .obj = LINK_SHEET(link_keylink)},
    {.id = 0x73360002, .tree = TREE("Link", "M/E Link"), .obj = LINK_SHEET(link_melink)},
    {.id = 0x73360003, .tree = TREE("Link", "Internal Bus Link"), .obj = LINK_SHEET(link_ibuslink)},
    {.id = 0x73360004, .tree = TREE("Link", "Internal Bus Link", "Table Select"), .obj = OBJECTS_KNOBS(6, link_ibuslink_tablesel), .knobassign = 33},
    {.id = 0x73360005, .tree = TREE("Link", "Internal Bus Link", "Bus Select"), .obj = OBJECTS(6, link_ibuslink_bussel)},
    {.id = 0x73360006, .tree = TREE("Link", "GPI Link"), .obj = LINK_SHEET(link_gpilink)},
    {.id = 0x73360007, .tree = TREE("Link", "GPI Link", "Adjust"), .obj = SHEET(6, link_gpilink_adjust)},
};
#undef TABS
#undef TREE
#undef OBJECTS
#undef OBJECTS_KNOBS
#undef SHEET
#undef LINK_SHEET
