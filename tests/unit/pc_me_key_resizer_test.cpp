// The pages of a key's resizer: what is grey, the crop of two edges, the axes of the rotation.
#include "key_page.h"
#include "me_config.h"

using testing::ElementsAre;

struct KeyResizerPages : KeyPage {
    void TearDown() override
    {
        me_config_reset();
        KeyPage::TearDown();
    }
};

TEST_F(KeyResizerPages, WhatIsGreyFollowsSettingsOfSeveralPages)
{
    struct Case {
        uint32_t page;
        std::vector<std::string> lines; // behind "M/E-2@Key3@Resizer@"
        std::set<int> disabled;
    };
    const std::string border = "Border/Crop@", effect = "Enhanced Effect@";
    const Case cases[] = {
        {0x12350000, {"Resizer#false"}, {18, 20, 21, 33, 34, 35, 49, 50, 51, 52, 53}},
        {0x12350000, {"Resizer#true", "Combine#true"}, {51, 53}},
        {0x12350000, {"Resizer#false", "Resizer#true", "Combine#false"}, {}},
        {0x12350001, {"Resizer#true", "Process@Filter#false"}, {34}},
        {0x12350002, {"Resizer#true", border + "CG Border#true"}, {17, 18, 20, 21, 22, 36, 37}},
        {0x12350002,
         {border + "Border#false", border + "Crop#false"},
         {18, 20, 21, 22, 34, 36, 37}},
        {0x12350002, {border + "Border#true", border + "Border Fill#Flat"}, {22, 37}},
        {0x12350002, {border + "Border#true", border + "Border Fill#Mix"}, {}},
        {0x12350003, {effect + "Mosaic#true", effect + "Defocus#false"}, {18, 19}},
        {0x12350003, {effect + "Defocus#true", effect + "Mosaic#false"}, {17}},
        {0x12350003, {"Combine#true"}, {17, 18, 19, 33, 34, 35, 36}},
        {0x12350004, {"Mask@Mask#false"}, {18}},
        {0x12350004, {"Resizer#false", "Mask@Mask#true"}, {17, 18}},
        {0x12350005, {"Resizer#true"}, {19, 20, 22}}, // the key doesn't turn
        {0x12350005, {"Combine#true"}, {17, 19, 20, 22}},
    };
    for (const Case& c : cases) {
        Open(c.page);
        for (const std::string& line : c.lines)
            Tell("M/E-2@Key3@Resizer@" + line);
        EXPECT_EQ(Disabled(), c.disabled) << std::hex << c.page << " " << c.lines.back();
    }
}

TEST_F(KeyResizerPages, WithoutTheLargeFrameMemoryThereIsNone)
{
    SYS_FmemV6 = 0;
    for (uint32_t page = 0x11150000; page <= 0x11150005; page++) {
        Open(page);
        Tell("M/E-1@Key1@Resizer@Resizer#true");
        for (const BT_MEM* b = bt_first(); b->id >= 1; b++)
            EXPECT_EQ(b->visible, BT_DISABLED) << std::hex << page << " " << b->id;
        EXPECT_FALSE(Held(TakeQueuedCommands()).contains("M/E-1@Key1@Resizer@Combine"));
    }
}

TEST_F(KeyResizerPages, ASubPageFollowsWhatNoneOfItsButtonsHas)
{
    Open(0x11110000);
    (void)TakeQueuedCommands();
    Open(0x85250003);
    const auto held = Held(TakeQueuedCommands());
    EXPECT_TRUE(held.contains("M/E-4@Key6@Resizer@Combine"));
    Open(0x85250001);
    EXPECT_THAT(TakeQueuedCommands(), testing::Contains("remove M/E-4@Key6@Resizer@Combine"));
}

TEST_F(KeyResizerPages, TheBorderOfAGeneratorIsAskedForAfterwards)
{
    Open(0x13150002);
    Tell("M/E-3@Key1@Resizer@Border/Crop@CG Border#true");
    EXPECT_THAT(Press(19), ElementsAre("put M/E-3@Key1@Resizer@Border/Crop@CG Border#false",
                                       "read M/E-3@Key1@Resizer@Border/Crop@CG Border"));
}

TEST_F(KeyResizerPages, TwoEdgesAtOnceKeepTheirSense)
{
    static const struct {
        uint32_t page;
        const char* key;
        int slot;
        const char* box;
        int x; // of the drag
        const char* value;
    } cases[] = {
        {0x11150002, "M/E-1@Key1", 1, "H", 714, "-100.00"},
        {0x11150002, "M/E-1@Key1", 1, "H", 799, "0.00"},
        {0x16450002, "M/E-2@Key8", 3, "All", 734, "-75.00"},
        {0x16450002, "M/E-2@Key8", 3, "All", 799, "0.00"},
        {0x82150002, "M/E-5@Key1", 2, "V", 734, "75.00"},
        {0x82150002, "M/E-5@Key1", 2, "V", 799, "0.00"},
    };
    for (const auto& c : cases) {
        Open(c.page);
        const std::string path = std::string(c.key) + "@Resizer@Border/Crop@Crop";
        Tell(path + "#true");
        (void)Press(33);
        if (NB_GetLayer() == 0)
            NextLayer();
        const std::string box = path + "@" + c.box;
        EXPECT_THAT(Drag(c.slot, c.x), ElementsAre("put " + box + "#" + c.value, "read " + box));
    }
}

TEST_F(KeyResizerPages, TheButtonsOfTheRotationShareOneSumOfAxes)
{
    static const struct {
        const char* now;
        int button;
        const char* put;
    } cases[] = {
        {"0", 17, "3"}, {"1", 17, "0"}, {"true", 20, "3"}, {"3", 19, "2"}, {"2", 20, "0"},
    };
    for (const auto& c : cases) {
        Open(0x14250005);
        Tell("PGM/PST@DSK2@Resizer@Resizer#true");
        Tell(std::string("PGM/PST@DSK2@Processed Key@Rotation#") + c.now);
        const bool was_on = BT_GetStatus(c.button) == BT_ON;
        auto lines = Press(c.button);
        if (was_on) { // the first press only takes the knobs
            EXPECT_THAT(lines, testing::Not(testing::Contains(testing::StartsWith("put"))));
            lines = Press(c.button);
        }
        EXPECT_THAT(lines, testing::Contains(
                               std::string("put PGM/PST@DSK2@Processed Key@Rotation#") + c.put))
            << c.now;
    }
}

TEST_F(KeyResizerPages, TheRotationComesBackWithTheAxesItHad)
{
    Open(0x11150005);
    Tell("M/E-1@Key1@Processed Key@Rotation#2");
    Tell("M/E-1@Key2@Processed Key@Rotation#1"); // of another key
    EXPECT_EQ(BT_GetStatus(19), BT_OFF);
    EXPECT_EQ(BT_GetStatus(20), BT_ON);
    Tell("M/E-1@Key1@Processed Key@Rotation#0");
    EXPECT_EQ(BT_GetStatus(20), BT_OFF);
    EXPECT_TRUE(Disabled().contains(20));
    EXPECT_THAT(Press(17), testing::Contains("put M/E-1@Key1@Processed Key@Rotation#2"));
}

// It is followed for the life of the process: to remove it here would end that.
TEST_F(KeyResizerPages, TheRotationOfAKeyIsNotGivenBack)
{
    Open(0x11150005);
    Open(0x11110000);
    EXPECT_THAT(TakeQueuedCommands(),
                testing::Not(testing::Contains("remove M/E-1@Key1@Processed Key@Rotation")));
}

TEST_F(KeyResizerPages, AnAxisThatDoesNotTurnHasNoRange)
{
    Tell("M/E-1@Key1@Processed Key@Rotation#1");
    Open(0x11150005);
    (void)Press(19);
    const std::string path = "M/E-1@Key1@Resizer@Rotation@";
    Tell(path + "X#0");
    Tell(path + "Y#0");
    EXPECT_THAT(Drag(1, 794), testing::Contains("put " + path + "X#360.00"));
    EXPECT_THAT(Drag(2, 794), testing::Contains("put " + path + "Y#0.00"));
    Tell("M/E-1@Key1@Processed Key@Rotation#3");
    EXPECT_THAT(Drag(2, 794), testing::Contains("put " + path + "Y#360.00"));
}
