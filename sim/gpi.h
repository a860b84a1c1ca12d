// gpi: the contacts that come in. At the edge that is set a contact of a unit does what its input
// page assigns to it: a cut, a key, a recall, a macro. One that is set to a level has the function
// of its H/L page follow it, which is a line of the log. Which that is belongs to the setup of the
// units; the outputs only have a test fire there.
#pragma once
#include <string>

// "SWR", "PNL", "DME1" to "DME4", "DCU1", "DCU2", and a port from 1, which is low until it is set
// high. Where nothing is set to the edge, or the ports are disabled, nothing is done but a line of
// the log. False: no such unit or port.
bool Gpi_Set(const std::string& unit, int port, bool is_high);
