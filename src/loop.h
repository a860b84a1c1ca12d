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
// The engineering menu's walk through all pages; called once a pass in that mode.
void GL_AllPageSet();

// --- For tests ---
void Loop_Reset();                 // as at process start
void Loop_Event(SDL_Event* event); // handle one event as the pass does
