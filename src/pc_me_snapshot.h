// pc_me_snapshot: the page code of a bank's wipe and DME wipe snapshots: ten registers on a keypad,
// and two modes in which a key stores or deletes instead of recalling. Both pages are one body;
// they differ in the words of their commands and the size of their pattern numbers. The registers
// are mirrored in register.
#pragma once
#include "a_pc.h"

extern const PC_TBL pc_me_wipe_wipess;
extern const PC_TBL pc_me_dmewipe_dmewipesnapshot;
