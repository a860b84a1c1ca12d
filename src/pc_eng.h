// pc_eng: what the tables of the engineering pages and their page code both know.
#pragma once
#include "a_pc.h"
#include "types.h"

// --- Pages ---
constexpr uint32_t PAGE_ENGINEERING = 0x99910000;

// --- Local commands, with what stands behind them in the tables ---
#define ENG_DEBUG "LOCAL@Engineering@Debug@"
#define ENG_UNITS "LOCAL@Engineering@Units@"
#define ENG_WALK "LOCAL@Engineering@Walk@"
#define ENG_COLOR "LOCAL@Engineering@Color@"
#define ENG_INPUT "LOCAL@Engineering@Input@"
#define ENG_LINK "LOCAL@Engineering@Link@"
#define ENG_FIGURES "LOCAL@Engineering@Figures@"
#define ENG_LOG "LOCAL@Engineering@Log@"
#define ENG_REPORT "LOCAL@Engineering@Report@"
#define ENG_TESTS "LOCAL@Engineering@Tests@"

// --- Lists that are filled anew again and again ---
constexpr int ENG_LIST = 1;      // the list of an engineering page
constexpr int ENG_CELL = 96;     // a text of it with its terminator
constexpr int ENG_REFRESH = 500; // ms between two looks at what changes by itself

// --- Of single pages ---
enum EngUnitView : uint32_t {
    ENG_SWITCHER_BOARDS,
    ENG_DME_BOARDS,
    ENG_FANS,
    ENG_POWER,
    ENG_UNIT_TABLE
};
constexpr int ENG_PICTURE_SHIFT = 16; // px that a cell's picture may be moved for a try
enum : int {
    BTN_LOG_MODULE_ALL = 36,
    BTN_LOG_MODULE_LINKS = 37,
    BTN_LOG_MODULE_PAGES = 38,
    BTN_LOG_MODULE_START = 49,
    BTN_LOG_MODULE_GLOBAL = 50,
};

// Mirror a switch as the server would: "path#value" as a tally of the page's own.
void Eng_Mirror(const char* path, const char* value);
// A line of text on the work area's ground: (x, y) to x2 is cleared first. Not flushed.
void Eng_Text(int x, int y, int x2, const char* text, int font, unsigned colour);

// --- Page code ---
extern const PC_TBL pc_eng_walk; // pc_eng_walk.cpp
extern const PC_TBL pc_eng_results;
extern const PC_TBL pc_eng_units;   // pc_eng_units.cpp; its var is an EngUnitView
extern const PC_TBL pc_eng_colors;  // pc_eng_chart.cpp
extern const PC_TBL pc_eng_fonts;   // its var is the first of the two fonts
extern const PC_TBL pc_eng_checker; // pc_eng_color.cpp
extern const PC_TBL pc_eng_hsl;
extern const PC_TBL pc_eng_keys; // pc_eng_input.cpp
extern const PC_TBL pc_eng_touch;
extern const PC_TBL pc_eng_links;    // pc_eng_links.cpp
extern const PC_TBL pc_eng_versions; // pc_eng_figures.cpp
extern const PC_TBL pc_eng_figures;
extern const PC_TBL pc_eng_log;     // pc_eng_log.cpp
extern const PC_TBL pc_eng_reports; // pc_eng_report.cpp
extern const PC_TBL pc_eng_tests;   // pc_eng_tests.cpp
