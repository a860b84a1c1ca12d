#include "setup_panel.h"
#include "log.h"
#include "macro.h"
#include "setup_kind.h"
#include "store.h"
#include "text.h"
#include "tree.h"
#include <algorithm>
#include <vector>

static const std::string PANEL = "Engineering Setup@Panel@";
static const std::string XPT = PANEL + "Xpt Assign@";
static const std::string AUX = PANEL + "Aux Assign@";
static const std::string TENKEY = PANEL + "Config@10 Key Region Assign@";
static const std::string KEY2 = PANEL + "Prefs/Utility@Xpt Module Assign@";
static const std::string ACTION_SET = "@Action Set@";

using Fields = std::vector<std::string>;

static constexpr int TEN_KEYS = 23;
static constexpr int TEN_KEY_FIELDS = 6;
static constexpr int SUB_FIRST = 128;  // buttons of a side; those of the sub side are counted on
static constexpr int XPT_BUTTONS = 32; // at the start
static constexpr int SHOTBOX_FIRST = 1001;

static std::string without_last(const std::string& path, int words)
{
    std::string head = path;
    for (; words > 0 && head.find('@') != head.npos; --words)
        head.resize(head.rfind('@'));
    return head;
}

static std::string last_word(const std::string& path)
{
    return path.substr(path.rfind('@') + 1);
}

// --- Lists that a panel edits: their defaults stay, which a row that the switcher shows would not.

static void tell_row(const std::string& list, const std::string& row)
{
    Node* const node = Tree_Get(list);
    std::string tally;
    if (node && Tree_Put(*node, row, &tally) == PUT_CHANGED)
        Tree_Tell(*node, row, 0);
}

static std::string joined(const Fields& fields)
{
    std::string text;
    for (const std::string& field : fields)
        text += (text.empty() ? "" : ",") + field;
    return text;
}

namespace
{
// The buttons of a table: what lies on each, without its index. Rows first to last are one side.
struct Table {
    std::string list;
    int first = 1;
    std::vector<Fields> row;
};
} // namespace

static bool is_on_side(long index, int first)
{
    return index >= first && (first > SUB_FIRST || index <= SUB_FIRST);
}

static Table table_of(const std::string& list, int first)
{
    Table table{.list = list, .first = first, .row = {}};
    const Node* const node = Tree_Get(list);
    for (const std::string& text : node ? node->rows : Fields()) {
        Fields field = Text_Split(text, ',');
        long index = 0;
        if (!Text_ToInt(field[0], &index) || !is_on_side(index, first))
            continue;
        field.erase(field.begin());
        const size_t place = size_t(index - first);
        if (table.row.size() <= place)
            table.row.resize(place + 1, Fields(field.size(), "0"));
        table.row[place] = field;
    }
    return table;
}

static void tell_table(const Table& table)
{
    for (size_t i = 0; i < table.row.size(); ++i)
        tell_row(table.list, std::to_string(table.first + int(i)) + "," + joined(table.row[i]));
}

// Fields that move; "V" the first, "K" the second, "VK" all.
static bool moves(const std::string& part, size_t field)
{
    return part.empty() || part == "VK" || part == (field == 0 ? "V" : "K");
}

// Insert at a place: what was there and behind it moves on by one, the last falls off.
static bool insert_at(Table& table, size_t at, const std::string& thing, const std::string& part,
                      bool is_overwrite)
{
    if (at >= size_t(SUB_FIRST) || table.row.empty())
        return false;
    if (at >= table.row.size()) // a button that has had nothing yet
        table.row.resize(at + 1, Fields(table.row[0].size(), "0"));
    for (size_t f = 0; f < table.row[at].size(); ++f) {
        if (!moves(part, f))
            continue;
        for (size_t i = table.row.size() - 1; i > at && !is_overwrite; --i)
            table.row[i][f] = table.row[i - 1][f];
        table.row[at][f] = thing;
    }
    return true;
}

static bool delete_at(Table& table, size_t at, const std::string& part)
{
    if (at >= table.row.size())
        return at < size_t(SUB_FIRST); // there is nothing
    for (size_t f = 0; f < table.row[at].size(); ++f) {
        if (!moves(part, f))
            continue;
        for (size_t i = at; i + 1 < table.row.size(); ++i)
            table.row[i][f] = table.row[i + 1][f];
        table.row.back()[f] = "0";
    }
    return true;
}

static void restore(const std::string& list, int first)
{
    const Node* const node = Tree_Get(list);
    for (const std::string& row : node ? node->initial_rows : Fields()) {
        long index = 0;
        if (Text_ToInt(Text_Split(row, ',')[0], &index) && is_on_side(index, first))
            tell_row(list, row);
    }
}

// --- What panels put; false: a value of the wrong form, which changes nothing ---

static bool numbers_of(const std::string& value, size_t count, std::vector<long>& number)
{
    const Fields field = Text_Split(value, ',');
    number.resize(field.size());
    for (size_t i = 0; i < field.size(); ++i)
        if (!Text_ToInt(field[i], &number[i]) || number[i] < 0)
            return false;
    return field.size() == count;
}

static int side_first(const std::string& side)
{
    return side == "Sub" ? SUB_FIRST + 1 : 1;
}

static int side_of_index(long index)
{
    return index > SUB_FIRST ? SUB_FIRST + 1 : 1;
}

// "Insert VK#index,source,1": 1 overwrites.
static bool put_xpt_insert(const std::string& path, const std::string& value)
{
    std::vector<long> n;
    if (!numbers_of(value, 3, n))
        return false;
    Table table = table_of(XPT + "Assign", side_of_index(n[0]));
    if (!insert_at(table, size_t(n[0] - table.first), std::to_string(n[1]),
                   path.substr(path.rfind(' ') + 1), n[2] == 1))
        return false;
    tell_table(table);
    return true;
}

static bool put_xpt_delete(const std::string& path, const std::string& value)
{
    std::vector<long> n;
    if (!numbers_of(value, 1, n))
        return false;
    Table table = table_of(XPT + "Assign", side_of_index(n[0]));
    if (!delete_at(table, size_t(n[0] - table.first), path.substr(path.rfind(' ') + 1)))
        return false;
    tell_table(table);
    return true;
}

// "Insert@Main@Assign#button,source" and "Delete@Main@Assign#button,count": video and key as one.
static bool put_pair(const std::string& path, const std::string& value)
{
    std::vector<long> n;
    if (!numbers_of(value, 2, n))
        return false;
    Table table = table_of(XPT + "Assign", side_first(last_word(without_last(path, 1))));
    const bool is_insert = Text_Begins(path, XPT + "Insert");
    bool is_done = false;
    for (long times = is_insert ? 1 : std::min(n[1], long(XPT_BUTTONS)); times > 0; --times)
        is_done = is_insert ? insert_at(table, size_t(n[0] - 1), std::to_string(n[1]), "", false)
                            : delete_at(table, size_t(n[0] - 1), "");
    if (is_done)
        tell_table(table);
    return is_done;
}

static bool put_xpt_default(const std::string& path, const std::string& value)
{
    if (value == "true")
        restore(XPT + "Assign", side_first(last_word(without_last(path, 1))));
    return true;
}

// "Main,Sub": the first over the second.
static bool put_copy(const std::string&, const std::string& value)
{
    const Fields order = Text_Split(value, ',');
    if (order.size() != 2 || order[0] == order[1])
        return false;
    Table table = table_of(XPT + "Assign", side_first(order[0]));
    table.first = side_first(order[1]);
    tell_table(table);
    return true;
}

static bool put_flag(const std::string& path, const std::string& value)
{
    const Fields field = Text_Split(value, ',');
    long index = 0;
    if (field.size() != 2 || !Text_ToInt(field[0], &index) || index < 1 ||
        (field[1] != "true" && field[1] != "false"))
        return false;
    tell_row(path, value);
    return true;
}

// A source's name or colour.
static bool put_source(const std::string& path, const std::string& value)
{
    constexpr size_t name_max = 16;
    constexpr long colour_max = 9;
    const Fields field = Text_Split(value, ',');
    long index = 0, colour = 0;
    const bool is_name = last_word(path) == "List";
    if (field.size() != 2 || !Text_ToInt(field[0], &index) || index < 1 || field[1].empty())
        return false;
    if (is_name ? field[1].size() > name_max
                : !Text_ToInt(field[1], &colour) || colour < 0 || colour > colour_max)
        return false;
    tell_row(path, value);
    return true;
}

// Tables of one thing on a button; the list is the word before the last.
static bool put_table(const std::string& path, const std::string& value)
{
    const std::string what = last_word(path), list = without_last(path, 1);
    std::vector<long> n;
    if (what == "Default") {
        restore(list, 1);
        return true;
    }
    if (!numbers_of(value, what == "Delete" ? 1 : 2, n))
        return false;
    Table table = table_of(list, 1);
    const size_t at = size_t(n[0] - 1);
    if (!(what == "Delete" ? delete_at(table, at, "")
                           : insert_at(table, at, std::to_string(n[1]), "", what == "Overwrite")))
        return false;
    tell_table(table);
    return true;
}

static bool put_export(const std::string&, const std::string& value)
{
    const Node* const names = Tree_Get(XPT + "Source@List");
    const Node* const router = Tree_Get(XPT + "Name Export@Router");
    if (value != "true" || !names || !router || router->value != "true")
        return true; // it goes nowhere
    for (const std::string& row : Fields(names->rows))
        tell_row(PANEL + "Config@External Bus Link@S-BUS Src Name List", row);
    return true;
}

// "id,place,name" of a button; the place is the path's last word.
static bool put_button(const std::string& path, const std::string& value)
{
    const Fields field = Text_Split(value, ',');
    long id = 0, place = 0;
    if (field.size() != 3 || !Text_ToInt(field[0], &id) || !Text_ToInt(field[1], &place) ||
        field[2].empty() || place < 1)
        return false;
    const std::string button = without_last(path, 1) + "@" + std::to_string(place);
    const Node* const node = Tree_Get(button);
    if (last_word(path) == "Default" && node)
        Tree_Show(button, node->initial);
    else if (last_word(path) == field[1])
        Tree_Show(path, value);
    else
        return false;
    return true;
}

static bool put_action(const std::string& path, const std::string& value)
{
    std::vector<long> n;
    if (last_word(path) == "Default") {
        const std::string button = without_last(path, 1) + "@" + value;
        const Node* const node = numbers_of(value, 1, n) ? Tree_Get(button) : nullptr;
        if (node)
            Tree_Show(button, node->initial);
        return node != nullptr;
    }
    constexpr long kinds = 3;
    if (!numbers_of(value, 2, n) || n[0] >= kinds)
        return false;
    Tree_Show(path, value);
    return true;
}

static bool put_regions(const std::string& path, const std::string& value)
{
    const Fields field = Text_Split(value, ',');
    long number = 0;
    if (field.size() != TEN_KEY_FIELDS || !Text_ToInt(field[0], &number) || number < 1 ||
        number > TEN_KEYS)
        return false;
    const std::string key = without_last(path, 1) + "@" + field[0];
    const Node* const node = Tree_Get(key);
    if (last_word(path) == "Default" && node)
        Tree_Show(key, node->initial);
    else if (last_word(path) == field[0])
        Tree_Show(path, value);
    else
        return false;
    return true;
}

static bool put_tenkey_recall(const std::string&, const std::string& value)
{
    for (int n = 1; n <= TEN_KEYS && value == "true"; ++n)
        if (const Node* node = Tree_Get(TENKEY + "Common@Region@Common@" + std::to_string(n)))
            Tree_Show(node->path, node->initial);
    return true;
}

bool SetupPanel_Put(const std::string& path, const std::string& value)
{
    static constexpr struct {
        const char* path; // a pattern behind the panel's
        bool (*put)(const std::string& path, const std::string& value);
    } rows[] = {
        {"**@Button Assign@*@Operation@Common@*", put_button},
        {"**@Action Set@*@*", put_action},
        {"Config@10 Key Region Assign@Common@Region@Common@*", put_regions},
        {"Config@10 Key Region Assign@Default Recall", put_tenkey_recall},
        {"Xpt Assign@Insert *", put_xpt_insert},
        {"Xpt Assign@Delete *", put_xpt_delete},
        {"Xpt Assign@Insert@*@Assign", put_pair},
        {"Xpt Assign@Delete@*@Assign", put_pair},
        {"Xpt Assign@Default@*@Assign", put_xpt_default},
        {"Xpt Assign@Copy", put_copy},
        {"Xpt Assign@Inhibit", put_flag},
        {"Xpt Assign@Side Flags Button Assign", put_flag},
        {"Xpt Assign@Source@*", put_source},
        {"Xpt Assign@Name Export@Execute", put_export},
        {"Xpt Assign@Mixer Xpt Assign@*", put_table},
        {"Aux Assign@Aux Button@*", put_table},
        {"Aux Assign@RTR Mode Set@Lvl Btn@*", put_table},
        {"Aux Assign@RTR Mode Set@Source Table@*@*", put_table},
    };
    for (const auto& row : rows)
        if (Text_MatchesPath(path.substr(PANEL.size()), row.path))
            return row.put(path, value) || SetupKind_Refuse(path, value);
    return false;
}

// --- A panel's button at work ---

static bool run_register(long number)
{
    if (number < SHOTBOX_FIRST) {
        Macro_Run(int(number));
        return true;
    }
    return Store_Do({.verb = "recall",
                     .kind = "shotbox",
                     .region = "",
                     .first = int(number) - SHOTBOX_FIRST + 1,
                     .last = int(number) - SHOTBOX_FIRST + 1,
                     .name = "",
                     .to_region = ""});
}

bool SetupPanel_PressKey2(int place, int button)
{
    constexpr long kind_register = 2;
    const Node* const node = Tree_Find(KEY2 + Text_Format("Action Set@%d@%d", place, button));
    std::vector<long> n;
    if (!node || !numbers_of(node->value, 2, n) || n[0] != kind_register)
        return false;
    Log_Note("key 2 bus: %s", node->value.c_str());
    return run_register(n[1]);
}

// --- The installation ---

namespace
{
// What the buttons of a module do from the first on, the ids behind them from 1.
struct Stock {
    const char* path = ""; // behind "Program Button@"
    int places = 1;
    const char* names = "";
    int buttons = 0; // further ones are not assigned
};
} // namespace

static constexpr Stock stocks[] = {
    {"Transition Module", 1,
     "Auto Trans,Cut,Bkgd Next Trans,Key1 Next Trans,Key2 Next Trans,Key3 Next Trans,Key4 Next "
     "Trans",
     20},
    {"Simple Transition Module", 1, "Auto Trans,Cut,Bkgd Next Trans,Key1 Next Trans", 12},
    {"Key Transition Module", 1, "Key1 Next Trans,Key2 Next Trans", 16},
    {"Flexi Pad Module", 14, "Key,Wipe,DME Wipe,Snapshot,Master Effect,Shotbox,Macro", 16},
    {"Key Control Module", 1, "Key1 Delegation,Key2 Delegation,Key3 Delegation", 8},
    {"Key Control Module@Key Control Button Assign", 1, "Luminance,Linear,Chroma", 20},
    {"Xpt Module", 1, "XPT Hold,Shift", 8},
    {"Menu Panel", 1, "Home,M/E-1,M/E-2,M/E-3", 24},
    {"Device Control Module", 1, "Play,Stop,Still,Record,Fast Forward,Rewind", 28},
    {"Joystick/Trackball", 1, "Location,Rotation,Size", 12},
    {"Shotbox Module", 1, "Shotbox 1,Shotbox 2,Shotbox 3,Shotbox 4", 24},
    {"DSK/FTB Module", 1, "FTB Auto Trans,FTB Cut,DSK1 On", 16},
    {"FTB Module", 1, "FTB Auto Trans,FTB Cut", 4},
    {"Compact Key Trans Module", 14, "Key1 Next Trans,Key2 Next Trans", 8},
    {"Key Delegation Module", 1, "Key1 Delegation,Key2 Delegation", 16},
    {"Extension Panel", 1, "GPI Output 1,GPI Output 2", 28},
    {"Multi Module@Macro Edit Assign", 1, "Edit,Insert,Modify,Delete", 16},
    {"Multi Module@Effect Edit Assign", 1, "Edit,Insert Before,Insert After", 16},
    {"Multi Module@Mode Select Assign", 1, "Effect,Snapshot,Shotbox,Macro", 8},
};

static void install_module(const Stock& stock)
{
    const Fields names = Text_Split(stock.names, ',');
    for (int place = 1; place <= stock.places; ++place)
        for (int button = 1; button <= stock.buttons; ++button) {
            const bool has_name = size_t(button) <= names.size();
            Tree_Preset(PANEL + "Config@Program Button@" + stock.path +
                            Text_Format("@Button Assign@%02d@Operation@Common@%d", button, place),
                        Text_Format("%d,%d,%s", has_name ? button : 0, place,
                                    has_name ? names[size_t(button - 1)].c_str() : "NO ASSIGN"));
        }
}

static void install_actions(const std::string& path, int places, int buttons)
{
    for (int place = 1; place <= places; ++place)
        for (int button = 1; button <= buttons; ++button)
            Tree_Preset(PANEL + path + ACTION_SET + Text_Format("%d@%d", place, button), "0,0");
}

static void install_list(const std::string& path, int rows, const char* tail)
{
    Fields list;
    for (int n = 1; n <= rows; ++n)
        list.push_back(Text_Format("%d,%s", n, tail ? tail : std::to_string(n).c_str()));
    Tree_SetList(path, list, 1);
}

void SetupPanel_Install()
{
    for (const Stock& stock : stocks)
        install_module(stock);
    install_actions("Prefs/Utility", 1, 16);
    install_actions("Prefs/Utility@Utility Module Assign", 1, 16);
    install_actions("Prefs/Utility@Xpt Module Assign", 14, 16);
    install_actions("Prefs/Utility@Trans Rate Mode Assign", 1, 8);
    for (int row = 0; row < 6; ++row)
        Tree_Preset(PANEL + Text_Format("Config@Compact Key Module Assign@KY Unit Config@%d", row),
                    "FP,KT,TR,--,--,--,--,--");
    for (int n = 1; n <= TEN_KEYS; ++n)
        Tree_Preset(TENKEY + Text_Format("Select@%d", n), "false");
    install_list(XPT + "Inhibit", XPT_BUTTONS, "false");
    install_list(XPT + "Side Flags Button Assign", XPT_BUTTONS, "false");
    install_list(XPT + "Source@Color", 40, "0");
    install_list(XPT + "Mixer Xpt Assign", 32, nullptr);
    install_list(AUX + "Aux Button", 24, nullptr);
    install_list(AUX + "RTR Mode Set@Lvl Btn", 8, nullptr);
    for (int n = 1; n <= 4; ++n)
        install_list(AUX + Text_Format("RTR Mode Set@Source Table@%d", n), 64, nullptr);
    for (int n = 1; n <= 16; ++n)
        Tree_Preset(AUX + Text_Format("RTR Mode Set@Source Table Assign@RTR Dest %d", n),
                    "Table 1");
    for (const char* row : {"1st AUX", "2nd AUX"}) {
        Tree_Preset(AUX + "RTR Mode Set@Mode@" + row, "Aux");
        Tree_Preset(AUX + "RTR Mode Set@Level@" + row, "All");
    }
    for (const char* row :
         {"M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5", "P/P", "1st AUX", "2nd AUX"})
        Tree_Preset(XPT + "Shift Mode@" + row, "Hold");
    for (const char* unit : {"Router", "Multi Viewer", "Other Panel", "Tally Unit"})
        Tree_Preset(XPT + "Name Export@" + unit, "false");
    for (int n = 1; n <= 8; ++n) {
        Tree_Preset(XPT + Text_Format("User Color@User %d@Color", n), std::to_string(n));
        Tree_Preset(XPT + Text_Format("User Color@User %d@Brightness", n), "Middle");
    }
    Tree_Preset("Info@Operation Setup Data@V/K Pair Assign", "false");
}
