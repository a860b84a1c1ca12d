// The setup of the operation and of the system, as far as the menu itself lives by it.
#include "a_kf.h"
#include "device.h"
#include "favorites.h"
#include "global.h"
#include "info.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "tally_value.h"
#include "touch.h"
#include <cctype>
#include <iterator>

#include "safeguards.h"

namespace
{
struct SetupRow {
    const char* path; // behind the prefix of the table
    void (*take)(const char* value);
};
} // namespace

template <size_t N>
static void take_row(const SetupRow (&rows)[N], const char* rest, const char* value)
{
    for (const SetupRow& row : rows)
        if (Same(row.path, rest))
            return row.take(value);
}

template <int* state> static void take_flag(const char* value)
{
    *state = IsTrue(value);
}

template <int* state> static void take_switch_or_number(const char* value)
{
    *state = SwitchOrNumber(value);
}

// --- The operation ---

constexpr int SAVER_MAX_S = 18000;
constexpr int REGION_DISPLAYS = 3;
constexpr int REGION_PRIORITIES = 256; // 255 is none
constexpr int SHORTCUT_GROUPS = 10;
constexpr int SHORTCUTS = 120; // twelve in each group

static void take_screen_saver(const char* value)
{
    GL_ScreenSaverInterval = int(NumberIn(value, 0, SAVER_MAX_S));
}

static void take_touch_buzz(const char* value)
{
    GL_TouchBuzz = SwitchOrNumber(value);
    SetTouchBeep();
}

static void take_import_path(const char* value)
{
    CopyText(GL_ImportDataPath, value);
}

// "n,v" for region n, from 1.
static void take_region(const char* value, int values, int (*set)(int region, int v))
{
    Parts p;
    SplitValue(p, value, 2);
    const int region = Index(p.v[0], KF_REGIONS + 1) - 1;
    const int v = Index(p.v[1], values);
    if (region >= 0 && v >= 0)
        (void)set(region, v); // both are in range
}

static void take_region_display(const char* value)
{
    take_region(value, REGION_DISPLAYS, KF_SetRegionDisplay);
}

static void take_region_priority(const char* value)
{
    take_region(value, REGION_PRIORITIES, KF_SetRegionPriority);
}

static void take_wheel_direction(const char* value)
{
    GL_MouseWheelDirection = Same(value, "Scrl Up Clockwise");
}

static void take_slider_control(const char* value)
{
    GL_MouseSliderControl = Same(value, "Left Button");
}

static constexpr SetupRow operation_rows[] = {
    {"Screen Saver", take_screen_saver},
    {"Touch Buzz", take_touch_buzz},
    {"Import Path", take_import_path},
    {"Timeline Display Priority", take_switch_or_number<&GL_TimelineDisplayPriority>},
    {"Error Status", take_switch_or_number<&GL_ErrorPopup>},
    {"Timeline Region Display", take_region_display},
    {"Timeline Region Priority", take_region_priority},
    {"SRAM Map KeyCode", take_flag<&GL_SRAM_12K_Extension>},
    {"Usb Auto Scan", take_flag<&GL_USB_AutoScan>},
    {"Unnecessary Thumbnail", take_switch_or_number<&GL_UnnecessaryThumb>},
    {"Mouse Wheel Direction", take_wheel_direction},
    {"Mouse Slider Control", take_slider_control},
    {"Reg Name Display", take_switch_or_number<&GL_RegNameDisplay>},
};

// "Group Name@3": hand on the number, from 1. Returns whether the path was one of these.
static bool take_numbered(const char* rest, const char* prefix, int count, const char* value,
                          void (*take)(int number, const char* value))
{
    if (!BeginsWith(rest, prefix))
        return false;
    const int number = Index(rest + strlen(prefix), count + 1);
    if (number >= 1)
        take(number, value);
    return true;
}

static constexpr char OPERATION_PATH[] = "Info@Operation Setup Data@";

void operationsetup_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg != MSG_TALLY || !ax || !bx || !BeginsWith(Text(ax), OPERATION_PATH))
        return;
    const char* rest = Text(ax) + sizeof OPERATION_PATH - 1;
    const char* value = Text(bx);
    if (take_numbered(rest, "Group Name@", SHORTCUT_GROUPS, value,
                      shortcut_menu_group_name_tally) ||
        take_numbered(rest, "Shortcut Name@", SHORTCUTS, value, shortcut_menu_data_tally))
        return;
    take_row(operation_rows, rest, value);
}

// --- The system ---

static void take_nfs_server(const char* value)
{
    CopyText(GL_NFS_Server, value);
}

static void take_nfs_mount_point(const char* value)
{
    CopyText(GL_NFS_MountPoint, value);
}

static void take_nfs_mount_option(const char* value)
{
    CopyText(GL_NFS_MountOption, value);
}

// Without a word from the server it is the panel's own option that decides.
static int operation_log_by_panel()
{
    return DEV_MyPnl[0] && DEV_MyPnl[0]->function[FUNCTION_OPTION_WORD] == 0;
}

static void set_operation_log(int on)
{
    GL_PanelOperationLog = on;
    Net_SendCommandFormat("set Option@LogFile@Panel Operation Log#%s", Bool(on));
}

static bool operation_log_follows_panel; // the setup has left the choice to the option

static void take_operation_log(const char* value)
{
    const int choice = Decimal(value);
    operation_log_follows_panel = choice != 1 && choice != 2;
    set_operation_log(operation_log_follows_panel ? operation_log_by_panel() : choice == 1);
}

// The option word may come after the setup that goes by it.
static void follow_panel_option()
{
    const int on = operation_log_by_panel();
    if (operation_log_follows_panel && on != GL_PanelOperationLog)
        set_operation_log(on);
}

static bool is_lock_word(const char* value)
{
    int digits = 0;
    while (isxdigit(static_cast<unsigned char>(value[digits])))
        digits++;
    return digits == 8 && value[digits] == '\0';
}

// Eight hexadecimal digits; the categories from the top bit down.
static void take_file_load_lock(const char* value)
{
    if (!is_lock_word(value)) {
        Log_Output(LOG_LINK, MOD_GLOBAL, "File Load Lock: [%s] refused", value);
        return;
    }
    const uint32_t bits = Hex(value);
    for (int i = 0; i < FILE_LOCKS; i++)
        GL_FileLock[i] = bits >> (31 - i) & 1;
}

static constexpr SetupRow system_rows[] = {
    {"NFS Server", take_nfs_server},
    {"NFS Mount Point", take_nfs_mount_point},
    {"NFS Mount Option", take_nfs_mount_option},
    {"Panel Operation Log", take_operation_log},
    {"File Load Lock", take_file_load_lock},
};

static constexpr char SYSTEM_PATH[] = "Info@System Setup Data@";
static constexpr char PANEL_BOARDS_PATH[] = "Info@Board Config@Board Exist Set@PNL";

void systemsetup_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg != MSG_TALLY || !ax || !bx)
        return;
    if (BeginsWith(Text(ax), PANEL_BOARDS_PATH))
        follow_panel_option(); // the word itself has been taken with the units
    if (!BeginsWith(Text(ax), SYSTEM_PATH))
        return;
    take_row(system_rows, Text(ax) + sizeof SYSTEM_PATH - 1, Text(bx));
}
