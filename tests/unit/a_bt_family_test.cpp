#include "a_bt.h"
#include "a_bt_page.h"
#include "page_table/nb_edge.h"
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

struct ButtonFamily : ButtonPage {
    BT_TBL rows[BT_MAX + 1];
    char dependency[BT_COMMANDS][32];

    // One button with a tally function of the family; its dependencies are "~@1" to "~@7" with
    // these conditions.
    void OpenTally(int (*tally)(BT_MEM*, int, const char*, const char*),
                   std::initializer_list<const char*> conditions)
    {
        rows[0] = Button(17, BT_TOGGLE, {"~@0#*"});
        rows[1] = {.id = -1};
        rows[0].tally_func = tally;
        int n = 1;
        for (const char* condition : conditions) {
            PrintText(dependency[n], "~@%d#%s", n, condition);
            rows[0].cmd[n] = dependency[n];
            n++;
        }
        Open(rows);
        (void)TakeQueuedCommands();
    }
    static void Dependency(int n, const char* value)
    {
        char path[64];
        PrintText(path, "M/E-1@Key1@Type@%d", n);
        Tally(path, value);
    }
};

// --- Tally ---

TEST_F(ButtonFamily, VisibilityFollowsTheRuleOfTheFamily)
{
    // Each digit of a combination is the verdict of one dependency, from the first; "x" disables.
    static const struct {
        const char* name;
        int (*tally)(BT_MEM*, int, const char*, const char*);
        const char* usable;
        const char* disabled;
    } cases[] = {
        {"trans", bt_tly_trans_dmewipeadj, "x-", "xx"},
        {"any", bt_tly_normal, "-------", "------x"},
        {"edgeadj, no second", bt_tly_edgeadj, "x--xx", "xx-x-"},
        {"edgeadj, no third", bt_tly_edgeadj, "xxx--", "x-x-x"},
        {"keydrop, pair", bt_tly_keydrop, "--x-", "-xx-"},
        {"keydrop, fourth", bt_tly_keydrop, "----", "---x"},
    };
    for (const auto& c : cases) {
        OpenTally(c.tally, {"x", "x", "x", "x", "x", "x", "x"});
        for (const char* combination : {c.usable, c.disabled}) {
            for (int i = 0; combination[i]; i++)
                Dependency(i + 1, combination[i] == 'x' ? "x" : "");
            EXPECT_EQ(BT_GetVisible(17), combination == c.disabled) << c.name << " " << combination;
        }
        Dependency(0, "true");
        EXPECT_EQ(BT_GetOnOff(17), 1) << c.name << ": the own state as usual";
    }
}

TEST_F(ButtonFamily, TheWipeDecidesOnSizeAndTransparency)
{
    static const struct {
        const char* pattern;
        bool size;
        bool trans;
    } cases[] = {
        {"1200", false, false}, {"1201", true, true}, {"1208", true, true}, {"1209", false, false},
        {"1031", false, true},  {"7201", true, true}, {"", false, false},
    };
    for (const auto& c : cases) {
        OpenTally(bt_tly_dmewipe_size, {""});
        Dependency(1, c.pattern);
        EXPECT_EQ(BT_GetVisible(17), c.size ? BT_ENABLED : BT_DISABLED) << c.pattern;
        OpenTally(bt_tly_dmewipe_trans, {""});
        Dependency(1, c.pattern);
        EXPECT_EQ(BT_GetVisible(17), c.trans ? BT_ENABLED : BT_DISABLED) << c.pattern;
    }
    OpenTally(bt_tly_dmewipe_size, {""});
    BT_SetDisable(17, 1); // by page code: no rule brings it back
    Dependency(1, "1201");
    EXPECT_EQ(BT_GetVisible(17), BT_DISABLED);
}

// --- Key priority ---

struct KeyPriority : ButtonFamily {
    void OpenMatrix(int (*select)(BT_MEM*), int (*tally)(BT_MEM*, int, const char*, const char*))
    {
        for (int i = 0; i < 16; i++) {
            const int id = (1 + i / 4) << 4 | (1 + i % 4);
            rows[i] = Button(id, BT_RADIO, {"~@Key Priority#*"});
            rows[i].select_func = select;
            rows[i].tally_func = tally;
        }
        rows[16] = Button(86, BT_TOGGLE, {"~@Other#*"});
        rows[17] = {.id = -1};
        Open(rows);
        (void)TakeQueuedCommands();
        BT_SetStatus(86, BT_ON);
    }
    static void Priority(const char* value) { Tally("M/E-1@Key1@Type@Key Priority", value); }
};

TEST_F(KeyPriority, TheTallyGivesEachKeyItsPriority)
{
    OpenMatrix(bt_sel_keypriority, bt_tly_keypriority);
    Priority("1,2,3,");
    EXPECT_EQ(BT_GetStatus(0x11), BT_NO_TALLY) << "too short";
    Priority("2,1,4,3,5,6,7,8");
    for (int id : {0x21, 0x12, 0x43, 0x34})
        EXPECT_EQ(BT_GetStatus(id), BT_ON) << std::hex << id;
    EXPECT_EQ(BT_GetStatus(0x11), BT_OFF);
}

TEST_F(KeyPriority, APressMovesOneKeyAndShiftsTheOthers)
{
    static const struct {
        int press;
        const char* before;
        const char* sent; // behind the '#'
    } first_half[] = {
        {0x14, "1,2,3,4,5,6,7,8", "2,3,4,1,5,6,7,8"}, // key 4 to the top
        {0x23, "3,1,2,4", "3,1,2,4"}, // it is there already, and the bank has four keys
    };
    for (const auto& c : first_half) {
        OpenMatrix(bt_sel_keypriority, bt_tly_keypriority);
        Priority(c.before);
        Press(c.press);
        EXPECT_THAT(TakeQueuedCommands(),
                    ElementsAre(std::string("put M/E-1@Key1@Type@Key Priority#") + c.sent));
    }
    OpenMatrix(bt_sel_keypriority1, bt_tly_keypriority1);
    Priority("4,3,2,1,1,2,3,4");
    Press(0x12);
    EXPECT_THAT(TakeQueuedCommands(),
                ElementsAre("put M/E-1@Key1@Type@Key Priority#4,3,2,1,2,1,3,4"));
}

TEST_F(KeyPriority, NothingIsSentWhileTheOrderIsUnknown)
{
    OpenMatrix(bt_sel_keypriority, bt_tly_keypriority);
    Press(0x11);
    Priority("1,1,2,3"); // rubbish: nobody has the last place
    Press(0x11);
    Press(0x13);
    EXPECT_THAT(TakeQueuedCommands(), IsEmpty());
}

// --- Select ---

// --- Numbered knob links ---
