// The picture of the file folder. Only cells in view hold a thumbnail.
#include "a_ff_private.h"
#include "box.h"
#include "colours.h"
#include "graphics.h"
#include "scrollbar.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

namespace
{
constexpr int FONT = 3;
constexpr int THUMB_W = 112;
constexpr int THUMB_H = 63;
constexpr int THUMB_Y = 5;
constexpr int NAME_Y = THUMB_Y + THUMB_H + 4;
constexpr int DETAIL_Y = NAME_Y + 15;
constexpr int FOLDER_BUTTON_W = 104; // where there is room for one of each depth
constexpr int FOLDER_BUTTON_H = 30;
constexpr int MARK_W = 16;
constexpr int MARK_H = 14;
constexpr int BOX = 18; // of a check
constexpr unsigned KEY_FACE = 0x505050;
constexpr unsigned THUMB_GROUND = 0x101010;
} // namespace

// --- Layout ---

Rect ff_grid(const PARTS_FILE_AREA& p)
{
    return {p.pos.x, p.pos.y, p.pos.x + p.h_num * p.h_gap - 1, p.pos.y + p.v_num * FF_CELL_H - 1};
}

int ff_rows(const FM2_FILE_AREA& a)
{
    return (a.file_list.rec_num + a.parts.h_num - 1) / a.parts.h_num;
}

int ff_depth(const FM2_FILE_AREA& a)
{
    const char* p = a.current.path;
    int depth = 0;
    while (p[0] == '/' && (p = strchr(p + 1, '/')) && p[1] != '\0')
        depth++;
    return depth;
}

Rect ff_folder_button(const PARTS_FILE_AREA& parts, int depth)
{
    constexpr int GAP = 4;
    const int room = (parts.h_num * parts.h_gap + GAP + SB_W + GAP) / (ELEMENT_DEPTH + 1) - GAP;
    const int width = std::min(FOLDER_BUTTON_W, room);
    const int x = parts.pos.x + depth * (width + GAP);
    const int y = parts.pos.y - FF_PATH_H;
    return {x, y, x + width - 1, y + FOLDER_BUTTON_H - 1};
}

bool ff_key_rect(const PARTS_FILE_AREA& parts, int key, Rect* r)
{
    const bool is_find = key == FF_KEY_FIND;
    if (!(is_find ? parts.find_button.enable : parts.select_button.enable))
        return false;
    const POSITION pos = is_find                ? parts.find_button.pos
                         : key == FF_KEY_SELECT ? parts.select_button.pos_select
                                                : parts.select_button.pos_all;
    *r = {pos.x, pos.y, pos.x + (is_find ? FF_FIND_W : FF_KEY_W) - 1,
          pos.y + (is_find ? FF_FIND_H : FF_KEY_H) - 1};
    return true;
}

// --- Parts ---

static void draw_text(int x, int y, int width, const char* text, unsigned colour)
{
    char cut[ELEMENT_PATH_SIZE];
    CopyText(cut, text);
    if (int(TDL_GetSymbolWidth(cut, FONT)) > width)
        (void)TDL_CutText(cut, sizeof cut, width, "..", FONT);
    TDL_SymbolS(x, y, cut, FONT, colour);
}

static void draw_path_key(const Rect& r, const char* caption, bool is_on)
{
    TDL_FillRectS(r.x1, r.y1, r.x2, r.y2, is_on ? ORANGE : KEY_FACE);
    Box_Edge(r, RAISED_LIGHT, RAISED_DARK);
    char cut[ELEMENT_NAME_SIZE];
    CopyText(cut, caption);
    if (int(TDL_GetSymbolWidth(cut, FONT)) > r.x2 - r.x1 - 8)
        (void)TDL_CutText(cut, sizeof cut, r.x2 - r.x1 - 8, "..", FONT);
    TDL_SymbolCS(r.x1, r.y1, r.x2, r.y2, cut, FONT, is_on ? BLACK : WHITE);
}

static void flush(const Rect& r)
{
    TDL_UpdateRect(r.x1, r.y1, r.x2, r.y2);
}

static void draw_path(const FM2_FILE_AREA& a)
{
    const Rect g = ff_grid(a.parts);
    const int y = a.parts.pos.y - FF_PATH_H;
    const Rect line = {g.x1, y, std::max(g.x2, ff_folder_button(a.parts, ELEMENT_DEPTH).x2),
                       g.y1 - 1};
    TDL_FillRectS(line.x1, line.y1, line.x2, line.y2, BLACK);
    const int depth = ff_depth(a);
    const char* p = a.current.path + 1;
    for (int i = 0; i <= depth; i++) {
        char name[ELEMENT_NAME_SIZE];
        const size_t n = strcspn(p, "/");
        strncpy_secu(name, p, sizeof name, n);
        draw_path_key(ff_folder_button(a.parts, i), name, i == depth);
        p += n + (p[n] == '/');
    }
    flush(line);
}

static void draw_keys(const FM2_FILE_AREA& a)
{
    const bool is_pushed = a.find_pushed > 0;
    const struct {
        const char* caption;
        SDL_Surface* face;
        bool is_on;
        int shift; // of the caption
    } keys[FF_KEYS] = {
        {"Find", is_pushed ? G_JMP_Find_p1 : G_JMP_Find_p0, false, is_pushed},
        {"Select", a.select_mode != SELECT_MODE_OFF ? G_SEL_on : G_SEL_off,
         a.select_mode != SELECT_MODE_OFF, 0},
        {"ALL", a.select_mode == SELECT_MODE_ALL ? G_SEL_all_on : G_SEL_all_off,
         a.select_mode == SELECT_MODE_ALL, 0},
    };
    Rect r;
    for (int key = 0; key < FF_KEYS; key++)
        if (ff_key_rect(a.parts, key, &r)) {
            TDL_PutS(r.x1, r.y1, keys[key].face);
            const int shift = keys[key].shift;
            TDL_SymbolS(r.x1 + 8 + shift, r.y1 + 14 + shift, keys[key].caption, FONT,
                        keys[key].is_on ? BLACK : WHITE);
            flush(r);
        }
}

// --- A cell ---

static void look_for_thumbnail(FM2_FILE& cell)
{
    if (cell.is_looked_for || cell.file_type != OBJECT_TYPE_FILE)
        return;
    cell.is_looked_for = true;
    cell.surface = FMCtrl3_GetThumbnail(&cell.element, FMCtrl3_MidFrame(cell.element));
}

static SDL_Surface* stand_in(const FM2_FILE& cell)
{
    if (cell.file_type == OBJECT_TYPE_FOLDER)
        return G_FMFOLDER_off;
    return cell.element.duration > 1 ? G_FMCLIP_off : G_FMSTILL_off;
}

static void put_centred(int x, int y, SDL_Surface* s)
{
    if (s)
        TDL_PutS(x + (THUMB_W - s->w) / 2, y + (THUMB_H - s->h) / 2, s);
}

static void draw_place_mark(int x, int y, const char* letter, unsigned colour)
{
    TDL_FillRectS(x, y, x + MARK_W - 1, y + MARK_H - 1, BLACK);
    TDL_RectS(x, y, x + MARK_W - 1, y + MARK_H - 1, colour);
    TDL_SymbolCS(x, y, x + MARK_W - 1, y + MARK_H - 1, letter, FONT, colour);
}

static void draw_check(int x, int y, bool is_on)
{
    TDL_FillRectS(x, y, x + BOX - 1, y + BOX - 1, is_on ? CYAN : BLACK);
    TDL_RectS(x, y, x + BOX - 1, y + BOX - 1, WHITE);
    for (int i = 0; is_on && i < 3; i++) {
        TDL_LineS(x + 3, y + 8 + i, x + 7, y + 12 + i, BLACK);
        TDL_LineS(x + 7, y + 12 + i, x + 14, y + 3 + i, BLACK);
    }
}

static void draw_marks(const FM2_FILE_AREA& a, const FM2_FILE& cell, int x, int y)
{
    const int bottom = y + THUMB_H - MARK_H - 2;
    if (cell.file_type == OBJECT_TYPE_FILE) {
        if (cell.element.exist & ELEMENT_PLACE_STORAGE)
            draw_place_mark(x + 2, bottom, "S", LABEL);
        if (a.parts.loaded_mark && (cell.element.exist & ELEMENT_PLACE_MEMORY))
            draw_place_mark(x + 2 + MARK_W + 3, bottom, "M", GREEN);
    }
    if (a.select_mode != SELECT_MODE_OFF || cell.select)
        draw_check(x + THUMB_W - BOX - 2, y + 2, cell.select);
}

// From the left edge of the thumbnail and the top of the cell.
static void draw_texts(const FM2_FILE& cell, int x, int y, bool is_found)
{
    draw_text(x, y + NAME_Y, THUMB_W, cell.element.name, is_found ? ORANGE : WHITE);
    if (cell.file_type != OBJECT_TYPE_FILE)
        return;
    char detail[48];
    PrintText(detail, "%d %s%s", cell.element.duration,
              cell.element.duration == 1 ? "frame" : "frames",
              cell.element.is_pair ? "  Pair" : "");
    draw_text(x, y + DETAIL_Y, THUMB_W, detail, LABEL);
}

static Rect cell_rect(const FM2_FILE_AREA& a, int n)
{
    const int x = a.parts.pos.x + n % a.parts.h_num * a.parts.h_gap;
    const int y = a.parts.pos.y + (n / a.parts.h_num - a.top) * FF_CELL_H;
    return {x, y, x + a.parts.h_gap - 1, y + FF_CELL_H - 1};
}

static void draw_cell(const FM2_FILE_AREA& a, int n)
{
    const Rect r = cell_rect(a, n);
    FM2_FILE& cell = *a.file_list.cell[n];
    const bool is_selected = n == a.file_list.selected_idx && a.parts.selected_mark;
    cell.redraw = false;
    const int x = r.x1 + (a.parts.h_gap - THUMB_W) / 2;
    TDL_FillRectS(r.x1, r.y1, r.x2, r.y2, BLACK);
    if (cell.file_type == OBJECT_TYPE_FILE)
        TDL_FillRectS(x, r.y1 + THUMB_Y, x + THUMB_W - 1, r.y1 + THUMB_Y + THUMB_H - 1,
                      THUMB_GROUND);
    look_for_thumbnail(cell);
    put_centred(x, r.y1 + THUMB_Y, cell.surface ? cell.surface : stand_in(cell));
    draw_marks(a, cell, x, r.y1 + THUMB_Y);
    draw_texts(cell, x, r.y1, n == a.file_list.found_idx);
    for (int i = 0; is_selected && i < 2; i++)
        TDL_RectS(r.x1 + 1 + i, r.y1 + 1 + i, r.x2 - 1 - i, r.y2 - 1 - i, CYAN);
}

// --- An area ---

static int first_shown(const FM2_FILE_AREA& a)
{
    return a.top * a.parts.h_num;
}

static int end_shown(const FM2_FILE_AREA& a)
{
    return std::min(a.file_list.rec_num, (a.top + a.parts.v_num) * a.parts.h_num);
}

// Walks all cells only when the list has changed its order: who is in view is known by number.
static void drop_hidden_surfaces(FM2_FILE_AREA& a)
{
    for (int n = 0; n < a.file_list.rec_num; n++)
        if (n < first_shown(a) || n >= end_shown(a))
            ff_drop_surface(*a.file_list.cell[n]);
}

static void draw_name_status(const FM2_FILE_AREA& a)
{
    const FF_NAME_STATUS& s = a.parts.name_status;
    if (!s.enable)
        return;
    const Rect g = ff_grid(a.parts);
    const Rect line = {s.pos.x, s.pos.y, g.x2 + 50, s.pos.y + 21};
    TDL_FillRectS(line.x1, line.y1, line.x2, line.y2, HEADER_GROUND);
    if (a.file_list.selected_idx >= 0) {
        const ELEMENT& e = a.file_list.cell[a.file_list.selected_idx]->element;
        const int detail_x = std::max(line.x1 + 150, line.x2 - 200);
        draw_text(line.x1 + 6, line.y1 + 4, (s.type ? detail_x : line.x2) - line.x1 - 14, e.name,
                  WHITE);
        if (s.type && e.type == ELEMENT_TYPE_FILE) {
            char detail[64];
            PrintText(detail, "%d %s   %s", e.duration, e.duration == 1 ? "frame" : "frames",
                      e.create_time);
            draw_text(detail_x, line.y1 + 4, line.x2 - detail_x - 4, detail, LABEL);
        }
    }
    flush(line);
}

static void draw_all(int index)
{
    FM2_FILE_AREA& a = ff.area[index];
    const Rect g = ff_grid(a.parts);
    a.file_list.redrawall = false;
    drop_hidden_surfaces(a);
    TDL_FillRectS(g.x1, g.y1, g.x2, g.y2, BLACK);
    for (int n = first_shown(a); n < end_shown(a); n++)
        draw_cell(a, n);
    flush(g);
    draw_path(a);
    draw_keys(a);
    draw_name_status(a);
}

void ff_redraw(int index, int elapsed_ms)
{
    FM2_FILE_AREA& a = ff.area[index];
    if (a.find_pushed > 0) {
        a.find_pushed = std::max(0, a.find_pushed - elapsed_ms);
        draw_keys(a);
    }
    if (a.file_list.redrawall) {
        draw_all(index);
        return;
    }
    bool is_touched = false;
    for (int n = first_shown(a); n < end_shown(a); n++) {
        if (!a.file_list.cell[n]->redraw)
            continue;
        draw_cell(a, n);
        flush(cell_rect(a, n));
        is_touched = true;
    }
    if (is_touched)
        draw_name_status(a);
}
