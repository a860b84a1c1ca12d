#include "rules.h"
#include "text.h"
#include "tree.h"

namespace
{
// When PATH@TAIL becomes one of the words, PATH@OTHER becomes VALUE.
struct Rule {
    const char* tail = "";
    const char* words = "";
    const char* other = "";
    const char* value = "";
};
} // namespace

static constexpr const char* PATTERN_KEYS = "Wipe Pattern,Key Wipe Pattern";

// A pattern key has no source whose edge could be cleaned or moved. The automatic chroma key finds
// its values in the picture: here a green wall.
static constexpr Rule rules[] = {
    {"Type@Key Type", PATTERN_KEYS, "Type@Clean Mode", "false"},
    {"Type@Key Type", PATTERN_KEYS, "Type@Key Position", "false"},
    {"Type@Auto Chroma", "true", "Type@Key Type@Chroma@Hue", "117.50"},
    {"Type@Auto Chroma", "true", "Type@Key Type@Chroma@Clip", "38.00"},
    {"Type@Auto Chroma", "true", "Type@Key Type@Chroma@Gain", "12.00"},
};

static bool ends_with(const std::string& path, const std::string& tail)
{
    return path.size() > tail.size() && path.substr(path.size() - tail.size()) == tail;
}

void Rules_Follow(const std::string& path, const std::string& value)
{
    for (const Rule& rule : rules) {
        if (!ends_with(path, std::string("@") + rule.tail))
            continue;
        const std::string base = path.substr(0, path.size() - std::string(rule.tail).size());
        for (const std::string& word : Text_Split(rule.words, ','))
            if (value == word)
                Tree_Show(base + rule.other, rule.value);
    }
}
