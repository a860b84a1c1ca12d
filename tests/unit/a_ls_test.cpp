#include "a_ls_page.h"
#include "display.h"
#include "loop.h"
#include "window.h"
#include <array>
#include <climits>

// Rows of 22 pixels from y 100 on; the first row begins at 122. Five rows, the bar at x 202.
static const LS_TBL plain[] = {
    {.id = 1,
     .hn = 3,
     .vn = 5,
     .x = 100,
     .y = 100,
     .head = {"No", "Name", "L/E"},
     .width = {20, 50, 30},
     .sb_top = 100,
     .sb_bottom = 232},
    LS_END,
};

template <typename Change> static const LS_TBL* With(Change change)
{
    static LS_TBL rows[2];
    rows[0] = plain[0];
    rows[1] = LS_END;
    change(rows[0]);
    return rows;
}

constexpr int PLURAL_X = 190, BLOCK_X = 126, KEY_Y = 242; // the keys' top left

struct Lists : ListPage {
    static int RowY(int line) { return 122 + 22 * line + 11; } // line from 0 in the window
    static void TouchLine(int line, int x = 150) { Touch(x, RowY(line)); }
    static void Plural() { Touch(PLURAL_X, KEY_Y); }
    static void BlockKey() { Touch(BLOCK_X, KEY_Y); }

    // The first ten rows, x for a selected cell.
    static std::string Picture(int col = 0)
    {
        std::string text;
        for (int row = 0; row < 10; row++)
            text += LS_IsSelected(1, row, col) == 1 ? 'x' : '.';
        return text;
    }
    static std::vector<int> SelectedRows()
    {
        std::vector<int> rows;
        for (int n = 0, row; (row = LS_GetSelected(1, n)) >= 0; n++)
            rows.push_back(row);
        return rows;
    }
};

TEST_F(Lists, ATouchTellsTheCellAndTheList)
{
    for (const auto& [x, y, top, said] :
         {std::tuple{119, 143, 2, Strings{"SEL 1 2 0", "AREA 1"}}, // cells end where the next begin
          {120, 144, 2, {"SEL 1 3 1", "AREA 1"}},
          {170, 231, 2, {"SEL 1 6 2", "AREA 1"}},
          {150, 121, 2, {"AREA 1"}}, // the header
          {99, 130, 0, {}},
          {200, 130, 0, {}},
          {150, 232, 0, {}}}) {
        Open(plain, 8);
        LS_SetTopLine(1, top);
        Touch(x, y);
        EXPECT_EQ(told, said) << x << " " << y;
    }
    Open(plain, 2);
    TouchLine(2);
    EXPECT_THAT(told, ElementsAre("AREA 1")) << "a row that is not in use";
    EXPECT_EQ(Picture(), "..........");
}

TEST_F(Lists, PluralAddsAndTakesAwayUntilItIsLeft)
{
    Open(plain, 5);
    TouchLine(0);
    Plural();
    TouchLine(2);
    TouchLine(3);
    TouchLine(0);
    TouchLine(4);
    EXPECT_EQ(Picture(), "..xxx.....");
    Plural();
    EXPECT_EQ(Picture(), "....x.....") << "the current row stays";
    Plural();
    TouchLine(4);
    Plural();
    EXPECT_EQ(Picture(), "..........") << "unless it was taken out";
}

TEST_F(Lists, BlockTurnsAllRowsOverAndKeepsThemOneRun)
{
    Open(plain, 5);
    Redraw();
    const Display display;
    BlockKey();
    Redraw();
    EXPECT_EQ(Display::Lacks(), "");
    EXPECT_EQ(Picture(), "xxxxx.....");
    EXPECT_EQ(LS_GetMS(1), 1);
    TouchLine(3);
    EXPECT_EQ(Picture(), "xxx.......");
    BlockKey();
    EXPECT_EQ(Picture(), "..........");
    EXPECT_EQ(LS_GetALL(1), 0);
    BlockKey();
    Plural();
    EXPECT_EQ(LS_GetALL(1), 0) << "all rows are no selection of one";
    EXPECT_EQ(Picture(), "...x......") << "the current row";
    // touches: lines in the window
    for (const auto& [touches, after] :
         {std::pair{std::vector<int>{3, 1, 2}, ".xx......."}, // row 1 began a new block
          {{1, 2, 3, 2}, ".x........"},                       // cut in two: the upper part stays
          {{1, 2, 3, 3}, ".xx......."},
          {{0, 1, 0}, ".x........"}}) { // at the first row
        Open(With([](LS_TBL& l) { l.block = 1; }), 5);
        LS_SetMS(1, 1);
        for (int line : touches)
            TouchLine(line);
        EXPECT_EQ(Picture(), after);
    }
}

TEST_F(Lists, AFingerThatMovesOnTakesTheRowsAlongAndABouncingOneNothingBack)
{
    for (const auto& [marks, press, moves, after] :
         {std::tuple{"..........", 4, std::vector<int>{0},
                     "xxxxx....."},                   // too quick for the panel: rows between count
          {"xxxxx.....", 1, {2, 3}, "x...x....."},    // a touch that takes out goes on taking out
          {"..........", 3, {9, 2}, "..xx......"}}) { // off the list and back
        Open(plain, 5);
        LS_SetMS(1, 1);
        for (int row = 0; row < 5; row++)
            LS_SetSelected(1, row, 0, marks[row] == 'x');
        Clock_ms += 1000;
        Press(150, RowY(press));
        for (int line : moves)
            Drag(150, RowY(line));
        EXPECT_EQ(Picture(), after);
        Release();
        Drag(150, RowY(0));
        EXPECT_EQ(LS_Proc(MSG_RELEASE, 0, 0, 0, 0), 0) << "others may have a part in it";
        EXPECT_EQ(Picture(), after) << "the finger is up";
    }
    EXPECT_THAT(Told(), ElementsAre("SEL 1 3 1", "SEL 1 2 1"));
    for (const auto& [pause_ms, after] : {std::pair{0u, 'x'}, {150u, 'x'}, {151u, '.'}}) {
        Open(plain, 5);
        LS_SetMS(1, 1);
        TouchLine(0);
        Clock_ms += pause_ms;
        Press(150, RowY(0));
        EXPECT_EQ(Picture()[0], after) << pause_ms;
        Release();
    }
}

TEST_F(Lists, ASplitListSelectsCells)
{
    Open(plain, 5);
    TouchLine(2);
    LS_SetNowLineDisable(1);
    Redraw();
    EXPECT_EQ(PixelsIn({150, RowY(2) - 8, 160, RowY(2)}),
              PixelsIn({150, RowY(3) - 8, 160, RowY(3)}));
    LS_SetNowLineDisable(0);
    Open(With([](LS_TBL& l) { l.split = 1; }), 5);
    TouchLine(1, 130);
    TouchLine(2, 180);
    EXPECT_EQ(LS_GetSplitSel(1), 2);
    EXPECT_EQ(Picture(1), "..........");
    EXPECT_EQ(Picture(2), "..x.......");
    SetTree({"DSK Fader Assign"}, 0x62210000);
    LS_SetData(1, 2, 0, "4");
    Redraw();
    EXPECT_THAT(PixelsIn({100, RowY(2) - 10, 118, RowY(2) + 10}), Contains(0x00FFFFu));
    TouchLine(3, 110);
    EXPECT_EQ(LS_GetSplitSel(1), 2) << "column 0 names the row and keeps the current column";
    EXPECT_EQ(Picture(0), "...x......");
    Touch(210, 230); // an arrow moves down in the current column
    EXPECT_EQ(Picture(2), "....x.....");
    EXPECT_THAT(Told("AREA"),
                ElementsAre("SEL 1 1 1", "SEL 1 2 2", "SEL 1 3 0", "SB 2 0 1", "SEL 1 4 2"));
    LS_SetMS(1, 1);
    Press(130, RowY(0));
    Drag(180, RowY(0));
    Drag(180, RowY(1));
    EXPECT_EQ(Picture(1), "x.........");
    EXPECT_EQ(Picture(2), "xx..x.....");
    Release();
    LS_SetSplit(1, 0);
    EXPECT_EQ(Picture(1), ".x........") << "of all that was selected the current row";
    EXPECT_EQ(Picture(2), ".x........");
}

TEST_F(Lists, ArrowsMoveTheCurrentRowAndKeepItInside)
{
    static const struct {
        int ndata, vn, top, now, delta;
        int new_top, new_now;
    } cases[] = {
        {20, 5, 0, 0, -1, 0, 0},
        {20, 5, 0, 2, 1, 1, 3},  // third from the bottom
        {20, 5, 5, 7, -1, 4, 6}, // third from the top
        {20, 5, 15, 18, 1, 15, 19},
        {20, 5, 15, 19, 1, 15, 19},
        {20, 5, 0, 10, 1, 9, 11}, // the window was elsewhere
        {12000, 5, 11995, 11999, -1, 11995, 11998},
        {20, 1, 4, 4, 1, 5, 5}, // no room for a margin
    };
    for (const auto& c : cases) {
        Open(With([&](LS_TBL& l) { l.vn = c.vn; }), c.ndata);
        LS_SetNowLine(1, c.now);
        LS_SetTopLine(1, c.top);
        SendMessage(LMSG_SBSEL, c.delta < 0 ? SB_UP : SB_DOWN, 0, c.delta, 0);
        EXPECT_EQ(LS_GetTopLine(1), c.new_top) << c.ndata << " " << c.now << " " << c.delta;
        EXPECT_EQ(LS_GetNowLine(1), c.new_now) << c.ndata << " " << c.now << " " << c.delta;
        EXPECT_EQ(SelectedRows(), std::vector<int>{c.new_now});
    }
    Open(plain, 0);
    SendMessage(LMSG_SBSEL, SB_DOWN, 0, 1, 0);
    EXPECT_EQ(LS_GetNowLine(1), 0);
    EXPECT_THAT(Told("SB"), IsEmpty());
}

TEST_F(Lists, TheWheelIsAPressOnAnArrowAndNoneBesideWhatStandsOverThem)
{
    Open(plain, 20);
    for (auto [x, y, dir, taken, at_x, at_y] : {std::array{100, 100, 4, 1, 202, 100},
                                                {199, 231, 5, 1, 202, 231},
                                                {201, 150, 4, 0, 201, 150}}) {
        EXPECT_EQ(LS_ConvPosForWheel(&x, &y, dir), taken);
        EXPECT_EQ(std::pair(x, y), std::pair(at_x, at_y));
    }
    Touch(202, 231);
    EXPECT_EQ(LS_GetNowLine(1), 1);
    static const char* const captions[] = {"M/E-1", "M/E-2"};
    Open(plain, 20);
    CreateWindow(WINDOW_PULLDOWN, "Bank", {.x = 400, .y = 100, .rows = 2, .captions = captions});
    SDL_Event wheel{};
    wheel.type = SDL_MOUSEBUTTONDOWN;
    wheel.button.button = SDL_BUTTON_WHEELDOWN;
    wheel.button.x = wheel.button.y = 150;
    Loop_Reset();
    Loop_Event(&wheel);
    EXPECT_EQ(GetWindow(), WINDOW_PULLDOWN);
    CloseWindow();
    Loop_Event(&wheel);
    EXPECT_EQ(LS_GetNowLine(1), 1);
}

TEST_F(Lists, FewerRowsTakeSelectionAndWindowAlong)
{
    Open(plain, 100);
    LS_SetMS(1, 1);
    for (int row : {2, 50, 99})
        LS_SetSelected(1, row, 0, 1);
    EXPECT_EQ(SelectedRows(), (std::vector<int>{2, 50, 99}));
    EXPECT_EQ(LS_GetTopLine(1), 95);
    LS_SetNData(1, 50);
    EXPECT_EQ(SelectedRows(), std::vector<int>{2});
    EXPECT_EQ(LS_GetTopLine(1), 45);
    EXPECT_EQ(LS_GetNowLine(1), 49);
    LS_SetSelected(1, 30, 0, 1);
    EXPECT_EQ(LS_GetTopLine(1), 30) << "a row that is chosen is in view";
    LS_SetNData(1, 0);
    EXPECT_EQ(SelectedRows(), std::vector<int>{});
    EXPECT_EQ(LS_GetTopLine(1), 30) << "a list that is filled anew stays where it was";
}

TEST_F(Lists, AnIndexThatNoListHasIsRefused)
{
    Open(plain, 5);
    static const struct {
        int id, row, col;
    } outside[] = {{0, 0, 0},       {2, 0, 0},  {INT_MAX, 0, 0}, {1, -1, 0},       {1, 12000, 0},
                   {1, INT_MIN, 0}, {1, 0, -1}, {1, 0, 17},      {1, INT_MAX, 16}, {-1, 0, 0}};
    for (const auto& o : outside) {
        EXPECT_EQ(LS_SetData(o.id, o.row, o.col, "x"), -1) << o.id << " " << o.row << " " << o.col;
        EXPECT_EQ(LS_SetStatus(o.id, o.row, o.col, 1), -1);
        EXPECT_EQ(LS_IsSelected(o.id, o.row, o.col), -1);
        EXPECT_EQ(LS_GetData(o.id, o.row, o.col), nullptr);
    }
    for (int result :
         {LS_SetHStatus(1, 12000, 1), LS_SetDataFolder(1, -1, 1, 0), LS_SetNowLine(1, 12000),
          LS_SetTopLine(1, -1), LS_SetFromN(1, 12000, 5), LS_SetVStatus(1, 17, 1),
          LS_SetHeadStr(1, -1, "x"), LS_HeaderDisable(1, 17, 1), LS_SetGrouplin(1, 17, 1),
          LS_SetSplitSel(1, 17), LS_SetSplitSel(1, -1), LS_ChangeSelByStr(1, -1, "x"),
          LS_SetSelected(1, 12000, 0, 1), LS_SetSelected(1, 0, 3, 1), LS_SetNData(1, 12001),
          LS_SetNData(1, -1), LS_SetStatus(1, 0, 0, 128), LS_SetDataFolder(1, 0, 1, 2),
          LS_ClearData(2)})
        EXPECT_EQ(result, -1);
    EXPECT_EQ(LS_SetData(1, 11999, 16, "x"), 0);
    EXPECT_STREQ(LS_GetData(1, 11999, 16), "x");
}

TEST_F(Lists, PageCodeMayDropTheListsInAnswer)
{
    static int drop_at;
    answer = [](int msg) {
        if (msg == drop_at)
            LS_Create(nullptr, 0);
    };
    for (int msg : {LMSG_LISTSEL, LMSG_LISTFLASH}) {
        drop_at = msg;
        Open(plain, 5);
        if (msg == LMSG_LISTFLASH) {
            Plural();
        } else {
            LS_SetMS(1, 1);
            TouchLine(1);
            Drag(150, RowY(4));
        }
        EXPECT_EQ(told.size(), 1u) << "nobody is left to say more";
        EXPECT_EQ(LS_GetNData(1), -1);
    }
}
