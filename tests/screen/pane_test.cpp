#include "pane_page.h"
#include "pane_private.h"

namespace
{
constexpr const char* LONG_TEXT =
    "Effect 12: The register is locked.\nEffect 13: The register is locked.\n"
    "Effect 14: NG\nEffect 15: NG\nEffect 16: NG\nEffect 17: NG\nEffect 18: NG\n"
    "Effect 19: NG\nEffect 20: NG\nEffect 21: NG\nA line that is too long for the well "
    "is continued on the next one.\nEffect 22: NG";
constexpr BTNSEL sources[] = {{1, "Local Drive", 0},
                              {2, "Removable\nDrive", 1},
                              {3, "Network", 0},
                              {4, "System", 0},
                              {0, "", 0},
                              {6, "Register", 0}};
constexpr BTNSEL formats[] = {
    {1, "1080p\n59.94", 0}, {2, "1080i\n59.94", 1}, {3, "1080i\n50", 0}, {4, "720p\n59.94", 0}};

struct PanePictures : PanePage {
    void SetUp() override
    {
        PanePage::SetUp();
        TDL_FillRectS(0, 0, SCREEN_W - 1, SCREEN_H - 1, 0x1F1F1F);
        TDL_FillRectS(97, 73, 702, 526, 0x000000);
        for (int y = 80; y < 520; y += 40) // something for the shadows to fall on
            TDL_FillRectS(110, y, 690, y + 19, 0x005A6E);
    }

    static testing::AssertionResult Picture(const char* name, Rect part)
    {
        Pass();
        return MatchesGolden(std::string("pane_") + name, part);
    }
    static void Switchers(int count)
    {
        SYS_MySwrMax = count;
        SYS_MyDmeMax = 2;
        for (int i = 0; i < DEVICE_MAX; i++) {
            DEV_MySwr[i] = i < count ? &DEV_Swr[i] : nullptr;
            DEV_MyDme[i] = i < SYS_MyDmeMax ? &DEV_Dme[i] : nullptr;
            snprintf(DEV_Swr[i].name, sizeof DEV_Swr[i].name, "SWR%d", i + 1);
            snprintf(DEV_Dme[i].name, sizeof DEV_Dme[i].name, "DME%d", i + 1);
        }
    }
};

constexpr Rect MESSAGE = {190, 130, 620, 460};
} // namespace

TEST_F(PanePictures, Messages)
{
    (void)PaneMessage_Create("Internal Error: Local Drive", PANE_FATAL,
                             "The user data partition is damaged.");
    EXPECT_TRUE(Picture("fatal", MESSAGE));
    TearDown();
    SetUp();
    const int id = PaneMessage_Create("Result", PANE_INFO, "");
    (void)Pane_AppendMessage(id, LONG_TEXT);
    EXPECT_TRUE(Picture("scrolled", MESSAGE));
}

TEST_F(PanePictures, Progress)
{
    const int id = PaneProgress_Create("Load", "", 1);
    (void)PaneProgress_SetProg(id, 80, "SHOW1.ME1_012.SKF");
    (void)PaneProgress_SetRouteLamp(id, ROUTE_LAMP_DATA);
    (void)Pane_AppendMessage(id, LONG_TEXT);
    EXPECT_TRUE(Picture("progress_cancel", MESSAGE));
}

TEST_F(PanePictures, Choices)
{
    (void)PanePullDown_Create(600, 150, 4, sources);
    EXPECT_TRUE(Picture("pulldown", {560, 140, 710, 380}));
    TearDown();
    SetUp();
    (void)PaneSelect_Create(3, 2, sources);
    EXPECT_TRUE(Picture("select", {280, 210, 520, 395}));
    TearDown();
    SetUp();
    (void)PanePopup_Create(2, 2, formats);
    (void)PanePopup_BtnDisable(4, 1);
    EXPECT_TRUE(Picture("popup", {300, 210, 510, 395}));
}

TEST_F(PanePictures, LevelsFindAndRunControl)
{
    PaneRTRLvl_SetSelect(0x05);
    (void)PaneRTRLvl_Create(0);
    EXPECT_TRUE(Picture("router_level", {120, 325, 690, 475}));
    PaneRTRLvl_SetSelect(0);
    TearDown();
    SetUp();
    (void)PaneFind_Create(300, 200, 1);
    EXPECT_TRUE(Picture("find", {290, 190, 490, 365}));
    TearDown();
    SetUp();
    (void)KeyFrameRunCtrl_Create();
    SendDummyTally("Key Frame@Timeline@Loop#true");
    EXPECT_TRUE(Picture("run_control", {185, 185, 625, 425}));
}

TEST_F(PanePictures, Directories)
{
    std::vector<BTNSEL> entries;
    for (int i = 1; i <= 43; i++)
        entries.push_back({i, i == 1 ? "SYSTEM" : "SHOW-SATURDAY", i == 2});
    (void)PaneDirectory_Create(43, entries.data());
    EXPECT_TRUE(Picture("directory", {115, 73, 690, 530}));
}

TEST_F(PanePictures, Regions)
{
    static const struct {
        int grp;
        int switchers;
        const char* name;
    } cases[] = {
        {0, 2, "region_0_two"},
        {4, 1, "region_4"},
        {24, 2, "region_24"},
        {32, 1, "region_32_one"},
    };
    for (const auto& c : cases) {
        TearDown();
        SetUp();
        Switchers(c.switchers);
        const REGIONBTN& g = RegionBtn[c.grp]; // whatever other tests selected
        for (int i = 0; i < g.cells; i++)
            g.btnsel[i].select = i == 0 && c.grp != 24 ? 2 : 0;
        (void)PaneRegion_Create(c.grp, 0);
        if (c.grp == 4) {
            Touch(131 + 15 + 64 + 20, 152 + 30);          // the second bank
            Touch(131 + 15 + 64 + 20, 152 + 30 + 2 * 44); // a channel
        }
        EXPECT_TRUE(Picture(c.name, {120, 140, 690, 460}));
    }
    Switchers(1);
    PaneRegion_InitID(0); // as it starts
    PaneRegion_InitID(32);
}
