#include "a_ls_page.h"

struct ListPictures : ListPage {
    static void Row(int id, int row, std::initializer_list<const char*> cells)
    {
        int col = 0;
        for (const char* text : cells)
            LS_SetData(id, row, col++, text);
    }
};

// clang-format off
static const LS_TBL table[] = {
    {.id = 1, .hn = 11, .vn = 12, .x = 100, .y = 78,
     .head = {"No", "Name", "L/E", "Eff Diss", "M/E", "USR", "DME", "DEV", "PBus", "GPI", "MCRO"},
     .width = {28, 110, 40, 60, 40, 40, 40, 40, 45, 50, 57}, .group = {4, 3, 2, 999},
     .sb_top = 78, .sb_bottom = 364},
    LS_END,
};
static const LS_TBL classes[] = {
    {.id = 1, .hn = 2, .vn = 18, .x = 100, .y = 78, .head = {"Class", "Mono"}, .width = {60, 80},
     .group = {1, 1}, .mono = 1, .sb_top = 78, .sb_bottom = 496, .block = 1},
    {.id = 2, .hn = 3, .vn = 18, .x = 320, .y = 78, .head = {"Class", "Usual", "Split"},
     .width = {60, 80, 29}, .split = 1, .sb_top = 78, .sb_bottom = 496, .block = 1},
    LS_END,
};
// clang-format on

// As on an effect page: groups, a narrow column, rows of all kinds, "Plural" on.
TEST_F(ListPictures, Page)
{
    Open(table, 99);
    LS_SetMS(1, 1);
    static const char* const names[] = {"OPENING", "HEADLINE",           "OTS L",  "OTS R",
                                        "SPLIT 2", "A NAME THAT IS CUT", "WEATHER"};
    static const char* const numbers[] = {"7",  "8",  "9",  "10", "11", "12",
                                          "13", "14", "15", "16", "17", "18"};
    for (int i = 0; i < 12; i++) {
        const int row = 6 + i;
        const int usual = i < 7 ? i : 0;
        Row(1, row, {numbers[i], names[i % 7], i % 3 ? "" : "L", "15", "O", "", "O"});
        LS_SetHStatus(1, row, usual);
        for (int col = 4; i >= 10 && col < 11; col++)
            LS_SetStatus(1, row, col, 4);
    }
    LS_HeaderDisable(1, 7, 1);
    LS_SetTopLine(1, 6);
    for (int row : {14, 15, 16})
        LS_SetSelected(1, row, 0, 1);
    LS_SetTopLine(1, 6);
    Redraw(); // the list,
    Redraw(); // and its bar, which the list has told where it stands
    EXPECT_TRUE(MatchesGolden("list_page", {97, 74, 703, 420}));
}

// Each class beside its selected form; the left list has one colour for all of them. Below them an
// icon, a text that is none, and rows that are not in use.
TEST_F(ListPictures, ColourClasses)
{
    static const char* const digits[] = {"0", "1", "2", "3", "4", "5", "6", "127"};
    Open(classes, 17);
    for (int id : {1, 2}) {
        LS_SetMS(id, 1);
        for (int i = 0; i < 8; i++) {
            for (int row : {i, i + 8}) {
                Row(id, row, {digits[i], "text", "x"});
                LS_SetHStatus(id, row, i < 7 ? i : 127);
            }
        }
        Row(id, 16, {"_Folder", "_Elsewhere"});
    }
    // The block rule would leave one run of each: selected row by row it is one.
    for (int row = 8; row < 17; row++) {
        LS_SetSelected(1, row, 0, 1);
        LS_SetSelected(2, row, 1, 1);
    }
    LS_SetNowLine(2, 3);
    Redraw();
    Redraw();
    EXPECT_TRUE(MatchesGolden("list_classes", {97, 74, 550, 500}));
}
