// setup_page: pages that prepare a whole configuration and apply it in one step.
// A page owns two tables of texts, rows by fields: what the operator is preparing and what the
// server has told. It declares them once; from then on this module asks the server, fills both,
// keeps edits in hand, marks what differs, and sends one put for each change. The tables outlive
// the page: a half-done edit is still there when the operator comes back.
//
// What a choice means to other rows, and what else a page does, stays with its page code.
#pragma once
#include "a_pc.h"
#include "types.h"
#include <cstddef>

constexpr int SETUP_CELL_CHANGED = 3; // LS status of a cell that differs from what the server told
constexpr int SETUP_TEXT = 64;        // a cell's text with its terminator, at most

// A word of the server's and the text that stands for it on the screen.
struct SETUPWORD {
    const char* wire = nullptr; // null ends the list
    const char* text = "";
};

// How a page asks for a path.
enum : int {
    SETUP_ADD = 0,  // and leaves it with the page
    SETUP_READ = 1, // somebody follows it all the time
    SETUP_HEAR = 2, // not at all: what is told anyway is taken
};
enum : int { SETUP_EACH_ROW = -1, SETUP_BY_PAGE = -2 }; // SETUPFIELD.part

// One text of every row. Rows are structures of texts; the first of them is the row's key. Two
// fields at the same place are one text that travels in two ways, each for the rows that have it.
struct SETUPFIELD {
    size_t offset = 0;
    size_t size = 0; // at most SETUP_TEXT
    // "$" is the row's key, a leading "~" the page's place in the tree; null: the page's own, never
    // sent.
    const char* path = nullptr;
    // 0: the path is the row's and its value this text. n: the path tells a line for each row,
    // which begins with its key, and this is part n of it from 1; a put sends the whole line. With
    // a "$" the line is the row's own, and has no key.
    // SETUP_EACH_ROW: one value has a part for each row in their order; a put sends all of them.
    // SETUP_BY_PAGE: page code takes and sends it, with SetupPage_Take.
    int part = 0;
    int parts = 1;   // as many parts of the line, from that one on, hold this same text
    int column = -1; // of the list
    int is_put = 1;  // 0: only shown
    int ask = SETUP_ADD;
    int is_reread = 0;                      // read once more after a put
    bool (*has)(const char* key) = nullptr; // the rows that have this text; null: all
    const SETUPWORD* words = nullptr;       // other values are shown as they come
    // The text of a value; now is the text in hand. Null: by words.
    void (*from_wire)(const char* value, const char* now, char* text, size_t size) = nullptr;
    void (*to_wire)(const char* text, char* value, size_t size) = nullptr;
};

// The place of a text in the structure of a row.
#define SETUP_CELL(row, member) .offset = offsetof(row, member), .size = sizeof(row::member)

// A button whose value goes into a field of the selected rows: "LOCAL@...@Resume#On". It lights
// when the current row has its value.
struct SETUPCHOICE {
    const char* cmd = nullptr; // path without the value; null: a number box alone
    int field = 0;             // index in fields
    // The button opens a popup of these texts, at most SETUP_OFFER. Returns how many.
    int (*offer)(const char** texts, int max) = nullptr;
    int box = 0;              // id of a number box whose whole number is the text, 0 none
    const char* on = nullptr; // a toggle that turns these two over
    const char* off = "";
    // No two rows have the same text: the row that had it gets the one of the current row.
    int is_swapped = 0;
};
constexpr int SETUP_OFFER = 72; // cells of the largest popup

struct SETUPSTATE {
    int cursor = 0; // current row; outlives the page, and the rows while they are told anew
    int group = 0;  // of a sheet's rows that is shown; outlives the page
    int is_open = 0;
    const char* const* tree = nullptr; // the page's place while it is open, and while it is left
    int question = 0;                  // pane of the Execute question, 0 none
    int popup = 0;                     // pane of a choice, 0 none
    int asked = 0;                     // which choice that is
};

struct SETUPTABLE {
    void* work = nullptr; // arrays of max rows, all texts empty at first
    void* tally = nullptr;
    int* rows = nullptr; // in use
    SETUPSTATE* state = nullptr;
    size_t row_size = 0;
    int max = 0;
    const SETUPFIELD* fields = nullptr;
    int field_count = 0;
    // The keys of the rows, asked for when the page opens; returns how many. Null: lines make rows.
    int (*keys)(const char** keys, int max) = nullptr;
    int key_parts = 1; // of a line; a key of two is "M/E-1,2"
    int list = 0;      // LS number, 0 none
    int btn_clear = 0; // buttons that are enabled by a difference, 0 none
    int btn_execute = 0;
    const char* clear = ""; // commands
    const char* execute = "";
    const char* title = "Execute";  // of the question
    const char* question = nullptr; // null: it asks nothing
    const SETUPCHOICE* choices = nullptr;
    int choice_count = 0;
    // Asked before Execute: false keeps everything as it is; page code has said why.
    bool (*is_sound)() = nullptr;
    void (*changed)() = nullptr; // the cells or the current row may be others now
};

// The question of most of them.
extern const char setup_reboot_question[];
constexpr uint32_t SETUP_ALL_FIELDS = 0xFFFFFFFF;

// --- For page code ---
// Make the rows, ask the server for every path once, show what is there.
void SetupPage_Open(const SETUPTABLE& t);
void SetupPage_Close(const SETUPTABLE& t);
// Tallies, Clear, Execute with its question, choices, knobs, the list's cursor. Non-zero when the
// message was one of its own.
int SetupPage_Proc(const SETUPTABLE& t, int msg, MsgArg ax, MsgArg bx);

// Cells. A row or field that is not there is ignored, its text is "".
const char* SetupPage_Text(const SETUPTABLE& t, int row, int field);
const char* SetupPage_Told(const SETUPTABLE& t, int row, int field); // what the server has
void SetupPage_Set(const SETUPTABLE& t, int row, int field, const char* text); // of the work; shows
// What the server has told, in a way that only page code understands. Shows nothing yet.
void SetupPage_Take(const SETUPTABLE& t, int row, int field, const char* text);
int SetupPage_Row(const SETUPTABLE& t, const char* key); // -1 none
bool SetupPage_Has(const SETUPTABLE& t, int row, int field);
int SetupPage_Selected(const SETUPTABLE& t, int n); // n-th selected row, -1 behind the last

// The fields of a mask, bit i for fields[i].
bool SetupPage_Differs(const SETUPTABLE& t, uint32_t fields = SETUP_ALL_FIELDS);
void SetupPage_Clear(const SETUPTABLE& t, uint32_t fields = SETUP_ALL_FIELDS);
void SetupPage_Put(const SETUPTABLE& t, uint32_t fields = SETUP_ALL_FIELDS);
void SetupPage_Show(const SETUPTABLE& t);   // list, buttons and choices, while the page is open
void SetupPage_Forget(const SETUPTABLE& t); // as at process start

// Page code for a page that is no more than its table.
template <const SETUPTABLE& table> int SetupPage_CreateOf(int on, uint32_t)
{
    on ? SetupPage_Open(table) : SetupPage_Close(table);
    return !on;
}
template <const SETUPTABLE& table>
int SetupPage_ProcOf(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    (void)SetupPage_Proc(table, msg, ax, bx);
    return 0;
}
template <const SETUPTABLE& table>
constexpr PC_TBL SetupPage_Code = {.proc_func = SetupPage_ProcOf<table>,
                                   .create_func = SetupPage_CreateOf<table>};
