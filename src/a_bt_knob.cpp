// Knob links that are a number: the table is chosen when the button takes the knobs, and again when
// a tally that it depends on has changed. The cases stand in a_bt_knob_key, _wipe, _dme and
// _global.
#include "a_bt_knob_private.h"
#include "global.h"
#include "me_config.h"
#include "page.h"
#include <cstring>
#include <iterator>
#include "safeguards.h"

const NB_TBL special_knob_marks[256] = {};

int SpecialKnobNumber(const NB_TBL* nb)
{
    const auto first = reinterpret_cast<uintptr_t>(special_knob_marks);
    const auto at = reinterpret_cast<uintptr_t>(nb);
    if (at < first || at >= first + sizeof special_knob_marks)
        return 0;
    return int((at - first) / sizeof(NB_TBL));
}

// --- The bank and key of the page ---

// A page without a bank counts as one of the first.
static const MeBank& bank_of_page()
{
    const MeBank* bank = Page_Bank();
    return bank ? *bank : me_bank[0];
}

// 1..8 for "Key1".."Key8" and "DSK1".."DSK8", 0 for everything else.
static int key_of_page()
{
    const char* word = GL_NowTree && GL_NowTree[0] ? GL_NowTree[1] : nullptr;
    if (!word || strlen(word) != 4 || (strncmp(word, "Key", 3) && strncmp(word, "DSK", 3)))
        return 0;
    const int key = word[3] - '0';
    return key >= 1 && key <= 8 ? key : 0;
}

// --- Questions ---

int ask_screen_wide(const BT_MEM*)
{
    return SYS_ScreenAspect == 1;
}

int ask_bank_wide(const BT_MEM*)
{
    return SYS_RefSwrScreenAspect[bank_of_page().place] == 1;
}

int ask_hd(const BT_MEM*)
{
    return SYS_SignalFormat != 0;
}

int ask_key_turns(const BT_MEM*)
{
    return GL_ProcKeyRotationInfo(bank_of_page().me, key_of_page()) != 0;
}

static bool ends_with(const char* text, const char* end)
{
    const size_t length = strlen(text), tail = strlen(end);
    return length >= tail && strcmp(text + length - tail, end) == 0;
}

static const char* tally_of(const BT_MEM* b, const char* path)
{
    for (int i = 1; i < BT_COMMANDS; i++)
        if (ends_with(b->cmd[i], path))
            return b->tally[i];
    return "";
}

static int ask_tally(const BT_MEM* b, const KnobQuestion& q)
{
    const char* tally = tally_of(b, q.path);
    for (int n = 0; n + 1 < q.answers; n++)
        if (strcmp(tally, q.words[n]) == 0)
            return n + 1;
    return 0;
}

// --- Cases ---

static constexpr const KnobCase* all_cases[] = {knob_cases_key, knob_cases_wipe, knob_cases_dme,
                                                knob_cases_global};

static const KnobCase* case_of(int number)
{
    for (const KnobCase* c : all_cases)
        for (; c->number >= 1; c++)
            if (c->number == number)
                return c;
    return nullptr;
}

const NB_TBL* special_knob_table(const BT_MEM* b)
{
    const KnobCase* c = case_of(SpecialKnobNumber(b->nb));
    if (!c)
        return nullptr;
    int n = 0;
    for (const KnobQuestion& q : c->by)
        if (q.answers)
            n = n * q.answers + (q.ask ? q.ask(b) : ask_tally(b, q));
    return c->tables.table[n];
}

int special_knob_tables(int number, const NB_TBL** tables, int size)
{
    const KnobCase* c = case_of(number);
    int count = 0;
    for (int i = 0; c && i < c->tables.count && count < size; i++) {
        const NB_TBL* table = c->tables.table[i];
        bool is_new = table != nullptr;
        for (int k = 0; k < count; k++)
            is_new = is_new && tables[k] != table;
        if (is_new)
            tables[count++] = table;
    }
    return count;
}

int special_knob(BT_MEM* b)
{
    const NB_TBL* table = special_knob_table(b);
    // Without a table of its own the button must not turn the boxes of the one before it.
    return table ? NB_Create(table, b->caption) : NB_CreateBlank();
}
