#include "pc_sp.h"
#include "bus.h"
#include "colours.h"
#include "command.h"
#include "message.h"
#include "netio.h"
#include "one_of.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <iterator>
#include "safeguards.h"

static_assert(SP_CHANNELS <= ONEOF_ROWS);

namespace
{
constexpr int LIST = 1, SIGNALS = 2;
constexpr int BARS = 4;
constexpr int FULL = 100;           // percent
constexpr int LEVEL_MAX = 109;      // the end of the scale
constexpr int PEAK_STAYS_MS = 1500; // where it isn't held

// The bars of the chosen one stand two by two between the list and the keys, those of all below one
// another in place of both.
constexpr Rect STRIP = {100, 281, 697, 337};
constexpr Rect FIELD = {100, 78, 697, 430};
constexpr int CHANNEL_PX = 44;
constexpr int FONT_NAME = 3, FONT_LABEL = 1;
constexpr int THICK_PX = 12, THIN_PX = 7;

struct Bar {
    int level = 0; // percent, 0 to LEVEL_MAX
    int peak = 0;
    int peak_ms = 0; // since it was reached
};

constexpr const char* labels[2][BARS] = {{"Y", "Pb", "Pr", "K"}, {"R", "G", "B", "K"}};
} // namespace

static ONEOFSTATE channels;

static struct {
    Bar bar[SP_CHANNELS][BARS];
    int is_rgb = 0;
    bool is_held = false;
    bool is_dirty = false;
    bool is_key_lit = false; // the key of the hold knows how it stands
} sp;                        // valid while a page stands; the hold outlives it

// --- Levels ---

static void follow_levels(const char* verb)
{
    for (int n = 1; n <= SP_CHANNELS; n++)
        Net_SendCommandFormat("%s SP@SP%d@Meter", verb, n);
    Net_SendCommandFormat("%s SP@Meter Mode", verb);
}

static void take_level(Bar& bar, const char* text)
{
    const int level = int(NumberIn(text, 0, LEVEL_MAX));
    sp.is_dirty |= level != bar.level;
    bar.level = level;
    if (level < bar.peak)
        return;
    bar.peak = level;
    bar.peak_ms = 0;
}

// "SP@SP3@Meter" with "71,50,48,0".
static int level_tally(const char* path, const char* value)
{
    constexpr char HEAD[] = "SP@SP";
    if (Same(path, "SP@Meter Mode")) {
        sp.is_rgb = Same(value, "RGB");
        sp.is_dirty = true;
        return 1;
    }
    const int n = BeginsWith(path, HEAD) ? IndexFrom1(path + strlen(HEAD), SP_CHANNELS) : -1;
    char own[32]; // the path of that number has nothing else in it
    PrintText(own, "%s%d@Meter", HEAD, n + 1);
    if (n < 0 || !Same(own, path))
        return 0;
    Parts p;
    (void)SplitValue(p, value, BARS);
    for (int b = 0; b < BARS; b++)
        take_level(sp.bar[n][b], p.v[b] ? p.v[b] : "");
    return 1;
}

static void age_peaks(int elapsed_ms)
{
    for (auto& channel : sp.bar)
        for (Bar& bar : channel) {
            bar.peak_ms = std::min(bar.peak_ms + elapsed_ms, PEAK_STAYS_MS);
            if (sp.is_held || bar.peak_ms < PEAK_STAYS_MS || bar.peak == bar.level)
                continue;
            bar.peak = bar.level;
            sp.is_dirty = true;
        }
}

// --- Painting ---

static int level_x(const Rect& r, int percent)
{
    return r.x1 + (r.x2 - r.x1) * percent / LEVEL_MAX;
}

static void draw_bar(const Rect& r, const Bar& bar)
{
    TDL_FillRectS(r.x1, r.y1, r.x2, r.y2, HEADER_GROUND);
    if (bar.level > 0)
        TDL_FillRectS(r.x1, r.y1, level_x(r, std::min(bar.level, FULL)), r.y2, TEAL);
    if (bar.level > FULL) // beyond what is legal
        TDL_FillRectS(level_x(r, FULL), r.y1, level_x(r, bar.level), r.y2, ORANGE);
    TDL_LineVS(level_x(r, FULL), r.y1, r.y2 - r.y1 + 1, SEPARATOR);
    if (bar.peak > 0)
        TDL_LineVS(level_x(r, bar.peak), r.y1, r.y2 - r.y1 + 1, bar.peak > FULL ? ORANGE : WHITE);
}

static void draw_strip()
{
    TDL_FillRectS(STRIP.x1, STRIP.y1, STRIP.x2, STRIP.y2, BLACK);
    for (int b = 0; b < BARS; b++) {
        const int x = STRIP.x1 + 300 * (b / 2), y = STRIP.y1 + 8 + 24 * (b % 2);
        const Bar& bar = sp.bar[channels.cursor][b];
        TDL_SymbolS(x + 8, y, labels[sp.is_rgb][b], FONT_LABEL, LABEL);
        draw_bar({x + 28, y, x + 250, y + THICK_PX - 1}, bar);
        TDL_SymbolS(x + 258, y, NumStr(bar.level), FONT_LABEL, WHITE);
    }
    TDL_UpdateRect(STRIP.x1, STRIP.y1, STRIP.x2, STRIP.y2);
}

static void draw_field()
{
    TDL_FillRectS(FIELD.x1, FIELD.y1, FIELD.x2, FIELD.y2, BLACK);
    for (int n = 0; n < channels.count; n++) {
        const int y = FIELD.y1 + 2 + CHANNEL_PX * n;
        TDL_SymbolS(FIELD.x1 + 4, y + 6, channels.name[n], FONT_NAME, WHITE);
        TDL_SymbolWS(FIELD.x1 + 4, y + 22, 90, channels.cell[n][0], FONT_LABEL, LABEL);
        for (int b = 0; b < BARS; b++) {
            const int top = y + (THIN_PX + 2) * b;
            draw_bar({FIELD.x1 + 120, top, FIELD.x2 - 8, top + THIN_PX - 1}, sp.bar[n][b]);
        }
    }
    TDL_UpdateRect(FIELD.x1, FIELD.y1, FIELD.x2, FIELD.y2);
}

// --- Pages ---

static constexpr ONEOFWORD signal_words[] = {{"true", "OK"}, {"false", "None"}, {}};
static constexpr ONEOFCOLUMN sp_columns[] = {
    {"SP@$@Source"},
    {"SP@$@Signal", signal_words},
    {"SP@$@Video Process@Video Process", one_of_switch},
    {"SP@$@Color Correct@Color Correct", one_of_switch},
    {"SP@$@Timing@Frames"},
};

static int sp_names(const char** names, int max)
{
    static char text[SP_CHANNELS][8];
    const int n = std::min(SP_CHANNELS, max);
    for (int i = 0; i < n; i++) {
        PrintText(text[i], "SP%d", i + 1);
        names[i] = text[i];
    }
    return n;
}

// list 0: the page has none of its own.
static constexpr ONEOF table_of(int list, int signal_list)
{
    return {.word = 1,
            .list = list,
            .state = &channels,
            .names = sp_names,
            .columns = sp_columns,
            .column_count = std::size(sp_columns),
            .signal_list = signal_list,
            .signal = sp_columns[0].path};
}

static int send_held()
{
    return SendDummyTally(sp.is_held ? SP_PEAK_HOLD "#true" : SP_PEAK_HOLD "#false");
}

static int key(const char* command)
{
    if (Same(command, SP_PEAK_HOLD)) {
        sp.is_held = !sp.is_held;
        return send_held();
    }
    if (Same(command, SP_PEAK_RESET))
        for (auto& channel : sp.bar)
            for (Bar& bar : channel)
                bar.peak = bar.level;
    sp.is_dirty = true;
    return 0;
}

template <const ONEOF& table> static int create_of(int on, uint32_t)
{
    if (on) {
        sp = {.is_held = sp.is_held, .is_dirty = true};
        OneOf_Open(table);
    } else {
        OneOf_Close(table);
    }
    follow_levels(on ? "add" : "remove");
    return !on;
}

template <void (*draw)()> static int redraw(int elapsed_ms)
{
    age_peaks(elapsed_ms);
    if (!sp.is_key_lit)
        send_held();
    sp.is_key_lit = true;
    if (sp.is_dirty)
        draw();
    sp.is_dirty = false;
    return 0;
}

template <const ONEOF& table, void (*draw)()>
static int proc_of(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return redraw<draw>(int(ax));
    case LMSG_BTNSEL: return key(Text(ax));
    case MSG_TALLY:
        if (level_tally(Text(ax), Text(bx)))
            return 0;
        break;
    default: break;
    }
    if (OneOf_Proc(table, msg, ax, bx))
        sp.is_dirty = true;
    return 0;
}

static constexpr ONEOF sp_table = table_of(LIST, 0);
static constexpr ONEOF sp_source = table_of(LIST, SIGNALS);
static constexpr ONEOF sp_meter = table_of(0, 0);
const PC_TBL pc_sp = {proc_of<sp_table, draw_strip>, create_of<sp_table>};
const PC_TBL pc_sp_source = {proc_of<sp_source, draw_strip>, create_of<sp_source>};
const PC_TBL pc_sp_meter = {proc_of<sp_meter, draw_field>, create_of<sp_meter>};
