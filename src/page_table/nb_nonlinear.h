// nb_nonlinear: knob tables of the nonlinear effects. Progress and radius in percent, angles in degrees, places in screens
// from the middle.
#pragma once
#include "nb_rows.h"

// --- Roll and page turn: they change with the split ---

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
    {.id = 3, .caption = "Angle\ndeg",    .type = NB_2, .min = -360,  .max = 360,  .cmd = "~@Roll@Angle"},
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
    {.id = 3, .caption = "Angle\ndeg",    .type = NB_2, .min = -360,  .max = 360,  .cmd = "~@Page Turn@Angle"},
    NB_END,
};

// --- The other kinds: with a centre of their own where the screen's width counts ---

inline constexpr auto nb_dme_nonlinear_cylinder = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Radius", "~@Cylinder@Radius"),
                  Degrees(2, "Angle\ndeg",  "~@Cylinder@Angle"),
                  Span   (3, "Offset", "~@Cylinder@Offset", Wide(4, wide)));
});
inline constexpr auto nb_dme_nonlinear_sphere = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Radius", "~@Sphere@Radius"),
                  Span   (2, "Center H", "~@Sphere@Center H", Wide(4, wide)),
                  Span   (3, "Center V", "~@Sphere@Center V", 4));
});
inline constexpr auto nb_dme_nonlinear_wave = Column(
    Percent(1, "Amplitude", "~@Wave@Amplitude"),
    Percent(2, "Frequency", "~@Wave@Frequency"),
    Degrees(3, "Phase\ndeg",     "~@Wave@Phase"));
inline constexpr auto nb_dme_nonlinear_wave_both = Column(
    Percent(1,  "H Ampl.", "~@Wave@H Amplitude"),
    Percent(2,  "H Freq.", "~@Wave@H Frequency"),
    Degrees(3,  "H Phase\ndeg", "~@Wave@H Phase"),
    Percent(17, "V Ampl.", "~@Wave@V Amplitude"),
    Percent(18, "V Freq.", "~@Wave@V Frequency"),
    Degrees(19, "V Phase\ndeg", "~@Wave@V Phase"));
inline constexpr auto nb_dme_nonlinear_ripple = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Amplitude", "~@Ripple@Amplitude"),
                  Percent(2, "Frequency", "~@Ripple@Frequency"),
                  Degrees(3, "Phase\ndeg",     "~@Ripple@Phase"),
                  Span   (4, "Center H",  "~@Ripple@Center H", Wide(4, wide)),
                  Span   (5, "Center V",  "~@Ripple@Center V", 4));
});
inline constexpr auto nb_dme_nonlinear_twist = FamilyOf<2>([](int wide) {
    return Column(Turns(1, "Twist\nturns", "~@Twist@Twist"),
                  Span (2, "Axis",  "~@Twist@Axis", Wide(4, wide)));
});
inline constexpr auto nb_dme_nonlinear_swirl = FamilyOf<2>([](int wide) {
    return Column(Turns  (1, "Swirl\nturns", "~@Swirl@Swirl"),
                  Percent(2, "Radius",   "~@Swirl@Radius"),
                  Span   (3, "Center H", "~@Swirl@Center H", Wide(4, wide)),
                  Span   (4, "Center V", "~@Swirl@Center V", 4));
});
inline constexpr auto nb_dme_nonlinear_lens = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "Zoom",     "~@Lens@Zoom", 100),
                  Percent(2, "Radius",   "~@Lens@Radius"),
                  Span   (3, "Center H", "~@Lens@Center H", Wide(4, wide)),
                  Span   (4, "Center V", "~@Lens@Center V", 4));
});
inline constexpr auto nb_dme_nonlinear_melt = FamilyOf<2>([](int hd) {
    return Column(Percent(1, "Position", "~@Melt@Position"),
                  Percent(2, "Random",   "~@Melt@Random"),
                  Count  (3, "Width",    "~@Melt@Width", 1, hd ? 480 : 180)); // pixels of a strip
});
inline constexpr auto nb_dme_nonlinear_explosion = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Position", "~@Explosion@Position"),
                  Count  (2, "Columns",  "~@Explosion@Columns", 1, wide ? 32 : 24), // square pieces
                  Count  (3, "Lines",    "~@Explosion@Lines", 1, 24),
                  Percent(4, "Random",   "~@Explosion@Random"));
});
inline constexpr auto nb_dme_nonlinear_split_h = FamilyOf<2>([](int wide) {
    return Column(Span(1, "H", "~@Split Slide@H", Wide(4, wide)));
});
inline constexpr auto nb_dme_nonlinear_split_hv = FamilyOf<2>([](int wide) {
    return Column(Span(1, "H", "~@Split Slide@H", Wide(4, wide)),
                  Span(2, "V", "~@Split Slide@V", 4));
});
inline constexpr auto nb_dme_nonlinear_mirror = FamilyOf<2>([](int wide) {
    return Column(Span(1, "H", "~@Mirror@H", Wide(1, wide)),
                  Span(2, "V", "~@Mirror@V", 1));
});
inline constexpr auto nb_dme_nonlinear_kaleidoscope = FamilyOf<2>([](int wide) {
    return Column(Count  (1, "Mirrors",  "~@Kaleidoscope@Mirrors", 2, 16),
                  Degrees(2, "Angle\ndeg",    "~@Kaleidoscope@Angle"),
                  Span   (3, "Center H", "~@Kaleidoscope@Center H", Wide(1, wide)),
                  Span   (4, "Center V", "~@Kaleidoscope@Center V", 1));
});
inline constexpr auto nb_dme_nonlinear_blast = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Position", "~@Blast@Position"),
                  Percent(2, "Spread",   "~@Blast@Spread"),
                  Span   (3, "Center H", "~@Blast@Center H", Wide(1, wide)),
                  Span   (4, "Center V", "~@Blast@Center V", 1));
});
