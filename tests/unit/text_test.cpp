#include "process.h"
#include "text.h"
#include <cstring>
#include <gtest/gtest.h>

TEST(Text, CopyKeepsItsLimitAndAlwaysTerminates)
{
    static const struct {
        const char* src;
        size_t len;
        const char* result;
    } cases[] = {
        {.src = "abcd", .len = 4, .result = "abc"}, // exactly len characters
        {.src = "abc", .len = 1, .result = ""},
        {.src = nullptr, .len = 4, .result = ""},
    };
    for (const auto& c : cases) {
        char dst[10];
        memset(dst, 'x', sizeof dst);
        EXPECT_EQ(ktr_strncpy(dst, c.src, c.len), dst);
        EXPECT_STREQ(dst, c.result);
        EXPECT_EQ(dst[c.len - 1], '\0');
        EXPECT_EQ(dst[c.len], 'x') << "wrote behind the end";
    }
    char shifted[] = "-00:01:00";
    CopyText(shifted, shifted + 1);
    EXPECT_STREQ(shifted, "00:01:00");
}

TEST(Text, AppendKeepsTheSizeOfTheWhole)
{
    static const struct {
        const char* before;
        const char* more;
        const char* result;
    } cases[] = {
        {.before = "ab", .more = "cdefghij", .result = "abcdefg"},
        {.before = "abcdefg", .more = "h", .result = "abcdefg"}, // full
    };
    for (const auto& c : cases) {
        char dst[9] = {};
        dst[8] = 'x';
        ktr_strncpy(dst, c.before, 8);
        ktr_strncat(dst, c.more, 8);
        EXPECT_STREQ(dst, c.result);
        EXPECT_EQ(dst[8], 'x');
    }
}

TEST(Text, NamesLoseWhatTheirKindMayNotHold)
{
    static const struct {
        int (*make)(char*);
        const char* text;
        const char* result;
    } cases[] = {
        {.make = StrFileName, .text = "a b\\c/d:e,f;g*h?i\"j", .result = "a_b_c_d_e_f_g_h_i_j"},
        {.make = StrFileName, .text = "con.", .result = "con_"},
        {.make = StrFileName, .text = "ab\ncd", .result = "ab"},
        {.make = StrFileName, .text = "\tab", .result = ""},
        {.make = StrFileName, .text = "caf\xE9", .result = "caf_"},
        {.make = StrFatFileName, .text = "My Show:1", .result = "My Show_1"},
        {.make = StrSourceName, .text = "CAM 1/A,B", .result = "CAM 1/A_B"},
    };
    for (const auto& c : cases) {
        char text[64];
        CopyText(text, c.text);
        EXPECT_EQ(c.make(text), c.result[0] != '\0') << c.text;
        EXPECT_STREQ(text, c.result);
    }
}

TEST(Text, AFileNameIsSafeForTheShellWhateverItWas)
{
    char text[256];
    for (int c = 1; c < 256; c++)
        text[c - 1] = char(c < ' ' || c == 127 ? 'x' : c);
    text[255] = '\0';
    EXPECT_EQ(StrFileName(text), 1);
    EXPECT_EQ(IsShellSafe(text), 1) << text;
    EXPECT_EQ(strlen(text), 255u);
}
