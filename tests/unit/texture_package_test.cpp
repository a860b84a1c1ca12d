#include "texture_stick.h"

constexpr const char* ZSP = TEXTURE_STICK "UserTexture/UserTexture.zsp";

struct TexturePackage : testing::Test {
    const TextureStick stick;

    static int Add(const std::string& name, int width, int height, char fill = 'x')
    {
        TEXTURE t;
        const std::string file = TextureStick::Put(name + ".bmp", width, height, fill);
        EXPECT_EQ(Texture_ReadBitmap(&t, file.c_str()), 0);
        return TexturePackage_Add(t);
    }
};

TEST_F(TexturePackage, OnlyBitmapsOfASizeThatTheMemoryKnowsArePatterns)
{
    static const struct {
        std::string bytes;
        int result, width, height;
    } cases[] = {
        {BitmapBytes(64, 64), 0, 1, 1},
        {BitmapBytes(512, 128, 8), 0, 8, 2},
        {BitmapBytes(256, -64, 32), 0, 4, 1},
        {BitmapBytes(192, 64), 0, 0, 0}, // three units
        {BitmapBytes(64, 65), 0, 0, 0},
        {BitmapBytes(64, 64, 16), -1, 0, 0},
        {BitmapBytes(64, 64).substr(0, 9000), -1, 0, 0}, // cut
        {BitmapBytes(64, 64).substr(0, 53), -1, 0, 0},
        {"not a bitmap at all, but long enough to be the head of one......", -1, 0, 0},
        {"", -1, 0, 0},
    };
    for (const auto& c : cases) {
        TEXTURE t;
        EXPECT_EQ(Texture_ReadBitmap(&t, TextureStick::Put("A b!.BMP", c.bytes).c_str()), c.result);
        EXPECT_EQ(t.sizeX, c.width);
        EXPECT_EQ(t.sizeY, c.height);
        if (c.result == 0) {
            EXPECT_STREQ(t.name, "A_b_");
        }
    }
}

TEST_F(TexturePackage, APatternThatFindsNoRoomChangesNothing)
{
    EXPECT_EQ(Add("A", 8, 4), 0);
    EXPECT_EQ(Add("B", 1, 1), 0);
    EXPECT_EQ(Add("C", 8, 4), -1);
    EXPECT_THAT(TextureStick::Places(), ElementsAre("A@0,0", "B@0,4"));
    EXPECT_EQ(TexturePackage_Units(), 33);
    EXPECT_EQ(TexturePackage_Remove(1), 0);
    EXPECT_EQ(Add("C", 8, 4), 0);
    EXPECT_EQ(Add("D", 1, 1), -1);
    EXPECT_EQ(TexturePackage_Remove(0), 0);
    EXPECT_THAT(TextureStick::Places(), ElementsAre("C@0,0"));
    EXPECT_EQ(TexturePackage_Remove(1), -1);
    EXPECT_EQ(TexturePackage_Remove(-1), -1);
}

TEST_F(TexturePackage, WhatIsWrittenComesBackAndGoesOnFromThere)
{
    EXPECT_EQ(Add("WOOD", 2, 2, 'w'), 0);
    EXPECT_EQ(Add("STONE", 4, 1, 's'), 0);
    EXPECT_EQ(TexturePackage_Write(TEXTURE_STICK), 0);
    const std::string zsp = FileText(ZSP);
    EXPECT_EQ(zsp.find("# Bitmap User List\nWOOD,0,1,2,2,49206\nSTONE,0,0,4,1,49206\n\nBM"), 0u);
    EXPECT_EQ(
        FileText(TEXTURE_STICK "UserTexture/install.cfg"),
        "TITLE User Texture\nVERSION 1.00\nTARGET DME\nINSTALL UserTexture.zsp TEXTURE 1.00\n");

    std::filesystem::remove(TEXTURE_STICK "WOOD.bmp"); // no longer needed
    std::filesystem::remove(TEXTURE_STICK "STONE.bmp");
    TexturePackage_Clear();
    EXPECT_EQ(TexturePackage_Read(TEXTURE_STICK), 0);
    EXPECT_THAT(TextureStick::Places(), ElementsAre("WOOD@0,1", "STONE@0,0"));
    EXPECT_EQ(Add("SAND", 1, 1, 'd'), 0);
    EXPECT_EQ(TexturePackage_Remove(0), 0);
    EXPECT_EQ(TexturePackage_Write(TEXTURE_STICK), 0) << "over the file that it reads from";
    EXPECT_EQ(TexturePackage_Write(TEXTURE_STICK), 0);
    EXPECT_EQ(FileText(ZSP), "# Bitmap User List\nSTONE,0,0,4,1,49206\nSAND,0,1,1,1,12342\n\n" +
                                 BitmapBytes(256, 64, 24, 's') + BitmapBytes(64, 64, 24, 'd'));
}

TEST_F(TexturePackage, AFailedWriteKeepsTheOldPackage)
{
    EXPECT_EQ(Add("WOOD", 1, 1), 0);
    EXPECT_EQ(TexturePackage_Write(TEXTURE_STICK), 0);
    const std::string before = FileText(ZSP);
    EXPECT_EQ(Add("SAND", 1, 1), 0);
    TextureStick::Put("SAND.bmp", 2, 1); // another one by now
    EXPECT_EQ(TexturePackage_Write(TEXTURE_STICK), -1);
    EXPECT_EQ(FileText(ZSP), before);
    EXPECT_EQ(TexturePackage_Write("/tmp/texture_test_none/"), -1);
    EXPECT_FALSE(std::filesystem::exists("/tmp/texture_test_none"));
}

TEST_F(TexturePackage, RubbishIsNoPackage)
{
    EXPECT_EQ(Add("WOOD", 1, 1), 0);
    const std::string bitmap = BitmapBytes(64, 64);
    const std::string head = "# Bitmap User List\n", line = "A,0,0,1,1,12342\n";
    std::string many = head;
    for (int i = 0; i < 65; i++)
        many += line;
    const std::string cases[] = {
        "",
        head,
        head + line,
        head + line + "\n" + bitmap.substr(0, 12341),
        "# Bitmap\n" + line + "\n" + bitmap,
        head + "A,0,0,2,1,12342\n\n" + bitmap, // the size is another
        head + "A/../B,0,0,1,1,12342\n\n" + bitmap,
        head + "A,0,0,1,1\n\n" + bitmap,
        head + "A,0,0,1,1,-5\n\n" + bitmap,
        head + std::string(60, 'A') + ",0,0,1,1,12342\n\n" + bitmap,
        many + "\n" + bitmap,
    };
    for (const std::string& text : cases) {
        TextureStick::Put("UserTexture/UserTexture.zsp", text);
        EXPECT_EQ(TexturePackage_Read(TEXTURE_STICK), -1) << text.substr(0, 60);
        EXPECT_THAT(TextureStick::Places(), ElementsAre("WOOD@0,0"));
    }
    TextureStick::Put("UserTexture/UserTexture.zsp", head + line + "\n" + bitmap + "more");
    EXPECT_EQ(TexturePackage_Read(TEXTURE_STICK), 0);
    EXPECT_THAT(TextureStick::Places(), ElementsAre("A@0,0"));
}
