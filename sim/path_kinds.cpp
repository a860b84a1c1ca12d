#include "path_kinds.h"
#include "text.h"
#include "values.h"

namespace
{
// Of several rows for a path the first counts.
struct PathKind {
    const char* path = "";
    const char* type = ""; // as in the value file, with blanks: "num 0 100 2"
};
struct PathStart {
    const char* path = "";
    const char* value = "";
};
} // namespace

static constexpr const char* PERCENT = "num 0 100 2";

static constexpr PathKind kinds[] = {
    // Keys. Each key type has a clean mode and a position of its own.
    {"*@*@Type@Clean Mode@*", "bool"},
    {"*@*@Type@Key Position@*@*", "num -8 8 2"},
    {"*@*@Type@Key Position@*", "bool"},
    {"*@*@Type@Chroma@Mix Mode", "word Normal,Additive Mix"},
    {"*@*@Edge@Matte Adjust@Mode", "word Flat,Mix"},
    // The channels of an effects wipe.
    {"**@Modify@Position@Position@*@*", "num -200 200 2"},
    {"**@Modify@Position@Position@*", "bool"},
    {"**@Modify@Position@Center@*", "action"},
    {"**@Modify@Size@Size@*", "num 0 200 2"},
    {"**@Modify@Size@*", "bool"},
    {"**@Modify@Crop Mode@4:3 Crop@*", "action"},
    {"**@Modify@Crop Mode@Crop@Top@*", PERCENT},
    {"**@Modify@Crop Mode@Crop@Right@*", PERCENT},
    {"**@Modify@Crop Mode@Crop@*@*", "num -100 0 2"},
    {"**@Modify@Crop Mode@Crop@*", "bool"},
    // Clip transition.
    {"*@Misc@Clip Transition@Position", PERCENT},
    {"*@Misc@Clip Transition@Start", PERCENT},
    {"*@Misc@Clip Transition@End", PERCENT},
    {"**@Video Process@Hue", "num -180 180 2"},
};

static constexpr PathStart starts[] = {
    {"**@Density", "100"},
    {"**@Rate", "30"},
    {"**@*Transition Rate", "30"},
};

static ValueType type_of(const char* text)
{
    const std::string type = text;
    const size_t blank = type.find(' ');
    std::vector<std::string> fields = {type.substr(0, blank)};
    if (blank != std::string::npos) {
        const std::string rest = type.substr(blank + 1); // words may hold blanks, numbers don't
        const bool is_number = fields[0] == "num";
        for (const std::string& field : Text_Split(rest, is_number ? ' ' : '\n'))
            fields.push_back(field);
    }
    ValueType parsed;
    return Values_ParseType(fields, &parsed) ? parsed : ValueType{};
}

ValueType PathKinds_Type(const std::string& path)
{
    for (const PathKind& row : kinds)
        if (Text_MatchesPath(path, row.path))
            return type_of(row.type);
    return {};
}

std::string PathKinds_Start(const std::string& path)
{
    for (const PathStart& row : starts)
        if (Text_MatchesPath(path, row.path))
            return row.value;
    return "";
}
