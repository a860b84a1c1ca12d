#include "box.h"
#include "colours.h"
#include "tdl.h"
#include "text.h"

#include "safeguards.h"

const BoxLook BOX_LIGHT = {0xE6E6E6, WHITE, 0xF0F0F0, 0x3C3C3C, 0x969696};
const BoxLook BOX_DARK = {0x2A2F32, RAISED_LIGHT, 0x5C666B, RAISED_DARK, 0x0F1112};

// Only what the box will not cover: blending is the dearest of all fills.
static void draw_shadow(Rect box, int reach)
{
    constexpr unsigned char ALPHA = 140;
    TDL_FillRectAS(box.x2 + 1, box.y1 + BOX_SHADOW, box.x2 + reach, box.y2 + reach, BLACK, ALPHA);
    TDL_FillRectAS(box.x1 + BOX_SHADOW, box.y2 + 1, box.x2, box.y2 + reach, BLACK, ALPHA);
}

void Box_Edge(Rect box, unsigned top_left, unsigned bottom_right)
{
    const int w = box.x2 - box.x1 + 1;
    const int h = box.y2 - box.y1 + 1;
    TDL_LineHS(box.x1, box.y1, w, top_left);
    TDL_LineVS(box.x1, box.y1, h, top_left);
    TDL_LineHS(box.x1, box.y2, w, bottom_right);
    TDL_LineVS(box.x2, box.y1, h, bottom_right);
}

void Box_Draw(Rect box, const BoxLook& look, int reach)
{
    draw_shadow(box, reach);
    TDL_FillRectS(box.x1, box.y1, box.x2, box.y2, look.ground);
    Box_Edge(box, look.light, look.dark);
    Box_Edge({box.x1 + 1, box.y1 + 1, box.x2 - 1, box.y2 - 1}, look.light2, look.dark2);
}

void Box_Sunk(Rect well, unsigned ground, unsigned edge)
{
    TDL_FillRectS(well.x1, well.y1, well.x2, well.y2, ground);
    Box_Edge(well, edge, WHITE);
}

void Box_Progress(Rect bar, unsigned edge, int percent)
{
    constexpr unsigned EMPTY = 0x111416;
    const int inner_w = bar.x2 - bar.x1 - 3;
    Box_Sunk(bar, EMPTY, edge);
    if (percent > 0)
        TDL_FillRectS(bar.x1 + 2, bar.y1 + 2, bar.x1 + 1 + inner_w * percent / 100, bar.y2 - 2,
                      TEAL);
    char number[16];
    PrintText(number, "%d%%", percent);
    TDL_SymbolCS(bar.x1, bar.y1 + 1, bar.x2, bar.y2, number, 3, percent >= 50 ? BLACK : WHITE);
}
