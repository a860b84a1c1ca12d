// macro_event: the text of a macro and the lines that it consists of.
#pragma once
#include <string>
#include <utility>
#include <vector>

struct MacroLine {
    enum Contents { EVENT, CONTINUE, COMMENT };
    Contents contents = EVENT;
    std::string symbol;                                      // or the comment's text
    std::vector<std::pair<std::string, std::string>> values; // by the parameter's name
};

constexpr int MACRO_CELLS = 1023; // lines of a macro

const char* MacroEvent_Word(const MacroLine& line); // "Event", "Continue", "#"
// The value of a parameter, empty for none; as a number from min to max, else what it is otherwise.
std::string MacroEvent_Value(const MacroLine& line, const char* name);
int MacroEvent_Number(const MacroLine& line, const char* name, int min, int max, int otherwise);
// "SYMBOL,NAME,VALUE,..." and back.
bool MacroEvent_Parse(const std::string& text, MacroLine* line); // false: no symbol
std::string MacroEvent_Text(const MacroLine& line);

// What stands behind a file's first line, its line end included. Lines that are none are left out.
std::vector<MacroLine> MacroEvent_Read(const std::string& body);
// The same again, with the line ends that it had.
std::string MacroEvent_Write(const std::vector<MacroLine>& lines, const std::string& old_body);
