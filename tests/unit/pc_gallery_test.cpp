#include "a_st_draw.h"
#include "pane.h"
#include "table_page.h"
#include "timecode.h"

using GalleryPages = TablePage;

TEST_F(GalleryPages, BoxesAndListsAreFilledAsTheirKeysSay)
{
    (void)Open(0x99920001);
    (void)Press(17);
    EXPECT_EQ(Shown("4 Decimals"), "0.5");
    (void)Press(18);
    static const std::pair<int, Strings> values[] = {{33, {"100", "0", "-50"}},
                                                     {35, {"-100", "10", "0"}},
                                                     {34, {"0", "5", "-25"}},
                                                     {36, {"-150", "12.5", "12.5"}}};
    for (const auto& [key, expected] : values) {
        (void)Press(key);
        EXPECT_THAT((Strings{Shown("Backwards"), Shown("Two\nlines"), Shown("One side")}),
                    ElementsAreArray(expected));
    }
    (void)Open(0x99920002);
    for (const auto& [key, rows] : {std::pair{50, 30}, {49, 0}, {51, 12000}}) {
        (void)Press(key);
        Pass(200);
        for (const int list : {1, 2})
            EXPECT_EQ(LS_GetNData(list), rows);
    }
}

TEST_F(GalleryPages, CellsFollowTheirKeysAndForgetThemWithThePage)
{
    for (int visit = 0; visit < 2; visit++) {
        (void)Open(0x99920003);
        int key = 49;
        for (int* value : {&bgcen, &inven, &gryen, &s_font}) {
            for (const int on : {0, 1, 0, 1}) {
                EXPECT_EQ(*value, on) << key;
                EXPECT_EQ(BT_GetStatus(key) == BT_ON, on) << key;
                (void)Press(key);
                Pass(200);
            }
            (void)Press(key++);
        }
        (void)Leave();
        EXPECT_EQ(s_font, 0) << "it would follow to other pages";
    }
}

constexpr Rect ANSWER = {112, 100, 690, 116}; // how the last one was answered

TEST_F(GalleryPages, PanesOpenByTheirKeys)
{
    (void)Open(0x99920006);
    for (const BT_MEM* b = bt_first(); b->id >= 1; b++) {
        const int id = b->id;
        if (*b->cmd[0] != 'L')
            continue;
        Pass(200);
        (void)Press(id);
        EXPECT_NE(Pane_GetActiveID(), 0) << id;
        while (const int pane = Pane_GetActiveID())
            (void)Pane_Quit(pane);
    }
}

TEST_F(GalleryPages, WindowsOpenByTheirKeysAndAnswerToTheirBoxOrTheLine)
{
    const auto enter = [](int key, const std::string& text) {
        Pass(200);
        (void)Press(key);
        EXPECT_NE(GetWindow(), WINDOW_NONE) << key;
        for (const char c : text + "\r")
            SendMessage(MSG_KEY, c, 0, 0, 0);
        EXPECT_EQ(GetWindow(), WINDOW_NONE) << key;
    };
    (void)Open(0x99920007);
    EXPECT_EQ(Shown("Value"), "12.5");
    EXPECT_EQ(Shown("Time Code"), std::to_string((12 * 60 + 34) * GetFrameNum_SWR(0) + 15));
    enter(1, "7");
    EXPECT_EQ(Shown("Value"), "7");
    enter(2, "1:0");
    EXPECT_EQ(Shown("Time Code"), std::to_string(GetFrameNum_SWR(0)));
    auto before = Seen(ANSWER);
    for (const auto& [key, text] :
         {std::pair{4, "5"}, {5, "6"}, {6, "X"}, {18, "1111"}, {19, "1112"}, {20, ""}, {21, ""}}) {
        enter(key, text);
        EXPECT_NE(Seen(ANSWER), before) << key;
        before = PixelsIn(ANSWER);
    }
}
