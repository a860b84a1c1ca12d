// rules: what the switcher changes by itself when a panel changes a value.
#pragma once
#include <string>

void Rules_Install();                                                 // nothing is kept
void Rules_Follow(const std::string& path, const std::string& value); // after the change was told
