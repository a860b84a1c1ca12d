#include "pc_macro_online_edit.h"
#include "a_bt.h"
#include "a_ls.h"
#include "colours.h"
#include "global.h"
#include "log.h"
#include "macro_symbol.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_macro.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include "safeguards.h"

namespace
{
constexpr Rect HEAD = {100, 75, 700, 95};
constexpr Rect DETAIL = {100, 302, 540, 322};
constexpr int FONT_HEAD = 2;
constexpr int MODIFY_FLAGS = 104; // a byte an event of the window

enum ONLINECMD : int {
    LocalBefore,
    LocalAfter,
    LocalDelete,
    LocalModify,
    LocalPrevious,
    LocalNext,
    Recall,
    MacroEditMode,
    RemainMacroEventCell,
    CurrentMacroRegisterInfo,
    Insert,
    Modify,
    Delete,
    MacroEventEditRange,
    Run,
    MacroInsertMode,
    MacroInsertEnableFlag,
    CurrentWorkRegisterEventData,
    CurrentWorkRegisterModifyFlag,
    ONLINECMDS,
};
#define ONLINE "Macro@Reg@On Line Edit@"
constexpr const char* OnlineEditCmd[ONLINECMDS] = {
    "LOCAL@" ONLINE "Before",
    "LOCAL@" ONLINE "After",
    "LOCAL@" ONLINE "Delete",
    "LOCAL@" ONLINE "Modify",
    "LOCAL@" ONLINE "Previous",
    "LOCAL@" ONLINE "Next",
    ONLINE "Recall",
    ONLINE "Macro Edit Mode",
    ONLINE "Remain Macro Event Cell",
    ONLINE "Current Macro Register Info",
    ONLINE "Insert",
    ONLINE "Modify",
    ONLINE "Delete",
    ONLINE "Macro Event Edit Range",
    ONLINE "Run",
    ONLINE "Macro Insert Mode",
    ONLINE "Insert Enable Flag",
    ONLINE "Current Work Register Event Data",
    ONLINE "Current Work Register Modify Flag",
};
#undef ONLINE

// A line of the window. Several may be one event: those that continue it have its number.
struct OnlineEvent {
    int EventNo = 0;
    int InnerNo = 0; // 0 for the event itself
    char Contents[10] = "";
    char ContentsWithNo[16] = "";
    char Symbol[30] = "";
    char Data[256] = ""; // the values, a blank behind each
};

enum : int { MODE_UNKNOWN = -1, MODE_SHOWN = 0, MODE_EDITED = 1 };
} // namespace

static struct {
    bool is_open = false;
    int lines = 0; // of events
    bool is_list_dirty = false;
    bool is_head_dirty = false;
    int mode = MODE_UNKNOWN;
    char name[32]; // "12  Name: OPENING"
    bool is_locked = false;
    int f_event_range_begin = 0; // events of the window, from 1
    int f_event_range_end = 0;
    int f_event_no = 1;    // the cursor
    int f_event_count = 0; // of the register
    char f_macro_modifyflag[MODIFY_FLAGS + 1];
    int f_remain_cell = 0;
    bool f_macro_insert_flag = false; // something was done that may be inserted
    bool is_auto = false;             // f_macro_insert_mode
} on;                                 // valid from create(1) to create(0)

static OnlineEvent events[MACRO_EVENTS]; // the list shows them from here
static bool is_server_silent;            // it was asked or told something; until it says a word

// --- What the server tells ---

// The next field of a record; null when there is none.
static const char* next_field(const char** rest, char* field, size_t size)
{
    if (!*rest)
        return nullptr;
    const char* const comma = strchr(*rest, ',');
    const size_t length = comma ? size_t(comma - *rest) : strlen(*rest);
    strncpy_secu(field, *rest, size, length);
    *rest = comma ? comma + 1 : nullptr;
    return field;
}

// The parameter of that name; -1: the symbol has none, or is unknown here.
static int slot_of(const char* symbol, const char* name)
{
    const MACROPARAM* const slots = MacroSymbol_Find(symbol);
    for (int i = 0; i < get_param_count(symbol); i++)
        if (Same(slots[i].parametername, name))
            return i;
    return -1;
}

static bool read_values(const char* rest, OnlineEvent& event)
{
    char name[MACRO_VALUE_SIZE], value[MACRO_VALUE_SIZE];
    while (rest) {
        (void)next_field(&rest, name, sizeof name); // there is a rest
        if (!next_field(&rest, value, sizeof value))
            return false;
        AppendText(event.Data, MacroValue_Shown(event.Symbol, slot_of(event.Symbol, name), value));
        AppendText(event.Data, " ");
    }
    return true;
}

// "3,0,Event,MECut,ME,M/E-1". 0; -1 for a text that is no record.
static int analyze_event_unit(const char* text, OnlineEvent& event)
{
    char number[2][8] = {};
    const char* rest = text;
    const bool has_head = next_field(&rest, number[0], sizeof number[0]) &&
                          next_field(&rest, number[1], sizeof number[1]) &&
                          next_field(&rest, event.Contents, sizeof event.Contents) &&
                          next_field(&rest, event.Symbol, sizeof event.Symbol);
    event.EventNo = Index(number[0], MACRO_LINES);
    event.InnerNo = Index(number[1], MACRO_LINES);
    const bool is_sound = has_head && event.EventNo >= 0 && event.InnerNo >= 0 &&
                          MacroValue_Find(CONT, event.Contents) > 0 && read_values(rest, event);
    if (!is_sound) {
        Log_Output(LOG_ALWAYS, MOD_PAGE, "Split words error! %.100s", text);
        return -1;
    }
    const bool has_number = event.InnerNo == 0 && event.EventNo > 0 && *event.Contents != '#';
    if (has_number)
        PrintText(event.ContentsWithNo, "%s %d", event.Contents, event.EventNo);
    else
        CopyText(event.ContentsWithNo, event.Contents);
    return 0;
}

// The window is told as a whole; a line that comes again replaces itself.
static void take_event(const char* value)
{
    OnlineEvent event;
    if (IsKill(value)) {
        on.lines = 0;
    } else if (*value && analyze_event_unit(value, event) == 0) {
        int row = on.lines;
        for (int i = 0; i < on.lines; i++)
            if (events[i].EventNo == event.EventNo && events[i].InnerNo == event.InnerNo)
                row = i;
        if (row >= MACRO_EVENTS)
            return;
        events[row] = event;
        on.lines = std::max(on.lines, row + 1);
    }
    on.is_list_dirty = true;
}

// "12,OPENING,U,7,3": register, name, lock, events, the cursor.
static void take_info(const char* value)
{
    Parts p;
    if (SplitValue(p, value, 5) < 5 || Decimal(p.v[0]) != GL_MacroEditNo)
        return; // of the register before
    PrintText(on.name, "%d  Name: %.11s", GL_MacroEditNo, p.v[1]);
    on.is_locked = *p.v[2] == 'L';
    on.f_event_count = std::max(Index(p.v[3], MACRO_LINES), 0);
    on.f_event_no = std::max(Index(p.v[4], MACRO_LINES), 1);
    on.is_list_dirty = true;
}

static void take_range(const char* value)
{
    Parts p;
    if (SplitValue(p, value, 2) < 2)
        return;
    on.f_event_range_begin = std::max(Index(p.v[0], MACRO_LINES), 0);
    on.f_event_range_end = std::max(Index(p.v[1], MACRO_LINES), 0);
}

static void take_modifyflag(const char* value)
{
    CopyText(on.f_macro_modifyflag, value);
    on.is_list_dirty = true;
}

static void take_remain(const char* value)
{
    on.f_remain_cell = std::max(Index(value, MACRO_LINES), 0);
}

static void take_mode(const char* value)
{
    on.mode = IsTrue(value) ? MODE_EDITED : MODE_SHOWN;
}

static void take_insert_mode(const char* value)
{
    on.is_auto = Same(value, "Auto Insert");
}

static void take_insert_flag(const char* value)
{
    on.f_macro_insert_flag = IsTrue(value);
}

namespace
{
constexpr struct {
    ONLINECMD cmd;
    void (*take)(const char* value);
} tallies[] = {
    {MacroEditMode, take_mode},
    {RemainMacroEventCell, take_remain},
    {CurrentMacroRegisterInfo, take_info},
    {MacroEventEditRange, take_range},
    {MacroInsertMode, take_insert_mode},
    {MacroInsertEnableFlag, take_insert_flag},
    {CurrentWorkRegisterEventData, take_event},
    {CurrentWorkRegisterModifyFlag, take_modifyflag},
};
} // namespace

// --- Showing ---

static void set_enables()
{
    const bool may_edit = on.mode == MODE_EDITED && !on.is_locked;
    const bool has_new = may_edit && on.f_macro_insert_flag && !on.is_auto;
    const bool has_room = on.f_remain_cell > 0;
    BT_SetDisable(BTN_ONLINE_BEFORE, !has_new || !has_room);
    BT_SetDisable(BTN_ONLINE_AFTER, !has_new || !has_room);
    BT_SetDisable(BTN_ONLINE_MODIFY, !has_new || on.lines == 0);
    BT_SetDisable(BTN_ONLINE_DELETE, !may_edit || on.lines == 0);
    BT_SetDisable(BTN_ONLINE_PREVIOUS, on.f_event_no <= 1);
    BT_SetDisable(BTN_ONLINE_NEXT, on.f_event_no >= on.f_event_count);
    BT_SetDisable(BTN_ONLINE_RUN, on.f_event_count == 0);
}

static bool is_modified(const OnlineEvent& event)
{
    const int place = event.EventNo - on.f_event_range_begin;
    return place >= 0 && place < int(strlen(on.f_macro_modifyflag)) &&
           on.f_macro_modifyflag[place] == '1';
}

static int row_of_cursor()
{
    for (int row = 0; row < on.lines; row++)
        if (events[row].EventNo == on.f_event_no)
            return row;
    return -1;
}

static void show_cursor()
{
    const int row = row_of_cursor();
    const int now = LS_GetNowLine(LIST_MACRO_ONLINE);
    const bool is_chosen = LS_GetMS(LIST_MACRO_ONLINE) || LS_GetSelected(LIST_MACRO_ONLINE, 0) >= 0;
    const bool is_there = is_chosen && now >= 0 && now < on.lines &&
                          events[now].EventNo == on.f_event_no; // maybe on another line of it
    if (row < 0 || is_there)
        return;
    (void)LS_SetNowLine(LIST_MACRO_ONLINE, row);
    if (!LS_GetMS(LIST_MACRO_ONLINE))
        (void)LS_SetSelected(LIST_MACRO_ONLINE, row, 0, 1);
}

static void show_events()
{
    for (int row = 0; row < on.lines; row++) {
        const OnlineEvent& e = events[row];
        (void)LS_SetData(LIST_MACRO_ONLINE, row, ONLINE_COL_CONTENTS, e.ContentsWithNo);
        (void)LS_SetData(LIST_MACRO_ONLINE, row, ONLINE_COL_SYMBOL, e.Symbol);
        (void)LS_SetData(LIST_MACRO_ONLINE, row, ONLINE_COL_DATA, e.Data);
        (void)LS_SetData(LIST_MACRO_ONLINE, row, ONLINE_COL_MODIFIED, is_modified(e) ? "*" : "");
    }
    (void)LS_SetNData(LIST_MACRO_ONLINE, on.lines);
    (void)LS_RedrawData(LIST_MACRO_ONLINE);
    show_cursor();
}

static void draw_head()
{
    char text[32];
    const char* const note = is_server_silent ? "The server does not answer"
                             : on.is_locked   ? "The register is locked"
                                              : "";
    TDL_FillRectS(HEAD.x1, HEAD.y1, HEAD.x2, HEAD.y2, BLACK);
    TDL_SymbolWS(HEAD.x1 + 4, HEAD.y1 + 4, 200, on.name, FONT_HEAD, TEAL);
    TDL_SymbolWS(HEAD.x1 + 210, HEAD.y1 + 4, 250, note, FONT_HEAD, ORANGE);
    PrintText(text, "Remain: %d", on.f_remain_cell);
    const int width = int(TDL_GetSymbolWidth(text, FONT_HEAD));
    TDL_SymbolS(HEAD.x2 - 4 - width, HEAD.y1 + 4, text, FONT_HEAD, WHITE);
    TDL_UpdateRect(HEAD.x1, HEAD.y1, HEAD.x2, HEAD.y2);
}

// The whole of the line at the cursor: its cell may be too narrow.
static void draw_detail()
{
    const int row = LS_GetNowLine(LIST_MACRO_ONLINE);
    TDL_FillRectS(DETAIL.x1, DETAIL.y1, DETAIL.x2, DETAIL.y2, BLACK);
    if (row >= 0 && row < on.lines)
        TDL_SymbolWS(DETAIL.x1 + 4, DETAIL.y1 + 2, DETAIL.x2 - DETAIL.x1 - 8, events[row].Data,
                     FONT_HEAD, TEAL);
    TDL_UpdateRect(DETAIL.x1, DETAIL.y1, DETAIL.x2, DETAIL.y2);
}

static int page_redraw()
{
    if (on.is_list_dirty)
        show_events();
    if (on.is_list_dirty || on.is_head_dirty) {
        draw_head();
        draw_detail();
        set_enables();
    }
    on.is_list_dirty = on.is_head_dirty = false;
    return 0;
}

static int take_tally(const char* path, const char* value)
{
    for (const auto& t : tallies)
        if (Same(path, OnlineEditCmd[t.cmd])) {
            t.take(value);
            is_server_silent = false;
            on.is_head_dirty = true;
        }
    return 0;
}

// --- Touches ---

static void read_eventdata_cmd(int first)
{
    Net_SendCommandFormat("put %s#%d", OnlineEditCmd[CurrentWorkRegisterEventData], first);
}

static void send_cursor(int event, int inner)
{
    on.f_event_no = event;
    on.is_head_dirty = true;
    Net_SendCommandFormat("put %s#%d,%d", OnlineEditCmd[MacroEventEditRange], event, inner);
}

static int step(int event)
{
    if (event < 1 || event > on.f_event_count)
        return 0;
    send_cursor(event, 0); // beyond the window the server moves it
    show_cursor();
    return 0;
}

// The runs of lines that are selected, the last first: what stands before it keeps its numbers.
static int send_selected(ONLINECMD cmd)
{
    bool is_selected[MACRO_EVENTS + 1] = {}; // the last one never is
    for (int i = 0, row; (row = LS_GetSelected(LIST_MACRO_ONLINE, i)) >= 0; i++)
        if (row < on.lines)
            is_selected[row] = true;
    for (int row = on.lines - 1; row >= 0; row--) {
        int f_selline_count = 0;
        while (row - f_selline_count >= 0 && is_selected[row - f_selline_count])
            f_selline_count++;
        if (f_selline_count == 0)
            continue;
        row -= f_selline_count - 1;
        Net_SendCommandFormat("put %s#%d,%d,%d", OnlineEditCmd[cmd], events[row].EventNo,
                              events[row].InnerNo, f_selline_count);
        if (cmd == Modify)
            break; // there is one event to put there
    }
    return 0;
}

static int insert_sel(int is_behind)
{
    Net_SendCommandFormat("put %s#%d,%d", OnlineEditCmd[Insert], on.lines > 0 ? on.f_event_no : 0,
                          is_behind);
    return 0;
}

// While the link is down a touch waits to be sent. A second one must not: the list does not show
// what the first will have done to it.
static bool refuse_behind_another()
{
    const bool is_waiting = Net_QueueLength() > 0;
    is_server_silent |= is_waiting;
    on.is_head_dirty |= is_waiting;
    return is_waiting;
}

static int edit_btn_sel(const char* command)
{
    if (Same(command, OnlineEditCmd[LocalPrevious]))
        return step(on.f_event_no - 1);
    if (Same(command, OnlineEditCmd[LocalNext]))
        return step(on.f_event_no + 1);
    if (refuse_behind_another())
        return 0;
    if (Same(command, OnlineEditCmd[LocalBefore]))
        return insert_sel(0);
    if (Same(command, OnlineEditCmd[LocalAfter]))
        return insert_sel(1);
    if (Same(command, OnlineEditCmd[LocalModify]))
        return send_selected(Modify);
    if (Same(command, OnlineEditCmd[LocalDelete]))
        return send_selected(Delete);
    return 0;
}

static int event_touched(int row)
{
    if (row >= 0 && row < on.lines)
        send_cursor(events[row].EventNo, events[row].InnerNo);
    return 0;
}

static int pc_macro_online_edit_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (!on.is_open)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return page_redraw();
    case MSG_TALLY: return take_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return edit_btn_sel(Text(ax));
    case LMSG_LISTSEL: return event_touched(int(bx));
    default: return 0;
    }
}

static void follow(const char* verb)
{
    for (const auto& t : tallies)
        Net_SendCommandFormat("%s %s", verb, OnlineEditCmd[t.cmd]);
}

static int pc_macro_online_edit_create(int is_on, uint32_t)
{
    const bool was_open = on.is_open;
    on = {};
    if (!is_on) {
        if (was_open) {
            Net_SendCommandFormat("put %s#false", OnlineEditCmd[MacroEditMode]);
            follow("remove");
        }
        return 0;
    }
    on.is_open = on.is_head_dirty = true;
    CopyText(on.name, GL_MacroEditNoName);
    MacroSymbols_ForSystem();
    Net_SendCommandFormat("put %s#%d", OnlineEditCmd[Recall], GL_MacroEditNo);
    follow("add");
    Net_SendCommandFormat("put %s#true", OnlineEditCmd[MacroEditMode]);
    Net_SendCommandFormat("read %s", OnlineEditCmd[MacroEditMode]);
    read_eventdata_cmd(1);
    return 0;
}

// The page is built anew at once: it is empty until the link is back and its questions are
// answered.
void MacroOnline_LinkLost()
{
    if (!on.is_open)
        return;
    is_server_silent = true;
    if (GL_CreatePage == 0)
        GL_CreatePage = GL_NowPage;
}

const PC_TBL pc_macro_online_edit = {pc_macro_online_edit_proc, pc_macro_online_edit_create};
