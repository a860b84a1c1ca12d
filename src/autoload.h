// autoload: loading of files when the power comes on.
// A user lays what a unit shall start with into the directory "PWON_LD" of the local drive. The
// server asks for each unit whether there is something, and, when there is, to load it. This module
// searches the directory, keeps what it found until then, and gives it to the work engine as a
// transfer in the background. It repeats nothing: a question that cannot be answered now is asked
// again by the server.
#pragma once
#include "types.h"

extern int GL_AutoLoad; // -1 until the server has told, 0 off, otherwise on

// --- The two questions, by the unit's word: "PNL", "SWR1", "SWR2", "DME1" to "DME4" ---

enum : int { // of AutoLoad_DataExist
    AUTOLOAD_UNKNOWN = -1,
    AUTOLOAD_SEARCHING = 0, // answered when the search has ended
    AUTOLOAD_BUSY = 1,      // not answered: a search, another transfer or a pane is in the way
    AUTOLOAD_NOT_TOLD = 2,  // not answered: whether it is on is not yet known
    AUTOLOAD_OFF = 3,       // answered with "false"
    AUTOLOAD_FOUND = 4,     // answered with "true": data is waiting already
};
// Is there data for the unit? The answer is "put Info@Auto Load@Data Exist@<unit>#true" or
// "#false", at the latest when the search has ended.
int AutoLoad_DataExist(const char* device);
// Load what was found for the unit; it joins a load that runs. "put Info@Auto Load@Start@<unit>"
// with "#true", and with "#false" when all is loaded. 0, also when nothing was found and therefore
// nothing begins or is answered; -1 for an unknown unit.
int AutoLoad_Start(const char* device);

// --- For info ---

// The setting, the two questions, and the server's own link.
void AutoLoad_Tally(const char* path, const char* value);
// The search through one folder of the frame memory, known by its label: a file, and the end.
extern uint32_t AutoLoadFindID; // label of the running search, 0 none
void AutoLoadFind_Tally(const char* path, const char* time);
void AutoLoadFindEnd_Tally();

// The server answers no search any more and asks all anew: what was found is forgotten. To be
// called before the work engine ends its jobs, which would pass for answers; a load ends with its
// job.
void AutoLoad_LinkLost();
void AutoLoad_Reset(); // as at process start
