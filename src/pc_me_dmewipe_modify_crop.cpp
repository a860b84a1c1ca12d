// The key of the 4:3 crop on the modify page: which DMEs make the wipe, and whose pictures are
// wide.
#include "a_bt.h"
#include "global.h"
#include "page.h"
#include "pc_me.h"
#include "pc_me_dmewipe.h"
#include "pc_me_dmewipe_modify_private.h"
#include "tally_value.h"
#include "text.h"
#include <algorithm>
#include <cstring>
#include "safeguards.h"

namespace
{
constexpr int DME_GROUP = 4; // DMEs that work together on one wipe
constexpr int FIRST_OF_SECOND_SET = 7001;

enum : int { // DmeFunc; below them are the keys from 0
    FUNC_WIPE = 8,
    FUNC_SUB_WIPE = 9
};
} // namespace

static int dme_function()
{
    if (isNowPageMeKey(0)) {
        const char* key = GL_NowTree[1];
        return *key ? key[strlen(key) - 1] - '1' : -1; // "Key3", "DSK3"
    }
    return ME_IsSubPage() ? FUNC_SUB_WIPE : FUNC_WIPE;
}

// The first DME of the wipe, -1 when none works for it.
static int find_dme()
{
    const int bank = ME_ServerBank();
    const int function = dme_function();
    for (int i = 0; i < MODIFY_DMES; i++)
        if (dm.DmeMe[i] == bank && dm.DmeFunc[i] == function)
            return i;
    return -1;
}

static int is_wide(int dme)
{
    return !Same(dm.DmeAsp[dme], "4:3");
}

// The aspect of each channel from its DME. Two further channels count as one: both are as wide as
// the DME next to the first.
static void find_wide_channels()
{
    std::fill(dm.modify_nextcrop, dm.modify_nextcrop + MODIFY_CHANNELS, 0);
    const int first = find_dme();
    if (first < 0)
        return;
    dm.modify_nextcrop[0] = is_wide(first);
    const int next = first + 1;
    if (dm.modify_ptn < 2 || next % DME_GROUP == 0 || dm.DmeMe[next] != dm.DmeMe[first])
        return;
    for (int ch = 1; ch < dm.modify_ptn; ch++)
        dm.modify_nextcrop[ch] = is_wide(next);
}

// A 4:3 crop makes sense on a picture that is wider. The second set of channels has the aspect of
// the bank itself.
int modify_crop_mask()
{
    if (dmewipe_is_off())
        return -1;
    find_wide_channels();
    const int bank = Now_disp_draw();
    const bool by_dme =
        dm.number < FIRST_OF_SECOND_SET && !(modify_is_small_panel() && bank == ME_BANK_PP);
    const int wide = by_dme ? dm.modify_nextcrop[dm.modify_ch] : SYS_RefSwrScreenAspect[bank] == 1;
    BT_SetDisable(BTN_CROP_4_3, !wide || BT_GetVisible(BTN_CROP) != BT_ENABLED);
    return 0;
}

// "3,16:9,1,8": DME 3 is 16:9 and makes the wipe of M/E-1. The lines of whole units, which stand
// on the same path, have no number in front.
void modify_dme_aspect_tally(const char* value)
{
    Parts p;
    if (SplitValue(p, value, 4) < 4)
        return;
    const int dme = IndexFrom1(p.v[0], MODIFY_DMES);
    if (dme < 0)
        return;
    CopyText(dm.DmeAsp[dme], p.v[1]);
    dm.DmeMe[dme] = Decimal(p.v[2]);
    dm.DmeFunc[dme] = Decimal(p.v[3]);
    (void)modify_crop_mask();
}
