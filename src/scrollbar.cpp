#include "scrollbar.h"
#include "bus.h"
#include "colours.h"
#include "graphics.h"
#include "message.h"
#include "tdl.h"
#include <algorithm>
#include "safeguards.h"

namespace
{
constexpr int ARROW_PX = 40;
constexpr int HEIGHT_MIN = 2 * ARROW_PX + 2; // a track of one pixel has no ends to measure between
constexpr int REPEAT_FIRST_MS = 300;         // a held arrow: one step, this pause,
constexpr int REPEAT_MS = 50;                // then a step each
constexpr int SCALE = 256;                   // a position on the track, whatever its length
constexpr int THUMB_MIN_PX = 15;             // less could not be seen, nor caught

constexpr unsigned TRACK = HEADER_GROUND;
constexpr unsigned THUMB = 0x366372;
constexpr unsigned THUMB_TOP = 0x648CA0;
constexpr unsigned THUMB_BOTTOM = 0x001428;

struct Bar {
    SB_INFO info;
    int up_pushed = 0;
    int down_pushed = 0;
    int thumb_pushed = 0;
    int repeat_ms = 0; // until the next step of the arrow that is held
    int redraw = 0;
};

struct Span {
    int y1 = 0;
    int y2 = 0;
};
} // namespace

static Bar SB[SB_MAX];
static bool IgnoreRedraw = false; // the next paint leaves the arrows out

static Bar* find_bar(int n)
{
    return n >= 0 && n < SB_MAX ? &SB[n] : nullptr;
}

// --- For the owner of a bar ---

int CreateScrollBar(int n, int x, int y, int h)
{
    Bar* b = find_bar(n);
    if (!b || h < HEIGHT_MIN)
        return -1;
    *b = {};
    b->info = {.active = 1, .x = x, .y = y, .height = h};
    const int right = x + SB_W - 1;
    b->info.up = {x, y, right, y + ARROW_PX - 1};
    b->info.down = {x, y + h - ARROW_PX, right, y + h - 1};
    b->info.track = {x, y + ARROW_PX, right, y + h - ARROW_PX - 1};
    b->redraw = 1;
    IgnoreRedraw = false; // a new bar needs its arrows
    return 0;
}

int CloseScrollBar(int n)
{
    Bar* b = find_bar(n);
    if (!b)
        return -1;
    *b = {};
    return 0;
}

void CloseScrollBarAll()
{
    for (Bar& b : SB)
        b = {};
}

int SB_SetPosition(int n, int top, int shown, int total)
{
    Bar* b = find_bar(n);
    if (!b)
        return -1;
    b->info.top = top;
    b->info.shown = shown;
    b->info.total = total;
    return 0;
}

int SB_SetPositionRedraw(int n, int top, int shown, int total)
{
    if (SB_SetPosition(n, top, shown, total) != 0)
        return -1;
    SB[n].redraw = 1;
    return 0;
}

int SB_GetInfo(SB_INFO* out, int n)
{
    const Bar* b = find_bar(n);
    if (!b || !out)
        return -1;
    *out = b->info;
    return 0;
}

int SB_ConvPosForWheel(int n, const Rect& area, int* x, int* y, int dir)
{
    constexpr int WHEEL_UP = 4;
    const Bar* b = find_bar(n);
    if (!b || !b->info.active)
        return 0;
    const Rect& up = b->info.up;
    const Rect& down = b->info.down;
    if (!Inside(area, *x, *y) && !Inside({up.x1, up.y1, down.x2, down.y2}, *x, *y))
        return 0;
    *x = up.x1;
    *y = dir == WHEEL_UP ? up.y1 : down.y2;
    return 1;
}

void SB_IgnoreRedraw(int on)
{
    IgnoreRedraw = on != 0;
}

// --- Touch ---

static void sb_select(int n, int y)
{
    const SB_INFO& info = SB[n].info;
    if (info.total <= 0)
        return;
    const int at = (y - info.track.y1) * SCALE / (info.track.y2 - info.track.y1);
    const int row = std::clamp(at, 0, SCALE - 1) * info.total / SCALE;
    SendMessage(LMSG_SBSEL, SB_THUMB, n, std::min(row, info.total - 1), 0);
}

static void step(int n, int kind)
{
    SendMessage(LMSG_SBSEL, kind, n, kind == SB_UP ? -1 : 1, 0);
}

static int press(int x, int y)
{
    for (int n = 0; n < SB_MAX; n++) {
        Bar& b = SB[n];
        if (!b.info.active ||
            !Inside({b.info.up.x1, b.info.up.y1, b.info.down.x2, b.info.down.y2}, x, y))
            continue;
        if (Inside(b.info.track, x, y)) {
            b.thumb_pushed = 1;
            sb_select(n, y);
            return 0;
        }
        const bool is_up = Inside(b.info.up, x, y);
        (is_up ? b.up_pushed : b.down_pushed) = 1;
        b.repeat_ms = REPEAT_FIRST_MS;
        b.redraw = 1;
        step(n, is_up ? SB_UP : SB_DOWN);
        return 0; // what page code did about it may have moved the bars
    }
    return 0;
}

static int release()
{
    for (Bar& b : SB) {
        b.redraw |= b.up_pushed | b.down_pushed;
        b.up_pushed = b.down_pushed = b.thumb_pushed = 0;
    }
    return 0;
}

static int drag(int y, bool held)
{
    for (int n = 0; n < SB_MAX; n++)
        if (held && SB[n].thumb_pushed)
            sb_select(n, y);
    return 0;
}

static void repeat(int n, int elapsed_ms)
{
    Bar& b = SB[n];
    if (!b.up_pushed && !b.down_pushed)
        return;
    b.repeat_ms -= elapsed_ms;
    if (b.repeat_ms > 0)
        return;
    b.repeat_ms = REPEAT_MS;
    step(n, b.up_pushed ? SB_UP : SB_DOWN);
}

// --- Painting ---

// Where the thumb is; all of the track when there is nothing to scroll.
static Span thumb_of(const SB_INFO& info)
{
    const int track_px = info.track.y2 - info.track.y1 + 1;
    const int from = std::clamp(info.top * SCALE / info.total, 0, SCALE);
    const int to = std::clamp((info.top + info.shown) * SCALE / info.total, 0, SCALE);
    Span thumb = {info.track.y1 + from * track_px / SCALE,
                  info.track.y1 + to * track_px / SCALE - 1};
    if (thumb.y2 - thumb.y1 + 1 >= THUMB_MIN_PX)
        return thumb;
    const int y1 = (thumb.y1 + thumb.y2 + 1) / 2 - THUMB_MIN_PX / 2;
    const int last = std::max(info.track.y2 + 1 - THUMB_MIN_PX, info.track.y1);
    thumb.y1 = std::clamp(y1, info.track.y1, last);
    thumb.y2 = std::min(thumb.y1 + THUMB_MIN_PX - 1, info.track.y2);
    return thumb;
}

static void draw_track(const SB_INFO& info)
{
    const Rect& t = info.track;
    TDL_FillRectS(t.x1, t.y1, t.x2, t.y2, TRACK);
    if (info.total <= 0)
        return;
    const Span thumb = thumb_of(info);
    if (thumb.y1 <= t.y1 && thumb.y2 >= t.y2)
        return;
    TDL_FillRectS(t.x1, thumb.y1, t.x2, thumb.y2, THUMB);
    TDL_LineHS(t.x1, thumb.y1, SB_W, THUMB_TOP);
    TDL_LineHS(t.x1, thumb.y2, SB_W, THUMB_BOTTOM);
}

static void draw_arrows(const Bar& b)
{
    TDL_PutS(b.info.up.x1, b.info.up.y1, b.up_pushed ? G_SB_up_on : G_SB_up_off);
    TDL_PutS(b.info.down.x1, b.info.down.y1, b.down_pushed ? G_SB_dw_on : G_SB_dw_off);
}

static void draw(Bar& b)
{
    draw_track(b.info);
    if (!IgnoreRedraw)
        draw_arrows(b);
    IgnoreRedraw = false;
    TDL_UpdateRect(b.info.up.x1, b.info.up.y1, b.info.down.x2, b.info.down.y2);
    b.redraw = 0;
}

static int redraw(int elapsed_ms)
{
    for (int n = 0; n < SB_MAX; n++)
        repeat(n, elapsed_ms);
    for (Bar& b : SB)
        if (b.info.active && b.redraw)
            draw(b);
    return 0;
}

int ScrollBarProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return redraw(int(ax));
    case MSG_PRESS: return press(int(ax), int(bx));
    case MSG_RELEASE: return release();
    case MSG_DRAG: return drag(int(bx), cx != 0);
    default: return 0;
    }
}
