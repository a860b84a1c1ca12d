#include "pc_setup_curve.h"
#include "colours.h"
#include "global.h"
#include "message.h"
#include "pc_engsetup_swr.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>

#include "safeguards.h"

#define CURVE SWR "Transition@Transition Curve@Fader Curve"
#define LOCAL_PRESET LOCAL_SWR "Transition@Transition Curve@Fader Curve@Preset"

namespace
{
constexpr int CURVES = 4;
constexpr int POINTS = 5;
constexpr int END = 100;                                    // per cent, of fader and transition
constexpr int fader_at[POINTS] = {10, 25, 50, 75, 90};      // where the points stand
constexpr Rect PLOT = {440, 84, 690, 334};                  // from bottom left to top right
constexpr Rect AREA = {PLOT.x1 - 10, 76, 700, PLOT.y2 + 2}; // that the plot may paint

struct Preset {
    const char* name;
    const char* out[POINTS];
};
} // namespace

static constexpr Preset presets[] = {
    {"Linear", {"10", "25", "50", "75", "90"}},
    {"S Curve", {"3", "16", "50", "84", "97"}},
    {"Slow Start", {"1", "6", "25", "56", "81"}},
    {"Slow End", {"19", "44", "75", "94", "99"}},
};

static SwrRows<CURVES> curve_rows;
static struct {
    int is_dirty = 0;
} cv; // valid from create(1) to create(0)

static void curve_changed()
{
    cv.is_dirty = 1;
}

static constexpr SETUPFIELD curve_fields[] = {
    SwrField(0, CURVE, {.part = 1}), SwrField(1, CURVE, {.part = 2}),
    SwrField(2, CURVE, {.part = 3}), SwrField(3, CURVE, {.part = 4}),
    SwrField(4, CURVE, {.part = 5}), SWR_KEY,
};
static constexpr SETUPCHOICE curve_choices[] = {SwrKnob(0, 1), SwrKnob(1, 2), SwrKnob(2, 3),
                                                SwrKnob(3, 4), SwrKnob(4, 5)};
static constexpr const char* curve_names[CURVES] = {"Curve1", "Curve2", "Curve3", "Curve4"};
static constexpr SETUPTABLE curve_page =
    SwrTable(curve_rows, SwrWords<curve_names>, curve_fields, curve_choices,
             {.question = swr_on_air_question, .changed = curve_changed});

// --- The plot ---

static int x_of(int fader)
{
    return PLOT.x1 + (PLOT.x2 - PLOT.x1) * fader / END;
}

static int y_of(int out)
{
    return PLOT.y2 - (PLOT.y2 - PLOT.y1) * std::clamp(out, 0, END) / END;
}

static void draw_grid()
{
    TDL_FillRectS(PLOT.x1, PLOT.y1, PLOT.x2, PLOT.y2, HEADER_GROUND);
    for (int at : fader_at) {
        TDL_LineVS(x_of(at), PLOT.y1, PLOT.y2 - PLOT.y1 + 1, BAR_GROUND);
        TDL_LineHS(PLOT.x1, y_of(at), PLOT.x2 - PLOT.x1 + 1, BAR_GROUND);
    }
    TDL_RectS(PLOT.x1, PLOT.y1, PLOT.x2, PLOT.y2, SEPARATOR);
}

// From 0 to 100 through the points, two pixels thick.
static void draw_curve(const swr_row& row, unsigned colour)
{
    if (!row.cell[0][0])
        return; // not told yet
    int x = x_of(0), y = y_of(0);
    for (int i = 0; i <= POINTS; i++) {
        const int to_x = x_of(i < POINTS ? fader_at[i] : END);
        const int to_y = y_of(i < POINTS ? Decimal(row.cell[i]) : END);
        TDL_LineS(x, y, to_x, to_y, colour);
        TDL_LineS(x, y - 1, to_x, to_y - 1, colour);
        if (i < POINTS)
            TDL_FillRectS(to_x - 3, to_y - 3, to_x + 2, to_y + 2, colour);
        x = to_x;
        y = to_y;
    }
}

static int redraw()
{
    if (!cv.is_dirty)
        return 0;
    cv.is_dirty = 0;
    const int row = curve_rows.state.cursor;
    TDL_FillRectS(AREA.x1, AREA.y1, AREA.x2, AREA.y2, BLACK);
    draw_grid();
    if (row < curve_rows.rows) {
        draw_curve(curve_rows.tally[row], GREY);
        draw_curve(curve_rows.work[row], CYAN);
    }
    TDL_UpdateRect(AREA.x1, AREA.y1, AREA.x2, AREA.y2);
    return 0;
}

// --- Points ---

// A point of the current curve lies between its neighbours.
static int between_neighbours(int point, int value)
{
    const swr_row& row = curve_rows.work[curve_rows.state.cursor];
    const int low = point > 0 ? Decimal(row.cell[point - 1]) : 0;
    const int high = point < POINTS - 1 ? Decimal(row.cell[point + 1]) : END;
    return std::clamp(value, low, std::max(low, high));
}

static int preset_pressed(const char* name)
{
    for (const Preset& p : presets)
        for (int n = 0, row; Same(p.name, name) && (row = SetupPage_Selected(curve_page, n)) >= 0;
             n++)
            for (int i = 0; i < POINTS; i++)
                SetupPage_Set(curve_page, row, i, p.out[i]);
    return 0;
}

static int pc_engsetup_switcher_fadercurve_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg == MSG_REDRAW)
        return redraw();
    if (msg == LMSG_BTNSEL && Same(Text(ax), LOCAL_PRESET))
        return preset_pressed(Text(bx));
    if (msg == LMSG_KNOBVAR && ax >= 1 && ax <= POINTS)
        bx = between_neighbours(int(ax) - 1, int(bx));
    if (!SetupPage_Proc(curve_page, msg, ax, bx) && msg == LMSG_BTNSEL)
        SetupPage_Show(curve_page); // the key that brings the boxes
    return 0;
}

static int pc_engsetup_switcher_fadercurve_create(int on, uint32_t)
{
    cv = {};
    return SetupPage_CreateOf<curve_page>(on, 0);
}

const PC_TBL pc_engsetup_switcher_transition_transitioncurve_fadercurve = {
    .proc_func = pc_engsetup_switcher_fadercurve_proc,
    .create_func = pc_engsetup_switcher_fadercurve_create};

void SetupCurve_Reset()
{
    SetupPage_Forget(curve_page);
    cv = {};
}
