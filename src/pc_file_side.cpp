#include "pc_file_side.h"
#include "a_ls.h"
#include "pane.h"
#include "text.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

namespace
{
// Rows times regions: 99 by 43 for the effects of a switcher with sub sides.
constexpr int CELLS_MAX = 4400;
constexpr int NOT_SEARCHING = 0;

struct Place {
    int main = 0;
    int sub = 0;
    int id = 0;
    int disable = 0; // not selected
};

struct Side {
    const FileKind* kind = nullptr; // null: not open
    int grp = 0;
    FileMemory* memory = nullptr;
    bool has_regions = false;
    int rows = 0;
    int places = 0;
    Place place[FILE_PLACES];
    uint32_t search = NOT_SEARCHING; // label of the find whose rows belong here
    FILELIST row[FILE_ROWS];
    FILECELL cell[CELLS_MAX]; // of row r and place p at r * places + p; without an id it is free
    bool used[CELLS_MAX];
    char no_text[FILE_ROWS][8];
};
} // namespace

static Side sides[FILE_SIDES];

static int list_id(const Side& s)
{
    return int(&s - sides) + 1;
}

static bool is_side(int n)
{
    return n >= 0 && n < FILE_SIDES && sides[n].kind;
}

// --- The list ---

static void show_regions(const Side& s, int no)
{
    for (int main = 0; main < PaneRegion_GetMainMax(s.grp); main++) {
        bool has = false;
        for (const FILECELL* c = s.row[no].cell; c; c = c->next)
            has |= c->main == main && FileSide_InView(*c);
        (void)LS_SetData(list_id(s), no, COL_REGIONS + main, has ? "O" : "");
    }
}

// The row shows its first cell in view; a row without one is grey.
static void list_setdata(Side& s, int no)
{
    enum : int { CLASS_NORMAL = 0, CLASS_GREY = 1 };
    FILELIST& row = s.row[no];
    const FILECELL* c = row.cell;
    while (c && !FileSide_InView(*c))
        c = c->next;
    CopyText(row.name, c ? c->name : "");
    CopyText(row.time, c ? c->time : "");
    row.board = c ? c->board : 0;
    const int id = list_id(s);
    (void)LS_SetHStatus(id, no, c ? CLASS_NORMAL : CLASS_GREY);
    if (s.has_regions)
        show_regions(s, no);
    (void)LS_RedrawData(id);
}

static void list_setalldata(Side& s)
{
    for (int no = 0; no < s.rows; no++)
        list_setdata(s, no);
}

// --- Rows and cells ---

static int place_of(const Side& s, int main, int sub)
{
    for (int p = 0; p < s.places; p++)
        if (s.place[p].main == main && s.place[p].sub == sub)
            return p;
    return -1;
}

// The cells of a row stand in the order of the region table.
static void link_row(Side& s, int no)
{
    FILECELL** link = &s.row[no].cell;
    for (int p = 0; p < s.places; p++) {
        const int i = no * s.places + p;
        if (!s.used[i])
            continue;
        *link = &s.cell[i];
        link = &s.cell[i].next;
    }
    *link = nullptr;
}

static void cell_add(Side& s, int no, int p, const FILECELL& cell)
{
    const int i = no * s.places + p;
    s.cell[i] = cell;
    s.cell[i].main = s.place[p].main;
    s.cell[i].sub = s.place[p].sub;
    s.cell[i].id = s.place[p].id;
    s.cell[i].disable = s.place[p].disable;
    s.used[i] = true;
}

static void cell_remove(Side& s, int no, int p)
{
    s.used[no * s.places + p] = false;
}

static void list_init(Side& s)
{
    std::fill_n(s.used, CELLS_MAX, false);
    for (FILELIST& row : s.row)
        row = {};
    list_setalldata(s);
}

// --- The running system ---

static void take_register(Side& s, int no)
{
    for (int p = 0; p < s.places; p++) {
        FILECELL cell;
        if (FileKind_Register(*s.kind, s.place[p].id, no, cell.name, sizeof cell.name,
                              &cell.lock) == 0)
            cell_add(s, no, p, cell);
        else
            cell_remove(s, no, p);
    }
    link_row(s, no);
    list_setdata(s, no);
}

// --- A drive ---

static void find_tly(uint32_t label, int tag, const char* path, const char* const* pair)
{
    if (!is_side(tag) || sides[tag].search != label)
        return; // the page has gone on
    Side& s = sides[tag];
    if (!path) {
        s.search = NOT_SEARCHING;
        return;
    }
    FILEINFO info = {.grp = s.grp};
    if (name2info(path, &info) != 0)
        return;
    const int p = place_of(s, info.main, info.sub);
    if (p < 0 || info.no >= s.rows)
        return;
    FILECELL cell = {.device = info.device, .board = info.device >= FILE_WHOLE_ID};
    CopyText(cell.name, info.name);
    CopyText(cell.time, pair && pair[1] ? pair[1] : "");
    cell_add(s, info.no, p, cell);
    link_row(s, info.no);
    list_setdata(s, info.no);
}

// Nobody waits for its rows any more, and a server that never answers keeps no job alive.
static void forget_search(Side& s)
{
    if (s.search != NOT_SEARCHING)
        (void)File_ExecUSBReload_cancel(s.search); // -1: it has ended meanwhile
    s.search = NOT_SEARCHING;
}

void FileSide_Refresh(int n)
{
    if (!is_side(n))
        return;
    Side& s = sides[n];
    forget_search(s);
    list_init(s);
    const FILESIDE& where = s.memory->side;
    if (where.device == FILE_REGISTER) {
        for (int no = 0; no < s.rows; no++)
            take_register(s, no);
        return;
    }
    char path[PATH_SIZE];
    if (!File_CategoryPath(path, sizeof path, where.device, where.dir,
                           PaneRegion_GetGrpCategoryStr(s.grp)))
        return;
    const int label = File_ExecFind(path, "*.*.*", find_tly, n);
    if (label > 0)
        s.search = uint32_t(label);
}

int FileSide_Registered(int kind, int no)
{
    int shown = 0;
    for (Side& s : sides) {
        if (!s.kind || !s.kind->registers || s.kind->registers->kind != kind ||
            s.memory->side.device != FILE_REGISTER || no < 0 || no >= s.rows)
            continue;
        take_register(s, no);
        shown = 1;
    }
    return shown;
}

// --- Regions ---

static void gather_places(Side& s)
{
    s.places = 0;
    for (int main = 0; main < PaneRegion_GetMainMax(s.grp); main++)
        for (int sub = 0; *PaneRegion_GetGrpFIExt(s.grp, main, sub); sub++) {
            if (!File_HasRegion(s.grp, main, sub) || s.places == FILE_PLACES ||
                (s.places + 1) * s.rows > CELLS_MAX)
                continue;
            const int id = PaneRegion_GetGrpID(s.grp, main, sub);
            s.place[s.places++] = {main, sub, id, !PaneRegion_IsSelected(s.grp, id)};
        }
}

void FileSide_SetRegions(int n)
{
    if (!is_side(n))
        return;
    Side& s = sides[n];
    for (int p = 0; p < s.places; p++) {
        s.place[p].disable = !PaneRegion_IsSelected(s.grp, s.place[p].id);
        for (int no = 0; no < s.rows; no++)
            s.cell[no * s.places + p].disable = s.place[p].disable;
    }
    list_setalldata(s);
}

// --- Opening and closing ---

static void restore_list(const Side& s)
{
    const int id = list_id(s);
    const FileMemory& m = *s.memory;
    (void)LS_SetNData(id, s.rows);
    if (!m.is_known) {
        (void)LS_SetNowLine(id, 0);
        return;
    }
    (void)LS_SetMS(id, m.is_plural);
    (void)LS_SetNowLine(id, m.now);
    for (int no = 0; no < s.rows; no++)
        if (m.is_plural || m.selected[no])
            (void)LS_SetSelected(id, no, 0, m.selected[no]);
    (void)LS_SetTopLine(id, m.top);
}

void FileSide_Open(int n, const FileKind& kind, FileMemory* memory, bool has_regions)
{
    Side& s = sides[n];
    s.kind = &kind;
    s.grp = FileKind_Group(kind);
    s.memory = memory;
    s.has_regions = has_regions;
    s.rows = s.grp < FILE_GROUPS ? std::min(RegisterNum[s.grp], FILE_ROWS) : 0;
    forget_search(s);
    gather_places(s);
    const int id = list_id(s);
    for (int no = 0; no < s.rows; no++) {
        PrintText(s.no_text[no], "%d", no + File_FirstNumber(s.grp));
        (void)LS_SetData(id, no, COL_NO, s.no_text[no]);
        (void)LS_SetData(id, no, COL_NAME, s.row[no].name);
        (void)LS_SetData(id, no, COL_TIME, s.row[no].time);
    }
    for (int main = 0; has_regions && main < PaneRegion_GetMainMax(s.grp); main++)
        (void)LS_SetHeadStr(id, COL_REGIONS + main, PaneRegion_GetGrpName(s.grp, main));
    restore_list(s);
    FileSide_Refresh(n);
}

void FileSide_CloseAll()
{
    for (Side& s : sides) {
        s.kind = nullptr;
        forget_search(s);
    }
}

void FileSide_Selected(int n)
{
    if (!is_side(n))
        return;
    const Side& s = sides[n];
    FileMemory& m = *s.memory;
    const int id = list_id(s);
    m.is_known = true;
    m.top = LS_GetTopLine(id);
    m.now = LS_GetNowLine(id);
    m.is_plural = LS_GetMS(id) == 1;
    std::fill_n(m.selected, FILE_ROWS, false);
    for (int i = 0, no; (no = LS_GetSelected(id, i)) >= 0 && no < s.rows; i++)
        m.selected[no] = true;
}

// --- For what is done with the rows ---

const FILESIDE& FileSide_Where(int n)
{
    return sides[n].memory->side;
}

int FileSide_Rows(int n)
{
    return is_side(n) ? sides[n].rows : 0;
}

const FILELIST* FileSide_Row(int n, int no)
{
    return no >= 0 && no < FileSide_Rows(n) ? &sides[n].row[no] : nullptr;
}

FILEINFO FileSide_Info(int n, const FILECELL& cell, int no)
{
    const Side& s = sides[n];
    FILEINFO info = {.grp = s.grp, .main = cell.main, .sub = cell.sub, .device = cell.device};
    info.no = no >= 0 ? no : int(&cell - s.cell) / s.places;
    CopyText(info.name, cell.name);
    return info;
}

bool FileSide_IsBusy(int n)
{
    return is_side(n) && sides[n].search != NOT_SEARCHING;
}
