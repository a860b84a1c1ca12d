// setup_tops: the first page of a unit's setup, on which the way to its pages is one touch: its tabs, and below them
// what is looked for most and stands behind them. The MPE's four pages are its tabs.
#pragma once
#include "rows.h"
#include "setup_tabs.h"

#define SETUP_TOP_MENU Jump({.id = 54, .caption = "Top\nMenu", .cmd = {"#00110000"}}), \
                       Jump({.id = 53, .caption = "Setup",     .cmd = {"#73000000"}}), BT_END
inline constexpr BT_TBL bt_setup_panel_top[] = {
    Jump({.id = 1,  .caption = "Config",             .group = "Panel", .cmd = {"#73210000"}}),
    Jump({.id = 2,  .caption = "Xpt\nAssign",        .group = "Panel", .cmd = {"#73220000"}}),
    Jump({.id = 3,  .caption = "Aux\nAssign",        .group = "Panel", .cmd = {"#73230000"}}),
    Jump({.id = 4,  .caption = "Prefs/\nUtility",    .group = "Panel", .cmd = {"#73240000"}}),
    Jump({.id = 5,  .caption = "Device\nInterface",  .group = "Panel", .cmd = {"#73250000"}}),
    Jump({.id = 6,  .caption = "Operation",          .group = "Panel", .cmd = {"#73260000"}}),
    Jump({.id = 17, .caption = "Program\nButton",    .group = "Buttons", .cmd = {"#73210002"}}),
    Jump({.id = 18, .caption = "10 Key\nRegion",     .group = "Buttons", .cmd = {"#73210001"}}),
    Jump({.id = 19, .caption = "Main/Sub\nAssign",   .group = "Buttons", .cmd = {"#73210008"}}),
    Jump({.id = 21, .caption = "Source\nName/\nColor", .group = "Names", .cmd = {"#73220004"}}),
    Jump({.id = 22, .caption = "User\nColor\nSelect", .group = "Names", .cmd = {"#73220005"}}),
    Jump({.id = 33, .caption = "Main",               .group = "Xpt Assign", .cmd = {"#73220001"}}),
    Jump({.id = 34, .caption = "Sub",                .group = "Xpt Assign", .cmd = {"#73220002"}}),
    Jump({.id = 36, .caption = "GPI\nInput",         .group = "GPI", .cmd = {"#73250001"}}),
    Jump({.id = 37, .caption = "GPI\nOutput",        .group = "GPI", .cmd = {"#73250004"}}),
    Jump({.id = 49, .caption = "Mainte-\nnance",     .group = "Display", .cmd = {"#73270000"}}),
    Jump({.id = 50, .caption = "Touch\nPanel",       .group = "Display", .cmd = {"#73270001"}}),
    SETUP_TOP_MENU,
};
inline constexpr BT_TBL bt_setup_switcher_top[] = {
    Jump({.id = 1,  .caption = "Config",             .group = "Switcher", .cmd = {"#73310000"}}),
    Jump({.id = 2,  .caption = "Input",              .group = "Switcher", .cmd = {"#73320000"}}),
    Jump({.id = 3,  .caption = "Output",             .group = "Switcher", .cmd = {"#73330000"}}),
    Jump({.id = 4,  .caption = "Transition",         .group = "Switcher", .cmd = {"#73340000"}}),
    Jump({.id = 5,  .caption = "Key/Wipe\nFM/CCR",   .group = "Switcher", .cmd = {"#73350000"}}),
    Jump({.id = 6,  .caption = "Link",               .group = "Switcher", .cmd = {"#73360000"}}),
    Jump({.id = 17, .caption = "Logical\nM/E",       .group = "Banks", .cmd = {"#73310003"}}),
    Jump({.id = 18, .caption = "Key\nConfig",        .group = "Banks", .cmd = {"#73310005"}}),
    Jump({.id = 19, .caption = "PGM\nConfig",        .group = "Banks", .cmd = {"#73310002"}}),
    Jump({.id = 20, .caption = "Side Flags",         .group = "Banks", .cmd = {"#73310004"}}),
    Jump({.id = 22, .caption = "Video\nProcess",     .group = "Inputs", .cmd = {"#73320005"}}),
    Jump({.id = 33, .caption = "Output\nAssign",     .group = "Outputs", .cmd = {"#73330001"}}),
    Jump({.id = 34, .caption = "Safe\nTitle",        .group = "Outputs", .cmd = {"#73330005"}}),
    Jump({.id = 35, .caption = "Re-Entry\nAssign",   .group = "Outputs", .cmd = {"#73330006"}}),
    Jump({.id = 36, .caption = "Multi\nViewer",      .group = "Outputs", .cmd = {"#73330014"}}),
    Jump({.id = 38, .caption = "Fader\nCurve",       .group = "Faders", .cmd = {"#73340003"}}),
    Jump({.id = 49, .caption = "Device\nInterface",  .group = "Devices", .cmd = {"#73370000"}}),
    Jump({.id = 50, .caption = "GPI\nInput",         .group = "Devices", .cmd = {"#73370004"}}),
    Jump({.id = 51, .caption = "GPI\nOutput",        .group = "Devices", .cmd = {"#73370007"}}),
    SETUP_TOP_MENU,
};
inline constexpr BT_TBL bt_setup_dme_top[] = {
    Jump({.id = 17, .caption = "Config",             .group = "DME", .cmd = {"#73410000"}}),
    Jump({.id = 18, .caption = "Input/\nOutput",     .group = "DME", .cmd = {"#73420000"}}),
    Jump({.id = 19, .caption = "Video\nInterface",   .group = "DME", .cmd = {"#73430000"}}),
    Jump({.id = 20, .caption = "Device\nInterface",  .group = "DME", .cmd = {"#73440000"}}),
    Jump({.id = 33, .caption = "Channel\nConfig",    .group = "Channels", .cmd = {"#73410001"}}),
    Jump({.id = 34, .caption = "Freeze",             .group = "Channels", .cmd = {"#73410002"}}),
    Jump({.id = 35, .caption = "Key Level",          .group = "Channels", .cmd = {"#73420002"}}),
    Jump({.id = 37, .caption = "DME1\nGPI\nInput",   .group = "GPI", .cmd = {"#73440003"}}),
    Jump({.id = 38, .caption = "DME1\nGPI\nOutput",  .group = "GPI", .cmd = {"#73440005"}}),
    SETUP_TOP_MENU,
};
inline constexpr BT_TBL bt_setup_dcu_top[] = {
    Jump({.id = 17, .caption = "GPI\nInput",         .group = "DCU1", .cmd = {"#73510000"}}),
    Jump({.id = 18, .caption = "GPI\nOutput",        .group = "DCU1", .cmd = {"#73520000"}}),
    Jump({.id = 19, .caption = "Serial\nPort",       .group = "DCU1", .cmd = {"#73530000"}}),
    Jump({.id = 20, .caption = "Parallel\nPort",     .group = "DCU1", .cmd = {"#73540000"}}),
    Jump({.id = 33, .caption = "GPI\nInput",         .group = "DCU2", .cmd = {"#73510001"}}),
    Jump({.id = 34, .caption = "GPI\nOutput",        .group = "DCU2", .cmd = {"#73520001"}}),
    Jump({.id = 35, .caption = "Serial\nPort",       .group = "DCU2", .cmd = {"#73530001"}}),
    Jump({.id = 36, .caption = "Parallel\nPort",     .group = "DCU2", .cmd = {"#73540001"}}),
    Jump({.id = 49, .caption = "VTR",                .group = "Protocol", .cmd = {"#73530002"}}),
    Jump({.id = 50, .caption = "Disk\nRecorder",     .group = "Protocol", .cmd = {"#73530004"}}),
    Jump({.id = 51, .caption = "P-Bus",              .group = "Protocol", .cmd = {"#73530005"}}),
    SETUP_TOP_MENU,
};
inline constexpr BT_TBL bt_setup_router_top[] = {
    Jump({.id = 17, .caption = "Router",             .group = "Router", .cmd = {"#73610000"}}),
    Jump({.id = 18, .caption = "Area",               .group = "Router", .cmd = {"#73610001"}}),
    Jump({.id = 19, .caption = "Source\nTable",      .group = "Router", .cmd = {"#73610002"}}),
    Jump({.id = 20, .caption = "Dest\nTable",        .group = "Router", .cmd = {"#73610003"}}),
    Jump({.id = 21, .caption = "Inhibit",            .group = "Router", .cmd = {"#73610004"}}),
    Jump({.id = 33, .caption = "Tally\nGroup",       .group = "Tally", .cmd = {"#73620000"}}),
    Jump({.id = 34, .caption = "Wiring",             .group = "Tally", .cmd = {"#73630000"}}),
    Jump({.id = 35, .caption = "Serial\nTally",      .group = "Tally", .cmd = {"#73640000"}}),
    Jump({.id = 36, .caption = "Parallel\nTally",    .group = "Tally", .cmd = {"#73650000"}}),
    SETUP_TOP_MENU,
};
#undef SETUP_TOP_MENU
static_assert(ButtonsAreSound(bt_setup_panel_top) && ButtonsAreSound(bt_setup_switcher_top) && ButtonsAreSound(bt_setup_dme_top));
static_assert(ButtonsAreSound(bt_setup_dcu_top) && ButtonsAreSound(bt_setup_router_top));

constexpr PAGE SetupTop(uint32_t left, const char* word, const BT_TBL* buttons)
{
    return {.id = 0x73000000 | left << 20, .tree = {"Engineering Setup", word},
            .obj = {Base(base_main), LeftTabs(vf_setup, left), Buttons(buttons)}};
}
inline constexpr PAGE setup_top_pages[] = {
    SetupTop(2, "Panel", bt_setup_panel_top), SetupTop(3, "Switcher", bt_setup_switcher_top),
    SetupTop(4, "DME", bt_setup_dme_top),     SetupTop(5, "DCU", bt_setup_dcu_top),
    SetupTop(6, "Router", bt_setup_router_top),
};
