// st_globaleffect: the status cells over the global effect pages: the channels of both groups and their combiners, for
// units that count single channels, pairs, one channel, and for pictures of two eyes.
#pragma once
#include "rows.h"

#define ST_OUT(group, ch) {"Global Effect@" group "@Combine@Ch" ch, "Global Effect@" group "@Priority@Ch" ch, \
                           "Global Effect@" group "@Brick@Ch" ch, "Global Effect@" group "@Brick@Ch" ch "@Faces"}
#define ST_COMBINER(group, c1, c2, c3, c4) \
    {"Global Effect@" group "@Combine@Ch" c1, "Global Effect@" group "@Combine@Ch" c2, \
     "Global Effect@" group "@Combine@Ch" c3, "Global Effect@" group "@Combine@Ch" c4, \
     "Global Effect@" group "@Trail@Ch" c1, "Global Effect@" group "@Trail@Ch" c2, \
     "Global Effect@" group "@Trail@Ch" c3, "Global Effect@" group "@Trail@Ch" c4}
#define ST_G1 "Ch1-Ch4"
#define ST_G2 "Ch5-Ch8"

inline constexpr ST_TBL st_globaleffect_status[] = {
    CellAt(0, 0, {.id = 1,  .draw_func = st_drw_globaleffect_ch1out, .cmd = ST_OUT(ST_G1, "1")}),
    CellAt(1, 0, {.id = 3,  .draw_func = st_drw_globaleffect_ch2out, .cmd = ST_OUT(ST_G1, "2")}),
    CellAt(0, 1, {.id = 4,  .draw_func = st_drw_globaleffect_ch3out, .cmd = ST_OUT(ST_G1, "3")}),
    CellAt(1, 1, {.id = 5,  .draw_func = st_drw_globaleffect_ch4out, .cmd = ST_OUT(ST_G1, "4")}),
    CellAt(2, 0, {.id = 6,  .draw_func = st_drw_globaleffect_combiner1, .cmd = ST_COMBINER(ST_G1, "1", "2", "3", "4")}, 3, 2),
    CellAt(0, 2, {.id = 7,  .draw_func = st_drw_globaleffect_ch5out, .cmd = ST_OUT(ST_G2, "5")}),
    CellAt(1, 2, {.id = 8,  .draw_func = st_drw_globaleffect_ch6out, .cmd = ST_OUT(ST_G2, "6")}),
    CellAt(0, 3, {.id = 9,  .draw_func = st_drw_globaleffect_ch7out, .cmd = ST_OUT(ST_G2, "7")}),
    CellAt(1, 3, {.id = 10, .draw_func = st_drw_globaleffect_ch8out, .cmd = ST_OUT(ST_G2, "8")}),
    CellAt(2, 2, {.id = 11, .draw_func = st_drw_globaleffect_combiner2, .cmd = ST_COMBINER(ST_G2, "5", "6", "7", "8")}, 3, 2),
    ST_END,
};
inline constexpr ST_TBL st_globaleffect_status_3D[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_globaleffect_combiner1_3D, .cmd = ST_COMBINER(ST_G1, "1", "2", "3", "4")}, 3, 2),
    CellAt(3, 0, {.id = 3, .draw_func = st_drw_globaleffect_combiner2_3D, .cmd = ST_COMBINER(ST_G2, "5", "6", "7", "8")}, 3, 2),
    ST_END,
};
inline constexpr ST_TBL st_globaleffect_status_dp[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_globaleffect_ch1out_dp, .cmd = ST_OUT("Ch1-Ch2", "2")}),
    CellAt(0, 1, {.id = 3, .draw_func = st_drw_globaleffect_ch2out_dp, .cmd = ST_OUT("Ch3-Ch4", "2")}),
    CellAt(1, 0, {.id = 4, .draw_func = st_drw_globaleffect_combiner1_dp, .cmd = ST_COMBINER(ST_G1, "1", "2", "3", "4")}, 3, 2),
    CellAt(0, 2, {.id = 5, .draw_func = st_drw_globaleffect_ch3out_dp, .cmd = ST_OUT("Ch5-Ch6", "2")}),
    CellAt(0, 3, {.id = 6, .draw_func = st_drw_globaleffect_ch4out_dp, .cmd = ST_OUT("Ch7-Ch8", "2")}),
    CellAt(1, 2, {.id = 7, .draw_func = st_drw_globaleffect_combiner2_dp, .cmd = ST_COMBINER(ST_G2, "5", "6", "7", "8")}, 3, 2),
    ST_END,
};
inline constexpr ST_TBL st_globaleffect_status_e[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_globaleffect_ch1out_e, .cmd = ST_OUT(ST_G1, "1")}),
    CellAt(0, 1, {.id = 3, .draw_func = st_drw_globaleffect_ch2out_e, .cmd = ST_OUT(ST_G1, "2")}),
    CellAt(1, 0, {.id = 4, .draw_func = st_drw_globaleffect_combiner1_e, .cmd = ST_COMBINER(ST_G1, "1", "2", "3", "4")}, 3, 2),
    ST_END,
};
static_assert(CellsAreSound(st_globaleffect_status) && CellsAreSound(st_globaleffect_status_3D));
static_assert(CellsAreSound(st_globaleffect_status_dp) && CellsAreSound(st_globaleffect_status_e));
#undef ST_G2
#undef ST_G1
#undef ST_COMBINER
#undef ST_OUT
