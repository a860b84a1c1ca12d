// graphics: the bitmaps of the user interface, loaded once at start-up into one global each: G_ and the stem.
// A file that is missing leaves a null global and a log line; the drawing verbs take a null surface.
#pragma once
#include <SDL.h>

#define BITMAP(name, file) extern SDL_Surface* G_##name;
#include "graphics_list.h"
#undef BITMAP

constexpr int WIPE_PTN_MAX = 4000;
extern SDL_Surface* G_WipePtn[WIPE_PTN_MAX]; // picture of a wipe pattern by its number; null where there is none

void LoadGraphics();
void FreeGraphics();
SDL_Surface* LoadGFile(const char* name); // "graphics/NAME.bmp" in display format, null on failure; the caller frees it
void LoadDmeWipePtn_KTR20();              // the other pictures of the smaller model
