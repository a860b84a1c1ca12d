// pc_me_wipe: what the page code of the wipe pages shares: what a wipe pattern has that could be
// adjusted. The wipe snapshots are in pc_me_snapshot; the paths, limits and captions in the page
// table.
#pragma once
#include "a_pc.h"

// --- What a pattern has ---

enum WipeAbility : unsigned {
    WIPE_CENTER = 1 << 0,     // a middle that can be moved
    WIPE_ASPECT = 1 << 1,     // width and height
    WIPE_ANGLE = 1 << 2,      // it can be turned
    WIPE_MULTI = 1 << 3,      // it can be repeated over the picture
    WIPE_MODULATION = 1 << 4, // an edge that can be made wavy
    WIPE_LINES = 1 << 5,      // a front that can be cut into lines which run against each other
    WIPE_OUTLINE = 1 << 6,    // one edge, which can swing and turn into that of another pattern
};
constexpr int WIPE_NO_PATTERN = 0;
// The WipeAbility bits of a pattern number; all of them for a number that is not in the catalogue,
// so that nothing is withheld of a pattern that is not known here.
unsigned Wipe_Abilities(int pattern);

// --- The page code, one object a page ---
extern const PC_TBL pc_me_wipe_mainpattern; // main and sub pattern
extern const PC_TBL pc_me_wipe_ptnmix;
extern const PC_TBL pc_me_wipe_edgedir;
extern const PC_TBL pc_me_wipe_edgedir_matteadj;
extern const PC_TBL pc_me_wipe_mainmodify;
extern const PC_TBL pc_me_wipe_submodify;
