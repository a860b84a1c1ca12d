#include "server_page.h"
#include "texture_stick.h"

struct TexturePage : ServerPage {
    static constexpr int ADD = 36, REMOVE = 37, REFRESH = 38, LOAD = 52, SAVE = 53;
    static constexpr int BITMAPS = 1, PATTERNS = 2;
    std::unique_ptr<TextureStick> stick;

    void SetUp() override
    {
        ServerPage::SetUp();
        stick = std::make_unique<TextureStick>();
        CopyText(GL_ImportDataPath, TEXTURE_STICK);
        TextureStick::Put("WOOD.bmp", 8, 4);
        TextureStick::Put("more/SAND.BMP", 8, 2);
        TextureStick::Put("more/below/DEEP.bmp", 1, 1);
        TextureStick::Put("BRICK.bmp", 8, 4);
        TextureStick::Put("odd.bmp", BitmapBytes(100, 64));
        TextureStick::Put("text.txt", "no bitmap");
        (void)Open(0x73160005);
        Pass(10);
    }
    void TearDown() override
    {
        (void)Leave();
        stick.reset();
        ServerPage::TearDown();
    }
    static Strings Rows(int list)
    {
        Strings rows;
        for (int row = 0; row < LS_GetNData(list); row++)
            rows.push_back(Cells(list, row, 0, 2));
        return rows;
    }
    static void Choose(int list, int row)
    {
        (void)Touch(list == BITMAPS ? 150 : 450, 78 + 22 * (1 + row) + 5);
        SendMessage(MSG_RELEASE, 150, 100, 0, 0);
        Clock_ms += 500;
        Pass(10);
    }
    static void Do(int key)
    {
        (void)Press(key);
        Paint();
    }
    // Whether a pane is up, which is then answered with its left button, or its only one.
    static bool Answer(int x = 200 + 97 + 5)
    {
        const bool is_up = Pane_GetActiveID() != 0;
        (void)Touch(x, 140 + 247 + 5);
        Paint();
        return is_up;
    }
    static bool Close() { return Answer(400); }
};

TEST_F(TexturePage, ComposesStoresAndLoadsAPackage)
{
    EXPECT_THAT(Rows(BITMAPS),
                ElementsAre("BRICK|8 x 4", "odd|100x64 px", "SAND|8 x 2", "WOOD|8 x 4"));
    EXPECT_EQ(Disabled(), (std::set<int>{ADD, REMOVE, SAVE}));
    Choose(BITMAPS, 1);
    EXPECT_EQ(Disabled(), (std::set<int>{ADD, REMOVE, SAVE})) << "no size of a pattern";
    const uint32_t empty = PixelAt(200, 400);
    for (const int row : {0, 3}) {
        Choose(BITMAPS, row);
        Do(ADD);
    }
    EXPECT_EQ(Disabled(), (std::set<int>{ADD})) << "it is in the package";
    EXPECT_THAT(TextureStick::Places(), ElementsAre("BRICK@0,0", "WOOD@0,4"));
    EXPECT_NE(PixelAt(200, 400), empty);
    Choose(BITMAPS, 2);
    Do(ADD);
    EXPECT_TRUE(Close()) << "no room";
    EXPECT_THAT(Rows(PATTERNS), ElementsAre("BRICK|8 x 4", "WOOD|8 x 4"));
    Do(SAVE);
    EXPECT_THAT(Message(), HasSubstr("has been stored"));
    EXPECT_TRUE(Close());
    Choose(PATTERNS, 0);
    Do(REMOVE);
    EXPECT_THAT(Rows(PATTERNS), ElementsAre("WOOD|8 x 4"));
    Do(LOAD);
    EXPECT_TRUE(Answer()) << "the list is not empty";
    EXPECT_THAT(Rows(PATTERNS), ElementsAre("BRICK|8 x 4", "WOOD|8 x 4"));
    (void)Leave();
    (void)Open(0x73160005);
    EXPECT_THAT(Rows(PATTERNS), ElementsAre("BRICK|8 x 4", "WOOD|8 x 4"));
}

TEST_F(TexturePage, APulledStickIsTold)
{
    Choose(BITMAPS, 0);
    Do(ADD);
    std::filesystem::remove_all(TEXTURE_STICK);
    for (const int key : {SAVE, LOAD}) {
        Do(key);
        if (key == LOAD) {
            EXPECT_TRUE(Answer());
        }
        EXPECT_TRUE(Close()) << key;
    }
    EXPECT_THAT(Rows(PATTERNS), ElementsAre("BRICK|8 x 4"));
    Do(REFRESH);
    EXPECT_THAT(Rows(BITMAPS), IsEmpty());
}
