#include "store.h"
#include "clip_output.h"
#include "macro.h"
#include "region.h"
#include "store_private.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <cstdio>

static constexpr int KEYS = 8;
static constexpr int BANKS = 6;
static constexpr int USERS = 8;
static constexpr int CLIP_REGIONS = 20;
static constexpr int MASTER_SNAPSHOT_LINKS = 30; // one more than there are regions

static const Kind kinds[STORE_KINDS] = {
    {STORE_EFFECT, "effect", "Effect@Effect@", "Effect@Effect@Attribute@List@", "", REGION_EFFECTS,
     true, "EFCT"},
    {STORE_MASTER_EFFECT, "mastereffect", "Effect@Master Timeline@",
     "Effect@Master Timeline@Store/Recall@List", "", 1, false, "MTL"},
    {STORE_SNAPSHOT, "snapshot", "Snapshot@Snapshot@", "Snapshot@Snapshot@Attribute@", "@List",
     REGION_SNAPSHOTS + 1, true, "SNAP"},
    {STORE_MASTER_SNAPSHOT, "mastersnapshot", "Snapshot@Master Snapshot@",
     "Snapshot@Master Snapshot@Store/Recall@List", "", 1, false, "MSS"},
    {STORE_WIPE, "wipe", "Snapshot@Wipe Snapshot@", "Snapshot@Wipe Snapshot@", "@List", 2 * BANKS,
     true, "WIPE"},
    {STORE_DME, "dmewipe", "Snapshot@DME Snapshot@", "Snapshot@DME Snapshot@", "@List", 2 * BANKS,
     true, "DWIP"},
    {STORE_KEY, "key", "Snapshot@Key Snapshot@", "Snapshot@Key Snapshot@Attribute@", "@List",
     BANKS* KEYS, true, "KEY"},
    {STORE_SHOTBOX, "shotbox", "Shotbox@Register@", "Shotbox@Register@Store/Recall@List", "", 1,
     false, "SHOT"},
    {STORE_MACRO, "macro", "Macro@Register@", "Macro@Register@List", "", 1, true, "MCRO"},
};

namespace
{
struct ClipEvent {
    bool is_event = false, is_auto_play = false, is_loop = false;
    std::string name;
    int start = 0, stop = 0; // frames
};
using ClipKey = std::pair<int, int>; // frame-memory sub region from 0, number
} // namespace

static struct {
    std::vector<std::map<int, Register>> rows[STORE_KINDS];
    std::vector<int> current[STORE_KINDS];
    std::map<ClipKey, ClipEvent> clips[USERS];
} sr;

// --- Rows and numbers ---

const Kind& Store_Kind(StoreKind kind)
{
    return kinds[kind];
}

int Store_SnapshotRow(int region)
{
    return region == REGION_RTR ? REGION_SNAPSHOTS : region < REGION_SNAPSHOTS ? region : -1;
}

static int row_region(const Kind& kind, int row)
{
    return kind.kind == STORE_SNAPSHOT ? Region_OfSnapshotRow(row) : row;
}

std::string Store_RowName(const Kind& kind, int row)
{
    if (kind.rows == 1)
        return "";
    if (kind.kind == STORE_KEY)
        return Text_Format("%s@Key%d", Regions()[size_t(row / KEYS)].name.c_str(), row % KEYS + 1);
    return Regions()[size_t(row_region(kind, row))].name;
}

std::string Store_ListPath(const Kind& kind, int row)
{
    return kind.list_head + Store_RowName(kind, row) + kind.list_tail;
}

static bool is_dme_row(const Kind& kind, int row)
{
    return kind.kind == STORE_EFFECT && row >= REGION_DME1 && row < REGION_DEV1;
}

int Store_HomeRow(const Kind& kind, int row, int number)
{
    if (!is_dme_row(kind, row) || number < 100)
        return row;
    return row - (row - REGION_DME1) % 4;
}

bool Store_IsNumber(const Kind& kind, int row, int number)
{
    if (number < 1)
        return false;
    switch (kind.kind) {
    case STORE_EFFECT:
        if (is_dme_row(kind, row))
            return number < 400 && number % 100 != 0;
        return number <= (row >= REGION_DEV1 && row <= REGION_PBUS ? 250 : 99);
    case STORE_WIPE:
    case STORE_DME: return number <= 10;
    case STORE_KEY: return number <= 4;
    case STORE_MACRO: return number <= 250;
    default: return number <= 99;
    }
}

Register& Store_Register(const Kind& kind, int row, int number)
{
    return sr.rows[kind.kind][size_t(Store_HomeRow(kind, row, number))][number];
}

const std::map<int, Register>& Store_Row(const Kind& kind, int row)
{
    return sr.rows[kind.kind][size_t(row)];
}

// --- List lines ---

// A bare number is an effect or what the master is of, "S12" a snapshot.
static std::string line_links(const std::vector<int>& links, size_t count)
{
    std::string text;
    for (size_t i = 0; i < count; ++i) {
        const int link = i < links.size() ? links[i] : 0;
        text += link < 0 ? Text_Format(",S%d", -link) : link > 0 ? Text_Format(",%d", link) : ",";
    }
    return text;
}

static std::string line_effect(const Register& r)
{
    return Text_Format("%s,%s,%s,%s,%d", r.exists ? "S" : "E", r.name.c_str(),
                       r.is_locked ? "L" : "U", r.has_dissolve ? "D" : "N", r.duration);
}

// One field for both: empty, locked, or stored.
static const char* line_status(const Register& r)
{
    return !r.exists ? "E" : r.is_locked ? "L" : "S";
}

// Dissolve and automatic transition show their duration, or none.
static std::string line_snapshot(const Register& r)
{
    const std::string frames = std::to_string(r.duration);
    return r.name + "," + line_status(r) + "," + r.hold + "," + (r.has_dissolve ? frames : "n") +
           "," + (r.has_auto_transition ? frames : "n") + "," + (r.has_gpi ? "1" : "n");
}

static std::string line_master(const Register& r, size_t links)
{
    return Text_Format("%s,%s,%s", r.name.c_str(), r.exists ? "S" : "E", r.is_locked ? "L" : "U") +
           line_links(r.links, links);
}

static std::string store_line(const Kind& kind, int number, const Register& r)
{
    const std::string head = std::to_string(number) + ",";
    switch (kind.kind) {
    case STORE_EFFECT: return head + line_effect(r);
    case STORE_MASTER_EFFECT: return head + line_master(r, REGION_EFFECTS);
    case STORE_SNAPSHOT: return head + line_snapshot(r);
    case STORE_MASTER_SNAPSHOT: return head + line_master(r, MASTER_SNAPSHOT_LINKS);
    case STORE_SHOTBOX:
        return head + r.name + (r.is_locked ? ",L" : ",U") + (r.is_auto_run ? ",A" : ",") +
               line_links(r.links, SHOTBOX_LINKS);
    case STORE_MACRO:
        return head + Text_Format("%s,%s,%s,%d,0", r.exists ? "S" : "E", r.name.c_str(),
                                  r.is_locked ? "L" : "U", r.exists ? number : 0);
    case STORE_WIPE:
    case STORE_DME:
        return head + r.name + "," + line_status(r) +
               (r.exists ? Text_Format(",%d", r.pattern) : "");
    default: return head + r.name + "," + line_status(r);
    }
}

static std::string clip_line(const ClipKey& key, const ClipEvent& clip)
{
    const auto on = [](bool is_on) { return is_on ? "ON" : "OFF"; };
    return Text_Format("FM%d,%d,%s,%s,%s,%s,%d,%d", key.first + 1, key.second, on(clip.is_event),
                       on(clip.is_auto_play), on(clip.is_loop), clip.name.c_str(), clip.start,
                       clip.stop);
}

static std::string clip_path(int user)
{
    return Text_Format("Snapshot@Snapshot@Clip Event@User%d@List", user + 1);
}

// --- Lists ---

void Store_Show(const Kind& kind, int row, int number)
{
    const int home = Store_HomeRow(kind, row, number);
    const Register& r = Store_Register(kind, row, number);
    Tree_ShowRow(Store_ListPath(kind, home), store_line(kind, number, r));
    if (kind.kind == STORE_MACRO)
        Macro_RegisterChanged(number);
    if (kind.kind == STORE_EFFECT && r.exists)
        for (int region = 0; region < REGION_COUNT; ++region) {
            const Timeline& line = Timeline_Of(region);
            const int source =
                region < REGION_GLOBAL1 ? region : region - REGION_GLOBAL1 + REGION_DME1;
            const bool is_loaded =
                line.number == number && Store_HomeRow(kind, source, number) == home;
            if (is_loaded && (line.effect.name != r.name || line.is_locked != r.is_locked))
                Timeline_SetHead(region, number, r.name, r.is_locked);
        }
}

void Store_ShowRow(const Kind& kind, int row)
{
    if (const Node* node = Tree_Find(Store_ListPath(kind, row)))
        for (const std::string& line : node->rows)
            Tree_Tell(*node, line, 0);
}

static std::vector<std::string> store_lines(const Kind& kind, int row)
{
    const Register empty;
    const auto& held = Store_Row(kind, row);
    std::vector<std::string> lines;
    for (int number = 1; number < 400; ++number) {
        if (!Store_IsNumber(kind, row, number) || Store_HomeRow(kind, row, number) != row)
            continue;
        const auto found = held.find(number);
        lines.push_back(store_line(kind, number, found == held.end() ? empty : found->second));
    }
    return lines;
}

static void store_make_lists()
{
    for (const Kind& kind : kinds)
        for (int row = 0; row < kind.rows; ++row)
            Tree_SetList(Store_ListPath(kind, row), store_lines(kind, row), 1);
    std::vector<std::string> modes; // modifier, transition, crosspoint: all come back
    for (int row = 0; row < kinds[STORE_KEY].rows; ++row)
        modes.push_back(Store_RowName(kinds[STORE_KEY], row) + ",true,true,true");
    Tree_SetList(KEY_RECALL_MODE, modes, 1);
    for (int user = 0; user < USERS; ++user) {
        std::vector<std::string> lines;
        for (const auto& [key, clip] : sr.clips[user])
            lines.push_back(clip_line(key, clip));
        Tree_SetList(clip_path(user), lines, 2);
    }
}

void Store_PlayClips(int user, int number)
{
    for (const auto& [key, clip] : sr.clips[user])
        if (key.second == number && clip.is_event && clip.is_auto_play)
            ClipOutput_Start(key.first, clip.name, clip.start, clip.stop, clip.is_loop);
}

void Store_SetAutoPlay(int user, int sub_region, int number, bool on)
{
    const bool is_one = user >= 0 && user < USERS && sub_region >= 0 && sub_region < CLIP_REGIONS &&
                        number >= 1 && number <= 99;
    if (!is_one)
        return;
    ClipEvent& clip = sr.clips[user][{sub_region, number}];
    clip.is_auto_play = on;
    Tree_ShowRow(clip_path(user), clip_line({sub_region, number}, clip));
}

void Store_SetCurrent(const Kind& kind, int row, int number)
{
    sr.current[kind.kind][size_t(row)] = number;
    const bool is_told = kind.kind == STORE_MASTER_EFFECT || kind.kind == STORE_MASTER_SNAPSHOT ||
                         kind.kind == STORE_SHOTBOX;
    if (is_told)
        Tree_Show(std::string(kind.commands) + "Store/Recall@Current Register",
                  std::to_string(number));
}

int Store_Current(const Kind& kind, int row)
{
    return sr.current[kind.kind][size_t(row)];
}

int Store_RowOfName(const Kind& kind, const std::string& name)
{
    if (kind.rows == 1)
        return name.empty() ? 0 : -1;
    for (int row = 0; row < kind.rows; ++row)
        if (Store_RowName(kind, row) == name)
            return row;
    const int region = kind.kind == STORE_KEY ? -1 : Region_ByName(name);
    for (int row = 0; region >= 0 && row < kind.rows; ++row)
        if (row_region(kind, row) == region)
            return row;
    return -1;
}

void Store_Install()
{
    sr = {};
    for (const Kind& kind : kinds) {
        sr.rows[kind.kind].resize(size_t(kind.rows));
        sr.current[kind.kind].assign(size_t(kind.rows), 0);
    }
    Store_Stock();
    sr.clips[0][{0, 1}] = {true, true, false, "BREAK", 0, 74};
    sr.clips[0][{1, 1}] = {true, false, true, "NEWS/OPENING", 30, 99};
    store_make_lists();
    const Kind& effects = kinds[STORE_EFFECT];
    for (const char* name : {"M/E-1", "P/P"}) {
        const int region = Region_ByName(name);
        const Register& r = Store_Register(effects, region, 1);
        Timeline_Load(region, 1, r.effect, r.is_locked);
        Store_SetCurrent(effects, region, 1);
    }
}

// --- The console ---

static const Kind* kind_of_word(const std::string& word)
{
    for (const Kind& kind : kinds)
        if (word == kind.word)
            return &kind;
    return nullptr;
}

bool Store_Print(const std::string& word, const std::string& region)
{
    const Kind* kind = kind_of_word(word);
    const int only = kind && !region.empty() ? Store_RowOfName(*kind, region) : -1;
    if (!kind || (!region.empty() && only < 0))
        return false;
    for (int row = 0; row < kind->rows; ++row)
        for (const auto& [number, r] : Store_Row(*kind, row))
            if (r.exists && (only < 0 || row == only))
                printf("%s#%s\n", Store_ListPath(*kind, row).c_str(),
                       store_line(*kind, number, r).c_str());
    return true;
}

bool Store_HasRegions(const std::string& word)
{
    const Kind* const kind = kind_of_word(word);
    return kind && kind->rows > 1;
}

// It takes the road of a panel's command.
bool Store_Do(const StoreOrder& order)
{
    static const struct {
        const char* verb;
        const char* word;
        const char* tail;
    } verbs[] = {{"store", "Store", ""},    {"recall", "Recall", ""},     {"rename", "Rename", ""},
                 {"lock", "Lock", ",true"}, {"unlock", "Lock", ",false"}, {"delete", "Delete", ""},
                 {"copy", "Copy", ""},      {"move", "Move", ""},         {"swap", "Swap", ""}};
    const Kind* kind = kind_of_word(order.kind);
    const int row = kind ? Store_RowOfName(*kind, order.region) : -1;
    if (row < 0 || !Store_IsNumber(*kind, row, order.first) || order.last < order.first)
        return false;
    const bool is_one = order.verb == "store" || order.verb == "recall" || order.verb == "rename";
    std::string value = Store_MaskText(*kind, row) + std::to_string(order.first) + "," +
                        (is_one ? order.name : std::to_string(order.last));
    if (order.to > 0) {
        const int to_row = Store_RowOfName(*kind, order.to_region);
        if (to_row < 0 || !Store_IsNumber(*kind, to_row, order.to))
            return false;
        value += "," + Store_MaskText(*kind, to_row) + std::to_string(order.to) +
                 (order.keeps_names ? ",true" : ",false");
    }
    for (const auto& verb : verbs)
        if (order.verb == verb.verb) {
            Store_Command(*kind, kind->commands + std::string(verb.word), value + verb.tail);
            return true;
        }
    return false;
}
