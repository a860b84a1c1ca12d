#include "box.h"
#include "colours.h"
#include "harness.h"
#include "tdl.h"
#include <map>

// The lines of a part of the screen; a colour that has no letter is a dot.
static Strings Look(const Rect& r, const std::map<uint32_t, char>& letters)
{
    Strings lines;
    for (int y = r.y1; y <= r.y2; y++) {
        lines.emplace_back();
        for (int x = r.x1; x <= r.x2; x++) {
            const auto letter = letters.find(PixelAt(x, y));
            lines.back() += letter == letters.end() ? '.' : letter->second;
        }
    }
    return lines;
}

TEST(Box, ItIsRaisedByTwoEdgesAndThrowsAShadowBesideItself)
{
    Harness_Reset();
    TDL_FillRectS(0, 0, 40, 40, WHITE);
    Box_Draw({1, 1, 12, 12}, {0x111111, 0x222222, 0x333333, 0x444444, 0x555555}, 3);
    const std::map<uint32_t, char> letters = {{WHITE, ' '},    {0x111111, 'g'}, {0x222222, 'l'},
                                              {0x333333, 'm'}, {0x444444, 'd'}, {0x555555, 'e'},
                                              {0x737373, '-'}};
    EXPECT_THAT(Look({0, 0, 16, 16}, letters),
                ElementsAre("                 ", " llllllllllld    ", " lmmmmmmmmmed    ",
                            " lmgggggggged    ", " lmgggggggged    ", " lmgggggggged    ",
                            " lmgggggggged    ", " lmgggggggged    ", " lmgggggggged    ",
                            " lmgggggggged    ", " lmgggggggged--- ", " leeeeeeeeeed--- ",
                            " dddddddddddd--- ", "          ------ ", "          ------ ",
                            "          ------ ", "                 "));
}

TEST(Box, AProgressFillsItsShareOfTheWell)
{
    Harness_Reset();
    for (const auto& [percent, width] : {std::pair{-1, 0}, {0, 0}, {1, 1}, {50, 50}, {100, 100}}) {
        Box_Progress({10, 10, 113, 40}, BOX_BAR_EDGE, percent);
        EXPECT_EQ(std::ranges::count(PixelsIn({0, 12, 200, 12}), TEAL), width) << percent;
    }
}
