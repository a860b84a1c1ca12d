// The Switcher pages of engineering setup: what they ask for, how rows depend on one another, what
// Execute sends.
#include "display.h"
#include "page_table/setup_switcher.h"
#include "setup_desk.h"

constexpr int YES = 1, CLEAR = 53, EXECUTE = 54;
const std::string SWITCHER = "Engineering Setup@Switcher@";

struct SwitcherSetup : SetupTest {
    // Open a page and tell it lines below one path.
    static void Start(uint32_t page, const std::string& path, const Lines& lines)
    {
        (void)Open(page);
        TellAll(SWITCHER + path, lines);
        SelectRow(0);
    }
    static Lines Execute()
    {
        Lines sent = Push(EXECUTE);
        return Pane_GetActiveID() ? Puts(Answer(YES)) : Puts(sent);
    }
    static void Turn(int knob, int counts)
    {
        (void)Tell("Panel@Common@Knob" + std::to_string(knob) + "#" + std::to_string(counts));
    }
};

TEST_F(SwitcherSetup, WhatIsFollowedAllTheTimeOutlivesThePage)
{
    for (const auto& [page, path] : {std::pair{0x73310000u, "Switcher@Config@M/E Config@"},
                                     {0x73310002u, "Switcher@Config@PGM Config@List"},
                                     {0x73350000u, "Switcher@Key/Wipe@FM Auto Store"},
                                     {0x73210015u, "Panel@Config@M/E Operation@"}}) {
        EXPECT_THAT(Open(page),
                    Contains(testing::StartsWith("read Engineering Setup@" + std::string(path))));
        EXPECT_THAT(Leave(), Not(Contains(HasSubstr(path))));
    }
}

TEST_F(SwitcherSetup, TheKeysOfAnOutputGoAsAMaskBesideItsSide)
{
    Start(0x73310002, "Config@M/E Output Assign@List#", {"KILL", "M/E-1,1,Main", "M/E-1,2,None"});
    TellAll(SWITCHER + "Config@PGM Config@List#", {"KILL", "M/E-1,1,0F", "M/E-1,2,00"});
    EXPECT_EQ(Row(0, 10), "M/E-1,1|Main|ON|ON|ON|ON||||");
    SelectRow(1);
    EXPECT_EQ(BT_GetStatus(17), BT_OFF);
    (void)Push(17); // Key1
    (void)Push(34); // Key8
    (void)Push(37); // Sub
    EXPECT_EQ(Row(1, 10), "M/E-1,2|Sub*|ON*|||||||ON*");
    EXPECT_EQ(BT_GetStatus(34), BT_ON);
    EXPECT_THAT(Execute(),
                ElementsAre("put " + SWITCHER + "Config@M/E Output Assign@List#M/E-1,2,Sub",
                            "put " + SWITCHER + "Config@PGM Config@List#M/E-1,2,81"));
    (void)Push(CLEAR);
    EXPECT_EQ(Row(1, 10), "M/E-1,2|None||||||||");
}

TEST_F(SwitcherSetup, AFunctionMovesFromOneUserRegionToAnother)
{
    Start(0x73310001, "Config@User1-8 Config@User",
          {"1#FM2,Aux1", "2#FM3", "3#FM6,FM7,FM8,FM9,FM10,FM11,FM12,FM13,FM14,FM15", "9#FM5", "x"});
    EXPECT_EQ(Row(0, 2), "FM1|None");
    EXPECT_THAT(Open(0x73310001), Contains("add " + SWITCHER + "Config@User1-8 Config@User8"));
    EXPECT_EQ(Row(1, 2), "FM2|User1");
    EXPECT_EQ(Row(2, 2), "FM3|User2");
    EXPECT_EQ(Row(14, 2), "FM15|User3");
    SelectRow(1);
    (void)Choose(33, 2); // User2
    EXPECT_EQ(Row(1, 2), "FM2|User2*");
    const std::string user = SWITCHER + "Config@User1-8 Config@User";
    EXPECT_THAT(Execute(), ElementsAre("put " + user + "1#Aux1", "put " + user + "2#FM2,FM3"));
    TellAll(user, {"1#Aux1", "2#FM2,FM3"});
    EXPECT_EQ(Row(1, 2), "FM2|User2");
    TellAll(user, {"2#FM3"}); // another panel frees it
    EXPECT_EQ(Row(1, 2), "FM2|None");
}

TEST_F(SwitcherSetup, ALogicalBankIsSwappedWithTheOneThatHadIt)
{
    Start(0x73310003, "Config@Logical M/E#", {"M/E-1,M/E-2,M/E-3,M/E-4,M/E-5,P/P,"});
    SelectRow(1);
    (void)Choose(33, 6); // P/P
    EXPECT_EQ(Row(1, 2), "M/E-2|P/P*");
    EXPECT_EQ(Row(5, 2), "P/P|M/E-2*");
    EXPECT_THAT(Execute(), ElementsAre("put " + SWITCHER +
                                       "Config@Logical M/E#M/E-1,P/P,M/E-3,M/E-4,M/E-5,M/E-2,"));
}

TEST_F(SwitcherSetup, APointOfACurveStaysBetweenItsNeighbours)
{
    Start(0x73340003, "Transition@Transition Curve@Fader Curve#", {"Curve1,10,25,50,75,90"});
    Pass(10);
    const auto straight = PixelsIn({440, 84, 690, 334});
    const Display display;
    (void)Push(BTN_CURVE_POINTS);
    Turn(2, 400); // far beyond the next
    EXPECT_EQ(Row(0, 6), "Curve1|10|25|75*|75|90");
    EXPECT_EQ(Shown("At 50%"), "75");
    Turn(2, -400);
    EXPECT_EQ(Shown("At 50%"), "25");
    Turn(2, 400);
    Turn(0, -400);
    Pass(10);
    EXPECT_NE(PixelsIn({440, 84, 690, 334}), straight) << "the plot follows";
    EXPECT_EQ(Display::Lacks(), "");
    EXPECT_THAT(Execute(),
                ElementsAre("put " + SWITCHER +
                            "Transition@Transition Curve@Fader Curve#Curve1,0,25,75,75,90"));
    (void)Push(35); // S Curve
    EXPECT_EQ(Row(0, 6), "Curve1|3*|16*|50|84*|97*");
    (void)Push(CLEAR);
    Pass(10);
    EXPECT_EQ(PixelsIn({440, 84, 690, 334}), straight);
}

TEST_F(SwitcherSetup, OnlyLinksThatMakeSenseAreApplied)
{
    // Two links as told; master and linked of the popup of the banks for the second, 0 leaves it.
    for (const auto& [first, second, master, linked, is_sent] :
         {std::tuple{"1,None,None,Off", "2,None,None,Off", 1, 0, false}, // half
          {"1,None,None,Off", "2,None,None,Off", 3, 3, false},           // itself
          {"1,M/E-1,M/E-2,All", "2,None,None,Off", 3, 2, false},         // two masters
          {"1,M/E-1,M/E-2,All", "2,None,None,Off", 1, 3, true},          // one master of two
          // deleted
          {"1,M/E-1,M/E-2,All", "2,M/E-3,M/E-4,Off", 7, 7, true}}) {
        SetupPage_Forget(SetupSheet_Table<engsetup_switcher_link_melink>);
        Start(0x73360002, "Link@M/E Link#", {first, second});
        SelectRow(1);
        (void)Choose(33, master);
        if (linked)
            (void)Choose(34, linked);
        const Lines sent = Puts(Choose(EXECUTE, YES)); // or the message that says why not
        EXPECT_EQ(sent.size(), is_sent ? 1u : 0u) << first << " " << master << linked;
        // What isn't sent is still in hand.
        EXPECT_TRUE(is_sent || BT_GetVisible(EXECUTE) != BT_DISABLED) << master << linked;
    }
    (void)Choose(35, 2);
    EXPECT_EQ(Cell(1, 1, 3), "Transition");
}

TEST_F(SwitcherSetup, ABusAndATableAreChosenOnTheirPagesForTheLinkInHand)
{
    SetupPage_Forget(SetupSheet_Table<engsetup_switcher_link_ibuslink>);
    Start(0x73360003, "Link@Internal Bus Link@Link#",
          {"1,None,None,1,false", "2,None,None,1,false"});
    (void)PushIn(1, 36); // Linked
    EXPECT_EQ(GL_CreatePage, 0x73360005u);
    Start(GL_CreatePage, "Link@Internal Bus Link@Master Bus List#", {"1,M/E-1 A", "2,M/E-1 B"});
    (void)PushIn(1, 33);
    EXPECT_EQ(GL_CreatePage, 0x73360003u);
    (void)Open(GL_CreatePage);
    EXPECT_EQ(Row(1, 5), "2|None|M/E-1 B*|1|Off");
    (void)Push(37); // Table
    Start(GL_CreatePage, "Link@Internal Bus Link@Table#",
          {"1,1,1,1,1,1,1,1,1", "2,2,2,2,2,2,2,2,2"});
    (void)LS_SetSplitSel(1, 3);
    (void)PushIn(1, 33);
    Turn(0, 4 * 9);
    EXPECT_EQ(Row(1, 9), "2|2|2|11*|2|2|2|2|2");
    EXPECT_THAT(Execute(),
                ElementsAre("put " + SWITCHER + "Link@Internal Bus Link@Table#2,2,2,11,2,2,2,2,2"));
    (void)Push(34); // Straight
    EXPECT_EQ(Row(1, 9), "2|2|2|2|2|2|2|2|2");
    (void)Push(35);
    (void)Open(GL_CreatePage);
    EXPECT_EQ(Row(1, 5), "2|None|M/E-1 B*|3*|Off");
    (void)Push(BTN_LINK_DELETE);
    EXPECT_EQ(Row(1, 5), "2|None|None|3*|Off");
    EXPECT_EQ(BT_GetVisible(BTN_LINK_DELETE), BT_DISABLED) << "there is nothing to delete";
}
