#include "display.h"
#include "tdl.h"
#include "tdl_fixture.h"
#include <climits>
#include <gtest/gtest.h>

constexpr int DEPTHS[] = {8, 16, 24, 32};
constexpr unsigned RED = 0xFF0000; // exact at every depth
constexpr unsigned WHITE = 0xFFFFFF;

static SDL_Surface* Source; // of the bitmap verbs

TEST(Drawing, TheScreenEdgeCutsOrRefuses)
{
    static const struct {
        Verb verb;
        int result, painted;
    } cases[] = {
        {BOTH(TDL_LineH, 800, 5, 3, RED), 1, 0},
        {BOTH(TDL_LineH, 790, 5, 20, RED), 0, 10},
        {BOTH(TDL_LineV, 5, 599, INT_MAX, RED), 0, 1},
        {BOTH(TDL_LineH, 5, 5, 0, RED), 0, 0},
        {BOTH(TDL_Line, 790, 5, 800, 9, RED), 1, 0},
        {BOTH(TDL_Line, 0, 0, 92, 0, RED), 0, 93}, // level: whole, though 1 / (1 / 93) is below 93
        {BOTH(TDL_Line, 0, 0, 92, 1, RED), 0, 92}, // and here it is cut
        {BOTH(TDL_Rect, 5, 5, 9, 5, RED), 0, 5},
        {BOTH(TDL_Rect, 5, 5, 9, 9, RED), 0, 16},
        {BOTH(TDL_Rect, 0, 0, 799, 599, RED), 0, 2796},
        {BOTH(TDL_FillRect, 9, 9, 8, 8, RED), -1, 0},
        {BOTH(TDL_FillRect, 9, 9, 9, 8, RED), -2, 0},
        {BOTH(TDL_FillRect, -10, 590, 9, INT_MAX, RED), 0, 100},
        {BOTH(TDL_FillRectA, -10, -10, 9, 0, RED, 200), 0, 10},
        {BOTH(TDL_Para, 760, 5, 780, 9, 30, RED), 1, 0},
        {BOTH(TDL_FillPara, 0, -1, 20, 9, 5, RED), 1, 0},
        {BOTH(TDL_FillPara, 795, 5, 795, 7, 30, RED), 0, 15},
        {BOTH(TDL_FillParaV, 5, 598, 7, 598, 30, RED), 0, 6},
        {BOTH(TDL_Put, 0, 0, nullptr), 1, 0},
        {BOTH(TDL_Put, 795, -3, Source), 0, 15},
        {BOTH(TDL_PutA, -7, 596, Source, 128), 0, 12},
        {BOTH(TDL_PutSmall, 796, 598, Source), 0, 8},
        {BOTH(TDL_Put, 65536 + 10, 10, Source), 0, 0}, // the library counts in 16 bits
    };
    const TestDisplay display;
    Source = NoiseSurface(10, 6, 1);
    SDL_FillRect(Source, nullptr, PixelOf(RED));
    for (const auto& c : cases) {
        const Drawn drawn = Draw(c.verb);
        EXPECT_EQ(drawn.result, c.result) << c.verb.text;
        EXPECT_EQ(drawn.count, c.painted) << c.verb.text;
    }
    SDL_FreeSurface(Source);
}

TEST(Drawing, AFlushIsCutAtTheScreenAndNeverEmpty)
{
    static const std::pair<Rect, const char*> cases[] = {
        {{-5, -6, 10, 20}, "0,0-10,20"},
        {{790, 590, 900, 900}, "790,590-799,599"},
        {{800, 0, 900, 9}, ""}, // the library takes a width of 0 for the whole screen
        {{9, 0, 8, 9}, ""},
    };
    const TestDisplay display;
    for (const auto& [r, flushed] : cases) {
        Flushed.clear();
        EXPECT_EQ(TDL_UpdateRect(r.x1, r.y1, r.x2, r.y2), 0);
        EXPECT_EQ(Flushed.empty() ? "" : RectText(Flushed[0]), flushed);
    }
}

template <int COUNT> static void Dots()
{
    for (int i = 0; i < COUNT; i++)
        TDL_FillRect(8 * (i % 90), 8 * (i / 90), 8 * (i % 90), 8 * (i / 90), RED);
}

TEST(Drawing, TheDisplayGetsWhatDiffersFromItAndNothingTwice)
{
    static const struct {
        const char* name;
        void (*draw)();
        int handed;
        unsigned before = 0; // colour of the corner, which has gone out at once
    } cases[] = {
        {"two places", [] { TDL_FillRect(0, 0, 9, 9, RED), TDL_FillRect(100, 100, 109, 119, RED); },
         300},
        {"erased again", [] { TDL_FillRect(0, 0, 9, 9, RED), TDL_FillRect(0, 0, 9, 9, 0); }, 0},
        {"one in the other",
         [] { TDL_FillRect(0, 0, 29, 29, RED), TDL_FillRect(10, 10, 19, 19, 0); }, 800},
        {"one over the other",
         [] { TDL_FillRect(10, 10, 19, 19, RED), TDL_FillRect(0, 0, 29, 29, RED); }, 900},
        {"a hold in a hold", [] { TDL_Hold(), TDL_FillRect(3, 5, 16, 5, RED), TDL_Release(); }, 14},
        {"the last columns", [] { TDL_FillRect(797, 598, 799, 599, RED); }, 6},
        {"more than is gathered", Dots<80>, 80},
        {"more than goes at once", Dots<700>, 700},
        {"the corner stays", [] { TDL_FillRect(0, 0, 12, 9, RED); }, 0, RED},
        {"the corner goes", [] { TDL_FillRect(0, 0, 12, 9, 0); }, 130, RED},
    };
    for (const int depth : {16, 32}) {
        const TestDisplay display(depth);
        const Display shown;
        TDL_Hold();
        TDL_UpdateScreen();
        TDL_Release();
        for (const auto& c : cases) {
            TDL_FillRect(0, 0, 799, 599, 0);
            TDL_FillRect(0, 0, 12, 9, c.before);
            Display::handed = 0;
            TDL_Hold();
            c.draw();
            EXPECT_EQ(Display::handed, 0) << c.name;
            TDL_Release();
            EXPECT_EQ(Display::handed, c.handed) << c.name << " at " << depth;
            EXPECT_EQ(Display::Lacks(), "") << c.name;
        }
    }
}

// Two roads to the same pixels: ours on the screen, the library's on its twin. The widths have
// every remainder by the four pixels that are blended at a time.
TEST(Drawing, AlphaFillBlendsLikeTheLibrary)
{
    for (const int depth : DEPTHS) {
        const TestDisplay display(depth);
        SDL_Surface* twin = NoisyTwin();
        SDL_Surface* colour = NoiseSurface(30, 10, 1);
        for (int alpha = 0; alpha < 256; alpha++) {
            const unsigned col = alpha % 3 == 0 ? 0xFFFFFF : 0x2F71C3u * unsigned(alpha);
            const int x = 25 * (alpha % 32);
            const int y = 15 * (alpha / 32);
            const int w = 1 + alpha % 23;
            EXPECT_EQ(TDL_FillRectAS(x, y, x + w - 1, y + 9, col, uint8_t(alpha)), 0);

            SDL_Rect part = {0, 0, Uint16(w), 10};
            SDL_Rect at = {Sint16(x), Sint16(y), 0, 0};
            SDL_FillRect(colour, &part, PixelOf(col));
            SDL_SetAlpha(colour, SDL_SRCALPHA, uint8_t(alpha));
            SDL_BlitSurface(colour, &part, twin, &at);
        }
        EXPECT_EQ(Difference(PixelsOf(Screen), PixelsOf(twin)), "nothing") << depth;
        SDL_FreeSurface(colour);
        SDL_FreeSurface(twin);
    }
}

enum class Kind { PLAIN, KEYED, PIXEL_ALPHA, FAINT };

static SDL_Surface* MakeSource(Kind kind)
{
    SDL_Surface* s =
        kind == Kind::PIXEL_ALPHA
            ? SDL_CreateRGBSurface(SDL_SRCALPHA, 85, 66, 32, 0xFF0000, 0xFF00, 0xFF, 0xFF000000)
            : NoiseSurface(85, 66, 99);
    SDL_Rect window = {10, 10, 30, 30};
    if (kind == Kind::PIXEL_ALPHA)
        SDL_FillRect(s, nullptr, 0x80FF2010);
    if (kind == Kind::FAINT)
        SDL_SetAlpha(s, SDL_SRCALPHA, 100);
    if (kind == Kind::KEYED) {
        SDL_FillRect(s, &window, PixelOf(0xFFFF00));
        SDL_SetColorKey(s, SDL_SRCCOLORKEY, PixelOf(0xFFFF00));
    }
    return s;
}

TEST(Drawing, BitmapsAreCutAndBlendedLikeTheLibraryDoes)
{
    static const struct {
        int x, y, alpha; // alpha -1: the verb without it
    } places[] = {{0, 0, -1},      {100, 50, -1},  {-40, 200, -1}, {790, 570, -1},
                  {-84, -65, -1},  {-85, 0, -1},   {800, 0, -1},   {7, 599, -1},
                  {200, 100, 255}, {-40, 300, 77}, {790, 100, 1},  {300, -60, 128}};
    for (const int depth : DEPTHS) {
        for (const Kind kind : {Kind::PLAIN, Kind::KEYED, Kind::PIXEL_ALPHA, Kind::FAINT}) {
            const TestDisplay display(depth);
            SDL_Surface* source = MakeSource(kind);
            SDL_Surface* twin = NoisyTwin();
            SDL_Surface* scratch = NoiseSurface(85, 66, 3);
            for (const auto& at : places) {
                SDL_Rect to = {Sint16(at.x), Sint16(at.y), 0, 0};
                if (at.alpha < 0) {
                    EXPECT_EQ(TDL_PutS(at.x, at.y, source), 0);
                    SDL_BlitSurface(source, nullptr, twin, &to);
                    continue;
                }
                EXPECT_EQ(TDL_PutAS(at.x, at.y, source, uint8_t(at.alpha)), 0);
                SDL_FillRect(scratch, nullptr, PixelOf(0));
                SDL_BlitSurface(source, nullptr, scratch, nullptr);
                SDL_SetAlpha(scratch, SDL_SRCALPHA, uint8_t(at.alpha));
                SDL_BlitSurface(scratch, nullptr, twin, &to);
            }
            EXPECT_EQ(Difference(PixelsOf(Screen), PixelsOf(twin)), "nothing") << depth;
            for (SDL_Surface* s : {source, twin, scratch})
                SDL_FreeSurface(s);
        }
    }
}

TEST(Drawing, OnlyTheLastPushComesBack)
{
    for (const int depth : DEPTHS) {
        const TestDisplay display(depth);
        SDL_FreeSurface(NoisyTwin());
        auto expected = PixelsOf(Screen);
        for (int i = 0; i < SCREEN_W * SCREEN_H; i++)
            if (!Inside({100, 200, 399, 349}, i % SCREEN_W, i / SCREEN_W))
                expected[size_t(i)] = 0;
        TDL_PushScreen(0, 0, 50, 50);
        TDL_PushScreen(100, 200, 300, 150);
        ClearScreen();
        Flushed.clear();
        TDL_PopScreen();
        ASSERT_EQ(Flushed.size(), 1u);
        EXPECT_EQ(RectText(Flushed[0]), "100,200-399,349");
        EXPECT_EQ(Difference(PixelsOf(Screen), expected), "nothing") << depth;
    }
}

TEST(Drawing, AMovedPopKeepsItsNewPlaceAndTheScreenEdgeCuts)
{
    const TestDisplay display;
    TDL_PopScreen(); // nothing saved yet
    EXPECT_TRUE(Flushed.empty());
    TDL_FillRectS(0, 0, 799, 599, RED);
    TDL_PushScreen(-10, 590, 30, 100);
    ClearScreen();
    TDL_PopScreen();
    EXPECT_EQ(RectText(Flushed.back()), "0,590-19,599");
    EXPECT_EQ(Painted(), 200);
    ClearScreen();
    TDL_PopScreenXY(300, 5);
    ClearScreen();
    TDL_PopScreen();
    EXPECT_EQ(RectText(Flushed.back()), "300,5-319,14");
    EXPECT_EQ(Painted(), 200);
}

// A square that is marked as drawn on directly is marked again once it has been shown or painted.
TEST(Drawing, WhatIsDrawnOutsideAHoldIsShownByTheNextAndPaintedOver)
{
    const TestDisplay display;
    static int flushed = 0;
    TDL_WatchFlush([](int, int, int w, int h) { flushed += w * h; });
    const auto hold = [](unsigned colour) {
        TDL_Hold();
        if (colour)
            TDL_FillRectS(0, 0, 31, 31, colour);
        TDL_UpdateRect(0, 0, 31, 31);
        flushed = 0;
        TDL_Release();
        return flushed;
    };
    EXPECT_EQ(hold(0), SCREEN_W * SCREEN_H); // the first one
    for (const unsigned colour : {RED, WHITE, RED}) {
        TDL_FillRectS(0, 0, 31, 31, colour);
        EXPECT_EQ(hold(0), 32 * 32);
        EXPECT_EQ(hold(0), 0);
    }
    for (const int side : {4, 6, 4}) {
        EXPECT_GT(hold(WHITE), 0);
        TDL_FillRectS(0, 0, side - 1, side - 1, RED);
        EXPECT_EQ(hold(WHITE), 0) << "it was red unseen";
        EXPECT_EQ(PixelsOf(Screen)[0], WHITE);
        TDL_FillRectS(0, 0, side - 1, side - 1, RED);
        EXPECT_EQ(hold(0), side * side);
    }
    for (const unsigned colour : {RED, WHITE}) { // after the first everything has been shown
        TDL_FillRectS(0, 64, 31, 95, colour);
        TDL_FillRectS(64, 0, 95, 31, colour); // to the right of what is marked, and above it
        flushed = 0;
        TDL_Hold();
        TDL_UpdateScreen();
        TDL_Release();
        EXPECT_EQ(flushed, 2 * 32 * 32);
    }
    TDL_WatchFlush(nullptr);
}
