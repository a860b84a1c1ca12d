#include "pc_router.h"
#include "a_ba.h"
#include "a_bt.h"
#include "a_ls.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "one_of.h"
#include "pane.h"
#include "tally_value.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <iterator>
#include "safeguards.h"

static_assert(ROUTER_DESTINATIONS <= ONEOF_ROWS && ROUTER_SALVOS <= ONEOF_ROWS);
static_assert(ROUTER_SOURCES < BUS_SBUS && ROUTER_SOURCES < BUS_XPT_SRC);

namespace
{
constexpr int LIST = 1; // of what a page is about one of
constexpr int SOURCES = 2;
constexpr int NAME_SIZE = 32;
constexpr int SALVO_LETTERS = 16;

// Of the pages that change a destination; of the list, a column lies behind that of its row's name.
enum : int { COL_NAME, COL_NOW, COL_PRESET, COL_LOCK, COL_MARK, COL_OWNER }; // the last is not seen
} // namespace

#define DESTINATION "Router@Destination@$@"
#define CROSSPOINT "Router@Status@Xpt Assign@$@"

static ONEOFSTATE destinations;
static ONEOFSTATE salvos;

static struct {
    char name[ROUTER_DESTINATIONS][NAME_SIZE]; // copies: the setup may replace its own
    bool is_named = true;                      // what the lists show is what the setup says
    bool is_marked = true;                     // what the list marks is up to date
} rt;                                          // while a page of destinations stands

static struct {
    int bits = 0;           // bit n for level n + 1: a take goes over it
    int pane = 0;           // that asks for them; 0 none
    int bits_elsewhere = 0; // what the pane held before
    char caption[24] = "";
} lv; // valid while a page of takes stands

static int source_cursor; // the row of the source page that the operator left

// --- Names ---

template <int N> static int numbered(const char* format, const char** names, int max)
{
    static char text[N][12];
    const int n = std::min(N, max);
    for (int i = 0; i < n; i++) {
        PrintText(text[i], "%s%d", format, i + 1);
        names[i] = text[i];
    }
    return n;
}

static const char* name_of_source(int number)
{
    return number >= 1 && number <= ROUTER_SOURCES ? BUS_SBusSrc[number] : nullptr;
}

static void show_names()
{
    for (int row = 0; row < ROUTER_DESTINATIONS; row++) {
        const char* const name = row + 1 < BUS_SBUS ? BUS_SBusDst[row + 1] : nullptr;
        CopyText(rt.name[row], name ? name : "");
        LS_SetData(LIST, row, COL_NAME + 1, rt.name[row]);
    }
}

// Names come one by one: the lists wait for the pass.
static int name_tally(const char* path)
{
    if (!BeginsWith(path, "Engineering Setup@Panel@Config@External Bus Link@S-BUS "))
        return 0;
    rt.is_named = false;
    return 1;
}

static void show_new_names(const ONEOF& t)
{
    if (rt.is_named)
        return;
    rt.is_named = true;
    rt.is_marked = false;
    OneOf_SignalsChanged(t);
    show_names();
    LS_RedrawData(LIST);
}

// --- Which destinations may be changed ---

static constexpr ONEOFWORD lock_marks[] = {{"Free", ""}, {"Protect", "P"}, {"Lock", "L"}, {}};

// Says so when the destination is not this panel's to change.
static bool is_refused(const ONEOF& t, int row)
{
    const char* const lock = OneOf_Cell(t, row, COL_LOCK);
    const char* const owner = OneOf_Cell(t, row, COL_OWNER);
    char own[16], text[128];
    PrintText(own, "PNL%d", SYS_MyPnl);
    const bool is_locked = Same(lock, "L");
    const bool is_protected = Same(lock, "P") && !Same(owner, own);
    if (!is_locked && !is_protected)
        return false;
    PrintText(text, "%s is %s%s%s.", destinations.name[row], is_locked ? "locked" : "protected",
              owner[0] ? " by " : "", owner);
    PaneMessage_Create("Router", PANE_ALERT, text);
    return true;
}

// --- The levels of a take, on all pages that have its keys ---

static void follow_levels(const char* verb)
{
    for (int n = 1; n <= ROUTER_LEVELS_MAX; n++)
        Net_SendCommandFormat("%s Router@Level@Level%d", verb, n);
}

static void show_levels()
{
    char digits[ROUTER_LEVELS_MAX + 1] = "";
    for (int n = 0; n < ROUTER_LEVELS_MAX; n++)
        if (lv.bits >> n & 1)
            AppendText(digits, NumStr(n + 1));
    PrintText(lv.caption, "Levels\n%s", digits[0] ? digits : "None");
    (void)BT_SetCaption(BTN_ROUTER_LEVELS, lv.caption);
}

static int level_tally(const char* path, const char* value)
{
    constexpr char HEAD[] = "Router@Level@Level";
    const int n = BeginsWith(path, HEAD) ? IndexFrom1(path + strlen(HEAD), ROUTER_LEVELS_MAX) : -1;
    char own[32]; // the path of that number has nothing else in it
    PrintText(own, "%s%d", HEAD, n + 1);
    if (n < 0 || !Same(own, path))
        return 0;
    lv.bits = (lv.bits & ~(1 << n)) | IsTrue(value) << n;
    show_levels();
    return 1;
}

static int ask_levels()
{
    lv.bits_elsewhere = PaneRTRLvl_Selected();
    PaneRTRLvl_SetSelect(lv.bits);
    lv.pane = PaneRTRLvl_Create(0);
    return 1;
}

static int levels_asked(int pane, int result)
{
    if (pane == 0 || pane != lv.pane)
        return 0;
    const int wanted = PaneRTRLvl_Selected();
    lv.pane = 0;
    PaneRTRLvl_SetSelect(lv.bits_elsewhere);
    for (int n = 0; n < ROUTER_LEVELS_MAX && result == 1; n++)
        if ((wanted ^ lv.bits) >> n & 1)
            Net_SendCommandFormat("put Router@Level@Level%d#%s", n + 1, Bool(wanted >> n & 1));
    return 1;
}

static int levels_proc(int msg, MsgArg ax, MsgArg bx)
{
    switch (msg) {
    case MSG_TALLY: return level_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return Same(Text(ax), ROUTER_LEVELS) ? ask_levels() : 0;
    case LMSG_PANEQUIT: return levels_asked(int(ax), int(bx));
    default: return 0;
    }
}

// The keys are made anew for another destination, with the caption of the table.
static void choose(const ONEOF& t, int row)
{
    OneOf_Choose(t, row);
    show_levels();
}

// What the pages share whose list of destinations does no more than choose.
static int take_proc(const ONEOF& t, int msg, MsgArg ax, MsgArg bx)
{
    if (msg != LMSG_LISTSEL || int(ax) != LIST)
        return levels_proc(msg, ax, bx);
    choose(t, int(bx));
    return 1;
}

// A page of takes opens or is left; what a create function returns.
static int take_page(const ONEOF& t, int on)
{
    if (on) {
        lv = {};
        OneOf_Open(t);
    } else {
        OneOf_Close(t);
    }
    follow_levels(on ? "add" : "remove");
    return !on;
}

// --- By destination: the list of sources puts one on the chosen destination ---

static constexpr ONEOFCOLUMN destination_columns[] = {
    {}, {CROSSPOINT "Level1"}, {DESTINATION "Preset"}, {DESTINATION "Lock", lock_marks},
    {}, {DESTINATION "Owner"},
};
template <int N> static int destination_names(const char** names, int max)
{
    return numbered<N>("Dest", names, max);
}
constexpr ONEOF of_destinations(const char* signal)
{
    return {.list = LIST,
            .state = &destinations,
            .names = destination_names<ROUTER_DESTINATIONS>,
            .columns = destination_columns,
            .column_count = std::size(destination_columns),
            .signal_list = SOURCES,
            .signal = signal,
            .signal_name = name_of_source};
}
static constexpr ONEOF by_destination = of_destinations(destination_columns[COL_PRESET].path);

static int destination_create(int on, uint32_t)
{
    const int result = take_page(by_destination, on);
    if (on)
        show_names();
    return result;
}

static int destination_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    const bool is_source = msg == LMSG_LISTSEL && int(ax) == SOURCES;
    if (msg == MSG_TALLY && name_tally(Text(ax)))
        return 0;
    if (msg == MSG_REDRAW)
        show_new_names(by_destination);
    if (is_source && is_refused(by_destination, destinations.cursor))
        return 0;
    if (!take_proc(by_destination, msg, ax, bx))
        (void)OneOf_Proc(by_destination, msg, ax, bx);
    return 0;
}

const PC_TBL pc_router_destination = {destination_proc, destination_create};

// --- By source: a touch on a destination chooses it and puts the source on it ---

// The list of sources follows no destination here.
static constexpr ONEOF by_source = of_destinations(nullptr);

static int source_create(int on, uint32_t)
{
    const int result = take_page(by_source, on);
    if (!on)
        return result;
    show_names();
    source_cursor = std::clamp(source_cursor, 0, std::max(LS_GetNData(SOURCES) - 1, 0));
    LS_SetNowLine(SOURCES, source_cursor);
    rt.is_marked = false;
    return result;
}

// A dot where the chosen source is seen or is the preset.
static int mark_destinations()
{
    if (rt.is_marked)
        return 0;
    rt.is_marked = true;
    const char* const source = OneOf_Signal(source_cursor);
    for (int row = 0; row < destinations.count && source[0]; row++) {
        const bool is_there = Same(OneOf_Cell(by_source, row, COL_NOW), source) ||
                              Same(OneOf_Cell(by_source, row, COL_PRESET), source);
        LS_SetData(LIST, row, COL_MARK + 1, is_there ? "O" : nullptr);
    }
    LS_SetNowLine(SOURCES, source_cursor);
    return LS_RedrawData(LIST);
}

static int send_source_to(int row)
{
    if (row < 0 || row >= destinations.count || BA_IsDefaultButton())
        return 0;
    choose(by_source, row);
    if (OneOf_Signal(source_cursor)[0] && !is_refused(by_source, row))
        Net_SendCommandFormat("put Router@Destination@%s@Preset#%s", destinations.name[row],
                              OneOf_Signal(source_cursor));
    return 0;
}

static int source_list_touched(int list, int row)
{
    if (list == LIST)
        return send_source_to(row);
    if (list == SOURCES && OneOf_Signal(row)[0]) {
        source_cursor = row;
        rt.is_marked = false;
    }
    return 0;
}

static int source_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: show_new_names(by_source); return mark_destinations();
    case MSG_TALLY:
        if (name_tally(Text(ax)))
            return 0;
        break;
    case LMSG_LISTSEL: return source_list_touched(int(ax), int(bx));
    default: break;
    }
    if (!levels_proc(msg, ax, bx) && OneOf_Proc(by_source, msg, ax, bx))
        rt.is_marked = false;
    return 0;
}

const PC_TBL pc_router_source = {source_proc, source_create};

// --- By level ---

static constexpr ONEOFCOLUMN level_columns[] = {
    {CROSSPOINT "Level1"}, {CROSSPOINT "Level2"}, {CROSSPOINT "Level3"}, {CROSSPOINT "Level4"},
    {CROSSPOINT "Level5"}, {CROSSPOINT "Level6"}, {CROSSPOINT "Level7"}, {CROSSPOINT "Level8"},
};
static constexpr ONEOF by_level = {
    .list = LIST,
    .state = &destinations,
    .names = destination_names<ROUTER_DESTINATIONS>,
    .columns = level_columns,
    .column_count = std::size(level_columns),
};
static int level_create(int on, uint32_t)
{
    return take_page(by_level, on);
}

// The title of a level that no take goes over is grey.
static int level_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (!take_proc(by_level, msg, ax, bx))
        (void)OneOf_Proc(by_level, msg, ax, bx);
    for (int n = 0; n < ROUTER_LEVELS_MAX; n++)
        (void)LS_HeaderDisable(LIST, n + 1, !(lv.bits >> n & 1));
    return 0;
}

const PC_TBL pc_router_level = {level_proc, level_create};

// --- Locks ---

static constexpr ONEOFCOLUMN lock_columns[] = {
    {}, {CROSSPOINT "Level1"}, {DESTINATION "Lock"}, {DESTINATION "Owner"}};
static constexpr ONEOF locks = {
    .list = LIST,
    .state = &destinations,
    .names = destination_names<ROUTER_DESTINATIONS>,
    .columns = lock_columns,
    .column_count = std::size(lock_columns),
};
static int lock_create(int on, uint32_t)
{
    const int result = OneOf_CreateOf<locks>(on, 0);
    if (on)
        show_names();
    return result;
}
const PC_TBL pc_router_lock = {OneOf_ProcOf<locks>, lock_create};

// --- Salvos ---

static constexpr ONEOFCOLUMN salvo_columns[] = {
    {"Router@Salvo@$@Name"}, {"Router@Salvo@$@Dests"}, {"Router@Salvo@$@Levels"}};
static constexpr ONEOF salvo = {
    .list = LIST,
    .state = &salvos,
    .names = [](const char** names, int max) { return numbered<ROUTER_SALVOS>("", names, max); },
    .columns = salvo_columns,
    .column_count = std::size(salvo_columns),
};

static int salvo_named(const char* text)
{
    char name[SALVO_LETTERS + 1];
    CopyText(name, text);
    (void)StrRegName(name); // an empty name takes the old one away
    return Net_SendCommandFormat("put Router@Salvo@%s@Name#%s", OneOf_Name(salvo), name);
}

static int salvo_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg == LMSG_BTNSEL && Same(Text(ax), ROUTER_SALVO_NAME))
        CreateWindow(WINDOW_KEYBOARD, "Salvo Name",
                     {.value = OneOf_Cell(salvo, salvos.cursor, 0),
                      .input_max = SALVO_LETTERS,
                      .ok_text = salvo_named});
    else
        (void)OneOf_Proc(salvo, msg, ax, bx);
    return 0;
}

const PC_TBL pc_router_salvo = {salvo_proc, OneOf_CreateOf<salvo>};
