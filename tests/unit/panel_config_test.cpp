// The panel's links, modules, device interfaces, operation and maintenance: what goes on
// the wire; the calibration of the touch panel.
#include "colours.h"
#include "i2c.h"
#include "panel_desk.h"
#include "touch.h"
#include <linux/input.h>

constexpr int YES = 1, NO = 2, EXECUTE = 54;
using PanelConfig = PanelTest;

TEST_F(PanelConfig, AnExternalLinkTakesItsBusesFromTheirLists)
{
    (void)Open(0x73210004);
    TellAll(PANEL "Config@External Bus Link@Link#", {"1,None,None,1,false", "2,None,None,3,false"});
    SelectRow(1);
    for (const auto& [key, list] :
         {std::pair{35, "Master Bus List"}, {36, "S-BUS Dst Name List"}}) {
        (void)Push(key);
        EXPECT_EQ(GL_CreatePage, 0x73210005u);
        (void)CreatePage(GL_CreatePage);
        TellAll(std::string(PANEL "Config@External Bus Link@") + list + "#", {"1,ONE", "2,TWO"});
        (void)PushIn(key - 35, 33);
        EXPECT_EQ(GL_CreatePage, 0x73210004u);
        (void)CreatePage(GL_CreatePage);
    }
    EXPECT_EQ(Row(1, 5), "2|ONE*|TWO*|3|Off");
    EXPECT_THAT(Push(EXECUTE),
                Contains("put " PANEL "Config@External Bus Link@Link#2,ONE,TWO,3,false"));

    (void)Open(0x73210007);
    TellAll(PANEL "Config@External Bus Link@Table#", {"1,1,1,1,1,1,1,1,1", "2,9,2,2,2,2,2,2,2"});
    (void)Push(34); // straight
    EXPECT_THAT(Push(EXECUTE),
                Contains("put " PANEL "Config@External Bus Link@Table#2,2,2,2,2,2,2,2,2"));
}

TEST_F(PanelConfig, RowsOfModulesAreNamedAndGoOutWhole)
{
    (void)Open(0x73210011);
    TellAll(PANEL "Config@Compact Key Module Assign@KY Unit Config@",
            {"0#FP,KT,TR,--,--,--,--,--", "3#FP,--,--,--,--,--,--,--"});
    EXPECT_EQ(Row(3, 4), "3|4th Row|FP|--");
    (void)PushIn(3, 34); // the second slot
    (void)Answer(2);
    EXPECT_EQ(Row(3, 4), "3|4th Row|FP|KT*");
    EXPECT_THAT(Choose(EXECUTE, YES),
                Contains("put " PANEL "Config@Compact Key Module Assign@KY Unit "
                         "Config@3#FP,KT,--,--,--,--,--,--"));
}

TEST_F(PanelConfig, ARegionHasOnePlaceInThePriority)
{
    (void)Open(0x73260011);
    TellAll(PANEL "Operation@Region Priority@", {"1#M/E-1", "2#M/E-2", "3#M/E-3"});
    SelectRow(2);
    (void)Choose(33, 1); // M/E-1, which is the first
    EXPECT_THAT(Push(EXECUTE),
                testing::UnorderedElementsAre("put " PANEL "Operation@Region Priority@1#M/E-3",
                                              "put " PANEL "Operation@Region Priority@3#M/E-1"));
}

TEST_F(PanelConfig, APadOfABusIsSetAndAllItsPagesAreDefaultedWhenThatIsMeant)
{
    const std::string pad = PANEL "Operation@Xpt Module Operation@Flexi Pad Button@Assign@";
    (void)Open(0x73260014);
    TellAll(pad, {"M/E-1@2@1#Key", "M/E-1@2@3#Master Effect"});
    EXPECT_EQ(Row(5, 4), "M/E-1@2|Key||M Effect");
    SelectRow(5);
    (void)Choose(35, 1);
    EXPECT_THAT(Push(EXECUTE), ElementsAre("put " + pad + "M/E-1@2@3#NO ASSIGN"));
    EXPECT_THAT(Choose(51, NO), IsEmpty());
    EXPECT_THAT(Choose(51, YES), ElementsAre("put " + pad + "M/E-1@Default@1#true"));
}

// --- The touch panel ---

constexpr uint32_t CALIBRATION = 0x73270001, MAINTENANCE = 0x73270000;

struct Calibration : PanelTest {
    void SetUp() override
    {
        PanelTest::SetUp();
        Touch_Reset();
        Touch_Resolution = 1023;
        Touch_SetCalibration({50, 50, 750, 550});
        Touch_FD = 0; // a panel is there
        const uint8_t none[8] = {};
        (void)I2cEepromService_WriteElem(EEPROM_TOUCH_CALIBRATION, sizeof none, none);
        (void)Open(CALIBRATION);
    }
    void TearDown() override
    {
        Touch_FD = -1;
        PanelTest::TearDown();
        Touch_SetCalibration({50, 50, 750, 550});
    }
    // A finger at a point of the panel itself, on 800 x 600, and what the loop makes of it.
    static void Finger(int x, int y)
    {
        SDL_Event e;
        while (SDL_PeepEvents(&e, 1, SDL_GETEVENT, SDL_ALLEVENTS) == 1) {
        }
        Touch_Record(EV_ABS, ABS_X, (x * 1023 + 799) / 800);
        Touch_Record(EV_ABS, ABS_Y, (y * 1023 + 599) / 600);
        Touch_Record(EV_KEY, BTN_TOUCH, 1);
        Touch_Record(EV_SYN, 0, 0);
        Touch_Record(EV_KEY, BTN_TOUCH, 0);
        Touch_Record(EV_SYN, 0, 0);
        while (SDL_PeepEvents(&e, 1, SDL_GETEVENT, SDL_ALLEVENTS) == 1)
            if (e.type == SDL_MOUSEBUTTONDOWN)
                SendMessage(MSG_PRESS, e.button.x, e.button.y, 1, 0);
        Pass(300);
    }
    static std::vector<int> Stored()
    {
        uint8_t e[8] = {};
        EXPECT_EQ(I2cEepromService_ReadElem(EEPROM_TOUCH_CALIBRATION, sizeof e, e), 8);
        return {e[0] << 8 | e[1], e[2] << 8 | e[3], e[4] << 8 | e[5], e[6] << 8 | e[7]};
    }
    static std::vector<int> Counting()
    {
        const TouchPoints p = Touch_GetCalibration();
        return {p.ax, p.ay, p.bx, p.by};
    }
};

TEST_F(Calibration, TwoCrossesAndACheckAreStored)
{
    EXPECT_THAT(Usable({BTN_CALIBRATION_OK, BTN_CALIBRATION_CANCEL}),
                ElementsAre(BTN_CALIBRATION_CANCEL));
    // The last pixels of the four arms of each cross that are lit, and those behind them.
    const auto arms = [] {
        std::string lit;
        for (const int at : {0, 1, 2})
            for (const int reach : {20, 21}) {
                const int x = 50 + 350 * at, y = 50 + 250 * at;
                lit +=
                    char('0' + (PixelAt(x, y + reach) == WHITE) + (PixelAt(x, y - reach) == WHITE) +
                         (PixelAt(x + reach, y) == WHITE) + (PixelAt(x - reach, y) == WHITE));
            }
        return lit;
    };
    Pass(10);
    EXPECT_EQ(arms(), "400000");
    Finger(70, 60);
    EXPECT_EQ(arms(), "000040");
    Finger(730, 540);
    EXPECT_THAT(Counting(), ElementsAre(70, 60, 730, 540));
    EXPECT_EQ(arms(), "004000");
    (void)Press(BTN_CALIBRATION_OK); // its place is no touch beside the cross
    Finger(400, 300);
    EXPECT_EQ(PixelAt(400, 320), 0x00FFFFu) << "where the finger was";
    (void)Push(BTN_CALIBRATION_OK);
    EXPECT_EQ(GL_CreatePage, MAINTENANCE);
    EXPECT_THAT(Stored(), ElementsAre(70, 60, 730, 540));
    EXPECT_EQ(I2cEepromService_IsCrc32Valid(2), 1);
    (void)Leave();
    EXPECT_THAT(Counting(), ElementsAre(70, 60, 730, 540));
    Touch_LoadCalibration(); // the next start
    EXPECT_THAT(Counting(), ElementsAre(70, 60, 730, 540));
}

TEST_F(Calibration, ATouchBesideACrossIsNotTaken)
{
    Finger(300, 300);
    EXPECT_THAT(Counting(), ElementsAre(50, 50, 750, 550));
    Finger(70, 60);
    Finger(70, 60); // still the first one
    Finger(730, 540);
    EXPECT_THAT(Counting(), ElementsAre(70, 60, 730, 540));
    Finger(200, 300); // the check fails: everything as before, from the first cross on
    EXPECT_THAT(Counting(), ElementsAre(50, 50, 750, 550));
    EXPECT_THAT(Usable({BTN_CALIBRATION_OK}), IsEmpty());
    SetupMenu[SetupIndex_Find(CALIBRATION)].lock = 1;
    for (const auto& [x, y, lock, is_done] : {std::tuple{416, 300, 0, false},
                                              {400, 316, 0, false},
                                              {415, 285, 1, false},
                                              {415, 285, 0, true}}) {
        Finger(60, 55);
        Finger(745, 545);
        EXPECT_THAT(Counting(), ElementsAre(60, 55, 745, 545));
        SetupLock.lock = lock;
        (void)Touch(x, y);
        SetupLock.lock = 0;
        EXPECT_EQ(Usable({BTN_CALIBRATION_OK}).size(), is_done) << x << "," << y;
        if (lock)
            (void)Touch(0, 0); // beside: again from the first on
    }
}

TEST_F(Calibration, WhatIsNotKeptIsTakenBack)
{
    for (const bool by_time : {false, true}) {
        GL_CreatePage = 0;
        Finger(70, 60);
        Finger(730, 540);
        Finger(400, 300);
        if (by_time) {
            for (const int seconds : {59, 60}) { // a touch begins the minute anew
                (void)Touch(0, 0);
                for (int i = 0; i < seconds; i++)
                    Pass(1000);
                EXPECT_EQ(GL_CreatePage, 0u);
            }
            Pass(1);
        } else
            (void)Push(BTN_CALIBRATION_CANCEL);
        EXPECT_EQ(GL_CreatePage, MAINTENANCE) << by_time;
        (void)Open(CALIBRATION);
        EXPECT_THAT(Counting(), ElementsAre(50, 50, 750, 550)) << by_time;
        EXPECT_THAT(Stored(), ElementsAre(0, 0, 0, 0)) << by_time;
    }
}
