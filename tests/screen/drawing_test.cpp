#include "graphics.h"
#include "harness.h"
#include "tdl.h"

// A sampler of the shapes over a ground that shows where something was blended.
TEST(DrawingPictures, ShapesAndBitmaps)
{
    Harness_Reset();
    for (int y = 0; y < 300; y++)
        TDL_LineHS(0, y, 400, unsigned(y * 255 / 300) * 0x000101);
    for (int i = 0; i < 10; i++) {
        TDL_LineS(10, 10, 10 + 12 * i, 100, 0xFFFFFF);
        TDL_LineS(130, 10 + 10 * i, 10 + 12 * i, 100, 0xE48B1B);
    }
    TDL_RectS(150, 10, 190, 40, 0xBEBEBE);
    TDL_FillRectS(200, 10, 240, 40, 0x003241);
    for (int i = 0; i < 5; i++)
        TDL_FillRectAS(250 + 28 * i, 10, 275 + 28 * i, 40, 0xFF0000, uint8_t(51 * (i + 1)));
    TDL_ParaS(150, 60, 180, 100, 40, 0x00FFFF);
    TDL_ParaVS(230, 60, 290, 80, 25, 0x00FFFF);
    TDL_FillParaS(340, 60, 310, 100, 40, 0x006464);
    TDL_FillParaVS(20, 120, 90, 150, 20, 0x3C5096);
    TDL_PutS(110, 120, G_EXE_p0o0);
    TDL_PutAS(205, 120, G_EXE_p0o0, 128);
    TDL_PutSmallS(300, 120, G_EXE_p0o0);
    TDL_PutS(350, 120, G_icon_folder);
    TDL_PushScreen(100, 110, 110, 90);
    TDL_PopScreenXY(10, 205);
    TDL_PopScreenXY(130, 205);
    EXPECT_TRUE(MatchesGolden("drawing_shapes", {0, 0, 399, 299}));
}
