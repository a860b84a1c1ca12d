// gallery_shared: what the tables of the gallery pages and their page code both know.
#pragma once
#include "a_pc.h"
#include "rows.h"

extern const PC_TBL pc_gallery_buttons; // pc_gallery.cpp
extern const PC_TBL pc_gallery_boxes;
extern const PC_TBL pc_gallery_lists;
extern const PC_TBL pc_gallery_files;
extern const PC_TBL pc_gallery_cells;
extern const PC_TBL pc_gallery_tabs;
extern const PC_TBL pc_gallery_panes; // pc_gallery_layers.cpp
extern const PC_TBL pc_gallery_windows;

inline constexpr NB_TBL nb_gallery_one[] = {
    {.id = 1, .caption = "Value", .type = NB_2, .min = 0, .max = 100, .cmd = "LOCAL"},
    NB_END,
};

// One of each kind.
inline constexpr NB_TBL nb_gallery_kinds[] = {
    {.id = 1, .caption = "1 Decimal",  .type = NB_1,   .min = -100, .max = 100,     .cmd = "LOCAL"},
    {.id = 2, .caption = "2 Decimals", .type = NB_2,   .min = -200, .max = 200,     .cmd = "LOCAL"},
    {.id = 3, .caption = "4 Decimals", .type = NB_4,   .min = 0,    .max = 1,       .cmd = "LOCAL"},
    {.id = 4, .caption = "Integer",    .type = NB_INT, .min = 1,    .max = 99,      .cmd = "LOCAL"},
    {.id = 5, .caption = "Time Code",  .type = NB_TC,  .min = 0,    .max = 2591999, .cmd = "LOCAL"},
    NB_END,
};
inline constexpr NB_TBL nb_gallery_reversed[] = {
    {.id = 1, .caption = "Backwards",     .type = NB_2,   .min = 100, .max = -100, .cmd = "LOCAL"},
    {.id = 3, .caption = "Two\nlines",    .type = NB_INT, .min = 0,   .max = 10,   .cmd = "LOCAL"},
    {.id = 5, .caption = "One side",      .type = NB_1,   .min = -50, .max = 0,    .cmd = "LOCAL"},
    NB_END,
};
inline constexpr NB_TBL nb_gallery_layers[] = {
    {.id = 1,  .caption = "Layer 1 A", .type = NB_2, .min = 0, .max = 100, .cmd = "LOCAL"},
    {.id = 2,  .caption = "Layer 1 B", .type = NB_2, .min = 0, .max = 100, .cmd = "LOCAL"},
    {.id = 17, .caption = "Layer 2 A", .type = NB_2, .min = 0, .max = 100, .cmd = "LOCAL"},
    {.id = 33, .caption = "Layer 3 A", .type = NB_2, .min = 0, .max = 100, .cmd = "LOCAL"},
    NB_END,
};
inline constexpr NB_TBL nb_gallery_windows[] = {
    {.id = 1, .caption = "Value",     .type = NB_2,  .min = -100, .max = 100,     .cmd = "LOCAL"},
    {.id = 2, .caption = "Time Code", .type = NB_TC, .min = 0,    .max = 2591999, .cmd = "LOCAL"},
    NB_END,
};
static_assert(BoxesAreSound(nb_gallery_one) && BoxesAreSound(nb_gallery_kinds) && BoxesAreSound(nb_gallery_reversed) &&
              BoxesAreSound(nb_gallery_layers) && BoxesAreSound(nb_gallery_windows));
