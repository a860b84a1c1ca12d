#include "pc_file_side.h"
#include "a_ls.h"
#include "file_newest.h"
#include "fmctrl.h"
#include "pane.h"
#include "text.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>

#include "safeguards.h"

namespace
{
// The registers of both stores of the frame memory. Rows times regions are less: 99 by 43 for the
// effects of a switcher with sub sides.
constexpr int CELLS_MAX = 2 * 5662;
constexpr int FOLDER_ROWS = 44;
constexpr int ROWS_MAX = FOLDER_ROWS + CELLS_MAX;
static_assert(ROWS_MAX <= LS_ROWS);
constexpr int ODD_MAX = 200; // files that are called a little otherwise than the panel calls them
constexpr int NOT_SEARCHING = 0;
constexpr char BEHIND_MARK[] = "       "; // where the list has the mark of a folder

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
    Place place[FILE_PLACES] = {};
    uint32_t search = NOT_SEARCHING; // label of the find whose rows belong here
    FILELIST row[ROWS_MAX] = {};
    FILECELL cell[CELLS_MAX] =
        {}; // of row r and place p at r * places + p; without an id it is free
    bool used[CELLS_MAX] = {};
    char no_text[ROWS_MAX][8] = {};
    char odd[ODD_MAX][PATH_SIZE] = {}; // with the host
    int odds = 0;

    // Of a kind with folders. Its cells stand one after the other, in the order of their rows.
    bool has_folder_rows = false;
    int pause_ms = 0;                          // until the list follows the catalogue again
    bool is_stale = false;                     // the catalogue has changed
    uint32_t folder_search = NOT_SEARCHING;    // label of the list of folders
    int folders = 0;                           // with the default one, which is the first
    char shown[64] = "";                       // whose rows these are
    bool was_selected[2 * FMEM_EXTENDED] = {}; // registers, while their rows are made anew
    int was_now = 0;                           // the first of them, -1 none
    int frames = 0;                            // cells in use
    char folder[FOLDER_ROWS][FRAME_FOLDER_SIZE] = {};
    char folder_text[FOLDER_ROWS][sizeof BEHIND_MARK + FRAME_FOLDER_SIZE] = {};
};
} // namespace

// All zeros, known to the compiler: else the start would fill four megabytes with them.
constinit static Side sides[FILE_SIDES] = {};

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
    if (row.type == FILEROW_FOLDER)
        return;
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
    s.cell[i].no = no;
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
    std::fill_n(s.row, s.rows, FILELIST{});
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

// --- Folders of the frame memory and what they hold ---

static bool has_folders(const Side& s)
{
    return s.kind->has_folders;
}

static bool is_drive(const Side& s)
{
    return s.memory->side.device != FILE_REGISTER;
}

// In which folder of a directory the side's files are; "" for a kind without folders.
static const char* folder_of(const Side& s)
{
    const char* const folder = s.memory->folder;
    return !has_folders(s) ? "" : *folder ? folder : FRAME_FOLDER_DEFAULT;
}

static int first_frame_row(const Side& s)
{
    return s.has_folder_rows ? s.folders : 0;
}

// A drive's default folder stands for the switcher's; what has no row is not open any more.
static int open_folder(const Side& s)
{
    for (int i = 1; i < s.folders; i++)
        if (strcmp(s.folder[i], s.memory->folder) == 0)
            return i;
    return 0;
}

static void add_folder(Side& s, const char* name)
{
    for (int i = 0; i < s.folders; i++)
        if (strcmp(s.folder[i], name) == 0)
            return;
    if (s.folders == FOLDER_ROWS || !*name || strlen(name) >= FRAME_FOLDER_SIZE)
        return;
    CopyText(s.folder[s.folders++], name);
}

// A drive offers the folders of the frame memory as well: it has one when something is saved there.
static void add_known_folders(Side& s)
{
    s.folders = 0;
    add_folder(s, is_drive(s) ? FRAME_FOLDER_DEFAULT : "Default."); // before it is told
    for (int row = 1; row < FMCtrl_GetFolderNum(); row++)
        add_folder(s, FMCtrl_GetFolder(row)->name);
}

static bool stands_before(const FILECELL& a, const FILECELL& b)
{
    return a.no != b.no ? a.no < b.no : strcmp(a.name, b.name) < 0;
}

// Before the cells are filled anew. What was selected elsewhere is not selected here.
static void note_selection(Side& s)
{
    char shown[sizeof s.shown];
    const int id = list_id(s);
    const FileMemory& m = *s.memory;
    PrintText(shown, "%d/%s/%s", m.side.device, m.side.dir, m.folder);
    const bool is_same = strcmp(shown, s.shown) == 0;
    CopyText(s.shown, shown);
    std::fill_n(s.was_selected, std::size(s.was_selected), false);
    s.was_now = -1;
    for (int i = 0, no; is_same && (no = LS_GetSelected(id, i)) >= 0 && no < s.rows; i++)
        if (const FILECELL* const cell = s.row[no].cell) {
            s.was_selected[cell->no] = true;
            s.was_now = s.was_now < 0 ? cell->no : s.was_now;
        }
}

static void restore_selection(const Side& s)
{
    const int id = list_id(s);
    int line = s.has_folder_rows ? open_folder(s) : 0;
    for (int no = first_frame_row(s); no < s.rows; no++)
        if (s.row[no].cell->no == s.was_now)
            line = no;
    const int top = LS_GetTopLine(id);
    for (int no = 0; LS_GetMS(id) == 1 && no < s.rows; no++) // takes the cursor and the view along
        (void)LS_SetSelected(id, no, 0, s.row[no].cell && s.was_selected[s.row[no].cell->no]);
    (void)LS_SetNowLine(id, line);
    (void)LS_SetTopLine(id, top);
}

static void show_folder_rows(Side& s)
{
    enum : int { MARK_FOLDER = 1, MARK_OPEN = 2 };
    const int id = list_id(s);
    for (int no = 0; no < first_frame_row(s); no++) {
        s.row[no] = {.type = FILEROW_FOLDER};
        CopyText(s.row[no].name, s.folder[no]);
        PrintText(s.folder_text[no], "%s%s", BEHIND_MARK, s.folder[no]);
        (void)LS_SetData(id, no, COL_NO, "");
        (void)LS_SetData(id, no, COL_NAME, s.folder_text[no]);
        (void)LS_SetData(id, no, COL_TIME, "");
        for (int main = 0; s.has_regions && main < PaneRegion_GetMainMax(s.grp); main++)
            (void)LS_SetData(id, no, COL_REGIONS + main, "");
        (void)LS_SetHStatus(id, no, 0);
        (void)LS_SetDataFolder(id, no, no == open_folder(s) ? MARK_OPEN : MARK_FOLDER,
                               int(&s - sides));
    }
}

static void show_frame_row(Side& s, int no, FILECELL& cell)
{
    const int id = list_id(s);
    const bool is_extended = cell.no >= FMEM_EXTENDED;
    s.row[no] = {.is_ancillary = cell.is_ancillary, .cell = &cell};
    PrintText(s.no_text[no], is_extended ? "X%d" : "%d",
              cell.no % FMEM_EXTENDED + File_FirstNumber(s.grp));
    (void)LS_SetData(id, no, COL_NO, s.no_text[no]);
    (void)LS_SetData(id, no, COL_NAME, s.row[no].name);
    (void)LS_SetData(id, no, COL_TIME, s.row[no].time);
    (void)LS_SetDataFolder(id, no, 0, int(&s - sides));
    list_setdata(s, no);
}

static void show_frames(Side& s)
{
    std::sort(s.cell, s.cell + s.frames, stands_before);
    const int first = first_frame_row(s);
    s.rows = first + s.frames;
    show_folder_rows(s);
    for (int i = 0; i < s.frames; i++)
        show_frame_row(s, first + i, s.cell[i]);
    (void)LS_SetNData(list_id(s), s.rows);
    restore_selection(s);
    (void)LS_RedrawData(list_id(s));
}

static void add_frame(Side& s, FILECELL cell)
{
    const int p = place_of(s, cell.main, cell.sub);
    if (p < 0 || s.frames == CELLS_MAX)
        return;
    cell.id = s.place[p].id;
    cell.disable = s.place[p].disable;
    cell.next = nullptr;
    s.cell[s.frames++] = cell;
}

static void take_store(Side& s, int first)
{
    const int folder_id = FileSide_FolderId(int(&s - sides));
    for (int index = first; index < first + SYS_FmemRegMax; index++) {
        FILECELL cell = {.no = index};
        if (FMCtrl_GetRegFolderId(index) != folder_id ||
            FileKind_Register(*s.kind, s.place[0].id, index, cell.name, sizeof cell.name,
                              &cell.lock) != 0)
            continue;
        const char* const name = FMCtrl2_GetRegNameMulti(index);
        cell.is_ancillary = FMCtrl_DivClipName(name, nullptr, nullptr, 0, 0) == 0 &&
                            FMCtrl_GetStillAncillary(FMCtrl_GetStillIdx(name)) == 1;
        add_frame(s, cell);
    }
}

static void take_frames(Side& s)
{
    note_selection(s);
    add_known_folders(s);
    s.frames = 0;
    if (s.places > 0)
        take_store(s, 0);
    if (s.places > 0 && FMCtrl2_IsExtendedCapacity())
        take_store(s, FMEM_EXTENDED);
    show_frames(s);
}

static int by_name(const void* a, const void* b)
{
    return strcmp(static_cast<const char*>(a), static_cast<const char*>(b));
}

static void found_folder(uint32_t label, int tag, const char* path, const char* const*)
{
    if (!is_side(tag) || sides[tag].folder_search != label)
        return;
    Side& s = sides[tag];
    if (!path) {
        s.folder_search = NOT_SEARCHING;
        qsort(s.folder[1], size_t(s.folders - 1), sizeof s.folder[1], by_name);
        if (*s.memory->folder && open_folder(s) == 0) { // this drive has none of that name
            s.memory->folder[0] = '\0';
            FileSide_Refresh(tag);
            return;
        }
        show_frames(s);
        return;
    }
    const char* const slash = strrchr(path, '/');
    const char* const name = slash ? slash + 1 : path;
    if (*name != '.')
        add_folder(s, name);
}

// --- A drive ---

// Of a file from elsewhere a name may be too long for a register, or have a character that is
// replaced. What a list shows must be found again: its path is kept. -1: there is no room, or it
// does not lie where the files of the side are.
static int odd_path(Side& s, const FILEINFO& info, const char* path)
{
    static constexpr char host[] = "MYHOST:";
    char rebuilt[FILE_PATH_SIZE];
    char root[PATH_SIZE];
    const FILESIDE& where = s.memory->side;
    const char* const local = BeginsWith(path, host) ? path + sizeof host - 1 : path;
    if (info2name(info, rebuilt, where.device, where.dir, sizeof rebuilt) != 0)
        return -1;
    if (strcmp(BeginsWith(rebuilt, host) ? rebuilt + sizeof host - 1 : rebuilt, local) == 0)
        return 0;
    const bool is_root = File_DirPath(root, sizeof root, where.device, where.dir);
    AppendText(root, "/");
    if (!is_root || !BeginsWith(root, host) || !BeginsWith(local, root + sizeof host - 1))
        return 0; // told in a way of the server's own
    if (strstr(local, "/../") || strchr(local, ',') || s.odds == ODD_MAX ||
        PrintText(s.odd[s.odds], "%s%s", host, local) >= PATH_SIZE)
        return -1;
    return ++s.odds;
}

static void found_frame(Side& s, const FILEINFO& info, const char* time, int odd)
{
    constexpr size_t DAY = 11; // "Nov.25.2026": the column has no room for more
    FILECELL cell = {.main = info.main,
                     .sub = info.sub,
                     .no = info.no,
                     .device = info.device,
                     .board = info.device >= FILE_WHOLE_ID,
                     .is_ancillary = info.is_ancillary,
                     .odd = odd};
    CopyText(cell.name, info.name);
    strncpy_secu(cell.time, time, sizeof cell.time, DAY);
    add_frame(s, cell);
}

static void found_register(Side& s, const FILEINFO& info, const char* time, int odd)
{
    const int p = place_of(s, info.main, info.sub);
    if (p < 0 || info.no >= s.rows)
        return;
    // A register that was saved twice, under two names: the list has what was saved last.
    const int i = info.no * s.places + p;
    if (s.used[i] && FileNewest_Minute(time) < FileNewest_Minute(s.cell[i].time))
        return;
    FILECELL cell = {.device = info.device, .board = info.device >= FILE_WHOLE_ID, .odd = odd};
    CopyText(cell.name, info.name);
    CopyText(cell.time, time);
    cell_add(s, info.no, p, cell);
    link_row(s, info.no);
    list_setdata(s, info.no);
}

static void find_tly(uint32_t label, int tag, const char* path, const char* const* pair)
{
    if (!is_side(tag) || sides[tag].search != label)
        return; // the page has gone on
    Side& s = sides[tag];
    if (!path) {
        s.search = NOT_SEARCHING;
        if (has_folders(s))
            show_frames(s);
        return;
    }
    FILEINFO info = {.grp = s.grp};
    if (name2info(path, &info) != 0)
        return;
    CopyText(info.folder, folder_of(s));
    const int odd = odd_path(s, info, path);
    if (odd >= 0)
        (has_folders(s) ? found_frame : found_register)(s, info, pair && pair[1] ? pair[1] : "",
                                                        odd);
}

// Nobody waits for its rows any more, and a server that never answers keeps no job alive.
static void forget(uint32_t* search)
{
    if (*search != NOT_SEARCHING)
        (void)File_ExecUSBReload_cancel(*search); // -1: it has ended meanwhile
    *search = NOT_SEARCHING;
}

static void forget_search(Side& s)
{
    forget(&s.search);
    forget(&s.folder_search);
}

static void search(Side& s, const char* path)
{
    s.odds = 0;
    const int label = File_ExecFind(path, "*.*.*", find_tly, int(&s - sides));
    if (label > 0)
        s.search = uint32_t(label);
}

static void search_frames(Side& s)
{
    char path[PATH_SIZE];
    const FILESIDE& where = s.memory->side;
    note_selection(s);
    add_known_folders(s);
    s.frames = 0;
    show_frames(s);
    if (!File_FrameFolderPath(path, sizeof path, where.device, where.dir, ""))
        return;
    const int label = File_ExecListDir(path, found_folder, int(&s - sides));
    if (label > 0)
        s.folder_search = uint32_t(label);
    const char* const folder = *s.memory->folder ? s.memory->folder : FRAME_FOLDER_DEFAULT;
    if (File_FrameFolderPath(path, sizeof path, where.device, where.dir, folder))
        search(s, path);
}

void FileSide_Refresh(int n)
{
    if (!is_side(n))
        return;
    Side& s = sides[n];
    forget_search(s);
    if (has_folders(s)) {
        (is_drive(s) ? search_frames : take_frames)(s);
        return;
    }
    list_init(s);
    const FILESIDE& where = s.memory->side;
    if (where.device == FILE_REGISTER) {
        for (int no = 0; no < s.rows; no++)
            take_register(s, no);
        return;
    }
    char path[PATH_SIZE];
    if (File_CategoryPath(path, sizeof path, where.device, where.dir,
                          PaneRegion_GetGrpCategoryStr(s.grp)))
        search(s, path);
}

int FileSide_Registered(int kind, int no)
{
    int shown = 0;
    for (Side& s : sides) {
        if (!s.kind || FileKind_Mirror(*s.kind) != kind || s.memory->side.device != FILE_REGISTER ||
            no < 0 || no >= s.rows)
            continue;
        take_register(s, no);
        shown = 1;
    }
    return shown;
}

void FileSide_FramesChanged()
{
    for (Side& s : sides)
        s.is_stale |= s.kind && s.kind->way == FILEWAY_FRAME && !is_drive(s);
}

// A store that tells all its registers changes thousands of times a second, and its list takes some
// milliseconds: one side a pass, and not in every one.
void FileSide_Pass(int elapsed_ms)
{
    constexpr int PAUSE_MS = 100;
    for (Side& s : sides)
        s.pause_ms = std::max(0, s.pause_ms - elapsed_ms);
    for (Side& s : sides) {
        if (!s.kind || !s.is_stale || s.pause_ms > 0)
            continue;
        s.is_stale = false;
        s.pause_ms = PAUSE_MS;
        if (has_folders(s))
            take_frames(s);
        for (int no = 0; !has_folders(s) && no < s.rows; no++)
            take_register(s, no);
        return;
    }
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
        for (int no = 0; !has_folders(s) && no < s.rows; no++)
            s.cell[no * s.places + p].disable = s.place[p].disable;
    }
    for (int i = 0; has_folders(s) && i < s.frames; i++)
        s.cell[i].disable = !PaneRegion_IsSelected(s.grp, s.cell[i].id);
    list_setalldata(s);
}

// --- Opening and closing ---

static void restore_list(const Side& s)
{
    const int id = list_id(s);
    const FileMemory& m = *s.memory;
    (void)LS_SetNData(id, s.rows);
    if (has_folders(s)) { // its rows are yet to come
        (void)LS_SetMS(id, m.is_plural);
        return;
    }
    if (!m.is_known) {
        (void)LS_SetNowLine(id, 0);
        return;
    }
    (void)LS_SetMS(id, m.is_plural);
    for (int no = 0; no < s.rows; no++) // takes the cursor and the view along
        if (m.is_plural || m.selected[no])
            (void)LS_SetSelected(id, no, 0, m.selected[no]);
    (void)LS_SetNowLine(id, m.now);
    (void)LS_SetTopLine(id, m.top);
}

void FileSide_Open(int n, const FileKind& kind, FileMemory* memory, bool has_regions,
                   bool has_folder_rows)
{
    Side& s = sides[n];
    forget_search(s);
    s.kind = &kind;
    s.grp = FileKind_Group(kind);
    s.memory = memory;
    s.has_regions = has_regions;
    s.has_folder_rows = has_folder_rows;
    s.pause_ms = 0;
    s.shown[0] = '\0';
    s.is_stale = false;
    s.frames = 0;
    s.rows = s.grp < FILE_GROUPS && !has_folders(s) ? std::min(RegisterNum[s.grp], FILE_ROWS) : 0;
    gather_places(s);
    const int id = list_id(s);
    // Files of menu macros count from 0; the operator knows the registers from 1.
    const int first = kind.way == FILEWAY_MACRO ? 1 : File_FirstNumber(s.grp);
    for (int no = 0; no < s.rows; no++) {
        PrintText(s.no_text[no], "%d", no + first);
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
    for (int i = 0, no; (no = LS_GetSelected(id, i)) >= 0 && no < std::min(s.rows, FILE_ROWS); i++)
        m.selected[no] = true;
}

void FileSide_Touched(int n, int row)
{
    FileSide_Selected(n);
    const FILELIST* const touched = FileSide_Row(n, row);
    if (!touched || touched->type != FILEROW_FOLDER)
        return;
    Side& s = sides[n];
    CopyText(s.memory->folder, row == 0 ? "" : touched->name);
    FileSide_Refresh(n);
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
    info.no = no >= 0 ? no : cell.no;
    info.is_ancillary = cell.is_ancillary;
    CopyText(info.name, cell.name);
    CopyText(info.folder, folder_of(s));
    return info;
}

int FileSide_Path(int n, const FILECELL& cell, char* path, int size)
{
    const Side& s = sides[n];
    const FILESIDE& where = s.memory->side;
    if (cell.odd == 0)
        return info2name(FileSide_Info(n, cell, -1), path, where.device, where.dir, size);
    ktr_strncpy(path, s.odd[cell.odd - 1], size_t(size));
    return 0;
}

int FileSide_FolderId(int n)
{
    if (!is_side(n) || !*sides[n].memory->folder)
        return 0;
    for (int row = 1; row < FMCtrl_GetFolderNum(); row++)
        if (strcmp(FMCtrl_GetFolder(row)->name, sides[n].memory->folder) == 0)
            return FMCtrl_GetFolderId(row);
    return 0;
}
