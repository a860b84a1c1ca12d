// setup_switcher_io: what the switcher holds for its inputs, its outputs and its device interfaces,
// and what follows from a change of it.
#pragma once
#include <string>

void SetupSwitcherIo_Install();
// True: taken or refused, and shown. False: a value like any other.
bool SetupSwitcherIo_Put(const std::string& path, const std::string& value);
// A setting has changed: what is said of it beside.
void SetupSwitcherIo_Follow(const std::string& path, const std::string& value);
