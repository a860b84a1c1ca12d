// The edge pages of a key: which buttons are of use by what the key and its edge are.
#include "me_key_page.h"
#include "page_table/nb_edge.h"

using std::string;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;

struct KeyEdgePage : MeKeyPage {
};

TEST_F(KeyEdgePage, OffersWhatThisEdgeOfThisKeyHas)
{
    enum : int { BORDER = 18, SHADOW = 20, EMBOSS = 34, ZABTON = 35 };
    enum : int { SEPARATE = 21, SOFT = 37, DROP = 38, UTILITY = 49, MATTE = 51, ADJUST = 52 };
    static const struct {
        const char* edge;
        const char* type;
        const char* fine;
        const char* soft;
        const char* fill;
        std::vector<int> usable;
    } cases[] = {
        {"Normal", "Linear", "false", "false", "Matte", {BORDER, SHADOW, EMBOSS, ZABTON, SOFT}},
        {"Normal",
         "Linear",
         "false",
         "true",
         "Matte",
         {BORDER, SHADOW, EMBOSS, ZABTON, SEPARATE, SOFT}},
        {"Border",
         "Linear",
         "true",
         "false",
         "Matte",
         {BORDER, SHADOW, EMBOSS, ZABTON, SEPARATE, SOFT, DROP, UTILITY, MATTE, ADJUST}},
        {"Border",
         "Chroma",
         "false",
         "false",
         "Utility 1",
         {BORDER, SHADOW, EMBOSS, ZABTON, SEPARATE, SOFT, DROP, UTILITY, MATTE}},
        {"Border", "Chroma", "true", "true", "Matte", {ZABTON}}, // no edge
        {"Border",
         "Wipe Pattern",
         "false",
         "false",
         "Matte",
         {BORDER, SHADOW, EMBOSS, ZABTON, SEPARATE, SOFT, UTILITY, MATTE, ADJUST}},
        {"Outline",
         "Linear",
         "false",
         "false",
         "Matte",
         {BORDER, SHADOW, EMBOSS, ZABTON, SEPARATE, SOFT, DROP}},
        {"Emboss",
         "Linear",
         "false",
         "false",
         "Utility 1",
         {BORDER, SHADOW, EMBOSS, ZABTON, SOFT, MATTE, ADJUST}},
        {"Zabton", "Chroma", "true", "false", "Matte", {ZABTON, UTILITY, MATTE, ADJUST}},
    };
    for (const auto& c : cases) {
        Open(0x00110000);
        Open(0x82410000 + 0x10000);
        const string edge = "M/E-5@Key4@Edge@";
        Tell(string("M/E-5@Key4@Type@Key Type#") + c.type);
        Tell(edge + "Soft Edge#" + c.soft);
        Tell(edge + "Edge Fill#" + c.fill);
        Tell(edge + "Edge#" + c.edge);
        Tell(edge + "Fine Key#" + c.fine);
        EXPECT_EQ(
            Usable({BORDER, SHADOW, EMBOSS, ZABTON, SEPARATE, SOFT, DROP, UTILITY, MATTE, ADJUST}),
            c.usable)
            << c.edge << " " << c.type << " " << c.fine;
    }
}

// The edge comes back when either setting goes, whichever was told last.
TEST_F(KeyEdgePage, ALostEdgeComesBack)
{
    Open(0x11120000);
    Tell("M/E-1@Key1@Edge@Edge#Border");
    Tell("M/E-1@Key1@Edge@Fine Key#true");
    Tell("M/E-1@Key1@Type@Key Type#Chroma");
    EXPECT_TRUE(Usable({18, 20, 21, 49}).empty());
    Tell("M/E-1@Key1@Type@Key Type#Linear");
    EXPECT_THAT(Usable({18, 20, 21, 49}), ElementsAre(18, 20, 21, 49));
}

// The knobs of the border ask for the key, the sides and for what halves its range.
TEST_F(KeyEdgePage, TheKnobsOfTheBorderFollowItsSettings)
{
    Open(0x15320000);
    const string key = "M/E-1@Key7@";
    for (const char* line : {"Type@Key Type#Linear", "Edge@Separate Edge#false",
                             "Edge@Fine Key#true", "Edge@Key Drop#false", "Edge@Edge#Normal"})
        Tell(key + line);
    EXPECT_THAT(Press(18), AllOf(Contains("put M/E-1@Key7@Edge@Edge#Border"),
                                 Contains("add M/E-1@Key7@Edge@Edge Type@Border@Width")));
    EXPECT_EQ(special_knob_table(bt_find(18)), nb_me_key_edge_edge_border1h);
    Tell(key + "Edge@Separate Edge#true");
    EXPECT_THAT(TakeQueuedCommands(), Contains("add M/E-1@Key7@Edge@Edge Type@Border@Left"));
    Tell(key + "Edge@Key Drop#true");
    EXPECT_EQ(special_knob_table(bt_find(18)), nb_me_key_edge_edge_border2);
}

TEST_F(KeyEdgePage, OnlyALargeSwitcherHasPatternsForThePlate)
{
    for (const DEVTYPE type : {DEVTYPE_KTR40A, DEVTYPE_KTR40G}) {
        SYS_RefSwrType = type;
        Open(0x12320003);
        Tell("M/E-2@Key3@Edge@Edge#Zabton");
        EXPECT_EQ(Usable({18, 21}).size(), type == DEVTYPE_KTR40G ? 2u : 1u);
    }
}

TEST_F(KeyEdgePage, ThePlateIsAdjustedOnlyWhileItStands)
{
    Open(0x12320003);
    Tell("M/E-2@Key3@Edge@Edge#Border");
    EXPECT_THAT(Usable({17, 18, 33, 35}), ElementsAre(17));
    EXPECT_THAT(Press(17), Contains("put M/E-2@Key3@Edge@Edge#Zabton"));
}
