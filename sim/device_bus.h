// device_bus: the P-Bus devices and the GPI outputs of the device pages: what an enabled device was
// told last.
#pragma once
#include <string>

void DeviceBus_Install();
// A panel's put of an action; it goes on to fall back by itself.
bool DeviceBus_Put(const std::string& path, const std::string& value);
