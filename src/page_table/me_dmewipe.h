// me_dmewipe: the effects-unit wipe of a bank: its pattern and modifiers, edge and direction, place, size and crop of its
// channels, snapshots. Written for M/E-1.
#pragma once
#include "me_banks.h"
#include "me_snapshot.h"
#include "patterns.h"

inline constexpr MePage me_dmewipe_pages[] = {
    {.page = {.id = 0x11610000, .tree = {"M/E-1", "DME Wipe", "Pattern Select"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 1), Boxes(NB_Non)}}},
    {.page = {.id = 0x11630000, .tree = {"M/E-1", "DME Wipe", "Pattern Modifier"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 2), Boxes(NB_Non)}}},
    {.page = {.id = 0x11640000, .tree = {"M/E-1", "DME Wipe", "Edge/Direction"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 3), Boxes(NB_Non)}}},
    {.page = {.id = 0x11650000, .tree = {"M/E-1", "DME Wipe", "Modify"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 4), Boxes(NB_Non)}}},
    {.page = {.id = 0x11600007, .tree = {"M/E-1", "DME Wipe", "Modify", "Remove Begin"},
              .obj = {Base(base_sub, 0x11650000), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 0), Boxes(NB_Non)}}, .where = MAIN},
    {.page = {.id = 0x11670000, .tree = {"M/E-1", "DME Wipe", "DME Wipe Snapshot"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 6), BottomTabs(hf_me_dmewipe, 5), Buttons(bt_me_snapshot), Boxes(NB_Non), Code(pc_me_dmewipe_dmewipesnapshot)}}},
};
