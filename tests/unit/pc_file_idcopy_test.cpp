#include "pc_file_idcopy.h"
#include "server_page.h"

using testing::EndsWith;

constexpr uint32_t UNIT_PAGE = 0x71720000;
constexpr uint32_t GROUP_PAGE = 0x71730000;
constexpr int DME2 = 1297; // region id
const std::string ROOT = "/mnt/data/user/root/SYSTEM/";

struct FileIdCopyPage : ServerPage {
    void SetUp() override
    {
        ServerPage::SetUp();
        FileIdCopy_Reset();
        for (const int grp : {24, 25})
            Select(grp, {});
    }
    void TearDown() override
    {
        (void)Leave();
        FileIdCopy_Reset();
        ServerPage::TearDown();
    }
    // The units of the selector, as "Enter" leaves them.
    static void Select(int grp, std::set<int> cells)
    {
        const int pane = Pane_GetActiveID() ? Pane_GetActiveID() : PaneRegion_Create(grp, 0);
        for (int cell = 0; cell < 20; cell++) {
            const int id = (cell < 10 ? 1280 : 1286) + cell;
            if ((PaneRegion_IsSelected(grp, id) != 0) != (cells.count(cell) != 0))
                (void)Touch(400 - 248 + 115 + 64 * (cell % 5) + 20,
                            300 - 126 + 15 + 44 * (cell / 5) + 20);
        }
        (void)Touch(400 - 20, 300 - 126 + 252 - 40);
        Paint();
        EXPECT_FALSE(Pane_Exist(pane));
        (void)TakeQueuedCommands();
    }
    // The copy is confirmed, and the source searched.
    static Lines Found(const Lines& files, const char* end = "OK")
    {
        (void)Press(BTN_IDCOPY_COPY);
        return Reply(Answer(1), "Access@Find", Below(ROOT, files), end);
    }
    // The target is cleared; the copies that follow, "source,target".
    static Lines Copies(const Lines& found, const char* end = "OK")
    {
        const Lines cleared = Reply(found, "Access@Mkdir", {}, "NG(it is there)");
        EXPECT_THAT(cleared, ElementsAre(EndsWith(",MYHOST:/mnt/usb/usb1/SYSTEM")));
        Lines copies;
        for (const std::string& line : Reply(cleared, "Access@Rmdir", {}, end))
            if (line.starts_with("put File@Access@Copy#"))
                copies.push_back(line.substr(line.find(',') + 1));
        return copies;
    }
};

TEST_F(FileIdCopyPage, ShowsWhatTheDirectoriesHold)
{
    (void)Reply(
        Open(UNIT_PAGE), "Access@Find",
        Below(ROOT, {"SETUP/SWR000D001/A.DEV_0000.SST", "SNAPSHOT/SWR000D001/ME1/A.ME1_001.SSS",
                     "SNAPSHOT/SWR000D001/PP/A.PP_001.SSS", "MACRO/CTRLCPU/M.PNL_0001.PMR",
                     "FMEMFOL/ART/DME002D001/X.CH1_0001.DKF", "SETUP/SWR000D0011/A.DEV_0000.SST"}));
    Lines rows;
    for (int i = 0; i < LS_GetNData(1); i++)
        rows.push_back(Cells(1, i, 0, 3));
    EXPECT_THAT(rows,
                ElementsAre("SWR000D001|SETUP|1", "SWR000D001|SNAPSHOT|2", "DME002D001|FMEMFOL|1"));
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
    const Lines sent =
        Copies(Found({"SNAPSHOT/SWR000D001/ME1/A.ME1_001.SSS", "SETUP/SWR003D001/A.DEV_0000.SST",
                      "SETUP/SWR000D001/../../OUT.DEV_0000.SST", "SETUP/SWR000D002/A.DEV_0000.SST",
                      "SETUP/DME000D001/A.DEV_0000.DST"}));
    const std::string from = "MYHOST:" + ROOT;
    const std::string to = ",MYHOST:/mnt/usb/usb1/SYSTEM/";
    EXPECT_THAT(sent, ElementsAre(from + "SNAPSHOT/SWR000D001/ME1/A.ME1_001.SSS" + to +
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
    (void)Open(GROUP_PAGE);
    EXPECT_EQ(Caption(BTN_IDCOPY_TO), "Select");
    (void)Press(BTN_IDCOPY_TO);
    Select(25, {11});
    (void)Press(BTN_IDCOPY_FROM);
    (void)Touch(400 - 248 + 115 + 64 * 3 + 20, 220 - 101 + 15 + 44 * 2 + 20); // one is enough
    Paint();
    EXPECT_EQ(Caption(BTN_IDCOPY_FROM), "DME\nGroup 4");
    EXPECT_EQ(Caption(BTN_IDCOPY_TO), "DME\nGroup 2");
    const Lines sent = Copies(
        Found({"EFFECT/DME004D001/CH1/A.CH1_0001.DKF", "EFFECT/DME004D002/CH1/A.CH1_0001.DKF",
               "EFFECT/DME000D004/CH1/A.CH1_0001.DKF"}));
    EXPECT_THAT(sent, ElementsAre(HasSubstr("/SYSTEM/EFFECT/DME002D001/CH1/"),
                                  HasSubstr("/SYSTEM/EFFECT/DME002D002/CH1/")));
}

TEST_F(FileIdCopyPage, OfTheFilesOfARegisterTheNewestIsCopied)
{
    Select(24, {1, 2});
    (void)Open(UNIT_PAGE);
    Lines files;
    const auto file = [&](const std::string& name, int hour) {
        files.push_back(name + ",Wed Nov 25 " + std::to_string(hour) + ":30:00 2026");
    };
    for (const std::string place : {"SNAPSHOT/SWR000D001/ME1/", "SNAPSHOT/SWR001D001/ME1/"}) {
        file(place + "OLD.ME1_001.SSS", 10);
        file(place + "NEW.ME1_001.SSS", 12);
        file(place + "MID.ME1_001.SSS", 11);
        file(place + "OTHER.ME1_002.SSS", 10);
    }
    file("SNAPSHOT/SWR000D001/ME1/A.ME1_SUB_001.SSS", 12);
    file("SNAPSHOT/SWR000D001/ME1/B.ME1_SUB_001.SSS", 11);
    // What has no number, or is known by its name.
    for (const char* name : {"a.TIF.SUB", "b.TIF.SUB", "a.x_001.TIF", "b.x_001.TIF"})
        file(std::string("FRAMEMEM/SWR000D001/") + name, 10);
    for (const char* name : {"Ma.FMEM_001.SFM", "Mb.FMEM_001.SFM"})
        file(std::string("FMEMFOL/DEFAULT/SWR000D001/") + name, 10);
    (void)Found(files);
    (void)Answer(1); // cancelled: nothing is left of it
    Strings names;
    for (const std::string& copy : Copies(Found(files)))
        if (copy.find("D002", copy.find(',')) != std::string::npos)
            names.push_back(copy.substr(copy.rfind('/') + 1));
    EXPECT_THAT(names,
                ElementsAre("NEW.ME1_001.SSS", "OTHER.ME1_002.SSS", "NEW.ME1_001.SSS",
                            "OTHER.ME1_002.SSS", "A.ME1_SUB_001.SSS", "a.TIF.SUB", "b.TIF.SUB",
                            "a.x_001.TIF", "b.x_001.TIF", "Ma.FMEM_001.SFM", "Mb.FMEM_001.SFM"));
}

TEST_F(FileIdCopyPage, NothingIsClearedForNothing)
{
    const Lines mine = {"SETUP/SWR000D001/A.DEV_0000.SST"};
    Select(24, {1});
    (void)Open(UNIT_PAGE);
    EXPECT_THAT(Found({"SETUP/SWR000D005/A.DEV_0000.SST"}), IsEmpty());
    EXPECT_THAT(Answer(1), IsEmpty()) << "told that there is nothing";

    EXPECT_THAT(Copies(Found(mine), "NG(Busy)"), IsEmpty());
    EXPECT_THAT(Answer(1), IsEmpty()) << "the server's reason";

    EXPECT_THAT(Found(mine, "NG(Drive Error)"), IsEmpty());
    EXPECT_THAT(Answer(1), IsEmpty());

    // Cancelled before the target is touched.
    const Lines late = Found(mine);
    EXPECT_THAT(Answer(1), IsEmpty());
    EXPECT_THAT(Reply(late, "Access@Mkdir", {}), IsEmpty());

    // The same directory at both sides.
    (void)Press(BTN_IDCOPY_DEVICE_B);
    (void)Reply(Answer(FILE_LOCAL + 1), "Access@ListDir", {});
    (void)Reply(Answer(1), "Access@Find", {});
    EXPECT_EQ(Caption(BTN_IDCOPY_DEVICE_B), "Local Drive");
    (void)Press(BTN_IDCOPY_COPY);
    EXPECT_THAT(Answer(1), IsEmpty());
    (void)Press(BTN_IDCOPY_DEVICE_A);
    EXPECT_NE(Pane_GetActiveID(), 0);
}
