#include "pc_misc.h"
#include "a_bt.h"
#include "overview.h"
#include "page.h"
#include "page_table/misc.h"
#include "window.h"
#include "safeguards.h"

static_assert(std::size(misc_key_rates_4) == ME_COUNT);

namespace
{
// A page that not every installation has, and its key on the first page of the menu.
struct Option {
    uint32_t page;
    int button;
};
constexpr Option options[] = {{0x32120000, 18}, {0x32130000, 19}};
constexpr int KEYS_4 = 4;
} // namespace

static int misc_top_create(int on, uint32_t)
{
    for (const Option& o : options)
        if (on)
            BT_SetDisable(o.button, !SearchPageTable(o.page));
    return !on;
}

// The boxes of keys that the bank lacks would turn nothing.
static void show_rates_of(const MeBank& bank)
{
    const int button = BTN_RATE_KEYS + bank.place;
    if (MeBank_IsOff(bank)) {
        BT_SetDisable(BTN_RATE_BANK + bank.place, 1);
        BT_SetDisable(button, 1);
    }
    if (Overview_Keys(bank) > KEYS_4)
        return;
    BT_SetKnob(button, misc_key_rates_4[bank.place]);
    if (BT_GetKnobAssign() == button)
        NB_Create(misc_key_rates_4[bank.place], bank.caption);
}

static int misc_rate_create(int on, uint32_t)
{
    for (const MeBank& bank : me_bank)
        if (on)
            show_rates_of(bank);
    return !on;
}

const PC_TBL pc_misc_top = {.create_func = misc_top_create};
const PC_TBL pc_misc_rate = {.create_func = misc_rate_create};
