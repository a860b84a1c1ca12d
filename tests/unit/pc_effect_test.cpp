// The pages of the effects and shotboxes: what goes over the wire for every kind and every key, and
// what the lists show of the mirror.
#include "pc_effect.h"
#include "pc_shotbox.h"
#include "register_page.h"
#include <map>

const std::string EFFECTS = "Effect@Effect@Attribute@List@";
const std::string SHOTS = "Shotbox@Register@Store/Recall@List";

struct EffectPages : RegisterDesk {
    static void Open3To5(uint32_t page) // from register 3 to register 5, where there are two lists
    {
        Open(page);
        Cursor(1, 2);
        LS_SetNowLine(2, 4);
    }
};

TEST_F(EffectPages, EveryKeyOfEveryKindSendsItsCommand)
{
    static const std::tuple<uint32_t, int, const char*> cases[] = {
        {0x62110000, 49, "put Master@Effect@Recall@Recall#3"},
        {0x62110000, 50, "put Effect@Master Timeline@Store/Recall@Store#3"},
        {0x62120000, 50, "put Effect@Master Timeline@Lock@Lock#3,3,true"},
        {0x62210000, 33, "put Effect@Effect@Attribute@Effect Dissolve#0000000000000002,3,3,true,0"},
        {0x62210000, 50, "put Effect@Effect@Recall@Recall#0000000000000002, 3"},
        {0x62230000, 49,
         "put Effect@Effect@Copy/Merge@Copy#0000000000000002,3,3,0000000000000002,5,false"},
        {0x62230000, 52,
         "put Effect@Effect@Copy/Merge@Merge#0000000000000002,3,0000000000000002,5"},
        {0x62320000, 51, "put Effect@Effect@Lock@Lock#0000000000101000,103,103,true"},
        {0x62510000, 50, "put Effect@Effect@Recall@Recall#0000000000101000, 303"},
        {0x64110000, 33, "put Shotbox@Register@Attribute@Auto Run#3,3,true"},
        {0x64110000, 49, "put Shotbox@Register@Store/Recall@Recall#3"},
        {0x64120000, 50, "put Shotbox@Register@Lock#3,3"},
        {0x64130000, 49, "put Shotbox@Register@Copy#3,3,5,false"},
    };
    for (const auto& [page, button, command] : cases) {
        Open3To5(page);
        EXPECT_THAT(Puts(button), ElementsAre(command)) << std::hex << page << " " << button;
    }
}

TEST_F(EffectPages, AnEffectShowsItsStateAndTheRegionsThatHoldItAndTheirOverviewCopiesThem)
{
    TellAll(EFFECTS, {"M/E-1#3,S,OPENING,L,D,45", "DME2#3,S,SPIN,U,N,0", "Dev1#3,S,ROLL,U,N,0",
                      "DME1#203,S,PAGE,U,D,7",
                      "DME5#303,S,CUBE,L,N,0"}); // of the other group than the list's
    static const std::tuple<uint32_t, int, const char*> cases[] = {
        // cells from the name on
        {0x62210000, 10, "OPENING|L|45|O||O|O|||"},
        {0x62310000, 4, "|||"},
        {0x62410000, 4, "PAGE||7|O"},
        {0x62510000, 4, "|||O"},
        {0x62610000, 5, "|||O|"}};
    for (const auto& [page, columns, cells] : cases) {
        Open(page);
        EXPECT_EQ(Cells(1, 2, 1, columns), cells) << std::hex << page;
    }
    Open(0x62310000); // registers of a run of channels
    EXPECT_EQ(Caption(BTN_REGISTER_REGION), "Region\nDME\n1-4ch");

    TellAll(EFFECTS, {"M/E-2#4,S,A,U,N,0", "GPI#4,S,A,U,N,0"});
    Open(0x62210000);
    EXPECT_EQ(Cell(1, 3, 2), ""); // no line has said yet that it is empty here
    for (const int count : {0, 1}) {
        Region_Count = count;
        (void)Tell(EFFECTS + "M/E-1#4,E,,U,N,0");
        EXPECT_EQ(Cell(1, 3, 2), count ? "E2" : "E");
    }

    TellAll(EFFECTS, {"M/E-1#7,S,A,U,N,0", "GPI#7,S,B,U,N,0", "DME5#7,S,B,U,N,0",
                      "M/E-1 Sub#7,S,B,U,N,0"}); // a side that is not run
    multiprogram2_me[1] = 0;
    Open(0x62000000);
    SendMessage(LMSG_KNOBVAR, 1, 7, 0, 0);
    EXPECT_THAT(Puts(52), IsEmpty());
    SendMessage(LMSG_KNOBVAR, 1, 9, 0, 0);
    EXPECT_THAT(Puts(53), ElementsAre("put Effect@Effect@Copy/Merge@Copy#M/E-1,7,7,M/E-1,9,false",
                                      "put Effect@Effect@Copy/Merge@Copy#DME5,7,7,DME5,9,false",
                                      "put Effect@Effect@Copy/Merge@Copy#GPI,7,7,GPI,9,false"));
}

TEST_F(EffectPages, ADissolveTakesTheTimeOfTheKnobAndALockKeepsItsOwn)
{
    static const std::tuple<std::string, int, const char*> cases[] = {
        // of the command, or none
        {"3,S,A,U,N,0", 30, "true,30"},   {"3,S,A,U,D,20", 30, "true,30"},
        {"3,S,A,U,D,30", 30, "false,30"}, {"3,S,A,U,D,20", 0, "false,20"},
        {"3,S,A,U,D,20", 1, "true,1"},    {"3,S,A,L,N,0", 30, ""},
    };
    const std::string DISSOLVE =
        "put Effect@Effect@Attribute@Effect Dissolve#0000000000000002,3,3,";
    Open3To5(0x62210000);
    for (const auto& [line, knob, value] : cases) {
        (void)Tell(EFFECTS + "M/E-1#" + line);
        (void)Tell("Effect@Effect@Attribute@Temporary Duration@M/E-1#" + std::to_string(knob));
        Pass(10);
        EXPECT_EQ(BT_GetStatus(BTN_EFFECT_DISSOLVE) == BT_ON,
                  line.find(",D,") != std::string::npos);
        EXPECT_EQ(Puts(BTN_EFFECT_DISSOLVE), *value ? Lines{DISSOLVE + value} : Lines{}) << line;
    }
    (void)Puts(BTN_REGISTER_REGION);
    Choose(REGKIND_EFFECT, {258});
    SendMessage(LMSG_PANEQUIT, Pane_GetActiveID(), 1, 0, 0);
    Pane_Quit(Pane_GetActiveID());
    Pass(10);
    const Lines sent = TakeQueuedCommands();
    EXPECT_EQ(Held(sent, "Effect@Effect@Attribute@Temporary Duration@M/E-1"), -1);
    EXPECT_EQ(Held(sent, "Effect@Effect@Attribute@Temporary Duration@M/E-2"), 1);
}

TEST_F(EffectPages, AShotboxShowsWhatItLinks)
{
    std::string link[REGISTER_LINKS];
    link[SS_REGION_ME1] = "1";
    link[SS_REGION_ME2] = "S12";
    link[SS_REGION_USER1] = link[SS_REGION_USER2] = "5";
    link[SS_REGION_DME1] = "2";
    link[SS_REGION_DME2] = "3";
    link[SS_REGION_ME3_SUB] = "4"; // not what the main side recalls
    link[SS_REGION_ME1_SUB] = "1";
    link[SHOTBOX_RTR] = "S8";
    std::string line = "3,INTRO,L,A";
    for (const std::string& one : link)
        line += "," + one;
    (void)Tell(SHOTS + "#" + line);
    Open(0x64110000);
    EXPECT_EQ(Cells(1, 2, 1, 16), "INTRO|L|On|1|S12|...||||5|...|||||S8");
    Cursor(1, 2);
    EXPECT_EQ(BT_GetStatus(BTN_SHOTBOX_AUTO_RUN), BT_ON);
    EXPECT_THAT(Puts(BTN_SHOTBOX_AUTO_RUN), IsEmpty()); // it is locked
    EXPECT_THAT(Puts(50), IsEmpty());
}

// Cells are 70 x 55 from (138, 102).
TEST_F(EffectPages, LinksAreAssignedWhereTheRegionHasSuchARegister)
{
    enum : int { SNAPSHOT = 50, ASSIGN = 51, STORE = 53, UNDO = 54 };
    const auto assign = [](int knob, std::vector<std::pair<int, int>> cells) {
        for (const auto& [column, line] : cells)
            (void)Touch(146 + 70 * column, 110 + 55 * line);
        SendMessage(LMSG_KNOBVAR, 1, knob, 0, 0);
        (void)Puts(ASSIGN);
        for (const auto& [column, line] : cells)
            (void)Touch(146 + 70 * column, 110 + 55 * line);
    };
    const std::pair<int, int> me1 = {0, 0}, me2 = {1, 0}, rtr = {6, 0}, dev1 = {0, 4},
                              dev2 = {1, 4}, pbus = {4, 5}, gpi = {5, 5}, dme8 = {7, 3};
    const auto links = [](std::map<int, std::string> some, int n) {
        std::string text;
        for (int i = 0; i < n; i++)
            text += "," + (some.contains(i) ? some[i] : "0");
        return text;
    };
    static const std::string edit = "put Shotbox@Register@Store/Recall@Edit@Store#1";
    Open(0x64110001);
    assign(200, {me1, dev1, dev2, pbus, gpi}); // a bank has 99 registers
    assign(12, {me2, rtr});                    // the router has snapshots only
    EXPECT_EQ(BT_GetStatus(SNAPSHOT), BT_OFF);
    (void)Press(SNAPSHOT);
    EXPECT_EQ(BT_GetStatus(SNAPSHOT), BT_ON);
    assign(7, {me1, rtr, dev1, dme8}); // a device has none
    assign(0, {dev2});
    assign(100, {me2});
    EXPECT_THAT(Puts(STORE), ElementsAre(edit + links({{SS_REGION_ME1, "S7"},
                                                       {SS_REGION_ME2, "12"},
                                                       {SS_REGION_DME8, "S7"},
                                                       {EFF_REGION_DEV1, "200"},
                                                       {EFF_REGION_PBUS, "200"},
                                                       {EFF_REGION_MASTER, "S7"}},
                                                      REGISTER_LINKS)));
    EXPECT_THAT(Puts(UNDO), IsEmpty()); // no line of the server has come: it holds what it held
    (void)Tell(SHOTS + "#1,SHOT1,U,,S7,12" + std::string(REGISTER_LINKS - 2, ','));
    EXPECT_EQ(CloseWindow(), 0); // it says that this is not what was stored
    EXPECT_THAT(Puts(UNDO), ElementsAre(edit + links({}, REGISTER_LINKS)));
    (void)Tell(SHOTS + "#1,SHOT1,L,,S7,12" + std::string(REGISTER_LINKS - 2, ','));
    (void)CloseWindow();
    EXPECT_THAT(Puts(STORE), IsEmpty()); // it is locked
    Open(0x62110001);
    assign(3, {me1});
    EXPECT_THAT(Puts(STORE), ElementsAre("put Effect@Master Timeline@Store/Recall@Edit@Store#1" +
                                         links({{SS_REGION_ME1, "3"}}, EFF_REGION_MASTER)));
}

TEST_F(EffectPages, AllCellsOrTheSwitchersAreChosenTogether)
{
    enum : int { ALL = 49, SWR_ALL = 50, ASSIGN = 51, STORE = 53 };
    const auto stored = [](int switchers, int others, int channels = 8) {
        std::string text = "put Effect@Master Timeline@Store/Recall@Edit@Store#1";
        for (int region = 0; region < EFF_REGION_MASTER; region++) {
            const bool is_sub = region >= SS_REGION_ME1_SUB && region <= SS_REGION_PP_SUB;
            const bool is_missing = region >= SS_REGION_DME1 + channels && region <= SS_REGION_DME8;
            const int link = is_sub || is_missing        ? 0
                             : region <= SS_REGION_USER8 ? switchers
                                                         : others;
            text += "," + std::to_string(link);
        }
        return text;
    };
    const auto assign = [](std::initializer_list<int> keys, int knob) {
        for (const int key : keys)
            (void)Puts(key);
        SendMessage(LMSG_KNOBVAR, 1, knob, 0, 0);
        (void)Puts(ASSIGN);
    };
    std::fill(std::begin(multiprogram2_me), std::end(multiprogram2_me), 0);
    Open(0x62110001);
    assign({ALL}, 5);
    EXPECT_THAT(Puts(STORE), ElementsAre(stored(5, 5)));
    assign({ALL, SWR_ALL}, 7); // all were on: off, then the switcher's
    EXPECT_THAT(Puts(STORE), ElementsAre(stored(7, 5)));
    GL_DmeModel[0] = 5; // of two channels
    Open(0x62110001);
    assign({ALL}, 6);
    EXPECT_THAT(Puts(STORE), ElementsAre(stored(6, 6, 2)));
    GL_DmeModel[0] = 0;
}
