// Frame memory: output keys, the time code well, and the tiles that stand for what has no
// thumbnail.
#include "cap.h"

namespace
{
constexpr Colour KNOB_CYAN = 0x00FFFF;
constexpr Colour TILE_INK = 0x8CC4CF;

// Lamp sizes follow the key: the variant is the width of the unlit slot.
void draw_output_key(const Canvas& cv, const State& st, int off_width)
{
    CAP_Draw(cv, st.on ? ICE : GRAPHITE, 0);
    CAP_Lamp(cv, st, {.off_width = off_width, .height = off_width > 18 ? 3 : 2, .x = 8, .y = 5});
}

void draw_output_arrow(const Canvas& cv, const State&, int direction)
{
    CAP_Draw(cv, GRAPHITE, 0, {.radius = 4});
    CV_Arrow(cv, 20, 17 + direction, 0, direction, 8, 0xFFFFFF);
}

void draw_time_code_well(const Canvas& cv, const State& st, int)
{
    CAP_Panel(cv, 0x00212C, 0x013A4A);
    if (st.on)
        CAP_CyanFrame(cv, KNOB_CYAN);
}

// --- Tiles, 4:3 ---

void draw_film(const Canvas& cv)
{
    CV_RoundRect(cv, 18, 16, 52, 34, 2);
    CV_Paint(cv, TILE_INK);
    for (int i = 0; i < 6; i++)
        for (int y : {19, 43})
            CV_Fill(cv, 22 + i * 8, y, 4, 4, 0x0E2229);
    for (int i = 0; i < 2; i++)
        CV_Fill(cv, 22 + i * 23, 26, 21, 14, 0x1C4652);
}

void draw_still(const Canvas& cv)
{
    CV_RoundRect(cv, 19, 14, 50, 38, 2);
    CV_Paint(cv, TILE_INK);
    CV_Fill(cv, 22, 17, 44, 32, 0x1C4652);
    CV_RoundRect(cv, 22, 17, 44, 32, 0);
    CV_Clip(cv);
    CV_Circle(cv, 33, 26, 4);
    CV_Paint(cv, 0xDDF3F5);
    CV_Polygon(cv, {{20, 49}, {36, 34}, {45, 42}, {54, 30}, {70, 49}});
    CV_Paint(cv, 0x0E2229);
    CV_EndClip(cv);
}

void draw_folder(const Canvas& cv)
{
    CV_RoundRect(cv, 20, 14, 22, 14, 3);
    CV_Paint(cv, 0xC87820);
    CV_RoundRect(cv, 20, 20, 48, 31, 3);
    CV_PaintGradient(cv, 20, 51, {{0, 0xF3B869}, {1, 0xD8923A}});
}

void draw_question(const Canvas& cv)
{
    CV_Circle(cv, 68, 48, 11);
    CV_Paint(cv, 0x0E2229);
    CV_Circle(cv, 68, 48, 9.5);
    CV_Paint(cv, 0xDDF3F5);
    CV_Arc(cv, 68, 45.2, 3, PI, 2.35 * PI);
    cairo_line_to(cv.cr, 68, 50);
    CV_Stroke(cv, 2, 0x12404C);
    CV_Circle(cv, 68, 53, 1.3);
    CV_Paint(cv, 0x12404C);
}

enum Tile { TILE_CLIP, TILE_STILL, TILE_FOLDER, TILE_UNKNOWN_CLIP, TILE_UNKNOWN_STILL };

void draw_tile(const Canvas& cv, const State& st, int tile)
{
    CV_Fill(cv, 1, 1, cv.width - 2, cv.height - 2, 0x2A4A54);
    CV_RoundRect(cv, 2, 2, cv.width - 4, cv.height - 4, 0);
    CV_PaintGradient(cv, 2, cv.height - 2, {{0, 0x17353F}, {1, 0x0E2229}});
    switch (tile) {
    case TILE_CLIP:
    case TILE_UNKNOWN_CLIP: draw_film(cv); break;
    case TILE_STILL:
    case TILE_UNKNOWN_STILL: draw_still(cv); break;
    default: draw_folder(cv);
    }
    if (tile == TILE_UNKNOWN_CLIP || tile == TILE_UNKNOWN_STILL)
        draw_question(cv);
    if (st.on) {
        CV_RoundRect(cv, 1, 1, cv.width - 2, cv.height - 2, 0);
        CV_Stroke(cv, 2, KNOB_CYAN);
    }
}

constexpr State STATE_UP[] = {{.suffix = "_up"}};
constexpr State STATE_DOWN[] = {{.suffix = "_dw"}};

// clang-format off
constexpr Family FAMILIES[] = {
    {"FM",        74, 39, ON_BLACK, draw_output_key, STATES_ON_OFF, 18},
    {"FMs",       50, 32, ON_BLACK, draw_output_key, STATES_ON_OFF, 12},
    {"FMOUT",    101, 46, ON_BLACK, draw_output_key, STATES_ON_OFF, 22},
    {"FMOUTSEL",  40, 36, ON_BLACK, draw_output_arrow, STATE_UP, -1},
    {"FMOUTSEL",  40, 36, ON_BLACK, draw_output_arrow, STATE_DOWN, 1},
    {"FMTC",     130, 40, ON_BLACK, draw_time_code_well, STATES_ON_OFF},
    {"FMCLIP",          88, 66, ON_BLACK, draw_tile, STATES_ON_OFF, TILE_CLIP},
    {"FMSTILL",         88, 66, ON_BLACK, draw_tile, STATES_ON_OFF, TILE_STILL},
    {"FMFOLDER",        88, 66, ON_BLACK, draw_tile, STATES_ON_OFF, TILE_FOLDER},
    {"FMQUESTIONCLIP",  88, 66, ON_BLACK, draw_tile, STATES_ON_OFF, TILE_UNKNOWN_CLIP},
    {"FMQUESTIONSTILL", 88, 66, ON_BLACK, draw_tile, STATES_ON_OFF, TILE_UNKNOWN_STILL},
};
// clang-format on
} // namespace

std::span<const Family> MEMORY_Families()
{
    return FAMILIES;
}
