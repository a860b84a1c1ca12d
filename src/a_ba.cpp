#include "a_ba.h"
#include "a_ba_draw.h"
#include "a_kf.h"
#include "bus.h"
#include "colours.h"
#include "debug.h"
#include "global.h"
#include "menu_macro.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "setup_index.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include <cstring>
#include "safeguards.h"

namespace
{
constexpr int PUSHED_MS = 150;

constexpr uint32_t PAGE_ERRORS = 0x74110000;
constexpr uint32_t PAGE_ERRORS_GONE = 0x74120000;
constexpr uint32_t PAGE_TIMELINE = 0x61110000;

} // namespace

BaseArea ba;

static int RegionPaneID = 0;

bool ba_records_menu_macro()
{
    return GL_MenuMacro_Edit == 1;
}

int ba_page_button_down()
{
    return ba.Pagebtn.pushed > 0 || GetWindow() == WINDOW_PAGE_JUMP;
}

// File pages have the region selection where others have the strip.
static bool has_regions()
{
    return ba.Base.id >= 4;
}

bool ba_has_short_title()
{
    return ba.MainSub_enable || ba.KeyChange_enable;
}

// --- What exists on a page ---

static const char* section()
{
    return GL_NowTree && GL_NowTree[0] ? GL_NowTree[0] : "";
}

static bool is_operation_section()
{
    constexpr const char* sections[] = {"Aux", "Aux/Mon",       "CCR",
                                        "DME", "Global Effect", "Key Frame"};
    if (Page_Bank())
        return true;
    for (const char* s : sections)
        if (strcmp(section(), s) == 0)
            return true;
    return false;
}

// Tabs of a bank's pages.
constexpr int TAB_WIPE_KEYPAD = 0x57;
constexpr int TAB_DMEWIPE_KEYPAD = 0x67;
constexpr int TAB_KEY_PRIORITY = 0x73;  // of Misc
constexpr int TAB_KEY_PRIORITY2 = 0x75; // its other number, which no page of this table has

static bool is_bank_tab(int tab)
{
    return MeBank_OfPage(GL_NowPage) && int(GL_NowPage >> 16 & 0xFF) == tab;
}

static bool is_key_priority_page()
{
    return is_bank_tab(TAB_KEY_PRIORITY) || is_bank_tab(TAB_KEY_PRIORITY2);
}

// The keypads of stored wipes have nothing that could go back to a default.
static bool is_keypad_page()
{
    return is_bank_tab(TAB_WIPE_KEYPAD) || is_bank_tab(TAB_DMEWIPE_KEYPAD);
}

static bool is_setup_locked()
{
    return SetupLock.lock != 0;
}

static void decide_lower_left()
{
    if (is_operation_section()) {
        if (isNowPageME(0) == 2 || is_keypad_page())
            return;
        if (is_key_priority_page() && is_setup_locked())
            ba.SetupLock_enable = 1; // shows that the lock is on
        else
            ba.Default_enable = 1;
    } else if (strcmp(section(), "Engineering Setup") == 0 && GL_NowPage != PAGE_SETUP_LOCK) {
        ba.SetupLock_id = SetupIndex_Find(GL_NowPage);
        ba.SetupLock_enable = ba.SetupLock_id >= 0;
    }
}

// The keys 5 to 8 are a step away where the bank has them.
static bool has_more_keys()
{
    const MeBank* bank = MeBank_OfPage(GL_NowPage);
    return isNowPageMeKey(0) != 0 && bank && GL_KeyMax[bank->place] > 4;
}

static uint32_t other_side()
{
    return ba.MainSub_mode ? GL_NowPage - TO_SUB_BANK : GL_NowPage + TO_SUB_BANK;
}

// Some pages of a bank stand for both its sides: there is no other to go to.
static void decide_side_key()
{
    ba.KeyChange_enable = has_more_keys();
    ba.MainSub_mode = isNowPageME(0) == 2;
    ba.MainSub_enable =
        !ba.KeyChange_enable && isMainSubCheck(0) && SearchPageTable(other_side()) != nullptr;
}

// --- Opening a page: the loop flushes the whole screen when the page is built ---

static void create_frame(uint32_t parent)
{
    ba.ParentPage = parent;
    decide_side_key();
    TDL_FillRectS(0, 0, SCREEN_W - 1, SCREEN_H - 1, FRAME_GROUND);
    TDL_FillRectS(97, 73, 702, 526, BLACK);
    ba_drw_pagebtn();
    ba_drw_title();
    if (ba.KeyChange_enable)
        ba_drw_keychange();
    if (ba.MainSub_enable)
        ba_drw_mainsub();
    ba_drw_back();
    ba_drw_fwd();
}

static void create_menu_macro()
{
    if (!ba_records_menu_macro())
        return;
    ba_drw_menu_macro();
    ba.MM_Default_enable = !ba.Default_enable && !ba.SetupLock_enable;
    if (ba.MM_Default_enable)
        ba_drw_menu_macro_default();
}

// The keys of the walk stand where the strip and the regions are otherwise.
static bool ba_has_walk()
{
    return GL_AllPageDisplayMode || GL_NowPage == PAGE_WALK;
}

static void create_strip()
{
    if (ba_has_walk())
        allpagedisp_draw();
    else
        KF_DrawTopArea(KF_DRAW_ANEW);
}

static int ba_create_normal(uint32_t parent)
{
    create_frame(parent);
    decide_lower_left();
    if (ba.Default_enable)
        ba_drw_default();
    if (ba.SetupLock_enable)
        ba_drw_setuplock();
    ba_drw_prev();
    create_strip();
    create_menu_macro();
    return 0;
}

static int ba_create_kf_tl(uint32_t parent)
{
    create_frame(parent);
    ba_drw_prev();
    create_strip();
    if (ba_records_menu_macro())
        ba_drw_menu_macro();
    return 0;
}

static int ba_create_file(uint32_t parent)
{
    create_frame(parent);
    ba_drw_prev();
    PaneRegion_InitID(ba.RegionGrp);
    if (ba_has_walk())
        allpagedisp_draw();
    else
        ba_drw_region();
    return 0;
}

// --- Presses ---

static void push(BaseWidget& w)
{
    w.pushed = PUSHED_MS;
    w.redraw = 1;
}

static void press_page()
{
    ba.Pagebtn.pushed = PUSHED_MS;
    const Rect r = ba_drw_pagebtn();
    TDL_UpdateRect(r.x1, r.y1, r.x2, r.y2); // the window comes at once and takes the screen
    CreateWindow(WINDOW_PAGE_JUMP, "Page");
}

// The next channel that exists, from the lowest again behind the last. The server's tally is not
// waited for: the operator steps quickly.
static void step_mpe_reference()
{
    const unsigned available = unsigned(SYS_MPEChannel) & 0xFF;
    if (available == 0)
        return;
    const unsigned present = unsigned(SYS_MPEReference) & 0xFF;
    const unsigned above =
        present ? ~(present | (present - 1)) : ~0u; // bits over the lowest of present
    const unsigned candidates = available & above ? available & above : available;
    SYS_MPEReference = int(candidates & (~candidates + 1));
    char digits[9] = "00000000"; // a binary number: channel 1 is the last digit
    for (int ch = 0; ch < 8; ch++)
        if (SYS_MPEReference >> ch & 1)
            digits[7 - ch] = '1';
    ba.Title.redraw = 1;
    Net_SendCommandFormat("put MPE@Fx@Channel@Reference#%s", digits);
}

// The section's top page; the error's text says to touch it.
static uint32_t title_target()
{
    if (GL_ErrorPopup_On)
        return GL_ErrorExist ? PAGE_ERRORS : PAGE_ERRORS_GONE;
    return GL_NowPage & 0xFF000000;
}

// In a section without a top page the band is a title and no key.
static void press_title()
{
    if (BeginsWith(section(), "MPE") && !GL_ErrorPopup_On)
        step_mpe_reference();
    else if (!Page_IsMissing(title_target()))
        push(ba.Title);
}

static void toggle_setup_lock()
{
    ba.SetupLockKey.redraw = 1;
    if (is_setup_locked() || ba.SetupLock_id < 0)
        return;
    ba.SetupLockKey.pushed = PUSHED_MS;
    SETUPMENU& entry = SetupMenu[ba.SetupLock_id];
    entry.lock = !entry.lock;
    (void)SetupIndex_KeepLock();
}

static void press_lower_left()
{
    if (ba.Default_enable) {
        ba.Default = !ba.Default;
        ba.DefaultKey.redraw = 1;
    } else if (ba.SetupLock_enable) {
        toggle_setup_lock();
    } else if (ba.MM_Default_enable) {
        push(ba.MM_Default_Pos);
    }
}

static void press_top_right(int x, int y)
{
    if (GL_NowPage == PAGE_WALK) {
        GL_AllPageDisplayMode = 1;
        allpagedisp_select(x, y);
    } else if (ba_records_menu_macro()) {
        if (!Inside(ZONE_MENU_MACRO, x, y))
            return;
        push(ba.MM);
        GL_CreatePage = PAGE_MENU_MACRO;
    } else if (GL_AllPageDisplayMode) {
        allpagedisp_select(x, y);
    } else {
        push(ba.KF);
    }
}

// The zones that all pages have. True when the point was in one of them.
static bool press_frame(int x, int y)
{
    if (Inside(ba_has_short_title() ? ZONE_TITLE_SHORT : ZONE_TITLE, x, y))
        press_title();
    else if (ba_has_short_title() && Inside(ZONE_SIDE, x, y))
        push(ba.KeyChange_enable ? ba.KeyChange : ba.MainSub);
    else if (Inside(ZONE_BACK, x, y))
        push(ba.Back);
    else if (Inside(ZONE_FWD, x, y))
        push(ba.Fwd);
    else if (Inside(ZONE_PREV, x, y))
        push(ba.Prev);
    else
        return false;
    return true;
}

static int press_normal(int x, int y)
{
    if (Inside(ZONE_LOWER_LEFT, x, y)) {
        press_lower_left();
        return 0;
    }
    if (ba.Default)
        return 0; // armed: the next touch is meant for a number box
    if (Inside(ZONE_PAGE, x, y))
        press_page();
    else if (!press_frame(x, y) && Inside(ZONE_TOP_RIGHT, x, y))
        press_top_right(x, y);
    return 0;
}

// These pages don't arm; page code that does stops the steps through the history alone.
static int press_file(int x, int y)
{
    const bool is_step =
        Inside(ZONE_BACK, x, y) || Inside(ZONE_FWD, x, y) || Inside(ZONE_PREV, x, y);
    if (Inside(ZONE_PAGE, x, y))
        press_page();
    else if (ba.Default && is_step)
        return 0;
    else if (!press_frame(x, y) && Inside(ZONE_TOP_RIGHT, x, y)) {
        if (ba_has_walk())
            allpagedisp_select(x, y);
        else
            push(ba.Region);
    }
    return 0;
}

// --- What a widget does when its pushed look has been seen ---

static void title_action()
{
    GL_CreatePage = title_target();
}

static void mainsub_action()
{
    GL_CreatePage = other_side();
}

static void keychange_action()
{
    GL_CreatePage = isNowPageMeKey(0) == 1 ? GL_NowPage + TO_SUB_BANK : GL_NowPage - TO_SUB_BANK;
}

// It may have gone with its bank since.
static void open_what_was_before(uint32_t page)
{
    GL_CreatePage = page ? Page_Nearest(page) : 0;
}

static void prev_action()
{
    if (ba_records_menu_macro() && GL_NowPage != PAGE_MENU_MACRO) {
        if (!GL_MenuMacro_AT_Store)
            mm_event_insert();
    } else {
        open_what_was_before(ba.Base.info[0] == 2 ? ba.ParentPage : GL_PrevPage);
    }
}

static void back_action()
{
    HistoryBack(OmoteFlag);
}

static void fwd_action()
{
    HistoryFwd(OmoteFlag);
}

static void menu_macro_default_action()
{
    GL_CreatePage = PAGE_MENU_MACRO;
}

static void region_action()
{
    RegionPaneID = PaneRegion_Create(ba.RegionGrp, 0);
}

static void timeline_action()
{
    GL_CreatePage = PAGE_TIMELINE;
}

static const struct {
    BaseWidget BaseArea::*widget;
    Rect (*draw)();
    void (*at_end)(); // null: it only comes up again
} widgets[] = {
    {&BaseArea::Pagebtn, ba_drw_pagebtn, nullptr},
    {&BaseArea::Title, ba_drw_title, title_action},
    {&BaseArea::MainSub, ba_drw_mainsub, mainsub_action},
    {&BaseArea::KeyChange, ba_drw_keychange, keychange_action},
    {&BaseArea::Prev, ba_drw_prev, prev_action},
    {&BaseArea::Back, ba_drw_back, back_action},
    {&BaseArea::Fwd, ba_drw_fwd, fwd_action},
    {&BaseArea::DefaultKey, ba_drw_default, nullptr},
    {&BaseArea::SetupLockKey, ba_drw_setuplock, nullptr},
    {&BaseArea::MM, ba_drw_menu_macro, nullptr},
    {&BaseArea::MM_Default_Pos, ba_drw_menu_macro_default, menu_macro_default_action},
    {&BaseArea::Region, ba_drw_region, region_action},
};

// True when the time of a pushed widget has just run out.
static bool run_down(BaseWidget& w, int elapsed_ms)
{
    if (w.pushed <= 0)
        return false;
    w.pushed -= elapsed_ms;
    if (w.pushed > 0)
        return false;
    w.pushed = 0;
    return true;
}

static int redraw_widgets(int elapsed_ms)
{
    if (ba.PageWindow != ba_page_button_down())
        ba.Pagebtn.redraw = 1;
    for (const auto& row : widgets) {
        BaseWidget& w = ba.*row.widget;
        if (w.redraw) {
            w.redraw = 0;
            const Rect r = row.draw();
            if (r.x2 >= r.x1)
                TDL_UpdateRect(r.x1, r.y1, r.x2, r.y2);
        }
        if (!run_down(w, elapsed_ms))
            continue;
        w.redraw = 1;
        if (row.at_end)
            row.at_end();
    }
    return 0;
}

static int redraw_with_strip(int elapsed_ms, void (*strip_action)())
{
    redraw_widgets(elapsed_ms);
    if (ba_has_walk()) {
        allpagedisp_redraw(elapsed_ms);
        return 0;
    }
    if (run_down(ba.KF, elapsed_ms) && strip_action)
        strip_action();
    KF_DrawTopArea(ba.KF.pushed);
    return 0;
}

static int redraw_with_regions(int elapsed_ms)
{
    redraw_widgets(elapsed_ms);
    if (ba_has_walk())
        allpagedisp_redraw(elapsed_ms);
    return 0;
}

static int region_pane_quit(int pane)
{
    if (pane == 0 || pane != RegionPaneID)
        return 0;
    RegionPaneID = 0;
    ba.Region.redraw = 1;
    SendMessage(LMSG_PANEREGION, 0, 0, 0, 0);
    return 0;
}

static int ba_proc_normal(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return redraw_with_strip(int(ax), timeline_action);
    case MSG_PRESS: return press_normal(int(ax), int(bx));
    case LMSG_FMCLIPCHANGE:
    case LMSG_FMLOAD: BA_RedrawTitle(); return 0;
    default: return 0;
    }
}

static int ba_proc_kf_tl(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return redraw_with_strip(int(ax), nullptr); // the timeline is this page
    case MSG_PRESS: return press_normal(int(ax), int(bx));
    case LMSG_FMCLIPCHANGE:
    case LMSG_FMLOAD: BA_RedrawTitle(); return 0;
    default: return 0;
    }
}

static int ba_proc_file(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return redraw_with_regions(int(ax));
    case MSG_PRESS: return press_file(int(ax), int(bx));
    case LMSG_PANEQUIT: return region_pane_quit(int(ax));
    case LMSG_FMCLIPCHANGE:
    case LMSG_FMLOAD: BA_RedrawTitle(); return 0;
    default: return 0;
    }
}

// --- Opening and closing a page ---

const BA_TBL base_main = {1, {1}, ba_create_normal, ba_proc_normal};
const BA_TBL base_sub = {2, {1}, ba_create_normal, ba_proc_normal};
const BA_TBL base_kf_tl = {3, {1}, ba_create_kf_tl, ba_proc_kf_tl};
const BA_TBL base_file_main = {4, {1}, ba_create_file, ba_proc_file};
const BA_TBL base_file_sub = {5, {1}, ba_create_file, ba_proc_file};

int BA_Create(const BA_TBL* bt, uint32_t parent)
{
    ba = {.RegionGrp = ba.RegionGrp}; // no touch of the page that is left acts on the next one
    if (!bt)
        return 1;
    ba.Base = *bt;
    if (ba.Base.create_func)
        ba.Base.create_func(parent);
    return 0;
}

int BA_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    return ba.Base.proc_func ? ba.Base.proc_func(msg, ax, bx, cx, dx) : 0;
}

// --- For other objects ---

int BA_IsDefaultButton()
{
    return ba.Default;
}

void BA_SetDefaultButton(int n)
{
    ba.Default = n;
    ba.DefaultKey.redraw = ba.Default_enable; // elsewhere the key isn't there to be drawn
}

void BA_SetPagebtn()
{
    ba.Pagebtn.redraw = 1;
}

void BA_RedrawTitle()
{
    ba.Title.redraw = 1;
}

void BA_FlashSetupLock()
{
    if (!ba.SetupLock_enable)
        return;
    push(ba.SetupLockKey);
}

void BA_RedrawMenuMacro()
{
    if (!ba_records_menu_macro() || !ba.Base.create_func || has_regions())
        return;
    ba.MM.redraw = 1;
    ba.Prev.redraw = 1;
}

void BA_DrawError()
{
    if (!ba.Base.create_func)
        return;
    ba.Title.redraw = 1;
    if (Pane_GetActiveID() || GetWindow() || GL_ScreenSaver_Now)
        return; // what stands above the page is not painted over: when it has gone
    ba.Title.redraw = 0;
    const Rect r = ba_drw_title();
    TDL_UpdateRect(r.x1, r.y1, r.x2, r.y2);
}

void BA_SetRegionGrp(int grp)
{
    ba.RegionGrp = grp;
    PaneRegion_InitID(grp);
    ba.Region.redraw = has_regions() && !ba_has_walk();
}
