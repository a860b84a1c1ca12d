// The gallery: every key of its pages is pressed, and what it opens is there.
#include "a_bt.h"
#include "bus.h"
#include "global.h"
#include "harness.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include "window.h"
#include <cstring>

struct Gallery : testing::Test {
    void SetUp() override { Harness_Reset(); }
    void TearDown() override { Harness_Reset(); }
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

TEST_F(Gallery, AllButtonsTakeTheStateThatIsChosen)
{
    Open(0x99920000);
    for (const auto& [key, status, visible] : {std::tuple{67, BT_THIRD, BT_ENABLED},
                                               {69, BT_ON, BT_DISABLED},
                                               {65, BT_OFF, BT_ENABLED}}) {
        Press(key);
        EXPECT_EQ(BT_GetStatus(key), BT_ON) << key;
        EXPECT_EQ(BT_GetStatus(1), status) << key;
        EXPECT_EQ(BT_GetVisible(50), visible) << key;
        EXPECT_EQ(BT_GetVisible(54), BT_ENABLED) << "the way out";
    }
    Press(1);
    EXPECT_EQ(BT_GetStatus(1), BT_ON) << "a toggle answers without a server";
    for (const auto& command : TakeQueuedCommands())
        EXPECT_EQ(command.find("Gallery"), std::string::npos) << command;
}
