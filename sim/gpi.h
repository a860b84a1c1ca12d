// gpi: the contacts that come in. A contact of a unit does what its input page assigns to it: a
// cut, a key, a recall, a macro. Which that is belongs to the setup of the units; the outputs only
// have a test fire there.
#pragma once
#include <string>

// "SWR", "PNL", "DME1" to "DME4", "DCU1", "DCU2", and a port from 1. An input without a trigger or
// on ports that are disabled does nothing and says so in the log. False: no such unit or port.
bool Gpi_Close(const std::string& unit, int port);
