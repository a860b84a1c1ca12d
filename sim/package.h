// package: what the installs of a panel find at the desk: packages and bitmaps on the stick,
// versions of the units, and how the device's scripts end. The panel runs them by itself; they
// stand in the working directory and note their calls in /var/tmp/device.log.
#pragma once
#include <string>

// Put the packages, the bitmaps and the version files there. False when no stick is in.
bool Package_Put();
// The version files alone, as the units report their software.
bool Package_PutVersions();
// The next calls of a script, by its name without the ending, end with this status.
bool Package_Fail(const std::string& script, int status, int calls);
