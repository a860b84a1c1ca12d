// region: the parts of the switcher that have effects and snapshots of their own. This module knows
// their names, codes and bits and holds no state; what plays in them belongs to timeline, what is
// stored for them to store.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

struct Region {
    std::string name;    // as the register lists write it
    int code = 0;        // on the binary link
    int select_byte = 0; // place in the selection frame
    int select_bit = 0;
    uint64_t effect_mask = 0;   // of its own in effect commands; 0: has no effects
    uint32_t snapshot_mask = 0; // in snapshot commands; 0: has no snapshots
    std::string tree;           // first word of the paths that a snapshot keeps; empty: none
    int unit = 0;               // DME channels: the effects unit that they run on
};

// Indices into Regions(). The register lists of effects count them in this order.
enum RegionIndex {
    REGION_ME1 = 0,
    REGION_PP = 5,
    REGION_ME1_SUB = 6,
    REGION_USER1 = 12,
    REGION_DME1 = 20,
    REGION_DEV1 = 28,
    REGION_PBUS = 40,
    REGION_GPI = 41,
    REGION_MACRO = 42,
    REGION_RTR = 43,
    REGION_GLOBAL1 = 44, // the common part of a DME channel: selected together with it
    REGION_COUNT = 52,
};
constexpr int REGION_EFFECTS = 43;   // that have effect registers: 0 to MACRO
constexpr int REGION_SNAPSHOTS = 28; // that have snapshots: 0 to DME8, and RTR behind them

const std::vector<Region>& Regions();
// Blanks, marks and case don't matter: "M/E-1 Sub", "me1sub". -1 when there is none.
int Region_ByName(const std::string& name);
int Region_ByCode(int code);       // -1 when there is none
int Region_OfSnapshotRow(int row); // rows 0 to 28 of the snapshot lists
std::vector<int> Region_OfMask(uint64_t effect_mask);
