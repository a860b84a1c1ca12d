// pages: prints the page table for a person to review, or exports for the simulator which values
// the paths of all pages may take.
//
// usage: pages            one line a page: id, tree, objects; then the count by banks, and of all
//        pages --buttons  the same with the buttons and number boxes of each page
//        pages --values   path, kind and limits, tab-separated, one line a path
#include "a_bt.h"
#include "a_dw.h"
#include "a_hf.h"
#include "a_nb.h"
#include "a_st.h"
#include "a_vf.h"
#include "command.h"
#include "page.h"
#include "page_family.h"
#include "page_table/patterns.h"
#include "text.h"
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <tuple>

namespace
{
struct Value {
    std::string kind; // bool, word, num, action, any
    std::string words;
    double min = 0;
    double max = 0;
    int decimals = 0;
};
using Values = std::map<std::string, Value>;
} // namespace

static const char* ObjectName(int type)
{
    const PageFamily* family = PageFamily_Of(type);
    return family ? family->name : "?";
}

static const BT_TBL* ButtonsOf(const PAGE& page)
{
    for (const auto& object : page.obj)
        if (object.type == OBJ_BT)
            return static_cast<const BT_TBL*>(object.addr);
    return nullptr;
}

static std::string TreeText(const PAGE& page)
{
    std::string text;
    for (const char* word : page.tree) {
        if (!word)
            break;
        if (!text.empty())
            text += " > ";
        text += word;
    }
    return text;
}

// A template of this page as the path that goes over the wire, split from its value. A "$" stands
// for the title of the boxes.
static std::string PathOf(const PAGE& page, const char* command, std::string* value,
                          const char* title = "")
{
    GL_NowTree = page.tree;
    GL_NowPage = page.id;
    char path[CMD_SIZE];
    DecodeCommandWithVar(path, command ? command : "", title, sizeof path);
    char* var = FindVarPointer(path);
    *value = var;
    if (*var || (var > path && var[-1] == '#'))
        var[-1] = '\0';
    return path;
}

static bool IsOfServer(const std::string& path)
{
    return !path.empty() && !IsLocal(path.c_str()) &&
           !BeginsWith(path.c_str(), "Panel@Common@Knob");
}

static Value Kind(const char* kind)
{
    Value v;
    v.kind = kind;
    return v;
}

static void AddWord(Values* values, const std::string& path, const std::string& word)
{
    Value& v = (*values)[path];
    if (v.kind == "word" && ("," + v.words + ",").find("," + word + ",") != std::string::npos)
        return;
    if (v.kind != "word")
        v = Kind("word");
    if (!v.words.empty())
        v.words += ',';
    v.words += word;
}

static void AddButton(Values* values, const PAGE& page, const BT_TBL& b)
{
    std::string value;
    const std::string path = PathOf(page, b.cmd[0], &value);
    if (!IsOfServer(path))
        return;
    switch (b.type) {
    case BT_TOGGLE:
    case BT_ACTION_STATE: values->emplace(path, Kind("bool")); break;
    case BT_RADIO_RELEASE:
        AddWord(values, path, "null"); // the first word is the default: none of them
        [[fallthrough]];
    case BT_RADIO: AddWord(values, path, value); break;
    case BT_ACTION: values->emplace(path, Kind("action")); break;
    default: values->emplace(path, Kind("any")); break;
    }
}

static int Decimals(int type)
{
    return type == NB_1 ? 1 : type == NB_2 ? 2 : type == NB_4 ? 4 : 0;
}

// The limits of all tables that show a value: which of them is in force is known to the panel only.
static void AddNumber(Values* values, const std::string& path, double min, double max, int decimals)
{
    const auto [at, is_new] = values->try_emplace(path, Kind("num"));
    Value& v = at->second;
    if (v.kind == "any")
        v = Kind("num");
    else if (!is_new && v.kind == "num")
        std::tie(min, max, decimals) =
            std::tuple(std::min(min, v.min), std::max(max, v.max), std::max(decimals, v.decimals));
    else if (!is_new)
        return;
    v.min = min;
    v.max = max;
    v.decimals = decimals;
}

static void AddBoxes(Values* values, const PAGE& page, const NB_TBL* nb, const char* title)
{
    for (; nb && nb->id >= 1; nb++) {
        std::string value;
        const std::string path = PathOf(page, nb->cmd, &value, title);
        if (IsOfServer(path))
            AddNumber(values, path, std::min(nb->min, nb->max), std::max(nb->min, nb->max),
                      Decimals(nb->type));
    }
}

static bool IsTable(const NB_TBL* nb)
{
    return nb && !SpecialKnobNumber(nb) && nb != NoKnobs();
}

static void AddKnobs(Values* values, const PAGE& page, const BT_TBL& b)
{
    constexpr int TABLES = 64; // of one number
    const NB_TBL* tables[TABLES] = {};
    if (IsTable(b.nb))
        AddBoxes(values, page, b.nb, b.caption);
    const int number = b.nb ? SpecialKnobNumber(b.nb) : 0;
    const int count = number ? special_knob_tables(number, tables, TABLES) : 0;
    for (int i = 0; i < count; i++)
        AddBoxes(values, page, tables[i], b.caption);
}

// A pattern is a number of any layer, and each layer may bring boxes.
static void AddPatterns(Values* values, const PAGE& page, const PS_TBL& table)
{
    std::string value;
    const int last =
        std::max_element(std::begin(LayerName), std::end(LayerName),
                         [](const PTN_LAYER& a, const PTN_LAYER& b) { return a.last < b.last; })
            ->last;
    AddNumber(values, PathOf(page, table.cmd, &value), 1, last, 0);
    AddBoxes(values, page, table.init_nb, table.init_nb_caption);
    for (const PTN_LAYER& layer : LayerName)
        AddBoxes(values, page, layer.nb, layer.caption);
}

// The patterns of effects-unit wipes: which of them there are is a matter of the model.
static void AddWipes(Values* values, const PAGE& page, const DW_TBL& table)
{
    std::string value;
    AddNumber(values, PathOf(page, table.cmd, &value), 1001, 9999, 0);
    for (const DMEWIPEGRP& group : dme_wipe_groups)
        for (const DMEWIPEPTN* p = group.ptn; p && p->num != 0; p++)
            if (IsTable(p->nb))
                AddBoxes(values, page, p->nb, std::to_string(p->num).c_str());
}

// A value that something only looks at: what lights a tab or disables a button. The boxes and
// buttons know their paths better: only a path of none of them is taken from here, and its default,
// the first word, is the value that nobody waits for.
static void AddCondition(Values* values, const PAGE& page, const char* command)
{
    std::string condition;
    const std::string path = PathOf(page, command, &condition);
    if (!IsOfServer(path) || condition.empty() || condition == "*")
        return;
    const bool is_known = values->count(path) && (*values)[path].kind != "any";
    if (is_known && (*values)[path].kind != "word")
        return;
    char* word[64] = {};
    char text[CMD_SIZE];
    CopyText(text, condition.c_str());
    const int count = SplitVars(text, word, int(std::size(word)));
    for (int i = 0; i < count; i++) {
        const std::string bare = word[i][0] == '!' ? word[i] + 1 : word[i];
        const bool is_switch = bare == "true" || bare == "false";
        if (is_switch && !is_known)
            (*values)[path] = Kind("bool");
        if (is_switch)
            return;
        if (!is_known && i == 0)
            AddWord(values, path, "null");
        AddWord(values, path, bare);
    }
}

static void AddTabs(Values* values, const PAGE& page)
{
    for (const auto& object : page.obj) {
        if (object.type == OBJ_VF)
            for (auto* t = static_cast<const VF_TBL*>(object.addr); t->id >= 1; t++)
                AddCondition(values, page, t->statcmd);
        if (object.type == OBJ_HF)
            for (auto* t = static_cast<const HF_TBL*>(object.addr); t->id >= 1; t++)
                for (const char* command : t->statcmd)
                    AddCondition(values, page, command);
    }
}

// A cell knows how to draw its paths, not what they may become.
static void AddCells(Values* values, const PAGE& page)
{
    for (const auto& object : page.obj) {
        if (object.type != OBJ_ST)
            continue;
        for (auto* cell = static_cast<const ST_TBL*>(object.addr); cell->id >= 1; cell++)
            for (const char* command : cell->cmd) {
                std::string value;
                const std::string path = PathOf(page, command, &value);
                if (IsOfServer(path))
                    values->emplace(path, Kind("any"));
            }
    }
}

static void AddObjects(Values* values, const PAGE& page)
{
    for (const BT_TBL* b = ButtonsOf(page); b && b->id >= 1; b++) {
        AddButton(values, page, *b);
        AddKnobs(values, page, *b);
    }
    for (const auto& object : page.obj) {
        if (object.type == OBJ_NB)
            AddBoxes(values, page, static_cast<const NB_TBL*>(object.addr), "");
        if (object.type == OBJ_PS)
            AddPatterns(values, page, *static_cast<const PS_TBL*>(object.addr));
        if (object.type == OBJ_DW)
            AddWipes(values, page, *static_cast<const DW_TBL*>(object.addr));
    }
}

static Values Collect()
{
    Values values;
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++)
        AddObjects(&values, *page);
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++) {
        AddTabs(&values, *page);
        for (const BT_TBL* b = ButtonsOf(*page); b && b->id >= 1; b++)
            for (int i = 1; i < BT_COMMANDS; i++)
                AddCondition(&values, *page, b->cmd[i]);
    }
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++)
        AddCells(&values, *page);
    return values;
}

static void PrintValues()
{
    for (const auto& [path, v] : Collect()) {
        printf("%s\t%s", path.c_str(), v.kind.c_str());
        if (v.kind == "word")
            printf("\t%s", v.words.c_str());
        if (v.kind == "num")
            printf("\t%g\t%g\t%d", v.min, v.max, v.decimals);
        printf("\n");
    }
}

static void PrintButtons(const PAGE& page)
{
    for (const BT_TBL* b = ButtonsOf(page); b && b->id >= 1; b++) {
        std::string caption = b->caption, value;
        for (char& c : caption)
            if (c == '\n')
                c = ' ';
        const std::string path = PathOf(page, b->cmd[0], &value);
        printf("    %3d %-18s type %-2d %s#%s\n", b->id, caption.c_str(), b->type, path.c_str(),
               value.c_str());
    }
}

// How many rows each bank of ids has, and what stands on them.
static void PrintGroups()
{
    struct Group {
        const char* name = "";
        int rows = 0;
        int keys = 0;
        std::map<uint32_t, int> tabs; // by the first-level tab
    };
    std::map<uint32_t, Group> groups;
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++) {
        Group& g = groups[page->id >> 24];
        if (!g.rows++)
            g.name = page->tree[0];
        g.tabs[page->id >> 20 & 0xF]++;
        for (const BT_TBL* b = ButtonsOf(*page); b && b->id >= 1; b++)
            g.keys++;
    }
    printf("\nBank  Rows   Keys  Rows of its tabs\n");
    for (const auto& [bank, g] : groups) {
        printf("  %02X  %4d  %5d  %-18s", unsigned(bank), g.rows, g.keys, g.name);
        for (const auto& [tab, rows] : g.tabs)
            printf(" %X:%d", unsigned(tab), rows);
        printf("\n");
    }
}

static void PrintPages(bool with_buttons)
{
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++) {
        printf("%08X  %-44s", unsigned(page->id), TreeText(*page).c_str());
        for (const auto& object : page->obj)
            if (object.type > OBJ_END)
                printf(" %s", ObjectName(object.type));
        printf("\n");
        if (with_buttons)
            PrintButtons(*page);
    }
    PrintGroups();
    printf("%d rows\n", PageTable_Rows);
}

int main(int argc, char** argv)
{
    if (argc > 1 && strcmp(argv[1], "--values") == 0)
        PrintValues();
    else
        PrintPages(argc > 1 && strcmp(argv[1], "--buttons") == 0);
    return 0;
}
