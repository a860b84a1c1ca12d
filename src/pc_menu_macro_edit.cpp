#include "pc_menu_macro_edit.h"
#include "a_ba.h"
#include "a_bt.h"
#include "a_ls.h"
#include "a_nb.h"
#include "global.h"
#include "menu_macro_private.h"
#include "message.h"
#include "page.h"
#include "pc_menu_macro.h"
#include "tally_value.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <cstring>

#include "safeguards.h"

namespace
{
constexpr Rect STRIP = {100, 303, 566, 362};
constexpr int LIST = 1;
constexpr uint32_t PAGE_REGISTERS = 0x54310000;
constexpr int FIELDS = 3;
enum : int { COLUMN_NO, COLUMN_EVENT, COLUMN_CONTENTS, COLUMN_DATA };
enum : int { BOX_REGISTER = 1, BOX_PAUSE = 2 };
constexpr double PAUSE_DEFAULT = 0.5; // seconds
} // namespace

static struct {
    bool is_open = false;
    bool redraw = false;     // of the strip
    int shown_line = -1;     // at the cursor when it was looked at last
    int shown_revision = -1; // of the list when it was filled
    int target = 1;          // register that Store writes
} ed;                        // valid from create(1) to create(0)

static struct {
    double event_pause_sec = PAUSE_DEFAULT;
    bool is_whole_event = true; // Delete takes all commands of an event
} choice;                       // outlives the page

// --- The list ---

static const char* contents_of(int row)
{
    int command = 0;
    const CURRENT_REGISTER_DATA* const node = MM_Register_Eidt_line2now_line(row, &command);
    if (!node || command > 0)
        return "Continue";
    return mm_event_pause(node->event_data) >= 0 ? "Pause" : "Event";
}

static void fill_list()
{
    const int rows = mm_register_data_disp_tbl_set();
    for (int row = 0; row < rows; row++) {
        const REGISTER_DATA& line = register_list[row];
        (void)LS_SetData(LIST, row, COLUMN_NO, line.no);
        (void)LS_SetData(LIST, row, COLUMN_EVENT, line.event_no_str);
        (void)LS_SetData(LIST, row, COLUMN_CONTENTS, contents_of(row));
        (void)LS_SetData(LIST, row, COLUMN_DATA, line.event_dt);
    }
    (void)LS_SetNData(LIST, rows);
    if (rows > 0)
        (void)LS_SetNowLine(LIST, mm_edit_now_line());
    (void)LS_RedrawData(LIST);
    ed.shown_line = rows > 0 ? mm_edit_now_line() : -1;
    ed.shown_revision = mm_edit.revision;
    ed.redraw = true;
}

static void show_switches()
{
    const auto show = [](int button, bool on) { (void)BT_SetStatus(button, on ? BT_ON : BT_OFF); };
    show(BTN_MENU_MACRO_AUTO_INSERT, GL_MenuMacro_AT_Store);
    show(BTN_MENU_MACRO_PAUSE_AUTO, GL_MM_Pause_AT_Insert);
    show(BTN_MENU_MACRO_RECYCLE, SL_Reg_Recycle);
    show(BTN_MENU_MACRO_EVENT, choice.is_whole_event);
    show(BTN_MENU_MACRO_ALL, LS_GetMS(LIST) == 1);
}

static int refuse(const char* message)
{
    return CreateWindow(WINDOW_MESSAGE, "Menu Macro", {.message = message});
}

static void end_plural()
{
    (void)LS_SetMS(LIST, 0);
    show_switches();
}

// --- Keys ---

static int toggle(int& flag)
{
    flag = !flag;
    show_switches();
    BA_RedrawMenuMacro();
    return 0;
}
static int auto_insert_sel()
{
    return toggle(GL_MenuMacro_AT_Store);
}
static int pause_auto_insert_sel()
{
    return toggle(GL_MM_Pause_AT_Insert);
}
static int recycle_sel()
{
    return toggle(SL_Reg_Recycle);
}

static int event_sel()
{
    choice.is_whole_event = !choice.is_whole_event;
    show_switches();
    return 0;
}

static int all_sel()
{
    const bool on = LS_GetMS(LIST) != 1;
    if (on)
        (void)LS_SetALL(LIST, 1);
    else
        (void)LS_SetMS(LIST, 0);
    (void)LS_RedrawData(LIST);
    show_switches();
    return 0;
}

static int pause_set_sel()
{
    (void)mm_pause_insert(choice.event_pause_sec); // a full list is told
    fill_list();
    return 0;
}

// The selected pauses take the time of the box.
static int pause_time_sel()
{
    for (int i = 0, line; (line = LS_GetSelected(LIST, i)) >= 0; i++)
        mm_pause_modify(line, choice.event_pause_sec);
    fill_list();
    return 0;
}

static int insert(int (*where)(const CURRENT_EVENT_DATA& event))
{
    if (mm_last_event().protcol_cnt == 0)
        return refuse("Nothing has been recorded yet.");
    (void)where(mm_last_event()); // a full list is told
    fill_list();
    return 0;
}
static int before_sel()
{
    return insert(mm_event_set_befor);
}
static int after_sel()
{
    return insert(mm_event_set_after);
}
static int modify_sel()
{
    return insert(mm_event_modify);
}

static int delete_sel()
{
    bool is_gone[MENU_MACRO_LINES] = {};
    for (int i = 0, line; (line = LS_GetSelected(LIST, i)) >= 0; i++)
        if (line < MENU_MACRO_LINES)
            is_gone[line] = true;
    // From the end, so that the lines before keep their place; of an event the first selected line
    // stands for all.
    for (int line = mm_edit.rows - 1; line >= 0; line--) {
        int command = 0;
        if (!is_gone[line] || !MM_Register_Eidt_line2now_line(line, &command))
            continue;
        const int first = line - command;
        mm_event_delete(line, choice.is_whole_event);
        if (choice.is_whole_event)
            line = first;
    }
    end_plural();
    fill_list();
    return 0;
}

static int store_core(int)
{
    if (GL_MenuMacro_Edit != 1)
        return 0;
    if (mm_current_register_store(ed.target) != 0)
        return refuse("The menu macro has not been stored.");
    ed.redraw = true;
    return 0;
}

static int store_sel()
{
    const MMACRO_REGISTER_TBL reg = mm_register_table(ed.target - 1);
    if (reg.lock)
        return refuse("Menu macro register is locked.");
    if (reg.empty || ed.target == mm_edit.reg)
        return store_core(0);
    return CreateWindow(WINDOW_MESSAGE, "Menu Macro Store",
                        {.message = "The register holds another menu macro.\n\nOverwrite it?",
                         .is_yes_no = true,
                         .ok = store_core});
}

static int exit_core(int)
{
    mm_edit_close();
    GL_CreatePage = PAGE_REGISTERS;
    return 0;
}

static int exit_sel()
{
    if (!mm_edit.is_edited)
        return exit_core(0);
    return CreateWindow(WINDOW_MESSAGE, "Menu Macro Edit",
                        {.message = "The menu macro has not been stored.\n\nExit without storing?",
                         .is_yes_no = true,
                         .ok = exit_core});
}

// By the end of the command, behind "LOCAL@Menu Macro@Reg@".
static constexpr RegisterTouch touches[] = {
    {"Pause Auto Insert", pause_auto_insert_sel},
    {"Recycle", recycle_sel},
    {"Event", event_sel},
    {"Pause Time", pause_time_sel},
    {"All Event Select", all_sel},
    {"Auto Insert", auto_insert_sel},
    {"Pause Set", pause_set_sel},
    {"Before", before_sel},
    {"After", after_sel},
    {"Delete", delete_sel},
    {"Modify", modify_sel},
    {"Store", store_sel},
    {"Exit", exit_sel},
};

static int button_pressed(const char* command)
{
    constexpr char HEAD[] = "LOCAL@Menu Macro@Reg@";
    for (const RegisterTouch& touch : touches)
        if (BeginsWith(command, HEAD) && Same(command + strlen(HEAD), touch.tail))
            return touch.act();
    return 0;
}

// --- What is shown ---

static void draw_strip()
{
    MenuMacroField fields[FIELDS] = {
        {"Current Menu Macro Register"}, {"Current Event"}, {"Current Interval Time"}};
    MenuMacro_RegisterText(mm_edit.reg, fields[0].value, sizeof fields[0].value);
    char text[96];
    PrintText(text, "   Evt: %3d/%3d", mm_edit_now_event(), mm_edit.register_event_max);
    AppendText(fields[0].value, text);
    constexpr int FITS = 36; // characters
    if (mm_event_get(1, 0, mm_last_event(), fields[1].value, 0, FITS) == 0 &&
        mm_last_event().protcol_cnt > 1) {
        PrintText(text, "  +%d", mm_last_event().protcol_cnt - 1);
        AppendText(fields[1].value, text);
    }
    PrintText(fields[2].value, "%.1f Sec%s", mm_register_interval(mm_edit.reg - 1) / 1000.0,
              mm_edit.is_edited ? "     not stored" : "");
    MenuMacroFields_Draw(STRIP, fields, FIELDS);
}

// The arrows move the cursor, too, so it is looked at once a pass; a run that is recorded fills the
// list under it.
static int page_redraw()
{
    if (ed.shown_revision != mm_edit.revision)
        fill_list();
    const int line = mm_edit.rows > 0 ? LS_GetNowLine(LIST) : -1;
    if (line != ed.shown_line) {
        ed.shown_line = line;
        mm_edit.now = MM_Register_Eidt_line2now_line(line);
        ed.redraw = true;
        BA_RedrawMenuMacro();
    }
    if (ed.redraw) {
        ed.redraw = false;
        draw_strip();
    }
    return 0;
}

static int knob_turned(int box, double value)
{
    if (box == BOX_REGISTER)
        ed.target = std::clamp(int(value + 0.5), 1, MENU_MACRO_REGISTERS);
    else if (box == BOX_PAUSE)
        choice.event_pause_sec = value;
    (void)NB_SetVar(box, box == BOX_REGISTER ? ed.target : value);
    return 0;
}

static int edit_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    if (!ed.is_open || GL_MenuMacro_Edit != 1)
        return 0;
    switch (msg) {
    case MSG_REDRAW: return page_redraw();
    case LMSG_BTNSEL: return button_pressed(Text(ax));
    case LMSG_KNOBFVAR: return knob_turned(int(ax), *reinterpret_cast<const double*>(bx));
    case LMSG_REGISTER: ed.redraw |= ax == REGISTER_MENU_MACRO; return 0;
    default: return 0;
    }
}

static int edit_create(int on, uint32_t)
{
    ed = {};
    if (!on)
        return 0;
    if (GL_MenuMacro_Edit != 1)
        mm_edit_open(RegisterPage_Memory(REGKIND_MENU_MACRO).sel1 + 1);
    ed.is_open = true;
    ed.target = mm_edit.reg;
    (void)NB_SetVar(BOX_REGISTER, ed.target);
    (void)NB_SetVar(BOX_PAUSE, choice.event_pause_sec);
    show_switches();
    fill_list();
    BA_RedrawMenuMacro();
    return 0;
}

const PC_TBL pc_file_menu_macro_edit = {edit_proc, edit_create};
