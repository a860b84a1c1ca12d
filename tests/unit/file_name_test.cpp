#include "device.h"
#include "file_name.h"
#include "global.h"
#include "harness.h"
#include "me_config.h"
#include "pane.h"
#include "text.h"
#include <cstring>

struct FileName : testing::Test {
    const FullHouse all;
    void SetUp() override
    {
        Harness_Reset();
        SYS_SwrMax = 2;
        SYS_DmeMax = 4;
        for (int i = 0; i < 4; i++) {
            PrintText(DEV_Dme[i].name, "DME%d", i + 1);
            PrintText(DEV_Dme[i].id, "DME001D%03d", i + 1);
        }
        CopyText(DEV_Swr[1].name, "SWR2");
        CopyText(DEV_Swr[1].id, "SWR001D002");
        SYS_PnlAssign[1][1] = 2;
        SYS_SwrAssign[1][2] = 3;
        SYS_SwrAssign[1][3] = 4;
        DeviceStructure();
    }
    void TearDown() override { Harness_Reset(); }
    static std::string Path(const FILEINFO& info, int device, const char* dir = "SYSTEM")
    {
        char path[280];
        return info2name(info, path, device, dir, sizeof path) == 0 ? path : "none";
    }
    static int Parse(int grp, const std::string& path, FILEINFO* info = nullptr)
    {
        FILEINFO own;
        FILEINFO* const to = info ? info : &own;
        to->grp = grp;
        return name2info(path.c_str(), to);
    }
};

// Every region of every group, first and last register, with the unit's short and whole id.
TEST_F(FileName, EveryRegionOfEveryGroupComesBack)
{
    int regions = 0;
    for (int grp = 0; grp < FILE_GROUPS; grp++) {
        for (int main = 0; main < PaneRegion_GetMainMax(grp); main++) {
            for (int sub = 0; *PaneRegion_GetGrpFIExt(grp, main, sub); sub++) {
                if (!File_HasRegion(grp, main, sub))
                    continue;
                regions++;
                // A register of the frame memory has a name of its own kind.
                const char* const name = grp == 23 ? "A_B_C" : "A.B_C";
                for (const int no : {0, RegisterNum[grp] - 1}) {
                    const FILEINFO info = {grp, main, sub, no, 0, "A.B_C"};
                    const std::string path = Path(info, FILE_LOCAL);
                    FILEINFO back;
                    if (RegisterNum[grp] == 0) {
                        EXPECT_LT(Parse(grp, path, &back), 0) << path;
                        continue;
                    }
                    ASSERT_EQ(Parse(grp, path, &back), 0) << path;
                    EXPECT_TRUE(back.main == main && back.sub == sub && back.no == no) << path;
                    EXPECT_STREQ(back.name, name) << path;
                    back.device |= FILE_WHOLE_ID;
                    const std::string whole = Path(back, FILE_NETWORK);
                    FILEINFO again;
                    ASSERT_EQ(Parse(grp, whole, &again), 0) << whole;
                    EXPECT_TRUE(again.sub == sub && again.main == main && again.no == no) << whole;
                }
            }
        }
    }
    EXPECT_GT(regions, 500);
}

TEST_F(FileName, PathsOfDrivesAndUnits)
{
    CopyText(GL_RegistDataPath, "/mnt/data/");
    CopyText(GL_ImportDataPath, "");
    static const struct {
        int grp, main, sub, no, unit;
        const char* name;
        int device;
        const char* path;
    } cases[] = {
        {13, 0, 0, 0, 0, "OPEN", FILE_LOCAL,
         "MYHOST:/mnt/data/user/root/SYSTEM/SNAPSHOT/SWR000D001/ME1/OPEN.ME1_001.SSS"},
        {13, 0, 0, 98, FILE_WHOLE_ID, "a/b,c", FILE_NETWORK,
         "MYHOST:/var/nfs/user/root/SYSTEM/SNAPSHOT/SWR001D001/ME1/a_b_c.ME1_099.SSS"},
        {13, 3, 5, 0, 1, "x.y z", FILE_REMOVABLE,
         "MYHOST:/mnt/usb/usb1/SYSTEM/SNAPSHOT/DME000D002/CH2/x_y z.CH2_0001.DSS"},
        {0, 0, 4, 0, 1, "S", FILE_LOCAL,
         "MYHOST:/mnt/data/user/root/SYSTEM/SETUP/SWR000D002/S.DEV_0000.SFS"},
        {21, 0, 0, 249, 0, "M", FILE_REMOTE_PNL,
         "PNL001D001:/mnt/data/user/root/SYSTEM/MACRO/CTRLCPU/M.PNL_0250.PMR"},
        {21, 0, 0, 0, 0, "M", FILE_REGISTER, "PNL001D001:/vorn/tmp/file/MACRO/PNL1/M.PNL_0001.PMR"},
        {13, 1, 0, 0, 0, "P", FILE_REGISTER,
         "SWR001D001:/vorn/tmp/file/SNAPSHOT/SWR1/P.PP_001.SSS"},
        {8, 0, 1, 0, 2, "W", FILE_REGISTER, "DME001D002:/vorn/tmp/file/EFFECT/SWR1/W.CHF_0101.DKF"},
        {33, 0, 0, 6, 0, "MMCR7", FILE_REGISTER, "MYHOST:/var/tmp/MenuMacro/mm_reg07.tmp"},
    };
    for (const auto& c : cases) {
        FILEINFO info = {c.grp, c.main, c.sub, c.no, c.unit};
        CopyText(info.name, c.name);
        EXPECT_EQ(Path(info, c.device), c.path);
    }
    char target[8];
    for (const auto& [n, expected] : {std::pair{5, "PNL1"}, {7, "SWR1"}}) {
        EXPECT_EQ(File_Target(cases[n].path, target, sizeof target), 0);
        EXPECT_STREQ(target, expected);
    }
    EXPECT_EQ(File_Target(cases[8].path, target, sizeof target), -1);
}

TEST_F(FileName, EveryStepThatFailsHasItsNumber)
{
    static const std::tuple<int, const char*, int> cases[] = {
        {13, "", NAME_NO_EXT},
        {13, "SWR000D001/ME1/A", NAME_NO_EXT},
        {13, "SWR000D001/ME1/A.SSS", NAME_NO_NUMBER},
        {13, "SWR000D001/ME1/A_001.SSS", NAME_NO_REGION},
        {13, "A.ME1_001.SSS", NAME_NO_FOLDER},
        {13, "ME1/A.ME1_001.SSS", NAME_NO_UNIT},
        {13, "SWR000D001/ME1/A.ME1_001.SSS", NAME_NO_UNIT}, // one "/" before the unit, too
        {13, "/SWR000D009/ME1/A.ME1_001.SSS", NAME_UNKNOWN_UNIT},
        {13, "/SWR002D001/ME1/A.ME1_001.SSS", NAME_UNKNOWN_UNIT}, // of another group
        {13, "/CTRLCPU/ME1/A.ME1_001.SSS", NAME_UNKNOWN_UNIT},
        {21, "/SWR000D001/A.PNL_0001.PMR", NAME_UNKNOWN_UNIT},
        {13, "/SWR000D001/ME9/A.ME9_001.SSS", NAME_UNKNOWN_REGION},
        {13, "/SWR000D001/ME1/A.ME1_001.SKF", NAME_UNKNOWN_REGION},
        {13, "/SWR000D001/ME1/A.ME1_000.SSS", NAME_BAD_NUMBER},
        {13, "/SWR000D001/ME1/A.ME1_100.SSS", NAME_BAD_NUMBER},
        {13, "/SWR000D001/ME1/A.ME1_-01.SSS", NAME_BAD_NUMBER},
        {13, "/SWR000D001/ME1/A.ME1_.SSS", NAME_BAD_NUMBER},
        {13, "/SWR000D001/ME1/A.ME1_4294967297.SSS", NAME_BAD_NUMBER},
        {13, "/DME000D003/CH1/A.CH1_0001.DSS", NAME_NOT_OF_UNIT}, // it serves no channel
        {8, "/DME000D001/CHF/A.CHF_0100.DKF", NAME_NOT_100},
        {10, "/DME000D001/CHF/A.CHF_0300.DKF", NAME_NOT_200},
        {12, "/DME000D001/CHF/A.CHF_0001.DKF", NAME_NOT_300},
        {13, "/SWR000D001/ME1/A.ME1_001.SSS", 0},
        {13, "/SWR000D001/ME1/.ME1_001.SSS", 0}, // a register without a name
        {5, "/SWR000D001/ME1/A.ME1_000.SKF", 0}, // the second form counts from 0
        {46, "/SWR000D001/ME1/A.ME1_001.SSS", NAME_UNKNOWN_REGION},
        {-1, "/SWR000D001/ME1/A.ME1_001.SSS", NAME_UNKNOWN_REGION},
    };
    for (const auto& [grp, path, result] : cases)
        EXPECT_EQ(Parse(grp, path), result) << grp << " " << path;
    SYS_MyDme2 = -1;
    EXPECT_EQ(Parse(8, "/DME000D001/CHF/A.CHF_0101.DKF"), 0);
    SYS_MyDme1 = -1;
    EXPECT_EQ(Parse(8, "/DME000D001/CHF/A.CHF_0101.DKF"), NAME_NO_UNIT_HERE);
}

TEST_F(FileName, NothingIsCutIntoAnotherName)
{
    const FILEINFO info = {13, 0, 0, 0, 0, "OPEN"};
    char path[60] = "old";
    EXPECT_EQ(info2name(info, path, FILE_LOCAL, "SYSTEM", sizeof path), -1);
    EXPECT_STREQ(path, "");
    const std::string longest = "/SWR000D001/ME1/" + std::string(300, 'N') + ".ME1_001.SSS";
    FILEINFO back;
    EXPECT_EQ(Parse(13, longest, &back), 0);
    EXPECT_EQ(strlen(back.name), size_t(FILE_NAME_SIZE - 1));
}
