// setup_tabs: the groups of engineering setup, down the left edge of all its pages, and the tabs of each. A group that
// gets pages is a row.
#pragma once
#include "rows.h"

inline constexpr VF_TBL vf_setup[] = {
    {.id = 1, .caption = "System", .page = 0x73110000},
    {.id = 2, .caption = "Panel", .page = 0x73210000},
    {.id = 3, .caption = "Switcher", .page = 0x73310000},
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
    HF_END,
};
