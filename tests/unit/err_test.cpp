#include "a_ls.h"
#include "err.h"
#include "harness.h"
#include "memory.h"
#include "message.h"
#include "page.h"

TEST(ErrorList, FillsUpTo12000AndFreesAll)
{
    Err_Clear();
    const int before = UsedMemPtr;
    for (int i = 0; i < ERR_MAX; i++)
        ASSERT_EQ(Err_Add("error %d", i), 0);
    const int full = UsedMemPtr;
    EXPECT_EQ(Err_Add("one more"), -1);
    EXPECT_EQ(Err_GetMax(), 12000);
    EXPECT_EQ(UsedMemPtr, full);
    Err_Clear();
    EXPECT_EQ(Err_GetMax(), 0);
    EXPECT_EQ(UsedMemPtr, before);
}

TEST(ErrorList, PageWritesTheFileNewestLast)
{
    Harness_Reset();
    Err_Clear();
    Err_Add("first %s", "%s");
    Err_Add("%s", std::string(5000, 'x').c_str());
    Err_Create();
    const std::string text = FileText("/var/log2/tm3err.log");
    EXPECT_THAT(text, testing::MatchesRegex("\\[..:..:..\\] first %s\n\\[..:..:..\\] x*\n"));
    EXPECT_EQ(text.size(), 11 + 8 + 1 + 11 + 4095 + 1u);

    CreatePage(0x99000000);
    EXPECT_EQ(LS_GetNData(1), 2);
    EXPECT_STREQ(LS_GetData(1, 0, 1), "first %s");
    int h = 0, m = 0, s = 0;
    ASSERT_EQ(sscanf(LS_GetData(1, 0, 0), "%2d:%2d:%2d", &h, &m, &s), 3);
    EXPECT_LT((time(nullptr) - (3600 * h + 60 * m + s)) % 86400, 300) << "not long ago, in UTC";
    EXPECT_EQ(Err_Proc(MSG_PRESS, 0, 0, 0, 0), 0) << "the page has other objects";

    Err_Clear();
    EXPECT_EQ(LS_GetNData(1), 0) << "the page must not show texts that are gone";
    EXPECT_EQ(LS_GetData(1, 0, 1), nullptr);
}
