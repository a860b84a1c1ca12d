// The crosspoint hold of a snapshot: which buses its recall leaves alone. The page shows the
// register at the cursor of the attribute page, of the reference region, and writes to all selected
// regions of that sort. What is shown comes back from the server; what is written goes on from what
// was written last, so that quick touches do not take each other back.
#include "a_ls.h"
#include "bus.h"
#include "colours.h"
#include "device.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "pane.h"
#include "pc_register.h"
#include "pc_snapshot.h"
#include "pc_snapshot_hold.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include "safeguards.h"

#define EIGHTH_ROW "@Main/Sub Assign@8th Row"
#define SECOND_COLOR "@Type@Matte Adjust@Color 2"
#define XPT_HOLD "LOCAL@Snapshot@Attribute@Xpt Hold@"

namespace
{
constexpr int LIST = 1;
constexpr int COL_BUS = 0, COL_MARK = 1;
constexpr int FONT_HEAD = 3;
constexpr Rect HEAD = {100, 372, 560, 392};
constexpr char ON[] = "ON";

struct XPTHOLD {
    char name[16] = "";
    int mark = 0; // first of the marks of the row
};
} // namespace

static XPTHOLD XptHold[HOLD_RTR_ROWS]; // the rows of the list
static char marks[HOLD_MARKS_MAX];     // as the server said last
static char written[HOLD_MARKS_MAX];   // with what has been sent since

static struct {
    bool is_open = false;
    bool is_router = false;
    int region = 0;
    int no = 0;
    int rows = 0;
    bool has_utility3 = true; // until the system says that it has none
    bool has_dme2 = true;
    int cursor = -1; // as looked at last
    bool head_redraw = false;
} xh; // valid from create(1) to create(0)

static const RegisterKind& kind()
{
    return register_kinds[REGKIND_SNAPSHOT];
}

// --- Names of the buses ---

static void add_row(int mark, const char* name)
{
    CopyText(XptHold[xh.rows].name, name);
    XptHold[xh.rows++].mark = mark;
}

static void add_numbered(int mark, const char* word, int number)
{
    char name[16];
    PrintText(name, "%s %d", word, number);
    add_row(mark, name);
}

static void add_run(int mark, const char* word, int n)
{
    for (int i = 0; i < n; i++)
        add_numbered(mark + i, word, i + 1);
}

static void name_bank(int bank, bool is_sub)
{
    if (!is_sub) {
        add_row(HOLD_A, "BKGD A");
        add_row(HOLD_B, "BKGD B");
    }
    add_run(HOLD_KEY1, "Key", snapshot_xpthold_keys(bank));
    if (SYS_RefPnlType == DEVTYPE_QRD33)
        add_row(HOLD_U1, "Util");
    else
        add_numbered(HOLD_U1, "Util", 1);
    add_row(HOLD_U2, "Util 2");
    if (xh.has_utility3 || marks[HOLD_U3]) // what is held can be released
        add_numbered(HOLD_U3, "Util", 3);
    if (xh.has_dme2 || marks[HOLD_D2])
        add_row(HOLD_D2, "DME 2nd Video");
}

static void name_user()
{
    constexpr int CCR = 2, FM = 8, MON = 2;
    static_assert(HOLD_USER_AUX + CCR + FM + MON == HOLD_USER_BUSES);
    add_run(0, "Aux", HOLD_USER_AUX);
    add_run(HOLD_USER_AUX, "CCR", CCR);
    add_run(HOLD_USER_AUX + CCR, "FM", FM);
    add_run(HOLD_USER_AUX + CCR + FM, "Mon", MON);
}

static void name_rows()
{
    xh.rows = 0;
    if (xh.region == SS_REGION_RTR)
        for (int row = 0; row < HOLD_RTR_ROWS; row++)
            add_numbered(row * HOLD_RTR_LEVELS, "RTR", row + 1);
    else if (xh.region >= SS_REGION_DME1)
        add_row(0, "Fv Fk Bv Bk");
    else if (xh.region >= SS_REGION_USER1)
        name_user();
    else if (xh.region >= SS_REGION_ME1_SUB)
        name_bank(xh.region - SS_REGION_ME1_SUB, true);
    else
        name_bank(xh.region, false);
}

// --- The list ---

static void show_row(int row)
{
    const int columns = xh.is_router ? HOLD_RTR_LEVELS : 1;
    (void)LS_SetData(LIST, row, COL_BUS, XptHold[row].name);
    for (int col = 0; col < columns; col++)
        (void)LS_SetData(LIST, row, COL_MARK + col, marks[XptHold[row].mark + col] ? ON : "");
}

static void xpthold_xh_set()
{
    RegisterLine line;
    (void)RegisterKind_Line(kind(), xh.region, xh.no, &line); // an empty one holds nothing
    (void)snapshot_xpthold_set(xh.region, line.xpthold_tly, marks);
    std::copy(std::begin(marks), std::end(marks), written);
    name_rows();
    (void)LS_SetNData(LIST, xh.rows);
    for (int row = 0; row < xh.rows; row++)
        show_row(row);
    (void)LS_RedrawData(LIST);
    xh.cursor = -1;
    xh.head_redraw = true;
}

// The keys show the row at the cursor.
static void xpthold_buttons()
{
    const int first = XptHold[xh.cursor].mark;
    const int columns = xh.is_router ? HOLD_RTR_LEVELS : 1;
    const bool is_held =
        std::any_of(marks + first, marks + first + columns, [](char mark) { return mark != 0; });
    SendDummyTally(is_held ? XPT_HOLD "Xpt Hold#ON" : XPT_HOLD "Xpt Hold#OFF");
}

// --- Keys ---

// The selected regions whose hold is written in the same way.
static uint64_t mask_of_sort()
{
    uint64_t mask = 0;
    const int id = SnapshotRegion[xh.region].id;
    for (int i = 0; SnapshotRegion[i].id != 0; i++)
        if (PaneRegion_IsSelected(kind().group(), SnapshotRegion[i].id) &&
            Region_IsSameSort(SnapshotRegion[i].id, id) &&
            snapshot_xpthold_marks(i) == snapshot_xpthold_marks(xh.region))
            mask |= SnapshotRegion[i].bitmap;
    return mask ? mask : SnapshotRegion[xh.region].bitmap;
}

static void mark_row(int row, bool on)
{
    const int first = XptHold[row].mark;
    for (int level = 0; level < (xh.is_router ? HOLD_RTR_LEVELS : 1); level++)
        if (!xh.is_router || PaneRTRLvl_IsSelected(level))
            written[first + level] = on;
}

static void xpthold_xpthold_sel(bool on)
{
    if (Register_Lock_Snapshot(xh.region, xh.no))
        return;
    for (int i = 0, row; (row = LS_GetSelected(LIST, i)) >= 0; i++)
        mark_row(row, on);
    char text[HOLD_TEXT_SIZE];
    snapshot_xpthold_text(xh.region, written, text, sizeof text);
    RegisterCmd_Attribute(kind(), "Snapshot@Snapshot@Attribute@Xpt Hold",
                          {mask_of_sort(), xh.no + 1, xh.no + 1}, text);
}

// The columns of the levels that the keys act on have a bright title.
static void show_levels()
{
    for (int level = 0; xh.is_router && level < HOLD_RTR_LEVELS; level++)
        (void)LS_HeaderDisable(LIST, COL_MARK + level, !PaneRTRLvl_IsSelected(level));
    (void)LS_RedrawData(LIST);
}

static int button_pressed(const char* path, const char* value)
{
    if (Same(path, XPT_HOLD "Xpt Hold"))
        xpthold_xpthold_sel(Same(value, ON));
    else if (Same(path, XPT_HOLD "Level"))
        (void)PaneRTRLvl_Create(0);
    return 0;
}

// --- Drawing ---

static void draw_head()
{
    char text[64];
    TDL_FillRectS(HEAD.x1, HEAD.y1, HEAD.x2, HEAD.y2, BLACK);
    PrintText(text, "%s   %d  %s%s", SnapshotRegion[xh.region].caption, xh.no + 1,
              Register_Name_Snapshot(xh.region, xh.no),
              Register_Lock_Snapshot(xh.region, xh.no) ? "   Lock" : "");
    TDL_SymbolS(HEAD.x1 + 4, HEAD.y1 + 4, text, FONT_HEAD, WHITE);
    TDL_UpdateRect(HEAD.x1, HEAD.y1, HEAD.x2, HEAD.y2);
}

static int xpthold_redraw()
{
    const int cursor = std::clamp(LS_GetNowLine(LIST), 0, xh.rows - 1);
    if (cursor != xh.cursor) {
        xh.cursor = cursor;
        xpthold_buttons();
    }
    if (xh.head_redraw)
        draw_head();
    xh.head_redraw = false;
    return 0;
}

// --- The two buses that not every system has ---

// The third utility bus has its keys in the eighth row of the panel; a second picture from the
// effects unit needs keys with two colours.
static void ask_for_extra_buses()
{
    if (xh.region > SS_REGION_PP_SUB)
        return;
    Net_SendCommandFormat("read Engineering Setup@Panel@Config@MP2 Main/Sub Assign" EIGHTH_ROW);
    Net_SendCommandFormat("read %s@Key1" SECOND_COLOR, SnapshotRegion[xh.region].cmd);
}

static bool ends_with(const char* path, const char* end)
{
    const size_t length = strlen(path), end_length = strlen(end);
    return length >= end_length && Same(path + length - end_length, end);
}

static int take_tally(const char* path, const char* value)
{
    const bool is_row = ends_with(path, EIGHTH_ROW);
    if (xh.region > SS_REGION_PP_SUB || (!is_row && !ends_with(path, SECOND_COLOR)))
        return 0;
    bool& has_bus = is_row ? xh.has_utility3 : xh.has_dme2;
    const bool is_there = !Same(value, "None") && !Same(value, "Off") && !Same(value, "false");
    if (has_bus == is_there)
        return 0;
    has_bus = is_there;
    xpthold_xh_set();
    return 0;
}

// --- Messages ---

static int register_changed(int changed, int row, int no)
{
    if (changed == REGISTER_SNAPSHOT && row == xh.region && no == xh.no)
        xpthold_xh_set();
    return 0;
}

static int xpthold_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    if (!xh.is_open)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return xpthold_redraw();
    case MSG_TALLY: return take_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return button_pressed(Text(ax), Text(bx));
    case LMSG_REGISTER: return register_changed(int(ax), int(bx), int(cx));
    case LMSG_PANEQUIT: show_levels(); return 0;
    default: return 0;
    }
}

static int xpthold_create(int on, uint32_t is_router)
{
    if (!on) {
        if (xh.is_open)
            Register_StatusReport(0);
        xh.is_open = false;
        return 0;
    }
    const RegisterMemory& m = RegisterPage_Memory(REGKIND_SNAPSHOT);
    xh = {.is_open = true, .is_router = is_router != 0};
    xh.no = std::clamp(m.sel1, 0, REGISTERS - 1);
    // A page number that was typed may ask for the list of another sort.
    xh.region = is_router || m.region1 == SS_REGION_RTR ? int(SS_REGION_RTR) : m.region1;
    if (!xh.is_router && xh.region == SS_REGION_RTR)
        xh.region = SS_REGION_ME1;
    Register_StatusReport(1);
    constexpr int ALL_LEVELS = (1 << HOLD_RTR_LEVELS) - 1;
    if (PaneRTRLvl_Selected() == 0) // none yet: the keys act on all
        PaneRTRLvl_SetSelect(ALL_LEVELS);
    show_levels();
    xpthold_xh_set();
    ask_for_extra_buses();
    (void)LS_SetNowLine(LIST, 0);
    return 0;
}

const PC_TBL pc_snapshot_xpthold = {xpthold_proc, xpthold_create};
