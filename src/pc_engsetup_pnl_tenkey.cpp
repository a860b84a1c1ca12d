// The regions on the ten keys: the keys at the left, as many as are chosen change together; their
// slots and all regions at the right. Which keys are chosen is the server's, so that the panel
// lights them; what is on them is a line of the server's for each key.
#include "a_bt.h"
#include "a_ls.h"
#include "bus.h"
#include "colours.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "graphics.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "pc_engsetup_pnl.h"
#include "setup_index.h"
#include "tally_value.h"
#include "tdl.h"
#include "tenkey.h"
#include "text.h"
#include <algorithm>
#include <iterator>

#include "safeguards.h"

#define LOCAL_TENKEY "LOCAL@10 Key Region Assign@"
#define LOCAL_ALL "LOCAL@All Select"

namespace
{
constexpr int LIST = 1;
constexpr int LIST_LOOK_EMPTY = 1; // grey
constexpr int SLOT_Y = 100;
constexpr Rect slot_rect(int slot)
{
    const int x = 456 + 61 * slot;
    return {x, SLOT_Y, x + TEN_KEY_W - 1, SLOT_Y + TEN_KEY_H - 1};
}
constexpr int CAPTION_X = 8;
constexpr int CAPTION_Y = 9;
constexpr int FONT_NUMBER = 2;
constexpr int FONT_KEY = 1;
constexpr int FONT_TITLE = 3;
constexpr unsigned UNAVAILABLE = 0x787878;

struct btnno {
    const regnametbl* region[TEN_KEY_SLOTS] = {&TenKey_NoAssign, &TenKey_NoAssign, &TenKey_NoAssign,
                                               &TenKey_NoAssign};
    int kind = 0; // second number of its line
    int sel = 0;
};
} // namespace

static struct {
    btnno BtnNo[TEN_KEYS + 1]; // by number, from 1
    const regnametbl* list[64] = {};
    int rows = 0;
    int current = 1; // its slots stand at the right
    int slot = 0;
    int question = 0; // pane
    bool redraw = false;
} tk; // valid from create(1) to create(0)

static int count_assigned(const btnno& b)
{
    return int(std::count_if(std::begin(b.region), std::end(b.region), TenKey_IsAssigned));
}

static bool is_all_selected()
{
    return std::all_of(tk.BtnNo + 1, std::end(tk.BtnNo), [](const btnno& b) { return b.sel; });
}

static bool is_any_selected()
{
    return std::any_of(tk.BtnNo + 1, std::end(tk.BtnNo), [](const btnno& b) { return b.sel; });
}

// --- Painting ---

static void draw_face(const Rect& r, const regnametbl* region, bool is_on)
{
    const bool is_grey = TenKey_IsGrayout(region);
    TDL_PutS(r.x1, r.y1, is_on ? G_PSELm_on : G_PSELm_off);
    TDL_SymbolS(r.x1 + CAPTION_X, r.y1 + CAPTION_Y, region->caption, FONT_KEY,
                is_grey ? UNAVAILABLE
                : is_on ? BLACK
                        : WHITE);
}

static void draw_number(const Rect& r, int number)
{
    TDL_SymbolS(r.x1 + 2, r.y1, NumStr(number), FONT_NUMBER, WHITE);
    TDL_SymbolS(r.x1 + 30, r.y1, "(   )", FONT_NUMBER, ORANGE);
    TDL_SymbolS(r.x1 + 36, r.y1, NumStr(count_assigned(tk.BtnNo[number])), FONT_NUMBER, ORANGE);
}

static void draw_key(int number)
{
    constexpr int RIM = 2; // of the frame that marks the current key
    const btnno& b = tk.BtnNo[number];
    const Rect r = RegBtnRect(number - 1);
    const Rect cap = {r.x1, r.y1 + TEN_KEY_NUMBER_PX, r.x2, r.y2};
    const auto first = std::find_if(std::begin(b.region), std::end(b.region), TenKey_IsAssigned);
    TDL_FillRectS(r.x1 - RIM, r.y1, r.x2 + RIM, r.y2 + RIM, BLACK);
    draw_number(r, number);
    draw_face(cap, first == std::end(b.region) ? &TenKey_NoAssign : *first, b.sel != 0);
    for (int i = 1; i <= RIM && number == tk.current; i++)
        TDL_RectS(cap.x1 - i, cap.y1 - i, cap.x2 + i, cap.y2 + i, ORANGE);
    TDL_UpdateRect(r.x1 - RIM, r.y1, r.x2 + RIM, r.y2 + RIM);
}

static void draw_slots()
{
    const Rect first = slot_rect(0), last = slot_rect(TEN_KEY_SLOTS - 1);
    char title[32];
    TDL_FillRectS(first.x1, first.y1 - 22, last.x2, last.y2, BLACK);
    PrintText(title, "Regions of Button %d", tk.current);
    TDL_SymbolS(first.x1, first.y1 - 20, title, FONT_TITLE, WHITE);
    for (int slot = 0; slot < TEN_KEY_SLOTS; slot++)
        draw_face(slot_rect(slot), tk.BtnNo[tk.current].region[slot], slot == tk.slot);
    TDL_UpdateRect(first.x1, first.y1 - 22, last.x2, last.y2);
}

static int tenkey_redraw()
{
    if (!tk.redraw)
        return 0;
    tk.redraw = false;
    for (int number = 1; number <= TEN_KEYS; number++)
        draw_key(number);
    draw_slots();
    return 0;
}

// --- The list ---

static void show_list()
{
    tk.rows = 0;
    tk.list[tk.rows++] = &TenKey_NoAssign;
    const int id_max = TenKey_IdMax(isRefPnlPCX50() != 0);
    for (int n = 0; const regnametbl* region = TenKey_Region(n); n++)
        if (region->id <= id_max && tk.rows < int(std::size(tk.list)))
            tk.list[tk.rows++] = region;
    for (int row = 0; row < tk.rows; row++) {
        (void)LS_SetData(LIST, row, 0, tk.list[row]->region);
        (void)LS_SetHStatus(LIST, row, TenKey_IsGrayout(tk.list[row]) ? LIST_LOOK_EMPTY : 0);
    }
    (void)LS_SetNData(LIST, tk.rows);
    (void)LS_SetNowLine(LIST, 0);
}

// --- Commands ---

static void put_key(const char* what, int number)
{
    const btnno& b = tk.BtnNo[number];
    Net_SendCommandFormat("put " TEN_KEY_REGIONS "%s#%d,%d,%s,%s,%s,%s", what, number, b.kind,
                          b.region[0]->tally, b.region[1]->tally, b.region[2]->tally,
                          b.region[3]->tally);
}

// A region is on a key once: what was in another slot moves. The tally brings what became of it.
static void put_region(int number, const regnametbl* region)
{
    const btnno before = tk.BtnNo[number];
    btnno& b = tk.BtnNo[number];
    for (const regnametbl*& other : b.region)
        if (other == region)
            other = &TenKey_NoAssign;
    b.region[tk.slot] = region;
    put_key(NumStr(number), number);
    b = before;
}

static void put_selected(const regnametbl* region)
{
    for (int number = 1; number <= TEN_KEYS; number++)
        if (tk.BtnNo[number].sel)
            put_region(number, region);
}

static void press_set()
{
    const int row = LS_GetSelected(LIST, 0);
    if (row >= 0 && row < tk.rows && !TenKey_IsGrayout(tk.list[row]))
        put_selected(tk.list[row]);
}

static void press_clear()
{
    put_selected(&TenKey_NoAssign);
}

static void press_default()
{
    for (int number = 1; number <= TEN_KEYS; number++)
        if (tk.BtnNo[number].sel)
            put_key("Default", number);
}

static void press_recall()
{
    tk.question = PaneYesNo_Create("Default Recall", PANE_ALERT,
                                   "Are you sure you want to change all buttons\nto the default "
                                   "settings?");
}

static void put_select(int number, int on)
{
    Net_SendCommandFormat("put " TEN_KEY_ASSIGN "@Select@%d#%s", number, Bool(on));
}

static void press_all()
{
    const int on = !is_all_selected();
    for (int number = 1; number <= TEN_KEYS; number++)
        if (tk.BtnNo[number].sel != on)
            put_select(number, on);
}

static int tenkey_button(const char* cmd)
{
    static constexpr struct {
        const char* cmd;
        void (*press)();
    } keys[] = {
        {LOCAL_ALL, press_all},
        {LOCAL_TENKEY "Set", press_set},
        {LOCAL_TENKEY "Clear", press_clear},
        {LOCAL_TENKEY "Default", press_default},
        {LOCAL_TENKEY "Default Recall", press_recall},
    };
    for (const auto& key : keys)
        if (Same(cmd, key.cmd))
            key.press();
    return 0;
}

static int tenkey_press(int x, int y)
{
    if (SetupIndex_IsLocked(GL_NowPage))
        return 0;
    for (int number = 1; number <= TEN_KEYS; number++) {
        if (!Inside(RegBtnRect(number - 1), x, y))
            continue;
        tk.current = number;
        put_select(number, !tk.BtnNo[number].sel);
        tk.redraw = true;
    }
    for (int slot = 0; slot < TEN_KEY_SLOTS; slot++) {
        if (!Inside(slot_rect(slot), x, y))
            continue;
        tk.slot = slot;
        tk.redraw = true;
    }
    return 0;
}

static int tenkey_answered(int pane, int result)
{
    constexpr int yes = 1;
    if (tk.question == 0 || pane != tk.question)
        return 0;
    tk.question = 0;
    if (result == yes)
        Net_SendCommand("put " TEN_KEY_ASSIGN "@Default Recall#true");
    return 0;
}

// --- Tallies ---

static void show_keys()
{
    const bool is_none = !is_any_selected();
    for (const int key : {BTN_ASSIGN_SET, BTN_ASSIGN_CLEAR, BTN_ASSIGN_DEFAULT})
        (void)BT_SetDisable(key, is_none);
    char line[64];
    PrintText(line, LOCAL_ALL "#%s", Bool(is_all_selected()));
    (void)SendDummyTally(line);
}

static void take_regions(btnno& b, const char* value)
{
    Parts p;
    if (SplitValue(p, value, TEN_KEY_FIELDS) <= TEN_KEY_FIRST_NAME)
        return;
    const int id_max = TenKey_IdMax(isRefPnlPCX50() != 0);
    b.kind = Decimal(p.v[1]);
    for (int slot = 0; slot < TEN_KEY_SLOTS; slot++) {
        const char* const name = p.v[TEN_KEY_FIRST_NAME + slot];
        b.region[slot] = name ? TenKey_Find(name, id_max) : &TenKey_NoAssign;
    }
}

static int tenkey_tally(const char* path, const char* value)
{
    static constexpr char select[] = TEN_KEY_ASSIGN "@Select@";
    const bool is_select = BeginsWith(path, select);
    if (!is_select && !BeginsWith(path, TEN_KEY_REGIONS))
        return 0;
    const char* const rest = path + (is_select ? sizeof select : sizeof TEN_KEY_REGIONS) - 1;
    const int number = Index(rest, TEN_KEYS + 1);
    if (number < 1)
        return 0;
    if (is_select) {
        tk.BtnNo[number].sel = IsTrue(value);
        show_keys();
    } else {
        take_regions(tk.BtnNo[number], value);
    }
    tk.redraw = true;
    return 0;
}

// --- The page ---

static int tenkey_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return tenkey_redraw();
    case MSG_PRESS: return tenkey_press(int(ax), int(bx));
    case MSG_TALLY: return tenkey_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return tenkey_button(Text(ax));
    case LMSG_PANEQUIT: return tenkey_answered(int(ax), int(bx));
    default: return 0;
    }
}

// The lines of the regions are followed all the time; they are only asked for.
static int tenkey_create(int on, uint32_t)
{
    tk = {};
    if (on)
        Net_SendCommand("put " TEN_KEY_ASSIGN "@Pcx#40");
    for (int number = 1; number <= TEN_KEYS; number++) {
        Net_SendCommandFormat("%s " TEN_KEY_ASSIGN "@Select@%d", on ? "add" : "remove", number);
        if (on)
            Net_SendCommandFormat("read " TEN_KEY_REGIONS "%d", number);
    }
    if (!on)
        return 1;
    show_list();
    show_keys();
    tk.redraw = true;
    return 0;
}

const PC_TBL pc_engsetup_panel_config_10keybutton = {.proc_func = tenkey_proc,
                                                     .create_func = tenkey_create};
