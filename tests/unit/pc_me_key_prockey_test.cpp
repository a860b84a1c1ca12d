// The pages of a processed key: whose channels there are, the monitor, the crop of several edges.
#include "table_page.h"

static const std::string STATUS = "M/E-1@Key1@Processed Key@DME Status#";
static const std::string ALL_FREE = STATUS + "Free,Free,Free,Free,Free,Free,Free,Free";

using KeyProcessPages = TablePage;

TEST_F(KeyProcessPages, AChannelOfAnotherKeyIsTakenOnlyByOverride)
{
    Open(0x81360000);
    Tell(STATUS + "M/E-4@Key3,Free,M/E-2@Key1,PGM/PST@DSK4,M/E-3@Key2,M/E-1@DME Wipe,None,None");
    EXPECT_EQ(Disabled(), (std::set<int>{35, 36, 49, 50, 51, 52}));
    EXPECT_EQ(BT_GetStatus(35), BT_THIRD);
    EXPECT_EQ(Caption(36), "DME4\nPGM/PST\nDSK4");
    EXPECT_EQ(Caption(49), "DME5\nM/E-3\nKey2");
    EXPECT_EQ(Caption(34), "DME2");

    EXPECT_THAT(Press(37), IsEmpty()); // Override
    EXPECT_EQ(Disabled(), (std::set<int>{51, 52}));
    EXPECT_THAT(Press(35), ElementsAre("put M/E-4@Key3@Processed Key@Override@DME3#true"));
    EXPECT_EQ(Disabled(), (std::set<int>{35, 36, 49, 50, 51, 52})) << "it is used up";
    EXPECT_EQ(BT_GetStatus(37), BT_OFF);
    EXPECT_THAT(Press(34), ElementsAre("put M/E-4@Key3@Processed Key@DME Select@DME2#true"));
}

TEST_F(KeyProcessPages, AChannelIsOnWhenTheServerSaysSoInAStatusOfEight)
{
    Open(0x16260000);
    TellAll(STATUS, {"None,M/E-2@Key1,Free,Free,Free,Free,Free,Free", "", "Free",
                     "Free,Free,Free,Free,Free,Free,Free", ",,,"});
    EXPECT_EQ(Disabled(), (std::set<int>{33, 34}));
    Tell(ALL_FREE);
    EXPECT_THAT(Disabled(), IsEmpty());
    (void)Press(49);
    Tell("M/E-2@Key5@Processed Key@DME Select@DME5#true"); // of another key
    EXPECT_EQ(BT_GetStatus(49), BT_OFF);
    Tell("M/E-2@Key6@Processed Key@DME Select@DME5#true");
    EXPECT_EQ(BT_GetStatus(49), BT_ON);
    EXPECT_THAT(Press(49), ElementsAre("put M/E-2@Key6@Processed Key@DME Select@DME5#false"));
}

TEST_F(KeyProcessPages, OneMonitorServesAllBanks)
{
    const Lines opened = Open(0x14460001);
    Tell(STATUS + "M/E-2@Key1,Free,Free,Free,Free,Free,Free,None");
    EXPECT_EQ(Disabled(), (std::set<int>{36}));
    Tell("M/E-1@Key1@Processed Key@Monitor#3");
    EXPECT_EQ(BT_GetStatus(19), BT_ON);
    EXPECT_THAT(Press(17), ElementsAre("put M/E-1@Key1@Processed Key@Monitor#1"));
    EXPECT_THAT(Press(19), ElementsAre("put M/E-1@Key1@Processed Key@Monitor#0"));
    const std::string status = STATUS.substr(0, STATUS.size() - 1);
    EXPECT_EQ(Held(opened, status) + Held(Leave(), status), 0);
}

// --- Border and crop ---

struct KeyProcessCrop : TablePage {
    std::string path;

    void OpenCrop(uint32_t page, const char* key)
    {
        path = std::string(key) + "@Processed Key@Border/Crop@Crop";
        Open(page);
        Tell(path + "#true");
        (void)Press(33);
        if (NB_GetLayer() == 0)
            NextLayer();
    }
    Lines PutOf(const Lines& edges) const
    {
        Lines lines;
        for (const std::string& edge : edges)
            lines.push_back("put " + path + "@" + edge);
        return lines;
    }
};

TEST_F(KeyProcessCrop, TheFillNeedsABorderAndItsSecondColorAMix)
{
    Open(0x12160003);
    for (const auto& [line, disabled] :
         {std::pair{"Border#false", std::set<int>{20, 21, 22, 34, 36, 37, 38}},
          {"Border Fill#Mix", {20, 21, 22, 34, 36, 37, 38}},
          {"Border#true", {34}},
          {"Border Fill#Flat", {22, 34, 37, 38}},
          {"Crop#true", {22, 37, 38}}}) {
        Tell(std::string("M/E-2@Key1@Processed Key@Border/Crop@") + line);
        EXPECT_EQ(Disabled(), disabled) << line;
    }
}

// The banks of the two page groups are told in different ways: by address, or rounded and exact.
TEST_F(KeyProcessCrop, OneValueBecomesTheEdges)
{
    for (const auto& [page, key] :
         {std::pair{0x11160003u, "M/E-1@Key1"}, {0x82360003, "M/E-5@Key3"}}) {
        OpenCrop(page, key);
        TellAll(path, {"@Left#-20", "@Top#60"});
        EXPECT_EQ(Drag(1, 735), PutOf({"Right#73.75", "Left#-73.75"}));
        EXPECT_EQ(Drag(2, 735), PutOf({"Bottom#-73.75", "Top#73.75"}));
        EXPECT_EQ(Drag(3, 735),
                  PutOf({"Right#73.75", "Left#-73.75", "Bottom#-73.75", "Top#73.75"}));
        EXPECT_EQ(Drag(1, 794), PutOf({"Right#0.00", "Left#0.00"}));
    }
}

TEST_F(KeyProcessCrop, AKnobGoesOnFromTheEdgeOfTheServerAndStopsAtTheCentre)
{
    OpenCrop(0x13260003, "M/E-3@Key2");
    EXPECT_THAT(Tell("Panel@Common@Knob0#4"), IsEmpty()) << "no value yet";
    TellAll(path, {"@Left#-20", "@Top#60"});
    EXPECT_EQ(Tell("Panel@Common@Knob0#4"), PutOf({"Right#18.00", "Left#-18.00"}));
    // the same sense of the knob: less of the picture
    EXPECT_EQ(Tell("Panel@Common@Knob1#4"), PutOf({"Bottom#-58.00", "Top#58.00"}));
    EXPECT_EQ(Tell("Panel@Common@Knob0#4"), PutOf({"Right#16.00", "Left#-16.00"}))
        << "faster than the server";
    (void)Default(1); // what the server makes of it, it tells
    EXPECT_EQ(Tell("Panel@Common@Knob0#4"), PutOf({"Right#18.00", "Left#-18.00"}));
    EXPECT_EQ(Tell("Panel@Common@Knob0#400"), PutOf({"Right#0.00", "Left#0.00"}));
}

TEST_F(KeyProcessCrop, ABoxShowsItsEdgeAndResetsThoseItMoves)
{
    OpenCrop(0x11160003, "M/E-1@Key1");
    TellAll(path, {"@Left#-20", "@Left#rubbish"});
    EXPECT_EQ(Shown("H"), "-20");
    EXPECT_THAT(Default(2), ElementsAre("default " + path + "@Bottom", "default " + path + "@Top"));
}
