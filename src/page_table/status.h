// status: what the whole switcher is set to, at a glance: the banks as cells, what there are more of as lists. Each
// cell, and the chosen line of a list, is a way to the page that adjusts it.
#pragma once
#include "pc_status.h"
#include "rows.h"
#include "st_status.h"

inline constexpr HF_TBL hf_status[] = {
    {.id = 1, .caption = "M/E",               .page = 0x33110000},
    {.id = 2, .caption = "Key",               .page = 0x33120000},
    {.id = 3, .caption = "Transition/\nWipe", .page = 0x33130000},
    {.id = 4, .caption = "Aux Bus",           .page = 0x33140000},
    {.id = 5, .caption = "Monitor",           .page = 0x33150000},
    {.id = 6, .caption = "Effects",           .page = 0x33160000},
    {.id = 7, .caption = "Device",            .page = 0x33170000},
    HF_END,
};

// --- Lists ---

constexpr LS_TBL StatusList(LS_TBL row)
{
    row.id = 1;
    row.vn = 14;
    row.x = 100;
    row.y = 76;
    row.block = 1; // one at a time
    row.sb_top = row.y;
    row.sb_bottom = row.y + LS_ROW_PX * (row.vn + 1);
    return row;
}
inline constexpr LS_TBL ls_status_key[] = {
    StatusList({.hn = 7, .head = {"Key", "On", "Type", "Source", "Fill", "Edge", "Proc"}, .width = {96, 34, 92, 118, 68, 92, 50}}), LS_END};
inline constexpr LS_TBL ls_status_wipe[] = {
    StatusList({.hn = 7, .head = {"Bank", "Mode", "Rate", "Main", "Sub", "Mix", "DME Wipe"}, .width = {96, 76, 66, 66, 66, 106, 74}}), LS_END};
inline constexpr LS_TBL ls_status_aux[] = {
    StatusList({.hn = 7, .head = {"Bus", "Source", "Mix", "Link", "Inhibit", "Side Flags", "Aspect"}, .width = {76, 160, 50, 50, 62, 82, 70}}), LS_END};
inline constexpr LS_TBL ls_status_monitor[] = {
    StatusList({.hn = 7, .head = {"Monitor", "Source", "Area", "Cross", "4:3", "Key", "Mono"}, .width = {80, 200, 54, 54, 54, 54, 54}}), LS_END};
inline constexpr LS_TBL ls_status_output[] = {
    StatusList({.hn = 5, .head = {"Output", "State", "Name", "Folder", "Play"}, .width = {80, 90, 180, 150, 50}}), LS_END};
inline constexpr LS_TBL ls_status_effect[] = {
    StatusList({.hn = 5, .head = {"Channel", "Used By", "Combine", "Priority", "Trail"}, .width = {90, 200, 86, 86, 88}}), LS_END};
inline constexpr LS_TBL ls_status_device[] = {
    StatusList({.hn = 3, .head = {"Unit", "Format", "Reference"}, .width = {110, 240, 200}}), LS_END};
inline constexpr LS_TBL ls_status_recorder[] = {
    StatusList({.hn = 7, .head = {"Device", "Type", "State", "Time Code", "File", "Control", "Rec"}, .width = {60, 64, 76, 92, 134, 74, 50}}), LS_END};
static_assert(ListsAreSound(ls_status_key) && ListsAreSound(ls_status_wipe) && ListsAreSound(ls_status_aux));
static_assert(ListsAreSound(ls_status_monitor) && ListsAreSound(ls_status_output) && ListsAreSound(ls_status_effect) && ListsAreSound(ls_status_device) && ListsAreSound(ls_status_recorder));

// --- Keys ---

constexpr BT_TBL StatusOpen(int id, const char* caption, const char* group, const char* cmd)
{
    return Jump({.id = id, .caption = caption, .group = group, .cmd = {cmd}});
}
inline constexpr BT_TBL bt_status_me[] = {
    Jump({.id = 49, .caption = "Copy/\nSwap", .group = "Operation", .cmd = {"#31110000"}}),
    Jump({.id = 50, .caption = "Snapshot",    .group = "Operation", .cmd = {"#63110000"}}),
    Jump({.id = 51, .caption = "Effect",      .group = "Operation", .cmd = {"#62110000"}}),
    Jump({.id = 53, .caption = "Diag",        .group = "System", .cmd = {"#74110000"}}),
    Jump({.id = 54, .caption = "Error\nList", .group = "System", .cmd = {"#99000000"}}),
    BT_END,
};
inline constexpr BT_TBL bt_status_key[] = {
    StatusOpen(49, "Type",           "Open Key", STATUS_OPEN "10000"),
    StatusOpen(50, "Edge",           "Open Key", STATUS_OPEN "20000"),
    StatusOpen(51, "Main Mask",      "Open Key", STATUS_OPEN "30000"),
    StatusOpen(52, "Resizer",        "Open Key", STATUS_OPEN "50000"),
    StatusOpen(53, "Processed\nKey", "Open Key", STATUS_OPEN "60000"),
    StatusOpen(54, "Transition",     "Open Key", STATUS_OPEN "70000"),
    BT_END,
};
inline constexpr BT_TBL bt_status_wipe[] = {
    StatusOpen(49, "Transition",      "Open Bank", STATUS_OPEN "710000"),
    StatusOpen(50, "Wipe",            "Open Bank", STATUS_OPEN "510000"),
    StatusOpen(51, "Edge/\nDirection", "Open Bank", STATUS_OPEN "540000"),
    StatusOpen(52, "DME Wipe",        "Open Bank", STATUS_OPEN "610000"),
    StatusOpen(53, "Video\nProcess",  "Open Bank", STATUS_OPEN "720000"),
    BT_END,
};
inline constexpr BT_TBL bt_status_aux[] = {
    StatusOpen(49, "Aux Bus", "Open", STATUS_OPEN "0"),
    Jump({.id = 54, .caption = "FM\nOutputs", .group = "Outputs", .cmd = {"#33140001"}}),
    BT_END,
};
inline constexpr BT_TBL bt_status_output[] = {StatusOpen(49, "Recall", "Open Output", STATUS_OPEN "0"), BT_END};
inline constexpr BT_TBL bt_status_monitor[] = {StatusOpen(49, "Monitor", "Open", STATUS_OPEN "0"), BT_END};
inline constexpr BT_TBL bt_status_effect[] = {
    StatusOpen(49, "Combine",    "Open Group", STATUS_OPEN "0"),
    Jump({.id = 51, .caption = "Channel\nStatus", .group = "DME", .cmd = {"#41000000"}}),
    Jump({.id = 52, .caption = "Transform", .group = "DME", .cmd = {"#41710000"}}),
    BT_END,
};
inline constexpr BT_TBL bt_status_device[] = {
    Jump({.id = 49, .caption = "Diag",        .group = "System", .cmd = {"#74110000"}}),
    Jump({.id = 50, .caption = "Error\nList", .group = "System", .cmd = {"#99000000"}}),
    Jump({.id = 52, .caption = "Device\nControl", .group = "Devices", .cmd = {"#53210000"}}),
    Jump({.id = 53, .caption = "Router",      .group = "Devices", .cmd = {"#51110000"}}),
    Jump({.id = 54, .caption = "Recorders",   .group = "Devices", .cmd = {"#33170001"}}),
    BT_END,
};
inline constexpr BT_TBL bt_status_recorder[] = {
    StatusOpen(49, "Cueup&\nPlay", "Open Device", STATUS_OPEN "0"),
    StatusOpen(50, "Timeline",     "Open Device", STATUS_OPEN "10000"),
    StatusOpen(51, "File List",    "Open Device", STATUS_OPEN "20000"),
    StatusOpen(52, "Setting",      "Open Device", STATUS_OPEN "30000"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_status_me) && ButtonsAreSound(bt_status_key) && ButtonsAreSound(bt_status_wipe));
static_assert(ButtonsAreSound(bt_status_aux) && ButtonsAreSound(bt_status_output) && ButtonsAreSound(bt_status_monitor) && ButtonsAreSound(bt_status_effect));
static_assert(ButtonsAreSound(bt_status_device) && ButtonsAreSound(bt_status_recorder));

inline constexpr BT_TBL bt_status_top[] = {
    Jump({.id = 17, .caption = "M/E",               .group = "Switcher", .cmd = {"#33110000"}}),
    Jump({.id = 18, .caption = "Key",               .group = "Switcher", .cmd = {"#33120000"}}),
    Jump({.id = 19, .caption = "Transition/\nWipe", .group = "Switcher", .cmd = {"#33130000"}}),
    Jump({.id = 20, .caption = "Aux Bus",           .group = "Outputs", .cmd = {"#33140000"}}),
    Jump({.id = 21, .caption = "Monitor",           .group = "Outputs", .cmd = {"#33150000"}}),
    Jump({.id = 22, .caption = "FM\nOutputs",       .group = "Outputs", .cmd = {"#33140001"}}),
    Jump({.id = 33, .caption = "Effects",           .group = "Units", .cmd = {"#33160000"}}),
    Jump({.id = 34, .caption = "Device",            .group = "Units", .cmd = {"#33170000"}}),
    Jump({.id = 35, .caption = "Recorders",         .group = "Units", .cmd = {"#33170001"}}),
    Jump({.id = 6,  .caption = "Top\nMenu",         .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_status_top));

constexpr PAGE StatusCells(uint32_t id, const ST_TBL* cells)
{
    return {.id = id, .tree = {"Status", "M/E"},
            .obj = {Base(base_main), BottomTabs(hf_status, 1), Buttons(bt_status_me), Cells(cells)}};
}
constexpr PAGE StatusTab(uint32_t tab, const char* word, const LS_TBL* lists, const BT_TBL* keys, const PC_TBL& code)
{
    return {.id = 0x33100000 + (tab << 16), .tree = {"Status", word},
            .obj = {Base(base_main), BottomTabs(hf_status, tab), Lists(lists), Buttons(keys), Code(code)}};
}
inline constexpr PAGE status_pages[] = {
    {.id = 0x33000000, .tree = {"Status"}, .obj = {Base(base_main), Buttons(bt_status_top)}},
    StatusCells(0x33110100, st_status_me),
    StatusCells(0x33110200, st_status_me_small),
    StatusTab(2, "Key", ls_status_key, bt_status_key, pc_status_key),
    StatusTab(3, "Transition/Wipe", ls_status_wipe, bt_status_wipe, pc_status_wipe),
    StatusTab(4, "Aux Bus", ls_status_aux, bt_status_aux, pc_status_aux),
    {.id = 0x33140001, .tree = {"Status", "Aux Bus", "FM Outputs"},
     .obj = {Base(base_sub, 0x33140000), BottomTabs(hf_status, 4), Lists(ls_status_output), Buttons(bt_status_output), Code(pc_status_output)}},
    StatusTab(5, "Monitor", ls_status_monitor, bt_status_monitor, pc_status_monitor),
    StatusTab(6, "Effects", ls_status_effect, bt_status_effect, pc_status_effect),
    StatusTab(7, "Device", ls_status_device, bt_status_device, pc_status_device),
    {.id = 0x33170001, .tree = {"Status", "Device", "Recorders"},
     .obj = {Base(base_sub, 0x33170000), BottomTabs(hf_status, 7), Lists(ls_status_recorder), Buttons(bt_status_recorder), Code(pc_status_recorder)}},
};
