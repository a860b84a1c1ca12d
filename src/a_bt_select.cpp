// What a press on a button does: it sends a command or asks for a page, and changes nothing here.
#include "a_bt.h"
#include "bus.h"
#include "command.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "page_table/nb_nonlinear.h"
#include "window.h"
#include <cstdlib>
#include <cstring>
#include "safeguards.h"

// The pushed bitmap is on the screen before what follows takes its time.
static void show_pushed()
{
    SendMessage(MSG_REDRAW, 0, 0, 0, 0);
}

static bool is_slow(int type)
{
    switch (type) {
    case BT_ACTION:
    case BT_TAB:
    case BT_PULLDOWN:
    case BT_PULLDOWN_LONG:
    case BT_TRANSFER_RIGHT:
    case BT_TRANSFER_LEFT: return true;
    default: return false;
    }
}

static void send_toggle(const BT_MEM* b)
{
    Net_SendCommandFormat("put %s#%s", b->cmd[0], ToggleBool(b->status == BT_ON));
}

static void send_value(const BT_MEM* b, const char* value)
{
    Net_SendCommandFormat("put %s#%s", b->cmd[0], value);
}

static uint32_t hex_page(const char* text)
{
    return uint32_t(strtoul(text, nullptr, 16));
}

// "11730000" is a page as it stands, "+11110001" the same page of the bank and key that are shown.
static uint32_t jump_target(const BT_MEM* b)
{
    uint32_t page = hex_page(b->cmd_var[0]);
    if (b->cmd_var[0][0] == '+')
        AddPageOffset(&page);
    return page;
}

static bool is_jump(int type)
{
    switch (type) {
    case BT_JUMP:
    case BT_JUMP_10KEY:
    case BT_JUMP_KEYBOARD:
    case BT_JUMP_POPUP: return true;
    default: return false;
    }
}

int bt_sel_normal(BT_MEM* b)
{
    if (is_slow(b->type))
        show_pushed();
    if (IsLocal(b->cmd[0]))
        return 1;
    switch (b->type) {
    case BT_TOGGLE:
    case BT_ACTION_STATE: send_toggle(b); break;
    case BT_RADIO: send_value(b, b->cmd_var[0]); break;
    case BT_RADIO_RELEASE: send_value(b, b->status == BT_ON ? "null" : b->cmd_var[0]); break;
    case BT_ACTION: send_value(b, "true"); break;
    default:
        if (is_jump(b->type))
            GL_CreatePage = jump_target(b);
        break;
    }
    return 0;
}

int bt_sel_normal_nextver(BT_MEM* b)
{
    return GL_NextVersion < 2 ? 0 : bt_sel_normal(b);
}

int bt_sel_tab(BT_MEM* b)
{
    show_pushed();
    if (const PULLDOWN* list = PullDown_Find(b->cmd[0]))
        CreateWindow(WINDOW_PULLDOWN, list->name,
                     {.x = b->x1,
                      .y = b->y2 + 1,
                      .columns = list->columns,
                      .rows = list->rows,
                      .captions = list->captions});
    return 0;
}

// --- Jumps by bank alone: their targets have no key ---

static uint32_t bank_offset()
{
    const MeBank* bank = Page_Bank();
    return bank ? MeBank_Offset(*bank) : 0;
}

static uint32_t bank_target(const BT_MEM* b)
{
    return hex_page(b->cmd_var[0]) + bank_offset();
}

int bt_sel_jmptokeypriority(BT_MEM* b)
{
    GL_CreatePage = bank_target(b);
    return 0;
}

int bt_sel_submask_ptnsel(BT_MEM* b)
{
    return bt_sel_jmptokeypriority(b);
}

uint32_t bt_target(const BT_MEM* b)
{
    if (b->nb || !b->cmd_var[0][0] || IsLocal(b->cmd[0]))
        return 0;
    if (b->select_func == bt_sel_jmptokeypriority || b->select_func == bt_sel_submask_ptnsel)
        return bank_target(b);
    return b->select_func == bt_sel_normal && is_jump(b->type) ? jump_target(b) : 0;
}

// The server changes the border together with others and reports only when asked.
int bt_sel_cgborder(BT_MEM* b)
{
    send_toggle(b);
    Net_SendCommandFormat("read %s", b->cmd[0]);
    return 0;
}

// --- Split modes of roll and page turn ---

namespace
{
struct SplitTables {
    const char* title;
    const NB_TBL* h;
    const NB_TBL* v;
    const NB_TBL* both;
    const NB_TBL* none; // the split goes off
};
} // namespace

constexpr SplitTables roll_tables = {
    "Roll",
    nb_dme_nonlinear_type_roll_roll1,
    nb_dme_nonlinear_type_roll_roll2,
    nb_dme_nonlinear_type_roll_roll3,
    nb_dme_nonlinear_type_roll_roll4,
};
constexpr SplitTables pageturn_tables = {
    "Page Turn",
    nb_dme_nonlinear_type_pageturn_pageturn1,
    nb_dme_nonlinear_type_pageturn_pageturn2,
    nb_dme_nonlinear_type_pageturn_pageturn3,
    nb_dme_nonlinear_type_pageturn_pageturn4,
};
constexpr int SPLIT_OWNER = 17; // the effect's own button: its knobs follow the split

static const NB_TBL* table_of_split(const SplitTables& t, const char* split)
{
    if (strcmp(split, "H") == 0)
        return t.h;
    if (strcmp(split, "V") == 0)
        return t.v;
    if (strcmp(split, "H&V") == 0)
        return t.both;
    return nullptr;
}

static int select_split(BT_MEM* b, const SplitTables& t)
{
    if (BT_GetKnobAssign() == SPLIT_OWNER) {
        const NB_TBL* table = b->status == BT_ON ? t.none : table_of_split(t, b->cmd_var[0]);
        if (table)
            NB_Create(table, t.title);
    }
    return bt_sel_normal(b);
}

int bt_sel_roll_splitmode(BT_MEM* b)
{
    return select_split(b, roll_tables);
}

int bt_sel_pageturn_splitmode(BT_MEM* b)
{
    return select_split(b, pageturn_tables);
}
