// nb_nonlinear: knob tables of the nonlinear effects that change with the split. Progress and radius in percent,
// angles in degrees, the line of the split in screens from the middle.
#pragma once
#include "a_nb.h"

// 1: split across, 2: split down, 3: both, 4: no split.
inline constexpr NB_TBL nb_dme_nonlinear_type_roll_roll1[] = {
    {.id = 1, .caption = "Position", .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Roll@Position"},
    {.id = 2, .caption = "Radius",   .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Roll@Radius"},
    {.id = 3, .caption = "Center H", .type = NB_2, .min = -4,    .max = 4,    .cmd = "~@Roll@Split@H"},
    NB_END,
};
inline constexpr NB_TBL nb_dme_nonlinear_type_roll_roll2[] = {
    {.id = 1, .caption = "Position", .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Roll@Position"},
    {.id = 2, .caption = "Radius",   .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Roll@Radius"},
    {.id = 3, .caption = "Center V", .type = NB_2, .min = -4,    .max = 4,    .cmd = "~@Roll@Split@V"},
    NB_END,
};
inline constexpr NB_TBL nb_dme_nonlinear_type_roll_roll3[] = {
    {.id = 1, .caption = "Position", .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Roll@Position"},
    {.id = 2, .caption = "Radius",   .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Roll@Radius"},
    {.id = 3, .caption = "Center H", .type = NB_2, .min = -4,    .max = 4,    .cmd = "~@Roll@Split@H"},
    {.id = 4, .caption = "Center V", .type = NB_2, .min = -4,    .max = 4,    .cmd = "~@Roll@Split@V"},
    NB_END,
};
inline constexpr NB_TBL nb_dme_nonlinear_type_roll_roll4[] = {
    {.id = 1, .caption = "Position", .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Roll@Position"},
    {.id = 2, .caption = "Radius",   .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Roll@Radius"},
    {.id = 3, .caption = "Angle",    .type = NB_2, .min = -360,  .max = 360,  .cmd = "~@Roll@Angle"},
    NB_END,
};
inline constexpr NB_TBL nb_dme_nonlinear_type_pageturn_pageturn1[] = {
    {.id = 1, .caption = "Position", .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Page Turn@Position"},
    {.id = 2, .caption = "Radius",   .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Page Turn@Radius"},
    {.id = 3, .caption = "Center H", .type = NB_2, .min = -4,    .max = 4,    .cmd = "~@Page Turn@Split@H"},
    NB_END,
};
inline constexpr NB_TBL nb_dme_nonlinear_type_pageturn_pageturn2[] = {
    {.id = 1, .caption = "Position", .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Page Turn@Position"},
    {.id = 2, .caption = "Radius",   .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Page Turn@Radius"},
    {.id = 3, .caption = "Center V", .type = NB_2, .min = -4,    .max = 4,    .cmd = "~@Page Turn@Split@V"},
    NB_END,
};
inline constexpr NB_TBL nb_dme_nonlinear_type_pageturn_pageturn3[] = {
    {.id = 1, .caption = "Position", .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Page Turn@Position"},
    {.id = 2, .caption = "Radius",   .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Page Turn@Radius"},
    {.id = 3, .caption = "Center H", .type = NB_2, .min = -4,    .max = 4,    .cmd = "~@Page Turn@Split@H"},
    {.id = 4, .caption = "Center V", .type = NB_2, .min = -4,    .max = 4,    .cmd = "~@Page Turn@Split@V"},
    NB_END,
};
inline constexpr NB_TBL nb_dme_nonlinear_type_pageturn_pageturn4[] = {
    {.id = 1, .caption = "Position", .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Page Turn@Position"},
    {.id = 2, .caption = "Radius",   .type = NB_2, .min = 0,     .max = 100,  .cmd = "~@Page Turn@Radius"},
    {.id = 3, .caption = "Angle",    .type = NB_2, .min = -360,  .max = 360,  .cmd = "~@Page Turn@Angle"},
    NB_END,
};
