// me_key_edge: the edge of a key: its kinds, what fills it, and the plate behind the key. Written for M/E-1, Key1.
#pragma once
#include "me_banks.h"
#include "patterns.h"
#include "pc_me.h"
#include "st_me_key.h"

inline constexpr NB_TBL nb_me_key_edge_border[] = {
    {.id = 1, .caption = "Width",   .type = NB_2, .min = 0, .max = 8,   .cmd = "~@Edge Type@Border@Width"},
    {.id = 2, .caption = "Soft",    .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Soft"},
    {.id = 3, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Border@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_drop[] = {
    {.id = 1, .caption = "Width",    .type = NB_2, .min = 0,    .max = 8,   .cmd = "~@Edge Type@Drop Border@Width"},
    {.id = 2, .caption = "Position", .type = NB_2, .min = 0,    .max = 360, .cmd = "~@Edge Type@Drop Border@Position"},
    {.id = 3, .caption = "Soft",     .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Edge Type@Drop Border@Soft"},
    {.id = 4, .caption = "Density",  .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Edge Type@Drop Border@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_shadow[] = {
    {.id = 1, .caption = "H",       .type = NB_2, .min = -16, .max = 16,  .cmd = "~@Edge Type@Shadow@H"},
    {.id = 2, .caption = "V",       .type = NB_2, .min = -16, .max = 16,  .cmd = "~@Edge Type@Shadow@V"},
    {.id = 3, .caption = "Soft",    .type = NB_2, .min = 0,   .max = 100, .cmd = "~@Edge Type@Shadow@Soft"},
    {.id = 4, .caption = "Density", .type = NB_2, .min = 0,   .max = 100, .cmd = "~@Edge Type@Shadow@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_outline[] = {
    {.id = 1, .caption = "Width",   .type = NB_2, .min = 0, .max = 8,   .cmd = "~@Edge Type@Outline@Width"},
    {.id = 2, .caption = "Density", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Outline@Density"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_emboss[] = {
    {.id = 1, .caption = "Width",    .type = NB_2, .min = 0, .max = 8,   .cmd = "~@Edge Type@Emboss@Width"},
    {.id = 2, .caption = "Position", .type = NB_2, .min = 0, .max = 360, .cmd = "~@Edge Type@Emboss@Position"},
    {.id = 3, .caption = "Light",    .type = NB_2, .min = 0, .max = 100, .cmd = "~@Edge Type@Emboss@Light"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_soft[] = {
    {.id = 1, .caption = "Soft", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Soft Edge@Soft"},
    NB_END,
};
inline constexpr NB_TBL nb_me_key_edge_keydrop[] = {
    {.id = 1, .caption = "Position", .type = NB_2, .min = -16, .max = 16, .cmd = "~@Key Drop@Position"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_edge_border) && BoxesAreSound(nb_me_key_edge_drop));
static_assert(BoxesAreSound(nb_me_key_edge_shadow) && BoxesAreSound(nb_me_key_edge_outline));
static_assert(BoxesAreSound(nb_me_key_edge_emboss) && BoxesAreSound(nb_me_key_edge_soft));
static_assert(BoxesAreSound(nb_me_key_edge_keydrop));

inline constexpr BT_TBL bt_me_key_edge[] = {
    Radio ({.id = 17, .caption = "Normal",       .group = "Edge Type", .cmd = {"~@Edge Type#Normal"}}),
    Radio ({.id = 18, .caption = "Border",       .group = "Edge Type", .cmd = {"~@Edge Type#Border"},      .nb = nb_me_key_edge_border}),
    Radio ({.id = 19, .caption = "Drop\nBorder", .group = "Edge Type", .cmd = {"~@Edge Type#Drop Border"}, .nb = nb_me_key_edge_drop}),
    Radio ({.id = 20, .caption = "Shadow",       .group = "Edge Type", .cmd = {"~@Edge Type#Shadow"},      .nb = nb_me_key_edge_shadow}),
    Radio ({.id = 21, .caption = "Outline",      .group = "Edge Type", .cmd = {"~@Edge Type#Outline"},     .nb = nb_me_key_edge_outline}),
    Radio ({.id = 22, .caption = "Emboss",       .group = "Edge Type", .cmd = {"~@Edge Type#Emboss"},      .nb = nb_me_key_edge_emboss}),
    Radio ({.id = 33, .caption = "Utility 1\nBus", .group = "Edge Fill", .cmd = {"~@Edge Fill#Utility 1", "~@Edge Type#Normal"}}),
    Radio ({.id = 34, .caption = "Utility 2\nBus", .group = "Edge Fill", .cmd = {"~@Edge Fill#Utility 2", "~@Edge Type#Normal"}}),
    Radio ({.id = 35, .caption = "Matte",        .group = "Edge Fill", .cmd = {"~@Edge Fill#Matte", "~@Edge Type#Normal"}}),
    Toggle({.id = 37, .caption = "Separate\nEdge", .group = "Edge Modify", .cmd = {"~@Separate Edge#*", "~@Edge Type#Normal,Outline,Emboss"}}),
    Toggle({.id = 38, .caption = "Fine Key",     .group = "Edge Modify", .cmd = {"~@Fine Key#*"}}),
    Toggle({.id = 49, .caption = "Soft Edge",    .group = "Softness", .cmd = {"~@Soft Edge#*"}, .nb = nb_me_key_edge_soft}),
    Toggle({.id = 50, .caption = "Key Drop",     .group = "Drop", .cmd = {"~@Key Drop#*"}, .nb = nb_me_key_edge_keydrop}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_key_edge));


// --- Patterns ---

inline constexpr PS_TBL ps_me_key_edge_mixptn = {.cmd = "~@Pattern", .init_nb = NB_Non, .init_nb_caption = "Mix Pattern"};
inline constexpr PS_TBL ps_me_key_edge_zabtonptn = {.cmd = "~@Pattern", .init_nb = NB_Non, .init_nb_caption = "Zabton"};

// --- The pages ---

inline constexpr MePage me_key_edge_pages[] = {
    {.page = {.id = 0x11120000, .tree = {"M/E-1", "Key1", "Edge"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 2), Buttons(bt_me_key_edge), Boxes(NB_Non), Cells(st_me_key)}}},
    {.page = {.id = 0x11120001, .tree = {"M/E-1", "Key1", "Edge", "Matte Adjust"},
              .obj = {Base(base_sub, 0x11120000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 2), Boxes(NB_Non), Cells(st_me_key)}}},
    {.page = {.id = 0x11120002, .tree = {"M/E-1", "Key1", "Edge", "Matte Adjust", "Mix Pattern"},
              .obj = {Base(base_sub, 0x11120001), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 2), Boxes(NB_Non), Patterns(ps_me_key_edge_mixptn)}}},
    {.page = {.id = 0x11120003, .tree = {"M/E-1", "Key1", "Edge", "Zabton"},
              .obj = {Base(base_sub, 0x11120000), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 2), Boxes(NB_Non), Cells(st_me_key)}}},
    {.page = {.id = 0x11120004, .tree = {"M/E-1", "Key1", "Edge", "Zabton", "Ptn Select"},
              .obj = {Base(base_sub, 0x11120003), LeftTabs(vf_me1, 1), BottomTabs(hf_me_key, 2), Boxes(NB_Non), Patterns(ps_me_key_edge_zabtonptn)}}},
};
