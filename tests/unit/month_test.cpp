#include "month.h"
#include <gtest/gtest.h>

TEST(Months, NumbersAndNamesAreOneAnothers)
{
    std::string names;
    for (int n = 1; n <= 12; n++) {
        names += Month_Name(n);
        EXPECT_EQ(Month_Number(Month_Name(n)), n);
    }
    EXPECT_EQ(names, "JanFebMarAprMayJunJulAugSepOctNovDec");
    for (const int n : {-1, 0, 13})
        EXPECT_STREQ(Month_Name(n), "---") << n;
    for (const char* name : {"", "---", "J", "jan", "Janu", "anF"})
        EXPECT_EQ(Month_Number(name), 0) << name;
}
