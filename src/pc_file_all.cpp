#include "pc_file_all.h"
#include "a_bt.h"
#include "file.h"
#include "file_newest.h"
#include "fmctrl.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "pc_file.h"
#include "pc_file_all_frames.h"
#include "process.h"
#include "tally_value.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>
#include <unistd.h>

#include "safeguards.h"

#define ALL "LOCAL@File@All@"
#define CLEAR_BEFORE_LOAD "Info@Operation Setup Data@Clear Before Load"

namespace
{
enum : int { SIDE_A, SIDE_B, SIDES };
enum : int { CLEAR_NO = 1, CLEAR_YES = 2 }; // of the tally
constexpr int MOD_FILE = 21;                // area of the log
constexpr int CAPTION_SIZE = 40;
constexpr int YES = 1;          // of a question
constexpr int CANCELLED = 1;    // of a progress pane
constexpr int STEP_FILES = 250; // gathered in one pass; a step more may go past it
constexpr char INHIBITED[] = "Operation in this menu is inhibited\nduring file transfer.";

enum WAY : int { ALL_SAVE, ALL_LOAD, ALL_COPY };
enum STAGE : int {
    ALL_IDLE,
    ALL_GATHER, // the files, a category after the other
    ALL_CLEAR,  // what a save goes to
    ALL_JOBS,
};

// What differs in the three ways.
struct Way {
    const char* title;
    int (*ALLTBL::*gather)(int row, int step);
    int (*registers)(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
    const char* answer; // to automation
};

// A touch of a button, by its command.
struct Touch {
    const char* command;
    void (*act)();
};
} // namespace

static int all_save(int row, int step);
static int all_load(int row, int step);
static int all_copy(int row, int step);
static int frames_save(int row, int step);
static int frames_search(int row, int step);

static constexpr ALLTBL Category(const char* cmd, const char* name, FILEPAGE first, FILEPAGE last)
{
    return {cmd, name, 1, all_save, all_load, all_copy, first, last};
}
static constexpr ALLTBL Category(const char* cmd, const char* name, FILEPAGE only)
{
    return Category(cmd, name, only, only);
}

ALLTBL AllTbl[ALL_ROWS] = {
    Category("SETUP", "Setup", FILEPAGE_SETUP),
    Category("INITSTAT", "Initial Status", FILEPAGE_INITSTAT),
    Category("KEYMEM", "Key Memory", FILEPAGE_KEYMEM),
    Category("VPROCMEM", "Video Process Memory", FILEPAGE_VPROCMEM),
    Category("EFFECT", "Effect", FILEPAGE_EFFECT, FILEPAGE_EFFECT_EX),
    Category("SNAPSHOT", "Snapshot", FILEPAGE_SNAPSHOT),
    Category("WSNAP", "Wipe Snapshot", FILEPAGE_WIPESS),
    Category("DSNAP", "DME Wipe Snapshot", FILEPAGE_DMESS),
    Category("KSNAP", "Key Snapshot", FILEPAGE_KEYSS),
    Category("SHOTBOX", "Shotbox", FILEPAGE_SHOTBOX),
    Category("MACRO", "Macro", FILEPAGE_MACRO),
    Category("MACROATC", "Macro Attachment", FILEPAGE_MACROATC),
    Category("MENUMACRO", "Menu Macro", FILEPAGE_MENU_MACRO),
    {"FRAMEMEM", "Frame Memory", 1, frames_save, frames_search, frames_search},
};

static constexpr Way ways[] = {
    {"All Save", &ALLTBL::savefunc, File_TransSCPdirGetList, "allsave.res"},
    {"All Load", &ALLTBL::loadfunc, File_TransSCPdirPutList, "allload.res"},
    {"All Copy", &ALLTBL::copyfunc, File_ExecCopyList, ""},
};

int AllLoadCount = 0;

static constexpr uint32_t ALL_PAGE = 0x71110000;

// The sides of the page; they outlive it.
static FILESIDE AllDir[SIDES] = {{}, {.device = FILE_LOCAL}};

static struct {
    bool is_open = false;
    int save_pane = 0; // asks whether to clear and save
    int from = SIDE_A; // of what save_pane asks about
    int to = SIDE_B;
    int clear_before_load = CLEAR_NO;         // last tally
    char device_caption[SIDES][CAPTION_SIZE]; // the buttons show them from here
    char dir_caption[SIDES][CAPTION_SIZE];
} fa; // valid from create(1) to create(0)

// The transfer that runs; it outlives the page, too.
static struct {
    STAGE stage = ALL_IDLE;
    WAY way = ALL_SAVE;
    bool is_ftp = false;
    FILESIDE from;
    FILESIDE to;
    bool chosen[ALL_ROWS] = {};
    bool read[ALL_ROWS] = {};   // ALLReadRegister: its registers are read anew at the end
    bool unread[ALL_ROWS] = {}; // its search failed
    int row = 0;                // to be gathered next
    int step = 0;
    int files = 0;                  // gathered so far
    int pane = 0;                   // "Preparing..."
    uint32_t search[ALL_ROWS] = {}; // labels of the searches that run, 0 none
    uint32_t clearing = 0;          // label of the deletion that runs
    int cleared = 0;                // folders of ALL_CLEAR that are done
    bool is_good = true;            // every file so far
    bool is_lost = false;           // the link has fallen: no job follows the one that runs
} run;

// Of the registers, and of the pictures: heads that the jobs hold.
static FILEXFERLIST* all_list = nullptr;
static FILEXFERLIST* all_frames = nullptr;
static FILENEWEST all_newest; // of all_list, while it is gathered

static bool is_load()
{
    return run.way == ALL_LOAD;
}

// --- The end of a transfer ---

static void forget_searches()
{
    for (uint32_t& label : run.search) {
        if (label != 0)
            (void)File_ExecUSBReload_cancel(label); // -1: it has ended meanwhile
        label = 0;
    }
    AllFrames_Forget();
    AllLoadCount = 0;
}

static void close_preparing()
{
    if (run.pane != 0)
        (void)Pane_Quit(run.pane);
    run.pane = 0;
}

// What could not be searched is not in the transfer.
static void tell_unread(const char* title, const bool (&unread)[ALL_ROWS],
                        const bool (&chosen)[ALL_ROWS])
{
    char text[CMD_SIZE] = "Following categories could not be read.";
    for (int row = 0; row < ALL_ROWS; row++) {
        AppendText(text, unread[row] ? "\n  - " : "");
        AppendText(text, unread[row] ? AllTbl[row].name : "");
    }
    if (std::equal(unread, unread + ALL_ROWS, chosen))
        CopyText(text, "The directory could not be read.");
    if (std::count(unread, unread + ALL_ROWS, true) > 0)
        (void)PaneMessage_Create(title, PANE_ALERT, text);
}

static void end_transfer()
{
    close_preparing();
    const auto ended = run;
    run = {};
    if (ended.is_ftp || ended.stage == ALL_JOBS) {
        (void)BkgdFileTransfer_Set(0, 0);
        (void)PaneProgress_RestoreQuit();
    }
    if (ended.is_ftp)
        FMCtrl_FtpAnswer(ways[ended.way].answer, ended.is_good);
    else
        tell_unread(ways[ended.way].title, ended.unread, ended.chosen);
}

// Nothing has been given to a job yet.
static void give_up()
{
    forget_searches();
    File_XferList_RemoveAll(&all_list);
    File_XferList_RemoveAll(&all_frames);
    std::fill_n(run.unread, ALL_ROWS, false); // it is no transfer any more
    run.is_good = false;
    end_transfer();
}

// --- The jobs ---

static bool is_in_view()
{
    return !run.is_ftp && BkgdFileTransfer_IsHome(GL_NowPage);
}

static void note_results(const FILEXFERLIST* list, bool* is_cancelled)
{
    if (!run.is_ftp && !is_in_view())
        xferlist_errors_add(list); // the operator has left: no pane tells of them
    for (const FILEXFERLIST* item = list; item; item = item->next) {
        run.is_good &= item->status == FILESTATUS_OK;
        *is_cancelled |= item->status == FILESTATUS_CANCEL;
    }
}

// A job that was cancelled leaves the pictures that were under way in their staging place.
static void clean_temporaries(const FILEXFERLIST* list)
{
    static constexpr char host[] = "MYHOST:";
    for (const FILEXFERLIST* item = list; item; item = item->next)
        if (item->status != FILESTATUS_OK && BeginsWith(item->tmp, "MYHOST:/var/tmp/"))
            (void)unlink(item->tmp + strlen(host)); // most have gone already
    // Images of an import are converted there: not while another job may be at it.
    if (QueueRoot && !QueueRoot->next && ktr_system("/bin/rm -rf /var/tmp/XPORT") != 0)
        Log_Output(LOG_LIFE, MOD_FILE, "can not remove /var/tmp/XPORT");
}

static void frames_result(uint32_t, int)
{
    bool is_cancelled = false;
    note_results(all_frames, &is_cancelled);
    if (is_load())
        AllFrames_Place(all_frames);
    clean_temporaries(all_frames);
    end_transfer();
}

// The pane that a job has opened, where nobody asked for it or the operator has left.
static void show_in_background()
{
    if (!is_in_view())
        BkgdFileTransfer_PaneQuit();
}

// False when there is nothing to be done.
static bool exec_frames()
{
    if (!all_frames)
        return false;
    if (is_load())
        AllFrames_Prepare(all_frames);
    if (File_ExecTransferList(&all_frames, frames_result, 0) < 0) {
        File_XferList_RemoveAll(&all_frames);
        run.is_good = false;
        return false;
    }
    show_in_background();
    return true;
}

// What an operator has stopped may have arrived all the same.
static void read_registers(bool is_cancelled)
{
    xferlist_result_display(all_list);
    for (int row = 0; row < ALL_ROWS && is_cancelled; row++)
        if (run.read[row])
            File_ReadCategory(AllTbl[row].cmd);
}

static void registers_result(uint32_t, int)
{
    bool is_cancelled = false;
    note_results(all_list, &is_cancelled);
    if (is_load())
        read_registers(is_cancelled);
    if (is_cancelled || run.is_lost)
        File_XferList_RemoveAll(&all_frames);
    if (!exec_frames())
        end_transfer();
}

static void exec_jobs()
{
    close_preparing();
    run.stage = ALL_JOBS;
    if (!run.is_ftp)
        BkgdFileTransfer_SetAll(ALL_PAGE); // it takes minutes: the operator may leave meanwhile
    if (all_list && ways[run.way].registers(&all_list, registers_result, 0) >= 0) {
        show_in_background();
        return;
    }
    run.is_good &= all_list == nullptr;
    File_XferList_RemoveAll(&all_list);
    if (!exec_frames())
        end_transfer();
}

// --- Clearing what a save goes to ---

// The next folder. Automation has other things in its folder, which stay; an operator has agreed
// that the directory is cleared. False when all is done.
static bool next_folder(char (&path)[PATH_SIZE])
{
    if (!run.is_ftp)
        return run.cleared++ == 0 && File_DirPath(path, sizeof path, run.to.device, run.to.dir);
    while (run.cleared < ALL_CATEGORIES) {
        char folder[PATH_SIZE];
        const int row = run.cleared++;
        if (!File_CategoryPath(folder, sizeof folder, run.to.device, run.to.dir, AllTbl[row].cmd))
            continue;
        strncpy_secu(path, folder, sizeof path, strlen(folder) - 1); // without its last "/"
        return true;
    }
    return false;
}

static void clear_next();

// One that was not there is as good as one that has gone, and what stays is written over.
static void clear_result(uint32_t label, int, const char*)
{
    if (run.stage != ALL_CLEAR || label != run.clearing)
        return;
    run.clearing = 0;
    clear_next();
}

static void made_result(uint32_t label, int, const char*)
{
    if (run.stage == ALL_CLEAR && label == run.clearing)
        exec_jobs();
}

// The directory stands again, empty, also when no file reaches it.
static void make_directory()
{
    char path[PATH_SIZE];
    int label = -1;
    if (File_DirPath(path, sizeof path, run.to.device, run.to.dir))
        label = File_ExecMkdir(path, made_result, 0);
    run.clearing = label > 0 ? uint32_t(label) : 0;
    if (label <= 0)
        exec_jobs();
}

static void clear_next()
{
    char path[PATH_SIZE];
    while (next_folder(path)) {
        const int label = File_ExecRmdir(path, clear_result, 0);
        run.clearing = label > 0 ? uint32_t(label) : 0;
        if (label > 0)
            return;
    }
    make_directory();
}

// --- Gathering: what the categories have in common ---

static const FileKind& kind_of(const ALLTBL& row, int n)
{
    return file_kinds[row.first + n];
}

static int kinds_of(const ALLTBL& row)
{
    return row.last - row.first + 1;
}

// The file of one of the row's kinds: the first that reads its path has it.
static const FileKind* read_file(const ALLTBL& row, const char* path, FILEINFO* info)
{
    for (int n = 0; n < kinds_of(row); n++) {
        *info = {.grp = FileKind_Group(kind_of(row, n))};
        if (name2info(path, info) == 0)
            return &kind_of(row, n);
    }
    return nullptr;
}

// Of a register's files on a drive the newest; remote is the end on another unit, if one can be.
static void add_item(const char* src, const char* dst, const char* date, const char* remote,
                     const char* category)
{
    char target[32];
    const bool is_remote = remote && File_Target(remote, target, sizeof target) == 0;
    (void)FileNewest_Add(all_newest, &all_list, src, dst, date, is_remote ? category : "",
                         is_remote ? target : "");
    run.files++;
}

// --- Saving ---

static void save_file(const ALLTBL& row, int n, const FILEINFO& info)
{
    char src[FILE_PATH_SIZE];
    char dst[FILE_PATH_SIZE];
    FILEINFO read;
    if (info2name(info, src, FILE_REGISTER, "", sizeof src) != 0 ||
        info2name(info, dst, run.to.device, run.to.dir, sizeof dst) != 0)
        return;
    // The effects of the devices are in two groups.
    if (read_file(row, dst, &read) == &kind_of(row, n))
        add_item(src, dst, "", src, row.cmd);
}

// A step is a region of a kind.
static int all_save(int row_no, int step)
{
    constexpr int MAINS = 8; // rows of a region table, and what each has at most
    constexpr int SUBS = 12;
    constexpr int PLACES = MAINS * SUBS;
    const ALLTBL& row = AllTbl[row_no];
    const int n = step / PLACES;
    const int main = step % PLACES / SUBS;
    const int sub = step % SUBS;
    const FileKind& kind = kind_of(row, n);
    const int grp = FileKind_Group(kind);
    const bool is_place = main < PaneRegion_GetMainMax(grp) &&
                          *PaneRegion_GetGrpFIExt(grp, main, sub) && File_HasRegion(grp, main, sub);
    for (int no = 0; is_place && no < RegisterNum[grp]; no++) {
        FILEINFO info = {.grp = grp, .main = main, .sub = sub, .no = no};
        int lock = 0;
        if (FileKind_Register(kind, PaneRegion_GetGrpID(grp, main, sub), no, info.name,
                              sizeof info.name, &lock) == 0)
            save_file(row, n, info);
    }
    return step + 1 < kinds_of(row) * PLACES;
}

static int frames_save(int, int step)
{
    return AllFrames_Save(run.to, step, &all_frames);
}

// --- Searching: loading and copying ---

static bool is_locked(const ALLTBL& row, const FILEINFO& info)
{
    const int lock = File_LockOfCategory(row.cmd);
    if (lock == FILELOCK_CATEGORY_SETUP)
        return File_IsSetupRegionLocked(info.main);
    return lock >= 0 && GL_FileLock[lock] != 0;
}

static void all_load_addxfer(int row_no, const char* src, const FILEINFO& info, const char* date)
{
    const ALLTBL& row = AllTbl[row_no];
    char dst[FILE_PATH_SIZE];
    if (is_locked(row, info) || info2name(info, dst, FILE_REGISTER, "", sizeof dst) != 0)
        return;
    add_item(src, dst, date, dst, row.cmd);
    run.read[row_no] = true;
}

static void all_copy_addxfer(const char* src, const FILEINFO& info, const char* date)
{
    char dst[FILE_PATH_SIZE];
    if (info2name(info, dst, run.to.device, run.to.dir, sizeof dst) == 0)
        add_item(src, dst, date, nullptr, "");
}

static void count_up()
{
    AllLoadCount++;
    Log_Output(LOG_TRACE, MOD_FILE, "+ AllLoadCount = %d", AllLoadCount);
}

static void count_down()
{
    AllLoadCount--;
    Log_Output(LOG_TRACE, MOD_FILE, "- AllLoadCount = %d", AllLoadCount);
}

static void note_unread(int row_no)
{
    Log_Output(LOG_LINK, MOD_FILE, "All: %s could not be searched", AllTbl[row_no].cmd);
    run.unread[row_no] = true;
    run.is_good = false;
}

static void note_end(int row_no)
{
    char path[PATH_SIZE];
    const FILESIDE& from = run.from;
    if (File_CategoryPath(path, sizeof path, from.device, from.dir, AllTbl[row_no].cmd) &&
        !File_FindIsWhole(from.device, from.dir, path))
        note_unread(row_no);
}

static void find_tly(uint32_t label, int row_no, const char* path, const char* const* pair)
{
    if (run.search[row_no] != label || run.stage != ALL_GATHER)
        return; // one that was given up
    if (!path) {
        run.search[row_no] = 0;
        note_end(row_no);
        count_down();
        return;
    }
    FILEINFO info;
    char src[FILE_PATH_SIZE];
    const int n = PrintText(src, "%s%s", BeginsWith(path, "MYHOST:") ? "" : "MYHOST:", path);
    if (n >= int(sizeof src) || !read_file(AllTbl[row_no], path, &info))
        return;
    if (is_load())
        all_load_addxfer(row_no, src, info, pair[1]);
    else
        all_copy_addxfer(src, info, pair[1]);
}

static int all_search(int row_no)
{
    char path[PATH_SIZE];
    if (!File_CategoryPath(path, sizeof path, run.from.device, run.from.dir, AllTbl[row_no].cmd))
        return 0;
    const int label = File_ExecFind(path, "*.*.*", find_tly, row_no);
    if (label <= 0) {
        note_unread(row_no);
        return 0;
    }
    run.search[row_no] = uint32_t(label);
    count_up();
    return 0;
}
static int all_load(int row, int)
{
    return all_search(row);
}
static int all_copy(int row, int)
{
    return all_search(row);
}

static void frames_searched(bool is_whole)
{
    if (!is_whole)
        note_unread(ALL_FRAMEMEM);
    count_down();
}

// Between drives the pictures travel with the rest.
static int frames_search(int, int)
{
    if (AllFrames_Search(run.from, run.to, is_load() ? &all_frames : &all_list, frames_searched) ==
        0)
        count_up();
    return 0;
}

// --- A pass of the gathering ---

// The frame memory first: its folders are listed before they are searched.
static int turn_of(int n)
{
    return n == 0 ? ALL_FRAMEMEM : n - 1;
}

static void all_load_exec()
{
    if (AllLoadCount > 0)
        return; // a drive still answers
    if (!all_list && !all_frames) {
        run.is_good = false;
        end_transfer();
    } else if (run.way == ALL_SAVE) {
        run.stage = ALL_CLEAR;
        clear_next();
    } else {
        exec_jobs();
    }
}

static void gather_pass()
{
    const int files = run.files;
    while (run.row < ALL_ROWS && run.files - files < STEP_FILES) {
        const int row = turn_of(run.row);
        const auto gather = AllTbl[row].*ways[run.way].gather;
        const bool is_frames = row == ALL_FRAMEMEM;
        if (run.chosen[row] && gather(row, run.step++) != 0) {
            if (is_frames)
                return; // a step of the frame memory is a pass's work
            continue;
        }
        run.row++;
        run.step = 0;
        if (run.chosen[row]) {
            if (run.pane != 0)
                (void)Pane_AppendMessage(run.pane, ".");
            return;
        }
    }
    if (run.row == ALL_ROWS)
        all_load_exec();
}

int FileAllProc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (run.stage == ALL_IDLE)
        return 0;
    if (msg == MSG_REDRAW && run.stage == ALL_GATHER)
        gather_pass();
    if (msg == LMSG_PANEQUIT && run.pane != 0 && int(ax) == run.pane && int(bx) == CANCELLED) {
        run.pane = 0; // closed already
        give_up();
    }
    return 0;
}

// --- Beginning ---

static bool is_busy()
{
    return run.stage != ALL_IDLE || all_list || all_frames || BkgdFileTransfer_Check(0);
}

static void begin(WAY way, const FILESIDE& from, const FILESIDE& to)
{
    constexpr int cancel = 1;
    all_newest = {};
    run = {.stage = ALL_GATHER, .way = way, .from = from, .to = to};
    AllLoadCount = 0;
    for (int row = 0; row < ALL_ROWS; row++)
        run.chosen[row] = AllTbl[row].onoff != 0;
    run.pane = PaneProgress_Create(ways[way].title, "Preparing...", cancel);
}

static int begin_ftp(WAY way, const FILESIDE& from, const FILESIDE& to)
{
    if (is_busy())
        return -1;
    all_newest = {};
    run = {.stage = ALL_GATHER, .way = way, .is_ftp = true, .from = from, .to = to};
    AllLoadCount = 0;
    for (int row = 0; row < ALL_CATEGORIES; row++)
        run.chosen[row] = true;
    (void)BkgdFileTransfer_Set(0, 1); // from now on, so that no page begins beside it
    return 0;
}

int AllSave()
{
    return begin_ftp(ALL_SAVE, {}, {.device = FILE_FTP, .dir = "Export"});
}

int AllLoad()
{
    return begin_ftp(ALL_LOAD, {.device = FILE_FTP, .dir = "Import"}, {});
}

// --- What the buttons show ---

static bool is_protected(const FILESIDE& side)
{
    return side.device != FILE_REGISTER && File_DirIsProtected(side.device, side.dir);
}

static bool is_anything_selected()
{
    for (const ALLTBL& row : AllTbl)
        if (row.onoff)
            return true;
    return false;
}

static bool may_transfer(const FILESIDE& from, const FILESIDE& to)
{
    return !(from.device == FILE_REGISTER && to.device == FILE_REGISTER) && !is_protected(to) &&
           is_anything_selected();
}

static void load_save_copy_btn_grayout()
{
    BT_SetDisable(BTN_ALL_L_TO_R, !may_transfer(AllDir[SIDE_A], AllDir[SIDE_B]));
    BT_SetDisable(BTN_ALL_R_TO_L, !may_transfer(AllDir[SIDE_B], AllDir[SIDE_A]));
}

static void show_side(int side)
{
    const FILESIDE& where = AllDir[side];
    const int dir = side == SIDE_A ? BTN_ALL_DIR_A : BTN_ALL_DIR_B;
    CopyText(fa.device_caption[side], File_DriveCaption(where.device));
    CopyText(fa.dir_caption[side], where.device == FILE_REGISTER ? "" : where.dir);
    (void)BT_SetCaption(side == SIDE_A ? BTN_ALL_DEVICE_A : BTN_ALL_DEVICE_B,
                        fa.device_caption[side]);
    (void)BT_SetCaption(dir, fa.dir_caption[side]);
    BT_SetDisable(dir, where.device == FILE_REGISTER);
}

static void show_all()
{
    for (int side = 0; side < SIDES; side++)
        show_side(side);
    for (int row = 0; row < ALL_ROWS; row++)
        (void)BT_SetStatus(BtnOfAllCategory(row), AllTbl[row].onoff ? BT_ON : BT_OFF);
    (void)BT_SetStatus(BTN_ALL_CLEAR, fa.clear_before_load == CLEAR_YES ? BT_ON : BT_OFF);
    load_save_copy_btn_grayout();
}

// --- Selection ---

static void side_chosen(int)
{
    if (fa.is_open)
        show_all();
}

static void device_a_sel()
{
    (void)FileSelect_Device(&AllDir[SIDE_A], FILE_DRIVES_ALL, side_chosen, SIDE_A);
}
static void device_b_sel()
{
    (void)FileSelect_Device(&AllDir[SIDE_B], FILE_DRIVES_ALL, side_chosen, SIDE_B);
}
static void dir_a_sel()
{
    (void)FileSelect_Dir(&AllDir[SIDE_A], side_chosen, SIDE_A);
}
static void dir_b_sel()
{
    (void)FileSelect_Dir(&AllDir[SIDE_B], side_chosen, SIDE_B);
}

static void all_select_sel()
{
    for (ALLTBL& row : AllTbl)
        row.onoff = 1;
    show_all();
}

static void clear_sel()
{
    (void)Net_SendCommandFormat("put " CLEAR_BEFORE_LOAD "#%d",
                                fa.clear_before_load == CLEAR_YES ? CLEAR_NO : CLEAR_YES);
}

// --- Transfers ---

// Categories that may not be loaded are no longer selected; true when there was one.
static bool all_file_load_lock()
{
    bool was_locked = false;
    for (ALLTBL& row : AllTbl) {
        const int lock = File_LockOfCategory(row.cmd);
        const bool is_category_locked = lock == FILELOCK_CATEGORY_SETUP
                                            ? File_IsSetupLocked() != 0
                                            : lock >= 0 && GL_FileLock[lock] != 0;
        if (!row.onoff || !is_category_locked)
            continue;
        row.onoff = 0;
        was_locked = true;
    }
    return was_locked;
}

static void load_sel(const FILESIDE& from, const FILESIDE& to)
{
    if (!all_file_load_lock()) {
        begin(ALL_LOAD, from, to);
        return;
    }
    show_all();
    (void)CreateWindow(
        WINDOW_MESSAGE, "Load",
        {.message =
             "The categories set on the \"File Load Lock\n(Menu 7317.2)\" cannot be loaded.\n"
             "The categories set as \"Lock\" will not be\nselected.\n"
             "Please confirm the categories again and load."});
}

static bool is_same_directory(const FILESIDE& a, const FILESIDE& b)
{
    if (a.device != b.device)
        return false;
    return a.device == FILE_REMOVABLE ? StrICmp(a.dir, b.dir) == 0 : strcmp(a.dir, b.dir) == 0;
}

static void copy_sel(const FILESIDE& from, const FILESIDE& to)
{
    if (is_same_directory(from, to)) {
        PaneMessage_Create("All Copy", PANE_ALERT,
                           "\"Source\" and \"Target\" are the same directory.\n\n"
                           "Please change the \"Source\" or the \"Target\"\ndirectory.");
        return;
    }
    begin(ALL_COPY, from, to);
}

static void save_sel(int from, int to)
{
    fa.from = from;
    fa.to = to;
    fa.save_pane = PaneYesNo_Create("All Save", PANE_ALERT,
                                    "This operation will cause the contents of \ntarget directory "
                                    "will be cleared before saving\n"
                                    "files.\n\n\nContinue?");
}

static void transfer_sel(int from, int to)
{
    const FILESIDE& source = AllDir[from];
    const FILESIDE& target = AllDir[to];
    if (!may_transfer(source, target))
        return;
    if (source.device == FILE_REGISTER)
        save_sel(from, to);
    else if (target.device == FILE_REGISTER)
        load_sel(source, target);
    else
        copy_sel(source, target);
}
static void all_a2b_sel()
{
    transfer_sel(SIDE_A, SIDE_B);
}
static void all_b2a_sel()
{
    transfer_sel(SIDE_B, SIDE_A);
}

// --- Messages ---

static constexpr Touch all_touches[] = {
    {ALL "Device A", device_a_sel},     {ALL "Device B", device_b_sel},
    {ALL "Dir A", dir_a_sel},           {ALL "Dir B", dir_b_sel},
    {ALL "L to R", all_a2b_sel},        {ALL "R to L", all_b2a_sel},
    {ALL "All Select", all_select_sel}, {ALL "CLR Before Load", clear_sel},
};

static bool category_pressed(const char* command)
{
    static constexpr char head[] = ALL "Category@";
    if (!BeginsWith(command, head))
        return false;
    for (ALLTBL& row : AllTbl) {
        if (strcmp(row.cmd, command + strlen(head)) != 0)
            continue;
        row.onoff = !row.onoff;
        show_all();
    }
    return true;
}

static int button_pressed(const char* command)
{
    if (category_pressed(command))
        return 0;
    for (const Touch& touch : all_touches) {
        if (strcmp(touch.command, command) != 0)
            continue;
        if (is_busy())
            PaneMessage_Create("File", PANE_ALERT, INHIBITED);
        else
            touch.act();
    }
    return 0;
}

static int pane_closed(int pane, int result)
{
    if (pane == 0 || pane != fa.save_pane)
        return 0;
    fa.save_pane = 0;
    if (result == YES && !is_busy())
        begin(ALL_SAVE, AllDir[fa.from], AllDir[fa.to]);
    return 0;
}

static int take_tally(const char* path, const char* value)
{
    if (!Same(path, CLEAR_BEFORE_LOAD))
        return 0;
    fa.clear_before_load = Decimal(value) == CLEAR_YES ? CLEAR_YES : CLEAR_NO;
    show_all();
    return 0;
}

static int pc_file_all_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (!fa.is_open || FileSelect_Proc(msg, ax, bx))
        return 0;
    switch (msg) {
    case LMSG_BTNSEL: return button_pressed(Text(ax));
    case LMSG_PANEQUIT: return pane_closed(int(ax), int(bx));
    case MSG_TALLY: return take_tally(Text(ax), Text(bx));
    default: return 0;
    }
}

// --- Opening and closing ---

static int leave()
{
    if (!fa.is_open)
        return 0;
    Net_SendCommand("remove " CLEAR_BEFORE_LOAD);
    FileSelect_Close();
    if (run.stage == ALL_GATHER && !run.is_ftp) // nobody could stop it any more
        give_up();
    fa = {};
    return 0;
}

static int pc_file_all_create(int on, uint32_t)
{
    if (!on)
        return leave();
    fa = {.is_open = true};
    Net_SendCommand("add " CLEAR_BEFORE_LOAD);
    show_all();
    if (BkgdFileTransfer_Check(0))
        (void)BkgdFileTransfer_PaneRestore();
    return 0;
}

const PC_TBL pc_file_all = {pc_file_all_proc, pc_file_all_create};

void FileAll_LinkLost()
{
    const bool is_preparing = run.stage == ALL_GATHER || run.stage == ALL_CLEAR;
    run.is_lost = true;
    if (!is_preparing)
        return;
    const bool was_seen = run.pane != 0;
    give_up();
    if (was_seen)
        (void)PaneMessage_Create("File", PANE_ALERT,
                                 "The connection to the server is lost.\n"
                                 "The file operation has been aborted.");
}

void FileAll_Reset()
{
    AllFrames_Forget();
    File_XferList_RemoveAll(&all_list);
    File_XferList_RemoveAll(&all_frames);
    for (ALLTBL& row : AllTbl)
        row.onoff = 1;
    AllDir[SIDE_A] = {};
    AllDir[SIDE_B] = {.device = FILE_LOCAL};
    AllLoadCount = 0;
    run = {};
    fa = {};
}
