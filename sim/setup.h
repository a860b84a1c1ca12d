// setup: changes of the installation: by a panel's engineering setup, after which the units go and
// come back, and those that a panel can't make by itself: which units there are, how many keys a
// bank has, whether it runs two programs. What the installation starts with stands in system, what
// only the setup pages show is here.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

// A bank is "M/E-1" to "M/E-5" or, where said, "P/P". False: no such bank, or not that one.
bool Setup_Keys(const std::string& bank, int keys); // 4 or 8; P/P always has 8
bool Setup_Multi(const std::string& bank, bool on); // also P/P, and "all"
void Setup_4K(bool on);
// The units that the installation has, of those that the desk knows; the rest are off the list of
// the network. False, and nothing changed, when it knows one of them not.
bool Setup_Units(const std::vector<std::string>& names);

void Setup_Install();
bool Setup_Put(const std::string& path, const std::string& value); // true: taken and shown
void Setup_NextNg(); // the next of the works that take their time fails
int64_t Setup_Tick(int64_t now);
