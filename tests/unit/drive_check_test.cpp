#include "drive_check.h"
#include "global.h"
#include "harness.h"
#include "pane.h"
#include <cstdio>
#include <unistd.h>

TEST(DriveCheck, AMountIsThereWhenTheSecondLineNamesADevice)
{
    constexpr char file[] = "/var/tmp/drive_check";
    static const std::pair<const char*, int> cases[] = {
        {"Filesystem 1M-blocks\n/dev/sda3 1000 10 990 1% /mnt/data\n", 0},
        {"Filesystem 1M-blocks\n/dev/sda3", 0},
        {"Filesystem 1M-blocks\ntmpfs 1000 10 990 1% /\n", 1}, // the mount point lies elsewhere
        {"Filesystem 1M-blocks\n", 1},
        {"/dev/sda3 1000\n", 1}, // the head line is not looked at
        {"a\nb\n/dev/sda3\n", 1},
        {"", 1},
    };
    for (const auto& [text, is_missing] : cases) {
        FILE* fp = fopen(file, "w");
        ASSERT_NE(fp, nullptr);
        fputs(text, fp);
        fclose(fp);
        EXPECT_EQ(DriveCheck_IsMissing(file), is_missing) << text;
    }
    unlink(file);
    EXPECT_EQ(DriveCheck_IsMissing(file), 1);
}

TEST(DriveCheck, TheMessageTellsWhichPartIsGone)
{
    static const struct {
        bool emergency;
        int data, sys;
        std::string title, says;
    } cases[] = {
        {false, 0, 0, "", ""},
        {false, 1, 1, "Internal Error: Local Drive is unknown", "The user data partition"},
        {false, 1, 0, "Internal Error: Local Drive (User Data)", "Page 7317."},
        {false, 0, 1, "Internal Error: Local Drive (System Data)", "The system data partition"},
        {true, 1, 1, "SCS Communication Error", "built-in SSD"}, // in place of the drive's
    };
    for (const auto& c : cases) {
        const DriveMessage m = DriveCheck_Message(c.emergency, c.data, c.sys);
        EXPECT_EQ(std::string(m.title ? m.title : ""), c.title);
        EXPECT_NE(std::string(m.text ? m.text : "").find(c.says), std::string::npos) << c.title;
    }
}

TEST(DriveCheck, WithoutADriveThePaneStandsAtTheStart)
{
    Harness_Reset();
    GL_SSD_Data_Error = GL_SSD_Sys_Error = 0;
    static const std::pair<const char*, const char*> parts[] = {{"/mnt/data", "/mnt/no_data"},
                                                                {"/mnt/sys", "/mnt/no_sys"}};
    for (const auto& [there, away] : parts)
        ASSERT_EQ(rename(there, away), 0);
    DriveCheck();
    for (const auto& [there, away] : parts)
        rename(away, there);
    EXPECT_EQ(GL_SSD_Data_Error + GL_SSD_Sys_Error, 2);
    EXPECT_NE(Pane_GetActiveID(), 0);
    Harness_Reset();
}
