// st_me_wipe: the status cells over the wipe pages of a bank. The sub side of a bank has a wipe of its own, with one
// pattern; "~1" is its subtree there.
#pragma once
#include "rows.h"

#define ST_WIPE_PATTERN(wipe, pattern) {wipe "@" pattern "@Pattern"}
#define ST_WIPE_POSITION(wipe, pattern) {wipe "@" pattern "@Position", wipe "@" pattern "@Position@H", \
                                         wipe "@" pattern "@Position@V", wipe "@" pattern "@Auto Center"}
#define ST_WIPE_MODIFY(wipe, modify) {wipe "@" modify "@Aspect@Aspect", wipe "@" modify "@Angle@Angle", wipe "@" modify "@Multi@H", \
                                      wipe "@" modify "@Modulation", wipe "@" modify "@Modulation@Speed", \
                                      wipe "@" modify "@Spring@Width"}
#define ST_WIPE_DIRECTION(wipe) {wipe "@Direction@Normal", wipe "@Direction@Reverse", wipe "@Direction@Norm/Rev", \
                                 wipe "@Direction@Pattern Limit"}
#define ST_WIPE_MIX(wipe) {wipe "@Pattern Mix@Pattern Mix", wipe "@Sub Pattern@Pattern"}
#define ST_WIPE_EDGE(wipe) {wipe "@Edge@Border", wipe "@Edge@Soft", wipe "@Edge@Border@Width", wipe "@Edge@Soft@Soft"}

inline constexpr ST_TBL st_me_wipe[] = {
    CellAt(0, 0, {.id = 1,  .draw_func = st_drw_me_wipe_main_pattern,  .cmd = ST_WIPE_PATTERN("~1@Wipe", "Main Pattern"), .jamp_id_base = 0x11510000}),
    CellAt(1, 0, {.id = 3,  .draw_func = st_drw_me_wipe_main_position, .cmd = ST_WIPE_POSITION("~1@Wipe", "Main Pattern"), .jamp_id_base = 0x11510000}),
    CellAt(2, 0, {.id = 4,  .draw_func = st_drw_me_wipe_main_modify,   .cmd = ST_WIPE_MODIFY("~1@Wipe", "Main Modify"), .jamp_id_base = 0x11550000}),
    CellAt(3, 0, {.id = 5,  .draw_func = st_drw_me_wipe_main_modify_2, .cmd = ST_WIPE_MODIFY("~1@Wipe", "Main Modify"), .jamp_id_base = 0x11550000}),
    CellAt(4, 0, {.id = 6,  .draw_func = st_drw_me_wipe_direction,     .cmd = ST_WIPE_DIRECTION("~1@Wipe"), .jamp_id_base = 0x11540000}),
    CellAt(5, 0, {.id = 7,  .draw_func = st_drw_me_wipe_edge,          .cmd = ST_WIPE_EDGE("~1@Wipe"), .jamp_id_base = 0x11540000}),
    CellAt(0, 1, {.id = 8,  .draw_func = st_drw_me_wipe_sub_pattern,   .cmd = ST_WIPE_PATTERN("~1@Wipe", "Sub Pattern"), .jamp_id_base = 0x11520000}),
    CellAt(1, 1, {.id = 9,  .draw_func = st_drw_me_wipe_sub_position,  .cmd = ST_WIPE_POSITION("~1@Wipe", "Sub Pattern"), .jamp_id_base = 0x11520000}),
    CellAt(2, 1, {.id = 10, .draw_func = st_drw_me_wipe_sub_modify,    .cmd = ST_WIPE_MODIFY("~1@Wipe", "Sub Modify"), .jamp_id_base = 0x11560000}),
    CellAt(3, 1, {.id = 11, .draw_func = st_drw_me_wipe_sub_modify_2,  .cmd = ST_WIPE_MODIFY("~1@Wipe", "Sub Modify"), .jamp_id_base = 0x11560000}),
    CellAt(4, 1, {.id = 12, .draw_func = st_drw_me_wipe_pattern_mix,   .cmd = ST_WIPE_MIX("~1@Wipe"), .jamp_id_base = 0x11530000}),
    CellAt(5, 1, {.id = 13, .draw_func = st_drw_me_wipe_edge_2,        .cmd = ST_WIPE_EDGE("~1@Wipe"), .jamp_id_base = 0x11540000}),
    ST_END,
};
inline constexpr ST_TBL st_me_wipe_sub[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_me_wipe_main_pattern,  .cmd = ST_WIPE_PATTERN("~1@Wipe", "Main Pattern"), .jamp_id_base = 0x15510000}),
    CellAt(1, 0, {.id = 3, .draw_func = st_drw_me_wipe_main_position, .cmd = ST_WIPE_POSITION("~1@Wipe", "Main Pattern"), .jamp_id_base = 0x15510000}),
    CellAt(2, 0, {.id = 4, .draw_func = st_drw_me_wipe_mp2sub_modify, .cmd = ST_WIPE_MODIFY("~1@Wipe", "Main Modify"), .jamp_id_base = 0x15550000}),
    CellAt(3, 0, {.id = 5, .draw_func = st_drw_me_wipe_direction,     .cmd = ST_WIPE_DIRECTION("~1@Wipe"), .jamp_id_base = 0x15540000}),
    CellAt(4, 0, {.id = 6, .draw_func = st_drw_me_wipe_edge,          .cmd = ST_WIPE_EDGE("~1@Wipe"), .jamp_id_base = 0x15540000}),
    CellAt(5, 0, {.id = 7, .draw_func = st_drw_me_wipe_edge_2,        .cmd = ST_WIPE_EDGE("~1@Wipe"), .jamp_id_base = 0x15540000}),
    ST_END,
};
static_assert(CellsAreSound(st_me_wipe) && CellsAreSound(st_me_wipe_sub));
#undef ST_WIPE_EDGE
#undef ST_WIPE_MIX
#undef ST_WIPE_DIRECTION
#undef ST_WIPE_MODIFY
#undef ST_WIPE_POSITION
#undef ST_WIPE_PATTERN
