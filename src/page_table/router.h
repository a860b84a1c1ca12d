// router: the menu of the router: which source each destination shows, on all levels or some of them, by destination, by
// source and by level; salvos, which take several at once; which destinations nobody may touch.
//
// A source that is put on a destination is its preset until Take; with Direct Take it is taken at once. A take goes over
// the levels that are on.
#pragma once
#include "nb_rows.h"
#include "pc_router.h"
#include "rows.h"

inline constexpr VF_TBL vf_router[] = {
    {.id = 1, .caption = "Destination", .page = 0x51110000},
    {.id = 2, .caption = "Source",      .page = 0x51210000},
    {.id = 3, .caption = "Level",       .page = 0x51310000},
    {.id = 4, .caption = "Salvo",       .page = 0x51410000},
    {.id = 5, .caption = "Lock",        .page = 0x51510000},
    VF_END,
};

// --- Keys that several pages share; the destination's own paths begin with its three words ---

inline constexpr auto nb_router_source = Column(Count(1, "Source\nNo", "~3@Preset No", 0, ROUTER_SOURCES));
#define ROUTER_TAKE \
    Action({.id = 33, .caption = "Take",         .group = "Take", .cmd = {"~3@Take#*", "~3@Lock#Lock"}}), \
    Action({.id = 34, .caption = "Take\nAll",    .group = "Take", .cmd = {"Router@Take All#*"}}), \
    Action({.id = 35, .caption = "Undo",         .group = "Take", .cmd = {"~3@Undo#*", "~3@Lock#Lock"}}), \
    Action({.id = 36, .caption = "Clear\nPreset", .group = "Take", .cmd = {"Router@Clear#*"}}), \
    Toggle({.id = 37, .caption = "Direct\nTake", .group = "Take", .cmd = {"Router@Direct Take#*"}})
#define ROUTER_LOCK(id0) \
    Radio ({.id = (id0),     .caption = "Free",    .group = "Lock", .cmd = {"~3@Lock#Free"}}), \
    Radio ({.id = (id0) + 1, .caption = "Protect", .group = "Lock", .cmd = {"~3@Lock#Protect"}}), \
    Radio ({.id = (id0) + 2, .caption = "Lock",    .group = "Lock", .cmd = {"~3@Lock#Lock"}})

inline constexpr BT_TBL bt_router[] = {
    ROUTER_TAKE,
    JumpPopUp({.id = BTN_ROUTER_LEVELS, .caption = "Levels", .group = "Levels", .cmd = {ROUTER_LEVELS}}),
    Knobs ({.id = 50, .caption = "Source\nNo", .group = "Preset", .cmd = {nullptr, "~3@Lock#Lock"}, .nb = nb_router_source.row}),
    ROUTER_LOCK(52),
    BT_END,
};
static_assert(ButtonsAreSound(bt_router));

// --- Lists ---

constexpr LS_TBL RouterList(LS_TBL row, int lines = 11)
{
    row.y = 76;
    row.block = 1; // one at a time
    row.mono = 1;
    row.vn = lines;
    row.sb_top = row.y;
    row.sb_bottom = row.y + LS_ROW_PX * (row.vn + 1);
    return row;
}
inline constexpr LS_TBL ls_router_destination[] = {
    RouterList({.id = 1, .hn = 5, .x = 100, .head = {"Dest", "Name", "Level 1", "Preset", "Lock"}, .width = {58, 88, 74, 74, 38}}),
    RouterList({.id = 2, .hn = 3, .x = 492, .head = {"No", "Source", ""}, .width = {34, 96, 24}}),
    LS_END,
};
inline constexpr LS_TBL ls_router_source[] = {
    RouterList({.id = 2, .hn = 3, .x = 100, .head = {"No", "Source", ""}, .width = {32, 88, 22}}),
    RouterList({.id = 1, .hn = 6, .x = 296, .head = {"Dest", "Name", "Level 1", "Preset", "Lock", ""}, .width = {58, 84, 72, 72, 38, 22}}),
    LS_END,
};
inline constexpr LS_TBL ls_router_level[] = {
    RouterList({.id = 1, .hn = 9, .x = 100, .head = {"Dest", "L1", "L2", "L3", "L4", "L5", "L6", "L7", "L8"}, .width = {64, 60, 60, 60, 60, 60, 60, 60, 60}}),
    LS_END,
};
inline constexpr LS_TBL ls_router_lock[] = {
    RouterList({.id = 1, .hn = 5, .x = 100, .head = {"Dest", "Name", "Level 1", "Lock", "By"}, .width = {90, 130, 110, 110, 104}}, 15),
    LS_END,
};
inline constexpr LS_TBL ls_router_salvo[] = {
    RouterList({.id = 1, .hn = 4, .x = 100, .head = {"No", "Name", "Dests", "Levels"}, .width = {60, 230, 100, 154}}, 15),
    LS_END,
};
static_assert(ListsAreSound(ls_router_destination) && ListsAreSound(ls_router_source) && ListsAreSound(ls_router_level));
static_assert(ListsAreSound(ls_router_lock) && ListsAreSound(ls_router_salvo));

// --- Salvos: a salvo keeps the presets and the levels of a take ---

inline constexpr BT_TBL bt_router_salvo[] = {
    Action({.id = 49, .caption = "Store",       .group = "Salvo", .cmd = {"~@Store#*"}}),
    Action({.id = 50, .caption = "Preset",      .group = "Salvo", .cmd = {"~@Preset#*", "~@Dests#0"}}),
    Action({.id = 51, .caption = "Take",        .group = "Salvo", .cmd = {"~@Take#*", "~@Dests#0"}}),
    Action({.id = 53, .caption = "Clear",       .group = "Edit", .cmd = {"~@Clear#*", "~@Dests#0"}}),
    Typed ({.id = 54, .caption = "Name",        .group = "Edit", .cmd = {ROUTER_SALVO_NAME}}, BT_JUMP_KEYBOARD),
    BT_END,
};
static_assert(ButtonsAreSound(bt_router_salvo));

// --- Lock: nobody changes a locked destination, nobody else one that is protected ---

inline constexpr BT_TBL bt_router_lock[] = {
    ROUTER_LOCK(49),
    Action({.id = 53, .caption = "Free\nOwn", .group = "All", .cmd = {"Router@Free Own#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_router_lock));

inline constexpr BT_TBL bt_router_top[] = {
    Jump({.id = 17, .caption = "Destination", .group = "Router", .cmd = {"#51110000"}}),
    Jump({.id = 18, .caption = "Source",      .group = "Router", .cmd = {"#51210000"}}),
    Jump({.id = 19, .caption = "Level",       .group = "Router", .cmd = {"#51310000"}}),
    Jump({.id = 20, .caption = "Salvo",       .group = "Router", .cmd = {"#51410000"}}),
    Jump({.id = 21, .caption = "Lock",        .group = "Router", .cmd = {"#51510000"}}),
    Jump({.id = 6,  .caption = "Top\nMenu",   .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_router_top));

// The chosen one stands in the tree: the code comes before the keys that name it.
constexpr PAGE RouterPage(uint32_t id, uint32_t tab, const char* what, const LS_TBL* lists, const PC_TBL& code, const BT_TBL* keys)
{
    return {.id = id, .tree = {"Router", "Destination", "Dest1", what},
            .obj = {Base(base_main), LeftTabs(vf_router, tab), Lists(lists), Code(code), Buttons(keys), Boxes(NB_Non)}};
}
inline constexpr PAGE router_pages[] = {
    {.id = 0x51000000, .tree = {"Router"}, .obj = {Base(base_main), Buttons(bt_router_top)}},
    RouterPage(0x51110000, 1, nullptr, ls_router_destination, pc_router_destination, bt_router),
    RouterPage(0x51210000, 2, "Source", ls_router_source, pc_router_source, bt_router),
    RouterPage(0x51310000, 3, "Level", ls_router_level, pc_router_level, bt_router),
    {.id = 0x51410000, .tree = {"Router", "Salvo", "1"},
     .obj = {Base(base_main), LeftTabs(vf_router, 4), Lists(ls_router_salvo), Code(pc_router_salvo), Buttons(bt_router_salvo), Boxes(NB_Non)}},
    RouterPage(0x51510000, 5, "Lock", ls_router_lock, pc_router_lock, bt_router_lock),
};
#undef ROUTER_LOCK
#undef ROUTER_TAKE
