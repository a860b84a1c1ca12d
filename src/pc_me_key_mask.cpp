// The two masks of a key. A mask may come from a utility bus of the bank: its button tells which
// source the bus carries. The pattern can be chosen only while it is the mask.
#include "a_nb.h"
#include "global.h"
#include "message.h"
#include "page.h"
#include "page_table/nb_rows.h"
#include "page_table/patterns.h"
#include "pc_me.h"
#include "pc_me_key_lower.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include "safeguards.h"

namespace
{
constexpr int BTN_UTILITY[] = {35, 36};
constexpr int BTN_PATTERN_SELECT = 37;
constexpr int BTN_SOURCE_LIST = 38; // of the main mask alone
constexpr int UTILITY_BUSES = 2;
constexpr int NAME_PX = 70; // what a caption has on a standard button, with air
} // namespace

static struct {
    char SwitchCmd[CMD_SIZE] = "";                 // "M/E-1@Key1@Main Mask@Main Mask"
    char SourceCmd[CMD_SIZE] = "";                 // "M/E-1@Key1@Main Mask@Mask Source"
    char UtilityCmd[UTILITY_BUSES][CMD_SIZE] = {}; // "M/E-1@Status@Xpt Assign@UTIL1"
    char Caption[UTILITY_BUSES][64] = {};          // shown by the buttons until the page closes
    bool IsOn = false;
    bool IsPattern = false;
} Mask; // valid from create(1) to create(0)

static void show_pattern_select()
{
    ME_DisableKey(BTN_PATTERN_SELECT, !Mask.IsOn || !Mask.IsPattern);
    ME_DisableKey(BTN_SOURCE_LIST, !Mask.IsOn); // a tab takes no condition from its row
}

// The name of the source that the bus carries, cut to the button; without one the bus is named
// alone.
static void show_source(int bus, const char* name)
{
    char shown[32];
    CopyText(shown, *name ? name : "Bus");
    (void)TDL_CutText(shown, sizeof shown, NAME_PX, "", ME_CAPTION_FONT); // "" always fits
    PrintText(Mask.Caption[bus], "Utility %d\n%s", bus + 1, shown);
    (void)BT_SetCaption(BTN_UTILITY[bus], Mask.Caption[bus]); // never null
}

static int mask_tally(const char* path, const char* value)
{
    if (Same(path, Mask.SwitchCmd)) {
        Mask.IsOn = IsTrue(value);
        show_pattern_select();
    } else if (Same(path, Mask.SourceCmd)) {
        Mask.IsPattern = Same(value, "Pattern");
        show_pattern_select();
    }
    for (int bus = 0; bus < UTILITY_BUSES; bus++)
        if (Same(path, Mask.UtilityCmd[bus]))
            show_source(bus, value);
    return 0;
}

// All four paths are subscribed by the buttons: the buses as what their button depends on.
static int mask_create(int on, const char* mask)
{
    if (!on)
        return 1;
    Mask = {};
    PrintText(Mask.SwitchCmd, "%s@%s@%s@%s", GL_NowTree[0], GL_NowTree[1], mask, mask);
    PrintText(Mask.SourceCmd, "%s@%s@%s@Mask Source", GL_NowTree[0], GL_NowTree[1], mask);
    for (int bus = 0; bus < UTILITY_BUSES; bus++)
        PrintText(Mask.UtilityCmd[bus], "%s@Status@Xpt Assign@UTIL%d", GL_NowTree[0], bus + 1);
    show_pattern_select();
    return 0;
}

static int pc_me_mainmask_create(int on, uint32_t)
{
    return mask_create(on, "Main Mask");
}

static int pc_me_submask_create(int on, uint32_t)
{
    return mask_create(on, "Sub Mask");
}

static int pc_me_submask_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == MSG_TALLY ? mask_tally(Text(ax), Text(bx)) : 0;
}

static int pc_me_mainmask_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx)
{
    if (msg == LMSG_PULLDOWNSEL)
        return pc_pulldown.proc_func(msg, ax, bx, cx, dx);
    return pc_me_submask_proc(msg, ax, bx, cx, dx);
}

const PC_TBL pc_me_mainmask = {pc_me_mainmask_proc, pc_me_mainmask_create};
const PC_TBL pc_me_submask = {pc_me_submask_proc, pc_me_submask_create};

// --- The pattern of the main mask: its boxes have the limits of those beside the choice ---

static int limit_position()
{
    constexpr int BOX_H = 3;
    if (NB_ShownTable() != nb_me_key_mainmask_maskptnsel)
        return 0;
    const int aspect = Now_disp_draw(); // banks stand in the same order there
    const double h = Wide(100, SYS_RefSwrScreenAspect[aspect] == 1);
    return NB_AddMinMax(BOX_H, -h, h);
}

static int pc_me_mainmask_ptnsel_create(int on, uint32_t)
{
    return on ? limit_position() : 1;
}

static int pc_me_mainmask_ptnsel_proc(int msg, MsgArg, MsgArg, MsgArg, MsgArg)
{
    return msg == LMSG_KNOBCREATE ? limit_position() : 0;
}

const PC_TBL pc_me_mainmask_ptnsel = {pc_me_mainmask_ptnsel_proc, pc_me_mainmask_ptnsel_create};
