#include "bus_probe.h"
#include "initread.h"
#include "loop.h"
#include "netio.h"
#include "ready.h"
#include "saver.h"
#include <unistd.h>

namespace
{
SDL_Event Button(int type, int x, int y, int button = SDL_BUTTON_LEFT)
{
    SDL_Event e{};
    e.type = uint8_t(type);
    e.button.button = uint8_t(button);
    e.button.x = uint16_t(x);
    e.button.y = uint16_t(y);
    return e;
}

SDL_Event Motion(int x, int y, int state)
{
    SDL_Event e{};
    e.type = SDL_MOUSEMOTION;
    e.motion.x = uint16_t(x);
    e.motion.y = uint16_t(y);
    e.motion.state = uint8_t(state);
    return e;
}

struct Loop : BusTest {
    void SetUp() override
    {
        BusTest::SetUp();
        snprintf(GL_ServerAddress, sizeof GL_ServerAddress, "127.0.0.1");
        GL_NowPage = 0x33110100;
        Clock_ms = 100000;
        MainPass();
        probe::seen.clear();
    }
    static size_t Count(int msg) { return size_t(probe::Count(msg)); }
    // What the last repaint was told.
    static int Elapsed_ms()
    {
        int ms = -1;
        for (const auto& s : probe::seen)
            ms = s.msg == MSG_REDRAW ? int(s.ax) : ms;
        return ms;
    }
    // One event through the whole pass.
    static void Pass(SDL_Event e)
    {
        SDL_PushEvent(&e);
        MainPass();
    }
};
} // namespace

// Nobody sees what it would turn.
TEST_F(Loop, AWheelStepUnderTheSaverWakesTheScreenAndReachesNobody)
{
    GL_ScreenSaverInterval = 1;
    EndScreenSaver();
    ScreenSaver(1001);
    ASSERT_TRUE(IsSaver());
    probe::seen.clear();
    SDL_Event step = Button(SDL_MOUSEBUTTONDOWN, 400, 300, SDL_BUTTON_WHEELUP);
    Loop_Event(&step);
    EXPECT_FALSE(IsSaver());
    EXPECT_EQ(Count(MSG_WHEELUP) + Count(MSG_PRESS), 0u);
}

TEST_F(Loop, APassLastsTenMillisecondsAndItsStepIsClamped)
{
    static const struct {
        int step_ms; // the clock's step since the last pass
        int elapsed_ms;
        int waited_ms;
    } cases[] = {
        {.step_ms = 3, .elapsed_ms = 10, .waited_ms = 7},
        {.step_ms = 5000, .elapsed_ms = 5000, .waited_ms = 0},
        {.step_ms = 60000, .elapsed_ms = 5000, .waited_ms = 0},
        {.step_ms = -2000, .elapsed_ms = 10, .waited_ms = 10}, // the clock was set back
    };
    for (const auto& c : cases) {
        Clock_ms = TickBefore + uint32_t(c.step_ms);
        const uint32_t before = Clock_ms;
        MainPass();
        EXPECT_EQ(Elapsed_ms(), c.elapsed_ms) << c.step_ms;
        EXPECT_EQ(int(Clock_ms - before), c.waited_ms) << c.step_ms;
    }
}

TEST_F(Loop, ABouncingContactIsFilteredUntilItIsQuiet)
{
    Pass(Button(SDL_MOUSEBUTTONDOWN, 10, 20));
    EXPECT_EQ(Count(MSG_PRESS), 1u);
    for (int bounce = 0; bounce < 4;
         bounce++) { // each too soon after the one before, filtered or not
        Pass(Button(SDL_MOUSEBUTTONUP, 10, 20));
        MainPass();
        Clock_ms += 90;
        Pass(Button(SDL_MOUSEBUTTONDOWN, 10, 20));
    }
    EXPECT_EQ(Count(MSG_PRESS), 1u);
    EXPECT_EQ(Count(MSG_RELEASE), 4u); // a release always goes out
    MainPass();
    Clock_ms += 131;
    Pass(Button(SDL_MOUSEBUTTONDOWN, 30, 40));
    ASSERT_EQ(Count(MSG_PRESS), 2u);
}

TEST_F(Loop, ASecondPressCountsOnlyOnceTheQueueHasRunEmpty)
{
    Pass(Button(SDL_MOUSEBUTTONDOWN, 10, 20));
    Clock_ms += 500;
    Pass(Button(SDL_MOUSEBUTTONDOWN, 11, 21)); // no empty pass in between
    EXPECT_EQ(Count(MSG_PRESS), 1u);
    MainPass();
    Clock_ms += 500;
    Pass(Button(SDL_MOUSEBUTTONDOWN, 12, 22));
    EXPECT_EQ(Count(MSG_PRESS), 2u);
}

TEST_F(Loop, AQuietDisplayHoldsBackNoTouch)
{
    int display[2];
    ASSERT_EQ(pipe(display), 0);
    Ready_Watch(READY_DISPLAY, display[0]);
    for (int i = 0; i < 5; i++)
        Pass(Button(SDL_MOUSEBUTTONUP, 400, 300));
    EXPECT_EQ(Count(MSG_RELEASE), 5u);
    Ready_Watch(READY_DISPLAY, 0);
    close(display[0]);
    close(display[1]);
}

TEST_F(Loop, ADragIsDeliveredNineStepsAPass)
{
    for (int i = 0; i < 12; i++) {
        SDL_Event e = Motion(100 + i, 50, 1 | 4);
        SDL_PushEvent(&e);
    }
    MainPass();
    ASSERT_EQ(Count(MSG_DRAG), 9u);
    EXPECT_EQ(probe::seen[8].ax, 108);
    EXPECT_EQ(probe::seen[8].cx, 1);
    EXPECT_EQ(probe::seen[8].dx, 4);
    MainPass();
    EXPECT_EQ(Count(MSG_DRAG), 12u);
}

TEST_F(Loop, TheWheelTurnsTheWayTheOperatorChose)
{
    Pass(Button(SDL_MOUSEBUTTONDOWN, 5, 6, SDL_BUTTON_WHEELUP));
    EXPECT_EQ(Count(MSG_WHEELUP), 1u);
    GL_MouseWheelDirection = 1;
    Pass(Button(SDL_MOUSEBUTTONDOWN, 5, 6, SDL_BUTTON_WHEELUP));
    EXPECT_EQ(Count(MSG_WHEELDOWN), 1u);
    EXPECT_EQ(Count(MSG_PRESS), 0u); // nothing with arrows is on the page
}

TEST_F(Loop, APageRequestIsServedOnceAndForgottenWhenItFails)
{
    GL_CreatePage = 0x00110000;
    MainPass();
    EXPECT_EQ(GL_NowPage, 0x00110000u);
    EXPECT_EQ(Loop_Figures().page, 0x00110000u);
    EXPECT_EQ(GL_CreatePage, 0u);
    GL_CreatePage = 0x12345678;
    MainPass();
    EXPECT_EQ(GL_NowPage, 0x00110000u);
    EXPECT_EQ(GL_CreatePage, 0u);
    GL_ScreenSaver_Now = 1;
    GL_CreatePage = 0x12110000;
    MainPass();
    EXPECT_EQ(GL_NowPage, 0x00110000u); // waits for the screen
    GL_ScreenSaver_Now = 0;
    MainPass();
    EXPECT_EQ(GL_NowPage, 0x12110000u);
}

TEST_F(Loop, TheTimedProgressEndsOnTheInitialPage)
{
    GL_InitialPage = 0x12110000;
    InitialProgress(1);
    EXPECT_EQ(GL_MainCounter, 0u);
    for (int pass = 0; pass < 3000; pass++)
        MainPass();
    EXPECT_EQ(GL_InitProgress, 1);
    MainPass();
    EXPECT_EQ(GL_InitProgress, 0);
    MainPass();
    EXPECT_EQ(GL_NowPage, 0x12110000u);
}

TEST_F(Loop, TheInitialPageYieldsToAPageThatTheOperatorOpened)
{
    static const struct {
        uint32_t asked_for;
        bool pane_is_closed;
        uint32_t ends_on;
    } cases[] = {
        {0x33110100, true, 0x12110000},  // the page that is shown is built anew
        {0x13110000, true, 0x13110000},  // opened meanwhile
        {0x13110000, false, 0x13110000}, // waits under the pane
    };
    for (const auto& c : cases) {
        SetUp();
        GL_InitialPage = 0x12110000;
        InitialProgress(1);
        if (c.pane_is_closed)
            Pane_Quit(GL_InitProgress_PaneID);
        GL_CreatePage = c.asked_for;
        for (int pass = 0; pass < 3002; pass++)
            MainPass();
        EXPECT_EQ(GL_NowPage, c.ends_on) << std::hex << c.asked_for;
    }
}

TEST_F(Loop, TheReducedPassKeepsTheScreenAliveAndNothingElse)
{
    MainEventCheck(); // its clock begins here
    probe::seen.clear();
    GL_CreatePage = 0x12110000;
    SDL_Event e = Button(SDL_MOUSEBUTTONDOWN, 7, 8);
    SDL_PushEvent(&e);
    MainEventCheck();
    EXPECT_EQ(Count(MSG_PRESS), 1u);
    EXPECT_EQ(Elapsed_ms(), 10);
    EXPECT_NE(GL_NowPage, 0x12110000u);
    GL_CreatePage = 0;
}
