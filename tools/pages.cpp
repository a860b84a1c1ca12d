// pages: prints the page table for a person to review, or exports for the simulator which values
// the paths of all pages may take.
//
// usage: pages            one line a page: id, tree, objects
//        pages --buttons  the same with the buttons and number boxes of each page
//        pages --values   path, kind and limits, tab-separated, one line a path
#include "a_bt.h"
#include "a_hf.h"
#include "a_nb.h"
#include "a_vf.h"
#include "command.h"
#include "page.h"
#include "page_table/patterns.h"
#include "text.h"
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>
#include <set>
#include <string>

namespace
{
struct Value {
    std::string kind; // bool, word, num, action, any
    std::string args; // words, or min TAB max TAB decimals
};
using Values = std::map<std::string, Value>;
} // namespace

static const char* ObjectName(int type)
{
    static constexpr const char* names[] = {"",      "BA",  "BT", "HF", "VF", "NB", "PS",
                                            "LS",    "PC",  "KF", "ST", "DW", "FM", "KP",
                                            "Debug", "Err", "",   "FL", "FF"};
    return type > 0 && type < int(std::size(names)) ? names[type] : "?";
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

// A template of this page as the path that goes over the wire, split from its value.
static std::string PathOf(const PAGE& page, const char* command, std::string* value)
{
    GL_NowTree = page.tree;
    GL_NowPage = page.id;
    char path[CMD_SIZE];
    DecodeCommand(path, command, sizeof path);
    char* var = FindVarPointer(path);
    *value = var;
    if (*var || (var > path && var[-1] == '#'))
        var[-1] = '\0';
    return path;
}

static void AddWord(Values* values, const std::string& path, const std::string& word)
{
    Value& v = (*values)[path];
    if (v.kind == "word" && ("," + v.args + ",").find("," + word + ",") != std::string::npos)
        return;
    if (v.kind != "word")
        v = {"word", ""};
    if (!v.args.empty())
        v.args += ',';
    v.args += word;
}

static void AddButton(Values* values, const PAGE& page, const BT_TBL& b)
{
    std::string value;
    const std::string path = PathOf(page, b.cmd[0] ? b.cmd[0] : "", &value);
    if (path.empty() || IsLocal(path.c_str()))
        return;
    switch (b.type) {
    case BT_TOGGLE:
    case BT_ACTION_STATE: values->emplace(path, Value{"bool", ""}); break;
    case BT_RADIO_RELEASE:
        AddWord(values, path, "null"); // the first word is the default: none of them
        [[fallthrough]];
    case BT_RADIO: AddWord(values, path, value); break;
    case BT_ACTION: values->emplace(path, Value{"action", ""}); break;
    default: values->emplace(path, Value{"any", ""}); break;
    }
}

static int Decimals(int type)
{
    return type == NB_1 ? 1 : type == NB_2 ? 2 : type == NB_4 ? 4 : 0;
}

static void AddBoxes(Values* values, const PAGE& page, const NB_TBL* nb)
{
    for (; nb && nb->id >= 1; nb++) {
        std::string value;
        const std::string path = PathOf(page, nb->cmd ? nb->cmd : "", &value);
        if (path.empty() || IsLocal(path.c_str()) || BeginsWith(path.c_str(), "Panel@Common@Knob"))
            continue;
        char args[96];
        PrintText(args, "%g\t%g\t%d", nb->min < nb->max ? nb->min : nb->max,
                  nb->min < nb->max ? nb->max : nb->min, Decimals(nb->type));
        values->emplace(path, Value{"num", args});
    }
}

static bool IsTable(const NB_TBL* nb)
{
    return nb && !SpecialKnobNumber(nb) && nb != NoKnobs();
}

// A pattern is a number of any layer, and each layer may bring boxes.
static void AddPatterns(Values* values, const PAGE& page, const PS_TBL& table)
{
    std::string value;
    const int last =
        std::max_element(std::begin(LayerName), std::end(LayerName),
                         [](const PTN_LAYER& a, const PTN_LAYER& b) { return a.last < b.last; })
            ->last;
    values->emplace(PathOf(page, table.cmd, &value),
                    Value{"num", "1\t" + std::to_string(last) + "\t0"});
    AddBoxes(values, page, table.init_nb);
    for (const PTN_LAYER& layer : LayerName)
        AddBoxes(values, page, layer.nb);
}

// What lights a tab. The boxes and buttons know their paths better: only a path of none of them is
// taken from here, and its default, the first word, leaves the tab dark.
static void AddStatus(Values* values, const PAGE& page, const char* command)
{
    std::string value;
    const std::string path = PathOf(page, command ? command : "", &value);
    if (path.empty() || IsLocal(path.c_str()))
        return;
    const auto found = values->find(path);
    if (value == "true" || value == "false") {
        values->emplace(path, Value{"bool", ""});
    } else if (found == values->end()) {
        AddWord(values, path, "null");
        AddWord(values, path, value);
    } else if (found->second.kind == "word") {
        AddWord(values, path, value);
    }
}

static void AddTabs(Values* values, const PAGE& page)
{
    for (const auto& object : page.obj) {
        if (object.type == OBJ_VF)
            for (auto* t = static_cast<const VF_TBL*>(object.addr); t->id >= 1; t++)
                AddStatus(values, page, t->statcmd);
        if (object.type == OBJ_HF)
            for (auto* t = static_cast<const HF_TBL*>(object.addr); t->id >= 1; t++)
                for (const char* command : t->statcmd)
                    AddStatus(values, page, command);
    }
}

static Values Collect()
{
    Values values;
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++) {
        for (const BT_TBL* b = ButtonsOf(*page); b && b->id >= 1; b++) {
            AddButton(&values, *page, *b);
            if (IsTable(b->nb))
                AddBoxes(&values, *page, b->nb);
        }
        for (const auto& object : page->obj) {
            if (object.type == OBJ_NB)
                AddBoxes(&values, *page, static_cast<const NB_TBL*>(object.addr));
            if (object.type == OBJ_PS)
                AddPatterns(&values, *page, *static_cast<const PS_TBL*>(object.addr));
        }
    }
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++)
        AddTabs(&values, *page);
    return values;
}

static void PrintValues()
{
    for (const auto& [path, v] : Collect())
        printf("%s\t%s%s%s\n", path.c_str(), v.kind.c_str(), v.args.empty() ? "" : "\t",
               v.args.c_str());
}

static void PrintButtons(const PAGE& page)
{
    for (const BT_TBL* b = ButtonsOf(page); b && b->id >= 1; b++) {
        std::string caption = b->caption, value;
        for (char& c : caption)
            if (c == '\n')
                c = ' ';
        const std::string path = PathOf(page, b->cmd[0] ? b->cmd[0] : "", &value);
        printf("    %3d %-18s type %-2d %s#%s\n", b->id, caption.c_str(), b->type, path.c_str(),
               value.c_str());
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
