#include "a_nb_column.h"

// A box a state. The second layer leaves slot 5 empty.
static const NB_TBL table[] = {
    Box(1, "Clip", NB_2, 0, 100, "Clip"),
    Box(2, "Gain", NB_2, -100, 100, "Gain"),
    Box(3, "Filter", NB_INT, 1, 9, "Filter"),
    Box(4, "Hue", NB_2, 0, 359.99, "Hue"),
    Box(5, "Level", NB_4, 1, 1, "Level"),
    Box(17, "Clip\nLevel", NB_1, 109.5, -7.5, "Back"),
    Box(18, "Duration", NB_TC, 0, 1800, "Time"),
    Box(19, "Delay", NB_TC, -1, 1800, "Delay"),
    {.id = 20, .caption = "Limit", .type = NB_INT, .max = 9, .cmd = "Limit", .zero = "None"},
    NB_END,
};

struct KnobSheet : KnobColumn {
    void SetUp() override
    {
        KnobColumn::SetUp();
        SYS_FrameRate = 30;
        SYS_Format_Size = 0; // 30 frames a second
        TDL_FillRectS(0, 0, 799, 599, 0x1F1F1F);
        Open(table, "Chroma");
    }
    static testing::AssertionResult Matches(const char* name)
    {
        Pass(0);
        return MatchesGolden(name, {700, 70, 799, 550});
    }
};

// Off, selected, held at the end of its range, without a value, and without a range to be in.
TEST_F(KnobSheet, EachStateLooksItsOwn)
{
    Tally("Clip", "37.5");
    Tally("Gain", "-100");
    Tally("Filter", "9");
    Tally("Level", "2");
    NB_SetSelect(2);
    GL_MouseSliderControl = 1;
    PressSlot(3);
    EXPECT_TRUE(Matches("knob_states"));
}

// The key of the title held down; a bar that runs backwards, a time code, a text in place of one.
TEST_F(KnobSheet, TheOtherLayerAndWhatIsNotANumber)
{
    Open(table, "Border/\nCrop"); // one word
    Pass(0);
    PressTitle();
    Tally("Back", "90");
    Tally("Time", "1290");
    Tally("Delay", "-1");
    Tally("Limit", "0.4");
    NB_SetStrVar(19, "Auto");
    EXPECT_TRUE(Matches("knob_layer"));
}
