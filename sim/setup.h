// setup: changes of the installation that a panel can't make by itself: how many keys a bank has,
// whether it runs two programs, the picture format. What the installation starts with stands in
// system.
#pragma once
#include <string>

// A bank is "M/E-1" to "M/E-5" or, where said, "P/P". False: no such bank, or not that one.
bool Setup_Keys(const std::string& bank, int keys); // 4 or 8; P/P always has 8
bool Setup_Multi(const std::string& bank, bool on); // also P/P, and "all"
void Setup_4K(bool on);
