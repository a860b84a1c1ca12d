#include "pc_file_dual.h"
#include "pc_file_side.h"
#include "server_page.h"

struct FilePictures : ServerPage {
    static void Registers()
    {
        int no = 1;
        for (const char* name :
             {"OPENING", "HEADLINE", "OTS L", "OTS R", "SPLIT 2", "WEATHER", "SPORT IN"}) {
            const std::string row = std::to_string(no) + "," + name + ",,,,,";
            Tell("Snapshot@Snapshot@Attribute@M/E-1@List#" + row);
            if (no % 2)
                Tell("Snapshot@Snapshot@Attribute@P/P@List#" + row);
            no += no == 3 ? 2 : 1;
        }
    }
    static void Frames()
    {
        const std::string memory = "16@Frame Mem@Status@";
        Tell(memory + "Max Register#200");
        int number = 0;
        for (const char* name : {"Mlogo", "Slogo", "Mskyline", "Mnews0001", "Mnews0002", "Mbeach"})
            Tell(memory + "File Name Sense#" + std::to_string(++number) + ",81," + name);
        Tell(memory + "Folder Name Sense#0,Default.,1,Sport,2,Graphics,3,News");
        TellAll("Frame Mem@Folder@Move Still#0,", {"Mlogo,2", "Slogo,2", "Mbeach,2"});
    }
    static void Select(int list, const std::vector<int>& rows)
    {
        LS_SetMS(list, 1);
        for (const int row : {0, 1, 2, 3, 4, 5})
            LS_SetSelected(list, row, 0, std::ranges::count(rows, row) != 0);
    }
};

TEST_F(FilePictures, DualPage)
{
    Registers();
    (void)Reply(Open(0x71310000), "Access@Find",
                Below("MYHOST:/mnt/data/user/root/SYSTEM/SNAPSHOT/SWR000D001/",
                      {"ME1/MORNING.ME1_002.SSS", "ME1/NEWS AT TEN.ME1_003.SSS",
                       "ME1/LATE.ME1_004.SSS", "ME2/NOT SEEN.ME2_006.SSS"}));
    Select(1, {1, 2, 4});
    LS_SetNowLine(2, 6);
    Paint();
    EXPECT_TRUE(MatchesGolden("file_dual"));
}

TEST_F(FilePictures, DetailPage)
{
    Registers();
    (void)Reply(Open(0x71310000), "Access@Find", {});
    Press(BTN_FILE_DETAIL_A);
    GL_CreatePage = 0;
    EXPECT_EQ(CreatePage(0x71310001), 0);
    Paint();
    EXPECT_TRUE(MatchesGolden("file_detail"));
}

TEST_F(FilePictures, FrameMemoryPage)
{
    Frames();
    (void)Reply(Open(0x71510000), "Access@Find",
                Below("MYHOST:/mnt/data/user/root/SYSTEM/FMEMFOL/DEFAULT/SWR000D001/",
                      {"Mclock.FMEM_001.SFM", "Mlogo.FMEM_012.SFM", "Sbg2.FMEX_1234.SFA"}));
    Pass(100);
    (void)Touch(180, 124 + 22 * 2 + 10); // Graphics
    Pass(100);
    Select(1, {4, 5});
    Paint();
    EXPECT_TRUE(MatchesGolden("file_frame"));
}

TEST_F(FilePictures, ImportExportPage)
{
    Frames();
    for (const std::string& line : Open(0x71610000)) {
        const bool is_upper = line.ends_with("*.TIF"); // one spelling of the extension is enough
        (void)Serve(line, "Access@Find",
                    is_upper ? Below("MYHOST:/mnt/usb/usb1/SYSTEM/",
                                     {"bug.TIF", "bug.TIF.SUB", "intro#000000.TIF",
                                      "lower third left.TIF", "skyline.TIF"})
                             : Lines{});
    }
    Select(2, {0, 1, 4});
    Paint();
    EXPECT_TRUE(MatchesGolden("file_xport"));
}
