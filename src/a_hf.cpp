#include "a_hf.h"
#include "a_ba.h"
#include "colours.h"
#include "command.h"
#include "global.h"
#include "graphics.h"
#include "log.h"
#include "message.h"
#include "tab_list.h"
#include "tab_status.h"
#include "tdl.h"
#include <algorithm>
#include <span>
#include "safeguards.h"

namespace
{
constexpr int MIN_X = 97;
constexpr int PITCH = 86;
constexpr int BOTTOM = SCREEN_H - 1;

// What the two forms differ in; asked for at run time, since the bitmaps are loaded by then.
struct Form {
    int y;
    SDL_Surface* on;
    SDL_Surface* off;
    SDL_Surface* blank;
};

struct HF_MEM {
    int id = 0;
    const char* caption = nullptr;
    uint32_t page = 0;
    TabStatus stat[HF_STATUS];
    int stats = 0; // in use
    int redraw = 0;
    int display = 0;
    bool is_missing = false;
};
} // namespace

static TabList<HF_MEM, HF_MAX> Tabs;
static int Selected = 0;
static bool IsLow = false;
static PageLook Look;

static std::span<TabStatus> stats(HF_MEM& t)
{
    return {t.stat, size_t(t.stats)};
}

static Form form()
{
    if (IsLow)
        return {556, G_HFS_on, G_HFS_off, G_HFS_blank};
    return {531, G_HF_on, G_HF_off, G_HF_blank};
}

static void send_paths(const char* verb)
{
    static_assert(HF_MAX * HF_STATUS <= PATH_SET_MAX);
    PathSet met;
    for (HF_MEM& t : TabList_All(Tabs))
        for (const TabStatus& s : stats(t))
            TabStatus_Send(met, s, verb);
}

int HF_Follows(const char* path)
{
    const uint32_t hash = Hash(path);
    for (HF_MEM& t : TabList_All(Tabs))
        for (const TabStatus& s : stats(t))
            if (TabStatus_Follows(s, path, hash))
                return 1;
    return 0;
}

static void fill_tab(HF_MEM& t, const HF_TBL& row)
{
    t.id = row.id;
    t.caption = row.caption;
    t.page = row.page;
    t.stats = 0;
    for (const char* statcmd : row.statcmd)
        if (TabStatus_Set(t.stat[t.stats], statcmd))
            t.stats++;
}

static void look_for_pages()
{
    TabList_LookForPages(Tabs, Selected, [](const HF_MEM& t) { return t.page; });
}

int HF_Create(const HF_TBL* table, uint32_t selected)
{
    send_paths("remove");
    Tabs.count = 0;
    if (!table)
        return 1;
    IsLow = (selected & HF_LOW) != 0;
    Selected = int(selected & ~HF_LOW);
    if (!TabList_Fill(Tabs, table, fill_tab))
        Log_Output(LOG_ALWAYS, MOD_PAGE, "Buffer overflow for HF Objects!!\n");
    look_for_pages();
    send_paths("add");
    return 0;
}

int HF_SetDisplay(int id, int on)
{
    return TabList_SetDisplay(Tabs, id, on);
}

static int press(int x, int y)
{
    const Rect area = {MIN_X, form().y, MIN_X + HF_MAX * PITCH - 1, BOTTOM};
    if (!Inside(area, x, y) || BA_IsDefaultButton())
        return 0;
    const HF_MEM* t = TabList_Find(Tabs, (x - MIN_X) / PITCH + 1);
    if (t && TabList_IsShown(*t) && t->page)
        GL_CreatePage = t->page;
    return 0;
}

// --- Tally and picture ---

static bool is_active(HF_MEM& t)
{
    const auto all = stats(t);
    return std::any_of(all.begin(), all.end(), [](const TabStatus& s) { return s.status; });
}

static int tally(const char* path, const char* value, uint32_t hash)
{
    for (HF_MEM& t : TabList_All(Tabs))
        for (TabStatus& s : stats(t)) // a path may stand there several times
            if (TabStatus_Tally(s, path, value, hash))
                t.redraw = 1;
    return 0;
}

static void draw_bar(int x)
{
    constexpr int BAR_W = 70;
    TDL_LineHS(x, 584, BAR_W, ORANGE);
    TDL_LineHS(x, 585, BAR_W, ORANGE_DARK);
    TDL_LineHS(x, 586, BAR_W, ORANGE);
}

static void draw(HF_MEM& t)
{
    if (t.id > HF_MAX)
        return;
    const Form f = form();
    const int x = MIN_X + PITCH * (t.id - 1);
    const bool is_on = t.id == Selected;
    const bool is_shown = TabList_IsShown(t);
    TDL_PutS(x + 1, f.y, !is_shown ? f.blank : is_on ? f.on : f.off);
    if (is_shown) {
        TDL_SymbolS(x + 8, f.y + 8, t.caption, 4, is_on ? BLACK : WHITE);
        if (is_active(t))
            draw_bar(x + 8);
    }
    TDL_UpdateRect(x, f.y, x + 85, BOTTOM);
}

static int redraw(int elapsed_ms)
{
    if (PageLook_IsDue(Look, elapsed_ms))
        look_for_pages();
    return TabList_Redraw(Tabs, draw);
}

int HF_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return redraw(int(ax));
    case MSG_PRESS: return press(int(ax), int(bx));
    case MSG_TALLY: return tally(Text(ax), Text(bx), uint32_t(cx));
    default: return 0;
    }
}
