#include "tdl.h"
#include "bmp_check.h"
#include "tdl_private.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "safeguards.h"

SDL_Surface* Screen = nullptr;
int ScreenX = 0;
int ScreenY = 0;

static SDL_Surface* ScreenBuf = nullptr; // the one slot of the screen save, in its top left corner
static SDL_Surface* AlphaBuf = nullptr;  // scratch of the alpha verbs; holds nothing between calls
static SDL_Rect PushedScreenXY = {0, 0, 0, 0}; // where the saved rectangle belongs; width 0: none

// --- Pixels ---

uint8_t* tdl_pixel_at(SDL_Surface* s, int x, int y)
{
    return static_cast<uint8_t*>(s->pixels) + y * s->pitch + x * s->format->BytesPerPixel;
}

uint32_t tdl_map_colour(unsigned col)
{
    return SDL_MapRGB(Screen->format, uint8_t(col >> 16), uint8_t(col >> 8), uint8_t(col));
}

bool tdl_blends_bytes()
{
    const SDL_PixelFormat& f = *Screen->format;
    const int shifts = f.Rshift | f.Gshift | f.Bshift;
    const int losses = f.Rloss | f.Gloss | f.Bloss;
    return f.BytesPerPixel == 4 && shifts % 8 == 0 && losses == 0;
}

static bool is_on_screen(int x, int y)
{
    return x >= 0 && x < ScreenX && y >= 0 && y < ScreenY;
}

static Rect clip_to_screen(const Rect& r)
{
    return {std::max(r.x1, 0), std::max(r.y1, 0), std::min(r.x2, ScreenX - 1),
            std::min(r.y2, ScreenY - 1)};
}

static Rect box_at(int x, int y, int w, int h)
{
    return {x, y, x + w - 1, y + h - 1};
}

static Rect rect_of(const SDL_Rect& r)
{
    return box_at(r.x, r.y, r.w, r.h);
}

static void fill_row(uint8_t* row, int count, int bytes_per_pixel, uint32_t pixel)
{
    switch (bytes_per_pixel) {
    case 1: memset(row, uint8_t(pixel), size_t(count)); break;
    case 2: std::fill_n(reinterpret_cast<uint16_t*>(row), count, uint16_t(pixel)); break;
    case 3:
        if (SDL_BYTEORDER == SDL_BIG_ENDIAN)
            pixel = SDL_Swap32(pixel << 8);
        for (int i = 0; i < count; i++, row += 3) {
            row[0] = uint8_t(pixel);
            row[1] = uint8_t(pixel >> 8);
            row[2] = uint8_t(pixel >> 16);
        }
        break;
    case 4: std::fill_n(reinterpret_cast<uint32_t*>(row), count, pixel); break;
    default: break;
    }
}

// r lies inside the surface or is empty. The rows below the first are copies of it: that is memory
// speed at every depth.
static void fill(SDL_Surface* s, const Rect& r, uint32_t pixel)
{
    if (tdl_is_empty(r))
        return;
    constexpr int NARROW = 8; // px: not worth a copy
    const int bytes = s->format->BytesPerPixel;
    const int width = r.x2 - r.x1 + 1;
    uint8_t* first = tdl_pixel_at(s, r.x1, r.y1);
    fill_row(first, width, bytes, pixel);
    uint8_t* row = first;
    for (int y = r.y1 + 1; y <= r.y2; y++) {
        row += s->pitch;
        if (width < NARROW)
            fill_row(row, width, bytes, pixel);
        else
            memcpy(row, first, size_t(width * bytes));
    }
}

// Both surfaces have pixels of the same width; both blocks lie inside.
static void copy_rows(SDL_Surface* to, int to_x, int to_y, SDL_Surface* from, const SDL_Rect& part)
{
    const uint8_t* src = tdl_pixel_at(from, part.x, part.y);
    uint8_t* dst = tdl_pixel_at(to, to_x, to_y);
    for (int row = 0; row < part.h; row++, src += from->pitch, dst += to->pitch)
        memcpy(dst, src, size_t(part.w * to->format->BytesPerPixel));
}

static void mix_plain_row(uint8_t* dst, const uint8_t* src, int count, uint8_t alpha)
{
    for (; count > 0; count--, dst += 4, src += 4) {
        uint32_t s, d;
        memcpy(&s, src, sizeof s);
        memcpy(&d, dst, sizeof d);
        d = tdl_mix(s, d, alpha);
        memcpy(dst, &d, sizeof d);
    }
}

// A processor without a vector unit would take lanes one by one, at a sixth of the plain speed.
#if defined __SSE2__ || defined __ARM_NEON || defined __ALTIVEC__ || defined __VX__

// Eight bytes in the lower halves of 16-bit lanes. The compiler makes of it whatever the processor
// has.
using Lanes = uint16_t __attribute__((vector_size(16)));

static inline Lanes mix_lanes(Lanes s, Lanes d, uint16_t alpha)
{
    return ((((s - d) * alpha) >> 8) + d) & 0xFF;
}

// tdl_mix over a row, four pixels at a time.
static void mix_row(uint8_t* dst, const uint8_t* src, int count, uint8_t alpha)
{
    for (; count >= 4; count -= 4, dst += sizeof(Lanes), src += sizeof(Lanes)) {
        Lanes s, d;
        memcpy(&s, src, sizeof s);
        memcpy(&d, dst, sizeof d);
        d = mix_lanes(s & 0xFF, d & 0xFF, alpha) | (mix_lanes(s >> 8, d >> 8, alpha) << 8);
        memcpy(dst, &d, sizeof d);
    }
    mix_plain_row(dst, src, count, alpha);
}

#else

static void mix_row(uint8_t* dst, const uint8_t* src, int count, uint8_t alpha)
{
    mix_plain_row(dst, src, count, alpha);
}

#endif

// Lay rows of screen pixels on the screen at a constant opacity. A pitch of 0 lays the same row
// again and again.
static void mix_rows(const SDL_Rect& dst, const uint8_t* src, int src_pitch, uint8_t alpha)
{
    uint8_t* row = tdl_pixel_at(Screen, dst.x, dst.y);
    for (int i = 0; i < dst.h; i++, row += Screen->pitch, src += src_pitch) {
        if (alpha == SDL_ALPHA_OPAQUE)
            memcpy(row, src, size_t(dst.w) * 4);
        else
            mix_row(row, src, dst.w, alpha);
    }
}

static void paint_fill(const Stroke& s, const Rect& part)
{
    if (s.alpha == SDL_ALPHA_OPAQUE) {
        fill(Screen, part, s.pixel);
        return;
    }
    const int width = part.x2 - part.x1 + 1;
    fill(AlphaBuf, {0, 0, width - 1, 0}, s.pixel); // one row of the colour does for all
    mix_rows({Sint16(part.x1), Sint16(part.y1), Uint16(width), Uint16(part.y2 - part.y1 + 1)},
             tdl_pixel_at(AlphaBuf, 0, 0), 0, s.alpha);
}

static void paint_bitmap(const Stroke& s, const Rect& part)
{
    if (!tdl_has_pixels(s.bitmap))
        return;
    const SDL_Rect dst = {Sint16(part.x1), Sint16(part.y1), Uint16(part.x2 - part.x1 + 1),
                          Uint16(part.y2 - part.y1 + 1)};
    mix_rows(dst, tdl_pixel_at(s.bitmap, part.x1 - s.x, part.y1 - s.y), s.bitmap->pitch, s.alpha);
}

void tdl_paint(const Stroke& s, const Rect& part)
{
    switch (s.kind) {
    case STROKE_FILL: paint_fill(s, part); break;
    case STROKE_BITMAP: paint_bitmap(s, part); break;
    case STROKE_GLYPH: tdl_paint_glyph(s, part); break;
    }
}

static void draw_fill(const Rect& r, uint32_t pixel)
{
    tdl_draw({.box = r, .pixel = pixel});
}

// --- Life ---

// An empty full-screen surface in display format; null when memory is out.
static SDL_Surface* create_screen_surface()
{
    const SDL_PixelFormat& f = *Screen->format;
    SDL_Surface* made = SDL_CreateRGBSurface(SDL_SWSURFACE, ScreenX, ScreenY, f.BitsPerPixel,
                                             f.Rmask, f.Gmask, f.Bmask, 0);
    if (!made)
        return nullptr;
    if (f.palette)
        SDL_SetColors(made, f.palette->colors, 0, f.palette->ncolors);
    SDL_SetAlpha(made, SDL_SRCALPHA, SDL_ALPHA_OPAQUE);
    return made;
}

int TDL_Init(SDL_Surface* scrn)
{
    Screen = scrn;
    ScreenX = scrn->w;
    ScreenY = scrn->h;
    printf("Screen Format = %d [bpp]\n", scrn->format->BitsPerPixel);
    ScreenBuf = create_screen_surface();
    AlphaBuf = create_screen_surface();
    PushedScreenXY = {0, 0, 0, 0};
    tdl_flush_init();
    tdl_list_init();
    if (!ScreenBuf || !AlphaBuf)
        return -1;
    return tdl_text_init();
}

void TDL_Quit()
{
    tdl_list_quit();
    tdl_text_quit();
    tdl_flush_quit();
    SDL_FreeSurface(AlphaBuf);
    SDL_FreeSurface(ScreenBuf);
    AlphaBuf = nullptr;
    ScreenBuf = nullptr;
}

// --- Flushing ---

// The end of every verb that flushes: nothing is flushed when nothing was drawn. Hands the result
// through.
static int flush_drawn(int result, const Rect& r)
{
    if (result == 0)
        tdl_flush(r);
    return result;
}

// --- Straight lines ---

static Rect run_right(int x, int y, int z)
{
    return {x, y, x + std::min(z, ScreenX - x) - 1, y};
}

static Rect run_down(int x, int y, int z)
{
    return {x, y, x, y + std::min(z, ScreenY - y) - 1};
}

int TDL_LineHS(int x, int y, int z, unsigned col)
{
    if (!is_on_screen(x, y))
        return 1;
    draw_fill(run_right(x, y, z), tdl_map_colour(col));
    return 0;
}

int TDL_LineH(int x, int y, int z, unsigned col)
{
    return flush_drawn(TDL_LineHS(x, y, z, col), run_right(x, y, z));
}

int TDL_LineVS(int x, int y, int z, unsigned col)
{
    if (!is_on_screen(x, y))
        return 1;
    draw_fill(run_down(x, y, z), tdl_map_colour(col));
    return 0;
}

int TDL_LineV(int x, int y, int z, unsigned col)
{
    return flush_drawn(TDL_LineVS(x, y, z, col), run_down(x, y, z));
}

int TDL_RectS(int x1, int y1, int x2, int y2, unsigned col)
{
    int off = TDL_LineHS(x1, y1, x2 - x1 + 1, col);
    off |= TDL_LineHS(x1, y2, x2 - x1 + 1, col);
    if (y2 - y1 < 2)
        return off; // no room for sides
    off |= TDL_LineVS(x1, y1 + 1, y2 - y1 - 1, col);
    off |= TDL_LineVS(x2, y1 + 1, y2 - y1 - 1, col);
    return off;
}

int TDL_Rect(int x1, int y1, int x2, int y2, unsigned col)
{
    const int off = TDL_RectS(x1, y1, x2, y2, col);
    tdl_flush({x1, y1, x2, y2}); // some of the lines may be there all the same
    return off;
}

// --- Slanted lines and parallelograms ---

// Walk from the upper end of a line to the lower, row by row, and write a block of w x h pixels for
// each pixel of the line; a block is cut at the screen edge. The slope stays a double and the
// column count is truncated: other line algorithms differ from this one by a pixel here and there.
// touched becomes the bounding box. Returns 1 when an end is off the screen.
static int draw_slant(int x1, int y1, int x2, int y2, int w, int h, unsigned col, Rect* touched)
{
    *touched = TDL_NOTHING;
    if (!is_on_screen(x1, y1) || !is_on_screen(x2, y2))
        return 1;
    if (w <= 0 || h <= 0)
        return 0;
    if (y1 > y2) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    const uint32_t pixel = tdl_map_colour(col);
    const int dy = y2 - y1 + 1;
    const int dx = abs(x2 - x1) + 1;
    const int step = x2 >= x1 ? 1 : -1;
    const double slope = double(dy) / dx;
    int moved = 0; // columns
    int last = x1;
    for (int i = 1; i <= dy; i++) {
        const int x = x1 + moved * step;
        const int y = y1 + i - 1;
        const int c = dy == 1 ? dx : int(i / slope); // a level line is whole, truncated or not
        last = x;
        if (dy > dx) {
            if (c > moved)
                moved++;
        } else {
            moved = std::max(moved + 1, std::min(c, dx));
            last = x1 + (moved - 1) * step;
        }
        draw_fill(clip_to_screen({std::min(x, last), y, std::max(x, last) + w - 1, y + h - 1}),
                  pixel);
    }
    *touched = clip_to_screen({std::min(x1, last), y1, std::max(x1, last) + w - 1, y2 + h - 1});
    return 0;
}

int TDL_LineS(int x1, int y1, int x2, int y2, unsigned col)
{
    Rect touched;
    return draw_slant(x1, y1, x2, y2, 1, 1, col, &touched);
}

int TDL_Line(int x1, int y1, int x2, int y2, unsigned col)
{
    Rect touched;
    return flush_drawn(draw_slant(x1, y1, x2, y2, 1, 1, col, &touched), touched);
}

int TDL_FillParaS(int x1, int y1, int x2, int y2, int w, unsigned col)
{
    Rect touched;
    return draw_slant(x1, y1, x2, y2, w, 1, col, &touched);
}

int TDL_FillPara(int x1, int y1, int x2, int y2, int w, unsigned col)
{
    Rect touched;
    return flush_drawn(draw_slant(x1, y1, x2, y2, w, 1, col, &touched), touched);
}

int TDL_FillParaVS(int x1, int y1, int x2, int y2, int h, unsigned col)
{
    Rect touched;
    return draw_slant(x1, y1, x2, y2, 1, h, col, &touched);
}

int TDL_FillParaV(int x1, int y1, int x2, int y2, int h, unsigned col)
{
    Rect touched;
    return flush_drawn(draw_slant(x1, y1, x2, y2, 1, h, col, &touched), touched);
}

static Rect ends_box(int x1, int y1, int x2, int y2, int w, int h)
{
    return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2) + w - 1, std::max(y1, y2) + h - 1};
}

// An outline is refused when one of its four corners is off the screen: a slanted side is never
// cut.
static bool corners_fit(int x1, int y1, int x2, int y2, int w, int h)
{
    return is_on_screen(x1, y1) && is_on_screen(x2, y2) && is_on_screen(x1 + w - 1, y1 + h - 1) &&
           is_on_screen(x2 + w - 1, y2 + h - 1);
}

int TDL_ParaS(int x1, int y1, int x2, int y2, int w, unsigned col)
{
    if (!corners_fit(x1, y1, x2, y2, std::max(w, 1), 1))
        return 1;
    if (w <= 0)
        return 0;
    TDL_LineHS(x1, y1, w - 1, col);
    TDL_LineHS(x2, y2, w - 1, col);
    TDL_LineS(x1, y1, x2, y2, col);
    TDL_LineS(x1 + w - 1, y1, x2 + w - 1, y2, col);
    return 0;
}

int TDL_Para(int x1, int y1, int x2, int y2, int w, unsigned col)
{
    const Rect box = w > 0 ? ends_box(x1, y1, x2, y2, w, 1) : TDL_NOTHING;
    return flush_drawn(TDL_ParaS(x1, y1, x2, y2, w, col), box);
}

int TDL_ParaVS(int x1, int y1, int x2, int y2, int h, unsigned col)
{
    if (!corners_fit(x1, y1, x2, y2, 1, std::max(h, 1)))
        return 1;
    if (h <= 0)
        return 0;
    TDL_LineVS(x1, y1, h - 1, col);
    TDL_LineVS(x2, y2, h - 1, col);
    TDL_LineS(x1, y1, x2, y2, col);
    TDL_LineS(x1, y1 + h - 1, x2, y2 + h - 1, col);
    return 0;
}

int TDL_ParaV(int x1, int y1, int x2, int y2, int h, unsigned col)
{
    const Rect box = h > 0 ? ends_box(x1, y1, x2, y2, 1, h) : TDL_NOTHING;
    return flush_drawn(TDL_ParaVS(x1, y1, x2, y2, h, col), box);
}

// --- Solid rectangles ---

static int check_rect(int x1, int y1, int x2, int y2)
{
    if (x1 > x2)
        return -1;
    return y1 > y2 ? -2 : 0;
}

int TDL_FillRectS(int x1, int y1, int x2, int y2, unsigned col)
{
    if (const int bad = check_rect(x1, y1, x2, y2))
        return bad;
    draw_fill(clip_to_screen({x1, y1, x2, y2}), tdl_map_colour(col));
    return 0;
}

int TDL_FillRect(int x1, int y1, int x2, int y2, unsigned col)
{
    return flush_drawn(TDL_FillRectS(x1, y1, x2, y2, col), {x1, y1, x2, y2});
}

// Lay the top left of AlphaBuf on the screen; dst lies on the screen.
static void lay_alpha_buf(SDL_Rect dst, uint8_t alpha)
{
    tdl_draw_directly(rect_of(dst));
    if (tdl_blends_bytes()) {
        mix_rows(dst, tdl_pixel_at(AlphaBuf, 0, 0), AlphaBuf->pitch, alpha);
        return;
    }
    SDL_Rect src = {0, 0, dst.w, dst.h};
    SDL_SetAlpha(AlphaBuf, SDL_SRCALPHA, alpha);
    (void)SDL_UpperBlit(AlphaBuf, &src, Screen, &dst); // fails only for a lost video surface
}

int TDL_FillRectAS(int x1, int y1, int x2, int y2, unsigned col, unsigned char alpha)
{
    if (const int bad = check_rect(x1, y1, x2, y2))
        return bad;
    const Rect part = clip_to_screen({x1, y1, x2, y2});
    if (tdl_is_empty(part))
        return 0;
    const uint32_t pixel = tdl_map_colour(col);
    if (tdl_blends_bytes()) {
        tdl_draw({.alpha = alpha, .box = part, .pixel = pixel});
        return 0;
    }
    const int width = part.x2 - part.x1 + 1;
    const int height = part.y2 - part.y1 + 1;
    fill(AlphaBuf, {0, 0, width - 1, height - 1}, pixel);
    lay_alpha_buf({Sint16(part.x1), Sint16(part.y1), Uint16(width), Uint16(height)}, alpha);
    return 0;
}

int TDL_FillRectA(int x1, int y1, int x2, int y2, unsigned col, unsigned char alpha)
{
    return flush_drawn(TDL_FillRectAS(x1, y1, x2, y2, col, alpha), {x1, y1, x2, y2});
}

// --- Bitmaps ---

// The part of a block of w x h pixels at (x, y) that the screen's clip rectangle lets through.
// False when none.
static bool clip_block(int x, int y, int w, int h, SDL_Rect* src, SDL_Rect* dst)
{
    const SDL_Rect& clip = Screen->clip_rect;
    const int left = std::max<int>(x, clip.x);
    const int top = std::max<int>(y, clip.y);
    const int width = std::min(x + w, clip.x + clip.w) - left;
    const int height = std::min(y + h, clip.y + clip.h) - top;
    if (width <= 0 || height <= 0)
        return false;
    *src = {Sint16(left - x), Sint16(top - y), Uint16(width), Uint16(height)};
    *dst = {Sint16(left), Sint16(top), Uint16(width), Uint16(height)};
    return true;
}

// True when showing the surface is copying its bytes: in the display's own format, nothing
// transparent. The library's copy is slow for rows that are no multiple of 16 bytes, and a standard
// button has 85 pixels.
static bool is_plain_copy(const SDL_Surface* s)
{
    const SDL_PixelFormat& a = *s->format;
    const SDL_PixelFormat& b = *Screen->format;
    const bool same_format = a.BytesPerPixel == b.BytesPerPixel && a.BytesPerPixel > 1 &&
                             a.Rmask == b.Rmask && a.Gmask == b.Gmask && a.Bmask == b.Bmask &&
                             a.Amask == 0 && b.Amask == 0;
    const bool translucent = (s->flags & SDL_SRCALPHA) && a.alpha != SDL_ALPHA_OPAQUE;
    const bool special = s->flags & (SDL_HWSURFACE | SDL_SRCCOLORKEY | SDL_RLEACCEL);
    return same_format && !translucent && !special && s != Screen;
}

// True for a bitmap of the user interface: what it shows never changes, so it can be drawn later.
static bool is_constant(const SDL_Surface* s)
{
    return s->unused1 != 0 && tdl_blends_bytes() && is_plain_copy(s);
}

int TDL_PutS(int x, int y, SDL_Surface* sfc)
{
    if (!sfc)
        return 1;
    SDL_Rect src, dst;
    if (!clip_block(x, y, sfc->w, sfc->h, &src, &dst))
        return 0;
    if (is_constant(sfc)) {
        tdl_draw({.kind = STROKE_BITMAP, .box = rect_of(dst), .x = x, .y = y, .bitmap = sfc});
        return 0;
    }
    if (!tdl_has_pixels(sfc))
        return 1;
    tdl_draw_directly(rect_of(dst));
    if (is_plain_copy(sfc))
        copy_rows(Screen, dst.x, dst.y, sfc, src);
    else
        (void)SDL_UpperBlit(sfc, &src, Screen, &dst); // fails only for a lost video surface
    return 0;
}

int TDL_Put(int x, int y, SDL_Surface* sfc)
{
    if (!sfc)
        return 1;
    return flush_drawn(TDL_PutS(x, y, sfc), box_at(x, y, sfc->w, sfc->h));
}

int TDL_PutAS(int x, int y, SDL_Surface* sfc, unsigned char alpha)
{
    if (!sfc)
        return 1;
    SDL_Rect src, dst;
    if (!clip_block(x, y, sfc->w, sfc->h, &src, &dst))
        return 0;
    if (is_constant(sfc)) {
        tdl_draw({.kind = STROKE_BITMAP,
                  .alpha = alpha,
                  .box = rect_of(dst),
                  .x = x,
                  .y = y,
                  .bitmap = sfc});
        return 0;
    }
    if (!tdl_has_pixels(sfc))
        return 1;
    if (tdl_blends_bytes() && is_plain_copy(sfc)) {
        tdl_draw_directly(rect_of(dst));
        mix_rows(dst, tdl_pixel_at(sfc, src.x, src.y), sfc->pitch, alpha);
        return 0;
    }
    // What shows through a transparent place is black, and not what the scratch was last used for.
    fill(AlphaBuf, box_at(0, 0, src.w, src.h), tdl_map_colour(0));
    SDL_Rect origin = {0, 0, 0, 0};
    (void)SDL_UpperBlit(sfc, &src, AlphaBuf, &origin); // fails only for a lost video surface
    lay_alpha_buf(dst, alpha);
    return 0;
}

int TDL_PutA(int x, int y, SDL_Surface* sfc, unsigned char alpha)
{
    if (!sfc)
        return 1;
    return flush_drawn(TDL_PutAS(x, y, sfc, alpha), box_at(x, y, sfc->w, sfc->h));
}

template <typename Pixel>
static void halve(SDL_Surface* from, const SDL_Rect& part, SDL_Surface* to, int x, int y)
{
    for (int row = 0; row < part.h; row++) {
        const auto* src =
            reinterpret_cast<const Pixel*>(tdl_pixel_at(from, 2 * part.x, 2 * (part.y + row)));
        auto* dst = reinterpret_cast<Pixel*>(tdl_pixel_at(to, x, y + row));
        for (int i = 0; i < part.w; i++)
            dst[i] = src[2 * i];
    }
}

// Every second pixel of every second row; part is in pixels of the result.
static void put_half(SDL_Surface* from, const SDL_Rect& part, SDL_Surface* to, int x, int y)
{
    switch (from->format->BytesPerPixel) {
    case 1: halve<uint8_t>(from, part, to, x, y); break;
    case 2: halve<uint16_t>(from, part, to, x, y); break;
    case 4: halve<uint32_t>(from, part, to, x, y); break;
    default: break;
    }
}

// Raw pixel values are copied, so the surface must be in the display's format.
static bool can_halve(const SDL_Surface* s)
{
    const int bytes = s->format->BytesPerPixel;
    return bytes == Screen->format->BytesPerPixel && bytes != 3;
}

int TDL_PutSmallS(int x, int y, SDL_Surface* sfc)
{
    if (!sfc || !tdl_has_pixels(sfc))
        return 1;
    if (!can_halve(sfc))
        return -1;
    SDL_Rect src, dst;
    if (!clip_block(x, y, sfc->w / 2, sfc->h / 2, &src, &dst))
        return 0;
    tdl_draw_directly(rect_of(dst));
    put_half(sfc, src, Screen, dst.x, dst.y);
    return 0;
}

int TDL_PutSmall(int x, int y, SDL_Surface* sfc)
{
    if (!sfc)
        return 1;
    return flush_drawn(TDL_PutSmallS(x, y, sfc), box_at(x, y, sfc->w / 2, sfc->h / 2));
}

SDL_Surface* TDL_CreateSmallSurface(SDL_Surface* sfc)
{
    if (!sfc || !can_halve(sfc) || !tdl_has_pixels(sfc))
        return nullptr;
    const SDL_PixelFormat& f = *Screen->format;
    SDL_Surface* small = SDL_CreateRGBSurface(SDL_SWSURFACE, sfc->w / 2, sfc->h / 2, f.BitsPerPixel,
                                              f.Rmask, f.Gmask, f.Bmask, f.Amask);
    if (!small)
        return nullptr;
    if (f.palette)
        SDL_SetColors(small, f.palette->colors, 0, f.palette->ncolors);
    put_half(sfc, {0, 0, Uint16(small->w), Uint16(small->h)}, small, 0, 0);
    return small;
}

// Anybody may have laid it onto the drive. Of a photograph only what the screen shows is kept.
SDL_Surface* TDL_ScreenSaverBMP(const char* fname)
{
    SDL_Surface* whole = TDL_LoadBmp(fname);
    if (!whole || (whole->w <= SCREEN_W && whole->h <= SCREEN_H))
        return whole;
    const SDL_PixelFormat& f = *whole->format;
    SDL_Surface* part = SDL_CreateRGBSurface(SDL_SWSURFACE, std::min(whole->w, SCREEN_W),
                                             std::min(whole->h, SCREEN_H), f.BitsPerPixel, f.Rmask,
                                             f.Gmask, f.Bmask, 0);
    if (part && f.palette)
        SDL_SetColors(part, f.palette->colors, 0, f.palette->ncolors);
    if (part)
        SDL_BlitSurface(whole, nullptr, part, nullptr);
    SDL_FreeSurface(whole);
    return part;
}

// --- Screen save ---

int TDL_PushScreen(int x, int y, int w, int h)
{
    const Rect part = clip_to_screen(box_at(x, y, w, h));
    if (tdl_is_empty(part)) {
        PushedScreenXY = {0, 0, 0, 0};
        return 0;
    }
    PushedScreenXY = {Sint16(part.x1), Sint16(part.y1), Uint16(part.x2 - part.x1 + 1),
                      Uint16(part.y2 - part.y1 + 1)};
    tdl_paint_listed();
    copy_rows(ScreenBuf, 0, 0, Screen, PushedScreenXY);
    return 0;
}

int TDL_PopScreen()
{
    const SDL_Rect& at = PushedScreenXY;
    SDL_Rect src, dst;
    if (!clip_block(at.x, at.y, at.w, at.h, &src, &dst))
        return 0;
    tdl_draw_directly(rect_of(dst));
    copy_rows(Screen, dst.x, dst.y, ScreenBuf, src);
    tdl_flush(rect_of(dst));
    return 0;
}

int TDL_PopScreenXY(int x, int y)
{
    PushedScreenXY.x = Sint16(x);
    PushedScreenXY.y = Sint16(y);
    return TDL_PopScreen();
}
