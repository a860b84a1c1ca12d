#include "pc_file_dual.h"
#include "a_ba.h"
#include "a_bt.h"
#include "a_ls.h"
#include "command.h"
#include "device.h"
#include "fmctrl.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "pc_file_side.h"
#include "pc_macro.h"
#include "pc_menu_macro.h"
#include "register.h"
#include "tally_value.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>
#include <string>
#include <unordered_set>

#include "safeguards.h"

#define SINGLE "LOCAL@File@Single@"
#define PATCH_LINK "File@Src Patch Link"

namespace
{
enum : int { SIDE_A = 0, SIDE_B = 1, SIDE_C = 0 }; // C has its page to itself
constexpr int CAPTION_SIZE = 40;
constexpr char FRAME_TITLE[] = "File Frame Memory";

// Of a kind: outlives the page.
struct Visits {
    bool is_begun = false; // until then the sides are those of the kind
    FileMemory a = {};
    FileMemory b = {};
    FileMemory c = {};
    FILEXFERLIST* list = nullptr; // being put together, or of the job that runs
    int folder_id = 0;            // of the frame memory: where that job's loads go
};

// What was left out of a transfer.
struct Skipped {
    bool is_locked = false;    // a region of the setup
    bool is_duplicate = false; // another register has the name
    bool is_full = false;      // no empty register
    bool is_beyond = false;    // the other list ends before
};

// Frame memory: where the next load goes, and the names that loads have.
struct FrameTargets {
    int empty[2] = {0, FMEM_EXTENDED}; // in either store the first that may be empty
    std::unordered_set<std::string> names;
};

// A touch of a button, by its command.
struct Touch {
    const char* command;
    void (*act)();
};
} // namespace

static Visits visits[FILEPAGES];

static struct {
    const FileKind* kind = nullptr; // null: no page of ours is open
    bool is_detail = false;
    int lock_pane = 0;   // asks whether the rest is to be loaded
    int delete_pane = 0; // asks whether to delete
    int from = SIDE_A;   // of what lock_pane asks about
    int to = SIDE_B;
    char patch_link[8] = "";                       // last tally
    char device_caption[FILE_SIDES][CAPTION_SIZE]; // the buttons show them from here
    char dir_caption[FILE_SIDES][CAPTION_SIZE];
} fd; // valid from create(1) to create(0)

static Visits& visit()
{
    return visits[fd.kind->page];
}

static FileMemory& memory_of(int side)
{
    return fd.is_detail ? visit().c : side == SIDE_A ? visit().a : visit().b;
}

static int list_of(int side)
{
    return side + 1;
}

// --- What the buttons show ---

static bool is_protected(const FILESIDE& side)
{
    return side.device != FILE_REGISTER && File_DirIsProtected(side.device, side.dir);
}

static bool is_frames()
{
    return fd.kind->way == FILEWAY_FRAME;
}

static bool is_register(int side)
{
    return memory_of(side).side.device == FILE_REGISTER;
}

// Nothing goes from the running system to itself, but from one of its folders to another, nor into
// a protected directory.
static bool may_transfer(int from, int to)
{
    const FileMemory& a = memory_of(from);
    const FileMemory& b = memory_of(to);
    if (is_register(from) && is_register(to))
        return fd.kind->has_folders && strcmp(a.folder, b.folder) != 0;
    return !is_protected(b.side);
}

static void load_save_copy_btn_grayout()
{
    BT_SetDisable(BTN_FILE_L_TO_R, !may_transfer(SIDE_A, SIDE_B));
    BT_SetDisable(BTN_FILE_R_TO_L, !may_transfer(SIDE_B, SIDE_A));
}

static void rename_delete_btn_grayout()
{
    const FILESIDE& c = memory_of(SIDE_C).side;
    const bool is_fixed =
        c.device == FILE_REGISTER ? !FileKind_HasCommands(*fd.kind) : is_protected(c);
    BT_SetDisable(BTN_FILE_RENAME, is_fixed);
    BT_SetDisable(BTN_FILE_DELETE, is_fixed);
    BT_SetDisable(BTN_FILE_EDIT, c.device != FILE_REGISTER);
}

static void show_side(int side)
{
    const FILESIDE& where = memory_of(side).side;
    const bool is_first = side == SIDE_A; // C has the places of A
    CopyText(fd.device_caption[side], File_DriveCaption(where.device));
    CopyText(fd.dir_caption[side], where.device == FILE_REGISTER ? "" : where.dir);
    const int dir = is_first ? BTN_FILE_DIR_A : BTN_FILE_DIR_B;
    (void)BT_SetCaption(is_first ? BTN_FILE_DEVICE_A : BTN_FILE_DEVICE_B, fd.device_caption[side]);
    (void)BT_SetCaption(dir, fd.dir_caption[side]);
    BT_SetDisable(dir, where.device == FILE_REGISTER);
    if (fd.is_detail)
        rename_delete_btn_grayout();
    else
        load_save_copy_btn_grayout();
}

static int sides_shown()
{
    return fd.is_detail ? 1 : FILE_SIDES;
}

static void refresh_all()
{
    for (int side = 0; side < sides_shown(); side++)
        FileSide_Refresh(side);
}

// --- Device and directory ---

static void side_chosen(int side)
{
    if (!fd.kind)
        return;
    show_side(side);
    FileSide_Refresh(side);
}

static void choose_device(int side)
{
    (void)FileSelect_Device(&memory_of(side).side, FILE_DRIVES_ALL, side_chosen, side);
}
static void choose_dir(int side)
{
    (void)FileSelect_Dir(&memory_of(side).side, side_chosen, side);
}
static void device_a_sel()
{
    choose_device(SIDE_A);
}
static void device_b_sel()
{
    choose_device(SIDE_B);
}
static void device_c_sel()
{
    choose_device(SIDE_C);
}
static void dir_a_sel()
{
    choose_dir(SIDE_A);
}
static void dir_b_sel()
{
    choose_dir(SIDE_B);
}
static void dir_c_sel()
{
    choose_dir(SIDE_C);
}

static void open_detail(int side)
{
    visit().c = memory_of(side);
    GL_CreatePage = fd.kind->id + 1;
}
static void detail_a_sel()
{
    open_detail(SIDE_A);
}
static void detail_b_sel()
{
    open_detail(SIDE_B);
}

// --- Transfers ---

static bool is_same_place(const FileMemory& a, const FileMemory& b)
{
    return a.side.device == b.side.device && strcmp(a.folder, b.folder) == 0 &&
           (a.side.device == FILE_REGISTER || strcmp(a.side.dir, b.side.dir) == 0);
}

// The row that a transfer begins with.
static int first_row(int side)
{
    const int row = LS_GetSelected(list_of(side), 0);
    return row >= 0 ? row : LS_GetNowLine(list_of(side));
}

// What was loaded stands in the default folder: "SWR001D001:Mlogo.FMEM_001.SFM".
static void move_loaded(const FILEXFERLIST* list, int folder_id)
{
    for (const FILEXFERLIST* item = list; item; item = item->next) {
        char name[FILE_PATH_SIZE];
        const char* const colon = strchr(item->dst, ':');
        if (item->status != FILESTATUS_OK || !colon || BeginsWith(item->dst, "MYHOST:"))
            continue;
        CopyText(name, colon + 1);
        for (int dots = 0; dots < 2; dots++)
            if (char* const dot = strrchr(name, '.'))
                *dot = '\0';
        FMCtrl_MoveStill(DEV_MySwr[0], name, folder_id);
    }
}

static void dual_result(uint32_t, int page)
{
    Visits& v = visits[page];
    xferlist_result_display(v.list);
    if (file_kinds[page].has_folders)
        move_loaded(v.list, v.folder_id);
    (void)BkgdFileTransfer_Set(file_kinds[page].id, 0);
    (void)PaneProgress_RestoreQuit();
    if (GL_NowPage != file_kinds[page].id)
        xferlist_errors_add(v.list);
    if (fd.kind == &file_kinds[page])
        refresh_all();
}
static void dual_a2b_result(uint32_t label, int page)
{
    dual_result(label, page);
}
static void dual_b2a_result(uint32_t label, int page)
{
    dual_result(label, page);
}

static void transfer_exec(int from, int to)
{
    Visits& v = visit();
    const int page = fd.kind->page;
    const bool is_save = FileSide_Where(from).device == FILE_REGISTER;
    const bool is_load = FileSide_Where(to).device == FILE_REGISTER;
    const FILE_LIST_FUNC result = from == SIDE_A ? dual_a2b_result : dual_b2a_result;
    if (!v.list)
        return;
    (void)BkgdFileTransfer_Set(fd.kind->id, 1);
    int label = -1;
    if (fd.kind->way == FILEWAY_MACRO)
        label = MM_File_ExecCopyList(&v.list, result, page, is_save || is_load);
    else if (!is_save && !is_load)
        label = File_ExecCopyList(&v.list, result, page);
    else if (fd.kind->way == FILEWAY_PLAIN || is_frames())
        label = File_ExecTransferList(&v.list, result, page);
    else if (is_save)
        label = File_TransSCPdirGetList(&v.list, result, page);
    else
        label = File_TransSCPdirPutList(&v.list, result, page);
    if (label < 0) {
        (void)BkgdFileTransfer_Set(fd.kind->id, 0);
        File_XferList_RemoveAll(&v.list);
    }
}

static int path_of(int side, const FILEINFO& info, char (&path)[FILE_PATH_SIZE])
{
    const FILESIDE& where = FileSide_Where(side);
    return is_frames() && where.device == FILE_REGISTER
               ? File_FrameName(info, path, sizeof path)
               : info2name(info, path, where.device, where.dir, sizeof path);
}

// -1 when the file has no name on one of the sides.
static int add_cell(int from, int to, const FILECELL& cell, int target_no)
{
    const FILESIDE& src = FileSide_Where(from);
    const FILESIDE& dst = FileSide_Where(to);
    char src_path[FILE_PATH_SIZE];
    char dst_path[FILE_PATH_SIZE];
    char target[32];
    FILEINFO info = FileSide_Info(from, cell, -1);
    if ((src.device == FILE_REGISTER ? path_of(from, info, src_path)
                                     : FileSide_Path(from, cell, src_path, sizeof src_path)) != 0)
        return -1;
    info.no = target_no;
    CopyText(info.folder, FileSide_Info(to, cell, -1).folder);
    if (path_of(to, info, dst_path) != 0)
        return -1;
    const bool is_save = src.device == FILE_REGISTER;
    const bool is_copy = !is_save && dst.device != FILE_REGISTER;
    if (is_copy || fd.kind->way != FILEWAY_RESERVED)
        return File_XferList_Add(&visit().list, src_path, dst_path);
    if (File_Target(is_save ? src_path : dst_path, target, sizeof target) != 0)
        return -1;
    return File_XferList_SCPAdd(&visit().list, src_path, dst_path,
                                PaneRegion_GetGrpCategoryStr(FileKind_Group(*fd.kind)), target);
}

// The register that a load goes to when rows are no numbers: the next one that is empty, of its own
// store when that is there. -1: none is.
static int next_empty(FrameTargets& t, const FILECELL& cell)
{
    const bool has_extended = FMCtrl2_IsExtendedCapacity() != 0;
    const int first = has_extended && cell.no >= FMEM_EXTENDED;
    for (int store : {first, 1 - first}) {
        const int index = store == 1 && !has_extended ? -1 : FMCtrl2_EmptyRegNo(t.empty[store]);
        if (index < 0)
            continue;
        t.empty[store] = index + 1;
        return index;
    }
    return -1;
}

static void add_frame_load(int from, int to, const FILECELL& cell, int no, FrameTargets& t,
                           Skipped& skipped)
{
    char name[FMEM_NAME_SIZE]; // that it will have
    fname2dispname(cell.name, name, sizeof name);
    const int had = FMCtrl2_GetRegIndex(name);
    if ((had >= 0 && (fd.kind->has_folders || had != no)) || !t.names.insert(name).second) {
        skipped.is_duplicate = true;
        return;
    }
    const int target = fd.kind->has_folders ? next_empty(t, cell) : no;
    if (target < 0)
        skipped.is_full = true;
    else
        (void)add_cell(from, to, cell, target); // what has no name there stays
}

static void add_row(int from, int to, const FILELIST& row, int no, FrameTargets& t,
                    Skipped& skipped)
{
    const bool is_load = is_register(to);
    for (const FILECELL* cell = row.cell; cell; cell = cell->next) {
        if (!FileSide_InView(*cell))
            continue;
        if (is_load && fd.kind->page == FILEPAGE_SETUP && File_IsSetupRegionLocked(cell->main))
            skipped.is_locked = true;
        else if (is_load && is_frames())
            add_frame_load(from, to, *cell, no, t, skipped);
        else
            (void)add_cell(from, to, *cell, fd.kind->has_folders ? cell->no : no);
    }
}

static const FILECELL* first_in_view(const FILELIST& row)
{
    const FILECELL* cell = row.cell;
    while (cell && !FileSide_InView(*cell))
        cell = cell->next;
    return cell;
}

// The selected rows of one side go to the other from its first selected row on, with the gaps that
// they have. Where rows are no numbers, all that is selected goes.
static Skipped gather(int from, int to)
{
    const int shift = first_row(to) - first_row(from);
    Skipped skipped;
    FrameTargets targets;
    for (int i = 0, no; (no = LS_GetSelected(list_of(from), i)) >= 0; i++) {
        const FILELIST* const row = FileSide_Row(from, no);
        if (!row || !first_in_view(*row))
            continue;
        if (fd.kind->has_folders || FileSide_Row(to, no + shift))
            add_row(from, to, *row, no + shift, targets, skipped);
        else
            skipped.is_beyond = true;
    }
    return skipped;
}

// From one folder of the running system to another.
static void move_selected(int from, int to)
{
    const int folder_id = FileSide_FolderId(to);
    for (int i = 0, no; (no = LS_GetSelected(list_of(from), i)) >= 0; i++) {
        const FILELIST* const row = FileSide_Row(from, no);
        if (row && row->cell && FileSide_InView(*row->cell))
            FMCtrl_MoveStill(DEV_MySwr[0], FMCtrl2_GetRegNameMulti(row->cell->no), folder_id);
    }
}

static void tell_skipped(const Skipped& skipped)
{
    if (skipped.is_beyond)
        PaneMessage_Create("File", PANE_ALERT,
                           "Some requests are skipped. \nThe target list ends before them.");
    if (skipped.is_full)
        PaneMessage_Create(FRAME_TITLE, PANE_ALERT,
                           "Some requests are skipped. \nThere is no empty register left.");
    if (skipped.is_duplicate)
        PaneMessage_Create(FRAME_TITLE, PANE_ALERT,
                           "Some requests are skipped. \nFollowing operation is not permitted.\n"
                           "  - Loading that will cause duplicate\n    register name.");
}

static void transfer_sel(int from, int to, const char* lock_question)
{
    if (visit().list)
        return; // the job of the page is still there
    if (!may_transfer(from, to))
        return;
    if (is_same_place(memory_of(from), memory_of(to)) &&
        (fd.kind->has_folders || first_row(from) == first_row(to)))
        return;
    if (is_register(from) && is_register(to)) {
        move_selected(from, to);
        return;
    }
    const Skipped skipped = gather(from, to);
    visit().folder_id = FileSide_FolderId(to);
    tell_skipped(skipped);
    if (!skipped.is_locked) {
        transfer_exec(from, to);
        return;
    }
    fd.from = from;
    fd.to = to;
    fd.lock_pane = PaneYesNo_Create("Load", PANE_ALERT, lock_question);
}

static void dual_a2b_sel()
{
    transfer_sel(SIDE_A, SIDE_B,
                 "There are some setup regions locked on\nMenu7317.2(File Load Lock).\n"
                 "Locked setup regions are not loaded.\n\nAre you sure");
}

// One line break less than the other way. That is meant: keep it.
static void dual_b2a_sel()
{
    transfer_sel(SIDE_B, SIDE_A,
                 "There are some setup regions locked on\nMenu7317.2(File Load Lock).\n"
                 "Locked setup regions are not loaded.\nAre you sure");
}

static void lock_answer(int result)
{
    constexpr int YES = 1;
    if (result == YES)
        transfer_exec(fd.from, fd.to);
    else
        File_XferList_RemoveAll(&visit().list);
}

static void patch_link_sel()
{
    (void)Net_SendCommandFormat("put " PATCH_LINK "#%s", Bool(!Same(fd.patch_link, "true")));
}

// --- Rename and delete ---

static void single_result(uint32_t, int page)
{
    if (fd.kind == &file_kinds[page])
        refresh_all();
}

// The bits of all cells of a row that are in view.
static uint64_t mask_of_row(const FILELIST& row)
{
    uint64_t mask = 0;
    for (const FILECELL* cell = row.cell; cell; cell = cell->next)
        if (FileSide_InView(*cell))
            mask |= FileKind_Mask(*fd.kind, cell->id);
    return mask;
}

static void single_rename_reg(const char* name)
{
    for (int i = 0, no; (no = LS_GetSelected(list_of(SIDE_C), i)) >= 0; i++)
        if (const FILELIST* const row = FileSide_Row(SIDE_C, no))
            FileKind_Rename(*fd.kind, mask_of_row(*row), no, name);
}

// The name that was entered, as the cell may have it. False: it may not.
static bool name_for(const FILECELL& cell, const char* entered, char (&name)[FILE_NAME_SIZE])
{
    CopyText(name, entered);
    const FILELIST* const first = FileSide_Row(SIDE_C, first_row(SIDE_C));
    return !is_frames() ||
           FileKind_FrameName(name, cell.name, first ? first->name : "", entered) == 0;
}

// Each name is there once, also among those that are being given.
static void rename_frames(const char* entered)
{
    std::unordered_set<std::string> given;
    bool is_clash = false;
    for (int i = 0, no; (no = LS_GetSelected(list_of(SIDE_C), i)) >= 0; i++) {
        const FILELIST* const row = FileSide_Row(SIDE_C, no);
        char name[FILE_NAME_SIZE];
        if (!row || !row->cell || !FileSide_InView(*row->cell) ||
            !name_for(*row->cell, entered, name) || strcmp(name, row->cell->name) == 0)
            continue;
        if (FMCtrl2_ExistRegName(name) || !given.insert(name).second)
            is_clash = true;
        else
            FileKind_Rename(*fd.kind, mask_of_row(*row), row->cell->no, name);
    }
    if (is_clash)
        PaneMessage_Create("Invalid Name", PANE_ALERT,
                           "This name is already existing.\nPlease enter other name.");
}

static void single_delete_reg()
{
    for (int i = 0, no; (no = LS_GetSelected(list_of(SIDE_C), i)) >= 0; i++) {
        const FILELIST* const row = FileSide_Row(SIDE_C, no);
        if (row && row->cell)
            FileKind_Delete(*fd.kind, mask_of_row(*row), row->cell->no);
    }
}

// Name of each selected file that is in view; a null name: as it is.
static void gather_files(const char* new_name)
{
    const FILESIDE& where = FileSide_Where(SIDE_C);
    for (int i = 0, no; (no = LS_GetSelected(list_of(SIDE_C), i)) >= 0; i++) {
        const FILELIST* const row = FileSide_Row(SIDE_C, no);
        for (const FILECELL* cell = row ? row->cell : nullptr; cell; cell = cell->next) {
            char old_path[FILE_PATH_SIZE];
            char new_path[FILE_PATH_SIZE] = "";
            FILEINFO info = FileSide_Info(SIDE_C, *cell, -1);
            if (!FileSide_InView(*cell) ||
                FileSide_Path(SIDE_C, *cell, old_path, sizeof old_path) != 0)
                continue;
            if (new_name) {
                if (!name_for(*cell, new_name, info.name) ||
                    info2name(info, new_path, where.device, where.dir, sizeof new_path) != 0 ||
                    strcmp(old_path, new_path) == 0)
                    continue;
            }
            (void)File_XferList_Add(&visit().list, old_path, new_path);
        }
    }
}

static int single_rename_exec(const char* text)
{
    char name[FILE_NAME_SIZE];
    CopyText(name, text);
    if (!fd.kind || !fd.is_detail)
        return -1;
    if (!StrFileName(name)) {
        PaneMessage_Create("Invalid Name", PANE_ALERT, "Empty...");
        return -1;
    }
    if (FileSide_Where(SIDE_C).device == FILE_REGISTER) {
        (is_frames() ? rename_frames : single_rename_reg)(name);
        return 0;
    }
    if (visit().list)
        return -1;
    gather_files(name);
    return File_ExecMoveList(&visit().list, single_result, fd.kind->page) < 0 ? -1 : 0;
}

static void single_rename_sel()
{
    const FILELIST* const row = FileSide_Row(SIDE_C, first_row(SIDE_C));
    if (row && row->type == FILEROW_FOLDER)
        return;
    const FILECELL* const cell = row ? first_in_view(*row) : nullptr;
    (void)CreateWindow(WINDOW_KEYBOARD, "Name",
                       {.value = cell ? cell->name : "", // whole: a row may show less of it
                        .input_max = FILE_NAME_SIZE - 1,
                        .ok_text = single_rename_exec});
}

static void single_delete_sel()
{
    if (visit().list)
        return;
    if (FileSide_Where(SIDE_C).device != FILE_REGISTER) {
        gather_files(nullptr);
        if (!visit().list)
            return;
    }
    fd.delete_pane = PaneYesNo_Create(
        "Delete", PANE_ALERT, "This operation will cause the data to be\ndeleted.\n\nContinue?");
}

static void delete_answer(int result)
{
    constexpr int YES = 1;
    if (result != YES)
        File_XferList_RemoveAll(&visit().list);
    else if (FileSide_Where(SIDE_C).device == FILE_REGISTER)
        single_delete_reg();
    else
        (void)File_ExecRemoveList(&visit().list, single_result, fd.kind->page);
}

// A row of the registers is a register, empty or not.
static void edit_sel(FILEPAGE page, int (*edit)(int number))
{
    const bool is_macro = fd.kind->page == page && fd.is_detail;
    if (!is_macro || FileSide_Where(SIDE_C).device != FILE_REGISTER)
        return;
    (void)edit(std::max(first_row(SIDE_C), 0) + 1);
}
static void offline_edit_sel()
{
    edit_sel(FILEPAGE_MACRO, Macro_OfflineEdit);
}
static void menu_macro_edit_sel()
{
    edit_sel(FILEPAGE_MENU_MACRO, MenuMacro_Edit);
}

// --- Messages ---

static constexpr Touch dual_touches[] = {
    {SINGLE "Device A", device_a_sel},
    {SINGLE "Device B", device_b_sel},
    {SINGLE "Dir A", dir_a_sel},
    {SINGLE "Dir B", dir_b_sel},
    {SINGLE "Detail A", detail_a_sel},
    {SINGLE "Detail B", detail_b_sel},
    {SINGLE "L to R", dual_a2b_sel},
    {SINGLE "R to L", dual_b2a_sel},
    {"LOCAL@File@All@Src Patch Link", patch_link_sel},
    {SINGLE "Device C", device_c_sel},
    {SINGLE "Dir C", dir_c_sel},
    {SINGLE "Rename", single_rename_sel},
    {SINGLE "Delete", single_delete_sel},
    {SINGLE "OfflineEdit", offline_edit_sel},
    {SINGLE "MenuMacroEdit", menu_macro_edit_sel},
};

static int button_pressed(const char* command)
{
    for (const Touch& touch : dual_touches) {
        if (strcmp(touch.command, command) != 0)
            continue;
        if (BkgdFileTransfer_Check(fd.kind->id))
            PaneMessage_Create("File", PANE_ALERT, FILE_INHIBITED);
        else
            touch.act();
        return 0;
    }
    return 0;
}

static int pane_closed(int pane, int result)
{
    if (pane == 0)
        return 0;
    if (pane == fd.lock_pane) {
        fd.lock_pane = 0;
        lock_answer(result); // an empty list is no job
    } else if (pane == fd.delete_pane) {
        fd.delete_pane = 0;
        delete_answer(result);
    }
    return 0;
}

static int regions_changed()
{
    for (int side = 0; side < sides_shown(); side++)
        FileSide_SetRegions(side);
    return 0;
}

static int list_touched(int list, int row)
{
    const int side = list - 1;
    FileSide_Touched(side, row);
    if (fd.kind->has_folders && side >= 0 && side < sides_shown())
        show_side(side); // another folder, other ways
    return 0;
}

static int list_flashed(int list)
{
    FileSide_Selected(list - 1);
    return 0;
}

static int frames_changed(int what)
{
    constexpr int THUMBNAIL = 1;
    if (what != THUMBNAIL)
        FileSide_FramesChanged();
    return 0;
}

static int take_tally(const char* path, const char* value)
{
    if (!Same(path, PATCH_LINK))
        return 0;
    CopyText(fd.patch_link, value);
    (void)BT_SetStatus(BTN_FILE_PATCH_LINK, Same(value, "true") ? BT_ON : BT_OFF);
    return 0;
}

static int file_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    if (!fd.kind || FileSelect_Proc(msg, ax, bx))
        return 0;
    switch (msg) {
    case LMSG_BTNSEL: return button_pressed(Text(ax));
    case LMSG_PANEQUIT: return pane_closed(int(ax), int(bx));
    case LMSG_PANEREGION: return regions_changed();
    case LMSG_LISTSEL: return list_touched(int(ax), int(bx));
    case LMSG_LISTFLASH: return list_flashed(int(ax));
    case LMSG_FMCTRLCHANGE: return frames_changed(int(bx));
    case LMSG_FOLDERNAMESENSE: return frames_changed(0);
    case MSG_REDRAW: FileSide_Pass(int(ax)); return 0;
    case LMSG_REGISTER: (void)FileSide_Registered(int(ax), int(cx)); return 0;
    case MSG_TALLY: return take_tally(Text(ax), Text(bx));
    default: return 0;
    }
}

// --- Opening and closing ---

static bool has_patch_link(const FileKind& kind)
{
    return kind.page == FILEPAGE_EFFECT || kind.page == FILEPAGE_EFFECT_EX;
}

static int leave()
{
    if (!fd.kind)
        return 0;
    if (fd.lock_pane || fd.delete_pane) // a question that nobody answers any more
        File_XferList_RemoveAll(&visit().list);
    if (!fd.is_detail && has_patch_link(*fd.kind))
        Net_SendCommand("remove " PATCH_LINK);
    Register_StatusReport(0);
    FileSelect_Close();
    FileSide_CloseAll();
    fd = {};
    return 0;
}

static void begin_visits(const FileKind& kind)
{
    Visits& v = visits[kind.page];
    if (v.is_begun)
        return;
    v.is_begun = true;
    v.a.side.device = kind.left;
    v.b.side.device = kind.right;
}

static int open(uint32_t page, bool is_detail)
{
    if (page >= FILEPAGES)
        return -1;
    fd = {.kind = &file_kinds[page], .is_detail = is_detail};
    begin_visits(*fd.kind);
    BA_SetRegionGrp(FileKind_Group(*fd.kind));
    if (is_frames() || fd.kind->page == FILEPAGE_FNAMEDATA)
        File_ShowFrameTabs();
    Register_StatusReport(1);
    if (!is_detail && has_patch_link(*fd.kind))
        Net_SendCommand("add " PATCH_LINK);
    for (int side = 0; side < sides_shown(); side++) {
        FileSide_Open(side, *fd.kind, &memory_of(side), is_detail);
        show_side(side);
    }
    if (BkgdFileTransfer_Check(fd.kind->id))
        (void)BkgdFileTransfer_PaneRestore();
    return 0;
}

static int dual_create(int on, uint32_t page)
{
    return on ? open(page, false) : leave();
}

static int detail_create(int on, uint32_t page)
{
    return on ? open(page, true) : leave();
}

const PC_TBL pc_file_dual = {file_proc, dual_create};
const PC_TBL pc_file_detail = {file_proc, detail_create};

void FileDual_Reset()
{
    for (Visits& v : visits) {
        File_XferList_RemoveAll(&v.list);
        v = {};
    }
    fd = {};
    FileSide_CloseAll();
}
