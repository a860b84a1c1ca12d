// Keyframe paths: a line drawing for each kind of movement between two keyframes, plain and on a
// key.
#include "cap.h"
#include <cmath>

namespace
{
constexpr double LINE = 2;

struct Pen { // a drawing 60 x 36 has its corner at (x, y)
    double x, y;
    Colour ink;
};

Point at(const Pen& pen, double x, double y)
{
    return {pen.x + x, pen.y + y};
}

void line(const Canvas& cv, const Pen& pen, Point from, Point to, double alpha = 1)
{
    CV_Lines(cv, {at(pen, from.x, from.y), at(pen, to.x, to.y)});
    CV_Stroke(cv, LINE, pen.ink, alpha);
}

void dot(const Canvas& cv, const Pen& pen, Point where, double radius)
{
    CV_Circle(cv, pen.x + where.x, pen.y + where.y, radius);
    CV_Paint(cv, pen.ink);
}

// --- Crosspoint: a switch between two inputs ---

enum CrosspointPath { XPT_HOLD, XPT_CHANGE };

void draw_crosspoint(const Canvas& cv, const Pen& pen, int kind)
{
    for (double y : {9.0, 27.0}) {
        line(cv, pen, {8, y}, {20, y});
        dot(cv, pen, {21, y}, 2.8);
    }
    line(cv, pen, {40, 18}, {52, 18});
    dot(cv, pen, {39, 18}, 2.8);
    line(cv, pen, {39, 18}, {22, 9}, kind == XPT_HOLD ? 1 : 0.4);
    if (kind == XPT_CHANGE) {
        line(cv, pen, {39, 18}, {22, 27});
        CV_Arrow(cv, pen.x + 27, pen.y + 19, 0, 1, 3.5, pen.ink);
    }
}

// --- Hue: the way round the colour ring ---

enum HuePath { HUE_SHORT, HUE_LONG, HUE_CW, HUE_CCW };

// Slender, so that a small one on a bend still tells its direction.
void arrow_head(const Canvas& cv, const Pen& pen, Point base, double heading)
{
    const double x = pen.x + base.x, y = pen.y + base.y;
    const double dx = std::cos(heading), dy = std::sin(heading);
    CV_Polygon(
        cv, {{x + dx * 8, y + dy * 8}, {x - dy * 4.5, y + dx * 4.5}, {x + dy * 4.5, y - dx * 4.5}});
    CV_Paint(cv, pen.ink);
}

void draw_hue(const Canvas& cv, const Pen& pen, int kind)
{
    constexpr struct {
        double from, to; // in parts of pi, clockwise from the right
        bool is_clockwise;
        bool has_ends; // the way between two hues, not just a sense
    } ways[] = {{-0.5, 0.05, true, true},
                {0.15, 1.5, false, true},
                {-0.35, 1.25, true, false},
                {-0.25, 1.35, false, false}};
    constexpr double RADIUS = 12, CENTRE_X = 30, CENTRE_Y = 18;
    const auto& way = ways[kind];
    const double x = pen.x + CENTRE_X, y = pen.y + CENTRE_Y;
    CV_Circle(cv, x, y, RADIUS);
    CV_Stroke(cv, 1, pen.ink, 0.45);
    CV_Arc(cv, x, y, RADIUS, way.from * PI, way.to * PI);
    CV_Stroke(cv, 2.6, pen.ink, 1, CAIRO_LINE_CAP_BUTT);

    const double end = (way.is_clockwise ? way.to : way.from) * PI;
    arrow_head(cv, pen, {CENTRE_X + RADIUS * std::cos(end), CENTRE_Y + RADIUS * std::sin(end)},
               end + (way.is_clockwise ? 0.5 : -0.5) * PI + (way.is_clockwise ? 0.25 : -0.25));
    if (way.has_ends)
        dot(cv, pen, {CENTRE_X, CENTRE_Y - RADIUS}, 3);
}

// --- Curves over a grid ---

enum CurvePath { CURVE_OFF, CURVE_LINEAR, CURVE_S, CURVE_SPLINE, CURVE_STEP, CURVE_MIXED };

void draw_grid(const Canvas& cv, const Pen& pen)
{
    for (double x : {10.0, 20.0, 30.0, 40.0, 50.0})
        CV_Fill(cv, pen.x + x, pen.y + 4, 1, 29, pen.ink, 0.2);
    for (double y : {4.0, 18.0, 32.0})
        CV_Fill(cv, pen.x + 10, pen.y + y, 41, 1, pen.ink, 0.2);
}

void bend(const Canvas& cv, const Pen& pen, Point from, Point handle1, Point handle2, Point to)
{
    const Point a = at(pen, from.x, from.y), b = at(pen, handle1.x, handle1.y);
    const Point c = at(pen, handle2.x, handle2.y), d = at(pen, to.x, to.y);
    cairo_new_path(cv.cr);
    cairo_move_to(cv.cr, a.x, a.y);
    cairo_curve_to(cv.cr, b.x, b.y, c.x, c.y, d.x, d.y);
    CV_Stroke(cv, LINE, pen.ink);
}

void draw_curve(const Canvas& cv, const Pen& pen, int kind)
{
    draw_grid(cv, pen);
    switch (kind) {
    case CURVE_OFF: line(cv, pen, {10, 32}, {51, 32}); break;
    case CURVE_LINEAR: line(cv, pen, {10, 32}, {51, 5}); break;
    case CURVE_S: bend(cv, pen, {10, 32}, {34, 32}, {27, 5}, {51, 5}); break;
    case CURVE_SPLINE:
        bend(cv, pen, {10, 28}, {15, 12}, {22, 4}, {30, 14});
        bend(cv, pen, {30, 14}, {37, 24}, {43, 30}, {51, 9});
        for (Point p : {Point{10, 28}, Point{30, 14}, Point{51, 9}})
            dot(cv, pen, p, 2.4);
        break;
    case CURVE_STEP:
        CV_Lines(cv, {at(pen, 10, 31), at(pen, 24, 31), at(pen, 24, 18), at(pen, 38, 18),
                      at(pen, 38, 6), at(pen, 51, 6)});
        CV_Stroke(cv, LINE, pen.ink);
        break;
    default: // mixed: a line and a step share the grid
        line(cv, pen, {10, 32}, {30, 18});
        CV_Lines(cv, {at(pen, 30, 18), at(pen, 41, 18), at(pen, 41, 6), at(pen, 51, 6)});
        CV_Stroke(cv, LINE, pen.ink);
    }
}

void draw_none(const Canvas& cv, const Pen& pen, int)
{
    line(cv, pen, {22, 18}, {38, 18});
}

// --- The same drawing in two frames ---

void (*const DRAWINGS[])(const Canvas&, const Pen&, int) = {draw_crosspoint, draw_hue, draw_curve,
                                                            draw_none};
enum Drawing { CROSSPOINT, HUE, CURVE, NONE };

// A family's variant holds the drawing and which of its kinds.
constexpr int KINDS = 16;
constexpr int Variant(Drawing drawing, int kind = 0)
{
    return drawing * KINDS + kind;
}

void draw_path(const Canvas& cv, const Pen& pen, int variant)
{
    DRAWINGS[variant / KINDS](cv, pen, variant % KINDS);
}

void draw_plain(const Canvas& cv, const State&, int variant)
{
    CV_RoundRect(cv, 0, 0, cv.width, cv.height, 3);
    CV_Paint(cv, 0x0E1A1E);
    draw_path(cv, {0, 0, 0xFFFFFF}, variant);
}

void draw_key(const Canvas& cv, const State& st, int variant)
{
    CAP_Draw(cv, st.on ? ICE : GRAPHITE, 0);
    draw_path(cv, {2, 2, CAP_Ink(st)}, variant);
}

// clang-format off
constexpr Family FAMILIES[] = {
    {"PATH_xpt_hold",     60, 36, ON_BLACK, draw_plain, STATE_SINGLE, Variant(CROSSPOINT, XPT_HOLD)},
    {"PATH_xpt_change",   60, 36, ON_BLACK, draw_plain, STATE_SINGLE, Variant(CROSSPOINT, XPT_CHANGE)},
    {"PATH_hue_short",    60, 36, ON_BLACK, draw_plain, STATE_SINGLE, Variant(HUE, HUE_SHORT)},
    {"PATH_hue_long",     60, 36, ON_BLACK, draw_plain, STATE_SINGLE, Variant(HUE, HUE_LONG)},
    {"PATH_hue_cw",       60, 36, ON_BLACK, draw_plain, STATE_SINGLE, Variant(HUE, HUE_CW)},
    {"PATH_hue_ccw",      60, 36, ON_BLACK, draw_plain, STATE_SINGLE, Variant(HUE, HUE_CCW)},
    {"PATH_curve_off",    60, 36, ON_BLACK, draw_plain, STATE_SINGLE, Variant(CURVE, CURVE_OFF)},
    {"PATH_curve_linear", 60, 36, ON_BLACK, draw_plain, STATE_SINGLE, Variant(CURVE, CURVE_LINEAR)},
    {"PATH_curve_s",      60, 36, ON_BLACK, draw_plain, STATE_SINGLE, Variant(CURVE, CURVE_S)},
    {"PATH_curve_spline", 60, 36, ON_BLACK, draw_plain, STATE_SINGLE, Variant(CURVE, CURVE_SPLINE)},
    {"PATH_curve_step",   60, 36, ON_BLACK, draw_plain, STATE_SINGLE, Variant(CURVE, CURVE_STEP)},
    {"PATH_none",         60, 36, ON_BLACK, draw_plain, STATE_SINGLE, Variant(NONE)},
    {"PATH_mixed",        60, 36, ON_BLACK, draw_plain, STATE_SINGLE, Variant(CURVE, CURVE_MIXED)},
    {"PATHSEL_xpt_hold",     64, 44, ON_WINDOW, draw_key, STATES_ON_OFF, Variant(CROSSPOINT, XPT_HOLD)},
    {"PATHSEL_xpt_change",   64, 44, ON_WINDOW, draw_key, STATES_ON_OFF, Variant(CROSSPOINT, XPT_CHANGE)},
    {"PATHSEL_hue_short",    64, 44, ON_WINDOW, draw_key, STATES_ON_OFF, Variant(HUE, HUE_SHORT)},
    {"PATHSEL_hue_long",     64, 44, ON_WINDOW, draw_key, STATES_ON_OFF, Variant(HUE, HUE_LONG)},
    {"PATHSEL_hue_cw",       64, 44, ON_WINDOW, draw_key, STATES_ON_OFF, Variant(HUE, HUE_CW)},
    {"PATHSEL_hue_ccw",      64, 44, ON_WINDOW, draw_key, STATES_ON_OFF, Variant(HUE, HUE_CCW)},
    {"PATHSEL_curve_off",    64, 44, ON_WINDOW, draw_key, STATES_ON_OFF, Variant(CURVE, CURVE_OFF)},
    {"PATHSEL_curve_linear", 64, 44, ON_WINDOW, draw_key, STATES_ON_OFF, Variant(CURVE, CURVE_LINEAR)},
    {"PATHSEL_curve_s",      64, 44, ON_WINDOW, draw_key, STATES_ON_OFF, Variant(CURVE, CURVE_S)},
    {"PATHSEL_curve_spline", 64, 44, ON_WINDOW, draw_key, STATES_ON_OFF, Variant(CURVE, CURVE_SPLINE)},
    {"PATHSEL_curve_step",   64, 44, ON_WINDOW, draw_key, STATES_ON_OFF, Variant(CURVE, CURVE_STEP)},
    {"PATHSEL_none",         64, 44, ON_WINDOW, draw_key, STATES_ON_OFF, Variant(NONE)},
    {"PATHSEL_mixed",        64, 44, ON_WINDOW, draw_key, STATES_ON_OFF, Variant(CURVE, CURVE_MIXED)},
};
// clang-format on
} // namespace

std::span<const Family> PATHS_Families()
{
    return FAMILIES;
}
