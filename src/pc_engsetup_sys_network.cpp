// The Network pages: the units and their addresses, the server of the network drive, what a
// non-maskable interrupt resets.
#include "a_bt.h"
#include "a_ls.h"
#include "bus.h"
#include "command.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "pc_engsetup_sys.h"
#include "process.h"
#include "setup_page.h"
#include "storage.h"
#include "tally_value.h"
#include "text.h"
#include "window.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

#define NETWORK "Engineering Setup@System@Network Config@"
#define LOCAL_NETWORK "LOCAL@" NETWORK
#define SYSTEM_DATA "Info@System Setup Data@"

static constexpr int YES = 1;

static void ask_text(const char* caption, const char* now, size_t size, int (*core)(const char*))
{
    WindowArgs args;
    args.value = now;
    args.input_max = int(size) - 1;
    args.ok_text = core;
    CreateWindow(WINDOW_KEYBOARD, caption, args);
}

static void tell_error(const char* message)
{
    (void)PaneMessage_Create("Error", PANE_ALERT, message);
}

// --- What the server does for a while ---

namespace
{
constexpr int ANSWER_MS = 60000; // the server says nothing for so long: it won't
struct Job {
    const char* path = nullptr; // its outcome is a tally of this; null: none runs
    int pane = 0;
    int left_ms = 0;
    void (*ended)(bool is_ok) = nullptr;
};
} // namespace

static Job job; // leaves with the page

static void end_job()
{
    if (job.pane)
        (void)Pane_Quit(job.pane);
    if (job.path)
        Net_SendCommandFormat("remove %s", job.path);
    job = {};
}

// The outcome is followed from the put on: before it the path still has that of the time before.
static void start_job(const char* path, const char* caption, const char* message,
                      void (*ended)(bool is_ok))
{
    end_job();
    constexpr int no_cancel = 0;
    job = {path, PaneProgress_Create(caption, message, no_cancel), ANSWER_MS, ended};
    Net_SendCommandFormat("put %s#true", path);
    Net_SendCommandFormat("add %s", path);
}

static void finish_job(bool is_ok)
{
    void (*const ended)(bool) = job.ended;
    end_job();
    ended(is_ok);
}

static int job_tally(const char* path, const char* value)
{
    if (!job.path || !Same(path, job.path))
        return 0;
    if (BeginsWith(value, "OK"))
        finish_job(true);
    else if (BeginsWith(value, "NG"))
        finish_job(false);
    return 1;
}

static void job_tick(int elapsed_ms)
{
    if (!job.path)
        return;
    job.left_ms -= elapsed_ms;
    if (job.left_ms <= 0)
        finish_job(false);
}

// --- The units ---

namespace
{
constexpr int NETCONF_ROWS = 64;
struct netconf {
    char deviceid[16];
    char name[17];
    char ctrllan[16];
    char datalan[16];
    char prphlan[16];
};
enum : int { FLD_NAME, FLD_CTRL, FLD_DATA, FLD_PRPH };
constexpr int LAN_FIELDS[] = {FLD_CTRL, FLD_DATA, FLD_PRPH};
constexpr int GROUPS = 10; // ids 0 to 9
constexpr int UNITS = 255; // 0 to 254
} // namespace

static netconf NetConf[NETCONF_ROWS];
static netconf NetConfTly[NETCONF_ROWS];
static int NetConfMax = 0;
static SETUPSTATE network_state;

static constexpr SETUPFIELD network_fields[] = {
    {SETUP_CELL(netconf, name), .path = NETWORK "List", .part = 1, .column = 1, .ask = SETUP_READ},
    {SETUP_CELL(netconf, ctrllan), .path = NETWORK "List", .part = 2, .column = 2,
     .ask = SETUP_READ},
    {SETUP_CELL(netconf, datalan), .path = NETWORK "List", .part = 3, .column = 3,
     .ask = SETUP_READ},
    {SETUP_CELL(netconf, prphlan), .path = NETWORK "List", .part = 4, .column = 4,
     .ask = SETUP_READ},
    {SETUP_CELL(netconf, deviceid), .column = 0},
};

static constexpr SETUPTABLE network_page = {
    .work = NetConf,
    .tally = NetConfTly,
    .rows = &NetConfMax,
    .state = &network_state,
    .row_size = sizeof(netconf),
    .max = NETCONF_ROWS,
    .fields = network_fields,
    .field_count = std::size(network_fields),
    .list = 1,
    .btn_clear = BTN_SETUP_CLEAR,
    .clear = LOCAL_NETWORK "Clear",
};

static int define_pane = 0;
static int auto_pane = 0;

// The four numbers of an address, false when it is none.
static bool split_address(const char* text, int (&number)[4])
{
    for (int i = 0; i < 4; i++) {
        char* end = nullptr;
        const long n = strtol(text, &end, 10);
        if (end == text || n < 0 || n > 255 || *end != (i < 3 ? '.' : '\0'))
            return false;
        number[i] = int(n);
        text = end + 1;
    }
    return true;
}

static const char* current_address()
{
    return SetupPage_Text(network_page, network_state.cursor, FLD_CTRL);
}

// The group is the last digit of an address' third number, the unit is its fourth.
static void set_ids(int group, int unit)
{
    int number[4] = {};
    char text[sizeof netconf::ctrllan];
    for (const int field : LAN_FIELDS) {
        if (!split_address(SetupPage_Text(network_page, network_state.cursor, field), number))
            continue;
        const int third = group < 0 ? number[2] : number[2] / GROUPS * GROUPS + group;
        PrintText(text, "%d.%d.%d.%d", number[0], number[1], third > 255 ? number[2] : third,
                  unit < 0 ? number[3] : unit);
        SetupPage_Set(network_page, network_state.cursor, field, text);
    }
}

static int group_core(int value)
{
    if (value < GROUPS)
        set_ids(value, -1);
    else
        tell_error("The group ID is 0 to 9.");
    return 0;
}

static int unit_core(int value)
{
    if (value < UNITS)
        set_ids(-1, value);
    else
        tell_error("The unit ID is 0 to 254.");
    return 0;
}

static void ask_id(const char* caption, bool is_group, int (*core)(int))
{
    int number[4] = {};
    if (!split_address(current_address(), number))
        return;
    WindowArgs args;
    args.value = NumStr(is_group ? number[2] % GROUPS : number[3]);
    args.ok = core;
    CreateWindow(WINDOW_BANK, caption, args);
}

// --- Define and Auto Config ---

static void defined(bool is_ok)
{
    if (!is_ok)
        tell_error("It failed.\nPlease confirm the server address.");
}

static void define()
{
    SetupPage_Put(network_page);
    start_job(NETWORK "Define", "Define", "Wait a moment, please.", defined);
}

// The new addresses count from the next start on.
static void configured(bool is_ok)
{
    if (!is_ok)
        return tell_error("It failed.\nPlease confirm the server address.");
    (void)ktr_system("/sbin/shutdown -r now");
}

static void auto_config()
{
    start_job(NETWORK "Network Auto Config", "Auto Config", "Configuring now...", configured);
    Net_SendCommand("put Info@Self Diagnosis Notice@PNL#true");
}

// An address or a host's name: what goes to the server and later into commands.
static int nfs_server_core(const char* text)
{
    if (!text[0] || strchr(text, ' ') || text[0] == '-' || !IsShellSafe(text)) {
        tell_error("Invalid Address.");
        return -1;
    }
    Net_SendCommandFormat("put " SYSTEM_DATA "NFS Server#%s", text);
    return 0;
}

static void ask_nfs_server()
{
    ask_text("Server Address", GL_NFS_Server, sizeof GL_NFS_Server, nfs_server_core);
}

static void ask_define()
{
    define_pane = PaneYesNo_Create("Define", PANE_ALERT,
                                   "This operation will cause the data to be\noverwritten in the "
                                   "flash memory.\n\nContinue?");
}

static void ask_auto_config()
{
    auto_pane = PaneYesNo_Create("Auto Config", PANE_ALERT, "Are you sure?");
}

static void ask_group()
{
    ask_id("Group ID", true, group_core);
}
static void ask_unit()
{
    ask_id("Unit ID", false, unit_core);
}

namespace
{
struct Command {
    const char* cmd;
    void (*run)();
};
constexpr Command network_commands[] = {
    {LOCAL_NETWORK "Define", ask_define},         {LOCAL_NETWORK "Auto Config", ask_auto_config},
    {LOCAL_NETWORK "Group ID", ask_group},        {LOCAL_NETWORK "Unit ID", ask_unit},
    {LOCAL_NETWORK "NFS Server", ask_nfs_server},
};
} // namespace

template <size_t N> static int run_command(const Command (&commands)[N], const char* cmd)
{
    for (const Command& c : commands)
        if (Same(c.cmd, cmd)) {
            c.run();
            return 1;
        }
    return 0;
}

static int network_pane(int pane, int result)
{
    if (pane == 0 || (pane != define_pane && pane != auto_pane))
        return 0;
    const bool is_define = pane == define_pane;
    define_pane = auto_pane = 0;
    if (result == YES)
        is_define ? define() : auto_config();
    return 1;
}

static int pc_engsetup_system_networkconfig_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg == MSG_REDRAW || msg == MSG_PANETICK)
        job_tick(int(ax));
    else if (msg == LMSG_BTNSEL && run_command(network_commands, Text(ax)))
        return 0;
    else if (msg == LMSG_PANEQUIT && network_pane(int(ax), int(bx)))
        return 0;
    else if (msg == MSG_TALLY && job_tally(Text(ax), Text(bx)))
        return 0;
    (void)SetupPage_Proc(network_page, msg, ax, bx);
    return 0;
}

static int pc_engsetup_system_networkconfig_create(int on, uint32_t)
{
    define_pane = auto_pane = 0;
    if (!on)
        end_job();
    return SetupPage_CreateOf<network_page>(on, 0);
}

const PC_TBL pc_engsetup_system_networkconfig = {.proc_func = pc_engsetup_system_networkconfig_proc,
                                                 .create_func =
                                                     pc_engsetup_system_networkconfig_create};

// --- The network drive ---

namespace
{
enum : int { NFS_ROW_SERVER, NFS_ROW_POINT, NFS_ROW_OPTION, NFS_ROW_STATE, NFS_ROWS };
constexpr const char* nfs_names[NFS_ROWS] = {"Server", "Mount Point", "Mount Option", "Status"};
} // namespace

static void show_nfs()
{
    const char* const texts[NFS_ROWS] = {GL_NFS_Server, GL_NFS_MountPoint, GL_NFS_MountOption,
                                         GL_NFS_Mounted ? "Mounted" : "Not mounted"};
    char line[CMD_SIZE];
    for (int row = 0; row < NFS_ROWS; row++) {
        (void)LS_SetData(1, row, 0, nfs_names[row]);
        (void)LS_SetData(1, row, 1, texts[row]);
    }
    (void)LS_SetNData(1, NFS_ROWS);
    (void)LS_RedrawData(1);
    PrintText(line, LOCAL_NETWORK "NFS Mount#%s", Bool(GL_NFS_Mounted));
    (void)SendDummyTally(line);
}

// Both become words of a command: no blanks, nothing that begins another option.
static int put_nfs_word(const char* name, const char* text)
{
    bool is_word = text[0] != '\0' && text[0] != '-';
    for (const char* p = text; *p; p++)
        is_word = is_word && (isalnum(uint8_t(*p)) || strchr("/._-:@+=,", *p));
    if (!is_word) {
        tell_error("Invalid Name.");
        return -1;
    }
    Net_SendCommandFormat("put " SYSTEM_DATA "%s#%s", name, text);
    return 0;
}

static int nfs_point_core(const char* text)
{
    return put_nfs_word("NFS Mount Point", text);
}
static int nfs_option_core(const char* text)
{
    return put_nfs_word("NFS Mount Option", text);
}
static void ask_nfs_point()
{
    ask_text("Mount Point", GL_NFS_MountPoint, sizeof GL_NFS_MountPoint, nfs_point_core);
}
static void ask_nfs_option()
{
    ask_text("Mount Option", GL_NFS_MountOption, sizeof GL_NFS_MountOption, nfs_option_core);
}

static void toggle_nfs()
{
    const int result = GL_NFS_Mounted ? NFS_UnMount() : NFS_Mount();
    if (result != 0)
        tell_error("It failed.\nPlease confirm the server address.");
    show_nfs();
}

static constexpr Command nfs_commands[] = {
    {LOCAL_NETWORK "NFS Server", ask_nfs_server},
    {LOCAL_NETWORK "NFS Config@Mount Point", ask_nfs_point},
    {LOCAL_NETWORK "NFS Config@Mount Option", ask_nfs_option},
    {LOCAL_NETWORK "NFS Mount", toggle_nfs},
};

static int pc_engsetup_system_nfsconfig_proc(int msg, MsgArg ax, MsgArg, MsgArg, MsgArg)
{
    if (msg == LMSG_BTNSEL)
        (void)run_command(nfs_commands, Text(ax));
    else if (msg == MSG_TALLY && BeginsWith(Text(ax), SYSTEM_DATA "NFS "))
        show_nfs(); // the words themselves have been taken before
    return 0;
}

static int pc_engsetup_system_nfsconfig_create(int on, uint32_t)
{
    if (on)
        show_nfs();
    return !on;
}

const PC_TBL pc_engsetup_system_nfsconfig = {.proc_func = pc_engsetup_system_nfsconfig_proc,
                                             .create_func = pc_engsetup_system_nfsconfig_create};

// --- Non-maskable interrupts ---

namespace
{
constexpr int NMI_ROWS = 15;
struct nmiconf {
    char slot[16];
    char reset[16];
};
} // namespace

static nmiconf NMIConf[NMI_ROWS];
static nmiconf NMIConfTly[NMI_ROWS];
static int NMIConfMax = 0;
static SETUPSTATE nmi_state;

static constexpr SETUPWORD nmi_words[] = {{"true", "Enable"}, {"false", "Disable"}, {}};
static constexpr SETUPFIELD nmi_fields[] = {
    {SETUP_CELL(nmiconf, reset), .path = NETWORK "NMI Config@Reset@$", .column = 1,
     .words = nmi_words},
    {SETUP_CELL(nmiconf, slot), .column = 0},
};
static constexpr SETUPCHOICE nmi_choices[] = {{LOCAL_NETWORK "NMI Config@Reset", 0}};

static int nmi_slots(const char** keys, int max)
{
    static char slots[NMI_ROWS][8];
    int n = 0;
    for (; n < NMI_ROWS && n < max; n++) {
        PrintText(slots[n], "Slot%d", n + 1);
        keys[n] = slots[n];
    }
    return n;
}

static constexpr SETUPTABLE nmi_page = {
    .work = NMIConf,
    .tally = NMIConfTly,
    .rows = &NMIConfMax,
    .state = &nmi_state,
    .row_size = sizeof(nmiconf),
    .max = NMI_ROWS,
    .fields = nmi_fields,
    .field_count = std::size(nmi_fields),
    .keys = nmi_slots,
    .list = 1,
    .btn_clear = BTN_SETUP_CLEAR,
    .btn_execute = BTN_SETUP_EXECUTE,
    .clear = LOCAL_NETWORK "NMI Config@Clear",
    .execute = LOCAL_NETWORK "NMI Config@Execute",
    .question = "Are you sure?",
    .choices = nmi_choices,
    .choice_count = std::size(nmi_choices),
};
const PC_TBL pc_engsetup_system_nmiconfig = SetupPage_Code<nmi_page>;

void EngSetupNetwork_Reset()
{
    SetupPage_Forget(network_page);
    SetupPage_Forget(nmi_page);
    job = {};
    define_pane = auto_pane = 0;
}
