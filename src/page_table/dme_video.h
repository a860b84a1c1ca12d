// dme_video: what an effects channel does to the picture itself: softness, colour, tiles, mask.
#pragma once
#include "rows.h"

// --- Defocus and blur ---

// A unit with its own interface gets video and key apart, and softens each by itself.
#define DME_DEFOCUS \
    Toggle({.id = 17, .caption = "Defocus",       .group = "Defocus", .cmd = {"~@Defocus#*", "~@Blur#true", "~@Defocus@Separate#"}, .nb = SpecialKnob(106)}), \
    Toggle({.id = 18, .caption = "Separate\nH/V", .group = "Defocus", .cmd = {"~@Defocus@Separate#*", "~@Defocus#false"}}), \
    Toggle({.id = 20, .caption = "Blur",          .group = "Blur", .cmd = {"~@Blur#*", "~@Defocus#true", "~@Blur@Radial#"}, .nb = SpecialKnob(107)}), \
    Toggle({.id = 21, .caption = "Radial",        .group = "Blur", .cmd = {"~@Blur@Radial#*", "~@Blur#false"}})

inline constexpr BT_TBL bt_dme_video_defocus[] = {
    DME_DEFOCUS,
    BT_END,
};
inline constexpr BT_TBL bt_dme_video_defocus_key[] = {
    DME_DEFOCUS,
    Toggle({.id = 33, .caption = "Key\nDefocus",  .group = "Key Defocus", .cmd = {"~@Key Defocus#*", "~@Key Defocus@Separate#"}, .nb = SpecialKnob(114)}),
    Toggle({.id = 34, .caption = "Separate\nH/V", .group = "Key Defocus", .cmd = {"~@Key Defocus@Separate#*", "~@Key Defocus#false"}}),
    BT_END,
};
#undef DME_DEFOCUS
static_assert(ButtonsAreSound(bt_dme_video_defocus) && ButtonsAreSound(bt_dme_video_defocus_key));

// --- Colour ---

inline constexpr BT_TBL bt_dme_video_color[] = {
    Toggle({.id = 17, .caption = "Color\nModify", .group = "Color Modify", .cmd = {"~@Color Modify#*", "~@RGB#"}, .nb = SpecialKnob(108)}),
    Toggle({.id = 18, .caption = "RGB",           .group = "Color Modify", .cmd = {"~@RGB#*", "~@Color Modify#false"}}),
    Toggle({.id = 20, .caption = "Mono",          .group = "Video", .cmd = {"~@Mono#*", "~@Sepia#true"}}),
    Toggle({.id = 21, .caption = "Nega",          .group = "Video", .cmd = {"~@Nega#*"}}),
    Toggle({.id = 33, .caption = "Sepia",         .group = "Sepia", .cmd = {"~@Sepia#*", "~@Mono#true", "~@Sepia@Color#"}, .nb = SpecialKnob(113)}),
    Toggle({.id = 34, .caption = "Own\nColor",    .group = "Sepia", .cmd = {"~@Sepia@Color#*", "~@Sepia#false"}}),
    Toggle({.id = 36, .caption = "Posterize",     .group = "Posterize", .cmd = {"~@Posterize#*", "~@Posterize@Separate#"}, .nb = SpecialKnob(110)}),
    Toggle({.id = 37, .caption = "Separate\nY/Pb/Pr", .group = "Posterize", .cmd = {"~@Posterize@Separate#*", "~@Posterize#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_video_color));

// --- Tiles and copies ---

inline constexpr BT_TBL bt_dme_video_mosaic[] = {
    Toggle({.id = 17, .caption = "Mosaic",        .group = "Mosaic", .cmd = {"~@Mosaic#*"}, .nb = SpecialKnob(109)}),
    Radio ({.id = 18, .caption = "Video",         .group = "Mosaic", .cmd = {"~@Mosaic@Target#Video", "~@Mosaic#false"}}),
    Radio ({.id = 19, .caption = "Video\n& Key",  .group = "Mosaic", .cmd = {"~@Mosaic@Target#Video & Key", "~@Mosaic#false"}}),
    Toggle({.id = 33, .caption = "Multi\nMove",   .group = "Multi Move", .cmd = {"~@Multi Move#*", "~@Multi Move@Shift#"}, .nb = SpecialKnob(111)}),
    Toggle({.id = 34, .caption = "Shift\nLines",  .group = "Multi Move", .cmd = {"~@Multi Move@Shift#*", "~@Multi Move#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_video_mosaic));

// --- Mask: where the effects of the other tabs act ---

inline constexpr BT_TBL bt_dme_video_mask[] = {
    Toggle({.id = 17, .caption = "Mask",          .group = "Mask", .cmd = {"~@Mask#*"}, .nb = SpecialKnob(112)}),
    Toggle({.id = 18, .caption = "Mask\nInvert",  .group = "Mask", .cmd = {"~@Mask Invert#*", "~@Mask#false"}}),
    Radio ({.id = 33, .caption = "Box",           .group = "Mask Source", .cmd = {"~@Mask Source#Box", "~@Mask#false"}}),
    Radio ({.id = 34, .caption = "Key",           .group = "Mask Source", .cmd = {"~@Mask Source#Key", "~@Mask#false"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_video_mask));
