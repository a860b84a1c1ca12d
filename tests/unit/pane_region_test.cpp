#include "pane_page.h"
#include "pane_private.h"
#include <cstring>
#include <set>
#include <span>

struct Regions : PanePage {
    static void Select(int grp, std::initializer_list<std::pair<int, int>> cells)
    {
        for (int i = 0; i < RegionBtn[grp].cells; i++)
            RegionBtn[grp].btnsel[i].select = 0;
        for (const auto& [cell, select] : cells)
            RegionBtn[grp].btnsel[cell].select = select;
    }
    // "cell:select" of what is not off.
    static std::string Selected(int grp)
    {
        std::string text;
        for (int i = 0; i < RegionBtn[grp].cells; i++)
            if (const int select = RegionBtn[grp].btnsel[i].select)
                text += (text.empty() ? "" : " ") + std::to_string(i) + (select == 2 ? "*" : "");
        return text;
    }
    static int Width(int grp)
    {
        return 64 * RegionBtn[grp].hn + 26 + (grp == 24 || grp == 25 ? 150 : 0);
    }
    static int Height(int grp, int single) { return 44 * RegionBtn[grp].vn + (single ? 26 : 76); }
    static int Left(int grp) { return 400 - Width(grp) / 2; }
    static int Top(int grp, int single) { return (single ? 220 : 300) - Height(grp, single) / 2; }
    static void TouchCell(int grp, int cell, int single = 0)
    {
        const int x = grp == 24 || grp == 25 ? 115 : 15;
        Touch(Left(grp) + x + cell % RegionBtn[grp].hn * 64 + 20,
              Top(grp, single) + 15 + cell / RegionBtn[grp].hn * 44 + 20);
    }
    static void TouchKey(int grp, int from_right) // Enter: 0
    {
        const int x =
            from_right ? Left(grp) + Width(grp) - from_right : Left(grp) + Width(grp) / 2 - 30;
        Touch(x + 20, Top(grp, 0) + Height(grp, 0) - 40);
    }
    static void Enter(int grp) { TouchKey(grp, 0); }
    enum { ALL = 75, SWR_ALL = 140, DME_UNITS = 140, SWR_UNITS = 205 };

    // This panel's units, by numbers of devices.
    static void Units(int switchers, int effects)
    {
        SYS_MySwrMax = switchers;
        SYS_MyDmeMax = effects;
        for (int i = 0; i < DEVICE_MAX; i++) {
            DEV_MySwr[i] = i < switchers ? &DEV_Swr[i] : nullptr;
            DEV_MyDme[i] = i < effects ? &DEV_Dme[i] : nullptr;
            snprintf(DEV_Swr[i].name, sizeof DEV_Swr[i].name, "SWR%d", i + 1);
            snprintf(DEV_Dme[i].name, sizeof DEV_Dme[i].name, "DME%d", i + 1);
        }
    }
};

TEST_F(Regions, EveryGroupIsSound)
{
    Units(2, 8);
    for (int grp = 0; grp < REGION_GROUPS; grp++) {
        EXPECT_EQ(PaneRegion_InitID(grp), 0);
        const REGIONBTN& g = RegionBtn[grp];
        std::set<int> cells;
        int references = 0;
        for (int i = 0; i < g.cells; i++) {
            if (g.btnsel[i].id <= 0)
                continue;
            EXPECT_TRUE(cells.insert(g.btnsel[i].id).second) << grp << ": " << g.btnsel[i].id;
            EXPECT_STRNE(g.btnsel[i].caption, "") << grp;
            references += g.btnsel[i].select == 2;
        }
        EXPECT_LE(references, 1) << grp;
        std::set<int> named, places;
        for (int main = 0; main < PaneRegion_GetMainMax(grp); main++) {
            EXPECT_TRUE(places.insert(PaneRegion_GetGrpPos(grp, main)).second) << grp;
            EXPECT_LT(PaneRegion_GetGrpPos(grp, main), 10) << grp;
            for (int sub = 0; PaneRegion_GetGrpID(grp, main, sub) > 0; sub++) {
                const int id = PaneRegion_GetGrpID(grp, main, sub);
                EXPECT_TRUE(named.insert(id).second) << grp << ": " << id << " under two names";
                int found_main = -1, found_sub = -1;
                EXPECT_EQ(PaneRegion_GetGrpMainSub(grp, id, &found_main, &found_sub), 0);
                EXPECT_EQ(found_main, main);
                EXPECT_EQ(found_sub, sub);
                const bool has_files = grp != 24 && grp != 25 && grp != 46;
                EXPECT_EQ(*PaneRegion_GetGrpFIRegion(grp, main, sub) != 0, has_files) << grp << id;
                EXPECT_EQ(strlen(PaneRegion_GetGrpFIExt(grp, main, sub)), has_files ? 3U : 0U);
            }
        }
        EXPECT_EQ(named, cells) << "group " << grp << ": the area names what the selector offers";
        const int pane = PaneRegion_Create(grp, 0);
        Pass();
        EXPECT_GE(Top(grp, 0), 73) << "the saved ground reaches no higher";
        const Rect word = {Left(grp) + 20, Top(grp, 0) + 24, Left(grp) + 50, Top(grp, 0) + 34};
        if (grp == 24 || grp == 25) {
            EXPECT_THAT(PixelsIn(word), testing::Contains(0xFFFFFFu)) << "beside its row";
        }
        Enter(grp);
        EXPECT_EQ(Last(), Quit(pane, 1)) << grp;
    }
}

TEST_F(Regions, CellsOfUnitsAreNamedAfterThemAndFilesHaveTheWordOfTheirRegion)
{
    const auto cells = [](int grp) { // "id caption ext" of the first six
        PaneRegion_InitID(grp);
        Strings cells_of_grp;
        for (int i = 0; i < 6; i++) {
            const BTNSEL& b = RegionBtn[grp].btnsel[i];
            int main = 0, sub = 0;
            EXPECT_EQ(PaneRegion_GetGrpMainSub(grp, b.id, &main, &sub), 0);
            cells_of_grp.push_back(std::to_string(b.id) + " " + b.caption + " " +
                                   PaneRegion_GetGrpFIExt(grp, main, sub));
        }
        return cells_of_grp;
    };
    Units(2, 1);
    EXPECT_THAT(cells(0), ElementsAre("896 SWR1 SST", "897 SWR1\n   FC SFS", "898 SWR1\n CCR SCC",
                                      "899 SWR2 SST", "900 SWR2\n   FC SFS", "901 SWR2\n CCR SCC"));
    EXPECT_THAT(cells(41),
                ElementsAre("896 SWR1 SUS", "897 SWR1\nUsrSrc SUN", "898 SWR1\nPatch SUP",
                            "899 SWR2 SUS", "900 SWR2\nUsrSrc SUN", "901 SWR2\nPatch SUP"));
    PaneRegion_InitID(1);
    EXPECT_EQ(RegionBtn[1].btnsel[0].id, 896);
    EXPECT_EQ(RegionBtn[1].btnsel[4].id, 1152);
    EXPECT_EQ(RegionBtn[1].btnsel[5].id, 0) << "there is no second effects unit";
    Units(1, 1);
    // dual: where two processors share the effects units
    for (const auto& [grp, id, word, dual, ext] : {std::tuple{8, 292, "CHF", "CHF", "DKF"},
                                                   {13, 295, "CH4", "CH2", "DSS"},
                                                   {19, 512 + 9, "ME2_2", "ME2_2", "SKS"},
                                                   {30, 260, "PP_SUB", "PP_SUB", "SWS"}}) {
        PaneRegion_InitID(grp);
        int main = -1, sub = -1;
        ASSERT_EQ(PaneRegion_GetGrpMainSub(grp, id, &main, &sub), 0) << grp << " " << id;
        EXPECT_STREQ(PaneRegion_GetGrpFIRegion(grp, main, sub), word) << grp << " " << id;
        EXPECT_STREQ(PaneRegion_GetGrpFIRegion_DualProc(grp, main, sub), dual);
        EXPECT_STREQ(PaneRegion_GetGrpFIExt(grp, main, sub), ext) << grp << " " << id;
    }
    // No number stands for two regions of a row.
    for (const REGIONBTN& group : RegionBtn)
        for (const REGIONGRP& row : std::span(group.regiongrp, REGION_GRP_ROWS)) {
            const int* const end = std::find(row.id, std::end(row.id), 0);
            EXPECT_EQ(std::set<int>(row.id, end).size(), size_t(end - row.id))
                << group.no << " " << (row.name ? row.name : "");
        }
}

TEST_F(Regions, WithoutASwitcherTheFirstChannelLeadsAndAUnitComesBackAsTheReference)
{
    constexpr int M_E_1 = 0, ROUTER = 6, CHANNEL_1 = 16, CHANNEL_2 = 17;
    Units(1, 1);
    Select(14, {{M_E_1, 2}, {ROUTER, 1}});
    EXPECT_EQ(PaneRegion_SetDefaultSelected(14), 0);
    EXPECT_EQ(Selected(14), "0* 6") << "there is a switcher";
    Units(0, 1);
    PaneRegion_InitID(0);
    EXPECT_EQ(RegionBtn[0].btnsel[0].id, 0);
    EXPECT_EQ(PaneRegion_SetDefaultSelected(14), 0);
    EXPECT_EQ(Selected(14), "6 16*") << "the router is none of its cells";
    Select(14, {{M_E_1, 1}, {CHANNEL_1, 1}, {CHANNEL_2, 2}});
    PaneRegion_SetDefaultSelected(14);
    EXPECT_EQ(Selected(14), "16* 17");
    EXPECT_EQ(PaneRegion_SetDefaultSelected(REGION_GROUPS), -1);
    Units(2, 0);
    PaneRegion_InitID(23);
    Select(23, {{0, 1}, {1, 2}});
    EXPECT_EQ(PaneRegion_GetRef(23), 897);
    Units(1, 0);
    PaneRegion_InitID(23);
    EXPECT_EQ(PaneRegion_GetRef(23), 0);
    EXPECT_EQ(PaneRegion_IsSelected(23, 897), 0);
    Units(2, 0);
    PaneRegion_InitID(23);
    EXPECT_EQ(PaneRegion_GetRef(23), 897);
}

TEST_F(Regions, UnknownPlacesAnswerNothing)
{
    int main = 7, sub = 7;
    for (int grp : {-1, REGION_GROUPS}) {
        EXPECT_EQ(PaneRegion_InitID(grp), -1);
        EXPECT_EQ(PaneRegion_Create(grp, 0), 0);
        EXPECT_EQ(PaneRegion_GetMainMax(grp), 0);
        EXPECT_STREQ(PaneRegion_GetGrpCategoryStr(grp), "");
        EXPECT_EQ(PaneRegion_GetGrpMainSub(grp, 257, &main, &sub), -1);
    }
    EXPECT_EQ(PaneRegion_GetGrpID(4, 8, 0), 0);
    for (const auto& [row, entry] : {std::pair{0, 12}, {0, -1}, {8, 0}}) {
        EXPECT_STREQ(PaneRegion_GetGrpFIRegion(4, row, entry), "");
        EXPECT_STREQ(PaneRegion_GetGrpFIExt(4, row, entry), "");
    }
    EXPECT_EQ(PaneRegion_GetGrpMainSub(4, 0, &main, &sub), -1) << "an empty cell is no region";
    Select(4, {{6, 1}}); // an empty one
    EXPECT_EQ(PaneRegion_IsSelected(4, 0), 0);
    EXPECT_STREQ(PaneRegion_GetCaption(4, 0), "");
    EXPECT_EQ(main, 7);
}

TEST_F(Regions, TheLastOneTouchedIsTheReference)
{
    Units(2, 2);
    // "*": the reference
    for (const auto& [grp, touches, selected] :
         {std::tuple{4, std::vector<int>{1, 1}, "0*"}, // off: the first that is on takes over
          {4, {6, 7}, "0*"},                           // empty cells
          {24, {0, 1}, "0 1"},                         // units have no reference
          {32, {1}, "1*"},                             // one at a time
          {39, {0}, "0*"},                             // the reference stays
          {39, {1}, "0 1*"}}) {
        PaneRegion_InitID(grp);
        Select(grp, {{0, grp == 24 ? 0 : 2}});
        (void)PaneRegion_Create(grp, 0);
        for (const int cell : touches)
            TouchCell(grp, cell);
        Enter(grp);
        EXPECT_EQ(Selected(grp), selected) << grp << testing::PrintToString(touches);
    }
    Select(4, {});
    EXPECT_EQ(PaneRegion_GetRef(4), 0);
}

TEST_F(Regions, OnlyEnterChangesTheSelection)
{
    Units(2, 2);
    Select(4, {{0, 2}});
    const int id = PaneRegion_Create(4, 0);
    Pass();
    const Rect cell = {Left(4) + 15 + 3 * 64, Top(4, 0) + 15, Left(4) + 15 + 4 * 64,
                       Top(4, 0) + 50};
    const auto off = PixelsIn(cell);
    TouchCell(4, 3);
    Pass();
    EXPECT_NE(PixelsIn(cell), off);
    Touch(Left(4) + 15 + 62, Top(4, 0) + 30); // between two cells
    EXPECT_EQ(Pane_Exist(id), 1) << "a touch that missed loses nothing";
    EXPECT_EQ(Last(5, 5), Quit(id, 0)) << "the way out";
    EXPECT_EQ(Selected(4), "0*");
    Pane_Quit(PaneRegion_Create(4, 0));
    EXPECT_EQ(Selected(4), "0*");
    (void)PaneRegion_Create(4, 0);
    TouchCell(4, 3);
    Enter(4);
    EXPECT_EQ(Selected(4), "0 3*");
}

TEST_F(Regions, ASingleSelectorAnswersWithTheRegion)
{
    Units(2, 2);
    Select(4, {{0, 2}});
    const auto answer = [](int grp, int cell) {
        const int id = PaneRegion_Create(grp, 1);
        TouchCell(grp, cell, 1);
        const std::string last = Last();
        EXPECT_EQ(last.substr(0, last.rfind(' ')), "quit " + std::to_string(id));
        return last.substr(last.rfind(' ') + 1);
    };
    EXPECT_EQ(answer(4, 10), "274");
    EXPECT_EQ(answer(4, 6), "0") << "a hole between the cells";
    const int id = PaneRegion_Create(4, 1);
    EXPECT_EQ(Last(5, 5), Quit(id, 0));
    Units(1, 0);
    PaneRegion_InitID(23);
    Units(2, 0); // the second one has come meanwhile
    EXPECT_EQ(answer(23, 1), "897");
    EXPECT_EQ(Selected(4), "0*");
}

TEST_F(Regions, AllKeysSelectAndClear)
{
    static const struct {
        const char* name;
        int grp, switchers;
        std::vector<std::pair<int, int>> before;
        int key;
        const char* selected;
    } cases[] = {
        {"all", 17, 1, {}, ALL, "0* 1 2 3 4 5"},
        {"any off", 17, 1, {{3, 1}}, ALL, ""},
        {"the third cell", 34, 1, {}, ALL, "0 1 2* 3 4 5 8 10 11 12 13 18 19 20 21"},
        {"one reference", 13, 1, {{16, 2}}, SWR_ALL, "0* 1 2 3 4 5 8 9 10 11 12 13 14 15 16"},
        {"banks off", 13, 1, {{2, 2}, {17, 1}, {18, 1}}, SWR_ALL, "17* 18"},
        {"switchers among units", 24, 1, {{0, 0}}, SWR_UNITS, "0 1 2 3 4 5 6 7"},
        {"effects units, the others stay", 25, 1, {{1, 1}}, DME_UNITS, "1 10 11 12 13 14 15 16 17"},
        {"no switcher: the first channel leads", 14, 0, {}, ALL, "6 16* 17 18 19 20 21 22 23"},
        {"no switcher: nothing for its banks", 13, 0, {{17, 2}}, SWR_ALL, "17*"},
        {"no ALL for three columns", 43, 1, {{0, 2}}, ALL, "0*"},
    };
    for (const auto& c : cases) {
        Units(c.switchers, 2);
        Select(c.grp, {});
        for (const auto& [cell, select] : c.before)
            RegionBtn[c.grp].btnsel[cell].select = select;
        (void)PaneRegion_Create(c.grp, 0);
        TouchKey(c.grp, c.key);
        Enter(c.grp);
        EXPECT_EQ(Selected(c.grp), c.selected) << c.name;
    }
}
