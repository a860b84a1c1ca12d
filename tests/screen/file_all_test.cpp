#include "pc_file_all.h"
#include "server_page.h"

using FileAllPictures = ServerPage;

TEST_F(FileAllPictures, PartOfTheCategoriesAndACopyWithFailures)
{
    constexpr Rect work_area = {97, 73, 702, 526}; // the tabs belong to all file pages
    (void)Open(0x71110000);
    for (const int row : {0, 1, 2, 3, 12})
        (void)Press(BtnOfAllCategory(row));
    (void)Tell("Info@Operation Setup Data@Clear Before Load#2");
    Paint();
    EXPECT_TRUE(MatchesGolden("file_all", work_area));

    (void)Press(BTN_ALL_DEVICE_A);
    (void)Reply(Answer(FILE_NETWORK + 1), "Access@ListDir", {});
    (void)Answer(1);
    for (const int row : {4, 6, 7, 8, 9, 10, 11, 13})
        (void)Press(BtnOfAllCategory(row));
    Paint();
    (void)Press(BTN_ALL_L_TO_R);
    Pass(10);
    const Lines found = Below("/var/nfs/user/root/SYSTEM/SNAPSHOT/SWR000D001/ME1/",
                              {"OPENING.ME1_001.SSS", "HEADLINE.ME1_002.SSS", "OTS L.ME1_003.SSS",
                               "OTS R.ME1_004.SSS", "WEATHER.ME1_005.SSS"});
    for (int i = 0; i < 20 && !ListOf(FILEWORK_ACCESS_COPYLIST); i++) {
        for (const std::string& line : TakeQueuedCommands())
            (void)Serve(line, "Access@Find", found);
        Pass(10);
    }
    const Lines copies = TakeQueuedCommands();
    ASSERT_EQ(copies.size(), found.size());
    (void)Reply({copies[0], copies[2]}, "Access@Copy", {});
    (void)Reply({copies[1]}, "Access@Copy", {}, "NG(No Space Left)");
    (void)Reply({copies[3]}, "Access@Copy", {}, "NG(File Not Exist)");
    Paint();
    EXPECT_TRUE(MatchesGolden("file_all_copy", work_area));
}
