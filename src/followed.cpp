#include "followed.h"
#include "a_bt.h"
#include "a_dw.h"
#include "a_hf.h"
#include "a_kp.h"
#include "a_nb.h"
#include "a_ps.h"
#include "a_st.h"
#include "a_vf.h"
#include "safeguards.h"

bool IsFollowed(const char* path)
{
    static constexpr int (*follows[])(const char*) = {
        ST_Follows, BT_Follows, HF_Follows, VF_Follows,
        PS_Follows, DW_Follows, KP_Follows, NB_Follows,
    };
    for (const auto& f : follows)
        if (f(path))
            return true;
    return false;
}
