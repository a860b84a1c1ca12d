// nb_key: knob tables of a key's pages, for the numbered links that choose among them. Widths, softness and densities in
// percent, positions in percent of half a 4:3 picture, sideways a third more at 16:9.
#pragma once
#include "nb_rows.h"

// --- Edge: "_sep" has a box a side, of which a fine key has half the range in the same number of steps ---

inline constexpr auto nb_me_key_edge_edge_drop = FamilyOf<2>([](int fine) {
    return Column(Percent(1, "Width",    "~@Edge Type@Drop Border@Width", fine ? 50 : 100),
                  Degrees(2, "Position\ndeg", "~@Edge Type@Drop Border@Position"),
                  Percent(3, "Soft",     "~@Edge Type@Drop Border@Soft"),
                  Percent(4, "Density",  "~@Edge Type@Drop Border@Density"));
});
inline constexpr auto nb_me_key_edge_edge_drop_sep = FamilyOf<2>([](int fine) {
    return Column(Percent(1, "Width H",  "~@Edge Type@Drop Border@Width H", fine ? 50 : 100),
                  Percent(2, "Width V",  "~@Edge Type@Drop Border@Width V", fine ? 50 : 100),
                  Degrees(3, "Position\ndeg", "~@Edge Type@Drop Border@Position"),
                  Percent(4, "Soft",     "~@Edge Type@Drop Border@Soft"),
                  Percent(5, "Density",  "~@Edge Type@Drop Border@Density"));
});

// A joined shadow falls in a direction, a separate one has its own offset and softness each way.
inline constexpr auto nb_me_key_edge_edge_shadow = Column(
    Percent(1, "Offset",    "~@Edge Type@Shadow@Offset"),
    Degrees(2, "Direction\ndeg", "~@Edge Type@Shadow@Direction"),
    Percent(3, "Soft",      "~@Edge Type@Shadow@Soft"),
    Percent(4, "Density",   "~@Edge Type@Shadow@Density"));
inline constexpr auto nb_me_key_edge_edge_shadow_sep = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "H",       "~@Edge Type@Shadow@H", Wide(100, wide)),
                  Span   (2, "V",       "~@Edge Type@Shadow@V", 100),
                  Percent(3, "Soft H",  "~@Edge Type@Shadow@Soft H"),
                  Percent(4, "Soft V",  "~@Edge Type@Shadow@Soft V"),
                  Percent(5, "Density", "~@Edge Type@Shadow@Density"));
});

inline constexpr auto nb_me_key_edge_edge_outline = FamilyOf<2>([](int fine) {
    return Column(Percent(1, "Width",   "~@Edge Type@Outline@Width", fine ? 50 : 100),
                  Percent(2, "Density", "~@Edge Type@Outline@Density"));
});
inline constexpr auto nb_me_key_edge_edge_outline_sep = FamilyOf<2>([](int fine) {
    return Column(Percent(1, "Left",    "~@Edge Type@Outline@Left",   fine ? 50 : 100),
                  Percent(2, "Right",   "~@Edge Type@Outline@Right",  fine ? 50 : 100),
                  Percent(3, "Top",     "~@Edge Type@Outline@Top",    fine ? 50 : 100),
                  Percent(4, "Bottom",  "~@Edge Type@Outline@Bottom", fine ? 50 : 100),
                  Percent(5, "Density", "~@Edge Type@Outline@Density"));
});

inline constexpr auto nb_me_key_edge_edge_emboss = FamilyOf<2>([](int fine) {
    return Column(Percent(1, "Width",    "~@Edge Type@Emboss@Width", fine ? 50 : 100),
                  Degrees(2, "Position\ndeg", "~@Edge Type@Emboss@Position"),
                  Percent(3, "Light",    "~@Edge Type@Emboss@Light"),
                  Percent(4, "Shade",    "~@Edge Type@Emboss@Shade"));
});

inline constexpr auto nb_me_key_edge_soft_edge = Column(Percent(1, "Soft", "~@Soft Edge@Soft"));
inline constexpr auto nb_me_key_edge_soft_edge_sep = Column(
    Percent(1, "Soft H", "~@Soft Edge@Soft H"),
    Percent(2, "Soft V", "~@Soft Edge@Soft V"));

inline constexpr auto nb_me_key_edge_key_drop = FamilyOf<2>([](int hd) {
    return Column(Lines(1, "Position", "~@Key Drop@Position", 8, hd)); // keeps room for the widest edge
});

// --- Masks ---

inline constexpr auto nb_me_key_mask_box_aspect = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "Left",   "~@Box@Left",   Wide(100, wide)),
                  Span   (2, "Right",  "~@Box@Right",  Wide(100, wide)),
                  Span   (3, "Top",    "~@Box@Top",    100),
                  Span   (4, "Bottom", "~@Box@Bottom", 100),
                  Percent(5, "Soft",   "~@Box@Soft"));
});
inline constexpr auto nb_me_key_mask_pattern_aspect = FamilyOf<2>([](int wide) {
    return Column(Percent(1,  "Size",   "~@Pattern Mask@Size"),
                  Percent(2,  "Soft",   "~@Pattern Mask@Soft"),
                  Span   (3,  "H Pos",  "~@Pattern Mask@H Position", Wide(100, wide)),
                  Span   (4,  "V Pos",  "~@Pattern Mask@V Position", 100),
                  Span   (17, "Aspect", "~@Pattern Mask@Aspect", 100),
                  Degrees(18, "Angle\ndeg",  "~@Pattern Mask@Angle"));
});

// --- Resizer: a key that turns has a depth ---

inline constexpr auto nb_me_key_resizer_place = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Size", "~@Size", 200),
                  Span   (2, "H",    "~@H", Wide(200, wide)),
                  Span   (3, "V",    "~@V", 200));
});
inline constexpr auto nb_me_key_resizer_place_turned = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Size",      "~@Size", 200),
                  Span   (2, "H",         "~@H", Wide(200, wide)),
                  Span   (3, "V",         "~@V", 200),
                  Span   (4, "Depth",     "~@Depth", 200),
                  Percent(5, "Perspect.", "~@Perspective"));
});
inline constexpr auto nb_me_key_resizer_border_joined = Column(
    Percent(1, "Width",   "~@Border@Width"),
    Percent(2, "Soft",    "~@Border@Soft"),
    Percent(3, "Density", "~@Border@Density"));
inline constexpr auto nb_me_key_resizer_border_sep = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Width H", "~@Border@Width H", Wide(75, wide)),
                  Percent(2, "Width V", "~@Border@Width V", 75),
                  Percent(3, "Soft",    "~@Border@Soft"),
                  Percent(4, "Density", "~@Border@Density"));
});
inline constexpr auto nb_me_key_resizer_aspect_joined = Column(Span(1, "Aspect", "~@Aspect@Aspect", 100));
inline constexpr auto nb_me_key_resizer_aspect_sep = Column(
    Percent(1, "H Size", "~@Aspect@H Size", 200),
    Percent(2, "V Size", "~@Aspect@V Size", 200));
// Tiles in pixels.
inline constexpr auto nb_me_key_resizer_mosaic_tiles = FamilyOf<2>([](int hd) {
    return Column(Count(1, "Size",   "~@Mosaic@Size", 1, hd ? 240 : 90),
                  Span (2, "Aspect", "~@Mosaic@Aspect", 100));
});
inline constexpr auto nb_me_key_resizer_defocus_joined = Column(Percent(1, "Level", "~@Defocus@Level"));
inline constexpr auto nb_me_key_resizer_defocus_sep = Column(
    Percent(1, "H", "~@Defocus@H"),
    Percent(2, "V", "~@Defocus@V"));
inline constexpr auto nb_me_key_resizer_mask_box = FamilyOf<2>([](int wide) {
    return Column(Span   (1,  "Left",   "~@Box@Left",   Wide(100, wide)),
                  Span   (2,  "Right",  "~@Box@Right",  Wide(100, wide)),
                  Span   (3,  "Top",    "~@Box@Top",    100),
                  Span   (4,  "Bottom", "~@Box@Bottom", 100),
                  Percent(5,  "Soft",   "~@Box@Soft"),
                  Degrees(17, "Angle\ndeg",  "~@Box@Angle")); // it turns with the picture
});

// --- Processed key ---

inline constexpr auto nb_me_key_prockey_rotation_flat = Column(Degrees(3, "Z\ndeg", "~@Rotation@Z"));
inline constexpr auto nb_me_key_prockey_rotation = Column(
    Turns(1, "X\nturns", "~@Rotation@X"),
    Turns(2, "Y\nturns", "~@Rotation@Y"),
    Turns(3, "Z\nturns", "~@Rotation@Z"));
inline constexpr auto nb_me_key_prockey_location_flat = FamilyOf<2>([](int wide) {
    return Column(Span(1, "X", "~@Location@X", Wide(4, wide)),
                  Span(2, "Y", "~@Location@Y", 4));
});
inline constexpr auto nb_me_key_prockey_location = FamilyOf<2>([](int wide) {
    return Column(Span(1, "X", "~@Location@X", Wide(4, wide)),
                  Span(2, "Y", "~@Location@Y", 4),
                  Span(3, "Z", "~@Location@Z", 10));
});
inline constexpr auto nb_me_key_prockey_size = Column(Percent(1, "Size", "~@Size", 400));
inline constexpr auto nb_me_key_prockey_size_sep = Column(
    Percent(1, "Size H", "~@Size H", 400),
    Percent(2, "Size V", "~@Size V", 400));

// --- Type ---

// The page code names the paths: they follow the key type. Phase in clocks of the picture.
inline constexpr auto nb_me_key_type_phase = FamilyOf<2>([](int hd) {
    return Column(Span(1, "H Phase\nclocks", "", hd ? 16 : 8),
                  Span(2, "Left\nclocks",    "", hd ? 16 : 8),
                  Span(3, "Right\nclocks",   "", hd ? 16 : 8));
});

// --- Chroma adjust: what is taken out of the foreground, with its luminance kept in step or not ---

inline constexpr auto nb_me_key_chroma_cancel = Column(
    NB_COLOR("~@Color Cancel"));
inline constexpr auto nb_me_key_chroma_cancel_y = Column(
    NB_COLOR("~@Color Cancel"),
    Span   (17, "Y Gain",    "~@Y Balance@Gain", 100),
    Percent(18, "Y Clip",    "~@Y Balance@Clip"));
