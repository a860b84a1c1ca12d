// The wipe pages of a bank and both kinds of wipe snapshots, as the table opens them: their own
// lines on the wire, their buttons after tallies, on several banks and both sides.
#include "pc_me_wipe.h"
#include "register.h"
#include "table_page.h"

using MeWipe = TablePage;

// --- Pattern select ---

TEST_F(MeWipe, APatternWithoutAMiddleHasNoPosition)
{
    for (const auto& [page, line, disabled] :
         {std::tuple{0x11510000u, "M/E-1@Wipe@Main Pattern@Pattern#3", true},
          {0x11510000, "M/E-1@Wipe@Main Pattern@Pattern#33", false},
          {0x11510000, "M/E-1@Wipe@Sub Pattern@Pattern#3", false}, // of the other page
          {0x12520000, "M/E-2@Wipe@Sub Pattern@Pattern#150", true},
          {0x15510000, "M/E-1 SUB@Wipe@Main Pattern@Pattern#180", true},
          {0x15510000, "M/E-1@Wipe@Main Pattern@Pattern#180", false}, // of the other side
          // not in the catalogue
          {0x11510000, "M/E-1@Wipe@Main Pattern@Pattern#900", false}}) {
        Open(page);
        Tell(line);
        EXPECT_EQ(Usable({53, 54}).size(), disabled ? 0u : 2u) << line;
        EXPECT_STREQ(NB_GetTitle(), disabled ? "" : "Position") << line;
    }
    TellAll("M/E-1@Wipe@Main Pattern@Pattern#", {"3", "33"});
    EXPECT_THAT(Usable({53, 54}), ElementsAre(53, 54));
}

TEST_F(MeWipe, ThePlaceHasTheKnobsUnlessThePatternBringsItsOwn)
{
    constexpr int CELL_X = 125, CELL_Y = 85, LAYER_Y = 415;
    const std::string pattern = "M/E-4@Wipe@Main Pattern@";
    const std::string off = "put " + pattern + "Position#false";
    Open(0x81510000);
    TellAll(pattern, {"Pattern#66", "Position#true"});
    EXPECT_THAT(Press(53), Not(Contains(off)));
    EXPECT_EQ(BT_GetKnobAssign(), 53);

    // another circle: no modifiers
    EXPECT_THAT(Touch(CELL_X, CELL_Y), Contains("put " + pattern + "Pattern#65"));
    EXPECT_STREQ(NB_GetTitle(), "Position");
    EXPECT_EQ(BT_GetKnobAssign(), 53);

    Touch(220, LAYER_Y + 45);
    Touch(CELL_X, CELL_Y); // a star has its own
    EXPECT_STREQ(NB_GetTitle(), "241");
    EXPECT_EQ(BT_GetKnobAssign(), -1);
    // fetches the knobs; the place stays on
    EXPECT_THAT(Press(53), AllOf(Contains("add " + pattern + "Position@H"), Not(Contains(off))));

    Tell(pattern + "Position#false");
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
    Open(0x12520000);
    EXPECT_TRUE(stands());
    Touch(220, 415); // by hand
    EXPECT_TRUE(stands());
    for (const char* pattern : {"85", "66"}) { // by the tally
        Tell(std::string("M/E-2@Wipe@Sub Pattern@Pattern#") + pattern);
        EXPECT_TRUE(stands());
    }
}

// --- Pattern mix, modify ---

TEST_F(MeWipe, OnlyTwoPatternsOfOneOutlineEachCanMorph)
{
    static const std::tuple<const char*, const char*, bool> cases[] = {
        {"65", "33", false}, {"1", "97", false}, {"65", "180", true}, {"113", "33", true}};
    for (const auto& [main, sub, disabled] : cases) {
        EXPECT_THAT(Open(0x14530000), AllOf(Contains("add PGM/PST@Wipe@Main Pattern@Pattern"),
                                            Contains("add PGM/PST@Wipe@Sub Pattern@Pattern")));
        TellAll("PGM/PST@Wipe@",
                {std::string("Main Pattern@Pattern#") + main,
                 std::string("Sub Pattern@Pattern#") + sub, "Main Pattern@Size#113"}); // no pattern
        EXPECT_EQ(Disabled(), disabled ? std::set{21} : std::set<int>{}) << main << " and " << sub;
    }
}

TEST_F(MeWipe, TheModifiersOfAPatternAreThoseThatItHas)
{
    for (const auto& [page, line, disabled] :
         {std::tuple{0x13550000u, std::string("M/E-3@Wipe@Main Pattern@Pattern#67"),
                     std::set<int>{36, 37, 54}},
          {0x13550000, "M/E-3@Wipe@Main Pattern@Pattern#1", {17, 18, 19, 20}},
          {0x13560000, "M/E-3@Wipe@Sub Pattern@Pattern#1", {17, 18, 19, 20}},
          {0x13560000, "M/E-3@Wipe@Main Pattern@Pattern#1", {}},
          {0x17550000, "M/E-3 SUB@Wipe@Main Pattern@Pattern#81", {36, 37, 49, 50, 51, 52, 54}},
          {0x13550000, "M/E-3@Wipe@Main Pattern@Pattern#500", {}}}) {
        const Lines opened = Open(page);
        Tell(line);
        EXPECT_EQ(Disabled(), disabled) << line;
        if (!disabled.empty()) {
            EXPECT_THAT(opened, Contains("add " + line.substr(0, line.find('#'))));
        }
    }
    // and the next pattern gives back what the last one lacked
    Tell("M/E-3@Wipe@Main Pattern@Pattern#300");
    EXPECT_THAT(Usable({17, 33, 38, 49}), IsEmpty());
    Tell("M/E-3@Wipe@Main Pattern@Pattern#33");
    EXPECT_EQ(Usable({17, 33, 38, 49}).size(), 4u);
}

// --- Edge and direction ---

TEST_F(MeWipe, OneDirectionReplacesTheOtherAndMatteAdjustIsThatOfTheSameSide)
{
    const std::string path = "PGM/PST SUB@Wipe@Direction@";
    EXPECT_THAT(Open(0x18540000),
                AllOf(Contains("add " + path + "Normal"), Contains("add " + path + "Reverse")));
    TellAll(path, {"Normal#true", "Reverse#false"});
    EXPECT_EQ(BT_GetStatus(20), BT_ON);
    EXPECT_THAT(Press(21),
                ElementsAre("put " + path + "Reverse#true", "put " + path + "Normal#false"));
    EXPECT_EQ(BT_GetStatus(21), BT_OFF) << "before the tally";
    Tell(path + "Reverse#true");
    EXPECT_EQ(BT_GetStatus(21), BT_ON);
    EXPECT_EQ(PageBy(36), 0x18540001u);
    Open(0x82540000);
    EXPECT_EQ(PageBy(36), 0x82540001u);
}

TEST_F(MeWipe, TheKnobsOfTheMatteMixFollowItsPattern)
{
    const std::string matte = "M/E-5 SUB@Wipe@Edge/Direction@Matte Adjust@";
    Open(0x86540001);
    TellAll(matte, {"Mode#Mix", "Mix Pattern#Vertical"});
    (void)Press(18);
    EXPECT_EQ(Shown("V"), "no box");
    Tell(matte + "Mix Pattern#Circle");
    EXPECT_NE(Shown("V"), "no box");
    (void)Press(19); // the knobs are a colour's now, and stay with it
    TellAll(matte, {"Mix Pattern#Diagonal", "Mix Pattern#Box"});
    EXPECT_STREQ(NB_GetTitle(), "Color 1");
    (void)Press(18);
    EXPECT_NE(Shown("V"), "no box");
    Open(0x86540001); // which tells the same pattern once more
    TellAll(matte, {"Mode#Mix", "Mix Pattern#Box"});
    (void)Press(18);
    EXPECT_NE(Shown("V"), "no box");
}

// --- Snapshots ---

struct MeWipeSnapshot : MeWipe {
    // Keys of registers 7, 5, 1 and 10.
    enum : int { KEY_7 = 17, KEY_5 = 34, KEY_1 = 49, KEY_10 = 52, STORE = 22, DELETE = 38 };

    static void OpenWith(uint32_t page, const std::string& list, const Lines& lines)
    {
        Open(page);
        TellAll(list + "#", lines);
    }
};

TEST_F(MeWipeSnapshot, EachKeyRecallsItsRegisterAndPattern)
{
    const std::string wipe = "Snapshot@Wipe Snapshot@", dme = "Snapshot@DME Snapshot@",
                      key = "Snapshot@Key Snapshot@Attribute@",
                      recall = "Snapshot@Key Snapshot@Recall#";
    const std::tuple<uint32_t, std::string, int, Lines> cases[] = {
        {0x12570000,
         wipe + "M/E-2@List#7,CIRCLE,S,67",
         KEY_7,
         {wipe + "Recall#4,7", "M/E-2@Wipe@Main Pattern@Pattern#67"}},
        {0x85570000, wipe + "M/E-4 Sub@List#5,OLD,L", KEY_5, {wipe + "Recall#8000000,5"}},
        {0x14570000, wipe + "P/P@List#10,BIG,S,1000", KEY_10, {wipe + "Recall#1,10"}},
        {0x14570000, wipe + "P/P@List#10,EMPTY,E,5", KEY_10, {}},
        {0x18670000,
         dme + "P/P Sub@List#1,PUSH,S,1011",
         KEY_1,
         {dme + "Recall#800000,1", "PGM/PST SUB@DME Wipe@Pattern Select@Pattern#1011"}},
        {0x81670000, dme + "M/E-4@List#1,SMALL,S,1000", KEY_1, {dme + "Recall#10,1"}},
        {0x81670000, wipe + "M/E-4@List#1,OTHER,S,67", KEY_1, {}},
        // Those of a key stand in a row, the first where the bank's have 7.
        {0x12410005, key + "M/E-2@Key4@List#1,TITLE,S", KEY_7, {recall + "0000000000000800, 1"}},
        {0x18110005, key + "P/P@Key5@List#1,50,S", KEY_7, {recall + "0000100000000000, 1"}},
    };
    for (auto [page, line, button, puts] : cases) {
        Register_Free();
        Open(page);
        Tell(line);
        for (std::string& put : puts)
            put.insert(0, "put ");
        EXPECT_EQ(Press(button), puts) << line;
    }
}

TEST_F(MeWipeSnapshot, AModeStoresOrDeletesOnceAndThenRecallsAgain)
{
    const std::string wipe = "Snapshot@Wipe Snapshot@";
    OpenWith(0x11570000, wipe + "M/E-1@List", {"7,CIRCLE,S", "5,BOX,L"});
    EXPECT_THAT(Press(KEY_1), IsEmpty()) << "empty";

    // The mode, a register's key, what that sends, how the mode's key looks then.
    const std::tuple<int, int, Lines, int> cases[] = {
        {STORE, KEY_1, {"put " + wipe + "Store#2,1"}, BT_OFF},
        {STORE, KEY_7, {"put " + wipe + "Store#2,7"}, BT_OFF},
        {STORE, KEY_5, {}, BT_OFF},
        {DELETE, KEY_7, {"put " + wipe + "Delete#2,7,7"}, BT_OFF},
        {DELETE, KEY_5, {}, BT_OFF},
        {DELETE, KEY_10, {}, BT_THIRD},
    };
    for (const auto& [mode, key, sent, after] : cases) {
        EXPECT_THAT(Press(mode), IsEmpty());
        EXPECT_EQ(BT_GetStatus(mode), BT_THIRD);
        EXPECT_EQ(Press(key), sent) << mode << " " << key;
        EXPECT_EQ(BT_GetStatus(mode), after) << mode << " " << key;
        Pass(200);
    }
    (void)Press(STORE); // one mode ends the other
    EXPECT_EQ(BT_GetStatus(DELETE), BT_OFF);
    (void)Press(STORE);
    EXPECT_EQ(BT_GetStatus(STORE), BT_OFF);
    EXPECT_THAT(Press(KEY_7), ElementsAre("put " + wipe + "Recall#2,7"));
}

TEST_F(MeWipeSnapshot, ATouchThatChattersDoesNotRecallWhatItStored)
{
    OpenWith(0x11570000, "Snapshot@Wipe Snapshot@M/E-1@List", {"7,CIRCLE,S", "5,BOX,S"});
    (void)Press(KEY_5);
    (void)Press(STORE);
    EXPECT_EQ(Press(KEY_7).size(), 1u);
    EXPECT_EQ(BT_GetStatus(KEY_5), BT_OFF) << "one at a time";
    EXPECT_EQ(BT_GetStatus(KEY_7), BT_ON);
    Pass(140);
    EXPECT_THAT(Press(KEY_7), IsEmpty());
    Pass(10);
    EXPECT_EQ(BT_GetStatus(KEY_7), BT_OFF);
    EXPECT_EQ(Press(KEY_7).size(), 1u);
}

TEST_F(MeWipeSnapshot, AKeyShowsNumberNamePatternAndLock)
{
    const std::string list = "Snapshot@DME Snapshot@M/E-3";
    OpenWith(0x13670000, list + "@List",
             {"7,PUSH,S,1011", "5,1201,L", "10,,S", "1,WWWWWWWWWWW,S,1301", "2,FLY IN,S"});
    EXPECT_EQ(Caption(KEY_7), "7\nPUSH\n1011");
    EXPECT_EQ(Caption(KEY_5), "5   Lock\n1201");
    EXPECT_EQ(Caption(KEY_10), "10");
    EXPECT_EQ(Caption(50), "2\nFLY IN");
    EXPECT_LT(Caption(KEY_1).size(), strlen("1\nWWWWWWWWWWW\n1301")) << "wider than the key";
    EXPECT_THAT(Usable({17, 18, 34, 49, 52}), ElementsAre(17, 34, 49, 52));

    TellAll(list, {"@List#7,PUSH,E,1011", " Sub@List#7,OTHER,S,1011"}); // that is another side
    EXPECT_EQ(Caption(KEY_7), "7");
    EXPECT_EQ(BT_GetVisible(KEY_7), BT_DISABLED);
    (void)Press(STORE);
    EXPECT_EQ(Usable({17, 18, 34, 49, 52}).size(), 5u);
}

TEST_F(MeWipeSnapshot, WhatTheMirrorLacksIsAskedForOnce)
{
    const std::string list = "Snapshot@Wipe Snapshot@M/E-5 Sub@List";
    EXPECT_EQ(std::ranges::count(Open(0x86570000), "read " + list), 1);
    for (int i = 1; i <= 10; i++)
        Tell(list + "#" + std::to_string(i) + ",,E");
    EXPECT_EQ(std::ranges::count(Open(0x86570000), "read " + list), 0);
}

TEST_F(MeWipe, BoxesThatComeLeaveTheCellsTheirPaths)
{
    Open(0x11550000);
    const std::string h = "M/E-1@Wipe@Main Pattern@Position@H";
    Tell("M/E-1@Wipe@Main Pattern@Pattern#67");
    Tell("M/E-1@Wipe@Main Pattern@Position#true");
    EXPECT_THAT(Press(17), Contains("add " + h));
    EXPECT_THAT(Press(20), Not(Contains("remove " + h))) << "the cell shows it, too";
    EXPECT_THAT(Leave(), Contains("remove " + h));
}
