// tdl_fixture: a display surface of any depth for the tests of the drawing layer, in a folder of
// its own with fonts made for the purpose, so that no result here depends on the fonts of the
// product.
#pragma once
#include "types.h"
#include <SDL.h>
#include <string>
#include <vector>

// What SDL_UpdateRect was asked for, since the last clear.
extern std::vector<Rect> Flushed;

struct TestDisplay {
    explicit TestDisplay(int bits_per_pixel = 32);
    ~TestDisplay();
    TestDisplay(const TestDisplay&) = delete;
    TestDisplay& operator=(const TestDisplay&) = delete;

    std::string dir; // the working directory while this lives
    bool had_screen = false;
};

// --- The fonts ---
enum : int {
    FONT_SOLID = 1,    // every pixel of every glyph covered
    FONT_SHADES = 3,   // FONT_SHADES_H high, coverage of all kinds
    FONT_COVERAGE = 5, // 'A' is 16 x 16: coverage 0 to 255 in reading order
    FONT_NONE = 6,     // a slot without a font
    FONT_RUBBISH = 9,  // offsets that lead out of the file or backwards
};
constexpr int FONT_SOLID_H = 10;
constexpr int FONT_SHADES_H = 13;
// Width of a glyph of the solid font: 'i' 2, 'W' 9, other codes from the blank on 6.
int SolidWidth(char c);

// --- Pixels ---
std::vector<uint32_t> PixelsOf(SDL_Surface* s); // 0x00RRGGBB, row by row, at any depth
std::vector<uint32_t> ScreenPixels();
void ClearScreen(unsigned col = 0);
Rect BoxOfDifference(const std::vector<uint32_t>& a, const std::vector<uint32_t>& b);
int CountOfDifference(const std::vector<uint32_t>& a, const std::vector<uint32_t>& b);
std::string RectText(const Rect& r);                    // "x1,y1-x2,y2", "nothing" when empty
SDL_Surface* NoiseSurface(int w, int h, unsigned seed); // in display format; the caller frees it
