// How a bank's main and sub pattern are put together. One kind is not for every two patterns.
#include "a_bt.h"
#include "message.h"
#include "netio.h"
#include "pc_me.h"
#include "pc_me_wipe.h"
#include "tally_value.h"
#include "safeguards.h"

namespace
{
constexpr int BTN_MORPHING = 21;
constexpr const char* patterns[] = {"Main Pattern", "Sub Pattern"};
} // namespace

static struct {
    char WipeReg[16] = "";             // "M/E-1"
    char PatternCmd[2][CMD_SIZE] = {}; // "M/E-1@Wipe@Main Pattern@Pattern", the same of the sub
    int pattern[2] = {};               // WIPE_NO_PATTERN until the tally
} PtnMix;                              // valid from create(1) to create(0)

// One outline turns into the other; blinds, mosaics and blades have many.
static void show_morphing()
{
    const bool both =
        Wipe_Abilities(PtnMix.pattern[0]) & Wipe_Abilities(PtnMix.pattern[1]) & WIPE_OUTLINE;
    BT_SetDisable(BTN_MORPHING, !both);
}

static int mix_tally(const char* path, const char* value)
{
    for (int i = 0; i < 2; i++)
        if (Same(path, PtnMix.PatternCmd[i])) {
            PtnMix.pattern[i] = Decimal(value);
            show_morphing();
        }
    return 0;
}

static int pc_me_wipe_ptnmix_create(int on, uint32_t)
{
    if (on) {
        PtnMix = {};
        ME_BankWord(PtnMix.WipeReg);
        for (int i = 0; i < 2; i++)
            PrintText(PtnMix.PatternCmd[i], "%s@Wipe@%s@Pattern", PtnMix.WipeReg, patterns[i]);
    }
    for (const char* path : PtnMix.PatternCmd)
        Net_SendCommandFormat("%s %s", on ? "add" : "remove", path);
    return !on;
}

static int pc_me_wipe_ptnmix_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == MSG_TALLY ? mix_tally(Text(ax), Text(bx)) : 0;
}

const PC_TBL pc_me_wipe_ptnmix = {pc_me_wipe_ptnmix_proc, pc_me_wipe_ptnmix_create};
