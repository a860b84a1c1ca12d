#include "a_st_page.h"
#include "page_table/st_dme.h"
#include "page_table/st_globaleffect.h"
#include "page_table/st_me_key.h"
#include "page_table/st_me_misc.h"
#include "page_table/st_me_wipe.h"

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
         {"M/E-1@Key1@Edge@Edge Type", "Border"},
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
         {"M/E-1@Key1@Type@Matte Adjust@Color", "Color 1"},
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

TEST_F(StatusPicture, TheOverviewOfABank)
{
    static constexpr ST_TBL rows[] = {
        st_me_wipe[0],
        st_me_wipe[1],
        CellAt(2, 0, st_me_top[0]),
        CellAt(3, 0, st_me_top[4]),
        CellAt(4, 0, st_me_top[8]),
        CellAt(5, 0, st_me_top[12]),
        st_me_wipe[6],
        st_me_wipe[7],
        CellAt(2, 1, st_me_wipe[5]),
        CellAt(3, 1, st_me_wipe[4]),
        st_me_wipe[10],
        CellAt(5, 1, st_me_wipe[2]),
        ST_END,
    };
    SetTree({"M/E-1", "Wipe", "Main Pattern"}, 0x11510000);
    GL_ProcStatus[1] = 1;
    Open(rows);
    Say({{"M/E-1@Wipe@Main Pattern@Pattern", "67"},
         {"M/E-1@Wipe@Main Pattern@Position", "true"},
         {"M/E-1@Wipe@Main Pattern@Position@H", "60"},
         {"M/E-1@Wipe@Main Pattern@Position@V", "40"},
         {"M/E-1@Key1@Type@Key Type", "Luminance"},
         {"M/E-1@Key1@Type@Key Invert", "true"},
         {"M/E-1@Key1@Type@Clean Mode@Luminance", "true"},
         {"M/E-1@Key2@Type@Key Type", "Chroma"},
         {"M/E-1@Key2@Type@Chroma@Mix Mode", "Additive Mix"},
         {"M/E-1@Key3@Type@Key Type", "Key Wipe Pattern"},
         {"M/E-1@Key3@Type@Key Wipe Pattern@Pattern", "229"},
         {"M/E-1@Key3@Type@Key Invert", "true"},
         {"M/E-1@Key4@Type@Key Type", "Linear"},
         {"M/E-1@Wipe@Sub Pattern@Pattern", "146"},
         {"M/E-1@Wipe@Sub Pattern@Enable", "false"},
         {"M/E-1@Wipe@Sub Pattern@Position", "false"},
         {"M/E-1@Wipe@Sub Pattern@Position@H", "0"},
         {"M/E-1@Wipe@Sub Pattern@Position@V", "0"},
         {"M/E-1@Wipe@Sub Pattern@Auto Center", "true"},
         {"M/E-1@Wipe@Edge@Border", "true"},
         {"M/E-1@Wipe@Direction@Normal", "true"},
         {"M/E-1@Wipe@Direction@Reverse", "false"},
         {"M/E-1@Wipe@Direction@Norm/Rev", "true"},
         {"M/E-1@Wipe@Direction@Pattern Limit", "false"},
         {"M/E-1@Wipe@Pattern Mix@Pattern Mix", "Mix"},
         {"M/E-1@Wipe@Pattern Mix@Pattern", "179"},
         {"M/E-1@Wipe@Main Modify@Aspect", "25.00"},
         {"M/E-1@Wipe@Main Modify@Angle", "-45.0"},
         {"M/E-1@Wipe@Main Modify@Multi", "4"}});
    Pass();
    EXPECT_TRUE(MatchesGolden("status_bank", two_lines));
}

TEST_F(StatusPicture, TheCellsOfABanksOwnSettings)
{
    SetTree({"PGM/PST", "Misc", "Transition"}, 0x14710000);
    GL_ProcStatus[1] = 1;
    Open(st_me_misc);
    Say({{"PGM/PST@Misc@Transition@DME Wipe", "true"},
         {"PGM/PST@DME Wipe@Pattern Select@Pattern", "1201"},
         {"PGM/PST@Misc@Key Priority@Key Priority", "4,3,2,1,1,4,3,2"},
         {"PGM/PST@Misc@Key Priority@Next Key Priority", "1,2,3,4,1,2,3,4"},
         {"Engineering Setup@Switcher@Config@PGM Config@List", "P/P,1,35"},
         {"Engineering Setup@Switcher@Config@PGM Config@List", "P/P,2,FF"},
         {"Engineering Setup@Switcher@Config@PGM Config@List", "M/E-1,3,FF"},
         {"PGM/PST@Misc@Key Assign@Key3", "Main"},
         {"PGM/PST@Misc@Video Process@Video Process", "true"},
         {"PGM/PST@Misc@Video Process@Luminance", "-100.00"},
         {"PGM/PST@Misc@Clip Transition@Bkgd", "Both"},
         {"PGM/PST@Misc@Clip Transition@Output", "FM1"},
         {"PGM/PST@Misc@Clip Transition@Clip Name", "GOAL_STINGER_2"},
         {"PGM/PST@Misc@Clip Transition@Player", "Play"},
         {"PGM/PST@Misc@Clip Transition@Time Code", "00:00:12:05"},
         {"PGM/PST@Misc@Clip Transition@Position", "40"},
         {"PGM/PST@Misc@Clip Transition@Start", "25"},
         {"PGM/PST@Misc@Clip Transition@End", "75"}});
    Pass();
    EXPECT_TRUE(MatchesGolden("status_misc", two_lines));
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
         {"Global Effect@Ch1-Ch4@Brick@Ch4@Faces", "2"},
         {"Global Effect@Ch5-Ch8@Brick@Ch5", "true"},
         {"Global Effect@Ch5-Ch8@Brick@Ch5@Faces", "4"}});
    Pass();
    EXPECT_TRUE(MatchesGolden("status_global", work_area));
}

TEST_F(StatusPicture, OtherWaysOfCountingChannels)
{
    static constexpr ST_TBL rows[] = {st_globaleffect_status_dp[0],
                                      st_globaleffect_status_dp[2],
                                      CellAt(3, 2, st_globaleffect_status_3D[0], 3, 2),
                                      CellAt(0, 2, st_globaleffect_status_e[2], 3, 2),
                                      CellAt(4, 0, st_globaleffect_status_e[0]),
                                      ST_END};
    SetTree({"Global Effect"}, 0x42000000);
    Open(rows);
    Say({{"Global Effect@Ch1-Ch2@Combine@Ch2", "true"},
         {"Global Effect@Ch1-Ch4@Combine@Ch1", "true"},
         {"Global Effect@Ch1-Ch4@Trail@Ch1", "Pre"},
         {"Global Effect@Ch1-Ch4@Priority@Ch1", "1"}});
    Pass();
    EXPECT_TRUE(MatchesGolden("status_global_forms", work_area));
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

// Every shared part, plain, lit, inverted and veiled, in both fonts.
TEST_F(StatusPicture, SharedParts)
{
    static constexpr int (*painters[])(ST_MEM*) = {st_drw_status_string_type,
                                                   st_drw_status_value_type,
                                                   st_drw_status_bmp,
                                                   st_drw_status_image,
                                                   st_drw_put_bmp_ptn1,
                                                   st_drw_put_bmp_ptn2,
                                                   st_drw_put_bmp_ptn3,
                                                   st_drw_test_1,
                                                   st_drw_test_2,
                                                   st_drw_test_3,
                                                   st_drw_test_4,
                                                   st_drw_status_dummy};
    static const struct {
        int lit, invert, veil, small;
    } looks[] = {{0, 0, 0, 0}, {1, 1, 0, 0}, {1, 0, 1, 1}};
    GL_ProcStatus[1] = 1;
    for (int i = 0; i < 3; i++) {
        bgcen = looks[i].lit;
        inven = looks[i].invert;
        gryen = looks[i].veil;
        s_font = looks[i].small;
        ST_TBL rows[13];
        for (int n = 0; n < 12; n++)
            rows[n] = CellAt(n % 6, n / 6, {.id = n + 10, .draw_func = painters[n]});
        rows[12] = ST_END;
        for (int n = 0; n < 12; n++) { // three looks share the screen
            rows[n].x1 = 4 + 100 * (n % 6);
            rows[n].x2 = rows[n].x1 + 99;
            rows[n].y1 = 10 + 190 * i + 90 * (n / 6);
            rows[n].y2 = rows[n].y1 + 89;
        }
        Open(rows);
        Pass();
    }
    bgcen = inven = gryen = s_font = 0;
    EXPECT_TRUE(MatchesGolden("status_parts", {0, 0, 610, 570}));
}
