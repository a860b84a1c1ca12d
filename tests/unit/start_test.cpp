// What is made ready before the first page.
#include "device.h"
#include "global.h"
#include "harness.h"
#include "i2c.h"
#include "start.h"
#include "text.h"
#include <cstring>
#include <filesystem>
#include <fstream>

TEST(Start, TheEepromSaysWhichUnitThisIsAndWhereItsHub)
{
    constexpr char IMAGE[] = "/dev/i2c-0";
    constexpr unsigned char unit[] = {10, 130, 1, 9}, hub[] = {192, 168, 1, 70}, port[] = {0x25, 8};
    const std::string before = FileText(IMAGE);
    (void)I2cEepromService_WriteElem(EEPROM_IP_ADDR_ETH0, 4, unit);
    (void)I2cEepromService_WriteElem(EEPROM_SHP_ADDR, 4, hub);
    (void)I2cEepromService_WriteElem(EEPROM_SHP_PORT, 2, port);
    Start_Identity();
    EXPECT_EQ(SYS_GroupID, 2);
    EXPECT_EQ(SYS_UnitID, 9);
    EXPECT_STREQ(SYS_StatusHubAddress, "192.168.1.70");
    EXPECT_EQ(SYS_StatusHubPort, 0x2508);
    EXPECT_STREQ(SYS_SHP_MyUserID, "MENU9");

    std::filesystem::resize_file(IMAGE, 0); // nothing can be read
    Start_Identity();
    EXPECT_STREQ(SYS_StatusHubAddress, "192.168.111.1");
    EXPECT_EQ(SYS_StatusHubPort, 9500);
    EXPECT_EQ(SYS_UnitID, 9) << "as it was";
    std::ofstream(IMAGE, std::ios::binary) << before;
    Start_Identity();
}

// In a process of its own, as it is done once in the life of one.
TEST(Start, ADiskThatCannotBeUsedIsReplacedByMemoryButNotWhenDebugging)
{
    constexpr char MARK[] = "/mnt/data/.HARDDISK_IS_AVAILABLE_1.0.0";
    std::ofstream(MARK) << "\n"; // of a disk that has gone since
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto start = [](const char* ini) {
        const std::filesystem::path there = "/tmp/start";
        std::filesystem::create_directory(there);
        for (const auto& file : std::filesystem::directory_iterator("."))
            if (file.path().filename() != "tm3.ini")
                create_symlink(absolute(file.path()), there / file.path().filename());
        std::ofstream(there / "tm3.ini") << FileText("tm3.ini") << ini;
        current_path(there);
        setenv("SDL_VIDEODRIVER", "dummy", 1);
        Start_Init(32);
        std::filesystem::remove_all(there);
        const bool is_ready = strcmp(DEV_Pnl[0].name, "PNL1") == 0 && BUS_XptSrc[0];
        _exit((is_ready ? 10 : 0) + GL_IsRamDisk);
    };
    EXPECT_EXIT(start(""), testing::ExitedWithCode(11), "");
    EXPECT_EXIT(start("DebugMode=1\n"), testing::ExitedWithCode(10), "");
    std::filesystem::remove(MARK);
}
