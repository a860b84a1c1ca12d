#include "macro_event.h"
#include "text.h"

static constexpr const char* words[] = {"Event", "Continue", "#"};

const char* MacroEvent_Word(const MacroLine& line)
{
    return words[line.contents];
}

std::string MacroEvent_Value(const MacroLine& line, const char* name)
{
    for (const auto& [parameter, value] : line.values)
        if (parameter == name)
            return value;
    return "";
}

int MacroEvent_Number(const MacroLine& line, const char* name, int min, int max, int otherwise)
{
    long number = 0;
    const bool is_one =
        Text_ToInt(MacroEvent_Value(line, name), &number) && number >= min && number <= max;
    return is_one ? int(number) : otherwise;
}

// Names in a file end with a question mark.
static std::string bare(const std::string& word)
{
    return !word.empty() && word.back() == '?' ? word.substr(0, word.size() - 1) : word;
}

// Runs of commas count as one.
static std::vector<std::string> fields_of(const std::string& text)
{
    auto fields = Text_Split(text, ',');
    std::erase_if(fields, [](const std::string& field) { return field.empty(); });
    return fields;
}

static void read_fields(const std::vector<std::string>& fields, size_t from, MacroLine* line)
{
    line->symbol = from < fields.size() ? fields[from] : "";
    for (size_t i = from + 1; i + 1 < fields.size(); i += 2)
        line->values.emplace_back(bare(fields[i]), fields[i + 1]);
}

bool MacroEvent_Parse(const std::string& text, MacroLine* line)
{
    *line = {};
    read_fields(fields_of(text), 0, line);
    return !line->symbol.empty();
}

std::string MacroEvent_Text(const MacroLine& line)
{
    std::string text = line.symbol;
    for (const auto& [name, value] : line.values)
        text += "," + name + "," + value;
    return text;
}

static bool read_line(const std::string& text, MacroLine* line)
{
    const auto fields = fields_of(text);
    for (int i = 0; i < 3 && !fields.empty(); ++i)
        if (bare(fields[0]) == words[i]) {
            line->contents = MacroLine::Contents(i);
            read_fields(fields, 1, line);
            return !line->symbol.empty() || line->contents == MacroLine::COMMENT;
        }
    return false;
}

std::vector<MacroLine> MacroEvent_Read(const std::string& body)
{
    std::vector<MacroLine> lines;
    size_t begin = 0;
    while (begin < body.size() && lines.size() < MACRO_CELLS) {
        const size_t end = std::min(body.find_first_of("\r\n", begin), body.size());
        MacroLine line;
        if (read_line(body.substr(begin, end - begin), &line))
            lines.push_back(line);
        begin = end + 1; // between CR and LF stands an empty line, which is none
    }
    return lines;
}

std::string MacroEvent_Write(const std::vector<MacroLine>& lines, const std::string& old_body)
{
    const std::string end = Text_Begins(old_body, "\r\n") ? "\r\n"
                            : Text_Begins(old_body, "\r") ? "\r"
                                                          : "\n";
    std::string body = end;
    for (const MacroLine& line : lines) {
        body += MacroEvent_Word(line) + std::string("?,") + line.symbol;
        for (const auto& [name, value] : line.values)
            body += "," + name + "?," + value;
        body += end;
    }
    return body;
}
