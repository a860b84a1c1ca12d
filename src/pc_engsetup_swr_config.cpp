// The Config pages: what a bank of the switcher is, what belongs to it, and where it goes.
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

const char* SwrNumber(int n)
{
    constexpr int last = 64;
    static char texts[last + 1][4];
    const int i = n >= 1 && n <= last ? n : 0;
    PrintText(texts[i], "%d", i);
    return texts[i];
}

// --- What more than one page shows ---

static constexpr SETUPWORD words_enable[] = {{"true", "Enable"}, {"false", "Disable"}, {}};
static constexpr SETUPWORD words_on[] = {{"true", "On"}, {"false", "Off"}, {}};
static constexpr char NONE[] = "None";

// --- The banks ---

static SwrRows<ME_COUNT> me_rows;
static constexpr SETUPFIELD me_fields[] = {
    SwrField(0, CONFIG "M/E Config@$", {.ask = SETUP_READ}), // followed all the time
    SwrField(1, CONFIG "Key Config", {.part = 1, .is_put = 0}),
    SwrField(2, CONFIG "Logical M/E", {.part = SETUP_EACH_ROW, .is_put = 0}),
    SWR_KEY,
};
static constexpr SETUPCHOICE me_choices[] = {{LOCAL_CONFIG "M/E Config", 0}};
static constexpr SETUPTABLE me_page =
    SwrTable(me_rows, SwrBanks, me_fields, me_choices, {.question = swr_on_air_question});

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

// --- What the user regions hold ---

static constexpr const char* user_items[] = {
    "FM1",    "FM2",   "FM3",   "FM4",   "FM5",   "FM6",   "FM7",          "FM8",          "FM9",
    "FM10",   "FM11",  "FM12",  "FM13",  "FM14",  "FM15",  "FM16",         "FM17",         "FM18",
    "FM19",   "FM20",  "CCR1",  "CCR2",  "CCR3",  "CCR4",  "Color Bkgd 1", "Color Bkgd 2", "Util 1",
    "Util 2", "Aux 1", "Aux 2", "Aux 3", "Aux 4", "Aux 5", "Aux 6",        "Aux 7",        "Aux 8",
};
static constexpr const char* user_regions[] = {NONE,    "User1", "User2", "User3", "User4",
                                               "User5", "User6", "User7", "User8"};
static SwrRows<std::size(user_items)> user_rows;
static constexpr SETUPFIELD user_fields[] = {
    SwrField(0, CONFIG "User1-8 Config@User", {.part = 1}),
    SWR_KEY,
};
static constexpr SETUPCHOICE user_choices[] = {
    SwrPopup(LOCAL_CONFIG "User1-8 Config@User", 0, SwrWords<user_regions>)};
static constexpr SETUPTABLE user_page =
    SwrTable(user_rows, SwrWords<user_items>, user_fields, user_choices);
const PC_TBL pc_engsetup_switcher_config_user = SetupPage_Code<user_page>;

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

// --- Under which name a bank is worked ---

static SwrRows<ME_COUNT> logical_rows;
static constexpr SETUPFIELD logical_fields[] = {
    SwrField(0, CONFIG "Logical M/E", {.part = SETUP_EACH_ROW}),
    SWR_KEY,
};
static constexpr SETUPCHOICE logical_choices[] = {SwrSwap(LOCAL_CONFIG "Logical M/E", 0, SwrBanks)};
static constexpr SETUPTABLE logical_page = SwrTable(
    logical_rows, SwrBanks, logical_fields, logical_choices, {.question = swr_on_air_question});
const PC_TBL pc_engsetup_switcher_config_logicalme = SetupPage_Code<logical_page>;

// --- Side flags: what stands beside a 4:3 picture ---

static constexpr const char* flag_fills[] = {"Black", "Color Bkgd 1", "Color Bkgd 2", "FM1",
                                             "FM2",   "FM3",          "FM4"};
static SwrRows<ME_COUNT> flag_rows;
static constexpr SETUPFIELD flag_fields[] = {
    SwrField(0, CONFIG "Side Flags@Side Flags@$", {.words = words_enable}),
    SwrField(1, CONFIG "Side Flags@Mode@$"),
    SwrField(2, CONFIG "Side Flags@Fill@$"),
    SWR_KEY,
};
static constexpr SETUPCHOICE flag_choices[] = {
    SwrToggle(LOCAL_CONFIG "Side Flags@Side Flags", 0, "Disable"),
    {LOCAL_CONFIG "Side Flags@Mode", 1},
    SwrPopup(LOCAL_CONFIG "Side Flags@Fill", 2, SwrWords<flag_fills>),
};
static constexpr SETUPTABLE flag_page =
    SwrTable(flag_rows, SwrBanks, flag_fields, flag_choices, {.question = swr_on_air_question});
const PC_TBL pc_engsetup_switcher_config_sideflags = SetupPage_Code<flag_page>;

// --- The keys of a bank ---

static SwrRows<ME_COUNT> key_rows;
static constexpr SETUPFIELD key_fields[] = {
    SwrField(0, CONFIG "Key Config", {.part = 1}),
    SwrField(1, CONFIG "Key Config@Sub Key Mode@$", {.is_put = 0}),
    SWR_KEY,
};
static constexpr SETUPCHOICE key_choices[] = {{LOCAL_CONFIG "Key Config", 0}};
static constexpr SETUPTABLE key_page =
    SwrTable(key_rows, SwrBanks, key_fields, key_choices, {.question = swr_on_air_question});
const PC_TBL pc_engsetup_switcher_config_keyconfig = SetupPage_Code<key_page>;

static SwrRows<ME_COUNT> subkey_rows;
static constexpr SETUPFIELD subkey_fields[] = {
    SwrField(0, CONFIG "Key Config@Sub Key Mode@$"),
    SwrField(1, CONFIG "M/E Config@$", {.is_put = 0, .ask = SETUP_READ}),
    SWR_KEY,
};
static constexpr SETUPCHOICE subkey_choices[] = {{LOCAL_CONFIG "Key Config@Sub Key Mode", 0}};
static constexpr SETUPTABLE subkey_page = SwrTable(
    subkey_rows, SwrBanks, subkey_fields, subkey_choices, {.question = swr_on_air_question});
const PC_TBL pc_engsetup_switcher_config_keyconfig_subkeymode = SetupPage_Code<subkey_page>;

// --- The effects board of the switcher ---

static constexpr const char* dme_channels[] = {"Ch1", "Ch2", "Ch3", "Ch4",
                                               "Ch5", "Ch6", "Ch7", "Ch8"};
static constexpr const char* dme_users[] = {"Common", "M/E-1", "M/E-2", "M/E-3",
                                            "M/E-4",  "M/E-5", "P/P"};
static SwrRows<std::size(dme_channels)> dme_rows;
static constexpr SETUPFIELD dme_fields[] = {
    SwrField(0, CONFIG "DME Config@Use@$", {.words = words_enable}),
    SwrField(1, CONFIG "DME Config@Assign@$"),
    SWR_KEY,
};
static constexpr SETUPCHOICE dme_choices[] = {
    SwrToggle(LOCAL_CONFIG "DME Config@Use", 0, "Disable"),
    SwrPopup(LOCAL_CONFIG "DME Config@Assign", 1, SwrWords<dme_users>),
};
static constexpr SETUPTABLE dme_page = SwrTable(dme_rows, SwrWords<dme_channels>, dme_fields,
                                                dme_choices, {.question = swr_on_air_question});
const PC_TBL pc_engsetup_switcher_config_dmeconfig = SetupPage_Code<dme_page>;

// --- Borders of titles ---

static SwrRows<ME_COUNT> border_rows;
static constexpr SETUPFIELD border_fields[] = {
    SwrField(0, CONFIG "CG Border@CG Border@$", {.words = words_enable}),
    SwrField(1, CONFIG "CG Border@Quality@$"),
    SWR_KEY,
};
static constexpr SETUPCHOICE border_choices[] = {
    SwrToggle(LOCAL_CONFIG "CG Border@CG Border", 0, "Disable"),
    {LOCAL_CONFIG "CG Border@Quality", 1},
};
static constexpr SETUPTABLE border_page = SwrTable(
    border_rows, SwrBanks, border_fields, border_choices, {.question = swr_on_air_question});
const PC_TBL pc_engsetup_switcher_config_cgborder = SetupPage_Code<border_page>;

// --- The preview of keys ---

static SwrRows<ME_COUNT> kpvw_rows;
static constexpr SETUPFIELD kpvw_fields[] = {
    SwrField(0, CONFIG "Key Config", {.part = 1, .is_put = 0}),
    SwrField(1, CONFIG "Key PVW@Mode@$"),
    SwrField(2, CONFIG "Key PVW@Bkgd@$"),
    SWR_KEY,
};
static constexpr SETUPCHOICE kpvw_choices[] = {
    {LOCAL_CONFIG "Key PVW@Mode", 1},
    {LOCAL_CONFIG "Key PVW@Bkgd", 2},
};
static constexpr SETUPTABLE kpvw_page = SwrTable(kpvw_rows, SwrBanks, kpvw_fields, kpvw_choices);
const PC_TBL pc_engsetup_switcher_config_kpvw = SetupPage_Code<kpvw_page>;

// --- What the outputs of the banks carry ---

static constexpr const char* out_signals[] = {"PGM",     "PVW",     "Clean",   "Key PVW",
                                              "Sub PGM", "Sub PVW", "Sub Cln", NONE};
#define OUTS4(bank) bank " Out1", bank " Out2", bank " Out3", bank " Out4"
#define OUTS6(bank) OUTS4(bank), bank " Out5", bank " Out6"
static constexpr const char* outs4[] = {OUTS4("M/E-1"), OUTS4("M/E-2"), OUTS4("M/E-3"),
                                        OUTS4("M/E-4"), OUTS4("M/E-5"), OUTS4("P/P")};
static constexpr const char* outs6[] = {OUTS6("M/E-1"), OUTS6("M/E-2"), OUTS6("M/E-3"),
                                        OUTS6("M/E-4"), OUTS6("M/E-5"), OUTS6("P/P")};
static SwrRows<std::size(outs4)> out4_rows;
static SwrRows<std::size(outs6)> out6_rows;
static constexpr SETUPFIELD out_fields[] = {
    SwrField(0, CONFIG "Out Config@$"),
    SWR_KEY,
};
static constexpr SETUPCHOICE out_choices[] = {
    SwrPopup(LOCAL_CONFIG "Out Config", 0, SwrWords<out_signals>)};
static constexpr SETUPTABLE out4_page = SwrTable(out4_rows, SwrWords<outs4>, out_fields,
                                                 out_choices, {.question = swr_on_air_question});
static constexpr SETUPTABLE out6_page = SwrTable(out6_rows, SwrWords<outs6>, out_fields,
                                                 out_choices, {.question = swr_on_air_question});
const PC_TBL pc_engsetup_switcher_config_out = SetupPage_Code<out4_page>;
const PC_TBL pc_engsetup_switcher_config_out6 = SetupPage_Code<out6_page>;

// --- The timing of the switchers against their reference ---

static constexpr const char* timing_units[] = {"SWR1", "SWR2", "SWR3", "SWR4"};
static SwrRows<std::size(timing_units)> timing_rows;
static constexpr SETUPFIELD timing_fields[] = {
    SwrField(0, CONFIG "Switcher Timing@H Phase@$"),
    SwrField(1, CONFIG "Switcher Timing@V Phase@$"),
    SwrField(2, CONFIG "Switcher Timing@Auto Timing@$", {.words = words_on}),
    SWR_KEY,
};
static constexpr SETUPCHOICE timing_choices[] = {
    SwrKnob(0, 1),
    SwrKnob(1, 2),
    SwrToggle(LOCAL_CONFIG "Switcher Timing@Auto Timing", 2, "Off"),
};
static int own_switchers(const char** keys, int max)
{
    int n = 0;
    for (DEVICE* const* swr = DEV_MySwr; *swr && n < max; swr++)
        keys[n++] = (*swr)->name;
    return n;
}
static constexpr SETUPTABLE timing_page = SwrTable(
    timing_rows, own_switchers, timing_fields, timing_choices, {.question = swr_on_air_question});
const PC_TBL pc_engsetup_switcher_config_swrtiming = SetupPage_Code<timing_page>;

// --- 3D: the second eye ---

static SwrRows<ME_COUNT> stereo_rows;
static constexpr SETUPFIELD stereo_fields[] = {
    SwrField(0, CONFIG "3D Config@Mode@$"),
    SwrField(1, CONFIG "3D Config@Output@$"),
    SWR_KEY,
};
static constexpr SETUPCHOICE stereo_choices[] = {
    {LOCAL_CONFIG "3D Config@Mode", 0},
    {LOCAL_CONFIG "3D Config@Output", 1},
};
static constexpr SETUPTABLE stereo_page = SwrTable(
    stereo_rows, SwrBanks, stereo_fields, stereo_choices, {.question = swr_on_air_question});
const PC_TBL pc_engsetup_switcher_config_3D = SetupPage_Code<stereo_page>;

static constexpr int INPUTS = 64;
static SwrRows<INPUTS> input_rows;
static constexpr SETUPFIELD input_fields[] = {
    SwrField(0, CONFIG "3D Config@Input Link", {.part = 1}),
    SwrField(1, CONFIG "3D Config@Input Link", {.part = 2, .words = words_on}),
    SWR_KEY,
};
static constexpr SETUPCHOICE input_choices[] = {
    SwrPopup(LOCAL_CONFIG "3D Config@Input Link@R Input", 0, SwrNumbers<INPUTS>),
    SwrToggle(LOCAL_CONFIG "3D Config@Input Link@Link", 1, "Off"),
};
static constexpr SETUPTABLE input_page =
    SwrTable(input_rows, SwrNumbers<INPUTS>, input_fields, input_choices);
const PC_TBL pc_engsetup_switcher_config_3dconfig_inputlink = SetupPage_Code<input_page>;

static constexpr const char* fm_outputs[] = {"FM1", "FM2", "FM3", "FM4",
                                             "FM5", "FM6", "FM7", "FM8"};
static SwrRows<std::size(fm_outputs)> fm_rows;
static constexpr SETUPFIELD fm_fields[] = {
    SwrField(0, CONFIG "3D Config@FM Output Link", {.part = 1}),
    SwrField(1, CONFIG "3D Config@FM Output Link", {.part = 2, .words = words_on}),
    SWR_KEY,
};
static constexpr SETUPCHOICE fm_choices[] = {
    SwrPopup(LOCAL_CONFIG "3D Config@FM Output Link@R Output", 0, SwrWords<fm_outputs>),
    SwrToggle(LOCAL_CONFIG "3D Config@FM Output Link@Link", 1, "Off"),
};
static constexpr SETUPTABLE fm_page =
    SwrTable(fm_rows, SwrWords<fm_outputs>, fm_fields, fm_choices);
const PC_TBL pc_engsetup_switcher_config_3dconfig_fmoutputlink = SetupPage_Code<fm_page>;

void EngSetupSwitcher_Reset()
{
    for (const SETUPTABLE* t :
         {&me_page, &user_page, &pgm_page, &logical_page, &flag_page, &key_page, &subkey_page,
          &dme_page, &border_page, &kpvw_page, &out4_page, &out6_page, &timing_page, &stereo_page,
          &input_page, &fm_page})
        SetupPage_Forget(*t);
}
