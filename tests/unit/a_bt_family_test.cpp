#include "a_bt_page.h"

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

TEST_F(ButtonFamily, WhatPageCodePutsOutStaysOut)
{
    OpenTally(bt_tly_dmewipe_size, {""});
    BT_SetDisable(17, 1);
    Dependency(1, "1201"); // this wipe has a size
    EXPECT_EQ(BT_GetVisible(17), BT_DISABLED);
}
