// diag: the self-diagnosis of the units: what their boards, fans, power supplies and references
// report, and the faults that the console makes. A client hears a unit's reports from its "put
// ...Self Diagnosis Notice@UNIT#true" on. The board of the panel's menu computer is a file, which
// stands in for its I2C devices.
#pragma once
#include <string>

void Diag_Install(); // all units well; nobody asks
void Diag_ForgetClient(int client);
// A request for a unit's reports; true when the path is one.
bool Diag_Put(int client, const std::string& path, const std::string& value);

// --- Faults. word is what is reported: "OK", "NG"... False: no such unit, or no such part (from 1)
bool Diag_Fan(const std::string& unit, int fan, const std::string& word);
bool Diag_Board(const std::string& unit, int slot, const std::string& word);
bool Diag_Reference(const std::string& unit, bool is_locked, bool exists);
bool Diag_Psu(const std::string& unit, int psu, const std::string& word); // "None": pulled out
bool Diag_Hours(const std::string& unit, int hours);
void Diag_Heal();                                 // everything is well again
bool Diag_I2c(int device, int address, int byte); // on the menu's board
bool Diag_Temperature(int celsius);               // the same
