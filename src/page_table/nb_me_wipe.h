// nb_me_wipe: knob tables of a bank's wipe pages. Positions as the cells over the pages draw them: the picture ends at 100,
// the pattern moves to 200. Shares and sizes in percent.
#pragma once
#include "nb_rows.h"
#include "rows.h"

// --- Pattern select: "~" is the pattern ---

inline constexpr NB_TBL nb_wipe_position[] = {
    {.id = 1, .caption = "H", .type = NB_2, .min = -200, .max = 200, .cmd = "~@Position@H"},
    {.id = 2, .caption = "V", .type = NB_2, .min = -200, .max = 200, .cmd = "~@Position@V"},
    NB_END,
};

// --- Modify: the place is the pattern's own, all else is below "~" ---

#define NB_POSITION_OF(pattern) { \
    {.id = 1, .caption = "H", .type = NB_2, .min = -200, .max = 200, .cmd = "~2@" pattern "@Position@H"}, \
    {.id = 2, .caption = "V", .type = NB_2, .min = -200, .max = 200, .cmd = "~2@" pattern "@Position@V"}, \
    NB_END}
inline constexpr NB_TBL nb_wipe_modify_main_position[] = NB_POSITION_OF("Main Pattern");
inline constexpr NB_TBL nb_wipe_modify_sub_position[] = NB_POSITION_OF("Sub Pattern");
#undef NB_POSITION_OF
inline constexpr NB_TBL nb_wipe_modify_speed[] = {
    {.id = 1, .caption = "Speed\nturns", .type = NB_2, .min = -999.99, .max = 999.99, .cmd = "~@Speed@Speed"}, // turns
    NB_END,
};
inline constexpr NB_TBL nb_wipe_modify_multi[] = { // 1 by 1 is the pattern alone
    {.id = 1, .caption = "H",     .type = NB_INT, .min = 1,  .max = 63,  .cmd = "~@Multi@H"},
    {.id = 2, .caption = "V",     .type = NB_INT, .min = 1,  .max = 63,  .cmd = "~@Multi@V"},
    {.id = 3, .caption = "Shift", .type = NB_2, .min = -100, .max = 100, .cmd = "~@Multi@Shift"},
    NB_END,
};
inline constexpr NB_TBL nb_wipe_modify_spring[] = { // no width, no spring
    {.id = 1, .caption = "Width",  .type = NB_2, .min = 0, .max = 100, .cmd = "~@Spring@Width"},
    {.id = 2, .caption = "Number", .type = NB_INT, .min = 1, .max = 20, .cmd = "~@Spring@Number"},
    {.id = 3, .caption = "Random", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Spring@Random"},
    NB_END,
};
inline constexpr NB_TBL nb_wipe_modify_split[] = {
    {.id = 1, .caption = "H Gap", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Split@H"},
    {.id = 2, .caption = "V Gap", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Split@V"},
    NB_END,
};
inline constexpr NB_TBL nb_wipe_modify_modulation[] = {
    {.id = 1, .caption = "Amplitude", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Modulation@Amplitude"},
    {.id = 2, .caption = "Frequency", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Modulation@Frequency"},
    {.id = 3, .caption = "Speed",     .type = NB_2, .min = -100, .max = 100, .cmd = "~@Modulation@Speed"},
    NB_END,
};
static_assert(BoxesAreSound(nb_wipe_position) && BoxesAreSound(nb_wipe_modify_split));
static_assert(BoxesAreSound(nb_wipe_modify_main_position) && BoxesAreSound(nb_wipe_modify_sub_position));
static_assert(BoxesAreSound(nb_wipe_modify_multi) && BoxesAreSound(nb_wipe_modify_spring));
static_assert(BoxesAreSound(nb_wipe_modify_speed) && BoxesAreSound(nb_wipe_modify_modulation));

// --- Pattern mix: 0 is the main pattern alone, 100 the sub pattern ---

inline constexpr NB_TBL nb_wipe_mix_mix[] = {
    {.id = 1, .caption = "Ratio", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Mix@Ratio"},
    NB_END,
};
inline constexpr NB_TBL nb_wipe_mix_add[] = {
    {.id = 1, .caption = "Main", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Additive Mix@Main"},
    {.id = 2, .caption = "Sub",  .type = NB_2, .min = 0, .max = 100, .cmd = "~@Additive Mix@Sub"},
    NB_END,
};
inline constexpr NB_TBL nb_wipe_mix_nam[] = {
    {.id = 1, .caption = "Main", .type = NB_2, .min = 0, .max = 100, .cmd = "~@NAM@Main"},
    {.id = 2, .caption = "Sub",  .type = NB_2, .min = 0, .max = 100, .cmd = "~@NAM@Sub"},
    NB_END,
};
inline constexpr NB_TBL nb_wipe_mix_morphing[] = {
    {.id = 1, .caption = "Ratio", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Morphing@Ratio"},
    NB_END,
};
inline constexpr NB_TBL nb_wipe_mix_replicate[] = {
    {.id = 1, .caption = "H",     .type = NB_INT, .min = 1,  .max = 63,  .cmd = "~@Replicate@H"},
    {.id = 2, .caption = "V",     .type = NB_INT, .min = 1,  .max = 63,  .cmd = "~@Replicate@V"},
    {.id = 3, .caption = "Shift", .type = NB_2, .min = -100, .max = 100, .cmd = "~@Replicate@Shift"},
    NB_END,
};
static_assert(BoxesAreSound(nb_wipe_mix_mix) && BoxesAreSound(nb_wipe_mix_add) && BoxesAreSound(nb_wipe_mix_nam));
static_assert(BoxesAreSound(nb_wipe_mix_morphing) && BoxesAreSound(nb_wipe_mix_replicate));

// --- Edge/direction: the paths are those of the cells ---

inline constexpr NB_TBL nb_wipe_limit[] = {
    {.id = 1, .caption = "Limit", .type = NB_2, .min = 0, .max = 100, .cmd = "~2@Direction@Pattern Limit@Limit"},
    NB_END,
};
static_assert(BoxesAreSound(nb_wipe_limit));

// --- The matte of the edge: "~" is its page ---

inline constexpr NB_TBL nb_wipe_edge_matte[] = {NB_COLOR("~@Matte Adjust@Color 1"), NB_END}; // from the page above
inline constexpr NB_TBL nb_wipe_matte_color1[] = {NB_COLOR("~@Color 1"), NB_END};
inline constexpr NB_TBL nb_wipe_matte_color2[] = {NB_COLOR("~@Color 2"), NB_END};
// A mix that runs across the whole picture has no place sideways of its run; one round a middle has both.
inline constexpr NB_TBL nb_wipe_matte_mix_across[] = {
    {.id = 1, .caption = "Size", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Mix@Size"},
    {.id = 2, .caption = "Soft", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Mix@Soft"},
    NB_END,
};
inline constexpr NB_TBL nb_wipe_matte_mix_round[] = {
    {.id = 1, .caption = "Size", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Mix@Size"},
    {.id = 2, .caption = "Soft", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Mix@Soft"},
    {.id = 3, .caption = "H",    .type = NB_2, .min = -200, .max = 200, .cmd = "~@Mix@Position@H"},
    {.id = 4, .caption = "V",    .type = NB_2, .min = -200, .max = 200, .cmd = "~@Mix@Position@V"},
    NB_END,
};
static_assert(BoxesAreSound(nb_wipe_edge_matte));
static_assert(BoxesAreSound(nb_wipe_matte_color1) && BoxesAreSound(nb_wipe_matte_color2));
static_assert(BoxesAreSound(nb_wipe_matte_mix_across) && BoxesAreSound(nb_wipe_matte_mix_round));
