#include "verbs.h"
#include "attach.h"
#include "autoload.h"
#include "clip_output.h"
#include "copy_swap.h"
#include "device_bus.h"
#include "device_vtr.h"
#include "diag.h"
#include "dme_channels.h"
#include "file_job.h"
#include "frame_memory.h"
#include "link.h"
#include "log.h"
#include "macro.h"
#include "router.h"
#include "rules.h"
#include "setup.h"
#include "setup_panel.h"
#include "setup_panel_config.h"
#include "setup_switcher.h"
#include "setup_switcher_io.h"
#include "setup_units.h"
#include "store.h"
#include "system.h"
#include "text.h"
#include "timeline.h"
#include "transition.h"
#include "tree.h"
#include <algorithm>
#include <climits>
#include <cmath>

namespace
{
struct Pulse {
    std::string path; // no pointer: the tree may be cleared in between
    int client = 0;
    int64_t due_ms = 0;
};

struct Verb {
    const char* word = "";
    bool has_value = false;    // the command carries "#VALUE"
    bool may_have_key = false; // or the key of a list row there
    void (*func)(int client, const std::string& path, const std::string& value) = nullptr;
};

// Who acts on the puts below a path. True: it has shown the value itself.
struct Owner {
    const char* prefix = "";
    bool (*put)(const std::string& path, const std::string& value) = nullptr;
};
} // namespace

static constexpr int PULSE_MS = 100; // long enough for a panel to see the action happen

static struct {
    bool is_ng = false;
    std::vector<Pulse> pulses;
} vb;

static const std::string KNOB_COUNTS =
    "Panel@Common@Knob"; // and a digit: the panel wants the bare detents
static const std::string INITIAL_READ = "Info@Initial Read Status";

static void verb_add(int client, const std::string& path, const std::string& key)
{
    Node* node = Tree_Get(path);
    if (!node)
        return Link_SendLine(client, path + "#");
    if (!key.empty() && node->type.kind != KIND_LIST)
        return Log_Note("client %d: no list: %.200s", client, path.c_str());
    Tree_Follow(*node, client);
    if (key.empty())
        return Tree_Answer(*node, client);
    for (const std::string& row : node->rows)
        if (Text_Begins(row, key + ","))
            Link_SendLine(client, path + "#" + row);
}

// A "#" behind the path is allowed.
static void verb_read(int client, const std::string& path, const std::string&)
{
    const Node* node = Tree_Get(path);
    if (!node)
        return Link_SendLine(client, path + "#");
    Tree_Answer(*node, client);
}

static void verb_remove(int client, const std::string& path, const std::string&)
{
    if (Node* node = Tree_Find(path))
        Tree_Unfollow(*node, client);
}

static constexpr Owner owners[] = {
    {"Key Frame@", Timeline_Put},
    {"Effect@", Store_Put},
    {"Snapshot@", Store_Put},
    {"Master@Effect@", Store_Put},
    {"Shotbox@", Store_Put},
    {"Macro@Attachment@", Attach_Put},
    {"Macro@", Macro_Put},
    {"Macro@", Store_Put},
    {"Register@All Delete@", Store_Put},
    {"MPE@Fx@Channel@Reference", System_PutMpe},
    {"Info@DME@RefCH", System_PutDmeChannels},
    {"Info@DME@SelCH", System_PutDmeChannels},
    {"Engineering Setup@System@", Setup_Put},
    {"Engineering Setup@Panel@", SetupPanel_Put},
    {"Engineering Setup@Panel@", SetupPanelConfig_Put},
    {"Engineering Setup@Switcher@", SetupSwitcherIo_Put},
    {"Engineering Setup@Switcher@", SetupSwitcher_Put},
    {"Copy/Swap@", CopySwap_Put},
    {"Engineering Setup@DME@", SetupUnits_Put},
    {"Engineering Setup@DCU@", SetupUnits_Put},
    {"Engineering Setup@Router@", SetupUnits_Put},
    {"Engineering Setup@Tally@", SetupUnits_Put},
    {"Router@", Router_Put},
    {"Device@", DeviceVtr_Put},
    {"Device@", DeviceBus_Put},
    {"", Dme_Put},
    {"", Transition_Put},
};

static bool verb_follows(const Node& node, int client)
{
    return std::find(node.followers.begin(), node.followers.end(), client) != node.followers.end();
}

static bool verb_owner_takes(const std::string& path, const std::string& value)
{
    return std::any_of(std::begin(owners), std::end(owners), [&](const Owner& owner) {
        return Text_Begins(path, owner.prefix) && owner.put(path, value);
    });
}

// True when an owner has taken the put; the sender then has its answer.
static bool verb_put_to_owner(int client, const std::string& path, const std::string& value)
{
    if (path.size() + 1 + value.size() > TALLY_BYTES)
        return false;
    const std::string before = Tree_Get(path)->value;
    if (!verb_owner_takes(path, value))
        return false;
    const Node& node = *Tree_Get(path);
    const bool is_told = node.value != before && verb_follows(node, client);
    if (!is_told)
        Tree_Answer(node, client);
    return true;
}

// Requests have no value to be told: they are answered in their own way.
static bool verb_put_is_request(int client, const std::string& path, const std::string& value)
{
    return FileJob_Put(client, path, value) || FrameMemory_Put(client, path, value) ||
           ClipOutput_Put(path, value) || Autoload_Put(path, value) ||
           Diag_Put(client, path, value);
}

// The sender hears the outcome even when nothing changed: its page shows the server's word, not its
// own wish.
static void verb_put_alone(int client, const std::string& path, const std::string& value)
{
    if (path == INITIAL_READ)
        return System_Announce(client, value == "true");
    if (!vb.is_ng && verb_put_is_request(client, path, value))
        return;
    if (!vb.is_ng)
        Macro_WatchPut(path, value);
    Node* node = Tree_Get(path);
    if (!node)
        return Link_SendLine(client, path + "#");
    if (!vb.is_ng && verb_put_to_owner(client, path, value))
        return;
    std::string tally = node->value;
    const PutResult result = vb.is_ng ? PUT_REFUSED : Tree_Put(*node, value, &tally);
    switch (result) {
    case PUT_REFUSED:
        Log_Note("client %d: put refused: %.200s", client, path.c_str());
        if (node->type.kind == KIND_LIST)
            return Tree_Answer(*node, client);
        return Link_SendLine(client, path + "#" + tally);
    case PUT_SAME: return Link_SendLine(client, path + "#" + tally);
    case PUT_PULSE: vb.pulses.push_back({path, client, Now_Ms() + PULSE_MS}); break;
    case PUT_CHANGED: break;
    }
    Tree_Tell(*node, tally, client);
    Rules_Follow(path, tally);
}

static void verb_put(int client, const std::string& path, const std::string& value)
{
    verb_put_alone(client, path, value);
    if (!vb.is_ng)
        SetupSwitcher_Follow(path);
}

void Verb_Do(const std::string& path, const std::string& value)
{
    Node* node = Tree_Get(path);
    if (!node || verb_owner_takes(path, value))
        return;
    std::string tally = node->value;
    const PutResult result = Tree_Put(*node, value, &tally);
    if (result == PUT_PULSE)
        vb.pulses.push_back({path, 0, Now_Ms() + PULSE_MS});
    if (result != PUT_PULSE && result != PUT_CHANGED)
        return;
    Tree_Tell(*node, tally, 0);
    Rules_Follow(path, tally);
}

// A context, not a state: nobody is told. The menu is each panel's own.
static void verb_set(int client, const std::string& path, const std::string& value)
{
    if (path == "TopMenu") {
        if (Client* c = Link_Find(client))
            c->menu = value;
    } else if (Node* node = Tree_Get(path)) {
        node->value = value;
    }
}

// The whole value to all followers and to one more client, who hears it once; 0 for none.
static void verb_tell_all_of(const Node& node, int also_client)
{
    bool is_told = also_client == 0;
    for (const int client : node.followers) {
        Tree_Answer(node, client);
        is_told = is_told || client == also_client;
    }
    if (!is_told)
        Tree_Answer(node, also_client);
}

// True when it has changed and nobody knows yet. An owner is asked for the default like for any
// value.
static bool verb_reset(Node& node)
{
    return !verb_owner_takes(node.path, node.initial) && Tree_Default(node);
}

static void verb_default(int client, const std::string& path, const std::string&)
{
    Node* node = Tree_Find(path);
    const auto group = Tree_Under(path);
    const bool is_group = group.size() > (node ? 1u : 0u);
    if (!node && !is_group)
        node = Tree_Get(path);
    for (Node* part : group)
        if (part != node && !Transition_IsState(part->path) && verb_reset(*part))
            verb_tell_all_of(*part, 0);
    if (!node)
        return;
    if (verb_reset(*node))
        verb_tell_all_of(*node, client);
    else
        Tree_Answer(*node, client);
}

// "KnobN#PATH", or "KnobN#null": the knob is free again.
static void verb_assign(int client, const std::string& knob, const std::string& path)
{
    Client* c = Link_Find(client);
    const bool is_knob =
        knob.size() == 5 && Text_Begins(knob, "Knob") && knob[4] >= '0' && knob[4] < '0' + KNOBS;
    if (!c || !is_knob)
        return Log_Note("client %d: no such knob: %.100s", client, knob.c_str());
    c->knob[knob[4] - '0'] = path == "null" ? "" : path;
}

static constexpr Verb verbs[] = {
    {"add", false, true, verb_add},       {"read", false, true, verb_read},
    {"put", true, false, verb_put},       {"set", true, false, verb_set},
    {"remove", false, true, verb_remove}, {"default", false, false, verb_default},
    {"assign", true, false, verb_assign},
};

static bool verb_is_text(const std::string& line)
{
    return std::none_of(line.begin(), line.end(), [](char c) { return (unsigned char)c < 0x20; });
}

void Verb_Line(int client, const std::string& line)
{
    const size_t blank = line.find(' ');
    const size_t hash = line.find('#');
    const std::string word = line.substr(0, blank);
    for (const Verb& verb : verbs) {
        if (word != verb.word || blank == std::string::npos || !verb_is_text(line))
            continue;
        const bool has_value = hash != std::string::npos;
        const size_t path_end = has_value ? hash : line.size();
        const bool is_formed = has_value == verb.has_value || (has_value && verb.may_have_key);
        if (!is_formed || path_end <= blank + 1 || path_end - blank > TALLY_BYTES)
            break;
        const std::string path = line.substr(blank + 1, path_end - blank - 1);
        const size_t begin = path.find_first_not_of(' '); // some commands have two blanks
        return verb.func(client, begin == path.npos ? path : path.substr(begin),
                         has_value ? line.substr(hash + 1) : "");
    }
    Log_Note("client %d: not a command: %s", client, Text_Escape(line, 100).c_str());
}

// --- Knobs ---

// What has no limits turns all the same, by 1: the page tables may not list it.
static void verb_turn(Node& node, int detents)
{
    double number = 0;
    (void)Text_ToNumber(node.value, &number); // no number yet: from 0
    std::string value;
    if (DeviceVtr_Turn(node.path, detents))
        return;
    if (node.type.kind == KIND_NUM)
        value = Tree_NumberText(node.type, number + detents * std::pow(10, -node.type.decimals));
    else if (node.type.kind == KIND_ANY)
        value = Text_Format("%.10g", number + detents);
    else
        return;
    if (value == node.value)
        return; // at the stop
    node.value = value;
    Tree_Tell(node, value, 0);
    Rules_Follow(node.path, value);
}

void Verb_Knob(int knob, int detents)
{
    std::vector<std::string> turned;
    for (const int number : Link_Clients(LINK_TEXT)) {
        const std::string path = Link_Find(number)->knob[knob];
        if (path.empty())
            continue;
        if (Text_Begins(path, KNOB_COUNTS)) {
            Link_SendLine(number, path + Text_Format("#%d", detents));
            continue;
        }
        if (std::find(turned.begin(), turned.end(), path) != turned.end())
            continue;
        turned.push_back(path);
        if (Node* node = Tree_Get(path))
            verb_turn(*node, detents);
    }
}

// --- Time ---

void Verb_SetNg(bool on)
{
    vb.is_ng = on;
}

int64_t Verb_Tick(int64_t now)
{
    for (const Pulse& pulse : vb.pulses) {
        Node* node = Tree_Find(pulse.path);
        if (pulse.due_ms > now || !node || node->value == "false")
            continue;
        node->value = "false";
        Tree_Tell(*node, node->value, pulse.client);
    }
    std::erase_if(vb.pulses, [now](const Pulse& pulse) { return pulse.due_ms <= now; });
    int64_t next = INT64_MAX;
    for (const Pulse& pulse : vb.pulses)
        next = std::min(next, pulse.due_ms);
    return next;
}

void Verb_Forget()
{
    vb.pulses.clear();
    for (const int number : Link_Clients(LINK_TEXT)) {
        Client* client = Link_Find(number);
        for (std::string& path : client->knob)
            path.clear();
        client->menu.clear();
    }
}
