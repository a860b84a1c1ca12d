// The gallery: every key of its pages is pressed, and what it opens is there.
#include "a_bt.h"
#include "bus.h"
#include "harness.h"
#include "message.h"
#include "page.h"
#include "pane.h"
#include "window.h"

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
