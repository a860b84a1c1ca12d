#include "tenkey.h"
#include "device.h"
#include "global.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <initializer_list>
#include <iterator>
#include "safeguards.h"

namespace
{
constexpr int ID_MAX = 108;
constexpr int ID_MAX_TWO_PADS = 128;
constexpr regnametbl SL_RegNameTbl[] = {
    {"P/P", "P/P", "P/P", 0},
    {"M/E1", "M/E-1", "M/E\n  1", 1},
    {"M/E2", "M/E-2", "M/E\n  2", 2},
    {"M/E3", "M/E-3", "M/E\n  3", 3},
    {"M/E4", "M/E-4", "M/E\n  4", 16},
    {"M/E5", "M/E-5", "M/E\n  5", 18},
    {"P/P Sub", "P/P Sub", "P/P\n Sub", 12},
    {"M/E1 Sub", "M/E-1 Sub", "M/E1\n Sub", 13},
    {"M/E2 Sub", "M/E-2 Sub", "M/E2\n Sub", 14},
    {"M/E3 Sub", "M/E-3 Sub", "M/E3\n Sub", 15},
    {"M/E4 Sub", "M/E-4 Sub", "M/E4\n Sub", 17},
    {"M/E5 Sub", "M/E-5 Sub", "M/E5\n Sub", 19},
    {"USER1", "User1", "USER\n   1", 4},
    {"USER2", "User2", "USER\n   2", 5},
    {"USER3", "User3", "USER\n   3", 6},
    {"USER4", "User4", "USER\n   4", 7},
    {"USER5", "User5", "USER\n   5", 8},
    {"USER6", "User6", "USER\n   6", 9},
    {"USER7", "User7", "USER\n   7", 10},
    {"USER8", "User8", "USER\n   8", 11},
    {"DME1", "DME1", "DME\n   1", 32},
    {"DME2", "DME2", "DME\n   2", 33},
    {"DME3", "DME3", "DME\n   3", 34},
    {"DME4", "DME4", "DME\n   4", 35},
    {"DME5", "DME5", "DME\n   5", 36},
    {"DME6", "DME6", "DME\n   6", 37},
    {"DME7", "DME7", "DME\n   7", 38},
    {"DME8", "DME8", "DME\n   8", 39},
    {"DEV1", "Dev1", "DEV\n   1", 96},
    {"DEV2", "Dev2", "DEV\n   2", 97},
    {"DEV3", "Dev3", "DEV\n   3", 98},
    {"DEV4", "Dev4", "DEV\n   4", 99},
    {"DEV5", "Dev5", "DEV\n   5", 100},
    {"DEV6", "Dev6", "DEV\n   6", 101},
    {"DEV7", "Dev7", "DEV\n   7", 102},
    {"DEV8", "Dev8", "DEV\n   8", 103},
    {"DEV9", "Dev9", "DEV\n   9", 104},
    {"DEV10", "Dev10", "DEV\n  10", 105},
    {"DEV11", "Dev11", "DEV\n  11", 106},
    {"DEV12", "Dev12", "DEV\n  12", 107},
    {"P-BUS", "P-Bus", "P-BUS", 64},
    {"GPI", "GPI", "GPI", 65},
    {"RTR", "RTR", "RTR", 67},
    {"MACRO", "MACRO", "MACRO", 69},
};
} // namespace

const regnametbl TenKey_NoAssign = {"No Assign", "", "No\nAssign", TEN_KEY_NO_ASSIGN};

const regnametbl* TenKey_Region(int n)
{
    return n >= 0 && n < int(std::size(SL_RegNameTbl)) ? &SL_RegNameTbl[n] : nullptr;
}

const regnametbl* TenKey_Find(const char* tally, int id_max)
{
    for (const regnametbl& row : SL_RegNameTbl)
        if (StrICmp(row.tally, tally) == 0)
            return row.id >= 0 && row.id <= id_max ? &row : &TenKey_NoAssign;
    return &TenKey_NoAssign;
}

int TenKey_IdMax(bool has_two_pads)
{
    return has_two_pads ? ID_MAX_TWO_PADS : ID_MAX;
}

bool TenKey_IsAssigned(const regnametbl* region)
{
    return region->id != TEN_KEY_NO_ASSIGN;
}

// --- What this system cannot use ---

static bool is_3d()
{
    return SYS_3DMode == 1;
}

static bool is_one_of(const char* text, std::initializer_list<const char*> texts)
{
    return std::any_of(texts.begin(), texts.end(), [&](const char* t) { return Same(t, text); });
}

static bool is_grayout_bank(const char* text)
{
    if (SYS_RefPnlType == DEVTYPE_QRD11B)
        return is_one_of(text, {"M/E\n  2", "M/E\n  3", "M/E2", "M/E3"});
    return is_one_of(text, {"M/E\n  3", "M/E\n  4", "M/E3", "M/E4"});
}

static bool is_grayout_channel(const char* text)
{
    return is_one_of(
        text, {"DME\n   3", "DME\n   4", "DME3", "DME4", "DME\n   7", "DME\n   8", "DME7", "DME8"});
}

bool TenKey_IsGrayout(const regnametbl* region)
{
    const char* const text = region->caption;
    return ((isSingleProc_DualLink() || is_3d()) && is_grayout_bank(text)) ||
           ((isSingleProc_DualLink_DME() || is_3d()) && is_grayout_channel(text));
}
