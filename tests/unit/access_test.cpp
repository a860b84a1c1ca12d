#include "access.h"
#include "harness.h"
#include "log.h"
#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <string>

namespace
{
constexpr char LOG[] = "/var/log2/access.log";

// The texts of the log since the last call, without their stamps, each behind a "|".
std::string LogTexts()
{
    std::ifstream in(LOG);
    std::string texts;
    for (std::string line; std::getline(in, line);)
        texts += "|" + line.substr(line.find("][ 11] ") + 7);
    remove(LOG);
    return texts;
}

struct Access : testing::Test {
    void SetUp() override
    {
        Harness_Reset();
        FileCounter = XferCounter = 0;
        Log_Init(LOG, LOG_FILE_SIZE);
        remove(LOG);
    }
    void TearDown() override { Log_Init(nullptr, LOG_FILE_SIZE); }
};
} // namespace

TEST_F(Access, OpenFilesAreCounted)
{
    FILE* a = FileOpen("/mnt/data/a", "w");
    ASSERT_TRUE(a);
    EXPECT_EQ(LogTexts(), "|FileOpen: /mnt/data/a|FileOpen: Successed|FileOpen(): FileCounter = 1");
    FILE* b = FileOpen("/mnt/data/a", "r");
    EXPECT_EQ(FileCounter, 2);
    LogTexts();
    FileClose(a);
    EXPECT_EQ(LogTexts(), "|FileClose...|FileClose(): FileCounter = 1");
    FileClose(nullptr);
    EXPECT_EQ(FileCounter, 1);
    FileClose(b);
    EXPECT_EQ(FileCounter, 0);
}

TEST_F(Access, CountersNeverFallBelowZero)
{
    FileCounterDown();
    EXPECT_EQ(FileCounter, 0);
    FileCounterUp();
    FileCounterUp();
    FileCounterDown();
    EXPECT_EQ(FileCounter, 1);
    XferCounterDown();
    EXPECT_EQ(XferCounter, 0);
    XferCounterUp();
    EXPECT_EQ(XferCounter, 1);
}
