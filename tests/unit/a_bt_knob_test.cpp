#include "a_bt.h"
#include "a_bt_page.h"
#include "bus.h"
#include "me_config.h"
#include "page_table/nb_dme.h"
#include "page_table/nb_edge.h"
#include "page_table/nb_key.h"
#include "page_table/nb_nonlinear.h"
#include "page_table/nb_wipe.h"
#include "tdl.h"
#include <cstring>
#include <gmock/gmock.h>
#include <set>

using testing::Contains;
using testing::IsEmpty;

constexpr int LAST_NUMBER = 130;

struct KnobLinks : ButtonPage {
    BT_TBL rows[2];

    void TearDown() override
    {
        me_config_reset();
        SYS_SignalFormat = SYS_ScreenAspect = 1;
        for (int& aspect : SYS_RefSwrScreenAspect)
            aspect = 0;
        ButtonPage::TearDown();
    }
    // One button with this link and these dependencies.
    void OpenLink(int number, std::initializer_list<const char*> dependencies)
    {
        rows[0] = Button(17, BT_KNOB_ONLY, {"~@0#*"}, SpecialKnob(number));
        std::copy(dependencies.begin(), dependencies.end(), rows[0].cmd + 1);
        rows[1] = {.id = -1};
        Open(rows);
        (void)TakeQueuedCommands();
    }
    static const NB_TBL* Chosen() { return special_knob_table(bt_find(17)); }

    static std::vector<const NB_TBL*> TablesOf(int number)
    {
        const NB_TBL* tables[16];
        const int n = special_knob_tables(number, tables, 16);
        return {tables, tables + n};
    }
};

// --- What holds for all of them ---

static bool SameBoxes(const NB_TBL* a, const NB_TBL* b)
{
    for (; a->id >= 1 && b->id >= 1; a++, b++)
        if (a->id != b->id || strcmp(a->caption, b->caption) || a->type != b->type ||
            a->min != b->min || a->max != b->max || strcmp(a->cmd, b->cmd))
            return false;
    return a->id < 1 && b->id < 1;
}

TEST_F(KnobLinks, EveryNumberChoosesAmongTablesThatDiffer)
{
    for (int number = 1; number <= LAST_NUMBER; number++) {
        const auto tables = TablesOf(number);
        // The only number with one table is blank while a key does not turn.
        EXPECT_GE(tables.size(), number == 18 ? 1u : 2u) << number;
        for (size_t i = 0; i < tables.size(); i++)
            for (size_t k = 0; k < i; k++)
                EXPECT_FALSE(SameBoxes(tables[i], tables[k]))
                    << number << ": " << k << " and " << i;
    }
    EXPECT_EQ(TablesOf(0).size() + TablesOf(LAST_NUMBER + 1).size() + TablesOf(255).size(), 0u);
}

TEST_F(KnobLinks, EveryTableIsSound)
{
    Harness_Video();
    for (int number = 1; number <= LAST_NUMBER; number++)
        for (const NB_TBL* table : TablesOf(number)) {
            std::set<int> ids;
            ASSERT_GE(table->id, 1) << number << " is empty";
            for (const NB_TBL* nb = table; nb->id >= 1; nb++) {
                EXPECT_TRUE(ids.insert(nb->id).second) << number << " " << nb->caption;
                EXPECT_TRUE((nb->id & 15) >= 1 && (nb->id & 15) <= 5) << number << " " << nb->id;
                EXPECT_NE(nb->min, nb->max) << number << " " << nb->caption;
                EXPECT_LE(TDL_GetSymbolWidth(nb->caption, 3), 74u) << number << " " << nb->caption;
                EXPECT_TRUE(nb->cmd) << number << " " << nb->caption;
            }
            EXPECT_LE(ids.size(), size_t(NB_MAX)) << number;
            EXPECT_TRUE(ids.count(1) || number == 23) << number << " begins at another slot";
        }
}

// --- What decides ---

TEST_F(KnobLinks, TheAspectIsThatOfThePagesBank)
{
    static const struct {
        const char* bank;
        int entry;
    } cases[] = {{"M/E-1", 0}, {"M/E-2", 1}, {"M/E-3", 2},
                 {"M/E-4", 3}, {"M/E-5", 4}, {"PGM/PST", 5}};
    for (const auto& c : cases)
        for (int wide : {0, 1}) {
            for (int& aspect : SYS_RefSwrScreenAspect)
                aspect = !wide;
            SYS_RefSwrScreenAspect[c.entry] = wide;
            SetTree({c.bank, "Wipe", "Main Pattern"}, 0x11510000);
            OpenLink(31, {});
            EXPECT_EQ(Chosen(), nb_me_wipe_position.variant[wide]) << c.bank << wide;
            EXPECT_EQ(Chosen()->max, wide ? 133.33 : 100) << c.bank;
        }
}

TEST_F(KnobLinks, TheEffectsUnitGoesByFormatAndAspectOfTheScreen)
{
    static const struct {
        int number;
        int hd;
        int wide;
        const NB_TBL* table;
    } cases[] = {
        {5, 0, 0, nb_dme_edge_bordercrop_border1}, {5, 0, 1, nb_dme_edge_bordercrop_border2},
        {5, 1, 0, nb_dme_edge_bordercrop_border3}, {5, 1, 1, nb_dme_edge_bordercrop_border4},
        {71, 0, 1, nb_dme_edge_bevel.variant[0]},  {71, 1, 1, nb_dme_edge_bevel.variant[1]},
        {62, 1, 0, nb_dme_trans_axis.variant[0]},  {62, 1, 1, nb_dme_trans_axis.variant[1]},
        {81, 0, 1, nb_dme_pin_tr.variant[1]},      {81, 1, 0, nb_dme_pin_tr.variant[2]},
    };
    for (const auto& c : cases) {
        SYS_SignalFormat = c.hd;
        SYS_ScreenAspect = c.wide;
        OpenLink(c.number, {});
        EXPECT_EQ(Chosen(), c.table) << c.number << " " << c.hd << c.wide;
    }
}

TEST_F(KnobLinks, ATallyIsFoundByItsPathAndUnknownWordsChooseTheFirst)
{
    static const struct {
        int number;
        const char* line; // path and value
        const NB_TBL* table;
    } cases[] = {
        {10, "Mode#Flat", nb_matte_flat.row},
        {10, "Mode#Gradation", nb_matte_gradation1.row},
        {4, "Separate Edge#true", nb_me_key_edge_edge_outline_sep.variant[0]},
        {4, "Fine Key#true", nb_me_key_edge_edge_outline.variant[1]},
        {4, "Separate Edge#maybe", nb_me_key_edge_edge_outline.variant[0]},
        {4, "Other#true", nb_me_key_edge_edge_outline.variant[0]},
        {28, "Key Type#Wipe Pattern", nb_me_key_type_wipe_modify.row},
        {28, "Key Type#Key Wipe Pattern", nb_me_key_type_keywipe_modify.row},
        {28, "Key Type#Chroma", nullptr},
        {91, "Split#H", nb_dme_nonlinear_type_roll_roll1},
        {91, "Split#V", nb_dme_nonlinear_type_roll_roll2},
        {91, "Split#H&V", nb_dme_nonlinear_type_roll_roll3},
        {92, "Split#null", nb_dme_nonlinear_type_pageturn_pageturn4},
    };
    for (const auto& c : cases) {
        // Behind another one, and with the question's second dependency before or after it.
        OpenLink(c.number, {"~@Nothing#", "~@Fine Key#", "~@Split#", "~@Key Type#", "~@Mode#",
                            "~@Separate Edge#"});
        const std::string line = std::string("M/E-1@Key1@Type@") + c.line;
        const size_t hash = line.find('#');
        Tally(line.substr(0, hash).c_str(), line.c_str() + hash + 1);
        EXPECT_EQ(Chosen(), c.table) << c.number << " " << c.line;
    }
}

TEST_F(KnobLinks, AKeyThatTurnsHasItsOwnBoxes)
{
    static const struct {
        const char* bank;
        const char* key;
        const char* turning; // what the server says to turn
        bool turns;
    } cases[] = {
        {"M/E-1", "Key1", "M/E-1@Key1", true},     {"M/E-1", "Key1", "M/E-2@Key1", false},
        {"M/E-5", "Key8", "M/E-5@Key8", true},     {"M/E-5", "Key8", "M/E-5@Key7", false},
        {"PGM/PST", "DSK3", "PGM/PST@DSK3", true}, {"PGM/PST", "DSK3", "M/E-1@Key3", false},
        {"M/E-1", "Wipe", "M/E-1@Key1", false},
    };
    for (const auto& c : cases) {
        me_config_reset();
        GL_ProcKey_Rotation((std::string(c.turning) + "@Processed Key@Rotation").c_str(), "true");
        SetTree({c.bank, c.key, "Processed Key"}, 0x11160000);
        OpenLink(23, {});
        EXPECT_EQ(Chosen(),
                  c.turns ? nb_me_key_prockey_rotation.row : nb_me_key_prockey_rotation_flat.row)
            << c.bank << c.key << " " << c.turning;
        OpenLink(18, {});
        EXPECT_EQ(Chosen(), c.turns ? nb_me_key_resizer_rotation.row : nullptr) << c.turning;
    }
}

TEST_F(KnobLinks, AShownColumnFollowsTheRotationOfTheKey)
{
    SetTree({"M/E-1", "Key1", "Processed Key"}, 0x11160000);
    OpenLink(23, {"~2@Processed Key@Rotation#"});
    Press(17);
    (void)TakeQueuedCommands();
    SendDummyTally("M/E-1@Key1@Processed Key@Rotation#true");
    EXPECT_THAT(TakeQueuedCommands(), Contains("assign Knob0#M/E-1@Key1@Processed Key@Rotation@X"));
}

TEST_F(KnobLinks, ALinkWithoutATableBlanksTheColumn)
{
    OpenLink(57, {"~@Color#"});
    Press(17);
    EXPECT_THAT(TakeQueuedCommands(), Contains("assign Knob0#M/E-1@Key1@Type@Color 1@Luminance"));
    OpenLink(18, {});
    Press(17);
    EXPECT_EQ(BT_GetKnobAssign(), 17);
    char path[CMD_SIZE];
    double value;
    EXPECT_EQ(NB_GetKnob_info("Luminance", path, &value, sizeof path), -1);
}

// --- On the pages of the effects unit ---

struct DmePages : testing::Test {
    void SetUp() override { Harness_Reset(); }
    void TearDown() override
    {
        SYS_SignalFormat = SYS_ScreenAspect = 1;
        GL_CreatePage = 0;
        CreatePage(PAGE_TOP);
        Page_Reset();
        (void)TakeQueuedCommands();
    }
    static void Open(uint32_t id)
    {
        ASSERT_EQ(CreatePage(id), 0);
        (void)TakeQueuedCommands();
    }
    static void Tell(const char* line)
    {
        SendDummyTally(line);
        (void)TakeQueuedCommands();
    }
    static void Press(int id)
    {
        const BT_MEM* b = bt_find(id);
        ASSERT_TRUE(b) << id;
        (void)TakeQueuedCommands();
        SendMessage(MSG_PRESS, b->x1 + 5, b->y1 + 5, 1, 0);
    }
    static bool IsShown(const NB_TBL* table)
    {
        char path[CMD_SIZE];
        double value;
        for (; table->id >= 1; table++)
            if (NB_GetKnob_info(table->caption, path, &value, sizeof path) != table->id ||
                !strstr(path, table->cmd + 1)) // behind the "~"
                return false;
        return true;
    }
    // What a turn far beyond the limit sends.
    static std::string Farthest(int id)
    {
        (void)TakeQueuedCommands();
        NB_SetSelect(id);
        NB_SendTrimValue(1000);
        NB_SetSelect(0);
        const auto sent = TakeQueuedCommands();
        return sent.empty() ? "" : sent[0];
    }
};

// A link whose button lacks the dependency would stay on its first table for ever.
TEST_F(DmePages, EveryNumberedLinkHasTheDependenciesThatItsTableGoesBy)
{
    static const struct {
        int number;
        const char* path;
    } needs[] = {
        {60, "@Space#"},
        {61, "@Spin#"},
        {63, "@Separate#"},
        {67, "@Crop@Separate#"},
        {68, "@Border Soft@Separate#"},
        {69, "@Matte@Mode#"},
        {70, "@Soft Edge@Separate#"},
        {72, "@Drop#"},
        {73, "@Type#"},
        {74, "@Projection#"},
        {75, "@Fill#"},
        {76, "@Trail@Strobe#"},
        {77, "@Key Decay#"},
        {78, "@Source#"},
        {79, "@White#"},
        {80, "@Mode#"},
        {81, "@Mode#"},
        {82, "@Mode#"},
        {83, "@Mode#"},
        {84, "@Mode#"},
        {85, "@Mode#"},
        {86, "@Pattern#"},
        {87, "@Ambient@Color#"},
        {88, "@Mode#"},
        {89, "@Mode#"},
        {90, "@Random#"},
        {91, "@Split#"},
        {92, "@Split#"},
        {95, "@Wave@Both#"},
        {102, "@Split Slide@Both#"},
        {106, "@Separate#"},
        {107, "@Blur@Radial#"},
        {108, "@RGB#"},
        {110, "@Separate#"},
        {111, "@Multi Move@Shift#"},
        {113, "@Sepia@Color#"},
        {114, "@Separate#"},
        {116, "@Color#"},
    };
    std::set<int> seen;
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++) {
        if (page->id >> 24 != 0x41)
            continue;
        for (const auto& object : page->obj)
            for (auto* b =
                     static_cast<const BT_TBL*>(object.type == OBJ_BT ? object.addr : nullptr);
                 b && b->id >= 1; b++) {
                seen.insert(SpecialKnobNumber(b->nb));
                for (const auto& n : needs) {
                    if (n.number != SpecialKnobNumber(b->nb))
                        continue;
                    const bool has = std::any_of(b->cmd + 1, std::end(b->cmd), [&](const char* c) {
                        const size_t tail = strlen(n.path);
                        return c && strlen(c) >= tail && !strcmp(c + strlen(c) - tail, n.path);
                    });
                    EXPECT_TRUE(has) << std::hex << page->id << " " << b->caption;
                }
            }
    }
    for (int number = 60; number <= 118; number++)
        EXPECT_TRUE(seen.count(number)) << number << " is on no page";
}

TEST_F(DmePages, TheKnobsOfRollAndPageTurnFollowTheSplit)
{
    static const struct {
        uint32_t page;
        const char* type; // the line that puts the effect on
        const char* split;
        const NB_TBL* tables[4]; // no split, H, V, H&V
    } cases[] = {
        {0x41320000,
         "DME@Nonlinear@Type@Type#Roll",
         "DME@Nonlinear@Roll@Split",
         {nb_dme_nonlinear_type_roll_roll4, nb_dme_nonlinear_type_roll_roll1,
          nb_dme_nonlinear_type_roll_roll2, nb_dme_nonlinear_type_roll_roll3}},
        {0x41330000,
         "DME@Nonlinear@Type@Type#Page Turn",
         "DME@Nonlinear@Page Turn@Split",
         {nb_dme_nonlinear_type_pageturn_pageturn4, nb_dme_nonlinear_type_pageturn_pageturn1,
          nb_dme_nonlinear_type_pageturn_pageturn2, nb_dme_nonlinear_type_pageturn_pageturn3}},
    };
    constexpr struct {
        int button;
        const char* value;
    } splits[] = {{33, "H"}, {34, "V"}, {35, "H&V"}};
    for (const auto& c : cases) {
        Open(c.page);
        Tell(c.type);
        Press(17);
        ASSERT_EQ(BT_GetKnobAssign(), 17);
        EXPECT_TRUE(IsShown(c.tables[0]));
        for (int n = 0; n < 3; n++) {
            const std::string path = c.split;
            Press(splits[n].button);
            EXPECT_THAT(TakeQueuedCommands(), Contains("put " + path + "#" + splits[n].value));
            EXPECT_TRUE(IsShown(c.tables[n + 1])) << path << " at the press, " << splits[n].value;
            Tell((path + "#" + splits[n].value).c_str());
            EXPECT_TRUE(IsShown(c.tables[n + 1])) << path << " at the tally";
            Press(splits[n].button); // a second press takes the split off
            EXPECT_THAT(TakeQueuedCommands(), Contains("put " + path + "#null"));
            EXPECT_TRUE(IsShown(c.tables[0])) << path << " off again";
            Tell((path + "#null").c_str());
        }
        Tell((std::string(c.split) + "#V").c_str()); // from another panel
        EXPECT_TRUE(IsShown(c.tables[2]));
        Tell("DME@Nonlinear@Type@Type#null");
        EXPECT_EQ(BT_GetKnobAssign(), -1);
        EXPECT_EQ(BT_GetVisible(33), BT_DISABLED);
    }
}

TEST_F(DmePages, ACornerGoesAsFarAsModeFormatAndAspectLetIt)
{
    static const struct {
        int hd;
        int wide;
        const char* linear[2]; // H and V
        const char* perspective[2];
    } cases[] = {
        {0, 0, {"4.00", "3.00"}, {"2.00", "1.50"}},
        {0, 1, {"5.33", "3.00"}, {"2.67", "1.50"}},
        {1, 0, {"4.00", "4.00"}, {"2.00", "2.00"}},
        {1, 1, {"5.33", "4.00"}, {"2.67", "2.00"}},
    };
    constexpr struct {
        int button;
        const char* path[2];
    } corners[] = {
        {33, {"Top Left@H", "Top Left@V"}},
        {34, {"Top Right@H", "Top Right@V"}},
        {49, {"Bottom Left@H", "Bottom Left@V"}},
        {50, {"Bottom Right@H", "Bottom Right@V"}},
        {36, {"All@H", "All@V"}},
    };
    const std::string put = "put DME@Transform@Corner Pinning@";
    for (const auto& c : cases) {
        SYS_SignalFormat = c.hd;
        SYS_ScreenAspect = c.wide;
        Open(0x41720000);
        Tell("DME@Transform@Corner Pinning@Corner Pinning#true");
        Tell("DME@Transform@Corner Pinning@Mode#Linear");
        for (const auto& corner : corners) {
            Press(corner.button);
            for (int k = 0; k < 2; k++)
                EXPECT_EQ(Farthest(k + 1), put + corner.path[k] + "#" + c.linear[k]);
        }
        SendDummyTally("DME@Transform@Corner Pinning@Mode#Perspective");
        EXPECT_THAT(TakeQueuedCommands(), IsEmpty()) << "the column was opened anew";
        for (int k = 0; k < 2; k++)
            EXPECT_EQ(Farthest(k + 1), put + corners[4].path[k] + "#" + c.perspective[k]);
        Press(52);
        EXPECT_EQ(Farthest(2), put + "Right@H#" + c.perspective[0]);
        EXPECT_EQ(Farthest(3), put + "Top@V#" + c.perspective[1]);
        Tell("DME@Transform@Corner Pinning@Corner Pinning#false");
        EXPECT_EQ(BT_GetKnobAssign(), -1) << "a disabled corner keeps no knobs";
    }
}

// Limits are moved in place, so the boxes of a corner must be the same in all modes.
TEST_F(DmePages, TheTablesOfACornerDifferInLimitsOnly)
{
    for (int number = 80; number <= 85; number++) {
        const auto tables = KnobLinks::TablesOf(number);
        EXPECT_EQ(tables.size(), 8u);
        for (const NB_TBL* table : tables)
            for (int i = 0; table[i].id >= 1 || tables[0][i].id >= 1; i++) {
                ASSERT_EQ(table[i].id, tables[0][i].id) << number;
                EXPECT_STREQ(table[i].caption, tables[0][i].caption) << number;
                EXPECT_STREQ(table[i].cmd, tables[0][i].cmd) << number;
            }
    }
}

TEST_F(DmePages, TheCropHasOneSenseOnItsPage)
{
    Open(0x41110000);
    EXPECT_EQ(GL_NowPage, 0x41110000u);
    Tell("DME@Edge@Border/Crop@Crop#true");
    Press(33);
    EXPECT_EQ(Farthest(1), "put DME@Edge@Border/Crop@Crop@H#0.00");
    EXPECT_EQ(Farthest(2), "put DME@Edge@Border/Crop@Crop@V#4.00");
    Tell("DME@Edge@Border/Crop@Crop@Separate#true");
    EXPECT_EQ(Farthest(2), "put DME@Edge@Border/Crop@Crop@Left#5.33");
}

TEST_F(DmePages, TheCellsAreThoseOfTheTransformThatIsTurned)
{
    ASSERT_EQ(CreatePage(0x41710000), 0);
    EXPECT_THAT(TakeQueuedCommands(), Contains("add DME@Status@3D Param@Mode Status@Reference"));
    SendDummyTally("DME@Status@3D Param@Mode Status@Reference#12,5,0");
    EXPECT_THAT(TakeQueuedCommands(), Contains("add DME@Status@3D Param@Global Source@Location@X"));
    Open(0x41410000); // a still picture has no cells
    SendDummyTally("DME@Status@3D Param@Mode Status@Reference#11,5,0");
    EXPECT_THAT(TakeQueuedCommands(), IsEmpty());
}

TEST_F(DmePages, ABarOfLightIsForALightWithoutAPattern)
{
    Open(0x41510000);
    static const struct {
        const char* light;
        const char* pattern;
        int visible;
    } cases[] = {
        {"true", "null", BT_ENABLED},
        {"true", "Blinds", BT_DISABLED},
        {"false", "null", BT_DISABLED},
    };
    for (const auto& c : cases) {
        Tell((std::string("DME@Light@Light@Light#") + c.light).c_str());
        Tell((std::string("DME@Light@Light@Pattern#") + c.pattern).c_str());
        EXPECT_EQ(BT_GetVisible(36), c.visible) << c.light << " " << c.pattern;
    }
}
