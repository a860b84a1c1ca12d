#include "rules.h"
#include "copy_swap.h"
#include "device_vtr.h"
#include "dme_channels.h"
#include "setup_switcher_io.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <cctype>
#include <map>
#include <vector>

namespace
{
// A change that a rule follows: its path and value, and the row's two texts for it.
struct Hit {
    std::string path;
    std::string now;
    std::string target;
    std::string value; // or a second path
};

// In target and value "~N" is as much of the path as its first N words, "~" all of it, "^" all but
// the last word, "^^" all but the last two; "$" is the last word.
struct Rule {
    const char* path = "";   // a pattern
    const char* values = ""; // that start it: "A,B", "!A,B" all but these, "" every
    void (*act)(const Hit& hit) = nullptr;
    const char* target = "";
    const char* value = "";
};

// Switches below one path of which at most one is on, or always one.
struct OneOf {
    const char* group = ""; // a pattern
    const char* words = "";
    bool is_never_empty = false;
};

using PathValues = std::vector<std::pair<std::string, std::string>>;
} // namespace

static struct {
    std::map<std::string, PathValues> kept; // before an automatism changed them, by their group
} rl;

// --- What rules do ---

static void act_set(const Hit& hit)
{
    Tree_Show(hit.target, hit.value);
}

static void act_set_all(const Hit& hit)
{
    for (const Node* node : Tree_Under(hit.target))
        Tree_Show(node->path, hit.value);
}

static void act_default(const Hit& hit)
{
    for (Node* node : Tree_Under(hit.target))
        if (node->path != hit.path) // falls back by itself
            Tree_Show(node->path, node->initial);
}

// The same number, or its mirror image.
static void act_follow(const Hit& hit)
{
    Tree_Show(hit.target, hit.now);
}

static void act_oppose(const Hit& hit)
{
    double number = 0;
    Node* const node = Tree_Get(hit.target);
    if (!node || !Text_ToNumber(hit.now, &number))
        return;
    const bool has_limits = node->type.kind == KIND_NUM;
    Tree_Show(hit.target,
              has_limits ? Tree_NumberText(node->type, -number) : Text_Format("%.2f", -number));
}

// The values below one path as they are relative to it.
static PathValues values_below(const std::string& path)
{
    PathValues values;
    for (const Node* node : Tree_Under(path))
        values.emplace_back(node->path.substr(path.size()), node->value);
    return values;
}

static void act_keep(const Hit& hit)
{
    rl.kept[hit.target] = values_below(hit.target);
}

static void act_bring_back(const Hit& hit)
{
    for (const auto& [tail, value] : rl.kept[hit.target])
        Tree_Show(hit.target + tail, value);
}

// Target becomes like value.
static void act_copy(const Hit& hit)
{
    for (const auto& [tail, value] : values_below(hit.value))
        Tree_Show(hit.target + tail, value);
}

static void act_swap(const Hit& hit)
{
    const auto one = values_below(hit.target), other = values_below(hit.value);
    for (const auto& [tail, value] : one)
        Tree_Show(hit.value + tail, value);
    for (const auto& [tail, value] : other)
        Tree_Show(hit.target + tail, value);
}

// What each user likes is what the panel and the menu are set to.
static std::string user_setting()
{
    const Node* const user = Tree_Get("Misc@User@User");
    return "User " + (user ? user->value : "");
}

static void act_store_user(const Hit&)
{
    PathValues& setting = rl.kept[user_setting()];
    setting.clear();
    for (const Node* node : Tree_Under("Misc"))
        if (node->type.kind != KIND_ACTION && node->path != "Misc@User@User" &&
            (Text_Begins(node->path, "Misc@Panel@") || Text_Begins(node->path, "Misc@User@")))
            setting.emplace_back(node->path, node->value);
}

static void act_recall_user(const Hit&)
{
    for (const auto& [path, value] : rl.kept[user_setting()])
        Tree_Show(path, value);
}

static void act_undo_copy(const Hit& hit)
{
    const size_t kind = sizeof "Copy/Swap@" - 1;
    CopySwap_Undo(hit.path.substr(kind, hit.path.rfind('@') - kind)); // behind the menu's name
}

// The name of the signal that cuts the key: a self key is cut by its fill.
static void act_name_source(const Hit& hit)
{
    const std::string type = hit.target + "@Type@";
    const Node* const source = Tree_Get(type + "Key Source");
    const bool is_split = source && source->value == "Split";
    if (const Node* signal = Tree_Get(type + "Signal Select@" + (is_split ? "Source" : "Fill")))
        Tree_Show(hit.target + "@Status@Source Name", signal->value);
}

// --- The memory of a key: how a signal was cut, for each that cuts the key ---

static std::string key_memory(const std::string& key)
{
    const Node* const source = Tree_Get(key + "@Status@Source Name");
    return key + "@Store Key@" + (source ? source->value : "");
}

static constexpr const char* REMEMBERED[] = {"@Type@Key Type", "@Type@Key Invert",
                                             "@Type@Clean Mode", "@Type@Key Position",
                                             "@Type@Chroma Adjust"};

static std::vector<Node*> remembered_nodes(const std::string& key)
{
    std::vector<Node*> nodes;
    for (const char* part : REMEMBERED)
        for (Node* node : Tree_Under(key + part))
            if (node->type.kind != KIND_ACTION)
                nodes.push_back(node);
    return nodes;
}

static void act_store_key(const Hit& hit)
{
    PathValues& memory = rl.kept[key_memory(hit.target)];
    memory.clear();
    for (const Node* node : remembered_nodes(hit.target))
        memory.emplace_back(node->path, node->value);
}

// What nobody had asked for when the key was stored stood at its default.
static void act_recall_key(const Hit& hit)
{
    const auto memory = rl.kept.find(key_memory(hit.target));
    if (memory == rl.kept.end())
        return;
    for (const Node* node : remembered_nodes(hit.target)) {
        const auto stored =
            std::find_if(memory->second.begin(), memory->second.end(),
                         [node](const auto& pair) { return pair.first == node->path; });
        Tree_Show(node->path, stored == memory->second.end() ? node->initial : stored->second);
    }
}

// The automatic chroma key looks for the backing in the picture.
static void act_find_hue(const Hit& hit)
{
    const Node* const backing = Tree_Get(hit.target + "@Chroma Adjust@Backing");
    const std::string word = backing ? backing->value : "";
    Tree_Show(hit.target + "@Key Type@Chroma@Hue", word == "Blue"  ? "229.00"
                                                   : word == "Red" ? "4.50"
                                                                   : "117.50");
}

// The internal channels make the same wipes under numbers of their own.
static void act_change_set(const Hit& hit)
{
    constexpr double INTERNAL = 6000;
    double number = 0;
    Node* const pattern = Tree_Get(hit.target);
    if (!pattern || !Text_ToNumber(pattern->value, &number))
        return;
    const bool is_internal = number > INTERNAL;
    if (is_internal != (hit.now == "Internal"))
        Tree_Show(hit.target,
                  Tree_NumberText(pattern->type, number + (is_internal ? -INTERNAL : INTERNAL)));
}

// --- The transform of the effects units ---

static const std::string TRANSFORM = "DME@Transform@3D Trans@";
static const std::string TRANSFORM_STATUS = "DME@Status@3D Param@";

static bool transform_is(const char* setting, const char* word)
{
    const Node* const node = Tree_Get(TRANSFORM + setting);
    return node && node->value == word;
}

// "...@Local Target@": what is turned just now.
static std::string transform_shown()
{
    return TRANSFORM_STATUS + (transform_is("Transform", "Global") ? "Global " : "Local ") +
           (transform_is("Space", "Source") ? "Source@" : "Target@");
}

static void act_show_transform(const Hit& hit)
{
    Tree_Show(transform_shown() + hit.target, hit.now);
}

static void act_reset_transform(const Hit& hit)
{
    for (const char* part : {"Location", "Rotation", "Axis", "Aspect", "Size"}) {
        if (!hit.target.empty() && hit.target != part)
            continue;
        act_default({.path = "", .now = "", .target = TRANSFORM + part, .value = ""});
        act_default({.path = "", .now = "", .target = transform_shown() + part, .value = ""});
    }
}

// Bits of what is turned, the channels, and a part that nobody here needs.
static void act_show_reference(const Hit&)
{
    const unsigned mode = (transform_is("Space", "Source") ? 0x02 : 0x01) |
                          (transform_is("Transform", "Global") ? 0x10 : 0);
    Tree_Show(TRANSFORM_STATUS + "Mode Status@Reference", Text_Format("%X,1,0", mode));
}

static void act_show_channels(const Hit&)
{
    Dme_ShowStatus();
}

// --- The global effects ---

// Every place in the order of a group is taken once: who is put into another's place gives it the
// one that is free now. The channels lie beside each other, or are the second ones of two pairs.
static void act_give_place(const Hit& hit)
{
    static constexpr const char* partners[][2] = {{"Ch1-Ch2", "Ch3-Ch4"},
                                                  {"Ch3-Ch4", "Ch1-Ch2"},
                                                  {"Ch5-Ch6", "Ch7-Ch8"},
                                                  {"Ch7-Ch8", "Ch5-Ch6"}};
    const std::string group = Text_Head(hit.path, 2);
    std::vector<std::string> paths;
    for (const auto& [pair, partner] : partners)
        if (group == std::string("Global Effect@") + pair)
            paths = {hit.path, std::string("Global Effect@") + partner + "@Priority@Ch2"};
    if (paths.empty())
        for (int i = 0, first = hit.path.find("@Ch5-") == hit.path.npos ? 1 : 5; i < 4; i++)
            paths.push_back(group + "@Priority@Ch" + std::to_string(first + i));
    std::string free_place;
    for (size_t place = 1; place <= paths.size() && free_place.empty(); place++) {
        const std::string word = std::to_string(place);
        if (std::none_of(paths.begin(), paths.end(),
                         [&](const std::string& path) { return Tree_Get(path)->value == word; }))
            free_place = word;
    }
    for (const std::string& path : paths)
        if (path != hit.path && Tree_Get(path)->value == hit.now && !free_place.empty())
            Tree_Show(path, free_place);
}

// --- The rules ---

static constexpr const char* PATTERN_KEYS = "Wipe Pattern,Key Wipe Pattern";
static constexpr const char* CHROMA = "~2@Type@Key Type@Chroma";

static constexpr Rule rules[] = {
    // A pattern key has no source whose edge could be cleaned or moved.
    {"*@*@Type@Clean Mode@*Wipe Pattern", "true", act_set, "~", "false"},
    {"*@*@Type@Key Position@*Wipe Pattern", "true", act_set, "~", "false"},
    {"*@*@Type@Key Type", PATTERN_KEYS, act_set, "~2@Type@Key Source", "Self"},
    {"*@*@Type@Key Source", "", act_name_source, "~2", ""},
    {"*@*@Type@Signal Select@*", "", act_name_source, "~2", ""},
    // A signal that has been stored for the key is cut as it was then.
    {"*@*@Type@Store Key", "true", act_store_key, "~2", ""},
    {"*@*@Type@Key Source", "", act_recall_key, "~2", ""},
    {"*@*@Type@Signal Select@*", "", act_recall_key, "~2", ""},
    // The automatic chroma key finds its values in the picture.
    {"*@*@Type@Auto Chroma", "true", act_keep, CHROMA, ""},
    {"*@*@Type@Auto Chroma", "true", act_find_hue, "~2@Type", ""},
    {"*@*@Type@Auto Chroma", "true", act_set, "~2@Type@Key Type@Chroma@Clip", "38.00"},
    {"*@*@Type@Auto Chroma", "true", act_set, "~2@Type@Key Type@Chroma@Gain", "12.00"},
    {"*@*@Type@Chroma Adjust@Undo", "true", act_bring_back, CHROMA, ""},

    // A dropped key makes room for an edge: without one there is nothing to make room for.
    {"*@*@Edge@Edge", "Normal,Emboss,Zabton", act_set, "~2@Edge@Key Drop", "false"},
    {"*@*@Edge@Fine Key", "true", act_set, "~2@Edge@Key Drop", "false"},
    {"*@*@Type@Key Type", "!Luminance,Linear,Color Vector", act_set, "~2@Edge@Key Drop", "false"},

    // A matte has two colours.
    {"**@Copy", "true", act_copy, "^@Color 2", "^@Color 1"},
    {"**@Swap", "true", act_swap, "^@Color 1", "^@Color 2"},

    // With Combine the second channel of the resizer is the partner's and makes no effects.
    {"*@*@Resizer@Combine", "true", act_set, "~2@Resizer@Enhanced Effect@Mosaic", "false"},
    {"*@*@Resizer@Combine", "true", act_set, "~2@Resizer@Enhanced Effect@Defocus", "false"},
    {"*@*@Resizer@Border/Crop@CG Border", "true", act_set, "^@Border", "false"},
    {"*@*@Resizer@Center", "true", act_default, "~2@Resizer@H", ""},
    {"*@*@Resizer@Center", "true", act_default, "~2@Resizer@V", ""},
    {"*@*@Resizer@Full Size", "true", act_default, "~2@Resizer@Size", ""},
    {"*@*@Resizer@Full Size", "true", act_default, "~2@Resizer@H", ""},
    {"*@*@Resizer@Full Size", "true", act_default, "~2@Resizer@V", ""},
    {"*@*@Resizer@Aspect@Unity", "true", act_default, "^@Aspect", ""},
    {"*@*@Resizer@Aspect@Unity", "true", act_default, "^@H Size", ""},
    {"*@*@Resizer@Aspect@Unity", "true", act_default, "^@V Size", ""},
    {"*@*@Resizer@Process@Unity", "true", act_default, "^@Mode", ""},
    {"*@*@Resizer@Process@Unity", "true", act_default, "^@Key Mode", ""},
    {"*@*@Resizer@Process@Unity", "true", act_default, "^@Filter", ""},
    {"*@*@Resizer@Process@Unity", "true", act_default, "^@Detail", ""},
    {"*@*@Resizer@Process@Unity", "true", act_default, "^@Anti Moire", ""},
    {"*@*@Resizer@Mask@Box@Full Picture", "true", act_set, "^@Left", "-133.33"},
    {"*@*@Resizer@Mask@Box@Full Picture", "true", act_set, "^@Right", "133.33"},
    {"*@*@Resizer@Mask@Box@4:3 Box", "true", act_set, "^@Left", "-100.00"},
    {"*@*@Resizer@Mask@Box@4:3 Box", "true", act_set, "^@Right", "100.00"},
    {"*@*@Resizer@Mask@Box@*", "true", act_set, "^@Top", "100.00"},
    {"*@*@Resizer@Mask@Box@*", "true", act_set, "^@Bottom", "-100.00"},
    {"*@*@Resizer@Rotation@Reset", "true", act_default, "^@X", ""},
    {"*@*@Resizer@Rotation@Reset", "true", act_default, "^@Y", ""},
    {"*@*@Resizer@Rotation@Reset", "true", act_default, "^@Z", ""},

    // Two edges of a crop, or all four, go together, each to its side of the middle.
    {"**@Crop@H", "", act_follow, "^@Left", ""},
    {"**@Crop@H", "", act_oppose, "^@Right", ""},
    {"**@Crop@V", "", act_follow, "^@Top", ""},
    {"**@Crop@V", "", act_oppose, "^@Bottom", ""},
    {"**@Crop@All", "", act_follow, "^@Left", ""},
    {"**@Crop@All", "", act_oppose, "^@Right", ""},
    {"**@Crop@All", "", act_oppose, "^@Top", ""},
    {"**@Crop@All", "", act_follow, "^@Bottom", ""},
    // Of a 16:9 picture three quarters are a 4:3 one.
    {"**@Border/Crop@4:3 Crop", "true", act_set, "^@Crop@Left", "-75.00"},
    {"**@Border/Crop@4:3 Crop", "true", act_set, "^@Crop@Right", "75.00"},
    {"*@*@Processed Key@Center", "true", act_default, "^@Location", ""},
    {"**@Video Process@Unity", "true", act_default, "^@Luminance", ""},
    {"**@Video Process@Unity", "true", act_default, "^@Chroma", ""},
    {"**@Video Process@Unity", "true", act_default, "^@Hue", ""},

    // The clips that the frame memory has.
    {"*@Misc@Clip Transition@Output", "FM1", act_set, "^@Clip Name", "OPENER"},
    {"*@Misc@Clip Transition@Output", "FM2", act_set, "^@Clip Name", "BACKDROP"},
    {"*@Misc@Clip Transition@Output", "!FM1,FM2", act_set, "^@Clip Name", ""},
    {"*@Misc@Clip Transition@Cue Up", "true", act_set, "^@Player", "Cue"},
    {"*@Misc@Clip Transition@Cue Up", "true", act_default, "^@Position", ""},
    {"*@Misc@Clip Transition@Cue Up", "true", act_default, "^@Time Code", ""},

    // Wipes.
    {"*@Misc@Transition@*", "", act_show_channels, "", ""},
    {"*@Wipe@*@Center", "true", act_default, "^@Position@H", ""},
    {"*@Wipe@*@Center", "true", act_default, "^@Position@V", ""},
    {"**@Pattern Limit@Set", "true", act_copy, "^@Limit", "~1@Status@Transition Position"},
    {"**@Pattern Select@Channel Set", "", act_change_set, "^@Pattern", ""},
    {"**@Modify@Position@Center@*", "true", act_default, "^^@Position@H@$", ""},
    {"**@Modify@Position@Center@*", "true", act_default, "^^@Position@V@$", ""},
    {"**@Modify@Crop Mode@4:3 Crop@*", "true", act_set, "^^@Crop@Left@$", "-75.00"},
    {"**@Modify@Crop Mode@4:3 Crop@*", "true", act_set, "^^@Crop@Right@$", "75.00"},

    // The cells over the effects pages show what is turned.
    {"DME@Transform@3D Trans@Transform", "", act_show_reference, "", ""},
    {"DME@Transform@3D Trans@Space", "", act_show_reference, "", ""},
    {"DME@Transform@3D Trans@Location@?", "", act_show_transform, "Location@$", ""},
    {"DME@Transform@3D Trans@Rotation@?", "", act_show_transform, "Rotation@$", ""},
    {"DME@Transform@3D Trans@Axis@?", "", act_show_transform, "Axis@$", ""},
    {"DME@Transform@3D Trans@Aspect@?", "", act_show_transform, "Aspect@$", ""},
    {"DME@Transform@3D Trans@Size@?", "", act_show_transform, "Size@$", ""},
    {"DME@Transform@3D Trans@Size@Size", "", act_show_transform, "Size@X", ""},
    {"DME@Transform@3D Trans@Size@Size", "", act_show_transform, "Size@Y", ""},
    {"DME@Transform@3D Trans@Center", "true", act_reset_transform, "Location", ""},
    {"DME@Transform@3D Trans@Reset", "true", act_reset_transform, "", ""},
    // Colour: an action on a page resets what the page sets; a corrector or a background is copied
    // whole.
    {"CCR@*@Insert@Unity All", "true", act_default, "~2", ""},
    {"CCR@*@*@Unity", "true", act_default, "~3", ""},
    {"SP@*@Unity All", "true", act_default, "~2@Video Process", ""},
    {"SP@*@Unity All", "true", act_default, "~2@Color Correct", ""},
    {"SP@*@Video Process@Unity", "true", act_default, "~3", ""},
    {"SP@*@Color Correct@Unity", "true", act_default, "~3", ""},
    {"CCR@CCR1@Insert@Copy", "true", act_copy, "CCR@CCR2", "CCR@CCR1"},
    {"CCR@CCR2@Insert@Copy", "true", act_copy, "CCR@CCR1", "CCR@CCR2"},
    {"CCR@*@Insert@Swap", "true", act_swap, "CCR@CCR1", "CCR@CCR2"},
    {"Color Bkgd@Copy 1 to 2", "true", act_copy, "Color Bkgd@Bkgd 2", "Color Bkgd@Bkgd 1"},
    {"Color Bkgd@Copy 2 to 1", "true", act_copy, "Color Bkgd@Bkgd 1", "Color Bkgd@Bkgd 2"},
    {"Color Bkgd@Swap", "true", act_swap, "Color Bkgd@Bkgd 1", "Color Bkgd@Bkgd 2"},
    {"Misc@Port@Enable All", "true", act_set_all, "Misc@Port@Enable Port", "true"},
    {"Misc@Port@Enable All", "true", act_set_all, "Misc@Port@Enable GPI", "true"},
    {"Misc@Port@Disable All", "true", act_set_all, "Misc@Port@Enable Port", "false"},
    {"Misc@Port@Disable All", "true", act_set_all, "Misc@Port@Enable GPI", "false"},
    {"Misc@User@Store", "true", act_store_user, "", ""},
    {"Misc@User@Recall", "true", act_recall_user, "", ""},
    {"Copy/Swap@*@Undo", "true", act_undo_copy, "", ""},
    // The first channel of a group has none before it: it is combined when the second joins it.
    {"Global Effect@*@Combine@Ch2", "", act_follow, "^@Ch1", ""},
    {"Global Effect@*@Combine@Ch6", "", act_follow, "^@Ch5", ""},
    {"Global Effect@*@Priority@Ch*", "", act_give_place, "", ""},
    {"Global Effect@*@3D Trans@Center", "true", act_default, "^@Location", ""},
    {"Global Effect@*@3D Trans@Reset", "true", act_default, "^@Location", ""},
    {"Global Effect@*@3D Trans@Reset", "true", act_default, "^@Rotation", ""},
    {"Global Effect@*@3D Trans@Reset", "true", act_default, "^@Size", ""},
};

// The sets come before the rules: a rule finds the others off.
static constexpr OneOf one_ofs[] = {
    {"*@Wipe@Direction", "Normal,Reverse", true},
    {"*@Misc@Transition", "Mix,NAM,Super Mix,Preset Color Mix,Wipe,DME Wipe,Clip", true},
    {"*@*@Resizer@Enhanced Effect", "Mosaic,Defocus"}, // one generator makes both
};

// --- The search ---

static bool is_started_by(const char* values, const std::string& value)
{
    const bool is_excluding = values[0] == '!';
    const auto words = Text_Split(values + is_excluding, ',');
    const bool is_listed = std::find(words.begin(), words.end(), value) != words.end();
    return !values[0] || is_listed != is_excluding;
}

static std::string without_last_words(std::string path, size_t count)
{
    for (; count > 0 && !path.empty(); --count)
        path.resize(path.find('@') == path.npos ? 0 : path.rfind('@'));
    return path;
}

static std::string rule_path(const std::string& path, std::string text)
{
    const bool has_last = !text.empty() && text.back() == '$';
    if (has_last)
        text.replace(text.size() - 1, 1, path.substr(path.rfind('@') + 1));
    const size_t ups = text.find_first_not_of('^');
    if (ups != 0 && ups != text.npos)
        return without_last_words(path, ups) + text.substr(ups);
    if (text.empty() || text[0] != '~')
        return text;
    const bool has_count = text.size() > 1 && isdigit((unsigned char)text[1]);
    return has_count ? Text_Head(path, text[1] - '0') + text.substr(2) : path + text.substr(1);
}

static void follow_one_of(const OneOf& set, const std::string& path, const std::string& value)
{
    const size_t at = path.rfind('@');
    if (at == std::string::npos || !Text_MatchesPath(path.substr(0, at), set.group))
        return;
    const std::string group = path.substr(0, at + 1);
    const auto words = Text_Split(set.words, ',');
    if (std::find(words.begin(), words.end(), path.substr(at + 1)) == words.end())
        return;
    bool is_any = value == "true";
    for (const std::string& word : words) {
        const Node* other = Tree_Find(group + word);
        if (group + word == path || !other)
            continue;
        if (value == "true")
            Tree_Show(other->path, "false");
        is_any = is_any || other->value == "true";
    }
    if (!is_any && set.is_never_empty)
        Tree_Show(path, "true");
}

void Rules_Follow(const std::string& path, const std::string& value)
{
    for (const OneOf& set : one_ofs)
        follow_one_of(set, path, value);
    DeviceVtr_Follow(path);
    SetupSwitcherIo_Follow(path, value);
    for (const Rule& rule : rules)
        if (Text_MatchesPath(path, rule.path) && is_started_by(rule.values, value))
            rule.act({path, value, rule_path(path, rule.target), rule_path(path, rule.value)});
}

void Rules_Install()
{
    rl = {};
}
