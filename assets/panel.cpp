// Layer keys of the pattern pages, and the keys that stand for modules and regions of a control
// panel.
#include "cap.h"

namespace
{
constexpr Colour STATUS_TEAL = 0x00DDD4, SLOT = 0x111416, TEAL_INK = 0x00797F;

// The caption of a layer key is always white, so on is petrol with a frame and not ice.
void draw_layer_key(const Canvas& cv, const State& st, int)
{
    if (st.is_disabled) {
        CAP_Flat(cv);
        return;
    }
    CAP_Draw(cv, st.on ? PETROL : GRAPHITE, st.pushed);
    if (st.on) {
        CV_Fill(cv, 10, 5, 69, 2, STATUS_TEAL);
        CAP_CyanFrame(cv, STATUS_TEAL);
    } else {
        CV_Fill(cv, 10 + st.pushed, 5 + st.pushed, 18, 2, SLOT);
    }
}

void draw_lit_key(const Canvas& cv, const State& st)
{
    if (st.is_disabled)
        CAP_Flat(cv);
    else
        CAP_Draw(cv, st.on ? ICE : GRAPHITE, 0);
}

// --- Pictograms of panel modules, about 24 x 18 round (22, 18) ---

enum Module { CROSSPOINTS, FLEXIBLE_PAD, AUX_BUS, KEYER, UTILITY };

void pictogram_crosspoints(const Canvas& cv, Colour ink)
{
    for (int row = 0; row < 2; row++)
        for (int column = 0; column < 4; column++)
            CV_Fill(cv, 10 + column * 6, 12 + row * 8, 4, 5, ink);
}

void pictogram_pad(const Canvas& cv, Colour ink)
{
    CV_RoundRect(cv, 11, 9, 22, 17, 2.5);
    CV_Stroke(cv, 2, ink);
    for (int row = 0; row < 2; row++)
        for (int column = 0; column < 3; column++)
            CV_Fill(cv, 15 + column * 5, 13 + row * 5, 4, 4, ink);
}

void pictogram_aux_bus(const Canvas& cv, Colour ink)
{
    CV_Fill(cv, 10, 21, 24, 2, ink);
    for (int i = 0; i < 3; i++)
        CV_Fill(cv, 13 + i * 8, 9, 2, 12, ink);
    CV_Circle(cv, 22, 22, 3.5); // the one that is through
    CV_Paint(cv, ink);
    CV_Fill(cv, 21, 22, 2, 6, ink);
}

void pictogram_key(const Canvas& cv, Colour ink)
{
    CV_Circle(cv, 14.5, 17.5, 4.5);
    CV_Stroke(cv, 2.2, ink);
    CV_Fill(cv, 19, 16.5, 15, 2.4, ink);
    CV_Fill(cv, 26, 18, 2.4, 4.5, ink);
    CV_Fill(cv, 31, 18, 2.4, 5.5, ink);
}

void pictogram_wrench(const Canvas& cv, Colour ink)
{
    CV_Lines(cv, {{15, 25}, {24, 16}});
    CV_Stroke(cv, 4.2, ink);
    CV_Arc(cv, 27.5, 12.5, 5, -0.1 * PI, 1.4 * PI); // the jaw opens to the upper right
    CV_Stroke(cv, 3, ink, 1, CAIRO_LINE_CAP_BUTT);
}

void draw_module_key(const Canvas& cv, const State& st, int module)
{
    constexpr void (*pictograms[])(const Canvas&, Colour) = {
        pictogram_crosspoints, pictogram_pad, pictogram_aux_bus, pictogram_key, pictogram_wrench};
    draw_lit_key(cv, st);
    pictograms[module](cv, CAP_Ink(st));
}

// --- Region keys ---

enum RegionSide { NO_SIDE, MAIN_SIDE, SUB_SIDE };

void draw_region_key(const Canvas& cv, const State& st, int side)
{
    draw_lit_key(cv, st);
    if (!st.is_disabled)
        CAP_Lamp(cv, st, {.off_width = 14, .height = 2, .x = 8, .y = 5});
    if (side != NO_SIDE)
        CV_Fill(cv, 3, side == MAIN_SIDE ? 8 : 20, 3, side == MAIN_SIDE ? 11 : 13, TEAL_INK);
}

void draw_tiny_key(const Canvas& cv, const State& st, int)
{
    draw_lit_key(cv, st);
}

constexpr State STATES_LAYER[] = {{.suffix = "_off"},
                                  {.suffix = "_on", .on = 1},
                                  {.suffix = "_p1", .pushed = 1},
                                  {.suffix = "_dis", .is_disabled = true}};
constexpr State STATE_LIT[] = {{.suffix = "", .on = 1}};

// clang-format off
constexpr Family FAMILIES[] = {
    {"PSEL",            89, 40, ON_BLACK, draw_layer_key, STATES_LAYER},
    {"PSELs_xpt",       44, 36, ON_BLACK, draw_module_key, STATES_ON_OFF_DIS, CROSSPOINTS},
    {"PSELs_xpt_flexi", 44, 36, ON_BLACK, draw_module_key, STATES_ON_OFF_DIS, FLEXIBLE_PAD},
    {"PSELs_aux",       44, 36, ON_BLACK, draw_module_key, STATES_ON_OFF_DIS, AUX_BUS},
    {"PSELs_key",       44, 36, ON_BLACK, draw_module_key, STATES_ON_OFF_DIS, KEYER},
    {"PSELs_util",      44, 36, ON_BLACK, draw_module_key, STATES_ON_OFF_DIS, UTILITY},
    {"PSELm",           60, 40, ON_BLACK, draw_region_key, STATES_ON_OFF_DIS, NO_SIDE},
    {"PSELm_main",      60, 40, ON_BLACK, draw_region_key, STATE_LIT, MAIN_SIDE},
    {"PSELm_sub",       60, 40, ON_BLACK, draw_region_key, STATE_LIT, SUB_SIDE},
    {"PSELss",          30, 24, ON_BLACK, draw_tiny_key, STATES_ON_OFF},
};
// clang-format on
} // namespace

std::span<const Family> PANEL_Families()
{
    return FAMILIES;
}
