// The reports of the units. A report names a unit and goes on with one field for each board, fan,
// power supply... of a group: "PNL1,OK,NG(Min)". The items of a unit stand in runs, one for each
// kind of thing that is watched; how long the runs are depends on the class, what is said about an
// item and under which code depends on the run.
#include "bus.h"
#include "command.h"
#include "global.h"
#include "log.h"
#include "message.h"
#include "netio.h"
#include "selfdiag.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <iterator>

#include "safeguards.h"

namespace
{
enum RUN : int {
    RUN_TEMPERATURE,
    RUN_FAN,
    RUN_BOARD,
    RUN_FUSE,
    RUN_PSU_EXIST,
    RUN_PSU_AC,
    RUN_PSU_DC,
    RUN_PSU_FAN,
    RUN_REFERENCE,
    RUN_REFERENCE_EXIST,
    RUN_BOARD_STATUS,
    RUNS,
    NO_RUN = RUNS,
};

struct UnitKind {
    DIAG_CLASS unit_class = DIAG_CLASSES;
    const char* code = "";
    int first_word = -1;  // in GL_CircuitBoard, GL_Fan, GL_PSU; -1: not kept there
    int count[RUNS] = {}; // items
    int items = 0;        // of a unit
};
//                                                        temp fan brd fuse psu: ex ac dc fan ref:
//                                                        ok ex status
constexpr UnitKind panel_kind{DIAG_PANEL, "SIU", -1, {2, 4, 6, 1, 2, 2, 2, 2, 1, 1, 3}, 26};
constexpr UnitKind dcu_kind{DIAG_DCU, "SIU", -1, {2, 4, 6, 1, 2, 2, 2, 2, 1, 1, 3}, 26};
constexpr UnitKind switcher_kind{
    DIAG_SWITCHER, "SWR", 0, {31, 25, 31, 1, 4, 4, 4, 4, 1, 1, 31}, SELFDIAG_ITEMS};
constexpr UnitKind dme_kind{DIAG_DME, "DME", 4, {4, 8, 8, 1, 2, 2, 2, 2, 1, 1, 9}, 40};

enum NAMING { NAME_NONE, NAME_BOARD, NAME_SLOT, NAME_FAN, NAME_PSU };
enum READING { READ_STATE, READ_HOURS };

// In the texts "%s" stands for the name of the item; in the code its blanks are left out.
struct Group {
    const char* group = ""; // last part of the path
    RUN run = NO_RUN;
    NAMING naming = NAME_NONE;
    const char* ok = "";
    const char* error = "";
    const char* code = "";        // behind the code of the class
    const char* absent = nullptr; // an item may be missing, which is no error
    int field = 0;                // of the first item
    int stride = 1;               // fields of an item
    RUN behind = NO_RUN;          // the fields of this run stand before
    READING reading = READ_STATE;
};
constexpr int PSU_FIELDS = 4;
// clang-format off
constexpr Group groups[] = {
    {.group = "Board Temperature", .run = RUN_TEMPERATURE, .naming = NAME_BOARD,
     .ok = "%s Temperature OK", .error = "%s Temperature Error", .code = "BOARDTEMP-%s"},
    {.group = "Fan Speed", .run = RUN_FAN, .naming = NAME_FAN,
     .ok = "%s Speed OK", .error = "%s Control Function Error", .code = "FANSPEED-%s"},
    {.group = "FAN Operation Hours", .run = RUN_FAN, .naming = NAME_FAN, .reading = READ_HOURS},
    {.group = "PSU Operation Hours", .run = RUN_PSU_EXIST, .naming = NAME_PSU, .reading = READ_HOURS},
    {.group = "Circuit Board Function", .run = RUN_BOARD, .naming = NAME_SLOT,
     .ok = "%s Board OK", .error = "%s Board Error", .code = "BOARDFUNC-%s"},
    {.group = "Circuit Board Function", .run = RUN_FUSE,
     .ok = "Fuse OK", .error = "Fuse Error", .code = "FUSE", .behind = RUN_BOARD},
    {.group = "PSU Status", .run = RUN_PSU_EXIST, .naming = NAME_PSU,
     .ok = "%s Exist", .error = "%s Error", .code = "PSUEXIST-%s", .absent = "%s Not Exist", .field = 0, .stride = PSU_FIELDS},
    {.group = "PSU Status", .run = RUN_PSU_AC, .naming = NAME_PSU,
     .ok = "%s AC OK", .error = "%s AC Error", .code = "PSUAC-%s", .field = 1, .stride = PSU_FIELDS},
    {.group = "PSU Status", .run = RUN_PSU_DC, .naming = NAME_PSU,
     .ok = "%s DC OK", .error = "%s DC Error", .code = "PSUDC-%s", .field = 2, .stride = PSU_FIELDS},
    {.group = "PSU Status", .run = RUN_PSU_FAN, .naming = NAME_PSU,
     .ok = "%s FAN OK", .error = "%s FAN Error", .code = "PSUFAN-%s", .field = 3, .stride = PSU_FIELDS},
    {.group = "Reference Status", .run = RUN_REFERENCE,
     .ok = "Reference OK", .error = "Reference Error", .code = "REFSTATUS", .field = 0},
    {.group = "Reference Status", .run = RUN_REFERENCE_EXIST,
     .ok = "Reference Exist", .error = "No Reference", .code = "REFEXIST", .field = 1},
    {.group = "Board Status", .run = RUN_BOARD_STATUS, .naming = NAME_BOARD,
     .ok = "%s Status OK", .error = "%s Status Error", .code = "BOARDSTATUS-%s"},
};
// clang-format on

// The words of a report. What is none of them changes nothing.
struct Word {
    const char* word = "";
    int status = SELFDIAG_UNKNOWN;
    const char* variant = ""; // behind the text of the error
};
constexpr Word words[] = {
    {"OK", SELFDIAG_OK},
    {"Exist", SELFDIAG_OK},
    {"NG", SELFDIAG_ERROR},
    {"NG(Min)", SELFDIAG_ERROR + 1, " (Min)"},
    {"NG(Max)", SELFDIAG_ERROR + 2, " (Max)"},
    {"None", SELFDIAG_ABSENT},
};

// The names that stand on the hardware, by model of the panel.
struct PanelNames {
    DEVTYPE types = DEVTYPE_UNKNOWN; // bits
    const char* psu[2] = {};
    const char* fan[4] = {};
};
constexpr PanelNames panel_names[] = {
    {DEVTYPE_QRD11B, {"PowerA", "PowerB"}, {"FAN", "FAN-2"}},
    {DEVTYPE_QRD11 | DEVTYPE_QRD11A, {"PowerA", "PowerB"}, {"FAN"}},
    {DEVTYPE_QRD21 | DEVTYPE_QRD22 | DEVTYPE_QRD21A | DEVTYPE_QRD22A,
     {"PowerA", "PowerB"},
     {"FAN-1", "FAN-2"}},
    {DEVTYPE_QRD31 | DEVTYPE_QRD32 | DEVTYPE_QRD33,
     {"PowerA", "PowerB"},
     {"FAN-1", "FAN-2", "FAN-3", "FAN-4"}},
};
constexpr const char* panel_boards[] = {"CPU Board", "I/F Board", "Key Board"};
constexpr const char* psu_names[DIAG_PSUS] = {"PowerA", "PowerB", "PowerC", "PowerD"};

constexpr int NAME_SIZE = 24;
constexpr int FIELDS = 96; // the unit's name, and the longest group has 32

constexpr int FirstItem(const UnitKind& kind, RUN run)
{
    int first = 0;
    for (int r = 0; r < run; r++)
        first += kind.count[r];
    return first;
}
static_assert(FirstItem(panel_kind, RUNS) == panel_kind.items);
static_assert(FirstItem(dcu_kind, RUNS) == dcu_kind.items);
static_assert(FirstItem(switcher_kind, RUNS) <= switcher_kind.items);
static_assert(FirstItem(dme_kind, RUNS) == dme_kind.items);
static_assert(switcher_kind.count[RUN_BOARD] == DIAG_BOARDS &&
              switcher_kind.count[RUN_TEMPERATURE] == DIAG_BOARDS &&
              switcher_kind.count[RUN_BOARD_STATUS] == DIAG_BOARDS && // no other has more
              switcher_kind.count[RUN_FAN] == DIAG_FANS &&
              switcher_kind.count[RUN_PSU_EXIST] == DIAG_PSUS);

// The unit that a report is from.
struct Reporter {
    const UnitKind* kind = nullptr;
    DiagUnit unit;
    DEVTYPE type = DEVTYPE_UNKNOWN;
    int word_row = -1; // in GL_CircuitBoard, GL_Fan, GL_PSU
};
} // namespace

static bool find_unit(const UnitKind& kind, const char* name, Reporter* reporter)
{
    DiagUnit unit;
    for (int n = 0; SelfDiag_Unit(kind.unit_class, n, &unit); n++) {
        if (!Same(unit.name, name))
            continue;
        const DEVICE* const device = Device_ByName(name); // null for a DCU
        const int number = device ? Device_UnitNumber(*device) : 0;
        const bool has_words = kind.first_word >= 0 && number >= 1 && number <= DIAG_UNITS / 2;
        *reporter = {&kind, unit, device ? device->type : DEVTYPE_UNKNOWN,
                     has_words ? kind.first_word + number - 1 : -1};
        return true;
    }
    return false;
}

// --- Names ---

static const PanelNames& names_of_panel(DEVTYPE type)
{
    for (const PanelNames& names : panel_names)
        if (names.types & type)
            return names;
    return panel_names[std::size(panel_names) - 1]; // the model has not been told: the most
}

static bool is_panel(const Reporter& r)
{
    return r.kind->unit_class == DIAG_PANEL || r.kind->unit_class == DIAG_DCU;
}

// A board is called by its id where the unit has told it.
static void name_board(const Reporter& r, int i, char (&name)[NAME_SIZE])
{
    const char* const id = r.word_row >= 0 ? GL_CircuitBoard[r.word_row][i] : "NG";
    if (is_panel(r))
        CopyText(name, panel_boards[i]);
    else if (Same(id, "NG"))
        PrintText(name, "Slot %d", i + 1);
    else
        CopyText(name, id);
}

// False when the model has no such item.
static bool name_item(const Reporter& r, NAMING naming, int i, char (&name)[NAME_SIZE])
{
    const char* fixed = nullptr;
    switch (naming) {
    case NAME_NONE: fixed = ""; break;
    case NAME_BOARD: name_board(r, i, name); return true;
    case NAME_SLOT: PrintText(name, "Slot %d", i + 1); return true;
    case NAME_FAN:
        if (!is_panel(r)) {
            PrintText(name, "FAN-%d", i + 1);
            return true;
        }
        fixed = names_of_panel(r.type).fan[i];
        break;
    case NAME_PSU: fixed = is_panel(r) ? names_of_panel(r.type).psu[i] : psu_names[i]; break;
    }
    if (fixed)
        CopyText(name, fixed);
    return fixed != nullptr;
}

// The text with the name in place of its "%s".
template <size_t N> static void insert_name(char (&text)[N], const char* pattern, const char* name)
{
    const char* const mark = strstr(pattern, "%s");
    if (!mark)
        return AppendText(text, pattern);
    char head[64] = "";
    strncpy_secu(head, pattern, sizeof head, size_t(mark - pattern));
    AppendText(text, head);
    AppendText(text, name);
    AppendText(text, mark + 2);
}

static void drop_blanks(char* text)
{
    char* const end = std::remove(text, text + strlen(text), ' ');
    *end = '\0';
}

// --- States ---

static bool take_state(const Reporter& r, const Group& g, int item, const char* name,
                       const Word& word)
{
    const bool is_absent = word.status == SELFDIAG_ABSENT;
    const int status = is_absent && !g.absent ? SELFDIAG_ERROR : word.status;
    char message[64] = "", code[64] = "", code_name[NAME_SIZE];
    insert_name(message,
                status >= SELFDIAG_ERROR    ? g.error
                : status == SELFDIAG_ABSENT ? g.absent
                                            : g.ok,
                name);
    AppendText(message, word.variant);
    CopyText(code_name, name);
    drop_blanks(code_name);
    PrintText(code, "%s-", r.kind->code);
    insert_name(code, g.code, code_name);
    return SelfDiag_Take(r.unit, item, status, message, code);
}

static bool take_field(const Reporter& r, const Group& g, int i, const char* field)
{
    const int item = FirstItem(*r.kind, g.run) + i;
    char name[NAME_SIZE];
    if (!name_item(r, g.naming, i, name))
        return false;
    if (g.reading == READ_HOURS) {
        SELFDIAG& it = r.unit.item[item];
        const int hours = *field ? int(NumberIn(field, 0, INT_MAX)) : it.value;
        if (hours != it.value)
            GL_RedrawMenu9991 = 1;
        it.value = hours;
        return false;
    }
    for (const Word& word : words)
        if (Same(field, word.word))
            return take_state(r, g, item, name, word);
    return false; // not told
}

static bool take_group(const Reporter& r, const Group& g, char* const* field, int fields)
{
    bool has_changed = false;
    const int first = g.field + (g.behind == NO_RUN ? 0 : r.kind->count[g.behind]);
    for (int i = 0; i < r.kind->count[g.run]; i++) {
        const int at = first + i * g.stride;
        if (at < fields)
            has_changed |= take_field(r, g, i, field[at]);
    }
    return has_changed;
}

// --- Words for the maintenance pages ---

static void keep_fan_words(const Reporter& r, char* const* field, int fields)
{
    const int count = std::min(fields, r.kind->count[RUN_FAN]);
    for (int i = 0; i < count; i++)
        CopyText(GL_Fan[r.word_row][i], field[i]);
    GL_FanTold[r.word_row] = count;
}

static void keep_psu_words(const Reporter& r, char* const* field, int fields)
{
    for (int i = 0; i < r.kind->count[RUN_PSU_EXIST]; i++) {
        bool is_ok = (i + 1) * PSU_FIELDS <= fields;
        for (int f = i * PSU_FIELDS; is_ok && f < (i + 1) * PSU_FIELDS; f++)
            is_ok = Same(field[f], "OK") || Same(field[f], "Exist");
        CopyText(GL_PSU[r.word_row][i], is_ok ? "OK" : "NG");
    }
    GL_PSUTold[r.word_row] = std::min(fields / PSU_FIELDS, r.kind->count[RUN_PSU_EXIST]);
}

static void keep_words(const Reporter& r, const char* group, char* const* field, int fields)
{
    if (r.word_row < 0)
        return;
    if (Same(group, "Fan Speed"))
        keep_fan_words(r, field, fields);
    else if (Same(group, "PSU Status"))
        keep_psu_words(r, field, fields);
}

static void forget_words(const UnitKind& kind)
{
    if (kind.first_word < 0)
        return;
    for (int u = kind.first_word; u < kind.first_word + DIAG_UNITS / 2; u++) {
        GL_FanTold[u] = GL_PSUTold[u] = 0;
        for (auto& word : GL_Fan[u])
            CopyText(word, "NG");
        for (auto& word : GL_PSU[u])
            CopyText(word, "NG");
    }
}

// --- Reports ---

static void tell_change()
{
    check_errorexist();
    SendMessage(LMSG_SELFDIAGCHANGE, 0, 0, 0, 0);
}

namespace
{
struct Fields {
    char text[CMD_SIZE];
    char* v[FIELDS]; // the unit's name first
    int n = 0;
};
} // namespace

static void split(Fields& f, const char* value)
{
    CopyText(f.text, value);
    f.n = SplitVars(f.text, f.v, FIELDS);
}

static int report(const UnitKind& kind, const char* group, const char* value)
{
    Fields f;
    split(f, value);
    Reporter r;
    if (f.n < 2)
        return -1;
    if (!find_unit(kind, f.v[0], &r))
        return -2;
    bool is_known = false, has_changed = false;
    for (const Group& g : groups) {
        if (!Same(g.group, group))
            continue;
        is_known = true;
        has_changed |= take_group(r, g, f.v + 1, f.n - 1);
    }
    keep_words(r, group, f.v + 1, f.n - 1);
    if (has_changed)
        tell_change();
    return is_known ? 0 : -1;
}

int SelfDiag_SWR_Tally(const char* cmd, const char* varptr)
{
    return report(switcher_kind, cmd, varptr);
}

int SelfDiag_PNL_Tally(const char* cmd, const char* varptr)
{
    return report(BeginsWith(varptr, "DCU") ? dcu_kind : panel_kind, cmd, varptr);
}

// A new board in a slot is called by its id from its next report on.
static int take_board_ids(const UnitKind& kind, const char* value)
{
    Fields f;
    split(f, value);
    Reporter r;
    if (f.n < 2)
        return -1;
    if (!find_unit(kind, f.v[0], &r) || r.word_row < 0)
        return -2;
    for (int i = 0; i < DIAG_BOARDS; i++)
        CopyText(GL_CircuitBoard[r.word_row][i], i + 1 < f.n && *f.v[i + 1] ? f.v[i + 1] : "NG");
    return 0;
}

void circuitboardid_tly(const char* value)
{
    (void)take_board_ids(switcher_kind, value); // others' boards are not ours
}

// The switchers' ids come by circuitboardid_tly.
int SelfDiag_DME_Tally(const char* cmd, const char* varptr)
{
    return Same(cmd, "Circuit Board ID") ? take_board_ids(dme_kind, varptr)
                                         : report(dme_kind, cmd, varptr);
}

// --- The reference of the multi-picture units ---

namespace
{
struct MpeReference {
    int status = 0;
    const char* message = "";
};
} // namespace

// By the number of the report.
static constexpr MpeReference mpe_references[] = {
    {SELFDIAG_OK, "Reference OK"},          {131, "Reference Error (Unstable)"},
    {132, "Reference Error (Pseudo Lock)"}, {133, "Reference Error (Format Mismatch)"},
    {134, "Reference Error (Unlock)"},      {135, "Reference Error (No Signal)"},
};
static constexpr MpeReference mpe_unknown = {136, "Reference Error (Unknown)"};

// "3,0": a number for each of the unit's two references.
int SelfDiag_MPE_Tally(const char* cmd, const char* varptr)
{
    constexpr int REFERENCES = 2;
    Parts p;
    int number[REFERENCES];
    if (SplitValue(p, varptr, REFERENCES + 1) != REFERENCES)
        return -1;
    for (int i = 0; i < REFERENCES; i++) {
        number[i] = Index(p.v[i], INT_MAX);
        if (number[i] < 0)
            return -1;
    }
    DiagUnit unit;
    int n = 0;
    while (SelfDiag_Unit(DIAG_MPE, n, &unit) && !Same(unit.name, cmd))
        n++;
    if (!SelfDiag_Unit(DIAG_MPE, n, &unit))
        return -2;
    bool has_changed = false;
    for (int i = 0; i < REFERENCES; i++) {
        const bool is_listed = number[i] < int(std::size(mpe_references));
        const MpeReference& m = is_listed ? mpe_references[number[i]] : mpe_unknown;
        has_changed |= SelfDiag_Take(unit, i, m.status, m.message, "MPE-REFSTATUS");
    }
    if (has_changed)
        tell_change();
    return 0;
}

int selfdiag_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    static constexpr struct {
        const char* prefix;
        int (*take)(const char* cmd, const char* varptr);
    } reports[] = {
        {"INFORMATION@SWR Self Diagnosis Notice@", SelfDiag_SWR_Tally},
        {"INFORMATION@DME Self Diagnosis Notice@", SelfDiag_DME_Tally},
        {"INFORMATION@PNL Self Diagnosis Notice@", SelfDiag_PNL_Tally},
        {"Info@Self Diagnosis Notice@MPE Status@", SelfDiag_MPE_Tally},
    };
    if (msg != MSG_TALLY || !ax || !bx)
        return 0;
    for (const auto& r : reports)
        if (BeginsWith(Text(ax), r.prefix))
            (void)r.take(Text(ax) + strlen(r.prefix), Text(bx)); // others' reports are not ours
    return 0;
}

// --- Asking anew ---

// When an item was last in error stays: it tells a return from a first report.
static void forget_items(DIAG_CLASS unit_class)
{
    DiagUnit unit;
    for (int n = 0; SelfDiag_Unit(unit_class, n, &unit); n++)
        for (SELFDIAG* it = unit.item; it < unit.item + unit.items; it++)
            *it = {.lerr = it->lerr};
}

static void ask_units(DIAG_CLASS unit_class)
{
    DiagUnit unit;
    for (int n = 0; SelfDiag_Unit(unit_class, n, &unit); n++)
        Net_SendCommandFormat("put Info@Self Diagnosis Notice@%s#true", unit.name);
}

void SelfDiag_Refresh_SWR()
{
    forget_items(DIAG_SWITCHER);
    forget_words(switcher_kind);
    ask_units(DIAG_SWITCHER);
}

void SelfDiag_Refresh_DME()
{
    forget_items(DIAG_DME);
    forget_words(dme_kind);
    ask_units(DIAG_DME);
}

void SelfDiag_Refresh_PNL()
{
    forget_items(DIAG_PANEL);
    forget_items(DIAG_DCU);
    Net_SendCommand("put Info@Self Diagnosis Notice@PNL#true");
}

// Their status is an ordinary value of the server.
void SelfDiag_Refresh_MPE()
{
    forget_items(DIAG_MPE);
    DiagUnit unit;
    for (int n = 0; SelfDiag_Unit(DIAG_MPE, n, &unit); n++)
        Net_SendCommandFormat("read Info@Self Diagnosis Notice@MPE Status@%s", unit.name);
}

void SelfDiag_Refresh_All()
{
    SelfDiag_Refresh_SWR();
    SelfDiag_Refresh_DME();
    SelfDiag_Refresh_PNL();
    SelfDiag_Refresh_MPE();
    SendMessage(LMSG_SELFDIAGCHANGE, 0, 0, 0, 0);
}

const char* SelfDiag_ValueUnit(DIAG_CLASS unit_class, int item)
{
    static constexpr const UnitKind* kinds[] = {&panel_kind, &dcu_kind, &switcher_kind, &dme_kind};
    if (unit_class == DIAG_MENU)
        return item == 0 ? "C" : "h"; // the temperature, then operating hours
    for (const UnitKind* kind : kinds)
        for (const RUN run : {RUN_FAN, RUN_PSU_EXIST})
            if (kind->unit_class == unit_class && item >= FirstItem(*kind, run) &&
                item < FirstItem(*kind, run) + kind->count[run])
                return "h";
    return "";
}
