#include "a_ps.h"
#include "a_ba.h"
#include "colours.h"
#include "command.h"
#include "graphics.h"
#include "log.h"
#include "me_config.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "page_table/patterns.h"
#include "tally_value.h"
#include "tdl.h"
#include <span>
#include "safeguards.h"

namespace
{
constexpr int LEFT = 120;
constexpr int TOP = 80; // six rows of cells end where the layer keys begin
constexpr int CELL_W = 95;
constexpr int CELL_H = 55;
constexpr int LAYER_TOP = 410;
constexpr int LAYER_H = 45;
constexpr int LAYER_KEY_W = 89;
constexpr int LAYER_KEY_H = 40;
static_assert(TOP + PS_CELLS / PS_COLUMNS * CELL_H <= LAYER_TOP);

constexpr int SPLIT_SHARED = 2; // boards that are split finer share their pattern generators

struct Cell {
    SDL_Surface* picture = nullptr; // owned; null where the start has loaded it for all
    int redraw = 0;
};
} // namespace

static struct {
    char cmd[CMD_SIZE] = ""; // "" while no page has the object
    uint32_t hash = 0;
    int layers = 0; // of the set in use
    int layer = 0;  // shown
    int cells = 0;  // of that layer
    int number = 0; // chosen by the tally, 0 none
    Cell cell[PS_CELLS];
    bool redraw_all = false; // cells and layer keys, after erasing
} ps;

static std::span<Cell> cells()
{
    return {ps.cell, size_t(ps.cells)};
}

// --- Which patterns there are ---

static bool tree_has(const char* word)
{
    for (int i = 0; i < PAGE_DEPTH && GL_NowTree && GL_NowTree[i]; i++)
        if (Same(GL_NowTree[i], word))
            return true;
    return false;
}

static int layers_of_page()
{
    if (me_split_max() > SPLIT_SHARED && (tree_has("M/E-2") || tree_has("M/E-3")))
        return PTN_SET_SHARED;
    return tree_has("Sub Pattern") ? PTN_SET_SUB : PTN_SET_ALL;
}

// --- Opening and closing ---

static void free_pictures()
{
    for (Cell& c : cells())
        SDL_FreeSurface(c.picture);
    ps.cells = 0;
}

// An effect may step through the layers with every picture: what is loaded already is not read
// again. It is looked up when it is drawn, since it may be replaced.
static SDL_Surface* picture_of(const Cell& c, int number)
{
    return c.picture ? c.picture : WipePtn(number);
}

static void load_picture(Cell& c, int number)
{
    c.picture = nullptr;
    if (WipePtn(number))
        return;
    char path[PATH_SIZE];
    PrintText(path, "graphics/ptn/%d.bmp", number);
    c.picture = TDL_LoadBmp(path);
    if (!c.picture)
        Log_Output(LOG_ALWAYS, MOD_PAGE, "Can't load pattern: %s\n", path);
}

static void load_layer(int layer)
{
    free_pictures();
    const PTN_LAYER& l = LayerName[layer];
    ps.layer = layer;
    ps.cells = l.last - l.first + 1;
    ps.redraw_all = true;
    for (int i = 0; i < ps.cells; i++)
        load_picture(ps.cell[i], l.first + i);
}

int PS_Create(const PS_TBL* table, uint32_t)
{
    if (ps.cmd[0])
        Net_SendCommandFormat("remove %s", ps.cmd);
    free_pictures();
    ps = {};
    if (!table)
        return 1;
    DecodeCommand(ps.cmd, table->cmd, CMD_SIZE);
    ps.hash = Hash(ps.cmd);
    ps.layers = layers_of_page();
    load_layer(0);
    if (table->init_nb)
        NB_Create(table->init_nb, table->init_nb_caption);
    Net_SendCommandFormat("add %s", ps.cmd);
    return 0;
}

int PS_Follows(const char* path)
{
    return ps.cmd[0] && Same(ps.cmd, path);
}

// --- Press ---

// The place in a grid of columns from the left; -1 beside it.
static int place(int x, int y, int top, int height, int rows)
{
    if (x < LEFT || y < top || x >= LEFT + PS_COLUMNS * CELL_W || y >= top + height * rows)
        return -1;
    return (y - top) / height * PS_COLUMNS + (x - LEFT) / CELL_W;
}

static void press_cell(int i)
{
    const PTN_LAYER& layer = LayerName[ps.layer];
    const int number = layer.first + i;
    Net_SendCommandFormat("put %s#%d", ps.cmd, number);
    char title[16];
    PrintText(title, "%d", number);
    if (layer.nb)
        NB_Create(layer.nb, title);
    else
        NB_CreateBlank();
}

static bool is_on_layer_key(int x, int y)
{
    return (x - LEFT) % CELL_W < LAYER_KEY_W && (y - LAYER_TOP) % LAYER_H < LAYER_KEY_H;
}

static int press(int x, int y)
{
    if (!ps.cmd[0] || BA_IsDefaultButton())
        return 0;
    const int cell = place(x, y, TOP, CELL_H, PS_CELLS / PS_COLUMNS);
    const int layer = place(x, y, LAYER_TOP, LAYER_H, PS_LAYERS / PS_COLUMNS);
    if (cell >= 0 && cell < ps.cells)
        press_cell(cell);
    else if (layer >= 0 && layer < ps.layers && layer != ps.layer && is_on_layer_key(x, y))
        load_layer(layer);
    return 0;
}

// --- Tally ---

static void mark(int number)
{
    const int first = LayerName[ps.layer].first;
    if (number >= first && number - first < ps.cells)
        ps.cell[number - first].redraw = 1;
}

// The layer that holds a number, -1 when the set has none.
static int layer_of(int number)
{
    for (int i = 0; i < ps.layers; i++)
        if (number >= LayerName[i].first && number <= LayerName[i].last)
            return i;
    return -1;
}

static int tally(const char* path, const char* value, uint32_t hash)
{
    if (ps.hash != hash || !ps.cmd[0] || !Same(ps.cmd, path))
        return 0;
    const int number = Decimal(value);
    if (number == ps.number)
        return 0;
    mark(ps.number);
    ps.number = number;
    mark(number);
    const int layer = layer_of(number);
    if (layer >= 0 && layer != ps.layer)
        load_layer(layer);
    return 0;
}

// --- Picture ---

static void draw_cell(int i)
{
    constexpr unsigned CHOSEN_GROUND = 0x0B3A46;
    constexpr unsigned CHOSEN_FRAME = TEAL;
    ps.cell[i].redraw = 0;
    const int x = LEFT + i % PS_COLUMNS * CELL_W;
    const int y = TOP + i / PS_COLUMNS * CELL_H;
    const int right = x + CELL_W - 2;
    const int bottom = y + CELL_H - 2;
    const int number = LayerName[ps.layer].first + i;
    const bool is_chosen = number == ps.number;
    TDL_FillRectS(x, y, right, bottom, is_chosen ? CHOSEN_GROUND : BLACK);
    TDL_PutS(x + 4, y + 3, picture_of(ps.cell[i], number));
    char text[16];
    PrintText(text, "%d", number);
    TDL_SymbolS(x + 67, y + 21, text, 1, is_chosen ? WHITE : 0xB4B4B4);
    if (is_chosen) {
        TDL_RectS(x, y, right, bottom, CHOSEN_FRAME);
        TDL_RectS(x + 1, y + 1, right - 1, bottom - 1, CHOSEN_FRAME);
    }
}

static void draw_layer_key(int i)
{
    const int x = i % PS_COLUMNS * CELL_W;
    const int y = i / PS_COLUMNS * LAYER_H;
    TDL_PutS(x + LEFT, y + LAYER_TOP, i == ps.layer ? G_PSEL_on : G_PSEL_off);
    TDL_SymbolS(x + LEFT + 10, y + LAYER_TOP + 10, LayerName[i].caption, 3, WHITE);
}

static void draw_all()
{
    constexpr int RIGHT = LEFT + PS_COLUMNS * CELL_W - 1;
    constexpr int BOTTOM = LAYER_TOP + PS_LAYERS / PS_COLUMNS * LAYER_H - 1;
    ps.redraw_all = false;
    TDL_FillRectS(LEFT, TOP, RIGHT, BOTTOM, BLACK);
    for (int i = 0; i < ps.cells; i++)
        draw_cell(i);
    for (int i = 0; i < ps.layers; i++)
        draw_layer_key(i);
    TDL_UpdateRect(LEFT, TOP, RIGHT, BOTTOM);
}

static int redraw()
{
    if (ps.redraw_all)
        draw_all();
    for (int i = 0; i < ps.cells; i++) {
        if (!ps.cell[i].redraw)
            continue;
        draw_cell(i);
        const int x = LEFT + i % PS_COLUMNS * CELL_W;
        const int y = TOP + i / PS_COLUMNS * CELL_H;
        TDL_UpdateRect(x, y, x + CELL_W - 1, y + CELL_H - 1);
    }
    return 0;
}

int PS_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return redraw();
    case MSG_PRESS: return press(int(ax), int(bx));
    case MSG_TALLY: return tally(Text(ax), Text(bx), uint32_t(cx));
    default: return 0;
    }
}
