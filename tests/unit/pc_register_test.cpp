// The pages of the stored registers: what goes over the wire for every kind and every key, and what
// the lists show of the mirror.
#include "colours.h"
#include "pc_snapshot.h"
#include "pc_snapshot_hold.h"
#include "register_page.h"
#include <array>
#include <cstring>

const std::string LIST = "Snapshot@Snapshot@Attribute@", PUT = "put Snapshot@Snapshot@";

struct RegisterPages : RegisterDesk {
    // A line of a snapshot, behind its number.
    static void Store(const std::string& region, int no, const std::string& rest)
    {
        (void)Tell(LIST + region + "@List#" + std::to_string(no) + "," + rest);
    }
    static void SelectRows(const std::vector<int>& rows)
    {
        LS_SetMS(1, 1);
        LS_SetALL(1, 0);
        for (const int row : rows)
            LS_SetSelected(1, row, 0, 1);
    }
};

// Register 3 is at the cursor, 4 in the second list.
TEST_F(RegisterPages, EveryKeyOfEveryKindSendsItsCommand)
{
    using Text = const char*;
    static const std::tuple<uint32_t, Text, Text, Text, Text> kinds[] = {
        // the mask is that of the first region, with its comma
        {0x63100000, "Master Snapshot@", "", "Store/Recall@Recall#3",
         "Store/Recall@List#3,SHOW,S,U,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,"},
        {0x63200000, "Snapshot@", "2,", "Recall#2, 3", "Attribute@M/E-1@List#3,SHOW,S,,n,n,n"},
        {0x63300000, "Wipe Snapshot@", "2,", "Recall#2, 3", "M/E-1@List#3,SHOW,S"},
        {0x63400000, "DME Snapshot@", "2,", "Recall#2, 3", "M/E-1@List#3,SHOW,S"},
        {0x63500000, "Key Snapshot@", "0000000000000001,", "Recall#0000000000000001, 3",
         "Attribute@M/E-1@Key1@List#3,SHOW,S"},
    };
    static const std::tuple<uint32_t, int, bool, Text, std::string, int> actions[] = {
        // keys of a kind with regions; without them they stand one place further left
        {0x20000, 51, false, "Lock#", "3,3", 1},     {0x30000, 49, false, "Copy#", "4,false", 2},
        {0x40000, 49, false, "Move#", "4,false", 2}, {0x50000, 49, false, "Swap#", "4,false", 2},
        {0x60000, 51, true, "Delete#", "3,3", 1},    {0x70000, 51, true, "Rename#", "3,SHOW", 1},
    };
    for (const auto& [group, name, mask, recall, line] : kinds) {
        const bool has_regions = *mask;
        const std::string head = std::string("put Snapshot@") + name;
        (void)Tell(head.substr(4) + line);
        for (const auto& [shape, key, has_window, verb, rest, masks] : actions) {
            Open(group + shape);
            Cursor(1, 2);
            Cursor(2, 3);
            Lines sent = Puts(masks == 1 && !has_regions ? key - 1 : key);
            if (has_window)
                sent = Confirm();
            const std::string runs = masks == 2 ? std::string("3,3,") + mask + rest : rest;
            EXPECT_THAT(sent, ElementsAre(head + verb + mask + runs)) << head << verb;
        }
        Open(group + 0x10000);
        Cursor(1, 2);
        EXPECT_THAT(Puts(has_regions ? 50 : 49), ElementsAre(head + recall));
    }
}

TEST_F(RegisterPages, TheAttributesOfARegisterTurnOver)
{
    static const std::tuple<int, const char*, const char*> cases[] = {
        // without any, with all
        {BTN_SNAPSHOT_EFFDISS, "Effect Dissolve#2,1,1,true", "Effect Dissolve#2,1,1,false"},
        {BTN_SNAPSHOT_AUTOTRANS, "Auto Transition#2,1,1,true", "Auto Transition#2,1,1,false"},
        {BTN_SNAPSHOT_GPI, "GPI#2,1,1,1", "GPI#2,1,1,null"},
        {BTN_SNAPSHOT_DURATION, "Duration#2,1,1,45", "Duration#2,1,1,45"},
    };
    const std::string duration = LIST + "M/E-1@Temporary Duration";
    EXPECT_THAT(Open(PAGE_SNAPSHOT_ATTRIBUTE), Contains("add " + duration));
    Cursor(1, 0);
    (void)Tell(duration + "#45");
    for (const auto& [key, off, on] : cases) {
        Store("M/E-1", 1, "A,S,,n,n,n");
        EXPECT_THAT(Puts(key), ElementsAre("put " + LIST + off));
        Store("M/E-1", 1, "A,S,,30,30,1");
        EXPECT_THAT(Puts(key), ElementsAre("put " + LIST + on));
        Store("M/E-1", 1, "A,L,,n,n,n");
        EXPECT_THAT(Puts(key), IsEmpty());
    }
    EXPECT_THAT(Puts(51), IsEmpty()); // store
    Store("M/E-1", 1, "A,S,,n,n,n");
    EXPECT_THAT(Puts(51), ElementsAre(PUT + "Store#2,1"));
    SendMessage(LMSG_KNOBVAR, 1, 12, 0, 0);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("put " + duration + "#12"));
    EXPECT_THAT(Puts(BTN_SNAPSHOT_DURATION), ElementsAre("put " + LIST + "Duration#2,1,1,12"));
    Store("M/E-1", 1, "A,S,,30,n,n");
    EXPECT_EQ(Held(Leave(), duration), -1);
    Open(PAGE_SNAPSHOT_ATTRIBUTE);
    EXPECT_EQ(BT_GetStatus(BTN_SNAPSHOT_EFFDISS), BT_ON);
}

// Figures of the server's documents, not of our tables.
TEST(RegisterRegions, BitsAndIds)
{
    static const std::tuple<size_t, int, uint64_t, uint64_t> cases[] = {
        {0, 257, 0x2, 0x2},
        {5, 256, 0x1, 0x1},
        {10, 267, 0x10000000, 0x20000000000000},
        {11, 260, 0x800000, 0x200000000000},
        {12, 272, 0x40, 0x10},
        {20, 288, 0x4000, 0x101000},
        {28, 304, 0, 0x10000000},
        {41, 336, 0, 0x20000000000},
        {42, 368, 0, 0x2000000000000},
    };
    for (const auto& [row, id, snapshot, effect] : cases) {
        EXPECT_EQ(EffectRegion[row].bitmap, effect) << row;
        EXPECT_EQ(EffectRegion[row].id, id) << row;
        if (snapshot) {
            EXPECT_EQ(SnapshotRegion[row].bitmap, snapshot) << row;
        }
    }
    EXPECT_EQ(SnapshotRegion[28].bitmap, 0x400000u);
    EXPECT_EQ(SnapshotRegion[28].id, 352);
    EXPECT_EQ(KeySSRegion[47].bitmap, uint64_t(1) << 47);
    uint64_t seen = 0; // no two regions share a bit
    for (const EFFREGION* r = EffectRegion.data(); r->id; seen |= r++->bitmap)
        EXPECT_EQ(seen & r->bitmap, 0u) << r->cmd;
}

TEST_F(RegisterPages, HoldGoesToMarksAndBack)
{
    const std::string full_router(256, 'F');
    static const struct {
        int region;
        std::string text, shown, back, flag;
        int keys = 8, panel = 0, switcher = 0; // of the bank; 0: as they are
    } cases[] = {
        {0, "U1AB12", " A B 1 2 U1", "AB12U1", " x"},
        {0, "U112D2", " 1 2 U1 D2", "12U1D2", " x"}, // the digits of marks are no keys
        {0, "", "", "", ""},
        {5, "zz9\x01?", "", "", ""},
        {0, "AB12345678U1U2U3", " A B 1 2 3 4 5 6 7 8 U1 U2 U3", "AB12345678U1U2U3", " X"},
        {0, "AB1234567U1U2U3", " A B 1 2 3 4 5 6 7 U1 U2 U3", "AB1234567U1U2U3", " x"},
        {0, "AB1234U1U2U3", " A B 1 2 3 4 U1 U2 U3", "AB1234U1U2U3", " X", 4},
        {0, "AB123U1U2U3", " A B 1 2 3 U1 U2 U3", "AB123U1U2U3", " x", 4},
        {0, "AB12345U1U2U3", " A B 1 2 3 4 5 U1 U2 U3", "AB12345U1U2U3", " x", 5},
        {0, "A5U1", " A U", "A5U1", " x", 4, DEVTYPE_QRD33, DEVTYPE_NTR40},
        {0, "AB12345678U1U2U3D2", " A B 1 2 3 4 5 6 7 8 U U2 U3 D2", "AB12345678U1U2U3D2", " x", 8,
         DEVTYPE_QRD33}, // exactly 13 there
        {5, "AB1234U1U2U3", " A B 1 2 3 4 U1 U2 U3", "AB1234U1U2U3", " X", 4},
        {6, "AB12345678U1U2U3", " 1 2 3 4 5 6 7 8 U1 U2 U3", "12345678U1U2U3", " X"},
        {6, "12345678U1U2U3D2", " 1 2 3 4 5 6 7 8 U U2 U3 D2", "12345678U1U2U3D2", " X", 8,
         DEVTYPE_QRD33}, // of a sub side that does
        {6, "AB1234U1U2U3", " 1 2 3 4 U1 U2 U3", "1234U1U2U3", " X", 4},
        {12, "000000010000", " Aux", "0000000100000000", " x"},
        {12, "00f0a90A0000", " Aux", "00F0A90A00000000", " x"},
        {12, "FFFFFFFF0000FFFF", " Aux", "FFFFFFFF0000FFFF", " X"},
        {12, "0000000000010000", "", "0000000000010000", " x"}, // behind the aux buses
        {27, "FvFkBvBk", " Fv Fk Bv Bk", "FvFkBvBk", " X"},
        {20, "false", "", "false", ""},
        {28, "80", " RTR", "80" + std::string(254, '0'), " x"},
        {28, full_router, " RTR", full_router, " X"},
        {28, full_router.substr(1) + "7", " RTR", full_router.substr(1) + "7", " x"},
        {29, "A", "", "", ""},
    };
    const int panel = SYS_RefPnlType, switcher = SYS_RefSwrType;
    for (const auto& c : cases) {
        char flags[HOLD_MARKS_MAX] = {};
        char text[HOLD_TEXT_SIZE], shown[64];
        GL_KeyMax[c.region == 5 ? 5 : 0] = c.keys;
        SYS_RefPnlType = c.panel ? c.panel : panel;
        SYS_RefSwrType = c.switcher ? c.switcher : switcher;
        (void)snapshot_xpthold_set(c.region, c.text.c_str(), flags);
        snapshot_xpthold_text(c.region, flags, text, sizeof text);
        snapshot_xpthold_display(c.region, c.text.c_str(), shown, sizeof shown);
        EXPECT_EQ(text, c.back) << c.text;
        EXPECT_EQ(shown, c.shown) << c.text;
        EXPECT_EQ(snapshot_xpthold_flag(c.region, c.text.c_str()), c.flag) << c.text;
    }
    // In a format of half the keys there are four.
    for (const auto& [size, scan, keys] : {std::array{4, 4, 4}, {4, 3, 8}, {3, 4, 8}}) {
        SYS_Format_Size = size;
        SYS_Format_Scan = scan;
        EXPECT_EQ(snapshot_xpthold_keys(0), keys) << size << scan;
    }
    // Boards of a small switcher that are split further show the keys that their banks have.
    for (const auto& [type, split, max, keys] : {std::array{int(DEVTYPE_NTR40), 3, 6, 6},
                                                 {DEVTYPE_NTR40, 3, 9, 8},
                                                 {DEVTYPE_NTR40, 2, 4, 4},
                                                 {DEVTYPE_NTR40, 2, 6, 8},
                                                 {switcher, 3, 4, 8}}) {
        SYS_RefSwrType = type;
        std::fill(std::begin(GL_BoardMESplit), std::end(GL_BoardMESplit), split);
        GL_KeyMax[0] = max;
        EXPECT_EQ(snapshot_xpthold_keys(0), keys) << split << max;
    }
}

// Below the list: the regions in grey, but orange where they hold the register at the cursor and
// are not chosen.
TEST_F(RegisterPages, TheStripShowsWhichRegionsHoldTheRegisterAndALineItsAttributes)
{
    static const std::tuple<uint32_t, const char*, const char*, const char*> cases[] = {
        {0x63220000, "Snapshot@Snapshot@Attribute@P/P@List", "1,,E,,n,n,n", "1,A,S,,n,n,n"},
        {0x63320000, "Snapshot@Wipe Snapshot@P/P@List", "1,,E", "1,A,S"},
        {0x63520000, "Snapshot@Key Snapshot@Attribute@M/E-1@Key2@List", "1,,E", "1,A,S"},
        {0x62220000, "Effect@Effect@Attribute@List@GPI", "1,E,,U,N,0", "1,S,A,U,N,0"},
        {0x62320000, "Effect@Effect@Attribute@List@DME5", "101,E,,U,N,0", "101,S,A,U,N,0"},
    };
    for (const auto& [page, region, empty, stored] : cases) {
        Open(page);
        Cursor(1, 0);
        const auto orange = [path = region + std::string("#")](const char* line) {
            (void)Tell(path + line);
            return std::ranges::count(Seen({102, 373, 564, 426}), ORANGE);
        };
        const auto before = orange(empty);
        EXPECT_GT(orange(stored), before) << region;
        EXPECT_EQ(orange(empty), before) << region;
    }

    // Field by field: status, hold, dissolve, transition, GPI.
    const std::string read = "read " + LIST + "M/E-1@List";
    EXPECT_THAT(Open(0x63210000), Contains(read));
    for (int no = 1; no <= 99; no++)
        Store("M/E-1", no, ",E,,n,n,n");
    EXPECT_THAT(Open(0x63210000), Not(Contains(read))) << "all have been told";
    Store("M/E-1", 3, "OPENING LONG,L,AB,1234,n,1");
    Store("M/E-2", 4, "ELSEWHERE,S,,n,n,n");
    Store("M/E-1", 100, "TOO FAR,S,,n,n,n");
    EXPECT_EQ(Cells(1, 2, 0, 7), "3|OPENING LON|L| A B|123||");
    EXPECT_EQ(Cell(1, 3, 1), "");
    EXPECT_EQ(LS_GetStatus(1, 2, 0), 0);
    EXPECT_EQ(LS_GetStatus(1, 3, 0), 1); // grey
    Open(0x63230000);
    EXPECT_EQ(Cell(1, 2, 3), " x D G");
    Choose(REGKIND_SNAPSHOT, {272});
    (void)Tell("Snapshot@Snapshot@Clip Event@User1@List#FM5,7,ON,ON,OFF,CLIP,0,10");
    Store("User1", 7, "WITH CLIP,S,,n,n,n");
    Open(0x63210000);
    EXPECT_EQ(Cell(1, 6, 6), "On");
    (void)Tell("Snapshot@Snapshot@Clip Event@User1@List#FM5,7,ON,OFF,OFF,CLIP,0,10");
    EXPECT_EQ(Cell(1, 6, 6), "");
}

TEST_F(RegisterPages, OperationsGoToAllSelectedRegionsInRuns)
{
    Choose(REGKIND_SNAPSHOT, {258, 257, 259, 352});
    Store("M/E-2", 4, "LOCKED,L,,n,n,n");
    Open(0x63260000); // delete; the locked one stays
    SelectRows({1, 2, 3, 4, 8});
    (void)Press(51);
    EXPECT_THAT(Confirm(), ElementsAre(PUT + "Delete#40000E,2,3", PUT + "Delete#40000E,5,5",
                                       PUT + "Delete#40000E,9,9"));
    Open(0x63220000); // the register at the cursor says which way
    Cursor(1, 3);
    EXPECT_THAT(Puts(51), ElementsAre(PUT + "UnLock#40000E,4,4"));
    Open(0x63270000);
    Cursor(1, 3);
    (void)Press(51); // locked: no window
    EXPECT_EQ(GetWindow(), WINDOW_NONE);
    Store("M/E-2", 4, "FREE,S,,n,n,n");
    (void)Puts(51);
    EXPECT_THAT(Confirm(), ElementsAre(PUT + "Rename#40000E,4,FREE"));
    SYS_MySwrMax = 0; // then a channel leads
    for (const auto& [chosen, mask] : {std::pair{257, "4000"}, {289, "8000"}}) {
        Choose(REGKIND_SNAPSHOT, {chosen});
        Open(0x63220000);
        EXPECT_THAT(Puts(51), ElementsAre(PUT + "Lock#" + mask + ",4,4"));
    }
}

TEST_F(RegisterPages, RunsKeepTheirGapsAndGoToARegionOfTheirSort)
{
    Choose(REGKIND_SNAPSHOT, {257});
    Open(0x63230000);
    SelectRows({0, 1, 4});
    Cursor(2, 95);
    (void)Press(BTN_REGISTER_WO_NAME);
    EXPECT_THAT(Puts(49), ElementsAre(PUT + "Copy#2,1,2,2,96,true"));
    Cursor(2, 94);
    EXPECT_THAT(Puts(49), ElementsAre(PUT + "Copy#2,1,2,2,95,true", PUT + "Copy#2,5,5,2,99,true"));
    Store("M/E-1", 96, "LOCKED,L,,n,n,n");
    EXPECT_THAT(Puts(49), ElementsAre(PUT + "Copy#2,1,1,2,95,true", PUT + "Copy#2,5,5,2,99,true"));
    Cursor(2, 0); // onto itself
    EXPECT_THAT(Puts(49), IsEmpty());
    EXPECT_THAT(Puts(BTN_REGISTER_WO_NAME), IsEmpty());
    EXPECT_THAT(Tell("Snapshot@Snapshot@Copy@Direction@Reverse#true"), IsEmpty());
    for (const char* const on : {"false", "true"}) // kept here: no answer is needed
        EXPECT_THAT(Puts(BTN_REGISTER_AUTO_CORRECT),
                    ElementsAre(PUT + "Copy@Direction@Reverse#" + on));
    EXPECT_EQ(BT_GetStatus(BTN_REGISTER_AUTO_CORRECT), BT_ON);

    Store("P/P", 6, "TARGET,S,,n,n,n");
    Open(0x63230000);
    Cursor(1, 0);
    const auto go_to = [](int id) {
        (void)Press(BTN_REGISTER_REGION_2);
        SendMessage(LMSG_PANEQUIT, Pane_GetActiveID(), id, 0, 0);
        Pane_Quit(Pane_GetActiveID());
    };
    go_to(256);
    EXPECT_EQ(Caption(BTN_REGISTER_REGION_2), "P/P");
    Cursor(2, 5);
    EXPECT_EQ(Cell(2, 5, 1), "TARGET");
    EXPECT_THAT(Puts(49), ElementsAre(PUT + "Copy#2,1,1,1,6,false"));
    for (const int none : {272, 271}) { // a user is of another sort; not in the table
        go_to(none);
        EXPECT_THAT(Puts(49), ElementsAre(PUT + "Copy#2,1,1,1,6,false"));
    }
    Choose(REGKIND_SNAPSHOT, {257, 258}); // several go to themselves
    Open(0x63230000);
    Cursor(2, 5);
    EXPECT_EQ(BT_GetVisible(BTN_REGISTER_REGION_2), BT_DISABLED);
    EXPECT_THAT(Puts(49), ElementsAre(PUT + "Copy#6,1,1,6,6,false"));
    for (const uint32_t page : {0x63230000u, 0x63240000u, 0x63250000u}) {
        Open(page);
        Cursor(2, 40 + int(page >> 16 & 15));
        Open(page);
        EXPECT_EQ(LS_GetNowLine(2), 40 + int(page >> 16 & 15)) << "kept for all of them";
    }
}

TEST_F(RegisterPages, TheHoldPageWritesWhatItsRowsSay)
{
    static const std::tuple<int, int, const char*, const char*, int, std::string> cases[] = {
        {257, 2, "M/E-1", "1,A,S,B2,n,n,n", 0, "6,1,1,B12"},
        {257, 10, "M/E-1", "1,A,S,B2,n,n,n", 0, "6,1,1,B2U1"},
        {261, 0, "M/E-1 Sub", "1,A,S,2,n,n,n", 0, "1000004,1,1,12"},
        {272, 33, "User1", "1,A,S,00000001,n,n,n", 0, "40,1,1,0000000100000002"},
        {288, 0, "DME1", "1,A,S,false,n,n,n", 0, "4000,1,1,FvFkBvBk"},
        {352, 1, "RTR", "1,A,S,,n,n,n", 0x81, "400000,1,1,0081"},
        {257, 2, "M/E-1", "1,A,L,B2,n,n,n", 0, ""}, // locked
    };
    for (const auto& [id, row, region, line, levels, put] : cases) {
        Choose(REGKIND_SNAPSHOT, {id, 258}); // the other one where it is of the same sort
        (void)Tell(LIST + region + "@List#" + line);
        Open(PAGE_SNAPSHOT_ATTRIBUTE);
        Cursor(1, 0);
        PaneRTRLvl_SetSelect(levels);
        (void)Press(BTN_SNAPSHOT_XPTHOLD);
        const uint32_t page = std::exchange(GL_CreatePage, 0);
        EXPECT_EQ(page, id == 352 ? PAGE_SNAPSHOT_XPTHOLD_RTR : PAGE_SNAPSHOT_XPTHOLD);
        EXPECT_EQ(CreatePage(page), 0);
        Cursor(1, row);
        const Lines sent = Puts(49);
        if (put.empty())
            EXPECT_THAT(sent, IsEmpty());
        else
            EXPECT_THAT(
                sent, ElementsAre(testing::MatchesRegex("put " + LIST + "Xpt Hold#" + put + "0*")));
    }
}

TEST_F(RegisterPages, AnExtraBusIsListedWhereItExistsAndQuickTouchesDoNotTakeEachOtherBack)
{
    const std::string row = "Engineering Setup@Panel@Config@MP2 Main/Sub Assign@Main/Sub Assign@"
                            "8th Row#";
    const std::string color = "M/E-1@Key1@Type@Matte Adjust@Color 2#";
    Store("M/E-1", 1, "A,S,,n,n,n");
    EXPECT_THAT(Open(PAGE_SNAPSHOT_XPTHOLD), Contains("read " + color.substr(0, color.size() - 1)));
    EXPECT_EQ(LS_GetNData(1), HOLD_ME_MARKS);
    EXPECT_EQ(Cell(1, 12, 0) + "," + Cell(1, 13, 0), "Util 3,DME 2nd Video");
    (void)Tell(row + "None");
    EXPECT_EQ(LS_GetNData(1), HOLD_ME_MARKS - 1);
    EXPECT_EQ(Cell(1, 12, 0), "DME 2nd Video");
    Cursor(1, 12);
    EXPECT_THAT(Puts(49), ElementsAre("put " + LIST + "Xpt Hold#2,1,1,D2"));
    Store("M/E-1", 1, "A,S,D2,n,n,n");
    (void)Tell(color + "None");
    EXPECT_EQ(LS_GetNData(1), HOLD_ME_MARKS - 1) << "what is held can be released";
    Store("M/E-1", 1, "A,S,,n,n,n");
    EXPECT_EQ(LS_GetNData(1), HOLD_ME_MARKS - 2);
    (void)Tell(row + "Main");
    EXPECT_EQ(Cell(1, 12, 0), "Util 3");

    // The second touch comes before the server's line of the first.
    Store("M/E-1", 1, "A,S,,n,n,n");
    Cursor(1, 0);
    (void)Press(49);
    Cursor(1, 1);
    EXPECT_THAT(Puts(49), ElementsAre("put " + LIST + "Xpt Hold#2,1,1,AB"));
    EXPECT_EQ(BT_GetOnOff(49), 0);
    Store("M/E-1", 1, "A,S,AB,n,n,n");
    Pass(10);
    EXPECT_EQ(BT_GetStatus(49), BT_ON);
    EXPECT_EQ(Cell(1, 0, 1), "ON");
    Store("M/E-1", 1, "A,S,A1,n,n,n"); // those on either side of the cursor
    Pass(10);
    EXPECT_EQ(BT_GetStatus(49), BT_OFF);
}

TEST_F(RegisterPages, AClipOfAUserIsSwitched)
{
    for (const auto& [region, has_clips] :
         {std::pair{257, false}, {272, true}, {279, true}, {288, false}}) {
        Choose(REGKIND_SNAPSHOT, {region});
        Open(PAGE_SNAPSHOT_ATTRIBUTE);
        Pass(10);
        EXPECT_EQ(BT_GetVisible(BTN_SNAPSHOT_CLIP) == BT_ENABLED, has_clips) << region;
    }
    Choose(REGKIND_SNAPSHOT, {273});
    Open(PAGE_SNAPSHOT_ATTRIBUTE);
    Cursor(1, 8);
    (void)Tell("Snapshot@Snapshot@Clip Event@User2@List#FM3,9,ON,ON,OFF,CLIP,0,10");
    EXPECT_EQ(PageBy(BTN_SNAPSHOT_CLIP), PAGE_SNAPSHOT_CLIP);
    (void)TakeQueuedCommands();
    EXPECT_EQ(CreatePage(PAGE_SNAPSHOT_CLIP), 0);
    const std::string status = "Frame Mem 2@Clip/Still@Output Status@FM";
    EXPECT_THAT(TakeQueuedCommands(),
                AllOf(Contains("add Engineering Setup@Switcher@Config@User1-8 Config@User2"),
                      Contains("add " + status + "1"), Not(Contains("add " + status + "0"))));
    Cursor(1, 2);
    EXPECT_EQ(Cells(1, 2, 0, 7), "FM3|On|CLIP||00:00:00:00|00:00:00:10|");
    EXPECT_EQ(Cells(1, 3, 0, 7), "FM4||||||");
    EXPECT_EQ(BT_GetStatus(BTN_CLIP_AUTO_PLAY), BT_ON);
    EXPECT_THAT(Puts(BTN_CLIP_AUTO_PLAY), ElementsAre(PUT + "Clip Event@User2@FM3@AutoPlay#9,OFF"));
    (void)Tell("Snapshot@Snapshot@Clip Event@User2@List#FM3,9,ON,OFF,ON,CLIP,0,12");
    EXPECT_EQ(Cells(1, 2, 0, 7), "FM3||CLIP|On|00:00:00:00|00:00:00:12|");
    static const std::pair<const char*, const char*> outputs[] = {
        {"FM3#2,/NEWS/OPENING.SFH", "OPENING"},
        {"FM3#x", "OPENING"},
        {"FM3#9,/A.SFH", "OPENING"},
        {"FM99#0,", "OPENING"},
        {"FM3#1,", "Through"},
        {"FM3#0,", "Black"},
        {"FM3#2,", ""},
    };
    for (const auto& [told, shown] : outputs) {
        (void)Tell(status.substr(0, status.size() - 2) + told);
        EXPECT_EQ(Cell(1, 2, 6), shown) << told;
    }
    const std::string config = "Engineering Setup@Switcher@Config@User1-8 Config@User";
    (void)Tell(config + "2#Aux1,FM30,FM4"); // the third output is another user's
    (void)Tell(config + "1#FM3");
    EXPECT_THAT(Puts(BTN_CLIP_AUTO_PLAY), IsEmpty());
    EXPECT_EQ(LS_GetStatus(1, 2, 0), 1);
    (void)Tell(config + "2#FM3");
    EXPECT_THAT(Puts(BTN_CLIP_AUTO_PLAY), testing::SizeIs(1));
    const auto detail = Seen({100, 387, 566, 428});
    Cursor(1, 3); // no clip there
    EXPECT_NE(Seen({100, 387, 566, 428}), detail);
    EXPECT_THAT(Puts(BTN_CLIP_AUTO_PLAY), IsEmpty());
    Cursor(1, 2);
    Store("User2", 9, "A,L,,n,n,n"); // locked
    EXPECT_THAT(Puts(BTN_CLIP_AUTO_PLAY), IsEmpty());
    EXPECT_THAT(Leave(), Contains("remove " + status + "1"));
}

TEST_F(RegisterPages, TheRecallModesOfAKeyTurnOverOneByOne)
{
    Choose(REGKIND_KEYSS, {513, 512});
    EXPECT_THAT(Open(0x63510000),
                Contains("add Snapshot@Key Snapshot@Attribute@Recall Mode#M/E-1@Key2"));
    const std::string put = "put Snapshot@Key Snapshot@Attribute@Recall Mode#M/E-1@Key";
    TellAll(put.substr(4), {"2,true,false,true", "1,false,false,false"});
    const char* const turned[] = {"false,false,true", "true,true,true", "true,false,false"};
    for (int m = 0; m < 3; m++) {
        EXPECT_THAT(Puts(BTN_KEYSS_MODIFIER + m),
                    ElementsAre(put + "1," + turned[m], put + "2," + turned[m]));
    }
    EXPECT_THAT(Leave(), Contains("remove Snapshot@Key Snapshot@Attribute@Recall Mode#M/E-1@Key2"));
}

// Cells of the overview from (119, 164), 58 and 26 apart.
TEST_F(RegisterPages, TheOverviewActsOnEveryRegionThatHoldsTheRegister)
{
    Choose(REGKIND_SNAPSHOT, {257});
    Store("M/E-1", 12, "BOTH,S,,n,n,n");
    Store("P/P", 12, "BOTH,S,,n,n,n");
    Open(0x63000000);
    const auto touch = [](int column, int row) {
        return Touch(119 + 58 * column + 10, 164 + 26 * row + 10);
    };
    touch(1, 2);
    EXPECT_THAT(Puts(50), ElementsAre(PUT + "Lock#3,12,12"));
    EXPECT_THAT(Puts(49), ElementsAre(PUT + "Recall#3, 12"));
    for (const auto& [key, command] : {std::pair{51, "Rename#3,12,BOTH"}, {54, "Delete#3,12,12"}}) {
        EXPECT_THAT(Puts(key), IsEmpty());
        EXPECT_THAT(Confirm(), ElementsAre(PUT + command));
    }
    (void)Press(52);
    touch(0, 0); // no register
    Touch(119 + 54, 200);
    EXPECT_THAT(Puts(49), ElementsAre(PUT + "Recall#3, 12"));
    touch(2, 1);
    EXPECT_THAT(Puts(53),
                ElementsAre(PUT + "Copy#2,12,12,2,21,false", PUT + "Copy#1,12,12,1,21,false"));
    // Shown at once; the server has said nothing yet.
    EXPECT_THAT(Puts(49), ElementsAre(PUT + "Recall#3, 21"));
    touch(9, 9);
    for (const int key : {49, 50, 51, 54}) {
        EXPECT_THAT(Puts(key), IsEmpty()) << "nothing there";
        EXPECT_EQ(GetWindow(), WINDOW_NONE) << key;
    }
}

TEST_F(RegisterPages, TheOverviewLeavesALockedRegisterAsItIs)
{
    constexpr Rect CELLS[] = {{119, 424 - 26, 169, 418}, {119 + 58, 164 + 26, 227, 210}}; // 9, 11
    constexpr Rect DETAIL = {100, 76, 701, 141};
    Choose(REGKIND_SNAPSHOT, {257});
    Store("M/E-1", 9, "ONE,L,,n,n,n");
    Store("P/P", 9, "TWO,S,,n,n,n");
    Store("M/E-1", 10, "ALL,L,,n,n,n");
    Open(0x63210000);
    Cursor(1, 8);
    Open(0x63000000);
    EXPECT_EQ(Shown("Register"), "9") << "as in the list";
    const auto turn = [](int number) { SendMessage(LMSG_KNOBVAR, 1, number, 0, 0); };
    for (const auto& [to, shown] : {std::pair{0, "1"}, {100, "99"}, {9, "9"}}) {
        turn(to);
        EXPECT_EQ(Shown("Register"), shown);
    }
    EXPECT_THAT(Puts(50), ElementsAre(PUT + "UnLock#3,9,9")) << "one of its regions is locked";
    for (const auto& [key, command] : {std::pair{51, "Rename#1,9,ONE"}, {54, "Delete#1,9,9"}}) {
        (void)Press(key);
        EXPECT_THAT(Confirm(), ElementsAre(PUT + command));
        Pass(200);
    }
    Store("M/E-1", 12, ",S,,n,n,n");
    turn(12);
    (void)Press(51);
    EXPECT_THAT(Confirm(), IsEmpty()) << "no name";
    (void)Puts(52);
    EXPECT_THAT(Puts(53), IsEmpty()) << "onto itself";
    (void)Puts(52);
    turn(9);
    EXPECT_THAT(Seen({177, 216, 227, 236}), Not(Each(0x005A6Eu))) << "its number";
    // From, and again: not from there after all.
    for (const bool is_on : {true, false, true}) {
        (void)Puts(52);
        EXPECT_EQ(BT_GetStatus(52) == BT_THIRD, is_on);
        EXPECT_EQ(BT_GetVisible(53) == BT_ENABLED, is_on);
    }
    turn(10);
    for (const int key : {51, 53, 54}) {
        EXPECT_THAT(Puts(key), IsEmpty());
        EXPECT_EQ(GetWindow(), WINDOW_NONE) << key;
    }
    const auto look = [&](int cell) { return Seen(CELLS[cell]); };
    const auto locked = look(0);
    EXPECT_THAT(locked, Contains(0x005A6Eu));
    const auto empty = look(1);
    EXPECT_THAT(empty, Contains(0x14323Cu));
    turn(11);
    const auto chosen = look(1);
    EXPECT_THAT(chosen, Contains(0x00C8F0u));
    const auto nothing = Seen(DETAIL);
    EXPECT_THAT(Puts(53),
                ElementsAre(PUT + "Copy#2,9,9,2,11,false", PUT + "Copy#1,9,9,1,11,false"));
    EXPECT_NE(look(1), chosen) << "its name";
    EXPECT_NE(Seen(DETAIL), nothing);
    EXPECT_EQ(BT_GetStatus(52), BT_OFF);
    EXPECT_EQ(BT_GetVisible(53), BT_DISABLED);
    EXPECT_THAT(Puts(50), ElementsAre(PUT + "Lock#3,11,11")) << "the copy is not";
    (void)Press(51);
    EXPECT_THAT(Confirm(), ElementsAre(PUT + "Rename#3,11,ONE"));
    turn(9);
    EXPECT_THAT(look(1), Contains(0x005A6Eu));
    EXPECT_THAT(Seen(DETAIL), Contains(YELLOW)) << "Lock";
    Store("M/E-1", 9, "ONE,S,,n,n,n");
    const auto both = Seen(DETAIL);
    EXPECT_THAT(both, Not(Contains(YELLOW)));
    Store("P/P", 9, ",E,,n,n,n");
    EXPECT_NE(Seen(DETAIL), both) << "the strip of its regions";
    Store("M/E-1", 9, ",E,,n,n,n");
    EXPECT_EQ(PixelAt(CELLS[0].x1, CELLS[0].y1), 0x00C8F0u);
    turn(8);
    EXPECT_THAT(look(0), Contains(0x14323Cu));
    for (const auto& [lock, is_as_before] : {std::pair{"U", false}, {"L", true}}) {
        Store("M/E-1", 9, std::string("ONE,") + lock + ",,n,n,n");
        EXPECT_EQ(look(0) == locked, is_as_before) << lock;
    }
    Open(0x63230000);
    (void)Press(BTN_REGISTER_WO_NAME);
    Store("P/P Sub", 10, "SUB,S,,n,n,n");
    multiprogram2_me[0] = 0; // which does not run
    Open(0x63000000);
    turn(10);
    (void)Puts(52);
    turn(12);
    EXPECT_THAT(Puts(53), ElementsAre(PUT + "Copy#2,10,10,2,12,true"));
    (void)Press(51);
    EXPECT_THAT(Confirm(), IsEmpty()) << "it still has no name";
}

TEST_F(RegisterPages, AMasterIsEditedStoredAndUndone)
{
    const std::string master = "Snapshot@Master Snapshot@Store/Recall@List#1,SHOW,S,";
    const std::string store = "put Snapshot@Master Snapshot@Store/Recall@Edit@Store#1";
    const std::string none(28, ','); // 29 regions and a field
    std::string zeros;
    for (int i = 0; i < 27; i++)
        zeros += ",0";
    (void)Tell(master + "U,1,8" + none);
    Open(0x63110001);
    EXPECT_EQ(Shown("Register"), "1");
    EXPECT_THAT(Puts(54), IsEmpty()) << "it is as it was";
    (void)Puts(51); // no cell is chosen: nothing is edited
    (void)Tell(master + "U,7,8" + none);
    Pass(200);
    Touch(138 + 70 + 10, 102 + 10); // M/E-2
    SendMessage(LMSG_KNOBVAR, 1, 42, 0, 0);
    EXPECT_THAT(Puts(51), IsEmpty());
    EXPECT_THAT(Puts(53), ElementsAre(store + ",7,42" + zeros));
    (void)Tell(master + "U,7,42" + none);
    EXPECT_THAT(Puts(54), ElementsAre(store + ",7,8" + zeros));
    EXPECT_EQ(GetWindow(), WINDOW_NONE);
    (void)Tell(master + "U,7,42" + none); // the server has kept something else
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE);
    (void)CloseWindow();
    (void)Puts(54);
    Pass(2900);
    EXPECT_EQ(GetWindow(), WINDOW_NONE);
    Pass(200); // nothing has come of it
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE);
    (void)CloseWindow();
    const std::string recall = "put Snapshot@Master Snapshot@Store/Recall@Edit@Recall#";
    EXPECT_THAT(Puts(52), ElementsAre(recall + "1"));
    const auto assign = [](int link) { // the cell is still chosen
        SendMessage(LMSG_KNOBVAR, 1, link, 0, 0);
        (void)Puts(51);
    };
    assign(43);
    (void)Tell(master + "U,9,8" + none); // another panel's store
    EXPECT_THAT(Puts(53), ElementsAre(store + ",7,43" + zeros)) << "what is edited stays";
    (void)Tell("Snapshot@Master Snapshot@Store/Recall@List#2,SHOW,S,U,7,43" + none);
    Pass(3100);
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE) << "that was another register";
    (void)CloseWindow();
    (void)Puts(53);
    (void)Tell(master + "U,7,43" + none);
    (void)Tell(master + "U,6,43" + none);
    Pass(3100);
    EXPECT_EQ(GetWindow(), WINDOW_NONE) << "it has been stored, and changed since";
    EXPECT_THAT(Puts(53), ElementsAre(store + ",6,43" + zeros));
    (void)Tell(master + "U,6,43" + none);
    assign(44);
    (void)Puts(52);
    EXPECT_THAT(Puts(53), ElementsAre(store + ",6,43" + zeros)) << "recalled";
    (void)Tell(master + "U,6,43" + none);
    assign(44);
    (void)Puts(52);
    (void)Tell(master + "L,7,8" + none);
    for (const int key : {53, 54}) {
        EXPECT_THAT(Puts(key), IsEmpty());
        EXPECT_EQ(GetWindow(), WINDOW_MESSAGE) << key;
        (void)CloseWindow();
    }
    (void)Tell(master + "U,7,8" + none);
    EXPECT_THAT(Puts(53), ElementsAre(store + ",7,8" + zeros)) << "nothing was edited";
    const std::string current = "Snapshot@Master Snapshot@Store/Recall@Current Register";
    constexpr Rect HEAD = {100, 76, 701, 98}, CELL = {208, 102, 274, 152};
    auto look = Seen(HEAD);
    for (const std::string& line : {current + "#5", master + "L,7,8" + none}) {
        (void)Tell(line);
        EXPECT_NE(Seen(HEAD), look) << line;
        look = PixelsIn(HEAD);
    }
    (void)Tell(master + "U,7,8" + none);
    const auto linked = Seen(CELL);
    (void)Touch(278 + 10, 102 + 10); // M/E-3 looks pushed for a moment
    for (const int ms : {10, 200}) {
        Pass(ms);
        EXPECT_EQ(PixelAt(278, 102) == WHITE, ms == 10) << ms;
    }
    (void)Touch(278 + 10, 102 + 10);
    EXPECT_EQ(PixelAt(138 + 2, 102 + 2), 0x005A6Eu) << "M/E-1 has a link";
    assign(45);
    EXPECT_NE(Seen(CELL), linked);
    (void)Puts(52);
    EXPECT_EQ(Seen(CELL), linked);
    EXPECT_THAT(Leave(), Contains("remove " + current));
    Open(0x63110000);
    Cursor(1, 2);
    Open(0x63110001);
    EXPECT_THAT(Puts(52), ElementsAre(recall + "3")) << "as in the list";
}
