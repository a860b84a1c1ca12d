// dme_nonlinear: the effects that bend the picture or break it up. A channel has one at a time; a second press of its key
// takes it off. Roll and page turn have tabs of their own.
#pragma once
#include "rows.h"

constexpr BT_TBL Kind(int id, const char* caption, const char* group, const char* cmd, int knob = 0, const char* dependency = nullptr)
{
    return RadioRelease({.id = id, .caption = caption, .group = group, .cmd = {cmd, dependency},
                         .nb = knob ? SpecialKnob(knob) : nullptr});
}

inline constexpr BT_TBL bt_dme_nonlinear_type[] = {
    Kind(17, "Roll",            "Surface", "~@Type#Roll"),
    Kind(18, "Page\nTurn",      "Surface", "~@Type#Page Turn"),
    Kind(19, "Cylinder",        "Surface", "~@Type#Cylinder", 93),
    Kind(20, "Sphere",          "Surface", "~@Type#Sphere", 94),
    Kind(21, "Twist",           "Surface", "~@Type#Twist", 97),
    Kind(22, "Lens",            "Surface", "~@Type#Lens", 99),
    Kind(33, "Wave",            "Distortion", "~@Type#Wave", 95, "~@Wave@Both#"),
    Kind(34, "Ripple",          "Distortion", "~@Type#Ripple", 96),
    Kind(35, "Swirl",           "Distortion", "~@Type#Swirl", 98),
    Kind(36, "Melt",            "Distortion", "~@Type#Melt", 100),
    Kind(37, "Mirror",          "Reflection", "~@Type#Mirror", 103),
    Kind(38, "Kaleido-\nscope", "Reflection", "~@Type#Kaleidoscope", 104),
    Kind(49, "Explosion",       "Pieces", "~@Type#Explosion", 101),
    Kind(50, "Blast",           "Pieces", "~@Type#Blast", 105),
    Kind(51, "Split\nSlide",    "Pieces", "~@Type#Split Slide", 102, "~@Split Slide@Both#"),
    Toggle({.id = 53, .caption = "Wave\nH & V",  .group = "Both Ways", .cmd = {"~@Wave@Both#*", "~@Type#!Wave"}}),
    Toggle({.id = 54, .caption = "Split\nH & V", .group = "Both Ways", .cmd = {"~@Split Slide@Both#*", "~@Type#!Split Slide"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_nonlinear_type));

// --- Roll and page turn: the effect's own key is the one whose knobs follow the split ---

constexpr BT_TBL Split(int id, const char* caption, const char* cmd, const char* unless, int (*select)(BT_MEM*))
{
    return RadioRelease({.id = id, .caption = caption, .group = "Split", .select_func = select, .cmd = {cmd, unless}});
}

inline constexpr BT_TBL bt_dme_nonlinear_roll[] = {
    RadioRelease({.id = 17, .caption = "Roll", .group = "Roll", .cmd = {"~2@Type@Type#Roll", "~@Split#"}, .nb = SpecialKnob(91)}),
    Toggle({.id = 18, .caption = "Reverse", .group = "Roll", .cmd = {"~@Reverse#*", "~2@Type@Type#!Roll"}}),
    Split (33, "H",     "~@Split#H",   "~2@Type@Type#!Roll", bt_sel_roll_splitmode),
    Split (34, "V",     "~@Split#V",   "~2@Type@Type#!Roll", bt_sel_roll_splitmode),
    Split (35, "H & V", "~@Split#H&V", "~2@Type@Type#!Roll", bt_sel_roll_splitmode),
    Radio ({.id = 49, .caption = "Video",  .group = "Back Side", .cmd = {"~@Back#Video", "~2@Type@Type#!Roll"}}),
    Radio ({.id = 50, .caption = "Mirror", .group = "Back Side", .cmd = {"~@Back#Mirror", "~2@Type@Type#!Roll"}}),
    Radio ({.id = 51, .caption = "Matte",  .group = "Back Side", .cmd = {"~@Back#Matte", "~2@Type@Type#!Roll"}}),
    BT_END,
};
inline constexpr BT_TBL bt_dme_nonlinear_pageturn[] = {
    RadioRelease({.id = 17, .caption = "Page\nTurn", .group = "Page Turn", .cmd = {"~2@Type@Type#Page Turn", "~@Split#"}, .nb = SpecialKnob(92)}),
    Toggle({.id = 18, .caption = "Reverse", .group = "Page Turn", .cmd = {"~@Reverse#*", "~2@Type@Type#!Page Turn"}}),
    Split (33, "H",     "~@Split#H",   "~2@Type@Type#!Page Turn", bt_sel_pageturn_splitmode),
    Split (34, "V",     "~@Split#V",   "~2@Type@Type#!Page Turn", bt_sel_pageturn_splitmode),
    Split (35, "H & V", "~@Split#H&V", "~2@Type@Type#!Page Turn", bt_sel_pageturn_splitmode),
    Radio ({.id = 49, .caption = "Video",  .group = "Back Side", .cmd = {"~@Back#Video", "~2@Type@Type#!Page Turn"}}),
    Radio ({.id = 50, .caption = "Mirror", .group = "Back Side", .cmd = {"~@Back#Mirror", "~2@Type@Type#!Page Turn"}}),
    Radio ({.id = 51, .caption = "Matte",  .group = "Back Side", .cmd = {"~@Back#Matte", "~2@Type@Type#!Page Turn"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_nonlinear_roll) && ButtonsAreSound(bt_dme_nonlinear_pageturn));
