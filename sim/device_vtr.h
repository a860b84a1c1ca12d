// device_vtr: the machines behind the device pages: twelve recorders and players, a disk recorder's
// files. What panels hear of a machine, below "Device@DDR/VTR@Dev1@":
//   Transport   "Stop", "Play", "Rewind", "F Fwd", "Record", "Cue Up" ("Cueing" on the way there),
//               "Variable", "Shuttle", "Jog"
//   Recue TC    where the last play began; "Recue" goes there
//   Time Code   "01:00:12:05", while a panel asks for it by Cueup&Play@Tally Back
// A put of the name of a device to "Device@DDR/VTR@File List" is answered with its files.
#pragma once
#include <cstdint>
#include <string>

void DeviceVtr_Install(); // all stand at their start
// A panel's put. True: it is done or refused, and the values are shown.
bool DeviceVtr_Put(const std::string& path, const std::string& value);
// A macro's: a word of the transport, or a file to load. False: no such device.
bool DeviceVtr_Do(const std::string& device, const std::string& transport);
void DeviceVtr_Load(const std::string& device, const std::string& file);
void DeviceVtr_CueTo(const std::string& device, const std::string& timecode); // "" its start
// The effect of the device's region passes its first keyframe, or is rewound: the device does what
// its timeline says. n counts from 0.
void DeviceVtr_RunTimeline(int n);
void DeviceVtr_RewindTimeline(int n);
// A knob on a time code. False: a value like others, which the knob moves by itself.
bool DeviceVtr_Turn(const std::string& path, int detents);
// The shuttle or the variable speed is another one now.
void DeviceVtr_Follow(const std::string& path);
int64_t DeviceVtr_Tick(int64_t now); // returns the time of the next frame
