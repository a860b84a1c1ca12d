// The pages of the switcher's inputs, outputs and device interfaces; of all pages of units, the
// panel's too, that every key does something.
#include "page_table/setup_tabs.h"
#include "panel_desk.h"
#include "setup_sheet.h"
#include "tally_value.h"
#include "text.h"

static const std::string SWITCHER = "Engineering Setup@Switcher@";
using SwitcherIo = SetupTest;
using SetupKeys = PanelTest;

TEST_F(SwitcherIo, OnlyTheGroupOfInputsThatIsChosenIsShownAndFollowed)
{
    const std::string gain = SWITCHER + "Input@Video Process@Y Gain@";
    const Lines opened = Open(0x73320005);
    EXPECT_THAT(opened, Contains("add " + gain + "16"));
    EXPECT_THAT(opened, Not(Contains("add " + gain + "17")));
    TellAll(gain, {"1#90", "129#80"});
    const Lines lines = Choose(BTN_SHEET_GROUP, 9);
    EXPECT_THAT(lines, Contains("remove " + gain + "16"));
    EXPECT_THAT(lines, Contains("add " + gain + "136"));
    EXPECT_THAT(Caption(BTN_SHEET_GROUP), HasSubstr("\n129-136"));
    EXPECT_EQ(LS_GetNData(1), 8);
    EXPECT_EQ(Row(0, 4), "129|||") << "nothing of input 1 is left";
    (void)Tell(gain + "129#70");
    EXPECT_THAT(Tell(SWITCHER + "Input@Video Process@Y Gain@130#60"), IsEmpty());
    EXPECT_EQ(Row(1, 4), "130|||60");
    SendMessage(LMSG_KNOBVAR, 2, 71, 0, 0);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("put " + gain + "129#71"));
    EXPECT_THAT(Leave(), Contains("remove " + gain + "129"));
    EXPECT_THAT(Open(0x73320005), Contains("add " + gain + "129"))
        << "the choice outlives the page";
    (void)Choose(BTN_SHEET_GROUP, 1);
}

TEST_F(SwitcherIo, ANumberThatMayBeNoneSaysSo)
{
    const std::string output = SWITCHER + "Output@FC Output Assign@1";
    (void)Open(0x73330009);
    (void)Tell(output + "#0");
    SelectRow(0); // it has the line of the visit before
    EXPECT_EQ(Row(0, 2), "1|None");
    SendMessage(LMSG_KNOBVAR, 1, 7, 0, 0);
    EXPECT_EQ(Row(0, 2), "1|7*");
    SendMessage(LMSG_KNOBVAR, 1, 0, 0, 0);
    EXPECT_EQ(Row(0, 2), "1|None");
    (void)Tell(output + "#7");
    SendMessage(LMSG_KNOBVAR, 1, 0, 0, 0);
    EXPECT_THAT(Push(BTN_SHEET_EXECUTE), ElementsAre("put " + output + "#0"));
}

TEST_F(SwitcherIo, TheWayBackHasOnePlaceOnAllPages)
{
    constexpr uint32_t calibration = 0x73270001; // is left by Cancel
    int ways = 0;
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++) {
        const uint32_t id = page->id & 0xFFFF00FF;
        const PAGE* const top = SearchPageTable(page->id & 0xFFFF0000);
        const bool is_below = top && top != page && page->tree[2] && page->tree[3] &&
                              top->tree[2] && !top->tree[3] && Same(page->tree[2], top->tree[2]);
        if (id >> 24 != 0x73 || SearchPageTable(id) != page || !is_below || id == calibration)
            continue;
        (void)Open(id);
        for (const BT_MEM* b = bt_first(); b->id > 0; b++)
            if (b->type == BT_JUMP && !b->cmd[0][0] && Hex(b->cmd_var[0]) == (id & 0xFFFF0000)) {
                EXPECT_EQ(b->id, BTN_SETUP_BACK) << std::hex << id;
                ways++;
            }
        (void)Leave();
    }
    EXPECT_GT(ways, 60);
}

TEST_F(SetupKeys, EveryKeyDoesSomething)
{
    int keys = 0;
    static char router_source[] = "SRC1";
    BUS_SBusSrc[1] = router_source;
    for (const PAGE* page = PageTable; page->id != PAGE_END; page++) {
        const uint32_t id = page->id & 0xFFFF00FF;
        if (page->id >> 20 < 0x732 || page->id >> 20 > 0x737 || SearchPageTable(id) != page)
            continue;
        // What a panel's page chooses from is chosen already where it is lit; its settings aren't.
        const bool has_choices =
            id >> 16 >= 0x7321 && id >> 16 <= 0x7324 && (id < 0x73210003 || id >= 0x73210030);
        (void)Open(id);
        (void)Tell(PANEL "Config@External Bus Link@Master Bus List#1,BUS1");
        TellAll(XPT,
                {"Source@List#1,CAM1", "Source@Color#1,1", "Side Flags Button Assign#1,false"});
        TellAll(SWITCHER, {"Config@PGM Config@List#M/E-1,1,0F", // rows that the server makes
                           "Link@Internal Bus Link@Master Bus List#1,M/E-1 A"});
        SelectRow(LS_GetNData(1) - 1); // has nothing in hand
        std::vector<int> ids;
        for (const BT_MEM* b = bt_first(); b->id > 0; b++)
            ids.push_back(b->id);
        for (const int key : ids) {
            if (Usable({key}).empty() || bt_find(key)->is_missing ||
                (has_choices && BT_GetStatus(key) == BT_ON))
                continue;
            EXPECT_TRUE(HasEffect(key)) << std::hex << id << " key " << std::dec << key;
            keys++;
        }
        (void)Leave();
    }
    BUS_SBusSrc[1] = nullptr;
    EXPECT_GT(keys, 450);
    SetupLink_Reset();
    (void)Open(0x73360004);
    EXPECT_THAT(Usable({33, 34, 35}), ElementsAre(33, 34)) << "no link in hand to set it to";
    (void)Open(0x73360005);
    EXPECT_THAT(Usable({33, 34}), IsEmpty());
}
