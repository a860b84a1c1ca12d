#include "global.h"
#include "harness.h"
#include "i2c.h"
#include "ready.h"
#include "touch.h"
#include <fcntl.h>
#include <linux/input.h>
#include <termios.h>
#include <unistd.h>

// All events that wait in SDL's queue.
static std::vector<SDL_Event> Events()
{
    std::vector<SDL_Event> events;
    SDL_Event e;
    SDL_PumpEvents();
    while (SDL_PeepEvents(&e, 1, SDL_GETEVENT, SDL_ALLEVENTS) == 1)
        events.push_back(e);
    return events;
}

static void Finger(int x, int y, int contact)
{
    Touch_Record(EV_ABS, ABS_X, x);
    Touch_Record(EV_ABS, ABS_Y, y);
    Touch_Record(EV_KEY, BTN_TOUCH, contact);
    Touch_Record(EV_SYN, 0, 0);
}

struct Touch : testing::Test {
    void SetUp() override
    {
        Harness_Reset();
        Touch_Reset();
        if (Touch_FD >= 0)
            close(Touch_FD); // another test's passes may have found the panel
        Touch_FD = -1;
        Touch_Resolution = 1023;
        SYS_TouchScreen_AX = SYS_TouchScreen_AY = 50;
        SYS_TouchScreen_BX = 750;
        SYS_TouchScreen_BY = 550;
        Events();
    }
};

TEST_F(Touch, RawPointsBecomeScreenPointsInTruncatedSteps)
{
    static const struct {
        int resolution, ax, bx, raw, x;
    } cases[] = {
        {.resolution = 1023, .ax = 50, .bx = 750, .raw = 1023, .x = 799}, // 800 is clamped
        {.resolution = 4095, .ax = 50, .bx = 750, .raw = 2048, .x = 400},
        {.resolution = 4095, .ax = 50, .bx = 750, .raw = 4000, .x = 781},
        // 60 * 700 / -680 = -61, 50, 234 * 700 / 680 = 240
        {.resolution = 1023, .ax = 60, .bx = 740, .raw = 300, .x = 229},
        {.resolution = 1023, .ax = 50, .bx = 750, .raw = 2147483647, .x = 799},
        {.resolution = 1023, .ax = 50, .bx = 750, .raw = -2147483647, .x = 0},
    };
    for (const auto& c : cases) {
        Touch_Resolution = c.resolution;
        SYS_TouchScreen_AX = c.ax;
        SYS_TouchScreen_BX = c.bx;
        Finger(c.raw, 0, 1);
        const auto events = Events();
        ASSERT_FALSE(events.empty());
        EXPECT_EQ(events[0].button.x, c.x) << c.raw << " at " << c.ax << ".." << c.bx;
        EXPECT_EQ(events[0].button.y, 0);
    }
    SYS_TouchScreen_AY = 60;
    Finger(0, 700, 1);
    EXPECT_EQ(Events().at(1).motion.y, 407);
}

TEST_F(Touch, ContactComesBeforeMotionAndAReleaseIsNotLostInAFullQueue)
{
    Touch_Record(EV_ABS, ABS_X, 512);
    Touch_Record(EV_KEY, BTN_LEFT, 1);
    Touch_Record(EV_KEY, BTN_TOOL_FINGER, 0); // no contact
    EXPECT_TRUE(Events().empty());
    Touch_Record(EV_SYN, 0, 0);
    auto events = Events();
    ASSERT_GE(events.size(), 2u);
    EXPECT_EQ(events[0].type, SDL_MOUSEBUTTONDOWN);
    EXPECT_EQ(events[0].button.button, SDL_BUTTON_LEFT);
    EXPECT_EQ(events[1].type, SDL_MOUSEMOTION);
    EXPECT_EQ(events[1].motion.state & 1, 1);
    Touch_Record(EV_KEY, BTN_TOUCH, 0);
    Touch_Record(EV_SYN, 0, 0);
    events = Events();
    ASSERT_EQ(events.size(), 1u);
    EXPECT_EQ(events[0].type, SDL_MOUSEBUTTONUP);
    EXPECT_EQ(events[0].button.x, 400);
    Finger(100, 100, 1);
    SDL_Event filler{};
    filler.type = SDL_USEREVENT;
    while (SDL_PushEvent(&filler) == 0) {
    }
    Touch_Record(EV_KEY, BTN_TOUCH, 0);
    Touch_Record(EV_SYN, 0, 0);
    for (const SDL_Event& e : Events())
        ASSERT_NE(e.type, SDL_MOUSEBUTTONUP) << "the queue was not full";
    Touch_Poll(10);
    events = Events();
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events[0].type, SDL_MOUSEBUTTONUP);
}

TEST_F(Touch, PanelIsFoundGrabbedAndLostAndFoundAgain)
{
    // A device with the kernel's records, as on the controller. The sandbox's own is a pipe.
    constexpr char own[] = "/dev/input/usb-TSC-30_DMC-event", away[] = "/dev/input/away";
    constexpr char other[] = "/dev/input/usb-Elo_TouchSystems-event";
    const int panel = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_TRUE(grantpt(panel) == 0 && unlockpt(panel) == 0);
    const termios raw = {};
    tcsetattr(panel, TCSANOW, &raw);
    rename(own, away);
    EXPECT_EQ(symlink(ptsname(panel), other), 0);
    EXPECT_EQ(touch_open(), 0);
    unlink(other);
    rename(away, own);
    ASSERT_GE(Touch_FD, 0);
    EXPECT_EQ(Touch_Resolution, 4095);
    EXPECT_EQ(touch_open(), -1); // already open

    Touch_Record(EV_KEY, BTN_TOUCH, 1);
    Touch_Reset();
    const input_event records[] = {{.type = EV_ABS, .code = ABS_X, .value = 2048},
                                   {.type = EV_KEY, .code = BTN_TOUCH, .value = 1},
                                   {.type = EV_SYN}};
    Ready_Ask();
    ASSERT_EQ(write(panel, records, sizeof records), ssize_t(sizeof records));
    Touch_Poll(10);
    EXPECT_TRUE(Events().empty()) << "nothing had come when the pass asked";
    for (int i = 0; i < 500 && !Touch_IsDown(); i++, usleep(2000)) { // the line takes its time
        Ready_Ask();
        Touch_Poll(10);
    }
    auto events = Events();
    EXPECT_EQ(events.at(0).type, SDL_MOUSEBUTTONDOWN);
    EXPECT_EQ(events.at(0).button.x, 400);
    close(panel);

    // The panel dies under the descriptor: reading a directory is an error.
    const int dir = open("/dev/input", O_RDONLY | O_DIRECTORY);
    ASSERT_GE(dir, 0);
    dup2(dir, Touch_FD);
    close(dir);
    Touch_Poll(10);
    EXPECT_EQ(Touch_FD, -1);
    events = Events();
    ASSERT_EQ(events.size(), 1u) << "the finger that was on it leaves";
    EXPECT_EQ(events[0].type, SDL_MOUSEBUTTONUP);
    EXPECT_FALSE(Touch_IsDown());
    Touch_Poll(5000);
    ASSERT_GE(Touch_FD, 0);

    // It is the sandbox's own now: a pipe, with records as short on every processor.
    EXPECT_EQ(Touch_Resolution, 1023);
    const struct {
        uint32_t sec, usec;
        uint16_t type, code;
        int32_t value;
    } of_pipe[] = {{0, 0, EV_ABS, ABS_X, 512}, {0, 0, EV_KEY, BTN_TOUCH, 1}, {0, 0, EV_SYN, 0, 0}};
    static_assert(sizeof of_pipe == 48);
    const int writer = open(own, O_WRONLY | O_NONBLOCK);
    ASSERT_EQ(write(writer, of_pipe, sizeof of_pipe), ssize_t(sizeof of_pipe));
    Ready_Ask();
    Touch_Poll(10);
    events = Events();
    EXPECT_EQ(events.at(0).type, SDL_MOUSEBUTTONDOWN);
    EXPECT_EQ(events.at(0).button.x, 400);
    close(writer);
    Touch_Reset();
    close(Touch_FD);
    Touch_FD = -1;
}

TEST_F(Touch, CalibrationOutOfRangeFallsBackValueByValue)
{
    using Bytes = std::vector<unsigned char>;
    for (const auto& [bytes, points] :
         {std::pair{Bytes{0, 150, 0, 0, 2, 0x89, 1, 0xC1}, std::vector{150, 0, 750, 550}},
          {{0, 151, 0, 70, 2, 0xE4, 2, 0x1C}, {50, 70, 740, 540}}}) { // beyond 649, 449 and below
        ASSERT_EQ(I2cEepromService_WriteElem(EEPROM_TOUCH_CALIBRATION, 8, bytes.data()), 8);
        Touch_LoadCalibration();
        EXPECT_THAT((std::vector{SYS_TouchScreen_AX, SYS_TouchScreen_AY, SYS_TouchScreen_BX,
                                 SYS_TouchScreen_BY}),
                    ElementsAreArray(points));
        EXPECT_EQ(Touch_StoreCalibration(), 0);
        EXPECT_EQ(I2cEepromService_IsCrc32Valid(2), 1);
    }
}
