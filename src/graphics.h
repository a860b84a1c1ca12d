// graphics: the bitmaps of the user interface, opened once at start-up into one global each: G_ and
// the stem. A file that is missing leaves a null global and a log line; the drawing verbs take a
// null surface. The pixels of a bitmap are read when it is first drawn. The pictures of the wipe
// patterns, some two thousand, are listed at start-up and opened one by one when they are asked
// for.
#pragma once
#include <SDL.h>

#define BITMAP(name, file) extern SDL_Surface* G_##name;
#include "graphics_list.h"
#undef BITMAP

constexpr int WIPE_PTN_MAX = 4000;
// Those pictures of wipe patterns that have been asked for, by number; null where there is none.
extern SDL_Surface* G_WipePtn[WIPE_PTN_MAX];
// The picture of a pattern, null and at its first use a log line when its file is no picture. Any
// number; one that has no file has no picture either.
SDL_Surface* WipePtn(int number);
bool WipePtn_IsListed(int number); // without opening it

void LoadGraphics(); // at start-up, before the first page
void FreeGraphics();
void LoadDmeWipePtn_KTR20();    // after LoadGraphics: the other pictures of the smaller model
void LoadDmeWipePtn_Standard(); // those of all other models again
// "graphics/NAME.bmp" in display format, for the caller to free; null and a log line on failure.
SDL_Surface* LoadGFile(const char* name);

// --- Its parts, for tests ---
// The names of files below "ptn/", one a line, as "find" writes them. False when there is no list.
bool WipePtn_ReadList(const char* list);
