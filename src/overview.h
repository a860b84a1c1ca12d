// overview: lists of like things with what the server says of each: the banks, the keys, the
// mattes, the units. Rows follow from the installation when the page opens; a column is a path of
// every row. Several lists of a page may show the same rows, each with a selection of its own, as
// where something is taken from and where it goes.
//
// What a touch on a row means is the page's. A page about one chosen row, with keys and knobs of
// it, is one_of's.
#pragma once
#include "me_bank.h"
#include "one_of.h"
#include "types.h"

constexpr int OVERVIEW_ROWS = 128;
constexpr int OVERVIEW_COLUMNS = 6; // behind the name
constexpr int OVERVIEW_TEXT = 24;   // of a cell with its terminator

struct OVERVIEWITEM {
    char name[OVERVIEW_TEXT] = "";
    char path[48] = "";  // "M/E-1@Key1": what stands for "$"
    char group[16] = ""; // and for "%"
    uint32_t page = 0;   // where it is adjusted, 0 nowhere
};

struct OVERVIEWCOLUMN {
    const char* path = nullptr; // with "$" and "%" of the item; that of the column before: once
    const ONEOFWORD* words = nullptr; // as of one_of
    bool is_for_life = false; // followed as long as the process lives: a removal would end that
    // What the cell says of a value that is more than a word; null: the value.
    void (*from_wire)(const char* value, char* text, size_t size) = nullptr;
};

struct OVERVIEW {
    int (*items)(OVERVIEWITEM* items, int max) = nullptr; // how many there are
    const OVERVIEWCOLUMN* columns = nullptr;
    int column_count = 0;
    int lists = 1; // LS numbers from 1 that show the rows
};

// --- For page code; the object stands in the row behind the lists ---
void Overview_Open(const OVERVIEW& t);
void Overview_Close(const OVERVIEW& t);
// A tally of one of the columns: non-zero when it was. hash is the path's.
int Overview_Tally(const OVERVIEW& t, const char* path, const char* value, uint32_t hash);
int Overview_Count();
const OVERVIEWITEM* Overview_Item(int row); // null for what is not there

// --- For the items of a page ---
struct OVERVIEWITEMS {
    OVERVIEWITEM* item;
    int max;
    int count = 0;
};
// One more; never null, but what exceeds the room is in vain.
__attribute__((format(printf, 3, 4))) OVERVIEWITEM*
Overview_Add(OVERVIEWITEMS& items, const char* name, const char* format, ...);
int Overview_Keys(const MeBank& bank);                                 // 4 or 8
const char* Overview_KeyWord(const MeBank& bank, int key);             // "Key1", "DSK1"; key from 0
uint32_t Overview_KeyPage(const MeBank& bank, int key, uint32_t page); // page: of M/E-1, Key1
// Call work for each bank that the operator may touch.
template <typename Work> void Overview_ForEachBank(Work work)
{
    for (const MeBank& bank : me_bank)
        if (!MeBank_IsOff(bank))
            work(bank);
}
