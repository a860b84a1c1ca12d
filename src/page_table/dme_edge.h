// dme_edge: the edges of an effects channel's picture: border, crop, softness, and what is made along them.
#pragma once
#include "rows.h"

// --- Border and crop ---

// A unit in the switcher's frame reaches its utility bus; one in a frame of its own has the matte.
#define DME_BORDER_CROP \
    Toggle({.id = 17, .caption = "Border",       .group = "Border", .cmd = {"~@Border#*"}, .nb = SpecialKnob(5)}), \
    Toggle({.id = 18, .caption = "Border\nSoft", .group = "Border", .cmd = {"~@Border Soft#*", "~@Border#false", "~@Border Soft@Separate#"}, .nb = SpecialKnob(68)}), \
    Toggle({.id = 19, .caption = "Separate\nIn/Out", .group = "Border", .cmd = {"~@Border Soft@Separate#*", "~@Border#false"}}), \
    Radio ({.id = 20, .caption = "Matte",        .group = "Border Fill", .cmd = {"~@Border Fill#Matte", "~@Border#false", "~@Matte@Mode#"}, .nb = SpecialKnob(69)}), \
    RadioRelease({.id = 21, .caption = "Gradation", .group = "Border Fill", .cmd = {"~@Matte@Mode#Gradation", "~@Border#false", "~@Border Fill#!Matte"}}), \
    Toggle({.id = 33, .caption = "Crop",         .group = "Crop", .cmd = {"~@Crop#*", "~@Crop@Separate#"}, .nb = SpecialKnob(67)}), \
    Toggle({.id = 34, .caption = "Separate\nSides", .group = "Crop", .cmd = {"~@Crop@Separate#*", "~@Crop#false"}}), \
    Action({.id = 35, .caption = "4:3 Crop",     .group = "Crop", .cmd = {"~@4:3 Crop#*", "~@Crop#false"}}), \
    Action({.id = 36, .caption = "Full\nPicture", .group = "Crop", .cmd = {"~@Full Picture#*", "~@Crop#false"}})

inline constexpr BT_TBL bt_dme_edge_bordercrop[] = {
    DME_BORDER_CROP,
    Radio ({.id = 22, .caption = "Utility\nBus", .group = "Border Fill", .cmd = {"~@Border Fill#Utility", "~@Border#false"}}),
    BT_END,
};
inline constexpr BT_TBL bt_dme_edge_bordercrop_own[] = {
    DME_BORDER_CROP,
    BT_END,
};
#undef DME_BORDER_CROP
static_assert(ButtonsAreSound(bt_dme_edge_bordercrop) && ButtonsAreSound(bt_dme_edge_bordercrop_own));

// --- Soft and beveled ---

inline constexpr BT_TBL bt_dme_edge_soft[] = {
    Toggle({.id = 17, .caption = "Soft\nEdge",     .group = "Soft Edge", .cmd = {"~@Soft Edge#*", "~@Beveled Edge#true", "~@Soft Edge@Separate#"}, .nb = SpecialKnob(70)}),
    Toggle({.id = 18, .caption = "Separate\nH/V",  .group = "Soft Edge", .cmd = {"~@Soft Edge@Separate#*", "~@Soft Edge#false"}}),
    Toggle({.id = 33, .caption = "Beveled\nEdge",  .group = "Beveled Edge", .cmd = {"~@Beveled Edge#*", "~@Soft Edge#true"}, .nb = SpecialKnob(71)}),
    Radio ({.id = 34, .caption = "Flat",           .group = "Beveled Edge", .cmd = {"~@Beveled Edge@Profile#Flat", "~@Beveled Edge#false"}}),
    Radio ({.id = 35, .caption = "Round",          .group = "Beveled Edge", .cmd = {"~@Beveled Edge@Profile#Round", "~@Beveled Edge#false"}}),
    Radio ({.id = 36, .caption = "Groove",         .group = "Beveled Edge", .cmd = {"~@Beveled Edge@Profile#Groove", "~@Beveled Edge#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_edge_soft));

// --- Around the key ---

inline constexpr BT_TBL bt_dme_edge_keyborder[] = {
    Toggle({.id = 17, .caption = "Key\nBorder",   .group = "Key Border", .cmd = {"~@Key Border#*", "~@Drop#"}, .nb = SpecialKnob(72)}),
    Toggle({.id = 18, .caption = "Drop\nBorder",  .group = "Key Border", .cmd = {"~@Drop#*", "~@Key Border#false"}}),
    Radio ({.id = 33, .caption = "Matte",         .group = "Border Fill", .cmd = {"~@Border Fill#Matte", "~@Key Border#false", "~@Matte@Mode#"}, .nb = SpecialKnob(69)}),
    RadioRelease({.id = 34, .caption = "Gradation", .group = "Border Fill", .cmd = {"~@Matte@Mode#Gradation", "~@Key Border#false", "~@Border Fill#!Matte"}}),
    Radio ({.id = 35, .caption = "Self",          .group = "Border Fill", .cmd = {"~@Border Fill#Self", "~@Key Border#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_edge_keyborder));

// --- Art edge: the edge as if it were painted ---

inline constexpr BT_TBL bt_dme_edge_artedge[] = {
    Toggle({.id = 17, .caption = "Art Edge",  .group = "Art Edge", .cmd = {"~@Art Edge#*", "~@Type#"}, .nb = SpecialKnob(73)}),
    Toggle({.id = 18, .caption = "Invert",    .group = "Art Edge", .cmd = {"~@Invert#*", "~@Art Edge#false"}}),
    Radio ({.id = 33, .caption = "Brush",     .group = "Edge Type", .cmd = {"~@Type#Brush", "~@Art Edge#false"}}),
    Radio ({.id = 34, .caption = "Wave",      .group = "Edge Type", .cmd = {"~@Type#Wave", "~@Art Edge#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_edge_artedge));

// --- A crop in the form of a wipe ---

inline constexpr BT_TBL bt_dme_edge_wipecrop[] = {
    Toggle({.id = 17, .caption = "Wipe\nCrop", .group = "Wipe Crop", .cmd = {"~@Wipe Crop#*"}, .nb = SpecialKnob(115)}),
    Toggle({.id = 18, .caption = "Invert",     .group = "Wipe Crop", .cmd = {"~@Invert#*", "~@Wipe Crop#false"}}),
    Radio ({.id = 33, .caption = "Box",        .group = "Pattern", .cmd = {"~@Pattern#Box", "~@Wipe Crop#false"}}),
    Radio ({.id = 34, .caption = "Circle",     .group = "Pattern", .cmd = {"~@Pattern#Circle", "~@Wipe Crop#false"}}),
    Radio ({.id = 35, .caption = "Diamond",    .group = "Pattern", .cmd = {"~@Pattern#Diamond", "~@Wipe Crop#false"}}),
    Radio ({.id = 36, .caption = "Star",       .group = "Pattern", .cmd = {"~@Pattern#Star", "~@Wipe Crop#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_edge_wipecrop));

// --- A colour mixed into the picture ---

inline constexpr BT_TBL bt_dme_edge_colormix[] = {
    Toggle({.id = 17, .caption = "Color\nMix", .group = "Color Mix", .cmd = {"~@Color Mix#*"}}),
    Radio ({.id = 33, .caption = "Color 1",    .group = "Color", .cmd = {"~@Color#Color 1", "~@Color Mix#false", "~@Color#"}, .nb = SpecialKnob(116)}),
    Radio ({.id = 34, .caption = "Color 2",    .group = "Color", .cmd = {"~@Color#Color 2", "~@Color Mix#false", "~@Color#"}, .nb = SpecialKnob(116)}),
    Action({.id = 35, .caption = "Swap",       .group = "Color", .cmd = {"~@Swap#*", "~@Color Mix#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_edge_colormix));
