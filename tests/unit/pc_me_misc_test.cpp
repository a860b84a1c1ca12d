// The pages of a bank's own settings as the table opens them: what their page code sends, what it
// subscribes, which buttons the installation leaves.
#include "a_st.h"
#include "table_page.h"

struct MeMisc : TablePage {
    // The line of the priority cell that has the bar; -1 none.
    static int MarkedLine()
    {
        int marked = -1;
        Pass(10);
        for (int line = 0; line < 4; line++)
            if (PixelAt(608, 165 + 22 + 15 * line) == 0xFFFFFF) {
                EXPECT_EQ(marked, -1);
                marked = line;
            }
        return marked;
    }
};

// Of the page's id and of the paths.
static const std::pair<uint32_t, std::string> two_banks[] = {{0x12000000, "M/E-2"},
                                                             {0x85000000, "M/E-4 SUB"}};

// --- Transition ---

TEST_F(MeMisc, ATypeOfTransitionTakesThePlaceOfTheOneBeforeAndLimitIsASwitch)
{
    for (const auto& [bank, word] : two_banks) {
        const std::string path = word + "@Misc@Transition@", mode = path + "Transition Mode";
        EXPECT_THAT(Open(bank + 0x710000),
                    AllOf(Contains("add " + path + "Super Mix"), Contains("add " + mode)));
        EXPECT_THAT(Puts(Press(1)), ElementsAre("put " + path + "Mix#true")) << "there was none";
        TellAll(path, {"Mix#false", "Wipe#true"});
        EXPECT_EQ(BT_GetStatus(17), BT_ON);
        EXPECT_THAT(Puts(Press(3)),
                    ElementsAre("put " + path + "Wipe#false", "put " + path + "Super Mix#true"));
        TellAll(path, {"Wipe#false", "Super Mix#true"});
        EXPECT_EQ(BT_GetStatus(17), BT_OFF);
        EXPECT_EQ(BT_GetStatus(3), BT_ON);
        EXPECT_THAT(Press(17), Contains("put " + path + "Super Mix#false"));
        // A press on a lit type that does not own the knobs only moves them.
        const Lines sent = Press(3);
        EXPECT_THAT(sent, Contains("add " + path + "Super Mix@A Video"));
        EXPECT_THAT(Puts(sent), IsEmpty());

        EXPECT_THAT(Puts(Press(5)), ElementsAre("put " + mode + "#Limit"));
        EXPECT_NE(BT_GetStatus(5), BT_ON) << "the server has not said so";
        Tell(mode + "#Limit");
        EXPECT_EQ(BT_GetStatus(5), BT_ON);
        EXPECT_THAT(Puts(Press(5)), ElementsAre("put " + mode + "#Full"));
        EXPECT_THAT(Leave(), Contains("remove " + mode));
    }
}

TEST_F(MeMisc, ABankOfFourKeysShowsFourAndProgramCallsThemDsk)
{
    for (const auto& [page, index, bank, word, other] :
         {std::tuple{0x13710000u, 2, "M/E-3@", "Key", "DSK"},
          {0x14710000u, 5, "PGM/PST@", "DSK", "Key"}})
        for (const int keys : {8, 4}) {
            GL_KeyMax[index] = keys;
            Open(page);
            EXPECT_EQ(BT_GetVisible(50), keys == 8 ? BT_ENABLED : BT_CUTOFF) << word;
            EXPECT_EQ(Caption(50), std::string(word) + "5");
            const Lines sent = Press(22);
            const std::string add = std::string("add ") + bank,
                              rate = "8@Transition@ON Transition Rate";
            EXPECT_EQ(std::ranges::count(sent, add + word + rate), keys == 8) << word;
            EXPECT_THAT(sent, Not(Contains(add + other + rate)));
            Open(page); // it remembers who had the knobs
            NextLayer();
            EXPECT_EQ(NB_GetLayer(), keys == 8) << word;
            NextLayer();
        }
    for (const auto& [page, first] : {std::pair{0x14710000u, 1}, {0x18710000u, 5}}) {
        Open(page);
        for (int key = 0; key < 4; key++)
            EXPECT_EQ(Caption(34 + key), "DSK" + std::to_string(first + key));
    }
}

TEST_F(MeMisc, WithoutClipsOrTheSubSidesDmeWipeThereIsNeitherTheirTypeNorTheirTab)
{
    constexpr int TAB_X = 97 + 4 * 86 + 40;
    for (const int has_it : {1, 0}) {
        SYS_FmemV6 = SYS_DWSubEnable = has_it;
        for (const auto& [page, type] :
             {std::pair{0x81710000u, 19}, {0x16710000u, 18}, {0x12710000u, 18}}) {
            const bool is_there = has_it || page == 0x12710000; // the main side has its own wipe
            Open(page);
            EXPECT_EQ(BT_GetVisible(type), is_there ? BT_ENABLED : BT_DISABLED) << type;
        }
        for (const uint32_t id : {0x81710000u, 0x81710001u, 0x81730000u, 0x81770000u}) {
            Open(id);
            (void)Touch(TAB_X, 550);
            EXPECT_EQ(std::exchange(GL_CreatePage, 0), has_it ? 0x81760000u : 0u) << std::hex << id;
        }
    }
}

TEST_F(MeMisc, UnityPutsTheGainsOfTheOwnBankAndSide)
{
    for (const auto& [bank, word] : two_banks) {
        const std::string path = word + "@Misc@Video Process@";
        Open(bank + 0x720000);
        Tell(path + "Video Process#true");
        EXPECT_THAT(Press(2),
                    ElementsAre("put " + path + "Luminance#100.00", "put " + path + "Chroma#100.00",
                                "put " + path + "Hue#0.00", "put " + path + "Black Level#0.00"));
        Tell(path + "Video Process#false");
        EXPECT_THAT(Press(2), IsEmpty());
    }
}

// --- Priority ---

TEST_F(MeMisc, TheMatrixSetsTheListThatIsChosen)
{
    const std::string current = "M/E-3@Misc@Key Priority@Key Priority";
    const std::string next = "M/E-3@Misc@Key Priority@Next Key Priority";
    Open(0x13730000);
    Pass(0);
    Tell(current + "#1,2,3,4,4,3,2,1");
    EXPECT_EQ(bt_find(17)->redraw, 1);
    Tell(next + "#2,1,3,4,1,2,3,4");
    EXPECT_EQ(BT_GetStatus(5), BT_ON);
    EXPECT_EQ(BT_GetStatus(17), BT_ON) << "key 1 on top";
    EXPECT_THAT(Press(19), ElementsAre("put " + current + "#2,3,1,4,4,3,2,1"));
    EXPECT_THAT(Press(21), ElementsAre("put " + next + "#1,2,3,4,4,3,2,1"));

    EXPECT_THAT(Press(6), Contains("read " + next));
    EXPECT_EQ(BT_GetStatus(6), BT_ON);
    Tell(next + "#2,1,3,4,1,2,3,4");
    EXPECT_EQ(BT_GetStatus(18), BT_ON) << "key 2 on top";
    Tell(current + "#3,2,1,4,4,3,2,1");
    EXPECT_EQ(BT_GetStatus(18), BT_ON) << "not the list on show";
    EXPECT_THAT(Press(20), ElementsAre("put " + next + "#3,2,4,1,1,2,3,4"));
}

TEST_F(MeMisc, APressMovesOneKeyAndShiftsTheOthersWhenTheOrderIsKnown)
{
    const std::string path = "M/E-3@Misc@Key Priority@Key Priority#";
    // The button: high nibble the priority, low nibble the key.
    for (const auto& [page, before, button, after] :
         {std::tuple{0x13730000u, "1,2,3,4,5,6,7,8", 0x14, "2,3,4,1,5,6,7,8"},
          {0x13730000, "1,2,3,4", 0x41, "4,1,2,3"},
          {0x13730000, "2,1,4,3", 0x43, "2,1,4,3"}, // it is there already, and there are four keys
          {0x13730001, "4,3,2,1,1,2,3,4", 0x12, "4,3,2,1,2,1,3,4"},
          {0x13730000, "1,1,2,3", 0x13, ""}, // nobody has the last place
          {0x13730001, "1,2,3,4", 0x11, ""}}) {
        Open(page);
        Tell(path + before);
        EXPECT_EQ(Press(button), *after ? Lines{"put " + path + after} : Lines{}) << before;
    }
    Open(0x13730000);
    Tell(path + "1,2,3,");
    EXPECT_EQ(BT_GetStatus(0x11), BT_NO_TALLY) << "too short";
    Tell(path + "1,2,3,4");
    BT_SetStatus(0x21, BT_ON);
    BT_SetStatus(0x22, BT_OFF); // key 2 has no place
    EXPECT_THAT(Press(0x12), IsEmpty());
}

TEST_F(MeMisc, TheNormalOrderIsThatOfThePagesOwnKeys)
{
    for (const auto& [page, bank, value, sent, button] :
         {std::tuple{0x11730000u, "M/E-1", "4,3,2,1,4,3,2,1", "1,2,3,4,4,3,2,1", 22},
          {0x11730000, "M/E-1", "4,3,2,1", "1,2,3,4", 22},
          {0x11730000, "M/E-1", "", "1,2,3,4", 22},
          {0x14730001, "PGM/PST", "4,3,2,1,4,3,2,1", "4,3,2,1,1,2,3,4", 22},
          {0x14730001, "PGM/PST", "", "1,2,3,4,1,2,3,4", 22},
          {0x86730000, "M/E-5 SUB", "4,3,2,1,4,3,2,1", "4,3,2,1,1,2,3,4", 6}}) {
        const std::string path = std::string(bank) + "@Misc@Key Priority@Key Priority";
        Open(page);
        if (value[0])
            Tell(path + "#" + value);
        EXPECT_THAT(Press(button), ElementsAre("put " + path + "#" + sent)) << bank;
    }
}

TEST_F(MeMisc, TheMatrixGivesBackBothListsWhicheverWasShown)
{
    for (const std::vector<int>& presses : {std::vector<int>{}, {6}, {6, 5}}) {
        Lines sent = Open(0x12730001);
        const auto also = [&](const Lines& lines) {
            sent.insert(sent.end(), lines.begin(), lines.end());
        };
        for (const int id : presses)
            also(Press(id));
        EXPECT_GE(Held(sent, "M/E-2@Misc@Key Priority@Key Priority"), 1);
        also(Leave());
        for (const char* list : {"Key Priority", "Next Key Priority"})
            EXPECT_EQ(Held(sent, std::string("M/E-2@Misc@Key Priority@") + list), 0) << list;
    }
}

// The bar lies on the line of the key whose page it is.
TEST_F(MeMisc, AKeysOwnPlaceIsMarkedInItsPriorityCell)
{
    for (const auto& [page, tally, line] :
         {std::tuple{0x11110000u, "M/E-1@Misc@Key Priority@Key Priority#2,1,3,4", 1},
          {0x14410000, "PGM/PST@Misc@Key Priority@Key Priority#2,4,3,1,1,2,3,4", 0},
          {0x85310000, "M/E-4@Misc@Key Priority@Key Priority#1,2,3,4,1,2,4,3", 3},
          {0x85310000, "M/E-4@Misc@Key Priority@Key Priority#1,2,3,4", -1},
          {0x11110000, "M/E-1@Misc@Key Priority@Key Priority#1,1,3,4", -1},
          {0x11110000, "M/E-1@Misc@Key Priority@Key Priority#1,2,9,4", -1}}) {
        Open(page);
        Tell(tally);
        EXPECT_EQ(MarkedLine(), line) << tally;
    }
}

// In a bank of two sides keys 5 to 8 go by the order of their own side, once it has one.
TEST_F(MeMisc, TheOrderOfTheSubSidesKeysIsTheSameOnAllPages)
{
    multiprogram2_me[1] = 1;
    for (const auto& [enable, line] : {std::pair{"true", 3}, {"false", 0}}) {
        const std::string own = "M/E-1 SUB@Misc@Key Priority@";
        const auto tell_orders = [&](const std::string& value) {
            Tell("M/E-1@Misc@Key Priority@Key Priority#1,2,3,4,1,2,3,4");
            TellAll(own, {"Key Priority#1,2,3,4,4,3,2,1", std::string("Enable#") + value});
        };
        Open(0x15110000);
        tell_orders(enable);
        EXPECT_EQ(MarkedLine(), line) << enable << " of key 5";

        Open(0x11730000);
        EXPECT_EQ(PageBy(53), 0x15730000u);

        const Lines opened = Open(0x11730001);
        tell_orders(enable);
        EXPECT_EQ(Usable({0x11, 0x44, 5, 22}).empty(), line == 3) << enable;
        EXPECT_EQ(Held(opened, own + "Enable"), -Held(Leave(), own + "Enable"));
    }
}

TEST_F(MeMisc, AKeyTakesPartInTheTransitionsOfItsOwnSide)
{
    multiprogram2_me[2] = 1;
    const auto sides = [&](const char* key5) {
        std::string usable;
        Open(0x12710000);
        Tell(std::string("M/E-2@Misc@Key Assign@Key5#") + key5);
        usable += BT_GetVisible(50) == BT_ENABLED ? "m" : "";
        Open(0x16710000);
        Tell(std::string("M/E-2@Misc@Key Assign@Key5#") + key5);
        usable += BT_GetVisible(34) == BT_ENABLED ? "s" : "";
        return usable;
    };
    EXPECT_EQ(sides("Main"), "m");
    EXPECT_EQ(sides("Sub"), "s");
    EXPECT_EQ(sides("Both"), "ms");
    EXPECT_EQ(sides("Off"), "");
    multiprogram2_me[2] = 0;
    EXPECT_EQ(sides("Sub")[0], 'm') << "one side has all keys";
}

TEST_F(MeMisc, AWipeOfTheInternalChannelsHasItsPictureInTheCells)
{
    constexpr Rect picture = {120, 95, 190, 135};
    const auto shown = [&](const char* number) {
        Open(0x11710000);
        Tell("M/E-1@Misc@Transition@DME Wipe#true");
        Tell(std::string("M/E-1@DME Wipe@Pattern Select@Pattern#") + number);
        Pass(10);
        return PixelsIn(picture);
    };
    const auto of_set_1 = shown("1001");
    EXPECT_EQ(shown("7001"), of_set_1);
    EXPECT_NE(shown("9999"), of_set_1);
}

// --- Other cells of a key ---

TEST_F(MeMisc, TheCellsOfAKeyTellInversionPositionAndTheMonitorOfItsChannels)
{
    const std::string type = "M/E-1@Key1@Type@";
    const auto lit = [] {
        Pass(10);
        return std::string(PixelAt(208, 97) == 0xFFFFFF ? "i" : "") +
               (PixelAt(208, 112) == 0xFFFFFF ? "p" : "");
    };
    Open(0x11120000);
    TellAll(type, {"Key Type#Luminance", "Key Position@Linear#true"});
    EXPECT_EQ(lit(), "");
    Tell(type + "Key Position@Luminance#true");
    EXPECT_EQ(lit(), "p");
    TellAll(type, {"Key Invert#true", "Key Type#Chroma"});
    EXPECT_EQ(lit(), "i");

    Open(0x81210000);
    Tell("M/E-4@Key2@Processed Key@DME Select@DME3#true");
    for (const char* monitor : {"3", "2", "0", "9", "x", "-1"}) {
        Tell(std::string("M/E-1@Key1@Processed Key@Monitor#") + monitor);
        Pass(10);
        EXPECT_EQ(PixelAt(508, 165 + 22 + 15) == 0xFFFFFF, monitor[0] == '3') << monitor;
    }
}

// Without that cell the fill and the source still say which of them is assigned.
TEST_F(MeMisc, FillAndSourceOpenTheirAssignmentAlsoWhereACellIsMissing)
{
    for (const int is_4k : {0, 1}) {
        SYS_4KMode = is_4k;
        for (const uint32_t page : {0x11110000u, 0x11310000u, 0x81110000u}) {
            Open(page);
            GL_FillSourceAssignMode = 7;
            (void)Touch(250, 200);
            EXPECT_EQ(GL_FillSourceAssignMode, 0) << std::hex << page;
            Open(page);
            (void)Touch(150, 200);
            EXPECT_EQ(GL_FillSourceAssignMode, 1) << std::hex << page;
        }
    }
}

// Where both ways share a setting it is kept as that of coming.
TEST_F(MeMisc, TheCellOfGoingShowsHowTheKeyReallyGoes)
{
    for (const int has_own : {0, 1}) {
        SYS_KeyTransitionME2 = has_own;
        Open(0x12110000);
        TellAll("M/E-2@Key1@Transition@",
                {"ON Transition Type#Cut", "OFF Transition Type#Stinger"});
        Pass(10);
        const bool is_alike = PixelsIn({305, 190, 394, 229}) == PixelsIn({405, 190, 494, 229});
        EXPECT_EQ(is_alike, !has_own);
    }
}

// --- Assignment ---

TEST_F(MeMisc, TheTwoSwitchesOfAKeyAreOneWord)
{
    // The word, how the two switches look, and what each of them sends then.
    static const std::tuple<const char*, int, int, const char*, const char*> cases[] = {
        {"Main", BT_ON, BT_OFF, "Off", "Both"}, {"Sub", BT_OFF, BT_ON, "Both", "Off"},
        {"Both", BT_ON, BT_ON, "Sub", "Main"},  {"Off", BT_OFF, BT_OFF, "Main", "Sub"},
        {"?", BT_ON, BT_OFF, "Off", "Both"}, // as the setup says
    };
    const std::string path = "PGM/PST@Misc@Key Assign@Key6";
    Open(0x14740000);
    EXPECT_EQ(Caption(18), "DSK6");
    for (const auto& [word, main, sub, after_main, after_sub] : cases) {
        Tell(path + "#" + word);
        EXPECT_EQ(BT_GetStatus(18), main) << word;
        EXPECT_EQ(BT_GetStatus(50), sub) << word;
        EXPECT_THAT(Press(18), ElementsAre("put " + path + "#" + after_main));
        EXPECT_THAT(Press(50), ElementsAre("put " + path + "#" + after_sub));
    }
}

TEST_F(MeMisc, AKeyThatNobodyAssignedFollowsTheSetup)
{
    Open(0x12740000);
    TellAll("Engineering Setup@Switcher@Config@",
            {"M/E Output Assign@List#M/E-2,1,Main", "M/E Output Assign@List#M/E-2,2,Sub",
             "PGM Config@List#M/E-2,1,03",   // keys 1 and 2
             "PGM Config@List#M/E-2,2,42"}); // keys 2 and 7
    // The buttons of the main and the sub side.
    static const std::tuple<int, int, bool, bool> keys[] = {
        {1, 33, true, false}, {2, 34, true, true}, {3, 35, false, false}, {19, 51, false, true}};
    for (const auto& [main, sub, is_main, is_sub] : keys) {
        EXPECT_EQ(BT_GetOnOff(main), is_main) << main;
        EXPECT_EQ(BT_GetOnOff(sub), is_sub) << sub;
    }
    Tell("M/E-2@Misc@Key Assign@Key1#Off");
    EXPECT_EQ(BT_GetOnOff(1), 0);
    const Lines sent = Press(5);
    EXPECT_EQ(sent.size(), 8u);
    EXPECT_THAT(sent, Contains("put M/E-2@Misc@Key Assign@Key1#Main"));
    EXPECT_THAT(sent, Contains("put M/E-2@Misc@Key Assign@Key7#Sub"));
}

// A cell that is told a text must look like one that works the same text out from the setup.
TEST_F(MeMisc, TheAssignCellTellsTheOutputsOfABankOfOneSide)
{
    const std::string list = "Engineering Setup@Switcher@Config@PGM Config@List#";
    const auto told = [&](const char* key1, const char* key2) {
        TellAll("PGM/PST@Misc@Key Assign@",
                {std::string("Key1#") + key1, std::string("Key2#") + key2});
        Pass(10);
        return PixelsIn({403, 95, 496, 162});
    };
    multiprogram2_me[0] = 0;
    Open(0x14740000);
    Tell(list + "KILL");
    EXPECT_EQ(told("", ""), told("Main", "Main")) << "not known";
    TellAll(list, {"P/P,1,FD", "PGM/PST,8,FF", "M/E-1,2,FF", "P/P,9,FF", "P/P,2"});
    EXPECT_EQ(told("", ""), told("1,8", "8"));
    EXPECT_NE(told("", ""), told("1,8", "1,8"));
}

TEST_F(MeMisc, ABankOfOneSideHasNoSubToAssignTo)
{
    multiprogram2_me[3] = 0;
    GL_KeyMax[2] = 4;
    Open(0x13740000);
    EXPECT_EQ(BT_GetVisible(33), BT_DISABLED);
    EXPECT_EQ(BT_GetVisible(36), BT_DISABLED) << "nor for its last key";
    EXPECT_EQ(BT_GetVisible(1), BT_ENABLED);
    EXPECT_EQ(BT_GetVisible(49), BT_CUTOFF) << "the bank has no fifth key";
    EXPECT_EQ(BT_GetOnOff(4), 1);
}

// --- Clip and snapshot ---

TEST_F(MeMisc, TheTwoTimesLieInTheClipThatIsLoaded)
{
    const std::string path = "M/E-5@Misc@Clip Transition@";
    Open(0x82760000);
    Tell(path + "Clip Name#");
    EXPECT_THAT(Usable({37, 53}), IsEmpty());
    Tell(path + "Clip Name#GOAL");
    EXPECT_THAT(Usable({37, 53}), ElementsAre(37, 53));
    // What a value far beyond becomes.
    static const std::pair<const char*, double> cases[] = {
        {"250", 249}, {"-5", 215999}, {"x", 215999}, {"1", 215999}, {"5184000", 5183999}};
    for (const auto& [duration, sent] : cases) {
        Open(0x82760000);
        if (sent != 249) // the boxes may be there before
            (void)Press(37);
        Tell(path + "Clip Duration#" + duration);
        if (sent == 249)
            (void)Press(37);
        Tell(path + "Start TC#0");
        (void)NB_SetSelect(1);
        (void)NB_SendTrimValue(9999999);
        char expected[64];
        NB_Text(NB_MEM{.type = NB_TC}, sent, expected, sizeof expected);
        EXPECT_THAT(TakeQueuedCommands(), Contains("put " + path + "Start TC#" + expected))
            << duration;
    }
}

TEST_F(MeMisc, AllHoldTellsNoneSomeAndAllAndSetsTheRest)
{
    const std::string path = "M/E-1@Misc@Snapshot@Xpt Hold@";
    GL_KeyMax[0] = 4;
    const std::vector<std::string> holds = {"Bkgd A", "Bkgd B", "Utility 1", "Utility 2",
                                            "Key1",   "Key2",   "Key3",      "Key4"};
    Open(0x11770000);
    Tell(path + "Bkgd A#false");
    EXPECT_EQ(BT_GetStatus(5), BT_OFF);
    Tell(path + "Key2#true");
    EXPECT_EQ(BT_GetStatus(5), BT_THIRD);
    const Lines sent = Press(5);
    EXPECT_EQ(sent.size(), holds.size() - 1);
    EXPECT_THAT(sent, Not(Contains("put " + path + "Key2#true")));
    for (const std::string& hold : holds)
        Tell(path + hold + "#true");
    EXPECT_EQ(BT_GetStatus(5), BT_ON) << "keys 5 to 8 are not there";
    EXPECT_THAT(Press(5), Contains("put " + path + "Key2#false"));
}

// --- The overview ---

TEST_F(MeMisc, TheOverviewLeadsToTheKeysAndPagesOfItsOwnBankAndSide)
{
    // A place of a cell or a button.
    static const std::tuple<uint32_t, int, int, uint32_t> cases[] = {
        {0x12000000, 150, 120, 0x12110000},                                     // key 1, type
        {0x14000000, 450, 390, 0x14440000},                                     // key 4, sub mask
        {0x18000000, 550, 120, 0x18710000}, {0x82000000, 650, 120, 0x82730000}, // priority
        {0x16000000, 650, 120, 0x16730000}, {0x13000000, 550, 200, 0x13510000}, // the buttons
        {0x18000000, 550, 200, 0x18510000}, {0x82000000, 550, 380, 0x82730000},
        {0x15000000, 550, 380, 0x15730000},
    };
    for (const auto& [page, x, y, target] : cases) {
        Open(page);
        SendMessage(MSG_PRESS, x, y, 1, 0);
        EXPECT_EQ(std::exchange(GL_CreatePage, 0), target) << std::hex << page << " " << x;
    }
}
