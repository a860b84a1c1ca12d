// Units: which there are, how they are assigned to each other, their formats and options.
#include "a_ba.h"
#include "bus_tally.h"
#include "device.h"
#include "file.h"
#include "fmctrl3.h"
#include "global.h"
#include "initread.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include <iterator>

#include "safeguards.h"

// The part of a path that names the unit: "SWR1" of "...@Video Format2@SWR1".
static const char* last_segment(const char* path)
{
    const char* at = strrchr(path, '@');
    return at ? at + 1 : path;
}

static bool is_class(const char* unit, const char* name)
{
    return strncmp(unit, name, 3) == 0;
}

// Models and boards of the units, which device reads itself.
TallyRoute tally_unit(const Tally& t)
{
    (void)Device_Tally(t.path, t.value); // the row has picked one of its two paths
    return TallyRoute::Pass;
}

// --- Channels ---

TallyRoute tally_dme_reference(const Tally& t)
{
    const int before = SYS_DMEReference;
    SYS_DMEReference = int(NumberIn(t.value, 0, INT_MAX, 16));
    BA_RedrawTitle();
    DeviceStructure();
    if (SYS_DMEReference != before)
        SendMessage(LMSG_DMEREFCHANGE, 0, 0, 0, 0);
    return TallyRoute::Taken;
}

TallyRoute tally_dme_channel(const Tally& t)
{
    SYS_DMEChannel = int(NumberIn(t.value, 0, INT_MAX, 16));
    BA_RedrawTitle();
    return TallyRoute::Taken;
}

TallyRoute tally_mpe_reference(const Tally& t)
{
    SYS_MPEReference = int(NumberIn(t.value, 0, INT_MAX, 2)); // the digits that the title puts
    return TallyRoute::Pass;
}

TallyRoute tally_mpe_channel(const Tally& t)
{
    SYS_MPEChannel = int(NumberIn(t.value, 0, INT_MAX, 16));
    return TallyRoute::Pass;
}

// --- Formats ---

namespace
{
struct Frequency {
    const char* word;
    int frame_rate; // what time codes count in
    double exact;
};
struct LineCount {
    const char* word;
    int active_line;
};
} // namespace

static constexpr Frequency frequencies[] = {
    {"30/60", 30, 30.0}, {"29.97/59.94", 30, 29.97}, {"25/50", 25, 25.0},
    {"24", 24, 24.0},    {"23.976", 24, 23.976},
};
constexpr int FRAME_RATE_OTHER = 60;
constexpr int FRAME_RATE_UNKNOWN_SIZE = 30;
static constexpr LineCount line_counts[] = {
    {"480i", 1}, {"576i", 2}, {"720p", 3}, {"1080i", 4}, {"1080PsF", 5}, {"1080p", 6},
};

static const Frequency* frequency_by_word(const char* word)
{
    for (const Frequency& f : frequencies)
        if (Same(f.word, word))
            return &f;
    return nullptr;
}

static int active_line_by_word(const char* word)
{
    for (const LineCount& lines : line_counts)
        if (Same(lines.word, word))
            return lines.active_line;
    return 0;
}

static void set_video_format(DEVICE& dev, bool is_panel, const char* frequency, const char* size)
{
    const Frequency* f = frequency_by_word(frequency);
    const bool keeps_other_rate = is_class(dev.name, "DME") || is_class(dev.name, "MPE");
    if (f)
        dev.framerate = f->exact;
    else if (!keeps_other_rate)
        dev.framerate = 30.0;
    const int line = active_line_by_word(size);
    if (line != 0)
        dev.activeline = line;
    if (is_panel)
        SYS_FrameRate = line == 0 ? FRAME_RATE_UNKNOWN_SIZE : f ? f->frame_rate : FRAME_RATE_OTHER;
}

TallyRoute tally_video_format(const Tally& t)
{
    Parts p;
    const int parts = SplitValue(p, t.value, 2);
    const char* size = parts < 2 ? "" : p.v[1]; // a missing size is an unknown one
    const char* unit = last_segment(t.path);
    DEVICE* dev = Device_ByName(unit);
    if (dev && *t.value)
        set_video_format(*dev, is_class(unit, "PNL"), p.v[0], size);
    DeviceStructure();
    return TallyRoute::Pass;
}

constexpr int FORMAT_CODES = 16; // sizes 0..4, frequencies 0..6, scans 0..4 are in use

TallyRoute tally_video_format2(const Tally& t)
{
    Parts p;
    SplitValue(p, t.value, 3);
    const int size = Index(p.v[0], FORMAT_CODES);
    const int frequency = Index(p.v[1], FORMAT_CODES);
    const int scan = Index(p.v[2], FORMAT_CODES);
    DEVICE* dev = Device_ByName(last_segment(t.path));
    if (size < 0 || frequency < 0 || scan < 0 || !dev)
        return TallyRoute::Pass;
    dev->format_size = size;
    dev->format_freq = frequency;
    dev->format_scan = scan;
    DeviceStructure();
    return TallyRoute::Pass;
}

TallyRoute tally_reference(const Tally& t)
{
    DEVICE* dev = Device_ByName(last_segment(t.path));
    if (dev)
        dev->refinputformat = Same(t.value, "BB");
    DeviceStructure();
    return TallyRoute::Pass;
}

// 16:9 is 1, 4:3 is 0. What stands in place of the end of "4:3" counts as it is: the server has
// used it.
static int aspect_of(const char* word)
{
    return strncmp(word, "4:3", 3) == 0 ? word[3] : 1;
}

static void set_aspects(const char* value, const char* device_class, int max_parts)
{
    Parts p;
    const int n = SplitValue(p, value, max_parts);
    DEVICE* dev = is_class(p.v[0], device_class) ? Device_ByName(p.v[0]) : nullptr;
    if (dev)
        for (int i = 1; i < n; i++)
            dev->aspect[i - 1] = aspect_of(p.v[i]);
    DeviceStructure();
}

TallyRoute tally_switcher_aspect(const Tally& t)
{
    static_assert(VALUE_PARTS - 1 == sizeof DEVICE::aspect / sizeof DEVICE::aspect[0]);
    set_aspects(t.value, "SWR", VALUE_PARTS);
    return TallyRoute::Pass;
}

TallyRoute tally_dme_aspect(const Tally& t)
{
    set_aspects(t.value, "DME", 5);
    return TallyRoute::Pass;
}

// --- The list of units ---

static void reset_unit_counts()
{
    SYS_PnlMax = 0;
    SYS_SwrMax = 0;
    SYS_DmeMax = 0;
    SYS_MpeMax = 0;
}

// The row of a unit, appended when it is new; null when the table is full. A row that held the same
// unit before the list was cleared keeps what is known of it: the server does not repeat models and
// formats.
static DEVICE* unit_row(DEVICE* table, int* max, const char* id)
{
    for (int i = 0; i < *max; i++)
        if (Same(table[i].id, id))
            return &table[i];
    if (*max >= DEVICE_MAX) {
        Log_Output(LOG_LINK, MOD_GLOBAL, "Network Config: no room for [%s]", id);
        return nullptr;
    }
    DEVICE* dev = &table[(*max)++];
    if (!Same(dev->id, id))
        *dev = {};
    return dev;
}

static void take_unit(const char* value)
{
    Parts p;
    if (SplitValue(p, value, 5) < 5)
        return;
    char id[sizeof DEVICE::id];
    CopyText(id, p.v[0]); // as it will be stored, so that a long id finds its row again
    int* max = nullptr;
    DEVICE* table = Device_Table(id, &max);
    DEVICE* dev = table && max ? unit_row(table, max, id) : nullptr;
    if (!dev)
        return;
    CopyText(dev->id, id);
    CopyText(dev->name, p.v[1]);
    CopyText(dev->ctrlip, p.v[2]);
    CopyText(dev->dataip, p.v[3]);
    CopyText(dev->periip, p.v[4]);
}

TallyRoute tally_network_config(const Tally& t)
{
    if (IsKill(t.value))
        reset_unit_counts();
    else
        take_unit(t.value);
    DeviceStructure();
    return TallyRoute::Pass;
}

// --- Assignment ---

static void send_operation_mode(const char* verb)
{
    if (SYS_MyPnl < 0 || SYS_MyPnl >= UNIT_MAX)
        return;
    Net_SendCommandFormat("%s Engineering Setup@System@System Config@System Operation Mode@%s",
                          verb, SYS_PnlName[SYS_MyPnl]);
}

// This computer's address ends in the number of the panel that it belongs to.
TallyRoute tally_menu_cpu(const Tally& t)
{
    const size_t length = strlen(t.value);
    const int panel = length > 0 ? Index(t.value + length - 1, UNIT_MAX) : -1;
    if (panel < 0)
        return TallyRoute::Pass;
    send_operation_mode("remove");
    SYS_MyPnl = panel;
    send_operation_mode("add");
    DeviceStructure();
    return TallyRoute::Pass;
}

// Copy count numbers, cut to 8 bits, into a row.
static void assign_row(int* row, char* const* parts, int count)
{
    for (int i = 0; i < count; i++)
        row[i] = Decimal(parts[i]) & 0xFF;
}

// The clip store belongs to the first switcher: with another one the whole catalogue is another.
// The old subscriptions go while the old switcher is still known.
static void change_own_switchers()
{
    FMCtrl3_Clear(0);
    File_SHP_All_Clear();
    DeathCommandSHP();
    DeviceStructure();
    FMCtrl3_Clear(0);
    InitialCommandSHP();
    GL_InitReadSHP = 1;
}

// A list that is told anew, as each page that reads it has it, begins with "KILL": what counts as a
// change is what differs from the list before.
static struct {
    int panel = -1;  // whose row was cleared; -1 none
    int own[2] = {}; // that row
} killed;

// What a row was before it was told anew. Before the hub has been asked for the first time, nothing
// is as it was.
static const int* assignment_before(int panel)
{
    const int* row = SYS_PnlAssign[panel];
    const bool is_cleared = row[0] == 0 && row[1] == 0;
    return is_cleared && panel == killed.panel && GL_InitReadSHP ? killed.own : row;
}

static void kill_panel_assign()
{
    if (SYS_MyPnl >= 0 && SYS_MyPnl < UNIT_MAX) {
        memcpy(killed.own, assignment_before(SYS_MyPnl),
               sizeof killed.own); // cleared twice is once
        killed.panel = SYS_MyPnl;
    }
    // Derived only from the rows that follow: until then the old switchers stay, to be
    // unsubscribed.
    for (auto& row : SYS_PnlAssign)
        row[0] = row[1] = 0;
}

TallyRoute tally_panel_assign(const Tally& t)
{
    if (IsKill(t.value)) {
        kill_panel_assign();
        return TallyRoute::Pass;
    }
    Parts p;
    if (SplitValue(p, t.value, 6) < 6)
        return TallyRoute::Pass;
    const int panel = Index(p.v[0], UNIT_MAX);
    if (panel < 0)
        return TallyRoute::Pass;
    int before[2];
    memcpy(before, assignment_before(panel), sizeof before);
    assign_row(SYS_PnlAssign[panel], p.v + 1, 2);
    if (panel == SYS_MyPnl && memcmp(before, SYS_PnlAssign[panel], sizeof before) != 0)
        change_own_switchers();
    else
        DeviceStructure();
    return TallyRoute::Pass;
}

TallyRoute tally_switcher_assign(const Tally& t)
{
    if (IsKill(t.value)) {
        for (auto& row : SYS_SwrAssign)
            for (int& unit : row)
                unit = 0;
    } else {
        Parts p;
        if (SplitValue(p, t.value, 5) < 5)
            return TallyRoute::Pass;
        const int switcher = Index(p.v[0], UNIT_MAX);
        if (switcher < 0)
            return TallyRoute::Pass;
        assign_row(SYS_SwrAssign[switcher], p.v + 1, 4);
    }
    DeviceStructure();
    return TallyRoute::Pass;
}

// --- Effects units: arg is the unit, from 0 ---

TallyRoute tally_dme_interface(const Tally& t)
{
    GL_DmeSdiIF[t.arg] = GL_DmeSdiIFDP[t.arg] = Same(t.value, "Dedicated");
    return TallyRoute::Pass;
}

constexpr int DME_MODELS = 17; // 0 unknown, 1..8 known today, the others none of those

TallyRoute tally_dme_model(const Tally& t)
{
    const int model = Index(t.value, DME_MODELS);
    if (model < 0)
        return TallyRoute::Pass;
    GL_DmeModel[t.arg] = GL_DmeModelDP[t.arg] = model;
    DeviceStructure();
    return TallyRoute::Pass;
}

// --- Frame memory ---

constexpr int FRAMEMEM_REGIONS =
    23; // the region group whose reference the frame memory pages work on

// arg: the switcher of this panel, from 0.
TallyRoute tally_hdd_busy(const Tally& t)
{
    if (PaneRegion_GetRef(FRAMEMEM_REGIONS) == REGION_ID_SWITCHER + t.arg)
        BA_SetHDDAccess(IsTrue(t.value));
    BkgdHDDTransfer_Busy(t.arg, IsTrue(t.value));
    return TallyRoute::Pass;
}

// The option word of the first switcher's colour-correction and memory board.
TallyRoute tally_ccr_config(const Tally& t)
{
    const uint32_t options = uint32_t(NumberIn(t.value, 0, UINT32_MAX));
    SYS_FmemAncillary = options >> 2 & 1;
    GL_DmeIFType = options >> 3 & 1;
    // With ancillary data there are all pairs to choose from, without it the first two.
    SYS_3DPair = SYS_FmemAncillary ? 21 : 2;
    return TallyRoute::Pass;
}

// "low,high": 7 bits, and those above them. The rest of the path is the switcher, from 1.
TallyRoute tally_fm_data_port(const Tally& t)
{
    const int n = Index(t.rest, int(std::size(GL_FMDataPortDisable)) + 1) - 1;
    Parts p;
    if (n < 0 || SplitValue(p, t.value, 2) < 2)
        return TallyRoute::Pass;
    const int low = int(NumberIn(p.v[0], 0, INT_MAX)) & 0x7F;
    GL_FMDataPortDisable[n] = low | int(NumberIn(p.v[1], 0, INT_MAX >> 7)) << 7;
    File_AskDataPorts();
    return TallyRoute::Pass;
}

// What File_StatusFMDataPort asks for: "1", or with the label in front "L7,1".
TallyRoute tally_fm_data_port_status(const Tally& t)
{
    const int n = IndexFrom1(t.rest, int(std::size(GL_FMDataPortStatus)));
    const char* comma = strrchr(t.value, ',');
    if (n >= 0)
        GL_FMDataPortStatus[n] = Decimal(comma ? comma + 1 : t.value);
    return TallyRoute::Pass;
}
