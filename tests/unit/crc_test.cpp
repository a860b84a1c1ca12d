#include "crc32.h"
#include <gtest/gtest.h>

static const unsigned char digits[] = {'1', '2', '3', '4', '5', '6', '7', '8', '9'};

TEST(Crc32, GivesTheKnownCheckValues)
{
    EXPECT_EQ(crc32(0, digits, 0), 0u);
    EXPECT_EQ(crc32(0, digits, sizeof digits), 0xCBF43926u);
    const unsigned char erased[4] = {0xFF, 0xFF, 0xFF, 0xFF};
    EXPECT_EQ(crc32(0, erased, sizeof erased), 0xFFFFFFFFu);
}

TEST(Crc32, GoesOnWhereItStopped)
{
    for (size_t cut = 0; cut <= sizeof digits; cut++)
        EXPECT_EQ(crc32(crc32(0, digits, cut), digits + cut, sizeof digits - cut), 0xCBF43926u);
}
