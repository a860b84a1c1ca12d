// The shapes of the panel's setup pages.
#include "panel_desk.h"

using PanelPictures = PanelTest;

TEST_F(PanelPictures, ButtonsOfAModuleInABank)
{
    (void)Open(0x73210034);
    (void)Touch(112 + 70 + 20, 98 + 20); // M/E-1, whose sub side is chosen
    (void)Push(BTN_ASSIGN_SUB);
    TellAll(PAD "", {"01@Operation@Common@10#1,10,Key", "02@Operation@Common@10#5,10,Master Effect",
                     "03@Operation@Common@10#0,10,NO ASSIGN", "09@Operation@Common@10#22,10,Bank11",
                     "10@Operation@Common@10#1,10,Key"});
    (void)Touch(112 + 20, 212 + 46 * 2 + 20);
    SelectRow(6);
    Paint();
    EXPECT_TRUE(MatchesGolden("panel_buttons", WITHOUT_LEFT_TABS));
}

TEST_F(PanelPictures, RegionsOnTheTenKeys)
{
    (void)Open(0x73210001);
    TellAll(TENKEY "", {"Common@Region@Common@1#1,0,M/E-1,M/E-1 Sub,DME3,",
                        "Common@Region@Common@2#2,0,DME3,,,", "Common@Region@Common@4#4,0,P/P,,,",
                        "Select@1#true", "Select@4#true"});
    SelectRow(2);
    Paint();
    EXPECT_TRUE(MatchesGolden("panel_tenkeys", WITHOUT_LEFT_TABS));
}

TEST_F(PanelPictures, ATableOfCrosspoints)
{
    TellSources();
    (void)Open(0x73220001);
    TellAll(XPT, {"Assign#1,1,2", "Assign#2,3,3", "Assign#3,0,1", "Inhibit#2,true",
                  "Side Flags Button Assign#3,true"});
    (void)PushIn(1, BTN_XPT_KEY);
    Paint();
    EXPECT_TRUE(MatchesGolden("panel_crosspoints", WITHOUT_LEFT_TABS));
}

TEST_F(PanelPictures, ActionsOfAKey2Bus)
{
    (void)Tell("Macro@Register@List#2,S,DEMO,U,0,0");
    (void)Open(0x73240002);
    TellAll(KEY2, {"Action Set@1@1#2,2", "Action Set@1@2#2,1003", "Action Set@1@3#1,1",
                   "Action Set@1@4#0,0"});
    (void)Push(BTN_ACTION_MACRO);
    SelectRow(1);
    Paint();
    EXPECT_TRUE(MatchesGolden("panel_actions", WITHOUT_LEFT_TABS));
}

TEST_F(PanelPictures, NamesAndColoursInHand)
{
    TellSources();
    (void)Open(0x73220004);
    TellAll(XPT, {"Source@List#1,CAM1", "Source@List#2,CAM2", "Source@List#3,CG 1",
                  "Source@Color#1,0", "Source@Color#2,3", "Source@Color#3,0"});
    SelectRow(2);
    (void)Choose(34, 6);
    Paint();
    EXPECT_TRUE(MatchesGolden("panel_namecolor", WITHOUT_LEFT_TABS));
}

TEST_F(PanelPictures, TheTouchPanelBetweenItsCrosses)
{
    (void)Open(0x73270001);
    Paint();
    EXPECT_TRUE(MatchesGolden("panel_calibration"));
    (void)Touch(60, 45);
    (void)Touch(745, 555);
    (void)Touch(404, 297);
    Paint();
    EXPECT_TRUE(MatchesGolden("panel_calibration_done"));
}
