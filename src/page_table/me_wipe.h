// me_wipe: the wipe of a bank: its two patterns and how they mix, edge and direction, modifiers, snapshots. The sub side
// has a wipe of its own, of one pattern. Written for M/E-1.
#pragma once
#include "me_banks.h"
#include "patterns.h"
#include "st_me_wipe.h"

inline constexpr MePage me_wipe_pages[] = {
    {.page = {.id = 0x11510000, .tree = {"M/E-1", "Wipe", "Main Pattern"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 1), Boxes(NB_Non)}}},
    {.page = {.id = 0x11520000, .tree = {"M/E-1", "Wipe", "Sub Pattern"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 2), Boxes(NB_Non)}}, .where = MAIN},
    {.page = {.id = 0x11530000, .tree = {"M/E-1", "Wipe", "Pattern Mix"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 3), Boxes(NB_Non), Cells(st_me_wipe)}}, .where = MAIN},
    {.page = {.id = 0x11540000, .tree = {"M/E-1", "Wipe", "Edge/Direction"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 4), Boxes(NB_Non), Cells(st_me_wipe)}}, .where = MAIN},
    {.page = {.id = 0x11540000, .tree = {"M/E-1", "Wipe", "Edge/Direction"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 4), Boxes(NB_Non), Cells(st_me_wipe_sub)}}, .where = SUB},
    {.page = {.id = 0x11540001, .tree = {"M/E-1", "Wipe", "Edge/Direction", "Matte Adjust"},
              .obj = {Base(base_sub, 0x11540000), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 4), Boxes(NB_Non), Cells(st_me_wipe)}}, .where = MAIN},
    {.page = {.id = 0x11540001, .tree = {"M/E-1", "Wipe", "Edge/Direction", "Matte Adjust"},
              .obj = {Base(base_sub, 0x11540000), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 4), Boxes(NB_Non), Cells(st_me_wipe_sub)}}, .where = SUB},
    {.page = {.id = 0x11550000, .tree = {"M/E-1", "Wipe", "Main Modify"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 5), Boxes(NB_Non), Cells(st_me_wipe)}}, .where = MAIN},
    {.page = {.id = 0x11550000, .tree = {"M/E-1", "Wipe", "Main Modify"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 5), Boxes(NB_Non), Cells(st_me_wipe_sub)}}, .where = SUB},
    {.page = {.id = 0x11560000, .tree = {"M/E-1", "Wipe", "Sub Modify"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 6), Boxes(NB_Non), Cells(st_me_wipe)}}, .where = MAIN},
    {.page = {.id = 0x11570000, .tree = {"M/E-1", "Wipe", "Wipe Snapshot"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 7), Boxes(NB_Non), Cells(st_me_wipe)}}, .where = MAIN},
    {.page = {.id = 0x11570000, .tree = {"M/E-1", "Wipe", "Wipe Snapshot"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 7), Boxes(NB_Non), Cells(st_me_wipe_sub)}}, .where = SUB},
};
