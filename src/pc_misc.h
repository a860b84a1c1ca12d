// pc_misc: page code of the Misc pages: which of them this installation has, and which banks and
// keys the page of the rates is about. The tables say the rest.
#pragma once
#include "a_pc.h"

constexpr int BTN_RATE_BANK = 17; // of the first bank, the others in me_bank's order behind it
constexpr int BTN_RATE_KEYS = 33;

extern const PC_TBL pc_misc_top;
extern const PC_TBL pc_misc_rate;
