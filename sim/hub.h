// hub: the status hub's tables for files, "SWR1.File" and so on: who has reserved a category of a
// unit, and what the unit does with it. A user who holds a category says what he is about to do;
// the unit gets its files ready or takes them, and says so.
#pragma once
#include <cstdint>
#include <string>

void Hub_Line(int client, const std::string& line);
void Hub_ForgetClient(int client); // what it held is free again
int64_t Hub_Tick(int64_t now);     // returns the time of the next answer of a unit
void Hub_Restart();                // all tables as at the start; told to who listens

bool Hub_IsReserved(const std::string& target, const std::string& category);

// --- The console. False: no such target or category ---
bool Hub_Hold(const std::string& user, const std::string& target, const std::string& category);
bool Hub_Connect(const std::string& target, bool is_on); // the unit comes or goes
void Hub_Print();
