// The base area: page button, title band, history keys, the strip at top right.
#include "cap.h"

namespace
{
constexpr int FRAME_RADIUS = 6;
constexpr Colour MARK = 0xD5F3F7; // white of the marks on petrol

void draw_page_button(const Canvas& cv, const State& st, int)
{
    CAP_Draw(cv, PETROL, st.pushed, {.radius = FRAME_RADIUS});
    for (int x : {51, 66}) { // sockets of the access lamps, whose places are fixed
        CV_Fill(cv, x, 6, 13, 13, 0x081114);
        CV_Fill(cv, x + 1, 7, 11, 11, 0x282828);
    }
}

enum TitleSide { FRONT, REVERSE };

void draw_title(const Canvas& cv, const State& st, int side)
{
    // Colours of the band: off, then pushed.
    constexpr struct {
        Colour top, middle, bottom;
    } bands[2][2] = {{{0x014457, 0x003241, 0x00212C}, {0x001C26, 0x003241, 0x00384A}},
                     {{0xF1E4CF, 0xF1E4CF, 0xD3BF9C}, {0xC8B48F, 0xC8B48F, 0xE2D2B4}}};
    const auto& band = bands[side][st.pushed];
    const int w = cv.width;
    CV_RoundRect(cv, 0, 0, w, 58, 6);
    CV_Paint(cv, 0x000000);
    CV_RoundRect(cv, 1, 1, w - 2, 56, 5);
    CV_PaintGradient(cv, 1, 57, {{0, band.top}, {0.5, band.middle}, {1, band.bottom}});
    CV_RoundRect(cv, 1, 1, w - 2, 56, 5);
    CV_Clip(cv);
    CV_Fill(cv, 1, 1, w - 2, 1, side == FRONT ? 0x2F7C92 : 0xFFFFFF, st.pushed ? 0.2 : 0.9);
    CV_EndClip(cv);
    CV_Fill(cv, 8, 37, w - 16, 1, side == FRONT ? 0x00141C : 0xAE9A78);
    CV_Fill(cv, 8, 38, w - 16, 1, side == FRONT ? 0x0E5468 : 0xFFFFFF, 0.6);
}

void draw_frame_key(const Canvas& cv, const State& st, int)
{
    CAP_Draw(cv, PETROL, st.pushed, {.radius = FRAME_RADIUS});
}

void draw_history(const Canvas& cv, const State& st, int direction)
{
    if (st.is_disabled) {
        CAP_Flat(cv);
        CV_Arrow(cv, 19 + direction, 22, direction, 0, 8, 0x3A4043);
        return;
    }
    CAP_Draw(cv, PETROL, st.pushed);
    CV_Arrow(cv, 19 + direction + st.pushed, 21 + st.pushed, direction, 0, 9, MARK);
}

void draw_previous(const Canvas& cv, const State& st, int)
{
    const double x = 26 + st.pushed, y = 12 + st.pushed;
    CAP_Draw(cv, PETROL, st.pushed, {.radius = FRAME_RADIUS});
    cairo_new_path(cv.cr);
    cairo_move_to(cv.cr, x + 2, y + 6);
    cairo_line_to(cv.cr, x + 20, y + 6);
    cairo_arc(cv.cr, x + 20, y + 13, 7, -PI / 2, PI / 2);
    cairo_line_to(cv.cr, x + 8, y + 20);
    CV_Stroke(cv, 3, MARK);
    CV_Arrow(cv, x + 1, y + 6, -1, 0, 7, MARK);
}

void draw_strip(const Canvas& cv, const State& st, int)
{
    CAP_Panel(cv, st.pushed ? 0x0A2B33 : 0x171B1D, st.pushed ? 0x10404B : 0x23292C);
}

// --- Menu macro keys ---

void draw_list_icon(const Canvas& cv, double x, double y)
{
    for (int line = 0; line < 3; line++) {
        CV_Fill(cv, x, y + line * 6, 3, 3, MARK);
        CV_Fill(cv, x + 6, y + line * 6, 15, 3, MARK);
    }
}

void draw_menu_macro(const Canvas& cv, const State& st, int)
{
    CAP_Draw(cv, PETROL, st.pushed, {.radius = FRAME_RADIUS});
    draw_list_icon(cv, 19 + st.pushed, 16 + st.pushed);
}

// on: recording, the dot is lit. The key itself stays up: it is a lamp here.
void draw_menu_macro_record(const Canvas& cv, const State& st, int)
{
    CAP_Draw(cv, PETROL, 0, {.radius = FRAME_RADIUS});
    draw_list_icon(cv, 12, 16);
    CV_Circle(cv, 45, 24, 7.5);
    CV_Paint(cv, 0x081114);
    CV_Circle(cv, 45, 24, 5.5);
    CV_Paint(cv, st.on ? 0xFF3030 : 0x6E2222);
}

void draw_menu_macro_strip_key(const Canvas& cv, const State& st, int)
{
    const int p = st.pushed;
    CAP_Draw(cv, PETROL, p, {.radius = FRAME_RADIUS});
    CV_Circle(cv, 29.5 + p, 28 + p, 12);
    CV_Stroke(cv, 2.2, MARK);
    CV_Circle(cv, 29.5 + p, 28 + p, 6.5);
    CV_Paint(cv, 0xFF3030);
}

constexpr State STATES_STRIP[] = {{.suffix = "_off2"}, {.suffix = "_on2", .pushed = 1, .on = 1}};

// clang-format off
constexpr Family FAMILIES[] = {
    {"PG",           86, 58, ON_FRAME, draw_page_button, STATES_HELD},
    {"TIT_omote",   285, 58, ON_FRAME, draw_title, STATES_HELD, FRONT},
    {"TIT_ura",     285, 58, ON_FRAME, draw_title, STATES_HELD, REVERSE},
    {"TIT_omote_s", 210, 58, ON_FRAME, draw_title, STATES_HELD, FRONT},
    {"TIT_ura_s",   210, 58, ON_FRAME, draw_title, STATES_HELD, REVERSE},
    {"TIT_ms",       72, 58, ON_FRAME, draw_frame_key, STATES_HELD},
    {"BACK",         38, 44, ON_FRAME, draw_history, STATES_HELD_DIS, -1},
    {"NEXT",         38, 44, ON_FRAME, draw_history, STATES_HELD_DIS, 1},
    {"PRV",          81, 50, ON_FRAME, draw_previous, STATES_HELD},
    {"KF",          287, 58, ON_FRAME, draw_strip, STATES_STRIP},
    {"KF",          225, 58, ON_FRAME, draw_strip, STATES_HELD},
    {"KF_mm",        59, 58, ON_FRAME, draw_menu_macro_strip_key, STATES_HELD},
    {"MMCR",         59, 50, ON_FRAME, draw_menu_macro, STATES_HELD},
    {"MMCR_rec",     59, 50, ON_FRAME, draw_menu_macro_record, STATES_ON_OFF},
};
// clang-format on
} // namespace

std::span<const Family> BASE_Families()
{
    return FAMILIES;
}
