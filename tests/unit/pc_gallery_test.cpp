#include "a_fl.h"
#include "a_st_draw.h"
#include "display.h"
#include "pane_private.h"
#include "table_page.h"
#include "timecode.h"

struct GalleryPages : TablePage {
    // How the last one was answered.
    static bool Says(const std::string& text)
    {
        constexpr Rect line = {112, 100, 690, 116};
        const auto said = Seen(line);
        TDL_FillRectS(line.x1, line.y1, line.x2, line.y2, 0);
        TDL_SymbolWS(line.x1, line.y1, line.x2 - line.x1, text.c_str(), 4, 0xFFFFFF);
        return Seen(line) == said;
    }
};

TEST_F(GalleryPages, TheTopRowPutsAllKeysIntoAState)
{
    static const std::pair<int, const char*> states[] = {
        // Status and visibility of a key that can be on, and of one that cannot.
        {66, "1/0 2/0"}, {67, "3/0 2/0"}, {70, "2/2 2/2"}, {68, "2/1 2/1"},
        {69, "1/1 2/1"}, {70, "2/2 2/2"}, {65, "2/0 2/0"}};
    (void)Open(0x99920000);
    EXPECT_EQ(BT_GetStatus(65), BT_ON) << "Off";
    for (const auto& [key, expected] : states) {
        (void)Press(key);
        Pass(200);
        std::string shown;
        for (const int id : {50, 6})
            shown += (id == 6 ? " " : "") + std::to_string(BT_GetStatus(id)) + "/" +
                     std::to_string(BT_GetVisible(id));
        EXPECT_EQ(shown, expected) << key;
        EXPECT_EQ(BT_GetStatus(key), BT_ON);
    }
    for (const bool on : {true, false}) {
        for (const int key : {1, 4, 51})
            (void)Press(key);
        Pass(200);
        EXPECT_EQ(BT_GetStatus(1) == BT_ON, on);
        EXPECT_EQ(BT_GetStatus(4) == BT_ON, on);
        EXPECT_EQ(bt_find(51)->undecided, on);
    }
    for (const int key : {2, 3, 5}) {
        (void)Press(key);
        for (const int other : {2, 3, 5})
            EXPECT_EQ(BT_GetStatus(other) == BT_ON, other == key) << key;
    }
}

TEST_F(GalleryPages, BoxesAndListsAreFilledAsTheirKeysSay)
{
    (void)Open(0x99920001);
    (void)Press(17);
    EXPECT_EQ(Shown("4 Decimals"), "0.5");
    (void)Press(18);
    static const std::pair<int, Strings> values[] = {{33, {"100", "0", "-50"}},
                                                     {35, {"-100", "10", "0"}},
                                                     {34, {"0", "5", "-25"}},
                                                     {36, {"-150", "12.5", "12.5"}},
                                                     {37, {"0", "0", "0"}}};
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
    for (const auto& [row, cells] :
         {std::pair{8, "9|A NAME THAT IS TOO LONG|0|A|B"}, {15, "16|OPENING|127|A|B"}}) {
        EXPECT_EQ(Cells(1, row, 0, 5), cells);
        EXPECT_EQ(Cells(2, row, 0, 3), std::to_string(row + 1) + "|M/E-1|P/P");
    }
    const Rect title = {320, 78, 349, 97}; // of the column "A"
    Paint();
    const auto plain = PixelsIn(title);
    for (const bool is_grey : {true, false}) {
        (void)Press(52);
        Pass(200);
        EXPECT_EQ(PixelsIn(title) != plain, is_grey);
    }
}

TEST_F(GalleryPages, CellsAndTabsFollowTheirKeysAndForgetThemWithThePage)
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
        (void)Open(0x99920004);
        for (const bool on : {false, true, false}) {
            for (const int tab : {17, 18}) {
                EXPECT_EQ(BT_GetStatus(tab), on ? BT_ON : BT_OFF) << tab;
                (void)Press(tab);
            }
            Pass(200);
        }
    }
}

TEST_F(GalleryPages, EachSideOfTheFilesGoesRoundTheDrives)
{
    (void)Open(0x9992000B);
    for (const int device : {FL_DIRDATA_REMOVABLE_DRIVE, FL_DIRDATA_STORAGE_ROOT}) {
        (void)Press(33);
        Pass(200);
        EXPECT_EQ(FL_GetDevice(FL_L_LIST), device);
    }
    (void)Press(36);
    EXPECT_EQ(FL_GetDevice(FL_R_LIST), FL_DIRDATA_STORAGE_ROOT + 1);
    EXPECT_EQ(FL_GetDevice(FL_L_LIST), FL_DIRDATA_STORAGE_ROOT);
}

TEST_F(GalleryPages, PanesOpenByTheirKeysAndCloseByThemByCodeOrInTime)
{
    (void)Open(0x99920006);
    const Display display;
    for (const BT_MEM* b = bt_first(); b->id >= 1; b++) {
        const int id = b->id;
        if (*b->cmd[0] != 'L')
            continue;
        Pass(200);
        (void)Press(id);
        SendMessage(LMSG_PANEQUIT, Pane_GetActiveID(), 7, 0, 0);
        if (id == 38) {
            EXPECT_STREQ(pane_top()->button[0].caption, "ENTRY 01");
        }
        int panes = 0;
        for (; const int pane = Pane_GetActiveID(); panes++)
            (void)Pane_Quit(pane);
        EXPECT_EQ(panes, id == 5 ? 3 : 1) << id;
        EXPECT_TRUE(Says(b->cmd_var[0] + std::string(": answered with 7"))) << id;
        EXPECT_EQ(Display::Lacks(), "");
    }
    for (const auto& [key, name] : {std::pair{17, "Progress"}, {18, "No Cancel"}}) {
        Pass(200);
        (void)Press(key);
        Pass(4990);
        ASSERT_NE(Pane_GetActiveID(), 0);
        EXPECT_STREQ(pane_top()->each.progress.progmes, "99 of 100");
        Pass(10);
        EXPECT_EQ(Pane_GetActiveID(), 0);
        EXPECT_TRUE(Says(name + std::string(": closed by code at 100")));
    }
    EXPECT_FALSE(Says("Nothing")) << "or it is painted in every pass";
    Pass(200);
    (void)Press(20);
    for (const int key : {PANEFIND_NEXT, PANEFIND_CLOSE}) {
        SendMessage(LMSG_PANEBTNSEL, key, 0, 0, 0);
        Pass(10);
        EXPECT_EQ(Pane_GetActiveID() != 0, key == PANEFIND_NEXT);
    }
    Pass(200);
    (void)Press(21);
    Pass(2990);
    const auto lit = PixelsIn({0, 0, 799, 599});
    Pass(10);
    EXPECT_NE(PixelsIn({0, 0, 799, 599}), lit) << "the indicator goes out";
    (void)Pane_Quit(Pane_GetActiveID());
    SendMessage(LMSG_PANEBTNSEL, 1, 0, 0, 0);
    (void)Open(0x99920006);
    EXPECT_TRUE(Says(""));
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
    EXPECT_TRUE(Says("Box 2: " + std::to_string(GetFrameNum_SWR(0)) + ".00"));
    for (const auto& [key, text, answer] : {std::tuple{4, "5", "Bank: answered with 5"},
                                            {5, "6", "Hex: answered with 6"},
                                            {6, "3456789012345", "Keyboard: \"STUDIO 434567890\""},
                                            {18, "1111", "Page Get: answered with 286326784"},
                                            {19, "1112", "Page Initial: answered with 286392320"},
                                            {20, "", "Message: answered with 1"},
                                            {21, "", "Yes/No: answered with 1"}}) {
        enter(key, text);
        EXPECT_TRUE(Says(answer)) << key;
    }
    for (const int key : {3, 17, 22, 33, 34, 49, 50, 51, 52}) {
        Pass(200);
        (void)Press(key);
        EXPECT_NE(GetWindow(), WINDOW_NONE) << key;
        (void)CloseWindow();
    }
}
