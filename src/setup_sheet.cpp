#include "setup_sheet.h"
#include "bus.h"
#include "command.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "tally_value.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>
#include <iterator>

#include "safeguards.h"

constexpr int POPUP_COLUMNS = 6;
constexpr int POPUP_ROWS = 8;
constexpr int POPUP_CELLS = POPUP_COLUMNS * POPUP_ROWS;
constexpr int POPUP_LINE = 9; // letters of a cell's line

static struct {
    int pane = 0;   // popup of a column's words, 0 none
    int column = 0; // that it or the keyboard is for
    const SETUPWORD* words = nullptr;
    const SETUPSHEET* sheet = nullptr; // while the page is open
    const SETUPTABLE* table = nullptr;
    char caption[POPUP_CELLS][SHEET_TEXT] = {};
} sh;

int SetupSheet_Numbers(const char** keys, int rows)
{
    static char numbers[SHEET_ROWS][4];
    rows = std::min(rows, SHEET_ROWS);
    for (int i = 0; i < rows; i++) {
        PrintText(numbers[i], "%d", i + 1);
        keys[i] = numbers[i];
    }
    return rows;
}

void SetupSheet_Choose(const SETUPSHEET& s, const SETUPTABLE& t, int column, const char* text)
{
    for (int n = 0, row; (row = SetupPage_Selected(t, n)) >= 0; n++) {
        SetupPage_Set(t, row, column, text);
    }
    if (!s.is_direct)
        return;
    SetupPage_Put(t);
    SetupPage_Clear(t); // what counts is the answer
}

// --- Knobs ---

static int column_of_box(const SETUPSHEET& s, int box)
{
    for (int i = 0; i < s.column_count; i++)
        if (IsSheetNumber(s.columns[i]) && --box == 0)
            return i;
    return -1;
}

void SetupSheet_ShowBoxes(const SETUPSHEET& s, const SETUPTABLE& t)
{
    for (int box = 1; box <= SHEET_BOXES; box++) {
        const int column = column_of_box(s, box);
        if (column < 0)
            return;
        const char* const text = SetupSheet_Now(t, column);
        if (*text)
            (void)NB_SetVar(box, Decimal(text));
        else
            (void)NB_InvalidVar(box);
    }
}

static int knob_turned(const SETUPSHEET& s, const SETUPTABLE& t, int box, int value)
{
    const int column = column_of_box(s, box);
    if (column < 0)
        return 0;
    const SETUPCOLUMN& c = s.columns[column];
    SetupSheet_Choose(s, t, column, NumStr(std::clamp(value, c.min, c.max)));
    return 1;
}

// --- Choices ---

static const SETUPWORD* words_of(const SETUPSHEET& s, int column)
{
    const SETUPWORD* words = s.columns[column].words;
    if (s.choices)
        (void)s.choices(column, &words);
    return words;
}

// A long text breaks at its last blank that leaves a full line before it.
static void break_caption(char* text)
{
    if (strlen(text) <= size_t(POPUP_LINE))
        return;
    for (int i = POPUP_LINE; i > 0; i--)
        if (text[i] == ' ') {
            text[i] = '\n';
            return;
        }
}

static void ask_word(const SETUPSHEET& s, const SETUPTABLE& t, int column)
{
    BTNSEL cells[POPUP_CELLS];
    int n = 0;
    sh.words = words_of(s, column);
    for (const SETUPWORD* w = sh.words; w && w->wire && n < POPUP_CELLS; w++, n++) {
        CopyText(sh.caption[n], w->text);
        break_caption(sh.caption[n]);
        cells[n] = {n + 1, sh.caption[n], Same(SetupSheet_Now(t, column), w->text)};
    }
    if (n == 0)
        return;
    const int columns = n <= 4 ? n : n <= 12 ? 4 : POPUP_COLUMNS;
    sh.column = column;
    sh.pane = PanePopup_Create((n + columns - 1) / columns, columns, cells);
}

static int popup_closed(const SETUPSHEET& s, const SETUPTABLE& t, int pane, int result)
{
    if (pane == 0 || pane != sh.pane)
        return 0;
    sh.pane = 0;
    int n = 0;
    for (const SETUPWORD* w = sh.words; w && w->wire; w++)
        if (++n == result)
            SetupSheet_Choose(s, t, sh.column, w->text);
    return 1;
}

static int name_typed(const char* text)
{
    if (!sh.table || strpbrk(text, ",#"))
        return -1;
    SetupSheet_Choose(*sh.sheet, *sh.table, sh.column, text);
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

// The column of a key's command, -1 none.
static int column_of_command(const SETUPSHEET& s, const char* cmd)
{
    if (!BeginsWith(cmd, SHEET_LOCAL))
        return -1;
    for (int i = 0; i < s.column_count; i++)
        if (SheetKeys(s.columns[i]) > 0 && Same(cmd + strlen(SHEET_LOCAL), s.columns[i].head))
            return i;
    return -1;
}

static int button_pressed(const SETUPSHEET& s, const SETUPTABLE& t, const char* cmd,
                          const char* value)
{
    const int column = column_of_command(s, cmd);
    if (column < 0)
        return 0;
    const SETUPCOLUMN& c = s.columns[column];
    if (SheetKeys(c) > 1)
        SetupSheet_Choose(s, t, column, value);
    else if (c.name)
        ask_name(s, t, column);
    else
        ask_word(s, t, column);
    return 1;
}

// A direct sheet's table has no choices of its own: their keys show the current row all the same.
static void show_radios(const SETUPSHEET& s, const SETUPTABLE& t)
{
    char line[CMD_SIZE];
    for (int i = 0; s.is_direct && i < s.column_count; i++) {
        if (SheetKeys(s.columns[i]) < 2)
            continue;
        PrintText(line, SHEET_LOCAL "%s#%s", s.columns[i].head, SetupSheet_Now(t, i));
        (void)SendDummyTally(line);
    }
}

int SetupSheet_Create(const SETUPSHEET& s, const SETUPTABLE& t, int on)
{
    sh.pane = 0;
    sh.sheet = on ? &s : nullptr;
    sh.table = on ? &t : nullptr;
    on ? SetupPage_Open(t) : SetupPage_Close(t);
    if (on)
        show_radios(s, t);
    return !on;
}

int SetupSheet_Proc(const SETUPSHEET& s, const SETUPTABLE& t, int msg, MsgArg ax, MsgArg bx)
{
    int is_taken = 0;
    if (msg == LMSG_BTNSEL)
        is_taken = button_pressed(s, t, Text(ax), Text(bx));
    else if (msg == LMSG_PANEQUIT)
        is_taken = popup_closed(s, t, int(ax), int(bx));
    else if (msg == LMSG_KNOBVAR)
        is_taken = knob_turned(s, t, int(ax), int(bx));
    if (!is_taken)
        is_taken = SetupPage_Proc(t, msg, ax, bx);
    if (is_taken)
        show_radios(s, t);
    return is_taken;
}
