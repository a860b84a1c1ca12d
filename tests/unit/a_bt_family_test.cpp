#include "a_bt_page.h"
#include "device.h"

struct ButtonFamily : ButtonPage {
    char dependency[BT_COMMANDS][32];

    // One button with a tally function of the family; its dependencies are "~@1" to "~@7" with
    // these conditions.
    void OpenTally(int (*tally)(BT_MEM*, int, const char*, const char*),
                   std::initializer_list<const char*> conditions)
    {
        rows[0] = Button(17, BT_TOGGLE, {"~@0#*"});
        rows[0].tally_func = tally;
        int n = 1;
        for (const char* condition : conditions) {
            PrintText(dependency[n], "~@%d#%s", n, condition);
            rows[0].cmd[n] = dependency[n];
            n++;
        }
        Open(rows);
    }
    static int Dependency(int n, const char* value) // whether the button can be seen and used then
    {
        Tally(("M/E-1@Key1@Type@" + std::to_string(n)).c_str(), value);
        return BT_GetVisible(17);
    }
};

TEST_F(ButtonFamily, VisibilityFollowsTheRuleOfTheFamily)
{
    // Each digit of a combination is the verdict of one dependency, from the first; "x" disables.
    using Rule = int (*)(BT_MEM*, int, const char*, const char*);
    for (const auto& [name, tally, usable, disabled] :
         {std::tuple<const char*, Rule, std::string, std::string>{"trans", bt_tly_trans_dmewipeadj,
                                                                  "x-", "xx"},
          {"any", bt_tly_normal, "-------", "------x"},
          {"edgeadj, no second", bt_tly_edgeadj, "x--xx", "xx-x-"},
          {"edgeadj, no third", bt_tly_edgeadj, "xxx--", "x-x-x"},
          {"keydrop, pair", bt_tly_keydrop, "--x-", "-xx-"},
          {"keydrop, the other half", bt_tly_keydrop, "-x--", "-xx-"},
          {"keydrop, fourth", bt_tly_keydrop, "----", "---x"}}) {
        OpenTally(tally, {"x", "x", "x", "x", "x", "x", "x"});
        for (const std::string& combination : {usable, disabled}) {
            for (int i = 0; i < int(combination.size()); i++)
                Dependency(i + 1, combination[size_t(i)] == 'x' ? "x" : "");
            EXPECT_EQ(BT_GetVisible(17), combination == disabled) << name << " " << combination;
        }
        Dependency(0, "true");
        EXPECT_EQ(BT_GetOnOff(17), 1) << name << ": the own state as usual";
    }
}

TEST_F(ButtonFamily, AWipeHasSizeAndTransparencyByItsNumber)
{
    for (const auto& [size, transparency, numbers] :
         {std::tuple{true, true,
                     Strings{"1201", "1208", "1221", "1224", "1251", "1901", "1999", "7201"}},
          {false, true, {"1031", "1381", "1391", "1393", "1394", "1396", "7031"}},
          {false, false, {"1200", "1209", "1220", "1225", "1392", "1900", "2000", "7000", ""}}})
        for (const std::string& number : numbers)
            for (const auto& [tally, is_usable] :
                 {std::pair{&bt_tly_dmewipe_size, size}, {&bt_tly_dmewipe_trans, transparency}}) {
                OpenTally(tally, {""});
                EXPECT_EQ(Dependency(1, number.c_str()), is_usable ? BT_ENABLED : BT_DISABLED)
                    << number;
            }
    OpenTally(bt_tly_dmewipe_size, {""});
    BT_SetDisable(17, 1); // page code: what it puts out stays out
    EXPECT_EQ(Dependency(1, "1201"), BT_DISABLED);
}

TEST_F(ButtonFamily, AShadowsSourceNeedsFourCombinedChannelsAndAFreezeAUnitThatHoldsThePicture)
{
    for (const bool four : {true, false}) {
        SYS_CombineCh[1] = SYS_CombineCh[2] = 1;
        SYS_CombineCh[3] = four;
        OpenTally(bt_tly_globaleffect_shadow_source, {"x", "x", "x"});
        EXPECT_EQ(Dependency(1, "x"), four ? BT_ENABLED : BT_DISABLED);
        EXPECT_EQ(Dependency(2, "x"), BT_DISABLED);
        EXPECT_EQ(Dependency(1, ""), BT_ENABLED);
        EXPECT_EQ(Dependency(3, "x"), BT_ENABLED) << "the third one has no part in it";
    }
    SYS_MyDme1 = 0;
    for (const bool is_large : {true, false}) {
        DEV_Dme[0].type = is_large ? DEVTYPE_ZRD52 : DEVTYPE_UNKNOWN;
        for (const bool is_1080p : {true, false}) {
            SYS_RefSwrActiveLine = is_1080p ? 6 : 5;
            OpenTally(bt_tly_freeze, {"x"});
            EXPECT_EQ(Dependency(0, "true"), is_1080p && !is_large ? BT_DISABLED : BT_ENABLED);
            EXPECT_EQ(BT_GetOnOff(17), 1);
            EXPECT_EQ(Dependency(1, "x"), BT_DISABLED);
        }
    }
}

TEST_F(ButtonFamily, ALightThatIsActiveHasABar)
{
    constexpr uint32_t ORANGE = 0xE48B1B, DARK = 0xC86E05;
    rows[0] = Button(17, BT_JUMP, {"#11110000"});
    rows[0].caption = "Light 2";
    rows[0].draw_func = bt_drw_normal_light;
    GL_LightActive[1] = 1;
    for (const auto& [reference, model, bar] : // model: of the first unit; 5 has no lighting
         {std::tuple{0x01, 1, true}, {0x01, 5, false}, {0x00, 1, false}, {0x10, 5, true}}) {
        SYS_DMEReference = reference;
        GL_DmeModel[0] = model;
        GL_DmeModel[1] = 1;
        Open(rows);
        Pass(10);
        const BT_MEM* b = bt_find(17);
        EXPECT_EQ(PixelAt(b->x1 + 40, b->y1 + 54) == ORANGE, bar) << reference << model;
        EXPECT_EQ(PixelAt(b->x1 + 40, b->y1 + 55) == DARK, bar);
    }
    GL_LightActive[1] = 0;
}

TEST_F(ButtonFamily, DevelopersSeeWhatWasNeverAnswered)
{
    const auto marks = [&](int type, int debug) {
        GL_DebugMode = debug;
        rows[0] = Button(17, type, {"~@0#*"});
        Open(rows);
        Pass(10);
        const auto pixels = PixelsIn({rows[0].x1 + 70, rows[0].y1 + 35, rows[0].x2, rows[0].y2});
        return std::count(pixels.begin(), pixels.end(), 0xFFC800u) > 0;
    };
    EXPECT_TRUE(marks(BT_TOGGLE, 1));
    EXPECT_FALSE(marks(BT_TOGGLE, 0));
    EXPECT_FALSE(marks(BT_JUMP, 1)) << "expects no answer";
    EXPECT_TRUE(marks(BT_FIND, 1));
}

TEST_F(ButtonFamily, AButtonOfTheNextVersionThatIsCutOffStaysSo)
{
    rows[0] = Button(17, BT_TOGGLE, {"~@0#*"});
    rows[0].draw_func = bt_drw_normal_nextver;
    rows[0].select_func = bt_sel_normal_nextver;
    for (const int version : {2, 1}) {
        GL_NextVersion = version;
        Open(rows);
        EXPECT_EQ(Pressed(17).size(), version == 2) << "it acts from its version on";
        Pass(10);
    }
    EXPECT_EQ(BT_GetVisible(17), BT_DISABLED);
    BT_SetCutoff(17, 1);
    Pass(10);
    EXPECT_EQ(BT_GetVisible(17), BT_CUTOFF);
}
