// a_ls: the lists of a page, up to four tables of text with header, selection and scroll bar. Page code fills the
// cells and is told of selections; the list holds pointers to text that page code owns.
#pragma once
#include "types.h"

constexpr int LS_MAX = 4;
constexpr int LS_ROWS = 12000;
constexpr int LS_COLUMNS = 17;

struct LS_TBL {
    int id = 0; // list number from 1, scroll bar id - 1; below 1 ends the table
    int hn = 0; // columns
    int vn = 0; // rows visible
    int x = 0;
    int y = 0;
    const char* head[LS_COLUMNS] = {};
    int width[LS_COLUMNS] = {};
    int group[LS_COLUMNS] = {}; // columns per group; 999 the rest
    int split = 0;              // 1: each column is selected alone
    int mono = 0;               // 1: one colour for selection
    int view = 0;               // 1: display only
    int sb_top = 0;
    int sb_bottom = 0;
    int block = 0; // 1: no plural and block buttons
};
constexpr LS_TBL LS_END = {.id = -1};

// --- Opening and closing a page ---
int LS_Create(const LS_TBL* table, int var);
int LS_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
// Turn a wheel step at (x, y) into a press on the scroll arrow under it. 1 when x and y were rewritten; dir is 4 up, 5
// down.
int LS_ConvPosForWheel(int* x, int* y, int dir);

// --- Cells; -1 for a list that the page does not have. Row and column are checked ---
int LS_SetData(int id, int row, int col, const char* text); // not copied
const char* LS_GetData(int id, int row, int col);
int LS_SetDataFolder(int id, int row, int kind, int side); // 0 none, 1 folder, 2 selected; side 0 left, 1 right
int LS_SetNData(int id, int n);
int LS_GetNData(int id);
int LS_ClearData(int id);
int LS_RedrawData(int id);
int LS_SetFromN(int id, int from, int n);
int LS_SetStatus(int id, int row, int col, int status); // colour class
int LS_GetStatus(int id, int row, int col);
int LS_SetHStatus(int id, int row, int status); // a whole row
int LS_SetVStatus(int id, int col, int status); // a whole column
int LS_SetHeadStr(int id, int col, const char* text);
int LS_HeaderDisable(int id, int col, int on);
int LS_SetGrouplin(int id, int col, int n);

// --- Selection ---
int LS_SetNowLine(int id, int row); // scrolls to it
int LS_GetNowLine(int id);
int LS_SetTopLine(int id, int row);
int LS_GetTopLine(int id);
int LS_SetSplit(int id, int on);
int LS_SetSplitSel(int id, int col);
int LS_GetSplitSel(int id);
int LS_IsSelected(int id, int row, int col);
int LS_GetSelected(int id, int n); // row of the n-th selected row, -1
int LS_SetSelected(int id, int row, int col, int on);
int LS_ChangeSelByStr(int id, int col, const char* text);
int LS_GetMS(int id);
int LS_SetMS(int id, int on);
int LS_GetALL(int id);
int LS_SetALL(int id, int on);
void LS_SetNowLineDisable(int on); // no row is drawn as selected
