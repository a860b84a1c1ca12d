// macro: the macro registers at work: their events, which a run plays on the desk with its waits,
// the recording of what panels do, and the editing of a register in place. The registers themselves
// belong to store, the buttons that macros hang on to attach.
#pragma once
#include <cstdint>
#include <string>

struct Kind;

void Macro_Install(); // nothing runs, none is edited
// A panel's put below "Macro@". True: the value is shown here and not the put's own.
bool Macro_Put(const std::string& path, const std::string& value);
int64_t Macro_Tick(int64_t now); // returns the time of the next event

// --- Running: one at a time ---
void Macro_Run(int number, int from_event = 1); // of an empty register: nothing
void Macro_Stop();

// --- What panels do, for a recording or the editor that is open ---
void Macro_WatchPut(const std::string& path, const std::string& value);
void Macro_WatchRecall(const Kind& kind, int row, int number);
bool Macro_Record(int number, const std::string& name); // false: no such register, or locked
bool Macro_EndRecord();                                 // false: there was none

void Macro_RegisterChanged(int number); // the editor shows what it holds now

// --- The console ---
// "SYMBOL,NAME,VALUE,...": as if a panel had done it. False: not the form of an event.
bool Macro_Operate(const std::string& event);
bool Macro_Print(int number); // false: no such register
