// setup_tabs: the groups of engineering setup, down the left edge of all its pages, and the tabs of each. A group that
// gets pages is a row.
#pragma once
#include "rows.h"

// The way back to the page that leads here has one place on all pages of engineering setup: before Clear and Execute.
constexpr int BTN_SETUP_BACK = 52;
constexpr BT_TBL SetupBack(const char* caption, const char* cmd) { return Jump({.id = BTN_SETUP_BACK, .caption = caption, .cmd = {cmd}}); }

inline constexpr VF_TBL vf_setup[] = {
    {.id = 1, .caption = "System", .page = 0x73110000},
    {.id = 2, .caption = "Panel", .page = 0x73210000},
    {.id = 3, .caption = "Switcher", .page = 0x73310000},
    {.id = 4, .caption = "DME", .page = 0x73410000},
    {.id = 5, .caption = "DCU", .page = 0x73510000},
    {.id = 6, .caption = "Router/\nTally", .page = 0x73610000},
    {.id = 7, .caption = "MPE", .page = 0x73710000},
    VF_END,
};
inline constexpr HF_TBL hf_setup_system[] = {
    {.id = 1, .caption = "Network\nConfig", .page = 0x73110000},
    {.id = 2, .caption = "System\nConfig", .page = 0x73120000},
    {.id = 3, .caption = "Format", .page = 0x73130000},
    {.id = 4, .caption = "Start Up", .page = 0x73140000},
    {.id = 5, .caption = "Initialize", .page = 0x73150000},
    {.id = 6, .caption = "Install/\nUnit\nConfig", .page = 0x73160000},
    {.id = 7, .caption = "Mainte-\nnance", .page = 0x73170000},
    HF_END,
};
inline constexpr HF_TBL hf_setup_switcher[] = {
    {.id = 1, .caption = "Config", .page = 0x73310000},
    {.id = 2, .caption = "Input", .page = 0x73320000},
    {.id = 3, .caption = "Output", .page = 0x73330000},
    {.id = 4, .caption = "Transition", .page = 0x73340000},
    {.id = 5, .caption = "Key/Wipe\nFM/CCR", .page = 0x73350000},
    {.id = 6, .caption = "Link", .page = 0x73360000},
    {.id = 7, .caption = "Device\nInterface", .page = 0x73370000},
    HF_END,
};
inline constexpr HF_TBL hf_setup_panel[] = {
    {.id = 1, .caption = "Config", .page = 0x73210000},
    {.id = 2, .caption = "Xpt\nAssign", .page = 0x73220000},
    {.id = 3, .caption = "Aux\nAssign", .page = 0x73230000},
    {.id = 4, .caption = "Prefs/\nUtility", .page = 0x73240000},
    {.id = 5, .caption = "Device\nInterface", .page = 0x73250000},
    {.id = 6, .caption = "Operation", .page = 0x73260000},
    {.id = 7, .caption = "Mainte-\nnance", .page = 0x73270000},
    HF_END,
};
inline constexpr HF_TBL hf_setup_dme[] = {
    {.id = 1, .caption = "Config", .page = 0x73410000},
    {.id = 2, .caption = "Input/\nOutput", .page = 0x73420000},
    {.id = 3, .caption = "Video\nInterface", .page = 0x73430000},
    {.id = 4, .caption = "Device\nInterface", .page = 0x73440000},
    HF_END,
};
inline constexpr HF_TBL hf_setup_dcu[] = {
    {.id = 1, .caption = "GPI\nInput", .page = 0x73510000},
    {.id = 2, .caption = "GPI\nOutput", .page = 0x73520000},
    {.id = 3, .caption = "Serial\nPort", .page = 0x73530000},
    {.id = 4, .caption = "Parallel\nPort", .page = 0x73540000},
    HF_END,
};
inline constexpr HF_TBL hf_setup_router[] = {
    {.id = 1, .caption = "Router", .page = 0x73610000},
    {.id = 2, .caption = "Tally\nGroup", .page = 0x73620000},
    {.id = 3, .caption = "Wiring", .page = 0x73630000},
    {.id = 4, .caption = "Serial\nTally", .page = 0x73640000},
    {.id = 5, .caption = "Parallel\nTally", .page = 0x73650000},
    HF_END,
};
inline constexpr HF_TBL hf_setup_mpe[] = {
    {.id = 1, .caption = "Config", .page = 0x73710000},
    {.id = 2, .caption = "Input", .page = 0x73720000},
    {.id = 3, .caption = "Output", .page = 0x73730000},
    {.id = 4, .caption = "Boards", .page = 0x73740000},
    HF_END,
};
