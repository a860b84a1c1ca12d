// The router's pages: what a touch on a source or a destination sends, and when it sends nothing.
#include "pane.h"
#include "table_page.h"

constexpr uint32_t DESTINATION = 0x51110000, SOURCE = 0x51210000, LEVEL = 0x51310000;
constexpr int KEY_TAKE = 33, KEY_LEVELS = 49;
const std::string DEST = "Router@Destination@";

struct RouterPage : TablePage {
    void SetUp() override
    {
        TablePage::SetUp();
        Names("SRC ", "DST ");
        SYS_MyPnl = 1;
    }
    void TearDown() override
    {
        Names("", "");
        TablePage::TearDown();
    }
    static void Names(const std::string& source, const std::string& destination)
    {
        const std::string list = "Engineering Setup@Panel@Config@External Bus Link@S-BUS ";
        for (int n = 0; n <= 4; n++) { // they count from 1
            const std::string number = std::to_string(n);
            (void)Tell(list + "Src Name List#" + number + "," + source + number);
            (void)Tell(list + "Dst Name List#" + number + "," + destination + number);
        }
    }
    static Lines Choose(int list, int row) { return Puts(ChooseRow(list, row)); }
};

TEST_F(RouterPage, ASourceIsThePresetOfTheChosenDestinationUnlessItIsNotOursToChange)
{
    (void)Open(DESTINATION);
    EXPECT_EQ(Cell(1, 2, 1), "DST 3");
    Names("NEW ", "OLD ");
    Pass(10);
    EXPECT_EQ(Cell(1, 2, 1), "OLD 3");
    EXPECT_EQ(Cell(2, 3, 1), "NEW 4");
    Names("SRC ", "DST ");
    Pass(10);
    (void)Choose(1, 2);
    EXPECT_THAT(Choose(2, 1), ElementsAre("put " + DEST + "Dest3@Preset#SRC 2"));
    for (const auto& [lock, owner, is_sent] : {std::tuple{"Protect", "PNL2", false},
                                               {"Protect", "PNL1", true},
                                               {"Lock", "PNL1", false},
                                               {"Lock", "", false},
                                               {"Free", "", true}}) {
        TellAll(DEST, {std::string("Dest3@Lock#") + lock, std::string("Dest3@Owner#") + owner});
        EXPECT_EQ(Choose(2, 0).size(), is_sent ? 1u : 0u) << lock << owner;
        EXPECT_EQ(Pane_GetActiveID() != 0, !is_sent) << lock << owner;
        if (Pane_GetActiveID())
            Pane_Quit(Pane_GetActiveID());
        EXPECT_EQ(BT_GetVisible(KEY_TAKE), std::string(lock) == "Lock" ? BT_DISABLED : BT_ENABLED);
    }
    EXPECT_THAT(Press(KEY_TAKE), Contains("put " + DEST + "Dest3@Take#true"));
}

TEST_F(RouterPage, OneSourceGoesToEachDestinationThatIsTouchedAndItsPlacesAreMarked)
{
    (void)Open(SOURCE);
    (void)Choose(2, 3);
    EXPECT_THAT(Choose(1, 0), ElementsAre("put " + DEST + "Dest1@Preset#SRC 4"));
    EXPECT_THAT(Choose(1, 127), ElementsAre("put " + DEST + "Dest128@Preset#SRC 4"));
    Pass(10);
    (void)Tell(DEST + "Dest128@Preset#SRC 4");
    (void)Tell("Router@Status@Xpt Assign@Dest7@Level1#SRC 4");
    Pass(10);
    for (int row : {0, 6, 127})
        EXPECT_EQ(LS_GetData(1, row, 5) != nullptr, row != 0) << row;
    (void)Choose(2, 2);
    Pass(10);
    EXPECT_EQ(LS_GetData(1, 6, 5), nullptr) << "another source";
    EXPECT_EQ(Choose(2, 4).size() + Choose(1, 128).size() + Choose(1, -1).size(), 0u);
    const Lines opened = Open(DESTINATION);
    EXPECT_STREQ(GL_NowTree[2], "Dest128") << "it stays from page to page";
    EXPECT_EQ(Held(opened, DEST + "Dest128@Owner"), 1);
    EXPECT_EQ(Held(Leave(), DEST + "Dest128@Owner"), -1);
    (void)Open(SOURCE);
    EXPECT_EQ(LS_GetNowLine(2), 2) << "as does the source";
}

TEST_F(RouterPage, OnlyTheLevelsThatWereChangedAreSentAndTheColumnIsHeadedByItsSalvo)
{
    EXPECT_THAT(Open(LEVEL), Contains("add Router@Level@Level8"));
    TellAll("Router@Level@Level", {"1#true", "2#false", "8#true", "9#true"});
    (void)Tell("Router@Status@Xpt Assign@Dest3@Level1#SRC 4");
    EXPECT_EQ(Cell(1, 2, 1), "SRC 4");
    (void)Choose(1, 1);
    EXPECT_EQ(Caption(KEY_LEVELS), "Levels\n18") << "are those of all destinations";
    PaneRTRLvl_SetSelect(0x40); // the snapshots' choice
    (void)Press(KEY_LEVELS);
    EXPECT_EQ(PaneRTRLvl_Selected(), 0x81);
    PaneRTRLvl_SetSelect(0x83);
    (void)TakeQueuedCommands();
    const int pane = Pane_GetActiveID();
    Pane_Quit(pane);
    SendMessage(LMSG_PANEQUIT, pane, 1, 0, 0);
    EXPECT_THAT(Puts(TakeQueuedCommands()), ElementsAre("put Router@Level@Level2#true"));
    EXPECT_EQ(PaneRTRLvl_Selected(), 0x40) << "is not touched";
    PaneRTRLvl_SetSelect(0);

    (void)Open(0x51410000);
    EXPECT_STREQ(NB_GetTitle(), "Salvo 1");
    (void)Choose(1, 2);
    EXPECT_STREQ(NB_GetTitle(), "Salvo 3");
}
