// dmewipe_modify: the keys that the pages of the effects-unit wipe of a bank and of that of a key share. Those for place,
// size and crop of the channels are bound to local paths: the page code knows which channels are meant.
#pragma once
#include "patterns.h"

#define MODIFY "LOCAL@Modify@"

inline constexpr BT_TBL dmewipe_position = Toggle({.id = 17, .caption = "Position", .group = "Position", .cmd = {MODIFY "Position@Position#*"}, .nb = SpecialKnob(45)});
inline constexpr BT_TBL dmewipe_center   = Action({.id = 18, .caption = "Center",   .group = "Position", .cmd = {MODIFY "Position@Center"}});
inline constexpr BT_TBL dmewipe_crop     = Toggle({.id = 20, .caption = "Crop",     .group = "Crop Mode", .cmd = {MODIFY "Crop Mode@Crop#*"}, .nb = SpecialKnob(55)});
inline constexpr BT_TBL dmewipe_crop_4_3 = Action({.id = 21, .caption = "4:3 Crop", .group = "Crop Mode", .cmd = {MODIFY "Crop Mode@4:3 Crop"}});
inline constexpr BT_TBL dmewipe_size     = Toggle({.id = 22, .caption = "Size",     .group = "Size", .cmd = {MODIFY "Size#*"}, .nb = SpecialKnob(59)});

// Two by two, as the corners of the screen lie.
constexpr BT_TBL DmeWipeCorner(int id, const char* caption, const char* cmd)
{
    return Toggle({.id = id, .caption = caption, .group = "Position Select", .cmd = {cmd}});
}
inline constexpr BT_TBL dmewipe_top_left     = DmeWipeCorner(33, "Top\nLeft",   MODIFY "Position Select@Top Left#*");
inline constexpr BT_TBL dmewipe_top_right    = DmeWipeCorner(34, "Top\nRight",  MODIFY "Position Select@Top Right#*");
inline constexpr BT_TBL dmewipe_bottom_left  = DmeWipeCorner(49, "Bttm\nLeft",  MODIFY "Position Select@Bttm Left#*");
inline constexpr BT_TBL dmewipe_bottom_right = DmeWipeCorner(50, "Bttm\nRight", MODIFY "Position Select@Bttm Right#*");

// Of patterns that take more than one channel.
inline constexpr BT_TBL dmewipe_relative = Toggle({.id = 19, .caption = "Relative", .group = "Position", .cmd = {MODIFY "Position@Relative#*"}});
inline constexpr BT_TBL dmewipe_ch1      = Toggle({.id = 35, .caption = "1st Ch", .group = "Ch Select", .cmd = {MODIFY "Ch Select@1st Ch#*"}});
inline constexpr BT_TBL dmewipe_ch2      = Toggle({.id = 36, .caption = "2nd Ch", .group = "Ch Select", .cmd = {MODIFY "Ch Select@2nd Ch#*"}});
inline constexpr BT_TBL dmewipe_ch3      = Toggle({.id = 37, .caption = "3rd Ch", .group = "Ch Select", .cmd = {MODIFY "Ch Select@3rd Ch#*"}});
#undef MODIFY

// --- Size and transparency of a pattern that has them; pattern: the path of its number ---

inline constexpr NB_TBL nb_dmewipe_ptnsize[] = {
    {.id = 1, .caption = "Size", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Size@Size"},
    NB_END,
};
static_assert(BoxesAreSound(nb_dmewipe_ptnsize));

constexpr BT_TBL dmewipe_ptnsize(int id, const char* caption, const char* pattern)
{
    return Toggle({.id = id, .caption = caption, .group = "Pattern", .tally_func = bt_tly_dmewipe_size,
                   .cmd = {"~@Size#*", pattern}, .nb = nb_dmewipe_ptnsize});
}
constexpr BT_TBL dmewipe_transparency(int id, const char* pattern)
{
    return Toggle({.id = id, .caption = "Trans-\nparency", .group = "Pattern", .tally_func = bt_tly_dmewipe_trans,
                   .cmd = {"~@Transparency#*", pattern, "~@Transparency@Fade#"}, .nb = SpecialKnob(54)});
}
constexpr BT_TBL dmewipe_fade(int id) // from one transparency to another
{
    return Toggle({.id = id, .caption = "Fade", .group = "Pattern", .cmd = {"~@Transparency@Fade#*", "~@Transparency#false"}});
}
