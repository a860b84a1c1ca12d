// The modifiers of a bank's main and sub pattern: what the pattern does not have is out of reach.
#include "a_bt.h"
#include "message.h"
#include "netio.h"
#include "pc_me.h"
#include "pc_me_wipe.h"
#include "tally_value.h"
#include "safeguards.h"

// A button is in reach when the pattern has all of these.
static constexpr struct {
    int id;
    unsigned needs;
} modify_keys[] = {
    {17, WIPE_CENTER},     {18, WIPE_CENTER},     {19, WIPE_CENTER},     {20, WIPE_ASPECT},
    {21, WIPE_ANGLE},      {22, WIPE_ANGLE},      {33, WIPE_MULTI},      {34, WIPE_MULTI},
    {35, WIPE_MULTI},      {36, WIPE_LINES},      {37, WIPE_LINES},      {38, WIPE_OUTLINE},
    {49, WIPE_MODULATION}, {50, WIPE_MODULATION}, {51, WIPE_MODULATION}, {52, WIPE_MODULATION},
    {54, WIPE_LINES},
};

static struct {
    char WipeReg[16] = "";          // "M/E-1", "M/E-1 SUB"
    char PatternCmd[CMD_SIZE] = ""; // "M/E-1@Wipe@Main Pattern@Pattern"
    unsigned has = Wipe_Abilities(WIPE_NO_PATTERN);
} Modify; // valid from create(1) to create(0)

static int modify_pattern_tly(const char* path, const char* value)
{
    if (!Same(path, Modify.PatternCmd))
        return 0;
    const unsigned has = Wipe_Abilities(Decimal(value));
    if (has == Modify.has)
        return 0;
    Modify.has = has;
    for (const auto& key : modify_keys)
        BT_SetDisable(key.id, (has & key.needs) != key.needs);
    return 0;
}

static int modify_create(int on, const char* pattern)
{
    if (on) {
        Modify = {};
        ME_BankWord(Modify.WipeReg);
        PrintText(Modify.PatternCmd, "%s@Wipe@%s@Pattern", Modify.WipeReg, pattern);
    }
    Net_SendCommandFormat("%s %s", on ? "add" : "remove", Modify.PatternCmd);
    return !on;
}

static int pc_me_wipe_mainmodify_create(int on, uint32_t)
{
    return modify_create(on, "Main Pattern");
}

static int pc_me_wipe_submodify_create(int on, uint32_t)
{
    return modify_create(on, "Sub Pattern");
}

static int modify_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == MSG_TALLY ? modify_pattern_tly(Text(ax), Text(bx)) : 0;
}

const PC_TBL pc_me_wipe_mainmodify = {modify_proc, pc_me_wipe_mainmodify_create};
const PC_TBL pc_me_wipe_submodify = {modify_proc, pc_me_wipe_submodify_create};
