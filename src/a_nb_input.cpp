// What the operator does on the screen: press, drag and wheel, the entries of the ten keys, and the
// road of a new value to its owner.
#include "a_ba.h"
#include "a_nb.h"
#include "a_nb_private.h"
#include "bus.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "window.h"
#include <SDL.h>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include "safeguards.h"

constexpr int BUTTON_DEFAULT = 2; // mouse buttons
constexpr int BUTTON_SLIDER = 3;
constexpr Rect TITLE_KEY = {706, 73, 792, 120};
constexpr int GRAB_Y = 40;         // where the mouse is put on the bar, from the slot's top
constexpr bool FROM_SCREEN = true; // the page code hears whether a value came from the screen

// --- Sending a new value ---

// The page code is told the whole number and the exact one.
static void tell(int id, double v)
{
    SendMessage(LMSG_KNOBVAR, id, nb_round(v), FROM_SCREEN, 0);
    SendMessage(LMSG_KNOBFVAR, id, Arg(&v), FROM_SCREEN, 0);
}

static void keep_and_tell(NB_MEM& b, double v)
{
    b.var = v;
    b.var_valid = 1;
    b.redraw = 1;
    if (b.dispvar_enable)
        b.dispvar_time = NB_FRESH_MS;
    tell(b.id, v);
}

static bool is_wipe_rotation_page()
{
    return (GL_NowPage & 0xF00FFFFF) == 0x10060003 || (GL_NowPage & 0xF0FFFFFF) == 0x10650000;
}

static bool rotates_a_wipe(const NB_MEM& b)
{
    if (!is_wipe_rotation_page())
        return false;
    const bool across = strcmp(b.caption, "H") == 0 || strcmp(b.caption, "All") == 0;
    const bool down = strcmp(b.caption, "V") == 0;
    return (across && b.min == -100) || (down && b.min == 100);
}

static void tell_owner(const NB_MEM& b, double v)
{
    if (rotates_a_wipe(b))
        SendMessage(LMSG_KNOBVAR, b.id, Arg(&v), 0, 0); // this page code wants the exact value here
    else
        tell(b.id, v);
}

// False for a type that has no text: its value cannot be put.
static bool put(const NB_MEM& b, double v)
{
    char text[64];
    NB_Text(b, v, text, sizeof text);
    if (!text[0])
        return false;
    Net_SendCommandFormat("put %s#%s", b.cmd, text);
    return true;
}

// The display goes on following the tallies; `var` runs ahead of them, so that quick steps add up.
static void put_fresh(NB_MEM& b, double v)
{
    if (!put(b, v))
        return;
    Net_SendCommandFormat("read %s", b.cmd);
    if (!b.dispvar_enable)
        b.dispvar = b.var;
    b.dispvar_enable = 1;
    b.dispvar_time = NB_FRESH_MS;
    b.var = v;
    b.var_valid = 1;
    b.redraw = 1;
}

// From drag and wheel.
static void send_gesture(NB_MEM& b, double v)
{
    switch (nb_path(b)) {
    case NbPath::Knob: keep_and_tell(b, v); break;
    case NbPath::Server: put_fresh(b, v); break;
    case NbPath::Local:
    case NbPath::Diff: tell_owner(b, v); break;
    case NbPath::None: break;
    }
}

// From the ten keys: one value, which the server's tally confirms.
static int send_entry(NB_MEM* b, double v)
{
    if (!b || !std::isfinite(v))
        return -1;
    switch (nb_path(*b)) {
    case NbPath::Knob: keep_and_tell(*b, v); break;
    case NbPath::Server: (void)put(*b, v); break; // a type without text has nothing to send
    case NbPath::Local:
    case NbPath::Diff: tell_owner(*b, v); break;
    case NbPath::None: break;
    }
    return 0;
}

// Whether the server would take the text for this very value.
static bool is_told_exactly(const NB_MEM& b, double v)
{
    constexpr double SAME = 1e-9;
    char text[64];
    NB_Text(b, v, text, sizeof text);
    return std::fabs(nb_value_of_text(b, text) - v) < SAME;
}

int NB_SendValue(double var)
{
    NB_MEM* b = nb_find(nb.Select);
    const bool is_left_as_it_was = b && var == nb.NowVar;
    if (is_left_as_it_was && nb_path(*b) == NbPath::Server && !is_told_exactly(*b, var))
        return 0;
    return send_entry(b, var);
}

int NB_SendValue2(int id, double var)
{
    return send_entry(nb_find(id), var);
}

int NB_SendTrimValue(double var)
{
    NB_MEM* b = nb_find(nb.Select);
    if (!b || !b->var_valid || !std::isfinite(var))
        return -1;
    return send_entry(b, nb_clamp(*b, b->var + var));
}

// --- Press ---

// 0 beside the slots.
static int slot_at(int y)
{
    if (y < NB_FIRST_TOP || y >= nb_slot_top(NB_SLOTS + 1))
        return 0;
    return (y - NB_FIRST_TOP) / NB_SLOT_H + 1;
}

static void recall_default(const NB_MEM& b)
{
    const NbPath path = nb_path(b);
    if (strstr(b.cmd, "Panel@Common@") || path == NbPath::Local) {
        SendMessage(LMSG_KNOBDEFAULT, b.id, 0, 0, 0);
    } else if (path == NbPath::Server) {
        Net_SendCommandFormat("default %s", b.cmd);
        Net_SendCommandFormat("read %s", b.cmd);
    }
}

// Hold the bar: the mouse is put on the mark, so that the drag begins at the value. Without a value
// there is no mark, and nothing that a drag could begin at.
static void grab(NB_MEM& b, int press_x, int button)
{
    if (!b.var_valid)
        return;
    const double f = b.min == b.max ? 0 : (b.var - b.min) / (b.max - b.min);
    const int x = NB_BAR_X + nb_round(std::clamp(f, 0.0, 1.0) * NB_BAR_W);
    const int slot = nb_slot(b);
    nb.DragSelect = slot;
    nb.Grab = {.press_x = press_x,
               .mark_x = x,
               .var = nb_clamp(b, b.var),
               .by_finger = button != BUTTON_SLIDER};
    b.redraw = 1;
    SDL_WarpMouse(uint16_t(x), uint16_t(nb_slot_top(slot) + GRAB_Y));
}

static void open_ten_keys(NB_MEM& b)
{
    const bool moves_on = nb.Select != 0;
    NB_SetSelect(b.id);
    nb.NowVar = nb_shown_var(b);
    if (b.var_valid)
        NB_Text(b, nb.NowVar, GL_KnobSetVar, sizeof GL_KnobSetVar);
    NB_Text(b, b.min, nb.min_text, sizeof nb.min_text);
    NB_Text(b, b.max, nb.max_text, sizeof nb.max_text);
    if (moves_on)
        Log_Output(LOG_TRACE, MOD_PAGE, "**ischange**");
    // Also when the box that the window was opened for has gone under it: closing the window would
    // take the selection along.
    const bool is_timecode = b.type == NB_TC;
    const WindowArgs args = {.value = GL_KnobSetVar,
                             .min_text = nb.min_text,
                             .max_text = nb.max_text,
                             .current = b.var_valid ? nb.NowVar : double(NAN),
                             .is_timecode = is_timecode};
    if (ChangeWindow(b.caption, args) == 0)
        return;
    if (CreateWindow(is_timecode ? WINDOW_KNOB : WINDOW_KNOB_TRIM, b.caption, args) != 0)
        NB_SetSelect(0); // under a pane
}

static void nb_select(int x, int y, int button)
{
    NB_MEM* b = nb_box_in(slot_at(y));
    if (!b)
        return;
    const bool armed = BA_IsDefaultButton() != 0;
    if (GL_MouseSliderControl && (button == BUTTON_SLIDER || !armed)) {
        grab(*b, x, button);
    } else if (armed) {
        nb_mark(nb.Select);
        recall_default(*b);
        BA_SetDefaultButton(0);
    } else {
        open_ten_keys(*b);
    }
}

int nb_press(int x, int y, int button)
{
    if (!nb.is_open || !Inside(NB_COLUMN, x, y))
        return 0;
    const bool is_left = button != BUTTON_DEFAULT && button != BUTTON_SLIDER;
    if (is_left && Inside(TITLE_KEY, x, y)) {
        nb_next_layer();
        return 0;
    }
    const NB_MEM* const b = nb_box_in(slot_at(y));
    if (!b || nb_refuses())
        return 0;
    if (button == BUTTON_DEFAULT)
        recall_default(*b);
    else
        nb_select(x, y, button);
    return 0;
}

// --- Drag ---

int nb_release()
{
    if (NB_MEM* b = nb_box_in(nb.DragSelect))
        b->redraw = 1;
    nb.DragSelect = 0;
    return 0;
}

static bool is_crop_page()
{
    return GL_NowPage == 0x41110000 || (GL_NowPage & 0xF00FFFFF) == 0x10050002;
}

// A crop of both sides at once has one sense only.
static double crop_limit(const NB_MEM& b, double v)
{
    if (nb_path(b) != NbPath::Server || !is_crop_page())
        return v;
    if (strstr(b.cmd, "@Border/Crop@Crop@H") || strstr(b.cmd, "@Border/Crop@Crop@All"))
        return std::min(v, 0.0);
    if (strstr(b.cmd, "@Border/Crop@Crop@V"))
        return std::max(v, 0.0);
    return v;
}

// A tap puts nothing on the air: a value moves once the pointer has left the place of the press. A
// mouse leaves it by being put on the mark, where the value is; a finger by drawing along.
static bool is_moving(NbGrab& g, int x)
{
    constexpr int TREMBLE_PX = 6; // so far a finger rolls in a tap
    constexpr int AT_MARK_PX = 2;
    if (g.is_moving || std::abs(x - g.press_x) <= TREMBLE_PX)
        return g.is_moving;
    g.is_moving = true;
    const int edge = x < g.press_x ? g.press_x - TREMBLE_PX : g.press_x + TREMBLE_PX;
    g.from_x = std::abs(x - g.mark_x) <= AT_MARK_PX ? g.mark_x : edge;
    return true;
}

// The bar has fewer places than most values have steps: back on the mark the value is what it was.
static double value_at(const NB_MEM& b, const NbGrab& g, int x)
{
    const double range = b.max - b.min;
    if (g.by_finger)
        return g.var + range * (x - g.from_x) / NB_BAR_W;
    return x == g.mark_x ? g.var : b.min + range * (x - NB_BAR_X) / NB_BAR_W;
}

int nb_drag(int x, bool left_held, bool right_held)
{
    NB_MEM* b = nb_box_in(nb.DragSelect);
    // Whichever button has grabbed the bar drags it: a finger has only the left one.
    if (!b || !(left_held || right_held) || !is_moving(nb.Grab, x))
        return 0;
    const double v = crop_limit(*b, nb_clamp(*b, value_at(*b, nb.Grab, x)));
    if (v != b->var)
        send_gesture(*b, v);
    return 0;
}

// --- Wheel ---

static struct {
    uint32_t up_ms = 0; // SDL_GetTicks of the last step
    uint32_t down_ms = 0;
} wheel;

// The time since the last step, at least 1 ms: a burst runs ahead of the clock, a millisecond a
// step.
static uint32_t step_time(uint32_t& last_ms)
{
    constexpr uint32_t AHEAD = 0xFFFF0000;
    uint32_t now_ms = SDL_GetTicks();
    if (now_ms - last_ms - 1 >= AHEAD)
        now_ms = last_ms + 1;
    const uint32_t elapsed_ms = now_ms - last_ms;
    last_ms = now_ms;
    return elapsed_ms;
}

// The quicker the wheel, the larger the step: a hundredth of the range with 10 ms between steps.
// What counts in ones goes by ones.
static double wheel_step(const NB_MEM& b, uint32_t elapsed_ms)
{
    if (b.type == NB_INT || b.type == NB_TC)
        return b.max < b.min ? -1 : 1;
    return 10.0 / elapsed_ms * (b.max - b.min) / 100;
}

static int turn_wheel(int x, int y, int sense, uint32_t& last_ms)
{
    NB_MEM* b = nb.is_open && Inside(NB_COLUMN, x, y) ? nb_box_in(slot_at(y)) : nullptr;
    if (!b || nb_refuses())
        return 0;
    const double step = wheel_step(*b, step_time(last_ms));
    if (b->var_valid)
        send_gesture(*b, nb_clamp(*b, b->var + sense * step));
    return 0;
}

int nb_wheel_up(int x, int y)
{
    return turn_wheel(x, y, -1, wheel.up_ms);
}

int nb_wheel_down(int x, int y)
{
    return turn_wheel(x, y, 1, wheel.down_ms);
}
