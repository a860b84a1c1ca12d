#include "tdl_fixture.h"
#include "tdl.h"
#include "test_dirs.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

std::vector<Rect> Flushed;

// The test program's own flush takes the place of the library's.
extern "C" void SDL_UpdateRect(SDL_Surface*, Sint32 x, Sint32 y, Uint32 w, Uint32 h)
{
    Flushed.push_back({x, y, x + int(w) - 1, y + int(h) - 1});
}

namespace
{
int WidthOf(int font, int code)
{
    if (font == FONT_COVERAGE)
        return code == 'A' ? 16 : 0;
    return code < ' ' ? 0 : code == 'i' ? 2 : code == 'W' ? 9 : 6;
}

void SaveFile(const char* name, const std::vector<uint8_t>& data)
{
    std::ofstream(name, std::ios::binary)
        .write(reinterpret_cast<const char*>(data.data()), std::streamsize(data.size()));
}

void PutEntry(std::vector<uint8_t>* table, int font, int code, uint32_t value)
{
    for (int i = 0; i < 4; i++)
        (*table)[size_t(font * 512 + code * 4 + i)] = uint8_t(value >> (8 * i));
}

void WriteFonts()
{
    std::vector<uint8_t> table(5120), image;
    static const std::pair<int, int> fonts[] = {{FONT_SOLID, 10}, {FONT_COVERAGE, 16}};
    for (const auto& [font, height] : fonts) {
        PutEntry(&table, font, 0, uint32_t(height));
        for (int code = 1; code <= 127; code++) {
            PutEntry(&table, font, code, uint32_t(image.size()));
            if (code == 127)
                break;
            for (int row = 0; row < height; row++)
                for (int i = 0; i < WidthOf(font, code); i++)
                    image.push_back(uint8_t(font == FONT_SOLID ? 255 : 16 * row + i));
        }
    }
    static const std::pair<int, uint32_t> rubbish[] = {
        {0, 20},       {'A', 119990},     {'B', 120990}, // ends behind the file
        {'C', 300},    {'E', 0xFFFFFFF0},                // begins behind its end
        {'G', 20 * 65}};                                 // 'F' has 65 columns
    for (const auto& [code, value] : rubbish)
        PutEntry(&table, FONT_RUBBISH, code, value);
    SaveFile("font.dat", image);
    SaveFile("font_ofs.dat", table);
}

SDL_Surface* SetDepth(int bits_per_pixel)
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    if (!SDL_WasInit(SDL_INIT_VIDEO))
        SDL_Init(SDL_INIT_VIDEO);
    return SDL_SetVideoMode(SCREEN_W, SCREEN_H, bits_per_pixel, 0);
}
} // namespace

TestDisplay::TestDisplay(int bits_per_pixel) : had_screen(Screen != nullptr)
{
    char name[] = "/tmp/tdl.XXXXXX";
    EXPECT_TRUE(mkdtemp(name) && chdir(name) == 0) << name;
    dir = name;
    WriteFonts();
    if (had_screen)
        TDL_Quit();
    EXPECT_EQ(TDL_Init(SetDepth(bits_per_pixel)), 0);
    ClearScreen();
    Flushed.clear();
}

TestDisplay::~TestDisplay()
{
    TDL_Quit();
    Screen = nullptr;
    EXPECT_EQ(chdir(TEST_RUN_DIR), 0);
    std::filesystem::remove_all(dir);
    EXPECT_TRUE(!had_screen || TDL_Init(SetDepth(32)) == 0);
}

std::vector<uint32_t> PixelsOf(SDL_Surface* s)
{
    std::vector<uint32_t> pixels;
    pixels.reserve(size_t(s->w * s->h));
    const int bytes = s->format->BytesPerPixel;
    const int unused = SDL_BYTEORDER == SDL_BIG_ENDIAN ? 4 - bytes : 0; // before them, in a word
    for (int y = 0; y < s->h; y++) {
        const auto* at = static_cast<const uint8_t*>(s->pixels) + y * s->pitch;
        for (int x = 0; x < s->w; x++, at += bytes) {
            uint32_t pixel = 0;
            memcpy(reinterpret_cast<uint8_t*>(&pixel) + unused, at, size_t(bytes));
            uint8_t r, g, b;
            SDL_GetRGB(pixel, s->format, &r, &g, &b);
            pixels.push_back(uint32_t(r << 16 | g << 8 | b));
        }
    }
    return pixels;
}

uint32_t PixelOf(unsigned col)
{
    return SDL_MapRGB(Screen->format, uint8_t(col >> 16), uint8_t(col >> 8), uint8_t(col));
}

void ClearScreen()
{
    SDL_FillRect(Screen, nullptr, PixelOf(0));
}

int Painted()
{
    const auto pixels = PixelsOf(Screen);
    return int(pixels.size() - size_t(std::count(pixels.begin(), pixels.end(), 0u)));
}

std::string RectText(const Rect& r)
{
    if (r.x1 > r.x2 || r.y1 > r.y2)
        return "nothing";
    return std::to_string(r.x1) + "," + std::to_string(r.y1) + "-" + std::to_string(r.x2) + "," +
           std::to_string(r.y2);
}

std::string Difference(const std::vector<uint32_t>& a, const std::vector<uint32_t>& b)
{
    Rect box = {SCREEN_W, SCREEN_H, -1, -1};
    for (int i = 0; i < SCREEN_W * SCREEN_H; i++) {
        if (a[size_t(i)] == b[size_t(i)])
            continue;
        const int x = i % SCREEN_W;
        const int y = i / SCREEN_W;
        box = {std::min(box.x1, x), std::min(box.y1, y), std::max(box.x2, x), std::max(box.y2, y)};
    }
    return RectText(box);
}

Drawn Draw(const Verb& verb)
{
    const std::vector<uint32_t> black(SCREEN_W * SCREEN_H);
    Drawn drawn;
    ClearScreen();
    Flushed.clear();
    drawn.result = verb.silent();
    EXPECT_TRUE(Flushed.empty()) << verb.text;
    drawn.pixels = PixelsOf(Screen);
    drawn.count = Painted();
    if (!verb.flushing)
        return drawn;
    ClearScreen();
    EXPECT_EQ(verb.flushing(), drawn.result) << verb.text;
    EXPECT_EQ(Difference(PixelsOf(Screen), drawn.pixels), "nothing") << verb.text;
    EXPECT_LE(Flushed.size(), 1u) << verb.text;
    EXPECT_EQ(Flushed.empty() ? "nothing" : RectText(Flushed[0]), Difference(drawn.pixels, black))
        << verb.text;
    return drawn;
}

SDL_Surface* NoiseSurface(int w, int h, unsigned seed)
{
    SDL_Surface* made = SDL_CreateRGBSurface(SDL_SWSURFACE, w, h, 32, 0xFF0000, 0xFF00, 0xFF, 0);
    for (int y = 0; y < h; y++) {
        for (int x = 0; x < w; x++) {
            seed = seed * 1664525 + 1013904223;
            const uint32_t pixel = seed >> 8;
            memcpy(static_cast<uint8_t*>(made->pixels) + y * made->pitch + 4 * x, &pixel, 4);
        }
    }
    SDL_Surface* converted = SDL_DisplayFormat(made);
    SDL_FreeSurface(made);
    return converted;
}

SDL_Surface* NoisyTwin()
{
    SDL_Surface* twin = NoiseSurface(SCREEN_W, SCREEN_H, 5);
    SDL_BlitSurface(twin, nullptr, Screen, nullptr);
    return twin;
}
