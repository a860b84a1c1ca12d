#include "file_page.h"
#include "pane_private.h"
#include <cstdlib>

#define WORK "/vorn/tmp/file/"

// The conversation about one switcher; the hub says little, and the test says it.
struct FileRemote : FileListTest {
    void SetUp() override
    {
        FileListTest::SetUp();
        CopyText(DEV_Swr[0].id, "SWR000D001");
        DeviceStructure();
        for (const char* target : {"SWR1", "SWR2", "CS1", "PNL1"}) {
            Filescp_trnasferlist_init(target);
            Hub("Ready", std::string(target) + ".File");
        }
        (void)HubSent();
    }
    void Add(const std::string& name, const char* category = "SETUP", const char* target = "SWR1",
             bool is_put = false)
    {
        const std::string here = "MYHOST:/d/" + name,
                          there = std::string("SWR000D001:" WORK) + category + "/SWR1/" + name;
        File_XferList_SCPAdd(&list, (is_put ? here : there).c_str(),
                             (is_put ? there : here).c_str(), category, target);
    }
    void BeginGet(const Strings& names = {"a.SST"}, int tag = 0)
    {
        for (const std::string& name : names)
            Add(name);
        File_TransSCPdirGetList(&list, List, tag);
    }
    void BeginPut(const Strings& names = {"a.SST"}) // and holds the category
    {
        for (const std::string& name : names)
            Add(name, "SETUP", "SWR1", true);
        EXPECT_GT(File_TransSCPdirPutList(&list, List, 0), 0);
        (void)HubSent();
        Notify("SETUP.USER_ID:MENU1");
    }
    static void HoldForGet()
    {
        Notify("SETUP.USER_ID:MENU1");
        Notify("SETUP.STATUS:Get");
    }
    void AddPicture(const std::string& name, bool is_put)
    {
        const std::string here = "MYHOST:/d/" + name + ".SFH",
                          there = "SWR000D001:/" + name + ".SFH";
        File_XferList_SCPAdd_FM(&list, (is_put ? here : there).c_str(),
                                (is_put ? there : here).c_str(), "FRAMEMEM", "CS1", 0, "", 0, 0);
    }
    void AddExport(const char* host, const char* image, const char* store)
    {
        File_XferList_SCPAdd_FM(&list, (std::string(host) + "/A/x.SFH").c_str(),
                                (std::string("MYHOST:/mnt/usb/usb1/") + image).c_str(), "FRAMEMEM",
                                store, 1, "", 0, 0);
        EXPECT_GT(File_ExecFmExportList2(&list, List, 0), 0);
    }
    static void Result(const std::string& text, const char* way = "Get",
                       const char* who = "SETUP.SWR1")
    {
        WriteFile(std::string("/var/tmp/FILE/") + who + "." + way + ".result.lst", text);
    }
    static uint32_t FetchLabel(const std::string& of = "result.lst")
    {
        const std::string one = SentOne();
        EXPECT_THAT(one, HasSubstr(of));
        return uint32_t(strtoul(one.c_str() + one.find("#L") + 2, nullptr, 10));
    }
    static int State(const char* category = "SETUP", int target = 0)
    {
        for (const FILETRANS_SCPCATEGORY& c : Scp_TrnasferList[target].category)
            if (strcmp(c.name, category) == 0)
                return c.status;
        return -1;
    }
};

TEST_F(FileRemote, AGetAsksHoldsReadsTheListCopiesAndGivesBack)
{
    BeginGet({"a.SST", "b.SST"}, 4);
    EXPECT_THAT(Sent(), IsEmpty());
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.USER_ID:MENU1"));
    EXPECT_EQ(check_category_target_status("SETUP", "SWR1", FILE_CATEGORY_STATUS_WAIT_USER), 0);
    Notify("SETUP.USER_ID:MENU1");
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.STATUS:Get"));
    EXPECT_EQ(check_category_target_status("SETUP", "SWR1", FILE_CATEGORY_STATUS_WAIT_GET), 1);
    Notify("SETUP.STATUS:Get");
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_WAIT_RESULT);
    EXPECT_THAT(Sent(), ElementsAre("put File@Remote Access@SCP Dir Get#L4,SWR000D001:" WORK
                                    "SETUP/SWR1/result.lst,MYHOST:/var/tmp/FILE/"
                                    "SETUP.SWR1.Get.result.lst,SETUP"));
    Result("a.SST,ok\r\nb.SST,OK \r\n");
    Answer(4, "OK");
    EXPECT_EQ(SentOne(), "Remote Access@SCP Dir Get#L1,SWR000D001:" WORK
                         "SETUP/SWR1/a.SST,MYHOST:/d/a.SST,SETUP");
    EXPECT_STREQ(At(1)->mesg, "b.SST: OK ");
    EXPECT_EQ(At(1)->status, FILESTATUS_NG);
    Answer(1, "OK");
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.STATUS:Standby"));
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_FINISH);
    EXPECT_THAT(told, IsEmpty());
    Notify("SETUP.STATUS:Standby");
    EXPECT_THAT(told, ElementsAre("3 4"));
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_NO);
    EXPECT_EQ(Scp_TrnasferList[0].status, FILE_SCP_STATUS_NO);
    EXPECT_EQ(list, nullptr);
}

TEST_F(FileRemote, APutIsCheckedByTheDeviceAndCountsHalfUntilThen)
{
    BeginPut({"a.SST", "b.SST"});
    EXPECT_EQ(Sent().size(), 2u);
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_SCPPUT);
    Answer(1, "OK");
    EXPECT_EQ(At(0)->status, FILESTATUS_CHKRESULT);
    EXPECT_THAT(HubSent(), IsEmpty());
    Answer(2, "OK");
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.STATUS:Put"));
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_WAIT_PUT);
    for (const char* other : {"elsewhere/x.SST", "a.SS"})
        Notify(std::string("SETUP.STATUS:Put,") + other);
    EXPECT_THAT(Sent(), IsEmpty());
    Notify("SETUP.STATUS:Put,/a");
    const uint32_t fetch = FetchLabel();
    Result("nobody\nb.SST,OK\n", "Put");
    Answer(fetch, "OK");
    EXPECT_STREQ(At(0)->mesg, "a.SST: NG([ERROR] File Load failed.)");
    EXPECT_EQ(At(1)->status, FILESTATUS_OK);
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.STATUS:Standby"));
    Notify("SETUP.STATUS:Standby");
    EXPECT_EQ(told.size(), 1u);
}

TEST_F(FileRemote, WhatIsNoResultLineIsPassedOver)
{
    const std::string longest(1024 - 3, 'x');
    static const std::pair<std::string, int> cases[] = {
        // the status is that of a.SST
        {"a.SST,OK", FILESTATUS_REQ},
        {"\r\n\r\na.SST,Ok\r\n", FILESTATUS_REQ},
        {"a.SST,OK\ra.SST,NG\r", FILESTATUS_REQ}, // the first counts
        {"a.SST OK\n", FILESTATUS_NG},
        {"", FILESTATUS_NG},
        {"a.SST,OK,\n", FILESTATUS_NG},
        {"a.SST,\n", FILESTATUS_NG},
        {longest + ",OK\na.SST,OK\n", FILESTATUS_REQ},
        {longest + "x,OK\na.SST,OK\n", FILESTATUS_REQ},                       // 1,025 characters
        {"a.SST," + std::string(1019, 'x') + "\na.SST,OK\n", FILESTATUS_REQ}, // 1,025, too
        {std::string(1017, 'x') + "a.SST,OK\n", FILESTATUS_NG},               // its end is no line
        {std::string("\0\0,a.SST,OK\na.SST,OK", 20), FILESTATUS_REQ},
    };
    for (const auto& [text, status] : cases) {
        BeginGet({"a.SST", "keeps the job.SST"});
        HoldForGet();
        const uint32_t fetch = FetchLabel();
        Result(text + "\nkeeps the job.SST,OK\n");
        Answer(fetch, "OK");
        ASSERT_TRUE(list);
        EXPECT_EQ(list->status, status) << text.substr(0, 60);
        (void)Sent();
        Hub("Disconnect", "SWR1.File");
        Hub("Ready", "SWR1.File");
        (void)Sent();
        (void)HubSent();
    }
}

TEST_F(FileRemote, AListThatCannotBeFetchedIsTriedThreeTimesMore)
{
    BeginGet();
    HoldForGet();
    (void)HubSent();
    for (int i = 0; i < 4; i++) {
        EXPECT_THAT(HubSent(), IsEmpty());
        Answer(FetchLabel(), "NG(x)");
    }
    EXPECT_THAT(Sent(), IsEmpty());
    EXPECT_STREQ(list->mesg, "a.SST: NG([ERROR] Result File Error.)");
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.STATUS:Standby"));
    // One that is missing although the fetch went well.
    Notify("SETUP.STATUS:Standby");
    std::remove("/var/tmp/FILE/SETUP.SWR1.Get.result.lst");
    BeginGet();
    HoldForGet();
    Answer(FetchLabel(), "OK");
    EXPECT_STREQ(list->mesg, "a.SST: NG([ERROR] File Not Exist.)");
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_FINISH);
}

TEST_F(FileRemote, WhatCannotBeginFailsAtOnce)
{
    Add("a.SST", "SETUP", "PNL2"); // never ready
    Add("b.SST", "NOTHING");
    Add("c.SST", "SETUP", "SWR9");
    File_TransSCPdirGetList(&list, List, 0);
    EXPECT_EQ(ended, "129 a.SST: NG([ERROR] Server Not Ready.);"
                     "129 b.SST: NG([ERROR] Internal Error.);"
                     "129 c.SST: NG([ERROR] Internal Error.);");
    EXPECT_EQ(list, nullptr);
    PANE* pane = pane_find(Pane_GetActiveID()); // until the operator has read it
    ASSERT_NE(pane, nullptr);
    EXPECT_EQ(pane->type, TYPE_MESSAGE);
    EXPECT_STREQ(pane_text_in_view(pane), "a.SST: NG([ERROR] Server Not Ready.)\n"
                                          "b.SST: NG([ERROR] Internal Error.)\n"
                                          "c.SST: NG([ERROR] Internal Error.)\n");
}

TEST_F(FileRemote, AnotherUserIsWaitedFor)
{
    Notify("SETUP.USER_ID:PANEL7");
    Add("b.SST", "NOTHING");
    BeginGet();
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_WAIT_NON);
    EXPECT_THAT(HubSent(), IsEmpty());
    PANE* pane = pane_find(Pane_GetActiveID());
    ASSERT_NE(pane, nullptr);
    EXPECT_STREQ(pane_text_in_view(pane), "b.SST: NG([ERROR] Internal Error.)\n");
    EXPECT_STREQ(pane->each.progress.progmes, "SETUP of SWR1 is used by PANEL7.");
    Notify("SETUP.USER_ID:Non");
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.USER_ID:MENU1"));
    Notify("SETUP.USER_ID:PANEL8"); // was quicker
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_WAIT_NON);
    Notify("SETUP.USER_ID:Non");
    Notify("SETUP.USER_ID:MENU1");
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_WAIT_GET);
    Notify("SETUP.USER_ID:MENU1"); // no news
    EXPECT_EQ(HubSent().size(), 2u);
}

TEST_F(FileRemote, TheOtherDirectionWaitsUntilTheTargetIsFree)
{
    FILEXFERLIST* puts = nullptr;
    BeginGet({"a.SST"}, 1);
    File_XferList_SCPAdd(&puts, "MYHOST:/d/k.SKM", "SWR000D001:/k.SKM", "KEYMEM", "SWR1");
    File_XferList_SCPAdd(&puts, "MYHOST:/d/v.SVM", "SWR000D001:/v.SVM", "VPROCMEM", "SWR1");
    File_TransSCPdirPutList(&puts, List, 2);
    EXPECT_EQ(HubSent().size(), 1u);
    HoldForGet();
    Result("a.SST,NG(none)\n");
    Answer(FetchLabel(), "OK");
    Notify("SETUP.STATUS:Standby");
    EXPECT_EQ(told.size(), 1u);
    (void)HubSent();
    Notify("SETUP.USER_ID:Non");
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:KEYMEM.USER_ID:MENU1",
                                       "Request#SWR1.File:VPROCMEM.USER_ID:MENU1"));
    EXPECT_EQ(Scp_TrnasferList[0].status, FILE_SCP_STATUS_PUT);
    File_XferList_RemoveAll(&puts);
}

TEST_F(FileRemote, JobsOfOneDirectionFollowEachOther)
{
    FILEXFERLIST* more[2] = {};
    BeginGet({"a.SST"}, 1);
    File_XferList_SCPAdd(&more[0], "SWR000D001:/k.SKM", "MYHOST:/d/k.SKM", "KEYMEM", "SWR1");
    File_TransSCPdirGetList(&more[0], List, 2);
    File_XferList_SCPAdd(&more[1], "SWR000D001:/b.SST", "MYHOST:/d/b.SST", "SETUP", "SWR1");
    File_TransSCPdirGetList(&more[1], List, 3);
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.USER_ID:MENU1"));
    Cancel();
    Notify("SETUP.USER_ID:MENU1");
    Notify("SETUP.STATUS:Standby");
    (void)HubSent();
    // Of those that wait, the one that wants the free category is the first.
    Notify("SETUP.USER_ID:Non");
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.USER_ID:MENU1"));
    File_XferList_RemoveAll(&more[0]); // takes nothing from the other one
    Notify("SETUP.USER_ID:MENU1");
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_WAIT_GET);
    File_XferList_RemoveAll(&more[1]);
}

TEST_F(FileRemote, AllCategoriesOfAJobEndBeforeItDoes)
{
    Add("b.SKM", "KEYMEM");
    BeginGet();
    for (const char* c : {"SETUP", "KEYMEM"}) {
        Notify(std::string(c) + ".USER_ID:MENU1");
        Notify(std::string(c) + ".STATUS:Get");
        Result("a.SST,OK\nb.SKM,OK", "Get", (std::string(c) + ".SWR1").c_str());
        Answer(FetchLabel(), "OK");
        (void)Sent();
    }
    Answer(2, "OK");
    Notify("SETUP.STATUS:Standby");
    EXPECT_THAT(told, IsEmpty());
    Answer(1, "NG(no)");
    // The holder goes before the word "Standby" comes: that is an answer, too.
    Notify("KEYMEM.USER_ID:Non");
    EXPECT_EQ(told.size(), 1u);
    EXPECT_EQ(Scp_TrnasferList[0].status, FILE_SCP_STATUS_NO);
}

TEST_F(FileRemote, ACancelBeforeTheAnswerWaitsForIt)
{
    BeginGet();
    (void)HubSent();
    Cancel();
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_WAIT_USER_CANCEL);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_THAT(HubSent(), IsEmpty());
    Notify("SETUP.USER_ID:MENU1");
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.STATUS:Standby"));
    Notify("SETUP.STATUS:Standby");
    EXPECT_EQ(told.size(), 1u);
    // Somebody else got it instead.
    BeginGet();
    Cancel();
    Notify("SETUP.USER_ID:PANEL3");
    EXPECT_EQ(told.size(), 2u);
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_NO);
    // Waiting behind another user: nothing is owed.
    BeginGet();
    Cancel();
    EXPECT_EQ(told.size(), 3u);
}

TEST_F(FileRemote, ACancelInTheMiddleGivesTheCategoryBack)
{
    BeginPut({"a.SST", "b.SST"});
    Ack(1, 71);
    (void)Sent();
    (void)HubSent();
    Cancel();
    EXPECT_EQ(SentOne(), "Access@Cancel#Lx,71");
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.STATUS:Standby"));
    Status(71, "OK");
    Answer(2, "OK");
    EXPECT_EQ(list->status, FILESTATUS_CANCEL) << "a late reply brought it back";
    Notify("SETUP.STATUS:Put"); // a late answer of the device
    EXPECT_THAT(told, IsEmpty());
    Notify("SETUP.STATUS:Standby");
    EXPECT_EQ(told.size(), 1u);
}

TEST_F(FileRemote, ALargeResultListIsReadInOnePass)
{
    constexpr int N = 2000;
    Strings names;
    std::string text;
    for (int i = N; i-- > 0;) {
        names.push_back("f" + std::to_string(i) + ".SST");
        text += names.back() + (i % 2 ? ",OK\r\n" : ",NG(bad)\r\n");
    }
    BeginGet(names);
    HoldForGet();
    Result(text);
    Answer(FetchLabel(), "OK");
    EXPECT_EQ(Sent().size(), size_t(N / 2));
    EXPECT_EQ(QueueRoot->finished, N / 2);
}

TEST_F(FileRemote, WhatTheHubTookAwayIsNotGivenBack)
{
    BeginPut();
    Notify("SETUP.USER_ID:PANEL3");
    Answer(1, "NG(no)");
    EXPECT_THAT(HubSent(), IsEmpty());
    EXPECT_EQ(told.size(), 1u) << "waits for an answer that nobody owes";
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_NO);
    EXPECT_EQ(Scp_TrnasferList[0].status, FILE_SCP_STATUS_NO);
}

TEST_F(FileRemote, ADisconnectEndsTheJobWhereverItIs)
{
    for (int depth = 0; depth < 5; depth++) {
        BeginGet();
        if (depth > 0)
            Notify("SETUP.USER_ID:MENU1");
        if (depth > 1)
            Notify("SETUP.STATUS:Get");
        if (depth > 2) {
            Result("a.SST,OK");
            Answer(FetchLabel(), "OK");
            (void)Sent();
            Ack(list->label, 91);
        }
        if (depth > 3)
            Status(91, "OK");
        told.clear();
        Hub("Disconnect", "SWR1.File");
        EXPECT_EQ(told.size(), 1u) << depth;
        EXPECT_EQ(Sent().size(), depth == 3 || depth == 2 ? 1u : 0u) << depth;
        EXPECT_EQ(State(), FILE_CATEGORY_STATUS_NO);
        EXPECT_EQ(Scp_TrnasferList[0].connect, FILE_DISCONNECT);
        EXPECT_EQ(QueueRoot, nullptr);
        Hub("Ready", "SWR1.File");
        (void)HubSent();
    }
}

TEST_F(FileRemote, AHubThatHasFallenEndsAllAndLetsNothingBegin)
{
    Add("p.PST", "SETUP", "PNL1");
    BeginGet(Strings(299, "a.SST"));
    File_HubLost();
    EXPECT_EQ(told.size(), 1u);
    EXPECT_EQ(QueueRoot, nullptr);
    const std::string text = pane_text_in_view(pane_top());
    EXPECT_TRUE(text.starts_with("p.PST: Canceled\na.SST: Canceled\n"));
    EXPECT_TRUE(text.ends_with("a.SST: Canceled\nand 47 more.\n")) << "more is not shown at once";
    (void)HubSent();
    BeginGet();
    EXPECT_EQ(told.size(), 2u) << "it would wait for ever";
    EXPECT_THAT(HubSent(), IsEmpty());
}

TEST_F(FileRemote, ADisconnectLeavesTheOtherTargetItsWork)
{
    Add("p.PST", "SETUP", "PNL1");
    BeginGet();
    Hub("Disconnect", "SWR1.File");
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(At(1)->status, FILESTATUS_CANCEL);
    EXPECT_EQ(At(0)->status, FILESTATUS_WAIT);
    Notify("SETUP.USER_ID:MENU1", "PNL1.File");
    EXPECT_EQ(State("SETUP", 4), FILE_CATEGORY_STATUS_WAIT_GET);
    Hub("Disconnect", "PNL1.File");
    EXPECT_EQ(told.size(), 1u);
    PANE* pane = pane_find(Pane_GetActiveID());
    ASSERT_NE(pane, nullptr) << "nobody has touched Cancel";
    EXPECT_STREQ(pane_text_in_view(pane), "p.PST: Canceled\na.SST: Canceled\n");
}

TEST_F(FileRemote, ReadyInTheMiddleAsksAgainAndGoesOn)
{
    BeginPut();
    Answer(1, "OK");
    (void)Sent();
    (void)HubSent();
    Hub("Ready", "SWR1.File");
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.USER_ID:MENU1"));
    Notify("SETUP.USER_ID:MENU1");
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.STATUS:Put"));
    Notify("SETUP.STATUS:Put,a.SST");
    Result("a.SST,OK", "Put");
    Answer(FetchLabel(), "OK");
    (void)HubSent();
    Hub("Ready", "SWR1.File"); // while it is being given back
    Notify("SETUP.USER_ID:MENU1");
    EXPECT_THAT(HubSent(), ElementsAre("Request#SWR1.File:SETUP.USER_ID:MENU1",
                                       "Request#SWR1.File:SETUP.STATUS:Standby"));
    Notify("SETUP.STATUS:Standby");
    EXPECT_EQ(told.size(), 1u);
}

TEST_F(FileRemote, RubbishFromTheHubChangesNothing)
{
    BeginGet();
    (void)HubSent();
    for (const char* row : {"", ":", ".", "SETUP", "SETUP.", "SETUP:USER_ID", "SETUP.USER_ID",
                            "SETUP.USER:MENU1", "NOTHING.USER_ID:MENU1", ".USER_ID:MENU1"})
        Notify(row);
    for (const char* table : {"", "SWR1", "SWR3.File", "SWR1.File.File", ".File", "CS.File"})
        Notify("SETUP.USER_ID:MENU1", table);
    Hub("Insert", "SWR1.File", "SETUP.USER_ID:MENU1");
    Notify("SETUP.STATUS:Get");
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_WAIT_USER);
    EXPECT_THAT(HubSent(), IsEmpty());
    Notify("SETUP.USER_ID:" + std::string(500, 'u'));
    EXPECT_EQ(State(), FILE_CATEGORY_STATUS_WAIT_NON);
}

// --- Frame memory ---

struct FileStore : FileRemote {
    void SetUp() override
    {
        FileRemote::SetUp();
        DEV_Swr[0].format_size = 3;
        DEV_Swr[0].format_freq = 6;
        DEV_Swr[0].format_scan = 0;
    }
    void BeginPut(const Strings& names)
    {
        for (const std::string& name : names)
            AddPicture(name, true);
        EXPECT_GT(File_TransSCPdirPutList_FM(&list, List, 0), 0);
        Store("USER_ID::MENU1");
        (void)HubSent();
    }
    static void Store(const std::string& row) { Notify("FRAMEMEM." + row, "CS1.File"); }
    static void Listed(const char* name, const char* way, const char* result = "OK")
    {
        Result(std::string(name) + "," + result + "\n", way, "FRAMEMEM.CS1");
        Answer(FetchLabel(), "OK");
    }
};

TEST_F(FileStore, PicturesAreGotOneAtATime)
{
    for (const char* name : {"A/x", "y.1", "z", "w"})
        AddPicture(name, false);
    EXPECT_GT(File_TransSCPdirGetList_FM(&list, List, 0), 0);
    EXPECT_THAT(HubSent(), ElementsAre("Request#CS1.File:FRAMEMEM.USER_ID::MENU1"));
    Store("USER_ID::MENU1");
    EXPECT_THAT(HubSent(), ElementsAre("Request#CS1.File:FRAMEMEM.STATUS::Get,/A/x"));
    EXPECT_EQ(list->status, FILESTATUS_GET_START);
    Hub("Ready", "CS1.File"); // it has been away
    Store("USER_ID::MENU1");
    EXPECT_THAT(HubSent(), Contains("Request#CS1.File:FRAMEMEM.STATUS::Get,/A/x"));
    Store("STATUS::Get,/y.SFH"); // another one's
    EXPECT_THAT(Sent(), IsEmpty());
    Store("STATUS::Get,A/x.SFH");
    Listed("A/x.SFH", "Get");
    EXPECT_THAT(SentOne(), HasSubstr("SCP Dir Get#L1,SWR000D001:/A/x.SFH"));
    EXPECT_EQ(At(1)->status, FILESTATUS_WAIT);
    Answer(1, "OK");
    EXPECT_THAT(HubSent(), ElementsAre("Request#CS1.File:FRAMEMEM.STATUS::Get,/y.1"));
    Store("STATUS::Get,/y.1");
    Listed("other.SFH", "Get");
    EXPECT_STREQ(At(1)->mesg, "y.1.SFH: NG([ERROR] File Not Exist.)");
    EXPECT_THAT(HubSent(), ElementsAre("Request#CS1.File:FRAMEMEM.STATUS::Get,/z"));
    Store("STATUS::Get,/z.SFH");
    Listed("/z", "Get", "NG(bad)");
    EXPECT_STREQ(pane_find(QueueRoot->paneid)->each.progress.progmes, "z.SFH: NG(bad)");
    EXPECT_THAT(HubSent(), ElementsAre("Request#CS1.File:FRAMEMEM.STATUS::Get,/w"));
    Store("STATUS::Get,/w.SFH");
    Listed("/w", "Get");
    (void)Sent();
    Answer(4, "NG(x)");
    EXPECT_THAT(HubSent(), ElementsAre("Request#CS1.File:FRAMEMEM.STATUS::Standby"));
    Store("STATUS::Standby");
    EXPECT_EQ(told.size(), 1u);
}

TEST_F(FileStore, AnExportComesAsTheWantedKindFromAStoreThatIsThere)
{
    AddExport("SWR000D001:" WORK "FRAMEMEM/CS1", "x.TIF", "CS1");
    (void)HubSent();
    Store("USER_ID::MENU1");
    EXPECT_THAT(HubSent(), ElementsAre("Request#CS1.File:FRAMEMEM.STATUS::Get,/A/x,TIF"));
    Store("STATUS::Get,/A/x.SFH");
    Listed("/A/x.TIF", "Get");
    EXPECT_EQ(SentOne(), "Remote Access@SCP Dir Get#L1,SWR000D001:" WORK
                         "FRAMEMEM/CS1/A/x.TIF,MYHOST:/mnt/usb/usb1/x.TIF,FRAMEMEM");
    Answer(1, "OK");
    Store("STATUS::Standby");
    EXPECT_EQ(told.size(), 1u);
    Scp_TrnasferList[3] = {}; // as at process start
    AddExport("SWR000D002:", "x.TIF", "CS2");
    EXPECT_EQ(told.size(), 2u);
    EXPECT_STREQ(Scp_TrnasferList[3].host, "SWR000D002:");
}

TEST_F(FileStore, AnExportNamesItsPictureWhoeverHoldsTheStore)
{
    FILEXFERLIST* puts = nullptr;
    AddPicture("p", true);
    std::swap(list, puts);
    File_TransSCPdirPutList_FM(&puts, List, 0);
    Store("USER_ID::MENU1");
    AddExport("SWR000D001:", "q.TIF", "CS1");
    EXPECT_THAT(list->cmd, HasSubstr(",SWR000D001:" WORK "FRAMEMEM/CS1/A/x.TIF,"));
    File_XferList_RemoveAll(&puts);
}

// Folders first, each once in a row; the files one at a time, each checked by the store.
TEST_F(FileStore, PicturesArePutIntoFoldersThatAreMadeFirst)
{
    BeginPut({"A/x", "A/y", "B/z"});
    EXPECT_EQ(SentOne(), "Remote Access@Make Dir#L5,SWR000D001:/A,FRAMEMEM");
    EXPECT_EQ(list->status, FILESTATUS_WAIT_REQ);
    Answer(5, "OK");
    EXPECT_THAT(SentOne(), HasSubstr("SCP Dir Put#L1,"));
    Answer(1, "OK");
    EXPECT_THAT(HubSent(), ElementsAre("Request#CS1.File:FRAMEMEM.STATUS::Put,/A/x,4,1"));
    Hub("Ready", "CS1.File"); // it has been away
    Store("USER_ID::MENU1");
    EXPECT_THAT(HubSent(), Contains("Request#CS1.File:FRAMEMEM.STATUS::Put,/A/x,4,1"));
    Store("STATUS::Put,/A/x.SFH");
    Listed("A/x", "Put");
    EXPECT_EQ(list->status, FILESTATUS_OK);
    EXPECT_THAT(SentOne(), HasSubstr("SCP Dir Put#L2,")) << "the folder is there";
    Answer(2, "NG(x)");
    EXPECT_THAT(SentOne(), HasSubstr("Make Dir#L7,SWR000D001:/B,FRAMEMEM"));
    Answer(7, "NG(x)");
    EXPECT_STREQ(At(2)->mesg, "z.SFH: NG([ERROR] Make Folder failed.)");
    EXPECT_THAT(HubSent(), ElementsAre("Request#CS1.File:FRAMEMEM.STATUS::Standby"));
    // A picture's own folder is none to be made.
    Store("STATUS::Standby");
    BeginPut({"A/m.SFH/m", "A/n.SFH/n"});
    const uint32_t first = list->label;
    EXPECT_THAT(SentOne(), HasSubstr("Make Dir#L" + std::to_string(first + 3)));
    Answer(first + 3, "OK");
    (void)Sent();
    Answer(first, "NG(x)");
    EXPECT_THAT(SentOne(), HasSubstr("SCP Dir Put#L" + std::to_string(first + 1) + ","));
    Answer(first + 1, "OK");
    Store("STATUS::Put,/A/n.SFH/n.SFH");
    Listed("/A/n.SFH/n", "Put", "NG(bad)");
    EXPECT_EQ(At(1)->status, FILESTATUS_NG);
}

TEST_F(FileStore, AFolderIsAskedForAnewAfterAHubThatWasAwayAndADeepOneIsAnother)
{
    const auto again = [] {
        Hub("Ready", "CS1.File");
        Store("USER_ID::MENU1");
    };
    const auto folder_made = [](const std::string& folder) {
        return FetchLabel(",SWR000D001:/" + folder + ",FRAMEMEM");
    };
    BeginPut({"r", "A/B/C/x", "A/B/D/y"});
    Answer(folder_made(""), "OK");
    EXPECT_THAT(SentOne(), HasSubstr("SCP Dir Put#L1,"));
    Answer(1, "NG(x)");
    (void)folder_made("A/B/C");
    again();
    Answer(folder_made("A/B/C"), "OK");
    EXPECT_THAT(SentOne(), HasSubstr("SCP Dir Put#L2,"));
    again();
    EXPECT_THAT(Sent(), IsEmpty()) << "it is on its way";
    Answer(2, "NG(x)");
    (void)folder_made("A/B/D");
}

TEST_F(FileStore, AClipMakesItsFolderAtItsFirstFrame)
{
    for (int frame = 0; frame < 2; frame++)
        File_XferList_ImportAdd2(
            &list, ("MYHOST:/mnt/usb/usb1/c" + std::to_string(frame) + ".TIF").c_str(),
            ("SWR000D001:/c.SFH/c#00000" + std::to_string(frame) + ".SFH").c_str(), 0, "c", frame,
            2, 1, "FRAMEMEM", "CS1");
    EXPECT_EQ(File_ExecFmImportList2(&list, List, 0), 3);
    Store("USER_ID::MENU1");
    (void)HubSent();
    EXPECT_EQ(SentOne(), "Remote Access@Make Dir#L4,SWR000D001:/c.SFH,FRAMEMEM");
    Answer(4, "OK");
    EXPECT_EQ(SentOne(), "Remote Access@SCP Dir Put#L1,MYHOST:/mnt/usb/usb1/c0.TIF.SUB,"
                         "SWR000D001:/c.SFH/c#000000.SFH.SUB,FRAMEMEM");
    EXPECT_EQ(State("FRAMEMEM", 2), FILE_CATEGORY_STATUS_SCPPUT_SUB);
    Answer(1, "NG(no companion)");
    EXPECT_EQ(SentOne(), "Remote Access@SCP Dir Put#L1,MYHOST:/mnt/usb/usb1/c0.TIF,"
                         "SWR000D001:/c.SFH/c#000000.SFH,FRAMEMEM");
    Answer(1, "OK");
    EXPECT_THAT(HubSent(),
                ElementsAre("Request#CS1.File:FRAMEMEM.STATUS::Put,/c.SFH/c#000000,4,2"));
    Store("STATUS::Put,/c.SFH/c#000000.SFH");
    Listed("/c.SFH/c#000000.SFH", "Put");
    EXPECT_THAT(SentOne(), HasSubstr("SCP Dir Put#L2,")) << "no second folder";
    Answer(2, "OK"); // the companion
    EXPECT_THAT(SentOne(), HasSubstr("#L2,MYHOST:/mnt/usb/usb1/c1.TIF,"));
    DEV_Swr[0].format_size = 9;
    Answer(2, "OK");
    EXPECT_STREQ(At(1)->mesg, "c1.TIF: NG([ERROR] Internal Error.)");
    EXPECT_THAT(HubSent(), ElementsAre("Request#CS1.File:FRAMEMEM.STATUS::Standby"));
}

TEST_F(FileStore, TheStoreHearsTheFormatOfItsSwitcher)
{
    EXPECT_EQ(file_scp_get_systemformat("SWR000D001:"), 4);
    SYS_Format_Freq = 5;
    SYS_Format_Scan = 2;
    for (const auto& [size, format] : {std::pair{2, 11}, {4, -1}}) {
        SYS_Format_Size = size;
        EXPECT_EQ(file_scp_get_systemformat(nullptr), format);
    }
    DEVICE& swr = DEV_Swr[0];
    swr.format_freq = 5;
    swr.format_scan = 2;
    swr.activeline = ACTIVELINE_1080P;
    swr.framerate = 25.0;
    DeviceStructure();
    for (const auto& [dual, type, format] :
         {std::tuple{0, DEVTYPE_KTR40, 128}, {1, DEVTYPE_KTR40, 130}, {0, DEVTYPE_KTR40G, 132}}) {
        SYS_DualProc = dual;
        swr.type = type;
        DeviceStructure();
        EXPECT_EQ(file_scp_get_systemformat("SWR000D001:"), format);
    }
}
