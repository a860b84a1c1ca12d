// device_bus: the P-Bus devices and the GPI outputs of the device pages: what an enabled device was
// told last; a pulse of an output is a line of the log.
#pragma once
#include <cstdint>
#include <string>

void DeviceBus_Install();
// A panel's put of an action; it goes on to fall back by itself.
bool DeviceBus_Put(const std::string& path, const std::string& value);
// The effect of their region passes its first keyframe: all do what their timelines say.
void DeviceBus_RunPbus();
void DeviceBus_RunGpi();
int64_t DeviceBus_Tick(int64_t now); // returns the time of the next pulse
