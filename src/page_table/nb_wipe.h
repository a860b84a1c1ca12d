// nb_wipe: knob tables of a bank's wipe and DME wipe pages, for the numbered links that choose among them. Sizes, softness
// and densities in percent, positions in percent of half a 4:3 picture, sideways a third more at 16:9.
#pragma once
#include "nb_rows.h"

// --- Wipe: "~" is a pattern or its modify page ---

inline constexpr auto nb_me_wipe_aspect = FamilyOf<2>([](int wide) {
    return Column(Span(1, "Aspect", "~@Aspect@Aspect", Wide(75, wide))); // to a strip of the picture's height
});
inline constexpr auto nb_me_wipe_angle = Column(Degrees(1, "Angle\ndeg", "~@Angle@Angle"));
inline constexpr auto nb_me_wipe_speed = Column(
    Degrees(1, "Angle\ndeg", "~@Angle@Angle"),
    Turns  (2, "Speed\nturns", "~@Speed@Speed"));
// Blinds in lines, pairs of sides in percent.
inline constexpr auto nb_me_wipe_pairing = FamilyOf<2>([](int hd) {
    return Column(Count(1, "Lines", "~@Pairing@Lines", 1, hd ? 540 : 288));
});
inline constexpr auto nb_me_wipe_pairing_both = FamilyOf<2>([](int hd) {
    return Column(Count(1, "Lines",   "~@Pairing@Lines", 1, hd ? 540 : 288),
                  Count(2, "Columns", "~@Pairing@Columns", 1, hd ? 960 : 360));
});

// Edge/Direction shares its paths with the cells over it: "~2" is the wipe.
inline constexpr auto nb_me_wipe_edge_border = Column(
    Percent(1, "Width", "~2@Edge@Border@Width"),
    Percent(2, "Soft",  "~2@Edge@Soft@Soft"));
inline constexpr auto nb_me_wipe_edge_border_sep = Column(
    Percent(1, "Width",  "~2@Edge@Border@Width"),
    Percent(2, "Inside", "~2@Edge@Soft@Inside"),
    Percent(3, "Outside", "~2@Edge@Soft@Outside"));
inline constexpr auto nb_me_wipe_edge_soft = Column(Percent(1, "Soft", "~2@Edge@Soft@Soft"));
inline constexpr auto nb_me_wipe_edge_soft_full = Column(Percent(1, "Soft", "~2@Edge@Soft@Soft", 200)); // no border to keep clear

// --- DME wipe ---

// Place, size and crop of the chosen channels, for the page code: it hears by how many steps a knob was turned. A knob to
// the right moves the mark to the right, also on a bar that runs backwards. Less than a tenth is finer than a pixel of an
// SD picture.
constexpr NB_TBL Steps(int id, const char* caption, const char* cmd, double min, double max, int hd)
{
    return {.id = id, .caption = caption, .type = hd ? NB_2 : NB_1, .min = min, .max = max, .cmd = cmd, .scale = min > max ? -1.0 : 1.0};
}
inline constexpr auto nb_me_dmewipe_position = FamilyOf<2>([](int hd) {
    return Column(Steps(1, "H Pos", "LOCAL@Panel@Common@Knob0", -200, 200, hd),
                  Steps(2, "V Pos", "LOCAL@Panel@Common@Knob1", -200, 200, hd));
});
inline constexpr auto nb_me_dmewipe_size = FamilyOf<2>([](int hd) {
    return Column(Steps(1, "Size", "LOCAL@Panel@Common@Knob0", 0, 100, hd));
});
// From the picture's whole width or height to nothing. Captions and first limits tell the boxes by which a crop is made
// from those of other values: keep them.
inline constexpr auto nb_me_dmewipe_crop = FamilyOf<2>([](int hd) {
    return Column(Steps(1, "H",   "LOCAL@Panel@Common@Knob0", -100, 0, hd),
                  Steps(2, "V",   "LOCAL@Panel@Common@Knob1", 100,  0, hd),
                  Steps(3, "All", "LOCAL@Panel@Common@Knob2", -100, 0, hd));
});
inline constexpr auto nb_me_dmewipe_rotation = Column(Turns(1, "Rotation\nturns", "~@Rotation@Rotation"));
inline constexpr auto nb_me_dmewipe_rotation_axis = FamilyOf<2>([](int wide) {
    return Column(Turns(1, "Rotation\nturns", "~@Rotation@Rotation"),
                  Span (2, "Axis H",   "~@Rotation@Axis H", Wide(4, wide)),
                  Span (3, "Axis V",   "~@Rotation@Axis V", 4));
});
inline constexpr auto nb_me_dmewipe_perspective = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Depth", "~@Perspective@Depth"),
                  Span   (2, "View H", "~@Perspective@View H", Wide(4, wide)),
                  Span   (3, "View V", "~@Perspective@View V", 4));
});
inline constexpr auto nb_me_dmewipe_edge_border = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Width H", "~2@Edge@Border@Width H", Wide(75, wide)),
                  Percent(2, "Width V", "~2@Edge@Border@Width V", 75),
                  Percent(3, "Density", "~2@Edge@Border@Density"));
});
inline constexpr auto nb_me_dmewipe_edge_border_soft = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Width H", "~2@Edge@Border@Width H", Wide(75, wide)),
                  Percent(2, "Width V", "~2@Edge@Border@Width V", 75),
                  Percent(3, "Density", "~2@Edge@Border@Density"),
                  Percent(4, "Soft",    "~2@Edge@Soft@Soft"));
});
inline constexpr auto nb_me_dmewipe_edge_soft = Column(Percent(1, "Soft", "~2@Edge@Soft@Soft"));
inline constexpr auto nb_me_dmewipe_edge_soft_sep = Column(
    Percent(1, "Soft H", "~2@Edge@Soft@Soft H"),
    Percent(2, "Soft V", "~2@Edge@Soft@Soft V"));
inline constexpr auto nb_me_dmewipe_shadow = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "H",       "~@Shadow@H", Wide(100, wide)),
                  Span   (2, "V",       "~@Shadow@V", 100),
                  Percent(3, "Density", "~@Shadow@Density"));
});
inline constexpr auto nb_me_dmewipe_transparency = Column(Percent(1, "Transp.", "~@Transparency@Transparency"));
inline constexpr auto nb_me_dmewipe_transparency_fade = Column(
    Percent(1, "Start", "~@Transparency@Start"),
    Percent(2, "End",   "~@Transparency@End"));
