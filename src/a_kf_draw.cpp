// The rows of the timeline: a region's name at the left, its keyframes on the time axis. Each row
// is painted as a whole and flushed by itself.
#include "a_kf_private.h"
#include "colours.h"
#include "tdl.h"
#include "text.h"
#include "timecode.h"
#include <algorithm>
#include "safeguards.h"

namespace
{
constexpr unsigned BLOCK = 0x333333;
constexpr unsigned NOT_SELECTED = 0x464646;
constexpr unsigned END_TIME = 0xC8C8C8;
constexpr unsigned LOOP_TEXT = TEAL;
constexpr unsigned DELAY = 0x003296;
constexpr unsigned BOUNDARY = SEPARATOR;

constexpr int FONT_NAME = 5;
constexpr int FONT_SMALL = 1;
constexpr int COUNT_CELL_PX = 7;

constexpr int ROW_PX = 45;
constexpr Rect NAME_BOX = {4, 78, 92, 119}; // of the first row
constexpr Rect BAR_BOX = {99, 76, 700, 120};
constexpr int BAR_PX = BAR_BOX.y2 - BAR_BOX.y1 + 1;

constexpr int AXIS_X = 150;
constexpr int AXIS_PX = 500;
constexpr int FAR_PX = 2 * SCREEN_W; // off the screen for certain

// A bar is two halves of SHADES lines, black in the middle.
constexpr int SHADES = 7;
constexpr int BAR_TOP = 91;
constexpr int BAR_UPPER = 97; // its middle lines
constexpr int BAR_LOWER = 98;
constexpr int BAR_BOTTOM = 104;
constexpr unsigned GREY_STEP = 0x101010;
constexpr unsigned LOOP_STEP = 0x001010;

// A keyframe as it lies on the axis: columns from AXIS_X, which may be outside of it.
struct Segment {
    int x1;
    int x2; // where the next keyframe begins
    unsigned step;
};
} // namespace

static bool axis_is_empty()
{
    return tlETime <= tlSTime;
}

// A float and no more: some processors keep more bits of a value until it is stored.
static float rounded(float value)
{
    const volatile float stored = value;
    return stored;
}

// The column of a time, from AXIS_X. The quotient and the product are rounded to a float each: one
// picture on all machines.
static int axis_column(int time)
{
    if (axis_is_empty())
        return 0;
    const float part = rounded(float(time - tlSTime) / float(tlETime - tlSTime));
    const float column = rounded(part * float(AXIS_PX));
    return int(std::clamp(column, float(-FAR_PX), float(FAR_PX)));
}

static bool is_on_axis(int column)
{
    return column >= 0 && column <= AXIS_PX;
}

// A text of the bar area never leaves it.
static void bar_text(int x, int y, const char* text, int font, unsigned colour)
{
    TDL_SymbolWS(x, y, BAR_BOX.x2 - x + 1, text, font, colour);
}

// --- A keyframe ---

static void draw_bar(const Segment& s, int y)
{
    const int x1 = std::max(s.x1, 0);
    const int width = axis_is_empty() ? 1 : std::min(s.x2, AXIS_PX) - x1;
    if (width <= 0)
        return;                        // a keyframe at the right edge, or less than a pixel long
    for (int n = 1; n < SHADES; n++) { // the middle is black as the ground
        const unsigned shade = unsigned(n) * s.step;
        TDL_LineHS(AXIS_X + x1, y + BAR_UPPER - n, width, shade);
        TDL_LineHS(AXIS_X + x1, y + BAR_LOWER + n, width, shade);
    }
}

// The shades of the bar the other way round, so that the start stands out in it.
static void draw_tick(int x, int y, unsigned step)
{
    for (int n = 0; n < SHADES; n++) {
        TDL_LineHS(x, y + BAR_TOP + n, 1, unsigned(n) * step);
        TDL_LineHS(x, y + BAR_BOTTOM - n, 1, unsigned(n) * step);
    }
}

static void draw_marker(int x, int y)
{
    for (int half = 0; half < 4; half++)
        TDL_LineHS(x - half, y + 106 + half, 2 * half + 1, WHITE);
}

static void draw_start(const KF_REGION& r, int k, int x, int y, unsigned step)
{
    draw_tick(x, y, step);
    draw_marker(x, y);
    if (r.kf[k].pause)
        bar_text(x - 3, y + 79, "P", FONT_SMALL, ORANGE);
    if (!r.loopon || k != r.loopstart)
        return;
    char text[32] = "inf";
    if (r.loopnum != 0)
        PrintText(text, "%d/%d", r.loopremain, r.loopnum);
    bar_text(x + 3, y + 79, text, FONT_SMALL, LOOP_TEXT);
}

static void draw_stack(int count, int x, int y)
{
    if (count > 1)
        bar_text(x + 5, y + 109, NumStr(count), FONT_SMALL, WHITE);
}

static bool is_in_loop(const KF_REGION& r, int k)
{
    return r.loopon && k >= r.loopstart && k < r.loopend;
}

static void draw_keyframes(const KF_REGION& r, int y)
{
    const int last = std::min(r.kfnum, KF_KEYFRAMES - 1);
    int time = r.stime + r.dtime;
    int stacked = 0; // keyframes at this time so far
    for (int k = 1; k <= last; k++) {
        const int next = time + r.kf[k].duration;
        const Segment s = {axis_column(time), axis_column(next),
                           is_in_loop(r, k) ? LOOP_STEP : GREY_STEP};
        stacked++;
        if (s.x2 >= 0 && s.x1 <= AXIS_PX)
            draw_bar(s, y);
        if (is_on_axis(s.x1))
            draw_start(r, k, AXIS_X + s.x1, y, s.step);
        if (next == time)
            continue; // the next one lies on top of it
        if (is_on_axis(s.x1))
            draw_stack(stacked, AXIS_X + s.x1, y);
        stacked = 0;
        time = next;
    }
}

// --- The rest of the bar area ---

static void draw_delay(const KF_REGION& r, int y)
{
    const int x1 = std::max(axis_column(r.stime), 0);
    const int x2 = std::min(axis_column(r.stime + r.dtime), AXIS_PX + 1);
    if (x2 > x1)
        TDL_LineHS(AXIS_X + x1, y + BAR_BOTTOM, x2 - x1, DELAY);
}

static void draw_run_arrow(int x, int y, int direction)
{
    for (int n = 0; n < 6; n++)
        TDL_LineVS(x + direction * (n + 1), y + 93 + n, 11 - 2 * n, CYAN);
}

static void draw_cursor(const KF_REGION& r, int y)
{
    const int column = axis_column(r.ctime);
    if (!is_on_axis(column))
        return;
    const int x = AXIS_X + column;
    if (r.runstat == 0) {
        TDL_FillRectS(x - 1, y + BAR_TOP, x + 1, y + BAR_TOP + 14, YELLOW);
        return;
    }
    TDL_FillRectS(x, y + BAR_BOX.y1, x + 1, y + BAR_BOX.y2, RED);
    draw_run_arrow(x, y, r.runstat > 0 ? 1 : -1);
}

static void draw_texts(const KF_REGION& r, int y)
{
    char text[32];
    bar_text(102, y + 84, Frame2TC(r.dtime, 2), FONT_SMALL, WHITE);
    PrintText(text, "%-2d/%-2d", r.ckfnum, r.kfnum);
    TDL_SymbolPS(102, y + 100, COUNT_CELL_PX, text, FONT_NAME, WHITE);
    bar_text(656, y + 88, Frame2TC(r.etime, 3), FONT_SMALL, END_TIME);
    bar_text(656, y + 101, Frame2TC(r.duration, 3), FONT_SMALL, ORANGE);
}

static bool is_empty_row(const KF_REGION& r)
{
    return r.code >= KF_NO_CODE;
}

static int check_row(const KF_REGION* region, int row)
{
    return !region ? -1 : row < 0 || row >= TL_ROWS ? -2 : 0;
}

int tl_drawtl(const KF_REGION* region, int row)
{
    if (const int refused = check_row(region, row))
        return refused;
    const int y = row * ROW_PX;
    const int top = y + BAR_BOX.y1;
    TDL_FillRectS(BAR_BOX.x1, top, BAR_BOX.x2, y + BAR_BOX.y2, BLACK);
    if (!is_empty_row(*region)) {
        draw_texts(*region, y);
        draw_delay(*region, y);
        draw_keyframes(*region, y);
        draw_cursor(*region, y);
    }
    TDL_LineVS(AXIS_X, top, BAR_PX, BOUNDARY);
    TDL_LineVS(AXIS_X + AXIS_PX, top, BAR_PX, BOUNDARY);
    TDL_UpdateRect(BAR_BOX.x1, top, BAR_BOX.x2, y + BAR_BOX.y2);
    return 0;
}

// --- The block with the name ---

static void draw_name(const KF_REGION& r, int y)
{
    const unsigned colour = r.code == RefRegion ? CYAN : r.selected ? WHITE : NOT_SELECTED;
    char text[32];
    TDL_SymbolWS(10, y + 85, 78, r.name, FONT_NAME, colour);
    PrintText(text, "# %d", r.regnum);
    TDL_SymbolS(20, y + 101, text, FONT_NAME, colour);
    PrintText(text, "%s %s", r.multi ? "M" : " ", r.lock ? "L" : " ");
    TDL_SymbolS(64, y + 101, text, FONT_NAME, colour);
}

int tl_draw(const KF_REGION* region, int row)
{
    if (const int refused = check_row(region, row))
        return refused;
    const int y = row * ROW_PX;
    const Rect box = {NAME_BOX.x1, y + NAME_BOX.y1, NAME_BOX.x2, y + NAME_BOX.y2};
    TDL_FillRectS(box.x1, box.y1, box.x2, box.y2, BLOCK);
    TDL_RectS(box.x1, box.y1, box.x2, box.y2, CELL_FRAME);
    if (!is_empty_row(*region))
        draw_name(*region, y);
    TDL_UpdateRect(box.x1, box.y1, box.x2, box.y2);
    return tl_drawtl(region, row);
}
