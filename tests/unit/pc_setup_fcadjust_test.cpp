// Format converters: which inputs are on the page, which knobs a mode has, what goes out.
#include "setup_desk.h"

const std::string ADJUST = "Engineering Setup@Switcher@Input@FC Adjust@";
constexpr uint32_t FC_PAGE = 0x73320007, FC6_PAGE = 0x73320002, FC3G_PAGE = 0x73320008;

struct FcAdjust : SetupTest {
    // The boxes that there are, in their order, each with what it turns.
    static std::string Knobs()
    {
        std::string text;
        for (const char* caption : {"Motion Sel", "EC Pos", "LB Pos", "Detail\nGain", "H/V"}) {
            char cmd[CMD_SIZE];
            double var = 0;
            if (NB_GetKnob_info(caption, cmd, &var, sizeof cmd) >= 0)
                text += (text.empty() ? "" : " ") + std::string(cmd).substr(ADJUST.size());
        }
        return text;
    }
    static double FarOf(int box, int there)
    {
        (void)NB_SetSelect(box);
        (void)NB_SendTrimValue(there);
        const Lines lines = TakeQueuedCommands();
        return lines.empty() ? -1 : atof(lines.back().substr(lines.back().find('#') + 1).c_str());
    }
};

TEST(FcFormatCheck, AChangeOfFormatNeedsItsKindOfConversion)
{
    static const struct {
        int a, b, c, d, e, f, pass;
    } cases[] = {
        {2, 1, 1, 4, 1, 0, 1}, {0, 1, 0, 2, 1, 1, 1}, {0, 1, 0, 4, 2, 0, 0}, {0, 1, 0, 3, 1, 0, 0},
        {2, 2, 1, 3, 2, 0, 1}, {0, 2, 0, 0, 2, 0, 1}, {0, 2, 0, 4, 2, 0, 0}, {4, 1, 0, 0, 1, 0, 1},
        {4, 1, 4, 0, 1, 0, 0}, {0, 5, 2, 3, 2, 0, 1}, {0, 5, 2, 4, 1, 0, 0}, {0, 4, 2, 4, 1, 0, 1},
        {3, 2, 0, 2, 2, 1, 1}, {3, 2, 0, 4, 2, 0, 0}, {3, 3, 2, 3, 2, 2, 1}, {3, 1, 2, 3, 2, 2, 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(fcadjust_format_check(c.a, c.b, c.c, c.d, c.e, c.f), c.pass)
            << c.a << c.b << c.c << " to " << c.d << c.e << c.f;
}

TEST_F(FcAdjust, OnlyTheInputsOfTheConverterAreSubscribedAndShown)
{
    (void)Tell("Engineering Setup@Panel@Xpt Assign@Source@List#9,CAM 9");
    const Lines opened = Open(FC_PAGE);
    EXPECT_THAT(opened, Contains("add " + ADJUST + "Convert Mode@3"));
    EXPECT_THAT(opened, Contains("add Engineering Setup@Switcher@Input@FC Input Select@FC1"));
    EXPECT_THAT(opened, Not(Contains("add " + ADJUST + "Convert Mode@4")));
    EXPECT_THAT(opened, Contains("add " + ADJUST + "EC Pos Center@3"));
    EXPECT_THAT(opened, Contains("add " + ADJUST + "LB Pos Center@0"));
    const Lines changed = Choose(BTN_FCADJUST_GROUP, 2);
    EXPECT_THAT(changed, Contains("remove " + ADJUST + "H/V@0"));
    EXPECT_THAT(changed, Contains("add " + ADJUST + "H/V@7"));
    for (const auto& [n, id] : {std::pair{4, 0}, {7, 3}, {3, -1}, {8, -1}, {-1, -1}})
        EXPECT_EQ(fcadjust_n_to_id(n), id) << n;
    TellAll(ADJUST, {"Convert Mode@4#1", "Convert Mode@0#2", "Aspect Type@7#Squeeze",
                     "Convert Mode@99#1", "Convert Mode@#1"});
    EXPECT_EQ(Row(0, 4), "5||Up|");
    EXPECT_EQ(Row(3, 5), "8||||Squeeze");
    TellAll("Engineering Setup@Switcher@Input@FC Input Select@",
            {"FC1#1-4", "FC2#9-12", "FC2#none", "FC22#1-4"});
    EXPECT_EQ(Row(0, 4), "9|CAM 9|Up|") << "the sources that were chosen for it";
    EXPECT_THAT(Choose(BTN_FCADJUST_GROUP, 1), Contains("add " + ADJUST + "H/V@0"));
    (void)Choose(BTN_FCADJUST_GROUP, 2);
    const Lines left = Leave();
    EXPECT_THAT(left, Contains("remove " + ADJUST + "Convert Mode@4"));
    EXPECT_THAT(left, Contains("remove " + ADJUST + "FC Signal Format"));
}

TEST_F(FcAdjust, AModeHasItsKnobsOfTheCurrentInput)
{
    // The mode, the type and its position; knobs and keys: a motion is read as soon as it has one.
    static const std::tuple<uint32_t, std::string, std::string, std::string, std::string,
                            std::vector<int>>
        cases[] = {
            {FC_PAGE, "0", "", "EC Pos Mode@0#0", "", {}},
            {FC_PAGE, "3", "", "EC Pos Mode@0#0", "Motion Sel@0", {}},
            {FC_PAGE, "1", "Edge Crop", "EC Pos Mode@0#0", "Motion Sel@0", {49, 37}},
            {FC_PAGE, "2", "Edge Crop", "EC Pos Mode@0#1", "Motion Sel@0 EC Pos@0", {49, 37, 38}},
            {FC6_PAGE, "2", "Letter Box", "LB Pos Mode@0#1", "Motion Sel@0 LB Pos@0", {49, 53, 54}},
        };
    for (const auto& [page, mode, type, position, knobs, keys] : cases) {
        SetupFcAdjust_Reset();
        (void)Open(page);
        Lines sent;
        for (const std::string& line :
             {"Convert Mode@0#" + mode, "Aspect Type@0#" + type, position})
            for (const std::string& command : Tell(ADJUST + line))
                sent.push_back(command);
        EXPECT_EQ(Knobs(), knobs) << mode << type;
        EXPECT_EQ(Usable({BTN_FCADJUST_TYPE, BTN_FCADJUST_EC_MODE, BTN_FCADJUST_EC_CENTER,
                          BTN_FCADJUST_LB_MODE, BTN_FCADJUST_LB_CENTER}),
                  keys)
            << mode << type;
        EXPECT_EQ(std::ranges::count(sent, "read " + ADJUST + "Motion Sel@0") > 0, !knobs.empty());
        (void)Leave();
    }
    (void)Open(FC_PAGE);
    TellAll(ADJUST, {"Convert Mode@1#1", "Enhancer Mode@1#1"});
    (void)PushIn(1, BTN_FCADJUST_ENHANCER_ADJUST);
    EXPECT_EQ(Knobs(), "Detail Gain@1 H/V@1");
    (void)Leave();
    (void)Open(FC3G_PAGE);
    const std::string adjust = ADJUST.substr(0, ADJUST.size() - 1) + " 3G@";
    TellAll(adjust, {"Convert Mode@0#2", "Aspect Type@0#Letter Box", "LB Pos Mode@0#1"});
    char cmd[CMD_SIZE];
    double var = 0;
    EXPECT_GE(NB_GetKnob_info("LB Pos", cmd, &var, sizeof cmd), 0);
    EXPECT_EQ(cmd, adjust + "LB Pos@0");
    EXPECT_EQ(NB_GetKnob_info("Motion Sel", cmd, &var, sizeof cmd), -1);
}

TEST_F(FcAdjust, TheAspectLimitsThePositions)
{
    (void)Open(FC_PAGE);
    TellAll(ADJUST, {"Convert Mode@0#2", "Aspect Type@0#Edge Crop", "EC Pos Mode@0#1", "Aspect@0#0",
                     "EC Pos@0#3"});
    EXPECT_EQ(FarOf(2, 1000), 100);
    EXPECT_EQ(FarOf(2, -1000), -100);
    (void)Tell(ADJUST + "EC Pos Center@0#false");
    EXPECT_EQ(BT_GetStatus(BTN_FCADJUST_EC_CENTER), BT_OFF);
    (void)Tell(ADJUST + "EC Pos Center@0#true");
    EXPECT_EQ(BT_GetStatus(BTN_FCADJUST_EC_CENTER), BT_ON);
    (void)Tell(ADJUST + "Aspect@0#1");
    EXPECT_EQ(FarOf(2, 1000), 40);
    EXPECT_EQ(FarOf(2, -1000), -40);
    EXPECT_EQ(BT_GetStatus(BTN_FCADJUST_ASPECT), BT_ON);
}

TEST_F(FcAdjust, APressGoesOutAtOnceAndOnlyTheAnswerShowsIt)
{
    (void)Open(FC_PAGE);
    TellAll(ADJUST, {"Convert Mode@2#2", "Aspect Type@2#Edge Crop", "EC Pos Mode@2#1",
                     "FC Signal Format#0,1,0"});
    SelectRow(2);
    for (const auto& [key, line] : {std::pair{34, "Convert Mode@2#1"},
                                    {BTN_FCADJUST_TYPE + 1, "Aspect Type@2#Letter Box"},
                                    {BTN_FCADJUST_EC_MODE, "EC Pos Mode@2#0"},
                                    {BTN_FCADJUST_EC_CENTER, "EC Pos@2#0"}})
        EXPECT_THAT(Push(key), ElementsAre("put " + ADJUST + line));
    EXPECT_EQ(Row(2, 5), "3||Down||Edge Crop");
    EXPECT_THAT(Push(22), AllOf(Contains("put " + ADJUST + "Default#2"),
                                Contains("read " + ADJUST + "LB Pos@2")));
    EXPECT_THAT(Choose(BTN_FCADJUST_FORMAT, 5),
                ElementsAre("put " + ADJUST + "FC Signal Format#4,1,0"));
    EXPECT_THAT(Choose(BTN_FCADJUST_FORMAT, 4), IsEmpty()) << "1080i is not for this kind";
    Dismiss();
}
