// wipes: the pictures of the wipe patterns by their number.
// A picture is 60 x 48, black, with a 4:3 screen in it that shows the move at about two fifths of
// its way.
#pragma once
#include "canvas.h"
#include <cstdint>
#include <vector>

constexpr int WIPE_WIDTH = 60, WIPE_HEIGHT = 48;
constexpr int WIPE_SCREEN_X = 2, WIPE_SCREEN_Y = 3, WIPE_SCREEN_W = 56, WIPE_SCREEN_H = 42;
constexpr Colour WIPE_OUTGOING = 0x12404C, WIPE_INCOMING = 0xDDF3F5;

// The picture of a number of WIPE_NUMBERS, as 24-bit rows from the top. Without channel squares
// when asked so.
std::vector<uint8_t> WIPE_Picture(int number, bool with_channels = true);

// --- Between the two files of this module ---
std::vector<uint8_t> WIPE_Effect(int number,
                                 bool with_channels); // numbers from 1001: moves of whole pictures
