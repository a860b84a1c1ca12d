// pc_menu_macro_edit: the page of the list that is recorded and edited. Opening it begins a session
// of recording, its key Exit ends it; between, the operator works on the pages that he records. The
// list itself is menu_macro.
#pragma once
#include "a_pc.h"

extern const PC_TBL pc_file_menu_macro_edit;

// Buttons that the code names.
enum : int {
    BTN_MENU_MACRO_AUTO_INSERT = 17,
    BTN_MENU_MACRO_PAUSE_AUTO = 18,
    BTN_MENU_MACRO_RECYCLE = 19,
    BTN_MENU_MACRO_EVENT = 37,
    BTN_MENU_MACRO_ALL = 38,
};
