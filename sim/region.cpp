#include "region.h"
#include "text.h"
#include <cctype>

static constexpr int BANKS = 6; // M/E-1 to M/E-5 and P/P, in this order

namespace
{
struct Bank {
    const char* name;
    const char* tree;
    int code, sub_code;
    int byte, bit, sub_byte, sub_bit;
    uint64_t effect, sub_effect;
    uint32_t snapshot, sub_snapshot;
};
} // namespace

static constexpr uint64_t high(uint32_t bits)
{
    return uint64_t(bits) << 32;
}

static constexpr Bank banks[BANKS] = {
    {"M/E-1", "M/E-1", 1, 5, 1, 1, 1, 5, 2, high(0x4000), 0x02, 0x1000000},
    {"M/E-2", "M/E-2", 2, 6, 1, 2, 1, 6, 4, high(0x8000), 0x04, 0x2000000},
    {"M/E-3", "M/E-3", 3, 7, 1, 3, 1, 7, 8, high(0x10000), 0x08, 0x4000000},
    {"M/E-4", "M/E-4", 80, 81, 7, 0, 7, 1, high(0x40000), high(0x80000), 0x10, 0x8000000},
    {"M/E-5", "M/E-5", 82, 83, 7, 2, 7, 3, high(0x100000), high(0x200000), 0x20, 0x10000000},
    {"P/P", "PGM/PST", 0, 4, 1, 0, 1, 4, 1, high(0x2000), 0x01, 0x800000},
};

// Devices 1 to 4 have the last bits of the low word, the others the first of the high word: one run
// of 64-bit places.
static void region_add_numbered(std::vector<Region>& all)
{
    for (int n = 0; n < 8; ++n)
        all.push_back({Text_Format("User%d", n + 1), 8 + n, 2, n, 0x10ull << n, 0x40u << n,
                       Text_Format("User%d", n + 1), 0});
    for (int n = 0; n < 8; ++n)
        all.push_back({Text_Format("DME%d", n + 1), 16 + n, 3, n, 0x1000ull << n, 0x4000u << n,
                       n == 0 ? "DME" : "", n / 4 + 1});
    for (int n = 0; n < 12; ++n)
        all.push_back({Text_Format("Dev%d", n + 1), 48 + n, n < 8 ? 5 : 6, n % 8,
                       0x10000000ull << n, 0, "", 0});
}

static std::vector<Region> region_table()
{
    std::vector<Region> all;
    for (const Bank& b : banks)
        all.push_back({b.name, b.code, b.byte, b.bit, b.effect, b.snapshot, b.tree, 0});
    for (const Bank& b : banks)
        all.push_back({std::string(b.name) + " Sub", b.sub_code, b.sub_byte, b.sub_bit,
                       b.sub_effect, b.sub_snapshot, std::string(b.tree) + " SUB", 0});
    region_add_numbered(all);
    all.push_back({"P-Bus", 64, 6, 4, high(0x100), 0, "", 0});
    all.push_back({"GPI", 65, 6, 5, high(0x200), 0, "", 0});
    all.push_back({"MACRO", 69, 6, 7, high(0x20000), 0, "", 0});
    all.push_back({"RTR", 66, 6, 6, 0, 0x400000, "Router", 0});
    for (int n = 0; n < 8; ++n)
        all.push_back(
            {Text_Format("DME%d GLB", n + 1), 32 + n, 3, n, 0x100000ull << n, 0, "", n / 4 + 1});
    return all;
}

static const std::vector<Region> table = region_table();

const std::vector<Region>& Regions()
{
    return table;
}

static std::string region_plain(const std::string& name)
{
    std::string plain;
    for (const char c : name)
        if (isalnum((unsigned char)c))
            plain += char(toupper((unsigned char)c));
    return plain;
}

int Region_ByName(const std::string& name)
{
    const std::string plain = region_plain(name);
    for (int i = 0; i < REGION_COUNT; ++i)
        if (region_plain(Regions()[size_t(i)].name) == plain)
            return i;
    return -1;
}

int Region_ByCode(int code)
{
    for (int i = 0; i < REGION_COUNT; ++i)
        if (Regions()[size_t(i)].code == code)
            return i;
    return -1;
}

int Region_OfSnapshotRow(int row)
{
    return row < REGION_SNAPSHOTS ? row : REGION_RTR;
}

std::vector<int> Region_OfMask(uint64_t effect_mask)
{
    std::vector<int> found;
    for (int i = 0; i < REGION_COUNT; ++i)
        if (Regions()[size_t(i)].effect_mask & effect_mask)
            found.push_back(i);
    return found;
}
