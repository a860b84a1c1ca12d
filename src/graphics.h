// graphics: the bitmaps of the user interface, opened once at start-up into one global each: G_ and
// the stem. A file that is missing leaves a null global and a log line; the drawing verbs take a
// null surface. The pixels of a bitmap are read when it is first drawn.
#pragma once
#include <SDL.h>

#define BITMAP(name, file) extern SDL_Surface* G_##name;
#include "graphics_list.h"
#undef BITMAP

constexpr int WIPE_PTN_MAX = 4000;
// The picture of a wipe pattern by its number; null where there is none.
extern SDL_Surface* G_WipePtn[WIPE_PTN_MAX];

void LoadGraphics(); // at start-up, before the first page
void FreeGraphics();
void LoadDmeWipePtn_KTR20();    // after LoadGraphics: the other pictures of the smaller model
void LoadDmeWipePtn_Standard(); // those of all other models again
// "graphics/NAME.bmp" in display format, for the caller to free; null and a log line on failure.
SDL_Surface* LoadGFile(const char* name);
