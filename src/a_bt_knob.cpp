// Knob links that are a number: the table is chosen when the button takes the knobs, and again when
// a tally that it depends on has changed. A case is a row: number and chooser.
#include "a_bt.h"
#include "global.h"
#include "page_table/nb_edge.h"
#include <cstring>
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

static bool is(const char* tally, const char* value)
{
    return strcmp(tally, value) == 0;
}

// Border of a key. Tallies: 1 key type, 2 separate edge, 3 and 4 that together halve the range.
// A pattern key has one plain border; a separate edge has a width a side. Without a tally the edge
// counts as separate.
static const NB_TBL* key_edge_border(const BT_MEM* b)
{
    if (is(b->tally[1], "Wipe Pattern") || is(b->tally[1], "Key Wipe Pattern"))
        return nb_me_key_edge_edge_border3;
    const bool separate = !is(b->tally[2], "false");
    const bool half = is(b->tally[3], "true") && is(b->tally[4], "false");
    if (separate)
        return half ? nb_me_key_edge_edge_border2h : nb_me_key_edge_edge_border2;
    return half ? nb_me_key_edge_edge_border1h : nb_me_key_edge_edge_border1;
}

// Border of an effects channel: its width counts in picture widths, which differ by format and
// aspect.
static const NB_TBL* dme_border(const BT_MEM*)
{
    const bool wide = SYS_ScreenAspect == 1;
    if (SYS_SignalFormat == 0)
        return wide ? nb_dme_edge_bordercrop_border2 : nb_dme_edge_bordercrop_border1;
    return wide ? nb_dme_edge_bordercrop_border4 : nb_dme_edge_bordercrop_border3;
}

static constexpr struct {
    int number;
    const NB_TBL* (*chooser)(const BT_MEM*);
} special_knobs[] = {
    {1, key_edge_border},
    {5, dme_border},
};

const NB_TBL* special_knob_table(const BT_MEM* b)
{
    const int number = SpecialKnobNumber(b->nb);
    for (const auto& s : special_knobs)
        if (s.number == number)
            return s.chooser(b);
    return nullptr;
}

int special_knob(BT_MEM* b)
{
    const NB_TBL* table = special_knob_table(b);
    // Without a table of its own the button must not turn the boxes of the one before it.
    return table ? NB_Create(table, b->caption) : NB_CreateBlank();
}
