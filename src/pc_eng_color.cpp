// Two pages on which colours are tried out: the ground of the status cells, with cells to judge it
// by, and a colour by hue, saturation and luminance as it is written in a table.
#include "a_ba.h"
#include "a_nb.h"
#include "a_st_draw.h"
#include "bus.h"
#include "colours.h"
#include "command.h"
#include "hsl.h"
#include "message.h"
#include "pc_eng.h"
#include "tally_value.h"
#include "tdl.h"
#include "text.h"
#include <algorithm>
#include <iterator>

#include "safeguards.h"

static void draw_value(int x, int y, unsigned rgb)
{
    char text[64];
    PrintText(text, "0x%06X     R %u   G %u   B %u", rgb, rgb >> 16, rgb >> 8 & 0xFF, rgb & 0xFF);
    Eng_Text(x, y, 697, text, 7, WHITE);
}

// --- The ground of the cells ---

namespace
{
struct Knob {
    int box;
    int* value;
    int min;
    int max;
    int usual; // what the process starts with
};
const Knob knobs[] = {
    {1, &bgc_red, 0, 255, bgc_red},
    {2, &bgc_green, 0, 255, bgc_green},
    {3, &bgc_blue, 0, 255, bgc_blue},
    {4, &gry_rat, 0, 255, gry_rat},
    {17, &dbpost_x, -ENG_PICTURE_SHIFT, ENG_PICTURE_SHIFT, dbpost_x},
    {18, &dbpost_y, -ENG_PICTURE_SHIFT, ENG_PICTURE_SHIFT, dbpost_y},
};

struct Switch {
    const char* path;
    int* value;
};
constexpr Switch switches[] = {
    {ENG_COLOR "Lit", &bgcen},
    {ENG_COLOR "Inverted", &inven},
    {ENG_COLOR "Veiled", &gryen},
    {ENG_COLOR "Small Font", &s_font},
};
} // namespace

static void checker_show()
{
    for (const Switch& s : switches)
        Eng_Mirror(s.path, Bool(*s.value));
    for (const Knob& k : knobs)
        NB_SetVar(k.box, *k.value);
    draw_value(112, 288, st_ground(1));
    Eng_Text(112, 316, 697,
             "The ground of a lit cell. What is turned holds on all pages until the end.", 2,
             LABEL);
    TDL_UpdateRect(112, 288, 697, 340);
    GL_ST_area_update_draw();
}

static void checker_color(const char* value)
{
    const uint32_t rgb = Hex(value);
    bgc_red = int(rgb >> 16 & 0xFF);
    bgc_green = int(rgb >> 8 & 0xFF);
    bgc_blue = int(rgb & 0xFF);
}

static int checker_button(const char* path, const char* value)
{
    for (const Switch& s : switches)
        if (Same(path, s.path))
            *s.value = !*s.value;
    if (Same(path, ENG_COLOR "Ground"))
        checker_color(value);
    if (Same(path, ENG_COLOR "Default"))
        for (const Knob& k : knobs)
            *k.value = k.usual;
    checker_show();
    return 0;
}

static int checker_knob(int box, int value)
{
    for (const Knob& k : knobs)
        if (k.box == box) {
            *k.value = std::clamp(value, k.min, k.max);
            checker_show();
        }
    return 0;
}

static int checker_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case LMSG_BTNSEL: return checker_button(Text(ax), Text(bx));
    case LMSG_KNOBVAR: return checker_knob(int(ax), int(bx));
    default: return 0;
    }
}

static int checker_create(int on, uint32_t)
{
    for (const Switch& s : switches) // also when it is left: they are of this page only
        *s.value = 0;
    bgcen = on; // the colour is what the page is for
    if (!on)
        return 1;
    checker_show();
    return 0;
}

const PC_TBL pc_eng_checker = {checker_proc, checker_create};

// --- Hue, saturation, luminance ---

static struct {
    double part[3] = {0, 100, 50}; // hue, saturation, luminance: boxes 1 to 3
} hsl;                             // kept while other pages are shown

static void hsl_show()
{
    const double* const p = hsl.part;
    const unsigned rgb = RgbOfHsl(p[0], p[1], p[2]);
    for (int i = 0; i < int(std::size(hsl.part)); i++)
        NB_SetVar(i + 1, p[i]);
    TDL_FillRectS(113, 93, 684, 225, rgb);
    TDL_RectS(112, 92, 685, 226, SEPARATOR);
    TDL_SymbolS(130, 108, "White text", 8, WHITE);
    TDL_SymbolS(130, 138, "Black text", 8, BLACK);
    draw_value(112, 246, rgb);
    char text[64];
    PrintText(text, "Hue %.2f   Saturation %.2f   Luminance %.2f", p[0], p[1], p[2]);
    Eng_Text(112, 276, 697, text, 3, LABEL);
    TDL_UpdateRect(112, 92, 697, 300);
}

static int hsl_button(const char* path, const char* value)
{
    if (!Same(path, ENG_COLOR "HSL"))
        return 0;
    Parts parts;
    if (SplitValue(parts, value, 3) == 3)
        for (int i = 0; i < 3; i++)
            hsl.part[i] = Decimal(parts.v[i]);
    hsl_show();
    return 0;
}

static int hsl_knob(int box, const double* value)
{
    if (box < 1 || box > int(std::size(hsl.part)))
        return 0;
    hsl.part[box - 1] = *value;
    hsl_show();
    return 0;
}

static int hsl_proc(int msg, MsgArg ax, MsgArg bx, MsgArg, MsgArg)
{
    switch (msg) {
    case LMSG_BTNSEL: return hsl_button(Text(ax), Text(bx));
    case LMSG_KNOBFVAR: return hsl_knob(int(ax), reinterpret_cast<const double*>(bx));
    default: return 0;
    }
}

static int hsl_create(int on, uint32_t)
{
    if (!on)
        return 1;
    hsl_show();
    return 0;
}

const PC_TBL pc_eng_hsl = {hsl_proc, hsl_create};
