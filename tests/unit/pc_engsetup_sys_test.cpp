// The System pages of engineering setup: what they ask, show and send.
#include "pc_engsetup_sys.h"
#include "setup_desk.h"

namespace
{
constexpr uint32_t FORMAT_PAGE = 0x73130000;
constexpr int YES = 1, NO = 2;
const std::string FORMAT = "Engineering Setup@System@Format@";

struct FormatPage : SetupTest {
    void SetUp() override
    {
        SetupTest::SetUp();
        EngSetupFormat_Reset();
        (void)Open(FORMAT_PAGE);
        for (const char* line :
             {"Video Format@PNL1#29.97/59.94,1080i", "Video Format2@SWR1#3,6,0",
              "Video Format2@SWR2#3,6,0", "Reference@PNL1#BB", "Reference@SWR1#BB",
              "Reference@SWR2#BB", "Reference@DME1#BB", "Reference@DME2#BB", "Reference@DME3#BB",
              "Switcher Aspect#SWR1,16:9,16:9,16:9,16:9,16:9,16:9,16:9",
              "Switcher Aspect#SWR2,16:9,16:9,16:9,16:9,16:9,16:9,16:9",
              "DME Aspect#DME1,16:9,16:9,16:9,16:9", "Video Format@DME1#29.97/59.94,1080i"})
            (void)Tell(FORMAT + line);
    }
    void TearDown() override
    {
        (void)Leave();
        EngSetupFormat_Reset();
        SetupTest::TearDown();
    }
    static void ChooseSignal(int popup)
    {
        (void)Push(BTN_FORMAT_SIGNAL);
        (void)Answer(popup);
    }
};
} // namespace

TEST_F(FormatPage, ListsPanelsSwitchersAndEffectsUnits)
{
    ASSERT_EQ(LS_GetNData(1), 6);
    EXPECT_EQ(Row(0, 4), "PNL1|1080i/59.94||BB");
    EXPECT_EQ(Row(1, 4), "SWR1|1080i/59.94|16:9|BB");
    EXPECT_EQ(Row(3, 4), "DME1|1080i/59.94|16:9|BB");
    EXPECT_THAT(Usable({BTN_SETUP_CLEAR, BTN_SETUP_EXECUTE, BTN_FORMAT_WIDE}), testing::IsEmpty());
}

TEST_F(FormatPage, TheSignalFormatIsOneForAllAndSetsTheReferenceItNeeds)
{
    SelectRow(1);
    ChooseSignal(7); // 1080PsF/23.98, which no BB can lock
    EXPECT_EQ(Row(0, 4), "PNL1|1080PsF/23.98*||Tri Sync*");
    EXPECT_EQ(Row(2, 4), "SWR2|1080PsF/23.98*|16:9|Tri Sync*");
    EXPECT_EQ(Row(3, 4), "DME1|1080i/59.94|16:9|Tri Sync*");
    EXPECT_EQ(Usable({BTN_FORMAT_TRI, BTN_FORMAT_BB}), std::vector<int>{BTN_FORMAT_TRI});
    EXPECT_THAT(Push(BTN_SETUP_CLEAR), testing::IsEmpty());
    EXPECT_EQ(Row(2, 4), "SWR2|1080i/59.94|16:9|BB");
    ChooseSignal(7);
    (void)Push(BTN_SETUP_EXECUTE);
    EXPECT_THAT(Answer(NO), testing::IsEmpty());
    (void)Push(BTN_SETUP_EXECUTE);
    const Lines sent = Answer(YES);
    ASSERT_EQ(sent.size(), 15u);
    EXPECT_EQ(sent[0], "put " + FORMAT + "Reference@PNL1#Tri Sync");
    EXPECT_EQ(sent[1], "read " + FORMAT + "Reference@PNL1");
    EXPECT_EQ(sent[12], "put " + FORMAT + "Video Format2@SWR1#3,0,1");
    EXPECT_EQ(sent[14], "put " + FORMAT + "Video Format@PNL1#23.976,1080PsF");
}

TEST_F(FormatPage, ReferencesThatShareAnInputChangeTogether)
{
    SelectRow(3);
    (void)Push(BTN_FORMAT_TRI);
    EXPECT_EQ(Row(0, 4), "PNL1|1080i/59.94||BB");
    EXPECT_EQ(Row(1, 4), "SWR1|1080i/59.94|16:9|Tri Sync*");
    EXPECT_EQ(Row(2, 4), "SWR2|1080i/59.94|16:9|BB");
    EXPECT_EQ(Row(4, 4), "DME2|||Tri Sync*");
    EXPECT_EQ(Row(5, 4), "DME3|||BB");
    EXPECT_EQ(BT_GetStatus(BTN_FORMAT_TRI), BT_ON);
    SelectRow(0);
    EXPECT_EQ(BT_GetStatus(BTN_FORMAT_BB), BT_ON);
}

TEST_F(FormatPage, TheAspectCanGoAlone)
{
    SelectRow(1);
    (void)Push(BTN_FORMAT_NARROW);
    SelectRow(3);
    (void)Push(BTN_FORMAT_NARROW);
    SelectRow(1);
    ChooseSignal(5);
    EXPECT_EQ(Row(1, 4), "SWR1|1080i/50*|4:3*|BB");
    (void)Push(BTN_FORMAT_ASPECT_EXECUTE);
    EXPECT_THAT(Answer(YES),
                ElementsAre("put " + FORMAT + "Switcher Aspect#SWR1,4:3,4:3,4:3,4:3,4:3,4:3,4:3",
                            "put " + FORMAT + "DME Aspect#DME1,4:3,4:3,4:3,4:3"));
    (void)Push(BTN_FORMAT_ASPECT_CLEAR);
    EXPECT_EQ(Row(1, 4), "SWR1|1080i/50*|16:9|BB");
    EXPECT_THAT(Usable({BTN_FORMAT_ASPECT_CLEAR, BTN_FORMAT_ASPECT_EXECUTE}), testing::IsEmpty());
}

TEST_F(FormatPage, AWordThatTwoFormatsShareMeansTheOneInHandOrTheSwitchers)
{
    SelectRow(0);
    ChooseSignal(14); // 1080P/29.97
    (void)Tell(FORMAT + "Video Format2@SWR1#3,3,2");
    (void)Tell(FORMAT + "Video Format@PNL1#---,1080p");
    (void)Tell(FORMAT + "Video Format@DME1#---,1080p");
    EXPECT_EQ(Row(0, 4), "PNL1|1080P/29.97||BB");
    EXPECT_EQ(Row(3, 4), "DME1|1080P/29.97|16:9|BB");
    (void)Tell(FORMAT + "Video Format2@SWR1#9,9,9");
    EXPECT_EQ(Row(1, 4), "SWR1|9,9,9|16:9|BB") << "unknown to the table";
}

TEST_F(FormatPage, ALockedPageRefusesAllButTheWayOut)
{
    SetupIndex_Build();
    SetupMenu[SetupIndex_Find(FORMAT_PAGE)].lock = 1;
    SetupLock.lock = 1;
    SelectRow(1);
    EXPECT_THAT(Push(BTN_FORMAT_TRI), testing::IsEmpty());
    (void)Push(BTN_FORMAT_SIGNAL);
    EXPECT_EQ(Pane_GetActiveID(), 0);
    EXPECT_EQ(Row(1, 4), "SWR1|1080i/59.94|16:9|BB");
    (void)Push(51);
    EXPECT_EQ(GL_CreatePage, 0x73130005u);
    SetupLock.lock = 0;
    (void)Push(BTN_FORMAT_TRI);
    EXPECT_EQ(Row(1, 4), "SWR1|1080i/59.94|16:9|Tri Sync*");
}

TEST_F(FormatPage, AuxiliaryOutputsTakeTheirFormatsInOnePut)
{
    (void)Open(0x73130005);
    (void)Tell("Engineering Setup@Switcher@Output@Signal Format#0,1,0,0,");
    (void)Tell("Engineering Setup@Switcher@Output@Assign#2,AUX2,0");
    EXPECT_EQ(Row(1, 4), "2  (1080i)|AUX2||1080i");
    SelectRow(0);
    (void)Push(35);
    EXPECT_EQ(Row(0, 4), "1  (59.94Hz(2x))|||59.94Hz(2x)*");
    (void)Push(BTN_SETUP_EXECUTE);
    const Lines sent = Answer(YES);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_THAT(sent[0], testing::StartsWith(
                             "put Engineering Setup@Switcher@Output@Signal Format#2,1,0,0,"));
}
