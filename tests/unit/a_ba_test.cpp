#include "a_bt_page.h"
#include "device.h"
#include "setup_index.h"
#include <filesystem>

namespace
{
constexpr uint32_t NONE = 0;
// A point in the middle of each zone.
struct Point {
    int x;
    int y;
};
constexpr Point TITLE = {150, 30};
constexpr Point SIDE_KEY = {330, 30}; // part of the title where there is no side key
constexpr Point BACK = {400, 30};
constexpr Point FWD = {470, 30};
constexpr Point TOP_RIGHT = {650, 30};
constexpr Point LOWER_LEFT = {40, 560};
constexpr Point PREV = {750, 580};
} // namespace

struct BaseAreaTest : ButtonPage {
    void SetUp() override
    {
        ButtonPage::SetUp();
        std::fill(GL_KeyMax, GL_KeyMax + ME_COUNT, 4);
    }
    void OpenBase(std::initializer_list<const char*> tree, uint32_t id,
                  const BA_TBL& table = base_main)
    {
        SetTree(tree, id);
        BA_Create(&table, 0);
        (void)TakeQueuedCommands();
    }
    static void Touch(Point p) { BA_Proc(MSG_PRESS, p.x, p.y, 1, 0); }
    static void Pass(int elapsed_ms) { BA_Proc(MSG_REDRAW, elapsed_ms, 0, 0, 0); }
    // The page that a touch asks for when its pushed look is over; none before that.
    static uint32_t PageOf(Point p)
    {
        GL_CreatePage = NONE;
        Touch(p);
        Pass(149);
        EXPECT_EQ(GL_CreatePage, NONE) << "the pushed look comes first";
        Pass(1);
        return std::exchange(GL_CreatePage, NONE);
    }
};

TEST_F(BaseAreaTest, EachZoneLeadsToItsPage)
{
    OpenBase({"M/E-1", "Key1", "Type"}, 0x11110000);
    GL_PrevPage = 0x33110000;
    EXPECT_EQ(PageOf(TITLE), 0x11000000u);
    EXPECT_EQ(PageOf(SIDE_KEY), 0x11000000u) << "the band is long";
    EXPECT_EQ(PageOf(PREV), 0x33110000u);
    EXPECT_EQ(PageOf(TOP_RIGHT), 0x61110000u);
    EXPECT_EQ(PageOf({400, 300}), NONE);

    GL_ErrorPopup_On = 1;
    EXPECT_EQ(PageOf(TITLE), 0x74120000u);
    GL_ErrorExist = 2;
    EXPECT_EQ(PageOf(TITLE), 0x74110000u);
}

TEST_F(BaseAreaTest, HistoryStepsEndAtBothEnds)
{
    OpenBase({"M/E-1", "Key1", "Type"}, 0x11110000);
    EXPECT_EQ(PageOf(BACK), NONE);
    Omote_History[0] = 0x00110000;
    Omote_History[1] = 0x11110000;
    Omote_History[2] = 0x33110000;
    Omote_History_NowPtr = 1;
    Omote_History_MaxPtr = 2;
    EXPECT_EQ(PageOf(FWD), 0x33110000u);
    Omote_History_NowPtr = 1;
    EXPECT_EQ(PageOf(BACK), 0x00110000u);
}

TEST_F(BaseAreaTest, ATimerDoesNotOutliveItsPage)
{
    OpenBase({"M/E-1", "Key1", "Type"}, 0x11110000);
    Touch(TITLE);
    Touch(LOWER_LEFT);
    OpenBase({"File", "All"}, 0x71110000);
    Pass(1000);
    EXPECT_EQ(GL_CreatePage, NONE);
    EXPECT_EQ(BA_IsDefaultButton(), 0);
}

TEST_F(BaseAreaTest, ArmedDefaultRecallStopsAllButItself)
{
    OpenBase({"M/E-1", "Key1", "Type"}, 0x11110000);
    Touch(LOWER_LEFT);
    EXPECT_EQ(BA_IsDefaultButton(), 1);
    for (Point p : {TITLE, SIDE_KEY, BACK, FWD, TOP_RIGHT, PREV})
        EXPECT_EQ(PageOf(p), NONE) << p.x;
    Touch(LOWER_LEFT);
    EXPECT_EQ(BA_IsDefaultButton(), 0);
    EXPECT_EQ(PageOf(TITLE), 0x11000000u);
}

TEST_F(BaseAreaTest, DefaultRecallExistsWhereThereIsSomethingToRecall)
{
    static const struct {
        const char* section;
        uint32_t page;
        bool recall;
    } cases[] = {
        {"M/E-1", 0x11110000, true},
        {"M/E-4", 0x81750000, true},  // key priority while nothing is locked
        {"M/E-1", 0x15510000, false}, // the sub side
        {"M/E-1", 0x11570000, false}, // a keypad of stored wipes
        {"Engineering Setup", 0x73110000, false},
    };
    for (const auto& c : cases) {
        OpenBase({c.section, "X"}, c.page);
        Touch(LOWER_LEFT);
        EXPECT_EQ(BA_IsDefaultButton(), c.recall) << c.section << std::hex << c.page;
    }
    SetupLock.lock = 1;
    OpenBase({"M/E-1", "Misc", "Key Priority"}, 0x11730000);
    Touch(LOWER_LEFT);
    EXPECT_EQ(BA_IsDefaultButton(), 0) << "locked";
}

// --- Setup lock ---

struct SetupLockKey : BaseAreaTest {
    void SetUp() override
    {
        BaseAreaTest::SetUp();
        std::filesystem::create_directories("/mnt/data");
        std::filesystem::remove_all(SETUP_LOCK_FILE);
        SetupMenu[0] = {.page = 0x73110000, .lock = 1};
        SetupMenu[1] = {.page = 0x73120001};
        SetupMenu_Max = 2;
    }
    void TearDown() override
    {
        std::filesystem::remove_all(SETUP_LOCK_FILE);
        BaseAreaTest::TearDown();
    }
};

TEST_F(SetupLockKey, ATouchPutsThePageIntoTheLockSetAndTheFile)
{
    OpenBase({"Engineering Setup", "System", "X"}, 0x73120101); // a variant of the second row
    Touch(LOWER_LEFT);
    EXPECT_EQ(SetupMenu[1].lock, 1);
    SetupLock = {};
    SetupIndex_LoadLock();
    EXPECT_EQ(SetupLock.num, 2);
    EXPECT_THAT(std::vector<uint32_t>(SetupLock.page, SetupLock.page + 2),
                ElementsAre(0x73110000u, 0x73120001u));
    Touch(LOWER_LEFT);
    EXPECT_EQ(SetupMenu[1].lock, 0);
    EXPECT_EQ(SetupLock.num, 1);
}

TEST_F(SetupLockKey, WhileTheLockIsOnATouchChangesNothing)
{
    SetupLock.lock = 1;
    OpenBase({"Engineering Setup", "System", "X"}, 0x73120001);
    Touch(LOWER_LEFT);
    EXPECT_EQ(SetupMenu[1].lock, 0);
    EXPECT_FALSE(std::filesystem::exists(SETUP_LOCK_FILE));
}

// --- Side keys ---

TEST_F(BaseAreaTest, KeyChangeStepsBetweenTheHalvesOfABank)
{
    GL_KeyMax[1] = 8; // M/E-2
    OpenBase({"M/E-2", "Key1", "Type"}, 0x12110000);
    EXPECT_EQ(PageOf(SIDE_KEY), 0x16110000u);
    EXPECT_EQ(PageOf(TITLE), 0x12000000u);
    EXPECT_EQ(PageOf({372, 30}), NONE) << "between the key and the history";
    OpenBase({"M/E-2", "Key5", "Type"}, 0x16110000);
    EXPECT_EQ(PageOf(SIDE_KEY), 0x12110000u);
    OpenBase({"M/E-3", "Key1", "Type"}, 0x13110000);
    EXPECT_EQ(PageOf(SIDE_KEY), 0x13000000u) << "no such keys";
    multiprogram2_me[1] = 1;
    OpenBase({"M/E-1", "Wipe", "Main Pattern"}, 0x15510000);
    EXPECT_EQ(PageOf(SIDE_KEY), 0x11510000u) << "a bank of two sides";
    OpenBase({"M/E-1", "Misc", "Key Priority"}, 0x11740000);
    EXPECT_EQ(PageOf(SIDE_KEY), 0x11000000u) << "one page for both sides";
}

// --- Others ---
