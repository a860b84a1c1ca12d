// setup_sheet: setup pages that are no more than a list with choices.
// A page says its rows and columns once, as a SETUPSHEET. From that come its list, its buttons, its
// knobs and its table of setup_page: a column of words gets a key a word, or one key that asks; a
// column of numbers a knob; a column of names the keyboard. What a change means to other rows stays
// with page code, which calls SetupSheet_Proc for all the rest.
//
// A sheet is prepared and applied by Execute, or, where it is direct, each change goes out at once
// and only the answer changes what is shown. A long direct sheet shows and follows a group of rows,
// and a key chooses which.
#pragma once
#include "a_bt.h"
#include "a_ls.h"
#include "a_nb.h"
#include "a_pc.h"
#include "page_table/rows.h"
#include "setup_page.h"
#include "types.h"
#include <utility>

constexpr int SHEET_TEXT = 24;   // of a cell with its terminator
constexpr int SHEET_COLUMNS = 9; // at most, beside the column of the keys
constexpr int SHEET_ROWS = 256;
constexpr int SHEET_BOXES = 5;  // columns of numbers, at most
constexpr int SHEET_RADIOS = 3; // as many words get a key each

struct SETUPCOLUMN {
    const char* head = "";      // of the list, and of the group of its keys
    int width = 0;              // pixels; 0: not in the list
    const char* path = nullptr; // these five as in SETUPFIELD
    int part = 0;
    const SETUPWORD* words = nullptr; // the choices, in order
    void (*from_wire)(const char* value, const char* now, char* text, size_t size) = nullptr;
    void (*to_wire)(const char* text, char* value, size_t size) = nullptr;
    int min = 0; // min below max: a number with its limits
    int max = 0;
    int name = 0;                  // characters of a name that is typed, 0: none
    int is_fixed = 0;              // only shown
    int ask = SETUP_ADD;           // as in SETUPFIELD
    int is_swapped = 0;            // as in SETUPCHOICE, of a key that asks
    int is_asked = 0;              // one key that asks, however few its words are
    int is_toggle = 0;             // one key that turns over two words, lit by the first
    const char* caption = nullptr; // of its key; null: the head
    const char* group = nullptr;   // title of one key's frame; columns side by side share it
    int start_line = 0;            // its keys begin the second line of keys
    int is_reread = 0;             // as in SETUPFIELD
    int is_last = 0;               // of a range that begins in the column before
};

struct SETUPSHEET {
    const SETUPCOLUMN* columns = nullptr;
    int column_count = 0;
    int rows = 0;                       // at most SHEET_ROWS
    const char* const* names = nullptr; // keys of the rows; null: "1" to the number of rows
    const char* key_head = "No";
    int key_width = 60;
    int is_direct = 0;
    int group = 0;                  // rows that are shown at a time; 0: all. Direct, without names
    const char* question = nullptr; // of Execute
    const char* title = nullptr;    // over the knobs; null: the page's own
    const BT_TBL* more = nullptr;   // further keys, of ids that the columns leave free
    int more_count = 0;
    // The choices of a column at the moment, at most max: how many; -1: its words.
    int (*offer)(int column, const char** texts, int max) = nullptr;
    bool (*is_sound)() = nullptr; // as in SETUPTABLE
    void (*changed)() = nullptr;  // the cells or the current row may be others now
};

// --- What page code may ask; t is the sheet's table ---
int SetupSheet_Proc(const SETUPSHEET& s, const SETUPTABLE& t, int msg, MsgArg ax, MsgArg bx);
// Open the page; the same with on 0 leaves it.
int SetupSheet_Create(const SETUPSHEET& s, const SETUPTABLE& t, int on);
// The keys of the rows that are shown, at most max: names or numbers. Returns how many.
int SetupSheet_Keys(const SETUPSHEET& s, const SETUPSTATE& state, const char** keys, int max);
// The choices of a column at the moment. Returns how many.
int SetupSheet_Offer(const SETUPSHEET& s, int column, const char** texts, int max);
// The cells or the current row may be others now: a direct sheet sends what is in hand.
void SetupSheet_Changed(const SETUPSHEET& s, const SETUPTABLE& t);

// SETUPSHEET.is_sound of a sheet with ranges: none ends before it begins. Says which does.
bool SetupSheet_RangesAreSound();

// The text of a cell of the current row.
inline const char* SetupSheet_Now(const SETUPTABLE& t, int column)
{
    return SetupPage_Text(t, t.state->cursor, column);
}

// --- Columns, as a page's table says them ---

constexpr SETUPCOLUMN SheetWord(const char* head, int width, const char* path,
                                const SETUPWORD* words)
{
    return {.head = head, .width = width, .path = path, .words = words};
}
// The same behind one key, whose caption and frame may be others than the head.
constexpr SETUPCOLUMN SheetAsked(const char* head, int width, const char* path,
                                 const SETUPWORD* words, const char* caption = nullptr,
                                 const char* group = nullptr)
{
    return {.head = head,
            .width = width,
            .path = path,
            .words = words,
            .is_asked = 1,
            .caption = caption,
            .group = group};
}
// Two words behind one key that turns them over: one touch for all selected rows.
constexpr SETUPCOLUMN SheetToggle(const char* head, int width, const char* path,
                                  const SETUPWORD* words, const char* caption = nullptr,
                                  const char* group = nullptr)
{
    SETUPCOLUMN column = SheetAsked(head, width, path, words, caption, group);
    column.is_asked = 0;
    column.is_toggle = 1;
    return column;
}
constexpr SETUPCOLUMN SheetNumber(const char* head, int width, const char* path, int min, int max)
{
    return {.head = head, .width = width, .path = path, .min = min, .max = max};
}
// A number that begins with a word in the place of 0: {{"0", "None"}, {}}.
constexpr SETUPCOLUMN SheetNumberOr(const char* head, int width, const char* path,
                                    const SETUPWORD* zero, int max)
{
    return {.head = head, .width = width, .path = path, .words = zero, .min = 0, .max = max};
}
// The last of a range; its first is the number of the column before.
constexpr SETUPCOLUMN SheetLast(const char* head, int width, const char* path, int min, int max)
{
    return {.head = head, .width = width, .path = path, .min = min, .max = max, .is_last = 1};
}
constexpr SETUPCOLUMN SheetName(const char* head, int width, const char* path, int letters,
                                const char* caption = nullptr)
{
    return {.head = head, .width = width, .path = path, .name = letters, .caption = caption};
}
constexpr SETUPCOLUMN SheetShown(const char* head, int width, const char* path)
{
    return {.head = head, .width = width, .path = path, .is_fixed = 1};
}
// Of a path that the application follows all the time: leaving the page must not end that.
constexpr SETUPCOLUMN SheetFollowed(SETUPCOLUMN column)
{
    column.ask = SETUP_READ;
    column.is_reread = 1;
    return column;
}
constexpr SETUPCOLUMN SheetPart(SETUPCOLUMN column, int part)
{
    column.part = part;
    return column;
}
template <size_t N>
constexpr SETUPSHEET SheetOf(const SETUPCOLUMN (&columns)[N], int rows, SETUPSHEET rest)
{
    rest.columns = columns;
    rest.column_count = int(N);
    rest.rows = rows;
    return rest;
}
template <size_t M> constexpr SETUPSHEET SheetMore(SETUPSHEET sheet, const BT_TBL (&more)[M])
{
    sheet.more = more;
    sheet.more_count = int(M);
    return sheet;
}

// --- What follows from a sheet, at compile time ---

constexpr int SheetWords(const SETUPCOLUMN& c)
{
    int n = 0;
    while (c.words && c.words[n].wire)
        n++;
    return n;
}

constexpr bool IsSheetNumber(const SETUPCOLUMN& c)
{
    return c.min < c.max && !c.is_fixed;
}

// How many keys a column has.
constexpr int SheetKeys(const SETUPCOLUMN& c)
{
    if (c.is_fixed || IsSheetNumber(c) || (!c.words && !c.name))
        return 0;
    return c.words && !c.is_asked && !c.is_toggle && SheetWords(c) <= SHEET_RADIOS ? SheetWords(c)
                                                                                   : 1;
}

constexpr int SHEET_LIST_Y = 76;
constexpr int SHEET_COMMAND = 96;
#define SHEET_LOCAL "LOCAL@Setup@"
#define SHEET_CLEAR SHEET_LOCAL "Clear"
#define SHEET_EXECUTE SHEET_LOCAL "Execute"
#define SHEET_GROUP SHEET_LOCAL "Group"
enum : int { BTN_SHEET_GROUP = 38, BTN_SHEET_CLEAR = 53, BTN_SHEET_EXECUTE = 54 };

struct SheetText {
    char text[SHEET_COMMAND] = {};
    constexpr void Append(const char* more)
    {
        int n = 0;
        while (text[n])
            n++;
        for (; *more && n < SHEET_COMMAND - 1; more++)
            text[n++] = *more;
        text[n] = '\0';
    }
};
struct SheetTexts {
    SheetText key[BT_MAX];
    SheetText column[SHEET_COLUMNS]; // without a value
};
struct SheetKeyRows {
    BT_TBL row[BT_MAX + 1];
};
struct SheetBoxRows {
    NB_TBL row[SHEET_BOXES + 1];
};
struct SheetListRows {
    LS_TBL row[2];
};
struct SheetFields {
    SETUPFIELD field[SHEET_COLUMNS + 1];
    SETUPCHOICE choice[SHEET_COLUMNS];
    int choices = 0; // in use
};

constexpr SheetTexts MakeSheetTexts(const SETUPSHEET& s)
{
    SheetTexts texts;
    int key = 0;
    for (int i = 0; i < s.column_count; i++) {
        const SETUPCOLUMN& c = s.columns[i];
        texts.column[i].Append(SHEET_LOCAL);
        texts.column[i].Append(c.head);
        const int keys = SheetKeys(c);
        for (int n = 0; n < keys; n++, key++) {
            texts.key[key] = texts.column[i];
            if (keys > 1 || c.is_toggle) {
                texts.key[key].Append("#");
                texts.key[key].Append(c.is_toggle ? "true" : c.words[n].text);
            }
        }
    }
    return texts;
}

// The next free place for so many keys side by side; -1 when the two lines are full.
constexpr int SheetPlace(int& next, int keys, bool has_execute)
{
    constexpr int line1 = 33, line2 = 49, per_line = 6;
    if (next < line2 && next + keys > line1 + per_line)
        next = line2;
    const int last = line2 + per_line - (has_execute ? 2 : 0);
    if (next >= line2 && next + keys > last)
        return -1;
    const int place = next;
    next += keys;
    return place;
}

constexpr BT_TBL SheetKey(int id, int type, const char* caption, const char* group, const char* cmd)
{
    return Typed({.id = id, .caption = caption, .group = group, .cmd = {cmd}}, type);
}

constexpr SheetKeyRows MakeSheetKeys(const SETUPSHEET& s, const SheetTexts& texts)
{
    SheetKeyRows rows;
    int key = 0;
    int next = 33;
    for (int i = 0; i < s.column_count; i++) {
        const SETUPCOLUMN& c = s.columns[i];
        const int keys = SheetKeys(c);
        if (keys == 0)
            continue;
        if (c.start_line && next < 49)
            next = 49;
        int id = SheetPlace(next, keys, !s.is_direct);
        for (int n = 0; n < keys; n++, key++, id++) {
            const int type = keys > 1      ? int(BT_RADIO)
                             : c.is_toggle ? int(BT_TOGGLE)
                             : c.name      ? int(BT_JUMP_KEYBOARD)
                                           : int(BT_JUMP_POPUP);
            const char* const caption = keys > 1 ? c.words[n].text : c.caption ? c.caption : c.head;
            rows.row[key] =
                SheetKey(id, type, caption, keys > 1 ? c.head : c.group, texts.key[key].text);
        }
    }
    if (s.group)
        rows.row[key++] =
            SheetKey(BTN_SHEET_GROUP, BT_JUMP_POPUP, s.key_head, nullptr, SHEET_GROUP);
    for (int i = 0; i < s.more_count; i++)
        rows.row[key++] = s.more[i];
    if (!s.is_direct) {
        rows.row[key++] = SheetKey(BTN_SHEET_CLEAR, BT_ACTION, "Clear", nullptr, SHEET_CLEAR);
        rows.row[key++] = SheetKey(BTN_SHEET_EXECUTE, BT_ACTION, "Execute", nullptr, SHEET_EXECUTE);
    }
    rows.row[key].id = -1;
    return rows;
}

constexpr SheetBoxRows MakeSheetBoxes(const SETUPSHEET& s)
{
    constexpr const char* local[SHEET_BOXES] = {"Panel@Common@Knob0", "Panel@Common@Knob1",
                                                "Panel@Common@Knob2", "Panel@Common@Knob3",
                                                "Panel@Common@Knob4"};
    SheetBoxRows rows;
    int n = 0;
    for (int i = 0; i < s.column_count; i++) {
        const SETUPCOLUMN& c = s.columns[i];
        if (!IsSheetNumber(c) || n == SHEET_BOXES)
            continue;
        rows.row[n] = {.id = n + 1,
                       .caption = c.caption ? c.caption : c.head,
                       .type = NB_INT,
                       .min = double(c.min),
                       .max = double(c.max),
                       .cmd = local[n],
                       .scale = 4,
                       .zero = c.words ? c.words[0].text : nullptr};
        n++;
    }
    rows.row[n].id = -1;
    return rows;
}

constexpr SheetListRows MakeSheetList(const SETUPSHEET& s)
{
    constexpr int visible = 9;
    SheetListRows rows;
    LS_TBL& list = rows.row[0];
    list.id = 1;
    list.vn = visible;
    list.x = 100;
    list.y = SHEET_LIST_Y;
    list.sb_top = SHEET_LIST_Y;
    list.sb_bottom = SHEET_LIST_Y + LS_ROW_PX * (visible + 1);
    list.head[0] = s.key_head;
    list.width[0] = s.key_width;
    list.hn = 1;
    for (int i = 0; i < s.column_count; i++) {
        if (s.columns[i].width == 0)
            continue;
        list.head[list.hn] = s.columns[i].head;
        list.width[list.hn++] = s.columns[i].width;
    }
    list.group[0] = 1;
    list.group[1] = 999;
    list.view = 1; // where nothing can be changed
    for (int i = 0; i < s.column_count; i++)
        if (SheetKeys(s.columns[i]) > 0 || IsSheetNumber(s.columns[i]))
            list.view = 0;
    rows.row[1].id = -1;
    return rows;
}

template <const SETUPSHEET& s, int column> int SheetOffer(const char** texts, int max)
{
    return SetupSheet_Offer(s, column, texts, max);
}
using SheetOfferFunc = int (*)(const char** texts, int max);
template <const SETUPSHEET& s, int... column>
constexpr SheetOfferFunc SheetOfferOf(int wanted, std::integer_sequence<int, column...>)
{
    constexpr SheetOfferFunc offers[] = {SheetOffer<s, column>...};
    return offers[wanted];
}

template <const SETUPSHEET& s> constexpr SheetFields MakeSheetFields(const SheetTexts& texts)
{
    SheetFields f;
    int column = 1;
    int box = 1;
    for (int i = 0; i < s.column_count; i++) {
        const SETUPCOLUMN& c = s.columns[i];
        f.field[i] = {.offset = size_t(i + 1) * SHEET_TEXT,
                      .size = SHEET_TEXT,
                      .path = c.path,
                      .part = c.part,
                      .column = c.width ? column++ : -1,
                      .is_put = !c.is_fixed,
                      .ask = c.ask,
                      .is_reread = c.is_reread,
                      .words = c.words,
                      .from_wire = c.from_wire,
                      .to_wire = c.to_wire};
        const bool is_asked = SheetKeys(c) == 1 && !c.name && !c.is_toggle;
        if (IsSheetNumber(c))
            f.choice[f.choices++] = {.field = i, .box = box++};
        else if (c.is_toggle)
            f.choice[f.choices++] = {.cmd = texts.column[i].text,
                                     .field = i,
                                     .on = c.words[0].text,
                                     .off = c.words[1].text};
        else if (SheetKeys(c) > 1)
            f.choice[f.choices++] = {.cmd = texts.column[i].text, .field = i};
        else if (is_asked)
            f.choice[f.choices++] = {
                .cmd = texts.column[i].text,
                .field = i,
                .offer = SheetOfferOf<s>(i, std::make_integer_sequence<int, SHEET_COLUMNS>()),
                .is_swapped = c.is_swapped};
    }
    f.field[s.column_count] = {.size = SHEET_TEXT, .column = 0};
    return f;
}

// The keys lie side by side without a second one at a place; the list fills the width.
constexpr bool SheetIsSound(const SETUPSHEET& s, const SheetKeyRows& keys)
{
    constexpr int list_width = 550;
    int width = s.key_width;
    int boxes = 0;
    for (int i = 0; i < s.column_count; i++) {
        width += s.columns[i].width;
        boxes += IsSheetNumber(s.columns[i]);
    }
    for (int i = 0; keys.row[i].id > 0; i++)
        for (int k = 0; k < i; k++)
            if (keys.row[k].id == keys.row[i].id)
                return false;
    for (int i = 0; i < BT_MAX && keys.row[i].id != -1; i++)
        if (keys.row[i].id < 1 || keys.row[i].y2 < 1)
            return false; // no place was left for it
    if (s.group && (!s.is_direct || s.names))
        return false;
    return width == list_width && boxes <= SHEET_BOXES && s.rows > 0 && s.rows <= SHEET_ROWS &&
           s.column_count > 0 && s.column_count <= SHEET_COLUMNS;
}

// --- The objects of a sheet's page ---

template <const SETUPSHEET& s> inline constexpr int sheet_shown = s.group ? s.group : s.rows;
template <const SETUPSHEET& s>
inline char sheet_work[size_t(sheet_shown<s>) * size_t(s.column_count + 1) * SHEET_TEXT];
template <const SETUPSHEET& s>
inline char sheet_told[size_t(sheet_shown<s>) * size_t(s.column_count + 1) * SHEET_TEXT];
template <const SETUPSHEET& s> inline int sheet_rows = 0;
template <const SETUPSHEET& s> inline SETUPSTATE sheet_state;
template <const SETUPSHEET& s> inline constexpr SheetTexts sheet_texts = MakeSheetTexts(s);
template <const SETUPSHEET& s>
inline constexpr SheetKeyRows sheet_keys = MakeSheetKeys(s, sheet_texts<s>);
template <const SETUPSHEET& s> inline constexpr SheetBoxRows sheet_boxes = MakeSheetBoxes(s);
template <const SETUPSHEET& s> inline constexpr SheetListRows sheet_list = MakeSheetList(s);
template <const SETUPSHEET& s>
inline constexpr SheetFields sheet_fields = MakeSheetFields<s>(sheet_texts<s>);

template <const SETUPSHEET& s> int SheetRowKeys(const char** keys, int max)
{
    return SetupSheet_Keys(s, sheet_state<s>, keys, max);
}

template <const SETUPSHEET& s> void SheetChanged();

template <const SETUPSHEET& s>
inline constexpr SETUPTABLE SetupSheet_Table = {
    .work = sheet_work<s>,
    .tally = sheet_told<s>,
    .rows = &sheet_rows<s>,
    .state = &sheet_state<s>,
    .row_size = size_t(s.column_count + 1) * SHEET_TEXT,
    .max = sheet_shown<s>,
    .fields = sheet_fields<s>.field,
    .field_count = s.column_count + 1,
    .keys = SheetRowKeys<s>,
    .list = 1,
    .btn_clear = s.is_direct ? 0 : int(BTN_SHEET_CLEAR),
    .btn_execute = s.is_direct ? 0 : int(BTN_SHEET_EXECUTE),
    .clear = SHEET_CLEAR,
    .execute = SHEET_EXECUTE,
    .question = s.question,
    .choices = sheet_fields<s>.choice,
    .choice_count = sheet_fields<s>.choices,
    .is_sound = s.is_sound,
    .changed = SheetChanged<s>,
};

template <const SETUPSHEET& s> void SheetChanged()
{
    static_assert(SheetIsSound(s, sheet_keys<s>));
    SetupSheet_Changed(s, SetupSheet_Table<s>);
}

template <const SETUPSHEET& s> int SetupSheet_CreateOf(int on, uint32_t)
{
    return SetupSheet_Create(s, SetupSheet_Table<s>, on);
}
template <const SETUPSHEET& s> int SetupSheet_ProcOf(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    (void)SetupSheet_Proc(s, SetupSheet_Table<s>, msg, ax, bx);
    return 0;
}
// Page code for a sheet that needs none of its own.
template <const SETUPSHEET& s>
inline constexpr PC_TBL SetupSheet_Code = {.proc_func = SetupSheet_ProcOf<s>,
                                           .create_func = SetupSheet_CreateOf<s>};

// For the row of a page: SHEET_OBJECTS(sheet), Code(...).
#define SHEET_OBJECTS(s)                                                                           \
    Buttons(sheet_keys<s>.row), Boxes(sheet_boxes<s>.row), Lists(sheet_list<s>.row)
