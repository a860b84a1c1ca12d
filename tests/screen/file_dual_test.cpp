// The pages of two lists in the File menu, filled and partly selected, and a detail page.
#include "a_ls.h"
#include "pc_file_dual.h"
#include "pc_file_side.h"
#include "table_page.h"

namespace
{
struct FilePictures : TablePage {
    static void Paint()
    {
        for (int i = 0; i < 4; i++)
            Pass(1000);
    }
    static void Answer(const Lines& sent, const Lines& files)
    {
        Answer(sent, "MYHOST:/mnt/data/user/root/SYSTEM/SNAPSHOT/SWR000D001/", files);
    }
    static void Answer(const Lines& sent, const std::string& folder, const Lines& files)
    {
        for (const std::string& line : sent) {
            if (line.find("Access@Find#L") == std::string::npos)
                continue;
            const std::string label =
                line.substr(line.find("#L") + 2, line.find(',') - line.find("#L") - 2);
            Tell("File@Access@Find#L" + label + ",77");
            for (const std::string& file : files)
                Tell("File@Access@Find@Status#77," + folder + file + ",Wed Nov 25 10:30:00 2026");
            Tell("File@Access@Find@Status#77,OK");
        }
    }
    static void Registers()
    {
        static const char* const names[] = {"OPENING", "HEADLINE", "OTS L",   "OTS R",
                                            "SPLIT 2", "WEATHER",  "SPORT IN"};
        int no = 1;
        for (const char* name : names) {
            Tell("Snapshot@Snapshot@Attribute@M/E-1@List#" + std::to_string(no) + "," + name +
                 ",,,,,");
            if (no % 2)
                Tell("Snapshot@Snapshot@Attribute@P/P@List#" + std::to_string(no) + "," + name +
                     ",,,,,");
            no += no == 3 ? 2 : 1;
        }
    }
};
} // namespace

TEST_F(FilePictures, DualPage)
{
    DeviceStructure();
    Registers();
    Answer(Open(0x71310000), {"ME1/MORNING.ME1_002.SSS", "ME1/NEWS AT TEN.ME1_003.SSS",
                              "ME1/LATE.ME1_004.SSS", "ME2/NOT SEEN.ME2_006.SSS"});
    LS_SetMS(1, 1);
    for (const int row : {0, 1, 2, 4})
        LS_SetSelected(1, row, 0, row != 0);
    LS_SetNowLine(2, 6);
    Paint();
    EXPECT_TRUE(MatchesGolden("file_dual"));
}

TEST_F(FilePictures, DetailPage)
{
    DeviceStructure();
    Registers();
    Answer(Open(0x71310000), {});
    Press(BTN_FILE_DETAIL_A);
    GL_CreatePage = 0;
    EXPECT_EQ(CreatePage(0x71310001), 0);
    Paint();
    EXPECT_TRUE(MatchesGolden("file_detail"));
}

// The newer frame memory, with a few registers.
static void Frames(std::initializer_list<const char*> names,
                   std::initializer_list<const char*> in_folder)
{
    TablePage::Tell("16@Frame Mem@Status@Max Register#200");
    int number = 0;
    for (const char* name : names)
        TablePage::Tell("16@Frame Mem@Status@File Name Sense#" + std::to_string(++number) + ",81," +
                        name);
    TablePage::Tell("16@Frame Mem@Status@Folder Name Sense#0,Default.,1,Sport,2,Graphics,3,News");
    for (const char* name : in_folder)
        TablePage::Tell("Frame Mem@Folder@Move Still#0," + std::string(name) + ",2");
}

// Folders on both sides, another than the first one open at the left.
TEST_F(FilePictures, FrameMemoryPage)
{
    DeviceStructure();
    Frames({"Mlogo", "Slogo", "Mskyline", "Mnews0001", "Mnews0002", "Mbeach"},
           {"Mlogo", "Slogo", "Mbeach"});
    Answer(Open(0x71510000), "MYHOST:/mnt/data/user/root/SYSTEM/FMEMFOL/DEFAULT/SWR000D001/",
           {"Mclock.FMEM_001.SFM", "Mlogo.FMEM_012.SFM", "Sbg2.FMEX_1234.SFA"});
    Pass(100);
    (void)Touch(180, 124 + 22 * 2 + 10); // Graphics
    Pass(100);
    LS_SetMS(1, 1);
    for (const int row : {1, 4, 5})
        LS_SetSelected(1, row, 0, row != 1);
    Paint();
    EXPECT_TRUE(MatchesGolden("file_frame"));
}

TEST_F(FilePictures, ImportExportPage)
{
    DeviceStructure();
    Frames({"Mlogo", "Slogo", "Mskyline", "Mnews0001", "Mnews0002", "Mbeach"}, {});
    for (const std::string& line : Open(0x71610000)) {
        const bool is_upper = line.ends_with("*.TIF"); // one spelling of the extension is enough
        Answer({line}, "MYHOST:/mnt/usb/usb1/SYSTEM/",
               is_upper ? Lines{"bug.TIF", "bug.TIF.SUB", "intro#000000.TIF",
                                "lower third left.TIF", "skyline.TIF"}
                        : Lines{});
    }
    LS_SetMS(2, 1);
    for (const int row : {0, 1, 4})
        LS_SetSelected(2, row, 0, 1);
    LS_SetSelected(2, 3, 0, 0);
    Paint();
    EXPECT_TRUE(MatchesGolden("file_xport"));
}
