// pc_macro_online_edit: the online editor of macros. It works on the register itself, through the
// server: the list shows the window of events that the server tells; what is inserted or put in the
// place of other events is what was done last at the panel. In "Auto Insert" the server inserts by
// itself whatever is done, in "Edit Insert" the keys do.
#pragma once
#include "a_pc.h"

extern const PC_TBL pc_macro_online_edit;

// The text link has fallen: what the page shows may have changed when it is back.
void MacroOnline_LinkLost();

constexpr int LIST_MACRO_ONLINE = 1;
enum : int { // its columns
    ONLINE_COL_CONTENTS,
    ONLINE_COL_SYMBOL,
    ONLINE_COL_DATA,
    ONLINE_COL_MODIFIED,
    ONLINE_COLUMNS,
};
enum : int { // buttons
    BTN_ONLINE_AUTO_INSERT = 33,
    BTN_ONLINE_EDIT_INSERT = 34,
    BTN_ONLINE_PREVIOUS = 49,
    BTN_ONLINE_NEXT = 50,
    BTN_ONLINE_BEFORE = 51,
    BTN_ONLINE_AFTER = 52,
    BTN_ONLINE_MODIFY = 53,
    BTN_ONLINE_DELETE = 54,
    BTN_ONLINE_RUN = 36,
};
