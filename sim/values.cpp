#include "values.h"
#include "log.h"
#include "path_kinds.h"
#include "text.h"
#include <algorithm>
#include <fstream>
#include <unordered_map>

static struct {
    std::unordered_map<std::string, ValueType> types;
} vl; // filled once at start

static constexpr int DECIMALS_MAX = 6;

bool Values_ParseType(const std::vector<std::string>& field, ValueType* type)
{
    const std::string& kind = field[0];
    long decimals = 0;
    if (kind == "bool") {
        type->kind = KIND_BOOL;
    } else if (kind == "action") {
        type->kind = KIND_ACTION;
    } else if (kind == "order") {
        type->kind = KIND_ORDER;
    } else if (kind == "any") {
        type->kind = KIND_ANY;
    } else if (kind == "word" && field.size() == 2) {
        type->kind = KIND_WORD;
        type->words = Text_Split(field[1], ',');
        const bool is_open = std::count(type->words.begin(), type->words.end(), "*") > 0;
        if (is_open)
            *type = {}; // a button that takes any word
    } else if (kind == "num" && field.size() == 4 && Text_ToNumber(field[1], &type->min) &&
               Text_ToNumber(field[2], &type->max) && Text_ToInt(field[3], &decimals) &&
               decimals >= 0 && decimals <= DECIMALS_MAX) {
        type->kind = KIND_NUM;
        type->decimals = int(decimals);
        if (type->min > type->max)
            std::swap(type->min, type->max); // a bar that runs backwards
    } else {
        return false;
    }
    return true;
}

static void values_add_words(std::vector<std::string>& words, const std::vector<std::string>& more)
{
    for (const std::string& word : more)
        if (std::find(words.begin(), words.end(), word) == words.end())
            words.push_back(word);
}

// Two lines of different kind mean that the path is used in two ways: a switch whose words are also
// chosen, an action that also shows a state. The more telling kind wins; a number that is also a
// word takes anything.
static void values_merge(ValueType& have, const ValueType& more)
{
    if (have.kind == KIND_ANY) {
        have = more;
    } else if (more.kind == KIND_ANY) {
        return;
    } else if (have.kind == KIND_NUM && more.kind == KIND_NUM) {
        have.min = std::min(have.min, more.min);
        have.max = std::max(have.max, more.max);
        have.decimals = std::max(have.decimals, more.decimals);
    } else if (have.kind == KIND_NUM || more.kind == KIND_NUM) {
        have = {};
    } else if (have.kind == KIND_WORD || more.kind == KIND_WORD) {
        std::vector<std::string> words;
        if (have.kind != more.kind)
            words = {"false", "true"};
        values_add_words(words, have.words);
        values_add_words(words, more.words);
        have.kind = KIND_WORD;
        have.words = words;
    } else if (more.kind == KIND_BOOL) {
        have.kind = KIND_BOOL;
    }
}

bool Values_Load(const char* file)
{
    std::ifstream in(file);
    if (!in)
        return false;
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        const auto field = Text_Split(Text_Trim(line), '\t');
        if (field.size() < 2) {
            if (!field[0].empty() && field[0][0] != '#')
                Log_Note("%s:%d: no type", file, number);
            continue;
        }
        ValueType type;
        if (!Values_ParseType({field.begin() + 1, field.end()}, &type)) {
            Log_Note("%s:%d: not a type: %.100s", file, number, line.c_str());
            continue;
        }
        const auto [at, is_new] = vl.types.try_emplace(field[0], type);
        if (!is_new)
            values_merge(at->second, type);
    }
    Log_Note("%zu paths from %s", vl.types.size(), file);
    return true;
}

static const ValueType* values_listed(const std::string& path)
{
    auto found = vl.types.find(path);
    // The pages of a bank's sub side are those of its main side under another name.
    const size_t sub = path.find(" SUB@");
    if (found == vl.types.end() && sub != std::string::npos)
        found = vl.types.find(std::string(path).erase(sub, 4));
    return found == vl.types.end() || found->second.kind == KIND_ANY ? nullptr : &found->second;
}

ValueType Values_Type(const std::string& path)
{
    const ValueType* const listed = values_listed(path);
    return listed ? *listed : PathKinds_Type(path);
}

// The value that a kind begins with when nothing else is known.
static std::string values_first(const ValueType& type)
{
    switch (type.kind) {
    case KIND_BOOL:
    case KIND_ACTION: return "false";
    case KIND_WORD: return type.words.empty() ? "" : type.words.front();
    case KIND_NUM: return Tree_NumberText(type, 0);
    case KIND_ANY:
    case KIND_ORDER:
    case KIND_LIST: break;
    }
    return "";
}

std::string Values_Start(const std::string& path, const ValueType& type)
{
    const std::string start = PathKinds_Start(path);
    std::string value;
    return !start.empty() && Tree_Accepts(type, start, &value) ? value : values_first(type);
}
