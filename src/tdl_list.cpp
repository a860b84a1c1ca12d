// What the verbs draw while the flushes are held: it is listed, and painted at the release, where
// it makes a difference. The screen is divided into squares, and each knows the look of what it
// shows: a sum of the strokes that lie on it, in their order, from the last one that covered it
// whole. Whatever erases a square and draws the same again comes to the same look, and nothing is
// painted there; what has been covered by then never is. So a page is drawn as if the screen were
// empty, and what it shares with the one before costs next to nothing.
#include "tdl.h"
#include "tdl_private.h"
#include <algorithm>
#include <cassert>
#include "safeguards.h"

namespace
{
constexpr int SIDE = 32; // px
constexpr int COLUMNS = (SCREEN_W + SIDE - 1) / SIDE;
constexpr int ROWS = (SCREEN_H + SIDE - 1) / SIDE;
constexpr int STROKES = 4096; // more are painted in several goes

using Look = uint64_t;

// Of pixels of which nothing is known. One serves for all: a square's look is only ever compared
// with what strokes have made of it, which is another.
constexpr Look UNKNOWN = 0xABADCAFE;
constexpr Rect NOWHERE = {1, 1, 0, 0};

struct Square {
    Look painted = UNKNOWN; // of the pixels that are there
    Look listed = 0;        // of those that will be there when the list is painted
    int first = 0;          // in the list: what is before it is covered or shown already
    bool is_listed = false; // strokes of the list lie on it: listed and first are valid
    bool is_unshown = true; // drawn on since the whole of it has been handed over
};
} // namespace

static struct {
    Square square[ROWS][COLUMNS];
    Stroke stroke[STROKES];
    int strokes = 0;
    Square* touched[ROWS * COLUMNS]; // those that are listed
    int touches = 0;
    Rect direct = NOWHERE; // squares that are marked as drawn on directly, and nothing since
    bool is_off = false;   // a verb paints at once, within a hold too
} list;

// --- Looks ---

static Look add(Look look, uint64_t more)
{
    look = (look ^ more) * 0x9E3779B97F4A7C15;
    return look ^ look >> 32;
}

static uint64_t pair(int a, int b)
{
    return uint64_t(uint32_t(a)) << 32 | uint32_t(b);
}

static Look kind_look(const Stroke& s)
{
    return add(1, pair(s.kind, s.alpha));
}

static Look bitmap_look(const Stroke& s)
{
    return add(kind_look(s), uint64_t(tdl_opened_bitmaps) << 32 | s.bitmap->unused1);
}

static Look look_of(const Stroke& s)
{
    Look look = s.bitmap ? add(bitmap_look(s), pair(s.x, s.y)) : add(kind_look(s), s.pixel);
    look = add(look, reinterpret_cast<uintptr_t>(s.coverage));
    return add(add(look, pair(s.box.x1, s.box.y1)), pair(s.box.x2, s.box.y2));
}

// Of a square that a stroke covers: the stroke's edges do not matter there.
static Look covered_look(const Stroke& s, int left, int top)
{
    return s.bitmap ? add(bitmap_look(s), pair(left - s.x, top - s.y)) : add(kind_look(s), s.pixel);
}

// --- Squares ---

static Rect squares_of(const Rect& r)
{
    return {r.x1 / SIDE, r.y1 / SIDE, r.x2 / SIDE, r.y2 / SIDE};
}

static bool covers(const Rect& r, int left, int top)
{
    return r.x1 <= left && r.y1 <= top && r.x2 >= std::min(left + SIDE, ScreenX) - 1 &&
           r.y2 >= std::min(top + SIDE, ScreenY) - 1;
}

// --- The list ---

static void list_on_square(Square& q, const Stroke& s, Look look, int left, int top)
{
    if (!q.is_listed) {
        q.is_listed = true;
        q.listed = q.painted;
        q.first = list.strokes;
        list.touched[list.touches++] = &q;
    }
    const bool is_opaque = s.alpha == 255 && s.kind != STROKE_GLYPH;
    if (is_opaque && covers(s.box, left, top)) {
        q.listed = covered_look(s, left, top);
        q.first = list.strokes;
    } else {
        q.listed = add(q.listed, look);
    }
}

void tdl_draw(const Stroke& s)
{
    if (tdl_is_empty(s.box))
        return;
    if (!tdl_is_held() || list.is_off) {
        tdl_draw_directly(s.box);
        tdl_paint(s, s.box);
        return;
    }
    if (list.strokes == STROKES)
        tdl_paint_listed();
    const Look look = look_of(s);
    const Rect in = squares_of(s.box);
    for (int y = in.y1; y <= in.y2; y++)
        for (int x = in.x1; x <= in.x2; x++)
            list_on_square(list.square[y][x], s, look, x * SIDE, y * SIDE);
    if (s.bitmap)
        s.bitmap->refcount++; // it may be freed before it is painted
    list.stroke[list.strokes++] = s;
}

static bool needs(const Square& q, int stroke)
{
    return q.listed != q.painted && q.first <= stroke;
}

static bool all_need(const Rect& in, int stroke)
{
    for (int y = in.y1; y <= in.y2; y++)
        for (int x = in.x1; x <= in.x2; x++)
            if (!needs(list.square[y][x], stroke))
                return false;
    return true;
}

// Runs of squares that need the stroke are painted in one go.
static void paint_where_needed(int n)
{
    const Stroke& s = list.stroke[n];
    const Rect in = squares_of(s.box);
    if (all_need(in, n)) {
        tdl_paint(s, s.box);
        return;
    }
    for (int y = in.y1; y <= in.y2; y++) {
        const Square* row = list.square[y];
        const int top = std::max(s.box.y1, y * SIDE);
        const int bottom = std::min(s.box.y2, y * SIDE + SIDE - 1);
        for (int x = in.x1; x <= in.x2; x++) {
            const int begin = x;
            while (x <= in.x2 && needs(row[x], n))
                x++;
            if (x > begin)
                tdl_paint(s, {std::max(s.box.x1, begin * SIDE), top,
                              std::min(s.box.x2, x * SIDE - 1), bottom});
        }
    }
}

void tdl_paint_listed()
{
    if (list.strokes == 0)
        return;
    list.direct = NOWHERE;
    for (int n = 0; n < list.strokes; n++) {
        paint_where_needed(n);
        SDL_FreeSurface(list.stroke[n].bitmap);
    }
    for (int i = 0; i < list.touches; i++) {
        Square& q = *list.touched[i];
        q.is_unshown = q.is_unshown || q.listed != q.painted;
        q.painted = q.listed;
        q.is_listed = false;
    }
    list.strokes = list.touches = 0;
}

static bool lies_in(const Rect& r, const Rect& in)
{
    return r.x1 >= in.x1 && r.y1 >= in.y1 && r.x2 <= in.x2 && r.y2 <= in.y2;
}

// Outside a hold every verb comes here, mostly with its neighbours: what is marked is left alone.
void tdl_draw_directly(const Rect& r)
{
    if (tdl_is_empty(r))
        return;
    tdl_paint_listed();
    const Rect in = squares_of(r);
    if (lies_in(in, list.direct))
        return;
    list.direct = in;
    for (int y = in.y1; y <= in.y2; y++)
        for (int x = in.x1; x <= in.x2; x++) {
            list.square[y][x].painted = UNKNOWN;
            list.square[y][x].is_unshown = true;
        }
}

void tdl_each_unshown(const Rect& r, void (*show)(const Rect& part))
{
    const Rect in = squares_of(r);
    list.direct = NOWHERE;
    for (int y = in.y1; y <= in.y2; y++) {
        Square* row = list.square[y];
        for (int x = in.x1; x <= in.x2; x++) {
            const int begin = x;
            for (; x <= in.x2 && row[x].is_unshown; x++)
                row[x].is_unshown = !covers(r, x * SIDE, y * SIDE);
            if (x > begin)
                show({std::max(r.x1, begin * SIDE), std::max(r.y1, y * SIDE),
                      std::min(r.x2, x * SIDE - 1), std::min(r.y2, y * SIDE + SIDE - 1)});
        }
    }
}

void TDL_PaintAtOnce(bool on)
{
    tdl_paint_listed();
    list.is_off = on;
}

// --- Life ---

void tdl_list_init()
{
    assert(ScreenX <= SCREEN_W && ScreenY <= SCREEN_H);
    tdl_list_quit();
    for (auto& row : list.square)
        for (Square& q : row)
            q = {};
    list.is_off = false;
}

void tdl_list_quit()
{
    for (int n = 0; n < list.strokes; n++)
        SDL_FreeSurface(list.stroke[n].bitmap);
    list.strokes = list.touches = 0;
    list.direct = NOWHERE;
}
