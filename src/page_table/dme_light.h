// dme_light: light on an effects channel's picture, what it leaves behind (shadow and trail), the wind that moves it, and
// what lies behind it.
#pragma once
#include "nb_dme.h"
#include "rows.h"

// --- Light ---

constexpr BT_TBL LightKey(int id, const char* caption, const char* page)
{
    return Jump({.id = id, .caption = caption, .group = "Light", .draw_func = bt_drw_normal_light, .cmd = {page, "~@Light#false"}});
}

inline constexpr BT_TBL bt_dme_light[] = {
    Toggle({.id = 17, .caption = "Light", .group = "Light", .cmd = {"~@Light#*"}}),
    LightKey(18, "Light 1", "#41510001"),
    LightKey(19, "Light 2", "#41510002"),
    LightKey(20, "Light 3", "#41510003"),
    RadioRelease({.id = 33, .caption = "Window", .group = "Light Pattern", .cmd = {"~@Pattern#Window", "~@Light#false"}}),
    RadioRelease({.id = 34, .caption = "Blinds", .group = "Light Pattern", .cmd = {"~@Pattern#Blinds", "~@Light#false"}}),
    RadioRelease({.id = 35, .caption = "Leaves", .group = "Light Pattern", .cmd = {"~@Pattern#Leaves", "~@Light#false"}}),
    // A pattern takes the generator of the bar.
    Toggle({.id = 36, .caption = "Bar", .group = "Light Pattern", .tally_func = bt_tly_lightptnbar, .cmd = {"~@Bar#*", "~@Light#", "~@Pattern#"}, .nb = nb_dme_light_bar.row}),
    Toggle({.id = 49, .caption = "Ambient", .group = "Ambient", .cmd = {"~@Ambient#*", "~@Light#false", "~@Ambient@Color#"}, .nb = SpecialKnob(87)}),
    Toggle({.id = 50, .caption = "Color",   .group = "Ambient", .cmd = {"~@Ambient@Color#*", "~@Light#false", "~@Ambient#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_light));

inline constexpr BT_TBL bt_dme_light_adjust[] = { // of any of the three
    Toggle({.id = 17, .caption = "Light\nOn", .group = "Light", .cmd = {"~@On#*", "~@Source#"}, .nb = SpecialKnob(78)}),
    Radio ({.id = 18, .caption = "Distant", .group = "Light", .cmd = {"~@Source#Distant", "~@On#false"}}),
    Radio ({.id = 19, .caption = "Near",    .group = "Light", .cmd = {"~@Source#Near", "~@On#false"}}),
    Toggle({.id = 33, .caption = "Color",   .group = "Color", .cmd = {"~@Color#*", "~@On#false", "~@White#"}, .nb = SpecialKnob(79)}),
    Toggle({.id = 34, .caption = "White",   .group = "Color", .cmd = {"~@White#*", "~@On#false", "~@Color#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_light_adjust));

// --- Shadow and trail ---

inline constexpr BT_TBL bt_dme_shadow[] = {
    Toggle({.id = 17, .caption = "Shadow",        .group = "Shadow", .cmd = {"~@Shadow#*", "~@Projection#"}, .nb = SpecialKnob(74)}),
    Toggle({.id = 18, .caption = "Project\non Floor", .group = "Shadow", .cmd = {"~@Projection#*", "~@Shadow#false"}}),
    Radio ({.id = 33, .caption = "Matte",         .group = "Shadow Fill", .cmd = {"~@Fill#Matte", "~@Shadow#false", "~@Fill#"}, .nb = SpecialKnob(75)}),
    Radio ({.id = 34, .caption = "Video",         .group = "Shadow Fill", .cmd = {"~@Fill#Video", "~@Shadow#false", "~@Fill#"}, .nb = SpecialKnob(75)}),
    BT_END,
};
inline constexpr BT_TBL bt_dme_trail[] = {
    Toggle({.id = 17, .caption = "Trail",         .group = "Trail", .cmd = {"~@Trail#*", "~@Motion Decay#true", "~@Trail@Strobe#"}, .nb = SpecialKnob(76)}),
    Toggle({.id = 18, .caption = "Strobe",        .group = "Trail", .cmd = {"~@Trail@Strobe#*", "~@Trail#false"}}),
    Action({.id = 19, .caption = "Clear",         .group = "Trail", .cmd = {"~@Clear#*", "~@Trail#false"}}),
    Toggle({.id = 33, .caption = "Motion\nDecay", .group = "Motion Decay", .cmd = {"~@Motion Decay#*", "~@Trail#true", "~@Key Decay#"}, .nb = SpecialKnob(77)}),
    Toggle({.id = 34, .caption = "Separate\nKey", .group = "Motion Decay", .cmd = {"~@Key Decay#*", "~@Motion Decay#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_shadow) && ButtonsAreSound(bt_dme_trail));

// --- Spotlight ---

inline constexpr BT_TBL bt_dme_spotlight[] = {
    Toggle({.id = 17, .caption = "Spotlight", .group = "Spotlight", .cmd = {"~@Spotlight#*", "~@Pattern#"}, .nb = SpecialKnob(86)}),
    Toggle({.id = 18, .caption = "Invert",    .group = "Spotlight", .cmd = {"~@Invert#*", "~@Spotlight#false"}}),
    RadioRelease({.id = 33, .caption = "Ellipse", .group = "Pattern", .cmd = {"~@Pattern#Ellipse", "~@Spotlight#false"}}),
    RadioRelease({.id = 34, .caption = "Box",     .group = "Pattern", .cmd = {"~@Pattern#Box", "~@Spotlight#false"}}),
    RadioRelease({.id = 35, .caption = "Star",    .group = "Pattern", .cmd = {"~@Pattern#Star", "~@Spotlight#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_spotlight));

// --- Wind: the picture as cloth ---

inline constexpr BT_TBL bt_dme_wind[] = {
    Toggle({.id = 17, .caption = "Wind",   .group = "Wind", .cmd = {"~@Wind#*"}, .nb = nb_dme_wind.row}),
    Toggle({.id = 18, .caption = "Gusts",  .group = "Wind", .cmd = {"~@Gusts#*", "~@Wind#false"}, .nb = nb_dme_wind_gusts.row}),
    Radio ({.id = 33, .caption = "Flag",   .group = "Held At", .cmd = {"~@Held At#Flag", "~@Wind#false"}}),
    Radio ({.id = 34, .caption = "Curtain", .group = "Held At", .cmd = {"~@Held At#Curtain", "~@Wind#false"}}),
    Radio ({.id = 35, .caption = "Corners", .group = "Held At", .cmd = {"~@Held At#Corners", "~@Wind#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_wind));

// --- Background ---

inline constexpr BT_TBL bt_dme_bkgd[] = {
    Toggle({.id = 17, .caption = "Bkgd",          .group = "Bkgd", .cmd = {"~@Bkgd#*"}}),
    Toggle({.id = 18, .caption = "With\nShadow",  .group = "Bkgd", .cmd = {"~@Shadow#*", "~@Bkgd#false"}}),
    Radio ({.id = 33, .caption = "Matte",         .group = "Fill", .cmd = {"~@Fill#Matte", "~@Bkgd#false"}, .nb = nb_dme_bkgd.row}),
    Radio ({.id = 34, .caption = "Utility\nBus",  .group = "Fill", .cmd = {"~@Fill#Utility", "~@Bkgd#false"}}),
    Radio ({.id = 35, .caption = "Texture",       .group = "Fill", .cmd = {"~@Fill#Texture", "~@Bkgd#false"}}),
    Jump  ({.id = 37, .caption = "Texture\nSelect", .group = "Adjust", .cmd = {"#41560001", "~@Fill#!Texture", "~@Bkgd#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_bkgd));
