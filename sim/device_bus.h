// device_bus: the P-Bus devices, the GPI outputs and the auto execute menu of the device pages:
// what an enabled device was told last, which register is recalled by which step.
#pragma once
#include <cstdint>
#include <string>

void DeviceBus_Install();
// A panel's put of an action; it goes on to fall back by itself.
bool DeviceBus_Put(const std::string& path, const std::string& value);
int64_t DeviceBus_Tick(int64_t now); // returns the time of the next step of the auto execute menu
