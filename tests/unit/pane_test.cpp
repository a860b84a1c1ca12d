#include "display.h"
#include "memory.h"
#include "pane_page.h"
#include "pane_private.h"
#include "pane_search.h"
#include "window.h"
#include <chrono>
#include <climits>

// Of the message box at (200, 140).
constexpr int OK_X = 200 + 160, OK_Y = 140 + 255;
constexpr int YES_X = 200 + 100, NO_X = 200 + 215;
constexpr int ARROW_X = 200 + 340, DOWN_Y = 140 + 205, PROGRESS_UP_Y = 140 + 125;

static std::string Lines(int n)
{
    return n > 1 ? Lines(n - 1) + "\n" + std::to_string(n) : "1";
}

static std::vector<BTNSEL> Choices(int n) // with ids from 1
{
    std::vector<BTNSEL> items;
    while (int(items.size()) < n)
        items.push_back({int(items.size()) + 1, "Item", 0});
    return items;
}

static std::vector<uint32_t> Well()
{
    return PixelsIn({231, 206, 500, 374});
}

using Panes = PanePage;

TEST_F(Panes, AnswersAreTheResult)
{
    for (const auto& [name, open, x, y, result] :
         {std::tuple<const char*, int (*)(), int, int, int>{
              "OK", [] { return PaneMessage_Create("C", PANE_INFO, "m"); }, OK_X, OK_Y, 0},
          {"No", [] { return PaneYesNo_Create("C", PANE_ALERT, "m"); }, NO_X, OK_Y, 2},
          {"Cancel", [] { return PaneProgress_Create("C", "m", 1); }, OK_X, OK_Y, 1}}) {
        const int id = open();
        ASSERT_GT(id, 0) << name;
        Pass();
        Press(x, y);
        Pass(149);
        EXPECT_THAT(Told(), IsEmpty()) << name << ": the pushed look shows first";
        Pass(1);
        EXPECT_EQ(Pane_Exist(id), 0) << name;
        EXPECT_EQ(Last(), Quit(id, result)) << name;
    }
}

TEST_F(Panes, OnlyTheTopOneTakesInputAndThePageBeneathTicks)
{
    (void)PaneMessage_Create("C", PANE_INFO, "m");
    for (int msg : {MSG_PRESS, MSG_RELEASE, MSG_DRAG, MSG_KEY, MSG_WHEELUP, MSG_WHEELDOWN})
        SendMessage(msg, 5, 5, 0, 0);
    Pass(30);
    EXPECT_EQ(inputs, 0);
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(ticks_ms, 30);
    Pane_Quit(Pane_GetActiveID());
    Pass(30);
    Press(5, 5);
    EXPECT_EQ(inputs, 2);
    EXPECT_EQ(ticks, 1);
    const int lower = PaneYesNo_Create("Lower", PANE_INFO, "m");
    const int upper = PaneMessage_Create("Upper", PANE_INFO, "m");
    EXPECT_EQ(Pane_GetActiveID(), upper);
    EXPECT_THAT(Told(YES_X + 5, OK_Y), IsEmpty()) << "where both have something or nothing";
    EXPECT_THAT(Told(OK_X + 20, OK_Y), ElementsAre("button 1", Quit(upper, 0)));
    EXPECT_EQ(Pane_GetActiveID(), lower);
    EXPECT_THAT(Told(NO_X, OK_Y), ElementsAre("button 2", Quit(lower, 2)));
}

TEST_F(Panes, TheFirstAnswerCountsAndPanesThatCodeClosesTellNobody)
{
    int id = PaneYesNo_Create("C", PANE_INFO, "m");
    Pass();
    Press(YES_X, OK_Y);
    Press(NO_X, OK_Y);
    Pass(400);
    EXPECT_THAT(Told(), ElementsAre("button 1", Quit(id, 1)));
    id = PaneYesNo_Create("C", PANE_INFO, "m");
    on_button = [] { Pane_Quit(Pane_GetActiveID()); };
    EXPECT_THAT(Told(YES_X, OK_Y), ElementsAre("button 1"));
    EXPECT_EQ(Pane_Exist(id), 0);
    EXPECT_EQ(Pane_Quit(4711), -1);
    EXPECT_EQ(Pane_SetQuitFlag(4711), -1);
    const int lower = PaneYesNo_Create("C", PANE_INFO, "m");
    const int upper = PaneProgress_Create("C", "m", 1);
    EXPECT_EQ(Pane_Quit(upper), 0);
    EXPECT_EQ(Pane_SetQuitFlag(lower), 0);
    Pass();
    EXPECT_EQ(Pane_GetActiveID(), 0);
    EXPECT_THAT(Told(), IsEmpty());
    PaneID = INT_MAX;
    EXPECT_EQ(PaneMessage_Create("C", PANE_INFO, "m"), 1) << "0 is no pane";
}

TEST_F(Panes, TheScreenComesBackWithTheLastOneAsThePassLeftIt)
{
    TDL_FillRectS(97, 73, 702, 526, 0x123456);
    const int lower = PaneMessage_Create("Lower", PANE_INFO, "m");
    Pass();
    const auto alone = PixelsIn({190, 130, 640, 460});
    const int upper = PaneProgress_Create("Upper", "m", 1);
    const int find = PaneFind_Create(500, 300, 0);
    Pass();
    Pass();
    EXPECT_NE(PixelsIn({190, 130, 640, 460}), alone);
    Pane_Quit(upper);
    Pane_Quit(find);
    EXPECT_EQ(PixelsIn({190, 130, 640, 460}), alone) << "its shadow is laid once";
    Pane_Quit(lower);
    for (const uint32_t pixel : PixelsIn({97, 73, 702, 526}))
        ASSERT_EQ(pixel, 0x123456U);
    // An object that stands behind the opener in the row paints after it, in the same pass.
    const int one = PaneMessage_Create("Lower", PANE_INFO, "m");
    Pane_Quit(PaneMessage_Create("Gone again", PANE_INFO, "m"));
    TDL_FillRectS(250, 200, 300, 250, 0x654321);
    Pass();
    EXPECT_NE(PixelAt(260, 210), 0x654321U);
    Pane_Quit(one);
    EXPECT_EQ(PixelAt(260, 210), 0x654321U);
    EXPECT_EQ(PixelAt(310, 260), 0x123456U);
}

TEST_F(Panes, HeldArrowsRepeat)
{
    (void)PaneMessage_Create("C", PANE_INFO, Lines(40).c_str());
    Pass();
    Press(ARROW_X, DOWN_Y);
    EXPECT_THAT(Told(), ElementsAre("button 3")) << "at once";
    for (const auto& [ms, times] : {std::pair{299, 0u}, {1, 1u}, {49, 0u}, {1, 1u}, {50, 1u}}) {
        Pass(ms);
        EXPECT_EQ(Told(), Strings(times, "button 3")) << ms;
    }
    Release(5, 5); // off the arrow
    Pass(400);
    EXPECT_THAT(Told(), IsEmpty());

    Press(ARROW_X, DOWN_Y);
    const int upper = PaneMessage_Create("C", PANE_INFO, "m");
    Release(ARROW_X, DOWN_Y);
    Pane_Quit(upper);
    (void)Told();
    Pass(400);
    EXPECT_THAT(Told(), IsEmpty()) << "a pane that opens under the finger doesn't leave it running";
}

TEST_F(Panes, TextScrollsToItsEndsAndNoFurther)
{
    (void)PaneProgress_Create("C", Lines(15).c_str(), 1); // 6 of them in view
    Pass();
    const auto first = Well();
    auto last = first;
    for (int i = 0; i < 9; i++) {
        Touch(ARROW_X, DOWN_Y);
        EXPECT_NE(Well(), last);
        last = Well();
    }
    Touch(ARROW_X, DOWN_Y);
    EXPECT_EQ(Well(), last) << "the last line is in view";
    for (int i = 0; i < 10; i++)
        Touch(ARROW_X, PROGRESS_UP_Y);
    EXPECT_EQ(Well(), first);
}

TEST_F(Panes, AppendedTextIsTheTextInOnePiece)
{
    const std::string wide(90, 'W');
    const std::pair<size_t, std::string> texts[] = {
        {29, Lines(40)}, // the letters of its last ten lines
        {23, Lines(12) + "\n"},
        {103, "one\n\n" + wide + "\ntwo\n" + wide + "\n" + Lines(9) + wide},
        {242, wide + wide + wide + wide + wide}};
    for (const auto& [in_view, text] : texts) {
        const std::string head = text.substr(0, text.size() - 1);
        const std::string tail = text.substr(text.size() - 1);
        int id = PaneMessage_Create("C", PANE_INFO, head.c_str());
        EXPECT_EQ(Pane_AppendMessage(id, tail.c_str()), 0);
        Pass();
        const auto whole = Well();
        Pane_Quit(id);
        id = PaneMessage_Create("C", PANE_INFO, nullptr);
        for (size_t at = 0; at < text.size(); at += 7)
            EXPECT_EQ(Pane_AppendMessage(id, text.substr(at, 7).c_str()), 0);
        Pass();
        EXPECT_EQ(Well(), whole) << text;
        EXPECT_EQ(strlen(pane_text_in_view(pane_top())), in_view) << text;
        Pane_Quit(id);
    }
    EXPECT_EQ(Pane_AppendMessage(4711, "x"), -1);
    EXPECT_EQ(Pane_AppendMessage(PaneFind_Create(200, 200, 0), "x"), -2);
}

// A long job appends a line for each of its files; the loop has 10 ms a pass.
TEST_F(Panes, AnAppendCostsWhatIsAppended)
{
    constexpr int LINES = 30000;
    const int before = UsedMemPtr;
    const int id = PaneProgress_Create("C", "", 1);
    Pass();
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < LINES; i++) {
        (void)Pane_AppendMessage(id, "ME1/a name of usual length.SFH: OK\n");
        ASSERT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(3)) << i;
    }
    Pass();
    Pane_Quit(id);
    EXPECT_EQ(UsedMemPtr, before);
}

TEST_F(Panes, ProgressTellsWhatIsAndWhatIsNotOne)
{
    const int id = PaneProgress_Create("C", "m", 1);
    Pass();
    EXPECT_EQ(PaneProgress_SetProg(id, 400, "x"), 0);
    Pass();
    EXPECT_EQ(PixelAt(567, 215), 0x00DDD4U) << "full";
    EXPECT_EQ(PixelAt(571, 215), 0xE6E6E6U) << "and not over its end";
    EXPECT_EQ(PaneProgress_SetRouteLamp(id, ROUTE_LAMP_DATA), 0);
    Pass();
    EXPECT_EQ(PixelAt(502, 242), 0x00DDD4U) << "the lamp";
    const int message = PaneMessage_Create("C", PANE_INFO, "m");
    EXPECT_EQ(PaneProgress_SetProg(message, 1, ""), -2);
}

static const BTNSEL choices[] = {{11, "One", 0}, {12, "Two", 1}, {0, "", 0}, {14, "Four", 0}};

TEST_F(Panes, AChoiceIsTheResult)
{
    static const struct {
        int (*open)();
        int first, x, y; // the first choice
        int cancel_x, cancel_y;
        int beside; // does a press beside all buttons close it?
    } cases[] = {
        {[] { return PanePullDown_Create(600, 100, 4, choices); }, 11, 601, 120, -1, -1, 1},
        {[] { return PaneSelect_Create(2, 2, choices); }, 11, 350, 240, 400, 340, 0},
        {[] { return PaneDirectory_Create(4, choices); }, 11, 150, 100, 400, 490, 0},
        {[] { return PaneDirectory_Create_FolderPopup(4, choices); }, 11, 150, 135, 400, 450, 0},
        {[] { return PaneRTRLvl_Create(1); }, 1, 150, 410, -1, -1, 1},
    };
    for (const auto& c : cases) {
        int id = c.open();
        ASSERT_GT(id, 0) << &c - cases;
        EXPECT_THAT(Told(c.x, c.y),
                    ElementsAre("button " + std::to_string(c.first), Quit(id, c.first)));
        id = c.open();
        Touch(2, 2);
        EXPECT_EQ(Pane_Exist(id), !c.beside) << &c - cases;
        if (c.cancel_x >= 0)
            Touch(c.cancel_x, c.cancel_y);
        EXPECT_EQ(Last(), Quit(id, 0)) << &c - cases;
        EXPECT_EQ(Pane_Exist(id), 0) << &c - cases;
    }
    EXPECT_EQ(PaneSelect_Create(0, 3, choices), 0);
    EXPECT_EQ(PanePullDown_Create(0, 0, 0, choices), 0);
    EXPECT_EQ(PaneDirectory_Create(3, nullptr) + PaneDirectory_Create(-1, choices), 0);
    EXPECT_EQ(Pane_Quit(PaneDirectory_Create(0, nullptr)), 0) << "an empty one has its Cancel";
}

TEST_F(Panes, AChoiceStandsInItsGrid)
{
    const auto many = Choices(81);
    const auto plan = [](int id) { // the pane, its first and seventh button, its last three
        const PANE& p = *pane_find(id);
        std::vector<int> numbers = {p.x, p.y, p.w, p.h};
        BUTTON* end = p.button;
        while (end->id != BUTTON_END)
            end++;
        for (BUTTON* b : {p.button, p.button + 6, end - 3, end - 2, end - 1})
            numbers.insert(numbers.end(), {b->id, b->x1, b->y1});
        Pane_Quit(id);
        return testing::PrintToString(numbers);
    };
    EXPECT_EQ(plan(PaneSelect_Color_Button_Create(3, 2, many.data())),
              "{ 254, 192, 293, 216, 1, 15, 15, 32768, 116, 166, 5, 104, 85, 6, 193, 85, 32768, "
              "116, 166 }");
    EXPECT_EQ(plan(PanePopup_Create(2, 3, many.data())),
              "{ 270, 219, 260, 162, 1, 15, 15, 32768, 100, 112, 5, 93, 58, 6, 171, 58, 32768, "
              "100, 112 }");
    EXPECT_EQ(plan(FMOutPopup_Create(2, 3, many.data())),
              "{ 230, 212, 341, 176, 1, 15, 15, 32768, 140, 126, 5, 120, 65, 6, 225, 65, 32768, "
              "140, 126 }");
    EXPECT_EQ(plan(PaneDirectory_Create_FolderPopup(31, many.data())),
              "{ 125, 112, 551, 376, 1, 15, 15, 7, 120, 65, 32768, 245, 326, 32774, 450, 326, "
              "32775, 498, 326 }");
    EXPECT_EQ(plan(PaneRTRLvl_Create(1)),
              "{ 131, 390, 538, 70, 1, 15, 15, 7, 399, 15, 6, 335, 15, 7, 399, 15, 8, 463, 15 }");
}

TEST_F(Panes, APullDownThatIsTooLongEndsAtTheScreen)
{
    const auto items = Choices(80);
    const int id = PanePullDown_Create(600, 100, 80, items.data());
    ASSERT_GT(id, 0);
    const PANE place = *pane_find(id); // its right edge is at 691, six columns of nine fit
    EXPECT_THAT((std::vector{place.x, place.y, place.w, place.h}), ElementsAre(56, 77, 636, 450));
    EXPECT_EQ(Last(place.x + 20, place.y + 20), Quit(id, 1));
    const int again = PanePullDown_Create(600, 100, 80, items.data());
    EXPECT_EQ(Last(place.x + 5 * 103 + 20, place.y + 8 * 48 + 20), Quit(again, 54));
    for (const auto& [y, top] : {std::pair{0, 73}, {100, 100}, {900, 527 - 4 * 48 - 18}}) {
        const int four = PanePullDown_Create(0, y, 4, items.data());
        EXPECT_EQ(pane_find(four)->y, top) << y;
        EXPECT_EQ(pane_find(four)->x, 691 - 103 - 18 + 1);
        Pane_Quit(four);
    }
}

// The choices of a popup are a radio: one is on, and it says nothing when it is pressed again.
TEST_F(Panes, TheChoiceOfAPopupThatStandsSaysNothing)
{
    for (const auto& [name, open, first_x, second_x, y] :
         {std::tuple{"popup", &PanePopup_Create, 354, 432, 250},
          {"frame memory out", &FMOutPopup_Create, 330, 440, 240}}) {
        const int id = open(2, 2, choices); // the second one is on
        Pass();
        EXPECT_THAT(Told(second_x, y), IsEmpty()) << name;
        EXPECT_EQ(Pane_Exist(id), 1) << name;
        Press(first_x, y);
        EXPECT_EQ(pane_find(id)->button[1].onoff, 0) << name << ": the old choice goes off";
        EXPECT_EQ(pane_find(id)->button[0].onoff, 1) << name;
        Pass(150);
        EXPECT_EQ(Last(), Quit(id, 11)) << name;
    }
}

TEST_F(Panes, ButtonsOfThePopupOnTopCanBeTakenAway)
{
    EXPECT_EQ(PanePopup_BtnDisable(11, 1), -1) << "no popup";
    const int lower = PanePopup_Create(2, 2, choices);
    const int upper = FMOutPopup_Create(2, 2, choices);
    EXPECT_EQ(PanePopup_BtnDisable(11, 1), 0);
    EXPECT_EQ(PanePopup_BtnCutOff(14, 1), 0);
    EXPECT_EQ(PanePopup_BtnCutOff(99, 1), -1);
    Touch(330, 240);
    EXPECT_THAT(Told(440, 290), IsEmpty());
    EXPECT_EQ(PixelAt(440, 290), 0x2A2F32u) << "the ground shows where it was";
    EXPECT_EQ(PanePopup_BtnDisable(11, 0), 0);
    EXPECT_EQ(Last(330, 240), Quit(upper, 11));
    EXPECT_EQ(Last(354, 250), Quit(lower, 11)) << "the lower one was not meant";
}

TEST_F(Panes, DirectoriesTurnTheirPages)
{
    const auto entries = Choices(81);
    constexpr int PREV_X = 590, NEXT_X = PREV_X + 48, TURN_Y = 490;
    for (const auto& [next, prev, first] :
         {std::tuple{1, 0, 41}, {5, 0, 81}, {5, 1, 41}, {1, 2, 1}}) {
        const int id = PaneDirectory_Create(81, entries.data()); // 40 a page
        for (int i = 0; i < next; i++)
            Touch(NEXT_X, TURN_Y);
        for (int i = 0; i < prev; i++)
            Touch(PREV_X, TURN_Y);
        EXPECT_THAT(Told(), IsEmpty()) << "turning reports nothing";
        EXPECT_EQ(Last(150, 100), Quit(id, first)) << next << " on, " << prev << " back";
    }
    for (const auto& [entries_of_it, first] : {std::pair{30, 1}, {31, 31}}) { // 30 a page
        const int id = PaneDirectory_Create_FolderPopup(entries_of_it, entries.data());
        Touch(590 + 48 + 5, 450);
        EXPECT_EQ(Last(150, 135), Quit(id, first)) << entries_of_it;
    }
    // At an end the key that leads nowhere looks so.
    (void)PaneDirectory_Create(81, entries.data());
    const auto key = [](int x) {
        Pass(1000);
        return PixelsIn({x - 15, TURN_Y - 5, x + 15, TURN_Y + 20});
    };
    const auto no_prev = key(PREV_X), next = key(NEXT_X);
    Touch(NEXT_X, TURN_Y);
    EXPECT_NE(key(PREV_X), no_prev);
    EXPECT_EQ(key(NEXT_X), next);
    Touch(NEXT_X, TURN_Y);
    EXPECT_NE(key(NEXT_X), next);
}

TEST_F(Panes, RouterLevelsAreTakenOverByEnterAlone)
{
    PaneRTRLvl_SetSelect(0x105);
    EXPECT_EQ(PaneRTRLvl_Selected(), 0x05) << "eight levels";
    for (const auto& [level, is_on] : {std::pair{7, 1}, {8, 1}, {-1, 1}, {0, 0}})
        PaneRTRLvl_LvlSetSelect(level, is_on);
    EXPECT_EQ(PaneRTRLvl_Selected(), 0x84);
    PaneRTRLvl_LvlSetSelect(0, 1);
    EXPECT_EQ(PaneRTRLvl_Selected(), 0x85);
    for (const auto& [level, is_on] : {std::pair{-1, 0}, {0, 1}, {1, 0}, {7, 1}, {8, 0}})
        EXPECT_EQ(PaneRTRLvl_IsSelected(level), is_on) << level;

    const int id = PaneRTRLvl_Create(0); // (131, 335)
    Touch(131 + 20, 335 + 20);
    Touch(131 + 20 + 64, 335 + 20);
    EXPECT_EQ(PaneRTRLvl_Selected(), 0x85);
    EXPECT_EQ(Last(400, 335 + 80), Quit(id, 1));
    EXPECT_EQ(PaneRTRLvl_Selected(), 0x86);

    const int again = PaneRTRLvl_Create(0);
    Touch(131 + 20, 335 + 20);
    Touch(131 + 20, 335 + 80); // on the pane, beside its keys
    EXPECT_EQ(Pane_Exist(again), 1);
    EXPECT_EQ(Last(5, 5), Quit(again, 0));
    EXPECT_EQ(PaneRTRLvl_Selected(), 0x86) << "left without a result";
    PaneRTRLvl_SetSelect(0);
}

TEST_F(Panes, TheFindDialogTakesATextSearchesBothWaysAndNoPressMeanwhile)
{
    const int id = PaneFind_Create(200, 200, 0);
    Pass();
    EXPECT_EQ(PixelAt(201, 201), 0x505050U);
    TDL_Hold();
    {
        const Display display;
        Display::handed = 0;
        EXPECT_EQ(PaneFind_Indicator(1), 0);
        EXPECT_GT(Display::handed, 0) << "at once: the search may hold the loop up";
    }
    TDL_Release();
    EXPECT_EQ(PixelAt(201, 201), 0x00DDD4U);
    EXPECT_THAT(Told(340, 250), IsEmpty());
    const int beside = PanePullDown_Create(600, 100, 4, choices);
    Pass();
    EXPECT_EQ(PaneFind_Indicator(0), 0);
    Pass();
    EXPECT_EQ(PixelAt(201, 201), 0x505050U) << "another pane has the input";
    Pane_Quit(beside);
    Touch(340, 250);
    EXPECT_THAT(Told(320, 320), ElementsAre("button 2", "button 4", Quit(id, 0)));
    static char text[ELEMENT_NAME_SIZE] = "";
    static Strings done;
    done.clear();
    PANESEARCH owner = {.text = &text, .begin = [] { done.push_back("begin"); }};
    owner.step = [](SEARCH_DIR dir) {
        EXPECT_EQ(PixelAt(301, 201), 0x00DDD4u) << "the lamp is on meanwhile";
        done.push_back(dir == SEARCH_DIR_NEXT ? "next" : "previous");
    };
    const auto press = [](int key) { PaneSearch_Proc(LMSG_PANEBTNSEL, key); };
    ASSERT_TRUE(PaneSearch_Open(owner));
    Pass();
    press(PANEFIND_PREV);
    press(PANEFIND_NEXT);
    press(PANEFIND_TEXT);
    const std::string longest(ELEMENT_NAME_SIZE - 1, 'a');
    for (const char c : longest + "b\bc\r") // there is no room for the b
        SendMessage(MSG_KEY, c, 0, 0, 0);
    EXPECT_EQ(text, longest.substr(1) + "c");
    EXPECT_NE(PixelAt(301, 201), 0x00DDD4u);
    const int dialog = GL_FM_Find_PaneID;
    PaneSearch_Proc(LMSG_PANEQUIT, dialog + 1); // another one's
    press(PANEFIND_NEXT);
    EXPECT_THAT(std::exchange(done, {}), ElementsAre("previous", "next", "begin", "next", "next"));
    press(PANEFIND_CLOSE);
    Pass();
    EXPECT_EQ(Pane_Exist(dialog), 0);
    PaneSearch_Proc(LMSG_PANEQUIT, dialog);
    EXPECT_EQ(GL_FM_Find_PaneID, 0);
    press(PANEFIND_NEXT);
    EXPECT_THAT(done, IsEmpty());
    ASSERT_TRUE(PaneSearch_Open(owner));
    PaneSearch_Close();
    EXPECT_EQ(Pane_GetActiveID(), 0);
    press(PANEFIND_NEXT);
    EXPECT_THAT(done, IsEmpty());
}

TEST_F(Panes, RunControlSendsAndShowsTheTally)
{
    constexpr int RUN_X = 195 + 150, ROW1 = 195 + 90, LOOP_X = 195 + 50, CLOSE_X = 195 + 350,
                  ROW2 = 195 + 170;
    const int id = KeyFrameRunCtrl_Create(); // (195, 195)
    Pass();
    EXPECT_THAT(TakeQueuedCommands(), testing::IsSupersetOf({"add Key Frame@Timeline@Run",
                                                             "read Key Frame@Timeline@Loop"}));
    const uint32_t off = PixelAt(RUN_X, ROW1);
    Touch(RUN_X, ROW1);
    Touch(LOOP_X, ROW2);
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("put Key Frame@Timeline@Run#true", "put Key Frame@Timeline@Loop#true"));
    EXPECT_EQ(PixelAt(RUN_X, ROW1), off) << "a press changes nothing";
    CreateWindow(WINDOW_KEYBOARD, "Name"); // what stands above keeps no tally from it
    SendDummyTally("Key Frame@Timeline@Run#true");
    SendDummyTally("Key Frame@Timeline@Loop#true");
    CloseWindow();
    Pass();
    EXPECT_NE(PixelAt(RUN_X, ROW1), off);
    SendDummyTally("Key Frame@Timeline@Run#false");
    Pass();
    EXPECT_EQ(PixelAt(RUN_X, ROW1), off);
    Touch(LOOP_X, ROW2);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("put Key Frame@Timeline@Loop#false"));
    EXPECT_EQ(Last(CLOSE_X, ROW2), Quit(id, 0));
    EXPECT_THAT(TakeQueuedCommands(), testing::Contains("remove Key Frame@Timeline@Run"));
    SendDummyTally("Key Frame@Timeline@Run#true"); // nobody is there any more
}

TEST_F(Panes, AProgressComesBackWithWhatWasNoted)
{
    const int before = UsedMemPtr;
    for (const auto& [create, init, prog, lamp, append, quit] :
         {std::tuple{&PaneProgress_RestoreCreate, &PaneProgress_RestoreInit,
                     &PaneProgress_RestoreSetProg, &PaneProgress_RestoreSetRouteLamp,
                     &PaneProgress_RestoreAppendMessage, &PaneProgress_RestoreQuit},
          {&PaneProgress_HDD_RestoreCreate, &PaneProgress_HDD_RestoreInit,
           &PaneProgress_HDD_RestoreSetProg, &PaneProgress_HDD_RestoreSetRouteLamp,
           &PaneProgress_HDD_RestoreAppendMessage, &PaneProgress_HDD_RestoreQuit}}) {
        EXPECT_EQ(init(), 0);
        EXPECT_EQ(append("a: NG\n"), 0);
        EXPECT_EQ(lamp(ROUTE_LAMP_CONTROL), 0);
        EXPECT_EQ(prog(100, "10/10"), 0);
        EXPECT_EQ(Pane_GetActiveID(), 0) << "noting opens nothing";
        const int id = create("Load", "", 1);
        Pass();
        EXPECT_EQ(PixelAt(567, 215), 0x00DDD4U) << "full";
        EXPECT_EQ(pane_top()->each.progress.lamp, ROUTE_LAMP_CONTROL);
        EXPECT_EQ(init(), 0); // the next one begins
        EXPECT_EQ(quit(), 0);
        EXPECT_EQ(Pane_Exist(id), 0);
        EXPECT_EQ(quit(), -1);
        EXPECT_THAT(Told(), IsEmpty());
    }
    EXPECT_EQ(UsedMemPtr, before);
}
