// Page requests from the panel: the menu keys, a page number, the panel's assign buttons.
#include "bus_tally.h"
#include "device.h"
#include "file.h"
#include "global.h"
#include "log.h"
#include "page.h"
#include "pane.h"
#include "saver.h"
#include "selfdiag.h"
#include "window.h"
#include <iterator>

#include "safeguards.h"

constexpr int PANEL_BUTTONS = 1024; // above any number that a panel gives a button

void tally_reload_page()
{
    if (Page && GL_CreatePage == 0)
        GL_CreatePage = GL_NowPage;
}

static bool is_one_of(const char* value, const char* const* words)
{
    for (; *words; words++)
        if (Same(value, *words))
            return true;
    return false;
}

// --- The menu keys ---

static constexpr const char* menus_not_in_4k[] = {"Frame Memory", "Status", "DME", "Global Effect",
                                                  nullptr};
// What a running transfer would be disturbed by.
static constexpr const char* menus_not_in_file_transfer[] = {"SP", "File", "User setup", nullptr};
static constexpr const char* menus_not_in_hdd_transfer[] = {"SP", "User setup", nullptr};

// A transfer in the background keeps its own pane, which makes way for the jump; any other pane is
// to be answered.
static bool menu_passes_panes(const char* menu)
{
    if (BkgdFileTransfer_IsHome(GL_NowPage)) {
        if (is_one_of(menu, menus_not_in_file_transfer))
            return false;
        BkgdFileTransfer_PaneQuit();
        return true;
    }
    if (BkgdHDDTransfer_Check(GL_NowPage)) {
        if (is_one_of(menu, menus_not_in_hdd_transfer))
            return false;
        // The pages that such a transfer belongs to.
        if (!Same(menu, "Frame Memory"))
            BkgdHDDTransfer_PaneQuit();
        return true;
    }
    return Pane_GetActiveID() == 0;
}

static void turn_menu_over()
{
    OmoteChange = 1;
    OmoteFlag = !OmoteFlag;
    // The page of the other side may have gone with its bank since; a side always has a page.
    GL_CreatePage = Page_Nearest(OmoteFlag ? GL_OmoteNowPage : GL_UraNowPage);
    Log_Output(LOG_LIFE, MOD_PAGE, "Create %s Page: %Xh", OmoteFlag ? "Omote" : "Ura",
               GL_CreatePage);
}

static void reopen_menu(const char* caption)
{
    for (const TOPMENU* menu = TopMenu; menu->caption; menu++) {
        if (!Same(menu->caption, caption))
            continue;
        if (menu->page != GL_NowPage)
            GL_CreatePage = menu->page;
        return;
    }
}

TallyRoute tally_top_menu(const Tally& t)
{
    if (!t.value[0])
        return TallyRoute::Taken; // what a new page's "add" is answered with: no key was pressed
    if (GetWindow() != 0)
        return TallyRoute::Refused;
    if (is4KFormat() && is_one_of(t.value, menus_not_in_4k))
        return TallyRoute::Refused;
    if (!menu_passes_panes(t.value))
        return TallyRoute::Refused;
    Diag_FocusTM3();
    EndScreenSaver();
    if (Same(t.value, "SubMenuSite"))
        turn_menu_over();
    else
        reopen_menu(t.value);
    return TallyRoute::Taken;
}

// --- A page number ---

// "D2" and "F2": the second unit.
static void take_device(const char* text)
{
    if (text[0] != 'D' && text[0] != 'F')
        return;
    const int number = int(NumberIn(text + 1, 0, DEVICE_MAX + 1, 16));
    if (number >= 1 && number <= DEVICE_MAX)
        GL_DeviceNo = number - 1;
}

// Up to max_digits hexadecimal digits. Returns what follows them; *digits gets how many there were.
static const char* read_hex(const char* text, int max_digits, uint32_t* value, int* digits)
{
    *value = 0;
    for (*digits = 0; *digits < max_digits; (*digits)++, text++) {
        const char* set = "0123456789ABCDEFabcdef";
        const char* at = *text ? strchr(set, *text) : nullptr;
        if (!at)
            break;
        const uint32_t nibble = uint32_t(at - set);
        *value = *value << 4 | (nibble > 15 ? nibble - 6 : nibble);
    }
    return text;
}

// "1111" or "1111.2" as a page id; 0 when it is none.
static uint32_t page_of_number(const char* text)
{
    uint32_t high = 0;
    uint32_t low = 0;
    int digits = 0;
    text = read_hex(text + strspn(text, " "), 4, &high, &digits);
    if (digits == 0)
        return 0;
    if (*text == '.')
        text = read_hex(text + 1, 4, &low, &digits);
    return high << 16 | low;
}

TallyRoute tally_page(const Tally& t)
{
    Parts p;
    if (SplitValue(p, t.value, 2) == 2)
        take_device(p.v[1]);
    if (GetWindow() != 0)
        return TallyRoute::Refused;
    if (BkgdFileTransfer_IsHome(GL_NowPage))
        BkgdFileTransfer_PaneQuit();
    else if (BkgdHDDTransfer_Check(GL_NowPage))
        BkgdHDDTransfer_PaneQuit();
    else if (Pane_GetActiveID() != 0)
        return TallyRoute::Refused;
    EndScreenSaver();
    const uint32_t page = page_of_number(p.v[0]);
    if (page != 0)
        GL_CreatePage = page;
    return TallyRoute::Taken;
}

// --- The panel's assign buttons ---

namespace
{
struct AssignKind {
    uint32_t* parent; // the page that asked, to come back to
    int* button;
    uint32_t page;
};
} // namespace

static constexpr AssignKind assign_kinds[] = {
    {&GL_ShortCutMenu, &GL_SelectButtonID, 0x73240000},
    {&GL_UtlAsgnShortCutMenu, &GL_UtlAsgnSelectButtonID, 0x73240001},
    {&GL_XptAsgnShortCutMenu, &GL_XptAsgnSelectButtonID, 0x73240002},
};

TallyRoute tally_panel_select(const Tally& t)
{
    Parts p;
    SplitValue(p, t.value, 2);
    const int button = Index(p.v[0], PANEL_BUTTONS);
    const int number = Index(p.v[1], int(std::size(assign_kinds)));
    if (button < 0 || number < 0)
        return TallyRoute::Pass;
    const AssignKind& kind = assign_kinds[number];
    *kind.parent = GL_NowPage;
    *kind.button = button;
    GL_CreatePage = kind.page;
    return TallyRoute::Pass;
}
