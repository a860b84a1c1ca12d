// st_globaleffect: the status cells over the global effect pages: the channels of both groups and their combiners, for
// units that count single channels, pairs, one channel, and for pictures of two eyes. A channel leads to its place in
// the order of its group, a combiner to what it combines.
#pragma once
#include "rows.h"

#define ST_OUT(group, ch) \
    .cmd = {"Global Effect@" group "@Combine@Ch" ch, "Global Effect@" group "@Priority@Ch" ch, \
            "Global Effect@" group "@Brick@Ch" ch, "Global Effect@" group "@Brick@Faces"}
#define ST_COMBINER(group, c1, c2, c3, c4) \
    .cmd = {"Global Effect@" group "@Combine@Ch" c1, "Global Effect@" group "@Combine@Ch" c2, \
            "Global Effect@" group "@Combine@Ch" c3, "Global Effect@" group "@Combine@Ch" c4, \
            "Global Effect@" group "@Trail@Ch" c1, "Global Effect@" group "@Trail@Ch" c2, \
            "Global Effect@" group "@Trail@Ch" c3, "Global Effect@" group "@Trail@Ch" c4}
// Each pair has a subtree of its own, in which the second channel speaks for both.
#define ST_PAIR_COMBINER(p1, c1, p2, c2) \
    .cmd = {"Global Effect@" p1 "@Combine@Ch" c1, "Global Effect@" p2 "@Combine@Ch" c2, "", "", \
            "Global Effect@" p1 "@Trail@Ch" c1, "Global Effect@" p2 "@Trail@Ch" c2}
#define ST_G1 "Ch1-Ch4"
#define ST_G2 "Ch5-Ch8"
#define ST_TO_ORDER(group)   .jamp_id_base = 0x42010000 + 0x100000 * (group)
#define ST_TO_COMBINE(group) .jamp_id_base = 0x42070000 + 0x100000 * (group)

// The cells of a group of four: its channels two by two, the combiner beside them. line: 0 the first of the page.
#define ST_QUAD_1(line, first) \
    CellAt(0, line, {.id = (first),     .draw_func = st_drw_globaleffect_ch1out, ST_OUT(ST_G1, "1"), ST_TO_ORDER(1)}), \
    CellAt(1, line, {.id = (first) + 2, .draw_func = st_drw_globaleffect_ch2out, ST_OUT(ST_G1, "2"), ST_TO_ORDER(1)}), \
    CellAt(0, (line) + 1, {.id = (first) + 3, .draw_func = st_drw_globaleffect_ch3out, ST_OUT(ST_G1, "3"), ST_TO_ORDER(1)}), \
    CellAt(1, (line) + 1, {.id = (first) + 4, .draw_func = st_drw_globaleffect_ch4out, ST_OUT(ST_G1, "4"), ST_TO_ORDER(1)}), \
    CellAt(2, line, {.id = (first) + 5, .draw_func = st_drw_globaleffect_combiner1, ST_COMBINER(ST_G1, "1", "2", "3", "4"), ST_TO_COMBINE(1)}, 3, 2)
#define ST_QUAD_2(line, first) \
    CellAt(0, line, {.id = (first),     .draw_func = st_drw_globaleffect_ch5out, ST_OUT(ST_G2, "5"), ST_TO_ORDER(2)}), \
    CellAt(1, line, {.id = (first) + 2, .draw_func = st_drw_globaleffect_ch6out, ST_OUT(ST_G2, "6"), ST_TO_ORDER(2)}), \
    CellAt(0, (line) + 1, {.id = (first) + 3, .draw_func = st_drw_globaleffect_ch7out, ST_OUT(ST_G2, "7"), ST_TO_ORDER(2)}), \
    CellAt(1, (line) + 1, {.id = (first) + 4, .draw_func = st_drw_globaleffect_ch8out, ST_OUT(ST_G2, "8"), ST_TO_ORDER(2)}), \
    CellAt(2, line, {.id = (first) + 5, .draw_func = st_drw_globaleffect_combiner2, ST_COMBINER(ST_G2, "5", "6", "7", "8"), ST_TO_COMBINE(2)}, 3, 2)
#define ST_PAIRS_1(line, first) \
    CellAt(0, line, {.id = (first), .draw_func = st_drw_globaleffect_ch1out_dp, ST_OUT("Ch1-Ch2", "2"), ST_TO_ORDER(1)}), \
    CellAt(0, (line) + 1, {.id = (first) + 2, .draw_func = st_drw_globaleffect_ch2out_dp, ST_OUT("Ch3-Ch4", "2"), ST_TO_ORDER(1)}), \
    CellAt(1, line, {.id = (first) + 3, .draw_func = st_drw_globaleffect_combiner1_dp, ST_PAIR_COMBINER("Ch1-Ch2", "2", "Ch3-Ch4", "2"), ST_TO_COMBINE(1)}, 3, 2)
#define ST_PAIRS_2(line, first) \
    CellAt(0, line, {.id = (first), .draw_func = st_drw_globaleffect_ch3out_dp, ST_OUT("Ch5-Ch6", "2"), ST_TO_ORDER(2)}), \
    CellAt(0, (line) + 1, {.id = (first) + 2, .draw_func = st_drw_globaleffect_ch4out_dp, ST_OUT("Ch7-Ch8", "2"), ST_TO_ORDER(2)}), \
    CellAt(1, line, {.id = (first) + 3, .draw_func = st_drw_globaleffect_combiner2_dp, ST_PAIR_COMBINER("Ch5-Ch6", "2", "Ch7-Ch8", "2"), ST_TO_COMBINE(2)}, 3, 2)
#define ST_EYES_1(column, first) \
    CellAt(column, 0, {.id = (first), .draw_func = st_drw_globaleffect_combiner1_3D, ST_COMBINER(ST_G1, "1", "2", "3", "4"), ST_TO_COMBINE(1)}, 3, 2)
#define ST_EYES_2(column, first) \
    CellAt(column, 0, {.id = (first), .draw_func = st_drw_globaleffect_combiner2_3D, ST_COMBINER(ST_G2, "5", "6", "7", "8"), ST_TO_COMBINE(2)}, 3, 2)

// --- The first page: all that there is ---

inline constexpr ST_TBL st_globaleffect_status[] = {ST_QUAD_1(0, 1), ST_QUAD_2(2, 7), ST_END};
inline constexpr ST_TBL st_globaleffect_status_3D[] = {ST_EYES_1(0, 1), ST_EYES_2(3, 3), ST_END};
inline constexpr ST_TBL st_globaleffect_status_dp[] = {ST_PAIRS_1(0, 1), ST_PAIRS_2(2, 5), ST_END};
inline constexpr ST_TBL st_globaleffect_status_dp_single[] = {ST_PAIRS_1(0, 1), ST_END};
inline constexpr ST_TBL st_globaleffect_status_e[] = {
    CellAt(0, 0, {.id = 1, .draw_func = st_drw_globaleffect_ch1out_e, ST_OUT(ST_G1, "1"), ST_TO_ORDER(1)}),
    CellAt(0, 1, {.id = 3, .draw_func = st_drw_globaleffect_ch2out_e, ST_OUT(ST_G1, "2"), ST_TO_ORDER(1)}),
    CellAt(1, 0, {.id = 4, .draw_func = st_drw_globaleffect_combiner1_e, ST_COMBINER(ST_G1, "1", "2", "3", "4"), ST_TO_COMBINE(1)}, 3, 2),
    ST_END,
};
static_assert(CellsAreSound(st_globaleffect_status) && CellsAreSound(st_globaleffect_status_3D));
static_assert(CellsAreSound(st_globaleffect_status_dp) && CellsAreSound(st_globaleffect_status_dp_single));
static_assert(CellsAreSound(st_globaleffect_status_e));

// --- Over the pages of a group ---

inline constexpr ST_TBL st_ge_quad_1[] = {ST_QUAD_1(0, 1), ST_END};
inline constexpr ST_TBL st_ge_quad_2[] = {ST_QUAD_2(0, 1), ST_END};
inline constexpr ST_TBL st_ge_pairs_1[] = {ST_PAIRS_1(0, 1), ST_END};
inline constexpr ST_TBL st_ge_pairs_2[] = {ST_PAIRS_2(0, 1), ST_END};
inline constexpr ST_TBL st_ge_eyes_1[] = {ST_EYES_1(0, 1), ST_END};
inline constexpr ST_TBL st_ge_eyes_2[] = {ST_EYES_2(0, 1), ST_END};
// In one line, where four rows of keys follow.
#define ST_LINE(column, draw, group, ch) \
    CellAt(column, 0, {.id = 2 * (column) + 1, .draw_func = draw, ST_OUT(group, ch)})
inline constexpr ST_TBL st_ge_line_1[] = {
    ST_LINE(0, st_drw_globaleffect_ch1out, ST_G1, "1"), ST_LINE(1, st_drw_globaleffect_ch2out, ST_G1, "2"),
    ST_LINE(2, st_drw_globaleffect_ch3out, ST_G1, "3"), ST_LINE(3, st_drw_globaleffect_ch4out, ST_G1, "4"), ST_END,
};
inline constexpr ST_TBL st_ge_line_2[] = {
    ST_LINE(0, st_drw_globaleffect_ch5out, ST_G2, "5"), ST_LINE(1, st_drw_globaleffect_ch6out, ST_G2, "6"),
    ST_LINE(2, st_drw_globaleffect_ch7out, ST_G2, "7"), ST_LINE(3, st_drw_globaleffect_ch8out, ST_G2, "8"), ST_END,
};
static_assert(CellsAreSound(st_ge_quad_2) && CellsAreSound(st_ge_pairs_2) && CellsAreSound(st_ge_eyes_2));
static_assert(CellsAreSound(st_ge_line_1) && CellsAreSound(st_ge_line_2));
#undef ST_LINE
#undef ST_EYES_2
#undef ST_EYES_1
#undef ST_PAIRS_2
#undef ST_PAIRS_1
#undef ST_QUAD_2
#undef ST_QUAD_1
#undef ST_TO_COMBINE
#undef ST_TO_ORDER
#undef ST_G2
#undef ST_G1
#undef ST_PAIR_COMBINER
#undef ST_COMBINER
#undef ST_OUT
