#include "setup_page.h"
#include "a_bt.h"
#include "a_ls.h"
#include "a_nb.h"
#include "bus.h"
#include "command.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

const char setup_reboot_question[] =
    "This operation will cause the system to\nreboot.\n\nContinue?";

constexpr int PARTS_MAX = 256;

// --- Rows and their texts ---

static char* row_at(void* table, const SETUPTABLE& t, int row)
{
    return static_cast<char*>(table) + size_t(row) * t.row_size;
}

static char* work_text(const SETUPTABLE& t, int row, const SETUPFIELD& f)
{
    return row_at(t.work, t, row) + f.offset;
}

static char* tally_text(const SETUPTABLE& t, int row, const SETUPFIELD& f)
{
    return row_at(t.tally, t, row) + f.offset;
}

static const char* key_of(const SETUPTABLE& t, int row)
{
    return row_at(t.work, t, row);
}

static bool is_row(const SETUPTABLE& t, int row)
{
    return row >= 0 && row < *t.rows;
}

static bool has(const SETUPTABLE& t, int row, const SETUPFIELD& f)
{
    return !f.has || f.has(key_of(t, row));
}

static bool differs(const SETUPTABLE& t, int row, const SETUPFIELD& f)
{
    return f.path && f.is_put && has(t, row, f) &&
           strcmp(work_text(t, row, f), tally_text(t, row, f)) != 0;
}

// The field at the same place that the row has, -1 none.
static int field_of_row(const SETUPTABLE& t, int row, int field)
{
    for (int i = 0; is_row(t, row) && field >= 0 && field < t.field_count && i < t.field_count; i++)
        if (t.fields[i].offset == t.fields[field].offset && has(t, row, t.fields[i]))
            return i;
    return -1;
}

// The key is the first text of a row.
static size_t key_size(const SETUPTABLE& t)
{
    size_t size = t.row_size;
    for (int i = 0; i < t.field_count; i++)
        if (t.fields[i].offset > 0)
            size = std::min(size, t.fields[i].offset);
    return size;
}

static bool is_in(uint32_t fields, const SETUPTABLE& t, const SETUPFIELD& f)
{
    return fields >> (&f - t.fields) & 1;
}

static void for_each_field(const SETUPTABLE& t, void (*work)(const SETUPTABLE&, const SETUPFIELD&))
{
    for (int i = 0; i < t.field_count; i++)
        work(t, t.fields[i]);
}

int SetupPage_Row(const SETUPTABLE& t, const char* key)
{
    for (int row = 0; row < *t.rows; row++)
        if (strcmp(key_of(t, row), key) == 0)
            return row;
    return -1;
}

// The row of a key becomes row to, with what is in hand of it; a new one is empty. The row behind
// the last is free.
static void place_row(const SETUPTABLE& t, const char* key, int to)
{
    int from = to;
    while (from < t.max && strcmp(key_of(t, from), key) != 0)
        from++;
    const bool is_new = from == t.max;
    if (is_new)
        from = t.max - 1;
    for (void* table : {t.work, t.tally}) {
        std::rotate(row_at(table, t, to), row_at(table, t, from), row_at(table, t, from + 1));
        if (is_new) {
            memset(row_at(table, t, to), 0, t.row_size);
            ktr_strncpy(row_at(table, t, to), key, key_size(t));
        }
    }
}

static void make_rows(const SETUPTABLE& t)
{
    constexpr int keys_max = 256;
    const char* keys[keys_max];
    const int n = t.keys(keys, std::min(t.max, keys_max));
    for (int row = 0; row < n; row++)
        place_row(t, keys[row], row);
    *t.rows = n;
}

// --- Paths ---

static void path_of(const SETUPTABLE& t, int row, const SETUPFIELD& f, char (&path)[CMD_SIZE])
{
    const bool is_below = *f.path == '~';
    char rest[CMD_SIZE];
    DecodeCommandWithVar(rest, f.path + is_below, strchr(f.path, '$') ? key_of(t, row) : nullptr,
                         CMD_SIZE);
    path[0] = '\0';
    const char* const* const tree = t.state->tree;
    for (int i = 0; is_below && tree && i < PAGE_DEPTH && tree[i]; i++) {
        AppendText(path, i > 0 ? "@" : "");
        AppendText(path, tree[i]);
    }
    AppendText(path, rest);
}

// What stands behind the page's place in the tree; null when the path is not below it.
static const char* behind_tree(const char* const* tree, const char* path)
{
    for (int i = 0; tree && i < PAGE_DEPTH && tree[i]; i++) {
        const size_t length = strlen(tree[i]);
        if (i > 0 && *path++ != '@')
            return nullptr;
        if (strncmp(path, tree[i], length) != 0)
            return nullptr;
        path += length;
    }
    return path;
}

// Whether a path is one of the field's; key gets what stands in place of the "$".
static bool is_path_of(const SETUPTABLE& t, const SETUPFIELD& f, const char* path,
                       char (&key)[SETUP_TEXT])
{
    key[0] = '\0';
    const char* pattern = f.path;
    if (pattern && *pattern == '~') {
        pattern++;
        path = behind_tree(t.state->tree, path);
    }
    if (!pattern || !path)
        return false;
    const char* const mark = strchr(pattern, '$');
    if (!mark)
        return strcmp(pattern, path) == 0;
    const size_t head = size_t(mark - pattern);
    const size_t length = strlen(path);
    const size_t tail = strlen(mark + 1);
    if (length <= head + tail || length - head - tail >= sizeof key ||
        strncmp(path, pattern, head) != 0 || strcmp(path + length - tail, mark + 1) != 0)
        return false;
    strncpy_secu(key, path + head, sizeof key, length - head - tail);
    return true;
}

// The first field of a path asks for it; the others of its line come with it.
static bool is_first_of_path(const SETUPTABLE& t, const SETUPFIELD& f)
{
    for (const SETUPFIELD* g = t.fields; g != &f; g++)
        if (g->path && strcmp(g->path, f.path) == 0)
            return false;
    return true;
}

static void subscribe_field(const SETUPTABLE& t, const SETUPFIELD& f, const char* verb)
{
    if (!f.path)
        return;
    char path[CMD_SIZE];
    const bool is_one = !strchr(f.path, '$');
    if ((is_one || f.part != 0) && !is_first_of_path(t, f))
        return;
    if (is_one) {
        path_of(t, 0, f, path);
        return (void)Net_SendCommandFormat("%s %s", verb, path);
    }
    for (int row = 0; row < *t.rows; row++) {
        if (!has(t, row, f))
            continue;
        path_of(t, row, f, path);
        Net_SendCommandFormat("%s %s", verb, path);
    }
}

static void ask_field(const SETUPTABLE& t, const SETUPFIELD& f)
{
    if (f.ask != SETUP_HEAR)
        subscribe_field(t, f, f.ask == SETUP_READ ? "read" : "add");
}

static void leave_field(const SETUPTABLE& t, const SETUPFIELD& f)
{
    if (f.ask == SETUP_ADD)
        subscribe_field(t, f, "remove");
}

// --- What the server tells ---

static void text_of_word(const SETUPFIELD& f, const char* value, char (&text)[SETUP_TEXT])
{
    CopyText(text, value);
    for (const SETUPWORD* w = f.words; w && w->wire; w++)
        if (strcmp(w->wire, value) == 0)
            CopyText(text, w->text);
}

static void word_of_text(const SETUPFIELD& f, const char* text, char (&value)[SETUP_TEXT])
{
    CopyText(value, text);
    for (const SETUPWORD* w = f.words; w && w->wire; w++)
        if (strcmp(w->text, text) == 0)
            CopyText(value, w->wire);
}

static void text_of_value(const SETUPFIELD& f, const char* value, const char* now,
                          char (&text)[SETUP_TEXT])
{
    if (f.from_wire)
        return f.from_wire(value, now, text, sizeof text);
    text_of_word(f, value, text);
}

static void value_of_text(const SETUPFIELD& f, const char* text, char (&value)[SETUP_TEXT])
{
    if (f.to_wire)
        return f.to_wire(text, value, sizeof value);
    word_of_text(f, text, value);
}

// What is in hand stays; a cell that was as the server had it follows.
static void take_value(const SETUPTABLE& t, int row, const SETUPFIELD& f, const char* value)
{
    char* const work = work_text(t, row, f);
    char* const tally = tally_text(t, row, f);
    char text[SETUP_TEXT];
    text_of_value(f, value, work, text);
    if (strcmp(work, tally) == 0)
        ktr_strncpy(work, text, f.size);
    ktr_strncpy(tally, text, f.size);
}

static int row_of_line(const SETUPTABLE& t, const char* told)
{
    char key[SETUP_TEXT]; // as it will be stored, so that a long one finds its row again
    ktr_strncpy(key, told, std::min(sizeof key, key_size(t)));
    const int row = SetupPage_Row(t, key);
    if (row >= 0 || t.keys || !*key)
        return row;
    if (*t.rows == t.max) {
        Log_Output(LOG_LINK, MOD_GLOBAL, "Setup: no room for [%s]", key);
        return -1;
    }
    place_row(t, key, *t.rows);
    return (*t.rows)++;
}

// A line of all rows' path: its first part is the key.
static void take_line(const SETUPTABLE& t, const SETUPFIELD& first, const char* value)
{
    if (IsKill(value)) {
        if (!t.keys)
            *t.rows = 0; // the lines that follow bring them back, with what is in hand
        return;
    }
    char text[CMD_SIZE];
    char* v[PARTS_MAX];
    CopyText(text, value);
    const int n = SplitVars(text, v, PARTS_MAX) - (t.key_parts - 1);
    if (n <= 1)
        return;
    char key[CMD_SIZE];
    CopyText(key, v[0]);
    for (int i = 1; i < t.key_parts; i++) {
        AppendText(key, ",");
        AppendText(key, v[i]);
    }
    const int row = row_of_line(t, key);
    if (row < 0)
        return;
    for (int i = 0; i < t.field_count; i++) {
        const SETUPFIELD& f = t.fields[i];
        if (f.path && strcmp(f.path, first.path) == 0 && f.part > 0 && f.part < n && has(t, row, f))
            take_value(t, row, f, v[f.part + t.key_parts - 1]);
    }
}

// A line of a row's own path: parts without a key.
static void take_own_line(const SETUPTABLE& t, int row, const SETUPFIELD& first, const char* value)
{
    char text[CMD_SIZE];
    char* v[PARTS_MAX];
    CopyText(text, value);
    const int n = SplitVars(text, v, PARTS_MAX);
    for (int i = 0; i < t.field_count; i++) {
        const SETUPFIELD& f = t.fields[i];
        if (f.path && strcmp(f.path, first.path) == 0 && f.part > 0 && f.part <= n &&
            has(t, row, f))
            take_value(t, row, f, v[f.part - 1]);
    }
}

// A part for each row.
static void take_parts(const SETUPTABLE& t, const SETUPFIELD& f, const char* value)
{
    char text[CMD_SIZE];
    char* v[PARTS_MAX];
    CopyText(text, value);
    const int n = std::min(SplitVars(text, v, PARTS_MAX), *t.rows);
    for (int row = 0; row < n; row++)
        if (has(t, row, f))
            take_value(t, row, f, v[row]);
}

// What a tally says anew: a row, all of them, or nothing that a row has.
enum : int { TOLD_NONE = -1, TOLD_ALL = -2 };

// False when the path is none of the table's.
static bool take_tally(const SETUPTABLE& t, const char* path, const char* value, int* told)
{
    char key[SETUP_TEXT];
    bool is_taken = false;
    *told = TOLD_NONE;
    for (int i = 0; i < t.field_count; i++) {
        const SETUPFIELD& f = t.fields[i];
        if (f.part == SETUP_BY_PAGE || !is_path_of(t, f, path, key))
            continue;
        is_taken = true;
        const bool is_own = strchr(f.path, '$');
        const int row = is_own ? SetupPage_Row(t, key) : *t.rows > 0 ? 0 : -1;
        if (f.part > 0 && is_own) {
            if (row >= 0)
                take_own_line(t, row, f, value);
            *told = row;
            break;
        }
        if (f.part > 0) {
            take_line(t, f, value);
            *told = TOLD_ALL;
            break;
        }
        if (f.part == SETUP_EACH_ROW) {
            take_parts(t, f, value);
            *told = TOLD_ALL;
            continue;
        }
        if (row >= 0 && has(t, row, f))
            take_value(t, row, f, value);
        if (*told != TOLD_ALL)
            *told = row;
    }
    return is_taken;
}

// --- What the page shows ---

// A column that two fields share shows the one that the row has.
static void show_row(const SETUPTABLE& t, int row)
{
    for (int i = 0; i < t.field_count; i++) {
        const SETUPFIELD& f = t.fields[i];
        if (f.column < 0 || !has(t, row, f))
            continue;
        (void)LS_SetData(t.list, row, f.column, work_text(t, row, f));
        (void)LS_SetStatus(t.list, row, f.column, differs(t, row, f) ? SETUP_CELL_CHANGED : 0);
    }
}

static void show_list(const SETUPTABLE& t)
{
    for (int row = 0; row < *t.rows; row++)
        show_row(t, row);
    (void)LS_SetNData(t.list, *t.rows);
    // Rows that are told only now: one of them is current.
    if (*t.rows > 0 && !LS_GetMS(t.list) && LS_GetSelected(t.list, 0) < 0)
        (void)LS_SetNowLine(t.list, std::min(t.state->cursor, *t.rows - 1));
    (void)LS_RedrawData(t.list);
}

// The text is a number, or the word in the place of one.
static void show_box(const SETUPTABLE& t, const SETUPCHOICE& c, const char* text)
{
    char number[SETUP_TEXT];
    word_of_text(t.fields[c.field], text, number);
    (void)(*text ? NB_SetVar(c.box, Decimal(number)) : NB_InvalidVar(c.box));
}

static void show_choices(const SETUPTABLE& t)
{
    char line[CMD_SIZE];
    for (int i = 0; i < t.choice_count; i++) {
        const SETUPCHOICE& c = t.choices[i];
        const char* const text = SetupPage_Text(t, t.state->cursor, c.field);
        if (c.box)
            show_box(t, c, text);
        if (!c.cmd)
            continue;
        const char* const state = strcmp(text, c.on ? c.on : "") == 0 ? "true" : "false";
        PrintText(line, "%s#%s", c.cmd, c.on ? state : text);
        (void)SendDummyTally(line);
    }
}

static void show_keys(const SETUPTABLE& t)
{
    const int is_same = !SetupPage_Differs(t);
    if (t.btn_clear)
        (void)BT_SetDisable(t.btn_clear, is_same);
    if (t.btn_execute)
        (void)BT_SetDisable(t.btn_execute, is_same);
}

void SetupPage_Show(const SETUPTABLE& t)
{
    if (!t.state->is_open)
        return;
    if (t.list)
        show_list(t);
    show_keys(t);
    show_choices(t);
    if (t.changed)
        t.changed();
}

// A page that opens is told its rows one by one, hundreds in a pass: each costs what its own row
// costs.
static void show_told(const SETUPTABLE& t, int told)
{
    if (told == TOLD_ALL || !t.list)
        return SetupPage_Show(t);
    if (told == TOLD_NONE)
        return;
    show_row(t, told);
    (void)LS_RedrawData(t.list);
    show_keys(t);
    if (told == t.state->cursor)
        show_choices(t);
    if (t.changed)
        t.changed();
}

// --- For page code ---

void SetupPage_Open(const SETUPTABLE& t)
{
    t.state->is_open = 1;
    t.state->question = t.state->popup = 0;
    t.state->tree = GL_NowTree;
    if (t.keys)
        make_rows(t);
    t.state->cursor = std::clamp(t.state->cursor, 0, std::max(0, *t.rows - 1));
    for_each_field(t, ask_field);
    SetupPage_Show(t);
    if (t.list)
        (void)LS_SetNowLine(t.list, t.state->cursor);
}

void SetupPage_Close(const SETUPTABLE& t)
{
    if (!t.state->is_open)
        return;
    for_each_field(t, leave_field);
    t.state->is_open = 0;
}

const char* SetupPage_Text(const SETUPTABLE& t, int row, int field)
{
    return SetupPage_Has(t, row, field) ? work_text(t, row, t.fields[field]) : "";
}

const char* SetupPage_Told(const SETUPTABLE& t, int row, int field)
{
    return SetupPage_Has(t, row, field) ? tally_text(t, row, t.fields[field]) : "";
}

bool SetupPage_Has(const SETUPTABLE& t, int row, int field)
{
    return field_of_row(t, row, field) >= 0;
}

void SetupPage_Set(const SETUPTABLE& t, int row, int field, const char* text)
{
    if (!SetupPage_Has(t, row, field))
        return;
    ktr_strncpy(work_text(t, row, t.fields[field]), text, t.fields[field].size);
    SetupPage_Show(t);
}

void SetupPage_Take(const SETUPTABLE& t, int row, int field, const char* text)
{
    if (SetupPage_Has(t, row, field))
        take_value(t, row, t.fields[field], text);
}

int SetupPage_Selected(const SETUPTABLE& t, int n)
{
    if (!t.list)
        return n < *t.rows ? n : -1;
    const int row = LS_GetSelected(t.list, n);
    return is_row(t, row) ? row : -1;
}

bool SetupPage_Differs(const SETUPTABLE& t, uint32_t fields)
{
    for (int row = 0; row < *t.rows; row++)
        for (int i = 0; i < t.field_count; i++)
            if (is_in(fields, t, t.fields[i]) && differs(t, row, t.fields[i]))
                return true;
    return false;
}

void SetupPage_Clear(const SETUPTABLE& t, uint32_t fields)
{
    for (int row = 0; row < *t.rows; row++) {
        for (int i = 0; i < t.field_count; i++) {
            const SETUPFIELD& f = t.fields[i];
            if (is_in(fields, t, f) && differs(t, row, f))
                ktr_strncpy(work_text(t, row, f), tally_text(t, row, f), f.size);
        }
    }
    SetupPage_Show(t);
}

// The whole line of a row: every part behind its key, which the row's own path names already.
static void put_line(const SETUPTABLE& t, int row, const SETUPFIELD& first)
{
    char line[CMD_SIZE];
    char path[CMD_SIZE];
    path_of(t, row, first, path);
    const bool is_own = strchr(first.path, '$');
    PrintText(line, "put %.900s#%s", path, is_own ? "" : key_of(t, row));
    int at = 1;
    for (int i = 0; i < t.field_count; i++) {
        const SETUPFIELD& f = t.fields[i];
        if (!f.path || strcmp(f.path, first.path) != 0 || f.part != at)
            continue;
        char value[SETUP_TEXT];
        value_of_text(f, work_text(t, row, f), value);
        for (int n = 0; n < f.parts; n++, at++) {
            AppendText(line, is_own && at == 1 ? "" : ",");
            AppendText(line, value);
        }
        i = -1; // the next part may stand before this one
    }
    Net_SendCommand(line);
}

static void put_parts(const SETUPTABLE& t, const SETUPFIELD& f)
{
    char line[CMD_SIZE];
    char path[CMD_SIZE];
    path_of(t, 0, f, path);
    PrintText(line, "put %.900s#", path);
    for (int row = 0; row < *t.rows; row++) {
        char value[SETUP_TEXT];
        value_of_text(f, work_text(t, row, f), value);
        AppendText(line, value);
        AppendText(line, ",");
    }
    Net_SendCommand(line);
}

static bool is_line_sent(const SETUPTABLE& t, int row, const SETUPFIELD& f)
{
    for (const SETUPFIELD* g = t.fields; g != &f; g++)
        if (g->part > 0 && g->path && strcmp(g->path, f.path) == 0 && differs(t, row, *g))
            return true;
    return false;
}

static void put_cell(const SETUPTABLE& t, int row, const SETUPFIELD& f)
{
    if (f.part == SETUP_BY_PAGE)
        return;
    if (f.part > 0) {
        if (!is_line_sent(t, row, f))
            put_line(t, row, f);
        return;
    }
    if (f.part == SETUP_EACH_ROW)
        return put_parts(t, f);
    char path[CMD_SIZE];
    char value[SETUP_TEXT];
    path_of(t, row, f, path);
    value_of_text(f, work_text(t, row, f), value);
    Net_SendCommandFormat("put %s#%s", path, value);
    if (f.is_reread)
        Net_SendCommandFormat("read %s", path);
}

void SetupPage_Put(const SETUPTABLE& t, uint32_t fields)
{
    for (int i = 0; i < t.field_count; i++)
        for (int row = 0; row < *t.rows; row++)
            if (is_in(fields, t, t.fields[i]) && differs(t, row, t.fields[i])) {
                put_cell(t, row, t.fields[i]);
                if (t.fields[i].part == SETUP_EACH_ROW)
                    break;
            }
}

void SetupPage_Forget(const SETUPTABLE& t)
{
    memset(t.work, 0, size_t(t.max) * t.row_size);
    memset(t.tally, 0, size_t(t.max) * t.row_size);
    *t.rows = 0;
    *t.state = {};
}

// --- Messages ---

static void set_selected(const SETUPTABLE& t, const SETUPCHOICE& c, const char* value)
{
    if (!SetupPage_Has(t, t.state->cursor, c.field) && c.is_swapped)
        return;
    const SETUPFIELD& f = t.fields[c.field];
    if (c.is_swapped) {
        char* const mine = work_text(t, t.state->cursor, f);
        for (int row = 0; row < *t.rows; row++)
            if (strcmp(work_text(t, row, f), value) == 0)
                memcpy(work_text(t, row, f), mine, f.size);
        ktr_strncpy(mine, value, f.size);
    }
    for (int n = 0, row; !c.is_swapped && (row = SetupPage_Selected(t, n)) >= 0; n++)
        if (SetupPage_Has(t, row, c.field))
            ktr_strncpy(work_text(t, row, f), value, f.size);
    SetupPage_Show(t);
}

// A text of a cell of the popup: what is too long for a line breaks at a blank.
static const char* cell_caption(const char* text, char (&caption)[SETUP_TEXT])
{
    constexpr int line = 9; // letters
    CopyText(caption, text);
    for (int i = line; strlen(caption) > size_t(line) && i > 0; i--)
        if (caption[i] == ' ') {
            caption[i] = '\n';
            break;
        }
    return caption;
}

static void open_popup(const SETUPTABLE& t, const SETUPCHOICE& c)
{
    static char captions[SETUP_OFFER][SETUP_TEXT]; // live as long as the popup
    const char* texts[SETUP_OFFER];
    BTNSEL cells[SETUP_OFFER] = {}; // a last row that is not full ends in empty ones
    const int n = std::min(c.offer(texts, SETUP_OFFER), SETUP_OFFER);
    const int columns = n <= 12 ? 3 : n <= 24 ? 4 : 8;
    const char* const now = SetupPage_Text(t, t.state->cursor, c.field);
    if (n == 0)
        return;
    for (int i = 0; i < n; i++)
        cells[i] = {i + 1, cell_caption(texts[i], captions[i]), strcmp(texts[i], now) == 0};
    t.state->asked = int(&c - t.choices);
    t.state->popup = PanePopup_Create((n + columns - 1) / columns, columns, cells);
}

static int choose(const SETUPTABLE& t, const SETUPCHOICE& c, const char* value)
{
    if (c.offer)
        open_popup(t, c);
    else if (c.on)
        set_selected(t, c,
                     strcmp(SetupPage_Text(t, t.state->cursor, c.field), c.on) ? c.on : c.off);
    else
        set_selected(t, c, value);
    return 1;
}

static void popup_closed(const SETUPTABLE& t, int result)
{
    const SETUPCHOICE& c = t.choices[t.state->asked];
    const char* texts[SETUP_OFFER];
    t.state->popup = 0;
    const int n = std::min(c.offer(texts, SETUP_OFFER), SETUP_OFFER);
    if (result > 0 && result <= n)
        set_selected(t, c, texts[result - 1]);
}

static int knob_turned(const SETUPTABLE& t, int box, int value)
{
    char number[16];
    char text[SETUP_TEXT];
    PrintText(number, "%d", value);
    for (int i = 0; i < t.choice_count; i++)
        if (t.choices[i].box == box) {
            // Until it is told, the box stands at nothing: its knob's first report is no turn.
            if (!*SetupPage_Text(t, t.state->cursor, t.choices[i].field))
                return 1;
            text_of_word(t.fields[t.choices[i].field], number, text);
            set_selected(t, t.choices[i], text);
            return 1;
        }
    return 0;
}

static int button_pressed(const SETUPTABLE& t, const char* cmd, const char* value)
{
    for (int i = 0; i < t.choice_count; i++)
        if (t.choices[i].cmd && strcmp(cmd, t.choices[i].cmd) == 0)
            return choose(t, t.choices[i], value);
    if (strcmp(cmd, t.clear) == 0) {
        SetupPage_Clear(t);
        return 1;
    }
    if (strcmp(cmd, t.execute) != 0)
        return 0;
    if (t.is_sound && !t.is_sound())
        return 1;
    if (t.question)
        t.state->question = PaneYesNo_Create(t.title, PANE_ALERT, t.question);
    else
        SetupPage_Put(t);
    return 1;
}

static int pane_closed(const SETUPTABLE& t, int pane, int result)
{
    constexpr int yes = 1;
    if (pane != 0 && pane == t.state->popup) {
        popup_closed(t, result);
        return 1;
    }
    if (pane == 0 || pane != t.state->question)
        return 0;
    t.state->question = 0;
    if (result == yes)
        SetupPage_Put(t);
    return 1;
}

static int tally(const SETUPTABLE& t, const char* path, const char* value)
{
    int told;
    if (!take_tally(t, path, value, &told))
        return 0;
    show_told(t, told);
    return 1;
}

static int row_selected(const SETUPTABLE& t, int list)
{
    if (list != t.list || list == 0)
        return 0;
    t.state->cursor = LS_GetNowLine(list);
    SetupPage_Show(t);
    return 1;
}

int SetupPage_Proc(const SETUPTABLE& t, int msg, MsgArg ax, MsgArg bx)
{
    if (!t.state->is_open)
        return 0;
    switch (msg) {
    case MSG_TALLY: return tally(t, Text(ax), Text(bx));
    case LMSG_BTNSEL: return button_pressed(t, Text(ax), Text(bx));
    case LMSG_PANEQUIT: return pane_closed(t, int(ax), int(bx));
    case LMSG_LISTSEL: return row_selected(t, int(ax));
    case LMSG_KNOBVAR: return knob_turned(t, int(ax), int(bx));
    default: return 0;
    }
}
