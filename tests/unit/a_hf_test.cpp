#include "a_hf.h"
#include "tab_page.h"

const HF_TBL tabs[] = {
    {.id = 1, .caption = "Type", .page = 0x11110000},
    {.id = 2,
     .caption = "Edge",
     .page = 0x11120000,
     .statcmd = {"~2@Edge@Edge Type#Border", "~2@Edge@Edge Type#Shadow", nullptr,
                 "~2@Edge@Soft Edge#true", "LOCAL@Test#1"}},
    {.id = 4, .caption = "Mask", .page = 0x11140000, .statcmd = {"~2@Edge@Soft Edge#true"}},
    {.id = 7, .caption = "Last", .page = 0x11170000},
    HF_END,
};

static constexpr int Cell(int id)
{
    return 97 + 86 * (id - 1);
}
constexpr int Y = 560;

struct BottomTabs : TabPage {
    void SetUp() override
    {
        TabPage::SetUp();
        SetTree({"M/E-1", "Key1", "Type"}, 0x11110000, OBJ_HF);
        HF_Create(tabs, 1);
    }
    static bool IsLit(int id)
    {
        Pass();
        const int x = Cell(id) + 8;
        return PixelAt(x, 584) == 0xE48B1B && PixelAt(x + 69, 585) == 0xC86E05 &&
               PixelAt(x, 586) == 0xE48B1B && PixelAt(x + 70, 584) != 0xE48B1B;
    }
};

TEST_F(BottomTabs, APressAsksForThePageOfItsCellUnlessTheTabHasNone)
{
    for (const auto& [x, y, id] : {std::tuple<int, int, uint32_t>{Cell(2) - 1, Y, 0x11110000u},
                                   {Cell(2), Y, 0x11120000u},
                                   {Cell(2), 530, 0u},
                                   {Cell(3), Y, 0u},
                                   {Cell(8) - 1, Y, 0x11170000u},
                                   {Cell(8), Y, 0u}})
        EXPECT_EQ(Asked(x, y), id) << x << "," << y;
    BA_SetDefaultButton(1);
    EXPECT_THAT(Sent(Cell(2), Y), IsEmpty());
    EXPECT_EQ(GL_CreatePage, 0u);
    EXPECT_TRUE(BA_IsDefaultButton());
    BA_SetDefaultButton(0);
    EXPECT_EQ(HF_SetDisplay(2, 0), 0);
    EXPECT_EQ(Asked(Cell(2), Y), 0u);
    EXPECT_EQ(HF_SetDisplay(3, 1), -1);
    HF_Create(tabs, 1 | HF_LOW);
    EXPECT_EQ(Asked(Cell(2), 555), 0u);
    EXPECT_EQ(Asked(Cell(2), 556), 0x11120000u);
    SYS_MEOperation[0] = 1; // M/E-1 has no pages then
    HF_Create(tabs, 1);
    EXPECT_EQ(Asked(Cell(2), Y), 0u);
    EXPECT_EQ(Asked(Cell(1), Y), 0x11110000u) << "it stands for the page that is shown";
    SYS_MEOperation[0] = 0;
    Pass(500);
    EXPECT_EQ(Asked(Cell(2), Y), 0x11120000u);
}

TEST_F(BottomTabs, ATabIsLitWhileAnyOfItsPathsHasItsValueEachFollowedOnce)
{
    const std::string edge_type = "M/E-1@Key1@Edge@Edge Type", soft = "M/E-1@Key1@Edge@Soft Edge";
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("add " + edge_type, "add " + soft));
    for (const auto& [path, value, edge, mask] :
         {std::tuple{"M/E-1@Key1@Edge@Edge Type", "Border", true, false},
          {"M/E-1@Key1@Edge@Soft Edge", "true", true, true},
          {"M/E-1@Key1@Edge@Edge Type", "Normal", true, true},
          {"M/E-1@Key1@Edge@Edge Type", "Shadow", true, true},
          {"M/E-1@Key1@Edge@Soft Edge", "", true, false},
          {"M/E-1@Key1@Edge@Edge Type", "Shadow2", false, false}}) {
        Tally(path, value);
        EXPECT_EQ(IsLit(2), edge) << path << "#" << value;
        EXPECT_EQ(IsLit(4), mask) << path << "#" << value;
    }
    HF_Create(nullptr, 0);
    EXPECT_THAT(TakeQueuedCommands(), ElementsAre("remove " + edge_type, "remove " + soft));
}
