// bus: the one way in for input, tallies, timers and internal notifications.
// It interprets the tallies that change system state (bus_tally), offers every message to the
// background modules, then to the layers on screen from the top down. It owns the masks and the
// drain of the links; it holds no setting: what a tally changes lives in global, device and the
// modules that the tally names.
#pragma once
#include "types.h"

constexpr int BUS_OBJECT_TYPES = 19; // object types 0..18, as many masks
// What one pass takes off the text link, so that a burst of tallies cannot stall the screen.
constexpr int BUS_TEXT_LINES_A_PASS = 129;

// --- For everybody ---

// Deliver one message to all. Nested calls are fine: the inner message is fully delivered first.
// Returns -1 for a refused "TopMenu" or "Page" tally, 1 for a tally that was taken here and goes no
// further, 0 in every other case, whether or not anything consumed the message.
int SendMessage(int msg, MsgArg ax, MsgArg bx, MsgArg cx, MsgArg dx);

// Play the line "path#value" into the bus as if the server had sent it. The text is copied (at most
// CMD_SIZE - 1 characters). Returns -1 for a null text, otherwise 0.
int SendDummyTally(const char* text);

// Withhold the message bits of `mask` from one object type (1..18), or from all of them with type 0
// or less.
void HackMessage(int type, int mask);
// Give an object type back all messages; type 0 or less: all types.
void UnHackMessage(int type);

// --- For the main loop, once a pass ---

// Take at most BUS_TEXT_LINES_A_PASS text lines, 257 binary frames and 129 hub lines off the links
// and deliver them.
void ReceiveCommand_Management();

// --- Between bus and bus_tally ---

enum class TallyRoute {
    Pass,    // goes on to the modules and the page
    Taken,   // ends here: SendMessage returns 1
    Refused, // ends here: SendMessage returns -1
};
// Apply a tally to the system state. The texts may be read, not kept and not changed.
TallyRoute InterpretTally(const char* path, const char* value, uint32_t hash);
