#include "a_fl.h"
#include "file_scp.h"
#include "file_xport.h"
#include "fmctrl3.h"
#include "frame_page.h"
#include "pc_file_xport.h"

using testing::EndsWith;

constexpr uint32_t NEW = 0x71610000, OLD = 0x71610100, CLIPS = 0x71620000;
constexpr const char* STICK = "MYHOST:/mnt/usb/usb1/SYSTEM/";
const std::string NOT_PERMITTED =
    "Following operation is not permitted.\n  - Loading to WORK AREA.\n"
    "  - Loading that will cause duplicate\n    register name.";
const std::string SOME_NOT_PERMITTED = "Some requests are skipped. \n" + NOT_PERMITTED;

struct XportPage : FramePage {
    void SetUp() override
    {
        FramePage::SetUp();
        FileXport_Reset();
        CopyText(GL_ImportDataPath, "");
        CopyText(DEV_Swr[0].id, "SWR001D001");
        (void)!::system("rm -rf /var/tmp/XPORT/SWR001D001; mkdir -p /var/tmp/XPORT/SWR001D001");
    }
    void TearDown() override
    {
        FileXport_Reset();
        FramePage::TearDown();
        (void)!::system("rm -rf /var/tmp/XPORT");
    }
    // The page with these files on the stick, found by the searches of their kinds.
    static void OpenWith(uint32_t page, const Lines& files, XPORTTYPE type = XPORT_TIF)
    {
        Lines sent = Open(page);
        if (type != XPORT_TIF) {
            Press(BTN_XPORT_TYPE);
            sent = Quit(type + 1);
        }
        Found(sent, files);
        Pass(1000);
    }
    static void Found(const Lines& sent, const Lines& files)
    {
        for (const std::string& line : With("put File@Access@Find#", sent)) {
            const std::string ext = line.substr(line.rfind('*') + 1);
            Lines rows;
            for (const std::string& file : files)
                if (file.ends_with(ext))
                    rows.push_back(STICK + file);
            Answer({line}, "Access@Find", rows);
        }
    }
    static Lines Files()
    {
        Lines rows;
        for (int no = 0; no < LS_GetNData(2); no++)
            rows.push_back(LS_GetData(2, no, GL_NowPage == CLIPS));
        return rows;
    }
    // A row of the hub's, of a clip or a folder.
    static void Hub(const char* verb, const std::string& path, const std::string& values = "")
    {
        const bool is_clip = path.ends_with(".SFH");
        ServerPage::Hub(verb, is_clip ? "CS1.ClipStoreFile" : "CS1.ClipStoreFolder",
                        "root/" + path + (values.empty() ? "" : ":" + values));
    }
    static void Clip(const std::string& path, int frames)
    {
        Hub("Insert", path + ".SFH", std::to_string(frames) + ",0,0,3,2026-01-31 23:59:00,1,0");
    }
    // The list of clips, a line a row; what is selected has a mark.
    static Lines ShownClips()
    {
        Pass(10);
        Lines rows;
        for (int row = 0; row < LS_GetNData(1); row++)
            rows.push_back((LS_IsSelected(1, row, 1) == 1 ? "*" : "") + Cell(1, row, 0) +
                           Cell(1, row, 1) + " " + Cell(1, row, 2));
        return rows;
    }
    static void TouchClip(int row) { (void)Touch(170, 124 + 22 * (row + 1) + 10); }
    static void StoreIsThere()
    {
        Filescp_trnasferlist_init("CS1");
        ServerPage::Hub("Ready", "CS1.File");
    }
    static Lines With(const char* part, Lines lines)
    {
        std::erase_if(lines, [&](const std::string& s) { return s.find(part) == s.npos; });
        return lines;
    }
    // The converter has left these sides of a picture.
    static void Converted(const Lines& files)
    {
        for (const std::string& file : files)
            (void)!::system(("touch /var/tmp/XPORT/SWR001D001/" + file).c_str());
    }
};

TEST_F(XportPage, SearchesTheChosenKindInEverySpelling)
{
    const Lines files = {"b.TIF", "a.tif",     "c.Tif",     "b.TIF.SUB",
                         "x.BMP", "x.BMP.SUB", "news/d.TIF"};
    (void)Open(0x71510200);
    Press(BTN_FILE_DEVICE_B);
    (void)Quit(FILE_REGISTER + 1); // the stills are at both sides there
    const Lines opened = Open(NEW);
    Found(opened, files);
    Store({"Mlate"});
    Pass(200); // a side a pass
    Pass(200);
    EXPECT_THAT(Files(), ElementsAre("a.tif", "b.TIF", "b.TIF.SUB", "c.Tif", "d.TIF"));
    Press(BTN_XPORT_TYPE);
    const Lines sent = Quit(XPORT_BMP + 1);
    EXPECT_EQ(Caption(BTN_XPORT_TYPE), "FrameMem\n(.BMP)");
    EXPECT_THAT(Files(), IsEmpty());
    Found(opened, files); // of the search before
    EXPECT_THAT(Files(), IsEmpty());
    Found(sent, files);
    EXPECT_THAT(Files(), ElementsAre("x.BMP", "x.BMP.SUB"));
    Pass(1000);
    Press(BTN_XPORT_DEVICE_B);
    Answer(Quit(FILE_LOCAL + 1), "Access@ListDir", {});
    Found(Quit(1), {});
    EXPECT_EQ(Caption(BTN_XPORT_DEVICE_B), "Local Drive");
    EXPECT_EQ(BT_GetVisible(BTN_XPORT_IMPORT), BT_DISABLED);
    EXPECT_EQ(BT_GetVisible(BTN_XPORT_EXPORT), BT_ENABLED);
}

TEST_F(XportPage, ImportTakesEmptyRegistersAndMovesThemIntoTheFolder)
{
    Store({"Mone"});
    Store({"Mthree"}, 3);
    Folders("0,Default.,2,Sport");
    OpenWith(NEW, {"beach.TIF", "with a long name.TIF"});
    for (const auto& [row, folder] : {std::pair{2, "Sport"}, {1, "Default."}, {2, "Sport"}}) {
        Pass(1000);
        Press(BTN_XPORT_FOLDER_A);
        Quit(row);
        EXPECT_EQ(Caption(BTN_XPORT_FOLDER_A), folder);
    }
    for (const auto& [name, shown] : {std::pair{"Gone", "Default."}, {"Sport", "Sport"}}) {
        Folders(std::string("0,Default.,2,") + name);
        EXPECT_EQ(Caption(BTN_XPORT_FOLDER_A), shown);
    }
    Select(2, {0, 1});
    Converted({"Mbeach.FMEM_001.SF2", "Sbeach.FMEM_002.SF2", "Mwith_a_l.FMEM_001.SF2"});
    Pass(1000);
    const Lines sent = Run(Press(BTN_XPORT_IMPORT));
    EXPECT_THAT(sent, Contains(HasSubstr("TIF2SFM with Compress#")).Times(2));
    EXPECT_THAT(sent, Contains(HasSubstr("Mbeach.FMEM_001.SF2,SWR001D001:FMEM_002.SF2")));
    EXPECT_THAT(sent, Contains(HasSubstr("Sbeach.FMEM_002.SF2,SWR001D001:FMEM_004.SF2")));
    EXPECT_THAT(sent, Contains(HasSubstr("Mwith_a_l.FMEM_001.SF2,SWR001D001:FMEM_005.SF2")));
    const std::string move = "put 16@Frame Mem@Folder@Move Still#0,";
    EXPECT_THAT(With("Move Still", sent),
                ElementsAre(move + "Mbeach,2", move + "Sbeach,2", move + "Mwith_a_l,2"));
    EXPECT_EQ(Pane_GetActiveID(), 0);
}

// The key that a picture has in itself is the other side of its name: one that is there stays, and
// one that comes from a file of its own goes before.
TEST_F(XportPage, AKeyDoesNotBecomeASecondRegisterOfItsName)
{
    Store({"Slogo"});
    OpenWith(NEW, {"beach.TIF", "beach.TIF.SUB", "logo.TIF", "sea.TIF"});
    Select(2, {0, 1, 2, 3});
    Converted({"Mbeach.FMEM_001.SF2", "Sbeach.FMEM_001.SF2", "Sbeach.FMEM_002.SF2",
               "Mlogo.FMEM_001.SF2", "Slogo.FMEM_002.SF2", "Msea.FMEM_001.SF2",
               "Ssea.FMEM_002.SF2"});
    Pass(1000);
    EXPECT_THAT(With("PutV3", Run(Press(BTN_XPORT_IMPORT))),
                UnorderedElementsAre(HasSubstr("/Mbeach.FMEM_001.SF2,SWR001D001:FMEM_002"),
                                     HasSubstr("/Sbeach.FMEM_001.SF2,SWR001D001:FMEM_003"),
                                     HasSubstr("/Mlogo.FMEM_001.SF2,SWR001D001:FMEM_004"),
                                     HasSubstr("/Msea.FMEM_001.SF2,SWR001D001:FMEM_005"),
                                     HasSubstr("/Ssea.FMEM_002.SF2,SWR001D001:FMEM_006")));
    EXPECT_EQ(Message(), SOME_NOT_PERMITTED);
}

TEST_F(XportPage, ExtendedStoreTakesWhatTheMainOneCannot)
{
    Tell("16@Frame Mem@Status@Max Register#3");
    Tell("Frame Mem@Status@Extended Capacity#1");
    Store({"Ma", "Mb"});
    Store({"Mc"}, 16384 + 1);
    OpenWith(NEW, {"beach.TIF"});
    Select(2, {0});
    Converted({"Mbeach.FMEM_001.SF2", "Sbeach.FMEM_002.SF2"});
    const Lines sent = Run(Press(BTN_XPORT_IMPORT));
    EXPECT_THAT(sent, Contains(HasSubstr("Mbeach.FMEM_001.SF2,SWR001D001:FMEX_002.SF2")));
    EXPECT_THAT(sent, Contains(HasSubstr("Sbeach.FMEM_002.SF2,SWR001D001:FMEX_003.SF2")));
    Store({"Md"}, 3);
    Store({"Me", "Mf"}, 16384 + 2);
    OpenWith(NEW, {"sea.TIF"});
    Select(2, {0});
    Press(BTN_XPORT_IMPORT);
    EXPECT_THAT(Message(), HasSubstr("There is no empty register left."));
}

TEST_F(XportPage, WhatIsNotPermittedIsSkippedAndSaid)
{
    static const struct {
        uint32_t page;
        int row; // selected at the left
        Lines files;
        int items;
        std::string says;
    } cases[] = {
        {NEW, 0, {"logo.TIF"}, 0, NOT_PERMITTED},
        {NEW, 0, {"logo.TIF.SUB"}, 1, "no pane"}, // the side that is missing
        {NEW, 0, {"logo.TIF", "beach.TIF"}, 1, SOME_NOT_PERMITTED},
        {NEW, 0, {"longname1.TIF", "longname2.TIF"}, 1, SOME_NOT_PERMITTED},
        {OLD, 219, {"a.TIF", "b.TIF", "c.TIF"}, 3, "no pane"}, // 220 to 224: the last has no key
        {OLD, 219, {"a.TIF", "b.TIF", "c.TIF", "d.TIF"}, 3, SOME_NOT_PERMITTED},
        {OLD, 223, {"a.TIF"}, 1, "no pane"},
    };
    for (const auto& c : cases) {
        SetUp();
        SYS_FmemV6 = c.page == NEW;
        Store({"Mlogo"});
        OpenWith(c.page, c.files);
        LS_SetNowLine(1, c.row);
        std::vector<int> all_rows;
        for (int i = 0; i < int(c.files.size()); i++)
            all_rows.push_back(i);
        Select(2, all_rows);
        EXPECT_EQ(int(With("2SFM", Press(BTN_XPORT_IMPORT)).size()), c.items) << c.files[0];
        if (c.items > 0)
            Pane_Quit(Pane_GetActiveID()); // its progress lies above
        EXPECT_EQ(Message(), c.says) << c.files[0];
        while (Pane_GetActiveID())
            Pane_Quit(Pane_GetActiveID());
        TearDown();
    }
}

TEST_F(XportPage, ExportNamesFilesBySides)
{
    Store({"Mlogo", "Slogo", "Mabc0012"});
    OpenWith(NEW, {}, XPORT_PNG);
    Select(1, {0, 1, 2});
    const Lines sent = Run(Press(BTN_XPORT_EXPORT));
    EXPECT_THAT(sent,
                Contains(HasSubstr("SWR001D001:FMEM_002.SF2,MYHOST:/var/tmp/Slogo.FMEM_000.SF2")));
    EXPECT_THAT(
        With("SFM2PNG#", sent),
        UnorderedElementsAre(
            HasSubstr("/var/tmp/Mlogo.FMEM_000.SFM,MYHOST:/mnt/usb/usb1/SYSTEM/logo.PNG"),
            EndsWith("/var/tmp/Slogo.FMEM_000.SFM,MYHOST:/mnt/usb/usb1/SYSTEM/logo.PNG.SUB"),
            EndsWith("SYSTEM/abc0012.PNG")));
}

// Of the clip store: frames in their order under a folder of their clip, stills by their names.
TEST_F(XportPage, ClipStoreTakesClipsFrameByFrame)
{
    OpenWith(CLIPS,
             {"intro#000009.TIF", "intro#000010.TIF", "intro#000009.TIF.SUB", "still.TIF",
              "still.TIF.SUB", "one#000004.TIF", "old/intro#000003.TIF", "intro#000010.TIF"});
    EXPECT_THAT(Files(), ElementsAre("intro", "intro", "one", "still.TIF", "still.TIF.SUB"));
    StoreIsThere();
    Select(2, {0, 2, 3, 4});
    Press(BTN_XPORT_IMPORT);
    EXPECT_THAT(
        Items(FILEWORK_RMTACCESS_SCPIMPORTLIST),
        ElementsAre("CS1 stick:SYSTEM/intro#000009.TIF > store:intro.SFH/intro#000000.SFH 0/2 sub",
                    "CS1 stick:SYSTEM/intro#000010.TIF > store:intro.SFH/intro#000001.SFH 1/2",
                    "CS1 stick:SYSTEM/one#000004.TIF > store:one.SFH/one.SFH 0/1",
                    "CS1 stick:SYSTEM/still.TIF > store:still.SFH 0/1 sub"));
}

struct ClipXportPage : XportPage {
    void SetUp() override
    {
        XportPage::SetUp();
        CopyText(DEV_Swr[0].id, "SWR000D001");
        StoreIsThere();
        OpenWith(CLIPS, {"still.TIF", "intro#000000.TIF", "intro#000001.TIF"});
        for (const char* folder : {"NEWS", "NEWS/A", "SPORT"})
            Hub("Insert", folder, "1");
        Clip("goal", 25);
        Clip("NEWS/still", 1);
        Clip("NEWS/A/deep", 2);
    }
};

TEST_F(ClipXportPage, TheStoreSideFollowsTheCatalogue)
{
    EXPECT_THAT(ShownClips(), ElementsAre("_FolderNEWS ", "_FolderSPORT ", "goal 25"));
    Select(1, {2});
    // What is selected stays so, wherever it then stands.
    Clip("a", 1);
    Hub("Insert", "EARLY", "1");
    Hub("Notify", "goal.SFH", "pairfile:1");
    EXPECT_THAT(ShownClips(),
                ElementsAre("_FolderEARLY ", "_FolderNEWS ", "_FolderSPORT ", "a 1", "*goal 25"));
    EXPECT_STREQ(LS_GetData(1, 4, 3), "P");
    LS_SetMS(1, 0);
    TouchClip(1);
    EXPECT_THAT(ShownClips(), ElementsAre("_FolderA ", "still 1"));
    EXPECT_EQ(LS_GetNowLine(1), 0) << "another folder's list begins at the top";
    TouchClip(0);
    EXPECT_THAT(ShownClips(), ElementsAre("deep 2"));
    EXPECT_EQ(Caption(BTN_XPORT_FOLDER_A), "A");
    Clip("NEWS/A/B/other", 1); // of a folder that has not been told
    Clip("NEWS/A/more", 3);
    EXPECT_THAT(ShownClips(), ElementsAre("deep 2", "more 3"));
    Press(BTN_XPORT_FOLDER_A);
    Quit(2);
    EXPECT_THAT(ShownClips(), ElementsAre("_FolderA ", "still 1"));
    EXPECT_EQ(FL_ChangeDirectory(FL_L_LIST, "no such"), -1);
    EXPECT_EQ(FL_ChangeDirectory(FL_L_LIST, "/NEWS/A"), 0);
    // The folder goes: what is left above it is shown. The hub goes: nothing is.
    for (const char* path : {"NEWS/A/deep.SFH", "NEWS/A/more.SFH", "NEWS/A"})
        Hub("Delete", path);
    EXPECT_STREQ(FL_GetCurrentPath(FL_L_LIST), "/NEWS");
    EXPECT_THAT(ShownClips(), ElementsAre("still 1"));
    FMCtrl3_Clear(ELEMENT_TYPE_ALL);
    EXPECT_THAT(ShownClips(), ElementsAre("No clips "));
    EXPECT_EQ(Caption(BTN_XPORT_FOLDER_A), "Root");
    Hub("Insert", "NEWS", "1");
    EXPECT_THAT(ShownClips(), ElementsAre("_FolderNEWS "));
}

TEST_F(ClipXportPage, FindSelectsAClipOfTheShownFolderAndGoesRound)
{
    Clip("goal 2", 1);
    Clip("own goal", 1);
    Pass(10);
    Press(BTN_XPORT_FIND);
    ASSERT_TRUE(Pane_Exist(GL_FM_Find_PaneID));
    SendMessage(LMSG_PANEBTNSEL, PANEFIND_TEXT, 0, 0, 0);
    for (const char c : {'g', 'o', 'a', 'l'})
        SendMessage(MSG_KEY, c, 0, 0, 0);
    SendMessage(MSG_KEY, SDLK_RETURN, 0, 0, 0);
    Pass(1000);
    static const std::pair<int, const char*> steps[] = {{0, "*goal 25"},
                                                        {PANEFIND_NEXT, "*goal 2 1"},
                                                        {PANEFIND_NEXT, "*own goal 1"},
                                                        {PANEFIND_NEXT, "*goal 25"},
                                                        {PANEFIND_PREV, "*own goal 1"}};
    for (const auto& [button, selected] : steps) {
        if (button)
            SendMessage(LMSG_PANEBTNSEL, button, 0, 0, 0);
        EXPECT_THAT(ShownClips(), Contains(selected));
    }
    SendMessage(LMSG_PANEBTNSEL, PANEFIND_CLOSE, 0, 0, 0);
    Paint();
    EXPECT_FALSE(Pane_Exist(GL_FM_Find_PaneID));
    Press(BTN_XPORT_FIND);
    const int pane = GL_FM_Find_PaneID;
    EXPECT_TRUE(Pane_Exist(pane));
    CreatePage(PAGE_TOP);
    EXPECT_FALSE(Pane_Exist(pane)) << "it goes with its page";
}

TEST_F(ClipXportPage, ExportTakesEachFrameOfTheSelectedClips)
{
    Hub("Insert", "NEWS/A/B", "1");
    Clip("NEWS/A/one", 0);
    (void)FL_ChangeDirectory(FL_L_LIST, "/NEWS/A");
    (void)ShownClips();
    Select(1, {0, 1, 2});
    Press(BTN_XPORT_TYPE);
    Quit(XPORT_PNG + 1);
    Pass(1000);
    Press(BTN_XPORT_EXPORT);
    EXPECT_THAT(
        Items(FILEWORK_RMTACCESS_SCPEXPORTLIST),
        ElementsAre("CS1 store:NEWS/A/deep.SFH/deep#000000.SFH > stick:SYSTEM/deep#000000.PNG 0/2",
                    "CS1 store:NEWS/A/deep.SFH/deep#000001.SFH > stick:SYSTEM/deep#000001.PNG 1/2",
                    "CS1 store:NEWS/A/one.SFH > stick:SYSTEM/one.PNG 0/1"));
}

TEST_F(ClipXportPage, AJobTakes12000FramesAndSaysThatThereAreMore)
{
    Clip("NEWS/A/long", 11998); // behind the two of "deep"
    Clip("NEWS/A/one", 1);
    (void)FL_ChangeDirectory(FL_L_LIST, "/NEWS/A");
    (void)ShownClips();
    Select(1, {0, 1, 2});
    Press(BTN_XPORT_EXPORT);
    EXPECT_EQ(Items(FILEWORK_RMTACCESS_SCPEXPORTLIST).size(), 12000u);
    Pane_Quit(Pane_GetActiveID());
    EXPECT_THAT(Message(), HasSubstr("too many frames"));
}

TEST_F(ClipXportPage, AnImportGoesIntoTheShownFolderAndReplacesNothing)
{
    TouchClip(0); // the notice of an empty list
    (void)ShownClips();
    TouchClip(0);
    Select(2, {0, 1});
    Pass(1000);
    Press(BTN_XPORT_IMPORT);
    EXPECT_THAT( // still is there already
        Items(FILEWORK_RMTACCESS_SCPIMPORTLIST),
        ElementsAre(
            "CS1 stick:SYSTEM/intro#000000.TIF > store:NEWS/intro.SFH/intro#000000.SFH 0/2",
            "CS1 stick:SYSTEM/intro#000001.TIF > store:NEWS/intro.SFH/intro#000001.SFH 1/2"));
    Pane_Quit(Pane_GetActiveID());
    EXPECT_EQ(Message(), SOME_NOT_PERMITTED);
}

// In its own form a clip is a folder of frames on the drive, a still one file.
TEST_F(ClipXportPage, ClipsAreSavedAndLoadedAsTheyAre)
{
    (void)ShownClips();
    (void)FL_ChangeDirectory(FL_L_LIST, "/NEWS");
    Clip("NEWS/intro", 2);
    Clip("NEWS/old", 2);
    (void)ShownClips();
    Press(BTN_XPORT_TYPE);
    const Lines sent = Quit(XPORT_TYPES + 1);
    EXPECT_EQ(Caption(BTN_XPORT_TYPE), "FrameMem\n(.SFH)");
    const auto list_drive = [](const Lines& asked) {
        Answer(asked, "Access@ListDir", {});
        Answer(asked, "Access@Find2",
               {"/mnt/usb/usb1/old.SFH/old#000000.SFH", "/mnt/usb/usb1/new.SFH/new#000000.SFH",
                "/mnt/usb/usb1/new.SFH/new#000001.SFH", "/mnt/usb/usb1/one.SFH"});
        (void)ShownClips();
    };
    list_drive(sent);
    EXPECT_THAT(Files(), ElementsAre("new", "old", "one"));
    Select(1, {1, 2, 3}); // intro, old, still
    Pass(1000);
    EXPECT_THAT(With("Access@Mkdir#", Press(BTN_XPORT_EXPORT)),
                ElementsAre(EndsWith(",MYHOST:/mnt/usb/usb1/intro.SFH")));
    EXPECT_THAT(
        Items(FILEWORK_RMTACCESS_SCPDIRGETLIST),
        ElementsAre(
            "CS1 store:NEWS/intro.SFH/intro#000000.SFH > stick:intro.SFH/intro#000000.SFH 0/2",
            "CS1 store:NEWS/intro.SFH/intro#000001.SFH > stick:intro.SFH/intro#000001.SFH 1/2",
            "CS1 store:NEWS/still.SFH > stick:still.SFH 0/1"));
    // The hub goes half way: what looks like a clip does, too.
    (void)TakeQueuedCommands();
    ServerPage::Hub("Disconnect", "CS1.File");
    const Lines after = TakeQueuedCommands();
    EXPECT_THAT(With("Access@Rmdir#", after),
                ElementsAre(EndsWith(",MYHOST:/mnt/usb/usb1/intro.SFH")));
    while (Message().find("duplicate") == std::string::npos) { // old: frames of both would be one
        ASSERT_NE(Pane_GetActiveID(), 0);
        Pane_Quit(Pane_GetActiveID());
    }
    while (Pane_GetActiveID())
        Pane_Quit(Pane_GetActiveID());
    list_drive(after);
    StoreIsThere();
    Select(2, {0, 1, 2});
    Pass(1000);
    Press(BTN_XPORT_IMPORT);
    EXPECT_THAT(
        Items(FILEWORK_RMTACCESS_SCPDIRPUTLIST),
        ElementsAre("CS1 stick:new.SFH/new#000000.SFH > store:NEWS/new.SFH/new#000000.SFH 0/2",
                    "CS1 stick:new.SFH/new#000001.SFH > store:NEWS/new.SFH/new#000001.SFH 1/2",
                    "CS1 stick:one.SFH > store:NEWS/one.SFH 0/1"));
    FileXport_Reset();
}

TEST(XportNames, RowsOfASearch)
{
    static const struct {
        std::string path;
        bool is_taken;
        const char *name, *clip;
        int frame;
        const char* register_name;
    } cases[] = {
        {"/mnt/usb/usb1/a/logo.TIF", true, "logo.TIF", "", -1, "Mlogo"},
        {"MYHOST:/mnt/usb/usb1/a/logo.v2.TIF.SUB", true, "logo.v2.TIF.SUB", "", -1, "Slogo"},
        {"/mnt/usb/usb1/intro#000012.TIF", true, "intro#000012.TIF", "intro", 12, "Mintro_00"},
        {"/mnt/usb/usb1/intro#00012.TIF", true, "intro#00012.TIF", "", -1, "Mintro_00"},
        {"/mnt/usb/usb1/#000012.TIF", true, "#000012.TIF", "", -1, "M_000012"},
        {"/mnt/usb/usb1/.TIF", true, ".TIF", "", -1, ""},
        {"/mnt/usb/../etc/logo.TIF", false, "", "", -1, nullptr},
        {"/mnt/usb/usb1/a,b.TIF", false, "", "", -1, nullptr},
        {"logo.TIF", false, "", "", -1, nullptr},
        {"/mnt/usb/usb1/", false, "", "", -1, nullptr},
        {"/mnt/" + std::string(130, 'x') + ".TIF", false, "", "", -1, nullptr},
        {"/mnt/" + std::string(250, 'x') + "/a.TIF", false, "", "", -1, nullptr},
    };
    for (const auto& c : cases) {
        XPORTFILE file;
        EXPECT_EQ(Xport_Read(&file, c.path.c_str(), ""), c.is_taken) << c.path;
        if (!c.is_taken)
            continue;
        char name[FMEM_NAME_SIZE];
        Xport_RegisterName(name, file.path);
        EXPECT_STREQ(file.name, c.name);
        EXPECT_STREQ(file.clip, c.clip) << c.path;
        EXPECT_EQ(Xport_Frame(file.name), c.frame) << c.path;
        EXPECT_STREQ(name, c.register_name) << c.path;
    }
    char buffer[64];
    EXPECT_TRUE(Xport_DrivePath(buffer, sizeof buffer, "MYHOST:/x/", "abc", XPORT_TGA, 7, true));
    EXPECT_STREQ(buffer, "MYHOST:/x/abc#000007.TGA.SUB");
    EXPECT_FALSE(Xport_DrivePath(buffer, 20, "MYHOST:/x/", "abcdef", XPORT_TGA, -1, true));
    EXPECT_TRUE(Xport_ClipPath(buffer, sizeof buffer, 2, "/news/abc", "abc", 12));
    EXPECT_STREQ(buffer, "SWR000D002:/news/abc.SFH/abc#000012.SFH");
}
