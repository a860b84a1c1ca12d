// pc_engsetup_swr: the pages of the Switcher group of engineering setup that are more than a sheet:
// those whose keys mean several rows, whose list is a matrix, or which draw. Their rows have one
// shape.
#pragma once
#include "a_pc.h"
#include "setup_page.h"
#include <iterator>

#define SWR "Engineering Setup@Switcher@"
#define LOCAL_SWR "LOCAL@" SWR

// --- pc_engsetup_swr_config ---
extern const PC_TBL pc_engsetup_switcher_config;
extern const PC_TBL pc_engsetup_switcher_config_pgm;
extern const PC_TBL pc_engsetup_switcher_config_user;

void EngSetupSwitcher_Reset(); // as at process start; for tests

inline constexpr const char* swr_banks[] = {"M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5", "P/P"};

// --- What the tables of the group are made of ---

constexpr int SWR_CELLS = 10;
struct swr_row {
    char key[24];
    char cell[SWR_CELLS][24];
};
template <int max> struct SwrRows {
    swr_row work[max] = {};
    swr_row tally[max] = {};
    int rows = 0;
    SETUPSTATE state;
};

// A setting of every row, in the column right of the key. More holds what is particular to it.
constexpr SETUPFIELD SwrField(int cell, const char* path, SETUPFIELD more = {})
{
    more.offset = offsetof(swr_row, cell) + size_t(cell) * sizeof(swr_row::cell[0]);
    more.size = sizeof(swr_row::cell[0]);
    more.path = path;
    more.column = more.column < 0 ? cell + 1 : more.column;
    return more;
}
constexpr SETUPFIELD SWR_KEY = {SETUP_CELL(swr_row, key), .column = 0};

constexpr SETUPCHOICE SwrKnob(int field, int box)
{
    return {.field = field, .box = box};
}

// The keys of a page's rows from a list of words.
template <const auto& words> int SwrWords(const char** texts, int max)
{
    int n = 0;
    for (const char* word : words)
        if (n < max)
            texts[n++] = word;
    return n;
}

template <int max, size_t fields, size_t choices>
constexpr SETUPTABLE SwrTable(SwrRows<max>& rows, int (*keys)(const char**, int),
                              const SETUPFIELD (&field)[fields],
                              const SETUPCHOICE (&choice)[choices], SETUPTABLE more = {})
{
    static_assert(fields <= 32, "a mask has a bit for each");
    more.work = rows.work;
    more.tally = rows.tally;
    more.rows = &rows.rows;
    more.state = &rows.state;
    more.row_size = sizeof(swr_row);
    more.max = max;
    more.fields = field;
    more.field_count = int(fields);
    more.keys = keys;
    more.list = 1;
    more.btn_clear = 53;
    more.btn_execute = 54;
    more.clear = LOCAL_SWR "Clear";
    more.execute = LOCAL_SWR "Execute";
    more.choices = choice;
    more.choice_count = int(choices);
    return more;
}
// Of settings that change what is on the outputs.
inline constexpr char swr_on_air_question[] =
    "This operation may change the pictures\non the outputs.\n\nContinue?";
