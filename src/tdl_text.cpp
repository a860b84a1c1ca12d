#include "tdl.h"
#include "tdl_private.h"
#include "text.h"
#include <algorithm>
#include <cassert>
#include <climits>
#include <cstdio>
#include <cstring>

#include "safeguards.h"

constexpr int FONT_MAX = 10;
constexpr int FONT_CODES =
    128; // entries of a font; entry 0 is its height, entry c the start of glyph c
constexpr int LAST_CODE = 126; // the last one with an entry behind it to tell its width
constexpr int GLYPH_MAX = 64;  // rows and columns at most

namespace
{
// The rows of a glyph that have ink, the end not included.
struct InkRows {
    uint8_t begin = 0;
    uint8_t end = 0;
};

struct Glyph {
    int w = 0; // 0 for a code that the font does not have
    int h = 0;
    const uint8_t* coverage = nullptr; // h rows of w bytes
    InkRows ink;
};

// A text on its way to the screen.
struct Pen {
    int x = 0;
    int y = 0;
    int font = 0;
    unsigned col = 0;
    uint32_t pixel = 0;     // col on the screen
    Rect ink = TDL_NOTHING; // bounding box of the glyphs drawn so far
};

// How far a walk along a wrapped block came.
struct Walked {
    int breaks = 0; // wraps and line feeds passed
    int used_px = 0;
    int widest_px = 0; // of the lines from topline on
};
} // namespace

static uint8_t FontImg[120000];
static uint32_t FontOfs[FONT_MAX][FONT_CODES]; // as in the file: little-endian
static InkRows GlyphInk[FONT_MAX][FONT_CODES];
static SDL_Surface* FontDrwBuf = nullptr; // one glyph in colour, where SDL does the blending

static_assert(sizeof FontOfs == 5120);

// --- Fonts ---

// A shorter file leaves the rest as it is.
static int read_file(const char* name, void* to, size_t size)
{
    FILE* fp = fopen(name, "rb");
    if (!fp)
        return -1;
    (void)fread(to, 1, size, fp); // short is allowed
    fclose(fp);
    return 0;
}

static uint32_t font_entry(int font, int code)
{
    assert(font >= 0 && font < FONT_MAX && code >= 0 && code < FONT_CODES);
    return SDL_SwapLE32(FontOfs[font][code]);
}

// 0 for a slot without a font, and for a height that no glyph may have.
static int font_height(int font)
{
    const uint32_t h = font_entry(font, 0);
    return h <= GLYPH_MAX ? int(h) : 0;
}

// Whatever the font files hold, the coverage lies inside FontImg and the glyph inside FontDrwBuf.
static Glyph glyph_of(int font, char c)
{
    const int code = uint8_t(c);
    Glyph g = {.w = 0, .h = font_height(font), .coverage = FontImg};
    if (g.h == 0 || code == 0 || code > LAST_CODE)
        return g;
    const uint32_t begin = font_entry(font, code);
    const uint32_t end = font_entry(font, code + 1);
    if (begin > end || end > sizeof FontImg)
        return g;
    const uint32_t w = (end - begin) / uint32_t(g.h);
    if (w > GLYPH_MAX)
        return g;
    g.w = int(w);
    g.coverage = FontImg + begin;
    g.ink = GlyphInk[font][code];
    return g;
}

static bool has_ink(const Glyph& g, int row)
{
    const uint8_t* begin = g.coverage + row * g.w;
    return std::any_of(begin, begin + g.w, [](uint8_t coverage) { return coverage != 0; });
}

// Nearly half the rows of a font are above or below its letters: they are not drawn.
static void find_ink()
{
    for (int font = 0; font < FONT_MAX; font++)
        for (int code = 0; code <= LAST_CODE; code++) {
            const Glyph g = glyph_of(font, char(code));
            int begin = 0, end = g.h;
            while (begin < end && !has_ink(g, begin))
                begin++;
            while (begin < end && !has_ink(g, end - 1))
                end--;
            GlyphInk[font][code] = {uint8_t(begin), uint8_t(end)};
        }
}

int tdl_text_init()
{
    FontDrwBuf = SDL_CreateRGBSurface(SDL_SRCALPHA, GLYPH_MAX, GLYPH_MAX, 32, 0xFF0000, 0x00FF00,
                                      0x0000FF, 0xFF000000);
    memset(FontImg, 0, sizeof FontImg);
    memset(FontOfs, 0, sizeof FontOfs);
    const int no_img = read_file("font.dat", FontImg, sizeof FontImg);
    const int no_ofs = read_file("font_ofs.dat", FontOfs, sizeof FontOfs);
    find_ink();
    return !FontDrwBuf || no_img || no_ofs ? -1 : 0;
}

void tdl_text_quit()
{
    SDL_FreeSurface(FontDrwBuf);
    FontDrwBuf = nullptr;
}

// --- One glyph ---

static Pen pen_at(int x, int y, int font, unsigned col)
{
    return {.x = x, .y = y, .font = font, .col = col & 0xFFFFFF, .pixel = tdl_map_colour(col)};
}

void tdl_paint_glyph(const Stroke& s, const Rect& part)
{
    const int pitch = s.box.x2 - s.box.x1 + 1;
    const int width = part.x2 - part.x1 + 1;
    const uint8_t* row = s.coverage + (part.y1 - s.box.y1) * pitch + part.x1 - s.box.x1;
    for (int y = part.y1; y <= part.y2; y++, row += pitch) {
        auto* to = reinterpret_cast<uint32_t*>(tdl_pixel_at(Screen, part.x1, y));
        for (int i = 0; i < width; i++) {
            const uint32_t alpha = row[i];
            if (alpha != 0)
                to[i] = alpha == 255 ? s.pixel : tdl_mix(s.pixel, to[i], alpha);
        }
    }
}

static void blit_glyph(int x, int y, const Glyph& g, unsigned col)
{
    const uint8_t* coverage = g.coverage;
    for (int row = 0; row < g.h; row++) {
        auto* to = reinterpret_cast<uint32_t*>(tdl_pixel_at(FontDrwBuf, 0, row));
        for (int i = 0; i < g.w; i++)
            *to++ = col | uint32_t(*coverage++) << 24;
    }
    SDL_Rect src = {0, 0, Uint16(g.w), Uint16(g.h)};
    SDL_Rect dst = {Sint16(x), Sint16(y), 0, 0};
    tdl_draw_directly({x, y, x + g.w - 1, y + g.h - 1});
    (void)SDL_UpperBlit(FontDrwBuf, &src, Screen, &dst); // fails only for a lost video surface
}

static void add_ink(Rect* ink, const Rect& r)
{
    if (tdl_is_empty(r))
        return;
    if (tdl_is_empty(*ink)) {
        *ink = r;
        return;
    }
    *ink = {std::min(ink->x1, r.x1), std::min(ink->y1, r.y1), std::max(ink->x2, r.x2),
            std::max(ink->y2, r.y2)};
}

// False when the glyph does not fit on the screen: it is not cut, it ends the text.
static bool draw_glyph(Pen* pen, int x, const Glyph& g)
{
    const int y = pen->y;
    if (x < 0 || x + g.w > ScreenX || y < 0 || y + g.h > ScreenY)
        return false;
    if (g.w == 0)
        return true;
    const Rect box = {x, y, x + g.w - 1, y + g.h - 1};
    if (tdl_blends_bytes())
        tdl_draw({.kind = STROKE_GLYPH,
                  .box = {box.x1, y + g.ink.begin, box.x2, y + g.ink.end - 1},
                  .pixel = pen->pixel,
                  .coverage = g.coverage + g.ink.begin * g.w});
    else
        blit_glyph(x, y, g, pen->col);
    add_ink(&pen->ink, box);
    return true;
}

// --- Walks along a text ---

static void line_feed(Pen* pen, int start_x)
{
    pen->x = start_x;
    pen->y += font_height(pen->font);
}

// Ends before the first character that would reach the width; a line feed restarts the count.
static void walk_lines(Pen* pen, int width, const char* str)
{
    const int start_x = pen->x;
    int line_px = 0;
    for (; *str; str++) {
        if (*str == '\n') {
            line_feed(pen, start_x);
            line_px = 0;
            continue;
        }
        const Glyph g = glyph_of(pen->font, *str);
        line_px += g.w;
        if (line_px >= width || !draw_glyph(pen, pen->x, g))
            return;
        pen->x += g.w;
    }
}

// Cells of pitch pixels, a narrower glyph in the middle of its cell.
static void walk_cells(Pen* pen, int pitch, const char* str)
{
    const int start_x = pen->x;
    for (; *str; str++) {
        if (*str == '\n') {
            line_feed(pen, start_x);
            continue;
        }
        const Glyph g = glyph_of(pen->font, *str);
        const int indent = g.w < pitch ? pitch / 2 - g.w / 2 : 0;
        if (!draw_glyph(pen, pen->x + indent, g))
            return;
        pen->x += pitch;
    }
}

// A block: a character that would reach the width begins a new line, wherever in a word that is.
// Lines before topline are walked but take no room. The height in use starts at one line and ends
// the text when it reaches the given one; a line feed alone never does. Without a pen it only
// counts, and the screen is no limit.
static Walked walk_block(Pen* pen, int font, int width, int height, const char* str, int topline)
{
    const int start_x = pen ? pen->x : 0;
    const int h = font_height(font);
    Walked walked = {.used_px = h};
    int line_px = 0;
    for (; *str; str++) {
        const bool feed = *str == '\n';
        const Glyph g = feed ? Glyph{} : glyph_of(font, *str);
        if (feed || line_px + g.w >= width) {
            if (pen)
                pen->x = start_x;
            if (walked.breaks >= topline) {
                if (pen)
                    pen->y += h;
                walked.used_px += h;
            }
            walked.breaks++;
            line_px = 0;
        }
        if (feed)
            continue;
        line_px += g.w;
        if (walked.used_px >= height)
            break;
        if (walked.breaks >= topline) {
            if (pen && !draw_glyph(pen, pen->x, g))
                break;
            walked.widest_px = std::max(walked.widest_px, line_px);
        }
        if (pen)
            pen->x += g.w;
    }
    return walked;
}

// --- Lines of text ---

int TDL_SymbolS(int x, int y, const char* str, int font, unsigned col)
{
    return TDL_SymbolWS(x, y, INT_MAX, str, font, col);
}

int TDL_Symbol(int x, int y, const char* str, int font, unsigned col)
{
    return TDL_SymbolW(x, y, INT_MAX, str, font, col);
}

int TDL_SymbolWS(int x, int y, int width, const char* str, int font, unsigned col)
{
    if (!str)
        return -1;
    Pen pen = pen_at(x, y, font, col);
    walk_lines(&pen, width, str);
    return 0;
}

int TDL_SymbolW(int x, int y, int width, const char* str, int font, unsigned col)
{
    if (!str)
        return -1;
    Pen pen = pen_at(x, y, font, col);
    walk_lines(&pen, width, str);
    tdl_flush(pen.ink);
    return 0;
}

int TDL_SymbolPS(int x, int y, int dw, const char* str, int font, unsigned col)
{
    if (!str)
        return -1;
    Pen pen = pen_at(x, y, font, col);
    walk_cells(&pen, dw, str);
    return 0;
}

int TDL_SymbolP(int x, int y, int dw, const char* str, int font, unsigned col)
{
    if (!str)
        return -1;
    Pen pen = pen_at(x, y, font, col);
    walk_cells(&pen, dw, str);
    tdl_flush(pen.ink);
    return 0;
}

int TDL_SymbolWAddS(int x, int y, int width, const char* str, const char* add_str, int font,
                    unsigned col)
{
    if (!str)
        return -1;
    if (int(TDL_GetSymbolWidth(str, font)) <= width)
        return TDL_SymbolS(x, y, str, font, col);

    char joined[32];
    if (!add_str || strlen(str) + strlen(add_str) >= sizeof joined)
        return -1;
    CopyText(joined, str);
    if (TDL_CutText(joined, sizeof joined, width, add_str, font) != 0)
        return -1;
    return TDL_SymbolS(x, y, joined, font, col);
}

// --- Blocks ---

int TDL_SymbolBS(int x, int y, int width, int height, const char* str, int font, unsigned col,
                 int topline)
{
    if (!str)
        return -1;
    Pen pen = pen_at(x, y, font, col);
    (void)walk_block(&pen, font, width, height, str, topline); // its size is for the flush
    return 0;
}

int TDL_SymbolB(int x, int y, int width, int height, const char* str, int font, unsigned col,
                int topline)
{
    if (!str)
        return -1;
    Pen pen = pen_at(x, y, font, col);
    const Walked block = walk_block(&pen, font, width, height, str, topline);
    tdl_flush({x, y, x + block.widest_px - 1, y + block.used_px - 1});
    return 0;
}

int TDL_SymbolCBS(int x1, int y1, int x2, int y2, int width, int height, const char* str, int font,
                  unsigned col, int topline, int frame_height)
{
    constexpr int INDENT = 8;
    if (!str)
        return -1;
    const int breaks = TDL_linecheck(x1, y1, x2, y2, width, height, str, font, col, topline);
    if (breaks == 0)
        return TDL_SymbolCS(x1, y1, x2, y2, str, font, col);
    const int spare = ((y2 - y1 - frame_height) & ~1) - (breaks + 1) * font_height(font);
    return TDL_SymbolBS(x1 + INDENT, y1 + INDENT + spare / 2, width, height, str, font, col,
                        topline);
}

// --- Centred text: the block is centred, its lines all begin at the same x ---

namespace
{
struct Point {
    int x = 0;
    int y = 0;
};
} // namespace

// size is height << 16 | width. A text larger than the rectangle sticks out on both sides.
static Point centred(int x1, int y1, int x2, int y2, unsigned size)
{
    const int w = int(size & 0xFFFF);
    const int h = int(size >> 16);
    return {x1 + (x2 - x1 - w) / 2, y1 + (y2 - y1 - h) / 2};
}

int TDL_SymbolCS(int x1, int y1, int x2, int y2, const char* str, int font, unsigned col)
{
    const Point at = centred(x1, y1, x2, y2, TDL_GetSymbolSize(str, font));
    return TDL_SymbolS(at.x, at.y, str, font, col);
}

int TDL_SymbolC(int x1, int y1, int x2, int y2, const char* str, int font, unsigned col)
{
    const Point at = centred(x1, y1, x2, y2, TDL_GetSymbolSize(str, font));
    return TDL_Symbol(at.x, at.y, str, font, col);
}

int TDL_SymbolCS_PRO(int x1, int y1, int x2, int y2, const char* str, int font, unsigned col)
{
    int pitch = 0;
    const Point at = centred(x1, y1, x2, y2, TDL_GetSymbolSize_PRO(str, font, &pitch));
    return TDL_SymbolPS(at.x, at.y, pitch, str, font, col);
}

// --- Measures ---

namespace
{
struct Extent {
    int lines = 1;
    int widest_px = 0;
    int most_chars = 0; // in a line
};
} // namespace

static Extent extent_of(const char* str, int font)
{
    Extent e;
    int line_px = 0;
    int chars = 0;
    for (; *str; str++) {
        if (*str == '\n') {
            e.lines++;
            line_px = 0;
            chars = 0;
            continue;
        }
        line_px += glyph_of(font, *str).w;
        chars++;
        e.widest_px = std::max(e.widest_px, line_px);
        e.most_chars = std::max(e.most_chars, chars);
    }
    return e;
}

static unsigned packed_size(int height, int width)
{
    return unsigned(height) << 16 | (unsigned(width) & 0xFFFF);
}

unsigned TDL_GetSymbolSize(const char* str, int font)
{
    if (!str)
        return 1;
    const Extent e = extent_of(str, font);
    return packed_size(e.lines * font_height(font), e.widest_px);
}

unsigned TDL_GetSymbolWidth(const char* str, int font)
{
    if (!str)
        return 1;
    return unsigned(extent_of(str, font).widest_px);
}

unsigned TDL_GetSymbolSize_PRO(const char* str, int font, int* size)
{
    if (!str)
        return 1;
    const Extent e = extent_of(str, font);
    *size = glyph_of(font, 'W').w;
    return packed_size(e.lines * font_height(font), e.most_chars * *size);
}

int TDL_CutText(char* text, size_t size, int width, const char* tail, int font)
{
    if (int(TDL_GetSymbolWidth(text, font)) <= width)
        return 0;
    const int room = width - int(TDL_GetSymbolWidth(tail, font));
    for (size_t n = strlen(text); n > 0 && int(TDL_GetSymbolWidth(text, font)) > room; n--)
        text[n - 1] = '\0';
    ktr_strncat(text, tail, size);
    return room < 0 ? -1 : 0;
}

int TDL_GetSymbolLine(int width, const char* str, int font)
{
    if (!str)
        return 0;
    return walk_block(nullptr, font, width, INT_MAX, str, 0).breaks + 1;
}

size_t TDL_GetLineLength(int width, const char* str, int font)
{
    int line_px = 0;
    size_t n = 0;
    for (; str[n]; n++) {
        if (str[n] == '\n')
            return n + 1;
        line_px += glyph_of(font, str[n]).w;
        if (line_px >= width && n > 0)
            return n;
    }
    return n;
}

int TDL_linecheck(int, int, int, int, int width, int height, const char* str, int font, unsigned,
                  int topline)
{
    if (!str)
        return -1;
    return walk_block(nullptr, font, width, height, str, topline).breaks;
}
