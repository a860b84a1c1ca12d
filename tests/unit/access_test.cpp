#include "access.h"
#include "harness.h"
#include "page.h"

static const int counted_at_start = FileCounter + XferCounter; // before anything has run

// The lamp at the top tells of both.
TEST(Access, CountersFollowOpenFilesAndNeverFallBelowZero)
{
    constexpr uint32_t OFF = 0x282828, RED = 0xFF0000, GREEN = 0x00FF00;
    const auto lamp = [] { return PixelAt(75, 18); };
    Harness_Reset();
    ASSERT_EQ(CreatePage(0x11110000), 0);
    FileCounter = XferCounter = 0;
    EXPECT_EQ(lamp(), OFF);
    FILE* a = FileOpen("/mnt/data/a", "w");
    ASSERT_TRUE(a);
    EXPECT_EQ(lamp(), RED);
    FILE* b = FileOpen("/mnt/data/a", "r");
    EXPECT_EQ(FileOpen("/mnt/data/none/a", "r"), nullptr);
    EXPECT_EQ(FileCounter, 2);
    EXPECT_EQ(counted_at_start, 0);
    fputs("written", a);
    FileClose(a);
    EXPECT_EQ(FileText("/mnt/data/a"), "written");
    FileClose(nullptr);
    EXPECT_EQ(FileCounter, 1);
    EXPECT_EQ(lamp(), RED);
    FileClose(b);
    EXPECT_EQ(lamp(), OFF);
    EXPECT_EQ(FileOpen("/mnt/data/none/a", "r"), nullptr);
    EXPECT_EQ(lamp(), OFF);
    FileCounterDown();
    XferCounterDown();
    EXPECT_EQ(FileCounter, 0);
    EXPECT_EQ(XferCounter, 0);
    for (int n = 1; n <= 2; n++) {
        XferCounterUp();
        EXPECT_EQ(XferCounter, n);
    }
    FileCounterUp();
    EXPECT_EQ(lamp(), RED);
    FileCounterDown();
    XferCounterDown();
    EXPECT_EQ(lamp(), GREEN) << "one goes on";
    XferCounterDown();
    EXPECT_EQ(lamp(), OFF);
}
