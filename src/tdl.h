// tdl: every pixel that the application shows. A flat set of drawing verbs on the one display surface.
// A name that ends in S draws and stops there; the same name without it flushes exactly what it touched. Objects
// draw with S verbs and end with one TDL_UpdateRect. Rectangles are inclusive, colours are 0x00RRGGBB. There is no
// retained scene here: who owns a region repaints it.
#pragma once
#include <SDL.h>

extern SDL_Surface* Screen; // the display surface; not owned here

// --- Life ---
// Make the scratch surfaces, read "font.dat" and "font_ofs.dat". 0, or -1 when a font file cannot be opened.
int TDL_Init(SDL_Surface* scrn);
void TDL_Quit();

// --- Flushing ---
int TDL_UpdateRect(int x1, int y1, int x2, int y2); // clipped to the screen
int TDL_UpdateScreen();

// --- Lines and shapes. 0; 1 when a point that must be on the screen is not: then nothing is drawn ---
// These points are the start of a straight line, which is cut at the edge; both ends of a slanted line, which never is;
// all corners of a parallelogram's outline; both ends of the slanted line of a solid one, whose runs are cut.
int TDL_Line(int x1, int y1, int x2, int y2, unsigned col);
int TDL_LineS(int x1, int y1, int x2, int y2, unsigned col);
int TDL_LineH(int x, int y, int z, unsigned col); // z pixels to the right
int TDL_LineHS(int x, int y, int z, unsigned col);
int TDL_LineV(int x, int y, int z, unsigned col); // z pixels down
int TDL_LineVS(int x, int y, int z, unsigned col);
int TDL_Rect(int x1, int y1, int x2, int y2, unsigned col); // four lines; 1 when one of them starts off the screen
int TDL_RectS(int x1, int y1, int x2, int y2, unsigned col);
int TDL_FillRect(int x1, int y1, int x2, int y2, unsigned col); // cut; -1 when x1 > x2, -2 when y1 > y2
int TDL_FillRectS(int x1, int y1, int x2, int y2, unsigned col);
int TDL_FillRectA(int x1, int y1, int x2, int y2, unsigned col, unsigned char alpha); // the same; 255 is opaque
int TDL_FillRectAS(int x1, int y1, int x2, int y2, unsigned col, unsigned char alpha);
int TDL_Para(int x1, int y1, int x2, int y2, int w, unsigned col); // horizontal sides of w pixels
int TDL_ParaS(int x1, int y1, int x2, int y2, int w, unsigned col);
int TDL_ParaV(int x1, int y1, int x2, int y2, int h, unsigned col); // vertical sides of h pixels
int TDL_ParaVS(int x1, int y1, int x2, int y2, int h, unsigned col);
int TDL_FillPara(int x1, int y1, int x2, int y2, int w, unsigned col);
int TDL_FillParaS(int x1, int y1, int x2, int y2, int w, unsigned col);
int TDL_FillParaV(int x1, int y1, int x2, int y2, int h, unsigned col);
int TDL_FillParaVS(int x1, int y1, int x2, int y2, int h, unsigned col);

// --- Bitmaps. 1 for a null surface, else 0 ---
int TDL_Put(int x, int y, SDL_Surface* sfc);
int TDL_PutS(int x, int y, SDL_Surface* sfc);
int TDL_PutA(int x, int y, SDL_Surface* sfc, unsigned char alpha);
int TDL_PutAS(int x, int y, SDL_Surface* sfc, unsigned char alpha);
int TDL_PutSmall(int x, int y, SDL_Surface* sfc); // half size; -1 unless it has the screen's 1, 2 or 4 bytes a pixel
int TDL_PutSmallS(int x, int y, SDL_Surface* sfc);
SDL_Surface* TDL_CreateSmallSurface(SDL_Surface* sfc); // the caller frees it; null where the other gives -1
SDL_Surface* TDL_LoadBmp(const char* fname);           // in display format; null when it cannot be read
SDL_Surface* TDL_ScreenSaverBMP(const char* fname);

// --- Screen save: one slot, for a rectangle cut at the screen edge; a pop without a push does nothing ---
int TDL_PushScreen(int x, int y, int w, int h);
int TDL_PopScreen();
int TDL_PopScreenXY(int x, int y);

// --- Text: font is a slot 0..9; -1 for a null text, else 0. A glyph that leaves the screen ends the text ---
int TDL_Symbol(int x, int y, const char* str, int font, unsigned col);
int TDL_SymbolS(int x, int y, const char* str, int font, unsigned col);
int TDL_SymbolW(int x, int y, int width, const char* str, int font, unsigned col); // cut before width
int TDL_SymbolWS(int x, int y, int width, const char* str, int font, unsigned col);
// A block: wraps at width between characters, ends at height, leaves out the first topline lines.
int TDL_SymbolB(int x, int y, int width, int height, const char* str, int font, unsigned col,
                int topline);
int TDL_SymbolBS(int x, int y, int width, int height, const char* str, int font, unsigned col,
                 int topline);
int TDL_SymbolP(int x, int y, int dw, const char* str, int font, unsigned col); // cells of dw pixels
int TDL_SymbolPS(int x, int y, int dw, const char* str, int font, unsigned col);
int TDL_SymbolC(int x1, int y1, int x2, int y2, const char* str, int font, unsigned col); // centred
int TDL_SymbolCS(int x1, int y1, int x2, int y2, const char* str, int font, unsigned col);
int TDL_SymbolCS_PRO(int x1, int y1, int x2, int y2, const char* str, int font, unsigned col);
int TDL_SymbolCBS(int x1, int y1, int x2, int y2, int width, int height, const char* str, int font,
                  unsigned col, int topline, int frame_height);
int TDL_SymbolWAddS(int x, int y, int width, const char* str, const char* add_str, int font,
                    unsigned col);

// --- Measures ---
unsigned TDL_GetSymbolSize(const char* str, int font); // height << 16 | width; 1 for null
unsigned TDL_GetSymbolWidth(const char* str, int font); // widest line; 1 for null
unsigned TDL_GetSymbolSize_PRO(const char* str, int font, int* size);
int TDL_GetSymbolLine(int width, const char* str, int font);
int TDL_linecheck(int x1, int y1, int x2, int y2, int width, int height, const char* str, int font,
                  unsigned col, int topline);
