#include "saver.h"
#include "a_ba.h"
#include "bus.h"
#include "device.h"
#include "global.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include "saver_private.h"
#include "tdl.h"
#include "touch.h"
#include "window.h"
#include <iterator>

#include "safeguards.h"

int GL_ScreenSaverPTN_Mode = SAVER_PATTERNS;
int GL_ScreenSaverVariable_speed = 0;
int GL_ScreenSaverPath_Time = 5;
int GL_SSver_PVW = 0;
int GL_SSver_Shown = 0;
char GL_Scr_disp_name[SAVER_NAMES][SAVER_TEXT] = {"KTR-20"};
char GL_Scr_disp_ImagePath[SAVER_TEXT] = "/mnt/data/SSrc";
const char S_SYS_Name[] = "Vorn Production Switcher System";

static int SSav = 0;    // the saver is up
static int SSavCnt = 0; // ms until it starts

namespace
{
constexpr uint32_t ERROR_PAGE = 0x99000000;
constexpr uint32_t MACRO_EDIT_PAGE = 0x71420003;
constexpr Rect PLAIN_TEXT = {260, 300, 540, 320};
constexpr int BRIGHTEST = 255;

constexpr SaverStep patterns[] = {
    SScr_ptn_left,        // 1
    SScr_ptn_right,       // 2
    SScr_ptn_against,     // 3
    SScr_ptn_layers,      // 4
    SScr_ptn_wave,        // 5
    SScr_ptn_breath,      // 6
    SScr_ptn_comets,      // 7
    SScr_ptn_side2side_6, // 8
    SScr_ptn_side2side_7, // 9
    SScr_ptn_blink,       // 10
    SScr_ptn_blink_2,     // 11
    SScr_ptn_slide,       // 12
    SScr_ptn_alpha,       // 13
    SScr_ptn_change,      // 14
    SScr_ptn_multi,       // 15
    SScr_ptn_multi_2,     // 16
    SScr_ptn_blink_6000,  // 17
};
static_assert(std::size(patterns) == SAVER_PATTERNS);

// One value runs down to 0 and up again, then the next one does: first all three colours together,
// which is grey, then each by itself.
struct ColourCycle {
    int red = BRIGHTEST;
    int green = BRIGHTEST;
    int blue = BRIGHTEST;
    int phase = 0; // 0 all, 1 red, 2 green, 3 blue
    int step = -1;
};
} // namespace

static struct {
    int grey = 0; // of the plain form
    int step = 1;
    ColourCycle cycle;
    bool has_patterns = false; // what was drawn last is of a pattern
} look;                        // valid from the start of the saver to its end

static bool was_off = false; // the interval was 0 in the last pass: the count is not of this one

// --- Colours ---

static void cycle_colour(ColourCycle& c)
{
    constexpr int PHASES = 4;
    int* const moving[PHASES] = {&c.red, &c.red, &c.green, &c.blue};
    int& value = *moving[c.phase];
    value += c.step;
    if (c.phase == 0)
        c.green = c.blue = c.red;
    if (value <= 0) {
        c.step = 1;
    } else if (value >= BRIGHTEST) {
        c.phase = (c.phase + 1) % PHASES;
        c.step = -1;
    }
}

unsigned saver_colour()
{
    return unsigned(look.cycle.red) << 16 | unsigned(look.cycle.green) << 8 |
           unsigned(look.cycle.blue);
}

// --- One step of the picture ---

static void ScreenSaver_ptn(int elapsed_ms)
{
    cycle_colour(look.cycle);
    const int mode = GL_ScreenSaverPTN_Mode;
    const bool is_known = mode >= 1 && mode <= SAVER_PATTERNS;
    patterns[(is_known ? mode : SAVER_PATTERNS) - 1](elapsed_ms);
    BA_AccessDraw_s();
    TDL_UpdateRect(0, 0, SCREEN_W, SCREEN_H);
}

static bool wants_patterns()
{
    return (GL_SSver_Shown || SYS_RefSwrType == DEVTYPE_KTR40E) && GL_ScreenSaverPTN_Mode != 0;
}

static void ScreenSaver_plain()
{
    look.grey += look.step;
    if (look.grey >= BRIGHTEST)
        look.step = -1;
    else if (look.grey < 1)
        look.step = 1;
    TDL_FillRectS(PLAIN_TEXT.x1, PLAIN_TEXT.y1, PLAIN_TEXT.x2, PLAIN_TEXT.y2, 0);
    TDL_Symbol(PLAIN_TEXT.x1, PLAIN_TEXT.y1, S_SYS_Name, 7, Grey(look.grey));
}

static void saver_start()
{
    HackMessage(0, MSG_REDRAW);
    TDL_FillRect(0, 0, SCREEN_W - 1, SCREEN_H - 1, 0);
    look = {};
    look.has_patterns = wants_patterns();
    saver_scenes_start();
    saver_pictures_start();
    SDL_ShowCursor(0);
    SSavCnt = 0;
    SSav = 1;
    GL_ScreenSaver_Now = 1;
    BA_AccessDraw();
}

// The two forms do not clear what the other has drawn.
static void saver_step(int elapsed_ms)
{
    if (look.has_patterns != wants_patterns()) {
        look.has_patterns = !look.has_patterns;
        TDL_FillRect(0, 0, SCREEN_W - 1, SCREEN_H - 1, 0);
        BA_AccessDraw();
    }
    if (look.has_patterns)
        ScreenSaver_ptn(elapsed_ms);
    else
        ScreenSaver_plain();
}

// --- Counting and waking ---

// The finger that asked for a preview must not be taken for one that ends it.
static bool touch_is_over()
{
    SDL_Event next;
    return !Touch_IsDown() && SDL_GetMouseState(nullptr, nullptr) == 0 &&
           SDL_PeepEvents(&next, 1, SDL_PEEKEVENT, SDL_ALLEVENTS) == 0;
}

static void saver_reload()
{
    SSavCnt = GL_ScreenSaverInterval * 1000;
}

int ScreenSaver(int elapsed_ms)
{
    if (GL_ScreenSaverInterval <= 0) {
        was_off = true;
        GL_SSver_PVW = 0; // not in an hour, when somebody switches the saver on
        if (SSav)
            (void)EndScreenSaver(); // a picture that stands still protects nothing
    }
    if (GL_NowPage == ERROR_PAGE || GL_NowPage == MACRO_EDIT_PAGE || GL_ScreenSaverInterval <= 0)
        return 1;
    if (GetWindow() || Pane_GetActiveID())
        return 2;
    if (GL_ContinuousLoad)
        return 3;
    if (GL_MenuMacro_Run == 1)
        return 1;
    if (was_off) {
        // What the last touch loaded was an interval of 0: without this the saver would start the
        // moment it is switched on.
        was_off = false;
        saver_reload();
    }
    if (GL_SSver_PVW == 1 && touch_is_over()) {
        GL_SSver_PVW = 0;
        SSavCnt = 0;
        GL_SSver_Shown = 1; // else the operator would preview what he did not choose
    }
    if (!SSav) {
        SSavCnt -= elapsed_ms;
        if (SSavCnt < 0)
            saver_start();
    }
    if (SSav)
        saver_step(elapsed_ms);
    return 0;
}

int EndScreenSaver()
{
    if (!SSav) {
        saver_reload();
        return 0;
    }
    UnHackMessage(0);
    SSav = 0;
    saver_pictures_end();
    // The page may have gone while nobody looked: the operator must not be left before a dead
    // picture.
    if (CreatePage(GL_NowPage) != 0 && !GL_CreatePage)
        GL_CreatePage = PAGE_TOP;
    GL_ScreenSaver_Now = 0;
    BA_AccessDraw(); // the page has drawn them as they look under the saver
    saver_reload();
    SDL_ShowCursor(1);
    return 1;
}

int IsSaver()
{
    return SSav;
}
