// tdl: every pixel that the application shows. A flat set of drawing verbs on the one display
// surface. A name that ends in S draws and stops there; the same name without it flushes exactly
// what it touched. Objects draw with S verbs and end with one TDL_UpdateRect. Rectangles are
// inclusive, colours are 0x00RRGGBB. There is no retained scene here: who owns a region repaints
// it.
#pragma once
#include <SDL.h>

extern SDL_Surface* Screen; // the display surface; not owned here

// --- Life ---
// Make the scratch surfaces, read "font.dat" and "font_ofs.dat". 0, or -1 when a font file cannot
// be opened: then all but the text works.
int TDL_Init(SDL_Surface* scrn);
void TDL_Quit();

// --- Flushing ---
int TDL_UpdateRect(int x1, int y1, int x2, int y2); // cut at the screen edge
int TDL_UpdateScreen();
// Between these nothing reaches the display; at the release of the last hold what has been flushed
// meanwhile does, once. Holds nest; a release without a hold does nothing.
// Drawing waits as well, and is left out where it changes nothing; whoever looks at the pixels of
// Screen does so without a hold.
void TDL_Hold();
void TDL_Release();
// What has been flushed since the hold reaches the display now, and the hold goes on: for what
// blocks within a pass and has told so. Without a hold nothing waits, and it does nothing.
void TDL_Show();
// Every verb paints at once, also within a hold: slower, and the same pixels at each release.
void TDL_PaintAtOnce(bool on);
// Whether something has been handed to the display since the last question.
bool TDL_HasFlushed();
// Told of every rectangle that is handed to the display; null: nobody.
void TDL_WatchFlush(void (*watch)(int x, int y, int w, int h));

// --- Lines. 0; 1 when a point that must be on the screen is not: then nothing is drawn ---
// For a straight line that is its start, and it is cut at the screen edge; for a slanted one both
// ends, for it is never cut.
int TDL_LineH(int x, int y, int z, unsigned col); // z pixels to the right
int TDL_LineHS(int x, int y, int z, unsigned col);
int TDL_LineV(int x, int y, int z, unsigned col); // z pixels down
int TDL_LineVS(int x, int y, int z, unsigned col);
// Four of them; 1 when one is missing.
int TDL_Rect(int x1, int y1, int x2, int y2, unsigned col);
int TDL_RectS(int x1, int y1, int x2, int y2, unsigned col);
int TDL_Line(int x1, int y1, int x2, int y2, unsigned col);
int TDL_LineS(int x1, int y1, int x2, int y2, unsigned col);
// Parallelograms with horizontal sides of w pixels, or (V) vertical ones of h pixels. All four
// corners of an outline must be on the screen; of a solid one both ends of the slanted line, and
// its runs are cut at the screen edge.
int TDL_Para(int x1, int y1, int x2, int y2, int w, unsigned col);
int TDL_ParaS(int x1, int y1, int x2, int y2, int w, unsigned col);
int TDL_ParaV(int x1, int y1, int x2, int y2, int h, unsigned col);
int TDL_ParaVS(int x1, int y1, int x2, int y2, int h, unsigned col);
int TDL_FillPara(int x1, int y1, int x2, int y2, int w, unsigned col);
int TDL_FillParaS(int x1, int y1, int x2, int y2, int w, unsigned col);
int TDL_FillParaV(int x1, int y1, int x2, int y2, int h, unsigned col);
int TDL_FillParaVS(int x1, int y1, int x2, int y2, int h, unsigned col);

// --- Solid rectangles, cut at the screen edge. -1 when x1 > x2, -2 when y1 > y2, else 0 ---
int TDL_FillRect(int x1, int y1, int x2, int y2, unsigned col);
int TDL_FillRectS(int x1, int y1, int x2, int y2, unsigned col);
// alpha 255 is opaque.
int TDL_FillRectA(int x1, int y1, int x2, int y2, unsigned col, unsigned char alpha);
int TDL_FillRectAS(int x1, int y1, int x2, int y2, unsigned col, unsigned char alpha);

// --- Bitmaps. 1 for a null surface, else 0 ---
int TDL_Put(int x, int y, SDL_Surface* sfc);
int TDL_PutS(int x, int y, SDL_Surface* sfc);
int TDL_PutA(int x, int y, SDL_Surface* sfc, unsigned char alpha);
int TDL_PutAS(int x, int y, SDL_Surface* sfc, unsigned char alpha);
// Half size: every second pixel. -1, or null, for a surface that does not have the screen's number
// of bytes a pixel, and for 3 of them.
int TDL_PutSmall(int x, int y, SDL_Surface* sfc);
int TDL_PutSmallS(int x, int y, SDL_Surface* sfc);
SDL_Surface* TDL_CreateSmallSurface(SDL_Surface* sfc); // the caller frees it
// In display format, for the caller to free; null when the file cannot be read.
SDL_Surface* TDL_LoadBmp(const char* fname);
// The same but for its pixels, which are read when the bitmap is first drawn, from the path that
// stands for the key then; key is not 0. Until then only its size may be looked at.
SDL_Surface* TDL_OpenBmp(const char* fname, uint32_t key);
void TDL_SetBmpPaths(bool (*paths)(uint32_t key, char* path, size_t size));
SDL_Surface* TDL_ScreenSaverBMP(const char* fname);

// --- Screen save: one slot ---
// The rectangle is cut at the screen edge. A pop without a push does nothing.
int TDL_PushScreen(int x, int y, int w, int h);
int TDL_PopScreen();
int TDL_PopScreenXY(int x, int y); // to another place, where it then belongs

// --- Text: font is a slot 0..9; -1 for a null text, else 0. A glyph that leaves the screen ends
// the text. A line feed begins a new line at x. ---
int TDL_Symbol(int x, int y, const char* str, int font, unsigned col);
int TDL_SymbolS(int x, int y, const char* str, int font, unsigned col);
// Cut before the first character that would reach width.
int TDL_SymbolW(int x, int y, int width, const char* str, int font, unsigned col);
int TDL_SymbolWS(int x, int y, int width, const char* str, int font, unsigned col);
// A block: wraps at width between characters, ends at height, leaves out the first topline lines.
int TDL_SymbolB(int x, int y, int width, int height, const char* str, int font, unsigned col,
                int topline);
int TDL_SymbolBS(int x, int y, int width, int height, const char* str, int font, unsigned col,
                 int topline);
int TDL_SymbolP(int x, int y, int dw, const char* str, int font,
                unsigned col); // cells of dw pixels
int TDL_SymbolPS(int x, int y, int dw, const char* str, int font, unsigned col);
// Centred as a block; CS_PRO in cells as wide as "W".
int TDL_SymbolC(int x1, int y1, int x2, int y2, const char* str, int font, unsigned col);
int TDL_SymbolCS(int x1, int y1, int x2, int y2, const char* str, int font, unsigned col);
int TDL_SymbolCS_PRO(int x1, int y1, int x2, int y2, const char* str, int font, unsigned col);
// A caption in a cell: one line is centred, more are wrapped from 8 pixels inside the left edge.
int TDL_SymbolCBS(int x1, int y1, int x2, int y2, int width, int height, const char* str, int font,
                  unsigned col, int topline, int frame_height);
// One line; one that is longer than width is cut and ends in add_str. -1 and nothing drawn when it
// must be cut and both texts have more than 31 characters together, or not even add_str fits.
int TDL_SymbolWAddS(int x, int y, int width, const char* str, const char* add_str, int font,
                    unsigned col);

// --- Measures ---
unsigned TDL_GetSymbolSize(const char* str, int font);  // height << 16 | width; 1 for null
unsigned TDL_GetSymbolWidth(const char* str, int font); // widest line; 1 for null
// In cells as wide as "W", whose width goes to size.
unsigned TDL_GetSymbolSize_PRO(const char* str, int font, int* size);
// Leave of a text that is wider than width its longest head that fits with the tail, and append
// that; size is the text's. -1 when not even the tail fits: it alone is left.
int TDL_CutText(char* text, size_t size, int width, const char* tail, int font);
int TDL_GetSymbolLine(int width, const char* str, int font); // lines of a block without limit
// How many characters of str the first line of such a block takes, its line feed included; one at
// least, 0 for an empty text.
size_t TDL_GetLineLength(int width, const char* str, int font);
// Line breaks that TDL_SymbolB passes; -1 for null.
int TDL_linecheck(int x1, int y1, int x2, int y2, int width, int height, const char* str, int font,
                  unsigned col, int topline);
