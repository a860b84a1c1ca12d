// The edge page of a key. Whether an edge is there at all, has sides and has a matte follows from
// several settings together, which no row of the table can say: the outcome is played to the
// buttons as local paths.
#include "command.h"
#include "message.h"
#include "page.h"
#include "pc_me.h"
#include "pc_me_key.h"
#include "tally_value.h"
#include "text.h"
#include <iterator>
#include "safeguards.h"

#define LOCAL_EDGE "LOCAL@M/E@Key@Edge@"

namespace
{
// What an edge can have. An emboss is lit and shaded by the two colours of the matte, whatever
// fills the other edges.
struct Kind {
    const char* word;
    bool has_sides = false;
    bool has_fill = false;
    bool is_emboss = false;
    bool is_plate = false; // stands behind the key: no key can lose it
};
constexpr Kind kinds[] = {
    {.word = "Normal"},
    {.word = "Border", .has_sides = true, .has_fill = true},
    {.word = "Drop Border", .has_sides = true, .has_fill = true},
    {.word = "Shadow", .has_sides = true, .has_fill = true},
    {.word = "Outline", .has_sides = true},
    {.word = "Emboss", .has_fill = true, .is_emboss = true},
    {.word = "Zabton", .has_fill = true, .is_plate = true},
};

// The outcomes, in the order of their words.
enum Outcome : int { HAS_EDGE, HAS_SIDES, HAS_MATTE, OUTCOMES };
constexpr const char* outcome_words[] = {"Edge", "Sides", "Matte"};
static_assert(std::size(outcome_words) == OUTCOMES);
} // namespace

static struct {
    char EdgeCmd[CMD_SIZE] = "";    // "M/E-1@Key1@Edge@Edge"
    char FineKeyCmd[CMD_SIZE] = ""; // "M/E-1@Key1@Edge@Fine Key"
    char SoftCmd[CMD_SIZE] = "";
    char FillCmd[CMD_SIZE] = "";
    char TypeCmd[CMD_SIZE] = ""; // "M/E-1@Key1@Type@Key Type"
    const Kind* kind = &kinds[0];
    bool is_fine = false;
    bool is_soft = false;
    bool is_filled_by_matte = false;
    bool is_chroma = false;
    int shown[OUTCOMES] = {-1, -1, -1}; // -1: the buttons have not heard of it
} Edge;                                 // valid from create(1) to create(0)

// --- Outcomes ---

static void mirror(Outcome outcome, bool on)
{
    if (Edge.shown[outcome] == int(on))
        return;
    Edge.shown[outcome] = on;
    ME_Mirror(LOCAL_EDGE "%s#%s", outcome_words[outcome], Bool(on));
}

static void show_outcomes()
{
    const Kind& kind = *Edge.kind;
    const bool has_edge = !(Edge.is_fine && Edge.is_chroma);
    const bool has_fill = kind.has_fill && (has_edge || kind.is_plate);
    mirror(HAS_EDGE, has_edge);
    mirror(HAS_SIDES, has_edge && (kind.has_sides || Edge.is_soft));
    mirror(HAS_MATTE, has_fill && (kind.is_emboss || Edge.is_filled_by_matte));
}

// --- Tallies ---

static const Kind* kind_of(const char* word)
{
    for (const Kind& kind : kinds)
        if (Same(word, kind.word))
            return &kind;
    return &kinds[0];
}

static int edge_tally(const char* path, const char* value)
{
    if (Same(path, Edge.EdgeCmd))
        Edge.kind = kind_of(value);
    else if (Same(path, Edge.FineKeyCmd))
        Edge.is_fine = IsTrue(value);
    else if (Same(path, Edge.SoftCmd))
        Edge.is_soft = IsTrue(value);
    else if (Same(path, Edge.FillCmd))
        Edge.is_filled_by_matte = Same(value, "Matte");
    else if (Same(path, Edge.TypeCmd))
        Edge.is_chroma = Same(value, "Chroma");
    else
        return 0;
    show_outcomes();
    return 0;
}

static int pc_me_key_edge_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == MSG_TALLY ? edge_tally(Text(ax), Text(bx)) : 0;
}

// --- The page: all its paths are subscribed by its buttons ---

static int pc_me_key_edge_create(int on, uint32_t)
{
    if (!on)
        return 1;
    Edge = {};
    const char* bank = GL_NowTree[0];
    const char* key = GL_NowTree[1];
    PrintText(Edge.EdgeCmd, "%s@%s@Edge@Edge", bank, key);
    PrintText(Edge.FineKeyCmd, "%s@%s@Edge@Fine Key", bank, key);
    PrintText(Edge.SoftCmd, "%s@%s@Edge@Soft Edge", bank, key);
    PrintText(Edge.FillCmd, "%s@%s@Edge@Edge Fill", bank, key);
    PrintText(Edge.TypeCmd, "%s@%s@Type@Key Type", bank, key);
    return 0;
}

const PC_TBL pc_me_key_edge = {pc_me_key_edge_proc, pc_me_key_edge_create};
