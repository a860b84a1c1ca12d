#include "a_dw.h"
#include "a_ba.h"
#include "colours.h"
#include "command.h"
#include "graphics.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "page_table/patterns.h"
#include "scroll_window.h"
#include "scrollbar.h"
#include "tally_value.h"
#include "tdl.h"
#include <algorithm>
#include "safeguards.h"

namespace
{
constexpr int BAR_X = 620;
constexpr int BAR_TOP = 80;
constexpr int BAR_H_KNOB_ROW = 246;
constexpr int BAR_H = 322;
constexpr int CAPTION_X = 104;
constexpr int CELL_X = 160;
constexpr int CELL_Y = BAR_TOP + 9; // the lines stand in the middle of the bar's height
constexpr int CELL_PX = 69;
constexpr int PITCH = 76;
constexpr int COLUMNS = 6;
constexpr int LINES = 256; // of one list
constexpr int LINES_SHOWN_KNOB_ROW = 3;
constexpr int LINES_SHOWN = 4;

struct Line {
    int group = 0; // index into the groups of the list
    int first = 0; // its first pattern on this line
};

struct Group {
    const char* caption = "";
    const DMEWIPEPTN* ptn = nullptr;
    int ptnn = 0; // patterns
    int offset = 0;
};
} // namespace

static struct {
    char cmd[CMD_SIZE] = ""; // "" while no page has the object
    uint32_t hash = 0;
    Group group[DW_GROUPS];
    Line line[LINES];
    ScrollWindow window; // its total is how many lines there are
    int number = 0;      // chosen by the tally, 0 none
    bool redraw = false;
    bool is_dead = false; // its cells take no press
} dw;

// --- Opening and closing ---

// Ten user programs a keyer: P/P from the first, M/E-1 and M/E-2 after it, the second key of each
// behind its first.
static int number_offset()
{
    static constexpr struct {
        const char* word;
        int offset;
    } moves[] = {{"Key2", 10}, {"DSK2", 10}, {"M/E-1", 20}, {"M/E-2", 40}};
    int offset = 0;
    for (int i = 0; i < 2 && GL_NowTree && GL_NowTree[i]; i++)
        for (const auto& m : moves)
            if (Same(m.word, GL_NowTree[i]))
                offset += m.offset;
    return offset;
}

static const DMEWIPEGRP* find_group(int id)
{
    for (const DMEWIPEGRP& g : dme_wipe_groups)
        if (g.id == id)
            return &g;
    return nullptr;
}

static void add_lines(int group)
{
    for (int first = 0; first < dw.group[group].ptnn && dw.window.total < LINES; first += COLUMNS)
        dw.line[dw.window.total++] = {group, first};
}

static void fill_group(int i, int id)
{
    if (id == 0)
        return;
    const DMEWIPEGRP* from = find_group(id);
    if (!from) {
        Log_Output(LOG_ALWAYS, MOD_PAGE, "No DME wipe group: %d\n", id);
        return;
    }
    Group& g = dw.group[i];
    g = {from->caption, from->ptn, 0, from->is_per_key ? number_offset() : 0};
    while (g.ptn[g.ptnn].num != 0)
        g.ptnn++;
    add_lines(i);
}

int DW_Create(const DW_TBL* table, uint32_t knob_row)
{
    if (dw.cmd[0]) {
        Net_SendCommandFormat("remove %s", dw.cmd);
        CloseScrollBar(0);
    }
    dw = {};
    if (!table)
        return 1;
    DecodeCommand(dw.cmd, table->cmd, CMD_SIZE);
    dw.hash = Hash(dw.cmd);
    for (int i = 0; i < DW_GROUPS; i++)
        fill_group(i, table->grpid[i]);
    dw.window.shown = knob_row ? LINES_SHOWN_KNOB_ROW : LINES_SHOWN;
    dw.redraw = true;
    ScrollWindow_Open(dw.window, BAR_X, BAR_TOP, knob_row ? BAR_H_KNOB_ROW : BAR_H);
    Net_SendCommandFormat("add %s", dw.cmd);
    return 0;
}

int DW_Follows(const char* path)
{
    return dw.cmd[0] && Same(dw.cmd, path);
}

// --- Cells ---

static Rect area()
{
    return {CAPTION_X, CELL_Y, CELL_X + COLUMNS * PITCH - 1, CELL_Y + dw.window.shown * PITCH - 1};
}

// The pattern of a place in the window, null behind the end of its group.
static const DMEWIPEPTN* pattern_at(int row, int column)
{
    const int n = dw.window.top + row;
    if (n >= dw.window.total)
        return nullptr;
    const Group& g = dw.group[dw.line[n].group];
    const int i = dw.line[n].first + column;
    return i < g.ptnn ? &g.ptn[i] : nullptr;
}

// Of the first set of channels.
static int base_number_of(const DMEWIPEPTN* p, int row)
{
    return p->num + dw.group[dw.line[dw.window.top + row].group].offset;
}

static int press(int x, int y)
{
    if (!dw.cmd[0] || dw.is_dead || !Inside(area(), x, y) || x < CELL_X || BA_IsDefaultButton())
        return 0;
    const int row = (y - CELL_Y) / PITCH;
    const int column = (x - CELL_X) / PITCH;
    if ((y - CELL_Y) % PITCH >= CELL_PX || (x - CELL_X) % PITCH >= CELL_PX)
        return 0; // between the cells
    const DMEWIPEPTN* p = pattern_at(row, column);
    if (!p)
        return 0;
    char number[16];
    PrintText(number, "%d", base_number_of(p, row) + DW_SetOf(dw.number));
    Net_SendCommandFormat("put %s#%s", dw.cmd, number);
    if (p->nb)
        NB_Create(p->nb, number);
    else
        NB_CreateBlank();
    return 0;
}

static int scroll(int kind, int bar, int step_or_line)
{
    if (dw.cmd[0] && ScrollWindow_Move(dw.window, kind, bar, step_or_line))
        dw.redraw = true;
    return 0;
}

static void scroll_to(int line)
{
    (void)scroll(SB_THUMB, 0, line); // bar 0; the window stays inside the list
}

// The line that a number of the first set of channels stands on, -1 when the list has none.
static int line_of(int base)
{
    for (int i = 0; i < dw.window.total; i++) {
        const Group& g = dw.group[dw.line[i].group];
        const int end = std::min(dw.line[i].first + COLUMNS, g.ptnn);
        for (int n = dw.line[i].first; n < end; n++)
            if (g.ptn[n].num + g.offset == base)
                return i;
    }
    return -1;
}

// The chosen cell comes into view; the window stays where the operator has put it otherwise.
static int tally(const char* path, const char* value, uint32_t hash)
{
    if (dw.hash != hash || !dw.cmd[0] || !Same(dw.cmd, path))
        return 0;
    const int number = Decimal(value);
    if (number == dw.number)
        return 0;
    dw.number = number;
    dw.redraw = true;
    const int line = line_of(DW_BaseNumber(number));
    if (line >= 0 && (line < dw.window.top || line >= dw.window.top + dw.window.shown))
        scroll_to(line);
    return 0;
}

int DW_ShowChannels(int channels)
{
    for (int i = 0; i < dw.window.total; i++) {
        if (DW_ChannelsOf(dw.group[dw.line[i].group].ptn[0].num) != channels)
            continue;
        scroll_to(i);
        return 0;
    }
    return -1;
}

// --- Picture ---

static void draw_cell(int x, int y, int base)
{
    constexpr unsigned char VEIL = 200;
    const int right = x + CELL_PX - 1;
    const int bottom = y + CELL_PX - 1;
    const int number = base + DW_SetOf(dw.number);
    char text[16];
    PrintText(text, "%d", number);
    TDL_FillRectS(x, y, right, bottom, BLACK);
    if (base > 0)
        TDL_PutS(x + 4, y + 2, WipePtn(base));
    if (number != dw.number) {
        TDL_SymbolS(x + 4, y + 53, text, 1, WHITE);
        return;
    }
    TDL_FillRectAS(x, y, right, bottom, 0, VEIL);
    TDL_SymbolCS(x, y, right, bottom, text, 5, WHITE);
}

static void draw_line(int row)
{
    const int y = CELL_Y + row * PITCH;
    const Line& line = dw.line[dw.window.top + row];
    // A group that began above the window still says its name.
    if (line.first == 0 || row == 0)
        TDL_SymbolWS(CAPTION_X, y + 6, CELL_X - CAPTION_X, dw.group[line.group].caption, 3, WHITE);
    for (int column = 0; column < COLUMNS; column++)
        if (const DMEWIPEPTN* p = pattern_at(row, column))
            draw_cell(CELL_X + column * PITCH, y, base_number_of(p, row));
}

static int redraw()
{
    if (!dw.redraw)
        return 0;
    dw.redraw = false;
    const Rect r = area();
    TDL_FillRectS(r.x1, r.y1, r.x2, r.y2, BLACK);
    for (int row = 0; row < dw.window.shown && dw.window.top + row < dw.window.total; row++)
        draw_line(row);
    TDL_UpdateRect(r.x1, r.y1, r.x2, r.y2);
    return 0;
}

int DW_SetDead(int on)
{
    dw.is_dead = on != 0;
    return 0;
}

int DW_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return redraw();
    case MSG_PRESS: return press(int(ax), int(bx));
    case MSG_TALLY: return tally(Text(ax), Text(bx), uint32_t(cx));
    case LMSG_SBSEL: return scroll(int(ax), int(bx), int(cx));
    default: return 0;
    }
}

int DW_ConvPosForWheel(int* x, int* y, int button)
{
    return SB_ConvPosForWheel(0, area(), x, y, button);
}
