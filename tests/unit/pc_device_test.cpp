// The device pages: whose files are listed, what loads one, which page asks the server to tell.
#include "pc_device.h"
#include "table_page.h"

constexpr uint32_t CONTROL = 0x53210000, FILES = 0x53230000, GPI = 0x53310000;
constexpr int LIST_FILES = 2, KEY_READ = 49, KEY_LOAD = 50, KEY_LOAD_CUE = 51, KEY_RECORD = 22,
              KEY_FIRE = 37;
const std::string MACHINE = "Device@DDR/VTR@", LIST = "Device@DDR/VTR@File List";

struct DevicePage : TablePage {
    static Lines Choose(int list, int row) { return Puts(ChooseRow(list, row)); }
};

TEST_F(DevicePage, TheFilesOfTheChosenDeviceAreListedAndLoaded)
{
    Device_OpenNext(0);
    EXPECT_THAT(Open(FILES), testing::IsSupersetOf({"add " + LIST, "put " + LIST + "#Dev1"}));
    TellAll(LIST + "#", {"KILL", "Dev1,1,OPENING,00:00:20:00", "Dev1,2,CLOSER,00:00:09:00"});
    EXPECT_THAT(Choose(1, 2), ElementsAre("put " + LIST + "#Dev3"));
    (void)Tell(LIST + "#Dev3,3,GAP,1");
    EXPECT_EQ(LS_GetNData(LIST_FILES), 0) << "they are not this one's";
    (void)Tell(MACHINE + "Dev3@Type#DDR");
    TellAll(LIST + "#", {"Dev1,3,LATE,1", "KILL", "Dev3,1,A,1", "Dev3,2,B,1", "Dev3,0,ZERO,1",
                         "Dev3,,NONE,1", "Dev3,3", "", "Dev3,3,,1"});
    ASSERT_EQ(LS_GetNData(LIST_FILES), 2);
    EXPECT_EQ(Cell(LIST_FILES, 1, 1), "B");
    EXPECT_THAT(Puts(Press(KEY_LOAD)), IsEmpty()) << "nothing is chosen yet";
    Pass(1000);
    EXPECT_THAT(Choose(1, 2), IsEmpty()) << "it is chosen already";
    for (const int row : {1, 2, -1}) // there are two
        (void)Choose(LIST_FILES, row);
    EXPECT_THAT(Puts(Press(KEY_LOAD)), ElementsAre("put " + MACHINE + "Dev3@File#B"));
    Pass(1000);
    EXPECT_THAT(Puts(Press(KEY_LOAD_CUE)), ElementsAre("put " + MACHINE + "Dev3@File#B",
                                                       "put " + MACHINE + "Dev3@Transport#Cue Up"));
    (void)Tell(LIST + "#KILL");
    Pass(1000);
    EXPECT_THAT(Puts(Press(KEY_LOAD)), IsEmpty()) << "it is gone";
    EXPECT_THAT(Puts(Press(KEY_READ)), ElementsAre("put " + LIST + "#Dev3"));
    (void)Tell(MACHINE + "Dev3@Type#VTR");
    EXPECT_EQ(BT_GetVisible(KEY_LOAD), BT_DISABLED) << "a tape has no files";
    EXPECT_EQ(Held(Leave(), LIST), -1);
}

TEST_F(DevicePage, TheServerTellsWhileThePageStands)
{
    for (const auto& [page, path] : {std::pair{CONTROL, "Device@DDR/VTR@Cueup&Play@Tally Back"},
                                     {0x53220000, "Device@DDR/VTR@Timeline@Tally Back"},
                                     {0x53120000, "Device@P-BUS Timeline@Tally Back"},
                                     {0x53320000, "Device@GPI Timeline@Tally Back"}}) {
        const std::string put = std::string("put ") + path;
        EXPECT_THAT(Puts(Open(page)), Contains(put + "#true"));
        EXPECT_GE(LS_GetNData(1), 8) << path;
        EXPECT_THAT(Puts(Leave()), Contains(put + "#false"));
    }
}

TEST_F(DevicePage, ADeviceIsNotRecordedByAccidentAndAnOutputIsFiredByItsNumber)
{
    (void)Open(CONTROL);
    (void)Choose(1, 1);
    for (const char* line : {"Dev2@Rec Enable#false", "Dev2@Control#Local"}) {
        (void)Tell(MACHINE + line);
        EXPECT_EQ(BT_GetVisible(KEY_RECORD), BT_DISABLED) << line;
        TellAll(MACHINE, {"Dev2@Rec Enable#true", "Dev2@Control#Remote"});
        EXPECT_EQ(BT_GetVisible(KEY_RECORD), BT_ENABLED);
    }
    Pass(10);
    const uint32_t lamp = PixelAt(680, 90);
    (void)Tell(MACHINE + "Dev2@Transport#Record");
    Pass(10);
    EXPECT_NE(PixelAt(680, 90), lamp) << "it records";
    for (const int device : {6, -1, DEVICES}) // there are twelve
        Device_OpenNext(device);
    EXPECT_THAT(Open(FILES), Contains("put " + LIST + "#Dev7"));
    (void)Open(GPI);
    (void)Choose(1, 4);
    EXPECT_THAT(Puts(Press(KEY_FIRE)),
                ElementsAre("put Engineering Setup@Switcher@Device Interface@GPI "
                            "Output@Test Fire@5#"));
}
