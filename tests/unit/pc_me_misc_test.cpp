// The pages of a bank's own settings as the table opens them: what their page code sends, what it
// subscribes, which buttons the installation leaves.
#include "a_bt_page.h"
#include "bus.h"
#include "device.h"
#include "loop.h"
#include "page_table/me_misc.h"
#include "tdl.h"
#include <gmock/gmock.h>
#include <map>
#include <optional>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace
{
constexpr uint32_t WHITE = 0xFFFFFF;
using Lines = std::vector<std::string>;
} // namespace

struct MeMisc : testing::Test {
    std::optional<FullHouse> all;

    void SetUp() override
    {
        Harness_Reset();
        all.emplace();
        SYS_DWSubEnable = 1;
    }
    void TearDown() override
    {
        SYS_DWSubEnable = 0;
        CreatePage(PAGE_TOP);
        GL_CreatePage = 0;
        Page_Reset();
        (void)TakeQueuedCommands();
    }
    static Lines Open(uint32_t id)
    {
        (void)TakeQueuedCommands();
        EXPECT_EQ(CreatePage(id), 0) << std::hex << id;
        GL_CreatePage = 0;
        return TakeQueuedCommands();
    }
    static void Tell(const std::string& line) { SendDummyTally(line.c_str()); }
    static Lines Puts(Lines lines)
    {
        std::erase_if(lines, [](const std::string& line) { return !line.starts_with("put "); });
        return lines;
    }
    // What a press on the button sends.
    static Lines Press(int id)
    {
        const BT_MEM* b = bt_find(id);
        EXPECT_TRUE(b) << id;
        (void)TakeQueuedCommands();
        if (b)
            SendMessage(MSG_PRESS, b->x1 + 5, b->y1 + 5, 1, 0);
        return TakeQueuedCommands();
    }
};

static const struct {
    uint32_t bank; // of the page's id
    const char* word;
} two_banks[] = {{0x12000000, "M/E-2"}, {0x85000000, "M/E-4 SUB"}};

// --- Transition ---

TEST_F(MeMisc, ATypeOfTransitionTakesThePlaceOfTheOneBefore)
{
    for (const auto& b : two_banks) {
        const std::string path = std::string(b.word) + "@Misc@Transition@";
        EXPECT_THAT(Open(b.bank + 0x710000), Contains("add " + path + "Super Mix"));
        EXPECT_THAT(Puts(Press(1)), ElementsAre("put " + path + "Mix#true")) << "there was none";
        Tell(path + "Mix#false");
        Tell(path + "Wipe#true");
        EXPECT_EQ(BT_GetStatus(17), BT_ON);
        EXPECT_THAT(Puts(Press(3)),
                    ElementsAre("put " + path + "Wipe#false", "put " + path + "Super Mix#true"));
        Tell(path + "Wipe#false");
        EXPECT_EQ(BT_GetStatus(17), BT_OFF);
        Tell(path + "Super Mix#true");
        EXPECT_EQ(BT_GetStatus(3), BT_ON);
        EXPECT_THAT(Press(17), Contains("put " + path + "Super Mix#false"));
    }
}

// The first press on a lit type that does not own the knobs only moves them.
TEST_F(MeMisc, ATypeThatIsOnBringsItsKnobsFirst)
{
    Open(0x11710000);
    Tell("M/E-1@Misc@Transition@Super Mix#true");
    const Lines sent = Press(3);
    EXPECT_THAT(sent, Contains("add M/E-1@Misc@Transition@Super Mix@A Video"));
    EXPECT_THAT(Puts(sent), IsEmpty());
}

TEST_F(MeMisc, ABankOfFourKeysShowsFourAndProgramCallsThemDsk)
{
    static const struct {
        uint32_t page;
        int bank; // in GL_KeyMax
        int key5; // its button
        const char *caption, *rate, *no_rate;
    } cases[] = {
        {0x13710000, 2, 50, "Key5", "M/E-3@Key8", "M/E-3@DSK8"},
        {0x14710000, 5, 50, "DSK5", "PGM/PST@DSK8", "PGM/PST@Key8"},
    };
    for (const auto& c : cases)
        for (const int keys : {8, 4}) {
            const auto add = [](const char* key) {
                return std::string("add ") + key + "@Transition@ON Transition Rate";
            };
            GL_KeyMax[c.bank] = keys;
            Open(c.page);
            EXPECT_EQ(BT_GetVisible(c.key5), keys == 8 ? BT_ENABLED : BT_CUTOFF) << c.caption;
            EXPECT_STREQ(bt_find(c.key5)->caption, c.caption);
            const Lines sent = Press(38);
            EXPECT_EQ(std::count(sent.begin(), sent.end(), add(c.rate)), keys == 8) << c.rate;
            EXPECT_THAT(sent, Not(Contains(add(c.no_rate))));
            // The page remembers who had the knobs.
            Open(PAGE_TOP);
            Open(c.page);
            SendMessage(MSG_PRESS, 750, 95, 1, 0);
            EXPECT_EQ(NB_GetLayer(), keys == 8) << c.rate;
            SendMessage(MSG_PRESS, 750, 95, 1, 0);
        }
}

TEST_F(MeMisc, ASubSideHasADmeWipeOnlyWhenItIsSetUp)
{
    for (const int is_set_up : {0, 1}) {
        SYS_DWSubEnable = is_set_up;
        Open(0x16710000);
        EXPECT_EQ(BT_GetVisible(18), is_set_up ? BT_ENABLED : BT_DISABLED);
        Open(0x12710000);
        EXPECT_EQ(BT_GetVisible(18), BT_ENABLED);
    }
}

TEST_F(MeMisc, WithoutClipsThereIsNeitherTheirTypeNorTheirTab)
{
    constexpr int TAB_X = 97 + 4 * 86 + 40;
    for (const int has_clips : {1, 0}) {
        SYS_FmemV6 = has_clips;
        Open(0x81710000);
        EXPECT_EQ(BT_GetVisible(19), has_clips ? BT_ENABLED : BT_DISABLED);
        for (const uint32_t id : {0x81710000u, 0x81710001u, 0x81730000u, 0x81770000u}) {
            Open(id);
            SendMessage(MSG_PRESS, TAB_X, 550, 1, 0);
            EXPECT_EQ(std::exchange(GL_CreatePage, 0), has_clips ? 0x81760000u : 0u)
                << std::hex << id;
        }
    }
}

TEST_F(MeMisc, UnityPutsTheGainsOfTheOwnBankAndSide)
{
    for (const auto& b : two_banks) {
        const std::string path = std::string(b.word) + "@Misc@Video Process@";
        Open(b.bank + 0x720000);
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
    Tell(current + "#1,2,3,4,4,3,2,1");
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

TEST_F(MeMisc, TheNormalOrderIsThatOfThePagesOwnKeys)
{
    static const struct {
        uint32_t page;
        const char *bank, *value, *sent;
        int button;
    } cases[] = {
        {0x11730000, "M/E-1", "4,3,2,1,4,3,2,1", "1,2,3,4,4,3,2,1", 22},
        {0x11730000, "M/E-1", "4,3,2,1", "1,2,3,4", 22},
        {0x11730000, "M/E-1", "", "1,2,3,4", 22},
        {0x14730001, "PGM/PST", "4,3,2,1,4,3,2,1", "4,3,2,1,1,2,3,4", 22},
        {0x14730001, "PGM/PST", "", "1,2,3,4,1,2,3,4", 22},
        {0x86730000, "M/E-5 SUB", "4,3,2,1,4,3,2,1", "4,3,2,1,1,2,3,4", 6},
    };
    for (const auto& c : cases) {
        const std::string path = std::string(c.bank) + "@Misc@Key Priority@Key Priority";
        Open(c.page);
        if (c.value[0])
            Tell(path + "#" + c.value);
        EXPECT_THAT(Press(c.button), ElementsAre("put " + path + "#" + c.sent)) << c.bank;
    }
}

TEST_F(MeMisc, TheMatrixGivesBackBothListsWhicheverWasShown)
{
    for (const std::vector<int>& presses : {std::vector<int>{}, {6}, {6, 5}}) {
        Open(PAGE_TOP);
        (void)TakeQueuedCommands();
        std::map<std::string, int> held;
        const auto count = [&](const Lines& lines) {
            for (const std::string& line : lines)
                if (line.find("Key Priority@") != std::string::npos)
                    held[line.substr(line.find(' ') + 1)] +=
                        line.starts_with("add ") - line.starts_with("remove ");
        };
        count(Open(0x12730001));
        for (const int id : presses)
            count(Press(id));
        count(Open(PAGE_TOP));
        EXPECT_EQ(held.size(), 2u);
        for (const auto& [path, open] : held)
            EXPECT_EQ(open, 0) << path << " after " << presses.size();
    }
}

// The bar lies on the line of the key whose page it is.
TEST_F(MeMisc, AKeysOwnPlaceIsMarkedInItsPriorityCell)
{
    static const struct {
        uint32_t page;
        const char* tally;
        int line; // -1 none
    } cases[] = {
        {0x11110000, "M/E-1@Misc@Key Priority@Key Priority#2,1,3,4", 1},
        {0x14410000, "PGM/PST@Misc@Key Priority@Key Priority#2,4,3,1,1,2,3,4", 0},
        {0x85310000, "M/E-4@Misc@Key Priority@Key Priority#1,2,3,4,1,2,4,3", 3},
        {0x85310000, "M/E-4@Misc@Key Priority@Key Priority#1,2,3,4", -1},
        {0x11110000, "M/E-1@Misc@Key Priority@Key Priority#1,1,3,4", -1},
        {0x11110000, "M/E-1@Misc@Key Priority@Key Priority#1,2,9,4", -1},
    };
    for (const auto& c : cases) {
        Open(PAGE_TOP);
        Open(c.page);
        Tell(c.tally);
        SendMessage(MSG_REDRAW, 10, 0, 0, 0);
        for (int line = 0; line < 4; line++)
            EXPECT_EQ(PixelAt(608, 165 + 22 + 15 * line) == WHITE, line == c.line)
                << c.tally << " line " << line;
    }
}

// --- Other cells of a key ---

// Where both ways share a setting it is kept as that of coming.
TEST_F(MeMisc, TheCellOfGoingShowsHowTheKeyReallyGoes)
{
    for (const int has_own : {0, 1}) {
        SYS_KeyTransitionME2 = has_own;
        Open(PAGE_TOP);
        Open(0x12110000);
        Tell("M/E-2@Key1@Transition@ON Transition Type#Cut");
        Tell("M/E-2@Key1@Transition@OFF Transition Type#Stinger");
        SendMessage(MSG_REDRAW, 10, 0, 0, 0);
        int differing = 0;
        for (int y = 190; y < 230; y++)
            for (int x = 0; x < 90; x++)
                differing += PixelAt(305 + x, y) != PixelAt(405 + x, y);
        EXPECT_EQ(differing != 0, has_own != 0) << differing;
    }
}

TEST_F(MeMisc, TheMonitorIsMarkedOnlyForAChannelOfTheKey)
{
    Open(0x81210000);
    Tell("M/E-4@Key2@Processed Key@DME Select@DME3#true");
    for (const char* monitor : {"3", "2", "0", "9", "x", "-1"}) {
        Tell(std::string("M/E-1@Key1@Processed Key@Monitor#") + monitor);
        SendMessage(MSG_REDRAW, 10, 0, 0, 0);
        EXPECT_EQ(PixelAt(508, 165 + 22 + 15) == WHITE, monitor[0] == '3') << monitor;
    }
}

// --- Assignment ---

TEST_F(MeMisc, TheTwoSwitchesOfAKeyAreOneWord)
{
    static const struct {
        const char* word;
        int main, sub; // the buttons' states
        const char *after_main, *after_sub;
    } cases[] = {
        {"Main", BT_ON, BT_OFF, "Off", "Both"}, {"Sub", BT_OFF, BT_ON, "Both", "Off"},
        {"Both", BT_ON, BT_ON, "Sub", "Main"},  {"Off", BT_OFF, BT_OFF, "Main", "Sub"},
        {"?", BT_ON, BT_OFF, "Off", "Both"}, // as the setup says
    };
    const std::string path = "PGM/PST@Misc@Key Assign@Key6";
    Open(0x14740000);
    EXPECT_STREQ(bt_find(18)->caption, "DSK6");
    for (const auto& c : cases) {
        Tell(path + "#" + c.word);
        EXPECT_EQ(BT_GetStatus(18), c.main) << c.word;
        EXPECT_EQ(BT_GetStatus(50), c.sub) << c.word;
        EXPECT_THAT(Press(18), ElementsAre("put " + path + "#" + c.after_main));
        EXPECT_THAT(Press(50), ElementsAre("put " + path + "#" + c.after_sub));
    }
}

TEST_F(MeMisc, AKeyThatNobodyAssignedFollowsTheSetup)
{
    static const struct {
        const char* path;
        const char* value;
    } setup[] = {
        {"Engineering Setup@Switcher@Config@M/E Output Assign@List", "M/E-2,1,Main"},
        {"Engineering Setup@Switcher@Config@M/E Output Assign@List", "M/E-2,2,Sub"},
        {"Engineering Setup@Switcher@Config@PGM Config@List", "M/E-2,1,03"}, // keys 1 and 2
        {"Engineering Setup@Switcher@Config@PGM Config@List", "M/E-2,2,42"}, // keys 2 and 7
    };
    Open(0x12740000);
    for (const auto& s : setup)
        Tell(std::string(s.path) + "#" + s.value);
    static const struct {
        int main, sub; // buttons
        bool is_main, is_sub;
    } keys[] = {
        {1, 33, true, false}, {2, 34, true, true}, {3, 35, false, false}, {19, 51, false, true}};
    for (const auto& k : keys) {
        EXPECT_EQ(BT_GetOnOff(k.main), k.is_main) << k.main;
        EXPECT_EQ(BT_GetOnOff(k.sub), k.is_sub) << k.sub;
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
    constexpr Rect cell = {403, 95, 496, 162};
    const std::string list = "Engineering Setup@Switcher@Config@PGM Config@List#";
    const auto picture = [&] {
        std::vector<uint32_t> pixels;
        SendMessage(MSG_REDRAW, 10, 0, 0, 0);
        for (int y = cell.y1; y <= cell.y2; y++)
            for (int x = cell.x1; x <= cell.x2; x++)
                pixels.push_back(PixelAt(x, y));
        return pixels;
    };
    const auto told = [&](const char* key1, const char* key2) {
        Tell(std::string("PGM/PST@Misc@Key Assign@Key1#") + key1);
        Tell(std::string("PGM/PST@Misc@Key Assign@Key2#") + key2);
        return picture();
    };
    multiprogram2_me[0] = 0;
    Open(0x14740000);
    Tell(list + "KILL");
    EXPECT_EQ(told("", ""), told("Main", "Main")) << "not known";
    for (const char* row : {"P/P,1,FD", "PGM/PST,3,FF", "M/E-1,2,FF", "P/P,9,FF", "P/P,2"})
        Tell(list + row);
    EXPECT_EQ(told("", ""), told("1,3", "3"));
    EXPECT_NE(told("", ""), told("1,3", "1,3"));
}

TEST_F(MeMisc, ABankOfOneSideHasNoSubToAssignTo)
{
    multiprogram2_me[3] = 0;
    GL_KeyMax[2] = 4;
    Open(0x13740000);
    EXPECT_EQ(BT_GetVisible(33), BT_DISABLED);
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
    EXPECT_EQ(BT_GetVisible(37), BT_DISABLED);
    EXPECT_EQ(BT_GetVisible(53), BT_DISABLED);
    Tell(path + "Clip Name#GOAL");
    EXPECT_EQ(BT_GetVisible(37), BT_ENABLED);
    EXPECT_EQ(BT_GetVisible(53), BT_ENABLED);
    static const struct {
        const char* duration;
        const char* sent; // after a value far beyond
    } cases[] = {{"250", "249"}, {"-5", "215999"}, {"x", "215999"}, {"1", "215999"}};
    for (const auto& c : cases) {
        Open(PAGE_TOP);
        Open(0x82760000);
        Tell(path + "Clip Duration#" + c.duration);
        (void)Press(37);
        Tell(path + "Start TC#0");
        (void)NB_SetSelect(1);
        (void)TakeQueuedCommands();
        (void)NB_SendTrimValue(9999999);
        std::string text;
        for (const std::string& line : TakeQueuedCommands())
            if (line.starts_with("put " + path + "Start TC#"))
                text = line.substr(line.find('#') + 1);
        char expected[64];
        NB_Text(NB_MEM{.type = NB_TC}, std::stod(c.sent), expected, sizeof expected);
        EXPECT_EQ(text, expected) << c.duration;
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
    static const struct {
        uint32_t page;
        int x, y; // a cell or a button
        uint32_t target;
    } cases[] = {
        {0x12000000, 150, 120, 0x12110000},                                     // key 1, type
        {0x14000000, 450, 390, 0x14440000},                                     // key 4, sub mask
        {0x85000000, 250, 300, 0x85320000},                                     // key 7, edge
        {0x13000000, 550, 120, 0x13710000},                                     // transition
        {0x18000000, 550, 120, 0x18710000}, {0x82000000, 650, 120, 0x82730000}, // priority
        {0x16000000, 650, 120, 0x16730000}, {0x13000000, 550, 200, 0x13510000}, // the buttons
        {0x18000000, 550, 200, 0x18510000}, {0x82000000, 550, 380, 0x82730000},
        {0x15000000, 550, 380, 0x15730000},
    };
    for (const auto& c : cases) {
        Open(c.page);
        SendMessage(MSG_PRESS, c.x, c.y, 1, 0);
        EXPECT_EQ(std::exchange(GL_CreatePage, 0), c.target) << std::hex << c.page << " " << c.x;
    }
}

// What a key is cut by has no side; the bank's own cells have.
TEST_F(MeMisc, TheCellsOfKeysOnASubSideFollowTheBank)
{
    const Lines sent = Open(0x85000000);
    for (const char* path :
         {"M/E-4@Key5@Type@Key Type", "M/E-4@Wipe@Main Pattern@Pattern",
          "M/E-4 SUB@Wipe@Main Pattern@Pattern", "M/E-4 SUB@Misc@Key Priority@Key Priority"})
        EXPECT_EQ(std::count(sent.begin(), sent.end(), std::string("add ") + path), 1) << path;
}
