#include "a_bt_knob_private.h"
#include "a_bt_page.h"
#include "me_config.h"
#include "page_table/nb_dme.h"
#include "page_table/nb_edge.h"
#include "page_table/nb_key.h"
#include "page_table/nb_nonlinear.h"
#include "page_table/nb_wipe.h"
#include "table_page.h"
#include <cstring>
#include <map>
#include <string_view>

constexpr int LAST_NUMBER = 130;

struct KnobLinks : ButtonPage {
    // One button with this link and these dependencies; the table that is chosen.
    const NB_TBL* OpenLink(int number, std::initializer_list<const char*> dependencies)
    {
        rows[0] = Button(17, BT_KNOB_ONLY, {"~@0#*"}, SpecialKnob(number));
        std::copy(dependencies.begin(), dependencies.end(), rows[0].cmd + 1);
        Open(rows);
        return Chosen();
    }
    static const NB_TBL* Chosen() { return special_knob_table(bt_find(17)); }

    static std::vector<const NB_TBL*> TablesOf(int number)
    {
        const NB_TBL* tables[16];
        const int n = special_knob_tables(number, tables, 16);
        return {tables, tables + n};
    }
};

static bool SameBoxes(const NB_TBL* a, const NB_TBL* b)
{
    for (; a->id >= 1 && b->id >= 1; a++, b++)
        if (a->id != b->id || strcmp(a->caption, b->caption) || a->type != b->type ||
            a->min != b->min || a->max != b->max || strcmp(a->cmd, b->cmd))
            return false;
    return a->id < 1 && b->id < 1;
}

TEST_F(KnobLinks, EveryNumberChoosesAmongTablesThatDifferWithTheirBoxesInSlotsFromTheFirst)
{
    for (int number = 1; number <= LAST_NUMBER; number++) {
        const auto tables = TablesOf(number);
        EXPECT_NE(tables.size(), 1u) << number;
        const NB_TBL* one[1];
        EXPECT_LE(special_knob_tables(number, one, 1), 1) << number;
        for (size_t i = 0; i < tables.size(); i++) {
            const NB_TBL* const table = tables[i];
            for (size_t k = 0; k < i; k++)
                EXPECT_FALSE(SameBoxes(table, tables[k])) << number << ": " << k << " and " << i;
            std::set<int> ids;
            ASSERT_GE(table->id, 1) << number << " is empty";
            for (const NB_TBL* nb = table; nb->id >= 1; nb++) {
                EXPECT_TRUE(ids.insert(nb->id).second) << number << " " << nb->caption;
                EXPECT_TRUE((nb->id & 15) >= 1 && (nb->id & 15) <= 5) << number << " " << nb->id;
                EXPECT_TRUE(nb->cmd) << number << " " << nb->caption;
            }
            EXPECT_LE(ids.size(), size_t(NB_MAX)) << number;
            EXPECT_TRUE(ids.count(1) || number == 23) << number << " begins at another slot";
        }
    }
    EXPECT_EQ(TablesOf(0).size() + TablesOf(LAST_NUMBER + 1).size() + TablesOf(255).size(), 0u);
}

TEST_F(KnobLinks, ATallyIsFoundByItsPathAndUnknownWordsChooseTheFirst)
{
    static const struct {
        int number;
        const char* line; // path and value
        const NB_TBL* table;
    } cases[] = {
        {4, "Separate Edge#true", nb_me_key_edge_edge_outline_sep.variant[0]},
        {4, "Fine Key#true", nb_me_key_edge_edge_outline.variant[1]},
        {4, "Separate Edge#maybe", nb_me_key_edge_edge_outline.variant[0]},
        {4, "Other#true", nb_me_key_edge_edge_outline.variant[0]},
        {2, "Fine Key#true", nb_me_key_edge_edge_drop.variant[1]},
        {2, "Separate Edge#true", nb_me_key_edge_edge_drop_sep.variant[0]},
        {3, "Separate Edge#true", nb_me_key_edge_edge_shadow_sep.variant[0]},
        {6, "Fine Key#true", nb_me_key_edge_edge_emboss.variant[1]},
        {7, "Separate Edge#true", nb_me_key_edge_soft_edge_sep.row},
        {16, "Border@Separate#true", nb_me_key_resizer_border_sep.variant[0]},
        {17, "Aspect#true", nb_me_key_resizer_aspect_sep.row},
        {20, "Defocus@Separate#true", nb_me_key_resizer_defocus_sep.row},
        {25, "Aspect#true", nb_me_key_prockey_size_sep.row},
        {30, "Y Balance#true", nb_me_key_chroma_cancel_y.row},
        {92, "Split#H&V", nb_dme_nonlinear_type_pageturn_pageturn3},
        {92, "Split#null", nb_dme_nonlinear_type_pageturn_pageturn4},
    };
    for (const auto& c : cases) {
        // Behind another one, and with the question's second dependency before or after it.
        const std::string line = c.line, path = line.substr(0, line.find('#') + 1);
        OpenLink(c.number, {"~@Nothing#", "~@Fine Key#", "~@Split#", "~@Key Type#", "~@Mode#",
                            "~@Separate Edge#", ("~@" + path).c_str()});
        SendDummyTally(("M/E-1@Key1@Type@" + line).c_str());
        EXPECT_EQ(Chosen(), c.table) << c.number << " " << c.line;
    }
}

TEST_F(KnobLinks, TheBorderOfAKeyGoesByItsTypeItsSplitAndWhatHalvesIt)
{
    for (const auto& [type, separate, fine, drop, table] :
         {std::tuple{"Linear", "false", "false", "false", nb_me_key_edge_edge_border1},
          {"Linear", "false", "true", "false", nb_me_key_edge_edge_border1h},
          {"Linear", "true", "true", "true", nb_me_key_edge_edge_border2},
          {"Linear", "", "false", "false", nb_me_key_edge_edge_border2},
          {"Linear", "true", "true", "false", nb_me_key_edge_edge_border2h},
          {"Wipe Pattern", "true", "true", "false", nb_me_key_edge_edge_border3},
          {"Key Wipe Pattern", "false", "false", "false", nb_me_key_edge_edge_border3}}) {
        OpenLink(1, {"~@Key Type#", "~@Separate Edge#", "~@Fine Key#", "~@Key Drop#"});
        Tally("M/E-1@Key1@Type@Key Type", type);
        if (*separate)
            Tally("M/E-1@Key1@Type@Separate Edge", separate);
        Tally("M/E-1@Key1@Type@Fine Key", fine);
        Tally("M/E-1@Key1@Type@Key Drop", drop);
        EXPECT_EQ(Chosen(), table) << type << " " << separate << " " << fine << " " << drop;
    }
}

TEST_F(KnobLinks, AKeyThatTurnsHasItsOwnBoxes)
{
    // turning: what the server says to turn
    for (const auto& [bank, key, turning, turns] : {std::tuple{"M/E-1", "Key1", "M/E-1@Key1", true},
                                                    {"M/E-1", "Key1", "M/E-2@Key1", false},
                                                    {"M/E-5", "Key8", "M/E-5@Key8", true},
                                                    {"M/E-5", "Key8", "M/E-5@Key7", false},
                                                    {"PGM/PST", "DSK3", "PGM/PST@DSK3", true},
                                                    {"PGM/PST", "DSK3", "M/E-1@Key3", false},
                                                    {"M/E-1", "Wipe", "M/E-1@Key1", false}}) {
        me_config_reset();
        GL_ProcKey_Rotation((std::string(turning) + "@Processed Key@Rotation").c_str(), "true");
        SetTree({bank, key, "Processed Key"}, 0x11160000);
        EXPECT_EQ(OpenLink(23, {}),
                  turns ? nb_me_key_prockey_rotation.row : nb_me_key_prockey_rotation_flat.row)
            << bank << key << " " << turning;
    }
}

TEST_F(KnobLinks, ALinkWithoutATableBlanksTheColumnAndAShownOneFollowsItsKey)
{
    OpenLink(35, {"~@Speed#"});
    EXPECT_THAT(Pressed(17), Contains("assign Knob0#M/E-1@Key1@Type@Angle@Angle"));
    OpenLink(18, {}); // a number that no case has
    Press(17);
    EXPECT_EQ(BT_GetKnobAssign(), 17);
    char path[CMD_SIZE];
    double value;
    EXPECT_EQ(NB_GetKnob_info("Angle\ndeg", path, &value, sizeof path), -1);
    SetTree({"M/E-1", "Key1", "Processed Key"}, 0x11160000);
    OpenLink(23, {"~2@Processed Key@Rotation#"});
    Press(17);
    (void)TakeQueuedCommands();
    SendDummyTally("M/E-1@Key1@Processed Key@Rotation#true");
    EXPECT_THAT(TakeQueuedCommands(), Contains("assign Knob0#M/E-1@Key1@Processed Key@Rotation@X"));
}

struct DmePages : TablePage {
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
        NB_SetVar(id, 0);
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
    std::map<int, const KnobCase*> unused;
    for (const KnobCase* c : {knob_cases_key, knob_cases_wipe, knob_cases_dme})
        for (; c->number >= 1; c++)
            unused[c->number] = c;
    const auto cases = unused;
    const auto check = [&](const BT_TBL* b, uint32_t page) {
        const auto c = cases.find(SpecialKnobNumber(b->nb));
        if (c == cases.end())
            return;
        unused.erase(c->first);
        for (const KnobQuestion& q : c->second->by)
            EXPECT_TRUE(!q.path || std::any_of(b->cmd + 1, std::end(b->cmd),
                                               [&](const char* cmd) {
                                                   return cmd && std::string_view(cmd).ends_with(
                                                                     std::string(q.path) + "#");
                                               }))
                << std::hex << page << " " << b->caption;
    };
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++)
        for (const auto& object : page->obj)
            if (object.type == OBJ_BT && (page->id >> 24 == 0x41 || page->id >> 24 == 0x11))
                for (auto* b = static_cast<const BT_TBL*>(object.addr); b->id >= 1; b++)
                    check(b, page->id);
    for (const auto& [number, c] : unused)
        ADD_FAILURE() << number << " is on no page";
}

TEST_F(DmePages, TheKnobsOfARollFollowItsSplit)
{
    const std::string split = "DME@Nonlinear@Roll@Split#";
    Open(0x41320000);
    Tell("DME@Nonlinear@Type@Type#Roll");
    (void)Press(17);
    ASSERT_EQ(BT_GetKnobAssign(), 17);
    EXPECT_TRUE(IsShown(nb_dme_nonlinear_type_roll_roll4));
    for (const auto& [button, value, table] :
         {std::tuple{33, "H", nb_dme_nonlinear_type_roll_roll1},
          {34, "V", nb_dme_nonlinear_type_roll_roll2},
          {35, "H&V", nb_dme_nonlinear_type_roll_roll3}}) {
        EXPECT_THAT(Press(button), Contains("put " + split + value));
        EXPECT_TRUE(IsShown(table)) << "at the press, " << value;
        Tell(split + value);
        EXPECT_TRUE(IsShown(table)) << "at the tally, " << value;
        EXPECT_THAT(Press(button), Contains("put " + split + "null")); // takes the split off
        EXPECT_TRUE(IsShown(nb_dme_nonlinear_type_roll_roll4)) << "off again";
        Tell(split + "null");
    }
    Tell(split + "V"); // from another panel
    EXPECT_TRUE(IsShown(nb_dme_nonlinear_type_roll_roll2));
    Tell("DME@Nonlinear@Type@Type#null");
    EXPECT_EQ(BT_GetKnobAssign(), -1);
    EXPECT_EQ(BT_GetVisible(33), BT_DISABLED);
}

TEST_F(DmePages, ACornerGoesAsFarAsModeFormatAndAspectLetIt)
{
    static const struct {
        int hd, wide;
        const char *linear[2], *perspective[2]; // H and V
    } cases[] = {
        {0, 0, {"4.00", "3.00"}, {"2.00", "1.50"}},
        {0, 1, {"5.33", "3.00"}, {"2.67", "1.50"}},
        {1, 0, {"4.00", "4.00"}, {"2.00", "2.00"}},
        {1, 1, {"5.33", "4.00"}, {"2.67", "2.00"}},
    };
    constexpr std::pair<int, const char*> corners[] = {{33, "Top Left"},
                                                       {34, "Top Right"},
                                                       {49, "Bottom Left"},
                                                       {50, "Bottom Right"},
                                                       {36, "All"}};
    const std::string path = "DME@Transform@Corner Pinning@";
    for (const auto& c : cases) {
        SYS_SignalFormat = c.hd;
        SYS_ScreenAspect = c.wide;
        Open(0x41720000);
        TellAll(path, {"Corner Pinning#true", "Mode#Linear"});
        for (const auto& [button, corner] : corners) {
            (void)Press(button);
            EXPECT_EQ(Farthest(1), "put " + path + corner + "@H#" + c.linear[0]);
            EXPECT_EQ(Farthest(2), "put " + path + corner + "@V#" + c.linear[1]);
        }
        EXPECT_THAT(Tell(path + "Mode#Perspective"), IsEmpty()) << "the column was opened anew";
        EXPECT_EQ(Farthest(1), "put " + path + "All@H#" + c.perspective[0]);
        (void)Press(52);
        EXPECT_EQ(Farthest(3), "put " + path + "Top@V#" + c.perspective[1]);
        Tell(path + "Corner Pinning#false");
        EXPECT_EQ(BT_GetKnobAssign(), -1) << "a disabled corner keeps no knobs";
    }
}

TEST_F(DmePages, TheCropHasOneSenseAndTheCellsAreThoseOfTheTransformThatIsTurned)
{
    const std::string path = "DME@Edge@Border/Crop@Crop";
    Open(0x41110000);
    Tell(path + "#true");
    (void)Press(33);
    EXPECT_EQ(Farthest(1), "put " + path + "@H#0.00");
    EXPECT_EQ(Farthest(2), "put " + path + "@V#4.00");
    Tell(path + "@Separate#true");
    EXPECT_EQ(Farthest(2), "put " + path + "@Left#5.33");
    const std::string status = "DME@Status@3D Param@";
    EXPECT_THAT(Open(0x41710000), Contains("add " + status + "Mode Status@Reference"));
    EXPECT_THAT(Tell(status + "Mode Status@Reference#12,5,0"),
                Contains("add " + status + "Global Source@Location@X"));
    Open(0x41410000); // a still picture has no cells
    EXPECT_THAT(Tell(status + "Mode Status@Reference#11,5,0"), IsEmpty());
}
