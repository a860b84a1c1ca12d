#include "setup_list.h"
#include "setup_kind.h"
#include "text.h"
#include "tree.h"
#include <algorithm>

using Words = std::vector<std::string>;

static constexpr int KEYS = 8;

// Those words that are made up here.
static Words words_of_banks(bool are_keys)
{
    Words words = {"None"};
    for (const char* bank : {"M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5", "P/P"}) {
        for (int key = 1; are_keys && key <= KEYS; ++key)
            words.push_back(Text_Format("%s Key%d", bank, key));
        for (const char* bus : {" A", " B"})
            if (!are_keys)
                words.push_back(std::string(bank) + bus);
    }
    return words;
}

static ValueType type_of(const std::string& text)
{
    if (text != "key" && text != "bus")
        return SetupKind_Type(text);
    ValueType type;
    type.kind = KIND_WORD;
    type.words = words_of_banks(text == "key");
    return type;
}

static std::string with_all(std::string text, const std::string& key)
{
    while (text.find('$') != text.npos)
        text = SetupKind_With(text, key);
    return text;
}

void SetupList_Install(const std::string& tree, std::span<const SetupList> lists)
{
    for (const SetupList& list : lists) {
        Words rows;
        for (const std::string& key : SetupKind_Rows(list.each))
            rows.push_back(key + "," + with_all(list.start, key));
        Tree_SetList(tree + list.path, rows, 1);
    }
}

static bool fits(const SetupList& list, const Words& row)
{
    const Words types = Text_Split(list.types, '|');
    if (row.size() != types.size() + 1)
        return false;
    for (size_t i = 0; i < types.size(); ++i) {
        std::string value;
        if (!Tree_Accepts(type_of(types[i]), row[i + 1], &value) || value != row[i + 1])
            return false;
    }
    const Words keys = SetupKind_Rows(list.each);
    return std::find(keys.begin(), keys.end(), row[0]) != keys.end();
}

bool SetupList_Refuse(const std::string& tree, std::span<const SetupList> lists,
                      const std::string& path, const std::string& row)
{
    for (const SetupList& list : lists)
        if (path == tree + list.path)
            return !fits(list, Text_Split(row, ',')) && SetupKind_Refuse(path, row);
    return false;
}
