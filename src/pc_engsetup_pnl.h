// pc_engsetup_pnl: the pages of the Panel group of engineering setup: a few shapes, each with one
// body that its tables drive. _button: what the buttons of a module do. _tenkey: the regions on the
// ten keys. _xpt: tables of what lies on which crosspoint or aux button. _table: configurations
// that are prepared and executed, on setup_page. _sheet: what sheets of the group need beside their
// columns.
#pragma once
#include "a_pc.h"
#include "setup_sheet.h"
#include "types.h"

// Regions of a panel, as the server counts banks.
enum REGION_BASEPP : int {
    REGION_ME_BASEPP_PP,
    REGION_ME_BASEPP_ME1,
    REGION_ME_BASEPP_ME2,
    REGION_ME_BASEPP_ME3,
    REGION_ME_BASEPP_ME4,
    REGION_ME_BASEPP_ME5,
    REGION_BASEPP_1ST_AUX,
    REGION_BASEPP_2ND_AUX,
    REGION_BASEPP_AUX_MAX,
};

// --- What a button can be given ---

// What a row of a table needs in this installation.
enum ASSIGNNEED : int { NEED_NOTHING, NEED_KEYS8, NEED_SUB };

struct assign_regnametbl {
    int id = 0;                   // its number with the server
    const char* list_assign = ""; // in the list
    const char* tally_name = "";  // on the wire
    const char* btn_name = "";    // on the drawn button
    int active = 1;               // in the list of this panel
    int status = 1;               // usable
    ASSIGNNEED need = NEED_NOTHING;
};
using FlexiPadmod_regnametbl = assign_regnametbl;
using transmod_regnametbl = assign_regnametbl;
using regnametbl_dskftb = assign_regnametbl;
using regnametbl_devctrl = assign_regnametbl;
constexpr int ASSIGN_ROWS = 128; // of the longest table

// --- pc_engsetup_pnl_button ---
// The modules; the variable of their page's code.
enum SETUPMODULE_ID : uint32_t {
    MODULE_TRANSITION,
    MODULE_TRANSITION2,
    MODULE_KEY_TRANS,
    MODULE_FLEXI_PAD,
    MODULE_KEY_CONTROL,
    MODULE_KEY_CONTROL_ASSIGN,
    MODULE_XPT,
    MODULE_MENU_PANEL,
    MODULE_DEVICE_CONTROL,
    MODULE_JOY_TRACK,
    MODULE_SHOTBOX,
    MODULE_DSK_FTB,
    MODULE_FTB,
    MODULE_COMPACT_KEY_TRANS,
    MODULE_PCX50_KEY_DELEG,
    MODULE_EXTENSION,
    MODULE_MACRO_EDIT,
    MODULE_EFFECT_EDIT,
    MODULE_MODE_SELECT,
    MODULE_SHORTCUT,
    MODULE_UTILITY,
    MODULE_KEY2_BUS,
    MODULE_TRANS_RATE,
    SETUP_MODULES,
};
extern const PC_TBL pc_engsetup_panel_button;
// Keys to other pages: those that this installation does not have are disabled.
extern const PC_TBL pc_engsetup_panel_jumps;
extern const PC_TBL pc_engsetup_panel_config_programbutton; // the keys that lead to the modules
enum : int {
    BTN_ASSIGN_MAIN = 49,
    BTN_ASSIGN_SUB = 50,
    BTN_ASSIGN_BACK = 51, // where other setup pages have it, Set stands
    BTN_ASSIGN_SET = 52,
    BTN_ASSIGN_CLEAR = 53,
    BTN_ASSIGN_DEFAULT = 54,
    BTN_ACTION_FUNCTION = 36, // kinds of what an action button does
    BTN_ACTION_MACRO = 37,
    BTN_ACTION_SHOTBOX = 38,
    BTN_ACTION_NAME = 50,
    BTN_ACTION_RANGE = 51,
    BTN_MODULE_EXTENSION = 35, // of the keys to the modules
    BTN_MODULE_PCX50 = 36,
};

// --- pc_engsetup_pnl_tenkey ---
extern const PC_TBL pc_engsetup_panel_config_10keybutton;
enum : int { BTN_TENKEY_ALL = 49, BTN_TENKEY_RECALL = 51 };

// --- pc_engsetup_pnl_xpt ---
enum XPTTABLE_ID : uint32_t {
    XPTTABLE_MAIN,
    XPTTABLE_SUB,
    XPTTABLE_MIXER,
    XPTTABLE_AUX,
    XPTTABLE_ROUTER,
    XPTTABLE_LEVEL,
    XPT_TABLES,
};
extern const PC_TBL pc_engsetup_panel_xpttable;
extern const PC_TBL pc_engsetup_panel_xptassign_copy;
enum : int {
    BTN_XPT_VIDEO = 33,
    BTN_XPT_KEY = 34,
    BTN_XPT_INHIBIT = 35,
    BTN_XPT_INSERT = 36,
    BTN_XPT_OVERWRITE = 37,
    BTN_XPT_DELETE = 38,
    BTN_XPT_PAIR = 49,
    BTN_XPT_SHIFT = 51,
    BTN_XPT_DEFAULT = 54,
};

// --- pc_engsetup_pnl_table ---
extern const PC_TBL pc_engsetup_panel_xptassign_namecolor;
extern const PC_TBL pc_engsetup_panel_xptassign_usercolorselect;
extern const PC_TBL pc_engsetup_panel_xptassign_nameexport;
extern const PC_TBL pc_engsetup_panel_xptassign_sideflagsassign;
extern const PC_TBL pc_engsetup_panel_xptassign_shiftmode;
extern const PC_TBL pc_engsetup_panel_auxassign_rtrmodeset;
extern const PC_TBL pc_engsetup_panel_auxassign_sourcetableassign;

// --- pc_engsetup_pnl_sheet ---
// A sheet whose rows are the panel's, known to the server by number from 0: its first column, which
// has no path, names them. 0; 1 when the page was left.
int SetupPanelRows_Create(const SETUPSHEET& s, const SETUPTABLE& t, int on);
template <const SETUPSHEET& s> int SetupPanelRows_CreateOf(int on, uint32_t)
{
    return SetupPanelRows_Create(s, SetupSheet_Table<s>, on);
}
template <const SETUPSHEET& s>
inline constexpr PC_TBL SetupPanelRows_Code = {.proc_func = SetupSheet_ProcOf<s>,
                                               .create_func = SetupPanelRows_CreateOf<s>};

// The flexi pads beside the crosspoint buttons: a row is a page of a bus, "M/E-1@2". Default is of
// all pages of the current row's bus, and is asked about.
#define PAD_DEFAULT SHEET_LOCAL "Pad Default"
int SetupPanelPad_Proc(const SETUPSHEET& s, const SETUPTABLE& t, int msg, MsgArg ax, MsgArg bx);
template <const SETUPSHEET& s>
int SetupPanelPad_ProcOf(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    return SetupPanelPad_Proc(s, SetupSheet_Table<s>, msg, ax, bx);
}
template <const SETUPSHEET& s>
inline constexpr PC_TBL SetupPanelPad_Code = {.proc_func = SetupPanelPad_ProcOf<s>,
                                              .create_func = SetupSheet_CreateOf<s>};

// --- pc_calibration: the touch panel, cross by cross ---
extern const PC_TBL pc_engsetup_panel_maintenance_calibration;
enum : int { BTN_CALIBRATION_OK = 53, BTN_CALIBRATION_CANCEL = 54 };

// As at process start; for tests.
void EngSetupPanelTable_Reset();
