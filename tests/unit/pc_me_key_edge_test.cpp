// The edge pages of a key: which buttons are of use by what the key and its edge are.
#include "page_table/nb_edge.h"
#include "table_page.h"

using std::string;

using KeyEdgePage = TablePage;

TEST_F(KeyEdgePage, OffersWhatThisEdgeOfThisKeyHas)
{
    // Border, Shadow, Emboss, Zabton, seParate, sOft, Drop, Utility, Matte, Adjust
    static constexpr std::pair<char, int> buttons[] = {
        {'B', 18}, {'S', 20}, {'E', 34}, {'Z', 35}, {'P', 21},
        {'O', 37}, {'D', 38}, {'U', 49}, {'M', 51}, {'A', 52},
    };
    for (const auto& [edge, type, fine, soft, fill, offered] :
         {std::tuple{"Normal", "Linear", "false", "false", "Matte", "BSEZO"},
          {"Normal", "Linear", "false", "true", "Matte", "BSEZPO"},
          {"Border", "Linear", "true", "false", "Matte", "BSEZPODUMA"},
          {"Border", "Chroma", "false", "false", "Utility 1", "BSEZPODUM"},
          {"Border", "Chroma", "true", "true", "Matte", "Z"}, // no edge
          {"Border", "Wipe Pattern", "false", "false", "Matte", "BSEZPOUMA"},
          {"Outline", "Linear", "false", "false", "Matte", "BSEZPOD"},
          {"Emboss", "Linear", "false", "false", "Utility 1", "BSEZOMA"},
          {"Zabton", "Chroma", "true", "false", "Matte", "ZUMA"}}) {
        Open(0x82420000);
        TellAll("M/E-5@Key4@", {string("Type@Key Type#") + type, string("Edge@Soft Edge#") + soft,
                                string("Edge@Edge Fill#") + fill, string("Edge@Edge#") + edge,
                                string("Edge@Fine Key#") + fine});
        string usable;
        for (const auto& [letter, id] : buttons)
            if (BT_GetVisible(id) == BT_ENABLED)
                usable += letter;
        EXPECT_EQ(usable, offered) << edge << " " << type << " " << fine;
    }
}

// The edge comes back when either setting goes, whichever was told last.
TEST_F(KeyEdgePage, ALostEdgeComesBackAndANumberBeingEnteredOutlivesATallyOfOtherThings)
{
    Open(0x11120000);
    TellAll("M/E-1@Key1@", {"Edge@Edge#Border", "Edge@Fine Key#true", "Type@Key Type#Chroma"});
    EXPECT_THAT(Usable({18, 20, 21, 49}), IsEmpty());
    Tell("M/E-1@Key1@Type@Key Type#Linear");
    EXPECT_THAT(Usable({18, 20, 21, 49}), ElementsAre(18, 20, 21, 49));
    const string edge = "M/E-1@Key1@Edge@";
    TellAll(edge, {"Separate Edge#false", "Fine Key#false"});
    (void)Press(18);
    Tell(edge + "Edge Type@Border@Width#20");
    (void)Touch(750, 68 + 82);
    ASSERT_EQ(GetWindow(), WINDOW_KNOB_TRIM);
    EXPECT_THAT(Tell(edge + "Key Drop#true"), IsEmpty()) << "the knobs stay assigned";
    EXPECT_EQ(Shown("Width"), "20");
    EXPECT_EQ(NB_SendValue(5), 0);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("put " + edge + "Edge Type@Border@Width#5.00"));
    Tell(edge + "Separate Edge#true"); // other boxes
    EXPECT_EQ(GetWindow(), WINDOW_NONE);

    (void)Touch(750, 68 + 82);
    ASSERT_EQ(GetWindow(), WINDOW_KNOB_TRIM);
    Tell(edge + "Edge#Normal"); // none
    EXPECT_EQ(GetWindow(), WINDOW_NONE);
}

// The knobs of the border ask for the key, the sides and for what halves its range.
TEST_F(KeyEdgePage, TheKnobsOfTheBorderFollowItsSettings)
{
    const string edge = "M/E-1@Key7@Edge@";
    Open(0x15320000);
    TellAll("M/E-1@Key7@", {"Type@Key Type#Linear", "Edge@Separate Edge#false",
                            "Edge@Fine Key#true", "Edge@Key Drop#false", "Edge@Edge#Normal"});
    EXPECT_THAT(Press(18), AllOf(Contains("put " + edge + "Edge#Border"),
                                 Contains("add " + edge + "Edge Type@Border@Width")));
    EXPECT_EQ(special_knob_table(bt_find(18)), nb_me_key_edge_edge_border1h);
    EXPECT_THAT(Tell(edge + "Separate Edge#true"),
                Contains("add " + edge + "Edge Type@Border@Left"));
    Tell(edge + "Key Drop#true");
    EXPECT_EQ(special_knob_table(bt_find(18)), nb_me_key_edge_edge_border2);
}

TEST_F(KeyEdgePage, ThePlateIsAdjustedWhileItStandsAndPatternedOnALargeSwitcher)
{
    for (const DEVTYPE type : {DEVTYPE_KTR40A, DEVTYPE_KTR40G}) {
        SYS_RefSwrType = type;
        Open(0x12320003);
        Tell("M/E-2@Key3@Edge@Edge#Border");
        EXPECT_THAT(Usable({17, 18, 33, 35}), ElementsAre(17));
        EXPECT_THAT(Press(17), Contains("put M/E-2@Key3@Edge@Edge#Zabton"));
        Tell("M/E-2@Key3@Edge@Edge#Zabton");
        EXPECT_EQ(Usable({18, 21}).size(), type == DEVTYPE_KTR40G ? 2u : 1u);
    }
}
