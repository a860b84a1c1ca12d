// The effects from number 1001 on: whole pictures that slide, turn or fold. The last three digits
// say the move, the thousands the number of channels that it takes.
#include "wipes.h"
#include <cmath>

namespace
{
constexpr double X0 = WIPE_SCREEN_X, Y0 = WIPE_SCREEN_Y, W = WIPE_SCREEN_W, H = WIPE_SCREEN_H;
constexpr double MIDDLE_X = X0 + W / 2, MIDDLE_Y = Y0 + H / 2;
constexpr Colour ORANGE = 0xE48B1B, CYAN = 0x00FFFF, PLATE = 0x00222B;
constexpr Colour SEAM = 0x6FA0A6;      // rim of a light picture, and its side in the shade
constexpr Colour DEPARTING = 0x2A6676; // outgoing picture on its way
constexpr Colour CURL_DARK = 0x5C8A92, ROUND_DARK = 0x4E7A82;

struct Direction {
    int x, y;
};
constexpr Direction DIRECTIONS[] = {{1, 0}, {0, 1},  {-1, 0},  {0, -1},
                                    {1, 1}, {-1, 1}, {-1, -1}, {1, -1}};

void arrow(const Canvas& cv, double x, double y, Direction d)
{
    const double length = std::hypot(d.x, d.y);
    const double dx = d.x / length, dy = d.y / length;
    CV_Lines(cv, {{x - dx * 7, y - dy * 7}, {x + dx * 2, y + dy * 2}});
    CV_Stroke(cv, 3, ORANGE);
    CV_Arrow(cv, x + dx * 4, y + dy * 4, dx, dy, 5, ORANGE);
}

// Fill the current path across (or from the middle of) a shaded body.
void paint_shaded(const Canvas& cv, cairo_pattern_t* gradient, std::initializer_list<Stop> stops)
{
    for (const Stop& s : stops)
        cairo_pattern_add_color_stop_rgb(gradient, s.at, ((s.colour >> 16) & 0xFF) / 255.0,
                                         ((s.colour >> 8) & 0xFF) / 255.0,
                                         (s.colour & 0xFF) / 255.0);
    cairo_set_source(cv.cr, gradient);
    cairo_fill(cv.cr);
    cairo_pattern_destroy(gradient);
}

void slide(const Canvas& cv, int k)
{
    const Direction d = DIRECTIONS[k];
    const double x = X0 - d.x * W * 0.45, y = Y0 - d.y * H * 0.45;
    CV_Fill(cv, x, y, W, H, WIPE_INCOMING);
    cairo_rectangle(cv.cr, x + 0.5, y + 0.5, W - 1, H - 1);
    CV_Stroke(cv, 1, SEAM);
    arrow(cv, MIDDLE_X - d.x * W * 0.16, MIDDLE_Y - d.y * H * 0.16, d);
}

void push(const Canvas& cv, int k)
{
    const Direction d = DIRECTIONS[k];
    CV_Fill(cv, X0 - d.x * W * 0.5, Y0 - d.y * H * 0.5, W, H, WIPE_INCOMING);
    CV_Fill(cv, X0 + d.x * W * 0.5, Y0 + d.y * H * 0.5, W, H, DEPARTING);
    arrow(cv, MIDDLE_X - d.x * W * 0.2, MIDDLE_Y - d.y * H * 0.2, d);
    arrow(cv, MIDDLE_X + d.x * W * 0.25, MIDDLE_Y + d.y * H * 0.25, d);
}

void split(const Canvas& cv, int k)
{
    if (k % 2 == 0) {
        CV_Fill(cv, X0 - W * 0.3, Y0, W / 2, H, WIPE_INCOMING);
        CV_Fill(cv, X0 + W * 0.8, Y0, W / 2, H, WIPE_INCOMING);
        arrow(cv, X0 + 6, MIDDLE_Y, {1, 0});
        arrow(cv, X0 + W - 6, MIDDLE_Y, {-1, 0});
    } else {
        CV_Fill(cv, X0, Y0 - H * 0.3, W, H / 2, WIPE_INCOMING);
        CV_Fill(cv, X0, Y0 + H * 0.8, W, H / 2, WIPE_INCOMING);
    }
}

void strips(const Canvas& cv, int k)
{
    const Direction d = DIRECTIONS[k];
    for (int i = 0; i < 4; i++) {
        const double lag = 0.2 + 0.15 * i;
        CV_Fill(cv, X0 - d.x * W * lag + (d.y ? W / 4 * i : 0),
                Y0 - d.y * H * lag + (d.x ? H / 4 * i : 0), d.x ? W : W / 4, d.x ? H / 4 : H,
                WIPE_INCOMING);
    }
}

// Towards an edge or a corner; the arrow stands 6 before it.
void squeeze(const Canvas& cv, int k)
{
    const Direction d = DIRECTIONS[k];
    const double w = W * (d.x ? 0.55 : 1), h = H * (d.y ? 0.55 : 1);
    const double x = d.x >= 0 ? X0 : X0 + W - w, y = d.y >= 0 ? Y0 : Y0 + H - h;
    CV_Fill(cv, x, y, w, h, WIPE_INCOMING);
    const double arrow_x = d.x > 0 ? w - 6 : d.x < 0 ? 6 : w / 2;
    const double arrow_y = d.y > 0 ? h - 6 : d.y < 0 ? 6 : h / 2;
    arrow(cv, x + arrow_x, y + arrow_y, d);
}

void squeeze_to_middle(const Canvas& cv, int k)
{
    constexpr Point sizes[] = {{0.4, 1}, {1, 0.4}, {0.5, 0.5}, {0.7, 0.4}};
    const double w = sizes[k].x * W, h = sizes[k].y * H;
    CV_Fill(cv, MIDDLE_X - w / 2, MIDDLE_Y - h / 2, w, h, WIPE_INCOMING);
}

void zoom(const Canvas& cv, int)
{
    CV_Fill(cv, MIDDLE_X - W * 0.25, MIDDLE_Y - H * 0.25, W * 0.5, H * 0.5, WIPE_INCOMING);
    for (int i = 4; i < 8; i++)
        arrow(cv, MIDDLE_X + DIRECTIONS[i].x * W * 0.33, MIDDLE_Y + DIRECTIONS[i].y * H * 0.33,
              DIRECTIONS[i]);
}

// From here on the origin is the middle of the screen and x runs along the direction; until
// cairo_restore.
void turn_along(const Canvas& cv, Direction d)
{
    cairo_save(cv.cr);
    cairo_translate(cv.cr, MIDDLE_X, MIDDLE_Y);
    cairo_rotate(cv.cr, std::atan2(d.y, d.x));
}

constexpr double FAR = 80; // beyond the screen on every side

void page_turn(const Canvas& cv, int k)
{
    CV_Fill(cv, X0, Y0, W, H, WIPE_INCOMING);
    turn_along(cv, DIRECTIONS[k % 8]);
    CV_Fill(cv, -FAR, -FAR, FAR - 2, 2 * FAR, WIPE_OUTGOING);
    cairo_rectangle(cv.cr, -2, -FAR, 14, 2 * FAR);
    paint_shaded(cv, cairo_pattern_create_linear(-2, 0, 14, 0),
                 {{0, 0x6F9CA3}, {0.35, 0xFFFFFF}, {1, CURL_DARK}});
    CV_Fill(cv, 12, -FAR, 3, 2 * FAR, 0x000000, 0.25);
    cairo_restore(cv.cr);
}

void roll(const Canvas& cv, int k)
{
    CV_Fill(cv, X0, Y0, W, H, WIPE_INCOMING);
    turn_along(cv, DIRECTIONS[k % 8]);
    CV_Fill(cv, -FAR, -FAR, FAR - 6, 2 * FAR, WIPE_OUTGOING);
    cairo_rectangle(cv.cr, -8, -FAR, 16, 2 * FAR);
    paint_shaded(cv, cairo_pattern_create_linear(-8, 0, 8, 0),
                 {{0, ROUND_DARK}, {0.3, 0xFFFFFF}, {0.6, 0x9FC4C9}, {1, 0x335E66}});
    cairo_restore(cv.cr);
}

void flip(const Canvas& cv, int k)
{
    const double depth = 0.35 + 0.08 * (k % 4), x = MIDDLE_X, y = MIDDLE_Y;
    if (k < 4) {
        const double w = W * depth * 0.5;
        CV_Polygon(cv, {{x - w, y - H * 0.32},
                        {x + w, y - H * 0.5},
                        {x + w, y + H * 0.5},
                        {x - w, y + H * 0.32}});
    } else {
        const double h = H * depth * 0.5;
        CV_Polygon(cv, {{x - W * 0.32, y - h},
                        {x + W * 0.32, y - h},
                        {x + W * 0.48, y + h},
                        {x - W * 0.48, y + h}});
    }
    CV_Paint(cv, WIPE_INCOMING);
}

void spin(const Canvas& cv, int k)
{
    cairo_save(cv.cr);
    cairo_translate(cv.cr, MIDDLE_X, MIDDLE_Y);
    cairo_rotate(cv.cr, (k % 2 == 0 ? 25 : -25) * PI / 180);
    cairo_scale(cv.cr, 0.62, 0.62);
    CV_Fill(cv, -W / 2, -H / 2, W, H, WIPE_INCOMING);
    cairo_restore(cv.cr);
    CV_Arc(cv, MIDDLE_X, MIDDLE_Y, 17, -1.2, 0.6);
    CV_Stroke(cv, 2.5, ORANGE);
    CV_Arrow(cv, MIDDLE_X + 17 * std::cos(0.75), MIDDLE_Y + 17 * std::sin(0.75), -0.6, 0.8, 5,
             ORANGE);
}

void round_body(const Canvas& cv, int k)
{
    if (k % 2 == 0) {
        CV_Circle(cv, MIDDLE_X, MIDDLE_Y, 16);
        paint_shaded(
            cv, cairo_pattern_create_radial(MIDDLE_X - 5, MIDDLE_Y - 6, 2, MIDDLE_X, MIDDLE_Y, 17),
            {{0, 0xFFFFFF}, {1, CURL_DARK}});
    } else {
        cairo_rectangle(cv.cr, MIDDLE_X - 14, Y0 + 5, 28, H - 10);
        paint_shaded(cv, cairo_pattern_create_linear(MIDDLE_X - 14, 0, MIDDLE_X + 14, 0),
                     {{0, CURL_DARK}, {0.4, 0xFFFFFF}, {1, ROUND_DARK}});
    }
}

void doors_in_depth(const Canvas& cv, int)
{
    CV_Polygon(cv, {{X0, Y0}, {MIDDLE_X, Y0 + 6}, {MIDDLE_X, Y0 + H - 6}, {X0, Y0 + H}});
    CV_Paint(cv, WIPE_INCOMING);
    CV_Polygon(cv, {{X0 + W, Y0}, {MIDDLE_X, Y0 + 6}, {MIDDLE_X, Y0 + H - 6}, {X0 + W, Y0 + H}});
    CV_Paint(cv, SEAM);
}

void user_program(const Canvas& cv, int)
{
    for (int i = 1; i < 4; i++) {
        CV_Fill(cv, X0 + i * W / 4, Y0, 1, H, DEPARTING);
        CV_Fill(cv, X0, Y0 + i * H / 4, W, 1, DEPARTING);
    }
    CV_Fill(cv, MIDDLE_X - W * 0.3, MIDDLE_Y - H * 0.3, W * 0.6, H * 0.6, WIPE_INCOMING);
}

// By the last three digits; what stands in no row shows the outgoing picture alone.
constexpr struct Move {
    int first, last;
    void (*draw)(const Canvas& cv, int k);
} MOVES[] = {
    {1, 8, slide},
    {11, 18, push},
    {21, 24, split},
    {31, 34, strips},
    {201, 208, squeeze},
    {221, 224, squeeze_to_middle},
    {251, 251, zoom},
    {301, 316, page_turn},
    {321, 336, roll},
    {361, 368, flip},
    {381, 384, spin},
    {391, 396, round_body},
    {401, 418, doors_in_depth},
    {901, 999, user_program},
};

// Cyan squares at the top right, one a channel, on a plate that keeps them readable over a light
// picture.
void draw_channels(const Canvas& cv, int channels)
{
    for (int i = 0; i < channels; i++) {
        const double x = X0 + W - 6 - i * 7;
        CV_Fill(cv, x - 1, Y0 + 1, 7, 7, PLATE);
        CV_Fill(cv, x, Y0 + 2, 5, 5, CYAN);
    }
}
} // namespace

std::vector<uint8_t> WIPE_Effect(int number, bool with_channels)
{
    const int move_number = number % 1000, channels = number / 1000;
    Canvas cv = CV_New(WIPE_WIDTH, WIPE_HEIGHT, 0x000000);
    CV_Fill(cv, X0, Y0, W, H, WIPE_OUTGOING);
    cairo_rectangle(cv.cr, X0, Y0, W, H);
    CV_Clip(cv);
    for (const Move& m : MOVES)
        if (move_number >= m.first && move_number <= m.last)
            m.draw(cv, move_number - m.first);
    CV_EndClip(cv);
    if (with_channels && channels > 1)
        draw_channels(cv, channels);
    std::vector<uint8_t> pixels = CV_Pixels(cv);
    CV_Free(cv);
    return pixels;
}
