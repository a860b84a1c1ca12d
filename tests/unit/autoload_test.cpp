#include "autoload.h"
#include "err.h"
#include "file_page.h"
#include "fmctrl.h"
#include "lost_server.h"
#include "pc_file.h"
#include "server_page.h"
#include <map>
#include <regex>

using testing::Key;

static const std::string ROOT = "/mnt/data/user/root/PWON_LD/";
static const std::string EXIST = "put Info@Auto Load@Data Exist@";
static const std::string START = "put Info@Auto Load@Start@";

struct AutoLoad : FileTest {
    void SetUp() override
    {
        FileTest::SetUp();
        GL_AutoLoad = 1;
        SYS_FmemV6 = 0;
    }
    void TearDown() override
    {
        std::fill_n(GL_FileLock, FILE_LOCKS, 0);
        Err_Clear();
        FileTest::TearDown();
    }
    // What stands behind the directory in lines of that form, and their labels.
    static std::map<std::string, uint32_t> Labels(const Strings& lines, const std::string& form)
    {
        std::map<std::string, uint32_t> found;
        std::smatch m;
        const std::regex wanted("put File@" + form);
        for (const std::string& line : lines)
            if (std::regex_match(line, m, wanted))
                found[m[2]] = uint32_t(std::stoul(m[1]));
        return found;
    }
    static std::map<std::string, uint32_t> Searches()
    {
        return Labels(Sent(), "Access@.*#L(\\d+),MYHOST:" + ROOT + "([^,]*).*");
    }
    static void Rows(uint32_t label, const Strings& paths, const char* end = "OK")
    {
        static uint32_t ack = 5000;
        Ack(label, ++ack, "File@Access@Find");
        for (const std::string& path : paths)
            Status(ack, ROOT + path + ",Wed Nov 25 09:20:00 2026", "File@Access@Find@Status");
        Status(ack, end, "File@Access@Find@Status");
    }
    // Ask for a unit whose searches give these files. What the server is told at the end.
    static Strings Ask(const char* unit, const std::map<std::string, Strings>& files)
    {
        Deliver(std::string("Info@Auto Load@Data Exist@") + unit, "true");
        for (const auto& [folder, label] : Searches())
            Rows(label, files.count(folder) ? files.at(folder) : Strings{});
        return Sent();
    }
    // Ask with the newer frame memory; only the list of its folders, this one, is waited for then.
    static uint32_t AskForFolders(const char* unit)
    {
        uint32_t list = 0;
        EXPECT_EQ(AutoLoad_DataExist(unit), AUTOLOAD_SEARCHING);
        for (const auto& [folder, label] : Searches())
            if (folder == "FMEMFOL/")
                list = label;
            else
                Rows(label, {});
        EXPECT_THAT(Sent(), IsEmpty());
        return list;
    }
    // Its default folder has these pictures and no other has any.
    static Strings AskForPictures(const char* unit, const std::string& folder, const Strings& names)
    {
        Rows(AskForFolders(unit), {"FMEMFOL/DEFAULT"});
        const std::string path = "FMEMFOL/DEFAULT/" + folder + "/";
        Rows(Searches().at(path), Below(path, names));
        return Sent();
    }
    static void ClosePanes()
    {
        while (int pane = Pane_GetActiveID())
            Pane_Quit(pane);
    }
    // The transfers that a start sends, "<source> <target>", with their labels.
    static std::map<std::string, uint32_t> Start(const char* unit, Strings* all)
    {
        Deliver(std::string("Info@Auto Load@Start@") + unit, "true");
        *all = Sent();
        return Labels(*all, ".*#L(\\d+),MYHOST:" + ROOT + "(.*)");
    }
};

TEST_F(AutoLoad, EachLockedCategoryIsLeftOutOfTheSearch)
{
    const Strings folders = {"DSNAP",    "EFFECT",  "FRAMEMEM", "KSNAP", "MACRO",
                             "MACROATC", "SHOTBOX", "SNAPSHOT", "WSNAP"};
    const struct {
        const char *unit, *folder;
        int v6;
        int lock; // -1 none
        const char* left_out;
    } cases[] = {
        {"PNL", "CTRLCPU", 0, -1, ""},
        {"PNL", "CTRLCPU", 1, -1, "FRAMEMEM"},
        {"DME4", "DME000D004", 0, FILELOCK_CATEGORY_EFFECT, "EFFECT"},
        {"SWR1", "SWR000D001", 0, FILELOCK_CATEGORY_MACRO_ATTACHMENT, "MACROATC"},
    };
    for (const auto& c : cases) {
        SYS_FmemV6 = c.v6;
        if (c.lock >= 0)
            GL_FileLock[c.lock] = 1;
        EXPECT_EQ(AutoLoad_DataExist(c.unit), AUTOLOAD_SEARCHING);
        std::vector<testing::Matcher<std::pair<const std::string, uint32_t>>> expected;
        for (const std::string& word : folders)
            if (word != c.left_out)
                expected.push_back(Key(word + "/" + c.folder + "/"));
        const auto searches = Searches();
        EXPECT_THAT(searches, ElementsAreArray(expected)) << c.unit;
        EXPECT_EQ(AutoLoad_DataExist("SWR2"), AUTOLOAD_BUSY);
        for (const auto& [folder, label] : searches) {
            EXPECT_THAT(Sent(), IsEmpty()) << "answered before the last search has ended";
            Rows(label, {}, "NG(Directory Not Exist)");
        }
        EXPECT_THAT(Sent(), ElementsAre(EXIST + c.unit + "#false"));
        std::fill_n(GL_FileLock, FILE_LOCKS, 0);
    }
}

TEST_F(AutoLoad, EachReasonNotToSearchHasItsAnswer)
{
    EXPECT_EQ(AutoLoad_DataExist("CCU1"), AUTOLOAD_UNKNOWN);
    EXPECT_EQ(AutoLoad_Start("CCU1"), -1);
    GL_AutoLoad = -1;
    EXPECT_EQ(AutoLoad_DataExist("SWR1"), AUTOLOAD_NOT_TOLD);
    EXPECT_THAT(Sent(), IsEmpty());
    Deliver("Info@Operation Setup Data@Auto Load", "0");
    EXPECT_EQ(AutoLoad_DataExist("SWR1"), AUTOLOAD_OFF);
    EXPECT_THAT(Sent(), ElementsAre(EXIST + "SWR1#false"));
    Deliver("Info@Operation Setup Data@Auto Load", "1");
    const int pane = PaneMessage_Create("Title", PANE_INFO, "Text");
    EXPECT_EQ(AutoLoad_DataExist("SWR1"), AUTOLOAD_BUSY);
    Pane_Quit(pane);
    (void)BkgdFileTransfer_Set(0x71310000, 1);
    EXPECT_EQ(AutoLoad_DataExist("SWR1"), AUTOLOAD_BUSY);
    (void)BkgdFileTransfer_Set(0, 0);
    EXPECT_EQ(AutoLoad_Start("SWR1"), 0) << "nothing was found";
    EXPECT_THAT(Sent(), IsEmpty());
    // All that could be searched is locked: an answer all the same.
    SYS_FmemV6 = 1;
    std::fill_n(GL_FileLock, FILE_LOCKS, 1);
    EXPECT_EQ(AutoLoad_DataExist("DME1"), AUTOLOAD_SEARCHING);
    EXPECT_THAT(Sent(), ElementsAre(EXIST + "DME1#false"));
}

TEST_F(AutoLoad, FilesGoToTheirPlacesAndTheServerHearsOfBothEnds)
{
    const std::string open = "EFFECT/SWR000D001/ME1/OPEN.ME1_001.SKF";
    const std::string key = "KSNAP/SWR000D001/ME1/K.ME1_2_04.SKS";
    const std::string logo = "FRAMEMEM/SWR000D001/Mlogo.FMEM_017.SFM";
    const std::string old_key = "KSNAP/SWR000D001/ME1/OLD.ME1_2_04.SKS"; // told first
    EXPECT_THAT(Ask("SWR1", {{"EFFECT/SWR000D001/", {open, "EFFECT/SWR000D001/ME1/x.txt"}},
                             {"KSNAP/SWR000D001/", {old_key, key}},
                             {"FRAMEMEM/SWR000D001/", {logo}}}),
                ElementsAre(EXIST + "SWR1#true"));
    EXPECT_EQ(AutoLoad_DataExist("SWR1"), AUTOLOAD_FOUND);
    EXPECT_THAT(Sent(), ElementsAre(EXIST + "SWR1#true"));
    const std::string shot = "SHOTBOX/CTRLCPU/S.PNL_0003.PSB";
    EXPECT_THAT(Ask("PNL", {{"SHOTBOX/CTRLCPU/", {shot}}}), ElementsAre(EXIST + "PNL#true"));

    Strings all;
    auto items = Start("SWR1", &all);
    EXPECT_EQ(all[0], START + "SWR1#true");
    const std::string unit = DEV_MySwr[0]->id, work = ":/vorn/tmp/file/";
    EXPECT_THAT(items, ElementsAre(Key(open + "," + unit + work + "EFFECT/SWR1/OPEN.ME1_001.SKF"),
                                   Key(logo + "," + unit + ":Mlogo.FMEM_017.SFM"),
                                   Key(key + "," + unit + work + "KSNAP/SWR1/K.ME1_2_04.SKS")));
    EXPECT_NE(Pane_GetActiveID(), 0) << "the notice";
    EXPECT_TRUE(BkgdFileTransfer_Check(0x71310000));
    EXPECT_FALSE(BkgdFileTransfer_Check(0x71620000));
    EXPECT_EQ(GL_CreatePage, GL_NowPage);
    const int notice = Pane_GetActiveID();

    // The panel's file joins the same load; the notice that stands serves both.
    auto more = Start("PNL", &all);
    EXPECT_EQ(more.size(), 1u);
    EXPECT_EQ(Pane_GetActiveID(), notice);
    EXPECT_EQ(QueueRoot->next, nullptr);
    items.merge(more);
    (void)Err_Add("old");
    for (const auto& [line, label] : items) {
        EXPECT_THAT(Sent(), IsEmpty());
        Answer(label, line.find("KSNAP") == 0 ? "NG(No Space)" : "OK");
    }
    EXPECT_THAT(Sent(), ElementsAre(START + "PNL#false", START + "SWR1#false"));
    EXPECT_FALSE(BkgdFileTransfer_Check(0));
    EXPECT_EQ(Err_GetMax(), 1) << "what failed, and nothing older";
    EXPECT_EQ(GL_CreatePage, 0x99000000u);
    EXPECT_EQ(Pane_GetActiveID(), notice) << "another pane would keep the next unit waiting";
    // What goes well with the next unit hides nothing; the same unit again begins a new list.
    (void)Ask("DME1", {{"EFFECT/DME000D001/", {"EFFECT/DME000D001/CH1/F.CH1_0001.DKF"}}});
    GL_CreatePage = 0;
    for (const auto& [line, label] : Start("DME1", &all))
        Answer(label, "OK");
    EXPECT_EQ(Err_GetMax(), 1);
    EXPECT_EQ(GL_CreatePage, GL_NowPage);
    Pane_Quit(notice);
    (void)Ask("PNL", {{"SHOTBOX/CTRLCPU/", {shot}}});
    for (const auto& [line, label] : Start("PNL", &all))
        Answer(label, "OK");
    EXPECT_EQ(Err_GetMax(), 0);
    EXPECT_NE(Pane_GetActiveID(), 0) << "a notice that was read is put up again";
}

TEST_F(AutoLoad, PicturesOfTheNewStoreGetNumbersAndFoldersInTheOrderFound)
{
    SYS_FmemV6 = 1;
    const std::string root = "FMEMFOL/";
    FMCtrl_InitClipStillList();
    Deliver("16@Frame Mem@Status@Folder Name Sense", "0,Default.,1,Old,3,Gone");
    Deliver("Frame Mem@Status@Extended Capacity", "1");
    const uint32_t list = AskForFolders("SWR1");
    Rows(list, {root + "Sport", root + "DEFAULT", root + "A name that is too long", root + "News"});

    const std::string sub = "/SWR000D001/";
    const std::map<std::string, Strings> files = {
        {"DEFAULT", {"Mbars.FMEM_009.SFM", "bars.SFM", ".FMEM_001.SFM", "x.FMEM_.SFM"}},
        {"Sport", {"Mgoal.FMEM_200.SFA", "Mextra.FMEX_001.SFM", "Mgoal.FMEM_003.TIF"}},
        {"News", {}}};
    for (const char* name : {"DEFAULT", "Sport", "News"}) { // one at a time
        const auto searches = Searches();
        ASSERT_THAT(searches, ElementsAre(Key(root + name + sub)));
        Rows(searches.begin()->second, Below(root + name + sub, files.at(name)));
    }
    EXPECT_THAT(Sent(),
                ElementsAre("put Frame Mem@File@Delete Thumbnail@All#true",
                            "put Frame Mem@Folder@Delete#3", "put Frame Mem@Folder@Delete#1",
                            "put Frame Mem@Folder@Rename#1,Sport",
                            "put Frame Mem@Folder@Rename#2,News", EXIST + "SWR1#true"));
    Strings all;
    const auto items = Start("SWR1", &all);
    const std::string staging = "MYHOST:/var/tmp/FMXfer/" + std::string(DEV_MySwr[0]->id);
    ASSERT_THAT(
        items,
        ElementsAre(
            Key(root + "DEFAULT" + sub + "Mbars.FMEM_009.SFM," + staging + "Mbars.FMEM_001.SF2"),
            Key(root + "Sport" + sub + "Mextra.FMEX_001.SFM," + staging + "Mextra.FMEX_001.SF2"),
            Key(root + "Sport" + sub + "Mgoal.FMEM_200.SFA," + staging + "Mgoal.FMEM_002.SF4")));
    for (const char* step : {"compressed", "stored", "staging removed"})
        for (const auto& [line, label] : items)
            Answer(label, step[0] == 's' && step[2] == 'o' && line.find("Mbars") != line.npos
                              ? "NG(Bad)"
                              : "OK");
    const Strings end = Sent();
    EXPECT_THAT(end, Contains("put 16@Frame Mem@Folder@Move Still#0,Mgoal,1"));
    EXPECT_THAT(end, Not(Contains(HasSubstr("Mbars,"))));
    EXPECT_EQ(GL_CreatePage, 0x99000000u);
}

TEST_F(AutoLoad, AFullStoreTakesNoMoreAndTheSecondUnitDoesNotEmptyIt)
{
    SYS_FmemV6 = 1;
    FMCtrl_InitClipStillList();
    Deliver("Frame Mem@Status@Extended Capacity", "0");
    const int registers = std::exchange(SYS_FmemRegMax, 66);
    const std::string clear = "put Frame Mem@File@Delete Thumbnail@All#true";
    Strings names = {"Mextra.FMEX_001.SFM"}; // for a store that there is not
    for (int i = 0; i < 70; i++)
        names.push_back("Mp" + std::to_string(i) + ".FMEM_001.SFM");
    EXPECT_THAT(AskForPictures("SWR1", "SWR000D001", names),
                ElementsAre(clear, EXIST + "SWR1#true"));
    EXPECT_THAT(AskForPictures("SWR2", "SWR000D002", {"Mother.FMEM_001.SFM"}),
                ElementsAre(EXIST + "SWR2#false"))
        << "it is not a switcher of this panel";
    Strings all;
    (void)Start("SWR1", &all);
    ASSERT_TRUE(QueueRoot);
    int items = 0;
    for (const FILEXFERLIST* item = *QueueRoot->xferlist; item; item = item->next)
        items++;
    EXPECT_EQ(items, 66);
    SYS_FmemRegMax = registers;
    LoseServer();
    ClosePanes();
    (void)Sent();
    EXPECT_THAT(AskForPictures("SWR2", "SWR000D002", {"Mother.FMEM_001.SFM"}), Contains(clear))
        << "of what the store was given nothing is known any more";
    // A path that is cut is another file's.
    const size_t before = (ROOT + "FMEMFOL/DEFAULT/SWR000D001/").size(), behind = 13;
    for (const size_t length : {size_t(PATH_SIZE), size_t(PATH_SIZE - 1)}) {
        const std::string name(length - before - behind, 'x');
        EXPECT_EQ(AskForPictures("SWR1", "SWR000D001", {name + ".FMEM_001.SFM"}).back(),
                  EXIST + "SWR1#" + (length < PATH_SIZE ? "true" : "false"));
    }
}

TEST_F(AutoLoad, AnEmptySearchLeavesTheStoreAndALostLinkAllowsANewQuestion)
{
    SYS_FmemV6 = 1;
    Rows(AskForFolders("SWR1"), {}, "NG(Directory Not Exist)");
    EXPECT_THAT(Sent(), ElementsAre(EXIST + "SWR1#false"));

    AutoLoad_DataExist("SWR1");
    AutoLoad_LinkLost();
    EXPECT_EQ(QueueRoot, nullptr) << "nor is the list of folders waited for";
    (void)Sent();
    SYS_FmemV6 = 0;
    AutoLoad_DataExist("SWR1");
    const uint32_t old = Searches().begin()->second;
    Deliver("CONNECT@Status", "NG");
    EXPECT_EQ(QueueRoot, nullptr);
    const std::string open = "EFFECT/SWR000D001/ME1/OPEN.ME1_001.SKF";
    Rows(old, {open});
    EXPECT_THAT(Sent(), IsEmpty());
    EXPECT_THAT(Ask("SWR1", {{"EFFECT/SWR000D001/", {open}}}), ElementsAre(EXIST + "SWR1#true"));
    Strings all;
    EXPECT_EQ(Start("SWR1", &all).size(), 1u);
    LoseServer(); // in the middle of the load
    EXPECT_FALSE(BkgdFileTransfer_Check(0));
    EXPECT_EQ(Err_GetMax(), 1);
    ClosePanes();
    (void)Sent();
    EXPECT_THAT(Ask("SWR1", {}), ElementsAre(EXIST + "SWR1#false"));
    // What waits goes with the link, and with nothing else.
    (void)Ask("SWR1", {{"EFFECT/SWR000D001/", {open}}});
    Deliver("CONNECT@Status", "OK");
    Deliver("Info@Auto Load@Data Exist@SWR1", "false"); // the server has taken the answer
    EXPECT_THAT(Sent(), IsEmpty());
    EXPECT_EQ(AutoLoad_DataExist("SWR1"), AUTOLOAD_FOUND);
    LoseServer();
    EXPECT_EQ(AutoLoad_DataExist("SWR1"), AUTOLOAD_SEARCHING);
    AutoLoad_LinkLost();
    // So does the search of a folder.
    SYS_FmemV6 = 1;
    (void)Sent();
    Rows(AskForFolders("SWR1"), {"FMEMFOL/DEFAULT"});
    EXPECT_NE(AutoLoadFindID, 0u);
    AutoLoad_LinkLost();
    EXPECT_EQ(QueueRoot, nullptr);
    EXPECT_EQ(AutoLoadFindID, 0u);
}
