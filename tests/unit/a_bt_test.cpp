#include "a_bt_page.h"
#include "display.h"
#include "window.h"

static const NB_TBL boxes[] = {{.id = 1, .caption = "Clip", .type = NB_2, .max = 100}, NB_END};

static const BT_TBL table[] = {
    Button(17, BT_RADIO, {"~@Key Type#Luminance"}, boxes),
    Button(18, BT_RADIO, {"~@Key Type#Linear"}, boxes),
    Button(19, BT_RADIO_RELEASE, {"~@Force#Black"}),
    Button(20, BT_TOGGLE, {"~2@Invert#*", "~@Key Type#!Chroma"}),
    Button(21, BT_ACTION, {"~@Auto#*"}),
    Button(22, BT_ACTION_STATE, {"~@Run#*"}),
    Button(33, BT_JUMP, {"#00220000"}),
    Button(34, BT_JUMP_POPUP, {"#+11110001"}),
    Button(35, BT_TOGGLE, {"LOCAL@Test@Mode#1"}, NoKnobs()),
    Button(36, BT_ACTION, {"LOCAL@Test@Go#2"}),
    Button(37, BT_KNOB_ONLY, {""}, boxes),
    Button(38, BT_PULLDOWN, {"~@List#*"}),
    Button(50, BT_PULLDOWN_LONG, {"~@Long#*"}),
    Button(51, BT_TRANSFER_LEFT, {"~@Left#*"}),
    Button(52, BT_TRANSFER_RIGHT, {"~@Right#*"}),
    Button(49, BT_TAB, {"~@Tab#*"}),
    {.id = -1},
};

struct Buttons : ButtonPage {
    void SetUp() override
    {
        ButtonPage::SetUp();
        Open(table);
    }
};

TEST_F(ButtonPage, EachPathThatThereIsIsSubscribedOnceAndRemovedAgainUnlessItIsOnlyRead)
{
    rows[0] = Button(17, BT_RADIO, {"~@Key Type#Luminance"});
    rows[1] = Button(18, BT_RADIO, {"~@Key Type#Linear", "~2@Invert#true", "LOCAL@Test@Mode#1"});
    rows[2] = Button(19, BT_JUMP, {"#00220000", "~@Key Type#Chroma"});
    rows[3] = Button(20, BT_TAB, {"~@Tab#*"});
    BT_Create(rows, 0);
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("add M/E-1@Key1@Type@Key Type", "add M/E-1@Key1@Invert"));
    EXPECT_EQ(BT_Create(nullptr, 0), 1);
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("remove M/E-1@Key1@Type@Key Type", "remove M/E-1@Key1@Invert"));
    std::fill(std::begin(rows), std::end(rows), BT_TBL{});
    rows[0] = Button(17, BT_TOGGLE, {"~@A#*", "~@B#", "~@C#"});
    rows[0].no_add = 2; // from the second command on
    BT_Create(rows, 0);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("add M/E-1@Key1@Type@A", "read M/E-1@Key1@Type@B",
                                                  "read M/E-1@Key1@Type@C"));
    BT_Create(nullptr, 0);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("remove M/E-1@Key1@Type@A"));
    rows[0] = Button(17, BT_TOGGLE, {"~@Resizer@Mode#*", "~@Rszr#", "~@Other#"});
    for (const size_t paths : {1, 3}) {
        SYS_FmemV6 = paths == 3;
        BT_Create(nullptr, 0);
        (void)TakeQueuedCommands();
        BT_Create(rows, 0);
        const auto sent = TakeQueuedCommands();
        EXPECT_EQ(sent.size(), paths);
        EXPECT_THAT(sent, Contains("add M/E-1@Key1@Type@Other"));
    }
}

TEST_F(Buttons, APressSendsWhatItsTypeSaysAndIsPaintedAtOnceWhenItLeadsToMore)
{
    for (const auto& [id, status, sent] :
         {std::tuple{20, BT_NO_TALLY, "put M/E-1@Key1@Invert#true"},
          {20, BT_ON, "put M/E-1@Key1@Invert#false"},
          {19, BT_OFF, "put M/E-1@Key1@Type@Force#Black"},
          {19, BT_ON, "put M/E-1@Key1@Type@Force#null"},
          {21, BT_NO_TALLY, "put M/E-1@Key1@Type@Auto#true"},
          {18, BT_OFF, "put M/E-1@Key1@Type@Key Type#Linear"}}) {
        BT_SetStatus(id, status);
        GL_CreatePage = 7;
        Press(id);
        EXPECT_EQ(std::exchange(GL_CreatePage, 0u), 7u) << id << " leads nowhere";
        EXPECT_THAT(TakeQueuedCommands(), ElementsAre(sent)) << id;
        EXPECT_EQ(BT_GetStatus(id), status) << "a press changes no state";
    }
    for (int id : {33, 35, 37, 38, 49}) {
        EXPECT_THAT(Pressed(id), IsEmpty()) << id;
    }
    OpenTree({"M/E-2", "Key3", "Type"}, 0x12310000, table);
    for (const auto& [id, asked] : {std::pair{33, 0x00220000u}, {34, 0x12310001u}}) {
        Press(id);
        EXPECT_EQ(GL_CreatePage, asked) << "as it stands, or for the key that is shown";
    }
    // What follows such a press takes its time.
    Pass(10);
    for (int id : {20, 33, 18, 21, 38, 49, 50, 51, 52}) {
        Press(id);
        EXPECT_EQ(bt_find(id)->redraw, id == 20 || id == 33 || id == 18) << id;
    }
}

TEST_F(Buttons, WhatCannotBeUsedTakesNoPressAndAChatteringActionOne)
{
    BT_SetDisable(20, 1);
    BT_SetCutoff(21, 1);
    Press(20);
    Press(21);
    BT_SetDisable(20, 0);
    BA_SetDefaultButton(1);
    EXPECT_THAT(Pressed(20), IsEmpty());
    BA_SetDefaultButton(0);
    EXPECT_THAT(Pressed(20), testing::SizeIs(1));
    Press(36);
    Press(36);
    Pass(100);
    Press(36);
    EXPECT_THAT(Told(), ElementsAre("LOCAL@Test@Go 2 0"));
    Pass(60);
    Press(36);
    EXPECT_THAT(Told(), ElementsAre("LOCAL@Test@Go 2 0"));
}

TEST_F(Buttons, ATallyOfItsPathSetsTheStateAndThatOfADependencyTheUse)
{
    BT_Proc(MSG_TALLY, Arg("M/E-1@Key1@Invetr"), Arg("true"), MsgArg(Hash("M/E-1@Key1@Invert")), 0);
    EXPECT_EQ(BT_GetStatus(20), BT_NO_TALLY) << "the same sum is not the same path";
    Tally("M/E-1@Key1@Type@Key Type", "Linear");
    EXPECT_EQ(BT_GetStatus(17), BT_OFF);
    EXPECT_EQ(BT_GetStatus(18), BT_ON);
    Tally("M/E-1@Key1@Invert", "true");
    EXPECT_EQ(BT_GetOnOff(20), 1);
    Tally("M/E-1@Key1@Type@Auto", "true");
    EXPECT_EQ(BT_GetStatus(21), BT_NO_TALLY) << "an action has no state";
    Tally("M/E-1@Key1@Type@Key Type", "Linear");
    EXPECT_EQ(BT_GetVisible(20), BT_DISABLED);
    Tally("M/E-1@Key1@Type@Key Type", "Chroma");
    EXPECT_EQ(BT_GetVisible(20), BT_ENABLED);
    BT_SetCutoff(20, 1);
    Tally("M/E-1@Key1@Type@Key Type", "Linear");
    EXPECT_EQ(BT_GetVisible(20), BT_CUTOFF) << "a tally does not bring it back";
}

TEST_F(Buttons, TheFirstTouchOfAButtonThatIsOnFetchesTheKnobsAndTheyGoWithItsState)
{
    Tally("M/E-1@Key1@Type@Key Type", "Luminance");
    EXPECT_THAT(Pressed(17), IsEmpty());
    EXPECT_EQ(BT_GetKnobAssign(), 17);
    EXPECT_THAT(Pressed(17), ElementsAre("put M/E-1@Key1@Type@Key Type#Luminance"));

    BT_SetStatus(35, BT_ON);
    Press(35);
    Press(35);
    EXPECT_THAT(Told(), ElementsAre("LOCAL@Test@Mode 1 1", "LOCAL@Test@Mode 1 0"));
    EXPECT_EQ(BT_GetKnobAssign(), 35);
    Press(18);
    EXPECT_EQ(BT_GetKnobAssign(), 18);
    Tally("M/E-1@Key1@Type@Key Type", "Luminance");
    EXPECT_EQ(BT_GetKnobAssign(), -1) << "the server chose another";
    Tally("M/E-1@Key1@Type@Key Type", "Linear");
    EXPECT_EQ(BT_GetKnobAssign(), 18) << "the one that was pressed last gets them back";
}

TEST_F(Buttons, AButtonThatCannotBeUsedLetsGoOfTheKnobs)
{
    for (auto disable : {BT_SetDisable, BT_SetCutoff, BT_SetCutoffEx}) {
        Press(17);
        ASSERT_EQ(BT_GetKnobAssign(), 17);
        ASSERT_EQ(CreateWindow(WINDOW_KNOB_TRIM, "Clip"), 0);
        disable(17, 1);
        EXPECT_EQ(BT_GetKnobAssign(), -1);
        EXPECT_EQ(GetWindow(), WINDOW_NONE) << "a number for them is no longer entered";
        disable(17, 0);
    }
    Press(37);
    BT_Create(nullptr, 0);
    EXPECT_EQ(BT_GetKnobAssign(), -1);
    BT_Create(table, 0);
    EXPECT_EQ(BT_GetKnobAssign(), 37) << "the page remembers who had them";
}

using SpecialRows = ButtonPage;

TEST_F(SpecialRows, APageHasThirtyTwoButtonsAndTextsStayInTheirBuffers)
{
    for (int i = 0; i < BT_MAX + 2; i++)
        rows[i] = Button(17 + i, BT_TOGGLE, {""});
    Open(rows);
    EXPECT_TRUE(bt_find(17 + BT_MAX - 1));
    EXPECT_FALSE(bt_find(17 + BT_MAX));
    EXPECT_EQ(bt_first()[BT_MAX].id, -1);
    std::fill(std::begin(rows), std::end(rows), BT_TBL{});
    const std::string path(2 * CMD_SIZE, 'p');
    rows[0] = Button(17, BT_RADIO, {path.c_str(), "~@A#x"});
    Open(rows);
    const std::string cut = path.substr(0, CMD_SIZE - 1);
    EXPECT_EQ(bt_find(17)->cmd[0], cut);
    Press(17);
    Tally("M/E-1@Key1@Type@A", path.c_str());
    EXPECT_EQ(bt_find(17)->tally[1], cut);
    BT_UndecidedRequest(path.c_str(), 1);
}

TEST_F(SpecialRows, TheLookIsPushedForItsTimeAndALongActionForASecond)
{
    rows[0] = Button(17, BT_ACTION, {"~@A#*"});
    rows[1] = Button(18, BT_TOGGLE, {"~@B#*"});
    rows[2] = Button(17 + 64, BT_ACTION, {"~@C#*"});
    OpenTree({"Copy", "X"}, 0x31160000, rows);
    const BT_MEM *const action = bt_find(17), *const toggle = bt_find(18);
    Press(17);
    EXPECT_THAT(Pressed(18),
                ElementsAre("put Copy@X@A#true", "put Copy@X@C#true", "put Copy@X@B#true"))
        << "two that overlap both act";
    Pass(149);
    EXPECT_GT(toggle->pushed, 0);
    Pass(1);
    EXPECT_EQ(toggle->pushed, 0) << "only actions run longer";
    EXPECT_EQ(toggle->redraw, 1) << "it comes back up";
    Pass(849);
    EXPECT_EQ(toggle->redraw, 0);
    EXPECT_GT(action->pushed, 0);
    Pass(1);
    EXPECT_EQ(action->pushed, 0);
}

TEST_F(SpecialRows, WhatMovesOrGoesIsPaintedInOnePass)
{
    rows[0] = Button(17, BT_TOGGLE, {""});
    rows[1] = Button(18, BT_TOGGLE, {""});
    rows[0].group = rows[1].group = "Frame";
    Open(rows);
    Pass(10);
    const Rect first = {rows[0].x1, rows[0].y1, rows[0].x2, rows[0].y2};
    const auto key = PixelsIn(first);
    const auto black = std::vector<uint32_t>(key.size(), 0);
    EXPECT_EQ(PixelAt(rows[0].x1 - 5, rows[0].y1 + 10), 0x3C3C3Cu) << "the frame";
    const Display display;
    BT_SetCutoff(18, 1);
    Pass(10);
    EXPECT_EQ(PixelsIn(first), key) << "no black field between";
    EXPECT_EQ(PixelsIn({rows[1].x1, rows[1].y1, rows[1].x2, rows[1].y2}), black);
    EXPECT_EQ(PixelAt(rows[0].x2 + 4, rows[0].y1 + 10), 0x3C3C3Cu) << "the frame is narrower";
    EXPECT_EQ(bt_find(17)->redraw, 0) << "and nothing is painted twice";
    EXPECT_EQ(Display::Lacks(), "");
    BT_SetPosition(17, 400, 400, 484, 465);
    BT_SetGroup(17, "");
    Pass(10);
    EXPECT_EQ(PixelsIn({400, 400, 484, 465}), key);
    EXPECT_EQ(PixelsIn(first), black) << "the old place is erased";
    EXPECT_EQ(PixelAt(rows[0].x1 - 5, rows[0].y1 + 10), 0u) << "so is the frame";
}

TEST_F(Buttons, AllButtonsGoOutTogetherAndNobodyKeepsTheKnobs)
{
    for (const int owner : {17, 35}) { // with boxes, and with a link to none
        Open(table);
        BT_SetKnobAssign(owner);
        BT_SetCutoff(20, 1);
        BT_SetAllDisable(1);
        EXPECT_EQ(BT_GetKnobAssign(), -1) << owner;
        EXPECT_EQ(BT_GetVisible(18), BT_DISABLED);
        EXPECT_EQ(BT_GetVisible(20), BT_CUTOFF) << "what is not there stays away";
        BT_SetAllDisable(0);
        EXPECT_EQ(BT_GetVisible(18), BT_ENABLED);
    }
}

TEST_F(Buttons, ACommandCanBeReplaced)
{
    BT_SetStatus(20, BT_ON);
    Pass(10);
    EXPECT_EQ(BT_SetCommand(20, 0, "~@Other#*"), 0);
    EXPECT_EQ(BT_GetStatus(20), BT_NO_TALLY);
    EXPECT_EQ(bt_find(20)->redraw, 1);
    EXPECT_EQ(BT_SetCommand(99, 0, "~@X#*"), -1);
    EXPECT_EQ(BT_SetCommand(20, BT_COMMANDS, "~@X#*"), -1);
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("remove M/E-1@Key1@Invert", "add M/E-1@Key1@Type@Other"));
    Tally("M/E-1@Key1@Type@Other", "true");
    EXPECT_EQ(BT_GetOnOff(20), 1);
    // A box, and then another button, still follow the path that is left.
    static const NB_TBL box[] = {{.id = 1, .cmd = "~@Other"}, NB_END};
    NB_Create(box, "");
    (void)TakeQueuedCommands();
    BT_SetCommand(20, 0, "~@Third#*");
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("add M/E-1@Key1@Type@Third"));
    BT_SetCommand(21, 0, "~@Third#*");
    (void)TakeQueuedCommands();
    BT_SetCommand(20, 0, "~@Other#*");
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("add M/E-1@Key1@Type@Other"));
    BT_SetCommand(21, 0, "~@Fourth#*");
    EXPECT_THAT(TakeQueuedCommands(), Contains("remove M/E-1@Key1@Type@Third"));
}
