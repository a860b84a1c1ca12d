// What the column looks like.
#include "a_nb.h"
#include "a_nb_private.h"
#include "colours.h"
#include "graphics.h"
#include "tdl.h"
#include "text.h"
#include <cmath>
#include <cstring>
#include "safeguards.h"

constexpr unsigned COUNTER = 0xC8C8C8;
constexpr unsigned MARK = CYAN; // also the lines round a bar that is held
constexpr unsigned VALUE = BOX_VALUE;
constexpr unsigned NO_VALUE = 0x3C7878;
constexpr Rect TITLE = {706, 73, 799, 124};
constexpr int VALUE_RIGHT = 790;
constexpr int BAR_H = 10;
constexpr int GLOW_PX = 25; // how far the glow reaches on either side of the mark

void nb_blank_all_slots()
{
    for (int slot = 1; slot <= NB_SLOTS; slot++)
        nb.blank_slots |= 1u << slot;
    for (NB_MEM& b : nb_boxes())
        b.redraw = 1;
    nb.AreaUpdate = 1;
}

// --- The bar ---

// px from the bar's start.
static int mark_position(const NB_MEM& b)
{
    double v = nb_shown_var(b);
    if (b.type == NB_INT)
        v = nb_round(v);
    return nb_round(std::clamp((v - b.min) / (b.max - b.min), 0.0, 1.0) * NB_BAR_W);
}

static void draw_glow(int pos, int y)
{
    for (int i = 2; i <= GLOW_PX; i++) {
        const auto level = unsigned(150 - 2 * i);
        const unsigned col = level << 8 | level;
        if (pos - i >= 0)
            TDL_LineVS(NB_BAR_X + pos - i, y, BAR_H, col);
        if (pos + i <= NB_BAR_W)
            TDL_LineVS(NB_BAR_X + pos + i, y, BAR_H, col);
    }
}

static void draw_mark(int pos, int y)
{
    const int x = NB_BAR_X + pos;
    TDL_LineVS(x, y, BAR_H, MARK);
    if (pos > 0)
        TDL_LineVS(x - 1, y, BAR_H, MARK);
    if (pos < NB_BAR_W)
        TDL_LineVS(x + 1, y, BAR_H, MARK);
}

static void draw_bar(const NB_MEM& b, int y)
{
    TDL_FillRectS(NB_BAR_X, y, NB_BAR_X + NB_BAR_W, y + BAR_H - 1, BAR_GROUND);
    if (nb_slot(b) == nb.DragSelect) {
        TDL_LineHS(NB_BAR_X, y - 1, NB_BAR_W, MARK);
        TDL_LineHS(NB_BAR_X, y + BAR_H, NB_BAR_W, MARK);
    }
    if (!b.var_valid || b.min == b.max)
        return;
    const int pos = mark_position(b);
    draw_glow(pos, y);
    draw_mark(pos, y);
}

// --- Boxes and title ---

static void draw_value(const NB_MEM& b, int y)
{
    char number[64];
    const char* text = number;
    if (b.type == NB_TC && b.min < 0 && b.str_val)
        text = b.str_val;
    else if (b.type == NB_INT && b.zero && nb_round(nb_shown_var(b)) == 0)
        text = b.zero;
    else
        NB_Text(b, nb_shown_var(b), number, sizeof number);
    // A value far out of range is cut at its end: it must not run into the work area.
    const int x = std::max(NB_COLUMN.x1, VALUE_RIGHT - int(TDL_GetSymbolWidth(text, 7)));
    TDL_SymbolWS(x, y, NB_COLUMN.x2 - x + 1, text, 7, b.var_valid ? VALUE : NO_VALUE);
}

static void draw_box(NB_MEM& b)
{
    b.redraw = 0;
    if (!nb_is_shown(b))
        return;
    const int y = nb_slot_top(nb_slot(b));
    TDL_PutS(NB_COLUMN.x1, y, b.id == nb.Select ? G_NB_on : G_NB_off);
    const bool has_unit = strchr(b.caption, '\n') != nullptr; // the bar would cut its descenders
    TDL_SymbolS(720, y + (has_unit ? 6 : 10), b.caption, 3, WHITE);
    draw_bar(b, y + 35);
    draw_value(b, y + 50);
    TDL_UpdateRect(NB_COLUMN.x1, y, NB_COLUMN.x2, y + 79);
}

static void draw_blank_slots()
{
    for (int slot = 1; slot <= NB_SLOTS; slot++)
        if (nb.blank_slots & 1u << slot)
            TDL_PutS(NB_COLUMN.x1, nb_slot_top(slot), G_NB_blank);
    nb.blank_slots = 0;
}

// The caption of a button as one line: "Color\nVector", "Poster-\nization", "Border/\nCrop". The
// second line would stand on the layer mark.
template <size_t N> static void title_line(char (&dst)[N])
{
    size_t n = 0;
    for (const char* c = nb.Title; *c && n + 1 < N; c++) {
        if (*c != '\n') {
            dst[n++] = *c;
            continue;
        }
        const char before = n ? dst[n - 1] : '\0';
        if (before == '-')
            n--;
        else if (before != '/')
            dst[n++] = ' ';
    }
    dst[n] = '\0';
}

static void draw_title()
{
    nb.Title_redraw = 0;
    if (nb.LayerN == 0) {
        TDL_PutS(TITLE.x1, TITLE.y1, G_NBS_blank);
    } else {
        char counter[32];
        PrintText(counter, "%d/%d", nb.Layer + 1, nb.LayerN + 1);
        TDL_PutS(TITLE.x1, TITLE.y1, nb.Title_pushed > 0 ? G_NBS_on : G_NBS_off);
        TDL_SymbolS(766, 104, counter, 5, COUNTER);
    }
    constexpr int TITLE_ROOM = 84;
    char title[sizeof nb.Title];
    title_line(title);
    const bool is_wide = TDL_GetSymbolWidth(title, 4) > TITLE_ROOM;
    TDL_SymbolS(713, 83, title, is_wide ? 1 : 4, WHITE); // small before it is cut
    TDL_UpdateRect(TITLE.x1, TITLE.y1, TITLE.x2, TITLE.y2);
}

// --- Time ---

static void run_fresh_time(NB_MEM& b, int elapsed_ms)
{
    if (!b.dispvar_enable)
        return;
    b.dispvar_time -= elapsed_ms;
    if (b.dispvar_time > 0)
        return;
    b.dispvar_time = 0;
    b.dispvar_enable = 0;
    b.var = b.dispvar;
    b.redraw = 1;
}

static void run_pushed_time(int elapsed_ms)
{
    if (nb.Title_pushed <= 0)
        return;
    nb.Title_pushed -= elapsed_ms;
    if (nb.Title_pushed > 0)
        return;
    nb.Title_pushed = 0;
    nb.Title_redraw = 1;
}

int nb_redraw(int elapsed_ms)
{
    if (!nb.is_open)
        return 0;
    if (nb.RedrawAll)
        nb_blank_all_slots();
    nb.RedrawAll = 0;
    draw_blank_slots();
    for (NB_MEM& b : nb_boxes()) {
        run_fresh_time(b, elapsed_ms);
        if (b.redraw)
            draw_box(b);
    }
    if (nb.Title_redraw)
        draw_title();
    run_pushed_time(elapsed_ms);
    if (nb.AreaUpdate)
        TDL_UpdateRect(NB_COLUMN.x1, NB_FIRST_TOP, NB_COLUMN.x2, nb_slot_top(NB_SLOTS + 1));
    nb.AreaUpdate = 0;
    return 0;
}
