#include "pc_setup_link.h"
#include "global.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include "pc_engsetup_swr.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>

#include "safeguards.h"

#define IBUS SETUP_LINK_PATH "Internal Bus Link@"
#define LOCAL_IBUS SETUP_LINK_LOCAL "Internal Bus Link@"
#define EXT_LINK "Engineering Setup@Panel@Config@External Bus Link@"

namespace
{
constexpr int KEYS = 8;
constexpr int BANKS = int(std::size(swr_banks));
constexpr char NONE[] = "None";

// A key that leads to the page on which its column is chosen.
struct Chooser {
    const char* cmd;
    int column;
    uint32_t page;
};
} // namespace

static struct {
    const SETUPTABLE* open = nullptr;   // of the page of links in view
    const SETUPTABLE* target = nullptr; // whose link in hand gets what a page beside it sets
    uint32_t back = 0;                  // the page of target
    int column = 0;                     // that is asked for
    char key[BANKS * KEYS][16] = {};    // names of the keys
} lk;

// --- What may be linked ---

static int add_none(const char** texts, int n, int max)
{
    if (n < max)
        texts[n++] = NONE;
    return n;
}

int SetupLink_Keys(int column, const char** texts, int max)
{
    if (column > LINK_LINKED)
        return -1;
    int n = 0;
    for (; n < BANKS * KEYS && n < max; n++) {
        PrintText(lk.key[n], "%s Key%d", swr_banks[n / KEYS], n % KEYS + 1);
        texts[n] = lk.key[n];
    }
    return add_none(texts, n, max);
}

int SetupLink_Banks(int column, const char** texts, int max)
{
    if (column > LINK_LINKED)
        return -1;
    const int n = std::min(BANKS, max);
    std::copy_n(swr_banks, n, texts);
    return add_none(texts, n, max);
}

// --- A page of links ---

static const char* cell(const SETUPTABLE& t, int row, int column)
{
    const char* const text = SetupPage_Text(t, row, column);
    return *text ? text : NONE;
}

static bool is_none(const char* text)
{
    return Same(text, NONE);
}

// Why a row makes no sense, null when it does.
static const char* fault_of(const SETUPTABLE& t, int row)
{
    const char* const master = cell(t, row, LINK_MASTER);
    const char* const linked = cell(t, row, LINK_LINKED);
    if (is_none(master) && is_none(linked))
        return nullptr;
    if (is_none(master) || is_none(linked))
        return "Link %d has no master or\nnothing that is linked.";
    if (Same(master, linked))
        return "Link %d leads to itself.";
    for (int other = 0; other < row; other++)
        if (Same(cell(t, other, LINK_LINKED), linked))
            return "What link %d links has another\nmaster already.";
    return nullptr;
}

bool SetupLink_IsSound()
{
    for (int row = 0; lk.open && row < *lk.open->rows; row++) {
        const char* const fault = fault_of(*lk.open, row);
        if (!fault)
            continue;
        char text[CMD_SIZE];
        PrintText(text, fault, row + 1);
        (void)PaneMessage_Create("Execute", PANE_ALERT, text);
        return false;
    }
    return true;
}

// There is something to delete.
void SetupLink_Changed()
{
    if (!lk.open)
        return;
    const int row = lk.open->state->cursor;
    const bool is_empty =
        is_none(cell(*lk.open, row, LINK_MASTER)) && is_none(cell(*lk.open, row, LINK_LINKED));
    (void)BT_SetDisable(BTN_LINK_DELETE, is_empty);
}

static void delete_links(const SETUPTABLE& t)
{
    for (int n = 0, row; (row = SetupPage_Selected(t, n)) >= 0; n++)
        for (int column : {LINK_MASTER, LINK_LINKED})
            if (!is_none(cell(t, row, column)))
                SetupPage_Set(t, row, column, NONE);
}

static constexpr Chooser choosers[] = {
    {SETUP_LINK_LOCAL "Master", LINK_MASTER, 0x73360005},
    {SETUP_LINK_LOCAL "Linked", LINK_LINKED, 0x73360005},
    {SETUP_LINK_LOCAL "Table", LINK_TABLE, 0x73360004},
    {SETUP_LINK_LOCAL "External Master", LINK_MASTER, 0x73210005},
    {SETUP_LINK_LOCAL "External Linked", LINK_LINKED, 0x73210005},
};

static int link_button(const SETUPTABLE& t, const char* cmd)
{
    if (Same(cmd, SETUP_LINK_LOCAL "Delete")) {
        delete_links(t);
        return 1;
    }
    for (const Chooser& c : choosers)
        if (Same(c.cmd, cmd)) {
            lk.target = &t;
            lk.back = GL_NowPage;
            lk.column = c.column;
            GL_CreatePage = c.page;
            return 1;
        }
    return 0;
}

int SetupLink_Proc(const SETUPSHEET& s, const SETUPTABLE& t, int msg, MsgArg ax, MsgArg bx)
{
    if (msg != LMSG_BTNSEL || !link_button(t, Text(ax)))
        (void)SetupSheet_Proc(s, t, msg, ax, bx);
    return 0;
}

int SetupLink_Create(const SETUPSHEET& s, const SETUPTABLE& t, int on)
{
    lk.open = on ? &t : nullptr;
    return SetupSheet_Create(s, t, on);
}

// The link in hand gets a text in a column, and its page is shown again.
static void set_and_return(int column, const char* text)
{
    if (!lk.target)
        return;
    SetupPage_Set(*lk.target, lk.target->state->cursor, column, text);
    GL_CreatePage = lk.back;
}

// --- The buses by their names: those of the switcher, and the destinations of the router ---

namespace
{
struct namerow {
    char key[8];
    char name[24];
};
template <int max> struct NameRows {
    namerow work[max] = {};
    namerow tally[max] = {};
    int rows = 0;
    SETUPSTATE state;
};
// They are followed all the time.
struct NameFields {
    SETUPFIELD field[2];
};
constexpr NameFields FieldsOf(const char* path)
{
    return {{{SETUP_CELL(namerow, name), .path = path, .part = 1, .column = 1, .is_put = 0,
              .ask = SETUP_READ},
             {SETUP_CELL(namerow, key), .column = 0}}};
}
template <int max> constexpr SETUPTABLE TableOf(NameRows<max>& names, const NameFields& fields)
{
    return {.work = names.work,
            .tally = names.tally,
            .rows = &names.rows,
            .state = &names.state,
            .row_size = sizeof(namerow),
            .max = max,
            .fields = fields.field,
            .field_count = int(std::size(fields.field)),
            .list = 1};
}
} // namespace

static NameRows<BUS_INT_MASTER> internal_names;
static NameRows<BUS_EXT_MASTER> external_names;
static NameRows<BUS_SBUS> destination_names;
static constexpr NameFields internal_fields = FieldsOf(IBUS "Master Bus List");
static constexpr NameFields external_fields = FieldsOf(EXT_LINK "Master Bus List");
static constexpr NameFields destination_fields = FieldsOf(EXT_LINK "S-BUS Dst Name List");
static constexpr SETUPTABLE internal_page = TableOf(internal_names, internal_fields);
static constexpr SETUPTABLE external_page = TableOf(external_names, external_fields);
static constexpr SETUPTABLE destination_page = TableOf(destination_names, destination_fields);

static const SETUPTABLE* name_page = &internal_page; // the one in view

static int bussel_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg == LMSG_BTNSEL && Same(Text(ax), LOCAL_IBUS "Bus Sel@Set"))
        set_and_return(lk.column, SetupPage_Text(*name_page, name_page->state->cursor, 0));
    else if (msg == LMSG_BTNSEL && Same(Text(ax), LOCAL_IBUS "Bus Sel@None"))
        set_and_return(lk.column, NONE);
    else
        (void)SetupPage_Proc(*name_page, msg, ax, bx);
    return 0;
}

// Without a link in hand there is nothing to set.
static void enable_set(int first, int last)
{
    for (int id = first; id <= last; id++)
        (void)BT_SetDisable(id, !lk.target);
}

static void open_names(const SETUPTABLE& page)
{
    name_page = &page;
    SetupPage_Open(page);
    enable_set(33, 34);
    constexpr uint32_t gpi_link = 0x73360006; // has one bus
    (void)BT_SetCaption(33, lk.back == gpi_link        ? "Set\nBus"
                            : lk.column == LINK_LINKED ? "Set\nLinked"
                                                       : "Set\nMaster");
}

static int pc_engsetup_switcher_bussel_create(int on, uint32_t)
{
    on ? open_names(internal_page) : SetupPage_Close(*name_page);
    return !on;
}
const PC_TBL pc_engsetup_switcher_link_ibuslink_bussel = {
    .proc_func = bussel_proc, .create_func = pc_engsetup_switcher_bussel_create};

static int pc_engsetup_panel_linkbusadj_create(int on, uint32_t)
{
    if (on)
        open_names(lk.column == LINK_LINKED ? destination_page : external_page);
    else
        SetupPage_Close(*name_page);
    return !on;
}
const PC_TBL pc_engsetup_panel_linkbusadj = {.proc_func = bussel_proc,
                                             .create_func = pc_engsetup_panel_linkbusadj_create};

// --- The tables: a source of the master, down, and what the linked bus takes by each table ---

namespace
{
using TableRows = SwrRows<LINK_SOURCES>;
struct TableFields {
    SETUPFIELD field[LINK_TABLES + 1];
};
static_assert(LINK_TABLES <= SWR_CELLS);
constexpr TableFields TablesOf(const char* path)
{
    TableFields fields;
    for (int i = 0; i < LINK_TABLES; i++)
        fields.field[i] = SwrField(i, path, {.part = i + 1});
    fields.field[LINK_TABLES] = SWR_KEY;
    return fields;
}
} // namespace

static TableRows internal_tables;
static TableRows external_tables;
static TableRows* tables = &internal_tables; // those in view

static int table_sources(const char** keys, int max)
{
    static char numbers[LINK_SOURCES][4];
    const int n = std::min(LINK_SOURCES, max);
    for (int i = 0; i < n; i++) {
        PrintText(numbers[i], "%d", i + 1);
        keys[i] = numbers[i];
    }
    return n;
}

// The table whose column is selected, from 0.
static int current_table()
{
    return std::clamp(LS_GetSplitSel(1) - 1, 0, LINK_TABLES - 1);
}

static void table_changed()
{
    const int row = tables->state.cursor;
    if (row < tables->rows)
        (void)NB_SetVar(1, Decimal(tables->work[row].cell[current_table()]));
}

static constexpr SETUPTABLE TablePage(TableRows& rows, const TableFields& fields)
{
    return {.work = rows.work,
            .tally = rows.tally,
            .rows = &rows.rows,
            .state = &rows.state,
            .row_size = sizeof(swr_row),
            .max = LINK_SOURCES,
            .fields = fields.field,
            .field_count = int(std::size(fields.field)),
            .keys = table_sources,
            .list = 1,
            .btn_clear = BTN_SHEET_CLEAR,
            .btn_execute = BTN_SHEET_EXECUTE,
            .clear = LOCAL_SWR "Clear",
            .execute = LOCAL_SWR "Execute",
            .changed = table_changed};
}
static constexpr TableFields internal_table_fields = TablesOf(IBUS "Table");
static constexpr TableFields external_table_fields = TablesOf(EXT_LINK "Table");
static constexpr SETUPTABLE internal_table_page = TablePage(internal_tables, internal_table_fields);
static constexpr SETUPTABLE external_table_page = TablePage(external_tables, external_table_fields);

static const SETUPTABLE& table_page()
{
    return tables == &internal_tables ? internal_table_page : external_table_page;
}

static void straighten_table()
{
    for (int row = 0; row < tables->rows; row++)
        SetupPage_Set(table_page(), row, current_table(), tables->work[row].key);
}

static int table_button(const char* cmd)
{
    if (Same(cmd, LOCAL_IBUS "Table Sel@Straight"))
        straighten_table();
    else if (Same(cmd, LOCAL_IBUS "Table Sel@Set"))
        set_and_return(LINK_TABLE, NumStr(current_table() + 1));
    else
        return 0;
    return 1;
}

static int tablesel_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg == LMSG_BTNSEL && table_button(Text(ax)))
        return 0;
    if (msg == LMSG_KNOBVAR)
        SetupPage_Set(table_page(), tables->state.cursor, current_table(), NumStr(int(bx)));
    else if (!SetupPage_Proc(table_page(), msg, ax, bx) && msg == LMSG_BTNSEL)
        table_changed(); // the key that brings the box
    return 0;
}

static int create_tables(int on, TableRows& rows)
{
    if (on)
        tables = &rows;
    on ? SetupPage_Open(table_page()) : SetupPage_Close(table_page());
    if (on)
        (void)LS_SetSplitSel(1, 1);
    return !on;
}

static int pc_engsetup_switcher_tablesel_create(int on, uint32_t)
{
    const int result = create_tables(on, internal_tables);
    if (on)
        enable_set(35, 35);
    return result;
}
const PC_TBL pc_engsetup_switcher_link_ibuslink_tablesel = {
    .proc_func = tablesel_proc, .create_func = pc_engsetup_switcher_tablesel_create};

static int pc_engsetup_panel_linktableadj_create(int on, uint32_t)
{
    return create_tables(on, external_tables);
}
const PC_TBL pc_engsetup_panel_linktableadj = {
    .proc_func = tablesel_proc, .create_func = pc_engsetup_panel_linktableadj_create};

void SetupLink_Reset()
{
    for (const SETUPTABLE* page : {&internal_page, &external_page, &destination_page,
                                   &internal_table_page, &external_table_page})
        SetupPage_Forget(*page);
    lk = {};
}
