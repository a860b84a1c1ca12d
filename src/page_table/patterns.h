// patterns: the wipe patterns by number: the layers in which the pattern select shows them, and the groups of the
// effects-unit wipes. A pattern that has modifiers of its own brings a table of number boxes.
#pragma once
#include "a_dw.h"
#include "a_nb.h"
#include "a_ps.h"
#include "rows.h"
#include <array>

// --- Modifiers of single patterns; their paths lie beside the pattern's own ---

inline constexpr NB_TBL nb_ptn_rotary[] = {
    {.id = 1, .caption = "Blades", .type = NB_INT, .min = 1, .max = 16,     .cmd = "~@Modify@Blades"},
    {.id = 2, .caption = "Start",  .type = NB_2, .min = 0,   .max = 359.99, .cmd = "~@Modify@Start"},
    NB_END,
};
inline constexpr NB_TBL nb_ptn_slats[] = {
    {.id = 1, .caption = "Number", .type = NB_INT, .min = 2, .max = 32,  .cmd = "~@Modify@Number"},
    {.id = 2, .caption = "Delay",  .type = NB_2, .min = 0,   .max = 100, .cmd = "~@Modify@Delay"},
    NB_END,
};
inline constexpr NB_TBL nb_ptn_mosaic[] = {
    {.id = 1, .caption = "Columns", .type = NB_INT, .min = 2, .max = 32,  .cmd = "~@Modify@Columns"},
    {.id = 2, .caption = "Rows",    .type = NB_INT, .min = 2, .max = 24,  .cmd = "~@Modify@Rows"},
    NB_END,
};
inline constexpr NB_TBL nb_ptn_star[] = {
    {.id = 1, .caption = "Points", .type = NB_INT, .min = 3, .max = 16,  .cmd = "~@Modify@Points"},
    {.id = 2, .caption = "Depth",  .type = NB_2, .min = 0,   .max = 100, .cmd = "~@Modify@Depth"},
    NB_END,
};
static_assert(BoxesAreSound(nb_ptn_rotary) && BoxesAreSound(nb_ptn_slats));
static_assert(BoxesAreSound(nb_ptn_mosaic) && BoxesAreSound(nb_ptn_star));

// --- Layers ---

struct PTN_LAYER {
    const char* caption = "";
    int first = 0; // pattern numbers, inclusive
    int last = 0;
    const NB_TBL* nb = nullptr;
};
// One array serves all sets: a set is how many of them it has, from the first.
inline constexpr PTN_LAYER LayerName[] = {
    {"Standard",  1,   32},
    {"Enhanced",  33,  64},
    {"Rotary",    81,  112, nb_ptn_rotary},
    {"Circle",    65,  80},
    {"Slats",     113, 144, nb_ptn_slats},
    {"Saw/Wave",  145, 176},
    {"Rotary 2",  209, 240, nb_ptn_rotary},
    {"Star",      241, 272, nb_ptn_star},
    {"Mosaic",    177, 208, nb_ptn_mosaic},
    {"Random",    273, 304},
};
enum : int {
    PTN_SET_ALL = int(std::size(LayerName)),
    PTN_SET_SUB = 8,   // what the generator of the second pattern makes: no mosaic, no random
    PTN_SET_SHARED = 4 // what is left where two banks share a generator
};
constexpr bool LayersFit(int cells, int layers)
{
    if (int(std::size(LayerName)) > layers) return false;
    for (const PTN_LAYER& l : LayerName)
        if (l.first < 1 || l.first > l.last || l.last - l.first >= cells) return false;
    return true;
}
static_assert(LayersFit(PS_CELLS, PS_LAYERS));

inline constexpr NB_TBL nb_me_key_mainmask_maskptnsel[] = {
    {.id = 1,  .caption = "Size",   .type = NB_2, .min = 0,    .max = 100, .cmd = "~3@Pattern Mask@Size"},
    {.id = 2,  .caption = "Soft",   .type = NB_2, .min = 0,    .max = 100, .cmd = "~3@Pattern Mask@Soft"},
    {.id = 3,  .caption = "H Pos",  .type = NB_2, .min = -100, .max = 100, .cmd = "~3@Pattern Mask@H Position"},
    {.id = 4,  .caption = "V Pos",  .type = NB_2, .min = -100, .max = 100, .cmd = "~3@Pattern Mask@V Position"},
    NB_END,
};
static_assert(BoxesAreSound(nb_me_key_mainmask_maskptnsel));
inline constexpr PS_TBL ps_me_key_mainmask_maskptnsel = {
    .type = 0, .cmd = "~@Pattern", .init_nb = nb_me_key_mainmask_maskptnsel, .init_nb_caption = "Pattern"};

// --- Groups of the effects-unit wipes; "~" is the subtree of the list, on the page of a bank as on that of a key ---

inline constexpr NB_TBL nb_dmewipe_soft[] = {
    {.id = 1, .caption = "Soft", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Soft"},
    NB_END,
};
inline constexpr NB_TBL nb_dmewipe_curl[] = {
    {.id = 1, .caption = "Radius", .type = NB_2, .min = 0,    .max = 100, .cmd = "~@Radius"},
    {.id = 2, .caption = "Angle\ndeg",  .type = NB_2, .min = -180, .max = 180, .cmd = "~@Angle"},
    NB_END,
};
inline constexpr NB_TBL nb_dmewipe_turn[] = {
    {.id = 1, .caption = "Turns", .type = NB_2, .min = -8, .max = 8, .cmd = "~@Turns"},
    {.id = 2, .caption = "Perspectv", .type = NB_2, .min = 0, .max = 100, .cmd = "~@Perspective"},
    NB_END,
};
static_assert(BoxesAreSound(nb_dmewipe_soft) && BoxesAreSound(nb_dmewipe_curl) && BoxesAreSound(nb_dmewipe_turn));

struct PtnRange {
    int first = 0; // inclusive
    int last = 0;
};
// The numbers of some ranges in a row; one of number 0 ends them.
template <size_t COUNT, size_t N> constexpr std::array<DMEWIPEPTN, COUNT + 1> PtnRuns(const PtnRange (&ranges)[N], const NB_TBL* nb = nullptr)
{
    std::array<DMEWIPEPTN, COUNT + 1> run{};
    size_t n = 0;
    for (const PtnRange& r : ranges)
        for (int number = r.first; number <= r.last; number++) run.at(n++) = {number, nb};
    (void)run.at(n == COUNT ? n : COUNT + 1); // does not compile when the ranges have another count
    return run;
}
inline constexpr auto ptn_slide = PtnRuns<8>({{1001, 1008}});
inline constexpr auto ptn_push = PtnRuns<8>({{1011, 1018}});
inline constexpr auto ptn_strip = PtnRuns<8>({{1021, 1024}, {1031, 1034}}, nb_dmewipe_soft);
inline constexpr auto ptn_squeeze = PtnRuns<13>({{1201, 1208}, {1221, 1224}, {1251, 1251}});
inline constexpr auto ptn_page_turn = PtnRuns<16>({{1301, 1316}}, nb_dmewipe_curl);
inline constexpr auto ptn_roll = PtnRuns<16>({{1321, 1336}}, nb_dmewipe_curl);
inline constexpr auto ptn_flip = PtnRuns<8>({{1361, 1368}}, nb_dmewipe_turn);
inline constexpr auto ptn_spin = PtnRuns<10>({{1381, 1384}, {1391, 1396}}, nb_dmewipe_turn);
inline constexpr auto ptn_door = PtnRuns<18>({{1401, 1418}}, nb_dmewipe_turn);
inline constexpr auto ptn_user = PtnRuns<10>({{1901, 1910}});
inline constexpr auto ptn_2ch_slide = PtnRuns<8>({{2001, 2008}});
inline constexpr auto ptn_2ch_push = PtnRuns<8>({{2011, 2018}});
inline constexpr auto ptn_split = PtnRuns<4>({{2021, 2024}}, nb_dmewipe_soft);
inline constexpr auto ptn_2ch_squeeze = PtnRuns<9>({{2201, 2208}, {2251, 2251}});
inline constexpr auto ptn_2ch_user = PtnRuns<10>({{2901, 2910}});
inline constexpr auto ptn_3ch_slide = PtnRuns<16>({{3001, 3008}, {3011, 3018}});
inline constexpr auto ptn_3ch_squeeze = PtnRuns<9>({{3201, 3208}, {3251, 3251}});
inline constexpr auto ptn_3ch_user = PtnRuns<10>({{3901, 3910}});

inline constexpr DMEWIPEGRP dme_wipe_groups[] = {
    {17, "Slide",      ptn_slide.data()},
    {18, "Push",       ptn_push.data()},
    {19, "Split\n2 Ch", ptn_split.data()},
    {20, "Squeeze",    ptn_squeeze.data()},
    {21, "Page\nTurn", ptn_page_turn.data()},
    {22, "Roll",       ptn_roll.data()},
    {33, "Flip",       ptn_flip.data()},
    {34, "Spin",       ptn_spin.data()},
    {35, "Door",       ptn_door.data()},
    {36, "User\nPGM",  ptn_user.data(), true},
    {37, "Strip",      ptn_strip.data()},
    {38, "Slide\n2 Ch", ptn_2ch_slide.data()},
    {49, "Push\n2 Ch",  ptn_2ch_push.data()},
    {50, "Squeeze\n2 Ch", ptn_2ch_squeeze.data()},
    {51, "User\n2 Ch",  ptn_2ch_user.data()},
    {52, "Slide\n3 Ch", ptn_3ch_slide.data()},
    {53, "Squeeze\n3 Ch", ptn_3ch_squeeze.data()},
    {54, "User\n3 Ch",  ptn_3ch_user.data()},
};

// The wipe of a bank takes any number of channels.
inline constexpr DW_TBL dw_me_dmewipe = {
    .cmd = "~@Pattern", .grpid = {17, 18, 37, 20, 21, 22, 33, 34, 35, 36, 38, 49, 19, 50, 51, 52, 53, 54}};
// A group that needs a second channel has no place here.
inline constexpr DW_TBL dw_me_key_trans_dmewipeadj_1ch = {
    .cmd = "~4@Pattern Select@Pattern", .grpid = {17, 18, 0, 20, 21, 22, 33, 34, 35, 36, 37}};
