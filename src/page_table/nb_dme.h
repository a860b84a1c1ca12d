// nb_dme: knob tables of the effects unit, for the numbered links that choose among them. Places in screens from the
// middle, sideways a third more at 16:9; widths, softness and densities in percent; times in frames.
#pragma once
#include "nb_rows.h"

// --- Transform ---

// The source space ends where the picture has left the screen; the target space has room around it.
inline constexpr auto nb_dme_trans_location = FamilyOf<2>([](int wide) {
    return Column(Span(1, "X", "~@Location@X", Wide(4, wide)),
                  Span(2, "Y", "~@Location@Y", 4),
                  Span(3, "Z", "~@Location@Z", 10));
});
inline constexpr auto nb_dme_trans_location_src = FamilyOf<2>([](int wide) {
    return Column(Span(1, "X", "~@Location@X", Wide(2, wide)),
                  Span(2, "Y", "~@Location@Y", 2),
                  Span(3, "Z", "~@Location@Z", 2));
});
inline constexpr auto nb_dme_trans_rotation = Column(
    Degrees(1, "X\ndeg", "~@Rotation@X"),
    Degrees(2, "Y\ndeg", "~@Rotation@Y"),
    Degrees(3, "Z\ndeg", "~@Rotation@Z"));
inline constexpr auto nb_dme_trans_spin = Column(
    Turns(1, "X Turns", "~@Rotation@X Turns"),
    Turns(2, "Y Turns", "~@Rotation@Y Turns"),
    Turns(3, "Z Turns", "~@Rotation@Z Turns"));
inline constexpr auto nb_dme_trans_axis = FamilyOf<2>([](int wide) {
    return Column(Span(1, "X", "~@Axis@X", Wide(4, wide)),
                  Span(2, "Y", "~@Axis@Y", 4),
                  Span(3, "Z", "~@Axis@Z", 4));
});
inline constexpr auto nb_dme_trans_size = Column(Percent(1, "Size", "~@Size@Size", 400));
inline constexpr auto nb_dme_trans_size_sep = Column(
    Percent(1, "Size X", "~@Size@X", 400),
    Percent(2, "Size Y", "~@Size@Y", 400));
// Down to a strip: of a wide picture that takes more.
inline constexpr auto nb_dme_trans_aspect = FamilyOf<2>([](int wide) {
    return Column(Span(1, "X", "~@Aspect@X", Wide(75, wide)),
                  Span(2, "Y", "~@Aspect@Y", 75));
});
inline constexpr auto nb_dme_trans_perspective = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "View X",   "~@Perspective@X", Wide(4, wide)),
                  Span   (2, "View Y",   "~@Perspective@Y", 4),
                  Percent(3, "Distance", "~@Perspective@Distance"));
});
inline constexpr auto nb_dme_trans_skew = FamilyOf<2>([](int wide) {
    return Column(Span(1, "X", "~@Skew@X", Wide(2, wide)),
                  Span(2, "Y", "~@Skew@Y", 2));
});

// --- Corner pinning: variants SD 4:3, SD 16:9, HD 4:3, HD 16:9 ---

// An HD unit counts picture heights, of which an SD unit carries three quarters. In perspective a corner stays this
// side of the horizon: half as far.
constexpr double PinH(double limit, int variant) { return Wide(limit, variant & 1); }
constexpr double PinV(double limit, int variant) { return variant & 2 ? limit : limit * 3 / 4; }
#define NB_PIN_CORNER(name, corner, limit) \
    inline constexpr auto name = FamilyOf<4>([](int v) { \
        return Column(Span(1, "H", "~@" corner "@H", PinH(limit, v)), Span(2, "V", "~@" corner "@V", PinV(limit, v))); \
    })
NB_PIN_CORNER(nb_dme_pin_tl,   "Top Left", 4);
NB_PIN_CORNER(nb_dme_pin_tl_p, "Top Left", 2);
NB_PIN_CORNER(nb_dme_pin_tr,   "Top Right", 4);
NB_PIN_CORNER(nb_dme_pin_tr_p, "Top Right", 2);
NB_PIN_CORNER(nb_dme_pin_bl,   "Bottom Left", 4);
NB_PIN_CORNER(nb_dme_pin_bl_p, "Bottom Left", 2);
NB_PIN_CORNER(nb_dme_pin_br,   "Bottom Right", 4);
NB_PIN_CORNER(nb_dme_pin_br_p, "Bottom Right", 2);
NB_PIN_CORNER(nb_dme_pin_all,   "All", 4);
NB_PIN_CORNER(nb_dme_pin_all_p, "All", 2);
#undef NB_PIN_CORNER
// A side is the two corners at its ends.
#define NB_PIN_SIDES(name, limit) \
    inline constexpr auto name = FamilyOf<4>([](int v) { \
        return Column(Span(1, "Left", "~@Left@H", PinH(limit, v)), Span(2, "Right",  "~@Right@H",  PinH(limit, v)), \
                      Span(3, "Top",  "~@Top@V",  PinV(limit, v)), Span(4, "Bottom", "~@Bottom@V", PinV(limit, v))); \
    })
NB_PIN_SIDES(nb_dme_pin_sides, 4);
NB_PIN_SIDES(nb_dme_pin_sides_p, 2);
#undef NB_PIN_SIDES

// --- Edge ---

// Both sides of a direction at once, towards the middle; or a box a side.
inline constexpr auto nb_dme_edge_bordercrop_crop = FamilyOf<2>([](int wide) {
    return Column(Box    (1, "H",    "~@Crop@H",   -Wide(4, wide), 0),
                  Box    (2, "V",    "~@Crop@V",   0, 4),
                  Box    (3, "All",  "~@Crop@All", -4, 0),
                  Percent(4, "Soft", "~@Crop@Soft"));
});
inline constexpr auto nb_dme_edge_bordercrop_crop_sep = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "Top",    "~@Crop@Top",    4),
                  Span   (2, "Left",   "~@Crop@Left",   Wide(4, wide)),
                  Span   (3, "Right",  "~@Crop@Right",  Wide(4, wide)),
                  Span   (4, "Bottom", "~@Crop@Bottom", 4),
                  Percent(5, "Soft",   "~@Crop@Soft"));
});
inline constexpr auto nb_dme_edge_bordercrop_soft = Column(Percent(1, "Soft", "~@Border Soft@Soft"));
inline constexpr auto nb_dme_edge_bordercrop_soft_sep = Column(
    Percent(1, "Inside",  "~@Border Soft@Inside"),
    Percent(2, "Outside", "~@Border Soft@Outside"));
inline constexpr auto nb_dme_edge_matte = Column(NB_COLOR("~@Matte"));
inline constexpr auto nb_dme_edge_matte_grad = Column(
    NB_COLOR("~@Matte"),
    Span   (17, "Position", "~@Matte@Position", 100),
    Percent(18, "Soft",     "~@Matte@Soft"),
    Degrees(19, "Angle\ndeg",    "~@Matte@Angle"));
inline constexpr auto nb_dme_edge_soft = Column(Percent(1, "Soft", "~@Soft Edge@Soft"));
inline constexpr auto nb_dme_edge_soft_sep = Column(
    Percent(1, "Soft H", "~@Soft Edge@Soft H"),
    Percent(2, "Soft V", "~@Soft Edge@Soft V"));
inline constexpr auto nb_dme_edge_bevel = FamilyOf<2>([](int hd) {
    return Column(Count  (1, "Lines", "~@Beveled Edge@Lines", 0, hd ? 120 : 50),
                  Degrees(2, "Light\ndeg", "~@Beveled Edge@Light"),
                  Percent(3, "Depth", "~@Beveled Edge@Depth"));
});
inline constexpr auto nb_dme_edge_key_border = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Width H", "~@Key Border@Width H", Wide(75, wide)),
                  Percent(2, "Width V", "~@Key Border@Width V", 75),
                  Percent(3, "Density", "~@Key Border@Density"));
});
inline constexpr auto nb_dme_edge_key_border_drop = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Width H", "~@Key Border@Width H", Wide(75, wide)),
                  Percent(2, "Width V", "~@Key Border@Width V", 75),
                  Percent(3, "Density", "~@Key Border@Density"),
                  Degrees(4, "Drop\ndeg",    "~@Key Border@Drop Angle"));
});
inline constexpr auto nb_dme_edge_art = Column(
    Percent(1, "Width", "~@Art Edge@Width"),
    Percent(2, "Soft",  "~@Art Edge@Soft"),
    Percent(3, "Slope", "~@Art Edge@Slope"));
inline constexpr auto nb_dme_edge_art_wave = Column(
    Percent(1, "Width",     "~@Art Edge@Width"),
    Percent(2, "Soft",      "~@Art Edge@Soft"),
    Percent(3, "Amplitude", "~@Art Edge@Amplitude"),
    Percent(4, "Frequency", "~@Art Edge@Frequency"));
inline constexpr auto nb_dme_edge_wipe_crop = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Size", "~@Wipe Crop@Size"),
                  Span   (2, "H",    "~@Wipe Crop@H", Wide(1, wide)),
                  Span   (3, "V",    "~@Wipe Crop@V", 1),
                  Percent(4, "Soft", "~@Wipe Crop@Soft"));
});
inline constexpr auto nb_dme_edge_color_mix = Column(NB_COLOR("~@Color 1"), Percent(4, "Mix", "~@Color Mix@Mix"));
inline constexpr auto nb_dme_edge_color_mix2 = Column(
    NB_COLOR("~@Color 2"),
    Percent(4,  "Mix",      "~@Color Mix@Mix"),
    Span   (17, "Position", "~@Color Mix@Position", 100),
    Degrees(18, "Angle\ndeg",    "~@Color Mix@Angle"));

// --- Shadow and trail: a projected shadow lies on a floor, a plain one behind the picture ---

inline constexpr auto nb_dme_shadow_plain = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "H",       "~@Shadow@H", Wide(2, wide)),
                  Span   (2, "V",       "~@Shadow@V", 2),
                  Percent(3, "Density", "~@Shadow@Density"),
                  Percent(4, "Soft",    "~@Shadow@Soft"));
});
inline constexpr auto nb_dme_shadow_floor = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "Light X", "~@Shadow@Light X", Wide(4, wide)),
                  Span   (2, "Light Y", "~@Shadow@Light Y", 4),
                  Span   (3, "Floor",   "~@Shadow@Floor", 4),
                  Percent(4, "Density", "~@Shadow@Density"),
                  Percent(5, "Soft",    "~@Shadow@Soft"));
});
inline constexpr auto nb_dme_shadow_color = Column(NB_COLOR("~@Shadow Matte"));
inline constexpr auto nb_dme_shadow_video = Column(Percent(1, "Darkness", "~@Shadow Matte@Darkness"));
inline constexpr auto nb_dme_trail = Column(
    Frames (1, "Duration", "~@Trail@Duration"),
    Percent(2, "Decay",    "~@Trail@Decay"),
    Percent(3, "Noise",    "~@Trail@Noise"));
inline constexpr auto nb_dme_trail_strobe = Column(
    Frames (1, "Duration", "~@Trail@Duration"),
    Percent(2, "Decay",    "~@Trail@Decay"),
    Percent(3, "Noise",    "~@Trail@Noise"),
    Frames (4, "Step",     "~@Trail@Step"));
inline constexpr auto nb_dme_motion_decay = Column(Percent(1, "Decay", "~@Motion Decay@Decay"));
inline constexpr auto nb_dme_motion_decay_key = Column(
    Percent(1, "Video", "~@Motion Decay@Video"),
    Percent(2, "Key",   "~@Motion Decay@Key"));

// --- Light: a distant light has a direction, a near one a place ---

inline constexpr auto nb_dme_light_distant = Column(
    Degrees(1, "Azimuth\ndeg",   "~@Light@Azimuth"),
    Span   (2, "Elevation", "~@Light@Elevation", 90),
    Percent(3, "Intensity", "~@Light@Intensity"));
inline constexpr auto nb_dme_light_near = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "X",         "~@Light@X", Wide(4, wide)),
                  Span   (2, "Y",         "~@Light@Y", 4),
                  Span   (3, "Z",         "~@Light@Z", 10),
                  Percent(4, "Intensity", "~@Light@Intensity"));
});
inline constexpr auto nb_dme_light_color = Column(NB_COLOR("~@Color"));
inline constexpr auto nb_dme_light_white = Column(Count(1, "Kelvin", "~@Color@Temperature", 2000, 10000));
inline constexpr auto nb_dme_spot = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "H",    "~@Spotlight@H", Wide(1, wide)),
                  Span   (2, "V",    "~@Spotlight@V", 1),
                  Percent(3, "Size", "~@Spotlight@Size"),
                  Percent(4, "Soft", "~@Spotlight@Soft"));
});
inline constexpr auto nb_dme_spot_pattern = FamilyOf<2>([](int wide) {
    return Column(Span   (1,  "H",      "~@Spotlight@H", Wide(1, wide)),
                  Span   (2,  "V",      "~@Spotlight@V", 1),
                  Percent(3,  "Size",   "~@Spotlight@Size"),
                  Percent(4,  "Soft",   "~@Spotlight@Soft"),
                  Span   (17, "Aspect", "~@Spotlight@Aspect", 100),
                  Degrees(18, "Angle\ndeg",  "~@Spotlight@Angle"));
});
inline constexpr auto nb_dme_ambient = Column(Percent(1, "Ambient", "~@Ambient@Level"));
inline constexpr auto nb_dme_ambient_color = Column(Percent(4, "Ambient", "~@Ambient@Level"), NB_COLOR("~@Ambient"));
// Across the picture.
inline constexpr auto nb_dme_light_bar = Column(
    Percent(1, "Width", "~@Bar@Width"),
    Degrees(2, "Angle\ndeg", "~@Bar@Angle"),
    Percent(3, "Soft",  "~@Bar@Soft"));

// --- Freeze: a field is half a frame, and counts as one step where the freeze keeps fields ---

inline constexpr auto nb_dme_strobe = FamilyOf<2>([](int field) {
    return Column(Count(1, field ? "Fields" : "Frames", "~@Strobe@Time", 1, field ? 1998 : 999));
});
inline constexpr auto nb_dme_film = FamilyOf<2>([](int field) {
    return Column(Count  (1, field ? "Fields" : "Frames", "~@Film@Time", 1, field ? 60 : 30),
                  Percent(2, "Decay", "~@Film@Decay"));
});
inline constexpr auto nb_dme_time_freeze = Column(
    Frames(1, "Freeze", "~@Time Freeze@Freeze"),
    Frames(2, "Run",    "~@Time Freeze@Run"));
inline constexpr auto nb_dme_time_freeze_random = Column(
    Frames (1, "Freeze", "~@Time Freeze@Freeze"),
    Frames (2, "Run",    "~@Time Freeze@Run"),
    Percent(3, "Random", "~@Time Freeze@Random"));

// --- Video: softness and colour ---

inline constexpr auto nb_dme_defocus = Column(Percent(1, "Level", "~@Defocus@Level"));
inline constexpr auto nb_dme_defocus_sep = Column(
    Percent(1, "H", "~@Defocus@H"),
    Percent(2, "V", "~@Defocus@V"));
inline constexpr auto nb_dme_key_defocus = Column(Percent(1, "Level", "~@Key Defocus@Level"));
inline constexpr auto nb_dme_key_defocus_sep = Column(
    Percent(1, "H", "~@Key Defocus@H"),
    Percent(2, "V", "~@Key Defocus@V"));
inline constexpr auto nb_dme_blur = Column(
    Percent(1, "Length", "~@Blur@Length"),
    Degrees(2, "Angle\ndeg",  "~@Blur@Angle"));
inline constexpr auto nb_dme_blur_radial = FamilyOf<2>([](int wide) {
    return Column(Percent(1, "Length",   "~@Blur@Length"),
                  Span   (2, "Center H", "~@Blur@Center H", Wide(1, wide)),
                  Span   (3, "Center V", "~@Blur@Center V", 1));
});
inline constexpr auto nb_dme_color_modify = Column(
    Percent(1, "Y Gain",  "~@Color Modify@Y Gain", 200),
    Percent(2, "C Gain",  "~@Color Modify@C Gain", 200),
    Span   (3, "Hue",     "~@Color Modify@Hue", 180));
inline constexpr auto nb_dme_color_modify_rgb = Column(
    Percent(1, "R Gain", "~@Color Modify@R Gain", 200),
    Percent(2, "G Gain", "~@Color Modify@G Gain", 200),
    Percent(3, "B Gain", "~@Color Modify@B Gain", 200),
    Span   (17, "R Offset", "~@Color Modify@R Offset", 100),
    Span   (18, "G Offset", "~@Color Modify@G Offset", 100),
    Span   (19, "B Offset", "~@Color Modify@B Offset", 100));
inline constexpr auto nb_dme_mosaic = FamilyOf<2>([](int hd) {
    return Column(Count(1, "Size",   "~@Mosaic@Size", 1, hd ? 240 : 90), // pixels
                  Span (2, "Aspect", "~@Mosaic@Aspect", 100));
});
inline constexpr auto nb_dme_posterize = Column(Count(1, "Levels", "~@Posterize@Levels", 2, 64));
inline constexpr auto nb_dme_posterize_color = Column(
    Count(1, "Y Levels",  "~@Posterize@Y Levels", 2, 64),
    Count(2, "Pb Levels", "~@Posterize@Pb Levels", 2, 64),
    Count(3, "Pr Levels", "~@Posterize@Pr Levels", 2, 64));
inline constexpr auto nb_dme_multi_move = FamilyOf<2>([](int wide) {
    return Column(Count(1, "H", "~@Multi Move@H", 1, wide ? 16 : 12),
                  Count(2, "V", "~@Multi Move@V", 1, 12));
});
inline constexpr auto nb_dme_multi_move_shift = FamilyOf<2>([](int wide) {
    return Column(Count(1, "H",     "~@Multi Move@H", 1, wide ? 16 : 12),
                  Count(2, "V",     "~@Multi Move@V", 1, 12),
                  Span (3, "Shift", "~@Multi Move@Shift@Shift", 100));
});
inline constexpr auto nb_dme_mask = FamilyOf<2>([](int wide) {
    return Column(Span   (1, "Left",   "~@Mask@Left",   Wide(1, wide)),
                  Span   (2, "Right",  "~@Mask@Right",  Wide(1, wide)),
                  Span   (3, "Top",    "~@Mask@Top",    1),
                  Span   (4, "Bottom", "~@Mask@Bottom", 1),
                  Percent(5, "Soft",   "~@Mask@Soft"));
});
inline constexpr auto nb_dme_sepia = Column(Percent(1, "Mix", "~@Sepia@Mix"));
inline constexpr auto nb_dme_sepia_color = Column(
    Percent(1, "Mix", "~@Sepia@Mix"),
    Hue    (2,        "~@Sepia@Hue"),
    Percent(3, "Saturation", "~@Sepia@Saturation"));

// --- Input, output, graphics ---

inline constexpr auto nb_dme_input_phase = FamilyOf<2>([](int hd) {
    return Column(Count(1, "H Phase", "~@Phase@H", hd ? -128 : -64, hd ? 127 : 63), // clocks
                  Lines(2, "V Phase", "~@Phase@V", 2, hd));
});
inline constexpr auto nb_dme_graphic = FamilyOf<2>([](int wide) {
    return Column(Count(1, "Columns", "~@Grid@Columns", 1, wide ? 32 : 24),
                  Count(2, "Lines",   "~@Grid@Lines", 1, 24));
});

// --- Wind and background ---

inline constexpr auto nb_dme_wind = Column(
    Percent(1, "Strength", "~@Wind@Strength"),
    Degrees(2, "Direction\ndeg", "~@Wind@Direction"),
    Percent(3, "Ripple", "~@Wind@Ripple"),
    Percent(4, "Speed", "~@Wind@Speed"));
inline constexpr auto nb_dme_wind_gusts = Column(
    Percent(1, "Strength", "~@Gusts@Strength"),
    Frames (2, "Interval", "~@Gusts@Interval"));
inline constexpr auto nb_dme_bkgd = Column(NB_COLOR("~@Fill@Matte"));
