#include "a_st_page.h"
#include "me_bank.h"
#include "page_table/engineering.h"
#include "page_table/st_dme.h"
#include "page_table/st_globaleffect.h"
#include "page_table/st_me_key.h"
#include "page_table/st_me_misc.h"
#include "page_table/st_status.h"

constexpr Rect two_lines = {97, 73, 702, 256};
constexpr Rect work_area = {97, 73, 702, 526};

struct StatusPicture : CellPage {
    // Tallies below a path, each a tail, "#" and its value.
    static void Say(const std::string& path, const Strings& tallies)
    {
        for (const std::string& tally : tallies) {
            const size_t hash = tally.find('#');
            Tally((path + tally.substr(0, hash)).c_str(), tally.c_str() + hash + 1);
        }
    }
};

TEST_F(StatusPicture, TheCellsOverAKeyPage)
{
    GL_ProcStatus[1] = 1;
    SYS_KeyTransitionME1 = 1;
    Open(st_me_key);
    Say("M/E-1@Key1@Type@", {"Key Type#Luminance", "Clean Mode@Luminance#true", "Key Source#Split",
                             "Signal Select@Source#Key Bus", "Key Fill#Matte"});
    Say("M/E-1@Key1@",
        {"Type@Matte Adjust@Mode#Flat", "Edge@Edge#Border", "Main Mask@Main Mask#true",
         "Sub Mask@Sub Mask#false", "Sub Mask@Mask Source#Pattern"});
    Say("M/E-1@Key1@Main Mask@",
        {"Mask Source#Pattern", "Mask Invert#true", "Ptn Select@Pattern#33"});
    Say("M/E-1@Key1@Resizer@", {"Size#0.75", "H#-12.50", "V#4.00"});
    Say("M/E-1@Key1@Video Process@",
        {"Video Process#false", "Luminance#100.0", "Chroma#100.0", "Hue#0.0"});
    Say("M/E-1@Key1@Transition@",
        {"ON Transition Type#DME Wipe", "DME Wipe@Pattern Select@Pattern#1001",
         "OFF Transition Type#Wipe", "OFF Wipe Pattern#2"});
    Say("M/E-1@Key1@", {"Processed Key@Processed Key#true", "Processed Key@DME Select@DME1#true",
                        "Status@Source Name#CG 1"});
    Say("M/E-1@", {"Wipe@Sub Pattern@Pattern#65", "Misc@Key Priority@Key Priority#1,3,2,4"});
    Pass();
    SYS_KeyTransitionME1 = 0;
    EXPECT_TRUE(MatchesGolden("status_key", two_lines));
}

TEST_F(StatusPicture, ChannelsAndTheirCombiners)
{
    SetTree({"Global Effect"}, 0x42000000);
    GL_ProcStatus[1] = 1;
    Open(st_globaleffect_status);
    Say("Global Effect@",
        {"Ch1-Ch4@Combine@Ch1#true", "Ch1-Ch4@Combine@Ch2#true", "Ch1-Ch4@Combine@Ch3#false",
         "Ch1-Ch4@Trail@Ch1#Post", "Ch1-Ch4@Trail@Ch2#Pre", "Ch1-Ch4@Trail@Ch3#Pre",
         "Ch1-Ch4@Priority@Ch3#3", "Ch1-Ch4@Brick@Ch4#true", "Ch1-Ch4@Brick@Faces#2",
         "Ch5-Ch8@Brick@Ch5#true", "Ch5-Ch8@Brick@Faces#4", "Ch5-Ch8@Combine@Ch6#true"});
    Pass();
    EXPECT_TRUE(MatchesGolden("status_global", work_area));
    // Units of pairs, which speak for themselves, of two channels, and for two eyes.
    const auto open_alone = [](const ST_TBL* cells) {
        TDL_FillRectS(work_area.x1, work_area.y1, work_area.x2, work_area.y2, 0);
        Open(cells);
    };
    open_alone(st_globaleffect_status_dp);
    Say("Global Effect@",
        {"Ch1-Ch2@Combine@Ch2#true", "Ch1-Ch2@Trail@Ch2#Pre", "Ch3-Ch4@Combine@Ch2#false",
         "Ch3-Ch4@Priority@Ch2#2", "Ch5-Ch6@Combine@Ch2#true", "Ch5-Ch6@Brick@Ch2#false",
         "Ch7-Ch8@Combine@Ch2#true", "Ch7-Ch8@Trail@Ch2#Post", "Ch7-Ch8@Brick@Ch2#true",
         "Ch7-Ch8@Brick@Faces#3"});
    Pass();
    EXPECT_TRUE(MatchesGolden("status_global_pairs", work_area));
    for (const auto& [name, cells] : {std::pair{"small", &st_globaleffect_status_e[0]},
                                      {"eyes", &st_globaleffect_status_3D[0]}}) {
        open_alone(cells);
        Say("Global Effect@",
            {"Ch1-Ch4@Combine@Ch1#true", "Ch1-Ch4@Combine@Ch2#false", "Ch1-Ch4@Trail@Ch1#Post",
             "Ch5-Ch8@Combine@Ch6#true", "Ch5-Ch8@Trail@Ch6#Pre"});
        Pass();
        EXPECT_TRUE(MatchesGolden(std::string("status_global_") + name, two_lines));
    }
}

TEST_F(StatusPicture, BanksWithFourAndWithEightKeys)
{
    const MeBank* const second = MeBank_OfCaption("M/E-2");
    GL_ProcStatus[1] = 1;
    GL_KeyMax[second->place] = 4;
    Open(st_misc_rates);
    for (const std::string bank : {"M/E-1@", "M/E-2@"}) {
        Say(bank, {"Misc@Transition@Transition Rate#30"});
        for (const char key : {'1', '2', '4', '5', '8'})
            Say(bank + "Key" + key + "@Transition@", {std::string("ON Transition Rate#6") + key});
    }
    Pass();
    GL_KeyMax[second->place] = 8;
    EXPECT_TRUE(MatchesGolden("status_rates", two_lines));
}

TEST_F(StatusPicture, ABankAndItsClipTransition)
{
    SetTree({"M/E-1", "Misc"}, 0x11710000);
    GL_ProcStatus[1] = 1;
    Open(st_me_misc);
    Say("M/E-1@Misc@",
        {"Transition@Super Mix#true", "Key Priority@Key Priority#2,1,3,4,1,2,4,3",
         "Key Priority@Next Key Priority#4,3,2,1", "Key Assign@Key1#Main", "Key Assign@Key6#Sub",
         "Video Process@Luminance#100.00", "Clip Transition@Bkgd#B",
         "Clip Transition@Bkgd Name#CAM 2", "Clip Transition@Output#FM1",
         "Clip Transition@Clip Name#OPENING", "Clip Transition@Player#Play",
         "Clip Transition@Time Code#00:00:10:05", "Clip Transition@Position#40",
         "Clip Transition@Start#25", "Clip Transition@End#75"});
    Pass();
    EXPECT_TRUE(MatchesGolden("status_misc", two_lines));
}

// As the developer's page has them, plain and with all its switches on.
TEST_F(StatusPicture, ThePartsOfCells)
{
    for (const int on : {0, 1}) {
        bgcen = inven = gryen = s_font = on;
        Open(st_eng_checker);
        GL_ST_area_update_draw();
        Pass();
        EXPECT_TRUE(MatchesGolden("status_parts_" + std::to_string(on), two_lines));
    }
    bgcen = inven = gryen = 0;
}

TEST_F(StatusPicture, TablesOfTransforms)
{
    SetTree({"DME"}, 0x41110000);
    Tally("DME@Status@3D Param@Mode Status@Reference", "12,5,0");
    Say("DME@Status@3D Param@Global Source@",
        {"Location@X#-12.3456", "Rotation@Z#1.2500", "Crop@Y#-1234.5678"});
    Pass();
    EXPECT_TRUE(MatchesGolden("status_transform", {97, 73, 502, 256}));
    GL_ProcStatus[1] = 1;
    Open(st_dme_status);
    Say("DME@Status@",
        {"3D Param@Local Target@Location@X#4.0000", "3D Param@Global Target@Rotation@Y#0.5000",
         "Channel@1#M/E-1", "Channel@2#P/P Sub"});
    Pass();
    EXPECT_TRUE(MatchesGolden("status_dme", work_area));
}
