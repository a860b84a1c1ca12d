#include "bus_tally.h"
#include "a_kf.h"
#include "global.h"
#include "me_config.h"
#include "menu_macro.h"
#include <array>
#include <iterator>

#include "safeguards.h"

// --- Effects too small for a file of their own ---

template <int* state> static TallyRoute tally_flag(const Tally& t)
{
    *state = IsTrue(t.value);
    return TallyRoute::Pass;
}

template <int* state> static TallyRoute tally_decimal(const Tally& t)
{
    *state = Decimal(t.value);
    return TallyRoute::Pass;
}

template <int* state> static TallyRoute tally_switch_or_number(const Tally& t)
{
    *state = SwitchOrNumber(t.value);
    return TallyRoute::Pass;
}

constexpr int TEN_KEY_ROWS = 23;

static TallyRoute tally_ten_key_region(const Tally& t)
{
    const int row = Index(t.rest, TEN_KEY_ROWS + 1);
    Parts p;
    if (row < 1 || SplitValue(p, t.value, 3) < 3)
        return TallyRoute::Pass;
    KF_RegionAssignTally(row, p.v[2]); // the last part holds the commas of the four regions
    return TallyRoute::Pass;
}

static TallyRoute tally_menu_macro_run(const Tally& t)
{
    const int reg = Index(t.value, MENU_MACRO_REGISTERS + 1);
    if (reg >= 0)
        mm_macro_run(reg);
    return TallyRoute::Pass;
}

// The menu plays the same paths with "LOCAL" to its own buttons.
static TallyRoute tally_rotation(const Tally& t)
{
    if (!Same(t.value, "LOCAL"))
        GL_ProcKey_Rotation(t.path, t.value);
    return TallyRoute::Pass;
}

// --- The table ---

namespace
{
enum class Match { Exact, Prefix, Contains };

struct Row {
    Match match;
    const char* path;
    TallyRoute (*apply)(const Tally&);
    int arg = 0;
    uint32_t hash = 0; // of an exact path
    int length = 0;
};

constexpr Row MakeRow(Match match, const char* path, TallyRoute (*apply)(const Tally&), int arg)
{
    Row row{match, path, apply, arg, 0, 0};
    for (; path[row.length]; row.length++)
        row.hash += static_cast<unsigned char>(path[row.length]);
    return row;
}
constexpr Row Exact(const char* path, TallyRoute (*apply)(const Tally&), int arg = 0)
{
    return MakeRow(Match::Exact, path, apply, arg);
}
constexpr Row Prefix(const char* path, TallyRoute (*apply)(const Tally&), int arg = 0)
{
    return MakeRow(Match::Prefix, path, apply, arg);
}
constexpr Row Contains(const char* path, TallyRoute (*apply)(const Tally&), int arg = 0)
{
    return MakeRow(Match::Contains, path, apply, arg);
}
} // namespace

#define FORMAT "Engineering Setup@System@Format@"
#define SYSTEM_CONFIG "Engineering Setup@System@System Config@"
#define PANEL_CONFIG "Engineering Setup@Panel@Config@"
#define SWITCHER "Engineering Setup@Switcher@"
#define DME_MODEL "Engineering Setup@DME@Model@"

static constexpr Row rows[] = {
    Exact("TopMenu", tally_top_menu),
    Exact("Page", tally_page),
    Exact("Info@DME@RefCH", tally_dme_reference),
    Exact("Info@DME@SelCH", tally_dme_channel),
    Exact(FORMAT "Video Format@PNL1", tally_video_format),
    Exact(FORMAT "Video Format@PNL2", tally_video_format),
    Exact(FORMAT "Video Format@PNL3", tally_video_format),
    Exact(FORMAT "Video Format@PNL4", tally_video_format),
    Exact(FORMAT "Video Format@SWR1", tally_video_format),
    Exact(FORMAT "Video Format@SWR2", tally_video_format),
    Exact(FORMAT "Video Format@DME1", tally_video_format),
    Exact(FORMAT "Video Format@DME2", tally_video_format),
    Exact(FORMAT "Video Format@DME3", tally_video_format),
    Exact(FORMAT "Video Format@DME4", tally_video_format),
    Exact(FORMAT "Video Format@MPE1", tally_video_format),
    Exact(FORMAT "Video Format@MPE2", tally_video_format),
    Exact(FORMAT "Video Format@MPE3", tally_video_format),
    Exact(FORMAT "Video Format@MPE4", tally_video_format),
    Exact(FORMAT "Video Format2@SWR1", tally_video_format2),
    Exact(FORMAT "Video Format2@SWR2", tally_video_format2),
    Exact(FORMAT "Reference@SWR1", tally_reference),
    Exact(FORMAT "Reference@SWR2", tally_reference),
    Exact(FORMAT "Switcher Aspect", tally_switcher_aspect),
    Exact(FORMAT "DME Aspect", tally_dme_aspect),
    Exact(FORMAT "3D Mode@SWR1", tally_3d_mode, 1),
    Exact(FORMAT "3D Mode@SWR2", tally_3d_mode, 2),
    Exact(FORMAT "4K Mode", tally_4k_mode),
    Exact("16@Frame Mem@External HDD@Busy", tally_hdd_busy, 0),
    Exact("32@Frame Mem@External HDD@Busy", tally_hdd_busy, 1),
    Exact("Engineering Setup@System@Network Config@List", tally_network_config),
    Exact("Info@IP Address@Menu CPU", tally_menu_cpu),
    Exact(SYSTEM_CONFIG "Panel Assign", tally_panel_assign),
    Exact(SYSTEM_CONFIG "Switcher Assign", tally_switcher_assign),
    Prefix(SYSTEM_CONFIG "System Operation Mode@", tally_operation_mode),
    Prefix("Global Effect@Ch1-Ch4@Combine@Ch", tally_combine, 0),
    Prefix("Global Effect@Ch5-Ch8@Combine@Ch", tally_combine, 4),
    Exact("Global Effect@Ch1-Ch2@Combine@Ch2", tally_combine_pair, 0),
    Exact("Global Effect@Ch3-Ch4@Combine@Ch2", tally_combine_pair, 1),
    Exact("Global Effect@Ch5-Ch6@Combine@Ch2", tally_combine_pair, 2),
    Exact("Global Effect@Ch7-Ch8@Combine@Ch2", tally_combine_pair, 3),
    Exact("MPE@Fx@Channel@Reference", tally_mpe_reference),
    Exact("MPE@Fx@Channel@Selected", tally_mpe_channel),
    Prefix(PANEL_CONFIG "M/E Operation@", tally_me_operation),
    Exact(PANEL_CONFIG "External Bus Link@Master Bus List", tally_external_bus),
    Exact(SWITCHER "Link@Internal Bus Link@Master Bus List", tally_internal_bus),
    Exact(PANEL_CONFIG "External Bus Link@S-BUS Src Name List", tally_sbus_source),
    Exact(PANEL_CONFIG "External Bus Link@S-BUS Dst Name List", tally_sbus_destination),
    Exact("Engineering Setup@Panel@Xpt Assign@Source@List", tally_xpt_source),
    Exact("Engineering Setup@Panel@Xpt Assign@Assign", tally_xpt_assign),
    Exact(SWITCHER "Key/Wipe@FM Auto Store", tally_flag<&SYS_AutoStore>),
    Exact("Frame Mem@Status@Store Number Sense", tally_decimal<&SYS_StoreFree>),
    Exact("Frame Mem@Status@Store Number2 Sense", tally_decimal<&SYS_StoreFree2>),
    Prefix(SWITCHER "Transition@Key Transition@", tally_key_transition),
    Exact(SWITCHER "Config@DME Wipe Sub Enable", tally_flag<&SYS_DWSubEnable>),
    Exact(SWITCHER "Config@MP2 Re-Entry", tally_flag<&SYS_MP2ReEntry>),
    Exact(SWITCHER "Key/Wipe/FM/CCR@CCR Intrnl Signl Enbl", tally_flag<&SYS_CCRReEntry>),
    Exact("Engineering Setup@Panel@Prefs/Utility@Panel Select", tally_panel_select),
    Exact(SWITCHER "SDI I/F@DME1", tally_dme_interface, 0),
    Exact(SWITCHER "SDI I/F@DME2", tally_dme_interface, 1),
    Exact(SWITCHER "SDI I/F@DME3", tally_dme_interface, 2),
    Exact(SWITCHER "SDI I/F@DME4", tally_dme_interface, 3),
    Exact(DME_MODEL "DME1", tally_dme_model, 0),
    Exact(DME_MODEL "DME2", tally_dme_model, 1),
    Exact(DME_MODEL "DME3", tally_dme_model, 2),
    Exact(DME_MODEL "DME4", tally_dme_model, 3),
    Exact(FORMAT "FC Format", tally_frame_delay),
    Exact("Info@System Setup Data@File Auto Convert", tally_switch_or_number<&GL_DataGokan>),
    Prefix(PANEL_CONFIG "10 Key Region Assign@Common@Region@Common@", tally_ten_key_region),
    Exact("Info@Menu Macro@Run", tally_menu_macro_run),
    Exact("16@Engineering Setup@System@Install@Unit Config@CCR Config", tally_ccr_config),
    Prefix("Info@System Setup Data@FM Data Port Disable@SWR", tally_fm_data_port),
    Prefix("File@Status@FM Data Port Status@SWR", tally_fm_data_port_status),
    Prefix("Info@Board Config@Unit Model@", tally_unit),
    Prefix("Info@Board Config@Board Exist Set@", tally_unit),
    Exact("Engineering Setup@System@Install@Unit Config@M/E Split", tally_me_split),
    Contains("@Processed Key@Rotation", tally_rotation),
};

// --- The search ---

// Nearly every tally is for a page and has no row here, so the exact rows are chained by the low
// bits of their hash, and the few rows of other kinds come after them. No path has both an exact
// row and another: see the assertion.
constexpr int CHAINS = 256; // a power of two
constexpr int NO_ROW = -1;
constexpr int ROWS = int(std::size(rows));

namespace
{
struct Chains {
    std::array<int16_t, CHAINS> first;
    std::array<int16_t, ROWS> next;
};
} // namespace

static constexpr Chains MakeChains()
{
    Chains c{};
    c.first.fill(NO_ROW);
    for (int i = ROWS - 1; i >= 0; i--) {
        if (rows[i].match != Match::Exact)
            continue;
        int16_t& first = c.first[rows[i].hash % CHAINS];
        c.next[i] = first;
        first = int16_t(i);
    }
    return c;
}
static constexpr Chains chains = MakeChains();

static constexpr int CountOthers()
{
    int n = 0;
    for (const Row& row : rows)
        n += row.match != Match::Exact;
    return n;
}

static constexpr std::array<int16_t, CountOthers()> MakeOthers()
{
    std::array<int16_t, CountOthers()> others{};
    int n = 0;
    for (int i = 0; i < ROWS; i++)
        if (rows[i].match != Match::Exact)
            others[n++] = int16_t(i);
    return others;
}
static constexpr auto others = MakeOthers();

// Whether text holds part at its start (anywhere false) or anywhere.
static constexpr bool HasPart(const char* text, const char* part, bool anywhere)
{
    for (;; text++) {
        int i = 0;
        while (part[i] && text[i] == part[i])
            i++;
        if (!part[i])
            return true;
        if (!anywhere || !*text)
            return false;
    }
}

static constexpr bool RowsAreDisjoint()
{
    for (const Row& row : rows)
        for (const Row& other : rows)
            if (&row != &other && other.match != Match::Exact &&
                HasPart(row.path, other.path, other.match == Match::Contains))
                return false;
    return true;
}
static_assert(RowsAreDisjoint());

static bool other_row_matches(const Row& row, const char* path)
{
    return row.match == Match::Prefix ? strncmp(path, row.path, size_t(row.length)) == 0
                                      : strstr(path, row.path) != nullptr;
}

static TallyRoute apply_row(const Row& row, const char* path, const char* value)
{
    const char* rest = row.match == Match::Contains ? "" : path + row.length;
    return row.apply({.path = path, .rest = rest, .value = value, .arg = row.arg});
}

TallyRoute InterpretTally(const char* path, const char* value, uint32_t hash)
{
    if (!path || !value)
        return TallyRoute::Pass;
    for (int i = chains.first[hash % CHAINS]; i != NO_ROW; i = chains.next[i])
        if (rows[i].hash == hash && Same(rows[i].path, path))
            return apply_row(rows[i], path, value);
    for (const int i : others)
        if (other_row_matches(rows[i], path))
            return apply_row(rows[i], path, value);
    return TallyRoute::Pass;
}
