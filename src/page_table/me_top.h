// me_top: the first page of a bank: what its keys are set to, each cell a way to the page of the key that adjusts it.
// Written for M/E-1.
#pragma once
#include "me_banks.h"
#include "st_me_key.h"

inline constexpr BT_TBL bt_me_top[] = {
    Jump({.id = 54, .caption = "Top\nMenu", .cmd = {"#00110000"}}), // below the cells
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_top));

inline constexpr MePage me_top_pages[] = {
    {.page = {.id = 0x11000000, .tree = {"M/E-1"}, .obj = {Base(base_main), Buttons(bt_me_top), Cells(st_me_top)}},
     .where = MAIN, .kind = ONLY_ME},
    {.page = {.id = 0x11000000, .tree = {"M/E-1"}, .obj = {Base(base_main), Buttons(bt_me_top), Cells(st_me_top_sub)}},
     .where = SUB, .kind = ONLY_ME},
    {.page = {.id = 0x11000000, .tree = {"M/E-1"}, .obj = {Base(base_main), Buttons(bt_me_top), Cells(st_pgm_top)}},
     .where = MAIN, .kind = ONLY_PGM},
    {.page = {.id = 0x11000000, .tree = {"M/E-1"}, .obj = {Base(base_main), Buttons(bt_me_top), Cells(st_pgm_top_sub)}},
     .where = SUB, .kind = ONLY_PGM},
};
