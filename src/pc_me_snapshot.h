// pc_me_snapshot: the page code of a bank's wipe and DME wipe snapshots, ten registers on a keypad,
// and of the four snapshots of a key; two modes in which a key stores or deletes instead of
// recalling. The pages are one body; they differ in the words of their commands, the number of
// registers and the size of their pattern numbers. The registers are mirrored in register.
#pragma once
#include "a_pc.h"

extern const PC_TBL pc_me_wipe_wipess;
extern const PC_TBL pc_me_dmewipe_dmewipesnapshot;
extern const PC_TBL pc_me_key_snapshot;
