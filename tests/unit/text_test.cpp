#include "process.h"
#include "text.h"
#include <cstring>
#include <gtest/gtest.h>

namespace
{
char buffer[10]; // each case finds it as "xxxxxxxxx", and what is behind the end stays so
}

TEST(Text, WhatIsCopiedEndsWithinItsLimitAndTouchesNothingBehind)
{
    static const struct {
        void (*copy)();
        const char* result;
        size_t touched; // at most
    } cases[] = {
        {[] { ktr_strncpy(buffer, "abcd", 4); }, "abc", 4}, // exactly as many characters
        {[] { ktr_strncpy(buffer, "abc", 4); }, "abc", 4},
        {[] { ktr_strncpy(buffer, "abc", 1); }, "", 1},
        {[] { ktr_strncpy(buffer, nullptr, 4); }, "", 4},
        {[] { ktr_strncpy(buffer, "abc", 0); }, "xxxxxxxxx", 0},
        {[] { ktr_strncpy(buffer, "ab", 3), ktr_strncat(buffer, "cdefgh", 6); }, "abcde", 6},
        {[] { ktr_strncpy(buffer, "abcd", 5), ktr_strncat(buffer, "e", 5); }, "abcd", 5}, // full
        {[] { ktr_strncat(buffer, "e", 4); }, "xxx", 4}, // had no end
        {[] { ktr_strncat(buffer, "abc", 0); }, "xxxxxxxxx", 0},
        {[] { strncpy_secu(buffer, "abcd", 4, 2); }, "ab", 3},
        {[] { strncpy_secu(buffer, "abcd", 4, 3); }, "abc", 4},
        {[] { strncpy_secu(buffer, "abcd", 4, 4); }, "abc", 4},
        {[] { strncpy_close(buffer, "abcd", 3); }, "abc", 4},
    };
    for (const auto& c : cases) {
        memset(buffer, 'x', sizeof buffer - 1);
        c.copy();
        EXPECT_STREQ(buffer, c.result) << &c - cases;
        EXPECT_EQ(strspn(buffer + c.touched, "x"), 9 - c.touched) << &c - cases;
    }
    char shifted[] = "-00:01:00";
    CopyText(shifted, shifted + 1);
    EXPECT_STREQ(shifted, "00:01:00");
    EXPECT_EQ(ktr_strncpy(buffer, "a", 0), buffer);
}

TEST(Text, ComparesWithoutCaseAndTakesNothingForEmpty)
{
    EXPECT_TRUE(BeginsWith("put A#1", "put "));
    EXPECT_FALSE(BeginsWith("pu", "put "));
    EXPECT_STREQ(StrIStr("a Show.TGA", ".tga"), ".TGA");
    EXPECT_EQ(StrIStr(nullptr, "a"), nullptr);
    EXPECT_STREQ(StrIStr("a", nullptr), "a");
    EXPECT_EQ(StrICmp("User1", "USER1"), 0);
    EXPECT_LT(StrICmp(nullptr, "a"), 0);
    EXPECT_GT(StrICmp("b", nullptr), 0);
    EXPECT_EQ(StrNICmp("SWRx", "swry", 3), 0);
    EXPECT_LT(StrNICmp("SWRx", "swry", 4), 0);
    EXPECT_LT(StrNICmp(nullptr, "a", 1), 0);
    EXPECT_GT(StrNICmp("a", nullptr, 1), 0);
    char text[] = "aZ9\xE9";
    StrUpr(text);
    EXPECT_STREQ(text, "AZ9\xE9");
    StrLwr(text);
    EXPECT_STREQ(text, "az9\xE9");
    StrUpr(nullptr);
    StrLwr(nullptr);
    EXPECT_STREQ(NumStr(-2147483647 - 1), "-2147483648");
}

TEST(Text, NamesLoseWhatTheirKindMayNotHold)
{
    static const struct {
        int (*make)(char*);
        const char *text, *result;
    } cases[] = {
        {.make = StrFileName, .text = "a b\\c/d:e,f;g*h?i\"j", .result = "a_b_c_d_e_f_g_h_i_j"},
        {.make = StrFileName, .text = "con.", .result = "con_"},
        {.make = StrFileName, .text = "ab\ncd", .result = "ab"},
        {.make = StrFileName, .text = "\tab", .result = ""},
        {.make = StrFileName, .text = "caf\xE9", .result = "caf_"},
        {.make = StrFatFileName, .text = "My~Show:1", .result = "My~Show_1"},
        {.make = StrRegName, .text = "My/Show (1)", .result = "My_Show_(1)"},
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
