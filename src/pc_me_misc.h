// pc_me_misc: page code of a bank's own settings, for both sides of every bank. The tables are in
// page_table/me_misc.h; what is here depends on the installation or on a choice made on the page.
#pragma once
#include "a_pc.h"

extern const PC_TBL pc_me_misc_trans;       // the types of transition are one choice
extern const PC_TBL pc_me_misc_trans_sub;   // the same on a sub side, which has fewer
extern const PC_TBL pc_me_misc_videoproc;   // unity gain
extern const PC_TBL pc_me_misc_keypriority; // the current or the next order
extern const PC_TBL pc_me_misc_keyassign;   // sides of the keys, as told or as in the setup
extern const PC_TBL pc_me_misc_cliptrans;   // what goes with the clip that is loaded
extern const PC_TBL pc_me_misc_snapshot;    // hold of all buses at once
extern const PC_TBL pc_me_misc_tabs;        // a page that needs only its tabs in order
