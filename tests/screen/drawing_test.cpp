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

TEST(DrawingPictures, TextVerbs)
{
    Harness_Reset();
    TDL_FillRectS(400, 0, 799, 399, 0xD3ECEE);
    int y = 5;
    for (const int font : {1, 2, 3, 4, 5, 7, 8, 9}) {
        TDL_SymbolS(5, y, "Key 1 Luminance +12.50%", font, 0xFFFFFF);
        TDL_SymbolWS(405, y, 380, "01:23:45:12 Wipe/DME @#?", font, 0x000000);
        y += int(TDL_GetSymbolSize("W", font) >> 16) + 4;
    }
    struct Box {
        int x1, y1, x2, y2;
    };
    const Box cells[] = {{10, 300, 94, 365}, {110, 300, 194, 365}, {210, 300, 294, 365}};
    for (const Box& c : cells)
        TDL_RectS(c.x1, c.y1, c.x2, c.y2, 0x3C3C3C);
    TDL_SymbolBS(cells[0].x1 + 8, cells[0].y1 + 12, 77, 66, "Pattern\nSelect", 3, 0xFFFFFF, 0);
    TDL_SymbolCS(cells[1].x1, cells[1].y1, cells[1].x2, cells[1].y2, "12.50", 7, 0x00FFFF);
    TDL_SymbolCBS(cells[2].x1, cells[2].y1, cells[2].x2, cells[2].y2, 70, 66, "Snapshot Store", 3,
                  0xE48B1B, 0, 0);
    TDL_SymbolPS(410, 300, 16, "1:11:17", 5, 0x003241);
    TDL_SymbolCS_PRO(410, 320, 600, 350, "Will", 4, 0x003241);
    TDL_SymbolWAddS(410, 350, 110, "A name that is too long", "..", 2, 0x003241);
    TDL_SymbolBS(610, 300, 90, 70, "first\nsecond line that wraps\nthird", 1, 0x003241, 1);
    EXPECT_TRUE(MatchesGolden("drawing_text", {0, 0, 799, 399}));
}
