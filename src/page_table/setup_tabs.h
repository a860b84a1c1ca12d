// setup_tabs: the groups of engineering setup, down the left edge of all its pages. A group that gets pages is a row.
#pragma once
#include "rows.h"

inline constexpr VF_TBL vf_setup[] = {
    {.id = 1, .caption = "System", .page = 0x73110000},
    VF_END,
};
