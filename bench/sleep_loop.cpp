// A loop that does nothing but wait 10 ms: what the idle application is compared with.
#include <SDL.h>

int main()
{
    for (;;)
        SDL_Delay(10);
}
