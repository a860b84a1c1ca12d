// a_ba_draw: how the base area looks. Nothing here flushes: a drawing function returns the
// rectangle that it touched and that its caller flushes, empty (x2 below x1) when there is nothing
// to flush. What is shown lives in ba, which a_ba alone changes.
#pragma once
#include "a_ba.h"
#include "types.h"

// Where the widgets are touched, and what is repainted with them.
constexpr Rect ZONE_PAGE = {3, 6, 88, 63};
constexpr Rect ZONE_TITLE = {89, 6, 373, 63};
constexpr Rect ZONE_TITLE_SHORT = {89, 6, 298, 63};
constexpr Rect ZONE_SIDE = {299, 6, 370, 63}; // main/sub or key change
constexpr Rect ZONE_BACK = {374, 6, 440, 63};
constexpr Rect ZONE_FWD = {441, 6, 507, 63};
constexpr Rect ZONE_TOP_RIGHT = {508, 6, 794, 63};
constexpr Rect ZONE_LOWER_LEFT = {4, 531, 87, 595};
constexpr Rect ZONE_PREV = {710, 547, 790, 599};
constexpr Rect ZONE_MENU_MACRO = {513, 6, 571, 63}; // inside the top right while one is recorded

constexpr uint32_t PAGE_MENU_MACRO = 0x71440002;

struct BaseWidget {
    int redraw = 0;
    int pushed = 0; // ms for which it still looks pushed; at its end the widget acts
};

struct BaseArea {
    BA_TBL Base; // functions null while no page is up
    uint32_t ParentPage = 0;
    BaseWidget Pagebtn;
    BaseWidget Title;
    BaseWidget Prev;
    BaseWidget Back;
    BaseWidget Fwd;
    BaseWidget DefaultKey;
    BaseWidget SetupLockKey;
    BaseWidget MainSub;
    BaseWidget KeyChange;
    BaseWidget Region;
    BaseWidget MM;
    BaseWidget MM_Default_Pos;
    BaseWidget KF;
    int Default = 0; // default recall is armed
    // Whether the widget exists on this page. At most one at lower left, one beside the title.
    int Default_enable = 0;
    int SetupLock_enable = 0;
    int MM_Default_enable = 0;
    int MainSub_enable = 0;
    int KeyChange_enable = 0;
    int MainSub_mode = 0;  // 1: the sub side is shown
    int SetupLock_id = -1; // row of SetupMenu, -1 none
    int RegionGrp = 0; // what the top right of file pages offers; set by page code, survives a page
    int PageWindow = 0; // the page button is drawn as pushed
};
extern BaseArea ba; // valid from BA_Create to BA_Create(null)

bool ba_records_menu_macro(); // the menu macro keys take the place of others
int ba_page_button_down();
bool ba_has_short_title();

Rect ba_drw_pagebtn();
Rect ba_drw_title();
Rect ba_drw_back();
Rect ba_drw_fwd();
Rect ba_drw_prev();
Rect ba_drw_default();
Rect ba_drw_setuplock();
Rect ba_drw_mainsub();
Rect ba_drw_keychange();
Rect ba_drw_region();
Rect ba_drw_menu_macro();
Rect ba_drw_menu_macro_default();
