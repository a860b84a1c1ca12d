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

constexpr Rect MESSAGE = {190, 130, 620, 460};

constexpr struct {
    const char* name;
    Rect part;
    void (*open)();
} pictures[] = {
    {"fatal", MESSAGE,
     [] {
         (void)PaneMessage_Create("Internal Error: Local Drive", PANE_FATAL,
                                  "The user data partition is damaged.");
     }},
    {"scrolled", MESSAGE,
     [] { (void)Pane_AppendMessage(PaneMessage_Create("Result", PANE_INFO, ""), LONG_TEXT); }},
    {"progress_cancel", MESSAGE,
     [] {
         const int id = PaneProgress_Create("Load", "", 1);
         (void)PaneProgress_SetProg(id, 80, "SHOW1.ME1_012.SKF");
         (void)PaneProgress_SetRouteLamp(id, ROUTE_LAMP_DATA);
         (void)Pane_AppendMessage(id, LONG_TEXT);
     }},
    {"pulldown", {560, 140, 710, 380}, [] { (void)PanePullDown_Create(600, 150, 4, sources); }},
    {"select", {280, 210, 520, 395}, [] { (void)PaneSelect_Create(3, 2, sources); }},
    {"popup",
     {300, 210, 510, 395},
     [] {
         (void)PanePopup_Create(2, 2, formats);
         (void)PanePopup_BtnDisable(4, 1);
     }},
    {"router_level",
     {120, 325, 690, 475},
     [] {
         PaneRTRLvl_SetSelect(0x05);
         (void)PaneRTRLvl_Create(0);
         PaneRTRLvl_SetSelect(0);
     }},
    {"find", {290, 190, 490, 365}, [] { (void)PaneFind_Create(300, 200, 1); }},
    {"run_control",
     {185, 185, 625, 425},
     [] {
         (void)KeyFrameRunCtrl_Create();
         SendDummyTally("Key Frame@Timeline@Loop#true");
     }},
    {"directory",
     {115, 73, 690, 530},
     [] {
         std::vector<BTNSEL> entries;
         for (int i = 1; i <= 43; i++)
             entries.push_back({i, i == 1 ? "SYSTEM" : "SHOW-SATURDAY", i == 2});
         (void)PaneDirectory_Create(43, entries.data());
     }},
    {"region_4",
     {120, 140, 690, 460},
     [] {
         const REGIONBTN& g = RegionBtn[4];
         for (int i = 0; i < g.cells; i++) // whatever other tests selected
             g.btnsel[i].select = i == 0 ? 2 : 0;
         (void)PaneRegion_Create(4, 0);
         PanePage::Touch(131 + 15 + 64 + 20, 152 + 30);          // the second bank
         PanePage::Touch(131 + 15 + 64 + 20, 152 + 30 + 2 * 44); // a channel
     }},
};
} // namespace

using PanePictures = PanePage;

TEST_F(PanePictures, EachLooksAsItWasJudged)
{
    for (const auto& picture : pictures) {
        TearDown();
        SetUp();
        TDL_FillRectS(0, 0, SCREEN_W - 1, SCREEN_H - 1, 0x1F1F1F);
        TDL_FillRectS(97, 73, 702, 526, 0x000000);
        for (int y = 80; y < 520; y += 40) // something for the shadows to fall on
            TDL_FillRectS(110, y, 690, y + 19, 0x005A6E);
        picture.open();
        Pass();
        EXPECT_TRUE(MatchesGolden(std::string("pane_") + picture.name, picture.part));
    }
}
