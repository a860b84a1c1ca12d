// The levels of the signal processors: what a line of the server draws, and how long a peak stays.
#include "table_page.h"

namespace
{
constexpr uint32_t SOURCE = 0x52100000, METER = 0x52150000;
constexpr int KEY_HOLD = 52, KEY_RESET = 53;
constexpr int X1 = 220, X2 = 689, Y = 82; // the first bar of the first channel
constexpr uint32_t LIT = 0x00DDD4, PEAK = 0xFFFFFF, OVER = 0xE48B1B;
bool IsLit(int x, unsigned colour, int channel = 0, int bar = 0)
{
    return PixelAt(x, Y + 44 * channel + 9 * bar) == colour;
}
int At(int percent)
{
    return X1 + (X2 - X1) * percent / 109;
}
using SpPage = TablePage;
} // namespace

TEST_F(SpPage, ALineDrawsItsBarsWithinTheScaleAndNothingElseDoes)
{
    const Lines opened = Open(METER);
    EXPECT_EQ(Held(opened, "SP@SP8@Meter"), 1);
    Pass(10);
    EXPECT_FALSE(IsLit(X1, PEAK)) << "no level, no peak";
    // How much is lit, in percent, and whether it is over.
    static const std::tuple<const char*, int, bool> cases[] = {
        {"SP@SP1@Meter#50,0,0,0", 50, false}, {"SP@SP1@Meter#104,1,1,1", 100, true},
        {"SP@SP1@Meter#999", 100, true},      {"SP@SP1@Meter#-7,x", 0, false},
        {"SP@SP1@Meter#80", 80, false},       {"SP@SP9@Meter#10", 80, false},
        {"SP@SP1x@Meter#10", 80, false},      {"SP@SP0@Meter#10", 80, false},
        {"SP@SP1@Meters#10", 80, false}};
    for (const auto& [line, lit, is_over] : cases) {
        (void)Tell(line);
        Pass(1500);
        EXPECT_EQ(IsLit(At(lit) - 2, LIT), lit > 0) << line;
        EXPECT_EQ(IsLit(At(103), OVER), is_over) << line;
        EXPECT_EQ(IsLit(At(lit) + 3, LIT), false) << line;
    }
    (void)Tell("SP@SP8@Meter#10,20,30,40");
    Pass(10);
    for (int bar = 0; bar < 4; bar++)
        EXPECT_EQ(IsLit(At(10 * bar + 10) - 2, LIT, 7, bar) -
                      IsLit(At(10 * bar + 10) + 3, LIT, 7, bar),
                  1)
            << bar;
    EXPECT_EQ(Held(opened, "SP@SP8@Meter") + Held(Leave(), "SP@SP8@Meter"), 0);
}

TEST_F(SpPage, TheStripShowsTheChosenChannel)
{
    EXPECT_EQ(Held(Open(SOURCE), "SP@Meter Mode"), 1);
    const auto strip = [] {
        Pass(10);
        return PixelsIn({100, 281, 697, 337});
    };
    auto before = strip();
    static const std::pair<const char*, bool> cases[] = {
        {"SP@SP2@Meter#50", false},    {"SP@SP1@Meter#0,0,0,50", true},
        {"SP@Meter Mode#RGB", true},   {"SP@Meter Mode#RGB", false},
        {"SP@Meter Mode#YPbPr", true}, {"SP@SP1@Meter#0,0,0,50", false}};
    for (const auto& [line, changes] : cases) {
        (void)Tell(line);
        const auto now = strip();
        EXPECT_EQ(now != before, changes) << line;
        before = now;
    }
    EXPECT_EQ(Cell(1, 0, 0), "SP1");
    (void)ChooseRow(1, 1);
    EXPECT_STREQ(GL_NowTree[1], "SP2");
    EXPECT_NE(strip(), before) << "the second has been told another level";
}

TEST_F(SpPage, APeakFallsAfterAWhileUnlessItIsHeld)
{
    (void)Open(METER);
    for (const bool is_held : {true, false}) {
        while ((BT_GetStatus(KEY_HOLD) == BT_ON) != is_held)
            (void)Press(KEY_HOLD);
        (void)Open(METER); // it stays from visit to visit
        Pass(200);
        EXPECT_EQ(BT_GetStatus(KEY_HOLD) == BT_ON, is_held);
        TellAll("SP@SP1@Meter#", {"90", "20"});
        Pass(1400);
        EXPECT_TRUE(IsLit(At(90), PEAK));
        Pass(200);
        EXPECT_EQ(IsLit(At(90), PEAK), is_held);
        (void)Press(KEY_RESET);
        Pass(200);
        EXPECT_FALSE(IsLit(At(90), PEAK));
        TellAll("SP@SP1@Meter#", {"105", "20"});
        Pass(200);
        EXPECT_TRUE(IsLit(At(105), OVER));
        if (is_held)
            (void)Press(KEY_HOLD);
    }
}
