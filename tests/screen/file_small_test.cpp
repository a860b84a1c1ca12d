#include "pc_file_idcopy.h"
#include "server_page.h"

struct SmallFilePictures : ServerPage {
    static constexpr const char* ROOT = "/mnt/data/user/root/";

    void TearDown() override
    {
        (void)Leave();
        FileIdCopy_Reset();
        (void)!::system("rm -rf /mnt/data/user/root");
        ServerPage::TearDown();
    }
};

TEST_F(SmallFilePictures, Directory)
{
    (void)!::system("mkdir -p /mnt/data/user/root/NEWS /mnt/data/user/root/SYSTEM; "
                    "touch /mnt/data/user/root/NEWS/.dirprotect");
    (void)Reply(Open(0x71710000), "Access@ListDir",
                Below(ROOT, {"SYSTEM", "SPORT", "NEWS", "ELECTION_2026", "MORNING", "WEATHER"}));
    (void)Touch(120, 78 + 22 * 4 + 5);
    Paint();
    EXPECT_TRUE(MatchesGolden("file_directory"));
}

TEST_F(SmallFilePictures, UnitIdCopy)
{
    (void)Reply(
        Open(0x71720000), "Access@Find",
        Below(std::string(ROOT) + "SYSTEM/",
              {"SETUP/SWR000D001/A.DEV_0000.SST", "SNAPSHOT/SWR000D001/ME1/A.ME1_001.SSS",
               "SNAPSHOT/SWR000D001/ME1/B.ME1_002.SSS", "SNAPSHOT/SWR000D001/PP/A.PP_001.SSS",
               "EFFECT/SWR000D001/ME1/E.ME1_001.SKF", "EFFECT/DME000D001/CH1/E.CH1_0001.DKF"}));
    Paint();
    EXPECT_TRUE(MatchesGolden("file_idcopy"));
}
