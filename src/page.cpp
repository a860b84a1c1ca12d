#include "page.h"
#include "a_ba.h"
#include "a_bt.h"
#include "a_dw.h"
#include "a_ff.h"
#include "a_fl.h"
#include "a_fm.h"
#include "a_hf.h"
#include "a_kf.h"
#include "a_kp.h"
#include "a_ls.h"
#include "a_nb.h"
#include "a_pc.h"
#include "a_ps.h"
#include "a_st.h"
#include "a_vf.h"
#include "bus.h"
#include "debug.h"
#include "device.h"
#include "err.h"
#include "global.h"
#include "log.h"
#include "loop.h"
#include "message.h"
#include "netio.h"
#include "process.h"
#include "scrollbar.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstdio>
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

namespace
{
constexpr uint32_t BANK_BITS = 0xFF000000;
constexpr uint32_t KEY_BITS = 0x00F00000; // first-level tab: key 1..4, or a menu group from 5 on
constexpr uint32_t TAB_BITS = 0x000F0000; // second-level tab; all set: the tab last chosen

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

constexpr struct {
    const char* word;
    uint32_t offset; // from Key1
} key_offsets[] = {
    {"Key2", 0x00100000}, {"DSK2", 0x00100000}, {"Key3", 0x00200000}, {"DSK3", 0x00200000},
    {"Key4", 0x00300000}, {"DSK4", 0x00300000}, {"Key5", 0x04000000}, {"DSK5", 0x04000000},
    {"Key6", 0x04100000}, {"DSK6", 0x04100000}, {"Key7", 0x04200000}, {"DSK7", 0x04200000},
    {"Key8", 0x04300000}, {"DSK8", 0x04300000}, {"CCR2", 0x00100000},
};

struct PageRange {
    uint32_t first;
    uint32_t last;
};
// Errors, engineering pages, editors: they cover the page that they were called from and are left
// by a step back.
constexpr PageRange not_user_pages[] = {
    {0x54310099, 0x54310099}, {0x55550000, 0x55550000}, {0x71420002, 0x71420003},
    {0x71440002, 0x71440002}, {0x73160010, 0x73160010}, {0x77770000, 0x77770000},
    {0x88880000, 0x88880000}, {0x99000000, 0x99000000}, {0x99910000, 0x99910004},
    {0x99910009, 0x99910009}, {0x99940000, 0x99940000}, {0x99950000, 0x99950000},
    {0x99960000, 0x99960005}, {0x99970000, 0x99970001}, {0x99980000, 0x99980000},
    {0x99990000, 0x99990000}, {0x99995555, 0x99995555},
};
// Their knobs always open as the row says.
constexpr PageRange fixed_knob_pages[] = {
    {0x73310007, 0x73310007}, {0x73320000, 0x73320000}, {0x73330003, 0x73340004},
    {0x73350000, 0x73350001}, {0x73610001, 0x73610001},
};

// One side of the menu.
struct Side {
    uint32_t* history;
    int* now;
    int* max;
    uint32_t* page;
    uint32_t* prev_page;
    const char* name;
};
constexpr Side front = {Omote_History,    &Omote_History_NowPtr, &Omote_History_MaxPtr,
                        &GL_OmoteNowPage, &GL_OmotePrevPage,     "Omote"};
constexpr Side back = {Ura_History,    &Ura_History_NowPtr, &Ura_History_MaxPtr,
                       &GL_UraNowPage, &GL_UraPrevPage,     "Ura"};
} // namespace

TOPMENU TopMenu[std::size(start_menu)];

// The menu keys must work before the first page; Page_Reset does the same later.
[[maybe_unused]] static const bool top_menu_is_filled = [] {
    std::copy(std::begin(start_menu), std::end(start_menu), TopMenu);
    return true;
}();

static const Side& side_of(int flag)
{
    return flag ? front : back;
}

template <size_t N> static bool is_in(const PageRange (&ranges)[N], uint32_t id)
{
    return std::any_of(ranges, ranges + N,
                       [id](const PageRange& r) { return id >= r.first && id <= r.last; });
}

static uint32_t this_or_now(uint32_t id)
{
    return id ? id : GL_NowPage;
}

// --- Classification ---

static bool is_sub_bank(uint32_t id)
{
    const MeBank* bank = MeBank_OfPage(id);
    return bank && MeBank_IsSub(*bank, id);
}

const MeBank* Page_Bank()
{
    return GL_NowTree ? MeBank_OfCaption(GL_NowTree[0]) : nullptr;
}

int isNowPageMeKey(uint32_t id)
{
    id = this_or_now(id);
    const uint32_t key = (id & KEY_BITS) >> 20;
    if (key < 1 || key > 4)
        return 0;
    const uint32_t bank = id >> 24;
    if ((bank >= 0x11 && bank <= 0x14) || (bank >= 0x81 && bank <= 0x84))
        return 1;
    if ((bank >= 0x15 && bank <= 0x18) || (bank >= 0x85 && bank <= 0x88))
        return 2;
    return 0;
}

int isNowPageME(uint32_t id)
{
    id = this_or_now(id);
    if (isNowPageMeKey(id) || !MeBank_OfPage(id))
        return 0;
    return is_sub_bank(id) ? 2 : 1;
}

int isNowPageFM(uint32_t id)
{
    return GL_NowPage == 0x71620000 || this_or_now(id) >> 24 == 0x21;
}

int isMainSubCheck(uint32_t id)
{
    id = this_or_now(id);
    return isNowPageME(id) != 0 && isMP2SettingME(id);
}

// -1 on no panel row, 0 on rows of the main side only, 1 of the sub side only, 2 of both.
static int assigned_sides(int me)
{
    int found = 0;
    for (int row = 0; row < PANEL_ROWS; row++) {
        const int side = GL_MainSubAssign[row];
        if (GL_MEAssign[row] == me && side >= 0 && side <= 2)
            found |= 1 << side;
    }
    switch (found) {
    case 0: return -1;
    case 1: return 0;
    case 2: return 1;
    default: return 2;
    }
}

int MainSubAssign_StatusCheck_for_id(uint32_t id)
{
    id = this_or_now(id);
    const MeBank* bank = MeBank_OfPage(id);
    return bank && multiprogram2_me[bank->me] ? assigned_sides(bank->me) : -1;
}

static bool is_on_panel(int assign)
{
    return std::find(GL_MEAssign, GL_MEAssign + PANEL_ROWS, assign) != GL_MEAssign + PANEL_ROWS;
}

int MainSubAssign_StatusCheck()
{
    const char* word = GL_NowTree && GL_NowTree[0] ? GL_NowTree[0] : "";
    if (strcmp(word, "1st AUX") == 0)
        return is_on_panel(ASSIGN_1ST_AUX) ? 0 : -1;
    if (strcmp(word, "2nd AUX") == 0)
        return is_on_panel(ASSIGN_2ND_AUX) ? 0 : -1;
    const MeBank* bank = Page_Bank();
    return bank && multiprogram2_me[bank->me] ? assigned_sides(bank->me) : -1;
}

int IsUserPages(uint32_t id)
{
    return !is_in(not_user_pages, id);
}

int IsObjetype(int type)
{
    if (!Page)
        return 0;
    for (const _pageobject& obj : Page->obj) {
        if (obj.type <= OBJ_END)
            return 0;
        if (obj.type == type)
            return 1;
    }
    return 0;
}

int Page_GetKnobAssign()
{
    return Page ? Page->knobassign : -1;
}

void Page_SetKnobAssign(int id)
{
    if (Page && !is_in(fixed_knob_pages, GL_NowPage))
        Page->knobassign = id;
}

void Page_Number(char* text, int size, uint32_t id)
{
    if (!text || size <= 0)
        return;
    if (id & 0xFFFF)
        snprintf(text, size_t(size), "%04X.%X", id >> 16, id & 0xFFFF);
    else
        snprintf(text, size_t(size), "%04X", id >> 16);
}

// What the second word of the path adds to an id whose bank is already right.
static uint32_t word_offset(const char* word, uint32_t id)
{
    if (strcmp(word, "DME Wipe") == 0)
        return is_sub_bank(GL_NowPage) ? TO_SUB_BANK : 0;
    if (strcmp(word, "Misc") == 0) {
        const bool is_main = id < 0x15000000 || (id >= 0x81000000 && id <= 0x84FFFFFF);
        return is_main && is_sub_bank(GL_NowPage) ? TO_SUB_BANK : 0;
    }
    for (const auto& key : key_offsets)
        if (strcmp(word, key.word) == 0)
            return key.offset;
    return 0;
}

void AddPageOffset(uint32_t* id)
{
    if (!id || !Page || !Page->tree[0])
        return;
    if (const MeBank* bank = MeBank_OfCaption(Page->tree[0]))
        *id += MeBank_Offset(*bank);
    if (Page->tree[1])
        *id += word_offset(Page->tree[1], *id);
}

// --- History ---

static void history_add(const Side& side, uint32_t id)
{
    int& now = *side.now;
    if (now >= 0 && side.history[now] == id)
        return;
    if (++now >= HISTORY_DEPTH) {
        std::copy(side.history + 1, side.history + HISTORY_DEPTH, side.history);
        now = HISTORY_DEPTH - 1;
    }
    side.history[now] = id;
    *side.max = now;
}

// Place of the entry that a step back opens, -1 none. A page that does not count has no entry: the
// step returns to the page that it covers.
static int place_back(const Side& side)
{
    if (*side.now < 1)
        return -1;
    return IsUserPages(GL_NowPage) ? *side.now - 1 : *side.now;
}

static int place_fwd(const Side& side)
{
    return *side.now < *side.max ? *side.now + 1 : -1;
}

static int history_go(const Side& side, int place)
{
    if (place < 0)
        return -1;
    *side.now = place;
    GL_CreatePage = side.history[place];
    return 0;
}

int HistoryBack(int side)
{
    return history_go(side_of(side), place_back(side_of(side)));
}

int HistoryFwd(int side)
{
    return history_go(side_of(side), place_fwd(side_of(side)));
}

uint32_t GetHistoryBack(int side)
{
    const int place = place_back(side_of(side));
    return place < 0 ? 0 : side_of(side).history[place];
}

uint32_t GetHistoryFwd(int side)
{
    const int place = place_fwd(side_of(side));
    return place < 0 ? 0 : side_of(side).history[place];
}

int IsTopHistory(int side)
{
    return *side_of(side).now < 1;
}

int IsLastHistory(int side)
{
    return *side_of(side).now >= *side_of(side).max;
}

// --- Which page a request means ---

// The tab last chosen: any page of the tab group knows its left tabs and which of them is selected.
static uint32_t resolve_tab(uint32_t id)
{
    if ((id & TAB_BITS) != TAB_BITS)
        return id;
    const PAGE* row = PageTable;
    while (row->id != PAGE_END && (row->id | TAB_BITS) != id)
        row++;
    if (row->id == PAGE_END)
        return id;
    const auto* tabs = std::find_if(row->obj, row->obj + PAGE_OBJECTS,
                                    [](const _pageobject& obj) { return obj.type == OBJ_VF; });
    if (tabs == row->obj + PAGE_OBJECTS || !tabs->addr)
        return id;
    const VF_TBL* tab = static_cast<const VF_TBL*>(tabs->addr);
    for (int i = 0; i < VF_MAX && tab[i].id >= 1; i++)
        if (uint32_t(tab[i].id) == tabs->var)
            return (id & ~TAB_BITS) | (tab[i].page & TAB_BITS);
    return id;
}

// The editors of macros open only while there is something to edit.
static uint32_t guard_macro_editors(uint32_t id)
{
    if (id == 0x71420002 && GL_Macro_Online_TrueOrFalse != 1)
        return 0x71420001;
    if (id == 0x71420003 && !FileExist("/tmp/MacroEdit/MacroEdit.PMR"))
        return 0x71420001;
    if (id == 0x71440002 && GL_MenuMacro_Edit != 1)
        return 0x71440001;
    if (id == 0x71440102)
        return 0x71440002;
    return id;
}

static uint32_t correct_single_dme(uint32_t id)
{
    const bool is_second_group = (id & (BANK_BITS | KEY_BITS)) == 0x42200000;
    return is_second_group && GL_DmeModel[0] == 5 && SYS_MyDmeMax <= 1 ? 0x42110000 : id;
}

// Menus that exist once for an M/E open on the side that the panel has; a page that stands for both
// sides opens where it is.
static uint32_t correct_main_sub(uint32_t id)
{
    if ((id & ~BANK_BITS) < 0x00500000)
        return id;
    const int kind = isNowPageME(id);
    if (kind == 1 && MainSubAssign_StatusCheck_for_id(id) == 1)
        return SearchPageTable(id + TO_SUB_BANK) ? id + TO_SUB_BANK : id;
    if (kind == 2 && MainSubAssign_StatusCheck_for_id(id) == 0)
        return id - TO_SUB_BANK;
    return id;
}

static uint32_t correct_single_program(uint32_t id)
{
    return isNowPageME(id) == 2 && !isMP2SettingME(id) ? id - TO_SUB_BANK : id;
}

// Keys 5 to 8 of an M/E with four keys are keys 1 to 4.
static uint32_t correct_key_limit(uint32_t id)
{
    const MeBank* bank = MeBank_OfPage(id);
    if (!bank || isNowPageMeKey(id) != 2)
        return id;
    return GL_KeyMax[bank->place] <= 4 ? id - TO_SUB_BANK : id;
}

static uint32_t correct_request(uint32_t id)
{
    if (id == 0)
        return id; // to the questions 0 is the current page, here it is a page that does not exist
    id = resolve_tab(id);
    id = guard_macro_editors(id);
    id = correct_single_dme(id);
    id = correct_main_sub(id);
    id = correct_single_program(id);
    return correct_key_limit(id);
}

// --- Changing the screen ---

static TOPMENU* menu_row(uint32_t id)
{
    for (int i = 0; TopMenu[i].caption; i++) {
        const uint32_t page = TopMenu[i].page;
        const uint32_t bank = id & BANK_BITS;
        if (i < ME_COUNT) {
            if (MeBank_OfPage(id) == &me_bank[i])
                return &TopMenu[i];
        } else if (i == FRAME_MEMORY_ROW) {
            if (bank == 0x21000000 || bank == 0x25000000)
                return &TopMenu[i];
        } else if (bank == (page & BANK_BITS)) {
            return &TopMenu[i];
        }
    }
    return nullptr;
}

static void take_page(PAGE* row, uint32_t id)
{
    Page = row;
    if (GL_NowPage != id && IsUserPages(GL_NowPage))
        GL_PrevPage = GL_NowPage;
    GL_NowPage = id;
}

static void take_side(uint32_t id)
{
    const Side& side = side_of(OmoteFlag);
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

// A menu is opened for the first time: its pages show formats, which are read anew.
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

static void empty_objects()
{
    BA_Create(nullptr, 0);
    BT_Create(nullptr, 0);
    VF_Create(nullptr, 0);
    HF_Create(nullptr, 0);
    NB_Create(nullptr, nullptr);
    PS_Create(nullptr, 0);
    DW_Create(nullptr, 0);
    FM_Create(nullptr, 0);
    FF_Create(nullptr, 0);
    FL_Create(nullptr, 0);
    LS_Create(nullptr, 0);
    KF_Create(nullptr, 0);
    KP_Create(nullptr, 0);
    ST_Create(nullptr, 0);
    PC_Create(nullptr, 0);
    CloseWindow();
    CloseScrollBarAll();
}

// The column of a page's own boxes is headed by the last word of its path. The boxes are left to a
// button of the page that has taken the knobs.
static void create_boxes(const NB_TBL* table, const PAGE& row)
{
    if (BT_GetKnobAssign() > 0)
        return;
    const char* title = "";
    for (const char* word : row.tree) {
        if (!word)
            break;
        title = word;
    }
    NB_Create(table, title);
}

static void create_object(const _pageobject& obj, const PAGE& row)
{
    switch (obj.type) {
    case OBJ_BA: BA_Create(static_cast<const BA_TBL*>(obj.addr), obj.var); break;
    case OBJ_BT: BT_Create(static_cast<const BT_TBL*>(obj.addr), int(obj.var)); break;
    case OBJ_HF: HF_Create(static_cast<const HF_TBL*>(obj.addr), obj.var); break;
    case OBJ_VF: VF_Create(static_cast<const VF_TBL*>(obj.addr), obj.var); break;
    case OBJ_NB: create_boxes(static_cast<const NB_TBL*>(obj.addr), row); break;
    case OBJ_PS: PS_Create(static_cast<const PS_TBL*>(obj.addr), obj.var); break;
    case OBJ_LS: LS_Create(static_cast<const LS_TBL*>(obj.addr), obj.var); break;
    case OBJ_PC: PC_Create(static_cast<const PC_TBL*>(obj.addr), obj.var); break;
    case OBJ_KF: KF_Create(static_cast<const KF_TBL*>(obj.addr), obj.var); break;
    case OBJ_ST: ST_Create(static_cast<const ST_TBL*>(obj.addr), obj.var); break;
    case OBJ_DW: DW_Create(static_cast<const DW_TBL*>(obj.addr), obj.var); break;
    case OBJ_FM: FM_Create(static_cast<const FM_TBL*>(obj.addr), obj.var); break;
    case OBJ_KP: KP_Create(static_cast<const KP_TBL*>(obj.addr), obj.var); break;
    case OBJ_DEBUG: Debug_Create(); break;
    case OBJ_ERR: Err_Create(); break;
    case OBJ_FL: FL_Create(static_cast<const FL_TBL*>(obj.addr), obj.var); break;
    case OBJ_FF: FF_Create(static_cast<const FF_TBL*>(obj.addr), obj.var); break;
    default: break;
    }
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
    id = correct_request(id);
    PAGE* row = SearchPageTable(id);
    if (!row) {
        Log_Output(LOG_LIFE, MOD_PAGE, "Can't find ID: %Xh", id);
        return -1;
    }
    take_page(row, id);
    take_side(id);
    Net_SendCommandFormat("put TopMenu@SubMenuSite#%s", OmoteFlag ? "false" : "true");
    GL_NowTree = row->tree;
    if (isNowPageMeKey(id))
        MeKeyTpye = isNowPageMeKey(id);
    if (IsUserPages(id))
        history_add(side_of(OmoteFlag), id);
    take_menu(*row, id);
    empty_objects();
    for (const _pageobject& obj : row->obj) {
        if (obj.type <= OBJ_END)
            break;
        create_object(obj, *row);
        if (Page != row)
            return 0; // what was created has opened another page, which is complete by now
    }
    RefreshScreen();
    return 0;
}

void Page_Reset()
{
    Page = nullptr;
    GL_NowPage = GL_PrevPage = 0;
    GL_NowTree = nullptr;
    OmoteFlag = 1;
    OmoteChange = 0;
    GL_OmoteNowPage = GL_UraNowPage = PAGE_TOP;
    GL_OmotePrevPage = GL_UraPrevPage = 0;
    NowTopMenu[0] = '\0';
    Page_InstallUnit[0] = '\0';
    MeKeyTpye = 0;
    for (const Side& side : {front, back}) {
        std::fill_n(side.history, HISTORY_DEPTH, 0);
        *side.now = *side.max = -1;
    }
    std::copy(std::begin(start_menu), std::end(start_menu), TopMenu);
}
