#include "install_stick.h"
#include "texture_stick.h"

using InstallPictures = InstallPage;

TEST_F(InstallPictures, NewInstall)
{
    Package("KTR40G Upgrade", "5.10 (Nov.02.2026)", "SWR");
    Package("KTR40G Full", "5.10 (Nov.02.2026)", "SWR");
    Package("KTR40X Upgrade", "6.00", "SWR");
    Package("Menu Upgrade", "5.11", "MENU");
    Package("FXU50 Upgrade", "2.02", "DME");
    Unit("SWR010100", "X: Version 5.09 (Mar.01.2026)\n");
    DEV_Swr[0].type = DEVTYPE_KTR40G;
    DEV_Dme[0].type = DEVTYPE_FXU50;
    DeviceStructure();
    (void)Open(0x73160010);
    Paint();
    (void)Touch(150, 78 + 22 * 6 + 5);
    (void)Touch(150, 284 + 22 + 5); // a package of another model
    Paint();
    EXPECT_TRUE(MatchesGolden("install_list"));
}

TEST_F(InstallPictures, TexturePackage)
{
    const TextureStick bitmaps;
    static const struct {
        const char* name;
        int width, height;
        bool is_taken;
    } files[] = {
        {"BRICK", 4, 4, true}, {"CANVAS", 4, 4, true}, {"CLOUD", 2, 2, true},
        {"GOLD", 1, 1, true},  {"MARBLE", 8, 1, true}, {"PAPER", 1, 2, true},
        {"SAND", 2, 1, false}, {"WATER", 8, 8, false}, {"WOOD", 2, 4, false},
    };
    for (const auto& f : files) {
        TEXTURE t;
        (void)Texture_ReadBitmap(
            &t, TextureStick::Put(f.name + std::string(".bmp"), f.width, f.height).c_str());
        if (f.is_taken) {
            EXPECT_EQ(TexturePackage_Add(t), 0) << f.name;
        }
    }
    TextureStick::Put("LOGO.bmp", BitmapBytes(720, 486));
    CopyText(GL_ImportDataPath, TEXTURE_STICK);
    (void)Open(0x73160005);
    Paint();
    (void)Touch(450, 78 + 22 * 3 + 5);
    Paint();
    EXPECT_TRUE(MatchesGolden("texture_package"));
}
