// Edge and direction of a bank's wipe, and the matte that fills the edge.
#include "a_bt.h"
#include "a_nb.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "page_table/nb_me_wipe.h"
#include "pc_me.h"
#include "pc_me_wipe.h"
#include "tally_value.h"
#include "safeguards.h"

#define LOCAL_DIRECTION "LOCAL@M/E@Wipe@Direction@"

// --- Edge/Direction: normal and reverse are two values of which one holds ---

namespace
{
constexpr const char* directions[] = {"Normal", "Reverse"};
}

static struct {
    char WipeReg[16] = "";               // "M/E-1", "M/E-1 SUB"
    char DirectionCmd[2][CMD_SIZE] = {}; // "M/E-1@Wipe@Direction@Normal", "...@Reverse"
} EdgeDir;                               // valid from create(1) to create(0)

static int direction_tally(const char* path, const char* value)
{
    for (int i = 0; i < 2; i++) {
        if (!Same(path, EdgeDir.DirectionCmd[i]))
            continue;
        ME_Mirror(LOCAL_DIRECTION "%s#%s", directions[i], Bool(IsTrue(value)));
    }
    return 0;
}

// The new one first: at no time there is none.
static int direction_press(const char* path)
{
    for (int i = 0; i < 2; i++) {
        char key[CMD_SIZE];
        PrintText(key, LOCAL_DIRECTION "%s", directions[i]);
        if (!Same(path, key))
            continue;
        Net_SendCommandFormat("put %s#true", EdgeDir.DirectionCmd[i]);
        Net_SendCommandFormat("put %s#false", EdgeDir.DirectionCmd[1 - i]);
    }
    return 0;
}

static int pc_me_wipe_edgedir_create(int on, uint32_t)
{
    if (on) {
        EdgeDir = {};
        ME_BankWord(EdgeDir.WipeReg);
        for (int i = 0; i < 2; i++)
            PrintText(EdgeDir.DirectionCmd[i], "%s@Wipe@Direction@%s", EdgeDir.WipeReg,
                      directions[i]);
    }
    for (const char* path : EdgeDir.DirectionCmd)
        Net_SendCommandFormat("%s %s", on ? "add" : "remove", path);
    return !on;
}

static int pc_me_wipe_edgedir_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return direction_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return direction_press(Text(ax));
    default: return 0;
    }
}

const PC_TBL pc_me_wipe_edgedir = {pc_me_wipe_edgedir_proc, pc_me_wipe_edgedir_create};

// --- Matte adjust: the knobs of the mix follow its pattern ---

namespace
{
constexpr int BTN_MIX = 18;
constexpr const char* MIX_TITLE = "Mix"; // the button's caption
constexpr struct {
    const char* word;
    const NB_TBL* nb;
} mix_patterns[] = {
    {"Horizontal", nb_wipe_matte_mix_across}, {"Vertical", nb_wipe_matte_mix_across},
    {"Diagonal", nb_wipe_matte_mix_across},   {"Box", nb_wipe_matte_mix_round},
    {"Diamond", nb_wipe_matte_mix_round},     {"Circle", nb_wipe_matte_mix_round},
};
} // namespace

static struct {
    char MixPtnCmd[CMD_SIZE] = ""; // "M/E-1@Wipe@Edge/Direction@Matte Adjust@Mix Pattern"
    const NB_TBL* nb = nullptr;    // what the button was given last
} MatteAdj;                        // valid from create(1) to create(0)

static int mix_pattern_tally(const char* path, const char* value)
{
    if (!Same(path, MatteAdj.MixPtnCmd))
        return 0;
    for (const auto& pattern : mix_patterns) {
        if (!Same(value, pattern.word) || MatteAdj.nb == pattern.nb)
            continue;
        MatteAdj.nb = pattern.nb;
        BT_SetKnob(BTN_MIX, pattern.nb);
        if (BT_GetKnobAssign() == BTN_MIX)
            NB_Create(pattern.nb, MIX_TITLE);
    }
    return 0;
}

// The buttons of the patterns subscribe the path.
static int pc_me_wipe_edgedir_matteadj_create(int on, uint32_t)
{
    if (!on)
        return 1;
    MatteAdj = {};
    DecodeCommand(MatteAdj.MixPtnCmd, "~@Mix Pattern", CMD_SIZE);
    return 0;
}

static int pc_me_wipe_edgedir_matteadj_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == MSG_TALLY ? mix_pattern_tally(Text(ax), Text(bx)) : 0;
}

const PC_TBL pc_me_wipe_edgedir_matteadj = {pc_me_wipe_edgedir_matteadj_proc,
                                            pc_me_wipe_edgedir_matteadj_create};
