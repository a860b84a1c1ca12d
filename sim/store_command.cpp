// The commands of the panels: a path that ends with the verb, and a value of a mask of rows (where
// the kind has one; the name of one row does as well) and numbers: "put
// Effect@Effect@Lock@Lock#MASK,1,5,true".
#include "log.h"
#include "macro.h"
#include "region.h"
#include "store.h"
#include "store_private.h"
#include "system.h"
#include "text.h"
#include "tree.h"
#include <algorithm>

static const std::string ALL_DELETE = "Register@All Delete@";
static const std::string CLIP_EVENT = "Snapshot@Snapshot@Clip Event@";
static const std::string SHOTBOX_LINK = "Shotbox@Register@Attribute@Link@";
static constexpr size_t HOLD_BYTES = 300; // of the router 256; a list line has to hold it

namespace
{
// A command as it stands: the rows of its mask and the fields behind it.
struct Request {
    const Kind* kind = nullptr;
    std::vector<int> rows;
    std::vector<std::string> fields;
    bool is_corrected = false; // what goes to a sub side is made to fit it
    bool is_edit = false;      // of a master: its regions are left alone
};

struct StoreVerb {
    const char* word = "";
    size_t fields = 0; // at least
    void (*func)(const Request& request) = nullptr;
};
} // namespace

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

static uint64_t mask_of_row(const Kind& kind, int row)
{
    switch (kind.kind) {
    case STORE_EFFECT: return Regions()[size_t(row)].effect_mask;
    case STORE_KEY:
    case STORE_MACRO: return 1ull << row;
    case STORE_SNAPSHOT: return Regions()[size_t(Region_OfSnapshotRow(row))].snapshot_mask;
    default: return Regions()[size_t(row)].snapshot_mask;
    }
}

std::string Store_MaskText(const Kind& kind, int row)
{
    if (!kind.has_mask)
        return "";
    return Text_Format("%016llX,", static_cast<unsigned long long>(mask_of_row(kind, row)));
}

// Macros stand in one list, whatever their mask says.
static std::vector<int> rows_of_field(const Kind& kind, const std::string& field)
{
    char* end = nullptr;
    const std::string text = Text_Trim(field);
    const uint64_t mask = strtoull(text.c_str(), &end, 16);
    if (text.empty())
        return {};
    std::vector<int> rows;
    for (int row = 0; row < kind.rows; ++row)
        if (*end != '\0' ? Store_RowName(kind, row) == text
                         : kind.kind == STORE_MACRO || (mask & mask_of_row(kind, row)))
            rows.push_back(row);
    return rows;
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
        else {
            Macro_WatchRecall(*request.kind, row, number);
            Store_Recall(*request.kind, row, number);
        }
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
        r.name = Store_FittingName(request.fields[1]);
        r.effect.name = r.name;
        Store_Show(*request.kind, row, number);
    }
}

// What a register links of a region: "12" an effect or what the master is of, "S12" a shotbox's
// snapshot, "" or "0" nothing. False: the region has no such register.
static bool link_of_field(const Kind& kind, int region, const std::string& field, int* link)
{
    const bool is_snapshot = kind.kind == STORE_SHOTBOX && Text_Begins(field, "S");
    const StoreKind of =
        is_snapshot || kind.kind == STORE_MASTER_SNAPSHOT ? STORE_SNAPSHOT : STORE_EFFECT;
    const int row = is_snapshot ? Store_SnapshotRow(region) : region;
    long number = 0;
    const bool is_number = Text_ToInt(field.substr(is_snapshot), &number);
    *link = is_snapshot ? -int(number) : int(number);
    if (field.empty() || (is_number && number == 0))
        return true;
    return is_number && number < 1000 && row >= 0 && row < Store_Kind(of).rows &&
           Store_IsNumber(Store_Kind(of), row, int(number));
}

// False: it is locked, or has never been there and would link nothing.
static bool put_links(const Kind& kind, int number, const std::vector<int>& links)
{
    Register& r = Store_Register(kind, 0, number);
    const bool links_nothing =
        std::all_of(links.begin(), links.end(), [](int n) { return n == 0; });
    if (r.is_locked || (!r.exists && links_nothing))
        return false;
    if (!r.exists)
        r.name = kind.new_name + std::to_string(number);
    r.exists = true;
    r.links = links;
    Store_Show(kind, 0, number);
    return true;
}

// Of a register that is edited: number, and the links in the order of the regions. Without them it
// links what each region has just now.
static void verb_store_links(const Request& request)
{
    const int number = number_at(request, 0);
    if (request.fields.size() < 2)
        return verb_store(request);
    std::vector<int> links(request.fields.size() - 1);
    for (size_t i = 0; i < links.size(); ++i)
        if (!link_of_field(*request.kind, int(i), request.fields[i + 1], &links[i]))
            return Log_Note("no link: %s", request.fields[i + 1].c_str());
    if (!Store_IsNumber(*request.kind, 0, number))
        return;
    if (put_links(*request.kind, number, links))
        Store_SetCurrent(*request.kind, 0, number);
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
        if (q.fields.size() > 3)
            r.duration = number_at(q, 3);
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
            r.duration = number_at(q, 2);
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

static void verb_auto_run(const Request& request)
{
    for_registers(request, [](Register& r, const Request& q) {
        if (r.exists && !r.is_locked)
            r.is_auto_run = is_true_at(q, 2);
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

static bool is_sub(const Kind& kind, int row)
{
    return kind.kind != STORE_KEY && row >= REGION_ME1_SUB && row < REGION_USER1;
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
        if (request.is_corrected && !is_sub(*request.kind, pairs[i].from.row) &&
            is_sub(*request.kind, pairs[i].to.row))
            sources[i].hold = Store_HoldWithoutBackground(sources[i].hold);
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
    {"Auto Run", 3, verb_auto_run},
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

// "...Link@M/E-1" with number and what it links.
static bool put_link(const std::string& region_name, const std::string& value)
{
    const Kind& kind = Store_Kind(STORE_SHOTBOX);
    const int region = Region_ByName(region_name);
    Request request;
    request.fields = Text_Split(value, ',');
    const int number = number_at(request, 0);
    int link = 0;
    if (request.fields.size() != 2 || region < 0 || region >= SHOTBOX_LINKS ||
        !Store_IsNumber(kind, 0, number) || !link_of_field(kind, region, request.fields[1], &link))
        return false;
    std::vector<int> links = Store_Register(kind, 0, number).links;
    links.resize(SHOTBOX_LINKS);
    links[size_t(region)] = link;
    (void)put_links(kind, number, links); // the list tells
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

// "Effect@Effect@Move@MP2 Auto Correct" stands beside the command, or below it. The snapshots' copy
// is told the switch by another name.
static bool is_corrected(const std::string& path)
{
    const std::string group = path.substr(0, path.rfind('@'));
    for (const std::string& at :
         {path + "@Direction@Reverse", path + "@MP2 Auto Correct", group + "@MP2 Auto Correct"})
        if (const Node* node = Tree_Find(at))
            return node->value == "true";
    return false;
}

void Store_Command(const Kind& kind, const std::string& path, const std::string& value)
{
    const std::string word = path.substr(path.rfind('@') + 1);
    Request request;
    request.kind = &kind;
    request.rows = {0};
    request.fields = Text_Split(value, ',');
    request.is_edit = path.find("@Edit@") != std::string::npos;
    request.is_corrected = is_corrected(path);
    if (request.is_edit && word == "Store")
        return verb_store_links(request);
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
    if (Text_Begins(path, SHOTBOX_LINK))
        return put_link(path.substr(SHOTBOX_LINK.size()), value);
    if (const Kind* kind = kind_of_path(path))
        Store_Command(*kind, path, value);
    return false;
}
