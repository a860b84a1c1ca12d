// The transition page of a key in its two forms: which type governs, and what can be adjusted then.
#include "key_page.h"

using testing::ElementsAre;

struct KeyTransitionPage : KeyPage {
};

constexpr uint32_t SAME = 0x12370100, INDEPENDENT = 0x12370200;

TEST_F(KeyTransitionPage, WhatCanBeAdjustedFollowsTheTypesThatGovern)
{
    static const struct {
        uint32_t page;
        const char* on;
        const char* off;
        std::set<int> disabled;
    } cases[] = {
        {SAME, "Cut", "Wipe", {33, 34, 36, 37, 51}}, // off has no say
        {SAME, "Mix", "Wipe", {33, 34, 36, 37}},
        {SAME, "Wipe", "Cut", {37}},
        {SAME, "DME Wipe", "Cut", {}},
        {INDEPENDENT, "Mix", "Cut", {22, 38, 51, 52, 53}},
        {INDEPENDENT, "Wipe", "Cut", {38, 53}},
        {INDEPENDENT, "Stinger", "DME Wipe", {22}},
    };
    for (const auto& c : cases) {
        Open(c.page);
        Tell("M/E-2@Key3@Video Process@Video Process#true");
        Tell(std::string("M/E-2@Key3@Transition@ON Transition Type#") + c.on);
        Tell(std::string("M/E-2@Key3@Transition@OFF Transition Type#") + c.off);
        EXPECT_EQ(Disabled(), c.disabled) << std::hex << c.page << c.on << c.off;
    }
}

TEST_F(KeyTransitionPage, PatternSelectLeadsToWhatTheTypeIsMadeOf)
{
    static const struct {
        uint32_t page;
        const char* key;
        const char* way;
        const char* type;
        int button;
        uint32_t target;
    } cases[] = {
        {0x11170100, "M/E-1@Key1", "ON", "Wipe", 36, 0x11170004},
        {0x82470100, "M/E-5@Key4", "ON", "DME Wipe", 36, 0x82470006},
        {0x14270200, "PGM/PST@DSK2", "ON", "Wipe", 22, 0x14270004},
        {0x14270200, "PGM/PST@DSK2", "OFF", "Wipe", 38, 0x14270005},
        {0x15370200, "M/E-1@Key7", "OFF", "DME Wipe", 38, 0x15370006},
    };
    for (const auto& c : cases) {
        Open(c.page);
        Tell(std::string(c.key) + "@Transition@" + c.way + " Transition Type#" + c.type);
        (void)Press(c.button);
        EXPECT_EQ(GL_CreatePage, c.target) << c.key << c.type;
        EXPECT_TRUE(SearchPageTable(c.target));
    }
}

TEST_F(KeyTransitionPage, ADirectionPressedAgainIsNormal)
{
    for (const uint32_t page : {SAME, INDEPENDENT}) {
        const int normal_reverse = page == SAME ? 33 : 51;
        Open(page);
        TellAll({"M/E-2@Key3@Transition@ON Transition Type#Wipe",
                 "M/E-2@Key3@Transition@Direction#Reverse"});
        EXPECT_EQ(BT_GetStatus(normal_reverse), BT_OFF);
        EXPECT_EQ(BT_GetStatus(normal_reverse + 1), BT_ON);
        EXPECT_THAT(Press(normal_reverse),
                    ElementsAre("put M/E-2@Key3@Transition@Direction#Normal/Reverse"));
        EXPECT_THAT(Press(normal_reverse + 1),
                    ElementsAre("put M/E-2@Key3@Transition@Direction#Normal"));
    }
}
