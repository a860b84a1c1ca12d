// The pages of engineering setup, told by a server and with edits in hand.
#include "setup_desk.h"

using SetupPictures = SetupTest;

TEST_F(SetupPictures, FormatWithDifferences)
{
    const std::string format = "Engineering Setup@System@Format@";
    (void)Open(0x73130000);
    TellAll(format,
            {"Video Format@PNL1#29.97/59.94,1080i", "Video Format2@SWR1#3,6,0",
             "Video Format2@SWR2#3,6,0", "Video Format@DME1#29.97/59.94,1080i", "Reference@PNL1#BB",
             "Reference@SWR1#BB", "Reference@SWR2#BB", "Reference@DME1#BB",
             "Reference@DME2#Tri Sync", "Switcher Aspect#SWR1,16:9,16:9,16:9,16:9,16:9,16:9,16:9",
             "DME Aspect#DME1,16:9,16:9,16:9,16:9"});
    SelectRow(1);
    (void)Choose(BTN_FORMAT_SIGNAL, 7);
    (void)Push(BTN_FORMAT_NARROW);
    Paint();
    EXPECT_TRUE(MatchesGolden("setup_format"));
}

TEST_F(SetupPictures, NetworkConfig)
{
    const std::string list = "Engineering Setup@System@Network Config@List#";
    (void)Open(0x73110000);
    TellAll(list, {"PNL001D001,PNL1,192.168.10.1,192.168.20.1,192.168.30.1",
                   "SWR001D001,SWR1,192.168.10.11,192.168.20.11,192.168.30.11",
                   "DME001D001,DME1,192.168.10.21,192.168.20.21,192.168.30.21"});
    SelectRow(1);
    (void)PushType(34, "12");
    Paint();
    EXPECT_TRUE(MatchesGolden("setup_network"));
}

TEST_F(SetupPictures, LockList)
{
    SetupMenu[SetupIndex_Find(0x73130000)].lock = 1;
    (void)Open(0x73170001);
    SelectRow(2);
    Paint();
    EXPECT_TRUE(MatchesGolden("setup_lock"));
}

// The knobs have stopped the clock.
TEST_F(SetupPictures, Maintenance)
{
    (void)Open(0x73170000);
    for (const auto& [box, value] : {std::pair{1, 2026}, {2, 11}, {3, 25}, {4, 10}, {5, 30}})
        SendMessage(LMSG_KNOBVAR, box, value, 0, 0);
    (void)Push(33);
    Paint();
    EXPECT_TRUE(MatchesGolden("setup_maintenance"));
}

TEST_F(SetupPictures, SwitcherBanksAndTheKeysInTheirOutputs)
{
    const std::string config = "Engineering Setup@Switcher@Config@";
    (void)Open(0x73310002);
    TellAll(config, {"M/E Output Assign@List#KILL", "M/E Output Assign@List#M/E-1,1,Main",
                     "M/E Output Assign@List#M/E-1,2,Sub", "PGM Config@List#M/E-1,1,0F",
                     "PGM Config@List#M/E-1,2,F0", "MP2 Re-Entry#true"});
    (void)PushIn(1, 17);
    Paint();
    EXPECT_TRUE(MatchesGolden("setup_switcher_pgm"));
}

TEST_F(SetupPictures, SwitcherCurve)
{
    const std::string curve = "Engineering Setup@Switcher@Transition@Transition Curve@Fader Curve#";
    (void)Open(0x73340003);
    TellAll(curve, {"Curve1,10,25,50,75,90", "Curve2,3,16,50,84,97", "Curve3,1,6,25,56,81",
                    "Curve4,19,44,75,94,99"});
    (void)PushIn(0, 33);
    (void)Push(36); // Slow Start
    Paint();
    EXPECT_TRUE(MatchesGolden("setup_switcher_curve"));
}

TEST_F(SetupPictures, SwitcherLinksWithTheChoiceOfAKey)
{
    (void)Open(0x73360001);
    TellAll("Engineering Setup@Switcher@Link@Key Link#",
            {"1,M/E-1 Key1,M/E-2 Key3,true", "2,P/P Key8,M/E-1 Key8,false", "3,None,None,false"});
    (void)PushIn(0, 34);
    Paint();
    EXPECT_TRUE(MatchesGolden("setup_switcher_link"));
    (void)Answer(3);
}
