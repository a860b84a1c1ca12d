#include "store.h"
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
static constexpr int SHOTBOX_LINKS = 44;

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

static std::string line_links(const std::vector<int>& links, size_t count)
{
    std::string text;
    for (size_t i = 0; i < count; ++i)
        text += i < links.size() && links[i] > 0 ? "," + std::to_string(links[i]) : ",";
    return text;
}

static std::string line_effect(const Register& r)
{
    return Text_Format("%s,%s,%s,%s,%d", r.exists ? "S" : "E", r.name.c_str(),
                       r.is_locked ? "L" : "U", r.effect.has_dissolve ? "D" : "N",
                       r.effect.duration());
}

// One field for both: empty, locked, or stored.
static const char* line_status(const Register& r)
{
    return !r.exists ? "E" : r.is_locked ? "L" : "S";
}

// Dissolve and automatic transition show their duration, or none.
static std::string line_snapshot(const Register& r)
{
    const std::string frames = std::to_string(r.dissolve_frames);
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
    static const Register empty;
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
    std::vector<std::string> modes; // modifier, transition, crosspoint
    for (int row = 0; row < kinds[STORE_KEY].rows; ++row)
        modes.push_back(Store_RowName(kinds[STORE_KEY], row) + ",false,false,false");
    Tree_SetList("Snapshot@Key Snapshot@Attribute@Recall Mode", modes, 1);
    for (int user = 0; user < USERS; ++user) {
        std::vector<std::string> lines;
        for (const auto& [key, clip] : sr.clips[user])
            lines.push_back(clip_line(key, clip));
        Tree_SetList(clip_path(user), lines, 2);
    }
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
    if (kind.kind == STORE_MASTER_EFFECT || kind.kind == STORE_MASTER_SNAPSHOT)
        Tree_Show(std::string(kind.commands) + "Store/Recall@Current Register",
                  std::to_string(number));
}

int Store_Current(const Kind& kind, int row)
{
    return sr.current[kind.kind][size_t(row)];
}

// --- What is there at the start ---

namespace
{
struct Stock {
    StoreKind kind;
    const char* row; // name of a region or key
    int number;
    const char* name;
    bool is_locked;
};
struct EffectStock {
    const char* region;
    int number;
    int keys, frames; // apart
    int pause, loop_first, loop_last, loop_count, delay;
};
} // namespace

static const Stock stock[] = {
    {STORE_EFFECT, "M/E-1", 1, "OPENING", false},
    {STORE_EFFECT, "M/E-1", 2, "SLIDE IN", false},
    {STORE_EFFECT, "M/E-1", 3, "LOGO LOOP", true},
    {STORE_EFFECT, "M/E-1", 99, "BLACK", true},
    {STORE_EFFECT, "M/E-2", 1, "OPENING", false},
    {STORE_EFFECT, "P/P", 1, "OPENING", false},
    {STORE_EFFECT, "P/P", 2, "CREDITS", false},
    {STORE_EFFECT, "User1", 1, "AUX SWEEP", false},
    {STORE_EFFECT, "DME1", 1, "FLY IN", false},
    {STORE_EFFECT, "DME1", 2, "SPIN", false},
    {STORE_EFFECT, "DME2", 1, "FLY OUT", false},
    {STORE_EFFECT, "DME1", 101, "PAGE TURN", false},
    {STORE_EFFECT, "DME1", 102, "CUBE", true},
    {STORE_EFFECT, "DME1", 201, "DUAL FLIP", false},
    {STORE_EFFECT, "DME1", 301, "TRIPLE", false},
    {STORE_EFFECT, "DME5", 101, "SPHERE", false},
    {STORE_EFFECT, "Dev1", 1, "VTR ROLL", false},
    {STORE_EFFECT, "Dev1", 250, "SERVER CUE", false},
    {STORE_EFFECT, "P-Bus", 10, "PBUS 10", false},
    {STORE_EFFECT, "GPI", 1, "TALLY", false},
    {STORE_EFFECT, "MACRO", 1, "START", false},
    {STORE_MASTER_EFFECT, "", 1, "SHOW OPEN", false},
    {STORE_MASTER_EFFECT, "", 2, "SHOW END", true},
    {STORE_SNAPSHOT, "M/E-1", 1, "TWO SHOT", false},
    {STORE_SNAPSHOT, "M/E-1", 2, "WIDE", true},
    {STORE_SNAPSHOT, "M/E-1", 10, "WEATHER", false},
    {STORE_SNAPSHOT, "M/E-2", 1, "SPORTS", false},
    {STORE_SNAPSHOT, "P/P", 1, "STUDIO", false},
    {STORE_SNAPSHOT, "User1", 1, "AUX DAY", false},
    {STORE_SNAPSHOT, "DME1", 1, "FULL SIZE", false},
    {STORE_SNAPSHOT, "RTR", 1, "NORMAL", false},
    {STORE_MASTER_SNAPSHOT, "", 1, "MORNING", false},
    {STORE_MASTER_SNAPSHOT, "", 2, "EVENING", true},
    {STORE_WIPE, "M/E-1", 1, "CIRCLE", false},
    {STORE_WIPE, "P/P", 1, "DIAGONAL", true},
    {STORE_DME, "M/E-1", 1, "PUSH", false},
    {STORE_KEY, "M/E-1@Key1", 1, "TITLE", false},
    {STORE_KEY, "M/E-1@Key1", 2, "LOGO", true},
    {STORE_KEY, "P/P@Key1", 1, "CLOCK", false},
    {STORE_SHOTBOX, "", 1, "INTRO", false},
    {STORE_SHOTBOX, "", 2, "BREAK", true},
    {STORE_MACRO, "", 1, "MIC CHECK", false},
    {STORE_MACRO, "", 2, "GO LIVE", true},
    {STORE_MACRO, "", 250, "PARK", false},
};

// What the snapshots above hold; all else below their region is at its default in them.
static const struct {
    StoreKind kind;
    const char* row;
    int number;
    const char* path;
    const char* value;
} stock_values[] = {
    {STORE_SNAPSHOT, "M/E-1", 1, "M/E-1@Key1@Type@Key Type", "Linear"},
    {STORE_SNAPSHOT, "M/E-1", 1, "M/E-1@Key1@Type@Key Type@Linear@Clip", "20.00"},
    {STORE_SNAPSHOT, "M/E-1", 2, "M/E-1@Key1@Type@Key Type", "Wipe Pattern"},
    {STORE_SNAPSHOT, "M/E-1", 10, "M/E-1@Key1@Type@Key Type", "Chroma"},
    {STORE_SNAPSHOT, "M/E-1", 10, "M/E-1@Key1@Type@Key Type@Chroma@Hue", "120.00"},
    {STORE_KEY, "M/E-1@Key1", 2, "M/E-1@Key1@Type@Key Type", "Color Vector"},
};

// The others have three keyframes, a second apart.
static const EffectStock effect_stock[] = {
    {"M/E-1", 1, 5, 45, 3, 0, 0, 0, 0},   {"M/E-1", 2, 4, 30, 0, 0, 0, 0, 15},
    {"M/E-1", 3, 6, 20, 0, 2, 5, 3, 0},   {"M/E-2", 1, 3, 60, 0, 0, 0, 0, 30},
    {"P/P", 1, 2, 150, 0, 0, 0, 0, 0},    {"P/P", 2, 8, 25, 0, 1, 8, 0, 0},
    {"DME1", 1, 10, 12, 0, 0, 0, 0, 0},   {"DME1", 2, 5, 15, 0, 1, 5, 0, 0},
    {"Dev1", 250, 2, 300, 1, 0, 0, 0, 0},
};

static int row_of_name(const Kind& kind, const std::string& name)
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

static Effect stock_effect(const EffectStock& s, const std::string& name)
{
    Effect effect;
    effect.name = name;
    effect.keys.assign(size_t(s.keys), Keyframe{s.frames, false});
    effect.keys.back().duration = 0;
    if (s.pause > 0)
        effect.keys[size_t(s.pause - 1)].has_pause = true;
    effect.delay = s.delay;
    effect.loop_first = s.loop_first;
    effect.loop_last = s.loop_last;
    effect.loop_count = s.loop_count;
    return effect;
}

static void stock_links()
{
    Register& open = Store_Register(kinds[STORE_MASTER_EFFECT], 0, 1);
    open.links.assign(REGION_EFFECTS, 0);
    open.links[REGION_ME1] = open.links[REGION_ME1 + 1] = open.links[REGION_PP] = 1;
    Store_Register(kinds[STORE_MASTER_EFFECT], 0, 2).links = {3, 0, 0, 0, 0, 2};
    Store_Register(kinds[STORE_MASTER_SNAPSHOT], 0, 1).links = {1, 1, 0, 0, 0, 1};
    Store_Register(kinds[STORE_MASTER_SNAPSHOT], 0, 2).links = {10};
    Register& intro = Store_Register(kinds[STORE_SHOTBOX], 0, 1);
    intro.links.assign(REGION_DME1 + 1, 0);
    intro.links[REGION_ME1] = 1;
    intro.links[REGION_DME1] = 2;
    intro.is_auto_run = true;
    Store_Register(kinds[STORE_SHOTBOX], 0, 2).links = {0, 0, 0, 0, 0, 2};
}

static void stock_registers()
{
    for (const Stock& s : stock) {
        Register& r = Store_Register(kinds[s.kind], row_of_name(kinds[s.kind], s.row), s.number);
        r.exists = true;
        r.name = s.name;
        r.is_locked = s.is_locked;
        r.effect = s.kind == STORE_EFFECT
                       ? stock_effect({s.row, s.number, 3, 30, 0, 0, 0, 0, 0}, s.name)
                       : Effect{};
    }
    for (const EffectStock& s : effect_stock) {
        Effect& effect =
            Store_Register(kinds[STORE_EFFECT], Region_ByName(s.region), s.number).effect;
        effect = stock_effect(s, effect.name);
    }
    for (const auto& s : stock_values)
        Store_Register(kinds[s.kind], row_of_name(kinds[s.kind], s.row), s.number).values[s.path] =
            s.value;
    Register& weather = Store_Register(kinds[STORE_SNAPSHOT], REGION_ME1, 10);
    weather.hold = "AB12U1";
    weather.dissolve_frames = 30;
    weather.has_dissolve = true;
    stock_links();
    sr.clips[0][{0, 1}] = {true, true, false, "OPENER", 0, 300};
    sr.clips[0][{1, 1}] = {true, false, true, "BACKDROP", 30, 900};
}

void Store_Install()
{
    sr = {};
    for (const Kind& kind : kinds) {
        sr.rows[kind.kind].resize(size_t(kind.rows));
        sr.current[kind.kind].assign(size_t(kind.rows), 0);
    }
    stock_registers();
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
    const int only = kind && !region.empty() ? row_of_name(*kind, region) : -1;
    if (!kind || (!region.empty() && only < 0))
        return false;
    for (int row = 0; row < kind->rows; ++row)
        for (const auto& [number, r] : Store_Row(*kind, row))
            if (r.exists && (only < 0 || row == only))
                printf("%s#%s\n", Store_ListPath(*kind, row).c_str(),
                       store_line(*kind, number, r).c_str());
    return true;
}

bool Store_Do(const std::string& verb, const std::string& word, const std::string& region,
              int number, const std::string& name)
{
    const Kind* kind = kind_of_word(word);
    const int row = kind ? row_of_name(*kind, region) : -1;
    if (row < 0 || !Store_IsNumber(*kind, row, number))
        return false;
    if (verb == "store")
        Store_StoreRegister(*kind, row, number, name);
    else
        Store_Recall(*kind, row, number);
    return true;
}
