// The pages on which a bank's main and sub pattern are chosen. The grid and the keys below it share
// the page, and neither knows of the other: the grid erases the keys with its own area and shows
// the knobs of a pattern without asking who had them.
#include "a_bt.h"
#include "a_nb.h"
#include "message.h"
#include "page.h"
#include "page_table/nb_me_wipe.h"
#include "pc_me.h"
#include "pc_me_wipe.h"
#include "tally_value.h"
#include "safeguards.h"

namespace
{
constexpr int BTN_POSITION = 53;
constexpr int BTN_AUTO_CENTER = 54;
constexpr const char* POSITION_TITLE = "Position"; // of the knobs that the button brings
} // namespace

static struct {
    char WipeReg[16] = "";          // "M/E-1", "M/E-1 SUB"
    char PatternCmd[CMD_SIZE] = ""; // "M/E-1@Wipe@Main Pattern@Pattern"; the grid subscribes it
    bool has_center = true;         // as far as is known
} WipePattern;                      // valid from create(1) to create(0)

static bool position_knobs_are_shown()
{
    return Same(NB_GetTitle(), POSITION_TITLE);
}

// A status that is set to what it is paints the button anew.
static void repaint_keys()
{
    for (const int id : {BTN_POSITION, BTN_AUTO_CENTER})
        BT_SetStatus(id, BT_GetStatus(id));
}

// A front that runs across the whole picture has no middle to be moved.
static void show_position()
{
    for (const int id : {BTN_POSITION, BTN_AUTO_CENTER})
        BT_SetDisable(id, !WipePattern.has_center);
    if (!WipePattern.has_center && position_knobs_are_shown())
        NB_CreateBlank();
}

static int pattern_tally(const char* path, const char* value)
{
    if (!Same(path, WipePattern.PatternCmd))
        return 0;
    WipePattern.has_center = (Wipe_Abilities(Decimal(value)) & WIPE_CENTER) != 0;
    show_position(); // paints the keys, too: the grid may have gone to another layer
    return 0;
}

// Without a pattern's own knobs the place has them. A key whose knobs are gone must not go on as
// their owner: its next touch would switch it off instead of fetching them.
static void settle_knobs()
{
    if (BT_GetKnobAssign() == BTN_POSITION && !position_knobs_are_shown())
        BT_SetKnobAssign(-1);
    const bool is_wanted = WipePattern.has_center && BT_GetOnOff(BTN_POSITION);
    if (*NB_GetTitle() || !is_wanted)
        return;
    BT_SetKnobAssign(BTN_POSITION);
    NB_Create(nb_wipe_position, POSITION_TITLE);
}

static int pattern_press()
{
    settle_knobs();
    repaint_keys();
    return 0;
}

static int pc_me_wipe_mainpattern_create(int on, uint32_t)
{
    if (!on)
        return 1;
    WipePattern = {};
    ME_BankWord(WipePattern.WipeReg);
    PrintText(WipePattern.PatternCmd, "%s@Wipe@%s@Pattern", WipePattern.WipeReg, GL_NowTree[2]);
    return 0;
}

static int pc_me_wipe_mainpattern_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return pattern_tally(Text(ax), Text(bx));
    case MSG_PRESS: return pattern_press();
    default: return 0;
    }
}

const PC_TBL pc_me_wipe_mainpattern = {pc_me_wipe_mainpattern_proc, pc_me_wipe_mainpattern_create};
