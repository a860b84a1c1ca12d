// dme: the first pages of effects units and global effects.
#pragma once
#include "rows.h"

inline constexpr BT_TBL bt_dme_3dtrans[] = {
    Radio(      {.id = 17, .caption = "Ch1", .group = "Channel", .cmd = {"~@Channel#Ch1"}}),
    Radio(      {.id = 18, .caption = "Ch2", .group = "Channel", .cmd = {"~@Channel#Ch2"}}),
    Radio(      {.id = 19, .caption = "Ch3", .group = "Channel", .cmd = {"~@Channel#Ch3"}}),
    Radio(      {.id = 20, .caption = "Ch4", .group = "Channel", .cmd = {"~@Channel#Ch4"}}),
    Radio(      {.id = 33, .caption = "Local", .group = "Transform", .cmd = {"~@Transform#Local"}}),
    Radio(      {.id = 34, .caption = "Target", .group = "Transform", .cmd = {"~@Transform#Target"}}),
    Radio(      {.id = 35, .caption = "Source", .group = "Transform", .cmd = {"~@Transform#Source"}}),
    Toggle(     {.id = 36, .caption = "Locate", .group = "Rotation", .cmd = {"~@Locate#*"}}),
    Toggle(     {.id = 37, .caption = "Size", .group = "Rotation", .cmd = {"~@Size#*"}}),
    Toggle(     {.id = 38, .caption = "Rotate", .group = "Rotation", .cmd = {"~@Rotate#*"}}),
    Action(     {.id = 49, .caption = "Center", .group = "Graphic", .cmd = {"~@Center#*"}}),
    Action(     {.id = 50, .caption = "Default", .group = "Graphic", .cmd = {"~@Default#*"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_3dtrans));

inline constexpr BT_TBL bt_ge_combine[] = {
    Toggle(     {.id = 17, .caption = "Ch1", .group = "Combine", .cmd = {"~@Ch1#*"}}),
    Toggle(     {.id = 18, .caption = "Ch2", .group = "Combine", .cmd = {"~@Ch2#*"}}),
    Toggle(     {.id = 19, .caption = "Ch3", .group = "Combine", .cmd = {"~@Ch3#*"}}),
    Toggle(     {.id = 20, .caption = "Ch4", .group = "Combine", .cmd = {"~@Ch4#*"}}),
    Toggle(     {.id = 33, .caption = "Shadow", .group = "Effect", .cmd = {"~@Shadow#*"}}),
    Toggle(     {.id = 34, .caption = "Light", .group = "Effect", .cmd = {"~@Light#*"}}),
    Toggle(     {.id = 35, .caption = "Brick", .group = "Effect", .cmd = {"~@Brick#*"}}),
    Radio(      {.id = 49, .caption = "Auto", .group = "Priority", .cmd = {"~@Priority#Auto"}}),
    Radio(      {.id = 50, .caption = "Manual", .group = "Priority", .cmd = {"~@Priority#Manual"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_ge_combine));

inline constexpr BT_TBL bt_dme_top[] = {
    Jump(       {.id = 17, .caption = "3D Trans", .group = "DME", .cmd = {"#41110000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_dme_top));

inline constexpr BT_TBL bt_global_effect_top[] = {
    Jump(       {.id = 17, .caption = "Combine", .group = "Global Effect", .cmd = {"#42110000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_global_effect_top));

inline constexpr PAGE dme_pages[] = {
    {.id = 0x41000000, .tree = {"DME"}, .obj = {Base(base_main), Buttons(bt_dme_top)}},
    {.id = 0x42000000, .tree = {"Global Effect"}, .obj = {Base(base_main), Buttons(bt_global_effect_top)}},
    {.id = 0x42000100, .tree = {"Global Effect"}, .obj = {Base(base_main), Buttons(bt_global_effect_top)}},
    {.id = 0x42000200, .tree = {"Global Effect"}, .obj = {Base(base_main), Buttons(bt_global_effect_top)}},
    {.id = 0x42000400, .tree = {"Global Effect"}, .obj = {Base(base_main), Buttons(bt_global_effect_top)}},
    {.id = 0x42000500, .tree = {"Global Effect"}, .obj = {Base(base_main), Buttons(bt_global_effect_top)}},
    {.id = 0x41110100, .tree = {"DME", "Transform", "3D Trans"}, .obj = {Base(base_main), Buttons(bt_dme_3dtrans)}},
    {.id = 0x41110200, .tree = {"DME", "Transform", "3D Trans"}, .obj = {Base(base_main), Buttons(bt_dme_3dtrans)}},
    {.id = 0x42110100, .tree = {"Global Effect", "Ch1-Ch4", "Combine"}, .obj = {Base(base_main), Buttons(bt_ge_combine)}},
    {.id = 0x42110200, .tree = {"Global Effect", "Ch1-Ch4", "Combine"}, .obj = {Base(base_main), Buttons(bt_ge_combine)}},
    {.id = 0x42110300, .tree = {"Global Effect", "Ch1-Ch4", "Combine"}, .obj = {Base(base_main), Buttons(bt_ge_combine)}},
    {.id = 0x42110400, .tree = {"Global Effect", "Ch1-Ch4", "Combine"}, .obj = {Base(base_main), Buttons(bt_ge_combine)}},
    {.id = 0x42110500, .tree = {"Global Effect", "Ch1-Ch4", "Combine"}, .obj = {Base(base_main), Buttons(bt_ge_combine)}},
    {.id = 0x42110600, .tree = {"Global Effect", "Ch1-Ch4", "Combine"}, .obj = {Base(base_main), Buttons(bt_ge_combine)}},
    {.id = 0x42110700, .tree = {"Global Effect", "Ch1-Ch4", "Combine"}, .obj = {Base(base_main), Buttons(bt_ge_combine)}},
    {.id = 0x42110800, .tree = {"Global Effect", "Ch1-Ch4", "Combine"}, .obj = {Base(base_main), Buttons(bt_ge_combine)}},
    {.id = 0x42110900, .tree = {"Global Effect", "Ch1-Ch4", "Combine"}, .obj = {Base(base_main), Buttons(bt_ge_combine)}},
    {.id = 0x42111000, .tree = {"Global Effect", "Ch1-Ch4", "Combine"}, .obj = {Base(base_main), Buttons(bt_ge_combine)}},
};
