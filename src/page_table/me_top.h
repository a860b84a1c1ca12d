// me_top: the first page of a bank: what its keys are set to, each cell a way to the page of the key that adjusts it.
// Written for M/E-1.
#pragma once
#include "me_banks.h"
#include "st_me_key.h"

// Beside the lines of the keys, below the two cells of the bank. The priority is shared by both sides and stands on the
// main one.
inline constexpr BT_TBL bt_me_top[] = {
    Jump({.id = 5,  .caption = "Wipe",           .group = "Bank", .cmd = {"#+11510000"}}),
    Jump({.id = 6,  .caption = "DME Wipe",       .group = "Bank", .cmd = {"#+11610000"}}),
    Jump({.id = 21, .caption = "Transition",     .group = "Bank", .cmd = {"#+11710000"}}),
    Jump({.id = 22, .caption = "Video\nProcess", .group = "Bank", .cmd = {"#+11720000"}}),
    Jump({.id = 37, .caption = "Key\nPriority",  .group = "Bank", .select_func = bt_sel_jmptokeypriority, .cmd = {"#11730000"}}),
    Jump({.id = 38, .caption = "Key\nAssign",    .group = "Bank", .cmd = {"#+11740000"}}),
    Jump({.id = 53, .caption = "Snapshot",       .cmd = {"#+11770000"}}),
    Jump({.id = 54, .caption = "Top\nMenu",      .cmd = {"#00110000"}}),
    BT_END,
};
inline constexpr BT_TBL bt_me_top_sub[] = {
    Jump({.id = 5,  .caption = "Wipe",           .group = "Bank", .cmd = {"#+15510000"}}),
    Jump({.id = 6,  .caption = "DME Wipe",       .group = "Bank", .cmd = {"#+15610000"}}),
    Jump({.id = 21, .caption = "Transition",     .group = "Bank", .cmd = {"#+15710000"}}),
    Jump({.id = 22, .caption = "Video\nProcess", .group = "Bank", .cmd = {"#+15720000"}}),
    Jump({.id = 37, .caption = "Key\nPriority",  .group = "Bank", .cmd = {"#+15730000"}}),
    Jump({.id = 54, .caption = "Top\nMenu",      .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_top) && ButtonsAreSound(bt_me_top_sub));

// Of a side of a bank: its keys, what comes in and goes out of them, and what is done to it.
#define TOP_PAGES(buttons, cells, side, bank) \
    {.page = {.id = 0x11000000, .tree = {"M/E-1"}, \
              .obj = {Base(base_main), BottomTabs(hf_me_top, 1), Buttons(buttons), Cells(cells)}}, .where = side, .kind = bank}, \
    {.page = {.id = 0x11000001, .tree = {"M/E-1", "Signals"}, \
              .obj = {Base(base_main), BottomTabs(hf_me_top, 2), Buttons(buttons), Cells(cells##_signals)}}, .where = side, .kind = bank}, \
    {.page = {.id = 0x11000002, .tree = {"M/E-1", "Process"}, \
              .obj = {Base(base_main), BottomTabs(hf_me_top, 3), Buttons(buttons), Cells(cells##_process)}}, .where = side, .kind = bank}
inline constexpr MePage me_top_pages[] = {
    TOP_PAGES(bt_me_top,     st_me_top,      MAIN, ONLY_ME),
    TOP_PAGES(bt_me_top_sub, st_me_top_sub,  SUB,  ONLY_ME),
    TOP_PAGES(bt_me_top,     st_pgm_top,     MAIN, ONLY_PGM),
    TOP_PAGES(bt_me_top_sub, st_pgm_top_sub, SUB,  ONLY_PGM),
};
#undef TOP_PAGES
