// setup_units: what the installation holds for its effects units, device controllers, router,
// tallies and multi-program engines, and what follows from a change of it.
#pragma once
#include <string>

void SetupUnits_Install();
// True: taken or refused, and shown. False: a value like any other.
bool SetupUnits_Put(const std::string& path, const std::string& value);
