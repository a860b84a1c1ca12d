// Panes that something is chosen from: grids of cells, pull-downs, router levels.
#include "log.h"
#include "pane_private.h"
#include <algorithm>

#include "safeguards.h"

constexpr Rect WORK_AREA = {97, 73, 702, 526};

void pane_add_grid(PANE* pane, const PaneGrid& grid, const BTNSEL* cells, int count)
{
    for (int i = 0; i < count; i++) {
        const bool is_empty = cells[i].id <= 0;
        if (is_empty && !grid.keep_empty)
            continue;
        const char* caption = cells[i].caption ? cells[i].caption : "";
        const int place = i % (grid.columns * grid.rows);
        (void)pane_add(pane, {.id = std::max(0, cells[i].id),
                              .caption = caption,
                              .type = grid.look,
                              .x1 = grid.x + place % grid.columns * grid.dx,
                              .y1 = grid.y + place / grid.columns * grid.dy,
                              .onoff = is_empty ? 0 : cells[i].select,
                              .disable = is_empty,
                              .hidden = is_empty && !*caption});
    }
}

void pane_add_bottom_key(PANE* pane, int id, const char* caption, int look, int x)
{
    (void)pane_add(pane, {.id = id, .caption = caption, .type = look, .x1 = x, .y1 = pane->h - 50});
}

// A centred pane of cells with "Cancel" below them: margins of 15 and 11, and 50 for the key.
static int grid_create(TYPE type, const char* caption, const PaneGrid& grid, const BTNSEL* cells)
{
    if (grid.columns < 1 || grid.rows < 1 || !cells)
        return 0;
    const int w = grid.dx * grid.columns + 26;
    const int h = grid.dy * grid.rows + 76;
    const int count = grid.columns * grid.rows;
    PANE* pane = pane_create(type, caption, pane_centred(w, h), count + 1);
    if (!pane)
        return 0;
    pane_add_grid(pane, grid, cells, count);
    pane_add_bottom_key(pane, BTN_CANCEL, "Cancel", LOOK_ENTER, w / 2 - 30);
    return pane->id;
}

int PaneSelect_Create(int hn, int vn, const BTNSEL* btnsel)
{
    return grid_create(TYPE_SELECT, "Select", {hn, vn, 15, 15, 64, 44, LOOK_CELL}, btnsel);
}

int PaneSelect_Color_Button_Create(int hn, int vn, const BTNSEL* btnsel)
{
    return grid_create(TYPE_COLOR, "Select", {hn, vn, 15, 15, 89, 70, LOOK_COLOUR}, btnsel);
}

int PanePopup_Create(int vn, int hn, const BTNSEL* btnsel)
{
    return grid_create(TYPE_POPUP, "Popup", {hn, vn, 15, 15, 78, 43, LOOK_POPUP}, btnsel);
}

int FMOutPopup_Create(int vn, int hn, const BTNSEL* btnsel)
{
    return grid_create(TYPE_FMOUT, "Popup", {hn, vn, 15, 15, 105, 50, LOOK_FMOUT}, btnsel);
}

void choice_select(PANE* pane, int id)
{
    pane->quitmem = id == BTN_CANCEL ? int(QUIT_SILENT) : id;
}

// A button of the popup on top, of either kind.
static BUTTON* popup_button(int id, PANE** owner)
{
    PANE* pane = nullptr;
    for (PANE* p = pane_bottom(); p; p = p->next)
        if (p->type == TYPE_POPUP || p->type == TYPE_FMOUT)
            pane = p;
    *owner = pane;
    for (BUTTON* b = pane ? pane->button : nullptr; b && b->id != BUTTON_END; b++)
        if (b->id == id)
            return b;
    return nullptr;
}

int PanePopup_BtnDisable(int id, int on)
{
    PANE* pane;
    BUTTON* b = popup_button(id, &pane);
    if (!b)
        return -1;
    b->disable = on != 0;
    b->redraw = 1;
    return 0;
}

int PanePopup_BtnCutOff(int id, int on)
{
    PANE* pane;
    BUTTON* b = popup_button(id, &pane);
    if (!b)
        return -1;
    b->hidden = on != 0;
    pane->inside_redraw = 1; // the ground shows where it was
    return 0;
}

// --- Pull-down ---

int PanePullDown_Create(int, int y, int n, const BTNSEL* items)
{
    constexpr int RIGHT = 691;
    constexpr int DX = 103;
    constexpr int DY = 48;
    constexpr int ROWS_MAX = 9;    // as the work area has
    constexpr int COLUMNS_MAX = 6; // up to the left edge of the screen
    if (n < 1 || !items)
        return 0;
    if (n > COLUMNS_MAX * ROWS_MAX) {
        Log_Output(LOG_ALWAYS, MOD_GLOBAL, "A pull-down of %d items is cut.", n);
        n = COLUMNS_MAX * ROWS_MAX;
    }
    const int rows = std::min(n, ROWS_MAX);
    const int columns = (n + rows - 1) / rows;
    const int w = columns * DX + 18;
    const int h = rows * DY + 18;
    y = std::clamp(y, WORK_AREA.y1, WORK_AREA.y2 + 1 - h);
    PANE* pane = pane_create(TYPE_PULLDOWN, "PullDown", pane_box(RIGHT - w + 1, y, w, h), n);
    if (!pane)
        return 0;
    const int look = columns > 1 ? LOOK_LONG_ITEM : LOOK_ITEM;
    pane_add_grid(pane, {columns, rows, 10, 10, DX, DY, look}, items, n);
    return pane->id;
}

// --- Router level ---

constexpr int ROUTER_LEVELS = 8;
static BTNSEL RTRLVLBtn_RTRLEVEL[ROUTER_LEVELS] = {
    {1, "Level 1", 0}, {2, "Level 2", 0}, {3, "Level 3", 0}, {4, "Level 4", 0},
    {5, "Level 5", 0}, {6, "Level 6", 0}, {7, "Level 7", 0}, {8, "Level 8", 0},
};

int PaneRTRLvl_Create(int single)
{
    constexpr int W = 538;
    const Rect place = single ? pane_box(131, 390, W, 70) : pane_box(131, 335, W, 120);
    PANE* pane = pane_create(TYPE_RTRLVL, "Router Level", place, ROUTER_LEVELS + 1);
    if (!pane)
        return 0;
    pane->each.choice.single = single != 0;
    pane_add_grid(pane, {ROUTER_LEVELS, 1, 15, 15, 64, 44, LOOK_CELL}, RTRLVLBtn_RTRLEVEL,
                  ROUTER_LEVELS);
    if (!single)
        pane_add_bottom_key(pane, BTN_ENTER, "Enter", LOOK_ENTER, W / 2 - 30);
    return pane->id;
}

void PaneRTRLvl_SetSelect(int bits)
{
    for (int level = 0; level < ROUTER_LEVELS; level++)
        RTRLVLBtn_RTRLEVEL[level].select = bits >> level & 1;
}

void PaneRTRLvl_LvlSetSelect(int level, int on)
{
    if (level >= 0 && level < ROUTER_LEVELS)
        RTRLVLBtn_RTRLEVEL[level].select = on != 0;
}

int PaneRTRLvl_IsSelected(int level)
{
    return level >= 0 && level < ROUTER_LEVELS ? RTRLVLBtn_RTRLEVEL[level].select : 0;
}

int PaneRTRLvl_Selected()
{
    int bits = 0;
    for (int level = 0; level < ROUTER_LEVELS; level++)
        bits |= RTRLVLBtn_RTRLEVEL[level].select << level;
    return bits;
}

void level_select(PANE* pane, int id)
{
    if (id == BTN_ENTER) {
        for (int level = 0; level < ROUTER_LEVELS; level++)
            RTRLVLBtn_RTRLEVEL[level].select = pane->button[level].onoff;
        pane->quitmem = 1;
        return;
    }
    if (id < 1 || id > ROUTER_LEVELS)
        return;
    if (pane->each.choice.single) {
        pane->quitmem = id;
        return;
    }
    BUTTON* b = &pane->button[id - 1];
    b->onoff = !b->onoff;
    b->redraw = 1;
}
