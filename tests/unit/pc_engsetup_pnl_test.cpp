// The panel's setup pages, by shape: what goes over the wire, what the lists and pictures show.
#include "panel_desk.h"
#include "tdl.h"

#define RTR PANEL "Aux Assign@RTR Mode Set@"

struct PanelSetup : PanelTest {
    static void TouchPad(int button)
    {
        (void)Touch(112 + 70 * ((button - 1) % 4) + 20, 212 + 46 * ((button - 1) / 4) + 20);
    }
};

TEST_F(PanelSetup, EveryModuleHasItsPathAndItsButtonsWithTwoDigits)
{
    const std::string program = PANEL "Config@Program Button@";
    const std::string utility = PANEL "Prefs/Utility";
    for (const auto& [page, place, buttons, rows] :
         {std::tuple{0x73210031u, program + "Transition Module", 20, 42},
          {0x73210032, program + "Simple Transition Module", 12, 22},
          {0x73210035, program + "Key Control Module", 8, 16},
          {0x73210036, program + "Key Control Module@Key Control Button Assign", 20, 24},
          {0x73210038, program + "Menu Panel", 24, 30},
          {0x73210040, program + "Joystick/Trackball", 12, 24},
          {0x73210044, program + "Compact Key Trans Module", 8, 29},
          {0x73210012, program + "Extension Panel", 28, 43},
          {0x73210048, program + "Multi Module@Mode Select Assign", 8, 17},
          {0x73240000, utility, 16, 28},
          {0x73240001, utility + "@Utility Module Assign", 16, 24},
          {0x73240003, utility + "@Trans Rate Mode Assign", 8, 17}}) {
        const Lines lines = Open(page);
        const bool is_action = page >= 0x73240000;
        const std::string bank = page == 0x73210044 ? "2" : "1"; // the first with such a module
        const std::string digits =
            (buttons < 10 && !is_action ? "0" : "") + std::to_string(buttons);
        const std::string path =
            place + (is_action ? "@Action Set@1@" + digits
                               : "@Button Assign@" + digits + "@Operation@Common@" + bank);
        EXPECT_EQ(Held(lines, path), 1) << path;
        EXPECT_EQ(LS_GetNData(1), rows) << path;
        EXPECT_FALSE(Disabled().contains(BTN_ASSIGN_SET)) << path;
        for (int row = 0; row < LS_GetNData(1); row++)
            EXPECT_LE(TDL_GetSymbolWidth(LS_GetData(1, row, 0), 3), 128u) << LS_GetData(1, row, 0);
        EXPECT_EQ(Held(Leave(), path), -1) << path;
    }
}

TEST_F(PanelSetup, AKeyToAPageThatIsNotThereIsDisabled)
{
    for (const uint32_t page : {0x73210035u, 0x73220000u}) {
        (void)Open(page);
        EXPECT_THAT(Disabled(), IsEmpty()) << std::hex << page;
    }
    SYS_TargetSwrType = DEVTYPE_LTR50;
    (void)Open(0x73220000);
    EXPECT_THAT(Disabled(), ElementsAre(21)) << "the audio mixer's";
    SYS_RefPnlType = DEVTYPE_QRD21;
    (void)Open(0x73240000);
    EXPECT_THAT(Disabled(), ElementsAre(34)) << "the key 2 bus's";
}

TEST_F(PanelSetup, AButtonIsSetClearedAndPutBackAndTakesNoTouchWhenLocked)
{
    (void)Open(0x73210034);
    TouchPad(9);
    SetupMenu[SetupIndex_Find(0x73210034)].lock = SetupLock.lock = 1;
    TouchPad(5);
    SetupLock.lock = 0;
    EXPECT_THAT(PushIn(4, BTN_ASSIGN_SET),
                ElementsAre("put " PAD "09@Operation@Common@1#4,1,Snapshot"));
    TouchPad(10);
    EXPECT_THAT(Push(BTN_ASSIGN_SET), ElementsAre("put " PAD "10@Operation@Common@1#4,1,Snapshot"));
    EXPECT_EQ(Cell(1, 4, 1), "") << "what is pressed is not what is";
    for (const char* button : {"09", "10"})
        (void)Tell(std::string(PAD) + button + "@Operation@Common@1#4,1,Snapshot");
    EXPECT_EQ(Cell(1, 4, 1), "9,10");
    EXPECT_THAT(Push(BTN_ASSIGN_CLEAR),
                ElementsAre("put " PAD "10@Operation@Common@1#0,1,NO ASSIGN"));
    EXPECT_THAT(Push(BTN_ASSIGN_DEFAULT),
                ElementsAre("put " PAD "10@Operation@Common@Default#4,1,Snapshot"));
    for (const char* rubbish : {"4,1,No Such Thing", "4,1", "", ",,", "4"}) {
        (void)Tell(PAD "09@Operation@Common@1#4,1,Snapshot");
        (void)Tell(std::string(PAD "09@Operation@Common@1#") + rubbish);
        EXPECT_EQ(Cell(1, 4, 1), "10") << rubbish;
    }
}

TEST_F(PanelSetup, ABankWithoutTheModuleTakesNothingAndOneInTwoProgramsHasTwoSides)
{
    (void)Open(0x73210034);
    EXPECT_EQ(BT_GetVisible(BTN_ASSIGN_SUB), BT_DISABLED) << "P/P runs one program";
    Lines lines = Touch(112 + 70 + 20, 98 + 20); // M/E-1
    EXPECT_EQ(Held(lines, PAD "01@Operation@Common@1"), -1);
    EXPECT_EQ(Held(lines, PAD "01@Operation@Common@2"), 1);
    (void)Push(BTN_ASSIGN_SUB);
    EXPECT_THAT(PushIn(1, BTN_ASSIGN_SET),
                ElementsAre("put " PAD "01@Operation@Common@10#1,10,Key"));
    lines = Tell(PANEL "Config@MP2 Main/Sub Assign@Main/Sub Assign@1st Row#Main");
    EXPECT_EQ(Held(lines, PAD "01@Operation@Common@10"), -1);
    EXPECT_EQ(Held(lines, PAD "01@Operation@Common@2"), 1) << "no sub side now";
    (void)Touch(112 + 140 + 20, 98 + 20); // M/E-2
    EXPECT_THAT(Push(BTN_ASSIGN_SET), IsEmpty());
    EXPECT_EQ(BT_GetVisible(BTN_ASSIGN_SET), BT_DISABLED);
    (void)Tell(PANEL "Config@Compact Key Module Assign@KY Unit Config@1#FP,--,--,--,--,--,--,--");
    EXPECT_EQ(Push(BTN_ASSIGN_SET).size(), 1u) << "it has been fitted";
}

TEST_F(PanelSetup, AnActionIsAFunctionOrARegister)
{
    (void)Open(0x73240002);
    const std::string first = "put " KEY2 "Action Set@1@1#";
    EXPECT_THAT(PushIn(3, BTN_ASSIGN_SET), ElementsAre(first + "1,3"));
    (void)Push(BTN_ACTION_MACRO);
    (void)Tell("Macro@Register@List#2,S,NEWS,U,0,0");
    EXPECT_THAT(Cell(1, 1, 0), HasSubstr("NEWS"));
    EXPECT_THAT(PushIn(249, BTN_ASSIGN_SET), ElementsAre(first + "2,250"));
    (void)Push(BTN_ACTION_SHOTBOX);
    EXPECT_THAT(PushIn(1, BTN_ASSIGN_SET), ElementsAre(first + "2,1002"));
    EXPECT_THAT(Push(BTN_ASSIGN_CLEAR), ElementsAre(first + "0,0"));
    EXPECT_THAT(Push(BTN_ASSIGN_DEFAULT), ElementsAre("put " KEY2 "Action Set@1@Default#1"));
    EXPECT_THAT(PushType(BTN_ACTION_NAME, "intro"),
                ElementsAre("put " PANEL "Prefs/Utility@Key2 Bus Button Assign@Name@1@1#intro"));
    for (const char* none : {"2,251", "2,1100", "2", ""}) {
        (void)Tell(KEY2 "Action Set@1@1#2,1002");
        EXPECT_EQ(Cell(1, 1, 1), "1");
        (void)Tell(std::string(KEY2 "Action Set@1@1#") + none);
        EXPECT_EQ(Cell(1, 1, 1), "") << none;
    }
}

TEST_F(PanelSetup, EveryKey2BusButtonOfARowAndOfItsTwoSidesIsReachedAndThePanelAsksForOne)
{
    GL_XptButtonCount = 40;
    (void)Tell(PANEL "Prefs/Utility@Panel Select#32,2");
    (void)Open(0x73240002);
    EXPECT_THAT(PushIn(3, BTN_ASSIGN_SET), ElementsAre("put " KEY2 "Action Set@1@32#1,3"));
    (void)Push(BTN_ACTION_RANGE);
    EXPECT_THAT(Push(BTN_ASSIGN_SET), ElementsAre("put " KEY2 "Action Set@1@40#1,3")) << "the last";
    (void)Tell(KEY2 "Action Set@1@40#1,3");
    EXPECT_EQ(Cell(1, 3, 1), "40");
    Lines lines = Push(BTN_ACTION_RANGE);
    EXPECT_EQ(Held(lines, KEY2 "Action Set@1@40"), -1);
    EXPECT_EQ(Held(lines, KEY2 "Action Set@1@1"), 1) << "after the last the first";
    EXPECT_EQ(Cell(1, 3, 1), "") << "of these nothing has been told";
    (void)Touch(112 + 70 + 20, 98 + 20); // M/E-1
    lines = Touch(112 + 70 + 20, 98 + 20);
    EXPECT_EQ(Held(lines, KEY2 "Action Set@2@16"), -1);
    EXPECT_EQ(Held(lines, KEY2 "Action Set@10@16"), 1) << "its sub side";
    GL_XptButtonCount = GL_XptAsgnSelectButtonID = 0;

    (void)Tell(PANEL "Prefs/Utility@Panel Select#7,1");
    (void)Open(0x73240001);
    EXPECT_THAT(PushIn(2, BTN_ASSIGN_SET),
                ElementsAre("put " PANEL "Prefs/Utility@Utility Module Assign@Action Set@1@7#1,2"));
    GL_UtlAsgnSelectButtonID = 0;
}

// --- Ten keys ---

TEST_F(PanelSetup, ChosenKeysTakeARegionTogetherAndEachOnce)
{
    const Lines opened = Open(0x73210001);
    EXPECT_EQ(std::ranges::count(opened, "put " TENKEY "Pcx#40"), 1);
    EXPECT_EQ(std::ranges::count(opened, "read " REGION "23"), 1);
    EXPECT_EQ(Held(opened, TENKEY "Select@23"), 1);
    EXPECT_EQ(BT_GetVisible(BTN_ASSIGN_SET), BT_DISABLED) << "no key is chosen";
    EXPECT_THAT(Touch(104 + 20, 84 + 36), ElementsAre("put " TENKEY "Select@1#true"));
    TellAll(TENKEY "", {"Select@1#true", "Select@9#true", "Common@Region@Common@1#1,0,M/E-1,,,",
                        "Common@Region@Common@9#9,5,User1,no region,P/P,DME1"});
    SelectRow(1); // P/P
    (void)Touch(456 + 61 + 20, 120);
    EXPECT_THAT(Push(BTN_ASSIGN_SET), ElementsAre("put " REGION "1#1,0,M/E-1,P/P,,",
                                                  "put " REGION "9#9,5,User1,P/P,,DME1"));
    EXPECT_THAT(Push(BTN_ASSIGN_DEFAULT), ElementsAre("put " REGION "Default#1,0,M/E-1,,,",
                                                      "put " REGION "Default#9,5,User1,,P/P,DME1"));
    const std::vector<uint32_t> second_slot = PixelsIn({456, 100, 456 + 2 * 61, 140});
    (void)Touch(456 + 2 * 61 + 20, 120);
    Pass(10);
    EXPECT_NE(PixelsIn({456, 100, 456 + 2 * 61, 140}), second_slot) << "no longer the lit one";
    EXPECT_THAT(Push(BTN_ASSIGN_CLEAR),
                ElementsAre("put " REGION "1#1,0,M/E-1,,,", "put " REGION "9#9,5,User1,,,DME1"));
    EXPECT_EQ(Push(BTN_TENKEY_ALL).size(), 21u) << "those that are not chosen yet";
    EXPECT_EQ(BT_GetStatus(BTN_TENKEY_ALL), BT_OFF) << "the server chooses them";
    for (int key = 1; key <= 23; key++)
        (void)Tell(TENKEY "Select@" + std::to_string(key) + "#true");
    EXPECT_EQ(BT_GetStatus(BTN_TENKEY_ALL), BT_ON);
    EXPECT_EQ(Push(BTN_TENKEY_ALL).size(), 23u) << "and none again";
    EXPECT_THAT(Choose(BTN_TENKEY_RECALL, 1), ElementsAre("put " TENKEY "Default Recall#true"));
}

// --- Tables ---

TEST_F(PanelSetup, ACrosspointIsEditedByHalvesOrAsAPair)
{
    TellSources();
    (void)Open(0x73220001);
    SelectRow(1, 2);
    EXPECT_EQ(PageBy(BTN_XPT_SHIFT), 0x73220008u);
    EXPECT_THAT(Push(BTN_XPT_INSERT), ElementsAre("put " XPT "Insert VK#1,2,0"));
    EXPECT_THAT(Push(BTN_XPT_OVERWRITE), ElementsAre("put " XPT "Insert VK#2,2,1"));
    (void)Push(BTN_XPT_KEY);
    EXPECT_THAT(Push(BTN_XPT_INSERT), ElementsAre("put " XPT "Insert V#3,2,0"));
    (void)Push(BTN_XPT_VIDEO); // the other takes over
    EXPECT_THAT(Push(BTN_XPT_DELETE), ElementsAre("put " XPT "Delete K#4"));
    EXPECT_THAT(Push(BTN_XPT_PAIR),
                ElementsAre("put Info@Operation Setup Data@V/K Pair Assign#true"));
    (void)Tell(XPT "Inhibit#4,true");
    EXPECT_THAT(Push(BTN_XPT_INHIBIT), ElementsAre("put " XPT "Inhibit#4,false"));
    (void)Tell("Info@Operation Setup Data@V/K Pair Assign#true");
    EXPECT_THAT(Push(BTN_XPT_INSERT), ElementsAre("put " XPT "Insert@Main@Assign#4,2"));
    EXPECT_THAT(Push(BTN_XPT_DELETE), ElementsAre("put " XPT "Delete@Main@Assign#5,1"));
    (void)Tell(XPT "Button No#1");
    EXPECT_THAT(Push(BTN_XPT_DELETE), ElementsAre("put " XPT "Delete@Main@Assign#1,1"));
    EXPECT_THAT(Choose(BTN_XPT_DEFAULT, 1), ElementsAre("put " XPT "Default@Main@Assign#true"));
    (void)Tell("Info@Operation Setup Data@V/K Pair Assign#false");
}

TEST_F(PanelSetup, ATableShowsWhatIsToldOfItsSide)
{
    TellSources();
    (void)Open(0x73220002);
    TellAll(XPT "Assign#", {"1,3,3", "129,1,2", "130,99,-1", "256,1,1", "x,1,1", "131", ""});
    EXPECT_EQ(Row(0, 5), "1|CAM1|CAM2||");
    EXPECT_EQ(Row(1, 5), "2||||") << "no such sources";
    (void)Tell(XPT "Source@List#1,GUEST");
    EXPECT_EQ(Row(0, 5), "1|GUEST|CAM2||");
    EXPECT_EQ(Cell(2, 0, 1), "GUEST");
    SelectRow(0, 2);
    EXPECT_THAT(Push(BTN_XPT_OVERWRITE), ElementsAre("put " XPT "Insert VK#129,1,1"));
    (void)Open(0x73220003); // both sides
    EXPECT_EQ(Row(0, 5) + Row(1, 5), "1|CG 1|CG 1|GUEST|CAM22||||");
    (void)Tell(XPT "Assign#2,2,1");
    EXPECT_EQ(Row(1, 5), "2|CAM2|GUEST||");
    for (const auto& [key, order] : {std::pair{49, "Main,Sub"}, {50, "Sub,Main"}}) {
        (void)Push(key);
        SendMessage(LMSG_PANEQUIT, Pane_GetActiveID() + 1, 1, 0, 0); // another one's "Yes"
        EXPECT_THAT(TakeQueuedCommands(), IsEmpty());
        EXPECT_THAT(Answer(0), IsEmpty());
        EXPECT_THAT(Choose(key, 1), ElementsAre("put " XPT "Copy#" + std::string(order)));
    }
}

TEST_F(PanelSetup, OtherTablesHaveTheirPaths)
{
    (void)Tell(PANEL "Config@External Bus Link@S-BUS Src Name List#1,VTR1");
    for (const auto& [page, path] : {std::pair{0x73220010u, std::string(XPT "Mixer Xpt Assign")},
                                     {0x73230000, PANEL "Aux Assign@Aux Button"},
                                     {0x73230003, RTR "Source Table@1"},
                                     {0x73230004, RTR "Lvl Btn"}}) {
        EXPECT_EQ(Held(Open(page), path), 1) << path;
        (void)Tell(path + "#2,1");
        EXPECT_EQ(Cell(1, 1, 1), Cell(2, 0, 1)) << path;
        EXPECT_THAT(Push(BTN_XPT_INSERT), ElementsAre("put " + path + "@Insert#1,1"));
        EXPECT_THAT(Push(BTN_XPT_OVERWRITE), ElementsAre("put " + path + "@Overwrite#2,1"));
        EXPECT_THAT(Push(BTN_XPT_DELETE), ElementsAre("put " + path + "@Delete#3"));
        EXPECT_THAT(Choose(BTN_XPT_DEFAULT, 1), ElementsAre("put " + path + "@Default#true"));
    }
    (void)Open(0x73220010);
    EXPECT_EQ(Cell(2, 0, 1), "Input 1");
    (void)Open(0x73230003);
    EXPECT_THAT(Push(50), ElementsAre("remove " RTR "Source Table@1", "add " RTR "Source Table@4"));
    EXPECT_EQ(Held(Leave(), RTR "Source Table@4"), -1);
}

TEST_F(PanelSetup, WhatIsPreparedGoesWithExecute)
{
    for (const auto& [page, line, told, key, put] :
         {std::tuple{0x73220004u, std::string(XPT "Source@Color#1,"), "4", 35, "0"},
          {0x73220005, XPT "User Color@User 1@Brightness#", "Low", 35, "High"},
          {0x73220006, XPT "Name Export@Router#", "false", 33, "true"},
          {0x73220007, XPT "Side Flags Button Assign#1,", "false", 33, "true"},
          {0x73220008, XPT "Shift Mode@M/E-1#", "Hold", 34, "Lock"},
          {0x73230001, RTR "Mode@1st AUX#", "Aux", 34, "Router"},
          {0x73230002, RTR "Source Table Assign@RTR Dest 1#Table ", "1", 36, "4"}}) {
        (void)Open(page);
        TellSources();
        (void)Tell(line + told);
        EXPECT_THAT(PushIn(0, key), IsEmpty()) << line;
        EXPECT_THAT(Push(BTN_SETUP_EXECUTE), ElementsAre("put " + line + put));
    }
}

TEST_F(PanelSetup, ANameIsMadeFitAndExecuted)
{
    (void)Open(0x73220006);
    EXPECT_THAT(Choose(49, 1), ElementsAre("put " XPT "Name Export@Execute#true"));
    for (const int row : {0, 1}) {
        (void)Open(0x73220004);
        TellSources();
        SelectRow(row);
        EXPECT_THAT(PushType(33, "b"), IsEmpty());
        const std::string n = std::to_string(row + 1), name = "CAM" + n + "b";
        EXPECT_EQ(Row(row, 2), n + "|" + name + "*");
        EXPECT_THAT(Push(BTN_SETUP_EXECUTE),
                    ElementsAre("put " XPT "Source@List#" + n + "," + name));
        (void)Tell(XPT "Source@List#" + n + "," + name);
    }
}

TEST_F(PanelSetup, AColourIsOneOfNine)
{
    for (const auto& [page, key, line] :
         {std::tuple{0x73220004u, 34, std::string(XPT "Source@Color#1,")},
          {0x73220005, 33, XPT "User Color@User 1@Color#"}}) {
        (void)Open(page);
        TellSources();
        (void)Tell(line + "2");
        SelectRow(0);
        (void)Push(key);
        (void)Touch(487, 350); // the last in three rows
        SendMessage(MSG_RELEASE, 487, 350, 0, 0);
        Pass(1000);
        EXPECT_THAT(Push(BTN_SETUP_EXECUTE), ElementsAre("put " + line + "9"));
        (void)Tell(line + "9");
        (void)Choose(key, 0);
        (void)Push(key);
        const int pane = Pane_GetActiveID();
        Pane_Quit(pane); // by "Cancel", which says nothing
        SendMessage(LMSG_PANEQUIT, pane + 1, 4, 0, 0);
        Pass(1000);
        EXPECT_THAT(Push(BTN_SETUP_EXECUTE), IsEmpty()) << "cancelled";
    }
}
