#include "a_kf_private.h"
#include "a_kp.h"
#include "colours.h"
#include "display.h"
#include "netio.h"
#include "page_walk.h"
#include "pane.h"
#include "pc_kf.h"
#include "pc_kf_page.h"
#include "setup_index.h"
#include "tenkey.h"
#include "text.h"
#include <array>

struct TimelinePage : KeyframePage {
    static constexpr int X = 400; // in every row's bar
    static constexpr Rect ROWS = {97, 78, 702, 524};
    static int RowY(int row) { return row * 45 + 115; }
    static bool IsPainted(int row) { return PixelAt(X, RowY(row)) == 0; }
    static void Smear()
    {
        for (int row = 0; row < 10; row++)
            TDL_FillRectS(X, RowY(row), X, RowY(row), 0x123456);
    }
    void SetUp() override
    {
        KeyframePage::SetUp();
        kf::AssignAll();
        KF_DefaultRegionPriority();
        Open(0x61110000);
        Pass(1000);
        Pass(1000);
    }
    static void Region(int code, int start_s, int end_s, int cursor_s = 0)
    {
        kf::Send(kf::Data{.code = code,
                          .start = kf::At(start_s * 30),
                          .end = kf::At(end_s * 30),
                          .duration = kf::At((end_s - start_s) * 30),
                          .keyframes = {30, 60}});
        kf::Send(kf::Status{.code = code, .time = kf::At(cursor_s * 30)});
    }
    static std::vector<uint32_t> Seen(const Rect& part, int elapsed_ms = 1000)
    {
        Pass(elapsed_ms);
        EXPECT_EQ(Display::Lacks(), "");
        return PixelsIn(part);
    }
};

TEST_F(TimelinePage, OnlyTheBarOfTheRowThatMovesIsPaintedAndItsNameBringsTheKeysOfARun)
{
    Smear();
    TDL_FillRectS(50, 110, 50, 110, 0x123456); // in the first row's block
    Pass(1000);
    EXPECT_FALSE(IsPainted(0)) << "nothing has come";
    kf::Send(kf::Status{.code = 1});
    Pass(1000);
    EXPECT_TRUE(IsPainted(0));
    EXPECT_EQ(PixelAt(50, 110), 0x123456u) << "the name stands";
    EXPECT_FALSE(IsPainted(2));
    kf::Send(kf::Data{.code = 2});
    Pass(1000);
    EXPECT_TRUE(IsPainted(2));
    EXPECT_FALSE(IsPainted(3));

    for (const auto& [x, y, has_keys] :
         {std::tuple{50, 70, false}, {150, 300, false}, {50, 300, true}}) {
        Press(x, y);
        EXPECT_EQ(Pane_GetActiveID() != 0, has_keys) << x << "," << y;
    }
}

TEST_F(TimelinePage, TheKnobScrollsAsFarAsThereAreRows)
{
    const auto turn = [](int to) { return SendMessage(LMSG_KNOBVAR, 1, to, 0, 0); };
    kf::Send(kf::Data{.code = 69,
                      .start = {1, 0, 0, 0},
                      .end = {1, 0, 4, 0},
                      .keyframes = {30}}); // MACRO: place 51
    const char* knob = "Region\nScroll";
    EXPECT_EQ(Shown(knob), "0");
    const std::tuple<int, MsgArg, MsgArg> passes[] = {{MSG_WHEELUP, 0, 0},   {MSG_REDRAW, 1, 0},
                                                      {MSG_REDRAW, 1000, 0}, {LMSG_KNOBVAR, 1, 0},
                                                      {LMSG_KNOBVAR, 2, 0},  {MSG_PRESS, 300, 300}};
    for (const auto& [msg, ax, bx] : passes)
        EXPECT_EQ(KF_Proc(msg, ax, bx, 0, 0), 0) << "the others are asked as well";
    turn(42);
    Pass(1000);
    Pass(1000);
    EXPECT_EQ(PixelAt(160, 9 * 45 + 91), 0x606060u) << "MACRO is the last row";
    Open(0x61110000);
    EXPECT_EQ(Shown(knob), "42") << "the page comes back where it was left";
    for (const auto& [x, place] : {std::pair{714, 0}, {794, 42}}) {
        (void)Drag(1, x);
        EXPECT_EQ(RegionScroll, place);
    }
    for (int row = 2; row <= 11; row++)
        KF_RegionAssignTally(row, "");
    Open(0x61110000);
    EXPECT_EQ(Shown(knob), "0") << "four regions need no scrolling";
}

TEST_F(TimelinePage, TheAxisReachesFromTheFirstStartToTheLastEnd)
{
    constexpr Rect START = {117, 535, 187, 546}, END = {617, 535, 687, 546};
    static const std::tuple<int, int, int, int, int> steps[] = {
        // a region and what is told of it, the axis then
        {1, 20, 40, 20, 40}, {2, 10, 30, 10, 40}, {3, 15, 50, 10, 50},
        {2, 12, 30, 12, 50}, {1, 0, 45, 12, 50}, // without a start of its own
        {3, 0, 0, 12, 45},   {2, 0, 0, 0, 45},    {1, 0, 0, 0, 0},
    };
    const Display display;
    int from_s = 0, to_s = 0;
    auto start = Seen(START), end = Seen(END), rows = Seen(ROWS);
    for (const auto& [code, start_s, end_s, axis_from_s, axis_to_s] : steps) {
        Region(code, start_s, end_s);
        EXPECT_EQ(Seen(START) == start, axis_from_s == from_s) << axis_from_s;
        start = Seen(START);
        EXPECT_EQ(Seen(END) == end, axis_to_s == to_s) << axis_to_s;
        end = Seen(END);
        EXPECT_NE(Seen(ROWS), rows) << axis_from_s << "-" << axis_to_s;
        rows = PixelsIn(ROWS);
        from_s = axis_from_s;
        to_s = axis_to_s;
        EXPECT_EQ(tlSTime, from_s * 30);
        EXPECT_EQ(tlETime, to_s * 30);
        // Painted as a page that is opened paints it.
        (void)CreatePage(0x61110000);
        EXPECT_EQ(Seen(ROWS), rows);
        EXPECT_EQ(PixelsIn(START), start);
        EXPECT_EQ(PixelsIn(END), end);
    }
}

// The more regions are selected, the less often the rows are painted.
TEST_F(TimelinePage, RowsArePaintedOnceTheirIntervalIsOver)
{
    Region(1, 20, 40, 1);
    kf::Select({1, 0x0F, 0, 0, 0, 0, 0, 0});
    const Display display;
    auto before = Seen(ROWS);
    ASSERT_EQ(GL_TimelineDrawInterval, 30) << "of ten rows three may run";
    Region(1, 20, 40, 10);
    EXPECT_EQ(Seen(ROWS, GL_TimelineDrawInterval - 1), before);
    EXPECT_EQ(Seen(ROWS, 1), before);
    EXPECT_NE(Seen(ROWS, 1), before);
    before = PixelsIn(ROWS);
    // What was painted is not painted again.
    TDL_FillRect(ROWS.x1, ROWS.y1, ROWS.x2, ROWS.y2, 0x123456);
    EXPECT_THAT(Seen(ROWS), Each(0x123456u));
}

TEST(PathPages, EveryRowThatLeadsOnLeadsToAPage)
{
    Harness_Reset();
    int jumps = 0;
    page_walk::ForEachPage([&](const PAGE& page) {
        auto row = static_cast<const KP_TBL*>(page_walk::TableOf(page, OBJ_KP));
        for (; row && row->caption; row++) {
            if (!row->jump)
                continue;
            jumps++;
            const PAGE* const target = SearchPageTable(row->jump);
            ASSERT_TRUE(target) << std::hex << page.id << " " << row->caption;
            EXPECT_NE(target, &page) << std::hex << page.id << " " << row->caption;
            // From the list of regions to the region of that name.
            if (!page.tree[2]) {
                EXPECT_STREQ(target->tree[2], row->caption);
            }
        }
    });
    EXPECT_GT(jumps, 50);
}

struct AssignPage : KeyframePage {
    enum : int { ACTIVE = 49, DISPLAY = 50, INSERT = 52, DELETE_KEY = 53, DEFAULT = 54 };

    void SetUp() override
    {
        KeyframePage::SetUp();
        KF_RegionAssignTally(1, "M/E-1,M/E-1 Sub,P/P,User1");
        KF_DefaultRegionPriority();
        Open(0x61150000);
    }
    static std::string Order()
    {
        std::string rows;
        for (int row = 0; row < LS_GetNData(1); row++)
            rows += (row ? ", " : "") + Cells(1, row, 0, 3);
        return rows;
    }
};

TEST_F(AssignPage, TheKeysWorkAtTheCursorsAndAnotherPanelsChoiceIsShown)
{
    LS_SetNowLine(1, 1);
    SendMessage(LMSG_LISTSEL, 1, 1, 0, 0);
    EXPECT_EQ(BT_GetStatus(DISPLAY), BT_ON);
    Button(DISPLAY);
    EXPECT_EQ(BT_GetStatus(DISPLAY), BT_OFF);
    EXPECT_EQ(Order(), "1|M/E-1|ON, 2|M/E-1 Sub|, 3|P/P|ON, 4|USER1|ON, ||");
    Button(DISPLAY);
    LS_SetNowLine(1, 4); // behind the last
    LS_SetNowLine(2, 0);
    Button(INSERT);
    EXPECT_EQ(Order(), "1|M/E-1 Sub|ON, 2|P/P|ON, 3|USER1|ON, 4|M/E-1|ON, ||");
    LS_SetNowLine(1, 0);
    LS_SetNowLine(2, 3);
    Button(INSERT);
    LS_SetNowLine(1, 2);
    Button(DELETE_KEY);
    EXPECT_EQ(Order(), "1|USER1|ON, 2|M/E-1 Sub|ON, 3|M/E-1|ON, ||");
    EXPECT_EQ(KF_GetRegionDisplay(5), 2);
    LS_SetNowLine(1, 3);
    Button(DELETE_KEY); // on the empty row: nothing
    Button(DISPLAY);
    EXPECT_EQ(LS_GetNData(1), 4);
    Button(DEFAULT);
    EXPECT_EQ(Order(), "1|M/E-1|ON, 2|M/E-1 Sub|ON, 3|P/P|ON, 4|USER1|ON, ||");
    EXPECT_THAT(Sent(), IsEmpty());

    Tally("Info@Operation Setup Data@Timeline Region Priority", "1,6");
    Tally("Info@Operation Setup Data@Timeline Region Priority", "4,0");
    Tally("Info@Operation Setup Data@Timeline Region Display", "46,1");
    Pass(10);
    EXPECT_EQ(Order(), "1|USER1|ON, 2|M/E-1 Sub|, 3|P/P|ON, 4|M/E-1|ON, ||");
    EXPECT_EQ(BT_GetStatus(ACTIVE), BT_OFF);
    (void)Sent();
    Button(ACTIVE);
    EXPECT_EQ(GL_TimelineDisplayPriority, 1);
    EXPECT_THAT(Sent(), ElementsAre("put Info@Operation Setup Data@Timeline Display Priority#1"));
    EXPECT_EQ(BT_GetStatus(ACTIVE), BT_ON);
    EXPECT_EQ(BT_GetVisible(DISPLAY), BT_DISABLED);
    Button(ACTIVE);
    EXPECT_EQ(BT_GetVisible(DISPLAY), BT_ENABLED);
    Tally("Info@Operation Setup Data@Timeline Display Priority", "1");
    EXPECT_EQ(BT_GetVisible(DISPLAY), BT_DISABLED) << "changed elsewhere";
}

TEST_F(AssignPage, ClosingSavesAllRowsOnceTheServerHasToldItsRegions)
{
    LS_SetNowLine(1, 2);
    Button(DISPLAY);
    CreatePage(PAGE_TOP);
    const auto sent = Sent();
    ASSERT_EQ(sent.size(), 128u);
    EXPECT_EQ(sent[0], "put Info@Operation Setup Data@Timeline Region Display#1,0");
    EXPECT_EQ(sent[10], "put Info@Operation Setup Data@Timeline Region Display#6,1");
    EXPECT_EQ(sent[127], "put Info@Operation Setup Data@Timeline Region Priority#64,255");
    CreatePage(0x61150000);
    KF_Init();
    (void)TakeQueuedCommands();
    CreatePage(PAGE_TOP);
    EXPECT_THAT(Sent(), IsEmpty());
}

struct ProgramPage : KeyframePage {
    // Select DME1 (and DME2) with these registers.
    static void Load(int regnum1, int regnum2)
    {
        kf::Send(kf::Data{.code = 16, .regnum = regnum1});
        kf::Send(kf::Data{.code = 17, .regnum = regnum2});
        kf::Select({16, 0, 0, 3, 0, 0, 0, 0});
        CreatePage(0x61140000);
    }
    static std::vector<int> Enabled() { return Usable({17, 18, 19, 20, 33, 34, 35, 36}); }
};

TEST_F(ProgramPage, TheSelectedProgramsDecideWhichModesThereAre)
{
    static const std::tuple<int, int, std::vector<int>> cases[] = {
        {1, 99, {}},
        {201, 0, {19, 20, 34}},
        {101, 0, {17, 18, 20, 33, 34, 35, 36}},
        {250, 199, {17, 18, 19, 20, 33, 34, 35, 36}},
    };
    for (const auto& [reg1, reg2, enabled] : cases) {
        Load(reg1, reg2);
        EXPECT_EQ(Enabled(), enabled) << reg1 << " " << reg2;
    }
    Load(101, 201);
    kf::Select({16, 0, 0, 0, 0, 0, 0, 0});
    CreatePage(0x61140000);
    EXPECT_THAT(Enabled(), IsEmpty()) << "none is selected";
}

TEST_F(ProgramPage, APressAndATallyCarryTheModeOfTheProgramAndAnotherOpensThePageAnew)
{
    const std::string path = "Key Frame@DME User PGM@Transition Mode@150";
    Load(150, 201);
    EXPECT_THAT(Sent("add Key Frame"), ElementsAre("add " + path));
    static const std::pair<int, const char*> cases[] = {{17, "0"}, {18, "8"}, {19, "1"}, {20, "5"},
                                                        {33, "3"}, {34, "2"}, {35, "6"}, {36, "7"}};
    for (const auto& [button, value] : cases) {
        Button(button);
        EXPECT_THAT(Sent(), ElementsAre("put " + path + "#" + value));
        Tally(path, value);
        EXPECT_EQ(BT_GetStatus(button), BT_ON) << button;
    }
    for (const char* wild : {"9", "-1", "", "x"})
        Tally(path, wild);
    EXPECT_EQ(BT_GetStatus(36), BT_ON) << "ignored";
    CreatePage(PAGE_TOP);
    EXPECT_THAT(Sent("remove Key Frame"), ElementsAre("remove " + path));

    // A running region tells of every keyframe, many times a second.
    const auto keyframe = [](int code, int number) {
        kf::Send(kf::Status{.code = code, .keyframe = number, .run = 1});
    };
    Load(150, 201);
    GL_CreatePage = 0;
    keyframe(16, 1);
    keyframe(1, 2);
    EXPECT_EQ(GL_CreatePage, 0u);
    kf::Send(kf::Data{.code = 16, .regnum = 151});
    EXPECT_EQ(GL_CreatePage, 0x61140000u);
    GL_CreatePage = 0x11110000;
    kf::Send(kf::Data{.code = 16, .regnum = 152});
    EXPECT_EQ(GL_CreatePage, 0x11110000u) << "the operator's wish";
}

struct RegionPage : KeyframePage {
    static inline const std::string ENABLE = "put Key Frame@Region Select@Region Enable@";

    // Of the key with this number, of its regions: the reference row and the selection row.
    static void Key(int number)
    {
        Press(104 + 68 * ((number - 1) % 5) + 10, 84 + 70 * ((number - 1) / 5) + 30);
    }
    static Lines Touched(const std::vector<int>& slots, int y)
    {
        for (const int slot : slots)
            Press(456 + 61 * slot + 10, y + 10);
        return Sent();
    }
    static Lines Reference(const std::vector<int>& slots) { return Touched(slots, 120); }
    static Lines Selection(const std::vector<int>& slots = {0}) { return Touched(slots, 210); }
    void SetUp() override
    {
        KeyframePage::SetUp();
        kf::Select({1, 0x03, 0, 0, 0, 0, 0, 0}); // M/E-1, the reference, and P/P
        Open(0x61170000);
    }
};

TEST_F(RegionPage, EntryAndExitTellThePanelAndTheLampsFollowTheSelection)
{
    constexpr char pcx[] = "put Engineering Setup@Panel@Config@10 Key Region Assign@Pcx#40";
    CreatePage(PAGE_TOP);
    EXPECT_THAT(Sent(), ElementsAre(pcx));
    const int frames = Net_State(NET_LINK_BIN).waiting;
    CreatePage(0x61170000);
    EXPECT_EQ(Net_State(NET_LINK_BIN).waiting, frames + 1) << "the selection is read";
    EXPECT_NE(BT_GetVisible(53), BT_ENABLED) << "this panel has one module";
    const auto sent = TakeQueuedCommands();
    EXPECT_THAT(sent, Contains(pcx));
    for (const char* n : {"1", "23"})
        EXPECT_THAT(sent, Contains("read " + TENKEY + n));

    const auto lamps = [](int slot) {
        Pass(10);
        const int x = 456 + 61 * slot;
        return std::array{PixelsIn({x, 120, x + 50, 170}), PixelsIn({x, 210, x + 50, 260})};
    };
    TenKey(1, "M/E-1,DME1,,");
    const auto first = lamps(0), second = lamps(1);
    kf::Select({16, 0x02, 0, 0x01, 0, 0, 0, 0}); // DME1, the reference, comes to M/E-1
    EXPECT_NE(lamps(0)[0], first[0]);
    EXPECT_EQ(lamps(0)[1], first[1]);
    EXPECT_NE(lamps(1)[0], second[0]);
    EXPECT_NE(lamps(1)[1], second[1]);
    kf::Select({1, 0x02, 0, 0x01, 0, 0, 0, 0}); // the reference alone changes
    EXPECT_EQ(lamps(0)[0], first[0]);
    EXPECT_EQ(lamps(1)[0], second[0]);
    kf::Select({1, 0x02, 0, 0, 0, 0, 0, 0});
    EXPECT_EQ(lamps(1)[1], second[1]);
}

TEST_F(RegionPage, AKeyHasTheColourOfItsFirstRegionAndALineWhereTheyDiffer)
{
    SYS_3DMode = 1; // takes M/E-3 away
    static const std::tuple<const char*, unsigned, bool> cases[] = {
        {"M/E-1,,,", GREEN, false}, {"M/E-1,M/E-2,,", GREEN, true},
        {",P/P,,", ORANGE, false},  {"M/E-2,P/P,,", ORANGE, true},
        {"M/E-2,,,", WHITE, false}, {"M/E-3,,,", 0x787878, false},
    };
    for (const auto& [regions, colour, differ] : cases) {
        TenKey(1, regions);
        const auto cap = Seen({106, 102, 161, 137});
        EXPECT_THAT(cap, Contains(colour)) << regions;
        EXPECT_EQ(std::ranges::count(cap, RED) > 0, differ) << regions;
    }
    SYS_3DMode = 0;
}

TEST_F(RegionPage, EveryRegionOfTheSelectionIsOnTheKeyWithItsName)
{
    int named = 0;
    for (unsigned bit = 0; bit < 56; bit++) {
        const auto select = [bit](int reference) {
            kf::Bytes bytes(8, 0);
            bytes[0] = static_cast<unsigned char>(reference);
            bytes[1 + bit / 8] = static_cast<unsigned char>(1 << bit % 8);
            kf::Send(kf::SELECTION, bytes);
        };
        select(1);
        for (int n = 0; const regnametbl* const name = TenKey_Region(n); n++) {
            int region = 0;
            while (region < KF_REGIONS && StrICmp(KF_GetRegionName(region), name->tally) != 0)
                region++;
            if (!KF_IsRegionSelected(region))
                continue;
            named++;
            select(KF_GetRegionStatus(region)->code);
            const std::string other = std::string(name->tally) == "GPI" ? "MACRO" : "GPI";
            TenKey(1, (std::string(name->tally) + "," + other + ",,").c_str());
            EXPECT_THAT(Selection({0, 1}),
                        ElementsAre(ENABLE + name->tally + "#false", ENABLE + other + "#true"));
            EXPECT_THAT(Seen({106, 102, 161, 137}), Contains(GREEN)) << name->tally;
        }
    }
    EXPECT_EQ(named, 44);
}

TEST_F(RegionPage, APressSendsTheRegionOfTheChosenKeyThatRubbishDoesNotChange)
{
    TenKey(1, "M/E-1,M/E-2,No Assign,P/P");
    TenKey(7, "User3,DME1,,");
    EXPECT_THAT(Selection({0, 1, 2}), // the last is nobody's
                ElementsAre(ENABLE + "M/E-1#false", ENABLE + "M/E-2#true"));
    EXPECT_THAT(Reference({0, 1, 3}), // one that is not selected cannot be the reference
                ElementsAre("put Key Frame@Region Select@Ref Region Set#M/E-1",
                            "put Key Frame@Region Select@Ref Region Set#P/P"));
    constexpr Rect parts[] = {{104, 84, 171, 153}, {172, 154, 239, 223}, {450, 84, 701, 260}};
    const std::array before = {Seen(parts[0]), Seen(parts[1]), Seen(parts[2])};
    Key(7);
    for (int i = 0; i < 3; i++) // both keys, and the regions
        EXPECT_NE(Seen(parts[i]), before[size_t(i)]) << i;
    EXPECT_THAT(Selection(), ElementsAre(ENABLE + "User3#true"));
    Key(22);
    EXPECT_THAT(Selection(), IsEmpty());

    Key(1);
    TenKey(1, "P/P,,,");
    TenKey(1, "M/E-1");
    Tally(TENKEY + "1", "1,0");
    for (const char* number : {"0", "24", "-1", "", "x", "99999999999"})
        Tally(TENKEY + number, "1,0,P/P,,,");
    EXPECT_THAT(Selection(), ElementsAre(ENABLE + "M/E-1#false"));
    for (const char* regions : {",,,", "No Assign,,,", "M/E-9,,,", "M/E-1x"}) {
        TenKey(1, regions);
        EXPECT_THAT(Selection(), IsEmpty()) << regions;
    }
}

TEST_F(RegionPage, WhatTheModeTakesAwayOrALockHoldsTakesNoPress)
{
    TenKey(1, "M/E-3,DME3,,");
    SYS_3DMode = 1;
    EXPECT_THAT(Selection({0, 1}), IsEmpty());
    const auto panel_before = std::exchange(SYS_RefPnlType, DEVTYPE_QRD11B);
    for (const std::string bank : {"M/E-2", "M/E-4"}) {
        TenKey(1, bank.c_str());
        EXPECT_EQ(Selection().empty(), bank == "M/E-2") << "this panel has other keys";
    }
    SYS_RefPnlType = panel_before;
    TenKey(1, "M/E-3,DME3,,");
    SYS_3DMode = 0;
    SYS_RefSwrType = DEVTYPE_UNKNOWN; // the large one has links of 3 Gb/s
    DEV_MySwr[0]->activeline = 6;
    DEV_MySwr[0]->framerate = 25.0;
    SYS_DualProc = 0;
    EXPECT_THAT(Selection({0, 1}), ElementsAre(ENABLE + "DME3#true"));
    TenKey(1, "M/E-1,,,");
    SetupMenu[0] = {.page = 0x61170000, .lock = 1};
    SetupMenu_Max = 1;
    EXPECT_EQ(Selection().size(), 1u) << "the lock is off";
    SetupLock.lock = 1;
    EXPECT_THAT(Selection(), IsEmpty());
    Key(2);
    EXPECT_THAT(Sent(), IsEmpty());
}

TEST_F(RegionPage, TheNewestPanelHasItsKeysOnTwoModules)
{
    SYS_RefPnlType = DEVTYPE_QRD11B;
    Open(0x61170000);
    EXPECT_EQ(BT_GetVisible(53), BT_ENABLED);
    TenKey(1, "M/E-1,,,");
    TenKey(8, "User1,,,");
    TenKey(22, "User2,,,");
    Button(54); // the second module: its first key has the number 8
    EXPECT_EQ(BT_GetStatus(54), BT_ON);
    Key(1);
    EXPECT_THAT(Selection(), ElementsAre(ENABLE + "User1#true"));
    Key(15);
    EXPECT_THAT(Selection(), ElementsAre(ENABLE + "User2#true"));
    TenKey(7, "M/E-2,,,");
    Pass(10);
    Button(53);
    EXPECT_EQ(BT_GetStatus(53), BT_ON);
    Key(8); // not on this module
    EXPECT_THAT(Selection(), ElementsAre(ENABLE + "M/E-2#true")) << "the last of its keys";
    EXPECT_THAT(Seen({240, 154, 307, 220}), Each(0u)) << "nor painted";
    SetupMenu[0] = {.page = 0x61170000, .lock = 1};
    SetupMenu_Max = 1;
    SetupLock.lock = 1;
    Button(54);
    EXPECT_EQ(BT_GetStatus(53), BT_ON);
    SetupLock.lock = 0;
    Open(0x61170000);
    TenKey(1, "M/E-1,,,");
    EXPECT_THAT(Selection(), ElementsAre(ENABLE + "M/E-1#false")) << "it begins with the first";
}
