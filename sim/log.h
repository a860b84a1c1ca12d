// log: what went over the links, for people and for tests: on standard output while the echo is on,
// and always in the log file when there is one. A line is "HH:MM:SS.mmm #CLIENT > TEXT", ">" to the
// client, "<" from it; an event of the simulator itself has "-" and no client.
#pragma once
#include <string_view>

bool Log_Open(const char* file); // false when it cannot be written
void Log_SetEcho(bool on);
void Log_Traffic(int client, char direction, std::string_view text);
void Log_Note(const char* format, ...) __attribute__((format(printf, 1, 2)));
