#include "a_ba_draw.h"
#include "a_kf.h"
#include "colours.h"
#include "global.h"
#include "graphics.h"
#include "menu_macro.h"
#include "page.h"
#include "pane.h"
#include "setup_index.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include "safeguards.h"

namespace
{
constexpr unsigned TREE_OMOTE = ORANGE;
constexpr unsigned TREE_URA = 0x800019;
constexpr unsigned REGION_GRID = 0x323246;
constexpr unsigned ERROR_GROUND = 0xB40000; // under the words that ask for a touch
constexpr Rect NOT_FLUSHED = {0, 0, -1, -1};
} // namespace

// Inputs of the lamps; they outlive the page.
static int UsbAccess = 0;
static int FtpAccess = 0;
static int HDDAccess = 0;

// --- Page button and lamps ---

void BA_AccessDraw_s()
{
    const unsigned off = GL_ScreenSaver_Now ? BLACK : LAMP_OFF;
    TDL_FillRectS(70, 13, 80, 23, UsbAccess ? RED : FtpAccess ? GREEN : off);
    TDL_FillRectS(55, 13, 65, 23, HDDAccess ? RED : off);
}

void BA_AccessDraw()
{
    BA_AccessDraw_s();
    TDL_UpdateRect(55, 13, 80, 23);
}

static void set_lamp(int& input, int on)
{
    input = on;
    if (ba.Base.create_func)
        BA_AccessDraw(); // before the first page there is nothing to draw on
}

void BA_SetFtpAccess(int on)
{
    set_lamp(FtpAccess, on);
}

void BA_SetUsbAccess(int on)
{
    set_lamp(UsbAccess, on);
}

void BA_SetHDDAccess(int on)
{
    set_lamp(HDDAccess, on);
}

Rect ba_drw_pagebtn()
{
    ba.PageWindow = ba_page_button_down();
    TDL_PutS(3, 6, ba.PageWindow ? G_PG_on : G_PG_off);
    TDL_SymbolS(8, 12, "Page", 2, WHITE);
    char number[16];
    PrintText(number, "%04X", unsigned(GL_NowPage >> 16));
    TDL_SymbolS(12, 33, number, 9, WHITE);
    if (GL_NowPage & 0xFFFF) {
        PrintText(number, ".%X", unsigned(GL_NowPage & 0xFF));
        TDL_SymbolS(58, 36, number, 7, WHITE);
    }
    BA_AccessDraw_s();
    return ZONE_PAGE;
}

// --- Title band ---

static SDL_Surface* title_band()
{
    // by side, form and look
    constexpr SDL_Surface** bands[2][2][2] = {
        {{&G_TIT_ura_off, &G_TIT_ura_on}, {&G_TIT_ura_s_off, &G_TIT_ura_s_on}},
        {{&G_TIT_omote_off, &G_TIT_omote_on}, {&G_TIT_omote_s_off, &G_TIT_omote_s_on}},
    };
    return *bands[OmoteFlag != 0][ba_has_short_title()][ba.Title.pushed > 0];
}

static int tree_depth()
{
    int depth = 0;
    while (depth < PAGE_DEPTH && GL_NowTree[depth])
        depth++;
    return depth;
}

// The elements from the second on; ".." stands for so many of those behind the first of them.
static void join_tree(char (&line)[PATH_SIZE], int left_out)
{
    line[0] = '\0';
    const int depth = tree_depth();
    for (int i = 1; i < depth; i++) {
        if (i > 1)
            AppendText(line, " > ");
        if (i == 2 && left_out > 0) {
            AppendText(line, ".. > ");
            i += left_out;
        }
        AppendText(line, GL_NowTree[i]);
    }
}

// The first element tells where a page is and the last tells it from its neighbours: where the band
// is too short, what lies between goes.
static void tree_line(char (&line)[PATH_SIZE], int width_px)
{
    const int between = std::max(tree_depth() - 3, 0);
    for (int left_out = 0; left_out <= between; left_out++) {
        join_tree(line, left_out);
        if (int(TDL_GetSymbolWidth(line, 4)) <= width_px)
            return;
    }
    (void)TDL_CutText(line, sizeof line, width_px, "..", 4); // the band has room for both dots
}

// How many errors the units report, beside a lamp like those of the page button. Returns where the
// section's name ends.
static int draw_error_mark(const Rect& band)
{
    if (GL_ErrorExist <= 0)
        return band.x2;
    char count[12];
    PrintText(count, "%d", std::min(GL_ErrorExist, 999));
    const int lamp = band.x2 - 21;
    const int x = lamp - 5 - int(TDL_GetSymbolWidth(count, 3));
    TDL_FillRectS(lamp, 13, lamp + 10, 23, RED);
    TDL_SymbolS(x, 13, count, 3, OmoteFlag ? WHITE : BLACK);
    return x - 5;
}

Rect ba_drw_title()
{
    const Rect band = ba_has_short_title() ? ZONE_TITLE_SHORT : ZONE_TITLE;
    TDL_PutS(band.x1, band.y1, title_band());
    if (!GL_NowTree || !GL_NowTree[0])
        return band;
    const int end = draw_error_mark(band);
    TDL_SymbolWS(97, 11, end - 97, GL_NowTree[0], 9, OmoteFlag ? WHITE : BLACK);
    if (GL_ErrorPopup_On) {
        TDL_FillRectS(band.x1 + 3, 43, band.x2 - 3, 60, ERROR_GROUND);
        TDL_SymbolS(99, 46, "Error: touch here", 4, WHITE); // leads to the diagnosis
        return band;
    }
    char line[PATH_SIZE];
    tree_line(line, band.x2 - 8 - 99);
    TDL_SymbolS(99, 46, line, 4, OmoteFlag ? TREE_OMOTE : TREE_URA);
    return band;
}

static Rect draw_side_key(const BaseWidget& w, const char* caption)
{
    const int p = w.pushed > 0;
    TDL_PutS(299, 6, p ? G_TIT_ms_on : G_TIT_ms_off);
    TDL_SymbolBS(309 + p, 22 + p, 62, 50, caption, 3, WHITE, 0);
    return ZONE_SIDE;
}

Rect ba_drw_mainsub()
{
    return draw_side_key(ba.MainSub, ba.MainSub_mode ? "Sub" : "Main");
}

Rect ba_drw_keychange()
{
    return draw_side_key(ba.KeyChange, "Key\nChange");
}

// --- History ---

static void fill(const Rect& r, unsigned col)
{
    TDL_FillRectS(r.x1, r.y1, r.x2, r.y2, col);
}

// As the page button names it: without the digits of a variant, which the label has no room for.
static void draw_history_page(int x, int x_with_sub, uint32_t page)
{
    char number[16];
    Page_Number(number, sizeof number, page & 0xFFFF00FF);
    const bool has_sub = strchr(number, '.') != nullptr;
    TDL_SymbolS(has_sub ? x_with_sub : x, 52, number, 4, WHITE);
}

Rect ba_drw_back()
{
    fill(ZONE_BACK, FRAME_GROUND);
    if (IsTopHistory(OmoteFlag)) {
        TDL_PutS(389, 6, G_BACK_dis);
        return NOT_FLUSHED;
    }
    TDL_PutS(389, 6, ba.Back.pushed > 0 ? G_BACK_on : G_BACK_off);
    draw_history_page(394, 388, GetHistoryBack(OmoteFlag));
    return ZONE_BACK;
}

Rect ba_drw_fwd()
{
    fill(ZONE_FWD, FRAME_GROUND);
    if (IsLastHistory(OmoteFlag)) {
        TDL_PutS(446, 6, G_NEXT_dis);
        return NOT_FLUSHED;
    }
    TDL_PutS(446, 6, ba.Fwd.pushed > 0 ? G_NEXT_on : G_NEXT_off);
    draw_history_page(451, 445, GetHistoryFwd(OmoteFlag));
    return ZONE_FWD;
}

// --- Lower left and lower right ---

Rect ba_drw_default()
{
    if (ba.Default) {
        TDL_PutS(4, 531, G_NBA_on);
        TDL_SymbolS(16, 546, "Default\nRecall", 3, BLACK);
    } else {
        TDL_PutS(4, 531, G_NBA_off);
        TDL_SymbolS(15, 545, "Default\nRecall", 3, WHITE);
    }
    return ZONE_LOWER_LEFT;
}

// While the lock is on the key is inert and shows a closed padlock on the pages that it holds.
// While it is off the key chooses them: amber with an open padlock for a page in the set.
Rect ba_drw_setuplock()
{
    const bool locked_page = ba.SetupLock_id < 0 || SetupMenu[ba.SetupLock_id].lock;
    const int p = ba.SetupLockKey.pushed > 0;
    if (SetupLock.lock) {
        TDL_PutS(4, 531, p ? G_NBA_on : G_NBA_off); // lit for a moment when a press was refused
        if (locked_page)
            TDL_PutS(35, 555, p ? G_Lock_On_Button_Rev : G_Lock_On_Button);
        else
            TDL_SymbolS(15, 545, "Lock Item\nSelect", 3, GREY);
    } else if (locked_page) {
        TDL_PutS(4, 531, G_NBA_On_Rev);
        TDL_SymbolS(16, 546, "Lock Item\nSelect", 3, BLACK);
        TDL_PutS(55, 565, G_Lock_Off_Button_Rev);
    } else {
        TDL_PutS(4, 531, G_NBA_Off_Rev);
        TDL_SymbolS(15 + p, 545 + p, "Lock Item\nSelect", 3, WHITE);
    }
    return ZONE_LOWER_LEFT;
}

Rect ba_drw_menu_macro_default()
{
    const int p = ba.MM_Default_Pos.pushed > 0;
    TDL_PutS(4, 531, p ? G_NBA_on : G_NBA_off);
    TDL_SymbolS(15 + p, 545 + p, "Default\nPosition", 3, p ? BLACK : WHITE);
    return ZONE_LOWER_LEFT;
}

Rect ba_drw_prev()
{
    const bool down = ba.Prev.pushed > 0;
    if (ba_records_menu_macro() && GL_NowPage != PAGE_MENU_MACRO)
        TDL_PutS(721, 547, down ? G_MMCR_rec_on : G_MMCR_rec_off); // the key stores an event
    else
        TDL_PutS(710, 547, down ? G_PRV_on : G_PRV_off);
    return ZONE_PREV;
}

// --- Top right ---

// Beside the key: what is recorded, or what runs.
static void draw_menu_macro_state()
{
    constexpr int X = 578, FONT = 3, LINE_PX = 19, LETTERS = 28;
    const MenuMacroDisplay s = mm_display();
    char text[64];
    PrintText(text, "Menu Macro#:%d ( %s )", s.reg, s.name);
    TDL_SymbolS(X, 7, text, FONT, WHITE);
    PrintText(text, "Evt: %3d/%3d", s.event, s.events);
    TDL_SymbolS(X, 7 + LINE_PX, text, FONT, WHITE);
    TDL_SymbolS(X + 125, 7 + LINE_PX, s.is_run ? "Run" : "Edit", FONT, ORANGE);
    if (s.is_run)
        PrintText(text, "Remain: %4.2f%%  %.1f Sec", s.remain, s.wait_ms / 1000.0);
    else
        PrintText(text, "%.*s", LETTERS, s.command);
    TDL_SymbolS(X, 7 + 2 * LINE_PX, text, FONT, TEAL);
}

Rect ba_drw_menu_macro()
{
    const bool has_state = !KF_HasTopArea(); // otherwise the strip of the timeline is there
    const Rect& all = ZONE_TOP_RIGHT;
    if (has_state)
        TDL_FillRectS(all.x1, all.y1, all.x2, all.y2, FRAME_GROUND);
    TDL_PutS(513, 6, ba.MM.pushed > 0 ? G_KF_mm_on : G_KF_mm_off);
    if (has_state)
        draw_menu_macro_state();
    return has_state ? all : ZONE_MENU_MACRO;
}

// How much of a region group is selected, as a colour.
static unsigned selection_colour(int grp, int main)
{
    constexpr unsigned REFERENCE = CYAN;
    constexpr unsigned PARTLY = ORANGE;
    constexpr unsigned NONE = 0x6A6A6A;
    constexpr int SUB_MAX = 16;
    int selected = 0;
    int count = 0;
    bool reference = false;
    for (; count < SUB_MAX; count++) {
        const int id = PaneRegion_GetGrpID(grp, main, count);
        if (id <= 0)
            break;
        const int select = PaneRegion_IsSelected(grp, id);
        selected += select != 0;
        reference |= select == 2;
    }
    if (selected == 0)
        return NONE;
    if (selected < count)
        return PARTLY;
    return reference ? REFERENCE : WHITE;
}

// Ten cells, two rows of five, each with the name of a group.
Rect ba_drw_region()
{
    const int p = ba.Region.pushed > 0;
    TDL_PutS(508, 6, p ? G_KF_on : G_KF_off);
    TDL_LineHS(509, 34, 283, REGION_GRID);
    for (int i = 0; i < 4; i++)
        TDL_LineVS(565 + 57 * i, 6, 57, REGION_GRID);
    for (int main = 0; main < PaneRegion_GetMainMax(ba.RegionGrp); main++) {
        const int pos = PaneRegion_GetGrpPos(ba.RegionGrp, main);
        if (pos < 0 || pos >= 10)
            continue;
        TDL_SymbolWS(520 + pos % 5 * 57 + p, 15 + pos / 5 * 28 + p, 48,
                     PaneRegion_GetGrpName(ba.RegionGrp, main), 4,
                     selection_colour(ba.RegionGrp, main));
    }
    return ZONE_TOP_RIGHT;
}
