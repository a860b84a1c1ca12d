#include "a_dw.h"
#include "a_hf.h"
#include "a_kp.h"
#include "a_ps.h"
#include "a_vf.h"
#include "page_table/me_tabs.h"
#include "page_table/patterns.h"
#include "tab_page.h"

struct TabPictures : TabPage {
    void Tree(std::initializer_list<const char*> tree, uint32_t id, int kind)
    {
        SetTree(tree, id, kind);
        Pass(); // the frame and its keys
    }
};

TEST_F(TabPictures, LeftTabsOfAKey)
{
    VF_TBL tabs[8] = {};
    int id = 0;
    for (const char* caption : {"Key1", "Key2", "Key3", "Key4", "Wipe", "Hidden", "Misc"}) {
        tabs[id] = {
            .id = id + 1, .caption = caption, .page = 0x11110000 + 0x100000u * unsigned(id)};
        id++;
    }
    tabs[id] = VF_END;
    Tree({"M/E-1", "Key2", "Type"}, 0x11210000, OBJ_VF);
    VF_Create(tabs, 2);
    VF_SetDisplay(6, 0);
    multiprogram2_me[1] = 1;
    for (const char* row : {"M/E-1,1,Main", "M/E-1,2,Sub"})
        Tally(OUTPUT_LIST, row);
    for (const char* row : {"M/E-1,1,03", "M/E-1,2,06"})
        Tally(PGM_LIST, row);
    Pass();
    EXPECT_TRUE(MatchesGolden("tab_left", {0, 66, 99, 599}));
}

TEST_F(TabPictures, BottomTabsWithWhatIsActive)
{
    Tree({"M/E-1", "Key1", "Type"}, 0x11110000, OBJ_HF);
    HF_Create(hf_me_key, 1);
    Tally("M/E-1@Key1@Edge@Edge", "Border");
    Tally("M/E-1@Key1@Main Mask@Main Mask", "true");
    Tally("M/E-1@Key1@Sub Mask@Sub Mask", "false");
    Pass();
    EXPECT_TRUE(MatchesGolden("tab_bottom", {90, 520, 799, 599}));
}

TEST_F(TabPictures, PatternSelectWithAChosenCell)
{
    Tree({"M/E-1", "Key1", "Main Mask", "Ptn Select"}, 0x11130001, OBJ_PS);
    PS_Create(&ps_me_key_mainmask_maskptnsel, 0);
    Tally("M/E-1@Key1@Main Mask@Ptn Select@Pattern", "49");
    Pass();
    EXPECT_TRUE(MatchesGolden("pattern_select", {97, 73, 702, 526}));
}

TEST_F(TabPictures, ListOfEffectsUnitWipes)
{
    Tree({"M/E-1", "Key1", "Transition", "Adjust"}, 0x11170003, OBJ_DW);
    DW_Create(&dw_me_key_trans_dmewipeadj_1ch, 0);
    Tally("M/E-1@Key1@Transition@Adjust@Pattern Select@Pattern", "1012");
    SendMessage(LMSG_SBSEL, SB_DOWN, 0, 1, 0);
    Pass();
    Pass();
    EXPECT_TRUE(MatchesGolden("dme_wipe_list", {97, 73, 702, 526}));
}

TEST_F(TabPictures, ListOfPaths)
{
    static const KP_TBL rows[] = {
        {"M/E-1 All", 1, 1, 1, 0, "~@All@", 0x61130000},
        {"Bkgd/Util", 1, 1, 1, 1, "~@Bkgd/Util@", 0x61130501},
        {"Key1", 1, 1, 1, 0, "~@Key1@", 0x61130502},
        {"Wipe", 0, 0, 1, 0, "~@Wipe@"},
        KP_END,
    };
    Tree({"Key Frame", "M/E-1"}, 0x61130000, OBJ_KP);
    KP_Create(rows, 0);
    static const std::pair<const char*, const char*> tallies[] = {{"All@Xpt", "Mixed"},
                                                                  {"All@Hue", "Short"},
                                                                  {"All@Curve", "Linear"},
                                                                  {"Bkgd/Util@Xpt", "Change"},
                                                                  {"Bkgd/Util@Hue", "CCW"},
                                                                  {"Key1@Xpt", "Hold"},
                                                                  {"Key1@Curve", "Spline"},
                                                                  {"Key1@Curve@Spline@Tens", "0.5"},
                                                                  {"Key1@Curve@Spline@Cont", "-1"},
                                                                  {"Wipe@Curve", "Step"}};
    for (const auto& [path, value] : tallies)
        Tally((std::string("Key Frame@M/E-1@") + path).c_str(), value);
    Touch(150, 104 + 50); // the caption of the second row is felt
    Pass(0);
    EXPECT_TRUE(MatchesGolden("path_list", {97, 73, 702, 526}));
}
