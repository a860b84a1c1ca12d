#include "a_ps.h"
#include "graphics.h"
#include "page_table/patterns.h"
#include "tab_page.h"

constexpr const char* PATH = "M/E-1@Key1@Main Mask@Ptn Select@Pattern";
static const PS_TBL& table = ps_me_key_mainmask_maskptnsel;

// The upper left corner of a cell.
static constexpr int X(int cell)
{
    return 120 + cell % 6 * 95;
}
static constexpr int Y(int cell)
{
    return 80 + cell / 6 * 55;
}

struct PatternSelect : TabPage {
    void SetUp() override
    {
        TabPage::SetUp();
        Open({"M/E-1", "Key1", "Main Mask", "Ptn Select"});
    }
    void Open(std::initializer_list<const char*> tree)
    {
        PS_Create(nullptr, 0);
        SetTree(tree, 0x11130001, OBJ_PS);
        (void)TakeQueuedCommands();
        PS_Create(&table, 0);
    }
    static std::string FirstPut(int x, int y)
    {
        for (const std::string& line : Sent(x, y))
            if (line.rfind("put ", 0) == 0)
                return line;
        return "";
    }
    static void TouchLayer(int i) { Touch(125 + i % 6 * 95, 415 + i / 6 * 45); }
    // The number that a touch on the first cell sends tells the layer.
    static std::string FirstNumber()
    {
        const std::string put = FirstPut(120, 80);
        return put.substr(std::min(put.size(), put.find('#') + 1));
    }
    static bool IsChosen(int i)
    {
        Pass();
        return PixelAt(X(i), Y(i)) == 0x00DDD4;
    }
};

TEST_F(PatternSelect, APressSendsTheNumberAndMarksNothing)
{
    const std::string put = std::string("put ") + PATH + "#";
    EXPECT_EQ(PS_Proc(MSG_RELEASE, 0, 0, 0, 0), 0) << "others may have a part in it";
    static const struct {
        int x, y;
        const char* number; // null: sends nothing
    } cases[] = {
        {214, 134, "1"}, {215, 80, "2"},   {690, 80, nullptr},  {120, 79, nullptr},
        {120, 135, "7"}, {215, 355, "32"}, {310, 355, nullptr}, // behind the 32nd
    };
    for (const auto& c : cases)
        EXPECT_EQ(FirstPut(c.x, c.y), c.number ? put + c.number : "") << c.x << "," << c.y;
    EXPECT_FALSE(IsChosen(0));
    BA_SetDefaultButton(1);
    EXPECT_THAT(Sent(120, 80), IsEmpty());
}

TEST_F(PatternSelect, AKnobTableComesWithTheCellThatHasOne)
{
    EXPECT_STREQ(NB_GetTitle(), "Pattern");
    Touch(120, 80);
    EXPECT_STREQ(NB_GetTitle(), ""); // the first layer has none
    TouchLayer(2);
    (void)TakeQueuedCommands();
    Touch(215, 80);
    EXPECT_STREQ(NB_GetTitle(), "82");
    EXPECT_THAT(TakeQueuedCommands(),
                testing::Contains("add M/E-1@Key1@Main Mask@Ptn Select@Modify@Blades"));
}

TEST_F(PatternSelect, TheChosenCellFollowsItsTallyIntoItsLayer)
{
    EXPECT_EQ(TakeQueuedCommands().back(), std::string("add ") + PATH);
    // -1: none of those shown
    for (const auto& [value, cell, first] : {std::tuple{"5", 4, "1"},
                                             {"32", 31, "1"},
                                             {"33", 0, "33"},
                                             {"9999", -1, "33"},
                                             {"304", 31, "273"},
                                             {"x", -1, "273"},
                                             {"-9999999999", -1, "273"}}) {
        Tally(PATH, value);
        for (int i = 0; i < PS_CELLS; i++)
            EXPECT_EQ(IsChosen(i), i == cell) << value << " cell " << i;
        EXPECT_EQ(FirstNumber(), first) << value;
    }
    Tally("M/E-1@Key2@Main Mask@Ptn Select@Pattern", "7");
    EXPECT_EQ(FirstNumber(), "273");
    // A layer key shows its layer until another pattern is chosen.
    Tally(PATH, "5");
    TouchLayer(9);
    EXPECT_EQ(FirstNumber(), "273");
    EXPECT_FALSE(IsChosen(4));
    Tally(PATH, "5"); // told again: the operator stays where he is
    EXPECT_EQ(FirstNumber(), "273");
    Tally(PATH, "6");
    EXPECT_EQ(FirstNumber(), "1");
    TouchLayer(10); // no such layer
    EXPECT_EQ(FirstNumber(), "1");
}

TEST_F(PatternSelect, PageAndBankDecideWhichLayersThereAre)
{
    static const struct {
        std::initializer_list<const char*> tree;
        int split, last; // the last layer key that works
    } cases[] = {
        {{"M/E-1", "Key1", "Main Mask", "Ptn Select"}, 4, 9},
        {{"M/E-1", "Wipe", "Sub Pattern"}, 0, 7},
        {{"M/E-2", "Wipe", "Main Pattern"}, 3, 3},
    };
    for (const auto& c : cases) {
        GL_BoardMESplit[4] = c.split;
        Open(c.tree);
        for (int key : {c.last, c.last + 1}) {
            TouchLayer(key);
            EXPECT_EQ(FirstNumber(), std::to_string(LayerName[c.last].first)) << c.last << key;
        }
    }
}

// What the start has loaded is neither read again nor kept when it is replaced.
TEST_F(PatternSelect, APictureIsTheOneThatIsLoadedNow)
{
    const auto ground = [](uint32_t colour) {
        Pass();
        return PixelAt(X(6) + 6, Y(6) + 6) == colour;
    };
    for (const uint32_t colour : {0xAA0000u, 0x00AA00u}) {
        SDL_FreeSurface(G_WipePtn[7]);
        G_WipePtn[7] = SDL_CreateRGBSurface(SDL_SWSURFACE, 56, 42, 32, 0xFF0000, 0xFF00, 0xFF, 0);
        SDL_FillRect(G_WipePtn[7], nullptr, colour);
        Tally(PATH, colour == 0xAA0000 ? "7" : "8");
        Open({"M/E-1", "Key1", "Main Mask", "Ptn Select"});
        EXPECT_TRUE(ground(colour));
    }
    SDL_FreeSurface(G_WipePtn[7]);
    G_WipePtn[7] = nullptr;
    Open({"M/E-1", "Key1", "Main Mask", "Ptn Select"});
    EXPECT_FALSE(ground(0x00AA00)) << "read from its file";
}
