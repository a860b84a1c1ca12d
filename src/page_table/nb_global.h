// nb_global: knob tables of the global effects, which move several channels as one, and of settings that belong to no
// menu of their own, for the numbered links that choose among them. Units as in nb_dme.
#pragma once
#include "nb_rows.h"

inline constexpr auto nb_ge_shadow = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "H",       "~@Shadow@H", Wide(2, wide)),
                  Span   (2, "V",       "~@Shadow@V", 2),
                  Percent(3, "Density", "~@Shadow@Density"));
});
inline constexpr auto nb_ge_light = Column(
    Degrees(1, "Azimuth",   "~@Light@Azimuth"),
    Span   (2, "Elevation", "~@Light@Elevation", 90),
    Percent(3, "Intensity", "~@Light@Intensity"));
inline constexpr auto nb_ge_light_near = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "X",         "~@Light@X", Wide(4, wide)),
                  Span   (2, "Y",         "~@Light@Y", 4),
                  Span   (3, "Z",         "~@Light@Z", 10),
                  Percent(4, "Intensity", "~@Light@Intensity"));
});
// A block as wide as its front picture.
inline constexpr auto nb_ge_brick = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Width",  "~@Brick@Width", Wide(100, wide)),
                  Percent(2, "Height", "~@Brick@Height"),
                  Percent(3, "Depth",  "~@Brick@Depth", Wide(100, wide)));
});
inline constexpr auto nb_ge_combine_depth = Column(Span(1, "Depth", "~@Combine@Depth", 10));
inline constexpr auto nb_ge_combine_soft = Column(
    Span   (1, "Depth", "~@Combine@Depth", 10),
    Percent(2, "Soft",  "~@Combine@Intersect Soft"));
inline constexpr auto nb_ge_trail = Column(
    Frames (1, "Duration", "~@Trail@Duration"),
    Percent(2, "Decay",    "~@Trail@Decay"));
inline constexpr auto nb_ge_trail_strobe = Column(
    Frames (1, "Duration", "~@Trail@Duration"),
    Percent(2, "Decay",    "~@Trail@Decay"),
    Frames (3, "Step",     "~@Trail@Step"));
inline constexpr auto nb_ge_bkgd = Column(
    Percent(1, "Luminance", "~@Bkgd@Luminance"),
    Percent(2, "Saturat'n", "~@Bkgd@Saturation"),
    Hue    (3,              "~@Bkgd@Hue"));
inline constexpr auto nb_ge_bkgd_video = Column(Percent(1, "Level", "~@Bkgd@Level"));
inline constexpr auto nb_ge_location = FamilyOf<2>([](int wide) {
    return Column(Span(1, "X", "~@Location@X", Wide(4, wide)),
                  Span(2, "Y", "~@Location@Y", 4),
                  Span(3, "Z", "~@Location@Z", 10));
});
inline constexpr auto nb_ge_rotation = Column(
    Degrees(1, "X", "~@Rotation@X"),
    Degrees(2, "Y", "~@Rotation@Y"),
    Degrees(3, "Z", "~@Rotation@Z"));
inline constexpr auto nb_ge_spin = Column(
    Turns(1, "X Turns", "~@Rotation@X Turns"),
    Turns(2, "Y Turns", "~@Rotation@Y Turns"),
    Turns(3, "Z Turns", "~@Rotation@Z Turns"));
inline constexpr auto nb_ge_size = Column(Percent(1, "Size", "~@Size@Size", 400));
inline constexpr auto nb_ge_size_sep = Column(
    Percent(1, "Size X", "~@Size@X", 400),
    Percent(2, "Size Y", "~@Size@Y", 400),
    Percent(3, "Size Z", "~@Size@Z", 400));

// --- Settings ---

// The safe areas that the standards of each aspect name lie within these margins, in percent of the picture.
inline constexpr auto nb_misc_safe_area = FamilyOf<2>([](int wide) {
    return Column(Box(1, "H", "~@Safe Area@H", wide ? 60 : 75, 100),
                  Box(2, "V", "~@Safe Area@V", 75, 100));
});
inline constexpr auto nb_misc_output_phase = FamilyOf<2>([](int hd) {
    return Column(Span (1, "H Phase", "~@Output Phase@H", hd ? 1100 : 429), // half a line, in clocks
                  Lines(2, "V Phase", "~@Output Phase@V", 5, hd));
});
inline constexpr auto nb_misc_frame_delay = Column(Count(1, "Frames", "~@Frame Delay@Frames", 0, 8));
inline constexpr auto nb_misc_line_delay = FamilyOf<2>([](int hd) {
    return Column(Count(1, "Lines",  "~@Frame Delay@Lines", 0, hd ? 1125 : 625),
                  Count(2, "Frames", "~@Frame Delay@Frames", 0, 8));
});
