// The type pages of a key as the table opens them: their own lines on the wire, what they show
// after tallies.
#include "a_ba.h"
#include "a_st.h"
#include "pane_private.h"
#include "table_page.h"

using std::string;
using testing::MatchesRegex;

using KeyTypePage = TablePage;

TEST_F(KeyTypePage, SettingsOfEachTypeAreFollowedAndTheChosenOnesShown)
{
    const Lines opened = Open(0x81310000);
    for (const char* type :
         {"Luminance", "Linear", "Chroma", "Color Vector", "Wipe Pattern", "Key Wipe Pattern"})
        for (const char* setting : {"Clean Mode@", "Key Position@"})
            EXPECT_GE(Held(opened, string("M/E-4@Key3@Type@") + setting + type), 1) << type;
    TellAll("M/E-4@Key3@Type@", {"Key Type#Linear", "Clean Mode@Color Vector#true",
                                 "Clean Mode@Linear#false", "Key Position@Linear#false"});
    EXPECT_EQ(BT_GetStatus(34), BT_OFF);
    EXPECT_THAT(Press(35), AllOf(Contains("put M/E-4@Key3@Type@Key Position@Linear#true"),
                                 Contains("add M/E-4@Key3@Type@Key Position@Left@Linear")));
    Tell("M/E-4@Key3@Type@Key Type#Color Vector");
    EXPECT_EQ(BT_GetStatus(34), BT_ON);
    EXPECT_THAT(Press(34), ElementsAre("put M/E-4@Key3@Type@Clean Mode@Color Vector#false"));
}

TEST_F(KeyTypePage, EachSelectButtonLeadsToWhatItsSettingIsMadeOf)
{
    // The last column: GL_FillSourceAssignMode on the way; 7 untouched
    for (const auto& [page, setting, button, target, assign] :
         {std::tuple{0x12310000u, "M/E-2@Key3@Type@Key Type#Luminance", 38, 0x12310003u, 1},
          {0x85210000, "M/E-4@Key6@Type@Key Type#Wipe Pattern", 38, 0x81510000, 7},
          {0x12310000, "M/E-2@Key3@Type@Key Type#Key Wipe Pattern", 38, 0x12370002, 7},
          {0x85210000, "M/E-4@Key6@Type@Key Fill#Key Bus", 51, 0x85210003, 0},
          {0x14410000, "PGM/PST@DSK4@Type@Key Fill#Matte", 51, 0x14410002, 7}}) {
        Open(page);
        Tell(setting);
        GL_FillSourceAssignMode = 7;
        EXPECT_EQ(PageBy(button), target) << setting;
        EXPECT_EQ(GL_FillSourceAssignMode, assign) << setting;
    }
}

TEST_F(KeyTypePage, In4KKey3LosesEightButtonsAndTheSmallPanelSelectsPatternsAlone)
{
    SYS_4KMode = 1;
    for (const DEVTYPE panel : {DEVTYPE_UNKNOWN, DEVTYPE_QRD33})
        for (const uint32_t page : {0x11210000u, 0x11310000u}) {
            SYS_RefPnlType = panel;
            Open(page);
            Tell("M/E-1@Key3@Type@Key Type#Linear");
            int hidden = 0;
            for (const BT_MEM* b = bt_first(); b->id >= 1; b++)
                hidden += b->visible == BT_CUTOFF;
            EXPECT_EQ(hidden, page == 0x11310000 ? 8 : 0) << panel;
        }

    SYS_RefPnlType = DEVTYPE_QRD33;
    Open(0x11110000);
    EXPECT_THAT(Usable({38}), IsEmpty());
    Tell("M/E-1@Key1@Type@Key Type#Wipe Pattern");
    EXPECT_THAT(Usable({38}), ElementsAre(38));
    Tell("M/E-1@Key1@Type@Key Type#Linear");
    EXPECT_THAT(Usable({38}), IsEmpty());
    EXPECT_EQ(Caption(38), "Pattern\nSelect");
}

// --- The list of signals ---

struct KeySignals : TablePage {
    void SetUp() override
    {
        TablePage::SetUp();
        TellAll(SOURCE, {"1,CAM 1", "2,CAM 2", "7,VTR", "9,"}); // 9 has no name
    }
    static inline const string SOURCE = "Engineering Setup@Panel@Xpt Assign@Source@List#";

    static Lines TouchRow(int row)
    {
        const Lines lines = Touch(110, 266 + 22 * (row + 1) + 5);
        SendMessage(MSG_RELEASE, 110, 266 + 22 * (row + 1) + 5, 1, 0);
        return lines;
    }
    // The marks of the rows: F fill, S source, "-" none; "*" the selected row.
    static string Rows()
    {
        string rows;
        for (int row = 0; row < LS_GetNData(1); row++) {
            const bool fill = LS_GetData(1, row, 2), source = LS_GetData(1, row, 3);
            rows += string(row ? " " : "") + LS_GetData(1, row, 1) + ":";
            rows += string(fill ? "F" : "") + (source ? "S" : "") + (fill || source ? "" : "-");
            rows += LS_IsSelected(1, row, 0) == 1 ? "*" : "";
        }
        return rows;
    }
};

TEST_F(KeySignals, ATouchIsPutToTheBusThatIsAssigned)
{
    for (const auto& [page, path] : {std::pair{0x11100000u, "put M/E-1@Key1@Type@Signal Select@"},
                                     {0x85310003, "put M/E-4@Key7@Type@Signal Select@"}}) {
        GL_FillSourceAssignMode = 1; // as the key type page or a cell leaves it
        Open(page);
        EXPECT_EQ(BT_GetStatus(38), BT_ON);
        EXPECT_THAT(TouchRow(2), ElementsAre(string(path) + "Source#VTR"));
        EXPECT_THAT(Press(22), IsEmpty());
        EXPECT_EQ(GL_FillSourceAssignMode, 0);
        EXPECT_THAT(TouchRow(0), ElementsAre(string(path) + "Fill#CAM 1"));
        EXPECT_THAT(TouchRow(3), IsEmpty()); // below the last row
        BA_SetDefaultButton(1);
        EXPECT_THAT(TouchRow(0), IsEmpty());
        BA_SetDefaultButton(0);
    }
}

TEST_F(KeySignals, TheRowsFollowTalliesAndNeitherTouchesNorTheArrows)
{
    const Lines opened = Open(0x12210003);
    EXPECT_EQ(Cell(1, 2, 0), "7");
    TellAll("M/E-2@Key2@Type@Signal Select@", {"Fill#CAM 2", "Source#VTR"});
    TouchRow(0);
    EXPECT_EQ(Rows(), "CAM 1:- CAM 2:F* VTR:S");
    Press(38);
    EXPECT_EQ(Rows(), "CAM 1:- CAM 2:F VTR:S*");
    SendMessage(LMSG_SBSEL, 1, 0, -1, 0);
    EXPECT_THAT(TakeQueuedCommands(), IsEmpty());
    Tell("M/E-2@Key3@Type@Signal Select@Source#CAM 1"); // of another key
    Pass(10);
    const std::vector<uint32_t> titles = PixelsIn({110, 266, 500, 287});
    Tell("M/E-2@Key2@Type@Key Source#Self");
    Pass(10);
    EXPECT_NE(PixelsIn({110, 266, 500, 287}), titles) << "it has no use for its source bus";
    EXPECT_EQ(Rows(), "CAM 1:- CAM 2:F VTR:S*");
    TellAll(SOURCE, {"5,GRAPHIC", "2,STUDIO"}); // a new name moves them at once
    EXPECT_THAT(Rows(), MatchesRegex("CAM 1:-\\*? STUDIO:-\\*? GRAPHIC:-\\*? VTR:S\\*?"));
    const string source = "M/E-2@Key2@Type@Signal Select@Source";
    EXPECT_THAT(TouchRow(2), ElementsAre("put " + source + "#GRAPHIC"));
    EXPECT_EQ(Held(opened, source) + Held(Leave(), source), 0);
}

// --- Matte and chroma ---

using KeyMattePage = TablePage;

TEST_F(KeyMattePage, OffersWhatTheMatteIsMadeOf)
{
    // Usable of mode, second colour, pattern
    for (const auto& [page, mode, edge, usable, color] :
         {std::tuple{0x12210002u, "Flat", "Emboss", std::vector<int>{17},
                     "Color 1"}, // the edge is not the fill's
          {0x12210002, "Mix", "Normal", {17, 20, 33, 37}, "Color 1"},
          {0x12220001, "Flat", "Border", {17}, "Color 1"},
          {0x12220001, "Mix", "Border", {17, 20, 33, 37}, "Color 1"},
          {0x12220001, "Mix", "Emboss", {20}, "Light"},
          {0x12220001, "Flat", "Emboss", {20}, "Light"}}) {
        Open(page);
        const string group = page == 0x12210002 ? "Type" : "Edge";
        TellAll("M/E-2@Key2@", {group + "@Matte Adjust@Mode#" + mode, string("Edge@Edge#") + edge});
        EXPECT_EQ(Usable({17, 20, 33, 37}), usable) << group << mode << " " << edge;
        EXPECT_EQ(Caption(19), color) << group << mode << " " << edge;
    }
}

TEST_F(KeyMattePage, TheButtonOfThePatternTellsItsNumber)
{
    for (const auto& [page, path, button, target] :
         {std::tuple{0x11310002u, "M/E-1@Key3@Type@Matte Adjust@Mix Pattern@Pattern#", 37,
                     0x11310004u},
          {0x85320001, "M/E-4@Key7@Edge@Matte Adjust@Mix Pattern@Pattern#", 37, 0x85320002},
          {0x14220003, "PGM/PST@DSK2@Edge@Zabton@Pattern#", 21, 0x14220004}}) {
        const Lines opened = Open(page);
        Tell(string(path) + "67");
        EXPECT_EQ(Caption(button), "Pattern\nSelect\n67");
        Tell(string(path) + "none");
        EXPECT_EQ(Caption(button), "Pattern\nSelect");
        TellAll("M/E-", {"4@Key7@Edge@Matte Adjust@Mode#Mix", "1@Key3@Type@Matte Adjust@Mode#Mix"});
        EXPECT_EQ(PageBy(button), target);
        const string followed = string(path).substr(0, string(path).size() - 1);
        EXPECT_EQ(Held(opened, followed) + Held(Leave(), followed), 0) << path;
    }
}

using KeyChromaPage = TablePage;

TEST_F(KeyChromaPage, TheSampleMarkGoesWithTheChromaPageAndTheBackingIsChosenFromItsPullDown)
{
    const string mark = "M/E-3@Key4@Type@Chroma Adjust@Sample Mark";
    for (const bool is_on : {false, true}) {
        Open(0x13410001);
        Tell("M/E-3@Key4@Type@Key Type#Chroma");
        Tell(mark + (is_on ? "#true" : "#false"));
        EXPECT_EQ(Usable({50}).size(), is_on ? 1u : 0u);
        EXPECT_EQ(std::ranges::count(Leave(), "put " + mark + "#false"), is_on);
    }
    Open(0x13410001);
    EXPECT_THAT(Leave(), Not(Contains("put " + mark + "#false"))) << "nothing is known of it";

    const string backing = "M/E-4@Key2@Type@Chroma Adjust@Backing";
    Open(0x81210001);
    Tell("M/E-4@Key2@Type@Key Type#Chroma");
    Tell(backing + "#Green");
    EXPECT_EQ(Caption(54), "Green");
    EXPECT_THAT(Press(54), IsEmpty()) << "the choice is in the pane";
    ASSERT_TRUE(pane_top());
    EXPECT_TRUE(pane_top()->button[0].onoff && !pane_top()->button[1].onoff);
    const auto touch_pane = [](int x, int y) {
        Pass(10);
        SendMessage(MSG_PRESS, x, y, 1, 0);
        SendMessage(MSG_RELEASE, x, y, 0, 0);
        Pass(150); // it has looked pushed
        return TakeQueuedCommands();
    };
    EXPECT_THAT(touch_pane(630, 442), ElementsAre("put " + backing + "#Blue"));
    EXPECT_EQ(Caption(54), "Green") << "only the tally changes it";
    Press(54);
    EXPECT_THAT(touch_pane(630, 478), ElementsAre("put " + backing + "#Red"));
    Press(54);
    EXPECT_THAT(touch_pane(200, 200), IsEmpty()) << "beside it: no choice";
    EXPECT_EQ(Pane_GetActiveID(), 0);
}
