// The Folder page: the folders of the newer frame memory. The switcher keeps a dozen, the first of
// them its own; a folder is made by giving one of the others a name and goes when that is taken
// away, and what was in it stands in the first one again. What a folder holds belongs to the frame
// memory's other file page.
#include "a_bt.h"
#include "a_ls.h"
#include "a_pc.h"
#include "file_name.h"
#include "fmctrl.h"
#include "message.h"
#include "netio.h"
#include "page_table/file_folder.h"
#include "pane.h"
#include "tally_value.h"
#include "text.h"
#include "window.h"

#include "safeguards.h"

#define LOCAL_FOLDER "LOCAL@File@Folder@"

namespace
{
constexpr int LIST = 1;
constexpr int COLUMN_NAME = 0;
constexpr int COLUMN_STILLS = 1;
constexpr int COLUMN_CLIPS = 2;
constexpr int NAME_LENGTH = FRAME_FOLDER_SIZE - 1;
constexpr int NO_FOLDER = -1;
} // namespace

static struct {
    bool is_open = false;
    bool is_stale = false;        // the catalogue has changed since the list was filled
    int question_pane = 0;        // asks whether to delete; 0 none
    int folder_id = NO_FOLDER;    // what the window or the question is about
    char count[FOLDER_MAX][2][8]; // the list shows them from here
} fp;                             // valid from create(1) to create(0)

// --- The list ---

static const FOLDER* chosen_folder()
{
    const int row = LS_GetNowLine(LIST);
    return row >= 0 && row < FMCtrl_GetFolderNum() ? FMCtrl_GetFolder(row) : nullptr;
}

// The row of a folder without a name; -1: there is none, or none has been told.
static int unused_row()
{
    for (int row = 1; FMCtrl_GetFolderNum() > 0 && row < FOLDER_MAX; row++)
        if (FMCtrl_GetFolder(row)->name[0] == '\0')
            return row;
    return -1;
}

static void enable_keys()
{
    const FOLDER* const chosen = chosen_folder();
    const bool is_users = chosen && chosen->type == FOLDER_TYPE_USER;
    BT_SetDisable(BTN_FOLDER_NEW, unused_row() < 0);
    BT_SetDisable(BTN_FOLDER_RENAME, !is_users);
    BT_SetDisable(BTN_FOLDER_DELETE, !is_users);
}

static void show_folders()
{
    const int rows = FMCtrl_GetFolderNum();
    fp.is_stale = false;
    for (int row = 0; row < rows; row++) {
        const FOLDER* const folder = FMCtrl_GetFolder(row);
        PrintText(fp.count[row][0], "%d", FMCtrl_GetFolderStillNum(folder->folder_id));
        PrintText(fp.count[row][1], "%d", FMCtrl_GetFolderClipNum(folder->folder_id));
        LS_SetData(LIST, row, COLUMN_NAME, folder->name);
        LS_SetData(LIST, row, COLUMN_STILLS, fp.count[row][0]);
        LS_SetData(LIST, row, COLUMN_CLIPS, fp.count[row][1]);
    }
    LS_SetNData(LIST, rows);
    LS_RedrawData(LIST);
    enable_keys();
}

// A new name moves its folder to another row: the list stays on the folder.
static void names_changed()
{
    show_folders();
    const int row = FMCtrl_GetIsFolderIdx(fp.folder_id);
    if (fp.folder_id != NO_FOLDER && row >= 0 && row < FMCtrl_GetFolderNum())
        LS_SetNowLine(LIST, row);
    enable_keys();
}

// --- Names ---

static int refuse(const char* title, const char* text)
{
    (void)PaneMessage_Create(title, PANE_ALERT, text);
    return -1;
}

// A drive's default folder has a name of its own: a second one of that name would be the same
// there.
static bool is_taken(const char* name)
{
    const int row = FMCtrl_GetIsFolderIdx(fp.folder_id);
    const bool is_own = row >= 0 && Same(FMCtrl_GetFolder(row)->name, name);
    return !is_own && (FMCtrl_ExistFolderName(name) || StrICmp(name, FRAME_FOLDER_DEFAULT) == 0);
}

static int name_entered(const char* text)
{
    char name[FRAME_FOLDER_SIZE];
    CopyText(name, text);
    if (!fp.is_open || fp.folder_id <= 0)
        return -1;
    if (!StrFileName(name))
        return refuse("Invalid Name", "Empty...");
    if (is_taken(name) || InvalidFileNameCheck(name))
        return refuse("Invalid Folder", "This name is already existing.\nPlease enter other name.");
    return Net_SendCommandFormat("put Frame Mem@Folder@Rename#%d,%s", fp.folder_id, name);
}

static void ask_name(const char* title, const FOLDER& folder)
{
    fp.folder_id = folder.folder_id;
    CreateWindow(WINDOW_KEYBOARD, title,
                 {.value = folder.name, .input_max = NAME_LENGTH, .ok_text = name_entered});
}

// --- Keys ---

static void new_sel()
{
    const int row = unused_row();
    if (row >= 0)
        ask_name("New Folder", *FMCtrl_GetFolder(row));
}

static void rename_sel()
{
    const FOLDER* const chosen = chosen_folder();
    if (chosen && chosen->type == FOLDER_TYPE_USER)
        ask_name("Rename", *chosen);
}

static void delete_sel()
{
    const FOLDER* const chosen = chosen_folder();
    if (!chosen || chosen->type != FOLDER_TYPE_USER)
        return;
    fp.folder_id = chosen->folder_id;
    fp.question_pane = PaneYesNo_Create(
        "Delete", PANE_ALERT, "This operation will cause the data to be\ndeleted.\n\nContinue?");
}

static int delete_answer(int pane, int result)
{
    constexpr int YES = 1;
    if (pane == 0 || pane != fp.question_pane)
        return 0;
    fp.question_pane = 0;
    const FOLDER* const folder = FMCtrl_GetFolder(FMCtrl_GetIsFolderIdx(fp.folder_id));
    if (result == YES && folder && folder->name[0]) // it may have gone meanwhile
        Net_SendCommandFormat("put Frame Mem@Folder@Delete#%d", fp.folder_id);
    fp.folder_id = NO_FOLDER;
    return 0;
}

// --- Messages ---

static int folder_button(const char* path)
{
    static constexpr struct {
        const char* path;
        void (*run)();
    } commands[] = {
        {LOCAL_FOLDER "New", new_sel},
        {LOCAL_FOLDER "Rename", rename_sel},
        {LOCAL_FOLDER "Delete", delete_sel},
    };
    for (const auto& command : commands)
        if (Same(path, command.path))
            command.run();
    return 0;
}

static int refresh()
{
    if (fp.is_stale)
        show_folders();
    return 0;
}

static int folder_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case LMSG_BTNSEL: return folder_button(Text(ax));
    case LMSG_PANEQUIT: return delete_answer(int(ax), int(bx));
    case LMSG_LISTSEL: enable_keys(); return 0;
    case LMSG_FOLDERNAMESENSE: names_changed(); return 0;
    case LMSG_FMCTRLCHANGE: fp.is_stale = true; return 0;
    case MSG_REDRAW: return refresh();
    default: return 0;
    }
}

static int folder_create(int on, uint32_t)
{
    fp = {};
    if (!on)
        return 1;
    fp.is_open = true;
    show_folders();
    LS_SetNowLine(LIST, 0);
    enable_keys();
    return 0;
}

const PC_TBL pc_file2_folder = {.proc_func = folder_proc, .create_func = folder_create};
