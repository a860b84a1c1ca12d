// me_wipe: the wipe of a bank: its two patterns and how they mix, edge and direction, modifiers, snapshots. The sub side
// has a wipe of its own, of one pattern. Written for M/E-1.
#pragma once
#include "me_banks.h"
#include "me_snapshot.h"
#include "nb_me_wipe.h"
#include "patterns.h"
#include "pc_me_wipe.h"
#include "st_me_wipe.h"
#include <array>
#include <string_view>

// --- Pattern select ---

inline constexpr PS_TBL ps_me_wipe_pattern = {.cmd = "~@Pattern", .init_nb = nb_wipe_position, .init_nb_caption = "Position"};
// In the corner that the layer keys leave free.
inline constexpr BT_TBL bt_me_wipe_pattern[] = {
    Toggle({.id = 53, .caption = "Position",     .x1 = 502, .y1 = 458, .x2 = 586, .y2 = 523, .cmd = {"~@Position#*"}, .nb = nb_wipe_position}),
    Toggle({.id = 54, .caption = "Auto\nCenter", .x1 = 597, .y1 = 458, .x2 = 681, .y2 = 523, .cmd = {"~@Auto Center#*"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_wipe_pattern));

// --- Pattern mix ---

inline constexpr BT_TBL bt_me_wipe_ptnmix[] = {
    Radio({.id = 17, .caption = "Off",           .group = "Pattern Mix", .cmd = {"~@Pattern Mix#Off"}}),
    Radio({.id = 18, .caption = "Mix",           .group = "Pattern Mix", .cmd = {"~@Pattern Mix#Mix"},          .nb = nb_wipe_mix_mix}),
    Radio({.id = 19, .caption = "Additive\nMix", .group = "Pattern Mix", .cmd = {"~@Pattern Mix#Additive Mix"}, .nb = nb_wipe_mix_add}),
    Radio({.id = 20, .caption = "NAM",           .group = "Pattern Mix", .cmd = {"~@Pattern Mix#NAM"},          .nb = nb_wipe_mix_nam}),
    Radio({.id = 21, .caption = "Morphing",      .group = "Pattern Mix", .cmd = {"~@Pattern Mix#Morphing"},     .nb = nb_wipe_mix_morphing}),
    Radio({.id = 22, .caption = "Replicate",     .group = "Pattern Mix", .cmd = {"~@Pattern Mix#Replicate"},    .nb = nb_wipe_mix_replicate}),
    Radio({.id = 33, .caption = "Main\nPattern", .group = "Replicate",   .cmd = {"~@Replicate@Pattern#Main", "~@Pattern Mix#!Replicate"}}),
    Radio({.id = 34, .caption = "Sub\nPattern",  .group = "Replicate",   .cmd = {"~@Replicate@Pattern#Sub", "~@Pattern Mix#!Replicate"}}),
    Jump ({.id = 36, .caption = "Main\nPattern", .group = "Pattern Select", .cmd = {"#+11510000"}}),
    Jump ({.id = 37, .caption = "Sub\nPattern",  .group = "Pattern Select", .cmd = {"#+11520000"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_wipe_ptnmix));

// --- Edge and direction ---

// Normal and reverse are two values of which one holds; the page code keeps the pair.
inline constexpr BT_TBL bt_me_wipe_edgedir[] = {
    Toggle({.id = 17, .caption = "Border",         .group = "Edge",      .cmd = {"~2@Edge@Border#*", "~2@Edge@Separate#"}, .nb = SpecialKnob(40)}),
    Toggle({.id = 18, .caption = "Soft",           .group = "Edge",      .cmd = {"~2@Edge@Soft#*", "~2@Edge@Border#"}, .nb = SpecialKnob(41)}),
    Toggle({.id = 19, .caption = "Separate\nSoft", .group = "Edge",      .cmd = {"~2@Edge@Separate#*", "~2@Edge@Border#false"}}),
    Radio ({.id = 20, .caption = "Normal",         .group = "Direction", .cmd = {"LOCAL@M/E@Wipe@Direction@Normal#true"}}),
    Radio ({.id = 21, .caption = "Reverse",        .group = "Direction", .cmd = {"LOCAL@M/E@Wipe@Direction@Reverse#true"}}),
    Toggle({.id = 22, .caption = "Norm/Rev", .group = "Direction", .cmd = {"~2@Direction@Norm/Rev#*"}}),
    Radio ({.id = 33, .caption = "Utility 1\nBus", .group = "Edge Fill", .cmd = {"~2@Edge@Edge Fill#Utility 1", "~2@Edge@Border#false"}}),
    Radio ({.id = 34, .caption = "Utility 2\nBus", .group = "Edge Fill", .cmd = {"~2@Edge@Edge Fill#Utility 2", "~2@Edge@Border#false"}}),
    Radio ({.id = 35, .caption = "Matte",          .group = "Edge Fill", .cmd = {"~2@Edge@Edge Fill#Matte", "~2@Edge@Border#false"}, .nb = nb_wipe_edge_matte}),
    Jump  ({.id = 36, .caption = "Matte\nAdjust",  .group = "Edge Fill", .cmd = {"#+11540001", "~2@Edge@Edge Fill#!Matte", "~2@Edge@Border#false"}}),
    Toggle({.id = 37, .caption = "Pattern\nLimit", .group = "Pattern Limit", .cmd = {"~2@Direction@Pattern Limit#*"}, .nb = nb_wipe_limit}),
    Action({.id = 38, .caption = "Set\nLimit",     .group = "Pattern Limit", .cmd = {"~2@Direction@Pattern Limit@Set#*"}}),
    BT_END,
};
// A relative jump knows the bank, and of these pages not the side: theirs starts from the sub side of M/E-1.
template <size_t N> constexpr std::array<BT_TBL, N> ForSubSide(const BT_TBL (&rows)[N], std::string_view from, const char* to)
{
    std::array<BT_TBL, N> sub{};
    for (size_t i = 0; i < N; i++) {
        sub[i] = rows[i];
        if (sub[i].cmd[0] && from == sub[i].cmd[0]) sub[i].cmd[0] = to;
    }
    return sub;
}
inline constexpr auto bt_me_wipe_edgedir_sub = ForSubSide(bt_me_wipe_edgedir, "#+11540001", "#+15540001");
static_assert(ButtonsAreSound(bt_me_wipe_edgedir));

// The page code changes the knobs of the mix with its pattern.
inline constexpr BT_TBL bt_me_wipe_matteadj[] = {
    Radio ({.id = 17, .caption = "Flat",         .group = "Matte", .cmd = {"~@Mode#Flat"}}),
    Radio ({.id = 18, .caption = "Mix",          .group = "Matte", .cmd = {"~@Mode#Mix"}, .nb = nb_wipe_matte_mix_across}),
    Knobs ({.id = 19, .caption = "Color 1",      .group = "Color", .nb = nb_wipe_matte_color1}),
    Knobs ({.id = 20, .caption = "Color 2",      .group = "Color", .cmd = {nullptr, "~@Mode#Flat"}, .nb = nb_wipe_matte_color2}),
    Action({.id = 21, .caption = "Copy\n1 to 2", .group = "Color", .cmd = {"~@Copy#*", "~@Mode#Flat"}}),
    Action({.id = 22, .caption = "Swap",         .group = "Color", .cmd = {"~@Swap#*", "~@Mode#Flat"}}),
    Radio ({.id = 33, .caption = "Horizontal",   .group = "Mix Pattern", .cmd = {"~@Mix Pattern#Horizontal", "~@Mode#Flat"}}),
    Radio ({.id = 34, .caption = "Vertical",     .group = "Mix Pattern", .cmd = {"~@Mix Pattern#Vertical", "~@Mode#Flat"}}),
    Radio ({.id = 35, .caption = "Diagonal",     .group = "Mix Pattern", .cmd = {"~@Mix Pattern#Diagonal", "~@Mode#Flat"}}),
    Radio ({.id = 36, .caption = "Box",          .group = "Mix Pattern", .cmd = {"~@Mix Pattern#Box", "~@Mode#Flat"}}),
    Radio ({.id = 37, .caption = "Diamond",      .group = "Mix Pattern", .cmd = {"~@Mix Pattern#Diamond", "~@Mode#Flat"}}),
    Radio ({.id = 38, .caption = "Circle",       .group = "Mix Pattern", .cmd = {"~@Mix Pattern#Circle", "~@Mode#Flat"}}),
    BT_END,
};
static_assert(ButtonsAreSound(bt_me_wipe_matteadj));

// --- Modify ---

// The page code disables what the pattern does not have.
#define BT_WIPE_MODIFY(pattern, nb_position) { \
    Toggle({.id = 17, .caption = "Position",     .group = "Position", .cmd = {"~2@" pattern "@Position#*"}, .nb = nb_position}), \
    Action({.id = 18, .caption = "Center",       .group = "Position", .cmd = {"~2@" pattern "@Center#*"}}), \
    Toggle({.id = 19, .caption = "Auto\nCenter", .group = "Position", .cmd = {"~2@" pattern "@Auto Center#*"}}), \
    Knobs ({.id = 20, .caption = "Aspect",       .group = "Shape",    .nb = SpecialKnob(34)}), \
    Knobs ({.id = 21, .caption = "Angle",        .group = "Shape",    .cmd = {nullptr, "~@Speed#"}, .nb = SpecialKnob(35)}), \
    Toggle({.id = 22, .caption = "Rotation",     .group = "Shape",    .cmd = {"~@Speed#*"}, .nb = nb_wipe_modify_speed}), \
    Knobs ({.id = 33, .caption = "Multi",        .group = "Multi",    .nb = nb_wipe_modify_multi}), \
    Toggle({.id = 34, .caption = "H Invert",     .group = "Multi",    .cmd = {"~@Multi@H Invert#*"}}), \
    Toggle({.id = 35, .caption = "V Invert",     .group = "Multi",    .cmd = {"~@Multi@V Invert#*"}}), \
    Toggle({.id = 36, .caption = "Pairing",      .group = "Lines",    .cmd = {"~@Pairing#*", "~@Pairing@Both#"}, .nb = SpecialKnob(39)}), \
    Toggle({.id = 37, .caption = "Split",        .group = "Lines",    .cmd = {"~@Split#*"}, .nb = nb_wipe_modify_split}), \
    Knobs ({.id = 38, .caption = "Spring",       .group = "Spring",   .nb = nb_wipe_modify_spring}), \
    Radio ({.id = 49, .caption = "Off",          .group = "Modulation", .cmd = {"~@Modulation#Off"}}), \
    Radio ({.id = 50, .caption = "H",            .group = "Modulation", .cmd = {"~@Modulation#H"},   .nb = nb_wipe_modify_modulation}), \
    Radio ({.id = 51, .caption = "V",            .group = "Modulation", .cmd = {"~@Modulation#V"},   .nb = nb_wipe_modify_modulation}), \
    Radio ({.id = 52, .caption = "H & V",        .group = "Modulation", .cmd = {"~@Modulation#H&V"}, .nb = nb_wipe_modify_modulation}), \
    Toggle({.id = 54, .caption = "Lines &\nColumns", .group = "Pairing", .cmd = {"~@Pairing@Both#*"}}), \
    BT_END}
inline constexpr BT_TBL bt_me_wipe_mainmodify[] = BT_WIPE_MODIFY("Main Pattern", nb_wipe_modify_main_position);
inline constexpr BT_TBL bt_me_wipe_submodify[] = BT_WIPE_MODIFY("Sub Pattern", nb_wipe_modify_sub_position);
static_assert(ButtonsAreSound(bt_me_wipe_mainmodify) && ButtonsAreSound(bt_me_wipe_submodify));
#undef BT_WIPE_MODIFY

// --- The pages ---

inline constexpr MePage me_wipe_pages[] = {
    {.page = {.id = 0x11510000, .tree = {"M/E-1", "Wipe", "Main Pattern"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 1), Boxes(NB_Non), Patterns(ps_me_wipe_pattern), Buttons(bt_me_wipe_pattern), Code(pc_me_wipe_mainpattern)}}},
    {.page = {.id = 0x11520000, .tree = {"M/E-1", "Wipe", "Sub Pattern"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 2), Boxes(NB_Non), Patterns(ps_me_wipe_pattern), Buttons(bt_me_wipe_pattern), Code(pc_me_wipe_mainpattern)}}, .where = MAIN},
    {.page = {.id = 0x11530000, .tree = {"M/E-1", "Wipe", "Pattern Mix"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 3), Buttons(bt_me_wipe_ptnmix), Boxes(NB_Non), Cells(st_me_wipe), Code(pc_me_wipe_ptnmix)}}, .where = MAIN},
    {.page = {.id = 0x11540000, .tree = {"M/E-1", "Wipe", "Edge/Direction"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 4), Buttons(bt_me_wipe_edgedir), Boxes(NB_Non), Cells(st_me_wipe), Code(pc_me_wipe_edgedir)}}, .where = MAIN},
    {.page = {.id = 0x11540000, .tree = {"M/E-1", "Wipe", "Edge/Direction"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 4), Buttons(bt_me_wipe_edgedir_sub.data()), Boxes(NB_Non), Cells(st_me_wipe_sub), Code(pc_me_wipe_edgedir)}}, .where = SUB},
    {.page = {.id = 0x11540001, .tree = {"M/E-1", "Wipe", "Edge/Direction", "Matte Adjust"},
              .obj = {Base(base_sub, 0x11540000), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 4), Buttons(bt_me_wipe_matteadj), Boxes(NB_Non), Cells(st_me_wipe), Code(pc_me_wipe_edgedir_matteadj)}}, .where = MAIN},
    {.page = {.id = 0x11540001, .tree = {"M/E-1", "Wipe", "Edge/Direction", "Matte Adjust"},
              .obj = {Base(base_sub, 0x11540000), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 4), Buttons(bt_me_wipe_matteadj), Boxes(NB_Non), Cells(st_me_wipe_sub), Code(pc_me_wipe_edgedir_matteadj)}}, .where = SUB},
    {.page = {.id = 0x11550000, .tree = {"M/E-1", "Wipe", "Main Modify"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 5), Buttons(bt_me_wipe_mainmodify), Boxes(NB_Non), Cells(st_me_wipe), Code(pc_me_wipe_mainmodify)}}, .where = MAIN},
    {.page = {.id = 0x11550000, .tree = {"M/E-1", "Wipe", "Main Modify"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 5), Buttons(bt_me_wipe_mainmodify), Boxes(NB_Non), Cells(st_me_wipe_sub), Code(pc_me_wipe_mainmodify)}}, .where = SUB},
    {.page = {.id = 0x11560000, .tree = {"M/E-1", "Wipe", "Sub Modify"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 6), Buttons(bt_me_wipe_submodify), Boxes(NB_Non), Cells(st_me_wipe), Code(pc_me_wipe_submodify)}}, .where = MAIN},
    {.page = {.id = 0x11570000, .tree = {"M/E-1", "Wipe", "Wipe Snapshot"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 7), Buttons(bt_me_snapshot), Boxes(NB_Non), Cells(st_me_wipe), Code(pc_me_wipe_wipess)}}, .where = MAIN},
    {.page = {.id = 0x11570000, .tree = {"M/E-1", "Wipe", "Wipe Snapshot"},
              .obj = {Base(base_main), LeftTabs(vf_me1, 5), BottomTabs(hf_me_wipe, 7), Buttons(bt_me_snapshot), Boxes(NB_Non), Cells(st_me_wipe_sub), Code(pc_me_wipe_wipess)}}, .where = SUB},
};
