// The opening of a page: the state of navigation, the menu keys, the objects. What an id means is
// told by page_class, page_request and page_rules; the histories are in page_history.
#include "page.h"
#include "bus_tally.h"
#include "global.h"
#include "log.h"
#include "loop.h"
#include "message.h"
#include "netio.h"
#include "page_family.h"
#include "page_private.h"
#include "scrollbar.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>
#include <iterator>

#include "safeguards.h"

PAGE* Page = nullptr;
uint32_t GL_NowPage = 0;
uint32_t GL_PrevPage = 0;
const char* const* GL_NowTree = nullptr;
int OmoteFlag = 1;
int OmoteChange = 0;
uint32_t GL_OmoteNowPage = PAGE_TOP;
uint32_t GL_UraNowPage = PAGE_TOP;
uint32_t GL_OmotePrevPage = 0;
uint32_t GL_UraPrevPage = 0;
char NowTopMenu[256] = "";
int MeKeyTpye = 0;
uint32_t Omote_History[HISTORY_DEPTH];
uint32_t Ura_History[HISTORY_DEPTH];
int Omote_History_NowPtr = -1;
int Ura_History_NowPtr = -1;
int Omote_History_MaxPtr = -1;
int Ura_History_MaxPtr = -1;
char Page_InstallUnit[16] = "";
uint32_t Page_Changes = 0;

static int side_on_screen = 1; // OmoteFlag of the page that is shown

namespace
{
constexpr TOPMENU start_menu[] = {
    // the banks first, in the order of me_bank
    {"M/E-1", 0x11110000},
    {"M/E-2", 0x12110000},
    {"M/E-3", 0x13110000},
    {"M/E-4", 0x81110000},
    {"M/E-5", 0x82110000},
    {"PGM/PST", 0x14110000},
    {"Frame Memory", 0x21110000},
    {"Color Bkgd", 0x22100000},
    {"Aux/Mon", 0x23110000},
    {"CCR", 0x24110000},
    {"Copy/Swap", 0x31110000},
    {"Misc", 0x32110000},
    {"Status", 0x33110000},
    {"DME", 0x41110000},
    {"Global Effect", 0x42110000},
    {"Router", 0x51110000},
    {"SP", 0x52100000},
    {"Device", 0x53210000},
    {"Macro", 0x54100000},
    {"Key Frame", 0x61110000},
    {"Effect", 0x62110000},
    {"Snapshot", 0x63110000},
    {"Shotbox", 0x64110000},
    {"File", 0x71110000},
    {"Engineering Setup", 0x73110000},
    {"Setup", 0x73110000},
    {"Diag", 0x74110000},
    {"Top", PAGE_TOP},
    {nullptr, 0},
};
constexpr bool BanksAreFirst()
{
    for (const MeBank& bank : me_bank)
        if (start_menu[bank.place].page >> 24 != bank.main)
            return false;
    return true;
}
static_assert(BanksAreFirst());
constexpr int FRAME_MEMORY_ROW = 6;
static_assert(start_menu[FRAME_MEMORY_ROW].page == 0x21110000);
} // namespace

TOPMENU TopMenu[std::size(start_menu)];

// The menu keys must work before the first page; Page_Reset does the same later.
[[maybe_unused]] static const bool top_menu_is_filled = [] {
    std::copy(std::begin(start_menu), std::end(start_menu), TopMenu);
    return true;
}();

static TOPMENU* menu_row(uint32_t id)
{
    for (int i = 0; TopMenu[i].caption; i++) {
        const uint32_t page = TopMenu[i].page;
        const uint32_t bank = id & PAGE_BANK_BITS;
        if (i < ME_COUNT) {
            if (MeBank_OfPage(id) == &me_bank[i])
                return &TopMenu[i];
        } else if (i == FRAME_MEMORY_ROW) {
            if (bank == 0x21000000 || bank == 0x25000000)
                return &TopMenu[i];
        } else if (bank == (page & PAGE_BANK_BITS)) {
            return &TopMenu[i];
        }
    }
    return nullptr;
}

// The old page stays on screen, and with it its side.
static void take_back_turn()
{
    if (!OmoteChange)
        return;
    OmoteChange = 0;
    OmoteFlag = side_on_screen;
}

static void take_page(PAGE* row, uint32_t id)
{
    Page = row;
    if (GL_NowPage != id)
        Page_Changes++;
    if (GL_NowPage != id && IsUserPages(GL_NowPage))
        GL_PrevPage = GL_NowPage;
    GL_NowPage = id;
}

static void take_side(uint32_t id)
{
    const MenuSide& side = page_side(OmoteFlag);
    side_on_screen = OmoteFlag;
    if (OmoteChange) {
        OmoteChange = 0;
        GL_PrevPage = *side.prev_page;
        Log_Output(LOG_LIFE, MOD_PAGE, "Turn to %s Page: %Xh", side.name, id);
        return;
    }
    *side.prev_page = *side.page;
    if (!IsUserPages(id))
        return;
    *side.page = id;
    Log_Output(LOG_LIFE, MOD_PAGE, "Add %s Page: %Xh", side.name, id);
}

// Another menu than the one before is opened: its pages show formats, which are read anew.
static void announce_menu(const char* caption)
{
    Net_SendCommandFormat("set TopMenu#%s", caption);
    for (const char* unit : {"PNL1", "PNL2", "PNL3", "PNL4", "SWR1", "SWR2", "DME1", "DME2", "DME3",
                             "DME4", "MPE1", "MPE2", "MPE3", "MPE4"})
        Net_SendCommandFormat("read Engineering Setup@System@Format@Video Format@%s", unit);
    for (const char* unit :
         {"SWR1", "SWR2", "DME1", "DME2", "DME3", "DME4", "PNL1", "PNL2", "PNL3", "PNL4"})
        Net_SendCommandFormat("read Engineering Setup@System@Format@Reference@%s", unit);
    Net_SendCommand("read Engineering Setup@System@Format@4K Mode");
    Net_SendCommand("add TopMenu");
}

static void take_menu(const PAGE& row, uint32_t id)
{
    const char* caption = row.tree[0] ? row.tree[0] : "";
    if (strcmp(caption, NowTopMenu) != 0) {
        if (const TOPMENU* menu = menu_row(id))
            announce_menu(menu->caption);
        CopyText(NowTopMenu, caption);
    }
    const uint32_t remembered = IsUserPages(id) ? id : GL_PrevPage;
    if (TOPMENU* menu = menu_row(remembered))
        menu->page = remembered;
}

// The objects of a row in the place of those that are there, and their picture.
static void build(const PAGE& row)
{
    PageFamily_EmptyAll();
    CloseWindow();
    CloseScrollBarAll();
    for (const _pageobject& obj : row.obj) {
        if (obj.type <= OBJ_END)
            break;
        if (const PageFamily* family = PageFamily_Of(obj.type))
            family->create(obj.addr, obj.var, row);
        if (Page != &row)
            return; // what was created has opened another page, which is complete by now
    }
    RefreshScreen();
    // What an object moved while it painted, as a list its bar, is right in the same step.
    SendMessage(MSG_REDRAW, 0, 0, 0, 0);
}

// Pages of the global effect and its status show which channels are combined, and with the page
// goes their subscription: the server has one a path. What pages there are depends on it, so it is
// followed all the time.
static void follow_what_it_ended(uint32_t left)
{
    const uint32_t bank = left >> 24;
    if (bank == 0x33 || bank == 0x42)
        Tally_FollowCombine();
}

// The state of navigation is complete before the first object is touched: page code asks for it
// while it is created, and what it sends reaches the objects that are there so far.
int CreatePage(uint32_t id)
{
    Log_Output(LOG_LIFE, MOD_PAGE, "***** CreatePage(%Xh) Called *****", id);
    if (GL_NowPage == 0x71420003 && GL_Macro_Offline_Store) {
        SendMessage(LMSG_PAGEREQUEST, MsgArg(id), 0, 0, 0); // the macro editor decides
        return 0;
    }
    id = page_correct_request(id);
    PAGE* row = SearchPageTable(id);
    if (!row) {
        Log_Output(LOG_LIFE, MOD_PAGE, "Can't find ID: %Xh", id);
        take_back_turn();
        return -1;
    }
    const uint32_t left = GL_NowPage;
    take_page(row, id);
    take_side(id);
    Net_SendCommandFormat("put TopMenu@SubMenuSite#%s", OmoteFlag ? "false" : "true");
    GL_NowTree = row->tree;
    if (isNowPageMeKey(id))
        MeKeyTpye = isNowPageMeKey(id);
    if (IsUserPages(id))
        page_history_add(page_side(OmoteFlag), id);
    take_menu(*row, id);
    TDL_Hold(); // the display goes from one page to the other in a step
    build(*row);
    TDL_Release();
    follow_what_it_ended(left);
    return 0;
}

void Page_Reset()
{
    Page = nullptr;
    GL_NowPage = GL_PrevPage = 0;
    GL_NowTree = nullptr;
    OmoteFlag = side_on_screen = 1;
    OmoteChange = 0;
    GL_OmoteNowPage = GL_UraNowPage = PAGE_TOP;
    GL_OmotePrevPage = GL_UraPrevPage = 0;
    NowTopMenu[0] = '\0';
    Page_InstallUnit[0] = '\0';
    MeKeyTpye = 0;
    for (const MenuSide& side : {menu_front, menu_back}) {
        std::fill_n(side.history, HISTORY_DEPTH, 0);
        *side.now = *side.max = -1;
    }
    std::copy(std::begin(start_menu), std::end(start_menu), TopMenu);
}
