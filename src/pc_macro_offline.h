// pc_macro_offline: the offline editor of macros. It works on the copy of a register's file that
// lies in MACRO_EDIT_FILE: the events stand in list 1, the words that the parameter in focus may be
// in list 2; numbers and time codes are set by a knob, texts by the keyboard. A store writes the
// copy and sends it to a register of the panel. While there are changes that no register has, the
// page asks before it is left.
#pragma once
#include "a_nb.h"
#include "a_pc.h"
#include "macro_file.h"

extern const PC_TBL pc_macro_offline;

enum : int { LIST_MACRO_EVENTS = 1, LIST_MACRO_VALUES = 2 };
constexpr int MACRO_SHOWN_SLOTS = 4; // parameters side by side in the list of events
enum : int {                         // columns of the list of events
    MACRO_COL_CONTENTS,
    MACRO_COL_SYMBOL,
    MACRO_COL_SLOT,
};

enum : int {                // buttons
    BTN_MACRO_GROUP_1 = 49, // contents, symbol
    BTN_MACRO_GROUP_2 = 50,
    BTN_MACRO_GROUP_3 = 19, // and three further: parameters
    BTN_MACRO_GROUP_7 = 35, // and three further
    BTN_MACRO_INSERT_BEFORE = 51,
    BTN_MACRO_INSERT_AFTER = 52,
    BTN_MACRO_DELETE = 53,
    BTN_MACRO_STORE = 54,
};
enum : int { NB_MACRO_REGISTER = 1, NB_MACRO_VALUE = 2 };

enum STOREMODEL : int {
    STOREMODEL_NONE = 0,
    STOREMODEL_LOCKED = 1, // the last store was for a locked register: nothing was done
};
extern STOREMODEL MacroOffLine_StoreModel;

// Whether this line may become a "Continue": an event stands before it, comments aside, that
// another may follow, and what it is itself may follow another; a line that is none yet may.
bool is_continue_valid(const MacroEvent& event);

// The file in hand is on its way to the panel; it outlives the page.
bool MacroOffline_IsStoring();
void MacroOffline_Reset(); // as at process start, also a store that is under way; for tests
