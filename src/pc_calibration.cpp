// The calibration of the touch panel: two crosses are touched in turn, a third one checks the
// result, then it is kept or not. It has the whole screen, for the crosses lie where other pages
// have their frames. What it has measured counts from the second cross on, so that OK can be
// touched; when nobody touches anything for a while, everything is as before.
#include "a_bt.h"
#include "colours.h"
#include "global.h"
#include "message.h"
#include "page.h"
#include "page_table/rows.h"
#include "pane.h"
#include "pc_engsetup_pnl.h"
#include "setup_index.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "touch.h"
#include <cstdlib>

#include "safeguards.h"

namespace
{
enum Step : int { STEP_FIRST, STEP_SECOND, STEP_CHECK, STEP_DONE };
struct Cross {
    int x = 0;
    int y = 0;
    const char* text = "";
};
constexpr Cross crosses[] = {
    {50, 50, "Touch the cross at the upper left."},
    {750, 550, "Touch the cross at the lower right."},
    {SCREEN_W / 2, SCREEN_H / 2, "Touch the cross in the middle."},
};
constexpr int REACH = 20; // of a cross, to each side
constexpr int CLOSE = 15; // a touch hits the cross that checks, in pixels
constexpr int PATIENCE_MS = 60000;
constexpr uint32_t MAINTENANCE = 0x73270000;

constexpr Rect FIRST_KEY = GridRect(BTN_CALIBRATION_OK);
constexpr Rect LAST_KEY = GridRect(BTN_CALIBRATION_CANCEL);

constexpr int TEXT_Y = 200;
constexpr int FONT_TITLE = 9;
constexpr int FONT_TEXT = 4;
} // namespace

static struct {
    Step step = STEP_FIRST;
    TouchPoints before; // as it was when the page was opened
    TouchPoints points; // what is measured
    const char* note = "";
    Cross hit; // where the check was touched
    bool is_kept = false;
    bool must_paint = false;
    int idle_ms = 0;
} cal;

// --- The picture ---

static void draw_cross(const Cross& cross, unsigned colour)
{
    TDL_LineHS(cross.x - REACH, cross.y, 2 * REACH + 1, colour);
    TDL_LineVS(cross.x, cross.y - REACH, 2 * REACH + 1, colour);
    TDL_RectS(cross.x - 5, cross.y - 5, cross.x + 5, cross.y + 5, colour);
}

static void draw_text(int y, const char* text, int font, unsigned colour)
{
    TDL_SymbolCS(0, y, SCREEN_W - 1, y + 25, text, font, colour);
}

static void paint()
{
    // All but the two keys, side by side, which paint themselves.
    TDL_FillRectS(0, 0, SCREEN_W - 1, FIRST_KEY.y1 - 1, BLACK);
    TDL_FillRectS(0, FIRST_KEY.y1, FIRST_KEY.x1 - 1, SCREEN_H - 1, BLACK);
    TDL_FillRectS(LAST_KEY.x2 + 1, FIRST_KEY.y1, SCREEN_W - 1, SCREEN_H - 1, BLACK);
    TDL_FillRectS(FIRST_KEY.x1, FIRST_KEY.y2 + 1, LAST_KEY.x2, SCREEN_H - 1, BLACK);
    draw_text(TEXT_Y - 50, "Touch Panel Calibration", FONT_TITLE, TEAL);
    draw_text(TEXT_Y,
              cal.step == STEP_DONE ? "OK keeps it, Cancel takes it back." : crosses[cal.step].text,
              FONT_TEXT, WHITE);
    draw_text(TEXT_Y + 30, cal.note, FONT_TEXT, ORANGE);
    for (int i = 0; i < int(STEP_DONE); i++)
        if (i == int(cal.step) || (cal.step == STEP_DONE && i == int(STEP_CHECK)))
            draw_cross(crosses[i], WHITE);
    if (cal.step == STEP_DONE)
        draw_cross(cal.hit, CYAN);
    (void)TDL_UpdateScreen();
}

static int redraw(int ms)
{
    cal.idle_ms += ms;
    if (cal.idle_ms > PATIENCE_MS && !cal.is_kept)
        GL_CreatePage = MAINTENANCE; // which takes back what is not kept
    if (cal.must_paint)
        paint();
    cal.must_paint = false;
    return 0;
}

// --- The steps ---

static void go_to(Step step, const char* note)
{
    cal.step = step;
    cal.note = note;
    cal.must_paint = true;
    (void)BT_SetDisable(BTN_CALIBRATION_OK, step != STEP_DONE);
}

static void measure(int x, int y)
{
    int* const at_x = cal.step == STEP_FIRST ? &cal.points.ax : &cal.points.bx;
    int* const at_y = cal.step == STEP_FIRST ? &cal.points.ay : &cal.points.by;
    Touch_RawPoint(x, y, at_x, at_y);
    const bool is_near = cal.step == STEP_FIRST ? Touch_IsFirstPoint(cal.points.ax, cal.points.ay)
                                                : Touch_IsSecondPoint(cal.points.bx, cal.points.by);
    if (!is_near)
        return go_to(cal.step, "That was too far from the cross. Touch it once more.");
    if (cal.step == STEP_FIRST)
        return go_to(STEP_SECOND, "");
    Touch_SetCalibration(cal.points);
    go_to(STEP_CHECK, "");
}

static void check(int x, int y)
{
    cal.hit = {x, y, ""};
    const Cross& middle = crosses[STEP_CHECK];
    if (abs(x - middle.x) <= CLOSE && abs(y - middle.y) <= CLOSE)
        return go_to(STEP_DONE, "");
    Touch_SetCalibration(cal.before);
    go_to(STEP_FIRST, "The touch was beside the cross. Begin again.");
}

// The keys lie in the middle of the screen, the crosses do not.
static bool is_on_keys(int x, int y)
{
    return x >= FIRST_KEY.x1 && x <= LAST_KEY.x2 && y >= FIRST_KEY.y1 && y <= FIRST_KEY.y2;
}

static int press(int x, int y)
{
    cal.idle_ms = 0;
    if (is_on_keys(x, y) || SetupIndex_IsLocked(GL_NowPage))
        return 0;
    if (cal.step == STEP_FIRST || cal.step == STEP_SECOND)
        measure(x, y);
    else if (cal.step == STEP_CHECK)
        check(x, y);
    return 1;
}

static void keep()
{
    cal.is_kept = true;
    if (Touch_StoreCalibration() < 0)
        (void)PaneMessage_Create(
            "Touch Panel Calibration", PANE_ALERT,
            "The calibration could not be stored.\nIt is lost at the next start.");
    GL_CreatePage = MAINTENANCE;
}

static int button(const char* cmd)
{
    if (Same(cmd, "LOCAL@Calibration@OK") && cal.step == STEP_DONE)
        keep();
    return 0;
}

static int calibration_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return redraw(int(ax));
    case MSG_PRESS: return press(int(ax), int(bx));
    case LMSG_BTNSEL: return button(Text(ax));
    default: return 0;
    }
}

static int calibration_create(int on, uint32_t)
{
    if (!on) {
        if (!cal.is_kept)
            Touch_SetCalibration(cal.before);
        return 1;
    }
    cal = {};
    cal.before = cal.points = Touch_GetCalibration();
    go_to(STEP_FIRST, SetupIndex_IsLocked(GL_NowPage) ? "This page is locked." : "");
    return 0;
}

const PC_TBL pc_engsetup_panel_maintenance_calibration = {.proc_func = calibration_proc,
                                                          .create_func = calibration_create};
