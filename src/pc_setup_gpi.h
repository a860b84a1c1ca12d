// pc_setup_gpi: the GPI ports of a unit: what a port does when its input changes, what makes its
// output change. One body for all units: the place of the page in the tree is the place of the
// settings, "Engineering Setup@Switcher@Device Interface@GPI Output". A unit brings a sheet of its
// number of ports and a row of a page:
//
//     inline constexpr BT_TBL gpi_output_more[] = {gpi_test_fire};
//     inline constexpr SETUPSHEET gpi_output = SheetMore(SetupGpi_Output(8), gpi_output_more);
//     ... .obj = {..., SHEET_OBJECTS(gpi_output), Code(SetupGpi_Code<gpi_output>)}
//
// An action is done somewhere (a bank, a key, a region) or with a register; one of a region has a
// path of its own. What the server holds stands on one of the two paths only.
#pragma once
#include "setup_sheet.h"

// --- What the columns name; see SETUPCOLUMN and SETUPSHEET ---
// A byte: "0x0A" on the wire, "10" on the screen; what is none becomes 0, what is more 255.
void SetupGpi_FromHex(const char* value, const char* now, char* text, size_t size);
void SetupGpi_ToHex(const char* text, char* value, size_t size);
// The targets of the current row's action, at most max texts, for the column of targets; -1 for
// another column.
int SetupGpi_Offer(int column, const char** texts, int max);
void SetupGpi_Changed(); // an action without targets has no key for them

constexpr int GPI_ACTION_COLUMNS = 3;
constexpr int GPI_REGISTERS = 99;
constexpr int BTN_GPI_TARGET = 35; // the third key of either page

inline constexpr SETUPWORD gpi_trigger_words[] = {{"None", "None"},
                                                  {"Rising Edge", "Rising Edge"},
                                                  {"Falling Edge", "Falling Edge"},
                                                  {"Any Edge", "Any Edge"},
                                                  {"Level", "Level"},
                                                  {}};
// Where an action is done.
enum : int { GPI_NOWHERE, GPI_BANK, GPI_BUS, GPI_KEY, GPI_REGION };
// The number of an action on the wire is its place here.
struct GPIACTION {
    SETUPWORD word;
    int where = GPI_NOWHERE;
    int has_register = 0;
};
inline constexpr GPIACTION gpi_action_rows[] = {
    {{"None", "None"}, GPI_NOWHERE, 0},
    {{"Cut", "Cut"}, GPI_BANK, 0},
    {{"Auto Trans", "Auto Trans"}, GPI_BANK, 0},
    {{"FTB", "FTB"}, GPI_BANK, 0},
    {{"Xpt Hold", "Xpt Hold"}, GPI_BUS, 0},
    {{"Key On", "Key On"}, GPI_KEY, 0},
    {{"Key Off", "Key Off"}, GPI_KEY, 0},
    {{"Key Auto", "Key Auto"}, GPI_KEY, 0},
    {{"Effect Recall", "Effect Recall"}, GPI_REGION, 1},
    {{"Effect Run", "Effect Run"}, GPI_REGION, 0},
    {{"Effect Stop", "Effect Stop"}, GPI_REGION, 0},
    {{"Snapshot Recall", "Snapshot Recall"}, GPI_REGION, 1},
    {{"Shotbox Recall", "Shotbox Recall"}, GPI_NOWHERE, 1},
    {{"Macro Run", "Macro Run"}, GPI_NOWHERE, 1},
};
struct GpiActionWords {
    SETUPWORD word[sizeof gpi_action_rows / sizeof gpi_action_rows[0] + 1];
};
constexpr GpiActionWords MakeGpiActionWords()
{
    GpiActionWords words;
    int n = 0;
    for (const GPIACTION& row : gpi_action_rows)
        words.word[n++] = row.word;
    return words;
}
inline constexpr GpiActionWords gpi_action_words = MakeGpiActionWords();

// The last three columns of a page are an action's. The words of the target only say that it has a
// key which asks: what it offers follows from the action.
#define GPI_ACTION_PATH "~@Action Type@$@1"
#define GPI_REGION_PATH "~@Action Type Region@$@1"
#define GPI_ACTION(action_width, target_width)                                                     \
    {.head = "Action",                                                                             \
     .width = action_width,                                                                        \
     .path = GPI_ACTION_PATH,                                                                      \
     .part = SETUP_BY_PAGE,                                                                        \
     .words = gpi_action_words.word,                                                               \
     .caption = "Action\nType",                                                                    \
     .group = "Action Set"},                                                                       \
        {.head = "Target",                                                                         \
         .width = target_width,                                                                    \
         .path = GPI_REGION_PATH,                                                                  \
         .part = SETUP_BY_PAGE,                                                                    \
         .words = gpi_action_words.word,                                                           \
         .caption = "Target",                                                                      \
         .group = "Action Set"},                                                                   \
    {                                                                                              \
        .head = "Reg No", .width = 66, .path = GPI_ACTION_PATH, .part = SETUP_BY_PAGE, .min = 1,   \
        .max = GPI_REGISTERS                                                                       \
    }

inline constexpr SETUPCOLUMN gpi_output_columns[] = {
    {.head = "Trigger",
     .width = 104,
     .path = "~@Trigger Type@$",
     .part = 1,
     .words = gpi_trigger_words,
     .caption = "Trigger\nType",
     .group = "Trigger"},
    {.head = "Timing",
     .width = 62,
     .path = "~@Trigger Type@$",
     .part = 2,
     .from_wire = SetupGpi_FromHex,
     .to_wire = SetupGpi_ToHex,
     .max = 255,
     .caption = "Pulse\nTiming"},
    {.head = "Width",
     .width = 60,
     .path = "~@Trigger Type@$",
     .part = 3,
     .from_wire = SetupGpi_FromHex,
     .to_wire = SetupGpi_ToHex,
     .max = 255,
     .caption = "Pulse\nWidth"},
    GPI_ACTION(120, 92),
};
inline constexpr SETUPCOLUMN gpi_input_columns[] = {
    {.head = "Trigger",
     .width = 134,
     .path = "~@Trigger Type@$",
     .words = gpi_trigger_words,
     .caption = "Trigger\nType",
     .group = "Trigger"},
    GPI_ACTION(170, 134),
};
#undef GPI_ACTION

#define GPI_TEST_FIRE SHEET_LOCAL "Test Fire"
inline constexpr BT_TBL gpi_test_fire =
    Action({.id = 37, .caption = "Test\nFire", .group = "Port", .cmd = {GPI_TEST_FIRE}});

// The sheets of a unit with so many ports, at most SHEET_ROWS.
constexpr SETUPSHEET SetupGpi_Output(int ports)
{
    return {.columns = gpi_output_columns,
            .column_count = int(sizeof gpi_output_columns / sizeof gpi_output_columns[0]),
            .rows = ports,
            .key_head = "Port",
            .key_width = 46,
            .offer = SetupGpi_Offer,
            .changed = SetupGpi_Changed};
}
constexpr SETUPSHEET SetupGpi_Input(int ports)
{
    return {.columns = gpi_input_columns,
            .column_count = int(sizeof gpi_input_columns / sizeof gpi_input_columns[0]),
            .rows = ports,
            .key_head = "Port",
            .key_width = 46,
            .offer = SetupGpi_Offer,
            .changed = SetupGpi_Changed};
}

// --- Inputs whose level, high or low, chooses between two states ---

inline constexpr SETUPWORD gpi_hl_functions[] = {{"None", "None"},
                                                 {"FC Input/Output", "FC In/Out"},
                                                 {"Aux Bus Tie", "Aux Bus Tie"},
                                                 {"Menu Lock", "Menu Lock"},
                                                 {}};
inline constexpr SETUPWORD gpi_hl_states[] = {{"On", "On"}, {"Off", "Off"}, {}};
inline constexpr SETUPCOLUMN gpi_hl_columns[] = {
    {.head = "Function", .width = 224, .path = "~@Function@$", .words = gpi_hl_functions},
    {.head = "High", .width = 140, .path = "~@High@$", .words = gpi_hl_states},
    {.head = "Low", .width = 140, .path = "~@Low@$", .words = gpi_hl_states},
};
constexpr SETUPSHEET SetupGpi_HLSet(int ports)
{
    return {.columns = gpi_hl_columns,
            .column_count = 3,
            .rows = ports,
            .key_head = "Port",
            .key_width = 46};
}

// A converter that works for an input or for an output, as the level says: "FC3,Input,Output".
inline constexpr SETUPWORD gpi_fc_words[] = {
    {"None", "None"}, {"FC1", "FC1"}, {"FC2", "FC2"}, {"FC3", "FC3"}, {"FC4", "FC4"},
    {"FC5", "FC5"},   {"FC6", "FC6"}, {"FC7", "FC7"}, {"FC8", "FC8"}, {}};
inline constexpr SETUPWORD gpi_fc_sides[] = {{"Input", "Input"}, {"Output", "Output"}, {}};
inline constexpr SETUPCOLUMN gpi_fc_columns[] = {
    {.head = "FC",
     .width = 164,
     .path = "~@$",
     .part = 1,
     .words = gpi_fc_words,
     .caption = "Format\nConverter"},
    {.head = "High", .width = 170, .path = "~@$", .part = 2, .words = gpi_fc_sides},
    {.head = "Low", .width = 170, .path = "~@$", .part = 3, .words = gpi_fc_sides},
};
constexpr SETUPSHEET SetupGpi_HLSetFC(int ports)
{
    return {.columns = gpi_fc_columns,
            .column_count = 3,
            .rows = ports,
            .key_head = "Port",
            .key_width = 46};
}

// --- Page code of the input and the output pages; those of levels are plain sheets ---
// Open the page of a sheet and follow the key config, or leave both. 0; 1 when it was left.
int SetupGpi_Create(const SETUPSHEET& s, const SETUPTABLE& t, int on);
int SetupGpi_Proc(const SETUPSHEET& s, const SETUPTABLE& t, int msg, MsgArg ax, MsgArg bx);

template <const SETUPSHEET& s> int SetupGpi_CreateOf(int on, uint32_t)
{
    return SetupGpi_Create(s, SetupSheet_Table<s>, on);
}
template <const SETUPSHEET& s> int SetupGpi_ProcOf(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return SetupGpi_Proc(s, SetupSheet_Table<s>, msg, ax, bx);
}
template <const SETUPSHEET& s>
inline constexpr PC_TBL SetupGpi_Code = {.proc_func = SetupGpi_ProcOf<s>,
                                         .create_func = SetupGpi_CreateOf<s>};
