// The shared parts of all status cells: frame, centre box, picture, lines, value list, veil.
#include "a_st_draw.h"
#include "a_dw.h"
#include "colours.h"
#include "global.h"
#include "graphics.h"
#include "page.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include "safeguards.h"

namespace
{
constexpr unsigned FRAME_LIT = ORANGE;
constexpr unsigned EQUALS = 0x8A9498;

constexpr int FONT = 3;
constexpr int FONT_SMALL = 1;
constexpr int LINE_PITCH = 15; // of lists of lines
constexpr int LINE_TOP = 22;
} // namespace

int bgc_red = 0x0B;
int bgc_green = 0x3A;
int bgc_blue = 0x46;
int gry_rat = 170;
int dbpost_x = 0;
int dbpost_y = 0;
int s_font = 0;
int bgcen = 0;
int inven = 0;
int gryen = 0;

unsigned st_ground(int lit)
{
    if (!lit)
        return BLACK;
    return unsigned(bgc_red & 0xFF) << 16 | unsigned(bgc_green & 0xFF) << 8 |
           unsigned(bgc_blue & 0xFF);
}

int st_font()
{
    return s_font ? FONT_SMALL : FONT;
}

static unsigned char veil_opacity()
{
    return static_cast<unsigned char>(gry_rat);
}

void st_put_centred(int x1, int x2, int y, const char* text, int font, unsigned col)
{
    const int width = int(TDL_GetSymbolWidth(text, font));
    if (width > x2 - x1)
        TDL_SymbolWS(x1, y, x2 - x1, text, font, col);
    else
        TDL_SymbolS(x1 + (x2 - x1 - width) / 2, y, text, font, col);
}

// --- Frame and veil ---

int st_drw_background_areaname(const ST_MEM* cell, int lit, const char* name)
{
    TDL_RectS(cell->x1, cell->y1, cell->x2, cell->y2, BLACK);
    TDL_RectS(cell->x1 + 1, cell->y1 + 1, cell->x2 - 1, cell->y2 - 1, BLACK);
    TDL_RectS(cell->x1 + 2, cell->y1 + 2, cell->x2 - 2, cell->y2 - 2, lit ? FRAME_LIT : CELL_FRAME);
    TDL_FillRectS(cell->x1 + 3, cell->y1 + 3, cell->x2 - 3, cell->y2 - 3, st_ground(lit));
    TDL_SymbolWS(cell->x1 + 7, cell->y1 + 7, cell->x2 - cell->x1 - 10, name, FONT, WHITE);
    return 0;
}

int st_drw_recoats_grayout(const ST_MEM* cell, int lit)
{
    return TDL_FillRectAS(cell->x1 + 3, cell->y1 + dbpost_y + 19, cell->x2 - 3, cell->y2 - 3,
                          st_ground(lit), veil_opacity());
}

void st_veil_all(const ST_MEM* cell)
{
    (void)TDL_FillRectAS(cell->x1 + 3, cell->y1 + 3, cell->x2 - 3, cell->y2 - 3, BLACK,
                         veil_opacity());
}

// --- Centre ---

// What is too wide for its place takes the small font before it is cut.
static int font_for(const char* text, int room)
{
    return int(TDL_GetSymbolWidth(text, st_font())) > room ? FONT_SMALL : st_font();
}

// A long text stands on two lines in the middle of the picture.
static void put_in_box(const ST_MEM* cell, const char* text, unsigned col)
{
    constexpr size_t LONG = 13;
    constexpr size_t BLANK_WITHIN = 8;
    constexpr size_t ELSE_AFTER = 4;
    if (strlen(text) < LONG) {
        constexpr int ROOM = 73 - 26 - 3; // a pixel of air inside the frame
        TDL_SymbolCS(cell->x1 + 26, cell->y1 + 26, cell->x1 + 73, cell->y1 + 61, text,
                     font_for(text, ROOM), col);
        return;
    }
    const size_t blank = strcspn(text, " ");
    const bool at_blank = blank < BLANK_WITHIN;
    const size_t length = at_blank ? blank : ELSE_AFTER;
    char first[BLANK_WITHIN + 1];
    strncpy_close(first, text, length);
    // Black text would be lost beside the white box.
    const int margin = col == BLACK ? 27 : 4;
    const int left = cell->x1 + margin;
    const int right = cell->x1 + 99 - margin;
    st_put_centred(left, right, cell->y1 + 33, first, st_font(), col);
    st_put_centred(left, right, cell->y1 + 45, text + length + at_blank, st_font(), col);
}

int st_drw_center_image_square(const ST_MEM* cell, const char* text, int invert)
{
    if (invert)
        TDL_FillRectS(cell->x1 + 26, cell->y1 + 26, cell->x1 + 73, cell->y1 + 61, WHITE);
    else
        TDL_RectS(cell->x1 + 26, cell->y1 + 26, cell->x1 + 73, cell->y1 + 61, WHITE);
    put_in_box(cell, text, invert ? BLACK : WHITE);
    return 0;
}

int st_drw_bmpimage_strings(const ST_MEM* cell, SDL_Surface* bitmap, const char* text)
{
    TDL_PutS(cell->x1 + dbpost_x + 20, cell->y1 + dbpost_y + 20, bitmap);
    put_in_box(cell, text, WHITE);
    return 0;
}

SDL_Surface* st_pattern(const char* number)
{
    const long n = strtol(number, nullptr, 10);
    return n >= 1 && n < WIPE_PTN_MAX ? WipePtn(int(n)) : nullptr;
}

SDL_Surface* st_dme_pattern(const char* number)
{
    const int base = DW_BaseNumber(Decimal(number));
    return base >= 1 ? WipePtn(base) : nullptr;
}

// Truncated towards zero. A value out of range runs outside the frame, which is how it shows.
int st_drw_center_image_wipe_position(const ST_MEM* cell, int h, int v)
{
    const int py = int((v + 200.0) / 400 * -36 + 62);
    const int px = int((h + 200.0) / 400 * 48 + 26);
    const int x = cell->x1;
    const int y = cell->y1;
    TDL_RectS(x + 26, y + 26, x + 74, y + 62, WHITE);
    TDL_RectS(x + 38, y + 35, x + 62, y + 53, WHITE);
    TDL_LineHS(x + 26, y + py, 49, WHITE);
    TDL_LineVS(x + px, y + 26, 37, WHITE);
    TDL_RectS(x + px - 1, y + py - 1, x + px + 1, y + py + 1, WHITE);
    return 0;
}

// --- Lines ---

int st_drw_under_strings(const ST_MEM* cell, const char* text, int invert)
{
    constexpr int SMALL_HEIGHT = 10;
    if (invert)
        TDL_FillRectS(cell->x1 + 4, cell->y1 + 71, cell->x2 - 4, cell->y1 + 83, WHITE);
    const int height = s_font ? SMALL_HEIGHT : int(TDL_GetSymbolSize("0", FONT) >> 16);
    const int y = cell->y1 + 72 + (84 - 72 - height) / 2;
    st_put_centred(cell->x1 + 4, cell->x2 - 4, y, text, st_font(), invert ? BLACK : WHITE);
    return 0;
}

static int line_y(const ST_MEM* cell, int line)
{
    return cell->y1 + LINE_TOP + LINE_PITCH * line;
}

// What lies on a line is a bar as high as the pitch.
static void put_bar(const ST_MEM* cell, int line)
{
    const int y = line_y(cell, line) - 2;
    TDL_FillRectS(cell->x1 + 7, y, cell->x2 - 7, y + LINE_PITCH - 1, WHITE);
}

static void veil_line(const ST_MEM* cell, int line, int lit)
{
    const int y = line_y(cell, line) - 1; // the letters, with what hangs below the last line
    TDL_FillRectAS(cell->x1 + 7, y, cell->x2 - 7, y + LINE_PITCH - 1, st_ground(lit),
                   veil_opacity());
}

static int lines_of(const ST_VAL* val)
{
    return std::clamp(val->st_num, 0, ST_LINES);
}

static const char* text_or_empty(const char* text)
{
    return text ? text : "";
}

int st_drw_status_strings(const ST_MEM* cell, ST_VAL* val)
{
    const int room = cell->x2 - cell->x1 - 25;
    for (int i = 0; i < lines_of(val); i++) {
        const char* text = text_or_empty(val->st_str[i]);
        if (val->invert[i])
            put_bar(cell, i);
        TDL_SymbolWS(cell->x1 + 10, line_y(cell, i), room, text, font_for(text, room),
                     val->invert[i] ? BLACK : WHITE);
        if (val->grayout[i])
            veil_line(cell, i, val->selected);
    }
    return 0;
}

static int widest_label(const ST_VAL* val)
{
    int widest = 0;
    for (int i = 0; i < lines_of(val); i++)
        widest =
            std::max(widest, int(TDL_GetSymbolWidth(text_or_empty(val->st_str[i]), st_font())));
    return widest;
}

// Values are right aligned, so that their decimal points stand in a column.
static void put_value(const ST_VAL* val, int y, const char* text, unsigned col)
{
    const int room = val->v_right - val->v_left;
    const int font = font_for(text, room);
    const int width = int(TDL_GetSymbolWidth(text, font));
    if (width > room)
        TDL_SymbolWS(val->v_left, y, room, text, font, col);
    else
        TDL_SymbolS(val->v_right - width, y, text, font, col);
}

// The "=" column lies on the tail of the label column: the values need the room.
int st_drw_status_values(const ST_MEM* cell, ST_VAL* val)
{
    constexpr int LABEL_MAX = 45;
    const int equals_width = s_font ? 12 : 16;
    const int label_width = std::min(widest_label(val) + (s_font ? 3 : 4) + 10, LABEL_MAX);
    val->v_left = cell->x1 + 4 + label_width;
    val->v_right = cell->x2 - 15;

    const int equals_mid = val->v_left - equals_width / 2 + 3;
    for (int i = 0; i < lines_of(val); i++) {
        const int y = line_y(cell, i);
        const unsigned ink = val->invert[i] ? BLACK : WHITE;
        if (val->invert[i])
            put_bar(cell, i);
        st_put_centred(cell->x1 + 7, equals_mid - 3, y, text_or_empty(val->st_str[i]), st_font(),
                       val->keygray[i]  ? GREY
                       : val->invert[i] ? BLACK
                                        : LABEL);
        st_put_centred(equals_mid - 4, equals_mid + 4, y, "=", st_font(),
                       val->invert[i] ? BLACK : EQUALS);
        put_value(val, y, text_or_empty(val->val_str[i]), ink);
        if (val->grayout[i])
            veil_line(cell, i, val->selected);
    }
    return 0;
}

// --- What painters have in common ---

ST_MEM* st_begin(ST_MEM* cell, int lit, const char* name)
{
    ST_MEM* shown = st_shown(cell);
    st_drw_background_areaname(cell, lit, shown ? name : "");
    return shown;
}

int st_in_view(const ST_MEM* cell)
{
    return cell->jamp_id != 0 && cell->jamp_id == GL_NowPage;
}

bool st_is_on(const ST_MEM* cell, int n)
{
    return strcmp(cell->tally[n], "true") == 0;
}

bool st_is_off(const ST_MEM* cell, int n)
{
    return strcmp(cell->tally[n], "false") == 0;
}

void st_put_values(const ST_MEM* cell, int lit, std::span<const ST_LABEL> labels)
{
    ST_VAL val{.selected = lit};
    for (const ST_LABEL& l : labels) {
        if (val.st_num == ST_LINES)
            break;
        val.st_str[val.st_num] = l.label;
        val.val_str[val.st_num] = cell->tally[l.tally];
        val.st_num++;
    }
    st_drw_status_values(cell, &val);
}
