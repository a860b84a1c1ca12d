// display: what the flushes have handed to the display, beside what is drawn on the screen.
#pragma once
#include "tdl.h"
#include "types.h"
#include <SDL.h>
#include <algorithm>
#include <cstring>
#include <string>

// One at a time; follows while it lives.
struct Display {
    static inline SDL_Surface* shown = nullptr;
    static inline int handed = 0; // pixels

    Display()
    {
        shown = SDL_ConvertSurface(Screen, Screen->format, SDL_SWSURFACE);
        TDL_WatchFlush(hand_over);
        TDL_UpdateScreen();
    }
    ~Display()
    {
        TDL_WatchFlush(nullptr);
        SDL_FreeSurface(shown);
    }

    // The frame of what is drawn and not on the display, "x1,y1-x2,y2"; "" when all is.
    static std::string Lacks()
    {
        int x1 = Screen->w, y1 = Screen->h, x2 = -1, y2 = -1;
        const size_t bytes = Screen->format->BytesPerPixel;
        for (int y = 0; y < Screen->h; y++) {
            if (memcmp(at(Screen, 0, y), at(shown, 0, y), size_t(Screen->w) * bytes) == 0)
                continue;
            y1 = std::min(y1, y);
            y2 = y;
            for (int x = 0; x < Screen->w; x++)
                if (memcmp(at(Screen, x, y), at(shown, x, y), bytes) != 0) {
                    x1 = std::min(x1, x);
                    x2 = std::max(x2, x);
                }
        }
        return y2 < 0 ? ""
                      : std::to_string(x1) + "," + std::to_string(y1) + "-" + std::to_string(x2) +
                            "," + std::to_string(y2);
    }

  private:
    static const uint8_t* at(const SDL_Surface* s, int x, int y)
    {
        return static_cast<const uint8_t*>(s->pixels) + y * s->pitch + s->format->BytesPerPixel * x;
    }
    static void hand_over(int x, int y, int w, int h)
    {
        SDL_Rect from = {Sint16(x), Sint16(y), Uint16(w), Uint16(h)};
        SDL_Rect to = from;
        SDL_BlitSurface(Screen, &from, shown, &to);
        handed += w * h;
    }
};
