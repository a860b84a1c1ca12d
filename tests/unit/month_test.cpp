#include "month.h"
#include <gtest/gtest.h>

TEST(Months, NumbersAndNamesAreOneAnothers)
{
    for (int n = 1; n <= 12; n++)
        EXPECT_EQ(Month_Number(Month_Name(n)), n);
    EXPECT_STREQ(Month_Name(2), "Feb");
    for (const int n : {-1, 0, 13})
        EXPECT_STREQ(Month_Name(n), "---") << n;
    for (const char* name : {"", "---", "J", "jan", "Janu", "anF"})
        EXPECT_EQ(Month_Number(name), 0) << name;
}
