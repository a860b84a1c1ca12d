#include "global.h"
#include "timecode.h"
#include <climits>
#include <gtest/gtest.h>

TEST(Timecode, TextBecomesFrames)
{
    SYS_FrameRate = 30;
    static const struct {
        const char* text;
        int frames;
    } cases[] = {
        {.text = "", .frames = 0},
        {.text = "29", .frames = 29},
        {.text = "30", .frames = TC_BAD}, // frames reach the rate
        {.text = "2:15", .frames = 75},
        {.text = "-00:01:00", .frames = -30},
        {.text = "1:00:00:00", .frames = 108000},
        {.text = "24:00:00:00", .frames = TC_BAD},
        {.text = "60:00", .frames = TC_BAD},
        {.text = "1:2:3:4:5", .frames = (3723 * 30) + 4}, // stops at the fourth separator
        {.text = "00:00:00:0000012", .frames = 1},        // cut behind the fifteenth character
        {.text = "99999999999999999999", .frames = TC_BAD},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TC2Frame(c.text), c.frames) << c.text;
}

TEST(Timecode, FramesBecomeText)
{
    SYS_FrameRate = 25;
    static const struct {
        int frame, n;
        const char* text;
    } cases[] = {
        {.frame = 30, .n = 1, .text = "05"},
        {.frame = 61 * 25 + 3, .n = 2, .text = "01:03"}, // the seconds wrap
        {.frame = -25, .n = 3, .text = "-00:01:00"},
        {.frame = INT_MIN, .n = 4, .text = "-23860:55:45:23"},
    };
    for (const auto& c : cases)
        EXPECT_STREQ(Frame2TC(c.frame, c.n), c.text);
    EXPECT_STREQ(Frame2TC(7, 5), cases[3].text) << "an unknown form leaves the buffer";
    SYS_FrameRate = 0; // not told yet
    EXPECT_STREQ(Frame2TC(60, 2), "01:00");
}

TEST(Timecode, SwitcherRateFollowsItsFormat)
{
    SYS_FrameRate = 60;
    static const struct {
        int size, scan, freq, frames, fields;
    } cases[] = {
        {.size = 0, .scan = 9, .freq = 9, .frames = 30, .fields = 30},
        {.size = 2, .scan = 7, .freq = 5, .frames = 25, .fields = 50},
        {.size = 3, .scan = 1, .freq = 2, .frames = 25, .fields = 25},
        {.size = 3, .scan = 2, .freq = 5, .frames = 25, .fields = 50},
        {.size = 4, .scan = 3, .freq = 6, .frames = 60, .fields = 60}, // no rule
    };
    for (const auto& c : cases) {
        SYS_Format_Size = c.size;
        SYS_Format_Scan = c.scan;
        SYS_Format_Freq = c.freq;
        EXPECT_EQ(GetFrameNum_SWR(0), c.frames) << c.size << c.scan << c.freq;
        EXPECT_EQ(GetFrameNum_SWR(1), c.fields) << c.size << c.scan << c.freq;
    }
    SYS_Format_Size = 2;
    SYS_Format_Freq = 5;
    EXPECT_EQ(TC2Frame_SWR("1:30", 1), 80);
    EXPECT_EQ(TC2Frame_SWR("1:30", 0), TC_BAD);
    EXPECT_STREQ(Frame2TC_SWR(80, 3, 0), "00:03:05");
    EXPECT_EQ(TC2BTC("1:23:45:20"), 0x01234520u);
    EXPECT_EQ(TC2BTC("-45:12"), 0x80004512u);
    EXPECT_EQ(TC2BTC("45:60"), unsigned(TC_BAD));
    for (const auto& [n, text] :
         {std::pair{1, "-12"}, {2, "-45:12"}, {3, "-23:45:12"}, {4, "-01:23:45:12"}})
        EXPECT_STREQ(BTC2TC(0xC1A3C552, n), text) << "with flags of the switcher";
}
