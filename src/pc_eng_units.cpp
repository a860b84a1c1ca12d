// What stands in the units, as they have reported it: boards by slot, fans, power supplies; and
// the table of the units itself.
#include "a_ls.h"
#include "device.h"
#include "message.h"
#include "pc_eng.h"
#include "pc_install.h"
#include "selfdiag.h"
#include "text.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

namespace
{
enum : int { COLUMN_NAME = 0 };
enum : int { CELLS_NORMAL = 0, CELLS_GREY = 1, CELLS_RED = 2 };
constexpr int DME_UNIT = 4; // the first effects unit among the eight
constexpr int UNITS_MAX = 4 * DEVICE_MAX + DCU_MAX;

// A page of words: which of them, from which unit on.
struct View {
    EngUnitView key;
    const char* row_title;
    int rows;
    int first_unit;
    int columns;
};
constexpr View views[] = {
    {ENG_SWITCHER_BOARDS, "Slot", DIAG_BOARDS, 0, 4},
    {ENG_DME_BOARDS, "Slot", DIAG_BOARDS, DME_UNIT, 4},
    {ENG_FANS, "Fan", DIAG_FANS, 0, DIAG_UNITS},
    {ENG_POWER, "Supply", DIAG_PSUS, 0, DIAG_UNITS},
};
constexpr const char* unit_names[DIAG_UNITS] = {"SWR1", "SWR2", "SWR3", "SWR4",
                                                "DME1", "DME2", "DME3", "DME4"};
} // namespace

static struct {
    int view = 0;
    int wait_ms = 0;
    char name[DIAG_BOARDS][16];
    char word[DIAG_BOARDS][DIAG_UNITS][16]; // as shown
} eu;                                       // valid from create(1) to create(0)

// --- Words ---

static const char* word_of(const View& v, int unit, int row)
{
    switch (v.key) {
    case ENG_FANS: return GL_Fan[unit][row];
    case ENG_POWER: return GL_PSU[unit][row];
    default: return GL_CircuitBoard[unit][row];
    }
}

static bool has_unit(int unit)
{
    const DEVICE* const table = unit < DME_UNIT ? DEV_Swr : DEV_Dme;
    const int count = unit < DME_UNIT ? SYS_SwrMax : SYS_DmeMax;
    for (int i = 0; i < count && i < DEVICE_MAX; i++)
        if (strcmp(table[i].name, unit_names[unit]) == 0)
            return true;
    return false;
}

// Whether the unit has told the word: its last report named it. An empty slot has no board.
static bool is_told_word(const View& v, int unit, int row, const char* word)
{
    if (!has_unit(unit))
        return false;
    switch (v.key) {
    case ENG_FANS: return row < GL_FanTold[unit];
    case ENG_POWER: return row < GL_PSUTold[unit];
    default: return strcmp(word, "NG") != 0;
    }
}

static bool show_word(const View& v, int row, int column)
{
    const int unit = v.first_unit + column;
    const char* const word = word_of(v, unit, row);
    const bool is_told = is_told_word(v, unit, row, word);
    const char* const shown = is_told ? word : "--";
    char(&cell)[16] = eu.word[row][column];
    if (strcmp(cell, shown) == 0)
        return false;
    CopyText(cell, shown);
    LS_SetData(ENG_LIST, row, column + 1, cell);
    const bool is_error = BeginsWith(cell, "NG") || BeginsWith(cell, "Err");
    LS_SetStatus(ENG_LIST, row, column + 1,
                 !is_told   ? CELLS_GREY
                 : is_error ? CELLS_RED
                            : CELLS_NORMAL);
    return true;
}

static void show_words()
{
    const View& v = views[eu.view];
    bool has_changed = false;
    for (int row = 0; row < v.rows; row++)
        for (int column = 0; column < v.columns; column++)
            has_changed |= show_word(v, row, column);
    if (has_changed)
        LS_RedrawData(ENG_LIST);
}

static int redraw(int elapsed_ms)
{
    eu.wait_ms -= elapsed_ms;
    if (eu.wait_ms > 0)
        return 0;
    eu.wait_ms = ENG_REFRESH;
    show_words();
    return 0;
}

static int units_proc(int msg, MsgArg ax, MsgArg, MsgArg, MsgArg)
{
    if (eu.view >= int(std::size(views)))
        return 0;
    if (msg == LMSG_BTNSEL && strcmp(Text(ax), ENG_UNITS "Refresh") == 0)
        SelfDiag_Refresh_All();
    return msg == MSG_REDRAW ? redraw(int(ax)) : 0;
}

static void open_words()
{
    const View& v = views[eu.view];
    for (int column = 0; column < v.columns; column++)
        LS_HeaderDisable(ENG_LIST, column + 1, !has_unit(v.first_unit + column));
    for (int row = 0; row < v.rows; row++) {
        PrintText(eu.name[row], "%s %d", v.row_title, row + 1);
        LS_SetData(ENG_LIST, row, COLUMN_NAME, eu.name[row]);
    }
    LS_SetNData(ENG_LIST, v.rows);
    show_words();
}

// --- The table of the units ---

static char type_text[UNITS_MAX][8];

// Rows of a class of units behind the n that are shown; returns how many there are then.
static int add_units(int n, const DEVICE* unit, int count)
{
    for (int i = 0; i < count && i < DEVICE_MAX && n < UNITS_MAX; i++, n++) {
        PrintText(type_text[n], "%d", unit[i].type);
        const char* const model = newinstall_modelinfo(unit[i].name, unit[i].type);
        const char* const cells[] = {unit[i].name, unit[i].id,     model,
                                     type_text[n], unit[i].dataip, unit[i].ctrlip};
        for (int column = 0; column < int(std::size(cells)); column++)
            LS_SetData(ENG_LIST, n, column, cells[column]);
    }
    return n;
}

static void open_table()
{
    int n = add_units(0, DEV_Pnl, SYS_PnlMax);
    n = add_units(n, DEV_Swr, SYS_SwrMax);
    n = add_units(n, DEV_Dme, SYS_DmeMax);
    n = add_units(n, DEV_Mpe, SYS_MpeMax);
    LS_SetNData(ENG_LIST, n);
}

static int units_create(int on, uint32_t view)
{
    eu = {};
    if (!on)
        return 1;
    eu.view = int(view);
    if (view == ENG_UNIT_TABLE)
        open_table();
    else
        open_words();
    LS_SetNowLine(ENG_LIST, 0);
    return 0;
}

const PC_TBL pc_eng_units = {units_proc, units_create};
