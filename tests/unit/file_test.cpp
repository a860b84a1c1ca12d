#include "access.h"
#include "file_page.h"
#include "file_private.h"
#include "pane_private.h"
#include "process.h"
#include <csignal>
#include <sys/wait.h>

constexpr char ROW_DATE[] = "Wed Nov 25 09:20:08 2026";

static int syncs;

// Takes the place of the library's in the whole test program: no test waits for the host's drives.
extern "C" void sync() noexcept
{
    syncs++;
}

using FileJobs = FileTest;

TEST_F(FileJobs, ASingleJobLivesFromItsCommandToItsReply)
{
    const int label = File_ExecCopy("MYHOST:/a", "MYHOST:/b", Text, 7);
    EXPECT_EQ(label, 1);
    EXPECT_EQ(SentOne(), "Access@Copy#L1,MYHOST:/a,MYHOST:/b");
    EXPECT_EQ(FileCounter, 1);
    Ack(1, 50);
    EXPECT_THAT(told, IsEmpty());
    Status(50, "NG(full)");
    EXPECT_THAT(told, ElementsAre("1 7 NG(full)"));
    ASSERT_EQ(probe::Count(LMSG_FILESTATUS), 1);
    EXPECT_EQ(QueueRoot, nullptr);
    EXPECT_EQ(FileCounter, 0);
    Status(50, "OK");
    EXPECT_EQ(told.size(), 1u) << "the second reply found a job";
}

TEST_F(FileJobs, EveryEntrySaysItsCommand)
{
    const char* a = "MYHOST:/a";
    const char* b = "SWR000D001:b";
    File_ExecTransfer(a, b, Text, 0);
    File_ExecFmPut(a, b, Text, 0);
    File_ExecFind(a, "*.*", Found, 0);
    File_ExecFind2(a, 3, "*.*", Found, 0);
    File_ExecMkdir(a, Text, 0);
    File_ExecCopydir(a, b, Text, 0);
    File_ExecRemove(a, Text, 0);
    File_ExecUSBReload(Text, 0);
    File_StatusFMDataPort("SWR1");
    File_ExecSCPGet(b, a, "SETUP", Text, 0);
    File_ExecSCPdirGet(b, a, nullptr, Text, 0);
    File_ExecSCPdirPut(a, b, "MACRO", Text, 0);
    File_ThumbnailGet("x.SFT", "y.SFT", Text, 0);
    EXPECT_THAT(Sent(),
                ElementsAre("put File@Transfer@Transfer#L1,MYHOST:/a,SWR000D001:b",
                            "put File@Frame Memory@PutV3#L2,MYHOST:/a,SWR000D001:b",
                            "put File@Access@Find#L3,MYHOST:/a,*.*",
                            "put File@Access@Find2#L4,MYHOST:/a,3,*.*",
                            "put File@Access@Mkdir#L5,MYHOST:/a",
                            "put File@Access@Copydir#L6,MYHOST:/a,SWR000D001:b",
                            "put File@Access@Remove#L7,MYHOST:/a",
                            "put File@Access@USB Storage Reload#L8,",
                            "put File@Status@FM Data Port Status@SWR1#L9",
                            "put File@Remote Access@SCP Get#L10,SWR000D001:b,MYHOST:/a,SETUP",
                            "put File@Remote Access@SCP Dir Get#L11,SWR000D001:b,MYHOST:/a,",
                            "put File@Remote Access@SCP Dir Put#L12,MYHOST:/a,SWR000D001:b,MACRO",
                            "put File@Remote Access@SCP Dir Get#L13,SWR000D001:/vorn/FM/1/x.SFT,"
                            "MYHOST:/mnt/sys/FM/1/y.SFT,"));
}

TEST_F(FileJobs, ACommandThatDoesNotFitIsNotSentCut)
{
    const std::string path = "MYHOST:/" + std::string(700, 'x');
    EXPECT_EQ(File_ExecRemove((path + path).c_str(), Text, 0), -1);
    EXPECT_EQ(File_ExecMove(path.c_str(), path.c_str(), Text, 0), -1);
    EXPECT_EQ(File_ExecCopy(nullptr, "b", Text, 0), -1);
    EXPECT_THAT(Sent(), IsEmpty());
    EXPECT_EQ(QueueRoot, nullptr);
    File_ExecRemove("MYHOST:/a\nput File@Access@Rmdir#L1,MYHOST:/", Text, 0);
    EXPECT_THAT(SentOne(), HasSubstr("MYHOST:/a_put"));
}

TEST_F(FileJobs, ASearchPassesItsRowsOnAndThenEnds)
{
    File_ExecFind("MYHOST:/d", "*", Found, 3);
    Ack(1, 9);
    Status(9, std::string("/d/a.SSS,") + ROW_DATE);
    Status(9, std::string("/d/a,b.SSS,") + ROW_DATE); // could not be said back to the server
    Status(9, "/d/b.SSS,yesterday");
    EXPECT_THAT(told, ElementsAre("/d/a.SSS|/d/a.SSS|Nov.25.2026 09:20", "/d/b.SSS|/d/b.SSS|"));
    EXPECT_EQ(probe::Count(LMSG_FILESTATUS), 2);
    EXPECT_EQ(probe::Count(LMSG_FINDSTATUS), 0);
    Status(9, "NG(no such, directory)");
    EXPECT_EQ(told.back(), "failed");
    EXPECT_EQ(probe::Count(LMSG_FINDSTATUS), 1);
    EXPECT_EQ(QueueRoot, nullptr);
}

TEST_F(FileJobs, RowsOfSixAndSevenFieldsKeepTheirJob)
{
    File_ExecUSBReload(Text, 0);
    File_ExecFindSFM("MYHOST:/d", "*", Text, 0);
    Ack(1, 11);
    Ack(2, 12);
    Status(11, "a,b,c,d,e,f");
    Status(12, "a,b,c,d,e,f,g");
    Status(11, "OK");
    Status(12, "OK");
    EXPECT_THAT(told, ElementsAre("1 0 a,b,c,d,e,f", "2 0 a,b,c,d,e,f,g", "1 0 OK", "2 0 (null)"));
    EXPECT_EQ(QueueRoot, nullptr);
}

TEST_F(FileJobs, AFallenLinkEndsAllThatTheServerHas)
{
    FILEXFERLIST* list = nullptr;
    File_ExecRmdir("MYHOST:/a", Text, 1);
    File_ExecFind("MYHOST:/d", "*", Found, 2);
    File_ExecFindSFM("MYHOST:/d", "*", Text, 3);
    File_XferList_Add(&list, "MYHOST:/a", "MYHOST:/b");
    File_XferList_Add(&list, "MYHOST:/c", "MYHOST:/d");
    File_ExecCopyList(
        &list,
        [](uint32_t, int) {
            const FILEXFERLIST* item = *QueueRoot->xferlist;
            told.push_back(std::to_string(item->status) + std::to_string(item->next->status) + " " +
                           item->next->mesg);
            File_ExecListDir("MYHOST:/d", Found, 0); // waits for the link
        },
        4);
    const int pane = QueueRoot->next->next->next->paneid;
    Ack(4, 70);
    Status(70, "OK");
    File_LinkLost();
    EXPECT_THAT(told, ElementsAre("1 1 NG([ERROR] Server Not Ready.)", "failed", "3 3 (null)",
                                  "128129 c: NG([ERROR] Server Not Ready.)"));
    EXPECT_EQ(list, nullptr);
    EXPECT_FALSE(Pane_Exist(pane));
    EXPECT_NE(Pane_GetActiveID(), 0) << "the operator is told";
    ASSERT_NE(QueueRoot, nullptr);
    EXPECT_EQ(QueueRoot->worktype, FILEWORK_ACCESS_LISTDIR);
    EXPECT_EQ(QueueRoot->next, nullptr);
    Pane_Quit(Pane_GetActiveID());
    File_LinkLost();
    EXPECT_EQ(Pane_GetActiveID(), 0) << "nobody waited";
}

TEST_F(FileJobs, LinesThatAreNoneChangeNothing)
{
    File_ExecCopy("a", "b", Text, 0);
    for (const char* ack :
         {"", "L", "L1", "L1,", "L1,0", "L0,5", "L4294967295,5", "L4294967296,5", "L4294967297,5",
          "L99999999999999999999,5", "Lx,5", "1,5", "L-1,5", "L1 ,5"})
        Deliver("File@Access@Copy", ack);
    ASSERT_TRUE(QueueRoot);
    EXPECT_EQ(QueueRoot->ack, 0u);
    Ack(1, 4294967295u);
    for (const char* status :
         {"", ",", "0,OK", "5,OK", "4294967296,OK", "-5,OK", "x,OK", "4294967295"})
        Deliver("File@Access@Copy@Status", status);
    Deliver("File@Other@Copy@Status", "4294967295,OK");
    EXPECT_THAT(told, IsEmpty());
    for (int commas = 1; commas <= 200; commas++)
        Deliver("File@Access@Find@Status", "77" + std::string(size_t(commas), ','));
    Status(4294967295u, "OK");
    EXPECT_EQ(told.size(), 1u);
}

TEST_F(FileJobs, ACancelledTransferWaitsForItsReplyAForgottenReloadDoesNot)
{
    File_ExecTransfer("a", "b", Text, 0);
    (void)Sent();
    EXPECT_EQ(File_CancelTransfer(1), 0);
    EXPECT_THAT(Sent(), IsEmpty()) << "there was no work number yet";
    Ack(1, 3);
    File_CancelTransfer(1);
    EXPECT_EQ(SentOne(), "Transfer@Cancel#Lx,3");
    EXPECT_TRUE(QueueRoot);
    EXPECT_EQ(File_ExecUSBReload_cancel(1), 0);
    EXPECT_EQ(QueueRoot, nullptr);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(File_CancelTransfer(1), -1);
}

// --- Lists ---

struct FileLists : FileListTest {
    void Fill(int n)
    {
        for (int i = 0; i < n; i++)
            File_XferList_Add(&list, ("MYHOST:/s/f" + std::to_string(i)).c_str(),
                              ("MYHOST:/d/f" + std::to_string(i)).c_str());
    }
};

TEST_F(FileLists, ItemsKeepTheirOrderAndLeaveByTheirTexts)
{
    FILEXFERLIST* other = nullptr;
    Fill(3);
    EXPECT_EQ(File_XferList_SCPAdd(&list, "s", "d", "SETUP", "SWR1"), 0);
    EXPECT_EQ(File_XferList_Add(&other, "x", "y"), 0);
    EXPECT_EQ(File_XferList_Add(nullptr, "x", "y"), -1);
    for (const auto& [dst, target, result] :
         {std::tuple{"MYHOST:/d/f2", "SWR2", -1}, {"MYHOST:/d/f1", "SWR1", 0}}) {
        EXPECT_EQ(File_XferList_Remove(&list, "MYHOST:/s/f1", dst), result);
        EXPECT_EQ(File_XferList_SCPRemove(&list, "s", "d", "SETUP", target), result);
    }
    EXPECT_EQ(File_XferList_Add(&list, "gone", "g"), 0);
    EXPECT_EQ(File_XferList_Remove(&list, "gone", "g"), 0);
    EXPECT_EQ(File_XferList_Add(&list, "near the end", "n"), 0);
    EXPECT_EQ(File_XferList_Move(&list, list, &other), 0);
    EXPECT_EQ(File_XferList_Add(&list, "last", "l"), 0);
    const std::string path(300, 'p');
    File_XferList_Add(&other, path.c_str(), path.c_str());
    std::string sources;
    for (const FILEXFERLIST* items : {list, other})
        for (const FILEXFERLIST* i = items; i; i = i->next)
            sources += std::string(i->src) + ";";
    EXPECT_EQ(sources,
              "MYHOST:/s/f2;near the end;last;x;MYHOST:/s/f0;" + path.substr(0, 256) + ";");
    File_XferList_RemoveAll(&other);
    EXPECT_EQ(other, nullptr);
}

TEST_F(FileLists, AnEmptyListIsNoJobAndASecondCallIsNoSecondOne)
{
    EXPECT_EQ(File_ExecCopyList(&list, List, 0), -1);
    EXPECT_EQ(File_ExecTransferList(nullptr, List, 0), -1);
    EXPECT_EQ(Pane_GetActiveID(), 0);
    Fill(2);
    const int label = File_ExecRemoveList(&list, List, 5);
    EXPECT_EQ(label, 3) << "items are numbered first";
    EXPECT_THAT(Sent(), ElementsAre("put File@Access@Remove#L1,MYHOST:/s/f0",
                                    "put File@Access@Remove#L2,MYHOST:/s/f1"));
    Fill(1);
    EXPECT_EQ(File_ExecRemoveList(&list, List, 5), label);
    EXPECT_EQ(SentOne(), "Access@Remove#L4,MYHOST:/s/f0");
    EXPECT_EQ(FileCounter, 1);
    FILEXFERLIST* other = nullptr;
    EXPECT_EQ(File_XferList_Move(&list, list, &other), -1) << "it is under way";
    Answer(2, "OK"); // and leaves the list
    EXPECT_EQ(File_XferList_Remove(&list, "MYHOST:/s/f1", "MYHOST:/d/f1"), 0);
    Fill(1);
    EXPECT_EQ(File_ExecRemoveList(&list, List, 5), label);
    for (const uint32_t item : {1u, 4u, 5u}) {
        EXPECT_THAT(told, IsEmpty());
        Answer(item, "OK");
    }
    EXPECT_EQ(told.size(), 1u) << "each counts once";
}

TEST_F(FileLists, EveryListSaysItsCommandUnderItsTitle)
{
    static const struct {
        int (*entry)(FILEXFERLIST** list, FILE_LIST_FUNC retfunc, int tag);
        const char* command;
        const char* title; // "" without a pane
        bool has_lamp = false;
        bool is_of_one_path = false;
    } cases[] = {
        {File_ExecListDirList, "Access@ListDir", "Scanning Directory", false, true},
        {File_ExecTransferList, "Transfer@Transfer", "Transfer", true},
        {File_ExecTransferList_BG, "Transfer@Transfer", ""},
        {File_ExecFmGetList, "Frame Memory@Get", "Transfer", true},
        {File_ExecFmGetList_BG, "Frame Memory@Get", ""},
        {File_ExecFmPutList, "Frame Memory@PutV3", "Transfer", true},
        {File_ExecFmMkThumbList_BG, "Frame Memory@Make Thumbnail", ""},
        {File_ExecFmSFM2TIFList, "Frame Memory@SFM2TIF", "Export"},
        {File_ExecFmTIF2SFMList, "Frame Memory@TIF2SFM", "Import"},
        {File_ExecFmSFM2BMPList, "Frame Memory@SFM2BMP", "Export"},
        {File_ExecFmBMP2SFMList, "Frame Memory@BMP2SFM", "Import"},
        {File_ExecFmSFM2TGAList, "Frame Memory@SFM2TGA", "Export"},
        {File_ExecFmTGA2SFMList, "Frame Memory@TGA2SFM", "Import"},
        {File_ExecFieldInvert, "Frame Memory@FieldInvert", "Field Invert", false, true},
        {File_ExecCopyList, "Access@Copy", "Copy"},
        {File_ExecMoveList, "Access@Move", "Rename"},
        {File_ExecRemoveList, "Access@Remove", "Delete", false, true},
        {File_ExecCopydirList, "Access@Copydir", "Copy"},
        {File_ExecMakeVector, "Access@MakeVector", "Make Vector File"},
    };
    for (const auto& c : cases) {
        Fill(1);
        EXPECT_GT(c.entry(&list, List, 0), 0);
        const std::string label = std::to_string(list->label);
        EXPECT_THAT(Sent(), Contains("put File@" + std::string(c.command) + "#L" + label +
                                     ",MYHOST:/s/f0" + (c.is_of_one_path ? "" : ",MYHOST:/d/f0")));
        const PANE* const pane = pane_find(QueueRoot->paneid);
        EXPECT_STREQ(pane ? pane->caption : "", c.title) << c.command;
        EXPECT_EQ(pane ? pane->each.progress.lamp : ROUTE_LAMP_NONE,
                  c.has_lamp ? ROUTE_LAMP_CONTROL : ROUTE_LAMP_NONE)
            << c.command;
        ended.clear();
        Answer(list->label, "NG(no)");
        EXPECT_EQ(ended, c.entry == File_ExecListDirList ? "" : "129 f0: NG(no);") << c.command;
        ASSERT_EQ(list, nullptr);
    }
}

TEST_F(FileLists, RepliesInAnyOrderEndTheJobOnce)
{
    Fill(3);
    File_ExecCopyList(&list, List, 5);
    const int pane = QueueRoot->paneid;
    EXPECT_TRUE(Pane_Exist(pane));
    for (uint32_t l = 1; l <= 3; l++)
        Ack(l, l);
    Status(3, "OK");
    Status(1, "NG(no)");
    Status(1, "OK"); // too late
    EXPECT_EQ(At(0)->status, FILESTATUS_NG);
    EXPECT_STREQ(At(0)->mesg, "f0: NG(no)");
    EXPECT_EQ(At(1)->status, FILESTATUS_EXEC);
    EXPECT_THAT(told, IsEmpty());
    Status(2, "Canceled");
    EXPECT_THAT(told, ElementsAre("4 5"));
    EXPECT_EQ(list, nullptr);
    EXPECT_FALSE(Pane_Exist(pane));
    EXPECT_EQ(probe::Count(LMSG_FILESTATUS), 1);
}

TEST_F(FileLists, ANoThatMayPassIsTriedThreeTimesMore)
{
    Fill(1);
    File_ExecMoveList(&list, List, 0);
    const std::string command = SentOne();
    for (uint32_t i = 0; i < 3; i++) {
        Ack(1, 50 + i);
        Status(50 + i, "NG(busy.)");
        EXPECT_EQ(SentOne(), command) << i;
        Status(50 + i, "OK"); // of what is over
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(list->status, FILESTATUS_REQ);
    }
    Answer(1, "NG(busy.)");
    EXPECT_THAT(Sent(), IsEmpty());
    EXPECT_EQ(told.size(), 1u);
}

TEST_F(FileLists, TheLineCutsTheReplyNotTheName)
{
    const std::string name(100, 'n');
    File_XferList_Add(&list, ("MYHOST:/s/" + name).c_str(), "d");
    File_XferList_Add(&list, "d:/x", "d");
    File_ExecMoveList(&list, List, 0);
    Answer(1, "NG(" + std::string(200, 't') + ")");
    EXPECT_EQ(std::string(list->mesg), name + ": NG(" + std::string(17, 't'));
}

TEST_F(FileLists, AScanTellsItsRowsAndEndsWithoutACallback)
{
    File_XferList_Add(&list, "MYHOST:/s/", "");
    File_ExecListDirList(&list, List, 0);
    EXPECT_EQ(SentOne(), "Access@ListDir#L1,MYHOST:/s/");
    Ack(1, 8);
    probe::seen.clear();
    std::string row;
    probe::answer = [&row](const probe::Seen& s) {
        if (s.msg == LMSG_FILESTATUS)
            row = std::string(::Text(s.cx)) + "|" + ::Text(s.dx);
        return 0;
    };
    Status(8, std::string("News,") + ROW_DATE); // begins as a failure does
    EXPECT_EQ(row, "News|Nov.25.2026 09:20");
    EXPECT_EQ(list->status, FILESTATUS_REQ);
    Status(8, "OK");
    EXPECT_EQ(list, nullptr);
    EXPECT_EQ(Pane_GetActiveID(), 0);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(FileLists, CancelStopsWhatRunsAndEndsAtOnce)
{
    Fill(3);
    File_ExecCopyList(&list, List, 0);
    (void)Sent();
    Ack(1, 21);
    Ack(2, 22);
    Status(21, "OK");
    SendMessage(LMSG_PANEQUIT, 12345, 1, 0, 0);
    EXPECT_THAT(told, IsEmpty());
    Cancel();
    EXPECT_EQ(SentOne(), "Access@Cancel#Lx,22");
    EXPECT_EQ(ended, "128 f0: OK;130 f1: Canceled;130 f2: Canceled;");
    EXPECT_EQ(told.size(), 1u);
    EXPECT_EQ(QueueRoot, nullptr);
    Status(22, "NG(cancelled)");
    Ack(3, 23);
    EXPECT_EQ(told.size(), 1u);
}

TEST_F(FileLists, ACallbackMayEmptyItsListAndBeginAnew)
{
    static FILEXFERLIST *again, **own;
    again = nullptr;
    own = &list;
    Fill(1);
    File_ExecCopyList(
        &list,
        [](uint32_t, int) {
            File_XferList_RemoveAll(own);
            File_XferList_Add(&again, "a", "b");
            File_ExecCopyList(&again, List, 9);
        },
        0);
    const int pane = QueueRoot->paneid;
    Answer(1, "OK");
    EXPECT_FALSE(Pane_Exist(pane));
    ASSERT_TRUE(QueueRoot);
    EXPECT_EQ(QueueRoot->xferlist, &again);
    EXPECT_EQ(FileCounter, 1);
    File_XferList_RemoveAll(&again);
    EXPECT_EQ(QueueRoot, nullptr);
    EXPECT_EQ(FileCounter, 0);
}

TEST_F(FileLists, TheDrivesAreWrittenBeforeTheJobEnds)
{
    static int sync;
    File_ReplaceSync([] { return sync = ktr_start("/bin/sleep 60"); });
    const int other = ktr_start("/bin/true");
    for (int n = 0; n < 10; n++) { // more than can wait to be released
        const bool is_dropped = n > 0;
        Fill(1);
        File_ExecCopyList(&list, List, 0);
        Answer(list->label, "OK");
        for (int i = 0; i < 5; i++)
            SendMessage(MSG_REDRAW, 10, 0, 0, 0);
        EXPECT_EQ(told.size(), is_dropped) << "the first one";
        EXPECT_TRUE(Pane_Exist(QueueRoot->paneid));
        if (is_dropped)
            File_XferList_RemoveAll(&list);
        kill(sync, SIGTERM);
        for (int i = 0; i < 500 && kill(sync, 0) == 0; i++) {
            usleep(10000);
            SendMessage(MSG_REDRAW, 10, 0, 0, 0);
        }
        EXPECT_NE(kill(sync, 0), 0) << "the dead child is left";
        EXPECT_EQ(told.size(), 1u);
    }
    EXPECT_EQ(waitpid(other, nullptr, 0), other) << "nobody else's is taken";
}

TEST_F(FileLists, WhereNoProgramWritesTheDrivesThisOneDoes)
{
    const auto written = [](int pid) {
        syncs = 0;
        while (!file_sync_is_done(pid))
            usleep(1000);
        return syncs;
    };
    EXPECT_EQ(written(ktr_start("/bin/true")), 0);
    EXPECT_EQ(written(ktr_start("/bin/false")), 2);
    EXPECT_EQ(written(-1), 2);
}

// --- In the background ---

struct FileBackground : FileLists {
    void TearDown() override
    {
        while (Pane_GetActiveID())
            (void)Pane_Quit(Pane_GetActiveID());
        (void)PaneProgress_RestoreQuit(); // nothing may be open
        FileLists::TearDown();
    }
    // A copy that goes on without its page.
    void BeginAndLeave(int items)
    {
        Fill(items);
        GL_NowPage = 0x71210000;
        BkgdFileTransfer_Set(0x71210000, 1);
        MM_File_ExecCopyList(&list, List, 0, 1); // with a title of its own
        EXPECT_TRUE(Pane_Exist(QueueRoot->paneid));
        BkgdFileTransfer_PaneQuit();
        EXPECT_EQ(Pane_GetActiveID(), 0);
        GL_NowPage = 0x11110000;
    }
};

TEST_F(FileBackground, EachPageOfTheMenuHasItsBit)
{
    static const struct {
        uint32_t set;
        int on, result;
        uint32_t page;
        int is_set;
    } steps[] = {{0x71220000, 0, 0, 0, 0},
                 {0x71220300, 1, 0, 0x71220000, 1},
                 {0x71220300, 1, 0, 0x71220500, 1},
                 {0x71220300, 1, 0, 0x71210000, 0},
                 {0x12345678, 1, -1, 0x12345678, 0},
                 {0, 2, -1, 0, 1},
                 {0x71220000, 0, 0, 0, 0},
                 {0, 1, 0, 0x71510000, 1},
                 {0, 1, 0, 0x71620000, 0}};
    for (const auto& s : steps) {
        EXPECT_EQ(BkgdFileTransfer_Set(s.set, s.on), s.result) << std::hex << s.set;
        EXPECT_EQ(BkgdFileTransfer_Check(s.page), s.is_set) << std::hex << s.page;
    }
    EXPECT_EQ(BkgdFileTransfer_PagePermitted(0x71220000), 1);
    EXPECT_EQ(BkgdFileTransfer_PagePermitted(0x21110000), 0);
    for (const auto& [page, on] : {std::pair{0x25620001u, 1}, {0x25620000u, 2}, {0u, -1}})
        EXPECT_EQ(BkgdHDDTransfer_Set(page, on), -1);
    EXPECT_FALSE(BkgdHDDTransfer_IsUnanswered(9999)) << "nothing was begun";
    BkgdHDDTransfer_Begin(1);
    EXPECT_EQ(BkgdHDDTransfer_Switcher(), 1);
    EXPECT_FALSE(BkgdHDDTransfer_IsUnanswered(4999));
    BkgdHDDTransfer_Busy(0, true); // another one's drive
    EXPECT_TRUE(BkgdHDDTransfer_IsUnanswered(1));
    BkgdHDDTransfer_Busy(1, false);
    EXPECT_EQ(BkgdHDDTransfer_Check(0), 1) << "it has not begun";
    BkgdHDDTransfer_Busy(1, true);
    EXPECT_FALSE(BkgdHDDTransfer_IsUnanswered(9999));
    BkgdHDDTransfer_Busy(1, false);
    EXPECT_EQ(BkgdHDDTransfer_Check(0), 0);
    BkgdHDDTransfer_Set(0x25620000, 1);
    for (const auto& [page, is_busy] : {std::pair{0u, 1}, {0x25620000u, 1}, {0x25620001u, 0}})
        EXPECT_EQ(BkgdHDDTransfer_Check(page), is_busy) << std::hex << page;
}

TEST_F(FileBackground, ThePaneIsLeftAndComesBackWithWhatHappened)
{
    BeginAndLeave(4);
    Answer(1, "OK");
    Answer(2, "NG(no)");
    EXPECT_EQ(Pane_GetActiveID(), 0);
    GL_NowPage = 0x71210000;
    EXPECT_EQ(BkgdFileTransfer_PaneRestore(), 0);
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
    EXPECT_EQ(Pane_GetActiveID(), 0) << "the page is not painted yet";
    SendMessage(MSG_REDRAW, 10, 0, 0, 0);
    const int second = QueueRoot->paneid;
    PANE* const pane = pane_find(second);
    ASSERT_TRUE(pane);
    EXPECT_STREQ(pane->caption, "Transfer");
    EXPECT_EQ(pane->each.progress.prog, 50);
    EXPECT_STREQ(pane_text_in_view(pane), "f1: NG(no)\n");
    EXPECT_EQ(BkgdFileTransfer_PaneRestore(), second);
    Cancel();
    EXPECT_EQ(told.size(), 1u) << "cancelled from the pane that came back";
}

TEST_F(FileBackground, AFallenLinkOpensNoMessageOverOtherWork)
{
    BeginAndLeave(2);
    File_LinkLost();
    EXPECT_EQ(told.size(), 1u);
    EXPECT_EQ(Pane_GetActiveID(), 0);
}
