// a_st: status cells: a grid of small read-only pictures, each the summary of one menu and a way to
// the page that adjusts it.
// A page brings one table of rows. A cell subscribes to its paths, keeps their last tallies and is
// painted by its own function; a press on it requests a page. It changes no setting. What cells
// look like is in a_st_draw and the files of the painter families (a_st_me_key, a_st_me_wipe, ...).
#pragma once
#include "types.h"

constexpr int ST_MAX = 18;       // cells on one page
constexpr int ST_COMMANDS = 128; // paths of one cell
// Two rows of a table that only exist with one, or with two processor boards, and one that a key
// of a 4K format lacks.
constexpr int ST_SINGLE_BOARD = 97;
constexpr int ST_DUAL_BOARD = 98;
constexpr int ST_KEY_TYPE_2 = 2;

struct ST_MEM;
struct ST_TBL {
    int id = 0; // below 1 ends the table
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
    int (*draw_func)(ST_MEM*) = nullptr;
    const char* cmd[ST_COMMANDS] = {}; // path templates; a painter knows its tallies by their index
    uint32_t jamp_id_base = 0;         // the page for M/E-1, Key1; 0 none
    uint32_t page = 0;                 // a page as it stands, in the place of that one
};
constexpr ST_TBL ST_END = {.id = -1};

// The run-time state of a cell. Painters read it and write nothing but through the drawing verbs.
struct ST_MEM {
    int id = -1;
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
    int (*draw_func)(ST_MEM*) = nullptr;
    char cmd[ST_COMMANDS][CMD_SIZE] = {}; // expanded
    uint32_t cmd_hash[ST_COMMANDS] = {};
    int redraw = 0;
    char tally[ST_COMMANDS][CMD_SIZE] = {}; // last value, "" until it arrives
    uint32_t jamp_id = 0;                   // resolved for the bank and key of the page; 0 none
    bool is_missing = false;                // this installation lacks that page: under the veil
    int used = 0;                           // entries from here on are unused: their texts are ""
};

// --- Opening and closing a page ---
// Build the cells of a page and subscribe each distinct path once; a null table empties the object.
// Rows past ST_MAX are left out with a log line. Returns 0, or 1 when it emptied.
int ST_Create(const ST_TBL* table, uint32_t unused);
int ST_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);

// --- For everybody ---
int ST_Follows(const char* path);   // 1 while a cell of the page is subscribed to it
void GL_ST_area_update_draw();      // draw all cells anew: a global setting has changed
int st_dme_reference();             // channel bits that the DME cells mean; -1 none
extern int GL_FillSourceAssignMode; // the signal select page assigns 0 the fill, 1 the source

// --- For painters ---
// The cell to paint from: the given one when it has a tally, else what it showed before the page
// was built anew, null when there is neither.
ST_MEM* st_shown(ST_MEM* cell);
// What the transition cells showed last, main side first: kind, wipe and DME wipe pattern.
constexpr int TRN_VALUES = 3;
extern int TrnModeStatus[2][TRN_VALUES];
