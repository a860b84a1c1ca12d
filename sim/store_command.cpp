// Recalling and storing, and the commands of the panels: a path that ends with the verb, and a
// value of a mask of rows (where the kind has one) and numbers: "put
// Effect@Effect@Lock@Lock#MASK,1,5,true".
#include "dme_channels.h"
#include "log.h"
#include "region.h"
#include "store.h"
#include "store_private.h"
#include "system.h"
#include "text.h"
#include "tree.h"
#include <algorithm>

static const std::string ALL_DELETE = "Register@All Delete@";
static const std::string CLIP_EVENT = "Snapshot@Snapshot@Clip Event@";
static constexpr int KEYS = 8;
static constexpr size_t HOLD_BYTES = 300; // of the router 256; a list line has to hold it

namespace
{
// A command as it stands: the rows of its mask and the fields behind it.
struct Request {
    const Kind* kind = nullptr;
    std::vector<int> rows;
    std::vector<std::string> fields;
    bool is_edit = false; // of a master: its regions are left alone
};

struct StoreVerb {
    const char* word = "";
    size_t fields = 0; // at least
    void (*func)(const Request& request) = nullptr;
};
} // namespace

// --- Snapshots of the tree ---

std::string Store_KeptPath(const Kind& kind, int row)
{
    const int region = kind.kind == STORE_KEY        ? row / KEYS
                       : kind.kind == STORE_SNAPSHOT ? Region_OfSnapshotRow(row)
                                                     : row;
    const std::string tree = Regions()[size_t(region)].tree;
    switch (kind.kind) {
    case STORE_SNAPSHOT: return tree;
    case STORE_WIPE: return tree + "@Wipe";
    case STORE_DME: return tree + "@DME Wipe";
    case STORE_KEY:
        return tree + (region == REGION_PP ? "@DSK" : "@Key") + std::to_string(row % KEYS + 1);
    default: return "";
    }
}

const char* Store_PatternTail(const Kind& kind)
{
    return kind.kind == STORE_WIPE  ? "@Main Pattern@Pattern"
           : kind.kind == STORE_DME ? "@Pattern Select@Pattern"
                                    : nullptr;
}

// The pattern is kept even when nobody has asked for it yet: the list tells it.
static void keep_pattern(const Kind& kind, int row, Register& r)
{
    long number = 0;
    const char* const tail = Store_PatternTail(kind);
    const Node* const node = tail ? Tree_Get(Store_KeptPath(kind, row) + tail) : nullptr;
    if (node && Text_ToInt(node->value, &number))
        r.pattern = int(number);
}

static bool is_kept(const Node& node)
{
    return node.type.kind != KIND_ACTION && node.type.kind != KIND_LIST &&
           !Dme_IsSelection(node.path) && !Text_MatchesPath(node.path, "**@Transition Position");
}

static void keep_values(Register& r, const std::string& path)
{
    r.values.clear();
    if (path.empty())
        return;
    for (const Node* node : Tree_Under(path))
        if (is_kept(*node))
            r.values[node->path] = node->value;
}

// What nobody had asked for when it was stored was at its default.
static void bring_values_back(const Register& r, const std::string& path)
{
    if (path.empty())
        return;
    for (const Node* node : Tree_Under(path))
        if (is_kept(*node) && !r.values.contains(node->path))
            Tree_Show(node->path, node->initial);
    for (const auto& [kept, value] : r.values)
        Tree_Show(kept, value);
}

// --- Recall and store ---

static void recall_effect(int region, int number, const Register& r)
{
    Timeline_Load(region, number, r.effect, r.is_locked);
    const bool is_dme = region >= REGION_DME1 && region < REGION_DEV1;
    if (is_dme)
        Timeline_Load(region - REGION_DME1 + REGION_GLOBAL1, number, r.effect, r.is_locked);
}

// A shotbox has effects in it, and so has a master effect.
static void recall_links(const Register& r, StoreKind of)
{
    const Kind& kind = Store_Kind(of);
    std::vector<int> recalled;
    for (int row = 0; row < kind.rows && row < int(r.links.size()); ++row) {
        const int number = r.links[size_t(row)];
        if (!Store_IsNumber(kind, row, number))
            continue;
        Store_Recall(kind, row, number);
        recalled.push_back(row);
    }
    if (r.is_auto_run)
        Timeline_Run(recalled, 1);
}

void Store_Recall(const Kind& kind, int row, int number)
{
    const Register r = Store_Register(kind, row, number); // a copy: links may come back here
    if (!r.exists)
        return;
    switch (kind.kind) {
    case STORE_EFFECT: recall_effect(row, number, r); break;
    case STORE_MASTER_EFFECT:
    case STORE_SHOTBOX: recall_links(r, STORE_EFFECT); break;
    case STORE_MASTER_SNAPSHOT: recall_links(r, STORE_SNAPSHOT); break;
    default: bring_values_back(r, Store_KeptPath(kind, row));
    }
    Store_SetCurrent(kind, row, number);
}

static std::vector<int> current_of(StoreKind of, bool only_selected)
{
    const Kind& kind = Store_Kind(of);
    std::vector<int> links;
    for (int row = 0; row < kind.rows; ++row)
        links.push_back(only_selected && !Timeline_IsSelected(row) ? 0 : Store_Current(kind, row));
    return links;
}

static std::string fitting_name(const std::string& name)
{
    std::string fitting = name.substr(0, NAME_BYTES);
    std::replace(fitting.begin(), fitting.end(), ',', ' '); // it stands in a list line
    return fitting;
}

void Store_StoreRegister(const Kind& kind, int row, int number, const std::string& name)
{
    Register& r = Store_Register(kind, row, number);
    if (r.is_locked)
        return Log_Note("locked: %s %d", kind.word, number);
    if (!name.empty() || !r.exists)
        r.name = name.empty() ? kind.new_name + std::to_string(number) : fitting_name(name);
    r.exists = true;
    switch (kind.kind) {
    case STORE_EFFECT:
        r.effect = Timeline_Of(row).effect;
        r.effect.name = r.name;
        break;
    case STORE_MASTER_EFFECT: r.links = current_of(STORE_EFFECT, false); break;
    case STORE_MASTER_SNAPSHOT: r.links = current_of(STORE_SNAPSHOT, false); break;
    case STORE_SHOTBOX: r.links = current_of(STORE_EFFECT, true); break;
    default: keep_pattern(kind, row, r); keep_values(r, Store_KeptPath(kind, row));
    }
    Store_SetCurrent(kind, row, number);
    Store_Show(kind, row, number);
    if (kind.kind == STORE_EFFECT)
        Timeline_SetHead(row, number, r.name, false);
}

// --- The fields of a command ---

static int number_at(const Request& request, size_t field)
{
    long number = 0;
    const bool is_number = field < request.fields.size() &&
                           Text_ToInt(Text_Trim(request.fields[field]), &number) && number >= 0 &&
                           number < 1000;
    return is_number ? int(number) : 0;
}

static bool is_true_at(const Request& request, size_t field)
{
    return field < request.fields.size() &&
           (request.fields[field] == "true" || request.fields[field] == "ON");
}

static std::vector<int> rows_of_mask(const Kind& kind, uint64_t mask)
{
    std::vector<int> rows;
    for (int row = 0; row < kind.rows; ++row) {
        uint64_t bit = 0;
        if (kind.kind == STORE_EFFECT)
            bit = Regions()[size_t(row)].effect_mask;
        else if (kind.kind == STORE_KEY)
            bit = 1ull << row;
        else if (kind.kind == STORE_SNAPSHOT)
            bit = Regions()[size_t(Region_OfSnapshotRow(row))].snapshot_mask;
        else
            bit = Regions()[size_t(row)].snapshot_mask;
        if (mask & bit)
            rows.push_back(row);
    }
    return rows;
}

// Macros stand in one list, whatever their mask says.
static std::vector<int> rows_of_field(const Kind& kind, const std::string& field)
{
    char* end = nullptr;
    const std::string text = Text_Trim(field);
    const uint64_t mask = strtoull(text.c_str(), &end, 16);
    if (text.empty() || *end != '\0')
        return {};
    return kind.kind == STORE_MACRO ? std::vector<int>{0} : rows_of_mask(kind, mask);
}

// Numbers from the field "first" to the one behind it, those that the row has.
static std::vector<int> numbers_of(const Request& request, int row, size_t first)
{
    std::vector<int> numbers;
    const int from = number_at(request, first);
    for (int n = from; from > 0 && n <= number_at(request, first + 1); ++n)
        if (Store_IsNumber(*request.kind, row, n))
            numbers.push_back(n);
    return numbers;
}

static void for_registers(const Request& request, void (*func)(Register&, const Request&))
{
    for (const int row : request.rows)
        for (const int number : numbers_of(request, row, 0)) {
            func(Store_Register(*request.kind, row, number), request);
            Store_Show(*request.kind, row, number);
        }
}

// --- Verbs on one register ---

static void verb_recall(const Request& request)
{
    const int number = number_at(request, 0);
    for (const int row : request.rows) {
        if (!Store_IsNumber(*request.kind, row, number))
            continue;
        if (request.is_edit)
            Store_SetCurrent(*request.kind, row, number);
        else
            Store_Recall(*request.kind, row, number);
    }
}

static void verb_store(const Request& request)
{
    const int number = number_at(request, 0);
    const std::string name = request.fields.size() > 1 ? request.fields[1] : "";
    for (const int row : request.rows)
        if (Store_IsNumber(*request.kind, row, number))
            Store_StoreRegister(*request.kind, row, number, name);
}

static void verb_rename(const Request& request)
{
    const int number = number_at(request, 0);
    for (const int row : request.rows) {
        if (!Store_IsNumber(*request.kind, row, number))
            continue;
        Register& r = Store_Register(*request.kind, row, number);
        if (!r.exists || r.is_locked)
            continue;
        r.name = fitting_name(request.fields[1]);
        r.effect.name = r.name;
        Store_Show(*request.kind, row, number);
    }
}

// --- Verbs on a run of registers ---

// Without a word behind the numbers it is the locking form of two commands.
static void verb_lock(const Request& request)
{
    for_registers(request, [](Register& r, const Request& q) {
        r.is_locked = r.exists && (q.fields.size() < 3 || is_true_at(q, 2));
    });
}

static void verb_unlock(const Request& request)
{
    for_registers(request, [](Register& r, const Request&) { r.is_locked = false; });
}

static void verb_delete(const Request& request)
{
    for_registers(request, [](Register& r, const Request&) {
        if (!r.is_locked)
            r = {};
    });
}

static void verb_dissolve(const Request& request)
{
    for_registers(request, [](Register& r, const Request& q) {
        if (!r.exists || r.is_locked)
            return;
        r.has_dissolve = is_true_at(q, 2);
        r.effect.has_dissolve = r.has_dissolve;
        if (q.fields.size() > 3)
            r.dissolve_frames = number_at(q, 3);
    });
}

static void verb_auto_transition(const Request& request)
{
    for_registers(request, [](Register& r, const Request& q) {
        if (r.exists && !r.is_locked)
            r.has_auto_transition = is_true_at(q, 2);
    });
}

static void verb_duration(const Request& request)
{
    for_registers(request, [](Register& r, const Request& q) {
        if (r.exists && !r.is_locked)
            r.dissolve_frames = number_at(q, 2);
    });
}

static void verb_gpi(const Request& request)
{
    for_registers(request, [](Register& r, const Request& q) {
        if (r.exists && !r.is_locked)
            r.has_gpi = number_at(q, 2) == 1;
    });
}

static void verb_hold(const Request& request)
{
    for_registers(request, [](Register& r, const Request& q) {
        if (r.exists && !r.is_locked && q.fields[2].size() <= HOLD_BYTES)
            r.hold = q.fields[2] == "false" ? "" : q.fields[2];
    });
}

static void verb_status(const Request& request)
{
    for (const int row : request.rows)
        Store_ShowRow(*request.kind, row);
}

// --- Verbs on two runs ---

namespace
{
struct Place {
    int row = 0;
    int number = 0;
};
struct Pair {
    Place from, to;
};
} // namespace

// Source and target of each register that is to go somewhere. Fields: from, to, target mask (where
// there are masks), target. One source row goes to each target row, several go one to one.
static std::vector<Pair> pairs_of(const Request& request)
{
    const Kind& kind = *request.kind;
    const size_t mask = kind.has_mask ? 1 : 0;
    const auto targets = mask ? rows_of_field(kind, request.fields[2]) : std::vector<int>{0};
    std::vector<Pair> pairs;
    for (size_t i = 0; i < targets.size(); ++i) {
        const bool is_one = request.rows.size() == 1;
        if (!is_one && i >= request.rows.size())
            break;
        const int from_row = request.rows[is_one ? 0 : i];
        for (const int number : numbers_of(request, from_row, 0)) {
            const int to = number_at(request, 2 + mask) + number - number_at(request, 0);
            if (Store_IsNumber(kind, targets[i], to))
                pairs.push_back({{from_row, number}, {targets[i], to}});
        }
    }
    return pairs;
}

static void put_register(const Request& request, const Place& place, const Register& source,
                         bool keeps_name)
{
    Register& r = Store_Register(*request.kind, place.row, place.number);
    const std::string name = keeps_name ? r.name : source.name;
    r = source;
    r.is_locked = false;
    r.name = r.exists ? name : "";
    r.effect.name = r.name;
    Store_Show(*request.kind, place.row, place.number);
}

static Register& register_at(const Request& request, const Place& place)
{
    return Store_Register(*request.kind, place.row, place.number);
}

static void two_runs(const Request& request, bool is_source_emptied, bool is_swapped)
{
    const bool keeps_name = is_true_at(request, request.kind->has_mask ? 4 : 3);
    const auto pairs = pairs_of(request);
    std::vector<Register> sources; // first all, since the runs may overlap
    for (const Pair& pair : pairs)
        sources.push_back(register_at(request, pair.from));
    for (size_t i = 0; i < pairs.size(); ++i) {
        const Register target = register_at(request, pairs[i].to);
        const bool is_source_held = (is_source_emptied || is_swapped) && sources[i].is_locked;
        if (target.is_locked || is_source_held || (!sources[i].exists && !is_swapped))
            continue;
        if (is_source_emptied)
            put_register(request, pairs[i].from, {}, false);
        if (is_swapped)
            put_register(request, pairs[i].from, target, keeps_name);
        put_register(request, pairs[i].to, sources[i], keeps_name);
    }
}

static void verb_copy(const Request& request)
{
    two_runs(request, false, false);
}

static void verb_move(const Request& request)
{
    two_runs(request, true, false);
}

static void verb_swap(const Request& request)
{
    two_runs(request, false, true);
}

// One effect behind another: mask, number, target mask, target. The last keyframe of the first
// part gets a second to the next one.
static void verb_merge(const Request& request)
{
    const int number = number_at(request, 0);
    for (const int row : rows_of_field(*request.kind, request.fields[1])) {
        const int to = number_at(request, 2);
        if (request.rows.empty() || !Store_IsNumber(*request.kind, request.rows[0], number) ||
            !Store_IsNumber(*request.kind, row, to))
            continue;
        const auto added = Store_Register(*request.kind, request.rows[0], number).effect.keys;
        Register& r = Store_Register(*request.kind, row, to);
        auto& keys = r.effect.keys;
        if (!r.exists || r.is_locked || keys.size() + added.size() > TIMELINE_KEYFRAMES)
            continue;
        if (!keys.empty() && keys.back().duration == 0)
            keys.back().duration = System_FrameRate();
        keys.insert(keys.end(), added.begin(), added.end());
        Store_Show(*request.kind, row, to);
    }
}

// --- Puts ---

static constexpr StoreVerb verbs[] = {
    {"Recall", 1, verb_recall},
    {"Store", 1, verb_store},
    {"Rename", 2, verb_rename},
    {"Lock", 2, verb_lock},
    {"UnLock", 2, verb_unlock},
    {"Delete", 2, verb_delete},
    {"Copy", 3, verb_copy},
    {"Move", 3, verb_move},
    {"Swap", 3, verb_swap},
    {"Merge", 3, verb_merge},
    {"Effect Dissolve", 3, verb_dissolve},
    {"Auto Transition", 3, verb_auto_transition},
    {"Duration", 3, verb_duration},
    {"GPI", 3, verb_gpi},
    {"Xpt Hold", 3, verb_hold},
    {"Register Status", 0, verb_status},
};

// "Register@All Delete@WORD", with "@MP2" behind some.
static bool put_all_delete(const std::string& word, const std::string& value)
{
    static const struct {
        const char* word;
        StoreKind kinds[2];
    } sets[] = {
        {"Effect@MP2", {STORE_EFFECT, STORE_MASTER_EFFECT}},
        {"Snapshot@MP2", {STORE_SNAPSHOT, STORE_MASTER_SNAPSHOT}},
        {"Wipe Snapshot@MP2", {STORE_WIPE, STORE_WIPE}},
        {"DME Wipe Snapshot@MP2", {STORE_DME, STORE_DME}},
        {"Key Snapshot", {STORE_KEY, STORE_KEY}},
        {"Shotbox", {STORE_SHOTBOX, STORE_SHOTBOX}},
        {"Macro", {STORE_MACRO, STORE_MACRO}},
    };
    for (const auto& set : sets)
        for (const StoreKind of : set.kinds)
            for (int row = 0; word == set.word && value == "true" && row < Store_Kind(of).rows;
                 ++row)
                for (const auto& held : std::map(Store_Row(Store_Kind(of), row))) {
                    Store_Register(Store_Kind(of), row, held.first) = {};
                    Store_Show(Store_Kind(of), row, held.first);
                }
    return false;
}

// "...Clip Event@User1@FM2@AutoPlay" with number and ON or OFF.
static bool put_auto_play(const std::string& tail, const std::string& value)
{
    const auto word = Text_Split(tail, '@');
    Request request;
    request.fields = Text_Split(value, ',');
    long user = 0, sub_region = 0;
    const bool is_one = word.size() == 3 && word[2] == "AutoPlay" && Text_Begins(word[0], "User") &&
                        Text_Begins(word[1], "FM") && Text_ToInt(word[0].substr(4), &user) &&
                        Text_ToInt(word[1].substr(2), &sub_region);
    if (is_one)
        Store_SetAutoPlay(int(user) - 1, int(sub_region) - 1, number_at(request, 0),
                          is_true_at(request, 1));
    return false;
}

static const Kind* kind_of_path(const std::string& path)
{
    if (path == "Master@Effect@Recall@Recall")
        return &Store_Kind(STORE_MASTER_EFFECT);
    for (int kind = 0; kind < STORE_KINDS; ++kind)
        if (Text_Begins(path, Store_Kind(StoreKind(kind)).commands))
            return &Store_Kind(StoreKind(kind));
    return nullptr;
}

static void put_command(const Kind& kind, const std::string& path, const std::string& value)
{
    const std::string word = path.substr(path.rfind('@') + 1);
    Request request;
    request.kind = &kind;
    request.rows = {0};
    request.fields = Text_Split(value, ',');
    request.is_edit = path.find("@Edit@") != std::string::npos;
    if (kind.has_mask) {
        request.rows = rows_of_field(kind, request.fields[0]);
        request.fields.erase(request.fields.begin());
    }
    for (const StoreVerb& verb : verbs)
        if (word == verb.word && request.fields.size() >= verb.fields)
            verb.func(request);
}

bool Store_Put(const std::string& path, const std::string& value)
{
    const Node* node = Tree_Find(path);
    const bool is_register_list =
        node && node->type.kind == KIND_LIST && path.find("Recall Mode") == std::string::npos;
    if (is_register_list)
        return true; // it shows the registers; who wants others stores them
    if (Text_Begins(path, ALL_DELETE))
        return put_all_delete(path.substr(ALL_DELETE.size()), value);
    if (Text_Begins(path, CLIP_EVENT))
        return put_auto_play(path.substr(CLIP_EVENT.size()), value);
    if (const Kind* kind = kind_of_path(path))
        put_command(*kind, path, value);
    return false;
}
