// pc_macro_attach: the page of the attachments: which macro hangs on which button. It follows the
// server's list while it is open; attaching itself is done at the buttons.
#pragma once
#include "a_pc.h"

extern const PC_TBL pc_macro_attach;

constexpr int LIST_MACRO_ATTACH = 1;
enum : int {                 // buttons
    BTN_ATTACH_BLOCK = 33,   // P/P and the banks
    BTN_ATTACH_BLOCK_7 = 49, // aux, others
    BTN_ATTACH_BUTTON_MODE = 51,
    BTN_ATTACH_PAIR_MODE = 52,
    BTN_ATTACH_DELETE = 53,
    BTN_ATTACH_ALL_CLEAR = 54,
};
