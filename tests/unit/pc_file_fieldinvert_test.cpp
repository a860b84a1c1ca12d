#include "pc_file_fieldinvert.h"
#include "server_page.h"

constexpr const char* DIR = "/mnt/data/user/root/SYSTEM/FRAMEMEM/";

struct FieldInvertPage : ServerPage {
    void SetUp() override
    {
        ServerPage::SetUp();
        FileFieldInvert_Reset();
        SYS_FmemV6 = 0; // the older frame memory has its frames in one folder
    }
    void TearDown() override
    {
        (void)Leave();
        FileFieldInvert_Reset();
        ServerPage::TearDown();
    }
};

TEST_F(FieldInvertPage, InvertsWhatIsSelectedAndShowsTheResult)
{
    const std::string logo = std::string(DIR) + "SWR000D001/MLOGO.FMEM_007.SFM";
    const std::string tail = ",Wed Nov 25 10:30:00 2026,1,3,0,";
    const Lines opened = Open(0x71540000);
    EXPECT_THAT(opened, Contains(HasSubstr(std::string(",MYHOST:") + DIR + ",*.*.*")));
    (void)Reply(
        opened, "Access@FindSFM",
        {std::string(DIR) + "SWR000D001/MBACK.FMEM_012.SFA,Wed Nov 25 10:30:00 2026,1,3,1,1,1",
         logo + tail + "0,0", std::string("/etc/SWR000D001/MBACK.FMEM_013.SFM") + tail + "0,0"});
    ASSERT_EQ(LS_GetNData(1), 2);
    EXPECT_THAT(Usable({BTN_INVERT_EXEC}), IsEmpty()) << "nothing is selected";
    EXPECT_EQ(Cells(1, 0, 0, 8), "007|MLOGO|Nov.25.2026 10:30|1|1080i|||") << "by number";
    EXPECT_EQ(Cells(1, 1, 0, 8), "012|MBACK|Nov.25.2026 10:30|1|1080i|4K|O|O");
    (void)Touch(200, 124 + 22 + 5);
    (void)Press(BTN_INVERT_EXEC);
    const Lines sent = Answer(1);
    EXPECT_THAT(sent, ElementsAre(testing::EndsWith(",MYHOST:" + logo)));
    const Lines again = Reply(sent, "Frame Memory@FieldInvert", {});
    (void)Reply(again, "Access@FindSFM", {logo + tail + "1,1"});
    EXPECT_EQ(Cells(1, 0, 0, 8), "007|MLOGO|Nov.25.2026 10:30|1|1080i||O|O");
    (void)Press(BTN_INVERT_DEVICE);
    (void)Reply(Answer(FILE_NETWORK + 1), "Access@ListDir", {});
    (void)Answer(1);
    EXPECT_EQ(Caption(BTN_INVERT_DEVICE), "Network");
    (void)Open(0x71540000);
    EXPECT_NE(QueueRoot, nullptr);
    (void)Leave();
    EXPECT_EQ(QueueRoot, nullptr) << "a search that nobody waits for";
}

TEST_F(FieldInvertPage, RowsThatAreNone)
{
    static const std::pair<const char*, bool> cases[] = {
        {"/d/U/MA.FMEM_001.SFM,,1,3,0,0,0", true},    {"MYHOST:/d/U/MA.FMEX1234.SF2,x,,,,,", true},
        {"/d/U/MA.FMEM_001.SFM,,1,3,0,0", false},     {"/d/U/MA.FMEM_001.SFM,,1,3,0,0,0,", false},
        {"/e/U/MA.FMEM_001.SFM,,1,3,0,0,0", false},   {"/d/../MA.FMEM_001.SFM,,1,3,0,0,0", false},
        {"/d/U/.FMEM_001.SFM,,1,3,0,0,0", false},     {"/d/U/MA.FMEM_.SFM,,1,3,0,0,0", false},
        {"/d/U/MA.FMEM_00001.SFM,,1,3,0,0,0", false}, {"/d/U/001.SFM,,1,3,0,0,0", false},
        {"/d/U/MA.FMEM_001.SST,,1,3,0,0,0", false},   {"", false},
    };
    FILELIST_FI row;
    for (const auto& [text, is_frame] : cases)
        EXPECT_EQ(File_ReadFrameRow(text, "MYHOST:/d/", &row) == 0, is_frame) << text;
    const std::string far = "/d/" + std::string(300, 'x') + "/MA.FMEM_001.SFM,,1,3,0,0,0";
    EXPECT_EQ(File_ReadFrameRow(far.c_str(), "MYHOST:/d/", &row), -1);
}
