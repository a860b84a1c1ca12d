// The page of the plate behind a key: its pattern, where the switcher has a choice of patterns.
#include "a_bt.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me_key.h"
#include "tally_value.h"
#include "text.h"
#include "safeguards.h"

namespace
{
constexpr int BTN_PATTERN = 21;
constexpr uint32_t PAGE_PATTERN = 0x11120004;
} // namespace

static struct {
    char PtnCmd[CMD_SIZE] = "";           // "M/E-1@Key1@Edge@Zabton@Pattern"
    char ZabtonAdj_ZabtonPtnStr[32] = ""; // caption of the button that selects the pattern
} zabton;                                 // valid from create(1) to create(0)

static int zabtonadj_tally(const char* path, const char* value)
{
    if (!Same(path, zabton.PtnCmd))
        return 0;
    PatternCaption(zabton.ZabtonAdj_ZabtonPtnStr, value);
    BT_SetCaption(BTN_PATTERN, zabton.ZabtonAdj_ZabtonPtnStr);
    return 0;
}

static int pc_me_key_edge_zabtonadj_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return msg == MSG_TALLY ? zabtonadj_tally(Text(ax), Text(bx)) : 0;
}

static bool has_pattern_page()
{
    uint32_t id = PAGE_PATTERN;
    AddPageOffset(&id);
    return SearchPageTable(id) != nullptr;
}

static int pc_me_key_edge_zabtonadj_create(int on, uint32_t)
{
    if (!on) {
        Net_SendCommandFormat("remove %s", zabton.PtnCmd);
        return 1;
    }
    zabton = {};
    PrintText(zabton.PtnCmd, "%s@%s@Edge@Zabton@Pattern", GL_NowTree[0], GL_NowTree[1]);
    Net_SendCommandFormat("add %s", zabton.PtnCmd);
    if (!has_pattern_page())
        BT_SetDisable(BTN_PATTERN, 1);
    return 0;
}

const PC_TBL pc_me_key_edge_zabtonadj = {pc_me_key_edge_zabtonadj_proc,
                                         pc_me_key_edge_zabtonadj_create};
