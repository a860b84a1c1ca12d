#include "a_bt.h"
#include "a_bt_page.h"
#include "me_config.h"
#include "page_table/nb_edge.h"
#include "page_table/nb_key.h"
#include "page_table/nb_wipe.h"
#include "tdl.h"
#include <cstring>
#include <set>

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
