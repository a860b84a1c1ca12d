// bench_draw: what the drawing verbs cost. The silent forms are measured: a flush depends on the
// display.
#include "bench_support.h"
#include "graphics.h"
#include "tdl.h"
#include <SDL.h>
#include <cstdio>

namespace
{
void fill_screen()
{
    TDL_FillRectS(0, 0, 799, 599, 0x003241);
}

void fill_key()
{
    TDL_FillRectS(112, 184, 196, 249, 0x003241);
}

void alpha_fill_screen()
{
    TDL_FillRectAS(0, 0, 799, 599, 0x003241, 128);
}

void slant_fill()
{
    TDL_FillParaS(100, 100, 140, 139, 85, 0x006464);
}

void put_key()
{
    TDL_PutS(112, 184, G_EXE_p0o0);
}

void put_key_by_library()
{
    SDL_Rect at = {112, 184, 0, 0};
    SDL_UpperBlit(G_EXE_p0o0, nullptr, Screen, &at);
}

void put_key_alpha()
{
    TDL_PutAS(112, 184, G_EXE_p0o0, 128);
}

void caption()
{
    TDL_SymbolBS(120, 196, 77, 66, "Pattern\nSelect", 3, 0xFFFFFF, 0);
}

void centred_text()
{
    TDL_SymbolCS(112, 184, 196, 249, "Pattern Sel", 3, 0xFFFFFF);
}

void push_and_pop()
{
    TDL_PushScreen(0, 0, 800, 600);
    TDL_PopScreen();
}
} // namespace

int main(int argc, char** argv)
{
    // A key is an 85x66 bitmap and its caption: far below a third of a copy. The limits are about
    // twice what a desk needs.
    static constexpr BenchCase cases[] = {
        {.name = "fill of the screen", .once = fill_screen, .limit_copies = 1.5},
        {.name = "fill of 85x66", .once = fill_key, .limit_copies = 0.025},
        {.name = "alpha fill of the screen", .once = alpha_fill_screen, .limit_copies = 7},
        {.name = "solid parallelogram 85x40", .once = slant_fill, .limit_copies = 0.06},
        {.name = "put of an 85x66 bitmap", .once = put_key, .limit_copies = 0.03},
        {.name = "the same by the library's blit", .once = put_key_by_library},
        {.name = "put of an 85x66 bitmap, alpha", .once = put_key_alpha, .limit_copies = 0.09},
        {.name = "caption of two lines", .once = caption, .limit_copies = 0.07},
        {.name = "centred text", .once = centred_text, .limit_copies = 0.06},
        {.name = "push and pop of the screen", .once = push_and_pop, .limit_copies = 3.5},
    };
    Bench_Screen();
    if (!G_EXE_p0o0) {
        fprintf(stderr, "no bitmaps in the run folder\n");
        return 1;
    }
    return Bench_Main(argc, argv, cases);
}
