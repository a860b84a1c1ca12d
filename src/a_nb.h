// a_nb: the number boxes along the right edge, one for each physical knob of the menu panel. The
// server or the page code owns a value; the box shows it and lets the operator change it by knob,
// drag, wheel and ten keys. Which table shows is decided by the button that owns the knobs (a_bt);
// the ten keys themselves belong to window.
#pragma once
#include "types.h"

struct NB_TBL {
    int id = 0; // low nibble: slot 1..5 from the top, high nibble: layer; below 1 ends the table
    const char* caption = nullptr;
    int type = 0;   // 1, 2, 4 decimals; 16 integer; 32 time code
    double min = 0; // may exceed max: such a bar runs backwards
    double max = 0;
    // A server path; "Panel@Common@Knob0".."4"; the same behind "LOCAL@"; "LOCAL"; "".
    const char* cmd = nullptr;
    double scale = 0; // knob counts for one unit of value; 0 where the server does the knob work
    const char* zero = nullptr; // of a whole number: what the box shows for 0, a "None"
};
enum : int { NB_1 = 1, NB_2 = 2, NB_4 = 4, NB_INT = 16, NB_TC = 32 };
constexpr NB_TBL NB_END = {.id = -1};
constexpr int NB_MAX = 10; // boxes of one table

extern const NB_TBL NB_Non[]; // the empty table

struct NB_MEM {
    int id = -1;
    const char* caption = nullptr;
    int type = 0;
    double min = 0;
    double max = 0;
    double scale = 0;
    int redraw = 0;
    int visible = 0;
    char cmd[CMD_SIZE] = {}; // expanded
    uint32_t cmd_hash = 0;   // of the path behind "LOCAL@" in that form
    double var = 0;
    int var_valid = 0;  // a value has arrived
    double dispvar = 0; // shown instead of var while the operator's change is fresh
    int dispvar_enable = 0;
    int dispvar_time = 0; // ms left of that
    const char* zero = nullptr;
    const char* str_val = nullptr; // text of a time code whose min is negative
    int added = 0;                 // subscribed from here, so it is removed from here
};

// --- Opening and closing a table ---
// Show a table under a title, which also fills the '$' of its commands. A table of several layers
// comes back on the layer that it was left on. Null or NoKnobs() empties the object and returns 1.
int NB_Create(const NB_TBL* nt, const char* tit);
// The table that shows already, under the same title, is made anew without losing what the operator
// is doing: values, the selected box with its ten keys, a bar that is held. Another one closes the
// ten keys with nothing sent.
int NB_CreateBlank();
// The boxes are not subscribed, and the next NB_Create will not remove them.
int NB_Create_NoAdd(const NB_TBL* nt, const char* tit);
int NB_AddTable(const NB_TBL* nt);   // append rows; -1 when they do not all fit
int NB_PushTable(const NB_TBL* nt);  // append one row; -1 when it does not fit
int NB_PushTable2(const NB_TBL* nt); // the same, replacing any box of that id
const NB_TBL* NB_ShownTable();       // that NB_Create has shown last, null when it was emptied
int NB_PopTable();                   // drop the last box; these three: -1 when there is none
int NB_PopTable2(const NB_TBL* nt);  // drop the box of that row
int NB_DeleteTable(int id);          // drop the box, closing the gap
int NB_Proc(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);
int NB_Follows(const char* path); // 1 while a box is subscribed to it from here

// --- For page code; -1 for an id that no box has and for a value that is not finite ---
int NB_SetVar(int id, double var);
int NB_SetDispVar(int id, double var);      // shown for 500 ms, then the value
int NB_SetStrVar(int id, const char* text); // not copied
int NB_InvalidVar(int id);
int NB_SetMinMax(int id, double min, double max);
int NB_AddMinMax(int id, double min, double max); // the same and repaint
int NB_SetCaption(int id, const char* caption);   // not copied

// Point a box and its knob at another path; the box has no value until the first tally of it.
int NB_SetCommand(int id, const char* cmd);
int NB_SetCommand_NoAdd(int id, const char* cmd); // the page code subscribes it
int NB_SetTitle(const char* tit);
const char* NB_GetTitle();
int NB_GetLayer();
int NB_SetSelect(int id); // 0: none

// --- For the ten-key window and the menu macro; -1 as above ---
// To the selected box. The value that it had when it was selected goes out as it is or, where its
// text would round it, not at all.
int NB_SendValue(double var);
int NB_SendValue2(int id, double var); // to a named box
int NB_SendTrimValue(double var);      // added to the selected box's value
// The box with this caption: its command and its shown value. Returns its id, or -1.
int NB_GetKnob_info(const char* knob_key, char* msg, double* var, int msg_size);
// A value as its box shows it; "" for a type that shows nothing. A time code shows its hours from
// one hour on.
void NB_Text(const NB_MEM& box, double var, char* text, int size);

extern char NB_Entry_Mode[32]; // what a ten-key window is for; "" none
extern char GL_KnobSetVar[64]; // the value at selection, as text; "" with no box selected
