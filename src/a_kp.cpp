#include "a_kp.h"
#include "a_ba.h"
#include "colours.h"
#include "command.h"
#include "global.h"
#include "graphics.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "scroll_window.h"
#include "scrollbar.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <span>
#include "safeguards.h"

namespace
{
constexpr int LEFT = 104;
constexpr int HEAD_TOP = 82;
constexpr int HEAD_H = 22;
constexpr int TOP = HEAD_TOP + HEAD_H;
constexpr int ROW_H = 40;
constexpr int ROWS_SHOWN = 10;
constexpr int BOTTOM = TOP + ROWS_SHOWN * ROW_H - 1;
constexpr int CAPTION_RIGHT = 262;
constexpr int MARK_X = CAPTION_RIGHT - 26; // of a row that leads to a page
constexpr int BAR_X = 654;
constexpr int RIGHT = BAR_X - 2;
constexpr int CELL_W = 60;
constexpr int PUSHED_MS = 150;
constexpr Rect AREA = {LEFT, HEAD_TOP, RIGHT, BOTTOM};

enum : int { XPT, HUE, CURVE, CELLS };
enum : int { TENS, CONT, BIAS, SPLINES };
enum : int { NOT_KNOWN = -1, IS_MIXED = -2 }; // other than the index of a choice

struct Choice {
    const char* word; // on the wire
    SDL_Surface** picture;
    int last_type; // the last PATHSEL_ that offers it
};
struct CellColumn {
    const char* caption;
    const char* path; // behind the row's own
    int x;
    int window_x; // where the window of the column opens
    std::span<const Choice> choices;
};
struct SplineColumn {
    const char* caption;
    const char* path;
    int x;
};

struct KP_MEM {
    const char* caption = nullptr;
    bool has[CELLS] = {};
    int type[CELLS] = {};    // PATHSEL_ of the cell's window
    char cmd[CMD_SIZE] = {}; // "" for a row that is only a heading
    uint32_t jump = 0;
    int value[CELLS] = {};
    double spline[SPLINES] = {};
    int redraw = 0;
    int pushed = 0; // ms for which the caption still looks pushed
};
} // namespace

// In the order of the numbers that the window answers with.
static constexpr Choice xpt_choices[] = {
    {"Hold", &G_PATH_xpt_hold, PATHSEL_XPT},
    {"Change", &G_PATH_xpt_change, PATHSEL_XPT},
};
static constexpr Choice hue_choices[] = {
    {"Short", &G_PATH_hue_short, PATHSEL_HUE},
    {"Long", &G_PATH_hue_long, PATHSEL_HUE},
    {"CW", &G_PATH_hue_cw, PATHSEL_HUE},
    {"CCW", &G_PATH_hue_ccw, PATHSEL_HUE},
};
static constexpr Choice curve_choices[] = {
    {"Off", &G_PATH_curve_off, PATHSEL_CURVE3},   {"Linear", &G_PATH_curve_linear, PATHSEL_CURVE2},
    {"S-Curve", &G_PATH_curve_s, PATHSEL_CURVE1}, {"Spline", &G_PATH_curve_spline, PATHSEL_CURVE0},
    {"Step", &G_PATH_curve_step, PATHSEL_CURVE3},
};
static_assert(std::size(xpt_choices) == PATH_XPT_CHANGE + 1);
static_assert(std::size(hue_choices) == PATH_HUE_CCW + 1);
static_assert(std::size(curve_choices) == PATH_CURVE_STEP + 1);

static constexpr CellColumn cell_columns[CELLS] = {
    {"Xpt", "Xpt", 270, 160, xpt_choices},
    {"Hue", "Hue", 360, 250, hue_choices},
    {"Curve", "Curve", 450, 340, curve_choices},
};
static constexpr SplineColumn spline_columns[SPLINES] = {
    {"Tens", "Curve@Spline@Tens", 516},
    {"Cont", "Curve@Spline@Cont", 561},
    {"Bias", "Curve@Spline@Bias", 606},
};

static KP_MEM Row[KP_MAX];
static ScrollWindow Scrolled; // its total is how many rows there are
static bool RedrawAll = false;
static int AskedRow = -1; // whose cell the open window is for
static int AskedCell = 0;

static std::span<KP_MEM> rows()
{
    return {Row, size_t(Scrolled.total)};
}

// Whether the window of a cell has this choice.
static bool is_offered(const KP_MEM& r, int cell, int choice)
{
    const auto& choices = cell_columns[cell].choices;
    return choice >= 0 && choice < int(choices.size()) &&
           r.type[cell] <= choices[size_t(choice)].last_type;
}

// --- Opening and closing ---

static void send_paths(const char* verb)
{
    for (const KP_MEM& r : rows()) {
        if (!r.cmd[0] || IsLocal(r.cmd))
            continue;
        for (const CellColumn& c : cell_columns)
            Net_SendCommandFormat("%s %s%s", verb, r.cmd, c.path);
        for (const SplineColumn& c : spline_columns)
            Net_SendCommandFormat("%s %s%s", verb, r.cmd, c.path);
    }
}

static void fill_row(KP_MEM& r, const KP_TBL& from)
{
    r.caption = from.caption;
    r.has[XPT] = from.isxpt != 0;
    r.has[HUE] = from.ishue != 0;
    r.has[CURVE] = from.iscurve != 0;
    r.type[XPT] = PATHSEL_XPT;
    r.type[HUE] = PATHSEL_HUE;
    r.type[CURVE] = PATHSEL_CURVE0 + std::clamp(from.curvetype, 0, 3);
    DecodeCommand(r.cmd, from.cmd, CMD_SIZE);
    r.jump = Page_IsMissing(from.jump) ? 0 : from.jump; // as a row that leads nowhere
    std::fill(std::begin(r.value), std::end(r.value), int(NOT_KNOWN));
    std::fill(std::begin(r.spline), std::end(r.spline), 0.0);
    r.redraw = r.pushed = 0;
}

int KP_Create(const KP_TBL* table, uint32_t)
{
    send_paths("remove");
    if (Scrolled.shown)
        CloseScrollBar(0);
    Scrolled = {};
    AskedRow = -1;
    RedrawAll = false;
    if (!table)
        return 1;
    for (const KP_TBL* from = table; from->caption; from++) {
        if (Scrolled.total == KP_MAX) {
            Log_Output(LOG_ALWAYS, MOD_PAGE, "Buffer overflow for KP Objects!!\n");
            break;
        }
        fill_row(Row[Scrolled.total++], *from);
    }
    Scrolled.shown = ROWS_SHOWN;
    RedrawAll = true;
    ScrollWindow_Open(Scrolled, BAR_X, HEAD_TOP, BOTTOM - HEAD_TOP + 1);
    send_paths("add");
    return 0;
}

static bool has_path(const KP_MEM& r, const char* path)
{
    if (!r.cmd[0] || IsLocal(r.cmd) || !BeginsWith(path, r.cmd))
        return false;
    const auto is_path = [&](const auto& c) { return Same(path + strlen(r.cmd), c.path); };
    return std::any_of(std::begin(cell_columns), std::end(cell_columns), is_path) ||
           std::any_of(std::begin(spline_columns), std::end(spline_columns), is_path);
}

int KP_Follows(const char* path)
{
    const auto all = rows();
    return std::any_of(all.begin(), all.end(),
                       [path](const KP_MEM& r) { return has_path(r, path); });
}

// --- Press ---

static void send_choice(const KP_MEM& r, int cell, int choice)
{
    if (!is_offered(r, cell, choice))
        return;
    const CellColumn& c = cell_columns[cell];
    Net_SendCommandFormat("put %s%s#%s", r.cmd, c.path, c.choices[size_t(choice)].word);
}

// Where no window can be opened the press takes the next word.
static void step(const KP_MEM& r, int cell)
{
    const int count = int(cell_columns[cell].choices.size());
    int choice = r.value[cell] < 0 ? 0 : (r.value[cell] + 1) % count;
    while (!is_offered(r, cell, choice)) // the first is always there
        choice = (choice + 1) % count;
    send_choice(r, cell, choice);
}

static void press_cell(int n, int cell, int y)
{
    const KP_MEM& r = Row[n];
    const char* caption = cell_columns[cell].caption;
    const WindowArgs args = {.x = cell_columns[cell].window_x,
                             .y = y,
                             .selected = r.value[cell],
                             .path_type = r.type[cell]};
    AskedRow = n;
    AskedCell = cell;
    if (CreateWindow(WINDOW_PATH, caption, args) == 0)
        return;
    AskedRow = -1;
    step(r, cell);
}

static int press(int x, int y)
{
    if (!Inside({LEFT, TOP, RIGHT, BOTTOM}, x, y) || BA_IsDefaultButton())
        return 0;
    const int n = Scrolled.top + (y - TOP) / ROW_H;
    if (n >= Scrolled.total)
        return 0;
    KP_MEM& r = Row[n];
    if (x <= CAPTION_RIGHT && r.jump) {
        r.pushed = PUSHED_MS;
        r.redraw = 1;
        GL_CreatePage = r.jump;
    }
    for (int cell = 0; cell < CELLS; cell++) {
        const int left = cell_columns[cell].x;
        if (x >= left && x < left + CELL_W && r.has[cell] && r.cmd[0])
            press_cell(n, cell, TOP + (n - Scrolled.top) * ROW_H);
    }
    return 0;
}

static int chosen(int path_type, int choice)
{
    const int n = AskedRow;
    AskedRow = -1;
    if (n >= 0 && n < Scrolled.total && Row[n].type[AskedCell] == path_type)
        send_choice(Row[n], AskedCell, choice);
    return 0;
}

// --- Tally ---

// "Mixed" is the tally of a row that stands for several whose paths differ.
static int choice_of(const KP_MEM& r, int cell, const char* value)
{
    const auto& choices = cell_columns[cell].choices;
    for (size_t i = 0; i < choices.size(); i++)
        if (is_offered(r, cell, int(i)) && Same(choices[i].word, value))
            return int(i);
    return Same(value, "Mixed") ? IS_MIXED : NOT_KNOWN;
}

template <typename T> static void take(KP_MEM& r, T& old, T value)
{
    if (old == value)
        return;
    old = value;
    r.redraw = 1;
}

// "nan" is no number that could be shown, and never the one of before.
static double spline_of(const char* value)
{
    const double number = strtod(value, nullptr);
    return std::isfinite(number) ? number : 0;
}

static void tally_row(KP_MEM& r, const char* rest, const char* value)
{
    for (int cell = 0; cell < CELLS; cell++)
        if (Same(cell_columns[cell].path, rest))
            take(r, r.value[cell], choice_of(r, cell, value));
    for (int i = 0; i < SPLINES; i++)
        if (Same(spline_columns[i].path, rest))
            take(r, r.spline[i], spline_of(value));
}

static int tally(const char* path, const char* value)
{
    for (KP_MEM& r : rows())
        if (r.cmd[0] && BeginsWith(path, r.cmd))
            tally_row(r, path + strlen(r.cmd), value);
    return 0;
}

static int scroll(int kind, int bar, int step_or_line)
{
    if (Scrolled.shown && ScrollWindow_Move(Scrolled, kind, bar, step_or_line))
        RedrawAll = true;
    return 0;
}

// --- Picture ---

static SDL_Surface* picture(const KP_MEM& r, int cell)
{
    const int value = r.value[cell];
    if (value >= 0)
        return *cell_columns[cell].choices[size_t(value)].picture;
    return value == IS_MIXED ? G_PATH_mixed : G_PATH_none;
}

static void draw_splines(const KP_MEM& r, int y)
{
    for (int i = 0; i < SPLINES; i++) {
        char text[32];
        PrintText(text, "%.2f", r.spline[i]);
        TDL_SymbolWS(spline_columns[i].x, y + 13, 44, text, 3, WHITE);
    }
}

static void draw_row(int n)
{
    KP_MEM& r = Row[n];
    const int y = TOP + (n - Scrolled.top) * ROW_H;
    r.redraw = 0;
    TDL_FillRectS(LEFT, y, RIGHT, y + ROW_H - 1, BLACK);
    TDL_LineHS(LEFT, y + ROW_H - 1, RIGHT - LEFT + 1, GROUP_FRAME);
    if (r.pushed > 0)
        TDL_FillRectS(LEFT, y, MARK_X - 1, y + ROW_H - 2, HEADER_GROUND);
    TDL_SymbolWS(LEFT + 4, y + 13, MARK_X - LEFT - 4, r.caption, 3, WHITE);
    if (r.jump)
        TDL_PutS(MARK_X, y + 8, G_path_right);
    for (int cell = 0; cell < CELLS; cell++)
        if (r.has[cell])
            TDL_PutS(cell_columns[cell].x, y + 2, picture(r, cell));
    if (r.has[CURVE] && r.value[CURVE] == PATH_CURVE_SPLINE)
        draw_splines(r, y);
}

static void draw_head()
{
    TDL_FillRectS(LEFT, HEAD_TOP, RIGHT, HEAD_TOP + HEAD_H - 1, HEADER_GROUND);
    TDL_SymbolS(LEFT + 4, HEAD_TOP + 5, "Path", 3, LIST_TITLE);
    for (const CellColumn& c : cell_columns)
        TDL_SymbolS(c.x + 4, HEAD_TOP + 5, c.caption, 3, LIST_TITLE);
    for (const SplineColumn& c : spline_columns)
        TDL_SymbolS(c.x, HEAD_TOP + 5, c.caption, 3, LIST_TITLE);
}

static void draw_all()
{
    RedrawAll = false;
    draw_head();
    TDL_FillRectS(LEFT, TOP, RIGHT, BOTTOM, BLACK);
    for (int n = Scrolled.top; n < Scrolled.total && n < Scrolled.top + Scrolled.shown; n++)
        draw_row(n);
    TDL_UpdateRect(AREA.x1, AREA.y1, AREA.x2, AREA.y2);
}

static void let_go(int elapsed_ms)
{
    for (KP_MEM& r : rows()) {
        if (r.pushed <= 0)
            continue;
        r.pushed -= elapsed_ms;
        if (r.pushed <= 0)
            r.redraw = 1;
    }
}

static int redraw(int elapsed_ms)
{
    let_go(elapsed_ms);
    if (RedrawAll)
        draw_all();
    for (int n = Scrolled.top; n < Scrolled.total && n < Scrolled.top + Scrolled.shown; n++) {
        if (!Row[n].redraw)
            continue;
        draw_row(n);
        const int y = TOP + (n - Scrolled.top) * ROW_H;
        TDL_UpdateRect(LEFT, y, RIGHT, y + ROW_H - 1);
    }
    return 0;
}

int KP_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return redraw(int(ax));
    case MSG_PRESS: return press(int(ax), int(bx));
    case MSG_TALLY: return tally(Text(ax), Text(bx));
    case LMSG_PATHSELSEL: return chosen(int(ax), int(bx));
    case LMSG_SBSEL: return scroll(int(ax), int(bx), int(cx));
    default: return 0;
    }
}

int KP_ConvPosForWheel(int* x, int* y, int button)
{
    return Scrolled.shown ? SB_ConvPosForWheel(0, AREA, x, y, button) : 0;
}
