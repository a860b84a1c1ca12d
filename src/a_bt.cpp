#include "a_bt.h"
#include "a_ba.h"
#include "bus.h"
#include "command.h"
#include "followed.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "path_set.h"
#include "setup_index.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>
#include <span>
#include "safeguards.h"

namespace
{
constexpr uint32_t NO_HASH = 0xFFFFFFFF; // no path sums up to this
constexpr int PUSHED_MS = 150;           // long enough to be seen, over before the next press
constexpr int PUSHED_LONG_MS = 1000;     // the copies of this page run that long
constexpr uint32_t SETUP_BANK = 0x73;
constexpr uint32_t PAGE_LONG_ACTIONS = 0x31160000;

struct Texts {
    char cmd[BT_COMMANDS][CMD_SIZE];
    char cmd_var[BT_COMMANDS][CMD_SIZE];
    char tally[BT_COMMANDS][CMD_SIZE];
};
} // namespace

static BT_MEM Button[BT_MAX + 1]; // the last one in use has an id of -1
static Texts texts[BT_MAX];       // of the button in the same place
static int ButtonMax = 0;
static int NBAssign = -1;     // the button that owns the knobs
static int PushedButton = -1; // the last one pressed
static int RedrawAll = 0;     // erase the area, draw the frames and every button anew
static int MinX = 65535;      // the box round all buttons; a press outside it is not ours
static int MinY = 65535;
static int MaxX = 0;
static int MaxY = 0;
static PageLook Look;

static std::span<BT_MEM> buttons()
{
    return {Button, size_t(ButtonMax)};
}

BT_MEM* bt_first()
{
    return Button;
}

BT_MEM* bt_find(int id)
{
    for (BT_MEM& b : buttons())
        if (b.id == id)
            return &b;
    return nullptr;
}

bool bt_is_enabled(const BT_MEM* b)
{
    return b->visible == BT_ENABLED && !b->is_missing;
}

// --- Who owns the knobs ---

bool bt_owns_knobs(const BT_MEM* b)
{
    return b->id == NBAssign;
}

bool bt_was_pushed_last(const BT_MEM* b)
{
    return b->id == PushedButton;
}

static void show_knobs(BT_MEM* b)
{
    if (b->nb == NoKnobs())
        return;
    if (SpecialKnobNumber(b->nb))
        special_knob(b);
    else if (b->nb)
        NB_Create(b->nb, b->caption);
}

void bt_take_knobs(BT_MEM* b)
{
    if (BT_MEM* old = bt_find(NBAssign))
        old->redraw = 1;
    NBAssign = b->id;
    b->redraw = 1;
    Page_SetKnobAssign(b->id);
    show_knobs(b);
}

// A number that is being entered belongs to a box: it must not end up in another one, nor wait in a
// window whose Enter reaches nobody.
static void close_entry()
{
    if (GetWindow() == WINDOW_KNOB || GetWindow() == WINDOW_KNOB_TRIM)
        CloseWindow();
}

static void release_knobs()
{
    close_entry();
    NBAssign = -1;
    Page_SetKnobAssign(-1);
    NB_CreateBlank();
}

void bt_drop_knobs(BT_MEM* b)
{
    if (bt_owns_knobs(b) && b->nb != NoKnobs())
        release_knobs();
}

void bt_show_enabled(BT_MEM* b, bool disabled)
{
    const int visible = disabled ? BT_DISABLED : BT_ENABLED;
    if (b->visible == visible)
        return;
    b->visible = visible;
    b->redraw = 1;
    if (disabled)
        bt_drop_knobs(b);
}

void bt_follow_knobs(BT_MEM* b, int i)
{
    const int number = SpecialKnobNumber(b->nb);
    // These three choose by what the page code has set up, which a new choice would undo.
    const bool fixed = number == 45 || number == 55 || number == 59;
    if (!number || fixed || !bt_owns_knobs(b) || b->cmd_var[i][0] != '\0')
        return;
    // The same boxes go on as they are, with what the operator is turning or entering.
    const NB_TBL* table = special_knob_table(b);
    if (NB_ShownTable() == (table ? table : NB_Non))
        return;
    close_entry();
    special_knob(b);
}

// --- Frames and area ---

static void widen_area(const BT_MEM& b)
{
    MinX = std::min(MinX, b.x1);
    MinY = std::min(MinY, b.y1);
    MaxX = std::max(MaxX, b.x2);
    MaxY = std::max(MaxY, b.y2);
}

static void redraw_all(int flag)
{
    for (BT_MEM& b : buttons())
        b.redraw = 1;
    bt_drw_groups({MinX, MinY, MaxX, MaxY}, flag != 0);
}

// --- Subscriptions ---

static_assert(BT_MAX * BT_COMMANDS <= PATH_SET_MAX);

static bool lives_on_server(const BT_MEM& b, int n)
{
    return b.type != BT_TAB && b.cmd[n][0] != '\0' && !IsLocal(b.cmd[n]);
}

static bool read_only_once(const BT_MEM& b, int n)
{
    return b.no_add > 0 && n >= b.no_add - 1;
}

int BT_Follows(const char* path)
{
    const uint32_t hash = Hash(path);
    for (const BT_MEM& b : buttons())
        for (int n = 0; n < BT_COMMANDS; n++)
            if (b.cmd_hash[n] == hash && strcmp(b.cmd[n], path) == 0 && lives_on_server(b, n) &&
                !read_only_once(b, n))
                return 1;
    return 0;
}

static void unsubscribe()
{
    PathSet met;
    for (const BT_MEM& b : buttons()) {
        for (int n = 0; n < BT_COMMANDS; n++) {
            if (!lives_on_server(b, n) || read_only_once(b, n))
                continue;
            if (PathSet_Add(met, b.cmd[n], b.cmd_hash[n]))
                Net_SendCommandFormat("remove %s", b.cmd[n]);
        }
    }
}

// Without the newer frame memory there is no resizer: its buttons stay without a tally.
static bool server_lacks(const char* path)
{
    return !SYS_FmemV6 && (strstr(path, "Resizer") || strstr(path, "Rszr"));
}

static void subscribe()
{
    PathSet met;
    for (const BT_MEM& b : buttons()) {
        for (int n = 0; n < BT_COMMANDS; n++) {
            if (!lives_on_server(b, n))
                continue;
            if (read_only_once(b, n))
                Net_SendCommandFormat("read %s", b.cmd[n]);
            else if (PathSet_Add(met, b.cmd[n], b.cmd_hash[n]) && !server_lacks(b.cmd[n]))
                Net_SendCommandFormat("add %s", b.cmd[n]);
        }
    }
}

// --- Opening and closing a page ---

// Expand a row's command into path, value and hash.
static void decode_command(BT_MEM& b, int n, const char* command)
{
    char* path = b.cmd[n];
    DecodeCommand(path, command, CMD_SIZE);
    char* value = FindVarPointer(path);
    CopyText(b.cmd_var[n], value);
    if (value > path && value[-1] == '#')
        value[-1] = '\0';
    b.cmd_hash[n] = *path ? Hash(path) : NO_HASH;
}

static void look_for_page(BT_MEM& b)
{
    const bool is_missing = Page_IsMissing(bt_target(&b));
    if (b.is_missing == is_missing)
        return;
    b.is_missing = is_missing;
    b.redraw = 1;
}

static void look_for_pages()
{
    for (BT_MEM& b : buttons())
        look_for_page(b);
}

// The buffers are 24 KB a button: each is emptied by its first byte.
static void fill_button(BT_MEM& b, Texts& text, const BT_TBL& row)
{
    b.cmd = text.cmd;
    b.cmd_var = text.cmd_var;
    b.tally = text.tally;
    b.id = row.id;
    b.caption = row.caption;
    b.group = row.group;
    b.type = row.type;
    b.x1 = row.x1;
    b.y1 = row.y1;
    b.x2 = row.x2;
    b.y2 = row.y2;
    b.redraw = 1;
    b.pushed = 0;
    b.status = BT_NO_TALLY;
    b.visible = BT_ENABLED;
    b.is_missing = false;
    b.select_func = row.select_func;
    b.draw_func = row.draw_func;
    b.tally_func = row.tally_func;
    b.nb = row.nb;
    b.undecided = 0;
    b.no_add = row.no_add;
    for (int n = 0; n < BT_COMMANDS; n++) {
        b.tally[n][0] = '\0';
        b.disable[n] = 0;
        decode_command(b, n, row.cmd[n]);
    }
    look_for_page(b);
}

static void forget_buttons()
{
    Button[0].id = -1;
    ButtonMax = 0;
    NBAssign = -1;
    PushedButton = -1;
    RedrawAll = 0;
    MinX = MinY = 65535;
    MaxX = MaxY = 0;
}

int BT_Create(const BT_TBL* table, int)
{
    unsubscribe();
    forget_buttons();
    if (!table)
        return 1;

    for (const BT_TBL* row = table; row->id >= 1; row++) {
        if (ButtonMax == BT_MAX) {
            Log_Output(LOG_ALWAYS, MOD_PAGE, "Buffer overflow for BT Objects!!\n");
            break;
        }
        fill_button(Button[ButtonMax], texts[ButtonMax], *row);
        widen_area(Button[ButtonMax]);
        ButtonMax++;
    }
    Button[ButtonMax].id = -1;

    // The knobs come back to the button that had them when the page was left.
    BT_MEM* owner = bt_find(Page_GetKnobAssign());
    if (owner && owner->nb != NoKnobs()) {
        NBAssign = owner->id;
        show_knobs(owner);
    }
    redraw_all(0);
    subscribe();
    return 0;
}

// --- Messages ---

static void press_button(BT_MEM& b)
{
    PushedButton = b.id;
    b.redraw = 1;
    // A touch that chatters on an action key must not restart its time nor reach the page code
    // twice.
    const bool starts = b.type != BT_ACTION || b.pushed <= 0;
    if (starts)
        b.pushed =
            b.type == BT_ACTION && GL_NowPage == PAGE_LONG_ACTIONS ? PUSHED_LONG_MS : PUSHED_MS;

    // The first touch of a button that is on fetches its knobs and leaves the setting alone.
    const bool only_knobs = b.nb && b.status == BT_ON && !bt_owns_knobs(&b);
    if (!only_knobs && b.select_func)
        b.select_func(&b);
    if (b.nb)
        bt_take_knobs(&b);
    if (IsLocal(b.cmd[0]) && (starts || b.pushed <= 0))
        SendMessage(LMSG_BTNSEL, Arg(b.cmd[0]), Arg(b.cmd_var[0]), only_knobs, 0);
}

// A locked setup page takes no change; where a button only leads to another page, it still does.
static bool is_refused(const BT_MEM& b)
{
    const bool is_link = b.type == BT_JUMP && b.cmd[0][0] == '\0' && b.cmd_var[0][0] != '\0';
    return !is_link && GL_NowPage >> 24 == SETUP_BANK && SetupIndex_IsLocked(GL_NowPage);
}

static int press(int x, int y)
{
    if (!Inside({MinX, MinY, MaxX, MaxY}, x, y) || BA_IsDefaultButton())
        return 0;
    for (BT_MEM& b : buttons())
        if (bt_is_enabled(&b) && Inside({b.x1, b.y1, b.x2, b.y2}, x, y)) {
            if (is_refused(b))
                BA_FlashSetupLock();
            else
                press_button(b);
        }
    return 0;
}

static int tally(const char* path, const char* value, uint32_t hash)
{
    for (BT_MEM& b : buttons()) {
        if (b.visible == BT_CUTOFF)
            continue;
        for (int i = 0; i < BT_COMMANDS; i++) {
            if (b.cmd_hash[i] != hash || strcmp(b.cmd[i], path) != 0)
                continue;
            CopyText(b.tally[i], value);
            if (b.cmd_var[i][0])
                b.disable[i] = IsDisableCondition(b.cmd_var[i], value);
            if (b.tally_func)
                b.tally_func(&b, i, path, value);
        }
    }
    return 0;
}

// The area is erased and the frames drawn before the buttons and not behind them: otherwise each
// button would be painted twice, with a black field between, on all pages whose code hides one when
// it opens.
static int redraw(int elapsed_ms)
{
    if (RedrawAll)
        redraw_all(1);
    RedrawAll = 0;
    if (PageLook_IsDue(Look, elapsed_ms))
        look_for_pages();
    for (BT_MEM& b : buttons()) {
        if (b.redraw && b.draw_func)
            b.draw_func(&b);
        if (b.pushed == 0)
            continue;
        b.pushed -= elapsed_ms;
        if (b.pushed > 0)
            continue;
        b.pushed = 0;
        b.redraw = 1;
    }
    return 0;
}

int BT_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return redraw(int(ax));
    case MSG_PRESS: return press(int(ax), int(bx));
    case MSG_TALLY: return tally(Text(ax), Text(bx), uint32_t(cx));
    default: return 0;
    }
}

// --- For page code ---

int BT_SetCaption(int id, const char* caption)
{
    if (!caption)
        return -1;
    BT_MEM* b = bt_find(id);
    if (!b)
        return 0;
    b->caption = caption;
    b->redraw = 1;
    return 0;
}

int BT_SetType(int id, int type)
{
    BT_MEM* b = bt_find(id);
    if (!b)
        return 0;
    b->type = type;
    b->redraw = 1;
    return 0;
}

int BT_SetGroup(int id, const char* group)
{
    BT_MEM* b = bt_find(id);
    if (!b)
        return 0;
    b->group = group;
    RedrawAll = 1;
    return 0;
}

int BT_SetPosition(int id, int x1, int y1, int x2, int y2)
{
    BT_MEM* b = bt_find(id);
    if (!b)
        return 0;
    b->x1 = x1;
    b->y1 = y1;
    b->x2 = x2;
    b->y2 = y2;
    b->redraw = 1;
    widen_area(*b); // the old place stays inside, so that it is erased
    RedrawAll = 1;
    return 0;
}

int BT_SetStatus(int id, int status)
{
    BT_MEM* b = bt_find(id);
    if (!b)
        return -1;
    b->status = status;
    b->redraw = 1;
    return 0;
}

int BT_GetStatus(int id)
{
    const BT_MEM* b = bt_find(id);
    return b ? b->status : -1;
}

int BT_GetOnOff(int id)
{
    return BT_GetStatus(id) == BT_ON;
}

int BT_GetVisible(int id)
{
    const BT_MEM* b = bt_find(id);
    return b ? b->visible : -1;
}

int BT_SetKnob(int id, const NB_TBL* nb)
{
    BT_MEM* b = bt_find(id);
    if (!b)
        return 0;
    b->nb = nb;
    b->redraw = 1;
    return 0;
}

int BT_GetKnobAssign()
{
    return NBAssign;
}

int BT_SetKnobAssign(int id)
{
    if (BT_MEM* old = bt_find(NBAssign))
        old->redraw = 1;
    if (BT_MEM* b = bt_find(id))
        b->redraw = 1;
    NBAssign = id;
    Page_SetKnobAssign(id);
    return 0;
}

int BT_SetDisable(int id, int on)
{
    BT_MEM* b = bt_find(id);
    if (!b)
        return 0;
    b->disable[BT_COMMANDS - 1] = on;
    b->visible = on ? BT_DISABLED : BT_ENABLED;
    b->redraw = 1;
    if (on)
        bt_drop_knobs(b);
    return 0;
}

int BT_SetAllDisable(int on)
{
    bool owner_went = false;
    for (BT_MEM& b : buttons()) {
        if (b.visible == BT_CUTOFF)
            continue;
        b.disable[BT_COMMANDS - 1] = on;
        b.visible = on ? BT_DISABLED : BT_ENABLED;
        b.redraw = 1;
        owner_went |= on && bt_owns_knobs(&b);
    }
    if (owner_went)
        release_knobs();
    return 0;
}

static bool cut_off(BT_MEM* b, int on)
{
    if (!b)
        return false;
    b->disable[BT_COMMANDS - 1] = on;
    b->visible = on ? BT_CUTOFF : BT_ENABLED;
    if (on && bt_owns_knobs(b))
        release_knobs();
    return true;
}

int BT_SetCutoff(int id, int on)
{
    if (cut_off(bt_find(id), on))
        RedrawAll = 1;
    return 0;
}

int BT_SetCutoffEx(int id, int on)
{
    BT_MEM* b = bt_find(id);
    if (cut_off(b, on))
        b->redraw = 1;
    return 0;
}

// Point command n at another path. The old one is forgotten here; whether the server still sends it
// is the caller's.
static int replace_command(BT_MEM* b, int n, const char* cmd, int no_add, const char* verb)
{
    decode_command(*b, n, cmd);
    b->no_add = no_add;
    b->status = BT_NO_TALLY;
    b->redraw = 1;
    look_for_page(*b);
    if (b->cmd[n][0] && !IsLocal(b->cmd[n]))
        Net_SendCommandFormat("%s %s", verb, b->cmd[n]);
    return 0;
}

static BT_MEM* find_command(int id, int n)
{
    return n >= 0 && n < BT_COMMANDS ? bt_find(id) : nullptr;
}

int BT_SetCommand(int id, int n, const char* cmd)
{
    BT_MEM* b = find_command(id, n);
    if (!b)
        return -1;
    const bool was_added = lives_on_server(*b, n) && !read_only_once(*b, n);
    b->cmd_hash[n] = NO_HASH; // this command no longer follows its path, others may
    if (was_added && !IsFollowed(b->cmd[n]))
        Net_SendCommandFormat("remove %s", b->cmd[n]);
    return replace_command(b, n, cmd, 0, "add");
}

int BT_SetCommand_NoRemove(int id, int n, const char* cmd)
{
    BT_MEM* b = find_command(id, n);
    return b ? replace_command(b, n, cmd, 0, "add") : -1;
}

int BT_SetCommand_NoAdd(int id, int n, const char* cmd)
{
    BT_MEM* b = find_command(id, n);
    return b ? replace_command(b, n, cmd, 1, "read") : -1;
}

int BT_UndecidedRequest(const char* cmd, int flag)
{
    if (!cmd)
        return -1;
    char path[CMD_SIZE];
    CopyText(path, cmd);
    char* value = FindVarPointer(path);
    if (value > path && value[-1] == '#')
        value[-1] = '\0';
    for (BT_MEM& b : buttons()) {
        if (!path[0] || strcmp(b.cmd[0], path) != 0)
            continue;
        if (b.tally_func)
            b.tally_func(&b, 0, path, value);
        const bool other_choice = b.type == BT_RADIO && strcmp(b.cmd_var[0], value) != 0;
        b.undecided = other_choice ? 0 : flag;
        b.redraw = 1;
    }
    return 0;
}
