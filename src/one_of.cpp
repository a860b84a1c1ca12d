#include "one_of.h"
#include "a_ba.h"
#include "a_bt.h"
#include "a_ls.h"
#include "a_nb.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "tally_value.h"
#include "text.h"
#include "timecode.h"
#include <cstring>
#include "safeguards.h"

const ONEOFWORD one_of_switch[] = {{"true", "O"}, {"false", ""}, {}};

namespace
{
constexpr int NAME_SIZE = 64;
constexpr int COL_NUMBER = 0;
constexpr int COL_SIGNAL = 1;
constexpr int COL_MARK = 2;
struct Signal {
    char number[8] = "";
    char name[NAME_SIZE] = "";
};
} // namespace

static struct {
    Signal row[BUS_XPT_SRC]; // the list keeps pointers to the texts
    int count = 0;
} signals; // of the page that stands

// --- Paths ---

static void path_of(char (&path)[CMD_SIZE], const char* pattern, const char* name)
{
    const char* const at = strchr(pattern, '$');
    if (at)
        PrintText(path, "%.*s%s%s", int(at - pattern), pattern, name, at + 1);
    else
        CopyText(path, pattern);
}

// The row whose name stands in the place of "$"; -1 none.
static int row_of(const ONEOF& t, const char* pattern, const char* path)
{
    const char* const at = pattern ? strchr(pattern, '$') : nullptr;
    if (!at)
        return -1;
    const size_t head = size_t(at - pattern), tail = strlen(at + 1), length = strlen(path);
    if (length < head + tail || strncmp(path, pattern, head) != 0 ||
        strcmp(path + length - tail, at + 1) != 0)
        return -1;
    for (int row = 0; row < t.state->count; row++)
        if (strlen(t.state->name[row]) == length - head - tail &&
            strncmp(path + head, t.state->name[row], length - head - tail) == 0)
            return row;
    return -1;
}

static void follow_row(const ONEOF& t, const char* verb, int row)
{
    for (int n = 0; n < t.column_count; n++) {
        char path[CMD_SIZE];
        if (!t.columns[n].path)
            continue;
        path_of(path, t.columns[n].path, t.state->name[row]);
        Net_SendCommandFormat("%s %s", verb, path);
    }
}

// --- The signals ---

static int signal_column(const ONEOF& t)
{
    for (int n = 0; n < t.column_count; n++)
        if (t.signal && t.columns[n].path && Same(t.columns[n].path, t.signal))
            return n;
    return -1;
}

// The signal that the row has is marked and comes into view. The selection alone would not do: it
// is where the operator touched, before the server has answered.
static void show_signal(const ONEOF& t)
{
    const int column = signal_column(t);
    if (!t.signal_list || column < 0)
        return;
    const char* const now = OneOf_Cell(t, t.state->cursor, column);
    for (int row = 0; row < signals.count; row++) {
        const bool is_now = now[0] && Same(now, signals.row[row].name);
        LS_SetData(t.signal_list, row, COL_MARK, is_now ? "O" : nullptr);
        if (is_now)
            LS_SetSelected(t.signal_list, row, -1, 1);
    }
    LS_RedrawData(t.signal_list);
}

static void fill_signals(const ONEOF& t)
{
    if (!t.signal_list)
        return;
    signals.count = 0;
    for (int i = 0; i < BUS_XPT_SRC; i++) {
        const char* const name = t.signal_name ? t.signal_name(i) : BUS_XptSrc[i];
        if (!name || !name[0])
            continue;
        Signal& s = signals.row[signals.count];
        PrintText(s.number, "%d", i);
        CopyText(s.name, name);
        LS_SetData(t.signal_list, signals.count, COL_NUMBER, s.number);
        LS_SetData(t.signal_list, signals.count, COL_SIGNAL, s.name);
        signals.count++;
    }
    LS_SetNData(t.signal_list, signals.count);
    show_signal(t);
}

// --- The row ---

const char* OneOf_Name(const ONEOF& t)
{
    return t.state->name[t.state->cursor];
}

const char* OneOf_Cell(const ONEOF& t, int row, int column)
{
    const bool is_there =
        row >= 0 && row < t.state->count && column >= 0 && column < t.column_count;
    return is_there ? t.state->cell[row][column] : "";
}

static const _pageobject* object_of_page(int type)
{
    for (const _pageobject& object : Page->obj)
        if (object.type == type)
            return &object;
    return nullptr;
}

// Above the page, and above its boxes where no key owns them.
static void show_title()
{
    char title[64];
    Page_ColumnTitle(title, *Page);
    if (BT_GetKnobAssign() <= 0)
        (void)NB_SetTitle(title);
    BA_RedrawTitle();
}

void OneOf_Choose(const ONEOF& t, int row)
{
    const int before = t.state->cursor;
    if (row < 0 || row >= t.state->count || row == before)
        return;
    t.state->cursor = row;
    Page->tree[t.word] = OneOf_Name(t);
    if (const _pageobject* keys = object_of_page(OBJ_BT))
        BT_Create(static_cast<const BT_TBL*>(keys->addr), 0);
    // The keys have given back what the list shows of the row that they were about.
    follow_row(t, "add", before);
    LS_SetNowLine(t.list, row);
    show_signal(t);
    show_title();
}

void OneOf_Open(const ONEOF& t)
{
    ONEOFSTATE& s = *t.state;
    s.count = t.names(s.name, ONEOF_ROWS);
    if (s.cursor >= s.count)
        s.cursor = 0;
    memset(s.cell, 0, sizeof s.cell);
    if (s.count > 0)
        Page->tree[t.word] = OneOf_Name(t);
    for (int row = 0; row < s.count; row++) {
        LS_SetData(t.list, row, 0, s.name[row]);
        for (int n = 0; n < t.column_count; n++)
            if (t.columns[n].path)
                LS_SetData(t.list, row, n + 1, s.cell[row][n]);
        follow_row(t, "add", row);
    }
    LS_SetNData(t.list, s.count);
    LS_SetNowLine(t.list, s.cursor);
    fill_signals(t);
    BA_RedrawTitle(); // it was drawn with the word that stood there before
}

void OneOf_Close(const ONEOF& t)
{
    for (int row = 0; row < t.state->count; row++)
        follow_row(t, "remove", row);
}

const char* OneOf_Signal(int row)
{
    return row >= 0 && row < signals.count ? signals.row[row].name : "";
}

void OneOf_SignalsChanged(const ONEOF& t)
{
    fill_signals(t);
}

// --- Messages ---

static const char* shown_as(const ONEOFWORD* words, const char* value)
{
    for (; words && words->wire; words++)
        if (Same(words->wire, value))
            return words->text;
    return value;
}

static int tally(const ONEOF& t, const char* path, const char* value)
{
    for (int n = 0; n < t.column_count; n++) {
        const int row = row_of(t, t.columns[n].path, path);
        if (row < 0)
            continue;
        char text[ONEOF_TEXT];
        CopyText(text, t.columns[n].is_timecode ? Frame2TC_SWR(Decimal(value), 4, 0)
                                                : shown_as(t.columns[n].words, value));
        if (Same(text, t.state->cell[row][n]))
            return 1;
        CopyText(t.state->cell[row][n], text);
        LS_RedrawData(t.list);
        if (row == t.state->cursor && n == signal_column(t))
            show_signal(t);
        return 1;
    }
    return 0;
}

static int touch(const ONEOF& t, int list, int row)
{
    if (list == t.list) {
        OneOf_Choose(t, row);
        return 1;
    }
    if (list != t.signal_list || t.signal_list == 0)
        return 0;
    if (row < 0 || row >= signals.count || t.state->count == 0 || BA_IsDefaultButton())
        return 1; // an armed key takes no touch
    char path[CMD_SIZE];
    path_of(path, t.signal, OneOf_Name(t));
    Net_SendCommandFormat("put %s#%s", path, signals.row[row].name);
    return 1;
}

int OneOf_Proc(const ONEOF& t, int msg, MsgArg ax, MsgArg bx)
{
    switch (msg) {
    case MSG_TALLY: return tally(t, Text(ax), Text(bx));
    case LMSG_LISTSEL: return touch(t, int(ax), int(bx));
    case LMSG_XPTSRCCHANGE: fill_signals(t); return 1;
    default: return 0;
    }
}
