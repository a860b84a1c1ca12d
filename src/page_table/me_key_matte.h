// me_key_matte: a matte: one colour, or two that a pattern mixes. The fill of a key and its edge have one each, on pages
// of the same shape: the paths lie beside the page's fourth word. Written for M/E-1, Key1.
#pragma once
#include "nb_rows.h"
#include "patterns.h"

// --- Boxes ---

inline constexpr NB_TBL nb_me_key_matte_color1[] = {NB_COLOR("~4@Color 1"), NB_END};
inline constexpr NB_TBL nb_me_key_matte_color2[] = {NB_COLOR("~4@Color 2"), NB_END};

inline constexpr NB_TBL nb_me_key_matte_mixptn[] = {
    {.id = 1, .caption = "Size", .type = NB_2, .min = 0, .max = 100, .cmd = "~4@Mix Pattern@Size"},
    {.id = 2, .caption = "Soft", .type = NB_2, .min = 0, .max = 100, .cmd = "~4@Mix Pattern@Soft"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_matte_position[] = {
    {.id = 1, .caption = "H", .type = NB_2, .min = -200, .max = 200, .cmd = "~4@Mix Pattern@Position@H"},
    {.id = 2, .caption = "V", .type = NB_2, .min = -200, .max = 200, .cmd = "~4@Mix Pattern@Position@V"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_matte_aspect[] = {
    {.id = 1, .caption = "Aspect", .type = NB_2, .min = -100, .max = 100, .cmd = "~4@Mix Pattern@Aspect@Aspect"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_matte_angle[] = {
    {.id = 1, .caption = "Angle\ndeg", .type = NB_2, .min = -360, .max = 360, .cmd = "~4@Mix Pattern@Angle@Angle"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_matte_multi[] = {
    {.id = 1, .caption = "H Multi", .type = NB_INT, .min = 1, .max = 63, .cmd = "~4@Mix Pattern@Multi@H"},
    {.id = 2, .caption = "V Multi", .type = NB_INT, .min = 1, .max = 63, .cmd = "~4@Mix Pattern@Multi@V"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_matte_color1) && BoxesAreSound(nb_me_key_matte_color2));
static_assert(BoxesAreSound(nb_me_key_matte_mixptn) && BoxesAreSound(nb_me_key_matte_position));
static_assert(BoxesAreSound(nb_me_key_matte_aspect) && BoxesAreSound(nb_me_key_matte_angle));
static_assert(BoxesAreSound(nb_me_key_matte_multi));

// --- Buttons ---

// What a matte has of a second colour and of a pattern depends on more than one setting: the page code tells.
#define MATTE_EMBOSS "LOCAL@M/E@Key@Matte@Emboss#true"
#define MATTE_TWO    "LOCAL@M/E@Key@Matte@Two Colors#false"
#define MATTE_MIX    "LOCAL@M/E@Key@Matte@Mix#false"

struct MatteButtons { BT_TBL row[12]; };
// The pages differ in nothing but where the pattern is selected: "#+" and the page.
constexpr MatteButtons MatteButtonsOf(const char* mixptn_page)
{
    return {{
        Radio ({.id = 17, .caption = "Flat",         .group = "Matte", .cmd = {"~@Mode#Flat", MATTE_EMBOSS}}),
        Radio ({.id = 18, .caption = "Mix",          .group = "Matte", .cmd = {"~@Mode#Mix", MATTE_EMBOSS}, .nb = nb_me_key_matte_mixptn}),
        Radio ({.id = 19, .caption = "Color 1",      .group = "Color", .cmd = {"~@Color#Color 1"}, .nb = nb_me_key_matte_color1}),
        Radio ({.id = 20, .caption = "Color 2",      .group = "Color", .cmd = {"~@Color#Color 2", MATTE_TWO}, .nb = nb_me_key_matte_color2}),
        Action({.id = 21, .caption = "Copy\n1 to 2", .group = "Color", .cmd = {"~@Copy#*", MATTE_TWO}}),
        Action({.id = 22, .caption = "Swap",         .group = "Color", .cmd = {"~@Swap#*", MATTE_TWO}}),
        Toggle({.id = 33, .caption = "Position",     .group = "Mix Pattern", .cmd = {"~@Mix Pattern@Position#*", MATTE_MIX}, .nb = nb_me_key_matte_position}),
        Toggle({.id = 34, .caption = "Aspect",       .group = "Mix Pattern", .cmd = {"~@Mix Pattern@Aspect#*", MATTE_MIX}, .nb = nb_me_key_matte_aspect}),
        Toggle({.id = 35, .caption = "Angle",        .group = "Mix Pattern", .cmd = {"~@Mix Pattern@Angle#*", MATTE_MIX}, .nb = nb_me_key_matte_angle}),
        Toggle({.id = 36, .caption = "Multi",        .group = "Mix Pattern", .cmd = {"~@Mix Pattern@Multi#*", MATTE_MIX}, .nb = nb_me_key_matte_multi}),
        Jump  ({.id = 37, .caption = "Pattern\nSelect", .group = "Mix Pattern", .cmd = {mixptn_page, MATTE_MIX}}),
        BT_END,
    }};
}
#undef MATTE_EMBOSS
#undef MATTE_TWO
#undef MATTE_MIX

// --- Patterns ---

inline constexpr PS_TBL ps_me_key_matte_mixptn = {
    .cmd = "~@Pattern", .init_nb = nb_me_key_matte_mixptn, .init_nb_caption = "Mix Pattern"};
