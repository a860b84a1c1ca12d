// Auto Execute: what the menu computer can test of itself without touching what is on air, one
// after the other, once or again and again. A test says what it has found; one whose subject this
// installation does not have is left out.
#include "a_ls.h"
#include "colours.h"
#include "command.h"
#include "global.h"
#include "graphics.h"
#include "i2c.h"
#include "log.h"
#include "memory.h"
#include "message.h"
#include "netio.h"
#include "pc_eng.h"
#include "safe_file.h"
#include "storage.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "touch.h"
#include <SDL.h>
#include <cstdio>
#include <iterator>

#include "safeguards.h"

namespace
{
enum Outcome { NOT_RUN, PASSED, FAILED, LEFT_OUT };
using Detail = char[ENG_CELL];
} // namespace

static struct {
    int allocations = -1; // when the first round began; -1 before
} base;

// --- The tests ---

static Outcome test_fonts(Detail& detail)
{
    constexpr int FONTS = 10;
    for (int font = 0; font < FONTS; font++)
        for (char c = '!'; c <= '~'; c++) {
            const char glyph[] = {c, '\0'};
            if (TDL_GetSymbolWidth(glyph, font) != 0)
                continue;
            PrintText(detail, "font %d has no %02X", font, unsigned(c));
            return FAILED;
        }
    CopyText(detail, "ten fonts, 94 glyphs each");
    return PASSED;
}

static Outcome test_bitmaps(Detail& detail)
{
    struct Bitmap {
        const char* name;
        SDL_Surface* surface;
    };
#define BITMAP(name, file) {file, G_##name},
    const Bitmap bitmaps[] = {
#include "graphics_list.h"
    };
#undef BITMAP
    for (const Bitmap& b : bitmaps)
        if (!b.surface) {
            PrintText(detail, "%s is missing", b.name);
            return FAILED;
        }
    PrintText(detail, "%d bitmaps", int(std::size(bitmaps)));
    return PASSED;
}

static Outcome test_wipe_pictures(Detail& detail)
{
    int n = 0;
    for (int number = 0; number < WIPE_PTN_MAX; number++)
        n += WipePtn_IsListed(number);
    PrintText(detail, "%d pictures", n);
    return n ? PASSED : FAILED;
}

static Outcome test_link(NetLink link, Detail& detail)
{
    const NetState s = Net_State(link);
    PrintText(detail, "%s, came up %u times, %d waiting", s.is_up ? "up" : "down",
              unsigned(s.connects), s.waiting);
    return s.is_up ? PASSED : FAILED;
}
static Outcome test_text_link(Detail& detail)
{
    return test_link(NET_LINK_TEXT, detail);
}
static Outcome test_bin_link(Detail& detail)
{
    return test_link(NET_LINK_BIN, detail);
}
static Outcome test_hub_link(Detail& detail)
{
    return GL_ClipStoreSupportMode ? test_link(NET_LINK_HUB, detail) : LEFT_OUT;
}

static Outcome test_drive(const char* dir, Detail& detail)
{
    char name[PATH_SIZE];
    PrintText(name, "%s/.tm3test", dir);
    const bool is_written = SafeFile_Write(name, "test", 4) == 0;
    remove(name);
    const int free_kb = GetDiskFree(dir);
    PrintText(detail, "%s, %d MB free", is_written ? "written" : "cannot be written",
              free_kb < 0 ? 0 : free_kb / 1024);
    return is_written && free_kb != 0 ? PASSED : FAILED;
}
static Outcome test_log_drive(Detail& detail)
{
    return test_drive("/var/log2", detail);
}
static Outcome test_data_drive(Detail& detail)
{
    return GL_IsRamDisk ? LEFT_OUT : test_drive("/mnt/data", detail);
}

static Outcome test_eeprom(Detail& detail)
{
    constexpr int REGIONS = 4;
    for (int region = 0; region < REGIONS; region++) {
        const int valid = I2cEepromService_IsCrc32Valid(region);
        if (valid == 1)
            continue;
        PrintText(detail, "region %d: %s", region, valid < 0 ? "cannot be read" : "wrong sum");
        return FAILED;
    }
    PrintText(detail, "%d regions", REGIONS);
    return PASSED;
}

static Outcome test_touch_panel(Detail& detail)
{
    CopyText(detail, Touch_FD < 0 ? "none found" : "open");
    return Touch_FD < 0 ? FAILED : PASSED;
}

static Outcome test_units(Detail& detail)
{
    PrintText(detail, "%d errors in the Diag menu", GL_ErrorExist);
    return GL_ErrorExist ? FAILED : PASSED;
}

// While a page stands its allocations do not grow.
static Outcome test_memory(Detail& detail)
{
    constexpr int TOLERANCE = 200; // commands that wait, a file that is being worked on
    const int grown = UsedMemPtr - base.allocations;
    PrintText(detail, "%d live, %+d since the start", UsedMemPtr, grown);
    return grown > TOLERANCE ? FAILED : PASSED;
}

namespace
{
struct Test {
    const char* name;
    Outcome (*run)(Detail& detail);
};
constexpr Test tests[] = {
    {"Fonts", test_fonts},
    {"Bitmaps", test_bitmaps},
    {"Wipe pictures", test_wipe_pictures},
    {"Text link", test_text_link},
    {"Binary link", test_bin_link},
    {"Status hub link", test_hub_link},
    {"Log drive", test_log_drive},
    {"Data drive", test_data_drive},
    {"EEPROM", test_eeprom},
    {"Touch panel", test_touch_panel},
    {"Units", test_units},
    {"Memory", test_memory},
};
constexpr int TESTS = int(std::size(tests));
constexpr int PAUSE_MS = 1000; // between two rounds
enum : int { COLUMN_TEST, COLUMN_RESULT, COLUMN_MS, COLUMN_DETAIL };
enum : int { CELLS_NORMAL = 0, CELLS_GREY = 1, CELLS_RED = 2 };
constexpr const char* outcome_words[] = {"--", "OK", "Error", "Left out"};

struct Result {
    Outcome outcome = NOT_RUN;
    char ms[8] = "";
    Detail detail = "";
};
} // namespace

static struct {
    bool runs = false;
    bool repeats = false;
    int next = 0; // the test that is due
    int pause_ms = 0;
    int rounds = 0;
    int errors = 0; // of all rounds
    Result result[TESTS];
} es; // valid from create(1) to create(0)

static void draw_summary()
{
    char text[ENG_CELL];
    PrintText(text, "%s     Rounds: %d     Errors: %d", es.runs ? "Running" : "Stopped", es.rounds,
              es.errors);
    Eng_Text(104, 372, 697, text, 3, es.errors ? RED : WHITE);
    TDL_UpdateRect(104, 372, 697, 388);
}

static void show(int n)
{
    const Result& r = es.result[n];
    LS_SetData(ENG_LIST, n, COLUMN_TEST, tests[n].name);
    LS_SetData(ENG_LIST, n, COLUMN_RESULT, outcome_words[r.outcome]);
    LS_SetData(ENG_LIST, n, COLUMN_MS, r.ms);
    LS_SetData(ENG_LIST, n, COLUMN_DETAIL, r.detail);
    LS_SetHStatus(ENG_LIST, n,
                  r.outcome == NOT_RUN || r.outcome == LEFT_OUT ? CELLS_GREY : CELLS_NORMAL);
    if (r.outcome == FAILED)
        LS_SetStatus(ENG_LIST, n, COLUMN_RESULT, CELLS_RED);
}

static void show_all()
{
    for (int n = 0; n < TESTS; n++)
        show(n);
    LS_SetNData(ENG_LIST, TESTS);
    LS_RedrawData(ENG_LIST);
    draw_summary();
}

static void begin()
{
    for (Result& r : es.result)
        r = {};
    es.runs = true;
    es.next = es.rounds = es.errors = es.pause_ms = 0;
    base.allocations = UsedMemPtr;
    show_all();
}

static void run_test(int n)
{
    Result& r = es.result[n];
    const uint32_t begun = SDL_GetTicks();
    r.detail[0] = '\0';
    r.outcome = tests[n].run(r.detail);
    PrintText(r.ms, "%d", int(SDL_GetTicks() - begun));
    if (r.outcome == FAILED) {
        es.errors++;
        Log_Output(LOG_ALWAYS, MOD_GLOBAL, "Self test: %s: %s", tests[n].name, r.detail);
    }
    show(n);
    LS_SetNowLine(ENG_LIST, n);
    LS_RedrawData(ENG_LIST);
}

static void end_round()
{
    es.rounds++;
    es.next = 0;
    es.runs = es.repeats;
    es.pause_ms = PAUSE_MS;
    draw_summary();
}

// One test a pass: the screen stays alive.
static int tests_redraw(int elapsed_ms)
{
    if (!es.runs || (es.pause_ms -= elapsed_ms) > 0)
        return 0;
    es.pause_ms = 0;
    run_test(es.next);
    if (++es.next == TESTS)
        end_round();
    return 0;
}

static int tests_button(const char* path)
{
    if (Same(path, ENG_TESTS "Start")) {
        begin();
    } else if (Same(path, ENG_TESTS "Stop")) {
        es.runs = false;
        draw_summary();
    } else if (Same(path, ENG_TESTS "Repeat")) {
        es.repeats = !es.repeats;
        Eng_Mirror(ENG_TESTS "Repeat", Bool(es.repeats));
    }
    return 0;
}

static int tests_proc(int msg, MsgArg ax, MsgArg, MsgArg, MsgArg)
{
    switch (msg) {
    case LMSG_BTNSEL: return tests_button(Text(ax));
    case MSG_REDRAW: return tests_redraw(int(ax));
    default: return 0;
    }
}

static int tests_create(int on, uint32_t)
{
    es = {};
    if (!on)
        return 1;
    Eng_Mirror(ENG_TESTS "Repeat", "false");
    show_all();
    return 0;
}

const PC_TBL pc_eng_tests = {tests_proc, tests_create};
