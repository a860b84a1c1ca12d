// What storing keeps and recalling brings back: values of the tree, keyframes, links to others.
#include "dissolve.h"
#include "dme_channels.h"
#include "log.h"
#include "macro.h"
#include "region.h"
#include "router.h"
#include "store_private.h"
#include "text.h"
#include "transition.h"
#include "tree.h"
#include <algorithm>

static constexpr int KEYS = 8;

// --- Values of the tree ---

std::string Store_KeptPath(const Kind& kind, int row)
{
    const int region = kind.kind == STORE_KEY        ? row / KEYS
                       : kind.kind == STORE_SNAPSHOT ? Region_OfSnapshotRow(row)
                                                     : row;
    const std::string tree = Regions()[size_t(region)].tree;
    switch (kind.kind) {
    case STORE_EFFECT:
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
           !Dme_IsSelection(node.path) && !Router_IsState(node.path) &&
           !Text_MatchesPath(node.path, "**@Transition Position");
}

static void keep_values(Register& r, const std::string& path)
{
    r.values.clear();
    if (path.empty())
        return;
    for (const Node* node : Tree_Under(path))
        if (is_kept(*node))
            r.values[node->path.substr(path.size())] = node->value;
}

// What nobody had asked for when it was stored was at its default.
static void bring_values_back(const Kind& kind, int row, const Register& r, int frames)
{
    const std::string path = Store_KeptPath(kind, row);
    if (path.empty())
        return;
    auto values = r.values;
    for (const Node* node : Tree_Under(path))
        if (is_kept(*node))
            values.try_emplace(node->path.substr(path.size()), node->initial);
    const Left left = Store_LeftAlone(kind, row, r);
    for (const auto& [tail, value] : values) {
        if (Store_IsLeftAlone(left, tail) || Router_IsLocked(path + tail))
            continue;
        Transition_Drop(path + tail);
        Dissolve_To(path + tail, value, frames);
    }
}

// --- Recall ---

static std::string temporary_path(const Kind& kind, int row)
{
    const std::string name = Store_RowName(kind, row);
    return std::string(kind.commands) + (kind.kind == STORE_EFFECT
                                             ? "Attribute@Temporary Duration@" + name
                                             : "Attribute@" + name + "@Temporary Duration");
}

// The temporary duration of the region counts before that of the register.
static int frames_of(const Kind& kind, int row, const Register& r)
{
    long temporary = 0;
    const Node* const node = Tree_Find(temporary_path(kind, row));
    const bool has_temporary = node && Text_ToInt(node->value, &temporary) && temporary > 0;
    return has_temporary ? int(temporary) : r.duration;
}

static void recall_effect(const Kind& kind, int row, int number, const Register& r)
{
    Timeline_Load(row, number, r.effect, r.is_locked);
    const bool is_dme = row >= REGION_DME1 && row < REGION_DEV1;
    if (is_dme)
        Timeline_Load(row - REGION_DME1 + REGION_GLOBAL1, number, r.effect, r.is_locked);
    if (!r.values.empty())
        bring_values_back(kind, row, r, r.has_dissolve ? frames_of(kind, row, r) : 0);
}

static void recall_snapshot(const Kind& kind, int row, int number, const Register& r)
{
    const int frames = frames_of(kind, row, r);
    bring_values_back(kind, row, r, r.has_dissolve ? frames : 0);
    if (r.has_auto_transition && row < REGION_USER1)
        Transition_Start(Regions()[size_t(row)].tree, frames);
    const int user = Region_OfSnapshotRow(row) - REGION_USER1;
    if (user >= 0 && user < REGION_DME1 - REGION_USER1)
        Store_PlayClips(user, number);
}

static void recall_master(const Register& r, StoreKind of)
{
    const Kind& kind = Store_Kind(of);
    for (int row = 0; row < kind.rows && row < int(r.links.size()); ++row)
        if (Store_IsNumber(kind, row, r.links[size_t(row)]))
            Store_Recall(kind, row, r.links[size_t(row)]);
}

// Of each region the effect or the snapshot; with auto run the effects start.
static void recall_shotbox(const Register& r)
{
    std::vector<int> effects;
    for (int region = 0; region < SHOTBOX_LINKS && region < int(r.links.size()); ++region) {
        const int link = r.links[size_t(region)];
        const int row = link >= 0 ? region : Store_SnapshotRow(region);
        const Kind& kind = Store_Kind(link >= 0 ? STORE_EFFECT : STORE_SNAPSHOT);
        if (row < 0 || row >= kind.rows || !Store_IsNumber(kind, row, std::abs(link)))
            continue;
        Store_Recall(kind, row, std::abs(link));
        if (link > 0)
            effects.push_back(region);
    }
    if (r.is_auto_run)
        Timeline_Run(effects, 1);
}

void Store_Recall(const Kind& kind, int row, int number)
{
    const Register r = Store_Register(kind, row, number); // a copy: links may come back here
    if (!r.exists)
        return;
    switch (kind.kind) {
    case STORE_EFFECT: recall_effect(kind, row, number, r); break;
    case STORE_SNAPSHOT: recall_snapshot(kind, row, number, r); break;
    case STORE_MASTER_EFFECT: recall_master(r, STORE_EFFECT); break;
    case STORE_MASTER_SNAPSHOT: recall_master(r, STORE_SNAPSHOT); break;
    case STORE_SHOTBOX: recall_shotbox(r); break;
    case STORE_MACRO: Macro_Run(number); break;
    default: bring_values_back(kind, row, r, 0);
    }
    Store_SetCurrent(kind, row, number);
}

// --- Store ---

static std::vector<int> current_of(StoreKind of, bool only_selected)
{
    const Kind& kind = Store_Kind(of);
    std::vector<int> links;
    for (int row = 0; row < kind.rows; ++row)
        links.push_back(only_selected && !Timeline_IsSelected(row) ? 0 : Store_Current(kind, row));
    return links;
}

std::string Store_FittingName(const std::string& name)
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
        r.name = name.empty() ? kind.new_name + std::to_string(number) : Store_FittingName(name);
    r.exists = true;
    switch (kind.kind) {
    case STORE_EFFECT:
        r.effect = Timeline_Of(row).effect;
        r.effect.name = r.name;
        keep_values(r, Store_KeptPath(kind, row));
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
