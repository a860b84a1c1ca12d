// Configurations of the panel that are prepared in a list and executed: names and colours of
// sources, user colours, name export, side flags, shift mode, router mode, source tables. Each is a
// table of setup_page; all have rows of the same structure.
#include "a_ls.h"
#include "command.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "pc_engsetup_pnl.h"
#include "pc_engsetup_sys.h"
#include "setup_page.h"
#include "tally_value.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <iterator>

#include "safeguards.h"

#define XPT "Engineering Setup@Panel@Xpt Assign@"
#define AUX "Engineering Setup@Panel@Aux Assign@"

namespace
{
struct panelrow {
    char key[16];
    char a[24];
    char b[24];
};
// What the installer prepares and what the server has told; one of each for a page.
template <const char* page, int rows> struct Copies {
    static inline panelrow work[rows];
    static inline panelrow tally[rows];
    static inline int count = 0;
    static inline SETUPSTATE state;
};
template <typename C, size_t fields, size_t choices>
constexpr SETUPTABLE TableOf(const SETUPFIELD (&field)[fields],
                             const SETUPCHOICE (&choice)[choices], int (*keys)(const char**, int),
                             SETUPTABLE t = {})
{
    t.work = C::work;
    t.tally = C::tally;
    t.rows = &C::count;
    t.state = &C::state;
    t.row_size = sizeof(panelrow);
    t.max = int(std::size(C::work));
    t.fields = field;
    t.field_count = int(fields);
    t.keys = keys;
    t.list = 1;
    t.btn_clear = BTN_SETUP_CLEAR;
    t.btn_execute = BTN_SETUP_EXECUTE;
    t.clear = "LOCAL@Panel Setup@Clear";
    t.execute = "LOCAL@Panel Setup@Execute";
    t.choices = choice;
    t.choice_count = int(choices);
    return t;
}
constexpr SETUPFIELD KEY_COLUMN = {SETUP_CELL(panelrow, key), .column = 0};

template <const auto& words> int keys_of(const char** keys, int max)
{
    const int n = std::min(max, int(std::size(words)));
    std::copy_n(words, n, keys);
    return n;
}
constexpr SETUPWORD on_off[] = {{"true", "On"}, {"false", "Off"}, {}};
constexpr const char* bus_rows[] = {"M/E-1", "M/E-2", "M/E-3",   "M/E-4",
                                    "M/E-5", "P/P",   "1st AUX", "2nd AUX"};

// --- Names and colours of the sources ---

constexpr SETUPWORD colours[] = {{"0", "None"},
                                 {"1", "Red"},
                                 {"2", "Orange"},
                                 {"3", "Yellow"},
                                 {"4", "Green"},
                                 {"5", "Teal"},
                                 {"6", "Blue"},
                                 {"7", "Violet"},
                                 {"8", "Magenta"},
                                 {"9", "Gray"},
                                 {}};
constexpr SETUPFIELD namecolor_fields[] = {
    {SETUP_CELL(panelrow, a), .path = XPT "Source@List", .part = 1, .column = 1, .ask = SETUP_READ},
    {SETUP_CELL(panelrow, b), .path = XPT "Source@Color", .part = 1, .column = 2, .words = colours},
    KEY_COLUMN,
};
constexpr char NAMECOLOR[] = "namecolor";
constexpr SETUPCHOICE color_choices[] = {{"LOCAL@Panel Setup@Color", 1}};
constexpr SETUPTABLE namecolor =
    TableOf<Copies<NAMECOLOR, 254>>(namecolor_fields, color_choices, nullptr);

// --- User colours ---

constexpr const char* user_colors[] = {"User 1", "User 2", "User 3", "User 4",
                                       "User 5", "User 6", "User 7", "User 8"};
constexpr SETUPFIELD usercolor_fields[] = {
    {SETUP_CELL(panelrow, a), .path = XPT "User Color@$@Brightness", .column = 2},
    {SETUP_CELL(panelrow, b), .path = XPT "User Color@$@Color", .column = 1, .words = colours},
    KEY_COLUMN,
};
constexpr char USERCOLOR[] = "usercolor";
constexpr SETUPCHOICE usercolor_choices[] = {{"LOCAL@Panel Setup@Color", 1},
                                             {"LOCAL@Panel Setup@Brightness", 0}};
constexpr SETUPTABLE usercolor =
    TableOf<Copies<USERCOLOR, 8>>(usercolor_fields, usercolor_choices, keys_of<user_colors>);

// --- Name export ---

constexpr const char* export_targets[] = {"Router", "Multi Viewer", "Other Panel", "Tally Unit"};
constexpr SETUPFIELD export_fields[] = {
    {SETUP_CELL(panelrow, a), .path = XPT "Name Export@$", .column = 1, .words = on_off},
    KEY_COLUMN,
};
constexpr char EXPORT[] = "nameexport";
constexpr SETUPCHOICE export_choices[] = {{"LOCAL@Panel Setup@Export", 0}};
constexpr SETUPTABLE name_export =
    TableOf<Copies<EXPORT, 4>>(export_fields, export_choices, keys_of<export_targets>);

// --- Side flags: a line for each crosspoint button ---

constexpr SETUPFIELD sideflags_fields[] = {
    {SETUP_CELL(panelrow, a), .path = XPT "Side Flags Button Assign", .part = 1, .column = 1,
     .words = on_off},
    KEY_COLUMN,
};
constexpr char SIDEFLAGS[] = "sideflags";
constexpr SETUPCHOICE sideflags_choices[] = {{"LOCAL@Panel Setup@Side Flags", 0}};
constexpr SETUPTABLE sideflags =
    TableOf<Copies<SIDEFLAGS, 128>>(sideflags_fields, sideflags_choices, nullptr);

// --- Shift mode of each row ---

constexpr SETUPFIELD shift_fields[] = {
    {SETUP_CELL(panelrow, a), .path = XPT "Shift Mode@$", .column = 1},
    KEY_COLUMN,
};
constexpr char SHIFT[] = "shiftmode";
constexpr SETUPCHOICE shift_choices[] = {{"LOCAL@Panel Setup@Shift Mode", 0}};
constexpr SETUPTABLE shift_mode =
    TableOf<Copies<SHIFT, 8>>(shift_fields, shift_choices, keys_of<bus_rows>);

// --- Router mode of the aux rows, and their source tables ---

constexpr const char* aux_rows[] = {"1st AUX", "2nd AUX"};
constexpr SETUPFIELD router_fields[] = {
    {SETUP_CELL(panelrow, a), .path = AUX "RTR Mode Set@Mode@$", .column = 1},
    {SETUP_CELL(panelrow, b), .path = AUX "RTR Mode Set@Level@$", .column = 2},
    KEY_COLUMN,
};
constexpr char ROUTER[] = "rtrmodeset";
constexpr SETUPCHOICE router_choices[] = {{"LOCAL@Panel Setup@Mode", 0},
                                          {"LOCAL@Panel Setup@Level", 1}};
constexpr SETUPTABLE router_mode =
    TableOf<Copies<ROUTER, 2>>(router_fields, router_choices, keys_of<aux_rows>);

constexpr const char* destinations[] = {"RTR Dest 1",  "RTR Dest 2",  "RTR Dest 3",  "RTR Dest 4",
                                        "RTR Dest 5",  "RTR Dest 6",  "RTR Dest 7",  "RTR Dest 8",
                                        "RTR Dest 9",  "RTR Dest 10", "RTR Dest 11", "RTR Dest 12",
                                        "RTR Dest 13", "RTR Dest 14", "RTR Dest 15", "RTR Dest 16"};
constexpr SETUPFIELD source_table_fields[] = {
    {SETUP_CELL(panelrow, a), .path = AUX "RTR Mode Set@Source Table Assign@$", .column = 1},
    KEY_COLUMN,
};
constexpr char SOURCETABLE[] = "sourcetable";
constexpr SETUPCHOICE source_table_choices[] = {{"LOCAL@Panel Setup@Source Table", 0}};
constexpr SETUPTABLE source_table = TableOf<Copies<SOURCETABLE, 16>>(
    source_table_fields, source_table_choices, keys_of<destinations>);

const SETUPTABLE* const all_tables[] = {&namecolor,  &usercolor,   &name_export, &sideflags,
                                        &shift_mode, &router_mode, &source_table};
} // namespace

const PC_TBL pc_engsetup_panel_xptassign_sideflagsassign = SetupPage_Code<sideflags>;
const PC_TBL pc_engsetup_panel_xptassign_shiftmode = SetupPage_Code<shift_mode>;
const PC_TBL pc_engsetup_panel_auxassign_rtrmodeset = SetupPage_Code<router_mode>;
const PC_TBL pc_engsetup_panel_auxassign_sourcetableassign = SetupPage_Code<source_table>;

// --- The colour of the selected rows ---

static int color_pane = 0; // while it is open

static void ask_color()
{
    static constexpr BTNSEL choices[] = {{1, "1"}, {2, "2"}, {3, "3"}, {4, "4"}, {5, "5"},
                                         {6, "6"}, {7, "7"}, {8, "8"}, {9, "9"}};
    color_pane = PaneSelect_Color_Button_Create(3, 3, choices);
}

static void take_color(const SETUPTABLE& t, int result)
{
    constexpr int field = 1;
    for (int n = 0, row; result > 0 && (row = SetupPage_Selected(t, n)) >= 0; n++)
        SetupPage_Set(t, row, field, colours[result].text);
}

// True when the message was about the colour.
static bool color_proc(const SETUPTABLE& t, int msg, MsgArg ax, MsgArg bx)
{
    if (msg == LMSG_BTNSEL && Same(Text(ax), "LOCAL@Panel Setup@Select Color")) {
        ask_color();
        return true;
    }
    if (msg != LMSG_PANEQUIT || color_pane == 0 || int(ax) != color_pane)
        return false;
    color_pane = 0;
    take_color(t, int(bx));
    return true;
}

static int name_entered(const char* text)
{
    char name[sizeof panelrow::a];
    CopyText(name, text);
    const int row = SetupPage_Selected(namecolor, 0);
    if (row < 0 || !namecolor.state->is_open || !StrSourceName(name))
        return -1;
    SetupPage_Set(namecolor, row, 0, name);
    return 0;
}

static void ask_name()
{
    constexpr int name_max = 16;
    const int row = SetupPage_Selected(namecolor, 0);
    if (row < 0)
        return;
    WindowArgs args;
    args.value = SetupPage_Text(namecolor, row, 0);
    args.input_max = name_max;
    args.ok_text = name_entered;
    (void)CreateWindow(WINDOW_KEYBOARD, "Source Name", args);
}

static int namecolor_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (msg == LMSG_BTNSEL && Same(Text(ax), "LOCAL@Panel Setup@Name"))
        ask_name();
    else if (!color_proc(namecolor, msg, ax, bx))
        (void)SetupPage_Proc(namecolor, msg, ax, bx);
    return 0;
}

const PC_TBL pc_engsetup_panel_xptassign_namecolor = {.proc_func = namecolor_proc,
                                                      .create_func = SetupPage_CreateOf<namecolor>};

static int usercolor_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (!color_proc(usercolor, msg, ax, bx))
        (void)SetupPage_Proc(usercolor, msg, ax, bx);
    return 0;
}

const PC_TBL pc_engsetup_panel_xptassign_usercolorselect = {
    .proc_func = usercolor_proc, .create_func = SetupPage_CreateOf<usercolor>};

// --- The export itself ---

static int export_pane = 0; // while it is asked about

static int nameexport_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    constexpr int yes = 1;
    if (msg == LMSG_BTNSEL && Same(Text(ax), "LOCAL@Panel Setup@Name Export")) {
        export_pane = PaneYesNo_Create("Name Export", PANE_ALERT,
                                       "The source names will be overwritten in\nthe units that "
                                       "are on.\n\nContinue?");
    } else if (msg == LMSG_PANEQUIT && export_pane != 0 && int(ax) == export_pane) {
        export_pane = 0;
        if (int(bx) == yes)
            Net_SendCommand("put " XPT "Name Export@Execute#true");
    } else {
        (void)SetupPage_Proc(name_export, msg, ax, bx);
    }
    return 0;
}

const PC_TBL pc_engsetup_panel_xptassign_nameexport = {
    .proc_func = nameexport_proc, .create_func = SetupPage_CreateOf<name_export>};

void EngSetupPanelTable_Reset()
{
    for (const SETUPTABLE* t : all_tables)
        SetupPage_Forget(*t);
}
