// How the units work together, what they start with, and their return to a known state: System
// Config, Start Up, Initialize. All are tables.
#include "a_bt.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "pc_engsetup_sys.h"
#include "setup_page.h"
#include "tally_value.h"
#include "text.h"
#include <iterator>

#include "safeguards.h"

#define CONFIG "Engineering Setup@System@System Config@"
#define LOCAL_CONFIG "LOCAL@" CONFIG

static constexpr int DEVICE_ROWS = 16;
static constexpr SETUPWORD words_swr[] = {{"0", "---"},  {"1", "SWR1"}, {"2", "SWR2"},
                                          {"3", "SWR3"}, {"4", "SWR4"}, {}};
static constexpr SETUPWORD words_dme[] = {
    {"0", "---"},  {"1", "DME1"}, {"2", "DME2"}, {"3", "DME3"}, {"4", "DME4"},
    {"5", "DME5"}, {"6", "DME6"}, {"7", "DME7"}, {"8", "DME8"}, {}};

// What can be assigned, as texts.
template <const SETUPWORD* words> static int offer_units(const char** texts, int max)
{
    int n = 0;
    for (; n < max && words[n].wire; n++)
        texts[n] = words[n].text;
    return n;
}

// The numbers of the units of a class, as texts.
static int unit_numbers(const char** keys, int max, const DEVICE* units, int count,
                        char (&numbers)[DEVICE_MAX][8])
{
    int n = 0;
    for (; n < count && n < max && n < DEVICE_MAX; n++) {
        PrintText(numbers[n], "%d", Device_UnitNumber(units[n]));
        keys[n] = numbers[n];
    }
    return n;
}

// --- System Config: the panels, their mode and their switchers ---

namespace
{
struct sysconf {
    char number[8];
    char name[16];
    char opemode[16]; // SysConf_OpeMode
    char swr[5][8];   // SysConf_SWRAssign: the first two are offered
    char master[8];   // SysConf_TallyMaster
};
enum : int {
    FLD_MODE,
    FLD_OTHER_MODE,
    FLD_SWR1,
    FLD_SWR2,
    FLD_SWR3,
    FLD_SWR4,
    FLD_SWR5,
    FLD_MASTER,
};
} // namespace

static sysconf SysConf[DEVICE_MAX];
static sysconf SysConfTly[DEVICE_MAX];
static int SysConfMax = 0;
static SETUPSTATE sysconf_state;

// A place of a line: an element of an array of texts.
#define PLACE(row, array, i)                                                                       \
    .offset = offsetof(row, array) + (i) * sizeof(row::array[0]), .size = sizeof(row::array[0])
#define PANEL_SWITCHER(i, col)                                                                     \
    {                                                                                              \
        PLACE(sysconf, swr, i), .path = CONFIG "Panel Assign", .part = (i) + 1, .column = col,     \
                                .ask = SETUP_READ, .words = words_swr                              \
    }
static bool is_own_panel(const char* number)
{
    return Same(number, NumStr(SYS_MyPnl));
}
static bool is_other_panel(const char* number)
{
    return !is_own_panel(number);
}

static constexpr SETUPWORD words_master[] = {{"true", "Master"}, {"false", ""}, {}};
static constexpr SETUPFIELD sysconf_fields[] = {
    {SETUP_CELL(sysconf, opemode), .path = CONFIG "System Operation Mode@PNL$", .column = 1,
     .ask = SETUP_READ, .has = is_own_panel}, // followed all the time
    {SETUP_CELL(sysconf, opemode), .path = CONFIG "System Operation Mode@PNL$", .column = 1,
     .has = is_other_panel},
    PANEL_SWITCHER(0, 2),
    PANEL_SWITCHER(1, 3),
    PANEL_SWITCHER(2, -1),
    PANEL_SWITCHER(3, -1),
    PANEL_SWITCHER(4, -1),
    {SETUP_CELL(sysconf, master), .path = CONFIG "Tally Master@PNL$", .column = 4,
     .words = words_master},
    {SETUP_CELL(sysconf, name), .column = 0},
};
static constexpr SETUPCHOICE sysconf_choices[] = {
    {.cmd = LOCAL_CONFIG "System Operation Mode", .field = FLD_MODE},
    {.cmd = LOCAL_CONFIG "Panel Assign@SWR1", .field = FLD_SWR1, .offer = offer_units<words_swr>},
    {.cmd = LOCAL_CONFIG "Panel Assign@SWR2", .field = FLD_SWR2, .offer = offer_units<words_swr>},
};

static int sysconf_panels(const char** keys, int max)
{
    static char numbers[DEVICE_MAX][8];
    return unit_numbers(keys, max, DEV_Pnl, SYS_PnlMax, numbers);
}

static void sysconf_changed()
{
    for (int row = 0; row < SysConfMax; row++)
        PrintText(SysConf[row].name, "PNL%.7s", SysConf[row].number);
}

static constexpr SETUPTABLE sysconf_page = {
    .work = SysConf,
    .tally = SysConfTly,
    .rows = &SysConfMax,
    .state = &sysconf_state,
    .row_size = sizeof(sysconf),
    .max = DEVICE_MAX,
    .fields = sysconf_fields,
    .field_count = std::size(sysconf_fields),
    .keys = sysconf_panels,
    .list = 1,
    .btn_clear = BTN_SETUP_CLEAR,
    .btn_execute = BTN_SETUP_EXECUTE,
    .clear = LOCAL_CONFIG "Clear",
    .execute = LOCAL_CONFIG "Execute",
    .question = setup_reboot_question,
    .choices = sysconf_choices,
    .choice_count = std::size(sysconf_choices),
    .changed = sysconf_changed,
};

// --- Which system the setup pages work on, and who has the tally ---

static void show_setup_target()
{
    (void)BT_SetStatus(BTN_SYSCONF_SYSTEM1, SYS_SetupTarget == 0 ? BT_ON : BT_OFF);
    (void)BT_SetStatus(BTN_SYSCONF_SYSTEM2, SYS_SetupTarget == 1 ? BT_ON : BT_OFF);
}

static void put_setup_target(int target)
{
    Net_SendCommandFormat("put " CONFIG "Setup Target#%d", target);
}

// One panel has it.
static void set_tally_master()
{
    for (int row = 0; row < SysConfMax; row++)
        SetupPage_Set(sysconf_page, row, FLD_MASTER,
                      words_master[row == sysconf_state.cursor ? 0 : 1].text);
}

static int sysconf_button(const char* cmd)
{
    if (Same(cmd, LOCAL_CONFIG "Setup Target@System1"))
        put_setup_target(0);
    else if (Same(cmd, LOCAL_CONFIG "Setup Target@System2"))
        put_setup_target(1);
    else if (Same(cmd, LOCAL_CONFIG "Tally Master"))
        set_tally_master();
    else
        return 0;
    return 1;
}

static int pc_engsetup_system_systemconfig_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg == LMSG_BTNSEL && sysconf_button(Text(ax)))
        return 0;
    if (msg == MSG_TALLY && Same(Text(ax), CONFIG "Setup Target"))
        show_setup_target(); // the number has been taken before
    (void)SetupPage_Proc(sysconf_page, msg, ax, bx);
    return 0;
}

static int pc_engsetup_system_systemconfig_create(int on, uint32_t)
{
    (void)SetupPage_CreateOf<sysconf_page>(on, 0);
    if (on)
        show_setup_target();
    return !on;
}

const PC_TBL pc_engsetup_system_systemconfig = {.proc_func = pc_engsetup_system_systemconfig_proc,
                                                .create_func =
                                                    pc_engsetup_system_systemconfig_create};

// --- Switcher Assign: the effects units of a switcher ---

namespace
{
struct dmeassign {
    char number[8];
    char name[16];
    char dme[4][8]; // SysConf_DMEAssign
};
} // namespace

static dmeassign SysConf_DMEAssign[DEVICE_MAX];
static dmeassign SysConf_DMEAssignTly[DEVICE_MAX];
static int dme_rows = 0;
static SETUPSTATE dme_state;

#define SWITCHER_DME(i)                                                                            \
    {                                                                                              \
        PLACE(dmeassign, dme, i), .path = CONFIG "Switcher Assign", .part = (i) + 1,               \
                                  .column = (i) + 1, .ask = SETUP_READ, .words = words_dme         \
    }
static constexpr SETUPFIELD dme_fields[] = {
    SWITCHER_DME(0),
    SWITCHER_DME(1),
    SWITCHER_DME(2),
    SWITCHER_DME(3),
    {SETUP_CELL(dmeassign, name), .column = 0},
};

static constexpr SETUPCHOICE dme_choices[] = {
    {.cmd = LOCAL_CONFIG "Switcher Assign@DME1", .field = 0, .offer = offer_units<words_dme>},
    {.cmd = LOCAL_CONFIG "Switcher Assign@DME2", .field = 1, .offer = offer_units<words_dme>},
    {.cmd = LOCAL_CONFIG "Switcher Assign@DME3", .field = 2, .offer = offer_units<words_dme>},
    {.cmd = LOCAL_CONFIG "Switcher Assign@DME4", .field = 3, .offer = offer_units<words_dme>},
};

static int dme_switchers(const char** keys, int max)
{
    static char numbers[DEVICE_MAX][8];
    return unit_numbers(keys, max, DEV_Swr, SYS_SwrMax, numbers);
}

static void dme_changed()
{
    for (int row = 0; row < dme_rows; row++)
        PrintText(SysConf_DMEAssign[row].name, "SWR%.7s", SysConf_DMEAssign[row].number);
}

static constexpr SETUPTABLE dme_page = {
    .work = SysConf_DMEAssign,
    .tally = SysConf_DMEAssignTly,
    .rows = &dme_rows,
    .state = &dme_state,
    .row_size = sizeof(dmeassign),
    .max = DEVICE_MAX,
    .fields = dme_fields,
    .field_count = std::size(dme_fields),
    .keys = dme_switchers,
    .list = 1,
    .btn_clear = BTN_SETUP_CLEAR,
    .btn_execute = BTN_SETUP_EXECUTE,
    .clear = LOCAL_CONFIG "Switcher Assign@Clear",
    .execute = LOCAL_CONFIG "Switcher Assign@Execute",
    .question = setup_reboot_question,
    .choices = dme_choices,
    .choice_count = std::size(dme_choices),
    .changed = dme_changed,
};

const PC_TBL pc_engsetup_system_switcherassign = SetupPage_Code<dme_page>;

// --- Start Up ---

#define START_UP "Engineering Setup@System@Start Up@"
#define LOCAL_START_UP "LOCAL@" START_UP

namespace
{
struct _startup {
    char device[16];
    char mode[10];
    char setup[10];
    char init[10];
};
} // namespace

static _startup Startup[DEVICE_ROWS];
static _startup Startup_tly[DEVICE_ROWS];
static int startup_rows = 0;
static SETUPSTATE startup_state;

static constexpr SETUPWORD words_mode[] = {{"true", "Resume"}, {"false", "Custom"}, {}};
static constexpr SETUPFIELD startup_fields[] = {
    {SETUP_CELL(_startup, mode), .path = START_UP "Resume@$", .column = 1, .words = words_mode},
    {SETUP_CELL(_startup, setup), .path = START_UP "Setup@$", .column = 2},
    {SETUP_CELL(_startup, init), .path = START_UP "Init Status@$", .column = 3},
    {SETUP_CELL(_startup, device), .column = 0},
};
static constexpr SETUPCHOICE startup_choices[] = {
    {LOCAL_START_UP "Resume", 0},
    {LOCAL_START_UP "Setup", 1},
    {LOCAL_START_UP "Init Status", 2},
};

static int add_names(const char** keys, int n, int max, DEVICE* const* units)
{
    for (; *units && n < max; units++)
        keys[n++] = (*units)->name;
    return n;
}

static int own_units(const char** keys, int max)
{
    int n = add_names(keys, 0, max, DEV_MyPnl);
    n = add_names(keys, n, max, DEV_MySwr);
    return add_names(keys, n, max, DEV_MyDme);
}

static constexpr SETUPTABLE startup_page = {
    .work = Startup,
    .tally = Startup_tly,
    .rows = &startup_rows,
    .state = &startup_state,
    .row_size = sizeof(_startup),
    .max = DEVICE_ROWS,
    .fields = startup_fields,
    .field_count = std::size(startup_fields),
    .keys = own_units,
    .list = 1,
    .btn_clear = BTN_SETUP_CLEAR,
    .btn_execute = BTN_SETUP_EXECUTE,
    .clear = LOCAL_START_UP "Clear",
    .execute = LOCAL_START_UP "Execute",
    .question = "The new settings count from the next\nstart on.\n\nContinue?",
    .choices = startup_choices,
    .choice_count = std::size(startup_choices),
};
const PC_TBL pc_engsetup_system_startup = SetupPage_Code<startup_page>;

// --- Initialize ---

#define INITIALIZE "Engineering Setup@System@Initialize@"
#define LOCAL_INITIALIZE "LOCAL@" INITIALIZE

namespace
{
struct initialize {
    char device[17];
    char smode[12];
    char setup[12];
    char status[12];
    char init[12]; // what is to be done
};
enum : int { FLD_INIT = 0 };
} // namespace

static initialize Initialize[DEVICE_ROWS];
static initialize initialize_tally[DEVICE_ROWS];
static int initialize_rows = 0;
static SETUPSTATE initialize_state;

static constexpr SETUPFIELD initialize_fields[] = {
    {SETUP_CELL(initialize, init), .path = INITIALIZE "Initialize", .part = SETUP_BY_PAGE,
     .column = 4, .ask = SETUP_HEAR},
    {SETUP_CELL(initialize, smode), .path = START_UP "Resume@$", .column = 1, .is_put = 0,
     .words = words_mode},
    {SETUP_CELL(initialize, setup), .path = START_UP "Setup@$", .column = 2, .is_put = 0},
    {SETUP_CELL(initialize, status), .path = START_UP "Init Status@$", .column = 3, .is_put = 0},
    {SETUP_CELL(initialize, device), .column = 0},
};
static constexpr SETUPCHOICE initialize_choices[] = {{LOCAL_INITIALIZE "Initialize", FLD_INIT}};

static constexpr SETUPTABLE initialize_page = {
    .work = Initialize,
    .tally = initialize_tally,
    .rows = &initialize_rows,
    .state = &initialize_state,
    .row_size = sizeof(initialize),
    .max = DEVICE_ROWS,
    .fields = initialize_fields,
    .field_count = std::size(initialize_fields),
    .keys = own_units,
    .list = 1,
    .btn_clear = BTN_SETUP_CLEAR,
    .btn_execute = BTN_SETUP_EXECUTE,
    .clear = LOCAL_INITIALIZE "Clear",
    .choices = initialize_choices,
    .choice_count = std::size(initialize_choices),
};

static int initialize_pane = 0;

// Each unit is told once; what was in hand is done with.
static void run_initialize()
{
    for (int row = 0; row < initialize_rows; row++)
        if (Initialize[row].init[0])
            Net_SendCommandFormat("put " INITIALIZE "Initialize#%s,%s", Initialize[row].init,
                                  Initialize[row].device);
    SetupPage_Clear(initialize_page);
}

static int pc_engsetup_system_initialize_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    constexpr int yes = 1;
    if (msg == LMSG_BTNSEL && Same(Text(ax), LOCAL_INITIALIZE "Execute"))
        initialize_pane = PaneYesNo_Create("Execute", PANE_ALERT, setup_reboot_question);
    else if (msg == LMSG_PANEQUIT && initialize_pane != 0 && int(ax) == initialize_pane) {
        initialize_pane = 0;
        if (int(bx) == yes)
            run_initialize();
    } else
        (void)SetupPage_Proc(initialize_page, msg, ax, bx);
    return 0;
}

// What was chosen and not executed must not wait here for the next visitor.
static int pc_engsetup_system_initialize_create(int on, uint32_t)
{
    initialize_pane = 0;
    if (!on)
        SetupPage_Clear(initialize_page);
    return SetupPage_CreateOf<initialize_page>(on, 0);
}

const PC_TBL pc_engsetup_system_initialize = {.proc_func = pc_engsetup_system_initialize_proc,
                                              .create_func = pc_engsetup_system_initialize_create};

void EngSetupConfig_Reset()
{
    for (const SETUPTABLE* t : {&sysconf_page, &dme_page, &startup_page, &initialize_page})
        SetupPage_Forget(*t);
    initialize_pane = 0;
}
