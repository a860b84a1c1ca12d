#include "frame_page.h"

constexpr uint32_t OLD = 0x71510100, NEW = 0x71510200, FOLDERS_PAGE = 0x71520000;
constexpr const char* DRIVE = "MYHOST:/mnt/data/user/root/SYSTEM/";
constexpr const char* DUPLICATE =
    "Some requests are skipped. \nFollowing operation is not permitted.\n"
    "  - Loading that will cause duplicate\n    register name.";

constexpr const char* TAKEN = "This name is already existing.\nPlease enter other name.";
const std::string DEFAULT = DRIVE + std::string("FMEMFOL/DEFAULT/SWR000D001/");

TEST_F(FramePage, ListsWhatTheOpenFolderHolds)
{
    Tell("Frame Mem@Status@Extended Capacity#1");
    Store({"Mlogo", "Slogo", "Mbeach"});
    Store({"Mfar"}, 16384 + 12);
    Folders("0,Default.,3,Sport");
    const Lines opened = Open(NEW);
    EXPECT_THAT(Rows(1), ElementsAre("1 Mlogo", "2 Slogo", "3 Mbeach", "X12 Mfar"));
    EXPECT_STREQ(LS_GetData(1, 1, COL_NAME) + 7, "Sport");
    // The drive: what has no name of the grammar is not there.
    Answer(opened, "Access@ListDir",
           Below(DRIVE, {"FMEMFOL/ARCHIVE", "FMEMFOL/TOO LONG A NAME", "FMEMFOL/Sport",
                         "FMEMFOL/.trash", "FMEMFOL/"}));
    Answer(opened, "Access@Find",
           Below(DEFAULT, {"Mold.FMEM_1234.SFM", "Sanc.FMEX_007.SFA", "Mlow.FMEM_002.SFM",
                           "Mabc.FMEM_002.SFM", "Mbad.FMEM_5663.SFM", "rubbish.txt"}));
    const auto drive = ElementsAre("2 Mabc", "2 Mlow", "1234 Mold", "X7 Sanc");
    EXPECT_THAT(Rows(2), drive);
    EXPECT_EQ(Cell(2, 3, COL_TIME), "Nov.25.2026");
    EXPECT_STREQ(LS_GetData(2, 1, COL_NAME) + 7, "ARCHIVE");
    EXPECT_EQ(LS_GetNData(2), 3 + 4);
    // A folder stands where a register stood, and goes again.
    for (const char* const folder : {"4,News", "4,"}) {
        Folders(folder);
        Pass(200);
        EXPECT_THAT(Rows(1), ElementsAre("1 Mlogo", "2 Slogo", "3 Mbeach", "X12 Mfar")) << folder;
    }
    // What is selected stays so while others before it go and come.
    Select(1, {4});
    Tell("16@Frame Mem@Status@File Name Sense#1,0,");
    Pass(200);
    EXPECT_THAT(Rows(1), ElementsAre("2 Slogo", "3 Mbeach", "X12 Mfar"));
    EXPECT_TRUE(LS_IsSelected(1, 3, 0) == 1 && LS_IsSelected(1, 4, 0) == 0);
    EXPECT_EQ(LS_GetNowLine(1), 3);
    Store({"Mlogo"});
    Pass(200);
    EXPECT_TRUE(LS_IsSelected(1, 4, 0) == 1 && LS_IsSelected(1, 3, 0) == 0);
    Tell("Frame Mem@Folder@Move Still#0,Mlogo,3");
    Pass(200);
    EXPECT_THAT(Rows(1), ElementsAre("2 Slogo", "3 Mbeach", "X12 Mfar"));
    Pass(200);
    EXPECT_THAT(Rows(2), drive);
    (void)Touch(180, 124 + 22 * 2 + 5);
    EXPECT_THAT(Rows(1), ElementsAre("1 Mlogo"));
    EXPECT_EQ(LS_GetNowLine(1), 1) << "the open folder";
    (void)Touch(180, 124 + 22 + 5);
    EXPECT_THAT(Rows(1), ElementsAre("2 Slogo", "3 Mbeach", "X12 Mfar")) << "the default one";
    Select(2, {3});
    const Lines asked = Touch(560, 124 + 22 * 2 + 5);
    EXPECT_THAT(asked, Contains(HasSubstr("SYSTEM/FMEMFOL/ARCHIVE/,*.*.*")));
    EXPECT_THAT(Rows(2), IsEmpty());
    Answer(asked, "Access@Find", Below(DRIVE, {"FMEMFOL/ARCHIVE/SWR000D001/Mx.FMEM_002.SFM"}));
    EXPECT_THAT(Rows(2), ElementsAre("2 Mx"));
    EXPECT_EQ(LS_IsSelected(2, LS_GetNData(2) - 1, 0), 0) << "that was in another folder";
    EXPECT_THAT(Answer(Open(NEW), "Access@ListDir", {}),
                Contains(HasSubstr("SYSTEM/FMEMFOL/DEFAULT/,*.*.*")))
        << "the open folder is no longer there";
    EXPECT_EQ(LS_GetMS(2), 1) << "as it was left";
}

TEST_F(FramePage, SaveNamesTheRegisterItsNumberAndTheFolder)
{
    Store({"Mlogo", "Slogo"});
    Store({"Mxyz0001", "Mxyz0002"}, 20);
    Tell("Frame Mem@Clip@Ancillary Playback Enable#0,Mxyz,1");
    Store({"Mlate"}, 300);
    Folders("0,Default.,3,Sport");
    Answer(Open(NEW), "Access@Find", {});
    (void)Touch(560, 124 + 22 * 2 + 5); // Sport, which the drive does not have yet
    Select(1, {2, 4, 6});
    const Lines sent = Run(Press(BTN_FILE_L_TO_R));
    EXPECT_THAT(sent, Contains(HasSubstr("Get#")).Times(3));
    EXPECT_THAT(sent, Contains(HasSubstr(",SWR001D001:Mlogo.FMEM_001.SF2,")));
    for (const std::string file :
         {"Mlogo.FMEM_001.SFM", "Mxyz0001.FMEM_020.SFA", "Mlate.FMEM_300.SFM"})
        EXPECT_THAT(sent, Contains(HasSubstr(std::string(",") + DRIVE +
                                             "FMEMFOL/Sport/SWR000D001/" + file)));
    EXPECT_THAT(sent, Not(Contains(HasSubstr("Move Still"))));
}

TEST_F(FramePage, LoadTakesEmptyRegistersAndPutsThemIntoTheFolder)
{
    Store({"Mlogo", "Slogo"});
    Folders("0,Default.,3,Sport");
    const Lines opened = Open(NEW);
    Answer(opened, "Access@Find",
           Below(DEFAULT, {"Mlogo.FMEM_009.SFM", "Mnew.FMEM_001.SFM", "Mnew.FMEM_002.SFM"}));
    (void)Touch(180, 124 + 22 * 2 + 5); // Sport
    Select(2, {0, 2, 3, 4});
    const Lines sent = Run(Press(BTN_FILE_R_TO_L));
    EXPECT_EQ(Message(), DUPLICATE); // one name is there, one comes twice
    EXPECT_THAT(sent, Contains(HasSubstr(",SWR001D001:Mnew.FMEM_003.SF2")));
    EXPECT_THAT(sent, Not(Contains(HasSubstr(":Mlogo."))));
    EXPECT_THAT(sent, Contains("put 16@Frame Mem@Folder@Move Still#0,Mnew,3"));
}

// A computer has named these: the file is what was found, the register gets what it can have.
TEST_F(FramePage, PicturesFromElsewhereAreFoundAgain)
{
    Store({"Mold_name"});
    const Lines files = Below(DEFAULT, {"My background.FMEM_7.SFM", "Mold name.FMEM_008.SFM"});
    Lines told = files; // and one that does not lie there
    told.push_back(DEFAULT + "../SWR000D001/My other.FMEM_9.SFM");
    Answer(Open(NEW), "Access@Find", told);
    EXPECT_THAT(Rows(2), ElementsAre("7 My background", "8 Mold name"));
    Select(2, {1, 2});
    const Lines sent = Run(Press(BTN_FILE_R_TO_L));
    EXPECT_THAT(sent, Contains(HasSubstr("Compress#")).Times(1));
    EXPECT_THAT(sent, Contains(HasSubstr("," + files[0] + ",")));
    EXPECT_THAT(sent, Contains(HasSubstr(",SWR001D001:My_backgr.FMEM_002.SF2")));
    EXPECT_EQ(Message(), DUPLICATE);
    Quit(1);
    Press(BTN_FILE_DETAIL_B);
    EXPECT_EQ(CreatePage(NEW + 1), 0);
    Answer(TakeQueuedCommands(), "Access@Find", files);
    Select(1, {1});
    Pass(1000);
    Press(BTN_FILE_DELETE);
    EXPECT_THAT(Quit(1), Contains(testing::EndsWith("," + files[0])));
}

TEST_F(FramePage, AFolderMayHoldMoreThanThePanelWouldNameOtherwise)
{
    for (const auto& [name, count] :
         {std::pair{"Mnew", 250}, {"My background", 150}, {"Mine too long", 150}}) {
        Lines files;
        for (int i = 0; i < count; i++)
            files.push_back(DEFAULT + name + ".FMEM_" + std::to_string(100 + i) + ".SFM");
        Answer(Open(NEW), "Access@Find", files);
        EXPECT_EQ(Rows(2).size(), size_t(count)) << name;
    }
}

TEST_F(FramePage, FullStoreSaysSo)
{
    for (int i = 0; i < 300; i++)
        Store({"Mr" + std::to_string(i) + "x"}, i + 1);
    Answer(Open(NEW), "Access@Find", {DEFAULT + "Mnew.FMEM_001.SFM"});
    (void)LS_SetTopLine(1, 100);
    Store({"Mother"});
    Pass(200);
    EXPECT_EQ(LS_GetTopLine(1), 100) << "whatever has changed";
    Select(2, {1});
    EXPECT_THAT(Press(BTN_FILE_R_TO_L), IsEmpty());
    EXPECT_THAT(Message(), HasSubstr("no empty register"));
}

TEST_F(FramePage, StillsMoveBetweenFoldersOfTheStore)
{
    Store({"Mlogo", "Slogo"});
    Folders("0,Default.,3,Sport");
    Open(NEW);
    Press(BTN_FILE_DEVICE_B);
    Quit(FILE_REGISTER + 1);
    EXPECT_EQ(BT_GetVisible(BTN_FILE_L_TO_R), BT_DISABLED); // the same folder
    (void)Touch(560, 124 + 22 * 2 + 5);
    Select(1, {2, 3});
    Pass(1000);
    EXPECT_THAT(Press(BTN_FILE_L_TO_R),
                ElementsAre("put 16@Frame Mem@Folder@Move Still#0,Mlogo,3",
                            "put 16@Frame Mem@Folder@Move Still#0,Slogo,3"));
}

// The older one: a row a register, and the row is where it goes.
TEST_F(FramePage, OlderMemoryLoadsByRow)
{
    SYS_FmemV6 = 0;
    Store({"Mlogo", "Slogo", "Mbeach"});
    const Lines opened = Open(OLD);
    EXPECT_EQ(LS_GetNData(1), 224);
    EXPECT_STREQ(LS_GetData(1, 2, COL_NAME), "Mbeach");
    Answer(opened, "Access@Find",
           Below(DRIVE, {"FRAMEMEM/SWR000D001/Mbeach.FMEM_001.SFM",
                         "FRAMEMEM/SWR000D001/Slogo.FMEM_002.SFM"}));
    Select(2, {0, 1});
    LS_SetNowLine(1, 2); // the first onto the register of its name, the second's name is taken
    const Lines sent = Run(Press(BTN_FILE_R_TO_L));
    EXPECT_THAT(sent, Contains(HasSubstr("PutV3#")).Times(1));
    EXPECT_THAT(sent, Contains(HasSubstr(",SWR001D001:Mbeach.FMEM_003.SFM")));
    EXPECT_THAT(sent, Not(Contains(HasSubstr("Move Still"))));
    EXPECT_EQ(Message(), DUPLICATE);
}

TEST_F(FramePage, OlderMemoryHasNoTabOfFolders)
{
    for (const int is_newer : {0, 1})
        for (const uint32_t page : {is_newer ? NEW : OLD, 0x71530000u, 0x71540000u}) {
            SYS_FmemV6 = is_newer;
            Open(page);
            (void)Touch(97 + 86 + 40, 560);
            EXPECT_EQ(GL_CreatePage, is_newer ? FOLDERS_PAGE : 0) << std::hex << page;
        }
}

TEST_F(FramePage, RenameKeepsTheSideAndGivesNoNameTwice)
{
    Store({"Mlogo", "Slogo", "Mbeach"});
    // The rows, the name, the renames.
    static const std::tuple<std::vector<int>, std::string, Lines> cases[] = {
        {{1, 2}, "Mclock", {"Mlogo,Mclock", "Slogo,Sclock"}},
        {{2}, "clock", {"Slogo,Sclock"}},
        {{1}, "Mtoolonganame", {"Mlogo,Mtoolonga"}},
        {{1}, "Mbeach", {}}, // taken
        {{1}, "Mlogo", {}},  // as it is
        {{1}, "Mimage001", {}},
        {{1}, "image123", {}},
        {{1, 3}, "Mtwice", {"Mlogo,Mtwice"}},
    };
    for (const auto& [rows, entered, sent] : cases) {
        Open(NEW + 1);
        Select(1, rows);
        LS_SetNowLine(1, rows[0]);
        Select(1, rows);
        Press(BTN_FILE_RENAME);
        EXPECT_EQ(Enter(entered), Below("put Frame Mem@File@Rename#", sent)) << entered;
        const bool says = entered == "Mbeach" || entered == "Mtwice";
        EXPECT_EQ(Message() == TAKEN, says) << entered;
        if (says)
            Quit(0);
    }
    Press(BTN_FILE_DELETE);
    EXPECT_THAT(Quit(1), ElementsAre("put Frame Mem@File@Delete Thumbnail@Single#Mlogo",
                                     "put Frame Mem@File@Delete Thumbnail@Single#Mbeach"));
}

TEST_F(FramePage, FoldersAreMadeNamedAndDeleted)
{
    Folders("0,Default.,1,Sport,2,");
    Open(FOLDERS_PAGE);
    Store({"Mlogo", "Mpic", "Mnews0001", "Mnews0002"});
    Pass(10);
    EXPECT_EQ(LS_GetNData(1), 2);
    EXPECT_EQ(Cells(1, 0, 1, 2), "2|1") << "stills and a clip";
    EXPECT_EQ(Usable({49, 50, 51}), std::vector{49}); // the switcher's own folder stays
    static const struct {
        const char *entered, *sent, *says;
    } cases[] = {
        {"News", "put Frame Mem@Folder@Rename#2,News", ""},
        {"Too long a name", "put Frame Mem@Folder@Rename#2,Too_long", ""},
        {"Sport", "", TAKEN},
        {"default", "", TAKEN},
        {"", "", "Empty..."},
    };
    for (const auto& c : cases) {
        Press(49);
        EXPECT_EQ(Enter(c.entered), *c.sent ? Lines{c.sent} : Lines{}) << c.entered;
        EXPECT_EQ(*c.says ? Message() : "", c.says);
        if (*c.says)
            Quit(0);
        Pass(1000);
    }
    (void)Touch(180, 78 + 22 * 2 + 5);
    Press(50);
    EXPECT_THAT(Enter("Arts"), ElementsAre("put Frame Mem@Folder@Rename#1,Arts"));
    Folders("0,Default.,1,Arts,2,News"); // it stays on the folder, wherever it stands
    Folders("0,Default.,1,Z,2,News");
    EXPECT_EQ(LS_GetNowLine(1), 2);
    Press(51);
    EXPECT_THAT(Quit(2), IsEmpty());
    Press(51);
    EXPECT_THAT(Quit(1), ElementsAre("put Frame Mem@Folder@Delete#1"));
    Folders("0,Default.,1,Arts,2,News,3,A,4,B,5,C,6,D,7,E,8,F,9,G,10,H,11,I");
    Pass(10);
    EXPECT_EQ(LS_GetNData(1), 12);
    EXPECT_THAT(Usable({49}), IsEmpty()) << "none is left";
}
