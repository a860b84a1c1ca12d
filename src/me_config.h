// me_config: which outputs and keys the banks of the switcher have; what the tabs and transition
// pages ask. A bank that runs multi program 2 has a main and a sub side; what a key belongs to
// follows from two lists of the setup: which side an output carries, and which keys an output
// shows. Rows come one a tally and stay until "KILL".
#pragma once
#include "types.h"

// "BANK,OUTPUT,SIDE": "M/E-1,2,Sub".
void swcnf_set(const char* value);
// "BANK,OUTPUT,KEYS": "M/E-1,2,0F", hexadecimal, bit 0 is Key1.
void swcnfpgm_set(const char* value);
// Work out anew who belongs to what; after either list has changed.
void mp2_keyassign_check();

// What the tab of a key page says: "Main", "" or both with "Sub". Two empty texts for a page that
// is no key page and for a key that no output shows.
struct KeyAssignText {
    const char* main = "";
    const char* further = "";
};
KeyAssignText keyassign_str_get(uint32_t page);

// The finest split of the switcher's boards: above 2 the second and third bank share their wipes.
int me_split_max();

// A processed key's rotation was changed: which channel turns, for the corner-pin and rotation
// knobs. Other paths are ignored.
void GL_ProcKey_Rotation(const char* path, const char* value);
int GL_ProcKeyRotationInfo(int me, int key); // me 0 P/P, 1..5; key 1..8; 0 when unknown

void me_config_reset(); // as at process start; for tests
