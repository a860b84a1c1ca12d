#include "pc_macro_timeline.h"
#include "a_bt.h"
#include "a_ls.h"
#include "colours.h"
#include "indexed.h"
#include "message.h"
#include "netio.h"
#include "pc_register_list.h"
#include "register.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include "safeguards.h"

namespace
{
constexpr Rect DETAIL = {100, 371, 566, 395};
constexpr int FONT_DETAIL = 2;
constexpr int LIST = 1;
constexpr char TALLY_BACK[] = "Device@MACRO Timeline@Tally Back";

struct Action {
    MACROACTION action = MACROACTIONS;
    const char* path = ""; // the number of a register; 0 none
    const char* title = "";
};
constexpr Action actions[] = {
    {MACROACTION_KEYFRAME, "Device@MACRO Timeline@Action Assign", "Action"},
    {MACROACTION_REWIND, "Device@MACRO Timeline@Rewind Action", "Rewind Action"},
};
static_assert(IndexedBy(actions, &Action::action, MACROACTIONS));
} // namespace

static struct {
    const Action* action = nullptr; // null: no page of ours is open
    int assigned = 0;               // register, from 1; 0 none
    bool is_dirty = false;          // the strip
} mt;                               // valid from create(1) to create(0)

static void draw_detail()
{
    char text[64];
    if (!mt.is_dirty)
        return;
    mt.is_dirty = false;
    if (mt.assigned > 0)
        PrintText(text, "%s : %d  %s", mt.action->title, mt.assigned,
                  Register_Name_Macro(0, mt.assigned - 1));
    else
        PrintText(text, "%s : None", mt.action->title);
    TDL_FillRectS(DETAIL.x1, DETAIL.y1, DETAIL.x2, DETAIL.y2, BLACK);
    TDL_SymbolWS(DETAIL.x1 + 4, DETAIL.y1 + 4, DETAIL.x2 - DETAIL.x1, text, FONT_DETAIL, TEAL);
    TDL_UpdateRect(DETAIL.x1, DETAIL.y1, DETAIL.x2, DETAIL.y2);
}

// What the path of the page says. A number that is no register counts as none.
static int take_action(const char* value)
{
    const int number = Decimal(value);
    mt.assigned = number >= 1 && number <= REGISTERS_MACRO ? number : 0;
    mt.is_dirty = true;
    return 0;
}

static int assign(int number)
{
    return Net_SendCommandFormat("put %s#%d", mt.action->path, number);
}

static int button_pressed(const char* command)
{
    if (Same(command, "LOCAL@Macro@Timeline@Set"))
        return assign(std::max(LS_GetNowLine(LIST), 0) + 1);
    if (Same(command, "LOCAL@Macro@Timeline@Clear"))
        return assign(0);
    return 0;
}

static int register_changed(int kind, int row, int no)
{
    (void)RegisterList_Registered(kind, row, no);
    mt.is_dirty |= kind == REGISTER_MACRO && no + 1 == mt.assigned;
    return 0;
}

static int page_redraw()
{
    draw_detail();
    return 0;
}

static int pc_macro_timeline_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    if (!mt.action)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return page_redraw();
    case MSG_TALLY: return Same(Text(ax), mt.action->path) ? take_action(Text(bx)) : 0;
    case LMSG_BTNSEL: return button_pressed(Text(ax));
    case LMSG_REGISTER: return register_changed(int(ax), int(bx), int(cx));
    default: return 0;
    }
}

static int leave()
{
    if (!mt.action)
        return 0;
    Net_SendCommandFormat("put %s#false", TALLY_BACK);
    Net_SendCommandFormat("remove %s", mt.action->path);
    Register_StatusReport(0);
    RegisterList_CloseAll();
    mt = {};
    return 0;
}

static int pc_macro_timeline_create(int on, uint32_t action)
{
    if (!on)
        return leave();
    if (action >= MACROACTIONS)
        return -1;
    mt = {.action = &actions[action], .is_dirty = true};
    const RegisterKind& kind = register_kinds[REGKIND_MACRO];
    Register_StatusReport(1);
    RegisterList_Open(0, kind, kind.columns, 0, 0);
    Net_SendCommandFormat("add %s", mt.action->path);
    Net_SendCommandFormat("put %s#true", TALLY_BACK);
    return 0;
}

const PC_TBL pc_macro_timeline = {pc_macro_timeline_proc, pc_macro_timeline_create};
