#include "overview.h"
#include "a_ls.h"
#include "command.h"
#include "netio.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include "safeguards.h"

namespace
{
struct Cell {
    uint32_t hash = 0; // of the path
    char text[OVERVIEW_TEXT] = "";
};
} // namespace

static struct {
    int count = 0;
    OVERVIEWITEM item[OVERVIEW_ROWS]; // the lists keep pointers to the texts
    Cell cell[OVERVIEW_ROWS][OVERVIEW_COLUMNS];
} ov; // of the page that stands

static void path_of(char (&path)[CMD_SIZE], const char* pattern, const OVERVIEWITEM& item)
{
    path[0] = '\0';
    for (; *pattern; pattern++) {
        const char letter[] = {*pattern, '\0'};
        AppendText(path, *pattern == '$' ? item.path : *pattern == '%' ? item.group : letter);
    }
}

static int columns_of(const OVERVIEW& t)
{
    return std::min(t.column_count, OVERVIEW_COLUMNS);
}

static bool is_path_of_column_before(const OVERVIEW& t, int n)
{
    return n > 0 && Same(t.columns[n].path, t.columns[n - 1].path);
}

static void open_row(const OVERVIEW& t, int row)
{
    for (int list = 1; list <= t.lists; list++)
        LS_SetData(list, row, 0, ov.item[row].name);
    for (int n = 0; n < columns_of(t); n++) {
        Cell& cell = ov.cell[row][n];
        char path[CMD_SIZE];
        path_of(path, t.columns[n].path, ov.item[row]);
        cell = {.hash = Hash(path)};
        for (int list = 1; list <= t.lists; list++)
            LS_SetData(list, row, n + 1, cell.text);
        if (!is_path_of_column_before(t, n))
            Net_SendCommandFormat("%s %s", t.columns[n].is_for_life ? "read" : "add", path);
    }
}

void Overview_Open(const OVERVIEW& t)
{
    std::fill(std::begin(ov.item), std::end(ov.item), OVERVIEWITEM{});
    ov.count = t.items(ov.item, OVERVIEW_ROWS);
    for (int row = 0; row < ov.count; row++)
        open_row(t, row);
    for (int list = 1; list <= t.lists; list++) {
        LS_SetNData(list, ov.count);
        LS_SetNowLine(list, 0);
    }
}

void Overview_Close(const OVERVIEW& t)
{
    for (int row = 0; row < ov.count; row++)
        for (int n = 0; n < columns_of(t); n++) {
            if (t.columns[n].is_for_life || is_path_of_column_before(t, n))
                continue;
            char path[CMD_SIZE];
            path_of(path, t.columns[n].path, ov.item[row]);
            Net_SendCommandFormat("remove %s", path);
        }
    ov.count = 0;
}

static const char* shown_as(const ONEOFWORD* words, const char* value)
{
    for (; words && words->wire; words++)
        if (Same(words->wire, value))
            return words->text;
    return value;
}

static void take(const OVERVIEWCOLUMN& column, const char* value, Cell& cell)
{
    if (column.from_wire)
        column.from_wire(value, cell.text, sizeof cell.text);
    else
        CopyText(cell.text, shown_as(column.words, value));
    std::replace(std::begin(cell.text), std::end(cell.text), '@', ' '); // of a path
}

// Whether the path is one of the row's; then its cells have the value.
static bool take_in_row(const OVERVIEW& t, int row, const char* path, const char* value,
                        uint32_t hash)
{
    bool is_taken = false;
    for (int n = 0; n < columns_of(t); n++) {
        char own[CMD_SIZE];
        if (ov.cell[row][n].hash != hash)
            continue;
        path_of(own, t.columns[n].path, ov.item[row]);
        if (!Same(own, path))
            continue;
        take(t.columns[n], value, ov.cell[row][n]);
        is_taken = true;
    }
    return is_taken;
}

int Overview_Tally(const OVERVIEW& t, const char* path, const char* value, uint32_t hash)
{
    for (int row = 0; row < ov.count; row++) {
        if (!take_in_row(t, row, path, value, hash))
            continue;
        for (int list = 1; list <= t.lists; list++)
            LS_RedrawData(list);
        return 1;
    }
    return 0;
}

int Overview_Count()
{
    return ov.count;
}

const OVERVIEWITEM* Overview_Item(int row)
{
    return row >= 0 && row < ov.count ? &ov.item[row] : nullptr;
}

// --- Items ---

OVERVIEWITEM* Overview_Add(OVERVIEWITEMS& items, const char* name, const char* format, ...)
{
    static OVERVIEWITEM nowhere;
    OVERVIEWITEM& item = items.count < items.max ? items.item[items.count++] : nowhere;
    CopyText(item.name, name);
    va_list args;
    va_start(args, format);
    (void)vsnprintf(item.path, sizeof item.path, format, args);
    va_end(args);
    return &item;
}

static constexpr int SIDE_KEYS = 4; // keys 5 to 8 live on the sub side

int Overview_Keys(const MeBank& bank)
{
    return GL_KeyMax[bank.place] > SIDE_KEYS ? 2 * SIDE_KEYS : SIDE_KEYS;
}

const char* Overview_KeyWord(const MeBank& bank, int key)
{
    static constexpr const char* words[2][2 * SIDE_KEYS] = {
        {"Key1", "Key2", "Key3", "Key4", "Key5", "Key6", "Key7", "Key8"},
        {"DSK1", "DSK2", "DSK3", "DSK4", "DSK5", "DSK6", "DSK7", "DSK8"}};
    return words[bank.me == 0][key];
}

uint32_t Overview_KeyPage(const MeBank& bank, int key, uint32_t page)
{
    constexpr uint32_t TO_NEXT_KEY = 0x00100000;
    return page + MeBank_Offset(bank) + (key >= SIDE_KEYS ? TO_SUB_BANK : 0) +
           uint32_t(key % SIDE_KEYS) * TO_NEXT_KEY;
}
