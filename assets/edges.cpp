// Pictures of status cells: the edges of a key shown on a letter, and the wipe directions.
#include "cap.h"

namespace
{
constexpr Colour SCREEN = 0x0E3A46, LETTER = 0xDDF3F5;
constexpr Colour FIRST = 0xE48B1B,
                 SECOND = 0x00DDD4; // the colours of an edge; the second of a dual one
constexpr double LETTER_X = 14, LETTER_Y = 11;

enum EdgeType {
    EDGE_NORMAL,
    EDGE_BORDER,
    EDGE_DROP_BORDER,
    EDGE_SHADOW,
    EDGE_OUTLINE,
    EDGE_EMBOSS,
    EDGE_CUSHION,
    EDGE_SEPARATE,
    EDGE_FINE,
};

void letter_path(const Canvas& cv, double shift = 0)
{
    const double x = LETTER_X + shift, y = LETTER_Y + shift;
    CV_Polygon(cv, {{x + 4, y + 26},
                    {x + 13, y},
                    {x + 19, y},
                    {x + 28, y + 26},
                    {x + 22, y + 26},
                    {x + 20, y + 20},
                    {x + 12, y + 20},
                    {x + 10, y + 26}});
}

void fill_letter(const Canvas& cv, Colour colour, double shift = 0, double alpha = 1)
{
    letter_path(cv, shift);
    CV_Paint(cv, colour, alpha);
}

// Letter and a rim of half the line width round it, as one body.
void fat_letter(const Canvas& cv, Colour colour, double line_width, double shift = 0,
                double alpha = 1)
{
    if (line_width > 0) {
        letter_path(cv, shift);
        CV_Stroke(cv, line_width, colour, alpha);
    }
    fill_letter(cv, colour, shift, alpha);
}

void cushion(const Canvas& cv, Colour colour, double grow, double alpha)
{
    CV_RoundRect(cv, 13 - grow, 8 - grow, 34 + 2 * grow, 32 + 2 * grow, 5 + grow);
    CV_Paint(cv, colour, alpha);
}

// What lies under the letter's face. spread widens it by as many pixels all round.
void draw_rim(const Canvas& cv, int type, Colour colour, double spread, double alpha)
{
    const double wide = 2 * spread;
    switch (type) {
    case EDGE_NORMAL:
        if (spread > 0)
            fat_letter(cv, LETTER, wide, 0, alpha);
        break;
    case EDGE_BORDER: fat_letter(cv, colour, 6 + wide, 0, alpha); break;
    case EDGE_DROP_BORDER:
        fat_letter(cv, 0x000000, 4 + wide, 4, alpha);
        fat_letter(cv, colour, 5 + wide, 0, alpha);
        break;
    case EDGE_SHADOW: fat_letter(cv, colour == FIRST ? 0x000000 : colour, wide, 4, alpha); break;
    case EDGE_OUTLINE:
        letter_path(cv);
        CV_Stroke(cv, 2 + wide, colour == FIRST ? LETTER : colour, alpha);
        break;
    case EDGE_EMBOSS:
        fat_letter(cv, 0x000000, wide, 2, alpha);
        fat_letter(cv, colour == FIRST ? 0xFFFFFF : colour, wide, -2, alpha);
        break;
    case EDGE_CUSHION: cushion(cv, colour, spread, alpha); break;
    case EDGE_SEPARATE:
        fat_letter(cv, colour, 9 + wide, 0, alpha);
        fat_letter(cv, SCREEN, 4.5, 0, 1);
        break;
    default: fat_letter(cv, colour, 2.4 + wide, 0, alpha);
    }
}

void draw_face(const Canvas& cv, int type)
{
    if (type == EDGE_EMBOSS)
        fill_letter(cv, 0x7FB3BD);
    else if (type != EDGE_OUTLINE)
        fill_letter(cv, LETTER);
}

void draw_screen(const Canvas& cv, Colour colour)
{
    CV_Fill(cv, 2, 3, 56, 42, colour);
}

void clip_to_screen(const Canvas& cv, double from_x = 2)
{
    cairo_new_path(cv.cr);
    cairo_rectangle(cv.cr, from_x, 3, 58 - from_x, 42);
    CV_Clip(cv);
}

enum EdgeFinish { FINISH_HARD, FINISH_SOFT, FINISH_DUAL };

void draw_soft_rim(const Canvas& cv, int type)
{
    constexpr struct {
        double spread, alpha;
    } layers[] = {{3.2, 0.16}, {2.3, 0.22}, {1.4, 0.3}, {0.6, 0.4}};
    for (const auto& layer : layers)
        draw_rim(cv, type, FIRST, layer.spread, layer.alpha);
    if (type != EDGE_NORMAL && type != EDGE_SHADOW)
        draw_rim(cv, type, FIRST, -0.8, 0.7);
}

void draw_edge(const Canvas& cv, const State& st, int type)
{
    draw_screen(cv, SCREEN);
    clip_to_screen(cv);
    if (st.on == FINISH_SOFT)
        draw_soft_rim(cv, type);
    else
        draw_rim(cv, type, FIRST, 0, 1);
    draw_face(cv, type);
    CV_EndClip(cv);
    if (st.on == FINISH_DUAL) { // the right half in the second colour
        clip_to_screen(cv, 30);
        draw_screen(cv, SCREEN);
        draw_rim(cv, type, SECOND, 0, 1);
        draw_face(cv, type);
        if (type == EDGE_NORMAL)
            fill_letter(cv, SECOND);
        CV_EndClip(cv);
    }
}

void draw_direction(const Canvas& cv, const State&, int direction)
{
    draw_screen(cv, 0x12404C);
    CV_Fill(cv, direction > 0 ? 2 : 30, 3, 28, 42, LETTER);
    CV_Lines(cv, {{30.0 - 11 * direction, 24}, {30.0 + 4 * direction, 24}});
    CV_Stroke(cv, 4, FIRST);
    CV_Arrow(cv, 30 + 7 * direction, 24, direction, 0, 7, FIRST);
}

constexpr State STATES_FINISH[] = {
    {.suffix = ""}, {.suffix = "_soft", .on = FINISH_SOFT}, {.suffix = "_dual", .on = FINISH_DUAL}};

// clang-format off
constexpr Family FAMILIES[] = {
    {"Edge_Normal",      60, 48, ON_BLACK, draw_edge, STATES_FINISH, EDGE_NORMAL},
    {"Edge_Border",      60, 48, ON_BLACK, draw_edge, STATES_FINISH, EDGE_BORDER},
    {"Edge_Drop_border", 60, 48, ON_BLACK, draw_edge, STATES_FINISH, EDGE_DROP_BORDER},
    {"Edge_Shadow",      60, 48, ON_BLACK, draw_edge, STATES_FINISH, EDGE_SHADOW},
    {"Edge_Outline",     60, 48, ON_BLACK, draw_edge, STATES_FINISH, EDGE_OUTLINE},
    {"Edge_Emboss",      60, 48, ON_BLACK, draw_edge, STATES_FINISH, EDGE_EMBOSS},
    {"Edge_Zabton",      60, 48, ON_BLACK, draw_edge, STATES_FINISH, EDGE_CUSHION},
    {"Edge_Separate",    60, 48, ON_BLACK, draw_edge, STATES_FINISH, EDGE_SEPARATE},
    {"Edge_Fine",        60, 48, ON_BLACK, draw_edge, STATES_FINISH, EDGE_FINE},
    {"wipe_normal",      60, 48, ON_BLACK, draw_direction, STATE_SINGLE, 1},
    {"wipe_reverse",     60, 48, ON_BLACK, draw_direction, STATE_SINGLE, -1},
};
// clang-format on
} // namespace

std::span<const Family> EDGES_Families()
{
    return FAMILIES;
}
