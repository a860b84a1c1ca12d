#include "a_kf.h"
#include "bus_probe.h"
#include "info.h"
#include <iterator>

#define OPERATION "Info@Operation Setup Data@"
#define SYSTEM "Info@System Setup Data@"
#define PROGRESS " File Process Progress"
#define KEY_UNIT "Engineering Setup@Panel@Config@Compact Key Module Assign@KY Unit Config@"
#define ME_CONFIG "Engineering Setup@Switcher@Config@M/E Config@"
#define ME_ASSIGN "Engineering Setup@Panel@Config@M/E Assign@"
#define TEN_KEY "Engineering Setup@Panel@Config@10 Key Region Assign@Common@Region@Common@"
#define MAIN_SUB "Engineering Setup@Panel@Config@MP2 Main/Sub Assign@Main/Sub Assign@"

struct Info : BusTest {
    void SetUp() override
    {
        BusTest::SetUp();
        std::fill(std::begin(FileProc_Prog), std::end(FileProc_Prog), 0);
        FileProc_Timeout = 0;
    }
};

TEST_F(Info, AValueLandsInItsPlace)
{
    static const std::tuple<const char*, const char*, const int*, int> cases[] = {
        {"Info@Processor Status@2", "NG->OK", &GL_ProcStatus[2], 1},
        {"Engineering Setup@System@System Config@Setup Target", "1", &SYS_SetupTarget, 1},
        {"Engineering Setup@System@System Config@Setup Target", "x", &SYS_SetupTarget, 1},
        {"Engineering Setup@System@System Config@Setup Target", "0", &SYS_SetupTarget, 0},
        {ME_CONFIG "M/E-5", "DSK", &me_config_type[5], 4},
        {ME_CONFIG "P/P", "Multi Program 2", &multiprogram2_me[0], 1},
        {MAIN_SUB "3rd Row", "Main/Sub", &GL_MainSubAssign[2], 2},
        {MAIN_SUB "3rd Row", "what", &GL_MainSubAssign[2], 2},
        {MAIN_SUB "3rd Row", "Main", &GL_MainSubAssign[2], 0},
        {KEY_UNIT "13", "KT,TR,--,KT,--,--,--,TR", &GL_KeyTransKeyUnitConfig[13], 1 | 8},
        {KEY_UNIT "13", "KT,TR,--,KT,--,--,--,TR", &GL_TransKeyUnitConfig[13], 2 | 128},
        {KEY_UNIT "13", "TR,TR,--", &GL_TransKeyUnitConfig[13], 2 | 128},
        {KEY_UNIT "7", "--,--,--,--,--,--,--,FP", &SYS_PnlMFFP, 1},
        {KEY_UNIT "0", "--,--,--,--,--,--,--,--", &SYS_PnlMFFP, 1}, // row 7 still has it
        {KEY_UNIT "7", "--,--,--,--,--,--,--,--", &SYS_PnlMFFP, 0},
        {OPERATION "Screen Saver", "20000", &GL_ScreenSaverInterval, 18000},
        {ME_CONFIG "M/E-5", "Standard", &me_config_type[5], 1},
        {OPERATION "Screen Saver", "0", &GL_ScreenSaverInterval, 0},
        {MAIN_SUB "1st Row", "Sub", &GL_MainSubAssign[0], 1},
        {MAIN_SUB "15th Row", "Main", &GL_MainSubAssign[0], 1}, // there are 14
        {ME_ASSIGN "1st Row", "M/E-2", &GL_MEAssign[0], 2},
        {ME_ASSIGN "1st Ro", "M/E-3", &GL_MEAssign[0], 2},
        {"16@Info@Xpt Button Count", "33", &GL_MEAssign[0], 2},
        {ME_ASSIGN "14th Row", "2nd AUX", &GL_MEAssign[13], ASSIGN_2ND_AUX},
        {ME_ASSIGN "14th Row", "what", &GL_MEAssign[13], -1},
        {OPERATION "Timeline Display Priority", "true", &GL_TimelineDisplayPriority, 1},
        {OPERATION "Error Status", "true", &GL_ErrorPopup, 1},
        {OPERATION "Touch Buzz", "true", &GL_TouchBuzz, 1},
        {OPERATION "Touch Buzz", "false", &GL_TouchBuzz, 0},
        {OPERATION "SRAM Map KeyCode", "true", &GL_SRAM_12K_Extension, 1},
        {OPERATION "Usb Auto Scan", "true", &GL_USB_AutoScan, 1},
        {OPERATION "Unnecessary Thumbnail", "true", &GL_UnnecessaryThumb, 1},
        {OPERATION "Mouse Wheel Direction", "Scrl Up Clockwise", &GL_MouseWheelDirection, 1},
        {OPERATION "Mouse Slider Control", "Left Button", &GL_MouseSliderControl, 1},
        {OPERATION "Reg Name Display", "true", &GL_RegNameDisplay, 1},
        {"16@Info@Xpt Button Count", "34", &GL_XptButtonCount, 34},
    };
    for (const auto& [path, value, state, expected] : cases) {
        Deliver(path, value);
        EXPECT_EQ(*state, expected) << path << "#" << value;
        if (state == &GL_TouchBuzz) { // what went to the buzzer last
            EXPECT_EQ(FileText("/dev/ttyS2"), expected ? "GO7\r" : "GO6\r");
        }
    }
    for (const char* page : {"12110000", "0"}) // the second is none
        Deliver(OPERATION "Initial Menu Set", page);
    EXPECT_EQ(GL_InitialPage, 0x12110000u);
    Deliver(SYSTEM "NFS Server", "10.0.0.9");
    Deliver(SYSTEM "NFS Mount Point", "/show");
    EXPECT_STREQ(GL_NFS_Server, "10.0.0.9");
    EXPECT_STREQ(GL_NFS_MountPoint, "/show");
    Deliver(SYSTEM "NFS Mount Option", "ro");
    Deliver(OPERATION "Import Path", "/mnt/usb/usb2/");
    EXPECT_STREQ(GL_NFS_MountOption, "ro");
    EXPECT_STREQ(GL_ImportDataPath, "/mnt/usb/usb2/");
    Deliver(OPERATION "Timeline Region Display", "2,1");
    EXPECT_EQ(KF_GetRegionDisplay(1), 1);
    for (const char* place : {"1,3", "2,0"})
        Deliver(OPERATION "Timeline Region Priority", place);
    Deliver(TEN_KEY "1", "1,0,M/E-1,M/E-4");
    KF_InitPriority();
    EXPECT_EQ(KF_GetRegionPriority(0), 3);
    EXPECT_EQ(KF_GetRegionPriority(1), 0);
    Deliver(TEN_KEY "1", "1,0,");
}

TEST_F(Info, ALostServerTakesAllProcessorsWithIt)
{
    for (const char* path : {"Info@Processor Status@7", "Info@Processor Status@-1",
                             "Info@Processor Status@", "Info@Processor Status@x"})
        Deliver(path, "OK");
    EXPECT_THAT(GL_ProcStatus, ElementsAre(0, 0, 0, 0, 0, 0, 0));
    for (int n = 1; n <= 6; n++)
        Deliver("Info@Processor Status@" + std::to_string(n), "OK");
    Deliver("CONNECT@Status", "OK");
    GL_FMThumbnailGetAfter = 1;
    Deliver("Info@Processor Status@2", "NG");
    EXPECT_EQ(GL_FMThumbnailGetAfter, 1);
    Deliver("Info@Processor Status@1", "NG");
    EXPECT_EQ(GL_FMThumbnailGetAfter, 0);
    EXPECT_THAT(GL_ProcStatus, ElementsAre(1, 0, 0, 1, 1, 1, 1));
    GL_FMThumbnailGetAfter = 1;
    Deliver("CONNECT@Status", "NG");
    EXPECT_EQ(GL_FMThumbnailGetAfter, 0);
    EXPECT_THAT(GL_ProcStatus, ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_F(Info, ProgressOnlyGrowsUntilItIsClearedOrAUnitFallsSilent)
{
    for (const auto& [path, value, unit, expected] :
         {std::tuple{"INFORMATION@PNL" PROGRESS, "40,100", 0, 16384},
          {"INFORMATION@PNL" PROGRESS, "20,100", 0, 16384}, // late
          {"INFORMATION@PNL" PROGRESS, "200,100", 0, 65536},
          {"INFORMATION@PNL" PROGRESS, "0,0", 0, 0},
          {"INFORMATION@SWR" PROGRESS, "SWR2,80,100", 2, 32768},
          {"INFORMATION@SWR" PROGRESS, "SWR1,fffffffe,ffffffff", 1, 65535},
          {"INFORMATION@DME" PROGRESS, "DME4,80,100", 6, 32768},
          {"INFORMATION@DME" PROGRESS, "DME4,-1,-1", 6, 0}}) {
        Deliver(path, value);
        EXPECT_EQ(FileProc_Prog[unit], expected) << path << "#" << value;
    }

    GL_FileProcessing = 0;
    FileProc_Prog[1] = 20000;
    FileProc_Timeout = 100;
    SendMessage(MSG_REDRAW, 5000, 0, 0, 0);
    EXPECT_EQ(FileProc_Prog[1], 20000); // no file work
    GL_FileProcessing = 1;
    SendMessage(MSG_REDRAW, 99, 0, 0, 0);
    EXPECT_EQ(FileProc_Prog[1], 20000);
    SendMessage(MSG_REDRAW, 1, 0, 0, 0);
    EXPECT_EQ(FileProc_Prog[1], 20000 - 16384);
    Deliver("INFORMATION@PNL" PROGRESS, "1,2");
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
    EXPECT_EQ(FileProc_Prog[0], 32768); // a report holds the fall off
}

TEST_F(Info, ANewBankSettingReloadsThePageButForFour)
{
    for (const auto& [page, value, request] :
         {std::tuple{0x11110000u, "Multi Program 2", 0x11110000u},
          {0x11110000, "Multi Program 2", 0},
          {0x73310000, "Standard", 0},
          {0x71610000, "Multi Program 2", 0},
          {0x73160010, "Standard", 0},
          {0x55550000, "Multi Program 2", 0},
          {0x11110001, "Standard", 0x11110001},
          // the same pages as before
          {0x11110000, "DSK", 0}}) {
        GL_NowPage = page;
        GL_CreatePage = 0;
        Deliver(ME_CONFIG "M/E-3", value);
        EXPECT_EQ(GL_CreatePage, request) << value;
    }
}

TEST_F(Info, TheFileLockWordIsReadFromItsTopBit)
{
    Deliver(SYSTEM "File Load Lock", "80004001");
    EXPECT_THAT(GL_FileLock, ElementsAre(1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1));
    for (const char* rubbish :
         {"", "ffff", "fffffffff", "fffffffg", " fffffff", "-ffffff", "0x7fffff"})
        Deliver(SYSTEM "File Load Lock", rubbish);
    EXPECT_THAT(GL_FileLock, ElementsAre(1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1));
    Deliver(SYSTEM "File Load Lock", "00000000");
    EXPECT_EQ(GL_FileLock[0], 0);
}

TEST_F(Info, TheOperationLogFollowsThePanelsOptionUnlessTheSetupSaysSo)
{
    static constexpr char log[] = SYSTEM "Panel Operation Log";
    static constexpr char option[] = "Info@Board Config@Board Exist Set@PNL1";
    // Sent: nothing where it is empty.
    static const std::tuple<const char*, const char*, const char*> steps[] = {
        {option, "2", ""}, // nothing has been said of the log
        {log, "1", "#true"},
        {log, "0", "#false"}, // an option is fitted
        {option, "0", "#true"},
        {option, "0,4", ""}, // as before
        {"Info@Board Config@Board Exist Set@PNL2", "4", ""},
        {log, "2", "#false"},
        {option, "0", ""},
    };
    for (const auto& [path, value, sent] : steps) {
        (void)TakeQueuedCommands();
        Deliver(path, value);
        const std::string put = std::string("set Option@LogFile@Panel Operation Log") + sent;
        EXPECT_EQ(TakeQueuedCommands(), *sent ? Strings{put} : Strings{}) << path << value;
    }
}
