// nb_global: knob tables of the global effects, which move several channels as one, and of settings that belong to no
// menu of their own, for the numbered links that choose among them. Units, and what a single channel has as well, as in
// nb_dme.
#pragma once
#include "nb_rows.h"

inline constexpr auto nb_ge_shadow = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "H",       "~@H", Wide(2, wide)),
                  Span   (2, "V",       "~@V", 2),
                  Percent(3, "Density", "~@Density"));
});
// A block as wide as its front picture.
inline constexpr auto nb_ge_brick = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Width",  "~@Width", Wide(100, wide)),
                  Percent(2, "Height", "~@Height"),
                  Percent(3, "Depth",  "~@Depth", Wide(100, wide)));
});
inline constexpr auto nb_ge_combine_depth = Column(Span(1, "Depth", "~@Depth", 10));
inline constexpr auto nb_ge_combine_soft = Column(
    Span   (1, "Depth", "~@Depth", 10),
    Percent(2, "Soft",  "~@Intersect Soft"));
inline constexpr auto nb_ge_trail = Column(
    Frames (1, "Duration", "~@Duration"),
    Percent(2, "Decay",    "~@Decay"));
inline constexpr auto nb_ge_trail_strobe = Column(
    Frames (1, "Duration", "~@Duration"),
    Percent(2, "Decay",    "~@Decay"),
    Frames (3, "Step",     "~@Step"));
inline constexpr auto nb_ge_bkgd = Column(
    Percent(1, "Luminance", "~@Bkgd@Luminance"),
    Percent(2, "Saturation", "~@Bkgd@Saturation"),
    Hue    (3,              "~@Bkgd@Hue"));
inline constexpr auto nb_ge_bkgd_video = Column(Percent(1, "Level", "~@Bkgd@Level"));
inline constexpr auto nb_ge_shadow_matte = Column(NB_COLOR("~@Fill@Matte"));
inline constexpr auto nb_ge_light_color = Column(NB_COLOR("~@Light@Color"));
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
