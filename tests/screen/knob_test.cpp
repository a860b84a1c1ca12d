#include "a_nb_column.h"

// A box a state. The second layer leaves slots 4 and 5 empty.
static const NB_TBL table[] = {
    {.id = 1, .caption = "Clip", .type = NB_2, .min = 0, .max = 100, .cmd = "Clip"},
    {.id = 2, .caption = "Gain", .type = NB_2, .min = -100, .max = 100, .cmd = "Gain"},
    {.id = 3, .caption = "Filter", .type = NB_INT, .min = 1, .max = 9, .cmd = "Filter"},
    {.id = 4, .caption = "Hue", .type = NB_2, .min = 0, .max = 359.99, .cmd = "Hue"},
    {.id = 5, .caption = "Level", .type = NB_4, .min = 1, .max = 1, .cmd = "Level"},
    {.id = 17, .caption = "Clip\nLevel", .type = NB_1, .min = 109.5, .max = -7.5, .cmd = "Back"},
    {.id = 18, .caption = "Duration", .type = NB_TC, .min = 0, .max = 1800, .cmd = "Time"},
    {.id = 19, .caption = "Delay", .type = NB_TC, .min = -1, .max = 1800, .cmd = "Delay"},
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
    Pass(0);
    PressTitle();
    Tally("Back", "90");
    Tally("Time", "1290");
    Tally("Delay", "-1");
    NB_SetStrVar(19, "Auto");
    EXPECT_TRUE(Matches("knob_layer"));
}

TEST_F(KnobSheet, ATableOfOneLayerHasNoKeyAndTheBlankOneNoBoxes)
{
    NB_Create(NB_Non, "Key\nPosition");
    EXPECT_TRUE(Matches("knob_blank"));
}
