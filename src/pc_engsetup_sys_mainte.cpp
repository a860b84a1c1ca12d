// The Maintenance page: the clock, what the drives hold, formatting them, the driver of memory
// sticks, the stick that imports come from.
#include "a_bt.h"
#include "a_ls.h"
#include "a_nb.h"
#include "file.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "pc_engsetup_sys.h"
#include "process.h"
#include "storage.h"
#include "tally_value.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>
#include <ctime>
#include <iterator>

#include "safeguards.h"

#define LOCAL_MAINTENANCE "LOCAL@Engineering Setup@System@Maintenance@"

namespace
{
enum : int { LIST_FIXED = 1, LIST_REMOVABLE = 2 };
enum : int { FIXED_LOCAL, FIXED_NETWORK, FIXED_DRIVES };
constexpr int STICKS = 9;
enum : int { COL_DEVICE, COL_PATH, COL_TOTAL, COL_USED, COL_FREE };

struct Drive {
    char device[24] = "";
    char path[32] = "";
    char total[16] = "";
    char used[16] = "";
    char free[16] = "";
};
} // namespace

static struct {
    tm TimeSet = {}; // what the knobs have made of the clock
    int is_set = 0;  // the knobs have been turned: the clock no longer shows itself
    int shown_s = -1;
    char caption[32] = "";
    Drive fixed[FIXED_DRIVES];
    Drive stick[STICKS];
    int sticks = 0;
    int is_refreshed = 0;
    int format_pane = 0;
    int hdd_pane = 0;
    int busy_pane = 0;
    uint32_t reload = 0; // label of a job, 0 none
} mt;                    // valid from create(1) to create(0)

// --- Running a command of the device ---

static int run(const char* cmd)
{
    Log_Output(LOG_LIFE, MOD_GLOBAL, "Execute: %s", cmd);
    return ktr_system(cmd);
}

static void show_busy(const char* caption, const char* message)
{
    WindowArgs args;
    args.message = message;
    args.no_button = true;
    CreateWindow(WINDOW_MESSAGE, caption, args);
    MBox_RedrawMessage(message); // at once: what follows blocks
}

static void tell(const char* caption, int icon, const char* message)
{
    CloseWindow();
    (void)PaneMessage_Create(caption, icon, message);
}

// --- The clock ---

// "Nov 25 15:34:56 2026", on a key.
static void sysmainte_settime()
{
    const char* text = asctime(&mt.TimeSet);
    if (!text)
        return;
    char shown[32];
    CopyText(shown, text + 4);
    shown[strcspn(shown, "\n")] = '\0';
    if (strlen(shown) > 15) {
        shown[6] = '\n'; // the day, the time, the year below each other
        shown[15] = '\n';
    }
    CopyText(mt.caption, shown);
    (void)BT_SetCaption(BTN_MAINTENANCE_TIME, mt.caption);
}

static void show_boxes()
{
    const int values[] = {mt.TimeSet.tm_year + 1900, mt.TimeSet.tm_mon + 1, mt.TimeSet.tm_mday,
                          mt.TimeSet.tm_hour, mt.TimeSet.tm_min};
    for (size_t i = 0; i < std::size(values); i++)
        (void)NB_SetVar(int(i) + 1, values[i]);
}

// The caption of their button is the time itself: no title for a column of boxes.
static void show_knobs()
{
    if (BT_GetKnobAssign() == BTN_MAINTENANCE_TIME)
        (void)NB_SetTitle("Time/Date");
    show_boxes();
}

static void read_clock()
{
    const time_t now = time(nullptr);
    if (!gmtime_r(&now, &mt.TimeSet))
        return;
    if (mt.TimeSet.tm_sec == mt.shown_s)
        return;
    mt.shown_s = mt.TimeSet.tm_sec;
    sysmainte_settime();
    show_boxes();
}

static int days_of(int month, int year)
{
    static constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool is_leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return days[month] + (month == 1 && is_leap);
}

static int knob_turned(int box, int value)
{
    tm& t = mt.TimeSet;
    mt.is_set = 1;
    switch (box) {
    case 1: t.tm_year = std::clamp(value, 2000, 2037) - 1900; break;
    case 2: t.tm_mon = std::clamp(value, 1, 12) - 1; break;
    case 3: t.tm_mday = std::clamp(value, 1, 31); break;
    case 4: t.tm_hour = std::clamp(value, 0, 23); break;
    case 5: t.tm_min = std::clamp(value, 0, 59); break;
    default: return 0;
    }
    t.tm_sec = 0; // a new time is set on the minute
    t.tm_mday = std::min(t.tm_mday, days_of(t.tm_mon, t.tm_year + 1900));
    tm whole = t;
    if (timegm(&whole) != time_t(-1))
        t = whole; // with its day of the week
    sysmainte_settime();
    show_boxes();
    return 0;
}

static void sysmainte_settimedate()
{
    char text[32];
    char cmd[CMD_SIZE];
    const char* const made = asctime(&mt.TimeSet);
    if (!made)
        return;
    CopyText(text, made);
    text[strcspn(text, "\n")] = '\0';
    if (!IsShellSafe(text))
        return;
    PrintText(cmd, "/bin/date -u -s \"%s UTC\"", text);
    if (run(cmd) != 0)
        return tell("Set Time/Date", PANE_ALERT, "Error: Wrong Format.");
    Net_SendCommandFormat("put Engineering Setup@System@Maintenance@DateTime#%X",
                          unsigned(time(nullptr)));
    (void)run("/sbin/hwclock --systohc");
    mt.is_set = 0;
}

static void forget_time()
{
    mt.is_set = 0;
    mt.shown_s = -1;
    read_clock();
}

// --- What the drives hold ---

static void show_drive(int list, int row, const Drive& d)
{
    const char* const cells[] = {d.device, d.path, d.total, d.used, d.free};
    for (size_t col = 0; col < std::size(cells); col++)
        (void)LS_SetData(list, row, int(col), cells[col]);
}

static void show_drives()
{
    for (int row = 0; row < FIXED_DRIVES; row++)
        show_drive(LIST_FIXED, row, mt.fixed[row]);
    for (int row = 0; row < mt.sticks; row++)
        show_drive(LIST_REMOVABLE, row, mt.stick[row]);
    if (!mt.is_refreshed) {
        (void)LS_SetData(LIST_FIXED, 0, COL_DEVICE, "For displaying device information,");
        (void)LS_SetData(LIST_FIXED, 1, COL_DEVICE, "   press [Refresh] button.");
    }
    (void)LS_SetNData(LIST_FIXED, FIXED_DRIVES);
    (void)LS_SetNData(LIST_REMOVABLE, mt.sticks);
    (void)LS_RedrawData(LIST_FIXED);
    (void)LS_RedrawData(LIST_REMOVABLE);
    (void)BT_SetDisable(BTN_MAINTENANCE_FORMAT, mt.sticks == 0);
    (void)BT_SetDisable(BTN_MAINTENANCE_PRIMARY, mt.sticks == 0);
}

// Sizes in MB from the last line that df prints; blank when it fails.
static void ask_sizes(Drive& d, const char* cmd)
{
    DfSizes sizes;
    FILE* fp = ktr_popen(cmd, "r");
    if (!fp)
        return;
    const bool is_read = Storage_ReadDf(fp, &sizes);
    if (ktr_pclose(fp) != 0 || !is_read)
        return;
    PrintText(d.total, "%ld", sizes.total_mb);
    PrintText(d.used, "%ld", sizes.used_mb);
    PrintText(d.free, "%ld", sizes.free_mb);
}

static void refresh_sticks()
{
    char dir[PATH_SIZE];
    int total_kb = 0;
    int free_kb = 0;
    mt.sticks = 0;
    for (int n = 0; n < STICKS; n++) {
        if (GetUSBMountPointInfo(n, dir, sizeof dir) != 0)
            continue;
        Drive& d = mt.stick[mt.sticks++];
        d = {};
        PrintText(d.device, "Removable %d", mt.sticks);
        PrintText(d.path, "%.30s/", dir);
        if (Same(d.path, GL_ImportDataPath))
            AppendText(d.device, " (Primary)");
        if (GetUSBStorageInfo(n, &total_kb, &free_kb) != 0)
            continue;
        PrintText(d.total, "%d", total_kb / 1024);
        PrintText(d.used, "%d", (total_kb - free_kb) / 1024);
        PrintText(d.free, "%d", free_kb / 1024);
    }
}

static void refresh()
{
    Drive& local = mt.fixed[FIXED_LOCAL];
    Drive& network = mt.fixed[FIXED_NETWORK];
    local = network = {};
    CopyText(local.device, "Local Drive");
    CopyText(local.path, "/mnt/data");
    ask_sizes(local, "/bin/df -m /mnt/data");
    CopyText(network.device, "Network");
    CopyText(network.path, "/var/nfs");
    if (GL_NFS_Mounted)
        ask_sizes(network, "/bin/df -m /var/nfs");
    refresh_sticks();
    mt.is_refreshed = 1;
    show_drives();
}

// --- Formatting ---

static void ask_format()
{
    if (mt.sticks > 0)
        mt.format_pane = PaneYesNo_Create("Format", PANE_ALERT,
                                          "This operation will cause all data to be\nerased in the "
                                          "removable drive.\n\nContinue?");
}

static void ask_hdd_format()
{
    mt.hdd_pane = PaneYesNo_Create(
        "Format", PANE_ALERT,
        "This operation will cause all data to be\nerased in the local drive,\nand system will be "
        "rebooting after the \ncompletion of local drive format.\n\nContinue?");
}

// The disk of a line of the list of removable drives: the lines behind the ninth begin again.
static char drive_letter(int line)
{
    constexpr int last_of_first = 8;
    return char(line <= last_of_first ? 'a' + line : line + 88);
}

static void sysmainte_format_core()
{
    const int line = LS_GetNowLine(LIST_REMOVABLE);
    char device[16];
    char cmd[CMD_SIZE];
    if (line < 0 || line >= mt.sticks)
        return;
    PrintText(device, "/dev/sd%c", drive_letter(line));
    PrintText(cmd, "./script/usb_format.sh %s", device);
    show_busy("Format", "Formatting...");
    Log_Output(LOG_LIFE, MOD_GLOBAL, "Execute Command: [%s]", cmd);
    const int result = ktr_system(cmd);
    Log_Output(LOG_LIFE, MOD_GLOBAL, "Returned Value: [%d]", result);
    refresh();
    if (result == 0)
        tell("Format", PANE_INFO, "Success!!");
    else
        tell("Format", PANE_ALERT, "Failure.\n\nMake sure of the removable drive.");
}

static void hdd_format_core()
{
    show_busy("Format", "Formatting...");
    if (run("/app/jig/script/ssd_format.sh") != 0)
        return tell("Format", PANE_ALERT, "Failure...");
    tell("Format", PANE_INFO, "Success!!\n\nSystem will be restarted.");
    (void)run("/sbin/shutdown -r now");
}

// --- The driver of the sticks ---

static void end_reload()
{
    if (mt.busy_pane)
        (void)Pane_Quit(mt.busy_pane);
    mt.busy_pane = 0;
    mt.reload = 0;
}

static void refreshed(uint32_t label, int, const char* reply)
{
    if (label != mt.reload)
        return;
    end_reload();
    if (!reply || reply[0] == 'N')
        return tell("USB Refresh", PANE_ALERT, "Time out.");
    refresh();
}

static void busy(const char* caption, const char* message, int label)
{
    constexpr int cancel = 1;
    if (label < 1)
        return tell(caption, PANE_ALERT, "Time out.");
    mt.reload = uint32_t(label);
    mt.busy_pane = PaneProgress_Create(caption, message, cancel);
}

static void reloaded(uint32_t label, int, const char* reply)
{
    if (label != mt.reload)
        return;
    end_reload();
    if (!reply || reply[0] == 'N')
        return tell("USB ReLoad", PANE_ALERT, "Time out.");
    busy("USB Refresh", "Just a moment, please...", File_ExecUSBRefresh(refreshed, 0));
}

static void reload_driver()
{
    if (mt.reload == 0)
        busy("USB ReLoad", "ReLoad USB storage device...", File_ExecUSBReload(reloaded, 0));
}

// --- The stick that imports come from ---

static void set_primary()
{
    const int line = LS_GetNowLine(LIST_REMOVABLE);
    if (line >= 0 && line < mt.sticks)
        Net_SendCommandFormat("put Info@Operation Setup Data@Import Path#%s", mt.stick[line].path);
}

// --- Messages ---

namespace
{
struct Command {
    const char* cmd;
    void (*run)();
};
constexpr Command commands[] = {
    {LOCAL_MAINTENANCE "Time", show_knobs},
    {LOCAL_MAINTENANCE "Set Time/Date", sysmainte_settimedate},
    {LOCAL_MAINTENANCE "Clear Time/Date", forget_time},
    {LOCAL_MAINTENANCE "Refresh", refresh},
    {LOCAL_MAINTENANCE "Format", ask_format},
    {LOCAL_MAINTENANCE "HDD Format", ask_hdd_format},
    {LOCAL_MAINTENANCE "Reload USB Driver", reload_driver},
    {LOCAL_MAINTENANCE "Primary", set_primary},
};
} // namespace

static int button_pressed(const char* cmd)
{
    for (const Command& c : commands)
        if (Same(c.cmd, cmd))
            c.run();
    return 0;
}

static int pane_closed(int pane, int result)
{
    constexpr int yes = 1;
    if (pane == 0)
        return 0;
    if (pane == mt.busy_pane) {
        (void)File_ExecUSBReload_cancel(mt.reload); // -1: it has ended meanwhile
        mt.busy_pane = 0;
        mt.reload = 0;
    } else if (pane == mt.format_pane) {
        mt.format_pane = 0;
        if (result == yes)
            sysmainte_format_core();
    } else if (pane == mt.hdd_pane) {
        mt.hdd_pane = 0;
        if (result == yes)
            hdd_format_core();
    }
    return 0;
}

static int redraw()
{
    if (!mt.is_set)
        read_clock();
    return 0;
}

// The server has taken another stick: the list says which.
static int import_path_told()
{
    if (mt.is_refreshed)
        refresh_sticks();
    show_drives();
    return 0;
}

static int pc_engsetup_system_maintenance_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return redraw();
    case MSG_TALLY:
        return Same(Text(ax), "Info@Operation Setup Data@Import Path") ? import_path_told() : 0;
    case LMSG_BTNSEL: return button_pressed(Text(ax));
    case LMSG_KNOBVAR: return knob_turned(int(ax), int(bx));
    case LMSG_PANEQUIT: return pane_closed(int(ax), int(bx));
    default: return 0;
    }
}

static int pc_engsetup_system_maintenance_create(int on, uint32_t)
{
    if (!on && mt.reload != 0)
        (void)File_ExecUSBReload_cancel(mt.reload);
    mt = {};
    if (!on)
        return 1;
    show_drives();
    read_clock();
    show_knobs();
    return 0;
}

const PC_TBL pc_engsetup_system_maintenance = {.proc_func = pc_engsetup_system_maintenance_proc,
                                               .create_func =
                                                   pc_engsetup_system_maintenance_create};
