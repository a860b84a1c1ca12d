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
// answers led to. Returns the processor time of the longest pass, in ms.
double Guest_Settle(int rounds);
// A round over the pages begins, from 1: the server makes the installation again what it was
// before it was touched, and the guest goes back to the top menu.
void Guest_BeginRound(int round);
// Open a row of the table: as the installation has it where it exists, else by its id alone. False
// when it cannot be.
bool Guest_Open(const PAGE& row);
// Whether the id begins with one of the banks, which are digits of ids; without any it does.
bool Guest_IsWanted(uint32_t id, char** banks, int count);
// Whether the installation has this row under its number.
bool Guest_IsHere(const PAGE& row);
// Close the windows and panes that stand over the page.
void Guest_CloseAll();

// --- What the process holds and takes ---
int Guest_Descriptors();
long Guest_ResidentKb();
double Guest_ProcessorMs(); // since its start
