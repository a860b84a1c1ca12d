// What the files of macro share.
#pragma once
#include "macro.h"
#include "macro_event.h"
#include "store_private.h"

constexpr const char* ONLINE_EDIT = "Macro@Reg@On Line Edit@";

std::vector<MacroLine> Macro_Lines(int number); // of a register that may be empty
void Macro_SetLines(int number, const std::vector<MacroLine>& lines); // it exists from then on
bool Macro_IsLocked(int number);

// A first line of each event counts: "Event" or a comment, with what continues it.
int Macro_EventCount(const std::vector<MacroLine>& lines);
size_t Macro_LineOfEvent(const std::vector<MacroLine>& lines, int event); // from 1; the end: none

void Macro_Perform(const MacroLine& line); // do to the desk what it says; not for a pause
bool Macro_IsRunning();

void MacroOnline_Install();
bool MacroOnline_IsOpen();
void MacroOnline_Take(const MacroLine& line);                            // what a panel has done
void MacroOnline_ShowRun();                                              // a run has begun or ended
bool MacroOnline_Put(const std::string& tail, const std::string& value); // behind ONLINE_EDIT
