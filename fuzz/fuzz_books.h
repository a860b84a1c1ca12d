// fuzz_books: what targets share that open a page, tell it things, and look whether it gives back
// all that it has subscribed.
#pragma once
#include "bus.h"
#include "bus_tally.h"
#include "command.h"
#include "global.h"
#include "netio.h"
#include "page.h"
#include "pane.h"
#include "tdl.h"
#include "window.h"
#include <SDL.h>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <set>
#include <string>

// The paths that are followed. The server keeps one subscription of each, however often it was
// asked.
using Books = std::set<std::string>;

// A screen that nobody sees; every page can be opened.
inline void OpenScreen()
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
        abort();
    SDL_Surface* surface = SDL_SetVideoMode(SCREEN_W, SCREEN_H, 32, 0);
    if (!surface)
        abort();
    (void)TDL_Init(surface); // there are no fonts here, and nothing is drawn
    std::fill_n(multiprogram2_me, ME_COUNT, 1);
    GL_AllPageDisplayMode = 1;
}

inline void TakeCommands(Books& books)
{
    char text[CMD_SIZE];
    while (Net_TakeQueued(text, sizeof text)) {
        const std::string line = text;
        if (line.starts_with("add "))
            books.insert(line.substr(4));
        else if (line.starts_with("remove "))
            books.erase(line.substr(7));
    }
}

// The lowest five turn a knob, the others tell a path that is followed.
inline void Tell(unsigned what, const std::string& value, const Books& books)
{
    if (what < 5) {
        SendDummyTally(("Panel@Common@Knob" + std::to_string(what) + "#" + value).c_str());
    } else if (!books.empty()) {
        const auto at = std::next(books.begin(), long((what - 5) % books.size()));
        SendDummyTally((*at + "#" + value).c_str());
    }
}

inline void CloseAll()
{
    (void)CloseWindow(); // none may be open
    while (const int id = Pane_GetActiveID())
        Pane_Quit(id);
}

// Open the page, take steps until the input ends, and leave. A step is a byte for what is to be
// done, one for the length of the value, and the value. False when something is left subscribed.
template <typename Step> bool VisitPage(uint32_t id, const uint8_t* data, size_t size, Step step)
{
    CreatePage(PAGE_TOP);
    Tally_FollowCombine(); // a page that lets go of these has them followed again
    Books ignored, books;
    TakeCommands(ignored);
    CreatePage(id);
    TakeCommands(books);
    while (size >= 2) {
        const size_t length = std::min(size_t(data[1]), size - 2);
        step(data[0], std::string(reinterpret_cast<const char*>(data) + 2, length), books);
        TakeCommands(books);
        CloseAll();
        data += 2 + length;
        size -= 2 + length;
    }
    CreatePage(PAGE_TOP);
    TakeCommands(books);
    GL_CreatePage = 0;
    return std::all_of(books.begin(), books.end(), [&](const std::string& path) {
        return path == "TopMenu" || ignored.contains(path);
    });
}
