// tdl_private: what the parts of the drawing layer share: tdl.cpp has surfaces and shapes,
// tdl_text.cpp the text, tdl_list.cpp what is drawn while the flushes are held, tdl_flush.cpp what
// reaches the display, tdl_bitmap.cpp bitmaps that are read late. Nobody else includes it.
#pragma once
#include "types.h"
#include <SDL.h>
#include <cstdint>

extern int ScreenX; // size of the display surface; 0 before TDL_Init
extern int ScreenY;

constexpr Rect TDL_NOTHING = {0, 0, -1, -1}; // an empty rectangle

inline bool tdl_is_empty(const Rect& r)
{
    return r.x1 > r.x2 || r.y1 > r.y2;
}

void tdl_flush(const Rect& r); // clipped to the screen; an empty rectangle is no flush
void tdl_flush_init();
void tdl_flush_quit();
bool tdl_is_held();

// --- Strokes: what a verb puts on the screen ---
enum StrokeKind : uint8_t { STROKE_FILL, STROKE_BITMAP, STROKE_GLYPH };
struct Stroke {
    StrokeKind kind = STROKE_FILL;
    uint8_t alpha = 255;    // below that only where blending is our own
    Rect box = TDL_NOTHING; // on the screen, or empty
    uint32_t pixel = 0;     // fill, glyph
    int x = 0;              // bitmap: where its first pixel lies, which may be off the screen
    int y = 0;
    SDL_Surface* bitmap = nullptr;     // one that TDL_OpenBmp made: its key tells what it shows
    const uint8_t* coverage = nullptr; // glyph: a byte for each pixel of the box
};
// Paint it, or list it while the flushes are held.
void tdl_draw(const Stroke& s);
// Before anything else writes to the screen: what is listed is painted, and what the rectangle
// shows is no longer known.
void tdl_draw_directly(const Rect& r);
void tdl_paint_listed();
// The part of a stroke that lies in a rectangle inside its box.
void tdl_paint(const Stroke& s, const Rect& part);
void tdl_paint_glyph(const Stroke& s, const Rect& part);
// Hand over those parts of a rectangle on the screen that have been drawn on since they were last
// handed over.
void tdl_each_unshown(const Rect& r, void (*show)(const Rect& part));
void tdl_list_init();
void tdl_list_quit();

extern uint32_t tdl_opened_bitmaps; // so far; a key may stand for another picture from then on

// A bitmap that has not been shown yet gets its pixels; false when there is no memory for them.
void tdl_fetch_pixels(SDL_Surface* s);
inline bool tdl_has_pixels(SDL_Surface* s)
{
    if (!s->pixels && s->unused1)
        tdl_fetch_pixels(s);
    return s->pixels != nullptr;
}

uint8_t* tdl_pixel_at(SDL_Surface* s, int x, int y);
uint32_t tdl_map_colour(unsigned col); // 0x00RRGGBB as a pixel of the screen

// True for a screen whose pixels are four bytes with a whole byte for each colour: there all
// blending is our own.
bool tdl_blends_bytes();

// The one blending formula on such a screen: d + floor((s - d) * alpha / 256) in each of the four
// bytes, for alpha from 0 to 254; 255 is a plain copy and the caller's business. It is what the SDL
// blitters compute, whichever of them the processor gets, so a picture is the same on every
// machine. Two bytes share one multiplication: a borrow of the lower one is given back when the
// product is added to d.
inline uint32_t tdl_mix(uint32_t s, uint32_t d, uint32_t alpha)
{
    constexpr uint32_t LOW = 0x00FF00FF;
    uint32_t even = d & LOW;
    uint32_t odd = (d >> 8) & LOW;
    even += (((s & LOW) - even) * alpha) >> 8;
    odd += ((((s >> 8) & LOW) - odd) * alpha) >> 8;
    return (even & LOW) | ((odd & LOW) << 8);
}

int tdl_text_init(); // the glyph surface and both font files: 0, or -1 when one of them cannot be
                     // had
void tdl_text_quit();
