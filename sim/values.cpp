#include "values.h"
#include "log.h"
#include "text.h"
#include <algorithm>
#include <fstream>
#include <unordered_map>

static struct {
    std::unordered_map<std::string, ValueType> types;
} vl; // filled once at start

static constexpr int DECIMALS_MAX = 6;

static bool values_parse(const std::vector<std::string>& field, ValueType* type)
{
    const std::string& kind = field[1];
    long decimals = 0;
    if (kind == "bool") {
        type->kind = KIND_BOOL;
    } else if (kind == "action") {
        type->kind = KIND_ACTION;
    } else if (kind == "any") {
        type->kind = KIND_ANY;
    } else if (kind == "word" && field.size() == 3) {
        type->kind = KIND_WORD;
        type->words = Text_Split(field[2], ',');
        const bool is_open = std::count(type->words.begin(), type->words.end(), "*") > 0;
        if (is_open)
            *type = {}; // a button that takes any word
    } else if (kind == "num" && field.size() == 5 && Text_ToNumber(field[2], &type->min) &&
               Text_ToNumber(field[3], &type->max) && Text_ToInt(field[4], &decimals) &&
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
        if (!values_parse(field, &type)) {
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

ValueType Values_Type(const std::string& path)
{
    auto found = vl.types.find(path);
    // The pages of a bank's sub side are those of its main side under another name.
    const size_t sub = path.find(" SUB@");
    if (found == vl.types.end() && sub != std::string::npos)
        found = vl.types.find(std::string(path).erase(sub, 4));
    return found == vl.types.end() ? ValueType{} : found->second;
}
