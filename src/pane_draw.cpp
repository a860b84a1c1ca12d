// What panes look like: the two kinds of boxes, the faces of buttons, wells of text, the progress
// bar.
#include "box.h"
#include "colours.h"
#include "graphics.h"
#include "indexed.h"
#include "pane_private.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <iterator>

#include "safeguards.h"

namespace
{
constexpr unsigned WELL = 0xF5F5F5;
constexpr unsigned STRIP = 0xC3C3C3;
constexpr unsigned INDICATOR_OFF = 0x505050;
constexpr int SHADOW_REACH = BOX_SHADOW + 1; // the shadow is a pixel larger than the pane

// When a face is light, and its caption black.
enum Light { NEVER = 0, WHEN_ON = 1, WHEN_PUSHED = 2, EITHER = WHEN_ON | WHEN_PUSHED };

enum Place {
    CENTRED,  // font 3
    CELL,     // font 4, left
    ITEM,     // as CELL, up to the groove of the key
    COMMIT,   // as CELL, two lines a little higher
    STANDARD, // font 3 at the margin of a standard key
    NO_CAPTION,
};

struct Face {
    int look;
    SDL_Surface** p0o0;
    SDL_Surface** p0o1;
    SDL_Surface** p1o0;
    SDL_Surface** p1o1;
    SDL_Surface** dis;
    Light light;
    Place place;
};

// Two bitmaps: the second for as long as it is pushed.
constexpr Face PushFace(int look, SDL_Surface** up, SDL_Surface** down, SDL_Surface** dis,
                        Light light, Place place)
{
    return {look, up, up, down, down, dis, light, place};
}

// A wide key that is light when it is on or pushed.
constexpr Face EntryFace(int look)
{
    return {look, &G_FMOUT_off, &G_FMOUT_on, &G_FMOUT_on, &G_FMOUT_on, &G_FMOUT_off, EITHER, CELL};
}

constexpr Face faces[] = {
    PushFace(LOOK_KEY, &G_BOX_key_off, &G_BOX_key_on, &G_BOX_key_dis, WHEN_PUSHED, CENTRED),
    PushFace(LOOK_UP, &G_BOX_up_off, &G_BOX_up_on, &G_BOX_up_off, NEVER, NO_CAPTION),
    PushFace(LOOK_DOWN, &G_BOX_down_off, &G_BOX_down_on, &G_BOX_down_off, NEVER, NO_CAPTION),
    {LOOK_ITEM, &G_PD_p0o0, &G_PD_p0o1, &G_PD_p1o0, &G_PD_p1o1, &G_PD_dis, WHEN_ON, ITEM},
    {LOOK_CELL, &G_PDs_p0o0, &G_PDs_p0o1, &G_PDs_p1o0, &G_PDs_p1o1, &G_PDs_dis, WHEN_ON, CELL},
    PushFace(LOOK_ENTER, &G_PDs_enter_off, &G_PDs_enter_on, &G_PDs_enter_dis, WHEN_PUSHED, COMMIT),
    {LOOK_POPUP, &G_UP_sel_off, &G_UP_sel_on, &G_UP_sel_off_amber, &G_UP_sel_on_amber,
     &G_UP_sel_dis, WHEN_ON, CELL},
    PushFace(LOOK_TEXT, &G_JMP_Key_p0, &G_JMP_Key_p1, &G_JMP_Key_dis, NEVER, STANDARD),
    PushFace(LOOK_COLOUR, &G_OKINI_1_p0, &G_OKINI_1_p1, &G_JMP_dis, NEVER, STANDARD),
    EntryFace(LOOK_DIRECTORY),
    EntryFace(LOOK_FOLDER),
    PushFace(LOOK_PREV_PAGE, &G_BACK_off, &G_BACK_on, &G_BACK_dis, NEVER, NO_CAPTION),
    PushFace(LOOK_NEXT_PAGE, &G_NEXT_off, &G_NEXT_on, &G_NEXT_dis, NEVER, NO_CAPTION),
    {LOOK_RUN, &G_EXE_p0o0, &G_EXE_p0o1, &G_EXE_p1o0, &G_EXE_p1o1, &G_EXE_dis, WHEN_ON, STANDARD},
    EntryFace(LOOK_FMOUT),
    {LOOK_LONG_ITEM, &G_PDl_p0o0, &G_PDl_p0o1, &G_PDl_p1o0, &G_PDl_p1o1, &G_PDl_dis, WHEN_ON, ITEM},
};

static_assert(IndexedBy(faces, &Face::look, LOOK_COUNT));

constexpr struct {
    SDL_Surface** up;
    SDL_Surface** down;
} colours[] = {
    {&G_OKINI_1_p0, &G_OKINI_1_p1}, {&G_OKINI_2_p0, &G_OKINI_2_p1}, {&G_OKINI_3_p0, &G_OKINI_3_p1},
    {&G_OKINI_4_p0, &G_OKINI_4_p1}, {&G_OKINI_5_p0, &G_OKINI_5_p1}, {&G_OKINI_6_p0, &G_OKINI_6_p1},
    {&G_OKINI_7_p0, &G_OKINI_7_p1}, {&G_OKINI_8_p0, &G_OKINI_8_p1}, {&G_OKINI_9_p0, &G_OKINI_9_p1},
};
} // namespace

// --- Buttons ---

static void dress_colour(BUTTON* b)
{
    const auto& colour = colours[std::clamp(b->id - 1, 0, int(std::size(colours)) - 1)];
    b->bmp_p0o0 = b->bmp_p0o1 = *colour.up;
    b->bmp_p1o0 = b->bmp_p1o1 = *colour.down;
}

void button_create(BUTTON* b)
{
    if (b->type < 0 || b->type >= LOOK_COUNT)
        b->type = LOOK_KEY;
    const Face& face = faces[b->type];
    b->bmp_p0o0 = *face.p0o0;
    b->bmp_p0o1 = b->bmp_p0o2 = *face.p0o1;
    b->bmp_p1o0 = *face.p1o0;
    b->bmp_p1o1 = b->bmp_p1o2 = *face.p1o1;
    b->bmp_dis = *face.dis;
    if (b->type == LOOK_COLOUR)
        dress_colour(b);
    if (b->type == LOOK_CELL) {
        b->bmp_p0o2 = G_PDs_p0o2;
        b->bmp_p1o2 = G_PDs_p1o2;
    }
    // A file that is missing leaves a key that can be pressed all the same.
    b->x2 = b->x1 + (b->bmp_p0o0 ? b->bmp_p0o0->w : 60) - 1;
    b->y2 = b->y1 + (b->bmp_p0o0 ? b->bmp_p0o0->h : 40) - 1;
}

static SDL_Surface* bitmap_of(const BUTTON& b)
{
    if (b.disable)
        return b.bmp_dis;
    if (b.onoff == 2)
        return b.pushed ? b.bmp_p1o2 : b.bmp_p0o2;
    if (b.onoff)
        return b.pushed ? b.bmp_p1o1 : b.bmp_p0o1;
    return b.pushed ? b.bmp_p1o0 : b.bmp_p0o0;
}

static unsigned caption_colour(const BUTTON& b)
{
    if (b.disable)
        return GREY;
    const int state = (b.onoff ? WHEN_ON : 0) | (b.pushed ? WHEN_PUSHED : 0);
    return (faces[b.type].light & state) != 0 ? BLACK : WHITE;
}

static void draw_caption(const BUTTON& b, int x, int y)
{
    const int w = b.x2 - b.x1 + 1;
    const int h = b.y2 - b.y1 + 1;
    const int p = b.pushed && !b.disable ? 1 : 0;
    const unsigned col = caption_colour(b);
    switch (faces[b.type].place) {
    case CENTRED:
        TDL_SymbolCS(x + p, y + p, x + w - 1 + p, y + h - 1 + p, b.caption, 3, col);
        break;
    case CELL: TDL_SymbolBS(x + 8 + p, y + 9 + p, w - 9, h - 9, b.caption, 4, col, 0); break;
    case ITEM: TDL_SymbolBS(x + 8 + p, y + 9 + p, 70, h - 9, b.caption, 4, col, 0); break;
    case COMMIT:
        TDL_SymbolBS(x + 8 + p, y + (strchr(b.caption, '\n') ? 7 : 9) + p, w - 9, h - 7, b.caption,
                     4, col, 0);
        break;
    case STANDARD:
        TDL_SymbolBS(x + 10 + p, y + 12 + p, w - 11, h - 12, b.caption, 3, col, 0);
        break;
    case NO_CAPTION: break;
    }
}

static void button_draw_s(const PANE* pane, BUTTON* b)
{
    b->redraw = 0;
    if (!pane_has_input(pane, *b))
        return;
    TDL_PutS(pane->x + b->x1, pane->y + b->y1, bitmap_of(*b));
    if (b->caption)
        draw_caption(*b, pane->x + b->x1, pane->y + b->y1);
}

void button_draw(const PANE* pane, BUTTON* b)
{
    button_draw_s(pane, b);
    TDL_UpdateRect(pane->x + b->x1, pane->y + b->y1, pane->x + b->x2, pane->y + b->y2);
}

// --- Boxes ---

static void draw_box(const PANE& p, const BoxLook& look)
{
    Box_Draw({p.x, p.y, p.x + p.w - 1, p.y + p.h - 1}, look, SHADOW_REACH);
}

static void draw_dark_box(const PANE& p)
{
    draw_box(p, BOX_DARK);
}

static void draw_light_box(const PANE& p)
{
    draw_box(p, BOX_LIGHT);
}

// --- Messages ---

// The text well of a light box, relative to its corner.
static Rect well_of(const PANE* pane)
{
    return {30, pane->type == TYPE_PROGRESS ? 120 : 65, 370, 235};
}

static void draw_text_s(PANE* pane)
{
    const Rect well = well_of(pane);
    const int x = pane->x + well.x1;
    const int y1 = pane->y + well.y1;
    const int y2 = pane->y + well.y2;
    TDL_FillRectS(x, y1, x + 306, y2, WELL);
    Box_Edge({x, y1, x + 340, y2}, BOX_SUNK_EDGE, WHITE);
    const int height = pane_kind(pane).lines * int(TDL_GetSymbolSize("", TEXT_FONT) >> 16);
    const int margin = (y2 - y1 - height) / 2;
    TDL_SymbolBS(x + 10, y1 + margin, TEXT_WIDTH, height + 1, pane_text_in_view(pane), TEXT_FONT,
                 BLACK, 0);
}

void pane_draw_text(PANE* pane)
{
    draw_text_s(pane);
    const Rect well = well_of(pane);
    TDL_UpdateRect(pane->x + well.x1, pane->y + well.y1, pane->x + well.x2, pane->y + well.y2);
}

static SDL_Surface* icon_of(int icon)
{
    switch (icon) {
    case PANE_ALERT: return G_BOX_alert;
    case PANE_FATAL: return G_BOX_fatal;
    default: return G_BOX_info;
    }
}

static void draw_message_frame(const PANE& p)
{
    draw_light_box(p);
    const Rect well = well_of(&p);
    TDL_FillRectS(p.x + 337, p.y + well.y1, p.x + well.x2, p.y + well.y2, STRIP);
}

void pane_draw_message(PANE* p)
{
    draw_message_frame(*p);
    TDL_PutS(p->x + 15, p->y + 15, icon_of(p->each.message.icon));
    TDL_SymbolWS(p->x + 64, p->y + 20, p->w - 80, p->caption, 8, BLACK);
    draw_text_s(p);
}

// --- Progress ---

// Shown while a transfer has a route at all; lit while it takes the data port.
static void draw_route_lamp(const PANE& p)
{
    const int lamp = p.each.progress.lamp;
    if (lamp != ROUTE_LAMP_CONTROL && lamp != ROUTE_LAMP_DATA)
        return;
    const int x = p.x + 297;
    const int y = p.y + 97;
    Box_Sunk({x, y, x + 11, y + 11}, lamp == ROUTE_LAMP_DATA ? TEAL : INDICATOR_OFF, BOX_BAR_EDGE);
    TDL_SymbolS(x + 18, y - 1, "Data Port", 1, BLACK);
}

static void draw_progress_s(const PANE* pane)
{
    const int x = pane->x + 30;
    const int y = pane->y + 65;
    const auto& progress = pane->each.progress;
    TDL_FillRectS(x, y + 23, x + 340, y + 50, BOX_LIGHT.ground);
    Box_Progress({x, y, x + 340, y + 22}, BOX_BAR_EDGE, progress.prog);
    TDL_SymbolWS(x, y + 31, 260, progress.progmes, TEXT_FONT, BLACK);
    draw_route_lamp(*pane);
}

void pane_draw_progress(const PANE* pane)
{
    draw_progress_s(pane);
    TDL_UpdateRect(pane->x + 30, pane->y + 65, pane->x + 370, pane->y + 115);
}

void pane_draw_progress_box(PANE* p)
{
    draw_message_frame(*p);
    TDL_SymbolWS(p->x + 30, p->y + 20, p->w - 46, p->caption, 8, BLACK);
    draw_progress_s(p);
    draw_text_s(p);
}

// --- The dark panes ---

void pane_draw_grid(PANE* p)
{
    draw_dark_box(*p);
}

// The names of the classes stand in the margin beside their rows of units.
void pane_draw_region(PANE* p)
{
    draw_dark_box(*p);
    if (!region_has_margin(p))
        return;
    TDL_SymbolS(p->x + 20, p->y + 15 + 9, "SWR", 4, WHITE);
    TDL_SymbolS(p->x + 20, p->y + 15 + 2 * 44 + 9, "DME", 4, WHITE);
}

static void draw_indicator_s(const PANE* p)
{
    TDL_FillRectS(p->x + 1, p->y + 1, p->x + 30, p->y + 30,
                  p->each.find.indicator ? TEAL : INDICATOR_OFF);
}

void pane_draw_indicator(const PANE* p)
{
    draw_indicator_s(p);
    TDL_UpdateRect(p->x + 1, p->y + 1, p->x + 30, p->y + 30);
}

void pane_draw_find(PANE* p)
{
    draw_dark_box(*p);
    draw_indicator_s(p);
    TDL_FillRectS(p->x + 124, p->y + 33, p->x + 156, p->y + 105, STRIP);
    TDL_SymbolS(p->x + 40, p->y + 7, p->caption, 8, WHITE);
}

static void draw_page_number(const PANE* p)
{
    if (pane_kind(p).page_size == 0 || p->each.directory.all_page < 2)
        return;
    const auto& directory = p->each.directory;
    char number[24];
    PrintText(number, "%d/%d", directory.now_page + 1, directory.all_page);
    TDL_SymbolCS(p->x + p->w - 150, p->y + p->h - 50, p->x + p->w - 101, p->y + p->h - 7, number, 5,
                 WHITE);
}

void pane_draw_directory(PANE* p)
{
    draw_dark_box(*p);
    draw_page_number(p);
}

void pane_draw_run_control(PANE* p)
{
    draw_dark_box(*p);
    TDL_SymbolS(p->x + 18, p->y + 13, p->caption, 8, WHITE);
}

void pane_draw_inside(PANE* pane)
{
    const int x2 = pane->x + pane->w - 3;
    const int y2 = pane->y + pane->h - 3;
    TDL_FillRectS(pane->x + 2, pane->y + 2, x2, y2, BOX_DARK.ground);
    draw_page_number(pane);
    for (BUTTON* b = pane->button; b->id != BUTTON_END; b++)
        button_draw_s(pane, b);
    pane->inside_redraw = 0;
    TDL_UpdateRect(pane->x + 2, pane->y + 2, x2, y2);
}

void pane_draw_all(PANE* pane)
{
    pane_kind(pane).draw(pane);
    for (BUTTON* b = pane->button; b->id != BUTTON_END; b++)
        button_draw_s(pane, b);
    pane->redraw = 0;
    pane->text_redraw = 0;
    pane->inside_redraw = 0;
    if (pane->type == TYPE_PROGRESS)
        pane->each.progress.prog_redraw = 0;
    TDL_UpdateRect(pane->x, pane->y, pane->x + pane->w - 1 + SHADOW_REACH,
                   pane->y + pane->h - 1 + SHADOW_REACH);
}
