#include "global.h"
#include "harness.h"
#include "i2c.h"
#include "version.h"
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace
{
void Fpga(const unsigned char (&version)[4], const unsigned char (&date)[4])
{
    i2c_address_set(82);
    ASSERT_EQ(i2c_open(), 0);
    EXPECT_EQ(i2c_wr(20, 4, version), 4);
    EXPECT_EQ(i2c_wr(24, 4, date), 4);
    i2c_close();
}
} // namespace

TEST(Version, FilesAndFpgaBecomeRowsAndAFile)
{
    std::ofstream("/root/version_app.dat") << "Version 5.10#3 (Mar.01.2013)\nsecond line\n";
    std::ofstream("/root/version_linux.dat") << "Version 2.00\tx\n";
    std::filesystem::remove("/root/version_uboot.dat");
    std::filesystem::remove_all("/var/tmp/version2");
    std::filesystem::remove_all("/var/run/XPP");
    Fpga({0x01, 0x23, 0x0A, 0}, {0x20, 0x13, 0x12, 0x31});
    SYS_UnitID = 7;
    int said[2];
    ASSERT_EQ(pipe(said), 0);
    const int before = dup(STDERR_FILENO);
    dup2(said[1], STDERR_FILENO);
    GetMenuDetailInfo();
    dup2(before, STDERR_FILENO);
    close(before);
    close(said[1]);
    std::string complaints;
    for (char c; read(said[0], &c, 1) == 1;) // until the last that it has started has ended
        complaints += c;
    close(said[0]);
    EXPECT_THAT(complaints, HasSubstr("/usr/bin/version-sync")) << "the desk has none";

    EXPECT_STREQ(GL_MenuDetailInfo[0], "Version 5.10 (Mar.01.2013)");
    EXPECT_STREQ(GL_Version, "5.10");
    EXPECT_STREQ(GL_VerTime, "Mar.01.2013");
    EXPECT_STREQ(GL_MenuDetailInfoFull[1], "Version 2.00") << "cut at the control character";
    EXPECT_STREQ(GL_MenuDetailInfo[3], "Version 1.23 (Dec.31.2013)");
    EXPECT_EQ(FileText("/var/tmp/version2/GUI7"),
              "QRD-X62: Version 5.10#3 (Mar.01.2013)\n"
              "QRD-X62-MENU-APP: Version 5.10#3 (Mar.01.2013)\n"
              "QRD-X62-MENU-LINUX: Version 2.00\n"
              "QRD-X62-MENU-UBOOT: --\n"
              "QRD-X62-MENU-FPGA: Version 1.23#A (Dec.31.2013)\n");
    EXPECT_TRUE(std::filesystem::exists("/var/run/XPP/version_updated"));
}
