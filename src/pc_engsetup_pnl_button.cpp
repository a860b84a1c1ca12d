// What the buttons of a panel module do. All modules are one page: a picture of the buttons at the
// left, what can be assigned at the right, Set, Clear and Default. A row of the module table says
// the rest. Buttons of most modules hold one operation, which travels with its number and name;
// those of the utility pages hold an action, which is an operation or a register to run.
//
// What is assigned is never kept from here: it comes back as a tally, from whichever panel.
#include "a_bt.h"
#include "a_ls.h"
#include "bus.h"
#include "colours.h"
#include "command.h"
#include "device.h"
#include "global.h"
#include "graphics.h"
#include "indexed.h"
#include "me_bank.h"
#include "message.h"
#include "netio.h"
#include "page.h"
#include "page_table/setup_panel_assign.h"
#include "pc_engsetup_pnl.h"
#include "register.h"
#include "setup_index.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <span>

#include "safeguards.h"

#define PANEL "Engineering Setup@Panel@"

namespace
{
constexpr int LIST = 1;
enum : int { COL_NAME, COL_BUTTONS };
constexpr int BUTTONS = 32;      // of a module, at most
constexpr int ROW_BUTTONS = 128; // of a crosspoint row, at most
constexpr int BANK_PLACES = 8;   // places of a bank's side
constexpr int MARK = 96;         // text of the numbers of all buttons that are shown

struct SetupModule {
    SETUPMODULE_ID id = SETUP_MODULES;
    const char* name = "";
    std::span<assign_regnametbl> table;
    int buttons = 16;
    std::span<assign_regnametbl> compact = {}; // instead of table on the smaller panels
    bool has_banks = false;                    // each bank's row has one, for each of its sides
    const int* units = nullptr;                // by panel row: 0 where the module is not fitted
    bool is_action = false;
    bool is_row = false; // as many buttons as a crosspoint row has, so many of them at a time
    const char* path = nullptr; // of the assignments; null: of the page
};
constexpr SetupModule modules[] = {
    {MODULE_TRANSITION, "Transition", TransModule_RegNameTbl, 20},
    {.id = MODULE_TRANSITION2,
     .name = "Simple Transition",
     .table = TransMod_SimpleTransRegName,
     .buttons = 12,
     .compact = TransMod_Simple15RTransRegName},
    {MODULE_KEY_TRANS, "Key Transition", RegName_KeyTrans_Tbl, 16},
    {.id = MODULE_FLEXI_PAD,
     .name = "Flexi Pad",
     .table = FlexiPadmodule_RegNameTbl,
     .buttons = 16,
     .has_banks = true,
     .units = FlexiPadKeyUnitConfig},
    {MODULE_KEY_CONTROL, "Key Delegation", RegName_KeyDeleg_Tbl, 8},
    {MODULE_KEY_CONTROL_ASSIGN, "Key Control", RegName_KeyControl_Tbl, 20},
    {MODULE_XPT, "Xpt Module", RegName_Xpt_Tbl, 8},
    {MODULE_MENU_PANEL, "Menu Panel", RegName_MenuPanel_Tbl, 24},
    {MODULE_DEVICE_CONTROL, "Device Control", RegName_DEVCTRL_Tbl, 28},
    {MODULE_JOY_TRACK, "Joystick/Trackball", RegName_JoyTrack_Tbl, 12},
    {MODULE_SHOTBOX, "Shotbox", RegName_Shotbox_Tbl, 24},
    {MODULE_DSK_FTB, "DSK/FTB", RegName_DSKFTB_Tbl, 16},
    {MODULE_FTB, "FTB", RegName_FTB_Tbl, 4},
    {.id = MODULE_COMPACT_KEY_TRANS,
     .name = "Compact Key Trans",
     .table = RegName_KeyTrans_Tbl,
     .buttons = 8,
     .has_banks = true,
     .units = GL_KeyTransKeyUnitConfig},
    {MODULE_PCX50_KEY_DELEG, "Key Delegation", RegName_KeyDeleg_Tbl, 16},
    {MODULE_EXTENSION, "Extension Panel", RegName_Extension_Tbl, 28},
    {MODULE_MACRO_EDIT, "Macro Edit", RegName_MacroEdit_Tbl, 16},
    {MODULE_EFFECT_EDIT, "Effect Edit", RegName_EffEdit_Tbl, 16},
    {MODULE_MODE_SELECT, "Mode Select", RegName_ModeSel_Tbl, 8},
    {.id = MODULE_SHORTCUT,
     .name = "Shortcut",
     .table = RegName_Shortcut_Tbl,
     .buttons = 16,
     .is_action = true},
    {.id = MODULE_UTILITY,
     .name = "Utility",
     .table = RegName_Utility_Tbl,
     .buttons = 16,
     .is_action = true},
    {.id = MODULE_KEY2_BUS,
     .name = "Key2 Bus",
     .table = RegName_Utility_Tbl,
     .buttons = 16,
     .has_banks = true,
     .is_action = true,
     .is_row = true,
     .path = PANEL "Prefs/Utility@Xpt Module Assign"},
    {.id = MODULE_TRANS_RATE,
     .name = "Trans Rate",
     .table = RegName_TransRate_Tbl,
     .buttons = 8,
     .is_action = true},
};
static_assert(IndexedBy(modules, &SetupModule::id, SETUP_MODULES));

// What an action button does. A register's number says its kind, too.
enum ActionKind : int { ACTION_NONE, ACTION_FUNCTION, ACTION_REGISTER };
enum ListKind : int { LIST_FUNCTIONS, LIST_MACROS, LIST_SHOTBOXES };
constexpr const char* list_words[] = {"Function", "Macro", "Shotbox"};
constexpr int SHOTBOX_FIRST = 1001; // its register 1

struct Held {
    const assign_regnametbl* row = nullptr; // null: nothing told yet
    int reg = 0;                            // register of an action, 0 none
    char name[12] = "";                     // the operator's own
};

// The buttons are 60 x 40, four in a row.
constexpr int FIELD_X = 112;
constexpr int KEY_W = 60;
constexpr int KEY_H = 40;
constexpr int PITCH_X = 70;
constexpr int PITCH_Y = 46;
constexpr int COLUMNS = 4;
constexpr int FIELD_Y = 100;
constexpr int BANK_Y = 98;
constexpr int FIELD_BELOW_BANKS_Y = 212;
constexpr int FRAME_LEFT = 104;
constexpr int FRAME_RIGHT = FIELD_X + COLUMNS * PITCH_X - 2;
constexpr int ARROW_X = 400;
constexpr int ARROW_Y = 310;
constexpr int FONT_KEY = 1;
constexpr int FONT_TITLE = 3;
constexpr const char* bank_captions[REGION_BASEPP_1ST_AUX] = {"P/P",  "M/E1", "M/E2",
                                                              "M/E3", "M/E4", "M/E5"};
constexpr const char* side_captions[] = {"Main", "Sub"};
enum : int { SIDE_MAIN, SIDE_SUB, SIDE_BOTH };
} // namespace

static struct {
    const SetupModule* module = nullptr;
    char FlexiPadmodPath[CMD_SIZE] = "";                                   // of the assignments
    char page_path[CMD_SIZE] = "";                                         // of names
    const assign_regnametbl* FlexiPadmod_RealRegNameTbl[ASSIGN_ROWS] = {}; // the rows of the list
    int rows = 0;
    int total = 0;                  // buttons of the module
    int first = 0;                  // of them stand before those that are shown
    int button = 1;                 // selected, of those that are shown
    int bank = REGION_ME_BASEPP_PP; // as the server counts
    int side = SIDE_MAIN;
    ListKind list = LIST_FUNCTIONS;
    Held held[BUTTONS + 1] = {}; // by button that is shown, from 1
    char marks[REGISTERS_MACRO][MARK] = {};
    char range[24] = ""; // caption of the key that goes on to further buttons
    char registers[REGISTERS_MACRO][32] = {};
    bool is_name_shown = false;
    bool FlexiPad_NormRedraw = false; // frames, then all of the rest
    bool FlexiPad_BtnRedraw = false;
} pb; // valid from create(1) to create(0)

// --- What there is ---

static int panel_row(int bank)
{
    const int* const at = std::find(GL_MEAssign, GL_MEAssign + PANEL_ROWS, bank);
    return at == GL_MEAssign + PANEL_ROWS ? -1 : int(at - GL_MEAssign);
}

static bool flexipad_main_sub_mode(int bank)
{
    return multiprogram2_me[bank] != 0;
}

// Which sides of a bank its row works on.
static int RegionMainSubAssign(int bank)
{
    const int row = panel_row(bank);
    return flexipad_main_sub_mode(bank) && row >= 0 ? GL_MainSubAssign[row] : SIDE_MAIN;
}

static bool has_module(int bank)
{
    const int row = pb.module->has_banks ? panel_row(bank) : 0;
    return row >= 0 && (!pb.module->units || pb.module->units[row] != 0);
}

static bool pnl_selected_bank_me_kyunit_assign_check()
{
    return has_module(pb.bank);
}

static void choose_bank(int bank)
{
    pb.bank = bank;
    const int sides = RegionMainSubAssign(bank);
    if (sides != SIDE_BOTH)
        pb.side = sides;
}

static int place()
{
    return pb.module->has_banks ? 1 + pb.bank + pb.side * BANK_PLACES : 1;
}

static bool is_active(const assign_regnametbl& row)
{
    switch (row.need) {
    case NEED_KEYS8:
        return std::any_of(GL_KeyMax, GL_KeyMax + ME_COUNT, [](int keys) { return keys > 4; });
    case NEED_SUB:
        return std::any_of(multiprogram2_me, multiprogram2_me + ME_COUNT,
                           [](int on) { return on != 0; });
    case NEED_NOTHING: break;
    }
    return true;
}

static bool has_compact_panel()
{
    constexpr DEVTYPE compact = DEVTYPE_QRD21 | DEVTYPE_QRD21A | DEVTYPE_QRD22 | DEVTYPE_QRD22A;
    return (SYS_RefPnlType & compact) != 0;
}

static std::span<assign_regnametbl> table_of(const SetupModule& module)
{
    return !module.compact.empty() && has_compact_panel() ? module.compact : module.table;
}

static void FlexiPadmod_list_init()
{
    pb.rows = 0;
    for (assign_regnametbl& row : table_of(*pb.module)) {
        row.active = is_active(row);
        if (row.active)
            pb.FlexiPadmod_RealRegNameTbl[pb.rows++] = &row;
    }
}

static const assign_regnametbl* no_assign()
{
    return pb.FlexiPadmod_RealRegNameTbl[0];
}

static const assign_regnametbl* find_row(const char* name)
{
    for (int i = 0; i < pb.rows; i++)
        if (Same(pb.FlexiPadmod_RealRegNameTbl[i]->tally_name, name))
            return pb.FlexiPadmod_RealRegNameTbl[i];
    return no_assign();
}

static const assign_regnametbl* find_id(int id)
{
    for (int i = 0; i < pb.rows; i++)
        if (pb.FlexiPadmod_RealRegNameTbl[i]->id == id)
            return pb.FlexiPadmod_RealRegNameTbl[i];
    return no_assign();
}

// --- Subscriptions ---

static int shown_buttons()
{
    return std::min(pb.module->buttons, pb.total - pb.first);
}

// On the wire.
static int number_of(int button)
{
    return pb.first + button;
}

static void button_path(int button, char (&path)[CMD_SIZE])
{
    if (pb.module->is_action)
        PrintText(path, "%s@Action Set@%d@%d", pb.FlexiPadmodPath, place(), number_of(button));
    else
        PrintText(path, "%s@Button Assign@%02d@Operation@Common@%d", pb.FlexiPadmodPath,
                  number_of(button), place());
}

static void name_path(int button, char (&path)[CMD_SIZE])
{
    PrintText(path, "%s@Name@%d@%d", pb.page_path, place(), number_of(button));
}

static void subscribe(int on)
{
    const char* const verb = on ? "add" : "remove";
    char path[CMD_SIZE];
    for (int button = 1; button <= shown_buttons(); button++) {
        button_path(button, path);
        Net_SendCommandFormat("%s %s", verb, path);
        if (!pb.module->is_action)
            continue;
        if (on)
            Net_SendCommandFormat("read %s", path);
        name_path(button, path);
        Net_SendCommandFormat("%s %s", verb, path);
    }
}

static void forget_held()
{
    for (Held& held : pb.held)
        held = {};
}

// --- The list ---

static bool is_macro(int reg)
{
    return reg > 0 && reg < SHOTBOX_FIRST;
}

static int list_length()
{
    return pb.list == LIST_FUNCTIONS ? pb.rows
           : pb.list == LIST_MACROS  ? REGISTERS_MACRO
                                     : REGISTERS;
}

static int register_of_row(int row)
{
    return row + (pb.list == LIST_MACROS ? 1 : SHOTBOX_FIRST);
}

static const char* register_name(int reg)
{
    const char* const name = is_macro(reg) ? Register_Name_Macro(0, reg - 1)
                                           : Register_Name_Shotbox(0, reg - SHOTBOX_FIRST);
    return name ? name : "";
}

static bool is_in_row(const Held& held, int row)
{
    return pb.list == LIST_FUNCTIONS
               ? held.reg == 0 && held.row == pb.FlexiPadmod_RealRegNameTbl[row]
               : held.reg == register_of_row(row);
}

// The buttons that a row is assigned to.
static void mark_row(int row)
{
    char(&mark)[MARK] = pb.marks[row];
    mark[0] = '\0';
    const bool is_nothing = pb.list == LIST_FUNCTIONS && row == 0;
    for (int button = 1; button <= shown_buttons() && !is_nothing; button++) {
        if (!is_in_row(pb.held[button], row))
            continue;
        AppendText(mark, *mark ? "," : "");
        AppendText(mark, NumStr(number_of(button)));
    }
    (void)LS_SetData(LIST, row, COL_BUTTONS, mark);
}

static const char* row_text(int row)
{
    if (pb.list == LIST_FUNCTIONS)
        return pb.FlexiPadmod_RealRegNameTbl[row]->list_assign;
    char(&text)[32] = pb.registers[row];
    PrintText(text, pb.list == LIST_MACROS ? "%3d %s" : "%3d %s ST", row + 1,
              register_name(register_of_row(row)));
    return text;
}

static void mark_list()
{
    for (int row = 0; row < list_length(); row++)
        mark_row(row);
    (void)LS_RedrawData(LIST);
}

static void show_list()
{
    for (int row = 0; row < list_length(); row++)
        (void)LS_SetData(LIST, row, COL_NAME, row_text(row));
    (void)LS_SetNData(LIST, list_length());
    mark_list();
}

// --- The keys below ---

static void mirror(const char* word, const char* value)
{
    char line[CMD_SIZE];
    PrintText(line, "LOCAL@%s@%s#%s", pb.page_path, word, value);
    (void)SendDummyTally(line);
}

static void show_range()
{
    if (!pb.module->is_row)
        return;
    PrintText(pb.range, "Button\n%d-%d", number_of(1), number_of(shown_buttons()));
    (void)BT_SetCaption(BTN_ACTION_RANGE, pb.range);
    (void)BT_SetDisable(BTN_ACTION_RANGE, pb.total <= pb.module->buttons);
}

static void show_keys()
{
    const bool is_fitted = pnl_selected_bank_me_kyunit_assign_check();
    for (const int key : {BTN_ASSIGN_SET, BTN_ASSIGN_CLEAR, BTN_ASSIGN_DEFAULT})
        (void)BT_SetDisable(key, !is_fitted);
    if (pb.module->is_action) {
        (void)BT_SetDisable(BTN_ACTION_NAME, !is_fitted);
        show_range();
        mirror("Kind", list_words[pb.list]);
        return;
    }
    if (!pb.module->has_banks)
        return;
    const bool has_both = RegionMainSubAssign(pb.bank) == SIDE_BOTH;
    (void)BT_SetDisable(BTN_ASSIGN_MAIN, !has_both);
    (void)BT_SetDisable(BTN_ASSIGN_SUB, !has_both);
    mirror("Main/Sub", side_captions[pb.side]);
}

// --- The picture ---

static Rect key_rect(int index, int top)
{
    const int x = FIELD_X + PITCH_X * (index % COLUMNS);
    const int y = top + PITCH_Y * (index / COLUMNS);
    return {x, y, x + KEY_W - 1, y + KEY_H - 1};
}

static Rect bank_rect(int bank)
{
    return key_rect(bank, BANK_Y);
}

static Rect button_rect(int button)
{
    return key_rect(button - 1, pb.module->has_banks ? FIELD_BELOW_BANKS_Y : FIELD_Y);
}

static void draw_frame(int top, int bottom, unsigned colour, const char* title)
{
    TDL_FillRectS(FRAME_LEFT, top - 8, FRAME_RIGHT + 1, top + 8, BLACK);
    TDL_RectS(FRAME_LEFT, top, FRAME_RIGHT, bottom, colour);
    TDL_RectS(FRAME_LEFT + 1, top + 1, FRAME_RIGHT - 1, bottom - 1, colour);
    const int width = int(TDL_GetSymbolWidth(title, FONT_TITLE));
    TDL_FillRectS(FRAME_LEFT + 10, top - 6, FRAME_LEFT + 16 + width, top + 7, BLACK);
    TDL_SymbolS(FRAME_LEFT + 13, top - 6, title, FONT_TITLE, WHITE);
}

static void draw_key(const Rect& r, SDL_Surface* face, const char* caption, unsigned colour)
{
    TDL_PutS(r.x1, r.y1, face);
    TDL_SymbolS(r.x1 + 8, r.y1 + 9, caption, FONT_KEY, colour);
}

static bool can_choose_bank(int bank)
{
    return panel_row(bank) >= 0;
}

// In multi program with the side that the row works on, or that is chosen of two.
static void draw_bank(int bank)
{
    char caption[24];
    const bool is_on = bank == pb.bank;
    const int sides = RegionMainSubAssign(bank);
    const int side = sides == SIDE_BOTH ? (is_on ? pb.side : SIDE_MAIN) : sides;
    CopyText(caption, bank_captions[bank]);
    if (flexipad_main_sub_mode(bank))
        AppendText(caption, side == SIDE_SUB ? "\n Sub" : "\nMain");
    if (!can_choose_bank(bank))
        draw_key(bank_rect(bank), G_PSELm_dis, caption, GREY);
    else
        draw_key(bank_rect(bank), is_on ? G_PSELm_on : G_PSELm_off, caption, is_on ? BLACK : WHITE);
}

static void register_caption(const Held& held, char (&caption)[32])
{
    const int number = is_macro(held.reg) ? held.reg : held.reg - SHOTBOX_FIRST + 1;
    const char* const name = register_name(held.reg);
    if (pb.is_name_shown && *name)
        PrintText(caption, is_macro(held.reg) ? "%.7s" : "%.4s ST", name);
    else
        PrintText(caption, is_macro(held.reg) ? "MCRO\n %3d" : "SHOT\n %3d", number);
}

static void draw_button(int button)
{
    if (button > shown_buttons()) {
        const Rect r = button_rect(button);
        TDL_FillRectS(r.x1, r.y1, r.x2, r.y2, BLACK);
        return;
    }
    const Held& held = pb.held[button];
    const bool is_on = button == pb.button;
    char caption[32] = "";
    if (!pnl_selected_bank_me_kyunit_assign_check())
        return draw_key(button_rect(button), G_PSELm_dis, caption, GREY);
    if (held.name[0])
        CopyText(caption, held.name);
    else if (held.reg)
        register_caption(held, caption);
    else if (held.row)
        CopyText(caption, held.row->btn_name);
    const bool is_empty = held.reg == 0 && held.row == no_assign();
    draw_key(button_rect(button), is_on ? G_PSELm_on : G_PSELm_off, caption,
             is_on      ? BLACK
             : is_empty ? GREY
                        : WHITE);
}

static void draw_field_frame()
{
    char title[48];
    const Rect first = button_rect(1);
    const Rect last = button_rect(pb.module->buttons);
    const bool is_fitted = pnl_selected_bank_me_kyunit_assign_check();
    if (is_fitted)
        PrintText(title, "%s  Button %d", pb.module->name, number_of(pb.button));
    else
        PrintText(title, "%s  No Module", pb.module->name);
    draw_frame(first.y1 - 13, last.y2 + 6, pb.module->has_banks && is_fitted ? WHITE : GROUP_FRAME,
               title);
}

static void draw_frames()
{
    if (pb.module->has_banks)
        draw_frame(bank_rect(0).y1 - 13, bank_rect(REGION_ME_BASEPP_ME5).y2 + 6, GROUP_FRAME,
                   "Bank Select");
    TDL_PutS(ARROW_X, ARROW_Y, G_hidariya);
}

static int assign_redraw()
{
    if (pb.FlexiPad_NormRedraw)
        draw_frames();
    if (pb.FlexiPad_NormRedraw || pb.FlexiPad_BtnRedraw) {
        for (int bank = 0; bank < REGION_BASEPP_1ST_AUX && pb.module->has_banks; bank++)
            draw_bank(bank);
        draw_field_frame();
        for (int button = 1; button <= pb.module->buttons; button++)
            draw_button(button);
        const Rect last = button_rect(pb.module->buttons);
        TDL_UpdateRect(FRAME_LEFT, FIELD_Y - 24, ARROW_X + 40, std::max(last.y2 + 6, ARROW_Y + 28));
    }
    pb.FlexiPad_NormRedraw = false;
    pb.FlexiPad_BtnRedraw = false;
    return 0;
}

// --- Commands ---

static void put_assign(const char* what, const assign_regnametbl* row)
{
    Net_SendCommandFormat("put %s@Button Assign@%02d@Operation@Common@%s#%d,%d,%s",
                          pb.FlexiPadmodPath, number_of(pb.button), what, row->id, place(),
                          row->tally_name);
}

static void put_action(int kind, int number)
{
    char path[CMD_SIZE];
    button_path(pb.button, path);
    Net_SendCommandFormat("put %s#%d,%d", path, kind, number);
}

static void assign_row(int row)
{
    if (pb.list != LIST_FUNCTIONS)
        put_action(ACTION_REGISTER, register_of_row(row));
    else if (!pb.module->is_action)
        put_assign(NumStr(place()), pb.FlexiPadmod_RealRegNameTbl[row]);
    else if (row == 0)
        put_action(ACTION_NONE, 0);
    else
        put_action(ACTION_FUNCTION, pb.FlexiPadmod_RealRegNameTbl[row]->id);
}

static void press_set(const char*)
{
    const int row = LS_GetSelected(LIST, 0);
    if (row >= 0 && row < list_length())
        assign_row(row);
}

static void press_clear(const char*)
{
    if (pb.module->is_action)
        put_action(ACTION_NONE, 0);
    else
        put_assign(NumStr(place()), no_assign());
}

static void press_default(const char*)
{
    const assign_regnametbl* const row = pb.held[pb.button].row;
    if (pb.module->is_action)
        Net_SendCommandFormat("put %s@Action Set@%d@Default#%d", pb.FlexiPadmodPath, place(),
                              number_of(pb.button));
    else
        put_assign("Default", row ? row : no_assign());
}

static void move_to(int bank, int side, int first)
{
    subscribe(0);
    pb.side = side;
    choose_bank(bank);
    pb.first = first;
    forget_held();
    pb.button = std::min(pb.button, shown_buttons());
    show_keys();
    mark_list();
    pb.FlexiPad_BtnRedraw = true;
    subscribe(1);
}

static void press_side(const char* value)
{
    move_to(pb.bank, Same(value, side_captions[SIDE_SUB]) ? SIDE_SUB : SIDE_MAIN, pb.first);
}

// The next buttons of the row; behind its end the first ones.
static void press_range(const char*)
{
    const int next = pb.first + pb.module->buttons;
    move_to(pb.bank, pb.side, next < pb.total ? next : 0);
}

static void press_kind(const char* value)
{
    for (const ListKind kind : {LIST_FUNCTIONS, LIST_MACROS, LIST_SHOTBOXES})
        if (Same(value, list_words[kind]))
            pb.list = kind;
    (void)LS_ClearData(LIST);
    show_list();
    (void)LS_SetNowLine(LIST, 0);
    show_keys();
}

static int name_entered(const char* text)
{
    char name[sizeof Held::name];
    char path[CMD_SIZE];
    if (!pb.module)
        return -1; // the page has gone meanwhile
    CopyText(name, text);
    (void)StrRegName(name);
    name_path(pb.button, path);
    Net_SendCommandFormat("put %s#%s", path, name);
    return 0;
}

static void press_name(const char*)
{
    WindowArgs args;
    args.value = pb.held[pb.button].name;
    args.input_max = 7;
    args.ok_text = name_entered;
    (void)CreateWindow(WINDOW_KEYBOARD, "Name", args);
}

static int assign_button(const char* cmd, const char* value)
{
    static constexpr struct {
        const char* word;
        void (*press)(const char* value);
        bool needs_module;
    } keys[] = {
        {"Set", press_set, true},         {"Clear", press_clear, true},
        {"Default", press_default, true}, {"Main/Sub", press_side, false},
        {"Kind", press_kind, false},      {"Name", press_name, true},
        {"Range", press_range, false},
    };
    const char* const word = strrchr(cmd, '@');
    if (!IsLocal(cmd) || !word)
        return 0;
    for (const auto& key : keys)
        if (Same(word + 1, key.word) &&
            (!key.needs_module || pnl_selected_bank_me_kyunit_assign_check()))
            key.press(value);
    return 0;
}

// Once more on the same bank: its other side, where the row works on both.
static void press_bank(int bank)
{
    if (bank != pb.bank)
        move_to(bank, SIDE_MAIN, pb.first);
    else if (RegionMainSubAssign(bank) == SIDE_BOTH)
        move_to(bank, pb.side == SIDE_SUB ? SIDE_MAIN : SIDE_SUB, pb.first);
}

static int assign_press(int x, int y)
{
    if (SetupIndex_IsLocked(GL_NowPage))
        return 0;
    for (int bank = 0; bank < REGION_BASEPP_1ST_AUX && pb.module->has_banks; bank++)
        if (Inside(bank_rect(bank), x, y) && can_choose_bank(bank))
            press_bank(bank);
    for (int button = 1; button <= shown_buttons(); button++) {
        if (!Inside(button_rect(button), x, y))
            continue;
        pb.button = button;
        pb.FlexiPad_BtnRedraw = true;
    }
    return 0;
}

// --- Tallies ---

static void take_assign(Held& held, const char* value)
{
    Parts p;
    const int parts = SplitValue(p, value, 3);
    held.row = parts == 3 ? find_row(p.v[2]) : no_assign();
}

static void take_action(Held& held, const char* value)
{
    Parts p;
    const int kind = SplitValue(p, value, 2) == 2 ? Decimal(p.v[0]) : ACTION_NONE;
    const int number = kind == ACTION_NONE ? 0 : Decimal(p.v[1]);
    const bool is_register = kind == ACTION_REGISTER &&
                             ((number >= 1 && number <= REGISTERS_MACRO) ||
                              (number >= SHOTBOX_FIRST && number < SHOTBOX_FIRST + REGISTERS));
    held.reg = is_register ? number : 0;
    held.row = kind == ACTION_FUNCTION ? find_id(number) : no_assign();
}

static bool take_button(int button, const char* path, const char* value)
{
    char own[CMD_SIZE];
    Held& held = pb.held[button];
    button_path(button, own);
    if (Same(path, own)) {
        pb.module->is_action ? take_action(held, value) : take_assign(held, value);
        return true;
    }
    if (!pb.module->is_action)
        return false;
    name_path(button, own);
    if (!Same(path, own))
        return false;
    CopyText(held.name, value);
    return true;
}

// Modules, rows or sides have changed.
static bool is_panel_config(const char* path)
{
    return BeginsWith(path, PANEL "Config@Compact Key Module Assign@") ||
           BeginsWith(path, PANEL "Config@M/E Assign@") ||
           BeginsWith(path, PANEL "Config@MP2 Main/Sub Assign@") ||
           BeginsWith(path, "Engineering Setup@Switcher@Config@M/E Config@");
}

static int follow_config()
{
    const int sides = RegionMainSubAssign(pb.bank);
    if (sides != SIDE_BOTH && sides != pb.side)
        move_to(pb.bank, pb.side, pb.first);
    show_keys();
    pb.FlexiPad_BtnRedraw = true;
    return 0;
}

static int assign_tally(const char* path, const char* value)
{
    if (pb.module->has_banks && is_panel_config(path))
        return follow_config();
    if (BeginsWith(path, PANEL "Prefs/Utility@") && strstr(path, "@Reg Name Display"))
        pb.is_name_shown = IsTrue(value) != 0;
    else if (!BeginsWith(path, pb.FlexiPadmodPath) && !BeginsWith(path, pb.page_path))
        return 0;
    for (int button = 1; button <= shown_buttons(); button++)
        if (take_button(button, path, value)) {
            mark_list();
            break;
        }
    pb.FlexiPad_BtnRedraw = true;
    return 0;
}

static int assign_register(int kind)
{
    if (pb.list == LIST_FUNCTIONS || (kind != REGISTER_MACRO && kind != REGISTER_SHOTBOX))
        return 0;
    show_list();
    pb.FlexiPad_BtnRedraw = true;
    return 0;
}

// --- The page ---

static int pc_engsetup_panel_button_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case MSG_REDRAW: return assign_redraw();
    case MSG_PRESS: return assign_press(int(ax), int(bx));
    case MSG_TALLY: return assign_tally(Text(ax), Text(bx));
    case LMSG_BTNSEL: return assign_button(Text(ax), Text(bx));
    case LMSG_REGISTER: return assign_register(int(ax));
    default: return 0;
    }
}

// The button that a press on the panel asked the page for.
static int asked_button()
{
    const int asked = pb.module->id == MODULE_SHORTCUT   ? GL_SelectButtonID
                      : pb.module->id == MODULE_UTILITY  ? GL_UtlAsgnSelectButtonID
                      : pb.module->id == MODULE_KEY2_BUS ? GL_XptAsgnSelectButtonID
                                                         : 0;
    return asked >= 1 && asked <= pb.total ? asked : 1;
}

// One that has the module, if there is any.
static void choose_first_bank()
{
    for (const bool needs_module : {false, true})
        for (int bank = REGION_ME_BASEPP_ME5; bank >= REGION_ME_BASEPP_PP; bank--)
            if (can_choose_bank(bank) && (!needs_module || has_module(bank)))
                choose_bank(bank);
}

static void open_module(const SetupModule& module)
{
    pb.module = &module;
    DecodeCommand(pb.page_path, "~", sizeof pb.page_path);
    CopyText(pb.FlexiPadmodPath, module.path ? module.path : pb.page_path);
    FlexiPadmod_list_init();
    pb.total =
        module.is_row ? std::clamp(GL_XptButtonCount, module.buttons, ROW_BUTTONS) : module.buttons;
    const int asked = asked_button() - 1;
    pb.first = asked / module.buttons * module.buttons;
    pb.button = asked - pb.first + 1;
    if (module.has_banks)
        choose_first_bank();
}

// A key whose page this installation does not have.
static void disable_missing_pages()
{
    for (const BT_MEM* b = bt_first(); b->id >= 1; b++)
        if (b->type == BT_JUMP && b->cmd_var[0][0] && !b->cmd[0][0] &&
            !Page_Exists(Hex(b->cmd_var[0])))
            (void)BT_SetDisable(b->id, 1);
}

static int jumps_create(int on, uint32_t)
{
    if (on)
        disable_missing_pages();
    return !on;
}

static int pc_engsetup_panel_button_create(int on, uint32_t var)
{
    if (!on && pb.module) {
        subscribe(0);
        if (pb.module->is_action)
            Register_StatusReport(0);
    }
    pb = {};
    if (!on || var >= SETUP_MODULES)
        return !on;
    open_module(modules[var]);
    if (pb.module->is_action)
        Register_StatusReport(1);
    show_list();
    (void)LS_SetNowLine(LIST, 0);
    show_keys();
    (void)jumps_create(1, 0);
    pb.FlexiPad_NormRedraw = true;
    subscribe(1);
    return 0;
}

const PC_TBL pc_engsetup_panel_button = {.proc_func = pc_engsetup_panel_button_proc,
                                         .create_func = pc_engsetup_panel_button_create};

// --- The keys to the modules ---

const PC_TBL pc_engsetup_panel_jumps = {.create_func = jumps_create};

static int programbutton_create(int on, uint32_t)
{
    constexpr uint32_t extension_panel = 0x73210012;
    if (!on)
        return 1;
    const int row = SetupIndex_Find(extension_panel);
    (void)BT_SetDisable(BTN_MODULE_EXTENSION, row < 0 || !SetupMenu[row].active);
    (void)BT_SetDisable(BTN_MODULE_PCX50, !isRefPnlPCX50());
    return 0;
}

const PC_TBL pc_engsetup_panel_config_programbutton = {.create_func = programbutton_create};
