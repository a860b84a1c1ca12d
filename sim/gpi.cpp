#include "gpi.h"
#include "log.h"
#include "macro.h"
#include "region.h"
#include "store.h"
#include "text.h"
#include "timeline.h"
#include "tree.h"
#include "verbs.h"
#include <iterator>
#include <set>
#include <utility>
#include <vector>

namespace
{
// What stands on an input: "1,2,0,3" is an action with bank, register and key or bus, "8,M/E-1,5,0"
// one with region and register.
struct Input {
    std::string bank; // tree: "M/E-1", "PGM/PST"
    std::string region;
    int reg = 0;
    int number = 0; // of the key or the row of buses
};
} // namespace

static constexpr struct {
    const char* unit;
    const char* page;
} units[] = {
    {"SWR", "Switcher@Device Interface@GPI Input"},
    {"PNL", "Panel@Device Interface@GPI Input"},
    {"DME1", "DME@Device Interface@DME1 GPI Input"},
    {"DME2", "DME@Device Interface@DME2 GPI Input"},
    {"DME3", "DME@Device Interface@DME3 GPI Input"},
    {"DME4", "DME@Device Interface@DME4 GPI Input"},
    {"DCU1", "DCU@GPI Input@DCU1"},
    {"DCU2", "DCU@GPI Input@DCU2"},
};
static std::set<std::pair<std::string, int>> high; // contacts: unit and port
static constexpr const char* banks[] = {"PGM/PST", "M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5"};

// --- Actions; false: what they are told to act on is not there ---

static bool turn_over(const std::string& path)
{
    const Node* const node = Tree_Get(path);
    Verb_Do(path, node && node->value == "true" ? "false" : "true");
    return true;
}

static bool transition(const Input& in, const char* word)
{
    Verb_Do(in.bank + "@Misc@Transition@" + word, "true");
    return !in.bank.empty();
}

static bool cut(const Input& in)
{
    return transition(in, "Cut");
}

static bool auto_trans(const Input& in)
{
    return transition(in, "Auto Trans");
}

static bool fade_to_black(const Input&)
{
    return turn_over("PGM/PST@Misc@Transition@FTB@FTB");
}

// The rows of buses: both backgrounds, key 1, key 2, key 3 with what shares its row.
static bool xpt_hold(const Input& in)
{
    static constexpr const char* rows[][2] = {
        {"Bkgd A", "Bkgd B"}, {"Key1", nullptr}, {"Key2", nullptr}, {"Key3", "Key4"}};
    if (in.bank.empty() || in.number < 1 || in.number > int(std::size(rows)))
        return false;
    for (const char* bus : rows[in.number - 1])
        if (bus)
            (void)turn_over(in.bank + "@Misc@Snapshot@Xpt Hold@" + bus);
    return true;
}

static bool put_key(const Input& in, const char* tail, const char* value)
{
    if (in.bank.empty() || in.number < 1 || in.number > 8)
        return false;
    const char* const word = in.bank == "PGM/PST" ? "DSK" : "Key";
    Verb_Do(Text_Format("%s@%s%d@%s", in.bank.c_str(), word, in.number, tail), value);
    return true;
}

static bool key_on(const Input& in)
{
    return put_key(in, "Status@Key ON", "true");
}

static bool key_off(const Input& in)
{
    return put_key(in, "Status@Key ON", "false");
}

static bool key_auto(const Input& in)
{
    return put_key(in, "Transition@Auto Trans", "true");
}

static bool recall(std::string kind, std::string region, int reg)
{
    if (region == "Master") {
        kind = "master" + kind;
        region.clear();
    }
    return Store_Do({.verb = "recall",
                     .kind = kind,
                     .region = region,
                     .first = reg,
                     .last = reg,
                     .name = "",
                     .to_region = ""});
}

static bool effect_recall(const Input& in)
{
    return recall("effect", in.region, in.reg);
}

static bool snapshot_recall(const Input& in)
{
    return recall("snapshot", in.region, in.reg);
}

static bool shotbox_recall(const Input& in)
{
    return recall("shotbox", "", in.reg);
}

// The master runs what is selected.
static std::vector<int> timelines(const Input& in)
{
    const int region = Region_ByName(in.region);
    if (in.region == "Master")
        return Timeline_Selected();
    return region < 0 ? std::vector<int>() : std::vector<int>{region};
}

static bool effect_run(const Input& in)
{
    Timeline_Run(timelines(in), 1);
    return !timelines(in).empty();
}

static bool effect_stop(const Input& in)
{
    Timeline_Stop(timelines(in));
    return !timelines(in).empty();
}

static bool macro_run(const Input& in)
{
    Macro_Run(in.reg);
    return true;
}

// By their number on the wire.
static constexpr struct {
    const char* word;
    bool (*act)(const Input& in);
} actions[] = {
    {"None", nullptr},
    {"Cut", cut},
    {"Auto Trans", auto_trans},
    {"FTB", fade_to_black},
    {"Xpt Hold", xpt_hold},
    {"Key On", key_on},
    {"Key Off", key_off},
    {"Key Auto", key_auto},
    {"Effect Recall", effect_recall},
    {"Effect Run", effect_run},
    {"Effect Stop", effect_stop},
    {"Snapshot Recall", snapshot_recall},
    {"Shotbox Recall", shotbox_recall},
    {"Macro Run", macro_run},
};

// --- A contact ---

// The action of an input is on one of its two paths; the number of it, 0 none.
static int action_of(const std::string& page, int port, Input* in)
{
    for (const char* kind : {"Action Type", "Action Type Region"}) {
        const Node* const node = Tree_Find(Text_Format("%s@%s@%d@1", page.c_str(), kind, port));
        const auto part = Text_Split(node ? node->value : "", ',');
        long action = 0, bank = -1, reg = 0, number = 0;
        if (part.size() != 4 || !Text_ToInt(part[0], &action) || action < 1 ||
            action >= long(std::size(actions)) || !Text_ToInt(part[2], &reg) ||
            !Text_ToInt(part[3], &number))
            continue;
        if (Text_ToInt(part[1], &bank) && bank >= 0 && bank < long(std::size(banks)))
            in->bank = banks[bank];
        in->region = part[1];
        in->reg = int(reg);
        in->number = int(number);
        return int(action);
    }
    return 0;
}

static std::string value_of(const std::string& path)
{
    const Node* const node = Tree_Find(path);
    return node ? node->value : "";
}

static bool is_triggered(const std::string& trigger, bool is_rising)
{
    return trigger == "Any Edge" || trigger == (is_rising ? "Rising Edge" : "Falling Edge");
}

static void act(const std::string& name, const std::string& page, int port)
{
    Input in;
    const int action = action_of(page, port, &in);
    const bool is_done = action > 0 && actions[action].act(in);
    Log_Note("%s: %s%s", name.c_str(), action > 0 ? actions[action].word : "not used",
             action == 0 || is_done ? "" : ", refused");
}

// The function of the port is switched on or off; that of a converter is to work for an input or an
// output.
static void follow_level(const std::string& name, const std::string& page, int port, bool is_high)
{
    const std::string at = page + "@H/L Set@", number = "@" + std::to_string(port);
    std::string function = value_of(at + "Function" + number);
    std::string state = value_of(at + (is_high ? "High" : "Low") + number);
    if (function == "FC Input/Output") {
        const auto part = Text_Split(value_of(at + function + number), ',');
        function = part.empty() ? "" : part[0];
        state = part.size() == 3 ? part[is_high ? 1 : 2] : "";
    }
    const bool is_used = !function.empty() && function != "None";
    Log_Note("%s: %s", name.c_str(), is_used ? (function + " " + state).c_str() : "not used");
}

static void change(const char* unit, const std::string& page, int port, bool is_high)
{
    const std::string trigger = value_of(page + "@Trigger Type@" + std::to_string(port));
    const std::string name =
        Text_Format("%s GPI input %d %s", unit, port, is_high ? "high" : "low");
    if (trigger == "None" || value_of(page + "@GPI Enable") == "false")
        Log_Note("%s: not used", name.c_str());
    else if (trigger == "Level")
        follow_level(name, page, port, is_high);
    else if (is_triggered(trigger, is_high))
        act(name, page, port);
}

bool Gpi_Set(const std::string& unit, int port, bool is_high)
{
    for (const auto& u : units) {
        const std::string page = std::string("Engineering Setup@") + u.page;
        if (unit != u.unit || !Tree_Find(page + "@Trigger Type@" + std::to_string(port)))
            continue;
        const auto contact = std::make_pair(unit, port);
        if (is_high != (high.count(contact) > 0)) {
            is_high ? (void)high.insert(contact) : (void)high.erase(contact);
            change(u.unit, page, port, is_high);
        }
        return true;
    }
    return false;
}
