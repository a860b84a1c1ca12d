// dme_transform: where an effects channel's picture is in space, and what draws it for the operator. Freeze and the
// channel's input and output are here, too.
#pragma once
#include "rows.h"

// --- 3D ---

inline constexpr BT_TBL bt_dme_3dtrans[] = {
    Radio ({.id = 17, .caption = "Local",    .group = "Transform", .cmd = {"~@Transform#Local"}}),
    Radio ({.id = 18, .caption = "Global",   .group = "Transform", .cmd = {"~@Transform#Global"}}),
    Radio ({.id = 19, .caption = "Target",   .group = "Space", .cmd = {"~@Space#Target"}}),
    Radio ({.id = 20, .caption = "Source",   .group = "Space", .cmd = {"~@Space#Source"}}),
    Action({.id = 21, .caption = "Center",   .group = "Reset", .cmd = {"~@Center#*"}}),
    Action({.id = 22, .caption = "Full\nReset", .group = "Reset", .cmd = {"~@Reset#*"}}),
    Knobs ({.id = 33, .caption = "Location", .group = "Parameter", .cmd = {"", "~@Space#"}, .nb = SpecialKnob(60)}),
    Knobs ({.id = 34, .caption = "Rotation", .group = "Parameter", .cmd = {"", "~@Spin#"}, .nb = SpecialKnob(61)}),
    Knobs ({.id = 35, .caption = "Axis",     .group = "Parameter", .nb = SpecialKnob(62)}),
    Knobs ({.id = 36, .caption = "Size",     .group = "Parameter", .cmd = {"", "~@Size@Separate#"}, .nb = SpecialKnob(63)}),
    Knobs ({.id = 37, .caption = "Aspect",   .group = "Parameter", .nb = SpecialKnob(64)}),
    Knobs ({.id = 38, .caption = "Skew",     .group = "Parameter", .nb = SpecialKnob(66)}),
    Toggle({.id = 49, .caption = "Perspec-\ntive", .group = "View", .cmd = {"~@Perspective#*"}, .nb = SpecialKnob(65)}),
    Toggle({.id = 50, .caption = "Spin",     .group = "Modify", .cmd = {"~@Spin#*"}}),
    Toggle({.id = 51, .caption = "Separate\nSize", .group = "Modify", .cmd = {"~@Size@Separate#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_3dtrans));

// --- Corner pinning: the keys lie as the corners do ---

constexpr BT_TBL Pin(int id, const char* caption, const char* group, int knob)
{
    return Knobs({.id = id, .caption = caption, .group = group, .tally_func = bt_tly_corner_pinning,
                  .cmd = {"", "~@Corner Pinning#false", "~@Mode#"}, .nb = SpecialKnob(knob)});
}
inline constexpr BT_TBL bt_dme_cornerpinning[] = {
    Toggle({.id = 17, .caption = "Corner\nPinning", .group = "Pinning", .cmd = {"~@Corner Pinning#*"}}),
    Radio ({.id = 19, .caption = "Linear",      .group = "Mode", .cmd = {"~@Mode#Linear", "~@Corner Pinning#false"}}),
    Radio ({.id = 20, .caption = "Perspec-\ntive", .group = "Mode", .cmd = {"~@Mode#Perspective", "~@Corner Pinning#false"}}),
    Action({.id = 22, .caption = "Reset",       .group = "Reset", .cmd = {"~@Reset#*", "~@Corner Pinning#false"}}),
    Pin(33, "Top\nLeft",     "Corner", 80),
    Pin(34, "Top\nRight",    "Corner", 81),
    Pin(49, "Bottom\nLeft",  "Corner", 82),
    Pin(50, "Bottom\nRight", "Corner", 83),
    Pin(36, "All\nCorners",  "Together", 84),
    Pin(52, "Sides",         "Together", 85),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_cornerpinning));

// --- Graphic: lines over the monitor output, for either transform ---

constexpr BT_TBL Drawn(int id, const char* caption, const char* cmd, int knob = 0)
{
    return Toggle({.id = id, .caption = caption, .group = "Graphic", .tally_func = bt_tly_graphic,
                   .cmd = {cmd, "~@Local#false", "~@Global#false"}, .nb = knob ? SpecialKnob(knob) : nullptr});
}
inline constexpr BT_TBL bt_dme_graphic[] = {
    Toggle({.id = 17, .caption = "Local",  .group = "Show", .cmd = {"~@Local#*"}}),
    Toggle({.id = 18, .caption = "Global", .group = "Show", .cmd = {"~@Global#*"}}),
    Drawn(33, "Grid",  "~@Grid#*", 118),
    Drawn(34, "Axes",  "~@Axes#*"),
    Drawn(35, "Frame", "~@Frame#*"),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_graphic));

// --- Freeze: the rhythm counts in what is kept ---

inline constexpr BT_TBL bt_dme_freeze[] = {
    Toggle({.id = 17, .caption = "Freeze",      .group = "Freeze", .tally_func = bt_tly_freeze, .cmd = {"~@Freeze#*", "~@Rhythm#"}}),
    Toggle({.id = 18, .caption = "Key\nFreeze", .group = "Freeze", .tally_func = bt_tly_freeze, .cmd = {"~@Key Freeze#*", "~@Rhythm#"}}),
    Radio ({.id = 20, .caption = "Frame",       .group = "Mode", .cmd = {"~@Mode#Frame"}}),
    Radio ({.id = 21, .caption = "Field",       .group = "Mode", .cmd = {"~@Mode#Field"}}),
    RadioRelease({.id = 33, .caption = "Strobe", .group = "Rhythm", .cmd = {"~@Rhythm#Strobe", "~@Mode#"}, .nb = SpecialKnob(88)}),
    RadioRelease({.id = 34, .caption = "Film",   .group = "Rhythm", .cmd = {"~@Rhythm#Film", "~@Mode#"}, .nb = SpecialKnob(89)}),
    RadioRelease({.id = 35, .caption = "Time\nFreeze", .group = "Rhythm", .cmd = {"~@Rhythm#Time Freeze", "~@Random#"}, .nb = SpecialKnob(90)}),
    Toggle({.id = 36, .caption = "Random",      .group = "Rhythm", .cmd = {"~@Random#*", "~@Rhythm#!Time Freeze"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_freeze));

// --- Input and output ---

// A unit in the switcher's frame is in phase with it; one in a frame of its own has cables.
#define DME_INPUT \
    Radio ({.id = 17, .caption = "Self Key",   .group = "Key Source", .cmd = {"~@Key Source#Self"}}), \
    Radio ({.id = 18, .caption = "Split",      .group = "Key Source", .cmd = {"~@Key Source#Split"}}), \
    Radio ({.id = 19, .caption = "Full Key",   .group = "Key Source", .cmd = {"~@Key Source#Full"}}), \
    Toggle({.id = 21, .caption = "Key\nInvert", .group = "Key Modify", .cmd = {"~@Key Invert#*", "~@Key Source#Full"}}), \
    Toggle({.id = 22, .caption = "Unshape",    .group = "Key Modify", .cmd = {"~@Unshape#*", "~@Key Source#Full"}})

inline constexpr BT_TBL bt_dme_input[] = {
    DME_INPUT,
    BT_END,
};
inline constexpr BT_TBL bt_dme_input_own[] = {
    DME_INPUT,
    Toggle({.id = 33, .caption = "Auto\nPhase", .group = "Input Phase", .cmd = {"~@Auto Phase#*"}}),
    Knobs ({.id = 34, .caption = "Manual",     .group = "Input Phase", .cmd = {"", "~@Auto Phase#true"}, .nb = SpecialKnob(117)}),
    BT_END,
};
#undef DME_INPUT
static_assert(ButtonsAreSound(bt_dme_input) && ButtonsAreSound(bt_dme_input_own));

inline constexpr BT_TBL bt_dme_output[] = {
    Radio ({.id = 17, .caption = "Shaped",    .group = "Video", .cmd = {"~@Video#Shaped"}}),
    Radio ({.id = 18, .caption = "Unshaped",  .group = "Video", .cmd = {"~@Video#Unshaped"}}),
    Radio ({.id = 20, .caption = "Video",     .group = "Monitor", .cmd = {"~@Monitor#Video"}}),
    Radio ({.id = 21, .caption = "Key",       .group = "Monitor", .cmd = {"~@Monitor#Key"}}),
    Toggle({.id = 33, .caption = "Safe\nArea", .group = "Marker", .cmd = {"~@Safe Area#*"}, .nb = SpecialKnob(128)}),
    Toggle({.id = 34, .caption = "Center\nCross", .group = "Marker", .cmd = {"~@Center Cross#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_output));
