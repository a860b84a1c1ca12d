#include "pc_file_xport.h"
#include "a_ba.h"
#include "a_bt.h"
#include "a_fl.h"
#include "a_ls.h"
#include "device.h"
#include "file_scp.h"
#include "file_xport.h"
#include "global.h"
#include "memory.h"
#include "message.h"
#include "pane.h"
#include "pane_search.h"
#include "pc_file_side.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include <new>
#include <string>
#include <unordered_set>

#include "safeguards.h"

#define XPORT "LOCAL@File@XPort@"

static constexpr const char* SFH_CAPTION = "FrameMem\n(.SFH)";

namespace
{
enum : int { SIDE_A = 0 };
enum : int { LIST_A = 1, LIST_B = 2 };
enum : int { COL_CLIP_ICON, COL_CLIP_NAME, COL_CLIP_FRAMES }; // of a list that a_fl can fill
enum : int { COL_B_NAME, COL_B_TIME };                        // of pictures for the frame memory
constexpr int FILES_MAX = 4000;
constexpr int EXPORT_MAX = 12000; // frames of one job: each takes some memory until it has ended
constexpr int CAPTION_SIZE = 40;

// What a page has at the left, and where a job of it goes.
struct XportKind {
    XPORTPAGE page;
    uint32_t id;
    FILEPAGE frames; // kind of the left side; FILEPAGES: the clip store
    int (*import_list)(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
};

// The folders that a side can go to; the pane and the button show them from here.
struct FolderMenu {
    char name[FOLDER_MAX][ELEMENT_FOLDER_SIZE] = {};
    int names = 0;
    int pane = 0;
};

// Of a page: outlives it.
struct Visit {
    FileMemory a = {};
    FILESIDE b = {.device = FILE_REMOVABLE};
    XPORTTYPE type = XPORT_TIF;
    bool is_sfh = false; // clips in the store's own form stand there, not pictures
    int sfh_device = FL_DIRDATA_REMOVABLE_DRIVE;
    FILEXFERLIST* list = nullptr; // being put together, or of the job that runs
    int folder_id = 0;            // of the newer frame memory: where its images go
};

// What was left out of a job.
struct Skipped {
    bool is_work_area = false;
    bool is_duplicate = false;
    bool is_full = false;
    int frames = 0; // of the clips that were not
};

// The registers that an import may take, and the names that it gives.
struct Targets {
    int next = 0; // the first that may be empty; -1: none is left
    int end = 0;  // from here on the numbers are no operator's
    int reserved = 0;
    std::unordered_set<std::string> names;
};
} // namespace

static constexpr XportKind kinds[XPORTPAGES] = {
    {XPORTPAGE_FMEM, 0x71610100, FILEPAGE_FMEM, File_ExecFmImportList},
    {XPORTPAGE_FMEM_V6, 0x71610000, FILEPAGE_FMEM_V6, File_ExecFmImportList},
    {XPORTPAGE_CLIP, 0x71620000, FILEPAGES, File_ExecFmImportList2},
};
static_assert(kinds[XPORTPAGE_FMEM].page == XPORTPAGE_FMEM &&
              kinds[XPORTPAGE_FMEM_V6].page == XPORTPAGE_FMEM_V6 &&
              kinds[XPORTPAGE_CLIP].page == XPORTPAGE_CLIP);

static Visit visits[XPORTPAGES];

static struct {
    const XportKind* kind = nullptr;   // null: no page of ours is open
    uint32_t search[XPORT_PATTERNS]{}; // labels of those that run, 0 none
    XPORTFILE* found = nullptr;        // chain of what they have told
    int founds = 0;
    XPORTFILE* row[FILES_MAX]{}; // of the list, by name
    char frames[FILES_MAX][8]{}; // of the rows' clips
    int rows = 0;
    int type_pane = 0;
    int sfh_device_pane = 0;
    FolderMenu menu[FL_SIDES];
    char find_text[ELEMENT_NAME_SIZE]{};
    int touched = FL_L_LIST; // side that is searched: where a clip was touched last
    char folder_caption[ELEMENT_FOLDER_SIZE]{};
    char device_caption[CAPTION_SIZE]{};
    char dir_caption[CAPTION_SIZE]{};
} xp; // valid from create(1) to create(0)

static Visit& visit()
{
    return visits[xp.kind->page];
}

static bool is_clip_store()
{
    return xp.kind->frames == FILEPAGES;
}

// The right side shows clips of the store's own form: a_fl fills it.
static bool is_sfh()
{
    return is_clip_store() && visit().is_sfh;
}

static bool has_folders()
{
    return !is_clip_store() && file_kinds[xp.kind->frames].has_folders;
}

// "MYHOST:/.../NEWS/"; false without a directory.
static bool drive_folder(char (&path)[PATH_SIZE])
{
    const FILESIDE& b = visit().b;
    if (!File_DirPath(path, sizeof path, b.device, b.dir))
        return false;
    AppendText(path, "/");
    return true;
}

// --- The files at the right ---

static std::unordered_set<std::string> found_paths; // of xp.found

static void drop_files()
{
    (void)LS_SetNData(LIST_B, 0); // its texts go; -1: the list has gone already
    (void)LS_RedrawData(LIST_B);
    while (xp.found) {
        XPORTFILE* const next = xp.found->next;
        GDL_Free(xp.found);
        xp.found = next;
    }
    found_paths.clear();
    xp.rows = xp.founds = 0;
}

static void forget_searches()
{
    for (uint32_t& label : xp.search) {
        if (label != 0)
            (void)File_ExecUSBReload_cancel(label); // -1: it has ended meanwhile
        label = 0;
    }
}

// What a row says: of a clip its name, once for all its frames.
static const char* row_text(const XPORTFILE& file)
{
    return is_clip_store() && *file.clip ? file.clip : file.name;
}

static bool is_same_clip(const XPORTFILE& a, const XPORTFILE& b)
{
    const size_t folder = strlen(a.path) - strlen(a.name);
    return *a.clip && strcmp(a.clip, b.clip) == 0 && folder == strlen(b.path) - strlen(b.name) &&
           strncmp(a.path, b.path, folder) == 0;
}

static bool is_same_row(const XPORTFILE* a, const XPORTFILE* b)
{
    return is_clip_store() && is_same_clip(*a, *b);
}

static bool stands_before(const XPORTFILE* a, const XPORTFILE* b)
{
    const int order = strcmp(row_text(*a), row_text(*b));
    return order != 0 ? order < 0 : strcmp(a->path, b->path) < 0;
}

// Files of one clip become one row.
static void gather_rows(int files)
{
    int frames = 0;
    xp.rows = 0;
    for (int i = 0; i < files; i++) {
        if (xp.rows == 0 || !is_same_row(xp.row[xp.rows - 1], xp.row[i])) {
            xp.row[xp.rows++] = xp.row[i];
            frames = 0;
        }
        frames += !Xport_IsSub(xp.row[i]->name);
        PrintText(xp.frames[xp.rows - 1], "%d", frames);
    }
}

static void show_file(int row)
{
    if (!is_clip_store()) {
        (void)LS_SetData(LIST_B, row, COL_B_NAME, row_text(*xp.row[row]));
        (void)LS_SetData(LIST_B, row, COL_B_TIME, xp.row[row]->time);
        return;
    }
    (void)LS_SetData(LIST_B, row, COL_CLIP_ICON, "");
    (void)LS_SetData(LIST_B, row, COL_CLIP_NAME, row_text(*xp.row[row]));
    (void)LS_SetData(LIST_B, row, COL_CLIP_FRAMES, xp.frames[row]);
}

static void show_files()
{
    int n = 0;
    for (XPORTFILE* file = xp.found; file; file = file->next)
        xp.row[n++] = file;
    std::sort(xp.row, xp.row + n, stands_before);
    gather_rows(n);
    for (int i = 0; i < xp.rows; i++)
        show_file(i);
    (void)LS_SetNData(LIST_B, xp.rows);
    (void)LS_SetNowLine(LIST_B, std::min(LS_GetNowLine(LIST_B), std::max(0, xp.rows - 1)));
    (void)LS_RedrawData(LIST_B);
}

static void add_file(const char* path, const char* time)
{
    XPORTFILE read;
    if (xp.founds == FILES_MAX || !Xport_Read(&read, path, time) ||
        !found_paths.insert(read.path).second)
        return; // a server that ignores the case tells it in each search
    void* const room = GDL_Malloc(sizeof read);
    if (!room)
        return;
    xp.founds++;
    XPORTFILE* const file = new (room) XPORTFILE(read);
    file->next = xp.found;
    xp.found = file;
}

static void find_tly(uint32_t label, int pattern, const char* path, const char* const* pair)
{
    if (!xp.kind || xp.search[pattern] != label)
        return; // the page has gone on
    if (path) {
        add_file(path, pair && pair[1] ? pair[1] : "");
        return;
    }
    xp.search[pattern] = 0;
    if (std::count(std::begin(xp.search), std::end(xp.search), 0u) == XPORT_PATTERNS)
        show_files();
}

static void search_files()
{
    char path[PATH_SIZE];
    forget_searches();
    drop_files();
    if (is_sfh() || !drive_folder(path))
        return;
    for (int i = 0; i < XPORT_PATTERNS; i++) {
        const int label = File_ExecFind(path, xport_types[visit().type].patterns[i], find_tly, i);
        xp.search[i] = label > 0 ? uint32_t(label) : 0;
    }
}

// --- What the buttons show ---

// Images come from the stick and the network alone.
static bool may_import()
{
    if (is_sfh())
        return true; // as they were saved
    const int device = visit().b.device;
    return device == FILE_REMOVABLE || device == FILE_NETWORK;
}

// The root of a side and the folders down to the one that is shown.
static void note_folders(int id)
{
    FolderMenu& menu = xp.menu[id];
    if (menu.pane != 0)
        return; // it shows the names that it began with
    menu.names = 0;
    CopyText(menu.name[menu.names++], "Root");
    for (const char* part = FL_GetCurrentPath(id); *part == '/' && menu.names <= ELEMENT_DEPTH;) {
        const size_t length = strcspn(++part, "/");
        if (length > 0)
            strncpy_secu(menu.name[menu.names++], part, sizeof menu.name[0], length);
        part += length;
    }
}

static const char* open_folder(int id)
{
    note_folders(id);
    return xp.menu[id].name[xp.menu[id].names - 1];
}

static int sfh_drive()
{
    return FL_GetDevice(FL_R_LIST) == FL_DIRDATA_LOCAL_DRIVE ? FILE_LOCAL : FILE_REMOVABLE;
}

// The directory that the right side stands in; at the top none is protected.
static bool is_protected()
{
    const Visit& v = visit();
    if (!is_sfh())
        return File_DirIsProtected(v.b.device, v.b.dir);
    note_folders(FL_R_LIST);
    return xp.menu[FL_R_LIST].names > 1 &&
           File_DirIsProtected(sfh_drive(), xp.menu[FL_R_LIST].name[1]);
}

static void show_buttons()
{
    const Visit& v = visit();
    CopyText(xp.device_caption, File_DriveCaption(is_sfh() ? sfh_drive() : v.b.device));
    CopyText(xp.dir_caption, is_sfh() ? open_folder(FL_R_LIST) : v.b.dir);
    (void)BT_SetCaption(BTN_XPORT_DEVICE_B, xp.device_caption);
    (void)BT_SetCaption(BTN_XPORT_DIR_B, xp.dir_caption);
    (void)BT_SetCaption(BTN_XPORT_TYPE, is_sfh() ? SFH_CAPTION : xport_types[v.type].caption);
    if (has_folders()) {
        const int row = FMCtrl_GetIsFolderIdx(FileSide_FolderId(SIDE_A));
        const FOLDER* const folder = FMCtrl_GetFolder(row);
        CopyText(xp.folder_caption, folder && *folder->name ? folder->name : "Default.");
        (void)BT_SetCaption(BTN_XPORT_FOLDER_A, xp.folder_caption);
    }
    if (is_clip_store()) {
        CopyText(xp.folder_caption, open_folder(FL_L_LIST));
        (void)BT_SetCaption(BTN_XPORT_FOLDER_A, xp.folder_caption);
    }
    BT_SetDisable(BTN_XPORT_IMPORT, !may_import());
    BT_SetDisable(BTN_XPORT_EXPORT, is_protected());
}

static void side_chosen(int)
{
    if (!xp.kind)
        return;
    show_buttons();
    search_files();
}

// --- Folders of clips ---

static void folders_sel(int id)
{
    FolderMenu& menu = xp.menu[id];
    BTNSEL cells[FOLDER_MAX];
    note_folders(id);
    for (int row = 0; row < menu.names; row++)
        cells[row] = {row + 1, menu.name[row], row == menu.names - 1};
    menu.pane = PaneDirectory_Create_FolderPopup(menu.names, cells);
}

static void folders_chosen(int id, int choice)
{
    const FolderMenu& menu = xp.menu[id];
    char path[FL_PATH_SIZE] = "";
    for (int row = 1; row < choice && row < menu.names; row++) {
        AppendText(path, "/");
        AppendText(path, menu.name[row]);
    }
    if (choice >= 1)
        (void)FL_ChangeDirectory(id, *path ? path : "/"); // -1: it has gone meanwhile
    show_buttons();
}

// A folder opens by a touch, as those of the frame memory do.
static void clip_touched(int id, int row)
{
    const char* const icon = LS_GetData(id + 1, row, COL_CLIP_ICON);
    xp.touched = id;
    char name[ELEMENT_NAME_SIZE];
    CopyText(name, icon && *icon ? LS_GetData(id + 1, row, COL_CLIP_NAME) : "");
    if (*name)
        (void)FL_ChangeDirectory(id, name); // -1: it has gone meanwhile
}

// In the folder that is shown. A search goes on from behind the last hit; begin has nothing to take
// back: a text that is not there leaves the selection.
static void find_step(SEARCH_DIR dir)
{
    const int side = is_sfh() ? xp.touched : FL_L_LIST;
    (void)FL_Find(side, xp.find_text, dir == SEARCH_DIR_NEXT ? 1 : -1);
}

static void find_sel()
{
    (void)PaneSearch_Open({.text = &xp.find_text, .begin = [] {}, .step = find_step});
}

static void sfh_device_sel()
{
    const BTNSEL cells[] = {
        {FL_DIRDATA_LOCAL_DRIVE, File_DriveCaption(FILE_LOCAL), sfh_drive() == FILE_LOCAL},
        {FL_DIRDATA_REMOVABLE_DRIVE, File_DriveCaption(FILE_REMOVABLE),
         sfh_drive() == FILE_REMOVABLE}};
    xp.sfh_device_pane = PanePopup_Create(1, int(std::size(cells)), cells);
}

static void sfh_device_chosen(int device)
{
    if (device != FL_DIRDATA_LOCAL_DRIVE && device != FL_DIRDATA_REMOVABLE_DRIVE)
        return; // "Cancel"
    visit().sfh_device = device;
    (void)FL_list_init(FL_R_LIST, device);
    show_buttons();
}

// The right list is ours or a_fl's.
static void show_right()
{
    forget_searches();
    drop_files();
    if (is_clip_store())
        (void)FL_list_init(FL_R_LIST, is_sfh() ? visit().sfh_device : FL_DIRDATA_DEV_NON);
    if (!is_sfh() && is_clip_store())
        (void)LS_SetHeadStr(LIST_B, COL_CLIP_NAME, "Name");
    show_buttons();
    search_files();
}

// --- Device, directory, type ---

static void device_b_sel()
{
    if (is_sfh())
        sfh_device_sel();
    else
        (void)FileSelect_Device(&visit().b, FILE_DRIVES_DISK, side_chosen, 0);
}
static void dir_b_sel()
{
    if (is_sfh())
        folders_sel(FL_R_LIST);
    else
        (void)FileSelect_Dir(&visit().b, side_chosen, 0);
}

static void type_sel()
{
    constexpr int TYPES = XPORT_TYPES + 1;
    BTNSEL cells[TYPES];
    for (int i = 0; i < XPORT_TYPES; i++)
        cells[i] = {i + 1, xport_types[i].caption, !is_sfh() && i == visit().type};
    cells[XPORT_TYPES] = {TYPES, SFH_CAPTION, is_sfh()};
    xp.type_pane = PanePopup_Create(1, is_clip_store() ? TYPES : XPORT_TYPES, cells);
}

static void type_chosen(int id)
{
    if (id < 1 || id > XPORT_TYPES + is_clip_store())
        return; // "Cancel"
    visit().is_sfh = id > XPORT_TYPES;
    if (!visit().is_sfh)
        visit().type = XPORTTYPE(id - 1);
    show_right();
}

static void folder_a_sel()
{
    if (is_clip_store()) {
        folders_sel(FL_L_LIST);
        return;
    }
    FolderMenu& menu = xp.menu[FL_L_LIST];
    BTNSEL cells[FOLDER_MAX];
    const int rows = FMCtrl_GetFolderNum();
    const int open = FMCtrl_GetIsFolderIdx(FileSide_FolderId(SIDE_A));
    for (int row = 0; row < rows; row++) {
        CopyText(menu.name[row], FMCtrl_GetFolder(row)->name);
        cells[row] = {row + 1, menu.name[row], row == open};
    }
    if (rows > 0)
        menu.pane = PaneDirectory_Create_FolderPopup(rows, cells);
}

static void folder_chosen(int id)
{
    if (is_clip_store()) {
        folders_chosen(FL_L_LIST, id);
        return;
    }
    if (id < 1 || id > FOLDER_MAX)
        return; // "Cancel"
    CopyText(visit().a.folder, id == 1 ? "" : xp.menu[FL_L_LIST].name[id - 1]);
    FileSide_Refresh(SIDE_A);
    show_buttons();
}

// --- Import ---

static void tell_skipped(const char* title, const Skipped& skipped, bool is_all)
{
    char text[CMD_SIZE] = "";
    if (is_clip_store() && skipped.is_full)
        (void)PaneMessage_Create(title, PANE_ALERT,
                                 "Some requests are skipped. \nThere are too many frames.");
    else if (skipped.is_full)
        (void)PaneMessage_Create(title, PANE_ALERT,
                                 "Some requests are skipped. \nThere is no empty register left.");
    if (!skipped.is_work_area && !skipped.is_duplicate)
        return;
    PrintText(text,
              "%sFollowing operation is not permitted.\n  - Loading to WORK AREA.\n"
              "  - Loading that will cause duplicate\n    register name.",
              is_all ? "" : "Some requests are skipped. \n");
    (void)PaneMessage_Create(title, PANE_ALERT, text);
}

static void move_to_folder(const FILEXFERLIST* item, int folder_id)
{
    char name[FMEM_NAME_SIZE];
    Xport_RegisterName(name, item->src);
    for (const int number : item->import_no) {
        if (number > 0)
            FMCtrl_MoveStill(DEV_MySwr[0], name, folder_id);
        name[0] = name[0] == 'M' ? 'S' : 'M'; // the key of the picture
    }
}

static bool has_key_left_out(const FILEXFERLIST* list)
{
    while (list && list->import_no[1] != IMPORT_KEY_LEFT_OUT)
        list = list->next;
    return list != nullptr;
}

// What was given up half way must not be taken for the clip: a drive knows no more of it than its
// frames.
static void remove_incomplete(const FILEXFERLIST* list)
{
    char last[FILE_PATH_SIZE] = "";
    for (const FILEXFERLIST* item = list; item; item = item->next) {
        const char* const folder = strstr(item->dst, ".SFH/");
        if (!folder || !BeginsWith(item->dst, "MYHOST:") || item->status == FILESTATUS_OK ||
            strncmp(last, item->dst, size_t(folder - item->dst) + 4) == 0)
            continue;
        strncpy_secu(last, item->dst, sizeof last, size_t(folder - item->dst) + 4);
        (void)File_ExecRmdir(last, nullptr, 0); // a drive that has gone has no clip
    }
}

static void xport_result(uint32_t, int page)
{
    const Visit& v = visits[page];
    if (page == XPORTPAGE_CLIP)
        remove_incomplete(v.list);
    if (has_key_left_out(v.list))
        tell_skipped("Import", {.is_duplicate = true}, false);
    for (const FILEXFERLIST* item = v.list; page == XPORTPAGE_FMEM_V6 && item; item = item->next)
        if (item->status == FILESTATUS_OK)
            move_to_folder(item, v.folder_id);
    (void)BkgdFileTransfer_Set(kinds[page].id, 0);
    (void)PaneProgress_RestoreQuit();
    if (xp.kind != &kinds[page])
        return;
    search_files(); // the registers come by themselves
    if (is_sfh())
        FL_list_all_init();
}

// The next register that holds nothing and is an operator's; -1 when there is none.
static int next_register(Targets& t, Skipped& skipped)
{
    const int index = t.next < 0 ? -1 : FMCtrl2_EmptyRegNo(t.next);
    t.next = index < 0 ? -1 : index + 1;
    if (index >= t.end)
        skipped.is_work_area = true;
    return index >= t.end ? -1 : index;
}

// Its number in its store; -1 none.
static void give_register(Targets& t, int index)
{
    (void)File_ExecFmImportRegNoSet(index < 0 ? -1 : index % FMEM_EXTENDED, t.reserved++);
}

// Two registers, the second for the picture's key if it has one.
static bool reserve(Targets& t, Skipped& skipped, bool is_key_wanted)
{
    const Skipped before = skipped;
    const int first = next_register(t, skipped);
    if (first < 0) {
        skipped.is_full |= !skipped.is_work_area;
        return false;
    }
    give_register(t, first);
    if (is_key_wanted)
        give_register(t, next_register(t, skipped)); // -1: none for a key
    skipped.is_work_area = before.is_work_area;
    return t.reserved <= IMPORT_REGISTERS;
}

static int empty_registers(int first, int count)
{
    int n = 0;
    for (int index = first; index < first + count; index++)
        n += !FMCtrl2_IsRegStoreMulti(index);
    return n;
}

// The older frame memory: from the selected register on; the last ones are the switcher's own work
// area. The newer one: its main store, and the extended one for what the main store cannot take.
static Targets targets_of(int images, int* is_extended)
{
    Targets t;
    *is_extended = 0;
    if (!has_folders()) {
        t.next = std::max(0, LS_GetNowLine(LIST_A));
        t.end = RegisterNum[FileKind_Group(file_kinds[xp.kind->frames])];
        return t;
    }
    const int needed = 2 * images;
    if (FMCtrl2_IsExtendedCapacity() && empty_registers(0, SYS_FmemRegMax) < needed &&
        empty_registers(FMEM_EXTENDED, SYS_FmemRegMax) >= needed)
        *is_extended = 1;
    t.next = *is_extended ? FMEM_EXTENDED : 0;
    t.end = t.next + SYS_FmemRegMax;
    return t;
}

static int selected_files()
{
    int n = 0;
    while (LS_GetSelected(LIST_B, n) >= 0)
        n++;
    return n;
}

// The names that the selected files give.
static std::unordered_set<std::string> selected_names()
{
    std::unordered_set<std::string> names;
    for (int i = 0, row; (row = LS_GetSelected(LIST_B, i)) >= 0 && row < xp.rows; i++) {
        char name[FMEM_NAME_SIZE];
        Xport_RegisterName(name, xp.row[row]->path);
        names.insert(name);
    }
    return names;
}

// The key of a picture becomes the other side of its name, which must be free, too: what is there
// stays, and a file of its own for that side comes first.
static bool is_key_wanted(const char* path, const std::unordered_set<std::string>& names)
{
    char name[FMEM_NAME_SIZE];
    Xport_RegisterName(name, path);
    name[0] = name[0] == 'M' ? 'S' : 'M';
    return !FMCtrl2_ExistRegName(name) && !names.contains(name);
}

static Skipped gather_import()
{
    Skipped skipped;
    int is_extended = 0;
    const std::unordered_set<std::string> names = selected_names();
    Targets t = targets_of(selected_files(), &is_extended);
    for (int i = 0, row; (row = LS_GetSelected(LIST_B, i)) >= 0 && row < xp.rows; i++) {
        const char* const path = xp.row[row]->path;
        char name[FMEM_NAME_SIZE];
        Xport_RegisterName(name, path);
        if (FMCtrl2_ExistRegName(name) || t.names.contains(name)) {
            skipped.is_duplicate = true;
        } else if (reserve(t, skipped, is_key_wanted(path, names))) {
            t.names.insert(name);
            (void)File_XferList_ImportAdd(&visit().list, path, DEV_MySwr[0]->id, is_extended);
        }
    }
    for (FILEXFERLIST* item = visit().list; item; item = item->next)
        item->info = !is_key_wanted(item->src, names);
    File_ExecFmImportStartRegNoSet(1);
    return skipped;
}

// --- Import into the clip store, and export ---

// Where the store has what is called so in the folder that is shown; false when it does not fit.
static bool clip_place(char (&path)[PATH_SIZE], const char* name)
{
    const char* const folder = FL_GetCurrentPath(FL_L_LIST);
    return PrintText(path, "/vorn/tmp/file/FRAMEMEM/CS%d%s/%s", Device_UnitNumber(*DEV_MySwr[0]),
                     strcmp(folder, "/") == 0 ? "" : folder, name) < int(sizeof path);
}

// "/NEWS/OPENING" of a name in the folder that a side shows.
static bool clip_full_name(char (&path)[FL_PATH_SIZE], int id, const char* name)
{
    const char* const folder = FL_GetCurrentPath(id);
    return PrintText(path, "%s/%s", strcmp(folder, "/") == 0 ? "" : folder, name) <
           int(sizeof path);
}

// Companions travel with their main sides.
static std::unordered_set<std::string> companions; // valid while clips are gathered

static void note_companions()
{
    companions.clear();
    for (const XPORTFILE* file = xp.found; file; file = file->next)
        if (Xport_IsSub(file->path))
            companions.insert(file->path);
}

static bool has_companion(const XPORTFILE& file)
{
    return companions.count(std::string(file.path) + ".SUB") != 0;
}

static void add_clip_item(const XPORTFILE& file, const char* path, int frame, int frames)
{
    char dst[FILE_PATH_SIZE];
    char target[32];
    const int unit = Device_UnitNumber(*DEV_MySwr[0]);
    const bool is_frame = *file.clip != '\0';
    PrintText(target, "CS%d", unit);
    if (Xport_ClipPath(dst, sizeof dst, unit, path, is_frame ? file.clip : nullptr,
                       frames > 1 ? frame : -1))
        (void)File_XferList_ImportAdd2(&visit().list, file.path, dst, visit().type + 1,
                                       is_frame ? file.clip : "", frame, frames,
                                       has_companion(file), "FRAMEMEM", target);
}

static const XPORTFILE* clip_frame[FILES_MAX]; // of the clip that is being gathered

// What a file or clip is called in the store.
static void clip_name(char (&name)[sizeof XPORTFILE::name], const XPORTFILE& file)
{
    CopyText(name, *file.clip ? file.clip : file.name);
    if (!*file.clip)
        name[strcspn(name, ".")] = '\0';
}

// The frames of a clip in their order, numbered anew from 0; a still is one.
static void add_clip(const XPORTFILE& first, const char* path)
{
    int frames = 0;
    for (const XPORTFILE* file = xp.found; file; file = file->next)
        if (is_same_clip(first, *file) && !Xport_IsSub(file->path))
            clip_frame[frames++] = file;
    std::sort(clip_frame, clip_frame + frames, [](const XPORTFILE* a, const XPORTFILE* b) {
        return Xport_Frame(a->name) < Xport_Frame(b->name);
    });
    if (!*first.clip)
        add_clip_item(first, path, 0, 1);
    for (int i = 0; i < frames; i++)
        add_clip_item(*clip_frame[i], path, i, frames);
}

// What is there stays, and of two of a name the first is taken.
static Skipped gather_clips()
{
    Skipped skipped;
    std::unordered_set<std::string> names;
    note_companions();
    for (int i = 0, row; (row = LS_GetSelected(LIST_B, i)) >= 0 && row < xp.rows; i++) {
        const XPORTFILE& file = *xp.row[row];
        char name[sizeof file.name];
        char full_name[FL_PATH_SIZE];
        char path[PATH_SIZE];
        if (Xport_IsSub(file.path))
            continue;
        clip_name(name, file);
        if (!clip_full_name(full_name, FL_L_LIST, name) || !clip_place(path, name))
            continue; // no name that the store has
        if (FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_FILE, full_name) || !names.insert(name).second)
            skipped.is_duplicate = true;
        else
            add_clip(file, path);
    }
    companions.clear();
    return skipped;
}

// Where the right side's drive has a clip of the store's own form, or one of its frames.
static bool sfh_place(char (&path)[FILE_PATH_SIZE], const char* name, bool is_folder, int frame)
{
    char root[PATH_SIZE];
    char full_name[FL_PATH_SIZE];
    if (!File_Root(root, sizeof root, sfh_drive()) || !clip_full_name(full_name, FL_R_LIST, name))
        return false;
    return (is_folder ? PrintText(path, "%s%s.SFH/%s#%06d.SFH", root, full_name + 1, name, frame)
                      : PrintText(path, "%s%s.SFH", root, full_name + 1)) < int(sizeof path);
}

// The n-th selected row of a side that a_fl shows, by its name: rows and elements may be a pass
// apart. 0; 1: a folder, or no clip; -1: no more.
static int selected_clip(int id, int n, FF_OBJECT* clip)
{
    const int row = LS_GetSelected(id + 1, n);
    const char* const name = row >= 0 ? LS_GetData(id + 1, row, COL_CLIP_NAME) : nullptr;
    char full_name[FL_PATH_SIZE];
    if (row < 0)
        return -1;
    return !name || !clip_full_name(full_name, id, name) ||
           FL_GetFoundObject(id, full_name, OBJECT_TYPE_FILE, clip) != 0;
}

// Of a job that is put together: whether it can have that many frames more.
static bool has_room(Skipped& job, int frames)
{
    const bool is_full = job.frames + frames > EXPORT_MAX;
    job.is_full |= is_full;
    job.frames += is_full ? 0 : frames;
    return !is_full;
}

static bool is_on_side(int id, const char* name)
{
    char full_name[FL_PATH_SIZE];
    FF_OBJECT object;
    return clip_full_name(full_name, id, name) &&
           FL_GetFoundObject(id, full_name, OBJECT_TYPE_FILE, &object) == 0;
}

static void add_item(const char* store, const char* drive, const char* clip, int frame, int frames,
                     bool is_export)
{
    char target[32];
    PrintText(target, "CS%d", Device_UnitNumber(*DEV_MySwr[0]));
    (void)File_XferList_SCPAdd_FM(
        &visit().list, is_export ? store : drive, is_export ? drive : store, "FRAMEMEM", target,
        is_sfh() ? TRANS_FILETYPE_SFH : visit().type + 1, clip, frame, frames);
}

// A clip goes frame by frame: the store turns them into pictures one at a time.
static void add_clip_export(const char* name, int frames, const char* folder)
{
    const Visit& v = visit();
    const bool is_clip = frames > 1;
    char path[PATH_SIZE];
    char file[FILE_NAME_SIZE];
    CopyText(file, name);
    const bool is_fat = is_sfh() ? sfh_drive() == FILE_REMOVABLE : v.b.device == FILE_REMOVABLE;
    if (is_fat)
        (void)StrFatFileName(file); // an empty one is refused below
    if (!clip_place(path, name) || !*file)
        return;
    for (int frame = 0; frame < frames; frame++) {
        char src[FILE_PATH_SIZE];
        char dst[FILE_PATH_SIZE];
        if (!Xport_ClipPath(src, sizeof src, Device_UnitNumber(*DEV_MySwr[0]), path,
                            is_clip ? name : nullptr, frame))
            continue;
        if (is_sfh() ? sfh_place(dst, file, is_clip, frame)
                     : Xport_DrivePath(dst, sizeof dst, folder, file, v.type, is_clip ? frame : -1,
                                       false))
            add_item(src, dst, is_clip ? name : "", frame, frames, true);
    }
}

// A drive's clip is a folder, which is there before its first frame comes.
static void make_clip_folder(const char* name, int frames)
{
    char path[FILE_PATH_SIZE];
    if (frames <= 1 || !sfh_place(path, name, true, 0))
        return;
    *strrchr(path, '/') = '\0';
    (void)File_ExecMkdir(path, nullptr, 0); // the frames tell when it was none
}

static Skipped gather_clip_export(const char* folder)
{
    Skipped skipped;
    FF_OBJECT clip;
    for (int i = 0, result; (result = selected_clip(FL_L_LIST, i, &clip)) >= 0; i++) {
        const int more = std::max(1, clip.frame);
        if (result != 0)
            continue;
        if (is_sfh() && is_on_side(FL_R_LIST, clip.name)) {
            skipped.is_duplicate = true; // frames of both would be one clip
        } else if (has_room(skipped, more)) {
            if (is_sfh())
                make_clip_folder(clip.name, more);
            add_clip_export(clip.name, more, folder);
        }
    }
    return skipped;
}

static void add_sfh_import(const FF_OBJECT& clip, const char* path)
{
    char full_name[FL_PATH_SIZE];
    const bool is_folder =
        clip_full_name(full_name, FL_R_LIST, clip.name) && FL_IsClipFolder(FL_R_LIST, full_name);
    const int frames = std::max(1, clip.frame);
    for (int frame = 0; frame < frames; frame++) {
        char src[FILE_PATH_SIZE];
        char dst[FILE_PATH_SIZE];
        if (sfh_place(src, clip.name, is_folder, frame) &&
            Xport_ClipPath(dst, sizeof dst, Device_UnitNumber(*DEV_MySwr[0]), path,
                           frames > 1 ? clip.name : nullptr, frame))
            add_item(dst, src, frames > 1 ? clip.name : "", frame, frames, false);
    }
}

static Skipped gather_sfh_import()
{
    Skipped skipped;
    FF_OBJECT clip;
    for (int i = 0, result; (result = selected_clip(FL_R_LIST, i, &clip)) >= 0; i++) {
        char path[PATH_SIZE];
        if (result != 0 || !clip_place(path, clip.name))
            continue;
        const int more = std::max(1, clip.frame);
        if (is_on_side(FL_L_LIST, clip.name)) {
            skipped.is_duplicate = true;
        } else if (has_room(skipped, more)) {
            add_sfh_import(clip, path);
        }
    }
    return skipped;
}

// Give the gathered list to the engine.
static void start(int (*run)(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag))
{
    Visit& v = visit();
    (void)BkgdFileTransfer_Set(xp.kind->id, 1); // -1: the page has no transfer in the background
    if (v.list && run(&v.list, xport_result, xp.kind->page) >= 0)
        return;
    (void)BkgdFileTransfer_Set(xp.kind->id, 0);
    File_XferList_RemoveAll(&v.list);
}

static void import_sel()
{
    Visit& v = visit();
    if (v.list || !may_import() || !DEV_MySwr[0])
        return; // the job of the page is still there, or nothing to import into
    const Skipped skipped = is_sfh()          ? gather_sfh_import()
                            : is_clip_store() ? gather_clips()
                                              : gather_import();
    tell_skipped("Import", skipped, !v.list);
    v.folder_id = FileSide_FolderId(SIDE_A);
    start(is_sfh() ? File_TransSCPdirPutList_FM : xp.kind->import_list);
}

// --- Export ---

static void add_export(const FILECELL& cell, const char* folder)
{
    const bool is_sub = cell.name[0] == 'S';
    char src[FILE_PATH_SIZE];
    char dst[FILE_PATH_SIZE];
    char name[FILE_NAME_SIZE];
    FILEINFO info = FileSide_Info(SIDE_A, cell, -1);
    CopyText(name, cell.name[0] ? cell.name + 1 : "");
    if (visit().b.device == FILE_REMOVABLE)
        (void)StrFatFileName(name); // an empty one is refused below
    info.name[0] = '\0';
    if (*name && File_FrameName(info, src, sizeof src) == 0 &&
        Xport_DrivePath(dst, sizeof dst, folder, name, visit().type, -1, is_sub))
        (void)File_XferList_Add(&visit().list, src, dst);
}

static void gather_export(const char* folder)
{
    for (int i = 0, no; (no = LS_GetSelected(LIST_A, i)) >= 0; i++) {
        const FILELIST* const row = FileSide_Row(SIDE_A, no);
        if (row && row->cell && FileSide_InView(*row->cell))
            add_export(*row->cell, folder);
    }
}

static void export_sel()
{
    const Visit& v = visit();
    char folder[PATH_SIZE];
    if (v.list || !DEV_MySwr[0] || is_protected() || (!is_sfh() && !drive_folder(folder)))
        return;
    if (is_clip_store())
        tell_skipped("Export", gather_clip_export(folder), false);
    else
        gather_export(folder);
    start(is_sfh()          ? File_TransSCPdirGetList_FM
          : is_clip_store() ? File_ExecFmExportList2
                            : File_ExecFmExportList);
}

// --- Messages ---

static int button_pressed(const char* command)
{
    static constexpr struct {
        const char* command;
        void (*act)();
    } touches[] = {
        {XPORT "Import", import_sel},     {XPORT "Export", export_sel},
        {XPORT "File Type", type_sel},    {XPORT "Dir B", dir_b_sel},
        {XPORT "Device B", device_b_sel}, {XPORT "Fol A", folder_a_sel},
        {XPORT "Find", find_sel},
    };
    for (const auto& touch : touches)
        if (Same(touch.command, command))
            touch.act();
    return 0;
}

static int pane_closed(int pane, int result)
{
    if (pane == 0)
        return 0;
    const struct {
        int* pane;
        void (*take)(int result);
    } panes[] = {
        {&xp.type_pane, type_chosen},
        {&xp.sfh_device_pane, sfh_device_chosen},
        {&xp.menu[FL_L_LIST].pane, folder_chosen},
        {&xp.menu[FL_R_LIST].pane, [](int choice) { folders_chosen(FL_R_LIST, choice); }},
    };
    for (const auto& p : panes)
        if (pane == *p.pane) {
            *p.pane = 0;
            p.take(result);
            return 0;
        }
    return 0;
}

static int list_touched(int list, int row)
{
    if (list == LIST_B && is_sfh())
        clip_touched(FL_R_LIST, row);
    else if (list == LIST_A && is_clip_store())
        clip_touched(FL_L_LIST, row);
    else if (list == LIST_A)
        FileSide_Selected(SIDE_A);
    return 0;
}

static int list_flashed(int list)
{
    if (list == LIST_A && !is_clip_store())
        FileSide_Selected(SIDE_A);
    return 0;
}

static int frames_changed(int what)
{
    constexpr int THUMBNAIL = 1;
    if (what != THUMBNAIL)
        FileSide_FramesChanged();
    return 0;
}

static int folders_changed()
{
    FileSide_FramesChanged();
    show_buttons();
    return 0;
}

static int xport_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (!xp.kind || FileSelect_Proc(msg, ax, bx))
        return 0;
    switch (msg) {
    case LMSG_BTNSEL: return button_pressed(Text(ax));
    case LMSG_PANEBTNSEL: PaneSearch_Proc(msg, ax); return 0;
    case LMSG_PANEQUIT: PaneSearch_Proc(msg, ax); return pane_closed(int(ax), int(bx));
    case LMSG_PANEREGION: FileSide_SetRegions(SIDE_A); return 0;
    case LMSG_LISTSEL: return list_touched(int(ax), int(bx));
    case LMSG_LISTFLASH: return list_flashed(int(ax));
    case LMSG_FLCURDIRCHANGE: show_buttons(); return 0;
    case LMSG_FMCTRLCHANGE: return frames_changed(int(bx));
    case LMSG_FOLDERNAMESENSE: return folders_changed();
    case MSG_REDRAW: FileSide_Pass(int(ax)); return 0;
    default: return 0;
    }
}

// --- Opening and closing ---

static int leave()
{
    if (!xp.kind)
        return 0;
    PaneSearch_Close();
    FileSelect_Close();
    FileSide_CloseAll();
    forget_searches();
    drop_files();
    xp = {};
    return 0;
}

static int open(uint32_t page)
{
    if (page >= XPORTPAGES)
        return -1;
    xp = {};
    xp.kind = &kinds[page];
    if (!is_clip_store()) {
        const FileKind& frames = file_kinds[xp.kind->frames];
        BA_SetRegionGrp(FileKind_Group(frames));
        FileSide_Open(SIDE_A, frames, &visit().a, false, false);
    }
    show_right();
    if (BkgdFileTransfer_Check(xp.kind->id))
        (void)BkgdFileTransfer_PaneRestore();
    return 0;
}

static int xport_create(int on, uint32_t page)
{
    return on ? open(page) : leave();
}

const PC_TBL pc_file_xport = {xport_proc, xport_create};

void FileXport_Reset()
{
    (void)leave();
    for (Visit& v : visits) {
        File_XferList_RemoveAll(&v.list);
        v = {};
    }
}
