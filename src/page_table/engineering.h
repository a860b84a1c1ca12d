// engineering: the engineering menu and the pages that it leads to: maintenance, tests of the menu computer itself,
// what it logs and needs.
#pragma once
#include "gallery.h"
#include "pc_eng.h"
#include "rows.h"
#include <array>

// --- The menu ---

// The first generation has units that tell nothing of their boards: the pages of those are not there.
#define ENG_MENU_OF_ALL \
    Jump({.id = 1, .caption = "Debug\nSwitches", .group = "Log", .cmd = {"#99995555"}}), \
    Jump({.id = 2, .caption = "Log\nView", .group = "Log", .cmd = {"#99930003"}}), \
    Jump({.id = 3, .caption = "Error\nList", .group = "Log", .cmd = {"#99000000"}}), \
    Jump({.id = 4, .caption = "Status\nReports", .group = "Log", .cmd = {"#99980000"}}), \
    Jump({.id = 5, .caption = "Diag", .group = "Log", .cmd = {"#74110000"}}), \
    Jump({.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}), \
    Jump({.id = 17, .caption = "Self\nTests", .group = "Tests", .cmd = {"#55550000"}}), \
    Jump({.id = 18, .caption = "Links", .group = "Tests", .cmd = {"#99990000"}}), \
    Jump({.id = 19, .caption = "All Pages", .group = "Tests", .cmd = {"#99970000"}}), \
    Jump({.id = 20, .caption = "Touch\nTest", .group = "Tests", .cmd = {"#99950000"}}), \
    Jump({.id = 21, .caption = "Key\nCodes", .group = "Tests", .cmd = {"#99940000"}}), \
    Jump({.id = 22, .caption = "Screen\nSaver", .group = "Tests", .cmd = {"#99930000"}}), \
    Jump({.id = 33, .caption = "Colors,\nFonts", .group = "Display", .cmd = {"#99960000"}}), \
    Jump({.id = 34, .caption = "Bkgd\nColor\nChecker", .group = "Display", .cmd = {"#77770000"}}), \
    Jump({.id = 35, .caption = "HSL to\nRGB", .group = "Display", .cmd = {"#88880000"}}), \
    Jump({.id = 36, .caption = "Object\nGallery", .group = "Display", .cmd = {"#99920000"}}), \
    Jump({.id = 37, .caption = "Panes", .group = "Display", .cmd = {"#99920006"}}), \
    Jump({.id = 38, .caption = "Windows", .group = "Display", .cmd = {"#99920007"}}), \
    Jump({.id = 49, .caption = "Version", .group = "Figures", .cmd = {"#99930001"}}), \
    Jump({.id = 50, .caption = "Memory,\nSpeed", .group = "Figures", .cmd = {"#99930002"}})

inline constexpr BT_TBL bt_engineering_menu[] = {
    ENG_MENU_OF_ALL,
    Jump(       {.id = 51, .caption = "Units", .group = "Units", .cmd = {"#99910009"}}),
    Jump(       {.id = 52, .caption = "Boards", .group = "Units", .cmd = {"#99910001"}}),
    Jump(       {.id = 53, .caption = "Fans", .group = "Units", .cmd = {"#99910003"}}),
    Jump(       {.id = 54, .caption = "Power\nSupplies", .group = "Units", .cmd = {"#99910004"}}),
    BT_END,
};
inline constexpr BT_TBL bt_engineering_menu_first[] = {
    ENG_MENU_OF_ALL,
    BT_END,
};
#undef ENG_MENU_OF_ALL
static_assert(ButtonsAreSound(bt_engineering_menu) && ButtonsAreSound(bt_engineering_menu_first));

inline constexpr BT_TBL bt_eng_only_back[] = {
    ToEngineeringMenu(),
    BT_END,
};

// --- Debug switches ---

constexpr BT_TBL LevelKey(int id, const char* caption, const char* cmd)
{
    return Radio({.id = id, .caption = caption, .group = "Log Level", .cmd = {cmd}});
}
inline constexpr BT_TBL bt_eng_debug[] = {
    LevelKey(   1, "0\nAll",        ENG_DEBUG "Level#0"),
    LevelKey(   2, "1\nTrace",      ENG_DEBUG "Level#1"),
    LevelKey(   3, "2\nLinks",      ENG_DEBUG "Level#2"),
    LevelKey(   4, "3\nDetails",    ENG_DEBUG "Level#3"),
    LevelKey(   5, "5\nLife",       ENG_DEBUG "Level#5"),
    LevelKey(   6, "9\nAlways",     ENG_DEBUG "Level#9"),
    Toggle(     {.id = 17, .caption = "10\nCalibra-\ntion", .group = "Modules", .cmd = {ENG_DEBUG "Module@Calibration#*"}}),
    Toggle(     {.id = 18, .caption = "11\nGlobal", .group = "Modules", .cmd = {ENG_DEBUG "Module@Global#*"}}),
    Toggle(     {.id = 19, .caption = "14\nStart,\nTouch", .group = "Modules", .cmd = {ENG_DEBUG "Module@Start#*"}}),
    Toggle(     {.id = 20, .caption = "15\nLinks", .group = "Modules", .cmd = {ENG_DEBUG "Module@Links#*"}}),
    Toggle(     {.id = 21, .caption = "16\nPages", .group = "Modules", .cmd = {ENG_DEBUG "Module@Pages#*"}}),
    Action(     {.id = 22, .caption = "All\nModules", .group = "Modules", .cmd = {ENG_DEBUG "Module@All#*"}}),
    Toggle(     {.id = 33, .caption = "Debug\nMode", .group = "Debug", .cmd = {ENG_DEBUG "Mode#*"}}),
    Toggle(     {.id = 34, .caption = "Loop\nCounter", .group = "Debug", .cmd = {ENG_DEBUG "Loop Counter#*"}}),
    Toggle(     {.id = 35, .caption = "Log\nHub\nLines", .group = "Debug", .cmd = {ENG_DEBUG "Hub Lines#*"}}),
    Jump(       {.id = 49, .caption = "Log\nView", .cmd = {"#99930003"}}),
    ToEngineeringMenu(),
    BT_END,
};
static_assert(ButtonsAreSound(bt_eng_debug));

// --- The walk through all pages ---

inline constexpr BT_TBL bt_eng_walk[] = {
    Radio(      {.id = 17, .caption = "10", .group = "Passes a Page", .cmd = {ENG_WALK "Passes#10"}}),
    Radio(      {.id = 18, .caption = "50", .group = "Passes a Page", .cmd = {ENG_WALK "Passes#50"}}),
    Radio(      {.id = 19, .caption = "100", .group = "Passes a Page", .cmd = {ENG_WALK "Passes#100"}}),
    Radio(      {.id = 20, .caption = "200", .group = "Passes a Page", .cmd = {ENG_WALK "Passes#200"}}),
    Radio(      {.id = 21, .caption = "500", .group = "Passes a Page", .cmd = {ENG_WALK "Passes#500"}}),
    Radio(      {.id = 33, .caption = "Once", .group = "Rounds", .cmd = {ENG_WALK "Rounds#Once"}}),
    Radio(      {.id = 34, .caption = "For\never", .group = "Rounds", .cmd = {ENG_WALK "Rounds#For ever"}}),
    Action(     {.id = 49, .caption = "Start", .group = "All Pages", .cmd = {ENG_WALK "Start"}}),
    Jump(       {.id = 50, .caption = "Results", .group = "All Pages", .cmd = {"#99970001"}}),
    ToEngineeringMenu(),
    BT_END,
};
inline constexpr BT_TBL bt_eng_results[] = {
    Radio(      {.id = 49, .caption = "Slowest\nfirst", .group = "Order", .cmd = {ENG_WALK "Order#Time"}}),
    Radio(      {.id = 50, .caption = "By Table", .group = "Order", .cmd = {ENG_WALK "Order#Page"}}),
    Action(     {.id = 52, .caption = "Open\nPage", .cmd = {ENG_WALK "Open"}}),
    Jump(       {.id = 53, .caption = "All Pages", .cmd = {"#99970000"}}),
    ToEngineeringMenu(),
    BT_END,
};
inline constexpr LS_TBL ls_eng_results[] = {
    {.id = 1, .hn = 5, .vn = 15, .x = 100, .y = 78, .head = {"Page", "Menu", "Name", "ms", "Allocations"},
     .width = {94, 140, 190, 46, 80}, .group = {1, 2, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 430, .block = 1},
    LS_END,
};
static_assert(ButtonsAreSound(bt_eng_walk) && ButtonsAreSound(bt_eng_results) && ListsAreSound(ls_eng_results));

// --- Units ---

inline constexpr HF_TBL hf_eng_units[] = {
    {.id = 1, .caption = "Switcher\nBoards", .page = 0x99910001},
    {.id = 2, .caption = "DME\nBoards",      .page = 0x99910002},
    {.id = 3, .caption = "Fans",             .page = 0x99910003},
    {.id = 4, .caption = "Power\nSupplies",  .page = 0x99910004},
    {.id = 5, .caption = "Units",            .page = 0x99910009},
    HF_END,
};
inline constexpr BT_TBL bt_eng_units[] = {
    Action(     {.id = 49, .caption = "Refresh", .group = "Reports", .cmd = {ENG_UNITS "Refresh"}}),
    Jump(       {.id = 51, .caption = "Diag", .cmd = {"#74110000"}}),
    ToEngineeringMenu(),
    BT_END,
};
static_assert(ButtonsAreSound(bt_eng_units));
inline constexpr LS_TBL ls_eng_boards_switcher[] = {
    {.id = 1, .hn = 5, .vn = 15, .x = 100, .y = 78, .head = {"Slot", "SWR1", "SWR2", "SWR3", "SWR4"},
     .width = {70, 120, 120, 120, 120}, .group = {1, 1, 1, 1, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 430, .block = 1},
    LS_END,
};
inline constexpr LS_TBL ls_eng_boards_dme[] = {
    {.id = 1, .hn = 5, .vn = 15, .x = 100, .y = 78, .head = {"Slot", "DME1", "DME2", "DME3", "DME4"},
     .width = {70, 120, 120, 120, 120}, .group = {1, 1, 1, 1, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 430, .block = 1},
    LS_END,
};
inline constexpr LS_TBL ls_eng_fans[] = {
    {.id = 1, .hn = 9, .vn = 15, .x = 100, .y = 78,
     .head = {"", "SWR1", "SWR2", "SWR3", "SWR4", "DME1", "DME2", "DME3", "DME4"},
     .width = {70, 60, 60, 60, 60, 60, 60, 60, 60}, .group = {1, 4, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 430,
     .block = 1},
    LS_END,
};
inline constexpr LS_TBL ls_eng_unit_table[] = {
    {.id = 1, .hn = 6, .vn = 15, .x = 100, .y = 78, .head = {"Unit", "Id", "Model", "Type", "Data LAN", "Control LAN"},
     .width = {60, 104, 90, 50, 123, 123}, .group = {1, 1, 1, 1, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 430, .block = 1},
    LS_END,
};
static_assert(ListsAreSound(ls_eng_boards_switcher) && ListsAreSound(ls_eng_boards_dme) && ListsAreSound(ls_eng_fans) &&
              ListsAreSound(ls_eng_unit_table));

constexpr PAGE EngUnitPage(uint32_t sub, const char* name, const LS_TBL* list, uint32_t view, uint32_t tab)
{
    return {.id = PAGE_ENGINEERING + sub, .tree = {"Maintenance", "Units", name},
            .obj = {Base(base_main), BottomTabs(hf_eng_units, tab),
                    Buttons(view == ENG_UNIT_TABLE ? bt_eng_only_back : bt_eng_units), Lists(list), Code(pc_eng_units, view)}};
}

// --- Colours and fonts ---

inline constexpr HF_TBL hf_eng_chart[] = {
    {.id = 1, .caption = "Colors",     .page = 0x99960000},
    {.id = 2, .caption = "Fonts\n0, 1", .page = 0x99960001},
    {.id = 3, .caption = "Fonts\n2, 3", .page = 0x99960002},
    {.id = 4, .caption = "Fonts\n4, 5", .page = 0x99960003},
    {.id = 5, .caption = "Fonts\n6, 7", .page = 0x99960004},
    {.id = 6, .caption = "Fonts\n8, 9", .page = 0x99960005},
    HF_END,
};
constexpr PAGE EngFontPage(uint32_t n)
{
    return {.id = 0x99960001 + n, .tree = {"Maintenance", "Charts", "Fonts"},
            .obj = {Base(base_main), BottomTabs(hf_eng_chart, n + 2), Buttons(bt_eng_only_back), Code(pc_eng_fonts, 2 * n)}};
}

constexpr BT_TBL ColorKey(int id, const char* caption, const char* cmd)
{
    return Action({.id = id, .caption = caption, .group = "Color", .cmd = {cmd}});
}

// --- The ground of the status cells ---

inline constexpr ST_TBL st_eng_checker[] = {
    CellAt(0, 0, {.id = 1,  .draw_func = st_drw_status_string_type}),
    CellAt(1, 0, {.id = 2,  .draw_func = st_drw_status_value_type}),
    CellAt(2, 0, {.id = 3,  .draw_func = st_drw_status_bmp}),
    CellAt(3, 0, {.id = 4,  .draw_func = st_drw_status_image}),
    CellAt(4, 0, {.id = 5,  .draw_func = st_drw_put_bmp_ptn1}),
    CellAt(5, 0, {.id = 6,  .draw_func = st_drw_put_bmp_ptn2}),
    CellAt(0, 1, {.id = 7,  .draw_func = st_drw_put_bmp_ptn3}),
    CellAt(1, 1, {.id = 8,  .draw_func = st_drw_test_1}),
    CellAt(2, 1, {.id = 9,  .draw_func = st_drw_test_2}),
    CellAt(3, 1, {.id = 10, .draw_func = st_drw_test_3}),
    CellAt(4, 1, {.id = 11, .draw_func = st_drw_test_4}),
    CellAt(5, 1, {.id = 12, .draw_func = st_drw_status_dummy}),
    ST_END,
};
static_assert(CellsAreSound(st_eng_checker));
inline constexpr BT_TBL bt_eng_checker[] = {
    ColorKey(   33, "Black", ENG_COLOR "Ground#000000"),
    ColorKey(   34, "Grey",  ENG_COLOR "Ground#808080"),
    ColorKey(   35, "Red",   ENG_COLOR "Ground#800000"),
    ColorKey(   36, "Green", ENG_COLOR "Ground#008000"),
    ColorKey(   37, "Blue",  ENG_COLOR "Ground#000080"),
    ColorKey(   38, "Default", ENG_COLOR "Default"),
    Toggle(     {.id = 49, .caption = "Lit", .group = "All cells", .cmd = {ENG_COLOR "Lit#*"}}),
    Toggle(     {.id = 50, .caption = "Inverted", .group = "All cells", .cmd = {ENG_COLOR "Inverted#*"}}),
    Toggle(     {.id = 51, .caption = "Veiled", .group = "All cells", .cmd = {ENG_COLOR "Veiled#*"}}),
    Toggle(     {.id = 52, .caption = "Small\nFont", .group = "All cells", .cmd = {ENG_COLOR "Small Font#*"}}),
    ToEngineeringMenu(),
    BT_END,
};
inline constexpr NB_TBL nb_eng_checker[] = {
    {.id = 1, .caption = "Red",   .type = NB_INT, .min = 0, .max = 255, .cmd = "Panel@Common@Knob0", .scale = 1},
    {.id = 2, .caption = "Green", .type = NB_INT, .min = 0, .max = 255, .cmd = "Panel@Common@Knob1", .scale = 1},
    {.id = 3, .caption = "Blue",  .type = NB_INT, .min = 0, .max = 255, .cmd = "Panel@Common@Knob2", .scale = 1},
    {.id = 4, .caption = "Veil",  .type = NB_INT, .min = 0, .max = 255, .cmd = "Panel@Common@Knob3", .scale = 1},
    {.id = 17, .caption = "Picture H", .type = NB_INT, .min = -ENG_PICTURE_SHIFT, .max = ENG_PICTURE_SHIFT, .cmd = "Panel@Common@Knob0", .scale = 1},
    {.id = 18, .caption = "Picture V", .type = NB_INT, .min = -ENG_PICTURE_SHIFT, .max = ENG_PICTURE_SHIFT, .cmd = "Panel@Common@Knob1", .scale = 1},
    NB_END,
};
static_assert(ButtonsAreSound(bt_eng_checker) && BoxesAreSound(nb_eng_checker));

// --- Hue, saturation, luminance ---

inline constexpr BT_TBL bt_eng_hsl[] = {
    ColorKey(   33, "Red",     ENG_COLOR "HSL#0,100,50"),
    ColorKey(   34, "Yellow",  ENG_COLOR "HSL#60,100,50"),
    ColorKey(   35, "Green",   ENG_COLOR "HSL#120,100,50"),
    ColorKey(   36, "Cyan",    ENG_COLOR "HSL#180,100,50"),
    ColorKey(   37, "Blue",    ENG_COLOR "HSL#240,100,50"),
    ColorKey(   38, "Magenta", ENG_COLOR "HSL#300,100,50"),
    ColorKey(   49, "Black",   ENG_COLOR "HSL#0,0,0"),
    ColorKey(   50, "Grey",    ENG_COLOR "HSL#0,0,50"),
    ColorKey(   51, "White",   ENG_COLOR "HSL#0,0,100"),
    ToEngineeringMenu(),
    BT_END,
};
inline constexpr NB_TBL nb_eng_hsl[] = {
    {.id = 1, .caption = "Hue",        .type = NB_2, .min = 0, .max = 359.99, .cmd = "Panel@Common@Knob0", .scale = 1},
    {.id = 2, .caption = "Saturation", .type = NB_2, .min = 0, .max = 100,    .cmd = "Panel@Common@Knob1", .scale = 1},
    {.id = 3, .caption = "Luminance",  .type = NB_2, .min = 0, .max = 100,    .cmd = "Panel@Common@Knob2", .scale = 1},
    NB_END,
};
static_assert(ButtonsAreSound(bt_eng_hsl) && BoxesAreSound(nb_eng_hsl));

// --- Input ---

inline constexpr BT_TBL bt_eng_keys[] = {
    Toggle(     {.id = 49, .caption = "Hold", .group = "Input", .cmd = {ENG_INPUT "Hold#*"}}),
    Action(     {.id = 50, .caption = "Clear", .group = "Input", .cmd = {ENG_INPUT "Clear"}}),
    Jump(       {.id = 52, .caption = "Touch\nTest", .cmd = {"#99950000"}}),
    ToEngineeringMenu(),
    BT_END,
};
inline constexpr LS_TBL ls_eng_keys[] = {
    {.id = 1, .hn = 3, .vn = 15, .x = 100, .y = 78, .head = {"ms", "Input", "Value"}, .width = {80, 100, 370},
     .group = {1, 1, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 430, .block = 1},
    LS_END,
};
inline constexpr BT_TBL bt_eng_touch[] = {
    Action(     {.id = 49, .caption = "Clear", .cmd = {ENG_INPUT "Clear"}}),
    Jump(       {.id = 51, .caption = "Calibrate\nTouch\nPanel", .cmd = {"#73270001"}}),
    Jump(       {.id = 52, .caption = "Key\nCodes", .cmd = {"#99940000"}}),
    ToEngineeringMenu(),
    BT_END,
};
static_assert(ButtonsAreSound(bt_eng_keys) && ListsAreSound(ls_eng_keys) && ButtonsAreSound(bt_eng_touch));

// --- Links ---

inline constexpr BT_TBL bt_eng_links[] = {
    Action(     {.id = 49, .caption = "Ping", .group = "Self Test", .cmd = {ENG_LINK "Ping"}}),
    Toggle(     {.id = 50, .caption = "Repeat", .group = "Self Test", .cmd = {ENG_LINK "Repeat#*"}}),
    ToEngineeringMenu(),
    BT_END,
};
inline constexpr LS_TBL ls_eng_links[] = {
    {.id = 1, .hn = 8, .vn = 4, .x = 100, .y = 78,
     .head = {"Link", "Address", "State", "Up", "Sent", "Received", "Waiting", "Answer"},
     .width = {78, 140, 62, 30, 62, 66, 56, 56}, .group = {1, 1, 999}, .mono = 1, .view = 1, .sb_top = 78, .sb_bottom = 188,
     .block = 1},
    {.id = 2, .hn = 3, .vn = 7, .x = 100, .y = 210, .head = {"Unit", "State", "Initial Read"}, .width = {160, 90, 130},
     .group = {1, 1, 999}, .mono = 1, .view = 1, .sb_top = 210, .sb_bottom = 386, .block = 1},
    LS_END,
};
static_assert(ButtonsAreSound(bt_eng_links) && ListsAreSound(ls_eng_links));

// --- Versions and figures ---

inline constexpr LS_TBL ls_eng_pairs[] = {
    {.id = 1, .hn = 2, .vn = 15, .x = 100, .y = 78, .head = {"Item", "Value"}, .width = {230, 320}, .group = {1, 999},
     .mono = 1, .sb_top = 78, .sb_bottom = 430, .block = 1},
    LS_END,
};
inline constexpr BT_TBL bt_eng_figures[] = {
    Action(     {.id = 49, .caption = "Reset", .group = "Speed", .cmd = {ENG_FIGURES "Reset"}}),
    ToEngineeringMenu(),
    BT_END,
};
static_assert(ListsAreSound(ls_eng_pairs) && ButtonsAreSound(bt_eng_figures));

// --- Log ---

inline constexpr BT_TBL bt_eng_log[] = {
    Radio(      {.id = 33, .caption = "Menu", .group = "File", .cmd = {ENG_LOG "File#Menu"}}),
    Radio(      {.id = 34, .caption = "Mainte-\nnance", .group = "File", .cmd = {ENG_LOG "File#Maintenance"}}),
    Radio(      {.id = 35, .caption = "Errors", .group = "File", .cmd = {ENG_LOG "File#Errors"}}),
    Radio(      {.id = BTN_LOG_MODULE_ALL, .caption = "All", .group = "Module", .cmd = {ENG_LOG "Module#-1"}}),
    Radio(      {.id = BTN_LOG_MODULE_LINKS, .caption = "15\nLinks", .group = "Module", .cmd = {ENG_LOG "Module#15"}}),
    Radio(      {.id = BTN_LOG_MODULE_PAGES, .caption = "16\nPages", .group = "Module", .cmd = {ENG_LOG "Module#16"}}),
    Radio(      {.id = BTN_LOG_MODULE_START, .caption = "14\nStart,\nTouch", .group = "@Module", .cmd = {ENG_LOG "Module#14"}}),
    Radio(      {.id = BTN_LOG_MODULE_GLOBAL, .caption = "11\nGlobal", .group = "@Module", .cmd = {ENG_LOG "Module#11"}}),
    Toggle(     {.id = 51, .caption = "Find\nText", .group = "Lines", .cmd = {ENG_LOG "Find#*"}}),
    Toggle(     {.id = 52, .caption = "Follow", .group = "Lines", .cmd = {ENG_LOG "Follow#*"}}),
    Jump(       {.id = 53, .caption = "Debug\nSwitches", .cmd = {"#99995555"}}),
    ToEngineeringMenu(),
    BT_END,
};
inline constexpr LS_TBL ls_eng_log[] = {
    {.id = 1, .hn = 3, .vn = 9, .x = 100, .y = 78, .head = {"Time", "", "Line"}, .width = {116, 34, 400},
     .group = {1, 1, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 298, .block = 1},
    LS_END,
};
static_assert(ButtonsAreSound(bt_eng_log) && ListsAreSound(ls_eng_log));

// --- Status reports ---

inline constexpr BT_TBL bt_eng_reports[] = {
    Action(     {.id = 49, .caption = "Clear", .group = "Reports", .cmd = {ENG_REPORT "Clear"}}),
    Jump(       {.id = 51, .caption = "Diag", .cmd = {"#74110000"}}),
    ToEngineeringMenu(),
    BT_END,
};
inline constexpr LS_TBL ls_eng_reports[] = {
    {.id = 1, .hn = 3, .vn = 13, .x = 100, .y = 78, .head = {"Time", "Unit", "Report"}, .width = {80, 110, 360},
     .group = {1, 1, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 386, .block = 1},
    LS_END,
};
static_assert(ButtonsAreSound(bt_eng_reports) && ListsAreSound(ls_eng_reports));

// --- Auto Execute ---

inline constexpr BT_TBL bt_eng_tests[] = {
    Action(     {.id = 49, .caption = "Start", .group = "Self Tests", .cmd = {ENG_TESTS "Start"}}),
    Action(     {.id = 50, .caption = "Stop", .group = "Self Tests", .cmd = {ENG_TESTS "Stop"}}),
    Toggle(     {.id = 51, .caption = "Repeat", .group = "Self Tests", .cmd = {ENG_TESTS "Repeat#*"}}),
    ToEngineeringMenu(),
    BT_END,
};
inline constexpr LS_TBL ls_eng_tests[] = {
    {.id = 1, .hn = 4, .vn = 12, .x = 100, .y = 78, .head = {"Test", "Result", "ms", "Found"}, .width = {140, 76, 44, 290},
     .group = {1, 1, 1, 999}, .mono = 1, .sb_top = 78, .sb_bottom = 364, .block = 1},
    LS_END,
};
static_assert(ButtonsAreSound(bt_eng_tests) && ListsAreSound(ls_eng_tests));

inline constexpr PAGE engineering_pages[] = {
    {.id = PAGE_ENGINEERING, .tree = {"Maintenance", "Engineering"}, .obj = {Base(base_main), Buttons(bt_engineering_menu)}},
    // For installations of the first generation, whose requests lead here.
    {.id = 0x99911000, .tree = {"Maintenance", "Engineering"}, .obj = {Base(base_main), Buttons(bt_engineering_menu_first)}},
    EngUnitPage(1, "Switcher Boards", ls_eng_boards_switcher, ENG_SWITCHER_BOARDS, 1),
    EngUnitPage(2, "DME Boards", ls_eng_boards_dme, ENG_DME_BOARDS, 2),
    EngUnitPage(3, "Fans", ls_eng_fans, ENG_FANS, 3),
    EngUnitPage(4, "Power Supplies", ls_eng_fans, ENG_POWER, 4),
    EngUnitPage(9, "All Units", ls_eng_unit_table, ENG_UNIT_TABLE, 5),
    {.id = 0x99930001, .tree = {"Maintenance", "Version"},
     .obj = {Base(base_main), Buttons(bt_eng_only_back), Lists(ls_eng_pairs), Code(pc_eng_versions)}},
    {.id = 0x99930002, .tree = {"Maintenance", "Memory, Speed"},
     .obj = {Base(base_main), Buttons(bt_eng_figures), Lists(ls_eng_pairs), Code(pc_eng_figures)}},
    {.id = 0x99930003, .tree = {"Maintenance", "Log"},
     .obj = {Base(base_main), Buttons(bt_eng_log), Lists(ls_eng_log), Code(pc_eng_log)}},
    {.id = 0x55550000, .tree = {"Auto Execute Menu"},
     .obj = {Base(base_main), Buttons(bt_eng_tests), Lists(ls_eng_tests), Code(pc_eng_tests)}},
    // Here the code comes first: it sees what the objects would take.
    {.id = 0x99940000, .tree = {"Maintenance", "Key Codes"},
     .obj = {Base(base_main), Code(pc_eng_keys), Buttons(bt_eng_keys), Lists(ls_eng_keys)}},
    {.id = 0x99950000, .tree = {"Maintenance", "Touch Test"},
     .obj = {Base(base_main), Code(pc_eng_touch), Buttons(bt_eng_touch)}},
    {.id = 0x99960000, .tree = {"Maintenance", "Charts", "Colors"},
     .obj = {Base(base_main), BottomTabs(hf_eng_chart, 1), Buttons(bt_eng_only_back), Code(pc_eng_colors)}},
    EngFontPage(0),
    EngFontPage(1),
    EngFontPage(2),
    EngFontPage(3),
    EngFontPage(4),
    {.id = 0x99970000, .tree = {"Maintenance", "All Pages"},
     .obj = {Base(base_main), Buttons(bt_eng_walk), Code(pc_eng_walk)}},
    {.id = 0x99970001, .tree = {"Maintenance", "All Pages", "Results"},
     .obj = {Base(base_main), Buttons(bt_eng_results), Lists(ls_eng_results), Code(pc_eng_results)}},
    {.id = 0x99980000, .tree = {"Maintenance", "Status Reports"},
     .obj = {Base(base_main), Buttons(bt_eng_reports), Lists(ls_eng_reports), Code(pc_eng_reports)}},
    {.id = 0x99990000, .tree = {"Maintenance", "Links"},
     .obj = {Base(base_main), Buttons(bt_eng_links), Lists(ls_eng_links), Code(pc_eng_links)}},
    {.id = 0x99995555, .tree = {"Maintenance", "Debug Switches"},
     .obj = {Base(base_main), Buttons(bt_eng_debug), DebugMenu()}},
    {.id = 0x77770000, .tree = {"Background Color Checker", "Ground"},
     .obj = {Base(base_main), Cells(st_eng_checker), Buttons(bt_eng_checker), Boxes(nb_eng_checker), Code(pc_eng_checker)}},
    {.id = 0x88880000, .tree = {"HSL to RGB"},
     .obj = {Base(base_main), Buttons(bt_eng_hsl), Boxes(nb_eng_hsl), Code(pc_eng_hsl)}},
};
