// aux_mon: the aux buses and the monitors: what each shows, and how it changes.
#pragma once
#include "nb_global.h"
#include "pc_aux_mon.h"
#include "rows.h"

inline constexpr VF_TBL vf_aux_mon[] = {
    {.id = 1, .caption = "Aux Bus", .page = 0x23110000},
    {.id = 2, .caption = "Monitor", .page = 0x23210000},
    VF_END,
};

// Buses on the left, signals on the right, two lines of keys below.
constexpr LS_TBL AuxMonList(LS_TBL row)
{
    row.y = 76;
    row.block = 1; // one at a time
    row.vn = 11;
    row.sb_top = row.y;
    row.sb_bottom = row.y + LS_ROW_PX * (row.vn + 1);
    return row;
}
#define SIGNAL_LIST AuxMonList({.id = 2, .hn = 3, .x = 424, .head = {"No", "Source", ""}, .width = {44, 154, 30}, .mono = 1})

// --- Aux buses ---

inline constexpr LS_TBL ls_aux_bus[] = {
    AuxMonList({.id = 1, .hn = 4, .x = 100, .head = {"Bus", "Source", "Mix", "Link"}, .width = {66, 120, 42, 42}}),
    SIGNAL_LIST,
    LS_END,
};
static_assert(ListsAreSound(ls_aux_bus));

inline constexpr auto nb_aux_rate = Column(Frames(1, "Rate\nframes", "~@Rate"));
inline constexpr BT_TBL bt_aux_bus[] = {
    Toggle({.id = 33, .caption = "Mix",         .group = "Transition", .cmd = {"~@Mix#*"}, .nb = nb_aux_rate.row}),
    Action({.id = 34, .caption = "Auto\nTrans", .group = "Transition", .cmd = {"~@Auto Trans#*", "~@Mix#false"}}),
    Toggle({.id = 36, .caption = "Key Link",    .group = "Link", .cmd = {"~@Key Link#*"}}),
    Toggle({.id = 37, .caption = "Bus\nInhibit", .group = "Link", .cmd = {"~@Inhibit#*"}}),
    Radio ({.id = 49, .caption = "Off",         .group = "Side Flags", .cmd = {"~@Side Flags#Off"}}),
    Radio ({.id = 50, .caption = "On",          .group = "Side Flags", .cmd = {"~@Side Flags#On"}}),
    Radio ({.id = 51, .caption = "Auto",        .group = "Side Flags", .cmd = {"~@Side Flags#Auto"}}),
    Radio ({.id = 53, .caption = "4:3",         .group = "Aspect", .cmd = {"~@Aspect#4:3"}}),
    Radio ({.id = 54, .caption = "16:9",        .group = "Aspect", .cmd = {"~@Aspect#16:9"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_aux_bus));

// --- Monitors ---

inline constexpr LS_TBL ls_monitor[] = {
    AuxMonList({.id = 1, .hn = 4, .x = 100, .head = {"Monitor", "Source", "Area", "Key"}, .width = {76, 110, 42, 42}}),
    SIGNAL_LIST,
    LS_END,
};
static_assert(ListsAreSound(ls_monitor));
#undef SIGNAL_LIST

inline constexpr BT_TBL bt_monitor[] = {
    Toggle({.id = 33, .caption = "Safe Area",   .group = "Marker", .cmd = {"~@Safe Area#*"}, .nb = SpecialKnob(128)}),
    Toggle({.id = 34, .caption = "Center\nCross", .group = "Marker", .cmd = {"~@Center Cross#*"}}),
    Toggle({.id = 35, .caption = "4:3\nMarker", .group = "Marker", .cmd = {"~@4:3 Marker#*"}}),
    Toggle({.id = 37, .caption = "Show Key",    .group = "Picture", .cmd = {"~@Show Key#*"}}),
    Toggle({.id = 38, .caption = "Mono",        .group = "Picture", .cmd = {"~@Mono#*"}}),
    Toggle({.id = 49, .caption = "Time\nCode",  .group = "Caption", .cmd = {"~@Time Code#*"}}),
    Toggle({.id = 50, .caption = "Source\nName", .group = "Caption", .cmd = {"~@Source Name#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_monitor));

inline constexpr BT_TBL bt_aux_mon_top[] = {
    Jump({.id = 17, .caption = "Aux Bus", .group = "Aux/Mon", .cmd = {"#23110000"}}),
    Jump({.id = 18, .caption = "Monitor", .group = "Aux/Mon", .cmd = {"#23210000"}}),
    Jump({.id = 6,  .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_aux_mon_top));

// The chosen bus stands in the tree: the code comes before the keys that name it.
inline constexpr PAGE aux_mon_pages[] = {
    {.id = 0x23000000, .tree = {"Aux/Mon"}, .obj = {Base(base_main), Buttons(bt_aux_mon_top)}},
    {.id = 0x23110000, .tree = {"Aux/Mon", "Aux Bus", "Aux 1"},
     .obj = {Base(base_main), LeftTabs(vf_aux_mon, 1), Lists(ls_aux_bus), Code(pc_aux_bus), Buttons(bt_aux_bus), Boxes(NB_Non)}},
    {.id = 0x23210000, .tree = {"Aux/Mon", "Monitor", "Mon 1"},
     .obj = {Base(base_main), LeftTabs(vf_aux_mon, 2), Lists(ls_monitor), Code(pc_monitor), Buttons(bt_monitor), Boxes(NB_Non)}},
};
