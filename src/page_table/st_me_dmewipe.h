// st_me_dmewipe: the status cells over the pages of a bank's effects-unit wipe. No cell follows a value of a channel:
// the page code of those ends and renews their subscriptions while the page is open.
#pragma once
#include "rows.h"

inline constexpr ST_TBL st_me_dmewipe[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_me_dmewipe_pattern, .cmd = {"~2@Pattern Select@Pattern"}, .jamp_id_base = 0x11610000}),
    CellAt(1, 0, {.id = 3, .draw_func = st_drw_me_dmewipe_modifier,
                  .cmd = {"~2@Pattern Modifier@Size", "~2@Pattern Modifier@Transparency",
                          "~2@Pattern Modifier@Rotation@Axis", "~2@Pattern Modifier@Perspective"}, .jamp_id_base = 0x11630000}),
    CellAt(2, 0, {.id = 4, .draw_func = st_drw_me_dmewipe_edge,
                  .cmd = {"~2@Edge@Border", "~2@Edge@Soft", "~2@Edge/Direction@Shadow"}, .jamp_id_base = 0x11640000}),
    CellAt(3, 0, {.id = 5, .draw_func = st_drw_me_dmewipe_direction,
                  .cmd = {"~2@Direction", "~2@Direction@Norm/Rev", "~2@Direction@Pattern Limit"}, .jamp_id_base = 0x11640000}),
    ST_END,
};
static_assert(CellsAreSound(st_me_dmewipe));
