// scroll_window: which lines of a longer list are shown beside scroll bar 0; for the objects that
// paint their lines themselves.
#pragma once
#include "types.h"

struct ScrollWindow {
    int top = 0;   // first line shown
    int shown = 0; // lines that fit
    int total = 0;
};

// Make the bar and show the window's place on it.
void ScrollWindow_Open(const ScrollWindow& w, int x, int y, int height);
// LMSG_SBSEL: true when the window has moved.
bool ScrollWindow_Move(ScrollWindow& w, int kind, int bar, int step_or_line);
