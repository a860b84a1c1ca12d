// The wipe pages of a bank and both kinds of wipe snapshots, as the table opens them: their own
// lines on the wire, their buttons after tallies, on several banks and both sides.
#include "a_bt.h"
#include "a_nb.h"
#include "bus.h"
#include "global.h"
#include "harness.h"
#include "message.h"
#include "page.h"
#include "pc_me_wipe.h"
#include "register.h"
#include <algorithm>
#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using Lines = std::vector<std::string>;

struct MeWipe : testing::Test {
    const FullHouse all;

    void SetUp() override { Harness_Reset(); }
    void TearDown() override
    {
        GL_CreatePage = 0;
        CreatePage(PAGE_TOP);
        Page_Reset();
        Register_Free();
        (void)TakeQueuedCommands();
    }
    static void Open(uint32_t id)
    {
        ASSERT_EQ(CreatePage(id), 0);
        ASSERT_EQ(GL_NowPage, id);
        GL_CreatePage = 0;
        (void)TakeQueuedCommands();
    }
    static void Tell(const std::string& line) { SendDummyTally(line.c_str()); }
    static void Pass(int elapsed_ms) { SendMessage(MSG_REDRAW, elapsed_ms, 0, 0, 0); }
    static void Touch(int x, int y)
    {
        (void)TakeQueuedCommands();
        SendMessage(MSG_PRESS, x, y, 1, 0);
    }
    // What a touch of the button puts on the wire.
    static Lines Press(int id)
    {
        const BT_MEM* b = bt_find(id);
        EXPECT_TRUE(b) << id;
        if (b)
            Touch(b->x1 + 5, b->y1 + 5);
        return TakeQueuedCommands();
    }
    static Lines Disabled(std::initializer_list<int> ids)
    {
        Lines out;
        for (const int id : ids)
            if (BT_GetVisible(id) == BT_DISABLED)
                out.push_back(std::to_string(id));
        return out;
    }
};

TEST_F(MeWipe, WhatAPageCodeAddsItGivesBackWhenTheNextPageIsUp)
{
    static const struct {
        uint32_t page;
        std::vector<std::string> paths;
    } cases[] = {
        {0x12530000, {"M/E-2@Wipe@Main Pattern@Pattern", "M/E-2@Wipe@Sub Pattern@Pattern"}},
        {0x85540000, {"M/E-4 SUB@Wipe@Direction@Normal", "M/E-4 SUB@Wipe@Direction@Reverse"}},
        {0x18550000, {"PGM/PST SUB@Wipe@Main Pattern@Pattern"}},
        {0x81560000, {"M/E-4@Wipe@Sub Pattern@Pattern"}},
    };
    for (const auto& c : cases) {
        ASSERT_EQ(CreatePage(c.page), 0);
        const auto opened = TakeQueuedCommands();
        ASSERT_EQ(CreatePage(0x11710000), 0);
        const auto left = TakeQueuedCommands();
        for (const auto& path : c.paths) {
            // A cell or a button of the page may follow the same path: each has its own line.
            EXPECT_GE(std::ranges::count(opened, "add " + path), 1) << path;
            EXPECT_EQ(std::ranges::count(opened, "add " + path),
                      std::ranges::count(left, "remove " + path))
                << path;
        }
    }
}

// --- Pattern select ---

TEST_F(MeWipe, APatternWithoutAMiddleHasNoPosition)
{
    static const struct {
        uint32_t page;
        const char* line;
        bool disabled;
    } cases[] = {
        {0x11510000, "M/E-1@Wipe@Main Pattern@Pattern#3", true},
        {0x11510000, "M/E-1@Wipe@Main Pattern@Pattern#33", false},
        {0x11510000, "M/E-1@Wipe@Sub Pattern@Pattern#3", false}, // of the other page
        {0x12520000, "M/E-2@Wipe@Sub Pattern@Pattern#150", true},
        {0x15510000, "M/E-1 SUB@Wipe@Main Pattern@Pattern#180", true},
        {0x15510000, "M/E-1@Wipe@Main Pattern@Pattern#180", false}, // of the other side
        {0x11510000, "M/E-1@Wipe@Main Pattern@Pattern#900", false}, // not in the catalogue
    };
    for (const auto& c : cases) {
        Open(0x11710000);
        Open(c.page);
        Tell(c.line);
        EXPECT_EQ(Disabled({53, 54}).size(), c.disabled ? 2u : 0u) << c.line;
        EXPECT_STREQ(NB_GetTitle(), c.disabled ? "" : "Position") << c.line;
    }
    Tell("M/E-1@Wipe@Main Pattern@Pattern#3");
    Tell("M/E-1@Wipe@Main Pattern@Pattern#33");
    EXPECT_THAT(Disabled({53, 54}), IsEmpty());
}

TEST_F(MeWipe, ThePlaceHasTheKnobsUnlessThePatternBringsItsOwn)
{
    constexpr int CELL_X = 125, CELL_Y = 85, LAYER_Y = 415;
    Open(0x81510000);
    Tell("M/E-4@Wipe@Main Pattern@Pattern#66");
    Tell("M/E-4@Wipe@Main Pattern@Position#true");
    EXPECT_THAT(Press(53), testing::Not(Contains("put M/E-4@Wipe@Main Pattern@Position#false")));
    EXPECT_EQ(BT_GetKnobAssign(), 53);

    Touch(CELL_X, CELL_Y); // another circle: no modifiers
    EXPECT_THAT(TakeQueuedCommands(), Contains("put M/E-4@Wipe@Main Pattern@Pattern#65"));
    EXPECT_STREQ(NB_GetTitle(), "Position");
    EXPECT_EQ(BT_GetKnobAssign(), 53);

    Touch(220, LAYER_Y + 45);
    Touch(CELL_X, CELL_Y); // a star has its own
    EXPECT_STREQ(NB_GetTitle(), "241");
    EXPECT_EQ(BT_GetKnobAssign(), -1);
    const auto lines = Press(53); // fetches the knobs; the place stays on
    EXPECT_THAT(lines, Contains("add M/E-4@Wipe@Main Pattern@Position@H"));
    EXPECT_THAT(lines, testing::Not(Contains("put M/E-4@Wipe@Main Pattern@Position#false")));

    Tell("M/E-4@Wipe@Main Pattern@Position#false");
    Touch(410, LAYER_Y);
    Touch(CELL_X, CELL_Y); // while it is off nothing brings its knobs back
    EXPECT_STREQ(NB_GetTitle(), "");
    EXPECT_EQ(BT_GetKnobAssign(), -1);
}

TEST_F(MeWipe, TheKeysStandAgainAfterTheGridHasGoneToAnotherLayer)
{
    constexpr int KEY_X = 520, KEY_Y = 490; // where the grid reaches
    const auto stands = [] {
        Pass(10);
        Pass(10);
        return PixelAt(KEY_X, KEY_Y) != 0;
    };
    Harness_Video();
    Open(0x12520000);
    EXPECT_TRUE(stands());
    Touch(220, 415); // by hand
    EXPECT_TRUE(stands());
    Tell("M/E-2@Wipe@Sub Pattern@Pattern#85"); // by the tally
    EXPECT_TRUE(stands());
    Tell("M/E-2@Wipe@Sub Pattern@Pattern#66");
    EXPECT_TRUE(stands());
}

// --- Pattern mix, modify ---

TEST_F(MeWipe, OnlyTwoPatternsOfOneOutlineEachCanMorph)
{
    static const struct {
        const char *main, *sub;
        bool disabled;
    } cases[] = {{"65", "33", false}, {"1", "97", false}, {"65", "180", true}, {"113", "33", true}};
    for (const auto& c : cases) {
        Open(0x11710000);
        Open(0x14530000);
        Tell(std::string("PGM/PST@Wipe@Main Pattern@Pattern#") + c.main);
        Tell(std::string("PGM/PST@Wipe@Sub Pattern@Pattern#") + c.sub);
        EXPECT_THAT(Disabled({17, 18, 19, 20, 21, 22}), c.disabled ? Lines{"21"} : Lines{})
            << c.main << " and " << c.sub;
    }
}

TEST_F(MeWipe, TheModifiersOfAPatternAreThoseThatItHas)
{
    static const struct {
        uint32_t page;
        const char* line;
        Lines disabled;
    } cases[] = {
        {0x13550000, "M/E-3@Wipe@Main Pattern@Pattern#67", {"36", "37"}},
        {0x13550000, "M/E-3@Wipe@Main Pattern@Pattern#1", {"17", "18", "19", "20"}},
        {0x13560000, "M/E-3@Wipe@Sub Pattern@Pattern#1", {"17", "18", "19", "20"}},
        {0x13560000, "M/E-3@Wipe@Main Pattern@Pattern#1", {}},
        {0x17550000,
         "M/E-3 SUB@Wipe@Main Pattern@Pattern#81",
         {"36", "37", "49", "50", "51", "52"}},
        {0x13550000, "M/E-3@Wipe@Main Pattern@Pattern#500", {}},
    };
    for (const auto& c : cases) {
        Open(0x11710000);
        Open(c.page);
        Tell(c.line);
        EXPECT_EQ(Disabled({17, 18, 19, 20, 21, 22, 33, 34, 35, 36, 37, 38, 49, 50, 51, 52}),
                  c.disabled)
            << c.line;
    }
    // and the next pattern gives back what the last one lacked
    Tell("M/E-3@Wipe@Main Pattern@Pattern#300");
    EXPECT_EQ(Disabled({17, 33, 49}).size(), 3u);
    Tell("M/E-3@Wipe@Main Pattern@Pattern#33");
    EXPECT_THAT(Disabled({17, 33, 49}), IsEmpty());
}

// --- Edge and direction ---

TEST_F(MeWipe, OneDirectionReplacesTheOther)
{
    static const struct {
        uint32_t page;
        std::string bank;
    } cases[] = {{0x12540000, "M/E-2"}, {0x18540000, "PGM/PST SUB"}};
    for (const auto& c : cases) {
        const std::string path = c.bank + "@Wipe@Direction@";
        Open(c.page);
        Tell(path + "Normal#true");
        Tell(path + "Reverse#false");
        EXPECT_EQ(BT_GetStatus(20), BT_ON) << c.bank;
        EXPECT_EQ(BT_GetStatus(21), BT_OFF) << c.bank;
        EXPECT_THAT(Press(21),
                    ElementsAre("put " + path + "Reverse#true", "put " + path + "Normal#false"));
        EXPECT_EQ(BT_GetStatus(21), BT_OFF) << "before the tally";
        Tell(path + "Reverse#true");
        EXPECT_EQ(BT_GetStatus(21), BT_ON) << c.bank;
    }
}

TEST_F(MeWipe, MatteAdjustIsThatOfTheSameSide)
{
    for (const uint32_t page : {0x11540000u, 0x82540000u, 0x16540000u, 0x85540000u}) {
        Open(page);
        (void)Press(36);
        EXPECT_EQ(GL_CreatePage, page + 1);
    }
}

TEST_F(MeWipe, TheKnobsOfTheMatteMixFollowItsPattern)
{
    const std::string matte = "M/E-5 SUB@Wipe@Edge/Direction@Matte Adjust@";
    const auto has_place = [] {
        char cmd[CMD_SIZE];
        double var = 0;
        return NB_GetKnob_info("V", cmd, &var, CMD_SIZE) > 0;
    };
    Open(0x86540001);
    Tell(matte + "Mode#Mix");
    Tell(matte + "Mix Pattern#Vertical");
    (void)Press(18);
    EXPECT_FALSE(has_place());
    Tell(matte + "Mix Pattern#Circle");
    EXPECT_TRUE(has_place());
    (void)Press(20); // the knobs are a colour's now, and stay with it
    Tell(matte + "Mix Pattern#Diagonal");
    Tell(matte + "Mix Pattern#Box");
    EXPECT_STREQ(NB_GetTitle(), "Color 1");
    (void)Press(18);
    EXPECT_TRUE(has_place());
}

// --- Snapshots ---

struct MeWipeSnapshot : MeWipe {
    // Keys of registers 7, 5, 1 and 10.
    enum : int { KEY_7 = 17, KEY_5 = 34, KEY_1 = 49, KEY_10 = 52, STORE = 22, DELETE = 38 };

    static void OpenWith(uint32_t page, const std::string& list, const Lines& lines)
    {
        Open(page);
        for (const std::string& line : lines)
            Tell(list + "#" + line);
    }
    static std::string Caption(int id) { return bt_find(id)->caption; }
};

TEST_F(MeWipeSnapshot, EachKeyRecallsItsRegisterAndPattern)
{
    static const struct {
        uint32_t page;
        const char *list, *line;
        int key;
        Lines sent;
    } cases[] = {
        {0x12570000,
         "Snapshot@Wipe Snapshot@M/E-2@List",
         "7,CIRCLE,S,67",
         KEY_7,
         {"put Snapshot@Wipe Snapshot@Recall#4,7", "put M/E-2@Wipe@Main Pattern@Pattern#67"}},
        {0x85570000,
         "Snapshot@Wipe Snapshot@M/E-4 Sub@List",
         "5,OLD,L",
         KEY_5,
         {"put Snapshot@Wipe Snapshot@Recall#8000000,5"}},
        {0x14570000,
         "Snapshot@Wipe Snapshot@P/P@List",
         "10,240,S",
         KEY_10,
         {"put Snapshot@Wipe Snapshot@Recall#1,10", "put PGM/PST@Wipe@Main Pattern@Pattern#240"}},
        {0x14570000,
         "Snapshot@Wipe Snapshot@P/P@List",
         "10,BIG,S,1000",
         KEY_10,
         {"put Snapshot@Wipe Snapshot@Recall#1,10"}},
        {0x14570000, "Snapshot@Wipe Snapshot@P/P@List", "10,EMPTY,E,5", KEY_10, {}},
        {0x18670000,
         "Snapshot@DME Snapshot@P/P Sub@List",
         "1,PUSH,S,1011",
         KEY_1,
         {"put Snapshot@DME Snapshot@Recall#800000,1",
          "put PGM/PST SUB@DME Wipe@Pattern Select@Pattern#1011"}},
        {0x81670000,
         "Snapshot@DME Snapshot@M/E-4@List",
         "1,SMALL,S,999",
         KEY_1,
         {"put Snapshot@DME Snapshot@Recall#10,1"}},
        {0x81670000, "Snapshot@Wipe Snapshot@M/E-4@List", "1,OTHER,S,67", KEY_1, {}},
    };
    for (const auto& c : cases) {
        Register_Free();
        OpenWith(c.page, c.list, {c.line});
        EXPECT_EQ(Press(c.key), c.sent) << c.line;
    }
}

TEST_F(MeWipeSnapshot, AModeStoresOrDeletesOnceAndThenRecallsAgain)
{
    const std::string list = "Snapshot@Wipe Snapshot@M/E-1@List";
    OpenWith(0x11570000, list, {"7,CIRCLE,S", "5,BOX,L"});
    EXPECT_THAT(Press(KEY_1), IsEmpty()) << "empty";

    static const struct {
        int mode, key;
        Lines sent;
        int after; // status of the mode key
    } cases[] = {
        {STORE, KEY_1, {"put Snapshot@Wipe Snapshot@Store#2,1"}, BT_OFF},
        {STORE, KEY_7, {"put Snapshot@Wipe Snapshot@Store#2,7"}, BT_OFF},
        {STORE, KEY_5, {}, BT_OFF},
        {DELETE, KEY_7, {"put Snapshot@Wipe Snapshot@Delete#2,7,7"}, BT_OFF},
        {DELETE, KEY_5, {}, BT_OFF},
        {DELETE, KEY_10, {}, BT_THIRD},
    };
    for (const auto& c : cases) {
        EXPECT_THAT(Press(c.mode), IsEmpty());
        EXPECT_EQ(BT_GetStatus(c.mode), BT_THIRD);
        EXPECT_EQ(Press(c.key), c.sent) << c.mode << " " << c.key;
        EXPECT_EQ(BT_GetStatus(c.mode), c.after) << c.mode << " " << c.key;
        Pass(200);
    }
    (void)Press(STORE); // one mode ends the other
    EXPECT_EQ(BT_GetStatus(DELETE), BT_OFF);
    (void)Press(STORE);
    EXPECT_EQ(BT_GetStatus(STORE), BT_OFF);
    EXPECT_THAT(Press(KEY_7), ElementsAre("put Snapshot@Wipe Snapshot@Recall#2,7"));
}

TEST_F(MeWipeSnapshot, ATouchThatChattersDoesNotRecallWhatItStored)
{
    OpenWith(0x11570000, "Snapshot@Wipe Snapshot@M/E-1@List", {"7,CIRCLE,S"});
    (void)Press(STORE);
    EXPECT_EQ(Press(KEY_7).size(), 1u);
    EXPECT_EQ(BT_GetStatus(KEY_7), BT_ON);
    Pass(140);
    EXPECT_THAT(Press(KEY_7), IsEmpty());
    Pass(10);
    EXPECT_EQ(BT_GetStatus(KEY_7), BT_OFF);
    EXPECT_EQ(Press(KEY_7).size(), 1u);
}

TEST_F(MeWipeSnapshot, AKeyShowsNumberNamePatternAndLock)
{
    Harness_Video();
    const std::string list = "Snapshot@DME Snapshot@M/E-3@List";
    OpenWith(0x13670000, list,
             {"7,PUSH,S,1011", "5,1201,L", "10,,S", "1,WWWWWWWWWWW,S,1301", "2,FLY IN,S"});
    EXPECT_EQ(Caption(KEY_7), "7\nPUSH\n1011");
    EXPECT_EQ(Caption(KEY_5), "5   Lock\n1201");
    EXPECT_EQ(Caption(KEY_10), "10");
    EXPECT_EQ(Caption(50), "2\nFLY IN");
    EXPECT_LT(Caption(KEY_1).size(), strlen("1\nWWWWWWWWWWW\n1301")) << "wider than the key";
    EXPECT_EQ(Disabled({17, 18, 34, 49, 52}), Lines{"18"});

    Tell(list + "#7,PUSH,E,1011");
    EXPECT_EQ(Caption(KEY_7), "7");
    EXPECT_EQ(BT_GetVisible(KEY_7), BT_DISABLED);
    Tell("Snapshot@DME Snapshot@M/E-3 Sub@List#7,OTHER,S,1011"); // another side
    EXPECT_EQ(Caption(KEY_7), "7");
    (void)Press(STORE);
    EXPECT_THAT(Disabled({17, 18, 34, 49, 52}), IsEmpty());
}

TEST_F(MeWipeSnapshot, WhatTheMirrorLacksIsAskedForOnce)
{
    const std::string read = "read Snapshot@Wipe Snapshot@M/E-5 Sub@List";
    ASSERT_EQ(CreatePage(0x86570000), 0);
    EXPECT_EQ(std::ranges::count(TakeQueuedCommands(), read), 1);
    for (int i = 1; i <= 10; i++)
        Tell("Snapshot@Wipe Snapshot@M/E-5 Sub@List#" + std::to_string(i) + ",,E");
    ASSERT_EQ(CreatePage(0x86570000), 0);
    EXPECT_EQ(std::ranges::count(TakeQueuedCommands(), read), 0);
}
