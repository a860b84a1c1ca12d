#include "macro_attach.h"
#include "indexed.h"
#include "log.h"
#include "register.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include "safeguards.h"

// --- How buttons are called ---

namespace
{
// Buttons in a row: the codes from code on. A name with a number counts from first; behind it may
// stand a tail.
struct BTN_TBL {
    int code = 0;
    int count = 1;
    const char* name = "";
    int first = 0; // 0: no number
    const char* tail = "";
};

template <size_t N> constexpr int Buttons(const BTN_TBL (&table)[N])
{
    int next = 0, n = 0;
    for (const BTN_TBL& row : table) {
        if (row.code < next)
            return -1; // a code twice
        next = row.code + row.count;
        n += row.count;
    }
    return n;
}

// Crosspoint rows of the banks: button1 the column, button2 the bus.
constexpr BTN_TBL XptButton1Table[] = {
    {1, 128, "XPT ", 1},
    {129, 128, "Shift XPT ", 1},
    {257, 64, "RTR Dest ", 1, " "},
    {321, 9, "Bank 1-", 1},
    {330, 9, "Bank 2-", 1},
    {339, 1, "SHIFT"},
    {340, 1, "HOLD"},
    {341, 1, "AUX DELEG"},
    {342, 1, "KEY DELEG"},
    {343, 1, "SHOW NAME"},
    {344, 1, "LOCK"},
    {345, 1, "MCRO"},
};
constexpr BTN_TBL XptButton2Table[] = {
    {1, 1, "BKGD A"}, {2, 1, "BKGD B"}, {3, 8, "KEY ", 1}, {11, 2, "UTIL ", 1}};
// Of the aux buses.
constexpr BTN_TBL XptButton3Table[] = {{1, 128, "XPT ", 1},   {129, 1, "SHIFT"}, {130, 1, "HOLD"},
                                       {131, 1, "SHOW NAME"}, {132, 1, "LOCK"},  {133, 1, "MCRO"}};
constexpr BTN_TBL XptButton5Table[] = {{1, 24, "AUX ", 1}};
// Of a module that may be any bus.
constexpr BTN_TBL XptButton4Table[] = {{1, 160, "XPT ", 1}};
// Transitions: button1 what it does, button2 to what.
constexpr BTN_TBL TransButton1Table[] = {
    {1, 1, "CUT"},          {2, 1, "AUTO TRANS"},    {3, 1, "TAKE"},
    {4, 1, "(TAKE)"},       {5, 1, "MIX"},           {6, 1, "NAM"},
    {7, 1, "SUPER MIX"},    {8, 1, "PST COLOR MIX"}, {9, 1, "WIPE"},
    {10, 1, "DME WIPE"},    {11, 1, "STINGER"},      {12, 1, "PTN LIM"},
    {13, 1, "PTN LIM SET"}, {14, 1, "NORM"},         {15, 1, "NORM/REV"},
    {16, 1, "REV"},         {17, 1, "NEXT TRANS"},   {18, 1, "NEXT TRANS ALL"},
};
constexpr BTN_TBL TransButton2Table[] = {
    {1, 1, "BKGD"}, {2, 8, "KEY ", 1}, {10, 8, "PRIOR KEY ", 1}, {18, 154, "PTN ", 1}};
constexpr BTN_TBL TransButton3Table[] = {
    {1, 8, "KEY ", 1, " CUT"},   {9, 8, "KEY ", 1, " AUTO"}, {17, 8, "KEY ", 1, " MIX"},
    {25, 8, "KEY ", 1, " WIPE"}, {33, 1, "ALL CUT"},         {34, 1, "ALL AUTO"},
};
constexpr BTN_TBL TransButton5Table[] = {{1, 8, "DSK ", 1, " CUT"},
                                         {9, 8, "DSK ", 1, " AUTO"},
                                         {17, 8, "DSK ", 1, " MIX"},
                                         {25, 8, "DSK ", 1, " WIPE"},
                                         {33, 1, "FTB"}};
constexpr BTN_TBL KeyframeButton2Table[] = {{1, 1, "REWIND"}, {2, 1, "STOP"},  {3, 1, "RUN"},
                                            {4, 1, "FF"},     {5, 1, "STORE"}, {6, 1, "RCL"}};
constexpr BTN_TBL JoystickButton1Table[] = {{1, 1, "UPPER"}, {2, 1, "LOWER"}};
constexpr BTN_TBL JoystickButton2Table[] = {{1, 1, "X"},   {2, 1, "Y"},    {3, 1, "Z"},
                                            {4, 1, "LOC"}, {5, 1, "ROT"},  {6, 1, "SIZE"},
                                            {7, 1, "CTR"}, {8, 1, "RESET"}};
constexpr BTN_TBL TrackballButton2Table[] = {{1, 1, "X"}, {2, 1, "Y"}, {3, 1, "Z"}, {4, 1, "CTR"}};
constexpr BTN_TBL UtilityButton2Table[] = {{1, 96, "UTIL ", 1}};
// Pads of registers: button1 the key; button2 and, where a sign follows, the pair, what it does.
constexpr BTN_TBL KeyPadButton1Table[] = {
    {1, 15, "BANK ", 0, ""}, {16, 12, "MODE ", 1}, {28, 70, "REG ", 1}};
constexpr BTN_TBL KeyPadButton2Table[] = {{1, 1, "RCL"},  {2, 1, "STORE"},    {3, 1, "DEL"},
                                          {4, 1, "UNDO"}, {5, 1, "AUTO RUN"}, {6, 1, "ENTER"}};
constexpr BTN_TBL KeyPadButton3Table[] = {{1, 1, "+"}, {2, 1, "-"}};

static_assert(Buttons(XptButton1Table) == 345 && Buttons(XptButton2Table) == 12 &&
              Buttons(XptButton5Table) == 24 && Buttons(XptButton3Table) == 133 &&
              Buttons(XptButton4Table) == 160 && Buttons(TransButton1Table) == 18 &&
              Buttons(TransButton2Table) == 171 && Buttons(TransButton3Table) == 34 &&
              Buttons(TransButton5Table) == 33 && Buttons(KeyframeButton2Table) == 6 &&
              Buttons(JoystickButton1Table) == 2 && Buttons(JoystickButton2Table) == 8 &&
              Buttons(TrackballButton2Table) == 4 && Buttons(UtilityButton2Table) == 96 &&
              Buttons(KeyPadButton1Table) == 97 && Buttons(KeyPadButton2Table) == 6 &&
              Buttons(KeyPadButton3Table) == 2);

// A table as a run of rows.
struct ButtonTable {
    const BTN_TBL* row = nullptr;
    size_t rows = 0;
};
template <size_t N> constexpr ButtonTable Of(const BTN_TBL (&table)[N])
{
    return {table, N};
}

enum BLOCKTYPE : int {
    BLOCKTYPE_XPT,
    BLOCKTYPE_AUX,
    BLOCKTYPE_MODULE,
    BLOCKTYPE_TRANS,
    BLOCKTYPE_KEY_TRANS,
    BLOCKTYPE_DSK,
    BLOCKTYPE_PAD,
    BLOCKTYPE_STEPS,
    BLOCKTYPE_KEYFRAME,
    BLOCKTYPE_JOYSTICK,
    BLOCKTYPE_TRACKBALL,
    BLOCKTYPE_UTILITY,
    BLOCKTYPES,
};
// The name of a button is that of button2, then that of button1.
struct TypeTables {
    BLOCKTYPE type = BLOCKTYPES;
    ButtonTable button1 = {};
    ButtonTable button2 = {};
};
constexpr TypeTables type_tables[] = {
    {BLOCKTYPE_XPT, Of(XptButton1Table), Of(XptButton2Table)},
    {BLOCKTYPE_AUX, Of(XptButton3Table), Of(XptButton5Table)},
    {BLOCKTYPE_MODULE, Of(XptButton4Table), {}},
    {BLOCKTYPE_TRANS, Of(TransButton1Table), Of(TransButton2Table)},
    {BLOCKTYPE_KEY_TRANS, Of(TransButton3Table), {}},
    {BLOCKTYPE_DSK, Of(TransButton5Table), {}},
    {BLOCKTYPE_PAD, Of(KeyPadButton1Table), Of(KeyPadButton2Table)},
    {BLOCKTYPE_STEPS, Of(KeyPadButton1Table), Of(KeyPadButton3Table)},
    {BLOCKTYPE_KEYFRAME, {}, Of(KeyframeButton2Table)},
    {BLOCKTYPE_JOYSTICK, Of(JoystickButton1Table), Of(JoystickButton2Table)},
    {BLOCKTYPE_TRACKBALL, {}, Of(TrackballButton2Table)},
    {BLOCKTYPE_UTILITY, {}, Of(UtilityButton2Table)},
};
static_assert(IndexedBy(type_tables, &TypeTables::type, BLOCKTYPES));

// --- The blocks ---

struct BLK_TBL {
    int block_code = 0;
    int order = 0;
    BLOCKTYPE type = BLOCKTYPES;
    ATTACHGROUP group = ATTACHGROUPS;
    char name[20] = "";
};
struct BlockKind {
    const char* name; // behind the bank
    BLOCKTYPE type;
};
constexpr BlockKind bank_blocks[] = {
    {" XPT", BLOCKTYPE_XPT},
    {" Trans", BLOCKTYPE_TRANS},
    {" Key Trans", BLOCKTYPE_KEY_TRANS},
    {" FlexiPad", BLOCKTYPE_PAD},
    {" Key Control", BLOCKTYPE_STEPS},
    {" Utility", BLOCKTYPE_UTILITY},
    {" DSK/FTB", BLOCKTYPE_DSK},
};
struct FurtherBlock {
    const char* name; // with its number behind it
    int count;
    BLOCKTYPE type;
    ATTACHGROUP group;
};
constexpr FurtherBlock further_blocks[] = {
    {"Aux XPT ", 4, BLOCKTYPE_AUX, ATTACHGROUP_AUX},
    {"Aux Utility ", 4, BLOCKTYPE_UTILITY, ATTACHGROUP_AUX},
    {"Keyframe ", 2, BLOCKTYPE_KEYFRAME, ATTACHGROUP_OTHERS},
    {"Joystick ", 2, BLOCKTYPE_JOYSTICK, ATTACHGROUP_OTHERS},
    {"Trackball ", 2, BLOCKTYPE_TRACKBALL, ATTACHGROUP_OTHERS},
    {"Keypad ", 2, BLOCKTYPE_PAD, ATTACHGROUP_OTHERS},
    {"Utility ", 4, BLOCKTYPE_UTILITY, ATTACHGROUP_OTHERS},
    {"Multi XPT ", 4, BLOCKTYPE_MODULE, ATTACHGROUP_OTHERS},
};
constexpr int BANKS = ATTACHGROUP_AUX; // the first groups

constexpr char* Append(char* to, const char* text)
{
    while (*text)
        *to++ = *text++;
    return to;
}

constexpr auto Blocks()
{
    std::array<BLK_TBL, ATTACH_BLOCKS> table{};
    int n = 0;
    const auto add = [&table, &n](BLOCKTYPE type, ATTACHGROUP group) {
        BLK_TBL& row = table[size_t(n++)];
        row.block_code = row.order = n;
        row.type = type;
        row.group = group;
        return row.name;
    };
    for (int bank = 0; bank < BANKS; bank++)
        for (const BlockKind& kind : bank_blocks)
            (void)Append(Append(add(kind.type, ATTACHGROUP(bank)), BlockSelect[bank]), kind.name);
    for (const FurtherBlock& block : further_blocks)
        for (int i = 0; i < block.count; i++)
            *Append(add(block.type, block.group), block.name) = char('1' + i);
    return table;
}
constexpr auto BlockTable = Blocks(); // a block too many does not compile
static_assert(BlockTable[ATTACH_BLOCKS - 1].order == ATTACH_BLOCKS);

constexpr const char* modes[] = {"Only", "Pre", "Post"};
} // namespace

// --- The list ---

ATTACH_TBL* AttachPtr[ATTACH_MAX];
int AttachListN = 0;
static ATTACH_TBL entries[ATTACH_MAX]; // the list points to the first AttachListN
static int counts[ATTACHGROUPS];       // the counters of the groups: N_PP and on

static const BLK_TBL* block_of(int code)
{
    for (const BLK_TBL& block : BlockTable)
        if (block.block_code == code)
            return &block;
    return nullptr;
}

static void append_button(char (&name)[48], const ButtonTable& table, int code)
{
    char text[24] = "";
    for (size_t i = 0; i < table.rows; i++) {
        const BTN_TBL& row = table.row[i];
        const int at = code - row.code;
        if (at < 0 || at >= row.count)
            continue;
        if (row.count > 1 || row.first != 0)
            PrintText(text, "%s%d%s", row.name, row.first + at, row.tail);
        else
            CopyText(text, row.name);
    }
    if (*text && *name)
        AppendText(name, " ");
    AppendText(name, text);
}

static void name_button(ATTACH_TBL& entry, BLOCKTYPE type)
{
    append_button(entry.btn_name, type_tables[type].button2, entry.button2);
    append_button(entry.btn_name, type_tables[type].button1, entry.button1);
    if (entry.main_pair == 0)
        return;
    AppendText(entry.btn_name, " Pair ");
    AppendText(entry.btn_name, NumStr(entry.main_pair));
}

static void name_register(ATTACH_TBL& entry)
{
    CopyText(entry.reg_name, Register_Name_Macro(0, entry.register_index));
}

void Attach_NameRegisters()
{
    for (int i = 0; i < AttachListN; i++)
        name_register(*AttachPtr[i]);
}

// False for a value that is no entry.
static bool read_entry(const char* value, ATTACH_TBL& entry)
{
    const char* at = value;
    for (int& field : entry.field) {
        char* end = nullptr;
        const long long n = strtoll(at, &end, 10);
        const bool is_last = &field == std::end(entry.field) - 1;
        if (end == at || n < 0 || n > UINT16_MAX || *end != (is_last ? '\0' : ','))
            return false;
        field = int(n);
        at = end + 1;
    }
    return true;
}

static bool complete(ATTACH_TBL& entry)
{
    const BLK_TBL* const block = block_of(entry.field[ATTACHFIELD_BLOCK]);
    const int number = entry.field[ATTACHFIELD_REGISTER];
    const int mode = entry.field[ATTACHFIELD_MODE];
    if (!block || number < 1 || number > REGISTERS_MACRO || mode >= int(std::size(modes)))
        return false;
    entry.block = uint8_t(block->block_code);
    entry.blk_odr = uint8_t(block->order);
    CopyText(entry.blk_name, block->name);
    entry.button1 = uint16_t(entry.field[ATTACHFIELD_BUTTON1]);
    entry.button2 = uint16_t(entry.field[ATTACHFIELD_BUTTON2]);
    entry.main_pair = uint16_t(entry.field[ATTACHFIELD_MAIN_PAIR]);
    entry.sub_pair = uint16_t(entry.field[ATTACHFIELD_SUB_PAIR]);
    entry.regno = uint8_t(number);
    entry.register_index = uint16_t(number - 1);
    CopyText(entry.mode, modes[mode]);
    name_button(entry, block->type);
    name_register(entry);
    return true;
}

static int compare(const ATTACH_TBL& a, const ATTACH_TBL& b)
{
    for (const int difference :
         {a.blk_odr - b.blk_odr, a.button1 - b.button1, a.button2 - b.button2,
          a.main_pair - b.main_pair, a.sub_pair - b.sub_pair})
        if (difference != 0)
            return difference;
    for (int i = ATTACHFIELD_PLACE; i < ATTACH_FIELDS; i++)
        if (a.field[i] != b.field[i])
            return a.field[i] - b.field[i];
    return 0;
}

static int put_entry(const ATTACH_TBL& entry)
{
    ATTACH_TBL** const end = AttachPtr + AttachListN;
    ATTACH_TBL** const at =
        std::find_if(AttachPtr, end, [&entry](ATTACH_TBL* e) { return compare(*e, entry) >= 0; });
    if (at != end && compare(**at, entry) == 0) {
        **at = entry;
        return 0;
    }
    if (AttachListN >= ATTACH_MAX) {
        Log_Output(LOG_ALWAYS, MOD_PAGE, "No room for an attachment to %s", entry.btn_name);
        return -1;
    }
    entries[AttachListN] = entry;
    std::copy_backward(at, end, end + 1);
    *at = &entries[AttachListN++];
    counts[block_of(entry.block)->group]++;
    return 0;
}

void Attach_Clear()
{
    AttachListN = 0;
    std::fill(std::begin(counts), std::end(counts), 0);
}

int attach_list_tly(const char* value)
{
    ATTACH_TBL entry;
    if (IsKill(value)) {
        Attach_Clear();
        return 0;
    }
    return read_entry(value, entry) && complete(entry) ? put_entry(entry) : -1;
}

int Attach_Count(ATTACHGROUP group)
{
    return counts[group];
}

int Attach_Top(ATTACHGROUP group)
{
    int top = 0;
    for (int i = 0; i < group; i++)
        top += counts[i];
    return top;
}
