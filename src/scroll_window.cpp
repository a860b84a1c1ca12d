#include "scroll_window.h"
#include "scrollbar.h"
#include <algorithm>
#include "safeguards.h"

static constexpr int BAR = 0;

void ScrollWindow_Open(const ScrollWindow& w, int x, int y, int height)
{
    (void)CreateScrollBar(BAR, x, y, height); // fails for a bar or height that no caller has
    (void)SB_SetPositionRedraw(BAR, w.top, w.shown, w.total);
}

bool ScrollWindow_Move(ScrollWindow& w, int kind, int bar, int step_or_line)
{
    if (bar != BAR)
        return false;
    const int wanted = kind == SB_THUMB ? step_or_line : w.top + step_or_line;
    const int top = std::clamp(wanted, 0, std::max(w.total - w.shown, 0));
    if (top == w.top)
        return false;
    w.top = top;
    (void)SB_SetPositionRedraw(BAR, w.top, w.shown, w.total);
    return true;
}
