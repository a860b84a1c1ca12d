// The walk through all pages of the table: each row is shown for some passes, in their order, so
// that a fault of a page is found without a hand. It runs for ever or once round, may be held and
// stepped by hand, and notes of each page how long it took to open and what it left allocated.
// Its keys stand at top right on every page while it is on.
#include "a_ba_draw.h"
#include "a_bt.h"
#include "a_ls.h"
#include "bus.h"
#include "colours.h"
#include "debug.h"
#include "global.h"
#include "graphics.h"
#include "loop.h"
#include "memory.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include "pc_eng.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <iterator>

#include "safeguards.h"

namespace
{
constexpr int ROWS_MAX = 4096; // of the table; a row behind them is walked but not noted
constexpr int NO_ROW = -1;
constexpr int TOP_MENUS = 32; // rows of TopMenu, at least
constexpr int PUSHED_MS = 150;
constexpr int PASSES_USUAL = 100;

struct Result {
    int ms = NO_ROW; // to open the page; below 0: not opened yet
    int allocations = 0;
};

enum WalkKey { KEY_STOP, KEY_PREV, KEY_RUN, KEY_NEXT, WALK_KEYS, KEY_NONE = -1 };
} // namespace

static struct {
    bool is_on = false;       // from the first step to Stop
    bool owes_places = false; // the operator's own are to come back
    bool runs = false;        // otherwise it stands where it is
    bool is_once = false;     // it ends behind the last row
    int row = NO_ROW;         // of the table, that is shown
    int passes = 0;           // for which it has been
    int rounds = 0;           // that are done
    WalkKey pushed = KEY_NONE;
    int pushed_ms = 0;
    bool is_dirty = false;
} walk; // for the life of the process: the pages come and go meanwhile
static Result results[ROWS_MAX];

// --- Where the operator has been: the walk leaves no traces there ---

namespace
{
struct Side {
    uint32_t history[HISTORY_DEPTH];
    int now, max;
    uint32_t page, previous;
};
} // namespace

static struct {
    Side omote, ura;
    uint32_t previous;
    uint32_t top[TOP_MENUS];
    uint32_t changes; // Page_Changes when the walk ended
} been;               // when the walk began

static Side side_of(const uint32_t (&history)[HISTORY_DEPTH], int now, int max, uint32_t page,
                    uint32_t previous)
{
    Side side = {{}, now, max, page, previous};
    std::copy(std::begin(history), std::end(history), side.history);
    return side;
}

static void keep_places()
{
    been.omote = side_of(Omote_History, Omote_History_NowPtr, Omote_History_MaxPtr, GL_OmoteNowPage,
                         GL_OmotePrevPage);
    been.ura =
        side_of(Ura_History, Ura_History_NowPtr, Ura_History_MaxPtr, GL_UraNowPage, GL_UraPrevPage);
    been.previous = GL_PrevPage;
    for (int i = 0; i < TOP_MENUS && TopMenu[i].caption; i++)
        been.top[i] = TopMenu[i].page;
}

static void restore_side(const Side& side, uint32_t (&history)[HISTORY_DEPTH], int* now, int* max,
                         uint32_t* page, uint32_t* previous)
{
    std::copy(std::begin(side.history), std::end(side.history), history);
    *now = side.now;
    *max = side.max;
    *page = side.page;
    *previous = side.previous;
}

// By the page on which the walk ends; an operator who has gone elsewhere keeps what he has seen
// since.
static void restore_places()
{
    if (!walk.owes_places)
        return;
    walk.owes_places = false;
    if (Page_Changes - been.changes > 1)
        return;
    restore_side(been.omote, Omote_History, &Omote_History_NowPtr, &Omote_History_MaxPtr,
                 &GL_OmoteNowPage, &GL_OmotePrevPage);
    restore_side(been.ura, Ura_History, &Ura_History_NowPtr, &Ura_History_MaxPtr, &GL_UraNowPage,
                 &GL_UraPrevPage);
    GL_PrevPage = been.previous;
    for (int i = 0; i < TOP_MENUS && TopMenu[i].caption; i++)
        TopMenu[i].page = been.top[i];
}

// --- The rows ---

static bool is_walked(int row)
{
    return SearchPageTable_Free_ALL(PageTable, PageTable[row].id) != nullptr;
}

// The page that is shown is the one that the row asked for, and not what a guard made of it.
static void note_result()
{
    if (walk.row < 0 || walk.row >= ROWS_MAX)
        return;
    const LoopFigures& f = Loop_Figures();
    if (f.page == PageTable[walk.row].id)
        results[walk.row] = {f.page_ms, UsedMemPtr};
}

static void enter_walk()
{
    if (!walk.is_on)
        keep_places();
    walk.is_on = true;
    GL_AllPageDisplayMode = 1;
}

static void end_walk()
{
    walk.owes_places = walk.is_on;
    been.changes = Page_Changes;
    walk.is_on = walk.runs = false;
    walk.is_dirty = true;
    GL_AllPageDisplayMode = 0;
    GL_CreatePage = PAGE_WALK;
}

// One row on, or with -1 back, round the end of the table. False when the walk has ended instead.
static bool step(int direction)
{
    const int rows = PageTable_Rows - 1;
    int row = walk.row;
    note_result();
    do {
        row += direction;
        if (row >= rows) {
            walk.rounds++;
            if (walk.is_once) {
                walk.row = NO_ROW;
                end_walk();
                return false;
            }
            row = 0;
        } else if (row < 0) {
            row = rows - 1;
        }
    } while (!is_walked(row));
    walk.row = row;
    walk.passes = 0;
    walk.is_dirty = true;
    GL_CreatePage = PageTable[row].id;
    return true;
}

void GL_AllPageSet()
{
    if (!walk.runs || GL_ScreenSaver_Now || GetWindow() || Pane_GetActiveID())
        return;
    if (++walk.passes >= GL_AllPageDisplayMsec)
        (void)step(1); // at the end it says so by its mode
}

static void begin_walk()
{
    walk.runs = true;
    walk.row = NO_ROW;
    walk.rounds = 0;
    walk.passes = GL_AllPageDisplayMsec; // the first page comes at once
    walk.is_dirty = true;
    std::fill(std::begin(results), std::end(results), Result{});
    enter_walk();
}

// --- The keys at top right ---

static Rect key_rect(int key)
{
    constexpr int KEY_W = 60, KEY_H = 40, PITCH = 64;
    const int x = ZONE_TOP_RIGHT.x1 + 6 + PITCH * key;
    return {x, ZONE_TOP_RIGHT.y1, x + KEY_W - 1, ZONE_TOP_RIGHT.y1 + KEY_H - 1};
}

static void draw_key(int key)
{
    const char* const captions[WALK_KEYS] = {"Stop", "Prev", walk.runs ? "Hold" : "Run", "Next"};
    const Rect r = key_rect(key);
    const bool is_pushed = walk.pushed == key;
    TDL_PutS(r.x1, r.y1, is_pushed ? G_PDs_p1o0 : G_PDs_p0o0);
    TDL_SymbolS(r.x1 + 8 + is_pushed, r.y1 + 9 + is_pushed, captions[key], 4, WHITE);
}

void allpagedisp_draw()
{
    walk.is_dirty = false;
    const Rect& z = ZONE_TOP_RIGHT;
    TDL_FillRectS(z.x1, z.y1, z.x2, z.y2, 0x2A2F32);
    for (int key = 0; key < WALK_KEYS; key++)
        draw_key(key);
    char text[64];
    if (walk.row < 0)
        PrintText(text, "%d pages, not begun", PageTable_Rows - 1);
    else
        PrintText(text, "Page %d of %d,  round %d", walk.row + 1, PageTable_Rows - 1,
                  walk.rounds + 1);
    TDL_SymbolS(z.x1 + 8, z.y1 + 42, text, 2, WHITE);
    TDL_UpdateRect(z.x1, z.y1, z.x2, z.y2);
}

static void act(WalkKey key)
{
    switch (key) {
    case KEY_STOP: end_walk(); break;
    case KEY_PREV:
    case KEY_NEXT:
        enter_walk();
        walk.runs = false;
        (void)step(key == KEY_NEXT ? 1 : -1); // once round: the mode says that it has ended
        break;
    case KEY_RUN:
        if (walk.row < 0)
            begin_walk();
        else
            walk.runs = !walk.runs;
        break;
    default: break;
    }
    walk.is_dirty = true;
}

void allpagedisp_redraw(int elapsed_ms)
{
    if (walk.pushed != KEY_NONE && (walk.pushed_ms -= elapsed_ms) <= 0) {
        const WalkKey key = walk.pushed;
        walk.pushed = KEY_NONE;
        act(key);
    }
    if (walk.is_dirty)
        allpagedisp_draw();
}

void allpagedisp_select(int x, int y)
{
    for (int key = 0; key < WALK_KEYS; key++)
        if (Inside(key_rect(key), x, y)) {
            walk.pushed = WalkKey(key);
            walk.pushed_ms = PUSHED_MS;
            walk.is_dirty = true;
        }
}

// --- The page that starts it ---

static void show_settings()
{
    Eng_Mirror(ENG_WALK "Passes", NumStr(GL_AllPageDisplayMsec));
    Eng_Mirror(ENG_WALK "Rounds", walk.is_once ? "Once" : "For ever");
}

static void draw_summary()
{
    int opened = 0, slowest = NO_ROW;
    const int rows = std::min(PageTable_Rows - 1, ROWS_MAX);
    for (int row = 0; row < rows; row++) {
        opened += results[row].ms >= 0;
        if (results[row].ms >= 0 && (slowest < 0 || results[row].ms > results[slowest].ms))
            slowest = row;
    }
    char text[96], number[16];
    PrintText(text, "Rounds done: %d     Pages opened: %d of %d", walk.rounds, opened, rows);
    Eng_Text(112, 92, 697, text, 3, WHITE);
    text[0] = '\0';
    if (slowest >= 0) {
        Page_Number(number, sizeof number, PageTable[slowest].id);
        PrintText(text, "Slowest to open: page %s, %d ms", number, results[slowest].ms);
    }
    Eng_Text(112, 114, 697, text, 3, LABEL);
    Eng_Text(112, 136, 697,
             "The keys of the walk are at top right, here and on every page it shows.", 2, LABEL);
    TDL_UpdateRect(112, 92, 697, 158);
}

static int walk_button(const char* path, const char* value)
{
    if (Same(path, ENG_WALK "Passes"))
        GL_AllPageDisplayMsec = std::max(Decimal(value), 1);
    else if (Same(path, ENG_WALK "Rounds"))
        walk.is_once = Same(value, "Once");
    else if (Same(path, ENG_WALK "Start"))
        begin_walk();
    show_settings();
    return 0;
}

static int walk_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == LMSG_BTNSEL ? walk_button(Text(ax), Text(bx)) : 0;
}

static int walk_create(int on, uint32_t)
{
    if (!on)
        return 1;
    if (GL_AllPageDisplayMsec < 1)
        GL_AllPageDisplayMsec = PASSES_USUAL;
    restore_places();
    show_settings();
    draw_summary();
    return 0;
}

const PC_TBL pc_eng_walk = {walk_proc, walk_create};

// --- What it has found ---

static struct {
    char number[ROWS_MAX][16];
    char ms[ROWS_MAX][8];
    char allocations[ROWS_MAX][12];
} cells; // the list keeps pointers
static int order[ROWS_MAX];

static void fill_results(bool is_by_time)
{
    int n = 0;
    for (int row = 0; row < PageTable_Rows - 1 && row < ROWS_MAX; row++)
        if (results[row].ms >= 0)
            order[n++] = row;
    if (is_by_time)
        std::stable_sort(order, order + n,
                         [](int a, int b) { return results[a].ms > results[b].ms; });
    for (int i = 0; i < n; i++) {
        const PAGE& page = PageTable[order[i]];
        const Result& r = results[order[i]];
        Page_Number(cells.number[i], sizeof cells.number[i], page.id);
        PrintText(cells.ms[i], "%d", r.ms);
        PrintText(cells.allocations[i], "%d", r.allocations);
        LS_SetData(ENG_LIST, i, 0, cells.number[i]);
        LS_SetData(ENG_LIST, i, 1, page.tree[0]);
        LS_SetData(ENG_LIST, i, 2, page.tree[1] ? Page_LastWord(page) : "");
        LS_SetData(ENG_LIST, i, 3, cells.ms[i]);
        LS_SetData(ENG_LIST, i, 4, cells.allocations[i]);
    }
    LS_SetNData(ENG_LIST, n);
    LS_RedrawData(ENG_LIST);
    Eng_Mirror(ENG_WALK "Order", is_by_time ? "Time" : "Page");
}

static int results_button(const char* path, const char* value)
{
    const int row = LS_GetNowLine(ENG_LIST);
    if (Same(path, ENG_WALK "Order"))
        fill_results(Same(value, "Time"));
    else if (Same(path, ENG_WALK "Open") && row >= 0 && row < LS_GetNData(ENG_LIST))
        GL_CreatePage = PageTable[order[row]].id;
    return 0;
}

static int results_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == LMSG_BTNSEL ? results_button(Text(ax), Text(bx)) : 0;
}

static int results_create(int on, uint32_t)
{
    if (!on)
        return 1;
    fill_results(true);
    return 0;
}

const PC_TBL pc_eng_results = {results_proc, results_create};
