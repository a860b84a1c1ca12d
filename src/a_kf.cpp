#include "a_kf.h"
#include "a_kf_private.h"
#include "bin_frame.h"
#include "command.h"
#include "global.h"
#include "me_bank.h"
#include "message.h"
#include "netio.h"
#include "text.h"
#include "timecode.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include <string_view>
#include "safeguards.h"

namespace
{
constexpr int ASSIGNABLE = 52; // regions behind these are places for later ones
constexpr int TEN_KEYS = 23;
constexpr int REGIONS_A_KEY = 4;

struct RegionRow {
    const char* name;
    int code;
};
constexpr RegionRow region_rows[] = {
    {"M/E-1", 1},     {"M/E-2", 2},     {"M/E-3", 3},     {"M/E-4", 80},     {"M/E-5", 82},
    {"P/P", 0},       {"USER1", 8},     {"USER2", 9},     {"USER3", 10},     {"USER4", 11},
    {"USER5", 12},    {"USER6", 13},    {"USER7", 14},    {"USER8", 15},     {"DME1", 16},
    {"DME2", 17},     {"DME3", 18},     {"DME4", 19},     {"DME5", 20},      {"DME6", 21},
    {"DME7", 22},     {"DME8", 23},     {"DME1 GLB", 32}, {"DME2 GLB", 33},  {"DME3 GLB", 34},
    {"DME4 GLB", 35}, {"DME5 GLB", 36}, {"DME6 GLB", 37}, {"DME7 GLB", 38},  {"DME8 GLB", 39},
    {"DEV1", 48},     {"DEV2", 49},     {"DEV3", 50},     {"DEV4", 51},      {"DEV5", 52},
    {"DEV6", 53},     {"DEV7", 54},     {"DEV8", 55},     {"DEV9", 56},      {"DEV10", 57},
    {"DEV11", 58},    {"DEV12", 59},    {"P-BUS", 64},    {"GPI", 65},       {"RTR", 66},
    {"M/E-1 Sub", 5}, {"M/E-2 Sub", 6}, {"M/E-3 Sub", 7}, {"M/E-4 Sub", 81}, {"M/E-5 Sub", 83},
    {"P/P Sub", 4},   {"MACRO", 69},
};
static_assert(std::size(region_rows) == ASSIGNABLE);

// The regions of the banks stand in the order of the banks, the sub sides in one run behind.
constexpr int SUB_FIRST = 45;
constexpr bool RegionsFollowBanks()
{
    for (const MeBank& bank : me_bank) {
        const std::string_view sub = region_rows[SUB_FIRST + bank.place].name;
        if (region_rows[bank.place].name != std::string_view(bank.word) ||
            sub.substr(0, sub.size() - 4) != bank.word || !sub.ends_with(" Sub"))
            return false;
    }
    return true;
}
static_assert(RegionsFollowBanks());
constexpr RegionRow free_row = {"", 240};
constexpr RegionRow end_row = {"", 254}; // of EMPTY_ROW
} // namespace

KF_REGION Region[KF_REGIONS];
int RegionPriority[KF_REGIONS];
KF_REGION* tlPriority[KF_REGIONS];
KF_REGION* tlDisp[TL_ROWS];
int RegionScroll;
int tlSTime;
int tlETime;
int tlSETime_redraw;
int RefRegion;
int tlOrder_stale;
int GL_TimelineDrawInterval;

// A bank's sub side follows the bank.
const int TlAssign_TBL_List[KF_REGIONS] = {
    0,  45, 1,  46, 2,  47, 3,  48, 4,  49, 5,  50, 6,  7,  8,  9,  10, 11, 12, 13, 14, 15,
    16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37,
    38, 39, 40, 41, 42, 43, 44, 51, 52, 53, 54, 55, 56, 57, 58, 59, 60, 61, 62, 63,
};

// The order as the server or the operator has said it last. Regions that this system does not have
// keep their places in it: before the assignments have come that is all of them.
static int KeptOrder[KF_REGIONS];
static KF_TBL kf;                           // the functions of the page that is up
static int tenkey[TEN_KEYS][REGIONS_A_KEY]; // region index of each assignment, -1 none

// --- Life ---

static const RegionRow& row_of(int region)
{
    return region < ASSIGNABLE ? region_rows[region] : region == EMPTY_ROW ? end_row : free_row;
}

static void init_region(KF_REGION& r, const RegionRow& row)
{
    r = {};
    r.name = row.name;
    r.code = row.code;
    CopyText(r.regname, "--------");
    r.redraw = 1;
    r.redraw_tl = 1;
}

void KF_Init()
{
    for (int i = 0; i < KF_REGIONS; i++) {
        init_region(Region[i], row_of(i));
        RegionPriority[i] = KeptOrder[i] = KF_NO_REGION;
        tlPriority[i] = &Region[EMPTY_ROW];
    }
    for (auto& key : tenkey)
        std::fill(std::begin(key), std::end(key), -1);
    RegionScroll = 0;
    RefRegion = KF_NO_REGION;
    GL_TimelineDrawInterval = 0;
    tlSTime = TC2Frame("01:00:00:00");
    tlETime = TC2Frame("01:00:10:00");
    kf_fill_rows();
}

int KF_Create(const KF_TBL* table, uint32_t var)
{
    if (!table) {
        if (kf.create_func)
            kf.create_func(0, var);
        kf = {};
        return 1;
    }
    kf = *table;
    if (kf.create_func)
        kf.create_func(1, var);
    return 0;
}

int KF_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    if (msg == MSG_BINTALLY)
        return KF_TallyProc(uint32_t(ax), reinterpret_cast<const unsigned char*>(bx), int(cx));
    return kf.proc_func ? kf.proc_func(msg, ax, bx, cx, dx) : 0;
}

static bool is_sub_side(int code)
{
    return (code >= 4 && code <= 7) || code == 81 || code == 83;
}

static void add_streams(bool sub_sides)
{
    for (const RegionRow& row : region_rows) {
        if (is_sub_side(row.code) != sub_sides)
            continue;
        const unsigned char data[] = {1, static_cast<unsigned char>(row.code), 1, 0};
        (void)Net_SendBinCommand(BIN_SETUP, STREAM_JOIN, data, sizeof data); // it fits
    }
}

void KF_InitCommand()
{
    add_streams(false);
    (void)Net_SendBinCommand(BIN_SETUP, STREAM_JOINED, nullptr, 0);
}

void KF_InitCommand_MP2()
{
    add_streams(true);
    for (const RegionRow& row : region_rows) {
        const unsigned char code = static_cast<unsigned char>(row.code);
        if (is_sub_side(row.code))
            (void)Net_SendBinCommand(BIN_SETUP, STREAM_JOINED, &code, 1);
    }
}

// --- The regions ---

static bool is_region(int region)
{
    return region >= 0 && region < KF_REGIONS;
}

int KF_IsRegionSelected(int region)
{
    return is_region(region) ? Region[region].selected : 0;
}

int KF_IsRegionAssigned(int region)
{
    return is_region(region) ? Region[region].assigned : 0;
}

int KF_SetRegionAssigned(int region, int v)
{
    if (!is_region(region))
        return -1;
    if (Region[region].assigned != v)
        tlOrder_stale = 1;
    Region[region].assigned = v;
    return 0;
}

int KF_GetRegionDisplay(int region)
{
    return is_region(region) ? Region[region].display : KF_REMOVED;
}

int KF_SetRegionDisplay(int region, int v)
{
    if (!is_region(region) || v < KF_SHOWN || v > KF_REMOVED)
        return -1;
    if (Region[region].display != v)
        tlOrder_stale = 1;
    Region[region].display = v;
    return 0;
}

const char* KF_GetRegionName(int region)
{
    return is_region(region) ? Region[region].name : nullptr;
}

const KF_REGION* KF_GetRegionStatus(int region)
{
    return is_region(region) ? &Region[region] : nullptr;
}

int KF_RegionOfCode(int code)
{
    for (int i = 0; i < ASSIGNABLE; i++)
        if (region_rows[i].code == code)
            return i;
    return -1;
}

int KF_RefRegionCode()
{
    return RefRegion;
}

static int region_of_name(const char* name)
{
    for (int i = 0; i < ASSIGNABLE; i++)
        if (StrICmp(region_rows[i].name, name) == 0)
            return i;
    return -1;
}

static void renew_assigned()
{
    int assigned[ASSIGNABLE] = {};
    for (const auto& key : tenkey) {
        for (const int region : key) {
            if (region < 0)
                continue;
            assigned[region] = 1;
            if (region >= KF_DME_FIRST && region <= KF_DME_LAST)
                assigned[region + KF_DME_TO_GLOBAL] = 1;
        }
    }
    for (int i = 0; i < ASSIGNABLE; i++)
        (void)KF_SetRegionAssigned(i, assigned[i]); // in bounds
}

void KF_RegionAssignTally(int row, const char* value)
{
    if (row < 1 || row > TEN_KEYS || !value)
        return;
    char text[CMD_SIZE];
    char* names[REGIONS_A_KEY];
    CopyText(text, value);
    const int n = SplitVars(text, names, REGIONS_A_KEY);
    for (int i = 0; i < REGIONS_A_KEY; i++)
        tenkey[row - 1][i] = i < n ? region_of_name(names[i]) : -1;
    renew_assigned();
}

// --- Their order ---

int KF_GetRegionPriority(int place)
{
    return is_region(place) ? RegionPriority[place] : KF_NO_REGION;
}

int KF_SetRegionPriority(int place, int region)
{
    if (!is_region(place))
        return -1;
    const int kept = is_region(region) ? region : KF_NO_REGION;
    if (KeptOrder[place] != kept)
        tlOrder_stale = 1;
    KeptOrder[place] = kept;
    return 0;
}

int KF_IsOrderStale()
{
    return tlOrder_stale;
}

int KF_IsAnyAssigned()
{
    return std::any_of(std::begin(Region), std::end(Region),
                       [](const KF_REGION& r) { return r.assigned != 0; });
}

static bool wants_place(int region)
{
    return Region[region].assigned && Region[region].display != KF_REMOVED;
}

static bool is_in(const int (&list)[KF_REGIONS], int region)
{
    return std::find(std::begin(list), std::end(list), region) != std::end(list);
}

namespace
{
// A list of regions in the making. Each is in it once, however often it is appended.
struct OrderDraft {
    int region[KF_REGIONS];
    int count = 0;
    bool has[KF_REGIONS] = {};
};
} // namespace

static void append(OrderDraft& draft, int region)
{
    if (!is_region(region) || draft.has[region] || !wants_place(region))
        return;
    draft.has[region] = true;
    draft.region[draft.count++] = region;
}

// Regions that the kept order does not have come first: the new ones, then those that were in front
// already. Behind them stands what it has and this system shows.
static void derive_order()
{
    OrderDraft draft;
    for (int region = 0; region < KF_REGIONS; region++)
        if (!is_in(KeptOrder, region) && !is_in(RegionPriority, region))
            append(draft, region);
    for (const int region : RegionPriority)
        if (!is_in(KeptOrder, region))
            append(draft, region);
    for (const int region : KeptOrder)
        append(draft, region);
    std::copy(draft.region, draft.region + draft.count, RegionPriority);
    std::fill(RegionPriority + draft.count, std::end(RegionPriority), KF_NO_REGION);
}

// From now on the order is the one that is listed.
static void keep_order()
{
    std::copy(std::begin(RegionPriority), std::end(RegionPriority), KeptOrder);
}

static void insert_place(int place, int region)
{
    int* const at = RegionPriority + place;
    std::copy_backward(at, std::end(RegionPriority) - 1, std::end(RegionPriority));
    *at = region;
}

int kf_furthest_scroll()
{
    const auto end = std::find_if(std::begin(tlPriority), std::end(tlPriority),
                                  [](const KF_REGION* r) { return r->code >= KF_NO_CODE; });
    return std::max(int(end - std::begin(tlPriority)) - TL_ROWS, 0);
}

void kf_fill_rows()
{
    RegionScroll = std::clamp(RegionScroll, 0, kf_furthest_scroll());
    for (int row = 0; row < TL_ROWS; row++) {
        tlDisp[row] = tlPriority[RegionScroll + row];
        tlDisp[row]->redraw = 1;
    }
    tlSETime_redraw = 1;
}

template <class Wanted> static int list_if(int n, Wanted wanted)
{
    for (const int region : RegionPriority)
        if (is_region(region) && wanted(Region[region]))
            tlPriority[n++] = &Region[region];
    return n;
}

void KF_InitPriority()
{
    derive_order();
    std::fill(std::begin(tlPriority), std::end(tlPriority), &Region[EMPTY_ROW]);
    if (GL_TimelineDisplayPriority) {
        const int n = list_if(0, [](const KF_REGION& r) { return r.selected != 0; });
        list_if(n, [](const KF_REGION& r) { return r.selected == 0; });
    } else {
        list_if(0, [](const KF_REGION& r) { return r.display == KF_SHOWN; });
    }
    kf_fill_rows();
    tlOrder_stale = 0;
}

int KF_InsertRegionPriority(int place, int region)
{
    if (!is_region(place) || !is_region(region))
        return -1;
    insert_place(place, region);
    for (int i = 0; i < KF_REGIONS; i++) {
        if (RegionPriority[i] != region || i == place)
            continue;
        std::copy(RegionPriority + i + 1, std::end(RegionPriority), RegionPriority + i);
        RegionPriority[KF_REGIONS - 1] = KF_NO_REGION;
        break;
    }
    Region[region].display = KF_SHOWN;
    keep_order();
    KF_InitPriority();
    return 0;
}

void KF_DefaultRegionPriority()
{
    int n = 0;
    for (const int region : TlAssign_TBL_List) {
        Region[region].display = KF_SHOWN;
        if (Region[region].assigned)
            RegionPriority[n++] = region;
    }
    std::fill(RegionPriority + n, std::end(RegionPriority), KF_NO_REGION);
    keep_order();
    KF_InitPriority();
}
