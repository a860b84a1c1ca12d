// The editing of a register in place. The server has a window of events that the editor shows, and
// the event that a panel has done last, which waits for the touch that inserts it or puts it in the
// place of others. What the editor asks for:
//   Recall#N                       register N is the one to edit
//   Macro Edit Mode#true           it may be changed from now on; a locked one may not
//   Current Work Register Event Data#N    the records from event N on
//   Macro Event Edit Range#N,M     the cursor stands on line M of event N
//   Insert#N,0|1                   before or behind event N
//   Modify#N,M,K  Delete#N,M,K     K lines from line M of event N on
//   Run#true|false                 from the cursor on
// A record is "N,INNER,CONTENTS,SYMBOL,NAME,VALUE,...", INNER 0 for the event itself.
#include "log.h"
#include "macro_private.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <utility>

static constexpr int WINDOW = 104; // events, and as many modify flags
static constexpr const char* AUTO_INSERT = "Auto Insert";
static constexpr const char* EDIT_INSERT = "Edit Insert";

static struct {
    int number = 0; // register; 0: none yet
    bool is_open = false;
    bool is_auto = false;
    int first = 1;  // event of the window
    int cursor = 1; // event
    bool has_done = false;
    MacroLine done;
    std::vector<char> flags; // of each line: "1" when it is not as it was
} mo;

static std::string path_of(const char* tail)
{
    return ONLINE_EDIT + std::string(tail);
}

static std::vector<MacroLine> lines()
{
    return mo.number > 0 ? Macro_Lines(mo.number) : std::vector<MacroLine>();
}

bool MacroOnline_IsOpen()
{
    return mo.is_open;
}

// --- What the editor is told ---

static bool is_first(const std::vector<MacroLine>& all, size_t i)
{
    return all[i].contents != MacroLine::CONTINUE || i == 0;
}

static std::vector<std::string> records(const std::vector<MacroLine>& all)
{
    std::vector<std::string> rows;
    int event = 0, inner = 0;
    for (size_t i = 0; i < all.size(); ++i) {
        event += is_first(all, i);
        inner = is_first(all, i) ? 0 : inner + 1;
        if (event >= mo.first && event < mo.first + WINDOW)
            rows.push_back(Text_Format("%d,%d,%s,%s", event, inner, MacroEvent_Word(all[i]),
                                       MacroEvent_Text(all[i]).c_str()));
    }
    return rows;
}

static void set_records(const std::vector<MacroLine>& all, bool is_told)
{
    Tree_SetList(path_of("Current Work Register Event Data"), records(all), 2);
    Node* const node = Tree_Get(path_of("Current Work Register Event Data"));
    if (!node)
        return;
    node->kill_first = true; // the window is told as a whole
    for (const int client : is_told ? node->followers : std::vector<int>())
        Tree_Answer(*node, client);
}

static void show_head(const std::vector<MacroLine>& all)
{
    const int events = Macro_EventCount(all);
    const Register* const r =
        mo.number > 0 ? &Store_Register(Store_Kind(STORE_MACRO), 0, mo.number) : nullptr;
    mo.flags.resize(all.size(), '0');
    std::string flags(WINDOW, '0');
    int event = 0;
    for (size_t i = 0; i < all.size(); ++i) {
        event += is_first(all, i);
        if (event >= mo.first && event < mo.first + WINDOW && mo.flags[i] == '1')
            flags[size_t(event - mo.first)] = '1';
    }
    Tree_Show(path_of("Remain Macro Event Cell"), std::to_string(MACRO_CELLS - int(all.size())));
    if (r)
        Tree_Show(path_of("Current Macro Register Info"),
                  Text_Format("%d,%s,%s,%d,%d", mo.number, r->name.c_str(),
                              r->is_locked ? "L" : "U", events, mo.cursor));
    Tree_Show(path_of("Macro Event Edit Range"),
              Text_Format("%d,%d", mo.first, std::min(mo.first + WINDOW - 1, events)));
    Tree_Show(path_of("Current Work Register Modify Flag"), flags);
    Tree_Show(path_of("Insert Enable Flag"), mo.has_done ? "true" : "false");
}

static void show_all()
{
    const auto all = lines();
    mo.cursor = std::clamp(mo.cursor, 1, std::max(Macro_EventCount(all), 1));
    if (mo.cursor < mo.first || mo.cursor >= mo.first + WINDOW)
        mo.first = std::max(mo.cursor - WINDOW / 2, 1);
    show_head(all);
    set_records(all, true);
}

void Macro_RegisterChanged(int number)
{
    if (number == mo.number)
        show_all();
}

void MacroOnline_ShowRun()
{
    Tree_Show(path_of("Run"), Macro_IsRunning() ? "true" : "false");
}

// --- Changing the register ---

static bool may_change()
{
    return mo.is_open && mo.number > 0 && !Macro_IsLocked(mo.number);
}

static void insert(int event, bool is_behind)
{
    auto all = lines();
    const int events = Macro_EventCount(all);
    if (!mo.has_done || !may_change() || all.size() >= MACRO_CELLS)
        return;
    const int place = events == 0 ? 1 : std::clamp(event, 1, events) + is_behind; // its number
    const long at = long(Macro_LineOfEvent(all, place));
    mo.flags.resize(all.size(), '0');
    mo.flags.insert(mo.flags.begin() + at, '1');
    all.insert(all.begin() + at, mo.done);
    mo.cursor = place;
    mo.has_done = false;
    Macro_SetLines(mo.number, all);
}

namespace
{
struct Run {
    size_t from = 0, to = 0; // lines; none when they are the same
};
} // namespace

// So many lines from line inner of an event on.
static Run run_of(const std::vector<MacroLine>& all, int event, int inner, int count)
{
    const size_t head = Macro_LineOfEvent(all, event);
    const bool is_one = may_change() && inner >= 0 && count >= 1 && head < all.size() &&
                        size_t(inner) < Macro_LineOfEvent(all, event + 1) - head;
    if (!is_one)
        return {};
    const size_t from = head + size_t(inner);
    return {from, std::min(from + size_t(count), all.size())};
}

static void modify(int event, int inner, int count)
{
    auto all = lines();
    const Run run = run_of(all, event, inner, count);
    if (!mo.has_done || run.from == run.to)
        return;
    mo.flags.resize(all.size(), '0');
    for (size_t i = run.from; i < run.to; ++i) {
        const bool continues = all[i].contents == MacroLine::CONTINUE;
        all[i] = mo.done;
        all[i].contents = continues ? MacroLine::CONTINUE : MacroLine::EVENT;
        mo.flags[i] = '1';
    }
    mo.has_done = false;
    Macro_SetLines(mo.number, all);
}

static void take_out(int event, int inner, int count)
{
    auto all = lines();
    const Run run = run_of(all, event, inner, count);
    if (run.from == run.to)
        return;
    bool has_head = false;
    for (size_t i = run.from; i < run.to; ++i)
        has_head |= is_first(all, i);
    mo.flags.resize(all.size(), '0');
    mo.flags.erase(mo.flags.begin() + long(run.from), mo.flags.begin() + long(run.to));
    all.erase(all.begin() + long(run.from), all.begin() + long(run.to));
    if (has_head && run.from < all.size() && all[run.from].contents == MacroLine::CONTINUE) {
        all[run.from].contents = MacroLine::EVENT; // what it went on from is gone
        mo.flags[run.from] = '1';
    }
    mo.cursor = event;
    Macro_SetLines(mo.number, all);
}

void MacroOnline_Take(const MacroLine& line)
{
    if (!may_change())
        return;
    mo.done = line;
    mo.has_done = true;
    if (mo.is_auto)
        insert(mo.cursor, true);
    Tree_Show(path_of("Insert Enable Flag"), mo.has_done ? "true" : "false");
}

// --- Puts ---

static int at(const std::vector<std::string>& fields, size_t i)
{
    long number = 0;
    return i < fields.size() && Text_ToInt(fields[i], &number) ? int(number) : 0;
}

using Fields = std::vector<std::string>;

static void put_recall(const Fields& fields)
{
    const int number = at(fields, 0);
    if (!Store_IsNumber(Store_Kind(STORE_MACRO), 0, number))
        return;
    const bool is_open = mo.is_open && !Macro_IsLocked(number), is_auto = mo.is_auto;
    mo = {};
    mo.number = number;
    mo.is_open = is_open;
    mo.is_auto = is_auto;
    Tree_Show(path_of("Recall"), std::to_string(number));
    Tree_Show(path_of("Macro Edit Mode"), is_open ? "true" : "false");
    show_all();
}

static void put_mode(const Fields& fields)
{
    const bool wanted = fields[0] == "true";
    if (wanted && mo.number > 0 && Macro_IsLocked(mo.number))
        Log_Note("locked: macro %d", mo.number);
    mo.is_open = wanted && mo.number > 0 && !Macro_IsLocked(mo.number);
    mo.has_done = mo.has_done && mo.is_open;
    Tree_Show(path_of("Macro Edit Mode"), mo.is_open ? "true" : "false");
    show_head(lines());
}

static void put_data(const Fields& fields)
{
    const auto all = lines();
    mo.first = std::clamp(at(fields, 0), 1, std::max(Macro_EventCount(all), 1));
    show_head(all);
    set_records(all, false); // who asked is answered
}

static void put_cursor(const Fields& fields)
{
    mo.cursor = at(fields, 0);
    const int first = mo.first;
    mo.cursor = std::clamp(mo.cursor, 1, std::max(Macro_EventCount(lines()), 1));
    if (mo.cursor < first || mo.cursor >= first + WINDOW)
        show_all();
    else
        show_head(lines());
}

static void put_insert(const Fields& fields)
{
    insert(at(fields, 0), at(fields, 1) != 0);
}

static void put_modify(const Fields& fields)
{
    modify(at(fields, 0), at(fields, 1), at(fields, 2));
}

static void put_delete(const Fields& fields)
{
    take_out(at(fields, 0), at(fields, 1), at(fields, 2));
}

static void put_run(const Fields& fields)
{
    if (fields[0] != "true")
        return Macro_Stop();
    if (mo.number > 0)
        Macro_Run(mo.number, mo.cursor);
}

static void put_insert_mode(const Fields& fields)
{
    if (fields[0] != AUTO_INSERT && fields[0] != EDIT_INSERT)
        return;
    mo.is_auto = fields[0] == AUTO_INSERT;
    Tree_Show(path_of("Macro Insert Mode"), fields[0]);
}

bool MacroOnline_Put(const std::string& tail, const std::string& value)
{
    static constexpr struct {
        const char* tail;
        void (*put)(const Fields& fields);
    } puts[] = {
        {"Recall", put_recall},
        {"Macro Edit Mode", put_mode},
        {"Current Work Register Event Data", put_data},
        {"Macro Event Edit Range", put_cursor},
        {"Insert", put_insert},
        {"Modify", put_modify},
        {"Delete", put_delete},
        {"Run", put_run},
        {"Macro Insert Mode", put_insert_mode},
    };
    for (const auto& p : puts)
        if (tail == p.tail)
            p.put(Text_Split(value, ','));
    return true; // the others are the server's own
}

void MacroOnline_Install()
{
    mo = {};
    for (const char* tail : {"Macro Edit Mode", "Insert Enable Flag", "Run"})
        Tree_Preset(path_of(tail), "false");
    Tree_Preset(path_of("Macro Insert Mode"), EDIT_INSERT);
    show_all();
}
