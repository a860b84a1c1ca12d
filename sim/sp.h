// sp: the signal processors: their levels, told to whoever follows them ten times a second.
#pragma once
#include <cstdint>

void Sp_Install();
int64_t Sp_Tick(int64_t now); // returns the time of the next levels
