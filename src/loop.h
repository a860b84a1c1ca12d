// loop: one pass of the main loop: pacing, links, touch panel, one SDL event, the page change, the
// repaint, the schedule of the initial read. main starts it; the touch panel itself is in touch.
#pragma once
#include <SDL.h>

extern uint32_t TickNow;
extern uint32_t TickBefore;
extern uint32_t MBDownNow;
extern uint32_t MBDownBefore;
extern int MBDown;

// One pass. Returns 1 when it was the last (the window was closed), otherwise 0.
int MainPass();

// A reduced pass for code that waits inside a long operation: pacing, one event, repaint. No links,
// no page change.
void MainEventCheck();
// Repaint everything that is dirty and flush the screen.
void RefreshScreen();

// --- For the engineering pages: how long passes and page changes take ---
struct LoopFigures {
    uint32_t since = 0;  // TickNow at the last reset
    uint32_t passes = 0; // since then, as all that follows
    uint32_t busy_ms = 0;
    int longest_ms = 0;        // of the passes, without the wait for the next one
    uint32_t longest_page = 0; // that was shown at the end of it
    uint32_t changes = 0;      // page changes that the loop has made
    int page_ms = 0;           // of the last of them
    uint32_t page = 0;         // the page that it opened
    int page_longest_ms = 0;
    uint32_t page_longest = 0;
};
const LoopFigures& Loop_Figures();
void Loop_ResetFigures();

// --- For tests ---
void Loop_Reset();                 // as at process start
void Loop_Event(SDL_Event* event); // handle one event as the pass does
