// tdl_fixture: a display surface of any depth for the tests of the drawing layer, in a folder of
// its own with fonts made for the purpose, so that no result depends on the fonts of the product.
#pragma once
#include "types.h"
#include <SDL.h>
#include <string>
#include <vector>

extern std::vector<Rect> Flushed; // what SDL_UpdateRect was asked for since the last clear

struct TestDisplay {
    explicit TestDisplay(int bits_per_pixel = 32);
    ~TestDisplay(); // the tests of other modules find the screen as it was

    std::string dir; // the working directory while this lives
    bool had_screen = false;
};

enum : int {
    FONT_SOLID = 1,    // all covered, 10 high; 'i' is 2 wide, 'W' 9, any other from the blank on 6
    FONT_COVERAGE = 5, // 'A' is 16 x 16: coverage 0 to 255 in reading order
    FONT_NONE = 6,     // a slot without a font
    FONT_RUBBISH = 9,  // offsets that lead out of the file or backwards
};

// A verb in both forms, as the first members of a case.
struct Verb {
    const char* text = nullptr;
    int (*flushing)() = nullptr;
    int (*silent)() = nullptr;
};
#define BOTH(verb, ...)                                                                            \
    {                                                                                              \
#verb "(" #__VA_ARGS__ ")",                                                                \
            [] { return verb(__VA_ARGS__); }, [] { return verb##S(__VA_ARGS__); }                  \
    }

// What a verb did to a black screen. Fails when its two forms draw different things, when the
// silent one flushes, or when the other one flushes anything but what was drawn, in one piece.
struct Drawn {
    int result = 0;
    int count = 0; // pixels
    std::vector<uint32_t> pixels;
};
Drawn Draw(const Verb& verb);

// --- Pixels, as 0x00RRGGBB row by row, at any depth ---
std::vector<uint32_t> PixelsOf(SDL_Surface* s);
uint32_t PixelOf(unsigned col);
void ClearScreen();
int Painted(); // pixels that are not black
// Where two pictures of screen size differ: "x1,y1-x2,y2", or "nothing".
std::string Difference(const std::vector<uint32_t>& a, const std::vector<uint32_t>& b);
std::string RectText(const Rect& r);
SDL_Surface* NoiseSurface(int w, int h, unsigned seed); // in display format; the caller frees it
SDL_Surface* NoisyTwin(); // noise on the screen, and a surface like it for the library to work on
