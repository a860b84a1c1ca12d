// bench_pane: what panes cost: opening and closing one, a step of a progress, a press in the region
// selector. The page beneath is empty, and a flush depends on the display: neither is in the
// figures.
#include "bench_support.h"
#include "bus.h"
#include "message.h"
#include "pane.h"
#include "tdl.h"

namespace
{
// A pane stays open from one run of a case to the next; runs of all cases are mixed, so each case
// opens its own.
int open_pane = 0;
int open_kind = 0;

void Repaint(int elapsed_ms)
{
    SendMessage(MSG_REDRAW, elapsed_ms, 0, 0, 0);
}

bool Reopen(int kind)
{
    if (open_kind == kind)
        return false;
    if (open_pane)
        Pane_Quit(open_pane);
    open_pane = 0;
    open_kind = kind;
    return true;
}

void region_open_and_close()
{
    Reopen(0);
    const int id = PaneRegion_Create(26, 0); // the largest
    Repaint(10);
    Pane_Quit(id);
}

void message_open_and_close()
{
    Reopen(0);
    const int id = PaneMessage_Create("Load", PANE_INFO, "Some requests are skipped.");
    Repaint(10);
    Pane_Quit(id);
}

// What a close does on the screen; without a pane to free it can be done again and again.
void close_last()
{
    Reopen(0);
    TDL_PopScreen();
    Pane_RedrawAll();
}

void progress_step()
{
    static int percent = 0;
    if (Reopen(1))
        open_pane = PaneProgress_Create("Load", "", 1);
    percent = (percent + 1) % 100;
    (void)PaneProgress_SetProg(open_pane, percent, ""); // it is open
    Repaint(10);
}

void region_press()
{
    if (Reopen(2))
        open_pane = PaneRegion_Create(26, 0);
    SendMessage(MSG_PRESS, 170, 170, 1, 0); // the first cell
    Repaint(150);
}

void idle_pass()
{
    if (Reopen(2))
        open_pane = PaneRegion_Create(26, 0);
    Repaint(10);
}
} // namespace

int main(int argc, char** argv)
{
    // Opening may cost three copies and closing two.
    static constexpr BenchCase cases[] = {
        {.name = "open and close the region selector",
         .once = region_open_and_close,
         .limit_copies = 5},
        {.name = "open and close a message", .once = message_open_and_close, .limit_copies = 5},
        {.name = "close the last pane", .once = close_last, .limit_copies = 2},
        {.name = "a step of a progress", .once = progress_step, .limit_copies = 0.3},
        {.name = "a press in the region selector", .once = region_press, .limit_copies = 0.3},
        {.name = "a pass over a pane that rests", .once = idle_pass, .limit_copies = 0.02},
    };
    Bench_Screen();
    return Bench_Main(argc, argv, cases);
}
