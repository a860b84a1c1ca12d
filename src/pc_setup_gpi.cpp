#include "pc_setup_gpi.h"
#include "command.h"
#include "message.h"
#include "netio.h"
#include "tally_value.h"
#include "text.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

#define KEY_CONFIG "Engineering Setup@Switcher@Config@Key Config"

static constexpr const char* banks[] = {"P/P", "M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5"};
static constexpr int KEYS = 8;
static constexpr int BUS_ROWS = 4;
static constexpr int KEY_ROW_3 = 4; // number of the row that key 3 shares
// Key rows of a bank, numbered from 1; what shares the third with key 3 depends on the keys.
static constexpr const char* bus_rows[BUS_ROWS] = {"Bkgd", "Key1", "Key2", nullptr};

static constexpr const char* regions[] = {
    "M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5", "P/P",   "User1", "User2",
    "User3", "User4", "User5", "User6", "User7", "User8", "DME1",  "DME2",
    "DME3",  "DME4",  "DME5",  "DME6",  "DME7",  "DME8",  "P-Bus", "Master",
};

static constexpr int TARGETS = int(std::size(banks)) * KEYS;

static struct {
    const SETUPSHEET* sheet = nullptr; // while the page is open
    const SETUPTABLE* table = nullptr;
    bool has_preview[std::size(banks)] = {}; // key 3 shares its row with the key preview
    char name[TARGETS][SHEET_TEXT] = {};     // the targets that are offered
} gp;

static int action_column()
{
    return gp.sheet->column_count - GPI_ACTION_COLUMNS;
}

void SetupGpi_FromHex(const char* value, const char*, char* text, size_t size)
{
    ktr_strncpy(text, NumStr(int(NumberIn(value, 0, 255, 0))), size);
}

void SetupGpi_ToHex(const char* text, char* value, size_t size)
{
    char hex[8];
    PrintText(hex, "0x%02X", unsigned(NumberIn(text, 0, 255)));
    ktr_strncpy(value, hex, size);
}

// --- Actions and where they are done ---

static int action_of(const char* name)
{
    for (size_t i = 0; i < std::size(gpi_action_rows); i++)
        if (Same(gpi_action_rows[i].word.text, name))
            return int(i);
    return 0;
}

static int where_of(const char* action)
{
    return gpi_action_rows[action_of(action)].where;
}

static const char* bus_row(int number, bool has_preview)
{
    return number == KEY_ROW_3 ? has_preview ? "Key3 Key PVW" : "Key3 Key4" : bus_rows[number - 1];
}

// The name of a target, as the list shows it; nothing for one that is none.
static void name_target(int where, int bank, int number, char (&name)[SHEET_TEXT])
{
    name[0] = '\0';
    if (bank < 0 || bank >= int(std::size(banks)))
        return;
    if (where == GPI_BANK)
        CopyText(name, banks[bank]);
    else if (where == GPI_BUS && number >= 1 && number <= BUS_ROWS)
        PrintText(name, "%s %s", banks[bank], bus_row(number, gp.has_preview[bank]));
    else if (where == GPI_KEY && number >= 1 && number <= KEYS)
        PrintText(name, "%s Key%d", banks[bank], number);
}

static int numbers_of(int where)
{
    return where == GPI_BUS ? BUS_ROWS : where == GPI_KEY ? KEYS : 1;
}

// The name of a row that is shared, while it was shared with the other.
static bool is_former_name(int where, int bank, int number, const char* text)
{
    char name[SHEET_TEXT];
    if (where != GPI_BUS)
        return false;
    PrintText(name, "%s %s", banks[bank], bus_row(number, !gp.has_preview[bank]));
    return Same(name, text);
}

// Bank and number of a target's name; the first for one that is none.
static void find_target(int where, const char* text, int* bank, int* number)
{
    char name[SHEET_TEXT];
    for (*number = 1; *number <= numbers_of(where); ++*number)
        for (*bank = 0; *bank < int(std::size(banks)); ++*bank) {
            name_target(where, *bank, *number, name);
            if (Same(name, text) || is_former_name(where, *bank, *number, text))
                return;
        }
    *bank = 0;
    *number = 1;
}

static int targets_of(int where, const char** texts, int max)
{
    int n = 0;
    if (where == GPI_REGION)
        for (const char* region : regions)
            if (n < max)
                texts[n++] = region;
    if (where == GPI_BANK || where == GPI_BUS || where == GPI_KEY)
        for (int bank = 0; bank < int(std::size(banks)); bank++)
            for (int number = 1; number <= numbers_of(where) && n < max; number++, n++) {
                name_target(where, bank, number, gp.name[n]);
                texts[n] = gp.name[n];
            }
    return n;
}

int SetupGpi_Offer(int column, const char** texts, int max)
{
    if (!gp.sheet || column != action_column() + 1)
        return -1;
    return targets_of(where_of(SetupSheet_Now(*gp.table, action_column())), texts, max);
}

// An action that is done nowhere has no target to choose.
void SetupGpi_Changed()
{
    if (!gp.sheet)
        return;
    const int where = where_of(SetupSheet_Now(*gp.table, action_column()));
    (void)BT_SetDisable(BTN_GPI_TARGET, where == GPI_NOWHERE);
}

// --- What the server tells ---

// The other path, which is empty, says nothing.
static bool is_told_elsewhere(int row, int code, bool is_region)
{
    const int told = action_of(SetupPage_Told(*gp.table, row, action_column()));
    return code == 0 && told != 0 && (gpi_action_rows[told].where == GPI_REGION) != is_region;
}

static void take_action(int row, const char* value, bool is_region)
{
    Parts p;
    const int n = SplitValue(p, value, 4);
    const int code = n == 4 ? Index(p.v[0], int(std::size(gpi_action_rows))) : -1;
    if (code < 0 || is_told_elsewhere(row, code, is_region))
        return;
    const auto& action = gpi_action_rows[code];
    char target[SHEET_TEXT] = "";
    if (action.where == GPI_REGION)
        CopyText(target, p.v[1]);
    else
        name_target(action.where, Decimal(p.v[1]), Decimal(p.v[3]), target);
    const int first = action_column();
    SetupPage_Take(*gp.table, row, first, action.word.text);
    SetupPage_Take(*gp.table, row, first + 1, target);
    SetupPage_Take(*gp.table, row, first + 2, action.has_register ? NumStr(Decimal(p.v[2])) : "");
}

// What a text of a row's target is called now.
static void rename_target(const char* action, const char* text, char (&name)[SHEET_TEXT])
{
    const int where = where_of(action);
    CopyText(name, text);
    if (where != GPI_BUS || !*text)
        return;
    int bank = 0;
    int number = 0;
    find_target(where, text, &bank, &number);
    name_target(where, bank, number, name);
}

static void rename_targets()
{
    char name[SHEET_TEXT];
    const SETUPTABLE& t = *gp.table;
    const int action = action_column(), target = action + 1;
    bool is_other = false;
    for (int row = 0; row < gp.sheet->rows; row++) {
        rename_target(SetupPage_Told(t, row, action), SetupPage_Told(t, row, target), name);
        if (!Same(name, SetupPage_Told(t, row, target))) {
            SetupPage_Take(t, row, target, name);
            is_other = true;
        }
        rename_target(SetupPage_Text(t, row, action), SetupPage_Text(t, row, target), name);
        if (!Same(name, SetupPage_Text(t, row, target)))
            SetupPage_Set(t, row, target, name);
    }
    if (is_other)
        SetupPage_Show(t);
}

// A line a bank: "M/E-1,Key3 Key PVW".
static void show_key_config(const char* value)
{
    Parts p;
    if (SplitValue(p, value, 2) < 2)
        return;
    for (size_t i = 0; i < std::size(banks); i++)
        if (Same(p.v[0], banks[i]))
            gp.has_preview[i] = BeginsWith(p.v[1], "Key3 Key PVW");
    rename_targets();
}

// The port of "PAGE@Action Type@3@1" or "PAGE@Action Type Region@3@1", from 0; -1 for other paths.
static int port_of_path(const char* path, bool* is_region)
{
    char head[CMD_SIZE];
    DecodeCommand(head, "~@Action Type", CMD_SIZE);
    if (!BeginsWith(path, head))
        return -1;
    path += strlen(head);
    *is_region = BeginsWith(path, " Region@");
    if (*is_region)
        path += strlen(" Region");
    const char* const second = *path == '@' ? strchr(path + 1, '@') : nullptr;
    return second && Same(second, "@1") ? IndexFrom1(path + 1, gp.sheet->rows) : -1;
}

static int tally(const char* path, const char* value)
{
    bool is_region = false;
    if (Same(path, KEY_CONFIG)) {
        show_key_config(value);
        return 1;
    }
    const int port = port_of_path(path, &is_region);
    if (port < 0)
        return 0;
    take_action(port, value, is_region);
    SetupPage_Show(*gp.table);
    return 1;
}

// --- What goes to it ---

static bool is_action_changed(int row)
{
    for (int i = 0; i < GPI_ACTION_COLUMNS; i++)
        if (!Same(SetupPage_Text(*gp.table, row, action_column() + i),
                  SetupPage_Told(*gp.table, row, action_column() + i)))
            return true;
    return false;
}

static void put_action(int row)
{
    const int first = action_column();
    const char* const name = SetupPage_Text(*gp.table, row, first);
    const char* const target = SetupPage_Text(*gp.table, row, first + 1);
    const int code = action_of(name);
    const auto& action = gpi_action_rows[code];
    const int reg = action.has_register ? Decimal(SetupPage_Text(*gp.table, row, first + 2)) : 0;
    char path[CMD_SIZE];
    char page[CMD_SIZE];
    DecodeCommand(page, "~", CMD_SIZE);
    if (action.where == GPI_REGION) {
        PrintText(path, "%.500s@Action Type Region@%d@%d", page, row + 1, 1);
        Net_SendCommandFormat("put %s#%d,%s,%d,%d", path, code, target, reg, 0);
        return;
    }
    int bank = 0;
    int number = 0;
    if (action.where != GPI_NOWHERE)
        find_target(action.where, target, &bank, &number);
    PrintText(path, "%.500s@Action Type@%d@%d", page, row + 1, 1);
    Net_SendCommandFormat("put %s#%d,%d,%d,%d", path, code, bank, reg, number);
}

static void put_actions()
{
    for (int row = 0; row < gp.sheet->rows; row++)
        if (is_action_changed(row))
            put_action(row);
}

static void test_fire()
{
    char page[CMD_SIZE];
    DecodeCommand(page, "~", CMD_SIZE);
    for (int n = 0, row; (row = SetupPage_Selected(*gp.table, n)) >= 0; n++)
        Net_SendCommandFormat("put %s@Test Fire@%d#", page, row + 1);
}

// --- What a choice means to the rest of the row ---

// A new kind of action has the first target of its kind and the first register.
static void complete_row(int row)
{
    const int first = action_column();
    const SETUPTABLE& t = *gp.table;
    const auto& action = gpi_action_rows[action_of(SetupPage_Text(t, row, first))];
    const char* targets[SETUP_OFFER];
    const int n = targets_of(action.where, targets, SETUP_OFFER);
    const char* const target = SetupPage_Text(t, row, first + 1);
    bool is_one = n == 0 && !*target;
    for (int i = 0; i < n; i++)
        is_one |= Same(targets[i], target);
    if (!is_one)
        SetupPage_Set(t, row, first + 1, n > 0 ? targets[0] : "");
    const char* const reg = SetupPage_Text(t, row, first + 2);
    if ((action.has_register != 0) != (*reg != '\0'))
        SetupPage_Set(t, row, first + 2, action.has_register ? "1" : "");
}

static void complete_rows()
{
    for (int row = 0; row < gp.sheet->rows; row++)
        if (is_action_changed(row))
            complete_row(row);
}

int SetupGpi_Create(const SETUPSHEET& s, const SETUPTABLE& t, int on)
{
    if (on) {
        for (bool& has : gp.has_preview)
            has = false;
        gp.sheet = &s;
        gp.table = &t;
        Net_SendCommand("add " KEY_CONFIG);
    } else if (gp.sheet) {
        Net_SendCommand("remove " KEY_CONFIG);
    }
    const int result = SetupSheet_Create(s, t, on);
    if (!on)
        gp.sheet = nullptr;
    return result;
}

int SetupGpi_Proc(const SETUPSHEET& s, const SETUPTABLE& t, int msg, MsgArg ax, MsgArg bx)
{
    if (!gp.sheet)
        return 0;
    if (msg == MSG_TALLY && tally(Text(ax), Text(bx)))
        return 0;
    if (msg == LMSG_BTNSEL && Same(Text(ax), GPI_TEST_FIRE))
        test_fire();
    else if (msg == LMSG_BTNSEL && Same(Text(ax), SHEET_EXECUTE))
        put_actions();
    if (SetupSheet_Proc(s, t, msg, ax, bx) && msg != MSG_TALLY)
        complete_rows();
    return 0;
}
