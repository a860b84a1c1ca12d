// The cells of the overview of the banks: what is on the buses of a bank, how it changes, which
// keys are on.
#include "a_st_draw.h"
#include "colours.h"
#include "me_bank.h"
#include "tally_value.h"
#include "text.h"
#include "safeguards.h"

namespace
{
// The tallies of a cell, from the first of each kind.
enum BankTally : int {
    BANK_BUSES = 0,       // A, B, utility 1 and 2
    BANK_TRANSITIONS = 4, // the kinds, in TransitionTally's order
    BANK_WIPE = BANK_TRANSITIONS + TRN_WIPE_PATTERN,
    BANK_DME_WIPE = BANK_TRANSITIONS + TRN_DME_PATTERN,
    BANK_RATE = BANK_TRANSITIONS + TRN_MODE,
    BANK_KEYS = BANK_RATE + 1,
};
constexpr int KINDS = TRN_CLIP + 1;
constexpr int KEYS = 8;
} // namespace

static const char* last_word(const char* path)
{
    const char* const at = strrchr(path, '@');
    return at ? at + 1 : path;
}

// "Wipe 27": the kind that is on, as its path calls it, with its pattern.
static void print_transition(char (&text)[32], const ST_MEM* c)
{
    text[0] = '\0';
    for (int kind = 0; kind < KINDS; kind++) {
        if (!st_is_on(c, BANK_TRANSITIONS + kind))
            continue;
        const int pattern = kind == TRN_WIPE       ? BANK_WIPE
                            : kind == TRN_DME_WIPE ? BANK_DME_WIPE
                                                   : -1;
        PrintText(text, "%s %s", last_word(c->cmd[BANK_TRANSITIONS + kind]),
                  pattern < 0 ? "" : c->tally[pattern]);
    }
}

// "1 3 8"
static void print_keys(char (&text)[32], const ST_MEM* c)
{
    text[0] = '\0';
    for (int key = 0; key < KEYS; key++) {
        if (!st_is_on(c, BANK_KEYS + key))
            continue;
        AppendText(text, text[0] ? " " : "");
        AppendText(text, NumStr(key + 1));
    }
    if (!text[0])
        CopyText(text, "-");
}

// The first word of a cell's paths; null for none of a bank.
static const MeBank* bank_of(const ST_MEM* cell)
{
    char word[32];
    CopyText(word, cell->cmd[0]);
    if (char* const at = strchr(word, '@'))
        *at = '\0';
    return MeBank_OfCaption(word);
}

static ST_MEM* begin(ST_MEM* cell)
{
    const MeBank* const bank = bank_of(cell);
    return bank ? st_begin(cell, 0, bank->caption) : nullptr;
}

int st_drw_status_bank(ST_MEM* cell)
{
    const ST_MEM* const c = begin(cell);
    if (!c)
        return -1;
    char transition[32], keys[32];
    print_transition(transition, c);
    print_keys(keys, c);
    ST_VAL val{.st_num = 7,
               .st_str = {"A", "B", "Util1", "Util2", "Type", "Rate", "Keys"},
               .val_str = {c->tally[BANK_BUSES], c->tally[BANK_BUSES + 1], c->tally[BANK_BUSES + 2],
                           c->tally[BANK_BUSES + 3], transition, c->tally[BANK_RATE], keys}};
    st_drw_status_values(c, &val);
    return 0;
}

// Tallies: the rate of the bank, then those of its keys.
int st_drw_status_rates(ST_MEM* cell)
{
    constexpr int HALF_KEYS = KEYS / 2;
    const ST_MEM* const c = begin(cell);
    if (!c)
        return -1;
    static constexpr const char* labels[2][HALF_KEYS] = {{"1", "2", "3", "4"},
                                                         {"1/5", "2/6", "3/7", "4/8"}};
    const MeBank* const bank = bank_of(c);
    const bool has_all = bank && GL_KeyMax[bank->place] > HALF_KEYS;
    char text[HALF_KEYS][16];
    ST_VAL val{.st_num = 1 + HALF_KEYS, .st_str = {"Trans"}, .val_str = {c->tally[0]}};
    for (int key = 0; key < HALF_KEYS; key++) {
        const char* const rate = c->tally[1 + key];
        const char* const further = c->tally[1 + key + HALF_KEYS];
        if (has_all)
            PrintText(text[key], "%.6s/%.6s", rate, further);
        else
            CopyText(text[key], rate);
        val.st_str[1 + key] = labels[has_all][key];
        val.val_str[1 + key] = text[key];
    }
    st_drw_status_values(c, &val);
    return 0;
}
