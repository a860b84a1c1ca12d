#include "access.h"
#include "harness.h"

TEST(Access, CountersFollowOpenFilesAndNeverFallBelowZero)
{
    Harness_Reset();
    FileCounter = XferCounter = 0;
    FILE* a = FileOpen("/mnt/data/a", "w");
    ASSERT_TRUE(a);
    FILE* b = FileOpen("/mnt/data/a", "r");
    EXPECT_EQ(FileOpen("/mnt/data/none/a", "r"), nullptr);
    EXPECT_EQ(FileCounter, 2);
    FileClose(a);
    FileClose(nullptr);
    EXPECT_EQ(FileCounter, 1);
    FileClose(b);
    FileCounterDown();
    XferCounterDown();
    EXPECT_EQ(FileCounter, 0);
    EXPECT_EQ(XferCounter, 0);
}
