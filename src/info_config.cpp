#include "info_config.h"
#include "a_st_draw.h"
#include "bus_tally.h"
#include "device.h"
#include "global.h"
#include "info.h"
#include "me_config.h"
#include "message.h"
#include "page.h"
#include "tally_value.h"
#include <algorithm>
#include <iterator>

#include "safeguards.h"

namespace
{
struct Word {
    const char* text;
    int number;
};
} // namespace

template <size_t N> static int number_of(const Word (&words)[N], const char* text, int otherwise)
{
    for (const Word& word : words)
        if (Same(word.text, text))
            return word.number;
    return otherwise;
}

// --- Banks ---

static constexpr Word config_words[] = {
    {"Standard", 1},
    {"Multi Program", 2},
    {"Multi Program 2", 3},
    {"DSK", 4},
};

// Pages that follow the setting themselves, or that must not lose what they are in the middle of.
static constexpr uint32_t pages_not_reloaded[] = {0x73310000, 0x71610000, 0x73160010, 0x55550000};

void info_me_config(const char* word, const char* value)
{
    const MeBank* bank = MeBank_OfWord(word);
    if (!bank)
        return;
    const int me = bank->me;
    me_config_type[me] = number_of(config_words, value, 0);
    const int multi = me_config_type[me] == CONFIG_MULTI_PROGRAM_2;
    if (multiprogram2_me[me] == multi)
        return;
    multiprogram2_me[me] = multi;
    DeviceStructure(); // the sub sides come with it
    const auto* end = std::end(pages_not_reloaded);
    if (std::find(std::begin(pages_not_reloaded), end, GL_NowPage) == end)
        tally_reload_page();
}

void info_output_assign(const char* value)
{
    swcnf_set(value);
    mp2_keyassign_check();
}

void info_pgm_config(const char* value)
{
    swcnfpgm_set(value);
    st_drw_me_misc_key_assign_tally_set(value); // whatever page is open: it is told once
    mp2_keyassign_check();
}

void info_setup_target(const char* value)
{
    const int target = Index(value, DEVICE_MAX);
    if (target < 0)
        return;
    SYS_SetupTarget = target;
    DeviceStructure();
}

// --- Rows of the panel ---

static constexpr Word aux_words[] = {
    {"1st AUX", ASSIGN_1ST_AUX},
    {"2nd AUX", ASSIGN_2ND_AUX},
};
static constexpr Word side_words[] = {
    {"Main", 0},
    {"Sub", 1},
    {"Main/Sub", 2},
    {"Both", 2},
};
static constexpr const char* row_words[PANEL_ROWS] = {
    "1st Row", "2nd Row", "3rd Row",  "4th Row",  "5th Row",  "6th Row",  "7th Row",
    "8th Row", "9th Row", "10th Row", "11th Row", "12th Row", "13th Row", "14th Row",
};

// The panel row that a path names behind prefix, -1 when it is another path.
static int row_of_path(const char* path, const char* prefix)
{
    if (!BeginsWith(path, prefix))
        return -1;
    const char* name = path + strlen(prefix);
    for (int i = 0; i < PANEL_ROWS; i++)
        if (Same(row_words[i], name))
            return i;
    return -1;
}

// What a row works on, -1 for nothing that there is.
static int assigned_to(const char* word)
{
    const MeBank* bank = MeBank_OfWord(word);
    return bank ? bank->me : number_of(aux_words, word, -1);
}

void meassign_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg != MSG_TALLY || !ax || !bx)
        return;
    const int row = row_of_path(Text(ax), "Engineering Setup@Panel@Config@M/E Assign@");
    if (row >= 0)
        GL_MEAssign[row] = assigned_to(Text(bx));
}

void mainsubassign_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg != MSG_TALLY || !ax || !bx)
        return;
    const int row = row_of_path(
        Text(ax), "Engineering Setup@Panel@Config@MP2 Main/Sub Assign@Main/Sub Assign@");
    if (row >= 0)
        GL_MainSubAssign[row] = number_of(side_words, Text(bx), GL_MainSubAssign[row]);
}

// --- Modules in the panel rows ---

constexpr int UNIT_MODULES = 8;   // module slots of one row
constexpr int FLEXI_PAD_ROWS = 8; // rows 0..7 can hold a flexi pad
static const char MODULE_FLEXI_PAD[] = "FP";
static const char MODULE_KEY_TRANSITION[] = "KT";
static const char MODULE_TRANSITION[] = "TR";

// Bit i: slot i holds the module.
static int slots_with(char* const* parts, const char* module)
{
    int slots = 0;
    for (int i = 0; i < UNIT_MODULES; i++)
        if (parts[i] && Same(parts[i], module))
            slots |= 1 << i;
    return slots;
}

void info_key_unit(const char* row_text, const char* value)
{
    const int row = Index(row_text, PANEL_ROWS);
    Parts p;
    if (row < 0 || SplitValue(p, value, UNIT_MODULES) < UNIT_MODULES)
        return;
    GL_KeyTransKeyUnitConfig[row] = slots_with(p.v, MODULE_KEY_TRANSITION);
    GL_TransKeyUnitConfig[row] = slots_with(p.v, MODULE_TRANSITION);
    if (row >= FLEXI_PAD_ROWS)
        return;
    FlexiPadKeyUnitConfig[row] = slots_with(p.v, MODULE_FLEXI_PAD);
    SYS_PnlMFFP = std::any_of(std::begin(FlexiPadKeyUnitConfig), std::end(FlexiPadKeyUnitConfig),
                              [](int slots) { return slots != 0; });
}
