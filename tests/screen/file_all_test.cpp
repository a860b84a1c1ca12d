// The All page of the File menu: a part of the categories, and a copy that goes on with failures.
#include "a_ls.h"
#include "pane.h"
#include "pc_file_all.h"
#include "table_page.h"

namespace
{
constexpr Rect work_area = {97, 73, 702, 526}; // the tabs belong to all file pages

struct FileAllPictures : TablePage {
    static void Paint()
    {
        for (int i = 0; i < 4; i++)
            Pass(1000);
    }
    static std::string Label(const std::string& line)
    {
        return line.substr(line.find("#L") + 2, line.find(',') - line.find("#L") - 2);
    }
    // The server answers one kind of work with rows and a result.
    static void Answer(const Lines& sent, const std::string& kind, const Lines& rows,
                       const std::string& result)
    {
        static int ack = 70;
        const std::string path = "File@Access@" + kind;
        for (const std::string& line : sent) {
            if (!line.starts_with("put " + path + "#L"))
                continue;
            const std::string number = std::to_string(++ack);
            SendDummyTally((path + "#L" + Label(line) + "," + number).c_str());
            for (const std::string& row : rows)
                SendDummyTally((path + "@Status#" + number + "," + row).c_str());
            SendDummyTally((path + "@Status#" + number + "," + result).c_str());
        }
    }
    static void Choose(int id)
    {
        const int pane = Pane_GetActiveID();
        Pane_Quit(pane);
        SendMessage(LMSG_PANEQUIT, pane, id, 0, 0);
    }
};
} // namespace

TEST_F(FileAllPictures, PartOfTheCategoriesAndACopyWithFailures)
{
    DeviceStructure();
    (void)Open(0x71110000);
    for (const int row : {0, 1, 2, 3, 12})
        (void)Press(BtnOfAllCategory(row));
    (void)Tell("Info@Operation Setup Data@Clear Before Load#2");
    Paint();
    EXPECT_TRUE(MatchesGolden("file_all", work_area));

    (void)Press(BTN_ALL_DEVICE_A);
    Choose(FILE_NETWORK + 1);
    Answer(TakeQueuedCommands(), "ListDir", {}, "OK");
    Choose(1);
    for (const int row : {4, 6, 7, 8, 9, 10, 11, 13})
        (void)Press(BtnOfAllCategory(row));
    Paint();
    (void)Press(BTN_ALL_L_TO_R);
    Pass(10);
    const std::string head = "/var/nfs/user/root/SYSTEM/SNAPSHOT/SWR000D001/ME1/";
    const std::string date = ",Wed Nov 25 10:30:00 2026";
    Lines found;
    for (const char* file : {"OPENING.ME1_001.SSS", "HEADLINE.ME1_002.SSS", "OTS L.ME1_003.SSS",
                             "OTS R.ME1_004.SSS", "WEATHER.ME1_005.SSS"})
        found.push_back(head + file + date);
    for (int i = 0; i < 20; i++) {
        Answer(TakeQueuedCommands(), "Find", found, "OK");
        Pass(10);
        if (QueueRoot && QueueRoot->worktype == FILEWORK_ACCESS_COPYLIST)
            break;
    }
    const Lines copies = TakeQueuedCommands();
    ASSERT_EQ(copies.size(), found.size());
    Answer({copies[0], copies[2]}, "Copy", {}, "OK");
    Answer({copies[1]}, "Copy", {}, "NG(No Space Left)");
    Answer({copies[3]}, "Copy", {}, "NG(File Not Exist)");
    Paint();
    EXPECT_TRUE(MatchesGolden("file_all_copy", work_area));
}
