// rows: the words in which the page tables are written. A helper's name is the kind of thing; what follows from the
// kind or from the grid id is computed here and checked at compile time.
#pragma once
#include "a_ba.h"
#include "a_bt.h"
#include "a_dw.h"
#include "a_ff.h"
#include "a_fl.h"
#include "a_fm.h"
#include "a_hf.h"
#include "a_kp.h"
#include "a_ls.h"
#include "a_pc.h"
#include "a_ps.h"
#include "a_st_draw.h"
#include "a_vf.h"
#include "page.h"
#include "scrollbar.h"
#include "types.h"

// --- Buttons ---

// Standard buttons are 84 x 65, pitch 98 x 88, from (112, 184). Id: high nibble row from 0, low nibble column from 1.
constexpr Rect GridRect(int id)
{
    const int x = 112 + 98 * ((id & 0x0F) - 1);
    const int y = 184 + 88 * (id >> 4);
    return {x, y, x + 84, y + 65};
}

constexpr BT_TBL Placed(BT_TBL row)
{
    if (row.x2 != 0) return row; // a special position, written out in its row
    const Rect r = GridRect(row.id);
    row.x1 = r.x1;
    row.y1 = r.y1;
    row.x2 = r.x2;
    row.y2 = r.y2;
    return row;
}

constexpr BT_TBL Typed(BT_TBL row, int type)
{
    row.type = type;
    if (!row.select_func) row.select_func = bt_sel_normal;
    if (!row.draw_func) row.draw_func = bt_drw_normal;
    if (!row.tally_func) row.tally_func = bt_tly_normal;
    return Placed(row);
}

constexpr BT_TBL Toggle(BT_TBL row)       { return Typed(row, BT_TOGGLE); }
constexpr BT_TBL Radio(BT_TBL row)        { return Typed(row, BT_RADIO); }
constexpr BT_TBL RadioRelease(BT_TBL row) { return Typed(row, BT_RADIO_RELEASE); } // pressed while on: none
constexpr BT_TBL Action(BT_TBL row)       { return Typed(row, BT_ACTION); }
constexpr BT_TBL ActionState(BT_TBL row)  { return Typed(row, BT_ACTION_STATE); }
constexpr BT_TBL Jump(BT_TBL row)         { return Typed(row, BT_JUMP); }
constexpr BT_TBL JumpTenKey(BT_TBL row)   { return Typed(row, BT_JUMP_10KEY); }
constexpr BT_TBL JumpPopUp(BT_TBL row)    { return Typed(row, BT_JUMP_POPUP); }
constexpr BT_TBL Knobs(BT_TBL row)        { return Typed(row, BT_KNOB_ONLY); }
constexpr BT_TBL PullDownKey(BT_TBL row)
{
    if (row.x2 == 0) {
        const Rect r = GridRect(row.id);
        row.x1 = r.x1 - 8; // wider than the grid's cap: 101 x 46 on the pitch of 98
        row.y1 = r.y1;
        row.x2 = row.x1 + 100;
        row.y2 = row.y1 + 45;
    }
    return Typed(row, BT_PULLDOWN);
}

constexpr BT_TBL BT_END = {.id = -1};

// Ends, ids unique, at most BT_MAX rows, every rectangle on the screen, every row of a known kind.
template <size_t N> constexpr bool ButtonsAreSound(const BT_TBL (&rows)[N])
{
    if (N - 1 > BT_MAX || rows[N - 1].id >= 1) return false;
    for (size_t i = 0; i + 1 < N; i++) {
        const BT_TBL& b = rows[i];
        if (b.id < 1 || b.type < BT_TOGGLE || b.type > BT_NEW || !b.caption) return false;
        if (b.x1 < 0 || b.y1 < 0 || b.x1 > b.x2 || b.y1 > b.y2) return false;
        if (b.x2 >= SCREEN_W || b.y2 >= SCREEN_H) return false;
        for (size_t k = 0; k < i; k++)
            if (rows[k].id == b.id) return false;
        // A tab follows no tally: what it depends on would have no effect.
        for (int n = 1; b.type == BT_TAB && n < BT_COMMANDS; n++)
            if (b.cmd[n]) return false;
    }
    return true;
}

// --- Number boxes ---

// Ends, at most NB_MAX rows, slots 1 to 5.
template <size_t N> constexpr bool BoxesAreSound(const NB_TBL (&rows)[N])
{
    if (N - 1 > NB_MAX || rows[N - 1].id >= 1) return false;
    for (size_t i = 0; i + 1 < N; i++)
        if ((rows[i].id & 0x0F) < 1 || (rows[i].id & 0x0F) > 5 || !rows[i].caption) return false;
    return true;
}

// --- Lists ---

// The last pixel column of a list; its bar follows after two more.
constexpr int ListRight(const LS_TBL& list)
{
    int x = list.x - 1;
    for (int col = 0; col < list.hn; col++) x += list.width[col];
    return x;
}

// Ends, list numbers 1 to 4 and unique, columns of at least a pixel, list and bar on the screen.
template <size_t N> constexpr bool ListsAreSound(const LS_TBL (&rows)[N])
{
    if (N - 1 > LS_MAX || rows[N - 1].id >= 1) return false;
    for (size_t i = 0; i + 1 < N; i++) {
        const LS_TBL& l = rows[i];
        if (l.id < 1 || l.id > LS_MAX || l.hn < 1 || l.hn > LS_COLUMNS || l.vn < 1) return false;
        for (int col = 0; col < l.hn; col++)
            if (l.width[col] < 1) return false;
        if (l.x < 0 || ListRight(l) + 2 + SB_W >= SCREEN_W) return false;
        if (l.y < 0 || l.y + LS_ROW_PX * (l.vn + 1) > SCREEN_H) return false;
        if (l.sb_top < 0 || l.sb_bottom > SCREEN_H || l.sb_bottom - l.sb_top < 82) return false;
        for (size_t k = 0; k < i; k++)
            if (rows[k].id == l.id) return false;
    }
    return true;
}

// --- Status cells ---

// Standard cells are 100 x 90 from (100, 75), side by side; a wide one spans several.
constexpr ST_TBL CellAt(int column, int line, ST_TBL row, int columns = 1, int lines = 1)
{
    row.x1 = 100 + 100 * column;
    row.y1 = 75 + 90 * line;
    row.x2 = row.x1 + 100 * columns - 1;
    row.y2 = row.y1 + 90 * lines - 1;
    return row;
}

// Ends, at most ST_MAX rows on one page, each with a painter and a rectangle in the work area.
template <size_t N> constexpr bool CellsAreSound(const ST_TBL (&rows)[N])
{
    size_t count = 0;
    for (size_t i = 0; i + 1 < N; i++) {
        const ST_TBL& c = rows[i];
        if (c.id < 1 || !c.draw_func || c.x1 < 97 || c.x2 > 702 || c.y1 < 73 || c.y2 > 526) return false;
        if (c.id != ST_DUAL_BOARD) count++; // stands in the place of another
    }
    return count <= ST_MAX && rows[N - 1].id < 1;
}

// --- The objects of a page ---

constexpr _pageobject Base(const BA_TBL& table, uint32_t parent = 0) { return {OBJ_BA, &table, parent}; }
constexpr _pageobject Buttons(const BT_TBL* table) { return {OBJ_BT, table, 0}; }
constexpr _pageobject BottomTabs(const HF_TBL* table, uint32_t selected) { return {OBJ_HF, table, selected}; }
constexpr _pageobject LowBottomTabs(const HF_TBL* table, uint32_t selected) { return {OBJ_HF, table, selected | HF_LOW}; }
constexpr _pageobject LeftTabs(const VF_TBL* table, uint32_t selected) { return {OBJ_VF, table, selected}; }
constexpr _pageobject Patterns(const PS_TBL& table) { return {OBJ_PS, &table, 0}; }
constexpr _pageobject WipeList(const DW_TBL& table, uint32_t knob_row = 0) { return {OBJ_DW, &table, knob_row}; }
constexpr _pageobject PathList(const KP_TBL* table) { return {OBJ_KP, table, 0}; }
constexpr _pageobject Boxes(const NB_TBL* table) { return {OBJ_NB, table, 0}; }
constexpr _pageobject Lists(const LS_TBL* table) { return {OBJ_LS, table, 0}; }
constexpr _pageobject Cells(const ST_TBL* table) { return {OBJ_ST, table, 0}; }
constexpr _pageobject Code(const PC_TBL& table, uint32_t var = 0) { return {OBJ_PC, &table, var}; }
constexpr _pageobject Folder(const FF_TBL& table) { return {OBJ_FF, &table, 0}; }
constexpr _pageobject Outputs(const FM_TBL& table) { return {OBJ_FM, &table, 0}; }
constexpr _pageobject Files(const FL_TBL& table) { return {OBJ_FL, &table, 0}; }
constexpr _pageobject ErrorList() { return {OBJ_ERR, nullptr, 0}; }
constexpr _pageobject DebugMenu() { return {OBJ_DEBUG, nullptr, 0}; }
