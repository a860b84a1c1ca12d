// file_tabs: the groups of the File menu, down the left edge of all its pages, and the pages of the first and the last.
#pragma once
#include "rows.h"

inline constexpr VF_TBL vf_file[] = {
    {.id = 1, .caption = "All\nSetup", .page = 0x71110000},
    {.id = 2, .caption = "Effect", .page = 0x71210000},
    {.id = 3, .caption = "Snapshot", .page = 0x71310000},
    {.id = 4, .caption = "Shotbox\nMacro", .page = 0x71410000},
    {.id = 5, .caption = "Frame\nMemory", .page = 0x71510000},
    {.id = 6, .caption = "Import\nExport", .page = 0x71610000},
    {.id = 7, .caption = "Directory\nNames", .page = 0x71710000},
    VF_END,
};
inline constexpr HF_TBL hf_file_setup[] = {
    {.id = 1, .caption = "All", .page = 0x71110000},
    {.id = 2, .caption = "Setup", .page = 0x71120000},
    {.id = 3, .caption = "Initial\nStatus", .page = 0x71130000},
    {.id = 4, .caption = "Key\nMemory", .page = 0x71140000},
    {.id = 5, .caption = "Video\nProcess\nMemory", .page = 0x71150000},
    {.id = 6, .caption = "User\nSetup", .page = 0x71160000},
    HF_END,
};
inline constexpr HF_TBL hf_file_xport[] = {
    {.id = 1, .caption = "Frame\nMemory", .page = 0x71610000},
    {.id = 2, .caption = "Clip\nStore", .page = 0x71620000},
    HF_END,
};
inline constexpr HF_TBL hf_file_names[] = {
    {.id = 1, .caption = "Directory", .page = 0x71710000},
    {.id = 2, .caption = "Unit ID\nCopy", .page = 0x71720000},
    {.id = 3, .caption = "Group ID\nCopy", .page = 0x71730000},
    {.id = 4, .caption = "Xpt\nSource\nName", .page = 0x71740000},
    {.id = 5, .caption = "Import\nSource\nName", .page = 0x71750000},
    HF_END,
};
