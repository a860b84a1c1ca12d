#include "a_bt.h"
#include "a_nb.h"
#include "bus.h"
#include "device.h"
#include "display.h"
#include "err.h"
#include "global.h"
#include "harness.h"
#include "log.h"
#include "loop.h"
#include "message.h"
#include "page.h"
#include "page_family.h"
#include "window.h"
#include <cstdio>
#include <unistd.h>

constexpr char LOG_FILE[] = "/tmp/page_test.log";

// The n-th page of a long list of pages that exist: first page of each key of each bank, then the
// next tab.
static uint32_t KeyPage(int n)
{
    static const uint32_t banks[] = {0x11, 0x12, 0x13, 0x14, 0x15, 0x16,
                                     0x17, 0x18, 0x81, 0x82, 0x85, 0x86};
    return banks[n % 12] << 24 | uint32_t(n / 12 % 4 + 1) << 20 | uint32_t(n / 48 + 1) << 16;
}

struct PageTest : testing::Test {
    void SetUp() override
    {
        Harness_Reset();
        unlink(LOG_FILE);
        Log_Init(LOG_FILE, LOG_FILE_SIZE);
        Log_SetLevel(LOG_LIFE);
        log_read = 0;
    }
    void TearDown() override { Harness_Reset(); }

    // What has been logged since the last call.
    std::string Logged()
    {
        const std::string text = FileText(LOG_FILE);
        const std::string news = text.substr(std::min(log_read, text.size()));
        log_read = text.size();
        return news;
    }
    // The id that a request comes to, whether or not it has a row.
    uint32_t ComesTo(uint32_t request)
    {
        (void)Logged();
        if (CreatePage(request) == 0)
            return GL_NowPage;
        const std::string log = Logged();
        const size_t at = log.find("Can't find ID: ");
        return at == std::string::npos ? 0 : uint32_t(std::stoul(log.substr(at + 15), nullptr, 16));
    }
    static uint32_t StepBack()
    {
        EXPECT_EQ(HistoryBack(1), 0);
        CreatePage(GL_CreatePage);
        return GL_CreatePage;
    }
    size_t log_read = 0;
};

static auto WhereWeAre()
{
    return std::make_tuple(GL_NowPage, GL_PrevPage, GL_OmoteNowPage, GL_UraNowPage,
                           GL_OmotePrevPage, GL_UraPrevPage, OmoteFlag, OmoteChange, MeKeyTpye,
                           Omote_History_NowPtr, Omote_History_MaxPtr, Ura_History_NowPtr,
                           Ura_History_MaxPtr);
}
const auto at_start = WhereWeAre(); // before anything has run

// A page that no table brings, for the words of its path.
struct FakePage {
    PAGE row;
    FakePage(uint32_t now, const char* word0, const char* word1)
        : row{.id = now, .tree = {word0, word1}}
    {
        Page = &row;
        GL_NowPage = now;
        GL_NowTree = row.tree;
    }
    ~FakePage() { Page_Reset(); }
};

TEST_F(PageTest, OpeningAPageTakesItsRow)
{
    ASSERT_EQ(CreatePage(0x12210000), 0);
    const Strings sent = TakeQueuedCommands();
    for (const char* command :
         {"set TopMenu#M/E-2", "add TopMenu", "read Engineering Setup@System@Format@4K Mode",
          "read Engineering Setup@System@Format@Video Format@MPE4",
          "read Engineering Setup@System@Format@Reference@PNL4", "add M/E-2@Key2@Type@Key Type"})
        EXPECT_THAT(sent, Contains(command));
    EXPECT_TRUE(IsObjetype(OBJ_BT));
    EXPECT_FALSE(IsObjetype(OBJ_KP));
    EXPECT_STREQ(GL_NowTree[1], "Key2");
    EXPECT_EQ(MeKeyTpye, 1);
    EXPECT_EQ(GL_OmoteNowPage, 0x12210000u);
    EXPECT_EQ(GL_OmotePrevPage, PAGE_TOP);
    ASSERT_EQ(CreatePage(0x12310000), 0);
    EXPECT_THAT(TakeQueuedCommands(), Not(Contains("set TopMenu#M/E-2"))) << "the same menu";
    ASSERT_EQ(CreatePage(0x33110000), 0);
    EXPECT_EQ(GL_NowPage, 0x33110000u); // as asked for ...
    EXPECT_EQ(Page->id, 0x33110100u);   // ... the row is the variant
    EXPECT_EQ(GL_PrevPage, 0x12310000u);
}

TEST_F(PageTest, TheProcessStartsAtTheFrontOfTheTopMenu)
{
    EXPECT_EQ(at_start, std::make_tuple(0, 0, PAGE_TOP, PAGE_TOP, 0, 0, 1, 0, 0, -1, -1, -1, -1));
    CreatePage(KeyPage(0));
    OmoteFlag = 0;
    OmoteChange = 1;
    CreatePage(KeyPage(1));
    CreatePage(KeyPage(2));
    Page_Reset();
    EXPECT_EQ(WhereWeAre(), at_start);
    OmoteFlag = 0; // a turn to a page that is not there
    OmoteChange = 1;
    EXPECT_EQ(CreatePage(0x11119999), -1);
    EXPECT_EQ(OmoteFlag, 1);
}

TEST_F(PageTest, TheDisplayGoesFromPageToPageInOneStep)
{
    static std::vector<uint32_t> first;
    static const auto now = [] { return PixelsIn({0, 0, SCREEN_W - 1, SCREEN_H - 1}); };
    CreatePage(KeyPage(0));
    {
        const Display display;
        CreatePage(0x71210000); // a list and its scroll bar
        EXPECT_EQ(Display::Lacks(), "");
    }
    TDL_WatchFlush([](int, int, int, int) { first = first.empty() ? now() : first; });
    CreateWindow(WINDOW_PAGE_JUMP, "");
    first.clear();
    CreatePage(KeyPage(1));
    TDL_WatchFlush(nullptr);
    EXPECT_TRUE(first == now());
    EXPECT_EQ(GetWindow(), WINDOW_NONE);
    RefreshScreen();
    EXPECT_TRUE(first == now()) << "nothing was left to be painted";
}

// With a page of the global effect goes the subscription that says which pages there are.
TEST_F(PageTest, CombinedChannelsAreFollowedOnOtherPages)
{
    for (const auto& [page, has_them] : {std::pair{0x42110000u, true},
                                         {0x33110000u, true},
                                         {0x41110000u, false},
                                         {0x32110000u, false}}) {
        ASSERT_EQ(CreatePage(page), 0);
        (void)TakeQueuedCommands();
        ASSERT_EQ(CreatePage(PAGE_TOP), 0);
        const Strings sent = TakeQueuedCommands();
        EXPECT_EQ(std::ranges::count(sent, "add Global Effect@Ch5-Ch8@Combine@Ch8"), has_them)
            << std::hex << page;
        EXPECT_THAT(sent.back(), testing::StartsWith(has_them ? "add " : "")) << "the last word";
    }
}

TEST_F(PageTest, TheColumnIsThePagesUnlessAButtonHasTakenIt)
{
    static const NB_TBL table[] = {
        {.id = 1, .caption = "Own", .type = NB_2, .min = -100, .max = 100, .cmd = "~@Own"}, NB_END};
    const PageFamily& boxes = *PageFamily_Of(OBJ_NB);
    const auto has_box = [] {
        char path[CMD_SIZE];
        double value = 0;
        return NB_GetKnob_info("Own", path, &value, sizeof path) > 0;
    };
    const auto title = [&](const char* word) {
        const PAGE page{.tree = {"M/E-1", "Key1", word}};
        boxes.create(table, 0, page);
        SendMessage(MSG_REDRAW, 10, 0, 0, 0);
        return PixelsIn({713, 83, 790, 98});
    };
    CreatePage(0x61110000);
    const auto colour = title("Colour"), edge = title("Edge");
    EXPECT_TRUE(has_box());
    EXPECT_NE(colour, edge) << "its head is the last word of the path";
    EXPECT_EQ(title("Colour"), colour);
    CreatePage(0x71110000); // has none
    EXPECT_FALSE(has_box());
    CreatePage(0x11110000);
    SendDummyTally("M/E-1@Key1@Type@Key Type#Luminance");
    SendMessage(MSG_PRESS, 117, 277, 1, 0);
    ASSERT_GT(BT_GetKnobAssign(), 0);
    (void)title("Colour");
    EXPECT_FALSE(has_box()) << "the knobs stay with the button";
}

// Two show what the program itself has, and empty nothing when their page is left.
TEST_F(PageTest, WhatWatchesTheProgramIsFilledWhenItsPageOpens)
{
    constexpr char file[] = "/var/log2/tm3err.log";
    Err_Clear();
    (void)Err_Add("something");
    for (const uint32_t page : {0x99000000u, uint32_t(PAGE_TOP)}) {
        unlink(file);
        CreatePage(page);
        EXPECT_EQ(FileText(file).find("something") != std::string::npos, page == 0x99000000);
    }
    Err_Clear();
    for (const int is_on : {1, 0}) {
        GL_LoopCounter = is_on;
        CreatePage(0x99995555);
        EXPECT_EQ(BT_GetStatus(34), is_on ? BT_ON : BT_OFF);
        CreatePage(PAGE_TOP);
    }
}

TEST_F(PageTest, ARequestWithoutAPageLeavesAllAsItWas)
{
    CreatePage(0x11110000);
    (void)TakeQueuedCommands();
    for (uint32_t none :
         {0u, 0x11119999u, 0x339F0000u, PAGE_END}) { // the third: a tab that no page knows
        (void)Logged();
        EXPECT_EQ(CreatePage(none), -1);
        char line[64];
        snprintf(line, sizeof line, "Can't find ID: %Xh", none);
        EXPECT_NE(Logged().find(line), std::string::npos) << line;
    }
    SYS_Simul = 1;
    EXPECT_EQ(CreatePage(0x12110000), -1); // hidden
    EXPECT_EQ(GL_NowPage, 0x11110000u);
    EXPECT_EQ(Page->id, 0x11110000u);
    EXPECT_EQ(Omote_History_NowPtr, 0);
    EXPECT_TRUE(TakeQueuedCommands().empty());
}

TEST_F(PageTest, MenuKeysReopenTheirLastPage)
{
    // The sixth is of a system without clip store; the last covers the page, which stays
    // remembered.
    static const struct {
        uint32_t visit;
        int row;
        uint32_t reopens;
    } steps[] = {
        {0x11210000, 0, 0x11210000}, {0x16110000, 1, 0x16110000}, {0x86110000, 4, 0x86110000},
        {0x18410000, 5, 0x18410000}, {0x21110000, 6, 0x21110000}, {0x25110000, 6, 0x25110000},
        {0x21110000, 6, 0x21110000}, {0x99000000, 6, 0x21110000},
    };
    for (const auto& s : steps) {
        ASSERT_EQ(CreatePage(s.visit), 0) << std::hex << s.visit;
        EXPECT_EQ(TopMenu[s.row].page, s.reopens) << std::hex << s.visit;
    }

    const std::string told = "set TopMenu#";
    for (int i = 0; TopMenu[i].caption; i++) {
        const TOPMENU menu = TopMenu[i];
        (void)TakeQueuedCommands();
        EXPECT_EQ(CreatePage(menu.page), 0) << menu.caption;
        EXPECT_STREQ(NowTopMenu, Page->tree[0]);
        Strings sent = TakeQueuedCommands();
        std::erase_if(sent, [&](const std::string& s) { return !s.starts_with(told); });
        if (menu.caption != std::string("Setup")) { // the menu of the key before it
            EXPECT_THAT(sent, ElementsAre(told + menu.caption));
        }
    }
    for (const auto& s : steps)
        EXPECT_EQ(TopMenu[s.row].page, s.row == 6 ? 0x21110000 : s.reopens);
}

TEST_F(PageTest, HistoryGoesBackAndForwardAndKeepsFiftyPages)
{
    for (int n = 0; n < 4; n++)
        CreatePage(KeyPage(n));
    CreatePage(KeyPage(3)); // again: rebuilt, not listed
    EXPECT_EQ(Omote_History_NowPtr, 3);
    EXPECT_TRUE(IsLastHistory(1));
    EXPECT_EQ(HistoryFwd(1), -1);

    EXPECT_EQ(GetHistoryBack(1), KeyPage(2));
    for (int n = 2; n >= 1; n--)
        ASSERT_EQ(StepBack(), KeyPage(n));
    EXPECT_EQ(GetHistoryFwd(1), KeyPage(2));
    EXPECT_EQ(HistoryFwd(1), 0);
    CreatePage(GL_CreatePage);
    EXPECT_EQ(Omote_History_NowPtr, 2);
    EXPECT_EQ(Omote_History_MaxPtr, 3);

    CreatePage(KeyPage(9)); // a visit cuts what was ahead
    EXPECT_EQ(GetHistoryFwd(1), 0u);
    EXPECT_EQ(HistoryBack(0), -1); // the other side has its own
    for (int n = 0; n < HISTORY_DEPTH + 1; n++)
        ASSERT_EQ(CreatePage(KeyPage(n)), 0) << n;
    for (int n = HISTORY_DEPTH - 1; n >= 1; n--)
        ASSERT_EQ(StepBack(), KeyPage(n));
    EXPECT_TRUE(IsTopHistory(1));
}

TEST_F(PageTest, AStepBackFromAnErrorPageReturnsToTheCoveredPage)
{
    EXPECT_TRUE(IsTopHistory(1));
    EXPECT_EQ(GetHistoryBack(1), 0u);
    EXPECT_EQ(HistoryBack(1), -1);
    CreatePage(KeyPage(0));
    CreatePage(KeyPage(1));
    CreatePage(0x99000000);
    EXPECT_EQ(GL_OmoteNowPage, KeyPage(1));
    EXPECT_EQ(GetHistoryBack(1), KeyPage(1));
    ASSERT_EQ(HistoryBack(1), 0);
    EXPECT_EQ(GL_CreatePage, KeyPage(1));
    EXPECT_EQ(Omote_History_NowPtr, 1);
    for (int n = 0; n < 2; n++) { // the second time it is built anew
        CreatePage(KeyPage(2));
        EXPECT_EQ(GL_PrevPage, KeyPage(1)) << "nobody goes back to an error page";
    }
}

TEST_F(PageTest, EachSideKeepsItsOwnPages)
{
    CreatePage(KeyPage(0));
    CreatePage(KeyPage(1));
    (void)TakeQueuedCommands();
    OmoteFlag = 0; // as the bus turns the menu over
    OmoteChange = 1;
    CreatePage(GL_UraNowPage);
    EXPECT_EQ(TakeQueuedCommands().at(0), "put TopMenu@SubMenuSite#true");
    EXPECT_EQ(GL_NowPage, PAGE_TOP);
    CreatePage(KeyPage(2));
    EXPECT_EQ(GL_UraNowPage, KeyPage(2));
    EXPECT_EQ(GL_OmoteNowPage, KeyPage(1));
    EXPECT_EQ(GetHistoryBack(0), PAGE_TOP);

    OmoteFlag = OmoteChange = 1;
    CreatePage(GL_OmoteNowPage);
    EXPECT_EQ(Omote_History_NowPtr, 1);
    EXPECT_EQ(GL_PrevPage, KeyPage(0)) << "what this side showed before";
}

TEST_F(PageTest, RequestsAreCorrectedBeforeTheLookUp)
{
    static const auto four_keys = [] { std::fill_n(GL_KeyMax, ME_COUNT, 4); };
    // M/E-2 in multi program 2, its panel rows on one side
    static const auto me2_on = [](int side) {
        multiprogram2_me[2] = 1;
        GL_MEAssign[13] = 2;
        GL_MainSubAssign[13] = side;
    };
    static const struct {
        uint32_t request, opens;
        void (*when)() = nullptr;
    } cases[] = {
        {0x15210000, 0x11210000, four_keys},
        {0x18410000, 0x14410000, four_keys},
        {0x71420002, 0x71420002, [] { GL_Macro_Online_TrueOrFalse = 1; }},
        {0x71420003, 0x71420001, [] { unlink("/tmp/MacroEdit/MacroEdit.PMR"); }},
        {0x12510000, 0x16510000, [] { me2_on(1); }},
        {0x12740000, 0x12740000, [] { me2_on(1); }}, // one page for both sides
        {0x16510000, 0x12510000, [] { me2_on(0); }},
        {0x16510000, 0x12510000},                    // no sub side at all
        {0x12110000, 0x12110000, [] { me2_on(1); }}, // a key page
        {0x111F0000, 0x11110000},                    // the tab of a key is its own
        {0x311F0000, 0x311F0000}, // without left tabs in the row a wildcard stays
        {0x42260000, 0x42110000, [] { GL_DmeModel[0] = 5, SYS_MyDmeMax = 1; }},
        {0x42260000, 0x42260000, [] { GL_DmeModel[0] = 5, SYS_MyDmeMax = 2; }},
        {0x71420002, 0x71420001},
        {0x71440002, 0x71440001},
        {0x71440102, 0x71440002, [] { GL_MenuMacro_Edit = 1; }},
    };
    for (const auto& c : cases) {
        SetUp();
        if (c.when)
            c.when();
        EXPECT_EQ(ComesTo(c.request), c.opens) << std::hex << c.request << " expected " << c.opens;
    }
}

TEST_F(PageTest, ThePanelRowsSayWhichSidesOfABankThereAre)
{
    static const struct {
        int multi, first, second; // the sides of two panel rows of M/E-2, -1 another bank's
        int sides;
    } cases[] = {
        {1, -1, -1, -1}, {1, 0, -1, 0},  {1, -1, 1, 1}, {1, 2, -1, 2},
        {1, 0, 1, 2},    {1, 3, -1, -1}, {0, 0, 1, -1}, {1, 1, 1, 1},
    };
    for (const auto& c : cases) {
        SetUp();
        std::fill_n(GL_MEAssign, PANEL_ROWS, 1);
        multiprogram2_me[2] = c.multi;
        const int sides[] = {c.first, c.second};
        for (int i : {0, 1}) {
            GL_MEAssign[12 + i] = sides[i] < 0 ? 1 : 2;
            GL_MainSubAssign[12 + i] = sides[i];
        }
        const FakePage page(0x12510000, "M/E-2", "Misc");
        EXPECT_EQ(MainSubAssign_StatusCheck_for_id(0), c.sides) << c.first << c.second;
        EXPECT_EQ(MainSubAssign_StatusCheck(), c.sides) << c.first << c.second;
        EXPECT_EQ(MainSubAssign_StatusCheck_for_id(0x33110000), -1);
    }
    FakePage page(0x32110000, "1st AUX", nullptr);
    EXPECT_FALSE(isNowPageFM(0));
    EXPECT_TRUE(isNowPageFM(0x21110000));
    GL_NowPage = 0x71620000; // a file page that shows the frame memory
    EXPECT_TRUE(isNowPageFM(0x11110000));
    Page_SetKnobAssign(4);
    GL_NowPage = 0x73350001; // opens as its row says
    Page_SetKnobAssign(5);
    EXPECT_EQ(Page_GetKnobAssign(), 4);
    EXPECT_EQ(MainSubAssign_StatusCheck(), -1);
    GL_MEAssign[13] = ASSIGN_1ST_AUX;
    EXPECT_EQ(MainSubAssign_StatusCheck(), 0);
    Page_Reset();
    EXPECT_EQ(MainSubAssign_StatusCheck(), -1) << "no page";
    EXPECT_EQ(Page_GetKnobAssign(), -1);
}

TEST_F(PageTest, TemplateIdsMoveToTheBankAndKeyOfThePage)
{
    static const struct {
        uint32_t now;
        const char* tree[2];
        uint32_t id, moved;
    } cases[] = {
        {0x12310000, {"M/E-2", "Key3"}, 0x11170002, 0x12370002},
        {0x81210000, {"M/E-4", "Key2"}, 0x11110000, 0x81210000},
        {0x81110000, {"M/E-4", "Key8"}, 0x11110000, 0x85410000},
        {0x14110000, {"PGM/PST", "DSK6"}, 0x11110000, 0x18210000},
        {0x11110000, {"M/E-1", "CCR2"}, 0x11110000, 0x11210000},
        {0x11610000, {"M/E-1", "DME Wipe"}, 0x11610000, 0x11610000},
        {0x16610000, {"M/E-2", "DME Wipe"}, 0x11610000, 0x16610000},
        {0x85710000, {"M/E-4", "Misc"}, 0x11730000, 0x85730000},
        {0x15710000, {"M/E-1", "Misc"}, 0x11730000, 0x15730000},
        {0x15710000, {"M/E-1", "Misc"}, 0x15730000, 0x15730000}, // already there
        {0x12000000, {"M/E-2", nullptr}, 0x11110000, 0x12110000},
        {0x12110000, {nullptr, "Key3"}, 0x11110000, 0x11110000},
    };
    const auto moved = [](uint32_t now, const char* word0, const char* word1, uint32_t id) {
        const FakePage page(now, word0, word1);
        AddPageOffset(&id);
        return id;
    };
    for (const auto& c : cases)
        EXPECT_EQ(moved(c.now, c.tree[0], c.tree[1], c.id), c.moved) << std::hex << c.now;
    for (uint32_t n = 2; n <= 8; n++)
        for (const char* kind : {"Key", "DSK"}) {
            const std::string key = kind + std::to_string(n);
            const uint32_t first = n <= 4 ? 0x11110000 : 0x15110000; // of its half of the keys
            EXPECT_EQ(moved(0x11110000, "M/E-1", key.c_str(), 0x11110000),
                      first + ((n - 1) % 4 << 20))
                << key;
        }
}

TEST_F(PageTest, TheNearestPageIsOneThatExistsWhichIsLookedForTwiceASecond)
{
    PageLook look;
    for (const auto& [ms, is_due] : {std::pair{10, true}, {250, false}, {249, false}, {1, true}})
        EXPECT_EQ(PageLook_IsDue(look, ms), is_due) << ms;
    const FullHouse all;
    for (const auto& [meant, nearest] : {std::pair{0x11120000u, 0x11120000u},
                                         {0x11121234u, 0x11120000u},
                                         {0x11FE0000u, 0x11110000u},
                                         {0xEEEE0000u, PAGE_TOP}})
        EXPECT_EQ(Page_Nearest(meant), nearest) << std::hex << meant;
}
