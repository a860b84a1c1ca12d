// Messages, progress, pull-downs and selections.
#include "a_pc.h"
#include "box.h"
#include "bus.h"
#include "colours.h"
#include "command.h"
#include "graphics.h"
#include "message.h"
#include "netio.h"
#include "page_table/pulldowns.h"
#include "tdl.h"
#include "text.h"
#include "window_private.h"
#include <SDL.h>
#include <algorithm>
#include <cstring>
#include "safeguards.h"

constexpr unsigned LIST_GROUND = 0x2A2F32;
constexpr int CELLS_MAX = WINOBJ_MAX - 1;

// --- Message and progress ---

constexpr int BOX_W = 401;
constexpr int BOX_H = 300;
constexpr Rect BAR = {30, 65, 370, 87};

static Rect message_well()
{
    return {30, win.Window == WINDOW_PROGRESS ? 100 : 65, 370, 235};
}

static Rect on_screen(const Rect& r)
{
    return {win.WinX + r.x1, win.WinY + r.y1, win.WinX + r.x2, win.WinY + r.y2};
}

static void draw_message_s()
{
    const Rect well = message_well();
    Box_Sunk(on_screen(well), 0xF5F5F5, BOX_SUNK_EDGE);
    TDL_SymbolBS(win.WinX + well.x1 + 12, win.WinY + well.y1 + 12, well.x2 - well.x1 - 24,
                 well.y2 - well.y1 - 16, win.message, 4, BLACK, 0);
}

static void draw_progress_s()
{
    Box_Progress(on_screen(BAR), BOX_SUNK_EDGE, win.percent);
}

static void mbox_open(const WindowArgs& args)
{
    window_size(args, BOX_W, BOX_H);
    CopyText(win.message, args.message ? args.message : "");
    if (args.no_button)
        return;
    if (args.is_yes_no) {
        window_add(KEY_ENTER, "Yes", LOOK_BOX, 96, 247);
        window_add(KEY_CANCEL, "No", LOOK_BOX, 211, 247);
    } else {
        window_add(KEY_ENTER, "OK", LOOK_BOX, 153, 247);
    }
}

// Without anybody to hear of a cancel there is no key for it.
static void progress_open(const WindowArgs& args)
{
    window_size(args, BOX_W, BOX_H);
    CopyText(win.message, args.message ? args.message : "");
    if (args.ok)
        window_add(KEY_ENTER, "Cancel", LOOK_BOX, 153, 247);
}

static void mbox_draw()
{
    window_light_frame();
    window_draw_title(30, 20, BLACK);
    if (win.Window == WINDOW_PROGRESS)
        draw_progress_s();
    draw_message_s();
}

static void mbox_quit(int v)
{
    const WindowState last = window_end();
    if (v == 0 && last.OKFunc)
        last.OKFunc(last.OKVar);
}

static void mbox_sel(int id)
{
    mbox_quit(id == KEY_ENTER ? 0 : 1);
}

// Only keys that the box has. Of a question Escape is the "No"; an "OK" takes both.
static int mbox_key_id(int sym, int)
{
    const bool enters = sym == SDLK_RETURN || sym == SDLK_KP_ENTER;
    if (!enters && sym != SDLK_ESCAPE)
        return 0;
    const int id = !enters && window_key(KEY_CANCEL) ? KEY_CANCEL : KEY_ENTER;
    return window_key(id) ? id : 0;
}

// A progress is cancelled by Escape alone.
static int progress_key_id(int sym, int)
{
    return sym == SDLK_ESCAPE && window_key(KEY_ENTER) ? KEY_ENTER : 0;
}

const WindowKind mbox_kind = {WINDOW_MESSAGE, mbox_open,   mbox_draw, mbox_sel,
                              mbox_quit,      mbox_key_id, 1,         false};
const WindowKind progress_kind = {WINDOW_PROGRESS, progress_open,   mbox_draw, mbox_sel,
                                  mbox_quit,       progress_key_id, 1,         false};

void MBox_RedrawMessage(const char* message)
{
    if (win.Window != WINDOW_MESSAGE && win.Window != WINDOW_PROGRESS)
        return;
    CopyText(win.message, message ? message : "");
    draw_message_s();
    window_flush(message_well());
    TDL_Show(); // whoever tells how far he is comes back to the loop late
}

void ProgBox_RedrawProgress(int percent)
{
    percent = std::clamp(percent, 0, 100);
    if (win.Window != WINDOW_PROGRESS)
        return;
    if (percent != win.percent) {
        win.percent = percent;
        draw_progress_s();
        window_flush(BAR);
    }
    TDL_Show();
}

// --- Pull-down and select ---

namespace
{
struct Grid {
    int x;
    int y;
    int dx;
    int dy;
};
} // namespace

static const char* cell_caption(const WindowArgs& args, int n)
{
    const char* caption = args.captions ? args.captions[n] : nullptr;
    return caption && *caption ? caption : nullptr;
}

// The number of a cell is its place in the whole grid, row by row.
static void add_cells(const WindowArgs& args, const Grid& grid, int (*look)(int row, int rows))
{
    const int columns = std::clamp(args.columns, 1, CELLS_MAX);
    const int rows = std::clamp(args.rows, 1, CELLS_MAX / columns);
    window_size(args, 2 * grid.x + columns * grid.dx, grid.y + rows * grid.dy + grid.x);
    for (int n = 0; n < columns * rows; n++) {
        const char* caption = cell_caption(args, n);
        if (!caption)
            continue;
        WINOBJ* k = window_add(KEY_CHOICE + n, caption, look(n / columns, rows),
                               grid.x + grid.dx * (n % columns), grid.y + grid.dy * (n / columns));
        if (k)
            k->status = n == args.selected;
    }
}

static int list_look(int row, int rows)
{
    if (row == 0)
        return LOOK_LIST_TOP;
    return row == rows - 1 ? LOOK_LIST_END : LOOK_LIST_MID;
}

static int cell_look(int, int)
{
    return LOOK_CELL;
}

static void pulldown_open(const WindowArgs& args)
{
    add_cells(args, {6, 6, 103, 32}, list_look);
}

static void select_open(const WindowArgs& args)
{
    add_cells(args, {13, 48, 78, 43}, cell_look);
}

static void pulldown_draw()
{
    window_dark_frame(LIST_GROUND);
}

static void select_draw()
{
    window_dark_frame(LIST_GROUND);
    window_draw_title(13, 14, WHITE);
}

static void choice_sel(int id)
{
    win.kind->quit(id - KEY_CHOICE + 1);
}

static void pulldown_quit(int v)
{
    const WindowState last = window_end();
    if (v > 0)
        SendMessage(LMSG_PULLDOWNSEL, Arg(last.Caption), v - 1, 0, 0);
}

static void select_quit(int v)
{
    const WindowState last = window_end();
    if (v > 0)
        SendMessage(LMSG_SELECTBOX, Arg(last.Caption), v - 1, 0, 0);
}

// Escape needs no key on the screen; the press beside is the same.
static int choice_key_id(int sym, int)
{
    return sym == SDLK_ESCAPE ? KEY_CHOICE - 1 : 0;
}

const WindowKind pulldown_kind = {WINDOW_PULLDOWN,
                                  pulldown_open,
                                  pulldown_draw,
                                  choice_sel,
                                  pulldown_quit,
                                  choice_key_id,
                                  0,
                                  true};
const WindowKind select_kind = {WINDOW_SELECT, select_open,   select_draw, choice_sel,
                                select_quit,   choice_key_id, 0,           true};

// --- Path select ---

namespace
{
struct PathFace {
    int group; // the PATHSEL_ whose choices these are; all curves share theirs
    int choice;
    SDL_Surface** off;
    SDL_Surface** on;
    int last_curve; // the last set of curves that offers it
};
constexpr PathFace path_faces[] = {
    {PATHSEL_XPT, PATH_XPT_HOLD, &G_PATHSEL_xpt_hold_off, &G_PATHSEL_xpt_hold_on, 0},
    {PATHSEL_XPT, PATH_XPT_CHANGE, &G_PATHSEL_xpt_change_off, &G_PATHSEL_xpt_change_on, 0},
    {PATHSEL_HUE, PATH_HUE_SHORT, &G_PATHSEL_hue_short_off, &G_PATHSEL_hue_short_on, 0},
    {PATHSEL_HUE, PATH_HUE_LONG, &G_PATHSEL_hue_long_off, &G_PATHSEL_hue_long_on, 0},
    {PATHSEL_HUE, PATH_HUE_CW, &G_PATHSEL_hue_cw_off, &G_PATHSEL_hue_cw_on, 0},
    {PATHSEL_HUE, PATH_HUE_CCW, &G_PATHSEL_hue_ccw_off, &G_PATHSEL_hue_ccw_on, 0},
    {PATHSEL_CURVE0, PATH_CURVE_OFF, &G_PATHSEL_curve_off_off, &G_PATHSEL_curve_off_on,
     PATHSEL_CURVE3},
    {PATHSEL_CURVE0, PATH_CURVE_LINEAR, &G_PATHSEL_curve_linear_off, &G_PATHSEL_curve_linear_on,
     PATHSEL_CURVE2},
    {PATHSEL_CURVE0, PATH_CURVE_S, &G_PATHSEL_curve_s_off, &G_PATHSEL_curve_s_on, PATHSEL_CURVE1},
    {PATHSEL_CURVE0, PATH_CURVE_SPLINE, &G_PATHSEL_curve_spline_off, &G_PATHSEL_curve_spline_on,
     PATHSEL_CURVE0},
    {PATHSEL_CURVE0, PATH_CURVE_STEP, &G_PATHSEL_curve_step_off, &G_PATHSEL_curve_step_on,
     PATHSEL_CURVE3},
};
} // namespace

static int path_group()
{
    return std::min(win.PathSelType, int(PATHSEL_CURVE0));
}

static bool is_offered(const PathFace& face)
{
    return face.group == path_group() &&
           (face.group != PATHSEL_CURVE0 || win.PathSelType <= face.last_curve);
}

SDL_Surface* pathsel_face(int id, bool on)
{
    for (const PathFace& face : path_faces)
        if (face.group == path_group() && face.choice == id - KEY_CHOICE)
            return on ? *face.on : *face.off;
    return nullptr;
}

static void pathsel_open(const WindowArgs& args)
{
    constexpr int MARGIN = 10;
    constexpr int DX = 68;
    win.PathSelType = std::clamp(args.path_type, int(PATHSEL_XPT), int(PATHSEL_CURVE3));
    int x = MARGIN;
    for (const PathFace& face : path_faces) {
        if (!is_offered(face))
            continue;
        if (WINOBJ* k = window_add(KEY_CHOICE + face.choice, "", LOOK_PATH, x, MARGIN))
            k->status = face.choice == args.selected;
        x += DX;
    }
    window_size(args, x - (DX - 64) + MARGIN, 44 + 2 * MARGIN);
}

static void pathsel_draw()
{
    window_dark_frame(0x1A1A1A);
}

static void pathsel_quit(int v)
{
    const WindowState last = window_end();
    if (v != 0)
        SendMessage(LMSG_PATHSELSEL, last.PathSelType, v - 1, 0, 0);
}

const WindowKind pathsel_kind = {
    WINDOW_PATH, pathsel_open, pathsel_draw, choice_sel, pathsel_quit, choice_key_id, 0, true};

// --- The named pull-downs ---

const PULLDOWN* PullDown_Find(const char* name)
{
    for (const PULLDOWN& list : PullDown)
        if (name && strcmp(list.name, name) == 0)
            return &list;
    return nullptr;
}

static int pulldown_chosen(const char* name, int choice)
{
    const PULLDOWN* list = PullDown_Find(name);
    if (!list || !list->cmd || choice < 0 || choice >= list->columns * list->rows)
        return 0;
    char path[CMD_SIZE];
    DecodeCommand(path, list->cmd, sizeof path);
    Net_SendCommandFormat("put %s#%s", path, list->captions[choice]);
    return 0;
}

static int pc_pulldown_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == LMSG_PULLDOWNSEL ? pulldown_chosen(Text(ax), int(bx)) : 0;
}

const PC_TBL pc_pulldown = {.proc_func = pc_pulldown_proc};
