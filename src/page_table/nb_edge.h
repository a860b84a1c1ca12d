// nb_edge: knob tables of borders, for the numbered links that choose among them. Widths and densities in percent.
#pragma once
#include "a_nb.h"

// Key border. 1: one width; 2: one width a side; h: half the range; 3: pattern key, which has no density.
inline constexpr NB_TBL nb_me_key_edge_edge_border1[] = {
    {.id = 1, .caption = "Width",   .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Width"},
    {.id = 2, .caption = "Soft",    .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Soft"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_edge_border1h[] = {
    {.id = 1, .caption = "Width",   .type = NB_2, .min = 0, .max = 50,  .cmd = "~@Edge Type@Border@Width"},
    {.id = 2, .caption = "Soft",    .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Soft"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_edge_border2[] = {
    {.id = 1, .caption = "Left",    .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Left"},
    {.id = 2, .caption = "Right",   .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Right"},
    {.id = 3, .caption = "Top",     .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Top"},
    {.id = 4, .caption = "Bottom",  .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Bottom"},
    {.id = 5, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_edge_border2h[] = {
    {.id = 1, .caption = "Left",    .type = NB_2, .min = 0, .max = 50,  .cmd = "~@Edge Type@Border@Left"},
    {.id = 2, .caption = "Right",   .type = NB_2, .min = 0, .max = 50,  .cmd = "~@Edge Type@Border@Right"},
    {.id = 3, .caption = "Top",     .type = NB_2, .min = 0, .max = 50,  .cmd = "~@Edge Type@Border@Top"},
    {.id = 4, .caption = "Bottom",  .type = NB_2, .min = 0, .max = 50,  .cmd = "~@Edge Type@Border@Bottom"},
    {.id = 5, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_edge_border3[] = {
    {.id = 1, .caption = "Width",   .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Width"},
    {.id = 2, .caption = "Soft",    .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Soft"},
    NB_END,
};

// Border of an effects channel. 1 and 2: SD 4:3 and 16:9, 3 and 4: HD. Inside and outside the picture's edge; sideways
// a wide picture has a third more of the same steps.
inline constexpr NB_TBL nb_dme_edge_bordercrop_border1[] = {
    {.id = 1, .caption = "Width H", .type = NB_2, .min = 0,    .max = 75,  .cmd = "~@Border@Width H"},
    {.id = 2, .caption = "Width V", .type = NB_2, .min = 0,    .max = 75,  .cmd = "~@Border@Width V"},
    {.id = 3, .caption = "All",     .type = NB_2, .min = 0,    .max = 75,  .cmd = "~@Border@All"},
    {.id = 4, .caption = "Soft",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Border@Soft"},
    {.id = 5, .caption = "Density", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Border@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_dme_edge_bordercrop_border2[] = {
    {.id = 1, .caption = "Width H", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Border@Width H"},
    {.id = 2, .caption = "Width V", .type = NB_2, .min = 0,    .max = 75,  .cmd = "~@Border@Width V"},
    {.id = 3, .caption = "All",     .type = NB_2, .min = 0,    .max = 75,  .cmd = "~@Border@All"},
    {.id = 4, .caption = "Soft",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Border@Soft"},
    {.id = 5, .caption = "Density", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Border@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_dme_edge_bordercrop_border3[] = {
    {.id = 1, .caption = "Width H", .type = NB_2, .min = 0,    .max = 75,  .cmd = "~@Border@Width H"},
    {.id = 2, .caption = "Width V", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Border@Width V"},
    {.id = 3, .caption = "All",     .type = NB_2, .min = 0,    .max = 75,  .cmd = "~@Border@All"},
    {.id = 4, .caption = "Soft",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Border@Soft"},
    {.id = 5, .caption = "Density", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Border@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_dme_edge_bordercrop_border4[] = {
    {.id = 1, .caption = "Width H", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Border@Width H"},
    {.id = 2, .caption = "Width V", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Border@Width V"},
    {.id = 3, .caption = "All",     .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Border@All"},
    {.id = 4, .caption = "Soft",    .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Border@Soft"},
    {.id = 5, .caption = "Density", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Border@Density"},
    NB_END,
};
