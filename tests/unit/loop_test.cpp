#include "a_kf.h"
#include "bus_probe.h"
#include "initread.h"
#include "log.h"
#include "loop.h"
#include "loop_log.h"
#include "netio.h"
#include "ready.h"
#include "saver.h"
#include "selfdiag.h"
#include "tdl.h"
#include "text.h"
#include "touch.h"
#include <filesystem>
#include <unistd.h>

static SDL_Event Button(int type, int x, int y, int button = SDL_BUTTON_LEFT)
{
    SDL_Event e{};
    e.button = {uint8_t(type), 0, uint8_t(button), 0, uint16_t(x), uint16_t(y)};
    return e;
}

static SDL_Event Motion(int x, int y, int state)
{
    SDL_Event e{};
    e.motion = {SDL_MOUSEMOTION, 0, uint8_t(state), uint16_t(x), uint16_t(y), 0, 0};
    return e;
}

static SDL_Event Key(SDLKey key)
{
    SDL_Event e{};
    e.type = SDL_KEYDOWN;
    e.key.keysym.sym = key;
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
    static int Pass(SDL_Event e) // whether it was the last one
    {
        SDL_PushEvent(&e);
        return MainPass();
    }
};

TEST_F(Loop, APassServesEveryLinkAndTheBoardEachFiveSeconds)
{
    Peer text(NET_TEXT_PORT);
    Peer frames(NET_BIN_PORT);
    Net_Init();
    ASSERT_TRUE(text.Accept() && frames.Accept());
    Net_SendSHPCommand("Listen#CS1.File"); // without a clip store nobody takes it
    MainPass();
    (void)TakeQueuedCommands();
    Net_DropBinQueue();
    Net_SendCommand("put A#1");
    EXPECT_EQ(Net_SendBinCommand(1, 0x10AA, nullptr, 0), 0);
    text.Send("B#2\n");
    usleep(20000);
    GL_ErrorExist = 7; // what the board does not say
    Clock_ms = TickBefore + 4990 - 10;
    MainPass();
    EXPECT_THAT(text.Lines(), Contains("put A#1"));
    for (const auto link : {NET_LINK_TEXT, NET_LINK_BIN, NET_LINK_HUB})
        EXPECT_EQ(Net_State(link).waiting, 0) << link;
    EXPECT_EQ(Count(MSG_TALLY), 1u);
    EXPECT_EQ(GL_ErrorExist, 7);
    MainPass();
    EXPECT_EQ(GL_ErrorExist, 0);
}

TEST_F(Loop, AHubThatIsBackLosesTheOldSubscriptionsFirst)
{
    GL_NetReConnect_SHP = 1;
    MainPass();
    const Strings lines = TakeQueuedHubLines();
    ASSERT_GT(lines.size(), 2u);
    for (size_t i = 0; i < lines.size(); i++)
        EXPECT_EQ(BeginsWith(lines[i].c_str(), "Unlisten#"), i < lines.size() / 2) << lines[i];
    MainPass();
    EXPECT_THAT(TakeQueuedHubLines(), IsEmpty());
}

TEST_F(Loop, WhatAPassTookIsKeptForTheFiguresAndTheLog)
{
    static int busy_ms;
    std::filesystem::remove("/tmp/passes.log");
    Log_Init("/tmp/passes.log", 1000000);
    GL_LoopLog = 1;
    Loop_ResetFigures();
    probe::answer = [](const probe::Seen& s) {
        Clock_ms += s.msg == MSG_REDRAW ? uint32_t(busy_ms) : 0;
        return 0;
    };
    static const struct {
        int ms;
        uint32_t page;
    } passes[] = {{4, 1}, {30, 2}, {30, 3}, {10, 4}, {990, 5}, {11, 6}};
    for (const auto& pass : passes) {
        busy_ms = pass.ms;
        GL_NowPage = pass.page;
        EXPECT_EQ(Count(MSG_REDRAW), size_t(&pass - passes));
        MainPass();
    }
    GL_LoopLog = 0;
    Log_Init("", 0);
    EXPECT_THAT(FileText("/tmp/passes.log"),
                HasSubstr("PASSES: 6, longest 990 ms at 00000005 and "));
    EXPECT_THAT(FileText("/tmp/passes.log"), HasSubstr(", over 10 ms 4 and "));
    const LoopFigures& f = Loop_Figures();
    EXPECT_EQ(f.passes, 6u);
    EXPECT_EQ(f.busy_ms, 1075u);
    EXPECT_EQ(f.longest_ms, 990);
    EXPECT_EQ(f.longest_page, 5u);
}

TEST_F(Loop, KeysOfTheDeveloperWorkInDebugModeOnly)
{
    const std::string captures = "/tmp/captures";
    std::filesystem::create_directory(captures);
    CopyText(GL_ImportDataPath, captures.c_str());
    static const struct {
        SDL_Event event;
        int mode, display, captures; // display: of a region that was hidden
    } cases[] = {
        {Key(SDLK_F5), 0, KF_REMOVED, 0},
        {Key(SDLK_F1), 0, KF_REMOVED, 0},
        {Button(SDL_MOUSEBUTTONDOWN, 5, 5, SDL_BUTTON_RIGHT), 0, KF_REMOVED, 0},
        {Button(SDL_MOUSEBUTTONDOWN, 5, 5, SDL_BUTTON_LEFT), 1, KF_REMOVED, 0},
        {Button(SDL_MOUSEBUTTONDOWN, 5, 5, SDL_BUTTON_RIGHT), 1, KF_REMOVED, 1},
        {Key(SDLK_F10), 0, KF_REMOVED, 2}, // everybody's
        {Key(SDLK_F4), 1, KF_REMOVED, 2},
        {Key(SDLK_F5), 1, KF_SHOWN, 2},
    };
    KF_SetRegionDisplay(0, KF_REMOVED);
    for (const auto& c : cases) {
        GL_DebugMode = GL_ScreenCapture = c.mode;
        MainPass();
        Clock_ms += 1000;
        EXPECT_FALSE(Pass(c.event));
        EXPECT_EQ(KF_GetRegionDisplay(0), c.display) << &c - cases;
        const std::filesystem::directory_iterator files(captures);
        EXPECT_EQ(std::distance(begin(files), end(files)), c.captures) << &c - cases;
    }
    EXPECT_EQ(Count(MSG_KEY), 5u);
    EXPECT_TRUE(Pass({.type = SDL_QUIT})) << "the window was closed";
    GL_DebugMode = GL_ScreenCapture = 0;
}

TEST_F(Loop, ARefreshShowsWhatHadBeenPaintedInSilence)
{
    static Strings shown;
    RefreshScreen();
    shown.clear();
    probe::seen.clear();
    TDL_FillRectS(10, 20, 39, 49, 0xFF0000);
    TDL_WatchFlush([](int x, int y, int w, int h) {
        shown.push_back(testing::PrintToString(std::vector{x, y, w, h}));
    });
    RefreshScreen();
    TDL_WatchFlush(nullptr);
    EXPECT_THAT(shown, ElementsAre("{ 10, 20, 30, 30 }"));
    EXPECT_EQ(Elapsed_ms(), 0);
}

TEST_F(Loop, TheWheelTurnsTheWayTheOperatorChoseAndNothingThatNobodySees)
{
    SDL_Event step = Button(SDL_MOUSEBUTTONDOWN, 400, 300, SDL_BUTTON_WHEELUP);
    Pass(step);
    EXPECT_EQ(Count(MSG_WHEELUP), 1u);
    GL_MouseWheelDirection = 1;
    Pass(step);
    EXPECT_EQ(Count(MSG_WHEELDOWN), 1u);
    EXPECT_EQ(Count(MSG_PRESS), 0u); // nothing with arrows is on the page
    GL_ScreenSaverInterval = 1;
    EndScreenSaver();
    ScreenSaver(1001);
    ASSERT_TRUE(IsSaver());
    probe::seen.clear();
    Loop_Event(&step);
    EXPECT_FALSE(IsSaver()) << "it wakes the screen";
    EXPECT_EQ(Count(MSG_WHEELUP) + Count(MSG_WHEELDOWN) + Count(MSG_PRESS), 0u);
}

TEST_F(Loop, APassLastsTenMillisecondsAndItsStepIsClamped)
{
    // step_ms: the clock's step since the last pass
    for (const auto& [step_ms, elapsed_ms, waited_ms] :
         {std::tuple{3, 10, 7},
          {5000, 5000, 0},
          {60000, 5000, 0},
          {-2000, 10, 10}}) { // the clock was set back
        Clock_ms = TickBefore + uint32_t(step_ms);
        const uint32_t before = Clock_ms;
        MainPass();
        EXPECT_EQ(Elapsed_ms(), elapsed_ms) << step_ms;
        EXPECT_EQ(int(Clock_ms - before), waited_ms) << step_ms;
    }
}

TEST_F(Loop, ABouncingContactIsFilteredUntilItIsQuiet)
{
    const SDL_Event press = Button(SDL_MOUSEBUTTONDOWN, 10, 20);
    Pass(press);
    EXPECT_EQ(Count(MSG_PRESS), 1u);
    for (int bounce = 0; bounce < 4; bounce++) { // each too soon after the last, filtered or not
        Pass(Button(SDL_MOUSEBUTTONUP, 10, 20));
        MainPass();
        Clock_ms += 90;
        Pass(press);
    }
    EXPECT_EQ(Count(MSG_PRESS), 1u);
    EXPECT_EQ(Count(MSG_RELEASE), 4u); // a release always goes out
    MainPass();
    Clock_ms += 131;
    Pass(press);
    EXPECT_EQ(Count(MSG_PRESS), 2u);
    Clock_ms += 500;
    Pass(press);
    EXPECT_EQ(Count(MSG_PRESS), 2u) << "no empty pass in between";
    MainPass();
    Clock_ms += 500;
    Pass(press);
    EXPECT_EQ(Count(MSG_PRESS), 3u);
}

TEST_F(Loop, AQuietDisplayHoldsBackNoTouchAndWhatNobodyTellsOfIsFoundSoon)
{
    int quiet[2];
    ASSERT_EQ(pipe(quiet), 0);
    Ready_Watch(READY_DISPLAY, quiet[0]);
    Ready_Watch(READY_TOUCH, quiet[1], POLLOUT); // the panel has told of something
    for (int i = 0; i < 5; i++)
        Pass(Button(SDL_MOUSEBUTTONUP, 400, 300));
    EXPECT_EQ(Count(MSG_RELEASE), 5u);
    // Neither descriptor tells of it: it was read along with something else.
    Ready_Watch(READY_TOUCH, quiet[1], POLLIN); // its other end has nothing to read either
    MainPass();                                 // nothing waits
    probe::seen.clear();
    SDL_Event e = Button(SDL_MOUSEBUTTONUP, 400, 300);
    SDL_PushEvent(&e);
    int passes = 0;
    for (; Count(MSG_RELEASE) == 0 && passes < 100; passes++)
        MainPass();
    EXPECT_THAT(passes, AllOf(testing::Gt(3), testing::Le(16)));
    Pass(e); // there may be more where that came from
    EXPECT_EQ(Count(MSG_RELEASE), 2u);
    Ready_Watch(READY_DISPLAY, 0);
    Ready_Watch(READY_TOUCH, Touch_FD);
    for (const int fd : quiet)
        close(fd);
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

TEST_F(Loop, APageRequestIsServedOnceAndForgottenWhenItFails)
{
    for (const uint32_t request : {0x00110000u, 0x12345678u}) {
        GL_CreatePage = request;
        MainPass();
        EXPECT_EQ(GL_NowPage, 0x00110000u);
        EXPECT_EQ(Loop_Figures().page, 0x00110000u);
        EXPECT_EQ(GL_CreatePage, 0u);
    }
    GL_ScreenSaver_Now = 1;
    GL_CreatePage = 0x12110000;
    MainPass();
    EXPECT_EQ(GL_NowPage, 0x00110000u); // waits for the screen
    GL_ScreenSaver_Now = 0;
    MainPass();
    EXPECT_EQ(GL_NowPage, 0x12110000u);
}

TEST_F(Loop, TheInitialPageYieldsToAPageThatTheOperatorOpened)
{
    for (const auto& [asked_for, pane_is_closed, ends_on] :
         {std::tuple{0u, false, 0x12110000u},
          {0x33110100u, true, 0x12110000u},     // the page that is shown is built anew
          {0x13110000u, true, 0x13110000u},     // opened meanwhile
          {0x13110000u, false, 0x13110000u}}) { // waits under the pane
        SetUp();
        GL_InitialPage = 0x12110000;
        InitialProgress(1);
        if (pane_is_closed)
            Pane_Quit(GL_InitProgress_PaneID);
        GL_CreatePage = asked_for;
        EXPECT_EQ(GL_MainCounter, 0u);
        for (int pass = 0; pass < 3002; pass++) {
            EXPECT_EQ(GL_InitProgress, pass <= 3000);
            MainPass();
        }
        EXPECT_EQ(GL_NowPage, ends_on) << std::hex << asked_for;
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
}
