#include "tdl.h"
#include "tdl_fixture.h"
#include <algorithm>
#include <climits>
#include <gtest/gtest.h>
#include <string>

namespace
{
constexpr int DEPTHS[] = {8, 16, 24, 32};
constexpr unsigned RED = 0xFF0000; // exact at every depth

// The top left of the screen: '#' where it is not black.
std::string Art(int w, int h)
{
    const auto pixels = ScreenPixels();
    std::string art;
    for (int y = 0; y < h; y++) {
        for (int x = 0; x < w; x++)
            art += pixels[size_t(y * SCREEN_W + x)] ? '#' : '.';
        art += '\n';
    }
    return art;
}

int Painted()
{
    return CountOfDifference(ScreenPixels(), std::vector<uint32_t>(SCREEN_W * SCREEN_H));
}

uint32_t PixelOf(unsigned col)
{
    return SDL_MapRGB(Screen->format, uint8_t(col >> 16), uint8_t(col >> 8), uint8_t(col));
}

// Noise on the screen, and a surface of the same pixels for the library to work on.
SDL_Surface* NoisyTwin()
{
    SDL_Surface* twin = NoiseSurface(SCREEN_W, SCREEN_H, 5);
    SDL_BlitSurface(twin, nullptr, Screen, nullptr);
    return twin;
}
} // namespace

TEST(Drawing, SlantedShapesTruncateTheirColumns)
{
    static const struct {
        const char* what;
        int (*draw)();
        const char* art;
    } cases[] = {
        {"shallow", [] { return TDL_LineS(0, 0, 6, 2, RED); }, "##.....\n..##...\n....###\n"},
        {"its ends the other way round", [] { return TDL_LineS(6, 2, 0, 0, RED); },
         "##.....\n..##...\n....###\n"},
        {"shallow to the left", [] { return TDL_LineS(6, 0, 0, 2, RED); },
         ".....##\n...##..\n###....\n"},
        {"steep", [] { return TDL_LineS(2, 6, 0, 0, RED); }, "#..\n#..\n#..\n.#.\n.#.\n..#\n..#\n"},
        {"steep to the left", [] { return TDL_LineS(1, 0, 0, 3, RED); }, ".#\n.#\n#.\n#.\n"},
        {"diagonal", [] { return TDL_LineS(0, 2, 2, 0, RED); }, "..#\n.#.\n#..\n"},
        {"level", [] { return TDL_LineS(4, 0, 1, 0, RED); }, ".####\n.....\n"},
        {"upright", [] { return TDL_LineS(1, 0, 1, 2, RED); }, ".#.\n.#.\n.#.\n"},
        {"one point", [] { return TDL_LineS(1, 1, 1, 1, RED); }, "...\n.#.\n...\n"},
        {"outline", [] { return TDL_ParaS(3, 0, 0, 3, 4, RED); },
         "...####.\n..#..#..\n.#..#...\n####....\n"},
        {"upright outline", [] { return TDL_ParaVS(0, 0, 3, 3, 3, RED); },
         "#...\n##..\n#.#.\n.#.#\n..##\n...#\n"},
        {"solid", [] { return TDL_FillParaS(0, 0, 4, 1, 3, RED); }, "####...\n..#####\n"},
        {"upright solid", [] { return TDL_FillParaVS(1, 0, 0, 2, 2, RED); }, ".#\n.#\n##\n#.\n"},
    };
    const TestDisplay display;
    for (const auto& c : cases) {
        ClearScreen();
        EXPECT_EQ(c.draw(), 0) << c.what;
        const std::string art = c.art;
        const int width = int(art.find('\n'));
        EXPECT_EQ(Art(width, int(art.size()) / (width + 1)), art) << c.what;
        EXPECT_EQ(Painted(), std::count(art.begin(), art.end(), '#')) << c.what;
    }
}

// 93 columns in a row: 1 / (1 / 93) is a hair below 93, and so is a half of it in two rows.
TEST(Drawing, LevelLineIsWholeAndASlantedOneMayEndShort)
{
    const TestDisplay display;
    TDL_LineS(0, 0, 92, 0, RED);
    EXPECT_EQ(Painted(), 93);
    ClearScreen();
    TDL_LineS(0, 0, 92, 1, RED);
    EXPECT_EQ(Painted(), 92);
}

TEST(Drawing, ShapesAreTheSameAtEveryDepth)
{
    std::vector<uint32_t> first;
    for (const int depth : DEPTHS) {
        const TestDisplay display(depth);
        TDL_FillRectS(-5, 500, 40, 700, RED);
        TDL_RectS(100, 100, 300, 200, 0x00FF00);
        TDL_LineHS(700, 10, 200, 0x0000FF);
        TDL_LineVS(10, 580, 200, 0xFFFFFF);
        TDL_LineS(5, 5, 222, 90, 0xFFFF00);
        TDL_FillParaS(400, 400, 333, 590, 30, 0x00FFFF);
        TDL_FillParaVS(500, 400, 590, 440, 30, RED);
        TDL_FillRectAS(600, 300, 650, 350, 0xFF00FF, 255);
        const auto pixels = ScreenPixels();
        if (first.empty())
            first = pixels;
        EXPECT_EQ(CountOfDifference(pixels, first), 0) << depth << " bits";
    }
    EXPECT_GT(CountOfDifference(first, std::vector<uint32_t>(SCREEN_W * SCREEN_H)), 16000);
}

TEST(Drawing, TheScreenEdgeCutsOrRefuses)
{
    static const struct {
        const char* what;
        int (*draw)();
        int result;
        int painted;
    } cases[] = {
        {"starts right of the screen", [] { return TDL_LineHS(800, 5, 3, RED); }, 1, 0},
        {"starts above", [] { return TDL_LineVS(5, -1, 3, RED); }, 1, 0},
        {"cut at the right", [] { return TDL_LineHS(790, 5, 20, RED); }, 0, 10},
        {"cut at the bottom", [] { return TDL_LineVS(5, 599, INT_MAX, RED); }, 0, 1},
        {"no length", [] { return TDL_LineHS(5, 5, 0, RED); }, 0, 0},
        {"below no length", [] { return TDL_LineVS(5, 5, -3, RED); }, 0, 0},
        {"one end out", [] { return TDL_LineS(790, 5, 800, 9, RED); }, 1, 0},
        {"one row", [] { return TDL_RectS(5, 5, 9, 5, RED); }, 0, 5},
        {"two rows", [] { return TDL_RectS(5, 5, 9, 6, RED); }, 0, 10},
        {"five rows", [] { return TDL_RectS(5, 5, 9, 9, RED); }, 0, 16},
        {"frame of the screen", [] { return TDL_RectS(0, 0, 799, 599, RED); }, 0, 2796},
        {"wrong way in x", [] { return TDL_FillRectS(9, 9, 8, 8, RED); }, -1, 0},
        {"wrong way in y", [] { return TDL_FillRectS(9, 9, 9, 8, RED); }, -2, 0},
        {"wrong way in x, alpha", [] { return TDL_FillRectAS(9, 9, 8, 8, RED, 200); }, -1, 0},
        {"wrong way in y, alpha", [] { return TDL_FillRectAS(9, 9, 9, 8, RED, 200); }, -2, 0},
        {"partly off", [] { return TDL_FillRectS(-10, 590, 9, INT_MAX, RED); }, 0, 100},
        {"all off", [] { return TDL_FillRectS(INT_MIN, 0, -1, 9, RED); }, 0, 0},
        {"all off, alpha", [] { return TDL_FillRectAS(800, 0, 900, 9, RED, 200); }, 0, 0},
        {"partly off, alpha", [] { return TDL_FillRectAS(-10, -10, 9, 0, RED, 200); }, 0, 10},
        {"corner of an outline out", [] { return TDL_ParaS(760, 5, 780, 9, 30, RED); }, 1, 0},
        {"corner below", [] { return TDL_ParaVS(0, 570, 20, 580, 30, RED); }, 1, 0},
        {"end of a solid out", [] { return TDL_FillParaS(0, -1, 20, 9, 5, RED); }, 1, 0},
        {"runs of a solid cut", [] { return TDL_FillParaS(795, 5, 795, 7, 30, RED); }, 0, 15},
        {"upright runs cut", [] { return TDL_FillParaVS(5, 598, 7, 598, 30, RED); }, 0, 6},
        {"a solid without width", [] { return TDL_FillParaS(5, 5, 9, 9, 0, RED); }, 0, 0},
    };
    const TestDisplay display;
    for (const auto& c : cases) {
        ClearScreen();
        EXPECT_EQ(c.draw(), c.result) << c.what;
        EXPECT_EQ(Painted(), c.painted) << c.what;
    }
}

// Each verb in both forms: the same pixels, and the flush is what changed, in one piece.
TEST(Drawing, SilentFormDrawsTheSameAndTheOtherFlushesWhatItTouched)
{
    static SDL_Surface* bitmap;
    static const struct {
        const char* what;
        int (*flushing)();
        int (*silent)();
    } cases[] = {
        {"Line", [] { return TDL_Line(90, 60, 30, 40, RED); },
         [] { return TDL_LineS(90, 60, 30, 40, RED); }},
        {"Line that ends short", [] { return TDL_Line(0, 0, 92, 1, RED); },
         [] { return TDL_LineS(0, 0, 92, 1, RED); }},
        {"LineH", [] { return TDL_LineH(790, 7, 99, RED); },
         [] { return TDL_LineHS(790, 7, 99, RED); }},
        {"LineV", [] { return TDL_LineV(3, 590, 99, RED); },
         [] { return TDL_LineVS(3, 590, 99, RED); }},
        {"Rect", [] { return TDL_Rect(30, 40, 90, 60, RED); },
         [] { return TDL_RectS(30, 40, 90, 60, RED); }},
        {"FillRect", [] { return TDL_FillRect(700, 500, 900, 900, RED); },
         [] { return TDL_FillRectS(700, 500, 900, 900, RED); }},
        {"FillRectA", [] { return TDL_FillRectA(-9, -9, 5, 6, RED, 77); },
         [] { return TDL_FillRectAS(-9, -9, 5, 6, RED, 77); }},
        {"Para", [] { return TDL_Para(60, 10, 30, 25, 12, RED); },
         [] { return TDL_ParaS(60, 10, 30, 25, 12, RED); }},
        {"ParaV", [] { return TDL_ParaV(60, 10, 30, 25, 12, RED); },
         [] { return TDL_ParaVS(60, 10, 30, 25, 12, RED); }},
        {"FillPara", [] { return TDL_FillPara(10, 30, 40, 20, 12, RED); },
         [] { return TDL_FillParaS(10, 30, 40, 20, 12, RED); }},
        {"FillParaV", [] { return TDL_FillParaV(750, 595, 799, 560, 12, RED); },
         [] { return TDL_FillParaVS(750, 595, 799, 560, 12, RED); }},
        {"Put", [] { return TDL_Put(-20, 580, bitmap); },
         [] { return TDL_PutS(-20, 580, bitmap); }},
        {"PutA", [] { return TDL_PutA(760, -8, bitmap, 99); },
         [] { return TDL_PutAS(760, -8, bitmap, 99); }},
        {"PutSmall", [] { return TDL_PutSmall(60, 70, bitmap); },
         [] { return TDL_PutSmallS(60, 70, bitmap); }},
    };
    const TestDisplay display;
    bitmap = NoiseSurface(85, 66, 7);
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
    SDL_FreeSurface(bitmap);
}

TEST(Drawing, ARefusedVerbFlushesNothing)
{
    const TestDisplay display;
    TDL_Line(0, 0, 0, 600, RED);
    TDL_LineH(-1, 0, 5, RED);
    TDL_LineH(5, 5, 0, RED);
    TDL_FillRect(9, 9, 8, 9, RED);
    TDL_Para(0, 0, 9, 9, 0, RED);
    TDL_FillPara(0, 0, 9, 9, 0, RED);
    TDL_Put(0, 0, nullptr);
    EXPECT_TRUE(Flushed.empty());
}

TEST(Drawing, AFlushIsCutAtTheScreenAndNeverEmpty)
{
    static const struct {
        Rect r;
        const char* flushed;
    } cases[] = {
        {{-5, -6, 10, 20}, "0,0-10,20"},
        {{790, 590, 900, 900}, "790,590-799,599"},
        {{5, 5, 5, 5}, "5,5-5,5"},
        {{800, 0, 900, 9}, ""}, // the library takes a width of 0 for the whole screen
        {{0, -9, 9, -1}, ""},
        {{9, 0, 8, 9}, ""},
    };
    const TestDisplay display;
    for (const auto& c : cases) {
        Flushed.clear();
        EXPECT_EQ(TDL_UpdateRect(c.r.x1, c.r.y1, c.r.x2, c.r.y2), 0);
        EXPECT_EQ(Flushed.empty() ? "" : RectText(Flushed[0]), c.flushed) << RectText(c.r);
    }
    Flushed.clear();
    EXPECT_EQ(TDL_UpdateScreen(), 0);
    ASSERT_EQ(Flushed.size(), 1u);
    EXPECT_EQ(RectText(Flushed[0]), "0,0-799,599");
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
            const unsigned col =
                (alpha % 3 == 0 ? 0xFFFFFFu : 0x2F71C3u * unsigned(alpha)) & 0xFFFFFF;
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
        EXPECT_EQ(RectText(BoxOfDifference(ScreenPixels(), PixelsOf(twin))), "nothing") << depth;
        SDL_FreeSurface(colour);
        SDL_FreeSurface(twin);
    }
}

namespace
{
constexpr struct {
    int x;
    int y;
} PLACES[] = {{0, 0}, {100, 50}, {-40, 200}, {790, 570}, {-84, -65}, {-85, 0}, {800, 0}, {7, 599}};

SDL_Surface* PlainSource()
{
    return NoiseSurface(85, 66, 99);
}

SDL_Surface* KeyedSource()
{
    SDL_Surface* s = NoiseSurface(85, 66, 98);
    SDL_FillRect(s, nullptr, 0);
    SDL_Rect window = {10, 10, 30, 30};
    SDL_FillRect(s, &window, PixelOf(0xFFFF00));
    SDL_SetColorKey(s, SDL_SRCCOLORKEY, 0);
    return s;
}

SDL_Surface* PixelAlphaSource()
{
    SDL_Surface* s =
        SDL_CreateRGBSurface(SDL_SRCALPHA, 85, 66, 32, 0xFF0000, 0xFF00, 0xFF, 0xFF000000);
    SDL_FillRect(s, nullptr, 0x80FF2010);
    return s;
}

SDL_Surface* FaintSource()
{
    SDL_Surface* s = PlainSource();
    SDL_SetAlpha(s, SDL_SRCALPHA, 100);
    return s;
}
} // namespace

TEST(Drawing, BitmapsAreCutAndBlendedLikeTheLibraryDoes)
{
    for (const int depth : DEPTHS) {
        for (auto* make : {PlainSource, KeyedSource, PixelAlphaSource, FaintSource}) {
            const TestDisplay display(depth);
            SDL_Surface* source = make();
            SDL_Surface* twin = NoisyTwin();
            for (const auto& at : PLACES) {
                EXPECT_EQ(TDL_PutS(at.x, at.y, source), 0);
                SDL_Rect to = {Sint16(at.x), Sint16(at.y), 0, 0};
                SDL_BlitSurface(source, nullptr, twin, &to);
            }
            EXPECT_EQ(RectText(BoxOfDifference(ScreenPixels(), PixelsOf(twin))), "nothing")
                << depth;
            SDL_FreeSurface(source);
            SDL_FreeSurface(twin);
        }
    }
}

TEST(Drawing, BitmapsAtConstantOpacityBlendLikeTheLibraryDoes)
{
    for (const int depth : DEPTHS) {
        for (auto* make : {PlainSource, KeyedSource, PixelAlphaSource, FaintSource}) {
            const TestDisplay display(depth);
            SDL_Surface* source = make();
            SDL_Surface* twin = NoisyTwin();
            SDL_Surface* scratch = NoiseSurface(85, 66, 3);
            uint8_t alpha = 255;
            for (const auto& at : PLACES) {
                EXPECT_EQ(TDL_PutAS(at.x, at.y, source, alpha), 0);
                SDL_FillRect(scratch, nullptr, PixelOf(0));
                SDL_BlitSurface(source, nullptr, scratch, nullptr);
                SDL_SetAlpha(scratch, SDL_SRCALPHA, alpha);
                SDL_Rect to = {Sint16(at.x), Sint16(at.y), 0, 0};
                SDL_BlitSurface(scratch, nullptr, twin, &to);
                alpha = uint8_t(alpha - 37);
            }
            EXPECT_EQ(RectText(BoxOfDifference(ScreenPixels(), PixelsOf(twin))), "nothing")
                << depth;
            SDL_FreeSurface(scratch);
            SDL_FreeSurface(source);
            SDL_FreeSurface(twin);
        }
    }
}

// A 16-bit coordinate of the library would bring these back on the screen.
TEST(Drawing, BitmapFarOffTheScreenStaysThere)
{
    const TestDisplay display;
    SDL_Surface* bitmap = NoiseSurface(85, 66, 1);
    EXPECT_EQ(TDL_PutS(65536 + 10, 10, bitmap), 0);
    EXPECT_EQ(TDL_PutAS(10, -65536 + 10, bitmap, 200), 0);
    EXPECT_EQ(TDL_PutSmallS(65536 + 10, 10, bitmap), 0);
    EXPECT_EQ(Painted(), 0);
    EXPECT_EQ(TDL_PutS(0, 0, nullptr), 1);
    EXPECT_EQ(TDL_PutAS(0, 0, nullptr, 3), 1);
    EXPECT_EQ(TDL_Put(0, 0, nullptr), 1);
    EXPECT_EQ(TDL_PutA(0, 0, nullptr, 3), 1);
    SDL_FreeSurface(bitmap);
}

TEST(Drawing, HalfSizeIsEverySecondPixel)
{
    for (const int depth : DEPTHS) {
        const TestDisplay display(depth);
        SDL_Surface* bitmap = NoiseSurface(5, 7, 42);
        const auto from = PixelsOf(bitmap);
        SDL_Surface* small = TDL_CreateSmallSurface(bitmap);
        if (depth == 24) {
            EXPECT_EQ(small, nullptr);
            EXPECT_EQ(TDL_PutSmallS(10, 10, bitmap), -1);
            EXPECT_EQ(Painted(), 0);
            SDL_FreeSurface(bitmap);
            continue;
        }
        ASSERT_NE(small, nullptr);
        ASSERT_EQ(small->w, 2);
        ASSERT_EQ(small->h, 3);
        EXPECT_EQ(TDL_PutSmallS(10, 20, bitmap), 0);
        const auto to = PixelsOf(small);
        const auto screen = ScreenPixels();
        for (int y = 0; y < 3; y++) {
            for (int x = 0; x < 2; x++) {
                EXPECT_EQ(to[size_t(2 * y + x)], from[size_t(5 * 2 * y + 2 * x)])
                    << depth << " bits";
                EXPECT_EQ(screen[size_t(SCREEN_W * (20 + y) + 10 + x)],
                          from[size_t(10 * y + 2 * x)])
                    << depth << " bits";
            }
        }
        EXPECT_LE(Painted(), 6);
        SDL_FreeSurface(small);
        SDL_FreeSurface(bitmap);
    }
}

TEST(Drawing, HalfSizeRefusesAnotherFormat)
{
    const TestDisplay display;
    SDL_Surface* other = SDL_CreateRGBSurface(SDL_SWSURFACE, 8, 8, 16, 0xF800, 0x7E0, 0x1F, 0);
    EXPECT_EQ(TDL_PutSmallS(0, 0, other), -1);
    EXPECT_EQ(TDL_CreateSmallSurface(other), nullptr);
    EXPECT_EQ(TDL_CreateSmallSurface(nullptr), nullptr);
    SDL_FreeSurface(other);
}

TEST(Drawing, OnlyTheLastPushComesBack)
{
    for (const int depth : DEPTHS) {
        const TestDisplay display(depth);
        SDL_Surface* ground = NoiseSurface(SCREEN_W, SCREEN_H, 8);
        SDL_BlitSurface(ground, nullptr, Screen, nullptr);
        SDL_FreeSurface(ground);
        const auto before = ScreenPixels();
        TDL_PushScreen(0, 0, 50, 50);
        TDL_PushScreen(100, 200, 300, 150);
        ClearScreen();
        Flushed.clear();
        TDL_PopScreen();
        ASSERT_EQ(Flushed.size(), 1u);
        EXPECT_EQ(RectText(Flushed[0]), "100,200-399,349");
        const auto after = ScreenPixels();
        for (int i = 0; i < SCREEN_W * SCREEN_H; i++) {
            const bool saved = Inside({100, 200, 399, 349}, i % SCREEN_W, i / SCREEN_W);
            ASSERT_EQ(after[size_t(i)], saved ? before[size_t(i)] : 0) << depth << " bits, " << i;
        }
    }
}

TEST(Drawing, AMovedPopKeepsItsNewPlace)
{
    const TestDisplay display;
    TDL_FillRectS(20, 30, 29, 39, RED);
    TDL_PushScreen(20, 30, 10, 10);
    ClearScreen();
    TDL_PopScreenXY(795, 5); // half of it is off the screen
    EXPECT_EQ(RectText(Flushed.back()), "795,5-799,14");
    EXPECT_EQ(Painted(), 50);
    ClearScreen();
    TDL_PopScreenXY(300, 5);
    ClearScreen();
    TDL_PopScreen();
    EXPECT_EQ(RectText(BoxOfDifference(ScreenPixels(), std::vector<uint32_t>(SCREEN_W * SCREEN_H))),
              "300,5-309,14");
}

TEST(Drawing, APushOffTheScreenIsCutAndAnEmptyOneRestoresNothing)
{
    const TestDisplay display;
    TDL_PopScreen(); // nothing saved yet
    EXPECT_TRUE(Flushed.empty());
    TDL_FillRectS(0, 0, 799, 599, RED);
    TDL_PushScreen(-10, 590, 30, 100);
    ClearScreen();
    TDL_PopScreen();
    EXPECT_EQ(Painted(), 200);
    TDL_PushScreen(800, 0, 10, 10);
    TDL_PushScreen(0, 0, -5, 10);
    ClearScreen();
    TDL_PopScreen();
    EXPECT_EQ(Painted(), 0);
}

TEST(Drawing, ABmpFileComesInDisplayFormat)
{
    const TestDisplay display(16);
    SDL_Surface* file = SDL_CreateRGBSurface(SDL_SWSURFACE, 3, 2, 24, 0xFF0000, 0xFF00, 0xFF, 0);
    SDL_FillRect(file, nullptr, SDL_MapRGB(file->format, 255, 0, 255));
    ASSERT_EQ(SDL_SaveBMP(file, "magenta.bmp"), 0);
    SDL_FreeSurface(file);
    for (auto* load : {TDL_LoadBmp, TDL_ScreenSaverBMP}) {
        SDL_Surface* loaded = load("magenta.bmp");
        ASSERT_NE(loaded, nullptr);
        EXPECT_EQ(loaded->format->BitsPerPixel, 16);
        EXPECT_EQ(PixelsOf(loaded), std::vector<uint32_t>(6, 0xFF00FF));
        SDL_FreeSurface(loaded);
        EXPECT_EQ(load("no.bmp"), nullptr);
    }
}
