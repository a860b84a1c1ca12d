// The frames of the server's region streams. A frame that ends before its record does is refused
// whole; of a list of keyframes that ends early, those that are there are taken.
#include "a_kf_private.h"
#include "bin_frame.h"
#include "bus.h"
#include "log.h"
#include "message.h"
#include "timecode.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include "safeguards.h"

namespace
{
constexpr int REGNAME = 8;
constexpr int MS_A_SELECTED_ROW = 10;

// Reads what is left of a frame; once it was asked for more than that, it stays short.
struct Cursor {
    const unsigned char* next;
    int left;
    bool is_short = false;
};

// Regions by byte and bit of a selection frame.
constexpr int SELECTION_BYTES = 7; // behind the reference region
constexpr int NONE = -1;
constexpr int selection_map[SELECTION_BYTES][8] = {
    {5, 0, 1, 2, 50, 45, 46, 47},           {6, 7, 8, 9, 10, 11, 12, 13},
    {14, 15, 16, 17, 18, 19, 20, 21},       {NONE, NONE, NONE, NONE, NONE, NONE, NONE, NONE},
    {30, 31, 32, 33, 34, 35, 36, 37},       {38, 39, 40, 41, 42, 43, 44, 51},
    {3, 48, 4, 49, NONE, NONE, NONE, NONE},
};
constexpr int DME_BYTE = 2;

struct RunStatus {
    int code, ctime, ckfnum, runstat, loopon, loopremain;
};

struct RegionData {
    int code, regnum;
    char regname[REGNAME + 1];
    int lock, freekf, kfnum, start, dtime, etime, duration, loopstart, loopend, loopnum;
};
} // namespace

static const unsigned char* take(Cursor& c, int bytes)
{
    c.is_short = c.is_short || c.left < bytes;
    if (c.is_short)
        return nullptr;
    const unsigned char* const at = c.next;
    c.next += bytes;
    c.left -= bytes;
    return at;
}

static int take8(Cursor& c)
{
    const unsigned char* const p = take(c, 1);
    return p ? p[0] : 0;
}

static int take16(Cursor& c)
{
    const unsigned char* const p = take(c, 2);
    return p ? p[0] << 8 | p[1] : 0;
}

static int take_timecode(Cursor& c)
{
    const unsigned char* const p = take(c, 4);
    if (!p)
        return 0;
    const unsigned btc = unsigned(p[0]) << 24 | unsigned(p[1]) << 16 | unsigned(p[2]) << 8 | p[3];
    return TC2Frame(BTC2TC(btc, 4));
}

// A line feed or a control character would break the line that shows the name.
static void take_regname(Cursor& c, char (&name)[REGNAME + 1])
{
    const unsigned char* const p = take(c, REGNAME);
    for (int i = 0; i < REGNAME; i++) {
        const int ch = p ? p[i] : '\0';
        name[i] = ch == '\0' || (ch >= ' ' && ch <= '~') ? char(ch) : ' ';
    }
    name[REGNAME] = '\0';
}

static void refuse(const char* what, int ndata)
{
    Log_Output(LOG_LINK, MOD_LINK, "KF_TallyProc: %s frame ends after %d bytes", what, ndata);
}

// --- Run status ---

static bool read_status(Cursor& c, RunStatus& s)
{
    s.code = take8(c);
    (void)take(c, 2); // not used
    s.ctime = take_timecode(c);
    s.ckfnum = take16(c);
    const int run = take8(c);
    (void)take(c, 1); // not used
    const int loop = take8(c);
    s.runstat = !(run & 0x01) ? 0 : run & 0x10 ? -1 : 1;
    s.loopon = loop >> 7;
    s.loopremain = loop & 0x7F;
    return !c.is_short;
}

// Many times a second: only the bar is marked, and the page hears of a new keyframe only.
static void tally_status(const unsigned char* data, int ndata)
{
    RunStatus s;
    Cursor c = {data, ndata};
    if (!read_status(c, s))
        return refuse("status", ndata);
    const int index = KF_RegionOfCode(s.code);
    if (index < 0)
        return;
    KF_REGION& r = Region[index];
    const int old_ckfnum = r.ckfnum;
    r.ctime = s.ctime;
    r.ckfnum = s.ckfnum;
    r.runstat = s.runstat;
    r.loopon = s.loopon;
    r.loopremain = s.loopremain;
    r.redraw_tl = 1;
    if (r.ckfnum != old_ckfnum)
        SendMessage(LMSG_REGIONSTATUS, Arg(&r), 0, 0, 0);
}

// --- Region data ---

static bool read_data(Cursor& c, RegionData& d)
{
    d.code = take8(c);
    d.regnum = take16(c);
    take_regname(c, d.regname);
    d.lock = take8(c) >> 1 & 1;
    d.freekf = take16(c);
    (void)take(c, 2); // not used
    d.kfnum = take16(c);
    d.start = take_timecode(c);
    d.dtime = take_timecode(c);
    d.etime = take_timecode(c);
    d.duration = take_timecode(c);
    d.loopstart = take16(c);
    d.loopend = take16(c) & 0x7FFF;
    d.loopnum = take8(c);
    return !c.is_short;
}

static void store_data(KF_REGION& r, const RegionData& d)
{
    r.regnum = d.regnum;
    memcpy(r.regname, d.regname, sizeof r.regname);
    r.lock = d.lock;
    r.freekf = d.freekf;
    r.kfnum = d.kfnum;
    r.stime = d.start - d.dtime;
    r.dtime = d.dtime;
    r.etime = d.etime;
    r.duration = d.duration;
    r.loopstart = d.loopstart;
    r.loopend = d.loopend;
    r.loopnum = d.loopnum;
}

static void store_keyframes(KF_REGION& r, Cursor& c)
{
    const int count = std::min(r.kfnum, KF_KEYFRAMES - 1);
    for (int k = 1; k <= count; k++) {
        const int word = take16(c);
        if (c.is_short)
            return;
        r.kf[k] = {.duration = word & 0x7FF, .pause = word >> 15};
    }
}

static void tally_data(const unsigned char* data, int ndata)
{
    RegionData d;
    Cursor c = {data, ndata};
    if (!read_data(c, d))
        return refuse("region", ndata);
    const int index = KF_RegionOfCode(d.code);
    if (index < 0)
        return;
    KF_REGION& r = Region[index];
    const bool is_news = r.regnum != d.regnum || r.kfnum != d.kfnum;
    store_data(r, d);
    store_keyframes(r, c);
    tlSETime_redraw = 1;
    r.redraw = 1;
    if (is_news)
        SendMessage(LMSG_REGIONSTATUS, Arg(&r), 0, 0, 0);
}

// --- Selection ---

static void select_regions(const unsigned char* bits)
{
    for (int byte = 0; byte < SELECTION_BYTES; byte++) {
        for (int bit = 0; bit < 8; bit++) {
            const int region = selection_map[byte][bit];
            if (region == NONE || !(bits[byte] >> bit & 1))
                continue;
            Region[region].selected = 1;
            if (byte == DME_BYTE)
                Region[region + KF_DME_TO_GLOBAL].selected = 1;
        }
    }
}

static bool renew_selection(const unsigned char* bits)
{
    int before[KF_REGIONS];
    for (int i = 0; i < KF_REGIONS; i++) {
        before[i] = Region[i].selected;
        Region[i].selected = 0;
        Region[i].redraw = 1;
    }
    select_regions(bits);
    for (int i = 0; i < KF_REGIONS; i++)
        if (Region[i].selected != before[i])
            return true;
    return false;
}

// The more of what is on the screen may run, the less often it is painted.
static void renew_draw_interval()
{
    const auto selected = std::count_if(std::begin(tlDisp), std::end(tlDisp),
                                        [](const KF_REGION* r) { return r && r->selected; });
    GL_TimelineDrawInterval = MS_A_SELECTED_ROW * int(selected);
    Log_Output(LOG_TRACE, MOD_PAGE, "GL_TimelineDrawInterval = %d", GL_TimelineDrawInterval);
}

static void tally_selection(const unsigned char* data, int ndata)
{
    Cursor c = {data, ndata};
    const int reference = take8(c);
    const unsigned char* const bits = take(c, SELECTION_BYTES);
    if (!bits)
        return refuse("selection", ndata);
    RefRegion = reference;
    if (renew_selection(bits)) {
        KF_InitPriority();
        SendMessage(LMSG_REGSELCHANGE, 0, 0, 0, 0);
    }
    renew_draw_interval();
}

int KF_TallyProc(uint32_t id, const unsigned char* data, int ndata)
{
    switch (id) {
    case STREAM_STATUS: tally_status(data, ndata); return 0;
    case STREAM_DATA: tally_data(data, ndata); return 0;
    case STREAM_SELECTION: tally_selection(data, ndata); return 0;
    default: return 1;
    }
}
