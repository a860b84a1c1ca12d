#include "setup.h"
#include "text.h"
#include "tree.h"
#include <vector>

namespace
{
struct Bank {
    const char* word = "";
    const char* row = ""; // of the panel, that works it
};
} // namespace

static constexpr Bank banks[] = {
    {"M/E-1", "1st Row"}, {"M/E-2", "2nd Row"}, {"M/E-3", "3rd Row"},
    {"M/E-4", "5th Row"}, {"M/E-5", "6th Row"}, {"P/P", "4th Row"},
};
static constexpr size_t BOARDS = 5; // M/E-1 to M/E-5

static const std::string SPLIT = "Engineering Setup@System@Install@Unit Config@M/E Split";
static const std::string SWITCHER = "Engineering Setup@Switcher@Config@";
static const std::string PANEL = "Engineering Setup@Panel@Config@";

// A board that is split into four banks has four keys for each of them.
bool Setup_Keys(const std::string& bank, int keys)
{
    const Node* const split = Tree_Get(SPLIT);
    auto parts = Text_Split(split ? split->value : "", ',');
    parts.resize(BOARDS, "1");
    for (size_t i = 0; i < BOARDS; ++i) {
        if (bank != banks[i].word)
            continue;
        parts[i] = std::string(1, keys == 4 ? '4' : '1'); // a literal here makes g++ -O2 warn
        std::string line;
        for (const std::string& part : parts)
            line += (line.empty() ? "" : ",") + part;
        Tree_Show(SPLIT, line);
        return true;
    }
    return false;
}

// The first output becomes the main side with keys 1 to 4, the second the sub side with keys 5
// to 8. Without a sub side the first has all keys.
static void show_outputs(const std::string& bank, bool is_multi)
{
    const std::string sides = SWITCHER + "M/E Output Assign@List",
                      keys = SWITCHER + "PGM Config@List";
    Tree_ShowRow(sides, bank + ",1,Main");
    Tree_ShowRow(sides, bank + (is_multi ? ",2,Sub" : ",2,None"));
    Tree_ShowRow(keys, bank + (is_multi ? ",1,0F" : ",1,FF"));
    Tree_ShowRow(keys, bank + (is_multi ? ",2,F0" : ",2,00"));
}

bool Setup_Multi(const std::string& bank, bool on)
{
    bool is_one = false;
    for (const Bank& b : banks) {
        if (bank != b.word && bank != "all")
            continue;
        is_one = true;
        // The sides first: a panel asks for them when it hears of the setting.
        show_outputs(b.word, on);
        Tree_Show(PANEL + "MP2 Main/Sub Assign@Main/Sub Assign@" + b.row, on ? "Main/Sub" : "Main");
        Tree_Show(SWITCHER + "M/E Config@" + b.word, on ? "Multi Program 2" : "Standard");
    }
    if (is_one && on)
        Tree_Show(SWITCHER + "DME Wipe Sub Enable", "true");
    return is_one;
}

void Setup_4K(bool on)
{
    Tree_Show("Engineering Setup@System@Format@4K Mode", on ? "On" : "Off");
}
