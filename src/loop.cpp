#include "loop.h"
#include "a_dw.h"
#include "a_ff.h"
#include "a_kf.h"
#include "a_kp.h"
#include "a_ls.h"
#include "bus.h"
#include "colours.h"
#include "debug.h"
#include "display.h"
#include "fmctrl3.h"
#include "global.h"
#include "initread.h"
#include "loop_log.h"
#include "menu_macro.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "ready.h"
#include "saver.h"
#include "screen_capture.h"
#include "scrollbar.h"
#include "selfdiag.h"
#include "tdl.h"
#include "text.h"
#include "touch.h"
#include "types.h"
#include "window.h"
#include <cstdlib>
#include "safeguards.h"

uint32_t TickNow = 0;
uint32_t TickBefore = 0;
uint32_t MBDownNow = 0;
uint32_t MBDownBefore = 0;
int MBDown = 0;

namespace
{
constexpr int PASS_MS = 10;
constexpr int ELAPSED_MAX_MS = 5000; // no timer ever sees a larger step
constexpr int SELFDIAG_MS = 5000;
constexpr int MOTIONS_A_PASS = 9;
// Between two questions of the display: while a key is held, which repeats in that time, and in any
// case.
constexpr int KEY_PASSES = 3;
constexpr int DISPLAY_PASSES = 16;
constexpr uint32_t STAGE0_PASSES = 100;
constexpr uint32_t STAGE1_PASSES = 300;
constexpr uint32_t STAGE2_PASSES = 2000;
constexpr uint32_t PROGRESS_PASSES = 3000;

// One step of the initial read: armed while the pass counter has not gone by, run once when it has.
struct Stage {
    uint32_t after_passes = 0;
    void (*command)() = nullptr;
};
constexpr Stage stages[] = {
    {STAGE0_PASSES, InitialCommand0},
    {STAGE1_PASSES, InitialCommand1},
    {STAGE2_PASSES, InitialCommand2},
};
} // namespace

static struct {
    int selfdiag_ms = 0;             // gathered since the last poll
    int display_passes = 0;          // since the display was asked
    int held_key = SDLK_UNKNOWN;     // the last one that went down
    bool is_drained = false;         // the library's queue: nothing waits in it
    uint32_t event_check_before = 0; // TickBefore of MainEventCheck
    LoopFigures figures;
    bool armed[sizeof stages / sizeof *stages] = {}; // by stage
} loop;

void Loop_Reset()
{
    loop = {};
    LoopLog_Reset();
    TickNow = TickBefore = MBDownNow = MBDownBefore = 0;
    MBDown = 0;
    Touch_Reset();
}

// Wait for the rest of a pass of 10 ms. Returns the elapsed ms, 10 to 5000; a clock that was set
// back counts as 10.
static int loop_pace(uint32_t now, uint32_t before)
{
    const uint32_t delta = now - before;
    if (now < before) {
        SDL_Delay(PASS_MS);
        return PASS_MS;
    }
    if (delta < PASS_MS) {
        SDL_Delay(PASS_MS - delta);
        return PASS_MS;
    }
    return delta > ELAPSED_MAX_MS ? ELAPSED_MAX_MS : int(delta);
}

// What a pass erases and paints reaches the display as one picture.
static void loop_redraw(int elapsed_ms)
{
    TDL_Hold();
    SendMessage(MSG_REDRAW, elapsed_ms, 0, 0, 0);
    TDL_Release();
}

void RefreshScreen()
{
    TDL_Hold();
    SendMessage(MSG_REDRAW, 0, 0, 0, 0);
    TDL_UpdateScreen();
    TDL_Release();
}

// --- Events ---

// The picture is carried over by a copy of its own: the saved screen belongs to an open pane or
// window. A mode that cannot be had leaves the old one.
static void loop_set_video(uint32_t flags)
{
    SDL_Surface* const picture = SDL_DisplayFormat(Screen);
    const uint32_t old_flags = Screen->flags & SDL_FULLSCREEN;
    SDL_Surface* changed = SDL_SetVideoMode(SCREEN_W, SCREEN_H, 0, flags);
    if (!changed)
        changed = SDL_SetVideoMode(SCREEN_W, SCREEN_H, 0, old_flags);
    if (changed)
        Screen = changed;
    if (!picture || TDL_Put(0, 0, picture) != 0)
        TDL_FillRect(0, 0, SCREEN_W - 1, SCREEN_H - 1, BLACK);
    SDL_FreeSurface(picture);
}

static void loop_key(const SDL_KeyboardEvent& key)
{
    SendMessage(MSG_KEY, key.keysym.sym, key.keysym.mod, 0, 0);
    if (GL_DebugMode) {
        switch (key.keysym.sym) {
        case SDLK_F1: exit(0);
        case SDLK_F3: loop_set_video(SDL_FULLSCREEN); break;
        case SDLK_F4: loop_set_video(0); break;
        case SDLK_F5: KF_Init(); break;
        default: break;
        }
    }
    if (key.keysym.sym == SDLK_F10)
        Screen_Capture();
}

static void loop_drag(const SDL_MouseMotionEvent& motion)
{
    SendMessage(MSG_DRAG, motion.x, motion.y, motion.state & 1, motion.state & 4);
}

// A drag must not lag behind its queue: the motions that wait are delivered in the same pass.
static void loop_motion(const SDL_MouseMotionEvent& motion)
{
    loop_drag(motion);
    SDL_Event more;
    for (int n = 1; n < MOTIONS_A_PASS; n++) {
        if (SDL_PeepEvents(&more, 1, SDL_GETEVENT, SDL_MOUSEMOTIONMASK) != 1)
            break;
        loop_drag(more.motion);
    }
    if (EndScreenSaver()) {
        // The finger that woke the screen counts as already down.
        MBDown = 1;
        MBDownBefore = SDL_GetTicks();
    }
}

// A contact bounces: a press soon after the last one is none. The clock is compared as a signed
// difference, and one that was set back passes.
static bool loop_is_genuine_press()
{
    MBDownNow = SDL_GetTicks();
    return int32_t(MBDownNow - MBDownBefore) > GL_ChatteringTime || MBDownNow < MBDownBefore;
}

static void loop_press(int x, int y, int button)
{
    if (loop_is_genuine_press() && EndScreenSaver() == 0) {
        if (GL_ScreenCapture && button == SDL_BUTTON_RIGHT)
            Screen_Capture();
        SendMessage(MSG_PRESS, x, y, button, 0);
        MBDown = 1;
    }
    // A filtered press counts too: a bouncing contact stays filtered until it has been quiet for
    // the whole time.
    MBDownBefore = MBDownNow;
    MenuDspPos_X = x;
    MenuDspPos_Y = y;
    MenuMacro_TouchCount++;
}

// Turn a wheel step over an object with arrows into a press on the arrow. Only the first kind that
// the page has and that answers counts.
static bool loop_wheel_to_press(int* x, int* y, int button)
{
    // What stands over the page would take the press for its own, or for one beside it.
    if (GetWindow() || Pane_GetActiveID())
        return false;
    return (IsObjetype(OBJ_LS) && LS_ConvPosForWheel(x, y, button)) ||
           (IsObjetype(OBJ_DW) && DW_ConvPosForWheel(x, y, button)) ||
           (IsObjetype(OBJ_KP) && KP_ConvPosForWheel(x, y, button)) ||
           (IsObjetype(OBJ_FF) && FF_ConvPosForWheel(x, y, button));
}

static void loop_wheel(int x, int y, int button)
{
    if (IsSaver()) {
        (void)EndScreenSaver(); // what wakes the screen turns nothing: nobody sees what it would be
        return;
    }
    if (GL_MouseWheelDirection == 1)
        button = button == SDL_BUTTON_WHEELUP ? SDL_BUTTON_WHEELDOWN : SDL_BUTTON_WHEELUP;
    SendMessage(button == SDL_BUTTON_WHEELUP ? MSG_WHEELUP : MSG_WHEELDOWN, x, y, 0, 0);
    if (!loop_wheel_to_press(&x, &y, button))
        return;
    if (EndScreenSaver() != 0)
        return;
    SB_IgnoreRedraw(1);
    SendMessage(MSG_PRESS, x, y, 0, 0);
}

static void loop_button_down(const SDL_MouseButtonEvent& b)
{
    if (MBDown)
        return;
    if (b.button == SDL_BUTTON_WHEELUP || b.button == SDL_BUTTON_WHEELDOWN)
        loop_wheel(b.x, b.y, b.button);
    else
        loop_press(b.x, b.y, b.button);
}

void Loop_Event(SDL_Event* event)
{
    switch (event->type) {
    case SDL_KEYDOWN:
        loop.held_key = event->key.keysym.sym;
        loop_key(event->key);
        break;
    case SDL_KEYUP:
        if (event->key.keysym.sym == loop.held_key)
            loop.held_key = SDLK_UNKNOWN;
        break;
    case SDL_MOUSEMOTION: loop_motion(event->motion); break;
    case SDL_MOUSEBUTTONDOWN: loop_button_down(event->button); break;
    // A release always goes out, even when its press was filtered; MBDown falls with an empty queue
    // only.
    case SDL_MOUSEBUTTONUP: SendMessage(MSG_RELEASE, event->button.x, event->button.y, 0, 0); break;
    default: break;
    }
}

// To ask the display for events takes the library four calls of the kernel, each pass. One that has
// told of none is asked now and then only: the library's own clock repeats a key that is held, and
// what was read along with the answer to a flush is told by nothing. Where the driver does not say
// how it tells, it is always asked.
static bool loop_asks_display()
{
    const int passes = loop.held_key == SDLK_UNKNOWN ? DISPLAY_PASSES : KEY_PASSES;
    const bool has_flushed = TDL_HasFlushed();
    const bool is_due = ++loop.display_passes >= passes;
    const bool is_touched = Touch_FD >= 0 && !Ready_IsQuiet(READY_TOUCH); // the pointer follows
    return !Ready_IsQuiet(READY_DISPLAY) || Display_HasEvents() || has_flushed || is_touched ||
           is_due;
}

// Whoever pushes an event himself is the touch panel, when it was not quiet.
static bool loop_take_event(SDL_Event* event)
{
    if (loop_asks_display()) {
        loop.display_passes = 0;
        loop.is_drained = SDL_PollEvent(event) != 1;
    } else if (!loop.is_drained || !Ready_IsQuiet(READY_TOUCH)) {
        loop.is_drained = SDL_PeepEvents(event, 1, SDL_GETEVENT, SDL_ALLEVENTS) != 1;
    }
    return !loop.is_drained;
}

// One event a pass. Returns true when the window was closed.
static bool loop_one_event()
{
    SDL_Event event;
    if (!loop_take_event(&event)) {
        MBDown = 0;
        return false;
    }
    if (event.type == SDL_QUIT)
        return true;
    Loop_Event(&event);
    return false;
}

// --- The parts of a pass ---

static void loop_selfdiag(int elapsed_ms)
{
    loop.selfdiag_ms += elapsed_ms;
    if (loop.selfdiag_ms < SELFDIAG_MS)
        return;
    SelfDiag_I2C_Update(loop.selfdiag_ms);
    loop.selfdiag_ms = 0;
}

static void loop_figure_pass(int busy_ms)
{
    LoopFigures& f = loop.figures;
    f.passes++;
    f.busy_ms += uint32_t(busy_ms);
    if (busy_ms <= f.longest_ms)
        return;
    f.longest_ms = busy_ms;
    f.longest_page = GL_NowPage;
}

static void loop_figure_page(uint32_t id, int ms)
{
    LoopFigures& f = loop.figures;
    f.changes++;
    f.page = id;
    f.page_ms = ms;
    if (ms <= f.page_longest_ms)
        return;
    f.page_longest_ms = ms;
    f.page_longest = id;
}

const LoopFigures& Loop_Figures()
{
    return loop.figures;
}

void Loop_ResetFigures()
{
    loop.figures = {.since = TickNow};
}

// The page change waits while something stands over the page.
static void loop_page_change()
{
    if (!GL_CreatePage || GL_ScreenSaver_Now || GetWindow() || Pane_GetActiveID())
        return;
    const uint32_t id = GL_CreatePage;
    const uint32_t begun = SDL_GetTicks();
    // A page that cannot be resolved leaves the old one: the request is over all the same.
    if (CreatePage(id) == 0)
        loop_figure_page(GL_NowPage, int(SDL_GetTicks() - begun));
    // What opening the page requested in its turn stands for the next pass.
    if (GL_CreatePage == id)
        GL_CreatePage = 0;
}

static void loop_counter()
{
    GL_MainCounter++;
    if (!GL_LoopCounter)
        return;
    char text[16];
    PrintText(text, "%u", unsigned(GL_MainCounter));
    TDL_FillRectS(730, 2, 799, 11, 0);
    TDL_Symbol(730, 2, text, 0, WHITE);
}

// The schedule of the initial read runs on passes, not on time: a loop slowed by heavy repaints
// stretches it. A restart sets the counter back, which arms all stages again.
static void loop_initial_read()
{
    if (!GL_InitRead)
        return;
    for (size_t i = 0; i < sizeof stages / sizeof *stages; i++) {
        if (GL_MainCounter <= stages[i].after_passes) {
            loop.armed[i] = true;
        } else if (loop.armed[i]) {
            stages[i].command();
            loop.armed[i] = false;
        }
    }
}

static void loop_progress()
{
    if (!GL_InitProgress)
        return;
    if (GL_MainCounter <= PROGRESS_PASSES) {
        PaneProgress_SetProg(GL_InitProgress_PaneID, int(GL_MainCounter / 30), "");
        return;
    }
    GL_InitProgress = 0;
    Pane_Quit(GL_InitProgress_PaneID);
    if (InitialProgress_HasScreen())
        GL_CreatePage = GL_InitialPage;
    for (int n = 0; n < MENU_MACRO_REGISTERS; n++)
        mm_macro_file_load(n);
}

static void loop_hub_reconnect()
{
    if (!GL_NetReConnect_SHP)
        return;
    // The old subscriptions are withdrawn first, so that the hub never holds two.
    DeathCommandSHP();
    FMCtrl3_Clear(0);
    InitialCommandSHP();
    GL_NetReConnect_SHP = 0;
}

// Everything that comes in and goes out. Returns whether the window was closed.
static bool loop_links_and_events(int elapsed_ms)
{
    Ready_Ask();
    ReceiveCommand_Management();
    LoopLog_Step(STEP_RECEIVE);
    (void)Net_SendCommandQueue(); // a failed send keeps its item: the next pass tries again
    (void)Net_SendBinCommandQueue();
    (void)Net_SendSHPCommandQueue(elapsed_ms);
    LoopLog_Step(STEP_SEND);
    Touch_Poll(elapsed_ms);
    const bool is_last = loop_one_event();
    LoopLog_Step(STEP_EVENT);
    return is_last;
}

static void loop_screen(int elapsed_ms)
{
    loop_page_change();
    LoopLog_Step(STEP_PAGE);
    loop_redraw(elapsed_ms);
    LoopLog_Step(STEP_REDRAW);
    if (GL_ErrorPopup_On)
        EndScreenSaver();
    else
        ScreenSaver(elapsed_ms);
    LoopLog_Step(STEP_SAVER);
}

int MainPass()
{
    TickNow = SDL_GetTicks();
    const int elapsed_ms = loop_pace(TickNow, TickBefore);
    TickBefore = SDL_GetTicks();
    LoopLog_Begin();
    loop_selfdiag(elapsed_ms);
    LoopLog_Step(STEP_SELFDIAG);
    const bool is_last = loop_links_and_events(elapsed_ms);
    loop_screen(elapsed_ms);
    GL_NetReConnect = 0; // the server announces itself by tally: nothing to do here
    loop_counter();
    loop_initial_read();
    loop_progress();
    loop_hub_reconnect();
    if (GL_AllPageDisplayMode)
        GL_AllPageSet();
    LoopLog_Step(STEP_READ);
    const int busy_ms = int(SDL_GetTicks() - TickBefore);
    loop_figure_pass(busy_ms);
    LoopLog_End(elapsed_ms, busy_ms);
    return is_last;
}

void MainEventCheck()
{
    const uint32_t now = SDL_GetTicks();
    const int elapsed_ms = loop_pace(now, loop.event_check_before);
    loop.event_check_before = SDL_GetTicks();

    SDL_Event e;
    if (SDL_PollEvent(&e)) {
        switch (e.type) {
        case SDL_MOUSEMOTION:
            SendMessage(MSG_DRAG, e.motion.x, e.motion.y, e.motion.state & 1, 0);
            break;
        case SDL_MOUSEBUTTONDOWN:
            SendMessage(MSG_PRESS, e.button.x, e.button.y, e.button.button, 0);
            break;
        case SDL_MOUSEBUTTONUP: SendMessage(MSG_RELEASE, e.button.x, e.button.y, 0, 0); break;
        case SDL_KEYDOWN: SendMessage(MSG_KEY, e.key.keysym.sym, e.key.keysym.mod, 0, 0); break;
        default: break;
        }
    }
    loop_redraw(elapsed_ms);
}
