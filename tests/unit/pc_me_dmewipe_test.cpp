// The pages of the effects-unit wipes as the table opens them: of banks and of keys.
#include "a_pc.h"
#include "table_page.h"

constexpr uint32_t MODIFY_ME1 = 0x11650000;
constexpr uint32_t MODIFY_ME4 = 0x81650000;
constexpr int POSITION = 17, RELATIVE = 19, CROP = 20, CROP_4_3 = 21, SIZE = 22;
constexpr int CH1 = 35, CH2 = 36, CH3 = 37;
const std::string ASPECT = "Engineering Setup@System@Format@DME Aspect#";

struct MeDmeWipe : TablePage {
    std::string root; // of the paths of the page

    // The page with a pattern; all that this sends.
    Lines OpenWith(uint32_t id, const std::string& path, const std::string& pattern)
    {
        root = path;
        Lines sent = Open(id);
        for (const std::string& line : Tell(root + "@Pattern Select@Pattern#" + pattern))
            sent.push_back(line);
        return sent;
    }
    // An action key is let run out first.
    static Lines Press(int id)
    {
        Pass(1000);
        return TablePage::Press(id);
    }
    // Switch a function on as the server does, and give its button the knobs.
    void Own(const std::string& function, int button)
    {
        Tell(root + "@Modify@" + function + "@1#true");
        (void)Press(button);
        ASSERT_EQ(BT_GetKnobAssign(), button);
    }
    static Lines Enter(int box, double value)
    {
        (void)TakeQueuedCommands();
        NB_SendValue2(box, value);
        return TakeQueuedCommands();
    }
    // Lines with that verb, of paths and values of the function.
    Lines Sent(const std::string& verb, Lines ends, const std::string& function = "") const
    {
        for (std::string& end : ends)
            end.insert(0, verb + " " + root + "@Modify@" + function);
        return ends;
    }
    static bool Enabled(int id) { return BT_GetVisible(id) == BT_ENABLED; }
    static std::string Chosen()
    {
        std::string chosen;
        for (int id : {CH1, CH2, CH3})
            chosen += BT_GetOnOff(id) ? '1' : '0';
        return chosen;
    }
};

// --- Modify: channels ---

TEST_F(MeDmeWipe, WhatModifyAddsItRemovesInThisOrder)
{
    for (const auto& [page, path, pattern, channels] :
         {std::tuple{MODIFY_ME4, "M/E-4@DME Wipe", "2003", 2},
          {0x15650000, "M/E-1 SUB@DME Wipe", "9001", 3},
          // a key has one channel
          {0x14470003, "PGM/PST@DSK4@Transition@DME Wipe", "2003", 1}}) {
        const Lines opened = OpenWith(page, path, pattern);
        Lines ends;
        for (int ch = 1; ch <= channels; ch++)
            for (const char* what : {"Position@Position@", "Size@", "Crop Mode@Crop@"})
                ends.push_back(what + std::to_string(ch));
        for (const char* what : {"Position@Position@H@1", "Position@Position@V@1", "Size@Size@1",
                                 "Crop Mode@Crop@Top@1", "Crop Mode@Crop@Left@1",
                                 "Crop Mode@Crop@Right@1", "Crop Mode@Crop@Bottom@1"})
            ends.push_back(what);
        Lines expected = Sent("remove", ends);
        expected.insert(expected.begin(), {"remove " + root + "@Pattern Select@Pattern",
                                           "remove M/E-1@Key1@Processed Key@DME Status"});
        for (const std::string& line : expected)
            EXPECT_THAT(opened, Contains("add " + line.substr(strlen("remove ")))) << root;
        EXPECT_THAT(opened,
                    Contains(Sent("read", {"Position@Position@V@" + std::to_string(channels)})[0]));
        PC_Create(nullptr, 0);
        EXPECT_EQ(TakeQueuedCommands(), expected) << root;
    }
}

TEST_F(MeDmeWipe, ThePatternDecidesWhichChannelsThereAre)
{
    static const std::pair<const char*, int> cases[] = {
        {"2001", 2}, {"3999", 3}, {"1003", 0}, {"8001", 2}, {"9001", 3},
        {"7003", 0}, {"2000", 0}, {"12", 0},   {"x", 0},    {"4001", 0}};
    Open(MODIFY_ME1);
    for (const auto& [pattern, channels] : cases) {
        Tell(std::string("M/E-1@DME Wipe@Pattern Select@Pattern#") + pattern);
        EXPECT_EQ(Enabled(CH1) + Enabled(CH2) + Enabled(CH3), channels) << pattern;
        EXPECT_EQ(Enabled(RELATIVE), channels > 0) << pattern;
    }
}

TEST_F(MeDmeWipe, AnotherPatternLeavesNothingOfTheOneBeforeAndTheFirstTheKnobs)
{
    OpenWith(MODIFY_ME1, "M/E-1@DME Wipe", "3001");
    Own("Size", SIZE);
    (void)Press(CH3);
    const std::string other = root + "@Pattern Select@Pattern#1001";
    EXPECT_THAT(Tell(other), AllOf(Contains("remove M/E-1@DME Wipe@Modify@Size@3"),
                                   Contains("remove M/E-1@DME Wipe@Modify@Size@Size@3")));
    EXPECT_EQ(Chosen(), "100");
    EXPECT_EQ(BT_GetStatus(SIZE), BT_OFF);
    EXPECT_EQ(BT_GetKnobAssign(), -1);
    EXPECT_THAT(Tell(other), IsEmpty()) << "nothing new";

    OpenWith(MODIFY_ME1, "M/E-1@DME Wipe", "2003");
    for (int id : {POSITION, RELATIVE, CROP, SIZE, 33, 34, 49, 50, CH2})
        EXPECT_EQ(BT_GetStatus(id), BT_OFF) << id;
    Own("Size", SIZE);
    OpenWith(MODIFY_ME1, "M/E-1@DME Wipe", "2003");
    EXPECT_EQ(BT_GetKnobAssign(), SIZE);
    Tell(root + "@Modify@Size@1#false"); // switched off meanwhile
    EXPECT_EQ(BT_GetKnobAssign(), -1);
}

TEST_F(MeDmeWipe, OneChannelStaysChosen)
{
    static const std::tuple<const char*, std::vector<int>, const char*> cases[] = {
        {"2003", {CH2}, "110"},      {"2003", {CH1}, "010"},           {"2003", {CH1, CH2}, "100"},
        {"3003", {CH3, CH1}, "001"}, {"3003", {CH3, CH1, CH3}, "100"}, {"2003", {CH3}, "100"},
        {"1003", {CH2}, "100"},
    };
    for (const auto& [pattern, presses, chosen] : cases) {
        OpenWith(MODIFY_ME4, "M/E-4@DME Wipe", pattern);
        for (int id : presses)
            (void)Press(id);
        EXPECT_EQ(Chosen(), chosen) << pattern << " " << presses[0];
    }
}

TEST_F(MeDmeWipe, AChosenChannelIsSwitchedOnAndFollowedByTheKnobs)
{
    OpenWith(MODIFY_ME1, "M/E-1@DME Wipe", "2003");
    Own("Size", SIZE);
    const std::string size = root + "@Modify@Size@";
    const Lines sent = Press(CH1); // moves on to the second
    for (const char* what : {"Position@Position@2", "Size@2", "Crop Mode@Crop@2"})
        EXPECT_THAT(sent, Contains("put M/E-1@DME Wipe@Modify@" + std::string(what) + "#true"));
    EXPECT_THAT(sent, Contains("remove M/E-1@DME Wipe@Modify@Crop Mode@Crop@Top@1"));
    EXPECT_THAT(sent, Contains("add " + size + "Size@2"));
    EXPECT_THAT(sent, Contains("add " + size + "2")); // told anew as it is
    EXPECT_THAT(sent, Not(Contains("remove " + size + "2")));
    EXPECT_THAT(sent, Not(Contains(HasSubstr("@1#"))));
    Tell(size + "2#false"); // the server tells it as it is and then switches
    EXPECT_EQ(BT_GetKnobAssign(), -1);
    TellAll(root + "@Modify@", {"Crop Mode@Crop@2#true", "Size@1#true"}); // not the leading one
    EXPECT_EQ(BT_GetKnobAssign(), -1);
    EXPECT_NE(BT_GetStatus(SIZE), BT_ON);
    Tell(size + "2#true");
    EXPECT_EQ(BT_GetStatus(SIZE), BT_ON);
    EXPECT_EQ(BT_GetKnobAssign(), SIZE);
    TellAll(size, {"Size@1#70", "Size@2#30"});
    EXPECT_EQ(Shown("Size"), "30");
}

TEST_F(MeDmeWipe, LampsAndBoxesAreThoseOfTheLeadingChannel)
{
    OpenWith(MODIFY_ME1, "M/E-1@DME Wipe", "2003");
    (void)Press(CH2);
    Own("Crop Mode@Crop", CROP);
    TellAll(root + "@Modify@",
            {"Crop Mode@Crop@2#true", "Crop Mode@Crop@Left@1#-20", "Crop Mode@Crop@Left@2#-70",
             "Size@2#true", "Position@Position@H@1#-100", "Position@Position@V@1#100"});
    EXPECT_EQ(BT_GetStatus(33), BT_ON);
    EXPECT_EQ(BT_GetStatus(SIZE), BT_OFF);
    (void)Press(CH1); // the second leads, with its position off; all its values are known
    EXPECT_EQ(Shown("H"), "-70");
    EXPECT_EQ(BT_GetStatus(33), BT_OFF);
    EXPECT_EQ(BT_GetStatus(SIZE), BT_ON);
}

// --- Modify: knobs ---

TEST_F(MeDmeWipe, AQuickTurnOfThePositionIsWorthMoreThanItsStepsAndACornerIsLit)
{
    static const std::pair<const char*, const char*> cases[] = {
        {"1", "8.00"},      {"-2", "-32.00"},     {"18", "11536.00"},
        {"25", "11536.00"}, {"-25", "-11536.00"}, {"1e30", "11536.00"}};
    OpenWith(MODIFY_ME1, "M/E-1@DME Wipe", "1003");
    Own("Position@Position", POSITION);
    for (const auto& [counts, value] : cases)
        EXPECT_EQ(Tell(std::string("Panel@Common@Knob1#") + counts),
                  Sent("put", {std::string("Position@Position@V@1#diff") + value}));
    EXPECT_THAT(Tell("Panel@Common@Knob1#0"), IsEmpty());

    static const std::tuple<const char*, const char*, int> corners[] = {
        {"-100", "100", 33}, {"100", "100", 34},  {"-100.00", "-100.00", 49},
        {"100", "-100", 50}, {"100", "-99.9", 0}, {"nan", "-100", 50}};
    for (const auto& [h, v, lit] : corners) {
        TellAll(root + "@Modify@Position@Position@",
                {std::string("H@1#") + h, std::string("V@1#") + v});
        for (int id : {33, 34, 49, 50})
            EXPECT_EQ(BT_GetOnOff(id), id == lit) << h << "," << v;
    }
}

TEST_F(MeDmeWipe, AllChosenChannelsFollowAKnobAndRelativeOnesMoveAgainstEachOther)
{
    OpenWith(0x15650000, "M/E-1 SUB@DME Wipe", "3001");
    Own("Size", SIZE);
    (void)Press(CH3);
    EXPECT_EQ(Tell("Panel@Common@Knob0#2"),
              Sent("put", {"Size@Size@1#diff32.00", "Size@Size@3#diff32.00"}));
    EXPECT_EQ(Enter(1, 12.5), Sent("put", {"Size@Size@1#12.50", "Size@Size@3#12.50"}));
    Own("Position@Position", POSITION);
    (void)Press(RELATIVE);
    for (const int key : {CH2, CH1, CH1, CH2}) { // only the first two alone are a pair
        (void)Press(key);
        (void)Tell(root + "@Modify@Position@Position@2#true");
        EXPECT_THAT(Tell("Panel@Common@Knob0#1"),
                    AllOf(Not(IsEmpty()), Each(HasSubstr("#diff8.00"))));
    }
    const std::string pos = "M/E-4@DME Wipe@Modify@Position@Position@";
    OpenWith(MODIFY_ME4, "M/E-4@DME Wipe", "2003");
    Own("Position@Position", POSITION);
    (void)Press(RELATIVE);
    EXPECT_EQ(BT_GetStatus(RELATIVE), BT_ON);
    EXPECT_THAT(Tell("Panel@Common@Knob0#1"), ElementsAre("put " + pos + "H@1#diff8.00"))
        << "one channel alone has nothing to move against";
    (void)Press(CH2);
    EXPECT_THAT(Tell("Panel@Common@Knob0#1"),
                ElementsAre("put " + pos + "H@1#diff8.00", "put " + pos + "H@2#diff-8.00",
                            "read " + pos + "H@1", "read " + pos + "H@2"));
    static const std::tuple<double, const char*, const char*> cases[] = {
        {50, "25.00", "-25.00"}, {-30.5, "-15.25", "15.25"}, {0, "0.00", "0.00"}};
    for (const auto& [number, first, second] : cases)
        EXPECT_THAT(Enter(2, number),
                    ElementsAre("put " + pos + "V@1#" + first, "put " + pos + "V@2#" + second,
                                "read " + pos + "V@1", "read " + pos + "V@2"));
    TellAll(pos, {"H@1#30", "H@2#-10"});
    EXPECT_EQ(Shown("H Distance"), "40");
}

TEST_F(MeDmeWipe, ACropKnobMovesOppositeEdgesInwards)
{
    static const std::tuple<int, double, Lines> cases[] = {
        {1, -40, {"Right@1#40.00", "Left@1#-40.00"}},
        {1, 5, {"Right@1#0.00", "Left@1#0.00"}},
        {2, 30, {"Bottom@1#-30.00", "Top@1#30.00"}},
        {2, -5, {"Bottom@1#0.00", "Top@1#0.00"}},
        {3, -7.25, {"Right@1#7.25", "Left@1#-7.25", "Bottom@1#-7.25", "Top@1#7.25"}},
        {3, 7, {"Right@1#0.00", "Left@1#0.00", "Bottom@1#0.00", "Top@1#0.00"}},
    };
    // Banks differ in how a box tells its value.
    for (const auto& [page, path] : {std::pair{MODIFY_ME1, "M/E-1@DME Wipe"},
                                     {MODIFY_ME4, "M/E-4@DME Wipe"},
                                     {0x12370003, "M/E-2@Key3@Transition@DME Wipe"}}) {
        OpenWith(page, path, "1003");
        Own("Crop Mode@Crop", CROP);
        for (const auto& [box, value, edges] : cases)
            EXPECT_EQ(Enter(box, value), Sent("put", edges, "Crop Mode@Crop@"))
                << path << " " << box;
    }
}

TEST_F(MeDmeWipe, ATurnOfTheCropStartsFromWhatIsShownAndEndsAtItsLimits)
{
    OpenWith(MODIFY_ME1, "M/E-1@DME Wipe", "1003");
    Own("Crop Mode@Crop", CROP);
    const std::string crop = root + "@Modify@Crop Mode@Crop@";
    static const std::tuple<const char*, int, const char*, Lines> steps[] = {
        {"", 0, "0#3", {}}, // no value yet
        {"Left@1#-50", 0, "0#3", {"Right@1#49.24", "Left@1#-49.24"}},
        {"", 0, "0#3", {"Right@1#48.48", "Left@1#-48.48"}}, // faster than the server: they add up
        // another knob of the same edge goes on
        {"", 0, "2#3", {"Right@1#47.72", "Left@1#-47.72", "Bottom@1#-47.72", "Top@1#47.72"}},
        {"Left@1#-60", 499, "0#-3", {"Right@1#48.48", "Left@1#-48.48"}}, // late, or from elsewhere
        {"", 500, "0#3", {"Right@1#59.24", "Left@1#-59.24"}}, // a rested hand starts anew
        {"", 0, "0#-25", {"Right@1#100.00", "Left@1#-100.00"}},
        // the same sense crops, though this value falls
        {"Top@1#50", 0, "1#3", {"Bottom@1#-49.24", "Top@1#49.24"}},
    };
    for (const auto& [told, rest_ms, turn, edges] : steps) {
        if (*told)
            Tell(crop + told);
        Pass(rest_ms);
        EXPECT_EQ(Tell(std::string("Panel@Common@Knob") + turn),
                  Sent("put", edges, "Crop Mode@Crop@"))
            << turn;
    }
}

TEST_F(MeDmeWipe, TheDefaultKeyNamesWhatTheKnobTurns)
{
    static const std::tuple<int, const char*, int, Lines> cases[] = {
        {POSITION, "Position@Position", 2, {"Position@Position@V@1"}},
        {SIZE, "Size", 1, {"Size@Size@1"}},
        {CROP, "Crop Mode@Crop", 2, {"Crop Mode@Crop@Bottom@1", "Crop Mode@Crop@Top@1"}},
    };
    OpenWith(0x14270003, "PGM/PST@DSK2@Transition@DME Wipe", "1003");
    for (const auto& [button, function, box, paths] : cases) {
        Own(function, button);
        EXPECT_EQ(Default(box), Sent("default", paths));
    }
    Own("Position@Position", POSITION);
    (void)TakeQueuedCommands();
    (void)NB_SendValue2(2, 12);
    EXPECT_EQ(TakeQueuedCommands(), Sent("put", {"Position@Position@V@1#12.00"}));
}

// --- Modify: keys ---

TEST_F(MeDmeWipe, KeysSendForTheChosenChannelsAndACropForThoseThatHaveIt)
{
    static const std::pair<int, Lines> cases[] = {
        {CROP, {"Crop Mode@Crop@1#false", "Crop Mode@Crop@2#false"}}, // it is on and has the knobs
        {POSITION, {"Position@Position@1#true", "Position@Position@2#true"}},
        {18, {"Position@Center@1#true", "Position@Center@2#true"}},
        {CROP_4_3, {"Crop Mode@4:3 Crop@1#true", "Crop Mode@4:3 Crop@2#true"}},
        {49,
         {"Position@Position@H@1#-100.00", "Position@Position@V@1#-100.00",
          "Position@Position@H@2#-100.00", "Position@Position@V@2#-100.00"}},
    };
    OpenWith(MODIFY_ME4, "M/E-4@DME Wipe", "2003");
    (void)Press(CH2);
    Own("Crop Mode@Crop", CROP);
    Tell(ASPECT + "1,16:9,4,8");
    EXPECT_EQ(Enter(1, -10).size(), 2u); // the server hasn't switched the second on
    Tell(root + "@Modify@Crop Mode@Crop@2#true");
    EXPECT_EQ(Enter(1, -10).size(), 4u);
    for (const auto& [button, puts] : cases)
        EXPECT_EQ(Puts(Press(button)), Sent("put", puts)) << button;
}

// --- Modify: which wipe there is ---

TEST_F(MeDmeWipe, ABankWithoutItsWipeHasDeadKeys)
{
    enum { NONE = -1, MAIN_SIDE, SUB_SIDE, BOTH_SIDES };
    static const std::tuple<uint32_t, int, int, bool> cases[] = {
        {0x12650000, NONE, 0, false},       {0x12650000, SUB_SIDE, 1, true},
        {0x12650000, BOTH_SIDES, 1, false}, {0x16650000, MAIN_SIDE, 1, true},
        {0x16650000, SUB_SIDE, 1, false},   {0x16650000, SUB_SIDE, 0, true},
        {0x16630000, SUB_SIDE, 0, true},    {0x16640000, MAIN_SIDE, 1, true},
        {0x16610000, SUB_SIDE, 0, true},    {0x16370003, SUB_SIDE, 0, false}, // of a key
    };
    for (const auto& [page, side, sub_enable, off] : cases) {
        const bool is_key = isNowPageMeKey(page) != 0;
        GL_MEAssign[3] = -1;
        Open(page);
        GL_MEAssign[3] = side == NONE ? -1 : 2; // now: a request would be led to the other side
        GL_MainSubAssign[3] = side;
        SYS_DWSubEnable = sub_enable;
        for (const auto& object : Page->obj)
            if (object.type == OBJ_PC)
                PC_Create(static_cast<const PC_TBL*>(object.addr), 0);
        Tell(std::string(is_key ? "M/E-2@Key7@Transition" : "M/E-2") +
             (page < 0x13000000 || is_key ? "" : " SUB") + "@DME Wipe@Pattern Select@Pattern#1201");
        EXPECT_EQ(Usable({17, 20, 22, 33, 49}).empty(), off) << std::hex << page << " " << side;
    }
}

// Cells of the list and registers of the snapshots are no buttons with a row of their own.
TEST_F(MeDmeWipe, ASideWithoutItsWipeTakesNoTouch)
{
    for (const uint32_t page : {0x16610000u, 0x16670000u})
        for (const int is_set_up : {0, 1}) {
            SYS_DWSubEnable = is_set_up;
            GL_MEAssign[3] = 2;
            GL_MainSubAssign[3] = 2; // both sides
            Open(page);
            size_t puts = 0;
            for (int y = 80; y < 520; y += 40)
                for (int x = 120; x < 690; x += 48) {
                    puts += Puts(Touch(x, y)).size();
                    SendMessage(MSG_RELEASE, x, y, 0, 0);
                    Pass(200);
                }
            EXPECT_EQ(puts > 0, is_set_up) << std::hex << page;
        }
}

TEST_F(MeDmeWipe, A4To3CropNeedsAPictureThatIsWider)
{
    const char *const me1 = "M/E-1@DME Wipe", *const pp = "PGM/PST@DME Wipe";
    // The aspect of the bank itself before the keys that are pressed.
    for (const auto& [page, path, pattern, dmes, bank_aspect, presses, usable] :
         {std::tuple{MODIFY_ME1, me1, "1003", Lines{"3,16:9,1,8"}, 0, std::vector<int>{}, true},
          {MODIFY_ME1, me1, "1003", {"3,4:3,1,8"}, 1, {}, false},
          {MODIFY_ME1, me1, "1003", {"3,16:9,1,9"}, 1, {}, false}, // the sub side's
          {MODIFY_ME1, me1, "1003", {"3,16:9,2,8"}, 1, {}, false}, // of M/E-2
          {MODIFY_ME1, me1, "1003", {"9,16:9,1,8", "0,16:9,1,8"}, 1, {}, false},
          {0x15650000, "M/E-1 SUB@DME Wipe", "1003", {"8,16:9,1,9"}, 0, {}, true},
          {0x14650000, pp, "1003", {"1,16:9,0,8"}, 0, {}, true},
          {0x15270003, "M/E-1@Key6@Transition@DME Wipe", "1003", {"2,16:9,1,5"}, 0, {}, true},
          // the second channel, and the third, go by the DME behind the first
          {MODIFY_ME1, me1, "2003", {"1,4:3,1,8", "2,16:9,1,8"}, 0, {}, false},
          {MODIFY_ME1, me1, "2003", {"1,4:3,1,8", "2,16:9,1,8"}, 0, {CH1}, true},
          {MODIFY_ME1, me1, "2003", {"1,4:3,1,8", "2,16:9,3,8"}, 0, {CH1}, false},
          {MODIFY_ME1, me1, "2003", {"4,4:3,1,8", "5,16:9,1,8"}, 0, {CH1}, false},
          {MODIFY_ME1, me1, "3003", {"1,4:3,1,8", "2,16:9,1,8"}, 0, {CH3, CH1}, true},
          // the second set of channels has the bank's own aspect
          {MODIFY_ME1, me1, "7003", {"3,16:9,1,8"}, 0, {}, false},
          {MODIFY_ME1, me1, "7003", {}, 1, {}, true}}) {
        Open(page);
        TellAll(ASPECT, dmes);
        std::fill_n(SYS_RefSwrScreenAspect, 7, !bank_aspect); // each line has set them anew
        SYS_RefSwrScreenAspect[path == pp ? 5 : 0] = bank_aspect;
        Tell(std::string(path) + "@Pattern Select@Pattern#" + pattern);
        for (int id : presses)
            (void)Press(id);
        EXPECT_EQ(Enabled(CROP_4_3), usable) << path << " " << pattern << " " << dmes.size();
    }
    EXPECT_THAT(Tell("M/E-1@Key1@Processed Key@DME Status#anything"),
                Contains("read Engineering Setup@System@Format@DME Aspect"));
}

TEST_F(MeDmeWipe, TheSmallPanelHasNoThirdChannelAndAnOlderSwitcherRemovesNothing)
{
    constexpr int REMOVE_BEGIN = 54;
    Open(MODIFY_ME4);
    EXPECT_TRUE(Enabled(REMOVE_BEGIN));
    SYS_FmemV6 = 0;
    Open(MODIFY_ME4);
    EXPECT_EQ(BT_GetVisible(REMOVE_BEGIN), BT_CUTOFF);
    SYS_RefPnlType = DEVTYPE_QRD33;
    OpenWith(0x14650000, "PGM/PST@DME Wipe", "3003");
    EXPECT_EQ(BT_GetVisible(CH3), BT_CUTOFF);
    EXPECT_TRUE(Enabled(CH2));
    Tell(ASPECT + "1,16:9,0,8");
    SYS_RefPnlType = DEVTYPE_QRD33; // no unit of this desk is the reference
    SYS_RefSwrScreenAspect[5] = 0;
    Tell("PGM/PST@DME Wipe@Pattern Select@Pattern#2003");
    EXPECT_FALSE(Enabled(CROP_4_3)); // here PGM/PST goes by its own aspect
}

TEST_F(MeDmeWipe, AKeyIsAdjustedWhileEitherOfItsTransitionsIsSuchAWipe)
{
    static const std::tuple<const char*, const char*, size_t> cases[] = {
        {"DME Wipe", "Mix", 5},
        {"DME Wipe", "Mix", 5},
        {"Wipe", "Mix", 0},
        {"Cut", "DME Wipe", 5},
        {"DME Wipe", "DME Wipe", 5}};
    OpenWith(0x11170003, "M/E-1@Key1@Transition@DME Wipe", "1003");
    Tell(ASPECT + "1,16:9,1,0");
    for (const auto& [on, off, usable] : cases) {
        TellAll("M/E-1@Key1@Transition@", {std::string("ON Transition Type#") + on,
                                           std::string("OFF Transition Type#") + off});
        EXPECT_EQ(Usable({POSITION, CROP, CROP_4_3, SIZE, 33}).size(), usable) << on << "," << off;
    }
}

// --- The other pages ---

TEST_F(MeDmeWipe, APatternHasTheKeysOfItsMove)
{
    using Keys = std::vector<int>;
    for (const auto& [page, path, pattern, usable, dead] :
         {std::tuple{0x13630000u, "M/E-3", "1203", Keys{17, 18, 54},
                     Keys{20, 21, 22, 34, 35, 49, 52}},
          {0x13630000, "M/E-3", "1301", {21, 22, 34, 35}, {17, 18, 20, 49, 54}},
          {0x13630000, "M/E-3", "7391", {18, 20, 22, 54}, {17, 21, 49}},
          {0x13630000, "M/E-3", "2001", {49, 50, 51}, {17, 20, 52}},
          {0x13630000, "M/E-3", "3401", {20, 22, 49, 52}, {21}},
          {0x13630000, "M/E-3", "1336", {21, 22}, {20, 54}}, // the last of its kind
          {0x13630000, "M/E-3", "1418", {20, 22, 54}, {21}},
          {0x13640000, "M/E-3", "1310", {17, 37, 38}, {49, 50}},
          {0x13640000, "M/E-3", "1905", {17, 18}, {37, 38, 49}},
          {0x13640000, "M/E-3", "1001", {17, 37, 49}, {}},
          // of a key: transparency alone
          {0x86270003, "M/E-5@Key6@Transition", "1394", {52}, {51}}}) {
        Open(page);
        TellAll(path, {"@DME Wipe@Edge/Direction@Shadow#true",
                       std::string("@DME Wipe@Pattern Select@Pattern#") + pattern});
        EXPECT_EQ(Usable(usable), usable) << pattern;
        EXPECT_THAT(Usable(dead), IsEmpty()) << pattern;
    }
}

TEST_F(MeDmeWipe, APatternDoesNotAllowWhatTheRowForbids)
{
    // The tallies that forbid; the pattern is told after them, then the last one.
    for (const auto& [page, path, lines, button] :
         {std::tuple{
              0x13640000u, "M/E-3@",
              Lines{"DME Wipe@Edge/Direction@Shadow#false", "DME Wipe@Edge/Direction@Shadow#true"},
              50},
          {0x13170007,
           "M/E-3@Key1@Transition@",
           {"ON Transition Type#Mix", "OFF Transition Type#Mix", "OFF Transition Type#DME Wipe"},
           17}}) {
        Open(page);
        TellAll(path, {lines.begin(), lines.end() - 1});
        Tell(std::string(path) + "DME Wipe@Pattern Select@Pattern#1001");
        EXPECT_TRUE(Disabled().contains(button)) << path;
        Tell(path + lines.back());
        EXPECT_FALSE(Disabled().contains(button)) << path;
    }
}

TEST_F(MeDmeWipe, TheCellShowsTheSamePictureForBothSetsOfChannels)
{
    const auto picture = [](const char* pattern) {
        Tell(std::string("M/E-2@DME Wipe@Pattern Select@Pattern#") + pattern);
        Pass(10);
        return PixelsIn({122, 112, 177, 112});
    };
    Open(0x12640000);
    const auto first = picture("2003");
    EXPECT_NE(first, picture("2004"));
    EXPECT_EQ(first, picture("8003"));
}

TEST_F(MeDmeWipe, WhatIsRemovedBeginsBeforeItEnds)
{
    for (const auto& [page, path, pattern, button, ch] :
         {std::tuple{0x12600007u, "M/E-2@DME Wipe", "2003", 18, std::string("2")},
          {0x12170007u, "M/E-2@Key1@Transition@DME Wipe", "1003", 17, "1"}}) {
        Open(page);
        EXPECT_THAT(Usable({17, 18, 19}), IsEmpty()) << "no pattern yet";
        OpenWith(page, path, pattern);
        EXPECT_STREQ(NB_GetTitle(), "Remove");
        EXPECT_FALSE(Enabled(19));
        const std::string remove = root + "@Modify@Remove From Begin@";
        Tell(remove + ch + "#true");
        (void)Press(button);
        TellAll(remove, {"Start@" + ch + "#20", "Limit@" + ch + "#60", "Start@3#90"});
        for (int i = 0; i < 60; i++) // the limit stops at the start of the same channel
            SendMessage(MSG_WHEELUP, 720, 127 + 82 + 20, 0, 0);
        EXPECT_THAT(TakeQueuedCommands(), Contains("put " + remove + "Limit@" + ch + "#20.00"));
    }
}

TEST_F(MeDmeWipe, TheListShowsWhatIsAskedForAndStaysOnItsSetOfChannels)
{
    const std::string path = "M/E-5@DME Wipe@Pattern Select@Pattern#";
    Open(0x82610000);
    for (const auto& [button, pattern, number] : {std::tuple{33, "1003", "1001"},
                                                  {34, "1003", "2001"},
                                                  {35, "9001", "9001"},
                                                  {34, "8251", "8001"},
                                                  {33, "2003", "1001"}}) {
        Tell(path + pattern);
        (void)Press(button);
        EXPECT_THAT(Touch(160 + 20, 89 + 20), Contains("put " + path + number)); // first cell
    }
}
