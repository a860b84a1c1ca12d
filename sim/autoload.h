// autoload: the power-on questions of the server: for each unit, whether a panel has data for it,
// and, when it has, to start loading. A question that isn't answered is asked again.
#pragma once
#include <cstdint>
#include <string>

void Autoload_Start(); // ask for all units, one after the other
// A panel's put below "Info@Auto Load@" is an answer. False: not one.
bool Autoload_Put(const std::string& path, const std::string& value);
int64_t Autoload_Tick(int64_t now);
