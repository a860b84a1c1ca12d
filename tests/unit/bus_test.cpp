#include "bus_probe.h"
#include "file_scp.h"
#include "fmctrl3.h"
#include "loop.h"
#include "netio.h"
#include <cstring>

using Bus = BusTest;

TEST_F(Bus, TheRowIsWalkedToItsFirstEmptyPlace)
{
    for (const auto& [types, deliveries] :
         {std::pair{std::vector<int>{}, 0},
          {std::vector<int>(8, OBJ_PC), 8},
          {{OBJ_PC, -1, OBJ_PC}, 1},
          {{OBJ_PC, OBJ_END, OBJ_PC}, 1},
          {{16, OBJ_PC, 19, 1000, OBJ_PC}, 2}}) { // types that there are not
        probe::page = PAGE{.id = PAGE_TOP};
        for (size_t i = 0; i < types.size(); i++)
            probe::page.obj[i].type = types[i];
        probe::seen.clear();
        EXPECT_EQ(SendMessage(MSG_KEY, 0, 0, 0, 0), 0);
        SendMessage(MSG_PRESS, 5, 5, 1, 0);
        SendMessage(MSG_PRESS, 5, 5, 1, 0); // the first one's release is owed
        for (int msg : {MSG_KEY, MSG_RELEASE})
            EXPECT_EQ(probe::Count(msg), deliveries) << testing::PrintToString(types);
        SendMessage(MSG_RELEASE, 5, 5, 0, 0);
        probe::seen.clear();
        SendMessage(MSG_PRESS, 5, 5, 1, 0);
        EXPECT_EQ(probe::Count(MSG_RELEASE), 0) << "it was told that of the press before";
        SendMessage(MSG_RELEASE, 5, 5, 0, 0);
    }
    Page = nullptr; // before the first page
    EXPECT_EQ(SendMessage(MSG_KEY, 0, 0, 0, 0), 0);
}

TEST_F(Bus, AConsumedMessageGoesNoFurtherAndANestedOneFirst)
{
    probe::page.obj[1] = probe::page.obj[0];
    std::vector<std::vector<MsgArg>> seen;
    probe::answer = [&](const probe::Seen& s) {
        seen.push_back({s.ax, s.bx, s.cx, s.dx});
        return 1;
    };
    EXPECT_EQ(SendMessage(MSG_PRESS, 10, 20, 1, 0), 0);
    EXPECT_THAT(seen, ElementsAre(ElementsAre(10, 20, 1, 0)));
    SendMessage(MSG_RELEASE, 10, 20, 0, 0);
    probe::seen.clear();
    probe::answer = [](const probe::Seen& s) {
        if (s.msg == MSG_PRESS && probe::Count(MSG_PRESS) == 1)
            SendMessage(LMSG_BTNSEL, 0, 0, 0, 0);
        return 0;
    };
    SendMessage(MSG_PRESS, 1, 2, 1, 0);
    std::vector<int> order;
    for (const auto& s : probe::seen)
        order.push_back(s.msg);
    EXPECT_THAT(order, ElementsAre(MSG_PRESS, LMSG_BTNSEL, LMSG_BTNSEL, MSG_PRESS));
}

TEST_F(Bus, AMaskWithholdsEventsFromItsTypeOnly)
{
    HackMessage(OBJ_PC, -1);
    HackMessage(1 << 20, -1);
    SendMessage(LMSG_BTNSEL, 0, 0, 0, 0); // internal messages have no mask
    EXPECT_EQ(probe::Count(LMSG_BTNSEL), 1);
    UnHackMessage(0);
    probe::seen.clear();
    HackMessage(OBJ_PC, MSG_PRESS);
    HackMessage(OBJ_PC, MSG_KEY); // adds
    UnHackMessage(OBJ_BT);
    SendMessage(MSG_PRESS, 0, 0, 0, 0);
    UnHackMessage(OBJ_PC);
    HackMessage(0, MSG_PRESS); // of all types
    SendMessage(MSG_PRESS, 0, 0, 0, 0);
    EXPECT_EQ(probe::Count(MSG_PRESS), 0);
    UnHackMessage(OBJ_PC);
    HackMessage(OBJ_BT, MSG_PRESS);
    SendMessage(MSG_PRESS, 0, 0, 0, 0);
    EXPECT_EQ(probe::Count(MSG_PRESS), 1);
}

TEST_F(Bus, WhileTheFindIsOpenNoInputReachesThePage)
{
    GL_FM_Find_Window = 1;
    for (int msg : {MSG_PRESS, MSG_RELEASE, MSG_DRAG, MSG_WHEELUP, MSG_WHEELDOWN})
        SendMessage(msg, 0, 0, 0, 0);
    EXPECT_THAT(probe::seen, IsEmpty());
    for (int msg : {int(MSG_KEY), int(MSG_TALLY), int(MSG_REDRAW), int(LMSG_BTNSEL)})
        SendMessage(msg, Arg("A"), Arg("B"), 0, 0);
    EXPECT_EQ(probe::seen.size(), 4u);
}

TEST_F(Bus, APlayedTallyIsOneFromTheServerAndMayBePlayedWithinAnother)
{
    static const struct {
        std::string text, path, value;
    } cases[] = {
        {"LOCAL@A#1", "LOCAL@A", "1"},
        {"no mark", "no mar", ""},
        {"A#" + std::string(2000, 'v'), "A", std::string(CMD_SIZE - 1 - 2, 'v')},
    };
    for (const auto& c : cases) {
        probe::seen.clear();
        probe::answer = [&](const probe::Seen& s) {
            EXPECT_EQ(Text(s.ax), c.path);
            EXPECT_EQ(Text(s.bx), c.value);
            EXPECT_EQ(uint32_t(s.cx), Hash(c.path.c_str())) << c.path;
            return 0;
        };
        EXPECT_EQ(SendDummyTally(c.text.c_str()), 0);
        EXPECT_EQ(probe::Count(MSG_TALLY), 1);
    }
    probe::seen.clear();
    EXPECT_EQ(SendDummyTally(nullptr), -1);
    EXPECT_EQ(SendDummyTally(""), 0);
    EXPECT_THAT(probe::seen, IsEmpty());
    probe::answer = nullptr; // one without texts harms nobody
    EXPECT_EQ(SendMessage(MSG_TALLY, 0, 0, 0, 0), 0);
    EXPECT_EQ(SendMessage(MSG_TALLY, Arg("Page"), 0, Hash("Page"), 0), 0);
    EXPECT_EQ(GL_CreatePage, 0u);
    Strings values;
    probe::answer = [&](const probe::Seen& s) {
        const std::string path = Text(s.ax);
        if (path == "Outer")
            SendDummyTally("Inner#2");
        values.push_back(path + "=" + Text(s.bx));
        return 0;
    };
    SendDummyTally("Outer#1");
    EXPECT_THAT(values, ElementsAre("Inner=2", "Outer=1"));
}

static void Receive(const std::string& lines)
{
    ASSERT_EQ(Net_FeedText(lines.data(), int(lines.size())), int(lines.size()));
    ReceiveCommand_Management();
}

TEST_F(Bus, APassTakesAtMost129Lines)
{
    probe::answer = [](const probe::Seen&) {
        (void)Net_FeedText("A#1\n", 4); // never ends
        return 0;
    };
    Receive("A#1\n");
    EXPECT_EQ(probe::Count(MSG_TALLY), 129);
    probe::answer = nullptr;
    ReceiveCommand_Management(); // the one that is left
    EXPECT_EQ(probe::Count(MSG_TALLY), 130);
}

struct BusHub : Bus {
    static constexpr int PORT = 9500;
    Peer hub{PORT};

    void SetUp() override
    {
        Bus::SetUp();
        strcpy(GL_ServerAddress, "127.0.0.1");
        strcpy(SYS_StatusHubAddress, "127.0.0.1");
        SYS_StatusHubPort = PORT;
        GL_ClipStoreSupportMode = 1;
        Net_Init();
        ASSERT_TRUE(hub.Accept());
    }
    void TearDown() override
    {
        Bus::TearDown();
        Net_Init(); // without clip stores
        GL_NetReConnect_SHP = 0;
    }
    Strings Drain(const std::string& lines)
    {
        Strings got;
        probe::answer = [&](const probe::Seen& s) {
            if (s.msg != MSG_SHPTALLY)
                return 0;
            EXPECT_EQ(uint32_t(s.cx), Hash(Text(s.ax)));
            got.push_back(std::string(Text(s.ax)) + "|" + Text(s.bx) + "|" +
                          (s.dx ? Text(s.dx) : "none"));
            return 0;
        };
        hub.Send(lines + "Ready#PNL9.File\n"); // the last one says that all have come
        for (int i = 0; i < 200 && (got.empty() || got.back() != "Ready|PNL9.File|none"); i++) {
            usleep(1000);
            ReceiveCommand_Management();
        }
        if (!got.empty())
            got.pop_back();
        return got;
    }
};

TEST_F(BusHub, OnlyFileTablesAndTheOwnClipStorePass)
{
    EXPECT_THAT(Drain("Notify#SWR1.File:3:a:b\n"
                      "Notify#CS2.File:3\n"
                      "Notify#CS1.ClipStoreInfo:CAPACITY::1,2\n"
                      "Ready#CS1.ClipStoreFile\n"
                      "Disconnect#SWR2.File\n"), // no row: the name stays whole
                ElementsAre("Notify|SWR1.File|3:a:b", "Notify|CS2.File|3",
                            "Notify|CS1.ClipStoreInfo|CAPACITY::1,2",
                            "Ready|CS1.ClipStoreFile|none", "Disconnect|SWR2.File|"));
    EXPECT_THAT(Drain("Notify#SWR1.Other:3\n"
                      "Notify#PNL12.File:3\n"        // the number has one digit
                      "Notify#CS2.ClipStoreInfo:1\n" // of another panel's switcher
                      "Notify#CS:1\n"
                      "Notify#DME1.File:1\nNotify#\n#\n#:\nx\n"),
                IsEmpty());
    EXPECT_EQ(Get_SHPTargetId("Ready#PNL12.File"), 12);
    EXPECT_EQ(Get_SHPTargetId("DME1.File"), -1);
    EXPECT_EQ(Get_SHPTargetId(nullptr), -1);
    for (const char* table : {static_cast<const char*>(nullptr), "", "CS", "SWR1.File"})
        EXPECT_EQ(is_refCS_command(table), 0);
    EXPECT_EQ(is_refCS_command("CS1"), 1);
}

TEST_F(BusHub, NothingOfALostHubStays)
{
    FMCtrl3_Init();
    (void)Drain("Insert#CS1.ClipStoreFolder:root/NEWS:1\nReady#SWR1.File\n");
    EXPECT_EQ(Scp_TrnasferList[0].connect, FILE_CONNECT);
    const auto is_there = [] { return FMCtrl3_FindPath(nullptr, ELEMENT_TYPE_FOLDER, "/NEWS"); };
    EXPECT_TRUE(is_there());
    hub.Drop();
    usleep(20000);
    ReceiveCommand_Management();
    EXPECT_FALSE(is_there());
    EXPECT_EQ(Scp_TrnasferList[0].connect, FILE_DISCONNECT);
    FMCtrl3_Finalize();
}

TEST_F(BusHub, APassTakesAtMost129RowsAndSendsWhatIsForTheHub)
{
    for (int i = 0; i < 131; i++)
        hub.Send("Notify#SWR1.File:3\n");
    usleep(20000);
    ReceiveCommand_Management();
    EXPECT_EQ(probe::Count(MSG_SHPTALLY), 129);
    ReceiveCommand_Management();
    EXPECT_EQ(probe::Count(MSG_SHPTALLY), 131);
    Net_SendSHPCommand("Notify#PNL1.File");
    MainPass();
    EXPECT_THAT(hub.Lines(), Contains("Notify#PNL1.File"));
}

TEST_F(Bus, PageCodeHearsWhatIsSentWhileItOpensAndCloses)
{
    static Strings calls;
    static constexpr PC_TBL code = {
        .proc_func =
            [](int, MsgArg, MsgArg, MsgArg, MsgArg) {
                calls.push_back("proc");
                return 5;
            },
        .create_func =
            [](int on, uint32_t var) {
                calls.push_back((on ? "open " : "close ") + std::to_string(var));
                return SendMessage(MSG_KEY, 0, 0, 0, 0); // still, or already, reaches its procedure
            }};
    calls.clear();
    EXPECT_EQ(PC_Create(&code, 3), 0);
    EXPECT_EQ(PC_Create(nullptr, 4), 1);
    EXPECT_EQ(PC_Create(nullptr, 5), 1); // closed once
    EXPECT_EQ(PC_Proc(MSG_KEY, 0, 0, 0, 0), 0);
    EXPECT_THAT(calls, ElementsAre("open 3", "proc", "close 4", "proc"));
}
