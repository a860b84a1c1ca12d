// What each run of wipe patterns has that could be adjusted.
#include "pc_me_wipe.h"
#include <iterator>
#include "safeguards.h"

constexpr unsigned WIPE_ALL = (WIPE_OUTLINE << 1) - 1;

static constexpr struct {
    int first, last; // inclusive
    unsigned abilities;
} runs[] = {
    // straight fronts
    {1, 8, WIPE_ANGLE | WIPE_MULTI | WIPE_MODULATION | WIPE_LINES | WIPE_OUTLINE},
    // doors
    {9, 16, WIPE_CENTER | WIPE_ANGLE | WIPE_MULTI | WIPE_MODULATION | WIPE_LINES | WIPE_OUTLINE},
    // corners, edges and crosses
    {17, 32, WIPE_ALL & ~WIPE_LINES},
    // closed shapes
    {33, 80, WIPE_ALL & ~WIPE_LINES},
    // clock hands and fans
    {81, 112, WIPE_CENTER | WIPE_ASPECT | WIPE_ANGLE | WIPE_MULTI | WIPE_OUTLINE},
    // slats
    {113, 144, WIPE_ANGLE | WIPE_MODULATION},
    // saw and wave fronts
    {145, 176, WIPE_ANGLE | WIPE_MULTI | WIPE_LINES | WIPE_OUTLINE},
    // mosaics
    {177, 208, 0},
    // rotary blades
    {209, 240, WIPE_CENTER | WIPE_ASPECT | WIPE_ANGLE | WIPE_MULTI},
    // stars
    {241, 272, WIPE_ALL & ~WIPE_LINES},
    // random
    {273, 304, 0},
};

static constexpr bool RunsFollowEachOther()
{
    for (size_t i = 1; i < std::size(runs); i++)
        if (runs[i].first != runs[i - 1].last + 1 || runs[i].first > runs[i].last)
            return false;
    return true;
}
static_assert(RunsFollowEachOther());

unsigned Wipe_Abilities(int pattern)
{
    for (const auto& run : runs)
        if (pattern >= run.first && pattern <= run.last)
            return run.abilities;
    return WIPE_ALL;
}
