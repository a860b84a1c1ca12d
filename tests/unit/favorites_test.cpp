// The operator's own pages: opening, storing, colouring, clearing.
#include "table_page.h"

constexpr uint32_t FAVORITES = 0x00220000;
constexpr int FIRST = 1, LAST = 37, BTN_COLOR = 52, BTN_CLEAR = 53, BTN_STORE = 54;
const std::string DATA = "Info@Operation Setup Data@";

struct Favorites : TablePage {
    void SetUp() override
    {
        TablePage::SetUp();
        (void)Open(0x11120000);
        EXPECT_EQ(CreatePage(FAVORITES), 0);
        const Lines sent = TakeQueuedCommands();
        for (const char* word : {"Group Name", "Shortcut Name", "Color Select"})
            for (int n = 0; n <= 11; n++)
                EXPECT_EQ(std::ranges::count(sent, "read " + DATA + word + "@" + std::to_string(n)),
                          n >= 1 && n <= 10)
                    << word << n;
        TellAll(DATA, {"Shortcut Name@1#13110000,M/E-3|Type", "Color Select@1#8"});
    }
    void TearDown() override
    {
        TellAll(DATA, {"Shortcut Name@1#0,", "Color Select@1#9"});
        TablePage::TearDown();
    }
    // The next touch counts only when the key has come back up.
    static Lines Again(int key)
    {
        Pass(2000);
        return Puts(Press(key));
    }
    static Lines Work(int mode, int key)
    {
        (void)Again(mode);
        return Again(key);
    }
};

TEST_F(Favorites, AKeyOpensItsPageUnlessSomethingElseIsMeant)
{
    EXPECT_EQ(Usable({FIRST, LAST}), std::vector<int>{FIRST}) << "a free key opens nothing";
    EXPECT_EQ(Caption(FIRST), "M/E-3\nType");
    EXPECT_EQ(Caption(LAST), "");
    TellAll(DATA, {"Group Name@1#News", "Group Name@10#Sport", "Group Name@11#None"});
    EXPECT_STREQ(bt_find(FIRST)->group, "News");
    EXPECT_STREQ(bt_find(LAST)->group, "Sport");
    (void)Again(BTN_STORE);
    EXPECT_THAT(Usable({FIRST, LAST}), testing::SizeIs(2));
    EXPECT_THAT(Again(LAST),
                testing::ElementsAre("put " + DATA + "Shortcut Name@10#11120000,M/E-1|Edge"));
    (void)Again(BTN_COLOR);
    EXPECT_EQ(Usable({FIRST, LAST}), std::vector<int>{FIRST});
    EXPECT_EQ(Again(FIRST), Lines{"put " + DATA + "Color Select@1#9"});
    const auto look = [] {
        Pass(2000); // the key is up again
        const BT_MEM* const b = bt_find(FIRST);
        return PixelsIn({b->x1, b->y1, b->x2, b->y2});
    };
    const auto before = look();
    (void)Tell(DATA + "Color Select@1#9");
    EXPECT_NE(look(), before);
    EXPECT_EQ(Again(FIRST), Lines{"put " + DATA + "Color Select@1#1"}) << "still colouring";
    EXPECT_EQ(Work(BTN_CLEAR, FIRST), Lines{"put " + DATA + "Shortcut Name@1#0,"});
    EXPECT_EQ(GL_CreatePage, 0u);
    EXPECT_EQ(Again(FIRST), Lines{}) << "one is cleared at a time";
    EXPECT_EQ(GL_CreatePage, 0x13110000u) << "the server still has it";
    GL_CreatePage = 0;
    (void)Tell(DATA + "Shortcut Name@1#0,");
    EXPECT_EQ(Usable({FIRST}), std::vector<int>{});
}

TEST_F(Favorites, OnlyOneThingIsMeantAtATimeAndALostPageIsOnlyCleared)
{
    (void)Press(BTN_STORE);
    (void)Press(BTN_CLEAR);
    EXPECT_EQ(BT_GetStatus(BTN_CLEAR), BT_ON);
    EXPECT_EQ(BT_GetStatus(BTN_STORE), BT_OFF);
    (void)Press(BTN_CLEAR);
    (void)Press(FIRST);
    EXPECT_EQ(GL_CreatePage, 0x13110000u);
    GL_CreatePage = 0;
    SYS_MEOperation[2] = 1; // M/E-3
    EXPECT_EQ(CreatePage(FAVORITES), 0);
    EXPECT_EQ(Usable({FIRST}), std::vector<int>{});
    EXPECT_EQ(Work(BTN_CLEAR, FIRST), Lines{"put " + DATA + "Shortcut Name@1#0,"});
}
