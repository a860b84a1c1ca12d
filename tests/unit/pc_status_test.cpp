// The overviews and the pages that only some installations have: what is shown, where it leads.
#include "a_hf.h"
#include "table_page.h"

constexpr uint32_t ME = 0x33110000, KEY = 0x33120000, WIPE = 0x33130000, OUTPUTS = 0x33140001,
                   EFFECTS = 0x33160000;
constexpr uint32_t MISC_TOP = 0x32000000, MISC = 0x32110000, RATE = 0x32160000;
constexpr int CELL_X = 250, CELL_Y = 120; // in the first one

struct StatusPage : TablePage {
    void TearDown() override
    {
        SYS_MEOperation[0] = 0;
        TablePage::TearDown();
    }
};

TEST_F(StatusPage, TheChosenLineSaysWhichPageAKeyOpensAndACellItself)
{
    static const std::tuple<uint32_t, int, int, uint32_t> cases[] = {
        {KEY, 0, 49, 0x11110000},         {KEY, 5, 50, 0x15220000},
        {KEY, 8 * 3 + 6, 54, 0x85370000}, {KEY, 8 * 5 + 3, 53, 0x14460000},
        {WIPE, 0, 49, 0x11710000},        {WIPE, 1, 50, 0x15510000},
        {WIPE, 10, 52, 0x14610000},       {EFFECTS, 0, 49, 0x42110000},
        {0x33170001, 2, 49, 0x53210000},
    };
    for (const auto& [page, row, key, opened] : cases) {
        (void)Open(page);
        LS_SetNowLine(1, row);
        EXPECT_EQ(PageBy(key), opened) << std::hex << page << " " << row;
        EXPECT_NE(SearchPageTable(opened), nullptr) << std::hex << opened;
    }
    (void)Open(ME);
    for (const auto& [x, y, page] :
         {std::tuple{CELL_X, CELL_Y, 0x11000000u}, {CELL_X + 400, CELL_Y + 176, 0x14000000u}}) {
        (void)Touch(x, y);
        EXPECT_EQ(std::exchange(GL_CreatePage, 0), page);
    }
}

TEST_F(StatusPage, ABankShowsWhichKeysAreOn)
{
    (void)Open(ME);
    std::vector<long> dark;
    for (const char* line :
         {"Key1@Status@Key ON#false", "Key1@Status@Key ON#true", "Key8@Status@Key ON#true"}) {
        (void)Tell(std::string("M/E-1@") + line);
        dark.push_back(std::ranges::count(Seen({103, 94, 290, 240}), 0u));
    }
    EXPECT_GT(dark[0], dark[1]) << "a number in the place of a dash";
    EXPECT_GT(dark[1], dark[2]);
}

TEST_F(StatusPage, EachThingThatThereIsHasItsLine)
{
    GL_ClipStoreSupportMode = 0;
    SYS_MyDme2 = 1;
    for (const auto& [page, count, first, last] : {std::tuple{KEY, 48, "M/E-1 Key1", "P/P DSK8"},
                                                   {WIPE, 12, "M/E-1", "P/P Sub"},
                                                   {0x33140000u, 48, "Aux 1", "Aux 48"},
                                                   {OUTPUTS, 8, "FM1", "FM8"},
                                                   {0x33150000u, 8, "Mon 1", "Mon 8"},
                                                   {EFFECTS, 8, "DME1", "DME8"},
                                                   {0x33170000u, 3, "PNL1", "DME1"},
                                                   {0x33170001u, 12, "Dev1", "Dev12"}}) {
        (void)Open(page);
        EXPECT_EQ(LS_GetNData(1), count) << first;
        EXPECT_EQ(Cell(1, 0, 0), first);
        EXPECT_EQ(Cell(1, count - 1, 0), last);
        (void)Tell("Global Effect@Ch5-Ch8@Priority@Ch5#3");
        EXPECT_EQ(Cell(1, 4, 3) == "3", page == EFFECTS) << first;
    }
    SYS_MyDme2 = -1;
    EXPECT_THAT(Leave(), Contains("put Device@DDR/VTR@Cueup&Play@Tally Back#false"));
}

TEST_F(StatusPage, APageAboutOneOfManyOpensAboutTheChosenOne)
{
    for (const uint32_t list : {0x33140000u, 0x33150000u}) {
        (void)Open(list);
        LS_SetNowLine(1, 5);
        const uint32_t page = PageBy(49);
        (void)Open(page);
        EXPECT_STREQ(GL_NowTree[2], page == 0x23110000 ? "Aux 6" : "Mon 6") << std::hex << page;
        LS_SetNowLine(1, 0);
        SendMessage(LMSG_LISTSEL, 1, 0, 0, 0); // as it was
    }
}

TEST_F(StatusPage, ALineShowsWhatTheServerSaysOfItsThing)
{
    (void)Open(KEY);
    TellAll("PGM/PST@DSK8@",
            {"Status@Key ON#true", "Type@Key Type#Color Vector", "Edge@Edge#Shadow"});
    (void)Tell("PGM/PST@DSK8@Edge@Edge@Width#5");
    EXPECT_EQ(Cells(1, 47, 0, 3), "P/P DSK8|O|Color Vct");
    EXPECT_EQ(Cell(1, 47, 5), "Shadow");
    EXPECT_EQ(Cell(1, 46, 5), "");
    (void)Open(EFFECTS);
    (void)Tell("DME@Status@Channel@2#M/E-1@Key3");
    EXPECT_EQ(Cell(1, 1, 1), "M/E-1 Key3");
}

TEST_F(StatusPage, AnOutputOfTheFrameMemoryShowsWhatItHas)
{
    const std::string status = "Frame Mem 2@Clip/Still@Output Status@FM12";
    GL_ClipStoreSupportMode = 1;
    const Lines opened = Open(OUTPUTS);
    EXPECT_EQ(std::count(opened.begin(), opened.end(), "add " + status), 1) << "of three columns";
    for (const auto& [value, shown] : {std::pair{"2,/NEWS/OPENING", "Recall|OPENING|NEWS"},
                                       {"2,/OPENING", "Recall|OPENING|"},
                                       {"1,", "Through||"},
                                       {"3,/OPENING", "|OPENING|"},
                                       {"0,", "Black||"},
                                       {"", "||"}}) {
        (void)Tell(status + "#" + value);
        EXPECT_EQ(Cells(1, 11, 1, 3), shown) << value;
    }
    (void)Tell("Frame Mem 2@Clip/Still@Play@FM12#1,30");
    EXPECT_EQ(Cell(1, 11, 4), "O");
    LS_SetNowLine(1, 11);
    EXPECT_THAT(Press(49), Contains("put Frame Mem 2@Clip/Still@Out Pair Select#FM11&12"));
    EXPECT_EQ(GL_CreatePage, 0x21110000u);
    GL_ClipStoreSupportMode = 0;
    (void)Open(OUTPUTS); // what was followed is left, whatever has become of the memory
    (void)Tell("Frame Mem@Recall@Recall Thumbnail@FM8#MOPENING");
    EXPECT_EQ(Cells(1, 7, 1, 2), "Recall|MOPENING");
    LS_SetNowLine(1, 7);
    Pass(1000);
    EXPECT_THAT(Press(49), Contains("put Frame Mem@Recall@Recall Thumbnail@Select#FM7&8"));
}

TEST_F(StatusPage, TheRatesOfABankCountTheKeysThatItHas)
{
    constexpr int BANK = 17, KEYS = 33;
    GL_KeyMax[1] = 4;
    SYS_MEOperation[0] = 1;
    (void)Open(RATE);
    EXPECT_EQ(Usable({BANK, KEYS, BANK + 1, KEYS + 1}), (std::vector<int>{BANK + 1, KEYS + 1}));
    (void)Press(KEYS + 5);
    (void)Tell("PGM/PST@DSK8@Transition@ON Transition Rate#12");
    EXPECT_EQ(Shown("DSK8 ON\nframes"), "12");
    (void)Press(KEYS + 1);
    (void)Tell("M/E-2@Key4@Transition@ON Transition Rate#7");
    EXPECT_EQ(Shown("Key4 ON\nframes"), "7");
    EXPECT_EQ(Shown("Key5 ON\nframes"), "no box");
    (void)Open(RATE); // it remembers who had the knobs
    EXPECT_STREQ(NB_GetTitle(), "M/E-2");
    EXPECT_EQ(Shown("Key5 ON\nframes"), "no box");
}

TEST_F(StatusPage, APageThatTheInstallationLacksHasNoTab)
{
    constexpr int TAB_X = 225, TAB_Y = 560;
    DEV_MyPnl[0] = &DEV_Pnl[0];
    SYS_MyPnlMax = 1;
    std::set<std::vector<uint32_t>> looks;
    for (const int option : {2, 0}) {
        DEV_Pnl[0].function[FUNCTION_OPTION_WORD] = option;
        (void)Open(MISC);
        looks.insert(Seen({TAB_X - 30, TAB_Y - 20, TAB_X + 30, TAB_Y + 20}));
        (void)Touch(TAB_X, TAB_Y);
        EXPECT_EQ(std::exchange(GL_CreatePage, 0), option ? 0x32120000u : 0u);
        (void)Open(MISC_TOP);
        EXPECT_EQ(Usable({18, 19}), option ? std::vector<int>({18, 19}) : std::vector<int>{19});
    }
    EXPECT_EQ(looks.size(), 2u);
    DEV_MyPnl[0] = nullptr;
    SYS_MyPnlMax = 0;
}
