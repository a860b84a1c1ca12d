// pane_search: the dialog that looks for a text in names: the find pane, the keyboard for its text,
// steps to the next and the last hit. What is searched, and what becomes of a hit, is the owner's;
// there is one dialog at a time, and the page under it takes no input.
#pragma once
#include "fmctrl3.h"

struct PANESEARCH {
    char (*text)[ELEMENT_NAME_SIZE] = nullptr; // what is searched for; lives as long as the dialog
    void (*begin)() = nullptr;                 // another text: what was found before counts no more
    void (*step)(SEARCH_DIR dir) = nullptr;    // search once; the lamp is on meanwhile
};

// Open it. False while there is no room for another pane.
bool PaneSearch_Open(const PANESEARCH& search);
void PaneSearch_Close(); // at once, for a page that is left; nothing when it is not open
// Give it the owner's LMSG_PANEBTNSEL and LMSG_PANEQUIT.
void PaneSearch_Proc(int msg, MsgArg ax);
