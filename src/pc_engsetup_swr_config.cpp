// The Config pages that are more than a sheet: what the banks are, and the keys in their outputs.
#include "a_bt.h"
#include "a_ls.h"
#include "bus.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_engsetup_swr.h"
#include "tally_value.h"
#include "text.h"

#include "safeguards.h"

#define CONFIG SWR "Config@"
#define LOCAL_CONFIG LOCAL_SWR "Config@"

// --- The banks ---

static SwrRows<ME_COUNT> me_rows;
static constexpr SETUPFIELD me_fields[] = {
    SwrField(0, CONFIG "M/E Config@$", {.ask = SETUP_READ}), // followed all the time
    SwrField(1, CONFIG "Key Config", {.part = 1, .is_put = 0}),
    SwrField(2, CONFIG "Logical M/E", {.part = SETUP_EACH_ROW, .is_put = 0}),
    SWR_KEY,
};
static constexpr SETUPCHOICE me_choices[] = {{LOCAL_CONFIG "M/E Config", 0}};
static constexpr SETUPTABLE me_page = SwrTable(me_rows, SwrWords<swr_banks>, me_fields, me_choices,
                                               {.question = swr_on_air_question});

const PC_TBL pc_engsetup_switcher_config = SetupPage_Code<me_page>;

// --- The outputs of a bank that runs two programs: their side, and the keys in them ---

namespace
{
constexpr int PGM_OUTPUTS = ME_COUNT * 8;
constexpr int PGM_KEYS = 8;
constexpr int COL_KEYS = 2; // of the list: a column each
enum : int { FLD_PGM_SIDE = 0, FLD_PGM_KEYS = 1 };
} // namespace

static SwrRows<PGM_OUTPUTS> pgm_rows;
static constexpr SETUPFIELD pgm_fields[] = {
    SwrField(0, CONFIG "M/E Output Assign@List", {.part = 1, .ask = SETUP_READ}),
    SwrField(1, CONFIG "PGM Config@List",
             {.part = 1, .column = COL_KEYS + PGM_KEYS, .ask = SETUP_READ}),
    SWR_KEY,
};
static constexpr SETUPCHOICE pgm_choices[] = {{LOCAL_CONFIG "M/E Output Assign", FLD_PGM_SIDE}};
static void pgm_changed();
static constexpr SETUPTABLE pgm_page =
    SwrTable(pgm_rows, nullptr, pgm_fields, pgm_choices,
             {.key_parts = 2, .question = swr_on_air_question, .changed = pgm_changed});

static unsigned keys_of(const swr_row& row)
{
    return Hex(row.cell[FLD_PGM_KEYS]);
}

// A dot for each key, and the buttons of the current row's.
static void pgm_changed()
{
    const unsigned current =
        pgm_rows.state.cursor < pgm_rows.rows ? keys_of(pgm_rows.work[pgm_rows.state.cursor]) : 0;
    for (int key = 0; key < PGM_KEYS; key++) {
        char line[CMD_SIZE];
        PrintText(line, LOCAL_CONFIG "PGM Config@Key%d#%s", key + 1,
                  (current >> key & 1) ? "true" : "false");
        (void)SendDummyTally(line);
        for (int row = 0; row < pgm_rows.rows; row++) {
            const bool is_on = keys_of(pgm_rows.work[row]) >> key & 1;
            const bool was_on = keys_of(pgm_rows.tally[row]) >> key & 1;
            (void)LS_SetData(1, row, COL_KEYS + key, is_on ? "ON" : "");
            (void)LS_SetStatus(1, row, COL_KEYS + key, is_on != was_on ? SETUP_CELL_CHANGED : 0);
        }
    }
}

// The key goes to all selected rows as the current one gets it.
static int pgm_key_pressed(const char* cmd)
{
    static constexpr char prefix[] = LOCAL_CONFIG "PGM Config@Key";
    if (!BeginsWith(cmd, prefix))
        return 0;
    const unsigned bit = 1u << ((Decimal(cmd + sizeof prefix - 1) - 1) & (PGM_KEYS - 1));
    const bool is_on = pgm_rows.state.cursor < pgm_rows.rows &&
                       (keys_of(pgm_rows.work[pgm_rows.state.cursor]) & bit);
    for (int n = 0, row; (row = SetupPage_Selected(pgm_page, n)) >= 0; n++) {
        char text[8];
        const unsigned keys = keys_of(pgm_rows.work[row]);
        PrintText(text, "%02X", is_on ? keys & ~bit : keys | bit);
        SetupPage_Set(pgm_page, row, FLD_PGM_KEYS, text);
    }
    return 1;
}

static int pc_engsetup_switcher_config_pgm_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg != LMSG_BTNSEL || !pgm_key_pressed(Text(ax)))
        (void)SetupPage_Proc(pgm_page, msg, ax, bx);
    return 0;
}
const PC_TBL pc_engsetup_switcher_config_pgm = {.proc_func = pc_engsetup_switcher_config_pgm_proc,
                                                .create_func = SetupPage_CreateOf<pgm_page>};

// --- What belongs to the user regions: each region tells its functions, a function has one ---

#define USER CONFIG "User1-8 Config@User"
#define LOCAL_USER LOCAL_CONFIG "User1-8 Config@User"

static constexpr const char* functions[] = {
    "FM1",   "FM2",   "FM3",   "FM4",   "FM5",   "FM6",   "FM7",         "FM8",         "FM9",
    "FM10",  "FM11",  "FM12",  "FM13",  "FM14",  "FM15",  "FM16",        "FM17",        "FM18",
    "FM19",  "FM20",  "CCR1",  "CCR2",  "CCR3",  "CCR4",  "Color Bkgd1", "Color Bkgd2", "Util1",
    "Util2", "Aux1",  "Aux2",  "Aux3",  "Aux4",  "Aux5",  "Aux6",        "Aux7",        "Aux8",
    "Aux9",  "Aux10", "Aux11", "Aux12", "Aux13", "Aux14", "Aux15",       "Aux16",
};
static constexpr int REGIONS = 8;
static constexpr const char* regions[] = {"User1", "User2", "User3", "User4", "User5",
                                          "User6", "User7", "User8", "None"};
static constexpr const char* NONE = regions[REGIONS];

static SwrRows<std::size(functions)> user_rows;
static constexpr SETUPFIELD user_fields[] = {
    SwrField(0, USER, {.part = SETUP_BY_PAGE, .ask = SETUP_HEAR}),
    SWR_KEY,
};
static constexpr SETUPCHOICE user_choices[] = {
    {.cmd = LOCAL_USER, .field = 0, .offer = SwrWords<regions>}};
static constexpr SETUPTABLE user_page =
    SwrTable(user_rows, SwrWords<functions>, user_fields, user_choices);

static void follow_regions(const char* verb)
{
    for (int n = 1; n <= REGIONS; n++)
        Net_SendCommandFormat("%s " USER "%d", verb, n);
}

// "Aux1,FM3" of a region: those functions are its own, what else was its own is nobody's.
static void region_told(const char* region, const char* value)
{
    char text[CMD_SIZE];
    char* part[std::size(functions)];
    CopyText(text, value);
    const int n = SplitVars(text, part, int(std::size(functions)));
    for (int row = 0; row < user_rows.rows; row++) {
        bool is_its = false;
        for (int i = 0; i < n; i++)
            is_its = is_its || Same(part[i], user_rows.work[row].key);
        const char* const told = user_rows.tally[row].cell[0];
        if (is_its)
            SetupPage_Take(user_page, row, 0, region);
        else if (!told[0] || Same(told, region))
            SetupPage_Take(user_page, row, 0, NONE);
    }
    SetupPage_Show(user_page);
}

static bool region_differs(const char* region)
{
    for (int row = 0; row < user_rows.rows; row++)
        if (Same(user_rows.work[row].cell[0], region) != Same(user_rows.tally[row].cell[0], region))
            return true;
    return false;
}

// All functions of each region that has changed.
static void put_regions()
{
    for (int n = 0; n < REGIONS; n++) {
        if (!region_differs(regions[n]))
            continue;
        char line[CMD_SIZE];
        PrintText(line, "put " USER "%d#", n + 1);
        const char* comma = "";
        for (int row = 0; row < user_rows.rows; row++)
            if (Same(user_rows.work[row].cell[0], regions[n])) {
                AppendText(line, comma);
                AppendText(line, user_rows.work[row].key);
                comma = ",";
            }
        Net_SendCommand(line);
    }
}

static int pc_engsetup_switcher_config_user_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    static constexpr char path[] = USER;
    if (msg == MSG_TALLY && BeginsWith(Text(ax), path)) {
        const int n = Decimal(Text(ax) + sizeof path - 1);
        if (n >= 1 && n <= REGIONS)
            region_told(regions[n - 1], Text(bx));
    } else if (msg == LMSG_BTNSEL && Same(Text(ax), user_page.execute)) {
        put_regions();
    } else {
        (void)SetupPage_Proc(user_page, msg, ax, bx);
    }
    return 0;
}

static int pc_engsetup_switcher_config_user_create(int on, uint32_t)
{
    (void)SetupPage_CreateOf<user_page>(on, 0);
    follow_regions(on ? "add" : "remove");
    return !on;
}
const PC_TBL pc_engsetup_switcher_config_user = {.proc_func = pc_engsetup_switcher_config_user_proc,
                                                 .create_func =
                                                     pc_engsetup_switcher_config_user_create};

void EngSetupSwitcher_Reset()
{
    SetupPage_Forget(user_page);
    SetupPage_Forget(me_page);
    SetupPage_Forget(pgm_page);
}
