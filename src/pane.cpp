#include "pane.h"
#include "bus.h"
#include "log.h"
#include "memory.h"
#include "message.h"
#include "pane_private.h"
#include "saver.h"
#include "tdl.h"
#include "window.h"
#include <algorithm>
#include <climits>

#include "safeguards.h"

constexpr int PUSHED_MS = 150;
constexpr int REPEAT_FIRST_MS = 300; // a held arrow
constexpr int REPEAT_MS = 50;

static PANE* PaneRoot = nullptr; // the lowest pane
static bool GroundSaved = false; // what all panes stand on is in the screen save
int PaneID = 0;

// --- The stack ---

PANE* pane_bottom()
{
    return PaneRoot;
}

PANE* pane_top()
{
    PANE* pane = PaneRoot;
    while (pane && pane->next)
        pane = pane->next;
    return pane;
}

PANE* pane_find(int id)
{
    for (PANE* pane = PaneRoot; pane; pane = pane->next)
        if (pane->id == id)
            return pane;
    return nullptr;
}

PANE* pane_find_type(TYPE type)
{
    PANE* found = nullptr;
    for (PANE* pane = PaneRoot; pane; pane = pane->next)
        if (pane->type == type)
            found = pane;
    return found;
}

static void pane_free(PANE* pane)
{
    GDL_Free(pane->button);
    GDL_Free(pane->caption);
    GDL_Free(pane);
}

static PANE* pane_allocate(const char* caption, int button_max)
{
    auto* pane = static_cast<PANE*>(GDL_Calloc(1, sizeof(PANE)));
    if (!pane)
        return nullptr;
    pane->button = static_cast<BUTTON*>(GDL_Calloc(size_t(button_max) + 1, sizeof(BUTTON)));
    pane->caption = GDL_StrDup(caption ? caption : "");
    if (!pane->button || !pane->caption) {
        pane_free(pane);
        return nullptr;
    }
    pane->button[0].id = BUTTON_END;
    pane->button_max = button_max;
    return pane;
}

PANE* pane_create(TYPE type, const char* caption, const Rect& place, int button_max)
{
    CloseWindow();
    EndScreenSaver();
    PANE* pane = pane_allocate(caption, button_max);
    if (!pane) {
        Log_Output(LOG_ALWAYS, MOD_GLOBAL, "No memory for a pane: %s", caption);
        return nullptr;
    }
    PaneID = PaneID == INT_MAX ? 1 : PaneID + 1;
    pane->id = PaneID;
    pane->type = type;
    pane->x = place.x1;
    pane->y = place.y1;
    pane->w = place.x2 - place.x1 + 1;
    pane->h = place.y2 - place.y1 + 1;
    pane->redraw = 1;
    PANE** end = &PaneRoot;
    while (*end)
        end = &(*end)->next;
    *end = pane;
    return pane;
}

BUTTON* pane_add(PANE* pane, const BUTTON& row)
{
    if (pane->button_num >= pane->button_max)
        return nullptr;
    BUTTON* b = &pane->button[pane->button_num++];
    *b = row;
    button_create(b);
    b[1].id = BUTTON_END;
    return b;
}

static bool is_arrow(const BUTTON& b)
{
    return b.type == LOOK_UP || b.type == LOOK_DOWN;
}

// Also below the top: a pane that opened under the finger must not leave an arrow running.
static void release_arrows()
{
    for (PANE* pane = PaneRoot; pane; pane = pane->next) {
        for (BUTTON* b = pane->button; b->id != BUTTON_END; b++) {
            if (!is_arrow(*b) || b->pushed == 0)
                continue;
            b->pushed = 0;
            b->redraw = 1;
        }
    }
}

// --- The ground ---

// From the corner of the work area; the screen cuts it.
constexpr Rect GROUND = {97, 73, 97 + 702 - 1, 73 + 526 - 1};

static void save_ground(const Rect& r)
{
    TDL_PushScreen(r.x1, r.y1, r.x2 - r.x1 + 1, r.y2 - r.y1 + 1);
    GroundSaved = true;
}

// A pane may open in the midst of a repaint, with objects of the page yet to be painted in the same
// pass. So the ground is saved when the first pane is painted, and not when it opens.
static void paint_all()
{
    if (PaneRoot && !GroundSaved)
        save_ground(GROUND);
    for (PANE* pane = PaneRoot; pane; pane = pane->next)
        pane_draw_all(pane);
}

// All panes anew on the ground that was saved.
static void repaint_all()
{
    TDL_PopScreen();
    paint_all();
}

void Pane_RedrawAll()
{
    paint_all();
    Window_RedrawAll();
}

static void unlink_pane(int id)
{
    for (PANE** at = &PaneRoot; *at; at = &(*at)->next) {
        if ((*at)->id != id)
            continue;
        PANE* pane = *at;
        *at = pane->next;
        pane_free(pane);
        return;
    }
}

static void pane_delete(int id)
{
    unlink_pane(id);
    if (!GroundSaved)
        return; // none of them has been painted yet
    repaint_all();
    if (!PaneRoot)
        GroundSaved = false;
    Window_RedrawAll();
}

void Pane_WindowOpens(const Rect& box)
{
    release_arrows(); // the window takes the release
    if (GroundSaved)
        TDL_PopScreen();
    save_ground({std::min(box.x1, GROUND.x1), std::min(box.y1, GROUND.y1),
                 std::max(box.x2, GROUND.x2), std::max(box.y2, GROUND.y2)});
    paint_all();
}

void Pane_WindowCloses()
{
    TDL_PopScreen();
    save_ground(GROUND);
    paint_all();
}

// --- The end of a pane ---

static void pane_quit(PANE* pane)
{
    const int id = pane->id;
    const bool is_told = pane->quitmem != QUIT_BY_CODE;
    const int result = pane_result(pane);
    const int type = pane->type;
    pane_release(pane);
    pane_delete(id);
    if (type == TYPE_FRAME)
        frame_closed();
    if (is_told)
        SendMessage(LMSG_PANEQUIT, id, result, 0, 0);
}

static PANE* pane_about_to_quit()
{
    for (PANE* pane = PaneRoot; pane; pane = pane->next)
        if (pane->quitmem != 0)
            return pane;
    return nullptr;
}

static void quit_panes()
{
    while (PANE* pane = pane_about_to_quit())
        pane_quit(pane);
}

int Pane_Quit(int id)
{
    PANE* pane = pane_find(id);
    if (!pane)
        return -1;
    pane->quitmem = QUIT_BY_CODE;
    pane_quit(pane);
    return 0;
}

int Pane_SetQuitFlag(int id)
{
    PANE* pane = pane_find(id);
    if (!pane)
        return -1;
    pane->quitmem = QUIT_BY_CODE;
    return 0;
}

int Pane_GetActiveID()
{
    const PANE* pane = pane_top();
    return pane ? pane->id : 0;
}

int Pane_Exist(int id)
{
    return pane_find(id) != nullptr;
}

// --- Press and release ---

static bool is_radio(const BUTTON& b)
{
    return b.type == LOOK_POPUP || b.type == LOOK_FMOUT;
}

bool pane_has_input(const PANE* pane, const BUTTON& b)
{
    if (b.hidden)
        return false;
    const int page_size = pane_kind(pane).page_size;
    if (page_size == 0 || b.id >= BTN_CANCEL)
        return true;
    return int(&b - pane->button) / page_size == pane->each.directory.now_page;
}

// One of the buttons is on at a time.
static void press_radio(PANE* pane, BUTTON* pressed)
{
    pressed->silent = pressed->onoff != 0;
    for (BUTTON* b = pane->button; b->id != BUTTON_END; b++) {
        if (b == pressed || !is_radio(*b) || !b->onoff)
            continue;
        b->onoff = 0;
        b->redraw = 1;
    }
    pressed->onoff = 1;
}

static void press_button(PANE* pane, BUTTON* b)
{
    b->redraw = 1;
    b->pushed = PUSHED_MS;
    if (is_arrow(*b)) {
        b->pushed = REPEAT_FIRST_MS;
        SendMessage(LMSG_PANEBTNSEL, b->id, Arg(b), 0, 0);
        return;
    }
    if (b->type == LOOK_ITEM || b->type == LOOK_LONG_ITEM)
        b->onoff = 1;
    if (is_radio(*b))
        press_radio(pane, b);
}

static BUTTON* button_at(PANE* pane, int x, int y)
{
    for (BUTTON* b = pane->button; b->id != BUTTON_END; b++)
        if (pane_has_input(pane, *b) && Inside({b->x1, b->y1, b->x2, b->y2}, x, y))
            return b;
    return nullptr;
}

static int pane_press(PANE* pane, int x, int y)
{
    if (pane->type == TYPE_FIND && pane->each.find.indicator)
        return 1; // it is searching
    if (pane->quitmem != 0)
        return 1; // it is answered
    x -= pane->x;
    y -= pane->y;
    BUTTON* b = button_at(pane, x, y);
    if (!b)
        pane_press_beside(pane, !Inside({0, 0, pane->w - 1, pane->h - 1}, x, y));
    else if (!b->disable)
        press_button(pane, b);
    return 1;
}

// --- Repaint ---

// The push of a button has run out. Sends last: the pane may be gone afterwards.
static void end_push(PANE* pane, BUTTON* b)
{
    if (is_arrow(*b)) {
        b->pushed = REPEAT_MS;
        SendMessage(LMSG_PANEBTNSEL, b->id, Arg(b), 0, 0);
        return;
    }
    b->pushed = 0;
    button_draw(pane, b);
    if (b->type == LOOK_PREV_PAGE || b->type == LOOK_NEXT_PAGE) {
        pane_turn_page(pane, b->type == LOOK_NEXT_PAGE ? 1 : -1);
        return;
    }
    if (b->silent) {
        b->silent = 0;
        return;
    }
    SendMessage(LMSG_PANEBTNSEL, b->id, Arg(b), 0, 0);
}

static void run_buttons(int pane_id, int elapsed_ms)
{
    PANE* pane = pane_find(pane_id);
    for (int i = 0; pane && pane->button[i].id != BUTTON_END; i++) {
        BUTTON* b = &pane->button[i];
        if (b->redraw)
            button_draw(pane, b);
        if (b->pushed <= 0)
            continue;
        b->pushed -= elapsed_ms;
        if (b->pushed > 0)
            continue;
        end_push(pane, b);
        pane = pane_find(pane_id);
        if (pane != pane_top() || GetWindow() != WINDOW_NONE)
            return; // the rest waits until what has opened is answered
        if (pane && pane->quitmem != 0)
            return; // the first answer counts
    }
}

static bool is_stale(const PANE* pane)
{
    return pane->redraw || pane->text_redraw || pane->inside_redraw ||
           (pane->type == TYPE_PROGRESS && pane->each.progress.prog_redraw);
}

// A pane that changed under others can't be painted alone: what covers it, shadows too, comes again
// over the saved ground.
static bool repaint_covered(const PANE* top)
{
    for (const PANE* pane = PaneRoot; pane != top; pane = pane->next) {
        if (!is_stale(pane))
            continue;
        repaint_all();
        return true;
    }
    return false;
}

static void repaint(PANE* top)
{
    if (!GroundSaved) {
        paint_all();
        return;
    }
    if (repaint_covered(top))
        return;
    if (top->redraw) {
        pane_draw_all(top);
        return;
    }
    if (top->inside_redraw)
        pane_draw_inside(top);
    if (top->text_redraw)
        pane_draw_text(top);
    top->text_redraw = 0;
    if (top->type != TYPE_PROGRESS || !top->each.progress.prog_redraw)
        return;
    pane_draw_progress(top);
    top->each.progress.prog_redraw = 0;
}

static int pane_redraw(PANE* top, int elapsed_ms, MsgArg bx, MsgArg cx, MsgArg dx)
{
    const int id = top->id;
    repaint(top);
    run_buttons(id, elapsed_ms);
    SendMessage(MSG_PANETICK, elapsed_ms, bx, cx, dx);
    quit_panes();
    return 1;
}

// A window stands above: it paints and takes the input. What waits for an answer from a pane waits
// on, but code may close one, and the page goes on ticking.
static int pane_under_window(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    if (msg != MSG_REDRAW)
        return 0;
    SendMessage(MSG_PANETICK, ax, bx, cx, dx);
    quit_panes();
    return 0;
}

static bool is_input(int msg)
{
    switch (msg) {
    case MSG_PRESS:
    case MSG_RELEASE:
    case MSG_DRAG:
    case MSG_KEY:
    case MSG_WHEELUP:
    case MSG_WHEELDOWN: return true;
    default: return false;
    }
}

int PaneProc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    PANE* top = pane_top();
    if (!top)
        return 0;
    if (GetWindow() != WINDOW_NONE && (msg == MSG_REDRAW || is_input(msg)))
        return pane_under_window(msg, ax, bx, cx, dx);
    switch (msg) {
    case MSG_REDRAW: return pane_redraw(top, int(ax), bx, cx, dx);
    case MSG_PRESS: return pane_press(top, int(ax), int(bx));
    case MSG_RELEASE: release_arrows(); return 1;
    case MSG_DRAG:
    case MSG_KEY:
    case MSG_WHEELUP:
    case MSG_WHEELDOWN: return 1;
    // Only the top pane sends it: a pane that is covered runs no buttons.
    case LMSG_PANEBTNSEL: pane_select(top, int(ax)); return 0;
    default:
        if (pane_find_type(TYPE_FRAME))
            (void)keyframerunctrl_proc(msg, ax, bx, cx, dx); // tallies pass on to the page
        return 0;
    }
}
