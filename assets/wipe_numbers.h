// wipe_numbers: the pattern numbers that have a picture, and those whose picture differs on the
// smaller model.
#pragma once

struct NumberRange {
    int first, last; // inclusive
};

constexpr NumberRange WIPE_NUMBERS[] = {
    {1, 304},                                               // wipes
    {1001, 1008}, {1011, 1018}, {1021, 1024}, {1031, 1034}, // slide, push, split, strips
    {1201, 1208}, {1221, 1224}, {1251, 1251},               // squeeze, to the middle, zoom
    {1301, 1316}, {1321, 1336},                             // page turn, roll
    {1361, 1368}, {1381, 1384}, {1391, 1396},               // flip, spin, ball and cylinder
    {1401, 1418}, {1901, 1999},                             // doors, user programs
    {2001, 2999}, {3001, 3999},                             // the same on two and three channels
};

// The 29 pictures N that the smaller model takes from "ptn/Ne.bmp": the flat moves over two
// channels. It makes them with one channel, so its picture is the same without the channel squares.
constexpr NumberRange WIPE_NUMBERS_SMALL_MODEL[] = {
    {2001, 2008}, // slide, eight directions
    {2011, 2018}, // push, eight directions
    {2021, 2024}, // split
    {2201, 2208}, // squeeze, eight directions
    {2251, 2251}, // zoom
};

template <int COUNT> constexpr int CountNumbers(const NumberRange (&ranges)[COUNT])
{
    int count = 0;
    for (const NumberRange& r : ranges)
        count += r.last - r.first + 1;
    return count;
}
static_assert(CountNumbers(WIPE_NUMBERS_SMALL_MODEL) == 29);
