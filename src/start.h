// start: what is made ready before the first page, in its order; it needs no server. main goes on
// from there, and so do the tools that play the application without its loop.
#pragma once

// Settings, log, display, units, files. depth: bits a pixel of the display, 0: its own. A failure
// is fatal: it prints a line and ends the process with status 1, since the log and the screen may
// not be up. What is made ready is undone when the process ends.
void Start_Init(int depth);

// Who this unit is and where its status hub: from the EEPROM. A part of Start_Init, for tests.
void Start_Identity();
