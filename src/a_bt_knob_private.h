// a_bt_knob_private: how a numbered knob link finds its table. A case asks up to three questions;
// each has a fixed number of answers, and the answers together are the place in the case's list of
// tables, the first question counting most. A question reads a setting of the system or a tally of
// the button.
#pragma once
#include "a_bt.h"
#include "page_table/nb_rows.h"
#include <cstddef>

// A tally question finds its dependency by the end of its path, whatever its place in the row.
// Answer n + 1 is words[n]; anything else, also no tally yet, is answer 0.
struct KnobQuestion {
    int answers = 0; // 0: no question
    int (*ask)(const BT_MEM*) = nullptr;
    const char* path = nullptr;
    const char* words[4] = {};
};
constexpr KnobQuestion On(const char* path)
{
    return {.answers = 2, .path = path, .words = {"true"}};
}
template <typename... WORD> constexpr KnobQuestion Words(const char* path, WORD... words)
{
    return {.answers = int(sizeof...(words)) + 1, .path = path, .words = {words...}};
}

// Settings. 0 is 4:3, SD, a key that does not turn; 1 is 16:9, HD, a key that turns.
int ask_screen_wide(const BT_MEM*);
int ask_bank_wide(const BT_MEM*); // of the bank that the page belongs to
int ask_hd(const BT_MEM*);
int ask_key_turns(const BT_MEM*); // the processed key that the page belongs to
constexpr KnobQuestion SCREEN_WIDE = {.answers = 2, .ask = ask_screen_wide};
constexpr KnobQuestion BANK_WIDE = {.answers = 2, .ask = ask_bank_wide};
constexpr KnobQuestion HD = {.answers = 2, .ask = ask_hd};
constexpr KnobQuestion KEY_TURNS = {.answers = 2, .ask = ask_key_turns};

// --- The tables that a case chooses among ---
constexpr int KNOB_TABLES = 8;
struct KnobTables {
    const NB_TBL* table[KNOB_TABLES] = {};
    int count = 0;
};
constexpr void knob_add(KnobTables& t, const NB_TBL* table)
{
    t.table[t.count++] = table;
}
template <size_t VARIANTS, size_t ROWS>
constexpr void knob_add(KnobTables& t, const KnobFamily<VARIANTS, ROWS>& family)
{
    for (const auto& variant : family.variant)
        knob_add(t, variant);
}
template <size_t ROWS> constexpr void knob_add(KnobTables& t, const KnobColumn<ROWS>& column)
{
    knob_add(t, column.row);
}
// Tables, columns and families in the order of the answers.
template <typename... TABLE> constexpr KnobTables Of(const TABLE&... table)
{
    KnobTables all;
    (knob_add(all, table), ...);
    return all;
}

struct KnobCase {
    int number = 0; // below 1 ends the cases
    KnobQuestion by[3] = {};
    KnobTables tables = {};
};
constexpr KnobCase KNOB_CASES_END = {};

// Ends, numbers rise within first..last, every answer has its table, two tables at least.
template <size_t N> constexpr bool CasesAreSound(const KnobCase (&cases)[N], int first, int last)
{
    for (size_t i = 0; i + 1 < N; i++) {
        const KnobCase& c = cases[i];
        int answers = 1;
        for (const KnobQuestion& q : c.by)
            answers *= q.answers ? q.answers : 1;
        if (answers != c.tables.count || answers < 2)
            return false;
        if (c.number < first || c.number > last || (i && c.number <= cases[i - 1].number))
            return false;
    }
    return cases[N - 1].number == 0;
}

extern const KnobCase knob_cases_key[];
extern const KnobCase knob_cases_wipe[];
extern const KnobCase knob_cases_dme[];
extern const KnobCase knob_cases_global[];
