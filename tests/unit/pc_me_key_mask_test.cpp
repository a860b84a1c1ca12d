// The mask pages of a key: what a utility bus carries, and where the pattern is chosen.
#include "table_page.h"

using KeyMaskPages = TablePage;

TEST_F(KeyMaskPages, AUtilityBusIsNamedByTheSourceOfItsOwnBank)
{
    for (const auto& [page, line, first, second] :
         {std::tuple{0x12140000u, "M/E-2@Status@Xpt Assign@UTIL1#CAM 3", "CAM 3", "Bus"},
          {0x14230000, "PGM/PST@Status@Xpt Assign@UTIL2#VTR", "Bus", "VTR"},
          {0x16330000, "M/E-2@Status@Xpt Assign@UTIL1#", "Bus", "Bus"},
          {0x11140000, "M/E-2@Status@Xpt Assign@UTIL1#X", "Bus", "Bus"}}) {
        Open(page);
        Tell(line);
        EXPECT_EQ(Caption(35), std::string("Utility 1\n") + first) << line;
        EXPECT_EQ(Caption(36), std::string("Utility 2\n") + second) << line;
    }
    Tell("M/E-1@Status@Xpt Assign@UTIL1#A Name Too Long");
    EXPECT_LT(Caption(35).size(), strlen("Utility 1\nA Name Too Long"));
}

TEST_F(KeyMaskPages, ThePatternIsOpenOnlyWhileItIsTheMaskAndTheSourcesWhileThereIsOne)
{
    static const std::tuple<const char*, const char*, bool> cases[] = {
        {"false", "Pattern", true}, {"true", "Box", true},       {"true", "Pattern", false},
        {"true", "", true},         {"true", "Utility 1", true},
    };
    for (const std::string mask : {"Main Mask", "Sub Mask"})
        for (const auto& [is_on, source, disabled] : cases) {
            Open(mask[0] == 'M' ? 0x13430000 : 0x13440000);
            EXPECT_TRUE(Disabled().contains(37)) << "before the first tally";
            TellAll("M/E-3@Key4@" + mask + "@",
                    {mask + "#" + is_on, std::string("Mask Source#") + source});
            EXPECT_EQ(Disabled().contains(37), disabled) << mask << is_on << source;
            if (mask == "Sub Mask")
                continue; // it has no list of sources
            (void)Press(38);
            EXPECT_EQ(GetWindow() != 0, *is_on == 't') << mask << is_on;
            CloseWindow();
        }
}

TEST_F(KeyMaskPages, OnAWideScreenThePatternOfTheMaskMovesFurther)
{
    for (const int aspect : {0, 1}) {
        SYS_RefSwrScreenAspect[2] = aspect; // of M/E-3
        Open(0x13430001);
        Tell("M/E-3@Key4@Main Mask@Pattern Mask@H Position#1");
        (void)NB_SetSelect(3);
        for (const auto& [far, sign] : {std::pair{1000, ""}, {-1000, "-"}}) {
            (void)NB_SendTrimValue(far);
            EXPECT_THAT(TakeQueuedCommands(),
                        Contains("put M/E-3@Key4@Main Mask@Pattern Mask@H Position#" +
                                 (sign + std::string(aspect ? "133.33" : "100.00"))));
        }
    }
    SYS_RefSwrScreenAspect[2] = 0;
}

// The pattern of a sub mask is that of the main bank's wipe, also for the keys of the sub side.
TEST_F(KeyMaskPages, TheSubMaskShowsThePatternOfItsBank)
{
    static const std::tuple<uint32_t, const char*, uint32_t> cases[] = {
        {0x11140000, "M/E-1@Key1", 0x11520000},
        {0x81340000, "M/E-4@Key3", 0x81520000},
        {0x18140000, "PGM/PST@DSK5", 0x14520000},
    };
    for (const auto& [page, key, target] : cases) {
        Open(page);
        TellAll(key, {"@Sub Mask@Sub Mask#true", "@Sub Mask@Mask Source#Pattern"});
        EXPECT_EQ(PageBy(37), target) << key;
    }
}
