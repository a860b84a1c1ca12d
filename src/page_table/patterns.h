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

// --- Groups of the effects-unit wipes ---

inline constexpr NB_TBL nb_dmewipe_soft[] = {
    {.id = 1, .caption = "Soft", .type = NB_2, .min = 0, .max = 100, .cmd = "~4@Pattern Select@Soft"},
    NB_END,
};
inline constexpr NB_TBL nb_dmewipe_curl[] = {
    {.id = 1, .caption = "Radius", .type = NB_2, .min = 0,    .max = 100, .cmd = "~4@Pattern Select@Radius"},
    {.id = 2, .caption = "Angle",  .type = NB_2, .min = -180, .max = 180, .cmd = "~4@Pattern Select@Angle"},
    NB_END,
};
inline constexpr NB_TBL nb_dmewipe_turn[] = {
    {.id = 1, .caption = "Turns", .type = NB_2, .min = -8, .max = 8, .cmd = "~4@Pattern Select@Turns"},
    {.id = 2, .caption = "Perspectv", .type = NB_2, .min = 0, .max = 100, .cmd = "~4@Pattern Select@Perspective"},
    NB_END,
};
static_assert(BoxesAreSound(nb_dmewipe_soft) && BoxesAreSound(nb_dmewipe_curl) && BoxesAreSound(nb_dmewipe_turn));

// Numbers in a row; one of number 0 ends them.
template <size_t N> constexpr std::array<DMEWIPEPTN, N + 1> PtnRun(int first, const NB_TBL* nb = nullptr)
{
    std::array<DMEWIPEPTN, N + 1> run{};
    for (size_t i = 0; i < N; i++) run[i] = {first + int(i), nb};
    return run;
}
inline constexpr auto ptn_slide = PtnRun<8>(1001);
inline constexpr auto ptn_push = PtnRun<8>(1011);
inline constexpr auto ptn_split = PtnRun<4>(2021, nb_dmewipe_soft);
inline constexpr auto ptn_squeeze = PtnRun<8>(1201);
inline constexpr auto ptn_page_turn = PtnRun<16>(1301, nb_dmewipe_curl);
inline constexpr auto ptn_roll = PtnRun<16>(1321, nb_dmewipe_curl);
inline constexpr auto ptn_flip = PtnRun<8>(1361, nb_dmewipe_turn);
inline constexpr auto ptn_spin = PtnRun<4>(1381, nb_dmewipe_turn);
inline constexpr auto ptn_door = PtnRun<18>(1401, nb_dmewipe_turn);
inline constexpr auto ptn_user = PtnRun<10>(1901);

inline constexpr DMEWIPEGRP dme_wipe_groups[] = {
    {17, "Slide",      ptn_slide.data()},
    {18, "Push",       ptn_push.data()},
    {19, "Split",      ptn_split.data()},
    {20, "Squeeze",    ptn_squeeze.data()},
    {21, "Page\nTurn", ptn_page_turn.data()},
    {22, "Roll",       ptn_roll.data()},
    {33, "Flip",       ptn_flip.data()},
    {34, "Spin",       ptn_spin.data()},
    {35, "Door",       ptn_door.data()},
    {36, "User\nPGM",  ptn_user.data(), true},
};

// A group that needs a second channel has no place here.
inline constexpr DW_TBL dw_me_key_trans_dmewipeadj_1ch = {
    .cmd = "~4@Pattern Select@Pattern", .grpid = {17, 18, 0, 20, 21, 22, 33, 34, 35, 36}};
