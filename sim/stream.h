// stream: the region streams of the binary link: who follows which, and the frames that carry them.
// What a region plays belongs to timeline; bytes and sockets to link.
#pragma once
#include <string_view>

void Stream_Receive(int client, int command, unsigned id, std::string_view data);
void Stream_ForgetClient(int client);
void Stream_Forget(); // the server restarts

// --- To all that follow the region ---
void Stream_Selection();
void Stream_Effect(int region); // what it has loaded; its position follows, which may have changed
void Stream_Position(int region);
