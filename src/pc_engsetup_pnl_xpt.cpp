// Tables of what lies on a button: crosspoints of the main and the sub side, audio inputs, aux
// buses, router sources, levels. The buttons at the left, what can lie on them at the right; what
// is inserted or deleted moves the buttons behind it. The server moves them and tells each that
// changed. A crosspoint button carries a video and a key source, which are edited alone or as one.
#include "a_bt.h"
#include "a_ls.h"
#include "bus.h"
#include "command.h"
#include "global.h"
#include "graphics.h"
#include "indexed.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "pc_engsetup_pnl.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <iterator>

#include "safeguards.h"

#define XPT "Engineering Setup@Panel@Xpt Assign@"
#define AUX "Engineering Setup@Panel@Aux Assign@"
#define PAIR "Info@Operation Setup Data@V/K Pair Assign"

namespace
{
enum : int { LIST_BUTTONS = 1, LIST_THINGS = 2 };
enum : int { COL_BUTTON, COL_VIDEO, COL_KEY, COL_INHIBIT, COL_SIDE_FLAG };
constexpr int BUTTONS = 128;
constexpr int SUB_FIRST = 128; // the buttons of the sub side are counted on
constexpr int INDICES = 256;
constexpr int THINGS = BUS_SBUS;
constexpr int ROUTER_TABLES = 4;
constexpr int ARROW_X = 405;
constexpr int ARROW_Y = 190;

const char* xpt_source(int n)
{
    return n < BUS_XPT_SRC ? BUS_XptSrc[n] : nullptr;
}
const char* router_source(int n)
{
    return n < BUS_SBUS ? BUS_SBusSrc[n] : nullptr;
}
template <const auto& words> const char* word_of(int n)
{
    return n >= 1 && n <= int(std::size(words)) ? words[n - 1] : nullptr;
}
constexpr const char* mixer_inputs[] = {
    "Input 1",  "Input 2",  "Input 3",  "Input 4",  "Input 5",  "Input 6",  "Input 7",  "Input 8",
    "Input 9",  "Input 10", "Input 11", "Input 12", "Input 13", "Input 14", "Input 15", "Input 16",
    "Input 17", "Input 18", "Input 19", "Input 20", "Input 21", "Input 22", "Input 23", "Input 24",
    "Stereo 1", "Stereo 2", "Stereo 3", "Stereo 4", "Group 1",  "Group 2",  "Group 3",  "Group 4",
};
constexpr const char* aux_buses[] = {
    "AUX1",  "AUX2",  "AUX3",  "AUX4",  "AUX5",  "AUX6",  "AUX7",  "AUX8",  "AUX9",     "AUX10",
    "AUX11", "AUX12", "AUX13", "AUX14", "AUX15", "AUX16", "AUX17", "AUX18", "AUX19",    "AUX20",
    "AUX21", "AUX22", "AUX23", "AUX24", "AUX25", "AUX26", "AUX27", "AUX28", "AUX29",    "AUX30",
    "AUX31", "AUX32", "AUX33", "AUX34", "AUX35", "AUX36", "AUX37", "AUX38", "AUX39",    "AUX40",
    "AUX41", "AUX42", "AUX43", "AUX44", "AUX45", "AUX46", "AUX47", "AUX48", "Edit PVW", "Monitor",
};
constexpr const char* router_levels[] = {"Level 1", "Level 2", "Level 3", "Level 4",
                                         "Level 5", "Level 6", "Level 7", "Level 8"};

struct XptTable {
    XPTTABLE_ID id = XPT_TABLES;
    const char* word = ""; // of its local commands: "LOCAL@Main@..."
    const char* path = ""; // tells a line for each button: its index, what lies on it
    int first = 0;         // index of the button before its first
    int buttons = 0;       // in the list
    const char* (*thing)(int n) = nullptr; // the name of what can lie on a button; null or "" none
    bool has_key = false;                  // a crosspoint: video and key
    bool is_by_number = false;             // several tables, chosen on the page
};
constexpr XptTable tables[] = {
    {XPTTABLE_MAIN, "Main", XPT "Assign", 0, BUTTONS, xpt_source, true},
    {XPTTABLE_SUB, "Sub", XPT "Assign", SUB_FIRST, BUS_XPT_SRC - 1 - SUB_FIRST, xpt_source, true},
    {XPTTABLE_MIXER, "Mixer", XPT "Mixer Xpt Assign", 0, 64, word_of<mixer_inputs>},
    {XPTTABLE_AUX, "Aux", AUX "Aux Button", 0, 24, word_of<aux_buses>},
    {XPTTABLE_ROUTER, "Router", AUX "RTR Mode Set@Source Table", 0, 64, router_source, false, true},
    {XPTTABLE_LEVEL, "Level", AUX "RTR Mode Set@Lvl Btn", 0, 8, word_of<router_levels>},
};
static_assert(IndexedBy(tables, &XptTable::id, XPT_TABLES));

enum Edit : int { EDIT_INSERT, EDIT_OVERWRITE, EDIT_DELETE };
constexpr const char* edit_words[] = {"Insert", "Overwrite", "Delete"};
} // namespace

static struct {
    const XptTable* table = nullptr;
    char path[CMD_SIZE] = ""; // of the lines
    int number = 1;           // of a table by number
    int video[INDICES] = {};  // by index; the only one of a button that is no crosspoint
    int key[INDICES] = {};
    int is_inhibited[INDICES] = {};
    int has_side_flag[INDICES] = {};
    int thing_of_row[THINGS] = {}; // of the list at the right
    int things = 0;
    char button_text[BUTTONS][8] = {};
    char thing_text[THINGS][8] = {};
    bool edits_video = true;
    bool edits_key = true;
    bool is_pair = false; // both go together, by the setup
    int question = 0;
    bool redraw = false;
} xp; // valid from create(1) to create(0)

static int index_of_row(int row)
{
    return xp.table->first + row + 1;
}

static const char* name_of(int thing)
{
    const char* const name = thing > 0 ? xp.table->thing(thing) : nullptr;
    return name ? name : "";
}

// --- The lists ---

static void show_button(int row)
{
    const int index = index_of_row(row);
    (void)LS_SetData(LIST_BUTTONS, row, COL_BUTTON, xp.button_text[row]);
    (void)LS_SetData(LIST_BUTTONS, row, COL_VIDEO, name_of(xp.video[index]));
    if (!xp.table->has_key)
        return;
    (void)LS_SetData(LIST_BUTTONS, row, COL_KEY, name_of(xp.key[index]));
    (void)LS_SetData(LIST_BUTTONS, row, COL_INHIBIT, xp.is_inhibited[index] ? "Inh" : "");
    (void)LS_SetData(LIST_BUTTONS, row, COL_SIDE_FLAG, xp.has_side_flag[index] ? "SF" : "");
}

static void show_buttons()
{
    for (int row = 0; row < xp.table->buttons; row++) {
        PrintText(xp.button_text[row], "%d", row + 1);
        show_button(row);
    }
    (void)LS_SetNData(LIST_BUTTONS, xp.table->buttons);
    (void)LS_RedrawData(LIST_BUTTONS);
}

static void show_things()
{
    xp.things = 0;
    for (int thing = 1; thing < THINGS; thing++) {
        if (!*name_of(thing))
            continue;
        const int row = xp.things++;
        xp.thing_of_row[row] = thing;
        PrintText(xp.thing_text[row], "%d", thing);
        (void)LS_SetData(LIST_THINGS, row, 0, xp.thing_text[row]);
        (void)LS_SetData(LIST_THINGS, row, 1, name_of(thing));
    }
    (void)LS_SetNData(LIST_THINGS, xp.things);
    (void)LS_RedrawData(LIST_THINGS);
}

// --- The keys ---

static void mirror(const char* what, const char* value)
{
    char line[CMD_SIZE];
    PrintText(line, "LOCAL@%s@%s#%s", xp.table->word, what, value);
    (void)SendDummyTally(line);
}

static void show_keys()
{
    if (xp.table->is_by_number)
        mirror("Table", NumStr(xp.number));
    if (!xp.table->has_key)
        return;
    mirror("Assign@Video", Bool(xp.edits_video || xp.is_pair));
    mirror("Assign@Key", Bool(xp.edits_key || xp.is_pair));
    mirror("V/K Pair Assign", Bool(xp.is_pair));
    (void)BT_SetDisable(BTN_XPT_VIDEO, xp.is_pair);
    (void)BT_SetDisable(BTN_XPT_KEY, xp.is_pair);
}

static int current_row()
{
    const int row = LS_GetSelected(LIST_BUTTONS, 0);
    return row < xp.table->buttons ? row : -1;
}

static int current_thing()
{
    const int row = LS_GetSelected(LIST_THINGS, 0);
    return row >= 0 && row < xp.things ? xp.thing_of_row[row] : -1;
}

// As a pair the button's own table is edited, otherwise what is assigned to it.
static void put_xpt(Edit edit, int row, int thing)
{
    const int index = index_of_row(row);
    const bool is_both = xp.is_pair || (xp.edits_video && xp.edits_key);
    const char* const part = is_both ? "VK" : xp.edits_video ? "V" : "K";
    if (xp.is_pair && edit == EDIT_INSERT)
        Net_SendCommandFormat("put " XPT "Insert@%s@Assign#%d,%d", xp.table->word, row + 1, thing);
    else if (xp.is_pair && edit == EDIT_DELETE)
        Net_SendCommandFormat("put " XPT "Delete@%s@Assign#%d,%d", xp.table->word, row + 1, 1);
    else if (edit == EDIT_DELETE)
        Net_SendCommandFormat("put " XPT "Delete %s#%d", part, index);
    else
        Net_SendCommandFormat("put " XPT "Insert %s#%d,%d,%d", part, index, thing,
                              edit == EDIT_OVERWRITE);
}

static void put_edit(Edit edit, int row, int thing)
{
    if (xp.table->has_key)
        put_xpt(edit, row, thing);
    else if (edit == EDIT_DELETE)
        Net_SendCommandFormat("put %s@Delete#%d", xp.path, row + 1);
    else
        Net_SendCommandFormat("put %s@%s#%d,%d", xp.path, edit_words[edit], row + 1, thing);
}

// What has been set moves the cursor on to the next button.
static void press_edit(Edit edit)
{
    const int row = current_row();
    const int thing = current_thing();
    if (row < 0 || (edit != EDIT_DELETE && thing < 0))
        return;
    put_edit(edit, row, thing);
    if (edit != EDIT_DELETE && row + 1 < xp.table->buttons)
        (void)LS_SetNowLine(LIST_BUTTONS, row + 1);
}

static void press_insert(const char*)
{
    press_edit(EDIT_INSERT);
}

static void press_overwrite(const char*)
{
    press_edit(EDIT_OVERWRITE);
}

static void press_delete(const char*)
{
    press_edit(EDIT_DELETE);
}

static void press_default(const char*)
{
    xp.question = PaneYesNo_Create("Default", PANE_ALERT,
                                   "Are you sure you want to Default the Button Table?");
}

static void put_default()
{
    if (xp.table->has_key)
        Net_SendCommandFormat("put " XPT "Default@%s@Assign#true", xp.table->word);
    else
        Net_SendCommandFormat("put %s@Default#true", xp.path);
}

// One of the two is always edited.
static void press_video(const char*)
{
    xp.edits_video = !xp.edits_video;
    xp.edits_key = xp.edits_key || !xp.edits_video;
    show_keys();
}

static void press_key(const char*)
{
    xp.edits_key = !xp.edits_key;
    xp.edits_video = xp.edits_video || !xp.edits_key;
    show_keys();
}

static void press_pair(const char*)
{
    Net_SendCommandFormat("put " PAIR "#%s", ToggleBool(xp.is_pair));
}

static void press_inhibit(const char*)
{
    const int row = current_row();
    if (row >= 0)
        Net_SendCommandFormat("put " XPT "Inhibit#%d,%s", index_of_row(row),
                              ToggleBool(xp.is_inhibited[index_of_row(row)]));
}

static void press_shift(const char*)
{
    constexpr uint32_t shift_mode = 0x73220008;
    GL_CreatePage = shift_mode;
}

static void make_path()
{
    if (xp.table->is_by_number)
        PrintText(xp.path, "%s@%d", xp.table->path, xp.number);
    else
        CopyText(xp.path, xp.table->path);
}

static void press_table(const char* value)
{
    const int number = IndexFrom1(value, ROUTER_TABLES) + 1;
    if (number < 1 || number == xp.number)
        return;
    Net_SendCommandFormat("remove %s", xp.path);
    xp.number = number;
    make_path();
    std::fill(std::begin(xp.video), std::end(xp.video), 0);
    show_buttons();
    show_keys();
    Net_SendCommandFormat("add %s", xp.path);
}

static int xpt_button(const char* cmd, const char* value)
{
    static constexpr struct {
        const char* word;
        void (*press)(const char* value);
    } keys[] = {
        {"Editing Xpt Assign@Insert", press_insert},
        {"Editing Xpt Assign@Overwrite", press_overwrite},
        {"Editing Xpt Assign@Delete", press_delete},
        {"Editing Xpt Assign@Default", press_default},
        {"Assign@Video", press_video},
        {"Assign@Key", press_key},
        {"Inhibit", press_inhibit},
        {"V/K Pair Assign", press_pair},
        {"Shift Mode Setting", press_shift},
        {"Table", press_table},
    };
    char own[CMD_SIZE];
    PrintText(own, "LOCAL@%s@", xp.table->word);
    if (!BeginsWith(cmd, own))
        return 0;
    for (const auto& key : keys)
        if (Same(cmd + strlen(own), key.word))
            key.press(value);
    return 0;
}

static int xpt_answered(int pane, int result)
{
    constexpr int yes = 1;
    if (xp.question == 0 || pane != xp.question)
        return 0;
    xp.question = 0;
    if (result == yes)
        put_default();
    return 0;
}

// --- Tallies ---

static void show_index(int index)
{
    const int row = index - xp.table->first - 1;
    if (row < 0 || row >= xp.table->buttons)
        return;
    show_button(row);
    (void)LS_RedrawData(LIST_BUTTONS);
}

static void take_assign(const char* value)
{
    Parts p;
    if (SplitValue(p, value, 3) < 2)
        return;
    const int index = Index(p.v[0], INDICES);
    if (index < 0)
        return;
    xp.video[index] = std::max(0, Index(p.v[1], THINGS));
    xp.key[index] = std::max(0, Index(p.v[2], THINGS));
    show_index(index);
}

static void take_flag(int (&flags)[INDICES], const char* value)
{
    Parts p;
    const int index = SplitValue(p, value, 2) == 2 ? Index(p.v[0], INDICES) : -1;
    if (index < 0)
        return;
    flags[index] = IsTrue(p.v[1]);
    show_index(index);
}

static void take_inhibit(const char* value)
{
    take_flag(xp.is_inhibited, value);
}

static void take_side_flag(const char* value)
{
    take_flag(xp.has_side_flag, value);
}

static void take_pair(const char* value)
{
    xp.is_pair = IsTrue(value) != 0;
    show_keys();
}

// A button of the panel was pressed.
static void take_button_no(const char* value)
{
    const int row = IndexFrom1(value, xp.table->first + xp.table->buttons) - xp.table->first;
    if (row >= 0)
        (void)LS_SetNowLine(LIST_BUTTONS, row);
}

namespace
{
// What only crosspoints have beside their lines.
struct Beside {
    const char* path;
    void (*take)(const char* value);
    bool is_kept; // followed all the time
};
constexpr Beside beside[] = {
    {XPT "Inhibit", take_inhibit, false},
    {XPT "Side Flags Button Assign", take_side_flag, false},
    {PAIR, take_pair, true},
    {XPT "Button No", take_button_no, true},
};
} // namespace

static int xpt_tally(const char* path, const char* value)
{
    if (Same(path, xp.path))
        take_assign(value);
    for (const Beside& b : beside)
        if (xp.table->has_key && Same(path, b.path))
            b.take(value);
    return 0;
}

// --- The page ---

static int xpt_redraw()
{
    if (!xp.redraw)
        return 0;
    xp.redraw = false;
    return TDL_Put(ARROW_X, ARROW_Y, G_hidariya);
}

static int xpt_renamed()
{
    show_buttons();
    show_things();
    return 0;
}

static int pc_engsetup_panel_xpttable_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return (void)xpt_redraw(), 0;
    case MSG_TALLY: return xpt_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return xpt_button(Text(ax), Text(bx));
    case LMSG_PANEQUIT: return xpt_answered(int(ax), int(bx));
    case LMSG_XPTSRCCHANGE: return xpt_renamed();
    default: return 0;
    }
}

// What is followed all the time is only asked for.
static void subscribe(int on)
{
    const char* const verb = on ? "add" : "remove";
    if (!xp.table->has_key)
        Net_SendCommandFormat("%s %s", verb, xp.path);
    else if (on)
        Net_SendCommandFormat("read %s", xp.path);
    for (const Beside& b : beside) {
        if (!xp.table->has_key || (b.is_kept && !on))
            continue;
        Net_SendCommandFormat("%s %s", b.is_kept ? "read" : verb, b.path);
    }
}

static int pc_engsetup_panel_xpttable_create(int on, uint32_t var)
{
    if (!on && xp.table)
        subscribe(0);
    xp = {};
    if (!on || var >= XPT_TABLES)
        return !on;
    xp.table = &tables[var];
    make_path();
    show_buttons();
    show_things();
    (void)LS_SetNowLine(LIST_BUTTONS, 0);
    (void)LS_SetNowLine(LIST_THINGS, 0);
    show_keys();
    xp.redraw = true;
    subscribe(1);
    return 0;
}

const PC_TBL pc_engsetup_panel_xpttable = {.proc_func = pc_engsetup_panel_xpttable_proc,
                                           .create_func = pc_engsetup_panel_xpttable_create};

// --- Copies between the sides ---

#define LOCAL_COPY "LOCAL@Xpt Assign@Copy"

namespace
{
struct CopyRow {
    char number[8] = "";
};
} // namespace

static struct {
    CopyRow row[BUTTONS] = {};
    char order[32] = ""; // "Main,Sub", while it is asked about
    int question = 0;
} cp; // valid from create(1) to create(0)

static const char* source_at(const int (&assign)[BUS_XPT_SRC], int index)
{
    const int source = index < BUS_XPT_SRC ? assign[index] : 0;
    return source > 0 && source < BUS_XPT_SRC && BUS_XptSrc[source] ? BUS_XptSrc[source] : "";
}

static int show_copy()
{
    for (int row = 0; row < BUTTONS; row++) {
        const int main = row + 1, sub = row + 1 + SUB_FIRST;
        PrintText(cp.row[row].number, "%d", row + 1);
        (void)LS_SetData(LIST_BUTTONS, row, 0, cp.row[row].number);
        (void)LS_SetData(LIST_BUTTONS, row, 1, source_at(SYS_XptAssignV, main));
        (void)LS_SetData(LIST_BUTTONS, row, 2, source_at(SYS_XptAssignK, main));
        (void)LS_SetData(LIST_BUTTONS, row, 3, source_at(SYS_XptAssignV, sub));
        (void)LS_SetData(LIST_BUTTONS, row, 4, source_at(SYS_XptAssignK, sub));
    }
    (void)LS_SetNData(LIST_BUTTONS, BUTTONS);
    (void)LS_RedrawData(LIST_BUTTONS);
    return 0;
}

static int copy_button(const char* cmd, const char* value)
{
    if (!Same(cmd, LOCAL_COPY))
        return 0;
    const bool is_to_sub = Same(value, "Main to Sub");
    CopyText(cp.order, is_to_sub ? "Main,Sub" : "Sub,Main");
    cp.question =
        PaneYesNo_Create("Copy", PANE_ALERT,
                         is_to_sub ? "The sub button table will be overwritten.\n\nContinue?"
                                   : "The main button table will be overwritten.\n\nContinue?");
    return 0;
}

static int copy_answered(int pane, int result)
{
    constexpr int yes = 1;
    if (cp.question == 0 || pane != cp.question)
        return 0;
    cp.question = 0;
    if (result == yes)
        Net_SendCommandFormat("put " XPT "Copy#%s", cp.order);
    return 0;
}

static int copy_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case LMSG_BTNSEL: return copy_button(Text(ax), Text(bx));
    case LMSG_PANEQUIT: return copy_answered(int(ax), int(bx));
    case LMSG_XPTSRCCHANGE:
    case LMSG_XPTASSIGNCHANGE: return show_copy();
    default: return 0;
    }
}

static int copy_create(int on, uint32_t)
{
    cp = {};
    return on ? show_copy() : 1;
}

const PC_TBL pc_engsetup_panel_xptassign_copy = {.proc_func = copy_proc,
                                                 .create_func = copy_create};
