// Charts: the colours with a meaning and the scales of the display, and all glyphs of the fonts.
#include "colours.h"
#include "pc_eng.h"
#include "tdl.h"
#include "text.h"
#include <iterator>

#include "safeguards.h"

namespace
{
constexpr Rect AREA = {100, 76, 699, 526}; // the work area; the key stands at its end

struct Color {
    const char* name;
    unsigned rgb;
};
constexpr Color colors[] = {
    {"White", WHITE},
    {"Black", BLACK},
    {"Grey", GREY},
    {"Pull-down off", PULLDOWN_DISABLED},
    {"Teal", TEAL},
    {"Label", LABEL},
    {"List title", LIST_TITLE},
    {"Box value", BOX_VALUE},
    {"Orange", ORANGE},
    {"Orange dark", ORANGE_DARK},
    {"Red", RED},
    {"Green", GREEN},
    {"Yellow", YELLOW},
    {"Cyan", CYAN},
    {"Lamp off", LAMP_OFF},
    {"No tally", NO_TALLY_MARK},
    {"Frame ground", FRAME_GROUND},
    {"Header ground", HEADER_GROUND},
    {"Bar ground", BAR_GROUND},
    {"Group frame", GROUP_FRAME},
    {"Cell frame", CELL_FRAME},
    {"Separator", SEPARATOR},
    {"Raised light", RAISED_LIGHT},
    {"Raised dark", RAISED_DARK},
};
} // namespace

// --- Colours ---

static void draw_swatch(int n)
{
    constexpr int ROWS = 8, COLUMN_PX = 198, ROW_PX = 30;
    const int x = AREA.x1 + 4 + n / ROWS * COLUMN_PX;
    const int y = AREA.y1 + 6 + n % ROWS * ROW_PX;
    char value[16];
    PrintText(value, "%06X", colors[n].rgb);
    TDL_FillRectS(x, y, x + 39, y + 23, colors[n].rgb);
    TDL_RectS(x, y, x + 39, y + 23, SEPARATOR);
    TDL_SymbolS(x + 48, y, colors[n].name, 1, WHITE);
    TDL_SymbolS(x + 48, y + 13, value, 0, LABEL);
}

// From nothing to full in 256 steps of two pixels; the darkest and the lightest must still be told
// from the ground and from white.
static void draw_scale(int y, const char* name, unsigned unit)
{
    constexpr int LEFT = 162, STEP_PX = 2, HEIGHT = 26;
    TDL_SymbolS(AREA.x1 + 4, y + 7, name, 3, WHITE);
    for (unsigned v = 0; v < 256; v++)
        TDL_FillRectS(LEFT + int(v) * STEP_PX, y, LEFT + int(v) * STEP_PX + 1, y + HEIGHT - 1,
                      unit * v);
}

static int colors_create(int on, uint32_t)
{
    if (!on)
        return 1;
    for (int n = 0; n < int(std::size(colors)); n++)
        draw_swatch(n);
    draw_scale(330, "Grey", 0x010101);
    draw_scale(358, "Red", 0x010000);
    draw_scale(386, "Green", 0x000100);
    draw_scale(414, "Blue", 0x000001);
    return 0;
}

const PC_TBL pc_eng_colors = {nullptr, colors_create};

// --- Fonts ---

namespace
{
constexpr int FIRST_CODE = 32;
constexpr int LAST_CODE = 126;
constexpr int FONTS_A_PAGE = 2;
constexpr int HALF_PX = 182;
constexpr int COLUMNS = 24;
constexpr int CELL_W = 24;
constexpr int CELL_H = 39;
} // namespace

static void draw_glyph(int x, int y, int font, int code)
{
    const char glyph[] = {char(code), '\0'};
    char number[4];
    PrintText(number, "%02X", unsigned(code));
    if (TDL_GetSymbolWidth(glyph, font) == 0)
        TDL_RectS(x, y, x + CELL_W - 6, y + 20, RED); // the font does not have it
    TDL_SymbolS(x, y, glyph, font, WHITE);
    TDL_SymbolS(x, y + 25, number, 0, 0x8A9498);
}

static void draw_font(int y, int font)
{
    char title[64];
    const int height = int(TDL_GetSymbolSize("W", font) >> 16);
    PrintText(title, "Font %d,  height %d,  \"0\" %d,  \"W\" %d px", font, height,
              int(TDL_GetSymbolWidth("0", font)), int(TDL_GetSymbolWidth("W", font)));
    TDL_SymbolS(AREA.x1 + 10, y, title, 3, LIST_TITLE);
    TDL_LineHS(AREA.x1 + 10, y + 18, 578, GROUP_FRAME);
    for (int code = FIRST_CODE; code <= LAST_CODE; code++) {
        const int n = code - FIRST_CODE;
        draw_glyph(AREA.x1 + 12 + n % COLUMNS * CELL_W, y + 23 + n / COLUMNS * CELL_H, font, code);
    }
}

static int fonts_create(int on, uint32_t first)
{
    if (!on)
        return 1;
    for (int i = 0; i < FONTS_A_PAGE; i++)
        draw_font(AREA.y1 + 4 + i * HALF_PX, int(first) + i);
    return 0;
}

const PC_TBL pc_eng_fonts = {nullptr, fonts_create};
