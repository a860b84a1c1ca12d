#include "a_st_page.h"
#include "page_table/st_dme.h"
#include "page_table/st_globaleffect.h"
#include "page_table/st_me_key.h"

constexpr Rect two_lines = {97, 73, 702, 256};
constexpr Rect work_area = {97, 73, 702, 526};

struct StatusPicture : CellPage {
    static void Say(std::initializer_list<std::pair<const char*, const char*>> tallies)
    {
        for (const auto& [path, value] : tallies)
            Tally(path, value);
    }
};

TEST_F(StatusPicture, TheCellsOverAKeyPage)
{
    GL_ProcStatus[1] = 1;
    SYS_KeyTransitionME1 = 1;
    Open(st_me_key);
    Say({{"M/E-1@Key1@Type@Key Type", "Luminance"},
         {"M/E-1@Key1@Type@Clean Mode@Luminance", "true"},
         {"M/E-1@Key1@Edge@Edge", "Border"},
         {"M/E-1@Key1@Main Mask@Main Mask", "true"},
         {"M/E-1@Key1@Main Mask@Mask Source", "Pattern"},
         {"M/E-1@Key1@Main Mask@Mask Invert", "true"},
         {"M/E-1@Key1@Main Mask@Ptn Select@Pattern", "33"},
         {"M/E-1@Key1@Sub Mask@Sub Mask", "false"},
         {"M/E-1@Key1@Sub Mask@Mask Source", "Pattern"},
         {"M/E-1@Wipe@Sub Pattern@Pattern", "65"},
         {"M/E-1@Key1@Resizer@Size", "0.75"},
         {"M/E-1@Key1@Resizer@H", "-12.50"},
         {"M/E-1@Key1@Resizer@V", "4.00"},
         {"M/E-1@Key1@Video Process@Video Process", "false"},
         {"M/E-1@Key1@Video Process@Luminance", "100.0"},
         {"M/E-1@Key1@Video Process@Chroma", "100.0"},
         {"M/E-1@Key1@Video Process@Hue", "0.0"},
         {"M/E-1@Key1@Type@Key Source", "Split"},
         {"M/E-1@Key1@Type@Signal Select@Source", "Key Bus"},
         {"M/E-1@Key1@Status@Source Name", "CG 1"},
         {"M/E-1@Key1@Type@Key Fill", "Matte"},
         {"M/E-1@Key1@Type@Matte Adjust@Mode", "Flat"},
         {"M/E-1@Key1@Transition@ON Transition Type", "DME Wipe"},
         {"M/E-1@Key1@Transition@DME Wipe@Pattern Select@Pattern", "1001"},
         {"M/E-1@Key1@Transition@OFF Transition Type", "Wipe"},
         {"M/E-1@Key1@Transition@OFF Wipe Pattern", "2"},
         {"M/E-1@Key1@Processed Key@Processed Key", "true"},
         {"M/E-1@Key1@Processed Key@DME Select@DME1", "true"},
         {"M/E-1@Misc@Key Priority@Key Priority", "1,3,2,4"}});
    Pass();
    SYS_KeyTransitionME1 = 0;
    EXPECT_TRUE(MatchesGolden("status_key", two_lines));
}

TEST_F(StatusPicture, ChannelsAndTheirCombiners)
{
    SetTree({"Global Effect"}, 0x42000000);
    GL_ProcStatus[1] = 1;
    Open(st_globaleffect_status);
    Say({{"Global Effect@Ch1-Ch4@Combine@Ch1", "true"},
         {"Global Effect@Ch1-Ch4@Combine@Ch2", "true"},
         {"Global Effect@Ch1-Ch4@Combine@Ch3", "false"},
         {"Global Effect@Ch1-Ch4@Trail@Ch1", "Post"},
         {"Global Effect@Ch1-Ch4@Trail@Ch2", "Pre"},
         {"Global Effect@Ch1-Ch4@Trail@Ch3", "Pre"},
         {"Global Effect@Ch1-Ch4@Priority@Ch3", "3"},
         {"Global Effect@Ch1-Ch4@Brick@Ch4", "true"},
         {"Global Effect@Ch1-Ch4@Brick@Faces", "2"},
         {"Global Effect@Ch5-Ch8@Brick@Ch5", "true"},
         {"Global Effect@Ch5-Ch8@Brick@Faces", "4"},
         {"Global Effect@Ch5-Ch8@Combine@Ch6", "true"}});
    Pass();
    EXPECT_TRUE(MatchesGolden("status_global", work_area));
}

TEST_F(StatusPicture, TablesOfTransforms)
{
    SetTree({"DME"}, 0x41110000);
    Tally("DME@Status@3D Param@Mode Status@Reference", "12,5,0");
    Say({{"DME@Status@3D Param@Global Source@Location@X", "-12.3456"},
         {"DME@Status@3D Param@Global Source@Rotation@Z", "1.2500"},
         {"DME@Status@3D Param@Global Source@Crop@Y", "-1234.5678"}});
    Pass();
    EXPECT_TRUE(MatchesGolden("status_transform", {97, 73, 502, 256}));
    GL_ProcStatus[1] = 1;
    Open(st_dme_status);
    Say({{"DME@Status@3D Param@Local Target@Location@X", "4.0000"},
         {"DME@Status@3D Param@Global Target@Rotation@Y", "0.5000"},
         {"DME@Status@Channel@1", "M/E-1"},
         {"DME@Status@Channel@2", "P/P Sub"}});
    Pass();
    EXPECT_TRUE(MatchesGolden("status_dme", work_area));
}
