#include "a_ls.h"
#include "a_ls_private.h"
#include "log.h"
#include "message.h"
#include "scrollbar.h"
#include <algorithm>
#include <climits>
#include <numeric>
#include "safeguards.h"

LS_MEM List[LS_MAX + 1];

namespace
{
// The keys stand below the right end of the list and of its bar.
constexpr int KEY_W = 62;
constexpr int KEY_H = 40;
constexpr int KEY_PITCH = 64;
constexpr int KEY_GAP = 10;   // below the last row
constexpr int KEY_INSET = 12; // of the right key from the right end of the list
constexpr int BAR_GAP = 2;    // between the list and its bar
} // namespace

LS_MEM* ls_find(int id)
{
    for (LS_MEM* l = List; l->id >= 1; l++)
        if (l->id == id)
            return l;
    return nullptr;
}

static bool refuse(const char* what, int value)
{
    Log_Output(LOG_DETAIL, MOD_PAGE, "List: no %s %d", what, value);
    return false;
}

bool ls_row_ok(int row)
{
    return (row >= 0 && row < LS_ROWS) || refuse("row", row);
}

bool ls_column_ok(int col)
{
    return (col >= 0 && col < LS_COLUMNS) || refuse("column", col);
}

// The list, when it exists and has the cell.
static LS_MEM* find_cell(int id, int row, int col)
{
    LS_MEM* l = ls_find(id);
    return l && ls_row_ok(row) && ls_column_ok(col) ? l : nullptr;
}

static LS_MEM* find_row(int id, int row)
{
    return find_cell(id, row, 0);
}

static LS_MEM* find_column(int id, int col)
{
    return find_cell(id, 0, col);
}

bool ls_has_keys(const LS_MEM& l)
{
    return !l.block && !l.view;
}

void ls_use_marks(LS_MEM& l, int row)
{
    l.mark_rows = std::max(l.mark_rows, row + 1);
}

// A change outside the window is not seen: filling 12,000 rows repaints nothing.
static void show_change(LS_MEM& l, int row)
{
    if (row >= l.topline && row < l.topline + l.vn)
        l.redraw = 1;
}

int ls_last_top(const LS_MEM& l)
{
    return std::max(l.ndata - l.vn, 0);
}

// Without rows there is nothing to keep to: the place may be set before the list is filled.
void ls_set_top(LS_MEM& l, int row)
{
    row = std::clamp(row, 0, l.ndata > 0 ? ls_last_top(l) : LS_ROWS - 1);
    if (l.topline == row)
        return;
    l.topline = row;
    l.redraw = 1;
}

// --- Opening and closing a page ---

static void clear_cells(LS_MEM& l)
{
    std::fill_n(&l.data[0][0], l.text_rows * LS_COLUMNS, nullptr);
    std::fill_n(&l.selected[0][0], l.mark_rows * LS_COLUMNS, char(0));
    std::fill_n(&l.status[0][0], l.mark_rows * LS_COLUMNS, char(0));
    std::fill_n(l.folder, l.mark_rows, char(0));
    std::fill_n(l.folder2, l.mark_rows, char(0));
    l.text_rows = 0;
    l.mark_rows = 0;
    l.ndata = 0;
    l.topline = 0;
    l.nowline = 0;
    l.found_n = l.found_row = -1;
    l.al_pushed = 0;
    l.redraw = l.ms_redraw = l.al_redraw = 1;
}

static int table_width(const LS_TBL& row)
{
    return std::accumulate(row.width, row.width + row.hn, 0);
}

static void place_keys(LS_MEM& l)
{
    l.ms_x1 = l.area_x2 + 1 - KEY_INSET;
    l.ms_y1 = l.area_y2 + 1 + KEY_GAP;
    l.ms_x2 = l.ms_x1 + KEY_W - 1;
    l.ms_y2 = l.ms_y1 + KEY_H - 1;
    l.al_x1 = l.ms_x1 - KEY_PITCH;
    l.al_y1 = l.ms_y1;
    l.al_x2 = l.ms_x2 - KEY_PITCH;
    l.al_y2 = l.ms_y2;
}

static void ls_fill(LS_MEM& l, const LS_TBL& row)
{
    l.id = row.id;
    l.hn = row.hn;
    l.vn = row.vn;
    l.x = row.x;
    l.y = row.y;
    std::copy_n(row.head, LS_COLUMNS, l.head);
    std::copy_n(row.width, LS_COLUMNS, l.width);
    std::copy_n(row.group, LS_COLUMNS, l.group);
    std::fill_n(l.row_disable, LS_COLUMNS, 0);
    l.split = row.split;
    l.mono = row.mono;
    l.view = row.view;
    l.sb_top = row.sb_top;
    l.sb_bottom = row.sb_bottom;
    l.block = row.block;
    l.splitsel = 0;
    l.ms_pushed = 0;
    l.area_x1 = row.x;
    l.area_y1 = row.y;
    l.area_x2 = row.x + table_width(row) - 1;
    l.area_y2 = row.y + LS_ROW_PX * (row.vn + 1) - 1;
    place_keys(l);
    clear_cells(l); // what the last page left in this place
}

static bool is_sound(const LS_TBL& row)
{
    return row.id <= LS_MAX && row.hn >= 1 && row.hn <= LS_COLUMNS && row.vn >= 1 &&
           !ls_find(row.id);
}

static void drop_lists()
{
    for (LS_MEM* l = List; l->id >= 1; l++)
        CloseScrollBar(l->id - 1);
    for (LS_MEM& l : List) // all of them: somebody may be on the way from one to the next
        l.id = -1;
    ls_forget_touch();
    ls_show_selected(true);
}

int LS_Create(const LS_TBL* table, int)
{
    drop_lists();
    if (!table)
        return 1;
    LS_MEM* l = List;
    for (const LS_TBL* row = table; row->id >= 1; row++) {
        if (!is_sound(*row)) { // ids are unique, so LS_MAX of them fit
            Log_Output(LOG_ALWAYS, MOD_PAGE, "List %d of the page is left out", row->id);
            continue;
        }
        ls_fill(*l, *row);
        (void)CreateScrollBar(l->id - 1, l->area_x2 + 1 + BAR_GAP, l->sb_top,
                              l->sb_bottom - l->sb_top); // the id has been checked
        l++;
    }
    return 0;
}

int LS_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return ls_redraw();
    case MSG_PRESS: return ls_press(int(ax), int(bx));
    case MSG_RELEASE: return ls_release(int(ax) >= 0);
    case MSG_DRAG: return ls_drag(int(ax), int(bx), cx != 0);
    case LMSG_SBSEL: return ls_sbsel(int(ax), int(bx), int(cx));
    default: return 0;
    }
}

int LS_ConvPosForWheel(int* x, int* y, int dir)
{
    for (const LS_MEM* l = List; l->id >= 1; l++) {
        const Rect area = {l->area_x1, l->area_y1, l->area_x2, l->area_y2};
        if (!(l->view && l->block) && SB_ConvPosForWheel(l->id - 1, area, x, y, dir))
            return 1;
    }
    return 0;
}

// --- Cells ---

// The text may be another one behind the same pointer, so there is no test for the same value.
int LS_SetData(int id, int row, int col, const char* text)
{
    LS_MEM* l = find_cell(id, row, col);
    if (!l)
        return -1;
    l->data[row][col] = text;
    l->text_rows = std::max(l->text_rows, row + 1);
    show_change(*l, row);
    return 0;
}

const char* LS_GetData(int id, int row, int col)
{
    const LS_MEM* l = find_cell(id, row, col);
    return l ? l->data[row][col] : nullptr;
}

int LS_SetDataFolder(int id, int row, int kind, int side)
{
    LS_MEM* l = find_row(id, row);
    if (!l || kind < 0 || kind > 2 || side < 0 || side > 1)
        return -1;
    ls_use_marks(*l, row);
    (side == 0 ? l->folder : l->folder2)[row] = char(kind);
    show_change(*l, row);
    return 0;
}

int LS_SetNData(int id, int n)
{
    LS_MEM* l = ls_find(id);
    if (!l || n < 0 || n > LS_ROWS)
        return -1;
    if (l->ndata == n)
        return 0;
    ls_unselect(*l, n, l->ndata);
    l->ndata = n;
    l->redraw = 1;
    if (n == 0)
        return 0;
    l->nowline = std::min(l->nowline, n - 1);
    ls_set_top(*l, l->topline);
    return 0;
}

int LS_GetNData(int id)
{
    const LS_MEM* l = ls_find(id);
    return l ? l->ndata : -1;
}

int LS_ClearData(int id)
{
    LS_MEM* l = ls_find(id);
    if (!l)
        return -1;
    clear_cells(*l);
    return 0;
}

int LS_RedrawData(int id)
{
    LS_MEM* l = ls_find(id);
    if (!l)
        return -1;
    l->redraw = 1;
    return 0;
}

int LS_SetFromN(int id, int from, int n)
{
    LS_MEM* l = find_row(id, from);
    if (!l || LS_SetNData(id, n) != 0)
        return -1;
    ls_set_top(*l, from);
    return 0;
}

// --- Colour classes ---

static bool status_ok(int status)
{
    return (status >= 0 && status <= SCHAR_MAX) || refuse("colour class", status);
}

static void set_status(LS_MEM& l, int row, int col, int status)
{
    if (l.status[row][col] == status)
        return;
    ls_use_marks(l, row);
    l.status[row][col] = char(status);
    show_change(l, row);
}

int LS_SetStatus(int id, int row, int col, int status)
{
    LS_MEM* l = find_cell(id, row, col);
    if (!l || !status_ok(status))
        return -1;
    set_status(*l, row, col, status);
    return 0;
}

int LS_GetStatus(int id, int row, int col)
{
    const LS_MEM* l = find_cell(id, row, col);
    return l ? l->status[row][col] : -1;
}

int LS_SetHStatus(int id, int row, int status)
{
    LS_MEM* l = find_row(id, row);
    if (!l || !status_ok(status))
        return -1;
    for (int col = 0; col < LS_COLUMNS; col++)
        set_status(*l, row, col, status);
    return 0;
}

int LS_SetVStatus(int id, int col, int status)
{
    LS_MEM* l = find_column(id, col);
    if (!l || !status_ok(status))
        return -1;
    for (int row = 0; row < LS_ROWS; row++)
        set_status(*l, row, col, status);
    return 0;
}

// --- Header ---

int LS_SetHeadStr(int id, int col, const char* text)
{
    LS_MEM* l = find_column(id, col);
    if (!l)
        return -1;
    l->head[col] = text;
    l->redraw = 1;
    return 0;
}

int LS_HeaderDisable(int id, int col, int on)
{
    LS_MEM* l = find_column(id, col);
    if (!l)
        return -1;
    l->row_disable[col] = on;
    l->redraw = 1;
    return 0;
}

int LS_SetGrouplin(int id, int group, int n)
{
    LS_MEM* l = find_column(id, group);
    if (!l || n < 0)
        return -1;
    l->group[group] = n;
    l->redraw = 1;
    return 0;
}
