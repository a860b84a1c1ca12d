#include "tdl.h"
#include "tdl_fixture.h"
#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

namespace
{
constexpr unsigned WHITE = 0xFFFFFF;

// The places of solid glyphs, drawn as rectangles.
struct Cell {
    int x = 0;
    int y = 0;
    int w = 6;
};

std::vector<uint32_t> PictureOf(const std::vector<Cell>& cells)
{
    std::vector<uint32_t> picture(SCREEN_W * SCREEN_H);
    for (const Cell& c : cells)
        for (int y = c.y; y < c.y + FONT_SOLID_H; y++)
            for (int x = c.x; x < c.x + c.w; x++)
                picture[size_t(y * SCREEN_W + x)] = WHITE;
    return picture;
}

// The 16 x 16 glyph with every coverage, composed and blitted by the library.
void BlitCoverageGlyph(SDL_Surface* to, int x, int y, unsigned col)
{
    SDL_Surface* glyph =
        SDL_CreateRGBSurface(SDL_SRCALPHA, 64, 64, 32, 0xFF0000, 0xFF00, 0xFF, 0xFF000000);
    for (int i = 0; i < 256; i++) {
        const uint32_t pixel = col | uint32_t(i) << 24;
        memcpy(static_cast<uint8_t*>(glyph->pixels) + i / 16 * glyph->pitch + i % 16 * 4, &pixel,
               4);
    }
    SDL_Rect src = {0, 0, 16, 16};
    SDL_Rect dst = {Sint16(x), Sint16(y), 0, 0};
    SDL_BlitSurface(glyph, &src, to, &dst);
    SDL_FreeSurface(glyph);
}
} // namespace

TEST(Text, EveryCoverageBlendsLikeTheLibrary)
{
    static const unsigned colours[] = {0xFFFFFF, 0x000000, 0x808080, 0xE48B1B, 0x00DDD4,
                                       0xFF0000, 0x00FF00, 0x0000FF, 0x010203, 0xFEFDFC};
    for (const int depth : {8, 16, 24, 32}) {
        const TestDisplay display(depth);
        SDL_Surface* noise = NoiseSurface(SCREEN_W, SCREEN_H, 77);
        SDL_BlitSurface(noise, nullptr, Screen, nullptr);
        SDL_FreeSurface(noise);
        TDL_FillRectS(0, 0, 799, 99, 0xFFFFFF); // and the grounds where rounding shows
        TDL_FillRectS(0, 100, 799, 199, 0x000000);
        TDL_FillRectS(0, 200, 799, 299, 0x01FE80);
        SDL_Surface* twin = SDL_DisplayFormat(Screen);
        for (int i = 0; i < 250; i++) {
            const unsigned col = i < 40 ? colours[i % 10] : (0x9E3779B1u * unsigned(i)) >> 8;
            const int x = 20 * (i % 40) + i % 3;
            const int y = i < 40 ? 25 * (i % 4) * 4 : 300 + 20 * (i / 40);
            ASSERT_EQ(TDL_SymbolS(x, y, "A", FONT_COVERAGE, col), 0);
            BlitCoverageGlyph(twin, x, y, col);
        }
        EXPECT_EQ(CountOfDifference(ScreenPixels(), PixelsOf(twin)), 0) << depth << " bits";
        SDL_FreeSurface(twin);
    }
}

TEST(Text, GlyphsStandWhereTheWalkPutsThem)
{
    static const struct {
        const char* what;
        int (*draw)();
        std::vector<Cell> cells;
    } cases[] = {
        {"plain",
         [] { return TDL_SymbolS(10, 20, "aWi", 1, WHITE); },
         {{10, 20}, {16, 20, 9}, {25, 20, 2}}},
        {"lines",
         [] { return TDL_SymbolS(10, 20, "a\n\nbc", 1, WHITE); },
         {{10, 20}, {10, 40}, {16, 40}}},
        {"empty", [] { return TDL_SymbolS(10, 20, "", 1, WHITE); }, {}},
        {"codes without a glyph",
         [] { return TDL_SymbolS(10, 20, "a\x01\x7F\x80\xFFz", 1, WHITE); },
         {{10, 20}, {16, 20}}},
        {"first glyph left of the screen", [] { return TDL_SymbolS(-1, 20, "ab", 1, WHITE); }, {}},
        {"last glyph over the edge",
         [] { return TDL_SymbolS(787, 0, "abc", 1, WHITE); },
         {{787, 0}, {793, 0}}},
        {"touching the corner", [] { return TDL_SymbolS(794, 590, "ab", 1, WHITE); }, {{794, 590}}},
        {"a row too low", [] { return TDL_SymbolS(10, 591, "ab", 1, WHITE); }, {}},
        {"second line too low", [] { return TDL_SymbolS(10, 585, "a\nb", 1, WHITE); }, {{10, 585}}},
        {"above", [] { return TDL_SymbolS(10, -1, "a\nb", 1, WHITE); }, {}},

        {"width not reached",
         [] { return TDL_SymbolWS(10, 20, 13, "abc", 1, WHITE); },
         {{10, 20}, {16, 20}}},
        {"width reached exactly",
         [] { return TDL_SymbolWS(10, 20, 12, "abc", 1, WHITE); },
         {{10, 20}}},
        {"no room for the first", [] { return TDL_SymbolWS(10, 20, 6, "abc", 1, WHITE); }, {}},
        {"feed restarts the width",
         [] { return TDL_SymbolWS(10, 20, 13, "ab\nabc\nd", 1, WHITE); },
         {{10, 20}, {16, 20}, {10, 30}, {16, 30}}},

        {"block wraps",
         [] { return TDL_SymbolBS(10, 20, 13, 99, "abcde", 1, WHITE, 0); },
         {{10, 20}, {16, 20}, {10, 30}, {16, 30}, {10, 40}}},
        {"block wraps where the width is reached",
         [] { return TDL_SymbolBS(10, 20, 12, 99, "ab", 1, WHITE, 0); },
         {{10, 20}, {10, 30}}},
        {"block ends at its height",
         [] { return TDL_SymbolBS(10, 20, 13, 21, "abcde", 1, WHITE, 0); },
         {{10, 20}, {16, 20}, {10, 30}, {16, 30}}},
        {"height reached exactly",
         [] { return TDL_SymbolBS(10, 20, 13, 20, "abcde", 1, WHITE, 0); },
         {{10, 20}, {16, 20}}},
        {"one height is no room",
         [] { return TDL_SymbolBS(10, 20, 99, 10, "abc", 1, WHITE, 0); },
         {}},
        {"second line at the top",
         [] { return TDL_SymbolBS(10, 20, 13, 99, "abcde", 1, WHITE, 1); },
         {{10, 20}, {16, 20}, {10, 30}}},
        {"skipped lines take no height",
         [] { return TDL_SymbolBS(10, 20, 99, 11, "a\nb\nc", 1, WHITE, 1); },
         {{10, 20}}},
        {"all lines skipped", [] { return TDL_SymbolBS(10, 20, 99, 99, "a\nb", 1, WHITE, 2); }, {}},
        {"block feeds",
         [] { return TDL_SymbolBS(10, 20, 99, 99, "a\n\nb", 1, WHITE, 0); },
         {{10, 20}, {10, 40}}},
        {"glyph wider than the block",
         [] { return TDL_SymbolBS(10, 20, 5, 39, "ab", 1, WHITE, 0); },
         {{10, 30}, {10, 40}}},

        {"cells",
         [] { return TDL_SymbolPS(10, 20, 9, "aWi\nb", 1, WHITE); },
         {{11, 20}, {19, 20, 9}, {31, 20, 2}, {11, 30}}},
        {"cell narrower than the glyph",
         [] { return TDL_SymbolPS(10, 20, 5, "ab", 1, WHITE); },
         {{10, 20}, {15, 20}}},
        {"cells over the edge",
         [] { return TDL_SymbolPS(784, 20, 8, "abc", 1, WHITE); },
         {{785, 20}, {793, 20}}},

        {"centred",
         [] { return TDL_SymbolCS(100, 50, 131, 81, "ab\nc", 1, WHITE); },
         {{109, 55}, {115, 55}, {109, 65}}},
        {"wider than its rectangle",
         [] { return TDL_SymbolCS(100, 50, 105, 55, "ab", 1, WHITE); },
         {{97, 48}, {103, 48}}},
        {"centred cells",
         [] { return TDL_SymbolCS_PRO(100, 50, 140, 70, "ai", 1, WHITE); },
         {{112, 55}, {123, 55, 2}}},

        {"cell text of one line",
         [] { return TDL_SymbolCBS(100, 50, 140, 90, 25, 99, "ab", 1, WHITE, 0, 0); },
         {{114, 65}, {120, 65}}},
        {"cell text of two lines",
         [] { return TDL_SymbolCBS(100, 50, 140, 91, 13, 99, "abc", 1, WHITE, 0, 4); },
         {{108, 66}, {114, 66}, {108, 76}}}, // (37 & ~1) - 20 is 16: 8 down
        {"cell text too high",
         [] { return TDL_SymbolCBS(100, 50, 140, 61, 13, 99, "abc", 1, WHITE, 0, 4); },
         {{108, 51}, {114, 51}, {108, 61}}}, // 6 - 20 is -14: 7 up

        {"fits as it is",
         [] { return TDL_SymbolWAddS(10, 20, 18, "abc", "..", 1, WHITE); },
         {{10, 20}, {16, 20}, {22, 20}}},
        {"cut with dots",
         [] { return TDL_SymbolWAddS(10, 20, 24, "abcde", "ii", 1, WHITE); },
         {{10, 20}, {16, 20}, {22, 20}, {28, 20, 2}, {30, 20, 2}}},
        {"dots alone",
         [] { return TDL_SymbolWAddS(10, 20, 5, "abcde", "ii", 1, WHITE); },
         {{10, 20, 2}, {12, 20, 2}}},
    };
    const TestDisplay display;
    for (const auto& c : cases) {
        ClearScreen();
        EXPECT_EQ(c.draw(), 0) << c.what;
        const auto expected = PictureOf(c.cells);
        const auto actual = ScreenPixels();
        EXPECT_EQ(CountOfDifference(actual, expected), 0)
            << c.what << ": differs in " << RectText(BoxOfDifference(actual, expected));
    }
}

TEST(Text, FlushingFormsDrawTheSameAndFlushTheText)
{
    static const char text[] = "Pattern\nSelect";
    static const struct {
        const char* what;
        int (*flushing)();
        int (*silent)();
    } cases[] = {
        {"Symbol", [] { return TDL_Symbol(40, 50, text, 1, WHITE); },
         [] { return TDL_SymbolS(40, 50, text, 1, WHITE); }},
        {"SymbolW", [] { return TDL_SymbolW(40, 50, 40, text, 1, WHITE); },
         [] { return TDL_SymbolWS(40, 50, 40, text, 1, WHITE); }},
        {"SymbolB", [] { return TDL_SymbolB(40, 50, 30, 90, text, 1, WHITE, 0); },
         [] { return TDL_SymbolBS(40, 50, 30, 90, text, 1, WHITE, 0); }},
        {"SymbolB from the second line",
         [] { return TDL_SymbolB(40, 50, 30, 90, text, 1, WHITE, 1); },
         [] { return TDL_SymbolBS(40, 50, 30, 90, text, 1, WHITE, 1); }},
        {"SymbolP", [] { return TDL_SymbolP(40, 50, 11, text, 1, WHITE); },
         [] { return TDL_SymbolPS(40, 50, 11, text, 1, WHITE); }},
        {"SymbolC", [] { return TDL_SymbolC(40, 50, 200, 120, text, 1, WHITE); },
         [] { return TDL_SymbolCS(40, 50, 200, 120, text, 1, WHITE); }},
    };
    const TestDisplay display;
    const std::vector<uint32_t> black(SCREEN_W * SCREEN_H);
    for (const auto& c : cases) {
        ClearScreen();
        Flushed.clear();
        EXPECT_EQ(c.silent(), 0) << c.what;
        EXPECT_TRUE(Flushed.empty()) << c.what;
        const auto silent = ScreenPixels();
        ClearScreen();
        EXPECT_EQ(c.flushing(), 0) << c.what;
        ASSERT_EQ(Flushed.size(), 1u) << c.what;
        EXPECT_EQ(RectText(Flushed[0]), RectText(BoxOfDifference(silent, black))) << c.what;
        EXPECT_EQ(CountOfDifference(ScreenPixels(), silent), 0) << c.what;
    }
    Flushed.clear();
    TDL_Symbol(800, 0, text, 1, WHITE);
    TDL_SymbolB(40, 50, 30, 10, text, 1, WHITE, 0);
    EXPECT_TRUE(Flushed.empty());
}

TEST(Text, Measures)
{
    static const struct {
        const char* text;
        int lines;
        int width;
        int chars; // in the longest line
        int wrapped_at_13;
    } cases[] = {
        {"", 1, 0, 0, 1},         {"abc", 1, 18, 3, 2}, {"ab\nc", 2, 12, 2, 2},
        {"ab\n", 2, 12, 2, 2},    {"\n\n", 3, 0, 0, 3}, {"i\nWW\niiiii", 3, 18, 5, 4},
        {"abcdefg", 1, 42, 7, 4},
    };
    const TestDisplay display;
    for (const auto& c : cases) {
        EXPECT_EQ(TDL_GetSymbolSize(c.text, 1), unsigned(c.lines * 10) << 16 | unsigned(c.width))
            << c.text;
        EXPECT_EQ(TDL_GetSymbolWidth(c.text, 1), unsigned(c.width)) << c.text;
        int pitch = 0;
        EXPECT_EQ(TDL_GetSymbolSize_PRO(c.text, 1, &pitch),
                  unsigned(c.lines * 10) << 16 | unsigned(c.chars * 9))
            << c.text;
        EXPECT_EQ(pitch, 9);
        EXPECT_EQ(TDL_GetSymbolLine(13, c.text, 1), c.wrapped_at_13) << c.text;
        EXPECT_EQ(TDL_linecheck(0, 0, 9, 9, 13, 999, c.text, 1, WHITE, 0), c.wrapped_at_13 - 1)
            << c.text;
    }
    EXPECT_EQ(Flushed.size(), 0u);
    EXPECT_EQ(CountOfDifference(ScreenPixels(), std::vector<uint32_t>(SCREEN_W * SCREEN_H)), 0);
    // A line counts that is begun when the height is full; those behind it do not.
    EXPECT_EQ(TDL_linecheck(0, 0, 9, 9, 13, 20, "abcdefghi", 1, WHITE, 0), 1);
}

TEST(Text, NullTextIsRefused)
{
    const TestDisplay display;
    int pitch = 77;
    EXPECT_EQ(TDL_GetSymbolSize(nullptr, 1), 1u);
    EXPECT_EQ(TDL_GetSymbolWidth(nullptr, 1), 1u);
    EXPECT_EQ(TDL_GetSymbolSize_PRO(nullptr, 1, &pitch), 1u);
    EXPECT_EQ(pitch, 77);
    EXPECT_EQ(TDL_GetSymbolLine(10, nullptr, 1), 0);
    EXPECT_EQ(TDL_linecheck(0, 0, 9, 9, 9, 9, nullptr, 1, WHITE, 0), -1);
    EXPECT_EQ(TDL_Symbol(0, 0, nullptr, 1, WHITE), -1);
    EXPECT_EQ(TDL_SymbolWS(0, 0, 9, nullptr, 1, WHITE), -1);
    EXPECT_EQ(TDL_SymbolB(0, 0, 9, 9, nullptr, 1, WHITE, 0), -1);
    EXPECT_EQ(TDL_SymbolPS(0, 0, 9, nullptr, 1, WHITE), -1);
    EXPECT_EQ(TDL_SymbolC(0, 0, 9, 9, nullptr, 1, WHITE), -1);
    EXPECT_EQ(TDL_SymbolCS_PRO(0, 0, 9, 9, nullptr, 1, WHITE), -1);
    EXPECT_EQ(TDL_SymbolCBS(0, 0, 9, 9, 9, 9, nullptr, 1, WHITE, 0, 0), -1);
    EXPECT_EQ(TDL_SymbolWAddS(0, 0, 9, nullptr, "..", 1, WHITE), -1);
}

TEST(Text, CutTextThatCannotEndInItsMarkIsRefused)
{
    const TestDisplay display;
    const std::string head29(29, 'a'), head30(30, 'a');
    EXPECT_EQ(TDL_SymbolWAddS(0, 0, 100, head29.c_str(), "..", 1, WHITE), 0);
    ClearScreen();
    EXPECT_EQ(TDL_SymbolWAddS(0, 0, 100, head30.c_str(), "..", 1, WHITE), -1);
    EXPECT_EQ(TDL_SymbolWAddS(0, 0, 11, "abc", "..", 1, WHITE), -1); // not even the mark fits
    EXPECT_EQ(TDL_SymbolWAddS(0, 0, 11, "abc", nullptr, 1, WHITE), -1);
    EXPECT_EQ(CountOfDifference(ScreenPixels(), std::vector<uint32_t>(SCREEN_W * SCREEN_H)), 0);
    EXPECT_EQ(TDL_SymbolWAddS(0, 0, 180, head30.c_str(), "..", 1, WHITE), 0); // fits as it is
}

// A damaged font file costs glyphs, not the process.
TEST(Text, RubbishInAFontDrawsNothing)
{
    const TestDisplay display;
    for (const int font : {int(FONT_RUBBISH), int(FONT_NONE)}) {
        EXPECT_EQ(TDL_SymbolS(10, 10, "ABCDEFGW", font, WHITE), 0);
        EXPECT_EQ(TDL_SymbolBS(10, 10, 99, 99, "ABCDEFG", font, WHITE, 0), 0);
        EXPECT_EQ(TDL_GetSymbolWidth("ABCDEFGW", font), 0u);
    }
    EXPECT_EQ(CountOfDifference(ScreenPixels(), std::vector<uint32_t>(SCREEN_W * SCREEN_H)), 0);
}

TEST(Text, MissingOrShortFontFiles)
{
    const TestDisplay display;
    TDL_Quit();
    ASSERT_EQ(truncate("font.dat", 100), 0); // the rest counts as transparent
    EXPECT_EQ(TDL_Init(Screen), 0);
    EXPECT_EQ(TDL_GetSymbolWidth("ab", FONT_SOLID), 12u);
    TDL_SymbolS(0, 0, "ab", FONT_SOLID, WHITE);
    EXPECT_EQ(CountOfDifference(ScreenPixels(), std::vector<uint32_t>(SCREEN_W * SCREEN_H)), 0);
    for (const char* name : {"font_ofs.dat", "font.dat"}) {
        TDL_Quit();
        ASSERT_EQ(rename(name, "away"), 0);
        EXPECT_EQ(TDL_Init(Screen), -1) << name;
        EXPECT_EQ(TDL_FillRectAS(0, 0, 9, 9, WHITE, 9), 0) << "the surfaces are there all the same";
        ASSERT_EQ(rename("away", name), 0);
    }
}
