// misc: what belongs to no bank and no source: the ports, the panel, the outputs, preview, side flags, the rates of all
// banks, what the operator likes.
#pragma once
#include "nb_global.h"
#include "pc_misc.h"
#include "pulldowns.h"
#include "rows.h"
#include "st_status.h"

inline constexpr HF_TBL hf_misc[] = {
    {.id = 1, .caption = "Port",          .page = 0x32110000},
    {.id = 2, .caption = "Panel",         .page = 0x32120000},
    {.id = 3, .caption = "Output",        .page = 0x32130000},
    {.id = 4, .caption = "Preview",       .page = 0x32140000,
     .statcmd = {"Misc@Preview@K-PVW Config#true", "Misc@Preview@Wipe Preview#true", "Misc@Preview@Safe Area#true"}},
    {.id = 5, .caption = "Side Flags",    .page = 0x32150000},
    {.id = 6, .caption = "Rate",          .page = 0x32160000},
    {.id = 7, .caption = "User",          .page = 0x32170000},
    HF_END,
};

// --- Ports: what may act on the switcher from outside ---

#define PORT(n, text, name) Toggle({.id = n, .caption = text, .group = "Enable Port", .cmd = {"~@Enable Port@" name "#*"}})
#define GPI(n, text, name)  Toggle({.id = n, .caption = text, .group = "Enable GPI", .cmd = {"~@Enable GPI@" name "#*"}})
#define BT_MISC_PORTS \
    PORT(17, "Editor 1",       "Editor 1"), PORT(18, "Editor 2",        "Editor 2"), \
    PORT(19, "Aux\nPanel",     "Aux Panel"), PORT(20, "Router",         "Router"), \
    PORT(21, "Device\nControl", "Device"),  PORT(22, "Tally",           "Tally"), \
    GPI (33, "Panel\nGPI",     "Panel"),    GPI (34, "Switcher\nGPI",   "Switcher"), \
    GPI (35, "DCU\nGPI",       "DCU"),      GPI (36, "P-Bus",           "P-Bus"), \
    Action({.id = 49, .caption = "Enable\nAll",  .group = "Ports", .cmd = {"~@Enable All#*"}}), \
    Action({.id = 50, .caption = "Disable\nAll", .group = "Ports", .cmd = {"~@Disable All#*"}})
inline constexpr BT_TBL bt_misc_port[] = {BT_MISC_PORTS, GPI(37, "DME1\nGPI", "DME1"), GPI(38, "DME2\nGPI", "DME2"), BT_END};
// The two units carry one picture: the second acts with the first.
inline constexpr BT_TBL bt_misc_port_dual[] = {BT_MISC_PORTS, GPI(37, "DME1\nGPI", "DME1"), BT_END};
static_assert(ButtonsAreSound(bt_misc_port) && ButtonsAreSound(bt_misc_port_dual));
#undef BT_MISC_PORTS
#undef GPI
#undef PORT

// --- The panel ---

inline constexpr auto nb_misc_brightness = Column(
    Percent(1, "Keys",    "~@Brightness@Keys"),
    Percent(2, "Names",   "~@Brightness@Names"),
    Percent(3, "Display", "~@Brightness@Display"));
inline constexpr auto nb_misc_dim = Column(
    Count  (1, "After\nminutes", "~@Auto Dim@Minutes", 1, 120),
    Percent(2, "Level",          "~@Auto Dim@Level"));
inline constexpr BT_TBL bt_misc_panel[] = {
    Knobs ({.id = 17, .caption = "Brightness",  .group = "Brightness", .nb = nb_misc_brightness.row}),
    Toggle({.id = 18, .caption = "Auto Dim",    .group = "Brightness", .cmd = {"~@Auto Dim#*"}, .nb = nb_misc_dim.row}),
    Toggle({.id = 19, .caption = "Night\nMode", .group = "Brightness", .cmd = {"~@Night Mode#*"}}),
    Toggle({.id = 21, .caption = "Key Click",   .group = "Sound", .cmd = {"~@Key Click#*"}}),
    Toggle({.id = 22, .caption = "Alarm",       .group = "Sound", .cmd = {"~@Alarm#*"}}),
    Toggle({.id = 33, .caption = "Source\nNames", .group = "Names", .cmd = {"~@Source Names#*"}}),
    Toggle({.id = 34, .caption = "Tally\nColors", .group = "Names", .cmd = {"~@Tally Colors#*"}}),
    Toggle({.id = 36, .caption = "Fader\nLock", .group = "Lock", .cmd = {"~@Fader Lock#*"}}),
    Toggle({.id = 37, .caption = "Panel\nLock", .group = "Lock", .cmd = {"~@Panel Lock#*"}}),
    Action({.id = 49, .caption = "Lamp\nTest",  .group = "Test", .cmd = {"~@Lamp Test#*"}}),
    Action({.id = 50, .caption = "All\nClear",  .group = "Test", .cmd = {"~@All Clear#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_misc_panel));

// --- The outputs ---

inline constexpr BT_TBL bt_misc_output[] = {
    Knobs ({.id = 17, .caption = "Output\nPhase", .group = "Timing", .nb = SpecialKnob(129)}),
    Toggle({.id = 18, .caption = "Frame\nDelay", .group = "Timing", .cmd = {"~@Frame Delay#*", "~@Delay Unit@Lines#"}, .nb = SpecialKnob(130)}),
    Toggle({.id = 19, .caption = "Lines",        .group = "Timing", .cmd = {"~@Delay Unit@Lines#*", "~@Frame Delay#false"}}),
    Toggle({.id = 33, .caption = "White\nClip",  .group = "Clip", .cmd = {"~@Clip@White#*"}}),
    Toggle({.id = 34, .caption = "Black\nClip",  .group = "Clip", .cmd = {"~@Clip@Black#*"}}),
    Toggle({.id = 35, .caption = "Chroma\nClip", .group = "Clip", .cmd = {"~@Clip@Chroma#*"}}),
    Radio ({.id = 37, .caption = "Pass",         .group = "Ancillary", .cmd = {"~@Ancillary#Pass"}}),
    Radio ({.id = 38, .caption = "Mask",         .group = "Ancillary", .cmd = {"~@Ancillary#Mask"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_misc_output));

// --- Preview ---

inline constexpr BT_TBL bt_misc_preview[] = {
    Toggle({.id = 17, .caption = "K-PVW\nConfig", .group = "Preview", .cmd = {"~@K-PVW Config#*"}}),
    Toggle({.id = 18, .caption = "Wipe\nPreview", .group = "Preview", .cmd = {"~@Wipe Preview#*"}}),
    Toggle({.id = 20, .caption = "Key\nTrans",    .group = "Independent", .cmd = {"~@Key Trans#*"}}),
    Toggle({.id = 21, .caption = "Bkgd\nTrans",   .group = "Independent", .cmd = {"~@Bkgd Trans#*"}}),
    Toggle({.id = 33, .caption = "Safe Area",     .group = "Marker", .cmd = {"~@Safe Area#*"}, .nb = SpecialKnob(128)}),
    Toggle({.id = 34, .caption = "Center\nCross", .group = "Marker", .cmd = {"~@Center Cross#*"}}),
    Toggle({.id = 35, .caption = "4:3\nMarker",   .group = "Marker", .cmd = {"~@4:3 Marker#*"}}),
    Toggle({.id = 49, .caption = "Source\nName",  .group = "Caption", .cmd = {"~@Source Name#*"}}),
    Toggle({.id = 50, .caption = "Time\nCode",    .group = "Caption", .cmd = {"~@Time Code#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_misc_preview));

// --- Side flags: what stands beside a 4:3 picture on a wide output ---

inline constexpr auto nb_misc_flag_color = Column(NB_COLOR("~@Color"));
#define IF_MATTE "~@Fill#!Matte"
inline constexpr BT_TBL bt_misc_side_flags[] = {
    Radio ({.id = 17, .caption = "4:3",         .group = "Side Flags", .cmd = {"~@Side Flags#4:3"}}),
    Radio ({.id = 18, .caption = "16:9",        .group = "Side Flags", .cmd = {"~@Side Flags#16:9"}}),
    Radio ({.id = 19, .caption = "Auto",        .group = "Side Flags", .cmd = {"~@Side Flags#Auto"}}),
    Tab   ({.id = 20, .caption = "Select",      .group = "Side Flags", .cmd = {"LOCAL@Side Flags"}}),
    Radio ({.id = 33, .caption = "Black",       .group = "Fill", .cmd = {"~@Fill#Black"}}),
    Radio ({.id = 34, .caption = "Matte",       .group = "Fill", .cmd = {"~@Fill#Matte"}}),
    Radio ({.id = 35, .caption = "Utility 1",   .group = "Fill", .cmd = {"~@Fill#Utility 1"}}),
    Knobs ({.id = 37, .caption = "Color",       .group = "Adjust", .cmd = {"", IF_MATTE}, .nb = nb_misc_flag_color.row}),
    Toggle({.id = 49, .caption = "Key Output",  .group = "Where", .cmd = {"~@Key Output#*"}}),
    Toggle({.id = 50, .caption = "Preview",     .group = "Where", .cmd = {"~@Preview#*"}}),
    Toggle({.id = 51, .caption = "Aux Bus",     .group = "Where", .cmd = {"~@Aux Bus#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_misc_side_flags));
#undef IF_MATTE

// --- The rates of all banks and their keys ---

#define KEY_ON_RATE(slot, bank, key) Frames(slot, key " ON\nframes", bank "@" key "@Transition@ON Transition Rate")
#define KEY_RATES(bank, key) \
    KEY_ON_RATE(1, bank, key "1"), KEY_ON_RATE(2, bank, key "2"), KEY_ON_RATE(3, bank, key "3"), KEY_ON_RATE(4, bank, key "4")
#define FURTHER_KEY_RATES(bank, key) \
    KEY_ON_RATE(17, bank, key "5"), KEY_ON_RATE(18, bank, key "6"), KEY_ON_RATE(19, bank, key "7"), KEY_ON_RATE(20, bank, key "8")
#define BANK_RATES(name, bank, key) \
    inline constexpr auto nb_misc_rate_##name = Column(Frames(1, "Trans Rate\nframes", bank "@Misc@Transition@Transition Rate")); \
    inline constexpr auto nb_misc_key_rate_4_##name = Column(KEY_RATES(bank, key)); \
    inline constexpr auto nb_misc_key_rate_8_##name = Column(KEY_RATES(bank, key), FURTHER_KEY_RATES(bank, key))
BANK_RATES(me1, "M/E-1", "Key");
BANK_RATES(me2, "M/E-2", "Key");
BANK_RATES(me3, "M/E-3", "Key");
BANK_RATES(me4, "M/E-4", "Key");
BANK_RATES(me5, "M/E-5", "Key");
BANK_RATES(pp, "PGM/PST", "DSK");
#undef BANK_RATES
#undef FURTHER_KEY_RATES
#undef KEY_RATES
#undef KEY_ON_RATE
inline constexpr auto nb_misc_ftb_rate = Column(
    Frames(1, "ON Rate\nframes",  "PGM/PST@Misc@Transition@FTB@ON Rate"),
    Frames(2, "OFF Rate\nframes", "PGM/PST@Misc@Transition@FTB@OFF Rate"));

// The place of a key in its line is the bank's in me_bank; the page code takes the keys that a bank lacks from its boxes.
#define BANK_RATE_KEYS(n, text, name) \
    Knobs({.id = BTN_RATE_BANK + (n), .caption = text, .group = "Transition Rate", .nb = nb_misc_rate_##name.row}), \
    Knobs({.id = BTN_RATE_KEYS + (n), .caption = text, .group = "Key Rate", .nb = nb_misc_key_rate_8_##name.row})
inline constexpr BT_TBL bt_misc_rate[] = {
    BANK_RATE_KEYS(0, "M/E-1", me1), BANK_RATE_KEYS(1, "M/E-2", me2), BANK_RATE_KEYS(2, "M/E-3", me3),
    BANK_RATE_KEYS(3, "M/E-4", me4), BANK_RATE_KEYS(4, "M/E-5", me5), BANK_RATE_KEYS(5, "PGM/PST", pp),
    Knobs({.id = 49, .caption = "Rate",         .group = "FTB", .nb = nb_misc_ftb_rate.row}),
    Jump ({.id = 51, .caption = "Transition",   .group = "PGM/PST", .cmd = {"#14710000"}}),
    Jump ({.id = 52, .caption = "FTB",          .group = "PGM/PST", .cmd = {"#14710002"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_misc_rate));
#undef BANK_RATE_KEYS
// In the order of me_bank.
inline constexpr const NB_TBL* misc_key_rates_4[] = {
    nb_misc_key_rate_4_me1.row, nb_misc_key_rate_4_me2.row, nb_misc_key_rate_4_me3.row,
    nb_misc_key_rate_4_me4.row, nb_misc_key_rate_4_me5.row, nb_misc_key_rate_4_pp.row,
};

// --- What the operator likes ---

inline constexpr auto nb_misc_knob_speed = Column(Percent(1, "Speed", "~@Knob Speed", 200));
#define USER(n, text) Radio({.id = 16 + (n), .caption = "User " text, .group = "User", .cmd = {"~@User#" text}})
inline constexpr BT_TBL bt_misc_user[] = {
    USER(1, "1"), USER(2, "2"), USER(3, "3"), USER(4, "4"), USER(5, "5"), USER(6, "6"),
    Knobs ({.id = 33, .caption = "Knob\nSpeed",  .group = "Knobs", .nb = nb_misc_knob_speed.row}),
    Toggle({.id = 34, .caption = "Knob\nFine",   .group = "Knobs", .cmd = {"~@Knob Fine#*"}}),
    Toggle({.id = 36, .caption = "Follow\nPanel", .group = "Menu", .cmd = {"~@Follow Panel#*"}}),
    Toggle({.id = 37, .caption = "Touch\nClick", .group = "Menu", .cmd = {"~@Touch Click#*"}}),
    Action({.id = 49, .caption = "Store",        .group = "Setting", .cmd = {"~@Store#*"}}),
    Action({.id = 50, .caption = "Recall",       .group = "Setting", .cmd = {"~@Recall#*"}}),
    Jump  ({.id = 52, .caption = "Favorites",    .group = "Own Pages", .cmd = {"#00220000"}}),
    Jump  ({.id = 53, .caption = "Menu\nMacro",  .group = "Own Pages", .cmd = {"#54310000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_misc_user));
#undef USER

// --- What the knobs have set, over the keys. A cell without a switch of its own is named after its levels ---

#define MISC_PANEL "Misc@Panel@"
#define MISC_OUTPUT "Misc@Output@"
inline constexpr ST_TBL st_misc_panel[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_source_matte,
                  .cmd = {MISC_PANEL "Night Mode", MISC_PANEL "Brightness@Keys", MISC_PANEL "Brightness@Names", MISC_PANEL "Brightness@Display"}}),
    CellAt(1, 0, {.id = 2, .draw_func = st_drw_source_levels,
                  .cmd = {MISC_PANEL "Auto Dim", MISC_PANEL "Auto Dim@Minutes", MISC_PANEL "Auto Dim@Level"}}),
    ST_END,
};
inline constexpr ST_TBL st_misc_output[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_source_matte,
                  .cmd = {MISC_OUTPUT "Ancillary", MISC_OUTPUT "Output Phase@H", MISC_OUTPUT "Output Phase@V"}}),
    CellAt(1, 0, {.id = 2, .draw_func = st_drw_source_levels,
                  .cmd = {MISC_OUTPUT "Frame Delay", MISC_OUTPUT "Frame Delay@Frames", MISC_OUTPUT "Frame Delay@Lines"}}),
    ST_END,
};
inline constexpr ST_TBL st_misc_preview[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_source_levels,
                  .cmd = {"Misc@Preview@Safe Area", "Misc@Preview@Safe Area@H", "Misc@Preview@Safe Area@V"}}),
    ST_END,
};
inline constexpr ST_TBL st_misc_side_flags[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_source_matte,
                  .cmd = {"Misc@Side Flags@Fill", "Misc@Side Flags@Color@Luminance", "Misc@Side Flags@Color@Saturation", "Misc@Side Flags@Color@Hue"}}),
    ST_END,
};
static_assert(CellsAreSound(st_misc_panel) && CellsAreSound(st_misc_output) && CellsAreSound(st_misc_preview) && CellsAreSound(st_misc_side_flags));
#undef MISC_OUTPUT
#undef MISC_PANEL

// --- Pages ---

inline constexpr BT_TBL bt_misc_top[] = {
    Jump({.id = 17, .caption = "Port",       .group = "System", .cmd = {"#32110000"}}),
    Jump({.id = 18, .caption = "Panel",      .group = "System", .cmd = {"#32120000"}}),
    Jump({.id = 19, .caption = "Output",     .group = "System", .cmd = {"#32130000"}}),
    Jump({.id = 33, .caption = "Preview",    .group = "Operation", .cmd = {"#32140000"}}),
    Jump({.id = 34, .caption = "Side Flags", .group = "Operation", .cmd = {"#32150000"}}),
    Jump({.id = 35, .caption = "Rate",       .group = "Operation", .cmd = {"#32160000"}}),
    Jump({.id = 36, .caption = "User",       .group = "Operation", .cmd = {"#32170000"}}),
    Jump({.id = 6,  .caption = "Top\nMenu",  .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_misc_top));

constexpr PAGE MiscTab(uint32_t id, const char* word, const BT_TBL* keys, const ST_TBL* cells = nullptr)
{
    PAGE page = {.id = id, .tree = {"Misc", word},
                 .obj = {Base(base_main), BottomTabs(hf_misc, id >> 16 & 0xF), Buttons(keys), Boxes(NB_Non)}};
    if (cells)
        page.obj[4] = Cells(cells);
    return page;
}
inline constexpr PAGE misc_pages[] = {
    {.id = 0x32000000, .tree = {"Misc"}, .obj = {Base(base_main), Buttons(bt_misc_top), Code(pc_misc_top)}},
    MiscTab(0x32110000, "Port", bt_misc_port),
    MiscTab(0x32110100, "Port", bt_misc_port_dual),
    MiscTab(0x32120000, "Panel", bt_misc_panel, st_misc_panel),
    MiscTab(0x32130000, "Output", bt_misc_output, st_misc_output),
    MiscTab(0x32140000, "Preview", bt_misc_preview, st_misc_preview),
    {.id = 0x32150000, .tree = {"Misc", "Side Flags"},
     .obj = {Base(base_main), BottomTabs(hf_misc, 5), Buttons(bt_misc_side_flags), Boxes(NB_Non), Code(pc_pulldown), Cells(st_misc_side_flags)}},
    {.id = 0x32160000, .tree = {"Misc", "Rate"},
     .obj = {Base(base_main), BottomTabs(hf_misc, 6), Buttons(bt_misc_rate), Boxes(NB_Non), Cells(st_misc_rates), Code(pc_misc_rate)}},
    MiscTab(0x32170000, "User", bt_misc_user),
};
