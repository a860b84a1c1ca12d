#include "a_hf.h"
#include "a_vf.h"
#include "tab_page.h"

const VF_TBL tabs[] = {
    {.id = 1, .caption = "Key1", .page = 0x11110000, .statcmd = "~2@Enable#true"},
    {.id = 2, .caption = "Key2", .page = 0x11210000, .statcmd = "~2@Enable#false"},
    {.id = 3, .caption = "Key3", .page = 0x11320000, .statcmd = "LOCAL@Test#1"},
    {.id = 4, .caption = "None", .page = 0},
    {.id = 5, .caption = "Lost", .page = 0x11E10000},
    {.id = 7, .caption = "Top", .page = 0x11000000},
    VF_END,
};

constexpr int X = 40;
static constexpr int Slot(int id)
{
    return 73 + 65 * (id - 1);
}

struct LeftTabs : TabPage {
    void SetUp() override
    {
        TabPage::SetUp();
        VF_Create(tabs, 1);
    }
};

TEST_F(LeftTabs, APressAsksForThePageOfItsSlot)
{
    for (const auto& [x, y, id] : {std::tuple<int, int, uint32_t>{X, Slot(2) - 1, 0x11110000u},
                                   {X, Slot(2), 0x11210000u},
                                   {93, Slot(2), 0x11210000u},
                                   {94, Slot(2), 0u},
                                   {X, Slot(4), 0u},
                                   {X, Slot(6), 0u},
                                   {X, 527, 0x11000000u},
                                   {X, 528, 0u}})
        EXPECT_EQ(Asked(x, y), id) << x << "," << y;
    SYS_RefSwrType = 256; // keys 3 and 4 have no edge
    EXPECT_EQ(Asked(X, Slot(3)), 0x11310000u);
    SYS_RefSwrType = 0;
    EXPECT_EQ(VF_SetDisplay(2, 0), 0);
    EXPECT_EQ(Asked(X, Slot(2)), 0u);
    EXPECT_EQ(VF_SetDisplay(6, 1), -1);
}

TEST_F(LeftTabs, ABoxThatGoesLeavesTheTabsTheirPaths)
{
    static const HF_TBL bottom[] = {
        {.id = 1, .caption = "Edge", .page = 0x11120000, .statcmd = {"~2@Soft#true"}}, HF_END};
    static const NB_TBL boxes[] = {{.id = 1, .caption = "", .cmd = "~2@Enable"},
                                   {.id = 2, .caption = "", .cmd = "~2@Soft"},
                                   {.id = 3, .caption = "", .cmd = "~2@Own"},
                                   NB_END};
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("add M/E-1@Key1@Enable"));
    HF_Create(bottom, 1);
    NB_Create(boxes, "");
    (void)TakeQueuedCommands();
    NB_Create(nullptr, "");
    auto sent = TakeQueuedCommands();
    std::erase_if(sent, [](const std::string& line) { return !line.starts_with("remove"); });
    EXPECT_THAT(sent, ElementsAre("remove M/E-1@Key1@Own"));
    HF_Create(nullptr, 0);
    Tally("M/E-1@Key1@Enable", "true");
    EXPECT_EQ(VF_GetStatus(1), 1);
    EXPECT_EQ(VF_GetStatus(2), 0);
    EXPECT_EQ(VF_GetStatus(6), -1);
    (void)TakeQueuedCommands();
    VF_Create(nullptr, 0);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("remove M/E-1@Key1@Enable"));
}

TEST_F(LeftTabs, ArmedDefaultRecallTakesTheGroupOnceAndStays)
{
    for (const auto& [slot, sent] : {std::pair<int, Strings>{2, {"default M/E-1@Key2"}},
                                     {7, {"default M/E-1"}},
                                     {4, {}},
                                     {5, {}},
                                     {6, {}}}) {
        BA_SetDefaultButton(1);
        EXPECT_EQ(Sent(X, Slot(slot)), sent) << slot;
        EXPECT_EQ(GL_CreatePage, 0u);
        EXPECT_EQ(BA_IsDefaultButton(), sent.empty()) << slot;
    }
    VF_SetDisplay(2, 0);
    EXPECT_THAT(Sent(X, Slot(2)), IsEmpty());
}

// The knobs of a pattern go back with it. A bank without a sub side has one wipe.
TEST_F(LeftTabs, ARecallOfAWipeTakesItsKnobsAway)
{
    static const VF_TBL wipe[] = {{.id = 1, .caption = "Wipe", .page = 0x15510000}, VF_END};
    for (const auto& [id, has_sub, owner, sent, owner_then] :
         {std::tuple{0x11510000u, 0, 33, "default M/E-1@Wipe", -1},
          {0x15510000u, 1, 34, "default M/E-1 SUB@Wipe", -1},
          {0x15510000u, 1, 35, "default M/E-1 SUB@Wipe", 35},
          {0x15710000u, 1, 33, "default M/E-1 SUB@Wipe", 33}}) { // no page of a wipe
        multiprogram2_me[1] = has_sub;
        SetTree({"M/E-1", "Wipe"}, id);
        VF_Create(wipe, 1);
        BT_SetKnobAssign(owner);
        BA_SetDefaultButton(1);
        EXPECT_THAT(Sent(X, Slot(1)), Contains(sent)) << std::hex << id;
        EXPECT_EQ(BT_GetKnobAssign(), owner_then) << std::hex << id;
    }
}

TEST_F(LeftTabs, TheTabOfAKeySaysItsSidesAsSoonAsTheListsDo)
{
    multiprogram2_me[0] = multiprogram2_me[1] = multiprogram2_me[4] = 1;
    constexpr Rect second = {0, Slot(2), 93, Slot(3) - 1};
    Pass();
    const auto bare = PixelsIn(second);
    for (const char* row : {"M/E-1,1,Main", "M/E-1,2,Sub", "P/P,8,Sub", "M/E-2,1,Sub"})
        Tally(OUTPUT_LIST, row);
    for (const char* row : {"M/E-1,1,03", "M/E-1,2,16", "P/P,8,FF", "M/E-2,1,FF"})
        Tally(PGM_LIST, row);
    Pass();
    EXPECT_NE(PixelsIn(second), bare);
    // What names nothing changes nothing.
    for (const char* row : {"", "M/E-1", "M/E-1,1", "M/E-9,1,Sub", "M/E-1,0,Sub", "M/E-1,9,Sub",
                            "M/E-1,-1,Sub", "M/E-1,x,Sub", ",,"}) {
        Tally(OUTPUT_LIST, row);
        Tally(PGM_LIST, row);
    }
    for (const auto& [id, main, further] : {std::tuple{0x11110000u, "Main", ""}, // key 1: output 1
                                            {0x11210000u, "Main", "Sub"},        // key 2: both
                                            {0x11310000u, "", "Sub"},            // key 3: output 2
                                            {0x11410000u, "", ""},               // key 4: no output
                                            {0x14110000u, "", "Sub"},            // the last output
                                            {0x12410000u, "Main", ""}, // a bank of one side
                                            {0x11510000u, "", ""}}) {  // no key page
        const KeyAssignText text = keyassign_str_get(id);
        EXPECT_STREQ(text.main, main) << std::hex << id;
        EXPECT_STREQ(text.further, further) << std::hex << id;
    }
    Tally(OUTPUT_LIST, "M/E-1,2,Main");
    EXPECT_STREQ(keyassign_str_get(0x11310000).main, "Main");
    Tally(OUTPUT_LIST, "KILL");
    EXPECT_STREQ(keyassign_str_get(0x11410000).main, "Main");
    Tally(OUTPUT_LIST, "M/E-1,2,Sub");
    EXPECT_STREQ(keyassign_str_get(0x11110000).main, "") << "output 1 has not come again";
    Tally(PGM_LIST, "KILL");
    EXPECT_STREQ(keyassign_str_get(0x11310000).main, "Main");
}
