#include "display.h"
#include <SDL.h>
#include <SDL_syswm.h>
#include <cstdlib>

#include "safeguards.h"

#ifdef SDL_VIDEO_DRIVER_X11
static Display* window_system()
{
    SDL_SysWMinfo info{};
    SDL_VERSION(&info.version);
    return SDL_GetWMInfo(&info) == 1 && info.subsystem == SDL_SYSWM_X11 ? info.info.x11.display
                                                                        : nullptr;
}

static Display* display = nullptr; // the library keeps it from its start to its end

int Display_Descriptor()
{
    display = window_system();
    return display ? ConnectionNumber(display) : 0;
}

bool Display_HasEvents()
{
    return display && QLength(display) > 0;
}
#else
int Display_Descriptor()
{
    return 0;
}

bool Display_HasEvents()
{
    return false;
}
#endif

void Display_Prepare()
{
    setenv("XCOMPOSEFILE", "/dev/null", 0);
}
