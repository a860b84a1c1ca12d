// a_ls: the lists of a page, up to four tables of text with a header, a selection and a scroll bar.
// Page code fills the cells and is told of selections. A list holds pointers to texts that page
// code owns: each must live until it is replaced or the page closes. It sends no command of its
// own. The bar beside a list belongs to scrollbar: it says where to, the list moves.
//
// Cells may be filled in any order, before or after their row is in use. Rows are 0 to 11999,
// columns 0 to 16, whatever the list shows: anything else is refused.
//
// A list is in one of two modes. Single: at most one row (with split, one cell) is selected and the
// arrows move it. Multi-select, by the key "Plural" or LS_SetMS: each touch adds or removes,
// a finger that moves on takes the rows along, and the arrows move the window only. While "Block"
// is on as well, or in a list whose table says block, the selection stays one run without gaps.
#pragma once
#include "types.h"

constexpr int LS_MAX = 4;
constexpr int LS_ROWS = 12000;
constexpr int LS_COLUMNS = 17;
constexpr int LS_ROW_PX = 22; // the header and each row

struct LS_TBL {
    int id = 0; // list number from 1, scroll bar id - 1; below 1 ends the table
    int hn = 0; // columns
    int vn = 0; // rows visible
    int x = 0;
    int y = 0;
    const char* head[LS_COLUMNS] = {};
    int width[LS_COLUMNS] = {};
    int group[LS_COLUMNS] = {}; // columns of each group in turn; 999 the rest, 0 no more groups
    int split = 0;              // 1: each column is selected alone
    int mono = 0;               // 1: one colour for selection, no LMSG_LISTFLASH
    int view = 0;               // 1: display only
    int sb_top = 0;
    int sb_bottom = 0; // the first pixel below the bar
    int block = 0;     // 1: no plural and block buttons; multi-select is page code's, and one run
};
constexpr LS_TBL LS_END = {.id = -1};

// --- Opening and closing a page ---
// Build the lists of a page, empty, and their scroll bars; a null table drops what is there. Rows
// that have no bar or place are left out with a log line. Returns 0, or 1 when it emptied.
int LS_Create(const LS_TBL* table, int unused);
int LS_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
// Turn a wheel step over a list or its bar into a press on a scroll arrow; dir is 4 up, 5 down. 1
// when x and y were rewritten. A list that is display only and without keys takes no wheel.
int LS_ConvPosForWheel(int* x, int* y, int dir);

// --- Cells: -1 (a null text) for a list that the page does not have and for what is out of range.
int LS_SetData(int id, int row, int col, const char* text); // not copied; null is an empty cell
const char* LS_GetData(int id, int row, int col);
int LS_SetDataFolder(int id, int row, int kind, int side); // 0 none, 1 folder, 2 selected; side 0
                                                           // left, 1 right
// Rows in use. Fewer than before: the rest loses its selection, current row and window move up.
// With 0 they keep their place, so that a list which is filled anew stays where it was.
int LS_SetNData(int id, int n);
int LS_GetNData(int id);
int LS_ClearData(int id);                 // as after opening; only the key "Plural" stays
int LS_RedrawData(int id);                // at the next MSG_REDRAW
int LS_SetFromN(int id, int from, int n); // n rows in use, shown from row from on
int LS_SetStatus(int id, int row, int col, int status); // colour class, 0 to 127
int LS_GetStatus(int id, int row, int col);
int LS_SetHStatus(int id, int row, int status);       // a whole row
int LS_SetVStatus(int id, int col, int status);       // a whole column, unused rows too
int LS_SetHeadStr(int id, int col, const char* text); // not copied
int LS_HeaderDisable(int id, int col, int on);        // a grey title
int LS_SetGrouplin(int id, int group, int n);         // columns of that group, from 0

// --- Selection: -1 as above. None of these sends LMSG_LISTSEL or LMSG_LISTFLASH ---
int LS_SetNowLine(int id, int row); // scrolls to it; in single mode the selection goes along
int LS_GetNowLine(int id);
int LS_SetTopLine(int id, int row); // no further than the last rows fill the window
int LS_GetTopLine(int id);
int LS_SetSplit(int id, int on); // the selection starts anew from the current row
int LS_SetSplitSel(int id, int col);
int LS_GetSplitSel(int id);
int LS_IsSelected(int id, int row, int col);
// The row of the n-th selected row, n from 0; -1 when there are no more. Asking for 0, 1, 2...
// costs one walk.
int LS_GetSelected(int id, int n);
// As by a touch; a negative row or col is the current one. 0 done, 1 it is so already, 2 refused:
// in single mode a selection only moves.
int LS_SetSelected(int id, int row, int col, int on);
int LS_ChangeSelByStr(int id, int col, const char* text); // to the first row with it; -1 if none
int LS_GetMS(int id);
int LS_SetMS(int id, int on); // off: only the current row stays selected
int LS_GetALL(int id);
int LS_SetALL(int id, int on);     // every row in use; on brings multi-select with it
void LS_SetNowLineDisable(int on); // no row is drawn as selected; off again with the next page
