// pc_sp: page code of the signal processors: one of them at a time (one_of), with its levels as
// bars below the list, or those of all of them. The server tells levels many times a second as
// long as a page stands; a page paints them with its pass, not with the line.
#pragma once
#include "a_pc.h"

constexpr int SP_CHANNELS = 8;
#define SP_PEAK_HOLD "LOCAL@SP@Peak Hold"
#define SP_PEAK_RESET "LOCAL@SP@Peak Reset"

extern const PC_TBL pc_sp;        // the list is followed by the bars of the chosen one
extern const PC_TBL pc_sp_source; // and by a list of signals
extern const PC_TBL pc_sp_meter;  // bars of all
