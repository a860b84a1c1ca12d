// What a recall leaves alone: the crosspoint hold of a snapshot and the recall mode of a key.
#include "region.h"
#include "store_private.h"
#include "text.h"
#include "tree.h"
#include <algorithm>

static const std::string XPT = "@Status@Xpt Assign@";
static constexpr size_t BANK_MARKS = 24; // of a bank's hold at most
static constexpr int USER_BUSES = 60;
static constexpr int ROUTER_BYTES = 128; // one a destination, with a bit for each of eight levels

// --- Crosspoint hold: marks of a bank, bits of a user's buses and of the router ---

// A key under hold stays as it is, signals and settings.
static void hold_bank(const std::string& hold, bool is_pgm, std::set<std::string>* held)
{
    static const struct {
        const char* mark;
        const char* bus;
    } pairs[] = {{"U1", "UTIL1"}, {"U2", "UTIL2"}, {"U3", "UTIL3"}, {"D2", "DME2"}};
    std::string marks = hold.substr(0, BANK_MARKS);
    for (const auto& pair : pairs)
        if (const size_t at = marks.find(pair.mark); at != marks.npos) {
            marks.replace(at, 2, "__"); // its digit is no key
            held->insert(XPT + pair.bus);
        }
    for (const char c : marks) {
        if (c == 'A' || c == 'B')
            held->insert(XPT + c);
        else if (c >= '1' && c <= '8')
            held->insert((is_pgm ? "@DSK" : "@Key") + std::string(1, c));
    }
}

// Eight digits are 32 buses, the last bit the first bus.
static void hold_user(const std::string& hold, std::set<std::string>* held)
{
    constexpr int WORD_BITS = 32, WORD_DIGITS = 8;
    for (int bus = 0; bus < USER_BUSES; ++bus) {
        const size_t at = size_t(bus / WORD_BITS * WORD_DIGITS);
        if (at >= hold.size())
            return;
        const uint64_t word = strtoull(hold.substr(at, WORD_DIGITS).c_str(), nullptr, 16);
        if (word >> (bus % WORD_BITS) & 1)
            held->insert(XPT + "Bus" + std::to_string(bus + 1));
    }
}

static void hold_router(const std::string& hold, std::set<std::string>* held)
{
    for (int destination = 0; destination < ROUTER_BYTES; ++destination) {
        const size_t at = 2 * size_t(destination);
        const unsigned long levels =
            at < hold.size() ? strtoul(hold.substr(at, 2).c_str(), nullptr, 16) : 0;
        for (int level = 0; level < 8; ++level)
            if (levels >> level & 1)
                held->insert(XPT + Text_Format("Dest%d@Level%d", destination + 1, level + 1));
    }
}

static std::set<std::string> held_by_snapshot(int region, const std::string& hold)
{
    std::set<std::string> held;
    if (region < REGION_USER1)
        hold_bank(hold, Text_Begins(Regions()[size_t(region)].tree, "PGM"), &held);
    else if (region < REGION_DME1)
        hold_user(hold, &held);
    else if (region == REGION_RTR)
        hold_router(hold, &held);
    else if (hold.find("Fv") != hold.npos)
        held = {XPT + "Fv", XPT + "Fk", XPT + "Bv", XPT + "Bk"};
    return held;
}

std::string Store_HoldWithoutBackground(const std::string& hold)
{
    std::string rest = hold;
    std::erase_if(rest, [](char c) { return c == 'A' || c == 'B'; });
    return rest;
}

// --- Recall mode of a key: "M/E-1@Key1,MODIFIER,TRANSITION,XPT" ---

static const char* const key_signals[] = {"@Type@Signal Select", "@Type@Key Fill",
                                          "@Type@Key Source", "@Status@Source Name"};

static std::vector<std::string> key_modes(const std::string& key)
{
    std::vector<std::string> modes = {"true", "true", "true"};
    if (const Node* node = Tree_Find(KEY_RECALL_MODE))
        for (const std::string& line : node->rows)
            if (Text_Begins(line, key + ",") && Text_Split(line, ',').size() == 4)
                modes = Text_Split(line.substr(key.size() + 1), ',');
    return modes;
}

static bool is_below(const std::string& tail, const std::string& head)
{
    return tail == head || Text_Begins(tail, head + "@");
}

static bool is_left_by_mode(const std::vector<std::string>& modes, const std::string& tail)
{
    const bool is_signal = std::any_of(std::begin(key_signals), std::end(key_signals),
                                       [&tail](const char* head) { return is_below(tail, head); });
    const size_t mode = is_signal ? 2 : is_below(tail, "@Transition") ? 1 : 0;
    return modes[mode] != "true";
}

// --- Both ---

Left Store_LeftAlone(const Kind& kind, int row, const Register& r)
{
    Left left;
    if (kind.kind == STORE_SNAPSHOT)
        left.held = held_by_snapshot(Region_OfSnapshotRow(row), r.hold);
    if (kind.kind == STORE_KEY)
        left.key_modes = key_modes(Store_RowName(kind, row));
    return left;
}

bool Store_IsLeftAlone(const Left& left, const std::string& tail)
{
    if (!left.key_modes.empty())
        return is_left_by_mode(left.key_modes, tail);
    for (std::string head = tail; !head.empty() && !left.held.empty(); head.resize(head.rfind('@')))
        if (left.held.contains(head))
            return true;
    return false;
}
