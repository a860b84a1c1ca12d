// The routing diagram of the combiner, and front views of the units for the diagram pages.
#include "cap.h"

namespace
{
constexpr Colour BOX = 0x3C5096, TRAIL = 0xFFFFFF, TRAIL_OFF = 0x4D4D4D;
constexpr Colour BODY = 0x2E3336, EDGE_LIGHT = 0xBEBEBE, EDGE_DARK = 0x1E1E1E;

// --- Combiner: four channels at the left, a trail behind each, one output at the right ---

constexpr int TILE_W = 40, TILE_H = 24;

void box(const Canvas& cv, double x, double y, double w, double h)
{
    CV_Fill(cv, x, y, w, h, BOX);
    CV_Fill(cv, x, y, w, 1, 0x6A7FC4);
    CV_Fill(cv, x, y + h - 1, w, 1, 0x25335F);
}

void trail(const Canvas& cv, std::initializer_list<Point> points, Colour colour = TRAIL)
{
    CV_Lines(cv, points);
    CV_Stroke(cv, 2, colour, 1, CAIRO_LINE_CAP_BUTT);
}

// Whole by itself; the other tiles lie on it: channel i at (0, 32 i), trail i at (60, 32 i), output
// at (160, 48).
void draw_combiner_base(const Canvas& cv, const State&, int)
{
    constexpr int PITCH = 32, BUS_X = 130, OUT_X = 160, MIDDLE_Y = 60;
    for (int i = 0; i < 4; i++) {
        const double y = i * PITCH + TILE_H / 2;
        trail(cv, {{TILE_W, y}, {BUS_X + 1, y}});
        box(cv, 0, i * PITCH, TILE_W, TILE_H);
    }
    trail(cv, {{BUS_X, TILE_H / 2}, {BUS_X, 3 * PITCH + TILE_H / 2}});
    trail(cv, {{BUS_X, MIDDLE_Y}, {OUT_X - 8, MIDDLE_Y}});
    CV_Arrow(cv, OUT_X - 7, MIDDLE_Y, 1, 0, 6, TRAIL);
    box(cv, OUT_X, MIDDLE_Y - TILE_H / 2, TILE_W, TILE_H);
}

enum TrailKind { TRAIL_NONE, TRAIL_POST, TRAIL_PRE };

void draw_combiner_trail(const Canvas& cv, const State&, int kind)
{
    const double y = TILE_H / 2;
    if (kind == TRAIL_NONE) {
        trail(cv, {{0, y}, {TILE_W, y}}, TRAIL_OFF);
        return;
    }
    trail(cv, {{0, y}, {TILE_W, y}});
    if (kind == TRAIL_POST) {
        box(cv, 4, 4, 16, 16);
        CV_Arrow(cv, 32, y, 1, 0, 6, TRAIL);
    } else {
        CV_Arrow(cv, 10, y, 1, 0, 6, TRAIL);
        box(cv, 20, 4, 16, 16);
    }
}

void draw_combiner_channel(const Canvas& cv, const State&, int)
{
    box(cv, 0, 0, TILE_W, TILE_H); // the program writes the channel's number on it
}

void draw_combiner_out(const Canvas& cv, const State&, int)
{
    box(cv, 0, 0, TILE_W, TILE_H);
    trail(cv, {{8, 12}, {22, 12}});
    CV_Arrow(cv, 26, 12, 1, 0, 7, TRAIL);
}

// --- Units, seen from the front: parts are blocks of equal keys or plates ---

struct Part {
    int x, y;
    int columns, rows;
    int w, h;
    int pitch_x, pitch_y;
    Colour colour;
};

struct Unit {
    int x, y, w, h; // the body
    std::span<const Part> parts;
};

constexpr Colour KEY = 0x4C555A, KEY_DARK = 0x1A1D1F, LIT = 0xD3ECEE, ORANGE = 0xE48B1B,
                 GLASS = 0x0E3A46, PLATE = 0x8C9498, LAMP = 0x00FF00;

constexpr Part MENU_PARTS[] = {
    // the touch screen with its knobs
    {20, 10, 1, 1, 98, 60, 0, 0, KEY_DARK},  {22, 12, 1, 1, 94, 56, 0, 0, GLASS},
    {28, 18, 4, 3, 12, 8, 16, 12, KEY},      {28, 54, 4, 1, 12, 8, 16, 0, 0x25444E},
    {100, 18, 1, 4, 12, 8, 0, 12, 0x006464}, {126, 16, 1, 5, 8, 8, 0, 11, PLATE},
};
constexpr Part SWITCHER_PARTS[] = {
    // the processor: cards behind a grille, a name plate, lamps
    {12, 12, 22, 1, 4, 40, 6, 0, KEY_DARK},
    {12, 58, 1, 1, 40, 8, 0, 0, PLATE},
    {128, 60, 4, 1, 4, 4, 6, 0, LAMP},
};
constexpr Part PANEL_4K_PARTS[] = {
    // a panel of two banks with a fader
    {12, 10, 1, 1, 34, 7, 0, 0, PLATE},  {12, 22, 16, 2, 5, 6, 7, 9, KEY},
    {12, 22, 2, 1, 5, 6, 49, 0, ORANGE}, {12, 44, 16, 2, 5, 6, 7, 9, KEY},
    {40, 44, 1, 2, 5, 6, 0, 9, LIT},     {130, 22, 1, 1, 4, 36, 0, 0, KEY_DARK},
    {126, 36, 1, 1, 12, 6, 0, 0, PLATE},
};
constexpr Part PANEL_5K_PARTS[] = {
    // the larger one: four banks, two faders
    {10, 8, 1, 1, 34, 6, 0, 0, PLATE},      {10, 18, 18, 4, 4, 5, 6, 14, KEY},
    {10, 25, 18, 4, 4, 3, 6, 14, 0x3A4246}, {34, 18, 1, 4, 4, 5, 0, 14, LIT},
    {58, 32, 1, 1, 4, 5, 0, 0, ORANGE},     {126, 18, 2, 1, 4, 44, 14, 0, KEY_DARK},
    {122, 28, 1, 1, 12, 6, 0, 0, PLATE},    {136, 44, 1, 1, 12, 6, 0, 0, PLATE},
};
constexpr Part EFFECTS_PARTS[] = {
    // effects unit above, its control unit below
    {12, 10, 30, 1, 2, 18, 4, 0, KEY_DARK},  {136, 16, 2, 1, 4, 4, 6, 0, LAMP},
    {12, 34, 1, 1, 136, 2, 0, 0, EDGE_DARK}, {12, 44, 1, 1, 36, 8, 0, 0, PLATE},
    {60, 44, 8, 2, 8, 8, 11, 12, KEY},       {60, 44, 2, 1, 8, 8, 33, 0, LIT},
};

constexpr Unit UNITS[] = {
    {8, 2, 144, 76, MENU_PARTS},     {2, 2, 156, 72, SWITCHER_PARTS},
    {2, 2, 156, 70, PANEL_4K_PARTS}, {0, 0, 160, 78, PANEL_5K_PARTS},
    {2, 2, 156, 72, EFFECTS_PARTS},
};
enum UnitNumber { UNIT_MENU, UNIT_SWITCHER, UNIT_PANEL_4K, UNIT_PANEL_5K, UNIT_EFFECTS };

void draw_part(const Canvas& cv, const Part& part)
{
    for (int row = 0; row < part.rows; row++)
        for (int column = 0; column < part.columns; column++) {
            const int x = part.x + column * part.pitch_x, y = part.y + row * part.pitch_y;
            CV_Fill(cv, x, y, part.w, part.h, part.colour);
            if (part.h > 3 && part.w > 3)
                CV_Fill(cv, x, y, part.w, 1, 0xFFFFFF, 0.22); // light from above
        }
}

void draw_unit(const Canvas& cv, const State&, int number)
{
    const Unit& unit = UNITS[number];
    CV_Fill(cv, unit.x, unit.y, unit.w, unit.h, EDGE_LIGHT);
    CV_Fill(cv, unit.x + 1, unit.y + 1, unit.w - 1, unit.h - 1, EDGE_DARK);
    CV_Fill(cv, unit.x + 1, unit.y + 1, unit.w - 2, unit.h - 2, BODY);
    for (const Part& part : unit.parts)
        draw_part(cv, part);
}

// clang-format off
constexpr Family FAMILIES[] = {
    {"Combiner_Base",      200, 120, ON_BLACK, draw_combiner_base, STATE_SINGLE},
    {"Combiner_Trail_Off",  40,  24, ON_BLACK, draw_combiner_trail, STATE_SINGLE, TRAIL_NONE},
    {"Combiner_Trail_Post", 40,  24, ON_BLACK, draw_combiner_trail, STATE_SINGLE, TRAIL_POST},
    {"Combiner_Trail_Pre",  40,  24, ON_BLACK, draw_combiner_trail, STATE_SINGLE, TRAIL_PRE},
    {"Combiner_Chx1",       40,  24, ON_BLACK, draw_combiner_channel, STATE_SINGLE},
    {"Combiner_Chx2",       40,  24, ON_BLACK, draw_combiner_channel, STATE_SINGLE},
    {"Combiner_Chx3",       40,  24, ON_BLACK, draw_combiner_channel, STATE_SINGLE},
    {"Combiner_Chx4",       40,  24, ON_BLACK, draw_combiner_channel, STATE_SINGLE},
    {"Combiner_Out",        40,  24, ON_BLACK, draw_combiner_out, STATE_SINGLE},
    {"menu",               160,  80, ON_BLACK, draw_unit, STATE_SINGLE, UNIT_MENU},
    {"swr",                160,  80, ON_BLACK, draw_unit, STATE_SINGLE, UNIT_SWITCHER},
    {"pcx4k",              160,  80, ON_BLACK, draw_unit, STATE_SINGLE, UNIT_PANEL_4K},
    {"pcx5k",              160,  80, ON_BLACK, draw_unit, STATE_SINGLE, UNIT_PANEL_5K},
    {"fxu_dcu",            160,  80, ON_BLACK, draw_unit, STATE_SINGLE, UNIT_EFFECTS},
};
// clang-format on
} // namespace

std::span<const Family> DEVICE_Families()
{
    return FAMILIES;
}
