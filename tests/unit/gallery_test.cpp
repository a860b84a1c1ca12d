// The gallery: every key of its pages is pressed, and what it opens is there.
#include "a_bt.h"
#include "a_ls.h"
#include "a_nb.h"
#include "a_st_draw.h"
#include "bus.h"
#include "global.h"
#include "harness.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include "window.h"
#include <cstring>

struct Gallery : testing::Test {
    void SetUp() override
    {
        Harness_Reset();
        Close();
    }
    void TearDown() override
    {
        Close();
        CreatePage(PAGE_TOP);
        Page_Reset();
        GL_CreatePage = 0;
        (void)TakeQueuedCommands();
    }
    static void Close()
    {
        CloseWindow();
        while (int id = Pane_GetActiveID())
            Pane_Quit(id);
    }
    static void Pass(int elapsed_ms = 10) { SendMessage(MSG_REDRAW, elapsed_ms, 0, 0, 0); }
    static void Open(uint32_t page)
    {
        ASSERT_EQ(CreatePage(page), 0);
        Pass();
    }
    static void Press(const BT_MEM& b)
    {
        SendMessage(MSG_PRESS, b.x1 + 5, b.y1 + 5, 1, 0);
        SendMessage(MSG_RELEASE, b.x1 + 5, b.y1 + 5, 0, 0);
    }
    static void Press(int id) { Press(*bt_find(id)); }
    // The keys of the page that open something.
    template <typename Check> static int ForEachAction(Check check)
    {
        int n = 0;
        for (const BT_MEM* b = bt_first(); b->id >= 1; b++) {
            if (b->type != BT_ACTION)
                continue;
            Press(*b);
            check(b->caption);
            Close();
            Pass(300);
            n++;
        }
        return n;
    }
};

TEST_F(Gallery, EveryKeyOfThePanesOpensOne)
{
    Open(0x99920006);
    const int n = ForEachAction([](const char* caption) {
        EXPECT_NE(Pane_GetActiveID(), 0) << caption;
        Pass();
    });
    EXPECT_GE(n, 20);
}

TEST_F(Gallery, EveryKeyOfTheWindowsOpensOne)
{
    Open(0x99920007);
    int types = 0;
    const int n = ForEachAction([&](const char* caption) {
        EXPECT_NE(GetWindow(), 0) << caption;
        types |= 1 << GetWindow();
        Pass();
    });
    EXPECT_GE(n, 17);
    EXPECT_EQ(types, 0x3FFE) << "not all kinds are there";
}

TEST_F(Gallery, AProgressRunsToItsEndAndCloses)
{
    Open(0x99920006);
    Press(17);
    for (int n = 0; n < 490; n++)
        Pass();
    EXPECT_NE(Pane_GetActiveID(), 0);
    for (int n = 0; n < 20; n++)
        Pass();
    EXPECT_EQ(Pane_GetActiveID(), 0);
}

TEST_F(Gallery, AllButtonsTakeTheStateThatIsChosen)
{
    Open(0x99920000);
    static const struct {
        int key; // of the state
        int status;
        int visible;
    } cases[] = {
        {65, BT_OFF, BT_ENABLED},  {66, BT_ON, BT_ENABLED},  {67, BT_THIRD, BT_ENABLED},
        {68, BT_OFF, BT_DISABLED}, {69, BT_ON, BT_DISABLED}, {70, BT_OFF, BT_CUTOFF},
        {65, BT_OFF, BT_ENABLED},
    };
    for (const auto& c : cases) {
        Press(c.key);
        EXPECT_EQ(BT_GetStatus(c.key), BT_ON) << c.key;
        EXPECT_EQ(BT_GetStatus(1), c.status) << c.key;
        for (int id : {1, 6, 22, 33, 50})
            EXPECT_EQ(BT_GetVisible(id), c.visible) << c.key << " " << id;
        EXPECT_EQ(BT_GetVisible(54), BT_ENABLED) << "the way out";
    }
    Press(1);
    EXPECT_EQ(BT_GetStatus(1), BT_ON) << "a toggle answers without a server";
    Press(3);
    EXPECT_EQ(BT_GetStatus(3), BT_ON);
    EXPECT_EQ(BT_GetStatus(2), BT_OFF);
    for (const auto& command : TakeQueuedCommands())
        EXPECT_EQ(command.find("Gallery"), std::string::npos) << command;
}

TEST_F(Gallery, ListsAndCellsShowWhatTheirKeysSay)
{
    Open(0x99920002);
    for (const auto& [key, rows] : {std::pair{49, 0}, {51, 12000}, {50, 30}}) {
        Press(key);
        Pass(300);
        EXPECT_EQ(LS_GetNData(1), rows);
        EXPECT_EQ(LS_GetNData(2), rows);
    }
    Open(0x99920003);
    for (int key : {49, 50, 51, 52})
        Press(key);
    EXPECT_TRUE(bgcen && inven && gryen && s_font);
    Open(0x99910000);
    EXPECT_FALSE(bgcen || inven || gryen || s_font) << "they leak to the operator's pages";
}

TEST_F(Gallery, TabsLightTheirBarsAndLeaveGaps)
{
    constexpr uint32_t ACTIVE = 0xC86E05; // the middle line of the bar
    constexpr uint32_t FRAME = 0x1F1F1F;
    Open(0x99920004);
    EXPECT_NE(PixelAt(225, 585), ACTIVE);   // the bar of "Boxes"
    const uint32_t face = PixelAt(60, 230); // of the third tab on the left
    EXPECT_NE(face, FRAME);
    Press(17);
    Press(18);
    Pass();
    EXPECT_EQ(PixelAt(225, 585), ACTIVE);
    EXPECT_EQ(PixelAt(60, 230), FRAME);
    Press(17);
    Press(18);
    Pass();
    EXPECT_NE(PixelAt(225, 585), ACTIVE);
    EXPECT_EQ(PixelAt(60, 230), face);
}
