#include "setup_kind.h"
#include "log.h"
#include "text.h"
#include "values.h"
#include <vector>

std::vector<std::string> SetupKind_Rows(const std::string& each)
{
    const size_t dots = each.find("..");
    if (dots == std::string::npos)
        return Text_Split(each, ',');
    std::vector<std::string> rows;
    long first = 0, last = 0;
    if (Text_ToInt(each.substr(0, dots), &first) && Text_ToInt(each.substr(dots + 2), &last))
        for (; first <= last; ++first)
            rows.push_back(std::to_string(first));
    return rows;
}

std::string SetupKind_With(std::string text, const std::string& row)
{
    const size_t at = text.find('$');
    return at == text.npos ? text : text.replace(at, 1, row);
}

static std::string path_of(const SetupKinds& kinds, const SetupKind& kind, const std::string& row)
{
    return SetupKind_With(kinds.tree + kind.path, row);
}

ValueType SetupKind_Type(const std::string& text)
{
    const size_t blank = text.find(' ');
    std::vector<std::string> fields = {text.substr(0, blank)};
    if (fields[0] == "word")
        fields.push_back(text.substr(blank + 1));
    else if (blank != std::string::npos)
        for (const std::string& field : Text_Split(text.substr(blank + 1), ' '))
            fields.push_back(field);
    ValueType type;
    (void)Values_ParseType(fields, &type); // "byte" and "any" take every text here
    return type;
}

static bool is_of_parts(const SetupKind& kind)
{
    return std::string(kind.type).find(';') != std::string::npos;
}

bool SetupKind_Refuse(const std::string& path, const std::string& value)
{
    Log_Note("setup refused: %s#%s", path.c_str(), value.c_str());
    return true;
}

// The parts as they are kept; false when one of them is none of its type.
static bool accepts_parts(const SetupKind& kind, const std::string& value, std::string* kept)
{
    const auto types = Text_Split(kind.type, ';');
    const auto parts = Text_Split(value, ',');
    if (types.size() != parts.size())
        return false;
    for (size_t i = 0; i < parts.size(); ++i) {
        std::string part;
        if (types[i] == "byte") {
            if (parts[i].size() != 4 || !Text_Matches(parts[i], "0x??") ||
                parts[i].find_first_not_of("0123456789ABCDEF", 2) != std::string::npos)
                return false;
            part = parts[i];
        } else if (!Tree_Accepts(SetupKind_Type(types[i]), parts[i], &part)) {
            return false;
        }
        *kept += (i ? "," : "") + part;
    }
    return true;
}

// An action stands on one of its two paths.
static void clear_other_action(const std::string& path)
{
    const std::string plain = "@Action Type@", region = "@Action Type Region@";
    if (const size_t at = path.find(plain); at != std::string::npos)
        Tree_Show(std::string(path).replace(at, plain.size(), region), GPI_NO_REGION_ACTION);
    else if (const size_t of = path.find(region); of != std::string::npos)
        Tree_Show(std::string(path).replace(of, region.size(), plain), GPI_NO_ACTION);
}

static bool put_parts(const SetupKind& kind, const std::string& path, const std::string& value)
{
    std::string kept;
    if (!accepts_parts(kind, value, &kept))
        return SetupKind_Refuse(path, value);
    Tree_Show(path, kept);
    clear_other_action(path);
    return true;
}

void SetupKind_Install(const SetupKinds& kinds)
{
    for (size_t i = 0; i < kinds.count; ++i) {
        const SetupKind& kind = kinds.kind[i];
        for (const std::string& row : SetupKind_Rows(kind.each)) {
            const std::string path = path_of(kinds, kind, row);
            Node* const node = Tree_Get(path);
            if (node && !is_of_parts(kind))
                node->type = SetupKind_Type(kind.type);
            Tree_Preset(path, SetupKind_With(kind.start, row));
        }
    }
}

bool SetupKind_Put(const SetupKinds& kinds, const std::string& path, const std::string& value)
{
    for (size_t i = 0; i < kinds.count; ++i)
        if (is_of_parts(kinds.kind[i]))
            for (const std::string& row : SetupKind_Rows(kinds.kind[i].each))
                if (path == path_of(kinds, kinds.kind[i], row))
                    return put_parts(kinds.kind[i], path, value);
    return false;
}

bool SetupKind_Fire(const std::string& unit, const std::string& page, const std::string& path)
{
    if (!Text_MatchesPath(path, page + "@Test Fire@*"))
        return false;
    const std::string port = path.substr(path.rfind('@') + 1);
    const Node* const trigger = Tree_Find(page + "@Trigger Type@" + port);
    const Node* const enable = Tree_Find(page + "@GPI Enable");
    if (!trigger || (enable && enable->value == "false"))
        return SetupKind_Refuse(path, trigger ? "(disabled)" : "");
    Log_Note("%sGPI output %s: test fire, %s", unit.c_str(), port.c_str(), trigger->value.c_str());
    return true;
}
