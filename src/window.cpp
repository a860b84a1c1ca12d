#include "window.h"
#include "box.h"
#include "bus.h"
#include "colours.h"
#include "graphics.h"
#include "indexed.h"
#include "log.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include "saver.h"
#include "tdl.h"
#include "text.h"
#include "window_private.h"
#include <SDL.h>
#include <algorithm>
#include <cstring>
#include <iterator>
#include "safeguards.h"

constexpr int PUSHED_MS = 150;
constexpr int SHADOW = BOX_SHADOW; // the shadow is as large as the window
// A repaint of the page would go over the window, and a touch is the window's own.
constexpr int WITHHELD = MSG_REDRAW | MSG_PRESS | MSG_RELEASE | MSG_DRAG;
constexpr Rect BOXES_COLUMN = {706, 73, 799, 545}; // of the number boxes

WindowState win;

static constexpr const WindowKind* kinds[] = {
    &pagejump_kind,       &knobinput_kind, &kyb_kind,      &mbox_kind,
    &banksel_kind,        &pulldown_kind,  &progress_kind, &select_kind,
    &pathsel_kind,        &hexkey_kind,    &page_get_kind, &pageini_kind,
    &knobinput_trim_kind,
};

static const WindowKind* find_kind(int type)
{
    for (const WindowKind* kind : kinds)
        if (kind->type == type)
            return kind;
    return nullptr;
}

static bool is_knob_window()
{
    return win.Window == WINDOW_KNOB || win.Window == WINDOW_KNOB_TRIM;
}

// --- The looks of keys ---

namespace
{
enum Light { NEVER, WHEN_LIT }; // its lit face is light, and the caption black

struct Face {
    int look;
    SDL_Surface** off;
    SDL_Surface** on;
    int font;
    Light light = NEVER;
    bool at_left = false; // the caption; otherwise centred
};

constexpr Face faces[] = {
    {LOOK_DIGIT, &G_10K_key_off, &G_10K_key_on, 9},
    {LOOK_SIGN, &G_10K_key_off, &G_10K_key_on, 7},
    {LOOK_CLEAR, &G_10K_clear_off, &G_10K_clear_on, 3, WHEN_LIT},
    {LOOK_CANCEL, &G_10K_cancel_off, &G_10K_cancel_on, 3, WHEN_LIT},
    {LOOK_ENTER, &G_10K_enter_off, &G_10K_enter_on, 3, WHEN_LIT},
    {LOOK_LETTER, &G_KYB_key_off, &G_KYB_key_on, 8},
    {LOOK_TWO_LINES, &G_KYB_key_off, &G_KYB_key_on, 4},
    {LOOK_WORD, &G_KYB_key_off, &G_KYB_key_on, 3},
    {LOOK_LEFT, &G_KYB_left_off, &G_KYB_left_on, 3},
    {LOOK_RIGHT, &G_KYB_right_off, &G_KYB_right_on, 3},
    {LOOK_BACKSPACE, &G_KYB_bs_off, &G_KYB_bs_on, 3, WHEN_LIT},
    {LOOK_CAPS, &G_KYB_caps_off, &G_KYB_caps_on, 3, WHEN_LIT},
    {LOOK_SHIFT, &G_KYB_shift_off, &G_KYB_shift_on, 3, WHEN_LIT},
    {LOOK_KYB_ENTER, &G_KYB_enter_off, &G_KYB_enter_on, 3, WHEN_LIT},
    {LOOK_KYB_CANCEL, &G_KYB_cancel_off, &G_KYB_cancel_on, 3, WHEN_LIT},
    {LOOK_SPACE, &G_KYB_space_off, &G_KYB_space_on, 3},
    {LOOK_BOX, &G_BOX_key_off, &G_BOX_key_on, 3, WHEN_LIT},
    {LOOK_LIST_TOP, &G_pulldown_top_off, &G_pulldown_top_on, 4, WHEN_LIT, true},
    {LOOK_LIST_MID, &G_pulldown_mid_off, &G_pulldown_mid_on, 4, WHEN_LIT, true},
    {LOOK_LIST_END, &G_pulldown_end_off, &G_pulldown_end_on, 4, WHEN_LIT, true},
    {LOOK_CELL, &G_UP_sel_off, &G_UP_sel_on, 4, WHEN_LIT, true},
    {LOOK_PATH, nullptr, nullptr, 3},
    {LOOK_FAVORITE, nullptr, nullptr, 4},
};

static_assert(IndexedBy(faces, &Face::look, LOOK_COUNT));
} // namespace

static bool is_lit(const WINOBJ& k)
{
    return k.status != 0 || k.pushed > 0;
}

static SDL_Surface* face_of(const WINOBJ& k, bool lit)
{
    if (k.type == LOOK_PATH)
        return pathsel_face(k.id, lit);
    SDL_Surface** face = lit ? faces[k.type].on : faces[k.type].off;
    return face ? *face : nullptr;
}

static void draw_caption(const WINOBJ& k, int x, int y)
{
    const Face& face = faces[k.type];
    const int w = k.x2 - k.x1;
    const int h = k.y2 - k.y1;
    const int p = k.pushed > 0 ? 1 : 0;
    const unsigned col = face.light == WHEN_LIT && is_lit(k) ? BLACK : WHITE;
    char letter[2];
    const char* caption = k.type == LOOK_LETTER ? kyb_caption(k, letter) : k.caption;
    if (face.at_left)
        TDL_SymbolBS(x + 8 + p, y + 9 + p, w - 8, h - 8, caption, face.font, col, 0);
    else
        TDL_SymbolCS(x + p, y + p, x + w + p, y + h - 3 + p, caption, face.font, col);
}

static void draw_key_s(WINOBJ& k)
{
    k.redraw = 0;
    if (k.visible)
        return;
    if (k.type == LOOK_FAVORITE) {
        pagejump_draw_user_key(k);
        return;
    }
    TDL_PutS(win.WinX + k.x1, win.WinY + k.y1, face_of(k, is_lit(k)));
    draw_caption(k, win.WinX + k.x1, win.WinY + k.y1);
}

static void draw_key(WINOBJ& k)
{
    draw_key_s(k);
    window_flush({k.x1, k.y1, k.x2, k.y2});
}

// --- For the types ---

// On the screen as a whole, as far as it is not larger.
static int placed(int wanted, int own, int size, int screen)
{
    const int middle = (screen - size) / 2;
    const int at = wanted >= 0 ? wanted : own >= 0 ? own : middle;
    return std::clamp(at, 0, std::max(0, screen - size));
}

void window_size(const WindowArgs& args, int w, int h, int x, int y)
{
    win.w = w;
    win.h = h;
    win.WinX = placed(args.x, x, w, SCREEN_W);
    win.WinY = placed(args.y, y, h, SCREEN_H);
}

WINOBJ* window_add(int id, const char* caption, int look, int x, int y)
{
    if (win.keys >= WINOBJ_MAX - 1)
        return nullptr;
    WINOBJ& k = win.Key[win.keys++];
    k = {.id = id, .caption = caption, .type = look, .x1 = x, .y1 = y};
    // A file that is missing leaves a key that can be pressed all the same.
    const SDL_Surface* face = face_of(k, false);
    k.x2 = x + (face ? face->w : 50) - 1;
    k.y2 = y + (face ? face->h : 50) - 1;
    return &k;
}

WINOBJ* window_key(int id)
{
    for (WINOBJ* k = win.Key; k->id != WINOBJ_END; k++)
        if (k->id == id)
            return k;
    return nullptr;
}

void window_redraw_look(int look)
{
    for (WINOBJ* k = win.Key; k->id != WINOBJ_END; k++)
        if (k->type == look)
            k->redraw = 1;
}

void window_light(int id, bool on)
{
    if (WINOBJ* k = window_key(id)) {
        k->status = on;
        k->redraw = 1;
    }
}

WindowState window_end()
{
    const WindowState last = win;
    win = {};
    if (Pane_GetActiveID() != 0)
        Pane_WindowCloses();
    else
        TDL_PopScreen();
    UnHackMessage(0);
    return last;
}

static void draw_frame(const BoxLook& look)
{
    Box_Draw({win.WinX, win.WinY, win.WinX + win.w - 1, win.WinY + win.h - 1}, look, SHADOW);
}

void window_dark_frame(unsigned ground)
{
    draw_frame({ground, RAISED_LIGHT, 0x565E62, RAISED_DARK, BLACK});
}

void window_light_frame()
{
    draw_frame(BOX_LIGHT);
}

void window_draw_well(Rect well)
{
    const int x1 = win.WinX + well.x1;
    const int y1 = win.WinY + well.y1;
    const int x2 = win.WinX + well.x2;
    const int y2 = win.WinY + well.y2;
    TDL_FillRectS(x1, y1, x2, y2, HEADER_GROUND);
    TDL_RectS(x1, y1, x2, y2, BLACK);
    TDL_RectS(x1 + 1, y1 + 1, x2 - 1, y2 - 1, 0x00141E);
}

// Captions of boxes may have two lines, a title has one.
void window_draw_title(int x, int y, unsigned col)
{
    char title[sizeof win.Caption];
    CopyText(title, win.Caption);
    std::replace(title, title + strlen(title), '\n', ' ');
    TDL_SymbolWS(win.WinX + x, win.WinY + y, win.w - x - 10, title, 8, col);
}

void window_flush(Rect part)
{
    TDL_UpdateRect(win.WinX + part.x1, win.WinY + part.y1, win.WinX + part.x2, win.WinY + part.y2);
}

int window_ascii(int sym)
{
    if (sym >= SDLK_KP0 && sym <= SDLK_KP9)
        return '0' + sym - SDLK_KP0;
    switch (sym) {
    case SDLK_KP_PERIOD: return '.';
    case SDLK_KP_MINUS: return '-';
    case SDLK_KP_PLUS: return '+';
    case SDLK_KP_DIVIDE: return '/';
    case SDLK_KP_MULTIPLY: return '*';
    case SDLK_KP_EQUALS: return '=';
    default: return sym >= ' ' && sym <= '~' ? sym : 0;
    }
}

// --- Opening and closing ---

static void withhold_input()
{
    HackMessage(0, WITHHELD);
    if (is_knob_window())
        UnHackMessage(OBJ_NB);
}

static void save_ground()
{
    const int w = win.w + SHADOW;
    const int h = win.h + SHADOW;
    if (Pane_GetActiveID() != 0)
        Pane_WindowOpens({win.WinX, win.WinY, win.WinX + w - 1, win.WinY + h - 1});
    else
        TDL_PushScreen(win.WinX, win.WinY, w, h);
}

static void draw_all()
{
    win.kind->draw();
    for (WINOBJ* k = win.Key; k->id != WINOBJ_END; k++)
        draw_key_s(*k);
    window_flush({0, 0, win.w + SHADOW - 1, win.h + SHADOW - 1});
}

// The boxes beside a knob window are the page's, and a pane withholds the page.
static bool is_refused(int type)
{
    return Pane_GetActiveID() != 0 && (type == WINDOW_KNOB || type == WINDOW_KNOB_TRIM);
}

int CreateWindow(int type, const char* caption, const WindowArgs& args)
{
    const WindowKind* kind = find_kind(type);
    if (!kind || is_refused(type)) {
        Log_Output(LOG_ALWAYS, MOD_PAGE, "Can't create window... type %d%s", type,
                   kind ? ": a pane is up" : "");
        return -1;
    }
    (void)CloseWindow(); // mostly there is none
    EndScreenSaver();
    win.Window = type;
    win.kind = kind;
    CopyText(win.Caption, caption ? caption : "");
    win.OKFunc = args.ok;
    win.OKVar = args.ok_var;
    win.OKText = args.ok_text;
    withhold_input();
    kind->open(args);
    save_ground();
    draw_all();
    return 0;
}

void Window_RedrawAll()
{
    if (!win.kind)
        return;
    if (Pane_GetActiveID() == 0)
        save_ground(); // the last pane beneath has gone
    draw_all();
}

int ChangeWindow(const char* caption, const WindowArgs& args)
{
    if (!is_knob_window())
        return -1;
    CopyText(win.Caption, caption ? caption : "");
    win.Window = args.is_timecode ? WINDOW_KNOB : WINDOW_KNOB_TRIM;
    win.kind = find_kind(win.Window);
    knobinput_change(args);
    return 0;
}

int CloseWindow()
{
    if (!win.kind)
        return -1;
    win.kind->quit(win.kind->cancel);
    return 0;
}

int GetWindow()
{
    return win.Window;
}

void Window_ReserveQuit(int var)
{
    if (!win.kind)
        return;
    win.ReserveQuit = 1;
    win.ReserveQuitVar = var;
}

// --- Messages ---

static void push(WINOBJ& k)
{
    k.pushed = PUSHED_MS;
    draw_key(k); // the window may go before the next repaint
}

static WINOBJ* key_at(int x, int y)
{
    for (WINOBJ* k = win.Key; k->id != WINOBJ_END; k++)
        if (!k->visible && Inside({k->x1, k->y1, k->x2, k->y2}, x, y))
            return k;
    return nullptr;
}

static int press(int x, int y)
{
    if (WINOBJ* k = key_at(x - win.WinX, y - win.WinY)) {
        const int id = k->id;
        push(*k);
        win.kind->select(id);
        return 1;
    }
    if (is_knob_window() && Inside(BOXES_COLUMN, x, y))
        return 0; // the number boxes hear it
    const bool is_beside = !Inside({0, 0, win.w - 1, win.h - 1}, x - win.WinX, y - win.WinY);
    if (is_beside && win.kind->beside_cancels)
        (void)CloseWindow(); // it is open
    return 1;
}

static int key_stroke(int sym, int mod)
{
    const int id = win.kind->key_id ? win.kind->key_id(sym, mod) : 0;
    if (!id)
        return 1;
    if (WINOBJ* k = window_key(id))
        push(*k);
    win.kind->select(id);
    return 1;
}

static void redraw(int elapsed_ms)
{
    for (WINOBJ* k = win.Key; k->id != WINOBJ_END; k++) {
        if (k->pushed > 0) {
            k->pushed = std::max(0, k->pushed - elapsed_ms);
            if (k->pushed == 0)
                k->redraw = 1;
        }
        if (k->redraw)
            draw_key(*k);
    }
}

// Passes on: the number boxes beside a knob window repaint.
static int window_pass(int elapsed_ms)
{
    if (win.ReserveQuit)
        win.kind->quit(win.ReserveQuitVar);
    else
        redraw(elapsed_ms);
    return 0;
}

int WindowProc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (!win.kind)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return window_pass(int(ax));
    case MSG_PRESS: return press(int(ax), int(bx));
    case MSG_KEY: return key_stroke(int(ax), int(bx));
    case MSG_RELEASE:
    case MSG_DRAG: return is_knob_window() ? 0 : 1; // of a number box's slider
    case MSG_WHEELUP:
    case MSG_WHEELDOWN: return 1;
    default: return 0;
    }
}

// --- Names ---

int InvalidFileNameCheck(const char* name)
{
    static constexpr const char* reserved[] = {
        "CON",  "PRN",  "AUX",  "CLOCK$", "NUL",  "COM0", "COM1", "COM2", "COM3",
        "COM4", "COM5", "COM6", "COM7",   "COM8", "COM9", "LPT0", "LPT1", "LPT2",
        "LPT3", "LPT4", "LPT5", "LPT6",   "LPT7", "LPT8", "LPT9",
    };
    for (const char* word : reserved)
        if (StrICmp(name, word) == 0)
            return 1;
    return 0;
}
