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
        for (const std::string& line : sent) {
            if (line.find("Access@Find#L") == std::string::npos)
                continue;
            const std::string label =
                line.substr(line.find("#L") + 2, line.find(',') - line.find("#L") - 2);
            Tell("File@Access@Find#L" + label + ",77");
            for (const std::string& file : files)
                Tell("File@Access@Find@Status#77,MYHOST:/mnt/data/user/root/SYSTEM/SNAPSHOT/"
                     "SWR000D001/" +
                     file + ",Wed Nov 25 10:30:00 2026");
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
