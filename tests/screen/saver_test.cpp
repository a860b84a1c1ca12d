// One frame of each pattern of the screen saver, and its setup page.
#include "a_ba.h"
#include "saver.h"
#include "table_page.h"
#include "text.h"
#include <cstdlib>
#include <filesystem>

struct SaverPicture : TablePage {
    void SetUp() override
    {
        TablePage::SetUp();
        ASSERT_EQ(CreatePage(PAGE_TOP), 0);
        GL_ScreenSaverInterval = 1;
        SYS_RefSwrType = DEVTYPE_KTR40E;
        CopyText(GL_Scr_disp_name[1], "STUDIO 4 GALLERY");
        CopyText(GL_Scr_disp_name[2], "OB UNIT");
        srand(4); // the place of the fading text
    }
    static void Run(int mode, int passes)
    {
        EndScreenSaver();
        SDL_ShowCursor(0);
        GL_ScreenSaverPTN_Mode = mode;
        ScreenSaver(1001);
        for (int n = 1; n < passes; n++)
            ScreenSaver(10);
    }
};

TEST_F(SaverPicture, OneFrameOfEachPatternOfTexts)
{
    BA_SetUsbAccess(1);
    for (int mode : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 17}) {
        Run(mode, mode == 0 || mode == 10 || mode == 17 ? 255 : 830);
        EXPECT_TRUE(MatchesGolden("saver_" + std::to_string(mode)));
    }
}

// Two pictures of the product: wipe pictures are small, which shows that the ground is cleared.
TEST_F(SaverPicture, OneFrameOfEachPatternOfPictures)
{
    const std::string folder = "/tmp/saver_pictures";
    std::filesystem::create_directory(folder);
    std::filesystem::copy_file("graphics/ptn/65.bmp", folder + "/SSrc_0.bmp");
    std::filesystem::copy_file("graphics/ptn/241.bmp", folder + "/SSrc_4.bmp");
    CopyText(GL_Scr_disp_ImagePath, folder.c_str());
    GL_ScreenSaverPath_Time = 1;
    for (int mode : {12, 13, 14, 15, 16}) {
        Run(mode, 1);
        for (int n = 0; n < (mode == 12 ? 0 : 126); n++)
            ScreenSaver(10);
        EXPECT_TRUE(MatchesGolden("saver_" + std::to_string(mode), {0, 0, 99, 59}));
    }
    std::filesystem::remove_all(folder);
}

TEST_F(SaverPicture, SetupPage)
{
    ASSERT_EQ(CreatePage(0x99930000), 0);
    Pass(10);
    Pass(10);
    EXPECT_TRUE(MatchesGolden("saver_setup"));
}
