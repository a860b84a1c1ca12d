// The Field Invert page, against a server that reads the headers of frames.
#include "a_ls.h"
#include "file.h"
#include "global.h"
#include "pane.h"
#include "pc_file_fieldinvert.h"
#include "table_page.h"
#include "text.h"

namespace
{
constexpr const char* DIR = "/mnt/data/user/root/SYSTEM/FRAMEMEM/";

struct FieldInvertPage : TablePage {
    static inline int ack = 600;
    const int was_v6 = SYS_FmemV6;
    void SetUp() override
    {
        TablePage::SetUp();
        File_Reset();
        FileFieldInvert_Reset();
        SYS_FmemV6 = 0; // the older frame memory has its frames in one folder
    }
    void TearDown() override
    {
        (void)Leave();
        FileFieldInvert_Reset();
        File_Reset();
        File_ReplaceSync(nullptr);
        SYS_FmemV6 = was_v6;
        TablePage::TearDown();
    }
    // The rows that the one search among these commands brings.
    static void List(const Lines& sent, const Lines& rows)
    {
        const std::string head = "put File@Access@FindSFM#L";
        for (const std::string& line : sent) {
            if (line.compare(0, head.size(), head) != 0)
                continue;
            EXPECT_THAT(line, HasSubstr(std::string(",MYHOST:") + DIR + ",*.*.*"));
            Tell("File@Access@FindSFM#" +
                 line.substr(head.size() - 1, line.find(',') - head.size() + 1) + "," +
                 std::to_string(++ack));
        }
        for (const std::string& row : rows)
            Tell("File@Access@FindSFM@Status#" + std::to_string(ack) + "," + row);
        Tell("File@Access@FindSFM@Status#" + std::to_string(ack) + ",OK");
    }
    static std::string Row(int n)
    {
        std::string text;
        for (int column = 0; column < 8; column++)
            text += std::string(column ? "|" : "") + LS_GetData(1, n, column);
        return text;
    }
};
} // namespace

TEST_F(FieldInvertPage, InvertsWhatIsSelectedAndShowsTheResult)
{
    const std::string logo = std::string(DIR) + "SWR000D001/MLOGO.FMEM_007.SFM";
    const std::string tail = ",Wed Nov 25 10:30:00 2026,1,3,0,";
    List(Open(0x71540000),
         {std::string(DIR) + "SWR000D001/MBACK.FMEM_012.SFA" + tail + "1,1", logo + tail + "0,0",
          std::string("/etc/SWR000D001/MBACK.FMEM_013.SFM") + tail + "0,0"});
    ASSERT_EQ(LS_GetNData(1), 2);
    EXPECT_EQ(Row(0), "007|MLOGO|Nov.25.2026 10:30|1|1080i|||") << "by number";
    EXPECT_EQ(Row(1), "012|MBACK|Nov.25.2026 10:30|1|1080i||O|O");
    (void)Touch(200, 124 + 22 + 5);
    (void)Press(BTN_INVERT_EXEC);
    const int question = Pane_GetActiveID();
    EXPECT_NE(question, 0);
    Pane_Quit(question);
    (void)TakeQueuedCommands();
    SendMessage(LMSG_PANEQUIT, question, 1, 0, 0);
    const Lines sent = TakeQueuedCommands();
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_THAT(sent[0], HasSubstr("put File@Frame Memory@FieldInvert#L"));
    EXPECT_THAT(sent[0], testing::EndsWith(",MYHOST:" + logo));
    File_ReplaceSync([] { return 0; });
    const std::string path = "File@Frame Memory@FieldInvert";
    const std::string label =
        sent[0].substr(sent[0].find("#L"), sent[0].find(',') - sent[0].find("#L"));
    Tell(path + label + ",77");
    Lines again = Tell(path + "@Status#77,OK");
    List(again, {logo + tail + "1,1"});
    EXPECT_EQ(Row(0), "007|MLOGO|Nov.25.2026 10:30|1|1080i||O|O");
    (void)Open(0x71540000);
    EXPECT_NE(QueueRoot, nullptr);
    (void)Leave();
    EXPECT_EQ(QueueRoot, nullptr) << "a search that nobody waits for";
}

TEST_F(FieldInvertPage, RowsThatAreNone)
{
    static const struct {
        const char* row;
        bool is_frame;
    } cases[] = {
        {"/d/U/MA.FMEM_001.SFM,,1,3,0,0,0", true},    {"MYHOST:/d/U/MA.FMEX1234.SF2,x,,,,,", true},
        {"/d/U/MA.FMEM_001.SFM,,1,3,0,0", false},     {"/d/U/MA.FMEM_001.SFM,,1,3,0,0,0,", false},
        {"/e/U/MA.FMEM_001.SFM,,1,3,0,0,0", false},   {"/d/../MA.FMEM_001.SFM,,1,3,0,0,0", false},
        {"/d/U/.FMEM_001.SFM,,1,3,0,0,0", false},     {"/d/U/MA.FMEM_.SFM,,1,3,0,0,0", false},
        {"/d/U/MA.FMEM_00001.SFM,,1,3,0,0,0", false}, {"/d/U/001.SFM,,1,3,0,0,0", false},
        {"/d/U/MA.FMEM_001.SST,,1,3,0,0,0", false},   {"", false},
    };
    FILELIST_FI row;
    for (const auto& c : cases)
        EXPECT_EQ(File_ReadFrameRow(c.row, "MYHOST:/d/", &row) == 0, c.is_frame) << c.row;
    const std::string far = "/d/" + std::string(300, 'x') + "/MA.FMEM_001.SFM,,1,3,0,0,0";
    EXPECT_EQ(File_ReadFrameRow(far.c_str(), "MYHOST:/d/", &row), -1);
}
