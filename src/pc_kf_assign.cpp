// The Timeline Assign page: the order of the regions at the left, all regions of the system at the
// right. The order lives in a_kf and takes effect at once; the server is given it when the page
// closes.
#include "a_bt.h"
#include "a_kf.h"
#include "a_ls.h"
#include "bus.h"
#include "command.h"
#include "global.h"
#include "message.h"
#include "netio.h"
#include "pc_kf.h"
#include "text.h"
#include <cstring>
#include "safeguards.h"

#define LOCAL_ASSIGN "LOCAL@Key Frame@Timeline Assign@"
#define OPERATION_SETUP "Info@Operation Setup Data@"

namespace
{
constexpr int LIST_ORDER = 1;
constexpr int LIST_REGIONS = 2;
enum : int { COL_NUMBER = 0, COL_REGION = 1, COL_DISPLAY = 2 };
enum : int { CLASS_USUAL = 0, CLASS_GREY = 1 };
constexpr int BTN_DISPLAY = 50;

struct Numbers {
    char text[KF_REGIONS][4];
};
} // namespace

static Numbers numbers;                     // "1" to "64", for the cells
static int TlAssign_RegionList[KF_REGIONS]; // the region of each row at the right
static int TlAssign_Regions = 0;            // rows in use

static void print_numbers()
{
    for (int i = 0; i < KF_REGIONS; i++)
        CopyText(numbers.text[i], NumStr(i + 1));
}

// --- The lists ---

static void set_order_row(int row, const char* number, const char* name, const char* display)
{
    LS_SetData(LIST_ORDER, row, COL_NUMBER, number);
    LS_SetData(LIST_ORDER, row, COL_REGION, name);
    LS_SetData(LIST_ORDER, row, COL_DISPLAY, display);
}

// Behind the last region stays an empty row, where a region can be put at the end.
static void fill_order()
{
    int row = 0;
    for (; row < KF_REGIONS; row++) {
        const int region = KF_GetRegionPriority(row);
        if (region == KF_NO_REGION)
            break;
        set_order_row(row, numbers.text[row], KF_GetRegionName(region),
                      KF_GetRegionDisplay(region) == KF_SHOWN ? "ON" : "");
    }
    if (row < KF_REGIONS)
        set_order_row(row++, "", "", "");
    LS_SetNData(LIST_ORDER, row);
    LS_RedrawData(LIST_ORDER);
}

static void fill_regions()
{
    TlAssign_Regions = 0;
    for (const int region : TlAssign_TBL_List) {
        if (!KF_IsRegionAssigned(region))
            continue;
        const int row = TlAssign_Regions++;
        TlAssign_RegionList[row] = region;
        LS_SetData(LIST_REGIONS, row, COL_NUMBER, numbers.text[row]);
        LS_SetData(LIST_REGIONS, row, COL_REGION, KF_GetRegionName(region));
    }
    LS_SetNData(LIST_REGIONS, TlAssign_Regions);
    LS_RedrawData(LIST_REGIONS);
}

static int order_cursor()
{
    return LS_GetNowLine(LIST_ORDER);
}

// KF_NO_REGION on the empty row.
static int region_at_cursor()
{
    return KF_GetRegionPriority(order_cursor());
}

static void show_button(const char* name, int on)
{
    char line[CMD_SIZE];
    PrintText(line, LOCAL_ASSIGN "%s#%s", name, Bool(on));
    SendDummyTally(line);
}

// While the selection decides what is shown, the operator's choice is grey.
static void show_mode()
{
    const int by_selection = GL_TimelineDisplayPriority != 0;
    LS_HeaderDisable(LIST_ORDER, COL_DISPLAY, by_selection);
    LS_SetVStatus(LIST_ORDER, COL_DISPLAY, by_selection ? CLASS_GREY : CLASS_USUAL);
    BT_SetDisable(BTN_DISPLAY, by_selection);
    show_button("Active Region", by_selection);
}

static void show_cursor()
{
    show_button("Display", KF_GetRegionDisplay(region_at_cursor()) == KF_SHOWN);
}

static void renew()
{
    KF_InitPriority();
    fill_order();
    show_cursor();
}

// --- The keys ---

static void press_active_region()
{
    GL_TimelineDisplayPriority = !GL_TimelineDisplayPriority;
    Net_SendCommandFormat("put " OPERATION_SETUP "Timeline Display Priority#%d",
                          GL_TimelineDisplayPriority);
    show_mode();
    renew();
}

static void press_display()
{
    const int region = region_at_cursor();
    const bool is_shown = KF_GetRegionDisplay(region) == KF_SHOWN;
    if (KF_SetRegionDisplay(region, is_shown ? KF_HIDDEN : KF_SHOWN) == 0)
        renew();
}

static void press_insert()
{
    const int row = LS_GetNowLine(LIST_REGIONS);
    if (row < 0 || row >= TlAssign_Regions)
        return;
    if (KF_InsertRegionPriority(order_cursor(), TlAssign_RegionList[row]) == 0)
        renew();
}

static void press_delete()
{
    if (KF_SetRegionDisplay(region_at_cursor(), KF_REMOVED) == 0)
        renew();
}

static void press_default()
{
    KF_DefaultRegionPriority();
    renew();
}

static int assign_press(const char* path)
{
    static constexpr struct {
        const char* path;
        void (*press)();
    } keys[] = {
        {LOCAL_ASSIGN "Active Region", press_active_region},
        {LOCAL_ASSIGN "Display", press_display},
        {LOCAL_ASSIGN "Priority@Insert", press_insert},
        {LOCAL_ASSIGN "Priority@Delete", press_delete},
        {LOCAL_ASSIGN "Priority@Default", press_default},
    };
    for (const auto& key : keys)
        if (strcmp(path, key.path) == 0)
            key.press();
    return 0;
}

// --- The page ---

static void save_order()
{
    for (int i = 0; i < KF_REGIONS; i++) {
        Net_SendCommandFormat("put " OPERATION_SETUP "Timeline Region Display#%d,%d", i + 1,
                              KF_GetRegionDisplay(i));
        Net_SendCommandFormat("put " OPERATION_SETUP "Timeline Region Priority#%d,%d", i + 1,
                              KF_GetRegionPriority(i));
    }
}

// Before the server has told which regions there are, the order is nobody's choice.
static int assign_create(int on, uint32_t)
{
    if (!on) {
        if (KF_IsAnyAssigned())
            save_order();
        return 0;
    }
    print_numbers();
    show_mode();
    fill_regions();
    renew();
    LS_SetNowLine(LIST_ORDER, 0);
    LS_SetNowLine(LIST_REGIONS, 0);
    return 0;
}

// Another panel has changed the mode.
static int assign_tally(const char* path)
{
    if (strcmp(path, OPERATION_SETUP "Timeline Display Priority") == 0) {
        show_mode();
        renew();
    }
    return 0;
}

static int assign_list(int list)
{
    if (list == LIST_ORDER)
        show_cursor();
    return 0;
}

static int assign_selection()
{
    fill_regions();
    renew();
    return 0;
}

// Another panel has changed the order, or the assignments have come.
static int assign_redraw()
{
    if (KF_IsOrderStale()) {
        fill_regions();
        renew();
    }
    return 0;
}

static int assign_proc(int msg, MsgArg ax, MsgArg, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_TALLY: return assign_tally(Text(ax));
    case MSG_REDRAW: return assign_redraw();
    case LMSG_BTNSEL: return assign_press(Text(ax));
    case LMSG_LISTSEL: return assign_list(int(ax));
    case LMSG_REGSELCHANGE: return assign_selection();
    default: return 0;
    }
}

const PC_TBL pc_keyframe_tlassign = {assign_proc, assign_create};
