// The Diag pages. Status lists what the units report: the errors of all, or everything that the
// units of one class have told, an item a row. History lists the log and deletes from it. Opening
// the errors or the history answers the error in the title. What is reported and logged belongs to
// selfdiag.
#include "a_ba.h"
#include "a_bt.h"
#include "a_ls.h"
#include "bus.h"
#include "colours.h"
#include "global.h"
#include "message.h"
#include "page.h"
#include "page_table/diag.h"
#include "pane.h"
#include "pc_register_list.h"
#include "selfdiag.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>

#include "safeguards.h"

namespace
{
constexpr int LIST = 1;
constexpr int ROWS = 4600;      // every item of every unit that there can be
constexpr int REFRESH_MS = 500; // the list stands still while the units answer
constexpr int NO_ITEM = -1;     // a unit that has reported nothing
constexpr Rect STATUS_STRIP = {100, 372, 697, 414};
constexpr Rect HISTORY_STRIP = {100, 372, 566, 414};
constexpr int FONT = 2;

enum : int { COLUMN_UNIT, COLUMN_STATUS, COLUMN_MESSAGE, COLUMN_VALUE, COLUMN_SINCE };
enum : int { HISTORY_TIME, HISTORY_UNIT, HISTORY_STATUS, HISTORY_MESSAGE };
enum : int { CELLS_NORMAL = 0, CELLS_GREY = 1, CELLS_RED = 2 };

struct Row {
    DIAG_CLASS unit_class = DIAG_CLASSES;
    int unit = 0;
    int item = NO_ITEM;
    char value[16]; // the list shows it from here
    bool operator==(const Row& r) const
    {
        return unit_class == r.unit_class && unit == r.unit && item == r.item;
    }
};
} // namespace

// --- The strip below the list ---

// A label and its text; returns where the next may begin. The first of each line stand in columns.
static int draw_pair(int x, int y, const char* label, const char* text, unsigned colour)
{
    constexpr unsigned LABEL_INK = 0x8FB4BC;
    constexpr int COLUMN_PX = 58, GAP = 24, LABEL_GAP = 8;
    const bool is_first = x == STATUS_STRIP.x1 + 9;
    const int text_x =
        x + (is_first ? COLUMN_PX : int(TDL_GetSymbolWidth(label, FONT)) + LABEL_GAP);
    TDL_SymbolS(x, y, label, FONT, LABEL_INK);
    TDL_SymbolS(text_x, y, text, FONT, colour);
    return text_x + int(TDL_GetSymbolWidth(text, FONT)) + GAP;
}

static void flush(const Rect& r)
{
    TDL_UpdateRect(r.x1, r.y1, r.x2, r.y2);
}

// The operator has come to look: the title is the page's own again.
static void answer_popup()
{
    GL_ErrorPopup_On = 0;
    BA_RedrawTitle();
}

// --- Status ---

static struct {
    int shown = DIAG_CLASSES; // the class, DIAG_CLASSES the errors of all
    int kind = DIAG_KINDS;    // of the page of a kind
    bool is_stale = false;    // something has changed since the list was filled
    int wait_ms = 0;          // until it may be filled
    bool is_strip_dirty = false;
    int rows = 0;
    int lit = -1; // bits of the tabs that are lit, by class; -1 not told yet
    const SELFDIAG* units[DIAG_CLASSES][DEVICE_MAX] = {}; // of the list, by their items
} ds;                                                     // valid from create(1) to create(0)
static Row status_row[ROWS];

static bool is_error(const SELFDIAG& it)
{
    return it.status >= SELFDIAG_ERROR;
}

static const char* status_word(const SELFDIAG& it)
{
    return is_error(it) ? "Error" : it.status == SELFDIAG_ABSENT ? "None" : it.status ? "OK" : "--";
}

// 0 stands for not measured.
template <size_t N> static void value_text(char (&text)[N], const Row& row, const SELFDIAG& it)
{
    text[0] = '\0';
    const char* const unit = SelfDiag_ValueUnit(row.unit_class, row.item);
    if (it.value)
        PrintText(text, "%d %s", it.value, unit);
}

static void show_row(int r, const DiagUnit& unit)
{
    Row& row = status_row[r];
    const bool has_item = row.item != NO_ITEM;
    static constexpr SELFDIAG none;
    const SELFDIAG& it = has_item ? unit.item[row.item] : none;
    value_text(row.value, row, it);
    LS_SetData(LIST, r, COLUMN_UNIT, unit.name);
    LS_SetData(LIST, r, COLUMN_STATUS, status_word(it));
    LS_SetData(LIST, r, COLUMN_MESSAGE, has_item ? it.message : "No report");
    LS_SetData(LIST, r, COLUMN_VALUE, row.value);
    LS_SetData(LIST, r, COLUMN_SINCE, has_item ? it.time : "");
    LS_SetHStatus(LIST, r, has_item ? CELLS_NORMAL : CELLS_GREY);
    if (is_error(it))
        LS_SetStatus(LIST, r, COLUMN_STATUS, CELLS_RED);
}

static void add_row(DIAG_CLASS unit_class, int n, int item, const DiagUnit& unit)
{
    if (ds.rows == ROWS)
        return;
    Row& row = status_row[ds.rows];
    row.unit_class = unit_class;
    row.unit = n;
    row.item = item;
    show_row(ds.rows++, unit);
}

// By the words of its report: "CPU Board Temperature OK", "FAN-1 Speed OK", "PowerA AC OK".
static DIAG_KIND kind_of(const SELFDIAG& it)
{
    static constexpr struct {
        const char* word;
        DIAG_KIND kind;
    } words[] = {{"Temperature", DIAG_TEMPERATURE}, {"FAN", DIAG_FAN}, {"Power", DIAG_POWER}};
    for (const auto& w : words)
        if (strstr(it.message, w.word))
            return w.kind;
    return DIAG_OTHER;
}

// Items that nobody has reported are not fitted.
static void add_unit(DIAG_CLASS unit_class, int n, const DiagUnit& unit)
{
    if (ds.kind != DIAG_KINDS) {
        for (int i = 0; i < unit.items; i++)
            if (unit.item[i].status != SELFDIAG_UNKNOWN && kind_of(unit.item[i]) == ds.kind)
                add_row(unit_class, n, i, unit);
        return;
    }
    const bool is_all = ds.shown == DIAG_CLASSES;
    const int before = ds.rows;
    for (int i = 0; i < unit.items; i++)
        if (is_all ? is_error(unit.item[i]) : unit.item[i].status != SELFDIAG_UNKNOWN)
            add_row(unit_class, n, i, unit);
    if (!is_all && ds.rows == before)
        add_row(unit_class, n, NO_ITEM, unit);
}

static bool has_error(const DiagUnit& unit)
{
    return std::any_of(unit.item, unit.item + unit.items, is_error);
}

static void light_tabs(int lit)
{
    const int changed = ds.lit < 0 ? -1 : ds.lit ^ lit;
    ds.lit = lit;
    for (int c = 0; c < DIAG_CLASSES; c++) {
        if (!(changed >> c & 1))
            continue;
        char tally[PATH_SIZE];
        PrintText(tally, DIAG_LAMP "%s#%s", diag_class_words[c], lit >> c & 1 ? "Error" : "OK");
        SendDummyTally(tally);
    }
}

// The row that was current stays current wherever it is now.
static void keep_current(const Row& current, bool has_current)
{
    const Row* const end = status_row + ds.rows;
    const Row* const it = has_current ? std::find<const Row*>(status_row, end, current) : end;
    if (it != end)
        LS_SetNowLine(LIST, int(it - status_row));
    else if (ds.rows > 0)
        LS_SetNowLine(LIST, std::clamp(LS_GetNowLine(LIST), 0, ds.rows - 1));
}

static const SELFDIAG* items_of(int unit_class, int n)
{
    DiagUnit unit;
    return SelfDiag_Unit(DIAG_CLASS(unit_class), n, &unit) ? unit.item : nullptr;
}

// Whether others are in the system than when the list was filled: nobody reports that.
static bool have_units_changed()
{
    for (int c = 0; c < DIAG_CLASSES; c++)
        for (int n = 0; n < DEVICE_MAX; n++)
            if (items_of(c, n) != ds.units[c][n])
                return true;
    return false;
}

static void fill_status()
{
    const int now = LS_GetNowLine(LIST);
    const bool has_current = now >= 0 && now < ds.rows;
    const Row current = has_current ? status_row[now] : Row{};
    ds.rows = 0;
    ds.is_stale = false;
    GL_RedrawMenu9991 = 0;
    int lit = 0;
    DiagUnit unit;
    for (int c = 0; c < DIAG_CLASSES; c++)
        for (int n = 0; n < DEVICE_MAX; n++)
            ds.units[c][n] = items_of(c, n);
    for (int c = 0; c < DIAG_CLASSES; c++)
        for (int n = 0; SelfDiag_Unit(DIAG_CLASS(c), n, &unit); n++) {
            lit |= int(has_error(unit)) << c;
            if (ds.shown == DIAG_CLASSES || ds.shown == c)
                add_unit(DIAG_CLASS(c), n, unit);
        }
    LS_SetNData(LIST, ds.rows);
    keep_current(current, has_current);
    LS_RedrawData(LIST);
    ds.is_strip_dirty = true;
    light_tabs(lit);
}

static void draw_item(const Row& row, const DiagUnit& unit)
{
    const SELFDIAG& it = unit.item[row.item];
    const int x = STATUS_STRIP.x1 + 9, y = STATUS_STRIP.y1 + 6;
    char text[PATH_SIZE];
    PrintText(text, "%s  %s", unit.name, it.message);
    draw_pair(x, y, "Item", text, CYAN);
    if (is_error(it))
        PrintText(text, "Error (%d)", it.status);
    else
        CopyText(text, status_word(it));
    int at = draw_pair(x, y + 17, "Status", text, WHITE);
    at = draw_pair(at, y + 17, "Since", it.time, WHITE);
    if (row.value[0])
        draw_pair(at, y + 17, "Value", row.value, WHITE);
}

static void draw_status_strip()
{
    ds.is_strip_dirty = false;
    RegisterStrip_DrawGround(STATUS_STRIP);
    const int now = LS_GetNowLine(LIST);
    DiagUnit unit;
    if (ds.rows == 0 && ds.shown == DIAG_CLASSES)
        TDL_SymbolS(STATUS_STRIP.x1 + 9, STATUS_STRIP.y1 + 14,
                    ds.kind == DIAG_KINDS ? "No unit reports an error."
                                          : "No unit has reported any.",
                    FONT, WHITE);
    else if (now >= 0 && now < ds.rows && status_row[now].item != NO_ITEM &&
             SelfDiag_Unit(status_row[now].unit_class, status_row[now].unit, &unit))
        draw_item(status_row[now], unit);
    flush(STATUS_STRIP);
}

static int status_button(const char* path)
{
    if (!Same(path, LOCAL_DIAG "Refresh"))
        return 0;
    ds.wait_ms = REFRESH_MS;
    SelfDiag_Refresh_All();
    return 0;
}

static int status_redraw(int elapsed_ms)
{
    ds.wait_ms = std::max(ds.wait_ms - elapsed_ms, 0);
    if (ds.wait_ms == 0 && (ds.is_stale || GL_RedrawMenu9991 || have_units_changed()))
        fill_status();
    if (ds.is_strip_dirty)
        draw_status_strip();
    return 0;
}

static int status_proc(int msg, MsgArg ax, MsgArg, MsgArg, MsgArg)
{
    switch (msg) {
    case LMSG_BTNSEL: return status_button(Text(ax));
    case LMSG_LISTSEL: ds.is_strip_dirty = true; return 0;
    case LMSG_SELFDIAGCHANGE: ds.is_stale = true; return 0;
    case MSG_REDRAW: return status_redraw(int(ax));
    default: return 0;
    }
}

// A page opens with the first error in view.
static int first_error_row()
{
    DiagUnit unit;
    for (int r = 0; r < ds.rows; r++) {
        const Row& row = status_row[r];
        if (row.item != NO_ITEM && SelfDiag_Unit(row.unit_class, row.unit, &unit) &&
            is_error(unit.item[row.item]))
            return r;
    }
    return 0;
}

static int kind_create(int on, uint32_t kind)
{
    ds = {};
    if (!on)
        return 1;
    ds.kind = int(kind);
    fill_status();
    LS_SetNowLine(LIST, first_error_row());
    return 0;
}

static int status_create(int on, uint32_t unit_class)
{
    ds = {};
    if (!on)
        return 1;
    ds.shown = int(unit_class);
    if (ds.shown == DIAG_CLASSES)
        answer_popup();
    fill_status();
    LS_SetNowLine(LIST, first_error_row());
    return 0;
}

const PC_TBL pc_diag_status = {.proc_func = status_proc, .create_func = status_create};
const PC_TBL pc_diag_kind = {.proc_func = status_proc, .create_func = kind_create};

// --- History ---

enum QUESTION { ASKS_NOTHING, ASKS_SELECTED, ASKS_ALL };

static struct {
    bool is_stale = false;
    bool is_strip_dirty = false;
    int pane = 0; // the question, 0 none
    QUESTION question = ASKS_NOTHING;
    int shown = 0;      // entries in the list
    uint32_t added = 0; // SelfDiag_LogAdded of the list
} dh;                   // valid from create(1) to create(0)
static int chosen_row[SELFDIAG_LOGS];

// The selected rows into chosen_row, from the top.
static int find_chosen()
{
    int n = 0;
    while (n < SELFDIAG_LOGS && (chosen_row[n] = LS_GetSelected(LIST, n)) >= 0)
        n++;
    return n;
}

static void enable_history_keys()
{
    BT_SetDisable(BTN_DIAG_DELETE, LS_GetSelected(LIST, 0) < 0);
    BT_SetDisable(BTN_DIAG_DELETE_ALL, dh.shown == 0);
    dh.is_strip_dirty = true;
}

static void show_log()
{
    dh.is_stale = false;
    dh.added = SelfDiag_LogAdded();
    dh.shown = SelfDiag_GetLogMax();
    for (int i = 0; i < dh.shown; i++) {
        const SELFDIAG_LOG* const entry = SelfDiag_GetLog(i);
        LS_SetData(LIST, i, HISTORY_TIME, entry->time);
        LS_SetData(LIST, i, HISTORY_UNIT, entry->device);
        LS_SetData(LIST, i, HISTORY_MESSAGE, entry->message);
        const bool was_error = SelfDiag_LogIsError(i) == 1;
        LS_SetData(LIST, i, HISTORY_STATUS, was_error ? "Error" : "OK");
        LS_SetStatus(LIST, i, HISTORY_STATUS, was_error ? CELLS_RED : CELLS_NORMAL);
    }
    LS_SetNData(LIST, dh.shown);
    LS_RedrawData(LIST);
    enable_history_keys();
}

// How many entries stand above what the list has on top.
static int entries_above()
{
    return int(std::min<uint32_t>(SelfDiag_LogAdded() - dh.added, SELFDIAG_LOGS));
}

// The selected rows go down with their entries, and so does a window that the operator has moved:
// what he reads stands still.
static void log_grew()
{
    const int above = entries_above();
    const int n = find_chosen(), now = LS_GetNowLine(LIST), top = LS_GetTopLine(LIST);
    const bool is_plural = LS_GetMS(LIST) == 1;
    if (is_plural)
        for (int i = 0; i < n; i++)
            LS_SetSelected(LIST, chosen_row[i], 0, 0);
    show_log();
    if (is_plural)
        for (int i = 0; i < n && chosen_row[i] + above < dh.shown; i++)
            LS_SetSelected(LIST, chosen_row[i] + above, 0, 1);
    else if (n > 0)
        LS_SetNowLine(LIST, std::min(now + above, dh.shown - 1));
    LS_SetTopLine(LIST, top > 0 ? top + above : 0);
    enable_history_keys();
}

static void draw_history_strip()
{
    dh.is_strip_dirty = false;
    RegisterStrip_DrawGround(HISTORY_STRIP);
    const int x = HISTORY_STRIP.x1 + 9, y = HISTORY_STRIP.y1 + 6;
    char text[32];
    PrintText(text, "%d of %d", dh.shown, SELFDIAG_LOGS);
    draw_pair(x, y, "Entries", text, WHITE);
    PrintText(text, "%d", find_chosen());
    draw_pair(x, y + 17, "Selected", text, CYAN);
    flush(HISTORY_STRIP);
}

static void ask(QUESTION question, const char* mes)
{
    dh.question = question;
    dh.pane = PaneYesNo_Create("Delete", PANE_ALERT, mes);
}

static void delete_sel()
{
    if (LS_GetSelected(LIST, 0) >= 0)
        ask(ASKS_SELECTED, "The selected entries of the history will be\ndeleted.\n\nContinue?");
}

static void delete_all_sel()
{
    if (dh.shown > 0)
        ask(ASKS_ALL, "All entries of the history will be deleted.\n\nContinue?");
}

// From the last on, so that those before keep their places. Entries may have come while the
// question stood.
static void delete_chosen()
{
    const int n = find_chosen(), above = entries_above();
    for (int i = n - 1; i >= 0; i--)
        (void)SelfDiag_LogDelete(chosen_row[i] + above); // one that has dropped out is gone
    LS_SetALL(LIST, 0);
    show_log();
    if (n > 0 && dh.shown > 0)
        LS_SetNowLine(LIST, std::min(chosen_row[0] + above, dh.shown - 1));
    enable_history_keys();
}

static int history_answer(int pane, int result)
{
    constexpr int YES = 1;
    if (pane == 0 || pane != dh.pane)
        return 0;
    const QUESTION question = dh.question;
    dh.pane = 0;
    dh.question = ASKS_NOTHING;
    if (result != YES)
        return 0;
    if (question == ASKS_SELECTED)
        delete_chosen();
    if (question == ASKS_ALL) {
        SelfDiag_LogDeleteAll();
        show_log();
    }
    return 0;
}

static int history_button(const char* path)
{
    if (Same(path, LOCAL_DIAG "Delete"))
        delete_sel();
    else if (Same(path, LOCAL_DIAG "Delete All"))
        delete_all_sel();
    return 0;
}

static int history_redraw()
{
    if (dh.is_stale)
        log_grew();
    if (dh.is_strip_dirty)
        draw_history_strip();
    return 0;
}

static int history_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case LMSG_BTNSEL: return history_button(Text(ax));
    case LMSG_PANEQUIT: return history_answer(int(ax), int(bx));
    case LMSG_LISTSEL:
    case LMSG_LISTFLASH: enable_history_keys(); return 0;
    case LMSG_SELFDIAGCHANGE: dh.is_stale = true; return 0;
    case MSG_REDRAW: return history_redraw();
    default: return 0;
    }
}

static int history_create(int on, uint32_t)
{
    dh = {};
    if (!on)
        return 1;
    answer_popup();
    show_log();
    LS_SetNowLine(LIST, 0);
    enable_history_keys();
    return 0;
}

const PC_TBL pc_diag_history = {.proc_func = history_proc, .create_func = history_create};
