// initread: what the application subscribes when the server has announced itself, in three stages,
// and how that is undone. The lists are data: a stage and its opposite read the same rows. The main
// loop counts the passes between the stages; the tallies that answer belong to the bus.
#pragma once

// Restart the schedule: the main loop runs the stages as its pass counter goes by.
void InitialRead();
// The timed progress pane after a start or a reconfiguration; cancel non-zero gives it a cancel
// button. One that is up makes way.
void InitialProgress(int cancel);
// Whether the page is still the one from before the timed progress, and none is asked for: then the
// initial page may take its place.
bool InitialProgress_HasScreen();

// --- The stages, for the main loop and the system install ---
void InitialCommand0(); // the lists of units; the queue then waits for the answers
void InitialCommand1(); // everything that the menu follows whatever page is up
void InitialCommand2(); // power-on loading and diagnosis
// The opposites: each "add" of the stage becomes a "remove".
void DeathCommand0();
void DeathCommand1();
void DeathCommand2();

// --- The tables of the status hub ---
void InitialCommandSHP();
void DeathCommandSHP();

// The sub sides of the banks, when one runs multi program 2.
void InitialCommand_MP2();

// A tally on "Info@Initial Read Status": "unit,word". The value is not changed.
void InitialRead_Status(const char* value);
