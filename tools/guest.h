// guest: the application in a tool, at the simulator's links but without its loop: no pacing, no
// touch panel, no schedule. The tool opens pages and sends messages itself; what it does between is
// a pass.
#pragma once
#include "page.h"

// Make everything ready, connect to the server that tm3.ini names and let it tell what it tells at
// a start. The working directory is build/run, the display needs nobody. False, with a line
// printed, when no server answers.
bool Guest_Start();
// Links, a page change that is asked for and may take place, repaint. elapsed_ms: how much time the
// objects take it for.
void Guest_Pass(int elapsed_ms = 10);
// Passes until the server has answered all that has been sent, and so many times again what its
// answers led to.
void Guest_Settle(int rounds);
// Open a row of the table: as the installation has it where it exists, else by its id alone. False
// when it cannot be.
bool Guest_Open(const PAGE& row);
// Close the windows and panes that stand over the page.
void Guest_CloseAll();
