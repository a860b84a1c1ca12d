// Copies of a unit's and a group's files, against a server that lists, clears and copies.
#include "a_ls.h"
#include "file.h"
#include "file_dir.h"
#include "pane.h"
#include "pc_file_idcopy.h"
#include "table_page.h"
#include "text.h"

namespace
{
constexpr uint32_t UNIT_PAGE = 0x71720000;
constexpr uint32_t GROUP_PAGE = 0x71730000;
constexpr int DME2 = 1297; // region id

struct FileIdCopyPage : TablePage {
    static inline int ack = 900;
    void SetUp() override
    {
        TablePage::SetUp();
        File_Reset();
        FileIdCopy_Reset();
        for (const int grp : {24, 25})
            Select(grp, {});
    }
    void TearDown() override
    {
        (void)Leave();
        FileIdCopy_Reset();
        File_Reset();
        TablePage::TearDown();
    }
    // The units of the selector, as "Enter" leaves them.
    static void Select(int grp, std::set<int> cells)
    {
        const int pane = PaneRegion_Create(grp, 0);
        for (int cell = 0; cell < 20; cell++) {
            const int id = (cell < 10 ? 1280 : 1286) + cell;
            if ((PaneRegion_IsSelected(grp, id) != 0) != (cells.count(cell) != 0))
                (void)Touch(400 - 248 + 115 + 64 * (cell % 5) + 20,
                            300 - 126 + 15 + 44 * (cell / 5) + 20);
        }
        (void)Touch(400 - 20, 300 - 126 + 252 - 40);
        for (int i = 0; i < 30; i++)
            Pass(10);
        EXPECT_FALSE(Pane_Exist(pane));
        (void)TakeQueuedCommands();
    }
    static Lines Answer(int result)
    {
        (void)TakeQueuedCommands();
        const int pane = Pane_GetActiveID();
        EXPECT_NE(pane, 0);
        Pane_Quit(pane);
        SendMessage(LMSG_PANEQUIT, pane, result, 0, 0);
        Pass(1000); // until the key that led here looks released
        return TakeQueuedCommands();
    }
    // The server takes the first command of a kind ("Find") and says these.
    static Lines Reply(const Lines& sent, const std::string& kind, const Lines& texts)
    {
        for (const std::string& line : sent) {
            const std::string head = "put File@Access@" + kind + "#L";
            if (line.compare(0, head.size(), head) != 0)
                continue;
            const std::string path = "File@Access@" + kind;
            Tell(path + "#L" + std::to_string(atoi(line.c_str() + head.size())) + "," +
                 std::to_string(++ack));
            Lines out;
            for (const std::string& text : texts)
                for (const std::string& s :
                     Tell(path + "@Status#" + std::to_string(ack) + "," + text))
                    out.push_back(s);
            return out;
        }
        ADD_FAILURE() << "no " << kind << " in " << testing::PrintToString(sent);
        return {};
    }
    static Lines Found(const Lines& sent, const Lines& files, const std::string& root = ROOT)
    {
        Lines rows;
        for (const std::string& file : files)
            rows.push_back(root + file + ",Wed Nov 25 10:30:00 2026");
        rows.push_back("OK");
        return Reply(sent, "Find", rows);
    }
    static constexpr const char* ROOT = "/mnt/data/user/root/SYSTEM/";
    static Lines Copies(const Lines& sent) // source and target, below their roots
    {
        Lines out;
        for (const std::string& line : sent)
            if (line.find("put File@Access@Copy#") == 0)
                out.push_back(line.substr(line.find(',') + 1));
        return out;
    }
};
} // namespace

TEST_F(FileIdCopyPage, ShowsWhatTheDirectoriesHold)
{
    const Lines opened = Open(UNIT_PAGE);
    (void)Found(opened,
                {"SETUP/SWR000D001/A.DEV_0000.SST", "SNAPSHOT/SWR000D001/ME1/A.ME1_001.SSS",
                 "SNAPSHOT/SWR000D001/PP/A.PP_001.SSS", "MACRO/CTRLCPU/M.PNL_0001.PMR",
                 "FMEMFOL/ART/DME002D001/X.CH1_0001.DKF", "SETUP/SWR000D0011/A.DEV_0000.SST"});
    Lines rows;
    for (int i = 0; i < LS_GetNData(1); i++)
        rows.push_back(std::string(LS_GetData(1, i, 0)) + " " + LS_GetData(1, i, 1) + " " +
                       LS_GetData(1, i, 2));
    EXPECT_THAT(rows,
                ElementsAre("SWR000D001 SETUP 1", "SWR000D001 SNAPSHOT 2", "DME002D001 FMEMFOL 1"));
    EXPECT_TRUE(Disabled().count(BTN_IDCOPY_COPY)) << "for nobody";
}

TEST_F(FileIdCopyPage, OneUnitGoesToOthersOfItsClass)
{
    Select(24, {1, 2, 10}); // the last is no switcher
    (void)Open(UNIT_PAGE);
    EXPECT_EQ(Caption(BTN_IDCOPY_FROM), "SWR1");
    EXPECT_EQ(Caption(BTN_IDCOPY_TO), "2 Units");
    (void)Press(BTN_IDCOPY_COPY);
    EXPECT_THAT(Answer(2), IsEmpty());
    (void)Press(BTN_IDCOPY_COPY);
    const Lines made = Found(
        Answer(1), {"SNAPSHOT/SWR000D001/ME1/A.ME1_001.SSS", "SETUP/SWR003D001/A.DEV_0000.SST",
                    "SETUP/SWR000D001/../../OUT.DEV_0000.SST", "SETUP/SWR000D002/A.DEV_0000.SST",
                    "SETUP/DME000D001/A.DEV_0000.DST"});
    const Lines cleared = Reply(made, "Mkdir", {"NG(it is there)"});
    ASSERT_EQ(cleared.size(), 1u);
    EXPECT_THAT(cleared[0], testing::EndsWith(",MYHOST:/mnt/usb/usb1/SYSTEM"));
    const Lines sent = Reply(cleared, "Rmdir", {"OK"});
    const std::string from = std::string("MYHOST:") + ROOT;
    const std::string to = ",MYHOST:/mnt/usb/usb1/SYSTEM/";
    EXPECT_THAT(Copies(sent), ElementsAre(from + "SNAPSHOT/SWR000D001/ME1/A.ME1_001.SSS" + to +
                                              "SNAPSHOT/SWR000D002/ME1/A.ME1_001.SSS",
                                          from + "SNAPSHOT/SWR000D001/ME1/A.ME1_001.SSS" + to +
                                              "SNAPSHOT/SWR000D003/ME1/A.ME1_001.SSS",
                                          from + "SETUP/SWR003D001/A.DEV_0000.SST" + to +
                                              "SETUP/SWR003D002/A.DEV_0000.SST",
                                          from + "SETUP/SWR003D001/A.DEV_0000.SST" + to +
                                              "SETUP/SWR003D003/A.DEV_0000.SST"));
}

TEST_F(FileIdCopyPage, AGroupGoesWithAllItsUnits)
{
    Select(25, {11});
    (void)Open(GROUP_PAGE);
    EXPECT_EQ(Caption(BTN_IDCOPY_TO), "Select");
    (void)Press(BTN_IDCOPY_FROM);
    EXPECT_THAT(Answer(DME2 + 2), IsEmpty());
    EXPECT_EQ(Caption(BTN_IDCOPY_FROM), "DME\nGroup 4");
    EXPECT_EQ(Caption(BTN_IDCOPY_TO), "DME\nGroup 2");
    (void)Press(BTN_IDCOPY_COPY);
    const Lines made = Found(Answer(1), {"EFFECT/DME004D001/CH1/A.CH1_0001.DKF",
                                         "EFFECT/DME004D002/CH1/A.CH1_0001.DKF",
                                         "EFFECT/DME000D004/CH1/A.CH1_0001.DKF"});
    const Lines sent = Reply(Reply(made, "Mkdir", {"OK"}), "Rmdir", {"OK"});
    EXPECT_THAT(Copies(sent), ElementsAre(HasSubstr("/SYSTEM/EFFECT/DME002D001/CH1/"),
                                          HasSubstr("/SYSTEM/EFFECT/DME002D002/CH1/")));
}

TEST_F(FileIdCopyPage, OfTheFilesOfARegisterTheNewestIsCopied)
{
    Select(24, {1, 2});
    (void)Open(UNIT_PAGE);
    for (int round = 0; round < 2; round++) { // nothing is left of a copy that was given up
        (void)Press(BTN_IDCOPY_COPY);
        Lines rows;
        const auto file = [&](const std::string& name, int hour) {
            rows.push_back(ROOT + name + ",Wed Nov 25 " + std::to_string(hour) + ":30:00 2026");
        };
        for (const char* place : {"SNAPSHOT/SWR000D001/ME1/", "SNAPSHOT/SWR001D001/ME1/"}) {
            file(place + std::string("OLD.ME1_001.SSS"), 10);
            file(place + std::string("NEW.ME1_001.SSS"), 12);
            file(place + std::string("MID.ME1_001.SSS"), 11);
            file(place + std::string("OTHER.ME1_002.SSS"), 10);
        }
        file("SNAPSHOT/SWR000D001/ME1/A.ME1_SUB_001.SSS", 12);
        file("SNAPSHOT/SWR000D001/ME1/B.ME1_SUB_001.SSS", 11);
        // What has no number, or is known by its name.
        for (const char* name : {"a.TIF.SUB", "b.TIF.SUB", "a.x_001.TIF", "b.x_001.TIF"})
            file(std::string("FRAMEMEM/SWR000D001/") + name, 10);
        for (const char* name : {"Ma.FMEM_001.SFM", "Mb.FMEM_001.SFM"})
            file(std::string("FMEMFOL/DEFAULT/SWR000D001/") + name, 10);
        rows.push_back("OK");
        const Lines made = Reply(Answer(1), "Find", rows);
        if (round == 0) {
            (void)Answer(1); // cancelled
            continue;
        }
        Strings names;
        for (const std::string& copy : Copies(Reply(Reply(made, "Mkdir", {"OK"}), "Rmdir", {"OK"})))
            if (copy.find("D002", copy.find(',')) != std::string::npos)
                names.push_back(copy.substr(copy.rfind('/') + 1));
        EXPECT_THAT(names, ElementsAre("NEW.ME1_001.SSS", "OTHER.ME1_002.SSS", "NEW.ME1_001.SSS",
                                       "OTHER.ME1_002.SSS", "A.ME1_SUB_001.SSS", "a.TIF.SUB",
                                       "b.TIF.SUB", "a.x_001.TIF", "b.x_001.TIF", "Ma.FMEM_001.SFM",
                                       "Mb.FMEM_001.SFM"));
    }
}

TEST_F(FileIdCopyPage, NothingIsClearedForNothing)
{
    Select(24, {1});
    (void)Open(UNIT_PAGE);
    (void)Press(BTN_IDCOPY_COPY);
    EXPECT_THAT(Found(Answer(1), {"SETUP/SWR000D005/A.DEV_0000.SST"}), IsEmpty());
    EXPECT_THAT(Answer(1), IsEmpty()) << "told that there is nothing";

    (void)Press(BTN_IDCOPY_COPY);
    const Lines made = Found(Answer(1), {"SETUP/SWR000D001/A.DEV_0000.SST"});
    EXPECT_THAT(Reply(Reply(made, "Mkdir", {"OK"}), "Rmdir", {"NG(Busy)"}), IsEmpty());
    EXPECT_NE(Pane_GetActiveID(), 0) << "the server's reason";
    EXPECT_THAT(Answer(1), IsEmpty());

    (void)Press(BTN_IDCOPY_COPY);
    const std::string row = std::string(ROOT) + "SETUP/SWR000D001/A.DEV_0000.SST";
    EXPECT_THAT(Reply(Answer(1), "Find", {row + ",Wed Nov 25 10:30:00 2026", "NG(Drive Error)"}),
                IsEmpty());
    EXPECT_THAT(Answer(1), IsEmpty());

    // Cancelled before the target is touched.
    (void)Press(BTN_IDCOPY_COPY);
    const Lines late = Found(Answer(1), {"SETUP/SWR000D001/A.DEV_0000.SST"});
    EXPECT_THAT(Answer(1), IsEmpty());
    EXPECT_THAT(Reply(late, "Mkdir", {"OK"}), IsEmpty());

    // The same directory at both sides.
    (void)Press(BTN_IDCOPY_DEVICE_B);
    (void)Reply(Answer(FILE_LOCAL + 1), "ListDir", {"OK"});
    (void)Found(Answer(1), {});
    (void)Press(BTN_IDCOPY_COPY);
    EXPECT_THAT(Answer(1), IsEmpty());
}
