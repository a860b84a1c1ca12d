// The transition page of a key in its two forms: which type governs, and what can be adjusted then.
#include "pane.h"
#include "table_page.h"

using KeyTransitionPage = TablePage;

constexpr uint32_t SAME = 0x12370100, INDEPENDENT = 0x12370200;

TEST_F(KeyTransitionPage, WhatCanBeAdjustedFollowsTheTypesThatGovern)
{
    for (const auto& [page, on, off, disabled] :
         {std::tuple{SAME, "Cut", "Wipe", std::set<int>{33, 34, 35, 36, 37, 51}}, // off has no say
          {SAME, "Mix", "Wipe", {33, 34, 35, 36, 37}},
          {SAME, "Wipe", "Cut", {37}},
          {SAME, "DME Wipe", "Cut", {}},
          {INDEPENDENT, "Mix", "Cut", {22, 38, 53, 54}},
          {INDEPENDENT, "Wipe", "Cut", {38, 53}},
          {INDEPENDENT, "Stinger", "DME Wipe", {22}}}) {
        Open(page);
        TellAll("M/E-2@Key3@", {"Video Process@Video Process#true",
                                std::string("Transition@ON Transition Type#") + on,
                                std::string("Transition@OFF Transition Type#") + off});
        EXPECT_EQ(Disabled(), disabled) << std::hex << page << on << off;
    }
}

TEST_F(KeyTransitionPage, PatternSelectLeadsToWhatTheTypeIsMadeOf)
{
    for (const auto& [page, type, button, target] :
         {std::tuple{0x11170100u, "M/E-1@Key1@Transition@ON Transition Type#Wipe", 36, 0x11170004u},
          {0x82470100, "M/E-5@Key4@Transition@ON Transition Type#DME Wipe", 36, 0x82470006},
          {0x14270200, "PGM/PST@DSK2@Transition@ON Transition Type#Wipe", 22, 0x14270004},
          {0x14270200, "PGM/PST@DSK2@Transition@OFF Transition Type#Wipe", 38, 0x14270005},
          {0x15370200, "M/E-1@Key7@Transition@OFF Transition Type#DME Wipe", 38, 0x15370006}}) {
        Open(page);
        Tell(type);
        EXPECT_EQ(PageBy(button), target) << type;
    }
}

TEST_F(KeyTransitionPage, TheDirectionIsOneOfThree)
{
    const std::string way = "M/E-2@Key3@Transition@";
    const auto lit = [] {
        std::string on;
        for (int i = 0; i < 3; i++)
            on += BT_GetStatus(33 + i) == BT_ON ? "nrb"[i] : '.';
        return on;
    };
    Open(SAME);
    TellAll(way, {"ON Transition Type#Wipe", "Direction#Normal"});
    EXPECT_EQ(lit(), "n..");
    Tell(way + "Direction#Normal/Reverse");
    EXPECT_EQ(lit(), "..b");
    EXPECT_THAT(Press(34), ElementsAre("put " + way + "Direction#Reverse"));

    // The other form has one key for it, which says what holds and opens the choice.
    Open(INDEPENDENT);
    TellAll(way, {"ON Transition Type#Wipe", "Direction#Normal/Reverse"});
    EXPECT_STREQ(bt_find(54)->caption, "Norm/Rev");
    Tell(way + "Direction#null");
    EXPECT_STREQ(bt_find(54)->caption, "Direction");
    (void)Press(54);
    const int pane = Pane_GetActiveID();
    ASSERT_NE(pane, 0);
    SendMessage(LMSG_PANEQUIT, MsgArg(pane + 1), 2, 0, 0);
    EXPECT_THAT(TakeQueuedCommands(), IsEmpty()); // of another pane
    SendMessage(LMSG_PANEQUIT, MsgArg(pane), 2, 0, 0);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("put " + way + "Direction#Reverse"));
}
