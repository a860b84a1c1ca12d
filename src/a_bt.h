// a_bt: the buttons of a page.
// A page brings one table of rows. From then on this module turns a press into a command, keeps the
// last tally of each button and paints it. It holds no setting of its own: a press never changes a
// status, only a tally does. It knows which button owns the knobs; what the knobs show belongs to
// a_nb.
#pragma once
#include "a_nb.h"
#include "types.h"
#include <SDL.h>

constexpr int BT_MAX = 32;     // buttons on one page
constexpr int BT_COMMANDS = 8; // command strings of one button

enum BtType : int {
    BT_TOGGLE = 1,
    BT_RADIO = 2,
    BT_RADIO_RELEASE = 3, // a second press sends null
    BT_ACTION = 4,
    BT_ACTION_STATE = 5,
    BT_JUMP = 6,
    BT_KNOB_ONLY = 7,
    BT_TAB = 8,
    BT_JUMP_10KEY = 9,
    BT_JUMP_KEYBOARD = 10,
    BT_PULLDOWN = 11,
    BT_PULLDOWN_LONG = 12,
    BT_TRANSFER_RIGHT = 13,
    BT_TRANSFER_LEFT = 14,
    BT_JUMP_POPUP = 15,
    BT_FIND = 16,
    BT_NEW = 17,
};
enum : int { BT_NO_TALLY = 0, BT_ON = 1, BT_OFF = 2, BT_THIRD = 3 }; // BT_MEM::status
enum : int { BT_ENABLED = 0, BT_DISABLED = 1, BT_CUTOFF = 2 };       // BT_MEM::visible

struct BT_MEM;

struct BT_TBL {
    int id = 0; // the place on the grid: high nibble row from 0, low nibble column from 1. Below 1
                // ends the table
    const char* caption = "";
    const char* group = nullptr; // title of the frame; a leading @ # $ % & is not shown
    int type = 0;                // BtType
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
    int (*select_func)(BT_MEM*) = nullptr;
    int (*draw_func)(BT_MEM*) = nullptr;
    int (*tally_func)(BT_MEM*, int, const char*,
                      const char*) = nullptr; // button, command index, path, value
    const char* cmd[BT_COMMANDS] = {};        // [0] the command, then dependencies
    const NB_TBL* nb = nullptr; // knob link: a table, SpecialKnob(n), NoKnobs() or null
    int no_add = 0;             // n > 0: commands from index n - 1 on are only read once
};

// The working copy of a row, about 25 KB. All its defaults are zero, so that the array of them
// costs no file space.
struct BT_MEM {
    int id = 0; // below 1 behind the last button
    const char* caption = nullptr;
    const char* group = nullptr;
    int type = 0;
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
    int redraw = 0;
    int pushed = 0; // ms for which it still looks pushed
    int status = BT_NO_TALLY;
    int visible = BT_ENABLED;
    bool is_missing = false; // all it does is ask for a page, and this installation lacks that
    int (*select_func)(BT_MEM*) = nullptr;
    int (*draw_func)(BT_MEM*) = nullptr;
    int (*tally_func)(BT_MEM*, int, const char*, const char*) = nullptr;
    // The texts, BT_COMMANDS of each, lie apart: every pass looks at all buttons and at no text.
    char (*cmd)[CMD_SIZE] = nullptr; // expanded path, without "#value"
    char (*cmd_var)[CMD_SIZE] = nullptr;
    char (*tally)[CMD_SIZE] = nullptr;
    uint32_t cmd_hash[BT_COMMANDS] = {}; // all bits set for an empty slot
    const NB_TBL* nb = nullptr;
    int disable[BT_COMMANDS] = {}; // verdicts of the conditions; [7] is also page code's own
    int undecided = 0;
    int no_add = 0;
};

// --- Knob links that are no table ---
extern const NB_TBL special_knob_marks[256];
// Number 1..255: special_knob chooses the table at run time.
constexpr const NB_TBL* SpecialKnob(int number)
{
    return &special_knob_marks[number];
}
// The button takes the knobs and shows none.
constexpr const NB_TBL* NoKnobs()
{
    return &special_knob_marks[0];
}
int SpecialKnobNumber(const NB_TBL* nb); // 1..255, 0 for everything else

// --- Opening and closing a page ---
// Build the buttons of a page and subscribe each distinct path once; a null table drops what is
// there. Rows past BT_MAX are left out with a log line. Returns 0, or 1 when it emptied.
int BT_Create(const BT_TBL* table, int unused);
int BT_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);

// --- For page code; an id that no button has is ignored (0, or -1 where said) ---
int BT_SetCaption(int id,
                  const char* caption); // not copied: lives as long as the page. -1 for null
int BT_SetType(int id, int type);
int BT_SetGroup(int id, const char* group);
int BT_SetPosition(int id, int x1, int y1, int x2, int y2);
int BT_SetStatus(int id, int status); // -1 when unknown
int BT_GetStatus(int id);             // -1 when unknown
int BT_GetOnOff(int id);
int BT_GetVisible(int id); // as page code and the tallies have it; -1 when unknown
int BT_SetKnob(int id, const NB_TBL* nb);
int BT_GetKnobAssign(); // the button that owns the knobs, -1 none
int BT_SetKnobAssign(int id);
int BT_SetDisable(int id, int on);
int BT_SetAllDisable(int on);
int BT_SetCutoff(int id, int on);
int BT_SetCutoffEx(int id, int on);                // group frames stay
int BT_SetCommand(int id, int n, const char* cmd); // -1 when unknown
int BT_SetCommand_NoRemove(int id, int n, const char* cmd);
int BT_SetCommand_NoAdd(int id, int n, const char* cmd);
int BT_Follows(const char* path);                   // 1 while a button is subscribed to it
int BT_UndecidedRequest(const char* cmd, int flag); // "path#value"; -1 for null

// --- What a row names: select, draw and tally families ---
int bt_sel_normal(BT_MEM* b);
int bt_drw_normal(BT_MEM* b);
int bt_tly_normal(BT_MEM* b, int i, const char* path, const char* value);

int bt_sel_normal_nextver(BT_MEM* b);
int bt_drw_normal_nextver(BT_MEM* b);
int bt_sel_tab(BT_MEM* b);
int bt_drw_tab(BT_MEM* b);
int bt_tly_tab(BT_MEM* b, int i, const char* path, const char* value);
int bt_sel_keypriority(BT_MEM* b);
int bt_tly_keypriority(BT_MEM* b, int i, const char* path, const char* value);
int bt_sel_keypriority1(BT_MEM* b);
int bt_tly_keypriority1(BT_MEM* b, int i, const char* path, const char* value);
int bt_drw_keypriority(BT_MEM* b);
int bt_sel_jmptokeypriority(BT_MEM* b);
int bt_sel_submask_ptnsel(BT_MEM* b);
int bt_sel_cgborder(BT_MEM* b);
int bt_sel_roll_splitmode(BT_MEM* b);
int bt_sel_pageturn_splitmode(BT_MEM* b);
int bt_drw_normal_light(BT_MEM* b);
int bt_drw_color_select(BT_MEM* b);
int bt_drw_clip_playrec(BT_MEM* b);
int bt_drw_clip_record(BT_MEM* b);
int bt_drw_menu_macro_playrec(BT_MEM* b);
int bt_drw_sbus_remote(BT_MEM* b);
int bt_tly_trans_dmewipeadj(BT_MEM* b, int i, const char* path, const char* value);
int bt_tly_graphic(BT_MEM* b, int i, const char* path, const char* value);
int bt_tly_lightptnbar(BT_MEM* b, int i, const char* path, const char* value);
int bt_tly_globaleffect_shadow_source(BT_MEM* b, int i, const char* path, const char* value);
int bt_tly_dmewipe_size(BT_MEM* b, int i, const char* path, const char* value);
int bt_tly_dmewipe_trans(BT_MEM* b, int i, const char* path, const char* value);
int bt_tly_edge(BT_MEM* b, int i, const char* path, const char* value);
int bt_tly_edgeadj(BT_MEM* b, int i, const char* path, const char* value);
int bt_tly_keydrop(BT_MEM* b, int i, const char* path, const char* value);
int bt_tly_freeze(BT_MEM* b, int i, const char* path, const char* value);
int bt_tly_corner_pinning(BT_MEM* b, int i, const char* path, const char* value);

// --- Between a_bt and its families ---
BT_MEM* bt_first();                  // the buttons in table order, ended by an id below 1
BT_MEM* bt_find(int id);             // null when no button has it
bool bt_is_enabled(const BT_MEM* b); // takes a press
uint32_t bt_target(const BT_MEM* b); // the page that a press asks for where it does no more; else 0
bool bt_owns_knobs(const BT_MEM* b);
bool bt_was_pushed_last(const BT_MEM* b);
void bt_take_knobs(BT_MEM* b); // b becomes the owner and shows its table
// When b owns the knobs and shows a table: nobody owns them, the column is blank. A link of
// NoKnobs() keeps them.
void bt_drop_knobs(BT_MEM* b);
void bt_show_enabled(BT_MEM* b,
                     bool disabled); // visible by a verdict; a disabled button lets go of the knobs
void bt_follow_knobs(BT_MEM* b,
                     int i); // command i has changed: a numbered link may want another table

// The table that a numbered link stands for right now, from formats, aspects and the tallies of b;
// null when the number has no case.
const NB_TBL* special_knob_table(const BT_MEM* b);
// All tables that a number may stand for, each once, into tables: at most size. Returns how many.
int special_knob_tables(int number, const NB_TBL** tables, int size);
int special_knob(BT_MEM* b); // choose and show it

// Draw the caption with the margins of the type; face gives the size that the text must keep to.
void bt_caption(const BT_MEM* b, const SDL_Surface* face, int top, int font, unsigned col);
// Draw the frames of all groups; erase: clear the area of the buttons first and flush it.
void bt_drw_groups(const Rect& area, bool erase);
