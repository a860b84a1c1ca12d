#include "pc_fmem1_browse.h"
#include "a_ls.h"
#include "box.h"
#include "colours.h"
#include "fmctrl.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <iterator>

#include "safeguards.h"

enum : int { COLUMN_NO, COLUMN_NAME, COLUMN_MAIN, COLUMN_SUB, COLUMN_ANCILLARY };
constexpr int PAUSE_MS = 100; // between two fillings: a store tells thousands of registers a second
constexpr int FONT = 3;
constexpr int WELL_W = 192;
constexpr int WELL_H = 108;
constexpr int WELL_PITCH = 112;

static FMEM1ROW rows[LS_ROWS]; // the list shows its texts from here

static struct {
    bool is_open = false;
    FMEM1KIND kind = FMEM1_STILL;
    int count = 0;
    bool is_stale = false;
    int pause_ms = 0;
} br; // valid from open to close

static int open_folder[FMEM1_KINDS]; // outlives the page

// --- Rows ---

static bool was_selected[2 * FMEM_EXTENDED]; // by a register of the row

static int key_of(const FMEM1ROW& row)
{
    return row.reg[0] >= 0 ? row.reg[0] : row.reg[1];
}

static int clip_of(const FMEM1ROW& row)
{
    return FMCtrl_GetClipIdx(FMCtrl2_GetRegNameMulti(key_of(row)));
}

static int number_of(int reg)
{
    return 1 + reg % FMEM_EXTENDED;
}

static void add_still(int idx)
{
    if (StillList.rec[idx]->folder_id != Fmem1_FolderId() || FMCtrl_IsStillFrame(idx))
        return;
    FMEM1ROW& row = rows[br.count++];
    row = {.reg = {FMCtrl_GetStillRegId(idx, 0), FMCtrl_GetStillRegId(idx, 1)},
           .is_ancillary = FMCtrl_GetStillAncillary(idx) == 1};
    CopyText(row.name, FMCtrl_GetStillName(idx));
    for (int sub = 0; sub < 2; sub++)
        CopyText(row.side[sub], row.reg[sub] < 0 ? "" : sub ? "S" : "M");
}

static void add_clip(int idx)
{
    if (FMCtrl_GetClipFolderId(idx) != Fmem1_FolderId())
        return;
    FMEM1ROW& row = rows[br.count++];
    row = {.reg = {FMCtrl_GetClipRegId(idx, 0, 0), FMCtrl_GetClipRegId(idx, 1, 0)},
           .is_ancillary = FMCtrl_GetClipAncillary(idx) == 1};
    CopyText(row.name, FMCtrl_GetClipName(idx));
    for (int sub = 0; sub < 2; sub++)
        if (const int frames = FMCtrl_GetClipFrameNum(idx, sub); frames > 0)
            PrintText(row.side[sub], "%d", frames);
}

static void gather()
{
    const bool is_clip = br.kind == FMEM1_CLIP;
    const int count = is_clip ? FMCtrl_GetClipNum2() : FMCtrl_GetStillNum();
    br.count = 0;
    for (int idx = 0; idx < count && br.count < LS_ROWS; idx++)
        (is_clip ? add_clip : add_still)(idx);
    for (int i = 0; i < br.count; i++)
        if (key_of(rows[i]) >= 0)
            PrintText(rows[i].no, "%s%d", key_of(rows[i]) < FMEM_EXTENDED ? "" : "EX",
                      number_of(key_of(rows[i])));
}

static void note_selection()
{
    std::fill(std::begin(was_selected), std::end(was_selected), false);
    for (int i = 0; const FMEM1ROW* const row = Fmem1_Selected(i); i++)
        if (key_of(*row) >= 0)
            was_selected[key_of(*row)] = true;
}

// In single mode one row stays selected; of several the first that was.
static void restore_selection()
{
    const int top = LS_GetTopLine(FMEM1_LIST);
    const bool is_plural = LS_GetMS(FMEM1_LIST) == 1;
    bool has_one = false;
    for (int i = 0; i < br.count; i++) {
        const int key = key_of(rows[i]);
        const bool is_on = key >= 0 && was_selected[key];
        if (is_plural)
            (void)LS_SetSelected(FMEM1_LIST, i, 0, is_on); // 1: it is so already
        else if (is_on && !has_one)
            (void)LS_SetNowLine(FMEM1_LIST, i);
        has_one |= is_on;
    }
    (void)LS_SetTopLine(FMEM1_LIST, top);
    if (!is_plural && !has_one && br.count > 0)
        (void)LS_SetNowLine(FMEM1_LIST, std::clamp(LS_GetNowLine(FMEM1_LIST), 0, br.count - 1));
}

static void show()
{
    br.is_stale = false;
    br.pause_ms = PAUSE_MS;
    note_selection();
    gather();
    for (int i = 0; i < br.count; i++) {
        (void)LS_SetData(FMEM1_LIST, i, COLUMN_NO, rows[i].no);
        (void)LS_SetData(FMEM1_LIST, i, COLUMN_NAME, rows[i].name);
        (void)LS_SetData(FMEM1_LIST, i, COLUMN_MAIN, rows[i].side[0]);
        (void)LS_SetData(FMEM1_LIST, i, COLUMN_SUB, rows[i].side[1]);
        (void)LS_SetData(FMEM1_LIST, i, COLUMN_ANCILLARY, rows[i].is_ancillary ? "A" : "");
    }
    (void)LS_SetNData(FMEM1_LIST, br.count);
    (void)LS_RedrawData(FMEM1_LIST);
    restore_selection();
}

// --- Opening and closing ---

void Fmem1_Open(FMEM1KIND kind)
{
    br = {.is_open = true, .kind = kind};
    show();
    if (br.count > 0)
        (void)LS_SetNowLine(FMEM1_LIST, 0);
}

void Fmem1_Close()
{
    br = {};
}

void Fmem1_Reset()
{
    Fmem1_Close();
    std::fill(std::begin(open_folder), std::end(open_folder), 0);
}

// --- For page code ---

void Fmem1_Changed()
{
    br.is_stale = true;
}

bool Fmem1_Pass(int elapsed_ms)
{
    br.pause_ms = std::max(0, br.pause_ms - elapsed_ms);
    if (!br.is_open || !br.is_stale || br.pause_ms > 0)
        return false;
    show();
    return true;
}

int Fmem1_FolderId()
{
    const int id = open_folder[br.kind];
    const FOLDER* const folder = FMCtrl_GetFolder(FMCtrl_GetIsFolderIdx(id));
    return folder && *folder->name ? id : 0;
}

void Fmem1_SetFolder(int id)
{
    open_folder[br.kind] = id;
    (void)LS_ClearData(FMEM1_LIST); // what was selected is elsewhere
    show();
}

static const FMEM1ROW* row_at(int row)
{
    return row >= 0 && row < br.count ? &rows[row] : nullptr;
}

const FMEM1ROW* Fmem1_Selected(int n)
{
    return row_at(LS_GetSelected(FMEM1_LIST, n));
}

const FMEM1ROW* Fmem1_Chosen()
{
    const int row = LS_GetNowLine(FMEM1_LIST);
    return LS_IsSelected(FMEM1_LIST, row, 0) == 1 ? row_at(row) : nullptr;
}

int Fmem1_Registers(const FMEM1ROW& row, int is_sub)
{
    if (br.kind == FMEM1_CLIP)
        return std::max(0, FMCtrl_GetClipFrameNum(clip_of(row), is_sub));
    return row.reg[is_sub] >= 0;
}

int Fmem1_Register(const FMEM1ROW& row, int is_sub, int n)
{
    if (n < 0 || n >= Fmem1_Registers(row, is_sub))
        return -1;
    if (br.kind != FMEM1_CLIP)
        return row.reg[is_sub];
    const int idx = clip_of(row);
    return FMCtrl_GetClipRegId(idx, is_sub, n - FMCtrl_GetClipFrameIdx(idx, is_sub));
}

void Fmem1_MoveFrame(int d)
{
    const int at = LS_GetNowLine(FMEM1_LIST);
    if (br.kind != FMEM1_CLIP || !Fmem1_Chosen())
        return;
    FMEM1ROW& row = rows[at];
    const int idx = clip_of(row);
    for (int sub = 0; idx >= 0 && sub < 2; sub++) {
        (void)FMCtrl_MoveClipFrame(idx, sub, d);
        row.reg[sub] = FMCtrl_GetClipRegId(idx, sub, 0);
    }
}

// --- Pictures ---

static void draw_picture(const Rect& well, int reg)
{
    Box_Sunk(well, BLACK, BOX_SUNK_EDGE);
    if (reg < 0)
        return;
    SDL_Surface* s = FMCtrl2_GetThumbnailMulti(reg, THUMBSIZE_FULL);
    if (s && (s->w > WELL_W - 2 || s->h > WELL_H - 2))
        s = FMCtrl2_GetThumbnailMulti(reg, THUMBSIZE_SMALL);
    if (s && s->w <= WELL_W - 2 && s->h <= WELL_H - 2)
        (void)TDL_PutS(well.x1 + (WELL_W - s->w) / 2, well.y1 + (WELL_H - s->h) / 2, s);
    else
        (void)TDL_SymbolCS(well.x1, well.y1, well.x2, well.y2, "   No\nThumbnail", FONT, GREY);
}

static void draw_texts(int x, int y, const FMEM1ROW* row, int is_sub)
{
    const int reg = row ? row->reg[is_sub] : -1;
    char text[32];
    (void)TDL_SymbolS(x, y, is_sub ? "Sub" : "Main", FONT, LABEL);
    if (reg < 0)
        return;
    (void)TDL_SymbolS(x, y + 24, FMCtrl2_GetRegNameMulti(reg), FONT, WHITE);
    PrintText(text, "No %s%d", reg < FMEM_EXTENDED ? "" : "EX", number_of(reg));
    (void)TDL_SymbolS(x, y + 46, text, FONT, WHITE);
    if (br.kind != FMEM1_CLIP)
        return;
    PrintText(text, "%d / %d", 1 + FMCtrl_GetClipFrameIdx(clip_of(*row), is_sub),
              Fmem1_Registers(*row, is_sub));
    (void)TDL_SymbolS(x, y + 68, text, FONT, WHITE);
}

void Fmem1_DrawPictures(const Rect& area)
{
    const FMEM1ROW* const row = Fmem1_Chosen();
    (void)TDL_FillRectS(area.x1, area.y1, area.x2, area.y2, BLACK);
    for (int sub = 0; sub < 2; sub++) {
        const int y = area.y1 + sub * WELL_PITCH;
        draw_picture({area.x1, y, area.x1 + WELL_W - 1, y + WELL_H - 1}, row ? row->reg[sub] : -1);
        draw_texts(area.x1 + WELL_W + 10, y + 4, row, sub);
    }
}
