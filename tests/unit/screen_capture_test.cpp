#include "global.h"
#include "harness.h"
#include "page.h"
#include "process.h"
#include "screen_capture.h"
#include "text.h"
#include <sys/stat.h>

TEST(ScreenCapture, FillsNineNamesOfThePageAndLeavesWhatIsThere)
{
    Harness_Reset();
    Harness_Video();
    static constexpr char dir[] = "/var/tmp/captures";
    GL_NowPage = 0x73160012;
    CopyText(GL_ImportDataPath, dir);
    Screen_Capture(); // the stick is missing
    EXPECT_FALSE(FileExist(dir));
    mkdir(dir, 0755);
    const auto name = [](int n) {
        return std::string(dir) + "/menuss_7316_12_" + std::to_string(n) + ".bmp";
    };
    FILE* taken = fopen(name(2).c_str(), "w");
    ASSERT_NE(taken, nullptr);
    fputs("kept", taken);
    fclose(taken);
    for (int n = 0; n < 9; n++)
        Screen_Capture();
    for (int n = 1; n <= 9; n++)
        EXPECT_EQ(FileText(name(n)).substr(0, 2), n == 2 ? "ke" : "BM") << n;
    EXPECT_FALSE(FileExist(name(10).c_str()));

    // A long import path is a path like any other.
    const std::string deep = std::string(dir) + "/" + std::string(100, 'x');
    mkdir(deep.c_str(), 0755);
    CopyText(GL_ImportDataPath, deep.c_str());
    Screen_Capture();
    EXPECT_TRUE(FileExist((deep + "/menuss_7316_12_1.bmp").c_str()));
    Harness_Reset();
}
