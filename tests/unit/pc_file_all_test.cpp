#include "drop_folders.h"
#include "lost_server.h"
#include "pc_file.h"
#include "pc_file_all.h"
#include "pc_file_all_frames.h"
#include "register.h"
#include "server_page.h"
#include <map>
#include <unistd.h>

using testing::EndsWith, testing::SizeIs, testing::UnorderedElementsAre;

constexpr uint32_t ALL_PAGE = 0x71110000;
const std::string ROOT = "MYHOST:/mnt/data/user/root/SYSTEM/";
const std::string CLEAR = "Info@Operation Setup Data@Clear Before Load";

struct FileAllPage : ServerPage {
    std::map<std::string, Lines> files;         // of a folder, as the server finds them
    std::map<std::string, std::string> refused; // folders that it cannot search
    Lines sent;                                 // what was no search

    void SetUp() override
    {
        ServerPage::SetUp();
        FMCtrl_InitClipStillList();
        CopyText(SYS_SHP_MyUserID, "MENU1");
        CopyText(GL_ImportDataPath, "/mnt/usb/usb1/");
        HubIsThere();
        (void)Open(ALL_PAGE);
    }
    static void Select(const std::set<std::string>& categories)
    {
        for (int row = 0; row < ALL_ROWS; row++)
            if ((AllTbl[row].onoff != 0) != categories.contains(AllTbl[row].cmd))
                (void)Press(BtnOfAllCategory(row));
    }
    static Lines Selected()
    {
        Lines on;
        for (int row = 0; row < ALL_ROWS; row++)
            if (BT_GetStatus(BtnOfAllCategory(row)) == BT_ON)
                on.push_back(AllTbl[row].cmd);
        return on;
    }
    // The server answers one command when it is a search or works on a folder.
    bool Served(const std::string& line)
    {
        const size_t comma = line.find(',') + 1;
        const std::string folder = line.substr(comma, line.find(',', comma) - comma);
        for (const char* kind : {"Find", "ListDir", "Rmdir", "Mkdir"})
            if (Serve(line, std::string("Access@") + kind,
                      Below(folder.substr(std::min<size_t>(7, folder.size())), files[folder]),
                      refused.contains(folder) ? refused[folder] : "OK"))
                return true;
        return false;
    }
    // Passes until nothing more is asked; the words and paths of all that was.
    Lines Run(Lines lines = {})
    {
        Lines asked;
        for (int quiet = 0; quiet < 20; quiet++) {
            for (const std::string& line : lines) {
                quiet = 0;
                if (Served(line))
                    asked.push_back(line.substr(16, line.find('#') - 16) + " " +
                                    line.substr(line.find(',') + 1));
                else
                    sent.push_back(line);
            }
            Pass(10);
            lines = TakeQueuedCommands();
        }
        return asked;
    }
    // A transfer key, and "Yes".
    Lines Do(int key)
    {
        (void)Press(key);
        return Run(Answer(1));
    }
    Lines Load() { return Run(Press(BTN_ALL_R_TO_L)); }
    void Choose(int button, int drive)
    {
        (void)Press(button);
        (void)Run(Answer(drive + 1));
        if (Pane_GetActiveID())
            (void)Answer(1); // SYSTEM
    }
    static void HubGoes()
    {
        File_SHP_All_Clear();
        Pass(10);
    }
    static void ClosePanes()
    {
        while (Pane_GetActiveID())
            (void)Pane_Quit(Pane_GetActiveID());
    }
    static void Frames(std::initializer_list<std::pair<int, const char*>> registers)
    {
        const std::string memory = "16@Frame Mem@Status@";
        TellAll(memory, {"Max Register#1500", "Folder Name Sense#0,Default.,4,News"});
        (void)Tell("Frame Mem@Status@Extended Capacity#1");
        for (const auto& [number, name] : registers)
            (void)Tell(memory + "File Name Sense#" + std::to_string(number) + ",81," + name);
    }
};

TEST_F(FileAllPage, ASaveClearsTheDirectoryAndTakesEveryRegisterOnce)
{
    Tell("Snapshot@Snapshot@Attribute@M/E-1@List#3,OPENING,,,,,");
    TellAll("Effect@Effect@Attribute@List@", // of two groups of regions
            {"Dev1#7,S,VTR,U,0,0", "Dev1#250,S,CUE,U,0,0", "Dev12#1,S,LAST,U,0,0"});
    Select({"SNAPSHOT", "EFFECT", "MENUMACRO"});
    EXPECT_THAT(Press(BTN_ALL_L_TO_R), IsEmpty());
    EXPECT_THAT(Run(Answer(2)), IsEmpty()) << "not before the operator agrees";
    EXPECT_THAT(Do(BTN_ALL_L_TO_R), ElementsAre("Rmdir MYHOST:/mnt/data/user/root/SYSTEM",
                                                "Mkdir MYHOST:/mnt/data/user/root/SYSTEM"));
    EXPECT_THAT(Items(FILEWORK_RMTACCESS_SCPDIRGETLIST),
                ElementsAre("SWR1 unit:EFFECT/SWR1/VTR.DEV1_007.SKF > "
                            "local:EFFECT/SWR000D001/DEV1/VTR.DEV1_007.SKF",
                            "SWR1 unit:EFFECT/SWR1/LAST.DEV12_001.SKF > "
                            "local:EFFECT/SWR000D001/DEV12/LAST.DEV12_001.SKF",
                            "SWR1 unit:EFFECT/SWR1/CUE.DEV1_250.SKF > "
                            "local:EFFECT/SWR000D001/DEV1/CUE.DEV1_250.SKF",
                            "SWR1 unit:SNAPSHOT/SWR1/OPENING.ME1_003.SSS > "
                            "local:SNAPSHOT/SWR000D001/ME1/OPENING.ME1_003.SSS"));
    // While it runs nothing else begins, for automation neither; the operator may leave and come
    // back.
    EXPECT_EQ(AllSave(), -1);
    const int pane = Pane_GetActiveID();
    Tell("TopMenu#Effect");
    EXPECT_FALSE(Pane_Exist(pane));
    EXPECT_EQ(CreatePage(PAGE_TOP), 0);
    Pass(10);
    EXPECT_EQ(Pane_GetActiveID(), 0);
    (void)Open(ALL_PAGE);
    Paint();
    EXPECT_NE(Pane_GetActiveID(), 0);
    SendMessage(LMSG_PANEQUIT, Pane_GetActiveID(), 1, 0, 0); // cancelled before its turn came
    HubGoes();
    EXPECT_FALSE(BkgdFileTransfer_Check(0));
}

TEST_F(FileAllPage, WhatFailsWhileTheOperatorIsElsewhereIsListed)
{
    Select({"KEYMEM"});
    for (const bool is_away : {false, true}) {
        HubIsThere();
        (void)Do(BTN_ALL_L_TO_R);
        Err_Clear();
        if (is_away) {
            Tell("TopMenu#Effect");
            EXPECT_EQ(CreatePage(PAGE_TOP), 0);
        }
        HubGoes();
        EXPECT_FALSE(BkgdFileTransfer_Check(0));
        EXPECT_EQ(Err_GetMax() > 0, is_away);
        EXPECT_EQ(Pane_GetActiveID() != 0, !is_away) << "a pane tells of them";
        ClosePanes();
        Pass(1000);
    }
}

TEST_F(FileAllPage, TheKeysFollowWhatTheSidesAre)
{
    // The captions, and what can be pressed: the directories, the transfers.
    const auto sides = [] {
        std::string text = Caption(BTN_ALL_DEVICE_A) + " " + Caption(BTN_ALL_DIR_A) + "|" +
                           Caption(BTN_ALL_DEVICE_B) + " " + Caption(BTN_ALL_DIR_B) + ":";
        for (const auto& [key, sign] : {std::pair{BTN_ALL_DIR_A, 'A'},
                                        {BTN_ALL_DIR_B, 'B'},
                                        {BTN_ALL_L_TO_R, '>'},
                                        {BTN_ALL_R_TO_L, '<'}})
            if (BT_GetVisible(key) == BT_ENABLED)
                text += sign;
        return text;
    };
    EXPECT_EQ(sides(), "Register |Local Drive SYSTEM:B><");
    (void)!::system(
        "mkdir -p /mnt/data/user/root/SYSTEM; touch /mnt/data/user/root/SYSTEM/.dirprotect");
    (void)Open(ALL_PAGE);
    EXPECT_EQ(sides(), "Register |Local Drive SYSTEM:B<") << "read only";
    (void)!::system("rm /mnt/data/user/root/SYSTEM/.dirprotect");
    Choose(BTN_ALL_DEVICE_B, FILE_REGISTER);
    EXPECT_EQ(sides(), "Register |Register :");
    Choose(BTN_ALL_DEVICE_A, FILE_REMOVABLE);
    EXPECT_EQ(sides(), "Removable\nDrive SYSTEM|Register :A><");
    (void)Run(Press(BTN_ALL_DIR_A));
    (void)Answer(2); // a directory that has gone meanwhile
    EXPECT_EQ(sides(), "Removable\nDrive SYSTEM|Register :A><");
    // A save goes from right to left as well.
    Select({"KEYMEM"});
    EXPECT_THAT(Do(BTN_ALL_R_TO_L), Contains("Rmdir MYHOST:/mnt/usb/usb1/SYSTEM"));
}

TEST_F(FileAllPage, AnEmptySaveLeavesTheDirectoryAlone)
{
    Select({"MENUMACRO"});
    EXPECT_THAT(Do(BTN_ALL_L_TO_R), IsEmpty());
    EXPECT_EQ(Pane_GetActiveID(), 0);
    Select({});
    EXPECT_EQ(BT_GetVisible(BTN_ALL_L_TO_R), BT_DISABLED);
}

TEST_F(FileAllPage, ALoadSearchesWhatIsSelectedAndLeavesOutWhatIsLocked)
{
    files[ROOT + "SETUP/"] = {"SWR000D001/SETUP.DEV_0000.SST", "CTRLCPU/SETUP.PNL_0000.PST"};
    files[ROOT + "SNAPSHOT/"] = {"SWR000D001/ME1/NEWS.ME1_007.SSS", "SWR000D001/ME1/x.txt",
                                 "SWR000D009/ME1/NEWS.ME1_008.SSS"};
    GL_FileLock[FILELOCK_CATEGORY_SWR_SETUP] = GL_FileLock[FILELOCK_CATEGORY_KEY_MEMORY] = 1;
    Select({"SETUP", "KEYMEM", "SNAPSHOT"});
    (void)Press(BTN_ALL_R_TO_L);
    EXPECT_EQ(GetWindow(), WINDOW_MESSAGE);
    EXPECT_THAT(Selected(), ElementsAre("SETUP", "SNAPSHOT"))
        << "a part of the setup may be loaded";
    (void)CloseWindow();
    EXPECT_THAT(Run(), IsEmpty()) << "the operator confirms again";
    EXPECT_THAT(Load(),
                ElementsAre("Find " + ROOT + "SETUP/,*.*.*", "Find " + ROOT + "SNAPSHOT/,*.*.*"));
    EXPECT_EQ(AllLoadCount, 0);
    EXPECT_THAT(Items(FILEWORK_RMTACCESS_SCPDIRPUTLIST),
                ElementsAre("PNL1 local:SETUP/CTRLCPU/SETUP.PNL_0000.PST > "
                            "PNL001D001:/vorn/tmp/file/SETUP/PNL1/SETUP.PNL_0000.PST",
                            "SWR1 local:SNAPSHOT/SWR000D001/ME1/NEWS.ME1_007.SSS > "
                            "unit:SNAPSHOT/SWR1/NEWS.ME1_007.SSS"));
    // Cancelled, it may have arrived all the same.
    sent.clear();
    const Lines after = Answer(1);
    for (const char* row : {"SETUP", "SNAPSHOT"})
        for (const char* table : {"SWR1.File", "PNL1.File"})
            for (const char* state : {".USER_ID:MENU1", ".STATUS:Standby"})
                Hub("Notify", table, std::string(row) + state);
    (void)Run(after);
    EXPECT_THAT(sent, Contains("put Snapshot@Snapshot@Register Status#1F803FFF"));
}

// The old one must neither go last and win nor make a copy on which nothing tells them apart.
TEST_F(FileAllPage, OfARegisterSavedUnderSeveralNamesTheNewestIsTaken)
{
    const std::string day = ",Wed Nov 25 10:30:00 2026", eve = ",Tue Dec 30 23:59:00 2025",
                      week = ",Wed Nov 18 10:30:00 2026";
    files[ROOT + "SNAPSHOT/"] = {
        "SWR000D001/ME1/OLD.ME1_007.SSS" + eve,  "SWR001D001/ME1/NEW.ME1_007.SSS" + day,
        "SWR000D001/ME1/NEWS.ME1_008.SSS" + day, "SWR000D001/ME1/OLDER.ME1_007.SSS" + week,
        "SWR000D001/ME2/OLD.ME2_007.SSS" + eve,  "SWR000D001/ME1/LAST.ME1_008.SSS" + day};
    Select({"SNAPSHOT"});
    (void)Load();
    const std::string from = "SWR1 local:SNAPSHOT/SWR00", to = " > unit:SNAPSHOT/SWR1/";
    EXPECT_THAT(Items(FILEWORK_RMTACCESS_SCPDIRPUTLIST),
                ElementsAre(from + "1D001/ME1/NEW.ME1_007.SSS" + to + "NEW.ME1_007.SSS",
                            from + "0D001/ME1/LAST.ME1_008.SSS" + to + "LAST.ME1_008.SSS",
                            from + "0D001/ME2/OLD.ME2_007.SSS" + to + "OLD.ME2_007.SSS"));
}

// A category that the directory does not have is empty; one that cannot be read is said.
TEST_F(FileAllPage, ACategoryThatCannotBeReadIsSaid)
{
    (void)!::system("rm -rf /mnt/data/user/root/SYSTEM; mkdir -p /mnt/data/user/root/SYSTEM/WSNAP "
                    "/mnt/data/user/root/SYSTEM/FMEMFOL");
    for (const char* folder : {"WSNAP/", "KSNAP/", "FMEMFOL/", "FMEMFOL/DEFAULT/"})
        refused[ROOT + folder] = "NG(Read Error)";
    Select({"WSNAP", "KSNAP", "SNAPSHOT", "FRAMEMEM"});
    (void)Load();
    EXPECT_EQ(Message(), "Following categories could not be read.\n"
                         "  - Wipe Snapshot\n  - Frame Memory");
    (void)Answer(1);
    (void)!::system("rm -rf /mnt/data/user/root/SYSTEM"); // the stick has been pulled
    Select({"WSNAP", "KSNAP"});
    (void)Load();
    EXPECT_EQ(Message(), "The directory could not be read.");
}

TEST_F(FileAllPage, AllFourRegionsLockTheSetup)
{
    for (const int open : {0, SETUP_REGIONS - 1, SETUP_REGIONS}) { // the last: none is
        std::fill_n(&GL_FileLock[FILELOCK_CATEGORY_SWR_SETUP], SETUP_REGIONS, 1);
        if (open < SETUP_REGIONS)
            GL_FileLock[FILELOCK_CATEGORY_SWR_SETUP + open] = 0;
        GL_FileLock[FILELOCK_CATEGORY_KEY_MEMORY] = 1;
        Select({"SETUP", "MACRO", "KEYMEM"});
        (void)Press(BTN_ALL_R_TO_L);
        EXPECT_EQ(Selected(), open < SETUP_REGIONS ? Lines({"SETUP", "MACRO"}) : Lines({"MACRO"}));
        (void)CloseWindow();
        Pass(1000);
    }
    (void)Press(BTN_ALL_SELECT);
    EXPECT_EQ(Selected().size(), size_t(ALL_ROWS));
}

// The search of a drive that has gone never ends: the operator ends it.
TEST_F(FileAllPage, PreparingCanBeCancelledAndEndsWithThePage)
{
    for (const bool is_left : {false, true}) {
        (void)Press(BTN_ALL_R_TO_L);
        for (int i = 0; i < 40; i++)
            Pass(10);
        EXPECT_EQ(AllLoadCount, ALL_ROWS);
        if (is_left)
            (void)Open(ALL_PAGE);
        else
            (void)Answer(1);
        EXPECT_EQ(AllLoadCount, 0);
        EXPECT_EQ(QueueRoot, nullptr);
        EXPECT_EQ(Pane_GetActiveID(), 0);
        Pass(1000);
    }
}

// What was found until then is not taken for the whole, and the pictures do not follow.
TEST_F(FileAllPage, AFallenLinkEndsIt)
{
    const auto fall = [] {
        LoseServer();
        (void)TakeQueuedCommands();
    };
    Frames({{1, "Mlogo"}});
    Select({"KEYMEM", "FRAMEMEM"});
    for (const int button : {BTN_ALL_R_TO_L, BTN_ALL_L_TO_R}) {
        (void)Press(button);
        if (button == BTN_ALL_L_TO_R)
            (void)Answer(1);
        for (int i = 0; i < 20; i++)
            Pass(10); // searching, or clearing
        EXPECT_NE(QueueRoot, nullptr);
        fall();
        EXPECT_EQ(QueueRoot, nullptr);
        EXPECT_THAT(Run(Answer(0)), IsEmpty()) << "the operator has been told";
    }
    (void)Do(BTN_ALL_L_TO_R);
    EXPECT_THAT(Items(FILEWORK_RMTACCESS_SCPDIRGETLIST), SizeIs(1));
    fall();
    File_SHP_All_Clear();
    (void)Run();
    EXPECT_THAT(Items(FILEWORK_TRANSFERLIST), IsEmpty());
}

TEST_F(FileAllPage, ACopyGoesToAnotherDirectoryOnly)
{
    Choose(BTN_ALL_DEVICE_A, FILE_LOCAL);
    for (const int key : {BTN_ALL_L_TO_R, BTN_ALL_R_TO_L}) {
        EXPECT_THAT(Run(Press(key)), IsEmpty());
        (void)Answer(0);
    }
    Choose(BTN_ALL_DEVICE_B, FILE_REMOVABLE);
    files[ROOT + "MACRO/"] = {"CTRLCPU/A?B.PNL_0012.PMR", "CTRLCPU/A.PNL_0251.PMR"};
    Frames({});
    files[ROOT + "FMEMFOL/"] = {"News", "A NAME TOO LONG", ".."};
    files[ROOT + "FMEMFOL/News/"] = {"SWR000D001/Mlogo.FMEM_012.SFM"};
    GL_FileLock[FILELOCK_CATEGORY_MACRO] = 1; // of no meaning here
    Select({"MACRO", "FRAMEMEM"});
    (void)Run(Press(BTN_ALL_L_TO_R));
    EXPECT_THAT(
        Items(FILEWORK_ACCESS_COPYLIST),
        UnorderedElementsAre(
            " local:MACRO/CTRLCPU/A?B.PNL_0012.PMR > stick:SYSTEM/MACRO/CTRLCPU/A_B.PNL_0012.PMR",
            " local:FMEMFOL/News/SWR000D001/Mlogo.FMEM_012.SFM > "
            "stick:SYSTEM/FMEMFOL/News/SWR000D001/Mlogo.FMEM_012.SFM"));
}

TEST_F(FileAllPage, PicturesAreSavedByFolderAndStore)
{
    Frames({{1, "Mlogo"}, {1000, "Sbug"}, {16384 + 999, "Mext"}});
    SendDummyTally("16@Frame Mem@Status@Folder Status@0#04");
    (void)TakeQueuedCommands();
    Select({"FRAMEMEM"});
    (void)Do(BTN_ALL_L_TO_R);
    EXPECT_THAT( // the job has turned the first names into those of the packed kind
        Items(FILEWORK_TRANSFERLIST),
        ElementsAre(
            " SWR001D001:FMEM_001.SF2 > local:FMEMFOL/News/SWR000D001/Mlogo.FMEM_001.SFM",
            " SWR001D001:FMEM1000.SF2 > local:FMEMFOL/DEFAULT/SWR000D001/Sbug.FMEM_1000.SFM",
            " SWR001D001:FMEX_999.SF2 > local:FMEMFOL/DEFAULT/SWR000D001/Mext.FMEX_999.SFM"));
}

TEST_F(FileAllPage, PicturesAreLoadedIntoTheirFolders)
{
    Frames({{1, "Mold"}, {2, "Mlogo"}, {16384 + 7, "Mball"}});
    Tell("16@Frame Mem@Status@Folder Name Sense#0,Default.,1,a,2,b,3,c,4,News,5,d,6,e,7,f,8,g,9,h,"
         "10,i");
    const std::string folder = ROOT + "FMEMFOL/";
    files[folder] = {"News", "Sport", "Zoo", "a#b", "DEFAULT"};
    files[folder + "DEFAULT/"] = {
        "SWR000D001/Mold.FMEM_1300.SFM",       "SWR000D002/Mx.FMEM_003.SFM",
        "SWR000D001/Mx#1.FMEM_004.SFM",        "SWR000D001/Mx.FMEM_1501.SFM",
        "SWR000D001/Mx.FMEM_000.SFM",          "SWR000D001/Mx.FMEM_005.TIF",
        "SWR000D001/Mnametoolong.FMEM_006.SFM"};
    files[folder + "News/"] = {"SWR000D001/Mlogo.FMEM_002.SFM"};
    files[folder + "Sport/"] = {"SWR000D001/Mball.FMEX_007.SFA"};
    files[folder + "Zoo/"] = {"SWR000D001/Mlast.FMEM_008.SFM"};
    Select({"FRAMEMEM"});
    EXPECT_THAT(Load(),
                ElementsAre("ListDir " + folder, "Find " + folder + "DEFAULT/,*.*.*",
                            "Find " + folder + "News/,*.*.*", "Find " + folder + "Sport/,*.*.*",
                            "Find " + folder + "Zoo/,*.*.*"));
    EXPECT_THAT(Items(FILEWORK_TRANSFERLIST),
                ElementsAre(EndsWith("Mold.FMEM_1300.SFM > SWR001D001:Mold.FMEM1300.SF2"),
                            EndsWith("Mlogo.FMEM_002.SFM > SWR001D001:Mlogo.FMEM_002.SF2"),
                            EndsWith("Mball.FMEX_007.SFA > SWR001D001:Mball.FMEX_007.SF4"),
                            EndsWith("Mlast.FMEM_008.SFM > SWR001D001:Mlast.FMEM_008.SF2")));
    EXPECT_THAT(sent, AllOf(Contains("put Frame Mem@File@Delete Thumbnail@Single#Mold"),
                            Contains("put Frame Mem@Folder@Rename#11,Sport"),
                            Not(Contains(HasSubstr("Single#Mlogo"))), // it is replaced anyway
                            Not(Contains(HasSubstr("Single#Mball"))),
                            Not(Contains(HasSubstr(",Zoo"))))); // no folder is left
    // What has arrived goes into its folder.
    FILEXFERLIST arrived, failed;
    CopyText(arrived.src, (folder + "Sport/SWR000D001/Mball.FMEX_007.SFA").c_str());
    CopyText(failed.src, (folder + "News/SWR000D001/Mlogo.FMEM_002.SFM").c_str());
    arrived.status = FILESTATUS_OK;
    failed.status = FILESTATUS_NG;
    failed.next = &arrived;
    AllFrames_Place(&failed);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("put 16@Frame Mem@Folder@Move Still#0,Mball,11"));
    // What was under way does not stay where it was prepared.
    (void)!::system(
        "mkdir -p /var/tmp/FMXfer /var/tmp/XPORT; touch /var/tmp/FMXfer/left /tmp/other");
    FILEXFERLIST* const item = ListOf(FILEWORK_TRANSFERLIST);
    ASSERT_TRUE(item && item->next);
    CopyText(item->tmp, "MYHOST:/var/tmp/FMXfer/left");
    CopyText(item->next->tmp, "MYHOST:/tmp/other"); // not ours
    QueueRoot->retfunc.list(QueueRoot->label, QueueRoot->tag);
    EXPECT_NE(access("/var/tmp/FMXfer/left", F_OK), 0);
    EXPECT_NE(access("/var/tmp/XPORT", F_OK), 0);
    EXPECT_EQ(unlink("/tmp/other"), 0);
}

TEST_F(FileAllPage, AutomationGetsItsAnswer)
{
    const std::string command = "/tmp/FTPIF/Command/";
    AwaitDropFolders();
    Select({}); // of the page: not of automation
    EXPECT_EQ(AllLoad(), 0);
    EXPECT_EQ(AllLoad(), -1) << "one at a time";
    const Lines asked = Run(Leave()); // a page takes nothing of automation with it
    EXPECT_THAT(asked, AllOf(SizeIs(ALL_CATEGORIES), Each(HasSubstr("MYHOST:/tmp/FTPIF/Import/"))));
    EXPECT_EQ(FileText(command + "allload.res"), "Error\n") << "there is nothing to be loaded";
    // A save clears its own folders and no others; it has no pane on the page that is shown.
    (void)Open(PAGE_TOP);
    EXPECT_EQ(AllSave(), 0);
    EXPECT_THAT(Run(), AllOf(Contains("Rmdir MYHOST:/tmp/FTPIF/Export/KSNAP"),
                             Not(Contains("Rmdir MYHOST:/tmp/FTPIF/Export"))));
    EXPECT_THAT(
        Items(FILEWORK_RMTACCESS_SCPDIRGETLIST),
        Contains(EndsWith("MYHOST:/tmp/FTPIF/Export/KEYMEM/SWR000D001/KEYMEM.DEV_0000.SKM")));
    EXPECT_EQ(Pane_GetActiveID(), 0);
    EXPECT_EQ(BkgdFileTransfer_Check(0), 1);
    File_SHP_All_Clear(); // the hub has gone
    for (int i = 0; i < 300 && FileText(command + "allsave.res").empty(); i++) {
        (void)Run();
        SDL_Delay(10);
    }
    EXPECT_EQ(FileText(command + "allsave.res"), "Error\n");
    EXPECT_EQ(BkgdFileTransfer_Check(0), 0);
    HubIsThere();
    (void)!::system("mkdir -p /tmp/FTPIF/Import/WSNAP");
    files["MYHOST:/tmp/FTPIF/Import/KEYMEM/"] = {"SWR000D001/KEYMEM.DEV_0000.SKM"};
    for (const char* answer : {"OK\n", "Error\n"}) {
        EXPECT_EQ(AllLoad(), 0);
        (void)Run();
        ASSERT_TRUE(QueueRoot);
        (*QueueRoot->xferlist)->status = FILESTATUS_OK;
        QueueRoot->retfunc.list(QueueRoot->label, QueueRoot->tag);
        EXPECT_EQ(FileText(command + "allload.res"), answer);
        refused["MYHOST:/tmp/FTPIF/Import/WSNAP/"] = "NG(Read Error)";
        TearDown();
        SetUp();
    }
    (void)!::system("rm -f /tmp/FTPIF/Command/*"); // the folder is the process' own
}

TEST_F(FileAllPage, ClearBeforeLoadFollowsTheTally)
{
    EXPECT_THAT(Open(ALL_PAGE), Contains("add " + CLEAR));
    EXPECT_THAT(Press(BTN_ALL_CLEAR), ElementsAre("put " + CLEAR + "#2"));
    EXPECT_EQ(BT_GetStatus(BTN_ALL_CLEAR), BT_OFF);
    (void)Tell(CLEAR + "#2");
    EXPECT_EQ(BT_GetStatus(BTN_ALL_CLEAR), BT_ON);
    Pass(1000);
    EXPECT_THAT(Press(BTN_ALL_CLEAR), ElementsAre("put " + CLEAR + "#1"));
    EXPECT_THAT(Leave(), Contains("remove " + CLEAR));
}
