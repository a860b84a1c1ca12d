#include "pc_menu_macro.h"
#include "a_ls.h"
#include "a_nb.h"
#include "colours.h"
#include "global.h"
#include "menu_macro.h"
#include "message.h"
#include "pc_register_list.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "safeguards.h"

constexpr uint32_t PAGE_EDIT = 0x71440102;

// --- The strip ---

void MenuMacroFields_Draw(const Rect& place, const MenuMacroField* fields, int n)
{
    constexpr int LINE_PX = 18, VALUE_X = 190, FONT = 3;
    RegisterStrip_DrawGround(place);
    for (int i = 0; i < n; i++) {
        const int y = place.y1 + 5 + i * LINE_PX;
        TDL_SymbolS(place.x1 + 8, y, fields[i].label, FONT, LABEL);
        TDL_SymbolS(place.x1 + VALUE_X, y, fields[i].value, FONT, WHITE);
    }
    TDL_UpdateRect(place.x1, place.y1, place.x2, place.y2);
}

void MenuMacro_RegisterText(int number, char* text, int size)
{
    const MMACRO_REGISTER_TBL reg = mm_register_table(number - 1);
    if (number <= 0)
        ktr_strncpy(text, "--", size_t(size));
    else
        snprintf(text, size_t(size), "Menu Macro#:%d ( %s )", number, reg.name);
}

int MenuMacro_Edit(int number)
{
    RegisterPage_Memory(REGKIND_MENU_MACRO).sel1 =
        std::clamp(number, 1, MENU_MACRO_REGISTERS) - 1; // the editor begins with that
    GL_CreatePage = PAGE_EDIT;
    return 0;
}

// --- The first page: running ---

namespace
{
constexpr Rect EXEC_STRIP = {100, 352, 590, 412};
constexpr int FIELDS = 3;
constexpr int BOX_INTERVAL = 1;
} // namespace

static struct {
    MenuMacroField fields[FIELDS]; // as they are drawn
    bool is_drawn = false;
} ex; // valid while the first page is open

static int number_at_cursor()
{
    return RegisterPage_Memory(REGKIND_MENU_MACRO).sel1 + 1;
}

static int refuse_empty()
{
    return CreateWindow(WINDOW_MESSAGE, "Menu Macro", {.message = "Menu macro register is empty."});
}

static int recall_sel()
{
    return mm_current_macro_recall(number_at_cursor()) == 0 ? 0 : refuse_empty();
}

static int recall_run_sel()
{
    if (recall_sel() == 0 && mm_current_macro_status().reg == number_at_cursor())
        mm_current_macro_run();
    return 0;
}

static int rewind_sel()
{
    if (!GL_MenuMacro_Run)
        mm_current_macro_rewind();
    return 0;
}

static int run_sel()
{
    if (mm_current_macro_status().reg == 0)
        return refuse_empty();
    mm_current_macro_run();
    return 0;
}

static int stop_sel()
{
    mm_current_macro_stop();
    return 0;
}

static constexpr RegisterTouch exec_touches[] = {{"Register@Exec@Recall_Run", recall_run_sel},
                                                 {"Register@Exec@Recall", recall_sel},
                                                 {"Register@Exec@Rewind", rewind_sel},
                                                 {"Register@Exec@Run", run_sel},
                                                 {"Register@Exec@Stop", stop_sel},
                                                 {nullptr, nullptr}};

static void exec_open(int)
{
    ex = {};
}

// What is shown follows the run, so it is looked at once a pass.
static void exec_redraw()
{
    const MenuMacroRun s = mm_current_macro_status();
    MenuMacroField now[FIELDS] = {
        {"Current Menu Macro Register"}, {"Current Event"}, {"Current Interval Time"}};
    MenuMacro_RegisterText(s.reg, now[0].value, sizeof now[0].value);
    PrintText(now[1].value, "%d/%d     Remain: %4.2f%%     %s", s.event, s.events, s.remain,
              GL_MenuMacro_Run ? "Run" : "");
    PrintText(now[2].value, "%.1f Sec",
              (GL_MenuMacro_Run ? s.wait_ms : mm_register_interval(s.reg - 1)) / 1000.0);
    const auto is_same = [](const MenuMacroField& a, const MenuMacroField& b) {
        return strcmp(a.value, b.value) == 0;
    };
    if (ex.is_drawn && std::equal(now, now + FIELDS, ex.fields, is_same))
        return;
    std::copy(now, now + FIELDS, ex.fields);
    ex.is_drawn = true;
    MenuMacroFields_Draw(EXEC_STRIP, ex.fields, FIELDS);
}

const RegisterExtra menu_macro_extra = {
    .kind = REGKIND_MENU_MACRO, .touches = exec_touches, .open = exec_open, .redraw = exec_redraw};

// --- The interval: the same list, and a box ---

static struct {
    bool is_open = false;
    int shown_no = -1; // register at the cursor when it was looked at last
    bool redraw = false;
} su; // valid from create(1) to create(0)

static int setup_no()
{
    return std::max(LS_GetNowLine(1), 0);
}

static void draw_setup()
{
    const MMACRO_REGISTER_TBL reg = mm_register_table(su.shown_no);
    // Of the register at the cursor; "current" is the one that has been recalled.
    MenuMacroField fields[FIELDS] = {{"Menu Macro Register"}, {"Event"}, {"Interval Time"}};
    MenuMacro_RegisterText(su.shown_no + 1, fields[0].value, sizeof fields[0].value);
    AppendText(fields[0].value, reg.lock ? "   Lock" : "");
    PrintText(fields[1].value, "Evt: %3d/%3d", 0, reg.protcol_event_max);
    PrintText(fields[2].value, "%.1f Sec", mm_register_interval(su.shown_no) / 1000.0);
    MenuMacroFields_Draw(EXEC_STRIP, fields, FIELDS);
}

// The disk is not asked for every step of a knob.
static void save_interval()
{
    if (mm_register_is_changed(su.shown_no))
        (void)mm_macro_file_save(su.shown_no); // told by the log when it fails
}

// The arrows move the cursor, too, so it is looked at once a pass.
static int setup_redraw()
{
    const int no = setup_no();
    if (no != su.shown_no) {
        save_interval();
        su.shown_no = RegisterPage_Memory(REGKIND_MENU_MACRO).sel1 = no;
        (void)NB_SetVar(BOX_INTERVAL, mm_register_interval(no) / 1000.0);
        su.redraw = true;
    }
    if (su.redraw)
        draw_setup();
    su.redraw = false;
    return 0;
}

static int setup_touched(int row)
{
    (void)LS_SetNowLine(1, row);
    (void)LS_SetSelected(1, row, 0, 1);
    return 0;
}

static int setup_turned(double value)
{
    if (su.shown_no >= 0 && !mm_register_table(su.shown_no).lock)
        mm_register_set_interval(su.shown_no, int(value * 1000 + 0.5));
    (void)NB_SetVar(BOX_INTERVAL, mm_register_interval(su.shown_no) / 1000.0);
    return 0;
}

static int setup_registered(int kind, int row, int no)
{
    if (RegisterList_Registered(kind, row, no) && no == su.shown_no)
        su.redraw = true;
    return 0;
}

static int setup_proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg)
{
    if (!su.is_open)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return setup_redraw();
    case LMSG_LISTSEL: return setup_touched(int(bx));
    case LMSG_KNOBFVAR: return setup_turned(*reinterpret_cast<const double*>(bx));
    case LMSG_REGISTER: return setup_registered(int(ax), int(bx), int(cx));
    default: return 0;
    }
}

static int setup_create(int on, uint32_t)
{
    if (su.is_open) {
        save_interval();
        RegisterList_CloseAll();
    }
    su = {};
    if (!on)
        return 0;
    su.is_open = true;
    const RegisterKind& kind = register_kinds[REGKIND_MENU_MACRO];
    RegisterList_Open(0, kind, kind.columns, 0, RegisterPage_Memory(REGKIND_MENU_MACRO).sel1);
    return 0;
}

const PC_TBL pc_menu_macro_register_setup = {setup_proc, setup_create};
