#include "value_text.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <set>

static bool is_of(const std::string& path, const std::string& word)
{
    const bool is_without = Text_Begins(word, "!");
    const auto words = Text_Split(path, '@');
    const bool has = std::find(words.begin(), words.end(), word.substr(is_without)) != words.end();
    return word.empty() || has != is_without;
}

static bool is_saved(const Node& node, const std::string& word)
{
    return node.type.kind != KIND_ACTION && is_of(node.path, word);
}

std::string ValueText_Write(const std::vector<std::string>& trees, const std::string& word)
{
    std::string text;
    for (const std::string& tree : trees)
        for (const Node* node : Tree_Under(tree)) {
            if (!is_saved(*node, word))
                continue;
            if (node->type.kind != KIND_LIST)
                text += node->path + "#" + node->value + "\n";
            for (const std::string& row : node->rows)
                text += node->path + "#" + row + "\n";
        }
    return text;
}

static bool is_below_one(const std::string& path, const std::vector<std::string>& trees)
{
    return std::any_of(trees.begin(), trees.end(), [&](const std::string& tree) {
        return Text_Begins(path, tree) && (path.size() == tree.size() || path[tree.size()] == '@');
    });
}

static void bring_back(Node& node, const std::string& value)
{
    if (node.type.kind == KIND_LIST) {
        std::string tally;
        if (Tree_Put(node, value, &tally) == PUT_CHANGED)
            Tree_Tell(node, tally, 0);
    } else {
        Tree_Show(node.path, value);
    }
}

void ValueText_Load(const std::string& text, const std::vector<std::string>& trees,
                    const std::string& word)
{
    std::set<std::string> named;
    for (const std::string& line : Text_Split(text, '\n')) {
        const size_t hash = line.find('#');
        if (hash == std::string::npos || !is_below_one(line.substr(0, hash), trees))
            continue;
        Node* const node = Tree_Get(line.substr(0, hash));
        if (!node || !is_saved(*node, word))
            continue;
        named.insert(node->path);
        bring_back(*node, line.substr(hash + 1));
    }
    for (const std::string& tree : trees)
        for (const Node* node : Tree_Under(tree))
            if (is_saved(*node, word) && node->type.kind != KIND_LIST &&
                !named.contains(node->path))
                Tree_Show(node->path, node->initial);
}
