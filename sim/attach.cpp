#include "attach.h"
#include "text.h"
#include "tree.h"
#include <algorithm>

static const std::string HEAD = "Macro@Attachment@";
static const std::string LIST = HEAD + "List";
static const std::string MODE = HEAD + "Xpt Attachment Mode";
static constexpr size_t FIELDS = 13;
enum { FIELD_BLOCK, FIELD_BUTTON_1, FIELD_BUTTON_2, FIELD_MODE, FIELD_REGISTER, FIELD_MAIN_PAIR };

static const char* const stock[] = {
    "1,5,3,0,1,0,0,0,0,0,0,0,0",                                // P/P crosspoints
    "1,12,1,1,2,0,0,0,0,0,0,0,0",  "2,1,1,2,1,0,0,0,0,0,0,0,0", // P/P transition
    "8,6,1,0,2,0,0,0,0,0,0,0,0",                                // M/E-1
    "43,12,3,0,1,0,0,0,0,0,0,0,0",                              // aux
};

// Empty for a text that is no entry.
static std::vector<long> fields_of(const std::string& entry)
{
    std::vector<long> fields;
    for (const std::string& part : Text_Split(entry, ',')) {
        long n = 0;
        if (!Text_ToInt(part, &n) || n < 0 || n > 65535)
            return {};
        fields.push_back(n);
    }
    const bool is_entry =
        fields.size() == FIELDS && fields[FIELD_BLOCK] >= 1 && fields[FIELD_REGISTER] >= 1;
    return is_entry ? fields : std::vector<long>{};
}

static bool is_mode(const std::string& word)
{
    return word == "Button Mode" || word == "Pair Mode";
}

static bool is_same_button(std::vector<long> a, std::vector<long> b)
{
    a[FIELD_MODE] = b[FIELD_MODE];
    a[FIELD_REGISTER] = b[FIELD_REGISTER];
    return a == b;
}

// The whole list again: a row that has gone cannot be told.
static void show(const Node& node)
{
    for (const int client : node.followers)
        Tree_Answer(node, client);
}

template <typename Goes> static void remove_rows(Goes goes)
{
    Node* const node = Tree_Get(LIST);
    if (node && std::erase_if(node->rows, goes) > 0)
        show(*node);
}

bool Attach_Add(const std::string& entry)
{
    Node* const node = Tree_Get(LIST);
    const auto fields = fields_of(entry);
    if (!node || fields.empty())
        return false;
    std::erase_if(node->rows, [&fields](const std::string& row) {
        return is_same_button(fields_of(row), fields);
    });
    node->rows.push_back(entry);
    show(*node);
    return true;
}

int Attach_Macro(int block, int button1, int button2)
{
    const Node* const node = Tree_Find(LIST);
    for (const std::string& row : node ? node->rows : std::vector<std::string>()) {
        const auto fields = fields_of(row);
        if (fields[FIELD_BLOCK] == block && fields[FIELD_BUTTON_1] == button1 &&
            fields[FIELD_BUTTON_2] == button2)
            return int(fields[FIELD_REGISTER]);
    }
    return 0;
}

std::string Attach_Write()
{
    std::string text = "mode " + Tree_Get(MODE)->value + "\n";
    for (const std::string& row : Tree_Get(LIST)->rows)
        text += "entry " + row + "\n";
    return text;
}

void Attach_Load(const std::string& text)
{
    Node* const node = Tree_Get(LIST);
    node->rows.clear();
    for (const std::string& line : Text_Split(text, '\n')) {
        const std::string rest = line.substr(std::min(line.find(' '), line.size() - 1) + 1);
        if (Text_Begins(line, "mode ") && is_mode(rest))
            Tree_Show(MODE, rest);
        else if (Text_Begins(line, "entry ") && !fields_of(rest).empty())
            node->rows.push_back(rest);
    }
    show(*node);
}

// Crosspoint rows: those of the banks, seven blocks a bank, and of the aux buses.
static bool is_crosspoint(const std::string& row)
{
    const long block = fields_of(row)[FIELD_BLOCK];
    return (block <= 42 && block % 7 == 1) || (block >= 43 && block <= 46);
}

static void set_mode(const std::string& mode)
{
    if (!is_mode(mode) || mode == Tree_Get(MODE)->value)
        return;
    Tree_Show(MODE, mode);
    remove_rows(is_crosspoint);
}

bool Attach_Put(const std::string& path, const std::string& value)
{
    if (path == MODE)
        set_mode(value);
    else if (path == HEAD + "All Clear" && value == "true")
        remove_rows([](const std::string&) { return true; });
    else if (path == HEAD + "Delete")
        remove_rows([&value](const std::string& row) { return row == value; });
    return true;
}

void Attach_Install()
{
    Tree_SetList(LIST, {std::begin(stock), std::end(stock)}, 1);
    if (Node* const node = Tree_Get(LIST))
        node->kill_first = true;
    Tree_Preset(MODE, "Button Mode");
}
