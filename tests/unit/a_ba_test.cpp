#include "a_ba_draw.h"
#include "a_bt_page.h"
#include "a_pc.h"
#include "device.h"
#include "display.h"
#include "err.h"
#include "me_bank.h"
#include "pane.h"
#include "setup_index.h"
#include "window.h"
#include <cstring>
#include <filesystem>

constexpr uint32_t NONE = 0;
// A point in the middle of each zone. The side key is part of the title where there is none.
struct Point {
    int x, y;
};
constexpr Point TITLE = {150, 30}, SIDE_KEY = {330, 30}, BACK = {400, 30}, FWD = {470, 30},
                TOP_RIGHT = {650, 30}, LOWER_LEFT = {40, 560}, PREV = {750, 580},
                PAGE_BUTTON = {40, 30};

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
    void OpenKeyType() { OpenBase({"M/E-1", "Key1", "Type"}, 0x11110000); }
    // What a touch of the lower left arms or lets go.
    static int Armed()
    {
        Touch(LOWER_LEFT);
        return BA_IsDefaultButton();
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

// Where the line of a tree is too long for the band, its last word is what tells pages apart.
TEST_F(BaseAreaTest, PagesOfOneBranchHaveTitlesThatDiffer)
{
    constexpr Rect LINE = {99, 44, 297, 62};
    std::fill(GL_KeyMax, GL_KeyMax + ME_COUNT, 8); // the key for the other keys shortens the band
    std::set<std::vector<uint32_t>> titles;
    constexpr const char* last[] = {"Adjust", "Pattern Select", "Remove From Begin"};
    for (const char* word : last) {
        OpenBase({"M/E-1", "Key1", "Transition", "DME Wipe", word}, 0x11170003);
        Pass(10);
        titles.insert(PixelsIn(LINE));
    }
    EXPECT_EQ(titles.size(), std::size(last));
}

TEST_F(BaseAreaTest, HistoryStepsEndAtBothEndsAndNameThePageWithoutItsVariant)
{
    OpenKeyType();
    EXPECT_EQ(PageOf(BACK), NONE);
    constexpr uint32_t visited[] = {0x00110000, 0x11110000, 0x33110000};
    std::ranges::copy(visited, Omote_History);
    Omote_History_NowPtr = 1;
    Omote_History_MaxPtr = 2;
    EXPECT_EQ(PageOf(FWD), 0x33110000u);
    Omote_History_NowPtr = 1;
    EXPECT_EQ(PageOf(BACK), 0x00110000u);
    // The label of a step has room for what the page button shows, and no more.
    Omote_History_NowPtr = Omote_History_MaxPtr = 1;
    const auto label = [](uint32_t page_before) {
        Omote_History[0] = page_before;
        (void)ba_drw_back();
        return PixelsIn(ZONE_BACK);
    };
    const auto plain = label(0x61130001);
    EXPECT_EQ(label(0x61131001), plain);
    EXPECT_NE(label(0x61130002), plain);
}

TEST_F(BaseAreaTest, EachZoneLeadsToItsPageUnlessDefaultRecallIsArmed)
{
    OpenKeyType();
    Pass(10);
    const Display display;
    EXPECT_EQ(Armed(), 1);
    Pass(10);
    EXPECT_EQ(Display::Lacks(), "");
    for (Point p : {TITLE, SIDE_KEY, BACK, FWD, TOP_RIGHT, PREV, PAGE_BUTTON})
        EXPECT_EQ(PageOf(p), NONE) << p.x;
    EXPECT_EQ(GetWindow(), WINDOW_NONE);
    EXPECT_EQ(Armed(), 0);
    Touch(PAGE_BUTTON);
    EXPECT_EQ(GetWindow(), WINDOW_PAGE_JUMP);
    CloseWindow();
    EXPECT_EQ(PageOf(TITLE), 0x11000000u);
    Touch(TITLE);
    Touch(LOWER_LEFT);
    OpenBase({"File", "All"}, 0x71110000);
    Pass(1000);
    EXPECT_EQ(GL_CreatePage, NONE) << "nor does the timer of a key go on";
    EXPECT_EQ(BA_IsDefaultButton(), 0);
    OpenKeyType();
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

TEST_F(BaseAreaTest, DefaultRecallExistsWhereThereIsSomethingToRecallNotOnTheTimeline)
{
    for (const auto& [section, id, recall] :
         {std::tuple{"M/E-1", 0x11110000u, true},
          {"M/E-4", 0x81730000u, true},  // key priority while nothing is locked
          {"M/E-1", 0x15510000u, false}, // the sub side
          {"M/E-1", 0x11570000u, false}, // a keypad of stored wipes
          {"Engineering Setup", 0x73110000u, false}}) {
        OpenBase({section, "X"}, id);
        EXPECT_EQ(Armed(), recall) << section << std::hex << id;
    }
    OpenBase({"Key Frame", "Timeline"}, 0x61110000, base_kf_tl);
    EXPECT_EQ(PageOf(TOP_RIGHT), NONE);
    EXPECT_EQ(PageOf(TITLE), 0x61000000u);
    EXPECT_EQ(Armed(), 0);
}

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
    SetupLock.lock = 1; // while it is on a touch changes nothing
    Touch(LOWER_LEFT);
    EXPECT_EQ(SetupMenu[1].lock, 0);
    EXPECT_FALSE(std::filesystem::exists(SETUP_LOCK_FILE));
    SetupLock.lock = 0;
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

TEST_F(SetupLockKey, KeyPriorityShowsTheLockInPlaceOfDefaultRecall)
{
    int pages = 0;
    for (const PAGE* row = PageTable; row->id != PAGE_END; row++) {
        const uint32_t tab = row->id >> 16 & 0xFF;
        if (tab != 0x73 || !MeBank_OfPage(row->id) || !row->tree[2] ||
            strcmp(row->tree[2], "Key Priority") != 0)
            continue;
        pages++;
        for (const bool lock : {false, true}) {
            SetupLock.lock = lock;
            OpenBase({row->tree[0], row->tree[1], row->tree[2]}, row->id);
            const bool is_sub = isNowPageME(0) == 2;
            EXPECT_EQ(Armed(), !lock && !is_sub) << std::hex << row->id;
            EXPECT_EQ(ba.SetupLock_enable, lock && !is_sub) << std::hex << row->id;
        }
    }
    EXPECT_GE(pages, 6) << "one a bank";
}

TEST_F(SetupLockKey, AFileThatCannotBeWrittenIsToldToTheOperator)
{
    std::filesystem::create_directories(std::string(SETUP_LOCK_FILE) + "/in the way");
    OpenBase({"Engineering Setup", "System", "X"}, 0x73120001);
    Touch(LOWER_LEFT);
    EXPECT_EQ(std::exchange(GL_CreatePage, NONE), 0x99000000u);
    EXPECT_EQ(Err_GetMax(), 1) << "the page has a line to show";
}

TEST_F(BaseAreaTest, ATouchOfTheTitleStepsTheChannelOfAnMpe)
{
    OpenBase({"MPE", "Fx"}, 0x44110000);
    for (const auto& [available, reference, digits] :
         {std::tuple{0x31, 0x10, "00100000"}, // channel 5, then 6
          {0x31, 0x20, "00000001"},           // behind the last comes the first
          {0x31, 0x00, "00000001"},
          {0x10, 0x10, "00010000"}}) {
        SYS_MPEChannel = available;
        SYS_MPEReference = reference;
        Touch(TITLE);
        EXPECT_THAT(TakeQueuedCommands(),
                    ElementsAre(std::string("put MPE@Fx@Channel@Reference#") + digits));
    }
    SYS_MPEChannel = 0;
    EXPECT_EQ(PageOf(TITLE), NONE);
    GL_ErrorPopup_On = GL_ErrorExist = 1;
    EXPECT_EQ(PageOf(TITLE), 0x74110000u) << "the title says: touch here";
    EXPECT_THAT(TakeQueuedCommands(), IsEmpty());
}

// What stands above a page is not painted over: the title waits until it has gone.
TEST_F(BaseAreaTest, AnErrorTakesTheTitleOfThePageInView)
{
    static constexpr Rect BAND = {89, 6, 370, 63};
    OpenBase({"M/E-1", "Wipe"}, 0x11510000);
    HandPage::Pass();
    const auto before = PixelsIn(BAND);
    (void)PaneMessage_Create("Title", PANE_INFO, "Text");
    GL_ErrorPopup_On = GL_ErrorExist = 1;
    BA_DrawError();
    EXPECT_EQ(PixelsIn(BAND), before);
    (void)Pane_Quit(Pane_GetActiveID());
    HandPage::Pass();
    const auto marked = PixelsIn(BAND);
    EXPECT_NE(marked, before);
    GL_ErrorExist = 2;
    BA_DrawError();
    EXPECT_NE(PixelsIn(BAND), marked) << "at once, with the count of the errors";
}

struct FileBase : BaseAreaTest {
    void SetUp() override
    {
        BaseAreaTest::SetUp();
        BA_SetRegionGrp(4);
        OpenBase({"File", "Effect"}, 0x71210000, base_file_main);
        GL_PrevPage = 0x33110000;
    }
};

TEST_F(FileBase, WhileArmedOnlyTheStepsThroughTheHistoryStandStill)
{
    BA_SetDefaultButton(1);
    EXPECT_EQ(PageOf(PREV), NONE);
    EXPECT_EQ(PageOf(TITLE), 0x71000000u);
    Touch(PAGE_BUTTON);
    EXPECT_EQ(GetWindow(), WINDOW_PAGE_JUMP);
    CloseWindow();
    BA_SetDefaultButton(0);
    EXPECT_EQ(PageOf(PREV), 0x33110000u);
    EXPECT_EQ(Armed(), 0) << "there is no such key";
}

TEST_F(FileBase, TheRegionAreaOpensItsSelectorAndTellsItsEnd)
{
    static int ends;
    ends = 0;
    static const PC_TBL code = {.proc_func = [](int msg, MsgArg, MsgArg, MsgArg, MsgArg) {
        ends += msg == LMSG_PANEREGION;
        return 0;
    }};
    page.obj[0] = {OBJ_BA, &base_file_main, 0};
    page.obj[2] = {OBJ_PC, &code, 0};
    PC_Create(&code, 0);
    Touch(TOP_RIGHT);
    Pass(150);
    const int pane = Pane_GetActiveID();
    ASSERT_GT(pane, 0);
    SendMessage(LMSG_PANEQUIT, pane + 1, 0, 0, 0);
    EXPECT_EQ(ends, 0) << "another pane's end";
    HandPage::Pass();
    HandPage::Touch(20, 300); // beside it
    HandPage::Pass();
    EXPECT_EQ(Pane_GetActiveID(), 0);
    EXPECT_EQ(ends, 1);
    PC_Create(nullptr, 0);
}

TEST_F(BaseAreaTest, ARecordedMenuMacroTakesTheKeysOver)
{
    GL_MenuMacro_Edit = 1;
    OpenBase({"File", "All"}, 0x71110000);
    GL_PrevPage = 0x33110000;
    Touch({540, 30});
    EXPECT_EQ(std::exchange(GL_CreatePage, NONE), 0x71440002u) << "at once";
    EXPECT_EQ(PageOf({580, 30}), NONE) << "beside the key";
    EXPECT_EQ(PageOf(PREV), NONE) << "the key stores an event";
    EXPECT_EQ(PageOf(LOWER_LEFT), 0x71440002u);
    OpenBase({"File", "Menu Macro"}, 0x71440002);
    EXPECT_EQ(PageOf(PREV), 0x33110000u);
    OpenKeyType();
    EXPECT_EQ(Armed(), 1) << "default recall keeps its place";
}

TEST_F(BaseAreaTest, LampsTellWhoIsAtTheDisks)
{
    constexpr uint32_t OFF = 0x282828, RED = 0xFF0000, GREEN = 0x00FF00;
    OpenKeyType();
    const auto lamps = [] { return std::pair{PixelAt(75, 18), PixelAt(60, 18)}; };
    EXPECT_EQ(lamps(), std::pair(OFF, OFF));
    BA_SetFtpAccess(1);
    EXPECT_EQ(lamps(), std::pair(GREEN, OFF));
    BA_SetUsbAccess(1);
    EXPECT_EQ(lamps(), std::pair(RED, OFF)) << "the stick must not be pulled";
    BA_SetHDDAccess(1);
    BA_SetUsbAccess(0);
    EXPECT_EQ(lamps(), std::pair(GREEN, RED));
    BA_SetFtpAccess(0);
    BA_SetHDDAccess(0);
    EXPECT_EQ(lamps(), std::pair(OFF, OFF));
}

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
