// The engineering pages: what their switches change, and what they show of the state.
#include "a_pc.h"
#include "a_st_draw.h"
#include "colours.h"
#include "debug.h"
#include "display.h"
#include "hsl.h"
#include "i2c.h"
#include "log.h"
#include "loop.h"
#include "memory.h"
#include "netio.h"
#include "pane.h"
#include "pc_eng.h"
#include "selfdiag.h"
#include "table_page.h"
#include "text.h"
#include "touch.h"
#include <filesystem>
#include <fstream>
#include <sys/mman.h>

struct Engineering : TablePage {
    static constexpr const char* LOG = "/var/log2/eng_test.log";

    void TearDown() override
    {
        GL_AllPageDisplayMode = 0;
        GL_LogFileName[0] = '\0';
        Log_Init(nullptr, LOG_FILE_SIZE);
        Log_SetLevel(0);
        TablePage::TearDown();
    }
    static void Press(int id)
    {
        (void)TablePage::Press(id);
        Pass(200);
        Pass(10);
    }
    static Strings Column(int list, int column)
    {
        Strings cells;
        for (int row = 0; row < LS_GetNData(list); row++)
            cells.push_back(LS_GetData(list, row, column));
        return cells;
    }
};

TEST_F(Engineering, TheSwitchesDecideWhatIsLogged)
{
    remove(LOG);
    Log_Init(LOG, LOG_FILE_SIZE);
    Log_SetLevel(0);
    Open(0x99995555);
    EXPECT_EQ(BT_GetOnOff(1), 1) << "level 0 is lit";
    EXPECT_EQ(BT_GetOnOff(20), 1) << "and every module";
    Press(5); // level 5
    EXPECT_EQ(Log_Output(LOG_LINK, MOD_LINK, "quiet"), 1);
    EXPECT_EQ(Log_Output(LOG_LIFE, MOD_LINK, "loud"), 0);
    EXPECT_EQ(BT_GetOnOff(1), 0);
    EXPECT_EQ(BT_GetOnOff(5), 1);
    Press(20); // links
    EXPECT_EQ(BT_GetOnOff(20), 0);
    EXPECT_EQ(Log_Output(LOG_LIFE, MOD_LINK, "of the links"), 2);
    EXPECT_EQ(Log_Output(LOG_LIFE, MOD_PAGE, "of the pages"), 0);
    Press(22); // all modules
    EXPECT_EQ(BT_GetOnOff(20), 1);
    EXPECT_EQ(Log_Output(LOG_LIFE, MOD_LINK, "again"), 0);
    Press(34);
    EXPECT_EQ(GL_LoopCounter + BT_GetOnOff(34), 2);
    Press(34);
    EXPECT_EQ(GL_LoopCounter, 0);
    EXPECT_THAT(FileText(LOG),
                AllOf(Not(HasSubstr("quiet")), Not(HasSubstr("of the links")), HasSubstr("again")));
}

TEST_F(Engineering, TheWalkOpensEveryRowOnceAndEndsWhereItBegan)
{
    constexpr Rect SUMMARY = {112, 92, 697, 158};
    // What a page of these asks for becomes another one as long as nothing is being edited.
    const std::set<uint32_t> guarded = {0x71420002, 0x71420003, 0x71440002};
    std::set<uint32_t> left, seen;
    for (const PAGE* row = PageTable; row->id != PAGE_END; row++)
        if (SearchPageTable_Free_ALL(PageTable, row->id) && !guarded.contains(row->id))
            left.insert(row->id);
    const size_t rows = left.size();
    Open(0x12110000);
    Open(PAGE_WALK);
    const auto places = [] {
        std::vector<uint32_t> all_places(Omote_History, Omote_History + HISTORY_DEPTH);
        for (const TOPMENU* top = TopMenu; top->caption; top++)
            all_places.push_back(top->page);
        all_places.insert(all_places.end(), {uint32_t(Omote_History_NowPtr), GL_OmoteNowPage,
                                             GL_UraNowPage, GL_PrevPage});
        return all_places;
    };
    const auto before = places();
    const auto not_begun = PixelsIn(SUMMARY);
    Press(17); // 10 passes a page
    EXPECT_EQ(GL_AllPageDisplayMsec, 10);
    EXPECT_EQ(BT_GetOnOff(17), 1);
    GL_AllPageDisplayMsec = 1;
    Press(33); // once
    Press(49); // start
    EXPECT_EQ(GL_AllPageDisplayMode, 1);
    for (int pass = 0; GL_AllPageDisplayMode && pass < 4 * PageTable_Rows; pass++) {
        MainPass();
        seen.insert(GL_NowPage);
        left.erase(GL_NowPage);
        while (const int pane = Pane_GetActiveID()) // a page's own question
            Pane_Quit(pane);
        (void)TakeQueuedCommands();
    }
    EXPECT_EQ(GL_AllPageDisplayMode, 0) << "it has not ended";
    EXPECT_TRUE(left.empty()) << std::hex << *left.begin() << " and " << left.size() << " rows";
    EXPECT_GE(seen.size(), rows);
    MainPass();
    EXPECT_EQ(GL_NowPage, PAGE_WALK);
    EXPECT_NE(PixelsIn(SUMMARY), not_begun);
    EXPECT_EQ(places(), before) << "the operator's own way is as it was";
    Open(0x99970001);
    EXPECT_GE(LS_GetNData(ENG_LIST), int(rows)) << "each has its figures";
    Press(50); // by table
    EXPECT_EQ(Cell(1, 0, 0) + " " + Cell(1, 0, 3), "0011 0") << "milliseconds";
    EXPECT_EQ(BT_GetOnOff(50), 1);
    LS_SetNowLine(1, 1);
    EXPECT_EQ(PageBy(52), PageTable[1].id); // open
}

TEST_F(Engineering, TheKeysOfTheWalkHoldItAndStepBothWays)
{
    const auto press_strip = [](int key) {
        (void)Touch(508 + 6 + 64 * key + 20, 20);
        for (int pass = 0; pass < 20; pass++)
            MainPass();
    };
    enum { STOP, PREV, RUN, NEXT };
    Open(PAGE_WALK);
    GL_AllPageDisplayMsec = 1000;
    press_strip(RUN);
    EXPECT_EQ(GL_NowPage, PageTable[0].id);
    EXPECT_NE(PixelAt(508 + 6 + 55, 20), 0x2A2F32u) << "a key stands out";
    press_strip(NEXT);
    press_strip(NEXT);
    EXPECT_EQ(GL_NowPage, PageTable[2].id);
    press_strip(PREV);
    EXPECT_EQ(GL_NowPage, PageTable[1].id);
    GL_AllPageDisplayMsec = 1;
    for (int pass = 0; pass < 50; pass++)
        MainPass();
    EXPECT_EQ(GL_NowPage, PageTable[1].id) << "a step by hand holds it";
    press_strip(RUN);
    EXPECT_NE(GL_NowPage, PageTable[1].id);
    press_strip(STOP);
    EXPECT_EQ(GL_AllPageDisplayMode, 0);
    EXPECT_EQ(GL_NowPage, PAGE_WALK);
}

TEST(Hsl, BecomesRedGreenAndBlue)
{
    static const std::tuple<double, double, double, unsigned> cases[] = {
        {0, 100, 50, 0xFF0000},         {60, 100, 50, 0xFFFF00},   {120, 100, 50, 0x00FF00},
        {240, 100, 50, 0x0000FF},       {300, 100, 25, 0x800080},  {0, 0, 50, 0x808080},
        {210, 50, 40, 0x336699},        {0, 100, 100, 0xFFFFFF},   {200, 100, 0, 0x000000},
        {360, 100, 50, 0xFF0000},       {-120, 100, 50, 0x0000FF}, {0, 900, 50, 0xFF0000},
        {0, double(NAN), 50, 0x808080}, {1e300, 0, 200, 0xFFFFFF}, {double(NAN), 0, 50, 0x808080},
    };
    for (const auto& [hue, saturation, luminance, rgb] : cases)
        EXPECT_EQ(RgbOfHsl(hue, saturation, luminance), rgb)
            << hue << " " << saturation << " " << luminance;
}

TEST_F(Engineering, TheCheckerSetsTheGroundOfTheCellsAndBringsItBack)
{
    const unsigned usual = st_ground(1);
    Open(0x77770000);
    Press(35); // red
    EXPECT_EQ(st_ground(1), 0x800000u);
    EXPECT_EQ(NB_SendValue2(2, 300), 0); // green, beyond its end
    EXPECT_EQ(st_ground(1), 0x80FF00u);
    Pass(10);
    EXPECT_EQ(PixelAt(150, 158), 0x80FF00u) << "in a cell";
    EXPECT_EQ(Shown("Green"), "255");
    SendMessage(LMSG_BTNSEL, Arg("LOCAL@Engineering@Color@Ground"), Arg("FF01FFFF"), 0, 0);
    EXPECT_EQ(st_ground(1), 0x01FFFFu);
    for (const int key : {49, 50, 51, 52}) {
        const int before = BT_GetOnOff(key);
        Press(key);
        EXPECT_EQ(BT_GetOnOff(key), !before) << key;
    }
    Press(38); // default
    EXPECT_EQ(st_ground(1), usual);
    Open(PAGE_TOP);
    EXPECT_EQ(bgcen | inven | gryen | s_font, 0) << "only the page itself changes cells";
}

TEST_F(Engineering, AColourIsMixedOfHueSaturationAndLuminanceAndStays)
{
    Open(0x88880000);
    const Display display;
    const std::vector<uint32_t> figures = PixelsIn({112, 246, 697, 300});
    Press(37); // blue
    EXPECT_EQ(PixelAt(684, 225), 0x0000FFu);
    EXPECT_EQ(Shown("Hue"), "240");
    EXPECT_EQ(Display::Lacks(), "");
    (void)NB_SendValue2(1, 210);
    (void)NB_SendValue2(2, 50);
    (void)NB_SendValue2(3, 40);
    EXPECT_EQ(PixelAt(113, 93), 0x336699u);
    EXPECT_NE(PixelsIn({112, 246, 697, 300}), figures);
    EXPECT_EQ(Display::Lacks(), "");
    Open(PAGE_TOP);
    Open(0x88880000);
    EXPECT_EQ(PixelAt(113, 93), 0x336699u);
}

TEST_F(Engineering, ReportsAreKeptWhateverPageIsShown)
{
    Open(PAGE_TOP);
    TellAll("Info@Status Report", {"#true", "@DME1#OK->NG", "@DME2#Bus Error", "@SWR1#NG Fan 2",
                                   "#Server restarted", "s@SWR9#none of them"});
    Open(0x99980000);
    EXPECT_THAT(Column(1, 1), ElementsAre("Server", "SWR1", "DME2", "DME1"));
    EXPECT_THAT(Column(1, 2), ElementsAre("Server restarted", "NG Fan 2", "Bus Error", "OK->NG"));
    for (const int row : {0, 1, 2, 3})
        EXPECT_EQ(LS_GetStatus(1, row, 2), row ? 2 : 0) << "an error is red";
    for (int n = 0; n < 205; n++)
        (void)Tell("Info@Status Report@DME1#" + std::to_string(n));
    Pass(10);
    Open(PAGE_TOP);
    Open(0x99980000);
    EXPECT_EQ(LS_GetNData(1), 200) << "shown at once";
    EXPECT_EQ(Cell(1, 0, 2), "204");
    EXPECT_EQ(Cell(1, 199, 2), "5");
    Press(49); // clear
    EXPECT_EQ(LS_GetNData(1), 0);
}

TEST_F(Engineering, TheLogIsShownFromItsEndAndFiltered)
{
    CopyText(GL_LogFileName, LOG);
    std::ofstream file(LOG);
    for (int n = 0; n < 5000; n++)
        file << "[Mar 05 07:08:09][ 16] line " << n << " of the pages, to fill the file\n";
    file << "M/E-1@Key1" << '\0' << "Type#Luminance\n[Mar 05 07:08:10][ 15] the link [text]\n[cut"
         << std::flush;
    Open(0x99930003);
    EXPECT_EQ(LS_GetNData(1), 1000) << "no more than the list takes";
    EXPECT_EQ(LS_GetSelected(1, 0), 0);
    EXPECT_EQ(Cell(1, 0, 2), "[cut");
    EXPECT_EQ(Cells(1, 1, 0, 3), "Mar 05 07:08:10|15|the link [text]");
    EXPECT_EQ(Cell(1, 2, 2), "M/E-1@Key1 Type#Luminance");
    EXPECT_EQ(Cell(1, 3, 2), "line 4999 of the pages, to fill the file");
    EXPECT_EQ(BT_GetStatus(51), BT_OFF);
    const auto whole_line = [] { return Seen({100, 302, 697, 338}); };
    const auto newest = whole_line();
    (void)Touch(200, 78 + 22 * 3 + 5);
    EXPECT_NE(whole_line(), newest);
    Press(37); // links
    EXPECT_THAT(Column(1, 2), ElementsAre("the link [text]"));
    file << "\n[Mar 05 07:08:11][ 15] one more\n" << std::flush;
    Pass(600);
    EXPECT_THAT(Column(1, 2), ElementsAre("one more", "the link [text]")) << "it follows";
    Press(51); // find
    for (const int key : {SDLK_m, SDLK_o, SDLK_r, SDLK_RETURN})
        SendMessage(MSG_KEY, key, 0, 0, 0);
    for (int pass = 0; pass < 10; pass++)
        Pass(100);
    EXPECT_THAT(Column(1, 2), ElementsAre("one more"));
    EXPECT_EQ(BT_GetStatus(51), BT_ON);
    Press(51);
    EXPECT_EQ(LS_GetNData(1), 2) << "it lets go of the text";
    Press(52); // follow no longer
    file << "[Mar 05 07:08:12][ 15] too late\n" << std::flush;
    Pass(600);
    EXPECT_EQ(LS_GetNData(1), 2);
    Press(52);
    (void)SelfDiag_AddLog("SWR1", "fan %d", 1);
    Press(34); // maintenance
    EXPECT_EQ(BT_GetOnOff(34), 1);
    EXPECT_EQ(Cells(1, 0, 1, 2), "SWR1|fan 1");
    EXPECT_THAT(Disabled(), ElementsAre(36, 37, 38, 49, 50)) << "it has no modules";
    Press(33);
    Press(36); // all
    remove(LOG);
    Pass(600);
    EXPECT_EQ(LS_GetNData(1), 0);
}

TEST_F(Engineering, TheTextLinkIsTimedByItsAnswer)
{
    GL_ClipStoreSupportMode = 0;
    CopyText(GL_ServerAddress, "127.0.0.1");
    CopyText(SYS_StatusHubAddress, "10.1.2.3");
    SYS_StatusHubPort = 9501;
    Peer server(NET_TEXT_PORT);
    Net_Init();
    ASSERT_TRUE(server.Accept());
    MainPass();
    Open(0x99990000);
    EXPECT_THAT(Column(1, 2), ElementsAre("Up", "Down", "Not used"));
    EXPECT_THAT(Column(1, 7), ElementsAre("waiting", "--", "")) << "two have nothing to ask";
    EXPECT_EQ(Cells(1, 0, 0, 2) + Cell(1, 1, 1), "Text|127.0.0.1:10001127.0.0.1:10000");
    EXPECT_EQ(Cell(1, 2, 1), "10.1.2.3:9501");
    for (const int link : {0, 1, 2}) // as it is, red, grey
        EXPECT_EQ(LS_GetStatus(1, link, 2), (3 - link) % 3) << link;
    Press(50); // repeat
    for (int pass = 0; pass < 4; pass++)
        MainPass();
    EXPECT_THAT(server.Lines(), Contains("read Engineering Setup@System@Format@4K Mode"));
    (void)Tell("Engineering Setup@System@Format@4K Mode#Off");
    MainPass();
    EXPECT_THAT(LS_GetData(1, 0, 7), testing::EndsWith(" ms"));
    for (int pass = 0; pass < 101; pass++)
        MainPass();
    EXPECT_EQ(server.Lines().size(), 1u) << "once a second";
    Press(50);
    Press(49); // ping; nobody answers
    for (const char* answer : {"waiting", "none"}) {
        for (int pass = 0; pass < 200; pass++)
            MainPass();
        EXPECT_EQ(Cell(1, 0, 7), answer);
    }
    EXPECT_EQ(LS_GetStatus(1, 0, 7), 2) << "red";
    server.Drop();
    server.StopListening();
    Net_Init();
}

TEST_F(Engineering, BoardsOfUnitsThatAreThereAreListed)
{
    Open(0x99910001);
    EXPECT_EQ(Cell(1, 0, 1), "--");
    CopyText(DEV_Swr[0].name, "SWR1");
    SYS_SwrMax = 1;
    CopyText(GL_CircuitBoard[0][0], "MIX-12");
    CopyText(GL_CircuitBoard[1][0], "MIX-13"); // of a unit that has gone
    Pass(600);
    EXPECT_EQ(Cells(1, 0, 1, 2), "MIX-12|--");
    EXPECT_EQ(Cell(1, 1, 1), "--") << "nothing told";
    EXPECT_EQ(LS_GetStatus(1, 1, 1), 1) << "grey";
    CopyText(DEV_Dme[0].name, "DME1");
    SYS_DmeMax = 1;
    CopyText(GL_CircuitBoard[4][30], "XPT-9");
    Open(0x99910002);
    EXPECT_EQ(Cells(1, 30, 0, 3), "Slot 31|XPT-9|--");
    Open(0x99910009);
    EXPECT_EQ(Cells(1, 0, 0, 2) + Cells(1, LS_GetNData(1) - 1, 0, 2),
              "PNL1|PNL001D001DME1|DME001D001");
}

TEST_F(Engineering, TheSelfTestsSayWhatTheyFind)
{
    using testing::EndsWith, testing::StartsWith;
    const auto round = [] {
        for (int test = 0; test < 12; test++)
            Pass(10);
    };
    remove(LOG);
    Log_Init(LOG, LOG_FILE_SIZE);
    GL_ClipStoreSupportMode = GL_IsRamDisk = 0;
    GL_ErrorExist = 2;
    const int touch_fd = std::exchange(Touch_FD, -1);
    for (int region = 0; region < 4; region++)
        (void)I2cEepromService_UpdateCrc32(region);
    Open(0x55550000);
    EXPECT_THAT(Column(1, 1), Each("--"));
    const Display display;
    Press(49); // start
    round();
    EXPECT_THAT(Column(1, 1), ElementsAre("OK", "OK", "OK", "Error", "Error", "Left out", "OK",
                                          "OK", "OK", "Error", "Error", "OK"));
    EXPECT_THAT(Column(1, 3),
                ElementsAre("ten fonts, 94 glyphs each", EndsWith(" bitmaps"),
                            EndsWith(" pictures"), StartsWith("down, "), StartsWith("down, "), "",
                            StartsWith("written, "), StartsWith("written, "), "4 regions",
                            "none found", "2 errors in the Diag menu",
                            EndsWith("live, +0 since the start")));
    EXPECT_THAT(Column(1, 2), Each(testing::MatchesRegex("[0-9]+"))) << "milliseconds";
    EXPECT_EQ(LS_GetStatus(1, 3, 1), 2) << "red";
    EXPECT_EQ(LS_GetStatus(1, 5, 1), 1) << "grey";
    EXPECT_THAT(PixelsIn({104, 372, 697, 388}), Contains(RED)) << "errors";
    EXPECT_EQ(Display::Lacks(), "");
    EXPECT_THAT(FileText(LOG), HasSubstr("Self test: Units: 2 errors in the Diag menu"));
    GL_ErrorExist = 0;
    Press(51); // repeat
    Press(49);
    round();
    GL_ErrorExist = 1;
    GL_IsRamDisk = 1;
    std::filesystem::create_directory("/var/log2/.tm3test.new"); // in the way of a file
    Pass(500);
    EXPECT_EQ(Cell(1, 10, 1), "OK") << "it pauses";
    Pass(500);
    round();
    std::filesystem::remove("/var/log2/.tm3test.new");
    GL_IsRamDisk = 0;
    EXPECT_EQ(Cell(1, 10, 1), "Error");
    EXPECT_EQ(Cells(1, 7, 0, 2) + Cell(1, 7, 3), "Data drive|Left out");
    EXPECT_EQ(Cell(1, 6, 1), "Error");
    EXPECT_THAT(Cell(1, 6, 3), StartsWith("cannot be written"));
    Press(50); // stop
    GL_ErrorExist = 0;
    Pass(2000);
    round();
    EXPECT_EQ(Cell(1, 10, 1), "Error");
    Touch_FD = touch_fd;
}

TEST_F(Engineering, TheFiguresAreThoseSinceTheReset)
{
    using testing::MatchesRegex;
    static int slow_ms; // of a pass, and to leave a page
    static constexpr PC_TBL slow = {.proc_func =
                                        [](int msg, MsgArg, MsgArg, MsgArg, MsgArg) {
                                            Clock_ms += msg == MSG_REDRAW ? uint32_t(slow_ms) : 0;
                                            return 0;
                                        },
                                    .create_func =
                                        [](int on, uint32_t) {
                                            Clock_ms += on ? 0 : uint32_t(slow_ms);
                                            return 0;
                                        }};
    Open(0x99930002);
    MainPass();
    Press(49); // reset
    for (const auto& [page, ms] : {std::pair{0u, 90}, {0x12110000u, 40}, {0x99930002u, 7}}) {
        PC_Create(&slow, 0);
        slow_ms = ms;
        GL_CreatePage = page;
        MainPass();
    }
    Clock_ms += 446523000;
    MainPass();
    void* const most =
        mmap(nullptr, 64 << 20, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    memset(most, 1, 64 << 20);
    munmap(most, 64 << 20);
    Pass(1000);
    EXPECT_GT(std::stod(Cell(1, 8, 1)), std::stod(Cell(1, 7, 1)) + 40) << "the most, resident";
    EXPECT_EQ(Cells(1, 0, 0, 2), "Measured for|124:02:03");
    EXPECT_EQ(Cells(1, 1, 0, 2), "Passes|4, 0 a second");
    EXPECT_EQ(Cell(1, 2, 1), "34.25 ms");
    EXPECT_EQ(Cells(1, 3, 0, 2), "Pass, longest|90 ms, page 9993.2");
    EXPECT_EQ(Cells(1, 5, 0, 2), "Page change, last|7 ms, page 9993.2");
    EXPECT_EQ(Cells(1, 6, 0, 2), "Page change, longest|40 ms, page 1211");
    EXPECT_EQ(Cell(1, 4, 1), "2");
    EXPECT_EQ(Cell(1, 10, 1), std::to_string(UsedMemPtr));
    for (const int row : {7, 8, 9, 12, 13})
        EXPECT_THAT(Cell(1, row, 1), MatchesRegex("[1-9][0-9]*\\.[0-9] MB")) << row;
    const std::string open = Cell(1, 11, 1);
    const std::ifstream one_more("/dev/null");
    Pass(999);
    EXPECT_EQ(Cell(1, 11, 1), open) << "once a second";
    Pass(1);
    EXPECT_EQ(Cell(1, 11, 1), std::to_string(std::stoi(open) + 1));
}

TEST_F(Engineering, WhatArrivesIsListedTheNewestOnTop)
{
    Open(0x99940000);
    SendMessage(MSG_KEY, SDLK_a, KMOD_LSHIFT, 0, 0);
    Clock_ms += 70;
    (void)Tell("Panel@Common@Knob3#-2");
    (void)Tell("Panel@Common@Lamp#1");
    Pass(10);
    EXPECT_THAT(Column(1, 1), ElementsAre("Knob", "Key"));
    EXPECT_THAT(Column(1, 0), ElementsAre("+70", ""));
    EXPECT_THAT(Column(1, 2),
                ElementsAre("Panel@Common@Knob3  counts -2", "97 (0x61)  \"a\"  mod 0x0001"));
    for (int n = 0; n < 205; n++)
        (void)Tell("Panel@Common@Knob1#" + std::to_string(n));
    Pass(10);
    EXPECT_EQ(LS_GetNData(1), 200);
    EXPECT_EQ(Cell(1, 0, 2), "Panel@Common@Knob1  counts 204");
    EXPECT_EQ(Cell(1, 199, 2), "Panel@Common@Knob1  counts 5");
    Press(50); // clear
    for (const int msg : {MSG_PRESS, MSG_DRAG, MSG_RELEASE, MSG_WHEELUP, MSG_WHEELDOWN})
        SendMessage(msg, 640, 460, 1, 0);
    Press(49); // hold
    (void)Tell("Panel@Common@Knob1#1");
    EXPECT_EQ(BT_GetOnOff(49), 1);
    Pass(10);
    EXPECT_THAT(Column(1, 1), ElementsAre("Press", "Wheel down", "Wheel up", "Release", "Move",
                                          "Press", "Release"));
    EXPECT_EQ(Cell(1, 3, 2), "x 640  y 460  button 0");
    EXPECT_EQ(Cell(1, 5, 2), "x 640  y 460  button 1");
    Open(0x99940000);
    Press(49);
    EXPECT_THAT(Column(1, 1), ElementsAre("Press")) << "a visit begins anew, and is not held";
}

TEST_F(Engineering, TheFieldShowsWhereTheFingerWentAndTheLineAboveItHowOften)
{
    constexpr Rect READOUT = {104, 79, 400, 95};
    constexpr uint32_t DOWN = 0x00FFFF, WAY = 0xFFFFFF;
    Open(0x99950000);
    Pass(10);
    const Display display;
    const uint32_t ground = PixelAt(320, 220);
    EXPECT_EQ(PixelAt(320, 150), 0x203038u) << "the grid";
    EXPECT_NE(PixelAt(bt_find(49)->x1 + 8, bt_find(49)->y1 + 8), 0u) << "keys are painted too";
    SendMessage(MSG_DRAG, 320, 220, 0, 1);
    EXPECT_EQ(PixelAt(320, 220), ground) << "no finger is down";
    (void)Touch(310, 210);
    EXPECT_EQ(PixelAt(310, 210), DOWN);
    EXPECT_EQ(Display::Lacks(), "");
    const std::vector<uint32_t> first = PixelsIn(READOUT);
    SendMessage(MSG_DRAG, 330, 230, 1, 1);
    EXPECT_EQ(PixelAt(320, 220), WAY);
    EXPECT_NE(PixelsIn(READOUT), first) << "the place goes along";
    SendMessage(MSG_RELEASE, 330, 230, 0, 0);
    EXPECT_NE(PixelAt(330, 230), WAY) << "a cross of another colour";
    EXPECT_EQ(Display::Lacks(), "");
    SendMessage(MSG_DRAG, 340, 240, 1, 1);
    EXPECT_EQ(PixelAt(335, 235), ground);
    (void)Touch(310, 210);
    EXPECT_NE(PixelsIn(READOUT), first) << "the second touch";
    Press(49); // clear
    EXPECT_EQ(PixelAt(310, 210), ground);
    EXPECT_EQ(Display::Lacks(), "");
}
