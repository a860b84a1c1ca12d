// The copy and swap pages: what they send for a choice, and what they refuse.
#include "table_page.h"

constexpr uint32_t ME = 0x31110000, KEY = 0x31120000, CHANNEL = 0x31160000, EFFECT = 0x31210000;
constexpr int ALL = 33, FIRST = 34, SECOND = 35, COPY = 49, SWAP = 50, UNDO = 51;

struct CopyPage : TablePage {
    void TearDown() override
    {
        SYS_MEOperation[3] = SYS_MEOperation[4] = 0;
        TablePage::TearDown();
    }
    static void Choose(int from, int to)
    {
        (void)ChooseRow(1, from);
        (void)ChooseRow(2, to);
        Pass(2000);
    }
};

TEST_F(CopyPage, OneCommandCarriesTheWholeChoice)
{
    const std::string path = "put Copy/Swap@";
    for (const auto& [page, from, to, parts, key, sent] :
         {std::tuple{ME, 0, 5, std::vector<int>{}, COPY, "M/E@Copy#M/E-1,PGM/PST,All"},
          {ME, 5, 0, {SECOND}, SWAP, "M/E@Swap#PGM/PST,M/E-1,Keys"},
          {KEY, 7, 40, {FIRST, SECOND}, COPY, "Key@Copy#M/E-1@Key8,PGM/PST@DSK1,Type,Edge"},
          {KEY, 1, 0, {FIRST, FIRST}, COPY, "Key@Copy#M/E-1@Key2,M/E-1@Key1,All"},
          {KEY, 1, 0, {FIRST, ALL}, COPY, "Key@Copy#M/E-1@Key2,M/E-1@Key1,All"},
          {0x31130000, 0, 2, {}, SWAP, "Wipe@Swap#M/E-1@Wipe,M/E-2@Wipe,All"},
          {0x31140000, 0, 1, {}, COPY, "DME Wipe@Copy#M/E-1@DME Wipe,M/E-1 SUB@DME Wipe,All"},
          {0x31150000,
           1,
           4,
           {},
           COPY,
           "Matte/Color@Copy#Color Bkgd@Bkgd 2,M/E-1@Key1@Type@Matte Adjust,All"},
          {0x31170000,
           0,
           1,
           {FIRST},
           SWAP,
           "Color Bkgd@Swap#Color Bkgd@Bkgd 1,Color Bkgd@Bkgd 2,Color 1"},
          {CHANNEL, 0, 3, {}, COPY, "DME Channel@Copy#1,4,All"},
          {EFFECT, 2, 1, {SECOND}, COPY, "DME Effect@Copy#3,2,Video"}}) {
        (void)Open(page);
        Choose(from, to);
        for (const int part : parts) {
            (void)Press(part);
            Pass(2000);
        }
        EXPECT_THAT(Puts(Press(key)), ElementsAre(path + sent)) << std::hex << page;
        if (parts == std::vector{FIRST, SECOND}) {
            EXPECT_TRUE(BT_GetStatus(FIRST) == BT_ON && BT_GetStatus(ALL) == BT_OFF);
        }
    }
}

TEST_F(CopyPage, NothingIsGivenToItselfAndUndoIsWhatTheServerCanUndo)
{
    const Lines opened = Open(KEY);
    EXPECT_EQ(Usable({COPY, SWAP}), std::vector<int>{}) << "nothing is chosen yet";
    EXPECT_EQ(LS_GetStatus(2, 0, 0), 1) << "grey";
    Choose(2, 1);
    EXPECT_EQ(Usable({COPY, SWAP}), (std::vector<int>{COPY, SWAP}));
    EXPECT_EQ(LS_GetStatus(2, 0, 0), 0);
    EXPECT_EQ(LS_GetStatus(2, 2, 0), 1);
    Choose(1, 1);
    EXPECT_EQ(Press(COPY).size() + Press(SWAP).size(), 0u);
    Choose(1, 48);
    EXPECT_EQ(Usable({COPY}), std::vector<int>{}) << "no such row";

    EXPECT_EQ(Held(opened, "M/E-2@Key3@Type@Key Type"), 1);
    TellAll("M/E-2@Key3@", {"Type@Key Type#Key Wipe Pattern", "Status@Source Name#CG 1"});
    for (const int list : {1, 2})
        EXPECT_EQ(Cells(list, 10, 1, 2), "Key Wipe|CG 1");
    (void)Tell("Copy/Swap@Key@Undo Enable#false");
    EXPECT_EQ(Usable({UNDO}), std::vector<int>{});
    (void)Tell("Copy/Swap@Key@Undo Enable#true");
    EXPECT_THAT(Press(UNDO), ElementsAre("put Copy/Swap@Key@Undo#true"));
    EXPECT_EQ(Held(opened, "M/E-5@Key8@Status@Source Name") +
                  Held(Leave(), "M/E-5@Key8@Status@Source Name"),
              0);
}

TEST_F(CopyPage, OnlyWhatTheSystemHasIsOffered)
{
    SYS_MEOperation[3] = SYS_MEOperation[4] = 1;
    GL_KeyMax[0] = 4;
    (void)Open(ME);
    EXPECT_EQ(LS_GetNData(1), 4);
    EXPECT_EQ(Cell(2, 3, 0), "P/P");
    (void)Open(CHANNEL);
    EXPECT_EQ(Cell(1, 3, 0), "DME4");
    (void)Open(KEY);
    EXPECT_EQ(LS_GetNData(1), 4 + 8 + 8 + 8);
    EXPECT_EQ(Cell(1, 4, 0), "M/E-2 Key1");
}
