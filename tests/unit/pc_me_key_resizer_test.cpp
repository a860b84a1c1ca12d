// The pages of a key's resizer: what is grey, the crop of two edges, the axes of the rotation.
#include "table_page.h"

using KeyResizerPages = TablePage;

TEST_F(KeyResizerPages, WhatIsGreyFollowsSettingsOfSeveralPages)
{
    const std::string border = "Border/Crop@", effect = "Enhanced Effect@";
    const std::tuple<uint32_t, Lines, std::set<int>> cases[] = {
        {0x12350000, {"Resizer#false"}, {18, 20, 21, 33, 34, 35, 49, 50, 51, 52, 53}},
        {0x12350000, {"Resizer#true", "Combine#true"}, {51, 53}},
        {0x12350000, {"Resizer#false", "Resizer#true", "Combine#false"}, {}},
        {0x12350001, {"Resizer#true", "Process@Filter#false"}, {34}},
        {0x12350002, {"Resizer#true", border + "CG Border#true"}, {17, 18, 20, 21, 22, 36, 37, 38}},
        {0x12350002,
         {border + "Border#false", border + "Crop#false"},
         {18, 20, 21, 22, 34, 36, 37, 38}},
        {0x12350002, {border + "Border#true", border + "Border Fill#Flat"}, {22, 37, 38}},
        {0x12350002, {border + "Border#true", border + "Border Fill#Mix"}, {}},
        {0x12350003, {effect + "Mosaic#true", effect + "Defocus#false"}, {18, 19}},
        {0x12350003, {effect + "Defocus#true", effect + "Mosaic#false"}, {17}},
        {0x12350003, {"Combine#true"}, {17, 18, 19, 33, 34, 35, 36}},
        {0x12350001, {"Resizer#false"}, {17, 18, 19, 20, 21, 22, 33, 34, 35, 36, 38}},
        {0x12350004, {"Mask@Mask#false"}, {18, 19, 20, 33, 34}},
        {0x12350004, {"Resizer#false", "Mask@Mask#true"}, {17, 18, 19, 20, 33, 34}},
        {0x12350005, {"Resizer#true"}, {19, 20, 22}}, // the key doesn't turn
        {0x12350005, {"Combine#true"}, {17, 19, 20, 22}},
    };
    for (const auto& [page, lines, disabled] : cases) {
        Open(page);
        for (const std::string& line : lines) {
            const bool is_switch = line.starts_with("Resizer#"); // it stands with the processed key
            Tell((is_switch ? "M/E-2@Key3@Processed Key@" : "M/E-2@Key3@Resizer@") + line);
        }
        EXPECT_EQ(Disabled(), disabled) << std::hex << page << " " << lines.back();
    }
}

TEST_F(KeyResizerPages, WithoutTheLargeFrameMemoryThereIsNone)
{
    // What is no business of the resizer: the fill and source, the key's own masks.
    const std::set<std::pair<uint32_t, int>> others = {
        {0x11150000, 54}, {0x11150004, 35}, {0x11150004, 36}};
    SYS_FmemV6 = 0;
    for (uint32_t page = 0x11150000; page <= 0x11150005; page++) {
        EXPECT_EQ(Held(Open(page), "M/E-1@Key1@Resizer@Combine"), 0);
        Tell("M/E-1@Key1@Processed Key@Resizer#true");
        for (const BT_MEM* b = bt_first(); b->id >= 1; b++)
            EXPECT_EQ(b->visible, others.count({page, b->id}) ? BT_ENABLED : BT_DISABLED)
                << std::hex << page << " " << b->id;
    }
}

// The rotation is followed for the life of the process: to remove it here would end that.
TEST_F(KeyResizerPages, ASubPageFollowsWhatNoneOfItsButtonsHasAndLeavesTheRotation)
{
    const std::string resizer = "@Resizer@Combine", rotation = "@Processed Key@Rotation";
    for (const auto& [page, key, follows] : {std::tuple{0x85250000u, "M/E-4@Key6", 1},
                                             {0x85250003u, "M/E-4@Key6", 1},
                                             {0x11150004u, "M/E-1@Key1", 0},
                                             {0x11150005u, "M/E-1@Key1", 1},
                                             {0x11160000u, "M/E-1@Key1", 0}}) {
        EXPECT_EQ(Held(Open(page), key + resizer), follows) << std::hex << page;
        const Lines left = Leave();
        EXPECT_EQ(Held(left, key + resizer), -follows) << std::hex << page;
        EXPECT_THAT(left, Not(Contains("remove " + (key + rotation)))) << std::hex << page;
    }
}

TEST_F(KeyResizerPages, TheBorderOfAGeneratorIsAskedForAfterwards)
{
    const std::string path = "M/E-3@Key1@Resizer@Border/Crop@CG Border";
    Open(0x13150002);
    Tell(path + "#true");
    EXPECT_THAT(Press(19), ElementsAre("put " + path + "#false", "read " + path));
}

TEST_F(KeyResizerPages, TwoEdgesAtOnceKeepTheirSense)
{
    for (const auto& [page, path, slot, x, value] :
         {std::tuple{0x11150002u, std::string("M/E-1@Key1@Resizer@Border/Crop@Crop@H"), 1, 714,
                     "-100.00"},
          {0x16450002, "M/E-2@Key8@Resizer@Border/Crop@Crop@All", 3, 734, "-75.00"},
          {0x16450002, "M/E-2@Key8@Resizer@Border/Crop@Crop@All", 3, 799, "0.00"},
          {0x82150002, "M/E-5@Key1@Resizer@Border/Crop@Crop@V", 2, 734, "75.00"}}) {
        Open(page);
        Tell(path.substr(0, path.rfind('@')) + "#true");
        (void)Press(33);
        if (NB_GetLayer() == 0)
            NextLayer();
        Tell(path + "#10");
        EXPECT_THAT(Drag(slot, x), ElementsAre("put " + path + "#" + value, "read " + path));
    }
}

TEST_F(KeyResizerPages, TheButtonsOfTheRotationShareOneSumOfAxes)
{
    static const std::tuple<const char*, int, const char*> cases[] = {
        {"0", 17, "3"}, {"1", 17, "0"}, {"true", 20, "3"}, {"3", 19, "2"}, {"2", 20, "0"},
    };
    const std::string rotation = "PGM/PST@DSK2@Processed Key@Rotation#";
    for (const auto& [now, button, put] : cases) {
        Open(0x14250005);
        TellAll("", {"PGM/PST@DSK2@Processed Key@Resizer#true", rotation + now});
        if (BT_GetStatus(button) == BT_ON) { // the first press only takes the knobs
            EXPECT_THAT(Puts(Press(button)), IsEmpty());
        }
        EXPECT_THAT(Press(button), Contains("put " + rotation + put)) << now;
    }
}

TEST_F(KeyResizerPages, TheRotationComesBackWithTheAxesItHadAndAnAxisThatDoesNotTurnHasNoRange)
{
    Open(0x11150005);
    Tell("M/E-1@Key1@Processed Key@Rotation#2");
    Tell("M/E-1@Key2@Processed Key@Rotation#1"); // of another key
    EXPECT_EQ(BT_GetStatus(19), BT_OFF);
    EXPECT_EQ(BT_GetStatus(20), BT_ON);
    Tell("M/E-1@Key1@Processed Key@Rotation#0");
    EXPECT_EQ(BT_GetStatus(20), BT_OFF);
    EXPECT_TRUE(Disabled().contains(20));
    EXPECT_THAT(Press(17), Contains("put M/E-1@Key1@Processed Key@Rotation#2"));

    Tell("M/E-1@Key8@Processed Key@Rotation#1");
    Open(0x15450005);
    (void)Press(19);
    const std::string path = "M/E-1@Key8@Resizer@Rotation@";
    TellAll(path, {"X#0", "Y#0"});
    EXPECT_THAT(Drag(1, 794), Contains("put " + path + "X#360.00"));
    EXPECT_THAT(Drag(2, 794), Not(Contains(testing::StartsWith("put"))));
    Tell("M/E-1@Key8@Processed Key@Rotation#3");
    EXPECT_THAT(Drag(2, 794), Contains("put " + path + "Y#360.00"));
}

TEST_F(KeyResizerPages, AShownColumnFollowsTheRotation)
{
    const std::string key = "M/E-1@Key6@";
    // A button, and a value that there is only while the key turns.
    for (const auto& [page, button, turned] : {std::tuple{0x15250000u, 17, "Resizer@Depth"},
                                               {0x15250004, 17, "Resizer@Mask@Box@Angle"},
                                               {0x15260000, 18, "Processed Key@Location@Z"},
                                               {0x15260000, 19, "Processed Key@Rotation@X"}}) {
        const std::string add = "add " + key + turned;
        Tell(key + "Processed Key@Rotation#0");
        Open(page);
        TellAll(key, {"Processed Key@Resizer#true", "Processed Key@Processed Key#true"});
        EXPECT_THAT(Press(button), Not(Contains(add)));
        EXPECT_THAT(Tell(key + "Processed Key@Rotation#3"), Contains(add));
    }
}
