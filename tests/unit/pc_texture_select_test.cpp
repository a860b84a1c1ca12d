#include "table_page.h"

using TexturePages = TablePage;

TEST_F(TexturePages, ATouchUsesATextureAndAnEmptyPlaceIsNone)
{
    constexpr uint32_t BKGD = 0x41560000, TEXTURE = 0x41560001;
    constexpr int BTN_TEXTURE = 37;
    const std::string light = "DME@Light@Bkgd@";
    (void)Open(BKGD);
    TellAll(light, {"Bkgd#true", "Fill#Matte"});
    EXPECT_EQ(Usable({BTN_TEXTURE}), std::vector<int>{});
    TellAll(light, {"Fill#Texture"});
    (void)Press(BTN_TEXTURE);
    EXPECT_EQ(GL_CreatePage, TEXTURE);

    const Lines opened = Open(TEXTURE);
    TellAll("DME@Status@Texture Name@", {"2#W", "64#RAIN", "65#TOO FAR"});
    for (const int row : {63, 0, 63}) {
        (void)Tell(light + "Texture@Number#" + std::to_string(row + 1));
        EXPECT_EQ(LS_GetNowLine(1), row);
    }
    for (const char* wrong : {"0", "65", "", "x"})
        (void)Tell(light + "Texture@Number#" + wrong);
    EXPECT_EQ(LS_GetNowLine(1), 63);
    (void)TakeQueuedCommands();
    for (const int row : {1, 4, -1, 64})
        SendMessage(LMSG_LISTSEL, 1, row, 0, 0);
    EXPECT_THAT(TakeQueuedCommands(), testing::ElementsAre("put " + light + "Texture@Number#2"));
    EXPECT_EQ(LS_GetNowLine(1), 63) << "the touch on an empty place does not stay";
    EXPECT_EQ(LS_GetStatus(1, 4, 1), 1) << "grey";
    EXPECT_EQ(LS_GetStatus(1, 1, 1), 0);
    const Lines left = Leave();
    for (const char* path : {"DME@Light@Bkgd@Texture@Number", "DME@Status@Texture Name@64"})
        EXPECT_EQ(Held(opened, path) + Held(left, path), 0) << path;
}
