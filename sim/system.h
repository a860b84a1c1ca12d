// system: the installation behind the server: two switchers, two panels, four effects units, a
// multi-picture unit; their lists, formats and settings, and how the server announces itself.
#pragma once
#include <cstdint>
#include <string>

void System_Install(); // fill an empty tree with what the installation says of itself
// A client asks for (or, with on false, no more for) announcements of the server's own initial
// read; asking starts one.
void System_Announce(int client, bool on);
// A text client has come or gone. One that comes back doesn't ask again: the server must announce
// itself.
void System_Connected(int client);
void System_Lost(int client);
void System_Restart(); // the tree at its defaults, subscriptions forgotten, all clients told
// A panel names the reference channel in eight binary digits and reads it as a hexadecimal mask.
bool System_PutMpe(const std::string& path, const std::string& digits);
bool System_PutDmeChannels(const std::string& path, const std::string& number);
void System_SetDme(int unit, bool is_up); // 1 to 4
int64_t System_Tick(int64_t now);         // returns the time of the next line of an announcement
int System_FrameRate();                   // whole frames a second of the first switcher
