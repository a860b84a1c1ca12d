#include "a_ls_page.h"
#include <climits>

constexpr int X = 652;
constexpr int Y = 78;
constexpr int HEIGHT = 286; // the track is 206 pixels, from 118 to 323
constexpr int UP = Y + 20;
constexpr int DOWN = Y + HEIGHT - 20;

struct ScrollBars : ListPage {
    void SetUp() override
    {
        ListPage::SetUp();
        ASSERT_EQ(CreateScrollBar(2, X, Y, HEIGHT), 0);
        SB_SetPosition(2, 0, 12, 99);
        told.clear();
    }
};

TEST_F(ScrollBars, ThumbStandsForTheRowsShown)
{
    static const struct {
        int top, shown, total;
        int y1, y2; // 0: no thumb
    } cases[] = {
        {0, 12, 12, 0, 0},            // all rows shown
        {6, 12, 99, 130, 154},        //
        {0, 15, 12000, 118, 132},     // a thumb never shrinks below 15 pixels,
        {6000, 15, 12000, 214, 228},  // stands about its place,
        {11985, 15, 12000, 309, 323}, // and stays on the track
        {200, 15, 100, 309, 323},
    };
    for (const auto& c : cases) {
        SB_SetPositionRedraw(2, c.top, c.shown, c.total);
        Redraw();
        int y1 = 0, y2 = 0;
        for (int y = Y + 40; y < Y + HEIGHT - 40; y++) {
            if (PixelAt(X, y) == 0x003241 && PixelAt(X + 45, y) == 0x003241)
                continue;
            y1 = y1 ? y1 : y;
            y2 = y;
        }
        EXPECT_EQ(y1, c.y1) << c.top << " of " << c.total;
        EXPECT_EQ(y2, c.y2) << c.top << " of " << c.total;
    }
}

TEST_F(ScrollBars, ATouchTellsItsOwnerWhereTo)
{
    static const struct {
        int x, y, total;
        const char* said;
    } cases[] = {
        {X, Y, 99, "SB 1 2 -1"},
        {X + 45, Y + HEIGHT - 1, 99, "SB 2 2 1"},
        {X, Y + HEIGHT - 40, 0, "SB 2 2 1"}, // an owner without rows takes its own care
        {X, 220, 99, "SB 0 2 49"},
        {X, 323, 99, "SB 0 2 98"},
        {X, 322, 12000, "SB 0 2 11906"},
        {X, 220, 0, nullptr},
        {X + 46, 220, 99, nullptr},
        {X, Y + HEIGHT, 99, nullptr},
    };
    for (const auto& c : cases) {
        SB_SetPosition(2, 0, 12, c.total);
        Touch(c.x, c.y);
        const auto said = Told();
        EXPECT_EQ(said.empty() ? "" : said[0], c.said ? c.said : "") << c.x << " " << c.y;
        EXPECT_LE(said.size(), 1u);
    }
}

TEST_F(ScrollBars, AHeldArrowWaitsOnceAndThenRepeats)
{
    static const std::pair<int, size_t> passes[] = {{299, 0}, {1, 1},    {49, 0}, {1, 1},
                                                    {50, 1},  {5000, 1}, {0, 0},  {50, 1}};
    Redraw();
    for (int y : {UP, DOWN}) {
        const auto arrow = PixelsIn({X, y - 15, X + 45, y + 15});
        Press(X, y);
        EXPECT_EQ(Told().size(), 1u) << "the first step comes at once";
        for (const auto& [elapsed_ms, steps] : passes) {
            Redraw(elapsed_ms);
            EXPECT_EQ(Told().size(), steps) << elapsed_ms;
        }
        Release();
        Redraw(5000);
        EXPECT_THAT(Told(), IsEmpty());
        EXPECT_EQ(PixelsIn({X, y - 15, X + 45, y + 15}), arrow) << "it is let go";
    }
}

TEST_F(ScrollBars, TheThumbFollowsTheFingerThatHoldsIt)
{
    Drag(X, 220);
    Press(X, 118);
    Drag(X - 300, 220); // off the bar, but held
    Drag(X, 0);
    Drag(X, 599);
    Drag(X, 300, 0); // another button
    Release();
    Drag(X, 300);
    Press(X, UP);
    Drag(X, 300);
    EXPECT_THAT(Told(), ElementsAre("SB 0 2 0", "SB 0 2 49", "SB 0 2 0", "SB 0 2 98", "SB 1 2 -1"));
}

TEST_F(ScrollBars, ABarThatIsClosedOrWasNeverThereTakesNothing)
{
    for (int n : {-1, 4, INT_MAX}) {
        SB_INFO info;
        for (int result : {CreateScrollBar(n, 0, 0, 200), CloseScrollBar(n),
                           SB_SetPosition(n, 0, 1, 1), SB_GetInfo(&info, n)})
            EXPECT_EQ(result, -1) << n;
    }
    EXPECT_EQ(CreateScrollBar(0, 0, 0, 81), -1) << "no room for a track";
    CloseScrollBar(2);
    Touch(X, UP);
    EXPECT_THAT(Told(), IsEmpty());
}

// Page code may close the bar in answer to what it says.
TEST_F(ScrollBars, ABarMayBeClosedWhileItSpeaks)
{
    answer = [](int) { CloseScrollBarAll(); };
    Press(X, DOWN);
    Redraw(5000);
    EXPECT_THAT(Told(), ElementsAre("SB 2 2 1"));
}
