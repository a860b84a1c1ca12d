#include "device.h"
#include "harness.h"
#include "page.h"

TEST(EngineeringPicture, TheMenuLeadsToAllThatThereIs)
{
    Harness_Reset();
    DEV_Swr[0].type = DEVTYPE_KTR40GSF; // the first generation has a smaller one
    DEV_MySwr[0] = &DEV_Swr[0];
    SYS_MySwrMax = 1;
    ASSERT_EQ(CreatePage(0x99910000), 0);
    EXPECT_TRUE(MatchesGolden("engineering_menu"));
}

TEST(EngineeringPicture, TheChartsHaveEveryColourAndEveryGlyphWithItsCode)
{
    for (const auto& [page, picture] :
         {std::pair{0x99960000u, "engineering_colours"}, {0x99960005, "engineering_fonts"}}) {
        Harness_Reset();
        ASSERT_EQ(CreatePage(page), 0);
        EXPECT_TRUE(MatchesGolden(picture));
    }
}
