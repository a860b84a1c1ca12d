// What a list looks like. Only the rows in the window are looked at, however many there are.
#include "a_ls.h"
#include "a_ls_private.h"
#include "colours.h"
#include "global.h"
#include "graphics.h"
#include "page.h"
#include "scrollbar.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include "safeguards.h"

namespace
{
constexpr unsigned HEADER_SEPARATOR = 0x00141E;
constexpr unsigned TITLE_DISABLED = 0x787878;
constexpr unsigned CURRENT = CYAN; // the current column's title, the current row's first cell
constexpr unsigned CURRENT_INHIBITED = 0x8C8C8C;

constexpr int FONT_CELL = 3;
constexpr int FONT_KEY = 2;
constexpr int TEXT_TOP = 5; // below the row's top
constexpr int TEXT_LEFT = 4;
constexpr int TITLE_LEFT_NARROW = 2; // what a narrow column's title takes of the margin
constexpr int NARROW_PX = 30;
constexpr int KEY_CAPTION_X = 12;
constexpr int KEY_CAPTION_Y = 13;
constexpr int GROUP_THE_REST = 999;

// The file page of the frame memory, its variants and detail page: marks of folders before the
// names of the left and the right list.
constexpr uint32_t PAGE_FOLDERS = 0x71510000;
constexpr uint32_t PAGE_VARIANTS = 0x0000FFFF;
constexpr int FOLDER_LEFT_X = 150;
constexpr int FOLDER_RIGHT_X = 500;
constexpr int ICON_TOP = 3; // marks and icons are 16 high

struct Look {
    unsigned ink;
    unsigned ground;
};

// Indexed by colour class; those above the last are as the last.
constexpr struct {
    Look normal;
    Look selected;
} looks[] = {
    {{WHITE, 0x005A6E}, {BLACK, 0x00C8F0}},       // usual
    {{0x787878, 0x005A6E}, {0x505050, 0x8C8C8C}}, // empty
    {{RED, 0x005A6E}, {BLACK, 0xF00000}},         // alarm
    {{YELLOW, 0x005A6E}, {BLACK, 0xA0E632}},      // notice
    {{WHITE, 0x14323C}, {BLACK, 0x00C8F0}},       // usual, on the darker ground
    {{0x787878, 0x14323C}, {BLACK, 0x8C8C8C}},    // empty, on the darker ground
    {{WHITE, 0x005A6E}, {BLACK, 0x00C8F0}},
};
constexpr int LAST_LOOK = int(std::size(looks)) - 1;

// Cell texts that are drawn and not written. Each has its bitmap for both grounds.
constexpr struct {
    const char* text;
    SDL_Surface** normal;
    SDL_Surface** selected;
} icons[] = {
    {"_Folder", &G_Folder, &G_Folder_Selected},
    {"_CL_Lock", &G_lock_on_s, &G_lock_on_s},
};
} // namespace

static bool NowLineDisable = false;

void ls_show_selected(bool on)
{
    NowLineDisable = !on;
}

void LS_SetNowLineDisable(int on)
{
    NowLineDisable = on != 0;
    for (LS_MEM* l = List; l->id >= 1; l++)
        l->redraw = 1;
}

// --- Columns ---

namespace
{
// A column as the rows need it, worked out once a repaint.
struct Column {
    int x;
    int width;
    int text_x;
    int text_width; // the last column's text must not run out of the list
    bool ends_group;
};
} // namespace

static void find_columns(const LS_MEM& l, Column (&columns)[LS_COLUMNS])
{
    int x = l.x;
    int group = 0;
    int left = l.group[0]; // columns until the end of the group; never met by 0 and by the rest
    for (int col = 0; col < l.hn; col++) {
        const int text_x = x + TEXT_LEFT;
        columns[col] = {.x = x,
                        .width = l.width[col],
                        .text_x = text_x,
                        .text_width = std::min(l.width[col], l.area_x2 + 1 - text_x),
                        .ends_group = --left == 0};
        x += l.width[col];
        if (left == 0 && ++group < LS_COLUMNS)
            left = std::min(l.group[group], GROUP_THE_REST);
    }
}

static void draw_ground(const Column& c, int y, unsigned ground)
{
    TDL_FillRectS(c.x, y, c.x + c.width - 1, y + LS_ROW_PX - 1, ground);
}

static void draw_separator(const Column& c, int y)
{
    if (c.ends_group)
        TDL_LineVS(c.x + c.width - 1, y, LS_ROW_PX, HEADER_SEPARATOR);
}

// --- Header ---

static unsigned title_colour(const LS_MEM& l, int col)
{
    if (l.row_disable[col])
        return TITLE_DISABLED;
    return l.split && col == l.splitsel ? CURRENT : LIST_TITLE;
}

static void draw_header(const LS_MEM& l, const Column (&columns)[LS_COLUMNS])
{
    for (int col = 0; col < l.hn; col++) {
        const Column& c = columns[col];
        draw_ground(c, l.y, HEADER_GROUND);
        const int title_x = c.text_x - (c.width < NARROW_PX ? TITLE_LEFT_NARROW : 0);
        (void)TDL_SymbolWS(title_x, l.y + TEXT_TOP, c.text_width, l.head[col], FONT_CELL,
                           title_colour(l, col)); // no title is fine
        draw_separator(c, l.y);
    }
}

// --- Rows ---

static bool is_dsk_page()
{
    for (int i = 0; GL_NowTree && i < PAGE_DEPTH && GL_NowTree[i]; i++)
        if (BeginsWith(GL_NowTree[i], "DSK Fader"))
            return true;
    return false;
}

static bool shows_selected(const LS_MEM& l, int row, int col)
{
    return l.selected[row][col] && !NowLineDisable;
}

static Look look_of(const LS_MEM& l, int row, int col)
{
    const auto& look = looks[std::min<int>(l.status[row][col], LAST_LOOK)];
    if (shows_selected(l, row, col))
        return l.mono ? looks[0].selected : look.selected;
    const bool is_current = l.split && row == l.nowline && col == 0;
    if (!is_current)
        return look.normal;
    const bool is_inhibited = GL_DskInhibit == 1 && is_dsk_page();
    return {is_inhibited ? CURRENT_INHIBITED : CURRENT, look.normal.ground};
}

// False when the text names no icon.
static bool draw_icon(const Column& c, int y, const char* text, bool is_selected)
{
    for (const auto& icon : icons) {
        if (strcmp(text, icon.text) != 0)
            continue;
        TDL_PutS(c.text_x, y + ICON_TOP, is_selected ? *icon.selected : *icon.normal);
        return true;
    }
    return false;
}

static void draw_cell(const LS_MEM& l, const Column& c, int y, int row, int col)
{
    const Look look = look_of(l, row, col);
    draw_ground(c, y, look.ground);
    const char* text = l.data[row][col];
    if (!text || (text[0] == '_' && draw_icon(c, y, text, shows_selected(l, row, col))))
        return;
    TDL_SymbolWS(c.text_x, y + TEXT_TOP, c.text_width, text, FONT_CELL, look.ink);
}

static void draw_folder(int x, int y, int kind)
{
    if (kind)
        TDL_PutS(x, y + ICON_TOP, kind == 2 ? G_Folder_Selected : G_Folder);
}

static void draw_row(const LS_MEM& l, const Column (&columns)[LS_COLUMNS], int row, int y)
{
    const bool in_use = row < l.ndata;
    for (int col = 0; col < l.hn; col++) {
        if (in_use)
            draw_cell(l, columns[col], y, row, col);
        else
            draw_ground(columns[col], y, looks[0].normal.ground);
        draw_separator(columns[col], y);
    }
    TDL_LineHS(l.x, y + LS_ROW_PX - 1, l.area_x2 - l.x + 1, HEADER_SEPARATOR);
    if (in_use && (GL_NowPage & ~PAGE_VARIANTS) == PAGE_FOLDERS) {
        draw_folder(FOLDER_LEFT_X, y, l.folder[row]);
        draw_folder(FOLDER_RIGHT_X, y, l.folder2[row]);
    }
}

static void draw_list(LS_MEM& l)
{
    Column columns[LS_COLUMNS];
    find_columns(l, columns);
    draw_header(l, columns);
    for (int i = 0; i < l.vn; i++)
        draw_row(l, columns, l.topline + i, l.y + LS_ROW_PX * (i + 1));
    (void)SB_SetPositionRedraw(l.id - 1, l.topline, l.vn, l.ndata); // each list has its bar
    TDL_UpdateRect(l.area_x1, l.area_y1, l.area_x2, l.area_y2);
    l.redraw = 0;
}

// --- Keys ---

static void draw_key(const Rect& box, const char* caption, bool on)
{
    TDL_PutS(box.x1, box.y1, on ? G_LST_on : G_LST_off);
    TDL_SymbolS(box.x1 + KEY_CAPTION_X, box.y1 + KEY_CAPTION_Y, caption, FONT_KEY,
                on ? BLACK : WHITE);
    TDL_UpdateRect(box.x1, box.y1, box.x2, box.y2);
}

static void draw_keys(LS_MEM& l)
{
    if (ls_has_keys(l) && l.ms_redraw)
        draw_key({l.ms_x1, l.ms_y1, l.ms_x2, l.ms_y2}, "Plural", l.ms_pushed);
    if (ls_has_keys(l) && l.al_redraw)
        draw_key({l.al_x1, l.al_y1, l.al_x2, l.al_y2}, "Block", l.al_pushed);
    l.ms_redraw = l.al_redraw = 0;
}

int ls_redraw()
{
    for (LS_MEM* l = List; l->id >= 1; l++) {
        if (l->redraw)
            draw_list(*l);
        draw_keys(*l);
    }
    return 0;
}
