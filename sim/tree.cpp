#include "tree.h"
#include "link.h"
#include "log.h"
#include "system.h"
#include "text.h"
#include "values.h"
#include <algorithm>
#include <cmath>

static struct {
    std::map<std::string, Node> nodes; // ordered: a group is one run of neighbours
} tr;

static constexpr size_t LIST_ROWS = 4096;

Node* Tree_Find(const std::string& path)
{
    const auto found = tr.nodes.find(path);
    return found == tr.nodes.end() ? nullptr : &found->second;
}

Node* Tree_Get(const std::string& path)
{
    if (Node* node = Tree_Find(path))
        return node;
    if (tr.nodes.size() >= TREE_NODES) {
        Log_Note("the tree is full, no room for %.200s", path.c_str());
        return nullptr;
    }
    Node& node = tr.nodes[path];
    node.path = path;
    node.type = Values_Type(path);
    node.initial = Values_Start(path, node.type);
    node.value = node.initial;
    return &node;
}

std::vector<Node*> Tree_Under(const std::string& prefix)
{
    std::vector<Node*> found;
    for (auto at = tr.nodes.lower_bound(prefix);
         at != tr.nodes.end() && Text_Begins(at->first, prefix); ++at) {
        const bool is_below = at->first.size() == prefix.size() || at->first[prefix.size()] == '@';
        if (is_below)
            found.push_back(&at->second);
    }
    return found;
}

const std::map<std::string, Node>& Tree_All()
{
    return tr.nodes;
}

void Tree_Clear()
{
    tr.nodes.clear();
}

std::string Tree_NumberText(const ValueType& type, double number)
{
    number = std::clamp(number, type.min, type.max);
    const std::string text = Text_Format("%.*f", type.decimals, number);
    return strtod(text.c_str(), nullptr) == 0 && text[0] == '-' ? text.substr(1) : text;
}

// "[-][[h:]m:]s:]f" in frames: what a time box sends, where the value itself is a count.
static bool tree_frames(const std::string& text, double* frames)
{
    const bool negative = text[0] == '-';
    static constexpr int per_unit[] = {60, 60}; // seconds a minute, minutes an hour
    const auto parts = Text_Split(negative ? text.substr(1) : text, ':');
    if (parts.size() < 2 || parts.size() > 4)
        return false;
    double seconds = 0;
    long number = 0;
    for (size_t i = 0; i + 1 < parts.size(); ++i) {
        if (!Text_ToInt(parts[i], &number) || number < 0)
            return false;
        seconds = seconds * per_unit[0] + double(number);
    }
    if (!Text_ToInt(parts.back(), &number) || number < 0)
        return false;
    *frames = seconds * System_FrameRate() + double(number);
    if (negative)
        *frames = -*frames;
    return true;
}

bool Tree_Accepts(const ValueType& type, const std::string& wanted, std::string* value)
{
    *value = wanted;
    double number = 0;
    switch (type.kind) {
    case KIND_BOOL:
    case KIND_ACTION: return wanted == "true" || wanted == "false";
    case KIND_WORD:
        return wanted == "null" ||
               std::find(type.words.begin(), type.words.end(), wanted) != type.words.end();
    case KIND_NUM:
        if (!Text_ToNumber(wanted, &number) && !tree_frames(wanted, &number))
            return false;
        *value = Tree_NumberText(type, number);
        return true;
    case KIND_ANY:
    case KIND_ORDER:
    case KIND_LIST: break;
    }
    return true;
}

// "diff8.00": so many hundredths. A panel counts the steps of a knob while the value moves on under
// it; those of a fast turn go far beyond the limits.
static bool tree_is_relative(const Node& node, const std::string& wanted, double* hundredths)
{
    return node.type.kind == KIND_NUM && Text_Begins(wanted, "diff") &&
           Text_ToNumber(wanted.substr(4), hundredths);
}

static std::string tree_moved(const Node& node, double hundredths)
{
    double number = 0;
    (void)Text_ToNumber(node.value, &number); // no number yet: from 0
    return Tree_NumberText(node.type, number + hundredths / 100);
}

// Keys 1 to 4 have an order among themselves, and so have keys 5 to 8.
static bool tree_is_order(const std::string& list, const std::string& wanted)
{
    constexpr size_t GROUP = 4;
    auto have = Text_Split(list, ','), want = Text_Split(wanted, ',');
    if (have.size() != want.size())
        return false;
    for (size_t first = 0; first < have.size(); first += GROUP) {
        const size_t last = std::min(first + GROUP, have.size());
        std::sort(have.begin() + long(first), have.begin() + long(last));
        std::sort(want.begin() + long(first), want.begin() + long(last));
    }
    return have == want;
}

static bool tree_accept(const Node& node, const std::string& wanted, std::string* value)
{
    double hundredths = 0;
    if (tree_is_relative(node, wanted, &hundredths)) {
        *value = tree_moved(node, hundredths);
        return true;
    }
    if (node.type.kind == KIND_ORDER && !tree_is_order(node.initial, wanted))
        return false;
    return Tree_Accepts(node.type, wanted, value);
}

static std::string_view tree_key(const Node& node, std::string_view row)
{
    size_t end = row.find(',');
    for (int field = 1; field < node.key_fields && end != row.npos; ++field)
        end = row.find(',', end + 1);
    return row.substr(0, end);
}

static PutResult tree_put_row(Node& node, const std::string& row, std::string* tally)
{
    *tally = row;
    for (std::string& old : node.rows) {
        if (tree_key(node, old) != tree_key(node, row))
            continue;
        if (old == row)
            return PUT_SAME;
        old = row;
        return PUT_CHANGED;
    }
    if (node.rows.size() >= LIST_ROWS)
        return PUT_REFUSED;
    node.rows.push_back(row);
    return PUT_CHANGED;
}

PutResult Tree_Put(Node& node, const std::string& wanted, std::string* tally)
{
    *tally = node.value;
    if (node.path.size() + 1 + wanted.size() > TALLY_BYTES)
        return PUT_REFUSED;
    if (node.type.kind == KIND_LIST)
        return tree_put_row(node, wanted, tally);
    std::string value;
    if (!tree_accept(node, wanted, &value))
        return PUT_REFUSED;
    const bool is_changed = value != node.value;
    node.value = value;
    *tally = value;
    if (node.type.kind == KIND_ACTION && value == "true")
        return PUT_PULSE;
    return is_changed ? PUT_CHANGED : PUT_SAME;
}

bool Tree_Default(Node& node)
{
    if (node.value == node.initial && node.rows == node.initial_rows)
        return false;
    node.value = node.initial;
    node.rows = node.initial_rows;
    return true;
}

void Tree_Preset(const std::string& path, const std::string& value)
{
    Node* node = Tree_Get(path);
    if (!node)
        return;
    node->initial = value;
    node->value = value;
    // The installation knows words that no button has.
    std::vector<std::string>& words = node->type.words;
    if (node->type.kind == KIND_WORD && std::find(words.begin(), words.end(), value) == words.end())
        words.push_back(value);
}

void Tree_SetKind(const std::string& path, ValueKind kind)
{
    Node* node = Tree_Get(path);
    if (!node)
        return;
    node->type = {.kind = kind, .words = {}};
    node->initial = Values_Start(path, node->type);
    node->value = node->initial;
}

void Tree_SetList(const std::string& path, const std::vector<std::string>& rows, int key_fields)
{
    Node* node = Tree_Get(path);
    if (!node)
        return;
    node->type = {};
    node->type.kind = KIND_LIST;
    node->rows = rows;
    node->initial_rows = rows;
    node->key_fields = key_fields;
}

void Tree_Follow(Node& node, int client)
{
    std::vector<int>& list = node.followers;
    if (std::find(list.begin(), list.end(), client) == list.end())
        list.push_back(client);
}

void Tree_Unfollow(Node& node, int client)
{
    std::erase(node.followers, client);
}

void Tree_ForgetClient(int client)
{
    for (auto& [path, node] : tr.nodes)
        Tree_Unfollow(node, client);
}

void Tree_Answer(const Node& node, int client)
{
    const bool is_bare = node.rows.empty() && !node.kill_first; // an empty list answers, too
    if (node.type.kind != KIND_LIST || is_bare)
        return Link_SendLine(client, node.path + "#" + node.value);
    if (node.kill_first)
        Link_SendLine(client, node.path + "#KILL");
    for (const std::string& row : node.rows)
        Link_SendLine(client, node.path + "#" + row);
}

void Tree_Tell(const Node& node, const std::string& value, int also_client)
{
    const std::string line = node.path + "#" + value;
    bool is_told = also_client == 0;
    for (const int client : node.followers) {
        Link_SendLine(client, line);
        is_told = is_told || client == also_client;
    }
    if (!is_told)
        Link_SendLine(also_client, line);
}

void Tree_Show(const std::string& path, const std::string& value)
{
    Node* node = Tree_Get(path);
    if (!node || node->value == value)
        return;
    node->value = value;
    Tree_Tell(*node, value, 0);
}

void Tree_ShowRow(const std::string& path, const std::string& row)
{
    Node* node = Tree_Get(path);
    std::string tally;
    if (!node || tree_put_row(*node, row, &tally) != PUT_CHANGED)
        return;
    node->initial_rows = node->rows;
    Tree_Tell(*node, row, 0);
}
