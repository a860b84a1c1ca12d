#include "setup.h"
#include "link.h"
#include "log.h"
#include "setup_kind.h"
#include "setup_switcher.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <climits>
#include <span>
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

// --- Engineering setup of the system ---

namespace
{
// Words of a format's three numbers.
struct Code {
    const char* code = "";
    const char* word = "";
};
struct Work {
    std::string path; // shows "OK" or "NG" when it is done
    int64_t due_ms = 0;
};
} // namespace

static constexpr int WORK_MS = 1500;
static constexpr int REBOOT_MS = 3000;
static constexpr int OUTPUTS = 48;
static const std::string SYSTEM = "Engineering Setup@System@";
static const std::string FORMAT = SYSTEM + "Format@";

static constexpr Code sizes[] = {{"0,0", "480i"},      {"1,0", "576i"},    {"2,2", "720p"},
                                 {"3,0", "1080i"},     {"3,1", "1080PsF"}, {"3,2", "1080p"},
                                 {"4,4", "3840x2160p"}};
static constexpr Code frequencies[] = {{"0", "23.976"},      {"1", "24"},    {"2", "25/50"},
                                       {"3", "29.97/59.94"}, {"5", "25/50"}, {"6", "29.97/59.94"}};
static constexpr const char* UNITS[] = {"PNL1", "PNL2", "SWR1", "SWR2",
                                        "DME1", "DME2", "DME3", "DME4"};

static struct {
    std::vector<Work> works;
    int64_t back_ms = 0; // when the units are up again; 0: they are
    bool is_next_ng = false;
} st;

static const char* word_of(std::span<const Code> codes, const std::string& code)
{
    for (const Code& c : codes)
        if (code == c.code)
            return c.word;
    return nullptr;
}

// "3,6,0" as the other units say it: "29.97/59.94,1080i"; empty for no format. The slow progressive
// ones have no rate there.
static std::string format_word(const std::string& numbers)
{
    const auto part = Text_Split(numbers, ',');
    if (part.size() != 3)
        return "";
    const char* const size = word_of(sizes, part[0] + "," + part[2]);
    const char* const rate = word_of(frequencies, part[1]);
    if (!size || !rate)
        return "";
    const bool is_slow = std::string(size) == "1080p" && (part[1] == "2" || part[1] == "3");
    return std::string(is_slow ? "---" : rate) + "," + size;
}

static void show_units(const char* status)
{
    for (int unit = 2; unit <= 6; ++unit)
        Tree_Show("Info@Processor Status@" + std::to_string(unit), status);
}

// All units but the panel go and come back.
static void reboot()
{
    if (st.back_ms == 0) {
        Log_Note("reboot");
        show_units("NG");
    }
    st.back_ms = Now_Ms() + REBOOT_MS;
}

// The effects and multi-picture units follow the switchers.
static bool put_switcher_format(const std::string& path, const std::string& numbers)
{
    const std::string word = format_word(numbers);
    if (word.empty())
        return SetupKind_Refuse(path, numbers);
    const Node* const node = Tree_Get(path);
    if (node && node->value == numbers)
        return true;
    Tree_Show(path, numbers);
    Tree_Show(FORMAT + "Video Format@" + path.substr(path.rfind('@') + 1), word);
    for (const char* unit : {"DME1", "DME2", "DME3", "DME4", "MPE1"})
        Tree_Show(FORMAT + "Video Format@" + unit, word);
    Setup_4K(numbers[0] == '4');
    reboot();
    return true;
}

static bool put_panel_format(const std::string& path, const std::string& word)
{
    Tree_Show(path, word);
    reboot();
    return true;
}

static bool start_work(const std::string& path, const std::string&)
{
    Tree_Show(path, "true");
    st.works.push_back({path, Now_Ms() + WORK_MS});
    return true;
}

static bool initialize_unit(const std::string& path, const std::string& value)
{
    Log_Note("initialize: %s", value.c_str());
    Tree_Show(path, value);
    reboot();
    return true;
}

bool Setup_Put(const std::string& path, const std::string& value)
{
    static constexpr struct {
        const char* path; // a pattern
        bool (*put)(const std::string& path, const std::string& value);
    } rows[] = {
        {"Engineering Setup@System@Format@Video Format2@SWR?", put_switcher_format},
        {"Engineering Setup@System@Format@Video Format@PNL?", put_panel_format},
        {"Engineering Setup@System@Network Config@Define", start_work},
        {"Engineering Setup@System@Network Config@Network Auto Config", start_work},
        {"Engineering Setup@System@Initialize@Initialize", initialize_unit},
    };
    for (const auto& row : rows)
        if (Text_MatchesPath(path, row.path))
            return row.put(path, value);
    return false;
}

bool Setup_Units(const std::vector<std::string>& names)
{
    Node* const list = Tree_Get(SYSTEM + "Network Config@List");
    if (!list)
        return false;
    std::vector<std::string> rows = list->initial_rows;
    std::erase_if(rows, [&](const std::string& row) {
        const auto field = Text_Split(row, ',');
        return field.size() < 2 || std::find(names.begin(), names.end(), field[1]) == names.end();
    });
    if (rows.size() != names.size())
        return false;
    list->rows = rows;
    for (const int client : list->followers)
        Tree_Answer(*list, client);
    return true;
}

void Setup_NextNg()
{
    st.is_next_ng = true;
}

static void end_work(const Work& work)
{
    Tree_Show(work.path, st.is_next_ng ? "NG" : "OK");
    st.is_next_ng = false;
}

int64_t Setup_Tick(int64_t now)
{
    int64_t next = INT64_MAX;
    if (st.back_ms != 0 && st.back_ms <= now) {
        st.back_ms = 0;
        show_units("OK");
    }
    if (st.back_ms != 0)
        next = st.back_ms;
    const std::vector<Work> works = st.works;
    std::erase_if(st.works, [now](const Work& work) { return work.due_ms <= now; });
    for (const Work& work : works)
        if (work.due_ms <= now)
            end_work(work);
    for (const Work& work : st.works)
        next = std::min(next, work.due_ms);
    return next;
}

void Setup_Install()
{
    st = {};
    SetupSwitcher_Install();
    for (const Bank& bank : banks)
        show_outputs(bank.word, false);
    std::vector<std::string> assigns, sources;
    std::string formats;
    for (int n = 1; n <= OUTPUTS; ++n) {
        assigns.push_back(Text_Format("%d,AUX%d,0", n, n));
        sources.push_back(Text_Format("%d,CAM%d", n, (n - 1) % 40 + 1));
        formats += "0,";
    }
    Tree_SetList("Engineering Setup@Switcher@Output@Assign", assigns, 1);
    Tree_SetList("Engineering Setup@Switcher@Output@Source", sources, 1);
    Tree_Preset("Engineering Setup@Switcher@Output@Signal Format", formats);
    for (const std::string unit : UNITS) {
        Tree_Preset(SYSTEM + "Start Up@Resume@" + unit, "true");
        Tree_Preset(SYSTEM + "Start Up@Setup@" + unit, "User");
        Tree_Preset(SYSTEM + "Start Up@Init Status@" + unit, "User");
        if (unit[0] != 'P')
            Tree_Preset(FORMAT + "Level A/B@" + unit, "Level A");
    }
    for (int slot = 1; slot <= 15; ++slot)
        Tree_Preset(SYSTEM + Text_Format("Network Config@NMI Config@Reset@Slot%d", slot), "false");
    Tree_Preset(SYSTEM + "System Config@Tally Master@PNL1", "true");
    Tree_Preset(SYSTEM + "System Config@Tally Master@PNL2", "false");
}
