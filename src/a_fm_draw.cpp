// The picture of the outputs: a pair's two boxes, one below the other, and the keys.
#include "a_fm_private.h"
#include "box.h"
#include "colours.h"
#include "graphics.h"
#include "tdl.h"
#include "text.h"
#include "timecode.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

namespace
{
constexpr int FONT = 3;
constexpr int KEY_W = 101; // of FMOUT
constexpr int KEY_H = 46;
constexpr int THUMB_W = 112;
constexpr int THUMB_H = 63;
constexpr int THUMB_X = (FM_BOX_W - THUMB_W) / 2;
constexpr int THUMB_Y = KEY_H + 4;
constexpr int NAME_Y = THUMB_Y + THUMB_H + 3;
constexpr int STATUS_Y = NAME_Y + 14;
constexpr unsigned THUMB_GROUND = 0x101010;
} // namespace

// --- Layout ---

Rect fm_box(int second)
{
    const POSITION& p = fm.tbl.fmout_button.pos;
    const int y = p.y + second * FM_BOX_H;
    return {p.x, y, p.x + FM_BOX_W - 1, y + FM_BOX_H - 2};
}

bool fm_key_rect(int key, Rect* r)
{
    const FM_TBL& t = fm.tbl;
    const int enable[FM_KEYS] = {t.outselect_button.enable, t.pair_button.enable,
                                 t.ancillary_button.enable};
    const POSITION pos[FM_KEYS] = {t.outselect_button.pos, t.pair_button.pos,
                                   t.ancillary_button.pos};
    *r = {pos[key].x, pos[key].y, pos[key].x + KEY_W - 1, pos[key].y + KEY_H - 1};
    return enable[key] != 0;
}

// --- Parts ---

static void draw_key(const Rect& r, const char* caption, bool is_on, bool is_pushed, unsigned ink)
{
    const int p = is_pushed;
    TDL_PutS(r.x1, r.y1, is_on ? G_FMOUT_on : G_FMOUT_off);
    if (is_pushed)
        Box_Edge(r, RAISED_DARK, RAISED_LIGHT);
    TDL_SymbolCS(r.x1 + p, r.y1 + 4 + p, r.x2 + p, r.y2 - 2 + p, caption, FONT,
                 is_on ? BLACK : ink);
}

static void draw_text(int x, int y, int width, const char* text, unsigned colour)
{
    char cut[ELEMENT_PATH_SIZE];
    CopyText(cut, text);
    if (int(TDL_GetSymbolWidth(cut, FONT)) > width)
        (void)TDL_CutText(cut, sizeof cut, width, "..", FONT);
    TDL_SymbolS(x, y, cut, FONT, colour);
}

// What stands in the place of a picture.
static void draw_stand_in(const Rect& r, int status)
{
    static constexpr struct {
        int status;
        const char* text;
    } words[] = {
        {FMOUT_STATUS_THROUGH, "Through"},
        {FMOUT_STATUS_BLACK, "Black"},
        {FMOUT_STATUS_REC, "Record"},
        {FMOUT_STATUS_PLAY, "   No\nThumbnail"},
        {FMOUT_STATUS_FREEZE_RECALL, "   No\nThumbnail"},
    };
    for (const auto& w : words)
        if (w.status == status)
            TDL_SymbolCS(r.x1, r.y1, r.x2, r.y2, w.text, FONT, SEPARATOR);
}

static void draw_thumbnail(int n, int status, const Rect& r)
{
    TDL_FillRectS(r.x1, r.y1, r.x2, r.y2, THUMB_GROUND);
    SDL_Surface* const s = status == FMOUT_STATUS_FREEZE_RECALL || status == FMOUT_STATUS_PLAY
                               ? fm_surface(n)
                               : nullptr;
    if (s)
        TDL_PutS(r.x1 + (THUMB_W - s->w) / 2, r.y1 + (THUMB_H - s->h) / 2, s);
    else
        draw_stand_in(r, status);
    TDL_RectS(r.x1 - 1, r.y1 - 1, r.x2 + 1, r.y2 + 1, CELL_FRAME);
}

// "Play 00:04:12", or where a still or clip stands; what is black or through says so above.
static void status_text(int n, int status, char (&text)[32], unsigned* colour)
{
    text[0] = '\0';
    *colour = LABEL;
    if (status == FMOUT_STATUS_PLAY) {
        PrintText(text, "Play  %s", Frame2TC_SWR(fm.play[n].frame, 3, 0));
        *colour = GREEN;
    } else if (status == FMOUT_STATUS_REC) {
        for (const FM_RECORD& r : fm.record)
            if (r.is_running && r.output == n)
                PrintText(text, "Record  %s", Frame2TC_SWR(r.frame, 3, 0));
        *colour = RED;
    } else if (status == FMOUT_STATUS_FREEZE_RECALL && fm.output[n].duration > 1) {
        PrintText(text, "%s", Frame2TC_SWR(fm.play[n].frame, 3, 0));
    }
}

static void draw_name_status(int n, int status, const Rect& box)
{
    const char* const path = fm.output[n].path;
    const char* const slash = strrchr(path, '/');
    char text[32];
    unsigned colour = LABEL;
    draw_text(box.x1 + THUMB_X, box.y1 + NAME_Y, THUMB_W, slash ? slash + 1 : "", WHITE);
    status_text(n, status, text, &colour);
    draw_text(box.x1 + THUMB_X, box.y1 + STATUS_Y, THUMB_W, text, colour);
}

static void draw_output(int second)
{
    const int n = FM_GetSelectEven() + second;
    const Rect box = fm_box(second);
    const int status = fm_status(n);
    const bool is_selected = n == FM_GetSelect() || FM_IsPair();
    TDL_FillRectS(box.x1, box.y1, box.x2, box.y2, BLACK);
    const int x = box.x1 + (FM_BOX_W - KEY_W) / 2;
    draw_key({x, box.y1, x + KEY_W - 1, box.y1 + KEY_H - 1}, FM_GetFMOutStr(n), is_selected, false,
             WHITE);
    const Rect thumb = {box.x1 + THUMB_X, box.y1 + THUMB_Y, box.x1 + THUMB_X + THUMB_W - 1,
                        box.y1 + THUMB_Y + THUMB_H - 1};
    draw_thumbnail(n, status, thumb);
    if (fm.tbl.name_status.enable)
        draw_name_status(n, status, box);
    if (fm.tbl.waku.enable && is_selected)
        TDL_RectS(thumb.x1 - 2, thumb.y1 - 2, thumb.x2 + 2, thumb.y2 + 2, CYAN);
    TDL_UpdateRect(box.x1, box.y1, box.x2, box.y2);
}

static void draw_keys()
{
    static constexpr const char* captions[FM_KEYS] = {"Out Select", "Pair", "Ancillary"};
    const int* const ancillary = fm.output[FM_GetSelect()].ancillary;
    const bool on[FM_KEYS] = {false, FM_IsPair() != 0, ancillary[0] || ancillary[1]};
    Rect r;
    for (int key = 0; key < FM_KEYS; key++)
        if (fm_key_rect(key, &r)) {
            const bool is_dead = key == FM_KEY_PAIR && fm.tbl.pair_button.disable;
            draw_key(r, captions[key], on[key], fm.pushed[key] > 0, is_dead ? GREY : WHITE);
            TDL_UpdateRect(r.x1, r.y1, r.x2, r.y2);
        }
}

static void release_keys(int elapsed_ms)
{
    for (int& pushed : fm.pushed) {
        fm.redraw_keys |= pushed > 0 && pushed <= elapsed_ms;
        pushed = std::max(0, pushed - elapsed_ms);
    }
}

void fm_redraw(int elapsed_ms)
{
    release_keys(elapsed_ms);
    if (fm.redraw_all)
        fm.redraw[0] = fm.redraw[1] = fm.redraw_keys = true;
    fm.redraw_all = false;
    for (int second = 0; second < 2; second++)
        if (fm.redraw[second] && fm.tbl.fmout_button.enable)
            draw_output(second);
    if (fm.redraw_keys)
        draw_keys();
    fm.redraw[0] = fm.redraw[1] = fm.redraw_keys = false;
}
