// Small marks that lie on keys, lists and cells. A mark is opaque: its ground is the face that it
// lies on.
#include "cap.h"

namespace
{
enum Face_ground : Colour {
    ON_STEEL = 0x35405F,
    ON_PETROL = 0x25444E,
    ON_GRAPHITE = 0x3A4246,
    ON_ARMED = 0xF0CB88, // the amber face of the armed lower-left key
    ON_LIST = 0x005A6E,
    ON_LIST_SELECTED = 0x00C8F0,
};

// --- Transport ---

void icon_rewind(const Canvas& cv, const State&, int)
{
    for (double x : {4.0, 12.5}) {
        CV_Polygon(cv, {{x + 8.5, 0.5}, {x, 6.5}, {x + 8.5, 12.5}});
        CV_Paint(cv, 0xFFFFFF);
    }
}

void icon_play(const Canvas& cv, const State&, int)
{
    CV_Polygon(cv, {{0, 0.5}, {9, 6.5}, {0, 12.5}});
    CV_Paint(cv, 0xFFFFFF);
}

void icon_fast_forward(const Canvas& cv, const State&, int)
{
    for (double x : {0.0, 8.5}) {
        CV_Polygon(cv, {{x, 0.5}, {x + 8.5, 6.5}, {x, 12.5}});
        CV_Paint(cv, 0xFFFFFF);
    }
}

void icon_stop(const Canvas& cv, const State&, int)
{
    CV_Fill(cv, 2, 0, 11, 11, 0xFFFFFF);
}

void icon_record(const Canvas& cv, const State&, int)
{
    CV_Circle(cv, 7.5, 6.5, 5.5);
    CV_Paint(cv, 0xFF3030);
}

void icon_record_disabled(const Canvas& cv, const State&, int)
{
    CV_Circle(cv, 7.5, 6.5, 4.8);
    CV_Stroke(cv, 1.6, 0x5A6166);
}

// --- Folders ---

void icon_folder(const Canvas& cv, const State&, int)
{
    CV_RoundRect(cv, 0, 0, 8, 6, 1);
    CV_Paint(cv, 0xC87820);
    CV_RoundRect(cv, 0, 3, 18, 11, 1.5);
    CV_Paint(cv, 0xE9A84F);
}

void list_folder(const Canvas& cv, const State& st, int)
{
    CV_RoundRect(cv, 1, 1, 9, 7, 1);
    CV_Paint(cv, st.on ? 0x8A4E10 : 0xC87820);
    CV_RoundRect(cv, 1, 4, 18, 11, 1.5);
    CV_Paint(cv, st.on ? 0xF7C57C : 0xE9A84F);
    if (st.on) { // orange alone is weak on the light row
        CV_RoundRect(cv, 1.5, 4.5, 17, 10, 1.5);
        CV_Stroke(cv, 1, 0x5E3608);
    }
}

// --- Padlocks: the shackle tells the state ---

struct Padlock {
    double x, y, w, h;    // body
    double shackle, line; // radius and stroke
    double hole;          // radius of the keyhole
};

void padlock(const Canvas& cv, const Padlock& p, bool is_closed, Colour body, Colour hole)
{
    const double middle = p.x + p.w / 2, lift = is_closed ? 3.5 : 4.5, top = p.y - lift;
    cairo_new_path(cv.cr);
    cairo_move_to(cv.cr, middle - p.shackle, p.y + 0.5);
    cairo_line_to(cv.cr, middle - p.shackle, top);
    cairo_arc(cv.cr, middle, top, p.shackle, PI, is_closed ? 2 * PI : 2 * PI - 0.5);
    if (is_closed)
        cairo_line_to(cv.cr, middle + p.shackle, p.y + 0.5);
    CV_Stroke(cv, p.line, body);
    CV_RoundRect(cv, p.x, p.y, p.w, p.h, 2.5);
    CV_Paint(cv, body);
    const double hole_y = p.y + p.h * 0.41;
    CV_Circle(cv, middle, hole_y, p.hole);
    CV_Paint(cv, hole);
    CV_Fill(cv, middle - p.hole / 2, hole_y, p.hole, p.hole * 2.5, hole);
}

enum LockHue { ORANGE_LOCK, DARK_LOCK };

void draw_lock(const Canvas& cv, const State& st, int hue)
{
    constexpr Colour body[] = {0xE48B1B, 0x1A1A1A}, hole[] = {0x1A1A1A, 0xFFFFFF};
    padlock(cv, {2.5, 12.5, 19, 13.5, 6, 3, 2}, st.on, body[hue], hole[hue]);
}

void draw_small_lock(const Canvas& cv, const State& st, int)
{
    padlock(cv, {1.5, 8, 13, 9, 3.8, 2, 1.2}, st.on, 0xE48B1B, 0x1A1A1A);
}

// --- Colour chips: a rim, and a diagonal when there is no colour ---

constexpr int NO_COLOUR = -1;

void draw_colour_chip(const Canvas& cv, const State&, int colour)
{
    CV_Fill(cv, 0, 0, cv.width, cv.height, 0x1E1E1E);
    CV_Fill(cv, 1, 1, cv.width - 2, cv.height - 2, colour == NO_COLOUR ? 0x000000 : Colour(colour));
    if (colour == NO_COLOUR) {
        CV_Lines(cv, {{2, cv.height - 2.0}, {cv.width - 2.0, 2}});
        CV_Stroke(cv, 1.5, 0xB4B4B4);
    }
}

// --- Others ---

void draw_triangle(const Canvas& cv, const State&, int direction)
{
    CV_Arrow(cv, cv.width / 2.0 - direction, cv.height / 2.0, direction, 0, 9, 0xFFFFFF);
}

void draw_round_lamp(const Canvas& cv, const State& st, int)
{
    CV_Circle(cv, 10, 10, 7.5);
    if (st.on)
        CV_Paint(cv, 0x00797F);
    CV_Circle(cv, 10, 10, 7.5);
    CV_Stroke(cv, 2, st.on ? 0x00DDD4 : 0x8A9498);
}

void draw_left_arrow(const Canvas& cv, const State&, int)
{
    CV_Fill(cv, 16, 10, 20, 8, 0xFFFFFF);
    CV_Polygon(cv, {{4, 14}, {18, 2}, {18, 26}});
    CV_Paint(cv, 0xFFFFFF);
}

constexpr State STATES_LOCK[] = {{.suffix = "_On_Button", .on = 1}, {.suffix = "_Off_Button"}};
constexpr State STATES_LOCK_REVERSED[] = {{.suffix = "_On_Button_Rev", .on = 1},
                                          {.suffix = "_Off_Button_Rev"}};
constexpr State STATES_SMALL_LOCK[] = {{.suffix = "_on_s", .on = 1}, {.suffix = "_off_s"}};
constexpr State STATES_SELECTED[] = {{.suffix = "_sel", .on = 1}};

// clang-format off
constexpr Family FAMILIES[] = {
    {"icon_rew",     25, 13, ON_STEEL, icon_rewind, STATE_SINGLE},
    {"icon_play",     9, 13, ON_STEEL, icon_play, STATE_SINGLE},
    {"icon_ff",      17, 13, ON_STEEL, icon_fast_forward, STATE_SINGLE},
    {"icon_stop",    15, 12, ON_STEEL, icon_stop, STATE_SINGLE},
    {"icon_record",  15, 13, ON_STEEL, icon_record, STATE_SINGLE},
    {"icon_record2", 15, 13, ON_STEEL, icon_record_disabled, STATE_SINGLE},
    {"icon_folder",  18, 14, ON_PETROL, icon_folder, STATE_SINGLE},
    {"folder_list",  20, 16, ON_LIST, list_folder, STATE_SINGLE},
    {"folder_list",  20, 16, ON_LIST_SELECTED, list_folder, STATES_SELECTED},
    {"Lock",         24, 28, ON_GRAPHITE, draw_lock, STATES_LOCK, ORANGE_LOCK},
    {"Lock",         24, 28, ON_ARMED, draw_lock, STATES_LOCK_REVERSED, DARK_LOCK},
    {"lock",         24, 28, ON_GRAPHITE, draw_lock, STATES_ON_OFF, ORANGE_LOCK},
    {"lock",         16, 18, ON_GRAPHITE, draw_small_lock, STATES_SMALL_LOCK},
    {"FC_r",         24, 16, ON_BLACK, draw_colour_chip, STATE_SINGLE, 0xFF0000},
    {"FC_g",         24, 16, ON_BLACK, draw_colour_chip, STATE_SINGLE, 0x00FF00},
    {"FC_b",         24, 16, ON_BLACK, draw_colour_chip, STATE_SINGLE, 0x0000FF},
    {"FC_c",         24, 16, ON_BLACK, draw_colour_chip, STATE_SINGLE, 0x00FFFF},
    {"FC_m",         24, 16, ON_BLACK, draw_colour_chip, STATE_SINGLE, 0xFF00FF},
    {"FC_y",         24, 16, ON_BLACK, draw_colour_chip, STATE_SINGLE, 0xFFFF00},
    {"FC_w",         24, 16, ON_BLACK, draw_colour_chip, STATE_SINGLE, 0xFFFFFF},
    {"FC_k",         24, 16, ON_BLACK, draw_colour_chip, STATE_SINGLE, 0x000000},
    {"FC_n",         24, 16, ON_BLACK, draw_colour_chip, STATE_SINGLE, NO_COLOUR},
    {"path_left",    24, 24, ON_BLACK, draw_triangle, STATE_SINGLE, -1},
    {"path_right",   24, 24, ON_BLACK, draw_triangle, STATE_SINGLE, 1},
    {"round",        20, 20, ON_BLACK, draw_round_lamp, STATES_ON_OFF},
    {"hidariya",     40, 28, ON_BLACK, draw_left_arrow, STATE_SINGLE},
};
// clang-format on
} // namespace

std::span<const Family> ICONS_Families()
{
    return FAMILIES;
}
