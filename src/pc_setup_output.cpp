#include "pc_setup_output.h"
#include "a_bt.h"
#include "command.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "pc_engsetup_sys.h"
#include "setup_page.h"
#include "tally_value.h"
#include "text.h"
#include <cstring>
#include <iterator>

#include "safeguards.h"

#define OUTPUT "Engineering Setup@Switcher@Output@"
#define FC_LEVEL "Engineering Setup@Switcher@Device Interface@GPI Input@H/L Set@FC Input/Output@"

namespace
{
struct outassign {
    char number[8];
    char bus[16];
    char fc[8]; // the format converter that it goes through, "0" none
    char source[20];
    char inhibit[8];
    char link[8]; // the GPI input that works that converter
};
enum : int { FLD_BUS, FLD_FC, FLD_SOURCE, FLD_INHIBIT, FLD_LINK, FLD_NUMBER };
} // namespace

static constexpr int OUTPUTS = 48;
static constexpr int PORTS = 8;
static constexpr int BUSES = SETUP_OFFER;

static outassign OutAssign[OUTPUTS];
static outassign OutAssignTly[OUTPUTS];
static int rows_used = 0;
static SETUPSTATE state;

static struct {
    char bus[16] = ""; // that Set gives
    char caption[32] = "";
    int pane = 0;               // choice of the bus
    int fc_of_port[PORTS] = {}; // converter that the level of a GPI input works, 0 none
    char name[BUSES][16] = {};
} oa;

static constexpr SETUPWORD words_inhibit[] = {{"true", "Inhibit"}, {"false", "---"}, {}};
static constexpr SETUPFIELD fields[] = {
    {SETUP_CELL(outassign, bus), .path = OUTPUT "Assign", .part = 1, .column = 1},
    {SETUP_CELL(outassign, fc), .path = OUTPUT "Assign", .part = 2},
    {SETUP_CELL(outassign, source), .path = OUTPUT "Source", .part = 1, .column = 2, .is_put = 0},
    {SETUP_CELL(outassign, inhibit), .path = OUTPUT "Inhibit", .part = 1, .column = 3,
     .words = words_inhibit},
    {SETUP_CELL(outassign, link), .column = 4},
    {SETUP_CELL(outassign, number), .column = 0},
};

static int outputs(const char** keys, int max)
{
    static char numbers[OUTPUTS][4];
    int n = 0;
    for (; n < OUTPUTS && n < max; n++) {
        PrintText(numbers[n], "%d", n + 1);
        keys[n] = numbers[n];
    }
    return n;
}

static void changed();

static constexpr SETUPTABLE page = {
    .work = OutAssign,
    .tally = OutAssignTly,
    .rows = &rows_used,
    .state = &state,
    .row_size = sizeof(outassign),
    .max = OUTPUTS,
    .fields = fields,
    .field_count = std::size(fields),
    .keys = outputs,
    .list = 1,
    .btn_clear = BTN_SETUP_CLEAR,
    .btn_execute = BTN_SETUP_EXECUTE,
    .clear = OUTPUT_LOCAL("Clear"),
    .changed = changed,
};

static bool is_inhibited(int row)
{
    return Same(SetupPage_Text(page, row, FLD_INHIBIT), words_inhibit[0].text);
}

// Which GPI input works the converter of each row. The table is laid out anew where that is another
// one than before: of the hundreds of tallies that open the page few change any.
static void show_links()
{
    bool is_other = false;
    for (int row = 0; row < rows_used; row++) {
        const int fc = Decimal(SetupPage_Text(page, row, FLD_FC));
        char link[sizeof OutAssign[row].link] = "";
        for (int port = 0; port < PORTS; port++)
            if (fc > 0 && oa.fc_of_port[port] == fc)
                PrintText(link, "%d", port + 1);
        is_other = is_other || !Same(link, OutAssign[row].link);
        CopyText(OutAssign[row].link, link);
    }
    if (is_other)
        SetupPage_Show(page);
}

static void changed()
{
    (void)BT_SetDisable(BTN_OUTPUT_SET, oa.bus[0] == '\0');
    (void)BT_SetStatus(BTN_OUTPUT_INHIBIT, is_inhibited(state.cursor) ? BT_ON : BT_OFF);
}

// --- The bus in hand ---

static int list_buses(const char* const* banks, size_t count, int n)
{
    static constexpr const char* sides[] = {"PGM", "PVW", "CLN", "K-PVW"};
    for (size_t i = 0; i < count; i++)
        for (const char* side : sides)
            if (n < BUSES)
                PrintText(oa.name[n++], "%s %s", banks[i], side);
    return n;
}

static void ask_bus()
{
    static constexpr const char* banks[] = {"M/E-1", "M/E-2", "M/E-3", "M/E-4", "M/E-5", "P/P"};
    static char captions[BUSES][16];
    constexpr int columns = 8;
    BTNSEL cells[BUSES];
    int n = 0;
    for (; n < OUTPUTS; n++)
        PrintText(oa.name[n], "AUX%d", n + 1);
    n = list_buses(banks, std::size(banks), n);
    for (int i = 0; i < n; i++) {
        CopyText(captions[i], oa.name[i]);
        if (char* const blank = strchr(captions[i], ' '))
            *blank = '\n';
        cells[i] = {i + 1, captions[i], Same(oa.name[i], oa.bus)};
    }
    oa.pane = PanePopup_Create((n + columns - 1) / columns, columns, cells);
}

static void show_bus()
{
    PrintText(oa.caption, "Output\nAssign\n%s", oa.bus);
    (void)BT_SetCaption(BTN_OUTPUT_BUS, oa.caption);
}

static int pane_closed(int pane, int result)
{
    if (pane == 0 || pane != oa.pane)
        return 0;
    oa.pane = 0;
    if (result >= 1 && result <= BUSES)
        CopyText(oa.bus, oa.name[result - 1]);
    show_bus();
    changed();
    return 1;
}

// --- Buttons ---

static void set_bus()
{
    int refused = 0;
    for (int n = 0, row; (row = SetupPage_Selected(page, n)) >= 0; n++) {
        if (is_inhibited(row))
            refused++;
        else
            SetupPage_Set(page, row, FLD_BUS, oa.bus);
    }
    if (refused > 0)
        (void)PaneMessage_Create("Output Assign", PANE_ALERT,
                                 refused == 1 ? "The output is inhibited."
                                              : "Some outputs are inhibited.");
}

static void toggle_inhibit()
{
    const int on = !is_inhibited(state.cursor);
    for (int n = 0, row; (row = SetupPage_Selected(page, n)) >= 0; n++)
        SetupPage_Set(page, row, FLD_INHIBIT, words_inhibit[on ? 0 : 1].text);
}

static void put_inhibits(bool on)
{
    for (int row = 0; row < rows_used; row++)
        if (is_inhibited(row) == on &&
            !Same(SetupPage_Text(page, row, FLD_INHIBIT), SetupPage_Told(page, row, FLD_INHIBIT)))
            Net_SendCommandFormat("put " OUTPUT "Inhibit#%d,%s", row + 1, Bool(on));
}

// An output is freed before it changes, and kept afterwards.
static void execute()
{
    put_inhibits(false);
    SetupPage_Put(page, 1u << FLD_BUS | 1u << FLD_FC);
    put_inhibits(true);
}

static int button(const char* cmd)
{
    static constexpr struct {
        const char* cmd;
        void (*press)();
    } presses[] = {
        {OUTPUT_LOCAL("Output Assign"), ask_bus},
        {OUTPUT_LOCAL("Set"), set_bus},
        {OUTPUT_LOCAL("Inhibit"), toggle_inhibit},
        {OUTPUT_LOCAL("Execute"), execute},
    };
    for (const auto& p : presses)
        if (Same(cmd, p.cmd)) {
            p.press();
            return 1;
        }
    return 0;
}

// "FC3,Input,Output"
static int take_level(const char* path, const char* value)
{
    if (!BeginsWith(path, FC_LEVEL))
        return 0;
    const int port = IndexFrom1(path + strlen(FC_LEVEL), PORTS);
    if (port < 0)
        return 0;
    oa.fc_of_port[port] = BeginsWith(value, "FC") ? Decimal(value + strlen("FC")) : 0;
    show_links();
    return 1;
}

static int pc_engsetup_switcher_output_assign_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (!state.is_open)
        return 0;
    if ((msg == LMSG_BTNSEL && button(Text(ax))) ||
        (msg == LMSG_PANEQUIT && pane_closed(int(ax), int(bx))) ||
        (msg == MSG_TALLY && take_level(Text(ax), Text(bx))))
        return 0;
    if (SetupPage_Proc(page, msg, ax, bx) && msg == MSG_TALLY)
        show_links();
    return 0;
}

static void follow_levels(const char* verb)
{
    for (int port = 1; port <= PORTS; port++)
        Net_SendCommandFormat("%s " FC_LEVEL "%d", verb, port);
}

static int pc_engsetup_switcher_output_assign_create(int on, uint32_t)
{
    if (!on) {
        follow_levels("remove");
        SetupPage_Close(page);
        return 1;
    }
    oa.pane = 0;
    for (int& fc : oa.fc_of_port)
        fc = 0;
    SetupPage_Open(page);
    follow_levels("add");
    show_bus();
    changed();
    return 0;
}

const PC_TBL pc_engsetup_switcher_output_assign = {
    .proc_func = pc_engsetup_switcher_output_assign_proc,
    .create_func = pc_engsetup_switcher_output_assign_create};

void SetupOutput_Reset()
{
    SetupPage_Forget(page);
    CopyText(oa.bus, "");
    oa.pane = 0;
}
