// system: the installation behind the server: two switchers, two panels, four effects units, a
// multi-picture unit; their lists, formats and settings, and how the server announces itself.
#pragma once
#include <cstdint>

void System_Install(); // fill an empty tree with what the installation says of itself
// Start (or, with on false, stop) the announcement of the server's own initial read to a client.
void System_Announce(int client, bool on);
void System_Restart(); // the tree at its defaults, subscriptions forgotten, all clients told
int64_t System_Tick(int64_t now); // returns the time of the next line of an announcement
int System_FrameRate();           // whole frames a second of the first switcher
