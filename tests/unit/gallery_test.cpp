// The gallery: every key of its pages is pressed, and what it opens is there.
#include "pane.h"
#include "table_page.h"
#include "window.h"

struct Gallery : TablePage {
    // Press the keys of the page that open something; how many there are.
    template <typename Check> static int ForEachAction(uint32_t page, Check check)
    {
        int n = 0;
        Open(page);
        Pass(10);
        for (const BT_MEM* b = bt_first(); b->id >= 1; b++) {
            if (b->type != BT_ACTION)
                continue;
            Press(b->id);
            SendMessage(MSG_RELEASE, b->x1 + 5, b->y1 + 5, 0, 0);
            check(b->caption);
            Pass(10);
            CloseWindow();
            while (int id = Pane_GetActiveID())
                Pane_Quit(id);
            Pass(300);
            n++;
        }
        return n;
    }
};

TEST_F(Gallery, EveryKeyOpensItsPaneOrWindow)
{
    int types = 0;
    EXPECT_GE(
        ForEachAction(0x99920006, [](const char* key) { EXPECT_NE(Pane_GetActiveID(), 0) << key; }),
        20);
    EXPECT_GE(ForEachAction(0x99920007,
                            [&](const char* key) {
                                EXPECT_NE(GetWindow(), 0) << key;
                                types |= 1 << GetWindow();
                            }),
              17);
    EXPECT_EQ(types, 0x3FFE) << "not all kinds of windows are there";
}
