#include "router.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <array>
#include <map>

namespace
{
constexpr int DESTINATIONS = 128, LEVELS = 8, SOURCES = 64, SALVOS = 32;
using Shown = std::array<std::string, LEVELS>; // by a destination

struct Salvo {
    std::map<int, std::string> presets; // by destination
    std::array<bool, LEVELS> levels = {};
};
} // namespace

static const std::string ROUTER = "Router@";
static const std::string OWN_PANEL = "PNL1";

static struct {
    Shown before[DESTINATIONS]; // the last take; empty texts: none
    Salvo salvo[SALVOS];
} rt;

// --- Values ---

static std::string value_of(const std::string& path)
{
    const Node* const node = Tree_Get(path);
    return node ? node->value : "";
}

static std::string destination_path(int d, const char* what)
{
    return ROUTER + Text_Format("Destination@Dest%d@%s", d + 1, what);
}

static std::string crosspoint(int d, int level)
{
    return ROUTER + Text_Format("Status@Xpt Assign@Dest%d@Level%d", d + 1, level + 1);
}

static std::string level_path(int level)
{
    return ROUTER + Text_Format("Level@Level%d", level + 1);
}

static std::string salvo_path(int n, const char* what)
{
    return ROUTER + Text_Format("Salvo@%d@%s", n + 1, what);
}

// As the panels' list of names has it; one without a name has its number.
static std::string source_name(int number)
{
    const Node* const names =
        Tree_Find("Engineering Setup@Panel@Config@External Bus Link@S-BUS Src Name List");
    if (number < 1 || number > SOURCES)
        return "";
    const std::string head = std::to_string(number) + ",";
    if (names)
        for (const std::string& row : names->rows)
            if (Text_Begins(row, head) && row.size() > head.size())
                return row.substr(head.size());
    return Text_Format("SRC%d", number);
}

static int source_number(const std::string& name)
{
    for (int n = 1; n <= SOURCES; ++n)
        if (source_name(n) == name)
            return n;
    return 0;
}

// The number behind a head, from 1 to count, as an index; -1 for everything else.
static int index_of(const std::string& word, const std::string& head, int count)
{
    long number = 0;
    const bool is_one = Text_Begins(word, head) && Text_ToInt(word.substr(head.size()), &number);
    return is_one && number >= 1 && number <= count ? int(number) - 1 : -1;
}

// --- Takes ---

static bool is_locked(int d)
{
    const std::string lock = value_of(destination_path(d, "Lock"));
    return lock == "Lock" ||
           value_of("Engineering Setup@Router@Inhibit@" + std::to_string(d + 1)) == "true" ||
           (lock == "Protect" && value_of(destination_path(d, "Owner")) != OWN_PANEL);
}

static void show_preset(int d, const std::string& source)
{
    Tree_Show(destination_path(d, "Preset"), source);
    Tree_Show(destination_path(d, "Preset No"), std::to_string(source_number(source)));
}

static void take(int d, const std::string& source)
{
    for (int level = 0; level < LEVELS; ++level) {
        rt.before[d][size_t(level)] = value_of(crosspoint(d, level));
        if (value_of(level_path(level)) == "true")
            Tree_Show(crosspoint(d, level), source);
    }
    show_preset(d, "");
}

static void take_preset(int d)
{
    const std::string source = value_of(destination_path(d, "Preset"));
    if (!source.empty() && !is_locked(d))
        take(d, source);
}

static void undo(int d)
{
    if (is_locked(d) || rt.before[d][0].empty())
        return;
    for (int level = 0; level < LEVELS; ++level)
        Tree_Show(crosspoint(d, level), rt.before[d][size_t(level)]);
    rt.before[d] = {};
}

static void preset(int d, const std::string& source)
{
    if (is_locked(d) || (!source.empty() && source_number(source) == 0))
        return;
    if (!source.empty() && value_of(ROUTER + "Direct Take") == "true")
        take(d, source);
    else
        show_preset(d, source);
}

// Another panel's lock stays.
static void lock(int d, const std::string& word)
{
    const std::string owner = value_of(destination_path(d, "Owner"));
    if (word != "Free" && word != "Protect" && word != "Lock")
        return;
    if (!owner.empty() && owner != OWN_PANEL)
        return;
    Tree_Show(destination_path(d, "Lock"), word);
    Tree_Show(destination_path(d, "Owner"), word == "Free" ? "" : OWN_PANEL);
}

void Router_Route(int destination, int source, int level)
{
    const int d = destination - 1;
    if (d < 0 || d >= DESTINATIONS || level < 0 || level > LEVELS || is_locked(d) ||
        source_name(source).empty())
        return;
    for (int n = 0; n < LEVELS; ++n)
        if (level == 0 || level == n + 1)
            Tree_Show(crosspoint(d, n), source_name(source));
}

// --- Salvos ---

static void show_salvo(int n)
{
    const Salvo& s = rt.salvo[n];
    std::string levels;
    for (int level = 0; level < LEVELS; ++level)
        if (s.levels[size_t(level)])
            levels += std::to_string(level + 1);
    Tree_Show(salvo_path(n, "Dests"), std::to_string(s.presets.size()));
    Tree_Show(salvo_path(n, "Levels"), levels);
}

static void store_salvo(int n)
{
    Salvo& s = rt.salvo[n] = {};
    for (int d = 0; d < DESTINATIONS; ++d)
        if (const std::string source = value_of(destination_path(d, "Preset")); !source.empty())
            s.presets[d] = source;
    for (int level = 0; level < LEVELS; ++level)
        s.levels[size_t(level)] = !s.presets.empty() && value_of(level_path(level)) == "true";
    show_salvo(n);
}

static void recall_salvo(int n, bool is_take)
{
    const Salvo& s = rt.salvo[n];
    if (s.presets.empty())
        return;
    for (int level = 0; level < LEVELS; ++level)
        Tree_Show(level_path(level), s.levels[size_t(level)] ? "true" : "false");
    for (const auto& [d, source] : s.presets)
        if (!is_locked(d)) {
            show_preset(d, source);
            if (is_take)
                take(d, source);
        }
}

// True when the put is done with; an action goes on to fall back by itself.
static bool put_salvo(int n, const std::string& what)
{
    if (what == "Store")
        store_salvo(n);
    else if (what == "Preset" || what == "Take")
        recall_salvo(n, what == "Take");
    else if (what == "Clear") {
        rt.salvo[n] = {};
        show_salvo(n);
        Tree_Show(salvo_path(n, "Name"), "");
    }
    return what == "Dests" || what == "Levels";
}

// --- Puts ---

static bool put_destination(int d, const std::string& what, const std::string& value)
{
    long number = 0;
    if (what == "Take" && value == "true")
        take_preset(d);
    else if (what == "Undo" && value == "true")
        undo(d);
    else if (what == "Preset")
        preset(d, value);
    else if (what == "Preset No" && Text_ToInt(value, &number))
        preset(d, source_name(int(number)));
    else if (what == "Lock")
        lock(d, value);
    return what != "Take" && what != "Undo";
}

static void put_all(const std::string& what)
{
    for (int d = 0; d < DESTINATIONS; ++d) {
        if (what == "Take All")
            take_preset(d);
        else if (what == "Clear")
            show_preset(d, "");
        else if (what == "Free Own" && value_of(destination_path(d, "Owner")) == OWN_PANEL)
            lock(d, "Free");
    }
}

bool Router_Put(const std::string& path, const std::string& value)
{
    const auto words = Text_Split(path, '@');
    if (words[0] != "Router" || words.size() < 2)
        return false;
    if (words.size() == 2 && value == "true")
        put_all(words[1]);
    if (words[1] == "Status")
        return Router_IsLocked(path);
    if (words.size() != 4)
        return false;
    const int d = index_of(words[2], "Dest", DESTINATIONS), n = index_of(words[2], "", SALVOS);
    if (words[1] == "Destination" && d >= 0)
        return put_destination(d, words[3], value);
    return words[1] == "Salvo" && n >= 0 && put_salvo(n, words[3]);
}

bool Router_IsState(const std::string& path)
{
    return Text_Begins(path, ROUTER) && !Text_Begins(path, ROUTER + "Status@");
}

bool Router_IsLocked(const std::string& path)
{
    const auto words = Text_Split(path, '@');
    const int d = words.size() == 5 && words[0] == "Router" && words[1] == "Status"
                      ? index_of(words[3], "Dest", DESTINATIONS)
                      : -1;
    return d >= 0 && is_locked(d);
}

void Router_Rename(const std::string& from, const std::string& to)
{
    for (int d = 0; d < DESTINATIONS; ++d) {
        for (int level = 0; level < LEVELS; ++level)
            if (value_of(crosspoint(d, level)) == from)
                Tree_Show(crosspoint(d, level), to);
        if (value_of(destination_path(d, "Preset")) == from)
            Tree_Show(destination_path(d, "Preset"), to);
        std::replace(rt.before[d].begin(), rt.before[d].end(), from, to);
    }
    for (Salvo& salvo : rt.salvo)
        for (auto& [d, source] : salvo.presets)
            if (source == from)
                source = to;
}

void Router_Install()
{
    rt = {};
    for (int d = 0; d < DESTINATIONS; ++d) {
        Tree_Preset(destination_path(d, "Lock"), "Free");
        for (int level = 0; level < LEVELS; ++level)
            Tree_Preset(crosspoint(d, level), source_name(d % SOURCES + 1));
    }
    for (int level = 0; level < LEVELS; ++level)
        Tree_Preset(level_path(level), "true");
    for (int n = 0; n < SALVOS; ++n)
        Tree_Preset(salvo_path(n, "Dests"), "0");
}
