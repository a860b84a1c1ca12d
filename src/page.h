// page: which screen is shown. A page is one row of PageTable; a request for an id is resolved to a
// row (which variant of a page exists depends on the installation), the objects of the old row are
// emptied and those of the new row built. It owns the histories of the two sides and the remembered
// page of each menu key; it draws nothing.
//
// Code never changes page directly: it stores the id in GL_CreatePage and the main loop calls
// CreatePage between passes while no window, pane or saver is up.
#pragma once
#include "me_bank.h"
#include "types.h"

constexpr int PAGE_OBJECTS = 8;
constexpr int PAGE_DEPTH = 8;
constexpr uint32_t PAGE_END = 0xFFFFFFFF;
constexpr uint32_t PAGE_TOP = 0x00110000;

enum ObjType : int {
    OBJ_END = 0,
    OBJ_BA = 1,  // base area
    OBJ_BT = 2,  // buttons
    OBJ_HF = 3,  // tabs along the bottom
    OBJ_VF = 4,  // tabs down the left
    OBJ_NB = 5,  // number boxes
    OBJ_PS = 6,  // pattern select
    OBJ_LS = 7,  // lists
    OBJ_PC = 8,  // page code
    OBJ_KF = 9,  // keyframe timeline
    OBJ_ST = 10, // status cells
    OBJ_DW = 11, // DME wipe list
    OBJ_FM = 12, // frame memory
    OBJ_KP = 13, // keyframe paths
    OBJ_DEBUG = 14,
    OBJ_ERR = 15, // error list
    OBJ_FL = 17,  // file list
    OBJ_FF = 18,  // file folder
};

// One object of a page: what kind, its table, and the argument of the family's _Create.
struct _pageobject {
    int type = OBJ_END;
    const void* addr = nullptr;
    uint32_t var = 0;
};

struct PAGE {
    uint32_t id = PAGE_END;
    const char* tree[PAGE_DEPTH] = {};  // path segments; tree[0] is the caption of the menu key
    _pageobject obj[PAGE_OBJECTS] = {}; // in the order of delivery and of creation
    int knobassign = 0;                 // button that owns the knobs; written at run time
};

extern PAGE* const PageTable;      // the rows; the last has id PAGE_END
extern const int PageTable_Rows;   // with that last row
PAGE* PageTable_Find(uint32_t id); // the row with this id, null when there is none

struct TOPMENU {
    const char* caption = nullptr;
    uint32_t page = 0; // the page that the key reopens; written as pages are visited
};
extern TOPMENU TopMenu[]; // ended by a null caption

// --- State that others read ---
extern PAGE* Page; // the current row; null only before the first CreatePage
extern uint32_t GL_NowPage;
extern uint32_t GL_PrevPage;
extern const char* const* GL_NowTree;
extern int OmoteFlag;   // 1: the front side is shown
extern int OmoteChange; // the next CreatePage turns the menu over
extern uint32_t GL_OmoteNowPage;
extern uint32_t GL_UraNowPage;
extern uint32_t GL_OmotePrevPage;
extern uint32_t GL_UraPrevPage;
extern char NowTopMenu[256];
extern int MeKeyTpye; // 1 main, 2 sub: the kind of the last key page

// The pages of each side in the order of their visits. NowPtr is the entry that is shown, or that a
// page which does not count covers; -1 before the first. MaxPtr is the last entry that a step
// forward can reach.
constexpr int HISTORY_DEPTH = 50;
extern uint32_t Omote_History[HISTORY_DEPTH];
extern uint32_t Ura_History[HISTORY_DEPTH];
extern int Omote_History_NowPtr;
extern int Ura_History_NowPtr;
extern int Omote_History_MaxPtr;
extern int Ura_History_MaxPtr;

// The unit that is selected in the list of the install page ("SWR1", "Menu"); written by its page
// code.
extern char Page_InstallUnit[16];

extern uint32_t Page_Changes; // how often a page took the place of another one

// --- For the main loop ---
// Resolve and change the screen. 0, or -1 when there is no such page: the old one stays.
int CreatePage(uint32_t id);

// --- For everybody ---
// The row that a request opens, null when there is none or it is hidden in this installation. The
// id may have a variant added; the row's own id tells which.
PAGE* SearchPageTable(uint32_t id);
PAGE* SearchPageTable_Free_ALL(PAGE* table,
                               uint32_t id); // plain lookup but for five ids that have no page
// The id of the row that a request opens: the variant of the page that this installation has, the
// permitted parent while a background transfer runs, 0 when the page is hidden. Whether there is
// such a row is not looked at.
uint32_t ResolvePageId(uint32_t id);
// The page that stands in for a page of a tab that folds while a transfer runs; other ids as they
// are.
uint32_t Page_FirstOfTab(uint32_t id);

// Whether CreatePage would open a page for the request.
bool Page_Exists(uint32_t id);
// Whether a key or tab that asks for the page leads nowhere in this installation: it is shown as
// one that can't be used and takes no press. 0, which asks for nothing, is not missing.
bool Page_IsMissing(uint32_t id);
// When an object last looked which of its keys lead nowhere. What that follows from is told by a
// dozen modules: they are asked when a page opens and twice a second after, which is cheap.
struct PageLook {
    int left_ms = 0;
};
// True when it is time to look anew; elapsed_ms since the last call.
bool PageLook_IsDue(PageLook& look, int elapsed_ms);
// The page itself where it exists, else its tab, its menu, the top menu.
uint32_t Page_Nearest(uint32_t id);

// A step passes over pages that this installation has lost since the visit.
// side is valued as OmoteFlag is. Requests the page; -1 when there is none in that direction.
int HistoryBack(int side);
int HistoryFwd(int side);
uint32_t GetHistoryBack(int side); // the page a step would open, 0 none
uint32_t GetHistoryFwd(int side);
int IsTopHistory(int side);  // 1 when no step back is left
int IsLastHistory(int side); // 1 when no step forward is left

int IsUserPages(uint32_t id);     // counts for history and side memory
int IsObjetype(int type);         // 1 when the current page has an object of this type
int Page_GetKnobAssign();         // button that owns the knobs when the page opens, -1 none
void Page_SetKnobAssign(int id);  // some pages keep what their row says
void AddPageOffset(uint32_t* id); // a template id to the bank and key of the current page

// Classification; id 0 means the current page.
int isNowPageME(uint32_t id);    // 0; 1 main bank, 2 sub bank, not a key page
int isNowPageMeKey(uint32_t id); // 0; 1 key page of a main bank, 2 of a sub bank
int isNowPageFM(uint32_t id);
int isMainSubCheck(
    uint32_t id); // 1 when the page has a main and a sub side: the bank runs multi program 2
int MainSubAssign_StatusCheck_for_id(uint32_t id); // -1 no row, 0 main, 1 sub, 2 both
int MainSubAssign_StatusCheck();
const MeBank* Page_Bank(); // the bank of the current page, by the first word of its path; or null

const char* Page_LastWord(const PAGE& page); // of its path; "" without one
// The same for what stands above the boxes: a bare number goes with the word before it, "Salvo 3".
void Page_ColumnTitle(char (&dst)[64], const PAGE& page);
// "%04X" or "%04X.%X" of a page id into text (at least 16 characters).
void Page_Number(char* text, int size, uint32_t id);

void Page_Reset(); // as at process start; for tests
