// The current row, what is selected, and how touch and bar change both.
#include "a_ls.h"
#include "a_ls_private.h"
#include "bus.h"
#include "message.h"
#include "scrollbar.h"
#include <SDL.h>
#include <algorithm>
#include <cstring>
#include "safeguards.h"

namespace
{
constexpr uint32_t BOUNCE_MS = 150; // a touch so soon after a release is the same one
constexpr int MARGIN = 2;           // rows that the arrows keep above and below the current one

enum Outcome { DONE = 0, ALREADY = 1, REFUSED = 2 };

struct Cell {
    int row = -1; // -1: none
    int col = -1;
};
} // namespace

static struct {
    uint32_t released_ms = 0; // SDL_GetTicks of the last release, of whatever page
    int value = 1;            // what a touch makes of the cells under it; kept for a bounce
    int id = 0;               // list that the finger came down on, 0 = none
    Cell last;                // the cell of it that was taken last
} touch;

void ls_forget_touch()
{
    touch = {.released_ms = touch.released_ms};
}

static bool in_use(const LS_MEM& l, int row)
{
    return row >= 0 && row < l.ndata;
}

// --- Which cells are selected ---

// Set the cells that are selected together: a row, or with split one cell of it.
static void set_cells(LS_MEM& l, int row, int col, int on)
{
    ls_use_marks(l, row);
    if (l.split)
        l.selected[row][col] = char(on);
    else
        std::fill_n(l.selected[row], l.hn, char(on));
    l.found_n = l.found_row = -1;
    l.redraw = 1;
}

void ls_unselect(LS_MEM& l, int from, int to)
{
    to = std::min(to, l.mark_rows);
    if (from >= to)
        return;
    std::fill_n(l.selected[from], (to - from) * LS_COLUMNS, char(0));
    l.found_n = l.found_row = -1;
    l.redraw = 1;
}

static void unselect_all(LS_MEM& l)
{
    ls_unselect(l, 0, LS_ROWS);
}

static bool row_selected(const LS_MEM& l, int row)
{
    return memchr(l.selected[row], 1, size_t(l.hn)) != nullptr;
}

static bool is_on(const LS_MEM& l, int row, int col)
{
    return row >= 0 && row < LS_ROWS && l.selected[row][col] != 0;
}

static bool keeps_one_run(const LS_MEM& l)
{
    return l.ms_pushed && (l.block || l.al_pushed);
}

// Leave nothing selected but the run at (row, col). A cell that has just been taken out of a run
// has split it: the upper part stays, or the lower when there is no upper one.
static void keep_run(LS_MEM& l, int row, int col)
{
    if (!is_on(l, row, col))
        row = is_on(l, row - 1, col) ? row - 1 : row + 1;
    int first = row;
    int end = row;
    while (is_on(l, first - 1, col))
        first--;
    while (is_on(l, end, col))
        end++;
    unselect_all(l);
    for (int r = first; r < end; r++)
        set_cells(l, r, col, 1);
}

static void show_row(LS_MEM& l, int row)
{
    if (row < l.topline)
        ls_set_top(l, row);
    else if (row >= l.topline + l.vn)
        ls_set_top(l, row - l.vn + 1);
}

// A negative row or col is the current one.
static Outcome selected(LS_MEM& l, int row, int col, int on)
{
    if (row < 0)
        row = l.nowline;
    if (col < 0)
        col = l.splitsel;
    if (l.selected[row][col] == on)
        return ALREADY;
    if (!l.ms_pushed) {
        if (!on)
            return REFUSED;
        unselect_all(l);
    }
    if (l.split && col > 0) // column 0 names the row: touching it keeps the current column
        l.splitsel = col;
    set_cells(l, row, col, on);
    if (keeps_one_run(l))
        keep_run(l, row, col);
    l.nowline = row;
    show_row(l, row);
    l.redraw = l.ms_redraw = 1;
    return DONE;
}

static void go_to(LS_MEM& l, int row)
{
    if (!l.ms_pushed && !l.view)
        (void)selected(l, row, -1, 1); // already selected is fine
    l.nowline = row;
    show_row(l, row);
    l.redraw = 1;
}

// --- The keys ---

static void ms_selected(LS_MEM& l, int on)
{
    if (l.ms_pushed == on)
        return;
    l.ms_pushed = on;
    l.ms_redraw = 1;
    if (on)
        return;
    l.al_pushed = 0;
    l.al_redraw = 1;
    const bool keeps_current = is_on(l, l.nowline, l.splitsel);
    unselect_all(l);
    if (keeps_current)
        set_cells(l, l.nowline, l.splitsel, 1);
}

static void all_selected(LS_MEM& l, int on)
{
    if (on)
        ms_selected(l, 1);
    l.al_pushed = on;
    l.al_redraw = 1;
    unselect_all(l);
    for (int row = 0; on && row < l.ndata; row++)
        set_cells(l, row, l.splitsel, 1);
}

static void flash(const LS_MEM& l)
{
    if (!l.mono)
        SendMessage(LMSG_LISTFLASH, l.id, 0, 0, 0);
}

static void press_keys(LS_MEM& l, int x, int y)
{
    if (!ls_has_keys(l))
        return;
    if (Inside({l.ms_x1, l.ms_y1, l.ms_x2, l.ms_y2}, x, y)) {
        ms_selected(l, !l.ms_pushed);
        flash(l);
    } else if (Inside({l.al_x1, l.al_y1, l.al_x2, l.al_y2}, x, y)) {
        all_selected(l, !l.al_pushed);
        flash(l);
    }
}

// --- Touch ---

static int column_at(const LS_MEM& l, int x)
{
    int right = l.x;
    for (int col = 0; col < l.hn; col++) {
        right += l.width[col];
        if (x < right)
            return col;
    }
    return -1;
}

// None for the header and for rows that are not in use.
static Cell cell_at(const LS_MEM& l, int x, int y)
{
    if (!Inside({l.area_x1, l.area_y1 + LS_ROW_PX, l.area_x2, l.area_y2}, x, y))
        return {};
    const int row = l.topline + (y - l.area_y1) / LS_ROW_PX - 1;
    const int col = column_at(l, x);
    return in_use(l, row) && col >= 0 ? Cell{row, col} : Cell{};
}

static void tell(const LS_MEM& l, const Cell& c)
{
    SendMessage(LMSG_LISTSEL, l.id, c.row, c.col, 0);
}

static void press_cell(LS_MEM& l, const Cell& c, bool is_new)
{
    if (is_new)
        touch.value = !is_on(l, c.row, c.col);
    if (l.view) {
        tell(l, c);
        return;
    }
    touch.id = l.id;
    touch.last = c;
    if (selected(l, c.row, c.col, touch.value) == DONE)
        tell(l, c);
}

int ls_press(int x, int y)
{
    const bool is_new = SDL_GetTicks() - touch.released_ms > BOUNCE_MS;
    touch.id = 0;
    // What page code does about a message may end the lists: each step looks at its own again.
    for (LS_MEM* l = List; l->id >= 1; l++) {
        const Cell c = cell_at(*l, x, y);
        if (c.row >= 0)
            press_cell(*l, c, is_new);
    }
    for (LS_MEM* l = List; l->id >= 1; l++)
        press_keys(*l, x, y);
    for (LS_MEM* l = List; l->id >= 1; l++)
        if (Inside({l->area_x1, l->area_y1, l->area_x2, l->area_y2}, x, y))
            SendMessage(LMSG_LISTAREASEL, l->id, 0, 0, 0);
    return 0;
}

// A release that went elsewhere has no place on the screen, and no bounce follows it.
int ls_release(bool is_on_screen)
{
    if (is_on_screen)
        touch.released_ms = SDL_GetTicks();
    touch.id = 0;
    return 0;
}

// Every cell that the finger passes takes the value that the press gave to the first. The one that
// it rests on is not taken twice: page code may have said no to it, and would hear of each tremble.
int ls_drag(int x, int y, bool held)
{
    LS_MEM* l = ls_find(touch.id);
    if (!l || !held || !l->ms_pushed)
        return 0;
    const Cell to = cell_at(*l, x, y);
    if (to.row < 0 || (to.row == touch.last.row && (!l->split || to.col == touch.last.col)))
        return 0;
    touch.last.col = to.col;
    // A quick finger jumps over rows: they count as touched.
    if (!in_use(*l, touch.last.row))
        touch.last.row = to.row;
    const int step = (to.row > touch.last.row) - (to.row < touch.last.row);
    do {
        touch.last.row += step;
        if (selected(*l, touch.last.row, to.col, touch.value) == DONE)
            tell(*l, touch.last);
    } while (touch.id == l->id && touch.last.row != to.row && in_use(*l, touch.last.row + step));
    return 0;
}

// --- Scrolling ---

// Move the window so that the current row is third from the edge that it has come near. Where a
// window is too small for both edges the lower one decides, but never loses the row.
static void keep_margin(LS_MEM& l)
{
    const int row = l.nowline;
    int top = l.topline;
    if (top + MARGIN > row)
        top = row - MARGIN;
    if (top + l.vn - 1 - MARGIN < row)
        top = row - (l.vn - 1 - MARGIN);
    ls_set_top(l, std::clamp(top, row - l.vn + 1, row));
}

// In multi-select the selection is the operator's, and a list for display has none: only the
// window moves.
static bool moves_window_only(const LS_MEM& l)
{
    return l.ms_pushed || l.view;
}

static int scroll(LS_MEM& l, int delta)
{
    if (l.ndata <= 0)
        return -1;
    if (moves_window_only(l)) {
        ls_set_top(l, l.topline + delta);
        return 0;
    }
    l.nowline = std::clamp(l.nowline + delta, 0, l.ndata - 1);
    const Outcome outcome = selected(l, -1, -1, 1);
    keep_margin(l);
    if (outcome == DONE)
        tell(l, {l.nowline, l.splitsel});
    return 0;
}

static int scroll_to(LS_MEM& l, int row)
{
    if (l.ndata <= 0)
        return -1;
    ls_set_top(l, row);
    if (moves_window_only(l))
        return 0;
    l.nowline = std::clamp(row, 0, l.ndata - 1);
    if (selected(l, -1, -1, 1) == DONE)
        tell(l, {l.nowline, l.splitsel});
    return 0;
}

int ls_sbsel(int kind, int bar, int value)
{
    LS_MEM* l = ls_find(bar + 1);
    if (l) // an empty list has nowhere to go
        (void)(kind == SB_THUMB ? scroll_to(*l, value) : scroll(*l, value));
    return 0;
}

// --- For page code ---

int LS_SetNowLine(int id, int row)
{
    LS_MEM* l = ls_find(id);
    if (!l || !ls_row_ok(row))
        return -1;
    go_to(*l, row);
    return 0;
}

int LS_GetNowLine(int id)
{
    const LS_MEM* l = ls_find(id);
    return l ? l->nowline : -1;
}

int LS_SetTopLine(int id, int row)
{
    LS_MEM* l = ls_find(id);
    if (!l || !ls_row_ok(row))
        return -1;
    ls_set_top(*l, row);
    return 0;
}

int LS_GetTopLine(int id)
{
    const LS_MEM* l = ls_find(id);
    return l ? l->topline : -1;
}

// Cells and rows are no selection of each other: what was selected goes, but for the current one.
int LS_SetSplit(int id, int on)
{
    LS_MEM* l = ls_find(id);
    if (!l)
        return -1;
    on = on != 0;
    if (l->split == on)
        return 0;
    const bool keeps_current = row_selected(*l, l->nowline);
    unselect_all(*l);
    l->split = on;
    l->redraw = 1;
    if (keeps_current)
        set_cells(*l, l->nowline, l->splitsel, 1);
    return 0;
}

int LS_SetSplitSel(int id, int col)
{
    LS_MEM* l = ls_find(id);
    if (!l || col < 0 || col >= l->hn)
        return -1;
    const bool moves = l->split && !l->ms_pushed && row_selected(*l, l->nowline);
    l->splitsel = col;
    l->redraw = 1;
    if (moves)
        (void)selected(*l, -1, col, 1); // already selected is fine
    return 0;
}

int LS_GetSplitSel(int id)
{
    const LS_MEM* l = ls_find(id);
    return l ? l->splitsel : -1;
}

int LS_IsSelected(int id, int row, int col)
{
    const LS_MEM* l = ls_find(id);
    return l && ls_row_ok(row) && ls_column_ok(col) ? l->selected[row][col] : -1;
}

// Page code asks for one after the other: each walk goes on where the last one ended.
int LS_GetSelected(int id, int n)
{
    LS_MEM* l = ls_find(id);
    if (!l || n < 0)
        return -1;
    if (n < l->found_n)
        l->found_n = l->found_row = -1;
    while (l->found_n < n) {
        int row = l->found_row + 1;
        while (row < l->ndata && !row_selected(*l, row))
            row++;
        if (row >= l->ndata)
            return -1;
        l->found_row = row;
        l->found_n++;
    }
    return l->found_row;
}

int LS_SetSelected(int id, int row, int col, int on)
{
    LS_MEM* l = ls_find(id);
    if (!l || (row >= 0 && !ls_row_ok(row)) || col >= l->hn)
        return -1;
    return selected(*l, row, col, on != 0);
}

int LS_ChangeSelByStr(int id, int col, const char* text)
{
    LS_MEM* l = ls_find(id);
    if (!l || !ls_column_ok(col) || !text)
        return -1;
    for (int row = 0; row < l->ndata; row++) {
        const char* cell = l->data[row][col];
        if (!cell || strcmp(cell, text) != 0)
            continue;
        go_to(*l, row);
        return 0;
    }
    return -1;
}

int LS_GetMS(int id)
{
    const LS_MEM* l = ls_find(id);
    return l ? l->ms_pushed : -1;
}

int LS_SetMS(int id, int on)
{
    LS_MEM* l = ls_find(id);
    if (!l)
        return -1;
    ms_selected(*l, on != 0);
    return 0;
}

int LS_GetALL(int id)
{
    const LS_MEM* l = ls_find(id);
    return l ? l->al_pushed : -1;
}

int LS_SetALL(int id, int on)
{
    LS_MEM* l = ls_find(id);
    if (!l)
        return -1;
    all_selected(*l, on != 0);
    return 0;
}
