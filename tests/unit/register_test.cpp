#include "bus_probe.h"
#include "memory.h"
#include "register.h"
#include "snapshot_region.h"
#include <array>
#include <climits>

using Place = std::array<int, 4>; // kind, row, index, extra

struct RegisterReader {
    int (*exist)(int, int);
    int (*lock)(int, int);
    const char* (*name)(int, int);
    const char* (*tally)(int, int);
};
#define READER(kind)                                                                               \
    {                                                                                              \
        Register_Exist_##kind, Register_Lock_##kind, Register_Name_##kind, Register_Tally_##kind   \
    }
const RegisterReader readers[] = {READER(Effect),   READER(Eff100), READER(Eff200), READER(Eff300),
                                  READER(Snapshot), READER(WipeSS), READER(DMESS),  READER(KeySS),
                                  READER(Shotbox),  READER(Macro)};
#undef READER

const std::string EFFECT = "Effect@Effect@Attribute@List@";
const std::string SNAPSHOT = "Snapshot@Snapshot@Attribute@";
const std::string CLIP = "Snapshot@Snapshot@Clip Event@";
const char* const MASTER_TIMELINE = "Effect@Master Timeline@Store/Recall@List";
const char* const MASTER_SNAPSHOT = "Snapshot@Master Snapshot@Store/Recall@List";
const char* const SHOTBOX = "Shotbox@Register@Store/Recall@List";
const char* const MACRO = "Macro@Register@List";

// What the page was told since the last call.
static std::vector<Place> Told()
{
    std::vector<Place> told;
    for (const auto& s : probe::seen)
        if (s.msg == LMSG_REGISTER)
            told.push_back({int(s.ax), int(s.bx), int(s.cx), int(s.dx)});
    probe::seen.clear();
    return told;
}

struct Registers : BusTest {
    void SetUp() override
    {
        BusTest::SetUp();
        Register_StatusReport(1);
    }
    static void DualLink(bool on)
    {
        SYS_DualProc = on;
        DEV_Swr[0].activeline = on ? 6 : 0;
        ASSERT_EQ(isDualProc_DualLink(), int(on));
    }
};

TEST_F(Registers, ALineLandsInItsPlace)
{
    static const std::tuple<std::string, std::string, Place, int, int, const char*> cases[] = {
        {EFFECT + "M/E-1", "1, D, First, U, N, 30", {0, 0, 0}, 1, 0, "First"},
        {EFFECT + "DME1", "250,D,x,U,N,0", {2, 0, 49}, 1, 0, "x"},
        {MASTER_TIMELINE, "99,Show,D,L" + std::string(43, ','), {0, 43, 98}, 1, 1, "Show"},
        {SNAPSHOT + "RTR@List", "1,,L," + std::string(400, 'F') + ",,,", {4, 28, 0}, 1, 1, ""},
        {SNAPSHOT + "RTR@List", "1,,E,,,,", {4, 28, 0}, 0, 0, ""}, // the lock goes with the data
        {MASTER_SNAPSHOT, "3,All,E,L" + std::string(30, ','), {4, 29, 2}, 0, 1, "All"},
        {"Snapshot@Wipe Snapshot@P/P Sub@List", "10,Wipe,L", {5, 11, 9}, 1, 1, "Wipe"},
        {"Snapshot@DME Snapshot@P/P Sub@List", "2,Fly,L", {6, 11, 1}, 1, 1, "Fly"},
        {"Snapshot@Key Snapshot@Attribute@P/P@Key8@List", "1,Key,L", {7, 47, 0}, 1, 1, "Key"},
        {EFFECT + "DME8", "399,D,Last,U,N,0", {3, 1, 98}, 1, 0, "Last"},
        {SHOTBOX, "99,Shot,U,,1" + std::string(43, ','), {8, 0, 98}, 1, 0, "Shot"},
        {SHOTBOX, "98,Shot,U,," + std::string(43, ','), {8, 0, 97}, 0, 0, "Shot"}, // nothing in it
        {MACRO, "250,D,Run,L", {9, 0, 249}, 1, 1, "Run"},
    };
    for (const auto& [path, value, place, exist, lock, name] : cases) {
        Deliver(path, value);
        EXPECT_THAT(Told(), ElementsAre(place)) << path << "#" << value;
        const auto& [kind, row, index, extra] = place;
        const RegisterReader& read = readers[kind];
        EXPECT_EQ(read.exist(row, index), exist) << path << "#" << value;
        EXPECT_EQ(read.lock(row, index), lock) << path << "#" << value;
        EXPECT_STREQ(read.name(row, index), name) << path << "#" << value;
        EXPECT_STREQ(read.tally(row, index), value.c_str()) << path;
    }
}

// Nothing is kept of them: not a byte is allocated, nobody is told.
TEST_F(Registers, RubbishIsDropped)
{
    const int used = UsedMemPtr;
    const std::pair<std::string, std::string> lines[] = {
        {MACRO, ""},
        {SHOTBOX, std::string(60, ',')},
        {MASTER_TIMELINE, std::string(5000, '9') + std::string(60, ',')},
        {EFFECT + "M/E-1",
         "1" + std::string(5000, ' ') + std::string(60, ',')}, // the rest is out of reach
        {EFFECT + "M/E-1", "100,D,x,U,N,0"},
        {EFFECT + "DME1", "100,D,x,U,N,0"},
        {EFFECT + "M/E-1", "1,D,x,U,N"},
        {EFFECT, "1,D,x,U,N,0"},           // the row of the Master Timeline has no word
        {EFFECT + "1-M/E", "1,D,x,U,N,0"}, // the same sum as M/E-1
        {SNAPSHOT + "M/E-1@List", "1,x,D,,,"},
        {SNAPSHOT + "M/E-1@List", "1,x,D," + std::string(510, 'F') + ",,,"},
        {"Snapshot@Key Snapshot@Attribute@M/E-1@Key9@List", "1,x,D"},
        {MASTER_TIMELINE, "1,Show,D,L" + std::string(42, ',')},
        {CLIP + "User1@List", "FM1,1,ON,ON,ON,clip,1"},
    };
    for (const auto& [path, value] : lines) {
        Deliver(path, value);
        EXPECT_THAT(Told(), IsEmpty()) << path << "#" << value;
    }
    RegisterProc(MSG_TALLY, 0, 0, 0, 0);
    EXPECT_EQ(UsedMemPtr, used);
}

TEST_F(Registers, EveryLineIsToldWhileSomebodyLooksAndMayBePlayedOn)
{
    const std::string path = EFFECT + "M/E-1";
    const int used = UsedMemPtr;
    Deliver(path, "1,D,a,U,N,0");
    EXPECT_EQ(Told().size(), 1u);
    Deliver(path, "1,D,a,U,N,0"); // the answer to a read, for which the page waits
    EXPECT_EQ(Told().size(), 1u);
    Deliver(path, "1,D,a,U,D,15"); // the headline stays, the line doesn't
    EXPECT_EQ(Told().size(), 1u);
    EXPECT_EQ(UsedMemPtr, used + 1);
    Deliver(CLIP + "User1@List", "FM1,1,OFF,OFF,OFF,,0,0"); // as an event is that never was set
    EXPECT_THAT(Told(), ElementsAre(Place{10, 0, 0, 0}));

    Register_StatusReport(0); // nobody looks: kept, not told
    Deliver(path, "1,E,,U,N,0");
    EXPECT_EQ(Told().size(), 0u);
    EXPECT_EQ(Register_Exist_Effect(0, 0), 0);

    Register_StatusReport(1);
    static std::string name;
    probe::answer = [](const probe::Seen& s) {
        if (s.msg != LMSG_REGISTER || s.bx != 0)
            return 0;
        name = Register_Name_Effect(int(s.bx), int(s.cx));
        RegisterProc(MSG_TALLY, Arg("Effect@Effect@Attribute@List@M/E-2"),
                     Arg(Register_Tally_Effect(0, 0)), 0, 0);
        return 0;
    };
    Deliver(EFFECT + "M/E-1", "1,D,new,U,N,0");
    EXPECT_EQ(name, "new");
    EXPECT_EQ(Told().size(), 2u);
}

TEST_F(Registers, TwoLinksMakeFourGroupsOfChannelsAndAHundredNumbersEach)
{
    static const std::tuple<const char*, int, int> cases[] = {
        {"DME1", 0, 0}, {"DME4", 0, 1}, {"DME5", 1, 2}, {"DME8", 1, 3}};
    const int used = UsedMemPtr;
    for (const bool dual : {false, true}) {
        DualLink(dual);
        for (const auto& [region, one, two] : cases) {
            Register_Free();
            EXPECT_EQ(UsedMemPtr, used);
            Deliver(EFFECT + region, "301,D,x,U,N,0");
            EXPECT_THAT(Told(), ElementsAre(Place{3, dual ? two : one, 0})) << region;
        }
    }
    for (const auto& [reg, index] : {std::pair{1, 0}, {99, 98}, {101, 99}, {399, 395}}) {
        EXPECT_EQ(Reg2Index(reg), index);
        EXPECT_EQ(Index2Reg(index), reg);
    }
    for (const int reg : {-1, 0, 100, 300, 400})
        EXPECT_EQ(Reg2Index(reg), -1) << reg;
    EXPECT_EQ(Index2Reg(396), -1);
}

TEST_F(Registers, AClipEventIsKeptEvenForAStranger)
{
    const std::string value = "FM20, 99, ON, OFF, ON, a, -7, 99999999999";
    Deliver(CLIP + "User8@List", value);
    EXPECT_THAT(Told(), ElementsAre(Place{10, 7, 19, 98}));
    EXPECT_STREQ(ClipEvent_Tally_Name(7, 19, 98), "a");
    EXPECT_THAT((std::array{ClipEvent_Tally_Event(7, 19, 98), ClipEvent_Tally_AutoPlay(7, 19, 98),
                            ClipEvent_Tally_Loop(7, 19, 98), ClipEvent_Tally_Start_TC(7, 19, 98),
                            ClipEvent_Tally_Stop_TC(7, 19, 98)}),
                ElementsAre(1, 0, 1, -7, INT_MAX));
    Deliver(CLIP + "User1@List", "FM21,1,on,ON,,b,0,1");
    EXPECT_THAT(Told(), ElementsAre(Place{10})) << "the stranger is the first";
    static const std::tuple<int, int, int, int> formats[] = {
        {2, 2, 5, 3}, {3, 2, 6, 3}, {3, 1, 5, 7}, {3, 2, 4, 7}, {1, 2, 5, 7}};
    Deliver(CLIP + "User2@List", "FM1,1,ON,ON,ON,b,7,9");
    for (const auto& [size, scan, freq, start] : formats) {
        SYS_Format_Size = size, SYS_Format_Scan = scan, SYS_Format_Freq = freq;
        EXPECT_EQ(ClipEvent_Tally_Start_TC(1, 0, 0), start) << size << scan << freq;
        EXPECT_EQ(ClipEvent_Tally_Stop_TC(1, 0, 0), start + (start == 3 ? 1 : 2));
    }
    Register_Free();
    EXPECT_STREQ(ClipEvent_Tally_Name(1, 0, 0), "");
}

static Strings Sent(void (*send)())
{
    (void)TakeQueuedCommands();
    send();
    return TakeQueuedCommands();
}

TEST_F(Registers, ListsAreSubscribedInOrderAndThoseOfAReturningEffectsUnitReadAgain)
{
    const Strings main = Sent(Register_InitCommand);
    // 37 effects, 23 snapshots, six banks twice, 48 keys, 20 clip lists, four single ones.
    EXPECT_EQ(main.size(), 37u + 23 + 6 + 6 + 48 + 20 + 4);
    EXPECT_THAT(main, Each(Not(HasSubstr("Sub"))));
    EXPECT_EQ(main.front(), "add Effect@Effect@Attribute@List@M/E-1");
    EXPECT_EQ(main.back(), "add Snapshot@Snapshot@Clip Event@FM12@List");

    const Strings sub = Sent(Register_InitCommand_MP2);
    EXPECT_EQ(sub.size(), 24u);
    EXPECT_THAT(sub, Each(HasSubstr("Sub")));
    Strings added = main;
    added.insert(added.end(), sub.begin(), sub.end());
    for (std::string& line : added)
        line.replace(0, 3, "remove");
    EXPECT_THAT(Sent(Register_DeathCommand), testing::UnorderedElementsAreArray(added));

    const int used = UsedMemPtr;
    Deliver(EFFECT + "DME1", "5,D,old,L,N,0");
    Deliver(EFFECT + "DME8", "205,D,old,L,N,0");
    Deliver(SNAPSHOT + "DME8@List", "5,old,L,,,,");
    Deliver(SNAPSHOT + "User8@List", "5,old,L,,,,");
    Deliver(EFFECT + "Dev1", "5,D,old,L,N,0");
    probe::seen.clear();
    (void)TakeQueuedCommands();

    Deliver("Info@Processor Status@2", "OK"); // a switcher
    EXPECT_STREQ(Register_Name_Effect(SS_REGION_DME1, 4), "old");
    Deliver("Info@Processor Status@3", "NG->OK");
    const Strings sent = TakeQueuedCommands();
    ASSERT_EQ(sent.size(), 16u);
    EXPECT_EQ(sent[0], "read Snapshot@Snapshot@Attribute@DME1@List");
    EXPECT_EQ(sent[15], "read Effect@Effect@Attribute@List@DME8");
    EXPECT_EQ(Told().size(), 0u);
    EXPECT_EQ(UsedMemPtr, used + 2) << "of the user and of the device";

    static const Place gone[] = {
        {0, SS_REGION_DME1, 4}, {2, 1, 4}, {4, SS_REGION_DME8, 4}, {1, 3, 98}, {3, 0, 0},
        {0, SS_REGION_DME8, 98}};
    for (const Place& p : gone) {
        EXPECT_EQ(readers[p[0]].exist(p[1], p[2]), 0) << testing::PrintToString(p);
        EXPECT_STREQ(readers[p[0]].tally(p[1], p[2]), "") << testing::PrintToString(p);
    }
    EXPECT_EQ(Register_Exist_Snapshot(SS_REGION_USER8, 4), 1);

    Deliver(EFFECT + "DME1", "5,D,old,L,N,0"); // as before, and yet a change
    EXPECT_EQ(Told().size(), 1u);
}

TEST_F(Registers, RegionsWithARegisterHaveTheirBitInTheMap)
{
    for (const char* region : {"M/E-1", "P/P Sub", "User8", "DME1", "Dev12", "MACRO"})
        Deliver(EFFECT + region, "7,D,x,U,N,0");
    unsigned char map[9];
    memset(map, 0xFF, sizeof map);
    EXPECT_NE(Register_Exist_Effect_AllRegion(6, map), 0);
    EXPECT_THAT(map, ElementsAre(1, 8, 0x80, 1, 0, 8, 0, 0, 1));
    EXPECT_NE(Register_Exist_Effect_EX_AllRegion(6, map), 0) << "of the devices alone";
    EXPECT_THAT(map, ElementsAre(0, 0, 0, 0, 0, 8, 0, 0, 1)) << "the last byte is not its own";
    EXPECT_EQ(Register_Exist_Effect_AllRegion(5, map), 0);
    EXPECT_THAT(map, Each(0));
    Deliver(EFFECT + "DME5", "107,D,x,U,N,0"); // of the second group of channels
    EXPECT_EQ(Register_Exist_Eff100_AllRegion(6, map), 2);
    EXPECT_EQ(map[0], 2);
    EXPECT_EQ(Register_Exist_Eff200_AllRegion(6, map) + Register_Exist_Eff300_AllRegion(6, map), 0);
    EXPECT_THAT(map, Each(0));
    DualLink(true);
    Deliver(EFFECT + "DME5", "207,D,x,U,N,0"); // of the third of four
    EXPECT_EQ(Register_Exist_Eff200_AllRegion(6, map), 4);
    DualLink(false); // then there are two
    EXPECT_EQ(Register_Exist_Eff200_AllRegion(6, map), 0);
}
