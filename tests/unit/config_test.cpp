#include "config.h"
#include "global.h"
#include "log.h"
#include "text.h"
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace
{

struct Config : testing::Test {
    std::filesystem::path home = std::filesystem::current_path();

    void SetUp() override
    {
        std::filesystem::create_directories("/var/tmp/ini");
        std::filesystem::current_path("/var/tmp/ini");
        GL_ChatteringTime = 130;
        GL_DebugMode = 0;
        GL_DmeSdiIF[0] = GL_DmeSdiIF[1] = 0;
        GL_DmeModel[0] = GL_DmeModel[1] = 0;
        CopyText(GL_ServerAddress, "");
        CopyText(GL_LogFileName, "/var/log2/tm3.log");
    }
    void TearDown() override
    {
        std::filesystem::current_path(home);
        GL_DebugMode = 0;
        Log_SetLevel(0);
    }
};

// Load a file with this text; what it printed.
std::string Load(const std::string& text)
{
    std::ofstream("tm3.ini", std::ios::binary) << text;
    testing::internal::CaptureStdout();
    EXPECT_EQ(LoadIniFile(), 0);
    return testing::internal::GetCapturedStdout();
}
} // namespace

TEST_F(Config, KeysFillTheirVariablesAndAreEchoed)
{
    const std::string echo = Load("# unit 3\r\n"
                                  "I/FAddress=10.1.1.1\r\n"
                                  "ChatteringTime=90\n"
                                  "ClipStoreDebugAddress=a=b\n"
                                  "Unknown=1\n"
                                  "LogLevel=2"); // no line end
    EXPECT_STREQ(GL_ServerAddress, "10.1.1.1");
    EXPECT_EQ(GL_ChatteringTime, 90);
    EXPECT_STREQ(GL_ClipStoreDebugAddress, "a=b");
    EXPECT_EQ(Log_Output(1, 1, "dropped"), 1);
    EXPECT_EQ(echo, "tm3.ini: GL_ServerAddress = [10.1.1.1]\n"
                    "tm3.ini: GL_ChatteringTime = [90]\n"
                    "tm3.ini: GL_ClipStoreDebugAddress = [a=b]\n"
                    "tm3.ini: LogLevel = [2]\n");
}

TEST_F(Config, OtherLinesChangeNothingAndTheRestOfALongOneIsNone)
{
    GL_DebugMode = 1;
    for (const char* line : {"#DebugMode=0", "DebugMode", " DebugMode=0", "=", "\r\n"}) {
        EXPECT_EQ(Load(line), "") << line;
        EXPECT_EQ(GL_DebugMode, 1) << line;
    }

    GL_DebugMode = 0;
    const std::string head = "I/FAddress=";
    Load(head + std::string(256 - head.size(), 'a') + "DebugMode=1\nChatteringTime=7\n");
    EXPECT_STREQ(GL_ServerAddress, std::string(63, 'a').c_str());
    EXPECT_EQ(GL_DebugMode, 0);
    EXPECT_EQ(GL_ChatteringTime, 7);
    Load("ChatteringTime=99999999999999999999\n");
    EXPECT_EQ(GL_ChatteringTime, 2147483647);
}

TEST_F(Config, DebugKeysOfTheEffectsUnitsNeedTheirModeBeforeThem)
{
    EXPECT_EQ(Load("DMEDebugModel1=4\nDMEDebugMode=1\nDMEDebugModel2=8\n"),
              "tm3.ini: DMEDebugMode = [1]\ntm3.ini: GL_DmeModel[1] = [8]\n");
    EXPECT_EQ(GL_DmeModel[0], 0);
    EXPECT_EQ(GL_DmeModel[1], 8);
    EXPECT_EQ(Load("DMEDebugSdiIF1=1\n"), "") << "the mode does not outlive its load";
    EXPECT_EQ(GL_DmeSdiIF[0], 0);
}
