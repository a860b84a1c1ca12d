// The pages of a processed key: whose channels there are, the monitor, the crop of several edges.
#include "key_page.h"

using testing::Contains;
using testing::ElementsAre;

#define STATUS "M/E-1@Key1@Processed Key@DME Status#"

struct KeyProcessPages : KeyPage {
};

TEST_F(KeyProcessPages, AChannelOfAnotherKeyIsTakenOnlyByOverride)
{
    Open(0x81360000);
    Tell(STATUS "M/E-4@Key3,Free,M/E-2@Key1,PGM/PST@DSK4,Free,M/E-1@DME Wipe,None,None");
    EXPECT_EQ(Disabled(), (std::set<int>{35, 36, 50, 51, 52}));
    EXPECT_EQ(BT_GetStatus(35), BT_THIRD);
    EXPECT_STREQ(bt_find(36)->caption, "DME4\nPGM/PST\nDSK4");
    EXPECT_STREQ(bt_find(34)->caption, "DME2");

    EXPECT_THAT(Press(37), ElementsAre()); // Override
    EXPECT_EQ(Disabled(), (std::set<int>{51, 52}));
    EXPECT_THAT(Press(35), ElementsAre("put M/E-4@Key3@Processed Key@Override@DME3#true"));
    EXPECT_EQ(Disabled(), (std::set<int>{35, 36, 50, 51, 52})) << "it is used up";
    EXPECT_EQ(BT_GetStatus(37), BT_OFF);
    EXPECT_THAT(Press(34), ElementsAre("put M/E-4@Key3@Processed Key@DME Select@DME2#true"));
}

TEST_F(KeyProcessPages, AChannelIsOnWhenTheServerSaysSo)
{
    Open(0x16260000);
    Tell(STATUS "Free,Free,Free,Free,Free,Free,Free,Free");
    (void)Press(49);
    EXPECT_EQ(BT_GetStatus(49), BT_OFF);
    Tell("M/E-2@Key5@Processed Key@DME Select@DME5#true"); // of another key
    EXPECT_EQ(BT_GetStatus(49), BT_OFF);
    Tell("M/E-2@Key6@Processed Key@DME Select@DME5#true");
    EXPECT_EQ(BT_GetStatus(49), BT_ON);
    EXPECT_THAT(Press(49), ElementsAre("put M/E-2@Key6@Processed Key@DME Select@DME5#false"));
}

TEST_F(KeyProcessPages, AStatusThatIsNotOfEightChannelsIsIgnored)
{
    Open(0x11160000);
    Tell(STATUS "None,M/E-2@Key1,Free,Free,Free,Free,Free,Free");
    for (const char* rubbish : {"", "Free", "Free,Free,Free,Free,Free,Free,Free", ",,,"})
        Tell(std::string(STATUS) + rubbish);
    EXPECT_EQ(Disabled(), (std::set<int>{33, 34}));
}

TEST_F(KeyProcessPages, OneMonitorServesAllBanks)
{
    for (const uint32_t page : {0x11160001u, 0x14460001u}) {
        Open(page);
        Tell(STATUS "M/E-2@Key1,Free,Free,Free,Free,Free,Free,None");
        EXPECT_EQ(Disabled(), (std::set<int>{36}));
        Tell("M/E-1@Key1@Processed Key@Monitor#3");
        EXPECT_EQ(BT_GetStatus(19), BT_ON);
        EXPECT_EQ(BT_GetStatus(17), BT_OFF);
        EXPECT_THAT(Press(17), ElementsAre("put M/E-1@Key1@Processed Key@Monitor#1"));
        EXPECT_THAT(Press(19), ElementsAre("put M/E-1@Key1@Processed Key@Monitor#0"));
    }
}

// --- Border and crop ---

struct KeyProcessCrop : KeyProcessPages {
    std::string path;

    void OpenCrop(uint32_t page, const char* key)
    {
        path = std::string(key) + "@Processed Key@Border/Crop@Crop";
        Open(page);
        Tell(path + "#true");
        (void)Press(33);
        if (NB_GetLayer() == 0)
            NextLayer();
        (void)TakeQueuedCommands();
    }
    std::string Put(const char* edge_and_value) const
    {
        return "put " + path + "@" + edge_and_value;
    }
};

TEST_F(KeyProcessCrop, TheFillNeedsABorderAndItsSecondColorAMix)
{
    static const struct {
        const char* line;
        std::set<int> disabled;
    } steps[] = {
        {"Border#false", {20, 21, 22, 34, 36, 37}},
        {"Border Fill#Mix", {20, 21, 22, 34, 36, 37}},
        {"Border#true", {34}},
        {"Border Fill#Flat", {22, 34, 37}},
        {"Crop#true", {22, 37}},
    };
    Open(0x12160003);
    for (const auto& step : steps) {
        Tell(std::string("M/E-2@Key1@Processed Key@Border/Crop@") + step.line);
        EXPECT_EQ(Disabled(), step.disabled) << step.line;
    }
}

// The banks of the two page groups are told in different ways: by address, or rounded and exact.
TEST_F(KeyProcessCrop, OneValueBecomesTheEdges)
{
    static const struct {
        uint32_t page;
        const char* key;
    } pages[] = {{0x11160003, "M/E-1@Key1"}, {0x82360003, "M/E-5@Key3"}};
    for (const auto& p : pages) {
        OpenCrop(p.page, p.key);
        EXPECT_THAT(Drag(1, 735), ElementsAre(Put("Right#73.75"), Put("Left#-73.75")));
        EXPECT_THAT(Drag(2, 735), ElementsAre(Put("Bottom#-73.75"), Put("Top#73.75")));
        EXPECT_THAT(Drag(3, 735), ElementsAre(Put("Right#73.75"), Put("Left#-73.75"),
                                              Put("Bottom#-73.75"), Put("Top#73.75")));
        EXPECT_THAT(Drag(1, 794), ElementsAre(Put("Right#0.00"), Put("Left#0.00")));
    }
}

TEST_F(KeyProcessCrop, AKnobGoesOnFromTheEdgeOfTheServerAndStopsAtTheCentre)
{
    OpenCrop(0x13260003, "M/E-3@Key2");
    Tell(path + "@Left#-20");
    Tell(path + "@Top#60");
    (void)TakeQueuedCommands();
    Tell("Panel@Common@Knob0#4");
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre(Put("Right#18.00"), Put("Left#-18.00")));
    Tell("Panel@Common@Knob1#4"); // the same sense of the knob: less of the picture
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre(Put("Bottom#-58.00"), Put("Top#58.00")));
    Tell("Panel@Common@Knob0#400");
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre(Put("Right#0.00"), Put("Left#0.00")));
}

TEST_F(KeyProcessCrop, ABoxShowsItsEdgeAndResetsThoseItMoves)
{
    OpenCrop(0x11160003, "M/E-1@Key1");
    Tell(path + "@Left#-20");
    Tell(path + "@Left#rubbish");
    char cmd[CMD_SIZE];
    double value = 1;
    EXPECT_EQ(NB_GetKnob_info("H", cmd, &value, sizeof cmd), 17);
    EXPECT_EQ(value, -20);
    (void)TakeQueuedCommands();
    SendMessage(MSG_PRESS, 750, 150 + 82, 2, 0);
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("default " + path + "@Bottom", "default " + path + "@Top"));
}
