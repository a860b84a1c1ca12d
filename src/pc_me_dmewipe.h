// pc_me_dmewipe: page code around the effects-unit wipe of a bank and that with which a key comes
// and goes: its pattern, its modifiers, place, size and crop of its channels. The list of patterns
// itself is a_dw's; the snapshots are not here.
#pragma once
#include "a_pc.h"
#include "types.h"

// --- Page code: the wipe of a bank ---
extern const PC_TBL pc_me_dmewipe_pattern;
extern const PC_TBL pc_me_dmewipe_ptnmodifier;
extern const PC_TBL pc_me_dmewipe_edgedirection;
extern const PC_TBL pc_me_dmewipe_modify;
extern const PC_TBL pc_me_dmewipe_modify_removefrombigin;

// --- Page code: the wipe of a key ---
extern const PC_TBL pc_me_key_trans_dmewipead;
extern const PC_TBL pc_me_key_trans_removefrombigin;

// --- What they share ---

// True while the bank of the page has no effects-unit wipe to adjust: its main page while the bank
// is assigned to the sub side only, its sub page while it is assigned to the main side only or the
// installation has no such wipe on sub sides. Never on a page of a key.
bool dmewipe_is_off();

// A path of the wipe that the page is about: "M/E-1 SUB@DME Wipe" and the tail, or
// "M/E-1@Key1@Transition@DME Wipe" and the tail, which begins with "@" or is "". A longer path than
// a command is cut.
void dmewipe_path(char (&dst)[CMD_SIZE], const char* tail);
