// The list of signals of a key: what the fill bus and what the source bus of the key carry. Which
// of the two a touch assigns is a choice of the page, GL_FillSourceAssignMode; the row of the
// chosen bus is the selected one, and two columns mark both. Signals go by their names.
#include "a_ba.h"
#include "a_ls.h"
#include "a_st.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "pc_me.h"
#include "pc_me_key.h"
#include "tally_value.h"
#include "text.h"
#include "safeguards.h"

#define LOCAL_ASSIGN "LOCAL@M/E@Key@Signal@Assign"

namespace
{
enum Bus : int { FILL = 0, SOURCE = 1, BUSES = 2 }; // as GL_FillSourceAssignMode
constexpr const char* bus_words[BUSES] = {"Fill", "Source"};

constexpr int LIST = 1;
enum : int { COL_NUMBER = 0, COL_NAME = 1, COL_FILL = 2, COL_SOURCE = 3 };
constexpr const char* MARK = "O";
constexpr int NAME_SIZE = 64;

struct Signal {
    char number[8] = "";
    char name[NAME_SIZE] = "";
};
} // namespace

static struct {
    char SignalCmd[BUSES][CMD_SIZE] = {}; // "M/E-1@Key1@Type@Signal Select@Fill"
    char KeySourceCmd[CMD_SIZE] = "";     // told to the cells of the page
    char Assigned[BUSES][NAME_SIZE] = {}; // names; "" until the tally
    Signal signal[BUS_XPT_SRC] = {};      // the texts of the rows: the list keeps pointers
    int count = 0;
} FillSource; // valid from create(1) to create(0)

static Bus bus_to_assign()
{
    return GL_FillSourceAssignMode == SOURCE ? SOURCE : FILL;
}

// --- The list ---

static bool is_assigned(int bus, int row)
{
    return Same(FillSource.Assigned[bus], FillSource.signal[row].name);
}

// A name that is not in the list selects nothing.
static void show_assigned()
{
    bool is_found = false;
    for (int row = 0; row < FillSource.count; row++) {
        LS_SetData(LIST, row, COL_FILL, is_assigned(FILL, row) ? MARK : nullptr);
        LS_SetData(LIST, row, COL_SOURCE, is_assigned(SOURCE, row) ? MARK : nullptr);
        if (is_found || !is_assigned(bus_to_assign(), row))
            continue;
        is_found = true;
        LS_SetSelected(LIST, row, -1, 1); // already selected is fine: the window stays
    }
    LS_SetNowLineDisable(!is_found);
}

static void fill_list()
{
    FillSource.count = 0;
    for (int i = 0; i < BUS_XPT_SRC; i++) {
        if (!BUS_XptSrc[i] || !BUS_XptSrc[i][0])
            continue;
        const int row = FillSource.count++;
        Signal& s = FillSource.signal[row];
        PrintText(s.number, "%d", i);
        CopyText(s.name, BUS_XptSrc[i]);
        LS_SetData(LIST, row, COL_NUMBER, s.number);
        LS_SetData(LIST, row, COL_NAME, s.name);
    }
    LS_SetNData(LIST, FillSource.count);
    show_assigned();
}

// --- Which bus ---

static void assign_to(Bus bus)
{
    GL_FillSourceAssignMode = bus;
    ME_Mirror(LOCAL_ASSIGN "#%s", bus_words[bus]);
    GL_ST_area_update_draw(); // the cells of the two buses are lit by it
    show_assigned();
}

static int fillsource_press(const char* path, const char* value)
{
    if (Same(path, LOCAL_ASSIGN))
        assign_to(Same(value, bus_words[SOURCE]) ? SOURCE : FILL);
    return 0;
}

// --- Messages ---

static int fillsource_tally(const char* path, const char* value)
{
    if (Same(path, FillSource.KeySourceCmd)) // a self key has no use for its source bus
        LS_HeaderDisable(LIST, COL_SOURCE, Same(value, "Self"));
    for (int bus = 0; bus < BUSES; bus++)
        if (Same(path, FillSource.SignalCmd[bus])) {
            CopyText(FillSource.Assigned[bus], value);
            show_assigned();
        }
    return 0;
}

static int fillsource_touch(int row)
{
    if (row < 0 || row >= FillSource.count || BA_IsDefaultButton()) // an armed key takes no touch
        return 0;
    Net_SendCommandFormat("put %s#%s", FillSource.SignalCmd[bus_to_assign()],
                          FillSource.signal[row].name);
    return 0;
}

static int fillsource_renamed()
{
    fill_list();
    return 0;
}

static int pc_me_key_fillsource_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return fillsource_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return fillsource_press(Text(ax), Text(bx));
    case LMSG_LISTSEL: return fillsource_touch(int(bx));
    case LMSG_XPTSRCCHANGE: return fillsource_renamed();
    default: return 0;
    }
}

static void subscribe(const char* verb)
{
    for (const char* path : FillSource.SignalCmd)
        Net_SendCommandFormat("%s %s", verb, path);
}

static int pc_me_key_fillsource_create(int on, uint32_t)
{
    if (!on) {
        subscribe("remove");
        return 1;
    }
    FillSource = {};
    for (int bus = 0; bus < BUSES; bus++)
        PrintText(FillSource.SignalCmd[bus], "%s@%s@Type@Signal Select@%s", GL_NowTree[0],
                  GL_NowTree[1], bus_words[bus]);
    PrintText(FillSource.KeySourceCmd, "%s@%s@Type@Key Source", GL_NowTree[0], GL_NowTree[1]);
    subscribe("add");
    fill_list();
    assign_to(bus_to_assign());
    return 0;
}

const PC_TBL pc_me_key_fillsource = {pc_me_key_fillsource_proc, pc_me_key_fillsource_create};
const PC_TBL pc_me_key_fillsource_new = {pc_me_key_fillsource_proc, pc_me_key_fillsource_create};
