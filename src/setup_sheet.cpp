#include "setup_sheet.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include "tally_value.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

static struct {
    const SETUPSHEET* sheet = nullptr; // while the page is open
    const SETUPTABLE* table = nullptr;
    int column = 0;        // that the keyboard is for
    int group_pane = 0;    // choice of the rows that are shown, 0 none
    char caption[32] = ""; // of its key
} sh;

// The rows of a group, counted from 0.
struct RowRange {
    int first = 0;
    int count = 0;
};
static RowRange rows_of_group(const SETUPSHEET& s, int group)
{
    const int size = s.group ? s.group : s.rows;
    return {group * size, std::min(size, s.rows - group * size)};
}

int SetupSheet_Keys(const SETUPSHEET& s, const SETUPSTATE& state, const char** keys, int max)
{
    static char numbers[SHEET_ROWS][4];
    const RowRange rows = rows_of_group(s, state.group);
    const int count = std::min({rows.count, max, SHEET_ROWS - rows.first});
    for (int i = 0; i < count; i++) {
        const int row = rows.first + i;
        PrintText(numbers[row], "%d", row + 1);
        keys[i] = s.names ? s.names[row] : numbers[row];
    }
    return count;
}

int SetupSheet_Offer(const SETUPSHEET& s, int column, const char** texts, int max)
{
    const int own = s.offer ? s.offer(column, texts, max) : -1;
    if (own >= 0)
        return own;
    int n = 0;
    for (const SETUPWORD* w = s.columns[column].words; w && w->wire && n < max; w++)
        texts[n++] = w->text;
    return n;
}

void SetupSheet_Changed(const SETUPSHEET& s, const SETUPTABLE& t)
{
    if (s.is_direct && SetupPage_Differs(t)) {
        SetupPage_Put(t);
        SetupPage_Clear(t); // what counts is the answer
    }
    if (s.changed)
        s.changed();
}

static bool is_range(const SETUPTABLE& t, int row, int last)
{
    return Decimal(SetupPage_Text(t, row, last)) >= Decimal(SetupPage_Text(t, row, last - 1));
}

bool SetupSheet_RangesAreSound()
{
    for (int row = 0; sh.sheet && row < *sh.table->rows; row++)
        for (int i = 1; i < sh.sheet->column_count; i++) {
            if (!sh.sheet->columns[i].is_last || is_range(*sh.table, row, i))
                continue;
            char text[CMD_SIZE];
            PrintText(text, "%s of %s %s\nis below the first.", sh.sheet->columns[i].head,
                      sh.sheet->key_head, SetupPage_Text(*sh.table, row, sh.sheet->column_count));
            (void)PaneMessage_Create("Execute", PANE_ALERT, text);
            return false;
        }
    return true;
}

// --- Names ---

static int name_typed(const char* text)
{
    if (!sh.table || strpbrk(text, ",#"))
        return -1;
    for (int n = 0, row; (row = SetupPage_Selected(*sh.table, n)) >= 0; n++)
        SetupPage_Set(*sh.table, row, sh.column, text);
    return 0;
}

static void ask_name(const SETUPSHEET& s, const SETUPTABLE& t, int column)
{
    WindowArgs args;
    args.value = SetupSheet_Now(t, column);
    args.input_max = std::min(s.columns[column].name, SHEET_TEXT - 1);
    args.ok_text = name_typed;
    sh.column = column;
    CreateWindow(WINDOW_KEYBOARD, s.columns[column].head, args);
}

// --- A group of the rows ---

constexpr int GROUPS = 12; // cells of the pane, at most

static void show_group(const SETUPSHEET& s, const SETUPTABLE& t)
{
    if (s.group == 0)
        return;
    const RowRange rows = rows_of_group(s, t.state->group);
    PrintText(sh.caption, "%s\n%d-%d", s.key_head, rows.first + 1, rows.first + rows.count);
    (void)BT_SetCaption(BTN_SHEET_GROUP, sh.caption);
}

static void ask_group(const SETUPSHEET& s, const SETUPTABLE& t)
{
    static char captions[GROUPS][16]; // live as long as the pane
    constexpr int columns = 3;
    BTNSEL cells[GROUPS] = {}; // a last row that is not full ends in empty ones
    int n = 0;
    for (; n < GROUPS && n * s.group < s.rows; n++) {
        const RowRange rows = rows_of_group(s, n);
        PrintText(captions[n], "%d-%d", rows.first + 1, rows.first + rows.count);
        cells[n] = {n + 1, captions[n], n == t.state->group};
    }
    sh.group_pane = PanePopup_Create((n + columns - 1) / columns, columns, cells);
}

// Only the rows that are shown are followed.
static void choose_group(const SETUPSHEET& s, const SETUPTABLE& t, int group)
{
    if (group < 0 || group * s.group >= s.rows || group == t.state->group)
        return;
    SetupPage_Close(t);
    t.state->group = group;
    t.state->cursor = 0;
    SetupPage_Open(t);
    show_group(s, t);
}

static int pane_closed(const SETUPSHEET& s, const SETUPTABLE& t, int pane, int result)
{
    if (pane == 0 || pane != sh.group_pane)
        return 0;
    sh.group_pane = 0;
    choose_group(s, t, result - 1);
    return 1;
}

static int button_pressed(const SETUPSHEET& s, const SETUPTABLE& t, const char* cmd)
{
    if (!BeginsWith(cmd, SHEET_LOCAL))
        return 0;
    if (s.group && Same(cmd, SHEET_GROUP)) {
        ask_group(s, t);
        return 1;
    }
    for (int i = 0; i < s.column_count; i++)
        if (s.columns[i].name && Same(cmd + strlen(SHEET_LOCAL), s.columns[i].head)) {
            ask_name(s, t, i);
            return 1;
        }
    return 0;
}

// A way to a page that this installation does not have is none.
static void show_ways(const SETUPSHEET& s)
{
    for (int i = 0; i < s.more_count; i++) {
        const BT_TBL& key = s.more[i];
        if (key.type == BT_JUMP && key.cmd[0] && key.cmd[0][0] == '#')
            (void)BT_SetCutoff(key.id, SearchPageTable(Hex(key.cmd[0] + 1)) == nullptr);
    }
}

int SetupSheet_Create(const SETUPSHEET& s, const SETUPTABLE& t, int on)
{
    sh = {};
    if (on) {
        sh.sheet = &s;
        sh.table = &t;
    }
    on ? SetupPage_Open(t) : SetupPage_Close(t);
    if (on && s.title)
        (void)NB_SetTitle(s.title);
    if (on) {
        show_ways(s);
        show_group(s, t);
    }
    return !on;
}

int SetupSheet_Proc(const SETUPSHEET& s, const SETUPTABLE& t, int msg, MsgArg ax, MsgArg bx)
{
    if ((msg == LMSG_BTNSEL && button_pressed(s, t, Text(ax))) ||
        (msg == LMSG_PANEQUIT && pane_closed(s, t, int(ax), int(bx))))
        return 1;
    return SetupPage_Proc(t, msg, ax, bx);
}
