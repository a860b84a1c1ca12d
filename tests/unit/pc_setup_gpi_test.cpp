// GPI ports: what the server tells of them, what the installer makes of them, what goes out.
#include "pc_setup_gpi.h"
#include "setup_desk.h"

const std::string PORTS = "Engineering Setup@Switcher@Device Interface@GPI Output@";
constexpr uint32_t OUTPUT_PAGE = 0x73370007, INPUT_PAGE = 0x73370004, FC_PAGE = 0x73370006;
enum : int { KEY_TRIGGER = 33, KEY_ACTION = 34, KEY_TARGET = 35, KEY_TEST = 37 };

struct Gpi : SetupTest {
    static void OpenOutput()
    {
        (void)Open(OUTPUT_PAGE);
        TellAll(PORTS, {"Trigger Type@1#Rising Edge,0x02,0x0A", "Action Type@1@1#5,1,0,3",
                        "Action Type Region@1@1#0,,0,0", "Trigger Type@2#Level,0x00,0xFF",
                        "Action Type@2@1#0,0,0,0", "Action Type Region@2@1#8,User1,12,0"});
    }
};

TEST_F(Gpi, EachPortIsAskedForWithItsEightValuesLeftAgainAndFiredByItsNumber)
{
    const Lines opened = Open(OUTPUT_PAGE);
    const Lines left = Leave();
    for (const char* path : {"Trigger Type@1", "Trigger Type@8", "Action Type@1@1",
                             "Action Type@8@1", "Action Type Region@8@1"}) {
        EXPECT_THAT(opened, Contains("add " + PORTS + path));
        EXPECT_THAT(left, Contains("remove " + PORTS + path));
    }
    EXPECT_THAT(opened, Not(Contains("add " + PORTS + "Trigger Type@9")));

    OpenOutput();
    EXPECT_EQ(Row(0, 7), "1|Rising Edge|2|10|Key On|M/E-1 Key3|");
    EXPECT_EQ(Row(1, 7), "2|Level|0|255|Effect Recall|User1|12");
    TellAll(PORTS, {"Action Type@2@1#99,0,0,0", "Action Type@2@1#5,9,0,1", "Action Type@1@1#4",
                    "Action Type@9@1#5,1,0,1", "Action Type@2@2#5,1,0,1", "Action Type@2#5,1,0,1",
                    "Trigger Type@0#Level,1,1"});
    EXPECT_EQ(Row(0, 7), "1|Rising Edge|2|10|Key On|M/E-1 Key3|") << "a line that is cut short";
    EXPECT_EQ(Row(1, 6), "2|Level|0|255|Key On|") << "a bank that is none";
    (void)Tell(PORTS + "Action Type@2@1#4,2,0,4");
    EXPECT_EQ(Row(1, 6), "2|Level|0|255|Xpt Hold|M/E-2 Key3 Key4");
    (void)Tell("Engineering Setup@Switcher@Config@Key Config#M/E-1,Key3 Key PVW");
    EXPECT_EQ(Row(1, 6), "2|Level|0|255|Xpt Hold|M/E-2 Key3 Key4") << "another bank";
    (void)Tell("Engineering Setup@Switcher@Config@Key Config#M/E-2,Key3 Key PVW");
    EXPECT_EQ(Row(1, 6), "2|Level|0|255|Xpt Hold|M/E-2 Key3 Key PVW");
    EXPECT_THAT(PushIn(4, KEY_TEST), ElementsAre("put " + PORTS + "Test Fire@5#"));
}

TEST_F(Gpi, ExecuteSendsWhatHasChangedInTheFormOfItsAction)
{
    OpenOutput();
    SelectRow(0);
    Choose(KEY_TRIGGER, 4);
    SendMessage(LMSG_KNOBVAR, 2, 255, 0, 0);
    Choose(KEY_ACTION, 12); // a snapshot takes a region and a register
    EXPECT_EQ(Row(0, 7), "1|Any Edge*|2|255*|Snapshot Recall*|M/E-1*|1*");
    SendMessage(LMSG_KNOBVAR, 3, 7, 0, 0);
    Choose(KEY_TARGET, 7);
    SelectRow(1);
    Choose(KEY_ACTION, 6); // key on: its first key, no register
    Choose(KEY_TARGET, 8 * 1 + 8);
    SelectRow(2);
    Choose(KEY_ACTION, 14);
    EXPECT_THAT(Push(BTN_SHEET_EXECUTE),
                ElementsAre("put " + PORTS + "Action Type Region@1@1#11,User1,7,0",
                            "put " + PORTS + "Action Type@2@1#5,1,0,8",
                            "put " + PORTS + "Action Type@3@1#13,0,1,0",
                            "put " + PORTS + "Trigger Type@1#Any Edge,0x02,0xFF"));
    (void)Push(BTN_SHEET_CLEAR);
    EXPECT_EQ(Row(1, 7), "2|Level|0|255|Effect Recall|User1|12");
}

TEST_F(Gpi, InputsHaveTheirOwnPlaceAndAConverterItsTwoSides)
{
    const std::string input = "Engineering Setup@Switcher@Device Interface@GPI Input@";
    (void)Open(INPUT_PAGE);
    TellAll(input, {"Trigger Type@3#Level", "Action Type@3@1#1,0,0,0"});
    EXPECT_EQ(Row(2, 5), "3|Level|Cut|P/P|");
    (void)Leave();
    (void)Open(FC_PAGE);
    (void)Tell(input + "H/L Set@FC Input/Output@2#FC3,Input,Output");
    SelectRow(1);
    EXPECT_EQ(Row(1, 4), "2|FC3|Input|Output");
    (void)Push(36); // low: an input
    EXPECT_THAT(Push(BTN_SHEET_EXECUTE),
                ElementsAre("put " + input + "H/L Set@FC Input/Output@2#FC3,Input,Input"));
}
