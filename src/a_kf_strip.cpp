// The strip at top right: what the reference region does, on every normal page.
#include "a_kf_private.h"
#include "colours.h"
#include "global.h"
#include "graphics.h"
#include "page.h"
#include "tdl.h"
#include "text.h"
#include "timecode.h"
#include <cstring>
#include <initializer_list>
#include "safeguards.h"

namespace
{
constexpr int CODE_ROUTER = 66; // it has no timeline to show
constexpr uint32_t PAGE_TIMELINE = 0x61110000;

constexpr Rect STRIP = {508, 6, 799, 65};
constexpr int BITMAP_RIGHT = 794; // a negative time reaches beyond it
constexpr int FONT_TEXT = 4;
constexpr int FONT_NAME = 8;
constexpr int FONT_LONG_NAME = 7;
constexpr int FONT_TIME = 8;
constexpr int TIME_CELL_PX = 10;
} // namespace

static struct {
    bool is_pushed = false;
    const KF_REGION* region = nullptr;
    int regnum = 0;
    char regname[sizeof KF_REGION::regname] = "";
    int freekf = 0;
    int kfnum = 0;
    int ckfnum = 0;
    int ctime = 0;
} painted; // what the strip shows

// While a menu macro is recorded its keys are there, but on the pages where there is none to
// record.
bool KF_HasTopArea()
{
    if (GL_AllPageDisplayMode)
        return false;
    if (!GL_MenuMacro_Edit)
        return true;
    const uint32_t menu = GL_NowPage >> 24;
    if (menu != 0x61 && menu != 0x71)
        return false;
    for (const uint32_t page : {0x71440002u, 0x61130000u, 0x61140000u, 0x61150000u, 0x61170000u})
        if (GL_NowPage == page)
            return false;
    return true;
}

static KF_REGION& strip_region()
{
    const int index = RefRegion == CODE_ROUTER ? -1 : KF_RegionOfCode(RefRegion);
    return Region[index < 0 ? 0 : index];
}

// "M/E-1 Sub" is M/E-1S here, "DME1 GLB" DME1G.
static void short_name(char (&name)[16], const char* full)
{
    CopyText(name, full);
    for (const char* const side : {"Sub", "GLB"}) {
        char* const at = strstr(name, side);
        if (!at || at == name)
            continue;
        at[-1] = *side;
        at[0] = '\0';
    }
}

static bool is_shown(const KF_REGION& r)
{
    return painted.region == &r && painted.regnum == r.regnum && painted.freekf == r.freekf &&
           painted.kfnum == r.kfnum && painted.ckfnum == r.ckfnum && painted.ctime == r.ctime &&
           strcmp(painted.regname, r.regname) == 0;
}

static void remember(const KF_REGION& r, bool is_pushed)
{
    painted = {is_pushed, &r, r.regnum, "", r.freekf, r.kfnum, r.ckfnum, r.ctime};
    CopyText(painted.regname, r.regname);
}

static void draw_name(const char* full)
{
    char name[16];
    short_name(name, full);
    if (strcmp(name, "MACRO") == 0)
        TDL_SymbolS(518, 40, name, FONT_LONG_NAME, CYAN);
    else
        TDL_SymbolS(515, 36, name, FONT_NAME, CYAN);
}

static void draw_strip(const KF_REGION& r)
{
    char text[64];
    TDL_FillRectS(BITMAP_RIGHT + 1, STRIP.y1, STRIP.x2, STRIP.y2, FRAME_GROUND);
    TDL_PutS(STRIP.x1, STRIP.y1, painted.is_pushed ? G_KF_on : G_KF_off);
    PrintText(text, "Effect#: %d (%s)", r.regnum, r.regname);
    TDL_SymbolS(515, 16, text, FONT_TEXT, WHITE);
    PrintText(text, "Free KF: %d", r.freekf);
    TDL_SymbolS(700, 16, text, FONT_TEXT, WHITE);
    draw_name(r.name);
    PrintText(text, "KF# %d / %d", r.ckfnum, r.kfnum);
    TDL_SymbolS(590, 41, text, FONT_TEXT, WHITE);
    TDL_SymbolPS(680, 36, TIME_CELL_PX, Frame2TC(r.ctime, 4), FONT_TIME, WHITE);
    TDL_UpdateRect(STRIP.x1, STRIP.y1, STRIP.x2, STRIP.y2);
}

void KF_DrawTopArea(int pushed)
{
    if (!KF_HasTopArea())
        return;
    const bool is_anew = pushed == KF_DRAW_ANEW;
    const bool is_pushed = !is_anew && pushed > 0;
    KF_REGION& r = strip_region();
    // The rows of the timeline wait for the same marks, and may wait long: there the marks stay,
    // and what the strip shows tells whether there is news for it.
    const bool has_rows = GL_NowPage == PAGE_TIMELINE;
    const bool is_news = (r.redraw || r.redraw_tl) && !(has_rows && is_shown(r));
    if (!is_anew && !is_news && is_pushed == painted.is_pushed)
        return;
    remember(r, is_pushed);
    draw_strip(r);
    if (has_rows)
        return;
    r.redraw = 0;
    r.redraw_tl = 0;
}
