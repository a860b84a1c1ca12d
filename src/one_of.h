// one_of: pages about one of many: the buses, the monitors, the machines of the system.
// All of them share a page. The one that the operator works on is a row of a list, and its name is
// a word of the page's tree: keys, boxes and conditions name their paths by "~" and are about that
// one. A choice puts the name into the tree and builds keys and boxes anew; nothing else of the
// page moves. What the list shows of the others is followed here.
//
// Beside it a page may have a list of signals: a touch puts one on the chosen row.
#pragma once
#include "a_pc.h"
#include "types.h"

constexpr int ONEOF_ROWS = 128;
constexpr int ONEOF_COLUMNS = 8;
constexpr int ONEOF_TEXT = 24; // of a cell with its terminator

// What a word of the server's looks like in a cell.
struct ONEOFWORD {
    const char* wire = nullptr; // null ends the list; what is not in it is shown as it comes
    const char* text = "";
};
extern const ONEOFWORD one_of_switch[]; // a dot while it is on

struct ONEOFCOLUMN {
    const char* path = nullptr; // "$" is the row's name; null: page code fills the cells
    const ONEOFWORD* words = nullptr;
    int is_timecode = 0; // a count of frames, shown at the switcher's rate
};

// Outlives the page: the operator comes back to the row that he left.
struct ONEOFSTATE {
    int cursor = 0;
    int count = 0;
    const char* name[ONEOF_ROWS] = {};
    char cell[ONEOF_ROWS][ONEOF_COLUMNS][ONEOF_TEXT] = {}; // valid while the page stands
};

struct ONEOF {
    int word = 2; // of the tree
    int list = 1; // LS number; its first column is the name, the others follow
    ONEOFSTATE* state = nullptr;
    int (*names)(const char** names, int max) = nullptr; // texts that live as long as the process
    const ONEOFCOLUMN* columns = nullptr;
    int column_count = 0;
    int signal_list = 0;          // LS number, 0 none: number, name, mark
    const char* signal = nullptr; // where a signal goes, "$" as above; one of the columns' paths
    const char* (*signal_name)(int number) = nullptr; // null: the switcher's sources; see below
};

// --- For page code; the object stands in the row behind the lists and before the keys ---
void OneOf_Open(const ONEOF& t);
void OneOf_Close(const ONEOF& t);
// Tallies, both lists, renamed signals. Non-zero when the message was one of its own.
int OneOf_Proc(const ONEOF& t, int msg, MsgArg ax, MsgArg bx);
// The name in the tree. Only for a page that has rows.
const char* OneOf_Name(const ONEOF& t);
const char* OneOf_Cell(const ONEOF& t, int row, int column); // "" for what is not there
void OneOf_Choose(const ONEOF& t, int row);                  // out of range: nothing
// What a touch on that row of the list of signals sends; "" where it has none. Number 0 to
// BUS_XPT_SRC - 1; signal_name answers null or "" for one that is not there.
const char* OneOf_Signal(int row);
void OneOf_SignalsChanged(const ONEOF& t); // signal_name answers otherwise now

// Page code for a page that is no more than that.
template <const ONEOF& table> int OneOf_CreateOf(int on, uint32_t)
{
    on ? OneOf_Open(table) : OneOf_Close(table);
    return !on;
}
template <const ONEOF& table> int OneOf_ProcOf(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    (void)OneOf_Proc(table, msg, ax, bx);
    return 0;
}
template <const ONEOF& table>
constexpr PC_TBL OneOf_Code = {.proc_func = OneOf_ProcOf<table>,
                               .create_func = OneOf_CreateOf<table>};
