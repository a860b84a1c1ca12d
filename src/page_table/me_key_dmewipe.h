// me_key_dmewipe: the effects-unit wipe with which a key comes and goes: its pattern, and how far and large its channels
// are. Written for M/E-1, Key1.
#pragma once
#include "me_banks.h"
#include "patterns.h"
#include "st_me_key.h"

inline constexpr MePage me_key_dmewipe_pages[] = {
    {.page = {.id = 0x11170003, .tree = {"M/E-1", "Key1", "Transition", "DME Wipe", "Adjust"},
              .obj = {Base(base_sub, 0x11170000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Boxes(NB_Non)}}},
    {.page = {.id = 0x11170006, .tree = {"M/E-1", "Key1", "Transition", "DME Wipe", "Pattern Select"},
              .obj = {Base(base_sub, 0x11170000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Boxes(NB_Non), WipeList(dw_me_key_trans_dmewipeadj_1ch)}}},
    {.page = {.id = 0x11170007, .tree = {"M/E-1", "Key1", "Transition", "DME Wipe", "Remove Begin"},
              .obj = {Base(base_sub, 0x11170003), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 7), Boxes(NB_Non)}}},
};
