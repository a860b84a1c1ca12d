// me_misc: what else a bank has: its transition, video process, priority and assignment of its keys, clip transition,
// snapshots. Written for M/E-1.
#pragma once
#include "me_banks.h"
#include "st_me_misc.h"

inline constexpr MePage me_misc_pages[] = {
    {.page = {.id = 0x11710000, .tree = {"M/E-1", "Misc", "Transition"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 1), Boxes(NB_Non), Cells(st_me_misc)}}, .where = MAIN},
    {.page = {.id = 0x11710000, .tree = {"M/E-1", "Misc", "Transition"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 1), Boxes(NB_Non), Cells(st_me_misc_sub)}}, .where = SUB},
    {.page = {.id = 0x11710001, .tree = {"M/E-1", "Misc", "Transition", "Color Matte"},
              .obj = {Base(base_sub, 0x11710000), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 1), Boxes(NB_Non), Cells(st_me_misc)}}, .where = MAIN},
    {.page = {.id = 0x11710002, .tree = {"M/E-1", "Misc", "Transition", "FTB"},
              .obj = {Base(base_sub, 0x11710000), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 1), Boxes(NB_Non), Cells(st_me_misc)}}, .where = MAIN, .kind = ONLY_PGM},
    {.page = {.id = 0x11720000, .tree = {"M/E-1", "Misc", "Video Process"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 2), Boxes(NB_Non), Cells(st_me_misc)}}, .where = MAIN},
    {.page = {.id = 0x11720000, .tree = {"M/E-1", "Misc", "Video Process"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 2), Boxes(NB_Non), Cells(st_me_misc_sub)}}, .where = SUB},
    {.page = {.id = 0x11730000, .tree = {"M/E-1", "Misc", "Key Priority"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 3), Boxes(NB_Non), Cells(st_me_misc)}}, .where = MAIN},
    {.page = {.id = 0x11730000, .tree = {"M/E-1", "Misc", "Key Priority"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 3), Boxes(NB_Non), Cells(st_me_misc_sub)}}, .where = SUB},
    {.page = {.id = 0x11730001, .tree = {"M/E-1", "Misc", "Key Priority", "Key 5-8"},
              .obj = {Base(base_sub, 0x11730000), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 3), Boxes(NB_Non), Cells(st_me_misc)}}, .where = MAIN},
    {.page = {.id = 0x11740000, .tree = {"M/E-1", "Misc", "Key Assign"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 4), Boxes(NB_Non), Cells(st_me_misc)}}, .where = MAIN},
    {.page = {.id = 0x11760000, .tree = {"M/E-1", "Misc", "Clip Transition"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 5), Boxes(NB_Non), Cells(st_me_misc)}}, .where = MAIN},
    {.page = {.id = 0x11770000, .tree = {"M/E-1", "Misc", "Snapshot"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 7), BottomTabs(hf_me_misc, 6), Boxes(NB_Non), Cells(st_me_misc)}}, .where = MAIN},
};
