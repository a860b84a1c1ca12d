// pc_me_key_lower: page code of the lower tabs of a key: masks, resizer, processed key, transition.
// One page lives at a time, so each file keeps one struct of state, new at every create(1).
#pragma once
#include "a_bt.h"
#include "a_pc.h"

// --- Masks (pc_me_key_mask) ---
extern const PC_TBL pc_me_mainmask; // with the list behind "Source"
extern const PC_TBL pc_me_submask;
extern const PC_TBL pc_me_mainmask_ptnsel;

// --- Resizer (pc_me_key_resizer) ---
extern const PC_TBL pc_me_key_resizer;
extern const PC_TBL pc_me_key_resizer_resproc;
extern const PC_TBL pc_me_key_resizer_bordercrop;
extern const PC_TBL pc_me_key_resizer_enhancedeffect;
extern const PC_TBL pc_me_key_resizer_mask;
extern const PC_TBL pc_me_key_resizer_rotation;

// --- Processed key (pc_me_key_prockey) ---
extern const PC_TBL pc_me_key_prockey;
extern const PC_TBL pc_me_key_prockey_mon;
extern const PC_TBL pc_me_key_prockey_bordercrop; // pc_me_key_prockey_crop

// --- Transition (pc_me_key_trans) ---
extern const PC_TBL pc_me_key_trans_same;
extern const PC_TBL pc_me_key_trans_independ;

// Enable or disable button id by the page code's verdict, painting only when that changes. The
// button must have no conditions in its row: enabling it would pass over them. Unknown ids are
// ignored.
inline void ME_DisableKey(int id, bool is_disabled)
{
    if ((BT_GetVisible(id) == BT_DISABLED) != is_disabled)
        (void)BT_SetDisable(id, is_disabled); // an unknown id has nothing to disable
}
