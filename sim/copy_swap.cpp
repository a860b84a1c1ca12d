#include "copy_swap.h"
#include "dme_channels.h"
#include "log.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <map>

namespace
{
// The paths of a part, below the thing; of several rows with a name all count.
struct Part {
    const char* kind = "";
    const char* word = "";
    const char* path = ""; // a pattern of the first words below the thing
};
using PathValues = std::vector<std::pair<std::string, std::string>>;

struct Order {
    std::string kind;
    std::string from, to;
    std::vector<std::string> parts; // patterns; empty: all
};
} // namespace

static const std::string ROOT = "Copy/Swap@";
static constexpr const char* CHANNEL = "DME Channel";
static constexpr const char* EFFECT = "DME Effect";
static constexpr int CHANNELS = 8;

static constexpr Part parts[] = {
    {"M/E", "Xpt", "Status@Xpt Assign"},
    {"M/E", "Keys", "Key?"},
    {"M/E", "Keys", "DSK?"},
    {"M/E", "Wipe", "Wipe"},
    {"M/E", "DME Wipe", "DME Wipe"},
    {"M/E", "Transition", "Misc@Transition"},
    {"M/E", "Key Priority", "Misc@Key Priority"},
    {"M/E", "Video Process", "Misc@Video Process"},
    {"Key", "Type", "Type"},
    {"Key", "Edge", "Edge"},
    {"Key", "Mask", "Main Mask"},
    {"Key", "Mask", "Sub Mask"},
    {"Key", "Resizer", "Resizer"},
    {"Key", "Processed Key", "Processed Key"},
    {"Key", "Transition", "Transition"},
    {"Key", "Video Process", "Video Process"},
    {"Wipe", "Main Pattern", "Main Pattern"},
    {"Wipe", "Sub Pattern", "Sub Pattern"},
    {"Wipe", "Pattern Mix", "Pattern Mix"},
    {"Wipe", "Edge", "Edge"},
    {"Wipe", "Edge", "Edge/Direction"},
    {"Wipe", "Direction", "Direction"},
    {"Wipe", "Main Modify", "Main Modify"},
    {"Wipe", "Sub Modify", "Sub Modify"},
    {"DME Wipe", "Pattern Select", "Pattern Select"},
    {"DME Wipe", "Pattern Modifier", "Pattern Modifier"},
    {"DME Wipe", "Edge", "Edge"},
    {"DME Wipe", "Edge", "Edge/Direction"},
    {"DME Wipe", "Direction", "Direction"},
    {"DME Wipe", "Modify", "Modify"},
    {"Matte/Color", "Color 1", "Color 1"},
    {"Matte/Color", "Color 2", "Color 2"},
    {"Matte/Color", "Mix Pattern", "M*"}, // mode, mix, its pattern
    {"Matte/Color", "Mix Pattern", "Pattern"},
    {"Matte/Color", "Mix Pattern", "Wash"},
    {"Color Bkgd", "Color 1", "Color 1"},
    {"Color Bkgd", "Color 2", "Color 2"},
    {"Color Bkgd", "Mix Pattern", "M*"},
    {"Color Bkgd", "Mix Pattern", "Pattern"},
    {"Color Bkgd", "Mix Pattern", "Wash"},
    {"DME Effect", "Edge", "Edge"},
    {"DME Effect", "Video", "Video"},
    {"DME Effect", "Nonlinear", "Nonlinear"},
    {"DME Effect", "Light", "Light"},
    {"DME Effect", "Transform", "Transform"},
    {"DME Effect", "Input/Output", "Input/Output"},
    {"DME Effect", "Freeze", "Freeze"},
};

// The tree has the values of the channel that the panels work on; these are the others'.
using Channels = std::array<PathValues, CHANNELS>;

static struct {
    std::map<std::string, PathValues> before; // of the last of each kind
    std::map<std::string, Channels> channels_before;
    Channels channels;
} cw;

void CopySwap_Install()
{
    cw = {};
    for (const Part& part : parts)
        Tree_Preset(ROOT + part.kind + "@Undo Enable", "false");
    Tree_Preset(ROOT + CHANNEL + "@Undo Enable", "false");
}

// --- Orders ---

static bool is_effect(const std::string& kind)
{
    return kind == CHANNEL || kind == EFFECT;
}

// Of a bank, or a background; a channel is a number.
static bool is_thing(const std::string& kind, const std::string& path)
{
    return is_effect(kind) || Text_Begins(path, "M/E-") || Text_Begins(path, "PGM/PST") ||
           Text_Begins(path, "Color Bkgd@");
}

// "FROM,TO,All" or "FROM,TO,PART,PART..."
static bool read_order(const std::string& kind, const std::string& value, Order* order)
{
    const std::vector<std::string> fields = Text_Split(value, ',');
    if (fields.size() < 3 || fields[0] == fields[1] || !is_thing(kind, fields[0]) ||
        !is_thing(kind, fields[1]))
        return false;
    *order = {kind, fields[0], fields[1], {}};
    for (size_t i = 2; i < fields.size(); i++) {
        const size_t before = order->parts.size();
        for (const Part& part : parts)
            if (kind == part.kind && fields[i] == part.word)
                order->parts.push_back(part.path);
        if (fields[i] != "All" && order->parts.size() == before)
            return false;
    }
    return true;
}

static bool is_meant(const Order& order, const std::string& tail)
{
    const std::string words = tail.substr(1);
    const auto begins = [&](const std::string& part) {
        const int count = 1 + int(std::count(part.begin(), part.end(), '@'));
        return Text_MatchesPath(Text_Head(words, count), part);
    };
    return order.parts.empty() || std::any_of(order.parts.begin(), order.parts.end(), begins);
}

// Neither what is on the air nor what happens only once.
static bool is_copied(const Node& node)
{
    const bool is_status = node.path.find("@Status@") != std::string::npos &&
                           node.path.find("@Xpt Assign@") == std::string::npos;
    return !is_status && node.type.kind != KIND_ACTION && node.type.kind != KIND_LIST &&
           !Dme_IsSelection(node.path);
}

// --- Values below a thing, as they are relative to it ---

// The keys of one bank are called otherwise on another: "@DSK1@Type" is "@Key1@Type".
static std::string renamed(std::string tail, const std::string& to)
{
    const bool is_pgm = Text_Begins(to, "PGM/PST");
    if (is_pgm && Text_Begins(tail, "@Key") && tail.size() > 4 && isdigit((unsigned char)tail[4]))
        tail.replace(0, 4, "@DSK");
    else if (!is_pgm && Text_Begins(tail, "@DSK"))
        tail.replace(0, 4, "@Key");
    return tail;
}

static PathValues values_of(const Order& order, const std::string& thing)
{
    PathValues values;
    for (const Node* node : Tree_Under(thing)) {
        const std::string tail = node->path.substr(thing.size());
        if (!tail.empty() && is_copied(*node) && is_meant(order, tail))
            values.emplace_back(tail, node->value);
    }
    return values;
}

// What the other has not been asked for yet stands at its default there.
static void give(const Order& order, const PathValues& values, const std::string& to)
{
    PathValues wanted;
    for (const Node* node : Tree_Under(to)) {
        const std::string tail = node->path.substr(to.size());
        if (!tail.empty() && is_copied(*node) && is_meant(order, tail))
            wanted.emplace_back(node->path, node->initial);
    }
    for (const auto& [tail, value] : values)
        wanted.emplace_back(to + renamed(tail, to), value); // the later one counts
    std::map<std::string, std::string> last;
    for (const auto& [path, value] : wanted)
        last[path] = value;
    for (const auto& [path, value] : last) {
        const Node* const node = Tree_Get(path);
        if (!node)
            continue;
        cw.before[order.kind].emplace_back(path, node->value);
        Tree_Show(path, value);
    }
}

// --- Channels ---

// The lowest of the bits that tell which channels the panels refer to.
static int reference_channel()
{
    const Node* const node = Tree_Find("Info@DME@RefCH");
    const unsigned long bits = node ? strtoul(node->value.c_str(), nullptr, 16) : 1;
    for (int channel = 1; channel <= CHANNELS; channel++)
        if (bits >> (channel - 1) & 1)
            return channel;
    return 1;
}

static PathValues values_of_channel(const Order& order, int channel)
{
    if (channel == reference_channel())
        return values_of(order, "DME");
    PathValues values = cw.channels[size_t(channel - 1)];
    std::erase_if(values, [&](const auto& pair) { return !is_meant(order, pair.first); });
    return values;
}

static void give_channel(const Order& order, const PathValues& values, int channel)
{
    if (channel == reference_channel())
        return give(order, values, "DME");
    PathValues& kept = cw.channels[size_t(channel - 1)];
    std::erase_if(kept, [&](const auto& pair) { return is_meant(order, pair.first); });
    kept.insert(kept.end(), values.begin(), values.end());
}

static bool run_on_channels(const Order& order, bool is_swap)
{
    long from = 0, to = 0;
    if (!Text_ToInt(order.from, &from) || !Text_ToInt(order.to, &to) || std::min(from, to) < 1 ||
        std::max(from, to) > CHANNELS)
        return false;
    cw.channels_before[order.kind] = cw.channels;
    const PathValues one = values_of_channel(order, int(from));
    const PathValues other = values_of_channel(order, int(to));
    give_channel(order, one, int(to));
    if (is_swap)
        give_channel(order, other, int(from));
    return true;
}

// --- What is asked for ---

static bool run(const Order& order, bool is_swap)
{
    cw.before[order.kind].clear();
    if (is_effect(order.kind))
        return run_on_channels(order, is_swap);
    const PathValues one = values_of(order, order.from);
    const PathValues other = values_of(order, order.to);
    give(order, one, order.to);
    if (is_swap)
        give(order, other, order.from);
    Dme_ShowStatus();
    return true;
}

bool CopySwap_Put(const std::string& path, const std::string& value)
{
    const size_t at = path.rfind('@');
    const std::string verb = path.substr(at + 1);
    if (verb != "Copy" && verb != "Swap")
        return false;
    const std::string kind = at > ROOT.size() ? path.substr(ROOT.size(), at - ROOT.size()) : "";
    Order order;
    if (!read_order(kind, value, &order) || !run(order, verb == "Swap"))
        Log_Note("copy/swap refused: %.200s#%.200s", path.c_str(), value.c_str());
    else
        Tree_Show(ROOT + kind + "@Undo Enable", "true");
    Tree_Show(path, value);
    return true;
}

void CopySwap_Undo(const std::string& kind)
{
    const auto channels = cw.channels_before.find(kind);
    if (channels != cw.channels_before.end())
        cw.channels = channels->second;
    const PathValues before = cw.before[kind];
    cw.before.erase(kind);
    cw.channels_before.erase(kind);
    for (const auto& [path, value] : before)
        Tree_Show(path, value);
    Dme_ShowStatus();
    Tree_Show(ROOT + kind + "@Undo Enable", "false");
}
