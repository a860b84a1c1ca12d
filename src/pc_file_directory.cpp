// The Directory page: the user directories of the three drives. Each is a folder of the drive's
// root; what stands in it belongs to the other file pages. A directory with the marker file
// ".dirprotect" in it is not deleted here.
#include "a_bt.h"
#include "a_ls.h"
#include "a_pc.h"
#include "err.h"
#include "file.h"
#include "file_dir.h"
#include "log.h"
#include "message.h"
#include "page_table/file_directory.h"
#include "pane.h"
#include "process.h"
#include "tally_value.h"
#include "window.h"
#include <algorithm>
#include <cerrno>
#include <unistd.h>

#include "safeguards.h"

#define LOCAL_DIRECTORY "LOCAL@File@Directory@"

namespace
{
constexpr int MOD_FILE_PAGE = 22;
constexpr int LIST = 1;
constexpr int COLUMN_NAME = 0;
constexpr int COLUMN_DATE = 1;
constexpr int COLUMN_PROTECT = 2;

// How a directory is marked in the list, by DIRINFO's protect.
constexpr const char* DirProtectStr[] = {"", "_CL_Lock"};
} // namespace

static int DevDirectory = FILE_LOCAL; // kept when the page is left

static struct {
    bool is_listing = false;
    int busy_pane = 0;     // "Deleting now...", until the server has answered
    int question_pane = 0; // asks whether to delete; 0 none
    int device_pane = 0;
    char chosen[FILE_DIR_SIZE] =
        ""; // what the question is about; after a listing, the row to stand on
} dp;       // valid from create(1) to create(0)

static bool is_open = false;

// --- The list ---

static DIRINFO* chosen_row()
{
    int count = 0;
    DIRINFO* const rows = File_DirList(DevDirectory, &count);
    const int row = LS_GetNowLine(LIST);
    return row >= 0 && row < count ? &rows[row] : nullptr;
}

// A name that the page could have made, and that is not one that all pages rely on.
static bool is_deletable(const DIRINFO* d)
{
    char made[FILE_DIR_SIZE];
    CopyText(made, d->name);
    (void)StrFatFileName(made);
    return strcmp(made, d->name) == 0 && !strchr(d->name, '#') &&
           !File_DirIsAutoload(DevDirectory, d->name) && strcmp(d->name, FILE_DIR_DEFAULT) != 0;
}

// What can be done with the chosen directory.
static void enable_keys()
{
    const DIRINFO* d = chosen_row();
    BT_SetDisable(BTN_DIRECTORY_NEW, dp.is_listing);
    BT_SetDisable(BTN_DIRECTORY_DELETE, dp.is_listing || !d || !is_deletable(d) || d->protect);
    BT_SetDisable(BTN_DIRECTORY_PROTECT, dp.is_listing || !d);
    BT_SetStatus(BTN_DIRECTORY_PROTECT, d && d->protect ? BT_ON : BT_OFF);
}

static void show_rows()
{
    int count = 0;
    const DIRINFO* const rows = File_DirList(DevDirectory, &count);
    for (int row = 0; row < count; row++) {
        LS_SetData(LIST, row, COLUMN_NAME, rows[row].name);
        LS_SetData(LIST, row, COLUMN_DATE, rows[row].time);
        LS_SetData(LIST, row, COLUMN_PROTECT, DirProtectStr[rows[row].protect != 0]);
    }
    LS_SetNData(LIST, count);
    LS_RedrawData(LIST);
    enable_keys();
}

static void listing_ended(int drive)
{
    if (!is_open || drive != DevDirectory)
        return;
    dp.is_listing = false;
    show_rows();
    LS_SetNowLine(LIST, std::max(0, File_DirFind(DevDirectory, dp.chosen)));
    enable_keys();
}

static void list_directories()
{
    // The rows are filled anew behind the list's back: it shows none of them meanwhile.
    LS_SetNData(LIST, 0);
    LS_RedrawData(LIST);
    dp.is_listing = File_DirRead(DevDirectory, listing_ended, DevDirectory) == 0;
    enable_keys();
}

// --- Device ---

static void show_drive()
{
    BT_SetCaption(BTN_DIRECTORY_DEVICE, File_DriveCaption(DevDirectory));
}

static void choose_device()
{
    dp.device_pane = File_DrivePane(FILE_DRIVES_DISK);
}

static void take_device(int device)
{
    if (device < FILE_LOCAL || device > FILE_NETWORK)
        return;
    DevDirectory = device;
    dp.chosen[0] = '\0';
    LS_ClearData(LIST);
    show_drive();
    list_directories();
}

// --- Make ---

static void refuse(const char* text)
{
    (void)PaneMessage_Create("Directory", PANE_ALERT, text);
}

static void dir_result(uint32_t, int, const char* reply)
{
    if (!is_open)
        return;
    if (dp.busy_pane)
        (void)Pane_Quit(dp.busy_pane);
    dp.busy_pane = 0;
    if (reply && reply[0] == 'N')
        refuse(reply);
    list_directories();
}

// A stick that is pulled after this holds the directory.
static void dir_sync(uint32_t label, int tag, const char* reply)
{
    (void)ktr_system("/bin/sync");
    dir_result(label, tag, reply);
}

static int dir_new_core(const char* text)
{
    char name[FILE_DIR_SIZE];
    char mes[CMD_SIZE];
    CopyText(name, text);
    if (!StrFileName(name)) {
        (void)PaneMessage_Create("Invalid Name", PANE_ALERT, "Empty...");
        return -1;
    }
    const bool is_autoload = File_DirIsAutoload(DevDirectory, name);
    if (is_autoload || InvalidFileNameCheck(name)) {
        PrintText(mes, "The name \"%s\" cannot be used.", is_autoload ? FILE_DIR_AUTOLOAD : name);
        refuse(mes);
        return -1;
    }
    if (File_DirFind(DevDirectory, name) >= 0) {
        refuse("The directory exists already...");
        return -1;
    }
    char path[PATH_SIZE];
    if (!File_DirPath(path, sizeof path, DevDirectory, name))
        return -1;
    CopyText(dp.chosen, name);
    return File_ExecMkdir(path, dir_sync, 0) > 0 ? 0 : -1;
}

static void ask_name()
{
    WindowArgs args;
    args.input_max = FILE_DIR_SIZE - 1;
    args.ok_text = dir_new_core;
    CreateWindow(WINDOW_KEYBOARD, "New Directory", args);
}

// --- Delete ---

static void ask_delete()
{
    const DIRINFO* d = chosen_row();
    if (!d || !is_deletable(d) || d->protect)
        return;
    CopyText(dp.chosen, d->name);
    dp.question_pane =
        PaneYesNo_Create("Delete", PANE_ALERT,
                         "This operation will cause the directory to be\ndeleted.\n\nContinue?");
}

static void delete_chosen()
{
    char path[PATH_SIZE];
    if (File_DirIsProtected(DevDirectory, dp.chosen) || // since the question was asked
        !File_DirPath(path, sizeof path, DevDirectory, dp.chosen)) {
        list_directories();
        return;
    }
    constexpr int cancel = 0;
    dp.busy_pane = PaneProgress_Create("Delete", "Deleting now...", cancel);
    if (File_ExecRmdir(path, dir_result, 0) > 0)
        return;
    (void)Pane_Quit(dp.busy_pane);
    dp.busy_pane = 0;
}

// --- Protect ---

static void protect_failed(const char* path)
{
    Log_Output(LOG_ALWAYS, MOD_FILE_PAGE, "protect filename open error : errno=) [%s] %d", path,
               errno);
    (void)Err_Add("protect filename open error : %s", path);
}

static void dir_protect_sel()
{
    DIRINFO* const d = chosen_row();
    char path[PATH_SIZE];
    if (!d || !File_DirMarker(path, DevDirectory, d->name))
        return;
    DIRINFO changed = *d;
    changed.protect = !changed.protect;
    if (changed.protect ? File_DirWriteMarker(path, changed) != 0
                        : unlink(path) != 0 && errno != ENOENT) {
        protect_failed(path);
        refuse("The protection could not be changed.");
        return;
    }
    *d = changed;
    show_rows();
}

// --- Messages ---

namespace
{
struct Command {
    const char* path;
    void (*run)();
};
constexpr Command commands[] = {
    {LOCAL_DIRECTORY "Device", choose_device},
    {LOCAL_DIRECTORY "New", ask_name},
    {LOCAL_DIRECTORY "Delete", ask_delete},
    {LOCAL_DIRECTORY "Protect", dir_protect_sel},
};
} // namespace

static int directory_button(const char* path)
{
    for (const Command& command : commands)
        if (strcmp(path, command.path) == 0 && dp.busy_pane == 0)
            command.run();
    return 0;
}

static int directory_pane_closed(int pane, int result)
{
    if (pane == 0)
        return 0;
    if (pane == dp.device_pane) {
        dp.device_pane = 0;
        take_device(result - 1); // of "Cancel" no drive
    } else if (pane == dp.question_pane) {
        constexpr int yes = 1;
        dp.question_pane = 0;
        if (result == yes)
            delete_chosen();
    }
    return 0;
}

static int pc_file_directory_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case LMSG_BTNSEL: return directory_button(Text(ax));
    case LMSG_PANEQUIT: return directory_pane_closed(int(ax), int(bx));
    case LMSG_LISTSEL: enable_keys(); return 0;
    default: return 0;
    }
}

static int pc_file_directory_create(int on, uint32_t)
{
    if (dp.busy_pane)
        (void)Pane_Quit(dp.busy_pane);
    is_open = on != 0;
    dp = {};
    if (!on)
        return 1;
    show_drive();
    list_directories();
    return 0;
}

const PC_TBL pc_file_directory = {.proc_func = pc_file_directory_proc,
                                  .create_func = pc_file_directory_create};
