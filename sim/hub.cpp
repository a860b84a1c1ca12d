#include "hub.h"
#include "clip_files.h"
#include "clip_store.h"
#include "file_job.h"
#include "link.h"
#include "log.h"
#include "text.h"
#include "unit_file.h"
#include <algorithm>
#include <climits>
#include <cstdio>
#include <map>
#include <set>

namespace
{
struct Category {
    std::string user = "Non"; // who has reserved it
    int client = 0;           // his line; 0: a user of the console
    std::string status = "Standby";
    std::string wanted =
        ""; // what the unit is working on, with the words behind it; empty: nothing
    int64_t due_ms = 0;
};

struct Target {
    const char* word = "";
    HostKind host = HOST_NONE;
    int unit = 0;
    bool is_clip_store = false; // on the switcher of the same number
    bool is_away = false;
    std::set<int> listeners = {};
    std::map<std::string, Category> categories = {}; // those that somebody has asked for
};
} // namespace

static constexpr int WORK_MS = 300; // of a unit that gets its files ready

static struct {
    Target targets[8] = {
        {"SWR1", HOST_SWR, 1},      {"SWR2", HOST_SWR, 2}, {"CS1", HOST_SWR, 1, true},
        {"CS2", HOST_SWR, 2, true}, {"PNL1", HOST_PNL, 1}, {"PNL2", HOST_PNL, 2},
        {"PNL3", HOST_PNL, 3},      {"PNL4", HOST_PNL, 4},
    };
} hb;

static Target* hub_target(const std::string& word)
{
    for (Target& target : hb.targets)
        if (word == target.word)
            return &target;
    return nullptr;
}

static bool has_category(const Target& target, const std::string& word)
{
    return target.is_clip_store ? word == "FRAMEMEM" : UnitFile_IsCategory(word, target.host);
}

// --- Telling ---

static void hub_tell(const Target& target, const std::string& line, int also_client)
{
    std::set<int> clients = target.listeners;
    if (also_client)
        clients.insert(also_client);
    for (const int client : clients)
        Link_SendLine(client, line);
}

static std::string notice(const Target& target, const std::string& category, const char* parameter,
                          const std::string& value)
{
    return Text_Format("Notify#%s.File:%s.%s:%s", target.word, category.c_str(), parameter,
                       target.is_clip_store ? ":" : "") +
           value;
}

static void tell_user(const Target& target, const std::string& category, int also_client)
{
    hub_tell(target, notice(target, category, "USER_ID", target.categories.at(category).user),
             also_client);
}

static void tell_status(const Target& target, const std::string& category)
{
    const Category& c = target.categories.at(category);
    hub_tell(target, notice(target, category, "STATUS", c.status), c.client);
}

// --- Reservation ---

static void reserve(Target& target, const std::string& category, const std::string& user,
                    int client)
{
    Category& c = target.categories[category];
    if (c.user == "Non") {
        c = {user, client};
        if (!target.is_clip_store)
            UnitFile_ClearWork(category, target.host, target.unit);
        else
            ClipFiles_ClearWork(target.unit);
    }
    tell_user(target, category, client);
}

static void set_free(Target& target, const std::string& category)
{
    Category& c = target.categories[category];
    const int client = c.client;
    c = {};
    tell_user(target, category, client);
}

// --- What a unit does ---

// "Get" and "Put" take their time; a user who is ready leaves the category to others.
static void request_status(Target& target, const std::string& category, const std::string& wanted,
                           int client)
{
    Category& c = target.categories[category];
    if (c.user == "Non" || (c.client && c.client != client))
        return Log_Note("hub: %s %s is not held by client %d", target.word, category.c_str(),
                        client);
    const std::string word = wanted.substr(0, wanted.find(','));
    if (word == "Standby") {
        c.wanted.clear();
        c.status = "Standby";
        tell_status(target, category);
        return set_free(target, category);
    }
    if (word != "Get" && word != "Put")
        return Log_Note("hub: no such status: %s", Text_Escape(wanted, 100).c_str());
    c.wanted = wanted;
    c.due_ms = Now_Ms() + FileJob_Duration(WORK_MS);
}

// The answer to a request with a path names the path again.
static void finish(Target& target, const std::string& category, Category& c)
{
    const auto part = Text_Split(c.wanted, ',');
    c.wanted.clear();
    const bool is_get = part[0] == "Get";
    long frames = 1; // of the clip that is put
    if (part.size() > 3 && !Text_ToInt(part[3], &frames))
        Log_Note("hub: no number of frames: %s", Text_Escape(part[3], 40).c_str());
    c.status = part[0] + (part.size() > 1 ? "," + part[1] : "");
    if (target.is_clip_store && is_get)
        ClipFiles_PrepareGet(target.unit, part.size() > 1 ? part[1] : "",
                             part.size() > 2 ? part[2] : "SFH");
    else if (target.is_clip_store)
        ClipFiles_TakePut(target.unit, int(frames));
    else if (is_get)
        UnitFile_PrepareGet(category, target.host, target.unit);
    else
        UnitFile_TakePut(category, target.host, target.unit);
    tell_status(target, category);
}

int64_t Hub_Tick(int64_t now)
{
    int64_t next = ClipStore_Tick(now);
    for (Target& target : hb.targets)
        for (auto& [word, category] : target.categories) {
            if (category.wanted.empty())
                continue;
            if (category.due_ms <= now)
                finish(target, word, category);
            else
                next = std::min(next, category.due_ms);
        }
    return next;
}

bool Hub_IsReserved(const std::string& word, const std::string& category)
{
    const Target* const target = hub_target(word);
    const auto found = target ? target->categories.find(category)
                              : std::map<std::string, Category>::const_iterator();
    return target && found != target->categories.end() && found->second.user != "Non";
}

// --- Lines ---

// "CATEGORY.USER_ID:VALUE"; a clip store's has a second colon.
static void hub_request(int client, Target& target, const std::string& rest)
{
    const size_t dot = rest.find('.'), colon = rest.find(':');
    if (dot == std::string::npos || colon == std::string::npos || dot > colon)
        return Log_Note("hub: not a request: %s", Text_Escape(rest, 100).c_str());
    const std::string category = rest.substr(0, dot);
    const std::string parameter = rest.substr(dot + 1, colon - dot - 1);
    const std::string value = rest.substr(rest.find_first_not_of(':', colon) == rest.npos
                                              ? rest.size()
                                              : rest.find_first_not_of(':', colon));
    if (!has_category(target, category) || target.is_away || value.empty())
        return Log_Note("hub: %s has no %s now", target.word, category.c_str());
    if (parameter == "STATUS")
        return request_status(target, category, value, client);
    if (parameter != "USER_ID")
        return Log_Note("hub: no such parameter: %s", parameter.c_str());
    Category& c = target.categories[category];
    if (value == "Non" && c.client == client && c.user != "Non")
        set_free(target, category);
    else if (value != "Non")
        reserve(target, category, value, client);
}

static void hub_listen(int client, Target& target)
{
    target.listeners.insert(client);
    if (target.is_away)
        return;
    Link_SendLine(client, std::string("Ready#") + target.word + ".File");
    for (const auto& [word, category] : target.categories)
        if (category.user != "Non")
            Link_SendLine(client, notice(target, word, "USER_ID", category.user));
}

static void hub_read_all(int client, const Target& target)
{
    for (const auto& [word, category] : target.categories) {
        Link_SendLine(client, notice(target, word, "USER_ID", category.user));
        Link_SendLine(client, notice(target, word, "STATUS", category.status));
    }
}

void Hub_Line(int client, const std::string& line)
{
    const size_t hash = line.find('#');
    const std::string verb = line.substr(0, hash);
    const std::string rest = hash == std::string::npos ? "" : line.substr(hash + 1);
    const size_t dot = rest.find('.'), colon = rest.find(':');
    Target* const target = hub_target(rest.substr(0, dot));
    const std::string table =
        dot == std::string::npos
            ? ""
            : rest.substr(dot + 1, colon == rest.npos ? colon : colon - dot - 1);
    if (!target)
        return;
    if (target->is_clip_store && ClipStore_Line(client, target->unit, verb, table,
                                                colon == rest.npos ? "" : rest.substr(colon + 1)))
        return;
    if (table != "File")
        return;
    if (verb == "Listen")
        hub_listen(client, *target);
    else if (verb == "Unlisten")
        target->listeners.erase(client);
    else if (verb == "InitRead")
        hub_read_all(client, *target);
    else if (verb == "Request" && colon != std::string::npos)
        hub_request(client, *target, rest.substr(colon + 1));
    else
        Log_Note("hub: not understood: %s", Text_Escape(line, 100).c_str());
}

void Hub_ForgetClient(int client)
{
    ClipStore_ForgetClient(client);
    for (Target& target : hb.targets) {
        target.listeners.erase(client);
        for (auto& [word, category] : target.categories)
            if (category.client == client && category.user != "Non")
                set_free(target, word);
    }
}

void Hub_Restart()
{
    for (Target& target : hb.targets) {
        if (!target.is_away)
            hub_tell(target, std::string("Disconnect#") + target.word + ".File", 0);
        target.categories.clear();
        target.is_away = false;
        hub_tell(target, std::string("Ready#") + target.word + ".File", 0);
    }
}

// --- The console ---

bool Hub_Hold(const std::string& user, const std::string& word, const std::string& category)
{
    Target* const target = hub_target(word);
    if (!target || !has_category(*target, category))
        return false;
    target->categories[category] = {};
    target->categories[category].user = user;
    tell_user(*target, category, 0);
    return true;
}

bool Hub_Connect(const std::string& word, bool is_on)
{
    Target* const target = hub_target(word);
    if (!target)
        return false;
    target->is_away = !is_on;
    target->categories.clear();
    hub_tell(*target, std::string(is_on ? "Ready#" : "Disconnect#") + target->word + ".File", 0);
    return true;
}

void Hub_Print()
{
    for (const Target& target : hb.targets)
        for (const auto& [word, category] : target.categories)
            printf("%s %s %s %s\n", target.word, word.c_str(), category.user.c_str(),
                   category.status.c_str());
}
