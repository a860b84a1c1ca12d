#include "bus_probe.h"
#include "initread.h"
#include "loop.h"
#include "netio.h"
#include "text.h"
#include "window.h"
#include <algorithm>
#include <set>

using InitialReadTest = BusTest;

TEST_F(InitialReadTest, OnlyTheServersOwnEndStartsOurs)
{
    static const struct {
        const char* value;
        int unit, flag, busy, started;
    } cases[] = {
        {"3,start", 3, 1, 1, 0},   {"0,progress", 0, 1, 1, 0}, {"3,end", 3, 0, 1, 0},
        {"7,start", 6, 0, 1, 0},   {"-1,start", 0, 1, 1, 0},   {"0", 0, 1, 1, 0},
        {"x,end", 0, 1, 1, 0},     {"", 0, 1, 1, 0},           {"0,", 0, 1, 1, 0},
        {"5,start,1", 5, 0, 1, 0}, {"0,end", 0, 0, 0, 1},      {"6,start", 6, 1, 1, 0},
    };
    for (const auto& c : cases) {
        GL_InitRead = 0;
        GL_MainCounter = 50;
        Deliver("Info@Initial Read Status", c.value);
        EXPECT_EQ(GL_InitReadStatus[c.unit], c.flag) << c.value;
        EXPECT_EQ(GL_InitReadStatus_Busy, c.busy) << c.value;
        EXPECT_EQ(GL_InitRead, c.started) << c.value;
        EXPECT_EQ(GL_MainCounter, c.started ? 0u : 50u) << c.value;
    }
}

// By the first lines of their logs; each once, in their order, and again after a restart.
TEST_F(InitialReadTest, TheStagesRunWhenTheirPassesHaveGoneBy)
{
    for (int restart = 0; restart < 2; restart++) {
        InitialRead();
        (void)TakeQueuedCommands();
        for (int pass = 1; pass <= 2100; pass++) {
            MainPass();
            const Strings sent = TakeQueuedCommands();
            for (const auto& [line, its_pass] : {std::pair{"put Info@Status Report#true", 101},
                                                 {"put Info@Menu Macro@Report#true", 301},
                                                 {"add Info@Operation Setup Data@Auto Load", 2001}})
                EXPECT_EQ(std::ranges::count(sent, line), pass == its_pass) << pass << ": " << line;
        }
    }
}

TEST_F(InitialReadTest, OnePaneStandsWhileSomeUnitReads)
{
    InitialProgress(0);
    const int first = GL_InitProgress_PaneID;
    InitialProgress(0);
    EXPECT_EQ(Pane_Exist(first), 0);
    EXPECT_EQ(Pane_Exist(GL_InitProgress_PaneID), 1);
    Pane_Quit(GL_InitProgress_PaneID);
    GL_InitProgress = 0;
    constexpr char status[] = "Info@Initial Read Status";
    for (const auto& [page, disabled, opens] :
         {std::tuple{0x11110000u, 0, true}, {0x11110000u, 1, false}, {0x99990000u, 0, false}}) {
        GL_NowPage = page;
        GL_InitialReadPopupDisable = disabled;
        Deliver(status, "3,start");
        EXPECT_EQ(Pane_GetActiveID() != 0, opens) << std::hex << page;
        Deliver(status, "4,progress");
        Deliver(status, "3,end");
        EXPECT_EQ(Pane_GetActiveID() != 0, opens) << "one unit still reads";
        Deliver(status, "4,end");
        EXPECT_EQ(Pane_GetActiveID(), 0);
    }
    GL_InitialReadPopupDisable = 0;
    GL_NowPage = 0x11110000;
    CreateWindow(WINDOW_MESSAGE, "First");
    Deliver(status, "3,start");
    EXPECT_EQ(Pane_GetActiveID(), 0) << "the operator is asked something else";
    CloseWindow();
    Deliver(status, "3,end");
}

TEST_F(InitialReadTest, TheTimedPaneHasTheScreenUntilAPageIsAskedFor)
{
    GL_NowPage = 0x11110000;
    InitialProgress(0);
    for (const auto& [asked, has] :
         {std::pair{0u, true}, {0x11110000u, true}, {0x31110000u, false}}) {
        GL_CreatePage = asked; // the page that is up is only built anew
        EXPECT_EQ(InitialProgress_HasScreen(), has) << std::hex << asked;
    }
    GL_CreatePage = 0;
    Pane_Quit(GL_InitProgress_PaneID);
    GL_InitProgress = 0;
}

TEST_F(InitialReadTest, TheSecondStageReachesBothEndsOfItsRows)
{
    SYS_ConfigChange = 1;
    SYS_FmemV6 = 0;
    InitialCommand0();
    EXPECT_EQ(SYS_FmemV6, 1) << "the newest, until the server tells of another";
    (void)TakeQueuedCommands();
    InitialCommand1();
    EXPECT_EQ(SYS_ConfigChange, 0);
    const Strings sent = TakeQueuedCommands();
    for (const char* line :
         {"add Info@Processor Status@6", "add Info@Operation Setup Data@Color Select@12",
          "add Engineering Setup@System@Format@Reference@PNL4",
          "add Engineering Setup@Panel@Config@10 Key Region Assign@Common@Region@Common@23",
          "add PGM/PST@DSK1@Processed Key@Rotation", "add M/E-5@Key8@Processed Key@Rotation",
          "add Info@Board Config@Board Exist Set@PNL1", "read Engineering Setup@DME@Model@DME2"})
        EXPECT_THAT(sent, Contains(line));
    EXPECT_THAT(sent, Not(Contains("add 16@Frame Mem@Status@Register Status@45")));
    // A shortcut stands right behind its group.
    const auto group = std::ranges::find(sent, "add Info@Operation Setup Data@Group Name@10");
    ASSERT_NE(group, sent.end());
    EXPECT_EQ(*(group + 1), "add Info@Operation Setup Data@Shortcut Name@10");
    EXPECT_EQ(std::set<std::string>(sent.begin(), sent.end()).size(), sent.size()) << "sent twice";
    InitialCommand2();
    EXPECT_THAT(TakeQueuedCommands(), Contains("read Engineering Setup@DME@Model@DME2"));
    EXPECT_EQ(probe::Count(LMSG_SELFDIAGCHANGE), 1);
}

// The server has forgotten what the page follows.
TEST_F(InitialReadTest, ThePageThatIsUpIsOpenedAnewAfterTheSecondStage)
{
    for (const auto& [page, asked, then] :
         {std::tuple{0x11110000u, 0u, 0x11110000u},
          {0x11110000u, 0x31110000u, 0x31110000u}, // another request stands
          {0x71420002u, 0u, 0x71420002u},          // the online editor's list is at the server
          {0x71420003u, 0u, 0u}}) {                // the macro editor is in the middle of something
        GL_NowPage = page;
        GL_CreatePage = asked;
        InitialCommand1();
        EXPECT_EQ(GL_CreatePage, then) << std::hex << page;
    }
}

// A sub side's streams mean nothing to a server that has not been asked for the streams themselves.
TEST_F(InitialReadTest, SubSidesAreSubscribedOnceAndAgainBehindTheSecondStage)
{
    const auto subs = [] {
        return std::ranges::count(TakeQueuedCommands(),
                                  "add Effect@Effect@Attribute@List@M/E-1 Sub");
    };
    DeviceStructure(); // no bank has a sub side
    (void)TakeQueuedCommands();
    constexpr char config[] = "Engineering Setup@Switcher@Config@M/E Config@M/E-1";
    Deliver(config, "Multi Program 2");
    EXPECT_EQ(subs(), 1) << "at once";
    DeviceStructure();
    EXPECT_EQ(subs(), 0);
    Deliver("Info@Initial Read Status", "0,end");
    DeviceStructure();
    EXPECT_EQ(subs(), 0) << "not yet";
    int frames = Net_State(NET_LINK_BIN).waiting;
    DeathCommand1(); // the lists go with it
    EXPECT_EQ(Net_State(NET_LINK_BIN).waiting, frames + 3) << "and the streams";
    InitialCommand1();
    EXPECT_EQ(subs(), 0);
    frames = Net_State(NET_LINK_BIN).waiting;
    DeviceStructure();
    EXPECT_EQ(subs(), 1);
    EXPECT_GT(Net_State(NET_LINK_BIN).waiting, frames) << "their timelines";
    Deliver(config, "Standard");
    EXPECT_EQ(subs(), 0);
}

TEST_F(InitialReadTest, TheHubIsAskedForTheTablesOfTheOwnUnits)
{
    DEVICE switcher, panel;
    CopyText(switcher.id, "SWR000D002");
    CopyText(panel.id, "PNL000D003");
    DEV_MySwr[0] = &switcher;
    DEV_MyPnl[0] = &panel;
    SYS_MySwrMax = SYS_MyPnlMax = 1;
    (void)TakeQueuedHubLines();
    for (const auto& [verb, command] :
         {std::pair{"Listen#", &InitialCommandSHP}, {"Unlisten#", &DeathCommandSHP}}) {
        Strings expected = {
            "CS2.ClipStoreInfo", "CS2.ClipStoreFolder", "CS2.ClipStoreFile", "PNL3.File",
            "CS1.File",          "SWR1.File",           "CS2.File",          "SWR2.File"};
        for (std::string& line : expected)
            line.insert(0, verb);
        command();
        EXPECT_THAT(TakeQueuedHubLines(), testing::UnorderedElementsAreArray(expected));
    }
    DEVICE second = switcher;
    second.id[9] = '4';
    DEV_MySwr[1] = &second;
    SYS_MySwrMax = 2;
    InitialCommandSHP();
    EXPECT_THAT(TakeQueuedHubLines(), Not(Contains("Listen#CS4.ClipStoreFile")))
        << "the first has it";
    DeathCommandSHP();
    EXPECT_THAT(TakeQueuedHubLines(), Contains("Unlisten#CS4.ClipStoreFile"));
    DeviceStructure();
}

// What a stage adds, its opposite removes; what it only asked once or set leaves nothing behind.
TEST_F(InitialReadTest, AStageAndItsOppositeCancel)
{
    using Stage = std::pair<void (*)(), void (*)()>;
    // The lists of the sub sides come later, but end with the second stage.
    const auto second = [] { InitialCommand1(), InitialCommand_MP2(); };
    Strings put; // besides
    for (const auto& [initial, death] : {Stage{InitialCommand0, DeathCommand0},
                                         {second, DeathCommand1},
                                         {InitialCommand2, DeathCommand2}}) {
        std::set<std::string> added, removed;
        initial();
        for (const auto& line : TakeQueuedCommands())
            if (line.starts_with("add "))
                added.insert(line.substr(4));
        death();
        for (const auto& line : TakeQueuedCommands()) {
            if (line.starts_with("remove "))
                removed.insert(line.substr(7));
            else
                put.push_back(line);
        }
        EXPECT_EQ(added, removed);
        EXPECT_FALSE(added.empty());
    }
    Strings ended = {"Status Report", "Initial Read Status"};
    for (const char* unit : {"PNL", "SWR1", "SWR2", "DME1", "DME2", "DME3", "DME4"})
        ended.push_back(std::string("Self Diagnosis Notice@") + unit);
    for (std::string& line : ended)
        line = "put Info@" + line + "#false";
    EXPECT_EQ(put, ended);
}
