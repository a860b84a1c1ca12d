// snapshot_region: the one numbering of the regions that have stored registers. The position of a
// word in its table is the region's number everywhere: in the mirror, in LMSG_REGISTER, in the
// tables of the pages. The words are the ones in the server's paths; what the operator reads may
// differ and belongs to the pages.
#pragma once
#include <array>
#include <cstddef>

// Rows of SnapshotCmd; up to SS_REGION_DME8 those of EffectCmd, too, and up to SS_REGION_PP_SUB
// those of WipeSSCmd and DMESSCmd.
enum snapshot_region_id : int {
    SS_REGION_ME1,
    SS_REGION_ME2,
    SS_REGION_ME3,
    SS_REGION_ME4,
    SS_REGION_ME5,
    SS_REGION_PP,
    SS_REGION_ME1_SUB,
    SS_REGION_ME2_SUB,
    SS_REGION_ME3_SUB,
    SS_REGION_ME4_SUB,
    SS_REGION_ME5_SUB,
    SS_REGION_PP_SUB,
    SS_REGION_USER1,
    SS_REGION_USER2,
    SS_REGION_USER3,
    SS_REGION_USER4,
    SS_REGION_USER5,
    SS_REGION_USER6,
    SS_REGION_USER7,
    SS_REGION_USER8,
    SS_REGION_DME1,
    SS_REGION_DME2,
    SS_REGION_DME3,
    SS_REGION_DME4,
    SS_REGION_DME5,
    SS_REGION_DME6,
    SS_REGION_DME7,
    SS_REGION_DME8,
    SS_REGION_RTR,
    SS_REGION_MASTER, // the Master Snapshot: no word of its own
};

// The rows that only EffectCmd has.
enum effect_region_id : int {
    EFF_REGION_DEV1 = SS_REGION_DME8 + 1,
    EFF_REGION_DEV12 = EFF_REGION_DEV1 + 11,
    EFF_REGION_PBUS,
    EFF_REGION_GPI,
    EFF_REGION_MACRO,
    EFF_REGION_MASTER, // the Master Timeline: no word of its own
};

template <size_t N> using RegionWords = std::array<const char*, N>;

template <size_t... N> constexpr auto JoinWords(const RegionWords<N>&... parts)
{
    RegionWords<(N + ...)> all{};
    size_t n = 0;
    const auto append = [&all, &n](const auto& part) {
        for (const char* word : part)
            all[n++] = word;
    };
    (append(parts), ...);
    return all;
}

inline constexpr RegionWords<12> region_sides = {"M/E-1",     "M/E-2",     "M/E-3",     "M/E-4",
                                                 "M/E-5",     "P/P",       "M/E-1 Sub", "M/E-2 Sub",
                                                 "M/E-3 Sub", "M/E-4 Sub", "M/E-5 Sub", "P/P Sub"};
inline constexpr RegionWords<8> region_users = {"User1", "User2", "User3", "User4",
                                                "User5", "User6", "User7", "User8"};
inline constexpr RegionWords<8> region_channels = {"DME1", "DME2", "DME3", "DME4",
                                                   "DME5", "DME6", "DME7", "DME8"};
inline constexpr RegionWords<12> region_devices = {"Dev1", "Dev2",  "Dev3",  "Dev4",
                                                   "Dev5", "Dev6",  "Dev7",  "Dev8",
                                                   "Dev9", "Dev10", "Dev11", "Dev12"};

inline constexpr auto EffectCmd =
    JoinWords(region_sides, region_users, region_channels, region_devices,
              RegionWords<4>{"P-Bus", "GPI", "MACRO", ""});
inline constexpr auto SnapshotCmd =
    JoinWords(region_sides, region_users, region_channels, RegionWords<2>{"RTR", ""});
inline constexpr auto WipeSSCmd = region_sides;
inline constexpr auto DMESSCmd = region_sides;
static_assert(EffectCmd.size() == EFF_REGION_MASTER + 1);
static_assert(SnapshotCmd.size() == SS_REGION_MASTER + 1);

// Bank and key: the bank's row of WipeSSCmd (main sides only) times REGION_KEYS plus the key from
// 0.
constexpr int REGION_KEYS = 8;
#define KEYS_OF(bank)                                                                              \
    bank "@Key1", bank "@Key2", bank "@Key3", bank "@Key4", bank "@Key5", bank "@Key6",            \
        bank "@Key7", bank "@Key8"
inline constexpr RegionWords<6 * REGION_KEYS> KeySSCmd = {KEYS_OF("M/E-1"), KEYS_OF("M/E-2"),
                                                          KEYS_OF("M/E-3"), KEYS_OF("M/E-4"),
                                                          KEYS_OF("M/E-5"), KEYS_OF("P/P")};
#undef KEYS_OF

inline constexpr auto ClipEventCmd = region_users;
inline constexpr RegionWords<20> ClipEventSubREG = {
    "FM1",  "FM2",  "FM3",  "FM4",  "FM5",  "FM6",  "FM7",  "FM8",  "FM9",  "FM10",
    "FM11", "FM12", "FM13", "FM14", "FM15", "FM16", "FM17", "FM18", "FM19", "FM20"};
