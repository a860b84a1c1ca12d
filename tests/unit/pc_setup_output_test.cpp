// The buses of the outputs: set, executed, refused while inhibited.
#include "pane_private.h"
#include "setup_desk.h"

const std::string OUTPUT = "Engineering Setup@Switcher@Output@";

struct OutputAssign : SetupTest {
    void SetUp() override
    {
        SetupTest::SetUp();
        (void)Open(0x73330001);
        TellAll(OUTPUT, {"Assign#1,AUX1,0", "Assign#2,AUX2,3", "Assign#3,AUX3,0", "Source#2,CAM7",
                         "Inhibit#1,false", "Inhibit#2,false", "Inhibit#3,true"});
    }
    static void Set(int row, int bus)
    {
        SelectRow(row);
        (void)Choose(BTN_OUTPUT_BUS, bus);
        (void)Push(BTN_OUTPUT_SET);
    }
};

TEST_F(OutputAssign, ABusIsSetThenExecutedAndAnInhibitedOutputRefuses)
{
    EXPECT_EQ(Usable({BTN_OUTPUT_SET}), std::vector<int>{}) << "no bus in hand";
    (void)Push(BTN_OUTPUT_BUS);
    EXPECT_STREQ(pane_top()->button[0].caption, "AUX1");
    (void)Answer(0);
    Set(1, 49 + 5);
    EXPECT_EQ(Row(1, 4), "2|M/E-2 PVW*|CAM7|---");
    EXPECT_EQ(Caption(BTN_OUTPUT_BUS), "Output\nAssign\nM/E-2 PVW");
    Set(2, 9);
    EXPECT_EQ(Row(2, 4), "3|AUX3||Inhibit");
    Dismiss();
    (void)Push(BTN_OUTPUT_INHIBIT);
    Set(2, 9);
    (void)PushIn(0, BTN_OUTPUT_SET);
    (void)Push(BTN_OUTPUT_INHIBIT);
    EXPECT_THAT(Push(BTN_SETUP_EXECUTE), ElementsAre("put " + OUTPUT + "Inhibit#3,false",
                                                     "put " + OUTPUT + "Assign#1,AUX9,0",
                                                     "put " + OUTPUT + "Assign#2,M/E-2 PVW,3",
                                                     "put " + OUTPUT + "Assign#3,AUX9,0",
                                                     "put " + OUTPUT + "Inhibit#1,true"));
}

TEST_F(OutputAssign, AConverterThatAGpiInputWorksIsSeen)
{
    const std::string level =
        "Engineering Setup@Switcher@Device Interface@GPI Input@H/L Set@FC Input/Output@";
    const Lines opened = Open(0x73330001);
    EXPECT_EQ(
        std::ranges::count_if(
            opened, [&](const std::string& line) { return line.starts_with("add " + level); }),
        8);
    (void)Tell(level + "6#FC3,Input,Output");
    EXPECT_EQ(Row(1, 5), "2|AUX2|CAM7|---|6");
    TellAll(level, {"9#FC3,Input,Output", "6#None,Input,Output"});
    EXPECT_EQ(Row(1, 5), "2|AUX2|CAM7|---|");
}
