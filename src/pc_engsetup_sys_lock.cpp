// The locks: which setup pages take no change, which categories of files are not loaded. One
// password serves both; the service's own opens them as well.
#include "a_bt.h"
#include "a_ls.h"
#include "bus.h"
#include "command.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "pc_engsetup_sys.h"
#include "pc_file.h"
#include "setup_index.h"
#include "setup_page.h"
#include "tally_value.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>
#include <iterator>

#include "safeguards.h"

// --- The password ---

constexpr int PASSWORD_MAX = 16; // characters
constexpr const char* SERVICE_PASSWORD = "QPD7300WREN";
constexpr const char* FileLoadLockStr[] = {"", "Lock"};

static char new_password[PASSWORD_MAX + 1]; // from the first entry to its confirmation

static bool is_password(const char* text)
{
    return strncmp(text, SetupLock.password, PASSWORD_MAX) == 0 || Same(text, SERVICE_PASSWORD);
}

static void tell(const char* caption, const char* message)
{
    WindowArgs args;
    args.message = message;
    CreateWindow(WINDOW_MESSAGE, caption, args);
}

static void ask_text(const char* caption, int (*core)(const char* text))
{
    WindowArgs args;
    args.input_max = PASSWORD_MAX;
    args.ok_text = core;
    CreateWindow(WINDOW_KEYBOARD, caption, args);
}

// The entry, cut at its limit; true when it is right. Otherwise the operator is told.
static bool check_password(const char* entry)
{
    char text[PASSWORD_MAX + 1];
    CopyText(text, entry);
    if (is_password(text))
        return true;
    tell("Password", "Password Incorrect.");
    return false;
}

static int confirm_core(const char* entry)
{
    if (strncmp(entry, new_password, PASSWORD_MAX) != 0) {
        tell("Change Password", "Failed.\nThe password was not changed.");
        return -1;
    }
    CopyText(SetupLock.password, new_password);
    if (SetupIndex_KeepLock() == 0)
        tell("Change Password", "The password has been successfully\nchanged.");
    return 0;
}

static int newpassword_core(const char* entry)
{
    CopyText(new_password, entry);
    ask_text("New Password\n(Confirm)", confirm_core);
    return 0;
}

static int setupopelock_oldpassword_core(const char* entry)
{
    if (check_password(entry))
        ask_text("New Password", newpassword_core);
    return 0;
}

static int ask_old_password(int)
{
    ask_text("Old Password", setupopelock_oldpassword_core);
    return 0;
}

static void change_password()
{
    WindowArgs args;
    args.message = "Are you sure you want to change\nthe password ?";
    args.is_yes_no = true;
    args.ok = ask_old_password;
    CreateWindow(WINDOW_MESSAGE, "Change Password", args);
}

// --- The lock of the setup pages ---

namespace
{
constexpr int OPE_LOCK_ROWS = 100;
struct SETUPLOCKITEM {
    int lock = 0;
    uint32_t page = 0;
};
enum : int { COL_MENU, COL_GROUP, COL_NAME, COL_LOCK };
constexpr int LIST = 1;
constexpr const char* group_names[SETUP_GROUPS] = {"System", "Panel",        "Switcher", "DME",
                                                   "DCU",    "Router/Tally", "MPE"};
constexpr const char* LOCAL_LOCK = "LOCAL@SetupOpeLock@";
} // namespace

static SETUPLOCKITEM SetupOpeLock[OPE_LOCK_ROWS];
static int VFGroupSel = 0; // outlives the page
static struct {
    int rows = 0;
    int clear_pane = 0;
} sl; // valid from create(1) to create(0)

static void mirror(const char* what, const char* value)
{
    char line[CMD_SIZE];
    PrintText(line, "%s%s#%s", LOCAL_LOCK, what, value);
    (void)SendDummyTally(line);
}

static SETUPMENU* menu_of(int row)
{
    const int i = SetupIndex_Find(SetupOpeLock[row].page);
    return i >= 0 ? &SetupMenu[i] : nullptr;
}

static bool add_item(const SETUPMENU& menu)
{
    if (sl.rows >= OPE_LOCK_ROWS) {
        Log_Output(LOG_ALWAYS, MOD_GLOBAL, "Can't set SetupOpeLock table  Max(%d)  Menu : %08x",
                   OPE_LOCK_ROWS, menu.page);
        return false;
    }
    SetupOpeLock[sl.rows++] = {menu.lock, menu.page};
    return true;
}

// By their numbers, as an operator looks for them.
static void show_items()
{
    std::sort(SetupOpeLock, SetupOpeLock + sl.rows,
              [](const SETUPLOCKITEM& a, const SETUPLOCKITEM& b) { return a.page < b.page; });
    for (int row = 0; row < sl.rows; row++) {
        const SETUPMENU* menu = menu_of(row);
        (void)LS_SetData(LIST, row, COL_MENU, menu ? menu->menu : nullptr);
        (void)LS_SetData(LIST, row, COL_GROUP, group_names[VFGroupSel]);
        (void)LS_SetData(LIST, row, COL_NAME, menu ? menu->name : nullptr);
    }
}

static void show_locks()
{
    for (int row = 0; row < sl.rows; row++)
        (void)LS_SetData(LIST, row, COL_LOCK, FileLoadLockStr[SetupOpeLock[row].lock != 0]);
    (void)LS_SetNData(LIST, sl.rows);
    (void)LS_RedrawData(LIST);
}

static void show_lock_keys()
{
    mirror("Lock", Bool(SetupLock.lock));
    (void)BT_SetDisable(BTN_LOCK_ITEM, SetupLock.lock != 0);
    (void)BT_SetDisable(BTN_LOCK_ITEM_CLEAR, SetupLock.lock != 0);
}

static void build_list()
{
    const int VFGroup_Start = SetupMenuTbl[VFGroupSel].off;
    const int VFGroup_End = VFGroup_Start + SetupMenuTbl[VFGroupSel].num; // behind the group
    sl.rows = 0;
    for (int i = VFGroup_Start; i < VFGroup_End; i++)
        if (SetupMenu[i].active && SetupMenu[i].page != PAGE_SETUP_LOCK && !add_item(SetupMenu[i]))
            break;
    show_items();
    mirror("VF Group", NumStr(VFGroupSel));
    show_locks();
}

static void setupopelock_save()
{
    for (int row = 0; row < sl.rows; row++)
        if (SETUPMENU* menu = menu_of(row))
            menu->lock = SetupOpeLock[row].lock;
    show_locks();
    (void)SetupIndex_KeepLock();
}

static void select_group(const char* value)
{
    const int group = Index(value, SETUP_GROUPS);
    if (group < 0)
        return;
    VFGroupSel = group;
    (void)LS_ClearData(LIST);
    build_list();
    (void)LS_SetNowLine(LIST, 0);
}

static void toggle_items(const char*)
{
    if (SetupLock.lock)
        return;
    for (int n = 0, row; (row = LS_GetSelected(LIST, n)) >= 0; n++)
        if (row < sl.rows)
            SetupOpeLock[row].lock = !SetupOpeLock[row].lock;
    setupopelock_save();
}

static void ask_clear_items(const char*)
{
    if (!SetupLock.lock)
        sl.clear_pane = PaneYesNo_Create("Lock Item All Clear", PANE_ALERT,
                                         "All lock items will be cleared.\n\nContinue?");
}

static void clear_items()
{
    for (int i = 0; i < SetupMenu_Max; i++)
        SetupMenu[i].lock = 0;
    for (SETUPLOCKITEM& item : SetupOpeLock)
        item.lock = 0;
    setupopelock_save();
}

static int setupopelock_lock_core(const char* entry)
{
    if (!check_password(entry))
        return -1;
    SetupLock.lock = !SetupLock.lock;
    show_lock_keys();
    show_locks();
    return SetupIndex_KeepLock();
}

static void ask_lock(const char*)
{
    ask_text("Password", setupopelock_lock_core);
}

static void change_password_sel(const char*)
{
    change_password();
}

namespace
{
struct Command {
    const char* word;
    void (*run)(const char* value);
};
constexpr Command lock_commands[] = {
    {"VF Group", select_group},
    {"Lock Item Select", toggle_items},
    {"Lock Item All Clear", ask_clear_items},
    {"Lock", ask_lock},
    {"Change Password", change_password_sel},
};
} // namespace

static int lock_button(const char* cmd, const char* value)
{
    if (!BeginsWith(cmd, LOCAL_LOCK))
        return 0;
    for (const Command& c : lock_commands)
        if (Same(cmd + strlen(LOCAL_LOCK), c.word))
            c.run(value);
    return 0;
}

static int setupopelock_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    constexpr int yes = 1;
    if (msg == LMSG_BTNSEL)
        return lock_button(Text(ax), Text(bx));
    if (msg == LMSG_PANEQUIT && sl.clear_pane != 0 && int(ax) == sl.clear_pane) {
        sl.clear_pane = 0;
        if (int(bx) == yes)
            clear_items();
    }
    return 0;
}

static int setupopelock_create(int on, uint32_t)
{
    sl = {};
    if (!on)
        return 1;
    build_list();
    (void)LS_SetNowLine(LIST, 0);
    show_lock_keys();
    return 0;
}

const PC_TBL pc_engsetup_system_maintenance_setupopelock = {.proc_func = setupopelock_proc,
                                                            .create_func = setupopelock_create};

// --- The load lock of files ---

#define LOCAL_LOAD_LOCK "LOCAL@FileLoadLock@"
#define LOAD_LOCK "Info@System Setup Data@File Load Lock"

namespace
{
struct loadlock {
    char item[24];
    char lock[8];
};
constexpr int LOAD_LOCK_ROWS = FILE_LOCKS - 1; // the setup follows its regions
// The categories from the second on, then the four regions of the setup.
constexpr const char* load_lock_items[LOAD_LOCK_ROWS] = {
    "Initial Status",   "Key Memory",   "Video Process Memory", "Effect",    "Snapshot",
    "Wipe Snapshot",    "DME Snapshot", "Key Snapshot",         "Shotbox",   "Macro",
    "Macro Attachment", "Menu Macro",   "User Setup",           "Setup SWR", "Setup DME",
    "Setup PNL",        "Setup SYS",
};
constexpr int FIRST_REGION = LOAD_LOCK_ROWS - SETUP_REGIONS;
} // namespace

static loadlock FileLoadLock[LOAD_LOCK_ROWS];
static loadlock FileLoadLockTly[LOAD_LOCK_ROWS];
static int FileLoadLockMax = 0;
static SETUPSTATE load_lock_state;

static constexpr SETUPFIELD load_lock_fields[] = {
    {SETUP_CELL(loadlock, lock), .path = LOAD_LOCK, .part = SETUP_BY_PAGE, .column = 1,
     .ask = SETUP_HEAR},
    {SETUP_CELL(loadlock, item), .column = 0},
};

static int load_lock_names(const char** keys, int)
{
    std::copy(std::begin(load_lock_items), std::end(load_lock_items), keys);
    return LOAD_LOCK_ROWS;
}

static constexpr SETUPTABLE load_lock_page = {
    .work = FileLoadLock,
    .tally = FileLoadLockTly,
    .rows = &FileLoadLockMax,
    .state = &load_lock_state,
    .row_size = sizeof(loadlock),
    .max = LOAD_LOCK_ROWS,
    .fields = load_lock_fields,
    .field_count = std::size(load_lock_fields),
    .keys = load_lock_names,
    .list = LIST,
    .btn_clear = BTN_SETUP_CLEAR,
    .btn_execute = BTN_SETUP_EXECUTE,
    .clear = LOCAL_LOAD_LOCK "Clear",
};

static void take_load_lock()
{
    for (int row = 0; row < FileLoadLockMax; row++)
        SetupPage_Take(load_lock_page, row, 0, FileLoadLockStr[GL_FileLock[row + 1] != 0]);
    SetupPage_Show(load_lock_page);
}

static bool is_load_locked(int row)
{
    return FileLoadLock[row].lock[0] != '\0';
}

// One bit a category, the first in the highest. The regions are the lowest four of them, their
// first the highest; the setup as a whole is locked when all of them are.
static uint32_t load_lock_word()
{
    uint32_t word = 0;
    bool are_all_regions = true;
    for (int row = 0; row < LOAD_LOCK_ROWS; row++) {
        word |= uint32_t(is_load_locked(row)) << (30 - row);
        are_all_regions = are_all_regions && (row < FIRST_REGION || is_load_locked(row));
    }
    return word | uint32_t(are_all_regions) << 31;
}

static int fileloadlock_execute_core(const char* entry)
{
    if (check_password(entry))
        Net_SendCommandFormat("put " LOAD_LOCK "#%08X", load_lock_word());
    return 0;
}

static void toggle_load_lock()
{
    for (int n = 0, row; (row = SetupPage_Selected(load_lock_page, n)) >= 0; n++)
        CopyText(FileLoadLock[row].lock, FileLoadLockStr[!is_load_locked(row)]);
    SetupPage_Show(load_lock_page);
}

static int load_lock_button(const char* cmd)
{
    if (Same(cmd, LOCAL_LOAD_LOCK "Lock"))
        toggle_load_lock();
    else if (Same(cmd, LOCAL_LOAD_LOCK "Execute"))
        ask_text("Password", fileloadlock_execute_core);
    else if (Same(cmd, LOCAL_LOAD_LOCK "Change Password"))
        change_password();
    else
        return 0;
    return 1;
}

static int fileloadlock_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg == MSG_TALLY && Same(Text(ax), LOAD_LOCK))
        take_load_lock(); // the word itself has been taken apart before
    else if (msg != LMSG_BTNSEL || !load_lock_button(Text(ax)))
        (void)SetupPage_Proc(load_lock_page, msg, ax, bx);
    return 0;
}

static int fileloadlock_create(int on, uint32_t)
{
    (void)SetupPage_CreateOf<load_lock_page>(on, 0);
    if (on)
        take_load_lock();
    return !on;
}

const PC_TBL pc_engsetup_system_maintenance_fileloadlock = {.proc_func = fileloadlock_proc,
                                                            .create_func = fileloadlock_create};

void EngSetupLock_Reset()
{
    SetupPage_Forget(load_lock_page);
    VFGroupSel = 0;
    sl = {};
}
