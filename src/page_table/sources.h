// sources: the first pages of colour backgrounds, aux buses and colour correction.
#pragma once
#include "rows.h"

inline constexpr BT_TBL bt_colorbkgd[] = {
    Radio(      {.id = 17, .caption = "Bkgd 1", .group = "Color Bkgd", .cmd = {"~@Select#Bkgd 1"}}),
    Radio(      {.id = 18, .caption = "Bkgd 2", .group = "Color Bkgd", .cmd = {"~@Select#Bkgd 2"}}),
    Radio(      {.id = 33, .caption = "Flat", .group = "Color Mix", .cmd = {"~@Mode#Flat"}}),
    Radio(      {.id = 34, .caption = "Wash", .group = "Color Mix", .cmd = {"~@Mode#Wash"}}),
    Radio(      {.id = 35, .caption = "Pattern", .group = "Color Mix", .cmd = {"~@Mode#Pattern"}}),
    Action(     {.id = 49, .caption = "Copy\n1 to 2", .group = "Color", .cmd = {"~@Copy#*"}}),
    Action(     {.id = 50, .caption = "Swap", .group = "Color", .cmd = {"~@Swap#*"}}),
    Toggle(     {.id = 52, .caption = "Wash\nMulti", .group = "Modify", .cmd = {"~@Wash Multi#*", "~@Mode#Flat"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_colorbkgd));

inline constexpr BT_TBL bt_aux[] = {
    Radio(      {.id = 17, .caption = "Aux 1", .group = "Bus", .cmd = {"~@Bus#Aux 1"}}),
    Radio(      {.id = 18, .caption = "Aux 2", .group = "Bus", .cmd = {"~@Bus#Aux 2"}}),
    Radio(      {.id = 19, .caption = "Aux 3", .group = "Bus", .cmd = {"~@Bus#Aux 3"}}),
    Radio(      {.id = 20, .caption = "Aux 4", .group = "Bus", .cmd = {"~@Bus#Aux 4"}}),
    Radio(      {.id = 21, .caption = "Aux 5", .group = "Bus", .cmd = {"~@Bus#Aux 5"}}),
    Radio(      {.id = 22, .caption = "Aux 6", .group = "Bus", .cmd = {"~@Bus#Aux 6"}}),
    Toggle(     {.id = 33, .caption = "Mix", .group = "Transition", .cmd = {"~@Mix#*"}}),
    Toggle(     {.id = 34, .caption = "Bus Link", .group = "Transition", .cmd = {"~@Bus Link#*"}}),
    Action(     {.id = 36, .caption = "Auto\nTrans", .group = "Transition", .cmd = {"~@Auto Trans#*"}}),
    Action(     {.id = 37, .caption = "Cut", .group = "Transition", .cmd = {"~@Cut#*"}}),
    Toggle(     {.id = 49, .caption = "Safe Area", .group = "Monitor", .cmd = {"~@Safe Area#*"}}),
    Toggle(     {.id = 50, .caption = "Key Disable", .group = "Monitor", .cmd = {"~@Key Disable#*"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_aux));

inline constexpr BT_TBL bt_ccr[] = {
    Toggle(     {.id = 17, .caption = "White\nBalance", .group = "Correction", .cmd = {"~@White Balance#*"}}),
    Toggle(     {.id = 18, .caption = "Black\nBalance", .group = "Correction", .cmd = {"~@Black Balance#*"}}),
    Toggle(     {.id = 19, .caption = "Gamma", .group = "Correction", .cmd = {"~@Gamma#*"}}),
    Toggle(     {.id = 20, .caption = "Knee", .group = "Correction", .cmd = {"~@Knee#*"}}),
    Toggle(     {.id = 21, .caption = "Saturation", .group = "Correction", .cmd = {"~@Saturation#*"}}),
    Radio(      {.id = 33, .caption = "RGB", .group = "Color Space", .cmd = {"~@Color Space#RGB"}}),
    Radio(      {.id = 34, .caption = "YUV", .group = "Color Space", .cmd = {"~@Color Space#YUV"}}),
    Toggle(     {.id = 36, .caption = "White\nClip", .group = "Clip", .cmd = {"~@White Clip#*"}}),
    Toggle(     {.id = 37, .caption = "Dark\nClip", .group = "Clip", .cmd = {"~@Dark Clip#*"}}),
    Action(     {.id = 49, .caption = "Reset", .group = "Curve", .cmd = {"~@Reset#*"}}),
    Action(     {.id = 50, .caption = "Copy", .group = "Curve", .cmd = {"~@Copy#*"}}),
    Action(     {.id = 51, .caption = "Swap", .group = "Curve", .cmd = {"~@Swap#*"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_ccr));

inline constexpr BT_TBL bt_color_bkgd_top[] = {
    Jump(       {.id = 17, .caption = "Color\nBkgd", .group = "Color Bkgd", .cmd = {"#22100000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_color_bkgd_top));

inline constexpr BT_TBL bt_auxmon_top[] = {
    Jump(       {.id = 17, .caption = "Aux Bus", .group = "Aux/Mon", .cmd = {"#23110000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_auxmon_top));

inline constexpr BT_TBL bt_ccr_top[] = {
    Jump(       {.id = 17, .caption = "Correc-\ntion", .group = "CCR", .cmd = {"#24110000"}}),
    Jump(       {.id = 6, .caption = "Top\nMenu", .cmd = {"#00110000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_ccr_top));

inline constexpr PAGE sources_pages[] = {
    {.id = 0x22000000, .tree = {"Color Bkgd"}, .obj = {Base(base_main), Buttons(bt_color_bkgd_top)}},
    {.id = 0x23000000, .tree = {"Aux/Mon"}, .obj = {Base(base_main), Buttons(bt_auxmon_top)}},
    {.id = 0x24000000, .tree = {"CCR"}, .obj = {Base(base_main), Buttons(bt_ccr_top)}},
    {.id = 0x22100000, .tree = {"Color Bkgd"}, .obj = {Base(base_main), Buttons(bt_colorbkgd)}},
    {.id = 0x23110000, .tree = {"Aux/Mon", "Aux Bus"}, .obj = {Base(base_main), Buttons(bt_aux)}},
    {.id = 0x24110000, .tree = {"CCR", "Correction"}, .obj = {Base(base_main), Buttons(bt_ccr)}},
};
