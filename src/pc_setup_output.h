// pc_setup_output: which bus each output of the switcher carries. A bus is chosen, then set to the
// selected outputs; Execute sends it. An output that is inhibited keeps what it has.
#pragma once
#include "a_pc.h"

extern const PC_TBL pc_engsetup_switcher_output_assign;
#define OUTPUT_LOCAL(word) "LOCAL@Engineering Setup@Switcher@Output@" word
enum : int { BTN_OUTPUT_BUS = 33, BTN_OUTPUT_SET = 34, BTN_OUTPUT_INHIBIT = 35 };
void SetupOutput_Reset(); // as at process start; for tests
