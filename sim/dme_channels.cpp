#include "dme_channels.h"
#include "text.h"
#include "tree.h"
#include <array>

static constexpr int CHANNELS = 8;
static constexpr const char* SELECTION = "*@*@Processed Key@DME Select@DME*";
static constexpr const char* OVERRIDE = "*@*@Processed Key@Override@DME*";
static const std::string STATUS = "M/E-1@Key1@Processed Key@DME Status"; // one for the whole system
static const std::string CHANNEL = "DME@Status@Channel@"; // for the cells of the effects menu
static const std::string ASPECT = "Engineering Setup@System@Format@DME Aspect";

namespace
{
// What a channel does while no key has it: the wipe of a bank.
struct Wipe {
    const char* aspect;
    int bank; // 0 P/P, 1 to 5
};
} // namespace
static constexpr int FUNCTION_WIPE = 8; // below are the keys from 0
static constexpr Wipe wipes[CHANNELS] = {{"16:9", 1}, {"16:9", 1}, {"4:3", 1},  {"16:9", 2},
                                         {"16:9", 3}, {"4:3", 4},  {"16:9", 5}, {"16:9", 0}};

static struct {
    std::array<std::string, CHANNELS> users; // "M/E-1@Key1", empty: free
} dm;

// The key that has the channel, or the bank whose transition is such a wipe just now; empty: free.
static std::string user_of(int channel)
{
    const std::string& key = dm.users[size_t(channel)];
    const int bank = wipes[channel].bank;
    const std::string word = bank == 0 ? "PGM/PST" : Text_Format("M/E-%d", bank);
    const Node* const is_wipe = Tree_Find(word + "@Misc@Transition@DME Wipe");
    return !key.empty() || !is_wipe || is_wipe->value != "true" ? key : word + "@DME Wipe";
}

static std::string selection_of(const std::string& key, int channel)
{
    return key + "@Processed Key@DME Select@DME" + std::to_string(channel + 1);
}

// "PGM/PST@DSK3": bank 0, key 2.
static void bank_and_key(const std::string& user, int* bank, int* key)
{
    *bank = Text_Begins(user, "M/E-") ? user[4] - '0' : 0;
    *key = user.back() - '1';
}

static std::string aspect_row(int channel)
{
    int bank = wipes[channel].bank, function = FUNCTION_WIPE;
    if (!dm.users[size_t(channel)].empty())
        bank_and_key(dm.users[size_t(channel)], &bank, &function);
    return Text_Format("%d,%s,%d,%d", channel + 1, wipes[channel].aspect, bank, function);
}

void Dme_ShowStatus()
{
    std::string status;
    for (int i = 0; i < CHANNELS; ++i) {
        const std::string user = user_of(i);
        status += (status.empty() ? "" : ",") + (user.empty() ? "Free" : user);
        Tree_Show(CHANNEL + std::to_string(i + 1), user);
    }
    Tree_Show(STATUS, status);
}

static void give(int channel, const std::string& key)
{
    std::string& user = dm.users[size_t(channel)];
    const std::string before = user;
    if (before == key)
        return;
    user = key;
    for (const std::string& one : {before, key})
        if (!one.empty())
            Tree_Show(selection_of(one, channel), one == key ? "true" : "false");
    Tree_ShowRow(ASPECT, aspect_row(channel));
    Dme_ShowStatus();
}

void Dme_Install()
{
    dm = {};
    for (int i = 0; i < CHANNELS; ++i)
        Tree_ShowRow(ASPECT, aspect_row(i));
    Dme_ShowStatus();
    if (Node* node = Tree_Find(STATUS))
        node->initial = node->value;
}

bool Dme_IsSelection(const std::string& path)
{
    return Text_MatchesPath(path, SELECTION) || Text_MatchesPath(path, OVERRIDE);
}

// An override is true for a moment only, like a key that is pressed.
bool Dme_Put(const std::string& path, const std::string& value)
{
    if (!Dme_IsSelection(path))
        return path == STATUS;
    const int channel = path.back() - '1';
    if (channel < 0 || channel >= CHANNELS)
        return true;
    const std::string key = Text_Head(path, 2);
    const std::string user = user_of(channel);
    const bool may_take = user.empty() || user == key || Text_MatchesPath(path, OVERRIDE);
    if (value == "true" && may_take)
        give(channel, key);
    else if (value == "false" && user == key)
        give(channel, "");
    return true;
}
