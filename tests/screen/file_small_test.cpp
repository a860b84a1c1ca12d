// The pages of the File menu that have one list, or two that only show, filled by a server.
#include "file_dir.h"
#include "pc_file_idcopy.h"
#include "table_page.h"

namespace
{
struct SmallFilePictures : TablePage {
    static constexpr const char* ROOT = "/mnt/data/user/root/";
    static constexpr const char* DATE = ",Wed Nov 25 10:30:00 2026";

    void TearDown() override
    {
        (void)Leave();
        File_DirReset();
        FileIdCopy_Reset();
        (void)!::system("rm -rf /mnt/data/user/root");
        TablePage::TearDown();
    }
    // Each search of a kind ("Find") gets its rows, the first search the first ones.
    static void Answer(const Lines& sent, const std::string& kind, const std::vector<Lines>& rows)
    {
        const std::string path = "File@Access@" + kind;
        size_t n = 0;
        int ack = 70;
        for (const std::string& line : sent) {
            const std::string head = "put " + path + "#L";
            if (line.compare(0, head.size(), head) != 0)
                continue;
            const std::string work = std::to_string(++ack);
            Tell(path + "#L" + std::to_string(::atoi(line.c_str() + head.size())) + "," + work);
            for (const std::string& row : n < rows.size() ? rows[n] : Lines{})
                Tell(path + "@Status#" + work + "," + row);
            Tell(path + "@Status#" + work + ",OK");
            n++;
        }
    }
    static void Paint()
    {
        for (int i = 0; i < 4; i++)
            Pass(1000);
    }
};
} // namespace

TEST_F(SmallFilePictures, Directory)
{
    (void)!::system("mkdir -p /mnt/data/user/root/NEWS /mnt/data/user/root/SYSTEM; "
                    "touch /mnt/data/user/root/NEWS/.dirprotect");
    Lines rows;
    for (const char* name : {"SYSTEM", "SPORT", "NEWS", "ELECTION_2026", "MORNING", "WEATHER"})
        rows.push_back(std::string(ROOT) + name + DATE);
    Answer(Open(0x71710000), "ListDir", {rows});
    (void)Touch(120, 78 + 22 * 4 + 5);
    Paint();
    EXPECT_TRUE(MatchesGolden("file_directory"));
}

TEST_F(SmallFilePictures, UnitIdCopy)
{
    Lines rows;
    for (const char* file :
         {"SETUP/SWR000D001/A.DEV_0000.SST", "SNAPSHOT/SWR000D001/ME1/A.ME1_001.SSS",
          "SNAPSHOT/SWR000D001/ME1/B.ME1_002.SSS", "SNAPSHOT/SWR000D001/PP/A.PP_001.SSS",
          "EFFECT/SWR000D001/ME1/E.ME1_001.SKF", "EFFECT/DME000D001/CH1/E.CH1_0001.DKF"})
        rows.push_back(std::string(ROOT) + "SYSTEM/" + file + DATE);
    Answer(Open(0x71720000), "Find", {rows});
    Paint();
    EXPECT_TRUE(MatchesGolden("file_idcopy"));
}
