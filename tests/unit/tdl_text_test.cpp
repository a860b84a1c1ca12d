#include "tdl.h"
#include "tdl_fixture.h"
#include "text.h"
#include <cstring>
#include <gtest/gtest.h>

namespace
{
constexpr unsigned WHITE = 0xFFFFFF;

#define SILENT(verb, ...)                                                                          \
    {                                                                                              \
#verb "(" #__VA_ARGS__ ")", nullptr, [] { return verb(__VA_ARGS__); }                      \
    }

struct Cell { // of a solid glyph
    int x = 0;
    int y = 0;
    int w = 6;
};

std::vector<uint32_t> PictureOf(const std::vector<Cell>& cells)
{
    std::vector<uint32_t> picture(SCREEN_W * SCREEN_H);
    for (const Cell& c : cells)
        for (int i = 0; i < c.w * 10; i++)
            picture[size_t((c.y + i / c.w) * SCREEN_W + c.x + i % c.w)] = WHITE;
    return picture;
}

// The glyph with every coverage, composed and blitted by the library.
void BlitCoverageGlyph(SDL_Surface* to, int x, int y, unsigned col)
{
    SDL_Surface* glyph =
        SDL_CreateRGBSurface(SDL_SRCALPHA, 16, 16, 32, 0xFF0000, 0xFF00, 0xFF, 0xFF000000);
    for (int i = 0; i < 256; i++) {
        const uint32_t pixel = col | uint32_t(i) << 24;
        memcpy(static_cast<uint8_t*>(glyph->pixels) + i / 16 * glyph->pitch + i % 16 * 4, &pixel,
               4);
    }
    SDL_Rect dst = {Sint16(x), Sint16(y), 0, 0};
    SDL_BlitSurface(glyph, nullptr, to, &dst);
    SDL_FreeSurface(glyph);
}
} // namespace

TEST(DrawnText, EveryCoverageBlendsLikeTheLibrary)
{
    static const unsigned colours[] = {0xFFFFFF, 0x000000, 0x808080, 0xE48B1B, 0x00DDD4,
                                       0xFF0000, 0x00FF00, 0x0000FF, 0x010203, 0xFEFDFC};
    for (const int depth : {8, 16, 24, 32}) {
        const TestDisplay display(depth);
        SDL_FreeSurface(NoisyTwin());
        TDL_FillRectS(0, 0, 799, 39, 0xFFFFFF); // and the grounds where rounding shows
        TDL_FillRectS(0, 40, 799, 79, 0x000000);
        TDL_FillRectS(0, 80, 799, 119, 0x01FE80);
        SDL_Surface* twin = SDL_DisplayFormat(Screen);
        for (int i = 0; i < 1200; i++) {
            const unsigned col = i % 4 ? (0x9E3779B1u * unsigned(i)) >> 8 : colours[i / 4 % 10];
            const int x = 20 * (i % 40) + i % 3;
            const int y = 20 * (i / 40);
            ASSERT_EQ(TDL_SymbolS(x, y, "A", FONT_COVERAGE, col), 0);
            BlitCoverageGlyph(twin, x, y, col);
        }
        EXPECT_EQ(Difference(PixelsOf(Screen), PixelsOf(twin)), "nothing") << depth;
        SDL_FreeSurface(twin);
    }
}

// clang-format off
TEST(DrawnText, GlyphsStandWhereTheWalkPutsThem)
{
    static const std::pair<Verb, std::vector<Cell>> cases[] = {
        {BOTH(TDL_Symbol, 10, 20, "aWi", 1, WHITE), {{10, 20}, {16, 20, 9}, {25, 20, 2}}},
        {BOTH(TDL_Symbol, 10, 20, "a\n\nbc", 1, WHITE), {{10, 20}, {10, 40}, {16, 40}}},
        {BOTH(TDL_Symbol, 10, 20, "", 1, WHITE), {}},
        {BOTH(TDL_Symbol, 10, 20, "a\x01\x7F\x80\xFFz", 1, WHITE), {{10, 20}, {16, 20}}}, // no glyphs
        {BOTH(TDL_Symbol, 787, 0, "abc", 1, WHITE), {{787, 0}, {793, 0}}},
        {BOTH(TDL_Symbol, 794, 590, "ab", 1, WHITE), {{794, 590}}},
        {BOTH(TDL_Symbol, 10, 585, "a\nb", 1, WHITE), {{10, 585}}},

        {BOTH(TDL_SymbolW, 10, 20, 13, "abc", 1, WHITE), {{10, 20}, {16, 20}}},
        {BOTH(TDL_SymbolW, 10, 20, 12, "abc", 1, WHITE), {{10, 20}}},
        {BOTH(TDL_SymbolW, 10, 20, 13, "ab\nabc\nd", 1, WHITE), {{10, 20}, {16, 20}, {10, 30}, {16, 30}}},

        {BOTH(TDL_SymbolB, 10, 20, 13, 99, "abcde", 1, WHITE, 0), {{10, 20}, {16, 20}, {10, 30}, {16, 30}, {10, 40}}},
        {SILENT(TDL_SymbolBS, 10, 20, 13, 21, "abcde", 1, WHITE, 0), {{10, 20}, {16, 20}, {10, 30}, {16, 30}}},
        {SILENT(TDL_SymbolBS, 10, 20, 13, 20, "abcde", 1, WHITE, 0), {{10, 20}, {16, 20}}}, // height reached
        {BOTH(TDL_SymbolB, 10, 20, 99, 10, "abc", 1, WHITE, 0), {}}, // one line high is no room
        {BOTH(TDL_SymbolB, 10, 20, 13, 99, "abcde", 1, WHITE, 1), {{10, 20}, {16, 20}, {10, 30}}},
        {BOTH(TDL_SymbolB, 10, 20, 99, 99, "a\nb", 1, WHITE, 2), {}},
        {BOTH(TDL_SymbolB, 10, 20, 99, 99, "a\n\nb", 1, WHITE, 0), {{10, 20}, {10, 40}}},
        {SILENT(TDL_SymbolBS, 10, 20, 5, 39, "ab", 1, WHITE, 0), {{10, 30}, {10, 40}}}, // wider than the block

        {BOTH(TDL_SymbolP, 10, 20, 9, "aWi\nb", 1, WHITE), {{11, 20}, {19, 20, 9}, {31, 20, 2}, {11, 30}}},
        {BOTH(TDL_SymbolP, 10, 20, 10, "W", 1, WHITE), {{11, 20, 9}}}, // each half cut for itself

        {BOTH(TDL_SymbolC, 100, 50, 131, 81, "ab\nc", 1, WHITE), {{109, 55}, {115, 55}, {109, 65}}},
        {BOTH(TDL_SymbolC, 100, 50, 105, 55, "ab", 1, WHITE), {{97, 48}, {103, 48}}}, // sticks out
        {SILENT(TDL_SymbolCS_PRO, 100, 50, 140, 70, "ai", 1, WHITE), {{112, 55}, {123, 55, 2}}},

        {SILENT(TDL_SymbolCBS, 100, 50, 140, 90, 25, 99, "ab", 1, WHITE, 0, 0), {{114, 65}, {120, 65}}},
        {SILENT(TDL_SymbolCBS, 100, 50, 140, 91, 13, 99, "abc", 1, WHITE, 0, 4), // (37 & ~1) - 20: 8 down
         {{108, 66}, {114, 66}, {108, 76}}},

        {SILENT(TDL_SymbolWAddS, 10, 20, 18, "abc", "..", 1, WHITE), {{10, 20}, {16, 20}, {22, 20}}},
        {SILENT(TDL_SymbolWAddS, 10, 20, 24, "abcde", "ii", 1, WHITE),
         {{10, 20}, {16, 20}, {22, 20}, {28, 20, 2}, {30, 20, 2}}},

        {BOTH(TDL_Symbol, 10, 10, "ABCDEFGW", FONT_RUBBISH, WHITE), {}}, // costs glyphs, not the process
        {BOTH(TDL_SymbolB, 10, 10, 99, 99, "ABCDEFGW", FONT_RUBBISH, WHITE, 0), {}},
    };
    const TestDisplay display;
    for (const auto& [verb, cells] : cases) {
        const Drawn drawn = Draw(verb);
        EXPECT_EQ(drawn.result, 0) << verb.text;
        EXPECT_EQ(Difference(drawn.pixels, PictureOf(cells)), "nothing") << verb.text;
    }
}

TEST(DrawnText, WhatCannotBeDrawnIsRefused)
{
    static const std::string head30(30, 'a');
    static const Verb refused[] = {
        BOTH(TDL_Symbol, 0, 0, nullptr, 1, WHITE),
        BOTH(TDL_SymbolB, 0, 0, 9, 9, nullptr, 1, WHITE, 0),
        BOTH(TDL_SymbolC, 0, 0, 9, 9, nullptr, 1, WHITE),
        SILENT(TDL_SymbolCBS, 0, 0, 9, 9, 9, 9, nullptr, 1, WHITE, 0, 0),
        SILENT(TDL_SymbolWAddS, 0, 0, 9, nullptr, "..", 1, WHITE),
        SILENT(TDL_SymbolWAddS, 0, 0, 100, head30.c_str(), "..", 1, WHITE), // 32 characters
        SILENT(TDL_SymbolWAddS, 0, 0, 11, "abc", "..", 1, WHITE), // not even the dots fit
    };
    const TestDisplay display;
    for (const Verb& verb : refused) {
        const Drawn drawn = Draw(verb);
        EXPECT_EQ(drawn.result, -1) << verb.text;
        EXPECT_EQ(drawn.count, 0) << verb.text;
    }
}
// clang-format on

TEST(DrawnText, Measures)
{
    static const struct {
        const char* text;
        int lines, width;
        int chars; // in the longest line
        int wrapped_at_13;
    } cases[] = {
        {"", 1, 0, 0, 1},         {"abc", 1, 18, 3, 2}, {"ab\nc", 2, 12, 2, 2},
        {"ab\n", 2, 12, 2, 2},    {"\n\n", 3, 0, 0, 3}, {"i\nWW\niiiii", 3, 18, 5, 4},
        {"abcdefg", 1, 42, 7, 4},
    };
    const TestDisplay display;
    int pitch;
    for (const auto& c : cases) {
        const unsigned height = unsigned(c.lines * 10) << 16;
        EXPECT_EQ(TDL_GetSymbolSize(c.text, 1), height | unsigned(c.width)) << c.text;
        EXPECT_EQ(TDL_GetSymbolWidth(c.text, 1), unsigned(c.width)) << c.text;
        EXPECT_EQ(TDL_GetSymbolSize_PRO(c.text, 1, &pitch), height | unsigned(c.chars * 9));
        EXPECT_EQ(pitch, 9);
        EXPECT_EQ(TDL_GetSymbolLine(13, c.text, 1), c.wrapped_at_13) << c.text;
        EXPECT_EQ(TDL_linecheck(0, 0, 9, 9, 13, 999, c.text, 1, WHITE, 0), c.wrapped_at_13 - 1);
    }
    EXPECT_EQ(Painted(), 0);
}

TEST(DrawnText, ATextIsCutToItsLongestHeadWithTheTail)
{
    static const struct {
        const char* text;
        int width;
        const char* tail;
        int result;
        const char* left;
    } cases[] = {
        {"abc", 18, "..", 0, "abc"},
        {"abcd", 23, "..", 0, "a.."},
        {"abcd", 24, "..", 0, "abcd"},
        {"abcd", 12, "..", 0, ".."},
        {"abcd", 11, "..", -1, ".."},
        {"abcd", 17, "", 0, "ab"},
        {"abcd", 0, "", 0, ""},
        {"an operator may give a name of more than thirty characters", 200, "..", 0,
         "an operator may give a name of m.."},
    };
    const TestDisplay display;
    for (const auto& c : cases) {
        char text[64];
        ktr_strncpy(text, c.text, sizeof text);
        EXPECT_EQ(TDL_CutText(text, sizeof text, c.width, c.tail, 1), c.result) << c.text;
        EXPECT_STREQ(text, c.left) << c.width;
    }
    char full[5] = "abcd";
    (void)TDL_CutText(full, sizeof full, 23, "......", 1);
    EXPECT_LT(strlen(full), sizeof full);
}
