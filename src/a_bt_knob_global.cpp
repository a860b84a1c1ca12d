// Numbered knob links of the global effects and of what no other menu has.
#include "a_bt_knob_private.h"
#include "safeguards.h"

constexpr KnobCase knob_cases_global[] = {
    KNOB_CASES_END,
};
