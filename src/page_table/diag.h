// diag: the pages of the self-diagnosis. The first shows the errors of all units, so that whoever is called sees them
// at once; behind it stands a page for each class of units, and the history.
#pragma once
#include "rows.h"
#include "selfdiag.h"
#include <array>

#define LOCAL_DIAG "LOCAL@Diag@"

inline constexpr uint32_t PAGE_DIAG_STATUS = 0x74110000;
inline constexpr uint32_t PAGE_DIAG_HISTORY = 0x74120000;
constexpr uint32_t DiagClassPage(DIAG_CLASS unit_class) { return PAGE_DIAG_STATUS + 1 + uint32_t(unit_class); }

// What the items of all units are about.
enum DIAG_KIND : int { DIAG_TEMPERATURE, DIAG_FAN, DIAG_POWER, DIAG_OTHER, DIAG_KINDS };
constexpr uint32_t DiagKindPage(DIAG_KIND kind) { return 0x74210000 + (uint32_t(kind) << 16); }

inline constexpr VF_TBL vf_diag[] = {
    {.id = 1, .caption = "Status", .page = PAGE_DIAG_STATUS},
    {.id = 2, .caption = "History", .page = PAGE_DIAG_HISTORY},
    {.id = 3, .caption = "By Kind", .page = DiagKindPage(DIAG_TEMPERATURE)},
    VF_END,
};

// The bar of a tab is lit while a unit of the class has an error.
#define DIAG_LAMP "LOCAL@Diag@Status@"
inline constexpr HF_TBL hf_diag[] = {
    {.id = 1, .caption = "All\nErrors", .page = PAGE_DIAG_STATUS},
    {.id = 2, .caption = "Menu",        .page = DiagClassPage(DIAG_MENU),     .statcmd = {DIAG_LAMP "Menu#Error"}},
    {.id = 3, .caption = "Panel",       .page = DiagClassPage(DIAG_PANEL),    .statcmd = {DIAG_LAMP "Panel#Error"}},
    {.id = 4, .caption = "DCU",         .page = DiagClassPage(DIAG_DCU),      .statcmd = {DIAG_LAMP "DCU#Error"}},
    {.id = 5, .caption = "Switcher",    .page = DiagClassPage(DIAG_SWITCHER), .statcmd = {DIAG_LAMP "Switcher#Error"}},
    {.id = 6, .caption = "DME",         .page = DiagClassPage(DIAG_DME),      .statcmd = {DIAG_LAMP "DME#Error"}},
    {.id = 7, .caption = "MPE",         .page = DiagClassPage(DIAG_MPE),      .statcmd = {DIAG_LAMP "MPE#Error"}},
    HF_END,
};

inline constexpr HF_TBL hf_diag_kind[] = {
    {.id = 1, .caption = "Temper-\nature",  .page = DiagKindPage(DIAG_TEMPERATURE)},
    {.id = 2, .caption = "Fans",            .page = DiagKindPage(DIAG_FAN)},
    {.id = 3, .caption = "Power\nSupplies", .page = DiagKindPage(DIAG_POWER)},
    {.id = 4, .caption = "Boards,\nOthers", .page = DiagKindPage(DIAG_OTHER)},
    HF_END,
};
inline constexpr const char* diag_kind_words[DIAG_KINDS] = {"Temperature", "Fans", "Power Supplies", "Boards, Others"};

// In the order of DIAG_CLASS.
inline constexpr const char* diag_class_words[DIAG_CLASSES] = {"Menu", "Panel", "DCU", "Switcher", "DME", "MPE"};

inline constexpr BT_TBL bt_diag[] = {
    Action(     {.id = 49, .caption = "Refresh", .group = "Status", .cmd = {LOCAL_DIAG "Refresh"}}),
    Jump(       {.id = 51, .caption = "Error\nList", .cmd = {"#99000000"}}),
    Jump(       {.id = 52, .caption = "Engineer-\ning", .cmd = {"#99910000"}}),
    Jump(       {.id = 54, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
enum : int { BTN_DIAG_DELETE = 49, BTN_DIAG_DELETE_ALL = 50 };
inline constexpr BT_TBL bt_diag_history[] = {
    Action(     {.id = BTN_DIAG_DELETE, .caption = "Delete", .group = "History", .cmd = {LOCAL_DIAG "Delete"}}),
    Action(     {.id = BTN_DIAG_DELETE_ALL, .caption = "Delete\nAll", .group = "History", .cmd = {LOCAL_DIAG "Delete All"}}),
    Jump(       {.id = 54, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_diag) && ButtonsAreSound(bt_diag_history));

inline constexpr LS_TBL ls_diag[] = {
    {.id = 1, .hn = 5, .vn = 12, .x = 100, .y = 78, .head = {"Unit", "Status", "Message", "Value", "Since"},
     .width = {58, 54, 236, 66, 136}, .group = {1, 1, 1, 1, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 364, .block = 1},
    LS_END,
};
inline constexpr LS_TBL ls_diag_history[] = {
    {.id = 1, .hn = 4, .vn = 12, .x = 100, .y = 78, .head = {"Time", "Unit", "Status", "Message"},
     .width = {146, 64, 54, 286}, .group = {1, 1, 1, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 364},
    LS_END,
};
static_assert(ListsAreSound(ls_diag) && ListsAreSound(ls_diag_history));

extern const PC_TBL pc_diag_status; // pc_diag.cpp; its var is a class, DIAG_CLASSES for the errors of all
extern const PC_TBL pc_diag_kind;   // its var is a DIAG_KIND
extern const PC_TBL pc_diag_history;

constexpr PAGE DiagStatusPage(int unit_class)
{
    const bool is_all = unit_class == DIAG_CLASSES;
    return {.id = is_all ? PAGE_DIAG_STATUS : DiagClassPage(DIAG_CLASS(unit_class)),
            .tree = {"Diag", "Status", is_all ? "All Errors" : diag_class_words[unit_class]},
            .obj = {Base(base_main), LeftTabs(vf_diag, 1), BottomTabs(hf_diag, is_all ? 1 : uint32_t(unit_class) + 2),
                    Buttons(bt_diag), Lists(ls_diag), Code(pc_diag_status, uint32_t(unit_class))}};
}
constexpr PAGE DiagKindRow(int kind)
{
    return {.id = DiagKindPage(DIAG_KIND(kind)), .tree = {"Diag", "By Kind", diag_kind_words[kind]},
            .obj = {Base(base_main), LeftTabs(vf_diag, 3), BottomTabs(hf_diag_kind, uint32_t(kind) + 1),
                    Buttons(bt_diag), Lists(ls_diag), Code(pc_diag_kind, uint32_t(kind))}};
}
constexpr auto DiagRows()
{
    std::array<PAGE, DIAG_CLASSES + 2 + DIAG_KINDS> rows{};
    size_t n = 0;
    for (int c = 0; c <= DIAG_CLASSES; c++) rows[n++] = DiagStatusPage(c);
    for (int k = 0; k < DIAG_KINDS; k++) rows[n++] = DiagKindRow(k);
    rows[n] = {.id = PAGE_DIAG_HISTORY, .tree = {"Diag", "History"},
               .obj = {Base(base_main), LeftTabs(vf_diag, 2), Buttons(bt_diag_history), Lists(ls_diag_history), Code(pc_diag_history)}};
    return rows;
}
inline constexpr auto diag_pages = DiagRows();
