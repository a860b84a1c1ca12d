// Numbered knob links of the effects unit's pages.
#include "a_bt_knob_private.h"
#include "safeguards.h"

constexpr KnobCase knob_cases_dme[] = {
    KNOB_CASES_END,
};
