// The timeline page: ten rows of regions, their common time axis, the knob that scrolls them.
#include "a_kf_private.h"
#include "a_nb.h"
#include "colours.h"
#include "global.h"
#include "message.h"
#include "pane.h"
#include "tdl.h"
#include "timecode.h"
#include <algorithm>
#include <iterator>
#include "safeguards.h"

namespace
{
constexpr int KNOB_SCROLL = 1;

constexpr Rect STRIP = {97, 530, 702, 550}; // between the rows and the tabs
constexpr Rect START_LABEL = {117, 535, 187, 546};
constexpr Rect END_LABEL = {617, 535, 687, 546};
constexpr Rect NAMES = {4, 78, 92, 524}; // the blocks of all rows
constexpr int FONT_LABEL = 3;
} // namespace

static int unpainted_ms; // since the last repaint of the rows

// --- Rows ---

static void mark_bars()
{
    for (KF_REGION* r : tlDisp)
        r->redraw_tl = 1;
}

// Several rows may show the same region: all are painted before its marks go. A region that is in
// no row gets its marks again when it comes into one.
static void paint_rows()
{
    for (int row = 0; row < TL_ROWS; row++) {
        const KF_REGION* const r = tlDisp[row];
        if (r->redraw)
            (void)tl_draw(r, row); // there is this row
        else if (r->redraw_tl)
            (void)tl_drawtl(r, row);
    }
    for (KF_REGION& r : Region) {
        r.redraw = 0;
        r.redraw_tl = 0;
    }
}

static void order_rows()
{
    KF_InitPriority();
    (void)NB_SetMinMax(KNOB_SCROLL, 0, kf_furthest_scroll()); // the column may show another table
    (void)NB_SetVar(KNOB_SCROLL, RegionScroll);
}

// --- Axis ---

static void draw_label(const Rect& r, int time)
{
    TDL_FillRectS(r.x1, r.y1, r.x2, r.y2, FRAME_GROUND);
    TDL_SymbolS(r.x1, r.y1, Frame2TC(time, 4), FONT_LABEL, WHITE);
    TDL_UpdateRect(r.x1, r.y1, r.x2, r.y2);
}

static void move_edge(int* edge, int time, const Rect& label)
{
    if (*edge == time)
        return;
    *edge = time;
    draw_label(label, time);
    mark_bars();
}

static void renew_axis()
{
    const int latest = TC2Frame("23:59:59:00");
    int start = latest;
    int end = TC2Frame("00:00:00:00");
    for (const KF_REGION* r : tlDisp) {
        if (r->stime > 0)
            start = std::min(start, r->stime);
        end = std::max(end, r->etime);
    }
    if (start == latest) // no row has one
        start = TC2Frame("00:00:00:00");
    move_edge(&tlSTime, start, START_LABEL);
    move_edge(&tlETime, std::max(end, start), END_LABEL);
}

// --- The page ---

static int kf_tl_create(int on, uint32_t)
{
    if (!on)
        return 0;
    unpainted_ms = 0;
    TDL_FillRectS(STRIP.x1, STRIP.y1, STRIP.x2, STRIP.y2, FRAME_GROUND);
    order_rows();
    renew_axis(); // of the rows that are there now
    tlSETime_redraw = 0;
    paint_rows();
    draw_label(START_LABEL, tlSTime);
    draw_label(END_LABEL, tlETime);
    return 0;
}

static int tl_redraw(int elapsed_ms)
{
    unpainted_ms += elapsed_ms;
    if (unpainted_ms <= GL_TimelineDrawInterval)
        return 0;
    unpainted_ms = 0;
    if (tlOrder_stale)
        order_rows();
    paint_rows();
    if (tlSETime_redraw) {
        renew_axis();
        tlSETime_redraw = 0;
    }
    return 0;
}

static int tl_scroll(int knob, int place)
{
    if (knob != KNOB_SCROLL)
        return 0;
    RegionScroll = place;
    kf_fill_rows();
    return 0;
}

static int tl_press(int x, int y)
{
    if (Inside(NAMES, x, y))
        (void)KeyFrameRunCtrl_Create(); // its keys work by themselves; without memory there is none
    return 0;
}

static int kf_tl_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return tl_redraw(int(ax));
    case MSG_PRESS: return tl_press(int(ax), int(bx));
    case LMSG_KNOBVAR: return tl_scroll(int(ax), int(bx));
    default: return 0;
    }
}

const KF_TBL kf_tl = {kf_tl_proc, kf_tl_create};
