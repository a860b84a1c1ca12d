// router: the matrix behind the router pages: 128 destinations, eight levels, 64 sources, by the
// names of the S-bus. What is told of it, below "Router@":
//   Status@Xpt Assign@Dest3@Level1   the name of the source there
//   Destination@Dest3@Preset         what a take brings; Lock "Free", "Protect", "Lock"; Owner
//   Salvo@1@Name, Dests, Levels      how much is stored
// A destination that is locked changes for nobody, one that is protected only for its owner's
// panel. All panels here count as the first one. One that the setup inhibits is locked, too.
#pragma once
#include <string>

void Router_Install(); // every destination shows a source; nothing is preset, locked or stored
// A panel's put. True: it is done or refused, and the values are shown.
bool Router_Put(const std::string& path, const std::string& value);
// A macro's: destination and source from 1; level from 1, 0 all. Nothing where it may not.
void Router_Route(int destination, int source, int level);
// A source has another name: what shows it follows.
void Router_Rename(const std::string& from, const std::string& to);
bool Router_IsState(const std::string& path); // no part of a snapshot
// A crosspoint of a destination that is locked: a recall leaves it alone.
bool Router_IsLocked(const std::string& path);
