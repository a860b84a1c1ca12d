// The pages of effects units, device controllers, router, tallies and multi-program engines: what
// goes out, and which units an installation has.
#include "pane_private.h"
#include "pc_setup_gpi.h"
#include "setup_desk.h"

const std::string SETUP = "Engineering Setup@";
const std::string DEVICES = SETUP + "DME@Device Interface@";
enum : int { KEY_GPI_ENABLE = 36, KEY_TEST = 37 };

struct SetupUnits : SetupTest {
    void TearDown() override
    {
        SYS_DualProc = 0;
        SetupTest::TearDown();
    }
};

TEST_F(SetupUnits, APageHasTheUnitsAndChannelsOfItsInstallation)
{
    const std::string pair = "DME1 Ch1,DME1 Ch2,DME1 Ch3,DME1 Ch4,DME2 Ch1,DME2 Ch2,DME2 Ch3,"
                             "DME2 Ch4";
    const std::string dual = "DME1 Ch1,DME1 Ch2,DME2 Ch1,DME2 Ch2,DME3 Ch1,DME3 Ch2,DME4 Ch1,"
                             "DME4 Ch2";
    const std::tuple<uint32_t, std::string, std::string> cases[] = {
        {0x73410001, pair, dual},
        {0x73440001, pair, dual},
        {0x73430000, "DME1,DME2", "DME1,DME2,DME3,DME4"},
        {0x73430001, "DME1,DME2", "DME1,DME2,DME3,DME4"},
        {0x73440000, "DME1,DME2", "DME1,DME2,DME3,DME4"},
        {0x73440003, "1,2,3,4,5,6,7,8", "1,2,3,4,5,6,7,8"},
        {0x73440007, "", "1,2,3,4,5,6,7,8"},
        {0x73440010, "", "1,2,3,4,5,6,7,8"},
    };
    for (const bool is_dual : {false, true}) {
        SYS_DualProc = is_dual; // two processors as one: four effects units
        DEV_Swr[0].activeline = DEV_Dme[0].activeline = is_dual ? 6 : 0;
        DeviceStructure();
        for (const auto& [page, of_single, of_dual] : cases) {
            const std::string& keys = is_dual ? of_dual : of_single;
            ASSERT_EQ(SearchPageTable(page) != nullptr, !keys.empty()) << std::hex << page;
            if (keys.empty())
                continue;
            (void)Open(page);
            std::string shown;
            for (int row = 0; row < LS_GetNData(1); row++)
                shown += (row ? "," : "") + Cell(1, row, 0);
            EXPECT_EQ(shown, keys) << std::hex << page;
        }
    }
}

TEST_F(SetupUnits, TheModelOfAUnitIsFollowedAllTheTimeAndOnlyRead)
{
    const std::string model = SETUP + "DME@Model@DME";
    EXPECT_THAT(Open(0x73410000), Contains("read " + model + "1"));
    TellAll(model, {"1#3", "4#8"});
    EXPECT_EQ(Row(0, 2), "DME1|FXU50");
    EXPECT_EQ(Row(3, 2), "DME4|ZRD52");
    SelectRow(0);
    (void)Choose(33, 8);
    EXPECT_THAT(Choose(BTN_SHEET_EXECUTE, 1),
                ElementsAre("put " + model + "1#8", "read " + model + "1"));
}

TEST_F(SetupUnits, EachUnitHasPortsOfItsOwn)
{
    (void)Open(0x73440006);
    (void)Tell(DEVICES + "DME2 GPI Output@Trigger Type@3#None,0x00,0x01");
    EXPECT_THAT(PushIn(2, KEY_TEST),
                ElementsAre("put " + DEVICES + "DME2 GPI Output@Test Fire@3#"));
    (void)Tell(DEVICES + "DME2 GPI Output@GPI Enable#false");
    EXPECT_THAT(Push(KEY_GPI_ENABLE),
                ElementsAre("put " + DEVICES + "DME2 GPI Output@GPI Enable#true"));
    (void)Choose(33, 5); // Level
    EXPECT_EQ(Row(2, 2), "3|Level*");
    (void)Open(0x73440005);
    EXPECT_EQ(Row(2, 2), "3|") << "an edit of another unit";
    (void)Open(0x73440006);
    EXPECT_EQ(Row(2, 2), "3|Level*");
}

TEST_F(SetupUnits, ABusTellsItsGroupsInOneLineAndGetsThemInOne)
{
    const std::string bus = SETUP + "Tally@Tally Enable@Aux1";
    (void)Open(0x73620001);
    (void)Tell(bus + "#true,false,false,true,false,false,false,false");
    EXPECT_EQ(Row(6, 9), "Aux1|On|---|---|On|---|---|---|---");
    (void)PushIn(6, 34); // one touch turns it over
    (void)Push(36);
    EXPECT_EQ(Row(6, 5), "Aux1|On|On*|---|---*");
    EXPECT_EQ(BT_GetStatus(34), BT_ON);
    EXPECT_THAT(Push(BTN_SHEET_EXECUTE),
                ElementsAre("put " + bus + "#true,true,false,false,false,false,false,false"));
}

TEST_F(SetupUnits, ANameGoesToAllRowsThatAreSelected)
{
    (void)Open(0x73610002);
    (void)LS_SetMS(1, 1);
    (void)LS_SetSelected(1, 0, 1, 1);
    (void)LS_SetSelected(1, 1, 1, 1);
    SendMessage(LMSG_BTNSEL, Arg(SHEET_LOCAL "Name"), 0, 0, 0);
    (void)Type("a#b");
    EXPECT_EQ(Row(0, 2), "1|") << "the server would cut it";
    Dismiss();
    SendMessage(LMSG_BTNSEL, Arg(SHEET_LOCAL "Name"), 0, 0, 0);
    (void)Type("cam");
    EXPECT_EQ(Row(0, 2) + Row(1, 2) + Row(2, 2), "1|cam*2|cam*3|");
}

TEST_F(SetupUnits, AnAreaEndsBehindItsBegin)
{
    const std::string area = SETUP + "Router@Area@";
    (void)Open(0x73610001);
    TellAll(area, {"First Source@2#9", "Last Source@2#16", "First Destination@2#1",
                   "Last Destination@2#8"});
    SelectRow(1);
    SendMessage(LMSG_KNOBVAR, 2, 8, 0, 0);
    EXPECT_EQ(Row(1, 6), "2||9|8*|1|8");
    EXPECT_THAT(Push(BTN_SHEET_EXECUTE), IsEmpty());
    PANE* const why = pane_find(Pane_GetActiveID());
    ASSERT_TRUE(why);
    EXPECT_STREQ(pane_text_in_view(why), "Last Src of Area 2\nis below the first.");
    Dismiss();
    SendMessage(LMSG_KNOBVAR, 2, 9, 0, 0);
    EXPECT_THAT(Push(BTN_SHEET_EXECUTE), ElementsAre("put " + area + "Last Source@2#9"));
}
