// The Config pages that are more than a sheet: what the banks are, and the keys in their outputs.
#include "a_bt.h"
#include "a_ls.h"
#include "bus.h"
#include "device.h"
#include "global.h"
#include "message.h"
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

static int pc_engsetup_switcher_config_create(int on, uint32_t)
{
    (void)SetupPage_CreateOf<me_page>(on, 0);
    constexpr uint32_t dme_config = 0x73310015;
    if (on)
        (void)BT_SetDisable(BTN_SWR_DMECONFIG, !SearchPageTable(dme_config));
    return !on;
}
const PC_TBL pc_engsetup_switcher_config = {.proc_func = SetupPage_ProcOf<me_page>,
                                            .create_func = pc_engsetup_switcher_config_create};

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

void EngSetupSwitcher_Reset()
{
    SetupPage_Forget(me_page);
    SetupPage_Forget(pgm_page);
}
