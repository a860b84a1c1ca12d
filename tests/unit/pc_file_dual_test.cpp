#include "pane_private.h"
#include "pc_file.h"
#include "pc_file_dual.h"
#include "pc_file_side.h"
#include "register.h"
#include "server_page.h"

constexpr uint32_t SNAPSHOT_PAGE = 0x71310000;
constexpr uint32_t SETUP_PAGE = 0x71120000;

struct FileDualPage : ServerPage {
    Lines opened; // what opening the page of the snapshots sent

    void SetUp() override
    {
        ServerPage::SetUp();
        CopyText(SYS_SHP_MyUserID, "MENU1");
        HubIsThere();
        TellAll(
            "Snapshot@Snapshot@Attribute@",
            {"M/E-1@List#3,OPENING,,,,,", "M/E-1@List#4,CLOSE,L,,,,", "P/P@List#4,CLOSE PP,,,,,"});
        opened = Open(SNAPSHOT_PAGE);
    }
    static std::string Row(int list, int no)
    {
        return std::string(LS_GetData(list, no, COL_NAME)) + "|" + LS_GetData(list, no, COL_TIME);
    }
    static void Select(const std::vector<int>& rows) // at the left
    {
        LS_SetMS(1, 1);
        LS_SetSelected(1, 0, 0, 0);
        for (const int no : rows)
            LS_SetSelected(1, no, 0, 1);
    }
    static void Region(int id) // the only one from now on
    {
        const REGIONBTN& g = RegionBtn[FileKind_Group(file_kinds[FILEPAGE_SNAPSHOT])];
        for (int i = 0; i < g.cells; i++)
            g.btnsel[i].select = g.btnsel[i].id == id ? 2 : 0;
        SendMessage(LMSG_PANEREGION, 0, 0, 0, 0);
    }
    static Lines Rename(const char* name)
    {
        Press(BTN_FILE_RENAME);
        EXPECT_EQ(GetWindow(), WINDOW_KEYBOARD);
        (void)TakeQueuedCommands();
        SendMessage(MSG_KEY, SDLK_END, 0, 0, 0);
        for (int i = 0; *name && i < 32; i++)
            SendMessage(MSG_KEY, SDLK_BACKSPACE, 0, 0, 0);
        for (const char* p = name; *p; p++)
            SendMessage(MSG_KEY, *p, 0, 0, 0);
        SendMessage(MSG_KEY, SDLK_RETURN, 0, 0, 0);
        for (int i = 0; i < 100 && GetWindow(); i++)
            SendMessage(MSG_REDRAW, 50, 0, 0, 0);
        return TakeQueuedCommands();
    }
    static std::string Drive(const char* rest)
    {
        return std::string("MYHOST:/mnt/data/user/root/SYSTEM/") + rest;
    }
    static Strings ErrorsShown()
    {
        Strings texts;
        EXPECT_EQ(CreatePage(0x99000000), 0);
        for (int row = 0; row < LS_GetNData(1); row++)
            texts.push_back(LS_GetData(1, row, 1));
        return texts;
    }
};

TEST_F(FileDualPage, RegistersAtTheLeftTheDriveAtTheRight)
{
    EXPECT_EQ(Row(1, 2), "OPENING|");
    EXPECT_EQ(Row(1, 3), "CLOSE|");
    EXPECT_EQ(Row(1, 0), "|");
    EXPECT_EQ(LS_GetStatus(1, 0, 0), 1);
    (void)Reply(opened, "Access@Find",
                Below(Drive("SNAPSHOT/SWR000D001/"),
                      {"ME1/NEWS.ME1_007.SSS", "ME1/LAST.ME1_099.SSS", "ME1/rubbish.txt",
                       "ME2/OTHER.ME2_008.SSS", "ME1/NEW.ME1_010.SSS",
                       "ME1/OLD.ME1_010.SSS,Tue Feb  3 23:59:00 2026"}));
    EXPECT_EQ(Row(2, 6), "NEWS|Nov.25.2026 10:30");
    EXPECT_EQ(Row(2, 9), "NEW|Nov.25.2026 10:30") << "saved before under another name";
    EXPECT_EQ(Row(2, 7), "|") << "its region is not selected";
    EXPECT_EQ(Row(2, 98), "LAST|Nov.25.2026 10:30");
    EXPECT_STREQ(LS_GetData(2, 98, COL_NO), "99");
    // A register that comes while the page stands, and one that goes.
    Tell("Snapshot@Snapshot@Attribute@M/E-1@List#9,LATE,,,,,");
    Tell("Snapshot@Snapshot@Attribute@M/E-1@List#3,OPENING,E,,,,");
    EXPECT_EQ(Row(1, 8), "LATE|");
    EXPECT_EQ(Row(1, 2), "|");
    EXPECT_EQ(Row(2, 8), "|") << "not onto the drive";
    Region(256); // P/P
    Tell("Snapshot@Snapshot@Attribute@M/E-1@List#20,LATER,,,,,");
    for (const auto& [row, shown] : {std::pair{3, "CLOSE PP|"}, {8, "|"}, {19, "|"}}) {
        EXPECT_EQ(Row(1, row), shown) << row;
        EXPECT_EQ(LS_GetStatus(1, row, 0), row == 3 ? 0 : 1) << row;
    }
    EXPECT_EQ(Row(2, 6), "|");
    Region(258);
    EXPECT_EQ(Row(2, 7), "OTHER|Nov.25.2026 10:30");
    Region(257);
    EXPECT_EQ(Row(1, 19), "LATER|");
    EXPECT_EQ(Row(2, 6), "NEWS|Nov.25.2026 10:30");
}

TEST_F(FileDualPage, AListComesBackAsItWasLeft)
{
    Select({0, 2, 40});
    LS_SetNowLine(1, 2);
    LS_SetTopLine(1, 36);
    SendMessage(LMSG_LISTSEL, 1, 2, 0, 0);
    Open(SNAPSHOT_PAGE);
    EXPECT_EQ(LS_GetMS(1), 1);
    EXPECT_EQ(LS_GetTopLine(1), 36);
    EXPECT_EQ(LS_GetNowLine(1), 2);
    for (const int row : {0, 2, 3, 40})
        EXPECT_EQ(LS_IsSelected(1, row, 0), row != 3) << row;
    LS_SetMS(1, 0);
    LS_SetNowLine(1, 5);
    LS_SetSelected(1, 5, 0, 1);
    SendMessage(LMSG_LISTSEL, 1, 5, 0, 0);
    Open(SNAPSHOT_PAGE);
    EXPECT_EQ(LS_GetMS(1), 0);
    EXPECT_EQ(LS_GetNowLine(1), 5);
    for (const int row : {2, 5, 40})
        EXPECT_EQ(LS_IsSelected(1, row, 0), row == 5) << row;
}

TEST_F(FileDualPage, SaveGoesFromTheFirstSelectedRowOfTheTarget)
{
    Select({2, 3});
    LS_SetNowLine(2, 9);
    (void)TakeQueuedHubLines();
    Press(BTN_FILE_L_TO_R);
    EXPECT_THAT(TakeQueuedHubLines(), ElementsAre("Request#SWR1.File:SNAPSHOT.USER_ID:MENU1"));
    EXPECT_THAT(Items(FILEWORK_RMTACCESS_SCPDIRGETLIST),
                ElementsAre("SWR1 unit:SNAPSHOT/SWR1/OPENING.ME1_003.SSS > "
                            "local:SNAPSHOT/SWR000D001/ME1/OPENING.ME1_010.SSS",
                            "SWR1 unit:SNAPSHOT/SWR1/CLOSE.ME1_004.SSS > "
                            "local:SNAPSHOT/SWR000D001/ME1/CLOSE.ME1_011.SSS"));
    EXPECT_EQ(BkgdFileTransfer_Check(SNAPSHOT_PAGE), 1);
}

TEST_F(FileDualPage, WhatHasNoRowAtTheOtherSideIsSaid)
{
    Select({2, 3, 50}); // 50 is empty
    LS_SetNowLine(2, 98);
    Press(BTN_FILE_L_TO_R);
    Pane_Quit(Pane_GetActiveID()); // the progress of row 3
    EXPECT_THAT(Message(), HasSubstr("target list ends"));
    while (Pane_GetActiveID())
        Pane_Quit(Pane_GetActiveID());
    FileDual_Reset();
    Open(SNAPSHOT_PAGE);
    LS_SetNowLine(1, 2);
    Press(BTN_FILE_L_TO_R);
    Pane_Quit(Pane_GetActiveID());
    EXPECT_EQ(pane_top(), nullptr);
}

// The page is left in the middle and comes back to the pane; at the end all is read anew.
TEST_F(FileDualPage, TransferGoesOnWithoutItsPage)
{
    LS_SetNowLine(1, 2);
    Press(BTN_FILE_L_TO_R);
    ASSERT_NE(Pane_GetActiveID(), 0);
    BkgdFileTransfer_PaneQuit();
    EXPECT_EQ(CreatePage(PAGE_TOP), 0);
    EXPECT_EQ(Pane_GetActiveID(), 0);
    EXPECT_EQ(CreatePage(SNAPSHOT_PAGE), 0);
    Pass(10);
    Tell("TopMenu#"); // no key was pressed
    Pass(10);
    const int pane = Pane_GetActiveID();
    ASSERT_NE(pane, 0);
    (void)TakeQueuedCommands();
    (void)TakeQueuedHubLines();
    SendMessage(LMSG_PANEQUIT, pane, 1, 0, 0); // cancelled while it waits for its turn
    Hub("Notify", "SWR1.File", "SNAPSHOT.USER_ID:MENU1");
    Hub("Notify", "SWR1.File", "SNAPSHOT.STATUS:Standby");
    for (int i = 0; i < 300 && BkgdFileTransfer_Check(SNAPSHOT_PAGE); i++) {
        Pass(10);
        SDL_Delay(10);
    }
    EXPECT_EQ(BkgdFileTransfer_Check(SNAPSHOT_PAGE), 0);
    EXPECT_THAT(TakeQueuedCommands(), Contains(HasSubstr("put File@Access@Find#L")));
}

TEST_F(FileDualPage, WhatFailsWithoutItsPageIsInTheListOfErrors)
{
    LS_SetNowLine(1, 2);
    Press(BTN_FILE_L_TO_R);
    BkgdFileTransfer_PaneQuit();
    EXPECT_EQ(CreatePage(PAGE_TOP), 0);
    Err_Clear();
    Hub("Disconnect", "SWR1.File");
    EXPECT_EQ(BkgdFileTransfer_Check(SNAPSHOT_PAGE), 0);
    EXPECT_EQ(Pane_GetActiveID(), 0) << "over other work nothing opens";
    EXPECT_THAT(ErrorsShown(), ElementsAre(HasSubstr("OPENING.ME1_003.SSS")));
}

TEST_F(FileDualPage, ATransferBarsTheOtherPagesUntilItEnds)
{
    LS_SetNowLine(1, 2);
    Press(BTN_FILE_L_TO_R);
    BkgdFileTransfer_PaneQuit();
    EXPECT_EQ(CreatePage(0x71320000), 0);
    const uint32_t barred = Page->id;
    EXPECT_EQ(Message(), FILE_INHIBITED);
    (void)Answer(0);
    EXPECT_EQ(Message(), "no pane") << "it is said once";
    EXPECT_EQ(GL_CreatePage, 0u);
    Hub("Disconnect", "SWR1.File");
    EXPECT_EQ(std::exchange(GL_CreatePage, 0), 0x71320000u) << "the page that was asked for";
    BkgdFileTransfer_Set(SNAPSHOT_PAGE, 1);
    EXPECT_EQ(CreatePage(barred), 0);
    EXPECT_EQ(GL_CreatePage, 0u);
    BkgdFileTransfer_Set(0, 0);
    (void)Answer(0);
    EXPECT_EQ(GL_CreatePage, 0x71310000u) << "the first of its tab";
}

TEST_F(FileDualPage, ADirectoryIsChosenBehindItsDeviceAndNothingMovesOntoItself)
{
    EXPECT_EQ(BT_GetVisible(BTN_FILE_L_TO_R), BT_ENABLED);
    Press(BTN_FILE_DEVICE_B);
    Answer(FILE_REGISTER + 1);
    EXPECT_THAT(Usable({BTN_FILE_L_TO_R, BTN_FILE_R_TO_L, BTN_FILE_DIR_B}), IsEmpty());
    EXPECT_EQ(Caption(BTN_FILE_DEVICE_B), "Register");
    EXPECT_EQ(Row(2, 2), "OPENING|");
    Press(BTN_FILE_DEVICE_B);
    const Lines asked = Answer(FILE_NETWORK + 1);
    EXPECT_EQ(Caption(BTN_FILE_DEVICE_B), "Register") << "not before the choice is whole";
    (void)Reply(asked, "Access@ListDir",
                Below("MYHOST:/var/nfs/user/root/", {"SHOW", "MORNING", "A NAME OF SIXTEEN"}));
    int count = 0;
    const DIRINFO* const dirs = File_DirList(FILE_NETWORK, &count);
    ASSERT_EQ(count, 3);
    EXPECT_STREQ(dirs[0].name, "SYSTEM");
    EXPECT_STREQ(dirs[1].name, "MORNING");
    EXPECT_THAT(Answer(2), Contains(HasSubstr("MYHOST:/var/nfs/user/root/MORNING/SNAPSHOT/")));
    for (int visit = 0; visit < 2; visit++, Open(SNAPSHOT_PAGE)) { // it is remembered
        EXPECT_EQ(Caption(BTN_FILE_DEVICE_B), "Network");
        EXPECT_EQ(Caption(BTN_FILE_DIR_B), "MORNING");
    }
}

TEST_F(FileDualPage, LockedSetupRegionsAreLeftOutAfterAQuestion)
{
    GL_FileLock[FILELOCK_CATEGORY_SWR_SETUP] = 1;
    (void)Reply(Open(SETUP_PAGE), "Access@Find", {Drive("SETUP/SWR000D001/S.DEV_0000.SST")});
    ASSERT_EQ(Row(2, 0), "S|Nov.25.2026 10:30");
    Press(BTN_FILE_R_TO_L);
    ASSERT_NE(Pane_GetActiveID(), 0);
    Answer(2);
    EXPECT_THAT(TakeQueuedHubLines(), IsEmpty());
    GL_FileLock[FILELOCK_CATEGORY_SWR_SETUP] = 0;
    Press(BTN_FILE_R_TO_L);
    EXPECT_THAT(TakeQueuedHubLines(), ElementsAre("Request#SWR1.File:SETUP.USER_ID:MENU1"));
}

TEST_F(FileDualPage, DetailRenamesAndDeletesRegistersOfTheSelectedRegions)
{
    LS_SetNowLine(1, 3);
    SendMessage(LMSG_LISTSEL, 1, 3, 0, 0);
    Press(BTN_FILE_DETAIL_A);
    EXPECT_EQ(CreatePage(SNAPSHOT_PAGE + 1), 0);
    EXPECT_EQ(Row(1, 3), "CLOSE|");
    EXPECT_STREQ(LS_GetData(1, 3, COL_REGIONS), "O");
    std::string marks;
    for (int region = 0; region < 10; region++)
        marks += Cell(1, 3, COL_REGIONS + region);
    EXPECT_EQ(marks, "O") << "P/P has it, but is not selected";
    EXPECT_THAT(Rename("n"), ElementsAre("put Snapshot@Snapshot@Rename#2,4,n"));
    Press(BTN_FILE_DELETE);
    EXPECT_THAT(Answer(2), IsEmpty());
    Press(BTN_FILE_DELETE);
    EXPECT_THAT(Answer(1), ElementsAre("put Snapshot@Snapshot@Delete#2,4,4"));
    for (const FileKind& kind : file_kinds) {
        (void)Open(kind.id);
        EXPECT_EQ(PageBy(BTN_FILE_DETAIL_A), kind.id + 1);
    }
    (void)Open(SETUP_PAGE + 1);
    EXPECT_THAT(Usable({BTN_FILE_RENAME, BTN_FILE_DELETE}), IsEmpty()) << "it has no registers";
    EXPECT_THAT(Open(file_kinds[FILEPAGE_EFFECT].id), Contains("add File@Src Patch Link"));
    for (const auto& [now, next] : {std::pair{"true", "false"}, {"false", "true"}}) {
        (void)Tell(std::string("File@Src Patch Link#") + now);
        EXPECT_THAT(Puts(BTN_FILE_PATCH_LINK),
                    ElementsAre(std::string("put File@Src Patch Link#") + next));
    }
    const std::string stick = "MYHOST:/mnt/usb/usb1/SYSTEM/USRSETUP/SWR000D001/";
    (void)Reply(Open(0x71750000), "Access@Find", {stick + "NAMES.DEV_0000.SUN"});
    EXPECT_EQ(Row(1, 0), "NAMES|Nov.25.2026 10:30");
}

TEST_F(FileDualPage, EveryFamilyHasItsOwnCommands)
{
    static const struct {
        FILEPAGE page;
        int region;
        const char *rename, *remove;
    } cases[] = {
        {FILEPAGE_EFFECT, 288, "put Effect@Effect@Rename@Rename#0000000000101000,3,N",
         "put Effect@Effect@Delete@Delete#0000000000101000,3,3"},
        {FILEPAGE_EFF200, 292, "put Effect@Effect@Rename@Rename#0000000001010000,203,N",
         "put Effect@Effect@Delete@Delete#0000000001010000,203,203"},
        {FILEPAGE_WIPESS, 260, "put Snapshot@Wipe Snapshot@Rename#800000,3,N",
         "put Snapshot@Wipe Snapshot@Delete#800000,3,3"},
        {FILEPAGE_KEYSS, 559, "put Snapshot@Key Snapshot@Rename#0000800000000000,3,N",
         "put Snapshot@Key Snapshot@Delete#0000800000000000,3,3"},
        {FILEPAGE_SHOTBOX, 0, "put Shotbox@Register@Rename#3,N", "put Shotbox@Register@Delete#3,3"},
        {FILEPAGE_MACRO, 1024, "put Macro@Register@Rename@Rename#0000100000000000,3,N",
         "put Macro@Register@Delete@Delete#0000100000000000,3,3"},
    };
    for (const auto& c : cases) {
        const FileKind& kind = file_kinds[c.page];
        const uint64_t mask = FileKind_Mask(kind, c.region);
        (void)TakeQueuedCommands();
        FileKind_Rename(kind, mask, 2, "N");
        FileKind_Delete(kind, mask, 2);
        EXPECT_THAT(TakeQueuedCommands(), ElementsAre(c.rename, c.remove));
        FileKind_Delete(kind, 0, 2);
        EXPECT_THAT(TakeQueuedCommands(), IsEmpty()) << "nothing selected, nothing deleted";
    }
}

TEST_F(FileDualPage, RenameOfFilesSkipsWhatKeepsItsName)
{
    Press(BTN_FILE_DETAIL_B);
    (void)TakeQueuedCommands();
    EXPECT_EQ(CreatePage(SNAPSHOT_PAGE + 1), 0);
    (void)Reply(TakeQueuedCommands(), "Access@Find",
                Below(Drive("SNAPSHOT/SWR000D001/ME1/"),
                      {"NEWS.ME1_001.SSS", "A_NAME_LONGER_THAN_ITS_ROW.ME1_002.SSS"}));
    LS_SetNowLine(1, 1);
    EXPECT_THAT(Rename(""), IsEmpty()) << "entered as it stood";
    LS_SetNowLine(1, 0);
    Pass(1000);
    const Lines sent = Rename("tom.b");
    EXPECT_THAT(sent,
                ElementsAre(AllOf(HasSubstr("put File@Access@Move#L"),
                                  HasSubstr("NEWS.ME1_001.SSS"), HasSubstr("tom_b.ME1_001.SSS"))));
    EXPECT_THAT(Reply(sent, "Access@Move", {}), Contains(HasSubstr("put File@Access@Find#L")));
}

TEST_F(FileDualPage, TheRegionsFollowTheInstallation)
{
    static const struct {
        int subs, model, dual, second_dme;
        std::array<int, 8> groups;
    } cases[] = {
        {0, 0, 0, -1, {4, 35, 8, 10, 12, 13, 17, 18}},
        {1, 0, 0, 0, {28, 35, 43, 44, 45, 29, 30, 31}},
        {0, 5, 1, 0, {7, 35, 9, 11, 12, 16, 17, 18}},
        {0, 0, 1, -1, {4, 35, 36, 37, 38, 13, 17, 18}},
        {0, 0, 0, 0, {4, 35, 43, 44, 45, 13, 17, 18}},
    };
    DEVICE unit;
    unit.activeline = ACTIVELINE_1080P;
    unit.framerate = 29.97;
    DEV_MySwr[0] = DEV_MyDme[0] = &unit;
    SYS_RefSwrType = DEVTYPE_KTR40X;
    for (const auto& c : cases) {
        std::fill_n(multiprogram2_me, ME_COUNT, 0);
        multiprogram2_me[ME_COUNT - 1] = c.subs;
        GL_DmeModel[0] = c.model;
        SYS_DualProc = c.dual;
        SYS_MyDme2S = c.second_dme;
        for (int kind = 0; kind < int(c.groups.size()); kind++)
            EXPECT_EQ(File_GroupOf(FILEKIND(kind)), c.groups[size_t(kind)]) << kind;
    }
}

TEST_F(FileDualPage, WhatALoadHasChangedIsReadOnceAndFailuresAreCounted)
{
    static const struct {
        const char *dst, *category, *reads; // the line, but for a snapshot's lists
    } cases[] = {
        {"SWR1:/x/SNAPSHOT/SWR1/A.ME1_001.SSS", "", "Snapshot@Snapshot@Register Status#1F803FFF"},
        {"SWR1:/x/A", "WSNAP", "Snapshot@Wipe Snapshot@Register Status#1F80003F"},
        {"SWR1:/x/A", "DSNAP", "Snapshot@DME Snapshot@Register Status#1F80003F"},
        {"SWR1:/x/A", "KSNAP", "Snapshot@Key Snapshot@Register Status#0000FFFFFFFFFFFF"},
        {"PNL1:/x/.GUI_0.PST", "SETUP", "Info@Operation Setup Data@SRAM Map KeyCode#true"},
        {"PNL1:/x/PNL.GUI_0.SST", "SETUP", ""},
        {"PNL1:/x/PNL_0.PST", "SETUP", ""},
        {"SWR1:/x/A", "KEYMEM", ""},
    };
    for (const auto& c : cases)
        for (const int status : {FILESTATUS_OK, FILESTATUS_NG, FILESTATUS_CANCEL}) {
            FILEXFERLIST items[3];
            items[0].next = &items[1];
            items[1].next = &items[2];
            for (FILEXFERLIST& item : items)
                item.status = FILESTATUS_NON;
            for (FILEXFERLIST* item : {&items[1], &items[2]}) {
                CopyText(item->dst, c.dst);
                CopyText(item->category, c.category);
                CopyText(item->mesg, item == &items[1] ? "A: no" : "B: no");
                item->status = status;
            }
            (void)TakeQueuedCommands();
            xferlist_result_display(items);
            const bool reads = *c.reads && status == FILESTATUS_OK;
            const Lines sent = TakeQueuedCommands();
            EXPECT_EQ(Puts(sent), reads ? Lines{"put " + std::string(c.reads)} : Lines{}) << c.dst;
            EXPECT_EQ(std::ranges::count(sent, "read Snapshot@Snapshot@Attribute@M/E-1@List"),
                      reads && &c == cases);
            for (const int good : {2, 1}) { // the last one that failed is alone
                Err_Clear();
                xferlist_errors_add(items);
                const char* const more = good == 2 ? "A: no (and 1 more)" : "A: no";
                EXPECT_EQ(ErrorsShown(), status == FILESTATUS_OK ? Strings{} : Strings{more});
                items[2].status = FILESTATUS_OK;
            }
        }
}
