// register_region: what the commands and the selectors call the regions of the stored registers. A
// row stands where the region has its row in the mirror (snapshot_region), so the place in a table
// is the region's number everywhere. Which regions are selected belongs to pane_region.
#pragma once
#include "snapshot_region.h"
#include "types.h"
#include <array>

struct SSREGION {
    uint64_t bitmap =
        ~uint64_t(0);         // its bits in the masks of the commands; all set behind the last
    int id = 0;               // in the selectors; 0 behind the last
    const char* cmd = "";     // the word in the server's paths
    const char* caption = ""; // for the operator
};
using EFFREGION = SSREGION; // its masks have 64 bits and travel as two words, the high one first

constexpr int REGION_ID_KEY = 512; // of M/E-1, Key1

namespace region_table
{
constexpr SSREGION End()
{
    return {};
}

// The banks and their sub sides: ids and bits keep the order in which the sides were introduced.
inline constexpr int side_id[12] = {257, 258, 259, 264, 266, 256, 261, 262, 263, 265, 267, 260};
inline constexpr uint32_t side_snapshot[12] = {0x2,       0x4,       0x8,        0x10,
                                               0x20,      0x1,       0x1000000,  0x2000000,
                                               0x4000000, 0x8000000, 0x10000000, 0x800000};
inline constexpr uint64_t side_effect[12] = {0x2,
                                             0x4,
                                             0x8,
                                             uint64_t(0x40000) << 32,
                                             uint64_t(0x100000) << 32,
                                             0x1,
                                             uint64_t(0x4000) << 32,
                                             uint64_t(0x8000) << 32,
                                             uint64_t(0x10000) << 32,
                                             uint64_t(0x80000) << 32,
                                             uint64_t(0x200000) << 32,
                                             uint64_t(0x2000) << 32};

inline constexpr const char* user_caption[8] = {"User 1", "User 2", "User 3", "User 4",
                                                "User 5", "User 6", "User 7", "User 8"};
inline constexpr const char* channel_caption[8] = {"DME 1ch", "DME 2ch", "DME 3ch", "DME 4ch",
                                                   "DME 5ch", "DME 6ch", "DME 7ch", "DME 8ch"};

template <typename Table, typename Sides>
constexpr void FillCommon(Table& table, const Sides& sides, uint64_t user, uint64_t channel)
{
    for (size_t i = 0; i < 12; i++)
        table[i] = {sides[i], side_id[i], region_sides[i], region_sides[i]};
    for (size_t i = 0; i < 8; i++) {
        table[SS_REGION_USER1 + i] = {user << i, int(272 + i), region_users[i], user_caption[i]};
        table[SS_REGION_DME1 + i] = {channel << i, int(288 + i), region_channels[i],
                                     channel_caption[i]};
    }
}

constexpr auto Snapshots()
{
    std::array<SSREGION, SS_REGION_RTR + 2> table{};
    FillCommon(table, side_snapshot, 0x40, 0x4000);
    table[SS_REGION_RTR] = {0x400000, 352, "RTR", "RTR"};
    return table;
}

// A channel of the effects has two bits, its own and its global twin's.
constexpr auto Effects()
{
    std::array<EFFREGION, EFF_REGION_MACRO + 2> table{};
    FillCommon(table, side_effect, 0x10, 0x101000);
    for (size_t i = SS_REGION_USER1; i <= SS_REGION_DME8; i++)
        table[i].caption = table[i].cmd;
    for (size_t i = 0; i < region_devices.size(); i++)
        table[EFF_REGION_DEV1 + i] = {uint64_t(0x10000000) << i, int(304 + i), region_devices[i],
                                      region_devices[i]};
    table[EFF_REGION_PBUS] = {uint64_t(0x100) << 32, 320, "P-Bus", "P-Bus"};
    table[EFF_REGION_GPI] = {uint64_t(0x200) << 32, 336, "GPI", "GPI"};
    table[EFF_REGION_MACRO] = {uint64_t(0x20000) << 32, 368, "MACRO", "MCRO"};
    return table;
}

constexpr auto Sides()
{
    std::array<SSREGION, 13> table{};
    for (size_t i = 0; i < 12; i++)
        table[i] = Snapshots()[i];
    return table;
}

// "ME1 Key1"
struct KeyCaption {
    char text[12] = "";
};
constexpr auto KeyCaptions()
{
    constexpr const char* banks[] = {"ME1", "ME2", "ME3", "ME4", "ME5", "P/P"};
    std::array<KeyCaption, KeySSCmd.size()> captions{};
    for (size_t i = 0; i < captions.size(); i++) {
        char* to = captions[i].text;
        for (const char* from : {banks[i / REGION_KEYS], " Key"})
            while (*from)
                *to++ = *from++;
        *to = char('1' + i % REGION_KEYS);
    }
    return captions;
}
inline constexpr auto key_captions = KeyCaptions();

constexpr auto Keys()
{
    std::array<SSREGION, KeySSCmd.size() + 1> table{};
    for (size_t i = 0; i < KeySSCmd.size(); i++)
        table[i] = {uint64_t(1) << i, int(REGION_ID_KEY + i), KeySSCmd[i], key_captions[i].text};
    return table;
}
} // namespace region_table

// Each ends with a row of id 0.
inline constexpr auto SnapshotRegion = region_table::Snapshots();
inline constexpr auto EffectRegion = region_table::Effects();
inline constexpr auto WipeSSRegion = region_table::Sides();
inline constexpr auto DmeSSRegion = region_table::Sides();
inline constexpr auto KeySSRegion = region_table::Keys();

// The row with this id; -1 when the table has none.
constexpr int Region_RowOfId(const SSREGION* table, int id)
{
    for (int row = 0; table && table[row].id != 0; row++)
        if (table[row].id == id)
            return row;
    return -1;
}

// 1 when the two are of one sort, so that a register of the one can go to the other: banks with
// banks, users with users. The ids of a sort share all but the last four bits, keys apart.
constexpr int Region_IsSameSort(int id_a, int id_b)
{
    const bool are_keys = id_a >= REGION_ID_KEY && id_b >= REGION_ID_KEY;
    return are_keys || id_a >> 4 == id_b >> 4;
}
