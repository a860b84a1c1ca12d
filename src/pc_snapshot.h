// pc_snapshot: what the snapshot pages have beyond the family of the register pages: the attributes
// of a register (pc_snapshot), its crosspoint hold (pc_snapshot_xpthold) and the clips that start
// with it (pc_snapshot_clip).
#pragma once
#include "a_pc.h"
#include <cstdint>

extern const PC_TBL pc_snapshot_xpthold; // argument: 1 for the router's list
extern const PC_TBL pc_snapshot_clip;

constexpr uint32_t PAGE_SNAPSHOT_ATTRIBUTE = 0x63210000;
constexpr uint32_t PAGE_SNAPSHOT_XPTHOLD = 0x63210001;
constexpr uint32_t PAGE_SNAPSHOT_XPTHOLD_RTR = 0x63210101;
constexpr uint32_t PAGE_SNAPSHOT_CLIP = 0x63210002;

constexpr int KEY_RECALL_MODES = 3; // modifier, transition, crosspoint

// Buttons that the code names.
enum : int {
    BTN_SNAPSHOT_EFFDISS = 33,
    BTN_SNAPSHOT_AUTOTRANS = 34,
    BTN_SNAPSHOT_GPI = 35,
    BTN_SNAPSHOT_DURATION = 36,
    BTN_SNAPSHOT_XPTHOLD = 37,
    BTN_SNAPSHOT_CLIP = 38,
    BTN_KEYSS_MODIFIER = 33, // the three modes side by side
    BTN_CLIP_AUTO_PLAY = 49,
};
