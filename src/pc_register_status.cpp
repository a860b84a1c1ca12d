// The overview of a kind: a grid of all numbers, over the regions that hold them. What is done here
// goes to every region that holds the register, whatever the selector says.
#include "a_bt.h"
#include "a_nb.h"
#include "colours.h"
#include "message.h"
#include "pc_register.h"
#include "pc_register_list.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>
#include "safeguards.h"

namespace
{
constexpr int LINES = 10;
constexpr int FIRST = 1; // register 0 has no cell
constexpr int NAME_CHARS = 8;
constexpr int FONT_CELL = 0;  // eight letters in a cell
constexpr int FONT_TIGHT = 6; // eight wide ones
constexpr int FONT_LABEL = 2;
constexpr int FONT_NAME = 8;
constexpr Rect DETAIL = {100, 76, 701, 141};
constexpr int REGIONS_X = 226; // of the strip in it
constexpr int BTN_FROM = 52;
constexpr int BTN_TO = 53;

constexpr unsigned CELL_DATA = 0x005A6E;
constexpr unsigned CELL_NO_DATA = 0x14323C;
constexpr unsigned CELL_SELECTED = 0x00C8F0;
constexpr unsigned EMPTY_INK = 0x787878;

constexpr Rect CellRect(int number)
{
    const int x = 119 + 58 * (number / LINES);
    const int y = 164 + 26 * (number % LINES);
    return {x, y, x + 50, y + 20};
}

// Of a register, over all its regions.
struct Status {
    bool islock = false;
    bool isempty = true;
    char name[12] = "";
    uint64_t region_bitmap = 0; // that hold it
    uint64_t free_bitmap = 0;   // and are not locked
};
} // namespace

static struct {
    const RegisterKind* kind = nullptr; // null: no page of ours is open
    int StatusSel = FIRST;
    int FromBuf = 0; // 0: none yet
    Status status[REGISTERS + FIRST];
    bool redraw[REGISTERS + FIRST] = {};
    bool Status_Detail_Redraw = false;
    bool Status_Grid_Redraw = false; // labels and all
} rs;                                // valid from create(1) to create(0)

// --- What the mirror says ---

static void status_data_init(int number)
{
    const RegisterKind& kind = *rs.kind;
    const int no = number - FIRST;
    Status s;
    for (int region = 0; region < RegisterKind_Regions(kind); region++) {
        if (!RegisterKind_Exist(kind, region, no))
            continue;
        const uint64_t bits = kind.regions ? kind.regions[region].bitmap : 1;
        const bool is_locked = RegisterKind_Lock(kind, region, no) != 0;
        s.isempty = false;
        s.islock |= is_locked;
        s.region_bitmap |= bits;
        s.free_bitmap |= is_locked ? 0 : bits;
        if (*s.name == '\0')
            CopyText(s.name, RegisterKind_Name(kind, region, no));
    }
    rs.status[number] = s;
    rs.redraw[number] = true;
    rs.Status_Detail_Redraw |= number == rs.StatusSel;
}

static Status& selected()
{
    return rs.status[rs.StatusSel];
}

static void select(int number)
{
    number = std::clamp(number, FIRST, REGISTERS);
    rs.redraw[rs.StatusSel] = rs.redraw[number] = true;
    rs.StatusSel = number;
    rs.Status_Detail_Redraw = true;
    (void)NB_SetVar(1, number);
}

// --- Keys ---

static int recall_sel()
{
    if (!selected().isempty)
        RegisterCmd_Recall(*rs.kind, selected().region_bitmap, rs.StatusSel);
    return 0;
}

static int lock_sel()
{
    if (!selected().isempty)
        RegisterCmd_Lock(*rs.kind, selected().region_bitmap, rs.StatusSel, rs.StatusSel,
                         !selected().islock);
    return 0;
}

static int delete_sel_core(int number)
{
    if (rs.kind && rs.status[number].free_bitmap)
        RegisterCmd_Delete(*rs.kind, rs.status[number].free_bitmap, number, number);
    return 0;
}

static int delete_sel()
{
    if (selected().free_bitmap == 0)
        return 0;
    return CreateWindow(
        WINDOW_MESSAGE, rs.kind->delete_title,
        {.message = "This operation will cause the data to be\ndeleted.\n\nContinue?",
         .is_yes_no = true,
         .ok = delete_sel_core,
         .ok_var = rs.StatusSel});
}

static int rename_sel_core(const char* text)
{
    char name[NAME_CHARS + 1];
    CopyText(name, text);
    if (rs.kind && selected().free_bitmap && StrRegName(name))
        RegisterCmd_Rename(*rs.kind, selected().free_bitmap, rs.StatusSel, name);
    return 0;
}

static int rename_sel()
{
    if (selected().free_bitmap == 0)
        return 0;
    return CreateWindow(
        WINDOW_KEYBOARD, "Name",
        {.value = selected().name, .input_max = NAME_CHARS, .ok_text = rename_sel_core});
}

static void show_from()
{
    (void)BT_SetStatus(BTN_FROM, rs.FromBuf ? BT_THIRD : BT_OFF);
    BT_SetDisable(BTN_TO, rs.FromBuf == 0);
}

static int copy_from_sel()
{
    rs.FromBuf = selected().isempty || rs.FromBuf == rs.StatusSel ? 0 : rs.StatusSel;
    show_from();
    return 0;
}

// Shown at once; the lines of the server follow.
static void copy_row(int from, int to, bool wo_name)
{
    char name[sizeof rs.status[0].name];
    CopyText(name, wo_name ? rs.status[to].name : rs.status[from].name);
    rs.status[to] = rs.status[from];
    rs.status[to].islock = false;
    rs.status[to].free_bitmap = rs.status[to].region_bitmap;
    CopyText(rs.status[to].name, name);
    rs.redraw[to] = true;
    rs.Status_Detail_Redraw = true;
}

// A sub side that this system does not run: its registers are left as they are.
static bool status_region_sub_check(int region)
{
    const bool is_sub = region >= SS_REGION_ME1_SUB && region <= SS_REGION_PP_SUB;
    return rs.kind->regions && is_sub && !RegisterKind_IsInUse(*rs.kind, region);
}

static int copy_to_sel()
{
    const RegisterKind& kind = *rs.kind;
    const int from = rs.FromBuf, to = rs.StatusSel;
    const bool wo_name = RegisterPage_Memory(kind.kind).wo_name;
    if (from == 0 || from == to || selected().islock)
        return 0;
    rs.FromBuf = 0;
    show_from();
    for (int region = 0; region < RegisterKind_Regions(kind); region++)
        if (!status_region_sub_check(region) && RegisterKind_Exist(kind, region, from - FIRST))
            RegisterCmd_CopyInRegion(kind, region, from, to, wo_name);
    copy_row(from, to, wo_name);
    return 0;
}

// --- Drawing ---

static void draw_labels()
{
    constexpr int ROW_X = 105, ROW_Y = 171, COLUMN_X = 140, COLUMN_Y = 150;
    for (int i = 0; i < LINES; i++) {
        TDL_SymbolS(ROW_X, ROW_Y + 26 * i, NumStr(i), FONT_LABEL, LABEL);
        TDL_SymbolS(COLUMN_X + 58 * i, COLUMN_Y, NumStr(LINES * i), FONT_LABEL, LABEL);
    }
    TDL_UpdateRect(97, COLUMN_Y, 702, 426);
}

static void draw_cell(int number)
{
    const Status& s = rs.status[number];
    const Rect r = CellRect(number);
    const bool is_on = number == rs.StatusSel;
    const unsigned ground = is_on ? CELL_SELECTED : s.isempty ? CELL_NO_DATA : CELL_DATA;
    const unsigned ink = is_on ? BLACK : s.isempty ? EMPTY_INK : WHITE;
    TDL_FillRectS(r.x1, r.y1, r.x2, r.y2, ground);
    const char* const text = *s.name ? s.name : s.isempty ? "" : NumStr(number);
    const int width = s.islock ? 41 : 49;
    const bool fits = int(TDL_GetSymbolWidth(text, FONT_CELL)) < width;
    TDL_SymbolWS(r.x1 + 2, r.y1 + (fits ? 5 : 6), width, text, fits ? FONT_CELL : FONT_TIGHT, ink);
    if (s.islock)
        TDL_SymbolS(r.x2 - 7, r.y1 + 4, "L", FONT_CELL, is_on ? BLACK : YELLOW);
    TDL_UpdateRect(r.x1, r.y1, r.x2, r.y2);
}

static void draw_detail()
{
    const Status& s = selected();
    RegisterStrip_DrawGround(DETAIL);
    TDL_SymbolS(DETAIL.x1 + 10, DETAIL.y1 + 10, NumStr(rs.StatusSel), FONT_NAME, CYAN);
    TDL_SymbolS(DETAIL.x1 + 10, DETAIL.y1 + 38, s.name, FONT_LABEL, WHITE);
    if (s.islock)
        TDL_SymbolS(DETAIL.x1 + 70, DETAIL.y1 + 13, "Lock", FONT_LABEL, YELLOW);
    if (rs.kind->regions) {
        const Rect place = {REGIONS_X, DETAIL.y1 + 3, DETAIL.x2, DETAIL.y2};
        RegisterStrip_DrawRegions(*rs.kind, RegisterKind_Reference(*rs.kind), rs.StatusSel - FIRST,
                                  place);
    }
    TDL_UpdateRect(DETAIL.x1, DETAIL.y1, DETAIL.x2, DETAIL.y2);
}

static int status_redraw()
{
    if (rs.Status_Grid_Redraw)
        draw_labels();
    for (int number = FIRST; number <= REGISTERS; number++)
        if (rs.redraw[number])
            draw_cell(number);
    if (rs.Status_Detail_Redraw)
        draw_detail();
    rs.Status_Grid_Redraw = rs.Status_Detail_Redraw = false;
    std::fill(std::begin(rs.redraw), std::end(rs.redraw), false);
    return 0;
}

// --- Messages ---

static int status_pressed(int x, int y)
{
    for (int number = FIRST; number <= REGISTERS; number++) {
        const Rect r = CellRect(number);
        if (x >= r.x1 && x <= r.x2 && y >= r.y1 && y <= r.y2) {
            select(number);
            return 1;
        }
    }
    return 0;
}

// By the end of the command, behind the menu's word.
static constexpr RegisterTouch touches[] = {
    {"Lock@Lock", lock_sel},      {"Delete@Delete", delete_sel}, {"Rename@Rename", rename_sel},
    {"Copy@From", copy_from_sel}, {"Copy@To", copy_to_sel},      {"Recall@Recall", recall_sel},
};

static int button_pressed(const char* command)
{
    const char* const menu = strchr(command, '@');
    const char* const tail = menu ? strchr(menu + 1, '@') : nullptr;
    for (const RegisterTouch& touch : touches)
        if (tail && Same(tail + 1, touch.tail))
            return touch.act();
    return 0;
}

static int status_data_tly(int kind, int row, int no)
{
    const bool is_ours = kind == rs.kind->mirror && no >= 0 && no < REGISTERS;
    const bool is_masters = rs.kind->regions && row >= RegisterKind_Regions(*rs.kind);
    if (is_ours && !is_masters)
        status_data_init(no + FIRST);
    return 0;
}

static int status_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    if (!rs.kind)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return status_redraw();
    case MSG_PRESS: return status_pressed(int(ax), int(bx));
    case LMSG_BTNSEL: return button_pressed(Text(ax));
    case LMSG_REGISTER: return status_data_tly(int(ax), int(bx), int(cx));
    case LMSG_KNOBVAR: select(int(bx)); return 0;
    default: return 0;
    }
}

static int status_create(int on, uint32_t kind)
{
    if (!on) {
        if (rs.kind)
            Register_StatusReport(0);
        rs.kind = nullptr;
        return 0;
    }
    if (kind >= REGKINDS)
        return -1;
    rs = {};
    rs.kind = &register_kinds[kind];
    rs.Status_Grid_Redraw = true;
    RegisterKind_InitRegions(*rs.kind);
    Register_StatusReport(1);
    for (int number = FIRST; number <= REGISTERS; number++)
        status_data_init(number);
    select(RegisterPage_Memory(rs.kind->kind).sel1 + FIRST);
    show_from();
    return 0;
}

const PC_TBL pc_register_status = {status_proc, status_create};
