#include "a_vf.h"
#include "a_ba.h"
#include "a_bt.h"
#include "a_nb.h"
#include "colours.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "graphics.h"
#include "log.h"
#include "me_config.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "tab_list.h"
#include "tab_status.h"
#include "tdl.h"
#include "safeguards.h"

namespace
{
constexpr int LEFT = 3;
constexpr int TOP = 73;
constexpr int PITCH = 65;
constexpr Rect AREA = {LEFT, TOP, 93, 527};
static_assert((AREA.y2 - TOP) / PITCH == VF_SLOTS - 1); // a press below the last slot is its own
constexpr int FACE_W = 91;
constexpr int FACE_H = 63;

constexpr unsigned MAIN_COLOR = TEAL;
constexpr unsigned FURTHER_COLOR = ORANGE;

constexpr int SWR_WITHOUT_EDGE_3_4 = 256; // the keys 3 and 4 of this device have no edge page

struct VF_MEM {
    int id = 0;
    const char* caption = nullptr;
    uint32_t page = 0;
    TabStatus stat;
    int redraw = 0;
    int display = 0;
    bool is_missing = false;
};
} // namespace

static TabList<VF_MEM, VF_MAX> Tabs;
static uint32_t Selected = 0;
static PageLook Look;

static void send_paths(const char* verb)
{
    PathSet met;
    for (const VF_MEM& t : TabList_All(Tabs))
        TabStatus_Send(met, t.stat, verb);
}

int VF_Follows(const char* path)
{
    const uint32_t hash = Hash(path);
    for (const VF_MEM& t : TabList_All(Tabs))
        if (TabStatus_Follows(t.stat, path, hash))
            return 1;
    return 0;
}

static void fill_tab(VF_MEM& t, const VF_TBL& row)
{
    t.id = row.id;
    t.caption = row.caption;
    t.page = row.page;
    TabStatus_Set(t.stat, row.statcmd);
}

static uint32_t target_page(const VF_MEM& t)
{
    constexpr uint32_t BANK_AND_TAB = 0xF00F0000;
    constexpr uint32_t BANK_EDGE = 0x10020000;
    constexpr uint32_t TAB = 0x000F0000;
    constexpr uint32_t TAB_TYPE = 0x00010000;
    if (SYS_RefSwrType == SWR_WITHOUT_EDGE_3_4 && (t.id == 3 || t.id == 4) &&
        (t.page & BANK_AND_TAB) == BANK_EDGE)
        return (t.page & ~TAB) | TAB_TYPE;
    return t.page;
}

static void look_for_pages()
{
    TabList_LookForPages(Tabs, int(Selected), target_page);
}

int VF_Create(const VF_TBL* table, uint32_t selected)
{
    send_paths("remove");
    Tabs.count = 0;
    if (!table)
        return 1;
    Selected = selected;
    if (!TabList_Fill(Tabs, table, fill_tab))
        Log_Output(LOG_ALWAYS, MOD_PAGE, "Buffer overflow for VF Objects!!");
    look_for_pages();
    send_paths("add");
    return 0;
}

int VF_SetDisplay(int id, int on)
{
    return TabList_SetDisplay(Tabs, id, on);
}

int VF_GetStatus(int id)
{
    const VF_MEM* t = TabList_Find(Tabs, id);
    return t ? t->stat.status : -1;
}

// --- Press ---

static bool is_wipe_page()
{
    constexpr uint32_t GROUP_WIPE = 5;
    return isNowPageME(0) != 0 && (GL_NowPage >> 20 & 0x0F) == GROUP_WIPE;
}

// The knobs of these two buttons belong to a pattern that is about to go back to its default.
static void drop_wipe_knobs()
{
    const int owner = BT_GetKnobAssign();
    if (!is_wipe_page() || (owner != 33 && owner != 34))
        return;
    BT_SetKnobAssign(-1);
    NB_CreateBlank();
}

// The page that a press on the tab would open: a bank without a sub side opens the main one.
static const PAGE* page_of(const VF_MEM& t)
{
    if (const PAGE* page = SearchPageTable(t.page))
        return page;
    return isNowPageME(t.page) == 2 ? SearchPageTable(t.page - TO_SUB_BANK) : nullptr;
}

// One recall for one arming, as with the number boxes: the next touch must not take another group.
// The sub side has values of its own, and a recall there must not reach what the main side has on
// the air.
static void recall_default(const VF_MEM& t)
{
    const PAGE* page = page_of(t);
    if (!page || !page->tree[0])
        return;
    const char* side = isNowPageME(page->id) == 2 ? " SUB" : "";
    if (page->tree[1])
        Net_SendCommandFormat("default %s%s@%s", page->tree[0], side, page->tree[1]);
    else
        Net_SendCommandFormat("default %s", page->tree[0]);
    drop_wipe_knobs();
    BA_SetDefaultButton(0);
}

static int press(int x, int y)
{
    if (!Inside(AREA, x, y))
        return 0;
    const VF_MEM* t = TabList_Find(Tabs, (y - TOP) / PITCH + 1);
    if (!t || !t->page || !TabList_IsShown(*t))
        return 0;
    if (BA_IsDefaultButton())
        recall_default(*t);
    else
        GL_CreatePage = target_page(*t);
    return 0;
}

// --- Tally and picture ---

static int tally(const char* path, const char* value, uint32_t hash)
{
    const bool is_assign = IsKeyAssignPath(path);
    for (VF_MEM& t : TabList_All(Tabs))
        if (TabStatus_Tally(t.stat, path, value, hash) || is_assign)
            t.redraw = 1;
    return 0;
}

static void draw_assign(const VF_MEM& t, int top, bool is_on)
{
    constexpr int FONT = 3;
    const KeyAssignText text = keyassign_str_get(t.page);
    if (!*text.main && !*text.further)
        return;
    TDL_PutS(LEFT + 4, top + 44, is_on ? G_VFM_on : G_VFM_off);
    int x = 11;
    if (*text.main) {
        TDL_SymbolS(x, top + 45, text.main, FONT, MAIN_COLOR);
        x += int(TDL_GetSymbolWidth(text.main, FONT)) + 5;
    }
    TDL_SymbolS(x, top + 45, text.further, FONT, FURTHER_COLOR);
}

static void draw(const VF_MEM& t)
{
    if (t.id > VF_SLOTS)
        return;
    const int top = (t.id - 1) * PITCH + TOP;
    const bool is_on = uint32_t(t.id) == Selected;
    const bool is_shown = TabList_IsShown(t);
    TDL_PutS(LEFT, top, !is_shown ? G_VF_blank : is_on ? G_VF_on : G_VF_off);
    if (is_shown) {
        TDL_SymbolS(11, top + 8, t.caption, 3, is_on ? BLACK : WHITE);
        draw_assign(t, top, is_on);
    }
    TDL_UpdateRect(LEFT, top, LEFT + FACE_W - 1, top + FACE_H - 1);
}

static int redraw(int elapsed_ms)
{
    if (PageLook_IsDue(Look, elapsed_ms))
        look_for_pages();
    return TabList_Redraw(Tabs, draw);
}

int VF_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return redraw(int(ax));
    case MSG_PRESS: return press(int(ax), int(bx));
    case MSG_TALLY: return tally(Text(ax), Text(bx), uint32_t(cx));
    default: return 0;
    }
}
