// The key type page as the table opens it: its own lines on the wire, its buttons after tallies.
#include "a_bt_page.h"
#include "a_st.h"
#include "bus.h"
#include "device.h"
#include "loop.h"
#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;

struct KeyTypePage : testing::Test {
    void SetUp() override
    {
        Harness_Reset();
        SYS_4KMode = 0;
        SYS_Format_Size = 0;
        GL_FillSourceAssignMode = 0;
    }
    void TearDown() override
    {
        SYS_4KMode = 0;
        GL_CreatePage = 0;
        Page_Reset();
        (void)TakeQueuedCommands();
    }
    static void Open(uint32_t id)
    {
        ASSERT_EQ(CreatePage(id), 0);
        GL_CreatePage = 0;
    }
    static void Tell(const char* line) { SendDummyTally(line); }
    static void Press(int id)
    {
        const BT_MEM* b = bt_find(id);
        ASSERT_TRUE(b) << id;
        (void)TakeQueuedCommands();
        SendMessage(MSG_PRESS, b->x1 + 5, b->y1 + 5, 1, 0);
    }
};

TEST_F(KeyTypePage, WhatItAddsItRemovesAgain)
{
    Open(0x81310000);
    const auto opened = TakeQueuedCommands();
    Open(0x81320000);
    const auto left = TakeQueuedCommands();
    for (const char* type :
         {"Luminance", "Linear", "Chroma", "Color Vector", "Wipe Pattern", "Key Wipe Pattern"})
        for (const char* setting : {"Clean Mode@", "Key Position@"}) {
            const std::string path = std::string("M/E-4@Key3@Type@") + setting + type;
            EXPECT_THAT(opened, Contains("add " + path));
            EXPECT_THAT(left, Contains("remove " + path));
        }
}

TEST_F(KeyTypePage, CleanModeIsThatOfTheChosenType)
{
    Open(0x11110000);
    Tell("M/E-1@Key1@Type@Key Type#Linear");
    Tell("M/E-1@Key1@Type@Clean Mode@Chroma#true");
    Tell("M/E-1@Key1@Type@Clean Mode@Linear#false");
    Tell("M/E-1@Key1@Type@Key Position@Linear#false"); // the first tallies are complete
    EXPECT_EQ(BT_GetStatus(34), BT_OFF);
    Tell("M/E-1@Key1@Type@Key Type#Chroma");
    EXPECT_EQ(BT_GetStatus(34), BT_ON);
    Press(34);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("put M/E-1@Key1@Type@Clean Mode@Chroma#false"));
}

TEST_F(KeyTypePage, PositionTakesTheKnobsOfItsType)
{
    Open(0x11110000);
    Tell("M/E-1@Key1@Type@Key Type#Linear");
    Tell("M/E-1@Key1@Type@Key Position@Linear#false");
    Press(35);
    const auto lines = TakeQueuedCommands();
    EXPECT_THAT(lines, Contains("put M/E-1@Key1@Type@Key Position@Linear#true"));
    EXPECT_THAT(lines, Contains("add M/E-1@Key1@Type@Key Position@Left@Linear"));
}

TEST_F(KeyTypePage, PatternSelectLeadsToWhatTheTypeIsMadeOf)
{
    static const struct {
        uint32_t page;
        const char* type;
        uint32_t target;
    } cases[] = {
        {0x12310000, "M/E-2@Key3@Type@Key Type#Luminance", 0x12310003},
        {0x12310000, "M/E-2@Key3@Type@Key Type#Wipe Pattern", 0x12510000},
        {0x85210000, "M/E-4@Key6@Type@Key Type#Wipe Pattern", 0x81510000},
        {0x12310000, "M/E-2@Key3@Type@Key Type#Key Wipe Pattern", 0x12370002},
    };
    for (const auto& c : cases) {
        Open(0x00110000);
        Open(c.page);
        Tell(c.type);
        Press(38);
        EXPECT_EQ(GL_CreatePage, c.target) << c.type;
    }
}

TEST_F(KeyTypePage, In4KKey3LosesEightButtonsAndKey2None)
{
    SYS_4KMode = 1;
    for (const uint32_t page : {0x11210000u, 0x11310000u}) {
        Open(page);
        int hidden = 0;
        for (int id : {17, 18, 19, 20, 21, 22, 33, 34, 35, 36, 37, 38, 49, 50, 51, 52, 53, 54})
            hidden += BT_GetVisible(id) == BT_CUTOFF;
        EXPECT_EQ(hidden, page == 0x11310000 ? 8 : 0);
    }
}
