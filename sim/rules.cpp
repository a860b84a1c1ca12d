#include "rules.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <cctype>

namespace
{
// A change that a rule follows: its path, and the row's two paths for it.
struct Hit {
    std::string path;
    std::string target;
    std::string value; // or a second path
};

// In target and value "~N" is as much of the path as its first N words, "~" all of it, "^" all but
// the last word.
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
} // namespace

// --- What rules do ---

static void act_set(const Hit& hit)
{
    Tree_Show(hit.target, hit.value);
}

static void act_default(const Hit& hit)
{
    for (Node* node : Tree_Under(hit.target))
        Tree_Show(node->path, node->initial);
}

// The values below one path as they are relative to it.
static std::vector<std::pair<std::string, std::string>> values_below(const std::string& path)
{
    std::vector<std::pair<std::string, std::string>> values;
    for (const Node* node : Tree_Under(path))
        values.emplace_back(node->path.substr(path.size()), node->value);
    return values;
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

// --- The rules ---

static constexpr const char* PATTERN_KEYS = "Wipe Pattern,Key Wipe Pattern";

static constexpr Rule rules[] = {
    // A pattern key has no source whose edge could be cleaned or moved.
    {"*@*@Type@Clean Mode@*Wipe Pattern", "true", act_set, "~", "false"},
    {"*@*@Type@Key Position@*Wipe Pattern", "true", act_set, "~", "false"},
    {"*@*@Type@Key Type", PATTERN_KEYS, act_set, "~2@Type@Key Source", "Self"},
    // The automatic chroma key finds its values in the picture: here a green wall.
    {"*@*@Type@Auto Chroma", "true", act_set, "~2@Type@Key Type@Chroma@Hue", "117.50"},
    {"*@*@Type@Auto Chroma", "true", act_set, "~2@Type@Key Type@Chroma@Clip", "38.00"},
    {"*@*@Type@Auto Chroma", "true", act_set, "~2@Type@Key Type@Chroma@Gain", "12.00"},
    // A matte has two colours.
    {"**@Matte Adjust@Copy", "true", act_copy, "^@Color 2", "^@Color 1"},
    {"**@Matte Adjust@Swap", "true", act_swap, "^@Color 1", "^@Color 2"},
    {"**@Position@Center", "true", act_default, "~", ""},
};

static constexpr OneOf one_ofs[] = {
    {"*@*@Direction", "Normal,Reverse,Norm/Rev", true},
};

// --- The search ---

static bool is_started_by(const char* values, const std::string& value)
{
    const bool is_excluding = values[0] == '!';
    const auto words = Text_Split(values + is_excluding, ',');
    const bool is_listed = std::find(words.begin(), words.end(), value) != words.end();
    return !values[0] || is_listed != is_excluding;
}

static std::string rule_path(const std::string& path, const std::string& text)
{
    if (text[0] == '^')
        return path.substr(0, path.rfind('@')) + text.substr(1);
    if (text[0] != '~')
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
    for (const Rule& rule : rules)
        if (Text_MatchesPath(path, rule.path) && is_started_by(rule.values, value))
            rule.act({path, rule_path(path, rule.target), rule_path(path, rule.value)});
    for (const OneOf& set : one_ofs)
        follow_one_of(set, path, value);
}
