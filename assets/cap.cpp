#include "cap.h"

namespace
{
constexpr Colour SLOT = 0x111416;
constexpr Colour TEAL_INK = 0x00797F, TEAL_INK_TOP = 0x005A60;
constexpr Colour AMBER_INK = 0xA85E00, AMBER_INK_TOP = 0x7E4400;
constexpr Colour PLATE = 0x00222B;
constexpr Colour KNOB_CYAN = 0x00FFFF;

void draw_up(const Canvas& cv, const Face& face, const CapShape& shape, int w)
{
    const int h = cv.height;
    const int face_height = h - 2 - shape.lip;
    CV_RoundRect(cv, 1, 1, w - 2, h - 2, shape.radius, shape.corners);
    CV_Paint(cv, face.lip);
    CV_RoundRect(cv, 1, 1, w - 2, face_height, shape.radius, shape.corners);
    CV_PaintGradient(cv, 1, 1 + face_height,
                     {{0, face.top}, {0.45, face.middle}, {1, face.bottom}});
    CV_RoundRect(cv, 1, 1, w - 2, face_height, shape.radius, shape.corners);
    CV_Clip(cv);
    CV_Fill(cv, 1, 1, w - 2, 1, face.edge);
    CV_Fill(cv, 1, 2, w - 2, 1, face.edge, 0.25);
    CV_Fill(cv, 1, 1, 1, h, face.edge, 0.35);
    CV_Fill(cv, w - 2, 1, 1, h, 0x000000, 0.22);
    CV_Fill(cv, 1, face_height, w - 2, 1, 0x000000, 0.18);
    CV_EndClip(cv);
}

void draw_pushed(const Canvas& cv, const Material& material, const CapShape& shape, int w)
{
    constexpr double shadow[] = {0.42, 0.24, 0.10};
    const int h = cv.height;
    const Face& face = material.pushed;
    const Colour shade = material.is_tinted ? face.lip : 0x000000;
    CV_RoundRect(cv, 1, 1, w - 2, h - 2, shape.radius, shape.corners);
    CV_Paint(cv, face.lip);
    CV_RoundRect(cv, 2, 2, w - 3, h - 3, shape.radius, shape.corners);
    CV_PaintGradient(cv, 2, h - 1, {{0, face.top}, {0.5, face.middle}, {1, face.bottom}});
    CV_RoundRect(cv, 2, 2, w - 3, h - 3, shape.radius, shape.corners);
    CV_Clip(cv);
    for (int i = 0; i < 3; i++) {
        CV_Fill(cv, 2, 2 + i, w - 3, 1, shade, shadow[i]);
        CV_Fill(cv, 2 + i, 2, 1, h - 3, shade, shadow[i] * 0.7);
    }
    CV_Fill(cv, 2, h - 2, w - 3, 1, 0xFFFFFF, 0.10);
    CV_EndClip(cv);
}
} // namespace

// clang-format off
//                          edge      top       middle    bottom    lip
const Material GRAPHITE= {{0x737D83, 0x4C555A, 0x3E464A, 0x32383C, 0x15181A},
                           {0,        0x262B2E, 0x2C3235, 0x363D41, 0x101214}};
const Material ICE     = {{0xFFFFFF, 0xEAF7F8, 0xD3ECEE, 0xB6DCE0, 0x4A767D},
                           {0,        0xA9CFD4, 0xBDE0E3, 0xD1EBED, 0x3A6067}, true};
const Material AMBER   = {{0xFFFBF0, 0xFBE8C6, 0xF3CF8F, 0xE8B25E, 0x86581A},
                           {0,        0xE2B468, 0xF0CB88, 0xF9DDAC, 0x6E4713}};
const Material STEEL   = {{0x7888B4, 0x4D5C86, 0x3E4B72, 0x313C5E, 0x131828},
                           {0,        0x262F4A, 0x2D3757, 0x37436A, 0x0E1220}};
const Material SILVER  = {{0xFFFFFF, 0xF0F3FD, 0xDCE1F3, 0xC2CAE7, 0x5A678F},
                           {0,        0xB5BEDC, 0xC9D1E9, 0xDCE2F4, 0x48547A}};
const Material PETROL  = {{0x527E8B, 0x2F5460, 0x25444E, 0x1C343D, 0x0B171B},
                           {0,        0x13262C, 0x182F37, 0x203D47, 0x081114}};
// clang-format on

void CAP_Draw(const Canvas& cv, const Material& material, int pushed, const CapShape& shape)
{
    const int w = shape.width ? shape.width : cv.width;
    CV_RoundRect(cv, 0, 0, w, cv.height, shape.radius + 1, shape.corners);
    CV_Paint(cv, 0x000000);
    if (pushed)
        draw_pushed(cv, material, shape, w);
    else
        draw_up(cv, material.up, shape, w);
}

void CAP_Flat(const Canvas& cv, int on, const CapShape& shape)
{
    constexpr struct {
        Colour plate, outline;
    } tones[] = {
        {0x1A1D1F, 0x34393C}, {0x7C898D, 0x96A3A7}, {0x99896A, 0xB3A382}}; // off, on, third
    const int w = cv.width, h = cv.height;
    CV_RoundRect(cv, 0, 0, w, h, shape.radius + 1, shape.corners);
    CV_Paint(cv, 0x000000);
    CV_RoundRect(cv, 1, 1, w - 2, h - 2, shape.radius, shape.corners);
    CV_Paint(cv, tones[on].outline);
    CV_RoundRect(cv, 2, 2, w - 4, h - 4, shape.radius - 1, shape.corners);
    CV_Paint(cv, tones[on].plate);
}

void CAP_Panel(const Canvas& cv, Colour top, Colour bottom, int radius)
{
    CV_RoundRect(cv, 0, 0, cv.width, cv.height, radius);
    CV_Paint(cv, 0x000000);
    CV_RoundRect(cv, 1, 1, cv.width - 2, cv.height - 2, radius - 1);
    CV_PaintGradient(cv, 1, cv.height - 1, {{0, top}, {1, bottom}});
    CV_RoundRect(cv, 1, 1, cv.width - 2, cv.height - 2, radius - 1);
    CV_Clip(cv);
    CV_Fill(cv, 1, 1, cv.width - 2, 2, 0x000000, 0.5);
    CV_Fill(cv, 1, cv.height - 2, cv.width - 2, 1, 0x4A5256, 0.8);
    CV_EndClip(cv);
}

void CAP_Lamp(const Canvas& cv, const State& st, const Slot& slot)
{
    const int x = slot.x + st.pushed, y = slot.y + st.pushed;
    const int bar_width = cv.width - 2 * slot.x;
    if (st.is_disabled) {
        if (st.on)
            CV_Fill(cv, x, y, bar_width, slot.height, 0x000000, 0.30);
    } else if (st.on == 0) {
        CV_Fill(cv, x, y, slot.off_width, slot.height, SLOT);
        if (slot.height > 2)
            CV_Fill(cv, x, y + slot.height, slot.off_width, 1, 0xFFFFFF, 0.13);
    } else if (st.on == 1) {
        CV_Fill(cv, x, y, bar_width, slot.height, TEAL_INK);
        if (slot.height > 2)
            CV_Fill(cv, x, y, bar_width, 1, TEAL_INK_TOP);
    } else {
        const int gap = 5, dash = (bar_width - 3 * gap) / 4;
        for (int i = 0; i < 4; i++) {
            CV_Fill(cv, x + i * (dash + gap), y, dash, slot.height, AMBER_INK);
            CV_Fill(cv, x + i * (dash + gap), y, dash, 1, AMBER_INK_TOP);
        }
    }
}

void CAP_Grip(const Canvas& cv, const State& st)
{
    const Colour colour = st.is_disabled ? 0x5A6166 : st.on ? 0x4A5788 : 0x9DACD8;
    for (int y : {4, 7})
        CV_Fill(cv, 10 + st.pushed, y + st.pushed, 22, 1, colour, st.is_disabled ? 0.35 : 1);
}

void CAP_Primary(const Canvas& cv, const State& st)
{
    CV_RoundRect(cv, 4 + st.pushed, 4 + st.pushed, cv.width - 8 - st.pushed, cv.height - 10, 3);
    CV_Stroke(cv, 1.6, st.on ? 0x4A5788 : 0xC3CEF0);
}

void CAP_OwnFrame(const Canvas& cv, int pushed)
{
    const int w = cv.width, h = cv.height, p = pushed;
    CV_RoundRect(cv, 3.5 + p, 3.5 + p, w - 7 - p, h - 7 - p, 3.5);
    CV_Stroke(cv, 1, PLATE, 0.9);
    CV_RoundRect(cv, 2 + p, 2 + p, w - 4 - p, h - 4 - p, 4.5);
    CV_Stroke(cv, 2, KNOB_CYAN);
}

void CAP_CyanFrame(const Canvas& cv, Colour colour, int pushed)
{
    const int p = pushed;
    CV_RoundRect(cv, 2 + p, 2 + p, cv.width - 4 - p, cv.height - 5 - p, 4);
    CV_Stroke(cv, 2, colour);
}

Colour CAP_Ink(const State& st)
{
    if (st.is_disabled)
        return 0x4A5054;
    return st.on ? 0x0F3A40 : 0xFFFFFF;
}
