// The page tabs at the left and at the bottom, and the knob column.
#include "cap.h"

namespace
{
constexpr Colour TEAL_INK = 0x00797F;
constexpr Colour TAB_LIGHT = 0xD0ECEE,
                 TAB_DARK = 0x3A4246; // face of a tab where a small plate lies

// Frame keys have a larger corner.
constexpr int FRAME_RADIUS = 6;

void draw_nothing(const Canvas&, const State&, int) {} // the ground alone

void draw_left_tab(const Canvas& cv, const State& st, int)
{
    if (!st.on) {
        CAP_Draw(cv, GRAPHITE, 0, {.radius = FRAME_RADIUS, .corners = LEFT_CORNERS, .width = 87});
        return;
    }
    CAP_Draw(cv, ICE, 0, {.radius = FRAME_RADIUS, .corners = LEFT_CORNERS});
    CV_Fill(cv, 3, 8, 3, 46, TEAL_INK);
    CV_Polygon(cv, {{91, 23}, {91, 39}, {83, 31}});
    CV_Paint(cv, TEAL_INK);
}

enum BottomTabHeight { TALL_TAB, LOW_TAB };

void draw_bottom_tab(const Canvas& cv, const State& st, int variant)
{
    CAP_Draw(cv, st.on ? ICE : GRAPHITE, 0, {.radius = FRAME_RADIUS, .corners = BOTTOM_CORNERS});
    if (variant == TALL_TAB) { // where the orange bar lights
        CV_Fill(cv, 5, 51, 74, 7, st.on ? 0x29474B : 0x0E1213);
        CV_Fill(cv, 5, 58, 74, 1, 0xFFFFFF, st.on ? 0.6 : 0.13);
    }
    if (st.on)
        CV_Fill(cv, 8, 1, 68, 3, TEAL_INK);
}

// A dark plate under a small word on a tab.
void draw_plate(const Canvas& cv, const State& st, int)
{
    CV_Fill(cv, 0, 0, cv.width, cv.height, st.on ? TAB_LIGHT : TAB_DARK);
    CV_RoundRect(cv, 0, 0, cv.width - 4, cv.height, 3);
    CV_Paint(cv, 0x0C2329);
}

void draw_knob_blank(const Canvas& cv, const State&, int)
{
    CV_RoundRect(cv, 2, 1, 91, 78, 6);
    CV_Paint(cv, 0x191919);
}

// One slot of the knob column: a panel with the recess of the value bar.
void draw_knob(const Canvas& cv, const State& st, int)
{
    CV_RoundRect(cv, 1, 0, 93, 80, 6);
    CV_Paint(cv, 0x000000);
    CV_RoundRect(cv, 2, 1, 91, 78, 5);
    CV_PaintGradient(cv, 1, 79,
                     {{0, st.on ? 0x1C3A42u : 0x2A3033u}, {1, st.on ? 0x12272Du : 0x1D2123u}});
    CV_RoundRect(cv, 2, 1, 91, 78, 5);
    CV_Clip(cv);
    CV_Fill(cv, 2, 1, 91, 1, st.on ? 0x7FE6E6 : 0x5F6A6F, st.on ? 0.6 : 1);
    CV_EndClip(cv);

    CV_RoundRect(cv, 6, 34, 85, 13, 2);
    CV_Paint(cv, 0x060809);
    CV_Fill(cv, 7, 47, 83, 1, 0xFFFFFF, 0.10);
    CV_Fill(cv, 8, 35, 81, 10, 0x006464);

    if (st.on) {
        CV_RoundRect(cv, 3, 2, 89, 76, 4);
        CV_Stroke(cv, 2, 0x00FFFF);
        CV_Polygon(cv, {{4.5, 11}, {4.5, 23}, {11, 17}});
        CV_Paint(cv, 0x00FFFF);
    } else {
        CV_Circle(cv, 8.5, 17, 2.6);
        CV_Stroke(cv, 1.4, 0x6D787D);
    }
}

void draw_knob_title_blank(const Canvas& cv, const State&, int)
{
    CV_RoundRect(cv, 2, 0, 91, 51, 6);
    CV_Paint(cv, 0x00323F);
    CV_RoundRect(cv, 3, 1, 89, 49, 5);
    CV_PaintGradient(cv, 1, 50, {{0, 0x06404F}, {1, 0x022A36}});
}

// The title of the knob column when it has several layers: a key with sheets, an arrow and the
// counter's window.
void draw_knob_title(const Canvas& cv, const State& st, int)
{
    constexpr Colour ICON = 0x8CC4CF;
    constexpr double sheet_alpha[] = {1, 0.6, 0.35};
    const int p = st.pushed;
    cairo_save(cv.cr);
    cairo_translate(cv.cr, 1, 0);
    CAP_Draw(cv, PETROL, p, {.radius = FRAME_RADIUS, .width = 93});
    cairo_restore(cv.cr);
    CV_RoundRect(cv, 55 + p, 29 + p, 33, 17, 3);
    CV_Paint(cv, 0x071316);
    for (int i = 0; i < 3; i++) {
        const double x = 17 + p, y = 35 + i * 4 + p;
        CV_Polygon(cv, {{x - 8, y}, {x, y - 4}, {x + 8, y}, {x, y + 4}});
        CV_Stroke(cv, 1.5, ICON, sheet_alpha[i]);
    }
    CV_Arrow(cv, 43 + p, 38 + p, 0, 1, 5, ICON);
}

enum LowerLeft { DEFAULT_RECALL, SETUP_LOCK };

void draw_lower_left(const Canvas& cv, const State& st, int variant)
{
    if (st.on) { // armed
        CAP_Draw(cv, AMBER, 1, {.radius = FRAME_RADIUS});
        for (int i = 0; i < 4; i++)
            CV_Fill(cv, 11 + i * 16, 6, 12, 3, 0xA85E00);
        return;
    }
    CAP_Draw(cv, variant == SETUP_LOCK ? STEEL : GRAPHITE, 0, {.radius = FRAME_RADIUS});
    CV_Fill(cv, 10, 6, 22, 3, 0x111416);
}

constexpr State STATES_REVERSED[] = {{.suffix = "_Off_Rev"}, {.suffix = "_On_Rev", .on = 1}};
constexpr State STATE_BLANK[] = {{.suffix = "_blank"}};

// clang-format off
constexpr Family FAMILIES[] = {
    {"VF",  91, 63, ON_FRAME, draw_left_tab, STATES_ON_OFF},
    {"VF",  91, 63, ON_FRAME, draw_nothing, STATE_BLANK},
    {"VFM", 80, 15, ON_FRAME, draw_plate, STATES_ON_OFF},
    {"HF",  84, 66, ON_FRAME, draw_bottom_tab, STATES_ON_OFF, TALL_TAB},
    {"HF",  84, 66, ON_FRAME, draw_nothing, STATE_BLANK},
    {"HFS", 84, 41, ON_FRAME, draw_bottom_tab, STATES_ON_OFF, LOW_TAB},
    {"HFS", 84, 41, ON_FRAME, draw_nothing, STATE_BLANK},
    {"HFM", 70, 15, ON_FRAME, draw_plate, STATES_ON_OFF},
    {"NB",  94, 82, ON_FRAME, draw_knob, STATES_ON_OFF},
    {"NB",  94, 82, ON_FRAME, draw_knob_blank, STATE_BLANK},
    {"NBS", 94, 52, ON_FRAME, draw_knob_title, STATES_HELD},
    {"NBS", 94, 52, ON_FRAME, draw_knob_title_blank, STATE_BLANK},
    {"NBA", 84, 65, ON_FRAME, draw_lower_left, STATES_ON_OFF, DEFAULT_RECALL},
    {"NBA", 84, 65, ON_FRAME, draw_lower_left, STATES_REVERSED, SETUP_LOCK},
};
// clang-format on
} // namespace

std::span<const Family> TABS_Families()
{
    return FAMILIES;
}
