// console: the commands of the person or test that drives the simulator, from standard input and
// from a script file. Both may wait and expect without holding up the links.
#pragma once
#include <cstdint>

bool Console_OpenScript(const char* file); // false when it can't be read
bool Console_IsReading();                  // false once standard input has ended
void Console_ReadInput();                  // call when standard input is readable
// Run what is due; returns the time of the next call.
int64_t Console_Tick(int64_t now);
void Console_Quit(int status); // end the main loop after this turn
// True when the program is to end; *status gets its exit status.
bool Console_HasQuit(int* status);
