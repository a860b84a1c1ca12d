#include "a_nb_column.h"
#include "pane.h"
#include "setup_index.h"

using Lines = Strings;

// Every kind of path; two layers.
static const NB_TBL table[] = {
    Box(1, "Clip", NB_2, 0, 100, "~@$@Clip"),
    Box(2, "Lines", NB_INT, 0, 9, "Panel@Common@Knob1", 7),
    Box(3, "Shift", NB_1, -10, 10, "LOCAL@Panel@Common@Knob2", 0.5),
    Box(4, "Pages", NB_INT, 1, 20, "LOCAL"),
    Box(5, "Spare", NB_4, 0, 1, ""),
    Box(17, "Level", NB_2, 109.59, -7.31, "~@Level"),
    Box(18, "Time", NB_TC, -900, 900, "~@Time"),
    NB_END,
};
static const NB_TBL one[] = {
    Box(1, "Gain", NB_2, -100, 100, "~2@Gain"),
    NB_END,
};
constexpr char CLIP[] = "M/E-1@Key1@Type@Chroma@Clip";
constexpr char LEVEL[] = "M/E-1@Key1@Type@Level";
static const std::string clip = CLIP;

// --- Tables and layers ---

TEST_F(KnobColumn, ATableTakesTheKnobsAndTheNextOneGivesThemBackFirst)
{
    Open(table); // in the first layer
    NB_Create(nullptr, "");
    Forget();
    EXPECT_EQ(NB_Create(table, "Chroma"), 0);
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("add M/E-1@Key1@Type@Chroma@Clip", "add Panel@Common@Knob1",
                            "add Panel@Common@Knob2", "add M/E-1@Key1@Type@Level",
                            "add M/E-1@Key1@Type@Time", "assign Knob0#M/E-1@Key1@Type@Chroma@Clip",
                            "assign Knob1#Panel@Common@Knob1", "assign Knob2#Panel@Common@Knob2"));
    EXPECT_THAT(Told(), ElementsAre("create Chroma"));
    NB_Create_NoAdd(one, "Gain");
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("assign Knob0#null", "assign Knob1#null", "assign Knob2#null",
                            "remove M/E-1@Key1@Type@Chroma@Clip", "remove Panel@Common@Knob1",
                            "remove Panel@Common@Knob2", "remove M/E-1@Key1@Type@Level",
                            "remove M/E-1@Key1@Type@Time", "assign Knob0#M/E-1@Key1@Gain"));
    (void)TakeQueuedCommands();
    NB_Create(one, "Gain");
    (void)TakeQueuedCommands();
    EXPECT_EQ(NB_Create(nullptr, ""), 1);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("assign Knob0#null", "remove M/E-1@Key1@Gain"));
}

TEST_F(KnobColumn, ALockedSetupPageRefusesEveryWayToMoveAValue)
{
    GL_NowPage = 0x73170000;
    SetupIndex_Build();
    int& lock = SetupMenu[SetupIndex_Find(GL_NowPage)].lock;
    lock = 1;
    for (const bool is_locked : {true, false}) {
        SetupLock.lock = is_locked;
        NB_Create(table, "Chroma");
        const Lines sent = TakeQueuedCommands();
        EXPECT_EQ(std::count(sent.begin(), sent.end(), std::string("assign Knob0#") + CLIP),
                  !is_locked);
        Tally(CLIP, "50");
        Forget();
        PressSlot(1, 2); // Default
        Wheel(MSG_WHEELDOWN, 1);
        PressSlot(2, 3); // the bar
        Drag(790, false, true);
        SendMessage(MSG_RELEASE, 790, 300, 3, 0);
        Tally("Panel@Common@Knob1", "7");
        Tally("Panel@Common@Knob2", "7");
        EXPECT_EQ(TakeQueuedCommands().empty(), is_locked);
        EXPECT_EQ(Told().empty(), is_locked);
        PressSlot(1);
        EXPECT_EQ(GetWindow() == WINDOW_NONE, is_locked);
        EXPECT_EQ(PressTitle(), 1) << "looking is free";
        PressTitle();
    }
    (void)CloseWindow();
    lock = 0;
}

TEST_F(KnobColumn, APressOnTheTitleMovesTheKnobsToTheNextLayerAndRound)
{
    Open(table);
    EXPECT_EQ(PressTitle(), 1);
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("assign Knob0#null", "assign Knob1#null", "assign Knob2#null",
                            "assign Knob0#M/E-1@Key1@Type@Level",
                            "assign Knob1#M/E-1@Key1@Type@Time"));
    EXPECT_THAT(Told(), ElementsAre("layer 1"));
    const auto look = [](int ms) {
        Pass(ms);
        return PixelsIn({706, 73, 799, 124});
    };
    const auto pushed = look(149);
    EXPECT_EQ(look(0), pushed) << "for 150 ms";
    Pass(1);
    EXPECT_NE(look(0), pushed);
    const auto title = look(0);
    NB_SetTitle("Other");
    EXPECT_NE(look(0), title);
    EXPECT_EQ(PressTitle(), 0);
    Open(one);
    PressTitle();
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(KnobColumn, RowsComeAndGoByThemselvesAndLeaveTheirSlotsEmpty)
{
    static const NB_TBL extra[] = {Box(2, "Extra", NB_2, 0, 1, "~2@Extra"), NB_END};
    static const NB_TBL twin[] = {Box(19, "Twin", 0, 0, 0, "~2@Extra"), NB_END};
    const Rect slot = {706, 209, 799, 288};
    Open(one, "Gain");
    Pass();
    const auto empty = PixelsIn(slot);
    EXPECT_EQ(NB_AddTable(extra), 0);
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("add M/E-1@Key1@Extra", "assign Knob1#M/E-1@Key1@Extra"));
    Pass();
    EXPECT_NE(PixelsIn(slot), empty);
    NB_DeleteTable(2);
    Pass();
    EXPECT_EQ(PixelsIn(slot), empty);
    NB_AddTable(extra);
    NB_PushTable(twin);
    EXPECT_EQ(PressTitle(), 1);
    Forget();
    // The other box of the path still needs the subscription.
    EXPECT_EQ(NB_PopTable(), 0);
    const auto sent = TakeQueuedCommands();
    EXPECT_THAT(sent, testing::Not(Contains("remove M/E-1@Key1@Extra")));
    EXPECT_THAT(sent, Contains("assign Knob1#M/E-1@Key1@Extra"));
    EXPECT_EQ(NB_GetLayer(), 0) << "the layer of the one that went has gone with it";
    EXPECT_EQ(NB_DeleteTable(1), 0);
    EXPECT_EQ(NB_DeleteTable(1), -1);
}

TEST_F(KnobColumn, AnotherCommandTakesTheKnobAlongAndForgetsTheValue)
{
    Open(one, "Key\nGain"); // a line end would cut the command
    Tally("M/E-1@Key1@Gain", "12");
    EXPECT_EQ(NB_SetCommand(1, "~2@Phase@$"), 0);
    NB_SetCommand_NoAdd(1, "~2@Left");
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("assign Knob0#null", "remove M/E-1@Key1@Gain",
                            "add M/E-1@Key1@Phase@Key Gain",
                            "assign Knob0#M/E-1@Key1@Phase@Key Gain", "assign Knob0#null",
                            "remove M/E-1@Key1@Phase@Key Gain", "assign Knob0#M/E-1@Key1@Left"));
    EXPECT_EQ(Shown("Gain"), 0);
    Tally("M/E-1@Key1@Gain", "13");
    EXPECT_EQ(Shown("Gain"), 0);
    Tally("M/E-1@Key1@Left", "14");
    EXPECT_EQ(Shown("Gain"), 14);
}

// --- Tallies and knobs ---

TEST_F(KnobColumn, APathDecidesWhatATallyDoes)
{
    Open(table);
    for (const auto& [path, value, heard] :
         {std::tuple<const char*, const char*, Lines>{CLIP, "37.5", {}},
          {"Panel@Common@Knob1", "14", {"var 2 2", "fvar 2 2.00"}},
          {"Panel@Common@Knob2", "-3", {"diff 3 -1.50"}},
          {"Panel@Common@Knob3", "1", {}},
          {"LOCAL", "5", {}}}) {
        Tally(path, value);
        EXPECT_EQ(Told(), heard) << path << " " << value;
    }
    EXPECT_EQ(Shown("Clip"), 37.5);
    EXPECT_EQ(Shown("Pages"), 0);
    EXPECT_THAT(TakeQueuedCommands(), IsEmpty());
}

TEST_F(KnobColumn, WhatWasToldOrTurnedIsAValueAndIsPainted)
{
    const auto look = [](int slot) {
        Pass();
        return PixelsIn({706, Middle(slot) - 30, 799, Middle(slot) + 30});
    };
    Open(table);
    for (const auto& [path, value, slot] :
         {std::tuple{CLIP, "37.5", 1}, {CLIP, "38.5", 1}, {"Panel@Common@Knob1", "14", 2}}) {
        const auto before = look(slot);
        Tally(path, value);
        EXPECT_NE(look(slot), before) << path << " " << value;
        NB_SetSelect(slot);
        EXPECT_EQ(NB_SendTrimValue(0), 0);
        NB_SetSelect(0);
    }
    for (void (*const change)() :
         {+[] { NB_AddMinMax(1, 0, 40); }, +[] { NB_SetSelect(1); }, +[] { NB_SetSelect(0); },
          +[] { NB_SetCaption(1, "Other"); }, +[] { NB_InvalidVar(1); }}) {
        const auto before = look(1);
        change();
        EXPECT_NE(look(1), before);
    }
}

TEST_F(KnobColumn, ATurnStopsAtTheLimitsAndSaysWhich)
{
    for (const auto& [min, max, from, counts, heard, to] :
         {std::tuple<double, double, double, const char*, Lines, double>{
              0, 9, 8.5, "70", {"upper 1 9", "fvar 1 9.00"}, 9},
          {9, 0, 8.4, "70", {"upper 1 0", "var 1 9", "fvar 1 9.00"}, 9},
          {0, 9, 0.5, "-70", {"lower 1 0", "var 1 0", "fvar 1 0.00"}, 0},
          {9, 0, 0.5, "-70", {"lower 1 9", "var 1 0", "fvar 1 0.00"}, 0},
          {-9, 0, -0.6, "-1", {"fvar 1 -0.70"}, -0.7}, // both round to -1
          {0, 9, 4, "1e308", {"upper 1 9", "var 1 9", "fvar 1 9.00"}, 9}}) {
        const NB_TBL rows[] = {Box(1, "Turn", NB_INT, min, max, "Panel@Common@Knob0", 10), NB_END};
        Open(rows);
        NB_SetVar(1, from);
        Tally("Panel@Common@Knob0", counts);
        EXPECT_EQ(Told(), heard) << min << " " << max << " " << counts;
        EXPECT_NEAR(Shown("Turn"), to, 1e-9);
    }
}

TEST_F(KnobColumn, KnobsOfAnotherLayerAndUnderAPaneAreDead)
{
    Open(table);
    PressTitle();
    Forget();
    Tally("Panel@Common@Knob1", "70");
    PressTitle();
    Forget();
    const int pane = PaneMessage_Create("Wait", PANE_INFO, "A moment");
    Tally("Panel@Common@Knob1", "70");
    Tally(CLIP, "40");
    EXPECT_THAT(Told(), IsEmpty());
    EXPECT_EQ(Shown("Lines"), 0);
    EXPECT_EQ(Shown("Clip"), 40);
    Pane_Quit(pane);
    Tally("Panel@Common@Knob1", "7");
    EXPECT_EQ(Shown("Lines"), 1);
    PressSlot(1);
    ASSERT_NE(GetWindow(), 0);
    Told();
    for (const char* knob : {"Panel@Common@Knob1", "Panel@Common@Knob2"})
        Tally(knob, "7");
    EXPECT_THAT(Told(), ElementsAre("diff 3 3.50")) << "a difference is not the box's to refuse";
    EXPECT_EQ(Shown("Lines"), 1);
    CloseWindow();
    PressTitle();
    Told();
    Tally("Panel@Common@Knob2", "7");
    EXPECT_THAT(Told(), IsEmpty());
}

// What the recorder of menu macros tells a turn by.
TEST_F(KnobColumn, ATurnIsMarkedWhileThePageHearsOfItAndMayChangeValueAndTable)
{
    int marked = 0;
    answer = [&](int) { marked += GL_MM_Knob_Protcol; };
    Open(table);
    marked = 0;
    Tally("Panel@Common@Knob1", "14");
    EXPECT_EQ(marked, 2);
    Wheel(MSG_WHEELDOWN, 2);
    EXPECT_EQ(marked, 2) << "the screen is no knob";
    answer = [](int msg) {
        if (msg == LMSG_KNOBUPPER)
            NB_SetVar(2, 0); // goes round
    };
    Open(table);
    NB_SetVar(2, 8);
    Tally("Panel@Common@Knob1", "14");
    EXPECT_THAT(Told(), ElementsAre("upper 2 9", "var 2 0", "fvar 2 0.00"));
    // The boxes of the new table do not count the turn again.
    static const NB_TBL next[] = {Box(2, "Again", NB_INT, 0, 9, "Panel@Common@Knob1", 1), NB_END};
    answer = [](int msg) {
        if (msg == LMSG_KNOBVAR && told.size() == 1) // the first time
            NB_Create(next, "");
    };
    Tally("Panel@Common@Knob1", "7");
    EXPECT_EQ(Shown("Again"), 0);
}

TEST_F(KnobColumn, TheOldestLayerIsForgottenFirst)
{
    constexpr size_t REMEMBERED = 256;
    static std::vector<std::array<NB_TBL, 3>> tables(
        REMEMBERED + 1, {Box(1, "Low", NB_2, 0, 1, ""), Box(17, "High", NB_2, 0, 1, ""), NB_END});
    const auto layer_of = [](size_t n) {
        NB_Create(tables[n].data(), "");
        return NB_GetLayer();
    };
    layer_of(0);
    PressTitle();
    for (size_t n = 1; n < REMEMBERED; n++)
        layer_of(n);
    EXPECT_EQ(layer_of(0), 1);
    layer_of(REMEMBERED);
    EXPECT_EQ(layer_of(0), 0);
    EXPECT_EQ(layer_of(REMEMBERED), 0);
}

TEST_F(KnobColumn, NothingFromTheWireBreaksABox)
{
    Open(table);
    Tally(CLIP, "50");
    NB_SetVar(2, 5);
    for (const char* rubbish : {"nan", "inf", "-inf", "1e999"}) {
        Tally(CLIP, rubbish);
        Tally("Panel@Common@Knob1", rubbish);
        Tally("Panel@Common@Knob2", rubbish);
        EXPECT_EQ(Shown("Clip"), 50) << rubbish;
        EXPECT_EQ(Shown("Lines"), 5) << rubbish;
    }
    EXPECT_THAT(Told(), IsEmpty());
    TDL_FillRectS(600, 73, 705, 545, 0x123456);
    for (const char* huge : {"1e300", "-1e300", "99999999999", "1e-300"}) {
        for (const char* path : {CLIP, LEVEL, "M/E-1@Key1@Type@Time"})
            Tally(path, huge);
        NB_SetVar(4, strtod(huge, nullptr));
        Pass(10);
        PressTitle();
        Pass(10);
    }
    EXPECT_THAT(PixelsIn({600, 73, 705, 545}), testing::Each(0x123456u));
    for (const int result : {NB_SetVar(1, NAN), NB_SetDispVar(1, INFINITY), NB_SendValue2(1, NAN),
                             NB_SetMinMax(1, NAN, 1)})
        EXPECT_EQ(result, -1);
}

// --- The operator's changes ---

TEST_F(KnobColumn, ALateTallyDoesNotUpsetStepsThatAddUp)
{
    Open(table);
    const auto step = [](int ms) {
        Clock_ms += uint32_t(ms);
        Wheel(MSG_WHEELDOWN, 1);
    };
    Wheel(MSG_WHEELUP, 1); // set the times of the last steps
    step(0);
    Pass(500);
    Tally(CLIP, "50");
    step(1000);
    step(10);
    Forget();
    EXPECT_EQ(Shown("Clip"), 50); // until the server says so
    Tally(CLIP, "50.01");
    EXPECT_EQ(Shown("Clip"), 50.01);
    step(10);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("put " + clip + "#52.01", "read " + clip));
}

TEST_F(KnobColumn, TheWheelStepsByItsSpeedAndByOnesWhereOnesCount)
{
    SYS_FrameRate = 30;
    SYS_Format_Size = 0; // 30 frames a second
    for (const auto& [type, min, max, pause_ms, msg, sent] :
         {std::tuple{NB_2, 0.0, 200.0, 10, MSG_WHEELDOWN, "put V#52.00"},
          {NB_2, 0, 200, 0, MSG_WHEELDOWN, "put V#70.00"}, // a step in the same ms: 1 ms
          {NB_2, 200, 0, 10, MSG_WHEELDOWN, "put V#48.00"},
          {NB_INT, 0, 200, 1, MSG_WHEELDOWN, "put V#51"},
          {NB_INT, 200, 0, 1, MSG_WHEELDOWN, "put V#49"},
          {NB_TC, 0, 200, 1, MSG_WHEELUP, "put V#00:01:19"},
          {NB_1, 60, 49.8, 1, MSG_WHEELDOWN, "put V#49.8"}}) {
        const NB_TBL rows[] = {Box(1, "V", type, min, max, "V"), NB_END};
        Open(rows);
        Clock_ms += 1000;
        Wheel(msg, 1); // sets the time of the last step
        Pass(500);
        Tally("V", "50");
        Forget();
        Clock_ms += uint32_t(pause_ms);
        Wheel(msg, 1);
        EXPECT_THAT(TakeQueuedCommands(), ElementsAre(sent, "read V")) << min << " " << max;
        EXPECT_THAT(Told(), IsEmpty()) << "it is the server's";
    }
    for (int msg : {MSG_WHEELUP, MSG_WHEELDOWN, MSG_PRESS, MSG_DRAG, MSG_RELEASE})
        EXPECT_EQ(NB_Proc(msg, 300, 300, 0, 0), 0) << "others may have a part in it";
}

TEST_F(KnobColumn, AGrabPutsTheMouseOnTheMarkAndAnyHeldButtonDrags)
{
    GL_MouseSliderControl = 1;
    Open(table);
    NB_SetVar(1, 25);
    PressSlot(1);
    int x = 0, y = 0;
    SDL_GetMouseState(&x, &y);
    EXPECT_EQ(x, 734);
    EXPECT_EQ(y, 167);
    Forget();
    // the mouse has followed
    EXPECT_THAT(Dragged(734, true, false), IsEmpty());
    EXPECT_THAT(Dragged(754, true, false), ElementsAre("put " + clip + "#50.00", "read " + clip));
    Drag(754, true, false);
    EXPECT_THAT(Dragged(774, false, false), IsEmpty());
    EXPECT_THAT(Dragged(2000, false, true), Contains("put M/E-1@Key1@Type@Chroma@Clip#100.00"));
    const auto edge = [] { // of the bar
        Pass();
        return PixelsIn({714, Middle(1) - 6, 794, Middle(1) - 6});
    };
    const auto held = edge();
    SendMessage(MSG_RELEASE, 0, 0, 0, 0);
    EXPECT_NE(edge(), held);
    EXPECT_THAT(Dragged(754, false, true), IsEmpty());
    // The release went to a pane: the next press, wherever it is, ends the hold.
    PressSlot(1);
    SendMessage(MSG_PRESS, 300, 300, 1, 0);
    EXPECT_THAT(Dragged(754, true, false), IsEmpty());
    // A bar that runs backwards, on the other layer.
    PressTitle();
    NB_SetVar(17, 50);
    PressSlot(1, 3);
    Forget();
    EXPECT_THAT(Dragged(734, false, true), Contains("put M/E-1@Key1@Type@Level#80.37"));
}

// With the panel a touch is a press and a motion to the same place, some pixels off and on.
TEST_F(KnobColumn, AFingerMovesTheValueAndATapDoesNot)
{
    GL_MouseSliderControl = 1;
    Open(table);
    NB_SetVar(1, 33.3);
    for (int x : {700, 720, 741, 790}) {
        SendMessage(MSG_PRESS, x, Middle(1), 1, 0);
        for (int tremble : {0, 3, -6, 6})
            Drag(x + tremble, true, false);
        SendMessage(MSG_RELEASE, x, Middle(1), 0, 0);
        EXPECT_THAT(TakeQueuedCommands(), testing::Not(Contains(testing::StartsWith("put")))) << x;
    }
    SendMessage(MSG_PRESS, 790, Middle(1), 1, 0);
    // 16 of 80 pixels behind the tremble
    EXPECT_THAT(Dragged(768, true, false), Contains("put M/E-1@Key1@Type@Chroma@Clip#13.30"));
    // The right button is a mouse, which the grab has put on the mark: 33.3 is nearest to pixel 27.
    NB_SetVar(1, 33.3);
    PressSlot(1, 3);
    Forget();
    EXPECT_THAT(Dragged(714 + 27, false, true), IsEmpty());
    EXPECT_THAT(Dragged(714 + 40, false, true), Contains("put M/E-1@Key1@Type@Chroma@Clip#50.00"));
}

TEST_F(KnobColumn, ABoxWithoutAValueSendsNoneMadeOfNothing)
{
    GL_MouseSliderControl = 1;
    Open(table, "Never told");
    for (int slot = 1; slot <= 4; slot++) {
        Wheel(MSG_WHEELDOWN, slot);
        PressSlot(slot, 3);
        Drag(780, false, true);
        SendMessage(MSG_RELEASE, 780, 300, 0, 0);
    }
    EXPECT_THAT(TakeQueuedCommands(), IsEmpty());
    EXPECT_THAT(Told(), IsEmpty());
    Tally("M/E-1@Key1@Type@Never told@Clip", "50");
    PressSlot(1, 3);
    EXPECT_THAT(Dragged(774, false, true), Contains("put M/E-1@Key1@Type@Never told@Clip#75.00"));
}

TEST_F(KnobColumn, SomePagesBendADraggedValue)
{
    const std::string crop = "D@Border/Crop@Crop@";
    GL_MouseSliderControl = 1;
    for (const auto& [id, box, x, sent] : {std::tuple{0x41110000u, "H", 794, "#0.00"},
                                           {0x41110000u, "All", 714, "#-10.00"},
                                           {0x1A350002u, "V", 714, "#0.00"},
                                           {0x1A350003u, "V", 714, "#-10.00"}}) {
        const std::string cmd = crop + box;
        const NB_TBL rows[] = {Box(1, "", NB_2, -10, 10, cmd.c_str()), NB_END};
        GL_NowPage = id;
        Open(rows);
        NB_SetVar(1, 5);
        PressSlot(1, 3);
        EXPECT_THAT(Dragged(x, false, true), Contains("put " + cmd + sent));
    }
}

// Its page code takes the value whole or not at all.
TEST_F(KnobColumn, TheRotationOfAWipeIsToldExactlyAndOnce)
{
    for (const auto& [id, caption, min, exact] : {std::tuple{0x12260003u, "H", -100, true},
                                                  {0x13650000u, "V", 100, true},
                                                  {0x13650000u, "All", -100, true},
                                                  {0x13650000u, "V", -100, false},
                                                  {0x13650000u, "H", 100, false},
                                                  {0x13650000u, "D", -100, false},
                                                  {0x12260002u, "H", -100, false}}) {
        const NB_TBL rows[] = {Box(1, caption, NB_2, min, -min, "LOCAL"), NB_END};
        GL_NowPage = id;
        Open(rows);
        exact_var = exact;
        EXPECT_EQ(NB_SendValue2(1, 12.75), 0);
        EXPECT_EQ(Told(), exact ? Lines({"var 1 12.75"})
                                : Lines({"var 1 13 screen", "fvar 1 12.75 screen"}))
            << std::hex << id << " " << caption;
    }
}

TEST_F(KnobColumn, TheMiddleButtonAndTheArmedKeyRecallADefault)
{
    Open(table);
    for (const bool armed : {false, true}) {
        for (int slot = 1; slot <= 5; slot++) {
            BA_SetDefaultButton(armed);
            PressSlot(slot, armed ? 1 : 2);
            EXPECT_EQ(BA_IsDefaultButton(), 0) << slot;
        }
        EXPECT_THAT(TakeQueuedCommands(), ElementsAre("default " + clip, "read " + clip));
        EXPECT_THAT(Told(), ElementsAre("default 2", "default 3", "default 4"));
    }
}

TEST_F(KnobColumn, AShownValueBecomesTheValueAfterHalfASecond)
{
    Open(table);
    NB_SetVar(2, 3);
    EXPECT_EQ(NB_SetDispVar(2, 5), 0);
    NB_SetDispVar(2, 8);
    Pass(400);
    Tally("Panel@Common@Knob1", "7"); // counts on from 5, holds the display
    EXPECT_THAT(Told(), ElementsAre("var 2 6", "fvar 2 6.00"));
    EXPECT_EQ(Shown("Lines"), 8);
    Pass(499);
    Tally("Panel@Common@Knob1", "7");
    EXPECT_THAT(Told(), ElementsAre("var 2 7", "fvar 2 7.00"));
    Pass(499);
    Pass(1);
    Tally("Panel@Common@Knob1", "7");
    EXPECT_THAT(Told(), ElementsAre("var 2 9", "fvar 2 9.00"));
    NB_SetDispVar(2, 5);
    NB_InvalidVar(2);
    Pass(500);
    EXPECT_EQ(Shown("Lines"), 0) << "no value comes back from the display";
}
