// panel_desk: the panel's setup pages on a panel of four rows; its M/E-1 runs two programs and has
// a flexi pad, as has P/P.
#pragma once
#include "setup_desk.h"

#define PANEL "Engineering Setup@Panel@"
#define PAD PANEL "Config@Program Button@Flexi Pad Module@Button Assign@"
#define TENKEY PANEL "Config@10 Key Region Assign@"
#define REGION TENKEY "Common@Region@Common@"
#define XPT PANEL "Xpt Assign@"
#define KEY2 PANEL "Prefs/Utility@Xpt Module Assign@"

// A page without the tabs at its left, which other groups come and go with.
constexpr Rect WITHOUT_LEFT_TABS = {97, 0, SCREEN_W - 1, SCREEN_H - 1};

struct PanelTest : SetupTest {
    void SetUp() override
    {
        SetupTest::SetUp();
        TellAll(PANEL "Config@M/E Assign@",
                {"1st Row#M/E-1", "2nd Row#M/E-2", "3rd Row#M/E-3", "4th Row#P/P"});
        TellAll(PANEL "Config@Compact Key Module Assign@KY Unit Config@",
                {"0#FP,KT,TR,--,--,--,--,--", "1#--,KT,--,--,--,--,--,--",
                 "2#--,--,--,--,--,--,--,--", "3#FP,--,--,--,--,--,--,--"});
        (void)Tell("Engineering Setup@Switcher@Config@M/E Config@M/E-1#Multi Program 2");
        (void)Tell(PANEL "Config@MP2 Main/Sub Assign@Main/Sub Assign@1st Row#Main/Sub");
    }
    void TearDown() override
    {
        (void)Tell("Engineering Setup@Switcher@Config@M/E Config@M/E-1#Standard");
        TellAll(PANEL "Config@M/E Assign@", {"1st Row#", "2nd Row#", "3rd Row#", "4th Row#"});
        TellAll(PANEL "Config@Compact Key Module Assign@KY Unit Config@",
                {"0#--,--,--,--,--,--,--,--", "1#--,--,--,--,--,--,--,--",
                 "3#--,--,--,--,--,--,--,--"});
        (void)Tell(PANEL "Config@MP2 Main/Sub Assign@Main/Sub Assign@1st Row#Main");
        SetupTest::TearDown();
    }
    static void TellSources() { TellAll(XPT "Source@List#", {"1,CAM1", "2,CAM2", "3,CG 1"}); }
};
