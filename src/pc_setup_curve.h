// pc_setup_curve: the page of the fader curves: how far a transition has come for each place of its
// fader. Five points of each curve are numbers on the knobs; a curve never falls, so a point stays
// between its neighbours. The plot beside the list shows what the server told and, where it
// differs, what is in hand. Which transition runs by which curve is another page's.
#pragma once
#include "a_pc.h"

extern const PC_TBL pc_engsetup_switcher_transition_transitioncurve_fadercurve;
enum : int { BTN_CURVE_POINTS = 33 };

void SetupCurve_Reset(); // as at process start; for tests
