// What arrives from the operator, as it arrives: a list of touches, keys and knobs, and a field
// that shows where the panel thinks it is touched. Both only watch: what they see goes on to the
// page.
#include "a_ls.h"
#include "colours.h"
#include "global.h"
#include "message.h"
#include "pc_eng.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "touch.h"
#include <SDL.h>
#include <algorithm>

#include "safeguards.h"

// --- Key codes ---

namespace
{
constexpr int LINES = 200;
enum : int { COLUMN_WHEN, COLUMN_WHAT, COLUMN_VALUE, COLUMNS };

struct Line {
    char cell[COLUMNS][ENG_CELL];
};
} // namespace

static struct {
    Line line[LINES]; // line[next] is the oldest when all are in use
    int next = 0;
    int used = 0;
    uint32_t last = 0;    // SDL_GetTicks of the last input
    bool is_held = false; // the list stands still
    bool is_dirty = false;
} ek; // valid from create(1) to create(0)

static void note(const char* what, const char* value)
{
    if (ek.is_held)
        return;
    Line& line = ek.line[ek.next];
    const uint32_t now = SDL_GetTicks();
    if (ek.used)
        PrintText(line.cell[COLUMN_WHEN], "+%u", unsigned(now - ek.last));
    else
        CopyText(line.cell[COLUMN_WHEN], "");
    CopyText(line.cell[COLUMN_WHAT], what);
    CopyText(line.cell[COLUMN_VALUE], value);
    ek.last = now;
    ek.next = (ek.next + 1) % LINES;
    ek.used = std::min(ek.used + 1, LINES);
    ek.is_dirty = true;
}

static void note_point(const char* what, MsgArg x, MsgArg y, int button)
{
    char text[ENG_CELL];
    PrintText(text, "x %d  y %d  button %d", int(x), int(y), button);
    note(what, text);
}

static void note_key(int sym, int mod)
{
    char text[ENG_CELL];
    PrintText(text, "%d (0x%X)  \"%s\"  mod 0x%04X", sym, unsigned(sym),
              SDL_GetKeyName(SDLKey(sym)), unsigned(mod));
    note("Key", text);
}

// A knob of the panel arrives as a tally of its counts.
static void note_knob(const char* path, const char* value)
{
    if (!BeginsWith(path, "Panel@Common@Knob"))
        return;
    char text[ENG_CELL];
    PrintText(text, "%s  counts %s", path, value);
    note("Knob", text);
}

static void keys_fill()
{
    ek.is_dirty = false;
    for (int i = 0; i < ek.used; i++) {
        const Line& line = ek.line[(ek.next - 1 - i + LINES) % LINES]; // the newest on top
        for (int column = 0; column < COLUMNS; column++)
            LS_SetData(ENG_LIST, i, column, line.cell[column]);
    }
    LS_SetNData(ENG_LIST, ek.used);
    LS_RedrawData(ENG_LIST);
}

static int keys_button(const char* path)
{
    if (Same(path, ENG_INPUT "Clear")) {
        ek = {.is_held = ek.is_held};
        keys_fill();
    } else if (Same(path, ENG_INPUT "Hold")) {
        ek.is_held = !ek.is_held;
        Eng_Mirror(ENG_INPUT "Hold", ek.is_held ? "true" : "false");
    }
    return 0;
}

static int keys_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_PRESS: note_point("Press", ax, bx, int(cx)); return 0;
    case MSG_RELEASE: note_point("Release", ax, bx, 0); return 0;
    case MSG_DRAG: note_point("Move", ax, bx, cx ? 1 : 0); return 0;
    case MSG_WHEELUP: note_point("Wheel up", ax, bx, SDL_BUTTON_WHEELUP); return 0;
    case MSG_WHEELDOWN: note_point("Wheel down", ax, bx, SDL_BUTTON_WHEELDOWN); return 0;
    case MSG_KEY: note_key(int(ax), int(bx)); return 0;
    case MSG_TALLY: note_knob(Text(ax), Text(bx)); return 0;
    case LMSG_BTNSEL: return keys_button(Text(ax));
    case MSG_REDRAW:
        if (ek.is_dirty)
            keys_fill();
        return 0;
    default: return 0;
    }
}

static int keys_create(int on, uint32_t)
{
    ek = {};
    if (!on)
        return 1;
    Eng_Mirror(ENG_INPUT "Hold", "false");
    return 0;
}

const PC_TBL pc_eng_keys = {keys_proc, keys_create};

// --- Touch test ---

namespace
{
constexpr Rect FIELD = {100, 100, 699, 436};
constexpr int GRID_PX = 50;
constexpr unsigned GRID = 0x203038;
constexpr int NO_POINT = -1;
} // namespace

static struct {
    int x = NO_POINT; // where the finger was last, NO_POINT: up
    int y = NO_POINT;
    int touches = 0;
} et; // valid from create(1) to create(0)

static void draw_field()
{
    TDL_FillRectS(FIELD.x1, FIELD.y1, FIELD.x2, FIELD.y2, BLACK);
    for (int x = FIELD.x1 + GRID_PX; x < FIELD.x2; x += GRID_PX)
        TDL_LineVS(x, FIELD.y1, FIELD.y2 - FIELD.y1 + 1, GRID);
    for (int y = FIELD.y1 + GRID_PX; y < FIELD.y2; y += GRID_PX)
        TDL_LineHS(FIELD.x1, y, FIELD.x2 - FIELD.x1 + 1, GRID);
    TDL_RectS(FIELD.x1, FIELD.y1, FIELD.x2, FIELD.y2, GROUP_FRAME);
    TDL_UpdateRect(FIELD.x1, FIELD.y1, FIELD.x2, FIELD.y2);
}

static void draw_readout(const char* what, int x, int y)
{
    char text[ENG_CELL];
    PrintText(text, "%s  x %d  y %d    touches %d", what, x, y, et.touches);
    Eng_Text(104, 79, 400, text, 3, WHITE);
    TDL_UpdateRect(104, 79, 400, 95);
}

// The calibration, and whether there is a panel: without one it is a mouse that is seen.
static void draw_calibration()
{
    char text[ENG_CELL];
    PrintText(text, "%s   AX %d  AY %d  BX %d  BY %d", Touch_FD < 0 ? "No panel" : "Panel",
              SYS_TouchScreen_AX, SYS_TouchScreen_AY, SYS_TouchScreen_BX, SYS_TouchScreen_BY);
    Eng_Text(420, 79, 697, text, 3, LABEL);
}

// A cross at the point; the field's edge cuts it.
static void draw_cross(int x, int y, unsigned colour)
{
    constexpr int ARM = 12;
    const int left = std::max(x - ARM, FIELD.x1), right = std::min(x + ARM, FIELD.x2);
    const int top = std::max(y - ARM, FIELD.y1), bottom = std::min(y + ARM, FIELD.y2);
    TDL_LineHS(left, y, right - left + 1, colour);
    TDL_LineVS(x, top, bottom - top + 1, colour);
    TDL_UpdateRect(left, top, right, bottom);
}

static void touch_press(int x, int y)
{
    et.touches++;
    et.x = x;
    et.y = y;
    draw_readout("Down", x, y);
    if (Inside(FIELD, x, y))
        draw_cross(x, y, CYAN);
}

static void touch_drag(int x, int y)
{
    if (et.x == NO_POINT)
        return;
    draw_readout("Move", x, y);
    if (Inside(FIELD, x, y) && Inside(FIELD, et.x, et.y))
        TDL_Line(et.x, et.y, x, y, WHITE);
    et.x = x;
    et.y = y;
}

static void touch_release(int x, int y)
{
    if (et.x == NO_POINT || x < 0) // below 0 the release has gone to somebody else
        return;
    draw_readout("Up", x, y);
    if (Inside(FIELD, x, y))
        draw_cross(x, y, ORANGE);
    et.x = et.y = NO_POINT;
}

static int touch_button(const char* path)
{
    if (Same(path, ENG_INPUT "Clear"))
        draw_field();
    return 0;
}

static int touch_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_PRESS: touch_press(int(ax), int(bx)); return 0;
    case MSG_DRAG:
        if (cx)
            touch_drag(int(ax), int(bx));
        return 0;
    case MSG_RELEASE: touch_release(int(ax), int(bx)); return 0;
    case LMSG_BTNSEL: return touch_button(Text(ax));
    default: return 0;
    }
}

static int touch_create(int on, uint32_t)
{
    et = {};
    if (!on)
        return 1;
    draw_field();
    draw_calibration();
    return 0;
}

const PC_TBL pc_eng_touch = {touch_proc, touch_create};
