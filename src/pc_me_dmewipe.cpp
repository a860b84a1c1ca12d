// The smaller pages of the effects-unit wipe: pattern select, modifiers of the pattern, edge and
// direction, and what is removed from the begin of the transition. Which keys a pattern has is a
// table by pattern number.
#include "pc_me_dmewipe.h"
#include "a_bt.h"
#include "a_dw.h"
#include "a_nb.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me.h"
#include "tally_value.h"
#include "text.h"
#include <cstdlib>
#include <cstring>
#include <iterator>
#include "safeguards.h"

// --- Shared ---

bool dmewipe_is_off()
{
    enum { MAIN_ONLY = 0, SUB_ONLY = 1 };
    const int assigned = MainSubAssign_StatusCheck();
    switch (isNowPageME(0)) {
    case 1: return assigned == SUB_ONLY;
    case 2: return assigned == MAIN_ONLY || !SYS_DWSubEnable;
    default: return false;
    }
}

void dmewipe_path(char (&dst)[CMD_SIZE], const char* tail)
{
    char bank[32];
    ME_BankWord(bank);
    if (isNowPageMeKey(0))
        PrintText(dst, "%s@%s@Transition@DME Wipe%s", bank, GL_NowTree[1], tail);
    else
        PrintText(dst, "%s@DME Wipe%s", bank, tail);
}

// To allow a key is to override what its row depends on, so that the row has the last word.
static void set_dead(int id, bool is_dead)
{
    BT_SetDisable(id, is_dead);
    BT_MEM* b = is_dead ? nullptr : bt_find(id);
    if (b && b->tally_func)
        b->tally_func(b, 1, b->cmd[1], b->tally[1]);
}

// --- Pattern Select: three keys move the list ---

static int show_channels(const char* path)
{
    static constexpr const char* keys[] = {"LOCAL@Pattern Select@1 Channel",
                                           "LOCAL@Pattern Select@2 Channels",
                                           "LOCAL@Pattern Select@3 Channels"};
    for (int i = 0; i < int(std::size(keys)); i++)
        if (Same(path, keys[i]))
            (void)DW_ShowChannels(i + 1); // a list without such patterns stays where it is
    return 0;
}

static int pc_me_dmewipe_pattern_create(int on, uint32_t)
{
    if (!on)
        return 1;
    if (dmewipe_is_off()) {
        BT_SetAllDisable(1);
        DW_SetDead(1);
    }
    return 0;
}

static int pc_me_dmewipe_pattern_proc(int msg, MsgArg ax, MsgArg, MsgArg, MsgArg)
{
    return msg == LMSG_BTNSEL ? show_channels(Text(ax)) : 0;
}

const PC_TBL pc_me_dmewipe_pattern = {pc_me_dmewipe_pattern_proc, pc_me_dmewipe_pattern_create};

// --- Pages whose keys depend on the pattern ---

namespace
{
// Patterns by their last three digits, inclusive: how a picture moves doesn't depend on how many
// channels take part.
struct Moves {
    int first, last;
};
constexpr int MOVES = 3; // ranges of one key

struct PatternKey {
    int button;
    Moves moves[MOVES] = {{1, 999}};
    int min_channels = 1;
};

constexpr Moves SQUEEZE = {201, 251};
constexpr Moves CURL = {301, 336};   // page turn, roll
constexpr Moves SOLID = {361, 418};  // flip, spin, ball, cylinder, door
constexpr Moves BUILT_IN = {1, 899}; // all but the user programs

// What a move of the picture leaves open: a user program fixes it all, a slide has no turns.
constexpr PatternKey modifier_keys[] = {
    {20, {SOLID}},       // turns
    {21, {CURL}},        // radius and angle
    {22, {SOLID, CURL}}, // perspective
    {34, {CURL, SOLID}}, // flip: the back of the picture
    {35, {CURL, SOLID}}, // tumble
    {49, {{1, 999}}, 2}, // priority: automatic
    {50, {{1, 999}}, 2}, // 1st channel on top
    {51, {{1, 999}}, 2}, {52, {{1, 999}}, 3}, {54, {SQUEEZE, SOLID}}, // axis location
};
constexpr PatternKey edge_keys[] = {
    {49, {{1, 299}, SOLID}}, // drop shadow: a curl throws its own
    {50, {{1, 299}, SOLID}},
    {37, {BUILT_IN}}, // pattern limit: a user program runs to its end
    {38, {BUILT_IN}},
};
} // namespace

static struct {
    char PatternCmd[CMD_SIZE] = "";
    const PatternKey* keys = nullptr;
    int count = 0;
    bool off = false; // the bank has no such wipe now
} PtnPage;            // valid from create(1) to create(0)

static bool has_move(const PatternKey& key, int number)
{
    const int move = DW_BaseNumber(number) % 1000;
    for (const Moves& m : key.moves)
        if (m.first <= move && move <= m.last)
            return true;
    return false;
}

// The wipe that is off stays so: the keys have just looked at their own conditions.
static void ptnpage_pattern(int number)
{
    if (PtnPage.off) {
        BT_SetAllDisable(1);
        return;
    }
    const int channels = DW_ChannelsOf(number);
    for (int i = 0; i < PtnPage.count; i++) {
        const PatternKey& key = PtnPage.keys[i];
        set_dead(key.button, channels < key.min_channels || !has_move(key, number));
    }
}

static int ptnpage_create(int on, const PatternKey* keys, int count)
{
    if (!on) {
        Net_SendCommandFormat("remove %s", PtnPage.PatternCmd);
        return 1;
    }
    PtnPage = {};
    PtnPage.keys = keys;
    PtnPage.count = count;
    PtnPage.off = dmewipe_is_off();
    dmewipe_path(PtnPage.PatternCmd, "@Pattern Select@Pattern");
    Net_SendCommandFormat("add %s", PtnPage.PatternCmd);
    if (PtnPage.off)
        BT_SetAllDisable(1);
    return 0;
}

static int ptnpage_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg == MSG_TALLY && Same(Text(ax), PtnPage.PatternCmd))
        ptnpage_pattern(Decimal(Text(bx)));
    return 0;
}

static int pc_me_dmewipe_ptnmodifier_create(int on, uint32_t)
{
    if (on && BT_GetKnobAssign() < 0)
        NB_SetTitle("Modifier"); // the page's own name is too wide for the column
    return ptnpage_create(on, modifier_keys, int(std::size(modifier_keys)));
}

static int pc_me_dmewipe_edgedirection_create(int on, uint32_t)
{
    return ptnpage_create(on, edge_keys, int(std::size(edge_keys)));
}

const PC_TBL pc_me_dmewipe_ptnmodifier = {ptnpage_proc, pc_me_dmewipe_ptnmodifier_create};
const PC_TBL pc_me_dmewipe_edgedirection = {ptnpage_proc, pc_me_dmewipe_edgedirection_create};

// --- Remove From Begin: a channel's picture is away in a part of the transition ---

namespace
{
constexpr int remove_buttons[] = {17, 18, 19}; // by channel
enum : int { BOX_START = 1, BOX_LIMIT = 2 };
} // namespace

static struct {
    char PatternCmd[CMD_SIZE] = "";
    char RemoveCmd[CMD_SIZE] = ""; // "M/E-1@DME Wipe@Modify@Remove From Begin@"
    bool off = false;
} RemoveBegin; // valid from create(1) to create(0)

static void remove_pattern(int number)
{
    const int channels = RemoveBegin.off ? 0 : DW_ChannelsOf(number);
    for (int ch = 0; ch < int(std::size(remove_buttons)); ch++)
        set_dead(remove_buttons[ch], ch >= channels);
}

// The part begins before it ends: each box ends where the other one stands.
static void remove_value(const char* rest, double value)
{
    const char* at = strrchr(rest, '@');
    const int ch = at ? IndexFrom1(at + 1, int(std::size(remove_buttons))) : -1;
    if (ch < 0 || BT_GetKnobAssign() != remove_buttons[ch])
        return;
    if (BeginsWith(rest, "Start@"))
        NB_AddMinMax(BOX_LIMIT, value, 100);
    else if (BeginsWith(rest, "Limit@"))
        NB_AddMinMax(BOX_START, 0, value);
}

static int removefrombigin_create(int on, uint32_t)
{
    if (!on) {
        Net_SendCommandFormat("remove %s", RemoveBegin.PatternCmd);
        return 1;
    }
    if (BT_GetKnobAssign() < 0)
        NB_SetTitle("Remove"); // as with the modifiers
    RemoveBegin = {};
    RemoveBegin.off = dmewipe_is_off();
    dmewipe_path(RemoveBegin.PatternCmd, "@Pattern Select@Pattern");
    dmewipe_path(RemoveBegin.RemoveCmd, "@Modify@Remove From Begin@");
    Net_SendCommandFormat("add %s", RemoveBegin.PatternCmd);
    remove_pattern(0); // until the pattern is known
    return 0;
}

static int removefrombigin_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg != MSG_TALLY)
        return 0;
    const char* path = Text(ax);
    if (Same(path, RemoveBegin.PatternCmd))
        remove_pattern(Decimal(Text(bx)));
    else if (BeginsWith(path, RemoveBegin.RemoveCmd))
        remove_value(path + strlen(RemoveBegin.RemoveCmd), strtod(Text(bx), nullptr));
    return 0;
}

const PC_TBL pc_me_dmewipe_modify_removefrombigin = {removefrombigin_proc, removefrombigin_create};
const PC_TBL pc_me_key_trans_removefrombigin = {removefrombigin_proc, removefrombigin_create};
